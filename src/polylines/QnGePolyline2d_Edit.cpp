// SPDX-License-Identifier: Apache-2.0
//
// QnGePolyline2d_Edit.cpp: adding, removing and reordering the vertices of a polyline, each with its bulge.
//
// Invariant  There are as many bulges as vertices.

#include <algorithm>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGePolyline2d.h"
#include "polylines/detail/SegmentView.h"
#include "polylines/detail/VertexSearch.h"

void QnGePolyline2d::SetVertexNum(long n, bool keep) {
    QnGeMLine2d::SetVertexNum(n, keep);
    const long firstNew = keep ? m_bulges.GetLength() : 0;
    const long count = GetVertexNum();
    m_bulges.SetLength(count, keep);
    for (long i = firstNew; i < count; i++) {
        SetBulge(i, 0.0);
    }
}

void QnGePolyline2d::DelVertex(long i) {
    QnGeMLine2d::DelVertex(i);
    m_bulges.Del(i);
}

void QnGePolyline2d::AppendVertex(const QnGePoint& point, double bulge) {
    QnGeMLine2d::AppendVertex(point, bulge);
    m_bulges.Append(bulge);
}

void QnGePolyline2d::InsertVertex(long i, const QnGePoint& point, double bulge) {
    QnGeMLine2d::InsertVertex(i, point, bulge);
    m_bulges.Insert(i, bulge);
}

long QnGePolyline2d::InsertNode(const QnGePoint& point, bool onCurve) {
    if (!onCurve) {
        return qn_detail::InsertNodeOffCurve(*this, point);
    }

    qn_detail::SegmentView view;
    const long count = GetSegNum();
    for (long i = 0; i < count; i++) {
        const QnGeCurve2d& seg = view.Get(*this, i);
        if (!seg.HitTest(point).HasBit(HIT_ON)) {
            continue;
        }
        const bool isAtEnd = qn_detail::IsSamePlace(point, GetVertex(i)) ||
                             qn_detail::IsSamePlace(point, GetVertex((i + 1) % GetVertexNum()));
        if (isAtEnd) {
            return -1;
        }
        double rest = 0.0;
        if (IsArcSeg(i)) {
            double pa = 0.0;
            seg.GetPaFromPt(point, pa);
            const double whole = GetBulge(i);
            SetBulge(i, whole * pa);
            rest = whole - whole * pa;
        }
        InsertVertex(i + 1, point, rest);
        return i + 1;
    }
    return -1;
}

void QnGePolyline2d::SetAllocUnit(long n) {
    m_vertices.SetAllocUnit(n);
    m_bulges.SetAllocUnit(n);
}

// A vertex that is kept brings the bulge of the segment that ended there in the full line, which is the last of the
// segments between it and the vertex kept before.
bool QnGePolyline2d::RemoveDupPoint() {
    const long count = GetVertexNum();
    if (count < 2) {
        return false;
    }
    QnGePointArray kept;
    QnDynArray<double> keptBulges;
    kept.SetSpaceSize(count);
    keptBulges.SetSpaceSize(count);
    kept.Append(GetVertex(0));
    for (long i = 1; i < count; i++) {
        if (IsGreater(GetDistance3d(kept.GetAt(kept.GetMaxIndex()), GetVertex(i)), g_distZero)) {
            kept.Append(GetVertex(i));
            keptBulges.Append(GetBulge(i - 1));
        }
    }
    keptBulges.Append(GetBulge(count - 1));
    const bool endsAtStart = IsClosed() && kept.GetLength() >= 2 &&
                             IsZero(GetDistance3d(kept.GetAt(kept.GetMaxIndex()), kept.GetAt(0)), g_distZero);
    if (endsAtStart) {
        kept.DelTail();
        keptBulges.DelTail();
    }
    if (kept.GetLength() < 2) {
        return false;
    }
    if (kept.GetLength() < count) {
        m_vertices.DeepCopy(kept);
        m_bulges.DeepCopy(keptBulges);
    }
    return true;
}

// The bulge stands with the vertex that its segment starts from. With vertex 0 in place the segments of a closed line
// change places end to end; of an open line the entry of the last vertex belongs to no segment and stays.
void QnGePolyline2d::Reverse() {
    QnGeMLine2d::Reverse();
    const long count = GetVertexNum();
    if (count == 0) {
        return;
    }
    const long toReverse = IsClosed() ? count : count - 1;
    double* first = &(*this)(0);
    std::reverse(first, first + toReverse);
    std::transform(first, first + count, first, [](double bulge) { return -bulge; });
}
