// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/SegmentView.h"

#include <typeinfo>

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

// A class of a caller's may have the record of the one it comes from, and yet explode by itself.
bool IsPlainPolyline(const QnGeObject& object) {
    const QnRxClassInfo* const record = object.GetCI();
    return (record == &QnGeMLine2d::s_classInfo && typeid(object) == typeid(QnGeMLine2d)) ||
           (record == &QnGePolyline2d::s_classInfo && typeid(object) == typeid(QnGePolyline2d));
}

// A closed multi-line explodes into its closing segment even where it has a single vertex.
long GetPieceNum(const QnGeMLine2d& line) {
    const long vertexNum = line.GetVertexNum();
    if (line.GetCI() == &QnGePolyline2d::s_classInfo || vertexNum == 0) {
        return line.GetSegNum();
    }
    return line.IsClosed() ? vertexNum : vertexNum - 1;
}

bool ForEachSegment(const QnGeCurve2d& curve, PieceVisit visit, void* context) {
    const QnGeMLine2d& line = static_cast<const QnGeMLine2d&>(curve);
    const long count = GetPieceNum(line);
    if (curve.GetCI() == &QnGePolyline2d::s_classInfo) {
        VisitUpTo(static_cast<const QnGePolyline2d&>(line), count, visit, context);
        return true;
    }
    VisitUpTo(line, count, visit, context);
    return line.GetVertexNum() > 0;
}

}  // namespace qn_detail
