// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCurvePa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "containers/QnPDList.h"
#include "curves2d/QnGeCurvePaWithPt.h"
#include "frame/QnPushVar.h"
#include "support/RandomSource.h"

namespace {

template <class List>
std::vector<long> FlagsOf(const List& list) {
    std::vector<long> flags;
    for (auto entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        flags.push_back(*entry != nullptr ? static_cast<long>((*entry)->GetBits()) : -1);
    }
    return flags;
}

using Flags = std::vector<long>;

}  // namespace

TEST(QnGeCurvePa, HoldsAParameterAndFlags) {
    const QnGeCurvePa record(0.5, 1);
    EXPECT_EQ(record.pa, 0.5);
    EXPECT_EQ(record.GetBits(), 1U);
    EXPECT_EQ(QnGeCurvePa().pa, 0.0);
    EXPECT_EQ(QnGeCurvePa().GetBits(), 0U);
}

TEST(QnGeCurvePa, OrderIsThatOfTheParametersUnderTheTolerance) {
    const QnGeCurvePa low(1.0, 0);
    EXPECT_TRUE(low < QnGeCurvePa(1.1, 0));
    EXPECT_TRUE(QnGeCurvePa(1.1, 0) > low);
    EXPECT_FALSE(low < QnGeCurvePa(1.0 + 0.9e-9, 0));
    EXPECT_FALSE(QnGeCurvePa(1.0 + 0.9e-9, 0) > low);
    const QnPushVar<double> wide(g_fZero, 0.5);
    EXPECT_FALSE(low < QnGeCurvePa(1.4, 0));
}

TEST(QnGeCurvePa, KeptOddEqualityIsThatOfTheFlags) {
    EXPECT_TRUE(QnGeCurvePa(1.0, 1) == QnGeCurvePa(2.0, 1));
    EXPECT_TRUE(QnGeCurvePa(1.0, 1) != QnGeCurvePa(1.0, 0));
}

TEST(QnGeCurvePa, ListsSortByTheParameterAndKeepNearOnesInOrder) {
    QnPDList<QnGeCurvePa> list;
    list.Append(new QnGeCurvePa(3.0, 1));
    list.Append(nullptr);
    list.Append(new QnGeCurvePa(1.0 + 0.5e-9, 2));
    list.Append(new QnGeCurvePa(1.0, 3));
    list.Append(new QnGeCurvePa(-2.0, 4));
    list.Sort(true);
    EXPECT_EQ(FlagsOf(list), (Flags{4, 2, 3, 1, -1}));
    list.Sort(false);
    EXPECT_EQ(FlagsOf(list), (Flags{1, 2, 3, 4, -1}));
}

TEST(QnGeCurvePa, ListsOfFarParametersSortLikeAStandardOne) {
    RandomSource random(BaseSeed());
    QnPDList<QnGeCurvePa> list;
    std::vector<double> expected;
    for (long i = 0; i < 500; ++i) {
        const double pa = random.Double(-10.0, 10.0);
        list.Append(new QnGeCurvePa(pa, i));
        expected.push_back(pa);
    }
    std::sort(expected.begin(), expected.end());
    list.Sort(true);
    for (long i = 0; i < 500; ++i) {
        EXPECT_EQ(list.GetAt(i)->pa, expected[static_cast<std::size_t>(i)]);
    }
}

TEST(QnGeCurvePaWithPt, BringsItsPointAlong) {
    const QnGeCurvePaWithPt record(0.5, 1, QnGePoint(1.0, 2.0, 3.0));
    EXPECT_EQ(record.pa, 0.5);
    EXPECT_EQ(record.GetBits(), 1U);
    EXPECT_EQ(record.x, 1.0);
    EXPECT_EQ(record.y, 2.0);
    EXPECT_EQ(record.z, 3.0);
    EXPECT_EQ(QnGeCurvePaWithPt().pa, 0.0);
    EXPECT_EQ(QnGeCurvePaWithPt().x, 0.0);
}

TEST(QnGeCurvePaWithPt, ComparesAsTheRecordWithoutAPoint) {
    const QnGeCurvePaWithPt low(1.0, 1, QnGePoint(9.0, 9.0));
    const QnGeCurvePaWithPt high(2.0, 1, QnGePoint(0.0, 0.0));
    EXPECT_TRUE(low < high);
    EXPECT_TRUE(high > low);
    EXPECT_TRUE(low == high);
    EXPECT_FALSE(low != high);
}

TEST(QnGeCurvePaWithPt, ListsSortByTheParameter) {
    QnPDList<QnGeCurvePaWithPt> list;
    list.Append(nullptr);
    list.Append(new QnGeCurvePaWithPt(3.0, 1, QnGePoint(1.0, 0.0)));
    list.Append(new QnGeCurvePaWithPt(1.0, 2, QnGePoint(2.0, 0.0)));
    list.Append(new QnGeCurvePaWithPt(1.0 - 0.5e-9, 3, QnGePoint(3.0, 0.0)));
    list.Sort(true);
    EXPECT_EQ(FlagsOf(list), (Flags{2, 3, 1, -1}));
}
