// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "TinTesting.h"
#include "frame/QnGeTolerance.h"
#include "terrain/QnGeTINGraph.h"

// The insertion of single nodes: what the first three do, and what a node within the network does.

// ---- the first three nodes -------------------------------------------------------------------------

TEST(QnGeTINGraph, StartsEmpty) {
    const OpenTin graph;
    EXPECT_TRUE(graph.NodeList.IsEmpty());
    EXPECT_TRUE(graph.TrgList.IsEmpty());
    EXPECT_TRUE(graph.OutEdgeList.IsEmpty());
    EXPECT_TRUE(graph.TrgTree.IsEmptyTree());
    EXPECT_TRUE(graph.NodeTree.IsEmptyTree());
    EXPECT_EQ(graph.TrgQuene.GetLength(), 0);
    EXPECT_EQ(CheckTin(graph), "");
}

TEST(QnGeTINGraph, MakesItsTriangles) {
    const OpenTin graph;
    const std::unique_ptr<QnGeTINTriangle> made(graph.NewTriangle());
    EXPECT_EQ(made->Radius, -1.0);
    EXPECT_TRUE(graph.TrgList.IsEmpty()) << "the caller puts it in";
}

TEST(QnGeTINGraph, RangeOfTheTreesIsTenTolerancesWider) {
    OpenTin graph;
    graph.SetRange(1.0, 5.0, -2.0, 4.0);
    const double margin = 10.0 * g_distZero;
    const auto expectWider = [margin](const auto& tree) {
        EXPECT_EQ(tree.x.min, 1.0 - margin);
        EXPECT_EQ(tree.x.max, 5.0 + margin);
        EXPECT_EQ(tree.y.min, -2.0 - margin);
        EXPECT_EQ(tree.y.max, 4.0 + margin);
        EXPECT_EQ(tree.CenterX, (tree.x.min + tree.x.max) / 2.0);
        EXPECT_EQ(tree.CenterY, (tree.y.min + tree.y.max) / 2.0);
    };
    expectWider(graph.TrgTree);
    expectWider(graph.NodeTree);
    EXPECT_EQ(graph.Range.x.max, 0.0) << "its own range is that of the nodes inserted";
}

TEST(QnGeTINGraph, FirstNodeIsTaken) {
    TinPair tin(0, 10, 0, 10);
    EXPECT_TRUE(tin.Insert(1, 2, 3));
    EXPECT_EQ(NodesOf(tin.graph), "1,2");
    EXPECT_TRUE(tin.graph.TrgList.IsEmpty());
}

TEST(QnGeTINGraph, SecondNodeIsTakenOrMerged) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert(1, 2, 3);
    EXPECT_TRUE(tin.Insert(1, 2 + 5e-7, 5));
    EXPECT_EQ(NodesOf(tin.graph), "1,2");
    EXPECT_EQ(tin.Node(0).z, 4.0);
    EXPECT_EQ(tin.Node(0).count, 2);
    EXPECT_TRUE(tin.Insert(1, 2 + 2e-6, 5));
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 2);
}

TEST(QnGeTINGraph, ThirdNodeOnTheLeftFollowsTheOrderOfTheFirstTwo) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0}, {4, 0}});
    EXPECT_TRUE(tin.Insert(1, 3));
    EXPECT_EQ(TrianglesOf(tin.graph), "1,3 0,0 4,0");
    EXPECT_EQ(RingOf(tin.graph), "1,3 0,0 4,0");
    EXPECT_EQ(NodesOf(tin.graph), "0,0 4,0 1,3");
    const QnGeTINTriangle& t = tin.Triangle(0);
    for (long i = 0; i < 3; ++i) {
        EXPECT_EQ(t.OutEdge[i], tin.graph.OutEdgeList.GetAt(i));
        EXPECT_EQ(t.NearTrg[i], nullptr);
    }
    EXPECT_EQ(tin.graph.Range.x.max, 4.0) << "the range is the triangle's box";
    EXPECT_EQ(tin.graph.Range.y.max, 3.0);
}

TEST(QnGeTINGraph, ThirdNodeOnTheRightTurnsTheFirstTwoRound) {
    TinPair tin(0, 10, -10, 10);
    tin.Insert({{0, 0}, {4, 0}});
    EXPECT_TRUE(tin.Insert(1, -3));
    EXPECT_EQ(TrianglesOf(tin.graph), "1,-3 4,0 0,0");
    EXPECT_EQ(RingOf(tin.graph), "1,-3 4,0 0,0");
}

TEST(QnGeTINGraph, ThirdNodeOnTheLineOfTwoComesAgainLater) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0}, {4, 4}});
    for (const double at : {2.0, 7.0, 4.0 + 3e-6}) {
        EXPECT_FALSE(tin.Insert(at, at)) << at;
        EXPECT_EQ(NodesOf(tin.graph), "0,0 4,4");
        EXPECT_TRUE(tin.graph.TrgList.IsEmpty());
        EXPECT_TRUE(tin.graph.OutEdgeList.IsEmpty());
    }
    EXPECT_TRUE(tin.Insert(5, 0));
    EXPECT_TRUE(tin.Insert(2, 2)) << "now it has a place";
    EXPECT_EQ(tin.graph.TrgList.GetLength(), 2);
}

TEST(QnGeTINGraph, ThirdNodeMergesWithEitherOfTwo) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0, 1}, {4, 4, 2}});
    EXPECT_TRUE(tin.Insert(0, 5e-7, 3));
    EXPECT_EQ(tin.Node(0).z, 2.0);
    EXPECT_EQ(tin.Node(0).count, 2);
    EXPECT_TRUE(tin.Insert(4, 4, 8));
    EXPECT_EQ(tin.Node(1).z, 5.0);
    EXPECT_EQ(tin.Node(1).count, 2);
    EXPECT_TRUE(tin.graph.TrgList.IsEmpty());
}

// ---- within the network ----------------------------------------------------------------------------

namespace {

/// The triangle 0,0 6,0 0,6 with a slender neighbour on each edge, whose circle hardly reaches into it.
void MakeStar(TinPair& tin) {
    tin.SetRange(-30, 30, -30, 30);
    tin.Insert({{0, 0}, {6, 0}, {0, 6}, {3, -20}, {-20, 3}, {23, 23}});
}

/// The number of the triangle with these nodes in any turn, -1 for none.
long FindTriangle(const QnGeTINGraph& graph, const std::string& places) {
    long number = 0;
    for (const QnGeTINTriangle* t : tree_checks::Elements<QnGeTINTriangle*>(graph.TrgList)) {
        for (int i = 0; i < 3; ++i) {
            if (PlaceOf(*t->Node[i]) + ' ' + PlaceOf(*t->Node[(i + 1) % 3]) + ' ' + PlaceOf(*t->Node[(i + 2) % 3]) ==
                places) {
                return number;
            }
        }
        ++number;
    }
    return -1;
}

}  // namespace

TEST(QnGeTINGraph, NodeWithinATriangleSplitsItInThree) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0}, {6, 0}, {0, 6}});
    ASSERT_EQ(TrianglesOf(tin.graph), "0,6 0,0 6,0");
    auto* const p = new QnGeTINNode(1, 2, 0);
    ASSERT_TRUE(tin.graph.InsertInside(p)) << "without flipping yet";
    EXPECT_EQ(TrianglesOf(tin.graph), "1,2 0,6 0,0 | 1,2 0,0 6,0 | 1,2 6,0 0,6");
    EXPECT_EQ(NodesOf(tin.graph), "0,0 6,0 0,6 1,2");
    const QnGeTINTriangle* const t[3] = {&tin.Triangle(0), &tin.Triangle(1), &tin.Triangle(2)};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(t[i]->NearTrg[0], t[(i + 2) % 3]);
        EXPECT_EQ(t[i]->NearTrg[1], nullptr);
        EXPECT_EQ(t[i]->NearTrg[2], t[(i + 1) % 3]);
        EXPECT_EQ(t[i]->OutEdge[0], nullptr);
        ASSERT_NE(t[i]->OutEdge[1], nullptr);
        EXPECT_EQ(t[i]->OutEdge[1]->Triangle, t[i]);
        EXPECT_EQ(t[i]->OutEdge[2], nullptr);
    }
    EXPECT_EQ(tin.graph.LOPStack.GetDepth(), 3);
    QnGeTINTriangle* top = nullptr;
    EXPECT_TRUE(tin.graph.LOPStack.GetTopData(top));
    EXPECT_EQ(top, t[2]) << "the last is optimised first";
    EXPECT_TRUE(tin.graph.TrgTree.IsEmptyTree()) << "those on the stack are not in the tree";
    tin.graph.LOP();
    auto plain = std::make_unique<PlainNode>(1, 2, 0);
    tin.plain.Insert(plain);
}

TEST(QnGeTINGraph, SplitInThreePassesNeighboursOn) {
    TinPair tin;
    MakeStar(tin);
    const long before = tin.graph.TrgList.GetLength();
    EXPECT_NE(FindTriangle(tin.graph, "0,0 6,0 0,6"), -1);
    EXPECT_TRUE(tin.Insert(1.5, 1.5));
    EXPECT_EQ(tin.graph.TrgList.GetLength(), before + 2);
    EXPECT_NE(FindTriangle(tin.graph, "1.5,1.5 0,0 6,0"), -1);
    EXPECT_NE(FindTriangle(tin.graph, "1.5,1.5 6,0 0,6"), -1);
    EXPECT_NE(FindTriangle(tin.graph, "1.5,1.5 0,6 0,0"), -1);
}

TEST(QnGeTINGraph, NodeOnAnInnerEdgeSplitsBothTrianglesInTwo) {
    for (long turn = 0; turn < 3; ++turn) {
        for (long otherTurn = 0; otherTurn < 3; ++otherTurn) {
            TinPair tin;
            tin.SetRange(0, 10, 0, 10);
            tin.Insert({{0, 0}, {6, 0}, {0, 6}, {6, 6}});
            ASSERT_EQ(tin.graph.TrgList.GetLength(), 2);
            auto* const t = const_cast<QnGeTINTriangle*>(&tin.Triangle(0));
            auto* const u = const_cast<QnGeTINTriangle*>(&tin.Triangle(1));
            t->RotateNode(t->Node[turn]);
            u->RotateNode(u->Node[otherTurn]);
            auto* const p = new QnGeTINNode(2, 4);
            QnGeTINTriangle* hit = nullptr;
            const int edge = tin.graph.HitTest(p, hit);
            ASSERT_GE(edge, 1);
            EXPECT_EQ(PlaceOf(*hit->Node[edge - 1]) == "0,6" || PlaceOf(*hit->Node[edge - 1]) == "6,0", true);
            const std::string c = PlaceOf(*hit->Node[edge - 1]);
            const std::string a = PlaceOf(*hit->Node[edge % 3]);
            const std::string b = PlaceOf(*hit->Node[(edge + 1) % 3]);
            const std::string d = b == "0,0" ? "6,6" : "0,0";
            const long ofHit = hit == t ? 0 : 1;
            ASSERT_TRUE(tin.graph.InsertInside(p));
            ASSERT_EQ(tin.graph.TrgList.GetLength(), 4);
            const QnGeTINTriangle& first = tin.Triangle(ofHit);
            const QnGeTINTriangle& across = tin.Triangle(1 - ofHit);
            const QnGeTINTriangle& third = tin.Triangle(2);
            const QnGeTINTriangle& fifth = tin.Triangle(3);
            EXPECT_EQ(TextOf(first), "2,4 " + a + ' ' + b);
            EXPECT_EQ(TextOf(third), "2,4 " + b + ' ' + c);
            EXPECT_EQ(TextOf(across), "2,4 " + c + ' ' + d);
            EXPECT_EQ(TextOf(fifth), "2,4 " + d + ' ' + a);
            const QnGeTINTriangle* const round[4] = {&first, &third, &across, &fifth};
            for (int i = 0; i < 4; ++i) {
                EXPECT_EQ(round[i]->NearTrg[0], round[(i + 3) % 4]) << i;
                EXPECT_EQ(round[i]->NearTrg[1], nullptr) << i;
                EXPECT_EQ(round[i]->NearTrg[2], round[(i + 1) % 4]) << i;
                ASSERT_NE(round[i]->OutEdge[1], nullptr) << i;
                EXPECT_EQ(round[i]->OutEdge[1]->Triangle, round[i]) << i;
                EXPECT_EQ(round[i]->OutEdge[0], nullptr);
                EXPECT_EQ(round[i]->OutEdge[2], nullptr);
            }
            ASSERT_EQ(tin.graph.LOPStack.GetDepth(), 4);
            for (int i = 0; i < 4; ++i) {
                EXPECT_EQ(tin.graph.LOPStack[i], round[i]) << "pushed in this order";
            }
            tin.graph.LOP();
            EXPECT_EQ(CheckTin(tin.graph), "");
            tin.compare = false;
        }
    }
}

TEST(QnGeTINGraph, SplitInFourPassesNeighboursOn) {
    TinPair tin;
    MakeStar(tin);
    const long before = tin.graph.TrgList.GetLength();
    EXPECT_TRUE(tin.Insert(3, 3));
    EXPECT_EQ(tin.graph.TrgList.GetLength(), before + 2);
    EXPECT_TRUE(tin.Insert(2, 0));
    EXPECT_TRUE(tin.Insert(0, 4));
    EXPECT_EQ(tin.graph.TrgList.GetLength(), before + 6);
}

TEST(QnGeTINGraph, NodeOnAnotherMergesIntoIt) {
    TinPair tin;
    MakeStar(tin);
    const long before = tin.graph.TrgList.GetLength();
    const double off = 5e-7;
    tin.Insert(3, 2.9, 1);  // the only node with a triangle on each side
    for (long i = 0; i < tin.graph.NodeList.GetLength(); ++i) {
        const QnGePoint p = tin.Node(i);
        EXPECT_TRUE(tin.Insert(p.x, p.y, p.z + 2.0)) << i;
        EXPECT_TRUE(tin.Insert(p.x + off, p.y, p.z + 4.0)) << i;
        EXPECT_EQ(tin.Node(i).count, 3) << i;
        EXPECT_EQ(tin.Node(i).z, p.z + 2.0) << i;
    }
    EXPECT_EQ(tin.graph.TrgList.GetLength(), before + 2);
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 7);
}

TEST(QnGeTINGraph, FourNodesOnACircleKeepTheirDiagonal) {
    for (const bool flat : {true, false}) {
        TinPair tin(0, 10, 0, 10);
        tin.Insert(flat ? std::vector<QnGePoint>{{0, 0}, {6, 0}, {0, 6}, {6, 6}}
                        : std::vector<QnGePoint>{{0, 0}, {6, 0}, {6, 6}, {0, 6}});
        EXPECT_EQ(TrianglesOf(tin.graph), flat ? "0,6 0,0 6,0 | 6,6 0,6 6,0" : "6,6 0,0 6,0 | 0,6 0,0 6,6");
    }
}

// ---- finding a node --------------------------------------------------------------------------------

TEST(QnGeTINGraph, HitTestTellsInsideEdgeAndNode) {
    TinPair tin;
    MakeStar(tin);
    const long number = FindTriangle(tin.graph, "0,0 6,0 0,6");
    ASSERT_NE(number, -1);
    auto* const t = const_cast<QnGeTINTriangle*>(&tin.Triangle(number));
    const auto hitOf = [&tin](double x, double y, QnGeTINTriangle*& found) {
        QnGeTINNode node(x, y);
        return tin.graph.HitTest(&node, found);
    };
    QnGeTINTriangle* found = nullptr;
    EXPECT_EQ(hitOf(1, 1, found), 0);
    EXPECT_EQ(found, t);
    for (int i = 0; i < 3; ++i) {
        const QnGePoint a = *t->Node[i];
        const QnGePoint b = *t->Node[(i + 1) % 3];
        const int onEdge = hitOf((a.x + b.x) / 2.0, (a.y + b.y) / 2.0, found);
        ASSERT_NE(found, nullptr);
        ASSERT_GE(onEdge, 1);
        EXPECT_TRUE((found->Node[onEdge - 1]->Equal2d(a) && found->Node[onEdge % 3]->Equal2d(b)) ||
                    (found->Node[onEdge - 1]->Equal2d(b) && found->Node[onEdge % 3]->Equal2d(a)));
        const int onNode = hitOf(a.x, a.y, found);
        ASSERT_NE(found, nullptr);
        ASSERT_LE(onNode, -1);
        EXPECT_TRUE(found->Node[-onNode - 1]->Equal2d(a));
    }
}

TEST(QnGeTINGraph, HitTestCountsEdgesAndNodesFromOne) {
    // One triangle with neighbours, in each of its turns; the neighbours are taken out of the tree.
    for (long turn = 0; turn < 3; ++turn) {
        TinPair tin;
        MakeStar(tin);
        const long number = FindTriangle(tin.graph, "0,0 6,0 0,6");
        ASSERT_NE(number, -1);
        auto* const t = const_cast<QnGeTINTriangle*>(&tin.Triangle(number));
        t->RotateNode(t->Node[turn]);
        tin.compare = false;
        for (QnGeTINTriangle* other : tree_checks::Elements<QnGeTINTriangle*>(tin.graph.TrgList)) {
            if (other != t) {
                EXPECT_TRUE(tin.graph.TrgTree.Delete(other, false));
            }
        }
        tin.graph.TreeChanged();
        for (int i = 0; i < 3; ++i) {
            const QnGePoint a = *t->Node[i];
            const QnGePoint b = *t->Node[(i + 1) % 3];
            QnGeTINTriangle* found = nullptr;
            QnGeTINNode onEdge(a.x + 0.25 * (b.x - a.x), a.y + 0.25 * (b.y - a.y));
            EXPECT_EQ(tin.graph.HitTest(&onEdge, found), i + 1);
            EXPECT_EQ(found, t);
            QnGeTINNode onNode(a.x, a.y);
            EXPECT_EQ(tin.graph.HitTest(&onNode, found), -(i + 1));
            EXPECT_EQ(found, t);
        }
        QnGeTINTriangle* found = t;
        QnGeTINNode beyond(5, 5);
        EXPECT_EQ(tin.graph.HitTest(&beyond, found), 0) << "within the box alone";
        EXPECT_EQ(found, nullptr);
        for (QnGeTINTriangle* other : tree_checks::Elements<QnGeTINTriangle*>(tin.graph.TrgList)) {
            if (other != t) {
                tin.graph.TrgTree.Insert(other);
            }
        }
        tin.graph.TreeChanged();
    }
}

TEST(QnGeTINGraph, HitTestLeavesTheLineOfAHullEdgeToTheOutside) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0}, {4, 0}, {8, 4}});
    auto* const something = const_cast<QnGeTINTriangle*>(&tin.Triangle(0));
    for (const QnGePoint& p : {QnGePoint(2, 0), QnGePoint(6, 0), QnGePoint(0, 0), QnGePoint(4, 0), QnGePoint(4, 2)}) {
        QnGeTINTriangle* found = something;
        QnGeTINNode node(p);
        EXPECT_EQ(tin.graph.HitTest(&node, found), 0) << PlaceOf(p);
        EXPECT_EQ(found, nullptr) << PlaceOf(p);
        EXPECT_FALSE(tin.graph.InsertInside(&node));
    }
    QnGeTINTriangle* found = something;
    QnGeTINNode outside(9, 9);
    EXPECT_EQ(tin.graph.HitTest(&outside, found), 0) << "in no box";
    EXPECT_EQ(found, nullptr);
}

TEST(QnGeTINGraph, HitTestStopsAtTheFirstHullEdgeItLiesOn) {
    // The node is a corner of two triangles; the first candidate has a hull edge there and ends the search.
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0}, {6, 0}, {0, 6}, {6, 6}});
    QnGeTINTriangle* found = nullptr;
    QnGeTINNode corner(6, 0);
    EXPECT_EQ(tin.graph.HitTest(&corner, found), 0);
    EXPECT_EQ(found, nullptr);
    EXPECT_TRUE(tin.Insert(6, 0, 4)) << "the hull merges it";
    EXPECT_EQ(tin.Node(1).z, 2.0);
}

// ---- nodes without a place -------------------------------------------------------------------------

TEST(QnGeTINGraph, NodeWithoutAPlaceGoesWithTheGraphKeptOdd) {
    OpenTin graph;
    graph.SetRange(0, 10, 0, 10);
    for (const QnGePoint& p : {QnGePoint(0, 0), QnGePoint(8, 0), QnGePoint(0, 8)}) {
        ASSERT_TRUE(graph.Insert(new QnGeTINNode(p)));
    }
    graph.TrgTree.Reset();  // so that the inside cannot be found
    graph.TreeChanged();
    auto* const lost = new QnGeTINNode(2, 2);
    EXPECT_FALSE(graph.InsertOutside(lost)) << "no hull edge faces it";
    EXPECT_TRUE(graph.Insert(lost)) << "the caller does not see it";
    EXPECT_EQ(graph.NodeList.GetLength(), 3);
    EXPECT_EQ(graph.TrgList.GetLength(), 1);
    ASSERT_EQ(graph.Dropped.GetLength(), 1);
    EXPECT_EQ(graph.Dropped.GetAt(0), lost);
}

TEST(QnGeTINGraph, WorksWithoutARangeAtTheCostOfTheTree) {
    TinPair tin;
    tin.rules.treeCells = false;
    tin.Insert({{10, 10}, {20, 10}, {10, 20}, {13, 13}, {25, 25}, {14, 12}, {10, 14}, {13, 13}, {-5, -7}});
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 8);
}
