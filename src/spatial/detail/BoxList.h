// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <typeinfo>

#include "containers/QnList.h"
#include "spatial/detail/BoxIndex.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

/// The list that a quad tree makes for a node's boxes: a plain list to everyone else, which keeps a BoxIndex beside its
/// elements once there are some.
///
/// Whoever changes the list by its public operations makes the index stale, and the next search builds it anew. Boxes
/// that the tree takes out are found by it; what it does not find is searched for in the list.
///
/// Invariant  An index holds the nodes of the list in their order.
class BoxList final : public QnList<QnGeExtent2d*> {
    using Base = QnList<QnGeExtent2d*>;
    using Box = QnGeExtent2d;

public:
    BoxList() = default;
    ~BoxList() override = default;
    BoxList(const BoxList&) = delete;
    BoxList& operator=(const BoxList&) = delete;

    /// The list as a BoxList; null if a caller made it.
    static BoxList* From(Base* list) { return IsBoxList(list) ? static_cast<BoxList*>(list) : nullptr; }
    static const BoxList* From(const Base* list) {
        return IsBoxList(list) ? static_cast<const BoxList*>(list) : nullptr;
    }

    // ---- for the tree: `range` is that of the node -----------------------------------------------

    /// Appends a box.
    void Add(Box* box, const Box& range);
    /// Takes the element out that is the same as `box` and answers it; null if there is none.
    Box* Take(const Box* box);
    /// The boxes that hold a point, or meet a box, in order.
    void Find(double x, double y, const Box& range, BoxHits& hits) const;
    void Find(const Box& box, const Box& range, BoxHits& hits) const;

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* list, std::size_t bytes) { GivePiece(list, bytes); }

    // ---- operations of lists: all that write ------------------------------------------------------
protected:
    void ReAllocate(long length) override;

public:
    void SetLength(long length, bool keep) override;
    void Reset() override;
    Box*& GetCurData() override;
    void SetCurData(Box* const& value) override;
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

private:
    static constexpr long SHORT = 8;       ///< the longest list without an index
    static constexpr long VERY_SHORT = 5;  ///< the longest that gives up the one it has

    static bool IsBoxList(const Base* list) { return &typeid(*list) == &typeid(BoxList); }
    void MakeStale() { m_index.reset(); }
    const BoxIndex* GetIndex(const Box& range) const;
    BoxNode* FindNode(const Box* box) const;
    Box* Remove(BoxNode* node);

    mutable std::unique_ptr<BoxIndex> m_index;
};

}  // namespace qn_detail
