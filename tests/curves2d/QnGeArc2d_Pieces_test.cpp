// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "RoundTesting.h"
#include "base/QnDynArrayStream.h"
#include "frame/QnPushVar.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePointList.h"

using namespace round_testing;

namespace {

void ExpectPiece(const char* arc, double pa1, double pa2, const char* expected) {
    ExpectGeo(std::unique_ptr<QnGeCurve2d>(ArcOf(arc).GetSubCurve(pa1, pa2)).get(), expected);
}

void ExpectPieces(const char* arc, std::initializer_list<double> pas, const char* expected) {
    QnGeObjList pieces;
    SplitAt(ArcOf(arc), pas, pieces);
    ExpectGeoList(pieces, expected);
}

std::string Chords(const char* arc, double prec) {
    return ShapeOf(std::unique_ptr<QnGeMLine2d>(ArcOf(arc).MLinearize(prec)));
}

void ExpectClosest(const char* arc, const QnGePoint& pt, const char* expected) {
    QnGePointList points;
    EXPECT_TRUE(ArcOf(arc).GetClosestPoint2d(pt, points));
    ASSERT_EQ(points.GetLength(), 1);
    ExpectPoint(points.GetAt(0), expected);
}

}  // namespace

// ---- sub-curves and splitting ------------------------------------------------------------------------

TEST(QnGeArc2d, SubCurveOfAnOpenArc) {
    ExpectPiece("arc 1,2,3 r4 from 1 sweep 2", 0.25, 0.75, "arc 1,2,3 r4 from 1.5 sweep 1");
    ExpectPiece("arc 1,2,3 r4 from 1 sweep 2 cw", 0.25, 0.75, "arc 1,2,3 r4 from 1.5 sweep 1 cw");
    ExpectPiece("arc 0,0 r4 from 6 sweep 2", 0.5, 1.0, "arc 0,0 r4 from 0.7168146928204 sweep 1");
}

TEST(QnGeArc2d, KeptOddSubCurveOfEqualOrSwappedParametersOnAnOpenArc) {
    ExpectPiece("arc 0,0 r4 from 1 sweep 2", 0.5, 0.5, "arc 0,0 r4 from 2 sweep 0");
    const std::unique_ptr<QnGeCurve2d> nothing(ArcOf("arc 0,0 r4 from 1 sweep 2").GetSubCurve(0.5, 0.5));
    EXPECT_FALSE(nothing->IsValid());
    ExpectPiece("arc 0,0 r4 from 1 sweep 2", 0.75, 0.25, "arc 0,0 r4 from 2.5 sweep 5.2831853071796");
    ExpectPiece("arc 0,0 r4 from 1 sweep 2", 0.5, 0.5 + 4.9e-6, "arc 0,0 r4 from 2 sweep 0");
}

TEST(QnGeArc2d, SubCurveOfAClosedArcIsTheCircles) {
    ExpectPiece("arc 0,0 r4 from 1 sweep 2pi", 0.25, 0.75, "arc 0,0 r4 from 2.5707963267949 sweep pi");
    ExpectPiece("arc 0,0 r4 from 1 sweep 2pi", 0.5, 0.5, "arc 0,0 r4 from 4.1415926535898 sweep 2pi");
    ExpectPiece("arc 0,0 r4 from 1 sweep 2pi cw", 0.75, 0.25, "arc 0,0 r4 from 5.7123889803847 sweep pi cw");
    ExpectPiece("arc 0,0 r4 from 1 sweep 2pi", 0.0, 1.0, "arc 0,0 r4 from 1 sweep 2pi");
}

TEST(QnGeArc2d, SplitOfAnOpenArcGoesFromEndToEnd) {
    ExpectPieces("arc 0,0 r4 from 1 sweep 2", {}, "");
    ExpectPieces("arc 0,0 r4 from 1 sweep 2", {0.25, 0.5},
                 "arc 0,0 r4 from 1 sweep 0.5; arc 0,0 r4 from 1.5 sweep 0.5; arc 0,0 r4 from 2 sweep 1");
    ExpectPieces("arc 0,0 r4 from 1 sweep 2", {0.0, 1.0}, "arc 0,0 r4 from 1 sweep 2");
    ExpectPieces("arc 0,0 r4 from 1 sweep 2 cw", {0.5, 0.5},
                 "arc 0,0 r4 from 1 sweep 1 cw; arc 0,0 r4 from 2 sweep 1 cw");
}

TEST(QnGeArc2d, SplitOfAClosedArcHasAPieceOverTheSeam) {
    ExpectPieces("arc 0,0 r4 from 1 sweep 2pi", {0.5}, "arc 0,0 r4 from 4.1415926535898 sweep 2pi");
    ExpectPieces("arc 0,0 r4 from 1 sweep 2pi", {0.25, 0.5},
                 "arc 0,0 r4 from 2.5707963267949 sweep pi/2; arc 0,0 r4 from 4.1415926535898 sweep 3pi/2");
    ExpectPieces("arc 0,0 r4 from 1 sweep 2pi", {0.0, 0.5, 1.0},
                 "arc 0,0 r4 from 1 sweep pi; arc 0,0 r4 from 4.1415926535898 sweep pi");
}

// ---- linearising -------------------------------------------------------------------------------------

TEST(QnGeArc2d, DefaultStepIsTheCirclesInTheArcsParameter) {
    EXPECT_EQ(ArcOf("arc 0,0 r4 from 1 sweep 2").GetMLinePrec(), 0.1 / 2.0);
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2", 0.0), "open 21");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 1.57", 0.0), "open 17");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 0.01", 0.0), "open 2");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2pi", 0.0), "closed 63");
    const QnPushVar<double> keep(QnGeCircle2d::s_dMLinePreci, 0.5);
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2", 0.0), "open 5");
}

TEST(QnGeArc2d, StepOfTheCallerIsAShareOfTheSweep) {
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2", 0.25), "open 5");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 0.2", 0.25), "open 5");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2pi", 0.25), "closed 4");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2", 0.3), "open 5");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2", 9.0), "open 2");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2pi", 9.0), "closed 2");
}

TEST(QnGeArc2d, StepOfNothingGivesTheFewestChords) {
    const QnPushVar<double> keep(QnGeCircle2d::s_dMLinePreci, 0.0);
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2", 0.0), "open 2");
    EXPECT_EQ(Chords("arc 0,0 r4 from 1 sweep 2pi", 0.0), "closed 2");
}

TEST(QnGeArc2d, MLinearizeKeepsTheEndsAndTheDirection) {
    const std::unique_ptr<QnGeMLine2d> half(ArcOf("arc 1,2,3 r4 from 0 sweep pi cw").MLinearize(0.5));
    ExpectGeo(half.get(), "mline 5,2,3 1,-2,3 -3,2,3");
    const std::unique_ptr<QnGeMLine2d> whole(ArcOf("arc 1,2,3 r4 from 0 sweep 2pi").MLinearize(0.25));
    ExpectGeo(whole.get(), "mline 5,2,3 1,6,3 -3,2,3 1,-2,3 close");
}

TEST(QnGeArc2d, MLinearizeByDistGoesAlongTheLength) {
    const std::unique_ptr<QnGeMLine2d> open(ArcOf("arc 0,0 r2 from 0 sweep 2").MLinearizeByDist(1.5, true));
    ASSERT_EQ(ShapeOf(open), "open 4");
    const double angles[] = {0.0, 0.75, 1.5, 2.0};
    for (long i = 0; i < 4; ++i) {
        EXPECT_LT(PlanDistance(open->GetVertex(i), PlainPoint(QnGePoint(), 2.0, true, angles[i])), 1e-9) << i;
    }
    const QnGeArc2d closed = ArcOf("arc 0,0 r2 from 1 sweep 2pi");
    const std::unique_ptr<QnGeMLine2d> quarters(closed.MLinearizeByDist(closed.Length() / 4.0, false));
    EXPECT_EQ(ShapeOf(quarters), "closed 4");
    const std::unique_ptr<QnGeMLine2d> exact(ArcOf("arc 0,0 r2 from 0 sweep 2").MLinearizeByDist(2.0, false));
    EXPECT_EQ(ShapeOf(exact), "open 3") << "the last step is the end point, once";
}

TEST(QnGeArc2d, PLinearizeIsOneBulgedSegment) {
    const std::unique_ptr<QnGeMLine2d> ccw(ArcOf("arc 1,2,3 r4 from 0 sweep pi/2").PLinearize(0.01));
    ExpectGeo(ccw.get(), "pline 5,2,3@pi/2 1,6,3");
    const std::unique_ptr<QnGeMLine2d> cw(ArcOf("arc 1,2,3 r4 from 0 sweep pi/2 cw").PLinearize(7.0));
    ExpectGeo(cw.get(), "pline 5,2,3@-pi/2 1,-2,3");
}

TEST(QnGeArc2d, ExtendCurveIsTheWholeCircle) {
    const std::unique_ptr<QnGeCurve2d> circle(ArcOf("arc 1,2,3 r4 from 0 sweep pi/2 cw").GetExtendCurve());
    ExpectGeo(circle.get(), "circle 1,2,3 r4 cw", 0.0);
}

// ---- closest points ----------------------------------------------------------------------------------

TEST(QnGeArc2d, ClosestPointIsTheCirclesIfTheArcHasIt) {
    ExpectClosest("arc 1,2,3 r4 from 0 sweep pi", QnGePoint(1, 50, 3), "1,6,3");
    ExpectClosest("arc 1,2,3 r4 from 0 sweep pi", QnGePoint(1, 2.5, 3), "1,6,3");
    ExpectClosest("arc 1,2,3 r4 from 0 sweep pi cw", QnGePoint(1, -9, 3), "1,-2,3");
}

TEST(QnGeArc2d, ClosestPointIsTheNearerEndOtherwise) {
    ExpectClosest("arc 0,0 r2 from 0 sweep pi", QnGePoint(1, -5), "2,0");
    ExpectClosest("arc 0,0 r2 from 0 sweep pi", QnGePoint(-1, -5), "-2,0");
    ExpectClosest("arc 0,0 r2 from 0 sweep pi cw", QnGePoint(1, 5), "2,0");
}

TEST(QnGeArc2d, ClosestPointOfATieIsTheEnd) {
    // The parameters -1 and 1 are mirror images bit for bit.
    ExpectClosest("arc 0,0 r2 from -1 sweep 2", QnGePoint(-5, 0), "1.0806046117362795,1.682941969615793");
}

TEST(QnGeArc2d, CentreHasNoClosestPoint) {
    QnGePointList points;
    EXPECT_FALSE(ArcOf("arc 1,2,3 r4 from 0 sweep pi").GetClosestPoint2d(QnGePoint(1, 2, 3), points));
    EXPECT_TRUE(points.IsEmpty());
}

// ---- changing ----------------------------------------------------------------------------------------

TEST(QnGeArc2d, OffsetChangesTheRadiusOnly) {
    QnGeArc2d ccw = ArcOf("arc 1,2 r3 from 1 sweep 2");
    EXPECT_TRUE(ccw.Offset(1.0));
    ExpectGeo(ccw, "arc 1,2 r4 from 1 sweep 2");
    EXPECT_FALSE(ccw.Offset(-4.0));
    ExpectGeo(ccw, "arc 1,2 r4 from 1 sweep 2", 0.0);
    QnGeArc2d cw = ArcOf("arc 1,2 r3 from 1 sweep 2 cw");
    EXPECT_TRUE(cw.Offset(-1.0));
    ExpectGeo(cw, "arc 1,2 r4 from 1 sweep 2 cw");
    EXPECT_FALSE(cw.Offset(4.5));
    EXPECT_EQ(cw.GetOffsetCurve(4.5), nullptr);
}

TEST(QnGeArc2d, ReverseExchangesTheEnds) {
    QnGeArc2d arc = ArcOf("arc 1,2 r3 from 1 sweep 2");
    arc.Reverse();
    ExpectGeo(arc, "arc 1,2 r3 from 3.2831853071796 sweep 2 cw");
    arc.Reverse();
    ExpectGeo(arc, "arc 1,2 r3 from 1 sweep 2");
    QnGeArc2d atZero = ArcOf("arc 1,2 r3 from 0.000004 sweep 2");
    atZero.Reverse();
    atZero.Reverse();
    EXPECT_EQ(atZero.GetStartAngle(), 0.0) << "a start next to +x snaps to it";
    ExpectGeo(atZero, "arc 1,2 r3 from 0 sweep 2");
}

TEST(QnGeArc2d, SymplifyGivesThePointOfAVanishingArc) {
    const std::unique_ptr<QnGeObject> flat(ArcOf("arc 1,2,3 r2 from 0 sweep 9e-6").Symplify());
    ExpectGeo(flat.get(), "point 3,2,3");
    const std::unique_ptr<QnGeObject> small(ArcOf("arc 1,2,3 r9e-7 from 0 sweep 1").Symplify());
    ExpectGeo(small.get(), "point 1.0000009,2,3");
    EXPECT_EQ(ArcOf("arc 1,2,3 r2e-6 from 0 sweep 1").Symplify(), nullptr);
    EXPECT_EQ(ArcOf("arc 1,2,3 r2 from 0 sweep 2e-5").Symplify(), nullptr);
}

TEST(QnGeArc2d, ElevationIsTheCentresHeight) {
    QnGeArc2d arc = ArcOf("arc 1,2 r3 from 1 sweep 2");
    arc.SetElevation(7.0);
    EXPECT_EQ(arc.GetElevation(), 7.0);
    ExpectGeo(arc, "arc 1,2,7 r3 from 1 sweep 2", 0.0);
}

TEST(QnGeArc2d, TransformTakesTheThreePointsAlong) {
    QnGeArc2d arc = ArcOf("arc 1,2,7 r3 from 1 sweep 2");
    arc.Move(10.0, 20.0);
    ExpectGeo(arc, "arc 11,22,7 r3 from 1 sweep 2");
    arc.Rotate(QN_HALF_PI);
    ExpectGeo(arc, "arc -22,11,7 r3 from 2.5707963267949 sweep 2");
    arc.Scale(2.0, 2.0);
    ExpectGeo(arc, "arc -44,22,7 r6 from 2.5707963267949 sweep 2");
}

TEST(QnGeArc2d, MirrorTurnsTheDirection) {
    QnGeArc2d arc = ArcOf("arc 1,2 r3 from 1 sweep 2");
    arc.Scale(-1.0, 1.0);
    // Mirrored in the y axis the angle 1 becomes pi - 1, which is pi + 1 counted clockwise.
    ExpectGeo(arc, "arc -1,2 r3 from 4.1415926535898 sweep 2 cw");
    QnGeMatrix mirror;
    mirror.CreateMirrorMatrix(QnGeBaseLine2d(QnGeVector2d(1, 0), QnGePoint(0, 0)));
    arc.TransformBy(mirror);
    ExpectGeo(arc, "arc -1,-2 r3 from 4.1415926535898 sweep 2");
}

TEST(QnGeArc2d, UnevenScaleGivesTheCircularArcThroughTheThreePoints) {
    QnGeArc2d arc = ArcOf("arc 0,0 r2 from 0 sweep pi");
    arc.Scale(1.0, 2.0);
    // Through (2,0), (0,4), (-2,0): centre (0, 1.5), radius 2.5.
    EXPECT_NEAR(arc.GetRadius(), 2.5, 1e-9);
    ExpectPoint(arc.GetCenter(), "0,1.5");
    ExpectPoint(arc.GetStartPoint(), "2,0");
    ExpectPoint(arc.GetEndPoint(), "-2,0");
    EXPECT_FALSE(arc.IsClockwise());
}

TEST(QnGeArc2d, TransformKeepsTheOwnFlagWord) {
    QnGeArc2d arc = ArcOf("arc 1,2 r3 from 1 sweep 2");
    arc.SetBit(0x400);
    arc.Move(1.0, 0.0);
    EXPECT_EQ(arc.GetBits(), 0x400U);
}

TEST(QnGeArc2d, ClosedArcSurvivesTransforms) {
    QnGeArc2d arc = ArcOf("arc 1,2,7 r3 from 1 sweep 2pi");
    arc.SetBit(0x400);
    arc.Move(10.0, 20.0);
    ExpectGeo(arc, "arc 11,22,7 r3 from 1 sweep 2pi");
    arc.Rotate(QN_HALF_PI);
    ExpectGeo(arc, "arc -22,11,7 r3 from 2.5707963267949 sweep 2pi");
    arc.Scale(-1.0, 1.0);
    // The start at the angle pi/2 + 1 goes to pi/2 - 1, counted clockwise 3pi/2 + 1.
    ExpectGeo(arc, "arc 22,11,7 r3 from 5.7123889803847 sweep 2pi cw");
    EXPECT_EQ(arc.GetBits(), 0x400U);
    arc.Scale(0.5, 0.5);
    ExpectGeo(arc, "arc 11,5.5,7 r1.5 from 5.7123889803847 sweep 2pi cw");
}

TEST(QnGeArc2d, ClosedArcKeepsItsExactSweep) {
    QnGeArc2d arc = ArcOf("arc 0,0 r3 from 1 sweep 6.28318");
    ASSERT_TRUE(arc.IsClosed());
    arc.Move(1.0, 1.0);
    EXPECT_EQ(arc.GetCentralAngle(), 6.28318);
    EXPECT_TRUE(arc.IsClosed());
}

TEST(QnGeArc2d, ClosedArcThatStartsAtPlusXStaysThere) {
    QnGeArc2d arc = ArcOf("arc 0,0 r3 from 0 sweep 2pi cw");
    arc.Move(1.0, 1.0);
    EXPECT_EQ(arc.GetStartAngle(), 0.0);
    arc.Rotate(1.0);
    EXPECT_NEAR(arc.GetStartAngle(), EXACT_TURN - 1.0, 1e-9);
}

// ---- stream ------------------------------------------------------------------------------------------

TEST(QnGeArc2d, StreamHoldsBothFlagWordsTheCircleAndTheAngles) {
    QnGeArc2d arc = ArcOf("arc 1,2,3 r4 from 0.5 sweep 1.5 cw");
    arc.SetBit(0x400);
    QnDynArrayStream stream(64, 64);
    arc.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + (4 + 4 * 8) + 2 * 8);
    stream.MoveToFirst();
    long own = 0, circle = 0;
    stream >> own;
    stream >> circle;
    EXPECT_EQ(own, 0x400);
    EXPECT_EQ(circle, 0x20);
    for (const double expected : {1.0, 2.0, 3.0, 4.0, 0.5, 1.5}) {
        double value = UNTOUCHED;
        stream >> value;
        EXPECT_EQ(value, expected);
    }
    stream.MoveToFirst();
    QnGeArc2d read;
    read.StreamIn(stream);
    ExpectGeo(read, "arc 1,2,3 r4 from 0.5 sweep 1.5 cw", 0.0);
    EXPECT_EQ(read.GetBits(), 0x400U);
}
