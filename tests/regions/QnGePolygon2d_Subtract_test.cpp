// SPDX-License-Identifier: Apache-2.0
// What remains of a polygon: each branch by a case of its own.

#include <gtest/gtest.h>

#include "RegionTesting.h"

using namespace region_testing;

namespace {

const char* const SQUARE = "0,0 4,0 4,4 0,4";

QnGeObjList Subtract(const std::string& a, const std::string& b) {
    QnGeObjList rest;
    Polygon(a).SubtractBy(Polygon(b), rest);
    return rest;
}

}  // namespace

TEST(QnGePolygon2dSubtract, WalksFromTheFirstCrossingBackAlongTheSecondPolygon) {
    ExpectGeoList(Subtract("0,0 2,0 2,2 0,2", "1,1 3,1 3,3 1,3"), "region 2,1 1,1 1,2 0,2 0,0 2,0");
}

TEST(QnGePolygon2dSubtract, ABarThroughLeavesTwoPieces) {
    const QnGeObjList rest = Subtract(SQUARE, "1,-1 2,-1 2,5 1,5");
    EXPECT_EQ(CheckRegions(rest, true), "");
    EXPECT_TRUE(HasRegions(rest, "region 0,0 1,0 1,4 0,4; region 2,0 4,0 4,4 2,4"));
}

TEST(QnGePolygon2dSubtract, ACombThroughLeavesManyPieces) {
    const QnGeObjList rest = Subtract("0,0 7,0 7,1 0,1", "-1,-2 8,-2 8,-1 6,-1 6,2 5,2 5,-1 4,-1 4,2 3,2 3,-1 -1,-1");
    EXPECT_EQ(CheckRegions(rest, true), "");
    EXPECT_TRUE(HasRegions(rest, "region 0,0 3,0 3,1 0,1; region 4,0 5,0 5,1 4,1; region 6,0 7,0 7,1 6,1"));
}

TEST(QnGePolygon2dSubtract, AnInnerOneBecomesAHole) {
    ExpectGeoList(Subtract(SQUARE, "1,1 2,1 2,2 1,2"), "region 0,0 4,0 4,4 0,4 | 1,1 1,2 2,2 2,1", 0.0);
}

TEST(QnGePolygon2dSubtract, AnOuterOneLeavesNothing) {
    ExpectGeoList(Subtract("1,1 2,1 2,2 1,2", SQUARE), "");
}

TEST(QnGePolygon2dSubtract, AnEqualOneLeavesNothing) {
    ExpectGeoList(Subtract(SQUARE, SQUARE), "");
    ExpectGeoList(Subtract(SQUARE, "4,4 0,4 0,0 4,0"), "");
}

TEST(QnGePolygon2dSubtract, ADisjointOneLeavesACopy) {
    ExpectGeoList(Subtract(SQUARE, "9,9 10,9 10,10"), std::string("region ") + SQUARE, 0.0);
}

TEST(QnGePolygon2dSubtract, ANeighbourLeavesAll) {
    EXPECT_DOUBLE_EQ(TotalArea(Subtract(SQUARE, "4,0 6,0 6,4 4,4")), 16.0);
    EXPECT_DOUBLE_EQ(TotalArea(Subtract(SQUARE, "4,1 6,1 6,3 4,3")), 16.0);
    EXPECT_DOUBLE_EQ(TotalArea(Subtract(SQUARE, "4,4 6,4 6,6 4,6")), 16.0);
}

TEST(QnGePolygon2dSubtract, OneThatTouchesFromInsideLeavesTheRest) {
    const char* const touching[] = {"2,0 3,1 1,1", "0,0 2,1 1,2", "2,0 4,2 2,4 0,2", "0,0 4,0 2,2"};
    const double areas[] = {1.0, 1.5, 8.0, 4.0};
    for (int i = 0; i < 4; ++i) {
        const QnGeObjList rest = Subtract(SQUARE, touching[i]);
        EXPECT_DOUBLE_EQ(TotalArea(rest), 16.0 - areas[i]) << touching[i];
        EXPECT_EQ(CheckRegions(rest, false), "") << touching[i];
        ExpectGeoList(Subtract(touching[i], SQUARE), "");
    }
}

TEST(QnGePolygon2dSubtract, SharedEdgesAreCutAwayCleanly) {
    EXPECT_TRUE(HasRegions(Subtract(SQUARE, "0,0 4,0 4,2 0,2"), "region 0,2 4,2 4,4 0,4"));
    EXPECT_DOUBLE_EQ(TotalArea(Subtract(SQUARE, "1,0 3,0 3,2 1,2")), 12.0);
}

TEST(QnGePolygon2dSubtract, WithEmptyPolygons) {
    const QnGePolygon2d empty;
    QnGeObjList rest;
    Polygon(SQUARE).SubtractBy(empty, rest);
    ExpectGeoList(rest, std::string("region ") + SQUARE, 0.0);
    rest.Reset();
    empty.SubtractBy(Polygon(SQUARE), rest);
    empty.SubtractBy(empty, rest);
    EXPECT_EQ(rest.GetLength(), 0);
}

TEST(QnGePolygon2dSubtract, AppendsBehindWhatTheListHolds) {
    QnGeObjList rest;
    ParseGeoList("point 7,7", rest);
    Polygon(SQUARE).SubtractBy(Polygon("9,9 10,9 10,10"), rest);
    EXPECT_EQ(rest.GetLength(), 2);
    ExpectGeo(rest.GetPData(0), "point 7,7");
}

// ---- less a polygon with holes ---------------------------------------------------------------------

TEST(QnGePolygon2dSubtract, WhatLiesInTheHolesOfTheOtherStays) {
    QnGeObjList rest;
    Polygon("1,1 9,1 9,9 1,9")
        .SubtractBy(GeneralPolygon("0,0 10,0 10,10 0,10 | 2,2 2,3 3,3 3,2 | 5,5 5,8 8,8 8,5"), rest);
    EXPECT_TRUE(HasRegions(rest, "region 2,2 3,2 3,3 2,3; region 5,5 8,5 8,8 5,8"));
}

TEST(QnGePolygon2dSubtract, WhatLiesInAHoleComesBehindTheRest) {
    QnGeObjList rest;
    Polygon("0,0 4,0 4,4 0,4").SubtractBy(GeneralPolygon("2,-1 9,-1 9,9 2,9 | 3,1 3,3 5,3 5,1"), rest);
    ASSERT_EQ(rest.GetLength(), 2);
    EXPECT_TRUE(HasRegions(rest, "region 0,0 2,0 2,4 0,4; region 3,1 4,1 4,3 3,3"));
    EXPECT_DOUBLE_EQ(RegionAt(rest, 0)->Area(), 8.0);
}

TEST(QnGePolygon2dSubtract, AGeneralPolygonWithoutHolesCountsAsAPolygon) {
    QnGeObjList rest;
    Polygon(SQUARE).SubtractBy(QnGeGeneralPolygon2d(Polygon("1,1 2,1 2,2 1,2")), rest);
    ExpectGeoList(rest, "region 0,0 4,0 4,4 0,4 | 1,1 1,2 2,2 2,1", 0.0);
}

TEST(QnGePolygon2dSubtract, OfRegionsFindsTheFormForTheClassOfTheOther) {
    const QnGePolygon2d square = Polygon(SQUARE);
    const QnGePolygon2d plain = Polygon("0,0 4,0 4,2 0,2");
    const QnGeGeneralPolygon2d holed = GeneralPolygon("-1,-1 5,-1 5,5 -1,5 | 1,1 1,2 2,2 2,1");
    const QnGeRegion2d& first = square;
    const QnGeRegion2d* const others[] = {&plain, &holed};
    const char* const expected[] = {"region 0,2 4,2 4,4 0,4", "region 1,1 2,1 2,2 1,2"};
    for (int i = 0; i < 2; ++i) {
        QnGeObjList rest;
        first.SubtractBy(*others[i], rest);
        EXPECT_TRUE(HasRegions(rest, expected[i]));
    }
}

TEST(QnGePolygon2dSubtract, AHoleDoesNotChangeItsOwner) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon("-1,-1 5,-1 5,5 -1,5 | 1,1 1,2 2,2 2,1");
    const auto before = Record(holed);
    QnGeObjList rest;
    Polygon(SQUARE).SubtractBy(holed, rest);
    EXPECT_EQ(Record(holed), before);
}
