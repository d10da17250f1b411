// SPDX-License-Identifier: Apache-2.0
// The rules that all lists of values keep: QnList, QnDList and QnXList with several group sizes.
#include "containers/QnList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "containers/GroupedList.h"
#include "containers/KeepReachable.h"
#include "containers/QnDList.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

using Ints = std::vector<int>;

Ints Items(const QnList<int>& list) {
    Ints items;
    for (const int* p = list.GetFirst(); p != nullptr; p = list.GetNext(p)) {
        items.push_back(*p);
    }
    return items;
}

void Fill(QnList<int>& list, const Ints& values) {
    for (const int v : values) {
        list.Append(v);
    }
}

}  // namespace

template <class List>
class AnyList : public ::testing::Test {
protected:
    List list;
    QnList<int>& Base() { return list; }
    void FillIn(const Ints& values) { Fill(list, values); }
    void ExpectItems(const Ints& expected) {
        EXPECT_EQ(Items(list), expected);
        EXPECT_EQ(CheckList<int>(list), "");
    }
};

using ListTypes = ::testing::Types<QnList<int>, QnDList<int>, GroupedList<int, 1>, GroupedList<int, 2>,
                                   GroupedList<int, 3>, GroupedList<int, 4>, GroupedList<int, 25>>;

struct ListNames {
    template <class List>
    static std::string GetName(int i) {
        static const char* const names[] = {"QnList",          "QnDList",         "QnXListOfGroup1", "QnXListOfGroup2",
                                            "QnXListOfGroup3", "QnXListOfGroup4", "QnXListOfGroup25"};
        return names[i];
    }
};
TYPED_TEST_SUITE(AnyList, ListTypes, ListNames);

// ---- cursor --------------------------------------------------------------------------------------

TYPED_TEST(AnyList, EmptyListIsOutWhateverIsMoved) {
    this->list.MoveToFirst();
    EXPECT_TRUE(this->list.IsOut());
    this->list.MoveToLast();
    EXPECT_EQ(this->list.GetCur(), -1);
    this->list.MoveToNext();
    EXPECT_EQ(this->list.GetCur(), -1);
    this->list.MoveToPre();
    EXPECT_EQ(this->list.GetCur(), -1);
    this->list.MoveTo(0);
    EXPECT_EQ(this->list.GetCur(), -1);
    EXPECT_EQ(this->list.GetFirst(), nullptr);
    EXPECT_EQ(this->list.GetLast(), nullptr);
    this->list.Reset();
    EXPECT_EQ(this->list.Append(5), 0);
    EXPECT_EQ(this->list.GetCur(), 0);
    this->ExpectItems({5});
}

TYPED_TEST(AnyList, MoveToNextPastTheEndGoesOutAndThenRound) {
    this->FillIn({1, 2, 3});
    this->list.MoveToLast();
    EXPECT_EQ(this->list.GetCur(), 2);
    this->list.MoveToNext();
    EXPECT_TRUE(this->list.IsOut());
    EXPECT_EQ(this->list.GetCur(), -1);
    this->list.MoveToNext();
    EXPECT_EQ(this->list.GetCur(), 0);
    EXPECT_EQ(this->list.GetCurData(), 1);
}

TYPED_TEST(AnyList, MoveToPreFromTheFirstGoesOutAndThenToTheLast) {
    this->FillIn({1, 2, 3});
    this->list.MoveToFirst();
    this->list.MoveToPre();
    EXPECT_EQ(this->list.GetCur(), -1);
    this->list.MoveToPre();
    EXPECT_EQ(this->list.GetCur(), 2);
    EXPECT_EQ(this->list.GetCurData(), 3);
    this->list.MoveToPre();
    EXPECT_EQ(this->list.GetCurData(), 2);
}

TYPED_TEST(AnyList, MoveToAnInvalidIndexGoesOut) {
    this->FillIn({1, 2, 3});
    for (const long i : {3L, -1L, 100L, -100L}) {
        this->list.MoveTo(1);
        this->list.MoveTo(i);
        EXPECT_EQ(this->list.GetCur(), -1) << i;
    }
    EXPECT_TRUE(this->list.IsBegin()) << "out is -1 also behind the last element";
    EXPECT_FALSE(this->list.IsEnd());
    this->ExpectItems({1, 2, 3});
}

TYPED_TEST(AnyList, WritingWithTheCursorOutHarmsNothing) {
    this->FillIn({1, 2});
    this->list.MoveTo(-1);
    this->list.SetCurData(99);
    this->list.GetCurData() = 98;
    this->ExpectItems({1, 2});
    EXPECT_EQ(this->list.GetAt(5), 98) << "an invalid index reads the sentinel's data";
    EXPECT_EQ(this->list.GetAt(-1), 98);
}

TYPED_TEST(AnyList, ReadingLeavesTheCursor) {
    this->FillIn({1, 2, 3, 4, 5});
    this->list.MoveTo(2);
    for (const long i : {0L, 4L, 1L, 3L, 2L}) {
        EXPECT_EQ(this->list.GetAt(i), i + 1);
        EXPECT_EQ(this->list.GetCur(), 2);
        EXPECT_EQ(this->list.GetCurData(), 3);
    }
}

TYPED_TEST(AnyList, IndexPastTheEndAppendsDefaultElements) {
    this->FillIn({1});
    this->list[3] = 9;
    EXPECT_EQ(this->list.GetCur(), 3);
    this->ExpectItems({1, 0, 0, 9});
    this->list[-1] = 7;
    EXPECT_TRUE(this->list.IsOut());
    this->ExpectItems({1, 0, 0, 9});
}

TYPED_TEST(AnyList, IndexLoopsAgreeWithThePointerWalkWhateverHappensBetween) {
    RandomSource random(BaseSeed());
    Ints expected;
    for (int step = 0; step < 4000; ++step) {
        const long n = this->list.GetLength();
        const long i = random.Long(0, n > 0 ? n - 1 : 0);
        switch (random.Int(0, 5)) {
            case 0:
                this->list.Insert(i, step);
                expected.insert(expected.begin() + i, step);
                break;
            case 1:
                if (n > 40) {
                    this->list.Del(i);
                    expected.erase(expected.begin() + i);
                }
                break;
            default:
                if (n > 0) {
                    ASSERT_EQ(this->list.GetAt(i), expected[static_cast<std::size_t>(i)]) << "step " << step;
                    this->list.MoveTo(n - 1 - i);
                    ASSERT_EQ(this->list.GetCurData(), expected[static_cast<std::size_t>(n - 1 - i)]);
                }
        }
    }
    this->ExpectItems(expected);
}

// ---- inserting and deleting ----------------------------------------------------------------------

TYPED_TEST(AnyList, InsertCurOutAppendsAndOnTheFirstMakesANewHead) {
    this->FillIn({1, 2});
    this->list.MoveTo(-1);
    this->list.InsertCur(3);
    EXPECT_EQ(this->list.GetCur(), 2);
    this->ExpectItems({1, 2, 3});
    this->list.MoveToFirst();
    this->list.InsertCur(0);
    EXPECT_EQ(this->list.GetCur(), 0);
    this->ExpectItems({0, 1, 2, 3});
}

TYPED_TEST(AnyList, InsertAfterCurGoesToTheHeadWhenOut) {
    this->FillIn({1});
    this->list.InsertAfterCur(2);
    EXPECT_EQ(this->list.GetCur(), 1);
    this->list.MoveTo(-1);
    this->list.InsertAfterCur(0);
    EXPECT_EQ(this->list.GetCur(), 0);
    this->ExpectItems({0, 1, 2});
}

TYPED_TEST(AnyList, InsertWithAnInvalidPlaceGoesToTheHead) {
    this->FillIn({1, 2});
    this->list.Insert(9, 8);
    this->ExpectItems({8, 1, 2});
    this->list.Insert(-5, 7);
    this->ExpectItems({7, 8, 1, 2});
    this->list.Insert(4, 3);
    this->ExpectItems({7, 8, 1, 2, 3});
    EXPECT_EQ(this->list.GetCur(), 4);
}

TYPED_TEST(AnyList, AnOwnElementMayBeInserted) {
    this->FillIn({1, 2, 3});
    this->list.Append(this->list.GetAt(0));
    this->list.InsertHead(this->list.GetAt(2));
    this->list.MoveTo(1);
    this->list.InsertCur(this->list.GetCurData());
    this->ExpectItems({3, 1, 1, 2, 3, 1});
}

TYPED_TEST(AnyList, DelCurOfTheOnlyElementLeavesAnEmptyList) {
    this->FillIn({1});
    this->list.DelCur();
    EXPECT_EQ(this->list.GetCur(), -1);
    EXPECT_EQ(this->list.GetFirst(), nullptr);
    EXPECT_EQ(this->list.GetLast(), nullptr);
    EXPECT_EQ(this->list.Append(4), 0);
    this->ExpectItems({4});
}

TYPED_TEST(AnyList, DelCurEndsOnThePreviousElement) {
    this->FillIn({1, 2, 3});
    this->list.DelCur();
    EXPECT_EQ(this->list.GetCur(), 1);
    this->list.MoveToFirst();
    this->list.DelCur();
    EXPECT_TRUE(this->list.IsOut());
    this->list.MoveToNext();
    EXPECT_EQ(this->list.GetCurData(), 2);
    this->ExpectItems({2});
}

TYPED_TEST(AnyList, DeletingWithTheCursorOutDoesNothing) {
    this->FillIn({1});
    this->list.MoveTo(-1);
    this->list.DelCur();
    this->list.Del(5);
    this->ExpectItems({1});
    this->list.Reset();
    this->list.DelHead();
    this->list.DelTail();
    this->list.DelCur();
    this->ExpectItems({});
}

TYPED_TEST(AnyList, CursorLoopMayDelete) {
    this->FillIn({2, 2, 1, 4, 3, 6});
    for (this->list.MoveToFirst(); !this->list.IsOut(); this->list.MoveToNext()) {
        if (this->list.GetCurData() % 2 == 0) {
            this->list.DelCur();
        }
    }
    this->ExpectItems({1, 3});
}

TYPED_TEST(AnyList, SetLengthGrowsKeepingTheCursorAndShrinksFromTheTail) {
    this->FillIn({1, 2, 3});
    this->list.MoveTo(1);
    this->list.SetLength(5, false);
    EXPECT_EQ(this->list.GetCur(), 1);
    this->ExpectItems({1, 2, 3, 0, 0});
    this->list.SetLength(2, false);
    EXPECT_EQ(this->list.GetCur(), 1);
    this->ExpectItems({1, 2});
    this->list.DecreaseSize(1);
    this->ExpectItems({1, 2});
    this->list.MoveTo(-1);
    this->list.IncreaseSize(1);
    EXPECT_TRUE(this->list.IsOut());
    this->ExpectItems({1, 2, 0});
}

// ---- relinking -----------------------------------------------------------------------------------

TYPED_TEST(AnyList, ConbineMovesTheNodesThemselves) {
    TypeParam other;
    this->FillIn({1, 2});
    Fill(other, {3, 4, 5});
    const int* const moved = other.GetTo(1);
    this->list.MoveTo(0);
    EXPECT_EQ(this->list.Conbine(other, 1), 4);
    EXPECT_EQ(this->list.GetTo(2), moved);
    EXPECT_EQ(this->list.GetCur(), 0);
    EXPECT_EQ(other.GetCur(), 0);
    EXPECT_EQ(Items(other), (Ints{3}));
    this->ExpectItems({1, 2, 4, 5});
    EXPECT_EQ(CheckList<int>(other), "");
}

TYPED_TEST(AnyList, ConbineFromZeroLeavesAnEmptyUsableList) {
    TypeParam other;
    Fill(other, {3, 4, 5});
    EXPECT_EQ(this->list.Conbine(other, 0), 3);
    EXPECT_TRUE(this->list.IsOut());
    EXPECT_TRUE(other.IsEmpty() && other.IsOut());
    EXPECT_EQ(this->list.Conbine(other, 0), 3) << "an empty list adds nothing";
    Fill(other, {6});
    EXPECT_EQ(this->list.Conbine(other, 0), 4);
    this->ExpectItems({3, 4, 5, 6});
    EXPECT_EQ(CheckList<int>(other), "");
}

TYPED_TEST(AnyList, ConbineFromAnInvalidIndexOrItselfChangesNothing) {
    TypeParam other;
    this->FillIn({1});
    Fill(other, {3, 4, 5});
    other.MoveTo(1);
    EXPECT_EQ(this->list.Conbine(other, 7), 1);
    EXPECT_EQ(this->list.Conbine(other, 3), 1);
    EXPECT_EQ(this->list.Conbine(other, -1), 1);
    EXPECT_EQ(other.GetCur(), 1);
    EXPECT_EQ(other.Conbine(other, 1), 3);
    EXPECT_EQ(Items(other), (Ints{3, 4, 5}));
    EXPECT_EQ(CheckList<int>(other), "");
}

TYPED_TEST(AnyList, ConbineWorksBetweenAllKindsOfLists) {
    this->FillIn({1});
    QnList<int> single;
    QnDList<int> twofold;
    GroupedList<int, 2> indexed;
    Fill(single, {2, 3});
    Fill(twofold, {4, 5});
    Fill(indexed, {6, 7, 8});
    this->list.Conbine(single, 0);
    this->list.Conbine(twofold, 1);
    this->list.Conbine(indexed, 1);
    this->ExpectItems({1, 2, 3, 5, 7, 8});
    EXPECT_EQ(Items(twofold), (Ints{4}));
    EXPECT_EQ(CheckList<int>(indexed), "");
    single.Conbine(this->list, 2);
    indexed.Conbine(single, 1);
    EXPECT_EQ(CheckList<int>(single), "");
    EXPECT_EQ(CheckList<int>(indexed), "");
    EXPECT_EQ(Items(indexed), (Ints{6, 5, 7, 8}));
    this->ExpectItems({1, 2});
}

TYPED_TEST(AnyList, SplitAtMovesTheRestAndNothingFromAnInvalidIndex) {
    TypeParam rest;
    this->FillIn({1, 2, 3, 4, 5});
    this->list.SplitAt(3, rest);
    EXPECT_EQ(this->list.GetCur(), 2);
    EXPECT_EQ(Items(rest), (Ints{4, 5}));
    this->list.SplitAt(9, rest);
    this->ExpectItems({1, 2, 3});
    this->list.MoveTo(1);
    this->list.SplitAtCur(rest);
    this->ExpectItems({1});
    EXPECT_EQ(Items(rest), (Ints{4, 5, 2, 3}));
    this->list.MoveTo(-1);
    this->list.SplitAtCur(rest);
    this->ExpectItems({1});
    EXPECT_EQ(CheckList<int>(rest), "");
}

TYPED_TEST(AnyList, DetachCutsBehindTheCursor) {
    this->FillIn({1, 2, 3, 4, 5});
    KeepReachable(this->Base(), 1);
    this->list.MoveTo(3);
    this->list.DetachAfterCur();
    EXPECT_EQ(this->list.GetCur(), 3);
    this->ExpectItems({1, 2, 3, 4});
    this->list.DetachAfter(1);
    this->ExpectItems({1, 2});
    this->list.Append(9);
    this->ExpectItems({1, 2, 9});
    KeepReachable(this->Base(), 0);
    this->list.Detach();
    EXPECT_TRUE(this->list.IsOut());
    this->ExpectItems({});
    this->list.Append(7);
    this->ExpectItems({7});
}

TYPED_TEST(AnyList, RotateBringsOneElementToAnIndex) {
    this->FillIn({0, 1, 2, 3});
    this->list.Rotate(2, 0);
    EXPECT_EQ(this->list.GetCur(), 0);
    this->ExpectItems({2, 3, 0, 1});
    this->list.Rotate(0, 3);
    this->ExpectItems({3, 0, 1, 2});
    this->list.MoveTo(2);
    this->list.Rotate(1, 1);
    EXPECT_EQ(this->list.GetCur(), 2) << "equal indexes: nothing";
    this->ExpectItems({3, 0, 1, 2});
    TypeParam one;
    one.Rotate(0, 1);
    one.Append(5);
    one.Rotate(0, 3);
    EXPECT_EQ(Items(one), (Ints{5}));
}

TYPED_TEST(AnyList, ReverseListKeepsTheCursorIndexOnTheElementNowThere) {
    this->FillIn({1, 2, 3, 4});
    const int* const second = this->list.GetTo(1);
    this->list.MoveTo(1);
    this->list.ReverseList();
    EXPECT_EQ(this->list.GetCur(), 1);
    EXPECT_EQ(this->list.GetCurData(), 3);
    EXPECT_EQ(this->list.GetTo(2), second) << "the nodes are relinked, the values stay in them";
    this->ExpectItems({4, 3, 2, 1});
    this->list.MoveTo(-1);
    this->list.ReverseList();
    EXPECT_TRUE(this->list.IsOut());
    this->ExpectItems({1, 2, 3, 4});
}

TYPED_TEST(AnyList, SortRelinksAndLeavesTheCursorOut) {
    this->FillIn({3, 1, 2});
    const int* const three = this->list.GetTo(0);
    this->list.Sort(true);
    EXPECT_TRUE(this->list.IsOut());
    EXPECT_EQ(this->list.GetTo(2), three);
    this->ExpectItems({1, 2, 3});
    this->list.Sort(false);
    this->ExpectItems({3, 2, 1});
    this->list.Reset();
    this->FillIn({21, 11, 3, 1, 13});
    this->list.Sort(&CompareLastDigits);
    this->ExpectItems({21, 11, 1, 3, 13});
}

TYPED_TEST(AnyList, SortKeepsTheNodesOfEqualValuesInTheirOrder) {
    for (const bool ascending : {true, false}) {
        this->list.Reset();
        this->FillIn({2, 1, 2, 3, 1, 2, 1});
        std::vector<const int*> nodes = container_checks::Addresses<int>(this->list);
        std::stable_sort(nodes.begin(), nodes.end(),
                         [ascending](const int* a, const int* b) { return ascending ? *a < *b : *a > *b; });
        this->list.Sort(ascending);
        EXPECT_EQ(container_checks::Addresses<int>(this->list), nodes);
    }
}

TYPED_TEST(AnyList, CopiesAreDeepWithTheCursorOut) {
    this->FillIn({1, 2, 3});
    this->list.MoveTo(1);
    TypeParam copy(this->list);
    EXPECT_TRUE(copy.IsOut());
    EXPECT_EQ(Items(copy), (Ints{1, 2, 3}));
    copy[0] = 9;
    TypeParam assigned;
    Fill(assigned, {7, 7, 7, 7, 7});
    assigned = this->list;
    EXPECT_TRUE(assigned.IsOut());
    EXPECT_EQ(Items(assigned), (Ints{1, 2, 3}));
    EXPECT_EQ(CheckList<int>(copy), "");
    EXPECT_EQ(CheckList<int>(assigned), "");
    const TypeParam& same = assigned;
    assigned = same;
    EXPECT_EQ(Items(assigned), (Ints{1, 2, 3}));
    EXPECT_EQ(this->list.GetCur(), 1);
    this->ExpectItems({1, 2, 3});
}
