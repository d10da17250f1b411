// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "RoundTesting.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnPushVar.h"
#include "support/ExpectGeo.h"

using namespace round_testing;

namespace {

/// Both sides are asked: a pair has one answer, which the arc gives.
void ExpectPair(const std::string& arc, const std::string& other, const std::string& expected) {
    ExpectIntersect(arc, other, expected);
    ExpectIntersect(other, arc, expected);
}

/// The upper half of the circle of radius 5 round the origin, both ways round.
const char* const UPPER = "arc 0,0 r5 from 0 sweep pi";
const char* const UPPER_CW = "arc 0,0 r5 from pi sweep pi cw";

}  // namespace

// ---- arc and line, ray, segment ----------------------------------------------------------------------

TEST(IntersectArc, LineMeetsTheArcOnlyWhereTheArcIs) {
    for (const char* arc : {UPPER, UPPER_CW}) {
        ExpectPair(arc, "line 3,0 0,1", "point 3,4");
        ExpectPair(arc, "line -9,3 1,0", "point -4,3; point 4,3");
        ExpectPair(arc, "line 9,3 -1,0", "point 4,3; point -4,3");
        ExpectPair(arc, "line -9,-3 1,0", "");
        ExpectPair(arc, "line -9,9 1,0", "");
        ExpectPair(arc, "line -9,5 1,0", "point 0,5");
        ExpectPair(arc, "line -9,-5 1,0", "");
    }
}

TEST(IntersectArc, LineThroughTheEndsMeetsBoth) {
    ExpectPair(UPPER, "line -9,0 1,0", "point -5,0; point 5,0");
    ExpectPair("arc 0,0 r5 from 0 sweep pi/2", "line 0,-9 0,1", "point 0,5");
}

TEST(IntersectArc, RayMeetsWhatBothReach) {
    ExpectPair(UPPER, "ray 3,0 0,1", "point 3,4");
    ExpectPair(UPPER, "ray 3,0 0,-1", "");
    ExpectPair(UPPER, "ray -9,3 1,0", "point -4,3; point 4,3");
    ExpectPair(UPPER, "ray 0,3 1,0", "point 4,3");
    ExpectPair(UPPER, "ray -9,9 1,0", "");
}

TEST(IntersectArc, KeptOddReversedRayHandedToAnArcIsMirrored) {
    ExpectIntersect("ray reversed 3,0 0,1", UPPER, "point 3,4");
    // The hit at t = 4 comes back at 1 - t = -3, below the arc.
    ExpectIntersect(UPPER, "ray reversed 3,0 0,1", "");
    ExpectIntersect("arc 0,0 r5 from pi sweep pi", "ray reversed 0,1 0,4", "");
    // The hit at t = 1.25 comes back at -0.25, which is off the circle but within the angles of the arc.
    ExpectIntersect(UPPER, "ray reversed 0,0 0,-4", "point 0,1");
}

TEST(IntersectArc, SegmentMeetsWhatBothReach) {
    ExpectPair(UPPER, "seg 3,-9 3,9", "point 3,4");
    ExpectPair(UPPER, "seg 3,-9 3,0", "");
    ExpectPair(UPPER, "seg 3,0 3,4", "point 3,4");
    ExpectPair(UPPER, "seg -9,3 9,3", "point -4,3; point 4,3");
    ExpectPair(UPPER, "seg 9,3 0,3", "point 4,3");
    ExpectPair(UPPER, "seg -1,5 1,5", "point 0,5");
}

TEST(IntersectArc, EndsReachPastByTheLengthTolerance) {
    // The line x = 5 cos(angle) meets the circle of radius 5 beside the end at pi/2.
    const auto meetsAt = [](double x) {
        QnGeObjList found;
        const QnGeArc2d arc = ArcOf("arc 0,0 r5 from 0 sweep pi/2");
        return arc.IntersectWith(QnGeLineSeg2d(QnGePoint(x, 1), QnGePoint(x, 9)), found);
    };
    EXPECT_TRUE(meetsAt(0.0));
    EXPECT_TRUE(meetsAt(-9e-7));
    EXPECT_FALSE(meetsAt(-1.2e-6));
}

TEST(IntersectArc, KeptOddBeforeTheStartTheAngleToleranceDecides) {
    const auto meetsAt = [](const char* arc, double y) {
        QnGeObjList found;
        return ArcOf(arc).IntersectWith(QnGeLineSeg2d(QnGePoint(0, y), QnGePoint(20000, y)), found);
    };
    // Large: 9e-6 radians before the start are 0.09 in length and count as the start.
    EXPECT_TRUE(meetsAt("arc 0,0 r10000 from 0 sweep 1", -0.09));
    EXPECT_FALSE(meetsAt("arc 0,0 r10000 from 0 sweep 1", -0.11));
    // Small: 9e-7 before the start is 9e-5 radians and does not, though the point is on the arc by HitTest.
    EXPECT_FALSE(meetsAt("arc 0,0 r0.01 from 0 sweep 1", -9e-7));
    EXPECT_EQ(HitBits(ArcOf("arc 0,0 r0.01 from 0 sweep 1"), 0.01, -9e-7), HIT_ON);
    EXPECT_TRUE(meetsAt("arc 0,0 r0.01 from 0 sweep 1", -9e-8));
}

TEST(IntersectArc, ReachPastTheEndIsATenthOfTheArcAtMost) {
    // Length 5e-6: the tolerance of 1e-6 would be a fifth of it. Two circles of radius 5e-6, centres one radius apart,
    // meet 60 degrees up and down from the way between the centres.
    const double up = EXACT_PI / 3.0;
    const auto meets = [up](double paOfHit) {
        const QnGeArc2d arc(QnGePoint(0, 0), 5e-6, up - paOfHit * 1.0, 1.0);
        QnGeObjList found;
        return arc.IntersectWith(QnGeCircle2d(QnGePoint(5e-6, 0), 5e-6), found);
    };
    EXPECT_TRUE(meets(0.9));
    EXPECT_TRUE(meets(1.08));
    EXPECT_FALSE(meets(1.15));
}

// ---- arc and circle ----------------------------------------------------------------------------------

TEST(IntersectArc, CircleMeetsTheArcOnlyWhereTheArcIs) {
    ExpectPair(UPPER, "circle 6,0 r5", "point 3,4");
    ExpectPair("arc 0,0 r5 from 0 sweep pi cw", "circle 6,0 r5", "point 3,-4");
    ExpectPair("arc 0,0 r5 from -2 sweep 4", "circle 6,0 r5", "point 3,4; point 3,-4");
    ExpectPair("arc 0,0 r5 from pi/2 sweep pi", "circle 6,0 r5", "");
    ExpectPair(UPPER, "circle 20,0 r5", "");
    ExpectPair(UPPER, "circle 0,8 r3", "point 0,5");
    ExpectPair(UPPER, "circle 0,-8 r3", "");
}

TEST(IntersectArc, ItsOwnCircleSharesTheWholeArc) {
    ExpectPair("arc 0,0,7 r5 from 1 sweep 2 cw", "circle 0,0 r5", "arc 0,0,7 r5 from 1 sweep 2 cw");
    ExpectPair("arc 0,0 r5 from 1 sweep 2", "circle 0,0 r5 cw", "arc 0,0 r5 from 1 sweep 2");
}

// ---- arc and arc on different circles ----------------------------------------------------------------

TEST(IntersectArc, ArcsMeetWhereBothAre) {
    ExpectIntersect(UPPER, "arc 6,0 r5 from 0 sweep 2pi", "point 3,4");
    ExpectIntersect(UPPER, "arc 6,0 r5 from pi/2 sweep pi/2", "point 3,4");
    ExpectIntersect(UPPER, "arc 6,0 r5 from pi sweep pi/2", "");
    ExpectIntersect(UPPER, "arc 6,0 r5 from pi sweep pi/2 cw", "point 3,4");
    ExpectIntersect(UPPER, "arc 20,0 r5 from 0 sweep 2pi", "");
    ExpectIntersect(UPPER, "arc 0,8 r3 from pi sweep pi", "point 0,5");
    ExpectIntersect(UPPER, "arc 0,8 r3 from 0 sweep pi", "");
}

TEST(IntersectArc, CrossingsComeInTheOrderOfTheArgumentsCircle) {
    // The argument is the one that crosses the receiver's circle: the first point is left of the way from it.
    ExpectIntersect("arc 0,0 r5 from -2 sweep 4", "arc 6,0 r5 from 1 sweep 4", "point 3,-4; point 3,4");
    ExpectIntersect("arc 6,0 r5 from 1 sweep 4", "arc 0,0 r5 from -2 sweep 4", "point 3,4; point 3,-4");
}

TEST(IntersectArc, ArcsThatMeetEndToEndShareThePoint) {
    ExpectIntersect("arc 0,0 r5 from 0 sweep pi", "arc 10,0 r5 from 0 sweep pi", "point 5,0");
    ExpectIntersect("arc 0,0 r5 from 0 sweep pi/2", "arc 5,5 r5 from pi sweep pi/2", "point 5,0; point 0,5", 1e-8);
}

// ---- arcs on one circle ------------------------------------------------------------------------------

TEST(ArcOverlap, ClosedArgumentCoversTheReceiver) {
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2 cw", "arc 0,0 r2 from 3 sweep 2pi", "arc 0,0 r2 from 1 sweep 2 cw");
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2pi", "arc 0,0 r2 from 3 sweep 2pi cw", "arc 0,0 r2 from 1 sweep 2pi");
}

TEST(ArcOverlap, KeptOddClosedReceiverLetsTheArgumentKeepItsDirection) {
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2pi", "arc 0,0 r2 from 3 sweep 1", "arc 0,0 r2 from 3 sweep 1");
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2pi", "arc 0,0 r2 from 3 sweep 1 cw", "arc 0,0 r2 from 3 sweep 1 cw");
}

TEST(ArcOverlap, EqualArcsShareTheReceiver) {
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2", "arc 0,0 r2 from 1 sweep 2", "arc 0,0 r2 from 1 sweep 2");
    // Clockwise from 2 pi - 3 the second runs over the same stretch the other way.
    const char* const reversed = "arc 0,0 r2 from 3.2831853071796 sweep 2 cw";
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2", reversed, "arc 0,0 r2 from 1 sweep 2");
    ExpectIntersect(reversed, "arc 0,0 r2 from 1 sweep 2", reversed);
}

TEST(ArcOverlap, ArgumentOverTheStart) {
    const char* const arc = "arc 0,0 r2 from 1 sweep 2";
    ExpectIntersect(arc, "arc 0,0 r2 from 0.5 sweep 3", arc);
    ExpectIntersect(arc, "arc 0,0 r2 from 0.5 sweep 2.5", arc);
    ExpectIntersect(arc, "arc 0,0 r2 from 0.5 sweep 1", "arc 0,0 r2 from 1 sweep 0.5");
    ExpectIntersect(arc, "arc 0,0 r2 from 6 sweep 1.7831853071796", "arc 0,0 r2 from 1 sweep 0.5");
    ExpectIntersect(arc, "arc 0,0 r2 from 0.5 sweep 0.5", "point 1.0806046117363,1.6829419696158");
}

TEST(ArcOverlap, ArgumentOverTheStartAndIntoTheEnd) {
    const char* const arc = "arc 0,0 r2 from 1 sweep 4";
    // From 4 once round to 1.5: a piece at the start, then a piece at the end.
    ExpectIntersect(arc, "arc 0,0 r2 from 4 sweep 3.7831853071796",
                    "arc 0,0 r2 from 1 sweep 0.5; arc 0,0 r2 from 4 sweep 1");
    // From 4 exactly to the start: a point, then the piece at the end.
    ExpectIntersect(arc, "arc 0,0 r2 from 4 sweep 3.2831853071796",
                    "point 1.0806046117363,1.6829419696158; arc 0,0 r2 from 4 sweep 1");
    // From exactly the end to 1.5: a piece, then a point.
    ExpectIntersect(arc, "arc 0,0 r2 from 5 sweep 2.7831853071796",
                    "arc 0,0 r2 from 1 sweep 0.5; point 0.56732437092645,-1.9178485493263");
    // The complement of the arc touches at both ends.
    ExpectIntersect(arc, "arc 0,0 r2 from 5 sweep 2.2831853071796",
                    "point 1.0806046117363,1.6829419696158; point 0.56732437092645,-1.9178485493263");
    ExpectIntersect(arc, "arc 0,0 r2 from 5.5 sweep 2", "arc 0,0 r2 from 1 sweep 0.2168146928204");
}

TEST(ArcOverlap, ArgumentBehindTheStart) {
    const char* const arc = "arc 0,0 r2 from 1 sweep 2";
    ExpectIntersect(arc, "arc 0,0 r2 from 4 sweep 1", "");
    ExpectIntersect(arc, "arc 0,0 r2 from 3 sweep 1", "point -1.9799849932009,0.28224001611973");
    ExpectIntersect(arc, "arc 0,0 r2 from 2 sweep 3", "arc 0,0 r2 from 2 sweep 1");
    ExpectIntersect(arc, "arc 0,0 r2 from 2 sweep 1", "arc 0,0 r2 from 2 sweep 1");
    ExpectIntersect(arc, "arc 0,0 r2 from 1.5 sweep 1", "arc 0,0 r2 from 1.5 sweep 1");
    ExpectIntersect(arc, "arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 1 sweep 1");
}

TEST(ArcOverlap, PiecesRunAsTheReceiver) {
    // The argument runs over the angles 5 down to 2, counted clockwise from 2 pi - 5.
    const char* const down = "arc 0,0 r2 from 1.2831853071796 sweep 3 cw";
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2", down, "arc 0,0 r2 from 2 sweep 1");
    ExpectIntersect(down, "arc 0,0 r2 from 1 sweep 2", "arc 0,0 r2 from 3.2831853071796 sweep 1 cw");
    // Both ends of the receiver: from 7 down to 4, counted clockwise from 4 pi - 7.
    ExpectIntersect("arc 0,0 r2 from 0.5 sweep 4", "arc 0,0 r2 from 5.5663706143592 sweep 3 cw",
                    "arc 0,0 r2 from 0.5 sweep 0.2168146928204; arc 0,0 r2 from 4 sweep 0.5");
    ExpectIntersect("arc 0,0 r2 from 1 sweep 2 cw", "arc 0,0 r2 from 2 sweep 3 cw", "arc 0,0 r2 from 2 sweep 1 cw");
}

TEST(ArcOverlap, TouchIsMeasuredInLength) {
    // On radius 1000 the length tolerance is 1e-9 radians, far below the angle tolerance.
    const char* const arc = "arc 0,0 r1000 from 1 sweep 1";
    const char* const end = "point -416.14683654714,909.2974268257";
    ExpectIntersect(arc, "arc 0,0 r1000 from 2.0000000005 sweep 1", end, 1e-5);
    ExpectIntersect(arc, "arc 0,0 r1000 from 2.000000002 sweep 1", "");
    ExpectIntersect(arc, "arc 0,0 r1000 from 1.9999999995 sweep 1", end, 1e-5);
    ExpectIntersect(arc, "arc 0,0 r1000 from 1.999999 sweep 1", "arc 0,0 r1000 from 1.999999 sweep 0.000001");
    ExpectIntersect(arc, "arc 0,0 r1000 from 0.5 sweep 0.500001", "arc 0,0 r1000 from 1 sweep 0.000001");
    ExpectIntersect(arc, "arc 0,0 r1000 from 0.5 sweep 0.5000000005", "point 540.30230586814,841.4709848079", 1e-5);
    ExpectIntersect(arc, "arc 0,0 r1000 from 0.5 sweep 0.499999", "");
}

TEST(ArcOverlap, StretchesShorterThanTheAngleToleranceCount) {
    const char* const arc = "arc 0,0 r1000 from 1 sweep 1";
    // Over the start and 1e-7 into it, over the start and 1e-7 past the end, 1e-7 before the end, 1e-7 past it.
    ExpectIntersect(arc, "arc 0,0 r1000 from 0.5 sweep 0.5000001", "arc 0,0 r1000 from 1 sweep 0.0000001");
    ExpectIntersect(arc, "arc 0,0 r1000 from 0.5 sweep 1.5000001", arc);
    ExpectIntersect(arc, "arc 0,0 r1000 from 1.9999999 sweep 6",
                    "arc 0,0 r1000 from 1 sweep 0.7168145928204; arc 0,0 r1000 from 1.9999999 sweep 0.0000001");
    ExpectIntersect(arc, "arc 0,0 r1000 from 2.0000001 sweep 6", "arc 0,0 r1000 from 1 sweep 0.7168147928204");
    ExpectIntersect(arc, "arc 0,0 r1000 from 1.5 sweep 0.5000001", "arc 0,0 r1000 from 1.5 sweep 0.5");
}

TEST(ArcOverlap, SmallArcsTouchWithinAWideAngle) {
    // On radius 0.01 the length tolerance is 1e-4 radians.
    const char* const arc = "arc 0,0 r0.01 from 1 sweep 1";
    ExpectIntersect(arc, "arc 0,0 r0.01 from 2.00009 sweep 1", "point -0.0041614683654714,0.009092974268257");
    ExpectIntersect(arc, "arc 0,0 r0.01 from 2.00011 sweep 1", "");
    ExpectIntersect(arc, "arc 0,0 r0.01 from 1.99991 sweep 1", "point -0.0041614683654714,0.009092974268257");
    ExpectIntersect(arc, "arc 0,0 r0.01 from 1.99989 sweep 1", "arc 0,0 r0.01 from 1.99989 sweep 0.00011");
    ExpectIntersect(arc, "arc 0,0 r0.01 from 0.5 sweep 0.50009", "point 0.0054030230586814,0.008414709848079");
    ExpectIntersect(arc, "arc 0,0 r0.01 from 0.5 sweep 0.50011", "arc 0,0 r0.01 from 1 sweep 0.00011");
}

TEST(ArcOverlap, KeptOddSmallStretchMayHangOverTheEnd) {
    // Past the end by less than the tolerance nothing is cut.
    const char* const arc = "arc 0,0 r0.01 from 1 sweep 1";
    ExpectIntersect(arc, "arc 0,0 r0.01 from 1.5 sweep 0.50005", "arc 0,0 r0.01 from 1.5 sweep 0.50005");
    ExpectIntersect(arc, "arc 0,0 r0.01 from 0.5 sweep 1.50005", "arc 0,0 r0.01 from 1 sweep 1.00005");
}

TEST(ArcOverlap, KeptOddArgumentShorterThanTheToleranceAtTheStartGivesTheWholeArc) {
    // Both its ends snap to the start, so it reads as one that runs all round.
    const char* const arc = "arc 0,0 r0.01 from 1 sweep 1";
    ExpectIntersect(arc, "arc 0,0 r0.01 from 1 sweep 0.00005",
                    "point 0.0054030230586814,0.008414709848079; arc 0,0 r0.01 from 1 sweep 1");
    ExpectIntersect(arc, "arc 0,0 r0.01 from 1.5 sweep 0.00005", "arc 0,0 r0.01 from 1.5 sweep 0.00005");
}

TEST(ArcOverlap, ToleranceIsATenthOfARadianAtMost) {
    // On radius 5e-6 the length tolerance would be 0.2 radians. The numbers are chosen so that the differences are
    // exactly 0.1, which counts as a touch, and as covered over the start.
    const auto overlap = [](double start, double sweep, double otherStart, double otherSweep) {
        QnGeObjList found;
        const QnGeArc2d arc(QnGePoint(0, 0), 5e-6, start, sweep);
        arc.IntersectWith(QnGeArc2d(QnGePoint(0, 0), 5e-6, otherStart, otherSweep), found);
        return ToText(found);
    };
    EXPECT_EQ(overlap(0.2, 0.1, 0.0, 0.4), "arc 0,0 r5e-06 from 0.2 sweep 0.1");
    EXPECT_EQ(overlap(0.0, 0.13 + 0.1, 0.13, 0.05).substr(0, 5), "point");
    EXPECT_EQ(overlap(0.0, 0.25, 0.13, 0.05), "arc 0,0 r5e-06 from 0.13 sweep 0.05");
}

TEST(ArcOverlap, AngleToleranceComesBack) {
    const QnPushVar<double> own(g_angleZero, 3e-5);
    for (const char* other :
         {"arc 0,0 r2 from 3 sweep 2pi", "arc 0,0 r2 from 1 sweep 2", "arc 0,0 r2 from 4 sweep 1",
          "arc 0,0 r2 from 3 sweep 1", "arc 0,0 r2 from 0.5 sweep 1", "arc 9,0 r2 from 0 sweep 1"}) {
        QnGeObjList found;
        ArcOf("arc 0,0 r2 from 1 sweep 2").IntersectWith(*ParseGeo(other), found);
        EXPECT_EQ(g_angleZero, 3e-5) << other;
    }
}

TEST(ArcOverlap, CopiesKeepTheFlagWordOfTheirSource) {
    QnGeArc2d arc = ArcOf("arc 0,0 r2 from 1 sweep 2");
    QnGeArc2d inner = ArcOf("arc 0,0 r2 from 1.5 sweep 1");
    arc.SetBit(0x400);
    inner.SetBit(0x800);
    QnGeObjList found;
    EXPECT_TRUE(arc.IntersectWith(inner, found));
    EXPECT_TRUE(inner.IntersectWith(arc, found));
    ASSERT_EQ(found.GetLength(), 2);
    EXPECT_EQ(found.GetPData(0)->GetBits(), 0x800U) << "the piece is the argument's copy";
    EXPECT_EQ(found.GetPData(1)->GetBits(), 0x800U) << "the piece is the receiver's copy";
}

// ---- the rest ----------------------------------------------------------------------------------------

TEST(IntersectArc, OtherObjectsAreHandedTheArc) {
    ExpectIntersect(UPPER, "point 3,4", "point 3,4");
    ExpectIntersect(UPPER, "point 3,-4", "");
    ExpectIntersect(UPPER, "mline 3,0 3,9 -3,9 -3,0", "point 3,4; point -3,4");
    ExpectIntersect(UPPER, "mline 0,0 3,4 9,9", "point 3,4; point 3,4");
    ExpectIntersect(UPPER, "pline 11,0@pi 1,0", "point 3,4");
    const QnGeEllipse2d ellipse;
    QnGeObjList found;
    EXPECT_FALSE(ParseGeo(UPPER)->IntersectWith(ellipse, found));
    EXPECT_FALSE(ellipse.IntersectWith(*ParseGeo(UPPER), found));
}

TEST(IntersectArc, ResultsGoToTheTailOfTheList) {
    QnGeObjList found;
    ParseGeoList("point 9,9", found);
    const QnGeArc2d arc = ArcOf(UPPER);
    EXPECT_TRUE(arc.IntersectWith(*ParseGeo("seg 0,0 0,9"), found));
    EXPECT_FALSE(arc.IntersectWith(*ParseGeo("seg 0,0 0,-9"), found)) << "false though the list is not empty";
    EXPECT_FALSE(arc.IntersectWith(*ParseGeo("arc 0,0 r5 from 4 sweep 1"), found));
    EXPECT_FALSE(arc.IntersectWith(*ParseGeo("circle 50,0 r5"), found));
    EXPECT_TRUE(arc.IntersectWith(*ParseGeo("circle 0,0 r5"), found));
    EXPECT_TRUE(arc.IntersectWith(*ParseGeo("arc 0,0 r5 from 1 sweep 1"), found));
    ExpectGeoList(found, "point 9,9; point 0,5; arc 0,0 r5 from 0 sweep pi; arc 0,0 r5 from 1 sweep 1");
}
