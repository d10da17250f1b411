// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseCircle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "values/QnGeBaseLine2d.h"

using namespace value_testing;

static_assert(!std::is_polymorphic_v<QnGeBaseCircle>, "a plain value");

namespace {

const QnGeBaseCircle UNIT(QnGePoint(), 1.0);

QnGeBaseCircle RandomCircle(Random& random) {
    return QnGeBaseCircle(random.Point(10.0), random.Real(0.1, 10.0));
}

}  // namespace

TEST(QnGeBaseCircle, Builds) {
    EXPECT_TRUE(IsExactly(QnGeBaseCircle().GetCenter(), 0.0, 0.0, 0.0));
    EXPECT_EQ(QnGeBaseCircle().GetRadius(), 0.0);
    QnGeBaseCircle circle(QnGePoint(1.0, 2.0, 3.0), 4.0);
    EXPECT_TRUE(IsExactly(circle.center, 1.0, 2.0, 3.0));
    EXPECT_EQ(circle.radius, 4.0);
    circle.SetCenter(QnGePoint(5.0, 6.0, 7.0));
    circle.SetRadius(8.0);
    EXPECT_TRUE(IsExactly(circle.GetCenter(), 5.0, 6.0, 7.0));
    EXPECT_EQ(circle.GetRadius(), 8.0);
}

TEST(QnGeBaseCircle, BuildsThroughThreePoints) {
    const QnGeBaseCircle circle(QnGePoint(3.0, 0.0, 9.0), QnGePoint(1.0, 2.0), QnGePoint(-1.0, 0.0));
    EXPECT_TRUE(IsNear(circle.center, QnGePoint(1.0, 0.0, 9.0)));
    EXPECT_NEAR(circle.radius, 2.0, 1e-12);
    QnGeBaseCircle other;
    other.CreateFrom(QnGePoint(3.0, 0.0, 9.0), QnGePoint(1.0, 2.0), QnGePoint(-1.0, 0.0));
    EXPECT_TRUE(other == circle);
}

TEST(QnGeBaseCircle, BuildsThroughTwoPointsAndAnAngle) {
    const QnGeBaseCircle circle(QnGePoint(0.0, 0.0), QnGePoint(2.0, 0.0), EXACT_PI / 2.0);
    EXPECT_TRUE(IsNear(circle.center, QnGePoint(1.0, 1.0, 0.0)));
    EXPECT_NEAR(circle.radius, std::sqrt(2.0), 1e-12);
    QnGeBaseCircle other;
    other.CreateFrom(QnGePoint(0.0, 0.0), QnGePoint(2.0, 0.0), -EXACT_PI / 2.0);
    EXPECT_TRUE(IsNear(other.center, QnGePoint(1.0, -1.0, 0.0)));
}

TEST(QnGeBaseCircle, IsValidWithARadiusAboveTheTolerance) {
    EXPECT_FALSE(QnGeBaseCircle(QnGePoint(), 1e-6).IsValid());
    EXPECT_TRUE(QnGeBaseCircle(QnGePoint(), 1.0000001e-6).IsValid());
    EXPECT_FALSE(QnGeBaseCircle(QnGePoint(), -1.0).IsValid());
}

TEST(QnGeBaseCircle, LengthUsesTheLibrarysTwoPi) {
    EXPECT_EQ(QnGeBaseCircle(QnGePoint(), 2.0).Length(), QN_TWO_PI * 2.0);
    EXPECT_NEAR(QnGeBaseCircle(QnGePoint(), 2.0).Area(), 4.0 * EXACT_PI, 1e-14);
}

TEST(QnGeBaseCircle, PointsByAngleKeepTheCentersZ) {
    QnGePoint p;
    EXPECT_TRUE(QnGeBaseCircle(QnGePoint(1.0, 2.0, 3.0), 2.0).GetPtFromPa(EXACT_PI / 2.0, p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 4.0, 3.0)));
}

TEST(QnGeBaseCircle, AngleOfAPoint) {
    double a = UNTOUCHED;
    EXPECT_TRUE(UNIT.GetPaFromPt(QnGePoint(0.0, 50.0, 9.0), a));
    EXPECT_EQ(a, QN_HALF_PI);
    EXPECT_TRUE(UNIT.GetPaFromPt(QnGePoint(0.0, -5.0), a));
    EXPECT_EQ(a, QN_TWO_PI - QN_HALF_PI);
}

TEST(QnGeBaseCircle, TheCenterHasNoAngle) {
    double a = UNTOUCHED;
    EXPECT_FALSE(UNIT.GetPaFromPt(QnGePoint(0.0, 0.0, 9.0), a));
    EXPECT_FALSE(UNIT.GetPaFromPt(QnGePoint(1e-6, 0.0), a));
    EXPECT_EQ(a, UNTOUCHED);
    EXPECT_TRUE(UNIT.GetPaFromPt(QnGePoint(1.0000001e-6, 0.0), a));
}

TEST(QnGeBaseCircle, KeptOddAngleJustBelowXIsTheFullTurn) {
    double a = UNTOUCHED;
    EXPECT_TRUE(UNIT.GetPaFromPt(QnGePoint(1.0, -1e-20), a));
    EXPECT_EQ(a, QN_TWO_PI);
}

TEST(QnGeBaseCircle, ParametersAndDistancesInvert) {
    Random random(2407);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseCircle circle = RandomCircle(random);
        const double angle = random.Real(0.001, 6.28);
        QnGePoint p;
        double back = UNTOUCHED;
        ASSERT_TRUE(circle.GetPtFromPa(angle, p));
        ASSERT_NEAR(PlanDistance(p, circle.center), circle.radius, 1e-12);
        ASSERT_EQ(p.z, circle.center.z);
        ASSERT_TRUE(circle.GetPaFromPt(p, back));
        ASSERT_NEAR(back, angle, 1e-7);
        double d = UNTOUCHED;
        ASSERT_TRUE(circle.GetDistFromPa(angle, d));
        ASSERT_NEAR(d, angle * circle.radius, 1e-12);
        ASSERT_TRUE(circle.GetPaFromDist(d, back));
        ASSERT_NEAR(back, angle, 1e-14);
    }
}

TEST(QnGeBaseCircle, DirectionIsTheUnnormalizedCounterClockwiseTangent) {
    const QnGeBaseCircle circle(QnGePoint(1.0, 1.0, 5.0), 2.0);
    QnGeVector2d v;
    circle.GetDirection(QnGePoint(4.0, 1.0), v);
    EXPECT_TRUE(IsNear(v, QnGePoint(0.0, 3.0, 0.0)));
    circle.GetDirection(EXACT_PI / 2.0, v);
    EXPECT_TRUE(IsNear(v, QnGePoint(-2.0, 0.0, 0.0)));
}

TEST(QnGeBaseCircle, TangentIsAUnitLineAtThePoint) {
    const QnGeBaseCircle circle(QnGePoint(1.0, 1.0, 5.0), 2.0);
    QnGeBaseLine2d line;
    circle.GetTangent(EXACT_PI, line);
    EXPECT_TRUE(IsNear(line.GetBasePoint(), QnGePoint(-1.0, 1.0, 5.0)));
    EXPECT_TRUE(IsNear(line.GetVector(), QnGePoint(0.0, -1.0, 0.0)));
}

TEST(QnGeBaseCircle, OffsetChangesTheRadiusIfItStaysPositive) {
    QnGeBaseCircle circle(QnGePoint(), 1.0);
    EXPECT_FALSE(circle.Offset(-2.0));
    EXPECT_EQ(circle.radius, 1.0);
    EXPECT_FALSE(circle.Offset(-1.0));
    EXPECT_EQ(circle.radius, 1.0);
    EXPECT_TRUE(circle.Offset(2.0));
    EXPECT_EQ(circle.radius, 3.0);
    EXPECT_TRUE(circle.Offset(-2.5));
    EXPECT_EQ(circle.radius, 0.5);
    QnGeBaseCircle tiny(QnGePoint(), 0.0);
    EXPECT_FALSE(tiny.Offset(1e-9));
    EXPECT_TRUE(tiny.Offset(2e-9));
}

TEST(QnGeBaseCircle, EqualityIsInThePlan) {
    EXPECT_TRUE(UNIT == QnGeBaseCircle(QnGePoint(0.0, 0.0, 50.0), 1.0 + 5e-7));
    EXPECT_TRUE(UNIT == QnGeBaseCircle(QnGePoint(1e-6, 0.0), 1.0));
    EXPECT_FALSE(UNIT == QnGeBaseCircle(QnGePoint(1.0000001e-6, 0.0), 1.0));
    EXPECT_FALSE(UNIT == QnGeBaseCircle(QnGePoint(), 1.0 + 2e-6));
}

TEST(QnGeBaseCircle, HitTestAnswersWithPlainNumbers) {
    static_assert(std::is_same_v<decltype(UNIT.HitTest(QnGePoint())), int>, "a number, not a flag word");
    const QnPushVar<double> wide(g_distZero, 0.25);
    EXPECT_EQ(UNIT.HitTest(QnGePoint(1.0, 0.0, 50.0)), 1);
    EXPECT_EQ(UNIT.HitTest(QnGePoint(1.25, 0.0)), 1);
    EXPECT_EQ(UNIT.HitTest(QnGePoint(0.0, -0.75)), 1);
    EXPECT_EQ(UNIT.HitTest(QnGePoint(Above(1.25), 0.0)), 4);
    EXPECT_EQ(UNIT.HitTest(QnGePoint(Below(0.75), 0.0)), 2);
    EXPECT_EQ(UNIT.HitTest(QnGePoint()), 2);
    EXPECT_EQ(UNIT.HitTest(QnGePoint(9.0, 9.0)), 4);
}

TEST(QnGeBaseCircle, IntegrationAroundIsMinusTheArea) {
    const QnGeBaseCircle circle(QnGePoint(3.0, 4.0), 2.0);
    EXPECT_NEAR(circle.Integration(0.0, 2.0 * EXACT_PI), -4.0 * EXACT_PI, 1e-12);
    EXPECT_NEAR(circle.Integration(EXACT_PI, 0.0), 2.0 * EXACT_PI + 16.0, 1e-12);  // half the disc over a 4 by 4 base
}

TEST(QnGeBaseCircle, MeetsALine) {
    const QnGeBaseLine2d line(QnGeVector2d(3.0, 0.0), QnGePoint(-5.0, 0.0, 7.0));
    QnGePoint q1;
    QnGePoint q2;
    EXPECT_EQ(UNIT.IntersectWith(line, q1, q2, false), 2);
    EXPECT_TRUE(IsNear(q1, QnGePoint(-1.0, 0.0, 7.0)));
    EXPECT_TRUE(IsNear(q2, QnGePoint(1.0, 0.0, 7.0)));
    EXPECT_TRUE(IsExactly(line.GetVector(), 3.0, 0.0, 0.0));
    q1 = q2 = QnGePoint(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    const QnGeBaseLine2d tangent(QnGeVector2d(3.0, 0.0), QnGePoint(-5.0, 1.0, 7.0));
    EXPECT_EQ(UNIT.IntersectWith(tangent, q1, q2, false), 1);
    EXPECT_TRUE(IsNear(q1, QnGePoint(0.0, 1.0, 7.0)));
    EXPECT_EQ(q2.x, UNTOUCHED);
    const QnGeBaseLine2d apart(QnGeVector2d(1.0, 0.0), QnGePoint(-5.0, 2.0));
    q1 = QnGePoint(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_EQ(UNIT.IntersectWith(apart, q1, q2, true), 0);
    EXPECT_EQ(q1.x, UNTOUCHED);
}

TEST(QnGeBaseCircle, LineHeightsFollowTheLinesZ) {
    const QnGeBaseLine2d rising(QnGePoint(-2.0, 0.0, 0.0), QnGePoint(2.0, 0.0, 8.0));
    QnGePoint q1;
    QnGePoint q2;
    EXPECT_EQ(UNIT.IntersectWith(rising, q1, q2, false), 2);
    EXPECT_TRUE(IsNear(q1, QnGePoint(-1.0, 0.0, 2.0)));
    EXPECT_TRUE(IsNear(q2, QnGePoint(1.0, 0.0, 6.0)));
}

TEST(QnGeBaseCircle, MeetsACircle) {
    QnGePoint q1;
    QnGePoint q2;
    EXPECT_EQ(UNIT.IntersectWith(QnGeBaseCircle(QnGePoint(1.0, 0.0), 1.0), q1, q2), 2);
    EXPECT_TRUE(IsNear(q1, QnGePoint(0.5, std::sqrt(0.75), 0.0)));
    EXPECT_TRUE(IsNear(q2, QnGePoint(0.5, -std::sqrt(0.75), 0.0)));
    EXPECT_EQ(UNIT.IntersectWith(UNIT, q1, q2), 11);
    EXPECT_EQ(UNIT.IntersectWith(QnGeBaseCircle(QnGePoint(5.0, 0.0), 1.0), q1, q2), 0);
}

TEST(QnGeBaseCircle, NearestPointLiesTowardThePoint) {
    const QnGeBaseCircle circle(QnGePoint(0.0, 0.0, 3.0), 2.0);
    QnGePoint q;
    EXPECT_TRUE(circle.GetNearestPoint(QnGePoint(0.0, 9.0, 7.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(0.0, 2.0, 3.0)));
    EXPECT_TRUE(circle.GetNearestPoint(QnGePoint(-0.5, 0.0, 3.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(-2.0, 0.0, 3.0)));
    Random random(2408);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseCircle any = RandomCircle(random);
        const QnGePoint p = random.Point(15.0);
        if (PlanDistance(p, any.center) < 1e-3) {
            continue;
        }
        ASSERT_TRUE(any.GetNearestPoint(p, q));
        ASSERT_NEAR(PlanDistance(q, any.center), any.radius, 1e-9);
        ASSERT_NEAR(PlanDistance(q, p), std::fabs(PlanDistance(p, any.center) - any.radius), 1e-9);
        ASSERT_EQ(q.z, any.center.z);
    }
}

TEST(QnGeBaseCircle, TheCenterHasNoNearestPoint) {
    QnGePoint q(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_FALSE(UNIT.GetNearestPoint(QnGePoint(), q));
    EXPECT_FALSE(UNIT.GetNearestPoint(QnGePoint(0.0, 0.0, 1e-6), q));
    EXPECT_TRUE(IsExactly(q, UNTOUCHED, UNTOUCHED, UNTOUCHED));
}

TEST(QnGeBaseCircle, KeptOddNearestPointToAPointAboveTheCenterIsTheCenter) {
    QnGePoint q;
    EXPECT_TRUE(QnGeBaseCircle(QnGePoint(1.0, 2.0, 3.0), 1.0).GetNearestPoint(QnGePoint(1.0, 2.0, 8.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(1.0, 2.0, 3.0)));
}

TEST(QnGeBaseCircle, KeptOddNearestPointOfATinyCircleIsTheCenter) {
    QnGePoint q;
    EXPECT_TRUE(QnGeBaseCircle(QnGePoint(1.0, 2.0, 3.0), 1e-5).GetNearestPoint(QnGePoint(5.0, 2.0, 8.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(QnGeBaseCircle(QnGePoint(), 4e-5).GetNearestPoint(QnGePoint(5.0, 0.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(4e-5, 0.0, 0.0)));
}
