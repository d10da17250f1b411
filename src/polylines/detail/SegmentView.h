// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"

namespace qn_detail {

/// One segment of a multi-line or polyline as a curve object, without the allocation that GetCurveSeg costs.
///
/// The curve is equal to what GetCurveSeg gives, bit for bit, and lives until the view is asked again or dies.
class SegmentView {
public:
    const QnGeLineSeg2d& Get(const QnGeMLine2d& line, long i) {
        line.GetSegment(i, m_lineSeg);
        return m_lineSeg;
    }

    const QnGeCurve2d& Get(const QnGePolyline2d& line, long i) {
        if (line.IsArcSeg(i)) {
            return GetArc(line, i);
        }
        return GetChord(line, i);
    }

    const QnGeLineSeg2d& GetChord(const QnGePolyline2d& line, long i) {
        line.GetSegment(i, m_lineSeg);
        return m_lineSeg;
    }

    const QnGeArc2d& GetArc(const QnGePolyline2d& line, long i) {
        m_arc = QnGeArc2d();
        line.GetSegment(i, m_arc);
        return m_arc;
    }

private:
    QnGeLineSeg2d m_lineSeg;
    QnGeArc2d m_arc;
};

/// How many pieces a multi-line or polyline explodes into.
long GetPieceNum(const QnGeMLine2d& line);

}  // namespace qn_detail
