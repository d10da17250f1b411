// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDList.h"
#include "containers/QnOwnedSequence.h"

/// A doubly linked list of owned pointers, any of which may be null.
///
/// Ownership  Whatever leaves the list by Reset, deleting, shrinking or the destructor is deleted; what is taken off or
///            moved by Conbine is the new owner's. Copying copies the pointers, so that one side must be emptied by
///            TakeOffHead before both die; a list whose copy means more defines it itself.
/// See        QnOwnedSequence for the operations on the objects, QnList for the cursor.
template <class T>
class QUARN_TEMPLATE_API QnPDList : public QnOwnedSequence<T, QnDList<T*>> {
    using Base = QnOwnedSequence<T, QnDList<T*>>;

public:
    explicit QnPDList(long length = 0) : Base(length) {}
    QnPDList(const QnPDList& other) = default;

    QnPDList& operator=(const QnPDList& other) = default;

    using QnDList<T*>::Sort;
    /// Sorts the objects by `operator>` of `T`, stably; the null entries go to the end. The cursor is out afterwards.
    void Sort(bool ascending) override;
    /// The same by `compare`, which sees no null.
    virtual void Sort(int (*compare)(const T&, const T&));
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
void QnPDList<T>::Sort(bool ascending) {
    if constexpr (qn_detail::HasGreater<T>::value) {
        if (ascending) {
            this->SortFilled([](const T* a, const T* b) { return *a > *b; });
        } else {
            this->SortFilled([](const T* a, const T* b) { return *b > *a; });
        }
    } else {
        static_cast<void>(ascending);
    }
}

template <class T>
void QnPDList<T>::Sort(int (*compare)(const T&, const T&)) {
    this->SortFilled([compare](const T* a, const T* b) { return compare(*a, *b) > 0; });
}
