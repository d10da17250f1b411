// SPDX-License-Identifier: Apache-2.0
// QnGePolyline2d_Offset.cpp: a polyline with arcs, or one segment of it, moved sideways.
//
// As QnGeMLine2d_Offset.cpp, with a full circle as the carrier of an arc. Where two carriers meet twice, the corner is
// the meeting point nearer to where the segment behind the corner starts.
//
// Phases     1  Carriers       a line for each chord, a circle for each arc, those that move shifted already.
//            2  MoveVertices   each corner from its two carriers, the ends of an open line from the segments.
//            3  MeasureSweeps  the sweep of each arc anew, between its new ends.
// Direction  An arc keeps its sense of rotation, so its new sweep is between none and a full turn. An arc that would
//            have to reverse runs round the other side of its circle instead.
// Why so     Vertices and bulges are replaced when nothing can fail any more: a refusal leaves the line as it was.
// Tolerance  Meeting and coinciding are those of IntersectWith; sweeps within g_angleZero of a turn count as none.
// See        docs/algorithms/offset.md

#include <memory>

#include "containers/QnDynPArray.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "polylines/detail/OffsetCorners.h"
#include "values/QnGePoint2d.h"

namespace {

using qn_detail::MovedSegs;

/// Whether the corners of a moved line are chosen near the moved segments or near the segments as they stand.
enum class CornerNear { MovedSegment, OldSegment };

class Carriers {
public:
    Carriers(const QnGePolyline2d& line, const MovedSegs& moved, double dist, CornerNear cornerNear)
        : m_line(line), m_moved(moved), m_dist(dist), m_cornerNear(cornerNear) {}

    /// Fails  False if an arc would lose its radius.
    bool Make() {
        for (long i = 0; i < m_line.GetSegNum(); ++i) {
            std::unique_ptr<QnGeCurve2d> carrier = MakeCarrier(i);
            if (m_moved.Has(i) && !carrier->Offset(m_dist)) {
                return false;
            }
            m_carriers.Append(carrier.release());
        }
        return true;
    }

    bool Corner(long a, long b, QnGePoint& vertex) const {
        QnGeObjList met;
        if (!m_carriers.GetAt(a)->IntersectWith(*m_carriers.GetAt(b), met)) {
            return false;
        }
        const std::unique_ptr<QnGeCurve2d> next(m_line.GetSegment(b));
        if (m_cornerNear == CornerNear::MovedSegment) {
            next->Offset(m_dist);
        }
        QnGePoint start;
        next->GetStartPoint(start);
        vertex = ChooseMeeting(met, start);
        return true;
    }

    void GetStart(long i, QnGePoint& vertex) const { MoveSegment(i)->GetStartPoint(vertex); }
    void GetEnd(long i, QnGePoint& vertex) const { MoveSegment(i)->GetEndPoint(vertex); }

    /// The signed sweep from `start` to `end` along the carrier of arc `i`; `bulge` stays where a point has no angle.
    void MeasureSweep(long i, const QnGePoint& start, const QnGePoint& end, double& bulge) const {
        const QnGeCurve2d& circle = *m_carriers.GetAt(i);
        double from = 0.0;
        double to = 0.0;
        if (!circle.GetPaFromPt(start, from) || !circle.GetPaFromPt(end, to)) {
            return;
        }
        const double sweep = GetStdAngle(to - from);
        bulge = circle.IsClockwise() ? -sweep : sweep;
    }

private:
    std::unique_ptr<QnGeCurve2d> MakeCarrier(long i) const {
        if (m_line.IsArcSeg(i)) {
            QnGeArc2d arc;
            m_line.GetSegment(i, arc);
            return std::make_unique<QnGeCircle2d>(arc.GetCircle());
        }
        QnGeBaseLine2d chord;
        m_line.GetSegment(i, chord);
        return std::make_unique<QnGeLine2d>(chord);
    }

    std::unique_ptr<QnGeCurve2d> MoveSegment(long i) const {
        std::unique_ptr<QnGeCurve2d> segment(m_line.GetSegment(i));
        segment->Offset(m_dist);
        return segment;
    }

    /// The nearer of two meeting points, the second on a tie; `start` itself where the carriers coincide.
    static QnGePoint ChooseMeeting(const QnGeObjList& met, const QnGePoint& start) {
        const QnGeObject& first = *met.GetAt(0);
        if (first.IsClassOf(&QnGeCurve2d::s_classInfo)) {
            return start;
        }
        const QnGePoint& point = static_cast<const QnGePoint2d&>(first);
        if (met.GetLength() == 1) {
            return point;
        }
        const QnGePoint& other = static_cast<const QnGePoint2d&>(*met.GetAt(1));
        return GetDistance2d(other, start) <= GetDistance2d(point, start) ? other : point;
    }

    const QnGePolyline2d& m_line;
    const MovedSegs m_moved;
    const double m_dist;
    const CornerNear m_cornerNear;
    QnDynPArray<QnGeCurve2d> m_carriers;
};

/// The sweep of every arc of the line anew; its vertices are the moved ones already.
void MeasureSweeps(const Carriers& carriers, QnGePolyline2d& line) {
    const long vertexNum = line.GetVertexNum();
    for (long i = 0; i < line.GetSegNum(); ++i) {
        if (line.IsArcSeg(i)) {
            carriers.MeasureSweep(i, line.GetVertex(i), line.GetVertex((i + 1) % vertexNum), line(i));
        }
    }
}

bool MoveSegs(QnGePolyline2d& line, const MovedSegs& moved, double dist, CornerNear cornerNear) {
    Carriers carriers(line, moved, dist, cornerNear);
    QnGePointArray vertices(line.GetVertexArray());
    if (!carriers.Make() || !qn_detail::MoveVertices(carriers, line.GetSegNum(), line.IsClosed(), moved, vertices)) {
        return false;
    }
    qn_detail::SetVertices(vertices, line);
    MeasureSweeps(carriers, line);
    return true;
}

}  // namespace

bool QnGePolyline2d::Offset(double dist) {
    const long segNum = GetSegNum();
    return segNum > 0 && MoveSegs(*this, {0, segNum - 1}, dist, CornerNear::MovedSegment);
}

bool QnGePolyline2d::OffsetSeg(long i, double dist) {
    return i >= 0 && i < GetSegNum() && MoveSegs(*this, {i, i}, dist, CornerNear::OldSegment);
}
