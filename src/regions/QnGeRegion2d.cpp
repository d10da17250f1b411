// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGeRegion2d.h"

#include <memory>

#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeRegion2d, QnGeObject2d, CLASS_ID_REGION2D)

// ---- boundaries ----------------------------------------------------------------------------------

QnGeCurve2d* QnGeRegion2d::GetBoundary(long) const {
    return nullptr;
}

long QnGeRegion2d::GetBoundaryNum() const {
    return 1;
}

bool QnGeRegion2d::IsOutlineExist() const {
    return GetBoundary(0) != nullptr;
}

QnGeCurve2d& QnGeRegion2d::Outline() const {
    return *GetBoundary(0);
}

long QnGeRegion2d::GetHoleNum() const {
    return GetBoundaryNum() - 1;
}

bool QnGeRegion2d::IsHoleExist() const {
    return GetBoundaryNum() > 1;
}

QnGeCurve2d& QnGeRegion2d::Hole(long i) const {
    return *GetBoundary(i + 1);
}

bool QnGeRegion2d::IsClosed() const {
    const QnGeCurve2d* outline = GetBoundary(0);
    return outline != nullptr && outline->IsClosed();
}

bool QnGeRegion2d::IsEntirePlane() const {
    return GetBoundaryNum() < 2 && !IsOutlineExist();
}

bool QnGeRegion2d::IsAllowBoundaryInter() const {
    return !HasBit(OBJ_NO_BOUNDARY_INTER);
}

void QnGeRegion2d::SetAllowBoundaryInter(bool allow) {
    SetBit(OBJ_NO_BOUNDARY_INTER, !allow);
}

bool QnGeRegion2d::IsMayBoundaryInter() const {
    const bool areKnownApart = !IsAllowBoundaryInter() && IsClosed();
    return GetBoundaryNum() >= 2 && !areKnownApart;
}

// ---- changes -------------------------------------------------------------------------------------

void QnGeRegion2d::TransformBy(const QnGeMatrix& matrix) {
    for (long i = 0; i < GetBoundaryNum(); ++i) {
        QnGeCurve2d* boundary = GetBoundary(i);
        if (boundary != nullptr) {
            boundary->TransformBy(matrix);
        }
    }
}

void QnGeRegion2d::SetElevation(double z) {
    for (long i = 0; i < GetBoundaryNum(); ++i) {
        QnGeCurve2d* boundary = GetBoundary(i);
        if (boundary != nullptr) {
            boundary->SetElevation(z);
        }
    }
}

bool QnGeRegion2d::Offset(double d) {
    for (long i = 0; i < GetBoundaryNum(); ++i) {
        QnGeCurve2d* boundary = GetBoundary(i);
        if (boundary != nullptr && !boundary->Offset(d)) {
            return false;
        }
    }
    return true;
}

void QnGeRegion2d::Normalize() {
    if (IsClosed() && Outline().IsClockwise()) {
        Outline().Reverse();
    }
    for (long i = 1; i < GetBoundaryNum(); ++i) {
        QnGeCurve2d* hole = GetBoundary(i);
        if (hole != nullptr && hole->IsClosed() && !hole->IsClockwise()) {
            hole->Reverse();
        }
    }
}

// ---- measures ------------------------------------------------------------------------------------

double QnGeRegion2d::GetElevation() const {
    for (long i = 0; i < GetBoundaryNum(); ++i) {
        const QnGeCurve2d* boundary = GetBoundary(i);
        if (boundary != nullptr) {
            return boundary->GetElevation();
        }
    }
    return 0.0;
}

bool QnGeRegion2d::GetExtent2d(QnGeExtent2d& extent) const {
    const QnGeCurve2d* outline = GetBoundary(0);
    return outline != nullptr && outline->GetExtent2d(extent);
}

double QnGeRegion2d::Area() const {
    if (!IsClosed()) {
        return 0.0;
    }
    double area = Outline().Area();
    for (long i = 1; i < GetBoundaryNum(); ++i) {
        const QnGeCurve2d* hole = GetBoundary(i);
        if (hole != nullptr) {
            area -= hole->Area();
        }
    }
    return area;
}

// ---- where a point lies --------------------------------------------------------------------------

QnBitData QnGeRegion2d::HitTest(const QnGePoint& point) const {
    const QnGeCurve2d* outline = GetBoundary(0);
    if (outline != nullptr) {
        const QnBitData hit = outline->HitTest(point);
        if (hit.HasBit(HIT_OUT)) {
            return QnBitData(0);
        }
        if (hit.HasBit(HIT_ON)) {
            return QnBitData(HIT_ON | HIT_BOUNDARY);
        }
    }
    for (long i = 1; i < GetBoundaryNum(); ++i) {
        const QnGeCurve2d* hole = GetBoundary(i);
        if (hole == nullptr) {
            continue;
        }
        const QnBitData hit = hole->HitTest(point);
        if (hit.HasBit(HIT_IN)) {
            return QnBitData(HIT_HOLE);
        }
        if (hit.HasBit(HIT_ON)) {
            return QnBitData(HIT_ON | HIT_BOUNDARY | HIT_HOLE);
        }
    }
    return QnBitData(HIT_ON);
}

bool QnGeRegion2d::GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const {
    if (IsInclude(QnGePoint2d(point))) {
        result.Append(point);
        return true;
    }
    QnGePointList found;
    for (long i = 0; i < GetBoundaryNum(); ++i) {
        const QnGeCurve2d* boundary = GetBoundary(i);
        if (boundary != nullptr) {
            boundary->GetClosestPoint2d(point, found);
        }
    }
    // The best distance to beat is 0 from the start, so only boundary points at the point itself stay.
    QnGePointList best;
    for (const QnGePoint* q = found.GetFirst(); q != nullptr; q = found.GetNext(q)) {
        if (!IsGreater(GetDistance2d(point, *q), g_distZero)) {
            best.FindOrAppend(*q);
        }
    }
    if (best.IsEmpty()) {
        return false;
    }
    result.Conbine(best, 0);
    return true;
}

// ---- straight forms ------------------------------------------------------------------------------

bool QnGeRegion2d::Explode(QnGeObjList& parts) const {
    QnGePolygon2d* straight = MLinearize(0.0);
    if (straight == nullptr) {
        return false;
    }
    parts.Append(straight);
    return true;
}

QnGePolygon2d* QnGeRegion2d::MLinearize(double prec) const {
    if (!IsClosed()) {
        return nullptr;
    }
    const std::unique_ptr<QnGeMLine2d> outline(Outline().MLinearize(prec));
    if (!outline) {
        return nullptr;
    }
    if (!IsHoleExist()) {
        return new QnGePolygon2d(*outline, false);
    }
    auto polygon = std::make_unique<QnGeGeneralPolygon2d>(*outline, false);
    for (long i = 1; i < GetBoundaryNum(); ++i) {
        const QnGeCurve2d* hole = GetBoundary(i);
        if (hole != nullptr) {
            polygon->AppendHole(hole->MLinearize(prec), false);  // passes over a hole without a straight form
        }
    }
    return polygon.release();
}
