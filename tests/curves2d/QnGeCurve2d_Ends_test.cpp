// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "CurveTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "support/ExpectGeo.h"

using namespace curve_testing;

namespace {

bool IsConnected(const char* curve, const char* next) {
    return ParseGeoAs<QnGeCurve2d>(curve)->IsConnectWith(*ParseGeoAs<QnGeCurve2d>(next));
}

}  // namespace

TEST(QnGeCurve2d_Ends, ConnectedMeansTheEndIsTheStartOfTheNext) {
    EXPECT_TRUE(IsConnected("seg 0,0 4,0", "seg 4,0 4,4"));
    EXPECT_FALSE(IsConnected("seg 4,0 4,4", "seg 0,0 4,0"));
    EXPECT_FALSE(IsConnected("seg 0,0 4,0", "seg 4,4 4,0"));
    EXPECT_TRUE(IsConnected("seg 0,0,1 4,0,2", "seg 4,0,7 4,4,8")) << "in plan";
    EXPECT_TRUE(IsConnected("seg 0,0 4,0", "seg 4.0000009,0 5,5"));
    EXPECT_FALSE(IsConnected("seg 0,0 4,0", "seg 4.0000011,0 5,5"));
    EXPECT_TRUE(IsConnected("arc 0,0 r2 from 0 sweep pi", "seg -2,0 5,5"));
    EXPECT_TRUE(IsConnected("arc 0,0 r2 from 0 sweep 2pi", "arc 4,0 r2 from pi sweep 1"));
}

TEST(QnGeCurve2d_Ends, AnEndThatDoesNotExistConnectsWithNothing) {
    EXPECT_TRUE(IsConnected("ray reversed 4,0 1,0", "ray 4,0 0,1"));
    EXPECT_FALSE(IsConnected("ray 4,0 1,0", "seg 4,0 5,5"));
    EXPECT_FALSE(IsConnected("ray 4,0 1,0", "seg 5,0 5,5")) << "nor with its point at 1";
    EXPECT_FALSE(IsConnected("seg 0,0 4,0", "ray reversed 4,0 1,0"));
    EXPECT_FALSE(IsConnected("line 0,0 4,0", "seg 4,0 5,5"));
    EXPECT_FALSE(IsConnected("seg 0,0 4,0", "line 4,0 0,1"));
    EXPECT_FALSE(IsConnected("seg 0,0 4,0", "circle 2,0 r2")) << "a circle has no start";
}
