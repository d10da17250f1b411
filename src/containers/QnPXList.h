// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnOwnedSequence.h"
#include "containers/QnXList.h"

/// A QnXList of owned pointers: a sorted sequence of objects that is searched by bisection.
///
/// Ownership  As QnPDList.
/// See        QnOwnedSequence for the operations on the objects, QnXList for the index.
template <class T>
class QUARN_TEMPLATE_API QnPXList : public QnOwnedSequence<T, QnXList<T*>> {
    using Base = QnOwnedSequence<T, QnXList<T*>>;

public:
    explicit QnPXList(long length = 0, long groupSize = 25, long indexUnit = 100)
        : Base(length, groupSize, indexUnit) {}
    QnPXList(const QnPXList& other) = default;

    QnPXList& operator=(const QnPXList& other) = default;

    using QnXList<T*>::Sort;
    /// Sorts the objects by `operator>` of `T`, stably; the null entries go to the end. The cursor is out afterwards.
    void Sort(bool ascending) override;
    /// The same by `compare`, which sees no null.
    virtual void Sort(int (*compare)(const T&, const T&));
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
void QnPXList<T>::Sort(bool ascending) {
    if constexpr (qn_detail::HasGreater<T>::value) {
        if (ascending) {
            this->SortFilled([](const T* a, const T* b) { return *a > *b; });
        } else {
            this->SortFilled([](const T* a, const T* b) { return *b > *a; });
        }
        this->UpdateGroup(0);
    } else {
        static_cast<void>(ascending);
    }
}

template <class T>
void QnPXList<T>::Sort(int (*compare)(const T&, const T&)) {
    this->SortFilled([compare](const T* a, const T* b) { return compare(*a, *b) > 0; });
    this->UpdateGroup(0);
}
