// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "TreeTesting.h"
#include "spatial/QnGeQuadTree2d.h"

// Moving, compressing and asking quad trees.

namespace {

using Box = QnGeExtent2d;

/// A tree over -8 .. 8 on both axes.
struct Tree16 : QnGeQuadTree2d {
    Tree16() { SetRange(-8, 8, -8, 8); }
};

}  // namespace

// ---- moving whole trees ----------------------------------------------------------------------------

TEST(QnGeQuadTree2d, MovingTakesEverythingAlong) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    Box b(-2, -1, 1, 2);
    Box c(-1, 1, 0, 1);
    for (Box* box : {&a, &b, &c}) {
        tree.Insert(box);
    }
    const Boxes2d all = AllOf(tree);
    QnGeQuadTree2d target;
    tree >> target;
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(AllOf(target), all);
    EXPECT_EQ(target.x.min, -8.0);
    EXPECT_EQ(target.CenterX, 0.0);
    EXPECT_EQ(tree.x.min, -8.0) << "its own range stays";
    target >> target;
    EXPECT_EQ(AllOf(target), all) << "onto itself: nothing";
}

TEST(QnGeQuadTree2d, ChildIsHungWhereItsMiddleLies) {
    const double middle[4][2] = {{4, 4}, {-4, 4}, {-4, -4}, {4, -4}};
    for (int q = 0; q < 4; ++q) {
        Tree16 tree;
        auto* const subtree = new QnGeQuadTree2d;
        subtree->SetRange(middle[q][0] - 4, middle[q][0] + 4, middle[q][1] - 4, middle[q][1] + 4);
        Box box(middle[q][0], middle[q][0] + 1, middle[q][1] + 1, middle[q][1] + 2);
        subtree->Insert(&box);
        tree.InsertChild(subtree);
        EXPECT_EQ(tree.Child[q], subtree);
        EXPECT_EQ(AllOf(tree), (Boxes2d{&box}));
    }
}

TEST(QnGeQuadTree2d, SmallChildIsHungAtItsDepth) {
    Tree16 tree;
    auto* const subtree = new QnGeQuadTree2d;
    subtree->SetRange(0, 2, 2, 4);
    Box box(1, 1.5, 2.5, 3.5);
    subtree->Insert(&box);
    tree.InsertChild(subtree);
    ASSERT_NE(tree.Child[0], nullptr);
    ASSERT_NE(tree.Child[0]->Child[2], nullptr);
    EXPECT_EQ(tree.Child[0]->Child[2]->Child[1], subtree);
    EXPECT_EQ(HitsOf(tree, 1.2, 3.0), (Boxes2d{&box}));
}

TEST(QnGeQuadTree2d, ChildWithItsMiddleOnACentreLineIsLeftToTheCaller) {
    Tree16 tree;
    Box box(1, 2, 1, 2);
    tree.Insert(&box);
    for (const QnGePoint& middle : {QnGePoint(0, 4), QnGePoint(4, 0), QnGePoint(0, 0), QnGePoint(4, 9e-7)}) {
        const auto subtree = std::make_unique<QnGeQuadTree2d>();
        subtree->SetRange(middle.x - 1, middle.x + 1, middle.y - 1, middle.y + 1);
        tree.InsertChild(subtree.get());
        EXPECT_EQ(tree.OneExtent, &box);
        EXPECT_EQ(AllOf(tree), (Boxes2d{&box}));
    }
}

TEST(QnGeQuadTree2d, ChildThatFindsNoPlaceFurtherDownLeavesNoNodeBehind) {
    for (const bool isBranchThere : {false, true}) {
        Tree16 tree;
        Box a(5, 6, 5, 6);
        Box b(1, 2, 1, 2);
        if (isBranchThere) {
            tree.Insert(&a);
            tree.Insert(&b);
        }
        const Boxes2d all = AllOf(tree);
        for (const QnGePoint& middle : {QnGePoint(4, 2), QnGePoint(2, 4), QnGePoint(4 - 9e-7, 2), QnGePoint(2, 6)}) {
            const auto subtree = std::make_unique<QnGeQuadTree2d>();
            subtree->SetRange(middle.x - 0.5, middle.x + 0.5, middle.y - 0.5, middle.y + 0.5);
            Box held(middle.x + 0.1, middle.x + 0.2, middle.y + 0.1, middle.y + 0.2);
            subtree->Insert(&held);
            tree.InsertChild(subtree.get());
            EXPECT_EQ(AllOf(tree), all);
            EXPECT_EQ(tree.IsEmptyTree(), !isBranchThere) << middle.x << ' ' << middle.y;
            EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
            EXPECT_EQ(subtree->OneExtent, &held) << "left to the caller as it was";
        }
    }
}

TEST(QnGeQuadTree2d, ChildHungAgainStays) {
    Tree16 tree;
    Box box(1, 2, 1, 2);
    auto* const subtree = new QnGeQuadTree2d;
    subtree->SetRange(0, 8, 0, 8);
    subtree->Insert(&box);
    tree.InsertChild(subtree);
    tree.InsertChild(subtree);
    EXPECT_EQ(tree.Child[0], subtree);
    EXPECT_EQ(AllOf(tree), (Boxes2d{&box}));
}

TEST(QnGeQuadTree2d, ChildReplacesWhatStoodThereAndPushesASingleBoxDown) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    Box b(-2, -1, 1, 2);
    Box c(5, 6, 5, 6);
    tree.Insert(&a);
    auto* const first = new QnGeQuadTree2d;
    first->SetRange(0, 8, 0, 8);
    first->Insert(&c);
    tree.InsertChild(first);
    EXPECT_EQ(tree.OneExtent, nullptr) << "it does not stay beside a child";
    EXPECT_EQ(Sorted(AllOf(tree)), Sorted(Boxes2d{&a, &c}));
    EXPECT_EQ(HitsOf(tree, 1.5, 1.5), (Boxes2d{&a}));
    auto* const second = new QnGeQuadTree2d;
    second->SetRange(0, 8, 0, 8);
    Box d(3, 3.5, 3, 3.5);
    second->Insert(&d);
    tree.InsertChild(second);
    EXPECT_EQ(AllOf(tree), (Boxes2d{&d})) << "the boxes of the replaced node leave the tree";
    tree.Insert(&b);
    EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
}

// ---- compressing -----------------------------------------------------------------------------------

TEST(QnGeQuadTree2d, CompressLeavesANodeWithAList) {
    Tree16 tree;
    Box crossing(-1, 1, -1, 1);
    Box a(1, 2, 1, 2);
    tree.Insert(&crossing);
    tree.Insert(&a);
    tree.Compress();
    EXPECT_EQ(tree.x.max, 8.0);
    EXPECT_NE(tree.Child[0], nullptr);
}

TEST(QnGeQuadTree2d, CompressShrinksToTheOnlyBox) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    tree.Insert(&a);
    tree.Compress();
    EXPECT_EQ(tree.OneExtent, nullptr);
    EXPECT_EQ(Elements<QnGeExtent2d*>(tree.ExtentList), (Boxes2d{&a}));
    EXPECT_EQ(tree.x.min, 0.5);
    EXPECT_EQ(tree.x.max, 2.5);
}

TEST(QnGeQuadTree2d, CompressPullsUpAnOnlyChildAgainAndAgain) {
    Tree16 tree;
    Box a(1.1, 1.2, 1.1, 1.2);
    Box b(1.7, 1.8, 1.7, 1.8);
    Box c(-5, -4, 3, 4);
    for (Box* box : {&a, &b, &c}) {
        tree.Insert(box);
    }
    tree.Compress();
    EXPECT_EQ(tree.x.min, -8.0) << "two children: left alone";
    tree -= &c;
    EXPECT_EQ(tree.x.min, 1.0);
    EXPECT_EQ(tree.x.max, 2.0);
    EXPECT_EQ(Sorted(AllOf(tree)), Sorted(Boxes2d{&a, &b}));
    EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
    tree -= &a;
    EXPECT_EQ(Elements<QnGeExtent2d*>(tree.ExtentList), (Boxes2d{&b}));
    EXPECT_EQ(tree.CenterX, b.x.GetCenter());
}

TEST(QnGeQuadTree2d, SubtractingTheListsLastBoxShrinksToTheSingleOne) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    Box crossing(-1, 1, -1, 1);
    tree.Insert(&a);
    tree.Insert(&crossing);
    tree -= &crossing;
    EXPECT_EQ(tree.x.min, 0.5);
    EXPECT_EQ(tree.OneExtent, nullptr);
    EXPECT_EQ(Elements<QnGeExtent2d*>(tree.ExtentList), (Boxes2d{&a}));
}

TEST(QnGeQuadTree2d, CompressOfAnEmptyTreeDoesNothing) {
    Tree16 tree;
    tree.Compress();
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.x.max, 8.0);
}

// ---- looking for boxes -----------------------------------------------------------------------------

TEST(QnGeQuadTree2d, PointHitsComeDeepestNodeFirst) {
    Tree16 tree;
    Box root(-7, 7, -7, 7);
    Box quarter(1, 7, 1, 7);
    Box rootToo(-1, 5, -1, 5);
    Box deep(3, 3.9, 3, 3.9);
    for (Box* box : {&root, &quarter, &rootToo, &deep}) {
        tree.Insert(box);
    }
    EXPECT_EQ(HitsOf(tree, 3.5, 3.5), (Boxes2d{&deep, &quarter, &root, &rootToo}));
    EXPECT_EQ(HitsOf(tree, 6, 6), (Boxes2d{&quarter, &root}));
    EXPECT_EQ(HitsOf(tree, -3, 3), (Boxes2d{&root}));
    EXPECT_TRUE(HitsOf(tree, 7.5, 7.5).empty());
    EXPECT_TRUE(HitsOf(tree, 50, 50).empty());
}

TEST(QnGeQuadTree2d, PointOnTheBorderOfABoxHits) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    tree.Insert(&a);
    for (const double x : {1.0 - 9e-7, 1.0, 1.5, 2.0, 2.0 + 9e-7}) {
        EXPECT_EQ(HitsOf(tree, x, 1.5), (Boxes2d{&a})) << x;
        EXPECT_EQ(HitsOf(tree, 1.5, x), (Boxes2d{&a})) << x;
    }
    EXPECT_TRUE(HitsOf(tree, 1.0 - 1.1e-6, 1.5).empty());
    EXPECT_TRUE(HitsOf(tree, 1.5, 2.0 + 1.1e-6).empty());
}

TEST(QnGeQuadTree2d, PointNearACentreLineAsksOnlyTheListKeptOdd) {
    Tree16 tree;
    Box crossing(-1, 1, -1, 2);
    Box close(1.5e-6, 1, 1, 2);
    tree.Insert(&crossing);
    tree.Insert(&close);
    EXPECT_EQ(HitsOf(tree, 0.9e-6, 1.5), (Boxes2d{&crossing})) << "it would touch by the tolerance";
    EXPECT_EQ(HitsOf(tree, 1.1e-6, 1.5), (Boxes2d{&close, &crossing}));
}

TEST(QnGeQuadTree2d, BoxHitsGoThroughTheChildrenInOrder) {
    Tree16 tree;
    Box in[4] = {{1, 2, 1, 2}, {-2, -1, 1, 2}, {-2, -1, -2, -1}, {1, 2, -2, -1}};
    Box crossing(-1, 1, -1, 1);
    for (const int q : {3, 1, 0, 2}) {
        tree.Insert(&in[q]);
    }
    tree.Insert(&crossing);
    EXPECT_EQ(HitsOf(tree, Box(-3, 3, -3, 3)), (Boxes2d{&in[0], &in[1], &in[2], &in[3], &crossing}));
    EXPECT_EQ(HitsOf(tree, Box(0, 3, -3, 3)), (Boxes2d{&in[0], &in[3], &crossing}));
    EXPECT_EQ(HitsOf(tree, Box(0.5, 3, 0.5, 3)), (Boxes2d{&in[0], &crossing}));
    EXPECT_EQ(HitsOf(tree, Box(2, 3, 2, 3)), (Boxes2d{&in[0]})) << "touching counts";
    EXPECT_TRUE(HitsOf(tree, Box(2.1, 3, 2.1, 3)).empty());
}

TEST(QnGeQuadTree2d, BoxHitFindsALeafsOnlyBoxFromAnySide) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    tree.Insert(&a);
    EXPECT_EQ(HitsOf(tree, Box(-3, 3, -3, 3)), (Boxes2d{&a}));
    EXPECT_EQ(HitsOf(tree, Box(1.5, 3, 1.5, 3)), (Boxes2d{&a}));
    EXPECT_TRUE(HitsOf(tree, Box(-3, -1, -3, -1)).empty());
}

TEST(QnGeQuadTree2d, LowerLevelsSeeTheBoxCutToTheirCellKeptOdd) {
    Tree16 tree;
    Box crossing(-1, 1, -1, 1);
    Box beyond(9, 10, 3, 4);  // outside the range, in a cell that reaches to 8 only
    tree.Insert(&crossing);
    tree.Insert(&beyond);
    EXPECT_TRUE(HitsOf(tree, Box(-2, 20, 2, 5)).empty()) << "cut at 8";
    EXPECT_EQ(HitsOf(tree, Box(7, 20, 2, 5)), (Boxes2d{&beyond})) << "a box of that quarter alone is not cut";
}

TEST(QnGeQuadTree2d, ResultsAreAppended) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    tree.Insert(&a);
    QnDynArray<QnGeExtent2d*> found;
    tree.HitTest(1.5, 1.5, found);
    tree.HitTest(Box(0, 3, 0, 3), found);
    tree.GetAllExtent(found);
    EXPECT_EQ(Elements<QnGeExtent2d*>(found), (Boxes2d{&a, &a, &a}));
    QnList<QnGeExtent2d*> list;
    tree.HitTest(1.5, 1.5, list);
    EXPECT_EQ(list.GetLength(), 1) << "into a list too";
}

TEST(QnGeQuadTree2d, AllExtentGivesListThenSingleThenChildren) {
    Tree16 tree;
    Box in[4] = {{1, 2, 1, 2}, {-2, -1, 1, 2}, {-2, -1, -2, -1}, {1, 2, -2, -1}};
    Box crossing(-1, 1, -1, 1);
    Box below(3, 5, 3, 5);
    for (Box* box : {&in[2], &crossing, &in[3], &in[0], &in[1], &below}) {
        tree.Insert(box);
    }
    EXPECT_EQ(AllOf(tree), (Boxes2d{&crossing, &below, &in[0], &in[1], &in[2], &in[3]}));
}

TEST(QnGeQuadTree2d, LongListsAnswerInOrderOfArrival) {
    // Enough boxes on the centre line that whatever index the list carries is in use.
    Tree16 tree;
    PlainQuadTree plain(-8, 8, -8, 8);
    std::vector<std::unique_ptr<Box>> boxes;
    for (int i = 0; i < 400; ++i) {
        const double at = -7.0 + 14.0 * ((i * 37) % 400) / 400.0;
        boxes.push_back(std::make_unique<Box>(at, at + 0.5 + (i % 5), -0.5, 0.5 + (i % 3)));
        tree.Insert(boxes.back().get());
        plain.Insert(boxes.back().get());
    }
    tree.Insert(boxes[7].get());  // one twice
    plain.Insert(boxes[7].get());
    for (int round = 0; round < 20; ++round) {
        for (double x = -8; x <= 8; x += 0.61) {
            Boxes2d expected;
            plain.HitTest(x, 0.25 * (round % 9), expected);
            EXPECT_EQ(HitsOf(tree, x, 0.25 * (round % 9)), expected);
            const Box window(x, x + 0.3, -0.1, 2.0);
            expected.clear();
            plain.HitTest(window, expected);
            EXPECT_EQ(HitsOf(tree, window), expected);
        }
        for (int i = 0; i < 19; ++i) {
            const std::size_t victim = static_cast<std::size_t>((round * 19 + i) * 7 % 400);
            EXPECT_EQ(tree.Delete(boxes[victim].get(), false), plain.Delete(boxes[victim].get()));
        }
        ASSERT_EQ(tree_checks::CompareQuadTree(tree, plain), "");
    }
}
