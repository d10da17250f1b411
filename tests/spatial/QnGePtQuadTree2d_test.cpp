// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGePtQuadTree2d.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <vector>

#include "TreeTesting.h"
#include "support/RandomSource.h"

namespace {

using Points = std::vector<QnGePoint*>;
using Store = std::vector<std::unique_ptr<QnGePoint>>;

Points AllOf(const QnGePtQuadTree2d& tree, int order) {
    QnList<QnGePoint*> found;
    tree.GetAllPoint(found, order);
    return Elements<QnGePoint*>(found);
}

Points AllOf(const PlainPtQuadTree& tree, int order) {
    Points found;
    tree.GetAllPoint(found, order);
    return found;
}

Points InNode(const QnGePtQuadTree2d& tree) {
    QnList<QnGePoint*> found;
    tree.GetPointInNode(found);
    return Elements<QnGePoint*>(found);
}

struct Tree16 : QnGePtQuadTree2d {
    Tree16() { SetRange(-8, 8, -8, 8); }
};

}  // namespace

TEST(QnGePtQuadTree2d, StartsEmptyWithoutRange) {
    const QnGePtQuadTree2d tree;
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.x.max, 0.0);
    EXPECT_EQ(tree.CenterX, 0.0);
    EXPECT_EQ(tree.CenterY, 0.0);
    EXPECT_EQ(tree.PointList, nullptr);
    EXPECT_EQ(tree.OnePoint, nullptr);
    for (const QnGePtQuadTree2d* child : tree.Child) {
        EXPECT_EQ(child, nullptr);
    }
}

TEST(QnGePtQuadTree2d, EmptyTreeYieldsNothingInAnyOrder) {
    const Tree16 tree;
    for (const int order : {-1, 0, 1, 2, 7}) {
        EXPECT_TRUE(AllOf(tree, order).empty());
    }
}

TEST(QnGePtQuadTree2d, OnePointIsTheRootsAndComesBackAlone) {
    Tree16 tree;
    QnGePoint p(1, 2);
    tree.Insert(&p);
    EXPECT_EQ(tree.OnePoint, &p);
    EXPECT_EQ(tree.PointList, nullptr);
    for (const int order : {0, 1, 2}) {
        EXPECT_EQ(AllOf(tree, order), (Points{&p}));
    }
}

TEST(QnGePtQuadTree2d, QuartersAreThoseOfTheBoxTree) {
    const QnGePoint in[4] = {{1, 3}, {-1, 3}, {-1, -3}, {1, -3}};
    const QnGeExtent2d range[4] = {{0, 8, 0, 8}, {-8, 0, 0, 8}, {-8, 0, -8, 0}, {0, 8, -8, 0}};
    for (int q = 0; q < 4; ++q) {
        Tree16 tree;
        QnGePoint centre(0, 0);
        QnGePoint p(in[q]);
        tree.Insert(&centre);
        tree.Insert(&p);
        ASSERT_NE(tree.Child[q], nullptr);
        EXPECT_EQ(tree.Child[q]->OnePoint, &p);
        EXPECT_EQ(tree.Child[q]->x.min, range[q].x.min);
        EXPECT_EQ(tree.Child[q]->x.max, range[q].x.max);
        EXPECT_EQ(tree.Child[q]->y.min, range[q].y.min);
        EXPECT_EQ(tree.Child[q]->y.max, range[q].y.max);
        EXPECT_EQ(tree.Child[q]->CenterX, range[q].x.GetCenter());
        EXPECT_EQ(tree.Child[q]->CenterY, range[q].y.GetCenter());
    }
}

TEST(QnGePtQuadTree2d, PointsWithinTheToleranceOfACentreLineStay) {
    for (const double d : {0.0, 9e-7, -9e-7, 1e-6}) {
        for (const QnGePoint& at : {QnGePoint(d, 3), QnGePoint(3, d), QnGePoint(d, -3), QnGePoint(-3, d)}) {
            Tree16 tree;
            QnGePoint p(at);
            tree.Insert(&p);
            EXPECT_EQ(Elements<QnGePoint*>(tree.PointList), (Points{&p})) << at.x << ' ' << at.y;
            EXPECT_EQ(tree.OnePoint, nullptr);
        }
    }
    for (const double d : {1.1e-6, -1.1e-6}) {
        for (const QnGePoint& at : {QnGePoint(d, 3), QnGePoint(3, d)}) {
            Tree16 tree;
            QnGePoint p(at);
            tree.Insert(&p);
            EXPECT_EQ(tree.OnePoint, &p) << at.x << ' ' << at.y;
        }
    }
}

TEST(QnGePtQuadTree2d, SecondPointPushesTheFirstDown) {
    Tree16 tree;
    QnGePoint a(1, 1);
    QnGePoint b(7, 7);
    tree.Insert(&a);
    tree.Insert(&b);
    EXPECT_EQ(tree.OnePoint, nullptr);
    ASSERT_NE(tree.Child[0], nullptr);
    ASSERT_NE(tree.Child[0]->Child[0], nullptr);
    ASSERT_NE(tree.Child[0]->Child[2], nullptr);
    EXPECT_EQ(tree.Child[0]->Child[0]->OnePoint, &b);
    EXPECT_EQ(tree.Child[0]->Child[2]->OnePoint, &a);
}

TEST(QnGePtQuadTree2d, EqualPointsAreNotMerged) {
    Tree16 tree;
    PlainPtQuadTree plain(-8, 8, -8, 8);
    Store store;
    for (int i = 0; i < 5; ++i) {
        store.push_back(std::make_unique<QnGePoint>(1.2345, 5.4321));
        tree.Insert(store.back().get());
        plain.Insert(store.back().get());
    }
    EXPECT_EQ(tree_checks::ComparePtQuadTree(tree, plain), "");
    EXPECT_EQ(AllOf(tree, 1).size(), 5U);
}

TEST(QnGePtQuadTree2d, PointsOutsideTheRangeEndInAList) {
    QnGePtQuadTree2d without;
    Tree16 with;
    PlainPtQuadTree plainWithout;
    PlainPtQuadTree plainWith(-8, 8, -8, 8);
    Store store;
    for (const QnGePoint& p : {QnGePoint(100, 100), QnGePoint(200, 300), QnGePoint(100, 100), QnGePoint(-9, 4)}) {
        store.push_back(std::make_unique<QnGePoint>(p));
        without.Insert(store.back().get());
        plainWithout.Insert(store.back().get());
        with.Insert(store.back().get());
        plainWith.Insert(store.back().get());
    }
    EXPECT_EQ(tree_checks::ComparePtQuadTree(without, plainWithout), "");
    EXPECT_EQ(tree_checks::ComparePtQuadTree(with, plainWith), "");
    EXPECT_EQ(AllOf(without, 0).size(), 4U);
    EXPECT_EQ(AllOf(with, 0).size(), 4U);
}

TEST(QnGePtQuadTree2d, PointsInANodeAreItsSingleOneAndItsList) {
    Tree16 tree;
    QnGePoint onLine(0, 1);
    QnGePoint onLineToo(2, 0);
    QnGePoint single(1, 1);
    tree.Insert(&single);
    tree.Insert(&onLine);
    tree.Insert(&onLineToo);
    EXPECT_EQ(tree.OnePoint, &single) << "points on the lines push nothing down";
    EXPECT_EQ(InNode(tree), (Points{&single, &onLine, &onLineToo}));
}

TEST(QnGePtQuadTree2d, ResetFreesNodesAndNoPoints) {
    Tree16 tree;
    Store store;
    for (int i = 0; i < 30; ++i) {
        store.push_back(std::make_unique<QnGePoint>(0.5 * i - 7, 7 - 0.3 * i, i));
        tree.Insert(store.back().get());
    }
    tree.Reset();
    EXPECT_TRUE(tree.IsEmptyTree());
    EXPECT_EQ(tree.x.max, 8.0) << "the range stays";
    EXPECT_EQ(store[7]->z, 7.0);
    tree.Insert(store[7].get());
    EXPECT_EQ(AllOf(tree, 1), (Points{store[7].get()}));
}

TEST(QnGePtQuadTree2d, CopiesShareTheNodes) {
    Tree16 tree;
    QnGePoint a(1, 1);
    QnGePoint b(7, 7);
    QnGePoint c(0, 0);
    for (QnGePoint* p : {&a, &b, &c}) {
        tree.Insert(p);
    }
    QnGePtQuadTree2d copy(tree);
    QnGePtQuadTree2d assigned;
    assigned = tree;
    for (QnGePtQuadTree2d* other : {&copy, &assigned}) {
        EXPECT_EQ(other->Child[0], tree.Child[0]);
        EXPECT_EQ(other->PointList, tree.PointList);
        EXPECT_EQ(AllOf(*other, 1), AllOf(tree, 1));
        other->PointList = nullptr;  // only one of them may free the nodes
        other->OnePoint = nullptr;
        for (QnGePtQuadTree2d*& child : other->Child) {
            child = nullptr;
        }
    }
}

// ---- orders ----------------------------------------------------------------------------------------

TEST(QnGePtQuadTree2d, BreadthFirstTakesLevelsInTheOrderOfTheirParents) {
    Tree16 tree;
    QnGePoint root(0, 3);
    QnGePoint middle[4] = {{4, 4}, {-4, 4}, {-4, -4}, {4, -4}};
    QnGePoint deep3(6, -6);
    QnGePoint deep0(6, 6);
    QnGePoint deep1(-2, 2);
    for (QnGePoint* p : {&middle[2], &middle[0], &middle[3], &root, &middle[1], &deep3, &deep1, &deep0}) {
        tree.Insert(p);
    }
    EXPECT_EQ(AllOf(tree, 1), (Points{&root, &middle[0], &middle[1], &middle[2], &middle[3], &deep0, &deep1, &deep3}));
}

TEST(QnGePtQuadTree2d, RingOrdersTakeTheBorderFirst) {
    // Four by four cells, one point in each: the twelve outer ones come before the four inner ones.
    Store store;
    Tree16 tree;
    for (int i = 0; i < 16; ++i) {
        store.push_back(std::make_unique<QnGePoint>(-6.5 + 4 * (i % 4), -6.5 + 4 * (i / 4)));
        tree.Insert(store.back().get());
    }
    for (const int order : {0, 2, -1}) {
        const Points found = AllOf(tree, order);
        ASSERT_EQ(found.size(), 16U);
        for (std::size_t i = 0; i < 16; ++i) {
            const bool inner = std::fabs(found[i]->x + 0.5) < 3 && std::fabs(found[i]->y + 0.5) < 3;
            EXPECT_EQ(inner, i >= 12) << order << ' ' << i;
        }
    }
}

TEST(QnGePtQuadTree2d, StackTakesARingToItsLeavesAndQueueLevelByLevel) {
    Store store;
    Tree16 tree;
    PlainPtQuadTree plain(-8, 8, -8, 8);
    for (int i = 0; i < 64; ++i) {
        store.push_back(std::make_unique<QnGePoint>(-7.3 + 2 * (i % 8), -7.3 + 2 * (i / 8)));
    }
    store.push_back(std::make_unique<QnGePoint>(-7.4, -7.6));  // deeper than all others
    for (const std::unique_ptr<QnGePoint>& p : store) {
        tree.Insert(p.get());
        plain.Insert(p.get());
    }
    EXPECT_NE(AllOf(tree, 0), AllOf(tree, 2));
    EXPECT_EQ(AllOf(tree, 2), AllOf(tree, 5)) << "any other value is the queue";
    EXPECT_EQ(AllOf(tree, 2), AllOf(tree, -3));
    for (const int order : {0, 1, 2}) {
        EXPECT_EQ(AllOf(tree, order), AllOf(plain, order)) << order;
    }
}

TEST(QnGePtQuadTree2d, EveryOrderGivesEachPointOnceAsThePlainForm) {
    for (unsigned run = 0; run < 600; ++run) {
        RandomSource random(BaseSeed() + run);
        Store store;
        Tree16 tree;
        PlainPtQuadTree plain(-8, 8, -8, 8);
        const int n = random.Int(0, 200);
        const int kind = random.Int(0, 3);
        for (int i = 0; i < n; ++i) {
            QnGePoint p(random.Double(-7.9, 7.9), random.Double(-7.9, 7.9));
            if (kind == 1) {
                p.SetPoint(random.Int(-7, 7), random.Int(-7, 7));
            } else if (kind == 2) {
                p.SetPoint(std::pow(10.0, random.Double(-7, 0.8)), 1e-6 * random.Int(-4, 4));
            } else if (kind == 3) {
                p.SetPoint(4.0 + 1e-6 * random.Int(-3, 3), -2.0 + 5e-7 * random.Int(-3, 3));
            }
            store.push_back(std::make_unique<QnGePoint>(p));
            tree.Insert(store.back().get());
            plain.Insert(store.back().get());
        }
        ASSERT_EQ(tree_checks::ComparePtQuadTree(tree, plain), "") << "run " << run;
        for (const int order : {0, 1, 2}) {
            const Points found = AllOf(tree, order);
            ASSERT_EQ(found, AllOf(plain, order)) << "run " << run << " order " << order;
            ASSERT_EQ(found.size(), store.size());
            ASSERT_EQ(std::set<QnGePoint*>(found.begin(), found.end()).size(), store.size());
        }
    }
}

TEST(QnGePtQuadTree2d, PointsOnTheCentreLinesComeAheadOfAnythingDeeper) {
    Tree16 tree;
    QnGePoint deep(3.3, 3.1);
    QnGePoint deepToo(5, 7);
    QnGePoint onLine(0, 5);
    QnGePoint onLineToo(-3, 0);
    for (QnGePoint* p : {&deep, &deepToo, &onLine, &onLineToo}) {
        tree.Insert(p);
    }
    for (const int order : {0, 1, 2}) {
        const Points found = AllOf(tree, order);
        EXPECT_EQ(found[0], &onLine);
        EXPECT_EQ(found[1], &onLineToo);
    }
}

TEST(QnGePtQuadTree2d, RangesThatAreFlatOnEitherAxisAreNotDivided) {
    for (const QnGeExtent2d& range : {QnGeExtent2d(-8, 8, 3, 3), QnGeExtent2d(3, 3, -8, 8)}) {
        QnGePtQuadTree2d tree;
        tree.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
        QnGePoint a(5, 5);
        QnGePoint b(5, 5);
        QnGePoint odd(std::nan(""), 5);
        for (QnGePoint* p : {&a, &b, &odd}) {
            tree.Insert(p);
        }
        EXPECT_EQ(Elements<QnGePoint*>(tree.PointList), (Points{&a, &b, &odd}));
    }
}

TEST(QnGePtQuadTree2d, ResultsAreAppended) {
    Tree16 tree;
    QnGePoint p(1, 2);
    tree.Insert(&p);
    QnList<QnGePoint*> found;
    tree.GetPointInNode(found);
    for (const int order : {0, 1, 2}) {
        tree.GetAllPoint(found, order);
    }
    EXPECT_EQ(Elements<QnGePoint*>(found), (Points{&p, &p, &p, &p}));
}
