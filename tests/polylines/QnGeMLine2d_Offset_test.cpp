// SPDX-License-Identifier: Apache-2.0
// The offset of multi-lines: carriers moved to the right, corners intersected, nothing rounded and nothing trimmed.

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "PolylineTesting.h"

using namespace polyline_testing;

namespace {

void ExpectOffset(const std::string& vertices, double dist, const std::string& expected) {
    QnGeMLine2d line = Straight(vertices);
    EXPECT_TRUE(line.Offset(dist)) << vertices;
    ExpectGeo(line, "mline " + expected);
}

/// The answer is false and not a bit of the line changes.
void ExpectNoOffset(const std::string& vertices, double dist) {
    QnGeMLine2d line = Straight(vertices);
    const std::vector<unsigned char> before = Record(line);
    EXPECT_FALSE(line.Offset(dist)) << vertices;
    EXPECT_EQ(Record(line), before) << Text(line);
}

/// Segment `i` moves; every vertex but its two keeps its numbers exactly.
void ExpectOffsetSeg(const std::string& vertices, long i, double dist, const std::string& expected) {
    const QnGeMLine2d before = Straight(vertices);
    QnGeMLine2d line = before;
    EXPECT_TRUE(line.OffsetSeg(i, dist)) << vertices;
    ExpectGeo(line, "mline " + expected);
    for (long k = 0; k < line.GetVertexNum(); ++k) {
        if (k == i || k == (i + 1) % line.GetVertexNum()) {
            continue;
        }
        EXPECT_TRUE(IsNear(line.GetVertex(k), before.GetVertex(k), 0.0)) << "vertex " << k << " of " << vertices;
    }
}

void ExpectNoOffsetSeg(const std::string& vertices, long i, double dist) {
    QnGeMLine2d line = Straight(vertices);
    const std::vector<unsigned char> before = Record(line);
    EXPECT_FALSE(line.OffsetSeg(i, dist)) << "segment " << i << " of " << vertices;
    EXPECT_EQ(Record(line), before) << Text(line);
}

}  // namespace

// ---- the whole line --------------------------------------------------------------------------------

TEST(MLineOffset, ARectangleGrowsByTwiceTheDistanceWithSharpCorners) {
    ExpectOffset("0,0 4,0 4,3 0,3 close", 0.5, "-0.5,-0.5 4.5,-0.5 4.5,3.5 -0.5,3.5 close");
    ExpectOffset("0,0 4,0 4,3 0,3 close", -0.5, "0.5,0.5 3.5,0.5 3.5,2.5 0.5,2.5 close");
}

TEST(MLineOffset, AClockwiseRectangleShrinks) {
    ExpectOffset("0,0 0,3 4,3 4,0 close", 0.5, "0.5,0.5 0.5,2.5 3.5,2.5 3.5,0.5 close");
    ExpectOffset("0,0 0,3 4,3 4,0 close", -0.5, "-0.5,-0.5 -0.5,3.5 4.5,3.5 4.5,-0.5 close");
}

TEST(MLineOffset, TheEndsOfAnOpenLineMoveSquarely) {
    ExpectOffset("0,0 4,0", 1.0, "0,-1 4,-1");
    ExpectOffset("0,0 3,4", 5.0, "4,-3 7,1");
    ExpectOffset("0,0 4,0 4,4", 1.0, "0,-1 5,-1 5,4");
    ExpectOffset("0,0 4,0 4,4", -1.0, "0,1 3,1 3,4");
}

TEST(MLineOffset, NoDistanceMovesNothing) {
    ExpectOffset("0,0 4,0 4,3 0,3 close", 0.0, "0,0 4,0 4,3 0,3 close");
    ExpectOffset("0,0 4,0 4,3", 0.0, "0,0 4,0 4,3");
}

TEST(MLineOffset, ACornerTakesItsHeightFromTheSegmentBeforeIt) {
    // The first segment rises by 2 a unit and runs on to x = 5; the closing one falls by 1 a unit and runs on to
    // y = -1.
    ExpectOffset("0,0,0 4,0,8 4,4,0", 1.0, "0,-1,0 5,-1,10 5,4,0");
    ExpectOffset("0,0,0 4,0,8 4,4,4 0,4,4 close", 1.0, "-1,-1,-1 5,-1,10 5,5,3 -1,5,4 close");
}

TEST(MLineOffset, CollinearNeighboursKeepTheVertexAtTheStartOfTheSecond) {
    ExpectOffset("0,0 2,0,5 4,0,1 4,4", 1.0, "0,-1 2,-1,5 5,-1,-1 5,4");
    ExpectOffset("2,0 4,0 4,4 0,4 0,0 close", 1.0, "2,-1 5,-1 5,5 -1,5 -1,-1 close");
}

TEST(MLineOffset, AUTurnComesApartAndIsRefused) {
    ExpectNoOffset("0,0 4,0 1,0", 1.0);
    ExpectNoOffset("0,0 4,0 1,0", -1.0);
    ExpectNoOffset("0,0,1 4,0,2 close", 1.0);
    ExpectNoOffset("0,0 4,0 4,4 4,1 9,1", 0.25);
}

TEST(MLineOffset, AUTurnAtTheSeamOfAClosedLineIsRefused) {
    ExpectNoOffset("0,0 4,0 4,4 6,4 6,0 close", 1.0);
}

TEST(MLineOffset, AUTurnWithinTheToleranceIsOneLineStill) {
    // The two sides are twice the distance apart, and g_distZero apart is together.
    ExpectOffset("0,0 4,0 1,0", 4e-7, "0,-4e-7 4,4e-7 1,4e-7");
    ExpectNoOffset("0,0 4,0 1,0", 6e-7);
}

TEST(MLineOffset, ALineWithoutSegmentsIsRefused) {
    for (const bool closed : {false, true}) {
        QnGeMLine2d empty(0, closed);
        EXPECT_FALSE(empty.Offset(1.0));
        EXPECT_EQ(empty.GetVertexNum(), 0);
        QnGeMLine2d point(0, closed);
        point.AppendVertex(QnGePoint(3.0, 4.0, 5.0));
        EXPECT_FALSE(point.Offset(1.0));
        EXPECT_TRUE(IsNear(point.GetVertex(0), QnGePoint(3.0, 4.0, 5.0), 0.0));
        EXPECT_EQ(point.GetVertexNum(), 1);
    }
}

TEST(MLineOffset, ASegmentShorterThanTheOffsetNeedsRunsBackwards) {
    const double toBevel = 12.5 - 3.0 * std::sqrt(2.0);
    const double fromBevel = 3.0 * std::sqrt(2.0) - 2.5;
    QnGeMLine2d line = Straight("0,0 9.5,0 10,0.5 10,10 0,10 close");
    ASSERT_TRUE(line.Offset(-3.0));
    EXPECT_TRUE(IsNear(line.GetVertex(0), QnGePoint(3.0, 3.0)));
    EXPECT_TRUE(IsNear(line.GetVertex(1), QnGePoint(toBevel, 3.0)));
    EXPECT_TRUE(IsNear(line.GetVertex(2), QnGePoint(7.0, fromBevel)));
    EXPECT_TRUE(IsNear(line.GetVertex(3), QnGePoint(7.0, 7.0)));
    EXPECT_TRUE(IsNear(line.GetVertex(4), QnGePoint(3.0, 7.0)));
    EXPECT_TRUE(line.IsSelfCross());
}

TEST(MLineOffset, ASquareMovedPastItsMiddleComesOutTurnedThrough) {
    QnGeMLine2d line = Straight("0,0 2,0 2,2 0,2 close");
    ASSERT_TRUE(line.Offset(-1.5));
    ExpectGeo(line, "mline 1.5,1.5 0.5,1.5 0.5,0.5 1.5,0.5 close");
    EXPECT_FALSE(line.IsSelfCross());
    EXPECT_FALSE(line.IsClockwise());
}

TEST(MLineOffset, ASharpCornerIsIntersectedHoweverFar) {
    QnGeMLine2d line = Straight("0,0 10,0 0,0.001");
    ASSERT_TRUE(line.Offset(1.0));
    const double toCorner = 1.0 / std::tan(std::atan(0.0001) / 2.0);
    EXPECT_TRUE(IsNear(line.GetVertex(0), QnGePoint(0.0, -1.0)));
    EXPECT_TRUE(IsNear(line.GetVertex(1), QnGePoint(10.0 + toCorner, -1.0), 1e-4));
}

TEST(MLineOffset, TheClosedFlagAndTheCountStay) {
    QnGeMLine2d line = Straight("0,0 4,0 4,3 0,3 close");
    ASSERT_TRUE(line.Offset(0.5));
    EXPECT_TRUE(line.IsClosed());
    EXPECT_EQ(line.GetVertexNum(), 4);
    line.SetClosed(false);
    ASSERT_TRUE(line.Offset(-0.5));
    EXPECT_FALSE(line.IsClosed());
    ExpectGeo(line, "mline -0.5,0 4,0 4,3 -0.5,3");
}

// ---- one segment -----------------------------------------------------------------------------------

TEST(MLineOffsetSeg, AMiddleSegmentMovesItsTwoVertices) {
    ExpectOffsetSeg("0,0 4,0 4,4 8,4", 1, 1.0, "0,0 5,0 5,4 8,4");
    ExpectOffsetSeg("0,0 4,0 4,4 8,8", 1, -1.0, "0,0 3,0 3,3 8,8");
}

TEST(MLineOffsetSeg, TheFirstSegmentOfAnOpenLineTakesTheEndAlong) {
    ExpectOffsetSeg("0,0 4,0 4,4 8,4", 0, 1.0, "0,-1 4,-1 4,4 8,4");
}

TEST(MLineOffsetSeg, TheLastSegmentOfAnOpenLineTakesTheEndAlong) {
    ExpectOffsetSeg("0,0 4,0 4,4 8,4", 2, 1.0, "0,0 4,0 4,3 8,3");
}

TEST(MLineOffsetSeg, TheOnlySegmentMovesAsAWhole) {
    ExpectOffsetSeg("0,0 4,0", 0, 1.0, "0,-1 4,-1");
}

TEST(MLineOffsetSeg, TheFirstSegmentOfAClosedLineMovesVerticesZeroAndOneOnly) {
    ExpectOffsetSeg("0,0 4,0 4,4 0,4 close", 0, 1.0, "0,-1 4,-1 4,4 0,4 close");
}

TEST(MLineOffsetSeg, TheClosingSegmentMovesTheLastVertexAndVertexZero) {
    ExpectOffsetSeg("0,0 4,0 4,4 0,4 close", 3, 1.0, "-1,0 4,0 4,4 -1,4 close");
}

TEST(MLineOffsetSeg, AMiddleSegmentOfAClosedLineLeavesTheSeam) {
    ExpectOffsetSeg("0,0 4,0 4,4 0,4 close", 2, 1.0, "0,0 4,0 4,5 0,5 close");
    // The seam is a U-turn, which only a moved neighbour would ask about.
    ExpectOffsetSeg("0,0 4,0 4,4 6,4 6,0 close", 2, 1.0, "0,0 4,0 4,3 6,3 6,0 close");
}

TEST(MLineOffsetSeg, HeightsFollowTheSegmentBeforeTheCorner) {
    // Vertex 1 takes the height of the first segment at x = 5, vertex 2 that of the moved one.
    ExpectOffsetSeg("0,0,0 4,0,8 4,4,0 8,4,1", 1, 1.0, "0,0,0 5,0,10 5,4,0 8,4,1");
    ExpectOffsetSeg("0,0,0 4,0,8 4,4,0 8,8,1", 1, -1.0, "0,0,0 3,0,6 3,3,2 8,8,1");
}

TEST(MLineOffsetSeg, ASegmentInAStraightRunIsRefused) {
    ExpectNoOffsetSeg("0,0 2,0 4,0 4,4", 0, 1.0);
    ExpectNoOffsetSeg("0,0 2,0 4,0 4,4", 1, 1.0);
    ExpectNoOffsetSeg("0,0 4,0 4,4 0,4 0,2 close", 3, 1.0);
    ExpectNoOffsetSeg("0,0 4,0 4,4 0,4 0,2 close", 4, 1.0);
}

TEST(MLineOffsetSeg, AUTurnIsRefused) {
    ExpectNoOffsetSeg("0,0 4,0 1,0 1,5", 0, 1.0);
    ExpectNoOffsetSeg("0,0 4,0 1,0 1,5", 1, 1.0);
    ExpectNoOffsetSeg("0,0 4,0 close", 0, 1.0);
    ExpectNoOffsetSeg("0,0 4,0 close", 1, 1.0);
}

TEST(MLineOffsetSeg, WhatIsFarFromTheSegmentIsNotAsked) {
    ExpectOffsetSeg("0,0 2,0 4,0 4,4", 2, 1.0, "0,0 2,0 5,0 5,4");
    ExpectOffsetSeg("0,0 4,0 1,0 1,5 6,5", 3, 1.0, "0,0 4,0 1,0 1,4 6,4");
}

TEST(MLineOffsetSeg, WithinTheToleranceAStraightRunIsOneLineStill) {
    // Vertex 1 is the start of the segment behind it: of the unmoved one, and of the moved one.
    ExpectOffsetSeg("0,0 2,0,7 4,0 4,4", 0, 5e-7, "0,-5e-7 2,0,7 4,0 4,4");
    ExpectOffsetSeg("0,0 2,0,7 4,0 4,4", 1, 5e-7, "0,0 2,-5e-7,7 4,-5e-7 4,4");
}

TEST(MLineOffsetSeg, OneThatIsNotThereIsRefused) {
    for (const long i : {-5L, -1L, 3L, 4L, 1000000L}) {
        ExpectNoOffsetSeg("0,0 4,0 4,4 8,4", i, 1.0);
    }
    ExpectNoOffsetSeg("0,0 4,0 4,4 0,4 close", 4, 1.0);
    QnGeMLine2d empty;
    EXPECT_FALSE(empty.OffsetSeg(0, 1.0));
    QnGeMLine2d point(1, true);
    EXPECT_FALSE(point.OffsetSeg(0, 1.0));
}

// ---- input that is no line -------------------------------------------------------------------------

TEST(MLineOffset, BrokenCoordinatesBreakNothing) {
    for (const double bad : {NOT_A_NUMBER, INF, -INF, 1e300}) {
        for (long k = 0; k < 4; ++k) {
            QnGeMLine2d line = Straight("0,0 4,0 4,4 0,4 close");
            line.SetVertex(k, QnGePoint(bad, 1.0));
            QnGeMLine2d other = line;
            line.Offset(1.0);
            other.OffsetSeg(k, 1.0);
            EXPECT_EQ(line.GetVertexNum(), 4);
            EXPECT_EQ(other.GetVertexNum(), 4);
        }
        QnGeMLine2d line = Straight("0,0 4,0 4,4 0,4 close");
        line.Offset(bad);
        EXPECT_EQ(line.GetVertexNum(), 4);
    }
    QnGeMLine2d doubled = Straight("0,0 4,0 4,0 4,4");
    doubled.Offset(1.0);
    EXPECT_EQ(doubled.GetVertexNum(), 4);
}
