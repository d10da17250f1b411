// SPDX-License-Identifier: Apache-2.0
#include "spatial/detail/NodelessList.h"

namespace qn_detail {

void NodelessList::FinishNodes() {
    const long cur = m_nCur;
    m_pTail = m_pHead->previous;
    DropHint();
    GoOut();  // the current node is none to look from
    Base::MoveTo(cur);
}

void NodelessList::ReAllocate(long length) {
    HaveNodes();
    Base::ReAllocate(length);
}

void NodelessList::SetLength(long length, bool keep) {
    HaveNodes();
    Base::SetLength(length, keep);
}

void NodelessList::Reset() {
    HaveNodes();
    Base::Reset();
}

QnGeExtent2d*& NodelessList::GetCurData() {
    HaveNodes();
    return Base::GetCurData();
}

void NodelessList::SetCurData(Box* const& value) {
    HaveNodes();
    Base::SetCurData(value);
}

void NodelessList::MoveToFirst() {
    HaveNodes();
    Base::MoveToFirst();
}

void NodelessList::MoveToNext() {
    HaveNodes();
    Base::MoveToNext();
}

void NodelessList::MoveToPre() {
    HaveNodes();
    Base::MoveToPre();
}

void NodelessList::MoveToLast() {
    HaveNodes();
    Base::MoveToLast();
}

void NodelessList::MoveTo(long index) {
    HaveNodes();
    Base::MoveTo(index);
}

QnGeExtent2d* const* NodelessList::GetFirst() const {
    HaveNodes();
    return Base::GetFirst();
}

QnGeExtent2d* const* NodelessList::GetNext(Box* const* element) const {
    HaveNodes();
    return Base::GetNext(element);
}

QnGeExtent2d* const* NodelessList::GetPre(Box* const* element) const {
    HaveNodes();
    return Base::GetPre(element);
}

QnGeExtent2d* const* NodelessList::GetLast() const {
    HaveNodes();
    return Base::GetLast();
}

QnGeExtent2d* const& NodelessList::GetAt(long index) const {
    HaveNodes();
    return Base::GetAt(index);
}

QnGeExtent2d*& NodelessList::operator[](long index) {
    HaveNodes();
    return Base::operator[](index);
}

void NodelessList::DelCur() {
    HaveNodes();
    Base::DelCur();
}

void NodelessList::Sort(int (*compare)(Box* const&, Box* const&)) {
    HaveNodes();
    Base::Sort(compare);
}

void NodelessList::Sort(bool ascending) {
    HaveNodes();
    Base::Sort(ascending);
}

bool NodelessList::Move(long from, long to) {
    HaveNodes();
    return Base::Move(from, to);
}

void NodelessList::InsertAfterCur(Box* const& value) {
    HaveNodes();
    Base::InsertAfterCur(value);
}

void NodelessList::DetachAfterCur() {
    HaveNodes();
    Base::DetachAfterCur();
}

long NodelessList::Conbine(Base& other, long first) {
    HaveNodes();
    return Base::Conbine(other, first);
}

void NodelessList::ReverseList() {
    HaveNodes();
    Base::ReverseList();
}

void NodelessList::Rotate(long from, long to) {
    HaveNodes();
    Base::Rotate(from, to);
}

}  // namespace qn_detail
