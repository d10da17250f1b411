// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeInterval.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

using namespace value_testing;

static_assert(std::has_virtual_destructor_v<QnGeInterval>, "deleted through its base");

namespace {

::testing::AssertionResult IsInterval(const QnGeInterval& actual, double min, double max) {
    if (actual.min == min && actual.max == max) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "[" << actual.min << ", " << actual.max << "] instead of [" << min << ", "
                                         << max << "]";
}

}  // namespace

TEST(QnGeInterval, Builds) {
    EXPECT_TRUE(IsInterval(QnGeInterval(), 0.0, 0.0));
    EXPECT_TRUE(IsInterval(QnGeInterval(1.0, 3.0), 1.0, 3.0));
    EXPECT_EQ(QnGeInterval(1.0, 3.0).Length(), 2.0);
    EXPECT_EQ(QnGeInterval(8.0, 2.0).Length(), -6.0);
}

TEST(QnGeInterval, IsValidEmptyOrReversedByItsLength) {
    struct Row {
        double length;
        bool valid, empty, reversed;
    };
    const Row rows[] = {{1.0, true, false, false},   {Above(1e-9), true, false, false},
                        {1e-9, false, true, false},  {0.0, false, true, false},
                        {-1e-9, false, true, false}, {-Above(1e-9), false, false, true},
                        {-6.0, false, false, true}};
    for (const Row& row : rows) {
        const QnGeInterval interval(0.0, row.length);
        EXPECT_EQ(interval.IsValid(), row.valid) << row.length;
        EXPECT_EQ(interval.IsEmpty(), row.empty) << row.length;
        EXPECT_EQ(interval.IsReverse(), row.reversed) << row.length;
    }
}

TEST(QnGeInterval, ComparesUnderTheParameterTolerance) {
    EXPECT_TRUE(QnGeInterval(0.0, 0.0) == QnGeInterval(1e-9, -1e-9));
    EXPECT_FALSE(QnGeInterval(0.0, 0.0) == QnGeInterval(Above(1e-9), 0.0));
    EXPECT_FALSE(QnGeInterval(0.0, 0.0) == QnGeInterval(0.0, Above(1e-9)));
}

TEST(QnGeInterval, OrdersByStartOnly) {
    const QnGeInterval early(0.0, 100.0);
    EXPECT_TRUE(QnGeInterval(1.0, 2.0) > early);
    EXPECT_TRUE(early < QnGeInterval(1.0, 2.0));
    EXPECT_FALSE(early > QnGeInterval(0.0, 1.0));
    EXPECT_FALSE(early < QnGeInterval(0.0, 1.0));
    EXPECT_FALSE(QnGeInterval(1e-9, 1.0) > early);
    EXPECT_TRUE(QnGeInterval(Above(1e-9), 1.0) > early);
}

TEST(QnGeInterval, HullAndOverlap) {
    const QnGeInterval a(0.0, 2.0);
    const QnGeInterval b(1.0, 5.0);
    EXPECT_TRUE(IsInterval(a + b, 0.0, 5.0));
    EXPECT_TRUE(IsInterval(a & b, 1.0, 2.0));
    QnGeInterval hull(a);
    hull += b;
    EXPECT_TRUE(IsInterval(hull, 0.0, 5.0));
    QnGeInterval overlap(a);
    overlap &= b;
    EXPECT_TRUE(IsInterval(overlap, 1.0, 2.0));
    EXPECT_TRUE(IsInterval(QnGeInterval(0.0, 1.0) & QnGeInterval(3.0, 4.0), 3.0, 1.0));
}

TEST(QnGeInterval, KeptOddIsIntersectWithAnswersTheOpposite) {
    EXPECT_FALSE(QnGeInterval(0.0, 2.0).IsIntersectWith(QnGeInterval(1.0, 5.0)));
    EXPECT_TRUE(QnGeInterval(0.0, 1.0).IsIntersectWith(QnGeInterval(3.0, 4.0)));
    EXPECT_TRUE(QnGeInterval(0.0, 1.0).IsIntersectWith(QnGeInterval(1.0, 2.0)));
    EXPECT_TRUE(QnGeInterval(-1.0, 1e-9).IsIntersectWith(QnGeInterval(0.0, 2.0)));
    EXPECT_FALSE(QnGeInterval(-1.0, Above(1e-9)).IsIntersectWith(QnGeInterval(0.0, 2.0)));
}

TEST(QnGeInterval, ConbineTakesTheHullIfTheyTouch) {
    QnGeInterval a(0.0, 2.0);
    EXPECT_TRUE(a.Conbine(QnGeInterval(1.0, 5.0)));
    EXPECT_TRUE(IsInterval(a, 0.0, 5.0));
    EXPECT_TRUE(a.Conbine(QnGeInterval(5.0, 6.0)));
    EXPECT_TRUE(IsInterval(a, 0.0, 6.0));
    EXPECT_TRUE(a.Conbine(QnGeInterval(2.0, 3.0)));
    EXPECT_TRUE(IsInterval(a, 0.0, 6.0));
    EXPECT_FALSE(a.Conbine(QnGeInterval(7.0, 8.0)));
    EXPECT_TRUE(IsInterval(a, 0.0, 6.0));
}

TEST(QnGeInterval, ConbineBridgesAGapOfTheTolerance) {
    QnGeInterval a(-1.0, 0.0);
    EXPECT_FALSE(a.Conbine(QnGeInterval(Above(1e-9), 1.0)));
    EXPECT_TRUE(IsInterval(a, -1.0, 0.0));
    EXPECT_TRUE(a.Conbine(QnGeInterval(1e-9, 1.0)));
    EXPECT_TRUE(IsInterval(a, -1.0, 1.0));
}

TEST(QnGeInterval, SubtractByCutsWithoutAnyTest) {
    QnGeInterval left;
    QnGeInterval right;
    QnGeInterval(0.0, 3.0).SubtractBy(QnGeInterval(1.0, 2.0), left, right);
    EXPECT_TRUE(IsInterval(left, 0.0, 1.0));
    EXPECT_TRUE(IsInterval(right, 2.0, 3.0));
    QnGeInterval(0.0, 3.0).SubtractBy(QnGeInterval(-1.0, 5.0), left, right);
    EXPECT_TRUE(IsInterval(left, 0.0, -1.0));
    EXPECT_TRUE(IsInterval(right, 5.0, 3.0));
}

TEST(QnGeInterval, SubtractByMayReplaceTheIntervalItself) {
    QnGeInterval whole(0.0, 3.0);
    QnGeInterval right;
    whole.SubtractBy(QnGeInterval(1.0, 2.0), whole, right);
    EXPECT_TRUE(IsInterval(whole, 0.0, 1.0));
    EXPECT_TRUE(IsInterval(right, 2.0, 3.0));
    QnGeInterval cut(1.0, 2.0);
    QnGeInterval(0.0, 3.0).SubtractBy(cut, cut, right);
    EXPECT_TRUE(IsInterval(cut, 0.0, 1.0));
    EXPECT_TRUE(IsInterval(right, 2.0, 3.0));
}

TEST(QnGeInterval, SplitCutsAtAParameter) {
    QnGeInterval left;
    QnGeInterval right;
    QnGeInterval(0.0, 3.0).Split(1.0, left, right);
    EXPECT_TRUE(IsInterval(left, 0.0, 1.0));
    EXPECT_TRUE(IsInterval(right, 1.0, 3.0));
    QnGeInterval whole(0.0, 3.0);
    whole.Split(2.0, whole, right);
    EXPECT_TRUE(IsInterval(whole, 0.0, 2.0));
    EXPECT_TRUE(IsInterval(right, 2.0, 3.0));
}

TEST(QnGeInterval, ValidateBreaksAReversedIntervalAtTheSeam) {
    QnGeInterval first;
    QnGeInterval second;
    QnGeInterval(8.0, 2.0).Validate(10.0, first, second);
    EXPECT_TRUE(IsInterval(first, 0.0, 2.0));
    EXPECT_TRUE(IsInterval(second, 8.0, 10.0));
}

TEST(QnGeInterval, ValidateEmptiesAFirstPartBelowTheSeam) {
    QnGeInterval first;
    QnGeInterval second;
    QnGeInterval(5.0, -3.0).Validate(10.0, first, second);
    EXPECT_TRUE(IsInterval(first, 0.0, 0.0));
    EXPECT_TRUE(IsInterval(second, 5.0, 10.0));
    QnGeInterval(5.0, -1e-9).Validate(10.0, first, second);
    EXPECT_TRUE(IsInterval(first, 0.0, -1e-9));
}

TEST(QnGeInterval, KeptOddValidateOfAStartBeyondThePeriodCoversIt) {
    QnGeInterval first;
    QnGeInterval second;
    QnGeInterval(12.0, 3.0).Validate(10.0, first, second);
    EXPECT_TRUE(IsInterval(first, 0.0, 3.0));
    EXPECT_TRUE(IsInterval(second, 0.0, 10.0));
}

TEST(QnGeInterval, ReadsTheToleranceAtEachUse) {
    const QnPushVar<double> wide(g_fZero, 0.5);
    EXPECT_TRUE(QnGeInterval(0.0, 0.5).IsEmpty());
    EXPECT_TRUE(QnGeInterval(0.0, 1.0) == QnGeInterval(0.5, 0.5));
    EXPECT_FALSE(QnGeInterval(0.5, 1.0) > QnGeInterval(0.0, 1.0));
}
