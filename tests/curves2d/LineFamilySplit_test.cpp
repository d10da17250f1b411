// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "CurveTesting.h"
#include "support/ExpectGeo.h"
#include "values/QnGePointArray.h"

using namespace curve_testing;

namespace {

void ExpectSplit(const char* curve, std::initializer_list<double> pas, const char* expected) {
    SCOPED_TRACE(curve);
    QnGeObjList pieces;
    ParseGeoAs<QnGeCurve2d>(curve)->Split(Pas(pas), pieces);
    ExpectGeoList(pieces, expected, 1e-14);
}

}  // namespace

TEST(LineFamilySplit, NoParametersNoPieces) {
    for (const char* curve : {"line 0,0 2,0", "ray 0,0 2,0", "ray reversed 0,0 2,0", "seg 0,0 2,0"}) {
        ExpectSplit(curve, {}, "");
    }
}

TEST(LineFamilySplit, LineGivesTwoRaysAwayFromTheCut) {
    ExpectSplit("line 0,0 2,1", {2.0}, "ray 4,2 -2,-1; ray 4,2 2,1");
    ExpectSplit("line 0,0 2,1", {2.0, 2.0}, "ray 4,2 -2,-1; ray 4,2 2,1");
    ExpectSplit("line 0,0 2,1", {0.0}, "ray 0,0 -2,-1; ray 0,0 2,1");
}

TEST(LineFamilySplit, LineGivesSegmentsBetweenTheCuts) {
    ExpectSplit("line 0,0 2,0", {-1.0, 0.0, 2.0}, "ray -2,0 -2,0; seg -2,0 0,0; seg 0,0 4,0; ray 4,0 2,0");
    ExpectSplit("line 0,0 2,0", {1.0, 1.0000000005, 2.0}, "ray 2,0 -2,0; seg 2,0 4,0; ray 4,0 2,0");
}

TEST(LineFamilySplit, ForwardRay) {
    ExpectSplit("ray 1,0 2,0", {2.0}, "seg 1,0 5,0; ray 5,0 2,0");
    ExpectSplit("ray 1,0 2,0", {1.0, 2.0}, "seg 1,0 3,0; seg 3,0 5,0; ray 5,0 2,0");
    ExpectSplit("ray 1,0 2,0", {1.0, 1.0, 2.0, 2.0}, "seg 1,0 3,0; seg 3,0 5,0; ray 5,0 2,0");
    ExpectSplit("ray 1,0 2,0", {0.0}, "ray 1,0 2,0");
    ExpectSplit("ray 1,0 2,0", {0.0, 1.0}, "seg 1,0 3,0; ray 3,0 2,0");
    ExpectSplit("ray 1,0 2,0", {-5.0}, "ray 1,0 2,0");
}

TEST(LineFamilySplit, ReversedRay) {
    ExpectSplit("ray reversed 1,0 2,0", {0.0}, "ray reversed 3,0 2,0; seg 3,0 1,0");
    ExpectSplit("ray reversed 1,0 2,0", {-1.0, 0.0}, "ray reversed 5,0 2,0; seg 5,0 3,0; seg 3,0 1,0");
    ExpectSplit("ray reversed 1,0 2,0", {-1.0, -1.0, 0.0}, "ray reversed 5,0 2,0; seg 5,0 3,0; seg 3,0 1,0");
    ExpectSplit("ray reversed 1,0 2,0", {1.0}, "ray reversed 1,0 2,0");
    ExpectSplit("ray reversed 1,0 2,0", {0.0, 1.0}, "ray reversed 3,0 2,0; seg 3,0 1,0");
}

TEST(LineFamilySplit, Segment) {
    ExpectSplit("seg 0,0 4,0", {0.25}, "seg 0,0 1,0; seg 1,0 4,0");
    ExpectSplit("seg 0,0 4,0", {0.25, 0.75}, "seg 0,0 1,0; seg 1,0 3,0; seg 3,0 4,0");
    ExpectSplit("seg 0,0 4,0", {0.25, 0.25, 0.75}, "seg 0,0 1,0; seg 1,0 3,0; seg 3,0 4,0");
    ExpectSplit("seg 0,0 4,0", {0.0, 1.0}, "seg 0,0 4,0");
    ExpectSplit("seg 0,0 4,0", {0.0}, "seg 0,0 4,0");
    ExpectSplit("seg 0,0 4,0", {1.0}, "seg 0,0 4,0");
    ExpectSplit("seg 0,0,0 4,0,4", {0.25}, "seg 0,0,0 1,0,1; seg 1,0,1 4,0,4");
}

TEST(LineFamilySplit, CutsWithinTheParameterToleranceOfAnEndAreNoCuts) {
    ExpectSplit("seg 0,0 1,0", {5e-10, 0.5}, "seg 0,0 0.5,0; seg 0.5,0 1,0");
    ExpectSplit("seg 0,0 1,0", {2e-9, 0.5}, "seg 0,0 2e-9,0; seg 2e-9,0 0.5,0; seg 0.5,0 1,0");
    ExpectSplit("seg 0,0 1,0", {0.5, 0.9999999995}, "seg 0,0 0.5,0; seg 0.5,0 0.9999999995,0");
    ExpectSplit("seg 0,0 1,0", {0.5, 0.999999998}, "seg 0,0 0.5,0; seg 0.5,0 0.999999998,0; seg 0.999999998,0 1,0");
    ExpectSplit("ray 0,0 1,0", {5e-10}, "ray 0,0 1,0");
    ExpectSplit("ray reversed 0,0 1,0", {0.9999999995}, "ray reversed 5e-10,0 1,0");
}

TEST(LineFamilySplit, KeptOddParametersBehindTheBaseMakeSegmentsOffTheRay) {
    ExpectSplit("ray 1,0 2,0", {-2.0, -1.0}, "seg 1,0 -1,0; ray -1,0 2,0");
    ExpectSplit("ray reversed 1,0 2,0", {2.0, 3.0}, "ray reversed -1,0 2,0; seg -1,0 -3,0");
}

TEST(LineFamilySplit, KeptOddAParameterPastTheEndOfASegmentMakesAPiecePastIt) {
    ExpectSplit("seg 0,0 4,0", {0.5, 1.5}, "seg 0,0 2,0; seg 2,0 6,0");
    ExpectSplit("seg 0,0 4,0", {1.5}, "seg 0,0 6,0");
    ExpectSplit("seg 0,0 4,0", {-0.5}, "seg 0,0 4,0");
}

TEST(LineFamilySplit, RaysOfALineRunForwardInThePlan) {
    QnGeObjList pieces;
    ParseGeoAs<QnGeCurve2d>("line 0,0,1 2,0,3")->Split(Pas({1.0}), pieces);
    ASSERT_EQ(pieces.GetLength(), 2);
    const auto* const away = dynamic_cast<const QnGeLine2d*>(pieces.GetPData(0));
    ASSERT_NE(away, nullptr);
    EXPECT_EQ(away->dx, -2.0);
    EXPECT_EQ(away->basePoint.z, 4.0);
    ExpectGeo(pieces.GetPData(1), "ray 2,0,4 2,0,3");
}

TEST(LineFamilySplit, AtPointsOfAReversedRay) {
    QnGePointArray points;
    points.Append(QnGePoint(3.0, 0.0));
    points.Append(QnGePoint(5.0, 0.0));
    QnGeObjList pieces;
    ParseGeoAs<QnGeCurve2d>("ray reversed 1,0 2,0")->Split(points, pieces);
    ExpectGeoList(pieces, "ray reversed 5,0 2,0; seg 5,0 3,0; seg 3,0 1,0");
}
