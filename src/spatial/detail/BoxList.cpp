// SPDX-License-Identifier: Apache-2.0
#include "spatial/detail/BoxList.h"

namespace qn_detail {

// ---- for the tree ----------------------------------------------------------------------------------

BoxNode* BoxList::Add(Box* box, double centreX, double centreY) {
    auto* const node = new BoxNode(box);
    LinkBefore(node, m_pHead);
    m_pTail = node;
    ++m_nLength;
    m_pCurrent = node;
    m_nCur = m_nLength - 1;
    if (m_order != nullptr && m_order->HasRoom()) {
        m_order->Add(node);
    } else {
        m_order.reset();
        static_cast<void>(GetOrder(centreX, centreY));
    }
    return node;
}

QnGeExtent2d* BoxList::Take(const Box* box) {
    BoxNode* node = m_order != nullptr ? m_order->Take(box) : nullptr;
    if (node == nullptr) {
        node = FindNode(box);
        if (node == nullptr) {
            return nullptr;
        }
        MakeStale();  // the order, if there is one, holds the node at other coordinates
    }
    return Remove(node);
}

/// The node of the very object; where there is none, of the first that says it is the same.
BoxNode* BoxList::FindNode(const Box* box) const {
    for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (node->data == box) {
            return node;
        }
    }
    for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (node->data->IsSameWith(box)) {
            return node;
        }
    }
    return nullptr;
}

/// Takes a node out of the list that is in the order no more.
QnGeExtent2d* BoxList::Remove(BoxNode* node) {
    Box* const box = node->data;
    Unlink(node);
    delete node;
    m_pTail = m_pHead->previous;
    --m_nLength;
    GoOut();
    DropHint();
    if (m_nLength <= VERY_SHORT) {
        m_order.reset();
    }
    return box;
}

/// The order if the list is long enough for one.
const BoxOrder* BoxList::GetOrder(double centreX, double centreY) const {
    if (m_order == nullptr && m_nLength > SHORT) {
        m_order = std::make_unique<BoxOrder>(centreX, centreY);
        for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
            m_order->Add(node);
        }
    }
    return m_order.get();
}

void BoxList::Find(double x, double y, double centreX, double centreY, BoxHits& hits) const {
    const BoxOrder* const order = GetOrder(centreX, centreY);
    if (order != nullptr) {
        order->Find(x, y, hits);
        return;
    }
    for (const BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (node->data->IsInclude(x, y)) {
            hits.Add(0, node->data);
        }
    }
}

void BoxList::Find(const Box& box, double centreX, double centreY, BoxHits& hits) const {
    const BoxOrder* const order = GetOrder(centreX, centreY);
    if (order != nullptr && !order->IsAllIn(box)) {
        order->Find(box, hits);
        return;
    }
    for (const BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (node->data->IsInsersectWith(box)) {
            hits.Add(0, node->data);
        }
    }
}

// ---- operations of lists ---------------------------------------------------------------------------

void BoxList::ReAllocate(long length) {
    MakeStale();
    Base::ReAllocate(length);
}

void BoxList::SetLength(long length, bool keep) {
    MakeStale();
    Base::SetLength(length, keep);
}

void BoxList::Reset() {
    MakeStale();
    Base::Reset();
}

QnGeExtent2d*& BoxList::GetCurData() {
    MakeStale();  // the caller may write
    return Base::GetCurData();
}

void BoxList::SetCurData(Box* const& value) {
    MakeStale();
    Base::SetCurData(value);
}

QnGeExtent2d*& BoxList::operator[](long index) {
    MakeStale();  // the caller may write
    return Base::operator[](index);
}

void BoxList::DelCur() {
    MakeStale();
    Base::DelCur();
}

void BoxList::Sort(int (*compare)(Box* const&, Box* const&)) {
    MakeStale();
    Base::Sort(compare);
}

void BoxList::Sort(bool ascending) {
    MakeStale();
    Base::Sort(ascending);
}

bool BoxList::Move(long from, long to) {
    MakeStale();
    return Base::Move(from, to);
}

void BoxList::InsertAfterCur(Box* const& value) {
    MakeStale();
    Base::InsertAfterCur(value);
}

void BoxList::DetachAfterCur() {
    MakeStale();
    Base::DetachAfterCur();
}

long BoxList::Conbine(Base& other, long first) {
    MakeStale();
    return Base::Conbine(other, first);
}

void BoxList::ReverseList() {
    MakeStale();
    Base::ReverseList();
}

void BoxList::Rotate(long from, long to) {
    MakeStale();
    Base::Rotate(from, to);
}

}  // namespace qn_detail
