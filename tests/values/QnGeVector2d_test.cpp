// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeVector2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"

using namespace value_testing;

static_assert(std::is_convertible_v<QnGePoint, QnGeVector2d>, "a point passes where a vector is asked for");
static_assert(sizeof(QnGeVector2d) == sizeof(QnGePoint), "no fields of its own");
static_assert(!std::is_polymorphic_v<QnGeVector2d>, "no virtual operations");
static_assert(std::is_same_v<decltype(QnGeVector2d() + QnGePoint()), QnGeVector2d>, "sums stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector2d() - QnGePoint()), QnGeVector2d>, "differences stay vectors");
static_assert(std::is_same_v<decltype(-QnGeVector2d()), QnGeVector2d>, "opposites stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector2d() * 2.0), QnGeVector2d>, "multiples stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector2d() / 2.0), QnGeVector2d>, "quotients stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector2d() * QnGePoint()), double>, "the cross product is a number");
static_assert(std::is_same_v<decltype(QnGeVector2d() & QnGePoint()), double>, "the dot product is a number");

namespace {

QnGeVector2d WithZ(double x, double y, double z) {
    return QnGeVector2d(QnGePoint(x, y, z));
}

}  // namespace

TEST(QnGeVector2d, Builds) {
    const double doubles[3] = {1.5, 2.5, 99.0};
    const float floats[3] = {4.5F, 5.5F, 99.0F};
    EXPECT_TRUE(IsExactly(QnGeVector2d(), 0.0, 0.0, 0.0));
    EXPECT_TRUE(IsExactly(QnGeVector2d(1.0, 2.0), 1.0, 2.0, 0.0));
    EXPECT_TRUE(IsExactly(QnGeVector2d(doubles), 1.5, 2.5, 0.0));
    EXPECT_TRUE(IsExactly(QnGeVector2d(floats), 4.5, 5.5, 0.0));
    EXPECT_TRUE(IsExactly(QnGeVector2d(QnGePoint(1.0, 2.0, 3.0)), 1.0, 2.0, 3.0));
}

TEST(QnGeVector2d, BetweenTwoPointsKeepsAllCoordinates) {
    const QnGeVector2d v(QnGePoint(1.0, 2.0, 3.0), QnGePoint(5.0, 7.0, 9.0));
    EXPECT_TRUE(IsExactly(v, 4.0, 5.0, 6.0));
}

TEST(QnGeVector2d, CreateFromAngleKeepsZ) {
    QnGeVector2d v = WithZ(9.0, 9.0, 5.0);
    v.CreateFromAngle(EXACT_PI / 6.0);
    EXPECT_TRUE(IsNear(v, QnGePoint(std::sqrt(0.75), 0.5, 5.0), 1e-15));
}

TEST(QnGeVector2d, ReverseNegatesThePlanOnly) {
    QnGeVector2d v = WithZ(1.0, -2.0, 5.0);
    v.Reverse();
    EXPECT_TRUE(IsExactly(v, -1.0, 2.0, 5.0));
}

TEST(QnGeVector2d, LengthIsThePlanLength) {
    EXPECT_EQ(WithZ(3.0, 4.0, 12.0).Length(), 5.0);
}

TEST(QnGeVector2d, AssigningFormsWorkOnThePlanOnly) {
    QnGeVector2d v = WithZ(1.0, 2.0, 7.0);
    v += QnGePoint(1.0, 1.0, 1.0);
    EXPECT_TRUE(IsExactly(v, 2.0, 3.0, 7.0));
    v -= QnGePoint(4.0, 4.0, 4.0);
    EXPECT_TRUE(IsExactly(v, -2.0, -1.0, 7.0));
    v *= 4.0;
    EXPECT_TRUE(IsExactly(v, -8.0, -4.0, 7.0));
    v /= 2.0;
    EXPECT_TRUE(IsExactly(v, -4.0, -2.0, 7.0));
}

TEST(QnGeVector2d, OperatorsDropZ) {
    const QnGeVector2d v = WithZ(1.0, 2.0, 7.0);
    EXPECT_TRUE(IsExactly(-v, -1.0, -2.0, 0.0));
    EXPECT_TRUE(IsExactly(v + QnGePoint(1.0, 1.0, 1.0), 2.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(v - QnGePoint(1.0, 1.0, 1.0), 0.0, 1.0, 0.0));
    EXPECT_TRUE(IsExactly(v * 3.0, 3.0, 6.0, 0.0));
    EXPECT_TRUE(IsExactly(v / 2.0, 0.5, 1.0, 0.0));
}

TEST(QnGeVector2d, DotAndCrossAreInThePlan) {
    const QnGeVector2d v = WithZ(2.0, 3.0, 100.0);
    const QnGePoint p(5.0, 7.0, 100.0);
    EXPECT_EQ(v & p, 31.0);
    EXPECT_EQ(v * p, -1.0);
    EXPECT_EQ(QnGeVector2d(1.0, 0.0) * QnGeVector2d(0.0, 1.0), 1.0);
}

TEST(QnGeVector2d, NormalsTurnByAQuarter) {
    const QnGeVector2d v = WithZ(2.0, 3.0, 7.0);
    QnGeVector2d left = WithZ(9.0, 9.0, 9.0);
    QnGeVector2d right = WithZ(9.0, 9.0, 9.0);
    v.GetLeftVertVector(left);
    v.GetRightVertVector(right);
    EXPECT_TRUE(IsExactly(left, -3.0, 2.0, 0.0));
    EXPECT_TRUE(IsExactly(right, 3.0, -2.0, 0.0));
}

TEST(QnGeVector2d, NormalsMayReplaceTheVectorItself) {
    QnGeVector2d v(2.0, 3.0);
    v.GetLeftVertVector(v);
    EXPECT_TRUE(IsExactly(v, -3.0, 2.0, 0.0));
    v.GetRightVertVector(v);
    EXPECT_TRUE(IsExactly(v, 2.0, 3.0, 0.0));
}

TEST(QnGeVector2d, AngleRunsCounterClockwiseFromX) {
    EXPECT_EQ(QnGeVector2d(1.0, 0.0).GetAngle(), 0.0);
    EXPECT_NEAR(QnGeVector2d(5.0, 5.0).GetAngle(), EXACT_PI / 4.0, 1e-15);
    EXPECT_EQ(QnGeVector2d(0.0, 2.0).GetAngle(), QN_HALF_PI);
    EXPECT_EQ(QnGeVector2d(-3.0, 0.0).GetAngle(), QN_PI);
    EXPECT_EQ(QnGeVector2d(0.0, -1.0).GetAngle(), QN_TWO_PI - QN_HALF_PI);
}

TEST(QnGeVector2d, AngleOfANullVectorIsZero) {
    EXPECT_EQ(QnGeVector2d(0.0, 0.0).GetAngle(), 0.0);
    EXPECT_EQ(QnGeVector2d(0.0, -1e-9).GetAngle(), 0.0);  // the length is not above the tolerance
    EXPECT_EQ(QnGeVector2d(0.0, -2e-9).GetAngle(), QN_TWO_PI - QN_HALF_PI);
}

TEST(QnGeVector2d, KeptOddAngleJustBelowXIsTheFullTurn) {
    EXPECT_EQ(QnGeVector2d(1.0, -1e-20).GetAngle(), QN_TWO_PI);
}

TEST(QnGeVector2d, SetLengthScalesAllCoordinates) {
    QnGeVector2d v = WithZ(3.0, 4.0, 20.0);
    v.SetLength(10.0);
    EXPECT_TRUE(IsNear(v, QnGePoint(6.0, 8.0, 40.0)));
    v.SetLength(-5.0);
    EXPECT_TRUE(IsNear(v, QnGePoint(-3.0, -4.0, -20.0)));
}

TEST(QnGeVector2d, SetLengthLeavesANullVector) {
    QnGeVector2d null = WithZ(0.0, 0.0, 5.0);
    null.SetLength(10.0);
    EXPECT_TRUE(IsExactly(null, 0.0, 0.0, 5.0));
    QnGeVector2d tiny(1e-9, 0.0);
    tiny.SetLength(10.0);
    EXPECT_TRUE(IsExactly(tiny, 1e-9, 0.0, 0.0));
}

TEST(QnGeVector2d, NormalizeDividesAllCoordinatesByThePlanLength) {
    QnGeVector2d v = WithZ(3.0, 4.0, 10.0);
    EXPECT_TRUE(v.Normalize());
    EXPECT_TRUE(IsNear(v, QnGePoint(0.6, 0.8, 2.0), 1e-15));
}

TEST(QnGeVector2d, NormalizeLeavesANullVector) {
    QnGeVector2d tiny(0.0, 1e-9);
    EXPECT_FALSE(tiny.Normalize());
    EXPECT_TRUE(IsExactly(tiny, 0.0, 1e-9, 0.0));
}

TEST(QnGeVector2d, KeptOddAnInvalidVectorMayBeNormalized) {
    QnGeVector2d v(1e-7, 0.0);
    EXPECT_FALSE(v.IsValid());
    EXPECT_TRUE(v.IsNullVector());
    EXPECT_TRUE(v.Normalize());
    EXPECT_TRUE(IsNear(v, QnGePoint(1.0, 0.0, 0.0), 1e-15));
}

TEST(QnGeVector2d, ValidityIsByLength) {
    EXPECT_FALSE(QnGeVector2d(1e-6, 0.0).IsValid());
    EXPECT_TRUE(QnGeVector2d(1e-6, 0.0).IsNullVector());
    EXPECT_TRUE(QnGeVector2d(1.0000001e-6, 0.0).IsValid());
    EXPECT_FALSE(QnGeVector2d(1.0000001e-6, 0.0).IsNullVector());
    EXPECT_FALSE(WithZ(0.0, 0.0, 5.0).IsValid());  // z takes no part
    EXPECT_TRUE(QnGeVector2d(0.6, 0.8).IsNormalized());
    EXPECT_TRUE(QnGeVector2d(1.0 + 9e-7, 0.0).IsNormalized());
    EXPECT_FALSE(QnGeVector2d(1.0 + 2e-6, 0.0).IsNormalized());
    EXPECT_FALSE(QnGeVector2d(1.0 - 2e-6, 0.0).IsNormalized());
}

TEST(QnGeVector2d, CrossProductDecidesParallelLeftAndRight) {
    const QnGeVector2d x(1.0, 0.0);
    struct Row {
        double cross;
        bool parallel, left, right;
    };
    const Row rows[] = {{0.0, true, false, false},          {1e-9, true, false, false},
                        {-1e-9, true, false, false},        {Above(1e-9), false, true, false},
                        {-Above(1e-9), false, false, true}, {1.0, false, true, false},
                        {-1.0, false, false, true}};
    for (const Row& row : rows) {
        const QnGeVector2d v(1.0, row.cross);
        EXPECT_EQ(x.IsParallelWith(v, true), row.parallel) << row.cross;
        EXPECT_EQ(x.IsVectorAtLeft(v, true), row.left) << row.cross;
        EXPECT_EQ(x.IsVectorAtRight(v, true), row.right) << row.cross;
    }
}

TEST(QnGeVector2d, DotProductDecidesVerticalSameAndReverse) {
    const QnGeVector2d x(1.0, 0.0);
    struct Row {
        double dot;
        bool vertical, same, reverse;
    };
    const Row rows[] = {{0.0, true, false, false},          {1e-9, true, false, false},
                        {-1e-9, true, false, false},        {Above(1e-9), false, true, false},
                        {-Above(1e-9), false, false, true}, {1.0, false, true, false},
                        {-1.0, false, false, true}};
    for (const Row& row : rows) {
        const QnGeVector2d v(row.dot, 1.0);
        EXPECT_EQ(x.IsVertWith(v, true), row.vertical) << row.dot;
        EXPECT_EQ(x.IsSameDirection(v, true), row.same) << row.dot;
        EXPECT_EQ(x.IsReverseDirection(v, true), row.reverse) << row.dot;
    }
}

TEST(QnGeVector2d, OppositeVectorsAreParallel) {
    EXPECT_TRUE(QnGeVector2d(2.0, 0.0).IsParallelWith(QnGeVector2d(-5.0, 0.0), false));
}

TEST(QnGeVector2d, KeptOddSameDirectionIsMerelyLessThanAQuarterTurn) {
    EXPECT_TRUE(QnGeVector2d(1.0, 0.0).IsSameDirection(QnGeVector2d(1.0, 1.0), false));
    EXPECT_TRUE(QnGeVector2d(1.0, 0.0).IsReverseDirection(QnGeVector2d(-1.0, 50.0), false));
}

TEST(QnGeVector2d, RelationsNormalizeCopiesUnlessTold) {
    const QnGeVector2d v(1e-5, 0.0);
    const QnGeVector2d w(0.0, 1e-5);
    EXPECT_FALSE(v.IsParallelWith(w, false));
    EXPECT_TRUE(v.IsParallelWith(w, true));  // the raw cross product is 1e-10
    EXPECT_TRUE(v.IsVectorAtLeft(w, false));
    EXPECT_FALSE(v.IsVectorAtLeft(w, true));
    EXPECT_TRUE(w.IsVectorAtRight(v, false));
    EXPECT_TRUE(IsExactly(v, 1e-5, 0.0, 0.0));
    EXPECT_TRUE(IsExactly(w, 0.0, 1e-5, 0.0));
}

TEST(QnGeVector2d, KeptOddNullVectorIsParallelAndVerticalToEverything) {
    const QnGeVector2d null;
    const QnGeVector2d v(3.0, 4.0);
    for (const bool normalized : {false, true}) {
        EXPECT_TRUE(null.IsParallelWith(v, normalized));
        EXPECT_TRUE(null.IsVertWith(v, normalized));
        EXPECT_TRUE(v.IsParallelWith(null, normalized));
        EXPECT_TRUE(v.IsVertWith(null, normalized));
    }
}

TEST(QnGeVector2d, KeptOddAngleWithMeasuresTheClockwiseTurn) {
    EXPECT_EQ(QnGeVector2d(1.0, 0.0).GetAngleWith(QnGeVector2d(0.0, 1.0), true), QN_TWO_PI - QN_HALF_PI);
    EXPECT_EQ(QnGeVector2d(1.0, 0.0).GetAngleWith(QnGeVector2d(0.0, -1.0), true), QN_HALF_PI);
    EXPECT_EQ(QnGeVector2d(2.0, 0.0).GetAngleWith(QnGeVector2d(0.0, -5.0), false), QN_HALF_PI);
    EXPECT_EQ(QnGeVector2d(1.0, 0.0).GetAngleWith(QnGeVector2d(-1.0, 0.0), true), QN_PI);
    EXPECT_EQ(QnGeVector2d(1.0, 0.0).GetAngleWith(QnGeVector2d(1.0, 0.0), true), 0.0);
}

TEST(QnGeVector2d, KeptOddAngleWithASliverToTheLeftIsTheFullTurn) {
    EXPECT_EQ(QnGeVector2d(1.0, 0.0).GetAngleWith(QnGeVector2d(1.0, 5e-9), true), QN_TWO_PI);
}

TEST(QnGeVector2d, AnglesAgreeWithTheArcTangent) {
    Random random(2102);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeVector2d v(random.PlanPoint(10.0));
        const QnGeVector2d w(random.PlanPoint(10.0));
        if (v.Length() < 0.01 || w.Length() < 0.01) {
            continue;
        }
        double expected = std::atan2(v.y, v.x);
        expected = expected < 0.0 ? expected + 2.0 * EXACT_PI : expected;
        ASSERT_NEAR(v.GetAngle(), expected, 1e-7) << PointText(v);
        ASSERT_LE(v.GetAngle(), QN_TWO_PI);

        double clockwise = std::atan2(w.x * v.y - w.y * v.x, v.x * w.x + v.y * w.y);
        clockwise = clockwise < 0.0 ? clockwise + 2.0 * EXACT_PI : clockwise;
        const double turn = v.GetAngleWith(w, false);
        ASSERT_LE(turn, QN_TWO_PI);
        ASSERT_GE(turn, 0.0);
        const double gap = std::fabs(turn - clockwise);
        ASSERT_TRUE(gap < 1e-7 || std::fabs(gap - 2.0 * EXACT_PI) < 1e-7) << PointText(v) << PointText(w);
    }
}
