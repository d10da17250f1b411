// SPDX-License-Identifier: Apache-2.0
// The rules of lists that own what their elements point to: QnPDList and QnPXList alike.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "containers/GroupedList.h"
#include "containers/KeepReachable.h"
#include "containers/QnPDList.h"
#include "containers/QnQuene.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"

namespace {

using Ints = std::vector<int>;

/// The entries' keys, -1 for an empty one.
Ints Keys(const QnDList<LiveObject*>& list) {
    Ints keys;
    for (LiveObject* const* p = list.GetFirst(); p != nullptr; p = list.GetNext(p)) {
        keys.push_back(*p == nullptr ? -1 : (*p)->key);
    }
    return keys;
}

/// A key below 0 makes an empty entry; the tag is the position.
void Fill(QnDList<LiveObject*>& list, const Ints& keys) {
    int position = 0;
    for (const int key : keys) {
        list.Append(key < 0 ? nullptr : new LiveObject(key, position));
        ++position;
    }
}

int Downward(const LiveObject& a, const LiveObject& b) {
    return CompareKeys(b, a);
}

}  // namespace

template <class List>
class AnyPointerList : public ::testing::Test {
protected:
    LiveScope m_scope;
    List list;

    void ExpectKeys(const Ints& expected) {
        EXPECT_EQ(Keys(list), expected);
        EXPECT_EQ(CheckList<LiveObject*>(list), "");
    }
};

using PointerLists = ::testing::Types<QnPDList<LiveObject>, GroupedPList<LiveObject, 1>, GroupedPList<LiveObject, 4>>;

struct PointerListNames {
    template <class List>
    static std::string GetName(int i) {
        static const char* const names[] = {"QnPDList", "QnPXListOfGroup1", "QnPXListOfGroup4"};
        return names[i];
    }
};
TYPED_TEST_SUITE(AnyPointerList, PointerLists, PointerListNames);

TYPED_TEST(AnyPointerList, DestructorDeletesTheObjects) {
    {
        TypeParam owner;
        Fill(owner, {1, -1, 2});
        EXPECT_EQ(this->m_scope.Count(), 2);
    }
    EXPECT_EQ(this->m_scope.Count(), 0);
}

TYPED_TEST(AnyPointerList, WhateverLeavesThroughDeletingOperationsIsDeleted) {
    Fill(this->list, {1, 2, 3, 4, 5, 6});
    this->list.MoveTo(2);
    this->list.DelCur();
    EXPECT_EQ(this->list.GetCur(), 1);
    this->list.Del(0);
    this->list.DelHead();
    this->list.DelTail();
    this->ExpectKeys({4, 5});
    EXPECT_EQ(this->m_scope.Count(), 2);
    this->list.SetLength(1, true);
    EXPECT_EQ(this->m_scope.Count(), 1);
    this->list.Reset();
    EXPECT_EQ(this->m_scope.Count(), 0);
    EXPECT_EQ(this->list.GetCur(), -1);
}

TYPED_TEST(AnyPointerList, GrowingAddsEmptyEntries) {
    Fill(this->list, {1});
    this->list.IncreaseSize(2);
    this->list.SetLength(4, true);
    this->ExpectKeys({1, -1, -1, -1});
    TypeParam sized(3);
    EXPECT_EQ(Keys(sized), (Ints{-1, -1, -1}));
    EXPECT_EQ(sized.GetDataNum(), 0);
}

TYPED_TEST(AnyPointerList, ReleaseKeepsThePlaceAndPlaceInRefillsIt) {
    Fill(this->list, {1, 2, 3});
    this->list.MoveTo(1);
    this->list.ReleaseCur();
    EXPECT_EQ(this->list.GetLength(), 3);
    EXPECT_TRUE(this->list.IsCurEmpty());
    EXPECT_EQ(this->list.GetDataNum(), 2);
    this->ExpectKeys({1, -1, 3});
    EXPECT_EQ(this->list.PlaceIn(new LiveObject(7)), 1);
    EXPECT_EQ(this->list.PlaceIn(new LiveObject(8)), 3);
    this->ExpectKeys({1, 7, 3, 8});
    this->list.Release(0);
    this->ExpectKeys({-1, 7, 3, 8});
    this->list.ReleaseAll();
    this->ExpectKeys({-1, -1, -1, -1});
    EXPECT_EQ(this->m_scope.Count(), 0);
    this->list.MoveTo(-1);
    this->list.ReleaseCur();
    this->list.Release(99);
    EXPECT_EQ(this->list.GetLength(), 4);
}

TYPED_TEST(AnyPointerList, TakeOffShortensAndHandsTheObjectOver) {
    Fill(this->list, {1, 2, 3, 4, -1});
    this->list.MoveTo(1);
    const std::unique_ptr<LiveObject> second(this->list.TakeOffCur());
    EXPECT_EQ(second->key, 2);
    EXPECT_EQ(this->list.GetCur(), 0) << "on the previous element, as after DelCur";
    EXPECT_EQ(this->list.TakeOffTail(), nullptr) << "an empty entry";
    const std::unique_ptr<LiveObject> tail(this->list.TakeOffTail());
    const std::unique_ptr<LiveObject> head(this->list.TakeOffHead());
    EXPECT_EQ(tail->key, 4);
    EXPECT_EQ(head->key, 1);
    this->ExpectKeys({3});
    EXPECT_EQ(this->list.TakeOff(1), nullptr);
    const std::unique_ptr<LiveObject> last(this->list.TakeOff(0));
    EXPECT_EQ(last->key, 3);
    EXPECT_EQ(this->list.TakeOffHead(), nullptr);
    EXPECT_EQ(this->list.TakeOffTail(), nullptr);
    EXPECT_EQ(this->list.TakeOffCur(), nullptr);
    EXPECT_EQ(this->m_scope.Count(), 4);
}

TYPED_TEST(AnyPointerList, CursorLoopMayTakeOff) {
    Fill(this->list, {2, 4, 1, 6, 3});
    QnPDList<LiveObject> even;
    for (this->list.MoveToFirst(); !this->list.IsOut(); this->list.MoveToNext()) {
        if (this->list.GetCurPData()->key % 2 == 0) {
            even.Append(this->list.TakeOffCur());
        }
    }
    this->ExpectKeys({1, 3});
    EXPECT_EQ(Keys(even), (Ints{2, 4, 6}));
    EXPECT_EQ(this->m_scope.Count(), 5);
}

TYPED_TEST(AnyPointerList, AccessAnswersEmptyForInvalidPlaces) {
    Fill(this->list, {1, -1});
    EXPECT_EQ(this->list.GetPData(0)->key, 1);
    EXPECT_EQ(this->list(0), this->list.GetPData(0));
    EXPECT_EQ(this->list.GetPData(1), nullptr);
    EXPECT_FALSE(this->list.IsEmptyData(0));
    EXPECT_TRUE(this->list.IsEmptyData(1));
    EXPECT_TRUE(this->list.IsEmptyData(2));
    EXPECT_TRUE(this->list.IsEmptyData(-1));
    this->list.MoveTo(0);
    EXPECT_FALSE(this->list.IsCurEmpty());
    EXPECT_EQ(this->list.GetCurPData()->key, 1);
    this->list.MoveTo(-1);
    EXPECT_TRUE(this->list.IsCurEmpty());
    LiveObject stray(9);
    this->list.SetCurData(&stray);
    EXPECT_TRUE(this->list.IsCurEmpty()) << "out is empty, whatever was written there";
    this->list.SetCurData(nullptr);
}

TYPED_TEST(AnyPointerList, SetCurDataDoesNotDeleteWhatItReplaces) {
    Fill(this->list, {1});
    const std::unique_ptr<LiveObject> old(this->list.GetCurPData());
    this->list.SetCurData(new LiveObject(2));
    EXPECT_EQ(this->m_scope.Count(), 2);
    this->ExpectKeys({2});
}

TYPED_TEST(AnyPointerList, ConbineMovesTheOwnership) {
    TypeParam other;
    Fill(this->list, {1});
    Fill(other, {2, 3, 4});
    LiveObject* const moved = other.GetPData(2);
    EXPECT_EQ(this->list.Conbine(other, 1), 3);
    EXPECT_EQ(this->list.GetPData(2), moved);
    EXPECT_EQ(this->m_scope.Count(), 4);
    other.Reset();
    EXPECT_EQ(this->m_scope.Count(), 3);
    this->ExpectKeys({1, 3, 4});
    TypeParam rest;
    this->list.SplitAt(1, rest);
    rest.Reset();
    EXPECT_EQ(this->m_scope.Count(), 1);
}

TYPED_TEST(AnyPointerList, NodesCanPassThroughAPlainList) {
    Fill(this->list, {1, 2, 3});
    QnList<LiveObject*> plain;
    plain.Conbine(this->list, 0);
    EXPECT_EQ(this->list.GetLength(), 0);
    plain.ReverseList();
    this->list.Conbine(plain, 0);
    this->ExpectKeys({3, 2, 1});
    EXPECT_EQ(this->m_scope.Count(), 3);
}

TYPED_TEST(AnyPointerList, DetachingFreesNothing) {
    Fill(this->list, {1, 2, 3});
    const std::unique_ptr<LiveObject> second(this->list.GetPData(1));
    const std::unique_ptr<LiveObject> third(this->list.GetPData(2));
    KeepReachable<LiveObject*>(this->list, 1);
    this->list.DetachAfter(0);
    EXPECT_EQ(this->m_scope.Count(), 3);
    this->ExpectKeys({1});
}

TYPED_TEST(AnyPointerList, MoveCarriesTheObject) {
    Fill(this->list, {0, 1, 2, 3});
    EXPECT_FALSE(this->list.Move(2, 3));
    EXPECT_FALSE(this->list.Move(2, 2));
    EXPECT_TRUE(this->list.Move(0, 3));
    EXPECT_EQ(this->list.GetCur(), 2);
    this->ExpectKeys({1, 2, 0, 3});
    EXPECT_TRUE(this->list.Move(3, 0));
    EXPECT_EQ(this->list.GetCur(), 0);
    this->ExpectKeys({3, 1, 2, 0});
    EXPECT_EQ(this->m_scope.Count(), 4);
}

TYPED_TEST(AnyPointerList, RotateAndReverseListCarryTheObjects) {
    Fill(this->list, {0, 1, -1, 3});
    this->list.Rotate(2, 0);
    this->ExpectKeys({-1, 3, 0, 1});
    this->list.ReverseList();
    this->ExpectKeys({1, 0, 3, -1});
    EXPECT_EQ(this->m_scope.Count(), 3);
}

TYPED_TEST(AnyPointerList, SortPutsEmptyEntriesBehindInBothForms) {
    Fill(this->list, {-1, 3, -1, 1, 2, 1, -1});
    this->list.Sort(true);
    this->ExpectKeys({1, 1, 2, 3, -1, -1, -1});
    EXPECT_EQ(this->list.GetPData(0)->tag, 3) << "equal objects keep their order";
    this->list.Sort(false);
    this->ExpectKeys({3, 2, 1, 1, -1, -1, -1});
    EXPECT_EQ(this->list.GetPData(2)->tag, 3);
    this->list.InsertHead(nullptr);
    this->list.Sort(&CompareKeys);
    this->ExpectKeys({1, 1, 2, 3, -1, -1, -1, -1});
    this->list.Sort(&Downward);
    this->ExpectKeys({3, 2, 1, 1, -1, -1, -1, -1});
    EXPECT_EQ(this->m_scope.Count(), 4);
    TypeParam empties(3);
    empties.Sort(true);
    EXPECT_EQ(Keys(empties), (Ints{-1, -1, -1}));
}

TYPED_TEST(AnyPointerList, FindDataComparesObjectsAndSkipsEmptyEntries) {
    Fill(this->list, {-1, 4, 5, -1, 4});
    const LiveObject four(4);
    EXPECT_EQ(this->list.FindData(four, 0, -1), 1);
    EXPECT_EQ(this->list.FindData(four, 2, -1), 4);
    EXPECT_EQ(this->list.FindData(four, 2, 3), -1);
    EXPECT_EQ(this->list.FindData(four, 5, -1), -1);
    EXPECT_EQ(this->list.FindData(LiveObject(6), 0, -1), -1);
    QnListQuene<long> hits;
    EXPECT_EQ(this->list.FindData(four, hits, 0, -1), 2);
    EXPECT_EQ(hits[1], 4);
    EXPECT_TRUE(this->list.FindDataTo(four, 2, -1));
    EXPECT_EQ(this->list.GetCur(), 4);
    EXPECT_FALSE(this->list.FindDataTo(LiveObject(6), 0, -1));
    EXPECT_TRUE(this->list.IsOut());
    EXPECT_EQ(this->list.Find(this->list.GetPData(4)), 4) << "the base form looks for the very pointer";
}

TYPED_TEST(AnyPointerList, FindDelTakesOnePointerAndFindDataDelAllEquals) {
    Fill(this->list, {4, -1, 5, 4, 4});
    EXPECT_EQ(this->list.FindDel(this->list.GetPData(3)), 1);
    this->ExpectKeys({4, -1, 5, 4});
    LiveObject stranger(4);
    EXPECT_EQ(this->list.FindDel(&stranger), 0);
    EXPECT_EQ(this->list.FindDataDel(*this->list.GetPData(0)), 2) << "even when told by an own object";
    this->ExpectKeys({-1, 5});
    EXPECT_EQ(this->list.FindDataDel(LiveObject(4)), 0);
}

TYPED_TEST(AnyPointerList, FindDataOrAppendAddsACopyOnlyIfAbsent) {
    Fill(this->list, {-1, 4});
    EXPECT_EQ(this->list.FindDataOrAppend(LiveObject(4)), 1);
    EXPECT_EQ(this->list.FindDataOrAppend(LiveObject(6)), 2);
    this->list.FindDataOrInsertHead(LiveObject(6));
    this->list.FindDataOrInsertHead(LiveObject(7));
    this->ExpectKeys({7, -1, 4, 6});
    EXPECT_EQ(this->m_scope.Count(), 3);
}

TYPED_TEST(AnyPointerList, SortIntoKeepsTheOrderOfArrivalAndRefusesRepeats) {
    int tag = 0;
    for (const int key : {5, 2, 5, 9, 2, 5}) {
        EXPECT_TRUE(this->list.SortInto(new LiveObject(key, ++tag), true));
        EXPECT_EQ(this->list.GetCurPData()->tag, tag);
    }
    this->ExpectKeys({2, 2, 5, 5, 5, 9});
    for (long i = 1; i < this->list.GetLength(); ++i) {
        const LiveObject& before = *this->list.GetPData(i - 1);
        const LiveObject& after = *this->list.GetPData(i);
        EXPECT_TRUE(before != after || before.tag < after.tag);
    }
    const auto repeat = std::make_unique<LiveObject>(9);
    EXPECT_FALSE(this->list.SortInto(repeat.get(), false));
    EXPECT_EQ(this->list.BFindData(LiveObject(9), 0, -1), 5);
    EXPECT_EQ(this->list.BFindData(LiveObject(3), 0, -1), -1);
    EXPECT_EQ(this->list.BFindData(LiveObject(9), 0, 4), -1);
    EXPECT_FALSE(this->list.BFindDataTo(LiveObject(3), 0, -1));
    EXPECT_EQ(this->list.GetCur(), 2);
    EXPECT_FALSE(this->list.BFindDataTo(LiveObject(10), 0, -1));
    EXPECT_TRUE(this->list.IsOut());
    EXPECT_TRUE(this->list.BFindDataTo(LiveObject(9), 0, -1));
    EXPECT_EQ(this->list.GetCur(), 5);
}

TYPED_TEST(AnyPointerList, SortedOperationsPassOverEmptyEntries) {
    Fill(this->list, {-1, 2, -1, -1, 4, -1, 4, 6, -1});
    for (const int key : {2, 4, 6}) {
        EXPECT_EQ(this->list.GetPData(this->list.BFindData(LiveObject(key), 0, -1))->key, key);
    }
    EXPECT_EQ(this->list.BFindData(LiveObject(3), 0, -1), -1);
    EXPECT_EQ(this->list.BFindData(LiveObject(7), 0, -1), -1);
    EXPECT_TRUE(this->list.SortInto(new LiveObject(4, 99), true));
    this->ExpectKeys({-1, 2, -1, -1, 4, -1, 4, 4, 6, -1});
    EXPECT_EQ(this->list.GetPData(7)->tag, 99) << "behind the last equal one";
    EXPECT_FALSE(this->list.SortInto(nullptr, true));
    TypeParam empties(3);
    EXPECT_FALSE(empties.BFindDataTo(LiveObject(1), 0, -1));
    EXPECT_EQ(empties.GetCur(), 0);
}

TYPED_TEST(AnyPointerList, CopyingFromOtherSequencesFreesTheOldObjectsFirst) {
    LiveObject first(1);
    QnDynArray<LiveObject*> borrowed;
    borrowed << &first << nullptr;
    const QnArray<LiveObject*> exact(borrowed);
    Fill(this->list, {7, 8, 9});
    this->list.DeepCopy(borrowed);
    EXPECT_EQ(this->m_scope.Count(), 1);
    this->ExpectKeys({1, -1});
    EXPECT_EQ(this->list.TakeOffHead(), &first) << "the pointer itself";
    this->list.Append(new LiveObject(5));
    this->list.DeepCopy(exact);
    EXPECT_EQ(this->m_scope.Count(), 1);
    EXPECT_EQ(this->list.TakeOffHead(), &first);
}

TYPED_TEST(AnyPointerList, ComparisonLooksAtObjectsAndEmptyEntries) {
    TypeParam other;
    Fill(this->list, {1, -1, 2});
    Fill(other, {1, -1, 2});
    EXPECT_TRUE(this->list == other);
    EXPECT_FALSE(this->list != other);
    other.Release(2);
    EXPECT_TRUE(this->list != other) << "filled against empty";
    other.PlaceIn(new LiveObject(2));
    EXPECT_TRUE(this->list != other) << "the empty entry stands elsewhere";
    TypeParam shorter;
    Fill(shorter, {1, -1});
    EXPECT_TRUE(this->list != shorter);
    EXPECT_TRUE(shorter < this->list);
}

TYPED_TEST(AnyPointerList, TheCopyConstructorSharesThePointers) {
    Fill(this->list, {1, -1, 2});
    TypeParam copy(this->list);
    EXPECT_EQ(copy.GetPData(0), this->list.GetPData(0));
    EXPECT_EQ(Keys(copy), (Ints{1, -1, 2}));
    EXPECT_EQ(CheckList<LiveObject*>(copy), "");
    while (!copy.IsEmpty()) {
        copy.TakeOffHead();  // whoever copies must empty one side
    }
    EXPECT_EQ(this->m_scope.Count(), 2);
    this->ExpectKeys({1, -1, 2});
}

TYPED_TEST(AnyPointerList, AssignmentFreesTheOldObjectsAndThenSharesThePointers) {
    TypeParam target;
    Fill(this->list, {1, 2});
    Fill(target, {7, 8, 9});
    target = this->list;
    EXPECT_EQ(this->m_scope.Count(), 2);
    EXPECT_EQ(target.GetPData(1), this->list.GetPData(1));
    EXPECT_EQ(CheckList<LiveObject*>(target), "");
    const TypeParam& same = target;
    target = same;
    EXPECT_EQ(this->m_scope.Count(), 2);
    while (!target.IsEmpty()) {
        target.TakeOffTail();
    }
    this->ExpectKeys({1, 2});
}
