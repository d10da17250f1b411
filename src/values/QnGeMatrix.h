// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGePoint.h"
#include "values/QnGeVector2d.h"
#include "values/QnGeVector3d.h"

class QnGeBaseLine2d;
class QnGeBaseLine3d;
class QnGeBasePlane;
class QnGeCoordSys;

/// A 4 by 4 homogeneous transform on column vectors, stored row by row; the translation is the last column.
///
/// The Create...Matrix operations write only the entries that they name and leave the rest: start from the identity,
/// which is what the constructor makes.
class QUARNGEO_API QnGeMatrix {
public:
    double m[4][4];

    /// The identity.
    QnGeMatrix();
    double* operator[](int row) { return m[row]; }
    const double* operator[](int row) const { return m[row]; }

    void InitIdentity();
    /// 16 floats, row by row.
    void Export(float* out) const;
    QnGeMatrix& operator=(const float* in);

    // ---- transforming, in place ------------------------------------------------------------------

    void Transform(QnGePoint& p) const;
    /// Without the translation.
    ///
    /// Kept odd  The homogeneous divisor keeps its last entry, so a mirror that works through it turns directions too.
    void Transform(QnGeVector3d& v) const;
    /// x and y without the translation; z stays and plays no part.
    void Transform(QnGeVector2d& v) const;
    /// x and y with the translation; z stays and plays no part.
    void Transform2D(QnGePoint& p) const;

    // ---- composing; arguments may be this matrix ---------------------------------------------------

    /// this = this times `a`: `a` acts first on points.
    void PostMultiBy(const QnGeMatrix& a);
    /// this = `a` times this: `a` acts last on points.
    void PreMultiBy(const QnGeMatrix& a);
    QnGeMatrix& operator*=(const QnGeMatrix& a);
    QnGeMatrix operator*(const QnGeMatrix& a) const;

    /// The determinant.
    ///
    /// Kept odd  The name.
    double Rank() const;
    /// Tolerance  g_fZero on the determinant.
    bool CanReverse() const;
    /// Becomes its inverse, by Cramer's rule.
    ///
    /// Fails  False, unchanged, if the determinant is zero under g_fZero.
    bool Reverse();
    /// Becomes its transpose.
    void Swap();

    /// Whether it turns a plan figure over.
    ///
    /// Kept odd  Looks at where the x and y axis go: a half turn about an axis in the plan counts too, and a
    ///           mirror that shrinks to a thousandth or less does not.
    bool IsMirrorMat() const;

    // ---- building: moves, scales, turns ------------------------------------------------------------

    void CreateMoveMatrix(double moveX, double moveY);
    void CreateMoveMatrix(double moveX, double moveY, double moveZ);
    void CreateMoveMatrix(const QnGeVector2d& move);
    void CreateMoveMatrix(const QnGeVector3d& move);

    void CreateScaleMatrix(double sx, double sy);
    void CreateScaleMatrix(double sx, double sy, double sz);
    /// About `base`, which stays where it is.
    void CreateScaleMatrix(double sx, double sy, const QnGePoint& base);
    void CreateScaleMatrix(double sx, double sy, double sz, const QnGePoint& base);

    /// Direction  Counter-clockwise for a viewer at whom the axis points.
    void CreateXRotateMatrix(double angle);
    void CreateYRotateMatrix(double angle);
    void CreateZRotateMatrix(double angle);
    /// In the plan, about `base`.
    void CreateRotateMatrix(double angle, const QnGePoint& base);
    /// About a line in space.
    ///
    /// Direction  Counter-clockwise for a viewer at whom the line points.
    /// Fails      Nothing happens if the line has no direction.
    /// Kept odd   A line along the x axis divides by zero: the entries are not numbers.
    void CreateRotateMatrix(double angle, const QnGeBaseLine3d& axis);

    // ---- building: projections and mirrors --------------------------------------------------------

    /// Onto the xy plane, along z.
    void CreateXYProjectMatrix();
    /// Onto the xy plane, along `dir`, or from the eye point `dir` if `parallel` is false.
    ///
    /// Fails  False, unchanged, if dir.z is zero under g_distZero.
    bool CreateXYProjectMatrix(const QnGePoint& dir, bool parallel);
    /// Onto a plane, along `dir`, or from the eye point `dir` if `parallel` is false.
    ///
    /// Fails  False, unchanged, if the direction runs along the plane or the eye lies on it.
    bool CreateProjectMatrix(const QnGeBasePlane& plane, const QnGePoint& dir, bool parallel);

    /// Reflection through a point.
    void CreateMirrorMatrix(const QnGePoint& center);
    /// Reflection in a plane.
    void CreateMirrorMatrix(const QnGeBasePlane& plane);
    /// Half turn about a line in space.
    void CreateMirrorMatrix(const QnGeBaseLine3d& axis);
    /// Mirror in a line in the plan.
    ///
    /// Z  Mirrored at the height of the line's base point.
    void CreateMirrorMatrix(const QnGeBaseLine2d& axis);

    // ---- coordinate systems ----------------------------------------------------------------------

    /// The system into which this matrix takes the world's.
    void GetCoordSys(QnGeCoordSys& cs) const;
    /// Becomes GetMatrixTo of the system that the same arguments set.
    void SetCoordSys(const QnGePoint& origin, const QnGeVector3d& x, const QnGeVector3d& y, const QnGeVector3d& z);
    void SetCoordSys(const QnGePoint& origin, const QnGeVector3d& v1, const QnGeVector3d& v2, bool rightHand);
    void SetCoordSys(const QnGePoint& origin, const QnGePoint& p1, const QnGePoint& p2, bool rightHand);
    void SetCoordSys(const QnGePoint& origin, const QnGeVector3d& z, bool rightHand);
    void SetCoordSys(const QnGeBasePlane& plane, bool rightHand);

    /// The system at the origin with the normal `z`.
    ///
    /// Kept odd  The names are the wrong way round: the first maps coordinates on the plane to world coordinates.
    void SetToWorldToPlane(const QnGeVector3d& z);
    void SetToPlaneToWorld(const QnGeVector3d& z);
    /// this = W times this times P, with W of SetToWorldToPlane and P of SetToPlaneToWorld.
    void ConvertToPlane(const QnGeVector3d& z);
};
