// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCircle2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "RoundTesting.h"
#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnPushVar.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

using namespace round_testing;

namespace {

/// A class without a record of its own counts as a circle.
class SignedCircle : public QnGeCircle2d {
public:
    using QnGeCircle2d::QnGeCircle2d;
};

const double ROOT_TWO = std::sqrt(2.0);

}  // namespace

// ---- making ------------------------------------------------------------------------------------------

TEST(QnGeCircle2d, DefaultIsAllZeroAndCounterClockwise) {
    const QnGeCircle2d circle;
    ExpectGeo(circle, "circle 0,0 r0", 0.0);
    EXPECT_EQ(circle.GetBits(), 0U);
    EXPECT_EQ(QnGeCircle2d(false).GetBits(), static_cast<std::uint32_t>(OBJ_CLOCKWISE));
    EXPECT_EQ(OBJ_CLOCKWISE, 0x20U);
}

TEST(QnGeCircle2d, TakesCentreRadiusAndDirection) {
    ExpectGeo(QnGeCircle2d(QnGePoint(1, 2, 3), 4.0), "circle 1,2,3 r4", 0.0);
    ExpectGeo(QnGeCircle2d(QnGePoint(1, 2, 3), 4.0, false), "circle 1,2,3 r4 cw", 0.0);
    const QnGeBaseCircle base(QnGePoint(5, 6, 7), 8.0);
    ExpectGeo(QnGeCircle2d(base), "circle 5,6,7 r8", 0.0);
    ExpectGeo(QnGeCircle2d(base, false), "circle 5,6,7 r8 cw", 0.0);
    const QnGeCircle2d copy(QnGeCircle2d(base, false));
    ExpectGeo(copy, "circle 5,6,7 r8 cw", 0.0);
}

TEST(QnGeCircle2d, ThreePointsGiveTheDirectionOfTheirTurn) {
    const QnGePoint right(3, 1), top(2, 2), left(1, 1);
    ExpectGeo(QnGeCircle2d(right, top, left), "circle 2,1 r1");
    ExpectGeo(QnGeCircle2d(left, top, right), "circle 2,1 r1 cw");
}

TEST(QnGeCircle2d, CreateFromThreePointsSetsAndClearsTheDirection) {
    QnGeCircle2d circle(false);
    circle.CreateFrom(QnGePoint(3, 1), QnGePoint(2, 2), QnGePoint(1, 1));
    EXPECT_FALSE(circle.IsClockwise());
    circle.CreateFrom(QnGePoint(1, 1), QnGePoint(2, 2), QnGePoint(3, 1));
    EXPECT_TRUE(circle.IsClockwise());
}

TEST(QnGeCircle2d, CollinearPointsGiveTheMiddleOfTheFirstTwo) {
    ExpectGeo(QnGeCircle2d(QnGePoint(0, 0), QnGePoint(2, 0), QnGePoint(5, 0)), "circle 1,0 r1");
}

TEST(QnGeCircle2d, TwoPointsAndAnAngleTakeTheSideOfTheSign) {
    const QnGePoint from(0, 0), to(2, 0);
    struct Row {
        double angle;
        double y;
        double radius;
        bool clockwise;
    };
    const Row rows[] = {
        {QN_HALF_PI, 1.0, ROOT_TWO, false},
        {-QN_HALF_PI, -1.0, ROOT_TWO, true},
        {QN_THREE_HALF_PI, -1.0, ROOT_TWO, false},
        {-QN_THREE_HALF_PI, 1.0, ROOT_TWO, true},
        {QN_PI, 0.0, 1.0, false},
        {-QN_PI, 0.0, 1.0, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.angle);
        const QnGeCircle2d circle(from, to, row.angle);
        ExpectPoint(circle.center, "1," + std::to_string(row.y));
        EXPECT_NEAR(circle.radius, row.radius, 1e-12);
        EXPECT_EQ(circle.IsClockwise(), row.clockwise);
    }
}

TEST(QnGeCircle2d, CreateFromAnAngleClearsTheDirectionToo) {
    QnGeCircle2d circle(false);
    circle.CreateFrom(QnGePoint(0, 0), QnGePoint(2, 0), 0.0);
    EXPECT_FALSE(circle.IsClockwise()) << "an angle of 0 counts as counter-clockwise";
    EXPECT_TRUE(std::isinf(circle.radius));
    ExpectPoint(circle.center, "1,0");
}

TEST(QnGeCircle2d, CopyFromTakesCirclesOnly) {
    QnGeCircle2d circle = CircleOf("circle 1,2 r3");
    const SignedCircle source(QnGePoint(4, 5, 6), 7.0, false);
    EXPECT_TRUE(circle.CopyFrom(&source));
    ExpectGeo(circle, "circle 4,5,6 r7 cw", 0.0);
    EXPECT_FALSE(circle.CopyFrom(nullptr));
    EXPECT_FALSE(circle.CopyFrom(ParseGeo("arc 0,0 r1 from 0 sweep 1").get()));
    EXPECT_FALSE(circle.CopyFrom(ParseGeo("seg 0,0 1,0").get()));
    ExpectGeo(circle, "circle 4,5,6 r7 cw", 0.0);
}

TEST(QnGeCircle2d, CloneIsACircleOfItsOwn) {
    const QnGeCircle2d circle = CircleOf("circle 1,2,3 r4 cw");
    const std::unique_ptr<QnGeObject> clone(circle.Clone());
    ExpectGeo(clone.get(), "circle 1,2,3 r4 cw", 0.0);
    EXPECT_EQ(clone->GetClassID(), 114);
    EXPECT_TRUE(clone->IsClassOf(&QnGeCurve2d::s_classInfo));
}

// ---- comparing and measuring -------------------------------------------------------------------------

TEST(QnGeCircle2d, SameCircleLooksAtCentreRadiusAndIfAskedDirection) {
    const QnGeCircle2d circle = CircleOf("circle 1,2 r3");
    const auto same = [&circle](const char* text, bool direction) {
        return circle.IsSameCircle(CircleOf(text), direction);
    };
    EXPECT_TRUE(same("circle 1,2 r3", true));
    EXPECT_TRUE(same("circle 1,2 r3 cw", false));
    EXPECT_FALSE(same("circle 1,2 r3 cw", true));
    EXPECT_TRUE(CircleOf("circle 1,2 r3 cw").IsSameCircle(CircleOf("circle 1,2 r3 cw"), true));
    EXPECT_TRUE(same("circle 1,2 r3.0000005", false));
    EXPECT_FALSE(same("circle 1,2 r3.000002", false));
    EXPECT_TRUE(same("circle 1.0000005,2 r3", false));
    EXPECT_FALSE(same("circle 1,2.000002 r3", false));
    EXPECT_TRUE(same("circle 1,2,50 r3", false)) << "the height of the centre plays no part";
}

TEST(QnGeCircle2d, IsValidFromARadiusAboveTheTolerance) {
    EXPECT_FALSE(QnGeCircle2d(QnGePoint(), 1e-6).IsValid());
    EXPECT_TRUE(QnGeCircle2d(QnGePoint(), 1.1e-6).IsValid());
    EXPECT_FALSE(QnGeCircle2d(QnGePoint(), -1.0).IsValid());
    EXPECT_FALSE(QnGeCircle2d().IsValid());
}

TEST(QnGeCircle2d, ReverseTogglesTheDirectionBitAndNothingElse) {
    QnGeCircle2d circle = CircleOf("circle 1,2 r3");
    circle.SetBit(0x100);
    circle.Reverse();
    EXPECT_EQ(circle.GetBits(), 0x120U);
    EXPECT_TRUE(circle.IsClockwise());
    circle.Reverse();
    EXPECT_EQ(circle.GetBits(), 0x100U);
    EXPECT_FALSE(circle.IsClockwise());
    circle.ClearBit(0x100);
    ExpectGeo(circle, "circle 1,2 r3", 0.0);
}

TEST(QnGeCircle2d, MeasuresAreThoseOfTheWholeCircle) {
    for (const char* text : {"circle 5,6 r2", "circle 5,6 r2 cw"}) {
        const QnGeCircle2d circle = CircleOf(text);
        EXPECT_EQ(circle.Length(), 6.2831853071796 * 2.0);
        EXPECT_EQ(circle.Area(), 3.141592653589793 * 2.0 * 2.0);
        EXPECT_EQ(circle.GetPeriod(), 6.2831853071796);
    }
}

TEST(QnGeCircle2d, HasNoEndsButIsClosed) {
    const QnGeCircle2d circle = CircleOf("circle 0,0 r1");
    EXPECT_FALSE(circle.IsFinite(true));
    EXPECT_FALSE(circle.IsFinite(false));
    EXPECT_TRUE(circle.IsClosed());
    EXPECT_TRUE(circle.IsFinite());
    EXPECT_FALSE(circle.IsCurveSeg());
    EXPECT_FALSE(circle.IsInfinite());
    EXPECT_TRUE(circle.IsIncludePa(-5.0));
    EXPECT_TRUE(circle.IsIncludePa(50.0));
}

TEST(QnGeCircle2d, KeepsTheDefaultsItDoesNotReplace) {
    QnGeCircle2d circle = CircleOf("circle 0,0 r1");
    QnGeObjList parts;
    EXPECT_FALSE(circle.Explode(parts));
    EXPECT_TRUE(parts.IsEmpty());
    EXPECT_FALSE(circle.IsMLinear());
    EXPECT_FALSE(circle.IsSelfCross());
    EXPECT_FALSE(circle.Conbine(CircleOf("circle 0,0 r1"), false));
    EXPECT_EQ(circle.ConvertTo3d(), nullptr);
    circle.Compress();
    ExpectGeo(circle, "circle 0,0 r1", 0.0);
}

// ---- points and parameters ---------------------------------------------------------------------------

TEST(QnGeCircle2d, ParameterRunsWithTheTravel) {
    const QnGeCircle2d ccw = CircleOf("circle 1,2,7 r3");
    const QnGeCircle2d cw = CircleOf("circle 1,2,7 r3 cw");
    ExpectPoint(PointAt(ccw, 0.0), "4,2,7");
    ExpectPoint(PointAt(cw, 0.0), "4,2,7");
    ExpectPoint(PointAt(ccw, QN_HALF_PI), "1,5,7");
    ExpectPoint(PointAt(cw, QN_HALF_PI), "1,-1,7");
    ExpectPoint(PointAt(ccw, -QN_HALF_PI), "1,-1,7");
    ExpectPoint(PointAt(ccw, QN_TWO_PI + QN_PI), "-2,2,7");
}

TEST(QnGeCircle2d, PointOffTheCircleHasTheParameterOfItsDirection) {
    EXPECT_NEAR(PaOf(CircleOf("circle 1,2 r3"), 1.0, 100.0), QN_HALF_PI, 1e-12);
    EXPECT_NEAR(PaOf(CircleOf("circle 1,2 r3 cw"), 1.0, 2.5), 3.0 * EXACT_PI / 2.0, 1e-12);
    EXPECT_EQ(PaOf(CircleOf("circle 1,2 r3"), 9.0, 2.0), 0.0);
}

TEST(QnGeCircle2d, KeptOddClockwiseParameterAtPlusXIsTheFullTurn) {
    EXPECT_EQ(PaOf(CircleOf("circle 1,2 r3 cw"), 4.0, 2.0), 6.2831853071796);
}

TEST(QnGeCircle2d, CentreHasNoParameter) {
    const QnGeCircle2d circle = CircleOf("circle 1,2 r3");
    double pa = UNTOUCHED;
    EXPECT_FALSE(circle.GetPaFromPt(QnGePoint(1, 2, 9), pa));
    EXPECT_FALSE(circle.GetPaFromPt(QnGePoint(1.0 + 9e-7, 2), pa));
    EXPECT_EQ(pa, UNTOUCHED);
    EXPECT_TRUE(circle.GetPaFromPt(QnGePoint(1.0 + 2e-6, 2), pa));
}

TEST(QnGeCircle2d, DistanceIsParameterTimesRadiusWithoutWrap) {
    const QnGeCircle2d circle = CircleOf("circle 1,2 r4 cw");
    double value = UNTOUCHED;
    EXPECT_TRUE(circle.GetDistFromPa(10.0, value));
    EXPECT_EQ(value, 40.0);
    EXPECT_TRUE(circle.GetPaFromDist(-6.0, value));
    EXPECT_EQ(value, -1.5);
    QnGePoint pt;
    EXPECT_TRUE(circle.GetPtFromDist(4.0 * QN_HALF_PI, pt));
    ExpectPoint(pt, "1,-2");
    EXPECT_TRUE(circle.GetDistFromPt(QnGePoint(1, -2), value));
    EXPECT_NEAR(value, 4.0 * QN_HALF_PI, 1e-9);
}

TEST(QnGeCircle2d, KeptOddEndPointIsFalseAndThePointAtOneRadian) {
    const QnGeCircle2d circle = CircleOf("circle 1,2 r3");
    QnGePoint pt(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_FALSE(circle.GetStartPoint(pt));
    ExpectPoint(pt, "4,2");
    EXPECT_FALSE(circle.GetEndPoint(pt));
    EXPECT_NEAR(pt.x, 1.0 + 3.0 * std::cos(1.0), 1e-12);
    EXPECT_NEAR(pt.y, 2.0 + 3.0 * std::sin(1.0), 1e-12);
    EXPECT_TRUE(circle.GetMidPoint(pt));
    EXPECT_NEAR(pt.x, 1.0 + 3.0 * std::cos(0.5), 1e-12);
    EXPECT_NEAR(circle.GetSamplePoint().y, 2.0 + 3.0 * std::sin(0.5), 1e-12);
}

TEST(QnGeCircle2d, TangentPointsAlongTheTravel) {
    const auto tangent = [](const char* circle, double pa, const char* base, double dx, double dy) {
        QnGeBaseLine2d line;
        CircleOf(circle).GetTangent(pa, line);
        ExpectPoint(line.basePoint, base);
        EXPECT_NEAR(line.dx, dx, 1e-12) << circle << " at " << pa;
        EXPECT_NEAR(line.dy, dy, 1e-12) << circle << " at " << pa;
    };
    tangent("circle 1,2 r3", 0.0, "4,2", 0.0, 1.0);
    tangent("circle 1,2 r3", QN_HALF_PI, "1,5", -1.0, 0.0);
    tangent("circle 1,2 r3 cw", 0.0, "4,2", 0.0, -1.0);
    tangent("circle 1,2 r3 cw", QN_HALF_PI, "1,-1", -1.0, 0.0);
    QnGeBaseLine2d line;
    CircleOf("circle 1,2 r3 cw").GetTangentFromPt(QnGePoint(1, 5), line);
    ExpectPoint(line.basePoint, "1,5");
    EXPECT_NEAR(line.dx, 1.0, 1e-12);
}

TEST(QnGeCircle2d, IntegrationIsThatOfYDxAlongTheTravel) {
    // Centre height 2 and radius 3: from +x up to the top the integral is -(2 * 3) - 9 pi / 4, and the mirror image of
    // the lower quarter, 2 - 3 sin t, changes the sign of the second part.
    const QnGeCircle2d ccw = CircleOf("circle 1,2 r3");
    const QnGeCircle2d cw = CircleOf("circle 1,2 r3 cw");
    EXPECT_NEAR(ccw.Integration(0.0, QN_HALF_PI), -6.0 - 9.0 * EXACT_PI / 4.0, 1e-9);
    EXPECT_NEAR(cw.Integration(0.0, QN_HALF_PI), -6.0 + 9.0 * EXACT_PI / 4.0, 1e-9);
    EXPECT_NEAR(cw.Integration(QN_HALF_PI, 0.0), 6.0 - 9.0 * EXACT_PI / 4.0, 1e-9);
    EXPECT_NEAR(ccw.Integration(0.0, QN_TWO_PI), -9.0 * EXACT_PI, 1e-9);
    EXPECT_NEAR(cw.Integration(0.0, QN_TWO_PI), 9.0 * EXACT_PI, 1e-9);
}

TEST(QnGeCircle2d, KeptOddTotalIntegrationIsThatOfOneRadian) {
    const QnGeCircle2d circle = CircleOf("circle 0,0 r1");
    // The integral of -sin(t)^2 over [0, 1].
    EXPECT_NEAR(circle.TotalIntegration(), -0.5 + std::sin(2.0) / 4.0, 1e-12);
}

// ---- where a point lies ------------------------------------------------------------------------------

TEST(QnGeCircle2d, HitTestTellsInsideFromOutsideWhateverTheDirection) {
    for (const char* text : {"circle 1,2 r3", "circle 1,2 r3 cw"}) {
        const QnGeCircle2d circle = CircleOf(text);
        EXPECT_EQ(HitBits(circle, 1.0, 2.0), HIT_IN);
        EXPECT_EQ(HitBits(circle, 4.0, 2.0), HIT_ON);
        EXPECT_EQ(HitBits(circle, 4.0 + 9e-7, 2.0), HIT_ON);
        EXPECT_EQ(HitBits(circle, 4.0 + 1.1e-6, 2.0), HIT_OUT);
        EXPECT_EQ(HitBits(circle, 4.0 - 9e-7, 2.0), HIT_ON);
        EXPECT_EQ(HitBits(circle, 4.0 - 1.1e-6, 2.0), HIT_IN);
        EXPECT_EQ(circle.HitTest(QnGePoint(1, 5, 80)).GetBits(), HIT_ON) << "height plays no part";
    }
}

TEST(QnGeCircle2d, HitTestSideIsLeftOfTheTravel) {
    const QnGePoint inside(1, 2), outside(9, 2), on(4, 2);
    const QnGeCircle2d ccw = CircleOf("circle 1,2 r3");
    const QnGeCircle2d cw = CircleOf("circle 1,2 r3 cw");
    EXPECT_EQ(ccw.HitTestSide(inside).GetBits(), HIT_IN);
    EXPECT_EQ(ccw.HitTestSide(outside).GetBits(), HIT_OUT);
    EXPECT_EQ(cw.HitTestSide(inside).GetBits(), HIT_OUT);
    EXPECT_EQ(cw.HitTestSide(outside).GetBits(), HIT_IN);
    EXPECT_EQ(cw.HitTestSide(on).GetBits(), HIT_ON);
}

TEST(QnGeCircle2d, ExtentIsTheSquareAroundIt) {
    const QnGeCircle2d circle = CircleOf("circle 1,2,7 r3 cw");
    QnGeExtent2d box(90, 91, 92, 93);
    EXPECT_TRUE(circle.GetExtent2d(box));
    EXPECT_TRUE(box == QnGeExtent2d(-2, 4, -1, 5));
    QnGeExtent3d space;
    EXPECT_TRUE(circle.GetExtent3d(space));
    EXPECT_EQ(space.z.min, 7.0);
    EXPECT_EQ(space.z.max, 7.0);
    EXPECT_EQ(space.x.min, -2.0);
}

TEST(QnGeCircle2d, ClosestPointIsAppendedOnTheSameRay) {
    const QnGeCircle2d circle = CircleOf("circle 1,2,7 r3");
    QnGePointList points;
    EXPECT_TRUE(circle.GetClosestPoint2d(QnGePoint(11, 2, 7), points));
    EXPECT_TRUE(circle.GetClosestPoint2d(QnGePoint(1, 1.5), points));
    EXPECT_TRUE(circle.GetClosestPoint(QnGePoint(-2, 2), points));
    ASSERT_EQ(points.GetLength(), 3);
    ExpectPoint(points.GetAt(0), "4,2,7");
    ExpectPoint(points.GetAt(1), "1,-1,7");
    ExpectPoint(points.GetAt(2), "-2,2,7");
    EXPECT_NEAR(circle.GetDistance(QnGePoint(11, 2)), 7.0, 1e-9);
}

TEST(QnGeCircle2d, CentreHasNoClosestPoint) {
    const QnGeCircle2d circle = CircleOf("circle 1,2,7 r3");
    QnGePointList points;
    EXPECT_FALSE(circle.GetClosestPoint2d(QnGePoint(1, 2, 7), points));
    EXPECT_FALSE(circle.GetClosestPoint2d(QnGePoint(1.0 + 5e-7, 2, 7), points));
    EXPECT_TRUE(points.IsEmpty());
    QnGePoint pt(UNTOUCHED, 0, 0);
    EXPECT_FALSE(circle.GetClosestPoint2d(QnGePoint(1, 2, 7), pt));
    EXPECT_EQ(pt.x, UNTOUCHED);
}

TEST(QnGeCircle2d, KeptOddClosestPointOfATinyCircleIsItsCentre) {
    QnGePoint pt;
    EXPECT_TRUE(CircleOf("circle 1,2 r1e-5").GetClosestPoint2d(QnGePoint(5, 2), pt));
    ExpectPoint(pt, "1,2", 0.0);
    // Straight above the centre the line towards the point has no direction in the plan.
    EXPECT_TRUE(CircleOf("circle 1,2 r3").GetClosestPoint2d(QnGePoint(1, 2, 9), pt));
    ExpectPoint(pt, "1,2", 0.0);
}

// ---- changing ----------------------------------------------------------------------------------------

TEST(QnGeCircle2d, OffsetMovesToTheRightOfTheTravel) {
    QnGeCircle2d ccw = CircleOf("circle 1,2 r1");
    EXPECT_TRUE(ccw.Offset(2.0));
    ExpectGeo(ccw, "circle 1,2 r3");
    QnGeCircle2d cw = CircleOf("circle 1,2 r1 cw");
    EXPECT_TRUE(cw.Offset(-2.0));
    ExpectGeo(cw, "circle 1,2 r3 cw");
    EXPECT_TRUE(cw.Offset(1.0));
    ExpectGeo(cw, "circle 1,2 r2 cw");
}

TEST(QnGeCircle2d, OffsetRefusesARadiusThatVanishes) {
    QnGeCircle2d ccw = CircleOf("circle 1,2 r1");
    EXPECT_FALSE(ccw.Offset(-2.0));
    EXPECT_FALSE(ccw.Offset(-1.0));
    EXPECT_FALSE(ccw.Offset(-1.0 + 5e-10));
    ExpectGeo(ccw, "circle 1,2 r1", 0.0);
    QnGeCircle2d cw = CircleOf("circle 1,2 r1 cw");
    EXPECT_FALSE(cw.Offset(2.0));
    ExpectGeo(cw, "circle 1,2 r1 cw", 0.0);
    EXPECT_TRUE(ccw.Offset(-1.0 + 2e-9));
    EXPECT_NEAR(ccw.radius, 2e-9, 1e-15);
}

TEST(QnGeCircle2d, OffsetCurveIsAnotherCircleOrNull) {
    const QnGeCircle2d circle = CircleOf("circle 1,2 r1");
    const std::unique_ptr<QnGeCurve2d> wider(circle.GetOffsetCurve(1.5));
    ExpectGeo(wider.get(), "circle 1,2 r2.5");
    EXPECT_EQ(circle.GetOffsetCurve(-1.5), nullptr);
}

TEST(QnGeCircle2d, TransformMovesTurnsScalesAndMirrors) {
    QnGeCircle2d circle = CircleOf("circle 1,2,7 r3");
    circle.Move(10.0, 20.0);
    ExpectGeo(circle, "circle 11,22,7 r3");
    circle.Rotate(QN_HALF_PI);
    ExpectGeo(circle, "circle -22,11,7 r3");
    circle.Scale(2.0, 2.0);
    ExpectGeo(circle, "circle -44,22,7 r6");
    circle.Scale(-1.0, 1.0);
    ExpectGeo(circle, "circle 44,22,7 r6 cw");
    circle.Scale(-1.0, 1.0);
    ExpectGeo(circle, "circle -44,22,7 r6");
}

TEST(QnGeCircle2d, TransformTakesTheHeightAlong) {
    QnGeMatrix lift;
    lift.CreateMoveMatrix(1.0, 2.0, 3.0);
    QnGeCircle2d circle = CircleOf("circle 1,2,7 r3 cw");
    circle.TransformBy(lift);
    ExpectGeo(circle, "circle 2,4,10 r3 cw");
}

TEST(QnGeCircle2d, KeptOddUnevenScaleTakesTheXScale) {
    QnGeCircle2d circle = CircleOf("circle 1,2 r3");
    circle.Scale(1.0, 5.0);
    ExpectGeo(circle, "circle 1,10 r3");
    circle.Scale(4.0, 1.0);
    ExpectGeo(circle, "circle 4,10 r12");
}

TEST(QnGeCircle2d, ElevationIsTheCentresHeight) {
    QnGeCircle2d circle = CircleOf("circle 1,2 r3");
    circle.SetElevation(8.0);
    EXPECT_EQ(circle.GetElevation(), 8.0);
    ExpectGeo(circle, "circle 1,2,8 r3", 0.0);
}

TEST(QnGeCircle2d, SymplifyGivesThePointOfAVanishingCircle) {
    const std::unique_ptr<QnGeObject> point(CircleOf("circle 1,2,3 r1e-6").Symplify());
    ExpectGeo(point.get(), "point 1,2,3", 0.0);
    EXPECT_EQ(CircleOf("circle 1,2 r2e-6").Symplify(), nullptr);
    EXPECT_EQ(QnGeCircle2d(QnGePoint(), -1.0).Symplify(), nullptr);
}

// ---- stream ------------------------------------------------------------------------------------------

TEST(QnGeCircle2d, StreamHoldsFlagsCentreAndRadius) {
    QnDynArrayStream stream(64, 64);
    CircleOf("circle 1,2,3 r4 cw").StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + 4 * 8);
    stream.MoveToFirst();
    long flags = 0;
    stream >> flags;
    EXPECT_EQ(flags, 0x20);
    for (const double expected : {1.0, 2.0, 3.0, 4.0}) {
        double value = UNTOUCHED;
        stream >> value;
        EXPECT_EQ(value, expected);
    }
    stream.MoveToFirst();
    QnGeCircle2d read;
    read.StreamIn(stream);
    ExpectGeo(read, "circle 1,2,3 r4 cw", 0.0);
}
