// SPDX-License-Identifier: Apache-2.0
// Vertices of multi-lines: access, inserting and deleting them, dropping repeats, turning the travel.

#include <gtest/gtest.h>

#include "PolylineTesting.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGeBaseLine2d.h"

using namespace polyline_testing;

namespace {

/// What InsertNode answers and leaves.
void ExpectInsert(const char* vertices, const QnGePoint& p, bool onCurve, long answer, const char* result) {
    QnGeMLine2d line = Straight(vertices);
    SCOPED_TRACE(std::string(vertices) + " with " + PointToText(p));
    EXPECT_EQ(line.InsertNode(p, onCurve), answer);
    EXPECT_TRUE(HasExactly(line, result));
}

void ExpectDupsRemoved(const char* vertices, bool answer, const char* result) {
    QnGeMLine2d line = Straight(vertices);
    SCOPED_TRACE(vertices);
    EXPECT_EQ(line.RemoveDupPoint(), answer);
    EXPECT_TRUE(HasExactly(line, result));
}

}  // namespace

// ---- access ----------------------------------------------------------------------------------------

TEST(QnGeMLine2dEdit, SegmentsAreCountedFromTwoVerticesOn) {
    EXPECT_EQ(QnGeMLine2d(0).GetSegNum(), 0);
    EXPECT_EQ(QnGeMLine2d(1).GetSegNum(), 0);
    EXPECT_EQ(QnGeMLine2d(1, true).GetSegNum(), 0);
    EXPECT_EQ(QnGeMLine2d(2).GetSegNum(), 1);
    EXPECT_EQ(QnGeMLine2d(2, true).GetSegNum(), 2);
    EXPECT_EQ(QnGeMLine2d(5).GetSegNum(), 4);
    EXPECT_EQ(QnGeMLine2d(5, true).GetSegNum(), 5);
}

TEST(QnGeMLine2dEdit, VerticesAreReadAndWrittenByIndex) {
    QnGeMLine2d line = Straight("0,0 1,0 1,1");
    line.SetVertex(1, QnGePoint(5.0, 6.0, 7.0));
    line[2].z = 3.0;
    const QnGeMLine2d& read = line;
    EXPECT_EQ(read[1].y, 6.0);
    EXPECT_EQ(read.GetVertex(1).z, 7.0);
    EXPECT_EQ(read.GetVertexArray().GetAt(2).z, 3.0);
    EXPECT_TRUE(HasExactly(line, "0,0 5,6,7 1,1,3"));
}

TEST(QnGeMLine2dEdit, ASegmentIsItsFullVectorAndWrapsBehindTheLastVertex) {
    const QnGeMLine2d line = Straight("0,0 4,0,2 4,3,5");
    QnGeBaseLine2d segment;
    line.GetSegment(0, segment);
    EXPECT_TRUE(IsNear(segment.GetBasePoint(), QnGePoint(0.0, 0.0)));
    EXPECT_EQ(segment.dx, 4.0);
    EXPECT_EQ(segment.dy, 0.0);
    EXPECT_EQ(segment.dz, 2.0);
    line.GetSegment(2, segment);
    EXPECT_TRUE(IsNear(segment.GetBasePoint(), QnGePoint(4.0, 3.0, 5.0)));
    EXPECT_EQ(segment.dx, -4.0);
    EXPECT_EQ(segment.dy, -3.0);
    EXPECT_EQ(segment.dz, -5.0);
}

TEST(QnGeMLine2dEdit, ACurveSegmentIsANewLineSegment) {
    const QnGeMLine2d line = Straight("0,0,1 4,0,2 4,3,5 close");
    const std::unique_ptr<QnGeCurve2d> first(line.GetCurveSeg(0));
    ExpectGeo(first.get(), "seg 0,0,1 4,0,2");
    const std::unique_ptr<QnGeCurve2d> last(line.GetCurveSeg(2));
    ExpectGeo(last.get(), "seg 4,3,5 0,0,1");
}

// ---- inserting and deleting ------------------------------------------------------------------------

TEST(QnGeMLine2dEdit, BulgesOfNewVerticesAreIgnored) {
    QnGeMLine2d line;
    line.AppendVertex(QnGePoint(1.0, 1.0, 4.0));
    line.AppendVertex(QnGePoint(3.0, 3.0), 1.5);
    line.InsertVertex(1, QnGePoint(2.0, 2.0), 1.5);
    line.InsertVertex(0, QnGePoint(0.0, 0.0));
    line.InsertVertex(4, QnGePoint(4.0, 4.0));
    EXPECT_TRUE(HasExactly(line, "0,0 1,1,4 2,2 3,3 4,4"));
    line.DelVertex(0);
    line.DelVertex(3);
    line.DelVertex(1);
    EXPECT_TRUE(HasExactly(line, "1,1,4 3,3"));
}

TEST(QnGeMLine2dEdit, TheVertexNumberIsSetWithPointsKept) {
    for (const bool keep : {false, true}) {
        QnGeMLine2d line = Straight("1,1 2,2 3,3");
        line.SetVertexNum(2, keep);
        EXPECT_TRUE(HasExactly(line, "1,1 2,2"));
        line.SetVertexNum(4, keep);
        EXPECT_EQ(line.GetVertexNum(), 4);
        EXPECT_EQ(line.GetVertex(1).x, 2.0);
        line.SetVertexNum(0, keep);
        EXPECT_EQ(line.GetVertexNum(), 0);
    }
}

TEST(QnGeMLine2dEdit, KeptOddTheAllocationUnitOverwritesEveryVertex) {
    QnGeMLine2d line = Straight("1,1,1 2,2,2 3,3,3 close");
    const long unit = line.GetVertexArray().GetAllocUnit();
    line.SetAllocUnit(25);
    EXPECT_TRUE(HasExactly(line, "25,0 25,0 25,0 close"));
    EXPECT_EQ(line.GetVertexArray().GetAllocUnit(), unit);
}

TEST(QnGeMLine2dEdit, DelNodeDeletesTheFirstVertexNearThePointInPlan) {
    QnGeMLine2d line = Straight("0,0 1,0,50 1,0 2,0");
    EXPECT_EQ(line.DelNode(QnGePoint(1.0, 9e-7)), 1);
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 2,0"));
    EXPECT_EQ(line.DelNode(QnGePoint(1.0, 1.1e-6)), -1);
    EXPECT_EQ(line.DelNode(QnGePoint(0.5, 0.0)), -1);
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 2,0"));
    EXPECT_EQ(line.DelNode(QnGePoint(2.0, 0.0, -3.0)), 2);
    EXPECT_EQ(QnGeMLine2d().DelNode(QnGePoint()), -1);
}

// ---- nodes -----------------------------------------------------------------------------------------

TEST(QnGeMLine2dEdit, InsertNodeOnTheCurveDividesTheSegment) {
    ExpectInsert("0,0 4,0 4,4", QnGePoint(2.0, 0.0, 9.0), true, 1, "0,0 2,0,9 4,0 4,4");
    ExpectInsert("0,0 4,0 4,4", QnGePoint(4.0, 2.0), true, 2, "0,0 4,0 4,2 4,4");
    ExpectInsert("0,0 4,0 4,4 close", QnGePoint(2.0, 2.0), true, 3, "0,0 4,0 4,4 2,2 close");
    ExpectInsert("0,0 4,0 4,4", QnGePoint(2.0, 9e-7), true, 1, "0,0 2,9e-7 4,0 4,4");
}

TEST(QnGeMLine2dEdit, InsertNodeOnTheCurveRefusesVerticesAndPointsBeside) {
    for (const QnGePoint& p :
         {QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0), QnGePoint(4.0, 4.0), QnGePoint(4.0 - 9e-7, 0.0),
          QnGePoint(0.0, 9e-7), QnGePoint(2.0, 1.0), QnGePoint(5.0, 0.0), QnGePoint(2.0, 2.0)}) {
        ExpectInsert("0,0 4,0 4,4", p, true, -1, "0,0 4,0 4,4");
    }
    ExpectInsert("1,1", QnGePoint(1.0, 1.0), true, -1, "1,1");
    QnGeMLine2d empty;
    EXPECT_EQ(empty.InsertNode(QnGePoint(), true), -1);
    EXPECT_EQ(empty.GetVertexNum(), 0);
}

TEST(QnGeMLine2dEdit, InsertNodeOnTheCurveAsksTheFirstSegmentOnly) {
    // Both segments pass (2, 0). It is no end of the first one, so it divides that.
    ExpectInsert("0,0 4,0 2,0", QnGePoint(2.0, 0.0), true, 1, "0,0 2,0 4,0 2,0");
    // Here it is the end of the first.
    ExpectInsert("0,0 2,0 4,0 0,0", QnGePoint(2.0, 0.0), true, -1, "0,0 2,0 4,0 0,0");
}

TEST(QnGeMLine2dEdit, InsertNodeOffTheCurvePullsTheLineToThePoint) {
    ExpectInsert("0,0 4,0 4,4", QnGePoint(2.0, 1.0, 7.0), false, 1, "0,0 2,1,7 4,0 4,4");
    ExpectInsert("0,0 4,0 4,4 close", QnGePoint(1.0, 3.0), false, 3, "0,0 4,0 4,4 1,3 close");
    ExpectInsert("0,0 4,0 4,4", QnGePoint(2.0, 0.0), false, 1, "0,0 2,0 4,0 4,4");
}

TEST(QnGeMLine2dEdit, KeptOddInsertNodeBesideAVertexInsertsAndAnswersMinusOne) {
    ExpectInsert("0,0 4,0 4,4", QnGePoint(5.0, -1.0), false, -1, "0,0 5,-1 4,0 4,4");
    ExpectInsert("0,0 4,0 4,4", QnGePoint(-1.0, 0.0), false, -1, "-1,0 0,0 4,0 4,4");
    ExpectInsert("0,0 4,0 4,4", QnGePoint(4.0, 6.0), false, -1, "0,0 4,0 4,4 4,6");
    ExpectInsert("0,0 4,0 4,4 close", QnGePoint(5.0, 6.0), false, -1, "0,0 4,0 5,6 4,4 close");
}

TEST(QnGeMLine2dEdit, InsertNodeOfAVertexChangesNothing) {
    for (const QnGePoint& p : {QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0), QnGePoint(4.0, 4.0)}) {
        ExpectInsert("0,0 4,0 4,4", p, false, -1, "0,0 4,0 4,4");
        ExpectInsert("0,0 4,0 4,4 close", p, false, -1, "0,0 4,0 4,4 close");
    }
    QnGeMLine2d empty;
    EXPECT_EQ(empty.InsertNode(QnGePoint(1.0, 1.0), false), -1);
    EXPECT_EQ(empty.GetVertexNum(), 0);
}

// ---- repeats ---------------------------------------------------------------------------------------

TEST(QnGeMLine2dEdit, RemoveDupPointKeepsTheFirstOfEachRun) {
    ExpectDupsRemoved("0,0 0,0 1,0 1,0 1,0 2,0", true, "0,0 1,0 2,0");
    ExpectDupsRemoved("0,0 1,0 2,0", true, "0,0 1,0 2,0");
    ExpectDupsRemoved("0,0 1,0 0,0 1,0", true, "0,0 1,0 0,0 1,0");
}

TEST(QnGeMLine2dEdit, RemoveDupPointMeasuresInSpaceFromTheLastKept) {
    ExpectDupsRemoved("0,0 0,0,1 0,0,2", true, "0,0 0,0,1 0,0,2");
    // Steps below the tolerance add up until they exceed it.
    ExpectDupsRemoved("0,0 7e-7,0 14e-7,0 21e-7,0 5,0", true, "0,0 14e-7,0 5,0");
}

TEST(QnGeMLine2dEdit, RemoveDupPointDropsOneLastVertexOnTheFirstIfClosed) {
    ExpectDupsRemoved("0,0 1,0 1,1 0,0 close", true, "0,0 1,0 1,1 close");
    ExpectDupsRemoved("0,0 1,0 1,1 0,0", true, "0,0 1,0 1,1 0,0");
    ExpectDupsRemoved("0,0 1,0 1,1 0,0 0,0 close", true, "0,0 1,0 1,1 close");
    ExpectDupsRemoved("0,0 1,0 0,0,3 close", true, "0,0 1,0 0,0,3 close");
}

TEST(QnGeMLine2dEdit, RemoveDupPointRefusesToLeaveLessThanTwo) {
    EXPECT_FALSE(QnGeMLine2d().RemoveDupPoint());
    ExpectDupsRemoved("0,0", false, "0,0");
    ExpectDupsRemoved("0,0 0,0", false, "0,0 0,0");
    ExpectDupsRemoved("0,0 0,0 0,0 5e-7,0 close", false, "0,0 0,0 0,0 5e-7,0 close");
}

// ---- direction -------------------------------------------------------------------------------------

TEST(QnGeMLine2dEdit, ReverseTurnsAnOpenLineRound) {
    QnGeMLine2d line = Straight("0,0 1,0,5 1,1 0,1");
    line.Reverse();
    EXPECT_TRUE(HasExactly(line, "0,1 1,1 1,0,5 0,0"));
    line.Reverse();
    EXPECT_TRUE(HasExactly(line, "0,0 1,0,5 1,1 0,1"));
}

TEST(QnGeMLine2dEdit, ReverseKeepsTheStartOfAClosedLine) {
    QnGeMLine2d line = Straight("0,0 1,0 1,1 0,1 close");
    line.Reverse();
    EXPECT_TRUE(HasExactly(line, "0,0 0,1 1,1 1,0 close"));
    line.Reverse();
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 1,1 0,1 close"));
}

TEST(QnGeMLine2dEdit, ReverseOfFewVertices) {
    for (const char* vertices : {"1,1", "1,1 close"}) {
        QnGeMLine2d line = Straight(vertices);
        line.Reverse();
        EXPECT_TRUE(HasExactly(line, vertices));
    }
    QnGeMLine2d two = Straight("0,0 1,0");
    two.Reverse();
    EXPECT_TRUE(HasExactly(two, "1,0 0,0"));
    QnGeMLine2d closedTwo = Straight("0,0 1,0 close");
    closedTwo.Reverse();
    EXPECT_TRUE(HasExactly(closedTwo, "0,0 1,0 close"));
    for (const bool closed : {false, true}) {
        QnGeMLine2d empty(0, closed);
        empty.Reverse();
        EXPECT_EQ(empty.GetVertexNum(), 0);
    }
}
