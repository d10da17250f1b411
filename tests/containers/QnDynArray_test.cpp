// SPDX-License-Identifier: Apache-2.0
#include "containers/QnDynArray.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <vector>

#include "containers/QnArray.h"
#include "containers/ValueHistory.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

QnDynArray<int> Filled(const std::vector<int>& values) {
    QnDynArray<int> a;
    for (const int v : values) {
        a.Append(v);
    }
    return a;
}

std::vector<int> Items(const QnDynArray<int>& a) {
    std::vector<int> items;
    for (const int* p = a.GetFirst(); p != nullptr; p = a.GetNext(p)) {
        items.push_back(*p);
    }
    return items;
}

using Ints = std::vector<int>;

}  // namespace

// ---- making and space --------------------------------------------------------------------------

TEST(QnDynArray, NewArrayIsEmptyWithoutBlockAndTakesTenExtraPlaces) {
    QnDynArray<int> a;
    EXPECT_EQ(a.GetLength(), 0);
    EXPECT_EQ(a.GetCur(), -1);
    EXPECT_EQ(a.GetSpaceSize(), 0);
    EXPECT_EQ(a.GetAllocUnit(), 10);
    EXPECT_EQ(a.GetFirst(), nullptr);
    EXPECT_EQ(a.GetLast(), nullptr);
    EXPECT_EQ(a.GetMaxIndex(), -1);
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_TRUE(a.IsOut());
    EXPECT_TRUE(a.IsBegin());
    EXPECT_FALSE(a.IsEnd());
    EXPECT_EQ(a.Detach(), nullptr);
    EXPECT_EQ(CheckArray(a), "");
}

TEST(QnDynArray, TwelveAppendsTakeSpaceTwice) {
    QnDynArray<int> a;
    std::vector<long> spaces;
    for (int i = 0; i < 12; ++i) {
        EXPECT_EQ(a.Append(i), i);
        if (spaces.empty() || spaces.back() != a.GetSpaceSize()) {
            spaces.push_back(a.GetSpaceSize());
        }
    }
    EXPECT_EQ(spaces, (std::vector<long>{11, 22}));
    EXPECT_EQ(CheckArray(a), "");
}

TEST(QnDynArray, SizedConstructorTakesExactlyThatSpaceWithDefaultElements) {
    QnDynArray<double> a(7, 3);
    EXPECT_EQ(a.GetLength(), 7);
    EXPECT_EQ(a.GetSpaceSize(), 7);
    EXPECT_EQ(a.GetAllocUnit(), 3);
    EXPECT_EQ(a.GetCur(), -1);
    EXPECT_EQ(std::count(a.GetFirst(), a.GetFirst() + 7, 0.0), 7);
    QnDynArray<bool> flags(3);
    EXPECT_FALSE(flags.GetAt(0) || flags.GetAt(1) || flags.GetAt(2));
    QnDynArray<int*> pointers(2);
    EXPECT_EQ(pointers.GetAt(1), nullptr);
}

TEST(QnDynArray, SpaceGrowsByTheUnitOnEveryRegrowth) {
    for (const long unit : {0L, 1L, 3L, 10L, 64L}) {
        QnDynArray<int> a(0, unit);
        long space = 0;
        for (long n = 1; n <= 300; ++n) {
            a.Append(static_cast<int>(n));
            space = n > space ? n + unit : space;
            ASSERT_EQ(a.GetSpaceSize(), space) << "unit " << unit << ", length " << n;
        }
        EXPECT_EQ(CheckArray(a), "");
        EXPECT_EQ(a.GetAt(299), 300);
    }
}

TEST(QnDynArray, NegativeUnitCountsAsZero) {
    QnDynArray<int> a(0, -5);
    for (int i = 0; i < 20; ++i) {
        a.Append(i);
        EXPECT_EQ(a.GetSpaceSize(), i + 1);
    }
    EXPECT_EQ(CheckArray(a), "");
    a.SetAllocUnit(4);
    EXPECT_EQ(a.GetAllocUnit(), 4);
    a.Append(20);
    EXPECT_EQ(a.GetSpaceSize(), 25);
    a.SetAllocUnit(-1);
    a.IncreaseSize(10);
    EXPECT_EQ(a.GetSpaceSize(), 31);
}

TEST(QnDynArray, SpaceOfRandomResizesIsArithmetic) {
    RandomSource random(BaseSeed());
    QnDynArray<int> a;
    long space = 0;
    long unit = 10;
    for (int step = 0; step < 5000; ++step) {
        const long n = random.Long(0, 60);
        switch (random.Int(0, 5)) {
            case 0:
                a.SetLength(n, random.Coin());
                space = n;
                break;
            case 1:
                EXPECT_EQ(a.SetSpaceSize(n), n >= a.GetLength());
                space = n >= a.GetLength() ? n : space;
                break;
            case 2:
                unit = random.Long(0, 20);
                a.SetAllocUnit(unit);
                break;
            case 3:
                a.DecreaseSize(std::min(n, a.GetLength()));
                break;
            default:
                a.IncreaseSize(n / 10);
                space = a.GetLength() > space ? a.GetLength() + unit : space;
        }
        ASSERT_EQ(a.GetSpaceSize(), space) << "step " << step << ", seed " << BaseSeed();
    }
}

TEST(QnDynArray, ShrinkingKeepsTheSpaceAndRegrowingShowsTheOldValues) {
    QnDynArray<int> a = Filled({1, 2, 3, 4});
    a.DecreaseSize(3);
    EXPECT_EQ(Items(a), (Ints{1}));
    EXPECT_EQ(a.GetSpaceSize(), 11);
    a.IncreaseSize(3);
    EXPECT_EQ(Items(a), (Ints{1, 2, 3, 4}));
}

TEST(QnDynArray, RegrowthPastTheSpaceShowsDefaultElements) {
    QnDynArray<int> a(0, 2);
    for (int i = 1; i <= 3; ++i) {
        a.Append(i);  // space 3, then 3 of 3
    }
    ASSERT_EQ(a.GetSpaceSize(), 3);
    a.DecreaseSize(2);
    a.IncreaseSize(5);  // 6 exceeds the space 3: only the one element is copied
    EXPECT_EQ(Items(a), (Ints{1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(a.GetSpaceSize(), 8);
}

TEST(QnDynArray, RegrowthPastTheSpaceIsDefaultHoweverOftenItHappens) {
    QnDynArray<int> a(0, 1);
    for (int round = 0; round < 40; ++round) {
        const long before = a.GetLength();
        a.IncreaseSize(a.GetSpaceSize() - before + 1);
        for (long i = before; i < a.GetLength(); ++i) {
            EXPECT_EQ(a.GetAt(i), 0) << "round " << round;
        }
        a.SetAll(77);
        a.IncreaseSize(a.GetSpaceSize() - a.GetLength());
        a.SetAll(77);
        a.DecreaseSize(a.GetLength() / 3);
    }
}

TEST(QnDynArray, SetLengthIsExactAndKeepsOnlyOnRequest) {
    QnDynArray<int> a = Filled({1, 2, 3, 4});
    a.SetLength(6, true);
    EXPECT_EQ(Items(a), (Ints{1, 2, 3, 4, 0, 0}));
    EXPECT_EQ(a.GetSpaceSize(), 6);
    a.SetLength(2, true);
    EXPECT_EQ(Items(a), (Ints{1, 2}));
    EXPECT_EQ(a.GetSpaceSize(), 2);
    a.SetLength(3, false);
    EXPECT_EQ(Items(a), (Ints{0, 0, 0}));
    a.SetLength(0, true);
    EXPECT_EQ(a.GetSpaceSize(), 0);
    EXPECT_EQ(a.Detach(), nullptr);
}

TEST(QnDynArray, SetSpaceSizeKeepsLengthAndRefusesLessThanTheLength) {
    QnDynArray<int> a = Filled({1, 2, 3});
    EXPECT_FALSE(a.SetSpaceSize(2));
    EXPECT_EQ(a.GetSpaceSize(), 11);
    EXPECT_TRUE(a.SetSpaceSize(100));
    EXPECT_EQ(a.GetSpaceSize(), 100);
    EXPECT_EQ(Items(a), (Ints{1, 2, 3}));
    const int* const block = a.GetFirst();
    for (int i = 3; i < 100; ++i) {
        a.Append(i);
    }
    EXPECT_EQ(a.GetFirst(), block) << "no new block within the space";
    EXPECT_EQ(a.GetSpaceSize(), 100);
    EXPECT_TRUE(a.SetSpaceSize(100));
}

TEST(QnDynArray, ResetKeepsTheBlock) {
    QnDynArray<int> a = Filled({1, 2, 3});
    a.MoveTo(1);
    a.Reset();
    EXPECT_EQ(a.GetLength(), 0);
    EXPECT_EQ(a.GetCur(), -1);
    EXPECT_EQ(a.GetSpaceSize(), 11);
    EXPECT_EQ(a.Append(9), 0);
    EXPECT_EQ(Items(a), (Ints{9}));
}

TEST(QnDynArray, AttachTakesTheBlockAndDetachGivesItBack) {
    LiveScope scope;
    {
        QnDynArray<LiveObject> a(5);
        LiveObject* const block = new LiveObject[3];
        block[2].key = 7;
        a.MoveTo(2);
        a.Attach(3, block);
        EXPECT_EQ(scope.Count(), 3) << "the old contents are freed";
        EXPECT_EQ(a.GetLength(), 3);
        EXPECT_EQ(a.GetSpaceSize(), 3);
        EXPECT_EQ(a.GetCur(), -1);
        EXPECT_EQ(a.GetFirst(), block);
        EXPECT_EQ(a.GetAt(2).key, 7);
        const std::unique_ptr<LiveObject[]> back(a.Detach());
        EXPECT_EQ(back.get(), block);
        EXPECT_EQ(a.GetLength(), 0);
        EXPECT_EQ(a.GetSpaceSize(), 0);
        EXPECT_EQ(a.GetCur(), -1);
        a.Append(LiveObject(1));
        EXPECT_EQ(a.GetSpaceSize(), 11);
    }
}

TEST(QnDynArray, AttachingNothingLeavesAnEmptyArrayAndTheOwnBlockStays) {
    QnDynArray<int> a = Filled({1, 2, 3});
    a.Attach(2, const_cast<int*>(a.GetFirst()));
    EXPECT_EQ(Items(a), (Ints{1, 2}));
    EXPECT_EQ(a.GetSpaceSize(), 2);
    a.Attach(5, nullptr);
    EXPECT_EQ(a.GetLength(), 0);
    EXPECT_EQ(a.GetSpaceSize(), 0);
    EXPECT_EQ(a.Append(4), 0);
    EXPECT_EQ(CheckArray(a), "");
}

TEST(QnDynArray, DetachedBlockOfAGrownArrayHoldsTheElements) {
    QnDynArray<int> a;
    for (int i = 0; i < 100; ++i) {
        a.Append(i);
    }
    const std::unique_ptr<int[]> block(a.Detach());
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(block[static_cast<std::size_t>(i)], i);
    }
}

// ---- cursor --------------------------------------------------------------------------------------

TEST(QnDynArray, CursorMovesUncheckedBeyondBothEnds) {
    QnDynArray<int> a = Filled({1, 2});
    a.MoveToFirst();
    EXPECT_EQ(a.GetCur(), 0);
    a.MoveToPre();
    EXPECT_EQ(a.GetCur(), -1);
    EXPECT_TRUE(a.IsBegin() && a.IsOut() && !a.IsEnd());
    a.MoveToPre();
    EXPECT_EQ(a.GetCur(), -2);
    a.MoveToLast();
    EXPECT_EQ(a.GetCur(), 1);
    a.MoveToNext();
    a.MoveToNext();
    EXPECT_EQ(a.GetCur(), 3);
    EXPECT_TRUE(a.IsEnd() && a.IsOut() && !a.IsBegin());
    a.MoveTo(17);
    EXPECT_EQ(a.GetCur(), 17);
}

TEST(QnDynArray, IndexPastTheEndGrowsAndMovesTheCursor) {
    QnDynArray<int> a;
    a[5] = 8;
    EXPECT_EQ(Items(a), (Ints{0, 0, 0, 0, 0, 8}));
    EXPECT_EQ(a.GetCur(), 5);
    EXPECT_EQ(a.GetSpaceSize(), 16);
    EXPECT_EQ(a[2], 0);
    EXPECT_EQ(a.GetCur(), 2);
    const QnDynArray<int>& readOnly = a;
    EXPECT_EQ(readOnly[5], 8);
    EXPECT_EQ(a.GetCur(), 2) << "the constant form leaves the cursor";
}

TEST(QnDynArray, DelCurStepsBackSoThatNextIsTheFollowingElement) {
    QnDynArray<int> a = Filled({10, 11, 12});
    a.MoveToFirst();
    a.DelCur();
    EXPECT_EQ(a.GetCur(), -1);
    a.MoveToNext();
    EXPECT_EQ(a.GetCur(), 0);
    EXPECT_EQ(a.GetCurData(), 11);
}

TEST(QnDynArray, CursorLoopMayDelete) {
    QnDynArray<int> a = Filled({1, 2, 2, 3, 4, 4});
    for (a.MoveToFirst(); !a.IsOut(); a.MoveToNext()) {
        if (a.GetCurData() % 2 == 0) {
            a.DelCur();
        }
    }
    EXPECT_EQ(Items(a), (Ints{1, 3}));
    EXPECT_EQ(a.GetSpaceSize(), 11);
}

TEST(QnDynArray, DeletingWithTheCursorOutDoesNothing) {
    QnDynArray<int> a = Filled({1, 2});
    for (const long place : {-1L, 2L, 50L}) {
        a.MoveTo(place);
        a.DelCur();
        a.Del(place);
        EXPECT_EQ(Items(a), (Ints{1, 2}));
    }
    QnDynArray<int> empty;
    empty.DelCur();
    empty.DelHead();
    empty.DelTail();
    empty.Del(0);
    EXPECT_EQ(empty.GetLength(), 0);
    EXPECT_EQ(CheckArray(empty), "");
}

TEST(QnDynArray, InsertCurStaysOnTheNewElementAndAppendsWhenOut) {
    QnDynArray<int> a;
    a.InsertCur(2);
    EXPECT_EQ(a.GetCur(), 0);
    a.InsertCur(1);
    EXPECT_EQ(a.GetCur(), 0);
    EXPECT_EQ(Items(a), (Ints{1, 2}));
    a.MoveTo(2);
    a.InsertCur(3);
    EXPECT_EQ(a.GetCur(), 2);
    for (const long out : {-1L, -7L, 100L}) {
        a.MoveTo(out);
        a.InsertCur(9);
        EXPECT_EQ(a.GetCur(), a.GetMaxIndex());
    }
    EXPECT_EQ(Items(a), (Ints{1, 2, 3, 9, 9, 9}));
}

TEST(QnDynArray, PointerStepsLeaveTheCursorAndEndInNull) {
    QnDynArray<int> a = Filled({1, 2, 3});
    a.MoveTo(1);
    long pairs = 0;
    for (const int* p = a.GetFirst(); p != nullptr; p = a.GetNext(p)) {
        for (const int* q = a.GetLast(); q != nullptr; q = a.GetPre(q)) {
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 9);
    EXPECT_EQ(a.GetCur(), 1);
    EXPECT_EQ(a.GetNext(nullptr), nullptr);
    EXPECT_EQ(a.GetPre(nullptr), nullptr);
    EXPECT_EQ(a.GetNext(a.GetLast()), nullptr);
    EXPECT_EQ(a.GetPre(a.GetFirst()), nullptr);
}

// ---- values from inside --------------------------------------------------------------------------

TEST(QnDynArray, AnOwnElementMayBeInsertedAcrossARegrowth) {
    QnDynArray<int> a(0, 0);
    a.Append(5);
    for (int i = 0; i < 50; ++i) {
        a.Append(a.GetAt(0));
        a.InsertHead(a.GetAt(a.GetMaxIndex()));
        a.Insert(1, a.GetAt(1));
    }
    EXPECT_EQ(Items(a), Ints(151, 5));
}

TEST(QnDynArray, InsertingAnElementThatTheShiftMovesTakesItsOldValue) {
    QnDynArray<int> a = Filled({1, 2, 3});
    a.Insert(0, a.GetAt(2));
    EXPECT_EQ(Items(a), (Ints{3, 1, 2, 3}));
    a.Insert(1, a.GetAt(1));
    EXPECT_EQ(Items(a), (Ints{3, 1, 1, 2, 3}));
}

// ---- copies --------------------------------------------------------------------------------------

TEST(QnDynArray, CopyTakesTheUnitAlongAndAssignmentDoesNot) {
    QnDynArray<int> source(0, 3);
    source << 1 << 2;
    source.MoveTo(1);
    const QnDynArray<int> copy(source);
    EXPECT_EQ(copy.GetAllocUnit(), 3);
    EXPECT_EQ(Items(copy), (Ints{1, 2}));
    EXPECT_TRUE(copy.IsOut());
    QnDynArray<int> assigned(0, 8);
    assigned = source;
    EXPECT_EQ(assigned.GetAllocUnit(), 8);
    EXPECT_EQ(Items(assigned), (Ints{1, 2}));
    EXPECT_TRUE(assigned.IsOut());
    assigned[0] = 9;
    EXPECT_EQ(Items(source), (Ints{1, 2}));
}

TEST(QnDynArray, AssigningItselfChangesNothing) {
    QnDynArray<int> a = Filled({1, 2, 3});
    const QnDynArray<int>& same = a;
    a = same;
    a.DeepCopy(same);
    EXPECT_EQ(Items(a), (Ints{1, 2, 3}));
}

TEST(QnDynArray, ElementsByValueAreFreedOnce) {
    LiveScope scope;
    {
        QnDynArray<LiveObject> a;
        for (int i = 0; i < 25; ++i) {
            a.Append(LiveObject(i));
        }
        QnDynArray<LiveObject> b(a);
        QnDynArray<LiveObject> c;
        c = a;
        c.Sort(false);
        c.Move(0, 5);
        b.Del(3);
        b.SetLength(4, true);
        EXPECT_EQ(c.GetAt(4).key, 24);
    }
}

// ---- sort ----------------------------------------------------------------------------------------

TEST(QnDynArray, SortKeepsTheOrderOfEqualElementsAndTheCursorIndex) {
    for (const bool ascending : {true, false}) {
        QnDynArray<LiveObject> a;
        for (int i = 0; i < 30; ++i) {
            a.Append(LiveObject(i * 7 % 5, i));
        }
        a.MoveTo(4);
        a.Sort(ascending);
        EXPECT_EQ(a.GetCur(), 4);
        for (long i = 1; i < a.GetLength(); ++i) {
            const LiveObject& before = a.GetAt(i - 1);
            const LiveObject& after = a.GetAt(i);
            EXPECT_FALSE(ascending ? before > after : after > before);
            EXPECT_TRUE(before != after || before.tag < after.tag);
        }
    }
}

TEST(QnDynArray, SortOfOneOrNoneIsNothing) {
    QnDynArray<int> a;
    a.Sort(true);
    a.Sort(&CompareLastDigits);
    a.Append(1);
    a.Sort(false);
    EXPECT_EQ(Items(a), (Ints{1}));
}

// ---- histories -----------------------------------------------------------------------------------

TEST(QnDynArray, RandomHistoriesAgreeWithTheModel) {
    constexpr unsigned HISTORIES = 10000;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        QnDynArray<int> a(0, static_cast<long>(k % 12));
        QnDynArray<int> b;
        ValueHistory<QnDynArray<int>, ArrayModel<int>>(BaseSeed() + k, a, b).Run(40);
    }
}
