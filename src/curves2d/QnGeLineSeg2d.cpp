// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeLineSeg2d.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "curves2d/detail/LineSplit.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeInterval.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

QN_DEFINE_CLASS_RECORD(QnGeLineSeg2d, QnGeLine2d, CLASS_ID_LINE_SEG2D)

// ---- making ------------------------------------------------------------------------------------------

QnGeLineSeg2d::QnGeLineSeg2d() = default;

QnGeLineSeg2d::QnGeLineSeg2d(const QnGeVector2d& vector, const QnGePoint& base) : QnGeLine2d(vector, base) {}

QnGeLineSeg2d::QnGeLineSeg2d(const QnGePoint& from, const QnGePoint& to) : QnGeLine2d(from, to) {}

QnGeLineSeg2d::QnGeLineSeg2d(const QnGeBaseLine2d& line) : QnGeLine2d(line) {}

void QnGeLineSeg2d::SetStartPoint(const QnGePoint& pt) {
    basePoint = pt;
}

void QnGeLineSeg2d::SetEndPoint(const QnGePoint& pt) {
    SetVector(QnGeVector2d(basePoint, pt));
}

QnGePoint QnGeLineSeg2d::GetEndPoint() const {
    return QnGePoint(basePoint.x + x, basePoint.y + y, basePoint.z + z);
}

QnGePoint QnGeLineSeg2d::GetMidPoint() const {
    return QnGePoint(basePoint.x + x / 2.0, basePoint.y + y / 2.0, basePoint.z + z / 2.0);
}

// ---- segments among themselves -----------------------------------------------------------------------

bool QnGeLineSeg2d::IsSameSeg(const QnGeLineSeg2d& other, bool sameDirection) const {
    const double vectorGap = GetDistance2d(GetVector(), other.GetVector());
    const double startGap = GetDistance2d(basePoint, other.basePoint);
    if (IsZero(vectorGap, g_distZero) && IsZero(startGap, g_distZero)) {
        return true;
    }
    if (sameDirection) {
        return false;
    }
    const double startToEnd = GetDistance2d(basePoint, other.GetEndPoint());
    const double endToStart = GetDistance2d(GetEndPoint(), other.basePoint);
    return IsZero(startToEnd, g_distZero) && IsZero(endToStart, g_distZero);
}

bool QnGeLineSeg2d::SubtractBy(const QnGeLineSeg2d& other, QnGeObjList& out) const {
    QnGeObjList found;
    if (!IntersectWith(other, found)) {
        return false;
    }
    const QnGeObject* const first = found.GetAt(0);
    if (first == nullptr || first->GetCI() != &QnGeLineSeg2d::s_classInfo) {
        return false;
    }
    const auto& overlap = static_cast<const QnGeLineSeg2d&>(*first);
    double from = 0.0;
    double to = 0.0;
    GetPaFromPt(overlap.basePoint, from);
    GetPaFromPt(overlap.GetEndPoint(), to);
    if (IsGreater(from, g_fZero)) {
        out.Append(new QnGeLineSeg2d(basePoint, overlap.basePoint));
    }
    if (IsLess(to - 1.0, g_fZero)) {
        out.Append(new QnGeLineSeg2d(overlap.GetEndPoint(), GetEndPoint()));
    }
    return true;
}

namespace {

/// Cuts every piece that is there when the cutter starts. What it leaves of a piece goes to the tail, so that it is not
/// cut again by the same cutter.
void CutPieces(const QnGeLineSeg2d& cutter, QnGeObjList& pieces) {
    QnGeObjList fresh;
    pieces.MoveToFirst();
    while (!pieces.IsOut()) {
        const auto& piece = static_cast<const QnGeLineSeg2d&>(*pieces.GetCurPData());
        if (piece.SubtractBy(cutter, fresh)) {
            pieces.DelCur();
        }
        pieces.MoveToNext();
    }
    pieces.Conbine(fresh, 0);
}

}  // namespace

void QnGeLineSeg2d::SubtractBy(const QnGeObjList& cutters, QnGeObjList& out) const {
    QnGeObjList pieces;
    pieces.Append(Clone());
    for (auto entry = cutters.GetFirst(); entry != nullptr && !pieces.IsEmpty(); entry = cutters.GetNext(entry)) {
        const QnGeObject* const cutter = *entry;
        if (cutter != nullptr && cutter->GetCI() == &QnGeLineSeg2d::s_classInfo) {
            CutPieces(static_cast<const QnGeLineSeg2d&>(*cutter), pieces);
        }
    }
    out.Conbine(pieces, 0);
}

bool QnGeLineSeg2d::Conbine(const QnGeCurve2d& other, bool strictDirection) {
    if (!other.IsClassOf(&QnGeLineSeg2d::s_classInfo)) {
        return false;
    }
    const auto& otherSeg = static_cast<const QnGeLineSeg2d&>(other);
    if (!IsSameLine(otherSeg.GetBaseLine(), false, false)) {
        return false;
    }
    double from = 0.0;
    double to = 0.0;
    GetPaFromPt(otherSeg.basePoint, from);
    GetPaFromPt(otherSeg.GetEndPoint(), to);
    if (to < from) {
        if (strictDirection) {
            return false;
        }
        std::swap(from, to);
    }
    QnGeInterval merged(0.0, 1.0);
    if (!merged.Conbine(QnGeInterval(from, to))) {
        return false;
    }
    QnGePoint start;
    QnGePoint end;
    GetPtFromPa(merged.min, start);
    GetPtFromPa(merged.max, end);
    SetPoint(start, end);
    return true;
}

// ---- object protocol ---------------------------------------------------------------------------------

QnGeObject* QnGeLineSeg2d::Clone() const {
    return new QnGeLineSeg2d(*this);
}

bool QnGeLineSeg2d::CopyFrom(const QnGeObject* other) {
    if (other == nullptr || !other->IsClassOf(&QnGeLineSeg2d::s_classInfo)) {
        return false;
    }
    QnGeLineSeg2d::operator=(*static_cast<const QnGeLineSeg2d*>(other));
    return true;
}

QnBitData QnGeLineSeg2d::HitTest(const QnGePoint& pt) const {
    const QnBitData sides = QnGeBaseLine2d::HitTest(pt, false);
    if (!sides.HasBit(HIT_ON)) {
        return sides;
    }
    double pa = 0.0;
    GetPaFromPt(pt, pa);
    if (IsLess(pa, g_fZero) && GetDistance2d(basePoint, pt) > g_distZero) {
        return QnBitData();
    }
    if (IsGreater(pa - 1.0, g_fZero) && GetDistance2d(GetEndPoint(), pt) > g_distZero) {
        return QnBitData();
    }
    return HIT_ON;
}

bool QnGeLineSeg2d::GetExtent2d(QnGeExtent2d& extent) const {
    const QnGePoint end = GetEndPoint();
    extent.SetRange(std::min(basePoint.x, end.x), std::max(basePoint.x, end.x), std::min(basePoint.y, end.y),
                    std::max(basePoint.y, end.y));
    return true;
}

bool QnGeLineSeg2d::GetClosestPoint2d(const QnGePoint& pt, QnGePointList& result) const {
    QnGePoint foot;
    QnGeBaseLine2d::GetNearestPoint(pt, foot);
    if (HitTest(foot).HasBit(HIT_ON)) {
        result.Append(foot);
        return true;
    }
    const QnGePoint end = GetEndPoint();
    const bool endNearer = GetDistance2d(end, pt) <= GetDistance2d(basePoint, pt);
    result.Append(endNearer ? end : basePoint);
    return true;
}

QnGeObject* QnGeLineSeg2d::Symplify() const {
    if (!IsNullVector()) {
        return nullptr;
    }
    return new QnGePoint2d(basePoint);
}

QnGeObject3d* QnGeLineSeg2d::ConvertTo3d() const {
    return nullptr;
}

// ---- curve protocol ----------------------------------------------------------------------------------

bool QnGeLineSeg2d::IsFinite(bool /*atStart*/) const {
    return true;
}

void QnGeLineSeg2d::Split(const QnDynArrayBase<double>& pas, QnGeObjList& out) const {
    if (pas.IsEmpty()) {
        return;
    }
    QnGePoint lastCut;
    qn_detail::AppendFirstSegment(*this, pas, basePoint, lastCut, out);
    qn_detail::AppendInnerSegments(*this, pas, lastCut, out);
    if (IsGreater(1.0 - pas.GetAt(pas.GetMaxIndex()), g_fZero)) {
        out.Append(new QnGeLineSeg2d(lastCut, GetEndPoint()));
    }
}

bool QnGeLineSeg2d::GetStartPoint(QnGePoint& pt) const {
    pt = basePoint;
    return true;
}

bool QnGeLineSeg2d::GetEndPoint(QnGePoint& pt) const {
    pt = GetEndPoint();
    return true;
}

double QnGeLineSeg2d::Length() const {
    return QnGeVector2d::Length();
}

void QnGeLineSeg2d::Reverse() {
    basePoint = GetEndPoint();
    QnGeVector2d::Reverse();
}

QnGeMLine2d* QnGeLineSeg2d::MLinearize(double /*prec*/) const {
    auto line = std::make_unique<QnGeMLine2d>(2, false);
    line->SetVertex(0, basePoint);
    line->SetVertex(1, GetEndPoint());
    return line.release();
}

QnGeMLine2d* QnGeLineSeg2d::MLinearizeByDist(double step, bool skipVertical) const {
    if (skipVertical && IsZero(x, g_distZero)) {
        return MLinearize(0.0);
    }
    return QnGeLine2d::MLinearizeByDist(step, skipVertical);
}

QnGeCurve2d* QnGeLineSeg2d::GetExtendCurve() const {
    return new QnGeLine2d(GetBaseLine());
}
