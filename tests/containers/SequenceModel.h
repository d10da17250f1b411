// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <vector>

/// The rules of the sequences, spelled out over a std::vector: what the containers must do, element for element and
/// cursor for cursor. What both kinds share stands here; the cursor rules are those of Places.
template <class T>
class SequenceModel {
public:
    std::vector<T> items;
    long cur = -1;

    long Size() const { return static_cast<long>(items.size()); }
    bool Valid(long i) const { return i >= 0 && i < Size(); }
    bool IsOut() const { return !Valid(cur); }
    T& At(long i) { return items[static_cast<std::size_t>(i)]; }
    const T& At(long i) const { return items[static_cast<std::size_t>(i)]; }

    void InsertAt(long i, const T& value) { items.insert(items.begin() + i, value); }
    void EraseAt(long i) { items.erase(items.begin() + i); }

    void DelCur() {
        if (!IsOut()) {
            EraseAt(cur);
            --cur;
        }
    }

    /// `to` is the index before which the element lands.
    bool Move(long from, long to) {
        if (from == to || from == to - 1) {
            return false;
        }
        const T moved = At(from);
        EraseAt(from);
        cur = to > from ? to - 1 : to;
        InsertAt(cur, moved);
        return true;
    }

    void Exchange(long i, long j) { std::swap(At(i), At(j)); }

    void Reverse(long first, long last) {
        last = LastOf(last);
        const long pairs = (last - first + 1) / 2;
        for (long i = 0; i < pairs; ++i) {
            std::swap(At(first + i), At(last - i));
            cur = last - i;
        }
    }

    long Find(const T& value, long first, long last) const {
        if (!Valid(first)) {
            return -1;
        }
        for (long i = first; i <= LastOf(last); ++i) {
            if (At(i) == value) {
                return i;
            }
        }
        return -1;
    }

    long FindDel(const T& value) {
        const long before = Size();
        items.erase(std::remove(items.begin(), items.end(), value), items.end());
        return before - Size();
    }

    /// Values by the plain order; equal ones keep their order of arrival.
    void Sort(bool ascending) {
        std::stable_sort(items.begin(), items.end(),
                         [ascending](const T& a, const T& b) { return ascending ? b > a : a > b; });
    }
    void Sort(int (*compare)(const T&, const T&)) {
        std::stable_sort(items.begin(), items.end(), [compare](const T& a, const T& b) { return compare(a, b) < 0; });
    }

    /// The place for `value` in a sorted sequence, behind its equals; -1 if it is there and may not repeat.
    long PlaceFor(const T& value, bool allowDuplicate) const {
        const auto lower = std::lower_bound(items.begin(), items.end(), value);
        const auto upper = std::upper_bound(items.begin(), items.end(), value);
        return lower != upper && !allowDuplicate ? -1 : static_cast<long>(upper - items.begin());
    }

    /// A last index below 0 or beyond the end means the last one.
    long LastOf(long last) const { return last < 0 || last >= Size() ? Size() - 1 : last; }
};

/// Cursor rules of lists: out is always -1, and the cursor runs round through out.
template <class T>
class ListModel : public SequenceModel<T> {
public:
    static constexpr bool IS_LIST = true;
    using SequenceModel<T>::cur;
    using SequenceModel<T>::items;

    void MoveTo(long i) { cur = this->Valid(i) ? i : -1; }
    void MoveToFirst() { MoveTo(0); }
    void MoveToLast() { cur = this->Size() - 1; }
    void MoveToNext() { MoveTo(cur + 1); }
    void MoveToPre() { cur = cur < 0 ? this->Size() - 1 : cur - 1; }

    void InsertAfterCur(const T& value) {
        ++cur;
        this->InsertAt(cur, value);
    }
    void InsertCur(const T& value) {
        MoveToPre();
        InsertAfterCur(value);
    }
    void Insert(long i, const T& value) {
        MoveTo(i - 1);
        InsertAfterCur(value);
    }
    void InsertHead(const T& value) { Insert(0, value); }
    long Append(const T& value) {
        MoveToLast();
        InsertAfterCur(value);
        return cur;
    }
    void Del(long i) {
        MoveTo(i);
        this->DelCur();
    }

    void DetachAfterCur() { items.resize(static_cast<std::size_t>(cur + 1)); }

    long Conbine(ListModel& other, long first) {
        if (&other != this && other.Valid(first)) {
            items.insert(items.end(), other.items.begin() + first, other.items.end());
            other.items.resize(static_cast<std::size_t>(first));
            other.cur = first - 1;
        }
        return this->Size();
    }
    void SplitAt(long i, ListModel& rest) {
        MoveTo(i);
        rest.Conbine(*this, cur);
    }
    void ReverseList() { std::reverse(items.begin(), items.end()); }
    void Rotate(long from, long to) {
        const long n = this->Size();
        if (n > 1 && from != to) {
            std::rotate(items.begin(), items.begin() + (from - to + n) % n, items.end());
            cur = 0;
        }
    }
};

/// Cursor rules of arrays: any number may be the cursor.
template <class T>
class ArrayModel : public SequenceModel<T> {
public:
    static constexpr bool IS_LIST = false;
    using SequenceModel<T>::cur;

    void MoveTo(long i) { cur = i; }
    void MoveToFirst() { cur = 0; }
    void MoveToLast() { cur = this->Size() - 1; }
    void MoveToNext() { ++cur; }
    void MoveToPre() { --cur; }

    void InsertCur(const T& value) {
        if (cur < 0 || cur > this->Size()) {
            cur = this->Size();
        }
        this->InsertAt(cur, value);
    }
    void Insert(long i, const T& value) {
        MoveTo(i);
        InsertCur(value);
    }
    void InsertHead(const T& value) { Insert(0, value); }
    long Append(const T& value) {
        Insert(this->Size(), value);
        return cur;
    }
    void Del(long i) {
        MoveTo(i);
        this->DelCur();
    }
};
