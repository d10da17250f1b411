// SPDX-License-Identifier: Apache-2.0
// The offset of polylines with arcs: lines and circles moved to the right, corners where they meet, sweeps measured
// anew.

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "PolylineTesting.h"
#include "curves2d/QnGeCircle2d.h"
#include "frame/QnGeTolerance.h"

using namespace polyline_testing;

namespace {

void ExpectOffset(const std::string& vertices, double dist, const std::string& expected) {
    QnGePolyline2d line = Bulged(vertices);
    EXPECT_TRUE(line.Offset(dist)) << vertices;
    ExpectGeo(line, "pline " + expected);
}

/// The answer is false and not a bit of the line changes, bulges included.
void ExpectNoOffset(const std::string& vertices, double dist) {
    QnGePolyline2d line = Bulged(vertices);
    const std::vector<unsigned char> before = Record(line);
    EXPECT_FALSE(line.Offset(dist)) << vertices;
    EXPECT_EQ(Record(line), before) << Text(line);
}

/// Segment `i` moves; every vertex but its two keeps its numbers exactly.
void ExpectOffsetSeg(const std::string& vertices, long i, double dist, const std::string& expected) {
    const QnGePolyline2d before = Bulged(vertices);
    QnGePolyline2d line = before;
    EXPECT_TRUE(line.OffsetSeg(i, dist)) << vertices;
    ExpectGeo(line, "pline " + expected);
    for (long k = 0; k < line.GetVertexNum(); ++k) {
        if (k == i || k == (i + 1) % line.GetVertexNum()) {
            continue;
        }
        EXPECT_TRUE(IsNear(line.GetVertex(k), before.GetVertex(k), 0.0)) << "vertex " << k << " of " << vertices;
    }
}

void ExpectNoOffsetSeg(const std::string& vertices, long i, double dist) {
    QnGePolyline2d line = Bulged(vertices);
    const std::vector<unsigned char> before = Record(line);
    EXPECT_FALSE(line.OffsetSeg(i, dist)) << "segment " << i << " of " << vertices;
    EXPECT_EQ(Record(line), before) << Text(line);
}

/// A number as the text forms read it.
std::string Num(double value) {
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", value);
    return text;
}

std::string At(double x, double y) {
    return Num(x) + "," + Num(y);
}

const std::string ROUNDED = "1,0 4,0@pi/2 5,1 5,3@pi/2 4,4 1,4@pi/2 0,3 0,1@pi/2 close";

}  // namespace

// ---- chords ----------------------------------------------------------------------------------------

TEST(PolylineOffset, WithoutArcsItIsThatOfTheMultiLine) {
    ExpectOffset("0,0 4,0 4,3 0,3 close", 0.5, "-0.5,-0.5 4.5,-0.5 4.5,3.5 -0.5,3.5 close");
    ExpectOffset("0,0,0 4,0,8 4,4,4 0,4,4 close", 1.0, "-1,-1,-1 5,-1,10 5,5,3 -1,5,4 close");
    ExpectOffset("0,0 4,0 4,4", 1.0, "0,-1 5,-1 5,4");
    ExpectNoOffset("0,0 4,0 1,0", 1.0);
    ExpectNoOffset("0,0 4,0 4,4 6,4 6,0 close", 1.0);
}

TEST(PolylineOffset, CollinearChordsKeepTheVertexAtTheStartOfTheSecond) {
    ExpectOffset("0,0 2,0,5 4,0,1 4,4", 1.0, "0,-1 2,-1,5 5,-1,-1 5,4");
    ExpectOffset("2,0 4,0 4,4 0,4 0,0 close", 1.0, "2,-1 5,-1 5,5 -1,5 -1,-1 close");
}

TEST(PolylineOffset, ABulgeWithinTheToleranceIsAChordAndStays) {
    QnGePolyline2d line = Bulged("0,0@1e-5 4,0@-1e-6 4,4");
    ASSERT_TRUE(line.Offset(1.0));
    EXPECT_TRUE(IsNear(line.GetVertex(1), QnGePoint(5.0, -1.0)));
    EXPECT_EQ(line.GetBulge(0), 1e-5);
    EXPECT_EQ(line.GetBulge(1), -1e-6);
    EXPECT_EQ(line.GetBulge(2), 0.0);
}

TEST(PolylineOffset, ALineWithoutSegmentsIsRefused) {
    for (const bool closed : {false, true}) {
        QnGePolyline2d empty(0, closed);
        EXPECT_FALSE(empty.Offset(1.0));
        EXPECT_FALSE(empty.OffsetSeg(0, 1.0));
        QnGePolyline2d point(0, closed);
        point.AppendVertex(QnGePoint(3.0, 4.0, 5.0), 0.5);
        const std::vector<unsigned char> before = Record(point);
        EXPECT_FALSE(point.Offset(1.0));
        EXPECT_FALSE(point.OffsetSeg(0, 1.0));
        EXPECT_EQ(Record(point), before);
    }
}

// ---- arcs ------------------------------------------------------------------------------------------

TEST(PolylineOffset, AnArcKeepsCentreAndSweep) {
    ExpectOffset("5,0@pi/2 0,5", 1.0, "6,0@pi/2 0,6");
    ExpectOffset("5,0@pi/2 0,5", -1.0, "4,0@pi/2 0,4");
    ExpectOffset("0,5@-pi/2 5,0", 1.0, "0,4@-pi/2 4,0");
    ExpectOffset("0,5@-pi/2 5,0", -1.0, "0,6@-pi/2 6,0");
    ExpectOffset("5,0@3pi/2 0,-5", 1.0, "6,0@3pi/2 0,-6");
}

TEST(PolylineOffset, AnArcMovedToItsCentreAndBeyondIsRefused) {
    for (const double dist : {5.0, 5.5, 100.0}) {
        ExpectNoOffset("5,0@pi/2 0,5", -dist);
        ExpectNoOffset("0,5@-pi/2 5,0", dist);
        ExpectNoOffset("0,-5 5,0@pi/2 0,5 -5,0", -dist);
    }
    ExpectOffset("5,0@pi/2 0,5", -4.9, "0.1,0@pi/2 0,0.1");
}

TEST(PolylineOffset, TheRadiusLeftMustExceedTheSmallestNumber) {
    // A sweep of pi gives a radius without rounding.
    ExpectNoOffset("5,0@pi -5,0", -(5.0 - 0.5 * g_fZero));
    QnGePolyline2d line = Bulged("5,0@pi -5,0");
    EXPECT_TRUE(line.Offset(-(5.0 - 4.0 * g_fZero)));
    EXPECT_NEAR(line.GetVertex(0).x, 4.0 * g_fZero, 1e-12);
    EXPECT_NEAR(line.GetVertex(1).x, -4.0 * g_fZero, 1e-12);
}

TEST(PolylineOffset, ARoundedRectangleKeepsItsTangents) {
    ExpectOffset(ROUNDED, 0.5, "1,-0.5 4,-0.5@pi/2 5.5,1 5.5,3@pi/2 4,4.5 1,4.5@pi/2 -0.5,3 -0.5,1@pi/2 close");
    ExpectOffset(ROUNDED, -0.5, "1,0.5 4,0.5@pi/2 4.5,1 4.5,3@pi/2 4,3.5 1,3.5@pi/2 0.5,3 0.5,1@pi/2 close");
    ExpectNoOffset(ROUNDED, -1.0);
    ExpectNoOffset(ROUNDED, -1.5);
}

TEST(PolylineOffset, TheSameTurnedRoundMovesTheOtherWay) {
    QnGePolyline2d line = Bulged(ROUNDED);
    line.Reverse();
    ASSERT_TRUE(line.Offset(-0.5));
    line.Reverse();
    ExpectGeo(line, "pline 1,-0.5 4,-0.5@pi/2 5.5,1 5.5,3@pi/2 4,4.5 1,4.5@pi/2 -0.5,3 -0.5,1@pi/2 close");
}

TEST(PolylineOffset, AChordTangentToAnArcMeetsItInOnePoint) {
    ExpectOffset("-4,0 0,0@pi/2 2,2", 1.0, "-4,-1 0,-1@pi/2 3,2");
    ExpectOffset("-4,0 0,0@-pi/2 2,-2", 1.0, "-4,-1 0,-1@-pi/2 1,-2");
    ExpectOffset("2,2@-pi/2 0,0 -4,0", -1.0, "3,2@-pi/2 0,-1 -4,-1");
    // The chord cuts the arc's circle before and touches it in its lowest point afterwards.
    const double end = 4.0 / 5.0;
    ExpectOffset("-10,3 4,3@" + Num(PI - 2.0 * std::atan2(3.0, 4.0)) + " -4,3", -1.0,
                 "-10,4 0,4@" + Num(PI / 2.0 - std::atan2(3.0, 4.0)) + " " + At(-4.0 * end, 3.0 * end));
}

TEST(PolylineOffset, TangentArcsMeetInOnePoint) {
    // An S: left round (0,2), then right round (4,2).
    ExpectOffset("0,0@pi/2 2,2@-pi/2 4,4", 0.5, "0,-0.5@pi/2 2.5,2@-pi/2 4,3.5");
    ExpectOffset("0,0@pi/2 2,2@-pi/2 4,4", -0.5, "0,0.5@pi/2 1.5,2@-pi/2 4,4.5");
}

TEST(PolylineOffset, OfTwoMeetingPointsTheNearerToTheMovedStartIsTheCorner) {
    const double a = std::atan2(3.0, 4.0);
    const double x = std::sqrt(32.0);
    // Out: the chord at y = 2 meets the circle of radius 6 at x = -5.66 and 5.66; the arc starts on the right.
    ExpectOffset("-10,3 4,3@" + Num(PI - 2.0 * a) + " -4,3", 1.0,
                 "-10,2 " + At(x, 2.0) + "@" + Num(PI - a - std::atan2(2.0, x)) + " -4.8,3.6");
    // The same arc run clockwise starts on the left, and the chord comes from the right.
    ExpectOffset("10,3 -4,3@" + Num(2.0 * a - PI) + " 4,3", -1.0,
                 "10,2 " + At(-x, 2.0) + "@" + Num(std::atan2(2.0, x) + a - PI) + " 4.8,3.6");
    // An arc before the chord: the chord's own start decides.
    ExpectOffset(
        "4,3@" + Num(PI - 2.0 * a) + " -4,3 -10,3", -1.0,
        "3.2,2.4@" + Num(PI - a - std::atan2(2.0, std::sqrt(12.0))) + " " + At(-std::sqrt(12.0), 2.0) + " -10,2");
}

TEST(PolylineOffset, AtEqualDistancesTheSecondMeetingPointIsTheCorner) {
    // The arc leaves its chord backwards, round (10,4); the moved line at y = 1 passes its circle at x = 6 and x = 14.
    ExpectOffset("0,0 10,0@-pi 10,8", -1.0, "0,1 14,1@" + Num(std::atan2(3.0, 4.0) - 1.5 * PI) + " 10,9");
}

TEST(PolylineOffset, ArcsOfOneCircleKeepTheVertexAtTheStartOfTheSecond) {
    ExpectOffset("5,0@pi/2 0,5@pi/2 -5,0", 1.0, "6,0@pi/2 0,6@pi/2 -6,0");
    QnGePolyline2d circle(QnGeCircle2d(QnGePoint(1.0, 2.0), 3.0));
    ASSERT_TRUE(circle.Offset(1.0));
    ExpectGeo(circle, "pline 5,2@pi -3,2@pi close");
    ASSERT_TRUE(circle.Offset(-3.5));
    ExpectGeo(circle, "pline 1.5,2@pi 0.5,2@pi close");
    EXPECT_FALSE(circle.Offset(-0.5));
    ExpectGeo(circle, "pline 1.5,2@pi 0.5,2@pi close");
}

TEST(PolylineOffset, AnArcThatTurnsBackOnItsCircleIsRefused) {
    ExpectNoOffset("5,0@pi/2 0,5@-pi/4 " + At(std::sqrt(12.5), std::sqrt(12.5)), 1.0);
}

TEST(PolylineOffset, CarriersThatDoNotMeetStopIt) {
    const double a = std::atan2(3.0, 4.0);
    // The line rises to y = 4.5, the circle shrinks to 3.5.
    ExpectNoOffset("-10,3 4,3@" + Num(PI - 2.0 * a) + " -4,3", -1.5);
    // The same at the seam of a closed line, where its closing arc ends.
    ExpectNoOffset("-4,3 10,3 10,6 8,6 4,3@" + Num(PI - 2.0 * a) + " close", -1.5);
    // Two circles apart: half circles over 0..4 and over 4..8 that both shrink.
    ExpectNoOffset("0,0@-pi 4,0@-pi 8,0", 0.5);
}

TEST(PolylineOffset, TheSweepFollowsTheNewCorners) {
    // Two clockwise bows of radius 5 round (3,-4) and (9,-4) grow to radius 10 and meet above the old corner.
    const std::string before = Num(-2.0 * std::asin(0.6));
    const double y = std::sqrt(91.0);
    const std::string after = Num(-(PI - std::atan2(8.0, 6.0) - std::atan2(y, 3.0)));
    ExpectOffset("0,0@" + before + " 6,0@" + before + " 12,0", -5.0,
                 "-3,4@" + after + " " + At(6.0, y - 4.0) + "@" + after + " 15,4");
}

TEST(PolylineOffset, AnArcWhoseEndsPassEachOtherRunsTheLongWayRound) {
    QnGePolyline2d line = Bulged("0,0 10,0@pi/2 0,10 close");
    ASSERT_TRUE(line.Offset(-4.5));
    const double x = std::sqrt(5.5 * 5.5 - 4.5 * 4.5);
    const double back = 2.0 * (std::atan2(4.5, x) - PI / 4.0);
    ExpectGeo(line, "pline 4.5,4.5 " + At(x, 4.5) + "@" + Num(2.0 * PI - back) + " " + At(4.5, x) + " close");
}

TEST(PolylineOffset, AnArcThatGrowsPastAFullTurnStartsAgainFromNothing) {
    // Sides along y = 1 and y = -1 towards a circle round the origin: moved beyond the axis, they have changed places.
    const double a = std::atan2(1.0, 2.0);
    const std::string line = "9,1 2,1@" + Num(2.0 * (PI - a)) + " 2,-1 9,-1";
    const double outer = std::sqrt(5.0) + 2.0;
    const double far = std::sqrt(outer * outer - 9.0);
    ExpectOffset(line, 2.0,
                 "9,3 " + At(far, 3.0) + "@" + Num(2.0 * (PI - std::atan2(3.0, far))) + " " + At(far, -3.0) + " 9,-3");
    const double inner = std::sqrt(5.0) - 1.5;
    const double near = std::sqrt(inner * inner - 0.25);
    ExpectOffset(line, -1.5,
                 "9,-0.5 " + At(near, -0.5) + "@" + Num(2.0 * std::asin(0.5 / inner)) + " " + At(near, 0.5) + " 9,0.5");
}

TEST(PolylineOffset, AFullTurnIsMeasuredAsNone) {
    // The sides of the same figure fall together on the axis.
    const double a = std::atan2(1.0, 2.0);
    QnGePolyline2d line = Bulged("9,1 2,1@" + Num(2.0 * (PI - a)) + " 2,-1 9,-1");
    ASSERT_TRUE(line.Offset(-1.0));
    EXPECT_TRUE(IsNear(line.GetVertex(1), QnGePoint(std::sqrt(5.0) - 1.0, 0.0)));
    EXPECT_TRUE(IsNear(line.GetVertex(2), QnGePoint(std::sqrt(5.0) - 1.0, 0.0)));
    EXPECT_EQ(line.GetBulge(1), 0.0);
}

TEST(PolylineOffset, TheFailureOfALaterSegmentLeavesTheEarlierOnes) {
    ExpectNoOffset("0,0 4,0@pi/2 6,2 6,4@-pi/2 7,5 20,5", 1.0);
    ExpectNoOffset("5,0@pi/2 0,5 -1,5 -3,5 -2,5", 0.5);
}

// ---- one segment -----------------------------------------------------------------------------------

TEST(PolylineOffsetSeg, ChordsAmongChords) {
    ExpectOffsetSeg("0,0 4,0 4,4 8,4", 1, 1.0, "0,0 5,0 5,4 8,4");
    ExpectOffsetSeg("0,0 4,0 4,4 8,4", 0, 1.0, "0,-1 4,-1 4,4 8,4");
    ExpectOffsetSeg("0,0 4,0 4,4 8,4", 2, 1.0, "0,0 4,0 4,3 8,3");
    ExpectOffsetSeg("0,0 4,0 4,4 0,4 close", 0, 1.0, "0,-1 4,-1 4,4 0,4 close");
    ExpectOffsetSeg("0,0 4,0 4,4 0,4 close", 3, 1.0, "-1,0 4,0 4,4 -1,4 close");
    ExpectOffsetSeg("0,0 4,0 4,4 0,4 close", 2, 1.0, "0,0 4,0 4,5 0,5 close");
    ExpectNoOffsetSeg("0,0 2,0 4,0 4,4", 1, 1.0);
}

TEST(PolylineOffsetSeg, AnArcBetweenChordsMeetsTheirLines) {
    // Round (10,0): radius 5 between the legs along the axes becomes 6.
    ExpectOffsetSeg("0,0 5,0@-pi/2 10,5 10,9", 1, -1.0, "0,0 4,0@-pi/2 10,6 10,9");
    ExpectOffsetSeg("0,0 5,0@-pi/2 10,5 10,9", 1, 2.0, "0,0 7,0@-pi/2 10,3 10,9");
}

TEST(PolylineOffsetSeg, AtEqualDistancesTheSecondMeetingPointIsTheCorner) {
    // The end of the slot grows to radius 5: it passes both sides 3 before and 3 behind the old corners.
    ExpectOffsetSeg("0,0 10,0@pi 10,8 0,8@pi close", 1, 1.0, "0,0 13,0@pi 7,8 0,8@pi close");
}

TEST(PolylineOffsetSeg, AnArcNextToTheMovedChordIsMeasuredAnew) {
    // The half circle round (4,5) begins at y = 1 now.
    ExpectOffsetSeg("0,0 4,0@pi 4,10 0,10", 0, -1.0, "0,1 7,1@" + Num(PI / 2.0 + std::atan2(4.0, 3.0)) + " 4,10 0,10");
}

TEST(PolylineOffsetSeg, TheFirstArcOfAnOpenLineTakesTheEndAlong) {
    ExpectOffsetSeg("5,0@pi/2 0,5 0,0", 0, 1.0, "6,0@pi/2 0,6 0,0");
    ExpectOffsetSeg("5,0@pi/2 0,5", 0, -2.0, "3,0@pi/2 0,3");
}

TEST(PolylineOffsetSeg, TheLastArcOfAnOpenLineTakesTheEndAlong) {
    ExpectOffsetSeg("0,0 5,0@pi/2 0,5", 1, 1.0, "0,0 6,0@pi/2 0,6");
}

TEST(PolylineOffsetSeg, OnAClosedLineTheSeamFollows) {
    ExpectOffsetSeg("5,0@pi/2 0,5 0,0 close", 0, 1.0, "6,0@pi/2 0,6 0,0 close");
    ExpectOffsetSeg("0,0 5,0@pi/2 0,5 close", 2, -1.0,
                    "1,0 5,0@" + Num(std::atan2(std::sqrt(24.0), 1.0)) + " " + At(1.0, std::sqrt(24.0)) + " close");
    ExpectOffsetSeg("0,5 0,0 5,0@pi/2 close", 2, 1.0, "0,6 0,0 6,0@pi/2 close");
}

TEST(PolylineOffsetSeg, OnlyTheSegmentItselfMayLoseItsRadius) {
    ExpectOffsetSeg("0,0 4,0 4,4@pi 4,6", 0, -2.0, "0,2 4,2 4,4@pi 4,6");
    ExpectNoOffset("0,0 4,0 4,4@pi 4,6", -2.0);
    ExpectNoOffsetSeg("0,0 4,0 4,4@pi 4,6", 2, -1.0);
    ExpectNoOffsetSeg("0,0 4,0 4,4@pi 4,6", 2, -2.0);
}

TEST(PolylineOffsetSeg, CarriersThatDoNotMeetStopIt) {
    ExpectNoOffsetSeg(ROUNDED, 0, 0.5);
    ExpectNoOffsetSeg(ROUNDED, 1, -0.5);
    ExpectNoOffsetSeg("5,0@pi/2 0,5@pi/2 -5,0", 0, 1.0);
    ExpectNoOffsetSeg("5,0@pi/2 0,5@pi/2 -5,0", 1, 1.0);
}

TEST(PolylineOffsetSeg, OneThatIsNotThereIsRefused) {
    for (const long i : {-5L, -1L, 2L, 3L, 1000000L}) {
        ExpectNoOffsetSeg("0,0 5,0@pi/2 0,5", i, 1.0);
    }
    ExpectNoOffsetSeg(ROUNDED, 8, 0.1);
}

// ---- input that is no line -------------------------------------------------------------------------

TEST(PolylineOffset, BrokenNumbersBreakNothing) {
    for (const double bad : {NOT_A_NUMBER, INF, -INF, 1e300, 0.0, 7.0, -50.0}) {
        for (long k = 0; k < 8; ++k) {
            QnGePolyline2d moved = Bulged(ROUNDED);
            moved.SetVertex(k, QnGePoint(bad, 1.0));
            QnGePolyline2d bent = Bulged(ROUNDED);
            bent.SetBulge(k, bad);
            for (QnGePolyline2d* line : {&moved, &bent}) {
                QnGePolyline2d other = *line;
                line->Offset(0.5);
                other.OffsetSeg(k, 0.5);
                EXPECT_EQ(line->GetVertexNum(), 8);
                EXPECT_EQ(other.GetVertexNum(), 8);
            }
        }
        QnGePolyline2d line = Bulged(ROUNDED);
        line.Offset(bad);
        EXPECT_EQ(line.GetVertexNum(), 8);
    }
}
