// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeExtent.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

using namespace value_testing;

static_assert(std::has_virtual_destructor_v<QnGeExtent>, "its only virtual operation");
static_assert(std::is_same_v<decltype(QnGeExtent() + QnGeExtent()), QnGeExtent>, "the hull is an extent");
static_assert(std::is_same_v<decltype(QnGeExtent() & QnGeExtent()), QnGeExtent>, "the overlap is an extent");

namespace {

/// The answers of one pair under a tolerance of a quarter, so that every difference is exact.
struct PairRow {
    QnGeExtent first, second;
    bool above, aboveOrTouching, below, belowOrTouching, includes, inside, meets, overlaps;
};

void ExpectRow(const PairRow& row) {
    const QnPushVar<double> tolerance(g_distZero, 0.25);
    const QnGeExtent& e = row.first;
    const QnGeExtent& o = row.second;
    SCOPED_TRACE(::testing::Message() << "[" << e.min << ", " << e.max << "] with [" << o.min << ", " << o.max << "]");
    EXPECT_EQ(e > o, row.above);
    EXPECT_EQ(e >= o, row.aboveOrTouching);
    EXPECT_EQ(e < o, row.below);
    EXPECT_EQ(e <= o, row.belowOrTouching);
    EXPECT_EQ(e.IsInclude(o), row.includes);
    EXPECT_EQ(e.IsInside(o), row.inside);
    EXPECT_EQ(e.IsInsersectWith(o), row.meets);
    EXPECT_EQ(e.IsConnectWith(o), row.overlaps);
}

}  // namespace

TEST(QnGeExtent, DefaultIsTheZeroRange) {
    EXPECT_EQ(QnGeExtent().GetMin(), 0.0);
    EXPECT_EQ(QnGeExtent().GetMax(), 0.0);
}

TEST(QnGeExtent, AccessorsReadTheRange) {
    QnGeExtent e(1.0, 5.0);
    EXPECT_EQ(e.min, 1.0);
    EXPECT_EQ(e.max, 5.0);
    EXPECT_EQ(e.GetMin(), 1.0);
    EXPECT_EQ(e.GetMax(), 5.0);
    EXPECT_EQ(e.GetCenter(), 3.0);
    EXPECT_EQ(e.GetLength(), 4.0);
    e.SetRange(-2.0, 7.0);
    EXPECT_EQ(e.GetMin(), -2.0);
    EXPECT_EQ(e.GetMax(), 7.0);
}

TEST(QnGeExtent, InflateWidensBothEnds) {
    QnGeExtent e(1.0, 5.0);
    e.Inflate(0.5);
    EXPECT_EQ(e.min, 0.5);
    EXPECT_EQ(e.max, 5.5);
    e.Inflate(-1.0);
    EXPECT_EQ(e.min, 1.5);
    EXPECT_EQ(e.max, 4.5);
}

TEST(QnGeExtent, HullAndOverlapCompareExactly) {
    const QnGeExtent e(0.0, 2.0);
    const QnGeExtent o(1.0, 2.0 + 1e-12);
    EXPECT_EQ((e + o).min, 0.0);
    EXPECT_EQ((e + o).max, 2.0 + 1e-12);
    EXPECT_EQ((e & o).min, 1.0);
    EXPECT_EQ((e & o).max, 2.0);
    QnGeExtent grown(5.0, 6.0);
    grown += e;
    EXPECT_EQ(grown.min, 0.0);
    EXPECT_EQ(grown.max, 6.0);
}

TEST(QnGeExtent, OverlapOfDisjointRangesIsInverted) {
    const QnGeExtent overlap = QnGeExtent(0.0, 1.0) & QnGeExtent(3.0, 4.0);
    EXPECT_EQ(overlap.min, 3.0);
    EXPECT_EQ(overlap.max, 1.0);
    EXPECT_FALSE(overlap.IsValid());
}

TEST(QnGeExtent, ValidityAllowsTheToleranceAndNoFarLimit) {
    EXPECT_TRUE(QnGeExtent(0.0, 0.0).IsValid());
    EXPECT_TRUE(QnGeExtent(0.0, -1e-6).IsValid());
    EXPECT_FALSE(QnGeExtent(0.0, -1.0000001e-6).IsValid());
    EXPECT_FALSE(QnGeExtent(0.0, 2e50).IsValid());
    EXPECT_FALSE(QnGeExtent(0.0, 1e50).IsValid());
    EXPECT_FALSE(QnGeExtent(-1e50, 0.0).IsValid());
    EXPECT_TRUE(QnGeExtent(-9e49, 9e49).IsValid());
}

TEST(QnGeExtent, KeptOddEqualityIsUnderTheParameterTolerance) {
    EXPECT_FALSE(QnGeExtent(0.0, 1.0) == QnGeExtent(0.0, 1.0000001));
    EXPECT_TRUE(QnGeExtent(0.0, 1.0) != QnGeExtent(0.0, 1.0000001));
    EXPECT_TRUE(QnGeExtent(0.0, 1.0).IsInclude(QnGeExtent(0.0, 1.0000001)));
    EXPECT_TRUE(QnGeExtent(0.0, 0.0) == QnGeExtent(1e-9, -1e-9));
    EXPECT_FALSE(QnGeExtent(0.0, 0.0) == QnGeExtent(1.0000001e-9, 0.0));
    EXPECT_FALSE(QnGeExtent(0.0, 0.0) == QnGeExtent(0.0, 1.0000001e-9));
}

TEST(QnGeExtent, TouchingRangesMeetWithoutOverlap) {
    EXPECT_TRUE(QnGeExtent(0.0, 1.0).IsInsersectWith(QnGeExtent(1.0, 2.0)));
    EXPECT_FALSE(QnGeExtent(0.0, 1.0).IsConnectWith(QnGeExtent(1.0, 2.0)));
}

TEST(QnGeExtent, ComparisonsAtAndBesideTheTolerance) {
    const QnGeExtent unit(0.0, 1.0);
    // clang-format off
    const PairRow rows[] = {
        //                            >      >=     <      <=     incl   inside meets  overlaps
        {unit, QnGeExtent(2.0, 3.0),    false, false, true,  true,  false, false, false, false},
        {unit, QnGeExtent(1.375, 3.0),  false, false, true,  true,  false, false, false, false},
        {unit, QnGeExtent(1.25, 3.0),   false, false, false, true,  false, false, true,  false},
        {unit, QnGeExtent(1.0, 3.0),    false, false, false, true,  false, false, true,  false},
        {unit, QnGeExtent(0.75, 3.0),   false, false, false, true,  false, false, true,  false},
        {unit, QnGeExtent(0.625, 3.0),  false, false, false, false, false, false, true,  true},
        {unit, QnGeExtent(-2.0, -1.0),  true,  true,  false, false, false, false, false, false},
        {unit, QnGeExtent(-2.0, -0.25), false, true,  false, false, false, false, true,  false},
        {unit, QnGeExtent(-2.0, 0.25),  false, true,  false, false, false, false, true,  false},
        {unit, QnGeExtent(-2.0, 0.375), false, false, false, false, false, false, true,  true},
        {unit, unit,                    false, false, false, false, true,  false, true,  true},
        {unit, QnGeExtent(-0.25, 1.25), false, false, false, false, true,  false, true,  true},
        {unit, QnGeExtent(-0.25, 1.375),false, false, false, false, false, false, true,  true},
        {unit, QnGeExtent(-0.375, 1.0), false, false, false, false, false, false, true,  true},
        {unit, QnGeExtent(0.25, 0.75),  false, false, false, false, true,  false, true,  true},
        {unit, QnGeExtent(0.375, 0.625),false, false, false, false, true,  true,  true,  true},
        {unit, QnGeExtent(0.375, 0.75), false, false, false, false, true,  false, true,  true},
    };
    // clang-format on
    for (const PairRow& row : rows) {
        ExpectRow(row);
    }
}

TEST(QnGeExtent, ValuesAtAndBesideTheTolerance) {
    const QnPushVar<double> tolerance(g_distZero, 0.25);
    const QnGeExtent unit(0.0, 1.0);
    struct Row {
        double value;
        bool includes, inside;
    };
    const Row rows[] = {{-0.375, false, false}, {-0.25, true, false}, {0.0, true, false},  {0.25, true, false},
                        {0.375, true, true},    {0.5, true, true},    {0.75, true, false}, {1.0, true, false},
                        {1.25, true, false},    {1.375, false, false}};
    for (const Row& row : rows) {
        EXPECT_EQ(unit.IsInclude(row.value), row.includes) << row.value;
        EXPECT_EQ(unit.IsInside(row.value), row.inside) << row.value;
    }
}

TEST(QnGeExtent, DefaultToleranceIsTheLengthTolerance) {
    const QnGeExtent negative(-1.0, 0.0);
    EXPECT_TRUE(negative.IsInsersectWith(QnGeExtent(1e-6, 1.0)));
    EXPECT_FALSE(negative.IsInsersectWith(QnGeExtent(1.0000001e-6, 1.0)));
    EXPECT_FALSE(QnGeExtent(1e-6, 1.0) > negative);
    EXPECT_TRUE(QnGeExtent(1.0000001e-6, 1.0) > negative);
    EXPECT_TRUE(negative.IsInclude(1e-6));
    EXPECT_FALSE(negative.IsInclude(1.0000001e-6));
    EXPECT_FALSE(negative.IsConnectWith(QnGeExtent(-1e-6, 1.0)));
    EXPECT_TRUE(negative.IsConnectWith(QnGeExtent(-1.0000001e-6, 1.0)));
}

TEST(QnGeExtent, EveryComparisonEqualsItsFormula) {
    const QnPushVar<double> tolerance(g_distZero, 0.25);
    Random random(2201);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const double a = random.Lattice(16, 0.125);
        const double b = random.Lattice(16, 0.125);
        const double c = random.Lattice(16, 0.125);
        const double d = random.Lattice(16, 0.125);
        const QnGeExtent e(std::min(a, b), std::max(a, b));
        const QnGeExtent o(std::min(c, d), std::max(c, d));
        SCOPED_TRACE(::testing::Message() << e.min << " " << e.max << " " << o.min << " " << o.max);
        const double beyondO = e.min - o.max;
        const double beforeO = o.min - e.max;
        ASSERT_EQ(e > o, beyondO > 0.25);
        ASSERT_EQ(e >= o, beyondO >= -0.25);
        ASSERT_EQ(e<o, beforeO> 0.25);
        ASSERT_EQ(e <= o, beforeO >= -0.25);
        ASSERT_EQ(e.IsInclude(c), c - e.min >= -0.25 && c - e.max <= 0.25);
        ASSERT_EQ(e.IsInside(c), c - e.min > 0.25 && c - e.max < -0.25);
        ASSERT_EQ(e.IsInclude(o), e.min - o.min <= 0.25 && e.max - o.max >= -0.25);
        ASSERT_EQ(e.IsInside(o), e.min - o.min < -0.25 && e.max - o.max > 0.25);
        ASSERT_EQ(e.IsInsersectWith(o), beyondO <= 0.25 && beforeO <= 0.25);
        ASSERT_EQ(e.IsConnectWith(o), beyondO < -0.25 && beforeO < -0.25);
        ASSERT_EQ(e.IsInsersectWith(o), !(e > o) && !(e < o));
        ASSERT_EQ(e.IsConnectWith(o), !(e >= o) && !(e <= o));
        ASSERT_EQ((e + o).min, std::min(e.min, o.min));
        ASSERT_EQ((e + o).max, std::max(e.max, o.max));
        ASSERT_EQ((e & o).min, std::max(e.min, o.min));
        ASSERT_EQ((e & o).max, std::min(e.max, o.max));
    }
}
