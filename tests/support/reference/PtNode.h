// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "base/QnBitData.h"
#include "regions/detail/PtFlag.h"
#include "values/QnGePoint.h"

namespace qn_detail {

/// A node of the crossing graph: a vertex of A, a vertex of B, a crossing of both, or several of these in one place.
///
/// Ownership  A node owns nothing. The links lead to nodes and the positions to list entries of its graph.
struct PtNode : public QnBitData, public QnGePoint {
    /// The entry of a node list that points at the node.
    using Position = PtNode**;

    PtNode() = default;
    explicit PtNode(const QnGePoint& point) : QnGePoint(point) {}

    PtNode* nextA = nullptr;  ///< null if the node is only on B
    PtNode* nextB = nullptr;  ///< null if the node is only on A
    PtNode* prevA = nullptr;
    PtNode* prevB = nullptr;
    double paA = 0.0;          ///< parameter on the edge of A, 0 for a vertex
    double paB = 0.0;          ///< parameter on the edge of B, 0 for a vertex
    Position slotA = nullptr;  ///< entry in A's vertex list, null if the node is no vertex of A
    Position slotB = nullptr;  ///< entry in B's vertex list, null if the node is no vertex of B
    Position slotX = nullptr;  ///< entry in the graph's own list, for a free crossing

    PtNode* replacedBy = nullptr;  ///< the node that took this one's place; null while the node is in use
    long walk = 0;                 ///< number of the walk that met the node last
    bool isListed = false;         ///< has its place in the graph's final order
};

}  // namespace qn_detail
