// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObject2d.h"

#include "frame/QnGeObject3d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeObject2d, QnGeObject, CLASS_ID_OBJECT2D)

bool QnGeObject2d::IsInclude(const QnGeObject& other) const {
    if (other.GetCI() == &QnGePoint2d::s_classInfo) {
        return HitTest(static_cast<const QnGePoint2d&>(other)).HasBit(HIT_ON);
    }
    return QnGeObject::IsInclude(other);
}

bool QnGeObject2d::GetExtent3d(QnGeExtent3d& extent) const {
    if (!GetExtent2d(extent)) {
        return false;
    }
    const double z = GetElevation();
    extent.z.SetRange(z, z);
    return true;
}

bool QnGeObject2d::GetClosestPoint(const QnGePoint& point, QnGePointList& result) const {
    return GetClosestPoint2d(point, result);
}

void QnGeObject2d::SetElevation(double) {}

double QnGeObject2d::GetElevation() const {
    return 0.0;
}

QnGeObject3d* QnGeObject2d::ConvertTo3d() const {
    return nullptr;
}

void QnGeObject2d::Move(double dx, double dy) {
    QnGeMatrix matrix;
    matrix.CreateMoveMatrix(dx, dy);
    TransformBy(matrix);
}

void QnGeObject2d::Scale(double sx, double sy) {
    QnGeMatrix matrix;
    matrix.CreateScaleMatrix(sx, sy);
    TransformBy(matrix);
}

void QnGeObject2d::Scale(double sx, double sy, const QnGePoint& base) {
    QnGeMatrix matrix;
    matrix.CreateScaleMatrix(sx, sy, base);
    TransformBy(matrix);
}

void QnGeObject2d::Rotate(double angle) {
    QnGeMatrix matrix;
    matrix.CreateZRotateMatrix(angle);
    TransformBy(matrix);
}

void QnGeObject2d::Rotate(double angle, const QnGePoint& base) {
    QnGeMatrix matrix;
    matrix.CreateRotateMatrix(angle, base);
    TransformBy(matrix);
}

double QnGeObject2d::GetDistance(const QnGePoint& point) const {
    QnGePoint nearest = GetSamplePoint();
    GetClosestPoint2d(point, nearest);
    return GetDistance2d(point, nearest);
}
