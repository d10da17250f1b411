// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <utility>

#include "base/QnBaseApi.h"
#include "containers/QnIsEqual.h"

template <class T>
class QnArray;
template <class T>
class QnQuene;

/// A sequence with a built-in cursor: what arrays and lists have in common, so that code takes either.
///
///     for (s.MoveToFirst(); !s.IsOut(); s.MoveToNext())      the cursor loop; it alone may delete (DelCur)
///     for (const T* p = s.GetFirst(); p; p = s.GetNext(p))   the pointer loop; leaves the cursor alone, may be nested
///
/// The cursor is the index of the current element, and out when it is no valid index: -1 for a new or emptied sequence,
/// and wherever below it says that an operation leaves it out. Operations that do not mention it leave it.
///
/// Laws       `s[i]` on a sequence that is not const moves the cursor, and grows the sequence when i is past its end.
///            Loops read with GetAt, GetFirst and GetNext.
/// Ownership  Derived classes own the elements. Copying this base copies length and cursor only, for their use.
/// Fails      Indexes are not checked unless it is said: GetAt, GetCurData and `[]` const on a bad index read outside
///            an array (a list answers its spare element). Deleting with the cursor out does nothing.
/// Kept odd   `<` and `>` compare the lengths and nothing else.
/// See        QnDynArray, QnDynPArray, QnList, QnDList, QnPDList, QnXList, QnPXList
template <class T>
class QUARN_TEMPLATE_API QnDynArrayBase {
protected:
    long m_nLength = 0;
    long m_nCur = -1;

    QnDynArrayBase() = default;
    QnDynArrayBase(const QnDynArrayBase&) = default;
    QnDynArrayBase& operator=(const QnDynArrayBase&) = default;

    // ---- operations of the family, in slot order -------------------------------------------------

    /// Makes the length `length`, keeping what is there. Arrays also shrink by it, lists only grow.
    virtual void ReAllocate(long length) = 0;

public:
    virtual ~QnDynArrayBase() {}

    /// Makes the length `length`. With `keep` false an array may throw its elements away; lists always keep them.
    virtual void SetLength(long length, bool keep) = 0;
    /// Empties the sequence; the cursor is out.
    virtual void Reset();
    virtual T& GetCurData() = 0;
    virtual void SetCurData(const T& value) = 0;
    virtual void MoveToFirst();
    virtual void MoveToNext();
    virtual void MoveToPre();
    virtual void MoveToLast();
    virtual void MoveTo(long index);
    /// Element `index`, which becomes the current one. Past the end the sequence grows by default elements.
    virtual T& operator[](long index);
    virtual const T* GetFirst() const = 0;
    /// The element behind `element`, which must be one of this sequence; null for null and at the end.
    virtual const T* GetNext(const T* element) const = 0;
    virtual const T* GetPre(const T* element) const = 0;
    virtual const T* GetLast() const = 0;
    virtual const T& GetAt(long index) const = 0;
    /// Inserts before the current element, or at the end if the cursor is out; the cursor is on the new element.
    virtual void InsertCur(const T& value) = 0;
    virtual void Insert(long index, const T& value);
    virtual void InsertHead(const T& value);
    /// Adds at the end and answers the new element's index, where the cursor is too.
    virtual long Append(const T& value);
    /// Deletes the current element. The cursor steps back by one, so that MoveToNext reaches the element that followed.
    virtual void DelCur() = 0;
    /// Stable sort. `compare` answers above 0 if its first argument must come after its second.
    virtual void Sort(int (*compare)(const T&, const T&)) = 0;
    /// Stable sort by `operator>` of `T`; an element type without one stays in its order.
    virtual void Sort(bool ascending) = 0;
    /// Moves element `from` so that it lands before the element now at index `to` (the length: at the end). The cursor
    /// is on it afterwards.
    ///
    /// Fails  False and nothing changed if it is there already (`to` is `from` or `from` + 1) or an index is bad.
    virtual bool Move(long from, long to);

    // ---- reading ---------------------------------------------------------------------------------
    long GetLength() const { return m_nLength; }
    long GetMaxIndex() const { return m_nLength - 1; }
    long GetCur() const { return m_nCur; }
    bool IsEmpty() const { return m_nLength == 0; }
    bool IsValidIndex(long i) const { return i >= 0 && i < m_nLength; }
    bool IsOut() const { return m_nCur < 0 || m_nCur >= m_nLength; }
    /// Kept odd  A list's cursor is -1 on either side, so IsBegin holds past its end too and IsEnd never does.
    bool IsBegin() const { return m_nCur < 0; }
    bool IsEnd() const { return m_nCur >= m_nLength; }
    /// The element at `i`, null if there is none. The cursor stays.
    const T* GetTo(long i) const { return IsValidIndex(i) ? std::addressof(GetAt(i)) : nullptr; }
    const T& operator[](long i) const { return GetAt(i); }

    // ---- the whole sequence ----------------------------------------------------------------------

    /// Becomes a copy of `other`, element by element assignment; the cursor is out. Copying from itself does nothing.
    void DeepCopy(const QnDynArrayBase<T>& other);
    void DeepCopy(const QnArray<T>& other);
    /// Assigns `value` to each element; the cursor is out.
    void SetAll(const T& value);
    void IncreaseSize(long n) { ReAllocate(m_nLength + n); }
    /// Kept odd  Lists do not shrink by it.
    void DecreaseSize(long n) { ReAllocate(m_nLength - n); }
    void Exchange(long i, long j);
    /// Turns the order of the elements `first` to `last` round (-1: to the end). The cursor ends on the upper index of
    /// the last pair exchanged, and stays if there is none.
    void Reverse(long first = 0, long last = -1);
    /// Makes `out` a copy of the first `n` elements, all if there are fewer; the cursor of `out` is out.
    ///
    /// Ownership  Pointers are shared: `out` must not own what it points to. The same for Right and Mid.
    void Left(long n, QnDynArrayBase<T>& out) const;
    void Right(long n, QnDynArrayBase<T>& out) const;
    /// Makes `out` a copy of the elements `first` to `last`, both inclusive; none if `first` is no valid index.
    void Mid(long first, long last, QnDynArrayBase<T>& out) const;

    QnDynArrayBase<T>& operator<<(const T& value);
    /// Appends a copy of all of `other`, which may be this sequence.
    QnDynArrayBase<T>& operator<<(const QnDynArrayBase<T>& other);
    QnDynArrayBase<T>& operator<<(const QnArray<T>& other);

    // ---- deleting: the cursor moves to the place, then DelCur ------------------------------------
    void Del(long i);
    void DelHead();
    void DelTail();

    // ---- searching, by QnIsEqual -----------------------------------------------------------------

    /// Index of the first match in `first` to `last`, -1 if none. A `last` below 0 or past the end is the last index.
    long Find(const T& value, long first = 0, long last = -1) const;
    /// Enqueues the index of each match and answers the length of `hits`.
    long Find(const T& value, QnQuene<long>& hits, long first = 0, long last = -1) const;
    /// Moves the cursor to the first match from `first` on; without one it is out and the answer false.
    bool FindTo(const T& value, long first = 0);
    /// Deletes every match and answers how many; the cursor is out.
    long FindDel(const T& value);
    /// Index of the first match, or of the new element if there was none. The cursor moves only to a new element.
    long FindOrAppend(const T& value);
    void FindOrInsertHead(const T& value);

    // ---- sorted sequences, by `<` and `>` of the elements, ascending ------------------------------

    /// Index of an element that is neither less nor greater than `value`, -1 if none. Of several it is the one that
    /// the bisection meets first.
    long BFind(const T& value, long first = 0, long last = -1) const;
    /// As BFind, with the cursor. On false the cursor is where `value` belongs: InsertCur puts it there.
    ///
    /// Fails  A negative `first` answers false with the cursor out.
    bool BFindTo(const T& value, long first = 0, long last = -1);
    /// Inserts `value` at its place, behind those of the same order.
    ///
    /// Fails  False and unchanged if `allowDuplicate` is false and an element of the same order is there; the cursor is
    ///        on that one.
    bool SortInto(const T& value, bool allowDuplicate);

    // ---- comparison ------------------------------------------------------------------------------

    /// Same length, and elements equal pair by pair by QnIsEqual.
    bool operator==(const QnDynArrayBase<T>& other) const;
    bool operator!=(const QnDynArrayBase<T>& other) const { return !(*this == other); }
    /// Kept odd  By length only, so that sequences of sequences sort by length.
    bool operator<(const QnDynArrayBase<T>& other) const { return m_nLength < other.m_nLength; }
    bool operator>(const QnDynArrayBase<T>& other) const { return m_nLength > other.m_nLength; }

protected:
    /// The elements that a pointer loop of this sequence meets are its own and may be written.
    static T& Writable(const T* element) { return const_cast<T&>(*element); }
    void MoveOut() { MoveTo(-1); }
    long ClampLast(long last) const { return IsValidIndex(last) ? last : m_nLength - 1; }
    void CopyPart(long first, long count, QnDynArrayBase<T>& out) const;
    template <class Hits>
    long EnQueneMatches(const T& value, Hits& hits, long first, long last) const;
};

#include "containers/impl/QnDynArrayBase_impl.h"  // the bodies
