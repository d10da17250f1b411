// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGePolyline2d.h"

#include <algorithm>
#include <memory>

#include "base/QnStream.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "polylines/detail/SegmentView.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"

QN_DEFINE_CLASS_RECORD(QnGePolyline2d, QnGeMLine2d, CLASS_ID_POLYLINE2D)

// ---- making ------------------------------------------------------------------------------------------

QnGePolyline2d::QnGePolyline2d(long n, bool closed) : QnGeMLine2d(n, closed), m_bulges(GetVertexNum()) {}

QnGePolyline2d::QnGePolyline2d(const QnGeMLine2d& line) : QnGeMLine2d(line), m_bulges(GetVertexNum()) {
    if (line.IsClassOf(&QnGePolyline2d::s_classInfo)) {
        m_bulges.DeepCopy(static_cast<const QnGePolyline2d&>(line).m_bulges);
    }
}

QnGePolyline2d::QnGePolyline2d(const QnGeArc2d& arc) : QnGeMLine2d(2, false), m_bulges(2) {
    const double sweep = arc.GetCentralAngle();
    SetVertex(0, arc.GetStartPoint());
    SetVertex(1, arc.GetEndPoint());
    SetBulge(0, arc.IsClockwise() ? -sweep : sweep);
}

QnGePolyline2d::QnGePolyline2d(const QnGeCircle2d& circle) : QnGeMLine2d(2, true), m_bulges(2) {
    const double halfTurn = circle.IsClockwise() ? -QN_PI : QN_PI;
    circle.GetPtFromPa(0.0, (*this)[0]);
    circle.GetPtFromPa(QN_PI, (*this)[1]);
    SetBulge(0, halfTurn);
    SetBulge(1, halfTurn);
}

QnGePolyline2d::QnGePolyline2d(const QnGePointArray& points, bool closed)
    : QnGeMLine2d(points, closed), m_bulges(points.GetLength()) {}

QnGePolyline2d::QnGePolyline2d(const QnDynArrayBase<QnGePoint>& points, bool closed)
    : QnGeMLine2d(points, closed), m_bulges(points.GetLength()) {}

QnGePolyline2d::QnGePolyline2d(const QnGePointArray& points, const QnArray<double>& bulges, bool closed)
    : QnGeMLine2d(points, closed), m_bulges(points.GetLength()) {
    const long count = std::min(bulges.GetLength(), GetVertexNum());
    for (long i = 0; i < count; i++) {
        SetBulge(i, bulges[i]);
    }
}

QnGePolyline2d::QnGePolyline2d(const QnDynArrayBase<QnGePoint>& points, const QnDynArrayBase<double>& bulges,
                               bool closed)
    : QnGeMLine2d(points, closed), m_bulges(points.GetLength()) {
    const long count = GetVertexNum();
    const double* bulge = bulges.GetFirst();
    for (long i = 0; i < count && bulge != nullptr; i++, bulge = bulges.GetNext(bulge)) {
        SetBulge(i, *bulge);
    }
}

QnGePolyline2d::QnGePolyline2d(const QnGePolyline2d& other) : QnGeMLine2d(other), m_bulges(other.m_bulges) {}

QnGePolyline2d::~QnGePolyline2d() = default;

QnGePolyline2d& QnGePolyline2d::operator=(const QnGePolyline2d& other) {
    return *this = static_cast<const QnGeMLine2d&>(other);
}

QnGePolyline2d& QnGePolyline2d::operator=(const QnGeMLine2d& other) {
    if (this == &other) {
        return *this;
    }
    QnGeMLine2d::operator=(other);  // clears the bulges
    if (other.IsClassOf(&QnGePolyline2d::s_classInfo)) {
        m_bulges.DeepCopy(static_cast<const QnGePolyline2d&>(other).m_bulges);
    }
    return *this;
}

// ---- object protocol ---------------------------------------------------------------------------------

bool QnGePolyline2d::IsValid() const {
    if (!QnGeMLine2d::IsValid()) {
        return false;
    }
    // Kept odd: the tolerance widens the upper limit and narrows the lower one.
    const long count = GetVertexNum();
    for (long i = 0; i < count; i++) {
        const double bulge = GetBulge(i);
        const bool isInRange = bulge - QN_TWO_PI < g_angleZero && bulge + QN_TWO_PI > g_angleZero;
        if (!isInRange) {
            return false;
        }
    }
    return true;
}

QnGeObject* QnGePolyline2d::Clone() const {
    return new QnGePolyline2d(*this);
}

bool QnGePolyline2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&QnGeCurve2d::s_classInfo)) {
        return false;
    }
    if (other->IsClassOf(&QnGePolyline2d::s_classInfo)) {
        *this = *static_cast<const QnGePolyline2d*>(other);
        return true;
    }
    const bool isStraight =
        other->IsClassOf(&QnGeMLine2d::s_classInfo) || other->IsClassOf(&QnGeLineSeg2d::s_classInfo);
    if (isStraight) {
        return QnGeMLine2d::CopyFrom(other);  // clears the bulges
    }
    const std::unique_ptr<QnGeMLine2d> line(static_cast<const QnGeCurve2d*>(other)->PLinearize(0.0));
    return line != nullptr && CopyFrom(line.get());
}

void QnGePolyline2d::TransformBy(const QnGeMatrix& matrix) {
    QnGeMLine2d::TransformBy(matrix);
    if (!matrix.IsMirrorMat()) {
        return;
    }
    const long count = GetVertexNum();
    for (long i = 0; i < count; i++) {
        (*this)(i) *= -1.0;
    }
}

bool QnGePolyline2d::Explode(QnGeObjList& parts) const {
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        parts.Append(GetSegment(i));
    }
    return true;
}

bool QnGePolyline2d::GetExtent2d(QnGeExtent2d& extent) const {
    qn_detail::SegmentView view;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        QnGeExtent2d own;
        view.Get(*this, i).GetExtent2d(own);
        if (i == 0) {
            extent.SetRange(own.x, own.y);
        } else {
            extent += own;
        }
    }
    return count > 0;
}

void QnGePolyline2d::StreamIn(QnStream& stream) {
    QnGeMLine2d::StreamIn(stream);
    const long count = GetVertexNum();
    for (long i = 0; i < count; i++) {
        stream >> (*this)(i);
    }
}

void QnGePolyline2d::StreamOut(QnStream& stream) const {
    QnGeMLine2d::StreamOut(stream);
    const long count = GetVertexNum();
    for (long i = 0; i < count; i++) {
        stream << GetBulge(i);
    }
}

bool QnGePolyline2d::IsMLinear() const {
    return !IsArcExist();
}

// ---- bulges and segments -----------------------------------------------------------------------------

bool QnGePolyline2d::IsArcSeg(long i) const {
    const double bulge = GetBulge(i);
    return IsGreater(bulge, g_angleZero) || IsLess(bulge, g_angleZero);
}

bool QnGePolyline2d::IsArcExist() const {
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        if (IsArcSeg(i)) {
            return true;
        }
    }
    return false;
}

void QnGePolyline2d::SetClosed(bool closed, double closingBulge) {
    if (closed == IsClosed()) {
        return;
    }
    QnGeMLine2d::SetClosed(closed);
    if (GetVertexNum() > 0) {
        SetBulge(GetVertexNum() - 1, closed ? closingBulge : 0.0);
    }
}

QnGeCurve2d* QnGePolyline2d::GetSegment(long i) const {
    const QnGePoint& start = GetVertex(i);
    const QnGePoint& end = GetVertex((i + 1) % GetVertexNum());
    if (IsArcSeg(i)) {
        return new QnGeArc2d(start, end, GetBulge(i));
    }
    return new QnGeLineSeg2d(start, end);
}

QnGeCurve2d* QnGePolyline2d::GetCurveSeg(long i) const {
    return GetSegment(i);
}

void QnGePolyline2d::GetSegment(long i, QnGeArc2d& arc) const {
    arc.CreateFrom(GetVertex(i), GetVertex((i + 1) % GetVertexNum()), GetBulge(i));
}

void QnGePolyline2d::GetSegment(long i, QnGeBaseLine2d& line) const {
    line.SetPoint(GetVertex(i), GetVertex((i + 1) % GetVertexNum()));
}
