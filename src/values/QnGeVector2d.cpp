// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeVector2d.h"

namespace {

QnGeVector2d UnitOf(const QnGePoint& v) {
    QnGeVector2d unit(v);
    unit.Normalize();
    return unit;
}

/// Dot product of the two vectors, normalised first unless the caller vouches for them.
double UnitDot(const QnGeVector2d& a, const QnGePoint& b, bool normalized) {
    return normalized ? (a & b) : (UnitOf(a) & UnitOf(b));
}

double UnitCross(const QnGeVector2d& a, const QnGePoint& b, bool normalized) {
    return normalized ? (a * b) : (UnitOf(a) * UnitOf(b));
}

}  // namespace

void QnGeVector2d::CreateFromAngle(double a) {
    SetPoint(std::cos(a), std::sin(a));
}

double QnGeVector2d::GetAngle() const {
    const double length = Length();
    if (!IsGreater(length, g_fZero)) {
        return 0.0;
    }
    const double angle = iacos(x / length);
    // the sign of y alone says which half turn it is, so this test is exact
    return y < 0.0 ? QN_TWO_PI - angle : angle;
}

bool QnGeVector2d::IsParallelWith(const QnGePoint& v, bool normalized) const {
    return IsZero(UnitCross(*this, v, normalized), g_fZero);
}

bool QnGeVector2d::IsVertWith(const QnGePoint& v, bool normalized) const {
    return IsZero(UnitDot(*this, v, normalized), g_fZero);
}

bool QnGeVector2d::IsSameDirection(const QnGePoint& v, bool normalized) const {
    return IsGreater(UnitDot(*this, v, normalized), g_fZero);
}

bool QnGeVector2d::IsReverseDirection(const QnGePoint& v, bool normalized) const {
    return IsLess(UnitDot(*this, v, normalized), g_fZero);
}

bool QnGeVector2d::IsVectorAtLeft(const QnGePoint& v, bool normalized) const {
    return IsGreater(UnitCross(*this, v, normalized), g_fZero);
}

bool QnGeVector2d::IsVectorAtRight(const QnGePoint& v, bool normalized) const {
    return IsLess(UnitCross(*this, v, normalized), g_fZero);
}

double QnGeVector2d::GetAngleWith(const QnGePoint& v, bool normalized) const {
    if (!normalized) {
        return UnitOf(*this).GetAngleWith(UnitOf(v), true);
    }
    const double angle = iacos(*this & v);
    return IsVectorAtLeft(v, true) ? QN_TWO_PI - angle : angle;
}
