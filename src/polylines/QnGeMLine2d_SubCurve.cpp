// SPDX-License-Identifier: Apache-2.0
//
// QnGeMLine2d_SubCurve.cpp: the part of a multi-line between two parameters.
//
// Phases     1  place both parameters: segment i at local value fa, segment j at fb
//            2  the point at fa, unless it is the end of its segment
//            3  whole vertices: from i + 1 on, forward to j, or over the end and on from 0
//            4  the point at fb, unless it is the start of its segment
// Why so     The result is always open: what is cut out of a closed line has two ends, even if they coincide.

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGeBaseLine2d.h"

namespace {

// The new line while it grows. The space is taken once: at most every vertex and the two cut points.
class SubLine {
public:
    explicit SubLine(const QnGeMLine2d& line) : m_line(line) { m_points.SetSpaceSize(line.GetVertexNum() + 2); }

    void AddVertices(long first, long last) {
        for (long i = first; i <= last; i++) {
            m_points.Append(m_line.GetVertex(i));
        }
    }

    void AddPoint(const QnGePoint& point) { m_points.Append(point); }

    QnGePoint PointAt(long i, double local) const {
        QnGeBaseLine2d segment;
        QnGePoint point;
        m_line.GetSegment(i, segment);
        segment.GetPtFromPa(local, point);
        return point;
    }

    QnGeMLine2d* Make() const { return new QnGeMLine2d(m_points, false); }

private:
    const QnGeMLine2d& m_line;
    QnGePointArray m_points;
};

// From the point at `local` on segment `i` all the way round and back to it.
void AddWholeTurn(const QnGeMLine2d& line, long i, double local, SubLine& sub) {
    const long last = line.GetVertexNum() - 1;
    const bool isSegmentEnd = local - 1.0 >= -g_fZero;
    const QnGePoint seam = isSegmentEnd ? line.GetVertex(i == last ? 0 : i + 1) : sub.PointAt(i, local);
    if (!isSegmentEnd) {
        sub.AddPoint(seam);
    }
    sub.AddVertices(i + 1, last);
    sub.AddVertices(0, i - 1);
    if (IsGreater(local, g_fZero)) {
        sub.AddVertices(i, i);
    }
    sub.AddPoint(seam);
}

}  // namespace

QnGeCurve2d* QnGeMLine2d::GetSubCurve(double pa1, double pa2) const {
    if (GetSegNum() == 0) {
        return nullptr;
    }
    if (IsClosed()) {
        pa1 = IsZero(pa1 - 1.0, g_fZero) ? 0.0 : pa1;
        pa2 = IsZero(pa2 - 1.0, g_fZero) ? 0.0 : pa2;
    }
    const double way = pa2 - pa1;
    const long i = GetSegIndexFromPa(pa1);
    const long j = GetSegIndexFromPa(pa2);

    SubLine sub(*this);
    const bool isForward = IsGreater(way, g_fZero);
    const bool isOverEnd = IsLess(way, g_fZero);
    if (!isForward && !isOverEnd) {
        AddWholeTurn(*this, i, pa1, sub);
        return sub.Make();
    }

    if (IsLess(pa1 - 1.0, g_fZero)) {
        sub.AddPoint(sub.PointAt(i, pa1));
    }
    if (isForward) {
        sub.AddVertices(i + 1, j);
    } else {
        sub.AddVertices(i + 1, GetVertexNum() - 1);
        sub.AddVertices(0, j);
    }
    if (IsGreater(pa2, g_fZero)) {
        sub.AddPoint(sub.PointAt(j, pa2));
    }
    return sub.Make();
}
