// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDList.h"
#include "containers/QnDynArray.h"

/// A doubly linked list with an index of every n-th node, for sorted sequences that are searched by bisection.
///
/// Invariant  Index entry k is the node at position k * group size; there is one for each such position.
/// Ownership  As QnDList. A copy has the group size of its source, and so has the target of an assignment.
/// Cost       Index operations walk at most a group. Inserting and deleting correct each later index entry by a step.
template <class T>
class QUARN_TEMPLATE_API QnXList : public QnDList<T> {
    using Base = QnDList<T>;

public:
    /// `groupSize` nodes share an index entry (below 1 counts as 1); the index grows by `indexUnit` entries.
    explicit QnXList(long length = 0, long groupSize = 25, long indexUnit = 100);
    QnXList(const QnXList& other);

    QnXList& operator=(const QnXList& other);
    QnXList& operator=(const QnDynArrayBase<T>& other);

    // ---- operations of the family, in slot order -------------------------------------------------
    void Reset() override;
    void MoveTo(long index) override;
    const T& GetAt(long index) const override;
    void DelCur() override;
    void Sort(int (*compare)(const T&, const T&)) override;
    void Sort(bool ascending) override;

    // ---- operations of lists, in slot order ------------------------------------------------------
    void InsertAfterCur(const T& value) override;
    void DetachAfterCur() override;
    long Conbine(QnList<T>& other, long first) override;
    void ReverseList() override;
    void Rotate(long from, long to) override;

protected:
    using Base::m_nCur;
    using Base::m_nLength;
    using typename QnList<T>::Node;

    QnDynArray<Node*> m_index;
    long m_nGroup;

    /// Makes the index anew from entry `firstEntry` on, without touching the cursor.
    void UpdateGroup(long firstEntry);

private:
    void CutIndex(long entries);
    long FirstEntryFrom(long position) const { return (position + m_nGroup - 1) / m_nGroup; }
    void AimAt(long index) const;
};

// ---- bodies ----------------------------------------------------------------------------------------

template <class T>
QnXList<T>::QnXList(long length, long groupSize, long indexUnit)
    : Base(length), m_index(0, indexUnit), m_nGroup(groupSize < 1 ? 1 : groupSize) {
    UpdateGroup(0);
}

template <class T>
QnXList<T>::QnXList(const QnXList& other)
    : Base(other), m_index(0, other.m_index.GetAllocUnit()), m_nGroup(other.m_nGroup) {
    UpdateGroup(0);
}

template <class T>
QnXList<T>& QnXList<T>::operator=(const QnXList& other) {
    if (&other != this) {
        this->Reset();
        m_nGroup = other.m_nGroup;
        this->DeepCopy(other);
    }
    return *this;
}

template <class T>
QnXList<T>& QnXList<T>::operator=(const QnDynArrayBase<T>& other) {
    this->DeepCopy(other);
    return *this;
}

template <class T>
void QnXList<T>::Reset() {
    m_index.Reset();
    Base::Reset();
}

/// Takes the nearest group start as the place from where the list walks, if it is nearer than what the list knows.
template <class T>
void QnXList<T>::AimAt(long index) const {
    const long entry = index / m_nGroup;
    const long start = entry * m_nGroup;
    const long known = this->m_nHint;
    const bool isNearer = known < 0 || (known > index ? known - index : index - known) > index - start;
    if (isNearer && m_index.IsValidIndex(entry)) {
        this->m_pHint = m_index.GetAt(entry);
        this->m_nHint = start;
    }
}

template <class T>
void QnXList<T>::MoveTo(long index) {
    if (this->IsValidIndex(index)) {
        AimAt(index);
    }
    Base::MoveTo(index);
}

template <class T>
const T& QnXList<T>::GetAt(long index) const {
    if (this->IsValidIndex(index)) {
        AimAt(index);
    }
    return Base::GetAt(index);
}

template <class T>
void QnXList<T>::DelCur() {
    if (this->IsOut()) {
        return;
    }
    if (m_nLength - 1 == m_index.GetMaxIndex() * m_nGroup) {  // the last group is one element
        m_index.DelTail();
    }
    for (m_index.MoveTo(FirstEntryFrom(m_nCur)); !m_index.IsOut(); m_index.MoveToNext()) {
        m_index.SetCurData(this->Next(m_index.GetCurData()));
    }
    Base::DelCur();
}

template <class T>
void QnXList<T>::InsertAfterCur(const T& value) {
    Base::InsertAfterCur(value);
    if (this->m_pCurrent != this->m_pTail) {
        for (m_index.MoveTo(FirstEntryFrom(m_nCur)); !m_index.IsOut(); m_index.MoveToNext()) {
            m_index.SetCurData(m_index.GetCurData()->previous);
        }
    }
    if (m_nLength - 1 == m_index.GetLength() * m_nGroup) {  // the groups were full
        m_index.Append(this->m_pTail);
    }
}

template <class T>
void QnXList<T>::DetachAfterCur() {
    Base::DetachAfterCur();
    CutIndex(FirstEntryFrom(m_nLength));
}

template <class T>
long QnXList<T>::Conbine(QnList<T>& other, long first) {
    Base::Conbine(other, first);
    UpdateGroup(m_index.GetLength());
    return m_nLength;
}

template <class T>
void QnXList<T>::ReverseList() {
    m_index.Reset();
    Base::ReverseList();
    UpdateGroup(0);
}

template <class T>
void QnXList<T>::Rotate(long from, long to) {
    m_index.Reset();
    Base::Rotate(from, to);
    UpdateGroup(0);
}

template <class T>
void QnXList<T>::Sort(int (*compare)(const T&, const T&)) {
    Base::Sort(compare);
    UpdateGroup(0);
}

template <class T>
void QnXList<T>::Sort(bool ascending) {
    Base::Sort(ascending);
    UpdateGroup(0);
}

template <class T>
void QnXList<T>::UpdateGroup(long firstEntry) {
    CutIndex(firstEntry);
    long position = m_index.GetLength() * m_nGroup;
    Node* node = this->Next(this->m_pHead);
    long at = 0;
    if (!m_index.IsEmpty()) {
        node = *m_index.GetLast();
        at = position - m_nGroup;
    }
    for (; position < m_nLength; position += m_nGroup) {
        for (; at < position; ++at) {
            node = this->Next(node);
        }
        m_index.Append(node);
    }
}

template <class T>
void QnXList<T>::CutIndex(long entries) {
    if (entries < m_index.GetLength()) {
        m_index.DecreaseSize(m_index.GetLength() - entries);
    }
}
