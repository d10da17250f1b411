// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGePtOctree.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <vector>

#include "TreeTesting.h"
#include "support/RandomSource.h"

namespace {

using Points = std::vector<QnGePoint*>;

struct Tree16 : QnGePtOctree {
    Tree16() { SetRange(-8, 8, -8, 8, -8, 8); }
};

Points InNode(const QnGePtOctree& tree) {
    QnList<QnGePoint*> found;
    tree.GetPointInNode(found);
    return Elements<QnGePoint*>(found);
}

void Collect(const QnGePtOctree& tree, Points& found) {
    const Points here = InNode(tree);
    found.insert(found.end(), here.begin(), here.end());
    for (const QnGePtOctree* child : tree.Child) {
        if (child != nullptr) {
            EXPECT_FALSE(child->IsEmptyTree());
            EXPECT_EQ(tree.OnePoint, nullptr) << "no single point beside a child";
            for (const QnGePoint* p : InNode(*child)) {
                EXPECT_TRUE(child->IsInclude(p->x, p->y, p->z));
            }
            Collect(*child, found);
        }
    }
}

const double SIGNS[8][3] = {{1, 1, 1},  {-1, 1, 1},  {-1, -1, 1},  {1, -1, 1},
                            {1, 1, -1}, {-1, 1, -1}, {-1, -1, -1}, {1, -1, -1}};

}  // namespace

TEST(QnGePtOctree, StartsEmptyWithoutRange) {
    const QnGePtOctree tree;
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.z.max, 0.0);
    EXPECT_EQ(tree.CenterZ, 0.0);
    EXPECT_EQ(tree.PointList, nullptr);
    EXPECT_EQ(tree.OnePoint, nullptr);
    EXPECT_TRUE(InNode(tree).empty());
}

TEST(QnGePtOctree, OctantsAreThoseOfTheBoxTree) {
    for (int q = 0; q < 8; ++q) {
        Tree16 tree;
        QnGePoint centre(0, 0, 0);
        QnGePoint p(SIGNS[q][0], 2 * SIGNS[q][1], 3 * SIGNS[q][2]);
        tree.Insert(&centre);
        tree.Insert(&p);
        EXPECT_EQ(InNode(tree), (Points{&centre}));
        const QnGePtOctree* const child = tree.Child[q];
        ASSERT_NE(child, nullptr) << q;
        EXPECT_EQ(child->OnePoint, &p);
        EXPECT_EQ(child->CenterX, 4 * SIGNS[q][0]);
        EXPECT_EQ(child->CenterY, 4 * SIGNS[q][1]);
        EXPECT_EQ(child->CenterZ, 4 * SIGNS[q][2]);
    }
}

TEST(QnGePtOctree, PointsWithinTheToleranceOfACentrePlaneStay) {
    for (const QnGePoint& at : {QnGePoint(9e-7, 1, 1), QnGePoint(1, -9e-7, 1), QnGePoint(1, 1, 9e-7),
                                QnGePoint(0, 1, 1), QnGePoint(1, 1, 0), QnGePoint(0, 0, 0)}) {
        Tree16 tree;
        QnGePoint p(at);
        tree.Insert(&p);
        EXPECT_EQ(Elements<QnGePoint*>(tree.PointList), (Points{&p}));
        EXPECT_EQ(tree.OnePoint, nullptr);
    }
    Tree16 tree;
    QnGePoint off(1.1e-6, -1.1e-6, 1.1e-6);
    tree.Insert(&off);
    EXPECT_EQ(tree.OnePoint, &off);
}

TEST(QnGePtOctree, SecondPointPushesTheFirstDown) {
    Tree16 tree;
    QnGePoint a(1, 1, -1);
    QnGePoint b(7, 7, -7);
    tree.Insert(&a);
    EXPECT_EQ(InNode(tree), (Points{&a}));
    tree.Insert(&b);
    EXPECT_TRUE(InNode(tree).empty()) << "no descent";
    ASSERT_NE(tree.Child[4], nullptr);
    ASSERT_NE(tree.Child[4]->Child[4], nullptr);
    ASSERT_NE(tree.Child[4]->Child[2], nullptr);
    EXPECT_EQ(tree.Child[4]->Child[4]->OnePoint, &b);
    EXPECT_EQ(tree.Child[4]->Child[2]->OnePoint, &a);
}

TEST(QnGePtOctree, PointsInANodeAreItsSingleOneAndItsList) {
    Tree16 tree;
    QnGePoint single(1, 1, 1);
    QnGePoint onPlane(1, 1, 0);
    QnGePoint onPlaneToo(0, 1, 5);
    for (QnGePoint* p : {&single, &onPlane, &onPlaneToo}) {
        tree.Insert(p);
    }
    EXPECT_EQ(InNode(tree), (Points{&single, &onPlane, &onPlaneToo}));
}

TEST(QnGePtOctree, HoldsEachPointOnce) {
    for (unsigned run = 0; run < 300; ++run) {
        RandomSource random(BaseSeed() + run);
        std::vector<std::unique_ptr<QnGePoint>> store;
        QnGePtOctree tree;
        if (!random.OneIn(10)) {
            tree.SetRange(-8, 8, -8, 8, random.OneIn(10) ? 0.0 : -8.0, random.OneIn(5) ? 0.0 : 8.0);
        }
        const bool lattice = random.Coin();
        const bool outside = tree.z.GetLength() < 16.0;
        const int n = random.Int(0, 150);
        for (int i = 0; i < n; ++i) {
            store.push_back(lattice
                                ? std::make_unique<QnGePoint>(random.Int(-7, 7), random.Int(-7, 7), random.Int(-7, 7))
                                : std::make_unique<QnGePoint>(random.Double(-7.9, 7.9), random.Double(-7.9, 7.9),
                                                              random.Double(-7.9, 7.9)));
            tree.Insert(store.back().get());
        }
        if (outside) {
            continue;  // it came to an end, which is all that is asked of points outside the range
        }
        Points found;
        Collect(tree, found);
        ASSERT_EQ(found.size(), store.size());
        ASSERT_EQ(std::set<QnGePoint*>(found.begin(), found.end()).size(), store.size());
    }
}

TEST(QnGePtOctree, EqualPointsEndInOneList) {
    Tree16 tree;
    QnGePoint a(1.2345, 5.4321, -3.3);
    QnGePoint b(a);
    QnGePoint c(a);
    for (QnGePoint* p : {&a, &b, &c}) {
        tree.Insert(p);
    }
    Points found;
    Collect(tree, found);
    EXPECT_EQ(found.size(), 3U);
}

TEST(QnGePtOctree, ResetFreesNodesAndNoPoints) {
    Tree16 tree;
    QnGePoint a(1, 1, -1);
    QnGePoint b(7, 7, -7);
    QnGePoint c(0, 7, -7);
    for (QnGePoint* p : {&a, &b, &c}) {
        tree.Insert(p);
    }
    tree.Reset();
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.z.max, 8.0);
    EXPECT_EQ(b.z, -7.0);
    tree.Insert(&b);
    EXPECT_EQ(InNode(tree), (Points{&b}));
}

TEST(QnGePtOctree, CopiesShareTheNodes) {
    Tree16 tree;
    QnGePoint a(1, 1, -1);
    QnGePoint b(7, 7, -7);
    tree.Insert(&a);
    tree.Insert(&b);
    QnGePtOctree copy(tree);
    QnGePtOctree assigned;
    assigned = tree;
    for (QnGePtOctree* other : {&copy, &assigned}) {
        EXPECT_EQ(other->Child[4], tree.Child[4]);
        EXPECT_EQ(other->CenterZ, 0.0);
        other->PointList = nullptr;  // only one of them may free the nodes
        for (QnGePtOctree*& child : other->Child) {
            child = nullptr;
        }
    }
}

TEST(QnGePtOctree, RangesThatAreFlatOnAnyAxisAreNotDivided) {
    for (int axis = 0; axis < 3; ++axis) {
        QnGePtOctree tree;
        tree.SetRange(axis == 0 ? 0 : -8, axis == 0 ? 0 : 8, axis == 1 ? 0 : -8, axis == 1 ? 0 : 8, axis == 2 ? 0 : -8,
                      axis == 2 ? 0 : 8);
        QnGePoint a(5, 5, 5);
        QnGePoint b(5, 5, 5);
        tree.Insert(&a);
        tree.Insert(&b);
        EXPECT_EQ(Elements<QnGePoint*>(tree.PointList), (Points{&a, &b})) << axis;
    }
}
