// SPDX-License-Identifier: Apache-2.0
#include "containers/QnArray.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "containers/QnDList.h"
#include "containers/QnDynArray.h"
#include "containers/QnQuene.h"
#include "containers/SequenceModel.h"
#include "frame/QnGeTolerance.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

using Ints = std::vector<int>;

QnArray<int> Filled(const Ints& values) {
    QnArray<int> a;
    for (const int v : values) {
        a.Append(v);
    }
    return a;
}

Ints Items(const QnArray<int>& a) {
    Ints items;
    for (long i = 0; i < a.GetLength(); ++i) {
        items.push_back(a[i]);
    }
    return items;
}

}  // namespace

TEST(QnArray, NewArrayHoldsNoBlock) {
    QnArray<int> a;
    EXPECT_EQ(a.GetLength(), 0);
    EXPECT_EQ(a.GetMaxIndex(), -1);
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.GetDataBuffer(), nullptr);
    EXPECT_FALSE(a.IsValidIndex(0));
}

TEST(QnArray, SizedArrayHoldsDefaultElements) {
    const QnArray<bool> flags(3);
    EXPECT_FALSE(flags[0] || flags[1] || flags[2]);
    const QnArray<double> numbers(4);
    EXPECT_EQ(std::count(numbers.GetDataBuffer(), numbers.GetDataBuffer() + 4, 0.0), 4);
    EXPECT_TRUE(numbers.IsValidIndex(3));
    EXPECT_FALSE(numbers.IsValidIndex(4));
    EXPECT_FALSE(numbers.IsValidIndex(-1));
}

TEST(QnArray, InsertAndDeleteKeepTheExactOrder) {
    QnArray<int> a;
    EXPECT_EQ(a.Append(2), 0);
    EXPECT_EQ(a.Append(4), 1);
    a.InsertHead(1);
    a.Insert(2, 3);
    a.Insert(4, 5);
    EXPECT_EQ(Items(a), (Ints{1, 2, 3, 4, 5}));
    a.Del(2);
    a.DelHead();
    a.DelTail();
    EXPECT_EQ(Items(a), (Ints{2, 4}));
    a.DelTail();
    a.DelTail();
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.GetDataBuffer(), nullptr);
    a.DelHead();
    a.DelTail();
    a.Del(0);
    EXPECT_EQ(a.GetLength(), 0);
}

TEST(QnArray, AnOwnElementMayBeInserted) {
    QnArray<int> a = Filled({1, 2});
    a.Append(a[0]);
    a.InsertHead(a[1]);
    a.Insert(1, a[3]);
    EXPECT_EQ(Items(a), (Ints{2, 1, 1, 2, 1}));
    a.SetAll(a[0]);
    EXPECT_EQ(Items(a), (Ints{2, 2, 2, 2, 2}));
    a = Filled({5, 6, 5});
    EXPECT_EQ(a.FindDel(a[0]), 2);
    EXPECT_EQ(Items(a), (Ints{6}));
}

TEST(QnArray, ReAllocateKeepsOnRequest) {
    QnArray<int> a = Filled({1, 2, 3});
    a.ReAllocate(5, true);
    EXPECT_EQ(Items(a), (Ints{1, 2, 3, 0, 0}));
    a.ReAllocate(2, true);
    EXPECT_EQ(Items(a), (Ints{1, 2}));
    a.ReAllocate(3, false);
    EXPECT_EQ(Items(a), (Ints{0, 0, 0}));
    a.Reset();
    EXPECT_TRUE(a.IsEmpty());
}

TEST(QnArray, SetAtAndSetAll) {
    QnArray<int> a(3);
    a.SetAt(1, 7);
    a[2] = 8;
    EXPECT_EQ(Items(a), (Ints{0, 7, 8}));
    a.SetAll(4);
    EXPECT_EQ(Items(a), (Ints{4, 4, 4}));
}

TEST(QnArray, FindFamilyWorksAsInTheSequences) {
    QnArray<int> a = Filled({5, 6, 5});
    EXPECT_EQ(a.Find(5), 0);
    EXPECT_EQ(a.Find(5, 1, -1), 2);
    EXPECT_EQ(a.Find(5, 1, 1), -1);
    EXPECT_EQ(a.Find(5, 5, -1), -1);
    EXPECT_EQ(a.Find(5, -1, -1), -1);
    EXPECT_EQ(a.Find(5, 1, 99), 2);
    QnListQuene<long> hits;
    EXPECT_EQ(a.Find(5, hits, 0, -1), 2);
    EXPECT_EQ(hits[0], 0);
    EXPECT_EQ(hits[1], 2);
    EXPECT_EQ(a.FindOrAppend(6), 1);
    EXPECT_EQ(a.FindOrAppend(7), 3);
    a.FindOrInsertHead(7);
    a.FindOrInsertHead(4);
    EXPECT_EQ(Items(a), (Ints{4, 5, 6, 5, 7}));
    EXPECT_EQ(a.FindDel(5), 2);
    EXPECT_EQ(a.FindDel(5), 0);
    EXPECT_EQ(Items(a), (Ints{4, 6, 7}));
}

TEST(QnArray, DoublesAreEqualWithinTheTolerance) {
    QnArray<double> a;
    QnArray<double> b;
    a.Append(1.0);
    b.Append(1.0 + 0.9 * g_fZero);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    EXPECT_EQ(a.Find(1.0 - 0.9 * g_fZero), 0);
    EXPECT_EQ(a.Find(1.0 - 1.1 * g_fZero), -1);
    b[0] = 1.0 + 2.0 * g_fZero;
    EXPECT_TRUE(a != b);
    EXPECT_EQ(a.BFind(1.0 + 0.9 * g_fZero), -1) << "sorted searches compare exactly";
}

TEST(QnArray, BFindMeetsTheMiddleOfEquals) {
    const QnArray<int> a = Filled({1, 3, 3, 3, 3, 8});
    EXPECT_EQ(a.BFind(3), 2);
    EXPECT_EQ(a.BFind(3, 3, -1), 4);
    EXPECT_EQ(a.BFind(8), 5);
    EXPECT_EQ(a.BFind(0), -1);
    EXPECT_EQ(a.BFind(9), -1);
    EXPECT_EQ(a.BFind(5), -1);
    EXPECT_EQ(a.BFind(8, 0, 4), -1);
    EXPECT_EQ(a.BFind(3, 4, 2), -1);
    EXPECT_EQ(QnArray<int>().BFind(3), -1);
}

TEST(QnArray, ReverseSwapsARange) {
    QnArray<int> a = Filled({0, 1, 2, 3, 4});
    a.Reverse(1, 4);
    EXPECT_EQ(Items(a), (Ints{0, 4, 3, 2, 1}));
    a.Reverse();
    EXPECT_EQ(Items(a), (Ints{1, 2, 3, 4, 0}));
}

TEST(QnArray, OrderComparesLengthsOnly) {
    EXPECT_TRUE(Filled({9, 9}) < Filled({1, 1, 1}));
    EXPECT_TRUE(Filled({1, 1, 1}) > Filled({9, 9}));
    EXPECT_FALSE(Filled({1, 2}) < Filled({3, 4}));
    EXPECT_TRUE(Filled({1, 2}) == Filled({1, 2}));
    EXPECT_TRUE(Filled({1, 2}) != Filled({1, 3}));
    EXPECT_TRUE(Filled({1, 2}) != Filled({1, 2, 3}));
}

TEST(QnArray, ArraysOfArraysSortByLengthAndCopyDeep) {
    QnArray<QnArray<int>> rows;
    rows.Append(Filled({1, 1, 1}));
    rows.Append(Filled({2}));
    rows.Append(Filled({3, 3}));
    rows.Append(Filled({4}));
    const QnArray<QnArray<int>> copy(rows);
    rows.Sort(true);
    EXPECT_EQ(Items(rows[0]), (Ints{2}));
    EXPECT_EQ(Items(rows[1]), (Ints{4}));
    EXPECT_EQ(Items(rows[2]), (Ints{3, 3}));
    EXPECT_EQ(Items(rows[3]), (Ints{1, 1, 1}));
    rows[0][0] = 99;
    EXPECT_EQ(Items(copy[1]), (Ints{2}));
    EXPECT_EQ(rows.Find(Filled({3, 3})), 2);
}

TEST(QnArray, ListsOfNumbersCanBeElements) {
    QnArray<QnDList<double>> lists(2);
    lists[0] << 1.0 << 2.0;
    lists.InsertHead(lists[0]);
    lists.Del(2);
    EXPECT_EQ(lists.GetLength(), 2);
    EXPECT_EQ(lists[0].GetLength(), 2);
    EXPECT_TRUE(lists[0] == lists[1]);
}

TEST(QnArray, CopiesAndAssignmentsAreDeepFromEitherKind) {
    QnArray<int> a = Filled({1, 2, 3});
    QnArray<int> b(a);
    b[0] = 9;
    EXPECT_EQ(Items(a), (Ints{1, 2, 3}));
    a = b;
    EXPECT_EQ(Items(a), (Ints{9, 2, 3}));
    const QnArray<int>& same = a;
    a = same;
    EXPECT_EQ(Items(a), (Ints{9, 2, 3}));
    QnDList<int> list;
    list << 4 << 5;
    a = list;
    EXPECT_EQ(Items(a), (Ints{4, 5}));
    const QnArray<int> fromList(list);
    EXPECT_EQ(Items(fromList), (Ints{4, 5}));
}

TEST(QnArray, ElementsAreFreedOnce) {
    LiveScope scope;
    {
        QnArray<LiveObject> a(3);
        EXPECT_EQ(scope.Count(), 3) << "exactly the length, no spare element";
        a.Append(LiveObject(4));
        a.InsertHead(LiveObject(1));
        EXPECT_EQ(scope.Count(), 5);
        QnArray<LiveObject> b(a);
        b = a;
        a.DelTail();
        a.Sort(false);
        b.ReAllocate(2, true);
        EXPECT_EQ(scope.Count(), 6);
        EXPECT_EQ(a[0].key, 1);
    }
}

TEST(QnArray, RandomHistoriesAgreeWithTheVector) {
    constexpr unsigned HISTORIES = 10000;
    constexpr int STEPS = 30;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        RandomSource random(BaseSeed() + k);
        HistoryLog log;
        QnArray<int> a;
        SequenceModel<int> m;
        for (int step = 0; step < STEPS && !HasFailure(); ++step) {
            const int v = random.Int(0, 9);
            const long i = random.Long(0, m.Size());
            const int what = random.Int(0, 9);
            log.Note("step", what, i, v);
            switch (what) {
                case 0:
                case 1:
                    a.Insert(i, v);
                    m.InsertAt(i, v);
                    break;
                case 2:
                    EXPECT_EQ(a.Append(v), m.Size());
                    m.InsertAt(m.Size(), v);
                    break;
                case 3:
                    a.Del(i);
                    if (m.Valid(i)) {
                        m.EraseAt(i);
                    }
                    break;
                case 4:
                    EXPECT_EQ(a.FindDel(v), m.FindDel(v));
                    break;
                case 5:
                    a.Sort(v % 2 == 0);
                    m.Sort(v % 2 == 0);
                    break;
                case 6:
                    a.Sort(&CompareLastDigits);
                    m.Sort(&CompareLastDigits);
                    break;
                case 7:
                    a.Reverse(i, -1);
                    m.Reverse(i, -1);
                    break;
                case 8:
                    EXPECT_EQ(a.Find(v, i, -1), m.Find(v, i, -1));
                    break;
                default:
                    a.ReAllocate(i + 1, true);
                    m.items.resize(static_cast<std::size_t>(i + 1), 0);
            }
            EXPECT_EQ(Items(a), m.items);
        }
        if (HasFailure()) {
            ADD_FAILURE() << "seed " << BaseSeed() + k << ", steps so far:\n" << log.Text();
        }
    }
}
