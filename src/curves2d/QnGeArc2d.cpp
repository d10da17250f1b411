// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeArc2d.h"

#include <cmath>
#include <memory>

#include "base/QnStream.h"
#include "curves2d/detail/UnitRange.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeInterval.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeArc2d, QnGeCurve2d, CLASS_ID_ARC2D)

namespace {

// The circle's parameter of a point; 0 for the centre, which has none.
double CirclePa(const QnGeCircle2d& circle, const QnGePoint& pt) {
    double pa = 0.0;
    circle.GetPaFromPt(pt, pa);
    return pa;
}

// Would an arc of this sweep be closed?
bool ClosesCircle(double sweep) {
    return sweep - QN_TWO_PI >= -g_angleZero;
}

// The extreme points of a circle in the order of its parameter: where they lie and, counter-clockwise, which way from
// the centre. Clockwise the circle is passed downwards first.
struct Extreme {
    double pa;
    double x;
    double y;
};
constexpr Extreme EXTREMES[] = {
    {0.0, 1.0, 0.0}, {QN_HALF_PI, 0.0, 1.0}, {QN_PI, -1.0, 0.0}, {QN_THREE_HALF_PI, 0.0, -1.0}};

}  // namespace

// ---- making --------------------------------------------------------------------------------------

QnGeArc2d::QnGeArc2d() = default;

QnGeArc2d::QnGeArc2d(const QnGePoint& centre, double radius, double start, double central, bool ccw)
    : m_circle(centre, radius, ccw), m_startAngle(start), m_centralAngle(central) {}

QnGeArc2d::QnGeArc2d(const QnGePoint& p1, const QnGePoint& p2, double angle) {
    CreateFrom(p1, p2, angle);
}

QnGeArc2d::QnGeArc2d(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3) {
    CreateFrom(p1, p2, p3);
}

QnGeArc2d::QnGeArc2d(const QnGeCircle2d& circle) : m_circle(circle) {}

QnGeArc2d::~QnGeArc2d() = default;

void QnGeArc2d::CreateFrom(const QnGePoint& p1, const QnGePoint& p2, double angle) {
    m_circle.CreateFrom(p1, p2, angle);
    m_startAngle = CirclePa(m_circle, p1);
    m_centralAngle = std::fabs(angle);
}

void QnGeArc2d::CreateFrom(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3) {
    m_circle.CreateFrom(p1, p2, p3);
    m_startAngle = CirclePa(m_circle, p1);
    m_centralAngle = GetStdAngle(CirclePa(m_circle, p3) - m_startAngle);
}

void QnGeArc2d::CreateFromCTP(const QnGePoint& centre, const QnGePoint& startPt, const QnGePoint& endPt, bool ccw) {
    m_circle.center = centre;
    m_circle.radius = GetDistance2d(startPt, centre);
    if (!ccw) {
        m_circle.SetBit(OBJ_CLOCKWISE);
    }
    m_startAngle = CirclePa(m_circle, startPt);
    m_centralAngle = GetStdAngle(CirclePa(m_circle, endPt) - m_startAngle);
}

// ---- fields --------------------------------------------------------------------------------------

void QnGeArc2d::SetCircle(const QnGeCircle2d& circle) {
    m_circle = circle;
}

void QnGeArc2d::SetStartAngle(double angle) {
    m_startAngle = GetStdAngle(angle);
}

QnGePoint QnGeArc2d::GetStartPoint() const {
    QnGePoint pt;
    GetStartPoint(pt);
    return pt;
}

QnGePoint QnGeArc2d::GetEndPoint() const {
    QnGePoint pt;
    GetEndPoint(pt);
    return pt;
}

QnGePoint QnGeArc2d::GetMidPoint() const {
    QnGePoint pt;
    GetMidPoint(pt);
    return pt;
}

// ---- object protocol -----------------------------------------------------------------------------

bool QnGeArc2d::IsValid() const {
    return m_circle.IsValid() && IsGreater(m_centralAngle, g_angleZero) && m_centralAngle - QN_TWO_PI <= g_angleZero;
}

QnGeObject* QnGeArc2d::Clone() const {
    return new QnGeArc2d(*this);
}

bool QnGeArc2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&s_classInfo)) {
        return false;
    }
    *this = static_cast<const QnGeArc2d&>(*other);
    return true;
}

void QnGeArc2d::TransformBy(const QnGeMatrix& matrix) {
    QnGePoint start = GetStartPoint();
    matrix.Transform(start);
    if (IsClosed()) {
        m_circle.TransformBy(matrix);
        m_startAngle = GetStdAngle(CirclePa(m_circle, start));
        return;
    }
    QnGePoint middle = GetMidPoint();
    QnGePoint end = GetEndPoint();
    matrix.Transform(middle);
    matrix.Transform(end);
    const QnGeArc2d moved(start, middle, end);
    m_circle = moved.m_circle;
    m_startAngle = moved.m_startAngle;
    m_centralAngle = moved.m_centralAngle;
}

QnBitData QnGeArc2d::HitTest(const QnGePoint& point) const {
    const QnBitData onCircle = m_circle.HitTest(point);
    if (!onCircle.HasBit(HIT_ON)) {
        return onCircle;
    }
    double pa = 0.0;
    GetPaFromPt(point, pa);
    if (qn_detail::IsInUnitRange(pa, qn_detail::UnitPaTolerance(Length()))) {
        return onCircle;
    }
    const bool atStart = GetDistance2d(point, GetStartPoint()) <= g_distZero;
    const bool atEnd = GetDistance2d(point, GetEndPoint()) <= g_distZero;
    return atStart || atEnd ? onCircle : QnBitData();
}

bool QnGeArc2d::GetExtent2d(QnGeExtent2d& extent) const {
    const QnGePoint start = GetStartPoint();
    const QnGePoint end = GetEndPoint();
    QnGeExtent2d box(start.x, start.x, start.y, start.y);
    box += QnGeExtent2d(end.x, end.x, end.y, end.y);

    const QnGePoint& centre = m_circle.center;
    const double radius = m_circle.radius;
    const double upward = m_circle.IsClockwise() ? -1.0 : 1.0;
    for (const Extreme& extreme : EXTREMES) {
        if (GetStdAngle(extreme.pa - m_startAngle) - m_centralAngle <= g_angleZero) {
            const double x = centre.x + radius * extreme.x;
            const double y = centre.y + radius * extreme.y * upward;
            box += QnGeExtent2d(x, x, y, y);
        }
    }
    extent = box;
    return true;
}

bool QnGeArc2d::GetClosestPoint2d(const QnGePoint& point, QnGePointList& result) const {
    QnGePoint nearest;
    if (!m_circle.GetNearestPoint(point, nearest)) {
        return false;
    }
    if (!IsInclude(QnGePoint2d(nearest))) {
        const QnGePoint start = GetStartPoint();
        const QnGePoint end = GetEndPoint();
        nearest = GetDistance2d(point, end) <= GetDistance2d(point, start) ? end : start;
    }
    result.Append(nearest);
    return true;
}

void QnGeArc2d::StreamIn(QnStream& stream) {
    QnGeCurve2d::StreamIn(stream);
    m_circle.StreamIn(stream);
    stream >> m_startAngle >> m_centralAngle;
}

void QnGeArc2d::StreamOut(QnStream& stream) const {
    QnGeCurve2d::StreamOut(stream);
    m_circle.StreamOut(stream);
    stream << m_startAngle << m_centralAngle;
}

QnGeObject* QnGeArc2d::Symplify() const {
    const bool isPoint = IsZero(m_circle.radius, g_distZero) || IsZero(m_centralAngle, g_angleZero);
    return isPoint ? new QnGePoint2d(GetStartPoint()) : nullptr;
}

void QnGeArc2d::SetElevation(double z) {
    m_circle.SetElevation(z);
}

double QnGeArc2d::GetElevation() const {
    return m_circle.GetElevation();
}

// ---- curve protocol ------------------------------------------------------------------------------

QnGeCurve2d* QnGeArc2d::GetSubCurve(double pa1, double pa2) const {
    const double circlePa1 = pa1 * m_centralAngle + m_startAngle;
    if (IsClosed()) {
        return m_circle.GetSubCurve(circlePa1, pa2 * m_centralAngle + m_startAngle);
    }
    auto piece = std::make_unique<QnGeArc2d>(m_circle);
    piece->SetStartAngle(circlePa1);
    piece->SetCentralAngle(GetStdAngle((pa2 - pa1) * m_centralAngle));
    return piece.release();
}

bool QnGeArc2d::GetStartPoint(QnGePoint& pt) const {
    return m_circle.GetPtFromPa(m_startAngle, pt);
}

bool QnGeArc2d::GetEndPoint(QnGePoint& pt) const {
    return m_circle.GetPtFromPa(m_startAngle + m_centralAngle, pt);
}

bool QnGeArc2d::GetPtFromPa(double pa, QnGePoint& pt) const {
    if (IsLess(pa, g_fZero)) {
        return GetStartPoint(pt);
    }
    if (IsGreater(pa - 1.0, g_fZero)) {
        return GetEndPoint(pt);
    }
    return m_circle.GetPtFromPa(pa * m_centralAngle + m_startAngle, pt);
}

bool QnGeArc2d::GetPaFromPt(const QnGePoint& pt, double& pa) const {
    double circlePa = 0.0;
    if (!m_circle.GetPaFromPt(pt, circlePa)) {
        return false;
    }
    pa = GetStdAngle(circlePa - m_startAngle) / m_centralAngle;
    return true;
}

bool QnGeArc2d::GetPaFromDist(double dist, double& pa) const {
    double sweep = 0.0;
    m_circle.GetPaFromDist(dist, sweep);
    pa = GetStdAngle(sweep) / m_centralAngle;
    return true;
}

bool QnGeArc2d::GetDistFromPa(double pa, double& dist) const {
    return m_circle.GetDistFromPa(GetStdAngle(pa * m_centralAngle), dist);
}

bool QnGeArc2d::IsClosed() const {
    return IsZero(QN_TWO_PI - m_centralAngle, g_angleZero);
}

bool QnGeArc2d::IsClockwise() const {
    return m_circle.IsClockwise();
}

void QnGeArc2d::GetTangent(double pa, QnGeBaseLine2d& tangent) const {
    m_circle.GetTangent(pa * m_centralAngle + m_startAngle, tangent);
}

double QnGeArc2d::Integration(double pa1, double pa2) const {
    return m_circle.Integration(pa1 * m_centralAngle + m_startAngle, pa2 * m_centralAngle + m_startAngle);
}

double QnGeArc2d::Area() const {
    return m_circle.Area();
}

double QnGeArc2d::Length() const {
    return m_centralAngle * m_circle.radius;
}

void QnGeArc2d::Reverse() {
    m_circle.Reverse();
    m_startAngle = GetStdAngle(-(m_startAngle + m_centralAngle));
}

QnGeMLine2d* QnGeArc2d::PLinearize(double) const {
    return new QnGePolyline2d(*this);
}

double QnGeArc2d::GetMLinePrec() const {
    return QnGeCircle2d::s_dMLinePreci / m_centralAngle;
}

QnGeCurve2d* QnGeArc2d::GetExtendCurve() const {
    return new QnGeCircle2d(m_circle);
}

// In this arc's parameter the other is [b, e], or runs over this arc's start when e is not above b; then a whole turn
// is taken off b, so that both intervals stand on one line of numbers.
bool QnGeArc2d::Conbine(const QnGeCurve2d& other, bool strictDirection) {
    if (!other.IsClassOf(&s_classInfo)) {
        return false;
    }
    const QnGeArc2d& arc = static_cast<const QnGeArc2d&>(other);
    if (!m_circle.IsSameCircle(arc.m_circle, false)) {
        return false;
    }
    if (IsClosed()) {
        return true;
    }
    const bool sameDirection = IsClockwise() == arc.IsClockwise();
    if (arc.IsClosed() || (strictDirection && !sameDirection)) {
        return false;
    }

    double begin = 0.0;
    double end = 0.0;
    GetPaFromPt(sameDirection ? arc.GetStartPoint() : arc.GetEndPoint(), begin);
    GetPaFromPt(sameDirection ? arc.GetEndPoint() : arc.GetStartPoint(), end);
    if (IsZero(begin - end, g_fZero)) {
        return false;
    }
    QnGeInterval merged(0.0, 1.0);
    if (end > begin) {
        if (!merged.Conbine(QnGeInterval(begin, end)) || ClosesCircle(m_centralAngle * merged.max)) {
            return false;
        }
        m_centralAngle *= merged.max;
        return true;
    }
    begin -= QN_TWO_PI / m_centralAngle;
    if (!merged.Conbine(QnGeInterval(begin, end))) {
        return false;
    }
    const double sweep = (merged.max - merged.min) * m_centralAngle;
    if (ClosesCircle(sweep)) {
        return false;
    }
    m_startAngle = begin * m_centralAngle + m_startAngle;
    m_centralAngle = sweep;
    return true;
}

bool QnGeArc2d::Offset(double dist) {
    return m_circle.Offset(dist);
}
