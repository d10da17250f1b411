// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeVector3d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"

using namespace value_testing;

static_assert(std::is_convertible_v<QnGePoint, QnGeVector3d>, "a point passes where a vector is asked for");
static_assert(sizeof(QnGeVector3d) == sizeof(QnGePoint), "no fields of its own");
static_assert(!std::is_polymorphic_v<QnGeVector3d>, "no virtual operations");
static_assert(std::is_same_v<decltype(QnGeVector3d() + QnGePoint()), QnGeVector3d>, "sums stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector3d() - QnGePoint()), QnGeVector3d>, "differences stay vectors");
static_assert(std::is_same_v<decltype(-QnGeVector3d()), QnGeVector3d>, "opposites stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector3d() * 2.0), QnGeVector3d>, "multiples stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector3d() / 2.0), QnGeVector3d>, "quotients stay vectors");
static_assert(std::is_same_v<decltype(QnGeVector3d() * QnGePoint()), QnGeVector3d>, "the cross product is a vector");
static_assert(std::is_same_v<decltype(QnGeVector3d() & QnGePoint()), double>, "the dot product is a number");

TEST(QnGeVector3d, Builds) {
    const double doubles[3] = {1.5, 2.5, 3.5};
    const float floats[3] = {4.5F, 5.5F, 6.5F};
    EXPECT_TRUE(IsExactly(QnGeVector3d(), 0.0, 0.0, 0.0));
    EXPECT_TRUE(IsExactly(QnGeVector3d(1.0, 2.0, 3.0), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(QnGeVector3d(doubles), 1.5, 2.5, 3.5));
    EXPECT_TRUE(IsExactly(QnGeVector3d(floats), 4.5, 5.5, 6.5));
    EXPECT_TRUE(IsExactly(QnGeVector3d(QnGePoint(1.0, 2.0, 3.0)), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(QnGeVector3d(QnGePoint(1.0, 2.0, 3.0), QnGePoint(5.0, 7.0, 9.0)), 4.0, 5.0, 6.0));
}

TEST(QnGeVector3d, OperatorsWorkOnAllCoordinates) {
    const QnGeVector3d v(1.0, 2.0, 4.0);
    EXPECT_TRUE(IsExactly(-v, -1.0, -2.0, -4.0));
    EXPECT_TRUE(IsExactly(v + QnGePoint(1.0, 1.0, 1.0), 2.0, 3.0, 5.0));
    EXPECT_TRUE(IsExactly(v - QnGePoint(1.0, 1.0, 1.0), 0.0, 1.0, 3.0));
    EXPECT_TRUE(IsExactly(v * 3.0, 3.0, 6.0, 12.0));
    EXPECT_TRUE(IsExactly(v / 2.0, 0.5, 1.0, 2.0));
}

TEST(QnGeVector3d, AssigningFormsWorkOnAllCoordinates) {
    QnGeVector3d v(1.0, 2.0, 3.0);
    v += QnGePoint(1.0, 1.0, 1.0);
    v *= 4.0;
    EXPECT_TRUE(IsExactly(v, 8.0, 12.0, 16.0));
    v -= QnGePoint(2.0, 2.0, 2.0);
    v /= 2.0;
    EXPECT_TRUE(IsExactly(v, 3.0, 5.0, 7.0));
}

TEST(QnGeVector3d, CrossAndDotProduct) {
    const QnGeVector3d v(1.0, 2.0, 3.0);
    const QnGePoint w(4.0, 5.0, 7.0);
    EXPECT_TRUE(IsExactly(v * w, -1.0, 5.0, -3.0));
    EXPECT_EQ(v & w, 35.0);
    EXPECT_TRUE(IsExactly(QnGeVector3d(1.0, 0.0, 0.0) * QnGePoint(0.0, 1.0, 0.0), 0.0, 0.0, 1.0));
}

TEST(QnGeVector3d, LengthAndReverseUseAllCoordinates) {
    QnGeVector3d v(3.0, 4.0, -12.0);
    EXPECT_EQ(v.Length(), 13.0);
    v.Reverse();
    EXPECT_TRUE(IsExactly(v, -3.0, -4.0, 12.0));
}

TEST(QnGeVector3d, SetLengthScalesOrLeavesANullVector) {
    QnGeVector3d v(3.0, 4.0, 12.0);
    v.SetLength(26.0);
    EXPECT_TRUE(IsNear(v, QnGePoint(6.0, 8.0, 24.0)));
    QnGeVector3d null;
    null.SetLength(10.0);
    EXPECT_TRUE(IsExactly(null, 0.0, 0.0, 0.0));
    QnGeVector3d tiny(0.0, 0.0, 1e-9);
    tiny.SetLength(10.0);
    EXPECT_TRUE(IsExactly(tiny, 0.0, 0.0, 1e-9));
}

TEST(QnGeVector3d, NormalizeAnswersWhetherItDid) {
    QnGeVector3d v(2.0, 3.0, 6.0);
    EXPECT_TRUE(v.Normalize());
    EXPECT_TRUE(IsNear(v, QnGePoint(2.0 / 7.0, 3.0 / 7.0, 6.0 / 7.0), 1e-15));
    QnGeVector3d tiny(0.0, 1e-9, 0.0);
    EXPECT_FALSE(tiny.Normalize());
    EXPECT_TRUE(IsExactly(tiny, 0.0, 1e-9, 0.0));
}

TEST(QnGeVector3d, KeptOddAnInvalidVectorMayBeNormalized) {
    QnGeVector3d v(1e-7, 0.0, 0.0);
    EXPECT_FALSE(v.IsValid());
    EXPECT_TRUE(v.Normalize());
    EXPECT_TRUE(IsNear(v, QnGePoint(1.0, 0.0, 0.0), 1e-15));
}

TEST(QnGeVector3d, ValidityIsByLength) {
    EXPECT_FALSE(QnGeVector3d(0.0, 0.0, 1e-6).IsValid());
    EXPECT_TRUE(QnGeVector3d(0.0, 0.0, 1e-6).IsNullVector());
    EXPECT_TRUE(QnGeVector3d(0.0, 0.0, 1.0000001e-6).IsValid());
    EXPECT_FALSE(QnGeVector3d(0.0, 0.0, 1.0000001e-6).IsNullVector());
    EXPECT_TRUE(QnGeVector3d(0.0, 0.6, 0.8).IsNormalized());
    EXPECT_FALSE(QnGeVector3d(0.0, 0.0, 1.0 + 2e-6).IsNormalized());
    EXPECT_FALSE(QnGeVector3d(0.0, 0.0, 1.0 - 2e-6).IsNormalized());
}

TEST(QnGeVector3d, ParallelIsUnderTheLengthTolerance) {
    const QnGeVector3d x(1.0, 0.0, 0.0);
    EXPECT_TRUE(x.IsParallelWith(QnGeVector3d(1.0, 1e-6, 0.0), true));
    EXPECT_TRUE(x.IsParallelWith(QnGeVector3d(-1.0, 0.0, 1e-6), true));
    EXPECT_FALSE(x.IsParallelWith(QnGeVector3d(1.0, 1.0000001e-6, 0.0), true));
    EXPECT_TRUE(x.IsParallelWith(QnGeVector3d(-8.0, 0.0, 0.0), false));
    EXPECT_FALSE(x.IsParallelWith(QnGeVector3d(5.0, 0.0, 5.0), false));
}

TEST(QnGeVector3d, DotProductDecidesVerticalSameAndReverse) {
    const QnGeVector3d x(1.0, 0.0, 0.0);
    struct Row {
        double dot;
        bool vertical, same, reverse;
    };
    const Row rows[] = {{1e-9, true, false, false},
                        {-1e-9, true, false, false},
                        {Above(1e-9), false, true, false},
                        {-Above(1e-9), false, false, true}};
    for (const Row& row : rows) {
        const QnGeVector3d v(row.dot, 0.0, 1.0);
        EXPECT_EQ(x.IsVertWith(v, true), row.vertical) << row.dot;
        EXPECT_EQ(x.IsSameDirection(v, true), row.same) << row.dot;
        EXPECT_EQ(x.IsReverseDirection(v, true), row.reverse) << row.dot;
    }
}

TEST(QnGeVector3d, RelationsNormalizeCopiesUnlessTold) {
    const QnGeVector3d v(1e-5, 0.0, 0.0);
    const QnGeVector3d w(1e-5, 1e-5, 0.0);
    EXPECT_FALSE(v.IsVertWith(w, false));
    EXPECT_TRUE(v.IsVertWith(w, true));  // the raw dot product is 1e-10
    EXPECT_TRUE(v.IsSameDirection(w, false));
    EXPECT_TRUE(v.IsReverseDirection(-w, false));
    EXPECT_FALSE(v.IsParallelWith(w, false));
    EXPECT_TRUE(v.IsParallelWith(w, true));
    EXPECT_TRUE(IsExactly(v, 1e-5, 0.0, 0.0));
}

TEST(QnGeVector3d, AngleIsBetweenZeroAndPi) {
    const QnGeVector3d x(1.0, 0.0, 0.0);
    EXPECT_EQ(x.GetAngleWith(QnGeVector3d(0.0, 1.0, 0.0), true), QN_HALF_PI);
    EXPECT_EQ(x.GetAngleWith(QnGeVector3d(0.0, -1.0, 0.0), true), QN_HALF_PI);
    EXPECT_EQ(x.GetAngleWith(QnGeVector3d(-7.0, 0.0, 0.0), false), QN_PI);
    EXPECT_NEAR(x.GetAngleWith(QnGeVector3d(3.0, 0.0, 3.0), false), EXACT_PI / 4.0, 1e-15);
}

TEST(QnGeVector3d, VerticalVectorByTheArbitraryAxisRule) {
    QnGeVector3d out;
    EXPECT_TRUE(QnGeVector3d(0.0, 0.0, 1.0).GetVertVector(out));
    EXPECT_TRUE(IsExactly(out, 1.0, 0.0, 0.0));
    EXPECT_TRUE(QnGeVector3d(0.0, 0.0, -1.0).GetVertVector(out));
    EXPECT_TRUE(IsExactly(out, -1.0, 0.0, 0.0));
    EXPECT_TRUE(QnGeVector3d(1.0, 0.0, 0.0).GetVertVector(out));
    EXPECT_TRUE(IsExactly(out, 0.0, 1.0, 0.0));
    EXPECT_TRUE(QnGeVector3d(0.0, 5.0, 0.0).GetVertVector(out));
    EXPECT_TRUE(IsExactly(out, -1.0, 0.0, 0.0));
}

TEST(QnGeVector3d, VerticalVectorChangesTheRuleAtOneSixtyFourth) {
    QnGeVector3d out;
    EXPECT_TRUE(QnGeVector3d(0.0157, 0.0, 1.0).GetVertVector(out));  // x is 0.015698... after normalising
    EXPECT_TRUE(IsExactly(out, 0.0, 1.0, 0.0));
    EXPECT_TRUE(QnGeVector3d(0.0, -0.0157, 1.0).GetVertVector(out));
    EXPECT_TRUE(IsExactly(out, 1.0, 0.0, 0.0));
    EXPECT_TRUE(QnGeVector3d(0.0156, 0.0, 1.0).GetVertVector(out));
    EXPECT_NEAR(out.y, 0.0, 0.0);
    EXPECT_NEAR(out.z, -0.0156, 1e-5);
    EXPECT_TRUE(QnGeVector3d(0.0, 0.0156, 1.0).GetVertVector(out));
    EXPECT_TRUE(IsNear(out, QnGePoint(1.0, 0.0, 0.0), 1e-15));
}

TEST(QnGeVector3d, VerticalVectorOfANullVectorFailsAndLeavesTheOutput) {
    QnGeVector3d out(7.0, 8.0, 9.0);
    EXPECT_FALSE(QnGeVector3d().GetVertVector(out));
    EXPECT_TRUE(IsExactly(out, 7.0, 8.0, 9.0));
}

TEST(QnGeVector3d, VerticalVectorMayReplaceTheVectorItself) {
    QnGeVector3d v(0.0, 0.0, 3.0);
    EXPECT_TRUE(v.GetVertVector(v));
    EXPECT_TRUE(IsExactly(v, 1.0, 0.0, 0.0));
}

TEST(QnGeVector3d, VerticalVectorIsAUnitVectorAtRightAngles) {
    Random random(2103);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const double flat = random.Coin() ? 1.0 : 0.02;  // the second kind lies near the z axis
        const QnGeVector3d v(random.Real(-flat, flat), random.Real(-flat, flat), random.Real(-1.0, 1.0));
        if (v.Length() < 1e-3) {
            continue;
        }
        QnGeVector3d out;
        ASSERT_TRUE(v.GetVertVector(out));
        ASSERT_NEAR(v.x * out.x + v.y * out.y + v.z * out.z, 0.0, 1e-15) << PointText(v);
        ASSERT_NEAR(std::hypot(out.x, out.y, out.z), 1.0, 1e-15) << PointText(v);
    }
}

TEST(QnGeVector3d, CrossProductIsPerpendicularAndAnglesAgree) {
    Random random(2104);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeVector3d v(random.Point(10.0));
        const QnGeVector3d w(random.Point(10.0));
        const QnGeVector3d cross = v * w;
        ASSERT_NEAR(cross & v, 0.0, 1e-11);
        ASSERT_NEAR(cross & w, 0.0, 1e-11);
        const double expected = std::atan2(std::hypot(cross.x, cross.y, cross.z), v & w);
        ASSERT_NEAR(v.GetAngleWith(w, false), expected, 1e-7) << PointText(v) << PointText(w);
    }
}
