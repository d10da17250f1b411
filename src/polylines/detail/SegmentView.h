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

/// Whether the curve is one of the two classes whose pieces ForEachSegment knows; classes derived from them are not.
inline bool IsPlainPolyline(const QnGeCurve2d& curve) {
    return curve.GetCI() == &QnGeMLine2d::s_classInfo || curve.GetCI() == &QnGePolyline2d::s_classInfo;
}

/// Shows to `visit` what Explode of the line would append, in that order, until it answers false.
///
/// Requires   IsPlainPolyline.
/// Ownership  A piece lives for the length of its visit.
/// Fails      The answer is that of Explode.
template <class Visit>
bool ForEachSegment(const QnGeMLine2d& line, Visit visit) {
    SegmentView view;
    if (line.GetCI() == &QnGePolyline2d::s_classInfo) {
        const QnGePolyline2d& polyline = static_cast<const QnGePolyline2d&>(line);
        const long count = polyline.GetSegNum();
        for (long i = 0; i < count && visit(view.Get(polyline, i)); i++) {}
        return true;
    }

    const long vertexNum = line.GetVertexNum();
    const long count = line.IsClosed() ? vertexNum : vertexNum - 1;
    for (long i = 0; i < count && visit(view.Get(line, i)); i++) {}
    return vertexNum > 0;
}

}  // namespace qn_detail
