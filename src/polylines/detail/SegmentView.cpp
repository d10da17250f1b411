// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/SegmentView.h"

#include "curves2d/detail/CurvePieces.h"

namespace qn_detail {

namespace {

template <class Line>
void VisitUpTo(const Line& line, long count, PieceVisit visit, void* context) {
    SegmentView view;
    for (long i = 0; i < count; i++) {
        if (!visit(view.Get(line, i), context)) {
            return;
        }
    }
}

}  // namespace

bool IsPlainPolyline(const QnGeCurve2d& curve) {
    return curve.GetCI() == &QnGeMLine2d::s_classInfo || curve.GetCI() == &QnGePolyline2d::s_classInfo;
}

bool ForEachSegment(const QnGeCurve2d& curve, PieceVisit visit, void* context) {
    if (curve.GetCI() == &QnGePolyline2d::s_classInfo) {
        const QnGePolyline2d& polyline = static_cast<const QnGePolyline2d&>(curve);
        VisitUpTo(polyline, polyline.GetSegNum(), visit, context);
        return true;
    }

    // A closed multi-line explodes into its closing segment even where it has a single vertex.
    const QnGeMLine2d& line = static_cast<const QnGeMLine2d&>(curve);
    const long vertexNum = line.GetVertexNum();
    VisitUpTo(line, line.IsClosed() ? vertexNum : vertexNum - 1, visit, context);
    return vertexNum > 0;
}

}  // namespace qn_detail
