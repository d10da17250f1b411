// SPDX-License-Identifier: Apache-2.0
// Lines taken apart where they cross themselves: a loop and the rest at every crossing, the rest first.

#include <gtest/gtest.h>

#include <string>

#include "PolylineTesting.h"
#include "frame/QnGeObjList.h"
#include "values/QnGePoint2d.h"

using namespace polyline_testing;

namespace {

/// The line comes apart into these pieces, in this order, and stays as it was itself.
void ExpectPieces(const std::string& vertices, const std::string& expected, double tolerance = GEO_NEAR) {
    const QnGeMLine2d line = Straight(vertices);
    const std::vector<unsigned char> before = Record(line);
    QnGeObjList parts;
    EXPECT_TRUE(line.ExplodeSelfcross(parts)) << vertices;
    ExpectGeoList(parts, expected, tolerance);
    EXPECT_EQ(Record(line), before);
}

/// The answer is false; the line and a list that holds something already stay as they were.
void ExpectWhole(const std::string& vertices) {
    const QnGeMLine2d line = Straight(vertices);
    const std::vector<unsigned char> before = Record(line);
    QnGeObjList parts;
    QnGePoint2d* const held = new QnGePoint2d(QnGePoint(7.0, 8.0, 9.0));
    parts.Append(held);
    EXPECT_FALSE(line.ExplodeSelfcross(parts)) << vertices;
    EXPECT_EQ(Record(line), before);
    ASSERT_EQ(parts.GetLength(), 1) << Text(line) << '\n' << ToText(parts);
    EXPECT_EQ(parts.GetAt(0), held);
    ExpectGeoList(parts, "point 7,8,9", 0.0);
}

}  // namespace

// ---- nothing to take apart -------------------------------------------------------------------------

TEST(ExplodeSelfcross, ASimpleLineLeavesTheList) {
    ExpectWhole("0,0 4,0 4,4");
    ExpectWhole("0,0 4,0 4,4 0,4 close");
    ExpectWhole("0,0 4,1 0,2 4,3 0,4 4,5");
    ExpectWhole("0,0 2,0 4,0 4,4 close");
}

TEST(ExplodeSelfcross, BelowTwoSegmentsThereIsNoPair) {
    ExpectWhole("0,0 4,0");
    ExpectWhole("0,0");
    ExpectWhole("0,0 close");
    QnGeObjList parts;
    EXPECT_FALSE(QnGeMLine2d(0, true).ExplodeSelfcross(parts));
    EXPECT_TRUE(parts.IsEmpty());
}

TEST(ExplodeSelfcross, NeighboursMayTouchAtTheirVertex) {
    ExpectWhole("0,0 4,0 4,4 close");
    ExpectWhole("0,0 4,0 0,0.001");
    ExpectWhole("0,0 10,0 0,1 close");
}

// ---- crossings between vertices --------------------------------------------------------------------

TEST(ExplodeSelfcross, AnOpenFigureEightGivesTheTailsAndTheLoop) {
    ExpectPieces("0,0 4,4 4,0 0,4", "mline 0,0 2,2 0,4; mline 2,2 4,4 4,0 close");
}

TEST(ExplodeSelfcross, AClosedLineThatCrossesOnceGivesTwoClosedLines) {
    ExpectPieces("0,0 4,4 4,0 0,4 close", "mline 0,0 2,2 0,4 close; mline 2,2 4,4 4,0 close");
}

TEST(ExplodeSelfcross, PiecesGoBehindWhatTheListHolds) {
    QnGeObjList parts;
    parts.Append(new QnGePoint2d(QnGePoint(7.0, 8.0)));
    EXPECT_TRUE(Straight("0,0 4,4 4,0 0,4").ExplodeSelfcross(parts));
    ExpectGeoList(parts, "point 7,8; mline 0,0 2,2 0,4; mline 2,2 4,4 4,0 close");
}

TEST(ExplodeSelfcross, TheCrossingLiesOnTheEarlierSegment) {
    // It rises by 1 a unit there and falls by 2 on the later one.
    ExpectPieces("0,0,0 4,4,4 4,0,9 0,4,1", "mline 0,0,0 2,2,2 0,4,1; mline 2,2,2 4,4,4 4,0,9 close");
}

TEST(ExplodeSelfcross, OfTwoCrossingsOnASegmentTheOneWithTheEarlierSegmentCutsFirst) {
    // The third segment from the end meets the first one at x = 8, before the last one meets it at x = 2.
    ExpectPieces("0,0 10,0 10,4 8,4 8,-2 2,-2 2,2",
                 "mline 0,0 2,0 2,2; mline 2,0 8,0 8,-2 2,-2 close; mline 8,0 10,0 10,4 8,4 close");
}

TEST(ExplodeSelfcross, TheRestIsTakenApartBeforeTheLoop) {
    // As above, and the loop at x = 8 crosses itself at (10,2).
    ExpectPieces("0,0 10,0 10,6 9,6 9,2 11,2 11,8 8,8 8,-2 2,-2 2,2",
                 "mline 0,0 2,0 2,2; mline 2,0 8,0 8,-2 2,-2 close;"
                 "mline 8,0 10,0 10,2 11,2 11,8 8,8 close; mline 10,2 10,6 9,6 9,2 close");
}

TEST(ExplodeSelfcross, APentagramTurnsTwiceAndGivesTwoLoops) {
    const double y = 10.0 * std::sin(0.4 * PI);
    QnGeMLine2d star(0, true);
    for (int i = 0; i < 5; ++i) {
        star.AppendVertex(QnGePoint(10.0 * std::cos(0.8 * PI * i), 10.0 * std::sin(0.8 * PI * i)));
    }
    QnGeObjList parts;
    ASSERT_TRUE(star.ExplodeSelfcross(parts));
    ASSERT_EQ(parts.GetLength(), 2) << ToText(parts);
    double length = 0.0;
    for (long i = 0; i < parts.GetLength(); ++i) {
        const auto& piece = static_cast<const QnGeMLine2d&>(*parts.GetAt(i));
        EXPECT_EQ(piece.GetClassID(), CLASS_ID_MLINE2D);
        EXPECT_TRUE(piece.IsClosed());
        EXPECT_FALSE(piece.IsSelfCross());
        EXPECT_FALSE(piece.IsClockwise());
        EXPECT_GE(piece.GetVertexNum(), 3);
        length += piece.Length();
    }
    EXPECT_NEAR(length, 10.0 * y, 1e-9);
}

TEST(ExplodeSelfcross, APolylineIsItsChords) {
    QnGeObjList parts;
    EXPECT_TRUE(Bulged("0,0@0.5 4,4@-1 4,0@3 0,4").ExplodeSelfcross(parts));
    ExpectGeoList(parts, "mline 0,0 2,2 0,4; mline 2,2 4,4 4,0 close");
    const QnGePolyline2d bows = Bulged("0,0@3pi/2 1,0@3pi/2 2,0@3pi/2 3,0");
    EXPECT_TRUE(bows.IsSelfCross());
    EXPECT_FALSE(bows.ExplodeSelfcross(parts));
    EXPECT_EQ(parts.GetLength(), 2);
}

// ---- crossings at vertices -------------------------------------------------------------------------

TEST(ExplodeSelfcross, ThroughTheEndOfTheEarlierSegment) {
    ExpectPieces("0,0 2,2 4,2 4,4 2,4 2,0", "mline 0,0 2,2 2,0; mline 2,2 4,2 4,4 2,4 close");
}

TEST(ExplodeSelfcross, AtTheEndOfTheLaterSegment) {
    ExpectPieces("0,0 4,0 4,2 2,2 2,0 2,-2", "mline 0,0 2,0 2,-2; mline 2,0 4,0 4,2 2,2 close");
    ExpectPieces("0,0 4,0 4,2 2,2 2,0", "mline 0,0 2,0; mline 2,0 4,0 4,2 2,2 close");
}

TEST(ExplodeSelfcross, AtTheEndsOfBoth) {
    ExpectPieces("0,0 2,2 4,4 4,0 2,2 0,4", "mline 0,0 2,2 0,4; mline 2,2 4,4 4,0 close");
    ExpectPieces("0,0 2,2 4,4 4,0 2,2 0,4 close", "mline 0,0 2,2 0,4 close; mline 2,2 4,4 4,0 close");
    ExpectPieces("0,0 2,2 4,4 4,0 2,2", "mline 0,0 2,2; mline 2,2 4,4 4,0 close");
}

TEST(ExplodeSelfcross, ThroughTheStartPointDoesNotDoubleIt) {
    ExpectPieces("0,0 0,2 -2,2 -2,0 2,0", "mline 0,0 2,0; mline 0,0 0,2 -2,2 -2,0 close");
    ExpectPieces("0,0 0,2 -2,2 -2,0 2,0 2,-3 close", "mline 0,0 2,0 2,-3 close; mline 0,0 0,2 -2,2 -2,0 close");
}

TEST(ExplodeSelfcross, AnOpenLineThatEndsAtItsStartIsALoopAlone) {
    // The rest would be the start point.
    ExpectPieces("0,0 4,0 4,4 0,0", "mline 0,0 4,0 4,4 close");
    ExpectPieces("0,0 4,0 4,4 0,4 0,0", "mline 0,0 4,0 4,4 0,4 close");
}

TEST(ExplodeSelfcross, AVertexWithinTheToleranceIsTheCrossing) {
    ExpectPieces("0,0 2,2 4,2 4,4 1.9999996,4 1.9999996,0",
                 "mline 0,0 1.9999996,1.9999996 1.9999996,0; mline 2,2 4,2 4,4 1.9999996,4 close");
    ExpectPieces("0,0 4,0 4,2 2,2 2,-4e-7 3,-2", "mline 0,0 2,0 3,-2; mline 2,0 4,0 4,2 2,2 close");
    ExpectPieces("0,0 0,2 -2,2 -2,4e-7 2,4e-7", "mline 0,0 2,4e-7; mline 0,4e-7 0,2 -2,2 -2,4e-7 close");
}

TEST(ExplodeSelfcross, BesideTheToleranceTheVertexStays) {
    ExpectPieces("0,0 4,0 4,2 2,2 2,-3e-6 3,-2", "mline 0,0 2,0 2,-3e-6 3,-2; mline 2,0 4,0 4,2 2,2 close");
}

TEST(ExplodeSelfcross, AVertexOnALaterSegmentGivesTheLoopBetween) {
    // A clover with three leaves that all start at the origin.
    ExpectPieces("0,0 2,1 2,-1 0,0 -1,2 -2,1 0,0 -2,-1 -1,-2 close",
                 "mline 0,0 -2,-1 -1,-2 close; mline 0,0 -1,2 -2,1 close; mline 0,0 2,1 2,-1 close");
}

// ---- overlaps --------------------------------------------------------------------------------------

TEST(ExplodeSelfcross, TwoSegmentsOnEachOtherComeLaterOneFirst) {
    ExpectPieces("0,0 4,0 1,0", "seg 4,0 1,0; seg 0,0 4,0");
    ExpectPieces("0,0,1 4,0,2 -1,0,5", "seg 4,0,2 -1,0,5; seg 0,0,1 4,0,2");
    ExpectPieces("0,0 4,0 close", "seg 4,0 0,0; seg 0,0 4,0");
}

TEST(ExplodeSelfcross, NeighboursThatRunBackAreAnOverlap) {
    // The loop is one vertex and goes; the rest joins up without it.
    ExpectPieces("0,0 4,0 1,0 1,3", "seg 4,0 1,0; seg 0,0 4,0; mline 0,0 1,0 1,3");
    ExpectPieces("0,3 0,0 4,0 1,0", "seg 4,0 1,0; seg 0,0 4,0; mline 0,3 0,0 1,0");
    ExpectPieces("0,0 4,0 4,3 4,1 0,1 close", "seg 4,3 4,1; seg 4,0 4,3; mline 0,0 4,0 4,1 0,1 close");
}

TEST(ExplodeSelfcross, AnOverlapFurtherOnGivesSegmentsRestAndLoop) {
    ExpectPieces("0,0 6,0 6,3 8,3 8,0 4,0 4,-3",
                 "seg 8,0 4,0; seg 0,0 6,0; mline 0,0 4,0 4,-3; mline 6,0 6,3 8,3 8,0 close");
    ExpectPieces("0,0 6,0 6,3 8,3 8,0 4,0 4,-3 close",
                 "seg 8,0 4,0; seg 0,0 6,0; mline 0,0 4,0 4,-3 close; mline 6,0 6,3 8,3 8,0 close");
}

TEST(ExplodeSelfcross, AnOverlapInTheSameDirection) {
    ExpectPieces("2,0 6,0 6,3 0,3 0,0 9,0", "seg 0,0 9,0; seg 2,0 6,0; mline 2,0 9,0; mline 6,0 6,3 0,3 0,0 close");
    // Where the later one begins on the earlier one, the segment before it touches there and cuts first.
    ExpectPieces("0,0 6,0 6,3 2,3 2,0 9,0", "mline 0,0 2,0 9,0; mline 2,0 6,0 6,3 2,3 close");
}

TEST(ExplodeSelfcross, AnOverlapThatEndsWhereItBeganDropsOneOfTheTwoVertices) {
    ExpectPieces("0,0 4,0 0,0 0,3", "seg 4,0 0,0; seg 0,0 4,0; mline 0,0 0,3");
    ExpectPieces("0,0 4,0 4,2 6,2 6,0 0,0 0,-3",
                 "seg 6,0 0,0; seg 0,0 4,0; mline 0,0 0,-3; mline 4,0 4,2 6,2 6,0 close");
    // Nothing behind it: the rest is the start point alone and goes.
    ExpectPieces("0,0 4,0 4,2 6,2 6,0 0,0", "seg 6,0 0,0; seg 0,0 4,0; mline 4,0 4,2 6,2 6,0 close");
}

TEST(ExplodeSelfcross, TheClosingSegmentOnTheFirstLeavesTheLoopAlone) {
    ExpectPieces("0,0 4,0 4,3 8,3 8,0 close", "seg 8,0 0,0; seg 0,0 4,0; mline 4,0 4,3 8,3 8,0 close");
}

TEST(ExplodeSelfcross, TheEndsOfAnOverlapAreComparedInSpace) {
    QnGeObjList parts;
    EXPECT_TRUE(Straight("0,0 4,0 4,2 6,2 6,0 0,0,5 0,-3").ExplodeSelfcross(parts));
    ASSERT_GE(parts.GetLength(), 3);
    QnGeObjList first;
    first.Append(parts.GetAt(0)->Clone());
    first.Append(parts.GetAt(1)->Clone());
    ExpectGeoList(first, "seg 6,0 0,0,5; seg 0,0 4,0");
    // Both vertices are in the rest, so its last segment is that from the upper one.
    bool isUpperKept = false;
    for (long i = 2; i < parts.GetLength(); ++i) {
        isUpperKept = isUpperKept || ToText(*parts.GetAt(i)).find("0,0,5") != std::string::npos;
    }
    EXPECT_TRUE(isUpperKept) << ToText(parts);
}

TEST(ExplodeSelfcross, ACrossingBeforeAnOverlapCutsFirst) {
    // The first segment is crossed at x = 1; the second pair lies on each other.
    ExpectPieces("0,0 2,0 2,4 2,1 1,1 1,-1",
                 "mline 0,0 1,0 1,-1; seg 2,4 2,1; seg 2,0 2,4; mline 1,0 2,0 2,1 1,1 close");
}

TEST(ExplodeSelfcross, ALineThatRunsItsWholeWayBack) {
    // It touches itself at 4,0 first: there and back on either side of it.
    ExpectPieces("0,0 4,0 4,4 4,0 0,0", "seg 4,0 0,0; seg 0,0 4,0; seg 4,4 4,0; seg 4,0 4,4");
}

// ---- input that is no line -------------------------------------------------------------------------

TEST(ExplodeSelfcross, BrokenCoordinatesEnd) {
    for (const double bad : {NOT_A_NUMBER, INF, -INF, 1e300}) {
        for (long k = 0; k < 4; ++k) {
            for (const bool closed : {false, true}) {
                QnGeMLine2d line = Straight("0,0 4,4 4,0 0,4");
                line.SetClosed(closed);
                line.SetVertex(k, QnGePoint(bad, 1.0));
                QnGeObjList parts;
                const bool isTaken = line.ExplodeSelfcross(parts);
                EXPECT_EQ(isTaken, !parts.IsEmpty());
            }
        }
    }
    for (const char* vertices : {"1,1 1,1 1,1", "1,1 1,1 1,1 close", "0,0 0,0 2,0 2,0 1,1 1,-1"}) {
        QnGeObjList parts;
        const bool isTaken = Straight(vertices).ExplodeSelfcross(parts);
        EXPECT_EQ(isTaken, !parts.IsEmpty()) << vertices << ": " << ToText(parts);
    }
}
