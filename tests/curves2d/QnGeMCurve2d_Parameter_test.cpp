// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "ChainTesting.h"
#include "curves2d/QnGeLineRay2d.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGeBaseLine2d.h"

using namespace chain_testing;

namespace {

constexpr const char* THREE_SEGS = "chain seg 0,0 10,0 | seg 10,0 11,0 | seg 11,0 11,4";

struct Place {
    long index;
    double local;
};

Place PlaceOf(const char* chain, double pa) {
    const long index = ChainOf(chain).GetSegIndexFromPa(pa);
    return {index, pa};
}

void ExpectPlace(const char* chain, double pa, long index, double local) {
    const Place place = PlaceOf(chain, pa);
    EXPECT_EQ(place.index, index) << chain << " at " << pa;
    EXPECT_NEAR(place.local, local, 1e-12) << chain << " at " << pa;
}

void ExpectPtFromPa(const char* chain, double pa, const char* expected) {
    QnGePoint pt(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_TRUE(ChainOf(chain).GetPtFromPa(pa, pt)) << chain << " at " << pa;
    ExpectPoint(pt, expected);
}

void ExpectPaFromPt(const char* chain, const char* point, double expected) {
    double pa = UNTOUCHED;
    EXPECT_TRUE(ChainOf(chain).GetPaFromPt(ParsePoint(point), pa)) << chain << " at " << point;
    EXPECT_NEAR(pa, expected, 1e-12) << chain << " at " << point;
}

void ExpectDistance(const char* chain, double pa, double dist) {
    double value = UNTOUCHED;
    EXPECT_TRUE(ChainOf(chain).GetDistFromPa(pa, value)) << chain << " at " << pa;
    EXPECT_NEAR(value, dist, 1e-12) << chain << " at " << pa;
}

void ExpectPaFromDist(const char* chain, double dist, double pa) {
    double value = UNTOUCHED;
    EXPECT_TRUE(ChainOf(chain).GetPaFromDist(dist, value)) << chain << " at " << dist;
    EXPECT_NEAR(value, pa, 1e-12) << chain << " at " << dist;
}

void ExpectTangent(const char* chain, double pa, const char* base, const char* direction) {
    QnGeBaseLine2d tangent;
    ChainOf(chain).GetTangent(pa, tangent);
    ExpectPoint(tangent.basePoint, base);
    ExpectPoint(QnGePoint(tangent.dx, tangent.dy), direction);
}

void ExpectLine(const QnGeMLine2d* line, const char* expected) {
    const std::unique_ptr<const QnGeMLine2d> owned(line);
    ExpectGeo(line, expected);
}

/// Two segments with a ray between them, which has no linearisation.
QnGeMCurve2d WithRayBetween() {
    return ChainOf("chain seg 0,0 4,0 | ray 4,0 1,0 | seg 9,0 9,4");
}

}  // namespace

// ---- index and local value ---------------------------------------------------------------------------

TEST(QnGeMCurve2d_Parameter, EveryChildHasTheSameShare) {
    ExpectPlace(TWO_SEGS, 0.0, 0, 0.0);
    ExpectPlace(TWO_SEGS, 0.25, 0, 0.5);
    ExpectPlace(TWO_SEGS, 0.5, 1, 0.0);
    ExpectPlace(TWO_SEGS, 0.75, 1, 0.5);
    ExpectPlace(THREE_SEGS, 0.5, 1, 0.5);
    ExpectPlace("chain circle 0,0 r2", 5.0, 0, 5.0);
}

TEST(QnGeMCurve2d_Parameter, BeyondTheEndsTheOuterChildrenGoOn) {
    ExpectPlace(TWO_SEGS, 1.0, 1, 1.0);
    ExpectPlace(TWO_SEGS, 2.0, 1, 3.0);
    ExpectPlace(TWO_SEGS, -0.25, 0, -0.5);
    ExpectPlace(TWO_SEGS, -2.0, 0, -4.0);
    ExpectPlace(THREE_SEGS, 1e18, 2, 3e18);
    EXPECT_EQ(PlaceOf(TWO_SEGS, 1e300).index, 1);
    EXPECT_EQ(PlaceOf(TWO_SEGS, -1e300).index, 0);
    EXPECT_EQ(PlaceOf(TWO_SEGS, std::numeric_limits<double>::infinity()).index, 1);
    EXPECT_EQ(PlaceOf(TWO_SEGS, std::numeric_limits<double>::quiet_NaN()).index, 0);
}

// ---- points ------------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Parameter, PointsAreTheChildrens) {
    ExpectPtFromPa(TWO_SEGS, 0.25, "5,0");
    ExpectPtFromPa(TWO_SEGS, 0.5, "10,0");
    ExpectPtFromPa(TWO_SEGS, 0.75, "10.5,0");
    ExpectPtFromPa(TWO_SEGS, 1.5, "12,0");
    ExpectPtFromPa(TWO_SEGS, -0.5, "-10,0");
    ExpectPtFromPa(LINE_ARC_LINE, 0.5, "6,2");
    ExpectPtFromPa("chain circle 0,0 r2", EXACT_PI, "-2,0");
}

TEST(QnGeMCurve2d_Parameter, AtZeroAndOneTheEnds) {
    ExpectPtFromPa(TWO_SEGS, 0.0, "0,0");
    ExpectPtFromPa(TWO_SEGS, 1.0, "11,0");
    QnGePoint pt;
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetPtFromPa(5e-10, pt));
    EXPECT_EQ(pt.x, 0.0);
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetPtFromPa(1.0 + 5e-10, pt));
    EXPECT_EQ(pt.x, 11.0);
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetPtFromPa(5e-9, pt));
    EXPECT_GT(pt.x, 0.0);
    ExpectPtFromPa("chain arc 0,0 r2 from 0 sweep pi | seg -2,0 -5,0", 1.0, "-5,0");
}

TEST(QnGeMCurve2d_Parameter, RaysReachOutToInfinity) {
    ExpectPtFromPa(WITH_RAYS, 0.0, "-1,0");
    ExpectPtFromPa(WITH_RAYS, 1.0, "5,0");
    ExpectPtFromPa(WITH_RAYS, -1.0, "-4,0");
    ExpectPtFromPa(WITH_RAYS, 4.0 / 3.0, "6,0");
    ExpectPtFromPa(WITH_RAYS, 0.5, "2,0");
    ExpectPaFromPt(WITH_RAYS, "-4,0", -1.0);
    ExpectPaFromPt(WITH_RAYS, "6,0", 4.0 / 3.0);
}

TEST(QnGeMCurve2d_Parameter, APointIsThereWhateverTheChildAnswers) {
    ExpectPtFromPa("chain seg 0,0 4,0 | pline 4,0 4,4 8,4", 0.5, "4,0");
    ExpectPtFromPa("chain pline 4,0 4,4 8,4", 0.0, "4,0");
    ExpectPtFromPa("chain pline 4,0 4,4 8,4", 1.0, "8,4");
}

TEST(QnGeMCurve2d_Parameter, AJointIsTheEndOfTheEarlierChild) {
    ExpectPaFromPt(TWO_SEGS, "10,0", 0.5);
    ExpectPaFromPt(THREE_SEGS, "11,0", 2.0 / 3.0);
    ExpectPaFromPt(THREE_SEGS, "10.5,0", 0.5);
    ExpectPaFromPt(THREE_SEGS, "11,4", 1.0);
    ExpectPaFromPt(THREE_SEGS, "0,0", 0.0);
    ExpectPaFromPt(LINE_ARC_LINE, "6,2", 0.5);
    ExpectPaFromPt("chain seg 0,0 4,0 | seg 4,0 0,0", "1,0", 0.125);
    ExpectPaFromPt("chain circle 0,0 r2", "0,2", 0.5 * EXACT_PI);
}

TEST(QnGeMCurve2d_Parameter, OffTheChainThereIsNone) {
    for (const char* point : {"5,1", "-0.1,0", "11.1,0"}) {
        double pa = UNTOUCHED;
        EXPECT_FALSE(ChainOf(TWO_SEGS).GetPaFromPt(ParsePoint(point), pa)) << point;
        EXPECT_EQ(pa, -1.0);
    }
}

// ---- distances ---------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Parameter, DistancesCountTheEarlierChildrenWhole) {
    ExpectDistance(TWO_SEGS, 0.25, 5.0);
    ExpectDistance(TWO_SEGS, 0.5, 10.0);
    ExpectDistance(TWO_SEGS, 0.75, 10.5);
    ExpectDistance(TWO_SEGS, 1.0, 11.0);
    ExpectDistance(TWO_SEGS, 1.5, 12.0);
    ExpectDistance(TWO_SEGS, -0.25, -5.0);
    ExpectDistance(LINE_ARC_LINE, 0.5, 4.0 + EXACT_PI);
    double dist = UNTOUCHED;
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetDistFromPa(5e-10, dist));
    EXPECT_EQ(dist, 0.0);
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetDistFromPa(1.0 + 5e-10, dist));
    EXPECT_EQ(dist, 11.0);
}

TEST(QnGeMCurve2d_Parameter, OfADistanceAtAJointTheEarlierChildAnswers) {
    ExpectPaFromDist(TWO_SEGS, 0.0, 0.0);
    ExpectPaFromDist(TWO_SEGS, 5.0, 0.25);
    ExpectPaFromDist(TWO_SEGS, 10.0, 0.5);
    ExpectPaFromDist(TWO_SEGS, 10.5, 0.75);
    ExpectPaFromDist(TWO_SEGS, 11.0, 1.0);
    ExpectPaFromDist(THREE_SEGS, 11.0, 2.0 / 3.0);
    ExpectPaFromDist(LINE_ARC_LINE, 4.0 + EXACT_PI, 0.5);
}

TEST(QnGeMCurve2d_Parameter, DistancesEndWithTheChainUnderTheTolerance) {
    double pa = UNTOUCHED;
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetPaFromDist(-5e-7, pa));
    EXPECT_NEAR(pa, -2.5e-8, 1e-15);
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetPaFromDist(11.0 + 5e-7, pa));
    EXPECT_GT(pa, 1.0);
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetPaFromDist(10.0 + 5e-7, pa));
    EXPECT_NEAR(pa, 0.5 + 2.5e-8, 1e-15) << "still the first child";
    for (const double dist : {-2e-6, 11.0 + 2e-6, 50.0}) {
        pa = UNTOUCHED;
        EXPECT_FALSE(ChainOf(TWO_SEGS).GetPaFromDist(dist, pa)) << dist;
        EXPECT_EQ(pa, -1.0);
    }
}

TEST(QnGeMCurve2d_Parameter, PointsAndDistances) {
    QnGePoint pt;
    double dist = UNTOUCHED;
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetPtFromDist(10.25, pt));
    ExpectPoint(pt, "10.25,0");
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetDistFromPt(QnGePoint(10.25, 0), dist));
    EXPECT_NEAR(dist, 10.25, 1e-12);
    EXPECT_FALSE(ChainOf(TWO_SEGS).GetDistFromPt(QnGePoint(10.25, 1), dist));
}

// ---- tangent, integral -------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Parameter, TangentIsTheChilds) {
    ExpectTangent(THREE_SEGS, 0.1, "0,0", "1,0");
    ExpectTangent(THREE_SEGS, 0.9, "11,0", "0,1");
    ExpectTangent(LINE_ARC_LINE, 0.5, "6,2", "0,1");
    ExpectTangent("chain seg 0,0 4,0 | seg 4,0 4,4", 0.5, "4,0", "0,1");
    ExpectTangent("chain seg 0,0 4,0 | seg 4,0 4,4", 1.0, "4,0", "0,1");
}

TEST(QnGeMCurve2d_Parameter, IntegralOverOneChildOrSeveral) {
    const QnGeMCurve2d steps = ChainOf("chain seg 0,1 10,1 | seg 10,2 11,2 | seg 11,3 13,3");
    EXPECT_NEAR(steps.Integration(0.0, 1.0 / 6.0), 5.0, 1e-12);
    EXPECT_NEAR(steps.Integration(0.1, 0.2), 3.0, 1e-12);
    EXPECT_NEAR(steps.Integration(1.0 / 6.0, 0.5), 5.0 + 1.0, 1e-12);
    EXPECT_NEAR(steps.Integration(1.0 / 6.0, 5.0 / 6.0), 5.0 + 2.0 + 3.0, 1e-12);
    EXPECT_NEAR(steps.Integration(0.0, 1.0), 10.0 + 2.0 + 6.0, 1e-12);
}

TEST(QnGeMCurve2d_Parameter, IntegralBackwardsIsNegatedAndOverNothingZero) {
    const QnGeMCurve2d steps = ChainOf("chain seg 0,1 10,1 | seg 10,2 11,2 | seg 11,3 13,3");
    EXPECT_EQ(steps.Integration(5.0 / 6.0, 1.0 / 6.0), -steps.Integration(1.0 / 6.0, 5.0 / 6.0));
    EXPECT_EQ(steps.Integration(0.2, 0.1), -steps.Integration(0.1, 0.2));
    EXPECT_EQ(steps.Integration(0.3, 0.3), 0.0);
    EXPECT_EQ(steps.Integration(0.3, 0.3 + 5e-10), 0.0);
    EXPECT_NEAR(ChainOf(STADIUM).Integration(0.0, 1.0), -(16.0 + 4.0 * EXACT_PI), 1e-9);
    EXPECT_NEAR(ChainOf(STADIUM).TotalIntegration(), -(16.0 + 4.0 * EXACT_PI), 1e-9);
}

// ---- as lines ----------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Linearize, ChordsOfEachChild) {
    ExpectLine(ChainOf(TWO_SEGS).MLinearize(0.0), "mline 0,0 10,0 11,0");
    ExpectLine(ChainOf(LINE_ARC_LINE).MLinearize(0.5), "mline 0,0 4,0 6,2 4,4 0,4");
    ExpectLine(ChainOf(STADIUM).MLinearize(0.5), "mline 0,0 4,0 6,2 4,4 0,4 -2,2 close");
    ExpectLine(ChainOf(SQUARE).MLinearize(9.0), "mline 0,0 4,0 4,4 0,4 close");
    ExpectLine(ChainOf("chain mline 0,0 4,0 4,4 | seg 4,4 0,4").MLinearize(0.0), "mline 0,0 4,0 4,4 0,4");
    ExpectLine(ChainOf("chain mline 0,0 4,0 4,4 close").MLinearize(0.0), "mline 0,0 4,0 4,4 close");
    ExpectLine(ChainOf("chain circle 0,0 r2").MLinearize(0.5 * EXACT_PI), "mline 2,0 0,2 -2,0 0,-2 close");
}

TEST(QnGeMCurve2d_Linearize, OnlyWhatHasALength) {
    EXPECT_EQ(ChainOf(WITH_RAYS).MLinearize(0.0), nullptr);
    EXPECT_EQ(ChainOf(WITH_RAYS).PLinearize(0.0), nullptr);
    EXPECT_EQ(ChainOf("chain seg 0,0 4,0 | ray 4,0 1,0").MLinearize(0.0), nullptr);
    EXPECT_EQ(ChainOf("chain line 0,0 1,0").PLinearize(0.0), nullptr);
}

TEST(QnGeMCurve2d_Linearize, AChildWithoutChordsIsLeftOut) {
    ExpectLine(WithRayBetween().MLinearize(0.0), "mline 0,0 9,0 9,4");
    ExpectLine(WithRayBetween().MLinearizeByDist(3.0, false), "mline 0,0 3,0 9,0 9,3 9,4");
    ExpectLine(ChainOf("chain circle 0,0 r2").MLinearize(7.0), "mline close");
}

TEST(QnGeMCurve2d_Linearize, ExactAsAPolylineWhereAChildIsOne) {
    ExpectLine(ChainOf(TWO_SEGS).PLinearize(0.0), "mline 0,0 10,0 11,0");
    ExpectLine(ChainOf(SQUARE).PLinearize(0.0), "mline 0,0 4,0 4,4 0,4 close");
    ExpectLine(ChainOf(LINE_ARC_LINE).PLinearize(0.0), "pline 0,0 4,0@pi 4,4 0,4");
    ExpectLine(ChainOf(STADIUM).PLinearize(0.0), "pline 0,0 4,0@pi 4,4 0,4@pi close");
    ExpectLine(ChainOf("chain seg 0,4 4,4 | arc 4,2 r2 from 3pi/2 sweep pi cw").PLinearize(0.0),
               "pline 0,4 4,4@-pi 4,0");
    ExpectLine(ChainOf("chain seg 0,0 1,0 | pline 1,0@1 2,0 3,0 | mline 3,0 3,3 4,4").PLinearize(0.0),
               "pline 0,0 1,0@1 2,0 3,0 3,3 4,4");
    ExpectLine(ChainOf("chain pline 0,0 1,0").PLinearize(0.0), "pline 0,0 1,0");
    ExpectLine(ChainOf("chain circle 0,0 r2").PLinearize(0.0), "pline 2,0@pi -2,0@pi close");
}

TEST(QnGeMCurve2d_Linearize, ExactNeedsEveryChild) {
    EXPECT_EQ(WithRayBetween().PLinearize(0.0), nullptr);
}

TEST(QnGeMCurve2d_Linearize, ByDistanceEachChildFromItsOwnStart) {
    ExpectLine(ChainOf(TWO_SEGS).MLinearizeByDist(4.0, false), "mline 0,0 4,0 8,0 10,0 11,0");
    ExpectLine(ChainOf(SQUARE).MLinearizeByDist(3.0, false), "mline 0,0 3,0 4,0 4,3 4,4 1,4 0,4 0,1 close");
    ExpectLine(ChainOf(SQUARE).MLinearizeByDist(3.0, true), "mline 0,0 3,0 4,0 4,4 1,4 0,4 close");
    ExpectLine(ChainOf(LINE_ARC_LINE).MLinearizeByDist(EXACT_PI, false),
               "mline 0,0 3.141592653589793,0 4,0 6,2 4,4 0.858407346410207,4 0,4");
}

TEST(QnGeMCurve2d_Linearize, KeptOddTheOnlyChildLosesItsLastVertexByDistanceIfClosed) {
    ExpectLine(ChainOf("chain mline 0,0 4,0 4,4 0,4 close").MLinearizeByDist(9.0, false), "mline 0,0 4,0 4,4 close");
}
