// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGePoint.h"
#include "values/QnGeVector3d.h"

class QnGeBasePlane;
class QnGeMatrix;

/// A coordinate system: an origin and three axes, which every way of setting them makes unit vectors.
///
/// Valid     Three unit axes, no two parallel. They need not stand upright on each other.
/// Kept odd  GetMatrixTo maps this system's coordinates onto the frame in which its origin and axes are written, and
///           TransToWcs applies the inverse. The names mirror each other so throughout the library.
class QUARNGEO_API QnGeCoordSys {
public:
    virtual ~QnGeCoordSys();

    QnGePoint origin;
    QnGeVector3d xAxis;
    QnGeVector3d yAxis;
    QnGeVector3d zAxis;

    /// The world system.
    static const QnGeCoordSys WCS;

    // ---- making: a constructor for each Set --------------------------------------------------------

    /// The world system: origin at 0 and the unit axes.
    constexpr QnGeCoordSys() : xAxis(1.0, 0.0, 0.0), yAxis(0.0, 1.0, 0.0), zAxis(0.0, 0.0, 1.0) {}
    QnGeCoordSys(const QnGePoint& base, const QnGeVector3d& x, const QnGeVector3d& y, const QnGeVector3d& z);
    QnGeCoordSys(const QnGePoint& base, const QnGeVector3d& v1, const QnGeVector3d& v2, bool rightHand);
    QnGeCoordSys(const QnGePoint& base, const QnGePoint& p1, const QnGePoint& p2, bool rightHand);
    QnGeCoordSys(const QnGePoint& base, const QnGeVector3d& z, bool rightHand);
    QnGeCoordSys(const QnGeBasePlane& plane, bool rightHand);
    QnGeCoordSys(const QnGeCoordSys&) = default;
    QnGeCoordSys& operator=(const QnGeCoordSys&) = default;

    void Set(const QnGePoint& base, const QnGeVector3d& x, const QnGeVector3d& y, const QnGeVector3d& z);
    /// The x axis along `v1`, the z axis upright on `v1` and `v2`, the y axis on the side of `v2`.
    void Set(const QnGePoint& base, const QnGeVector3d& v1, const QnGeVector3d& v2, bool rightHand);
    /// The same with the directions from `base` to two points. Both must be of exactly this type.
    void Set(const QnGePoint& base, const QnGePoint& p1, const QnGePoint& p2, bool rightHand);
    /// The z axis given, the x axis by QnGeVector3d::GetVertVector; null if `z` is.
    void Set(const QnGePoint& base, const QnGeVector3d& z, bool rightHand);
    /// At the plane's sample point, with its normal.
    void Set(const QnGeBasePlane& plane, bool rightHand);

    /// Becomes the world system.
    void Reset();
    void Normalize();
    bool IsValid() const;

    const QnGePoint& GetOrigin() const { return origin; }
    const QnGeVector3d& GetXAxis() const { return xAxis; }
    const QnGeVector3d& GetYAxis() const { return yAxis; }
    const QnGeVector3d& GetZAxis() const { return zAxis; }

    // ---- transforming ----------------------------------------------------------------------------

    /// Writes all 16 entries: the axes and the origin as columns.
    void GetMatrixTo(QnGeMatrix& matrix) const;
    /// The inverse of GetMatrixTo; if there is none, GetMatrixTo itself.
    void GetMatrixFrom(QnGeMatrix& matrix) const;

    /// Applies GetMatrixTo.
    void TransUcs(QnGePoint& p) const;
    void TransUcs(QnGeVector3d& v) const;
    /// Applies GetMatrixFrom.
    void TransToWcs(QnGePoint& p) const;
    void TransToWcs(QnGeVector3d& v) const;

    /// The origin as a point, the axes as vectors; the axes are normalised again.
    void TransformBy(const QnGeMatrix& matrix);
    /// The world system seen from this one. `cs` may be this system.
    void GetWcs(QnGeCoordSys& cs) const;

    /// The planes through the origin.
    void GetXYPlane(QnGeBasePlane& plane) const;
    void GetZXPlane(QnGeBasePlane& plane) const;
    void GetYZPlane(QnGeBasePlane& plane) const;
};
