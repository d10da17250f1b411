// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObject3d.h"

#include "frame/QnGeObject2d.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint3d.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeObject3d, QnGeObject, CLASS_ID_OBJECT3D)

bool QnGeObject3d::IsInclude(const QnGeObject& other) const {
    if (other.GetCI() == &QnGePoint3d::s_classInfo) {
        return HitTest(static_cast<const QnGePoint3d&>(other)).HasBit(HIT_ON);
    }
    return QnGeObject::IsInclude(other);
}

bool QnGeObject3d::GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const {
    return GetClosestPoint(point, result);
}

QnGeObject2d* QnGeObject3d::ConvertTo2d() const {
    return nullptr;
}

bool QnGeObject3d::GetPlane(QnGeBasePlane&) const {
    return false;
}

void QnGeObject3d::Move(double dx, double dy, double dz) {
    QnGeMatrix matrix;
    matrix.CreateMoveMatrix(dx, dy, dz);
    TransformBy(matrix);
}

void QnGeObject3d::Scale(double sx, double sy, double sz) {
    QnGeMatrix matrix;
    matrix.CreateScaleMatrix(sx, sy, sz);
    TransformBy(matrix);
}

void QnGeObject3d::Scale(double sx, double sy, double sz, const QnGePoint& base) {
    QnGeMatrix matrix;
    matrix.CreateScaleMatrix(sx, sy, sz, base);
    TransformBy(matrix);
}

void QnGeObject3d::RotateX(double angle) {
    QnGeMatrix matrix;
    matrix.CreateXRotateMatrix(angle);
    TransformBy(matrix);
}

void QnGeObject3d::RotateY(double angle) {
    QnGeMatrix matrix;
    matrix.CreateYRotateMatrix(angle);
    TransformBy(matrix);
}

void QnGeObject3d::RotateZ(double angle) {
    QnGeMatrix matrix;
    matrix.CreateZRotateMatrix(angle);
    TransformBy(matrix);
}

void QnGeObject3d::Rotate(double angle, const QnGeBaseLine3d& axis) {
    QnGeMatrix matrix;
    matrix.CreateRotateMatrix(angle, axis);
    TransformBy(matrix);
}

double QnGeObject3d::GetDistance(const QnGePoint& point) const {
    QnGePoint nearest = GetSamplePoint();
    GetClosestPoint(point, nearest);
    return GetDistance3d(point, nearest);
}
