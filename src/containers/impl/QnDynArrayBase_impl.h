// SPDX-License-Identifier: Apache-2.0
#pragma once

// QnDynArrayBase_impl.h: bodies of QnDynArrayBase<T>, included by its header only.

// ---- operations of the family ----------------------------------------------------------------------

template <class T>
void QnDynArrayBase<T>::Reset() {
    while (m_nLength > 0) {
        DelTail();
    }
}

template <class T>
void QnDynArrayBase<T>::MoveToFirst() {
    m_nCur = 0;
}

template <class T>
void QnDynArrayBase<T>::MoveToNext() {
    ++m_nCur;
}

template <class T>
void QnDynArrayBase<T>::MoveToPre() {
    --m_nCur;
}

template <class T>
void QnDynArrayBase<T>::MoveToLast() {
    m_nCur = m_nLength - 1;
}

template <class T>
void QnDynArrayBase<T>::MoveTo(long index) {
    m_nCur = index;
}

template <class T>
T& QnDynArrayBase<T>::operator[](long index) {
    if (index >= m_nLength) {
        ReAllocate(index + 1);
    }
    MoveTo(index);
    return GetCurData();
}

template <class T>
void QnDynArrayBase<T>::Insert(long index, const T& value) {
    MoveTo(index);
    InsertCur(value);
}

template <class T>
void QnDynArrayBase<T>::InsertHead(const T& value) {
    MoveToFirst();
    InsertCur(value);
}

template <class T>
long QnDynArrayBase<T>::Append(const T& value) {
    MoveTo(m_nLength);
    InsertCur(value);
    return m_nCur;
}

template <class T>
bool QnDynArrayBase<T>::Move(long from, long to) {
    const bool isThere = from == to || from == to - 1;
    if (isThere || !IsValidIndex(from) || to < 0 || to > m_nLength) {
        return false;
    }
    const T moved = GetAt(from);
    Insert(to, moved);
    MoveTo(to < from ? from + 1 : from);
    SetCurData(T());  // an owner must not delete what now stands in its new place
    DelCur();
    MoveTo(to < from ? to : to - 1);
    return true;
}

// ---- the whole sequence ----------------------------------------------------------------------------

template <class T>
void QnDynArrayBase<T>::DeepCopy(const QnDynArrayBase<T>& other) {
    if (&other == this) {
        return;
    }
    SetLength(other.GetLength(), false);
    const T* source = other.GetFirst();
    for (const T* p = GetFirst(); p != nullptr && source != nullptr; p = GetNext(p)) {
        Writable(p) = *source;
        source = other.GetNext(source);
    }
    MoveOut();
}

template <class T>
void QnDynArrayBase<T>::DeepCopy(const QnArray<T>& other) {
    SetLength(other.GetLength(), false);
    long i = 0;
    for (const T* p = GetFirst(); p != nullptr; p = GetNext(p)) {
        Writable(p) = other[i++];
    }
    MoveOut();
}

template <class T>
void QnDynArrayBase<T>::SetAll(const T& value) {
    for (const T* p = GetFirst(); p != nullptr; p = GetNext(p)) {
        Writable(p) = value;
    }
    MoveOut();
}

template <class T>
void QnDynArrayBase<T>::Exchange(long i, long j) {
    const T* a = GetTo(i);
    const T* b = GetTo(j);
    if (a != nullptr && b != nullptr && a != b) {
        using std::swap;
        swap(Writable(a), Writable(b));
    }
}

template <class T>
void QnDynArrayBase<T>::Reverse(long first, long last) {
    last = ClampLast(last);
    const long pairs = (last - first + 1) / 2;
    if (!IsValidIndex(first) || pairs < 1) {
        return;
    }
    const T* lower = GetTo(first);
    const T* upper = GetTo(last);
    for (long i = 0; i < pairs; ++i) {
        using std::swap;
        swap(Writable(lower), Writable(upper));
        lower = GetNext(lower);
        upper = GetPre(upper);
    }
    MoveTo(last - (pairs - 1));
}

template <class T>
void QnDynArrayBase<T>::CopyPart(long first, long count, QnDynArrayBase<T>& out) const {
    if (&out != this) {
        out.SetLength(count, false);
    }
    // Copying a part of a sequence onto its own start goes forward and never overwrites what is still to be read.
    const T* source = GetTo(first);
    const T* p = out.GetFirst();
    for (long i = 0; i < count; ++i) {
        if (p != source) {
            Writable(p) = *source;
        }
        p = out.GetNext(p);
        source = GetNext(source);
    }
    if (&out == this) {
        out.SetLength(count, true);
    }
    out.MoveOut();
}

template <class T>
void QnDynArrayBase<T>::Left(long n, QnDynArrayBase<T>& out) const {
    const long count = n < 0 ? 0 : (n < m_nLength ? n : m_nLength);
    CopyPart(0, count, out);
}

template <class T>
void QnDynArrayBase<T>::Right(long n, QnDynArrayBase<T>& out) const {
    const long count = n < 0 ? 0 : (n < m_nLength ? n : m_nLength);
    CopyPart(m_nLength - count, count, out);
}

template <class T>
void QnDynArrayBase<T>::Mid(long first, long last, QnDynArrayBase<T>& out) const {
    last = ClampLast(last);
    const long count = IsValidIndex(first) && last >= first ? last - first + 1 : 0;
    CopyPart(first, count, out);
}

template <class T>
QnDynArrayBase<T>& QnDynArrayBase<T>::operator<<(const T& value) {
    Append(value);
    return *this;
}

template <class T>
QnDynArrayBase<T>& QnDynArrayBase<T>::operator<<(const QnDynArrayBase<T>& other) {
    const long count = other.GetLength();  // fixed now: `other` may be this sequence
    for (long i = 0; i < count; ++i) {
        Append(other.GetAt(i));
    }
    return *this;
}

template <class T>
QnDynArrayBase<T>& QnDynArrayBase<T>::operator<<(const QnArray<T>& other) {
    for (long i = 0; i < other.GetLength(); ++i) {
        Append(other[i]);
    }
    return *this;
}

// ---- deleting --------------------------------------------------------------------------------------

template <class T>
void QnDynArrayBase<T>::Del(long i) {
    MoveTo(i);
    DelCur();
}

template <class T>
void QnDynArrayBase<T>::DelHead() {
    MoveToFirst();
    DelCur();
}

template <class T>
void QnDynArrayBase<T>::DelTail() {
    MoveToLast();
    DelCur();
}

// ---- searching -------------------------------------------------------------------------------------

template <class T>
long QnDynArrayBase<T>::Find(const T& value, long first, long last) const {
    last = ClampLast(last);
    const T* p = GetTo(first);
    for (long i = first; i <= last && p != nullptr; ++i) {
        if (QnIsEqual(*p, value)) {
            return i;
        }
        p = GetNext(p);
    }
    return -1;
}

template <class T>
long QnDynArrayBase<T>::Find(const T& value, QnQuene<long>& hits, long first, long last) const {
    return EnQueneMatches(value, hits, first, last);
}

template <class T>
template <class Hits>
long QnDynArrayBase<T>::EnQueneMatches(const T& value, Hits& hits, long first, long last) const {
    last = ClampLast(last);
    const T* p = GetTo(first);
    for (long i = first; i <= last && p != nullptr; ++i) {
        if (QnIsEqual(*p, value)) {
            hits.EnQuene(i);
        }
        p = GetNext(p);
    }
    return hits.GetLength();
}

template <class T>
bool QnDynArrayBase<T>::FindTo(const T& value, long first) {
    for (MoveTo(first); !IsOut(); MoveToNext()) {
        if (QnIsEqual(GetCurData(), value)) {
            return true;
        }
    }
    return false;
}

template <class T>
long QnDynArrayBase<T>::FindDel(const T& value) {
    const T wanted = value;  // `value` may be an element of this sequence
    long count = 0;
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        if (QnIsEqual(GetCurData(), wanted)) {
            DelCur();
            ++count;
        }
    }
    MoveOut();
    return count;
}

template <class T>
long QnDynArrayBase<T>::FindOrAppend(const T& value) {
    const long found = Find(value);
    return found >= 0 ? found : Append(value);
}

template <class T>
void QnDynArrayBase<T>::FindOrInsertHead(const T& value) {
    if (Find(value) < 0) {
        InsertHead(value);
    }
}

// ---- sorted sequences ------------------------------------------------------------------------------

template <class T>
long QnDynArrayBase<T>::BFind(const T& value, long first, long last) const {
    last = ClampLast(last);
    if (first < 0 || first > last || value < GetAt(first) || value > GetAt(last)) {
        return -1;
    }
    while (first <= last) {
        const long mid = (first + last) / 2;
        const T& element = GetAt(mid);
        if (element < value) {
            first = mid + 1;
        } else if (element > value) {
            last = mid - 1;
        } else {
            return mid;
        }
    }
    return -1;
}

template <class T>
bool QnDynArrayBase<T>::BFindTo(const T& value, long first, long last) {
    last = ClampLast(last);
    if (first < 0) {
        MoveOut();
        return false;
    }
    if (first > last || value < GetAt(first)) {
        MoveTo(first);
        return false;
    }
    if (value > GetAt(last)) {
        MoveTo(last + 1);
        return false;
    }
    while (first <= last) {
        const long mid = (first + last) / 2;
        const T& element = GetAt(mid);
        if (element < value) {
            first = mid + 1;
        } else if (element > value) {
            last = mid - 1;
        } else {
            MoveTo(mid);
            return true;
        }
    }
    MoveTo(first);
    return false;
}

template <class T>
bool QnDynArrayBase<T>::SortInto(const T& value, bool allowDuplicate) {
    if (BFindTo(value, 0, -1)) {
        if (!allowDuplicate) {
            return false;
        }
        // Only the order decides here: `==` of the elements may look at something else.
        while (!IsOut() && !(GetCurData() > value)) {
            MoveToNext();
        }
    }
    InsertCur(value);
    return true;
}

// ---- comparison ------------------------------------------------------------------------------------

template <class T>
bool QnDynArrayBase<T>::operator==(const QnDynArrayBase<T>& other) const {
    if (m_nLength != other.m_nLength) {
        return false;
    }
    const T* b = other.GetFirst();
    for (const T* a = GetFirst(); a != nullptr; a = GetNext(a)) {
        if (!QnIsEqual(*a, *b)) {
            return false;
        }
        b = other.GetNext(b);
    }
    return true;
}
