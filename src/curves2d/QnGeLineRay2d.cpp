// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeLineRay2d.h"

#include "base/QnStream.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/detail/LineSplit.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeLineRay2d, QnGeLine2d, CLASS_ID_LINE_RAY2D)

// ---- making ------------------------------------------------------------------------------------------

QnGeLineRay2d::QnGeLineRay2d() = default;

QnGeLineRay2d::QnGeLineRay2d(const QnGeVector2d& vector, const QnGePoint& base) : QnGeLine2d(vector, base) {}

QnGeLineRay2d::QnGeLineRay2d(const QnGePoint& from, const QnGePoint& to) : QnGeLine2d(from, to) {}

QnGeLineRay2d::QnGeLineRay2d(const QnGeBaseLine2d& line) : QnGeLine2d(line) {}

QnGeLineRay2d QnGeLineRay2d::ForwardCopy() const {
    QnGeLineRay2d forward(*this);
    forward.m_reverse = false;
    return forward;
}

bool QnGeLineRay2d::IsSameRay(const QnGeLineRay2d& other) const {
    const double baseGap = GetDistance2d(basePoint, other.basePoint);
    return IsZero(baseGap, g_distZero) && IsParallelWith(other.GetVector(), false) &&
           IsSameDirection(other.GetVector(), false);
}

// ---- object protocol ---------------------------------------------------------------------------------

QnGeObject* QnGeLineRay2d::Clone() const {
    return new QnGeLineRay2d(*this);
}

bool QnGeLineRay2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&QnGeLineRay2d::s_classInfo)) {
        return false;
    }
    QnGeLineRay2d::operator=(*static_cast<const QnGeLineRay2d*>(other));
    return true;
}

QnBitData QnGeLineRay2d::HitTest(const QnGePoint& pt) const {
    QnBitData sides = QnGeLine2d::HitTest(pt);
    if (sides.HasBit(HIT_ON)) {
        double t = 0.0;
        QnGeBaseLine2d::GetPaFromPt(pt, t);
        const bool behindBase = IsLess(t, g_fZero) && GetDistance2d(basePoint, pt) > g_distZero;
        return behindBase ? QnBitData() : QnBitData(HIT_ON);
    }
    if (m_reverse) {
        const bool leftOfVector = sides.HasBit(HIT_IN);
        sides.SetBit(HIT_IN, sides.HasBit(HIT_OUT));
        sides.SetBit(HIT_OUT, leftOfVector);
    }
    return sides;
}

bool QnGeLineRay2d::GetClosestPoint2d(const QnGePoint& pt, QnGePointList& result) const {
    QnGePoint foot;
    QnGeBaseLine2d::GetNearestPoint(pt, foot);
    const bool onRay = HitTest(foot).HasBit(HIT_ON);
    result.Append(onRay ? foot : basePoint);
    return true;
}

void QnGeLineRay2d::StreamIn(QnStream& stream) {
    QnGeLine2d::StreamIn(stream);
    stream >> m_reverse;
}

void QnGeLineRay2d::StreamOut(QnStream& stream) const {
    QnGeLine2d::StreamOut(stream);
    stream << m_reverse;
}

QnGeObject3d* QnGeLineRay2d::ConvertTo3d() const {
    return nullptr;
}

// ---- curve protocol ----------------------------------------------------------------------------------

bool QnGeLineRay2d::IsFinite(bool atStart) const {
    return atStart != m_reverse;
}

void QnGeLineRay2d::Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const {
    if (pas.IsEmpty()) {
        return;
    }
    QnGePoint lastCut;
    if (!m_reverse) {
        qn_detail::AppendFirstSegment(*this, pas, basePoint, lastCut, out);
        qn_detail::AppendInnerSegments(*this, pas, lastCut, out);
        out.Append(new QnGeLineRay2d(GetVector(), lastCut));
        return;
    }
    GetPtFromPa(pas.GetAt(0), lastCut);
    auto* const incoming = new QnGeLineRay2d(GetVector(), lastCut);
    incoming->SetReverseRay(true);
    out.Append(incoming);
    qn_detail::AppendInnerSegments(*this, pas, lastCut, out);
    if (IsLess(pas.GetAt(pas.GetMaxIndex()) - 1.0, g_fZero)) {
        out.Append(new QnGeLineSeg2d(lastCut, basePoint));
    }
}

bool QnGeLineRay2d::GetStartPoint(QnGePoint& pt) const {
    if (m_reverse) {
        return false;
    }
    pt = basePoint;
    return true;
}

bool QnGeLineRay2d::GetEndPoint(QnGePoint& pt) const {
    if (!m_reverse) {
        return false;
    }
    pt = basePoint;
    return true;
}

bool QnGeLineRay2d::GetPtFromPa(double pa, QnGePoint& pt) const {
    const double t = m_reverse ? 1.0 - pa : pa;
    return QnGeBaseLine2d::GetPtFromPa(t, pt);
}

bool QnGeLineRay2d::GetPaFromPt(const QnGePoint& pt, double& pa) const {
    double t = 0.0;
    QnGeBaseLine2d::GetPaFromPt(pt, t);
    pa = m_reverse ? 1.0 - t : t;
    return true;
}

bool QnGeLineRay2d::GetPaFromDist(double dist, double& pa) const {
    if (!m_reverse) {
        return QnGeLine2d::GetPaFromDist(dist, pa);
    }
    const double length = QnGeVector2d::Length();
    pa = 1.0 - (length - dist) / length;
    return true;
}

bool QnGeLineRay2d::GetDistFromPa(double pa, double& dist) const {
    if (!m_reverse) {
        return QnGeLine2d::GetDistFromPa(pa, dist);
    }
    const double length = QnGeVector2d::Length();
    dist = length - (1.0 - pa) * length;
    return true;
}

void QnGeLineRay2d::GetTangent(double pa, QnGeBaseLine2d& tangent) const {
    QnGeLine2d::GetTangent(pa, tangent);
    if (m_reverse) {
        tangent.Reverse();
    }
}

double QnGeLineRay2d::Integration(double pa1, double pa2) const {
    if (!m_reverse) {
        return QnGeLine2d::Integration(pa1, pa2);
    }
    return QnGeBaseLine2d::Integration(1.0 - pa2, 1.0 - pa1);
}

void QnGeLineRay2d::Reverse() {
    m_reverse = !m_reverse;
}

QnGeCurve2d* QnGeLineRay2d::GetExtendCurve() const {
    return nullptr;
}

bool QnGeLineRay2d::Offset(double dist) {
    return QnGeLine2d::Offset(m_reverse ? -dist : dist);
}
