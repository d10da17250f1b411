// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "TinTesting.h"
#include "support/DataFiles.h"

// Survey points of real ground: the number of triangles, the hull's area, the surface and the volume are those that
// exhaustive search with exact arithmetic gave.

namespace {

const std::string DATA = std::string(QUARN_SOURCE_DIR) + "/examples/data";

struct Measures {
    long double hullArea = 0.0L;
    long double surface = 0.0L;
    long double volume = 0.0L;
};

Measures MeasuresOf(const QnGeTINGraph& graph) {
    Measures all;
    for (const QnGeTINTriangle* t : tree_checks::Elements<QnGeTINTriangle*>(graph.TrgList)) {
        const QnGePoint& a = *t->Node[0];
        const QnGePoint& b = *t->Node[1];
        const QnGePoint& c = *t->Node[2];
        const long double plan = tin_checks::Cross(a, b, c) / 2.0L;
        const long double x2 = tin_checks::Gap(a.x, b.x);
        const long double y2 = tin_checks::Gap(a.y, b.y);
        const long double z2 = tin_checks::Gap(a.z, b.z);
        const long double x3 = tin_checks::Gap(a.x, c.x);
        const long double y3 = tin_checks::Gap(a.y, c.y);
        const long double z3 = tin_checks::Gap(a.z, c.z);
        const long double nx = y2 * z3 - z2 * y3;
        const long double ny = z2 * x3 - x2 * z3;
        all.hullArea += plan;
        all.surface += std::sqrt(nx * nx + ny * ny + 4.0L * plan * plan) / 2.0L;
        all.volume += plan * (static_cast<long double>(a.z) + (z2 + z3) / 3.0L);
    }
    return all;
}

void ExpectRelative(long double found, double expected, double tolerance, const std::string& what) {
    EXPECT_NEAR(static_cast<double>(found / static_cast<long double>(expected)), 1.0, tolerance) << what;
}

class RealGround : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(RealGround, HasTheExpectedTriangles) {
    const std::string file = std::string("terrain/") + GetParam();
    const data_files::CsvTable table(DATA + "/terrain/expected_terrain.csv");
    const std::size_t row = table.Find("file", file);
    const std::vector<QnGePoint> points = data_files::ReadPoints(DATA + "/" + file);
    ASSERT_EQ(points.size(), static_cast<std::size_t>(table.Number(row, "points")));
    TinPair tin;
    tin.MakeTIN(points);
    EXPECT_EQ(tin.graph.Dropped.GetLength(), 0);
    EXPECT_EQ(tin.graph.NodeList.GetLength(), static_cast<long>(points.size()));
    EXPECT_EQ(tin.graph.TrgList.GetLength(), static_cast<long>(table.Number(row, "delaunay_triangles")));
    EXPECT_EQ(tin.graph.OutEdgeList.GetLength(),
              static_cast<long>(table.Number(row, "hull_vertices") + table.Number(row, "points_on_hull_edges")));
    const Measures found = MeasuresOf(tin.graph);
    ExpectRelative(found.hullArea, table.Number(row, "hull_area"), 1e-12, "hull area");
    ExpectRelative(found.surface, table.Number(row, "surface_area"), 1e-12, "surface area");
    ExpectRelative(found.volume, table.Number(row, "volume_above_zero"), 1e-12, "volume");
}

INSTANTIATE_TEST_SUITE_P(Survey, RealGround,
                         testing::Values("zion_survey_500.txt", "zion_survey_5000.txt", "zion_survey_25000.txt",
                                         "runway_ends_europe.txt"),
                         [](const testing::TestParamInfo<const char*>& set) {
                             const std::string file = set.param;
                             return file.substr(0, file.find('.'));
                         });

/// A grid as elevations of a volcano come in: every cell has its four corners on one circle, every row on one line.
TEST(GridOfElevations, SplitsEveryCell) {
    std::vector<QnGePoint> points;
    for (int row = 0; row < 61; ++row) {
        for (int column = 0; column < 87; ++column) {
            const double fromTop = std::hypot(10.0 * column - 300.0, 10.0 * row - 280.0);
            points.emplace_back(10.0 * column, 10.0 * row, std::floor(94.0 + 1e5 / (1000.0 + fromTop)));
        }
    }
    TinPair tin;
    tin.MakeTIN(points);
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 5307);
    EXPECT_EQ(tin.graph.TrgList.GetLength(), 10320);
    EXPECT_EQ(tin.graph.OutEdgeList.GetLength(), 292);
    EXPECT_EQ(MeasuresOf(tin.graph).hullArea, 516000.0L);
}
