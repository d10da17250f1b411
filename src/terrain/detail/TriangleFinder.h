// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "spatial/detail/ReadAhead.h"
#include "terrain/QnGeTINNode.h"
#include "terrain/detail/HullRing.h"
#include "terrain/detail/StartTable.h"
#include "terrain/detail/TriangleHit.h"
#include "terrain/detail/TriangleTree.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

/// Finds the triangle of a network in which a node lies by walking from neighbour to neighbour, where that is sure to
/// be the one that a search in the tree of triangles comes to.
///
/// Tolerance  Answers only for nodes that lie clear of whatever the tolerance could bring in.
/// Requires   Hearing of each triangle that goes into the tree and of each change of the hull.
/// See        TriangleFinder.cpp for why the answers are the same
class TriangleFinder {
public:
    /// A triangle goes into the tree, with its true box.
    void LearnTriangle(const QnGeTINTriangle& triangle);
    /// `entry` of the ring and the one behind it are new. `nodeNum` nodes are in the network.
    void LearnHull(const HullRing& ring, HullEntry entry);
    /// So many nodes are in the network now, and `range` includes them.
    void LearnSize(const HullRing& ring, const QnGeExtent2d& range, long nodeNum);

    /// Whether all triangles surely ran counter-clockwise so far, with no edge near the tolerance, round a convex hull.
    bool IsSound() const { return m_isSound; }

    /// Looks for a node.
    ///
    /// Requires  All triangles are in the tree. `range` includes all nodes.
    /// Fails     False if it is not sure what the tree would answer.
    bool Find(const QnGeTINNode& node, const WalkStart& start, const QnGeExtent2d& range, TriangleHit& hit);

    /// Asks for the memory at which a walk to a node that comes soon would begin.
    void ReadAhead(const QnGePoint& place) const { qn_detail::ReadAhead(m_starts.Get(place)); }

private:
    QnGeTINTriangle* ChooseStart(const QnGeTINNode& node, const WalkStart& start) const;
    double GetMargin(const QnGeExtent2d& range) const;
    void LearnHullEdges(const QnGeTINTriangle& triangle);
    void LearnTurn(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c);

    bool m_isSound = true;
    bool m_hasLearned = false;
    double m_tolerance = 0.0;   ///< under which all was learned
    double m_stretch = 1.0;     ///< square of the largest size of a triangle on the hull in lengths of its hull edge
    double m_slack = 0.0;       ///< by what angle the hull turns to the right in all, at most
    long m_sizeToRefresh = 16;  ///< number of nodes at which the stretch is taken anew
    StartTable m_starts;        ///< for networks of which one list of the tree holds a large part
    StartTable m_olderStarts;   ///< of the network when it had half as many nodes
};

}  // namespace qn_detail
