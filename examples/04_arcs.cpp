// SPDX-License-Identifier: Apache-2.0
// Regions bounded by straight pieces and true circular arcs: exact areas, lengths and boxes of 250 icon shapes.
#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "Example.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"
#include "values/QnGeExtent2d.h"

namespace {

constexpr double TOLERANCE = 1e-9;  // of the value expected, or of 1 for values below it

/// The polygons of a shape as regions. Each has its outline and holes as polylines with bulges.
std::vector<std::unique_ptr<QnGeGeneralRegion2d>> MakeRegions(const data_files::ArcShape& shape) {
    std::vector<std::unique_ptr<QnGeGeneralRegion2d>> regions;
    for (const data_files::ArcPolygon& polygon : shape.polygons) {
        regions.push_back(std::make_unique<QnGeGeneralRegion2d>(polygon.rings[0], false));
        for (std::size_t i = 1; i < polygon.rings.size(); ++i) {
            regions.back()->AppendHole(new QnGePolyline2d(polygon.rings[i]), false);
        }
    }
    return regions;
}

struct Worst {
    double area = 0.0;
    double perimeter = 0.0;
    double box = 0.0;
};

double ErrorOf(double found, double expected) {
    return RelativeError(found, expected, std::max(1.0, std::fabs(expected)));
}

/// Measures one shape, compares it with its row of the table and draws it.
void CheckShape(const data_files::ArcShape& shape, const data_files::CsvTable& table, std::size_t row, SvgRole role,
                SvgPicture& picture, Worst& worst) {
    double area = 0.0;
    double perimeter = 0.0;
    QnGeExtent2d box;
    bool isFirst = true;
    picture.Panel("");
    for (const auto& region : MakeRegions(shape)) {
        area += region->Area();
        for (long i = 0; i < region->GetBoundaryNum(); ++i) {
            perimeter += region->GetBoundary(i)->Length();
            Require(region->GetBoundary(i)->IsClockwise() == (i > 0), shape.name + ": direction of a boundary");
        }
        QnGeExtent2d part;
        Require(region->GetExtent2d(part), shape.name + ": a region has a box");
        box = isFirst ? part : box + part;
        isFirst = false;
        picture.Draw(*region, role);
    }
    const double areaError = ErrorOf(area, table.Number(row, "area"));
    const double perimeterError = ErrorOf(perimeter, table.Number(row, "perimeter"));
    const double boxError =
        std::max({ErrorOf(box.x.min, table.Number(row, "xmin")), ErrorOf(box.y.min, table.Number(row, "ymin")),
                  ErrorOf(box.x.max, table.Number(row, "xmax")), ErrorOf(box.y.max, table.Number(row, "ymax"))});
    worst.area = std::max(worst.area, areaError);
    worst.perimeter = std::max(worst.perimeter, perimeterError);
    worst.box = std::max(worst.box, boxError);
    Require(areaError <= TOLERANCE, shape.name + ": area");
    Require(perimeterError <= TOLERANCE, shape.name + ": perimeter");
    Require(boxError <= TOLERANCE, shape.name + ": box");
}

void Run(const std::string& data, const std::string& out) {
    const data_files::CsvTable table(data + "/arcs/expected_arcs.csv");
    SvgPicture picture("Shapes with circular arcs",
                       "Icon outlines as polylines with bulges; every arc of this picture is an arc of its file.");
    picture.Columns(20).PanelShape(1.0).Legend(SvgRole::A, "filled icons").Legend(SvgRole::B, "outlines of icons");

    std::printf("%-28s%8s%8s%10s%8s%12s%12s%12s\n", "file", "shapes", "holes", "vertices", "arcs", "area error",
                "length error", "box error");
    std::size_t checked = 0;
    for (const char* name : {"arcs/icons_filled.txt", "arcs/icons_outline.txt"}) {
        const bool isFilled = checked == 0;
        const std::vector<data_files::ArcShape> shapes = data_files::ReadArcShapes(data + "/" + name);
        Worst worst;
        std::size_t holes = 0;
        long vertices = 0;
        long arcs = 0;
        for (const data_files::ArcShape& shape : shapes) {
            const std::size_t row = table.Find("shape", shape.name);
            Require(table.Text(row, "file") == name, shape.name + ": its row of the table");
            CheckShape(shape, table, row, isFilled ? SvgRole::A : SvgRole::B, picture, worst);
            for (const data_files::ArcPolygon& polygon : shape.polygons) {
                holes += polygon.rings.size() - 1;
                for (const QnGePolyline2d& ring : polygon.rings) {
                    vertices += ring.GetVertexNum();
                    for (long i = 0; i < ring.GetSegNum(); ++i) {
                        arcs += ring.IsArcSeg(i) ? 1 : 0;
                    }
                }
            }
        }
        std::printf("%-28s%8zu%8zu%10ld%8ld%12.1e%12.1e%12.1e\n", name, shapes.size(), holes, vertices, arcs,
                    worst.area, worst.perimeter, worst.box);
        checked += shapes.size();
    }
    Require(checked == table.GetRowNum(), "every shape of the table is in its file");
    picture.Save(out + "/04_arcs.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
