// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "values/QnGePoint.h"
#include "values/detail/BoxLanes.h"

class QnGeMLine2d;

namespace qn_detail {

class LevelScan;
class OutlineIndex;
enum class BandSide;

/// The hit test of one point against a closed line: HIT_ON, HIT_IN or HIT_OUT.
///
/// Both forms give the same answer: Run passes over all vertices, RunWith asks an index over the line for the edges
/// that matter.
///
/// See  ClosedHitTest.cpp
class ClosedHitTest {
public:
    ClosedHitTest(const QnGeMLine2d& line, const QnGePoint& point);

    QnBitData Run() const;
    QnBitData RunWith(OutlineIndex& index) const;

private:
    enum class EdgeHit { NONE, ON, FLIP };

    double GuessHeight() const;
    QnBitData TestAllEdges() const;
    QnBitData TestNearEdges(LevelScan& scan) const;
    EdgeHit TestNearEdge(long i, BandSide side, BandSide nextSide) const;
    EdgeHit TestEdge(long i) const;
    bool PassesLevelAfter(long i) const;
    EdgeHit TestEdgesIn(OutlineIndex& index, const FloatBox& box, double bandHalf) const;
    EdgeHit TestBlocks(OutlineIndex& index, int level, long group, const FloatBox& box, const LevelScan& scan) const;

    const QnGeMLine2d& m_line;
    const QnGePoint& m_point;
    const QnGePoint* m_vertices;
    long m_count;
};

}  // namespace qn_detail
