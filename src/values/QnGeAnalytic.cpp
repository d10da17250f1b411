// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeAnalytic.h"

#include <cmath>

#include "values/detail/PathType.h"

namespace {

/// Parallel lines: are they one? n1 and n2 are the gap seen from either line.
int ParallelCode(double n1, double n2) {
    const bool apart = !IsZero((std::fabs(n1) + std::fabs(n2)) / 2.0, g_distZero);
    return apart ? INTERSECT_NONE : INTERSECT_LINE;
}

QnGePoint PointAt(const QnGePoint& base, const QnGeVector2d& dir, double t) {
    return QnGePoint(base.x + t * dir.x, base.y + t * dir.y, base.z + t * dir.z);
}

/// Where a line meets a circle, as the parameter of the foot of the perpendicular and the way from there to the points.
struct LineCircleMeeting {
    int code;
    double foot;
    double reach;  ///< set when there are two points
};

LineCircleMeeting MeetLineCircle(const QnGePoint& center, double radius, const QnGePoint& base,
                                 const QnGeVector2d& dir) {
    const QnGeVector2d d(center, base);
    const double b = 2.0 * (dir & d);
    const double foot = -b / 2.0;
    const double gap = GetDistance2d(PointAt(base, dir, foot), center) - radius;
    if (gap > -g_distZero && gap <= g_distZero) {
        return {INTERSECT_ONE, foot, 0.0};
    }
    const double disc = (b * b - 4.0 * ((d & d) - radius * radius)) / 4.0;
    if (IsLess(disc, g_fZero)) {
        return {INTERSECT_NONE, foot, 0.0};
    }
    if (IsGreater(disc, g_fZero)) {
        const double reach = std::sqrt(disc);
        if (IsGreater(reach, g_fZero)) {
            return {INTERSECT_TWO, foot, reach};
        }
    }
    return {INTERSECT_ONE, foot, 0.0};
}

/// The two points of circles that truly cross, seen from the larger one.
void CrossCircles(const QnGePoint& c1, double r1, const QnGePoint& c2, double r2, QnGePoint& q1, QnGePoint& q2) {
    const bool secondIsLarger = r2 > r1;
    const QnGePoint from = secondIsLarger ? c2 : c1;
    const double r = secondIsLarger ? r2 : r1;
    const double otherRadius = secondIsLarger ? r1 : r2;
    QnGeVector2d along = secondIsLarger ? QnGeVector2d(c2, c1) : QnGeVector2d(c1, c2);
    const double dist = along.Length();
    const double z = c1.z;

    const double k = (r * r + dist * dist - otherRadius * otherRadius) / (2.0 * r * dist);
    const double square = 1.0 - k * k;  // rounding may leave it below 0 at huge radii
    QnGeVector2d across;
    along.GetLeftVertVector(across);
    across.SetLength(r * std::sqrt(square > 0.0 ? square : 0.0));
    along.SetLength(r * k);
    q1.SetPoint(from.x + along.x + across.x, from.y + along.y + across.y, z);
    q2.SetPoint(from.x + along.x - across.x, from.y + along.y - across.y, z);
}

/// The point at `way` times v from c, at c's height.
QnGePoint TouchPoint(const QnGePoint& c, const QnGeVector2d& v, double way) {
    return QnGePoint(c.x + v.x * way, c.y + v.y * way, c.z);
}

}  // namespace

// ---- turns and sides -----------------------------------------------------------------------------

int GetPathType(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c) {
    return qn_detail::PathTypeOf(a, b, c);
}

QnBitData HitTestAtCorner2d(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c, const QnGePoint& p) {
    const int turn = GetPathType(a, b, c);
    const int first = GetPathType(a, b, p);
    if (turn == PATH_STRAIGHT) {
        return first == PATH_LEFT ? HIT_IN : (first == PATH_RIGHT ? HIT_OUT : HIT_ON);
    }
    // The sector within the turn is where both legs have p on the side to which the path turns.
    const int second = GetPathType(b, c, p);
    const int away = turn == PATH_LEFT ? PATH_RIGHT : PATH_LEFT;
    if (first == turn && second == turn) {
        return turn == PATH_LEFT ? HIT_IN : HIT_OUT;
    }
    if ((first == PATH_STRAIGHT && second != away) || (second == PATH_STRAIGHT && first != away)) {
        return HIT_ON;
    }
    return turn == PATH_LEFT ? HIT_OUT : HIT_IN;
}

bool IsCrossSeg2d(const QnGePoint& a1, const QnGePoint& a2, const QnGePoint& b1, const QnGePoint& b2) {
    return HitTestAtCorner2d(b2, a1, b1, a2).HasBit(HIT_IN);
}

// ---- lines ---------------------------------------------------------------------------------------

int LineIntersect2d(const QnGePoint& p1, const QnGeVector2d& v1, const QnGePoint& p2, const QnGeVector2d& v2,
                    double& t1, double& t2) {
    const double dx = p1.x - p2.x;
    const double dy = p1.y - p2.y;
    const double det = v1.x * v2.y - v1.y * v2.x;
    const double n1 = v2.x * dy - v2.y * dx;
    const double n2 = v1.x * dy - v1.y * dx;
    if (IsZero(det, g_fZero)) {
        return ParallelCode(n1, n2);
    }
    t1 = n1 / det;
    t2 = n2 / det;
    return INTERSECT_ONE;
}

int LineIntersect2d(const QnGePoint& p1, const QnGeVector2d& v1, const QnGePoint& p2, const QnGeVector2d& v2,
                    double& t1) {
    double ignored = 0.0;
    return LineIntersect2d(p1, v1, p2, v2, t1, ignored);
}

int LineIntersect3d(const QnGePoint& p1, const QnGeVector3d& v1, const QnGePoint& p2, const QnGeVector3d& v2,
                    double& t1) {
    const QnGeVector3d d(p1, p2);
    QnGeVector3d w(d);
    w.Normalize();
    const QnGeVector3d n1 = v1 * w;
    const QnGeVector3d n2 = v2 * w;
    if (!n1.IsParallelWith(n2, true)) {
        return INTERSECT_NONE;  // skew
    }
    const double detXY = v2.y * v1.x - v2.x * v1.y;
    if (!IsZero(detXY, g_fZero)) {
        t1 = (v2.y * d.x - v2.x * d.y) / detXY;
        return INTERSECT_ONE;
    }
    const double detXZ = v2.z * v1.x - v2.x * v1.z;
    if (!IsZero(detXZ, g_fZero)) {
        t1 = (v2.z * d.x - v2.x * d.z) / detXZ;
        return INTERSECT_ONE;
    }
    const double detYZ = v2.y * v1.z - v2.z * v1.y;
    if (!IsZero(detYZ, g_fZero)) {
        t1 = (v2.y * d.z - v2.z * d.y) / detYZ;
        return INTERSECT_ONE;
    }
    return v1.IsParallelWith(w, true) ? INTERSECT_LINE : INTERSECT_NONE;
}

// ---- circles -------------------------------------------------------------------------------------

int LineCirIntersect2d(const QnGePoint& center, double radius, const QnGePoint& base, const QnGeVector2d& dir,
                       double& t1, double& t2) {
    const LineCircleMeeting meeting = MeetLineCircle(center, radius, base, dir);
    if (meeting.code == INTERSECT_ONE) {
        t1 = meeting.foot;
    } else if (meeting.code == INTERSECT_TWO) {
        t1 = meeting.foot - meeting.reach;
        t2 = meeting.foot + meeting.reach;
    }
    return meeting.code;
}

int LineCirIntersect2d(const QnGePoint& center, double radius, const QnGePoint& base, const QnGeVector2d& dir,
                       QnGePoint& q1, QnGePoint& q2) {
    const LineCircleMeeting meeting = MeetLineCircle(center, radius, base, dir);
    if (meeting.code == INTERSECT_ONE) {
        q1 = PointAt(base, dir, meeting.foot);
    } else if (meeting.code == INTERSECT_TWO) {
        // either output may be one of the arguments
        const QnGePoint near = PointAt(base, dir, meeting.foot - meeting.reach);
        const QnGePoint far = PointAt(base, dir, meeting.foot + meeting.reach);
        q1 = near;
        q2 = far;
    }
    return meeting.code;
}

int CircleIntersect2d(const QnGePoint& c1, double r1, const QnGePoint& c2, double r2, QnGePoint& q1, QnGePoint& q2) {
    const QnGeVector2d v(c1, c2);
    if (v.IsNullVector()) {
        return IsZero(r1 - r2, g_distZero) ? INTERSECT_SAME_CIRCLE : INTERSECT_NONE;
    }
    const double dist = v.Length();
    const double inner = dist - std::fabs(r1 - r2);  // 0 where one touches the other from inside
    const double outer = dist - r1 - r2;             // 0 where they touch from outside
    if (IsLess(inner, g_distZero) || IsGreater(outer, g_distZero)) {
        return INTERSECT_NONE;
    }
    const bool touchInside = IsZero(inner, g_distZero);
    const bool touchOutside = IsZero(outer, g_distZero);
    if (!touchInside && !touchOutside) {
        QnGePoint left;
        QnGePoint right;
        CrossCircles(c1, r1, c2, r2, left, right);
        q1 = left;
        q2 = right;
        return INTERSECT_TWO;
    }
    if (!touchInside) {
        q1 = TouchPoint(c1, v, r1 / dist);
        return INTERSECT_ONE;
    }
    const double way = r1 > r2 ? r1 : -r1;
    q1 = TouchPoint(c1, v, way / dist);
    return INTERSECT_ONE;
}

void CreateCircle2d(const QnGePoint& p1, const QnGePoint& p2, double angle, QnGePoint& center, double& radius) {
    const QnGeVector2d chord(p1, p2);
    const double r = std::fabs(chord.Length() / (2.0 * std::sin(angle / 2.0)));
    QnGeVector2d v;
    chord.GetLeftVertVector(v);
    v.SetLength(std::fabs(std::cos(angle / 2.0) * r));

    QnGePoint mid((p1.x + p2.x) / 2.0, (p1.y + p2.y) / 2.0, p1.z);
    const double tol = g_angleZero;
    const bool toLeft = (IsGreater(angle, tol) && IsLess(angle - QN_PI, tol)) || IsLess(angle + QN_PI, tol);
    const bool toRight = (IsLess(angle, tol) && IsGreater(angle + QN_PI, tol)) || IsGreater(angle - QN_PI, tol);
    if (toLeft) {
        mid.SetPoint(mid.x + v.x, mid.y + v.y);
    } else if (toRight) {
        mid.SetPoint(mid.x - v.x, mid.y - v.y);
    }
    center = mid;
    radius = r;
}

void CreateCircle2d(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3, QnGePoint& center, double& radius) {
    const QnGePoint mid1((p1.x + p2.x) / 2.0, (p1.y + p2.y) / 2.0);
    const QnGePoint mid2((p2.x + p3.x) / 2.0, (p2.y + p3.y) / 2.0);
    QnGeVector2d normal1;
    QnGeVector2d normal2;
    QnGeVector2d(p1, p2).GetLeftVertVector(normal1);
    QnGeVector2d(p2, p3).GetLeftVertVector(normal2);
    normal1.Normalize();
    normal2.Normalize();

    double t = 0.0;  // stays where the points are collinear
    LineIntersect2d(mid1, normal1, mid2, normal2, t);
    const QnGePoint found(mid1.x + t * normal1.x, mid1.y + t * normal1.y, p1.z);
    radius = GetDistance2d(found, p1);
    center = found;
}

// ---- planes --------------------------------------------------------------------------------------

int LinePlaneIntersect3d(double a, double b, double c, double d, const QnGePoint& p, const QnGeVector3d& v, double& t) {
    const QnGeVector3d n(a, b, c);
    const double den = n & v;
    const double num = -d - (n & p);
    if (IsZero(den, g_fZero)) {
        return IsZero(num, g_fZero) ? INTERSECT_LINE : INTERSECT_NONE;
    }
    t = num / den;
    return INTERSECT_ONE;
}

int LinePlaneIntersect3d(double a, double b, double c, double d, const QnGePoint& p, const QnGeVector3d& v,
                         QnGePoint& q) {
    double t = 0.0;
    const int code = LinePlaneIntersect3d(a, b, c, d, p, v, t);
    if (code == INTERSECT_ONE) {
        q = p + v * t;
    }
    return code;
}

int PlaneIntersect3d(double a1, double b1, double c1, double d1, double a2, double b2, double c2, double d2,
                     QnGePoint& q, QnGeVector3d& dir) {
    const double e1 = b1 * c2 - c1 * b2;
    const double e2 = c1 * a2 - a1 * c2;
    const double e3 = a1 * b2 - b1 * a2;
    if (!IsZero(e3, g_fZero)) {
        q.SetPoint((b1 * d2 - b2 * d1) / e3, (a2 * d1 - a1 * d2) / e3, 0.0);
    } else if (!IsZero(e2, g_fZero)) {
        q.SetPoint((c2 * d1 - c1 * d2) / e2, 0.0, (a1 * d2 - a2 * d1) / e2);
    } else if (!IsZero(e1, g_fZero)) {
        q.SetPoint(0.0, (c1 * d2 - c2 * d1) / e1, (b2 * d1 - b1 * d2) / e1);
    } else {
        return IsZero(a1 * d2 - a2 * d1, g_fZero) ? INTERSECT_SAME_PLANE : INTERSECT_NONE;
    }
    dir = QnGeVector3d(e1, e2, e3);
    dir.Normalize();
    return INTERSECT_LINE;
}

// ---- area integrals ------------------------------------------------------------------------------

double LineIntegration2d(const QnGePoint& p, const QnGeVector2d& v, double t1, double t2) {
    if (IsZero(v.x, g_fZero)) {
        return 0.0;
    }
    return (v.y * (t2 + t1) / 2.0 + p.y) * v.x * (t2 - t1);
}

double CircleIntegration2d(const QnGePoint& center, double radius, double a1, double a2) {
    const auto primitive = [&center, radius](double a) {
        return radius * std::sin(2.0 * a) / 4.0 + center.y * std::cos(a) - radius * a / 2.0;
    };
    return (primitive(a2) - primitive(a1)) * radius;
}
