// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCurve2d.h"

#include <cmath>
#include <memory>

#include "curves2d/detail/CurvePieces.h"
#include "frame/QnGeTolerance.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGePoint.h"

QN_DEFINE_CLASS_RECORD(QnGeCurve2d, QnGeObject2d, CLASS_ID_CURVE2D)

// ---- object protocol ---------------------------------------------------------------------------------

bool QnGeCurve2d::IsInclude(const QnGeObject& other) const {
    if (other.IsClassOf(&QnGeRegion2d::s_classInfo)) {
        return false;
    }
    return QnGeObject2d::IsInclude(other);
}

QnGePoint QnGeCurve2d::GetSamplePoint() const {
    QnGePoint pt;
    GetPtFromPa(0.5, pt);  // a class that answers false has written the point all the same, or there is none
    return pt;
}

QnGeObject3d* QnGeCurve2d::ConvertTo3d() const {
    return nullptr;
}

// ---- ends, points and parameters ---------------------------------------------------------------------

bool QnGeCurve2d::IsFinite(bool /*atStart*/) const {
    return true;
}

QnGeCurve2d* QnGeCurve2d::GetSubCurve(double /*pa1*/, double /*pa2*/) const {
    return nullptr;
}

bool QnGeCurve2d::GetStartPoint(QnGePoint& pt) const {
    GetPtFromPa(0.0, pt);
    return IsFinite(true);
}

bool QnGeCurve2d::GetEndPoint(QnGePoint& pt) const {
    GetPtFromPa(1.0, pt);
    return IsFinite(false);
}

bool QnGeCurve2d::GetPtFromPa(double /*pa*/, QnGePoint& /*pt*/) const {
    return false;
}

bool QnGeCurve2d::GetPaFromPt(const QnGePoint& /*pt*/, double& /*pa*/) const {
    return false;
}

bool QnGeCurve2d::GetPaFromDist(double /*dist*/, double& /*pa*/) const {
    return false;
}

bool QnGeCurve2d::GetDistFromPa(double /*pa*/, double& /*dist*/) const {
    return false;
}

bool QnGeCurve2d::GetPtFromDist(double dist, QnGePoint& pt) const {
    double pa = 0.0;
    return GetPaFromDist(dist, pa) && GetPtFromPa(pa, pt);
}

bool QnGeCurve2d::GetDistFromPt(const QnGePoint& pt, double& dist) const {
    double pa = 0.0;
    return GetPaFromPt(pt, pa) && GetDistFromPa(pa, dist);
}

bool QnGeCurve2d::GetMidPoint(QnGePoint& pt) const {
    return GetPtFromPa(0.5, pt);
}

bool QnGeCurve2d::IsCurveSeg() const {
    return IsFinite(true) && IsFinite(false);
}

bool QnGeCurve2d::IsFinite() const {
    return IsCurveSeg() || IsClosed();
}

bool QnGeCurve2d::IsInfinite() const {
    return !IsClosed() && !IsFinite(true) && !IsFinite(false);
}

bool QnGeCurve2d::IsIncludePa(double pa) const {
    if (IsFinite(true) && IsLess(pa, g_fZero)) {
        return false;
    }
    if (IsFinite(false) && IsGreater(pa - 1.0, g_fZero)) {
        return false;
    }
    return true;
}

// ---- shape -------------------------------------------------------------------------------------------

bool QnGeCurve2d::IsClosed() const {
    QnGePoint start;
    QnGePoint end;
    GetStartPoint(start);
    GetEndPoint(end);
    return IsZero(GetDistance2d(start, end), g_distZero);
}

bool QnGeCurve2d::IsMLinear() const {
    bool allStraight = true;
    const bool exploded = qn_detail::ForEachPiece(*this, [&allStraight](const QnGeCurve2d& piece) {
        allStraight = piece.IsMLinear();
        return allStraight;
    });
    return exploded && allStraight;
}

double QnGeCurve2d::GetPeriod() const {
    return IsClosed() ? 1.0 : 0.0;
}

bool QnGeCurve2d::IsSelfCross() const {
    return false;
}

bool QnGeCurve2d::IsClockwise() const {
    return TotalIntegration() > 0.0;
}

void QnGeCurve2d::GetTangent(double /*pa*/, QnGeBaseLine2d& /*tangent*/) const {}

void QnGeCurve2d::GetTangentFromPt(const QnGePoint& pt, QnGeBaseLine2d& tangent) const {
    double pa = 0.0;
    GetPaFromPt(pt, pa);
    GetTangent(pa, tangent);
}

double QnGeCurve2d::Integration(double /*pa1*/, double /*pa2*/) const {
    return 0.0;
}

double QnGeCurve2d::TotalIntegration() const {
    double total = 0.0;
    const bool exploded = qn_detail::ForEachPiece(*this, [&total](const QnGeCurve2d& piece) {
        total += piece.TotalIntegration();
        return true;
    });
    return exploded ? total : Integration(0.0, 1.0);
}

double QnGeCurve2d::Area() const {
    if (!IsClosed()) {
        return 0.0;
    }
    return std::fabs(TotalIntegration());
}

double QnGeCurve2d::Length() const {
    double total = 0.0;
    qn_detail::ForEachPiece(*this, [&total](const QnGeCurve2d& piece) {
        total += piece.Length();
        return true;
    });
    return total;
}

// ---- changes -----------------------------------------------------------------------------------------

void QnGeCurve2d::Reverse() {}

bool QnGeCurve2d::Conbine(const QnGeCurve2d& /*other*/, bool /*strictDirection*/) {
    return false;
}

void QnGeCurve2d::Compress() {}

bool QnGeCurve2d::Offset(double /*dist*/) {
    return false;
}

QnGeCurve2d* QnGeCurve2d::GetOffsetCurve(double dist) const {
    std::unique_ptr<QnGeCurve2d> moved(static_cast<QnGeCurve2d*>(Clone()));
    if (moved == nullptr || !moved->Offset(dist)) {
        return nullptr;
    }
    return moved.release();
}
