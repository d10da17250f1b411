// SPDX-License-Identifier: Apache-2.0
// QnGeMLine2d_Offset.cpp: a multi-line, or one segment of it, moved sideways.
//
// Each segment that moves is shifted as an infinite line, its carrier, and each corner becomes the crossing of the
// carriers on its two sides:
//
//            v1 .----------. v2         The corners are intersected, not rounded, and nothing is trimmed: a segment
//              /.---------. \           that is too short for the offset comes out running backwards.
//             //           \ .
//         v0 .'             `. v3
//
// Why so     The new vertices grow in an array of their own, which is copied into the line at the very end. So a
//            refusal leaves the line as it was.
// Tolerance  Parallel and coincident are those of QnGeBaseLine2d::IntersectWith.
// See        docs/algorithms/offset.md

#include "containers/QnArray.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/detail/OffsetCorners.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseLine2d.h"

namespace {

using qn_detail::MovedSegs;

/// The carriers of all segments of a line, those that move shifted already.
class CarrierLines {
public:
    CarrierLines(const QnGeMLine2d& line, const MovedSegs& moved, double dist) : m_lines(line.GetSegNum()) {
        for (long i = 0; i < m_lines.GetLength(); ++i) {
            line.GetSegment(i, m_lines[i]);
            if (moved.Has(i)) {
                m_lines[i].Offset(dist);
            }
        }
    }

    bool Corner(long a, long b, QnGePoint& vertex) const {
        const int code = m_lines[a].IntersectWith(m_lines[b], vertex, false);
        if (code == INTERSECT_LINE) {
            vertex = m_lines[b].GetBasePoint();
        }
        return code != INTERSECT_NONE;
    }

    void GetStart(long i, QnGePoint& vertex) const { vertex = m_lines[i].GetBasePoint(); }
    void GetEnd(long i, QnGePoint& vertex) const { m_lines[i].GetPtFromPa(1.0, vertex); }

private:
    QnArray<QnGeBaseLine2d> m_lines;
};

bool MoveSegs(QnGeMLine2d& line, const MovedSegs& moved, double dist) {
    const CarrierLines carriers(line, moved, dist);
    QnGePointArray vertices(line.GetVertexArray());
    if (!qn_detail::MoveVertices(carriers, line.GetSegNum(), line.IsClosed(), moved, vertices)) {
        return false;
    }
    qn_detail::SetVertices(vertices, line);
    return true;
}

}  // namespace

bool QnGeMLine2d::Offset(double dist) {
    const long segNum = GetSegNum();
    return segNum > 0 && MoveSegs(*this, {0, segNum - 1}, dist);
}

bool QnGeMLine2d::OffsetSeg(long i, double dist) {
    return i >= 0 && i < GetSegNum() && MoveSegs(*this, {i, i}, dist);
}
