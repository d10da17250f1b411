// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/QnBaseApi.h"
#include "containers/QnIsEqual.h"
#include "containers/impl/RankSort.h"

template <class T>
class QnDynArrayBase;
template <class T>
class QnQuene;

/// An array of exact size, without a cursor: for data whose size is known.
///
/// Requires   `T` is default constructible and assignable. New elements are value-initialised (0, null, false).
/// Ownership  Owns its block; copies and assignments are deep. Pointers as elements are not owned.
/// Fails      `[]`, SetAt and BFind's range are unchecked against the length. Inserting at a bad index appends,
///            deleting at one does nothing.
/// Cost       Every Insert, Append and Del makes a new block.
/// Kept odd   `<` and `>` compare the lengths and nothing else.
template <class T>
class QUARN_TEMPLATE_API QnArray {
public:
    explicit QnArray(long length = 0);
    QnArray(const QnArray& other);
    explicit QnArray(const QnDynArrayBase<T>& other);
    virtual ~QnArray() { delete[] m_pData; }

    QnArray& operator=(const QnArray& other);
    QnArray& operator=(const QnDynArrayBase<T>& other);

    /// Makes the length `length`: the old elements as far as both lengths go and default ones behind them, or with
    /// `keep` false default ones throughout.
    void ReAllocate(long length, bool keep);
    void Reset() { ReAllocate(0, false); }

    // ---- reading and writing ---------------------------------------------------------------------
    long GetLength() const { return m_nLength; }
    long GetMaxIndex() const { return m_nLength - 1; }
    bool IsEmpty() const { return m_nLength == 0; }
    bool IsValidIndex(long i) const { return i >= 0 && i < m_nLength; }
    /// The block, null when empty. It stays the array's.
    T* GetDataBuffer() { return m_pData; }
    const T* GetDataBuffer() const { return m_pData; }
    T& operator[](long i) { return m_pData[i]; }
    const T& operator[](long i) const { return m_pData[i]; }
    void SetAt(long i, const T& value) { m_pData[i] = value; }
    void SetAll(const T& value) { std::fill(m_pData, m_pData + m_nLength, T(value)); }

    // ---- inserting and deleting ------------------------------------------------------------------
    void Insert(long i, const T& value);
    void InsertHead(const T& value) { Insert(0, value); }
    /// Adds at the end and answers the new element's index.
    long Append(const T& value);
    void Del(long i);
    void DelHead() { Del(0); }
    void DelTail() { Del(m_nLength - 1); }

    // ---- searching, as the operations of these names of QnDynArrayBase ---------------------------
    long Find(const T& value, long first = 0, long last = -1) const;
    long Find(const T& value, QnQuene<long>& hits, long first = 0, long last = -1) const;
    long FindDel(const T& value);
    long FindOrAppend(const T& value);
    void FindOrInsertHead(const T& value);
    long BFind(const T& value, long first = 0, long last = -1) const;

    // ---- order -----------------------------------------------------------------------------------
    void Reverse(long first = 0, long last = -1);
    /// Stable sort. `compare` answers above 0 if its first argument must come after its second.
    ///
    /// Cost  Quadratic in the length; so is the second form, but for numbers and pointers.
    void Sort(int (*compare)(const T&, const T&));
    void Sort(bool ascending) { qn_detail::SortByGreater(m_pData, m_nLength, ascending); }

    // ---- comparison ------------------------------------------------------------------------------
    bool operator==(const QnArray& other) const;
    bool operator!=(const QnArray& other) const { return !(*this == other); }
    bool operator<(const QnArray& other) const { return m_nLength < other.m_nLength; }
    bool operator>(const QnArray& other) const { return m_nLength > other.m_nLength; }

private:
    T* m_pData = nullptr;
    long m_nLength = 0;

    static T* NewBlock(long n) { return n > 0 ? new T[static_cast<std::size_t>(n)]() : nullptr; }
    void Replace(T* block, long length);
    long ClampLast(long last) const { return IsValidIndex(last) ? last : m_nLength - 1; }
    template <class Hits>
    long EnQueneMatches(const T& value, Hits& hits, long first, long last) const;
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
QnArray<T>::QnArray(long length) : m_pData(NewBlock(length)), m_nLength(length > 0 ? length : 0) {}

template <class T>
QnArray<T>::QnArray(const QnArray& other) : m_pData(NewBlock(other.m_nLength)), m_nLength(other.m_nLength) {
    std::copy(other.m_pData, other.m_pData + m_nLength, m_pData);
}

template <class T>
QnArray<T>::QnArray(const QnDynArrayBase<T>& other) : QnArray() {
    *this = other;
}

template <class T>
QnArray<T>& QnArray<T>::operator=(const QnArray& other) {
    if (&other != this) {
        T* block = NewBlock(other.m_nLength);
        std::copy(other.m_pData, other.m_pData + other.m_nLength, block);
        Replace(block, other.m_nLength);
    }
    return *this;
}

template <class T>
QnArray<T>& QnArray<T>::operator=(const QnDynArrayBase<T>& other) {
    const long length = other.GetLength();
    T* block = NewBlock(length);
    T* place = block;
    for (const T* p = other.GetFirst(); p != nullptr; p = other.GetNext(p)) {
        *place++ = *p;
    }
    Replace(block, length);
    return *this;
}

template <class T>
void QnArray<T>::Replace(T* block, long length) {
    delete[] m_pData;
    m_pData = block;
    m_nLength = length;
}

template <class T>
void QnArray<T>::ReAllocate(long length, bool keep) {
    if (length < 0) {
        length = 0;
    }
    if (keep && length == m_nLength) {
        return;
    }
    T* block = NewBlock(length);
    if (keep) {
        std::move(m_pData, m_pData + std::min(m_nLength, length), block);
    }
    Replace(block, length);
}

template <class T>
void QnArray<T>::Insert(long i, const T& value) {
    const long place = IsValidIndex(i) ? i : m_nLength;
    T* block = NewBlock(m_nLength + 1);
    block[place] = value;  // first: `value` may be an element of this array
    std::move(m_pData, m_pData + place, block);
    std::move(m_pData + place, m_pData + m_nLength, block + place + 1);
    Replace(block, m_nLength + 1);
}

template <class T>
long QnArray<T>::Append(const T& value) {
    Insert(m_nLength, value);
    return m_nLength - 1;
}

template <class T>
void QnArray<T>::Del(long i) {
    if (!IsValidIndex(i)) {
        return;
    }
    T* block = NewBlock(m_nLength - 1);
    std::move(m_pData, m_pData + i, block);
    std::move(m_pData + i + 1, m_pData + m_nLength, block + i);
    Replace(block, m_nLength - 1);
}

template <class T>
long QnArray<T>::Find(const T& value, long first, long last) const {
    if (!IsValidIndex(first)) {
        return -1;
    }
    last = ClampLast(last);
    for (long i = first; i <= last; ++i) {
        if (QnIsEqual(m_pData[i], value)) {
            return i;
        }
    }
    return -1;
}

template <class T>
long QnArray<T>::Find(const T& value, QnQuene<long>& hits, long first, long last) const {
    return EnQueneMatches(value, hits, first, last);
}

template <class T>
template <class Hits>
long QnArray<T>::EnQueneMatches(const T& value, Hits& hits, long first, long last) const {
    last = IsValidIndex(first) ? ClampLast(last) : first - 1;
    for (long i = first; i <= last; ++i) {
        if (QnIsEqual(m_pData[i], value)) {
            hits.EnQuene(i);
        }
    }
    return hits.GetLength();
}

template <class T>
long QnArray<T>::FindDel(const T& value) {
    const T wanted = value;  // `value` may be an element of this array
    T* end = std::remove_if(m_pData, m_pData + m_nLength, [&wanted](const T& e) { return QnIsEqual(e, wanted); });
    const long count = static_cast<long>(m_pData + m_nLength - end);
    ReAllocate(m_nLength - count, true);
    return count;
}

template <class T>
long QnArray<T>::FindOrAppend(const T& value) {
    const long found = Find(value);
    return found >= 0 ? found : Append(value);
}

template <class T>
void QnArray<T>::FindOrInsertHead(const T& value) {
    if (Find(value) < 0) {
        InsertHead(value);
    }
}

template <class T>
long QnArray<T>::BFind(const T& value, long first, long last) const {
    last = ClampLast(last);
    if (first < 0 || first > last || value < m_pData[first] || value > m_pData[last]) {
        return -1;
    }
    while (first <= last) {
        const long mid = (first + last) / 2;
        if (m_pData[mid] < value) {
            first = mid + 1;
        } else if (m_pData[mid] > value) {
            last = mid - 1;
        } else {
            return mid;
        }
    }
    return -1;
}

template <class T>
void QnArray<T>::Reverse(long first, long last) {
    last = ClampLast(last);
    if (IsValidIndex(first) && first < last) {
        std::reverse(m_pData + first, m_pData + last + 1);
    }
}

template <class T>
void QnArray<T>::Sort(int (*compare)(const T&, const T&)) {
    qn_detail::RankSort(m_pData, m_nLength, [compare](const T& a, const T& b) { return compare(a, b) > 0; });
}

template <class T>
bool QnArray<T>::operator==(const QnArray& other) const {
    return m_nLength == other.m_nLength && std::equal(m_pData, m_pData + m_nLength, other.m_pData,
                                                      [](const T& a, const T& b) { return QnIsEqual(a, b); });
}
