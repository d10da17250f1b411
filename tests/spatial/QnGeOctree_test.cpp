// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGeOctree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "TreeTesting.h"
#include "frame/QnGeTolerance.h"

namespace {

using Box = QnGeExtent3d;

struct Tree16 : QnGeOctree {
    Tree16() { SetRange(-8, 8, -8, 8, -8, 8); }
};

Boxes3d AllOf(const QnGeOctree& tree) {
    return tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.GetAllExtent(r); });
}

Boxes3d HitsOf(const QnGeOctree& tree, double x, double y, double z) {
    return tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.HitTest(x, y, z, r); });
}

Boxes3d HitsOf(const QnGeOctree& tree, const Box& box) {
    return tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.HitTest(box, r); });
}

/// Octants: right, above in y, above in z.
struct Octant {
    bool right;
    bool above;
    bool up;
};
const Octant OCTANTS[8] = {{true, true, true},  {false, true, true},  {false, false, true},  {true, false, true},
                           {true, true, false}, {false, true, false}, {false, false, false}, {true, false, false}};

/// low .. high on the positive side, mirrored on the other.
QnGeExtent Side(bool positive, double low, double high) {
    return positive ? QnGeExtent(low, high) : QnGeExtent(-high, -low);
}

Box InOctant(int q, double low, double high) {
    return Box(Side(OCTANTS[q].right, low, high), Side(OCTANTS[q].above, low, high), Side(OCTANTS[q].up, low, high));
}

}  // namespace

TEST(QnGeOctree, StartsEmptyWithoutRange) {
    const QnGeOctree tree;
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.x.max, 0.0);
    EXPECT_EQ(tree.z.max, 0.0);
    EXPECT_EQ(tree.CenterX, 0.0);
    EXPECT_EQ(tree.CenterY, 0.0);
    EXPECT_EQ(tree.CenterZ, 0.0);
    EXPECT_EQ(tree.ExtentList, nullptr);
    EXPECT_EQ(tree.OneExtent, nullptr);
    for (const QnGeOctree* child : tree.Child) {
        EXPECT_EQ(child, nullptr);
    }
}

TEST(QnGeOctree, RangeRunsXThenYThenZ) {
    QnGeOctree tree;
    tree.SetRange(1, 2, 3, 5, 7, 11);
    EXPECT_EQ(tree.x.min, 1.0);
    EXPECT_EQ(tree.x.max, 2.0);
    EXPECT_EQ(tree.y.min, 3.0);
    EXPECT_EQ(tree.y.max, 5.0);
    EXPECT_EQ(tree.z.min, 7.0);
    EXPECT_EQ(tree.z.max, 11.0);
    EXPECT_EQ(tree.CenterX, 1.5);
    EXPECT_EQ(tree.CenterY, 4.0);
    EXPECT_EQ(tree.CenterZ, 9.0);
}

TEST(QnGeOctree, OctantsAreTheQuartersAboveThenBelow) {
    for (int q = 0; q < 8; ++q) {
        Tree16 tree;
        Box crossing(-1, 1, -1, 1, -1, 1);
        Box box = InOctant(q, 1, 2);
        tree.Insert(&crossing);
        tree.Insert(&box);
        for (int other = 0; other < 8; ++other) {
            EXPECT_EQ(tree.Child[other] != nullptr, other == q) << q;
        }
        const QnGeOctree* const child = tree.Child[q];
        ASSERT_NE(child, nullptr);
        EXPECT_EQ(child->OneExtent, &box);
        const Box range = InOctant(q, 0, 8);
        EXPECT_EQ(child->x.min, range.x.min);
        EXPECT_EQ(child->x.max, range.x.max);
        EXPECT_EQ(child->y.min, range.y.min);
        EXPECT_EQ(child->y.max, range.y.max);
        EXPECT_EQ(child->z.min, range.z.min);
        EXPECT_EQ(child->z.max, range.z.max);
        EXPECT_EQ(child->CenterZ, range.z.GetCenter());
        EXPECT_EQ(HitsOf(tree, box.x.GetCenter(), box.y.GetCenter(), box.z.GetCenter()), (Boxes3d{&box}));
    }
}

TEST(QnGeOctree, BoxAcrossAnyCentrePlaneStaysInTheList) {
    const double near = 9e-7;
    for (const Box& at :
         {Box(1, 2, 1, 2, -1, 1), Box(1, 2, -1, 1, 1, 2), Box(-1, 1, 1, 2, 1, 2), Box(1, 2, 1, 2, near, 1),
          Box(1, 2, 1, 2, -1, -near), Box(near, 1, 1, 2, 1, 2), Box(-1, -near, 1, 2, -2, -1), Box(1, 2, near, 1, 1, 2),
          Box(1, 2, -1, -near, -2, -1), Box(-1, 1, -1, 1, -1, 1)}) {
        Tree16 tree;
        Box box(at);
        tree.Insert(&box);
        EXPECT_EQ(Elements<QnGeExtent3d*>(tree.ExtentList), (Boxes3d{&box}));
        EXPECT_TRUE(tree.Delete(&box, false));
        EXPECT_EQ(tree.ExtentList, nullptr);
    }
    Tree16 tree;
    Box off(1.1e-6, 1, 1.1e-6, 1, -1, -1.1e-6);
    tree.Insert(&off);
    EXPECT_EQ(tree.OneExtent, &off);
}

TEST(QnGeOctree, SecondBoxPushesTheFirstDown) {
    Tree16 tree;
    Box a(1, 1.5, 1, 1.5, -1.5, -1);
    Box b(4.5, 5, 4.5, 5, -5, -4.5);
    tree.Insert(&a);
    EXPECT_EQ(tree.OneExtent, &a);
    tree.Insert(&b);
    EXPECT_EQ(tree.OneExtent, nullptr);
    ASSERT_NE(tree.Child[4], nullptr);
    ASSERT_NE(tree.Child[4]->Child[4], nullptr);
    EXPECT_EQ(tree.Child[4]->Child[4]->OneExtent, &b);
    ASSERT_NE(tree.Child[4]->Child[2], nullptr) << "the first is above in z there";
    EXPECT_EQ(tree.Child[4]->Child[2]->OneExtent, &a);
}

TEST(QnGeOctree, BoxesOutsideTheRangeEndInAList) {
    for (const bool withRange : {true, false}) {
        QnGeOctree tree;
        if (withRange) {
            tree.SetRange(-8, 8, -8, 8, -8, 8);
        }
        Box a(100, 101, 100, 101, 100, 101);
        Box b(100, 101, 100, 101, 100, 101);
        Box c(300, 301, -100, -99, 5, 6);
        for (Box* box : {&a, &b, &c}) {
            tree.Insert(box);
        }
        EXPECT_EQ(AllOf(tree).size(), 3U);
        for (Box* box : {&a, &b, &c}) {
            EXPECT_TRUE(tree.Delete(box, false));
        }
        EXPECT_TRUE(tree.IsEmptyTree());
    }
}

TEST(QnGeOctree, FlatRangesAreNotDivided) {
    QnGeOctree tree;
    tree.SetRange(-8, 8, -8, 8, 0, 0);
    Box a(1, 2, 1, 2, 0, 0);
    Box b(1, 2, 1, 2, 0, 0);
    tree.Insert(&a);
    tree.Insert(&b);
    EXPECT_EQ(Elements<QnGeExtent3d*>(tree.ExtentList), (Boxes3d{&a, &b}));
    EXPECT_EQ(HitsOf(tree, 1.5, 1.5, 0), (Boxes3d{&a, &b}));
}

TEST(QnGeOctree, DeletingIsByIdentity) {
    const long before = CountedBox3d::Alive();
    {
        Tree16 tree;
        auto* const one = new CountedBox3d(1, 2, 1, 2, 1, 2);
        auto* const listed = new CountedBox3d(-1, 1, -1, 1, -1, 1);
        Box equal(1, 2, 1, 2, 1, 2);
        tree.Insert(one);
        EXPECT_FALSE(tree.Delete(&equal, false));
        tree.Insert(listed);
        EXPECT_FALSE(tree.Delete(&equal, true));
        EXPECT_EQ(AllOf(tree), (Boxes3d{listed, one}));
        EXPECT_TRUE(tree.Delete(one, true));
        EXPECT_TRUE(tree.Delete(listed, true));
        EXPECT_TRUE(tree.IsEmptyTree());
        EXPECT_EQ(CountedBox3d::Alive(), before);
        CountedBox3d kept(1, 2, 1, 2, 1, 2);
        tree.Insert(&kept);
        tree.Reset();
        EXPECT_EQ(CountedBox3d::Alive(), before + 1);
        EXPECT_TRUE(tree.IsEmptyTree());
        EXPECT_EQ(tree.z.max, 8.0);
    }
    EXPECT_EQ(CountedBox3d::Alive(), before);
}

TEST(QnGeOctree, FirstBoxMakesACubeAboutItself) {
    QnGeOctree tree;
    Box a(10, 11, 20, 21, 30, 36);
    tree += &a;
    EXPECT_EQ(tree.x.min, 6.5);
    EXPECT_EQ(tree.x.max, 14.5);
    EXPECT_EQ(tree.y.min, 16.5);
    EXPECT_EQ(tree.y.max, 24.5);
    EXPECT_EQ(tree.z.min, 29.0);
    EXPECT_EQ(tree.z.max, 37.0);
    EXPECT_EQ(Elements<QnGeExtent3d*>(tree.ExtentList), (Boxes3d{&a}));
}

TEST(QnGeOctree, GrowsOnTheLatticeOnThreeAxes) {
    for (int q = 0; q < 8; ++q) {
        Tree16 tree;
        Box a(1, 2, 1, 2, 1, 2);
        Box b(-2, -1, 1, 2, -3, -2);
        Box far = InOctant(q, 10, 11);
        tree.Insert(&a);
        tree.Insert(&b);
        tree += &far;
        EXPECT_EQ(tree.CenterX, OCTANTS[q].right ? 8.0 : -8.0) << q;
        EXPECT_EQ(tree.CenterY, OCTANTS[q].above ? 8.0 : -8.0) << q;
        EXPECT_EQ(tree.CenterZ, OCTANTS[q].up ? 8.0 : -8.0) << q;
        EXPECT_EQ(tree.GetLength(), 32.0);
        EXPECT_EQ(tree.GetHeight(), 32.0);
        EXPECT_EQ(tree.GetDepth(), 32.0);
        EXPECT_EQ(AllOf(tree).size(), 3U);
        for (Box* box : {&a, &b, &far}) {
            EXPECT_EQ(HitsOf(tree, box->x.GetCenter(), box->y.GetCenter(), box->z.GetCenter()), (Boxes3d{box})) << q;
            EXPECT_TRUE(tree.Delete(box, false));
        }
    }
}

TEST(QnGeOctree, RangesThatAreNoCubesLoseNothingByGrowing) {
    const Box ranges[] = {{0, 2, 0, 100, 0, 2}, {0, 2, 0, 2, 0, 100}, {0, 100, 0, 2, 0, 2}, {0, 100, 0, 100, 0, 2}};
    for (const Box& range : ranges) {
        for (const Box& added :
             {Box(300, 301, 50, 51, 1, 2), Box(1, 1.5, 1, 1.5, 500, 501), Box(-77, -76, -33, -32, 0, 1)}) {
            QnGeOctree tree;
            tree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max, range.z.min, range.z.max);
            Box a(0.5, 0.6, 0.5, 0.6, 0.5, 0.6);
            Box b(1.5, 1.6, 1.7, 1.8, 1.7, 1.8);
            Box c(added);
            tree.Insert(&a);
            tree.Insert(&b);
            tree += &c;
            EXPECT_EQ(Sorted(AllOf(tree)), Sorted(Boxes3d{&a, &b, &c}));
            for (Box* box : {&a, &b, &c}) {
                EXPECT_EQ(HitsOf(tree, box->x.GetCenter(), box->y.GetCenter(), box->z.GetCenter()), (Boxes3d{box}));
                EXPECT_TRUE(tree.Delete(box, false));
            }
        }
    }
}

TEST(QnGeOctree, MovingTakesEverythingAlong) {
    Tree16 tree;
    Box a(1, 2, 1, 2, 1, 2);
    Box b(-2, -1, 1, 2, -3, -2);
    Box c(-1, 1, 0, 1, 1, 2);
    for (Box* box : {&a, &b, &c}) {
        tree.Insert(box);
    }
    const Boxes3d all = AllOf(tree);
    QnGeOctree target;
    tree >> target;
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(AllOf(target), all);
    EXPECT_EQ(target.CenterZ, 0.0);
    EXPECT_EQ(target.z.max, 8.0);
    target >> target;
    EXPECT_EQ(AllOf(target), all);
}

TEST(QnGeOctree, ChildIsHungWhereItsMiddleLies) {
    for (int q = 0; q < 8; ++q) {
        Tree16 tree;
        auto* const subtree = new QnGeOctree;
        const Box range = InOctant(q, 0, 8);
        subtree->SetRange(range.x.min, range.x.max, range.y.min, range.y.max, range.z.min, range.z.max);
        Box box = InOctant(q, 1, 2);
        subtree->Insert(&box);
        Box held = InOctant(7 - q, 1, 2);
        tree.Insert(&held);
        tree.InsertChild(subtree);
        EXPECT_EQ(tree.Child[q], subtree);
        EXPECT_EQ(tree.OneExtent, nullptr) << "it does not stay beside a child";
        EXPECT_EQ(Sorted(AllOf(tree)), Sorted(Boxes3d{&box, &held}));
    }
    Tree16 tree;
    for (const QnGePoint& middle : {QnGePoint(0, 4, 4), QnGePoint(4, 0, 4), QnGePoint(4, 4, 0)}) {
        const auto subtree = std::make_unique<QnGeOctree>();
        subtree->SetRange(middle.x - 1, middle.x + 1, middle.y - 1, middle.y + 1, middle.z - 1, middle.z + 1);
        tree.InsertChild(subtree.get());
        EXPECT_TRUE(tree.IsEmptyTree()) << "left to the caller";
    }
}

TEST(QnGeOctree, SmallChildIsHungAtItsDepth) {
    Tree16 tree;
    auto* const subtree = new QnGeOctree;
    subtree->SetRange(0, 4, 4, 8, -4, 0);
    Box box(1, 2, 5, 6, -2, -1);
    subtree->Insert(&box);
    tree.InsertChild(subtree);
    ASSERT_NE(tree.Child[4], nullptr);
    EXPECT_EQ(tree.Child[4]->Child[1], subtree);
    EXPECT_EQ(HitsOf(tree, 1.5, 5.5, -1.5), (Boxes3d{&box}));
}

// ---- compressing -----------------------------------------------------------------------------------

namespace {

/// A tree with two boxes in each of the octants given, so that each has a child with two children in one half.
struct Filled {
    Tree16 tree;
    std::vector<std::unique_ptr<Box>> boxes;

    explicit Filled(const std::vector<int>& octants) {
        for (const int q : octants) {
            for (const double at : {1.0, 5.0}) {
                const Box low = InOctant(q, 1.0, 1.5);
                const Box box = InOctant(q, at, at + 0.5);
                boxes.push_back(std::make_unique<Box>(box.x, box.y, low.z));
                tree.Insert(boxes.back().get());
            }
        }
    }
    Boxes3d Of(std::size_t which) const { return {boxes[2 * which].get(), boxes[2 * which + 1].get()}; }
};

}  // namespace

TEST(QnGeOctree, CompressPullsUpTheOnlyChild) {
    for (int q = 0; q < 8; ++q) {
        Filled filled({q});
        filled.tree.Compress();
        EXPECT_EQ(filled.tree.GetLength(), 8.0) << q;
        EXPECT_EQ(filled.tree.x.max, InOctant(q, 0, 8).x.max);
        EXPECT_EQ(filled.tree.z.min, InOctant(q, 0, 8).z.min);
        EXPECT_EQ(Sorted(AllOf(filled.tree)), Sorted(filled.Of(0)));
    }
}

TEST(QnGeOctree, CompressDropsTheUpperOfOneAboveAndOneBelowKeptOdd) {
    for (int up = 0; up < 4; ++up) {
        for (int down = 4; down < 8; ++down) {
            Filled filled({up, down});
            filled.tree.Compress();
            EXPECT_EQ(Sorted(AllOf(filled.tree)), Sorted(filled.Of(1))) << up << ' ' << down;
            EXPECT_EQ(filled.tree.z.max, 0.0);
        }
    }
}

TEST(QnGeOctree, CompressLeavesTwoChildrenOfOneHalf) {
    for (const std::vector<int>& octants :
         std::vector<std::vector<int>>{{0, 1}, {5, 7}, {0, 3, 6}, {1, 4, 5}, {0, 1, 4, 5}, {0, 1, 2, 3, 4, 5, 6, 7}}) {
        Filled filled(octants);
        filled.tree.Compress();
        EXPECT_EQ(filled.tree.GetLength(), 16.0);
        EXPECT_EQ(AllOf(filled.tree).size(), filled.boxes.size());
    }
}

TEST(QnGeOctree, CompressShrinksToTheOnlyBoxAndLeavesLists) {
    Tree16 tree;
    Box a(1, 2, 1, 2, 1, 2);
    tree.Insert(&a);
    tree.Compress();
    EXPECT_EQ(Elements<QnGeExtent3d*>(tree.ExtentList), (Boxes3d{&a}));
    EXPECT_EQ(tree.z.min, 0.5);
    EXPECT_EQ(tree.z.max, 2.5);
    tree.Compress();
    EXPECT_EQ(tree.z.max, 2.5);
    Tree16 empty;
    empty.Compress();
    EXPECT_EQ(empty.z.max, 8.0);
}

TEST(QnGeOctree, SubtractingDropsNothingElse) {
    // One child above and one below remain: Compress would throw the upper one away.
    Filled filled({1, 6, 3});
    filled.tree -= filled.boxes[4].get();
    filled.tree -= filled.boxes[5].get();
    EXPECT_EQ(AllOf(filled.tree).size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(HitsOf(filled.tree, filled.boxes[i]->x.GetCenter(), filled.boxes[i]->y.GetCenter(),
                         filled.boxes[i]->z.GetCenter()),
                  (Boxes3d{filled.boxes[i].get()}));
    }
    filled.tree -= filled.boxes[0].get();
    filled.tree -= filled.boxes[1].get();
    EXPECT_EQ(Sorted(AllOf(filled.tree)), Sorted(filled.Of(1)));
    EXPECT_EQ(filled.tree.GetLength(), 8.0) << "the only child came up";
    Box stranger(1, 2, 1, 2, 1, 2);
    filled.tree -= &stranger;
    EXPECT_EQ(AllOf(filled.tree).size(), 2U);
}

TEST(QnGeOctree, SubtractingTheLastBoxKeepsTheRange) {
    Tree16 tree;
    Box a(1, 2, 1, 2, 1, 2);
    tree.Insert(&a);
    tree -= &a;
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.z.max, 8.0);
}

// ---- looking for boxes -----------------------------------------------------------------------------

TEST(QnGeOctree, PointHitsComeDeepestNodeFirst) {
    Tree16 tree;
    Box root(-7, 7, -7, 7, -7, 7);
    Box part(1, 7, 1, 7, -7, -1);
    Box deep(3, 3.9, 3, 3.9, -3.9, -3);
    for (Box* box : {&root, &part, &deep}) {
        tree.Insert(box);
    }
    EXPECT_EQ(HitsOf(tree, 3.5, 3.5, -3.5), (Boxes3d{&deep, &part, &root}));
    EXPECT_EQ(HitsOf(tree, 6, 6, -6), (Boxes3d{&part, &root}));
    EXPECT_EQ(HitsOf(tree, 3.5, 3.5, 3.5), (Boxes3d{&root}));
    EXPECT_EQ(HitsOf(tree, 3.5, 3.5, 0), (Boxes3d{&root})) << "in the band only the list is asked";
    EXPECT_TRUE(HitsOf(tree, 3.5, 3.5, 9).empty());
}

TEST(QnGeOctree, BoxHitsGoThroughTheChildrenInOrder) {
    Tree16 tree;
    std::vector<std::unique_ptr<Box>> boxes;
    Boxes3d expected;
    for (int q = 0; q < 8; ++q) {
        boxes.push_back(std::make_unique<Box>(InOctant(q, 1, 2)));
        expected.push_back(boxes.back().get());
    }
    for (const int q : {5, 0, 7, 3, 2, 6, 1, 4}) {
        tree.Insert(boxes[static_cast<std::size_t>(q)].get());
    }
    Box crossing(-1, 1, -1, 1, -1, 1);
    tree.Insert(&crossing);
    expected.push_back(&crossing);
    EXPECT_EQ(HitsOf(tree, Box(-3, 3, -3, 3, -3, 3)), expected);
    EXPECT_EQ(HitsOf(tree, Box(-3, 3, -3, 3, 1.5, 3)), (Boxes3d{expected[0], expected[1], expected[2], expected[3]}))
        << "the upper half alone";
    EXPECT_EQ(HitsOf(tree, Box(1.2, 3, 1.2, 3, -9, -1.2)), (Boxes3d{expected[4]}));
    EXPECT_EQ(AllOf(tree), (Boxes3d{&crossing, expected[0], expected[1], expected[2], expected[3], expected[4],
                                    expected[5], expected[6], expected[7]}));
}

TEST(QnGeOctree, CopiesShareTheNodes) {
    Tree16 tree;
    Box a(1, 2, 1, 2, 1, 2);
    Box b(-2, -1, 1, 2, -3, -2);
    Box c(-1, 1, 0, 1, 1, 2);
    for (Box* box : {&a, &b, &c}) {
        tree.Insert(box);
    }
    QnGeOctree copy(tree);
    EXPECT_EQ(copy.Child[0], tree.Child[0]);
    EXPECT_EQ(copy.ExtentList, tree.ExtentList);
    EXPECT_EQ(AllOf(copy), AllOf(tree));
    copy.ExtentList = nullptr;  // only one of them may free the nodes
    copy.OneExtent = nullptr;
    for (QnGeOctree*& child : copy.Child) {
        child = nullptr;
    }
}
