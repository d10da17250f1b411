// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "containers/QnDynArray.h"
#include "spatial/QnGeOctree.h"
#include "spatial/QnGePtOctree.h"
#include "spatial/QnGeQuadTree2d.h"
#include "support/RandomSource.h"
#include "support/TreeChecker.h"
#include "support/reference/PlainOctree.h"

namespace {

using Box = QnGeExtent3d;
using Boxes = std::vector<Box*>;

constexpr double HALF = 64.0;

Boxes Of(const QnDynArray<Box*>& found) {
    return tree_checks::Elements<Box*>(found);
}

/// "", or the path of the first node that differs.
std::string Compare(const QnGeOctree& tree, const PlainOctree& plain, const std::string& path = "root") {
    const Boxes list = tree.ExtentList != nullptr ? tree_checks::Elements<Box*>(*tree.ExtentList) : Boxes();
    if ((tree.ExtentList != nullptr) == plain.list.empty() || list != plain.list || tree.OneExtent != plain.one) {
        return path;
    }
    for (int i = 0; i < 8; ++i) {
        const std::string at = path + '/' + std::to_string(i);
        if ((tree.Child[i] != nullptr) != (plain.child[i] != nullptr)) {
            return at;
        }
        const std::string below = tree.Child[i] != nullptr ? Compare(*tree.Child[i], *plain.child[i], at) : "";
        if (!below.empty()) {
            return below;
        }
    }
    return "";
}

/// Whole numbers of tolerances about the planes, halves of the range, or anywhere.
double Place(RandomSource& random) {
    if (random.OneIn(3)) {
        return HALF / 2.0 * random.Int(-1, 1) + g_distZero * random.Int(-2, 2);
    }
    return random.OneIn(3) ? random.Int(-63, 63) : random.Double(-63, 63);
}

std::unique_ptr<Box> MakeBox(RandomSource& random) {
    const double size = random.OneIn(3) ? 0.0 : random.Double(0, random.OneIn(4) ? 20 : 1);
    const double x = Place(random);
    const double y = Place(random);
    const double z = Place(random);
    return std::make_unique<Box>(x, x + size, y, y + size, z, z + size);
}

}  // namespace

TEST(QnGeOctree, KeepsBoxesAndAnswersInTheOrderOfThePlainForm) {
    for (unsigned seed = BaseSeed(); seed < BaseSeed() + 400; ++seed) {
        RandomSource random(seed);
        QnGeOctree tree;
        tree.SetRange(-HALF, HALF, -HALF, HALF, -HALF, HALF);
        PlainOctree plain(Box(-HALF, HALF, -HALF, HALF, -HALF, HALF));
        std::vector<std::unique_ptr<Box>> boxes;
        Boxes in;
        for (int step = 0; step < 80; ++step) {
            if (in.empty() || !random.OneIn(3)) {
                const bool isTwin = !in.empty() && random.OneIn(4);
                boxes.push_back(isTwin ? std::make_unique<Box>(*in.back()) : MakeBox(random));
                in.push_back(boxes.back().get());
                tree.Insert(in.back());
                plain.Insert(in.back());
            } else {
                const long at = random.Long(0, static_cast<long>(in.size()) - 1);
                Box* const box = in[static_cast<std::size_t>(at)];
                ASSERT_TRUE(tree.Delete(box, false));
                ASSERT_TRUE(plain.Delete(box));
                ASSERT_FALSE(tree.Delete(box, false));
                in.erase(in.begin() + at);
            }
            ASSERT_EQ(Compare(tree, plain), "") << "seed " << seed << ", step " << step;
            const QnGePoint p(Place(random), Place(random), Place(random));
            QnDynArray<Box*> found;
            Boxes expected;
            tree.HitTest(p.x, p.y, p.z, found);
            plain.HitTest(p, expected);
            ASSERT_EQ(Of(found), expected) << "seed " << seed << ", step " << step;
            const Box window(p.x - 9, p.x + 9, p.y - 9, p.y + 9, p.z - 9, p.z + 9);
            found.Reset();
            expected.clear();
            tree.HitTest(window, found);
            plain.HitTest(window, expected);
            ASSERT_EQ(Of(found), expected) << "window, seed " << seed << ", step " << step;
        }
        QnDynArray<Box*> all;
        Boxes expected;
        tree.GetAllExtent(all);
        plain.GetAllExtent(expected);
        EXPECT_EQ(Of(all), expected);
    }
}

TEST(QnGeOctree, BandOfTheMiddlePlaneEndsJustBeyondTheTolerance) {
    for (const double z : {-2e-6, -1e-6, 0.0, 1e-6, 2e-6}) {
        Box box(1, 2, 1, 2, z, z);
        QnGeOctree tree;
        tree.SetRange(-8, 8, -8, 8, -8, 8);
        tree.Insert(&box);
        EXPECT_EQ(tree.ExtentList != nullptr, std::fabs(z) < 1.5e-6) << z;
    }
}

TEST(QnGeOctree, AssignmentSharesTheNodes) {
    Box low(-2, -1, -2, -1, -2, -1);
    Box high(1, 2, 1, 2, 1, 2);
    QnGeOctree tree;
    tree.SetRange(-8, 8, -8, 8, -8, 8);
    tree.Insert(&low);
    tree.Insert(&high);
    {
        QnGeOctree copy;
        copy = tree;
        EXPECT_EQ(copy.Child[0], tree.Child[0]);
        EXPECT_EQ(copy.Child[6], tree.Child[6]);
        EXPECT_EQ(copy.CenterZ, tree.CenterZ);
        QnGeOctree().operator>>(tree);  // so that one of the two alone destroys the nodes
    }
    EXPECT_TRUE(tree.IsEmptyTree());
}

TEST(QnGePtOctree, EqualPointsStandInOneListTheSecondFirst) {
    QnGePoint points[3] = {QnGePoint(1, 1, 1), QnGePoint(1, 1, 1), QnGePoint(1, 1, 1)};
    QnGePtOctree tree;
    tree.SetRange(-8, 8, -8, 8, -8, 8);
    for (QnGePoint& point : points) {
        tree.Insert(&point);
    }
    // Cells 0..8, 0..4, 0..2: the middle of the last is at 1. Each level turns the first two round: three times.
    const QnGePtOctree* node = &tree;
    for (const int octant : {0, 6, 6}) {
        ASSERT_EQ(node->PointList, nullptr);
        ASSERT_NE(node->Child[octant], nullptr);
        node = node->Child[octant];
    }
    ASSERT_NE(node->PointList, nullptr);
    EXPECT_EQ(tree_checks::Elements<QnGePoint*>(*node->PointList),
              (std::vector<QnGePoint*>{&points[1], &points[0], &points[2]}));
}

TEST(QnGeQuadTree2d, SubtractingAStrangerLeavesTheRange) {
    QnGeExtent2d box(3, 4, 3, 4);
    QnGeExtent2d twin = box;
    QnGeQuadTree2d tree;
    tree.SetRange(-8, 8, -8, 8);
    tree.Insert(&box);
    tree -= &twin;
    EXPECT_EQ(tree.GetLength(), 16.0) << "a single box";
    QnGeExtent2d across(3, 5, 3, 5);
    tree.Insert(&across);  // in the list of a lone child
    tree -= &twin;
    EXPECT_EQ(tree.GetLength(), 16.0) << "a lone child";
}

TEST(QnGeOctree, SubtractingAStrangerLeavesTheRange) {
    Box box(3, 4, 3, 4, 3, 4);
    Box twin = box;
    QnGeOctree tree;
    tree.SetRange(-8, 8, -8, 8, -8, 8);
    tree.Insert(&box);
    tree -= &twin;
    EXPECT_EQ(tree.GetLength(), 16.0) << "a single box";
    Box across(3, 5, 3, 5, 3, 5);
    tree.Insert(&across);
    tree -= &twin;
    EXPECT_EQ(tree.GetLength(), 16.0) << "a lone child";
}
