// SPDX-License-Identifier: Apache-2.0
// Named cases of the hit test on lines.

#include <gtest/gtest.h>

#include "PolylineTesting.h"
#include "frame/QnPushVar.h"
#include "polylines/QnGePolyline2d.h"

using namespace polyline_testing;

namespace {

void ExpectHit(const QnGeObject& line, double x, double y, std::uint32_t answer) {
    EXPECT_EQ(Bits(line.HitTest(QnGePoint(x, y))), answer) << x << ',' << y << " in " << Text(line);
}

/// The same answer whichever vertex the line starts at and whichever way it runs.
void ExpectHitFromAllStarts(const QnGePolyline2d& line, double x, double y, std::uint32_t answer) {
    const long n = line.GetVertexNum();
    for (long first = 0; first < n; ++first) {
        QnGePolyline2d turned(0, true);
        for (long i = 0; i < n; ++i) {
            turned.AppendVertex(line.GetVertex((first + i) % n), line.GetBulge((first + i) % n));
        }
        ExpectHit(turned, x, y, answer);
        turned.Reverse();
        ExpectHit(turned, x, y, answer);
        if (line.IsMLinear()) {
            ExpectHit(QnGeMLine2d(turned), x, y, answer);
        }
    }
}

}  // namespace

TEST(HitTest, OpenLinesKnowOnOrNothing) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4 0,4 0,0");
    ExpectHit(line, 2.0, 0.0, HIT_ON);
    ExpectHit(line, 4.0, 4.0, HIT_ON);
    ExpectHit(line, 2.0, 2.0, 0U);
    ExpectHit(line, 9.0, 9.0, 0U);
    const QnGePolyline2d bulged = Bulged("2,0@pi -2,0");
    ExpectHit(bulged, 0.0, 2.0, HIT_ON);
    ExpectHit(bulged, 0.0, 1.0, 0U);
    ExpectHit(QnGeMLine2d(), 0.0, 0.0, 0U);
    ExpectHit(Straight("0,0"), 0.0, 0.0, 0U);
}

TEST(HitTest, ClosedLinesKnowInsideAndOutside) {
    const QnGePolyline2d square = Bulged("0,0 4,0 4,4 0,4 close");
    ExpectHitFromAllStarts(square, 2.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(square, 5.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(square, -1.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(square, 2.0, -1.0, HIT_OUT);
    ExpectHitFromAllStarts(square, 2.0, 5.0, HIT_OUT);
    for (const double t : {0.0, 1.0, 4.0}) {
        ExpectHitFromAllStarts(square, t, 0.0, HIT_ON);
        ExpectHitFromAllStarts(square, t, 4.0, HIT_ON);
        ExpectHitFromAllStarts(square, 0.0, t, HIT_ON);
        ExpectHitFromAllStarts(square, 4.0, t, HIT_ON);
    }
}

TEST(HitTest, TheBoundaryIsAsThickAsTheLengthTolerance) {
    const QnGeMLine2d square = Straight("0,0 4,0 4,4 0,4 close");
    ExpectHit(square, 2.0, 9e-7, HIT_ON);
    ExpectHit(square, 2.0, -9e-7, HIT_ON);
    ExpectHit(square, 2.0, 1.1e-6, HIT_IN);
    ExpectHit(square, 2.0, -1.1e-6, HIT_OUT);
    ExpectHit(square, 4.0 + 9e-7, 2.0, HIT_ON);
    ExpectHit(square, 4.0 + 1.1e-6, 2.0, HIT_OUT);
    const QnPushVar<double> coarse(g_distZero, 0.5);
    ExpectHit(square, 2.0, 0.4, HIT_ON);
    ExpectHit(square, 2.0, 0.6, HIT_IN);
}

TEST(HitTest, ClosedLinesOfFewVertices) {
    ExpectHit(QnGeMLine2d(0, true), 0.0, 0.0, HIT_OUT);
    ExpectHit(QnGePolyline2d(0, true), 0.0, 0.0, HIT_OUT);
    ExpectHit(Straight("1,1 close"), 1.0, 1.0, HIT_OUT);
    ExpectHit(Straight("0,0 4,0 close"), 2.0, 0.0, HIT_ON);
    ExpectHit(Straight("0,0 4,0 close"), -2.0, 0.0, HIT_OUT);
    ExpectHit(Straight("0,0 4,4 close"), 1.0, 2.0, HIT_OUT);
    ExpectHit(Straight("0,0 4,4 close"), 0.0, 2.0, HIT_OUT);
}

TEST(HitTest, ALevelEdgeIsPassedOnceOrNotAtAll) {
    // A step: the boundary comes up to the level 2, runs along it and goes on up. And a tooth, which goes back down.
    const QnGePolyline2d step = Bulged("0,0 6,0 6,2 8,2 8,4 0,4 close");
    ExpectHitFromAllStarts(step, 1.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(step, 7.0, 2.0, HIT_ON);
    ExpectHitFromAllStarts(step, -1.0, 2.0, HIT_OUT);
    const QnGePolyline2d tooth = Bulged("0,0 8,0 8,4 6,4 6,2 4,2 4,4 0,4 close");
    ExpectHitFromAllStarts(tooth, 1.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(tooth, 5.0, 2.0, HIT_ON);
    ExpectHitFromAllStarts(tooth, 7.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(tooth, 5.0, 3.0, HIT_OUT);
    ExpectHitFromAllStarts(tooth, -1.0, 2.0, HIT_OUT);
}

TEST(HitTest, RunsOfVerticesOnTheLevelAreOnePassage) {
    const QnGePolyline2d step = Bulged("0,0 6,0 6,2 6.5,2 7,2 7.5,2 8,2 8,4 0,4 close");
    ExpectHitFromAllStarts(step, 1.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(step, -1.0, 2.0, HIT_OUT);
    // The run goes to and fro.
    const QnGePolyline2d folded = Bulged("0,0 6,0 6,2 9,2 7,2 8,2 8,4 0,4 close");
    ExpectHitFromAllStarts(folded, 1.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(folded, -1.0, 2.0, HIT_OUT);
}

TEST(HitTest, AVertexIsPassedWhereTheBoundaryPassesItsLevel) {
    const QnGePolyline2d diamond = Bulged("0,-2 2,0 0,2 -2,0 close");
    ExpectHitFromAllStarts(diamond, 0.0, 0.0, HIT_IN);
    ExpectHitFromAllStarts(diamond, -3.0, 0.0, HIT_OUT);
    ExpectHitFromAllStarts(diamond, -3.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(diamond, -3.0, -2.0, HIT_OUT);
    // A spike from the right that touches the level and turns back.
    const QnGePolyline2d spiked = Bulged("0,0 8,0 8,4 5,2 2,4 0,4 close");
    ExpectHitFromAllStarts(spiked, 1.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(spiked, -1.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(spiked, 5.0, 2.0, HIT_ON);
}

TEST(HitTest, SelfCrossingLinesCountByParity) {
    const QnGePolyline2d bow = Bulged("0,0 4,4 4,0 0,4 close");
    ExpectHitFromAllStarts(bow, 0.5, 2.0, HIT_IN);
    ExpectHitFromAllStarts(bow, 3.5, 2.0, HIT_IN);
    ExpectHitFromAllStarts(bow, 2.0, 3.0, HIT_OUT);
    ExpectHitFromAllStarts(bow, 2.0, 2.0, HIT_ON);
    const QnGePolyline2d twice = Bulged("0,0 4,0 4,4 0,4 0,0 4,0 4,4 0,4 close");
    ExpectHitFromAllStarts(twice, 1.0, 2.0, HIT_OUT);
    const QnGePolyline2d star = Bulged("0,3 -1.8,-2.4 2.9,0.9 -2.9,0.9 1.8,-2.4 close");
    ExpectHitFromAllStarts(star, 0.0, 0.0, HIT_OUT);
    ExpectHitFromAllStarts(star, 0.0, 2.0, HIT_IN);
}

// ---- arcs ------------------------------------------------------------------------------------------

TEST(HitTest, CirclesOfTwoHalves) {
    for (const char* vertices : {"2,0@pi -2,0@pi close", "2,0@-pi -2,0@-pi close", "0,2@pi 0,-2@pi close"}) {
        const QnGePolyline2d circle = Bulged(vertices);
        ExpectHitFromAllStarts(circle, 0.0, 0.0, HIT_IN);
        ExpectHitFromAllStarts(circle, -1.9, 0.0, HIT_IN);
        ExpectHitFromAllStarts(circle, -3.0, 0.0, HIT_OUT);
        ExpectHitFromAllStarts(circle, 3.0, 0.0, HIT_OUT);
        ExpectHitFromAllStarts(circle, -3.0, 1.0, HIT_OUT);
        ExpectHitFromAllStarts(circle, 0.5, 1.0, HIT_IN);
        ExpectHitFromAllStarts(circle, 0.0, 2.0, HIT_ON);
        ExpectHitFromAllStarts(circle, std::sqrt(2.0), std::sqrt(2.0), HIT_ON);
        ExpectHitFromAllStarts(circle, 2.0, 0.0, HIT_ON);
    }
}

TEST(HitTest, ARayThatTouchesAnArcDoesNotCount) {
    const QnGePolyline2d circle = Bulged("2,0@pi -2,0@pi close");
    ExpectHitFromAllStarts(circle, -3.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(circle, -3.0, -2.0, HIT_OUT);
    // Between two bows that stand up from one bar.
    const QnGePolyline2d bows = Bulged("-5,-2 5,-2 5,0@pi 1,0 -1,0@pi -5,0 close");
    ExpectHitFromAllStarts(bows, -6.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(bows, 0.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(bows, 3.0, 1.0, HIT_IN);
    ExpectHitFromAllStarts(bows, 0.0, 1.0, HIT_OUT);
    // A bay whose bottom touches the ray from above.
    const QnGePolyline2d bay = Bulged("-5,0 5,0 5,6 2,6@-pi -2,6 -5,6 close");
    ExpectHitFromAllStarts(bay, -4.0, 4.0, HIT_IN);
    ExpectHitFromAllStarts(bay, -6.0, 4.0, HIT_OUT);
}

TEST(HitTest, JointsOfArcsOnTheLevel) {
    // Level tangents at the joints: a stadium, whose bows begin and end along the chords.
    const QnGePolyline2d stadium = Bulged("-3,-2 3,-2@pi 3,2 -3,2@pi close");
    ExpectHitFromAllStarts(stadium, 0.0, 0.0, HIT_IN);
    ExpectHitFromAllStarts(stadium, -6.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(stadium, -6.0, -2.0, HIT_OUT);
    ExpectHitFromAllStarts(stadium, 0.0, 2.0, HIT_ON);
    ExpectHitFromAllStarts(stadium, -6.0, 0.0, HIT_OUT);
    // An S of two arcs that pass through the level where they join.
    const QnGePolyline2d wave = Bulged("0,0 6,0 6,2@-pi/2 6,4@pi/2 6,6 0,6 close");
    ExpectHitFromAllStarts(wave, 1.0, 4.0, HIT_IN);
    ExpectHitFromAllStarts(wave, -1.0, 4.0, HIT_OUT);
    ExpectHitFromAllStarts(wave, 1.0, 2.0, HIT_IN);
    ExpectHitFromAllStarts(wave, -1.0, 2.0, HIT_OUT);
    // Two bows that touch the level with their common end and turn back.
    const QnGePolyline2d notch = Bulged("0,0 8,0 8,4@-pi/2 4,2@-pi/2 0,4 close");
    ExpectHitFromAllStarts(notch, -1.0, 2.0, HIT_OUT);
    ExpectHitFromAllStarts(notch, 0.5, 2.0, HIT_IN);
}

TEST(HitTest, RoundedRectanglesOnAllTheirLevels) {
    const QnGePolyline2d box = Bulged("1,0 4,0@pi/2 5,1 5,3@pi/2 4,4 1,4@pi/2 0,3 0,1@pi/2 close");
    for (const double y : {1.0, 2.0, 3.0}) {
        ExpectHitFromAllStarts(box, -3.0, y, HIT_OUT);
        ExpectHitFromAllStarts(box, 1.0, y, HIT_IN);
        ExpectHitFromAllStarts(box, 0.0, y, HIT_ON);
    }
    for (const double y : {0.0, 4.0}) {
        ExpectHitFromAllStarts(box, -3.0, y, HIT_OUT);
        ExpectHitFromAllStarts(box, 2.0, y, HIT_ON);
        ExpectHitFromAllStarts(box, 0.01, y, HIT_OUT);
    }
}

TEST(HitTest, ATinyBulgeIsAChord) {
    QnGePolyline2d line = Bulged("0,0 1e6,0 1e6,1e6 0,1e6 close");
    line.SetBulge(0, g_angleZero);  // the arc would sag by more than a length unit
    ExpectHit(line, 5e5, 0.0, HIT_ON);
    ExpectHit(line, 5e5, -1.0, HIT_OUT);
    line.SetBulge(0, 2.0 * g_angleZero);
    ExpectHit(line, 5e5, -1.0, HIT_IN);
}

// ---- limits ----------------------------------------------------------------------------------------

TEST(HitTest, KeptOddLevelsNextToAVertexOfUnequalEdges) {
    const QnGeMLine2d line = Straight("0,-1000 10,-1000 12,0 12,0.01 10,1000 0,1000 close");
    for (const double y : {1e-10, 1e-8, 5e-7}) {
        ExpectHit(line, 5.0, y, HIT_OUT);
    }
    for (const double y : {0.0, 1e-12, 2e-6, -2e-6, 1.0}) {
        ExpectHit(line, 5.0, y, HIT_IN);
    }
}

TEST(HitTest, KeptOddLevelsNextToAJointOfArcAndChord) {
    const QnGePolyline2d box = Bulged("1,0 4,0@pi/2 5,1 5,3@pi/2 4,4 1,4@pi/2 0,3 0,1@pi/2 close");
    ExpectHit(box, -3.01, 1.0000003, HIT_IN);
    ExpectHit(box, -3.01, 0.9999997, HIT_IN);
    ExpectHit(box, -3.01, 1.0, HIT_OUT);
    ExpectHit(box, -3.01, 0.999998, HIT_OUT);
}

TEST(HitTest, KeptOddArcsReachBackBeforeTheirStart) {
    // By up to g_angleZero, so the further the larger their radius: the chord and the start of the arc both count.
    const QnGePolyline2d box = Bulged("1,0 4,0@pi/2 5,1 5,3@pi/2 4,4 1,4@pi/2 0,3 0,1@pi/2 close");
    ExpectHit(box, -3.01, 1.000002, HIT_IN);
    ExpectHit(box, -3.01, 1.000009, HIT_IN);
    ExpectHit(box, -3.01, 1.000011, HIT_OUT);
    const QnGePolyline2d flat = Bulged("0,0 10,0@0.01 0,10 close");  // a radius of about 1414
    ExpectHit(flat, -1.0, 0.01, HIT_OUT);
    ExpectHit(flat, -1.0, -0.005, HIT_IN);
    ExpectHit(flat, -1.0, -0.02, HIT_OUT);
}

TEST(HitTest, KeptOddARepeatedVertexIsOnOnItsWholeLevel) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,2 4,2 4,4 0,4 close");
    ExpectHit(line, 1.0, 2.0, HIT_ON);
    ExpectHit(line, -7.0, 2.0, HIT_ON);
    ExpectHit(line, 100.0, 2.0, HIT_ON);
    ExpectHit(line, 1.0, 2.0000001, HIT_IN);
    QnGeMLine2d cleaned(line);
    EXPECT_TRUE(cleaned.RemoveDupPoint());
    ExpectHit(cleaned, 1.0, 2.0, HIT_IN);
    ExpectHit(cleaned, -7.0, 2.0, HIT_OUT);
}

TEST(HitTest, ALineThatNeverLeavesTheLevelDoesNotHoldTheWalk) {
    ExpectHit(Straight("0,0 1,5e-7 2,0 close"), -1.0, 5e-7, HIT_OUT);
    ExpectHit(Straight("0,0 1,5e-7 2,0 close"), -1.0, 0.0, HIT_OUT);
    ExpectHit(Bulged("0,0 1,5e-7 2,0 close"), -1.0, 5e-7, HIT_OUT);
    for (int i = 0; i < 2000; ++i) {
        RandomSource random(CaseSeed(80, i));
        QnGePolyline2d line(0, true);
        const int n = random.Int(2, 12);
        for (int k = 0; k < n; ++k) {
            line.AppendVertex(QnGePoint(random.Int(0, 5), random.Int(0, 2) * 5e-7));
        }
        const QnGePoint p(random.Int(-1, 6), random.Int(-1, 3) * 5e-7);
        const std::uint32_t known = HIT_ON | HIT_IN | HIT_OUT;
        EXPECT_NE(Bits(line.HitTest(p)) & known, 0U);
        EXPECT_NE(Bits(QnGeMLine2d(line).HitTest(p)) & known, 0U);
    }
}
