// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "EndTesting.h"

using namespace end_testing;

namespace {

constexpr EndResult FAILED = QnGeCurve2d::ETR_FAILED;
constexpr EndResult NO_INTERSECTION = QnGeCurve2d::ETR_NO_INTERSECTION;
constexpr EndResult NO_VALID_POINT = QnGeCurve2d::ETR_NO_VALID_POINT;
constexpr EndResult DEGENERATE = QnGeCurve2d::ETR_DEGENERATE;
constexpr EndResult DONE = QnGeCurve2d::ETR_DONE;

constexpr int LAST_FROM_STAYING = 0;
constexpr int FIRST_FROM_STAYING = 1;
constexpr int CLOSEST_TO_MOVING = 2;

/// One line that crosses the x axis at 2, 3 and 9.
const char* const ZIGZAG = "mline 2,-1 2,1 3,1 3,-1 9,-1 9,1";
/// One line that crosses the circle about the origin at a quarter, at five eighths and at seven eighths of it.
const char* const STAR = "mline 0,3 0,0 -3,-3 0,0 3,-3";
const char* const RAYS = "ray 0,0 3,-3; ray 0,0 0,1; ray 0,0 -1,-1";
const char* const HALF = "arc 0,0 r2 from 0 sweep pi";

/// Both forms, the list form with an object for each meeting point.
void ExpectPick(const char* curve, const char* one, const char* many, bool atStart, int pickMode,
                const char* expected) {
    ExpectConnectOne(curve, one, atStart, pickMode, DONE, expected);
    ExpectConnectList(curve, many, atStart, pickMode, DONE, expected);
}

}  // namespace

// ---- the table of picks, not closed ------------------------------------------------------------------

TEST(QnGeCurve2d_Connect, EndOfASegment) {
    const char* const walls = "line 9,0 0,1; line 2,0 0,1; line 3,0 0,1";
    ExpectPick("seg 0,0 4,0", ZIGZAG, walls, END, FIRST_FROM_STAYING, "seg 0,0 2,0");
    ExpectPick("seg 0,0 4,0", ZIGZAG, walls, END, LAST_FROM_STAYING, "seg 0,0 9,0");
    ExpectPick("seg 0,0 4,0", ZIGZAG, walls, END, CLOSEST_TO_MOVING, "seg 0,0 3,0");
    ExpectPick("seg 0,0 4,0", ZIGZAG, walls, END, -1, "seg 0,0 3,0");
    ExpectPick("seg 0,0 4,0", ZIGZAG, walls, END, 3, "seg 0,0 3,0");
}

TEST(QnGeCurve2d_Connect, StartOfASegment) {
    const char* const walls = "line 9,0 0,1; line 2,0 0,1; line 3,0 0,1";
    ExpectPick("seg 4,0 10,0", ZIGZAG, walls, START, FIRST_FROM_STAYING, "seg 9,0 10,0");
    ExpectPick("seg 4,0 10,0", ZIGZAG, walls, START, LAST_FROM_STAYING, "seg 2,0 10,0");
    ExpectPick("seg 4,0 10,0", ZIGZAG, walls, START, CLOSEST_TO_MOVING, "seg 3,0 10,0");
    ExpectPick("seg 4,0 10,0", ZIGZAG, walls, START, 7, "seg 3,0 10,0");
}

TEST(QnGeCurve2d_Connect, OfTwoEquallyCloseTheLowerParameterWins) {
    const char* const twice = "mline 3,-1 3,1 5,1 5,-1";
    const char* const walls = "line 5,0 0,1; line 3,0 0,1";
    ExpectPick("seg 0,0 4,0", twice, walls, END, CLOSEST_TO_MOVING, "seg 0,0 3,0");
    ExpectPick("seg 4,0 8,0", twice, walls, START, CLOSEST_TO_MOVING, "seg 3,0 8,0");
    ExpectConnectList("seg 0,0 4,0", twice, END, LAST_FROM_STAYING, DONE, "seg 0,0 3,0");
    ExpectConnectList("seg 4,0 8,0", twice, START, FIRST_FROM_STAYING, DONE, "seg 3,0 8,0");
}

TEST(QnGeCurve2d_Connect, InAListEachObjectCountsOnceWithItsClosest) {
    for (const int pickMode : {FIRST_FROM_STAYING, LAST_FROM_STAYING, CLOSEST_TO_MOVING}) {
        ExpectConnectList("seg 0,0 4,0", ZIGZAG, END, pickMode, DONE, "seg 0,0 3,0");
        ExpectConnectList("seg 4,0 10,0", ZIGZAG, START, pickMode, DONE, "seg 3,0 10,0");
        ExpectConnectList(HALF, STAR, END, pickMode, DONE, "arc 0,0 r2 from 0 sweep 5pi/4");
        ExpectConnectList(HALF, STAR, START, pickMode, DONE, "arc 0,0 r2 from 7pi/4 sweep 5pi/4");
    }
    const char* const both = "mline 2,-1 2,1 3,1 3,-1 9,-1 9,1; line 1,0 0,1";
    ExpectConnectList("seg 0,0 4,0", both, END, FIRST_FROM_STAYING, DONE, "seg 0,0 1,0");
    ExpectConnectList("seg 0,0 4,0", both, END, LAST_FROM_STAYING, DONE, "seg 0,0 3,0");
    ExpectConnectList("seg 0,0 4,0", both, END, CLOSEST_TO_MOVING, DONE, "seg 0,0 3,0");
}

TEST(QnGeCurve2d_Connect, OnlyTheSideOfTheStayingEndIsRefused) {
    ExpectConnect("seg 0,0 4,0", "line -1,0 0,1", END, CLOSEST_TO_MOVING, NO_VALID_POINT);
    ExpectConnect("seg 0,0 4,0", "line 0,0 0,1", END, CLOSEST_TO_MOVING, NO_VALID_POINT);
    ExpectConnect("seg 0,0 4,0", "line 0.000000002,0 0,1", END, CLOSEST_TO_MOVING, NO_VALID_POINT);
    ExpectConnect("seg 0,0 4,0", "line 0.00000001,0 0,1", END, CLOSEST_TO_MOVING, DONE, "seg 0,0 0.00000001,0");
    ExpectConnect("seg 0,0 4,0", "line 5,0 0,1", START, CLOSEST_TO_MOVING, NO_VALID_POINT);
    ExpectConnect("seg 0,0 4,0", "line 4,0 0,1", START, FIRST_FROM_STAYING, NO_VALID_POINT);
    ExpectConnect("seg 0,0 4,0", "line 1,0 0,1", END, CLOSEST_TO_MOVING, DONE, "seg 0,0 1,0");
    ExpectConnect("seg 0,0 4,0", "line 1,0 0,1", START, CLOSEST_TO_MOVING, DONE, "seg 1,0 4,0");
}

TEST(QnGeCurve2d_Connect, AMeetingAtTheMovingEndKeepsTheCurve) {
    ExpectConnect("seg 0,0 4,0", "line 4,0 0,1", END, CLOSEST_TO_MOVING, DONE, "seg 0,0 4,0");
    ExpectConnect("seg 0,0 4,0", "line 0,0 0,1", START, CLOSEST_TO_MOVING, DONE, "seg 0,0 4,0");
    ExpectConnect(HALF, "seg -3,0 -1,0", END, CLOSEST_TO_MOVING, DONE, HALF);
}

// ---- the table of picks, closed ----------------------------------------------------------------------

TEST(QnGeCurve2d_Connect, EndOfAnArc) {
    ExpectPick(HALF, STAR, RAYS, END, FIRST_FROM_STAYING, "arc 0,0 r2 from 0 sweep pi/2");
    ExpectPick(HALF, STAR, RAYS, END, LAST_FROM_STAYING, "arc 0,0 r2 from 0 sweep 7pi/4");
    ExpectPick(HALF, STAR, RAYS, END, CLOSEST_TO_MOVING, "arc 0,0 r2 from 0 sweep 5pi/4");
    ExpectPick(HALF, STAR, RAYS, END, 5, "arc 0,0 r2 from 0 sweep 5pi/4");
}

TEST(QnGeCurve2d_Connect, StartOfAnArc) {
    ExpectPick(HALF, STAR, RAYS, START, FIRST_FROM_STAYING, "arc 0,0 r2 from pi/2 sweep pi/2");
    ExpectPick(HALF, STAR, RAYS, START, LAST_FROM_STAYING, "arc 0,0 r2 from 5pi/4 sweep 7pi/4");
    ExpectPick(HALF, STAR, RAYS, START, CLOSEST_TO_MOVING, "arc 0,0 r2 from 7pi/4 sweep 5pi/4");
}

TEST(QnGeCurve2d_Connect, ClockwiseArcsCountAlongTheirTravel) {
    const char* const half = "arc 0,0 r2 from 0 sweep pi cw";
    ExpectPick(half, STAR, RAYS, END, FIRST_FROM_STAYING, "arc 0,0 r2 from 0 sweep pi/4 cw");
    ExpectPick(half, STAR, RAYS, END, LAST_FROM_STAYING, "arc 0,0 r2 from 0 sweep 3pi/2 cw");
    ExpectPick(half, STAR, RAYS, END, CLOSEST_TO_MOVING, "arc 0,0 r2 from 0 sweep 3pi/4 cw");
    ExpectPick(half, STAR, RAYS, START, FIRST_FROM_STAYING, "arc 0,0 r2 from 3pi/4 sweep pi/4 cw");
    ExpectPick(half, STAR, RAYS, START, LAST_FROM_STAYING, "arc 0,0 r2 from 3pi/2 sweep 3pi/2 cw");
}

TEST(QnGeCurve2d_Connect, TheCloserOfTwoCrossingsInTheCircularMeasure) {
    ExpectConnect("arc 0,0 r2 from 0 sweep pi/2", "line -1,0 0,1", END, CLOSEST_TO_MOVING, DONE,
                  "arc 0,0 r2 from 0 sweep 2pi/3");
    ExpectConnectList("arc 0,0 r2 from 3 sweep 3.2",
                      "ray 0,0 0.9800665778412416,0.1986693307950612; ray 0,0 0.7086697742912600,-0.7055403255703920",
                      END, CLOSEST_TO_MOVING, DONE, "arc 0,0 r2 from 3 sweep 3.4831853071796");
    ExpectConnectList("arc 0,0 r2 from 0.1 sweep 3",
                      "ray 0,0 0.9800665778412416,-0.1986693307950612; ray 0,0 0.7071067811865476,0.7071067811865476",
                      START, CLOSEST_TO_MOVING, DONE, "arc 0,0 r2 from 6.0831853071796 sweep 3.3");
}

TEST(QnGeCurve2d_Connect, OnAClosedLineTheLowerOfTwoEquallyClose) {
    const char* const square = "mline 0,0 4,0 4,4 0,4 close";
    ExpectConnect(square, "line 4,0 -1,1", END, CLOSEST_TO_MOVING, DONE, "mline 0,0 4,0");
    ExpectConnect(square, "line 4,0 -1,1", START, CLOSEST_TO_MOVING, DONE, "mline 4,0 4,4 0,4 0,0");
    ExpectConnectOne(square, "line 4,0 -1,1", END, LAST_FROM_STAYING, DONE, "mline 0,0 4,0 4,4 0,4");
    ExpectConnectOne(square, "line 4,0 -1,1", START, FIRST_FROM_STAYING, DONE, "mline 0,4 0,0");
}

TEST(QnGeCurve2d_Connect, ToTheStayingEndOfAnArcIsDegenerate) {
    ExpectConnect(HALF, "seg 1,0 3,0", END, CLOSEST_TO_MOVING, DEGENERATE);
    ExpectConnect(HALF, "seg -1,0 -3,0", START, CLOSEST_TO_MOVING, DEGENERATE);
    ExpectConnectOne(HALF, "line 0,0 1,0", END, FIRST_FROM_STAYING, DEGENERATE);
}

TEST(QnGeCurve2d_Connect, KeptOddAWholePeriodApartIsNotDegenerate) {
    ExpectConnect(HALF, "seg 1,-0.000000000001 3,-0.000000000001", END, CLOSEST_TO_MOVING, DONE,
                  "arc 0,0 r2 from 0 sweep 2pi");
}

// ---- ends that are missing ---------------------------------------------------------------------------

TEST(QnGeCurve2d_Connect, ALineHasNeitherEnd) {
    const char* const walls = "line 7,0 0,1; line 2,0 0,1";
    const char* const twice = "mline 2,-1 2,1 7,1 7,-1";
    ExpectPick("line 0,0 1,0", twice, walls, END, FIRST_FROM_STAYING, "line 2,0 -1,0");
    ExpectPick("line 0,0 1,0", twice, walls, END, LAST_FROM_STAYING, "line 7,0 -1,0");
    ExpectPick("line 0,0 1,0", twice, walls, END, CLOSEST_TO_MOVING, "line 7,0 -1,0");
    ExpectPick("line 0,0 1,0", twice, walls, START, FIRST_FROM_STAYING, "line 7,0 1,0");
    ExpectPick("line 0,0 1,0", twice, walls, START, LAST_FROM_STAYING, "line 2,0 1,0");
    ExpectPick("line 0,0 1,0", twice, walls, START, CLOSEST_TO_MOVING, "line 2,0 1,0");
    ExpectConnect("line 0,0 1,0", "line -2,0 0,1", END, CLOSEST_TO_MOVING, DONE, "line -2,0 -1,0");
}

TEST(QnGeCurve2d_Connect, InAListAMissingEndIsMeasuredFromZeroOrOne) {
    const char* const twice = "mline -0.4,-1 -0.4,1 1.2,1 1.2,-1";
    ExpectConnectList("line 0,0 1,0", twice, END, LAST_FROM_STAYING, DONE, "line 1.2,0 -1,0");
    ExpectConnectList("line 0,0 1,0", twice, END, FIRST_FROM_STAYING, DONE, "line 1.2,0 -1,0");
    ExpectConnectList("line 0,0 1,0", twice, START, LAST_FROM_STAYING, DONE, "line -0.4,0 1,0");
    ExpectConnectList("line 0,0 1,0", twice, START, FIRST_FROM_STAYING, DONE, "line -0.4,0 1,0");
}

TEST(QnGeCurve2d_Connect, TheOtherEndMissing) {
    NotingCurve noStart(false, true);
    EXPECT_EQ(noStart.Connect(*ParseGeo("mline -5,-1 -5,1 2,1 2,-1 9,-1 9,1"), END, CLOSEST_TO_MOVING), DONE);
    ExpectTaken(noStart, "ray 2,0 -1,0");
    EXPECT_EQ(noStart.Connect(*ParseGeo("line -5,0 0,1"), END, FIRST_FROM_STAYING), DONE) << "no side is refused";
    ExpectTaken(noStart, "ray -5,0 -1,0");
    NotingCurve noEnd(true, false);
    EXPECT_EQ(noEnd.Connect(*ParseGeo("mline -5,-1 -5,1 2,1 2,-1 9,-1 9,1"), START, CLOSEST_TO_MOVING), DONE);
    ExpectTaken(noEnd, "ray 2,0 1,0");
    EXPECT_EQ(noEnd.Connect(Objects("line 9,0 0,1"), START, FIRST_FROM_STAYING), DONE);
    ExpectTaken(noEnd, "ray 9,0 1,0");
}

TEST(QnGeCurve2d_Connect, TheMovingEndMissing) {
    const char* const zigzag = "mline -5,-1 -5,1 2,1 2,-1 9,-1 9,1";
    NotingCurve noEnd(true, false);
    EXPECT_EQ(noEnd.Connect(*ParseGeo(zigzag), END, FIRST_FROM_STAYING), DONE);
    ExpectTaken(noEnd, "seg 0,0 2,0");
    EXPECT_EQ(noEnd.Connect(*ParseGeo(zigzag), END, LAST_FROM_STAYING), DONE);
    ExpectTaken(noEnd, "seg 0,0 9,0");
    EXPECT_EQ(noEnd.Connect(*ParseGeo(zigzag), END, CLOSEST_TO_MOVING), DONE);
    ExpectTaken(noEnd, "seg 0,0 9,0");
    EXPECT_EQ(noEnd.Connect(*ParseGeo("line -5,0 0,1"), END, CLOSEST_TO_MOVING), NO_VALID_POINT);
    NotingCurve noStart(false, true);
    EXPECT_EQ(noStart.Connect(*ParseGeo("mline -5,-1 -5,1 -2,1 -2,-1 9,-1 9,1"), START, FIRST_FROM_STAYING), DONE);
    ExpectTaken(noStart, "seg -2,0 1,0");
    EXPECT_EQ(noStart.Connect(*ParseGeo("mline -5,-1 -5,1 -2,1 -2,-1 9,-1 9,1"), START, CLOSEST_TO_MOVING), DONE);
    ExpectTaken(noStart, "seg -5,0 1,0");
    EXPECT_EQ(noStart.Connect(*ParseGeo("line 9,0 0,1"), START, CLOSEST_TO_MOVING), NO_VALID_POINT);
}

TEST(QnGeCurve2d_Connect, WithoutTwoPiecesOrAcceptanceThereIsNoNewCurve) {
    ExpectConnect("circle 0,0 r2", "ray 0,0 0,1", END, CLOSEST_TO_MOVING, FAILED);
    ExpectConnect("circle 0,0 r2", "ray 0,0 0,1", START, FIRST_FROM_STAYING, FAILED);
    NotingCurve curve(true, true);
    curve.accepts = false;
    EXPECT_EQ(curve.Connect(*ParseGeo("line 3,0 0,1"), END, CLOSEST_TO_MOVING), FAILED);
    ExpectTaken(curve, "seg 0,0 3,0");
    NotingCurve closed(false, true);
    closed.extension = "circle 0,0 r1";
    EXPECT_EQ(closed.Connect(*ParseGeo("ray 0,0 0,1"), END, CLOSEST_TO_MOVING), FAILED);
}

// ---- the other answers -------------------------------------------------------------------------------

TEST(QnGeCurve2d_Connect, WithoutAnExtensionCurve) {
    for (const char* ray : {"ray 0,0 1,0", "ray reversed 0,0 1,0"}) {
        ExpectConnect(ray, "line 3,0 0,1", END, CLOSEST_TO_MOVING, FAILED);
        ExpectConnect(ray, "line 3,0 0,1", START, FIRST_FROM_STAYING, FAILED);
        ExpectConnectList(ray, "", START, FIRST_FROM_STAYING, NO_VALID_POINT);
    }
}

TEST(QnGeCurve2d_Connect, NothingMetOrNothingUsable) {
    ExpectConnect("seg 0,0 4,0", "line 0,1 1,0", END, CLOSEST_TO_MOVING, NO_INTERSECTION);
    ExpectConnect("seg 0,0 4,0", "seg 2,0 9,0", END, CLOSEST_TO_MOVING, NO_VALID_POINT);
    ExpectConnect(HALF, "circle 0,0 r2 cw", END, CLOSEST_TO_MOVING, NO_VALID_POINT);
    ExpectConnectList("seg 0,0 4,0", "line 0,1 1,0; line -3,0 0,1", END, CLOSEST_TO_MOVING, NO_VALID_POINT);
    ExpectConnectList("seg 0,0 4,0", "line 0,1 1,0; line 0,2 1,0", END, CLOSEST_TO_MOVING, NO_INTERSECTION);
    ExpectConnectList("seg 0,0 4,0", "line 0,1 1,0; line -3,0 0,1; line 5,0 0,1", END, FIRST_FROM_STAYING, DONE,
                      "seg 0,0 5,0");
    ExpectConnectList("seg 0,0 4,0", "", END, CLOSEST_TO_MOVING, NO_VALID_POINT);
}

TEST(QnGeCurve2d_Connect, BothFormsLookAtTheAnswer) {
    const FixedHits hitsMissing(true, "");
    const FixedHits hitsDenied(false, "");
    QnGeObjList missing;
    missing.Append(new FixedHits(hitsMissing));
    QnGeObjList denied;
    denied.Append(new FixedHits(hitsDenied));
    const char* const seg = "seg 0,0 1,0";
    ExpectMoved(seg, NO_VALID_POINT, "", [&](QnGeCurve2d& c) { return c.Connect(hitsMissing, END, 2); });
    ExpectMoved(seg, NO_VALID_POINT, "", [&](QnGeCurve2d& c) { return c.Connect(missing, END, 2); });
    ExpectMoved(seg, NO_INTERSECTION, "", [&](QnGeCurve2d& c) { return c.Connect(hitsDenied, END, 2); });
    ExpectMoved(seg, NO_INTERSECTION, "", [&](QnGeCurve2d& c) { return c.Connect(denied, END, 2); });
}

TEST(QnGeCurve2d_Connect, EmptyEntriesOfTheListAreLeftOut) {
    Objects objs("line 3,0 0,1");
    objs.Append(nullptr);
    ExpectMoved("seg 0,0 1,0", DONE, "seg 0,0 3,0", [&](QnGeCurve2d& c) { return c.Connect(objs, END, 2); });
}

TEST(QnGeCurve2d_Connect, LinesOfSeveralVerticesInwardAndPolylinesOutward) {
    ExpectConnect("mline 0,0 4,0 4,4", "line 0,2 1,0", END, CLOSEST_TO_MOVING, DONE, "mline 0,0 4,0 4,2");
    ExpectConnect("mline 0,0 4,0 4,4", "line 0,6 1,0", END, CLOSEST_TO_MOVING, FAILED);
    ExpectConnect("pline 0,0 4,0 4,4", "line 0,2 1,0", END, CLOSEST_TO_MOVING, DONE, "pline 0,0 4,0 4,2");
    ExpectConnect("pline 0,0 4,0 4,4", "line 0,6 1,0", END, CLOSEST_TO_MOVING, DONE, "pline 0,0 4,0 4,4 4,6");
    ExpectConnect("pline 0,0 4,0 4,4", "line -6,0 0,1", START, CLOSEST_TO_MOVING, DONE, "pline -6,0 0,0 4,0 4,4");
}

TEST(QnGeCurve2d_Connect, KeptOddAChainDoesAllTheWorkAndRefuses) {
    const char* const chain = "chain seg 0,0 4,0 | seg 4,0 4,4";
    ExpectConnect(chain, "line 0,2 1,0", END, CLOSEST_TO_MOVING, FAILED);
    ExpectConnect(chain, "line 0,6 1,0", END, CLOSEST_TO_MOVING, FAILED);
    ExpectConnect(chain, "circle 20,20 r1", END, CLOSEST_TO_MOVING, NO_INTERSECTION);
}
