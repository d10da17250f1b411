// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

/// A list of boxes that a tree keeps without list nodes, in a form of its own, until somebody else works on it: every
/// operation that could touch a node has the nodes made first.
///
/// Invariant  Length and cursor index are always true; nodes and the links of the sentinel only once they are made.
class NodelessList : public QnList<QnGeExtent2d*> {
    using Base = QnList<QnGeExtent2d*>;
    using Box = QnGeExtent2d;

public:
    NodelessList() = default;
    NodelessList(const NodelessList&) = delete;
    NodelessList& operator=(const NodelessList&) = delete;

    // ---- operations of lists: all that touch nodes ------------------------------------------------
protected:
    void ReAllocate(long length) override;

public:
    void SetLength(long length, bool keep) override;
    void Reset() override;
    Box*& GetCurData() override;
    void SetCurData(Box* const& value) override;
    void MoveToFirst() override;
    void MoveToNext() override;
    void MoveToPre() override;
    void MoveToLast() override;
    void MoveTo(long index) override;
    Box* const* GetFirst() const override;
    Box* const* GetNext(Box* const* element) const override;
    Box* const* GetPre(Box* const* element) const override;
    Box* const* GetLast() const override;
    Box* const& GetAt(long index) const override;
    Box*& operator[](long index) override;
    void DelCur() override;
    void Sort(int (*compare)(Box* const&, Box* const&)) override;
    void Sort(bool ascending) override;
    bool Move(long from, long to) override;
    void InsertAfterCur(Box* const& value) override;
    void DetachAfterCur() override;
    long Conbine(Base& other, long first) override;
    void ReverseList() override;
    void Rotate(long from, long to) override;

    using Base::operator[];

protected:
    /// Makes the nodes, if they are not made: LinkAtEnd for each element, then FinishNodes.
    virtual void MakeNodes() = 0;

    void LinkAtEnd(Box* box) { LinkBefore(new Node(box), m_pHead); }
    /// Puts the cursor and what else goes by nodes where the cursor index says.
    void FinishNodes();

private:
    void HaveNodes() const { const_cast<NodelessList*>(this)->MakeNodes(); }
};

}  // namespace qn_detail
