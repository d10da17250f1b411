// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"
#include "values/QnGePoint.h"

class QnGeBaseLine2d;
class QnGeVector2d;

/// A circle in the plan, without a direction of travel.
///
/// Parameter  The angle from the +x direction in radians, counter-clockwise, not wrapped.
/// Z          That of the centre, for all points.
/// Valid      radius > g_distZero.
class QUARNGEO_API QnGeBaseCircle {
public:
    QnGePoint center;
    double radius = 0.0;

    // ---- making ----------------------------------------------------------------------------------

    /// Radius 0 at the origin.
    QnGeBaseCircle() = default;
    QnGeBaseCircle(const QnGePoint& centerPoint, double r) : center(centerPoint), radius(r) {}
    /// Through three points, or two and the included angle between them. See CreateCircle2d.
    QnGeBaseCircle(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3) { CreateFrom(p1, p2, p3); }
    QnGeBaseCircle(const QnGePoint& p1, const QnGePoint& p2, double angle) { CreateFrom(p1, p2, angle); }

    void CreateFrom(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3);
    void CreateFrom(const QnGePoint& p1, const QnGePoint& p2, double angle);

    void SetCenter(const QnGePoint& p) { center = p; }
    void SetRadius(double r) { radius = r; }
    const QnGePoint& GetCenter() const { return center; }
    double GetRadius() const { return radius; }

    bool IsValid() const { return IsGreater(radius, g_distZero); }
    /// Same radius, and same centre in the plan.
    ///
    /// Tolerance  g_distZero.
    bool operator==(const QnGeBaseCircle& o) const;

    double Length() const { return QN_TWO_PI * radius; }
    double Area() const { return QN_PI * radius * radius; }

    /// Grows the radius by `d`, shrinks it if negative.
    ///
    /// Fails  False, unchanged, if the radius would not stay above g_fZero.
    bool Offset(double d);

    // ---- parameters ------------------------------------------------------------------------------

    /// Always true.
    bool GetPtFromPa(double a, QnGePoint& p) const;
    /// The direction in which `p` lies; it need not be on the circle.
    ///
    /// Fails  False, `a` as it was, at the centre.
    bool GetPaFromPt(const QnGePoint& p, double& a) const;
    /// Always true.
    bool GetDistFromPa(double a, double& d) const;
    bool GetPaFromDist(double d, double& a) const;

    /// The counter-clockwise tangent direction, of the length of the radius vector.
    void GetDirection(const QnGePoint& p, QnGeVector2d& direction) const;
    void GetDirection(double a, QnGeVector2d& direction) const;
    /// The counter-clockwise tangent, a line with unit direction based on the point.
    void GetTangent(double a, QnGeBaseLine2d& line) const;

    /// Integral of y dx from angle `a1` to `a2`.
    double Integration(double a1, double a2) const;

    // ---- where it meets others -------------------------------------------------------------------

    /// HIT_ON on the circle, HIT_IN within, HIT_OUT beyond.
    ///
    /// Tolerance  g_distZero on the distance.
    /// Kept odd   A plain number, not a QnBitData.
    int HitTest(const QnGePoint& p) const;

    /// The number of points, 0 to 2. See LineCirIntersect2d.
    int IntersectWith(const QnGeBaseLine2d& line, QnGePoint& q1, QnGePoint& q2, bool normalized) const;
    /// The number of points, 0 to 2; 11 for the same circle. See CircleIntersect2d.
    int IntersectWith(const QnGeBaseCircle& o, QnGePoint& q1, QnGePoint& q2) const;

    /// The point of the circle nearest to `p` in the plan.
    ///
    /// Fails     False, `q` as it was, at the centre.
    /// Kept odd  The line through the centre and `p` is intersected: on a circle smaller than about 3e-5, and for `p`
    ///           straight above the centre, the answer is the centre in the plan.
    bool GetNearestPoint(const QnGePoint& p, QnGePoint& q) const;
};
