// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "TinTesting.h"
#include "frame/QnGeTolerance.h"
#include "terrain/QnGeTINGraph.h"

// A network of a whole list of nodes. Three or more nodes that all lie on one slanted line, and no others, are not
// tried: MakeTIN does not return for them, since the third is turned down for ever.

TEST(QnGeTINGraph, MakeTinOfNothingDoesNothing) {
    TinPair tin;
    tin.MakeTIN({});
    EXPECT_TRUE(tin.graph.NodeList.IsEmpty());
    EXPECT_EQ(tin.graph.TrgTree.x.max, 0.0) << "no range is set either";
}

TEST(QnGeTINGraph, MakeTinTakesNodesThreeTolerancesHigh) {
    TinPair tin;
    tin.MakeTIN({{0, 0}, {4, 0}, {2, 3e-6}});
    EXPECT_EQ(tin.graph.TrgList.GetLength(), 1);
}

TEST(QnGeTINGraph, MakeTinLeavesNodesOnALevelLineAlone) {
    const std::vector<std::vector<QnGePoint>> sets = {
        {{5, 5}},
        {{0, 3}, {4, 3}, {2, 3}, {7, 3}},
        {{3, 0}, {3, 4}, {3, 2}},
        {{0, 3}, {4, 3 + 9e-7}, {2, 3}},
        {{3, 0}, {3 + 9e-7, 4}, {3, 2}},
        {{0, 0}, {4, g_distZero}, {2, 0}},
        {{0, 0}, {g_distZero, 4}, {0, 2}},
        {{1, 1}, {1, 1}},
    };
    for (const std::vector<QnGePoint>& set : sets) {
        OpenTin graph;
        for (const QnGePoint& p : set) {
            graph.NodeList.Append(new QnGeTINNode(p));
        }
        graph.MakeTIN();
        ASSERT_EQ(graph.NodeList.GetLength(), static_cast<long>(set.size()));
        for (std::size_t i = 0; i < set.size(); ++i) {
            EXPECT_EQ(PlaceOf(*graph.NodeList.GetAt(static_cast<long>(i))), PlaceOf(set[i])) << "in the given order";
        }
        EXPECT_TRUE(graph.TrgList.IsEmpty());
        EXPECT_TRUE(graph.OutEdgeList.IsEmpty());
    }
}

TEST(QnGeTINGraph, MakeTinOfTwoNodesKeepsThem) {
    TinPair tin;
    tin.MakeTIN({{0, 0}, {4, 5}});
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 2);
    EXPECT_TRUE(tin.graph.TrgList.IsEmpty());
}

TEST(QnGeTINGraph, MakeTinOfTwoPlacesMergesAllNodes) {
    TinPair tin;
    tin.MakeTIN({{0, 0, 1}, {4, 5, 2}, {0, 0, 3}, {4, 5, 4}, {4, 5, 6}});
    ASSERT_EQ(tin.graph.NodeList.GetLength(), 2);
    EXPECT_EQ(tin.Node(0).z + tin.Node(1).z, 6.0);
    EXPECT_EQ(tin.Node(0).count + tin.Node(1).count, 5);
}

TEST(QnGeTINGraph, MakeTinOfThreeNodes) {
    TinPair tin;
    tin.MakeTIN({{0, 0, 1}, {4, 0, 2}, {1, 3, 3}});
    EXPECT_EQ(tin.graph.TrgList.GetLength(), 1);
    EXPECT_EQ(tin.graph.OutEdgeList.GetLength(), 3);
}

TEST(QnGeTINGraph, MakeTinEntersCoarseCellsFirst) {
    TinPair tin;
    // one node per level: the centre, then the middles of the quarters, then of a quarter's quarter
    tin.MakeTIN({{7, 7}, {1, 1}, {2, 6}, {6, 6}, {0, 0}, {6, 2}, {2, 2}, {4, 4}, {8, 8}});
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 9);
    EXPECT_EQ(PlaceOf(tin.Node(0)), "4,4");
    std::set<std::pair<double, double>> quarters;
    for (long i = 1; i < 5; ++i) {
        quarters.emplace(tin.Node(i).x, tin.Node(i).y);
    }
    EXPECT_TRUE(tin.graph.NodeTree.IsEmptyTree()) << "emptied after use";
    EXPECT_EQ(tin.graph.NodeTree.x.min, 0.0 - 10.0 * g_distZero) << "with its range";
}

TEST(QnGeTINGraph, MakeTinDefersNodesOnTheLineOfTheFirstTwo) {
    // The centre row comes first, so many nodes are turned down until one off the row arrives.
    std::vector<QnGePoint> points;
    for (int i = 0; i <= 16; ++i) {
        points.emplace_back(i, 8.0, i);
    }
    points.emplace_back(3.0, 0.0, 1.0);
    points.emplace_back(5.0, 16.0, 1.0);
    TinPair tin;
    tin.MakeTIN(points);
    EXPECT_GT(tin.plain.Retries, 5);
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 19) << "every node found its place";
    EXPECT_EQ(tin.graph.TrgList.GetLength(), 2 * 19 - 2 - tin.graph.OutEdgeList.GetLength());
}

TEST(QnGeTINGraph, MakeTinDefersOnASlantedLineToo) {
    std::vector<QnGePoint> points;
    for (int i = 0; i <= 16; ++i) {
        points.emplace_back(i, i, i);
    }
    points.emplace_back(3.3, 3.4, 1.0);
    TinPair tin;
    tin.MakeTIN(points);
    EXPECT_GT(tin.plain.Retries, 5);
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 18);
    EXPECT_EQ(tin.graph.TrgList.GetLength(), 16);
}

TEST(QnGeTINGraph, MakeTinMergesDuplicatesIntoTheirMean) {
    std::vector<QnGePoint> points;
    for (int copy = 0; copy < 3; ++copy) {
        for (int i = 0; i < 25; ++i) {
            points.emplace_back(i % 5 + 1e-7 * copy, i / 5, 10.0 * i + 3.0 * copy);
        }
    }
    TinPair tin;
    tin.MakeTIN(points);
    ASSERT_EQ(tin.graph.NodeList.GetLength(), 25);
    for (const QnGeTINNode* node : tree_checks::Elements<QnGeTINNode*>(tin.graph.NodeList)) {
        EXPECT_EQ(node->count, 3);
        EXPECT_NEAR(node->z, 10.0 * (std::round(node->x) + 5.0 * node->y) + 3.0, 1e-12);
    }
    EXPECT_EQ(tin.graph.TrgList.GetLength(), 32);
}

TEST(QnGeTINGraph, MakeTinOfARegularGridSplitsEveryCell) {
    for (const int n : {2, 3, 5, 9, 16, 17}) {
        std::vector<QnGePoint> points;
        for (int i = 0; i < n * n; ++i) {
            points.emplace_back(i % n, i / n);
        }
        TinPair tin;
        tin.MakeTIN(points);
        EXPECT_EQ(tin.graph.NodeList.GetLength(), n * n);
        EXPECT_EQ(tin.graph.TrgList.GetLength(), 2 * (n - 1) * (n - 1));
        EXPECT_EQ(tin.graph.OutEdgeList.GetLength(), 4 * (n - 1));
    }
}

// ---- copies ----------------------------------------------------------------------------------------

namespace {

/// Lists of owned pointers share what they hold when they are copied: one side must let go.
void LetGo(QnGeTINGraph& graph) {
    while (!graph.NodeList.IsEmpty()) {
        graph.NodeList.TakeOffHead();
    }
    while (!graph.TrgList.IsEmpty()) {
        graph.TrgList.TakeOffHead();
    }
    while (!graph.OutEdgeList.IsEmpty()) {
        graph.OutEdgeList.TakeOffHead();
    }
}

}  // namespace

TEST(QnGeTINGraph, CopySharesTheNetworkAndHasEmptyTrees) {
    TinPair tin;
    tin.MakeTIN({{0, 0}, {5, 0}, {0, 5}, {5, 5.5}, {2, 2}});
    OpenTin copy(tin.graph);
    EXPECT_TRUE(copy.TrgTree.IsEmptyTree());
    EXPECT_TRUE(copy.NodeTree.IsEmptyTree());
    EXPECT_EQ(copy.TrgTree.x.max, tin.graph.TrgTree.x.max) << "with their range";
    EXPECT_EQ(copy.Range.x.max, 5.0);
    ASSERT_EQ(copy.NodeList.GetLength(), 5);
    ASSERT_EQ(copy.TrgList.GetLength(), tin.graph.TrgList.GetLength());
    ASSERT_EQ(copy.OutEdgeList.GetLength(), tin.graph.OutEdgeList.GetLength());
    EXPECT_EQ(copy.NodeList.GetAt(0), tin.graph.NodeList.GetAt(0)) << "not a deep copy";
    EXPECT_EQ(copy.TrgList.GetAt(0), tin.graph.TrgList.GetAt(0));
    LetGo(copy);
}

TEST(QnGeTINGraph, AssignmentSharesTheNetworkAndHasEmptyTrees) {
    TinPair tin;
    tin.MakeTIN({{0, 0}, {5, 0}, {0, 5}, {5, 5.5}, {2, 2}});
    OpenTin other;
    other.NodeList.Append(new QnGeTINNode(1, 1));
    other = tin.graph;
    EXPECT_TRUE(other.TrgTree.IsEmptyTree());
    EXPECT_TRUE(other.NodeTree.IsEmptyTree());
    EXPECT_EQ(other.NodeList.GetLength(), 5);
    EXPECT_EQ(other.TrgList.GetAt(0), tin.graph.TrgList.GetAt(0));
    LetGo(other);
}

TEST(QnGeTINGraph, AssignmentToItselfDoesNothing) {
    TinPair tin;
    tin.MakeTIN({{0, 0}, {5, 0}, {0, 5}, {5, 5.5}, {2, 2}});
    OpenTin& same = tin.graph;
    tin.graph = same;
    EXPECT_FALSE(tin.graph.TrgTree.IsEmptyTree());
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 5);
}
