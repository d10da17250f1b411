// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeArc2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "RoundTesting.h"
#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"

using namespace round_testing;

namespace {

/// A class without a record of its own counts as an arc.
class NamedArc : public QnGeArc2d {
public:
    using QnGeArc2d::QnGeArc2d;
};

/// A clockwise arc from 3 o'clock over 6 and 9 to 12.
const char* const THREE_TO_TWELVE = "arc 0,0 r2 from 0 sweep 3pi/2 cw";

void ExpectBox(const char* arc, double xmin, double xmax, double ymin, double ymax) {
    QnGeExtent2d box(70, 71, 72, 73);
    EXPECT_TRUE(ArcOf(arc).GetExtent2d(box));
    EXPECT_NEAR(box.x.min, xmin, 1e-9) << arc;
    EXPECT_NEAR(box.x.max, xmax, 1e-9) << arc;
    EXPECT_NEAR(box.y.min, ymin, 1e-9) << arc;
    EXPECT_NEAR(box.y.max, ymax, 1e-9) << arc;
}

const double ROOT_HALF = std::sqrt(0.5);

}  // namespace

// ---- making ------------------------------------------------------------------------------------------

TEST(QnGeArc2d, DefaultIsAllZeroAndCounterClockwise) {
    ExpectGeo(QnGeArc2d(), "arc 0,0 r0 from 0 sweep 0", 0.0);
    ExpectGeo(QnGeArc2d(CircleOf("circle 1,2,3 r4 cw")), "arc 1,2,3 r4 from 0 sweep 0 cw", 0.0);
}

TEST(QnGeArc2d, AnglesOfTheConstructorStayAsTheyAre) {
    const QnGeArc2d arc(QnGePoint(1, 2, 3), 4.0, 7.0, -1.0, false);
    EXPECT_EQ(arc.GetStartAngle(), 7.0);
    EXPECT_EQ(arc.GetCentralAngle(), -1.0);
    EXPECT_EQ(arc.GetEndAngle(), 6.0);
    EXPECT_TRUE(arc.IsClockwise());
    EXPECT_FALSE(QnGeArc2d(QnGePoint(1, 2, 3), 4.0, 7.0, -1.0).IsClockwise());
    EXPECT_EQ(arc.GetRadius(), 4.0);
    ExpectPoint(arc.GetCenter(), "1,2,3");
    EXPECT_EQ(arc.GetBits(), 0U) << "the direction is the circle's alone";
    EXPECT_EQ(arc.GetCircle().GetBits(), static_cast<std::uint32_t>(OBJ_CLOCKWISE));
}

TEST(QnGeArc2d, TwoPointsAndASignedSweep) {
    ExpectGeo(QnGeArc2d(QnGePoint(0, 0), QnGePoint(2, 0), QN_HALF_PI),
              "arc 1,1 r1.4142135623731 from 5pi/4 sweep pi/2");
    ExpectGeo(QnGeArc2d(QnGePoint(0, 0), QnGePoint(2, 0), -QN_HALF_PI),
              "arc 1,-1 r1.4142135623731 from 5pi/4 sweep pi/2 cw");
    const QnGeArc2d wide(QnGePoint(0, 0), QnGePoint(2, 0), QN_THREE_HALF_PI);
    ExpectGeo(wide, "arc 1,-1 r1.4142135623731 from 3pi/4 sweep 3pi/2");
    ExpectPoint(wide.GetEndPoint(), "2,0");
}

TEST(QnGeArc2d, ThreePointsAreStartMiddleAndEnd) {
    const QnGePoint right(1, 0), top(0, 1), left(-1, 0), bottom(0, -1);
    ExpectGeo(QnGeArc2d(right, top, left), "arc 0,0 r1 from 0 sweep pi");
    ExpectGeo(QnGeArc2d(right, left, bottom), "arc 0,0 r1 from 0 sweep 3pi/2");
    ExpectGeo(QnGeArc2d(top, right, bottom), "arc 0,0 r1 from 3pi/2 sweep pi cw");
}

TEST(QnGeArc2d, KeptOddClockwiseStartAtPlusXIsStoredAsTheFullTurn) {
    const QnGeArc2d arc(QnGePoint(1, 0), QnGePoint(0, -1), QnGePoint(-1, 0));
    EXPECT_NEAR(arc.GetStartAngle(), 6.2831853071796, 1e-12);
    EXPECT_NEAR(arc.GetCentralAngle(), EXACT_PI, 1e-9);
    EXPECT_TRUE(arc.IsClockwise());
    ExpectPoint(arc.GetMidPoint(), "0,-1");
}

TEST(QnGeArc2d, CentreAndTwoPointsTakeTheRadiusOfTheStart) {
    QnGeArc2d arc;
    arc.CreateFromCTP(QnGePoint(1, 2, 3), QnGePoint(5, 2, 90), QnGePoint(1, 3), true);
    ExpectGeo(arc, "arc 1,2,3 r4 from 0 sweep pi/2");
    arc.CreateFromCTP(QnGePoint(1, 2, 3), QnGePoint(1, 6), QnGePoint(9, 2), false);
    ExpectGeo(arc, "arc 1,2,3 r4 from 3pi/2 sweep pi/2 cw");
    arc.CreateFromCTP(QnGePoint(1, 2, 3), QnGePoint(5, 2), QnGePoint(1, 3), false);
    EXPECT_NEAR(arc.GetCentralAngle(), 3.0 * EXACT_PI / 2.0, 1e-9) << "once over the bottom";
    arc.CreateFromCTP(QnGePoint(1, 2), QnGePoint(1, 6), QnGePoint(1, 7), false);
    EXPECT_EQ(arc.GetCentralAngle(), 0.0);
}

TEST(QnGeArc2d, KeptOddCreateFromCentreNeverClearsTheDirection) {
    QnGeArc2d arc = ArcOf("arc 9,9 r1 from 1 sweep 1 cw");
    arc.CreateFromCTP(QnGePoint(0, 0), QnGePoint(0, 2), QnGePoint(2, 0), true);
    ExpectGeo(arc, "arc 0,0 r2 from 3pi/2 sweep pi/2 cw");
}

TEST(QnGeArc2d, OnlyTheStartAngleIsBroughtIntoOneTurn) {
    QnGeArc2d arc = ArcOf("arc 0,0 r2 from 1 sweep 1");
    arc.SetStartAngle(7.0);
    EXPECT_NEAR(arc.GetStartAngle(), 7.0 - EXACT_TURN, 1e-12);
    arc.SetStartAngle(-1.0);
    EXPECT_NEAR(arc.GetStartAngle(), EXACT_TURN - 1.0, 1e-12);
    arc.SetStartAngle(-9e-6);
    EXPECT_EQ(arc.GetStartAngle(), 0.0);
    arc.SetCentralAngle(9.0);
    EXPECT_EQ(arc.GetCentralAngle(), 9.0);
}

TEST(QnGeArc2d, SetCircleCopiesShapeAndFlagsAndLeavesTheAngles) {
    QnGeArc2d arc = ArcOf("arc 0,0 r2 from 1 sweep 2");
    QnGeCircle2d circle = CircleOf("circle 5,6,7 r8 cw");
    circle.SetBit(0x100);
    arc.SetCircle(circle);
    ExpectGeo(arc, "arc 5,6,7 r8 from 1 sweep 2 cw", 0.0);
    EXPECT_EQ(arc.GetCircle().GetBits(), 0x120U);
    EXPECT_EQ(arc.GetBits(), 0U);
}

TEST(QnGeArc2d, CopyFromTakesArcsOnlyWithBothFlagWords) {
    QnGeArc2d arc = ArcOf("arc 0,0 r2 from 1 sweep 2");
    NamedArc source(QnGePoint(1, 2, 3), 4.0, 0.5, 1.5, false);
    source.SetBit(0x400);
    EXPECT_TRUE(arc.CopyFrom(&source));
    ExpectGeo(arc, "arc 1,2,3 r4 from 0.5 sweep 1.5 cw", 0.0);
    EXPECT_EQ(arc.GetBits(), 0x400U);
    EXPECT_FALSE(arc.CopyFrom(nullptr));
    EXPECT_FALSE(arc.CopyFrom(ParseGeo("circle 0,0 r1").get()));
    EXPECT_FALSE(arc.CopyFrom(ParseGeo("seg 0,0 1,0").get()));
    ExpectGeo(arc, "arc 1,2,3 r4 from 0.5 sweep 1.5 cw", 0.0);
    const std::unique_ptr<QnGeObject> clone(arc.Clone());
    EXPECT_EQ(clone->GetClassID(), 115);
    EXPECT_EQ(clone->GetBits(), 0x400U);
    ExpectGeo(clone.get(), "arc 1,2,3 r4 from 0.5 sweep 1.5 cw", 0.0);
}

// ---- what it is --------------------------------------------------------------------------------------

TEST(QnGeArc2d, IsValidNeedsARadiusAndASweepOfUpToOneTurn) {
    const auto valid = [](double radius, double sweep) { return QnGeArc2d(QnGePoint(), radius, 0.0, sweep).IsValid(); };
    EXPECT_TRUE(valid(1.0, 1.0));
    EXPECT_FALSE(valid(1e-6, 1.0));
    EXPECT_TRUE(valid(1.1e-6, 1.0));
    EXPECT_FALSE(valid(1.0, 1e-5));
    EXPECT_TRUE(valid(1.0, 1.1e-5));
    EXPECT_FALSE(valid(1.0, -1.0));
    EXPECT_TRUE(valid(1.0, QN_TWO_PI + 0.9e-5));
    EXPECT_FALSE(valid(1.0, QN_TWO_PI + 1.1e-5));
}

TEST(QnGeArc2d, IsClosedWithinTheAngleToleranceOfAFullTurn) {
    const auto closed = [](double sweep) { return QnGeArc2d(QnGePoint(), 1.0, 0.0, sweep).IsClosed(); };
    EXPECT_TRUE(closed(QN_TWO_PI));
    EXPECT_TRUE(closed(QN_TWO_PI - 0.9e-5));
    EXPECT_TRUE(closed(QN_TWO_PI + 0.9e-5));
    EXPECT_FALSE(closed(QN_TWO_PI - 1.1e-5));
    EXPECT_FALSE(closed(QN_TWO_PI + 1.1e-5));
}

TEST(QnGeArc2d, PeriodIsOneIfClosedAndTheEndsAlwaysExist) {
    const QnGeArc2d open = ArcOf("arc 0,0 r2 from 0 sweep 1");
    const QnGeArc2d closed = ArcOf("arc 0,0 r2 from 1 sweep 2pi");
    EXPECT_EQ(open.GetPeriod(), 0.0);
    EXPECT_EQ(closed.GetPeriod(), 1.0);
    for (const QnGeArc2d& arc : {open, closed}) {
        EXPECT_TRUE(arc.IsFinite(true));
        EXPECT_TRUE(arc.IsFinite(false));
        EXPECT_TRUE(arc.IsCurveSeg());
        EXPECT_FALSE(arc.IsMLinear());
        EXPECT_FALSE(arc.IsSelfCross());
        EXPECT_EQ(arc.ConvertTo3d(), nullptr);
        QnGeObjList parts;
        EXPECT_FALSE(arc.Explode(parts));
    }
}

TEST(QnGeArc2d, OwnFlagWordSaysNothingAboutDirection) {
    QnGeArc2d arc = ArcOf("arc 0,0 r2 from 0 sweep pi/2");
    arc.SetBit(OBJ_CLOCKWISE);
    EXPECT_FALSE(arc.IsClockwise());
    ExpectPoint(arc.GetEndPoint(), "0,2");
}

TEST(QnGeArc2d, LengthIsSweepTimesRadius) {
    EXPECT_EQ(ArcOf("arc 5,6 r2 from 3 sweep 1.5 cw").Length(), 3.0);
}

TEST(QnGeArc2d, KeptOddAreaIsTheWholeCircles) {
    EXPECT_NEAR(ArcOf("arc 5,6 r1 from 3 sweep pi").Area(), EXACT_PI, 1e-12);
    EXPECT_NEAR(ArcOf("arc 5,6 r2 from 3 sweep 0.1 cw").Area(), 4.0 * EXACT_PI, 1e-12);
}

TEST(QnGeArc2d, IntegrationIsThatOfTheStretch) {
    // The upper half from right to left at height 2: -2 * 2r - the half disc; clockwise the lower half from right to
    // left: -2 * 2r + the half disc.
    const QnGeArc2d ccw = ArcOf("arc 1,2 r3 from 0 sweep pi");
    const QnGeArc2d cw = ArcOf("arc 1,2 r3 from 0 sweep pi cw");
    EXPECT_NEAR(ccw.Integration(0.0, 1.0), -12.0 - 4.5 * EXACT_PI, 1e-9);
    EXPECT_NEAR(cw.Integration(0.0, 1.0), -12.0 + 4.5 * EXACT_PI, 1e-9);
    EXPECT_NEAR(ccw.Integration(0.5, 1.0), -6.0 - 2.25 * EXACT_PI, 1e-9);
    EXPECT_NEAR(ccw.Integration(1.0, 0.5), 6.0 + 2.25 * EXACT_PI, 1e-9);
    EXPECT_NEAR(ccw.TotalIntegration(), -12.0 - 4.5 * EXACT_PI, 1e-9);
}

// ---- points and parameters ---------------------------------------------------------------------------

TEST(QnGeArc2d, ClockwiseFromThreeOverSixAndNineToTwelve) {
    const QnGeArc2d arc = ArcOf(THREE_TO_TWELVE);
    ExpectPoint(arc.GetStartPoint(), "2,0");
    ExpectPoint(arc.GetEndPoint(), "0,2");
    ExpectPoint(PointAt(arc, 1.0 / 3.0), "0,-2");
    ExpectPoint(PointAt(arc, 2.0 / 3.0), "-2,0");
    ExpectBox(THREE_TO_TWELVE, -2.0, 2.0, -2.0, 2.0);
}

TEST(QnGeArc2d, EndAndMiddlePoints) {
    const QnGeArc2d arc = ArcOf("arc 1,2,3 r4 from 0 sweep pi");
    ExpectPoint(arc.GetStartPoint(), "5,2,3");
    ExpectPoint(arc.GetMidPoint(), "1,6,3");
    ExpectPoint(arc.GetEndPoint(), "-3,2,3");
    ExpectPoint(arc.GetSamplePoint(), "1,6,3");
    QnGePoint pt;
    EXPECT_TRUE(arc.GetStartPoint(pt));
    ExpectPoint(pt, "5,2,3");
    EXPECT_TRUE(arc.GetEndPoint(pt));
    ExpectPoint(pt, "-3,2,3");
    EXPECT_TRUE(arc.GetMidPoint(pt));
    ExpectPoint(pt, "1,6,3");
}

TEST(QnGeArc2d, PointFromParameterClampsToTheArc) {
    const QnGeArc2d arc = ArcOf("arc 0,0 r2 from 0 sweep pi/2 cw");
    ExpectPoint(PointAt(arc, 1.5), "0,-2");
    ExpectPoint(PointAt(arc, -3.0), "2,0");
    const QnGePoint within = PointAt(arc, 1.0 + 5e-10);
    EXPECT_LT(within.x, -1e-9) << "within the tolerance of the end nothing is clamped";
    ExpectPoint(within, "0,-2", 1e-8);
    ExpectPoint(PointAt(arc, 0.5), std::to_string(2.0 * ROOT_HALF) + "," + std::to_string(-2.0 * ROOT_HALF), 1e-6);
}

TEST(QnGeArc2d, PointFromParameterClampsFromTheParameterToleranceOn) {
    const QnGeArc2d arc = ArcOf("arc 0,0 r1000000 from 1 sweep 1");
    EXPECT_EQ(PlanDistance(PointAt(arc, -1e-8), arc.GetStartPoint()), 0.0);
    EXPECT_EQ(PlanDistance(PointAt(arc, 1.0 + 1e-8), arc.GetEndPoint()), 0.0);
    EXPECT_NEAR(PlanDistance(PointAt(arc, -9e-10), arc.GetStartPoint()), 9e-4, 1e-6);
}

TEST(QnGeArc2d, ParameterOfAPointIsNotLimitedToTheArc) {
    const QnGeArc2d arc = ArcOf("arc 0,0 r2 from 0 sweep pi/2");
    EXPECT_NEAR(PaOf(arc, 0.0, 2.0), 1.0, 1e-12);
    EXPECT_NEAR(PaOf(arc, -2.0, 0.0), 2.0, 1e-12);
    EXPECT_NEAR(PaOf(arc, 0.0, -7.0), 3.0, 1e-12) << "the point need not be on the circle";
    EXPECT_EQ(PaOf(arc, 2.0, 0.0), 0.0);
    EXPECT_EQ(PaOf(ArcOf("arc 0,0 r2 from 0 sweep pi/2 cw"), 2.0, 0.0), 0.0);
    double pa = UNTOUCHED;
    EXPECT_FALSE(arc.GetPaFromPt(QnGePoint(5e-7, 0.0), pa));
    EXPECT_EQ(pa, UNTOUCHED);
}

TEST(QnGeArc2d, KeptOddPointJustBeforeTheStartSnapsToTheStart) {
    const QnGeArc2d arc = ArcOf("arc 0,0 r10000 from 1 sweep 1");
    // 9e-6 radians are 0.09 here, far above the length tolerance.
    const double near = 1.0 - 9e-6;
    EXPECT_EQ(PaOf(arc, 10000.0 * std::cos(near), 10000.0 * std::sin(near)), 0.0);
    EXPECT_EQ(HitBits(arc, 10000.0 * std::cos(near), 10000.0 * std::sin(near)), HIT_ON);
    const double far = 1.0 - 2e-5;
    EXPECT_NEAR(PaOf(arc, 10000.0 * std::cos(far), 10000.0 * std::sin(far)), EXACT_TURN - 2e-5, 1e-9);
}

TEST(QnGeArc2d, DistanceCountsFromTheStart) {
    const QnGeArc2d arc = ArcOf("arc 0,0 r2 from 4 sweep 1.5 cw");
    double value = UNTOUCHED;
    EXPECT_TRUE(arc.GetDistFromPa(0.5, value));
    EXPECT_NEAR(value, 1.5, 1e-12);
    EXPECT_TRUE(arc.GetPaFromDist(1.5, value));
    EXPECT_NEAR(value, 0.5, 1e-12);
    EXPECT_TRUE(arc.GetPaFromDist(6.0, value));
    EXPECT_NEAR(value, 2.0, 1e-12) << "nothing ends at the arc's end";
}

TEST(QnGeArc2d, KeptOddDistancesWrapAtAFullTurn) {
    const QnGeArc2d open = ArcOf("arc 0,0 r2 from 4 sweep 1.5");
    double value = UNTOUCHED;
    EXPECT_TRUE(open.GetPaFromDist(-1.0, value));
    EXPECT_NEAR(value, (EXACT_TURN - 0.5) / 1.5, 1e-12);
    EXPECT_TRUE(open.GetDistFromPa(-1.0, value));
    EXPECT_NEAR(value, 2.0 * (EXACT_TURN - 1.5), 1e-12);
    const QnGeArc2d closed = ArcOf("arc 0,0 r2 from 4 sweep 2pi");
    EXPECT_TRUE(closed.GetPaFromDist(closed.Length(), value));
    EXPECT_EQ(value, 0.0);
    EXPECT_TRUE(closed.GetDistFromPa(1.0, value));
    EXPECT_EQ(value, 0.0);
}

TEST(QnGeArc2d, TangentPointsAlongTheTravel) {
    QnGeBaseLine2d line;
    ArcOf("arc 1,2 r3 from 0 sweep pi").GetTangent(0.5, line);
    ExpectPoint(line.basePoint, "1,5");
    EXPECT_NEAR(line.dx, -1.0, 1e-12);
    EXPECT_NEAR(line.dy, 0.0, 1e-12);
    ArcOf("arc 1,2 r3 from 0 sweep pi cw").GetTangent(0.0, line);
    ExpectPoint(line.basePoint, "4,2");
    EXPECT_NEAR(line.dx, 0.0, 1e-12);
    EXPECT_NEAR(line.dy, -1.0, 1e-12);
}

// ---- where a point lies ------------------------------------------------------------------------------

TEST(QnGeArc2d, HitTestHasTheSidesOfItsCircle) {
    for (const char* text : {"arc 0,0 r2 from 0 sweep pi/2", "arc 0,0 r2 from 3pi/2 sweep pi/2 cw"}) {
        const QnGeArc2d arc = ArcOf(text);
        EXPECT_EQ(HitBits(arc, 0.5, 0.5), HIT_IN) << text;
        EXPECT_EQ(HitBits(arc, -1.0, -1.0), HIT_IN) << text;
        EXPECT_EQ(HitBits(arc, 3.0, 3.0), HIT_OUT) << text;
        EXPECT_EQ(HitBits(arc, -3.0, 0.0), HIT_OUT) << text;
        EXPECT_EQ(HitBits(arc, 2.0 * ROOT_HALF, 2.0 * ROOT_HALF), HIT_ON) << text;
        EXPECT_EQ(HitBits(arc, 2.0, 0.0), HIT_ON) << text;
        EXPECT_EQ(HitBits(arc, 0.0, 2.0), HIT_ON) << text;
        EXPECT_EQ(HitBits(arc, -2.0, 0.0), 0U) << "on the circle beside the arc: " << text;
    }
}

TEST(QnGeArc2d, PointOfTheCircleBesideTheArcHasNoBitButAParameter) {
    const QnGeArc2d arc = ArcOf("arc 0,0 r2 from 0 sweep pi");
    EXPECT_EQ(HitBits(arc, 0.0, -2.0), 0U);
    EXPECT_NEAR(PaOf(arc, 0.0, -2.0), 1.5, 1e-12);
}

TEST(QnGeArc2d, HitTestReachesPastTheEndsByTheLengthTolerance) {
    const auto hit = [](double angle) {
        return HitBits(ArcOf("arc 0,0 r0.01 from 1 sweep 1"), 0.01 * std::cos(angle), 0.01 * std::sin(angle));
    };
    EXPECT_EQ(hit(2.0 + 9e-5), HIT_ON);
    EXPECT_EQ(hit(2.0 + 1.2e-4), 0U);
    // Before the start the parameter is that of nearly a full turn; the distance to the start point decides.
    EXPECT_EQ(hit(1.0 - 9e-5), HIT_ON);
    EXPECT_EQ(hit(1.0 - 1.2e-4), 0U);
}

TEST(QnGeArc2d, HitTestOnATinyArcIsTheDistanceToItsEnds) {
    // The arc is 2e-6 long; a tenth of it is all that the parameter may reach past an end.
    const auto hit = [](double angle) {
        return HitBits(ArcOf("arc 0,0 r0.000002 from 0 sweep 1"), 2e-6 * std::cos(angle), 2e-6 * std::sin(angle));
    };
    EXPECT_EQ(hit(1.09), HIT_ON);
    EXPECT_EQ(hit(1.45), HIT_ON);
    EXPECT_EQ(hit(1.6), 0U);
    EXPECT_EQ(hit(-0.45), HIT_ON);
    EXPECT_EQ(hit(-0.6), 0U);
}

TEST(QnGeArc2d, HitTestSideComesFromTheWholeCircle) {
    const QnGeArc2d ccw = ArcOf("arc 0,0 r2 from 0 sweep 1");
    const QnGeArc2d cw = ArcOf("arc 0,0 r2 from 0 sweep 1 cw");
    EXPECT_EQ(ccw.HitTestSide(QnGePoint(-1, 0)).GetBits(), HIT_IN);
    EXPECT_EQ(ccw.HitTestSide(QnGePoint(-5, 0)).GetBits(), HIT_OUT);
    EXPECT_EQ(cw.HitTestSide(QnGePoint(-1, 0)).GetBits(), HIT_OUT);
    EXPECT_EQ(cw.HitTestSide(QnGePoint(-5, 0)).GetBits(), HIT_IN);
    EXPECT_EQ(cw.HitTestSide(QnGePoint(-2, 0)).GetBits(), 0U);
    EXPECT_EQ(cw.HitTestSide(QnGePoint(2, 0)).GetBits(), HIT_ON);
    const QnGeArc2d closed = ArcOf("arc 0,0 r2 from 1 sweep 2pi cw");
    EXPECT_EQ(closed.HitTestSide(QnGePoint(0, 0)).GetBits(), HIT_OUT);
}

TEST(QnGeArc2d, ExtentHoldsTheExtremesThatTheArcPasses) {
    const double low = 2.0 * std::cos(0.1), high = 2.0 * std::sin(0.1);
    // Nothing but the ends, then one extreme each, then two, three and all four.
    ExpectBox("arc 1,2 r2 from 0.1 sweep 0.2", 1.0 + 2.0 * std::cos(0.3), 1.0 + low, 2.0 + high,
              2.0 + 2.0 * std::sin(0.3));
    ExpectBox("arc 0,0 r2 from -0.1 sweep 0.2", low, 2.0, -high, high);
    ExpectBox("arc 0,0 r2 from 1.4707963267949 sweep 0.2", -high, high, low, 2.0);
    ExpectBox("arc 0,0 r2 from 3.0415926535898 sweep 0.2", -2.0, -low, -high, high);
    ExpectBox("arc 0,0 r2 from 4.6123889803847 sweep 0.2", -high, high, -2.0, -low);
    ExpectBox("arc 0,0 r2 from 0.1 sweep pi", -2.0, low, -high, 2.0);
    ExpectBox("arc 0,0 r2 from 1.4707963267949 sweep 3.3415926535898", -2.0, high, -2.0, 2.0);
    ExpectBox("arc 0,0 r2 from 0.1 sweep 2pi", -2.0, 2.0, -2.0, 2.0);
}

TEST(QnGeArc2d, ExtentOfAClockwiseArcHasTheExtremesBelowFirst) {
    const double low = 2.0 * std::cos(0.1), high = 2.0 * std::sin(0.1);
    ExpectBox("arc 0,0 r2 from -0.1 sweep 0.2 cw", low, 2.0, -high, high);
    ExpectBox("arc 0,0 r2 from 1.4707963267949 sweep 0.2 cw", -high, high, -2.0, -low);
    ExpectBox("arc 0,0 r2 from 3.0415926535898 sweep 0.2 cw", -2.0, -low, -high, high);
    ExpectBox("arc 0,0 r2 from 4.6123889803847 sweep 0.2 cw", -high, high, low, 2.0);
    ExpectBox("arc 1,2 r2 from 0.1 sweep pi cw", -1.0, 1.0 + low, 0.0, 2.0 + high);
}

TEST(QnGeArc2d, ExtentTakesExtremesWithinTheAngleToleranceOfTheEnds) {
    QnGeExtent2d box;
    EXPECT_TRUE(ArcOf("arc 0,0 r1000000 from 9e-6 sweep 1").GetExtent2d(box));
    EXPECT_EQ(box.x.max, 1000000.0);
    EXPECT_TRUE(ArcOf("arc 0,0 r1000000 from 2e-5 sweep 1").GetExtent2d(box));
    EXPECT_TRUE(ArcOf("arc 0,0 r1000000 from 1 sweep 0.5707873267948966").GetExtent2d(box));
    EXPECT_EQ(box.y.max, 1000000.0);
    EXPECT_TRUE(ArcOf("arc 0,0 r1000000 from 1 sweep 0.5707763267948966").GetExtent2d(box));
    EXPECT_LT(box.y.max, 1000000.0 - 1e-4);
    EXPECT_TRUE(ArcOf("arc 0,0 r1000000 from 2e-5 sweep 1").GetExtent2d(box));
    EXPECT_LT(box.x.max, 1000000.0 - 1e-4);
}

TEST(QnGeArc2d, ExtentInSpaceHasTheHeightOfTheCentre) {
    QnGeExtent3d box;
    EXPECT_TRUE(ArcOf("arc 0,0,5 r2 from 0 sweep pi").GetExtent3d(box));
    EXPECT_EQ(box.z.min, 5.0);
    EXPECT_EQ(box.z.max, 5.0);
    EXPECT_NEAR(box.y.max, 2.0, 1e-9);
}
