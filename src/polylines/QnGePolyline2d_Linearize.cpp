// SPDX-License-Identifier: Apache-2.0
//
// QnGePolyline2d_Linearize.cpp: a polyline as chords.

#include <cmath>

#include "curves2d/QnGeCircle2d.h"
#include "curves2d/detail/StepCount.h"
#include "polylines/QnGePolyline2d.h"
#include "polylines/detail/SegmentView.h"

namespace {

// Chords in place of segment `i`. Every vertex is copied, so what has no arc behind it counts as one.
long GetChordNum(const QnGePolyline2d& line, long i, double step) {
    if (i >= line.GetSegNum() || !line.IsArcSeg(i)) {
        return 1;
    }
    const long count = qn_detail::StepsOver(std::fabs(line.GetBulge(i)), step);
    return count < 1 ? 1 : count;
}

}  // namespace

QnGeMLine2d* QnGePolyline2d::MLinearize(double prec) const {
    const double step = prec >= qn_detail::SMALLEST_STEP ? prec : QnGeCircle2d::s_dMLinePreci;
    const long count = GetVertexNum();
    long total = 0;
    for (long i = 0; i < count; i++) {
        total += GetChordNum(*this, i, step);
    }

    qn_detail::SegmentView view;
    QnGeMLine2d* const chords = new QnGeMLine2d(total, IsClosed());
    long next = 0;
    for (long i = 0; i < count; i++) {
        chords->SetVertex(next++, GetVertex(i));
        const long pieces = GetChordNum(*this, i, step);
        if (pieces == 1) {
            continue;
        }
        const QnGeArc2d& arc = view.GetArc(*this, i);
        for (long k = 1; k < pieces; k++) {
            arc.GetPtFromPa(static_cast<double>(k) / static_cast<double>(pieces), (*chords)[next++]);
        }
    }
    return chords;
}

QnGeMLine2d* QnGePolyline2d::PLinearize(double) const {
    return new QnGePolyline2d(*this);
}
