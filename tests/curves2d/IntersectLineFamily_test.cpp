// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "CurveTesting.h"
#include "support/ExpectGeo.h"

using namespace curve_testing;

namespace {

/// The same answer whichever of the two is asked.
void ExpectBothWays(const char* a, const char* b, const char* expected) {
    ExpectIntersect(a, b, expected);
    ExpectIntersect(b, a, expected);
}

}  // namespace

TEST(IntersectLineFamily, LineWithLine) {
    ExpectBothWays("line 0,0 1,0", "line 3,3 0,5", "point 3,0");
    ExpectBothWays("line 0,0 1,0", "line 0,1 -3,0", "");
    ExpectIntersect("line 0,0 1,0", "line 5,0 -2,0", "line 0,0 1,0");
    ExpectIntersect("line 5,0 -2,0", "line 0,0 1,0", "line 5,0 -2,0");
}

TEST(IntersectLineFamily, NearlyParallelLines) {
    ExpectNoIntersect("line 0,0 1,0", "line 0,2e-6 1,0");
    ExpectIntersect("line 0,0 1,0", "line 0,0.9e-6 1,0", "line 0,0 1,0");
    ExpectIntersect("line 0,0 1,0", "line 0,0 1,2e-9", "point 0,0");
    ExpectIntersect("line 0,0 1,0", "line 0,0 1,5e-10", "line 0,0 1,0");
}

TEST(IntersectLineFamily, PointsCarryTheHeightOfTheHandlingObject) {
    ExpectIntersect("line 0,0,1 1,0,0", "line 3,3,7 0,1,0", "point 3,0,1");
    ExpectIntersect("line 3,3,7 0,1,0", "line 0,0,1 1,0,0", "point 3,0,7");
    ExpectBothWays("seg 0,0,1 4,0,5", "line 3,3,7 0,1,0", "point 3,0,4");
    ExpectBothWays("seg 3,-1,7 3,1,7", "ray 0,0,1 1,0,0", "point 3,0,7");
}

TEST(IntersectLineFamily, RayWithLine) {
    ExpectBothWays("ray 0,0 1,0", "line 3,-1 0,1", "point 3,0");
    ExpectBothWays("ray 0,0 1,0", "line -3,-1 0,1", "");
    ExpectBothWays("ray 0,0 1,0", "line 0,-1 0,1", "point 0,0");
    ExpectBothWays("ray 0,0 1,0", "line 0,1 1,0", "");
    ExpectBothWays("ray 2,0 3,0", "line 0,0 -1,0", "ray 2,0 3,0");
    ExpectBothWays("ray reversed 0,0 1,0", "line 3,-1 0,1", "point 3,0");
    ExpectBothWays("ray reversed 0,0 1,0", "line -3,-1 0,1", "");
    ExpectBothWays("ray reversed 2,0 3,0", "line 0,0 -1,0", "ray 2,0 3,0");
}

TEST(IntersectLineFamily, RayWithRayCrossing) {
    ExpectBothWays("ray 0,0 1,0", "ray 3,-1 0,1", "point 3,0");
    ExpectBothWays("ray 0,0 1,0", "ray 3,1 0,1", "");
    ExpectBothWays("ray 0,0 1,0", "ray -3,-1 0,1", "");
    ExpectBothWays("ray 0,0 1,0", "ray 0,0 0,1", "point 0,0");
    ExpectBothWays("ray 0,0 1,0", "ray 0,1 1,0", "");
    ExpectBothWays("ray reversed 0,0 1,0", "ray reversed 3,-1 0,1", "point 3,0");
}

TEST(IntersectLineFamily, RaysOfOneDirectionShareTheOneThatStartsLater) {
    ExpectBothWays("ray 0,0 1,0", "ray 2,0 3,0", "ray 2,0 3,0");
    ExpectIntersect("ray 0,0 1,0", "ray 0,0 3,0", "ray 0,0 1,0");
    ExpectIntersect("ray 0,0 3,0", "ray 0,0 1,0", "ray 0,0 3,0");
    ExpectIntersect("ray reversed 2,0 3,0", "ray 0,0 1,0", "ray 2,0 3,0");
}

TEST(IntersectLineFamily, KeptOddTheOtherRayIsCopiedWithItsFlag) {
    ExpectIntersect("ray 0,0 1,0", "ray reversed 2,0 3,0", "ray reversed 2,0 3,0");
    ExpectIntersect("ray reversed 0,0 1,0", "ray reversed 2,0 3,0", "ray reversed 2,0 3,0");
}

TEST(IntersectLineFamily, RaysOfOppositeDirections) {
    ExpectBothWays("ray 0,0 1,0", "ray -1,0 -1,0", "");
    ExpectBothWays("ray 0,0 1,0", "ray 0,0 -1,0", "point 0,0");
    ExpectIntersect("ray 0,0 1,0", "ray 3,0 -2,0", "seg 0,0 3,0");
    ExpectIntersect("ray 3,0 -2,0", "ray 0,0 1,0", "seg 3,0 0,0");
    ExpectIntersect("ray reversed 0,0 1,0", "ray reversed 3,0 -2,0", "seg 0,0 3,0");
}

TEST(IntersectLineFamily, RaysAtTheParameterTolerance) {
    ExpectIntersect("ray 0,0 1,0", "ray -5e-10,0 -1,0", "point 0,0");
    ExpectIntersect("ray 0,0 1,0", "ray -2e-9,0 -1,0", "");
    ExpectIntersect("ray 0,0 1,0", "ray 5e-10,0 1,0", "ray 0,0 1,0", 0.0);
    ExpectIntersect("ray 0,0 1,0", "ray 2e-9,0 1,0", "ray 2e-9,0 1,0", 0.0);
    ExpectIntersect("ray 0,0 1,0", "line -5e-10,0 0,1", "point -5e-10,0");
    ExpectIntersect("ray 0,0 1,0", "line -2e-9,0 0,1", "");
}

TEST(IntersectLineFamily, SegmentWithLine) {
    ExpectBothWays("seg 0,0 4,0", "line 3,-1 0,1", "point 3,0");
    ExpectBothWays("seg 0,0 4,0", "line 5,-1 0,1", "");
    ExpectBothWays("seg 0,0 4,0", "line -1,-1 0,1", "");
    ExpectBothWays("seg 0,0 4,0", "line 0,-1 0,1", "point 0,0");
    ExpectBothWays("seg 0,0 4,0", "line 4,-1 0,1", "point 4,0");
    ExpectBothWays("seg 0,0 4,0", "line 0,1 1,0", "");
    ExpectBothWays("seg 4,0 0,0", "line 9,0 1,0", "seg 4,0 0,0");
}

TEST(IntersectLineFamily, SegmentWithRayCrossing) {
    ExpectBothWays("seg 0,0 4,0", "ray 3,-1 0,1", "point 3,0");
    ExpectBothWays("seg 0,0 4,0", "ray 3,1 0,1", "");
    ExpectBothWays("seg 0,0 4,0", "ray 5,-1 0,1", "");
    ExpectBothWays("seg 0,0 4,0", "ray -1,-1 0,1", "");
    ExpectBothWays("seg 0,0 4,0", "ray 4,0 0,1", "point 4,0");
    ExpectBothWays("seg 0,0 4,0", "ray 0,1 1,0", "");
    ExpectBothWays("seg 0,0 4,0", "ray reversed 3,-1 0,1", "point 3,0");
    ExpectBothWays("seg 0,0 4,0", "ray reversed 3,1 0,1", "");
}

TEST(IntersectLineFamily, CrossingsAtTheParameterToleranceOfTheOtherObject) {
    ExpectBothWays("ray 0,0 1,0", "ray 3,5e-10 0,1", "point 3,0");
    ExpectBothWays("ray 0,0 1,0", "ray 3,2e-9 0,1", "");
    ExpectBothWays("seg 0,0 4,0", "ray 3,5e-10 0,1", "point 3,0");
    ExpectBothWays("seg 0,0 4,0", "ray 3,2e-9 0,1", "");
    ExpectBothWays("seg 0,0 1,0", "ray -5e-10,-1 0,1", "point 0,0");
    ExpectBothWays("seg 0,0 1,0", "ray -2e-9,-1 0,1", "");
    ExpectBothWays("seg 0,0 1,0", "ray 1.0000000005,-1 0,1", "point 1,0");
    ExpectBothWays("seg 0,0 1,0", "ray 1.000000002,-1 0,1", "");
    ExpectBothWays("seg 0,0 1,0", "line -5e-10,-1 0,1", "point 0,0");
    ExpectBothWays("seg 0,0 1,0", "line -2e-9,-1 0,1", "");
    ExpectBothWays("seg 0,0 1,0", "line 1.0000000005,-1 0,1", "point 1,0");
    ExpectBothWays("seg 0,0 1,0", "line 1.000000002,-1 0,1", "");
}

TEST(IntersectLineFamily, SegmentWithRayOnOneLine) {
    ExpectBothWays("seg 0,0 4,0", "ray -1,0 1,0", "seg 0,0 4,0");
    ExpectBothWays("seg 0,0 4,0", "ray 0,0 1,0", "seg 0,0 4,0");
    ExpectBothWays("seg 0,0 4,0", "ray 1,0 2,0", "seg 1,0 4,0");
    ExpectBothWays("seg 0,0 4,0", "ray 4,0 1,0", "point 4,0");
    ExpectBothWays("seg 0,0 4,0", "ray 5,0 1,0", "");
}

TEST(IntersectLineFamily, AWholeSegmentComesBackRunningWithTheRay) {
    ExpectBothWays("seg 4,0 0,0", "ray -1,0 1,0", "seg 0,0 4,0");
    ExpectBothWays("seg 0,0 4,0", "ray 9,0 -1,0", "seg 4,0 0,0");
    ExpectBothWays("seg 0,0 4,0", "ray 0,0 -1,0", "point 0,0");
    ExpectBothWays("seg 0,0 4,0", "ray -1,0 -1,0", "");
    ExpectBothWays("seg 4,0 0,0", "ray 4,0 1,0", "point 4,0");
}

TEST(IntersectLineFamily, KeptOddAgainstARayThePieceEndsAtTheSegmentsOwnEnd) {
    ExpectBothWays("seg 4,0 0,0", "ray 1,0 1,0", "seg 1,0 0,0");
    ExpectBothWays("seg 0,0 4,0", "ray 1,0 -1,0", "seg 1,0 4,0");
}

TEST(IntersectLineFamily, KeptOddAReversedRayAsArgumentIsMirrored) {
    // The start (0,0) has the ray's own parameter 1 - (-2) = 3, so the whole segment counts as on the ray.
    ExpectIntersect("seg 0,0 4,0", "ray reversed 2,0 1,0", "seg 0,0 4,0");
    // The start (4,0) has 1 - 2 = -1, so the ray counts as beginning inside.
    ExpectIntersect("seg 4,0 6,0", "ray reversed 2,0 1,0", "seg 2,0 6,0");
    ExpectIntersect("seg 3,0 6,0", "ray reversed 2,0 1,0", "seg 3,0 6,0");
}

TEST(IntersectLineFamily, AReversedRayAsReceiverIsItsPointSet) {
    ExpectIntersect("ray reversed 2,0 1,0", "seg 0,0 4,0", "seg 2,0 4,0");
    ExpectIntersect("ray reversed 2,0 1,0", "seg 4,0 6,0", "seg 4,0 6,0");
    ExpectIntersect("ray reversed 2,0 1,0", "seg -4,0 1,0", "");
}

TEST(IntersectLineFamily, SegmentWithRayOnOneLineAtTheTolerance) {
    ExpectBothWays("seg 0,0 1,0", "ray 5e-10,0 1,0", "seg 0,0 1,0");
    ExpectIntersect("seg 0,0 1,0", "ray 2e-9,0 1,0", "seg 2e-9,0 1,0", 0.0);
    ExpectBothWays("seg 0,0 1,0", "ray 0.9999999995,0 1,0", "point 0.9999999995,0");
    ExpectBothWays("seg 0,0 1,0", "ray 1.0000000005,0 1,0", "point 1.0000000005,0");
    ExpectBothWays("seg 0,0 1,0", "ray 1.000000002,0 1,0", "");
}

TEST(IntersectLineFamily, SegmentWithSegmentCrossing) {
    ExpectBothWays("seg 0,0 4,0", "seg 3,-1 3,1", "point 3,0");
    ExpectBothWays("seg 0,0 4,4", "seg 0,4 4,0", "point 2,2");
    ExpectBothWays("seg 0,0 4,0", "seg 3,1 3,2", "");
    ExpectBothWays("seg 0,0 4,0", "seg 3,-2 3,-1", "");
    ExpectBothWays("seg 0,0 4,0", "seg 5,-1 5,1", "");
    ExpectBothWays("seg 0,0 4,0", "seg -1,-1 -1,1", "");
    ExpectBothWays("seg 0,0 4,0", "seg 0,1 4,1", "");
}

TEST(IntersectLineFamily, SegmentsMeetingAtAnEnd) {
    ExpectBothWays("seg 0,0 4,0", "seg 3,0 3,1", "point 3,0");
    ExpectBothWays("seg 0,0 4,0", "seg 4,0 5,5", "point 4,0");
    ExpectBothWays("seg 0,0 4,0", "seg 0,0 0,5", "point 0,0");
    ExpectBothWays("seg 0,0 1,0", "seg 0.5,1e-10 0.5,1", "point 0.5,0");
    ExpectBothWays("seg 0,0 1,0", "seg 0.5,1e-8 0.5,1", "");
    ExpectBothWays("seg 0,0 1,0", "seg 0.5,-1 0.5,-1e-10", "point 0.5,0");
    ExpectBothWays("seg 0,0 1,0", "seg 0.5,-1 0.5,-1e-8", "");
    ExpectBothWays("seg 0,0 1,0", "seg 1.0000000001,-1 1.0000000001,1", "point 1,0");
    ExpectBothWays("seg 0,0 1,0", "seg 1.00000001,-1 1.00000001,1", "");
    ExpectBothWays("seg 0,0 1,0", "seg -1e-10,-1 -1e-10,1", "point 0,0");
    ExpectBothWays("seg 0,0 1,0", "seg -1e-8,-1 -1e-8,1", "");
}

TEST(IntersectLineFamily, SegmentsTouchingEndToEndOnOneLineShareAPoint) {
    ExpectBothWays("seg 0,0 4,0", "seg 4,0 9,0", "point 4,0");
    ExpectBothWays("seg 0,0 4,0", "seg 9,0 4,0", "point 4,0");
    ExpectBothWays("seg 0,0 4,0", "seg -3,0 0,0", "point 0,0");
    ExpectBothWays("seg 0,0 4,0", "seg 0,0 -3,0", "point 0,0");
    ExpectIntersect("seg 0,0 1,0", "seg 1.0000000005,0 2,0", "point 1,0");
    ExpectIntersect("seg 0,0 1,0", "seg 0.9999999995,0 2,0", "point 1,0");
    ExpectIntersect("seg 0,0 1,0", "seg -1,0 5e-10,0", "point 0,0");
    ExpectNoIntersect("seg 0,0 1,0", "seg 1.00000001,0 2,0");
    ExpectNoIntersect("seg 0,0 1,0", "seg -1,0 -1e-8,0");
    ExpectIntersect("seg 0,0 1,0", "seg 0.99999999,0 2,0", "seg 0.99999999,0 1,0", 1e-15);
}

TEST(IntersectLineFamily, OverlapsRunInThisSegmentsDirection) {
    ExpectBothWays("seg 0,0 4,0", "seg 3,0 9,0", "seg 3,0 4,0");
    ExpectIntersect("seg 0,0 4,0", "seg 9,0 3,0", "seg 3,0 4,0");
    ExpectIntersect("seg 9,0 3,0", "seg 0,0 4,0", "seg 4,0 3,0");
    ExpectBothWays("seg 0,0 4,0", "seg 1,0 2,0", "seg 1,0 2,0");
    ExpectIntersect("seg 0,0 4,0", "seg 2,0 1,0", "seg 1,0 2,0");
    ExpectBothWays("seg 0,0 4,0", "seg 0,0 4,0", "seg 0,0 4,0");
    ExpectIntersect("seg 0,0 4,0", "seg 4,0 0,0", "seg 0,0 4,0");
    ExpectBothWays("seg 0,0 4,0", "seg -1,0 5,0", "seg 0,0 4,0");
    ExpectBothWays("seg 1,1 5,5", "seg 3,3 9,9", "seg 3,3 5,5");
    ExpectNoIntersect("seg 0,0 4,0", "seg 5,0 9,0");
}

TEST(IntersectLineFamily, OverlapsHaveTheHeightOfThisSegment) {
    ExpectIntersect("seg 0,0,0 4,0,4", "seg 2,0,9 8,0,9", "seg 2,0,2 4,0,4");
    ExpectIntersect("seg 2,0,9 8,0,9", "seg 0,0,0 4,0,4", "seg 2,0,9 4,0,9");
}

TEST(IntersectLineFamily, CopiesKeepTheFlagWord) {
    const auto ray = ParseGeo("ray 2,0 1,0");
    ray->SetBits(0x100);
    QnGeObjList found;
    EXPECT_TRUE(ParseGeo("line 0,0 1,0")->IntersectWith(*ray, found));
    EXPECT_TRUE(ParseGeo("ray 0,0 1,0")->IntersectWith(*ray, found));
    const auto seg = ParseGeo("seg 4,0 0,0");
    seg->SetBits(0x200);
    EXPECT_TRUE(seg->IntersectWith(*ParseGeo("line 0,0 1,0"), found));
    EXPECT_TRUE(seg->IntersectWith(*ParseGeo("ray -2,0 1,0"), found));
    const auto line = ParseGeo("line 0,0 1,0");
    line->SetBits(0x400);
    EXPECT_TRUE(line->IntersectWith(*ParseGeo("line 5,0 1,0"), found));
    ASSERT_EQ(found.GetLength(), 5);
    EXPECT_EQ(found.GetPData(0)->GetBits(), 0x100U);
    EXPECT_EQ(found.GetPData(1)->GetBits(), 0x100U);
    EXPECT_EQ(found.GetPData(2)->GetBits(), 0x200U);
    EXPECT_EQ(found.GetPData(3)->GetBits(), 0x200U);
    EXPECT_EQ(found.GetPData(4)->GetBits(), 0x400U);
}

TEST(IntersectLineFamily, ResultsGoBehindWhatIsThere) {
    QnGeObjList found;
    ParseGeoList("point 9,9", found);
    EXPECT_FALSE(ParseGeo("seg 0,0 4,0")->IntersectWith(*ParseGeo("seg 0,1 4,1"), found));
    EXPECT_TRUE(ParseGeo("seg 0,0 4,0")->IntersectWith(*ParseGeo("line 1,0 0,1"), found));
    EXPECT_TRUE(ParseGeo("seg 0,0 4,0")->IntersectWith(*ParseGeo("line 1,0 0,1"), found));
    ExpectGeoList(found, "point 9,9; point 1,0; point 1,0");
}

TEST(IntersectLineFamily, ParametersCountInTheStoredVectors) {
    // Past the end by 1e-8 in length, but by 1e-12 in parameter: still met.
    ExpectBothWays("seg 0,0 10000,0", "seg 10000.00000001,-1 10000.00000001,1", "point 10000.00000001,0");
    ExpectBothWays("seg 0,0 0.001,0", "seg 0.00100000001,-1 0.00100000001,1", "");
}
