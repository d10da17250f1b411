// SPDX-License-Identifier: Apache-2.0
#include "containers/QnDynPArray.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "containers/OwnedHistory.h"
#include "containers/QnQuene.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"

namespace {

using Array = QnDynPArray<LiveObject>;

/// A key below 0 makes an empty entry; the tag is the position.
void Fill(Array& a, const std::vector<int>& keys) {
    int position = 0;
    for (const int key : keys) {
        a.Append(key < 0 ? nullptr : new LiveObject(key, position));
        ++position;
    }
}

std::vector<int> Keys(const Array& a) {
    std::vector<int> keys;
    for (LiveObject* const* p = a.GetFirst(); p != nullptr; p = a.GetNext(p)) {
        keys.push_back(*p == nullptr ? -1 : (*p)->key);
    }
    return keys;
}

using Ints = std::vector<int>;

class QnDynPArrayTest : public ::testing::Test {
protected:
    LiveScope m_scope;
};

int Downward(const LiveObject& a, const LiveObject& b) {
    return CompareKeys(b, a);
}

}  // namespace

TEST_F(QnDynPArrayTest, DestructorDeletesTheObjects) {
    {
        Array a;
        Fill(a, {1, 2, -1, 3});
        EXPECT_EQ(m_scope.Count(), 3);
        EXPECT_EQ(a.GetDataNum(), 3);
    }
    EXPECT_EQ(m_scope.Count(), 0);
}

TEST_F(QnDynPArrayTest, GrowingAddsEmptyEntriesAndShrinkingDeletes) {
    Array a;
    Fill(a, {1, 2, 3});
    a.DecreaseSize(2);
    EXPECT_EQ(m_scope.Count(), 1);
    a.IncreaseSize(2);
    EXPECT_EQ(Keys(a), (Ints{1, -1, -1})) << "never the pointers of deleted objects";
    a[5] = new LiveObject(6);
    EXPECT_EQ(Keys(a), (Ints{1, -1, -1, -1, -1, 6}));
    a.IncreaseSize(40);
    EXPECT_EQ(a.GetDataNum(), 2);
    EXPECT_EQ(CheckArray<LiveObject*>(a), "");
}

TEST_F(QnDynPArrayTest, SetLengthReleasesAllUnlessItKeeps) {
    Array a;
    Fill(a, {1, 2, 3});
    a.SetLength(5, true);
    EXPECT_EQ(Keys(a), (Ints{1, 2, 3, -1, -1}));
    EXPECT_EQ(a.GetSpaceSize(), 5);
    a.SetLength(2, true);
    EXPECT_EQ(Keys(a), (Ints{1, 2}));
    EXPECT_EQ(m_scope.Count(), 2);
    a.SetLength(2, false);
    EXPECT_EQ(Keys(a), (Ints{-1, -1}));
    EXPECT_EQ(m_scope.Count(), 0);
}

TEST_F(QnDynPArrayTest, SetSpaceSizeKeepsTheObjects) {
    Array a;
    Fill(a, {1, 2, 3});
    EXPECT_TRUE(a.SetSpaceSize(50));
    EXPECT_EQ(a.GetSpaceSize(), 50);
    EXPECT_EQ(Keys(a), (Ints{1, 2, 3}));
    EXPECT_TRUE(a.SetSpaceSize(3));
    EXPECT_EQ(Keys(a), (Ints{1, 2, 3}));
    EXPECT_FALSE(a.SetSpaceSize(2));
    EXPECT_EQ(m_scope.Count(), 3);
}

TEST_F(QnDynPArrayTest, ReleaseKeepsThePlaceAndPlaceInRefillsTheFirst) {
    Array a;
    Fill(a, {1, 2, 3});
    a.MoveTo(1);
    a.ReleaseCur();
    a.Release(0);
    EXPECT_EQ(Keys(a), (Ints{-1, -1, 3}));
    EXPECT_EQ(m_scope.Count(), 1);
    EXPECT_EQ(a.PlaceIn(new LiveObject(4)), 0);
    EXPECT_EQ(a.PlaceIn(new LiveObject(5)), 1);
    EXPECT_EQ(a.PlaceIn(new LiveObject(6)), 3);
    EXPECT_EQ(Keys(a), (Ints{4, 5, 3, 6}));
    a.ReleaseAll();
    EXPECT_EQ(Keys(a), (Ints{-1, -1, -1, -1}));
    EXPECT_EQ(a.GetDataNum(), 0);
    a.MoveTo(-1);
    a.ReleaseCur();
    a.Release(99);
    EXPECT_EQ(a.GetLength(), 4);
}

TEST_F(QnDynPArrayTest, ResetDeletesAllAndEmpties) {
    Array a;
    Fill(a, {1, 2, -1});
    a.Reset();
    EXPECT_EQ(a.GetLength(), 0);
    EXPECT_EQ(a.GetCur(), -1);
    EXPECT_EQ(m_scope.Count(), 0);
    Fill(a, {7});
    EXPECT_EQ(Keys(a), (Ints{7}));
}

TEST_F(QnDynPArrayTest, DelCurDeletesTheObjectAtTheCursorOnly) {
    Array a;
    Fill(a, {1, 2, 3});
    a.MoveTo(0);
    a.DelCur();
    EXPECT_EQ(Keys(a), (Ints{2, 3}));
    EXPECT_EQ(a.GetCur(), -1);
    EXPECT_EQ(m_scope.Count(), 2);
    a.DelTail();
    a.DelHead();
    EXPECT_EQ(m_scope.Count(), 0);
    a.DelHead();
    a.DelTail();
    a.DelCur();
    EXPECT_EQ(a.GetLength(), 0);
}

TEST_F(QnDynPArrayTest, TakeOffHandsTheObjectOver) {
    Array a;
    Fill(a, {1, 2, 3, 4});
    a.MoveTo(1);
    const std::unique_ptr<LiveObject> second(a.TakeOffCur());
    EXPECT_EQ(second->key, 2);
    EXPECT_EQ(a.GetCur(), 0);
    const std::unique_ptr<LiveObject> head(a.TakeOffHead());
    const std::unique_ptr<LiveObject> tail(a.TakeOffTail());
    EXPECT_EQ(head->key, 1);
    EXPECT_EQ(tail->key, 4);
    const std::unique_ptr<LiveObject> third(a.TakeOff(0));
    EXPECT_EQ(third->key, 3);
    EXPECT_EQ(a.GetLength(), 0);
    EXPECT_EQ(m_scope.Count(), 4);
    EXPECT_EQ(a.TakeOffCur(), nullptr);
    EXPECT_EQ(a.TakeOffHead(), nullptr);
    EXPECT_EQ(a.TakeOffTail(), nullptr);
    EXPECT_EQ(a.TakeOff(3), nullptr);
}

TEST_F(QnDynPArrayTest, CopiesAreDeepAndKeepEmptyEntries) {
    Array a;
    Fill(a, {1, -1, 3});
    const Array copy(a);
    EXPECT_EQ(Keys(copy), (Ints{1, -1, 3}));
    EXPECT_NE(copy.GetAt(0), a.GetAt(0));
    EXPECT_EQ(m_scope.Count(), 4);
    Array assigned;
    Fill(assigned, {8, 9});
    assigned = a;
    EXPECT_EQ(Keys(assigned), (Ints{1, -1, 3}));
    EXPECT_NE(assigned.GetAt(2), a.GetAt(2));
    EXPECT_EQ(m_scope.Count(), 6);
    const Array& same = assigned;
    assigned = same;
    EXPECT_EQ(Keys(assigned), (Ints{1, -1, 3}));
    EXPECT_EQ(m_scope.Count(), 6);
}

TEST_F(QnDynPArrayTest, AttachReleasesTheOldObjectsAndDetachGivesTheBlock) {
    Array a;
    Fill(a, {1, 2});
    LiveObject** const block = new LiveObject*[2];
    block[0] = new LiveObject(5);
    block[1] = nullptr;
    a.Attach(2, block);
    EXPECT_EQ(m_scope.Count(), 1);
    EXPECT_EQ(Keys(a), (Ints{5, -1}));
    const std::unique_ptr<LiveObject*[]> back(a.Detach());
    EXPECT_EQ(m_scope.Count(), 1);
    EXPECT_EQ(a.GetLength(), 0);
    delete back[0];
}

TEST_F(QnDynPArrayTest, MoveCarriesTheObject) {
    Array a;
    Fill(a, {0, 1, 2, 3});
    EXPECT_FALSE(a.Move(2, 2));
    EXPECT_FALSE(a.Move(2, 3));
    EXPECT_TRUE(a.Move(0, 3));
    EXPECT_EQ(Keys(a), (Ints{1, 2, 0, 3}));
    EXPECT_EQ(a.GetCur(), 2);
    EXPECT_TRUE(a.Move(3, 0));
    EXPECT_EQ(Keys(a), (Ints{3, 1, 2, 0}));
    EXPECT_EQ(a.GetCur(), 0);
    EXPECT_TRUE(a.Move(0, 4));
    EXPECT_EQ(Keys(a), (Ints{1, 2, 0, 3}));
    EXPECT_EQ(m_scope.Count(), 4);
}

TEST_F(QnDynPArrayTest, SortLeavesEmptyEntriesAtTheirIndexes) {
    Array a;
    Fill(a, {3, -1, 1, 2, -1, 1});
    a.Sort(true);
    EXPECT_EQ(Keys(a), (Ints{1, -1, 1, 2, -1, 3}));
    EXPECT_EQ(a.GetAt(0)->tag, 2) << "equal objects keep their order";
    EXPECT_EQ(a.GetAt(2)->tag, 5);
    a.Sort(false);
    EXPECT_EQ(Keys(a), (Ints{3, -1, 2, 1, -1, 1}));
    EXPECT_EQ(a.GetAt(3)->tag, 2);
    a.Sort(&CompareKeys);
    EXPECT_EQ(Keys(a), (Ints{1, -1, 1, 2, -1, 3}));
    a.Sort(&Downward);
    EXPECT_EQ(Keys(a), (Ints{3, -1, 2, 1, -1, 1}));
    EXPECT_EQ(m_scope.Count(), 4);
}

TEST_F(QnDynPArrayTest, SortExMovesEmptyEntriesBehindInBothDirections) {
    for (const bool flag : {true, false}) {
        Array a;
        Fill(a, {-1, 3, -1, 1, 2, -1});
        a.SortEx(flag);
        EXPECT_EQ(Keys(a), (Ints{3, 1, 2, -1, -1, -1}));
    }
}

TEST_F(QnDynPArrayTest, FindDataComparesObjectsAndSkipsEmptyEntries) {
    Array a;
    Fill(a, {-1, 4, 5, -1, 4});
    const LiveObject four(4);
    const LiveObject six(6);
    EXPECT_EQ(a.FindData(four, 0, -1), 1);
    EXPECT_EQ(a.FindData(four, 2, -1), 4);
    EXPECT_EQ(a.FindData(four, 2, 3), -1);
    EXPECT_EQ(a.FindData(four, 9, -1), -1);
    EXPECT_EQ(a.FindData(six, 0, -1), -1);
    QnListQuene<long> hits;
    EXPECT_EQ(a.FindData(four, hits, 0, -1), 2);
    EXPECT_EQ(hits[0], 1);
    EXPECT_EQ(hits[1], 4);
    EXPECT_EQ(a.Find(a.GetAt(4)), 4) << "the form of the base looks for the very pointer";
    EXPECT_TRUE(a.FindDataTo(four, 2, -1));
    EXPECT_EQ(a.GetCur(), 4);
    EXPECT_FALSE(a.FindDataTo(six, 0, -1));
    EXPECT_TRUE(a.IsOut());
}

TEST_F(QnDynPArrayTest, FindDataOrAppendAddsACopy) {
    Array a;
    Fill(a, {-1, 4});
    const LiveObject six(6);
    EXPECT_EQ(a.FindDataOrAppend(LiveObject(4)), 1);
    EXPECT_EQ(a.FindDataOrAppend(six), 2);
    EXPECT_NE(a.GetAt(2), &six);
    a.FindDataOrInsertHead(LiveObject(6));
    a.FindDataOrInsertHead(LiveObject(7));
    EXPECT_EQ(Keys(a), (Ints{7, -1, 4, 6}));
}

TEST_F(QnDynPArrayTest, FindDelTakesOnePointerAndFindDataDelAllEquals) {
    Array a;
    Fill(a, {4, -1, 5, 4, 4});
    EXPECT_EQ(a.FindDel(a.GetAt(3)), 1);
    EXPECT_EQ(Keys(a), (Ints{4, -1, 5, 4}));
    LiveObject stranger(4);
    EXPECT_EQ(a.FindDel(&stranger), 0);
    EXPECT_EQ(a.FindDataDel(LiveObject(4)), 2);
    EXPECT_EQ(Keys(a), (Ints{-1, 5}));
    EXPECT_TRUE(a.IsOut());
}

TEST_F(QnDynPArrayTest, SortIntoKeepsTheOrderOfArrivalAndRefusesRepeats) {
    Array a;
    int tag = 0;
    for (const int key : {5, 2, 5, 9, 2, 5}) {
        EXPECT_TRUE(a.SortInto(new LiveObject(key, ++tag), true));
    }
    EXPECT_EQ(Keys(a), (Ints{2, 2, 5, 5, 5, 9}));
    for (long i = 1; i < a.GetLength(); ++i) {
        EXPECT_TRUE(*a.GetAt(i - 1) != *a.GetAt(i) || a.GetAt(i - 1)->tag < a.GetAt(i)->tag);
    }
    const auto repeat = std::make_unique<LiveObject>(9);
    EXPECT_FALSE(a.SortInto(repeat.get(), false)) << "the refused object stays the caller's";
    EXPECT_EQ(a.GetLength(), 6);
    EXPECT_EQ(a.BFindData(LiveObject(9), 0, -1), 5);
    EXPECT_EQ(a.BFindData(LiveObject(3), 0, -1), -1);
    EXPECT_FALSE(a.BFindDataTo(LiveObject(3), 0, -1));
    EXPECT_EQ(a.GetCur(), 2);
    EXPECT_TRUE(a.BFindDataTo(LiveObject(9), 0, -1));
    EXPECT_EQ(a.GetCur(), 5);
}

TEST_F(QnDynPArrayTest, DeletingAPlaceGoesThroughReleaseCur) {
    class Counting : public Array {
    public:
        int released = 0;
        void ReleaseCur() override {
            ++released;
            QnDynPArray<LiveObject>::ReleaseCur();
        }
    };
    Counting a;
    Fill(a, {1, 2, 3, 4});
    a.Release(1);
    a.DelHead();
    a.Del(7);
    a.FindDataDel(LiveObject(4));
    EXPECT_EQ(a.released, 3);
    EXPECT_EQ(Keys(a), (Ints{-1, 3}));
    EXPECT_EQ(m_scope.Count(), 1);
}

TEST_F(QnDynPArrayTest, CopiesOfOtherSequencesAreDeepToo) {
    LiveObject first(1);
    LiveObject second(2);
    QnDynArray<LiveObject*> borrowed;
    borrowed << &first << nullptr << &second;
    QnArray<LiveObject*> exact(borrowed);
    Array a;
    Fill(a, {7, 8, 9, 9});
    a.MoveTo(2);
    a.DeepCopy(borrowed);
    EXPECT_EQ(Keys(a), (Ints{1, -1, 2}));
    EXPECT_NE(a.GetAt(0), &first);
    EXPECT_TRUE(a.IsOut());
    EXPECT_EQ(m_scope.Count(), 4);
    exact.DelHead();
    a.DeepCopy(exact);
    EXPECT_EQ(Keys(a), (Ints{-1, 2}));
    EXPECT_NE(a.GetAt(1), &second);
    EXPECT_TRUE(a.IsOut());
    EXPECT_EQ(m_scope.Count(), 3);
}

TEST_F(QnDynPArrayTest, SortedOperationsPassOverEmptyEntries) {
    Array a;
    Fill(a, {-1, 2, -1, -1, 4, -1, 4, 6, -1});
    EXPECT_EQ(a.BFindData(LiveObject(2)), 1);
    EXPECT_EQ(a.BFindData(LiveObject(6)), 7);
    EXPECT_EQ(a.BFindData(LiveObject(3)), -1);
    EXPECT_EQ(a.BFindData(LiveObject(1)), -1);
    EXPECT_EQ(a.BFindData(LiveObject(2), 2, 5), -1);
    EXPECT_TRUE(a.SortInto(new LiveObject(4, 99), true));
    EXPECT_EQ(Keys(a), (Ints{-1, 2, -1, -1, 4, -1, 4, 4, 6, -1})) << "behind the last equal one";
    EXPECT_EQ(a.GetAt(7)->tag, 99);
    EXPECT_FALSE(a.SortInto(nullptr, true));
    Array empties(3);
    EXPECT_EQ(empties.BFindData(LiveObject(1)), -1);
    EXPECT_FALSE(empties.BFindDataTo(LiveObject(1)));
    EXPECT_EQ(empties.GetCur(), 0);
}

TEST_F(QnDynPArrayTest, AccessByIndexAndCursor) {
    Array a;
    Fill(a, {4, -1});
    EXPECT_EQ(a.GetPData(0)->key, 4);
    EXPECT_EQ(a(0), a.GetPData(0));
    EXPECT_EQ(a.GetPData(1), nullptr);
    EXPECT_TRUE(a.IsEmptyData(1));
    EXPECT_FALSE(a.IsEmptyData(0));
    EXPECT_TRUE(a.IsEmptyData(2));
    EXPECT_TRUE(a.IsEmptyData(-1));
    a.MoveTo(0);
    EXPECT_EQ(a.GetCurPData(), a(0));
    EXPECT_FALSE(a.IsCurEmpty());
    a.MoveToNext();
    EXPECT_TRUE(a.IsCurEmpty());
    a.MoveToNext();
    EXPECT_TRUE(a.IsCurEmpty());
}

TEST_F(QnDynPArrayTest, RandomHistoriesAgreeWithTheModelAndLeakNothing) {
    constexpr unsigned HISTORIES = 10000;
    for (unsigned k = 0; k < HISTORIES && !HasFailure(); ++k) {
        Array a;
        Array b;
        OwnedHistory<Array, ArrayModel<LiveObject*>>(BaseSeed() + k, a, b).Run(40);
    }
}
