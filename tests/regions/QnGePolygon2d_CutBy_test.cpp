// SPDX-License-Identifier: Apache-2.0
// A polygon cut along a line: each way in which a line can meet a ring, and areas at both sides on random pairs.

#include <gtest/gtest.h>

#include "RandomPolygonPairs.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"

using namespace region_testing;

namespace {

const char* const SQUARE = "0,0 4,0 4,4 0,4";

struct Cut {
    QnGeObjList left;
    QnGeObjList right;

    Cut(const QnGePolygon2d& polygon, const QnGeCurve2d& curve) { polygon.CutBy(curve, left, right); }
    Cut(const std::string& ring, const std::string& line) : Cut(Polygon(ring), *ParseGeoAs<QnGeCurve2d>(line)) {}
};

void ExpectCut(const std::string& ring, const std::string& line, const std::string& left, const std::string& right) {
    const Cut cut(ring, line);
    EXPECT_TRUE(HasRegions(cut.left, left)) << "left";
    EXPECT_TRUE(HasRegions(cut.right, right)) << "right";
    EXPECT_EQ(CheckRegions(cut.left, false), "");
    EXPECT_EQ(CheckRegions(cut.right, false), "");
}

void ExpectAreas(const std::string& ring, const std::string& line, double left, double right) {
    const Cut cut(ring, line);
    EXPECT_NEAR(TotalArea(cut.left), left, 1e-12) << ToText(cut.left);
    EXPECT_NEAR(TotalArea(cut.right), right, 1e-12) << ToText(cut.right);
    EXPECT_EQ(CheckRegions(cut.left, false), "");
    EXPECT_EQ(CheckRegions(cut.right, false), "");
}

/// "" if every vertex of the pieces lies on its side of the line.
std::string CheckSide(const QnGeObjList& pieces, const QnGePoint& base, const QnGePoint& direction, double sign) {
    const double length = std::hypot(direction.x, direction.y);
    for (long i = 0; i < pieces.GetLength(); ++i) {
        const Rings rings = RingsOf(*RegionAt(pieces, i));
        for (const QnGePoint& p : rings[0]) {
            const double gap = (direction.x * (p.y - base.y) - direction.y * (p.x - base.x)) / length;
            if (sign * gap < -2e-6) {
                return PointToText(p) + " is at the wrong side";
            }
        }
    }
    return "";
}

/// A line that meets the ring in a way of the given kind: along an edge, through two, one or no vertices.
QnGeLine2d RandomLine(RandomSource& random, const Ring& ring, int kind) {
    const auto last = static_cast<long>(ring.size()) - 1;
    const auto at = static_cast<std::size_t>(random.Long(0, last));
    const QnGePoint p = ring[at];
    QnGePoint q(random.Int(-1, 8), random.Int(-1, 8));
    QnGePoint base = p;
    if (kind == 0) {
        q = ring[(at + 1) % ring.size()];
    } else if (kind == 1) {
        q = ring[static_cast<std::size_t>(random.Long(0, last))];
    } else if (kind == 3) {
        base = QnGePoint(random.Int(-1, 8), random.Int(-1, 8));
    } else if (kind == 4) {
        base = QnGePoint(random.Double(-1.0, 8.0), random.Double(-1.0, 8.0));
        q = QnGePoint(random.Double(-1.0, 8.0), random.Double(-1.0, 8.0));
    }
    if (std::hypot(q.x - base.x, q.y - base.y) < 1e-3) {
        q = QnGePoint(base.x + 1.0, base.y + random.Int(-2, 2));
    }
    const double scale = random.Coin() ? 1.0 : random.Double(0.01, 100.0);
    const double shift = random.Coin() ? 0.0 : static_cast<double>(random.Int(-3, 3));
    const QnGeVector2d direction(q.x - base.x, q.y - base.y);
    base.x += shift * direction.x;
    base.y += shift * direction.y;
    return QnGeLine2d(QnGeVector2d(scale * direction.x, scale * direction.y), base);
}

}  // namespace

TEST(QnGePolygon2dCutBy, ThroughTwoEdges) {
    ExpectCut(SQUARE, "line 1,0 0,1", "region 0,0 1,0 1,4 0,4", "region 1,0 4,0 4,4 1,4");
    ExpectCut(SQUARE, "line 1,9 0,-7", "region 1,0 4,0 4,4 1,4", "region 0,0 1,0 1,4 0,4");
}

TEST(QnGePolygon2dCutBy, ThroughTwoVertices) {
    ExpectCut(SQUARE, "line 0,0 1,1", "region 0,0 4,4 0,4", "region 0,0 4,0 4,4");
    ExpectCut(SQUARE, "line 9,9 -1,-1", "region 0,0 4,0 4,4", "region 0,0 4,4 0,4");
}

TEST(QnGePolygon2dCutBy, ThroughAVertexAndAnEdge) {
    ExpectCut(SQUARE, "line 0,0 2,1", "region 0,0 4,2 4,4 0,4", "region 0,0 4,0 4,2");
}

TEST(QnGePolygon2dCutBy, BesideThePolygonLeavesItWhole) {
    ExpectCut(SQUARE, "line 9,0 0,1", std::string("region ") + SQUARE, "");
    ExpectCut(SQUARE, "line -9,0 0,1", "", std::string("region ") + SQUARE);
}

TEST(QnGePolygon2dCutBy, ThatTouchesAVertexLeavesItWhole) {
    ExpectAreas(SQUARE, "line 4,4 1,-1", 0.0, 16.0);
    ExpectAreas(SQUARE, "line 4,4 -1,1", 16.0, 0.0);
    ExpectAreas(SQUARE, "line 0,0 1,-1", 16.0, 0.0);
}

TEST(QnGePolygon2dCutBy, AlongAnEdgeLeavesItWhole) {
    ExpectAreas(SQUARE, "line 0,0 1,0", 16.0, 0.0);
    ExpectAreas(SQUARE, "line 0,0 -1,0", 0.0, 16.0);
    ExpectAreas(SQUARE, "line 4,-7 0,2", 16.0, 0.0);
    ExpectAreas(SQUARE, "line 0,4 3,0", 0.0, 16.0);
}

TEST(QnGePolygon2dCutBy, AlongAnInnerEdgeGoesOnThroughThePolygon) {
    const char* const angle = "0,0 4,0 4,2 2,2 2,4 0,4";
    ExpectAreas(angle, "line 0,2 1,0", 4.0, 8.0);
    ExpectAreas(angle, "line 0,2 -1,0", 8.0, 4.0);
    ExpectAreas(angle, "line 2,0 0,1", 8.0, 4.0);
}

TEST(QnGePolygon2dCutBy, MakesAsManyPiecesAsTeeth) {
    const char* const comb = "0,0 7,0 7,3 6,3 6,1 4,1 4,3 3,3 3,1 1,1 1,3 0,3";
    ExpectCut(comb, "line 0,2 1,0", "region 0,2 1,2 1,3 0,3; region 3,2 4,2 4,3 3,3; region 6,2 7,2 7,3 6,3",
              "region 0,0 7,0 7,2 6,2 6,1 4,1 4,2 3,2 3,1 1,1 1,2 0,2");
    // Along the bottoms of the gaps.
    ExpectAreas(comb, "line 0,1 1,0", 6.0, 7.0);
    // Along the tops of the teeth.
    ExpectAreas(comb, "line 0,3 1,0", 0.0, 13.0);
}

TEST(QnGePolygon2dCutBy, ThroughSpikesThatTouchTheLineFromBothSides) {
    ExpectAreas("0,0 6,0 6,4 4,2 2,4 0,4 0,3", "line 0,2 1,0", 8.0, 12.0);
}

TEST(QnGePolygon2dCutBy, ThroughAStraightVertex) {
    ExpectAreas("0,0 2,0 4,0 4,4 2,4 0,4", "line 2,0 0,1", 8.0, 8.0);
    ExpectAreas("0,0 2,0 4,0 4,4 2,4 0,4", "line 0,0 1,0", 16.0, 0.0);
}

TEST(QnGePolygon2dCutBy, PutsRightPiecesFirstIntoOneList) {
    QnGeObjList both;
    Polygon(SQUARE).CutBy(*ParseGeoAs<QnGeCurve2d>("line 1,0 0,1"), both, both);
    ASSERT_EQ(both.GetLength(), 2);
    EXPECT_DOUBLE_EQ(RegionAt(both, 0)->Area(), 12.0);
    EXPECT_DOUBLE_EQ(RegionAt(both, 1)->Area(), 4.0);
}

TEST(QnGePolygon2dCutBy, AppendsBehindWhatTheListsHold) {
    QnGeObjList left;
    QnGeObjList right;
    ParseGeoList("point 7,7", left);
    ParseGeoList("point 8,8", right);
    Polygon(SQUARE).CutBy(*ParseGeoAs<QnGeCurve2d>("line 1,0 0,1"), left, right);
    EXPECT_EQ(left.GetLength(), 2);
    EXPECT_EQ(right.GetLength(), 2);
    ExpectGeo(left.GetPData(0), "point 7,7");
    ExpectGeo(right.GetPData(0), "point 8,8");
}

TEST(QnGePolygon2dCutBy, OtherCurvesThanLinesCutNothing) {
    for (const char* const curve : {"ray 1,-1 0,1", "seg 1,-1 1,9", "circle 0,0 r2", "mline 1,-1 1,9"}) {
        const Cut cut(SQUARE, curve);
        EXPECT_EQ(cut.left.GetLength(), 0) << curve;
        EXPECT_EQ(cut.right.GetLength(), 0) << curve;
    }
}

TEST(QnGePolygon2dCutBy, LeavesThePolygonAsItIs) {
    const QnGePolygon2d square = Polygon(SQUARE);
    const auto before = Record(square);
    const Cut cut(square, *ParseGeoAs<QnGeCurve2d>("line 1,0 0,1"));
    EXPECT_EQ(Record(square), before);
}

TEST(QnGePolygon2dCutBy, IsTheKnifesWayToCutAPolygon) {
    QnGeObjList in;
    QnGeObjList out;
    QnGeObjList on;
    ParseGeoAs<QnGeCurve2d>("line 1,0 0,1")->Cut(Polygon(SQUARE), in, out, on);
    EXPECT_TRUE(HasRegions(in, "region 0,0 1,0 1,4 0,4"));
    EXPECT_TRUE(HasRegions(out, "region 1,0 4,0 4,4 1,4"));
    EXPECT_EQ(on.GetLength(), 0);
}

TEST(QnGePolygon2dCutBy, LatticePolygonsFallIntoTheExactAreas) {
    std::printf("seed %u\n", BaseSeed());
    constexpr int CASES = 20000;
    for (int i = 0; i < CASES; ++i) {
        RandomSource random(CaseSeed(50, i));
        const Ring ring = RandomLatticePolygon(random, random.Int(2, 7));
        const QnGeLine2d line = RandomLine(random, ring, i % 5);
        const QnGePoint direction(line.GetVector().x, line.GetVector().y);
        const QnGePolygon2d polygon = PolygonOf(ring);
        const double whole = polygon.Area();
        const auto left = static_cast<double>(exact_area::AreaAtLeft(ring, line.basePoint, direction));
        const Cut cut(polygon, line);
        SCOPED_TRACE("seed " + std::to_string(CaseSeed(50, i)) + '\n' + ToText(polygon) + '\n' + ToText(line));
        // A random line may pass a vertex closer than the tolerance only by chance; whole numbers do it exactly.
        EXPECT_NEAR(TotalArea(cut.left), left, 1e-9 * (1.0 + whole));
        EXPECT_NEAR(TotalArea(cut.right), whole - left, 1e-9 * (1.0 + whole));
        EXPECT_EQ(CheckRegions(cut.left, false), "");
        EXPECT_EQ(CheckRegions(cut.right, false), "");
        EXPECT_EQ(CheckSide(cut.left, line.basePoint, direction, 1.0), "");
        EXPECT_EQ(CheckSide(cut.right, line.basePoint, direction, -1.0), "");
        if (HasFailure()) {
            return;
        }
    }
}

TEST(QnGePolygon2dCutBy, StarsFallIntoTheExactAreas) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomSource random(CaseSeed(51, i));
        const Ring ring = polygon_pairs::Star(random, random.Int(3, 30), 0.0, 0.0, 0.5, 5.0);
        const double angle = random.Double(0.0, 6.28);
        const QnGePoint base(random.Double(-4.0, 4.0), random.Double(-4.0, 4.0));
        const QnGeLine2d line(QnGeVector2d(std::cos(angle), std::sin(angle)), base);
        const QnGePolygon2d polygon = PolygonOf(ring);
        const QnGePoint direction(line.GetVector().x, line.GetVector().y);
        const auto left = static_cast<double>(exact_area::AreaAtLeft(ring, base, direction));
        const Cut cut(polygon, line);
        SCOPED_TRACE("seed " + std::to_string(CaseSeed(51, i)) + '\n' + ToText(polygon) + '\n' + ToText(line));
        EXPECT_NEAR(TotalArea(cut.left), left, 1e-9);
        EXPECT_NEAR(TotalArea(cut.right), polygon.Area() - left, 1e-9);
        EXPECT_EQ(CheckRegions(cut.left, true), "");
        EXPECT_EQ(CheckRegions(cut.right, true), "");
        if (HasFailure()) {
            return;
        }
    }
}
