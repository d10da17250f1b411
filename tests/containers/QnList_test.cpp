// SPDX-License-Identifier: Apache-2.0
// The list's own; the rules that it shares with all lists stand in AnyList_test.cpp.
#include "containers/QnList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "containers/ValueHistory.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

/// Not transitive: of three values, neighbours may be equal and the outer two not.
int TolerantCompare(const double& a, const double& b) {
    return a - b > 1e-6 ? 1 : (b - a > 1e-6 ? -1 : 0);
}

}  // namespace

TEST(QnList, PreviousElementIsFoundFromAnyElement) {
    QnList<int> list;
    for (int i = 0; i < 6; ++i) {
        list.Append(i);
    }
    for (long cursor = -1; cursor < 6; ++cursor) {
        list.MoveTo(cursor);
        for (long i = 1; i < 6; ++i) {
            EXPECT_EQ(list.GetPre(list.GetTo(i)), list.GetTo(i - 1));
        }
        EXPECT_EQ(list.GetPre(list.GetFirst()), nullptr);
        EXPECT_EQ(list.GetPre(nullptr), nullptr);
        EXPECT_EQ(list.GetNext(list.GetLast()), nullptr);
        EXPECT_EQ(list.GetCur(), cursor);
    }
}

TEST(QnList, ElementsAreFreedOnce) {
    LiveScope scope;
    {
        QnList<LiveObject> list;
        for (int i = 0; i < 20; ++i) {
            list.Append(LiveObject(i % 4, i));
        }
        QnList<LiveObject> other(list);
        list.Sort(true);
        list.Conbine(other, 10);
        list.Move(0, 7);
        EXPECT_EQ(list.FindDel(list.GetAt(0)), 7);
        EXPECT_EQ(scope.Count(), list.GetLength() + other.GetLength() + 2) << "one default object per sentinel";
    }
}

TEST(QnList, SortInsertsEachElementBeforeTheFirstThatMustFollow) {
    RandomSource random(BaseSeed());
    for (int round = 0; round < 500; ++round) {
        QnList<double> list;
        std::vector<double> expected;
        const long n = random.Long(0, 30);
        for (long i = 0; i < n; ++i) {
            const double value = random.Double(0.0, 1e-5);
            list.Append(value);
            const auto place = std::find_if(expected.begin(), expected.end(),
                                            [value](double other) { return TolerantCompare(other, value) > 0; });
            expected.insert(place, value);
        }
        list.Sort(&TolerantCompare);
        for (long i = 0; i < n; ++i) {
            ASSERT_EQ(list.GetAt(i), expected[static_cast<std::size_t>(i)]) << "round " << round;
        }
    }
}

TEST(QnList, RandomHistoriesAgreeWithTheModel) {
    constexpr unsigned HISTORIES = 10000;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        QnList<int> a;
        QnList<int> b;
        ValueHistory<QnList<int>, ListModel<int>>(BaseSeed() + k, a, b).Run(40);
    }
}
