// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeLine2d.h"

#include "base/QnStream.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/detail/LineSplit.h"
#include "frame/QnGeObjList.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeLine2d, QnGeCurve2d, CLASS_ID_LINE2D)

// ---- making ------------------------------------------------------------------------------------------

QnGeLine2d::QnGeLine2d() = default;

QnGeLine2d::QnGeLine2d(const QnGeVector2d& vector, const QnGePoint& base) : QnGeBaseLine2d(vector, base) {}

QnGeLine2d::QnGeLine2d(const QnGePoint& from, const QnGePoint& to) : QnGeBaseLine2d(from, to) {}

QnGeLine2d::QnGeLine2d(const QnGeBaseLine2d& line) : QnGeBaseLine2d(line) {}

// ---- object protocol ---------------------------------------------------------------------------------

bool QnGeLine2d::IsValid() const {
    return !IsNullVector();
}

QnGeObject* QnGeLine2d::Clone() const {
    return new QnGeLine2d(*this);
}

bool QnGeLine2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&QnGeLine2d::s_classInfo)) {
        return false;
    }
    QnGeLine2d::operator=(*static_cast<const QnGeLine2d*>(other));
    return true;
}

void QnGeLine2d::TransformBy(const QnGeMatrix& matrix) {
    QnGeBaseLine2d::TransformBy(matrix);
}

QnBitData QnGeLine2d::HitTest(const QnGePoint& pt) const {
    return QnGeBaseLine2d::HitTest(pt, false);
}

bool QnGeLine2d::GetClosestPoint2d(const QnGePoint& pt, QnGePointList& result) const {
    QnGePoint foot;
    QnGeBaseLine2d::GetNearestPoint(pt, foot);  // the base point if the vector is null
    result.Append(foot);
    return true;
}

void QnGeLine2d::StreamIn(QnStream& stream) {
    QnGeCurve2d::StreamIn(stream);
    stream >> basePoint.x >> basePoint.y >> basePoint.z;
    stream >> x >> y >> z;
}

void QnGeLine2d::StreamOut(QnStream& stream) const {
    QnGeCurve2d::StreamOut(stream);
    stream << basePoint.x << basePoint.y << basePoint.z;
    stream << x << y << z;
}

void QnGeLine2d::SetElevation(double elevation) {
    basePoint.z = elevation;
    z = 0.0;
}

double QnGeLine2d::GetElevation() const {
    return basePoint.z;
}

QnGeObject3d* QnGeLine2d::ConvertTo3d() const {
    return nullptr;
}

// ---- curve protocol ----------------------------------------------------------------------------------

bool QnGeLine2d::IsFinite(bool /*atStart*/) const {
    return false;
}

QnGeCurve2d* QnGeLine2d::GetSubCurve(double pa1, double pa2) const {
    QnGePoint from;
    QnGePoint to;
    GetPtFromPa(pa1, from);
    GetPtFromPa(pa2, to);
    return new QnGeLineSeg2d(from, to);
}

void QnGeLine2d::Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const {
    if (pas.IsEmpty()) {
        return;
    }
    QnGePoint lastCut;
    GetPtFromPa(pas.GetAt(0), lastCut);
    QnGeVector2d backward = GetVector();
    backward.Reverse();
    out.Append(new QnGeLineRay2d(backward, lastCut));
    qn_detail::AppendInnerSegments(*this, pas, lastCut, out);
    out.Append(new QnGeLineRay2d(GetVector(), lastCut));
}

bool QnGeLine2d::GetPtFromPa(double pa, QnGePoint& pt) const {
    return QnGeBaseLine2d::GetPtFromPa(pa, pt);
}

bool QnGeLine2d::GetPaFromPt(const QnGePoint& pt, double& pa) const {
    return QnGeBaseLine2d::GetPaFromPt(pt, pa);
}

bool QnGeLine2d::GetPaFromDist(double dist, double& pa) const {
    return QnGeBaseLine2d::GetPaFromDist(dist, pa);
}

bool QnGeLine2d::GetDistFromPa(double pa, double& dist) const {
    return QnGeBaseLine2d::GetDistFromPa(pa, dist);
}

bool QnGeLine2d::IsClosed() const {
    return false;
}

bool QnGeLine2d::IsMLinear() const {
    return true;
}

void QnGeLine2d::GetTangent(double /*pa*/, QnGeBaseLine2d& tangent) const {
    tangent = GetBaseLine();
    tangent.Normalize();
}

double QnGeLine2d::Integration(double pa1, double pa2) const {
    return QnGeBaseLine2d::Integration(pa1, pa2);
}

void QnGeLine2d::Reverse() {
    QnGeVector2d::Reverse();
}

bool QnGeLine2d::Offset(double dist) {
    QnGeBaseLine2d::Offset(dist);
    return true;
}
