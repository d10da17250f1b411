// SPDX-License-Identifier: Apache-2.0
//
// ClosedHitTest.cpp: inside, outside or on a closed multi-line.
//
// A ray runs from the point towards +x. The point is inside if the ray crosses the boundary an odd number of times.
// A crossing at a vertex belongs to the edge that ends there, and counts only if the boundary passes from one side of
// the ray to the other, for which the vertices after it are walked to the first that has left the ray's level:
//
//         \                 \    /
//    p -----+-+------   p ----+-+-----     a run of vertices on the level is crossed once
//              \                           or not at all
//
// Phases     1  LevelScan passes over the edges that stay above or below the ray, several at a time; with an index, its
//               boxes leave them out
//            2  TestNearEdge: an edge that crosses the ray's band well to the right of the point is crossed, one well
//               to its left is missed
//            3  TestEdge: what is left, by the stated rule: on, crossed, crossed at its end (PassesLevelAfter), missed
//            4  parity
// Why so     Phases 1 and 2 decide only where phase 3 could not decide otherwise: their bands are wider than every
//            tolerance of the rule, which are lengths (g_distZero) and shares of an edge (g_fZero). The share makes the
//            band depend on the longest edge, which only the scan itself learns: it starts with a guess from three
//            vertices, and where an edge was longer the scan is made again.
// Order      Free: a point on any edge ends the test, and crossings only change the parity.
// Kept odd   See TestChord for points within a hair of a vertex's level.
#include "polylines/detail/ClosedHitTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/LevelScan.h"
#include "polylines/detail/OutlineIndex.h"
#include "polylines/detail/RayAndChord.h"
#include "polylines/detail/SegmentView.h"

namespace qn_detail {

namespace {

// Rounding of a coordinate difference, relative to the coordinates.
constexpr double ROUNDING = 1e-15;
// The same for coordinates that were rounded to floats.
constexpr double FLOAT_ROUNDING = 1e-6;

// Beyond this the products of the stated rule overflow, and no band tells what comes of it.
constexpr double LARGEST_REACH = 1e30;

// Half the height of the band outside which an edge of at most this height cannot meet the ray.
double GetBandHalf(double height) {
    return 2.0 * (g_distZero + 2.0 * g_fZero * height);
}

// How far beside the point an edge can lie and still count, if it and the way to it are at most this long. Nearly
// horizontal edges blow up the rounding of their coordinates, down to a rise of g_fZero.
double GetMargin(double spread) {
    return 2.0 * (g_distZero + g_fZero + 4.0 * (g_fZero + ROUNDING / g_fZero) * spread);
}

}  // namespace

ClosedHitTest::ClosedHitTest(const QnGeMLine2d& line, const QnGePoint& point)
    : m_line(line), m_point(point), m_vertices(line.GetVertexArray().GetFirst()), m_count(line.GetSegNum()) {}

QnBitData ClosedHitTest::Run() const {
    if (m_count == 0) {
        return HIT_OUT;
    }
    if (!(g_fZero > 0.0)) {
        return TestAllEdges();
    }
    double height = GuessHeight();
    while (true) {
        LevelScan scan(m_vertices, m_count, m_point.y, GetBandHalf(height));
        const QnBitData hit = TestNearEdges(scan);
        const double reach = 2.0 * std::max(scan.GetHighest() - m_point.y, m_point.y - scan.GetLowest());
        if (reach > LARGEST_REACH) {
            return TestAllEdges();
        }
        if (!(reach > height) || hit.HasBit(HIT_ON)) {
            return hit;
        }
        height = reach;
    }
}

// An edge without length is on everything at its level, also to its right, so an outline with one takes the pass over
// all edges. Most points that come here lie on the line: the few edges about the point are asked before all those to
// its right.
QnBitData ClosedHitTest::RunWith(OutlineIndex& index) const {
    if (m_count == 0 || !(g_fZero > 0.0) || !index.IsUsable() || index.HasShortEdge()) {
        return Run();
    }
    const FloatBox at = index.GetFrameBox(m_point);
    const FloatBox hull = index.GetHull().With(at);
    const double span = (static_cast<double>(hull.x1) - static_cast<double>(hull.x0)) +
                        (static_cast<double>(hull.y1) - static_cast<double>(hull.y0));
    const double bandHalf = GetBandHalf(span);
    const double margin = std::max(GetMargin(3.0 * span), bandHalf) + FLOAT_ROUNDING * span;
    if (!OutlineIndex::CanWiden(margin) || !std::isfinite(at.x0) || !std::isfinite(at.y0)) {
        return Run();
    }
    FloatBox box = at.Widened(static_cast<float>(margin));
    if (TestEdgesIn(index, box, bandHalf) == EdgeHit::ON) {
        return HIT_ON;
    }
    box.x1 = std::numeric_limits<float>::infinity();
    switch (TestEdgesIn(index, box, bandHalf)) {
        case EdgeHit::ON:
            return HIT_ON;
        case EdgeHit::FLIP:
            return HIT_IN;
        case EdgeHit::NONE:
            break;
    }
    return HIT_OUT;
}

// ON if an edge with its box in `box` has the point; otherwise the parity of their crossings.
ClosedHitTest::EdgeHit ClosedHitTest::TestEdgesIn(OutlineIndex& index, const FloatBox& box, double bandHalf) const {
    const LevelScan scan(m_vertices, m_count, m_point.y, bandHalf);
    return TestBlocks(index, index.GetTopLevel(), 0, box, scan);
}

ClosedHitTest::EdgeHit ClosedHitTest::TestBlocks(OutlineIndex& index, int level, long group, const FloatBox& box,
                                                 const LevelScan& scan) const {
    const BoxLanes& boxes = level == 0 ? index.GetEdgeBoxes(group) : index.GetLanes(level, group);
    unsigned lanes = boxes.GetMeeting(box);
    bool isOdd = false;
    while (lanes != 0) {
        const long child = group * BoxLanes::COUNT + TakeLowestLane(lanes);
        const EdgeHit hit = level > 0
                                ? TestBlocks(index, level - 1, child, box, scan)
                                : TestNearEdge(child, scan.GetSide(child), scan.GetSide(index.GetVertexAfter(child)));
        if (hit == EdgeHit::ON) {
            return EdgeHit::ON;
        }
        isOdd = isOdd != (hit == EdgeHit::FLIP);
    }
    return isOdd ? EdgeHit::FLIP : EdgeHit::NONE;
}

// No edge is taller than this, as far as three vertices tell.
double ClosedHitTest::GuessHeight() const {
    double sum = 0.0;
    for (const long i : {0L, m_count / 3, 2 * m_count / 3}) {
        sum += std::fabs(m_vertices[i].y - m_point.y);
    }
    return 4.0 * sum;
}

QnBitData ClosedHitTest::TestAllEdges() const {
    bool isOutside = true;
    for (long i = 0; i < m_count; i++) {
        const EdgeHit hit = TestEdge(i);
        if (hit == EdgeHit::ON) {
            return HIT_ON;
        }
        isOutside = isOutside != (hit == EdgeHit::FLIP);
    }
    return isOutside ? HIT_OUT : HIT_IN;
}

QnBitData ClosedHitTest::TestNearEdges(LevelScan& scan) const {
    bool isOutside = true;
    BandSide side = scan.GetSide(0);
    for (long i = 0; i < m_count; i++) {
        scan.Note(i);
        if (side != BandSide::INSIDE) {
            i = scan.SkipRun(i + 1, side) - 1;
        }
        const BandSide nextSide = scan.GetSide(i + 1 == m_count ? 0 : i + 1);
        const bool staysOut = side == nextSide && side != BandSide::INSIDE;  // only the closing edge comes here
        const EdgeHit hit = staysOut ? EdgeHit::NONE : TestNearEdge(i, side, nextSide);
        if (hit == EdgeHit::ON) {
            return HIT_ON;
        }
        isOutside = isOutside != (hit == EdgeHit::FLIP);
        side = nextSide;
    }
    return isOutside ? HIT_OUT : HIT_IN;
}

ClosedHitTest::EdgeHit ClosedHitTest::TestNearEdge(long i, BandSide side, BandSide nextSide) const {
    const QnGePoint& a = m_vertices[i];
    const QnGePoint& b = m_vertices[i + 1 == m_count ? 0 : i + 1];
    const double width = std::fabs(b.x - a.x);
    const double height = std::fabs(b.y - a.y);
    const bool isShort = width <= g_fZero && height <= g_fZero;
    if (!isShort) {
        const double margin = GetMargin(width + height + std::fabs(m_point.x - a.x) + std::fabs(m_point.y - a.y));
        if (std::max(a.x, b.x) < m_point.x - margin) {
            return EdgeHit::NONE;
        }
        const bool staysOut = side == nextSide && side != BandSide::INSIDE;
        if (staysOut) {
            return EdgeHit::NONE;
        }
        const bool passesBand = side != BandSide::INSIDE && nextSide != BandSide::INSIDE;
        const bool isSteep = height > 4.0 * g_fZero * (width + height) && height > 2.0 * g_fZero;
        if (passesBand && isSteep) {
            if (std::min(a.x, b.x) > m_point.x + margin) {
                return EdgeHit::FLIP;
            }
            // Twice the area between the edge and the point: far enough off the edge, the side alone decides.
            const double area = (b.x - a.x) * (m_point.y - a.y) - (b.y - a.y) * (m_point.x - a.x);
            if (std::fabs(area) > margin * (width + height)) {
                const bool isEdgeAhead = (area > 0.0) == (b.y > a.y);
                return isEdgeAhead ? EdgeHit::FLIP : EdgeHit::NONE;
            }
        }
    }
    return TestEdge(i);
}

// What edge `i` alone says of the point.
ClosedHitTest::EdgeHit ClosedHitTest::TestEdge(long i) const {
    SegmentView view;
    switch (TestChord(view.Get(m_line, i), m_point)) {
        case ChordHit::ON_EDGE:
            return EdgeHit::ON;
        case ChordHit::CROSS:
            return EdgeHit::FLIP;
        case ChordHit::CROSS_END:
            return PassesLevelAfter(i) ? EdgeHit::FLIP : EdgeHit::NONE;
        case ChordHit::MISS:
            break;
    }
    return EdgeHit::NONE;
}

// Whether the boundary that comes along edge `i` goes on to the other side of the point's level. A line that never
// leaves the level passes nowhere; without the count the walk round it would not end.
bool ClosedHitTest::PassesLevelAfter(long i) const {
    const double before = m_vertices[i].y;
    long next = (i + 1) % m_count;
    for (long step = 0; step < m_count; step++) {
        next = next + 1 == m_count ? 0 : next + 1;
        const double after = m_vertices[next].y;
        if (!IsZero(after - m_point.y, g_distZero)) {
            return (before < m_point.y && m_point.y < after) || (after < m_point.y && m_point.y < before);
        }
    }
    return false;
}

}  // namespace qn_detail
