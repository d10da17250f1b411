// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "values/QnGeAnalytic.h"

using namespace value_testing;

namespace {

const QnGePoint ORIGIN(0.0, 0.0, 0.0);
const QnGeVector2d X_2D(1.0, 0.0);
const QnGeVector3d X_3D(1.0, 0.0, 0.0);

QnGeVector3d RandomUnit(Random& random) {
    for (;;) {
        QnGeVector3d v(random.Point(1.0));
        if (v.Length() > 0.1) {
            v.Normalize();
            return v;
        }
    }
}

}  // namespace

TEST(LineIntersect2d, SolvesBothParameters) {
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(LineIntersect2d(ORIGIN, X_2D, QnGePoint(3.0, -2.0), QnGeVector2d(0.0, 1.0), t1, t2), 1);
    EXPECT_EQ(t1, 3.0);
    EXPECT_EQ(t2, 2.0);
    t1 = UNTOUCHED;
    EXPECT_EQ(LineIntersect2d(ORIGIN, X_2D, QnGePoint(3.0, -2.0), QnGeVector2d(0.0, 1.0), t1), 1);
    EXPECT_EQ(t1, 3.0);
}

TEST(LineIntersect2d, ParallelLinesCompareTheirGap) {
    struct Row {
        double gap;
        int code;
    };
    const Row rows[] = {{0.0, 10},   {1e-7, 10}, {-1e-7, 10},       {1e-6, 10},
                        {-1e-6, 10}, {1e-5, 0},  {1.0000001e-6, 0}, {-1.0000001e-6, 0}};
    for (const Row& row : rows) {
        double t1 = UNTOUCHED;
        double t2 = UNTOUCHED;
        EXPECT_EQ(LineIntersect2d(ORIGIN, X_2D, QnGePoint(5.0, row.gap), X_2D, t1, t2), row.code) << row.gap;
        EXPECT_EQ(LineIntersect2d(ORIGIN, X_2D, QnGePoint(5.0, row.gap), -X_2D, t1), row.code) << row.gap;
        EXPECT_EQ(t1, UNTOUCHED);
        EXPECT_EQ(t2, UNTOUCHED);
    }
}

TEST(LineIntersect2d, ParallelIsTheDeterminantUnderTheTolerance) {
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(LineIntersect2d(ORIGIN, X_2D, QnGePoint(0.0, 1.0), QnGeVector2d(1.0, 1e-9), t1, t2), 0);
    EXPECT_EQ(LineIntersect2d(ORIGIN, X_2D, QnGePoint(0.0, 1.0), QnGeVector2d(1.0, -1e-9), t1, t2), 0);
    EXPECT_EQ(LineIntersect2d(ORIGIN, X_2D, QnGePoint(0.0, 1.0), QnGeVector2d(1.0, Above(1e-9)), t1, t2), 1);
    EXPECT_NEAR(t1, -1e9, 1.0);
}

TEST(LineIntersect2d, TheSolutionLiesOnBothLines) {
    Random random(2505);
    int met = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint p1 = random.PlanPoint(10.0);
        const QnGePoint p2 = random.PlanPoint(10.0);
        const double a1 = random.Real(0.0, 6.3);
        const double a2 = random.Real(0.0, 6.3);
        if (std::fabs(std::sin(a1 - a2)) < 1e-3) {
            continue;
        }
        const QnGeVector2d v1(std::cos(a1), std::sin(a1));
        const QnGeVector2d v2(std::cos(a2), std::sin(a2));
        double t1 = UNTOUCHED;
        double t2 = UNTOUCHED;
        double alone = UNTOUCHED;
        ASSERT_EQ(LineIntersect2d(p1, v1, p2, v2, t1, t2), 1);
        ASSERT_EQ(LineIntersect2d(p1, v1, p2, v2, alone), 1);
        ASSERT_EQ(alone, t1);
        ASSERT_NEAR(p1.x + t1 * v1.x, p2.x + t2 * v2.x, 1e-9);
        ASSERT_NEAR(p1.y + t1 * v1.y, p2.y + t2 * v2.y, 1e-9);
        ++met;
    }
    EXPECT_GT(met, PROPERTY_CASES / 2);
}

TEST(LineIntersect3d, SolvesFromTheFirstPairOfCoordinatesThatCan) {
    double t = UNTOUCHED;
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, QnGePoint(3.0, -2.0, 0.0), QnGeVector3d(0.0, 1.0, 0.0), t), 1);
    EXPECT_NEAR(t, 3.0, 1e-14);  // in x and y
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, QnGePoint(3.0, 0.0, -2.0), QnGeVector3d(0.0, 0.0, 1.0), t), 1);
    EXPECT_NEAR(t, 3.0, 1e-14);  // in x and z
    EXPECT_EQ(
        LineIntersect3d(ORIGIN, QnGeVector3d(0.0, 1.0, 0.0), QnGePoint(0.0, 4.0, -2.0), QnGeVector3d(0.0, 0.0, 1.0), t),
        1);
    EXPECT_NEAR(t, 4.0, 1e-14);  // in y and z
}

TEST(LineIntersect3d, SolvesSlantedLinesInEachCoordinatePlane) {
    const QnGePoint base(5.0, 6.0, 7.0);
    // the common point is 5 along the first vector and -10 along the second
    struct Row {
        QnGeVector3d v1, v2;
    };
    const Row rows[] = {{QnGeVector3d(0.6, 0.8, 0.0), QnGeVector3d(0.8, 0.6, 0.0)},
                        {QnGeVector3d(0.6, 0.0, 0.8), QnGeVector3d(0.8, 0.0, 0.6)},
                        {QnGeVector3d(0.0, 0.6, 0.8), QnGeVector3d(0.0, 0.8, 0.6)}};
    for (const Row& row : rows) {
        const QnGePoint second = base + row.v1 * 5.0 + row.v2 * 10.0;
        double t = UNTOUCHED;
        EXPECT_EQ(LineIntersect3d(base, row.v1, second, row.v2, t), 1);
        EXPECT_NEAR(t, 5.0, 1e-12) << PointText(row.v1);
    }
}

TEST(LineIntersect3d, ADeterminantAboveTheParameterToleranceIsEnough) {
    const QnGeVector3d straight[] = {QnGeVector3d(1.0, 0.0, 0.0), QnGeVector3d(1.0, 0.0, 0.0),
                                     QnGeVector3d(0.0, 1.0, 0.0)};
    const QnGeVector3d bent[] = {QnGeVector3d(1.0, 1e-7, 0.0), QnGeVector3d(1.0, 0.0, 1e-7),
                                 QnGeVector3d(0.0, 1.0, 1e-7)};
    for (int i = 0; i < 3; ++i) {
        const QnGePoint second = straight[i] * 5.0 - bent[i] * 7.0;
        double t = UNTOUCHED;
        EXPECT_EQ(LineIntersect3d(ORIGIN, straight[i], second, bent[i], t), 1);
        EXPECT_NEAR(t, 5.0, 1e-6);
    }
}

TEST(LineIntersect3d, TakesTheFirstVectorAsAUnitVector) {
    // seen from the origin the other base lies half a thousandth off; the raw cross product hides that
    const QnGeVector3d tiny(1e-3, 0.0, 0.0);
    double t = UNTOUCHED;
    EXPECT_EQ(LineIntersect3d(ORIGIN, tiny, QnGePoint(1.0, 5e-4, 0.0), tiny, t), 10);
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, QnGePoint(1.0, 5e-4, 0.0), X_3D, t), 0);
}

TEST(LineIntersect3d, SkewLinesDoNotMeet) {
    double t = UNTOUCHED;
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, QnGePoint(3.0, 1.0, 2.0), QnGeVector3d(0.0, 1.0, 0.0), t), 0);
    EXPECT_EQ(t, UNTOUCHED);
}

TEST(LineIntersect3d, ParallelLinesCoincideIfTheGapRunsAlong) {
    double t = UNTOUCHED;
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, QnGePoint(3.0, 0.0, 0.0), -X_3D, t), 10);
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, QnGePoint(3.0, 1.0, 0.0), X_3D, t), 0);
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, QnGePoint(0.0, 0.0, 7.0), X_3D, t), 0);
    EXPECT_EQ(t, UNTOUCHED);
}

TEST(LineIntersect3d, ACommonBaseMeetsThere) {
    double t = UNTOUCHED;
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, ORIGIN, QnGeVector3d(0.0, 0.6, 0.8), t), 1);
    EXPECT_EQ(t, 0.0);
    EXPECT_EQ(LineIntersect3d(ORIGIN, X_3D, ORIGIN, X_3D, t), 10);
}

TEST(LineIntersect3d, TheSolutionLiesOnBothLines) {
    Random random(2506);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeVector3d v1 = RandomUnit(random);
        const QnGeVector3d v2 = RandomUnit(random);
        const QnGePoint common = random.Point(9.0);
        const double back1 = random.Real(0.1, 9.0);
        const double back2 = random.Real(0.1, 9.0);
        if ((v1 * v2).Length() < 0.1) {
            continue;
        }
        const QnGePoint p1(common.x - v1.x * back1, common.y - v1.y * back1, common.z - v1.z * back1);
        const QnGePoint p2(common.x - v2.x * back2, common.y - v2.y * back2, common.z - v2.z * back2);
        double t = UNTOUCHED;
        ASSERT_EQ(LineIntersect3d(p1, v1, p2, v2, t), 1);
        ASSERT_NEAR(t, back1, 1e-5) << PointText(v1) << PointText(v2);
    }
}

TEST(LineCirIntersect2d, CutsInTheOrderOfTheDirection) {
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, 0.0), X_2D, t1, t2), 2);
    EXPECT_EQ(t1, 2.0);
    EXPECT_EQ(t2, 4.0);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, 0.0), -X_2D, t1, t2), 2);
    EXPECT_EQ(t1, -4.0);
    EXPECT_EQ(t2, -2.0);
}

TEST(LineCirIntersect2d, TangentNearTheRadius) {
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    for (const double height : {1.0, 1.0 + 5e-7, 1.0 - 5e-7, -1.0 - 5e-7}) {
        t1 = UNTOUCHED;
        EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, height), X_2D, t1, t2), 1) << height;
        EXPECT_EQ(t1, 3.0);
    }
    EXPECT_EQ(t2, UNTOUCHED);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, 1.0 - 2e-6), X_2D, t1, t2), 2);
    EXPECT_NEAR(t1, 3.0 - 2e-3, 1e-6);
    EXPECT_NEAR(t2, 3.0 + 2e-3, 1e-6);
    t1 = t2 = UNTOUCHED;
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, 1.0 + 2e-6), X_2D, t1, t2), 0);
    EXPECT_EQ(t1, UNTOUCHED);
    EXPECT_EQ(t2, UNTOUCHED);
}

TEST(LineCirIntersect2d, TheTangentBandHasAStrictLowerEnd) {
    const QnPushVar<double> wide(g_distZero, 0.25);
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(0.0, 1.25), X_2D, t1, t2), 1);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(0.0, Above(1.25)), X_2D, t1, t2), 0);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(0.0, Above(0.75)), X_2D, t1, t2), 1);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(0.0, 0.75), X_2D, t1, t2), 2);
}

TEST(LineCirIntersect2d, KeptOddALineBesideATinyCircleTouchesIt) {
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1e-5, QnGePoint(-3.0, 2e-5), X_2D, t1, t2), 1);
    EXPECT_EQ(t1, 3.0);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1e-5, QnGePoint(-3.0, 4e-5), X_2D, t1, t2), 0);
    EXPECT_EQ(t2, UNTOUCHED);
}

TEST(LineCirIntersect2d, KeptOddALineThroughATinyCircleAnswersItsCenter) {
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1e-5, QnGePoint(0.0, 0.0), X_2D, t1, t2), 1);
    EXPECT_EQ(t1, 0.0);
    EXPECT_EQ(t2, UNTOUCHED);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 4e-5, QnGePoint(0.0, 0.0), X_2D, t1, t2), 2);
    EXPECT_NEAR(t1, -4e-5, 1e-12);
    EXPECT_NEAR(t2, 4e-5, 1e-12);
}

TEST(LineCirIntersect2d, ARootUnderTheToleranceIsOneSolution) {
    const QnPushVar<double> wide(g_fZero, 4.0);
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 3.0, QnGePoint(-7.0, 0.0), X_2D, t1, t2), 1);  // 9 is above 4, its root is not
    EXPECT_EQ(t1, 7.0);
    EXPECT_EQ(t2, UNTOUCHED);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 5.0, QnGePoint(-7.0, 0.0), X_2D, t1, t2), 2);
}

TEST(LineCirIntersect2d, PointsCarryTheLinesZ) {
    QnGePoint q1(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    QnGePoint q2(q1);
    const QnGeVector2d rising(QnGePoint(1.0, 0.0, 2.0));
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, 5.0, 10.0), rising, q1, q2), 0);
    EXPECT_EQ(q1.x, UNTOUCHED);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, 1.0, 10.0), rising, q1, q2), 1);
    EXPECT_TRUE(IsNear(q1, QnGePoint(0.0, 1.0, 16.0)));
    EXPECT_EQ(q2.x, UNTOUCHED);
    EXPECT_EQ(LineCirIntersect2d(ORIGIN, 1.0, QnGePoint(-3.0, 0.0, 10.0), rising, q1, q2), 2);
    EXPECT_TRUE(IsNear(q1, QnGePoint(-1.0, 0.0, 14.0)));
    EXPECT_TRUE(IsNear(q2, QnGePoint(1.0, 0.0, 18.0)));
}

TEST(LineCirIntersect2d, CodesFollowTheDistanceAndPointsLieOnBoth) {
    Random random(2507);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint center = random.PlanPoint(9.0);
        const double radius = random.Real(0.01, 9.0);
        const double angle = random.Real(0.0, 6.3);
        const QnGeVector2d dir(std::cos(angle), std::sin(angle));
        const QnGePoint base = random.PlanPoint(9.0);
        const double distance = std::fabs(dir.x * (center.y - base.y) - dir.y * (center.x - base.x));
        if (std::fabs(distance - radius) < 1e-5) {
            continue;
        }
        double t1 = UNTOUCHED;
        double t2 = UNTOUCHED;
        QnGePoint q1;
        QnGePoint q2;
        const int expected = distance < radius ? 2 : 0;
        ASSERT_EQ(LineCirIntersect2d(center, radius, base, dir, t1, t2), expected);
        ASSERT_EQ(LineCirIntersect2d(center, radius, base, dir, q1, q2), expected);
        if (expected == 2) {
            ASSERT_LT(t1, t2);
            ASSERT_TRUE(IsNear(q1, QnGePoint(base.x + t1 * dir.x, base.y + t1 * dir.y), 1e-12));
            ASSERT_TRUE(IsNear(q2, QnGePoint(base.x + t2 * dir.x, base.y + t2 * dir.y), 1e-12));
            ASSERT_NEAR(PlanDistance(q1, center), radius, 1e-9);
            ASSERT_NEAR(PlanDistance(q2, center), radius, 1e-9);
        }
    }
}

TEST(LinePlaneIntersect3d, MeetsInUnitsOfTheVector) {
    double t = UNTOUCHED;
    QnGePoint q;
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 2.0, -10.0, QnGePoint(1.0, 2.0, 1.0), QnGeVector3d(0.0, 3.0, 2.0), t), 1);
    EXPECT_EQ(t, 2.0);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 2.0, -10.0, QnGePoint(1.0, 2.0, 1.0), QnGeVector3d(0.0, 3.0, 2.0), q), 1);
    EXPECT_TRUE(IsExactly(q, 1.0, 8.0, 5.0));
}

TEST(LinePlaneIntersect3d, LinesAlongThePlane) {
    double t = UNTOUCHED;
    QnGePoint q(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, -5.0, QnGePoint(0.0, 0.0, 4.0), X_3D, t), 0);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, -5.0, QnGePoint(0.0, 0.0, 4.0), X_3D, q), 0);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, -5.0, QnGePoint(0.0, 0.0, 5.0), X_3D, t), 10);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, -5.0, QnGePoint(0.0, 0.0, 5.0), X_3D, q), 10);
    EXPECT_EQ(t, UNTOUCHED);
    EXPECT_EQ(q.x, UNTOUCHED);
}

TEST(LinePlaneIntersect3d, BothTestsAreUnderTheParameterTolerance) {
    double t = UNTOUCHED;
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, 0.0, QnGePoint(0.0, 0.0, 1.0), QnGeVector3d(1.0, 0.0, 1e-9), t), 0);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, 0.0, QnGePoint(0.0, 0.0, 1.0), QnGeVector3d(1.0, 0.0, 2e-9), t), 1);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, 0.0, QnGePoint(0.0, 0.0, 1e-9), X_3D, t), 10);
    EXPECT_EQ(LinePlaneIntersect3d(0.0, 0.0, 1.0, 0.0, QnGePoint(0.0, 0.0, 2e-9), X_3D, t), 0);
}

TEST(PlaneIntersect3d, TakesThePointInTheFirstCoordinatePlaneThatCan) {
    QnGePoint q;
    QnGeVector3d dir;
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, -2.0, 0.0, 1.0, 0.0, -3.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(q, 2.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(dir, 0.0, 0.0, 1.0));
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, -2.0, 0.0, 0.0, 1.0, -3.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(q, 2.0, 0.0, 3.0));
    EXPECT_TRUE(IsExactly(dir, 0.0, -1.0, 0.0));
    EXPECT_EQ(PlaneIntersect3d(0.0, 1.0, 0.0, -2.0, 0.0, 0.0, 1.0, -3.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(q, 0.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(dir, 1.0, 0.0, 0.0));
    EXPECT_EQ(PlaneIntersect3d(0.0, 0.0, 1.0, 0.0, 1.0, 0.0, 0.0, 0.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(dir, 0.0, 1.0, 0.0));
    EXPECT_TRUE(IsExactly(q, 0.0, 0.0, 0.0));
}

TEST(PlaneIntersect3d, NormalizesTheDirection) {
    QnGePoint q;
    QnGeVector3d dir;
    EXPECT_EQ(PlaneIntersect3d(3.0, 0.0, 0.0, -6.0, 0.0, 4.0, 0.0, -12.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(dir, 0.0, 0.0, 1.0));
    EXPECT_TRUE(IsExactly(q, 2.0, 3.0, 0.0));
}

TEST(PlaneIntersect3d, SlantedPlanesMeetOnBoth) {
    Random random(2513);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        double n1[3];
        double n2[3];
        for (int k = 0; k < 3; ++k) {
            n1[k] = random.Real(0.2, 2.0);
            n2[k] = -random.Real(0.2, 2.0) * (k == i % 3 ? -1.0 : 1.0);
        }
        const int missing = random.Int(0, 3);  // planes along one axis meet in it; 3: along none
        if (missing < 3) {
            n1[missing] = n2[missing] = 0.0;
        }
        const QnGeVector3d normal1(n1);
        const QnGeVector3d normal2(n2);
        const QnGeVector3d cross = normal1 * normal2;
        if (cross.Length() < 0.05) {
            continue;
        }
        const double d1 = random.Real(-5.0, 5.0);
        const double d2 = random.Real(-5.0, 5.0);
        QnGePoint q;
        QnGeVector3d dir;
        ASSERT_EQ(PlaneIntersect3d(n1[0], n1[1], n1[2], d1, n2[0], n2[1], n2[2], d2, q, dir), 10);
        ASSERT_NEAR((normal1 & q) + d1, 0.0, 1e-6);
        ASSERT_NEAR((normal2 & q) + d2, 0.0, 1e-6);
        ASSERT_TRUE(IsNear(dir, cross / cross.Length(), 1e-12));
    }
}

TEST(PlaneIntersect3d, EachDeterminantCountsAboveTheParameterTolerance) {
    QnGePoint q;
    QnGeVector3d dir;
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, -2.0, 1.0, 1e-7, 0.0, -2.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(dir, 0.0, 0.0, 1.0));
    EXPECT_TRUE(IsNear(q, QnGePoint(2.0, 0.0, 0.0)));
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, -2.0, 1.0, 0.0, 1e-7, -2.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(dir, 0.0, -1.0, 0.0));
    EXPECT_TRUE(IsNear(q, QnGePoint(2.0, 0.0, 0.0)));
    EXPECT_EQ(PlaneIntersect3d(0.0, 1.0, 0.0, -2.0, 0.0, 1.0, 1e-7, -2.0, q, dir), 10);
    EXPECT_TRUE(IsExactly(dir, 1.0, 0.0, 0.0));
    EXPECT_TRUE(IsNear(q, QnGePoint(0.0, 2.0, 0.0)));
}

TEST(PlaneIntersect3d, ParallelPlanesLeaveTheOutputs) {
    QnGePoint q(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    QnGeVector3d dir(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, -2.0, 1.0, 0.0, 0.0, -3.0, q, dir), 0);
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, -2.0, -2.0, 0.0, 0.0, 4.0, q, dir), 12);
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, 0.0, 1.0, 1e-9, 0.0, -1.0, q, dir), 0);  // 1e-9 is zero
    EXPECT_TRUE(IsExactly(q, UNTOUCHED, UNTOUCHED, UNTOUCHED));
    EXPECT_TRUE(IsExactly(dir, UNTOUCHED, UNTOUCHED, UNTOUCHED));
    EXPECT_EQ(PlaneIntersect3d(1.0, 0.0, 0.0, 0.0, 1.0, 2e-9, 0.0, -1.0, q, dir), 10);
}

TEST(PlaneIntersect3d, KeptOddParallelPlanesWithoutAnXPartCoincide) {
    QnGePoint q;
    QnGeVector3d dir;
    EXPECT_EQ(PlaneIntersect3d(0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0, -5.0, q, dir), 12);
    EXPECT_EQ(PlaneIntersect3d(0.0, 1.0, 0.0, 0.0, 0.0, 1.0, 0.0, -5.0, q, dir), 12);
}
