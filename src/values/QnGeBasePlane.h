// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/QnBitData.h"
#include "values/QnGePoint.h"
#include "values/QnGeVector3d.h"

class QnGeBaseLine3d;
class QnGeMatrix;

/// A plane: a x + b y + c z + d = 0, with the normal (a, b, c), which need not be a unit vector.
///
/// Valid  length of the normal > g_distZero. The default plane is not.
///
/// A `normalized` argument means that the caller vouches for unit normals and directions.
class QUARNGEO_API QnGeBasePlane : public QnGeVector3d {
public:
    double& a = x;  ///< the normal's coordinates under a second name; never bound to another plane's
    double& b = y;
    double& c = z;
    double d = 0.0;

    // ---- making ----------------------------------------------------------------------------------

    QnGeBasePlane() = default;
    QnGeBasePlane(const QnGeVector3d& normal, const QnGePoint& point) : QnGeVector3d(normal), d(-(normal & point)) {}
    QnGeBasePlane(const QnGeBasePlane& other) : QnGeVector3d(other), d(other.d) {}
    QnGeBasePlane& operator=(const QnGeBasePlane& other) {
        SetNormal(other);
        d = other.d;
        return *this;
    }

    /// d stays.
    void SetNormal(const QnGeVector3d& normal) { QnGeVector3d::operator=(normal); }
    /// Moves the plane through `p`.
    void SetBasePoint(const QnGePoint& p) { d = -(*this & p); }
    const QnGeVector3d& GetNormal() const { return *this; }
    double GetD() const { return d; }

    /// Where the plane meets the coordinate axis along which its normal is longest: x only if it is strictly the
    /// longest, z before y unless y is strictly the longer.
    QnGePoint GetSamplePoint() const;

    void TransformBy(const QnGeMatrix& matrix);
    /// Divides a, b, c and d by the normal's length.
    ///
    /// Fails  False, unchanged, if that is not above g_fZero.
    bool Normalize();

    // ---- where it meets others -------------------------------------------------------------------

    /// 10 the planes meet in `line`, 0 nowhere, 12 the same plane. See PlaneIntersect3d.
    int IntersectWith(const QnGeBasePlane& o, QnGeBaseLine3d& line, bool normalized) const;
    /// 1 in one point, 0 nowhere, 10 the line lies in the plane. See LinePlaneIntersect3d.
    ///
    /// Units  t in the line's own units.
    int IntersectWith(const QnGeBaseLine3d& line, QnGePoint& p, bool normalized) const;
    int IntersectWith(const QnGeBaseLine3d& line, double& t, bool normalized) const;

    /// The foot of the perpendicular from `p`.
    ///
    /// Fails  False, `q` as it was, if there is no normal.
    bool GetNearestPoint(const QnGePoint& p, QnGePoint& q) const;

    /// HIT_ON, else HIT_OUT on the side to which the normal points and HIT_IN on the other.
    ///
    /// Tolerance  g_distZero for HIT_ON, none for the side.
    QnBitData HitTest(const QnGePoint& p, bool normalized) const;

    /// The normals are parallel and the sample point of `o` is on this plane.
    ///
    /// Direction  With `sameDirection` the normals must also be less than a quarter turn apart.
    bool IsSamePlane(const QnGeBasePlane& o, bool sameDirection, bool normalized) const;
};
