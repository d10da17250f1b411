// SPDX-License-Identifier: Apache-2.0
#pragma once

// QnOwnedSequence_impl.h: bodies of QnOwnedSequence<T, Sequence>, included by its header only.

template <class T, class Sequence>
QnOwnedSequence<T, Sequence>& QnOwnedSequence<T, Sequence>::operator=(const QnOwnedSequence& other) {
    if (&other != this) {
        Reset();
        Sequence::operator=(other);
    }
    return *this;
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::DeepCopy(const QnDynArrayBase<T*>& other) {
    if (&other != this) {
        Reset();
        Sequence::DeepCopy(other);
    }
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::DeepCopy(const QnArray<T*>& other) {
    Reset();
    Sequence::DeepCopy(other);
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::Reset() {
    ReleaseAll();
    Sequence::Reset();
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::DelCur() {
    if (!this->IsOut()) {
        ReleaseCur();
        Sequence::DelCur();
    }
}

/// The entry is null before the object goes, so that nobody who looks meanwhile finds a dying object.
template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::DeleteEntry(T*& entry) {
    static_assert(sizeof(T) > 0, "an owned element type must be complete");
    const T* object = entry;
    entry = nullptr;
    delete object;
}

// ---- access, filling and removing ------------------------------------------------------------------

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::GetDataNum() const {
    long count = 0;
    for (T* const* p = this->GetFirst(); p != nullptr; p = this->GetNext(p)) {
        if (*p != nullptr) {
            ++count;
        }
    }
    return count;
}

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::PlaceIn(T* object) {
    long i = 0;
    for (T* const* p = this->GetFirst(); p != nullptr; p = this->GetNext(p)) {
        if (*p == nullptr) {
            this->Writable(p) = object;
            return i;
        }
        ++i;
    }
    return this->Append(object);
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::ReleaseCur() {
    if (!this->IsOut()) {
        DeleteEntry(this->GetCurData());
    }
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::Release(long i) {
    this->MoveTo(i);
    ReleaseCur();
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::ReleaseAll() {
    for (T* const* p = this->GetFirst(); p != nullptr; p = this->GetNext(p)) {
        DeleteEntry(this->Writable(p));
    }
}

template <class T, class Sequence>
T* QnOwnedSequence<T, Sequence>::TakeOffCur() {
    if (this->IsOut()) {
        return nullptr;
    }
    T* object = this->GetCurData();
    this->SetCurData(nullptr);
    this->DelCur();
    return object;
}

template <class T, class Sequence>
T* QnOwnedSequence<T, Sequence>::TakeOff(long i) {
    this->MoveTo(i);
    return TakeOffCur();
}

template <class T, class Sequence>
T* QnOwnedSequence<T, Sequence>::TakeOffHead() {
    this->MoveToFirst();
    return TakeOffCur();
}

template <class T, class Sequence>
T* QnOwnedSequence<T, Sequence>::TakeOffTail() {
    this->MoveToLast();
    return TakeOffCur();
}

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::FindDel(T* object) {
    const bool isFound = this->FindTo(object);
    if (isFound) {
        this->DelCur();
    }
    this->MoveOut();
    return isFound ? 1 : 0;
}

// ---- by value --------------------------------------------------------------------------------------

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::FindData(const T& value, long first, long last) const {
    last = this->ClampLast(last);
    T* const* p = this->GetTo(first);
    for (long i = first; i <= last && p != nullptr; ++i) {
        if (*p != nullptr && **p == value) {
            return i;
        }
        p = this->GetNext(p);
    }
    return -1;
}

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::FindData(const T& value, QnQuene<long>& hits, long first, long last) const {
    return EnQueneDataMatches(value, hits, first, last);
}

template <class T, class Sequence>
template <class Hits>
long QnOwnedSequence<T, Sequence>::EnQueneDataMatches(const T& value, Hits& hits, long first, long last) const {
    last = this->ClampLast(last);
    T* const* p = this->GetTo(first);
    for (long i = first; i <= last && p != nullptr; ++i) {
        if (*p != nullptr && **p == value) {
            hits.EnQuene(i);
        }
        p = this->GetNext(p);
    }
    return hits.GetLength();
}

template <class T, class Sequence>
bool QnOwnedSequence<T, Sequence>::FindDataTo(const T& value, long first, long last) {
    this->MoveTo(FindData(value, first, last));  // -1 is out
    return !this->IsOut();
}

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::FindDataDel(const T& value) {
    long count = 0;
    std::unique_ptr<const T> kept;  // the object that is `value` itself must outlive the search
    for (this->MoveToFirst(); !this->IsOut(); this->MoveToNext()) {
        T* object = this->GetCurData();
        if (object == nullptr || !(*object == value)) {
            continue;
        }
        if (object == std::addressof(value)) {
            this->SetCurData(nullptr);
            kept.reset(object);
        }
        this->DelCur();
        ++count;
    }
    this->MoveOut();
    return count;
}

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::FindDataOrAppend(const T& value) {
    const long found = FindData(value);
    return found >= 0 ? found : this->Append(new T(value));
}

template <class T, class Sequence>
void QnOwnedSequence<T, Sequence>::FindDataOrInsertHead(const T& value) {
    if (FindData(value) < 0) {
        this->InsertHead(new T(value));
    }
}

// ---- sorted sequences ------------------------------------------------------------------------------

/// The first filled index at or behind `i`, `last` + 1 if none.
template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::FilledFrom(long i, long last) const {
    while (i <= last && this->GetAt(i) == nullptr) {
        ++i;
    }
    return i;
}

/// The last filled index at or before `i`, `first` - 1 if none.
template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::FilledBackFrom(long i, long first) const {
    while (i >= first && this->GetAt(i) == nullptr) {
        --i;
    }
    return i;
}

/// True with `place` on an object that is neither less nor greater than `value`; false with `place` on the index before
/// which `value` belongs. `first` is not negative.
template <class T, class Sequence>
bool QnOwnedSequence<T, Sequence>::Bisect(const T& value, long first, long last, long& place) const {
    place = first;
    first = FilledFrom(first, last);
    last = FilledBackFrom(last, first);
    if (first > last) {
        return false;
    }
    place = first;
    if (value < *this->GetAt(first)) {
        return false;
    }
    place = last + 1;
    if (value > *this->GetAt(last)) {
        return false;
    }
    while (first <= last) {
        const long mid = (first + last) / 2;
        place = FilledFrom(mid, last);
        if (place > last) {  // only nulls from mid on: go on in front of them
            last = mid - 1;
        } else if (*this->GetAt(place) < value) {
            first = place + 1;
        } else if (*this->GetAt(place) > value) {
            last = mid - 1;
        } else {
            return true;
        }
    }
    place = first;
    return false;
}

template <class T, class Sequence>
long QnOwnedSequence<T, Sequence>::BFindData(const T& value, long first, long last) const {
    long place = -1;
    const bool isFound = first >= 0 && Bisect(value, first, this->ClampLast(last), place);
    return isFound ? place : -1;
}

template <class T, class Sequence>
bool QnOwnedSequence<T, Sequence>::BFindDataTo(const T& value, long first, long last) {
    long place = -1;
    const bool isFound = first >= 0 && Bisect(value, first, this->ClampLast(last), place);
    this->MoveTo(place);
    return isFound;
}

template <class T, class Sequence>
bool QnOwnedSequence<T, Sequence>::SortInto(T* object, bool allowDuplicate) {
    if (object == nullptr) {
        return false;
    }
    if (BFindDataTo(*object, 0, -1)) {
        if (!allowDuplicate) {
            return false;
        }
        // Only the order decides here: `==` of the objects may look at something else.
        long place = this->GetCur() + 1;
        T* const* p = this->GetTo(place);
        for (long i = place; p != nullptr; ++i) {
            if (*p != nullptr) {
                if (**p > *object) {
                    break;
                }
                place = i + 1;
            }
            p = this->GetNext(p);
        }
        this->MoveTo(place);
    }
    this->InsertCur(object);
    return true;
}

template <class T, class Sequence>
bool QnOwnedSequence<T, Sequence>::operator==(const QnDynArrayBase<T*>& other) const {
    if (this->GetLength() != other.GetLength()) {
        return false;
    }
    T* const* b = other.GetFirst();
    for (T* const* a = this->GetFirst(); a != nullptr; a = this->GetNext(a)) {
        const bool isOneNull = *a == nullptr || *b == nullptr;
        if (isOneNull ? *a != *b : !(**a == **b)) {
            return false;
        }
        b = other.GetNext(b);
    }
    return true;
}
