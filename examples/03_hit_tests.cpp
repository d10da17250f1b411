// SPDX-License-Identifier: Apache-2.0
// Where points lie in real polygons with holes: inside, outside, or exactly on a boundary.
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Example.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"

namespace {

/// All polygons of one file with their holes.
using Map = std::vector<std::unique_ptr<QnGeGeneralPolygon2d>>;

Map ReadMap(const std::string& path) {
    Map map;
    for (const data_files::Polygon& polygon : data_files::ReadPolygons(path)) {
        map.push_back(std::make_unique<QnGeGeneralPolygon2d>(polygon.rings[0], false));
        for (std::size_t i = 1; i < polygon.rings.size(); ++i) {
            // The polygon takes the hole over. The holes of the files are clockwise and apart: no check is needed.
            map.back()->AppendHole(new QnGeMLine2d(polygon.rings[i]), false);
        }
    }
    return map;
}

/// The answer in the words of the table: "1" inside, "0" outside, "on" a boundary.
std::string Place(const Map& map, const QnGePoint& point) {
    for (const auto& polygon : map) {
        const QnBitData hit = polygon->HitTest(point);
        if (hit.HasBit(HIT_BOUNDARY)) {
            return "on";
        }
        if (hit.HasBit(HIT_ON)) {
            return "1";
        }
    }
    return "0";
}

struct Score {
    Map map;
    long holes = 0;
    long vertices = 0;
    std::map<std::string, long> right;  // by the place that was expected
    long wrong = 0;
};

void Run(const std::string& data, const std::string& out) {
    const data_files::CsvTable table(data + "/polygons/expected_point_tests.csv");
    SvgPicture picture("Hit tests on real polygons",
                       "Points outside, inside and on the boundary, islands in lakes and enclaves included.");
    picture.Columns(2).PanelShape(0.8).Legend(SvgRole::A, "polygon");
    picture.Legend(SvgRole::Result, "inside").Legend(SvgRole::Plain, "outside").Legend(SvgRole::Mark, "on a boundary");

    std::map<std::string, Score> scores;
    std::vector<std::string> order;
    for (std::size_t row = 0; row < table.GetRowNum(); ++row) {
        const std::string& file = table.Text(row, "file");
        Score& score = scores[file];
        if (score.map.empty()) {
            score.map = ReadMap(data + "/" + file);
            order.push_back(file);
            picture.Panel(file);
            for (const auto& polygon : score.map) {
                picture.Draw(*polygon, SvgRole::A);
                score.holes += polygon->GetHoleNum();
                for (long i = 0; i < polygon->GetBoundaryNum(); ++i) {
                    score.vertices += polygon->GetBoundary(i)->GetVertexNum();
                }
            }
        }
        const QnGePoint point(table.Number(row, "x"), table.Number(row, "y"));
        const std::string& expected = table.Text(row, "where");
        const std::string found = Place(score.map, point);
        if (found == expected) {
            ++score.right[expected];
        } else {
            ++score.wrong;
            std::printf("wrong: %s (%.2f, %.2f) is '%s', expected '%s'\n", file.c_str(), point.x, point.y,
                        found.c_str(), expected.c_str());
        }
        picture.Dot(point, found == "on" ? SvgRole::Mark : (found == "1" ? SvgRole::Result : SvgRole::Plain));
    }

    std::printf("%-36s%9s%6s%9s%8s%9s%5s%7s\n", "polygons", "polygons", "holes", "vertices", "inside", "outside", "on",
                "wrong");
    long right = 0;
    long wrong = 0;
    for (const std::string& file : order) {
        Score& score = scores[file];
        std::printf("%-36s%9zu%6ld%9ld%8ld%9ld%5ld%7ld\n", file.c_str(), score.map.size(), score.holes, score.vertices,
                    score.right["1"], score.right["0"], score.right["on"], score.wrong);
        right += score.right["1"] + score.right["0"] + score.right["on"];
        wrong += score.wrong;
    }
    std::printf("%ld right, %ld wrong\n", right, wrong);
    picture.Save(out + "/03_hit_tests.svg");
    Require(wrong == 0, "hit tests");
    Require(right == static_cast<long>(table.GetRowNum()) && right > 0, "number of hit tests");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
