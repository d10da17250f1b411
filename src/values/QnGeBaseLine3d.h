// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "values/QnGePoint.h"
#include "values/QnGeVector3d.h"

class QnGeMatrix;

/// An infinite line in space: a base point and a direction, which need not be a unit vector.
///
/// Parameter  t counts in units of the direction: 0 is the base point, 1 is base + direction.
/// Valid      length of the direction > g_distZero. The default line is not.
///
/// A `normalized` argument means that the caller vouches for unit directions; t is in this line's units either way.
class QUARNGEO_API QnGeBaseLine3d : public QnGeVector3d {
public:
    QnGePoint basePoint;
    double& dx = x;  ///< the direction's coordinates under a second name; never bound to another line's
    double& dy = y;
    double& dz = z;

    // ---- making ----------------------------------------------------------------------------------

    /// A null direction at the origin.
    QnGeBaseLine3d() = default;
    QnGeBaseLine3d(const QnGeVector3d& direction, const QnGePoint& base) : QnGeVector3d(direction), basePoint(base) {}
    /// Through two points. Two bare points always mean this form: a direction must be a QnGeVector3d.
    QnGeBaseLine3d(const QnGePoint& p1, const QnGePoint& p2) : QnGeVector3d(p1, p2), basePoint(p1) {}
    QnGeBaseLine3d(const QnGeBaseLine3d& other) : QnGeVector3d(other), basePoint(other.basePoint) {}
    QnGeBaseLine3d& operator=(const QnGeBaseLine3d& other) {
        SetVector(other);
        basePoint = other.basePoint;
        return *this;
    }

    void SetVector(const QnGeVector3d& direction) { QnGeVector3d::operator=(direction); }
    void SetBasePoint(const QnGePoint& p) { basePoint = p; }
    void SetPoint(const QnGePoint& p1, const QnGePoint& p2);
    const QnGePoint& GetBasePoint() const { return basePoint; }
    const QnGeVector3d& GetVector() const { return *this; }

    void TransformBy(const QnGeMatrix& matrix);

    // ---- parameters; always true -----------------------------------------------------------------

    /// From the coordinate along which the direction is the longest. The point is not projected first.
    bool GetPaFromPt(const QnGePoint& p, double& t) const;
    bool GetPtFromPa(double t, QnGePoint& p) const;
    bool GetDistFromPa(double t, double& d) const;
    bool GetPaFromDist(double d, double& t) const;

    // ---- where it meets others -------------------------------------------------------------------

    /// 0 nowhere, 1 in one point, 10 the same line. See LineIntersect3d.
    ///
    /// Fails  On 0 and 10 the outputs stay as they were.
    int IntersectWith(const QnGeBaseLine3d& o, double& t1, double& t2, bool normalized) const;
    int IntersectWith(const QnGeBaseLine3d& o, double& t, bool normalized) const;
    int IntersectWith(const QnGeBaseLine3d& o, QnGePoint& p, bool normalized) const;

    /// The foot of the perpendicular from `p`.
    ///
    /// Fails  A null direction gives the base point and false.
    bool GetNearestPoint(const QnGePoint& p, QnGePoint& q) const;

    /// HIT_ON or nothing: a line in space has no sides.
    ///
    /// Tolerance  g_distZero, on the distance, or on the cross product of the unit vectors along the line and to `p`,
    ///            so that the line widens far from its base point.
    QnBitData HitTest(const QnGePoint& p, bool normalized) const;

    /// The directions are parallel and the base point of `o` is on this line.
    ///
    /// Direction  With `sameDirection` the directions must also be less than a quarter turn apart.
    bool IsSameLine(const QnGeBaseLine3d& o, bool sameDirection, bool normalized) const;

    /// Not skew: the lines meet or are parallel.
    bool IsInSamePlane(const QnGeBaseLine3d& o) const;
};
