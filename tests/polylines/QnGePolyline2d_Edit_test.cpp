// SPDX-License-Identifier: Apache-2.0
// Vertices of polylines: how the bulges go with them.

#include <gtest/gtest.h>

#include <memory>

#include "PolylineTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"

using namespace polyline_testing;

namespace {

void ExpectDupsRemoved(const char* vertices, bool answer, const char* result) {
    QnGePolyline2d line = Bulged(vertices);
    SCOPED_TRACE(vertices);
    EXPECT_EQ(line.RemoveDupPoint(), answer);
    EXPECT_TRUE(IsExactly(line, result));
}

void ExpectReversed(const char* vertices, const char* result) {
    QnGePolyline2d line = Bulged(vertices);
    SCOPED_TRACE(vertices);
    line.Reverse();
    EXPECT_TRUE(IsExactly(line, result));
    line.Reverse();
    EXPECT_TRUE(IsExactly(line, vertices));
}

}  // namespace

// ---- segments --------------------------------------------------------------------------------------

TEST(QnGePolyline2dEdit, ASegmentIsAnArcOrALineSegment) {
    const QnGePolyline2d line = Bulged("0,0 4,0@pi/2 4,4@-pi close");
    const std::unique_ptr<QnGeCurve2d> chord(line.GetSegment(0));
    ExpectGeo(chord.get(), "seg 0,0 4,0");
    const std::unique_ptr<QnGeCurve2d> arc(line.GetSegment(1));
    ASSERT_EQ(arc->GetCI(), &QnGeArc2d::s_classInfo);
    const QnGeArc2d& left = static_cast<const QnGeArc2d&>(*arc);
    EXPECT_TRUE(IsNear(left.GetStartPoint(), QnGePoint(4.0, 0.0)));
    EXPECT_TRUE(IsNear(left.GetEndPoint(), QnGePoint(4.0, 4.0)));
    EXPECT_TRUE(IsNear(left.GetCenter(), QnGePoint(2.0, 2.0)));
    EXPECT_EQ(left.GetCentralAngle(), PI / 2.0);
    EXPECT_FALSE(left.IsClockwise());
    const std::unique_ptr<QnGeCurve2d> closing(line.GetCurveSeg(2));
    ASSERT_EQ(closing->GetCI(), &QnGeArc2d::s_classInfo);
    const QnGeArc2d& right = static_cast<const QnGeArc2d&>(*closing);
    EXPECT_TRUE(IsNear(right.GetStartPoint(), QnGePoint(4.0, 4.0)));
    EXPECT_TRUE(IsNear(right.GetEndPoint(), QnGePoint(0.0, 0.0)));
    EXPECT_TRUE(right.IsClockwise());
    EXPECT_EQ(right.GetCentralAngle(), PI);
}

TEST(QnGePolyline2dEdit, RadiusOfASegmentIsChordOverTwiceTheSineOfHalfTheBulge) {
    for (const double bulge : {0.1, 1.0, PI, 4.0, 6.0, -0.1, -1.0, -PI, -4.0, -6.0}) {
        QnGePolyline2d line = Bulged("1,1 4,5");
        line.SetBulge(0, bulge);
        QnGeArc2d arc;
        line.GetSegment(0, arc);
        EXPECT_NEAR(arc.GetRadius(), 5.0 / (2.0 * std::fabs(std::sin(bulge / 2.0))), 1e-9) << bulge;
        EXPECT_EQ(arc.IsClockwise(), bulge < 0.0) << bulge;
        EXPECT_EQ(arc.GetCentralAngle(), std::fabs(bulge));
        EXPECT_TRUE(IsNear(arc.GetStartPoint(), QnGePoint(1.0, 1.0)));
        EXPECT_TRUE(IsNear(arc.GetEndPoint(), QnGePoint(4.0, 5.0), 1e-8));
    }
}

TEST(QnGePolyline2dEdit, TheArcOfATinyBulgeHasAHugeRadius) {
    QnGePolyline2d line = Bulged("0,0 2,0");
    line.SetBulge(0, g_angleZero);
    const std::unique_ptr<QnGeCurve2d> seen(line.GetSegment(0));
    ExpectGeo(seen.get(), "seg 0,0 2,0");
    QnGeArc2d arc;
    line.GetSegment(0, arc);
    EXPECT_NEAR(arc.GetRadius(), 2.0 / g_angleZero, 1.0);
    EXPECT_EQ(arc.GetCentralAngle(), g_angleZero);
}

TEST(QnGePolyline2dEdit, TheChordIgnoresTheBulge) {
    const QnGePolyline2d line = Bulged("0,0@1 4,0@2 4,3@3 close");
    QnGeBaseLine2d chord;
    line.GetSegment(2, chord);
    EXPECT_TRUE(IsNear(chord.GetBasePoint(), QnGePoint(4.0, 3.0)));
    EXPECT_EQ(chord.dx, -4.0);
    EXPECT_EQ(chord.dy, -3.0);
}

// ---- inserting and deleting ------------------------------------------------------------------------

TEST(QnGePolyline2dEdit, BulgesGoInWithTheirVertices) {
    QnGePolyline2d line;
    line.AppendVertex(QnGePoint(1.0, 0.0), 1.0);
    line.AppendVertex(QnGePoint(3.0, 0.0));
    line.InsertVertex(1, QnGePoint(2.0, 0.0), 2.0);
    line.InsertVertex(0, QnGePoint(0.0, 0.0), 0.5);
    line.InsertVertex(4, QnGePoint(4.0, 0.0), 4.0);
    EXPECT_TRUE(IsExactly(line, "0,0@0.5 1,0@1 2,0@2 3,0 4,0@4"));
    QnGeMLine2d& base = line;
    base.AppendVertex(QnGePoint(5.0, 0.0), 5.0);
    base.InsertVertex(0, QnGePoint(-1.0, 0.0), -1.0);
    EXPECT_TRUE(IsExactly(line, "-1,0@-1 0,0@0.5 1,0@1 2,0@2 3,0 4,0@4 5,0@5"));
}

TEST(QnGePolyline2dEdit, DeletingAVertexTakesTheBulgeOfTheSegmentThatLeavesIt) {
    QnGePolyline2d line = Bulged("0,0@0.5 1,0@1 2,0@2 3,0@3 close");
    line.DelVertex(1);
    EXPECT_TRUE(IsExactly(line, "0,0@0.5 2,0@2 3,0@3 close"));
    line.DelVertex(2);
    EXPECT_TRUE(IsExactly(line, "0,0@0.5 2,0@2 close"));
    EXPECT_EQ(line.DelNode(QnGePoint(0.0, 0.0)), 0);
    EXPECT_TRUE(IsExactly(line, "2,0@2 close"));
    line.DelVertex(0);
    EXPECT_EQ(line.GetVertexNum(), 0);
}

TEST(QnGePolyline2dEdit, NewBulgesAreZeroAndWithoutKeepAllAre) {
    QnGePolyline2d line = Bulged("1,1@1 2,2@2 3,3@3");
    line.SetVertexNum(2, true);
    EXPECT_TRUE(IsExactly(line, "1,1@1 2,2@2"));
    line.SetVertexNum(4, true);
    ASSERT_EQ(line.GetVertexNum(), 4);
    EXPECT_EQ(line.GetBulge(0), 1.0);
    EXPECT_EQ(line.GetBulge(1), 2.0);
    EXPECT_EQ(line.GetBulge(2), 0.0);
    EXPECT_EQ(line.GetBulge(3), 0.0);
    line.SetVertexNum(4, false);
    for (long i = 0; i < 4; ++i) {
        EXPECT_EQ(line.GetBulge(i), 0.0);
    }
    line.SetBulge(0, 5.0);
    QnGeMLine2d& base = line;
    base.SetVertexNum(2, false);
    EXPECT_TRUE(IsExactly(line, "1,1 2,2"));
}

TEST(QnGePolyline2dEdit, ArraysStayOfOneLengthThroughAnyEditing) {
    for (int i = 0; i < 300; ++i) {
        const unsigned seed = CaseSeed(30, i);
        SCOPED_TRACE("seed " + std::to_string(seed));
        RandomSource random(seed);
        QnGePolyline2d line(0, random.Coin());
        std::vector<double> bulges;
        for (int step = 0; step < 60; ++step) {
            const long n = line.GetVertexNum();
            const double value = random.Double(-3.0, 3.0);
            const QnGePoint p(value, step);
            const long at = random.Long(0, n);
            const std::ptrdiff_t place = at;
            if (n > 0 && random.OneIn(3)) {
                line.DelVertex(at < n ? at : n - 1);
                bulges.erase(bulges.begin() + (at < n ? place : place - 1));
            } else if (random.OneIn(4)) {
                line.SetVertexNum(at, true);
                bulges.resize(static_cast<std::size_t>(at), 0.0);
            } else if (random.Coin()) {
                line.InsertVertex(at, p, value);
                bulges.insert(bulges.begin() + place, value);
            } else {
                line.AppendVertex(p, value);
                bulges.push_back(value);
            }
            ASSERT_EQ(line.GetVertexNum(), static_cast<long>(bulges.size()));
            for (std::size_t k = 0; k < bulges.size(); ++k) {
                ASSERT_EQ(line.GetBulge(static_cast<long>(k)), bulges[k]);
            }
        }
        ASSERT_EQ(Record(line).size(), 8U + 32U * bulges.size());
    }
}

TEST(QnGePolyline2dEdit, TheAllocationUnitIsSetAndNothingElse) {
    QnGePolyline2d line = Bulged("1,1@1 2,2@2 close");
    line.SetAllocUnit(25);
    EXPECT_TRUE(IsExactly(line, "1,1@1 2,2@2 close"));
    EXPECT_EQ(line.GetVertexArray().GetAllocUnit(), 25);
    QnGeMLine2d& base = line;
    base.SetAllocUnit(30);
    EXPECT_TRUE(IsExactly(line, "1,1@1 2,2@2 close"));
    EXPECT_EQ(line.GetVertexArray().GetAllocUnit(), 30);
}

// ---- nodes -----------------------------------------------------------------------------------------

TEST(QnGePolyline2dEdit, InsertNodeOnAnArcDividesItsBulge) {
    QnGePolyline2d line = Bulged("2,0@pi -2,0");
    EXPECT_EQ(line.InsertNode(QnGePoint(0.0, 2.0), true), 1);
    ExpectGeo(line, "pline 2,0@pi/2 0,2@pi/2 -2,0");
    const double angle = PI / 3.0;
    EXPECT_EQ(line.InsertNode(QnGePoint(2.0 * std::cos(angle), 2.0 * std::sin(angle), 5.0), true), 1);
    EXPECT_NEAR(line.GetBulge(0), PI / 3.0, 1e-9);
    EXPECT_NEAR(line.GetBulge(1), PI / 6.0, 1e-9);
    EXPECT_EQ(line.GetVertex(1).z, 5.0);
    EXPECT_NEAR(line.Length(), 2.0 * PI, 1e-9);
}

TEST(QnGePolyline2dEdit, InsertNodeOnAClockwiseArcAndOnTheClosingOne) {
    QnGePolyline2d line = Bulged("2,0@-pi -2,0@-pi close");
    EXPECT_EQ(line.InsertNode(QnGePoint(0.0, 2.0), true), 2);
    ExpectGeo(line, "pline 2,0@-pi -2,0@-pi/2 0,2@-pi/2 close");
    EXPECT_EQ(line.InsertNode(QnGePoint(0.0, -2.0), true), 1);
    ExpectGeo(line, "pline 2,0@-pi/2 0,-2@-pi/2 -2,0@-pi/2 0,2@-pi/2 close");
    EXPECT_NEAR(line.Area(), 4.0 * PI, 1e-9);
}

TEST(QnGePolyline2dEdit, InsertNodeOnAChordHasNoBulge) {
    QnGePolyline2d line = Bulged("0,0 4,0@pi 4,4");
    EXPECT_EQ(line.InsertNode(QnGePoint(1.0, 0.0), true), 1);
    EXPECT_TRUE(IsExactly(line, "0,0 1,0 4,0@pi 4,4"));
}

TEST(QnGePolyline2dEdit, InsertNodeRefusesVerticesAndPointsBeside) {
    const char* const vertices = "2,0@pi -2,0 -4,0";
    for (const QnGePoint& p : {QnGePoint(2.0, 0.0), QnGePoint(-2.0, 0.0), QnGePoint(-4.0, 0.0), QnGePoint(0.0, 0.0),
                               QnGePoint(0.0, -2.0), QnGePoint(0.0, 1.9)}) {
        QnGePolyline2d line = Bulged(vertices);
        EXPECT_EQ(line.InsertNode(p, true), -1) << PointToText(p);
        EXPECT_TRUE(IsExactly(line, vertices));
    }
}

TEST(QnGePolyline2dEdit, InsertNodeBesideAnArcPullsTheNodeAway) {
    QnGePolyline2d line = Bulged("2,0@pi -2,0");
    EXPECT_EQ(line.InsertNode(QnGePoint(0.0, 3.0, 4.0), false), 1);
    ExpectGeo(line, "pline 2,0@pi/2 0,3,4@pi/2 -2,0");
    EXPECT_EQ(line.GetVertex(1).y, 3.0);
}

TEST(QnGePolyline2dEdit, KeptOddInsertNodeBesideAVertexInsertsAndAnswersMinusOne) {
    QnGePolyline2d line = Bulged("2,0@pi -2,0");
    EXPECT_EQ(line.InsertNode(QnGePoint(-2.0, -1.0), false), -1);
    EXPECT_TRUE(IsExactly(line, "2,0@pi -2,0 -2,-1"));
    EXPECT_EQ(line.InsertNode(QnGePoint(2.0, -1.0), false), -1);
    EXPECT_TRUE(IsExactly(line, "2,-1 2,0@pi -2,0 -2,-1"));
    EXPECT_EQ(line.InsertNode(QnGePoint(2.0, 0.0), false), -1);
    EXPECT_EQ(line.GetVertexNum(), 4);
}

// ---- repeats ---------------------------------------------------------------------------------------

TEST(QnGePolyline2dEdit, RemoveDupPointDropsTheBulgeOfASegmentWhoseEndGoes) {
    ExpectDupsRemoved("0,0@1 0,0@2 1,0@3 2,0", true, "0,0@2 1,0@3 2,0");
    ExpectDupsRemoved("0,0@1 1,0@2 1,0@3 1,0@4 2,0", true, "0,0@1 1,0@4 2,0");
    ExpectDupsRemoved("0,0@1 1,0@2 2,0@3 2,0", true, "0,0@1 1,0@2 2,0");
    ExpectDupsRemoved("0,0@1 1,0@2 2,0@3 close", true, "0,0@1 1,0@2 2,0@3 close");
}

TEST(QnGePolyline2dEdit, RemoveDupPointAtTheSeamDropsTheLastBulge) {
    ExpectDupsRemoved("0,0@1 1,0@2 1,1@3 0,0@4 close", true, "0,0@1 1,0@2 1,1@3 close");
    ExpectDupsRemoved("0,0@1 0,0@2 1,0@3 1,1@4 0,0@5 0,0@6 close", true, "0,0@2 1,0@3 1,1@4 close");
}

TEST(QnGePolyline2dEdit, RemoveDupPointRefusesToLeaveLessThanTwo) {
    EXPECT_FALSE(QnGePolyline2d().RemoveDupPoint());
    ExpectDupsRemoved("0,0@1", false, "0,0@1");
    ExpectDupsRemoved("0,0@1 0,0@2 0,0@3 close", false, "0,0@1 0,0@2 0,0@3 close");
}

// ---- direction -------------------------------------------------------------------------------------

TEST(QnGePolyline2dEdit, ReverseTakesTheBulgesAlongAndNegatesThem) {
    ExpectReversed("0,0@1 1,0@2 2,0@3 3,0", "3,0@-3 2,0@-2 1,0@-1 0,0");
    ExpectReversed("0,0@1 1,0", "1,0@-1 0,0");
    ExpectReversed("0,0@1 1,0@2 2,0@3 close", "0,0@-3 2,0@-2 1,0@-1 close");
    ExpectReversed("0,0@1 1,0@2 close", "0,0@-2 1,0@-1 close");
    ExpectReversed("0,0", "0,0");
    // The place behind the last segment of an open line stays last.
    ExpectReversed("0,0@1 1,0@2 2,0@3", "2,0@-2 1,0@-1 0,0@-3");
    for (const bool closed : {false, true}) {
        QnGePolyline2d empty(0, closed);
        empty.Reverse();
        EXPECT_EQ(empty.GetVertexNum(), 0);
    }
}
