// SPDX-License-Identifier: Apache-2.0
// Curves that IsValid refuses and nothing else does: what their numbers give.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "CurveTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "support/ExpectGeo.h"
#include "values/QnGePointList.h"

using namespace curve_testing;

namespace {

std::uint32_t HitBits(const char* curve, double x, double y) {
    return Bits(ParseGeoAs<QnGeCurve2d>(curve)->HitTest(QnGePoint(x, y)));
}

void ExpectNearest(const char* curve, const QnGePoint& from, const char* expected) {
    QnGePointList nearest;
    EXPECT_TRUE(ParseGeoAs<QnGeCurve2d>(curve)->GetClosestPoint2d(from, nearest));
    ASSERT_EQ(nearest.GetLength(), 1);
    ExpectPoint(nearest.GetAt(0), expected);
}

}  // namespace

TEST(DegenerateCurves, KeptOddASegmentWithoutLengthIsHitAllAlongItsHeight) {
    // The parameter is 0/0 at the height of the point, and no comparison holds for that; elsewhere it is infinite.
    EXPECT_EQ(HitBits("seg 2,3 2,3", 9.0, 3.0), HIT_ON);
    EXPECT_EQ(HitBits("seg 2,3 2,3", -9.0, 3.0), HIT_ON);
    EXPECT_EQ(HitBits("seg 2,3 2,3", 2.0, 4.0), 0U);
    EXPECT_EQ(HitBits("seg 2,3 2,3", 2.0, 2.0), 0U);
    EXPECT_EQ(HitBits("seg 2,3 2,3", 2.0, 3.0000009), HIT_ON);
}

TEST(DegenerateCurves, ParametersOfANullVectorAreNotFinite) {
    double value = 0.0;
    for (const char* text : {"line 2,3 0,0", "ray 2,3 0,0", "ray reversed 2,3 0,0", "seg 2,3 2,3"}) {
        const auto curve = ParseGeoAs<QnGeCurve2d>(text);
        EXPECT_FALSE(curve->IsValid());
        EXPECT_TRUE(curve->GetPaFromPt(QnGePoint(5.0, 7.0), value));
        EXPECT_TRUE(std::isinf(value)) << text;
        EXPECT_TRUE(curve->GetPaFromPt(QnGePoint(5.0, 3.0), value));
        EXPECT_TRUE(std::isnan(value)) << text;
        EXPECT_TRUE(curve->GetPaFromDist(5.0, value));
        EXPECT_TRUE(std::isinf(value)) << text;
    }
}

TEST(DegenerateCurves, ASegmentThatOnlyClimbsIsAPointInThePlan) {
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 1,2,3 1,2,9");
    EXPECT_FALSE(seg->IsValid());
    EXPECT_EQ(seg->Length(), 0.0);
    const std::unique_ptr<QnGeObject> point(seg->Symplify());
    ExpectGeo(point.get(), "point 1,2,3");
}

TEST(DegenerateCurves, AnArcWithoutSweepIsHitAtItsOnePoint) {
    const char* const arc = "arc 0,0 r2 from 0 sweep 0";
    EXPECT_EQ(HitBits(arc, 2.0, 0.0), HIT_ON);
    EXPECT_EQ(HitBits(arc, 2.0, 9e-7), HIT_ON);
    EXPECT_EQ(HitBits(arc, 2.0, 2e-6), 0U);
    EXPECT_EQ(HitBits(arc, -2.0, 0.0), 0U);
    EXPECT_EQ(HitBits(arc, 0.0, 0.0), HIT_IN);
    EXPECT_EQ(HitBits(arc, 3.0, 0.0), HIT_OUT);
    ExpectNearest(arc, QnGePoint(-5.0, 1.0), "2,0");
    const std::unique_ptr<QnGeMLine2d> line(ParseGeoAs<QnGeArc2d>(arc)->MLinearize(0.0));
    ExpectGeo(line.get(), "mline 2,0 2,0");
}

TEST(DegenerateCurves, KeptOddAnArcWithoutSweepSharesNoPointWithALineThroughIt) {
    ExpectNoIntersect("arc 0,0 r2 from 0 sweep 0", "line -9,0 1,0");
    ExpectNoIntersect("arc 0,0 r2 from 0 sweep 0", "seg 2,-1 2,1");
}

TEST(DegenerateCurves, KeptOddNearestOnAnArcFromStraightAboveItsCentreIsTheEnd) {
    // The circle answers with its centre in the plan, which is not on the arc; both ends are as far from it.
    ExpectNearest("arc 1,2 r3 from 0 sweep pi/2", QnGePoint(1.0, 2.0, 9.0), "1,5");
    ExpectNearest("arc 1,2 r3 from 0 sweep 2pi", QnGePoint(1.0, 2.0, 9.0), "4,2");
}

TEST(DegenerateCurves, AnArcFromThreePointsOfALineHasTheMiddleOfTheFirstTwo) {
    const QnGeArc2d arc(QnGePoint(0.0, 0.0), QnGePoint(2.0, 0.0), QnGePoint(5.0, 0.0));
    ExpectGeo(arc.GetCircle(), "circle 1,0 r1");
    EXPECT_NEAR(arc.GetStartAngle(), QN_PI, 1e-12);
    EXPECT_NEAR(arc.GetCentralAngle(), QN_PI, 1e-9);
}

TEST(DegenerateCurves, ACircleWithoutRadiusIsHitAtItsCentreAndHasNoParameterThere) {
    EXPECT_EQ(HitBits("circle 1,2 r0", 1.0, 2.0), HIT_ON);
    EXPECT_EQ(HitBits("circle 1,2 r0", 1.0, 2.1), HIT_OUT);
    double pa = UNTOUCHED;
    EXPECT_FALSE(ParseGeoAs<QnGeCircle2d>("circle 1,2 r0")->GetPaFromPt(QnGePoint(1.0, 2.0), pa));
    EXPECT_EQ(pa, UNTOUCHED);
}
