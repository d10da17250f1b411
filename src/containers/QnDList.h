// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"

/// The doubly linked list, the one that the library uses. It differs from QnList in how it sorts.
///
/// Ownership  Owns its nodes; pointers as elements are not owned (QnPDList owns them).
/// See        QnList for the cursor, the costs and the failures.
template <class T>
class QUARN_TEMPLATE_API QnDList : public QnList<T> {
    using Base = QnList<T>;

public:
    explicit QnDList(long length = 0) : Base(length) {}
    QnDList(const QnDList& other) = default;
    /// A list of the elements of any sequence.
    explicit QnDList(const QnDynArrayBase<T>& other) : Base() {
        this->AppendNodes(other.GetLength(), other.GetFirst(), &other);
    }

    QnDList& operator=(const QnDList& other) = default;
    QnDList& operator=(const QnDynArrayBase<T>& other);

    /// Stable insertion sort from the back; the cursor is out afterwards. Each element goes back past its predecessors
    /// as long as they must come after it.
    ///
    /// Cost  Linear on sorted input, quadratic at worst; Sort(bool) of numbers and pointers n log n.
    void Sort(int (*compare)(const T&, const T&)) override;
    void Sort(bool ascending) override;

protected:
    using typename QnList<T>::Node;

    template <class After>
    void SortFilled(After after);
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
QnDList<T>& QnDList<T>::operator=(const QnDynArrayBase<T>& other) {
    this->DeepCopy(other);
    return *this;
}

template <class T>
void QnDList<T>::Sort(int (*compare)(const T&, const T&)) {
    this->SortBackward([compare](const T& a, const T& b) { return compare(a, b) > 0; });
}

template <class T>
void QnDList<T>::Sort(bool ascending) {
    if constexpr (qn_detail::HasGreater<T>::value) {
        if (this->SortExactly(ascending)) {
            return;
        }
        if (ascending) {
            this->SortBackward([](const T& a, const T& b) { return a > b; });
        } else {
            this->SortBackward([](const T& a, const T& b) { return b > a; });
        }
    } else {
        static_cast<void>(ascending);
    }
}

/// For lists of pointers: the null entries go to the end, the others sort by `after`, which sees no null.
template <class T>
template <class After>
void QnDList<T>::SortFilled(After after) {
    if (this->m_nLength < 2) {
        return;
    }
    QnDList<T> empty;
    Node* node = this->Next(this->m_pHead);
    while (node != this->m_pHead) {
        Node* const following = this->Next(node);
        if (node->data == nullptr) {
            this->Unlink(node);
            this->LinkBefore(node, empty.m_pHead);
        }
        node = following;
    }
    this->SortBackward(after);
    for (node = this->Next(empty.m_pHead); node != empty.m_pHead; node = this->Next(empty.m_pHead)) {
        this->Unlink(node);
        this->LinkBefore(node, this->m_pHead);
    }
    this->EndOfSort();
}
