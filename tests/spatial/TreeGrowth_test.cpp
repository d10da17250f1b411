// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "TreeTesting.h"
#include "spatial/QnGeOctree.h"
#include "spatial/QnGeQuadTree2d.h"

// How trees of boxes grow where their range is no square or cube, or a coordinate is out of all bounds.

namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

Boxes3d AllOf(const QnGeOctree& tree) {
    return tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.GetAllExtent(r); });
}

Boxes3d HitsOf(const QnGeOctree& tree, double x, double y, double z) {
    return tree_checks::Asked<QnGeExtent3d*>([&](QnDynArrayBase<QnGeExtent3d*>& r) { tree.HitTest(x, y, z, r); });
}

}  // namespace

TEST(TreeGrowth, LatticeHasTheStepOfTheLengthAlongXOnBothAxes) {
    QnGeQuadTree2d tree;
    tree.SetRange(-8, 8, -4, 4);
    PlainQuadTree plain(-8, 8, -4, 4);
    QnGeExtent2d a(1, 2, 1, 2);
    QnGeExtent2d far(10, 11, 31, 32);
    tree.Insert(&a);
    plain.Insert(&a);
    tree += &far;
    plain += &far;
    EXPECT_EQ(tree.CenterX, 8.0);
    EXPECT_EQ(tree.CenterY, 4.0) << "steps of 8 would lead to 12";
    EXPECT_EQ(tree.x.max, 8.0 + 32.0);
    EXPECT_EQ(tree.y.max, 4.0 + 32.0);
    EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "");
    ASSERT_NE(tree.Child[2], nullptr);
    EXPECT_NE(tree.Child[2]->Child[0], nullptr) << "the old range, below a cell of twice its length";
}

TEST(TreeGrowth, OctreesLatticeHasTheStepOfTheLengthAlongXOnAllAxes) {
    QnGeOctree tree;
    tree.SetRange(-8, 8, -4, 4, -2, 2);
    QnGeExtent3d a(1, 2, 1, 2, 0.5, 1);
    QnGeExtent3d b(-2, -1, 1, 2, 0.5, 1);
    QnGeExtent3d far(10, 11, 31, 32, 29, 30);
    tree.Insert(&a);
    tree.Insert(&b);
    tree += &far;
    EXPECT_EQ(tree.CenterX, 8.0);
    EXPECT_EQ(tree.CenterY, 4.0);
    EXPECT_EQ(tree.CenterZ, 2.0);
    EXPECT_EQ(tree.GetLength(), 64.0);
    EXPECT_EQ(tree.GetHeight(), 64.0);
    EXPECT_EQ(tree.GetDepth(), 64.0);
    ASSERT_NE(tree.Child[6], nullptr);
    ASSERT_NE(tree.Child[6]->Child[0], nullptr);
    EXPECT_EQ(tree.Child[6]->Child[0]->z.max, 2.0) << "the old range itself";
    for (QnGeExtent3d* box : {&a, &b, &far}) {
        EXPECT_EQ(HitsOf(tree, box->x.GetCenter(), box->y.GetCenter(), box->z.GetCenter()), (Boxes3d{box}));
    }
}

TEST(TreeGrowth, RangeJustTallerThanWideIsStillASquare) {
    for (const double more : {0.0, 0.9e-6, 1.1e-6}) {
        QnGeQuadTree2d tree;
        tree.SetRange(-8, 8, -8, 8 + more);
        PlainQuadTree plain(-8, 8, -8, 8 + more);
        QnGeExtent2d a(1, 2, 1, 2);
        QnGeExtent2d b(-2, -1, 1, 2);
        QnGeExtent2d far(10, 11, 9, 10);
        for (QnGeExtent2d* box : {&a, &b}) {
            tree.Insert(box);
            plain.Insert(box);
        }
        tree += &far;
        plain += &far;
        EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "") << more;
        ASSERT_NE(tree.Child[2], nullptr) << more;
        EXPECT_EQ(tree.Child[2]->y.max == 8 + more && tree.Child[2]->Child[1] != nullptr, more < 1e-6 || more == 0.0)
            << more;
    }
}

TEST(TreeGrowth, SmallRangesAreBuiltAnewWithAHalfSideOfOneAtLeast) {
    for (const double half : {0.9e-6, 0.25e-6, 0.0}) {
        QnGeQuadTree2d tree;
        tree.SetRange(5 - half, 5 + half, 5 - half, 5 + half);
        PlainQuadTree plain(5 - half, 5 + half, 5 - half, 5 + half);
        QnGeExtent2d a(5, 5, 5, 5);
        QnGeExtent2d b(5.5, 5.75, 5.5, 5.75);
        tree.Insert(&a);
        plain.Insert(&a);
        tree += &b;
        plain += &b;
        EXPECT_EQ(tree_checks::CompareQuadTree(tree, plain), "") << half;
        EXPECT_EQ(tree.GetLength(), 2.0) << half;
        EXPECT_EQ(AllOf(tree).size(), 2U);
    }
}

TEST(TreeGrowth, OctreeKeepsBoxesWithoutEndInAList) {
    const QnGeExtent3d bad[] = {{NOT_A_NUMBER, 1, 0, 1, 0, 1}, {0, 1, 0, NOT_A_NUMBER, 0, 1},
                                {0, 1, 0, 1, NOT_A_NUMBER, 1}, {-INF, INF, -INF, INF, -INF, INF},
                                {5, 6, 5, 6, 5, INF},          {5, 6, -INF, -5, 5, 6}};
    for (const QnGeExtent3d& box : bad) {
        for (const bool isFirst : {true, false}) {
            SCOPED_TRACE(std::to_string(box.z.max) + (isFirst ? " first" : " last"));
            QnGeOctree tree;
            QnGeExtent3d good(1, 2, 1, 2, 1, 2);
            QnGeExtent3d goodToo(-30, -29, 1, 2, 1, 2);
            QnGeExtent3d odd(box);
            if (isFirst) {
                tree += &odd;
            }
            tree += &good;
            tree += &goodToo;
            if (!isFirst) {
                tree += &odd;
            }
            EXPECT_EQ(Sorted(AllOf(tree)), Sorted(Boxes3d{&good, &goodToo, &odd}));
            for (QnGeExtent3d* b : {&odd, &good, &goodToo}) {
                EXPECT_TRUE(tree.Delete(b, false));
            }
            EXPECT_TRUE(tree.IsEmptyTree());
        }
    }
}

TEST(TreeGrowth, OctreesFlatOnAnyAxisAreNotDivided) {
    for (int axis = 0; axis < 3; ++axis) {
        QnGeOctree tree;
        tree.SetRange(axis == 0 ? 0 : -8, axis == 0 ? 0 : 8, axis == 1 ? 0 : -8, axis == 1 ? 0 : 8, axis == 2 ? 0 : -8,
                      axis == 2 ? 0 : 8);
        QnGeExtent3d a(5, 6, 5, 6, 5, 6);
        QnGeExtent3d b(5, 6, 5, 6, 5, 6);
        tree.Insert(&a);
        tree.Insert(&b);
        EXPECT_EQ(Elements<QnGeExtent3d*>(tree.ExtentList), (Boxes3d{&a, &b})) << axis;
        EXPECT_EQ(HitsOf(tree, 5.5, 5.5, 5.5), (Boxes3d{&a, &b})) << axis;
        EXPECT_TRUE(tree.Delete(&a, false));
        EXPECT_EQ(HitsOf(tree, 5.5, 5.5, 5.5), (Boxes3d{&b})) << axis;
    }
}

TEST(TreeGrowth, SubtractingFromAnOctreeStopsAtOneAboveAndOneBelowFurtherDownToo) {
    QnGeOctree tree;
    tree.SetRange(-8, 8, -8, 8, -8, 8);
    QnGeExtent3d above(1, 2, 1, 2, 5, 6);
    QnGeExtent3d below(1, 2, 1, 2, 1, 2);
    QnGeExtent3d elsewhere(-2, -1, 1, 2, 1, 2);
    for (QnGeExtent3d* box : {&above, &below, &elsewhere}) {
        tree.Insert(box);
    }
    tree -= &elsewhere;
    EXPECT_EQ(tree.GetLength(), 8.0) << "the only child came up";
    EXPECT_EQ(AllOf(tree), (Boxes3d{&above, &below}));
    tree.Compress();
    EXPECT_EQ(AllOf(tree), (Boxes3d{&below})) << "and here what is below alone";
}
