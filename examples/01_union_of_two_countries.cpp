// SPDX-License-Identifier: Apache-2.0
// Two outlines are read, united, measured, hit-tested, written to a stream and read back.
#include <cstdio>
#include <memory>
#include <string>

#include "Example.h"
#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGePolygon2d.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"

namespace {

constexpr double SQUARE_KILOMETRE = 1e6;
constexpr double AREA_TOLERANCE = 1e-9;  // of the larger operand

/// The outline of the first polygon in a file, without its holes.
QnGePolygon2d ReadOutline(const std::string& path) {
    return QnGePolygon2d(data_files::ReadPolygons(path)[0].rings[0], true);
}

/// A point inside a ring: the middle of a piece that the ring cuts from a level line through its middle.
QnGePoint PointInside(const QnGeMLine2d& ring) {
    QnGeExtent2d box;
    ring.GetExtent2d(box);
    const double y = (box.y.min + box.y.max) / 2.0;
    const QnGeLineSeg2d level(QnGePoint(box.x.min, y), QnGePoint(box.x.max, y));
    QnGeObjList inside;
    QnGeObjList outside;
    QnGeObjList along;
    QnGePolygon2d(ring, true).Clip(level, inside, outside, along);
    Require(inside.GetLength() > 0, "a level line through a ring has a piece inside");
    return inside.GetAt(0)->GetSamplePoint();
}

const char* PlaceName(QnBitData place) {
    switch (place.GetBits()) {
        case 0:
            return "outside";
        case HIT_ON:
            return "inside";
        case HIT_ON | HIT_BOUNDARY:
            return "on the outline";
        case HIT_HOLE:
            return "in a hole";
        default:
            return "on the edge of a hole";
    }
}

void ExpectPlace(const QnGeRegion2d& region, const char* name, const QnGePoint& point, QnBitData expected) {
    const QnBitData place = region.HitTest(point);
    std::printf("  %-34s %2u  %s\n", name, static_cast<unsigned>(place.GetBits()), PlaceName(place));
    Require(place == expected, std::string("place of ") + name);
}

void Run(const std::string& data, const std::string& out) {
    // Two countries, the second one moved 20 km to the west, into the first.
    const QnGePolygon2d france = ReadOutline(data + "/polygons/france.txt");
    QnGePolygon2d germany = ReadOutline(data + "/polygons/germany.txt");
    QnGeMatrix move;
    move.CreateMoveMatrix(-20000.0, 0.0);
    germany.TransformBy(move);
    Require(france.IsValid() && germany.IsValid(), "the outlines are valid");
    std::printf("France:  %ld vertices, %.3f km2\n", france.Outline().GetVertexNum(), france.Area() / SQUARE_KILOMETRE);
    std::printf("Germany: %ld vertices, %.3f km2\n", germany.Outline().GetVertexNum(),
                germany.Area() / SQUARE_KILOMETRE);

    // The union belongs to the caller. It has holes, so it is a general polygon.
    const std::unique_ptr<QnGeRegion2d> both(france.Union(germany));
    Require(both != nullptr && both->GetClassID() == CLASS_ID_GENERAL_POLYGON2D, "the union is one polygon with holes");
    const auto& united = static_cast<const QnGeGeneralPolygon2d&>(*both);
    std::printf("Union:   %.3f km2, %ld holes, class %ld\n", united.Area() / SQUARE_KILOMETRE, united.GetHoleNum(),
                static_cast<long>(united.GetClassID()));

    // The table is about France with its enclave as a hole; the outline covers that too, and Germany does not reach it.
    const data_files::CsvTable table(data + "/overlays/expected_overlays.csv");
    const std::size_t row = table.Find("pair", "france_germany_shift");
    const double enclave = france.Area() - table.Number(row, "area_a");
    const double expected = table.Number(row, "area_union") + enclave;
    const double error = RelativeError(united.Area(), expected, france.Area());
    std::printf("         expected %.3f km2, relative error %.1e\n", expected / SQUARE_KILOMETRE, error);
    Require(error <= AREA_TOLERANCE, "area of the union");

    QnGeObjList common;
    Require(france.Inter(germany, common), "the two countries overlap");
    double commonArea = 0.0;
    for (long i = 0; i < common.GetLength(); ++i) {
        commonArea += static_cast<const QnGeRegion2d*>(common.GetAt(i))->Area();
    }
    const double sumError = RelativeError(united.Area() + commonArea, france.Area() + germany.Area(), france.Area());
    std::printf("Common:  %.3f km2; union + common - both countries: relative error %.1e\n",
                commonArea / SQUARE_KILOMETRE, sumError);
    Require(sumError <= AREA_TOLERANCE, "union and intersection together are the two countries");

    std::printf("Hit tests on the union\n");
    const QnGePoint paris(3760740.0, 2889484.0);
    const QnGePoint berlin(4551884.0 - 20000.0, 3273212.0);
    const QnGePoint rome(4526000.0, 2090000.0);
    const QnGePoint gap = PointInside(united.Hole(0));
    ExpectPlace(united, "Paris", paris, HIT_ON);
    ExpectPlace(united, "Berlin", berlin, HIT_ON);
    ExpectPlace(united, "Rome", rome, 0);
    ExpectPlace(united, "a gap between the borders", gap, HIT_HOLE);
    ExpectPlace(united, "a vertex of the union", static_cast<const QnGePolygon2d&>(united).Outline()[0],
                HIT_ON | HIT_BOUNDARY);

    // Written through a list the object carries its class id, from which the reading list makes it again.
    QnGeObjList written(united);
    QnDynArrayStream stream(4096, 4096);
    written.StreamOut(stream);
    stream.MoveToFirst();
    QnGeObjList read;
    read.StreamIn(stream);
    Require(read.GetLength() == 1, "one object comes back");
    const QnGeRegion2d& copy = static_cast<const QnGeRegion2d&>(*read.GetAt(0));
    std::printf("Stream:  %ld bytes; read back: class %ld, %ld holes, %.3f km2\n", stream.GetLength(),
                static_cast<long>(copy.GetClassID()), copy.GetHoleNum(), copy.Area() / SQUARE_KILOMETRE);
    Require(copy.GetClassID() == united.GetClassID() && copy.Area() == united.Area(), "the copy has the same area");

    SvgPicture(
        "The union of two countries",
        "France and Germany, moved 20 km west so that they overlap. Where the moved border leaves gaps, the union "
        "has holes.")
        .Columns(2)
        .Legend(SvgRole::A, "France")
        .Legend(SvgRole::B, "Germany, moved")
        .Legend(SvgRole::Result, "union")
        .Legend(SvgRole::Mark, "common area")
        .ScaleBar(200000.0, "200 km")
        .Panel("The operands and what they have in common")
        .Draw(france, SvgRole::A)
        .Draw(germany, SvgRole::B)
        .Draw(common, SvgRole::Mark)
        .Panel("The union and its hit-tested points")
        .Draw(united, SvgRole::Result)
        .Dot(paris, SvgRole::Plain, "Paris")
        .Dot(berlin, SvgRole::Plain, "Berlin")
        .Dot(gap, SvgRole::Mark, "gap")
        .Save(out + "/01_union_of_two_countries.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
