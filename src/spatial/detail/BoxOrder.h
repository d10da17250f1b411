// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

#include "containers/QnList.h"
#include "spatial/detail/BoxHits.h"
#include "values/QnGeExtent2d.h"
#include "values/detail/BoxLanes.h"

namespace qn_detail {

using BoxNode = QnDListNode<QnGeExtent2d*>;

/// The boxes of a node's list by their place along the centre lines: it finds those at a point or a box, and the list
/// node of a box, without going through the list.
///
/// Ownership  Of nothing but its own blocks: list nodes and boxes are looked at.
/// See        BoxOrder.cpp for how it works
class BoxOrder {
public:
    /// For boxes about the centre lines through `centreX`, `centreY`.
    BoxOrder(double centreX, double centreY);
    ~BoxOrder();

    long GetLength() const { return m_length; }

    /// Whether one more can be numbered in the order of arrival.
    bool HasRoom() const { return m_arrivals < MOST_ARRIVALS; }

    /// Enters the node that has become the last of the list.
    ///
    /// Requires  HasRoom.
    void Add(BoxNode* node);

    /// Takes the first node with `box` out and answers it; null if there is none by the coordinates that `box` has.
    BoxNode* Take(const QnGeExtent2d* box);

    /// The boxes that hold a point, or meet a box, in the order of the list.
    void Find(double x, double y, BoxHits& hits) const;
    void Find(const QnGeExtent2d& box, BoxHits& hits) const;

    /// Whether all boxes lie within `box`, or nearly: then going through the list is the shorter way.
    bool IsAllIn(const QnGeExtent2d& box) const;

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* order, std::size_t bytes) { GivePiece(order, bytes); }

    BoxOrder(const BoxOrder&) = delete;
    BoxOrder& operator=(const BoxOrder&) = delete;

    struct Block;
    using Key = std::uint64_t;
    static constexpr int ARRIVAL_BITS = 31;
    static constexpr Key MOST_ARRIVALS = (Key{1} << ARRIVAL_BITS) - 1;

private:
    FloatBox FrameOf(const QnGeExtent2d& box) const;
    FloatBox SearchBox(const QnGeExtent2d& box) const;

    double m_centreX;
    double m_centreY;
    Block* m_root;
    long m_length = 0;
    Key m_arrivals = 0;
};

}  // namespace qn_detail
