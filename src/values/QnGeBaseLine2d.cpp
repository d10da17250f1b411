// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseLine2d.h"

#include <cmath>

#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseCircle.h"
#include "values/QnGeMatrix.h"

namespace {

QnGeVector2d UnitOf(const QnGeVector2d& v) {
    QnGeVector2d unit(v);
    unit.Normalize();
    return unit;
}

}  // namespace

void QnGeBaseLine2d::SetPoint(const QnGePoint& p1, const QnGePoint& p2) {
    // p1 may be the base point, or the direction seen as a point
    const QnGePoint base(p1);
    SetVector(QnGeVector2d(p1, p2));
    basePoint = base;
}

void QnGeBaseLine2d::TransformBy(const QnGeMatrix& matrix) {
    matrix.Transform(static_cast<QnGeVector2d&>(*this));
    matrix.Transform(basePoint);
}

void QnGeBaseLine2d::Offset(double d) {
    QnGeVector2d right;
    GetRightVertVector(right);
    right.SetLength(d);
    basePoint.SetPoint(basePoint.x + right.x, basePoint.y + right.y);
}

bool QnGeBaseLine2d::GetPaFromPt(const QnGePoint& p, double& t) const {
    const bool alongX = std::fabs(dx) > std::fabs(dy);
    t = alongX ? (p.x - basePoint.x) / dx : (p.y - basePoint.y) / dy;
    return true;
}

bool QnGeBaseLine2d::GetPtFromPa(double t, QnGePoint& p) const {
    p.SetPoint(basePoint.x + t * dx, basePoint.y + t * dy, basePoint.z + t * dz);
    return true;
}

bool QnGeBaseLine2d::GetDistFromPa(double t, double& d) const {
    d = t * QnGeVector2d::Length();
    return true;
}

bool QnGeBaseLine2d::GetPaFromDist(double d, double& t) const {
    t = d / QnGeVector2d::Length();
    return true;
}

double QnGeBaseLine2d::Integration(double t1, double t2) const {
    return LineIntegration2d(basePoint, *this, t1, t2);
}

int QnGeBaseLine2d::IntersectWith(const QnGeBaseLine2d& o, double& t1, double& t2, bool normalized) const {
    if (normalized) {
        return LineIntersect2d(basePoint, *this, o.basePoint, o, t1, t2);
    }
    double u1 = 0.0;
    double u2 = 0.0;
    const int code = LineIntersect2d(basePoint, UnitOf(*this), o.basePoint, UnitOf(o), u1, u2);
    if (code == INTERSECT_ONE) {
        t1 = u1 / QnGeVector2d::Length();
        t2 = u2 / o.QnGeVector2d::Length();
    }
    return code;
}

int QnGeBaseLine2d::IntersectWith(const QnGeBaseLine2d& o, double& t, bool normalized) const {
    double ignored = 0.0;
    return QnGeBaseLine2d::IntersectWith(o, t, ignored, normalized);
}

int QnGeBaseLine2d::IntersectWith(const QnGeBaseLine2d& o, QnGePoint& p, bool normalized) const {
    double t = 0.0;
    const int code = QnGeBaseLine2d::IntersectWith(o, t, normalized);
    if (code == INTERSECT_ONE) {
        QnGeBaseLine2d::GetPtFromPa(t, p);
    }
    return code;
}

int QnGeBaseLine2d::IntersectWith(const QnGeBaseCircle& circle, double& t1, double& t2, bool normalized) const {
    if (normalized) {
        return LineCirIntersect2d(circle.center, circle.radius, basePoint, *this, t1, t2);
    }
    double u1 = 0.0;
    double u2 = 0.0;
    const int code = LineCirIntersect2d(circle.center, circle.radius, basePoint, UnitOf(*this), u1, u2);
    const double length = QnGeVector2d::Length();
    if (code == INTERSECT_ONE || code == INTERSECT_TWO) {
        t1 = u1 / length;
    }
    if (code == INTERSECT_TWO) {
        t2 = u2 / length;
    }
    return code;
}

bool QnGeBaseLine2d::GetNearestPoint(const QnGePoint& p, QnGePoint& q) const {
    const QnGeBaseLine2d across(QnGeVector2d(-dy, dx), p);
    QnGePoint foot(basePoint);
    const int code = QnGeBaseLine2d::IntersectWith(across, foot, false);
    q = foot;
    return code == INTERSECT_ONE;
}

QnBitData QnGeBaseLine2d::HitTest(const QnGePoint& p, bool normalized) const {
    QnGePoint foot;
    QnGeBaseLine2d::GetNearestPoint(p, foot);
    if (!IsGreater(GetDistance2d(p, foot), g_distZero)) {
        return HIT_ON;
    }
    const QnGeVector2d way = UnitOf(QnGeVector2d(basePoint, p));
    const double side = normalized ? GetVector() * way : UnitOf(*this) * way;
    if (side > 0.0) {
        return HIT_IN;
    }
    return side < 0.0 ? HIT_OUT : HIT_ON;
}

bool QnGeBaseLine2d::IsSameLine(const QnGeBaseLine2d& o, bool sameDirection, bool normalized) const {
    if (!IsParallelWith(o, normalized)) {
        return false;
    }
    if (!QnGeBaseLine2d::HitTest(o.basePoint, normalized).HasBit(HIT_ON)) {
        return false;
    }
    return !sameDirection || IsSameDirection(o, normalized);
}
