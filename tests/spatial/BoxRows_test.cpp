// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "TreeTesting.h"
#include "containers/QnDynArray.h"
#include "containers/QnList.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/RandomSource.h"
#include "support/reference/PlainQuadTree.h"

// The list of a tree node has its elements in a row until a caller works on it. Whoever goes through it does not see
// when that changes.

namespace {

using Box = QnGeExtent2d;
using List = QnList<QnGeExtent2d*>;
constexpr int LENGTHS[] = {1, 2, 3, 4, 5, 12, 13, 40, 96, 97, 150};

/// A tree over -8 .. 8 with boxes in the root's list, and a plain list of the same.
struct TreeWithList {
    std::vector<std::unique_ptr<Box>> boxes;
    QnGeQuadTree2d tree;
    List plain;

    explicit TreeWithList(int count) {
        tree.SetRange(-8, 8, -8, 8);
        for (int i = 0; i < count; ++i) {
            Add();
        }
    }
    void Add() {
        const double at = -7.0 + 0.09 * static_cast<double>(boxes.size() * 37 % 150);
        boxes.push_back(std::make_unique<Box>(at, at + 0.3, -0.5, 0.5));
        tree.Insert(boxes.back().get());
        plain.Append(boxes.back().get());
    }
    List& GetList() { return *tree.ExtentList; }
    Boxes2d GetHits(const Box& window) const {
        Boxes2d hits;
        for (Box* const* box = plain.GetFirst(); box != nullptr; box = plain.GetNext(box)) {
            if ((*box)->IsInsersectWith(window)) {
                hits.push_back(*box);
            }
        }
        return hits;
    }
};

/// Moves the cursor by one of eight choices.
void Move(List& list, int choice) {
    if (choice == 0) {
        list.MoveToFirst();
    } else if (choice == 1) {
        list.MoveToLast();
    } else if (choice < 5) {
        list.MoveToNext();
    } else {
        list.MoveToPre();
    }
}

const Box WINDOWS[] = {Box(-8, 8, -8, 8), Box(-3, -2.5, 0, 0), Box(0, 7, 0.5, 1), Box(1, 1, -1, 1), Box(9, 10, 0, 1)};

}  // namespace

// ---- going through ---------------------------------------------------------------------------------

TEST(BoxRows, PointersGoThroughAListOfATreeBothWays) {
    for (const int length : LENGTHS) {
        TreeWithList both(length);
        const List& list = both.GetList();
        Box* const* expected = both.plain.GetFirst();
        for (Box* const* box = list.GetFirst(); box != nullptr; box = list.GetNext(box)) {
            ASSERT_EQ(*box, *expected);
            expected = both.plain.GetNext(expected);
        }
        EXPECT_EQ(expected, nullptr);
        expected = both.plain.GetLast();
        for (Box* const* box = list.GetLast(); box != nullptr; box = list.GetPre(box)) {
            ASSERT_EQ(*box, *expected);
            expected = both.plain.GetPre(expected);
        }
        EXPECT_EQ(expected, nullptr);
        EXPECT_EQ(list.GetNext(nullptr), nullptr);
        EXPECT_EQ(list.GetPre(nullptr), nullptr);
    }
}

TEST(BoxRows, CursorGoesRoundAsInAnyList) {
    for (const int length : LENGTHS) {
        for (const bool isRead : {false, true}) {  // what reads the element makes nodes
            RandomSource random(BaseSeed() + static_cast<unsigned>(length));
            TreeWithList both(length);
            List& list = both.GetList();
            EXPECT_EQ(list.GetCur(), length - 1) << "as appending leaves it";
            for (int step = 0; step < 200; ++step) {
                const int choice = random.Int(0, 7);
                Move(list, choice);
                Move(both.plain, choice);
                ASSERT_EQ(list.GetCur(), both.plain.GetCur());
                if (isRead && !list.IsOut() && random.OneIn(8)) {
                    ASSERT_EQ(list.GetCurData(), both.plain.GetCurData());
                }
            }
        }
    }
}

TEST(BoxRows, CursorOfARowIsThatOfItsNodes) {
    for (const int length : LENGTHS) {
        for (int at = -1; at < length; ++at) {
            TreeWithList both(length);
            List& list = both.GetList();
            for (List* l : {&list, &both.plain}) {
                l->MoveToLast();
                for (int i = length - 1; i > at; --i) {
                    l->MoveToPre();
                }
                l->InsertAfterCur(both.boxes[0].get());
                l->MoveToNext();
            }
            EXPECT_EQ(list.GetCur(), both.plain.GetCur());
            EXPECT_EQ(tree_checks::Elements<Box*>(list), tree_checks::Elements<Box*>(both.plain)) << at;
        }
    }
}

TEST(BoxRows, SearchLeavesElementsWhereTheyAre) {
    for (const int length : LENGTHS) {
        TreeWithList both(length);
        Box* const* const first = both.GetList().GetFirst();
        Box* const* const last = both.GetList().GetLast();
        HitsOf(both.tree, 0.0, 0.0);
        HitsOf(both.tree, WINDOWS[0]);
        AllOf(both.tree);
        EXPECT_EQ(both.GetList().GetFirst(), first);
        EXPECT_EQ(both.GetList().GetLast(), last);
    }
}

TEST(BoxRows, WhoGoesThroughAListMayReadAndWriteItByIndexAndCursorMeanwhile) {
    for (const int length : LENGTHS) {
        TreeWithList both(length);
        List& list = both.GetList();
        Boxes2d met;
        for (Box* const* box = list.GetFirst(); box != nullptr; box = list.GetNext(box)) {
            met.push_back(*box);
            ASSERT_EQ(list.GetAt(static_cast<long>(met.size()) - 1), *box);
        }
        EXPECT_EQ(met, tree_checks::Elements<Box*>(both.plain));
        TreeWithList again(length);
        List& other = again.GetList();
        met.clear();
        for (Box* const* box = other.GetLast(); box != nullptr; box = other.GetPre(box)) {
            met.push_back(*box);
            other.Append(*box);
        }
        EXPECT_EQ(met.size(), static_cast<std::size_t>(length));
        EXPECT_EQ(other.GetLength(), 2 * length);
    }
}

TEST(BoxRows, ValueMayBeAnElementOfTheList) {
    for (const int length : LENGTHS) {
        TreeWithList both(length);
        List& list = both.GetList();
        Box* const* const last = list.GetLast();
        Box* const expected = *last;
        list.SortInto(*last, true);
        list.InsertHead(*last);
        list.Insert(1, *last);
        list.MoveToFirst();
        list.SetCurData(*last);
        EXPECT_EQ(list.GetAt(0), expected);
        EXPECT_EQ(list.GetAt(1), expected);
        EXPECT_EQ(list.GetLength(), length + 3);
        EXPECT_EQ(list.Find(expected), 0);
    }
}

TEST(BoxRows, NodesOfACallerGoBackIntoARowWithTheNextBox) {
    for (const int length : LENGTHS) {
        TreeWithList both(length);
        for (int round = 0; round < 3; ++round) {
            both.GetList().MoveTo(0);
            ASSERT_EQ(both.GetList().GetCurData(), both.boxes[0].get());
            both.Add();
            EXPECT_EQ(both.GetList().GetCur(), both.GetList().GetMaxIndex());
            for (const Box& window : WINDOWS) {
                ASSERT_EQ(HitsOf(both.tree, window), both.GetHits(window));
            }
        }
    }
}

// ---- growing and shrinking -------------------------------------------------------------------------

TEST(BoxRows, BoxesAreFoundAtEveryLengthThatAListGoesThrough) {
    constexpr long LONG = 47;  // a list of more may be one that is not gone through
    RandomSource random(BaseSeed());
    TreeWithList both(0);
    for (int round = 0; round < 4; ++round) {
        const long most = random.Long(3, 150);
        while (both.plain.GetLength() < most) {
            both.Add();
            for (const Box& window : WINDOWS) {
                ASSERT_EQ(HitsOf(both.tree, window), both.GetHits(window)) << both.plain.GetLength();
            }
        }
        while (both.plain.GetLength() > round) {
            const long at = random.Long(0, both.plain.GetMaxIndex());
            ASSERT_TRUE(both.tree.Delete(both.plain.GetAt(at), false));
            both.plain.Del(at);
            for (const Box& window : WINDOWS) {
                ASSERT_EQ(HitsOf(both.tree, window), both.GetHits(window)) << both.plain.GetLength();
            }
            ASSERT_EQ(AllOf(both.tree), tree_checks::Elements<Box*>(both.plain));
            if (!both.plain.IsEmpty()) {
                const long cur = both.GetList().GetCur();
                ASSERT_TRUE(cur == at - 1 || (cur == -1 && both.plain.GetLength() >= LONG)) << cur << " after " << at;
            }
        }
    }
}

TEST(BoxRows, ManyHitsOfManyNodesComeInOrderIntoEverySequence) {
    RandomSource random(BaseSeed());
    std::vector<std::unique_ptr<Box>> boxes;
    QnGeQuadTree2d tree;
    PlainQuadTree plain(-64, 64, -64, 64);
    tree.SetRange(-64, 64, -64, 64);
    for (int i = 0; i < 3000; ++i) {
        const double x = random.Double(-60, 60);
        const double y = random.Double(-60, 60);
        boxes.push_back(std::make_unique<Box>(x, x + random.Double(0, 3), y, y + random.Double(0, 3)));
        tree.Insert(boxes.back().get());
        plain.Insert(boxes.back().get());
    }
    for (const double half : {1.0, 20.0, 40.0, 64.0}) {
        const Box window(-half, half, -half, half);
        Boxes2d expected;
        plain.HitTest(window, expected);
        ASSERT_EQ(HitsOf(tree, window), expected);
        List list;
        list.Append(nullptr);
        tree.HitTest(window, list);
        expected.insert(expected.begin(), nullptr);
        EXPECT_EQ(tree_checks::Elements<Box*>(list), expected) << "behind what was there";
        EXPECT_EQ(list.GetCur(), list.GetMaxIndex());
    }
    EXPECT_EQ(AllOf(tree).size(), boxes.size());
}
