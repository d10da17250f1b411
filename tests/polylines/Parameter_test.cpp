// SPDX-License-Identifier: Apache-2.0
// Parameters, points, distances and tangents of multi-lines and polylines.

#include <gtest/gtest.h>

#include "PolylineTesting.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"

using namespace polyline_testing;

namespace {

void ExpectSegment(const QnGeMLine2d& line, double pa, long index, double local) {
    double value = pa;
    EXPECT_EQ(line.GetSegIndexFromPa(value), index) << pa;
    EXPECT_NEAR(value, local, 1e-12) << pa;
}

void ExpectPtFromPa(const QnGeMLine2d& line, double pa, bool answer, const QnGePoint& expected) {
    QnGePoint p(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_EQ(line.GetPtFromPa(pa, p), answer) << pa;
    EXPECT_TRUE(IsNear(p, expected)) << pa;
}

void ExpectPaFromPt(const QnGeMLine2d& line, const QnGePoint& p, bool answer, double expected) {
    double pa = UNTOUCHED;
    EXPECT_EQ(line.GetPaFromPt(p, pa), answer) << PointToText(p);
    EXPECT_NEAR(pa, expected, 1e-9) << PointToText(p);
}

void ExpectDistFromPa(const QnGeMLine2d& line, double pa, bool answer, double expected) {
    double dist = UNTOUCHED;
    EXPECT_EQ(line.GetDistFromPa(pa, dist), answer) << pa;
    EXPECT_NEAR(dist, expected, 1e-9) << pa;
}

void ExpectPaFromDist(const QnGeMLine2d& line, double dist, bool answer, double expected, double tol = 1e-9) {
    double pa = UNTOUCHED;
    EXPECT_EQ(line.GetPaFromDist(dist, pa), answer) << dist;
    EXPECT_NEAR(pa, expected, tol) << dist;
}

const QnGePoint NOTHING(UNTOUCHED, UNTOUCHED, UNTOUCHED);

}  // namespace

// ---- segments --------------------------------------------------------------------------------------

TEST(Parameter, EverySegmentTakesTheSameShare) {
    const QnGeMLine2d line = Straight("0,0 100,0 101,0 101,5 101,6");  // 4 segments of very different length
    ExpectSegment(line, 0.0, 0, 0.0);
    ExpectSegment(line, 0.125, 0, 0.5);
    ExpectSegment(line, 0.25, 1, 0.0);
    ExpectSegment(line, 0.6, 2, 0.4);
    ExpectSegment(line, 0.999, 3, 0.996);
    const QnGePolyline2d closed = Bulged("0,0@1 1,0 1,1@2 0,1 close");
    ExpectSegment(closed, 0.625, 2, 0.5);
}

TEST(Parameter, SegmentsAreClampedAndLocalValuesAreNot) {
    const QnGeMLine2d line = Straight("0,0 1,0 2,0 3,0 4,0");
    ExpectSegment(line, 1.0, 3, 1.0);
    ExpectSegment(line, 1.5, 3, 3.0);
    ExpectSegment(line, -0.1, 0, -0.4);
    ExpectSegment(line, -1.0, 0, -4.0);
    ExpectSegment(line, 1e12, 3, 4e12 - 3.0);
}

TEST(Parameter, SegmentsOfParametersThatAreNoNumbers) {
    const QnGeMLine2d line = Straight("0,0 1,0 2,0");
    double pa = NOT_A_NUMBER;
    EXPECT_EQ(line.GetSegIndexFromPa(pa), 0);
    pa = INF;
    EXPECT_EQ(line.GetSegIndexFromPa(pa), 1);
    pa = -INF;
    EXPECT_EQ(line.GetSegIndexFromPa(pa), 0);
    pa = 1e300;
    EXPECT_EQ(line.GetSegIndexFromPa(pa), 1);
}

TEST(Parameter, WithoutASegmentThereIsNoIndexAndTheParameterStays) {
    for (const long n : {0L, 1L}) {
        const QnGeMLine2d line(n);
        double pa = 0.625;
        EXPECT_EQ(line.GetSegIndexFromPa(pa), -1);
        EXPECT_EQ(pa, 0.625);
    }
}

// ---- ends ------------------------------------------------------------------------------------------

TEST(Parameter, EndsOfOpenAndClosedLines) {
    QnGePoint p;
    EXPECT_TRUE(Straight("1,2,3 4,5,6").GetStartPoint(p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(Straight("1,2,3 4,5,6").GetEndPoint(p));
    EXPECT_TRUE(IsNear(p, QnGePoint(4.0, 5.0, 6.0)));
    EXPECT_TRUE(Bulged("1,2,3@1 4,5,6 close").GetEndPoint(p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(Straight("7,8").GetEndPoint(p));
    EXPECT_TRUE(IsNear(p, QnGePoint(7.0, 8.0)));
    p = NOTHING;
    for (const bool closed : {false, true}) {
        EXPECT_FALSE(QnGeMLine2d(0, closed).GetStartPoint(p));
        EXPECT_FALSE(QnGeMLine2d(0, closed).GetEndPoint(p));
        EXPECT_FALSE(QnGePolyline2d(0, closed).GetStartPoint(p));
        EXPECT_FALSE(QnGePolyline2d(0, closed).GetEndPoint(p));
    }
    EXPECT_TRUE(IsNear(p, NOTHING));
}

// ---- points ----------------------------------------------------------------------------------------

TEST(Parameter, PointsOfAMultiLineCarryTheirHeightOnce) {
    const QnGeMLine2d line = Straight("0,0,10 4,0,20 4,8,0 close");
    ExpectPtFromPa(line, 0.0, true, QnGePoint(0.0, 0.0, 10.0));
    ExpectPtFromPa(line, 1.0 / 6.0, true, QnGePoint(2.0, 0.0, 15.0));
    ExpectPtFromPa(line, 1.0 / 3.0, true, QnGePoint(4.0, 0.0, 20.0));
    ExpectPtFromPa(line, 0.5, true, QnGePoint(4.0, 4.0, 10.0));
    ExpectPtFromPa(line, 5.0 / 6.0, true, QnGePoint(2.0, 4.0, 5.0));
    ExpectPtFromPa(line, 1.0, true, QnGePoint(0.0, 0.0, 10.0));
}

TEST(Parameter, PointsOfAPolylineCarryTheirHeightOnceOnArcsToo) {
    const QnGePolyline2d line = Bulged("2,0,10@pi -2,0,20 -2,8,0");
    ExpectPtFromPa(line, 0.25, true, QnGePoint(0.0, 2.0, 15.0));
    ExpectPtFromPa(line, 0.125, true, QnGePoint(std::sqrt(2.0), std::sqrt(2.0), 12.5));
    ExpectPtFromPa(line, 0.5, true, QnGePoint(-2.0, 0.0, 20.0));
    ExpectPtFromPa(line, 0.75, true, QnGePoint(-2.0, 4.0, 10.0));
    const QnGePolyline2d closed = Bulged("2,0,10@-pi -2,0,20@-pi close");
    ExpectPtFromPa(closed, 0.25, true, QnGePoint(0.0, -2.0, 15.0));
    ExpectPtFromPa(closed, 0.75, true, QnGePoint(0.0, 2.0, 15.0));
}

TEST(Parameter, KeptOddAPolylineAnswersFalseAtItsEndsAndFillsThePoint) {
    const QnGePolyline2d open = Bulged("2,0,10@pi -2,0,20");
    const QnGePolyline2d closed = Bulged("2,0,10@pi -2,0,20@pi close");
    for (const double pa : {0.0, 1e-9, -1e-9}) {
        ExpectPtFromPa(open, pa, false, QnGePoint(2.0, 0.0, 10.0));
        ExpectPtFromPa(closed, pa, false, QnGePoint(2.0, 0.0, 10.0));
        ExpectPtFromPa(open, 1.0 + 0.5 * pa, false, QnGePoint(-2.0, 0.0, 20.0));
        ExpectPtFromPa(closed, 1.0 + 0.5 * pa, false, QnGePoint(2.0, 0.0, 10.0));
    }
    ExpectPtFromPa(open, 3e-9, true, QnGePoint(2.0, 3e-9 * PI * 2.0, 10.0 + 3e-8));
    QnGePoint p;
    EXPECT_FALSE(open.GetPtFromDist(0.0, p));
    EXPECT_FALSE(open.GetPtFromDist(open.Length(), p));
    EXPECT_TRUE(IsNear(p, QnGePoint(-2.0, 0.0, 20.0)));
}

TEST(Parameter, AMultiLineAnswersTrueAtItsEnds) {
    const QnGeMLine2d line = Straight("0,0,1 4,0,2 4,4,3");
    for (const double pa : {0.0, 1e-9, -1e-9}) {
        ExpectPtFromPa(line, pa, true, QnGePoint(0.0, 0.0, 1.0));
        ExpectPtFromPa(line, 1.0 + 0.5 * pa, true, QnGePoint(4.0, 4.0, 3.0));
    }
}

TEST(Parameter, BeyondItsEndsAMultiLineIsProlonged) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4");
    ExpectPtFromPa(line, -0.25, true, QnGePoint(-2.0, 0.0));
    ExpectPtFromPa(line, 1.5, true, QnGePoint(4.0, 8.0));
    ExpectPtFromPa(Bulged("0,0 4,0 4,4"), 1.5, true, QnGePoint(4.0, 8.0));
}

TEST(Parameter, WithoutASegmentOnlyTheEndsHaveAPoint) {
    ExpectPtFromPa(QnGeMLine2d(), 0.5, false, NOTHING);
    ExpectPtFromPa(QnGePolyline2d(), 0.5, false, NOTHING);
    ExpectPtFromPa(Straight("7,8"), 0.5, false, NOTHING);
    ExpectPtFromPa(Straight("7,8"), 0.0, true, QnGePoint(7.0, 8.0));
    ExpectPtFromPa(Bulged("7,8"), 1.0, false, QnGePoint(7.0, 8.0));
    // Kept odd: an empty multi-line answers true there without a point to give.
    ExpectPtFromPa(QnGeMLine2d(), 0.0, true, NOTHING);
    ExpectPtFromPa(QnGeMLine2d(), 1.0, true, NOTHING);
    ExpectPtFromPa(QnGePolyline2d(), 0.0, false, NOTHING);
    ExpectPtFromPa(QnGePolyline2d(), 1.0, false, NOTHING);
}

TEST(Parameter, MidPointIsTheMiddleInParameter) {
    QnGePoint p;
    EXPECT_TRUE(Straight("0,0 100,0 100,1").GetMidPoint(p));
    EXPECT_TRUE(IsNear(p, QnGePoint(100.0, 0.0)));
}

// ---- parameters of points --------------------------------------------------------------------------

TEST(Parameter, TheFirstSegmentUnderAPointGivesItsParameter) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4");
    ExpectPaFromPt(line, QnGePoint(0.0, 0.0), true, 0.0);
    ExpectPaFromPt(line, QnGePoint(1.0, 0.0), true, 0.125);
    ExpectPaFromPt(line, QnGePoint(4.0, 0.0), true, 0.5);
    ExpectPaFromPt(line, QnGePoint(4.0, 3.0, 77.0), true, 0.875);
    ExpectPaFromPt(line, QnGePoint(4.0, 4.0), true, 1.0);
    ExpectPaFromPt(line, QnGePoint(2.0, 2.0), false, -1.0);
    ExpectPaFromPt(Straight("0,0 4,0 4,4 close"), QnGePoint(2.0, 2.0), true, 5.0 / 6.0);
    ExpectPaFromPt(Straight("0,0 4,0 2,0 2,5"), QnGePoint(3.0, 0.0), true, 0.25);
    ExpectPaFromPt(QnGeMLine2d(), QnGePoint(0.0, 0.0), false, -1.0);
    ExpectPaFromPt(Straight("1,1"), QnGePoint(1.0, 1.0), false, -1.0);
}

TEST(Parameter, ParametersOfPointsOnArcs) {
    const QnGePolyline2d line = Bulged("2,0@pi -2,0 -4,0");
    ExpectPaFromPt(line, QnGePoint(0.0, 2.0), true, 0.25);
    ExpectPaFromPt(line, QnGePoint(2.0, 0.0), true, 0.0);
    ExpectPaFromPt(line, QnGePoint(-2.0, 0.0), true, 0.5);
    ExpectPaFromPt(line, QnGePoint(-3.0, 0.0), true, 0.75);
    ExpectPaFromPt(line, QnGePoint(0.0, -2.0), false, -1.0);
    ExpectPaFromPt(line, QnGePoint(0.0, 0.0), false, -1.0);
    ExpectPaFromPt(Bulged("2,0@-pi -2,0"), QnGePoint(0.0, -2.0), true, 0.5);
    ExpectPaFromPt(QnGePolyline2d(), QnGePoint(0.0, 0.0), false, -1.0);
}

TEST(Parameter, KeptOddJustBeforeTheSeamTheParameterIsNegative) {
    const QnGeMLine2d line = Straight("0,0 4,0 2,3 close");
    double pa = UNTOUCHED;
    EXPECT_TRUE(line.GetPaFromPt(QnGePoint(-4e-7, 0.0), pa));
    EXPECT_LT(pa, 0.0);
    EXPECT_GT(pa, -1e-6);
}

// ---- distances -------------------------------------------------------------------------------------

TEST(Parameter, DistancesOfAMultiLineAreInPlan) {
    const QnGeMLine2d line = Straight("0,0,0 4,0,100 4,3,-50 close");
    EXPECT_NEAR(line.Length(), 12.0, 1e-12);
    ExpectDistFromPa(line, 0.0, true, 0.0);
    ExpectDistFromPa(line, 1.0 / 6.0, true, 2.0);
    ExpectDistFromPa(line, 0.5, true, 5.5);
    ExpectDistFromPa(line, 5.0 / 6.0, true, 9.5);
    ExpectDistFromPa(line, 1.0, true, 12.0);
    ExpectDistFromPa(line, 1.0 + 5e-10, true, 12.0);
    ExpectDistFromPa(line, 1.0 - 5e-10, true, 12.0);
    ExpectDistFromPa(line, 1e-9, true, 0.0);
    ExpectDistFromPa(line, -0.1, true, -1.2);
    ExpectDistFromPa(line, 1.1, true, 13.5);
}

TEST(Parameter, DistancesWithoutASegment) {
    ExpectDistFromPa(QnGeMLine2d(), 0.0, true, 0.0);
    ExpectDistFromPa(QnGeMLine2d(), 1.0, true, 0.0);
    ExpectDistFromPa(QnGeMLine2d(), 0.5, false, UNTOUCHED);
    ExpectDistFromPa(QnGePolyline2d(), 0.5, false, UNTOUCHED);
    ExpectPaFromDist(QnGeMLine2d(), 0.0, false, -1.0);
    ExpectPaFromDist(QnGePolyline2d(), 0.0, false, -1.0);
    ExpectPaFromDist(Straight("1,1"), 0.0, false, -1.0);
}

TEST(Parameter, DistancesOnArcs) {
    const QnGePolyline2d line = Bulged("2,0@pi -2,0 -4,0");
    EXPECT_NEAR(line.Length(), 2.0 * PI + 2.0, 1e-9);
    ExpectDistFromPa(line, 0.25, true, PI);
    ExpectDistFromPa(line, 0.75, true, 2.0 * PI + 1.0);
    ExpectDistFromPa(line, 1.0, true, 2.0 * PI + 2.0);
    ExpectPaFromDist(line, PI, true, 0.25);
    ExpectPaFromDist(line, 2.0 * PI + 1.0, true, 0.75);
    ExpectDistFromPa(Bulged("2,0@-pi -2,0@-pi close"), 0.75, true, 3.0 * PI);
}

TEST(Parameter, ADistanceTakesTheFirstSegmentThatReachesIt) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,3");
    ExpectPaFromDist(line, 0.0, true, 0.0);
    ExpectPaFromDist(line, 2.0, true, 0.25);
    ExpectPaFromDist(line, 4.0, true, 0.5);
    ExpectPaFromDist(line, 5.5, true, 0.75);
    ExpectPaFromDist(line, 7.0, true, 1.0);
    ExpectPaFromDist(line, 4.0 + 9e-7, true, 0.5, 1e-6);
    ExpectPaFromDist(line, -9e-7, true, 0.0, 1e-6);
    ExpectPaFromDist(line, 7.0 + 9e-7, true, 1.0, 1e-6);
    ExpectPaFromDist(line, -1.1e-6, false, -1.0);
    ExpectPaFromDist(line, 7.0 + 1.1e-6, false, -1.0);
    double pa = 0.0;
    EXPECT_TRUE(line.GetPaFromDist(4.0 + 9e-7, pa));
    EXPECT_GT(pa, 0.5);  // the first segment answers for the tolerance behind its end
}

TEST(Parameter, PointsAndDistancesGoByWayOfTheParameter) {
    const QnGeMLine2d line = Straight("0,0,0 4,0,8 4,3,2");
    QnGePoint p;
    EXPECT_TRUE(line.GetPtFromDist(1.0, p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 0.0, 2.0)));
    EXPECT_FALSE(line.GetPtFromDist(8.0, p));
    double dist = 0.0;
    EXPECT_TRUE(line.GetDistFromPt(QnGePoint(4.0, 2.0), dist));
    EXPECT_NEAR(dist, 6.0, 1e-12);
    EXPECT_FALSE(line.GetDistFromPt(QnGePoint(1.0, 1.0), dist));
}

// ---- tangents --------------------------------------------------------------------------------------

TEST(Parameter, TangentsAreUnitVectorsAlongTravel) {
    const QnGeMLine2d line = Straight("0,0,1 4,0,1 4,3,1 close");
    QnGeBaseLine2d tangent;
    line.GetTangent(0.1, tangent);
    EXPECT_TRUE(IsNear(tangent.GetVector(), QnGePoint(1.0, 0.0)));
    EXPECT_TRUE(IsNear(tangent.GetBasePoint(), QnGePoint(0.0, 0.0, 1.0)));
    line.GetTangent(0.5, tangent);
    EXPECT_TRUE(IsNear(tangent.GetVector(), QnGePoint(0.0, 1.0)));
    line.GetTangent(0.9, tangent);
    EXPECT_TRUE(IsNear(tangent.GetVector(), QnGePoint(-0.8, -0.6)));
    EXPECT_TRUE(IsNear(tangent.GetBasePoint(), QnGePoint(4.0, 3.0, 1.0)));
    line.GetTangentFromPt(QnGePoint(4.0, 1.0), tangent);
    EXPECT_TRUE(IsNear(tangent.GetVector(), QnGePoint(0.0, 1.0)));
}

TEST(Parameter, TangentsOfArcsTouchThem) {
    const QnGePolyline2d line = Bulged("2,0@pi -2,0 -4,0@-pi -8,0");
    QnGeBaseLine2d tangent;
    line.GetTangent(1.0 / 6.0, tangent);
    EXPECT_TRUE(IsNear(tangent.GetBasePoint(), QnGePoint(0.0, 2.0)));
    EXPECT_TRUE(IsNear(tangent.GetVector(), QnGePoint(-1.0, 0.0)));
    line.GetTangent(0.5, tangent);
    EXPECT_TRUE(IsNear(tangent.GetVector(), QnGePoint(-1.0, 0.0)));
    EXPECT_TRUE(IsNear(tangent.GetBasePoint(), QnGePoint(-2.0, 0.0)));
    line.GetTangent(5.0 / 6.0, tangent);  // clockwise from (-4, 0) over (-6, -2)
    EXPECT_TRUE(IsNear(tangent.GetBasePoint(), QnGePoint(-6.0, -2.0)));
    EXPECT_TRUE(IsNear(tangent.GetVector(), QnGePoint(-1.0, 0.0)));
}

TEST(Parameter, WithoutASegmentATangentStaysAsItIs) {
    QnGeBaseLine2d tangent(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0));
    QnGeMLine2d().GetTangent(0.5, tangent);
    QnGePolyline2d().GetTangent(0.0, tangent);
    Straight("9,9").GetTangent(0.5, tangent);
    EXPECT_EQ(tangent.dx, 3.0);
    EXPECT_EQ(tangent.GetBasePoint().y, 2.0);
}
