// SPDX-License-Identifier: Apache-2.0
// The doubly linked list's own; the rules that it shares with all lists stand in AnyList_test.cpp.
#include "containers/QnDList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "containers/QnDynArray.h"
#include "containers/ValueHistory.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

template <class T>
std::vector<T> Items(const QnDynArrayBase<T>& s) {
    std::vector<T> items;
    for (const T* p = s.GetFirst(); p != nullptr; p = s.GetNext(p)) {
        items.push_back(*p);
    }
    return items;
}

}  // namespace

TEST(QnDList, CanBeMadeFromAnySequence) {
    QnDynArray<int> array;
    array << 1 << 2 << 3;
    QnDList<int> fromArray(array);
    EXPECT_EQ(Items(fromArray), (std::vector<int>{1, 2, 3}));
    EXPECT_TRUE(fromArray.IsOut());
    QnDList<int> copy(fromArray);
    EXPECT_TRUE(copy == array);
    EXPECT_EQ(CheckList(fromArray), "");
    EXPECT_EQ(CheckList(copy), "");
}

TEST(QnDList, PointersAsElementsAreNotOwned) {
    LiveScope scope;
    LiveObject a(1);
    LiveObject b(2);
    {
        QnDList<LiveObject*> list;
        list << &a << &b << nullptr << &a;
        EXPECT_EQ(list.Find(&b), 1);
        EXPECT_EQ(list.FindDel(&a), 2);
        list.DelHead();
        list.SetLength(3, true);
        EXPECT_EQ(list.GetAt(2), nullptr);
        list << &a;
        list.Reset();
        list << &a << &b;
    }
    EXPECT_TRUE(a.IsAlive() && b.IsAlive());
    EXPECT_EQ(scope.Count(), 2);
}

TEST(QnDList, NaNNeverCompares) {
    QnDList<double> list;
    const double nan = std::nan("");
    list << 1.0 << nan << 0.5;
    EXPECT_EQ(list.Find(nan), -1);
    list.Sort(true);
    EXPECT_EQ(list.GetLength(), 3);
    EXPECT_EQ(CheckList(list), "");
}

TEST(QnDList, SortOfATolerantOrderLosesNothing) {
    RandomSource random(BaseSeed());
    for (int round = 0; round < 500; ++round) {
        QnDList<double> list;
        std::vector<double> expected;
        const long n = random.Long(2, 30);
        for (long i = 0; i < n; ++i) {
            expected.push_back(random.Double(0.0, 1e-5));
            list.Append(expected.back());
        }
        list.Sort([](const double& a, const double& b) { return a - b > 1e-6 ? 1 : (b - a > 1e-6 ? -1 : 0); });
        // Insertion sort, from the predecessor backward while nodes must come after.
        for (std::size_t i = 1; i < expected.size(); ++i) {
            std::size_t place = i;
            while (place > 0 && expected[place - 1] - expected[i] > 1e-6) {
                --place;
            }
            std::rotate(expected.begin() + static_cast<long>(place), expected.begin() + static_cast<long>(i),
                        expected.begin() + static_cast<long>(i) + 1);
        }
        EXPECT_EQ(Items(list), expected) << "round " << round;
        EXPECT_EQ(CheckList(list), "");
    }
}

TEST(QnDList, LongListsAreFreedWithoutDeepRecursion) {
    LiveScope scope;
    {
        QnDList<LiveObject> list;
        constexpr int COUNT = 200000;
        for (int i = 0; i < COUNT; ++i) {
            list.Append(LiveObject(i));
        }
        long sum = 0;
        for (long i = 0; i < COUNT; ++i) {
            sum += list.GetAt(i).key;  // ascending access stays cheap although the cursor stays
        }
        EXPECT_EQ(sum, static_cast<long>(COUNT) * (COUNT - 1) / 2);
        EXPECT_EQ(list.GetCur(), COUNT - 1);
    }
}

TEST(QnDList, ElementsAreFreedOnce) {
    LiveScope scope;
    {
        QnDList<LiveObject> list;
        for (int i = 0; i < 20; ++i) {
            list.SortInto(LiveObject(i * 7 % 5, i), true);
        }
        QnDList<LiveObject> other;
        other = list;
        other.SetLength(5, true);
        list.SplitAt(10, other);
        list.ReverseList();
        EXPECT_EQ(list.GetLength() + other.GetLength(), 25);
    }
}

TEST(QnDList, RandomHistoriesAgreeWithTheModel) {
    constexpr unsigned HISTORIES = 10000;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        QnDList<int> a;
        QnDList<int> b;
        ValueHistory<QnDList<int>, ListModel<int>>(BaseSeed() + 7 * k, a, b).Run(40);
    }
}
