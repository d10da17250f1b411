// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "EndTesting.h"

using namespace end_testing;

namespace {

constexpr EndResult FAILED = QnGeCurve2d::ETR_FAILED;
constexpr EndResult NO_INTERSECTION = QnGeCurve2d::ETR_NO_INTERSECTION;
constexpr EndResult NO_VALID_POINT = QnGeCurve2d::ETR_NO_VALID_POINT;
constexpr EndResult DONE = QnGeCurve2d::ETR_DONE;

const char* const TWO_WALLS = "line 5,0 0,1; line 3,0 0,1";
const char* const TWO_WALLS_LEFT = "line -3,0 0,1; line -5,0 0,1";
const char* const QUARTER = "arc 0,0 r2 from 0 sweep pi/2";

}  // namespace

// ---- the table of picks, not closed ------------------------------------------------------------------

TEST(QnGeCurve2d_Extend, EndToTheNearestOrTheFarthest) {
    ExpectExtend("seg 0,0 1,0", "line 3,0 0,1", END, NEAREST, DONE, "seg 0,0 3,0");
    ExpectExtend("seg 0,0 1,0", TWO_WALLS, END, NEAREST, DONE, "seg 0,0 3,0");
    ExpectExtend("seg 0,0 1,0", TWO_WALLS, END, FARTHEST, DONE, "seg 0,0 5,0");
    ExpectExtend("seg 0,0 1,0", "circle 10,0 r2", END, NEAREST, DONE, "seg 0,0 8,0");
    ExpectExtend("seg 0,0 1,0", "circle 10,0 r2", END, FARTHEST, DONE, "seg 0,0 12,0");
}

TEST(QnGeCurve2d_Extend, StartToTheNearestOrTheFarthest) {
    ExpectExtend("seg 0,0 1,0", "line -3,0 0,1", START, NEAREST, DONE, "seg -3,0 1,0");
    ExpectExtend("seg 0,0 1,0", TWO_WALLS_LEFT, START, NEAREST, DONE, "seg -3,0 1,0");
    ExpectExtend("seg 0,0 1,0", TWO_WALLS_LEFT, START, FARTHEST, DONE, "seg -5,0 1,0");
    ExpectExtend("seg 0,0 1,0", "circle -10,0 r2", START, NEAREST, DONE, "seg -8,0 1,0");
    ExpectExtend("seg 0,0 1,0", "circle -10,0 r2", START, FARTHEST, DONE, "seg -12,0 1,0");
}

TEST(QnGeCurve2d_Extend, OnlyWhatLiesBeyondTheMovingEndCounts) {
    ExpectExtend("seg 0,0 1,0", "line 3,0 0,1", START, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line -3,0 0,1", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line 0.5,0 0,1", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line 0.5,0 0,1", START, FARTHEST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line 0.5,0 0,1; line -3,0 0,1; line 3,0 0,1", END, NEAREST, DONE, "seg 0,0 3,0");
    ExpectExtend("seg 0,0 1,0", "line 0.5,0 0,1; line -3,0 0,1; line 3,0 0,1", START, FARTHEST, DONE, "seg -3,0 1,0");
}

TEST(QnGeCurve2d_Extend, AMeetingAtTheMovingEndIsNotBeyondIt) {
    ExpectExtend("seg 0,0 1,0", "line 1,0 0,1", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line 0,0 0,1", START, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line 1.0000000005,0 0,1", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line 1.000000002,0 0,1", END, NEAREST, DONE, "seg 0,0 1.000000002,0");
    ExpectExtend("seg 0,0 1,0", "line -0.0000000005,0 0,1", START, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line -0.000000002,0 0,1", START, NEAREST, DONE, "seg -0.000000002,0 1,0");
    ExpectExtend("seg 0,0 1,0", "line 1,0 0,1; line 3,0 0,1", END, NEAREST, DONE, "seg 0,0 3,0");
}

// ---- the table of picks, closed ----------------------------------------------------------------------

TEST(QnGeCurve2d_Extend, ArcEndGoesRoundFromTheStartThatStays) {
    const char* const objs = "ray 0,0 0,-1; ray 0,0 -1,0";
    ExpectExtend(QUARTER, objs, END, NEAREST, DONE, "arc 0,0 r2 from 0 sweep pi");
    ExpectExtend(QUARTER, objs, END, FARTHEST, DONE, "arc 0,0 r2 from 0 sweep 3pi/2");
    ExpectExtend("arc 0,0 r2 from 0 sweep pi/2 cw", "ray 0,0 0,1; ray 0,0 -1,0", END, NEAREST, DONE,
                 "arc 0,0 r2 from 0 sweep pi cw");
    ExpectExtend("arc 0,0 r2 from 0 sweep pi/2 cw", "ray 0,0 0,1; ray 0,0 -1,0", END, FARTHEST, DONE,
                 "arc 0,0 r2 from 0 sweep 3pi/2 cw");
}

TEST(QnGeCurve2d_Extend, ArcStartGoesRoundFromTheEndThatStays) {
    const char* const objs = "ray 0,0 0,-1; ray 0,0 -1,0";
    ExpectExtend(QUARTER, objs, START, NEAREST, DONE, "arc 0,0 r2 from 3pi/2 sweep pi");
    ExpectExtend(QUARTER, objs, START, FARTHEST, DONE, "arc 0,0 r2 from pi sweep 3pi/2");
    ExpectExtend("arc 0,0 r2 from 0 sweep pi/2 cw", "ray 0,0 0,1; ray 0,0 -1,0", START, NEAREST, DONE,
                 "arc 0,0 r2 from 3pi/2 sweep pi cw");
    ExpectExtend("arc 0,0 r2 from 0 sweep pi/2 cw", "ray 0,0 0,1; ray 0,0 -1,0", START, FARTHEST, DONE,
                 "arc 0,0 r2 from pi sweep 3pi/2 cw");
}

TEST(QnGeCurve2d_Extend, OverTheSeamOfTheCarryingCircle) {
    ExpectExtend("arc 0,0 r2 from 3pi/2 sweep 1", "ray 0,0 0,1; ray 0,0 -1,0", END, NEAREST, DONE,
                 "arc 0,0 r2 from 3pi/2 sweep pi");
    ExpectExtend("arc 0,0 r2 from 3pi/2 sweep 1", "ray 0,0 0,1; ray 0,0 -1,0", END, FARTHEST, DONE,
                 "arc 0,0 r2 from 3pi/2 sweep 3pi/2");
    ExpectExtend("arc 0,0 r2 from 1 sweep 0.5707963267948966", "ray 0,0 0,-1; ray 0,0 -1,0", START, NEAREST, DONE,
                 "arc 0,0 r2 from 3pi/2 sweep pi");
}

TEST(QnGeCurve2d_Extend, KeptOddAnArcMayComeOutShorter) {
    ExpectExtend("arc 0,0 r2 from 0 sweep pi", "ray 0,0 0,1", END, NEAREST, DONE, "arc 0,0 r2 from 0 sweep pi/2");
    ExpectExtend("arc 0,0 r2 from 0 sweep pi", "ray 0,0 0,1", START, NEAREST, DONE, "arc 0,0 r2 from pi/2 sweep pi/2");
    ExpectExtend(QUARTER, "ray 0,0 0,1", END, FARTHEST, DONE, QUARTER);
}

TEST(QnGeCurve2d_Extend, KeptOddToTheEndThatStaysIsTheWholeCircle) {
    ExpectExtend(QUARTER, "ray 0,0 1,0", END, NEAREST, DONE, "arc 0,0 r2 from 0 sweep 2pi");
    ExpectExtend(QUARTER, "ray 0,0 1,0", END, FARTHEST, DONE, "arc 0,0 r2 from 0 sweep 2pi");
    ExpectExtend(QUARTER, "ray 0,0 0,1", START, NEAREST, DONE, "arc 0,0 r2 from pi/2 sweep 2pi");
}

TEST(QnGeCurve2d_Extend, AClosedLineIsOpenedAndRunsFromItsStart) {
    const char* const square = "mline 0,0 4,0 4,4 0,4 close";
    ExpectExtend(square, "line 2,0 0,1", END, NEAREST, DONE, "mline 0,0 2,0");
    ExpectExtend(square, "line 2,0 0,1", END, FARTHEST, DONE, "mline 0,0 4,0 4,4 2,4");
    ExpectExtend(square, "line 2,0 0,1", START, NEAREST, DONE, "mline 2,4 0,4 0,0");
    ExpectExtend(square, "line 2,0 0,1", START, FARTHEST, DONE, "mline 2,0 4,0 4,4 0,4 0,0");
}

// ---- which objects count -----------------------------------------------------------------------------

TEST(QnGeCurve2d_Extend, NothingMet) {
    ExpectExtend("seg 0,0 1,0", "line 0,1 1,0", END, NEAREST, NO_INTERSECTION);
    ExpectExtend("seg 0,0 1,0", "seg 3,1 3,2; circle 9,9 r1", END, NEAREST, NO_INTERSECTION);
    ExpectExtend(QUARTER, "line 5,0 0,1", START, FARTHEST, NO_INTERSECTION);
}

TEST(QnGeCurve2d_Extend, OverlapsAreNoMeetingPoints) {
    ExpectExtend("seg 0,0 1,0", "seg 3,0 5,0", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "ray 3,0 1,0", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "line 9,0 -1,0", START, NEAREST, NO_VALID_POINT);
    ExpectExtend(QUARTER, "circle 0,0 r2", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "mline 3,0 5,0 5,5", END, NEAREST, DONE, "seg 0,0 5,0");
    ExpectExtend("seg 0,0 1,0", "seg 3,0 5,0; line 4,0 0,1", END, NEAREST, DONE, "seg 0,0 4,0");
}

TEST(QnGeCurve2d_Extend, ObjectsOfAnyKind) {
    ExpectExtend("seg 0,0 1,0", "point 5,0", END, NEAREST, DONE, "seg 0,0 5,0");
    ExpectExtend("seg 0,0 1,0", "point 5,1", END, NEAREST, NO_INTERSECTION);
    // A region shares its inside, which is a stretch and no point.
    ExpectExtend("seg 0,0 1,0", "region 3,-1 6,-1 6,1 3,1", END, NEAREST, NO_VALID_POINT);
    ExpectExtend("seg 0,0 1,0", "region 3,1 6,1 6,2 3,2", END, NEAREST, NO_INTERSECTION);
    ExpectExtend("seg 0,0 1,0", "pline 4,-2@pi 4,2", END, NEAREST, DONE, "seg 0,0 6,0");
    ExpectExtend("seg 0,0 1,0", "chain seg 3,-1 3,1 | seg 3,1 7,-3", END, FARTHEST, DONE, "seg 0,0 4,0");
    ExpectExtend("seg 0,0 1,0", "arc 4,0 r1 from pi/2 sweep pi", END, NEAREST, DONE, "seg 0,0 3,0");
}

TEST(QnGeCurve2d_Extend, HeightRunsOnWithTheLine) {
    ExpectExtend("seg 0,0,1 1,0,3", "line 3,0 0,1", END, NEAREST, DONE, "seg 0,0,1 3,0,7");
    ExpectExtend("arc 0,0,5 r2 from 0 sweep pi/2", "ray 0,0 -1,0", END, NEAREST, DONE, "arc 0,0,5 r2 from 0 sweep pi");
}

TEST(QnGeCurve2d_Extend, AnEmptyListIsSaidFirst) {
    for (const char* curve : {"seg 0,0 1,0", "ray 0,0 1,0", "circle 0,0 r2", "line 0,0 1,0", "mline 0,0 1,0"}) {
        ExpectExtend(curve, "", END, NEAREST, NO_VALID_POINT);
        ExpectExtend(curve, "", START, FARTHEST, NO_VALID_POINT);
    }
}

TEST(QnGeCurve2d_Extend, TheListFormLooksAtTheHitsAndTheSingleFormAtTheAnswer) {
    const FixedHits hitsDenied(false, "point 3,0");
    const FixedHits hitsMissing(true, "");
    QnGeObjList denied;
    denied.Append(new FixedHits(hitsDenied));
    QnGeObjList missing;
    missing.Append(new FixedHits(hitsMissing));
    const char* const seg = "seg 0,0 1,0";
    ExpectMoved(seg, NO_INTERSECTION, "", [&](QnGeCurve2d& c) { return c.Extend(hitsDenied, END, NEAREST); });
    ExpectMoved(seg, DONE, "seg 0,0 3,0", [&](QnGeCurve2d& c) { return c.Extend(denied, END, NEAREST); });
    ExpectMoved(seg, NO_VALID_POINT, "", [&](QnGeCurve2d& c) { return c.Extend(hitsMissing, END, NEAREST); });
    ExpectMoved(seg, NO_INTERSECTION, "", [&](QnGeCurve2d& c) { return c.Extend(missing, END, NEAREST); });
}

TEST(QnGeCurve2d_Extend, EmptyEntriesOfTheListAreLeftOut) {
    Objects objs("line 3,0 0,1");
    objs.Append(nullptr);
    ExpectMoved("seg 0,0 1,0", DONE, "seg 0,0 3,0", [&](QnGeCurve2d& c) { return c.Extend(objs, END, NEAREST); });
}

// ---- curves that cannot ------------------------------------------------------------------------------

TEST(QnGeCurve2d_Extend, WithoutAnExtensionCurve) {
    for (const char* ray : {"ray 0,0 1,0", "ray reversed 0,0 1,0"}) {
        ExpectExtend(ray, "line 3,0 0,1", END, NEAREST, FAILED);
        ExpectExtend(ray, "line 3,0 0,1", START, NEAREST, FAILED);
    }
    NotingCurve bare(true, true);
    bare.extension = "";
    EXPECT_EQ(bare.Extend(*ParseGeo("line 3,0 0,1"), END, NEAREST), FAILED);
    EXPECT_EQ(bare.taken, "");
}

TEST(QnGeCurve2d_Extend, AtAnEndThatDoesNotExist) {
    for (const char* curve : {"line 0,0 1,0", "circle 0,0 r2", "circle 0,0 r2 cw"}) {
        ExpectExtend(curve, "line 1,0 0,1", END, NEAREST, FAILED);
        ExpectExtend(curve, "line 1,0 0,1", START, NEAREST, FAILED);
        ExpectExtend(curve, "line 0,9 1,0", END, NEAREST, FAILED);
    }
    NotingCurve ray(true, false);
    EXPECT_EQ(ray.Extend(*ParseGeo("line 0,9 1,0"), END, NEAREST), FAILED) << "before it is seen that nothing is met";
}

TEST(QnGeCurve2d_Extend, KeptOddStraightLinesOfSeveralVerticesCannotGrow) {
    ExpectExtend("mline 0,0 1,0", "line 3,0 0,1", END, NEAREST, FAILED);
    ExpectExtend("mline 0,0 1,0 1,1", "line 0,4 1,0", END, NEAREST, FAILED);
    ExpectExtend("mline 0,0 1,0 1,1", "line -3,0 0,1", START, NEAREST, FAILED);
    ExpectExtend("mline 0,0 1,0 1,1", "line 9,9 1,0; line -3,0 0,1", END, NEAREST, FAILED);
}

TEST(QnGeCurve2d_Extend, PolylinesGrowAlongTheirTangent) {
    ExpectExtend("pline 0,0 1,0", "line 3,0 0,1", END, NEAREST, DONE, "pline 0,0 1,0 3,0");
    ExpectExtend("pline 0,0 1,0", "line -3,0 0,1", START, NEAREST, DONE, "pline -3,0 0,0 1,0");
    ExpectExtend("pline 0,0@pi 2,0", "line 0,3 1,0", END, NEAREST, DONE, "pline 0,0@pi 2,0 2,3");
    ExpectExtend("pline 0,0@pi 2,0", "line 0,3 1,0", START, NEAREST, DONE, "pline 0,3 0,0@pi 2,0");
    ExpectExtend("pline 0,0@pi 2,0", "line 0,3 1,0; line 0,5 1,0", END, FARTHEST, DONE, "pline 0,0@pi 2,0 2,5");
    ExpectExtend("pline 0,0@pi 2,0", "line 1,-3 0,1", END, NEAREST, NO_VALID_POINT);
}

TEST(QnGeCurve2d_Extend, KeptOddAChainDoesAllTheWorkAndRefuses) {
    const char* const chain = "chain seg 0,0 1,0 | arc 1,1 r1 from 3pi/2 sweep pi/2";
    ExpectExtend(chain, "line 0,5 1,0", END, NEAREST, FAILED);
    ExpectExtend(chain, "line -3,0 0,1", START, NEAREST, FAILED);
    ExpectExtend(chain, "line 0.5,0 0,1", END, NEAREST, NO_VALID_POINT);
    ExpectExtend(chain, "circle 20,20 r1", END, NEAREST, NO_INTERSECTION);
    ExpectExtend(chain, "", END, NEAREST, NO_VALID_POINT);
}

// ---- the other end missing ---------------------------------------------------------------------------

TEST(QnGeCurve2d_Extend, WithoutAStartTheEndTakesTheFirstOfTwoPieces) {
    NotingCurve curve(false, true);
    EXPECT_EQ(curve.Extend(Objects(TWO_WALLS), END, NEAREST), DONE);
    ExpectTaken(curve, "ray 3,0 -1,0");
    EXPECT_EQ(curve.Extend(Objects(TWO_WALLS), END, FARTHEST), DONE);
    ExpectTaken(curve, "ray 5,0 -1,0");
}

TEST(QnGeCurve2d_Extend, WithoutAnEndTheStartTakesTheSecondOfTwoPieces) {
    NotingCurve curve(true, false);
    EXPECT_EQ(curve.Extend(Objects(TWO_WALLS_LEFT), START, NEAREST), DONE);
    ExpectTaken(curve, "ray -3,0 1,0");
    EXPECT_EQ(curve.Extend(Objects(TWO_WALLS_LEFT), START, FARTHEST), DONE);
    ExpectTaken(curve, "ray -5,0 1,0");
}

TEST(QnGeCurve2d_Extend, WithoutTwoPiecesThereIsNoNewCurve) {
    NotingCurve curve(false, true);
    curve.extension = "circle 0,0 r1";
    EXPECT_EQ(curve.Extend(*ParseGeo("ray 0,0 0,1"), END, NEAREST), FAILED);
    EXPECT_EQ(curve.taken, "");
}

TEST(QnGeCurve2d_Extend, WhatIsRefusedFails) {
    NotingCurve curve(true, true);
    curve.accepts = false;
    EXPECT_EQ(curve.Extend(*ParseGeo("line 3,0 0,1"), END, NEAREST), FAILED);
    ExpectTaken(curve, "seg 0,0 3,0");
}
