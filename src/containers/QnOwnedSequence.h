// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "containers/QnDynArrayBase.h"

/// What the sequences of owned pointers have in common: QnDynPArray, QnPDList, QnPXList. Not a class for callers.
///
/// The operations named ...Data... and the sorted ones work on the objects, skip null entries and use `==`, `<` and `>`
/// of `T`; indexes count all entries. Only what is called must be there: `T` needs no order to be held.
///
/// Requires   `T` is complete wherever the sequence is made or destroyed.
/// Ownership  What is released, deleted, reset, cut off by shrinking or left in the destructor is deleted; what
///            is taken off is the caller's. SetCurData and `[]` overwrite a pointer without deleting what it
///            pointed to.
/// Fails      Releasing with the cursor out does nothing, taking off answers null.
template <class T, class Sequence>
class QUARN_TEMPLATE_API QnOwnedSequence : public Sequence {
public:
    using Sequence::Sequence;
    QnOwnedSequence() = default;
    /// Copies the pointers of a list. Both lists would delete the objects: whoever copies empties one by TakeOffHead.
    QnOwnedSequence(const QnOwnedSequence&) = default;
    ~QnOwnedSequence() override { ReleaseAll(); }

    /// Deletes what was held and copies the pointers, see the copy constructor.
    QnOwnedSequence& operator=(const QnOwnedSequence& other);
    void DeepCopy(const QnDynArrayBase<T*>& other);
    void DeepCopy(const QnArray<T*>& other);

    void Reset() override;
    void DelCur() override;

    // ---- access ----------------------------------------------------------------------------------

    /// The pointer at `i`, null if there is none.
    T* GetPData(long i) const { return this->IsValidIndex(i) ? this->GetAt(i) : nullptr; }
    T* GetCurPData() const { return GetPData(this->GetCur()); }
    T* operator()(long i) const { return GetPData(i); }
    bool IsCurEmpty() const { return GetCurPData() == nullptr; }
    bool IsEmptyData(long i) const { return GetPData(i) == nullptr; }
    /// Number of entries that are not null.
    long GetDataNum() const;

    // ---- filling and removing --------------------------------------------------------------------

    /// Stores into the first null entry, or appends if there is none; answers the index.
    ///
    /// Ownership  Takes `object`.
    long PlaceIn(T* object);
    /// Deletes the object and leaves its entry as null.
    void ReleaseCur();
    void Release(long i);
    void ReleaseAll();
    /// Takes the entry out and answers what it held. The cursor is on the entry before it.
    ///
    /// Ownership  The caller owns the object.
    T* TakeOffCur();
    T* TakeOff(long i);
    T* TakeOffHead();
    T* TakeOffTail();
    /// Deletes the first entry with this very pointer, and the object; answers 1, or 0 if there is none. Cursor out.
    long FindDel(T* object);

    // ---- by value --------------------------------------------------------------------------------

    /// Index of the first object equal to `value` in `first` to `last`, -1 if none.
    long FindData(const T& value, long first = 0, long last = -1) const;
    /// Enqueues the index of each match and answers the length of `hits`.
    long FindData(const T& value, QnQuene<long>& hits, long first = 0, long last = -1) const;
    /// Moves the cursor to the first match; without one it is out and the answer false.
    bool FindDataTo(const T& value, long first = 0, long last = -1);
    /// Deletes every match and answers how many; the cursor is out. `value` may be one of the objects.
    long FindDataDel(const T& value);
    /// Index of the first match, or of a copy made by `new T(value)` and appended.
    long FindDataOrAppend(const T& value);
    void FindDataOrInsertHead(const T& value);

    // ---- sorted sequences, ascending, the null entries anywhere ----------------------------------

    /// As BFind, BFindTo and SortInto of QnDynArrayBase, on the objects.
    long BFindData(const T& value, long first = 0, long last = -1) const;
    bool BFindDataTo(const T& value, long first = 0, long last = -1);
    /// Ownership  Takes `object` if the answer is true.
    /// Fails      False for null, and for an object whose place is taken when `allowDuplicate` is false.
    bool SortInto(T* object, bool allowDuplicate);

    /// Same length, and at each index both null or both filled with equal objects.
    bool operator==(const QnDynArrayBase<T*>& other) const;
    bool operator!=(const QnDynArrayBase<T*>& other) const { return !(*this == other); }

protected:
    static void DeleteEntry(T*& entry);
    long FilledFrom(long i, long last) const;
    long FilledBackFrom(long i, long first) const;
    bool Bisect(const T& value, long first, long last, long& place) const;
    template <class Hits>
    long EnQueneDataMatches(const T& value, Hits& hits, long first, long last) const;
};

#include "containers/impl/QnOwnedSequence_impl.h"  // the bodies
