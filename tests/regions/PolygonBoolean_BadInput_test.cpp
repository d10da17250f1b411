// SPDX-License-Identifier: Apache-2.0
// Polygons that are none: the operations end, leave the operands alone and free what they took.

#include <gtest/gtest.h>

#include "RandomPolygonPairs.h"
#include "curves2d/QnGeLine2d.h"
#include "values/QnGePointList.h"

using namespace region_testing;

namespace {

/// Every operation on two polygons; what they answer is not looked at.
void RunAll(const QnGePolygon2d& a, const QnGePolygon2d& b) {
    const Booleans result(a, b);
    QnGeObjList left;
    QnGeObjList right;
    QnGeObjList on;
    a.CutBy(QnGeLine2d(QnGeVector2d(1.0, 0.3), QnGePoint(0.0, 0.5)), left, right);
    if (b.Outline().GetVertexNum() > 1) {
        a.CutBy(QnGeLine2d(b.Outline().GetVertex(0), b.Outline().GetVertex(1)), left, right);
        a.Clip(b.Outline(), left, right, on);
        static_cast<void>(a.HitTest(b.Outline().GetVertex(0)));
    }
    static_cast<void>(a.IsInclude(b));
    static_cast<void>(a.IsValid());
    static_cast<void>(a.Area());
    static_cast<void>(a.IsConcave());
}

void ExpectFails(const QnGePolygon2d& bad, const QnGePolygon2d& good) {
    QnGeObjList list;
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(bad.Union(good)), nullptr);
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(good.Union(bad)), nullptr);
    EXPECT_FALSE(bad.Inter(good, list));
    EXPECT_FALSE(good.Inter(bad, list));
    EXPECT_EQ(list.GetLength(), 0);
}

}  // namespace

TEST(PolygonBooleanBadInput, CoordinatesThatAreNoNumbersEnd) {
    std::printf("seed %u\n", BaseSeed());
    const double bad[] = {NOT_A_NUMBER, INF, -INF, 1e300, -1e308, 1e31, 1e-300};
    for (int i = 0; i < 3000; ++i) {
        RandomSource random(CaseSeed(70, i));
        polygon_pairs::Pair pair = polygon_pairs::Make(random, random.Int(0, polygon_pairs::KIND_COUNT - 1));
        Ring& ring = random.Coin() ? pair.a : pair.b;
        const int count = random.Int(1, 4);
        for (int k = 0; k < count && !ring.empty(); ++k) {
            QnGePoint& p = ring[static_cast<std::size_t>(random.Long(0, static_cast<long>(ring.size()) - 1))];
            (random.Coin() ? p.x : p.y) = bad[random.Int(0, 6)];
        }
        RunAll(PolygonOf(pair.a), PolygonOf(pair.b));
        RunAll(PolygonOf(pair.b), PolygonOf(pair.a));
    }
}

TEST(PolygonBooleanBadInput, AllCoordinatesNoNumbersEnd) {
    for (const double bad : {NOT_A_NUMBER, INF, -INF}) {
        const QnGePolygon2d broken = PolygonOf({{bad, bad}, {bad, bad}, {bad, bad}});
        const QnGePolygon2d square = Polygon("0,0 2,0 2,2 0,2");
        RunAll(broken, square);
        RunAll(square, broken);
        RunAll(broken, broken);
    }
}

TEST(PolygonBooleanBadInput, AnyOutlinesEnd) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 6000; ++i) {
        RandomSource random(CaseSeed(71, i));
        const polygon_pairs::Pair pair = polygon_pairs::Make(random, i % polygon_pairs::KIND_COUNT);
        RunAll(PolygonOf(pair.a), PolygonOf(pair.b));
    }
}

TEST(PolygonBooleanBadInput, OpenOutlinesEnd) {
    for (int i = 0; i < 2000; ++i) {
        RandomSource random(CaseSeed(72, i));
        const polygon_pairs::Pair pair = polygon_pairs::Make(random, i % polygon_pairs::KIND_COUNT);
        QnGePolygon2d a = PolygonOf(pair.a);
        QnGePolygon2d b = PolygonOf(pair.b);
        a.Outline().SetClosed(false);
        b.Outline().SetClosed(random.Coin());
        RunAll(a, b);
        RunAll(b, a);
        EXPECT_FALSE(a.IsValid());
        EXPECT_EQ(a.Area(), 0.0);
    }
}

TEST(PolygonBooleanBadInput, FewVertices) {
    const QnGePolygon2d square = Polygon("0,0 2,0 2,2 0,2");
    // One vertex or two away from the square are disjoint.
    ExpectFails(PolygonOf({{9.0, 9.0}}), square);
    ExpectFails(PolygonOf({{9.0, 9.0}, {10.0, 9.0}}), square);
    for (const Ring& ring : {Ring{}, Ring{{1.0, 1.0}}, Ring{{1.0, 1.0}, {3.0, 1.0}}, Ring{{1.0, 0.5}, {2.0, 0.0}},
                             Ring{{1.0, 1.0}, {1.0, 1.0}, {1.0, 1.0}}, Ring{{-1.0, 1.0}, {3.0, 1.0}, {1.0, 1.0}}}) {
        const QnGePolygon2d thin = PolygonOf(ring);
        RunAll(thin, square);
        RunAll(square, thin);
        RunAll(thin, thin);
        QnGeObjList rest;
        square.SubtractBy(thin, rest);
        EXPECT_NE(rest.GetLength(), 0) << ToText(thin);
    }
}

TEST(PolygonBooleanBadInput, KeptOddTwoVerticesOnTheOutlineTakeAllAway) {
    QnGeObjList rest;
    Polygon("0,0 2,0 2,2 0,2").SubtractBy(PolygonOf({{0.0, 0.0}, {2.0, 0.0}}), rest);
    EXPECT_EQ(rest.GetLength(), 0);
}

TEST(PolygonBooleanBadInput, OneVertexInsideIsTakenForAPolygonInside) {
    const QnGePolygon2d square = Polygon("0,0 2,0 2,2 0,2");
    const QnGePolygon2d single = PolygonOf({{1.0, 1.0}});
    ExpectGeo(std::unique_ptr<QnGeRegion2d>(square.Union(single)).get(), "region 0,0 2,0 2,2 0,2");
    QnGeObjList pieces;
    EXPECT_TRUE(square.Inter(single, pieces));
    EXPECT_EQ(pieces.GetLength(), 1);
}

TEST(PolygonBooleanBadInput, LinesThatAreNoneCutNothingWrong) {
    const QnGePolygon2d square = Polygon("0,0 2,0 2,2 0,2");
    const QnGeLine2d lines[] = {QnGeLine2d(), QnGeLine2d(QnGeVector2d(0.0, 0.0), QnGePoint(1.0, 1.0)),
                                QnGeLine2d(QnGeVector2d(NOT_A_NUMBER, 1.0), QnGePoint(1.0, 1.0)),
                                QnGeLine2d(QnGeVector2d(1.0, 0.0), QnGePoint(INF, 1.0)),
                                QnGeLine2d(QnGeVector2d(INF, 0.0), QnGePoint(0.0, 1.0))};
    for (const QnGeLine2d& line : lines) {
        QnGeObjList left;
        QnGeObjList right;
        square.CutBy(line, left, right);
        const double area = TotalArea(left) + TotalArea(right);
        EXPECT_TRUE(!(area > 4.0 + 1e-9)) << area;
    }
}

TEST(PolygonBooleanBadInput, CuttingPolygonsWithFewVertices) {
    const QnGeLine2d line(QnGeVector2d(0.0, 1.0), QnGePoint(1.0, 0.0));
    for (const Ring& ring : {Ring{}, Ring{{0.0, 0.0}}, Ring{{0.0, 0.0}, {2.0, 0.0}}, Ring{{1.0, 0.0}, {1.0, 2.0}},
                             Ring{{1.0, 0.0}, {1.0, 2.0}, {1.0, 1.0}}, Ring{{0.0, 0.0}, {0.0, 0.0}, {0.0, 0.0}}}) {
        QnGeObjList left;
        QnGeObjList right;
        PolygonOf(ring).CutBy(line, left, right);
        EXPECT_EQ(TotalArea(left) + TotalArea(right), 0.0);
    }
}

TEST(PolygonBooleanBadInput, RingsOfFewerThanThreeVerticesAreNullEntries) {
    QnGeObjList left;
    QnGeObjList right;
    PolygonOf({{0.0, 0.0}, {2.0, 0.0}}).CutBy(QnGeLine2d(QnGeVector2d(0.0, 1.0), QnGePoint(5.0, 0.0)), left, right);
    ASSERT_EQ(left.GetLength(), 1);
    EXPECT_EQ(left.GetPData(0), nullptr);
    EXPECT_EQ(right.GetLength(), 0);
}

TEST(PolygonBooleanBadInput, ClosestPointOfBrokenRegionsEnds) {
    QnGePointList found;
    EXPECT_FALSE(QnGePolygon2d().GetClosestPoint2d(QnGePoint(1.0, 1.0), found));
    EXPECT_EQ(found.GetLength(), 0);
    PolygonOf({{NOT_A_NUMBER, 0.0}, {1.0, 0.0}, {1.0, 1.0}}).GetClosestPoint2d(QnGePoint(5.0, 5.0), found);
    Polygon("0,0 2,0 2,2").GetClosestPoint2d(QnGePoint(NOT_A_NUMBER, 5.0), found);
    Polygon("0,0 2,0 2,2").GetClosestPoint2d(QnGePoint(INF, 5.0), found);
}
