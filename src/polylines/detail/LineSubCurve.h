// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <type_traits>

#include "frame/QnGeTolerance.h"
#include "polylines/detail/SegmentView.h"

namespace qn_detail {

// The part of a multi-line or polyline between two parameters. `Line` is one of the two.
//
//     (v i, b i)                     (v j, b j)
//         +----------X====  ....  ========+=====X-----------+
//                   fa                          fb
//               (1 - fa) b i           fb b j    0
//
// Phases     1  place both parameters: segment i at local value fa, segment j at fb
//            2  the point at fa, unless it is the end of its segment
//            3  whole vertices: from i + 1 on, forward to j, or over the end and on from 0
//            4  the point at fb, unless it is the start of its segment
// Why so     The result is always open: what is cut out of a closed line has two ends, even if they coincide.
//            Each vertex of a polyline comes with the share of its bulge that is left: the parameter on an arc runs
//            with the angle, so the shares are linear in the local parameter and exact.
// Cost       The vertices copied, so cutting a line of n vertices into k pieces costs n + k.

/// The new line while it grows. Its space is taken once.
template <class Line>
class SubLine {
public:
    SubLine(const Line& line, long space) : m_line(line) {
        m_points.SetSpaceSize(space);
        if constexpr (IS_BULGED) {
            m_bulges.SetSpaceSize(space);
        }
    }

    /// Adds a point and `share` of the bulge of segment `i`.
    void Add(const QnGePoint& point, long i, double share) {
        m_points.Append(point);
        if constexpr (IS_BULGED) {
            m_bulges.Append(share * m_line.GetBulge(i));
        }
    }

    void AddVertices(long first, long last) {
        for (long i = first; i <= last; i++) {
            m_points.Append(m_line.GetVertex(i));
            if constexpr (IS_BULGED) {
                m_bulges.Append(m_line.GetBulge(i));
            }
        }
    }

    void AddEnd(const QnGePoint& point) {
        m_points.Append(point);
        if constexpr (IS_BULGED) {
            m_bulges.Append(0.0);
        }
    }

    QnGePoint PointAt(long i, double local) const {
        SegmentView view;
        QnGePoint point;
        view.Get(m_line, i).GetPtFromPa(local, point);
        return point;
    }

    QnGeCurve2d* Make() const {
        if constexpr (IS_BULGED) {
            return new QnGePolyline2d(m_points, m_bulges, false);
        } else {
            return new QnGeMLine2d(m_points, false);
        }
    }

private:
    static constexpr bool IS_BULGED = std::is_same_v<Line, QnGePolyline2d>;

    const Line& m_line;
    QnGePointArray m_points;
    QnDynArray<double> m_bulges;
};

/// From the point at `local` on segment `i` all the way round and back to it.
template <class Line>
QnGeCurve2d* MakeWholeTurn(const Line& line, long i, double local) {
    const long last = line.GetVertexNum() - 1;
    SubLine<Line> sub(line, last + 3);
    const bool isSegmentEnd = local - 1.0 >= -g_fZero;
    const QnGePoint seam = isSegmentEnd ? line.GetVertex(i == last ? 0 : i + 1) : sub.PointAt(i, local);
    if (!isSegmentEnd) {
        sub.Add(seam, i, 1.0 - local);
    }
    sub.AddVertices(i + 1, last);
    sub.AddVertices(0, i - 1);
    if (IsGreater(local, g_fZero)) {
        sub.Add(line.GetVertex(i), i, local);
    }
    sub.AddEnd(seam);
    return sub.Make();
}

/// Fails  Null without a segment.
template <class Line>
QnGeCurve2d* MakeLineSubCurve(const Line& line, double pa1, double pa2) {
    if (line.GetSegNum() == 0) {
        return nullptr;
    }
    if (line.IsClosed()) {
        pa1 = IsZero(pa1 - 1.0, g_fZero) ? 0.0 : pa1;
        pa2 = IsZero(pa2 - 1.0, g_fZero) ? 0.0 : pa2;
    }
    const double way = pa2 - pa1;
    const long i = line.GetSegIndexFromPa(pa1);
    const long j = line.GetSegIndexFromPa(pa2);
    const bool isForward = IsGreater(way, g_fZero);
    const bool isOverEnd = IsLess(way, g_fZero);
    if (!isForward && !isOverEnd) {
        return MakeWholeTurn(line, i, pa1);
    }

    const bool isWithinOne = isForward && i == j;
    const long wholeNum = isForward ? j - i : line.GetVertexNum() - i + j;
    SubLine<Line> sub(line, wholeNum + 2);
    if (IsLess(pa1 - 1.0, g_fZero)) {
        sub.Add(sub.PointAt(i, pa1), i, isWithinOne ? pa2 - pa1 : 1.0 - pa1);
    }
    if (isForward) {
        sub.AddVertices(i + 1, j - 1);
    } else {
        sub.AddVertices(i + 1, line.GetVertexNum() - 1);
        sub.AddVertices(0, j - 1);
    }
    if (!isWithinOne) {
        sub.Add(line.GetVertex(j), j, pa2);
    }
    if (IsGreater(pa2, g_fZero)) {
        sub.AddEnd(sub.PointAt(j, pa2));
    }
    return sub.Make();
}

}  // namespace qn_detail
