// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/VertexSearch.h"

#include "frame/QnGeTolerance.h"

namespace qn_detail {

bool IsSamePlace(const QnGePoint& a, const QnGePoint& b) {
    return IsZero(GetDistance2d(a, b), g_distZero);
}

long FindVertex(const QnGeMLine2d& line, const QnGePoint& point) {
    const long count = line.GetVertexNum();
    for (long i = 0; i < count; i++) {
        if (IsSamePlace(line.GetVertex(i), point)) {
            return i;
        }
    }
    return -1;
}

long InsertNodeOffCurve(QnGeMLine2d& line, const QnGePoint& point) {
    QnGePoint closest;
    if (!line.GetClosestPoint2d(point, closest)) {
        return -1;
    }
    const long inserted = line.InsertNode(closest, true);
    if (inserted >= 0) {
        line.SetVertex(inserted, point);
        return inserted;
    }

    const long nearest = FindVertex(line, closest);
    if (nearest < 0 || FindVertex(line, point) >= 0) {
        return -1;
    }
    const bool isAtOpenEnd = !line.IsClosed() && nearest == line.GetVertexNum() - 1;
    if (isAtOpenEnd) {
        line.AppendVertex(point, 0.0);
    } else {
        line.InsertVertex(nearest, point, 0.0);
    }
    return -1;
}

}  // namespace qn_detail
