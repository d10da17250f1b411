// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseLine3d.h"

#include <cmath>

#include "values/QnGeAnalytic.h"
#include "values/QnGeMatrix.h"

namespace {

QnGeVector3d UnitOf(const QnGeVector3d& v) {
    QnGeVector3d unit(v);
    unit.Normalize();
    return unit;
}

/// LineIntersect3d with t in units of a's direction.
int MeetLines(const QnGeBaseLine3d& a, const QnGeBaseLine3d& b, double& t, bool normalized) {
    if (normalized) {
        return LineIntersect3d(a.basePoint, a, b.basePoint, b, t);
    }
    double u = 0.0;
    const int code = LineIntersect3d(a.basePoint, UnitOf(a), b.basePoint, UnitOf(b), u);
    if (code == INTERSECT_ONE) {
        t = u / a.QnGeVector3d::Length();
    }
    return code;
}

}  // namespace

void QnGeBaseLine3d::SetPoint(const QnGePoint& p1, const QnGePoint& p2) {
    // p1 may be the base point, or the direction seen as a point
    const QnGePoint base(p1);
    SetVector(QnGeVector3d(p1, p2));
    basePoint = base;
}

void QnGeBaseLine3d::TransformBy(const QnGeMatrix& matrix) {
    matrix.Transform(static_cast<QnGeVector3d&>(*this));
    matrix.Transform(basePoint);
}

bool QnGeBaseLine3d::GetPaFromPt(const QnGePoint& p, double& t) const {
    const double ax = std::fabs(dx);
    const double ay = std::fabs(dy);
    const double az = std::fabs(dz);
    if (ax > ay && ax > az) {
        t = (p.x - basePoint.x) / dx;
    } else if (ay <= az) {
        t = (p.z - basePoint.z) / dz;
    } else {
        t = (p.y - basePoint.y) / dy;
    }
    return true;
}

bool QnGeBaseLine3d::GetPtFromPa(double t, QnGePoint& p) const {
    p.SetPoint(basePoint.x + t * dx, basePoint.y + t * dy, basePoint.z + t * dz);
    return true;
}

bool QnGeBaseLine3d::GetDistFromPa(double t, double& d) const {
    d = t * QnGeVector3d::Length();
    return true;
}

bool QnGeBaseLine3d::GetPaFromDist(double d, double& t) const {
    t = d / QnGeVector3d::Length();
    return true;
}

int QnGeBaseLine3d::IntersectWith(const QnGeBaseLine3d& o, double& t1, double& t2, bool normalized) const {
    double u1 = 0.0;
    double u2 = 0.0;
    const int code = MeetLines(*this, o, u1, normalized);
    if (code != INTERSECT_ONE) {
        return code;
    }
    MeetLines(o, *this, u2, normalized);
    t1 = u1;
    t2 = u2;
    return code;
}

int QnGeBaseLine3d::IntersectWith(const QnGeBaseLine3d& o, double& t, bool normalized) const {
    return MeetLines(*this, o, t, normalized);
}

int QnGeBaseLine3d::IntersectWith(const QnGeBaseLine3d& o, QnGePoint& p, bool normalized) const {
    double t = 0.0;
    const int code = MeetLines(*this, o, t, normalized);
    if (code == INTERSECT_ONE) {
        QnGeBaseLine3d::GetPtFromPa(t, p);
    }
    return code;
}

bool QnGeBaseLine3d::GetNearestPoint(const QnGePoint& p, QnGePoint& q) const {
    if (!IsGreater(QnGeVector3d::Length(), g_fZero)) {
        q = basePoint;
        return false;
    }
    const double t = (GetVector() & QnGeVector3d(basePoint, p)) / (GetVector() & GetVector());
    return QnGeBaseLine3d::GetPtFromPa(t, q);
}

QnBitData QnGeBaseLine3d::HitTest(const QnGePoint& p, bool normalized) const {
    QnGePoint foot;
    QnGeBaseLine3d::GetNearestPoint(p, foot);
    if (!IsGreater(GetDistance3d(p, foot), g_distZero)) {
        return HIT_ON;
    }
    const QnGeVector3d way = UnitOf(QnGeVector3d(basePoint, p));
    const bool ahead = normalized ? IsParallelWith(way, true) : UnitOf(*this).IsParallelWith(way, true);
    return ahead ? HIT_ON : 0U;
}

bool QnGeBaseLine3d::IsSameLine(const QnGeBaseLine3d& o, bool sameDirection, bool normalized) const {
    if (!IsParallelWith(o, normalized)) {
        return false;
    }
    if (!QnGeBaseLine3d::HitTest(o.basePoint, normalized).HasBit(HIT_ON)) {
        return false;
    }
    return !sameDirection || IsSameDirection(o, normalized);
}

bool QnGeBaseLine3d::IsInSamePlane(const QnGeBaseLine3d& o) const {
    const QnGeVector3d way = UnitOf(QnGeVector3d(basePoint, o.basePoint));
    const QnGeVector3d n1 = UnitOf(*this) * way;
    const QnGeVector3d n2 = UnitOf(o) * way;
    return n1.IsParallelWith(n2, true);
}
