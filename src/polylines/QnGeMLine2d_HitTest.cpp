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
// Phases     1  each edge by itself: on, crossed, crossed at its end, or missed (TestChord)
//            2  at an end vertex: PassesLevelAfter
//            3  parity
// Order      Free: a point on any edge ends the test, and crossings only change the parity.
// Kept odd   See TestChord for points within a hair of a vertex's level.

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/RayAndChord.h"
#include "polylines/detail/SegmentView.h"
#include "polylines/detail/VertexSearch.h"

namespace {

using qn_detail::ChordHit;

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

QnBitData HitTestClosed(const QnGeMLine2d& line, const QnGePoint& point) {
    bool isOutside = true;
    const long count = line.GetSegNum();
    for (long i = 0; i < count; i++) {
        const EdgeHit hit = TestEdge(line, i, point);
        if (hit == EdgeHit::ON) {
            return QnBitData(HIT_ON);
        }
        if (hit == EdgeHit::FLIP) {
            isOutside = !isOutside;
        }
    }
    return QnBitData(isOutside ? HIT_OUT : HIT_IN);
}

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
    return IsClosed() ? HitTestClosed(*this, point) : HitTestOpen(*this, point);
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
