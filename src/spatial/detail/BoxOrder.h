// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

#include "containers/QnList.h"
#include "spatial/detail/FoundBoxes.h"
#include "spatial/detail/GridBox.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

using BoxNode = QnDListNode<QnGeExtent2d*>;

/// The boxes of a tree node's long list by their place along the node's centre lines: it finds those at a point or a
/// box, and the list node of a box, without going through the list.
///
/// Ownership  List nodes and boxes are looked at.
/// See        BoxOrder.cpp for how it works
class BoxOrder {
public:
    /// For boxes of a node with this range.
    explicit BoxOrder(const QnGeExtent2d& range);
    ~BoxOrder();

    /// Enters the node that has become the last of the list. False and nothing done if there were too many.
    bool Add(BoxNode* node);

    /// Takes the first node with `box` out and answers it; null if there is none by the coordinates that `box` has.
    BoxNode* Take(const QnGeExtent2d* box);

    /// Appends the boxes that hold a point, or meet a box, in the order of the list.
    void Find(double x, double y, FoundBoxes<QnGeExtent2d>& result) const;
    void Find(double x, double y, BoxResult<QnGeExtent2d>& result) const {
        FoundBoxes<QnGeExtent2d> found(result);
        Find(x, y, found);
    }
    void Find(const QnGeExtent2d& box, FoundBoxes<QnGeExtent2d>& result) const;

    const Grid& GetGrid() const { return m_grid; }

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* order, std::size_t bytes) { GivePiece(order, bytes); }

    BoxOrder(const BoxOrder&) = delete;
    BoxOrder& operator=(const BoxOrder&) = delete;

    struct Block;
    using Key = std::uint64_t;
    static constexpr int ARRIVAL_BITS = 31;
    static constexpr Key MOST_ARRIVALS = (Key{1} << ARRIVAL_BITS) - 1;

private:
    template <class IsHit>
    void FindAll(const GridSearch& search, IsHit isHit, FoundBoxes<QnGeExtent2d>& result) const;

    Grid m_grid;
    Block* m_root;
    Key m_arrivals = 0;
};

/// What is asked of each box that a search comes upon: the tests of extents, all four comparisons in one, as their
/// outcomes are too mixed to be foreseen.
struct HoldsPoint {
    double x;
    double y;
    bool operator()(const QnGeExtent2d& box) const {
        const double tolerance = g_distZero;
        const bool isInX = (x - box.x.min >= -tolerance) & (x - box.x.max <= tolerance);
        const bool isInY = (y - box.y.min >= -tolerance) & (y - box.y.max <= tolerance);
        return isInX & isInY;
    }
};
struct MeetsBox {
    const QnGeExtent2d& searched;
    bool operator()(const QnGeExtent2d& box) const {
        const double tolerance = g_distZero;
        const bool meetsInX = (box.x.min - searched.x.max <= tolerance) & (searched.x.min - box.x.max <= tolerance);
        const bool meetsInY = (box.y.min - searched.y.max <= tolerance) & (searched.y.min - box.y.max <= tolerance);
        return meetsInX & meetsInY;
    }
};

}  // namespace qn_detail
