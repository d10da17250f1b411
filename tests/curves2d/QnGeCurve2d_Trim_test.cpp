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

const char* const TWO_WALLS = "line 7,0 0,1; line 2,0 0,1";

}  // namespace

TEST(QnGeCurve2d_Trim, TheEndGoesBackToTheFirstMeetingTheStartOnToTheLast) {
    ExpectTrim("seg 0,0 10,0", TWO_WALLS, END, DONE, "seg 0,0 2,0");
    ExpectTrim("seg 0,0 10,0", TWO_WALLS, START, DONE, "seg 7,0 10,0");
    ExpectTrim("seg 0,0 10,0", "line 7,0 0,1", END, DONE, "seg 0,0 7,0");
    ExpectTrim("seg 0,0 10,0", "line 2,0 0,1", START, DONE, "seg 2,0 10,0");
    ExpectTrim("seg 0,0 10,0", "circle 5,0 r2", END, DONE, "seg 0,0 3,0");
    ExpectTrim("seg 0,0 10,0", "circle 5,0 r2", START, DONE, "seg 7,0 10,0");
}

TEST(QnGeCurve2d_Trim, AMeetingAtTheEndThatStaysIsDegenerate) {
    ExpectTrim("seg 0,0 10,0", "line 0,0 0,1", END, DEGENERATE);
    ExpectTrim("seg 0,0 10,0", "line 10,0 0,1", START, DEGENERATE);
    ExpectTrim("seg 0,0 10,0", "line 0,0 0,1; line 4,0 0,1", END, DEGENERATE);
    ExpectTrim("seg 0,0 10,0", "line 10,0 0,1; line 4,0 0,1", START, DEGENERATE);
    ExpectTrim("seg 0,0 10,0", "line 0.000000005,0 0,1", END, DEGENERATE);
    ExpectTrim("seg 0,0 10,0", "line 0.00000002,0 0,1", END, DONE, "seg 0,0 0.00000002,0");
    ExpectTrim("seg 0,0 10,0", "line 9.999999995,0 0,1", START, DEGENERATE);
    ExpectTrim("arc 0,0 r2 from 0 sweep pi", "seg 1,0 3,0", END, DEGENERATE);
}

TEST(QnGeCurve2d_Trim, AMeetingAtTheMovingEndKeepsTheCurve) {
    ExpectTrim("seg 0,0 10,0", "line 10,0 0,1", END, DONE, "seg 0,0 10,0");
    ExpectTrim("seg 0,0 10,0", "line 0,0 0,1", START, DONE, "seg 0,0 10,0");
}

TEST(QnGeCurve2d_Trim, NothingMet) {
    ExpectTrim("seg 0,0 10,0", "line 12,0 0,1", END, NO_INTERSECTION);
    ExpectTrim("seg 0,0 10,0", "seg 5,1 5,3; line 12,0 0,1", START, NO_INTERSECTION);
    ExpectTrim("arc 0,0 r2 from 0 sweep pi", "line 0,-1 1,0", END, NO_INTERSECTION);
    ExpectTrim("line 0,0 1,0", "line 0,1 1,0", END, NO_INTERSECTION);
}

TEST(QnGeCurve2d_Trim, OverlapsAreNoMeetingPoints) {
    ExpectTrim("seg 0,0 10,0", "seg 3,0 5,0", END, NO_VALID_POINT);
    ExpectTrim("seg 0,0 10,0", "line 3,0 5,0", START, NO_VALID_POINT);
    ExpectTrim("arc 0,0 r2 from 0 sweep pi", "circle 0,0 r2", END, NO_VALID_POINT);
    ExpectTrim("seg 0,0 10,0", "seg 3,0 5,0; line 4,0 0,1", END, DONE, "seg 0,0 4,0");
}

TEST(QnGeCurve2d_Trim, AnEmptyListIsSaidFirst) {
    for (const char* curve : {"seg 0,0 1,0", "ray 0,0 1,0", "circle 0,0 r2", "line 0,0 1,0", "chain seg 0,0 1,0"}) {
        ExpectTrim(curve, "", END, NO_VALID_POINT);
        ExpectTrim(curve, "", START, NO_VALID_POINT);
    }
}

TEST(QnGeCurve2d_Trim, EmptyEntriesOfTheListAreLeftOut) {
    Objects objs("line 3,0 0,1");
    objs.Append(nullptr);
    ExpectMoved("seg 0,0 9,0", DONE, "seg 0,0 3,0", [&](QnGeCurve2d& c) { return c.Trim(objs, END); });
}

// ---- curves without an end ---------------------------------------------------------------------------

TEST(QnGeCurve2d_Trim, KeptOddALineStaysALineFromTheCut) {
    ExpectTrim("line 0,0 1,0", "line 2,0 0,1", END, DONE, "line 2,0 -1,0");
    ExpectTrim("line 0,0 1,0", "line 2,0 0,1", START, DONE, "line 2,0 1,0");
    ExpectTrim("line 0,0 1,0", TWO_WALLS, END, DONE, "line 2,0 -1,0");
    ExpectTrim("line 0,0 1,0", TWO_WALLS, START, DONE, "line 7,0 1,0");
    ExpectTrim("line 0,0 -4,0", TWO_WALLS, END, DONE, "line 7,0 4,0");
}

TEST(QnGeCurve2d_Trim, ARayLosesItsBaseEnd) {
    ExpectTrim("ray 0,0 1,0", "line 2,0 0,1", START, DONE, "ray 2,0 1,0");
    ExpectTrim("ray 0,0 1,0", TWO_WALLS, START, DONE, "ray 7,0 1,0");
    ExpectTrim("ray reversed 0,0 1,0", "line 2,0 0,1", END, DONE, "ray reversed 2,0 1,0");
    ExpectTrim("ray reversed 0,0 1,0", TWO_WALLS, END, DONE, "ray reversed 7,0 1,0");
}

TEST(QnGeCurve2d_Trim, KeptOddARayCannotBecomeASegment) {
    ExpectTrim("ray 0,0 1,0", "line 2,0 0,1", END, FAILED);
    ExpectTrim("ray reversed 0,0 1,0", "line 2,0 0,1", START, FAILED);
}

TEST(QnGeCurve2d_Trim, WithoutTwoPiecesThereIsNoValidPoint) {
    ExpectTrim("ray 0,0 1,0", "line 0,0 0,1", START, NO_VALID_POINT);
    ExpectTrim("ray reversed 0,0 1,0", "line 0,0 0,1", END, NO_VALID_POINT);
    ExpectTrim("circle 0,0 r2", "ray 0,0 0,1", END, NO_VALID_POINT);
    ExpectTrim("circle 0,0 r2", "line 0,0 0,1", START, NO_VALID_POINT);
}

TEST(QnGeCurve2d_Trim, ARayToItsBaseIsDegenerate) {
    ExpectTrim("ray 0,0 1,0", "line 0,0 0,1", END, DEGENERATE);
    ExpectTrim("ray reversed 0,0 1,0", "line 0,0 0,1", START, DEGENERATE);
}

// ---- other classes -----------------------------------------------------------------------------------

TEST(QnGeCurve2d_Trim, Arcs) {
    ExpectTrim("arc 0,0,3 r2 from 0 sweep pi", "ray 0,0 0,1", END, DONE, "arc 0,0,3 r2 from 0 sweep pi/2");
    ExpectTrim("arc 0,0,3 r2 from 0 sweep pi", "ray 0,0 0,1", START, DONE, "arc 0,0,3 r2 from pi/2 sweep pi/2");
    ExpectTrim("arc 0,0 r2 from 0 sweep pi cw", "ray 0,0 0,-1", END, DONE, "arc 0,0 r2 from 0 sweep pi/2 cw");
    ExpectTrim("arc 0,0 r2 from 0 sweep 3pi/2", "ray 0,0 0,1; ray 0,0 -1,0", START, DONE,
               "arc 0,0 r2 from pi sweep pi/2");
    ExpectTrim("arc 0,0 r2 from 0 sweep 3pi/2", "line 0,0 0,1; ray 0,0 -1,0", START, DEGENERATE);
}

TEST(QnGeCurve2d_Trim, AClosedArcIsOpenedFromItsSeam) {
    ExpectTrim("arc 0,0 r2 from 0 sweep 2pi", "ray 0,0 0,1", END, DONE, "arc 0,0 r2 from 0 sweep pi/2");
    ExpectTrim("arc 0,0 r2 from 0 sweep 2pi", "ray 0,0 0,1", START, DONE, "arc 0,0 r2 from pi/2 sweep 3pi/2");
}

TEST(QnGeCurve2d_Trim, LinesOfSeveralVertices) {
    ExpectTrim("mline 0,0 4,0 4,4", "line 0,2 1,0", END, DONE, "mline 0,0 4,0 4,2");
    ExpectTrim("mline 0,0 4,0 4,4", "line 0,2 1,0", START, DONE, "mline 4,2 4,4");
    ExpectTrim("mline 0,0 4,0 4,4", "line 1,0 0,1; line 0,2 1,0", END, DONE, "mline 0,0 1,0");
    ExpectTrim("mline 0,0 4,0 4,4", "line 4,0 1,-1", END, DONE, "mline 0,0 4,0");
    ExpectTrim("mline 0,0 4,0 4,4", "line 4,0 1,-1", START, DONE, "mline 4,0 4,4");
    ExpectTrim("pline 0,0@pi 4,0 4,4", "line 2,0 0,1", END, DONE, "pline 0,0@pi/2 2,-2");
    ExpectTrim("pline 0,0@pi 4,0 4,4", "line 2,0 0,1", START, DONE, "pline 2,-2@pi/2 4,0 4,4");
}

TEST(QnGeCurve2d_Trim, AClosedLineIsOpenedFromItsStart) {
    const char* const square = "mline 0,0 4,0 4,4 0,4 close";
    ExpectTrim(square, "line 2,0 0,1", END, DONE, "mline 0,0 2,0");
    ExpectTrim(square, "line 2,0 0,1", START, DONE, "mline 2,4 0,4 0,0");
    ExpectTrim(square, "line 0,0 1,-1", END, DEGENERATE);
    ExpectTrim(square, "line 0,0 1,-1", START, DONE, "mline 0,0 4,0 4,4 0,4 0,0");
    ExpectTrim("pline 0,0 4,0 4,4 0,4 close", "line 2,0 0,1", END, DONE, "pline 0,0 2,0");
}

TEST(QnGeCurve2d_Trim, KeptOddAChainDoesAllTheWorkAndRefuses) {
    const char* const chain = "chain seg 0,0 4,0 | seg 4,0 4,4";
    ExpectTrim(chain, "line 0,2 1,0", END, FAILED);
    ExpectTrim(chain, "line 2,0 0,1", END, FAILED);
    ExpectTrim(chain, "line 0,9 1,0", END, NO_INTERSECTION);
    ExpectTrim(chain, "line 0,0 0,1", END, DEGENERATE);
    ExpectTrim(chain, "seg 1,0 2,0", END, NO_VALID_POINT);
}
