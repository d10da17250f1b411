// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "TinTesting.h"
#include "terrain/QnGeTINGraph.h"

// Insertion outside the network: which hull edges a node is joined to, and what becomes of the ring.

namespace {

/// A regular hexagon's corners with integer places, counter-clockwise from the right.
const std::vector<QnGePoint> HEXAGON = {{8, 0}, {4, 7}, {-4, 7}, {-8, 0}, {-4, -7}, {4, -7}};

void MakeHexagon(TinPair& tin) {
    tin.SetRange(-100, 100, -100, 100);
    tin.Insert(HEXAGON);
}

/// The number of the hull record that starts there.
long RecordAt(const QnGeTINGraph& graph, double x, double y) {
    for (long i = 0; i < graph.OutEdgeList.GetLength(); ++i) {
        if (graph.OutEdgeList.GetAt(i)->Node->Equal2d(QnGePoint(x, y))) {
            return i;
        }
    }
    return -1;
}

}  // namespace

TEST(QnGeTINGraph, OneFacingEdgeGetsOneTriangle) {
    TinPair tin(-10, 10, -10, 10);
    tin.Insert({{0, 0}, {6, 0}, {0, 6}});
    ASSERT_EQ(RingOf(tin.graph), "0,6 0,0 6,0");
    const QnGeTINTriangle* const first = &tin.Triangle(0);
    EXPECT_TRUE(tin.Insert(1, -2));
    EXPECT_EQ(TextOf(tin.Triangle(1)), "1,-2 6,0 0,0");
    EXPECT_EQ(RingOf(tin.graph), "0,6 0,0 1,-2 6,0");
    EXPECT_EQ(NodesOf(tin.graph), "0,0 6,0 0,6 1,-2");
    const QnGeTINTriangle& made = tin.Triangle(1);
    EXPECT_EQ(made.NearTrg[1], first);
    EXPECT_EQ(first->NearTrg[1], &made);
    EXPECT_EQ(first->OutEdge[1], nullptr);
    EXPECT_EQ(made.OutEdge[0], tin.graph.OutEdgeList.GetAt(2)) << "from the node on";
    EXPECT_EQ(made.OutEdge[1], nullptr);
    EXPECT_EQ(made.OutEdge[2], tin.graph.OutEdgeList.GetAt(1)) << "towards the node";
    EXPECT_EQ(tin.graph.Range.y.min, -2.0) << "the range grows";
}

TEST(QnGeTINGraph, LastRecordAloneCanFace) {
    TinPair tin(-10, 10, -10, 10);
    tin.Insert({{0, 0}, {6, 0}, {0, 6}});
    ASSERT_EQ(RingOf(tin.graph), "0,6 0,0 6,0");
    EXPECT_TRUE(tin.Insert(9, 9));
    EXPECT_EQ(RingOf(tin.graph), "0,6 0,0 6,0 9,9");
    EXPECT_EQ(TextOf(tin.Triangle(1)), "9,9 0,6 6,0");
}

TEST(QnGeTINGraph, FirstRecordAloneCanFace) {
    TinPair tin(-10, 10, -10, 10);
    tin.Insert({{0, 0}, {6, 0}, {0, 6}});
    ASSERT_EQ(RingOf(tin.graph), "0,6 0,0 6,0");
    EXPECT_TRUE(tin.Insert(-2, 1));
    EXPECT_EQ(RingOf(tin.graph), "0,6 -2,1 0,0 6,0") << "the ring is not turned";
}

TEST(QnGeTINGraph, ConsecutiveFacingEdgesGetAFan) {
    TinPair tin;
    MakeHexagon(tin);
    const long before = tin.graph.TrgList.GetLength();
    ASSERT_EQ(before, 4);
    EXPECT_TRUE(tin.Insert(0, -60));
    EXPECT_EQ(tin.graph.TrgList.GetLength(), before + 3) << "three edges face it";
    EXPECT_EQ(tin.graph.OutEdgeList.GetLength(), 5);
    const long at = RecordAt(tin.graph, 0, -60);
    ASSERT_NE(at, -1);
    EXPECT_EQ(RecordAt(tin.graph, -8, 0), (at + 4) % 5);
    EXPECT_EQ(RecordAt(tin.graph, 8, 0), (at + 1) % 5);
    EXPECT_EQ(RecordAt(tin.graph, -4, -7), -1) << "no longer on the hull";
}

TEST(QnGeTINGraph, RunOverTheStartOfTheRingTurnsTheRing) {
    // For each pair of neighbouring edges a node far out between them, so that some run begins before record 0.
    for (std::size_t i = 0; i < HEXAGON.size(); ++i) {
        TinPair tin;
        MakeHexagon(tin);
        const QnGePoint corner = HEXAGON[i];
        EXPECT_TRUE(tin.Insert(5 * corner.x, 5 * corner.y));
        EXPECT_EQ(RecordAt(tin.graph, corner.x, corner.y), -1);
        tin.Verify();
    }
}

TEST(QnGeTINGraph, FindAndRotateEdgeCountsForward) {
    TinPair tin;
    MakeHexagon(tin);
    const long length = tin.graph.OutEdgeList.GetLength();
    ASSERT_EQ(length, 6);
    const std::string ring = RingOf(tin.graph);
    for (long first = 0; first < length; ++first) {
        // far outside the first edge: that one and both beside it face
        const QnGePoint a = *tin.graph.OutEdgeList.GetAt(first)->Node;
        const QnGePoint b = *tin.graph.OutEdgeList.GetAt((first + 1) % length)->Node;
        QnGeTINNode node(8 * (a.x + b.x) / 2.0, 8 * (a.y + b.y) / 2.0);
        const auto faces = [&](long i) {
            return GetPathType(*tin.graph.OutEdgeList.GetAt(i)->Node,
                               *tin.graph.OutEdgeList.GetAt((i + 1) % length)->Node, node) == PATH_RIGHT;
        };
        long run = 0;
        for (long i = first; i < length && faces(i); ++i) {
            ++run;
        }
        ASSERT_GE(run, 1);
        if (first == 0) {
            continue;  // may turn the ring, see below
        }
        long index = first;
        EXPECT_EQ(tin.graph.FindAndRotateEdge(&node, index), run) << "from " << first;
        EXPECT_EQ(index, first);
        EXPECT_EQ(RingOf(tin.graph), ring);
    }
}

TEST(QnGeTINGraph, FindAndRotateEdgeBringsTheRunToTheFront) {
    TinPair tin;
    MakeHexagon(tin);
    const QnGePoint last = *tin.graph.OutEdgeList.GetAt(5)->Node;
    const QnGePoint first = *tin.graph.OutEdgeList.GetAt(0)->Node;
    const QnGePoint second = *tin.graph.OutEdgeList.GetAt(1)->Node;
    {
        QnGeTINNode beforeFirst(1.5 * first.x, 1.5 * first.y);
        long index = 0;
        EXPECT_EQ(tin.graph.FindAndRotateEdge(&beforeFirst, index), 2);
        EXPECT_EQ(index, 0);
        EXPECT_EQ(PlaceOf(*tin.graph.OutEdgeList.GetAt(0)->Node), PlaceOf(last));
        EXPECT_EQ(PlaceOf(*tin.graph.OutEdgeList.GetAt(1)->Node), PlaceOf(first));
        EXPECT_EQ(PlaceOf(*tin.graph.OutEdgeList.GetAt(2)->Node), PlaceOf(second));
    }
    {
        QnGeTINNode within((last.x + first.x) * 0.6, (last.y + first.y) * 0.6);
        long index = 0;
        EXPECT_EQ(tin.graph.FindAndRotateEdge(&within, index), 1) << "record 0 alone: nothing to turn";
        EXPECT_EQ(PlaceOf(*tin.graph.OutEdgeList.GetAt(0)->Node), PlaceOf(last));
    }
    {
        QnGeTINNode any(1000, 1000);
        long index = 5;
        EXPECT_EQ(tin.graph.FindAndRotateEdge(&any, index), 1) << "the last record is not looked beyond";
        EXPECT_EQ(index, 5);
    }
    tin.compare = false;
}

TEST(QnGeTINGraph, NodeOnAHullEdgeSplitsIt) {
    for (int edge = 0; edge < 3; ++edge) {
        TinPair tin(-10, 10, -10, 10);
        tin.Insert({{0, 0}, {6, 0}, {0, 6}});
        ASSERT_EQ(TrianglesOf(tin.graph), "0,6 0,0 6,0");
        const QnGePoint at[3] = {{0, 2}, {2, 0}, {2, 4}};
        const char* const triangles[3] = {"0,2 0,0 6,0 | 0,2 6,0 0,6", "2,0 6,0 0,6 | 2,0 0,6 0,0",
                                          "2,4 0,6 0,0 | 2,4 0,0 6,0"};
        const char* const ring[3] = {"0,6 0,2 0,0 6,0", "0,6 0,0 2,0 6,0", "0,6 0,0 6,0 2,4"};
        EXPECT_TRUE(tin.Insert(at[edge].x, at[edge].y));
        EXPECT_EQ(TrianglesOf(tin.graph), triangles[edge]);
        EXPECT_EQ(RingOf(tin.graph), ring[edge]);
        const QnGeTINTriangle& old = tin.Triangle(0);
        const QnGeTINTriangle& made = tin.Triangle(1);
        EXPECT_EQ(old.NearTrg[2], &made);
        EXPECT_EQ(made.NearTrg[0], &old);
        EXPECT_NE(old.OutEdge[0], nullptr);
        EXPECT_NE(old.OutEdge[1], nullptr);
        EXPECT_NE(made.OutEdge[1], nullptr);
        EXPECT_NE(made.OutEdge[2], nullptr);
    }
}

TEST(QnGeTINGraph, SplittingAHullEdgePassesNeighboursOn) {
    for (const QnGePoint& p : {QnGePoint(0, 3), QnGePoint(6, 3), QnGePoint(3, 0), QnGePoint(3, 6)}) {
        TinPair tin(-10, 10, -10, 10);
        tin.Insert({{0, 0}, {6, 0}, {0, 6}, {6, 6}});
        EXPECT_TRUE(tin.Insert(p.x, p.y));
        EXPECT_EQ(tin.graph.TrgList.GetLength(), 3);
        EXPECT_EQ(tin.graph.OutEdgeList.GetLength(), 5);
    }
}

TEST(QnGeTINGraph, SplitOfAHullEdgePushesTheNewTriangleFirst) {
    TinPair tin(-10, 10, -10, 10);
    tin.Insert({{0, 0}, {6, 0}, {0, 6}});
    ASSERT_TRUE(tin.graph.InsertOutside(new QnGeTINNode(2, 0)));
    ASSERT_EQ(tin.graph.LOPStack.GetDepth(), 2);
    EXPECT_EQ(tin.graph.LOPStack[0], &tin.Triangle(1));
    EXPECT_EQ(tin.graph.LOPStack[1], &tin.Triangle(0));
    tin.graph.LOP();
    auto plain = std::make_unique<PlainNode>(2, 0, 0);
    tin.plain.Insert(plain);
}

TEST(QnGeTINGraph, NodeOnAHullCornerMerges) {
    TinPair tin;
    MakeHexagon(tin);
    for (const QnGePoint& corner : HEXAGON) {
        EXPECT_TRUE(tin.Insert(corner.x, corner.y, 6));
        EXPECT_TRUE(tin.Insert(corner.x + 6e-7, corner.y, 6));
        EXPECT_TRUE(tin.Insert(corner.x, corner.y - 6e-7, 6));
    }
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 6);
    for (long i = 0; i < 6; ++i) {
        EXPECT_EQ(tin.Node(i).count, 4);
        EXPECT_EQ(tin.Node(i).z, 4.5);
    }
}

TEST(QnGeTINGraph, NodeOnTheLineOfAHullEdgeIsJoinedToAnother) {
    TinPair tin(-10, 20, -10, 20);
    tin.Insert({{0, 0}, {4, 0}, {8, 4}});
    EXPECT_TRUE(tin.Insert(6, 0)) << "within the range, on the line of the lower edge, beyond its end";
    EXPECT_EQ(RingOf(tin.graph), "8,4 0,0 4,0 6,0");
    EXPECT_TRUE(tin.Insert(12, 0)) << "beyond the range";
    EXPECT_TRUE(tin.Insert(-3, 0)) << "before its start";
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 6);
}

TEST(QnGeTINGraph, NodeInACornerOfTheRangeIsOutsideTheHull) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0}, {8, 0}, {0, 8}});
    auto* const node = new QnGeTINNode(7, 7);
    EXPECT_FALSE(tin.graph.InsertInside(node));
    delete node;
    EXPECT_TRUE(tin.Insert(7, 7));
    EXPECT_EQ(tin.graph.Range.x.max, 8.0) << "the range is not changed";
    EXPECT_EQ(tin.graph.Range.y.max, 8.0);
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 4);
}

TEST(QnGeTINGraph, RangeGrowsByNodesOutsideIt) {
    TinPair tin(-50, 50, -50, 50);
    tin.Insert({{0, 0}, {8, 0}, {0, 8}, {20, 5}, {-7, 3}, {4, 30}, {4, -12}});
    EXPECT_EQ(tin.graph.Range.x.min, -7.0);
    EXPECT_EQ(tin.graph.Range.x.max, 20.0);
    EXPECT_EQ(tin.graph.Range.y.min, -12.0);
    EXPECT_EQ(tin.graph.Range.y.max, 30.0);
}

TEST(QnGeTINGraph, HullIsFlippedIntoEmptyCircles) {
    // A long thin fan first, then nodes that force flips across several triangles.
    TinPair tin(-100, 100, -100, 100);
    for (int i = 0; i <= 20; ++i) {
        tin.Insert(i, (i % 2) * 0.1);
    }
    tin.Insert({{10, 60}, {10, -60}, {9.7, 0.05}, {-30, 0}, {60, 0.05}});
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 26);
}
