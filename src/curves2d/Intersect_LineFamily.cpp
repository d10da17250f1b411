// SPDX-License-Identifier: Apache-2.0
// Intersect_LineFamily.cpp: what line, ray and segment have in common, and which of them lies on which.
//
// Each class answers the pairs with itself and with the classes above it in this table; every other pair it hands to
// the argument:
//
//      this \ other    line           ray            segment              anything else
//      line            LineLine       hand over      hand over            hand over
//      ray             RayLine        RayRay         hand over            hand over
//      segment         SegLine        SegRay         SegSeg               hand over
//
// A row asks the carrying lines first: they are apart, cross in one point, or coincide. A crossing counts if its
// parameter is in range on both objects, and the point is made at the parameter of the row's first object.
//
// Order      A row appends at most one object.
// Tolerance  g_fZero on base-line parameters; parallelism and coincidence are those of the base lines.
// Direction  An overlap runs with the receiver where the row does not say otherwise, so a.IntersectWith(b) and
//            b.IntersectWith(a) may differ. Copies keep the flag word of what they copy.
// Ownership  The result is new and belongs to `out`; a row that answers false appends nothing.
// Kept odd   As the receiver a reversed ray stands for its forward copy. As the argument of a segment on its own
//            line it is asked for its own parameter, so the answer is mirrored.
// See        Intersect_Circle.cpp, Intersect_Arc.cpp for the further rows.

#include <algorithm>
#include <utility>

#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/detail/HandOver.h"
#include "curves2d/detail/SegmentOnLine.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGePoint.h"
#include "values/QnGePoint2d.h"

namespace {

using qn_detail::IsOnSegment;

/// How two carrying lines meet, and where.
struct Meeting {
    Meeting(const QnGeBaseLine2d& a, const QnGeBaseLine2d& b) : code(a.IntersectWith(b, tA, tB, false)) {}

    double tA = 0.0;  ///< at the crossing, in multiples of a's vector
    double tB = 0.0;  ///< at the crossing, in multiples of b's vector
    int code;         ///< INTERSECT_NONE, INTERSECT_ONE, or INTERSECT_LINE for one and the same line
};

bool IsOnRay(double t) {
    return t >= -g_fZero;
}

/// The parameter of a point on the carrying line, whatever the class makes of it.
double BaseLinePa(const QnGeBaseLine2d& line, const QnGePoint& pt) {
    double t = 0.0;
    line.GetPaFromPt(pt, t);
    return t;
}

bool AppendPoint(const QnGePoint& pt, QnGeObjList& out) {
    out.Append(new QnGePoint2d(pt));
    return true;
}

bool AppendPointAt(const QnGeBaseLine2d& line, double t, QnGeObjList& out) {
    QnGePoint pt;
    line.GetPtFromPa(t, pt);
    return AppendPoint(pt, out);
}

bool AppendSegment(const QnGePoint& from, const QnGePoint& to, QnGeObjList& out) {
    out.Append(new QnGeLineSeg2d(from, to));
    return true;
}

template <class Curve>
bool AppendCopy(const Curve& curve, QnGeObjList& out) {
    out.Append(new Curve(curve));
    return true;
}

// ---- rows of the line --------------------------------------------------------------------------------

bool LineLine(const QnGeLine2d& line, const QnGeLine2d& other, QnGeObjList& out) {
    const Meeting meeting(line, other);
    switch (meeting.code) {
        case INTERSECT_LINE:
            return AppendCopy(line, out);
        case INTERSECT_ONE:
            return AppendPointAt(line, meeting.tA, out);
        default:
            return false;
    }
}

// ---- rows of the ray: `ray` is forward ---------------------------------------------------------------

bool RayLine(const QnGeLineRay2d& ray, const QnGeLine2d& line, QnGeObjList& out) {
    const Meeting meeting(ray, line);
    switch (meeting.code) {
        case INTERSECT_LINE:
            return AppendCopy(ray, out);
        case INTERSECT_ONE:
            return IsOnRay(meeting.tA) && AppendPointAt(ray, meeting.tA, out);
        default:
            return false;
    }
}

/// Rays of one line: the later of two that run the same way, or what lies between the bases of two that face each
/// other.
bool RayRayOnOneLine(const QnGeLineRay2d& ray, const QnGeLineRay2d& other, QnGeObjList& out) {
    const double t = BaseLinePa(ray, other.GetBasePoint());
    if (ray.IsSameDirection(other.GetVector(), false)) {
        const bool startsLater = t <= g_fZero;
        return AppendCopy(startsLater ? ray : other, out);
    }
    if (IsLess(t, g_fZero)) {
        return false;  // back to back
    }
    if (IsZero(t, g_fZero)) {
        return AppendPoint(ray.GetBasePoint(), out);
    }
    return AppendSegment(ray.GetBasePoint(), other.GetBasePoint(), out);
}

bool RayRay(const QnGeLineRay2d& ray, const QnGeLineRay2d& other, QnGeObjList& out) {
    const Meeting meeting(ray, other);
    switch (meeting.code) {
        case INTERSECT_LINE:
            return RayRayOnOneLine(ray, other, out);
        case INTERSECT_ONE:
            return IsOnRay(meeting.tA) && IsOnRay(meeting.tB) && AppendPointAt(ray, meeting.tA, out);
        default:
            return false;
    }
}

// ---- rows of the segment -----------------------------------------------------------------------------

bool SegLine(const QnGeLineSeg2d& seg, const QnGeLine2d& line, QnGeObjList& out) {
    const Meeting meeting(seg, line);
    switch (meeting.code) {
        case INTERSECT_LINE:
            return AppendCopy(seg, out);
        case INTERSECT_ONE:
            return IsOnSegment(meeting.tA) && AppendPointAt(seg, meeting.tA, out);
        default:
            return false;
    }
}

/// Segment and ray of one line.
///
/// Kept odd  Where the ray begins inside the segment the piece ends at the segment's own end, also if the ray runs the
///           other way.
bool SegRayOnOneLine(const QnGeLineSeg2d& seg, const QnGeLineRay2d& ray, QnGeObjList& out) {
    QnGeLineSeg2d along(seg);
    if (along.IsReverseDirection(ray.GetVector(), false)) {
        along.Reverse();
    }
    double startOnRay = 0.0;
    ray.GetPaFromPt(along.GetBasePoint(), startOnRay);
    if (IsOnRay(startOnRay)) {
        return AppendCopy(along, out);
    }
    const double pastEnd = BaseLinePa(along, ray.GetBasePoint()) - 1.0;
    if (IsGreater(pastEnd, g_fZero)) {
        return false;
    }
    if (pastEnd >= -g_fZero) {
        return AppendPoint(ray.GetBasePoint(), out);
    }
    return AppendSegment(ray.GetBasePoint(), seg.GetEndPoint(), out);
}

bool SegRay(const QnGeLineSeg2d& seg, const QnGeLineRay2d& ray, QnGeObjList& out) {
    const Meeting meeting(seg, ray);
    switch (meeting.code) {
        case INTERSECT_LINE:
            return SegRayOnOneLine(seg, ray, out);
        case INTERSECT_ONE:
            return IsOnSegment(meeting.tA) && IsOnRay(meeting.tB) && AppendPointAt(seg, meeting.tA, out);
        default:
            return false;
    }
}

/// Segments of one line: nothing, a touch at an end, or the common stretch in the direction of `seg`.
bool SegSegOnOneLine(const QnGeLineSeg2d& seg, const QnGeLineSeg2d& other, QnGeObjList& out) {
    double from = BaseLinePa(seg, other.GetBasePoint());
    double to = BaseLinePa(seg, other.GetEndPoint());
    if (to < from) {
        std::swap(from, to);
    }
    if (IsLess(to, g_fZero) || IsGreater(from - 1.0, g_fZero)) {
        return false;
    }
    if (IsZero(to, g_fZero)) {
        return AppendPoint(seg.GetBasePoint(), out);
    }
    if (IsZero(from - 1.0, g_fZero)) {
        return AppendPoint(seg.GetEndPoint(), out);
    }
    QnGePoint start;
    QnGePoint end;
    seg.GetPtFromPa(std::max(from, 0.0), start);
    seg.GetPtFromPa(std::min(to, 1.0), end);
    return AppendSegment(start, end, out);
}

bool SegSeg(const QnGeLineSeg2d& seg, const QnGeLineSeg2d& other, QnGeObjList& out) {
    const Meeting meeting(seg, other);
    switch (meeting.code) {
        case INTERSECT_LINE:
            return SegSegOnOneLine(seg, other, out);
        case INTERSECT_ONE:
            return IsOnSegment(meeting.tA) && IsOnSegment(meeting.tB) && AppendPointAt(seg, meeting.tA, out);
        default:
            return false;
    }
}

// ---- rows of inclusion -------------------------------------------------------------------------------

/// Whether two vectors are practically the same one: the only rays and segments that a ray takes for its own.
bool IsSameVector(const QnGeVector2d& a, const QnGeVector2d& b) {
    return IsZero(GetDistance2d(a, b), g_distZero);
}

/// Kept odd  Neither collinearity nor length is tested otherwise, so a parallel ray beside this one may be included.
bool RayIncludesRay(const QnGeLineRay2d& ray, const QnGeLineRay2d& other) {
    return IsSameVector(ray.GetVector(), other.GetVector()) && ray.IsSameDirection(other.GetVector(), false) &&
           IsOnRay(BaseLinePa(ray, other.GetBasePoint()));
}

/// Kept odd  As for rays: only a segment with the ray's very vector is included.
bool RayIncludesSeg(const QnGeLineRay2d& ray, const QnGeLineSeg2d& seg) {
    return IsSameVector(ray.GetVector(), seg.GetVector()) && IsOnRay(BaseLinePa(ray, seg.GetBasePoint())) &&
           IsOnRay(BaseLinePa(ray, seg.GetEndPoint()));
}

bool SegIncludesSeg(const QnGeLineSeg2d& seg, const QnGeLineSeg2d& other) {
    return seg.HitTest(other.GetBasePoint()).HasBit(HIT_ON) && seg.HitTest(other.GetEndPoint()).HasBit(HIT_ON);
}

}  // namespace

// ---- the dispatch ------------------------------------------------------------------------------------

bool QnGeLine2d::IntersectWith(const QnGeObject& other, QnGeObjList& out) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
            return LineLine(*this, static_cast<const QnGeLine2d&>(other), out);
        default:
            return qn_detail::HandOver(*this, other, out);
    }
}

bool QnGeLineRay2d::IntersectWith(const QnGeObject& other, QnGeObjList& out) const {
    if (m_reverse) {
        return ForwardCopy().IntersectWith(other, out);
    }
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
            return RayLine(*this, static_cast<const QnGeLine2d&>(other), out);
        case CLASS_ID_LINE_RAY2D:
            return RayRay(*this, static_cast<const QnGeLineRay2d&>(other), out);
        default:
            return qn_detail::HandOver(*this, other, out);
    }
}

bool QnGeLineSeg2d::IntersectWith(const QnGeObject& other, QnGeObjList& out) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
            return SegLine(*this, static_cast<const QnGeLine2d&>(other), out);
        case CLASS_ID_LINE_RAY2D:
            return SegRay(*this, static_cast<const QnGeLineRay2d&>(other), out);
        case CLASS_ID_LINE_SEG2D:
            return SegSeg(*this, static_cast<const QnGeLineSeg2d&>(other), out);
        default:
            return qn_detail::HandOver(*this, other, out);
    }
}

bool QnGeLine2d::IsInclude(const QnGeObject& other) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE2D:
        case CLASS_ID_LINE_RAY2D:
        case CLASS_ID_LINE_SEG2D:
            return IsSameLine(static_cast<const QnGeLine2d&>(other).GetBaseLine(), false, false);
        case CLASS_ID_CIRCLE2D:
        case CLASS_ID_ARC2D:
            return false;
        default:
            return QnGeCurve2d::IsInclude(other);
    }
}

bool QnGeLineRay2d::IsInclude(const QnGeObject& other) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE_RAY2D:
            return RayIncludesRay(*this, static_cast<const QnGeLineRay2d&>(other));
        case CLASS_ID_LINE_SEG2D:
            return RayIncludesSeg(*this, static_cast<const QnGeLineSeg2d&>(other));
        case CLASS_ID_LINE2D:
        case CLASS_ID_CIRCLE2D:
        case CLASS_ID_ARC2D:
            return false;
        default:
            return QnGeCurve2d::IsInclude(other);
    }
}

bool QnGeLineSeg2d::IsInclude(const QnGeObject& other) const {
    switch (other.GetClassID()) {
        case CLASS_ID_LINE_SEG2D:
            return SegIncludesSeg(*this, static_cast<const QnGeLineSeg2d&>(other));
        case CLASS_ID_LINE2D:
        case CLASS_ID_LINE_RAY2D:
        case CLASS_ID_CIRCLE2D:
        case CLASS_ID_ARC2D:
            return false;
        default:
            return QnGeCurve2d::IsInclude(other);
    }
}
