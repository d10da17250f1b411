// SPDX-License-Identifier: Apache-2.0
//
// Intersect_Circle.cpp: what a circle shares with another object, and what lies wholly on it.
//
// Each primitive curve has a row for itself and for every class before it in the order line, ray, segment, circle,
// arc; any other pair is the other side's to answer. So of the two orders of a pair one is written, and the answer is
// the same in both.
//
//     line      the points where the line crosses or touches
//     ray       those of its line that are not before its base
//     segment   those of its line between its ends
//     circle    two points, one where they touch, or a copy of this circle where both are one
//
// Order      Along the line, ray or segment. Of two circles as CircleIntersect2d gives them.
// Tolerance  Tangency and coincidence g_distZero; the range of ray and segment g_fZero in their own parameter.
// Kept odd   A ray is asked for its point by its virtual GetPtFromPa, although the parameter is that of its line: a
//            reversed ray as argument answers with the point at 1 - t. As receiver it asks by a forward copy.
#include <memory>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/detail/HandOver.h"
#include "frame/QnGeClassId.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGePoint2d.h"

namespace {

// ---- rows of IntersectWith -----------------------------------------------------------------------

bool CircleByLine(const QnGeCircle2d& circle, const QnGeLine2d& line, QnGeObjList& result) {
    QnGePoint p1;
    QnGePoint p2;
    const int code = circle.QnGeBaseCircle::IntersectWith(line, p1, p2, false);
    if (code == INTERSECT_NONE) {
        return false;
    }
    result.Append(new QnGePoint2d(p1));
    if (code == INTERSECT_TWO) {
        result.Append(new QnGePoint2d(p2));
    }
    return true;
}

bool IsOnRay(double t) {
    return t >= -g_fZero;
}

bool IsOnSegment(double t) {
    return t >= -g_fZero && t - 1.0 <= g_fZero;
}

bool AppendIfInRange(const QnGeLine2d& line, double t, bool (*isInRange)(double), QnGeObjList& result) {
    if (!isInRange(t)) {
        return false;
    }
    auto point = std::make_unique<QnGePoint2d>();
    line.GetPtFromPa(t, *point);
    result.Append(point.release());
    return true;
}

bool CircleByPartOfLine(const QnGeCircle2d& circle, const QnGeLine2d& line, bool (*isInRange)(double),
                        QnGeObjList& result) {
    double t1 = 0.0;
    double t2 = 0.0;
    const int code = line.QnGeBaseLine2d::IntersectWith(circle, t1, t2, false);
    if (code == INTERSECT_NONE) {
        return false;
    }
    const bool hasFirst = AppendIfInRange(line, t1, isInRange, result);
    const bool hasSecond = code == INTERSECT_TWO && AppendIfInRange(line, t2, isInRange, result);
    return hasFirst || hasSecond;
}

bool CircleByRay(const QnGeCircle2d& circle, const QnGeLineRay2d& ray, QnGeObjList& result) {
    return CircleByPartOfLine(circle, ray, IsOnRay, result);
}

bool CircleBySegment(const QnGeCircle2d& circle, const QnGeLineSeg2d& segment, QnGeObjList& result) {
    return CircleByPartOfLine(circle, segment, IsOnSegment, result);
}

bool CircleByCircle(const QnGeCircle2d& circle, const QnGeCircle2d& other, QnGeObjList& result) {
    QnGePoint p1;
    QnGePoint p2;
    switch (circle.QnGeBaseCircle::IntersectWith(other, p1, p2)) {
        case INTERSECT_NONE:
            return false;
        case INTERSECT_ONE:
            result.Append(new QnGePoint2d(p1));
            return true;
        case INTERSECT_TWO:
            result.Append(new QnGePoint2d(p1));
            result.Append(new QnGePoint2d(p2));
            return true;
        case INTERSECT_SAME_CIRCLE:
        default:
            result.Append(new QnGeCircle2d(circle));
            return true;
    }
}

}  // namespace

bool QnGeCircle2d::IntersectWith(const QnGeObject& other, QnGeObjList& result) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
            return CircleByLine(*this, static_cast<const QnGeLine2d&>(other), result);
        case CLASS_ID_LINE_RAY2D:
            return CircleByRay(*this, static_cast<const QnGeLineRay2d&>(other), result);
        case CLASS_ID_LINE_SEG2D:
            return CircleBySegment(*this, static_cast<const QnGeLineSeg2d&>(other), result);
        case CLASS_ID_CIRCLE2D:
            return CircleByCircle(*this, static_cast<const QnGeCircle2d&>(other), result);
        default:
            return qn_detail::HandOver(*this, other, result);
    }
}

bool QnGeCircle2d::IsInclude(const QnGeObject& other) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
        case CLASS_ID_LINE_RAY2D:
        case CLASS_ID_LINE_SEG2D:
            return false;
        case CLASS_ID_CIRCLE2D:
            return IsSameCircle(static_cast<const QnGeCircle2d&>(other), false);
        case CLASS_ID_ARC2D:
            return IsSameCircle(static_cast<const QnGeArc2d&>(other).GetCircle(), false);
        default:
            return QnGeCurve2d::IsInclude(other);
    }
}
