// SPDX-License-Identifier: Apache-2.0
//
// Intersect_Arc.cpp: what an arc shares with another object, and what lies wholly on it.
//
// An arc asks its carrying circle and keeps what lies on the arc:
//
//     line, ray, segment   the circle's points, filtered
//     circle               the same; where the circles are one, a copy of this arc
//     arc                  the other arc's answer for this circle, filtered; where both lie on one circle, their common
//                          stretches (OverlapOnOneCircle below)
//
// Filter     A point stays where its parameter on the arc is in [0, 1], widened by g_distZero as a share of the length.
// Order      That of the circle's answer.
// Kept odd   A point just before the start has a parameter of almost a turn, not below 0: on an arc so small that
//            g_angleZero along it is less than g_distZero, the filter drops it although HitTest still has HIT_ON.
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/detail/HandOver.h"
#include "curves2d/detail/UnitRange.h"
#include "frame/QnGeClassId.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "values/QnGePoint2d.h"

namespace {

// ---- the arc and its circle ----------------------------------------------------------------------

bool IsFirstExactly(const QnGeObjList& found, const QnRxClassInfo& record) {
    return found.GetAt(0)->GetCI() == &record;
}

// Drops the points of `found` that are off the arc and moves the rest to `result`.
bool KeepOnArc(const QnGeArc2d& arc, QnGeObjList& found, QnGeObjList& result) {
    const double tol = qn_detail::UnitPaTolerance(arc.Length());
    for (found.MoveToFirst(); !found.IsOut(); found.MoveToNext()) {
        double pa = 0.0;
        arc.GetPaFromPt(static_cast<const QnGePoint2d&>(*found.GetCurPData()), pa);
        if (!qn_detail::IsInUnitRange(pa, tol)) {
            found.DelCur();
        }
    }
    if (found.IsEmpty()) {
        return false;
    }
    result.Conbine(found, 0);
    return true;
}

// ---- two arcs on one circle ----------------------------------------------------------------------

// The angle whose chord is g_distZero: what counts as no angle on a circle of this radius.
double AngleOfDistZero(double radius) {
    return qn_detail::ClampTolerance(2.0 * std::asin(std::min(1.0, 0.5 * g_distZero / radius)));
}

void AppendPoint(const QnGePoint& point, QnGeObjList& result) {
    result.Append(new QnGePoint2d(point));
}

// The case that B runs over this arc's start, up to `bEnd` behind it.
void OverlapOverStart(const QnGeArc2d& arc, std::unique_ptr<QnGeArc2d> b, double bStart, double bEnd,
                      QnGeObjList& result) {
    const double sweep = arc.GetCentralAngle();
    if (bEnd - sweep >= g_angleZero) {
        result.Append(new QnGeArc2d(arc));
        return;
    }
    if (bEnd <= g_angleZero) {
        AppendPoint(arc.GetStartPoint(), result);
    } else {
        auto head = std::make_unique<QnGeArc2d>(arc);
        head->SetCentralAngle(bEnd);
        result.Append(head.release());
    }
    const double gap = bStart - sweep;
    if (IsLess(gap, g_angleZero)) {
        b->SetCentralAngle(-gap);
        result.Append(b.release());
    } else if (IsZero(gap, g_angleZero)) {
        AppendPoint(arc.GetEndPoint(), result);
    }
}

// The case that B starts behind this arc's start and ends behind its own.
bool OverlapAfterStart(const QnGeArc2d& arc, std::unique_ptr<QnGeArc2d> b, double bStart, double bEnd,
                       QnGeObjList& result) {
    const double sweep = arc.GetCentralAngle();
    const double gap = bStart - sweep;
    if (IsGreater(gap, g_angleZero)) {
        return false;
    }
    if (gap >= -g_angleZero) {
        AppendPoint(arc.GetEndPoint(), result);
        return true;
    }
    if (IsGreater(bEnd - sweep, g_angleZero)) {
        b->SetCentralAngle(-gap);
    }
    result.Append(b.release());
    return true;
}

// The common stretches of two arcs on one circle, each running in the direction of `arc`.
//
// B is a copy of the other arc, turned round where it runs the other way. All angles are offsets from the start of
// `arc` along its travel, brought into one turn; S is its sweep, b and e are where B starts and ends.
//
//      0                    S                  2 pi
//      |======= arc ========|                    |
//      |     b------e       |                    |      B inside: B itself
//      |     b--------------+---e                |      B past the end: B from b to S
//      |                    |   b----e           |      apart: nothing; b = S: the point at the end
//      |--e                 |             b------|      B over the start: `arc` from 0 to e
//      |--e      b----------+--------------------|      B over the start and again before the end: both stretches
//
// Phases     1  A closed arc covers all: the answer is a copy of the other one as it stands.
//            2  e <= b tells that B runs over the start of `arc`: OverlapOverStart, up to two answers.
//            3  Otherwise OverlapAfterStart, at most one.
// Tolerance  g_angleZero stands for the angle whose chord is g_distZero as long as this runs, so that arcs which touch
//            within g_distZero share a point and no stretch, whatever the radius.
// Why so     GetStdAngle and IsClosed read g_angleZero themselves. Setting the global is what makes their snapping
//            agree with the comparisons here.
// Order      The stretch at the start of `arc` comes before the one at its end.
bool OverlapOnOneCircle(const QnGeArc2d& arc, const QnGeArc2d& other, QnGeObjList& result) {
    const QnPushVar<double> fitted(g_angleZero, AngleOfDistZero(arc.GetRadius()));
    if (other.IsClosed()) {
        result.Append(new QnGeArc2d(arc));
        return true;
    }
    auto b = std::make_unique<QnGeArc2d>(other);
    if (arc.IsClosed()) {
        result.Append(b.release());
        return true;
    }
    if (b->IsClockwise() != arc.IsClockwise()) {
        b->Reverse();
    }
    const double bStart = GetStdAngle(b->GetStartAngle() - arc.GetStartAngle());
    const double bEnd = GetStdAngle(b->GetStartAngle() + b->GetCentralAngle() - arc.GetStartAngle());
    if (bEnd <= bStart) {
        OverlapOverStart(arc, std::move(b), bStart, bEnd, result);
        return true;
    }
    return OverlapAfterStart(arc, std::move(b), bStart, bEnd, result);
}

// ---- rows of IntersectWith -----------------------------------------------------------------------

bool ArcByLine(const QnGeArc2d& arc, const QnGeObject& lineRayOrSegment, QnGeObjList& result) {
    QnGeObjList found;
    return arc.GetCircle().IntersectWith(lineRayOrSegment, found) && KeepOnArc(arc, found, result);
}

bool ArcByCircle(const QnGeArc2d& arc, const QnGeCircle2d& circle, QnGeObjList& result) {
    QnGeObjList found;
    if (!arc.GetCircle().IntersectWith(circle, found)) {
        return false;
    }
    if (IsFirstExactly(found, QnGeCircle2d::s_classInfo)) {
        result.Append(new QnGeArc2d(arc));
        return true;
    }
    return KeepOnArc(arc, found, result);
}

bool ArcByArc(const QnGeArc2d& arc, const QnGeArc2d& other, QnGeObjList& result) {
    QnGeObjList found;
    if (!ArcByCircle(other, arc.GetCircle(), found)) {
        return false;
    }
    if (IsFirstExactly(found, QnGeArc2d::s_classInfo)) {
        return OverlapOnOneCircle(arc, other, result);
    }
    return KeepOnArc(arc, found, result);
}

// ---- inclusion -----------------------------------------------------------------------------------

// The slack before and behind `other` on this arc must add up to the difference of the sweeps.
bool IsArcOnArc(const QnGeArc2d& arc, const QnGeArc2d& other) {
    if (!arc.GetCircle().IsSameCircle(other.GetCircle(), false)) {
        return false;
    }
    const double slack = arc.GetCentralAngle() - other.GetCentralAngle();
    if (IsLess(slack, g_angleZero)) {
        return false;
    }
    double otherStart = other.GetStartAngle();
    double otherEnd = other.GetEndAngle();
    if (arc.IsClockwise() != other.IsClockwise()) {
        otherStart = GetStdAngle(-other.GetEndAngle());
        otherEnd = GetStdAngle(-other.GetStartAngle());
    }
    const double before = GetStdAngle(otherStart - arc.GetStartAngle());
    const double behind = GetStdAngle(arc.GetEndAngle() - otherEnd);
    return IsZero(slack - (before + behind), g_angleZero);
}

}  // namespace

bool QnGeArc2d::IntersectWith(const QnGeObject& other, QnGeObjList& result) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
        case CLASS_ID_LINE_RAY2D:
        case CLASS_ID_LINE_SEG2D:
            return ArcByLine(*this, other, result);
        case CLASS_ID_CIRCLE2D:
            return ArcByCircle(*this, static_cast<const QnGeCircle2d&>(other), result);
        case CLASS_ID_ARC2D:
            return ArcByArc(*this, static_cast<const QnGeArc2d&>(other), result);
        default:
            return qn_detail::HandOver(*this, other, result);
    }
}

bool QnGeArc2d::IsInclude(const QnGeObject& other) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
        case CLASS_ID_LINE_RAY2D:
        case CLASS_ID_LINE_SEG2D:
            return false;
        case CLASS_ID_CIRCLE2D:
            return IsClosed() && m_circle.IsSameCircle(static_cast<const QnGeCircle2d&>(other), false);
        case CLASS_ID_ARC2D:
            return IsArcOnArc(*this, static_cast<const QnGeArc2d&>(other));
        default:
            return QnGeCurve2d::IsInclude(other);
    }
}
