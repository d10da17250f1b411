// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <vector>

#include "TinTesting.h"

// Nodes hardly off a hull edge bring a network apart: triangles run clockwise, links lead astray, hull records show
// triangles that do not lie on them. It must then still be that of the plain form, and touch no foreign memory.

namespace {

using Points = std::vector<QnGePoint>;

constexpr TinRules APART = {false, false, false, false};

void ExpectPlain(double xMin, double xMax, double yMin, double yMax, const Points& points) {
    TinPair tin(xMin, xMax, yMin, yMax);
    tin.rules = APART;
    tin.Insert(points);
}

}  // namespace

TEST(TinNearHull, TakesNoNodeOnAnEdgeOfWhichItsTriangleHasNoEnd) {
    ExpectPlain(0, 900, -1, 0,
                {{0, 0},
                 {900, 0},
                 {430, -0.756},
                 {2e-6, -9e-7},
                 {429.3, -0.75523},
                 {30, -0.018},
                 {0.8, -0.00045},
                 {17.96, -0.031597}});
    ExpectPlain(-1e8, 1e8, -1e8, 1e8,
                {{0, 0},
                 {-3552666.22736, -4499497.58884},
                 {-55607000, -70427100},
                 {2022.25396, 2561.21074},
                 {-13430000, -17010000},
                 {0, -330},
                 {-1818349.81598, -2302963.48969}});
    ExpectPlain(-1000, 1000, -1000, 1000,
                {{-151.74126000000001, -138.88026500000001},
                 {-576.46400000000006, -527.60540000000003},
                 {-431.179621, -394.63452699999999},
                 {-581.36334999999997, -532.08927000000006},
                 {-498.39731399999999, -456.15510720000003},
                 {-79.747378800000007, -72.988304999999997},
                 {-92.413064000000006, -84.580493599999997},
                 {-655.02438000000006, -599.50711999999999},
                 {-200.98129600000001, -183.94690600000001},
                 {-392.16000000000003, -358.92400000000004},
                 {-257.5, -236},
                 {-86.232290000000006, -78.923580000000001}});
}

TEST(TinNearHull, WritesNoRecordThatIsOffTheRing) {
    ExpectPlain(-1, 1, -1, 1,
                {{0, 0},
                 {0.087, 0},
                 {0.05, 5e-5},
                 {5e-4, -1e-6},
                 {5e-4, 2e-6},
                 {0, 7.6e-6},
                 {0.022, 1e-5},
                 {0.016, 3e-6},
                 {0.02, -4e-6},
                 {0.03, 0},
                 {0.03, 2.1e-6},
                 {0, -1e-5},
                 {0.07, 3e-6}});
}

TEST(TinNearHull, SeesTheSideOfAShortHullEdgeFromFarAway) {
    // The node is a million times the length of the triangle at the middle away from it.
    const Points points = {{0, 0},
                           {0.036086224724318529, -0.20229684070815371},
                           {1607738.4714965182, 1413890.3266956899},
                           {526292.90145353123, -2950361.0327304904},
                           {-526292.90139420156, 2950361.032741074},
                           {8.7120283211800622e-07, -4.883395441338435e-06},
                           {388548.53976677416, -2178175.81782118}};
    ExpectPlain(-526292.90139420156, 1607738.4714965182, -2950361.0327304904, 2950361.032741074, points);
}

TEST(TinNearHull, StartsAnewOnceItsNetworkWasCleared) {
    OpenTin graph;
    graph.SetRange(0, 1000, 0, 10);
    const auto fill = [&graph] {
        for (int i = 0; i < 1200; ++i) {
            ASSERT_TRUE(graph.Insert(new QnGeTINNode(i / 2 + 0.25 * (i % 2), i % 2 == 0 ? 0.0 : 10.0)));
        }
    };
    fill();
    for (QnGeTINTriangle* triangle : tree_checks::Elements<QnGeTINTriangle*>(graph.TrgList)) {
        graph.PushLOP(triangle);
        ASSERT_TRUE(graph.LOPStack.Pop(triangle));
    }
    ASSERT_TRUE(graph.TrgTree.IsEmptyTree());
    graph.TrgList.Reset();
    graph.OutEdgeList.Reset();
    graph.NodeList.Reset();
    graph.Range = QnGeExtent2d();
    fill();
    EXPECT_EQ(graph.TrgList.GetLength(), 1198);
    EXPECT_EQ(CheckTin(graph, TinRules()), "");
}
