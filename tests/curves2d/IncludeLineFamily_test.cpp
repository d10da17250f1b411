// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "CurveTesting.h"
#include "support/ExpectGeo.h"

using namespace curve_testing;

namespace {

bool Includes(const char* curve, const char* other) {
    return ParseGeo(curve)->IsInclude(*ParseGeo(other));
}

const char* const FAMILY[] = {"line 0,0 1,0", "ray 0,0 1,0", "ray reversed 0,0 1,0", "seg 0,0 1,0"};

}  // namespace

TEST(IncludeLineFamily, NoCircleArcOrRegionLiesOnALine) {
    for (const char* curve : FAMILY) {
        EXPECT_FALSE(Includes(curve, "circle 0,0 r1"));
        EXPECT_FALSE(Includes(curve, "circle 0,0 r0"));
        EXPECT_FALSE(Includes(curve, "arc 0,0 r1 from 0 sweep 1"));
        EXPECT_FALSE(Includes(curve, "region 0,0 1,0 1,0"));
    }
}

TEST(IncludeLineFamily, PointsThatAreHit) {
    for (const char* curve : FAMILY) {
        EXPECT_TRUE(Includes(curve, "point 0.5,0")) << curve;
        EXPECT_TRUE(Includes(curve, "point 0.5,0,9")) << curve;
        EXPECT_FALSE(Includes(curve, "point 0.5,0.1")) << curve;
    }
    EXPECT_TRUE(Includes("line 0,0 1,0", "point -5,0"));
    EXPECT_FALSE(Includes("ray 0,0 1,0", "point -5,0"));
    EXPECT_FALSE(Includes("ray reversed 0,0 1,0", "point -5,0"));
    EXPECT_TRUE(Includes("ray reversed 0,0 1,0", "point 5,0"));
    EXPECT_FALSE(Includes("seg 0,0 1,0", "point 5,0"));
}

TEST(IncludeLineFamily, LineIncludesWhatRunsAlongIt) {
    EXPECT_TRUE(Includes("line 0,0 1,0", "line 5,0 -2,0"));
    EXPECT_TRUE(Includes("line 0,0 1,0", "ray 5,0 -2,0"));
    EXPECT_TRUE(Includes("line 0,0 1,0", "ray reversed 5,0 -2,0"));
    EXPECT_TRUE(Includes("line 0,0 1,0", "seg 5,0 3,0"));
    EXPECT_FALSE(Includes("line 0,0 1,0", "line 5,1 -2,0"));
    EXPECT_FALSE(Includes("line 0,0 1,0", "ray 5,0 -2,1"));
    EXPECT_FALSE(Includes("line 0,0 1,0", "seg 5,0 3,1"));
}

TEST(IncludeLineFamily, RayIncludesRaysFurtherAlong) {
    EXPECT_TRUE(Includes("ray 0,0 1,0", "ray 3,0 1,0"));
    EXPECT_TRUE(Includes("ray 0,0 1,0", "ray 0,0 1,0"));
    EXPECT_FALSE(Includes("ray 0,0 1,0", "ray -1,0 1,0"));
    EXPECT_FALSE(Includes("ray 0,0 1,0", "ray 3,0 -1,0"));
    EXPECT_FALSE(Includes("ray 0,0 1,0", "line 0,0 1,0"));
    EXPECT_TRUE(Includes("ray 0,0 1,0", "ray -5e-10,0 1,0"));
    EXPECT_FALSE(Includes("ray 0,0 1,0", "ray -2e-9,0 1,0"));
}

TEST(IncludeLineFamily, AReversedRayAsksAForwardCopy) {
    EXPECT_TRUE(Includes("ray reversed 0,0 1,0", "ray 3,0 1,0"));
    EXPECT_FALSE(Includes("ray reversed 0,0 1,0", "ray -3,0 1,0"));
    EXPECT_TRUE(Includes("ray reversed 0,0 1,0", "seg 3,0 4,0"));
    EXPECT_FALSE(Includes("ray reversed 0,0 1,0", "line 0,0 1,0"));
    EXPECT_TRUE(Includes("ray 0,0 1,0", "ray reversed 3,0 1,0"));
}

TEST(IncludeLineFamily, KeptOddRayLooksForTheSameVectorOnly) {
    EXPECT_FALSE(Includes("ray 0,0 1,0", "ray 3,0 2,0")) << "the vectors differ in length";
    EXPECT_FALSE(Includes("ray 0,0 1,0", "seg 3,0 5,0"));
    EXPECT_TRUE(Includes("ray 0,0 1,0", "seg 3,0 4,0"));
    EXPECT_FALSE(Includes("ray 0,0 1,0", "seg 4,0 3,0")) << "an opposite vector is not the same vector";
    EXPECT_FALSE(Includes("ray 0,0 1,0", "seg -0.5,0 0.5,0"));
    EXPECT_TRUE(Includes("ray 0,0 1,0", "ray 3,7 1,0")) << "beside the line, which is not asked for";
    EXPECT_TRUE(Includes("ray 0,0 1,0", "seg 3,7 4,7"));
}

TEST(IncludeLineFamily, SegmentIncludesSegmentsByTheirEnds) {
    EXPECT_TRUE(Includes("seg 0,0 4,0", "seg 1,0 3,0"));
    EXPECT_TRUE(Includes("seg 0,0 4,0", "seg 3,0 1,0"));
    EXPECT_TRUE(Includes("seg 0,0 4,0", "seg 0,0 4,0"));
    EXPECT_TRUE(Includes("seg 0,0 4,0", "seg 4.0000009,0 0,0.9e-6"));
    EXPECT_FALSE(Includes("seg 0,0 4,0", "seg 1,0 5,0"));
    EXPECT_FALSE(Includes("seg 0,0 4,0", "seg -1,0 3,0"));
    EXPECT_FALSE(Includes("seg 0,0 4,0", "seg 1,0 3,1"));
    EXPECT_FALSE(Includes("seg 0,0 4,0", "line 0,0 4,0"));
    EXPECT_FALSE(Includes("seg 0,0 4,0", "ray 0,0 4,0"));
}

TEST(IncludeLineFamily, CompoundsArePartByPart) {
    EXPECT_TRUE(Includes("seg 0,0 4,0", "mline 0,0 1,0 3,0 4,0"));
    EXPECT_FALSE(Includes("seg 0,0 4,0", "mline 0,0 1,0 3,0 5,0"));
    EXPECT_TRUE(Includes("line 0,0 1,0", "mline 0,0 7,0 -3,0 close"));
    EXPECT_FALSE(Includes("line 0,0 1,0", "mline 0,0 7,0 3,1 close"));
    EXPECT_TRUE(Includes("line 0,0 1,0", "pline 0,0 7,0"));
    EXPECT_FALSE(Includes("line 0,0 1,0", "pline 0,0@1 7,0"));
    EXPECT_FALSE(Includes("line 0,0 1,0", "mline"));
    EXPECT_TRUE(Includes("line 0,0 1,0", "mline 9,9")) << "no part lies off the line";
}
