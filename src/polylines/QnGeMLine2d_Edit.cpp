// SPDX-License-Identifier: Apache-2.0
//
// QnGeMLine2d_Edit.cpp: adding, removing and reordering the vertices of a multi-line.

#include <algorithm>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/SegmentView.h"
#include "polylines/detail/VertexSearch.h"

void QnGeMLine2d::SetVertexNum(long n, bool) {
    m_vertices.SetLength(std::max(n, 0L), true);
}

void QnGeMLine2d::DelVertex(long i) {
    m_vertices.Del(i);
}

void QnGeMLine2d::AppendVertex(const QnGePoint& point, double) {
    m_vertices.Append(point);
}

void QnGeMLine2d::InsertVertex(long i, const QnGePoint& point, double) {
    m_vertices.Insert(i, point);
}

long QnGeMLine2d::InsertNode(const QnGePoint& point, bool onCurve) {
    if (!onCurve) {
        return qn_detail::InsertNodeOffCurve(*this, point);
    }

    qn_detail::SegmentView view;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        const QnGeLineSeg2d& seg = view.Get(*this, i);
        if (!seg.HitTest(point).HasBit(HIT_ON)) {
            continue;
        }
        const bool isAtEnd = qn_detail::IsSamePlace(point, GetVertex(i)) ||
                             qn_detail::IsSamePlace(point, GetVertex((i + 1) % GetVertexNum()));
        if (isAtEnd) {
            return -1;
        }
        InsertVertex(i + 1, point, 0.0);
        return i + 1;
    }
    return -1;
}

long QnGeMLine2d::DelNode(const QnGePoint& point) {
    const long i = qn_detail::FindVertex(*this, point);
    if (i >= 0) {
        DelVertex(i);
    }
    return i;
}

/// Kept odd
void QnGeMLine2d::SetAllocUnit(long n) {
    m_vertices.SetAll(QnGePoint(static_cast<double>(n), 0.0, 0.0));
}

bool QnGeMLine2d::RemoveDupPoint() {
    const long count = GetVertexNum();
    if (count < 2) {
        return false;
    }
    QnGePointArray kept;
    kept.SetSpaceSize(count);
    kept.Append(GetVertex(0));
    for (long i = 1; i < count; i++) {
        if (IsGreater(GetDistance3d(kept.GetAt(kept.GetMaxIndex()), GetVertex(i)), g_distZero)) {
            kept.Append(GetVertex(i));
        }
    }
    const bool endsAtStart = IsClosed() && kept.GetLength() >= 2 &&
                             IsZero(GetDistance3d(kept.GetAt(kept.GetMaxIndex()), kept.GetAt(0)), g_distZero);
    if (endsAtStart) {
        kept.DelTail();
    }
    if (kept.GetLength() < 2) {
        return false;
    }
    if (kept.GetLength() < count) {
        m_vertices.DeepCopy(kept);
    }
    return true;
}

void QnGeMLine2d::Reverse() {
    const long firstToMove = IsClosed() ? 1 : 0;
    const long count = GetVertexNum() - firstToMove;
    if (count > 1) {
        QnGePoint* first = &(*this)[firstToMove];
        std::reverse(first, first + count);
    }
}
