// SPDX-License-Identifier: Apache-2.0
// Both arrays sort by rank count or by something faster with the same answer. Here the plain count is the reference.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <vector>

#include "containers/QnArray.h"
#include "containers/QnDynArray.h"
#include "containers/RankCount.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

template <class A, class T>
A MakeArray(const std::vector<T>& items) {
    A a;
    for (const T& item : items) {
        a.Append(item);
    }
    return a;
}

template <class A, class T>
std::vector<T> ItemsOf(const A& a) {
    std::vector<T> items;
    for (long i = 0; i < a.GetLength(); ++i) {
        items.push_back(static_cast<const A&>(a)[i]);
    }
    return items;
}

/// Bytes, so that NaN and the two zeros count as what they are.
template <class T>
void ExpectSameBits(const std::vector<T>& found, const std::vector<T>& expected) {
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_EQ(std::memcmp(&found[i], &expected[i], sizeof(T)), 0) << "element " << i << " of " << found.size();
    }
}

template <class A, class T>
void ExpectSortsAsRankCount(const std::vector<T>& items) {
    for (const bool ascending : {true, false}) {
        A a = MakeArray<A, T>(items);
        a.Sort(ascending);
        ExpectSameBits(ItemsOf<A, T>(a), SortedByRankCount(items, [ascending](const T& x, const T& y) {
                           return ascending ? x > y : y > x;
                       }));
    }
}

template <class T>
void ExpectBothSortAsRankCount(const std::vector<T>& items) {
    ExpectSortsAsRankCount<QnDynArray<T>, T>(items);
    ExpectSortsAsRankCount<QnArray<T>, T>(items);
}

int DescendingDigits(const int& a, const int& b) {
    return b % 10 - a % 10;
}

int TolerantCompare(const double& a, const double& b) {
    return a - b > 1e-6 ? 1 : (b - a > 1e-6 ? -1 : 0);
}

}  // namespace

TEST(ArraySort, IntegersAsTheRankCount) {
    RandomSource random(BaseSeed());
    for (int round = 0; round < 600; ++round) {
        std::vector<int> items(static_cast<std::size_t>(random.Long(0, 60)));
        for (int& item : items) {
            item = random.Int(-9, 9);
        }
        ExpectBothSortAsRankCount(items);
        ExpectBothSortAsRankCount(std::vector<char>(items.begin(), items.end()));
        ExpectBothSortAsRankCount(std::vector<long>(items.begin(), items.end()));
    }
}

TEST(ArraySort, DoublesAsTheRankCountWithTheirZerosAndInfinities) {
    RandomSource random(BaseSeed());
    const double special[] = {0.0, -0.0, 1.0, std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity()};
    for (int round = 0; round < 600; ++round) {
        std::vector<double> items(static_cast<std::size_t>(random.Long(0, 60)));
        for (double& item : items) {
            item = random.Coin() ? special[random.Long(0, 4)] : random.Double(-1.0, 1.0);
        }
        ExpectBothSortAsRankCount(items);
    }
}

TEST(ArraySort, NaNLosesNoElement) {
    RandomSource random(BaseSeed());
    for (int round = 0; round < 600; ++round) {
        std::vector<double> items(static_cast<std::size_t>(random.Long(2, 30)));
        for (double& item : items) {
            item = random.OneIn(4) ? std::nan("") : random.Double(-1.0, 1.0);
        }
        ExpectBothSortAsRankCount(items);
    }
}

TEST(ArraySort, ATolerantOrderLosesNoElement) {
    // Three values whose ranks all come out as 1.
    const std::vector<TolerantValue> chain = {{2.0e-6, 0}, {1.2e-6, 1}, {0.5e-6, 2}};
    QnDynArray<TolerantValue> a = MakeArray<QnDynArray<TolerantValue>>(chain);
    a.Sort(true);
    EXPECT_EQ(a.GetAt(0).tag, 0);
    EXPECT_EQ(a.GetAt(1).tag, 1);
    EXPECT_EQ(a.GetAt(2).tag, 2);

    RandomSource random(BaseSeed());
    for (int round = 0; round < 600; ++round) {
        std::vector<TolerantValue> items;
        const long n = random.Long(0, 40);
        for (int i = 0; i < n; ++i) {
            items.push_back({random.Double(0.0, 1e-5), i});
        }
        for (const bool ascending : {true, false}) {
            const std::vector<TolerantValue> expected = SortedByRankCount(
                items,
                [ascending](const TolerantValue& x, const TolerantValue& y) { return ascending ? x > y : y > x; });
            QnDynArray<TolerantValue> dyn = MakeArray<QnDynArray<TolerantValue>>(items);
            QnArray<TolerantValue> exact = MakeArray<QnArray<TolerantValue>>(items);
            dyn.Sort(ascending);
            exact.Sort(ascending);
            for (long i = 0; i < n; ++i) {
                ASSERT_EQ(dyn.GetAt(i).tag, expected[static_cast<std::size_t>(i)].tag) << "round " << round;
                ASSERT_EQ(exact[i].tag, expected[static_cast<std::size_t>(i)].tag) << "round " << round;
            }
        }
    }
}

TEST(ArraySort, ARuleAsTheRankCount) {
    RandomSource random(BaseSeed());
    for (int round = 0; round < 600; ++round) {
        std::vector<int> items(static_cast<std::size_t>(random.Long(0, 60)));
        std::vector<double> close(items.size());
        for (std::size_t i = 0; i < items.size(); ++i) {
            items[i] = random.Int(0, 99);
            close[i] = random.Double(0.0, 8e-6);
        }
        for (const auto rule : {&CompareLastDigits, &DescendingDigits}) {
            QnDynArray<int> dyn = MakeArray<QnDynArray<int>>(items);
            QnArray<int> exact = MakeArray<QnArray<int>>(items);
            dyn.Sort(rule);
            exact.Sort(rule);
            const std::vector<int> expected =
                SortedByRankCount(items, [rule](const int& x, const int& y) { return rule(x, y) > 0; });
            EXPECT_EQ((ItemsOf<QnDynArray<int>, int>(dyn)), expected);
            EXPECT_EQ((ItemsOf<QnArray<int>, int>(exact)), expected);
        }
        QnDynArray<double> dyn = MakeArray<QnDynArray<double>>(close);
        dyn.Sort(&TolerantCompare);
        EXPECT_EQ((ItemsOf<QnDynArray<double>, double>(dyn)),
                  SortedByRankCount(close, [](double x, double y) { return TolerantCompare(x, y) > 0; }));
    }
}

TEST(ArraySort, PointersByAddress) {
    int values[5] = {};
    std::vector<int*> items = {&values[3], &values[0], nullptr, &values[4], &values[0]};
    ExpectBothSortAsRankCount(items);
}

TEST(ArraySort, ElementsWithoutAnOrderStayAsTheyAre) {
    struct Plain {
        int value = 0;
    };
    QnDynArray<Plain> a;
    a.Append(Plain{3});
    a.Append(Plain{1});
    a.Sort(true);
    EXPECT_EQ(a.GetAt(0).value, 3);
    EXPECT_EQ(a.GetAt(1).value, 1);
}

TEST(ArraySort, LargeArraysOfPlainValuesSortInReasonableTime) {
    QnDynArray<double> a;
    RandomSource random(BaseSeed());
    constexpr long COUNT = 200000;
    a.SetLength(COUNT, false);
    for (long i = 0; i < COUNT; ++i) {
        a[i] = random.Double(0.0, 1.0);
    }
    a.Sort(true);
    EXPECT_TRUE(std::is_sorted(a.GetFirst(), a.GetFirst() + COUNT));
    a.Sort(false);
    EXPECT_TRUE(std::is_sorted(a.GetFirst(), a.GetFirst() + COUNT, std::greater<>()));
}
