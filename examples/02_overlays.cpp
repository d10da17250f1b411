// SPDX-License-Identifier: Apache-2.0
// Every pair of the overlay table: area found, area expected, relative error.
//
// The operands have holes and many parts, the booleans at work are those of plain polygons, so the areas are put
// together from rings (RingSet.h). Pairs of single rings are united and subtracted directly as well.
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Example.h"
#include "RingSet.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"

namespace {

constexpr double AREA_TOLERANCE = 1e-9;  // of the larger operand
constexpr double SQUARE_KILOMETRE = 1e6;
constexpr double MILLIMETRES = 1000.0;

/// How many vertices both sets have: above 0 their outlines coincide in part. The data lies on a grid of a centimetre.
std::size_t SharedVertices(const RingSet& a, const RingSet& b) {
    using Place = std::pair<long long, long long>;
    const auto places = [](const RingSet& rings) {
        std::set<Place> all;
        for (const SignedRing& ring : rings) {
            const QnGeMLine2d& outline = ring.polygon.Outline();
            for (long i = 0; i < outline.GetVertexNum(); ++i) {
                all.emplace(std::llround(outline[i].x * MILLIMETRES), std::llround(outline[i].y * MILLIMETRES));
            }
        }
        return all;
    };
    const std::set<Place> placesOfA = places(a);
    std::size_t shared = 0;
    for (const Place& place : places(b)) {
        shared += placesOfA.count(place);
    }
    return shared;
}

struct Overlay {
    std::string name;
    std::string note;
    double common = 0.0;
    double united = 0.0;
    double error = 0.0;  ///< the worst one of all areas, relative to the larger operand
    std::size_t shared = 0;
};

Overlay Compute(const data_files::CsvTable& table, std::size_t row, const std::string& data, SvgPicture& picture) {
    const RingSet a = ReadRings(data + "/" + table.Text(row, "a"), 0.0, 0.0);
    const RingSet b =
        ReadRings(data + "/" + table.Text(row, "b"), table.Number(row, "b_dx"), table.Number(row, "b_dy"));
    const double areaA = AreaOf(a);
    const double areaB = AreaOf(b);
    const double larger = std::max(areaA, areaB);

    Overlay overlay;
    overlay.name = table.Text(row, "pair");
    overlay.note = table.Text(row, "note");
    const auto check = [&](double found, const char* column) {
        overlay.error = std::max(overlay.error, RelativeError(found, table.Number(row, column), larger));
    };
    QnGeObjList pieces;
    overlay.common = CommonArea(a, b, pieces);
    overlay.united = areaA + areaB - overlay.common;
    overlay.shared = SharedVertices(a, b);
    check(overlay.common, "area_intersection");
    check(overlay.united, "area_union");
    check(areaA - overlay.common, "area_a_minus_b");
    check(areaB - overlay.common, "area_b_minus_a");

    if (a.size() == 1 && b.size() == 1) {
        const std::unique_ptr<QnGeRegion2d> united(a[0].polygon.Union(b[0].polygon));
        Require(united != nullptr, overlay.name + ": the union is one region");
        check(united->Area(), "area_union");
        QnGeObjList onlyA;
        QnGeObjList onlyB;
        a[0].polygon.SubtractBy(b[0].polygon, onlyA);
        b[0].polygon.SubtractBy(a[0].polygon, onlyB);
        check(AreaOf(onlyA), "area_a_minus_b");
        check(AreaOf(onlyB), "area_b_minus_a");
    }
    char errorText[64];
    std::snprintf(errorText, sizeof errorText, "error %.0e", overlay.error);
    picture.Panel(overlay.name + "\n" + errorText)
        .Focus(MainBox(a) + MainBox(b))
        .Draw(Drawing(a), SvgRole::A)
        .Draw(Drawing(b), SvgRole::B);
    if (pieces.GetLength() > 0) {
        picture.Draw(Drawing(pieces), SvgRole::Result);
    }
    return overlay;
}

void Run(const std::string& data, const std::string& out) {
    const data_files::CsvTable table(data + "/overlays/expected_overlays.csv");
    SvgPicture picture("Overlays of real outlines",
                       "B is moved where the pair says so. The error is the worst of all "
                       "areas, relative to the larger operand.");
    picture.Columns(4).PanelShape(0.85).Legend(SvgRole::A, "A").Legend(SvgRole::B, "B");
    picture.Legend(SvgRole::Result, "A and B in common");

    std::printf(
        "Areas in square kilometres; relative error: the worst of union, intersection and both differences,\n"
        "relative to the larger operand; * not in general position, the outlines coincide in part\n\n");
    std::printf("  %-28s%17s%17s%17s%17s  %s\n", "pair", "union found", "expected", "common found", "expected",
                "error");
    std::ofstream csv(out + "/02_overlays.csv");
    csv << "pair,union_found,union_expected,intersection_found,intersection_expected,relative_error,shared_vertices\n";
    csv.precision(17);
    double worst = 0.0;
    std::vector<Overlay> coincident;
    for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
        const Overlay overlay = Compute(table, row, data, picture);
        const double united = table.Number(row, "area_union");
        const double common = table.Number(row, "area_intersection");
        std::printf("%s %-28s%17.4f%17.4f%17.4f%17.4f  %.1e\n", overlay.shared > 0 ? "*" : " ", overlay.name.c_str(),
                    overlay.united / SQUARE_KILOMETRE, united / SQUARE_KILOMETRE, overlay.common / SQUARE_KILOMETRE,
                    common / SQUARE_KILOMETRE, overlay.error);
        csv << overlay.name << ',' << overlay.united << ',' << united << ',' << overlay.common << ',' << common << ','
            << overlay.error << ',' << overlay.shared << '\n';
        if (overlay.shared > 0) {
            coincident.push_back(overlay);
        } else {
            worst = std::max(worst, overlay.error);
        }
    }
    std::printf("\n%zu pairs in general position, worst relative error %.1e\n", table.GetRowNum() - coincident.size(),
                worst);
    std::printf(
        "%zu pairs whose outlines coincide in part. Edges that run along each other make no crossing, those that\n"
        "meet them at their ends do:\n",
        coincident.size());
    for (const Overlay& overlay : coincident) {
        std::printf("  %-24s%5zu shared vertices, %s: %s\n", overlay.name.c_str(), overlay.shared, overlay.note.c_str(),
                    overlay.error <= AREA_TOLERANCE ? "right" : "wrong");
        worst = std::max(worst, overlay.error);
    }
    picture.Save(out + "/02_overlays.svg");
    Require(worst <= AREA_TOLERANCE, "areas of overlays");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
