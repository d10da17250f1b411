// SPDX-License-Identifier: Apache-2.0
#include "spatial/detail/BoxList.h"

#include "spatial/detail/BoxOrder.h"
#include "spatial/detail/BoxRow.h"

namespace qn_detail {

// ---- for the tree ----------------------------------------------------------------------------------

void BoxList::Add(Box* box, const Box& range) {
    auto* const node = new BoxNode(box);
    LinkBefore(node, m_pHead);
    m_pTail = node;
    ++m_nLength;
    m_pCurrent = node;
    m_nCur = m_nLength - 1;
    if (m_index == nullptr || !m_index->Add(node)) {
        m_index.reset();
        static_cast<void>(GetIndex(range));
    }
}

QnGeExtent2d* BoxList::Take(const Box* box) {
    BoxNode* node = m_index != nullptr ? m_index->Take(box) : nullptr;
    if (node == nullptr) {
        node = FindNode(box);
        if (node == nullptr) {
            return nullptr;
        }
        MakeStale();  // the index, if there is one, holds the node at other coordinates
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

/// Takes a node out of the list that is in the index no more.
QnGeExtent2d* BoxList::Remove(BoxNode* node) {
    Box* const box = node->data;
    Unlink(node);
    delete node;
    m_pTail = m_pHead->previous;
    --m_nLength;
    GoOut();
    DropHint();
    if (m_nLength <= VERY_SHORT) {
        m_index.reset();
    }
    return box;
}

/// The index if the list is long enough for one.
const BoxIndex* BoxList::GetIndex(const Box& range) const {
    if (m_index == nullptr && m_nLength > SHORT) {
        if (m_nLength > BoxRow::MOST) {
            m_index = std::make_unique<BoxOrder>(range);
        } else {
            m_index = std::make_unique<BoxRow>(range);
        }
        for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
            m_index->Add(node);
        }
    }
    return m_index.get();
}

void BoxList::Find(double x, double y, const Box& range, BoxHits& hits) const {
    const BoxIndex* const index = GetIndex(range);
    if (index != nullptr) {
        index->Find(x, y, hits);
        return;
    }
    for (const BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (node->data->IsInclude(x, y)) {
            hits.Add(0, node->data);
        }
    }
}

void BoxList::Find(const Box& box, const Box& range, BoxHits& hits) const {
    const BoxIndex* const index = GetIndex(range);
    if (index != nullptr) {
        index->Find(box, hits);
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
