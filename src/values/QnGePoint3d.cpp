// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePoint3d.h"

#include "base/QnStream.h"
#include "frame/QnGeObjList.h"
#include "objects3d/QnGeCurve3d.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGePoint3d, QnGeObject3d, CLASS_ID_POINT3D)

QnGePoint3d::~QnGePoint3d() = default;

QnGePoint3d& QnGePoint3d::operator=(const QnGePoint& p) {
    QnGePoint::operator=(p);
    return *this;
}

bool QnGePoint3d::IsValid() const {
    return true;
}

QnGeObject* QnGePoint3d::Clone() const {
    return new QnGePoint3d(*this);
}

bool QnGePoint3d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&QnGePoint3d::s_classInfo)) {
        return false;
    }
    *this = static_cast<const QnGePoint3d&>(*other);
    return true;
}

void QnGePoint3d::TransformBy(const QnGeMatrix& matrix) {
    matrix.Transform(static_cast<QnGePoint&>(*this));
}

bool QnGePoint3d::IntersectWith(const QnGeObject& other, QnGeObjList& result) const {
    const bool isPoint = other.GetCI() == &QnGePoint3d::s_classInfo;
    const bool meets = isPoint ? *this == static_cast<const QnGePoint3d&>(other) : other.HitTest(*this).HasBit(HIT_ON);
    if (meets) {
        result.Append(new QnGePoint3d(*this));
    }
    return meets;
}

bool QnGePoint3d::IsInclude(const QnGeObject& other) const {
    if (other.GetCI() == &QnGePoint3d::s_classInfo) {
        return *this == static_cast<const QnGePoint3d&>(other);
    }
    if (other.IsClassOf(&QnGeCurve3d::s_classInfo) || other.IsClassOf(&QnGeRegion2d::s_classInfo)) {
        return false;
    }
    return QnGeObject3d::IsInclude(other);
}

QnBitData QnGePoint3d::HitTest(const QnGePoint& point) const {
    return *this == point ? HIT_ON : 0U;
}

bool QnGePoint3d::GetExtent2d(QnGeExtent2d& extent) const {
    extent.SetRange(x, x, y, y);
    return true;
}

bool QnGePoint3d::GetExtent3d(QnGeExtent3d& extent) const {
    extent.SetRange(x, x, y, y, z, z);
    return true;
}

QnGePoint QnGePoint3d::GetSamplePoint() const {
    return *this;
}

bool QnGePoint3d::GetClosestPoint2d(const QnGePoint&, QnGePointList& result) const {
    result.Append(*this);
    return true;
}

bool QnGePoint3d::GetClosestPoint(const QnGePoint&, QnGePointList& result) const {
    result.Append(*this);
    return true;
}

void QnGePoint3d::StreamIn(QnStream& stream) {
    QnGeObject3d::StreamIn(stream);
    stream >> x >> y >> z;
}

void QnGePoint3d::StreamOut(QnStream& stream) const {
    QnGeObject3d::StreamOut(stream);
    stream << x << y << z;
}

QnGeObject2d* QnGePoint3d::ConvertTo2d() const {
    return new QnGePoint2d(static_cast<const QnGePoint&>(*this));
}

bool QnGePoint3d::operator==(const QnGePoint& p) const {
    return Equal3d(p);
}

bool QnGePoint3d::operator!=(const QnGePoint& p) const {
    return !Equal3d(p);
}

bool QnGePoint3d::operator<(const QnGePoint& p) const {
    return QnGePoint::operator<(p);
}

bool QnGePoint3d::operator>(const QnGePoint& p) const {
    return QnGePoint::operator>(p);
}

double QnGePoint3d::Distance(const QnGePoint& p) const {
    return GetDistance3d(*this, p);
}
