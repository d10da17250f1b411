// SPDX-License-Identifier: Apache-2.0
// What hits a line where, crossings with itself, inclusion, closest points, and the operations that answer "no".

#include <gtest/gtest.h>

#include <memory>

#include "PolylineTesting.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGePointList.h"

using namespace polyline_testing;

namespace {

void ExpectSubHit(const QnGeObject& line, const QnGePoint& p, std::uint32_t answer, int sub) {
    int found = 99;
    EXPECT_EQ(Bits(line.SubHitTest(p, found)), answer) << PointToText(p);
    EXPECT_EQ(found, sub) << PointToText(p);
}

void ExpectInclude(const QnGeObject& line, const char* other, bool answer) {
    EXPECT_EQ(line.IsInclude(*ParseGeo(other)), answer) << Text(line) << " and " << other;
}

}  // namespace

// ---- vertices and segments under a point -----------------------------------------------------------

TEST(SubHitTest, CountsVerticesUpwardsAndSegmentsDownwards) {
    const QnGeMLine2d closed = Straight("0,0 4,0 4,4 close");
    ExpectSubHit(closed, QnGePoint(0.0, 0.0), HIT_ON, 1);
    ExpectSubHit(closed, QnGePoint(4.0, 0.0), HIT_ON, 2);
    ExpectSubHit(closed, QnGePoint(4.0, 4.0 + 9e-7), HIT_ON, 3);
    ExpectSubHit(closed, QnGePoint(2.0, 0.0), HIT_ON, -1);
    ExpectSubHit(closed, QnGePoint(4.0, 1.0), HIT_ON, -2);
    ExpectSubHit(closed, QnGePoint(2.0, 2.0), HIT_ON, -3);
    ExpectSubHit(closed, QnGePoint(3.0, 1.0), HIT_IN, 0);
    ExpectSubHit(closed, QnGePoint(9.0, 1.0), HIT_OUT, 0);
    const QnGeMLine2d open = Straight("0,0 4,0 4,4");
    ExpectSubHit(open, QnGePoint(4.0, 4.0), HIT_ON, 3);
    ExpectSubHit(open, QnGePoint(4.0, 1.0), HIT_ON, -2);
    ExpectSubHit(open, QnGePoint(3.0, 1.0), 0U, 0);
}

TEST(SubHitTest, TheFirstVertexAndSegmentCount) {
    const QnGeMLine2d line = Straight("0,0 4,0 0,0 2,0");
    ExpectSubHit(line, QnGePoint(0.0, 0.0), HIT_ON, 1);
    ExpectSubHit(line, QnGePoint(1.0, 0.0), HIT_ON, -1);
    ExpectSubHit(line, QnGePoint(2.0, 0.0), HIT_ON, 4);
}

TEST(SubHitTest, OnPolylines) {
    const QnGePolyline2d line = Bulged("2,0@pi -2,0 0,-4 close");
    ExpectSubHit(line, QnGePoint(2.0, 0.0), HIT_ON, 1);
    ExpectSubHit(line, QnGePoint(0.0, 2.0), HIT_ON, -1);
    ExpectSubHit(line, QnGePoint(-1.0, -2.0), HIT_ON, -2);
    ExpectSubHit(line, QnGePoint(1.0, -2.0), HIT_ON, -3);
    ExpectSubHit(line, QnGePoint(0.0, 0.0), HIT_IN, 0);
    ExpectSubHit(line, QnGePoint(0.0, 3.0), HIT_OUT, 0);
    ExpectSubHit(QnGePolyline2d(), QnGePoint(0.0, 0.0), 0U, 0);
}

// ---- crossings with itself -------------------------------------------------------------------------

TEST(SelfCross, OfMultiLines) {
    EXPECT_FALSE(QnGeMLine2d().IsSelfCross());
    EXPECT_FALSE(Straight("0,0 4,0").IsSelfCross());
    EXPECT_FALSE(Straight("0,0 4,0 4,4").IsSelfCross());
    EXPECT_FALSE(Straight("0,0 4,0 4,4 close").IsSelfCross());
    EXPECT_FALSE(Straight("0,0 4,0 4,4 0,4 close").IsSelfCross());
    EXPECT_TRUE(Straight("0,0 4,4 4,0 0,4").IsSelfCross());
    EXPECT_TRUE(Straight("0,0 4,4 4,0 0,4 close").IsSelfCross());
}

TEST(SelfCross, OverlapsCountAmongNeighboursToo) {
    EXPECT_TRUE(Straight("0,0 4,0 2,0").IsSelfCross());
    EXPECT_TRUE(Straight("0,0 4,0 close").IsSelfCross());
    EXPECT_TRUE(Straight("0,0 4,0 4,4 2,0 close").IsSelfCross());
    EXPECT_FALSE(Straight("0,0 2,0 4,0").IsSelfCross());
}

TEST(SelfCross, TouchesCountBetweenOthersThanNeighbours) {
    EXPECT_TRUE(Straight("0,0 4,0 4,4 2,0").IsSelfCross());
    EXPECT_TRUE(Straight("0,0 4,0 4,4 2,0 0,4").IsSelfCross());
    // The ends of an open line that meet are no neighbours.
    EXPECT_TRUE(Straight("0,0 4,0 4,4 0,0").IsSelfCross());
    EXPECT_TRUE(Straight("0,0 2,2 4,0 4,4 2,2 0,4 close").IsSelfCross());
}

TEST(SelfCross, OfPolylines) {
    EXPECT_FALSE(QnGePolyline2d().IsSelfCross());
    EXPECT_FALSE(Bulged("2,0@pi -2,0").IsSelfCross());
    EXPECT_FALSE(Bulged("2,0@pi -2,0@pi close").IsSelfCross());
    EXPECT_FALSE(Bulged("2,0@pi/2 -2,0@pi/2 close").IsSelfCross());
    EXPECT_FALSE(Bulged("2,0@pi -2,0 close").IsSelfCross());
    EXPECT_FALSE(Bulged("0,0 4,0@pi 4,4 0,4 close").IsSelfCross());
    EXPECT_TRUE(Bulged("0,0 4,4 4,0 0,4 close").IsSelfCross());
    // A bow over an edge that is no neighbour.
    EXPECT_TRUE(Bulged("0,0@-pi 4,0 4,1 0,1 close").IsSelfCross());
    // An open line of two segments that meet in a second point.
    EXPECT_TRUE(Bulged("2,0@pi -2,0 2,1").IsSelfCross());
    // Two arcs over each other.
    EXPECT_TRUE(Bulged("2,0@pi -2,0@-pi close").IsSelfCross());
    EXPECT_TRUE(Bulged("0,0 4,0 2,0").IsSelfCross());
}

// ---- inclusion -------------------------------------------------------------------------------------

TEST(Include, SegmentsOnAMultiLine) {
    const QnGeMLine2d line = Straight("0,0 2,0 4,0 4,4");
    ExpectInclude(line, "seg 0.5,0 1.5,0", true);
    ExpectInclude(line, "seg 1.5,0 0.5,0", true);
    ExpectInclude(line, "seg 0,0 2,0", true);
    ExpectInclude(line, "seg 1,0 3,0", true);
    ExpectInclude(line, "seg 4,0 0,0", true);
    ExpectInclude(line, "seg 4,1 4,4", true);
    ExpectInclude(line, "seg 3,0 5,0", false);
    ExpectInclude(line, "seg -1,0 1,0", false);
    ExpectInclude(line, "seg 0,1 1,1", false);
    ExpectInclude(line, "seg 2,0 4,4", false);
    ExpectInclude(line, "seg 4,4 0,0", false);
    ExpectInclude(Straight("0,0 2,0 4,0 4,4 close"), "seg 4,4 0,0", true);
}

TEST(Include, LinesRaysCirclesAndArcsNever) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4 close");
    const QnGePolyline2d bulged = Bulged("2,0@pi -2,0@pi close");
    for (const char* other : {"line 0,0 1,0", "ray 0,0 1,0", "circle 0,0 r2", "arc 0,0 r2 from 0 sweep 1"}) {
        ExpectInclude(line, other, false);
        ExpectInclude(bulged, other, false);
    }
}

TEST(Include, PointsAndLinesOfPieces) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4 close");
    ExpectInclude(line, "point 2,0", true);
    ExpectInclude(line, "point 2,2", true);
    ExpectInclude(line, "point 3,1", false);
    ExpectInclude(line, "mline 1,0 4,0 4,2", true);
    ExpectInclude(line, "mline 0,0 4,0 4,4 close", true);
    ExpectInclude(line, "mline 1,0 4,0 5,2", false);
    ExpectInclude(line, "pline 1,0 4,0 4,2", true);
    ExpectInclude(line, "mline 9,9", true);  // it has no piece that could be off the line
    ExpectInclude(line, "region 0,0 4,0 4,4", false);
}

TEST(Include, KeptOddAPolylineIncludesItsPointsButNotItsArcs) {
    const QnGePolyline2d line = Bulged("2,0@pi -2,0 close");
    ExpectInclude(line, "point 0,2", true);
    ExpectInclude(line, "point 0,0", true);
    ExpectInclude(line, "point 0,1", false);
    ExpectInclude(line, "seg -1,0 1,0", true);
    ExpectInclude(line, "seg -3,0 1,0", false);
    ExpectInclude(line, "arc 0,0 r2 from 0 sweep pi", false);
    ExpectInclude(line, "pline 2,0@pi -2,0", false);
    ExpectInclude(line, "mline -1,0 1,0", true);
}

// ---- closest points --------------------------------------------------------------------------------

TEST(Closest, InPlanGathersAllNearestPoints) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4 0,4 close");
    QnGePointList found;
    EXPECT_TRUE(line.GetClosestPoint2d(QnGePoint(2.0, 2.0), found));
    EXPECT_EQ(found.GetLength(), 4);
    QnGePoint p;
    EXPECT_TRUE(line.GetClosestPoint2d(QnGePoint(1.0, -3.0), p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 0.0)));
    EXPECT_TRUE(line.GetClosestPoint2d(QnGePoint(5.0, 5.0), p));
    EXPECT_TRUE(IsNear(p, QnGePoint(4.0, 4.0)));
    EXPECT_FALSE(QnGeMLine2d().GetClosestPoint2d(QnGePoint(1.0, 1.0), p));
    EXPECT_FALSE(Straight("1,1").GetClosestPoint2d(QnGePoint(1.0, 1.0), p));
    const QnGePolyline2d bulged = Bulged("2,0@pi -2,0");
    EXPECT_TRUE(bulged.GetClosestPoint2d(QnGePoint(3.0, 4.0), p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.2, 1.6)));
    EXPECT_NEAR(bulged.GetDistance(QnGePoint(3.0, 4.0)), 3.0, 1e-9);
}

TEST(Closest, InSpaceThereIsNoAnswer) {
    QnGePointList found;
    EXPECT_FALSE(Straight("0,0 4,0").GetClosestPoint(QnGePoint(1.0, 1.0, 1.0), found));
    EXPECT_FALSE(Bulged("0,0@1 4,0").GetClosestPoint(QnGePoint(1.0, 1.0, 1.0), found));
    EXPECT_EQ(found.GetLength(), 0);
    QnGePoint p(UNTOUCHED, UNTOUCHED);
    EXPECT_FALSE(Straight("0,0 4,0").GetClosestPoint(QnGePoint(1.0, 1.0, 1.0), p));
    EXPECT_FALSE(Bulged("0,0 4,0").GetClosestPoint(QnGePoint(1.0, 1.0, 1.0), p));
    EXPECT_EQ(p.x, UNTOUCHED);
}

// ---- what answers "no" -----------------------------------------------------------------------------

TEST(Refused, OffsetLeavesTheLine) {
    QnGeMLine2d back = Straight("0,0 4,0 1,0");
    EXPECT_FALSE(back.Offset(1.0));
    EXPECT_TRUE(HasExactly(back, "0,0 4,0 1,0"));
    EXPECT_EQ(back.GetOffsetCurve(1.0), nullptr);
    QnGePolyline2d bulged = Bulged("2,0@pi -2,0 -2,-4");
    EXPECT_FALSE(bulged.Offset(-2.0));
    EXPECT_TRUE(IsExactly(bulged, "2,0@pi -2,0 -2,-4"));
    EXPECT_EQ(bulged.GetOffsetCurve(-2.5), nullptr);
}

TEST(Refused, OffsetOfASegmentLeavesTheLine) {
    QnGeMLine2d line = Straight("0,0 2,0 4,0");
    EXPECT_FALSE(line.OffsetSeg(0, 1.0));
    EXPECT_FALSE(line.OffsetSeg(-1, 1.0));
    EXPECT_FALSE(line.OffsetSeg(2, 1.0));
    EXPECT_TRUE(HasExactly(line, "0,0 2,0 4,0"));
    QnGePolyline2d bulged = Bulged("2,0@pi -2,0 -2,-4");
    EXPECT_FALSE(bulged.OffsetSeg(0, -2.0));
    EXPECT_TRUE(IsExactly(bulged, "2,0@pi -2,0 -2,-4"));
}

TEST(Refused, ExplodingALineWithoutCrossingsGivesNothing) {
    QnGeObjList parts;
    EXPECT_FALSE(Straight("0,0 4,0 4,4 0,4 close").ExplodeSelfcross(parts));
    EXPECT_FALSE(Bulged("0,0@1 4,0 4,4 0,4 close").ExplodeSelfcross(parts));
    EXPECT_FALSE(Straight("0,0").ExplodeSelfcross(parts));
    EXPECT_EQ(parts.GetLength(), 0);
}

TEST(Refused, LinesDoNotMerge) {
    QnGeMLine2d line = Straight("0,0 1,0");
    EXPECT_FALSE(line.Conbine(Straight("1,0 2,0"), false));
    EXPECT_TRUE(HasExactly(line, "0,0 1,0"));
    QnGePolyline2d bulged = Bulged("0,0@1 1,0");
    EXPECT_FALSE(bulged.Conbine(bulged, false));
}

TEST(Refused, ThereIsNoTwinInSpace) {
    EXPECT_EQ(Straight("0,0 1,0").ConvertTo3d(), nullptr);
    EXPECT_EQ(Bulged("0,0 1,0").ConvertTo3d(), nullptr);
}

// ---- taken over from all curves --------------------------------------------------------------------

TEST(Inherited, IntersectionsAreThoseOfThePieces) {
    ExpectIntersect("mline 0,0 4,0 4,4", "seg 2,-1 2,1", "point 2,0");
    ExpectIntersect("pline 2,0@pi -2,0 close", "line 0,-9 0,1", "point 0,2; point 0,0");
    ExpectNoIntersect("mline 0,0 4,0 4,4", "seg 5,5 6,6");
}

TEST(Inherited, AClosedLineIsCarriedOnByItselfAndAnOpenOneByRays) {
    const QnGeMLine2d closed = Straight("0,0 4,0 4,4 close");
    const std::unique_ptr<QnGeCurve2d> same(closed.GetExtendCurve());
    ExpectGeo(same.get(), "mline 0,0 4,0 4,4 close");
    const std::unique_ptr<QnGeCurve2d> open(Straight("0,0 4,0 4,4").GetExtendCurve());
    ASSERT_NE(open, nullptr);
    EXPECT_TRUE(open->IsInfinite());
    const std::unique_ptr<QnGeCurve2d> bulged(Bulged("2,0@pi -2,0 close").GetExtendCurve());
    ExpectGeo(bulged.get(), "pline 2,0@pi -2,0 close");
}

TEST(Inherited, ALineConnectsAtItsEnd) {
    EXPECT_TRUE(Straight("0,0 4,0").IsConnectWith(Straight("4,0 5,5")));
    EXPECT_FALSE(Straight("0,0 4,0").IsConnectWith(Straight("5,5 4,0")));
    EXPECT_TRUE(Bulged("0,0@1 4,0").IsConnectWith(Straight("4,0 5,5")));
}

TEST(Inherited, CutSortsThePiecesOfTheOther) {
    QnGeObjList in;
    QnGeObjList out;
    QnGeObjList on;
    Straight("0,0 4,0 4,4 0,4 close").Cut(*ParseGeo("seg -1,2 5,2"), in, out, on);
    ExpectGeoList(in, "seg 0,2 4,2");
    ExpectGeoList(out, "seg -1,2 0,2; seg 4,2 5,2");
    EXPECT_EQ(on.GetLength(), 0);
}

TEST(Inherited, SidesOfClosedLinesFollowTheTravel) {
    const QnGeMLine2d left = Straight("0,0 4,0 4,4 0,4 close");
    const QnGeMLine2d right = Straight("0,0 0,4 4,4 4,0 close");
    EXPECT_EQ(Bits(left.HitTestSide(QnGePoint(1.0, 1.0))), HIT_IN);
    EXPECT_EQ(Bits(right.HitTestSide(QnGePoint(1.0, 1.0))), HIT_OUT);
    EXPECT_EQ(Bits(left.HitTestSide(QnGePoint(9.0, 1.0))), HIT_OUT);
    EXPECT_EQ(Bits(right.HitTestSide(QnGePoint(9.0, 1.0))), HIT_IN);
    EXPECT_EQ(Bits(right.HitTestSide(QnGePoint(0.0, 1.0))), HIT_ON);
}
