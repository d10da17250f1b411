// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseEllipse.h"

#include <cmath>

#include "values/QnGeVector2d.h"

bool QnGeBaseEllipse::operator==(const QnGeBaseEllipse& o) const {
    const bool sameRadii =
        IsZero(majorRadius - o.majorRadius, g_distZero) && IsZero(minorRadius - o.minorRadius, g_distZero);
    return sameRadii && center.Equal2d(o.center) && IsZero(rotation - o.rotation, g_angleZero);
}

bool QnGeBaseEllipse::GetPtFromPa(double a, QnGePoint& p) const {
    const double turned = a + rotation;
    p.SetPoint(center.x + majorRadius * std::cos(turned), center.y + minorRadius * std::sin(turned), center.z);
    return true;
}

bool QnGeBaseEllipse::GetPaFromPt(const QnGePoint& p, double& a) const {
    const QnGeVector2d out(center, p);
    if (out.IsNullVector()) {
        return false;
    }
    a = out.GetAngle() - rotation;
    return true;
}

QnBitData QnGeBaseEllipse::HitTest(const QnGePoint& p) const {
    const QnGeVector2d out(center, p);
    const double cosA = std::cos(-rotation);
    const double sinA = std::sin(-rotation);
    const double x = out.x * cosA - out.y * sinA;
    const double y = out.x * sinA + out.y * cosA;
    const double excess = y * y / (minorRadius * minorRadius) + x * x / (majorRadius * majorRadius) - 1.0;
    if (IsGreater(excess, g_fZero)) {
        return HIT_OUT;
    }
    return IsLess(excess, g_fZero) ? HIT_IN : HIT_ON;
}
