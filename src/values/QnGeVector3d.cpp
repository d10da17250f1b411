// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeVector3d.h"

namespace {

/// A 64th: a direction whose x and y are both below it counts as upright when a perpendicular is chosen.
constexpr double NEARLY_UPRIGHT = 0.015625;

QnGeVector3d UnitOf(const QnGePoint& v) {
    QnGeVector3d unit(v);
    unit.Normalize();
    return unit;
}

/// Dot product of the two vectors, normalised first unless the caller vouches for them.
double UnitDot(const QnGeVector3d& a, const QnGePoint& b, bool normalized) {
    return normalized ? (a & b) : (UnitOf(a) & UnitOf(b));
}

}  // namespace

bool QnGeVector3d::GetVertVector(QnGeVector3d& out) const {
    const QnGeVector3d unit = UnitOf(*this);
    const bool leaning = std::fabs(unit.x) >= NEARLY_UPRIGHT || std::fabs(unit.y) >= NEARLY_UPRIGHT;
    QnGeVector3d candidate = leaning ? QnGeVector3d(-unit.y, unit.x, 0.0) : QnGeVector3d(unit.z, 0.0, -unit.x);
    if (!candidate.Normalize()) {
        return false;
    }
    out = candidate;
    return true;
}

bool QnGeVector3d::IsParallelWith(const QnGePoint& v, bool normalized) const {
    const QnGeVector3d cross = normalized ? *this * v : UnitOf(*this) * UnitOf(v);
    return cross.IsNullVector();
}

bool QnGeVector3d::IsVertWith(const QnGePoint& v, bool normalized) const {
    return IsZero(UnitDot(*this, v, normalized), g_fZero);
}

bool QnGeVector3d::IsSameDirection(const QnGePoint& v, bool normalized) const {
    return IsGreater(UnitDot(*this, v, normalized), g_fZero);
}

bool QnGeVector3d::IsReverseDirection(const QnGePoint& v, bool normalized) const {
    return IsLess(UnitDot(*this, v, normalized), g_fZero);
}

double QnGeVector3d::GetAngleWith(const QnGePoint& v, bool normalized) const {
    return iacos(UnitDot(*this, v, normalized));
}
