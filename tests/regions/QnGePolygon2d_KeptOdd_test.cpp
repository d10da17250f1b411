// SPDX-License-Identifier: Apache-2.0
// Inputs on which the rules of polygons give a wrong answer or none. They are known and kept: a change here is a change
// of behaviour, not a repair.

#include <gtest/gtest.h>

#include "RegionTesting.h"
#include "curves2d/QnGeLine2d.h"

using namespace region_testing;

namespace {

struct WrongCount {
    int cases = 0;
    int wrong = 0;
};

/// How many booleans of lattice polygons with this length of a lattice step, turned and moved away, have a wrong area.
WrongCount CountWrongFarAway(double step, double away, int cases) {
    constexpr double SLACK = 1e-3;
    WrongCount count;
    for (int i = 0; i < cases; ++i) {
        using namespace polygon_pairs;
        RandomSource random(CaseSeed(40, i));
        const Ring a = lattice_polygons::SimplePolygon(random, random.Int(4, 10), 5);
        const Ring b = lattice_polygons::SimplePolygon(random, random.Int(4, 10), 5);
        const Areas areas = Measure(a, b);
        if (DoesFillABay(a, b, areas)) {
            continue;
        }
        const double angle = random.Double(0.0, 6.28);
        const Booleans result(Moved(Turned(a, angle, step), away, -away), Moved(Turned(b, angle, step), away, -away));
        const double unit = step * step;
        const bool united = result.unite == nullptr
                                ? areas.inter < 1e-12L
                                : std::fabs(result.unite->Area() / unit - static_cast<double>(areas.Union())) < SLACK;
        const bool cut = std::fabs(TotalArea(result.inter) / unit - static_cast<double>(areas.inter)) < SLACK;
        const bool rest = std::fabs(TotalArea(result.aLessB) / unit - static_cast<double>(areas.ALessB())) < SLACK;
        ++count.cases;
        count.wrong += united && cut && rest ? 0 : 1;
    }
    return count;
}

std::string CutSquare(double below) {
    QnGeObjList left;
    QnGeObjList right;
    const QnGeLine2d line(QnGeVector2d(1.0, -1.0), QnGePoint(0.0, 10.0 - below));
    Polygon("0,0 10,0 10,10 0,10").CutBy(line, left, right);
    return std::to_string(left.GetLength()) + " left, " + std::to_string(right.GetLength()) + " right";
}

}  // namespace

TEST(QnGePolygon2d, KeptOddAPolygonThatFillsABayMeetsItsOwner) {
    struct {
        const char* filling;
        const char* owner;
    } const cases[] = {{"1,1 2,1 2,2 1,2", "0,0 3,0 3,2 2,2 2,1 1,1 1,2 0,2"}, {"0,0 2,0 1,1", "0,0 1,1 2,0 2,2 0,2"}};
    for (const auto& c : cases) {
        const QnGePolygon2d filling = Polygon(c.filling);
        const QnGePolygon2d owner = Polygon(c.owner);
        QnGeObjList pieces;
        EXPECT_TRUE(filling.Inter(owner, pieces));
        ExpectGeoList(pieces, std::string("region ") + c.filling, 0.0);
        pieces.Reset();
        EXPECT_TRUE(owner.Inter(filling, pieces));
        ExpectGeoList(pieces, std::string("region ") + c.filling, 0.0);
        // The other operations see that the two only touch.
        const std::unique_ptr<QnGeRegion2d> unite(owner.Union(filling));
        ASSERT_NE(unite, nullptr);
        EXPECT_DOUBLE_EQ(unite->Area(), owner.Area() + filling.Area());
        pieces.Reset();
        owner.SubtractBy(filling, pieces);
        EXPECT_DOUBLE_EQ(TotalArea(pieces), owner.Area());
        pieces.Reset();
        filling.SubtractBy(owner, pieces);
        EXPECT_DOUBLE_EQ(TotalArea(pieces), filling.Area());
    }
}

TEST(QnGePolygon2d, KeptOddPointsJustAboveAVertexBetweenShortAndLongEdgesAreOutside) {
    const QnGePolygon2d polygon = Polygon("0,-1000 10,-1000 12,0 12,0.01 10,1000 0,1000");
    EXPECT_EQ(Bits(polygon.Outline().HitTest(QnGePoint(5.0, 1e-8))), HIT_OUT);
    EXPECT_EQ(Bits(polygon.HitTest(QnGePoint(5.0, 1e-8))), 0U);
    for (const double y : {2e-11, 1e-10, 1e-9, 1e-7, 9e-7}) {
        EXPECT_EQ(Bits(polygon.Outline().HitTest(QnGePoint(5.0, y))), HIT_OUT) << y;
    }
    for (const double y : {-1.0, -1e-5, 0.0, 2e-6, 1e-3, 1.0}) {
        EXPECT_EQ(Bits(polygon.Outline().HitTest(QnGePoint(5.0, y))), HIT_IN) << y;
    }
}

TEST(QnGePolygon2d, KeptOddCutsThatMeetAnEdgeJustBeforeItsEndAreDropped) {
    for (const double below : {1e-8, 1e-7, 5e-7, 1e-6}) {
        EXPECT_EQ(CutSquare(below), "0 left, 1 right") << below;
    }
    for (const double below : {0.0, 1e-9, 2e-6, 1e-3}) {
        EXPECT_EQ(CutSquare(below), "1 left, 1 right") << below;
    }
}

TEST(QnGePolygon2d, KeptOddContactsOfShortEdgesFarFromTheOriginMayBeMisread) {
    constexpr int CASES = 2000;
    std::printf("seed %u\n", BaseSeed());
    EXPECT_GT(CountWrongFarAway(0.1, 1e6, CASES).wrong, 0);
    EXPECT_GT(CountWrongFarAway(0.01, 1e6, CASES).wrong, CASES / 50);
    EXPECT_EQ(CountWrongFarAway(1.0, 1e6, CASES).wrong, 0);
    EXPECT_EQ(CountWrongFarAway(0.1, 1e5, CASES).wrong, 0);
}

TEST(QnGePolygon2d, KeptOddAClockwiseOperandActsAsItsComplement) {
    const QnGePolygon2d clockwise = Polygon("0,0 0,2 2,2 2,0");
    const QnGePolygon2d square = Polygon("1,1 3,1 3,3 1,3");
    QnGeObjList pieces;
    EXPECT_TRUE(clockwise.Inter(square, pieces));
    EXPECT_TRUE(HasRegions(pieces, "region 2,1 3,1 3,3 1,3 1,2 2,2"));
}

TEST(QnGePolygon2d, KeptOddEqualOutlinesWithAHardlyBentVertexMayNotUnite) {
    const QnGePolygon2d bent = Polygon("0,0 1,-0.3 1.1,1 0.4,1.3 0.19999999675,0.650000001");
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(bent.Union(bent)), nullptr);
}

TEST(QnGePolygon2d, EqualOutlinesWithABendOfAMillionthUnite) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 5000; ++i) {
        RandomSource random(CaseSeed(41, i));
        Ring ring = polygon_pairs::Star(random, random.Int(4, 8), 0.0, 0.0, 1.0, 2.0);
        const QnGePoint p = ring.back();
        const QnGePoint q = ring.front();
        const double share = random.Double(0.2, 0.8);
        const double bend = std::pow(10.0, random.Double(-5.9, -3.0)) * (random.Coin() ? 1.0 : -1.0);
        ring.emplace_back(p.x + share * (q.x - p.x) - bend * (q.y - p.y),
                          p.y + share * (q.y - p.y) + bend * (q.x - p.x));
        const QnGePolygon2d polygon = PolygonOf(ring);
        const std::unique_ptr<QnGeRegion2d> unite(polygon.Union(polygon));
        ASSERT_NE(unite, nullptr) << "seed " << CaseSeed(41, i) << '\n' << ToText(polygon);
        EXPECT_NEAR(unite->Area(), polygon.Area(), 1e-9);
    }
}

TEST(QnGePolygon2d, KeptOddTheStaticTypeDecidesWhetherHolesAreSeen) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon("0,0 9,0 9,9 0,9 | 1,1 1,4 4,4 4,1");
    const QnGePolygon2d& outline = holed;
    const QnGePolygon2d inner = Polygon("2,2 3,2 3,3 2,3");
    const std::unique_ptr<QnGeRegion2d> unite(inner.Union(outline));
    ExpectGeo(unite.get(), "region 0,0 9,0 9,9 0,9");
    ExpectGeo(std::unique_ptr<QnGeRegion2d>(outline.Union(inner)).get(), "region 0,0 9,0 9,9 0,9");
    QnGeObjList pieces;
    EXPECT_TRUE(outline.Inter(inner, pieces));
    ExpectGeoList(pieces, "region 2,2 3,2 3,3 2,3");
    pieces.Reset();
    inner.SubtractBy(outline, pieces);
    EXPECT_EQ(pieces.GetLength(), 0);
    // The form on regions sees the hole.
    const QnGeRegion2d& region = holed;
    inner.SubtractBy(region, pieces);
    EXPECT_EQ(pieces.GetLength(), 1);
}
