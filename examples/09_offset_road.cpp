// SPDX-License-Identifier: Apache-2.0
// A road's edges from its centre line, with arcs both ways; and a plot's boundary moved inwards so far that it crosses
// itself, taken apart and cleaned.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <string>

#include "Example.h"
#include "curves2d/QnGeArc2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "support/SvgPicture.h"

namespace {

constexpr double TOLERANCE = 1e-9;
constexpr double DEGREE = 3.14159265358979323846 / 180.0;

constexpr double HALF_WIDTH = 4.0;  // of the carriageway, in metres
constexpr double PATH = 7.5;        // centre line to the outer edge of the footpaths
constexpr int STATIONS = 2000;      // at which the width is measured

constexpr double SETBACK = 7.0;  // from the plot's boundary to where may be built
constexpr double STEP = 0.02;    // radians, for chords in place of arcs

// ---- a road --------------------------------------------------------------------------------------

/// A line that goes on straight or in arcs, always in the direction in which it came.
class Course {
public:
    Course(double x, double y, double heading) : m_x(x), m_y(y), m_heading(heading) { Append(); }

    Course& Straight(double length) {
        m_x += length * std::cos(m_heading);
        m_y += length * std::sin(m_heading);
        Append();
        return *this;
    }

    /// To the left for a positive `turn`, in radians.
    Course& Turn(double radius, double turn) {
        const double toCentre = turn > 0.0 ? radius : -radius;
        const double x = m_x - toCentre * std::sin(m_heading);
        const double y = m_y + toCentre * std::cos(m_heading);
        m_line.SetBulge(m_line.GetVertexNum() - 1, turn);
        m_heading += turn;
        m_x = x + toCentre * std::sin(m_heading);
        m_y = y - toCentre * std::cos(m_heading);
        Append();
        return *this;
    }

    const QnGePolyline2d& Line() const { return m_line; }

private:
    void Append() { m_line.AppendVertex(QnGePoint(m_x, m_y)); }

    QnGePolyline2d m_line;
    double m_x;
    double m_y;
    double m_heading;
};

double DistanceTo(const QnGeMLine2d& line, const QnGePoint& point) {
    QnGePoint nearest;
    Require(line.GetClosestPoint2d(point, nearest), "a line has a closest point");
    return GetDistance2d(point, nearest);
}

double RadiusOf(const QnGePolyline2d& line, long i) {
    QnGeArc2d arc;
    line.GetSegment(i, arc);
    return arc.GetRadius();
}

/// The centre line moved by `dist` to the right, checked: the distance everywhere, the radii, the way back.
QnGePolyline2d MakeEdge(const QnGePolyline2d& centre, double dist) {
    QnGePolyline2d edge(centre);
    Require(edge.Offset(dist), "the road has an edge");

    double worst = 0.0;
    for (int i = 1; i < STATIONS; ++i) {
        QnGePoint point;
        edge.GetPtFromPa(static_cast<double>(i) / STATIONS, point);
        worst = std::max(worst, std::fabs(DistanceTo(centre, point) - std::fabs(dist)));
    }
    Require(worst <= TOLERANCE, "the edge keeps its distance");

    double narrowest = std::numeric_limits<double>::infinity();
    for (long i = 0; i < edge.GetSegNum(); ++i) {
        if (!edge.IsArcSeg(i)) {
            continue;
        }
        const double grown = edge.GetBulge(i) > 0.0 ? dist : -dist;  // to the right is outward on a left turn
        Require(std::fabs(RadiusOf(edge, i) - RadiusOf(centre, i) - grown) <= TOLERANCE, "radius of an arc");
        Require(std::fabs(edge.GetBulge(i) - centre.GetBulge(i)) <= TOLERANCE, "sweep of an arc");
        narrowest = std::min(narrowest, RadiusOf(edge, i));
    }

    QnGePolyline2d back(edge);
    Require(back.Offset(-dist), "the edge has a way back");
    double miss = 0.0;
    for (long i = 0; i < back.GetVertexNum(); ++i) {
        miss = std::max(miss, GetDistance2d(back.GetVertex(i), centre.GetVertex(i)));
    }
    Require(miss <= TOLERANCE, "the way back leads to the centre line");

    std::printf("%8.1f%12.3f%14.3f%16.1e%16.1e\n", dist, edge.Length(), narrowest, worst, miss);
    return edge;
}

/// What lies between two edges: along the right one, and back along the left one.
QnGePolyline2d Between(const QnGePolyline2d& right, QnGePolyline2d left) {
    QnGePolyline2d around(right);
    left.Reverse();
    for (long i = 0; i < left.GetVertexNum(); ++i) {
        around.AppendVertex(left.GetVertex(i), left.GetBulge(i));
    }
    around.SetClosed(true, 0.0);
    return around;
}

void OffsetRoad(const std::string& out) {
    const QnGePolyline2d centre = Course(0.0, 0.0, 10.0 * DEGREE)
                                      .Straight(60.0)
                                      .Turn(45.0, 95.0 * DEGREE)
                                      .Straight(20.0)
                                      .Turn(30.0, -150.0 * DEGREE)
                                      .Turn(80.0, 60.0 * DEGREE)
                                      .Straight(30.0)
                                      .Turn(16.0, 170.0 * DEGREE)
                                      .Straight(45.0)
                                      .Line();
    std::printf("a road of %.3f m\n%8s%12s%14s%16s%16s\n", centre.Length(), "offset", "length", "least radius",
                "width error", "way back error");
    const QnGePolyline2d left = MakeEdge(centre, -HALF_WIDTH);
    const QnGePolyline2d right = MakeEdge(centre, HALF_WIDTH);
    const QnGePolyline2d leftPath = MakeEdge(centre, -PATH);
    const QnGePolyline2d rightPath = MakeEdge(centre, PATH);
    Require(!leftPath.IsSelfCross() && !rightPath.IsSelfCross(), "the edges do not cross themselves");
    Require(RelativeError(left.Length() + right.Length(), 2.0 * centre.Length(), centre.Length()) <= TOLERANCE,
            "what one edge gains the other loses");

    const QnGeGeneralRegion2d surface(Between(right, left), false);
    const double expected = 2.0 * HALF_WIDTH * centre.Length();
    const double error = RelativeError(surface.Area(), expected, expected);
    std::printf("surface %.6f m2, width times length %.6f m2, relative error %.1e\n\n", surface.Area(), expected,
                error);
    Require(error <= TOLERANCE, "area of the road");

    SvgPicture picture("A road from its centre line",
                       "Edges at 4 m and footpaths at 7.5 m on either side. Every bend is an arc on every line.");
    picture.Legend(SvgRole::Mark, "centre line")
        .Legend(SvgRole::A, "edges of the carriageway")
        .Legend(SvgRole::B, "outer edges of the footpaths")
        .ScaleBar(20.0, "20 m");
    picture.Panel("").Draw(surface, SvgRole::Plain);
    picture.Draw(leftPath, SvgRole::B).Draw(rightPath, SvgRole::B);
    picture.Draw(left, SvgRole::A).Draw(right, SvgRole::A);
    picture.Arrows(true).Draw(centre, SvgRole::Mark);
    picture.Save(out + "/09_offset_road.svg");
}

// ---- a plot --------------------------------------------------------------------------------------

QnGePolyline2d MakePlot() {
    constexpr double OUTLINE[][3] = {{0, 0, 0},   {34, 0, 0},  {38, 18, 0}, {58, 17, 0}, {62, 2, 0},  {90, 5, 1.0},
                                     {93, 44, 0}, {66, 50, 0}, {58, 26, 0}, {39, 28, 0}, {33, 48, 0}, {3, 43, 0}};
    QnGePolyline2d plot(0, true);
    for (const auto& vertex : OUTLINE) {
        plot.AppendVertex(QnGePoint(vertex[0], vertex[1]), vertex[2]);
    }
    return plot;
}

double SignedArea(const QnGeMLine2d& closed) {
    return closed.IsClockwise() ? -closed.Area() : closed.Area();
}

/// How near a loop comes to the plot's boundary with one of its vertices.
double Clearance(const QnGeMLine2d& loop, const QnGePolyline2d& plot) {
    double least = std::numeric_limits<double>::infinity();
    for (long i = 0; i < loop.GetVertexNum(); ++i) {
        least = std::min(least, DistanceTo(plot, loop.GetVertex(i)));
    }
    return least;
}

void OffsetPlot(const std::string& out) {
    const QnGePolyline2d plot = MakePlot();
    Require(!plot.IsClockwise() && !plot.IsSelfCross(), "the plot is a simple outline");

    QnGePolyline2d moved(plot);
    Require(moved.Offset(-SETBACK), "the boundary can be moved in");
    Require(moved.IsSelfCross(), "too far for the narrow part, so it crosses itself");
    const std::unique_ptr<QnGeMLine2d> chords(moved.MLinearize(STEP));
    QnGeObjList loops;
    Require(chords->ExplodeSelfcross(loops), "and can be taken apart");

    SvgPicture picture("Where a plot may be built on",
                       "Its boundary moved in by 7 m crosses itself in the narrow part. Taken apart there, the loops "
                       "that still run counter-clockwise are the answer.");
    picture.Columns(2);
    picture.Panel("Every side moved in on its own");
    picture.Draw(QnGeGeneralRegion2d(plot, false), SvgRole::Plain);
    for (long i = 0; i < plot.GetSegNum(); ++i) {
        const std::unique_ptr<QnGeCurve2d> side(plot.GetSegment(i));
        Require(side->Offset(-SETBACK), "a side can be moved in");
        picture.Draw(*side, SvgRole::B);
    }
    picture.Panel("Joined where neighbours meet: it crosses itself");
    picture.Draw(QnGeGeneralRegion2d(plot, false), SvgRole::Plain).Arrows(true).Draw(moved, SvgRole::Mark);
    picture.Panel("Taken apart: one of the loops runs the other way");
    picture.Arrows(false).Draw(plot, SvgRole::Plain).Arrows(true);
    for (long i = 0; i < loops.GetLength(); ++i) {
        const QnGeMLine2d& loop = static_cast<const QnGeMLine2d&>(*loops.GetAt(i));
        picture.Draw(loop, loop.IsClockwise() ? SvgRole::Mark : SvgRole::A);
    }
    picture.Panel("Kept: nowhere nearer than 7 m to the boundary").Arrows(false);
    picture.Draw(QnGeGeneralRegion2d(plot, false), SvgRole::Plain);

    std::printf("a plot of %.3f m2, moved in by %.1f m\n%6s%10s%14s%12s%8s\n", plot.Area(), SETBACK, "loop", "vertices",
                "area", "clearance", "kept");
    double total = 0.0;
    int kept = 0;
    for (long i = 0; i < loops.GetLength(); ++i) {
        const QnGeMLine2d& loop = static_cast<const QnGeMLine2d&>(*loops.GetAt(i));
        const double area = SignedArea(loop);
        const double clearance = Clearance(loop, plot);
        const bool isFar = clearance >= SETBACK - TOLERANCE;
        Require(!loop.IsSelfCross(), "a loop does not cross itself");
        Require((area > 0.0) == isFar, "the way it runs and its distance agree");
        std::printf("%6ld%10ld%14.3f%12.3f%8s\n", i + 1, loop.GetVertexNum(), area, clearance, isFar ? "yes" : "no");
        total += area;
        if (isFar) {
            picture.Draw(QnGeGeneralRegion2d(loop, false), SvgRole::Result);
            ++kept;
        }
    }
    Require(kept == 2 && loops.GetLength() == 3, "two lobes remain, and what was between them goes");
    Require(RelativeError(total, SignedArea(*chords), plot.Area()) <= TOLERANCE, "the areas add up");
    picture.Save(out + "/09_offset_cleaned.svg");
}

void Run(const std::string& /*data*/, const std::string& out) {
    OffsetRoad(out);
    OffsetPlot(out);
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
