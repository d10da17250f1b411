// SPDX-License-Identifier: Apache-2.0
// What the common base does by itself: a sequence that supplies the pure operations only gets all the others.
#include <gtest/gtest.h>

#include <algorithm>
#include <type_traits>
#include <vector>

#include "containers/QnArray.h"
#include "containers/QnDList.h"
#include "containers/QnDynArray.h"
#include "containers/QnDynArrayBase.h"
#include "containers/QnPDList.h"
#include "containers/QnPXList.h"

namespace {

using Ints = std::vector<int>;

/// The fourteen pure operations over a vector, written down with the calls that the base makes.
class MinimalSequence : public QnDynArrayBase<int> {
public:
    Ints items;
    int deletions = 0;
    long lastReAllocate = -1;

    void SetLength(long length, bool) override { ReAllocate(length); }
    int& GetCurData() override { return items[static_cast<std::size_t>(m_nCur)]; }
    void SetCurData(const int& value) override { GetCurData() = value; }
    const int* GetFirst() const override { return items.empty() ? nullptr : items.data(); }
    const int* GetNext(const int* element) const override { return element == GetLast() ? nullptr : element + 1; }
    const int* GetPre(const int* element) const override { return element == GetFirst() ? nullptr : element - 1; }
    const int* GetLast() const override { return items.empty() ? nullptr : &items.back(); }
    const int& GetAt(long index) const override { return items[static_cast<std::size_t>(index)]; }
    void InsertCur(const int& value) override {
        items.insert(items.begin() + m_nCur, value);
        ++m_nLength;
    }
    void DelCur() override {
        items.erase(items.begin() + m_nCur);
        --m_nLength;
        --m_nCur;
        ++deletions;
    }
    void Sort(int (*)(const int&, const int&)) override {}
    void Sort(bool) override {}

protected:
    void ReAllocate(long length) override {
        lastReAllocate = length;
        items.resize(static_cast<std::size_t>(length));
        m_nLength = length;
    }
};

}  // namespace

TEST(SlotDefaults, ResetDeletesFromTheTailUntilEmpty) {
    MinimalSequence s;
    s << 1 << 2 << 3;
    s.Reset();
    EXPECT_EQ(s.deletions, 3);
    EXPECT_TRUE(s.IsEmpty());
    EXPECT_EQ(s.GetCur(), -1);
}

TEST(SlotDefaults, CursorMovesAreUnchecked) {
    MinimalSequence s;
    EXPECT_EQ(s.GetCur(), -1);
    s.MoveToFirst();
    EXPECT_EQ(s.GetCur(), 0) << "even when empty";
    s.MoveToLast();
    EXPECT_EQ(s.GetCur(), -1);
    s << 1 << 2;
    s.MoveToLast();
    EXPECT_EQ(s.GetCur(), 1);
    s.MoveToNext();
    s.MoveToNext();
    EXPECT_EQ(s.GetCur(), 3);
    s.MoveToPre();
    EXPECT_EQ(s.GetCur(), 2);
    s.MoveTo(-9);
    EXPECT_EQ(s.GetCur(), -9);
}

TEST(SlotDefaults, IndexingPastTheEndReallocatesToTheIndexPlusOne) {
    MinimalSequence s;
    s[4] = 7;
    EXPECT_EQ(s.lastReAllocate, 5);
    EXPECT_EQ(s.GetCur(), 4);
    EXPECT_EQ(s.items, (Ints{0, 0, 0, 0, 7}));
    s.lastReAllocate = -1;
    EXPECT_EQ(s[0], 0);
    EXPECT_EQ(s.lastReAllocate, -1);
    EXPECT_EQ(s.GetCur(), 0);
}

TEST(SlotDefaults, InsertingMovesTheCursorAndInsertsThere) {
    MinimalSequence s;
    EXPECT_EQ(s.Append(2), 0);
    EXPECT_EQ(s.Append(4), 1);
    s.InsertHead(1);
    EXPECT_EQ(s.GetCur(), 0);
    s.Insert(2, 3);
    EXPECT_EQ(s.GetCur(), 2);
    EXPECT_EQ(s.items, (Ints{1, 2, 3, 4}));
}

TEST(SlotDefaults, MoveInsertsAndDeletesTheOldPlace) {
    MinimalSequence s;
    s << 0 << 1 << 2 << 3;
    EXPECT_TRUE(s.Move(0, 3));
    EXPECT_EQ(s.items, (Ints{1, 2, 0, 3}));
    EXPECT_EQ(s.GetCur(), 2);
    EXPECT_TRUE(s.Move(3, 0));
    EXPECT_EQ(s.items, (Ints{3, 1, 2, 0}));
    EXPECT_EQ(s.GetCur(), 0);
    EXPECT_FALSE(s.Move(1, 1));
    EXPECT_FALSE(s.Move(1, 2));
    EXPECT_EQ(s.items, (Ints{3, 1, 2, 0}));
}

TEST(SlotDefaults, SizesGoThroughReAllocate) {
    MinimalSequence s;
    s << 1;
    s.IncreaseSize(3);
    EXPECT_EQ(s.lastReAllocate, 4);
    s.DecreaseSize(2);
    EXPECT_EQ(s.lastReAllocate, 2);
}

TEST(SlotDefaults, DeletingMovesTheCursorThereAndCallsDelCur) {
    MinimalSequence s;
    s << 1 << 2 << 3 << 4;
    s.Del(1);
    EXPECT_EQ(s.GetCur(), 0);
    s.DelHead();
    EXPECT_EQ(s.GetCur(), -1);
    s.DelTail();
    EXPECT_EQ(s.GetCur(), 0);
    EXPECT_EQ(s.items, (Ints{3}));
    EXPECT_EQ(s.deletions, 3);
}

TEST(SlotDefaults, TheBaseAloneCannotBeCopiedOrMade) {
    using Base = QnDynArrayBase<int>;
    static_assert(std::is_abstract_v<Base>);
    static_assert(!std::is_copy_assignable_v<Base>);
    static_assert(!std::is_copy_constructible_v<Base>);
    static_assert(std::has_virtual_destructor_v<Base>);
    static_assert(std::is_copy_assignable_v<QnDynArray<int>> && std::is_copy_constructible_v<QnDynArray<int>>);
}

TEST(SlotDefaults, ALengthNeverTurnsIntoASequenceByItself) {
    static_assert(!std::is_convertible_v<long, QnDynArray<int>>);
    static_assert(!std::is_convertible_v<long, QnArray<int>>);
    static_assert(!std::is_convertible_v<long, QnList<int>>);
    static_assert(!std::is_convertible_v<long, QnDList<int>>);
    static_assert(!std::is_convertible_v<long, QnPDList<MinimalSequence>>);
    static_assert(!std::is_convertible_v<long, QnXList<int>>);
    static_assert(!std::is_convertible_v<long, QnPXList<MinimalSequence>>);
}
