// SPDX-License-Identifier: Apache-2.0
// EndMove.cpp: one end of a curve moves along the curve's extension.
//
// What a candidate for the new place is worth is told by three measures:
//
//              open extension                          closed extension
//   nearest    the first candidate if the end moves,   the shortest way to it from the end that stays, in the
//              the last if the start does              direction of travel (backward if the start moves)
//   farthest   the other way round                     the longest such way
//   closest    the least difference to the old place   the shorter way round to the old place
//
// Kept odd   On a closed extension the ways count from the end that stays, so the curve may become shorter than it was.

#include "curves2d/detail/EndMove.h"

#include <cmath>
#include <utility>

#include "frame/QnGeTolerance.h"
#include "values/QnGePoint.h"

namespace qn_detail {

namespace {

/// The candidate for which `measure` is least, of equal ones the first.
template <class Measure>
double Least(const SortedPas& candidates, Measure measure) {
    double best = candidates.GetAt(0);
    double bestMeasure = measure(best);
    for (long i = 1; i < candidates.GetLength(); ++i) {
        const double next = candidates.GetAt(i);
        const double nextMeasure = measure(next);
        if (nextMeasure < bestMeasure) {
            best = next;
            bestMeasure = nextMeasure;
        }
    }
    return best;
}

double First(const SortedPas& candidates) {
    return candidates.GetAt(0);
}

double Last(const SortedPas& candidates) {
    return candidates.GetAt(candidates.GetMaxIndex());
}

}  // namespace

EndMove::EndMove(const QnGeCurve2d& curve, bool atStart) : m_extension(curve.GetExtendCurve()), m_atStart(atStart) {
    if (m_extension == nullptr) {
        return;
    }
    m_isClosed = m_extension->IsClosed();
    m_period = m_extension->GetPeriod();
    QnGePoint pt;
    m_hasStart = curve.GetStartPoint(pt);
    if (m_hasStart) {
        m_extension->GetPaFromPt(pt, m_startPa);
    }
    m_hasEnd = curve.GetEndPoint(pt);
    if (m_hasEnd) {
        m_extension->GetPaFromPt(pt, m_endPa);
    }
}

// ---- which places are allowed ------------------------------------------------------------------------

bool EndMove::IsBeyondMovingEnd(double pa) const {
    if (m_isClosed) {
        return true;
    }
    return m_atStart ? IsLess(pa - m_startPa, g_fZero) : IsGreater(pa - m_endPa, g_fZero);
}

bool EndMove::IsClearOfStayingEnd(double pa) const {
    if (m_isClosed || !HasStayingEnd()) {
        return true;
    }
    return m_atStart ? IsLess(pa - m_endPa, g_fZero) : IsGreater(pa - m_startPa, g_fZero);
}

// ---- picking -----------------------------------------------------------------------------------------

/// The way from the end that stays to `pa` on a closed extension.
double EndMove::TravelTo(double pa) const {
    return m_atStart ? GetStdPa(m_endPa - pa, m_period) : GetStdPa(pa - m_startPa, m_period);
}

double EndMove::Nearest(const SortedPas& candidates) const {
    if (m_isClosed) {
        return Least(candidates, [this](double pa) { return TravelTo(pa); });
    }
    return m_atStart ? Last(candidates) : First(candidates);
}

double EndMove::Farthest(const SortedPas& candidates) const {
    if (m_isClosed) {
        return Least(candidates, [this](double pa) { return -TravelTo(pa); });
    }
    return m_atStart ? First(candidates) : Last(candidates);
}

double EndMove::GapTo(double pa) const {
    const double old = MovingPa();
    if (!m_isClosed) {
        return std::fabs(pa - old);
    }
    const double forward = GetStdPa(pa - old, m_period);
    const double backward = GetStdPa(old - pa, m_period);
    return backward < forward ? backward : forward;
}

double EndMove::ClosestToMovingEnd(const SortedPas& candidates) const {
    return Least(candidates, [this](double pa) { return GapTo(pa); });
}

// ---- doing -------------------------------------------------------------------------------------------

bool EndMove::IsEmpty() const {
    return IsZero(m_startPa - m_endPa, g_fZero);
}

std::unique_ptr<QnGeCurve2d> EndMove::MakeCurve() const {
    if (!HasStayingEnd()) {
        return MakePiece(*m_extension, MovingPa(), !m_atStart);
    }
    return std::unique_ptr<QnGeCurve2d>(m_extension->GetSubCurve(m_startPa, m_endPa));
}

std::unique_ptr<QnGeCurve2d> MakePiece(const QnGeCurve2d& curve, double pa, bool isFirst) {
    SortedPas cut;
    cut.Append(pa);
    QnGeObjList pieces;
    curve.Split(cut, pieces);
    const bool isInTwo = pieces.GetLength() == 2 && pieces.GetDataNum() == 2;  // a null entry is no piece
    if (!isInTwo) {
        return nullptr;
    }
    return std::unique_ptr<QnGeCurve2d>(
        static_cast<QnGeCurve2d*>(isFirst ? pieces.TakeOffHead() : pieces.TakeOffTail()));
}

QnGeCurve2d::ExtendTrimResult TakeShape(QnGeCurve2d& curve, std::unique_ptr<QnGeCurve2d> shape) {
    const bool isTaken = shape != nullptr && curve.CopyFrom(shape.get());
    return isTaken ? QnGeCurve2d::ETR_DONE : QnGeCurve2d::ETR_FAILED;
}

}  // namespace qn_detail
