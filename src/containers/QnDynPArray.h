// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "containers/QnDynArray.h"
#include "containers/QnOwnedSequence.h"

/// A growing array of owned pointers, any of which may be null.
///
/// Ownership  Whatever leaves the array by shrinking, deleting, resetting or its destructor is deleted; what is taken
///            off is the caller's. Copies are deep, by `new T(*p)`; null stays null.
/// See        QnOwnedSequence for the operations on the objects, QnDynArray for space and cursor.
template <class T>
class QUARN_TEMPLATE_API QnDynPArray : public QnOwnedSequence<T, QnDynArray<T*>> {
    using Base = QnOwnedSequence<T, QnDynArray<T*>>;
    using Array = QnDynArray<T*>;

public:
    explicit QnDynPArray(long length = 0, long allocUnit = 10) : Base(length, allocUnit) {}
    QnDynPArray(const QnDynPArray& other) : Base(0, other.GetAllocUnit()) { DeepCopy(other); }

    QnDynPArray& operator=(const QnDynPArray& other);
    /// Becomes a copy of `other` with copies of its objects.
    void DeepCopy(const QnDynArrayBase<T*>& other);
    void DeepCopy(const QnArray<T*>& other);

    // ---- operations of the family, in slot order -------------------------------------------------
protected:
    /// New entries are null; the objects of dropped entries are deleted.
    void ReAllocate(long length) override;

public:
    /// With `keep` false all objects are deleted, otherwise those from index `length` on.
    void SetLength(long length, bool keep) override;
    /// ReleaseCur, then the place itself goes.
    void DelCur() override;
    using Array::Sort;
    /// Sorts the objects by `operator>` of `T`. The null entries keep their indexes.
    void Sort(bool ascending) override;

    // ---- operations of owned arrays, in slot order -----------------------------------------------

    /// Deletes the current object and leaves its entry as null.
    virtual void ReleaseCur();
    /// Takes the current entry out and answers what it held; null if the cursor is out.
    ///
    /// Ownership  The caller owns the object.
    virtual T* TakeOffCur();
    /// Sorts the objects by `compare`. The null entries keep their indexes.
    virtual void Sort(int (*compare)(const T&, const T&));

    void Release(long i);
    T* TakeOff(long i);
    T* TakeOffHead();
    T* TakeOffTail();
    /// Moves the null entries behind the filled ones, which keep their order.
    ///
    /// Kept odd  `ascending` makes no difference.
    void SortEx(bool ascending);

private:
    void DeleteFrom(long index);
    template <class SortObjects>
    void SortFilled(SortObjects sortObjects);
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
QnDynPArray<T>& QnDynPArray<T>::operator=(const QnDynPArray& other) {
    DeepCopy(other);
    return *this;
}

template <class T>
void QnDynPArray<T>::DeepCopy(const QnDynArrayBase<T*>& other) {
    if (&other == this) {
        return;
    }
    QnDynPArray::SetLength(other.GetLength(), false);
    T** entry = this->m_pData;
    for (T* const* p = other.GetFirst(); p != nullptr; p = other.GetNext(p)) {
        *entry++ = *p != nullptr ? new T(**p) : nullptr;
    }
    this->MoveOut();
}

template <class T>
void QnDynPArray<T>::DeepCopy(const QnArray<T*>& other) {
    QnDynPArray::SetLength(other.GetLength(), false);
    for (long i = 0; i < other.GetLength(); ++i) {
        this->m_pData[i] = other[i] != nullptr ? new T(*other[i]) : nullptr;
    }
    this->MoveOut();
}

template <class T>
void QnDynPArray<T>::DeleteFrom(long index) {
    for (long i = index < 0 ? 0 : index; i < this->m_nLength; ++i) {
        this->DeleteEntry(this->m_pData[i]);
    }
}

template <class T>
void QnDynPArray<T>::ReAllocate(long length) {
    const long oldLength = this->m_nLength;
    DeleteFrom(length);
    Array::ReAllocate(length);
    for (long i = oldLength; i < this->m_nLength; ++i) {
        this->m_pData[i] = nullptr;
    }
}

template <class T>
void QnDynPArray<T>::SetLength(long length, bool keep) {
    const long oldLength = keep ? this->m_nLength : 0;
    DeleteFrom(keep ? length : 0);
    Array::SetLength(length, keep);
    for (long i = oldLength; i < this->m_nLength; ++i) {
        this->m_pData[i] = nullptr;
    }
}

template <class T>
void QnDynPArray<T>::DelCur() {
    if (!this->IsOut()) {
        ReleaseCur();
        Array::DelCur();
    }
}

template <class T>
void QnDynPArray<T>::ReleaseCur() {
    Base::ReleaseCur();
}

template <class T>
T* QnDynPArray<T>::TakeOffCur() {
    return Base::TakeOffCur();
}

template <class T>
void QnDynPArray<T>::Release(long i) {
    this->MoveTo(i);
    ReleaseCur();
}

template <class T>
T* QnDynPArray<T>::TakeOff(long i) {
    this->MoveTo(i);
    return TakeOffCur();
}

template <class T>
T* QnDynPArray<T>::TakeOffHead() {
    this->MoveToFirst();
    return TakeOffCur();
}

template <class T>
T* QnDynPArray<T>::TakeOffTail() {
    this->MoveToLast();
    return TakeOffCur();
}

/// Hands the filled entries, side by side, to `sortObjects(T** entries, long n)` and puts them back into their places.
template <class T>
template <class SortObjects>
void QnDynPArray<T>::SortFilled(SortObjects sortObjects) {
    QnDynArray<T*> filled;
    filled.SetSpaceSize(this->m_nLength);
    for (long i = 0; i < this->m_nLength; ++i) {
        if (this->m_pData[i] != nullptr) {
            filled.Append(this->m_pData[i]);
        }
    }
    if (filled.IsEmpty()) {
        return;
    }
    sortObjects(&filled[0], filled.GetLength());
    const T* const* next = filled.GetFirst();
    for (long i = 0; i < this->m_nLength; ++i) {
        if (this->m_pData[i] != nullptr) {
            this->m_pData[i] = const_cast<T*>(*next++);
        }
    }
}

template <class T>
void QnDynPArray<T>::Sort(bool ascending) {
    if constexpr (qn_detail::HasGreater<T>::value) {
        SortFilled([ascending](T** entries, long n) {
            if (ascending) {
                qn_detail::RankSort(entries, n, [](const T* a, const T* b) { return *a > *b; });
            } else {
                qn_detail::RankSort(entries, n, [](const T* a, const T* b) { return *b > *a; });
            }
        });
    } else {
        static_cast<void>(ascending);
    }
}

template <class T>
void QnDynPArray<T>::Sort(int (*compare)(const T&, const T&)) {
    SortFilled([compare](T** entries, long n) {
        qn_detail::RankSort(entries, n, [compare](const T* a, const T* b) { return compare(*a, *b) > 0; });
    });
}

template <class T>
void QnDynPArray<T>::SortEx(bool ascending) {
    static_cast<void>(ascending);
    std::stable_partition(this->m_pData, this->m_pData + this->m_nLength, [](const T* p) { return p != nullptr; });
}
