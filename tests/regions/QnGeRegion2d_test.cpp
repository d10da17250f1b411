// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGeRegion2d.h"

#include <gtest/gtest.h>

#include "BoundaryRegion.h"
#include "RegionTesting.h"
#include "curves2d/QnGeCircle2d.h"
#include "frame/DynCreateGeObject.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePointList.h"

using namespace region_testing;

namespace {

/// A square of side 10 with a hole from 4,4 to 6,6.
const char* const HOLED = "0,0 10,0 10,10 0,10 | 4,4 4,6 6,6 6,4";

bool ClosestPoint(const QnGeRegion2d& region, const QnGePoint& point, QnGePoint& found) {
    QnGePointList list;
    const bool answer = region.GetClosestPoint2d(point, list);
    EXPECT_EQ(answer, list.GetLength() > 0);
    if (answer) {
        found = list.GetAt(0);
    }
    return answer;
}

}  // namespace

// ---- records ---------------------------------------------------------------------------------------

TEST(QnGeRegion2d, RecordsNameTheClassesAndTheirParents) {
    struct {
        const QnRxClassInfo* info;
        const char* name;
        long id;
        const QnRxClassInfo* parent;
    } const rows[] = {
        {&QnGeRegion2d::s_classInfo, "QnGeRegion2d", 300, &QnGeObject2d::s_classInfo},
        {&QnGePolygon2d::s_classInfo, "QnGePolygon2d", 301, &QnGeRegion2d::s_classInfo},
        {&QnGeGeneralPolygon2d::s_classInfo, "QnGeGeneralPolygon2d", 302, &QnGePolygon2d::s_classInfo},
        {&QnGeGeneralRegion2d::s_classInfo, "QnGeGeneralRegion2d", 303, &QnGeRegion2d::s_classInfo},
    };
    for (const auto& row : rows) {
        EXPECT_STREQ(row.info->GetName(), row.name);
        EXPECT_EQ(row.info->GetClassID(), row.id);
        EXPECT_EQ(row.info->GetParent(), row.parent);
    }
    EXPECT_EQ(&QnGeRegion2d::GetStaticCI(), &QnGeRegion2d::s_classInfo);
    EXPECT_EQ(QnGeRegion2d().GetCI(), &QnGeRegion2d::s_classInfo);
}

TEST(QnGeRegion2d, TheFactoryMakesTheConcreteOnes) {
    EXPECT_EQ(DynCreateGeObject(300), nullptr);
    for (const int id : {301, 302, 303}) {
        const std::unique_ptr<QnGeObject> made(DynCreateGeObject(id));
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(made->GetClassID(), id);
        EXPECT_EQ(made->GetBits(), 0U);
    }
    const std::unique_ptr<QnGeObject> polygon(DynCreateGeObject(301));
    EXPECT_TRUE(static_cast<const QnGePolygon2d&>(*polygon).IsClosed());
    EXPECT_EQ(static_cast<const QnGePolygon2d&>(*polygon).Outline().GetVertexNum(), 0);
}

// ---- the protocol's own answers --------------------------------------------------------------------

TEST(QnGeRegion2d, IsByItselfOneMissingBoundary) {
    QnGeRegion2d region;
    EXPECT_EQ(region.GetBoundaryNum(), 1);
    EXPECT_EQ(region.GetBoundary(0), nullptr);
    EXPECT_TRUE(region.IsEntirePlane());
    EXPECT_FALSE(region.IsOutlineExist());
    EXPECT_FALSE(region.IsClosed());
    EXPECT_EQ(region.GetHoleNum(), 0);
    EXPECT_TRUE(region.IsValid());
    QnGeExtent2d extent;
    EXPECT_FALSE(region.GetExtent2d(extent));
    EXPECT_EQ(region.Area(), 0.0);
    EXPECT_EQ(region.GetElevation(), 0.0);
    EXPECT_TRUE(region.Offset(1.0));
    EXPECT_EQ(std::unique_ptr<QnGePolygon2d>(region.MLinearize(0.0)), nullptr);
    region.Normalize();
    region.SetElevation(3.0);
    region.TransformBy(QnGeMatrix());
}

TEST(QnGeRegion2d, RegionsWithCurvesAnswerBooleansWithNothing) {
    const QnGeGeneralRegion2d disc = GeneralRegion("circle 0,0 r2");
    const QnGeGeneralRegion2d other = GeneralRegion("circle 1,0 r2");
    QnGeObjList list;
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(disc.Union(other)), nullptr);
    EXPECT_FALSE(disc.Inter(other, list));
    disc.SubtractBy(other, list);
    disc.SubtractBy(Polygon("0,0 1,0 1,1"), list);
    disc.CutBy(*ParseGeoAs<QnGeCurve2d>("line 0,0 1,0"), list, list);
    QnGeRegion2d().CutBy(*ParseGeoAs<QnGeCurve2d>("circle 0,0 r1"), list, list);
    EXPECT_EQ(list.GetLength(), 0);
}

// ---- boundaries ------------------------------------------------------------------------------------

TEST(QnGeRegion2d, CountsAndHandsOutItsBoundaries) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    EXPECT_TRUE(holed.IsOutlineExist());
    EXPECT_EQ(&static_cast<const QnGeRegion2d&>(holed).Outline(), holed.GetBoundary(0));
    EXPECT_EQ(holed.GetHoleNum(), 1);
    EXPECT_TRUE(holed.IsHoleExist());
    EXPECT_EQ(&holed.QnGeRegion2d::Hole(0), holed.GetBoundary(1));
    EXPECT_TRUE(holed.IsClosed());
    EXPECT_FALSE(holed.IsEntirePlane());

    const QnGePolygon2d plain = Polygon("0,0 1,0 1,1");
    EXPECT_EQ(plain.GetHoleNum(), 0);
    EXPECT_FALSE(plain.IsHoleExist());

    EXPECT_FALSE(BoundaryRegion("seg 0,0 1,0").IsClosed());
    EXPECT_FALSE(BoundaryRegion("null; circle 0,0 r1").IsEntirePlane());
    EXPECT_TRUE(BoundaryRegion("null; circle 0,0 r1").IsHoleExist());
    EXPECT_TRUE(BoundaryRegion("").IsEntirePlane());
}

TEST(QnGeRegion2d, TheFlagSaysWhetherBoundariesMayMeet) {
    QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    EXPECT_TRUE(holed.IsAllowBoundaryInter());
    EXPECT_TRUE(holed.IsMayBoundaryInter());
    holed.SetAllowBoundaryInter(false);
    EXPECT_TRUE(holed.HasBit(OBJ_NO_BOUNDARY_INTER));
    EXPECT_FALSE(holed.IsAllowBoundaryInter());
    EXPECT_FALSE(holed.IsMayBoundaryInter());
    holed.SetAllowBoundaryInter(true);
    EXPECT_TRUE(holed.IsMayBoundaryInter());

    // One boundary meets no other; without a closed outline the flag does not help.
    EXPECT_FALSE(Polygon("0,0 1,0 1,1").IsMayBoundaryInter());
    BoundaryRegion open("null; circle 0,0 r1");
    open.SetAllowBoundaryInter(false);
    EXPECT_TRUE(open.IsMayBoundaryInter());
}

TEST(QnGeRegion2d, BoundariesThatMeetAreFound) {
    EXPECT_FALSE(BoundaryRegion("circle 0,0 r5").IsBoundaryInter());
    EXPECT_FALSE(BoundaryRegion("circle 0,0 r5; circle 0,0 r1; circle 3,0 r1").IsBoundaryInter());
    EXPECT_TRUE(BoundaryRegion("circle 0,0 r5; circle 0,0 r1; circle 1,0 r1").IsBoundaryInter());
    EXPECT_TRUE(BoundaryRegion("circle 0,0 r5; circle 4.5,0 r1").IsBoundaryInter());
    EXPECT_TRUE(BoundaryRegion("circle 0,0 r5; circle 4,0 r1").IsBoundaryInter());
    EXPECT_FALSE(BoundaryRegion("null; circle 4,0 r1").IsBoundaryInter());
    EXPECT_TRUE(BoundaryRegion("null; circle 4,0 r1; null; circle 5,0 r1").IsBoundaryInter());
    EXPECT_TRUE(GeneralPolygon("0,0 4,0 4,4 0,4 | 2,0 1,1 3,1").IsBoundaryInter());
    EXPECT_FALSE(GeneralPolygon(HOLED).IsBoundaryInter());
}

// ---- where a point lies ----------------------------------------------------------------------------

TEST(QnGeRegion2dHitTest, TellsTheFivePlaces) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    const QnGePoint outside[] = {{-1.0, 5.0}, {11.0, 4.0}, {5.0, -1.0}};
    const QnGePoint outline[] = {{0.0, 0.0}, {5.0, 0.0}, {10.0, 4.0}};
    const QnGePoint inHole[] = {{5.0, 5.0}, {4.1, 5.9}};
    const QnGePoint holeEdge[] = {{4.0, 4.0}, {5.0, 6.0}, {6.0, 5.0}};
    const QnGePoint inside[] = {{1.0, 1.0}, {3.9, 4.0}, {6.1, 5.0}, {2.0, 6.0}};
    for (const QnGePoint& p : outside) {
        EXPECT_EQ(Bits(holed.HitTest(p)), 0U) << PointToText(p);
    }
    for (const QnGePoint& p : outline) {
        EXPECT_EQ(Bits(holed.HitTest(p)), 9U) << PointToText(p);
    }
    for (const QnGePoint& p : inHole) {
        EXPECT_EQ(Bits(holed.HitTest(p)), 16U) << PointToText(p);
    }
    for (const QnGePoint& p : holeEdge) {
        EXPECT_EQ(Bits(holed.HitTest(p)), 25U) << PointToText(p);
    }
    for (const QnGePoint& p : inside) {
        EXPECT_EQ(Bits(holed.HitTest(p)), 1U) << PointToText(p);
    }
}

TEST(QnGeRegion2dHitTest, TheOutlineIsAskedBeforeTheHoles) {
    // The hole reaches out of the region and touches its outline.
    const QnGeGeneralPolygon2d region = GeneralPolygon("0,0 4,0 4,4 0,4 | 2,-2 2,2 6,2 6,-2");
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(5.0, 1.0))), 0U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(4.0, 1.0))), 9U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(3.0, 1.0))), 16U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(2.0, 1.0))), 25U);
}

TEST(QnGeRegion2dHitTest, HolesAreAskedInOrder) {
    const BoundaryRegion region("circle 0,0 r9; circle -4,0 r2; circle 4,0 r2");
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(-4.0, 1.0))), 16U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(4.0, 1.0))), 16U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(-2.0, 0.0))), 25U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(6.0, 0.0))), 25U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(0.0, 0.0))), 1U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(9.0, 0.0))), 9U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(9.5, 0.0))), 0U);
}

TEST(QnGeRegion2dHitTest, WithoutOutlineOnlyHolesAreAsked) {
    const BoundaryRegion region("null; circle 0,0 r2");
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(0.0, 0.0))), 16U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(2.0, 0.0))), 25U);
    EXPECT_EQ(Bits(region.HitTest(QnGePoint(1e6, 0.0))), 1U);
    EXPECT_EQ(Bits(QnGeGeneralRegion2d().HitTest(QnGePoint(1e6, -1e9))), 1U);
}

TEST(QnGeRegion2dHitTest, AnInfiniteOutlineHasItsRegionAtTheLeft) {
    const BoundaryRegion half("line 0,0 1,0");
    EXPECT_EQ(Bits(half.HitTest(QnGePoint(5.0, 1.0))), 1U);
    EXPECT_EQ(Bits(half.HitTest(QnGePoint(5.0, 0.0))), 9U);
    EXPECT_EQ(Bits(half.HitTest(QnGePoint(5.0, -1.0))), 0U);
}

TEST(QnGeRegion2dHitTest, KeptOddAnOpenOutlineShutsNothingOut) {
    const BoundaryRegion open("mline 0,0 4,0 4,4");
    EXPECT_EQ(Bits(open.HitTest(QnGePoint(99.0, 99.0))), 1U);
    EXPECT_EQ(Bits(open.HitTest(QnGePoint(2.0, 0.0))), 9U);
}

TEST(QnGeRegion2dHitTest, APolygonWithoutVerticesHasNoPoints) {
    EXPECT_EQ(Bits(QnGePolygon2d().HitTest(QnGePoint())), 0U);
}

// ---- measures --------------------------------------------------------------------------------------

TEST(QnGeRegion2d, AreaIsTheOutlinesLessTheHoles) {
    EXPECT_DOUBLE_EQ(GeneralPolygon(HOLED).Area(), 96.0);
    EXPECT_DOUBLE_EQ(GeneralPolygon("0,0 9,0 9,9 0,9 | 1,1 1,2 2,2 2,1 | 5,5 5,7 7,7 7,5").Area(), 76.0);
    EXPECT_NEAR(GeneralRegion("circle 0,0 r5 | mline 0,0 0,2 2,2 2,0 close").Area(), 25.0 * QN_PI - 4.0, 1e-9);
    EXPECT_EQ(BoundaryRegion("mline 0,0 4,0 4,4; circle 0,0 r1").Area(), 0.0);
    EXPECT_EQ(BoundaryRegion("null; circle 0,0 r1").Area(), 0.0);
}

TEST(QnGeRegion2d, ExtentIsTheOutlines) {
    QnGeExtent2d extent;
    ASSERT_TRUE(GeneralPolygon("1,2 10,0 9,8 | 4,4 4,60 6,6").GetExtent2d(extent));
    EXPECT_EQ(extent.x.min, 1.0);
    EXPECT_EQ(extent.x.max, 10.0);
    EXPECT_EQ(extent.y.min, 0.0);
    EXPECT_EQ(extent.y.max, 8.0);
    EXPECT_FALSE(BoundaryRegion("null; circle 0,0 r1").GetExtent2d(extent));
}

TEST(QnGeRegion2d, ElevationIsThatOfTheFirstBoundaryThatExists) {
    EXPECT_EQ(Polygon("0,0,3 4,0,5 4,4,6").GetElevation(), 3.0);
    EXPECT_EQ(BoundaryRegion("null; mline 0,0,7 1,0,8 1,1,9 close").GetElevation(), 7.0);
    EXPECT_EQ(BoundaryRegion("null; null").GetElevation(), 0.0);
    BoundaryRegion region("mline 0,0,7 1,0,8 1,1,9 close; null; mline 0,0 1,0 1,1 close");
    region.SetElevation(2.0);
    ExpectGeo(region.GetBoundary(0), "mline 0,0,2 1,0,2 1,1,2 close");
    ExpectGeo(region.GetBoundary(2), "mline 0,0,2 1,0,2 1,1,2 close");
}

TEST(QnGeRegion2d, ClosestPointOfAMemberIsItself) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    for (const QnGePoint& p :
         {QnGePoint(1.0, 2.0, 3.0), QnGePoint(0.0, 5.0), QnGePoint(4.0, 5.0), QnGePoint(10.0, 10.0)}) {
        QnGePoint found;
        ASSERT_TRUE(ClosestPoint(holed, p, found)) << PointToText(p);
        ExpectPoint(found, PointToText(p), 0.0);
    }
}

TEST(QnGeRegion2d, KeptOddPointsOutsideHaveNoClosestPoint) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    for (const QnGePoint& p :
         {QnGePoint(-1.0, 2.0), QnGePoint(-0.00001, 5.0), QnGePoint(5.0, 5.0), QnGePoint(50.0, 50.0)}) {
        QnGePoint found;
        EXPECT_FALSE(ClosestPoint(holed, p, found)) << PointToText(p);
        QnGePoint single(7.0, 7.0);
        EXPECT_FALSE(holed.GetClosestPoint2d(p, single));
        ExpectPoint(single, "7,7", 0.0);
    }
}

TEST(QnGeRegion2d, ClosestPointIsAppendedBehindWhatTheListHolds) {
    QnGePointList list;
    list.Append(QnGePoint(7.0, 7.0));
    EXPECT_TRUE(GeneralPolygon(HOLED).GetClosestPoint2d(QnGePoint(1.0, 1.0), list));
    ASSERT_EQ(list.GetLength(), 2);
    ExpectPoint(list.GetAt(0), "7,7");
    ExpectPoint(list.GetAt(1), "1,1");
}

TEST(QnGeRegion2d, KeptOddDistanceOfAPointOutsideIsMeasuredToTheOrigin) {
    const QnGePolygon2d square = Polygon("10,10 20,10 20,20 10,20");
    ExpectPoint(square.GetSamplePoint(), "0,0", 0.0);
    EXPECT_DOUBLE_EQ(square.GetDistance(QnGePoint(3.0, 4.0)), 5.0);
    EXPECT_EQ(square.GetDistance(QnGePoint(15.0, 15.0)), 0.0);
}

// ---- changes ---------------------------------------------------------------------------------------

TEST(QnGeRegion2d, NormalizeTurnsTheOutlineLeftAndHolesRight) {
    QnGeGeneralPolygon2d region = GeneralPolygon("0,0 0,9 9,9 9,0 | 1,1 2,1 2,2 1,2 | 5,5 5,6 6,6 6,5");
    region.Normalize();
    ExpectGeo(region, "region 0,0 9,0 9,9 0,9 | 1,1 1,2 2,2 2,1 | 5,5 5,6 6,6 6,5", 0.0);
    const auto before = Record(region);
    region.Normalize();
    EXPECT_EQ(Record(region), before);
}

TEST(QnGeRegion2d, NormalizeLeavesOpenAndMissingBoundariesAlone) {
    BoundaryRegion region("mline 0,0 0,9 9,9; null; mline 1,1 2,1 2,2 close; mline 1,1 2,1 2,2");
    region.Normalize();
    ExpectGeo(region.GetBoundary(0), "mline 0,0 0,9 9,9");
    ExpectGeo(region.GetBoundary(2), "mline 1,1 2,2 2,1 close");
    ExpectGeo(region.GetBoundary(3), "mline 1,1 2,1 2,2");
    BoundaryRegion plane("null; circle 0,0 r1");
    plane.Normalize();
    ExpectGeo(plane.GetBoundary(1), "circle 0,0 r1 cw");
}

TEST(QnGeRegion2d, OffsetMovesEachBoundaryToItsRight) {
    BoundaryRegion ring("circle 0,0 r5; circle 0,0 r2 cw; null");
    EXPECT_TRUE(ring.Offset(0.5));
    ExpectGeo(ring.GetBoundary(0), "circle 0,0 r5.5");
    ExpectGeo(ring.GetBoundary(1), "circle 0,0 r1.5 cw");
}

TEST(QnGeRegion2d, OffsetStopsAtTheFirstBoundaryThatCannotBeMoved) {
    BoundaryRegion region("circle 0,0 r5; circle 0,0 r2 cw; circle 0,0 r3");
    EXPECT_FALSE(region.Offset(2.5));
    ExpectGeo(region.GetBoundary(0), "circle 0,0 r7.5");
    ExpectGeo(region.GetBoundary(1), "circle 0,0 r2 cw");
    ExpectGeo(region.GetBoundary(2), "circle 0,0 r3");
}

TEST(QnGeRegion2d, OffsetMovesAPolygonsOutlineOutward) {
    QnGePolygon2d polygon = Polygon("0,0 1,0 1,1");
    EXPECT_TRUE(polygon.Offset(0.1));
    ExpectGeo(polygon, "region -0.24142135623731,-0.1 1.1,-0.1 1.1,1.24142135623731");
}

TEST(QnGeRegion2d, TransformMovesEveryBoundaryAndAMirrorReversesThem) {
    QnGeGeneralPolygon2d region = GeneralPolygon("0,0 9,0 9,9 0,9 | 1,1 1,2 2,2 2,1");
    region.Move(10.0, -1.0);
    ExpectGeo(region, "region 10,-1 19,-1 19,8 10,8 | 11,0 11,1 12,1 12,0");
    region.Scale(-1.0, 1.0);
    ExpectGeo(region, "region -10,-1 -19,-1 -19,8 -10,8 | -11,0 -11,1 -12,1 -12,0");
    EXPECT_FALSE(region.IsValid());
    BoundaryRegion gaps("null; circle 0,0 r1");
    gaps.Move(1.0, 1.0);
    ExpectGeo(gaps.GetBoundary(1), "circle 1,1 r1");
}

// ---- derived regions -------------------------------------------------------------------------------

TEST(QnGeRegion2d, LinearisationIsAPolygonOfTheLinearisedBoundaries) {
    const QnGeGeneralRegion2d disc = GeneralRegion("circle 0,0 r5 cw");
    const std::unique_ptr<QnGePolygon2d> polygon(disc.MLinearize(0.1));
    ASSERT_NE(polygon, nullptr);
    EXPECT_EQ(polygon->GetClassID(), CLASS_ID_POLYGON2D);
    EXPECT_TRUE(polygon->IsClosed());
    EXPECT_TRUE(polygon->Outline().IsClockwise());  // as it was
    EXPECT_NEAR(polygon->Area(), 25.0 * QN_PI, 0.3);

    const std::unique_ptr<QnGePolygon2d> ring(GeneralRegion("circle 0,0 r5 | circle 0,0 r2 cw").MLinearize(0.1));
    ASSERT_NE(ring, nullptr);
    EXPECT_EQ(ring->GetClassID(), CLASS_ID_GENERAL_POLYGON2D);
    EXPECT_EQ(ring->GetHoleNum(), 1);
    EXPECT_NEAR(ring->Area(), 21.0 * QN_PI, 0.3);

    const std::unique_ptr<QnGePolygon2d> same(GeneralPolygon(HOLED).MLinearize(0.0));
    ExpectGeo(same.get(), std::string("region ") + HOLED, 0.0);
}

TEST(QnGeRegion2d, LinearisationNeedsAClosedOutline) {
    EXPECT_EQ(std::unique_ptr<QnGePolygon2d>(BoundaryRegion("mline 0,0 4,0 4,4").MLinearize(0.1)), nullptr);
    EXPECT_EQ(std::unique_ptr<QnGePolygon2d>(BoundaryRegion("line 0,0 4,0").MLinearize(0.1)), nullptr);
    EXPECT_EQ(std::unique_ptr<QnGePolygon2d>(QnGeGeneralRegion2d().MLinearize(0.1)), nullptr);
}

TEST(QnGeRegion2d, LinearisationLeavesOutHolesWithoutALinearForm) {
    const std::unique_ptr<QnGePolygon2d> linear(BoundaryRegion("circle 0,0 r5; null; line 9,0 1,0").MLinearize(0.1));
    ASSERT_NE(linear, nullptr);
    EXPECT_EQ(linear->GetHoleNum(), 0);
}

TEST(QnGeRegion2d, ExplodesIntoItsLinearForm) {
    QnGeObjList parts;
    EXPECT_TRUE(GeneralRegion("circle 0,0 r5 | circle 0,0 r2 cw").Explode(parts));
    ASSERT_EQ(parts.GetLength(), 1);
    EXPECT_EQ(parts.GetPData(0)->GetClassID(), CLASS_ID_GENERAL_POLYGON2D);
    EXPECT_FALSE(QnGeGeneralRegion2d().Explode(parts));
    EXPECT_EQ(parts.GetLength(), 1);
}
