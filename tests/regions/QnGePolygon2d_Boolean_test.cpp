// SPDX-License-Identifier: Apache-2.0
// Union and intersection of two polygons, each branch by a case of its own. Areas of random pairs stand elsewhere.

#include <gtest/gtest.h>

#include "RegionTesting.h"

using namespace region_testing;

namespace {

const char* const SQUARE = "0,0 2,0 2,2 0,2";
const char* const SHIFTED_SQUARE = "1,1 3,1 3,3 1,3";

std::unique_ptr<QnGeRegion2d> Unite(const std::string& a, const std::string& b) {
    return std::unique_ptr<QnGeRegion2d>(Polygon(a).Union(Polygon(b)));
}

/// The pieces of an intersection, and whether the answer agrees with them.
QnGeObjList Intersect(const std::string& a, const std::string& b) {
    QnGeObjList pieces;
    const bool doMeet = Polygon(a).Inter(Polygon(b), pieces);
    EXPECT_EQ(doMeet, pieces.GetLength() > 0);
    return pieces;
}

}  // namespace

// ---- rings traced through the graph ----------------------------------------------------------------

TEST(QnGePolygon2dUnion, WalksFromTheFirstCrossingAlongTheSecondPolygon) {
    ExpectGeo(Unite(SQUARE, SHIFTED_SQUARE).get(), "region 2,1 3,1 3,3 1,3 1,2 0,2 0,0 2,0");
}

TEST(QnGePolygon2dInter, WalksFromTheFirstCrossingAlongTheFirstPolygon) {
    ExpectGeoList(Intersect(SQUARE, SHIFTED_SQUARE), "region 2,1 2,2 1,2 1,1");
}

TEST(QnGePolygon2dInter, RingsComeInTheOrderOfTheirCrossings) {
    // Crossings are found edge by edge of the first polygon, for each in the order of the second's edges: here from the
    // right upright of the second to the left one.
    const char* const bar = "0,0 7,0 7,1 0,1";
    ExpectGeoList(Intersect(bar, "1,-1 2,-1 2,2 1,2"), "region 2,0 2,1 1,1 1,0");
    const QnGeObjList teeth = Intersect(bar, "1,-1 6,-1 6,2 5,2 5,-0.5 2,-0.5 2,2 1,2");
    EXPECT_EQ(CheckRegions(teeth, true), "");
    ExpectGeoList(teeth, "region 6,0 6,1 5,1 5,0; region 2,0 2,1 1,1 1,0");
}

TEST(QnGePolygon2dUnion, TwoThatEncloseARoomHaveItAsHole) {
    const char* const clamp = "0,0 3,0 3,1 1,1 1,2 3,2 3,3 0,3";
    const char* const bar = "2,-1 2.5,-1 2.5,4 2,4";
    const auto result = Unite(clamp, bar);
    EXPECT_EQ(CheckRegion(result.get(), true), "");
    EXPECT_TRUE(IsRegion(result.get(),
                         "region 0,0 2,0 2,-1 2.5,-1 2.5,0 3,0 3,1 2.5,1 2.5,2 3,2 3,3 2.5,3 2.5,4 2,4 2,3 0,3 | "
                         "1,1 1,2 2,2 2,1"));
    EXPECT_DOUBLE_EQ(result->Area(), 8.5);
}

TEST(QnGePolygon2dUnion, SeveralRoomsBecomeSeveralHoles) {
    const char* const comb = "0,0 7,0 7,3 6,3 6,1 4,1 4,3 3,3 3,1 1,1 1,3 0,3";
    const auto result = Unite(comb, "-1,2 8,2 8,2.5 -1,2.5");
    EXPECT_EQ(CheckRegion(result.get(), true), "");
    ASSERT_EQ(result->GetHoleNum(), 2);
    EXPECT_DOUBLE_EQ(result->Hole(0).Area() + result->Hole(1).Area(), 4.0);
    EXPECT_DOUBLE_EQ(result->Area(), Polygon(comb).Area() + 4.5 - 1.5);
}

TEST(QnGePolygon2dUnion, AStarAndASquareThatBridgesTwoSpikesEncloseAHole) {
    const char* const star = "5,0 1,1 0,5 -1,1 -5,0 -1,-1 0,-5 1,-1";
    const char* const square = "3.25,-0.75 6.25,2.25 2.25,6.25 -0.75,3.25";
    const auto result = Unite(star, square);
    EXPECT_EQ(CheckRegion(result.get(), true), "");
    ASSERT_EQ(result->GetHoleNum(), 1);
    const double third = 5.0 / 3.0;
    const double sixth = 5.0 / 6.0;
    const Rings rings = RingsOf(*result);
    EXPECT_TRUE(IsSameRing(rings[1], {{1.0, 1.0}, {sixth, third}, {third, sixth}}, 1e-12));

    const QnGeObjList pieces = Intersect(star, square);
    EXPECT_EQ(pieces.GetLength(), 2);
    EXPECT_EQ(CheckRegions(pieces, true), "");
}

TEST(QnGePolygon2dUnion, AStarAndASquareOnOneSpikeAreOnePolygon) {
    const auto result = Unite("5,0 1,1 0,5 -1,1 -5,0 -1,-1 0,-5 1,-1", "3,-1 4,-1 4,1 3,1");
    EXPECT_EQ(CheckRegion(result.get(), true), "");
    EXPECT_EQ(result->GetClassID(), CLASS_ID_POLYGON2D);
}

TEST(QnGePolygon2dUnion, SquaresThatShareAFullEdgeUniteAtItsEnds) {
    EXPECT_TRUE(IsRegion(Unite("0,0 2,0 2,2 0,2", "2,0 4,0 4,2 2,2").get(), "region 0,0 2,0 4,0 4,2 2,2 0,2"));
    ExpectGeoList(Intersect("0,0 2,0 2,2 0,2", "2,0 4,0 4,2 2,2"), "");
}

TEST(QnGePolygon2dUnion, SquaresThatShareAPartOfAnEdgeUnite) {
    const auto result = Unite("0,0 2,0 2,2 0,2", "2,1 4,1 4,3 2,3");
    EXPECT_EQ(CheckRegion(result.get(), false), "");
    EXPECT_DOUBLE_EQ(result->Area(), 8.0);
    ExpectGeoList(Intersect("0,0 2,0 2,2 0,2", "2,1 4,1 4,3 2,3"), "");
}

// ---- no ring: one lies in the other, or apart ------------------------------------------------------

TEST(QnGePolygon2dUnion, OfEqualPolygonsIsACopy) {
    ExpectGeo(Unite(SQUARE, SQUARE).get(), std::string("region ") + SQUARE);
    ExpectGeoList(Intersect(SQUARE, SQUARE), std::string("region ") + SQUARE);
    EXPECT_TRUE(IsRegion(Unite(SQUARE, "2,2 0,2 0,0 2,0").get(), std::string("region ") + SQUARE));
}

TEST(QnGePolygon2dUnion, OfNestedPolygonsIsACopyOfTheOuterAndTheyMeetInTheInner) {
    const char* const outer = "0,0 4,0 4,4 0,4";
    const char* const inner = "1,1 2,1 2,2 1,2";
    ExpectGeo(Unite(outer, inner).get(), std::string("region ") + outer, 0.0);
    ExpectGeo(Unite(inner, outer).get(), std::string("region ") + outer, 0.0);
    ExpectGeoList(Intersect(outer, inner), std::string("region ") + inner, 0.0);
    ExpectGeoList(Intersect(inner, outer), std::string("region ") + inner, 0.0);
}

TEST(QnGePolygon2dUnion, VerticesOnTheOutlineLeaveTheDecisionToTheNext) {
    // The inner one touches the outer with its first vertices, on an edge and at a corner.
    const char* const outer = "0,0 4,0 4,4 0,4";
    const char* const inner = "2,0 3,1 2,2";
    EXPECT_DOUBLE_EQ(Unite(outer, inner)->Area(), 16.0);
    EXPECT_DOUBLE_EQ(Unite(inner, outer)->Area(), 16.0);
    EXPECT_DOUBLE_EQ(TotalArea(Intersect(inner, outer)), 1.0);
    const char* const corner = "0,0 2,1 1,2";
    EXPECT_DOUBLE_EQ(Unite(outer, corner)->Area(), 16.0);
    EXPECT_DOUBLE_EQ(TotalArea(Intersect(corner, outer)), 1.5);
}

TEST(QnGePolygon2dUnion, AnInscribedPolygonIsIncluded) {
    // All its vertices lie on the other's outline, which goes on outside of it.
    const char* const outer = "0,0 4,0 4,4 0,4";
    const char* const inscribed = "2,0 4,2 2,4 0,2";
    EXPECT_DOUBLE_EQ(Unite(inscribed, outer)->Area(), 16.0);
    EXPECT_DOUBLE_EQ(Unite(outer, inscribed)->Area(), 16.0);
    EXPECT_TRUE(HasRegions(Intersect(inscribed, outer), std::string("region ") + inscribed));
    EXPECT_TRUE(HasRegions(Intersect(outer, inscribed), std::string("region ") + inscribed));
}

TEST(QnGePolygon2dUnion, OfDisjointPolygonsIsNull) {
    const char* const away = "5,5 6,5 6,6 5,6";
    EXPECT_EQ(Unite(SQUARE, away), nullptr);
    EXPECT_EQ(Unite(away, SQUARE), nullptr);
    ExpectGeoList(Intersect(SQUARE, away), "");
}

TEST(QnGePolygon2dUnion, OfPolygonsThatTouchAtACornerOnlyIsNull) {
    EXPECT_EQ(Unite(SQUARE, "2,2 3,2 3,3 2,3"), nullptr);
    EXPECT_EQ(Unite(SQUARE, "2,1 3,0 3,2"), nullptr);
    ExpectGeoList(Intersect(SQUARE, "2,2 3,2 3,3 2,3"), "");
    ExpectGeoList(Intersect(SQUARE, "2,1 3,0 3,2"), "");
}

TEST(QnGePolygon2dUnion, OfRingsWithoutAnOuterOneIsNull) {
    // A clockwise bar stands for all that is outside of it. The strip closes its middle: two rooms, no outer limit.
    const QnGePolygon2d complement = Polygon("0,0 0,1 10,1 10,0");
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(complement.Union(Polygon("4,-1 6,-1 6,2 4,2"))), nullptr);
}

TEST(QnGePolygon2dUnion, ASecondOuterRingAbandonsTheResult) {
    // The first one crosses itself, so that two rings run counter-clockwise from the vertex that it shares.
    EXPECT_EQ(Unite("3,4 1,5 4,1 4,5 5,4", "4,1 1,3 3,0"), nullptr);
}

// ---- points ----------------------------------------------------------------------------------------

TEST(QnGePolygon2dInter, CrossingsLieOnTheFirstPolygonInSpaceToo) {
    QnGeObjList pieces;
    QnGePolygon2d low = Polygon("0,0,0 2,0,2 2,2,2 0,2,0");
    ASSERT_TRUE(low.Inter(Polygon("1,1,9 3,1,9 3,3,9 1,3,9"), pieces));
    EXPECT_TRUE(HasRegions(pieces, "region 2,1,2 2,2,2 1,2,1 1,1,9"));
}

TEST(QnGePolygon2dInter, VerticesWithoutContactAreExactCopies) {
    const QnGePolygon2d a = Polygon("0,0 0.3,0.1 0.7,0.2 0,0.9");
    const QnGePolygon2d b = Polygon("0.1,0.15 5,0.15 5,5 0.1,5");
    const std::unique_ptr<QnGeRegion2d> unite(a.Union(b));
    ASSERT_NE(unite, nullptr);
    int copies = 0;
    const Rings rings = RingsOf(*unite);
    for (const QnGePoint& p : rings[0]) {
        for (const QnGePolygon2d* operand : {&a, &b}) {
            for (const QnGePoint& q : RingOf(operand->Outline())) {
                copies += p.x == q.x && p.y == q.y ? 1 : 0;
            }
        }
    }
    EXPECT_EQ(copies, 6);  // all of the first but 0.7,0.2 and all of the second but 0.1,0.15
}

TEST(QnGePolygon2dInter, AppendsBehindWhatTheListHolds) {
    QnGeObjList pieces;
    ParseGeoList("point 7,7", pieces);
    EXPECT_TRUE(Polygon(SQUARE).Inter(Polygon(SHIFTED_SQUARE), pieces));
    EXPECT_EQ(pieces.GetLength(), 2);
    EXPECT_FALSE(Polygon(SQUARE).Inter(Polygon("9,9 10,9 10,10"), pieces));
    EXPECT_EQ(pieces.GetLength(), 2);
    ExpectGeo(pieces.GetPData(0), "point 7,7");
}

TEST(QnGePolygon2dUnion, ResultsHoldNoMoreMemoryThanTheirVertices) {
    RandomSource random(BaseSeed());
    const Ring a = polygon_pairs::Star(random, 3000, 0.0, 0.0, 4.0, 5.0);
    const Ring b = polygon_pairs::Star(random, 3000, 0.1, 0.0, 4.0, 5.0);
    const Booleans result(a, b);
    ASSERT_NE(result.unite, nullptr);
    EXPECT_EQ(result.Check(false), "");
    const auto& outline = static_cast<const QnGePolygon2d&>(*result.unite).Outline();
    EXPECT_EQ(outline.GetVertexArray().GetSpaceSize(), outline.GetVertexNum());
    EXPECT_EQ(sizeof(QnGePoint), 24U);
    const QnGePolygon2d copy(static_cast<const QnGePolygon2d&>(*result.unite));
    EXPECT_EQ(copy.Outline().GetVertexArray().GetSpaceSize(), outline.GetVertexNum());
}

// ---- polygons without vertices ---------------------------------------------------------------------

TEST(QnGePolygon2dUnion, WithAnEmptyPolygonIsACopyOfTheOther) {
    const QnGePolygon2d empty;
    const QnGePolygon2d square = Polygon(SQUARE);
    EXPECT_TRUE(IsRegion(std::unique_ptr<QnGeRegion2d>(square.Union(empty)).get(), std::string("region ") + SQUARE));
    EXPECT_TRUE(IsRegion(std::unique_ptr<QnGeRegion2d>(empty.Union(square)).get(), std::string("region ") + SQUARE));
}

TEST(QnGePolygon2dInter, WithAnEmptyPolygonIsFalse) {
    const QnGePolygon2d empty;
    QnGeObjList pieces;
    EXPECT_FALSE(Polygon(SQUARE).Inter(empty, pieces));
    EXPECT_FALSE(empty.Inter(Polygon(SQUARE), pieces));
    EXPECT_FALSE(empty.Inter(empty, pieces));
    EXPECT_EQ(pieces.GetLength(), 0);
}

// ---- dispatch --------------------------------------------------------------------------------------

TEST(QnGePolygon2dUnion, OfRegionsFindsTheFormForTwoPolygons) {
    const QnGePolygon2d a = Polygon(SQUARE);
    const QnGePolygon2d b = Polygon(SHIFTED_SQUARE);
    const QnGeRegion2d& first = a;
    const QnGeRegion2d& second = b;
    ExpectGeo(std::unique_ptr<QnGeRegion2d>(first.Union(second)).get(), "region 2,1 3,1 3,3 1,3 1,2 0,2 0,0 2,0");
    QnGeObjList pieces;
    EXPECT_TRUE(first.Inter(second, pieces));
    ExpectGeoList(pieces, "region 2,1 2,2 1,2 1,1");
}

TEST(QnGePolygon2dUnion, WithAGeneralPolygonWithoutHolesAsksThatOne) {
    const QnGePolygon2d a = Polygon(SQUARE);
    QnGeGeneralPolygon2d b(Polygon(SHIFTED_SQUARE));
    b.SetElevation(5.0);
    const QnGeRegion2d& second = b;
    // Crossings have the height of the receiver, which is the argument here.
    ExpectGeo(std::unique_ptr<QnGeRegion2d>(a.Union(second)).get(), "region 2,1,5 3,1,5 3,3,5 1,3,5 1,2,5 0,2 0,0 2,0");
    QnGeObjList pieces;
    EXPECT_TRUE(a.Inter(second, pieces));
    EXPECT_TRUE(HasRegions(pieces, "region 2,1,5 2,2 1,2,5 1,1,5"));
}

TEST(QnGePolygon2dUnion, WithAGeneralPolygonWithHolesFails) {
    const QnGePolygon2d a = Polygon("1,1 9,1 9,9 1,9");
    const QnGeGeneralPolygon2d holed = GeneralPolygon("0,0 4,0 4,4 0,4 | 2,2 2,3 3,3 3,2");
    const QnGeRegion2d& region = holed;
    QnGeObjList pieces;
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(a.Union(region)), nullptr);
    EXPECT_FALSE(a.Inter(region, pieces));
    EXPECT_EQ(pieces.GetLength(), 0);
}

TEST(QnGePolygon2dUnion, WithACurvedRegionFails) {
    const QnGePolygon2d a = Polygon(SQUARE);
    const QnGeGeneralRegion2d disc = GeneralRegion("circle 2,2 r1");
    QnGeObjList pieces;
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(a.Union(disc)), nullptr);
    EXPECT_FALSE(a.Inter(disc, pieces));
    a.SubtractBy(disc, pieces);
    EXPECT_EQ(pieces.GetLength(), 0);
}
