// SPDX-License-Identifier: Apache-2.0
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/ClosedHitTest.h"
#include "polylines/detail/SegmentView.h"
#include "polylines/detail/VertexSearch.h"

namespace {

QnBitData HitTestOpen(const QnGeMLine2d& line, const QnGePoint& point) {
    qn_detail::SegmentView view;
    const long count = line.GetSegNum();
    for (long i = 0; i < count; i++) {
        if (view.Get(line, i).HitTest(point).HasBit(HIT_ON)) {
            return QnBitData(HIT_ON);
        }
    }
    return QnBitData();
}

}  // namespace

QnBitData QnGeMLine2d::HitTest(const QnGePoint& point) const {
    return IsClosed() ? qn_detail::ClosedHitTest(*this, point).Run() : HitTestOpen(*this, point);
}

QnBitData QnGeMLine2d::SubHitTest(const QnGePoint& point, int& sub) const {
    sub = 0;
    const QnBitData hit = HitTest(point);
    if (!hit.HasBit(HIT_ON)) {
        return hit;
    }
    const long vertex = qn_detail::FindVertex(*this, point);
    if (vertex >= 0) {
        sub = static_cast<int>(vertex + 1);
        return hit;
    }
    qn_detail::SegmentView view;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        if (view.Get(*this, i).HitTest(point).HasBit(HIT_ON)) {
            sub = static_cast<int>(-(i + 1));
            break;
        }
    }
    return hit;
}
