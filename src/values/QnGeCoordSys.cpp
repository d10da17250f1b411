// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeCoordSys.h"

#include "values/QnGeBasePlane.h"
#include "values/QnGeMatrix.h"

const QnGeCoordSys QnGeCoordSys::WCS;

QnGeCoordSys::QnGeCoordSys(const QnGePoint& base, const QnGeVector3d& x, const QnGeVector3d& y, const QnGeVector3d& z) {
    Set(base, x, y, z);
}

QnGeCoordSys::QnGeCoordSys(const QnGePoint& base, const QnGeVector3d& v1, const QnGeVector3d& v2, bool rightHand) {
    Set(base, v1, v2, rightHand);
}

QnGeCoordSys::QnGeCoordSys(const QnGePoint& base, const QnGePoint& p1, const QnGePoint& p2, bool rightHand) {
    Set(base, p1, p2, rightHand);
}

QnGeCoordSys::QnGeCoordSys(const QnGePoint& base, const QnGeVector3d& z, bool rightHand) {
    Set(base, z, rightHand);
}

QnGeCoordSys::QnGeCoordSys(const QnGeBasePlane& plane, bool rightHand) {
    Set(plane, rightHand);
}

QnGeCoordSys::~QnGeCoordSys() = default;

void QnGeCoordSys::Set(const QnGePoint& base, const QnGeVector3d& x, const QnGeVector3d& y, const QnGeVector3d& z) {
    // the arguments may be axes of this system
    const QnGeVector3d newX(x);
    const QnGeVector3d newY(y);
    const QnGeVector3d newZ(z);
    origin = base;
    xAxis = newX;
    yAxis = newY;
    zAxis = newZ;
    Normalize();
}

void QnGeCoordSys::Set(const QnGePoint& base, const QnGeVector3d& v1, const QnGeVector3d& v2, bool rightHand) {
    const QnGeVector3d z = rightHand ? v1 * v2 : v2 * v1;
    const QnGeVector3d y = rightHand ? z * v1 : v1 * z;
    Set(base, v1, y, z);
}

void QnGeCoordSys::Set(const QnGePoint& base, const QnGePoint& p1, const QnGePoint& p2, bool rightHand) {
    Set(base, QnGeVector3d(base, p1), QnGeVector3d(base, p2), rightHand);
}

void QnGeCoordSys::Set(const QnGePoint& base, const QnGeVector3d& z, bool rightHand) {
    QnGeVector3d x;
    z.GetVertVector(x);
    const QnGeVector3d y = rightHand ? z * x : x * z;
    Set(base, x, y, z);
}

void QnGeCoordSys::Set(const QnGeBasePlane& plane, bool rightHand) {
    Set(plane.GetSamplePoint(), plane.GetNormal(), rightHand);
}

void QnGeCoordSys::Reset() {
    *this = WCS;
}

void QnGeCoordSys::Normalize() {
    xAxis.Normalize();
    yAxis.Normalize();
    zAxis.Normalize();
}

bool QnGeCoordSys::IsValid() const {
    const bool unit = xAxis.IsNormalized() && yAxis.IsNormalized() && zAxis.IsNormalized();
    return unit && !xAxis.IsParallelWith(yAxis, false) && !yAxis.IsParallelWith(zAxis, false) &&
           !zAxis.IsParallelWith(xAxis, false);
}

void QnGeCoordSys::GetMatrixTo(QnGeMatrix& matrix) const {
    for (int i = 0; i < 3; ++i) {
        matrix.m[i][0] = xAxis[i];
        matrix.m[i][1] = yAxis[i];
        matrix.m[i][2] = zAxis[i];
        matrix.m[i][3] = origin[i];
        matrix.m[3][i] = 0.0;
    }
    matrix.m[3][3] = 1.0;
}

void QnGeCoordSys::GetMatrixFrom(QnGeMatrix& matrix) const {
    GetMatrixTo(matrix);
    matrix.Reverse();
}

void QnGeCoordSys::TransUcs(QnGePoint& p) const {
    QnGeMatrix matrix;
    GetMatrixTo(matrix);
    matrix.Transform(p);
}

void QnGeCoordSys::TransUcs(QnGeVector3d& v) const {
    QnGeMatrix matrix;
    GetMatrixTo(matrix);
    matrix.Transform(v);
}

void QnGeCoordSys::TransToWcs(QnGePoint& p) const {
    QnGeMatrix matrix;
    GetMatrixFrom(matrix);
    matrix.Transform(p);
}

void QnGeCoordSys::TransToWcs(QnGeVector3d& v) const {
    QnGeMatrix matrix;
    GetMatrixFrom(matrix);
    matrix.Transform(v);
}

void QnGeCoordSys::TransformBy(const QnGeMatrix& matrix) {
    matrix.Transform(origin);
    matrix.Transform(xAxis);
    matrix.Transform(yAxis);
    matrix.Transform(zAxis);
    Normalize();
}

void QnGeCoordSys::GetWcs(QnGeCoordSys& cs) const {
    QnGeMatrix matrix;
    GetMatrixFrom(matrix);
    cs.Reset();
    cs.TransformBy(matrix);
}

void QnGeCoordSys::GetXYPlane(QnGeBasePlane& plane) const {
    plane = QnGeBasePlane(zAxis, origin);
}

void QnGeCoordSys::GetZXPlane(QnGeBasePlane& plane) const {
    plane = QnGeBasePlane(yAxis, origin);
}

void QnGeCoordSys::GetYZPlane(QnGeBasePlane& plane) const {
    plane = QnGeBasePlane(xAxis, origin);
}
