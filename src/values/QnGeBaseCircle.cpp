// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseCircle.h"

#include <cmath>

#include "base/QnBitData.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeVector2d.h"

void QnGeBaseCircle::CreateFrom(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3) {
    CreateCircle2d(p1, p2, p3, center, radius);
}

void QnGeBaseCircle::CreateFrom(const QnGePoint& p1, const QnGePoint& p2, double angle) {
    CreateCircle2d(p1, p2, angle, center, radius);
}

bool QnGeBaseCircle::operator==(const QnGeBaseCircle& o) const {
    return IsZero(radius - o.radius, g_distZero) && center.Equal2d(o.center);
}

bool QnGeBaseCircle::Offset(double d) {
    const double grown = radius + d;
    if (!IsGreater(grown, g_fZero)) {
        return false;
    }
    radius = grown;
    return true;
}

bool QnGeBaseCircle::GetPtFromPa(double a, QnGePoint& p) const {
    p.SetPoint(center.x + radius * std::cos(a), center.y + radius * std::sin(a), center.z);
    return true;
}

bool QnGeBaseCircle::GetPaFromPt(const QnGePoint& p, double& a) const {
    const QnGeVector2d out(center, p);
    if (out.IsNullVector()) {
        return false;
    }
    a = out.GetAngle();
    return true;
}

bool QnGeBaseCircle::GetDistFromPa(double a, double& d) const {
    d = a * radius;
    return true;
}

bool QnGeBaseCircle::GetPaFromDist(double d, double& a) const {
    a = d / radius;
    return true;
}

void QnGeBaseCircle::GetDirection(const QnGePoint& p, QnGeVector2d& direction) const {
    QnGeVector2d(center, p).GetLeftVertVector(direction);
}

void QnGeBaseCircle::GetDirection(double a, QnGeVector2d& direction) const {
    QnGePoint p;
    QnGeBaseCircle::GetPtFromPa(a, p);
    QnGeBaseCircle::GetDirection(p, direction);
}

void QnGeBaseCircle::GetTangent(double a, QnGeBaseLine2d& line) const {
    QnGePoint p;
    QnGeVector2d direction;
    QnGeBaseCircle::GetPtFromPa(a, p);
    QnGeBaseCircle::GetDirection(p, direction);
    direction.Normalize();
    line.SetVector(direction);
    line.SetBasePoint(p);
}

double QnGeBaseCircle::Integration(double a1, double a2) const {
    return CircleIntegration2d(center, radius, a1, a2);
}

int QnGeBaseCircle::HitTest(const QnGePoint& p) const {
    const double gap = GetDistance2d(p, center) - radius;
    if (IsGreater(gap, g_distZero)) {
        return HIT_OUT;
    }
    return IsLess(gap, g_distZero) ? HIT_IN : HIT_ON;
}

int QnGeBaseCircle::IntersectWith(const QnGeBaseLine2d& line, QnGePoint& q1, QnGePoint& q2, bool normalized) const {
    QnGeVector2d direction(line.GetVector());
    if (!normalized) {
        direction.Normalize();
    }
    return LineCirIntersect2d(center, radius, line.basePoint, direction, q1, q2);
}

int QnGeBaseCircle::IntersectWith(const QnGeBaseCircle& o, QnGePoint& q1, QnGePoint& q2) const {
    return CircleIntersect2d(center, radius, o.center, o.radius, q1, q2);
}

bool QnGeBaseCircle::GetNearestPoint(const QnGePoint& p, QnGePoint& q) const {
    if (IsZero(GetDistance3d(p, center), g_distZero)) {
        return false;
    }
    QnGePoint q1;
    QnGePoint q2;
    const int code = QnGeBaseCircle::IntersectWith(QnGeBaseLine2d(center, p), q1, q2, false);
    if (code == INTERSECT_NONE) {
        return false;
    }
    const bool secondIsNearer = code == INTERSECT_TWO && GetDistance2d(p, q2) < GetDistance2d(p, q1);
    const QnGePoint& nearest = secondIsNearer ? q2 : q1;
    q.SetPoint(nearest.x, nearest.y, center.z);
    return true;
}
