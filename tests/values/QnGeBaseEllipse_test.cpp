// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseEllipse.h"

#include <gtest/gtest.h>

#include <cmath>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

using namespace value_testing;

namespace {

const QnGeBaseEllipse FLAT(QnGePoint(1.0, 2.0, 3.0), 4.0, 2.0, 0.0);

}  // namespace

TEST(QnGeBaseEllipse, Builds) {
    const QnGeBaseEllipse zero;
    EXPECT_TRUE(IsExactly(zero.center, 0.0, 0.0, 0.0));
    EXPECT_EQ(zero.majorRadius, 0.0);
    EXPECT_EQ(zero.minorRadius, 0.0);
    EXPECT_EQ(zero.rotation, 0.0);
    QnGeBaseEllipse ellipse(QnGePoint(1.0, 2.0, 3.0), 4.0, 2.0, 0.5);
    EXPECT_TRUE(IsExactly(ellipse.GetCenter(), 1.0, 2.0, 3.0));
    EXPECT_EQ(ellipse.GetMajorRadius(), 4.0);
    EXPECT_EQ(ellipse.GetMinorRadius(), 2.0);
    EXPECT_EQ(ellipse.GetRotation(), 0.5);
    ellipse.SetCenter(QnGePoint(9.0, 9.0, 9.0));
    ellipse.SetMajorRadius(5.0);
    ellipse.SetMinorRadius(6.0);
    ellipse.SetRotation(7.0);
    EXPECT_TRUE(ellipse == QnGeBaseEllipse(QnGePoint(9.0, 9.0, 9.0), 5.0, 6.0, 7.0));
}

TEST(QnGeBaseEllipse, IsValidWithBothRadiiAboveTheTolerance) {
    EXPECT_TRUE(FLAT.IsValid());
    EXPECT_FALSE(QnGeBaseEllipse().IsValid());
    EXPECT_FALSE(QnGeBaseEllipse(QnGePoint(), 1.0, 1e-6, 0.0).IsValid());
    EXPECT_FALSE(QnGeBaseEllipse(QnGePoint(), 1e-6, 1.0, 0.0).IsValid());
    EXPECT_TRUE(QnGeBaseEllipse(QnGePoint(), 1.0000001e-6, 1.0000001e-6, 0.0).IsValid());
}

TEST(QnGeBaseEllipse, IsACircleWithEqualRadii) {
    EXPECT_FALSE(FLAT.IsCircle());
    EXPECT_TRUE(QnGeBaseEllipse(QnGePoint(), 2.0, 2.0 + 5e-7, 0.0).IsCircle());
    EXPECT_TRUE(QnGeBaseEllipse(QnGePoint(), 2.0 + 5e-7, 2.0, 0.0).IsCircle());
    EXPECT_FALSE(QnGeBaseEllipse(QnGePoint(), 2.0 + 2e-6, 2.0, 0.0).IsCircle());
}

TEST(QnGeBaseEllipse, EqualityUsesLengthAndAngleTolerances) {
    const QnGePoint center(1.0, 2.0, 3.0);
    EXPECT_TRUE(FLAT == QnGeBaseEllipse(center, 4.0 + 5e-7, 2.0 - 5e-7, 9e-6));
    EXPECT_FALSE(FLAT != QnGeBaseEllipse(center, 4.0, 2.0, 1e-5));
    EXPECT_TRUE(FLAT != QnGeBaseEllipse(center, 4.0, 2.0, 1.1e-5));
    EXPECT_TRUE(FLAT != QnGeBaseEllipse(center, 4.0 + 2e-6, 2.0, 0.0));
    EXPECT_TRUE(FLAT != QnGeBaseEllipse(center, 4.0, 2.0 + 2e-6, 0.0));
    EXPECT_TRUE(FLAT != QnGeBaseEllipse(QnGePoint(1.0, 2.1, 3.0), 4.0, 2.0, 0.0));
    EXPECT_TRUE(FLAT == QnGeBaseEllipse(QnGePoint(1.0 + 5e-7, 2.0, 50.0), 4.0, 2.0, 0.0));  // in the plan
}

TEST(QnGeBaseEllipse, PointsByEccentricAngle) {
    QnGePoint p;
    EXPECT_TRUE(FLAT.GetPtFromPa(EXACT_PI / 2.0, p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 4.0, 3.0)));
    EXPECT_TRUE(FLAT.GetPtFromPa(EXACT_PI / 6.0, p));
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0 + 4.0 * std::sqrt(0.75), 3.0, 3.0)));
}

TEST(QnGeBaseEllipse, KeptOddRotationIsAddedToTheParameter) {
    const QnGeBaseEllipse turned(QnGePoint(), 4.0, 2.0, EXACT_PI / 2.0);
    QnGePoint p;
    EXPECT_TRUE(turned.GetPtFromPa(0.0, p));
    EXPECT_TRUE(IsNear(p, QnGePoint(0.0, 2.0, 0.0)));  // a rigid turn would give (0, 4)
}

TEST(QnGeBaseEllipse, ParameterOfAPointIsItsAngleLessTheRotation) {
    double a = UNTOUCHED;
    EXPECT_TRUE(FLAT.GetPaFromPt(QnGePoint(1.0, 50.0), a));
    EXPECT_EQ(a, QN_HALF_PI);
    const QnGeBaseEllipse turned(QnGePoint(), 4.0, 2.0, 3.0);
    EXPECT_TRUE(turned.GetPaFromPt(QnGePoint(0.0, 7.0), a));
    EXPECT_EQ(a, QN_HALF_PI - 3.0);  // not wrapped
}

TEST(QnGeBaseEllipse, TheCenterHasNoParameter) {
    double a = UNTOUCHED;
    EXPECT_FALSE(FLAT.GetPaFromPt(QnGePoint(1.0, 2.0, 99.0), a));
    EXPECT_EQ(a, UNTOUCHED);
}

TEST(QnGeBaseEllipse, CirclesInvertTheParameter) {
    Random random(2409);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const double radius = random.Real(0.1, 10.0);
        const double rotation = random.Real(-3.0, 3.0);
        const QnGeBaseEllipse circle(random.Point(5.0), radius, radius, rotation);
        const double angle = random.Real(0.001, 6.28) - rotation;
        QnGePoint p;
        double back = UNTOUCHED;
        ASSERT_TRUE(circle.GetPtFromPa(angle, p));
        ASSERT_TRUE(circle.GetPaFromPt(p, back));
        ASSERT_NEAR(back, angle, 1e-7);
    }
}

TEST(QnGeBaseEllipse, HitTestComparesARatioUnderTheParameterTolerance) {
    EXPECT_EQ(Bits(FLAT.HitTest(QnGePoint(5.0, 2.0))), ON);
    EXPECT_EQ(Bits(FLAT.HitTest(QnGePoint(1.0, 4.0, 77.0))), ON);
    EXPECT_EQ(Bits(FLAT.HitTest(QnGePoint(1.0, 2.0))), IN);
    EXPECT_EQ(Bits(FLAT.HitTest(QnGePoint(5.0, 2.1))), OUT);
    EXPECT_EQ(Bits(FLAT.HitTest(QnGePoint(5.0 + 1e-7, 2.0))), OUT);  // closer than the length tolerance
    EXPECT_EQ(Bits(FLAT.HitTest(QnGePoint(5.0 - 1e-7, 2.0))), IN);
    EXPECT_EQ(Bits(FLAT.HitTest(QnGePoint(5.0 + 1e-9, 2.0))), ON);
}

TEST(QnGeBaseEllipse, HitTestIncludesBothEndsOfTheTolerance) {
    const QnPushVar<double> wide(g_fZero, 1.25);
    const QnGeBaseEllipse unit(QnGePoint(), 1.0, 2.0, 0.0);
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(1.5, 0.0))), ON);  // the ratio is 1.25 above 1
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(0.0, 3.0))), ON);
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(0.0, 3.125))), OUT);
    const QnPushVar<double> exact(g_fZero, 0.75);
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(0.5, 0.0))), ON);
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(0.0, 0.875))), IN);
}

TEST(QnGeBaseEllipse, HitTestTurnsRigidly) {
    const QnGeBaseEllipse turned(QnGePoint(1.0, 2.0), 4.0, 2.0, EXACT_PI / 2.0);
    EXPECT_EQ(Bits(turned.HitTest(QnGePoint(1.0, 6.0))), ON);
    EXPECT_EQ(Bits(turned.HitTest(QnGePoint(3.0, 2.0))), ON);
    EXPECT_EQ(Bits(turned.HitTest(QnGePoint(4.0, 2.0))), OUT);
    EXPECT_EQ(Bits(turned.HitTest(QnGePoint(1.0, 5.0))), IN);
}

TEST(QnGeBaseEllipse, PointsOfAnUnturnedEllipseAreOnIt) {
    Random random(2410);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseEllipse ellipse(random.Point(5.0), random.Real(0.5, 9.0), random.Real(0.5, 9.0), 0.0);
        QnGePoint p;
        ASSERT_TRUE(ellipse.GetPtFromPa(random.Real(-7.0, 7.0), p));
        ASSERT_EQ(Bits(ellipse.HitTest(p)), ON);
    }
}
