// SPDX-License-Identifier: Apache-2.0
// The indexed list's own; the rules that it shares with all lists stand in AnyList_test.cpp.
#include "containers/QnXList.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "containers/QnDList.h"
#include "containers/ValueHistory.h"
#include "support/ContainerCheckers.h"
#include "support/LiveObject.h"
#include "support/RandomSource.h"

namespace {

using Ints = std::vector<int>;

Ints Items(const QnDynArrayBase<int>& s) {
    Ints items;
    for (const int* p = s.GetFirst(); p != nullptr; p = s.GetNext(p)) {
        items.push_back(*p);
    }
    return items;
}

void FillUpwards(QnXList<int>& list, int count) {
    for (int i = 0; i < count; ++i) {
        list.Append(i);
    }
}

/// Lets the test see the index itself.
class OpenXList : public QnXList<int> {
public:
    explicit OpenXList(long groupSize) : QnXList<int>(0, groupSize, 10) {}

    long IndexEntries() const { return m_index.GetLength(); }
    /// "" or the first entry that is not the node at its multiple of the group size.
    std::string CheckIndex() const {
        if (IndexEntries() != (GetLength() + m_nGroup - 1) / m_nGroup) {
            return "the index has " + std::to_string(IndexEntries()) + " entries";
        }
        long position = 0;
        for (const int* p = GetFirst(); p != nullptr; p = GetNext(p), ++position) {
            const long entry = position / m_nGroup;
            if (position % m_nGroup == 0 && std::addressof(m_index.GetAt(entry)->data) != p) {
                return "entry " + std::to_string(entry) + " is not at position " + std::to_string(position);
            }
        }
        return "";
    }
};

constexpr long GROUP_SIZES[] = {1, 2, 3, 4, 25};
constexpr long INDEX_UNIT = 10;

}  // namespace

TEST(QnXList, NineElementsInGroupsOfFourHaveThreeIndexEntries) {
    OpenXList list(4);
    FillUpwards(list, 9);
    EXPECT_EQ(list.IndexEntries(), 3);
    list.DelHead();
    EXPECT_EQ(list.IndexEntries(), 2);
    EXPECT_EQ(list.CheckIndex(), "");
    list.DelHead();
    EXPECT_EQ(list.CheckIndex(), "");
    list.Reset();
    EXPECT_EQ(list.IndexEntries(), 0);
}

TEST(QnXList, EveryIndexEntryStandsAtItsMultipleOfTheGroupSize) {
    for (const long group : GROUP_SIZES) {
        RandomSource random(BaseSeed());
        OpenXList list(group);
        OpenXList other(3);
        for (int step = 0; step < 4000; ++step) {
            const long i = random.Long(0, list.GetLength());
            const int what = random.Int(0, 9);
            if (what < 4) {
                list.Insert(i, step);
            } else if (what < 6) {
                list.Del(i);
            } else if (what == 6) {
                list.SplitAt(i, other);
            } else if (what == 7) {
                list.Conbine(other, random.Long(0, other.GetLength()));
            } else if (what == 8 && random.OneIn(5)) {
                list.Sort(random.Coin());
            } else if (what == 9 && list.GetLength() > 0) {
                list.ReverseList();
                list.Rotate(random.Long(0, list.GetMaxIndex()), 0);
            }
            ASSERT_EQ(list.CheckIndex(), "") << "group " << group << ", step " << step;
            ASSERT_EQ(other.CheckIndex(), "") << "group " << group << ", step " << step;
            if (list.GetLength() > 100) {
                list.SetLength(10, true);
            }
        }
    }
}

TEST(QnXList, DeletingNearTheHeadKeepsEveryIndexReachable) {
    QnXList<int> list(0, 4, INDEX_UNIT);
    FillUpwards(list, 9);
    list.MoveTo(0);
    list.DelCur();
    EXPECT_EQ(CheckList(list), "");
    list.MoveTo(0);
    list.DelCur();
    EXPECT_EQ(CheckList(list), "");
    for (long i = 6; i >= 0; --i) {
        list.MoveTo(i);
        EXPECT_EQ(list.GetCurData(), i + 2);
        EXPECT_EQ(list.GetCur(), i);
    }
}

TEST(QnXList, DeletingAtEveryPlaceKeepsEveryIndexReachable) {
    for (const long group : GROUP_SIZES) {
        for (long place = 0; place < 30; ++place) {
            QnXList<int> list(0, group, INDEX_UNIT);
            FillUpwards(list, 30);
            list.Del(place);
            ASSERT_EQ(CheckList(list), "") << "group " << group << ", place " << place;
            list.Insert(place, 99);
            ASSERT_EQ(CheckList(list), "") << "group " << group << ", place " << place;
            ASSERT_EQ(list.GetAt(place), 99);
        }
    }
}

TEST(QnXList, GrowingAtTheHeadAndTheTailKeepsEveryIndexReachable) {
    for (const long group : GROUP_SIZES) {
        QnXList<int> list(0, group, INDEX_UNIT);
        Ints expected;
        for (int i = 0; i < 60; ++i) {
            list.InsertHead(-i);
            expected.insert(expected.begin(), -i);
            list.Append(i);
            expected.push_back(i);
            ASSERT_EQ(CheckList(list), "") << "group " << group << ", round " << i;
        }
        EXPECT_EQ(Items(list), expected);
        while (!list.IsEmpty()) {
            list.DelHead();
            list.DelTail();
            ASSERT_EQ(CheckList(list), "") << "group " << group;
        }
    }
}

TEST(QnXList, DetachingKeepsTheIndexOfABrokenGroup) {
    for (const long group : GROUP_SIZES) {
        for (long kept = 0; kept < 12; ++kept) {
            QnXList<int> list(0, group, INDEX_UNIT);
            QnDList<int> rest;
            FillUpwards(list, 12);
            rest.Conbine(list, kept);  // goes through the list's own DetachAfterCur
            ASSERT_EQ(list.GetLength(), kept);
            ASSERT_EQ(CheckList(list), "") << "group " << group << ", kept " << kept;
            list.Append(50);
            list.Append(51);
            ASSERT_EQ(CheckList(list), "") << "group " << group << ", kept " << kept;
        }
    }
}

TEST(QnXList, ConbineExtendsTheIndexAndLeavesTheCursor) {
    for (const long group : GROUP_SIZES) {
        for (int before = 0; before < 9; ++before) {
            QnXList<int> list(0, group, INDEX_UNIT);
            QnXList<int> other(0, 3, INDEX_UNIT);
            FillUpwards(list, before);
            FillUpwards(other, 9);
            list.MoveTo(before / 2);
            const long cursor = list.GetCur();
            EXPECT_EQ(list.Conbine(other, 2), before + 7);
            EXPECT_EQ(list.GetCur(), cursor);
            ASSERT_EQ(CheckList(list), "") << "group " << group << ", before " << before;
            ASSERT_EQ(CheckList(other), "");
        }
    }
}

TEST(QnXList, SortReverseAndRotateRebuildTheIndex) {
    for (const long group : GROUP_SIZES) {
        QnXList<int> list(0, group, INDEX_UNIT);
        for (int i = 0; i < 40; ++i) {
            list.Append(i * 17 % 40);
        }
        list.Sort(true);
        ASSERT_EQ(CheckList(list), "") << "group " << group;
        for (int i = 0; i < 40; ++i) {
            EXPECT_EQ(list.GetAt(i), i);
        }
        list.MoveTo(5);
        list.ReverseList();
        EXPECT_EQ(list.GetCurData(), 34);
        ASSERT_EQ(CheckList(list), "") << "group " << group;
        list.Rotate(7, 1);
        EXPECT_EQ(list.GetAt(1), 32);
        ASSERT_EQ(CheckList(list), "") << "group " << group;
        list.Move(3, 30);
        ASSERT_EQ(CheckList(list), "") << "group " << group;
        list.Sort(&CompareLastDigits);
        ASSERT_EQ(CheckList(list), "") << "group " << group;
    }
}

TEST(QnXList, GroupSizesBelowOneCountAsOne) {
    for (const long group : {0L, -3L}) {
        QnXList<int> list(0, group, INDEX_UNIT);
        FillUpwards(list, 10);
        list.Del(3);
        list.InsertHead(7);
        EXPECT_EQ(CheckList(list), "");
    }
}

TEST(QnXList, SizedConstructorBuildsTheIndex) {
    for (const long group : GROUP_SIZES) {
        QnXList<int> list(30, group, INDEX_UNIT);
        EXPECT_EQ(list.GetLength(), 30);
        EXPECT_EQ(list.GetAt(29), 0);
        list.Del(0);
        list.Insert(13, 5);
        EXPECT_EQ(CheckList(list), "");
        EXPECT_EQ(list.Find(5), 13);
    }
}

TEST(QnXList, CopiesHaveAnIndexOfTheirOwn) {
    QnXList<int> copy(0, 7, INDEX_UNIT);
    {
        QnXList<int> list(0, 4, INDEX_UNIT);
        FillUpwards(list, 30);
        QnXList<int> second(list);
        EXPECT_EQ(CheckList(second), "");
        second.Del(4);
        EXPECT_EQ(CheckList(second), "");
        EXPECT_EQ(CheckList(list), "");
        copy = list;
        const QnXList<int>& same = list;
        list = same;
        EXPECT_EQ(list.GetLength(), 30);
    }
    EXPECT_EQ(CheckList(copy), "") << "after the source is gone";
    copy.Del(0);
    copy.InsertHead(3);
    EXPECT_EQ(CheckList(copy), "");
    QnDList<int> plain;
    plain << 1 << 2 << 3;
    copy.DeepCopy(plain);
    EXPECT_EQ(CheckList(copy), "");
    EXPECT_EQ(Items(copy), (Ints{1, 2, 3}));
}

TEST(QnXList, ResetEmptiesTheIndexToo) {
    QnXList<int> list(0, 2, INDEX_UNIT);
    FillUpwards(list, 20);
    list.Reset();
    list.MoveTo(4);
    EXPECT_TRUE(list.IsOut());
    FillUpwards(list, 5);
    EXPECT_EQ(CheckList(list), "");
}

TEST(QnXList, ElementsAreFreedOnce) {
    LiveScope scope;
    {
        QnXList<LiveObject> list(0, 3, INDEX_UNIT);
        for (int i = 0; i < 40; ++i) {
            list.SortInto(LiveObject(i * 13 % 40), true);
        }
        QnXList<LiveObject> rest(0, 5, INDEX_UNIT);
        list.SplitAt(20, rest);
        QnXList<LiveObject> copy(rest);
        rest.SetLength(3, true);
        EXPECT_EQ(copy.GetAt(0).key, 20);
    }
}

TEST(QnXList, RandomHistoriesAgreeWithTheModelForAllGroupSizes) {
    constexpr unsigned HISTORIES_PER_SIZE = 2500;
    for (const long group : GROUP_SIZES) {
        for (unsigned k = 0; k < HISTORIES_PER_SIZE && !HasFailure(); ++k) {
            QnXList<int> a(0, group, INDEX_UNIT);
            QnXList<int> b(0, k % 2 == 0 ? group : 3, 0);
            SCOPED_TRACE("group size " + std::to_string(group));
            ValueHistory<QnXList<int>, ListModel<int>>(BaseSeed() + k, a, b).Run(40);
        }
    }
}
