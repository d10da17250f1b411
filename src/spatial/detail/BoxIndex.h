// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"
#include "spatial/detail/BoxHits.h"
#include "spatial/detail/GridBox.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

using BoxNode = QnDListNode<QnGeExtent2d*>;

/// What a list of boxes keeps beside its elements to find those at a point or a box, and the list node of a box, without
/// going from node to node and from there to boxes all over the memory.
///
/// Ownership  List nodes and boxes are looked at.
/// See        BoxRow for lists of some length, BoxOrder for long ones
class BoxIndex {
public:
    virtual ~BoxIndex() = default;

    /// Enters the node that has become the last of the list. False and nothing done if the index is full.
    virtual bool Add(BoxNode* node) = 0;

    /// Takes the first node with `box` out and answers it; null if there is none by the coordinates that `box` has.
    virtual BoxNode* Take(const QnGeExtent2d* box) = 0;

    /// The boxes that hold a point, or meet a box, in the order of the list.
    virtual void Find(double x, double y, BoxHits& hits) const = 0;
    virtual void Find(const QnGeExtent2d& box, BoxHits& hits) const = 0;

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* index, std::size_t bytes) { GivePiece(index, bytes); }

    BoxIndex(const BoxIndex&) = delete;
    BoxIndex& operator=(const BoxIndex&) = delete;

protected:
    explicit BoxIndex(const QnGeExtent2d& range) : m_grid(range) {}

    Grid m_grid;
};

/// What is asked of each box that a search on the grid comes upon.
struct HoldsPoint {
    double x;
    double y;
    bool operator()(const QnGeExtent2d& box) const { return box.IsInclude(x, y); }
};
struct MeetsBox {
    const QnGeExtent2d& searched;
    bool operator()(const QnGeExtent2d& box) const { return box.IsInsersectWith(searched); }
};

}  // namespace qn_detail
