// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "values/QnGePoint.h"
#include "values/QnGeVector2d.h"

class QnGeBaseCircle;
class QnGeMatrix;

/// An infinite line in the plan: a base point and a direction, which need not be a unit vector.
///
/// Parameter  t counts in units of the direction: 0 is the base point, 1 is base + direction. So on a line through two
///            points t runs from 0 at the first to 1 at the second.
/// Z          Points on the line are computed on all three coordinates; everything else is in the plan.
/// Valid      length of the direction > g_distZero. The default line is not.
///
/// A `normalized` argument means that the caller vouches for unit directions; t is in this line's units either way.
class QUARNGEO_API QnGeBaseLine2d : public QnGeVector2d {
public:
    QnGePoint basePoint;
    double& dx = x;  ///< the direction's coordinates under a second name; never bound to another line's
    double& dy = y;
    double& dz = z;

    // ---- making ----------------------------------------------------------------------------------

    /// A null direction at the origin.
    QnGeBaseLine2d() = default;
    QnGeBaseLine2d(const QnGeVector2d& direction, const QnGePoint& base) : QnGeVector2d(direction), basePoint(base) {}
    /// Through two points. Two bare points always mean this form: a direction must be a QnGeVector2d.
    QnGeBaseLine2d(const QnGePoint& p1, const QnGePoint& p2) : QnGeVector2d(p1, p2), basePoint(p1) {}
    QnGeBaseLine2d(const QnGeBaseLine2d& other) : QnGeVector2d(other), basePoint(other.basePoint) {}
    QnGeBaseLine2d& operator=(const QnGeBaseLine2d& other) {
        SetVector(other);
        basePoint = other.basePoint;
        return *this;
    }

    void SetVector(const QnGeVector2d& direction) { QnGeVector2d::operator=(direction); }
    void SetBasePoint(const QnGePoint& p) { basePoint = p; }
    void SetPoint(const QnGePoint& p1, const QnGePoint& p2);
    const QnGePoint& GetBasePoint() const { return basePoint; }
    const QnGeVector2d& GetVector() const { return *this; }

    void TransformBy(const QnGeMatrix& matrix);
    /// Moves the line by `d` to the right of its direction, to the left if negative.
    void Offset(double d);

    // ---- parameters; always true -----------------------------------------------------------------

    /// From the coordinate along which the direction is the longer, y on a tie. The point is not projected first.
    bool GetPaFromPt(const QnGePoint& p, double& t) const;
    bool GetPtFromPa(double t, QnGePoint& p) const;
    bool GetDistFromPa(double t, double& d) const;
    bool GetPaFromDist(double d, double& t) const;

    /// Integral of y dx from `t1` to `t2`.
    double Integration(double t1, double t2) const;

    // ---- where it meets others -------------------------------------------------------------------

    /// 0 nowhere, 1 in one point, 10 the same line. See LineIntersect2d.
    ///
    /// Fails  On 0 and 10 the outputs stay as they were.
    int IntersectWith(const QnGeBaseLine2d& o, double& t1, double& t2, bool normalized) const;
    int IntersectWith(const QnGeBaseLine2d& o, double& t, bool normalized) const;
    int IntersectWith(const QnGeBaseLine2d& o, QnGePoint& p, bool normalized) const;
    /// The number of points, 0 to 2. See LineCirIntersect2d.
    int IntersectWith(const QnGeBaseCircle& circle, double& t1, double& t2, bool normalized) const;

    /// The foot of the perpendicular from `p`.
    ///
    /// Fails  A null direction gives the base point and false.
    bool GetNearestPoint(const QnGePoint& p, QnGePoint& q) const;

    /// HIT_ON, else HIT_IN to the left and HIT_OUT to the right of the direction.
    ///
    /// Tolerance  g_distZero for HIT_ON, none for the side.
    QnBitData HitTest(const QnGePoint& p, bool normalized) const;

    /// The directions are parallel and the base point of `o` is on this line.
    ///
    /// Direction  With `sameDirection` the directions must also be less than a quarter turn apart.
    bool IsSameLine(const QnGeBaseLine2d& o, bool sameDirection, bool normalized) const;
};
