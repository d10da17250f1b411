// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePoint2d.h"

#include "base/QnStream.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint3d.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGePoint2d, QnGeObject2d, CLASS_ID_POINT2D)

namespace {

/// a comes behind b in the tolerant order of x, then y.
bool IsBehind(const QnGePoint& a, const QnGePoint& b) {
    const double gapX = a.x - b.x;
    if (IsGreater(gapX, g_distZero)) {
        return true;
    }
    if (IsLess(gapX, g_distZero)) {
        return false;
    }
    return IsGreater(a.y - b.y, g_distZero);
}

}  // namespace

QnGePoint2d::~QnGePoint2d() = default;

QnGePoint2d& QnGePoint2d::operator=(const QnGePoint& p) {
    QnGePoint::operator=(p);
    return *this;
}

bool QnGePoint2d::IsValid() const {
    return true;
}

QnGeObject* QnGePoint2d::Clone() const {
    return new QnGePoint2d(*this);
}

bool QnGePoint2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&QnGePoint2d::s_classInfo)) {
        return false;
    }
    *this = static_cast<const QnGePoint2d&>(*other);
    return true;
}

void QnGePoint2d::TransformBy(const QnGeMatrix& matrix) {
    matrix.Transform(static_cast<QnGePoint&>(*this));
}

bool QnGePoint2d::IntersectWith(const QnGeObject& other, QnGeObjList& result) const {
    const bool isPoint = other.GetCI() == &QnGePoint2d::s_classInfo;
    const bool meets = isPoint ? *this == static_cast<const QnGePoint2d&>(other) : other.HitTest(*this).HasBit(HIT_ON);
    if (meets) {
        result.Append(new QnGePoint2d(*this));
    }
    return meets;
}

bool QnGePoint2d::IsInclude(const QnGeObject& other) const {
    if (other.GetCI() == &QnGePoint2d::s_classInfo) {
        return *this == static_cast<const QnGePoint2d&>(other);
    }
    if (other.IsClassOf(&QnGeCurve2d::s_classInfo) || other.IsClassOf(&QnGeRegion2d::s_classInfo)) {
        return false;
    }
    return QnGeObject2d::IsInclude(other);
}

QnBitData QnGePoint2d::HitTest(const QnGePoint& point) const {
    return *this == point ? HIT_ON : 0U;
}

bool QnGePoint2d::GetExtent2d(QnGeExtent2d& extent) const {
    extent.SetRange(x, x, y, y);
    return true;
}

bool QnGePoint2d::GetExtent3d(QnGeExtent3d& extent) const {
    extent.SetRange(x, x, y, y, z, z);
    return true;
}

QnGePoint QnGePoint2d::GetSamplePoint() const {
    return *this;
}

bool QnGePoint2d::GetClosestPoint2d(const QnGePoint&, QnGePointList& result) const {
    result.Append(*this);
    return true;
}

void QnGePoint2d::StreamIn(QnStream& stream) {
    QnGeObject2d::StreamIn(stream);
    stream >> x >> y >> z;
}

void QnGePoint2d::StreamOut(QnStream& stream) const {
    QnGeObject2d::StreamOut(stream);
    stream << x << y << z;
}

void QnGePoint2d::SetElevation(double elevation) {
    z = elevation;
}

double QnGePoint2d::GetElevation() const {
    return z;
}

QnGeObject3d* QnGePoint2d::ConvertTo3d() const {
    return new QnGePoint3d(static_cast<const QnGePoint&>(*this));
}

bool QnGePoint2d::operator==(const QnGePoint& p) const {
    return IsZero(GetDistance2d(*this, p), g_distZero);
}

bool QnGePoint2d::operator!=(const QnGePoint& p) const {
    return !(*this == p);
}

bool QnGePoint2d::operator<(const QnGePoint& p) const {
    return IsBehind(p, *this);
}

bool QnGePoint2d::operator>(const QnGePoint& p) const {
    return IsBehind(*this, p);
}

double QnGePoint2d::Distance(const QnGePoint& p) const {
    return GetDistance2d(*this, p);
}
