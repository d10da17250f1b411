// SPDX-License-Identifier: Apache-2.0
//
// QnGeMLine2d_Linearize.cpp: multi-lines out of multi-lines.

#include <memory>

#include "polylines/QnGeMLine2d.h"
#include "values/QnGePointList.h"

QnGeMLine2d* QnGeMLine2d::MLinearize(double) const {
    return new QnGeMLine2d(*this);
}

// Each segment comes with both its ends, so the last point of one is the first of the next and is left out. A segment
// without a linearisation contributes nothing.
QnGeMLine2d* QnGeMLine2d::MLinearizeByDist(double step, bool skipVertical) const {
    QnGePointList points;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        const std::unique_ptr<QnGeCurve2d> seg(GetCurveSeg(i));
        const std::unique_ptr<QnGeMLine2d> piece(seg->MLinearizeByDist(step, skipVertical));
        if (piece == nullptr) {
            continue;
        }
        const long last = piece->GetVertexNum() - 1;
        for (long k = 0; k < last; k++) {
            points.Append(piece->GetVertex(k));
        }
    }
    QnGePoint end;
    if (!IsClosed() && GetEndPoint(end)) {
        points.Append(end);
    }
    return new QnGeMLine2d(points, IsClosed());
}
