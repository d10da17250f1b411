// SPDX-License-Identifier: Apache-2.0
#pragma once

// QnList_impl.h: bodies of QnList<T>, included by its header only.

#include <algorithm>
#include <cstddef>
#include <memory>

// ---- making ----------------------------------------------------------------------------------------

template <class T>
QnList<T>::QnList(long length) : m_pHead(new Node) {
    m_pTail = m_pCurrent = m_pHead->previous = m_pHead;
    m_pHead->next = m_pHead;
    AppendNodes(length, nullptr, nullptr);
}

template <class T>
QnList<T>::QnList(const QnList& other) : Base(), m_pHead(new Node) {
    m_pTail = m_pCurrent = m_pHead->previous = m_pHead;
    m_pHead->next = m_pHead;
    AppendNodes(other.m_nLength, other.GetFirst(), &other);
}

template <class T>
QnList<T>::~QnList() {
    FreeNodes();
    delete m_pHead;
}

template <class T>
QnList<T>& QnList<T>::operator=(const QnList& other) {
    Base::DeepCopy(other);
    return *this;
}

template <class T>
QnList<T>& QnList<T>::operator=(const QnDynArrayBase<T>& other) {
    Base::DeepCopy(other);
    return *this;
}

/// Appends without a virtual call, for constructors: copies of `source` from `first` on, or default elements.
template <class T>
void QnList<T>::AppendNodes(long count, const T* first, const Base* source) {
    for (long i = 0; i < count; ++i) {
        Node* node = first != nullptr ? new Node(*first) : new Node;
        LinkBefore(node, m_pHead);
        first = source != nullptr ? source->GetNext(first) : nullptr;
    }
    m_pTail = m_pHead->previous;
    m_nLength += count > 0 ? count : 0;
}

template <class T>
void QnList<T>::FreeNodes() {
    Node* node = Next(m_pHead);
    while (node != m_pHead) {
        Node* following = Next(node);
        delete node;
        node = following;
    }
}

// ---- nodes -----------------------------------------------------------------------------------------

template <class T>
QnDListNode<T>* QnList<T>::NodeOf(const T* element) {
    return reinterpret_cast<Node*>(const_cast<T*>(element));
}

template <class T>
void QnList<T>::LinkBefore(Node* node, Node* place) {
    Node* before = place->previous;
    node->previous = before;
    node->next = place;
    before->next = node;
    place->previous = node;
}

template <class T>
void QnList<T>::Unlink(Node* node) {
    node->previous->next = node->next;
    Next(node)->previous = node->previous;
}

template <class T>
void QnList<T>::GoOut() {
    m_pCurrent = m_pHead;
    m_nCur = -1;
}

/// The node at a valid index, by the shortest way from a node whose index is known.
template <class T>
QnDListNode<T>* QnList<T>::NodeAt(long index) const {
    Node* node = Next(m_pHead);
    long at = 0;
    long distance = index;
    const auto startAtIfNearer = [&](Node* known, long knownIndex) {
        const long steps = knownIndex > index ? knownIndex - index : index - knownIndex;
        if (steps < distance) {
            node = known;
            at = knownIndex;
            distance = steps;
        }
    };
    startAtIfNearer(m_pTail, m_nLength - 1);
    if (m_nCur >= 0) {
        startAtIfNearer(m_pCurrent, m_nCur);
    }
    if (m_nHint >= 0) {
        startAtIfNearer(m_pHint, m_nHint);
    }
    for (; at < index; ++at) {
        node = Next(node);
    }
    for (; at > index; --at) {
        node = node->previous;
    }
    m_pHint = node;
    m_nHint = index;
    return node;
}

// ---- operations of the family ----------------------------------------------------------------------

template <class T>
void QnList<T>::ReAllocate(long length) {
    Node* const current = m_pCurrent;
    const long cur = m_nCur;
    while (m_nLength < length) {
        Append(T());
    }
    m_pCurrent = current;
    m_nCur = cur;
}

template <class T>
void QnList<T>::SetLength(long length, bool keep) {
    static_cast<void>(keep);  // lists always keep
    while (m_nLength > length && m_nLength > 0) {
        this->DelTail();
    }
    ReAllocate(length);
}

template <class T>
void QnList<T>::Reset() {
    FreeNodes();
    m_pHead->next = m_pHead->previous = m_pTail = m_pHead;
    m_nLength = 0;
    GoOut();
    DropHint();
}

template <class T>
void QnList<T>::MoveToFirst() {
    m_pCurrent = Next(m_pHead);
    m_nCur = m_nLength > 0 ? 0 : -1;
}

template <class T>
void QnList<T>::MoveToNext() {
    m_pCurrent = Next(m_pCurrent);
    m_nCur = m_pCurrent == m_pHead ? -1 : m_nCur + 1;
}

template <class T>
void QnList<T>::MoveToPre() {
    m_pCurrent = m_pCurrent->previous;
    m_nCur = m_nCur < 0 ? m_nLength - 1 : m_nCur - 1;
}

template <class T>
void QnList<T>::MoveToLast() {
    m_pCurrent = m_pTail;
    m_nCur = m_nLength - 1;
}

template <class T>
void QnList<T>::MoveTo(long index) {
    if (this->IsValidIndex(index)) {
        m_pCurrent = NodeAt(index);
        m_nCur = index;
    } else {
        GoOut();
    }
}

template <class T>
const T* QnList<T>::GetNext(const T* element) const {
    return element != nullptr ? Element(Next(NodeOf(element))) : nullptr;
}

template <class T>
const T* QnList<T>::GetPre(const T* element) const {
    return element != nullptr ? Element(NodeOf(element)->previous) : nullptr;
}

template <class T>
const T& QnList<T>::GetAt(long index) const {
    return this->IsValidIndex(index) ? NodeAt(index)->data : m_pHead->data;
}

template <class T>
void QnList<T>::InsertCur(const T& value) {
    MoveToPre();
    InsertAfterCur(value);
}

template <class T>
void QnList<T>::Insert(long index, const T& value) {
    MoveTo(index - 1);
    InsertAfterCur(value);
}

template <class T>
void QnList<T>::InsertHead(const T& value) {
    MoveTo(-1);
    InsertAfterCur(value);
}

template <class T>
long QnList<T>::Append(const T& value) {
    MoveToLast();
    InsertAfterCur(value);
    return m_nLength - 1;
}

template <class T>
void QnList<T>::DelCur() {
    if (m_pCurrent == m_pHead) {
        return;
    }
    Node* deleted = m_pCurrent;
    if (m_nHint >= m_nCur) {
        DropHint();
    }
    m_pCurrent = deleted->previous;
    --m_nCur;
    Unlink(deleted);
    m_pTail = m_pHead->previous;
    --m_nLength;
    delete deleted;
}

// ---- operations of lists ---------------------------------------------------------------------------

template <class T>
void QnList<T>::InsertAfterCur(const T& value) {
    Node* node = new Node(value);
    LinkBefore(node, Next(m_pCurrent));
    m_pTail = m_pHead->previous;
    m_pCurrent = node;
    ++m_nLength;
    ++m_nCur;
    if (m_nHint >= m_nCur) {
        DropHint();
    }
}

template <class T>
void QnList<T>::DetachAfterCur() {
    m_pTail = m_pCurrent;
    m_pTail->next = m_pHead;
    m_pHead->previous = m_pTail;
    m_nLength = m_nCur + 1;
    DropHint();
}

template <class T>
long QnList<T>::Conbine(QnList<T>& other, long first) {
    if (&other == this || !other.IsValidIndex(first)) {
        return m_nLength;
    }
    other.MoveTo(first - 1);
    // Read before the cut: the other list's own form of it may keep books on its nodes.
    Node* chainFirst = Next(other.m_pCurrent);
    Node* chainLast = other.m_pTail;
    const long count = other.m_nLength - first;
    other.DetachAfterCur();

    m_pTail->next = chainFirst;
    chainFirst->previous = m_pTail;
    chainLast->next = m_pHead;
    m_pHead->previous = m_pTail = chainLast;
    m_nLength += count;
    return m_nLength;
}

template <class T>
void QnList<T>::ReverseList() {
    if (m_nLength < 2) {
        return;
    }
    Node* node = m_pHead;
    do {
        Node* following = Next(node);
        node->next = node->previous;
        node->previous = following;
        node = following;
    } while (node != m_pHead);
    m_pTail = m_pHead->previous;

    const long cur = m_nCur;
    DropHint();
    GoOut();
    MoveTo(cur);
}

template <class T>
void QnList<T>::Rotate(long from, long to) {
    if (from == to || m_nLength < 2) {
        return;
    }
    const long shift = (from - to) % m_nLength;
    Node* newFirst = NodeAt(shift < 0 ? shift + m_nLength : shift);
    Unlink(m_pHead);
    LinkBefore(m_pHead, newFirst);
    m_pTail = m_pHead->previous;
    m_pCurrent = newFirst;
    m_nCur = 0;
    DropHint();
}

template <class T>
void QnList<T>::Detach() {
    MoveTo(-1);
    DetachAfterCur();
}

template <class T>
void QnList<T>::DetachAfter(long index) {
    MoveTo(index);
    DetachAfterCur();
}

template <class T>
void QnList<T>::SplitAt(long index, QnList<T>& rest) {
    MoveTo(index);
    SplitAtCur(rest);
}

template <class T>
void QnList<T>::SplitAtCur(QnList<T>& rest) {
    rest.Conbine(*this, m_nCur);
}

// ---- sorting: the nodes are relinked, elements are neither copied nor deleted ----------------------------

template <class T>
void QnList<T>::Sort(int (*compare)(const T&, const T&)) {
    SortForward([compare](const T& a, const T& b) { return compare(a, b) > 0; });
}

template <class T>
void QnList<T>::Sort(bool ascending) {
    if constexpr (qn_detail::HasGreater<T>::value) {
        if (SortExactly(ascending)) {
            return;
        }
        if (ascending) {
            SortForward([](const T& a, const T& b) { return a > b; });
        } else {
            SortForward([](const T& a, const T& b) { return b > a; });
        }
    } else {
        static_cast<void>(ascending);
    }
}

/// Insertion sort that looks for the place of each element from the front: before the first that must come after it.
template <class T>
template <class After>
void QnList<T>::SortForward(After after) {
    if (m_nLength < 2) {
        return;
    }
    Node* element = Next(Next(m_pHead));
    while (element != m_pHead) {
        Node* const following = Next(element);
        Node* place = Next(m_pHead);
        while (place != element && !after(place->data, element->data)) {
            place = Next(place);
        }
        if (place != element) {
            Unlink(element);
            LinkBefore(element, place);
        }
        element = following;
    }
    EndOfSort();
}

/// Insertion sort that goes backward from each element past those that must come after it: linear on sorted input.
template <class T>
template <class After>
void QnList<T>::SortBackward(After after) {
    if (m_nLength < 2) {
        return;
    }
    Node* element = Next(Next(m_pHead));
    while (element != m_pHead) {
        Node* const following = Next(element);
        Node* place = element;
        while (place->previous != m_pHead && after(place->previous->data, element->data)) {
            place = place->previous;
        }
        if (place != element) {
            Unlink(element);
            LinkBefore(element, place);
        }
        element = following;
    }
    EndOfSort();
}

/// Sorts types whose every stable sort gives the same result. False, and nothing done, for others and for NaNs.
template <class T>
bool QnList<T>::SortExactly(bool ascending) {
    if constexpr (qn_detail::IsExactlyOrdered<T>) {
        struct Entry {
            T key;
            Node* node;
        };
        const auto entries = std::make_unique<Entry[]>(static_cast<std::size_t>(m_nLength));
        Entry* end = entries.get();
        for (Node* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
            if (!qn_detail::IsOrderable(node->data)) {
                return false;
            }
            *end++ = Entry{node->data, node};
        }
        if (ascending) {
            std::stable_sort(entries.get(), end, [](const Entry& a, const Entry& b) { return b.key > a.key; });
        } else {
            std::stable_sort(entries.get(), end, [](const Entry& a, const Entry& b) { return a.key > b.key; });
        }
        m_pHead->next = m_pHead->previous = m_pHead;
        for (const Entry* entry = entries.get(); entry != end; ++entry) {
            LinkBefore(entry->node, m_pHead);
        }
        if (m_nLength > 1) {
            EndOfSort();
        }
        return true;
    } else {
        static_cast<void>(ascending);
        return false;
    }
}

template <class T>
void QnList<T>::EndOfSort() {
    m_pTail = m_pHead->previous;
    GoOut();
    DropHint();
}
