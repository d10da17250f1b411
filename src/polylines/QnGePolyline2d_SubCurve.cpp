// SPDX-License-Identifier: Apache-2.0
//
// QnGePolyline2d_SubCurve.cpp: the part of a polyline between two parameters.
//
// The phases are those of QnGeMLine2d_SubCurve.cpp. Here each vertex comes with the share of its bulge that is left:
// the parameter on an arc runs with the angle, so the shares are linear in the local parameter and exact.
//
//     (v i, b i)                     (v j, b j)
//         +----------X====  ....  ========+=====X-----------+
//                   fa                          fb
//               (1 - fa) b i           fb b j    0

#include "frame/QnGeTolerance.h"
#include "polylines/QnGePolyline2d.h"
#include "polylines/detail/SegmentView.h"

namespace {

// The new line while it grows. The space is taken once: at most every vertex and the two cut points.
class SubLine {
public:
    explicit SubLine(const QnGePolyline2d& line) : m_line(line) {
        m_points.SetSpaceSize(line.GetVertexNum() + 2);
        m_bulges.SetSpaceSize(line.GetVertexNum() + 2);
    }

    void Add(const QnGePoint& point, double bulge) {
        m_points.Append(point);
        m_bulges.Append(bulge);
    }

    void AddVertices(long first, long last) {
        for (long i = first; i <= last; i++) {
            Add(m_line.GetVertex(i), m_line.GetBulge(i));
        }
    }

    QnGePoint PointAt(long i, double local) const {
        qn_detail::SegmentView view;
        QnGePoint point;
        view.Get(m_line, i).GetPtFromPa(local, point);
        return point;
    }

    QnGePolyline2d* Make() const { return new QnGePolyline2d(m_points, m_bulges, false); }

private:
    const QnGePolyline2d& m_line;
    QnGePointArray m_points;
    QnDynArray<double> m_bulges;
};

// From the point at `local` on segment `i` all the way round and back to it.
void AddWholeTurn(const QnGePolyline2d& line, long i, double local, SubLine& sub) {
    const long last = line.GetVertexNum() - 1;
    const bool isSegmentEnd = local - 1.0 >= -g_fZero;
    const QnGePoint seam = isSegmentEnd ? line.GetVertex(i == last ? 0 : i + 1) : sub.PointAt(i, local);
    if (!isSegmentEnd) {
        sub.Add(seam, (1.0 - local) * line.GetBulge(i));
    }
    sub.AddVertices(i + 1, last);
    sub.AddVertices(0, i - 1);
    if (IsGreater(local, g_fZero)) {
        sub.Add(line.GetVertex(i), line.GetBulge(i) * local);
    }
    sub.Add(seam, 0.0);
}

}  // namespace

QnGeCurve2d* QnGePolyline2d::GetSubCurve(double pa1, double pa2) const {
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

    const bool isWithinOne = isForward && i == j;
    if (IsLess(pa1 - 1.0, g_fZero)) {
        const double share = isWithinOne ? pa2 - pa1 : 1.0 - pa1;
        sub.Add(sub.PointAt(i, pa1), share * GetBulge(i));
    }
    if (isForward) {
        sub.AddVertices(i + 1, j - 1);
    } else {
        sub.AddVertices(i + 1, GetVertexNum() - 1);
        sub.AddVertices(0, j - 1);
    }
    if (!isWithinOne) {
        sub.Add(GetVertex(j), pa2 * GetBulge(j));
    }
    if (IsGreater(pa2, g_fZero)) {
        sub.Add(sub.PointAt(j, pa2), 0.0);
    }
    return sub.Make();
}
