// SPDX-License-Identifier: Apache-2.0
//
// QnGeMLine2d_HitTest.cpp: inside, outside or on a closed multi-line.
//
// A ray runs from the point towards +x. The point is inside if the ray crosses the boundary an odd number of times.
// A crossing at a vertex belongs to the edge that ends there, and counts only if the boundary passes from one side of
// the ray to the other, for which the vertices after it are walked to the first that has left the ray's level:
//
//         \                 \    /
//    p -----+-+------   p ----+-+-----     a run of vertices on the level is crossed once
//              \                           or not at all
//
// Phases     1  LevelScan passes over the edges that stay above or below the ray, several at a time
//            2  TestNearEdge: an edge wholly left of the point is missed, one that crosses the ray's band well to the
//               right of the point is crossed
//            3  TestEdge: what is left, by the stated rule: on, crossed, crossed at its end (PassesLevelAfter), missed
//            4  parity
// Why so     Phases 1 and 2 decide only where phase 3 could not decide otherwise: their bands are wider than every
//            tolerance of the rule, which are lengths (g_distZero) and shares of an edge (g_fZero). The share makes the
//            band depend on the longest edge, which only the scan itself learns: it starts with a guess from three
//            vertices, and where an edge was longer the scan is made again.
// Order      Free: a point on any edge ends the test, and crossings only change the parity.
// Kept odd   See TestChord for points within a hair of a vertex's level.

#include <algorithm>
#include <cmath>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/LevelScan.h"
#include "polylines/detail/RayAndChord.h"
#include "polylines/detail/SegmentView.h"
#include "polylines/detail/VertexSearch.h"

namespace {

using qn_detail::BandSide;
using qn_detail::ChordHit;
using qn_detail::LevelScan;

// Rounding of a coordinate difference, relative to the coordinates.
constexpr double ROUNDING = 1e-15;

enum class EdgeHit { NONE, ON, FLIP };

// Whether the boundary that comes along edge `i` goes on to the other side of the level of `point`. A line that never
// leaves the level passes nowhere; without the count the walk round it would not end.
bool PassesLevelAfter(const QnGeMLine2d& line, long i, const QnGePoint& point) {
    const long count = line.GetVertexNum();
    const double before = line.GetVertex(i).y;
    long next = (i + 1) % count;
    for (long step = 0; step < count; step++) {
        next = next + 1 == count ? 0 : next + 1;
        const double after = line.GetVertex(next).y;
        if (!IsZero(after - point.y, g_distZero)) {
            return (before < point.y && point.y < after) || (after < point.y && point.y < before);
        }
    }
    return false;
}

// What edge `i` alone says of `point`.
EdgeHit TestEdge(const QnGeMLine2d& line, long i, const QnGePoint& point) {
    qn_detail::SegmentView view;
    switch (qn_detail::TestChord(view.Get(line, i), point)) {
        case ChordHit::ON_EDGE:
            return EdgeHit::ON;
        case ChordHit::CROSS:
            return EdgeHit::FLIP;
        case ChordHit::CROSS_END:
            return PassesLevelAfter(line, i, point) ? EdgeHit::FLIP : EdgeHit::NONE;
        case ChordHit::MISS:
            break;
    }
    return EdgeHit::NONE;
}

// The test of one point against a closed line.
class ClosedHitTest {
public:
    ClosedHitTest(const QnGeMLine2d& line, const QnGePoint& point)
        : m_line(line), m_point(point), m_vertices(line.GetVertexArray().GetFirst()), m_count(line.GetSegNum()) {}

    QnBitData Run() {
        if (m_count == 0) {
            return QnBitData(HIT_OUT);
        }
        if (!(g_fZero > 0.0)) {
            return TestAllEdges();
        }
        double height = GuessHeight();
        while (true) {
            const double bandHalf = 2.0 * (g_distZero + 2.0 * g_fZero * height);
            LevelScan scan(m_vertices, m_count, m_point.y, bandHalf);
            const QnBitData hit = TestNearEdges(scan);
            const double reach = 2.0 * std::max(scan.GetHighest() - m_point.y, m_point.y - scan.GetLowest());
            if (!(reach > height) || hit.HasBit(HIT_ON)) {
                return hit;
            }
            height = reach;
        }
    }

private:
    // No edge is taller than this, as far as three vertices tell.
    double GuessHeight() const {
        double sum = 0.0;
        for (const long i : {0L, m_count / 3, 2 * m_count / 3}) {
            sum += std::fabs(m_vertices[i].y - m_point.y);
        }
        return 4.0 * sum;
    }

    QnBitData TestAllEdges() const {
        bool isOutside = true;
        for (long i = 0; i < m_count; i++) {
            const EdgeHit hit = TestEdge(m_line, i, m_point);
            if (hit == EdgeHit::ON) {
                return QnBitData(HIT_ON);
            }
            isOutside = isOutside != (hit == EdgeHit::FLIP);
        }
        return QnBitData(isOutside ? HIT_OUT : HIT_IN);
    }

    QnBitData TestNearEdges(LevelScan& scan) const {
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
                return QnBitData(HIT_ON);
            }
            isOutside = isOutside != (hit == EdgeHit::FLIP);
            side = nextSide;
        }
        return QnBitData(isOutside ? HIT_OUT : HIT_IN);
    }

    EdgeHit TestNearEdge(long i, BandSide side, BandSide nextSide) const {
        const QnGePoint& a = m_vertices[i];
        const QnGePoint& b = m_vertices[i + 1 == m_count ? 0 : i + 1];
        const double width = std::fabs(b.x - a.x);
        const double height = std::fabs(b.y - a.y);
        const bool isShort = width <= g_fZero && height <= g_fZero;
        if (!isShort) {
            // Nearly horizontal edges blow up the rounding of their coordinates, down to a rise of g_fZero.
            const double spread = width + height + std::fabs(m_point.x - a.x) + std::fabs(m_point.y - a.y);
            const double margin = 2.0 * (g_distZero + g_fZero + 4.0 * (g_fZero + ROUNDING / g_fZero) * spread);
            if (std::max(a.x, b.x) < m_point.x - margin) {
                return EdgeHit::NONE;
            }
            const bool passesBand = side != BandSide::INSIDE && nextSide != BandSide::INSIDE;
            const bool isSteep = height > 4.0 * g_fZero * (width + height) && height > 2.0 * g_fZero;
            if (passesBand && isSteep && std::min(a.x, b.x) > m_point.x + margin) {
                return EdgeHit::FLIP;
            }
        }
        return TestEdge(m_line, i, m_point);
    }

    const QnGeMLine2d& m_line;
    const QnGePoint& m_point;
    const QnGePoint* m_vertices;
    long m_count;
};

QnBitData HitTestOpen(const QnGeMLine2d& line, const QnGePoint& point) {
    qn_detail::SegmentView view;
    const long count = line.GetSegNum();
    for (long i = 0; i < count; i++) {
        if (view.Get(line, i).HitTest(point).HasBit(HIT_ON)) {
            return QnBitData(HIT_ON);
        }
    }
    return QnBitData();
}

}  // namespace

QnBitData QnGeMLine2d::HitTest(const QnGePoint& point) const {
    return IsClosed() ? ClosedHitTest(*this, point).Run() : HitTestOpen(*this, point);
}

QnBitData QnGeMLine2d::SubHitTest(const QnGePoint& point, int& sub) const {
    sub = 0;
    const QnBitData hit = HitTest(point);
    if (!hit.HasBit(HIT_ON)) {
        return hit;
    }
    const long vertex = qn_detail::FindVertex(*this, point);
    if (vertex >= 0) {
        sub = static_cast<int>(vertex + 1);
        return hit;
    }
    qn_detail::SegmentView view;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        if (view.Get(*this, i).HitTest(point).HasBit(HIT_ON)) {
            sub = static_cast<int>(-(i + 1));
            break;
        }
    }
    return hit;
}
