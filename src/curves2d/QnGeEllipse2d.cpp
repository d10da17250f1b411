// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeEllipse2d.h"

#include "frame/QnGeTolerance.h"

QN_DEFINE_CLASS_RECORD(QnGeEllipse2d, QnGeCurve2d, CLASS_ID_ELLIPSE2D)

QnGeEllipse2d::QnGeEllipse2d(bool ccw) {
    SetBit(OBJ_CLOCKWISE, !ccw);
}

QnGeEllipse2d::~QnGeEllipse2d() = default;

bool QnGeEllipse2d::IsValid() const {
    return QnGeBaseEllipse::IsValid();
}

QnGeObject* QnGeEllipse2d::Clone() const {
    return new QnGeEllipse2d(*this);
}

void QnGeEllipse2d::SetElevation(double z) {
    center.z = z;
}

double QnGeEllipse2d::GetElevation() const {
    return center.z;
}

bool QnGeEllipse2d::IsFinite(bool) const {
    return false;
}

bool QnGeEllipse2d::IsClosed() const {
    return true;
}

double QnGeEllipse2d::GetPeriod() const {
    return QN_TWO_PI;
}

bool QnGeEllipse2d::IsClockwise() const {
    return HasBit(OBJ_CLOCKWISE);
}

void QnGeEllipse2d::Reverse() {
    SetBit(OBJ_CLOCKWISE, !IsClockwise());
}

QnGeCurve2d* QnGeEllipse2d::GetExtendCurve() const {
    return new QnGeEllipse2d(*this);
}
