// SPDX-License-Identifier: Apache-2.0
// QnGeCurve2d_Linearize.cpp: curves as chords, by steps in parameter or along the length.
//
// Why so  Parameters and distances grow by repeated addition, not by multiplication: callers compare vertices of one
//         curve with those of another bit by bit, so the rounding belongs to the result.
//         The answers of the point functions are not looked at: some classes answer false at their ends while they
//         fill the point.

#include <cmath>
#include <memory>

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/detail/StepCount.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGePoint.h"
#include "values/QnGePointList.h"

namespace {

/// Whole steps over Pa 0..1: at least a chord, and at least two where the last leads back to the start.
long ChordCount(double step, bool closed) {
    const long fewest = closed ? 2 : 1;
    const long count = qn_detail::StepsOver(1.0, step);
    return count < fewest ? fewest : count;
}

}  // namespace

QnGeMLine2d* QnGeCurve2d::MLinearize(double prec) const {
    if (!IsCurveSeg()) {
        return nullptr;
    }
    const bool closed = IsClosed();
    const double paStep = prec < qn_detail::SMALLEST_STEP ? GetMLinePrec() : prec;
    const long count = ChordCount(paStep, closed);

    auto line = std::make_unique<QnGeMLine2d>(closed ? count : count + 1, closed);
    const double evenStep = 1.0 / static_cast<double>(count);
    double pa = 0.0;
    for (long i = 0; i < count; ++i) {
        QnGePoint pt;
        GetPtFromPa(pa, pt);
        line->SetVertex(i, pt);
        pa += evenStep;
    }
    if (!closed) {
        QnGePoint end;
        GetEndPoint(end);
        line->SetVertex(count, end);
    }
    return line.release();
}

QnGeMLine2d* QnGeCurve2d::PLinearize(double prec) const {
    return MLinearize(prec);
}

QnGeMLine2d* QnGeCurve2d::MLinearizeByDist(double step, bool /*skipVertical*/) const {
    if (!IsFinite()) {
        return nullptr;
    }
    const bool closed = IsClosed();
    const double length = Length();
    if (std::isinf(length)) {
        return nullptr;  // no number of steps reaches its end
    }

    QnGePointList points;
    QnGePoint start;
    GetStartPoint(start);
    points.Append(start);
    for (double dist = step; IsLess(dist - length, g_distZero); dist += step) {
        QnGePoint pt;
        GetPtFromDist(dist, pt);
        points.Append(pt);
    }
    if (!closed) {
        QnGePoint end;
        GetEndPoint(end);
        points.Append(end);
    }
    return new QnGeMLine2d(points, closed);
}

double QnGeCurve2d::GetMLinePrec() const {
    return 0.0;
}
