// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBasePlane.h"

#include <cmath>

#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeMatrix.h"

namespace {

QnGeBasePlane UnitOf(const QnGeBasePlane& plane) {
    QnGeBasePlane unit(plane);
    unit.Normalize();
    return unit;
}

}  // namespace

QnGePoint QnGeBasePlane::GetSamplePoint() const {
    const double lengthA = std::fabs(a);
    const double lengthB = std::fabs(b);
    const double lengthC = std::fabs(c);
    if (lengthA > lengthB && lengthA > lengthC) {
        return QnGePoint(-d / a, 0.0, 0.0);
    }
    if (lengthB <= lengthC) {
        return QnGePoint(0.0, 0.0, -d / c);
    }
    return QnGePoint(0.0, -d / b, 0.0);
}

void QnGeBasePlane::TransformBy(const QnGeMatrix& matrix) {
    QnGePoint sample = QnGeBasePlane::GetSamplePoint();
    matrix.Transform(static_cast<QnGeVector3d&>(*this));
    matrix.Transform(sample);
    SetBasePoint(sample);
}

bool QnGeBasePlane::Normalize() {
    const double length = QnGeVector3d::Length();
    if (!QnGeVector3d::Normalize()) {
        return false;
    }
    d /= length;
    return true;
}

int QnGeBasePlane::IntersectWith(const QnGeBasePlane& o, QnGeBaseLine3d& line, bool normalized) const {
    if (!normalized) {
        return UnitOf(*this).IntersectWith(UnitOf(o), line, true);
    }
    QnGePoint base;
    QnGeVector3d direction;
    const int code = PlaneIntersect3d(a, b, c, d, o.a, o.b, o.c, o.d, base, direction);
    if (code == INTERSECT_LINE) {
        line.SetVector(direction);
        line.SetBasePoint(base);
    }
    return code;
}

int QnGeBasePlane::IntersectWith(const QnGeBaseLine3d& line, QnGePoint& p, bool normalized) const {
    double t = 0.0;
    const int code = QnGeBasePlane::IntersectWith(line, t, normalized);
    if (code == INTERSECT_ONE) {
        line.QnGeBaseLine3d::GetPtFromPa(t, p);
    }
    return code;
}

int QnGeBasePlane::IntersectWith(const QnGeBaseLine3d& line, double& t, bool normalized) const {
    if (normalized) {
        return LinePlaneIntersect3d(a, b, c, d, line.basePoint, line, t);
    }
    const QnGeBasePlane plane = UnitOf(*this);
    QnGeVector3d direction(line.GetVector());
    direction.Normalize();
    double u = 0.0;
    const int code = LinePlaneIntersect3d(plane.a, plane.b, plane.c, plane.d, line.basePoint, direction, u);
    if (code == INTERSECT_ONE) {
        t = u / line.QnGeVector3d::Length();
    }
    return code;
}

bool QnGeBasePlane::GetNearestPoint(const QnGePoint& p, QnGePoint& q) const {
    if (!IsGreater(QnGeVector3d::Length(), g_fZero)) {
        return false;
    }
    const QnGeVector3d& n = GetNormal();
    const double way = ((n & p) + d) / (n & n);
    q = p - n * way;
    return true;
}

QnBitData QnGeBasePlane::HitTest(const QnGePoint& p, bool normalized) const {
    QnGePoint foot(p);
    QnGeBasePlane::GetNearestPoint(p, foot);
    if (!IsGreater(GetDistance3d(p, foot), g_distZero)) {
        return HIT_ON;
    }
    const QnGeBasePlane plane = normalized ? *this : UnitOf(*this);
    const double side = (plane.GetNormal() & p) + plane.d;
    if (side < 0.0) {
        return HIT_IN;
    }
    return side > 0.0 ? HIT_OUT : HIT_ON;
}

bool QnGeBasePlane::IsSamePlane(const QnGeBasePlane& o, bool sameDirection, bool normalized) const {
    if (!IsParallelWith(o, normalized)) {
        return false;
    }
    if (!QnGeBasePlane::HitTest(o.QnGeBasePlane::GetSamplePoint(), normalized).HasBit(HIT_ON)) {
        return false;
    }
    return !sameDirection || IsSameDirection(o, normalized);
}
