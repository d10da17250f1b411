// SPDX-License-Identifier: Apache-2.0
// A country cut into strips by lines, and a grid of lines clipped by a lake with islands.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "Example.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeVector2d.h"

namespace {

constexpr double SQUARE_KILOMETRE = 1e6;
constexpr double KILOMETRE = 1000.0;
constexpr double TOLERANCE = 1e-9;
constexpr double CUT_ANGLE = 0.35;  // of the strips, against the x axis
constexpr int STRIPS = 8;
constexpr double GRID = 4000.0;

double AreaOf(const QnGeObjList& regions) {
    double area = 0.0;
    for (long i = 0; i < regions.GetLength(); ++i) {
        area += static_cast<const QnGeRegion2d*>(regions.GetAt(i))->Area();
    }
    return area;
}

double LengthOf(const QnGeObjList& curves) {
    double length = 0.0;
    for (long i = 0; i < curves.GetLength(); ++i) {
        length += static_cast<const QnGeCurve2d*>(curves.GetAt(i))->Length();
    }
    return length;
}

/// The part of `country` between two parallel lines by another way: its intersection with a long box.
double StripArea(const QnGePolygon2d& country, const QnGeLine2d& lower, const QnGeLine2d& upper) {
    const double reach = 1e7;
    QnGePolygon2d box(4);
    const QnGeVector2d along = lower.GetVector();
    const auto corner = [&](const QnGeLine2d& line, double t) {
        return QnGePoint(line.basePoint.x + t * along.x, line.basePoint.y + t * along.y);
    };
    box.Outline().SetVertex(0, corner(lower, -reach));
    box.Outline().SetVertex(1, corner(lower, reach));
    box.Outline().SetVertex(2, corner(upper, reach));
    box.Outline().SetVertex(3, corner(upper, -reach));
    QnGeObjList common;
    country.Inter(box, common);
    return AreaOf(common);
}

void CutIntoStrips(const std::string& data, SvgPicture& picture) {
    const QnGePolygon2d country(data_files::ReadPolygons(data + "/polygons/spain.txt")[0].rings[0], true);
    picture.Panel("Spain, cut into strips of equal width");

    // Parallel lines from one end of the country to the other, the first and the last one just beyond it.
    const QnGeVector2d along(std::cos(CUT_ANGLE), std::sin(CUT_ANGLE));
    double lowest = 1e300;
    double highest = -1e300;
    for (long i = 0; i < country.Outline().GetVertexNum(); ++i) {
        const QnGePoint& p = country.Outline()[i];
        const double height = along.x * p.y - along.y * p.x;
        lowest = std::min(lowest, height - 1.0);
        highest = std::max(highest, height + 1.0);
    }
    std::vector<QnGeLine2d> lines;
    for (int i = 0; i <= STRIPS; ++i) {
        const double height = lowest + (highest - lowest) * i / STRIPS;
        lines.emplace_back(along, QnGePoint(-along.y * height, along.x * height));
    }

    // Each line takes its strip off on its right; what is on its left goes on to the next line.
    std::printf("%-8s%8s%16s%16s%10s\n", "strip", "pieces", "cut, km2", "box, km2", "error");
    QnGeObjList rest(country);
    double sum = 0.0;
    for (int strip = 0; strip < STRIPS; ++strip) {
        QnGeObjList left;
        QnGeObjList right;
        for (long i = 0; i < rest.GetLength(); ++i) {
            static_cast<const QnGePolygon2d*>(rest.GetAt(i))
                ->CutBy(lines[static_cast<std::size_t>(strip) + 1], left, right);
        }
        const double area = AreaOf(right);
        const double expected =
            StripArea(country, lines[static_cast<std::size_t>(strip)], lines[static_cast<std::size_t>(strip) + 1]);
        const double error = RelativeError(area, expected, country.Area());
        std::printf("%-8d%8ld%16.4f%16.4f%10.1e\n", strip + 1, right.GetLength(), area / SQUARE_KILOMETRE,
                    expected / SQUARE_KILOMETRE, error);
        Require(error <= TOLERANCE, "area of strip " + std::to_string(strip + 1));
        picture.Draw(right, strip % 2 == 0 ? SvgRole::A : SvgRole::Result);
        sum += area;
        rest.Reset();
        rest.Conbine(left, 0);
    }
    std::printf("all strips %.4f km2, the country %.4f km2\n", sum / SQUARE_KILOMETRE,
                country.Area() / SQUARE_KILOMETRE);
    Require(rest.GetLength() == 0 && RelativeError(sum, country.Area(), country.Area()) <= TOLERANCE,
            "the strips together are the country");
}

/// How much of the level line at `y` lies in a region, straight from its vertices: with the inside at the left of every
/// edge, the line leaves the region where an edge runs up and enters it where one runs down.
double LevelLength(const QnGeRegion2d& region, double y) {
    double length = 0.0;
    for (long i = 0; i < region.GetBoundaryNum(); ++i) {
        const auto& ring = static_cast<const QnGeMLine2d&>(*region.GetBoundary(i));
        for (long j = 0; j < ring.GetVertexNum(); ++j) {
            const QnGePoint& p = ring[j];
            const QnGePoint& q = ring[(j + 1) % ring.GetVertexNum()];
            if ((p.y < y) != (q.y < y)) {
                const double x = p.x + (y - p.y) / (q.y - p.y) * (q.x - p.x);
                length += p.y < y ? x : -x;
            }
        }
    }
    return length;
}

void ClipGrid(const std::string& data, SvgPicture& picture) {
    const data_files::Polygon rings = data_files::ReadPolygons(data + "/polygons/lake_saimaa.txt")[0];
    QnGeGeneralPolygon2d lake(rings.rings[0], false);
    for (std::size_t i = 1; i < rings.rings.size(); ++i) {
        lake.AppendHole(new QnGeMLine2d(rings.rings[i]), false);
    }
    picture.Panel("Lake Saimaa, a grid of lines clipped by its shore and islands");

    QnGeExtent2d box;
    lake.GetExtent2d(box);
    QnGeObjList inside;
    QnGeObjList outside;
    QnGeObjList along;
    double total = 0.0;
    double expected = 0.0;
    long lines = 0;
    for (double y = box.y.min + GRID / 2.0; y < box.y.max; y += GRID) {
        const QnGeLineSeg2d level(QnGePoint(box.x.min, y), QnGePoint(box.x.max, y));
        lake.Clip(level, inside, outside, along);
        total += level.Length();
        expected += LevelLength(lake, y);
        ++lines;
    }
    const double in = LengthOf(inside);
    const double out = LengthOf(outside);
    std::printf("%ld lines, %.6f km: in the lake %.6f km (%ld pieces), outside %.6f km (%ld pieces)\n", lines,
                total / KILOMETRE, in / KILOMETRE, inside.GetLength(), out / KILOMETRE, outside.GetLength());
    std::printf("in the lake by counting crossings %.6f km, error %.1e\n", expected / KILOMETRE,
                RelativeError(in, expected, expected));
    std::printf("length in the lake times grid width %.2f km2, area of the lake %.2f km2\n",
                in * GRID / SQUARE_KILOMETRE, lake.Area() / SQUARE_KILOMETRE);
    Require(RelativeError(in, expected, expected) <= TOLERANCE, "length in the lake");
    Require(RelativeError(in + out + LengthOf(along), total, total) <= TOLERANCE, "the pieces together are the lines");
    for (long i = 0; i < inside.GetLength(); ++i) {
        Require(lake.HitTest(inside.GetAt(i)->GetSamplePoint()) == HIT_ON, "a piece inside lies inside");
    }
    picture.Draw(lake, SvgRole::A).Draw(outside, SvgRole::Plain).Draw(inside, SvgRole::Mark);
}

void Run(const std::string& data, const std::string& out) {
    SvgPicture picture("Cut and clip", "A polygon cut by lines, and lines clipped by a region with holes.");
    picture.Columns(2)
        .PanelShape(1.0)
        .Legend(SvgRole::A, "strips, the lake")
        .Legend(SvgRole::Result, "every other strip");
    picture.Legend(SvgRole::Mark, "lines inside").Legend(SvgRole::Plain, "lines outside");
    CutIntoStrips(data, picture);
    ClipGrid(data, picture);
    picture.Save(out + "/06_cut_and_clip.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
