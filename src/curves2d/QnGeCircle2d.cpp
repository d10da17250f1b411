// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCircle2d.h"

#include <cstdint>
#include <memory>

#include "base/QnStream.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/detail/StepCount.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"
#include "values/QnGeVector2d.h"
#include "values/QnGeVector3d.h"

QN_DEFINE_CLASS_RECORD(QnGeCircle2d, QnGeCurve2d, CLASS_ID_CIRCLE2D)

double QnGeCircle2d::s_dMLinePreci = 0.1;

namespace {

// The plain angle of a parameter and the parameter of a plain angle: one map, which is its own inverse.
double SwapAngleAndPa(const QnGeCircle2d& circle, double value) {
    return circle.IsClockwise() ? QN_TWO_PI - value : value;
}

}  // namespace

// ---- making --------------------------------------------------------------------------------------

QnGeCircle2d::QnGeCircle2d(bool ccw) {
    SetBit(OBJ_CLOCKWISE, !ccw);
}

QnGeCircle2d::QnGeCircle2d(const QnGePoint& centre, double size, bool ccw) : QnGeBaseCircle(centre, size) {
    SetBit(OBJ_CLOCKWISE, !ccw);
}

QnGeCircle2d::QnGeCircle2d(const QnGeBaseCircle& circle, bool ccw) : QnGeBaseCircle(circle) {
    SetBit(OBJ_CLOCKWISE, !ccw);
}

QnGeCircle2d::QnGeCircle2d(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3) {
    CreateFrom(p1, p2, p3);
}

QnGeCircle2d::QnGeCircle2d(const QnGePoint& p1, const QnGePoint& p2, double angle) {
    CreateFrom(p1, p2, angle);
}

QnGeCircle2d::~QnGeCircle2d() = default;

void QnGeCircle2d::CreateFrom(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3) {
    QnGeBaseCircle::CreateFrom(p1, p2, p3);
    const QnGeVector2d first(p1, p2);
    const QnGeVector2d second(p2, p3);
    SetBit(OBJ_CLOCKWISE, first.IsVectorAtRight(second, false));
}

void QnGeCircle2d::CreateFrom(const QnGePoint& p1, const QnGePoint& p2, double angle) {
    QnGeBaseCircle::CreateFrom(p1, p2, angle);
    SetBit(OBJ_CLOCKWISE, !(angle >= 0.0));
}

// ---- object protocol -----------------------------------------------------------------------------

bool QnGeCircle2d::IsValid() const {
    return QnGeBaseCircle::IsValid();
}

QnGeObject* QnGeCircle2d::Clone() const {
    return new QnGeCircle2d(*this);
}

bool QnGeCircle2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&s_classInfo)) {
        return false;
    }
    *this = static_cast<const QnGeCircle2d&>(*other);
    return true;
}

void QnGeCircle2d::TransformBy(const QnGeMatrix& matrix) {
    matrix.Transform(center);
    QnGeVector3d spoke(radius, 0.0, 0.0);
    matrix.Transform(spoke);
    radius = spoke.Length();
    if (matrix.IsMirrorMat()) {
        Reverse();
    }
}

QnBitData QnGeCircle2d::HitTest(const QnGePoint& point) const {
    return static_cast<std::uint32_t>(QnGeBaseCircle::HitTest(point));
}

bool QnGeCircle2d::GetExtent2d(QnGeExtent2d& extent) const {
    extent.SetRange(center.x - radius, center.x + radius, center.y - radius, center.y + radius);
    return true;
}

bool QnGeCircle2d::GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const {
    QnGePoint nearest;
    if (!GetNearestPoint(point, nearest)) {
        return false;
    }
    result.Append(nearest);
    return true;
}

void QnGeCircle2d::StreamIn(QnStream& stream) {
    QnGeCurve2d::StreamIn(stream);
    stream >> center.x >> center.y >> center.z >> radius;
}

void QnGeCircle2d::StreamOut(QnStream& stream) const {
    QnGeCurve2d::StreamOut(stream);
    stream << center.x << center.y << center.z << radius;
}

QnGeObject* QnGeCircle2d::Symplify() const {
    return IsZero(radius, g_distZero) ? new QnGePoint2d(center) : nullptr;
}

void QnGeCircle2d::SetElevation(double z) {
    center.z = z;
}

double QnGeCircle2d::GetElevation() const {
    return center.z;
}

// ---- curve protocol ------------------------------------------------------------------------------

bool QnGeCircle2d::IsFinite(bool) const {
    return false;
}

QnGeCurve2d* QnGeCircle2d::GetSubCurve(double pa1, double pa2) const {
    const double sweep = GetStdAngle(pa2 - pa1);
    auto arc = std::make_unique<QnGeArc2d>(*this);
    arc->SetStartAngle(pa1);
    arc->SetCentralAngle(sweep <= g_angleZero ? QN_TWO_PI : sweep);
    return arc.release();
}

void QnGeCircle2d::Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const {
    const long count = pas.GetLength();
    if (count <= 0) {
        return;
    }
    const double first = pas.GetAt(0);
    const double last = pas.GetAt(count - 1);
    if (count == 1) {
        out.Append(GetSubCurve(first, first));
        return;
    }
    for (long i = 1; i < count; ++i) {
        if (IsLess(pas.GetAt(i - 1) - pas.GetAt(i), g_angleZero)) {
            out.Append(GetSubCurve(pas.GetAt(i - 1), pas.GetAt(i)));
        }
    }
    if (IsLess(last - QN_TWO_PI, g_angleZero) || IsGreater(first, g_angleZero)) {
        out.Append(GetSubCurve(last, first));
    }
}

bool QnGeCircle2d::GetPtFromPa(double pa, QnGePoint& pt) const {
    QnGeBaseCircle::GetPtFromPa(SwapAngleAndPa(*this, pa), pt);
    return true;
}

bool QnGeCircle2d::GetPaFromPt(const QnGePoint& pt, double& pa) const {
    double angle = 0.0;
    if (!QnGeBaseCircle::GetPaFromPt(pt, angle)) {
        return false;
    }
    pa = SwapAngleAndPa(*this, angle);
    return true;
}

bool QnGeCircle2d::GetPaFromDist(double dist, double& pa) const {
    QnGeBaseCircle::GetPaFromDist(dist, pa);
    return true;
}

bool QnGeCircle2d::GetDistFromPa(double pa, double& dist) const {
    QnGeBaseCircle::GetDistFromPa(pa, dist);
    return true;
}

bool QnGeCircle2d::IsClosed() const {
    return true;
}

double QnGeCircle2d::GetPeriod() const {
    return QN_TWO_PI;
}

bool QnGeCircle2d::IsClockwise() const {
    return HasBit(OBJ_CLOCKWISE);
}

void QnGeCircle2d::GetTangent(double pa, QnGeBaseLine2d& tangent) const {
    QnGeBaseCircle::GetTangent(SwapAngleAndPa(*this, pa), tangent);
    if (IsClockwise()) {
        tangent.QnGeVector2d::Reverse();
    }
}

double QnGeCircle2d::Integration(double pa1, double pa2) const {
    return QnGeBaseCircle::Integration(SwapAngleAndPa(*this, pa1), SwapAngleAndPa(*this, pa2));
}

double QnGeCircle2d::Area() const {
    return QN_PI * radius * radius;
}

double QnGeCircle2d::Length() const {
    return QN_TWO_PI * radius;
}

void QnGeCircle2d::Reverse() {
    SetBit(OBJ_CLOCKWISE, !IsClockwise());
}

QnGeMLine2d* QnGeCircle2d::MLinearize(double prec) const {
    constexpr long FEWEST_CHORDS = 2;
    const double wanted = prec < qn_detail::SMALLEST_STEP ? GetMLinePrec() : prec;
    const long count = qn_detail::StepsOver(QN_TWO_PI, wanted);
    if (count < FEWEST_CHORDS) {
        return nullptr;
    }
    const double step = QN_TWO_PI / static_cast<double>(count);
    auto line = std::make_unique<QnGeMLine2d>(count, true);
    double pa = 0.0;
    for (long i = 0; i < count; ++i, pa += step) {
        GetPtFromPa(pa, (*line)[i]);
    }
    return line.release();
}

QnGeMLine2d* QnGeCircle2d::PLinearize(double) const {
    return new QnGePolyline2d(*this);
}

double QnGeCircle2d::GetMLinePrec() const {
    return s_dMLinePreci;
}

QnGeCurve2d* QnGeCircle2d::GetExtendCurve() const {
    return new QnGeCircle2d(*this);
}

bool QnGeCircle2d::Offset(double dist) {
    return QnGeBaseCircle::Offset(IsClockwise() ? -dist : dist);
}

// ---- of circles only -----------------------------------------------------------------------------

bool QnGeCircle2d::IsSameCircle(const QnGeCircle2d& other, bool sameDirection) const {
    if (!QnGeBaseCircle::operator==(other)) {
        return false;
    }
    return !sameDirection || IsClockwise() == other.IsClockwise();
}

void QnGeCircle2d::SetMLinePreci(double preci) {
    s_dMLinePreci = preci;
}
