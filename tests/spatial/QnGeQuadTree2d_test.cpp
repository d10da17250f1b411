// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGeQuadTree2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "TreeTesting.h"
#include "frame/QnGeTolerance.h"

namespace {

using Box = QnGeExtent2d;
constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

/// A tree over -8 .. 8 on both axes.
struct Tree16 : QnGeQuadTree2d {
    Tree16() { SetRange(-8, 8, -8, 8); }
};

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

TEST(QnGeQuadTree2d, StartsEmptyWithoutRange) {
    const QnGeQuadTree2d tree;
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.x.min, 0.0);
    EXPECT_EQ(tree.x.max, 0.0);
    EXPECT_EQ(tree.y.min, 0.0);
    EXPECT_EQ(tree.y.max, 0.0);
    EXPECT_EQ(tree.CenterX, 0.0);
    EXPECT_EQ(tree.CenterY, 0.0);
    EXPECT_EQ(tree.ExtentList, nullptr);
    EXPECT_EQ(tree.OneExtent, nullptr);
    for (const QnGeQuadTree2d* child : tree.Child) {
        EXPECT_EQ(child, nullptr);
    }
    EXPECT_TRUE(HitsOf(tree, 0, 0).empty());
    EXPECT_TRUE(HitsOf(tree, Box(-1, 1, -1, 1)).empty());
    EXPECT_TRUE(AllOf(tree).empty());
}

TEST(QnGeQuadTree2d, CentreIsTheMiddleOfTheRange) {
    QnGeQuadTree2d tree;
    tree.SetRange(1, 4, -6, 2);
    EXPECT_EQ(tree.x.min, 1.0);
    EXPECT_EQ(tree.x.max, 4.0);
    EXPECT_EQ(tree.y.min, -6.0);
    EXPECT_EQ(tree.y.max, 2.0);
    EXPECT_EQ(tree.CenterX, 2.5);
    EXPECT_EQ(tree.CenterY, -2.0);
}

TEST(QnGeQuadTree2d, CopiesShareTheNodes) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    Box b(-2, -1, 1, 2);
    Box c(-1, 1, 0, 1);
    tree.Insert(&a);
    tree.Insert(&b);
    tree.Insert(&c);
    QnGeQuadTree2d copy(tree);
    QnGeQuadTree2d assigned;
    assigned = tree;
    for (QnGeQuadTree2d* other : {&copy, &assigned}) {
        EXPECT_EQ(other->x.max, 8.0);
        EXPECT_EQ(other->ExtentList, tree.ExtentList);
        EXPECT_EQ(other->OneExtent, tree.OneExtent);
        for (int q = 0; q < 4; ++q) {
            EXPECT_EQ(other->Child[q], tree.Child[q]);
        }
        EXPECT_EQ(AllOf(*other), AllOf(tree));
        // only one of them may free the nodes
        other->ExtentList = nullptr;
        other->OneExtent = nullptr;
        for (QnGeQuadTree2d*& child : other->Child) {
            child = nullptr;
        }
    }
    QnGeQuadTree2d& self = tree;
    const QnGeQuadTree2d& same = tree;
    self = same;
    EXPECT_EQ(AllOf(tree).size(), 3U);
}

// ---- where a box goes ------------------------------------------------------------------------------

TEST(QnGeQuadTree2d, QuartersAreCountedFromUpperRightCounterClockwise) {
    const Box in[4] = {{1, 2, 2, 3}, {-2, -1, 2, 3}, {-2, -1, -3, -2}, {1, 2, -3, -2}};
    const Box range[4] = {{0, 8, 0, 8}, {-8, 0, 0, 8}, {-8, 0, -8, 0}, {0, 8, -8, 0}};
    for (int q = 0; q < 4; ++q) {
        Tree16 tree;
        Box crossing(-1, 1, -1, 1);
        Box box(in[q]);
        tree.Insert(&crossing);
        tree.Insert(&box);
        for (int other = 0; other < 4; ++other) {
            EXPECT_EQ(tree.Child[other] != nullptr, other == q);
        }
        ASSERT_NE(tree.Child[q], nullptr);
        EXPECT_EQ(tree.Child[q]->OneExtent, &box) << "a list and no child is not an empty node";
        EXPECT_EQ(tree.Child[q]->x.min, range[q].x.min);
        EXPECT_EQ(tree.Child[q]->x.max, range[q].x.max);
        EXPECT_EQ(tree.Child[q]->y.min, range[q].y.min);
        EXPECT_EQ(tree.Child[q]->y.max, range[q].y.max);
        EXPECT_EQ(tree.Child[q]->CenterX, (range[q].x.min + range[q].x.max) / 2.0);
        EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
    }
}

TEST(QnGeQuadTree2d, BoxesAcrossOrBesideACentreLineStayInTheList) {
    const double near = 0.9e-6;
    const double off = 1.1e-6;
    struct Case {
        Box box;
        bool inList;
    };
    const Case cases[] = {
        {{-1, 1, 2, 3}, true},         {{2, 3, -1, 1}, true},     {{-1, 1, -1, 1}, true},
        {{0, 1, 1, 2}, true},          {{-1, 0, 1, 2}, true},     {{1, 2, 0, 1}, true},
        {{1, 2, -1, 0}, true},         {{near, 1, 1, 2}, true},   {{-1, -near, 1, 2}, true},
        {{1, 2, near, 1}, true},       {{1, 2, -1, -near}, true}, {{-2, -1, near, 1}, true},
        {{-2, -1, -1, -near}, true},   {{off, 1, 1, 2}, false},   {{-1, -off, 1, 2}, false},
        {{1, 2, off, 1}, false},       {{1, 2, -1, -off}, false}, {{-2, -1, off, 1}, false},
        {{-2, -1, -1, -off}, false},   {{0, 0, 0, 0}, true},      {{3, 3, 3, 3}, false},
        {{g_distZero, 1, 1, 2}, true}, {{-8, 8, 0.5, 0.6}, true},
    };
    for (const Case& c : cases) {
        Tree16 tree;
        Box box(c.box);
        tree.Insert(&box);
        EXPECT_EQ(tree.ExtentList != nullptr, c.inList) << box.x.min << ' ' << box.x.max << ' ' << box.y.min;
        EXPECT_EQ(tree.OneExtent == &box, !c.inList);
        EXPECT_TRUE(tree.Delete(&box, false));
        EXPECT_TRUE(tree.IsEmptyTree());
        EXPECT_EQ(tree.ExtentList, nullptr) << "an emptied list is deleted";
    }
}

TEST(QnGeQuadTree2d, SecondBoxPushesTheFirstDown) {
    Tree16 tree;
    Box a(1, 1.5, 1, 1.5);
    Box b(4.5, 5, 4.5, 5);
    tree.Insert(&a);
    EXPECT_EQ(tree.OneExtent, &a);
    tree.Insert(&b);
    EXPECT_EQ(tree.OneExtent, nullptr);
    ASSERT_NE(tree.Child[0], nullptr);
    EXPECT_EQ(tree.Child[0]->OneExtent, nullptr);
    ASSERT_NE(tree.Child[0]->Child[0], nullptr);
    ASSERT_NE(tree.Child[0]->Child[2], nullptr);
    EXPECT_EQ(tree.Child[0]->Child[0]->OneExtent, &b);
    EXPECT_EQ(tree.Child[0]->Child[2]->OneExtent, &a);
    EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
}

TEST(QnGeQuadTree2d, EqualBoxesSinkUntilALineCatchesThemAndTheNewerMayStandFirst) {
    // Every level turns the order of the two round.
    for (int level = 1; level <= 4; ++level) {
        Tree16 tree;
        const double middle = 8.0 / std::pow(2.0, level);
        Box a(middle - 0.01, middle + 0.01, middle - 0.01, middle + 0.01);
        Box b(a);
        tree.Insert(&a);
        tree.Insert(&b);
        const QnGeQuadTree2d* node = &tree;
        for (int step = 0; step < level; ++step) {
            ASSERT_EQ(node->OneExtent, nullptr);
            node = node->Child[step == 0 ? 0 : 2];
            ASSERT_NE(node, nullptr) << "level " << level;
        }
        const Boxes2d expected = level % 2 == 1 ? Boxes2d{&b, &a} : Boxes2d{&a, &b};
        ASSERT_NE(node->ExtentList, nullptr);
        PlainQuadTree plain(-8, 8, -8, 8);
        plain.Insert(&a);
        plain.Insert(&b);
        EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "");
        if (level == 1) {
            EXPECT_EQ(Elements<QnGeExtent2d*>(node->ExtentList), expected);
        }
        EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
    }
}

TEST(QnGeQuadTree2d, BoxesOutsideTheRangeEndInALowList) {
    Tree16 tree;
    std::vector<std::unique_ptr<Box>> boxes;
    PlainQuadTree plain(-8, 8, -8, 8);
    for (const Box& box : {Box(100, 101, 100, 101), Box(100, 101, 100, 101), Box(200, 300, 150, 151),
                           Box(-50, -49, 30, 31), Box(-50, -49, 30, 31), Box(-1e9, 1e9, -1e9, 1e9), Box(1, 2, 1, 2)}) {
        boxes.push_back(std::make_unique<Box>(box));
        tree.Insert(boxes.back().get());
        plain.Insert(boxes.back().get());
    }
    EXPECT_EQ(AllOf(tree).size(), 7U);
    EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "");
    for (const std::unique_ptr<Box>& box : boxes) {
        EXPECT_TRUE(tree.Delete(box.get(), false));
        EXPECT_TRUE(plain.Delete(box.get()));
        EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "");
    }
    EXPECT_TRUE(tree.IsEmptyTree());
}

TEST(QnGeQuadTree2d, TreeWithoutRangeKeepsAllInItsList) {
    QnGeQuadTree2d tree;
    Box a(1, 2, 1, 2);
    Box b(3, 4, 3, 4);
    Box c(1, 2, 1, 2);
    for (Box* box : {&a, &b, &c}) {
        tree.Insert(box);
    }
    EXPECT_EQ(Elements<QnGeExtent2d*>(tree.ExtentList), (Boxes2d{&a, &b, &c}));
    EXPECT_EQ(HitsOf(tree, 1.5, 1.5), (Boxes2d{&a, &c}));
    EXPECT_EQ(HitsOf(tree, Box(3.5, 9, 3.5, 9)), (Boxes2d{&b}));
    EXPECT_TRUE(tree.Delete(&b, false));
    EXPECT_EQ(AllOf(tree), (Boxes2d{&a, &c}));
}

TEST(QnGeQuadTree2d, TinyCellsAreNotDivided) {
    QnGeQuadTree2d tree;
    tree.SetRange(0, 2 * g_distZero, 0, 1);
    Box a(1.9e-6, 1.95e-6, 0.9, 0.95);
    tree.Insert(&a);
    EXPECT_NE(tree.ExtentList, nullptr);
}

TEST(QnGeQuadTree2d, RangesThatAreFlatOnEitherAxisAreNotDivided) {
    for (const Box& range : {Box(-8, 8, 3, 3), Box(3, 3, -8, 8), Box(-8, 8, 3, 3 + 2e-6), Box(8, -8, -8, 8)}) {
        QnGeQuadTree2d tree;
        tree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
        Box a(5, 6, 5, 6);
        Box b(5, 6, 5, 6);
        tree.Insert(&a);
        tree.Insert(&b);
        EXPECT_EQ(Elements<QnGeExtent2d*>(tree.ExtentList), (Boxes2d{&a, &b}));
        EXPECT_EQ(HitsOf(tree, 5.5, 5.5), (Boxes2d{&a, &b}));
        EXPECT_EQ(HitsOf(tree, Box(5.5, 7, 5.5, 7)), (Boxes2d{&a, &b}));
        EXPECT_TRUE(tree.Delete(&a, false));
        EXPECT_TRUE(tree.Delete(&b, false));
    }
}

// ---- deleting --------------------------------------------------------------------------------------

TEST(QnGeQuadTree2d, DeletingWhatIsNotThereChangesNothing) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    Box b(-1, 1, -1, 1);
    Box equalToA(a);
    Box equalToB(b);
    Box elsewhere(-3, -2, -3, -2);
    EXPECT_FALSE(tree.Delete(&a, false)) << "empty";
    tree.Insert(&a);
    EXPECT_FALSE(tree.Delete(&equalToA, false)) << "by identity";
    EXPECT_FALSE(tree.Delete(&elsewhere, false));
    tree.Insert(&b);
    for (Box* stranger : {&equalToA, &equalToB, &elsewhere}) {
        EXPECT_FALSE(tree.Delete(stranger, false));
        tree -= stranger;
    }
    EXPECT_EQ(AllOf(tree), (Boxes2d{&b, &a}));
    EXPECT_TRUE(tree.Delete(&a, false));
    EXPECT_FALSE(tree.Delete(&a, false)) << "twice";
    EXPECT_EQ(tree.Child[0], nullptr) << "a child that is empty is deleted";
}

TEST(QnGeQuadTree2d, OnlyDeletingWithTheObjectFreesABox) {
    const long before = CountedBox::Alive();
    {
        QnGeQuadTree2d tree;
        tree.SetRange(-8, 8, -8, 8);
        auto* const one = new CountedBox(1, 2, 1, 2);
        auto* const listed = new CountedBox(-1, 1, -1, 1);
        const auto kept = std::make_unique<CountedBox>(3, 4, 3, 4);
        const auto keptToo = std::make_unique<CountedBox>(-1, 1, -1, 1);
        for (CountedBox* box : {one, listed, kept.get(), keptToo.get()}) {
            tree.Insert(box);
        }
        EXPECT_TRUE(tree.Delete(one, true));
        EXPECT_TRUE(tree.Delete(listed, true));
        EXPECT_EQ(CountedBox::Alive(), before + 2);
        EXPECT_TRUE(tree.Delete(keptToo.get(), false));
        tree.Reset();
        EXPECT_EQ(CountedBox::Alive(), before + 2);
        EXPECT_TRUE(tree.IsEmptyTree());
        EXPECT_EQ(tree.x.max, 8.0) << "the range stays";
        tree.Insert(kept.get());
    }
    EXPECT_EQ(CountedBox::Alive(), before);
}

TEST(QnGeQuadTree2d, SubtractingTheLastBoxKeepsTheRange) {
    Tree16 tree;
    Box deep(1.1, 1.2, 1.1, 1.2);
    Box crossing(-1, 1, -1, 1);
    tree.Insert(&crossing);
    tree.Insert(&deep);
    EXPECT_TRUE(tree.Delete(&crossing, false));
    EXPECT_NE(tree.Child[0], nullptr);
    tree -= &deep;
    EXPECT_TRUE(tree.IsEmptyTree()) << "the path of empty children is removed";
    EXPECT_EQ(tree.x.min, -8.0);
    EXPECT_EQ(tree.x.max, 8.0);
}

// ---- growing ---------------------------------------------------------------------------------------

TEST(QnGeQuadTree2d, FirstBoxMakesASquareAboutItself) {
    QnGeQuadTree2d tree;
    Box a(10, 11, 20, 26);
    tree.SetRange(0, 1, 0, 1);
    tree += &a;
    EXPECT_EQ(tree.CenterX, 10.5);
    EXPECT_EQ(tree.CenterY, 23.0);
    EXPECT_EQ(tree.x.min, 6.5) << "1 and 2 are too little for 6 high";
    EXPECT_EQ(tree.x.max, 14.5);
    EXPECT_EQ(tree.y.min, 19.0);
    EXPECT_EQ(tree.y.max, 27.0);
    ASSERT_NE(tree.ExtentList, nullptr) << "it straddles the centre";
    EXPECT_EQ(tree.OneExtent, nullptr);

    QnGeQuadTree2d exact;
    Box touching(0, 2, 0, 2);
    exact += &touching;
    EXPECT_EQ(exact.x.max, 3.0) << "a half side of 1 would only touch";
    QnGeQuadTree2d small;
    Box point(5, 5, 5, 5);
    small += &point;
    EXPECT_EQ(small.x.min, 4.0);
    EXPECT_EQ(small.x.max, 6.0);
}

TEST(QnGeQuadTree2d, BoxInTheRangeIsInserted) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    Box b(-8, -7, 1, 2);
    Box c(5, 6, 5, 6);
    tree.Insert(&a);
    tree += &c;
    EXPECT_EQ(tree.x.max, 8.0);
    tree += &b;
    EXPECT_EQ(tree.x.min, -8.0 - 16.0) << "touching the range is not inside";
}

TEST(QnGeQuadTree2d, GrowsOnTheLatticeOfItsRange) {
    struct Case {
        Box far;
        Box square;
        int quarter;  ///< where the old range hangs
    };
    // range -8 .. 8, so the step is 16
    const Case cases[] = {
        {{10, 11, 9, 10}, {-8, 24, -8, 24}, 2},     {{-11, -10, 9, 10}, {-24, 8, -8, 24}, 3},
        {{-11, -10, -10, -9}, {-24, 8, -24, 8}, 0}, {{10, 11, -10, -9}, {-8, 24, -24, 8}, 1},
        {{10, 11, 1, 2}, {-8, 24, -24, 8}, 1},      {{1, 2, 10, 11}, {-24, 8, -8, 24}, 3},
    };
    for (const Case& c : cases) {
        Tree16 tree;
        Box a(1, 2, 1, 2);
        Box b(-2, -1, 1, 2);
        Box far(c.far);
        tree.Insert(&a);
        tree.Insert(&b);
        tree += &far;
        PlainQuadTree plain(-8, 8, -8, 8);
        plain.Insert(&a);
        plain.Insert(&b);
        plain += &far;
        EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "") << far.x.min << ' ' << far.y.min;
        EXPECT_EQ(tree.x.min, c.square.x.min) << far.x.min << ' ' << far.y.min;
        EXPECT_EQ(tree.x.max, c.square.x.max) << far.x.min << ' ' << far.y.min;
        EXPECT_EQ(tree.y.min, c.square.y.min) << far.x.min << ' ' << far.y.min;
        EXPECT_EQ(tree.y.max, c.square.y.max) << far.x.min << ' ' << far.y.min;
        ASSERT_NE(tree.Child[c.quarter], nullptr) << far.x.min << ' ' << far.y.min;
        EXPECT_EQ(tree.Child[c.quarter]->x.max - tree.Child[c.quarter]->x.min, 16.0);
        EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
        EXPECT_EQ(AllOf(tree).size(), 3U);
    }
}

TEST(QnGeQuadTree2d, GrowsFarInOneStep) {
    Tree16 tree;
    Box a(1, 2, 1, 2);
    Box b(-2, -1, 1, 2);
    Box far(1000, 1001, -3000, -2999);
    tree.Insert(&a);
    tree.Insert(&b);
    tree += &far;
    EXPECT_TRUE(tree.IsInside(far));
    EXPECT_TRUE(tree.IsInside(a));
    EXPECT_EQ(std::fmod(tree.CenterX - 8.0, 16.0), 0.0) << "a corner of the old range's lattice";
    EXPECT_EQ(std::fmod(tree.CenterY - 8.0, 16.0), 0.0);
    EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
    EXPECT_EQ(HitsOf(tree, 1.5, 1.5), (Boxes2d{&a}));
    EXPECT_EQ(HitsOf(tree, -1.5, 1.5), (Boxes2d{&b}));
    EXPECT_EQ(HitsOf(tree, 1000.5, -2999.5), (Boxes2d{&far}));
}

TEST(QnGeQuadTree2d, RangesThatAreNotSquareLoseNothingByGrowing) {
    const Box ranges[] = {{0, 2, 0, 100}, {0, 100, 0, 2}, {0, 0, 0, 0}, {0, 0, 0, 100}, {0, 100, 0, 0}, {5, 5, 5, 5}};
    const Box far[] = {{300, 301, 50, 51}, {1, 1.5, 500, 501}, {-77, -76, -33, -32}, {-1, 1, -1, 1}, {4, 6, 4, 6}};
    for (const Box& range : ranges) {
        for (const Box& added : far) {
            QnGeQuadTree2d tree;
            tree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
            PlainQuadTree plain(range.x.min, range.x.max, range.y.min, range.y.max);
            Box a(0.5, 0.6, 0.5, 0.6);
            Box b(1.5, 1.6, 1.7, 1.8);
            Box c(added);
            for (Box* box : {&a, &b}) {
                tree.Insert(box);
                plain.Insert(box);
            }
            tree += &c;
            plain += &c;
            EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "")
                << range.x.max << " x " << range.y.max << " and " << added.x.min;
            EXPECT_EQ(Sorted(AllOf(tree)), Sorted(Boxes2d{&a, &b, &c}));
            for (Box* box : {&a, &b, &c}) {
                const Boxes2d hits = HitsOf(tree, box->x.GetCenter(), box->y.GetCenter());
                EXPECT_NE(std::find(hits.begin(), hits.end(), box), hits.end())
                    << range.x.max << " x " << range.y.max << " and " << added.x.min;
                EXPECT_TRUE(tree.Delete(box, false));
            }
            EXPECT_TRUE(tree.IsEmptyTree());
        }
    }
}

TEST(QnGeQuadTree2d, TallRangeIsBuiltAnewInTheOrderOfItsBoxes) {
    QnGeQuadTree2d tree;
    tree.SetRange(0, 2, 0, 100);
    Box a(0.2, 0.4, 10, 11);
    Box b(1.2, 1.4, 80, 81);
    Box c(0.5, 1.5, 20, 21);
    for (Box* box : {&a, &b, &c}) {
        tree.Insert(box);
    }
    const Boxes2d order = AllOf(tree);
    EXPECT_EQ(order, (Boxes2d{&c, &b, &a}));
    Box far(-50, -49, 50, 51);
    tree += &far;
    EXPECT_EQ(tree.GetLength(), tree.GetHeight()) << "a square now";
    EXPECT_TRUE(tree.IsInclude(Box(0, 2, 0, 100)));
    EXPECT_EQ(AllOf(tree).size(), 4U);
    EXPECT_EQ(tree_checks::CheckQuadTree(tree), "");
}

TEST(QnGeQuadTree2d, BoxesWithoutEndAreKeptInAList) {
    const Box bad[] = {{NOT_A_NUMBER, 1, 0, 1}, {0, NOT_A_NUMBER, 0, 1}, {0, 1, 0, NOT_A_NUMBER},
                       {-INF, INF, -INF, INF},  {5, INF, 5, 6},          {-INF, -5, 5, 6}};
    for (const Box& box : bad) {
        for (const bool first : {true, false}) {
            QnGeQuadTree2d tree;
            Box good(1, 2, 1, 2);
            Box goodToo(-30, -29, 1, 2);
            Box odd(box);
            if (!first) {
                tree += &good;
                tree += &goodToo;
            }
            tree += &odd;
            if (first) {
                tree += &good;
                tree += &goodToo;
            }
            EXPECT_EQ(Sorted(AllOf(tree)), Sorted(Boxes2d{&good, &goodToo, &odd}));
            EXPECT_TRUE(tree.Delete(&odd, false)) << box.x.min << ' ' << box.x.max << (first ? " first" : " last");
            EXPECT_TRUE(tree.Delete(&good, false)) << box.x.min << ' ' << box.x.max << (first ? " first" : " last");
            EXPECT_TRUE(tree.Delete(&goodToo, false));
            EXPECT_TRUE(tree.IsEmptyTree());
        }
    }
}

TEST(QnGeQuadTree2d, BoxAtTheBorderOfASetRangeIsMissedAfterGrowingKeptOdd) {
    Tree16 tree;
    Box crossing(-1, 1, -1, 1);
    Box atBorder(7, 8, 1, 2);
    Box far(10, 11, 9, 10);
    tree.Insert(&crossing);
    tree.Insert(&atBorder);
    tree += &far;
    EXPECT_EQ(AllOf(tree).size(), 3U);
    EXPECT_TRUE(HitsOf(tree, 8.0, 1.5).empty()) << "the old border is a centre line now";
    EXPECT_EQ(HitsOf(tree, 7.5, 1.5), (Boxes2d{&atBorder}));
    EXPECT_FALSE(tree.Delete(&atBorder, false));
}
