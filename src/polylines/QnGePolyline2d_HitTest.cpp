// SPDX-License-Identifier: Apache-2.0
//
// QnGePolyline2d_HitTest.cpp: inside, outside or on a closed polyline.
//
// The test of detail/ClosedHitTest.cpp with arcs among the edges. An arc is met by the ray in up to two points. A
// crossing at the end of an edge, chord or arc, counts if the boundary goes on as it came: it is crossed if it came
// from above the ray and does not rise after it, or came from below and rises.
//
//                  .-'''-.
//                .'       '.                   A ray that touches an arc, or runs through the apex
//      p -------+-----------+------- ...       where two arcs meet, leaves the parity as it is.
//              v1           v2
//
// Phases     1  each edge by itself: TestChordEdge, TestArcEdge
//            2  at an end vertex: did it come from above, and does GetCourseAfter say that it goes on down, or up if it
//               came from below
//            3  parity
// Order      Free, as for multi-lines.
// Kept odd   Ends of chords are windows of g_fZero in the parameter, ends of arcs of g_distZero in length: where a
//            chord meets an arc, a ray that passes within g_distZero of the joint may be answered for twice or not at
//            all.

#include "curves2d/QnGeLineRay2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGePolyline2d.h"
#include "polylines/detail/RayAndChord.h"
#include "polylines/detail/SegmentView.h"
#include "polylines/detail/VertexSearch.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGePoint2d.h"

namespace {

using qn_detail::ChordHit;
using qn_detail::IsSamePlace;
using qn_detail::SegmentView;

enum class EdgeHit { NONE, ON, FLIP };

enum class Course { LEVEL, RISING, FALLING };

// Where the arc goes from a point at which its tangent is `tangent`. At the apex and the foot of the circle the side
// that the level of `point` is on decides.
Course GetArcCourse(const QnGeArc2d& arc, const QnGeBaseLine2d& tangent, const QnGePoint& point) {
    if (IsGreater(tangent.dy, g_fZero)) {
        return Course::RISING;
    }
    if (IsLess(tangent.dy, g_fZero)) {
        return Course::FALLING;
    }
    return point.y < arc.GetCenter().y ? Course::RISING : Course::FALLING;
}

// How the boundary goes on behind edge `i`. LEVEL if it never leaves the level of the vertex.
Course GetCourseAfter(const QnGePolyline2d& line, long i, const QnGePoint& point) {
    SegmentView view;
    QnGeBaseLine2d direction;
    const long count = line.GetSegNum();
    long next = i;
    for (long step = 0; step < count; step++) {
        next = next + 1 == count ? 0 : next + 1;
        if (line.IsArcSeg(next)) {
            const QnGeArc2d& arc = view.GetArc(line, next);
            arc.GetTangent(0.0, direction);
            return GetArcCourse(arc, direction, point);
        }
        line.GetSegment(next, direction);
        direction.Normalize();
        if (!IsZero(direction.dy, g_fZero)) {
            return IsGreater(direction.dy, g_fZero) ? Course::RISING : Course::FALLING;
        }
    }
    return Course::LEVEL;
}

bool PassesLevelAfter(const QnGePolyline2d& line, long i, bool cameFromAbove, const QnGePoint& point) {
    const Course course = GetCourseAfter(line, i, point);
    return course == (cameFromAbove ? Course::FALLING : Course::RISING);
}

EdgeHit TestChordEdge(const QnGePolyline2d& line, long i, const QnGePoint& point) {
    SegmentView view;
    switch (qn_detail::TestChord(view.GetChord(line, i), point)) {
        case ChordHit::ON_EDGE:
            return EdgeHit::ON;
        case ChordHit::CROSS:
            return EdgeHit::FLIP;
        case ChordHit::CROSS_END: {
            const bool cameFromAbove = point.y < line.GetVertex(i).y;
            return PassesLevelAfter(line, i, cameFromAbove, point) ? EdgeHit::FLIP : EdgeHit::NONE;
        }
        case ChordHit::MISS:
            break;
    }
    return EdgeHit::NONE;
}

// One point where the ray meets arc `i`.
EdgeHit TestArcPoint(const QnGePolyline2d& line, long i, const QnGeArc2d& arc, const QnGePoint& met,
                     const QnGePoint& point) {
    if (IsSamePlace(met, point)) {
        return EdgeHit::ON;
    }
    if (IsSamePlace(met, line.GetVertex(i))) {
        return EdgeHit::NONE;  // the edge that ends there answers for it
    }
    if (IsSamePlace(met, line.GetVertex((i + 1) % line.GetVertexNum()))) {
        QnGeBaseLine2d tangent;
        arc.GetTangent(1.0, tangent);
        // Behind the apex of an arc one comes from below the level, behind its foot from above.
        const bool isLevel = IsZero(tangent.dy, g_fZero);
        const bool cameFromAbove = isLevel ? point.y < arc.GetCenter().y : IsLess(tangent.dy, g_fZero);
        return PassesLevelAfter(line, i, cameFromAbove, point) ? EdgeHit::FLIP : EdgeHit::NONE;
    }
    const QnGePoint center = arc.GetCenter();
    const QnGeVector2d tangent(-(met.y - center.y), met.x - center.x);
    const bool onlyTouches = tangent.IsParallelWith(qn_detail::GetHitTestRay(), false);
    return onlyTouches ? EdgeHit::NONE : EdgeHit::FLIP;
}

EdgeHit TestArcEdge(const QnGePolyline2d& line, long i, const QnGePoint& point) {
    SegmentView view;
    const QnGeArc2d& arc = view.GetArc(line, i);
    if (arc.HitTest(point).HasBit(HIT_ON)) {
        return EdgeHit::ON;
    }
    QnGeObjList points;
    const QnGeLineRay2d ray(qn_detail::GetHitTestRay(), point);
    ray.IntersectWith(arc, points);

    bool isFlipped = false;
    for (QnGeObject* const* entry = points.GetFirst(); entry != nullptr; entry = points.GetNext(entry)) {
        const QnGePoint2d* met = static_cast<const QnGePoint2d*>(*entry);
        switch (TestArcPoint(line, i, arc, *met, point)) {
            case EdgeHit::ON:
                return EdgeHit::ON;
            case EdgeHit::FLIP:
                isFlipped = !isFlipped;
                break;
            case EdgeHit::NONE:
                break;
        }
    }
    return isFlipped ? EdgeHit::FLIP : EdgeHit::NONE;
}

QnBitData HitTestClosed(const QnGePolyline2d& line, const QnGePoint& point) {
    bool isOutside = true;
    const long count = line.GetSegNum();
    for (long i = 0; i < count; i++) {
        const EdgeHit hit = line.IsArcSeg(i) ? TestArcEdge(line, i, point) : TestChordEdge(line, i, point);
        if (hit == EdgeHit::ON) {
            return QnBitData(HIT_ON);
        }
        if (hit == EdgeHit::FLIP) {
            isOutside = !isOutside;
        }
    }
    return QnBitData(isOutside ? HIT_OUT : HIT_IN);
}

QnBitData HitTestOpen(const QnGePolyline2d& line, const QnGePoint& point) {
    SegmentView view;
    const long count = line.GetSegNum();
    for (long i = 0; i < count; i++) {
        if (view.Get(line, i).HitTest(point).HasBit(HIT_ON)) {
            return QnBitData(HIT_ON);
        }
    }
    return QnBitData();
}

}  // namespace

QnBitData QnGePolyline2d::HitTest(const QnGePoint& point) const {
    return IsClosed() ? HitTestClosed(*this, point) : HitTestOpen(*this, point);
}

QnBitData QnGePolyline2d::SubHitTest(const QnGePoint& point, int& sub) const {
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
    SegmentView view;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        if (view.Get(*this, i).HitTest(point).HasBit(HIT_ON)) {
            sub = static_cast<int>(-(i + 1));
            break;
        }
    }
    return hit;
}
