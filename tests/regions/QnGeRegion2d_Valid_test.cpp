// SPDX-License-Identifier: Apache-2.0
// What makes a region valid, condition by condition.

#include <gtest/gtest.h>

#include "BoundaryRegion.h"
#include "RegionTesting.h"

using namespace region_testing;

namespace {

bool IsValid(const std::string& boundaries) {
    return BoundaryRegion(boundaries).IsValid();
}

const char* const SQUARE = "mline 0,0 9,0 9,9 0,9 close";

std::string InSquare(const std::string& holes) {
    return std::string(SQUARE) + "; " + holes;
}

}  // namespace

TEST(QnGeRegion2dIsValid, NeedsABoundary) {
    EXPECT_FALSE(IsValid(""));
    EXPECT_TRUE(IsValid("null"));
    EXPECT_TRUE(QnGeGeneralRegion2d().IsValid());
}

TEST(QnGeRegion2dIsValid, TheOutlineMustBeACorrectCurve) {
    EXPECT_TRUE(IsValid(SQUARE));
    EXPECT_TRUE(IsValid("circle 0,0 r2"));
    EXPECT_TRUE(IsValid("pline 0,0@pi 4,0@pi close"));
    EXPECT_FALSE(IsValid("mline 0,0 close")) << "invalid";
    EXPECT_FALSE(IsValid("circle 0,0 r0")) << "invalid";
    EXPECT_FALSE(IsValid("mline 0,0 4,0 4,0 0,4 close")) << "a vertex twice";
    EXPECT_FALSE(IsValid("mline 0,0 4,4 4,0 0,4 close")) << "crosses itself";
    EXPECT_FALSE(IsValid("mline 0,0 9,0 9,9 0,9")) << "open";
    EXPECT_FALSE(IsValid("seg 0,0 9,0")) << "open";
    EXPECT_FALSE(IsValid("circle 0,0 r2 cw")) << "clockwise";
    EXPECT_FALSE(IsValid("mline 0,0 0,9 9,9 9,0 close")) << "clockwise";
}

TEST(QnGeRegion2dIsValid, AnInfiniteOutlineNeedsNoDirection) {
    EXPECT_TRUE(IsValid("line 0,0 1,0"));
    EXPECT_FALSE(IsValid("line 0,0 0,0"));
    EXPECT_FALSE(IsValid("ray 0,0 1,0"));
}

TEST(QnGeRegion2dIsValid, HolesMustBeCorrectCurves) {
    EXPECT_TRUE(IsValid(InSquare("mline 1,1 1,2 2,2 2,1 close")));
    EXPECT_FALSE(IsValid(InSquare("null"))) << "missing";
    EXPECT_FALSE(IsValid(InSquare("mline 1,1 1,1 2,2 2,1 close"))) << "invalid";
    EXPECT_FALSE(IsValid(InSquare("mline 1,1 2,2 1,2 2,1 close"))) << "crosses itself";
    EXPECT_FALSE(IsValid(InSquare("mline 1,1 1,2 2,2 2,1"))) << "open";
    EXPECT_FALSE(IsValid(InSquare("mline 1,1 2,1 2,2 1,2 close"))) << "counter-clockwise";
    EXPECT_FALSE(IsValid("circle 0,0 r5; circle 0,0 r2")) << "counter-clockwise";
    EXPECT_TRUE(IsValid("circle 0,0 r5; circle 0,0 r2 cw"));
    EXPECT_TRUE(IsValid("null; circle 0,0 r2 cw"));
}

TEST(QnGeRegion2dIsValid, StraightHolesMustLieInsideAndApart) {
    EXPECT_FALSE(IsValid(InSquare("mline 20,1 20,2 21,2 21,1 close"))) << "outside";
    EXPECT_FALSE(IsValid(InSquare("mline 8,1 8,2 10,2 10,1 close"))) << "sticks out";
    EXPECT_FALSE(IsValid(InSquare("mline 1,1 1,4 4,4 4,1 close; mline 3,3 3,5 5,5 5,3 close"))) << "overlap";
    EXPECT_TRUE(IsValid(InSquare("mline 1,1 1,2 2,2 2,1 close; mline 3,3 3,5 5,5 5,3 close")));
}

TEST(QnGeRegion2dIsValid, ARegionWithAHoleKeepsItsBoundariesAsTheyAre) {
    const BoundaryRegion region(InSquare("mline 1,1 1,2 2,2 2,1 close"));
    EXPECT_TRUE(region.IsValid());
    ExpectGeo(region.GetBoundary(1), "mline 1,1 1,2 2,2 2,1 close", 0.0);
}

TEST(QnGeRegion2dIsValid, WithTheFlagBoundariesMustNotMeet) {
    const char* const touching = "mline 0,4 1,6 1,2 close";
    BoundaryRegion region(InSquare(touching));
    EXPECT_TRUE(region.IsValid());
    region.SetAllowBoundaryInter(false);
    EXPECT_FALSE(region.IsValid());
    BoundaryRegion apart(InSquare("mline 1,1 1,2 2,2 2,1 close"));
    apart.SetAllowBoundaryInter(false);
    EXPECT_TRUE(apart.IsValid());
}

// ---- polygons --------------------------------------------------------------------------------------

TEST(QnGePolygon2dIsValid, NeedsACorrectOutline) {
    EXPECT_TRUE(Polygon("0,0 9,0 9,9 0,9").IsValid());
    EXPECT_FALSE(Polygon("0,0 0,9 9,9 9,0").IsValid()) << "clockwise";
    EXPECT_FALSE(Polygon("0,0 9,0 9,0.0000001 0,9").IsValid()) << "a vertex twice";
    EXPECT_FALSE(Polygon("0,0 4,4 4,0 0,5").IsValid()) << "crosses itself";
    EXPECT_FALSE(QnGePolygon2d(*ParseGeoAs<QnGeMLine2d>("mline 0,0 9,0 9,9"), false).IsValid()) << "open";
    EXPECT_FALSE(QnGePolygon2d().IsValid());
    EXPECT_FALSE(QnGePolygon2d(3).IsValid()) << "all at the origin";
}

TEST(QnGePolygon2dIsValid, AClockwisePolygonHasAnAreaAllTheSame) {
    const QnGePolygon2d clockwise(*ParseGeoAs<QnGeMLine2d>("mline 0,0 0,2 2,2 2,0 close"), false);
    EXPECT_FALSE(clockwise.IsValid());
    EXPECT_DOUBLE_EQ(clockwise.Area(), 4.0);
}

TEST(QnGeGeneralPolygon2dIsValid, NeedsCorrectHolesInside) {
    const auto isValid = [](const std::string& holes) {
        return GeneralPolygon("0,0 9,0 9,9 0,9 | " + holes).IsValid();
    };
    EXPECT_TRUE(isValid("1,1 1,2 2,2 2,1"));
    EXPECT_TRUE(isValid("1,1 1,2 2,2 2,1 | 5,5 5,6 6,6 6,5"));
    EXPECT_FALSE(isValid("1,1 2,1 2,2 1,2")) << "counter-clockwise";
    EXPECT_FALSE(isValid("1,1 1,1 2,2 2,1")) << "a vertex twice";
    EXPECT_FALSE(isValid("1,1 2,2 1,2 2,1")) << "crosses itself";
    EXPECT_FALSE(isValid("20,1 20,2 21,2 21,1")) << "outside";
    EXPECT_FALSE(isValid("8,1 8,2 10,2 10,1")) << "sticks out";
    EXPECT_FALSE(isValid("1,1 1,4 4,4 4,1 | 2,2 2,3 3,3 3,2")) << "a hole in a hole";
    EXPECT_FALSE(isValid("1,1 1,4 4,4 4,1 | 3,3 3,5 5,5 5,3")) << "holes that overlap";
    EXPECT_FALSE(GeneralPolygon("0,0 0,9 9,9 9,0 | 1,1 1,2 2,2 2,1").IsValid()) << "a clockwise outline";
}

TEST(QnGeGeneralPolygon2dIsValid, WithTheFlagBoundariesMustNotMeet) {
    QnGeGeneralPolygon2d touching = GeneralPolygon("0,0 9,0 9,9 0,9 | 0,4 1,6 1,2");
    EXPECT_TRUE(touching.IsValid());
    touching.SetAllowBoundaryInter(false);
    EXPECT_FALSE(touching.IsValid());
    QnGeGeneralPolygon2d apart = GeneralPolygon("0,0 9,0 9,9 0,9 | 1,1 1,2 2,2 2,1");
    apart.SetAllowBoundaryInter(false);
    EXPECT_TRUE(apart.IsValid());
}

TEST(QnGeGeneralPolygon2dIsValid, WithoutHolesIsThatOfThePolygon) {
    EXPECT_TRUE(QnGeGeneralPolygon2d(Polygon("0,0 9,0 9,9")).IsValid());
    EXPECT_FALSE(QnGeGeneralPolygon2d(Polygon("0,0 9,9 9,0")).IsValid());
}
