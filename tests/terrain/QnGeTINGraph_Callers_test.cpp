// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "TinTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "support/RandomSource.h"
#include "terrain/QnGeTINGraph.h"

// What callers may do beside filling a list: work the stack by hand, derive nodes, triangles and the graph, turn the
// ring, set another tolerance, and give places that are no numbers or hardly fit into one.

namespace {

using Points = std::vector<QnGePoint>;

Points Scattered(int n, double size) {
    RandomSource random(BaseSeed() + static_cast<unsigned>(n));
    Points points;
    for (int i = 0; i < n; ++i) {
        points.emplace_back(random.Double(0, size), random.Double(0, size), i);
    }
    return points;
}

Points OnCircle(int n, double radius) {
    Points points;
    for (int i = 0; i < n; ++i) {
        const double angle = QN_TWO_PI * i / n;
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle), i);
    }
    return points;
}

long BoxesIn(const OpenTin& graph) {
    QnDynArray<QnGeExtent2d*> boxes;
    graph.TrgTree.GetAllExtent(boxes);
    return boxes.GetLength();
}

}  // namespace

// ---- the stack -------------------------------------------------------------------------------------

TEST(QnGeTINGraph, PushingTakesATriangleOutOfTheTreeAndPoppingPutsItBackUnderItsNewBox) {
    OpenTin graph;
    graph.SetRange(0, 10, 0, 10);
    for (const QnGePoint& p : Points{{0, 0}, {6, 0}, {0, 6}}) {
        ASSERT_TRUE(graph.Insert(new QnGeTINNode(p)));
    }
    QnGeTINTriangle* const t = graph.TrgList.GetAt(0);
    EXPECT_TRUE(t->IsInsideCircle(QnGePoint(1, 1)));
    EXPECT_GT(t->Radius, 0.0);
    graph.PushLOP(t);
    EXPECT_EQ(t->Radius, -1.0) << "the circle is to be computed anew";
    EXPECT_EQ(graph.LOPStack.GetDepth(), 1);
    EXPECT_TRUE(graph.TrgTree.IsEmptyTree());
    EXPECT_TRUE(t->HasBit(TRG_IN_TREE)) << "the bit stays";
    t->Node[0]->y = 9.0;
    EXPECT_EQ(t->y.max, 6.0) << "the box waits for the pop";
    graph.PopLOP();
    EXPECT_EQ(t->y.max, 9.0);
    EXPECT_EQ(graph.LOPStack.GetDepth(), 0);
    EXPECT_EQ(BoxesIn(graph), 1);
    EXPECT_EQ(CheckTin(graph), "");
    graph.PopLOP();
    EXPECT_EQ(BoxesIn(graph), 1) << "nothing to pop";
}

TEST(QnGeTINGraph, TriangleMadeByHandGoesThroughTheStack) {
    NodeStore node;
    QnGeTINTriangle t;
    t.Node[0] = node(1, 1);
    t.Node[1] = node(3, 1);
    t.Node[2] = node(1, 4);
    OpenTin graph;
    graph.SetRange(0, 10, 0, 10);
    graph.PushLOP(&t);
    EXPECT_TRUE(graph.TrgTree.IsEmptyTree());
    EXPECT_FALSE(t.HasBit(TRG_IN_TREE));
    t.LOP(graph);
    EXPECT_EQ(BoxesIn(graph), 1) << "an edge 1 without neighbour has nothing to flip";
    EXPECT_TRUE(t.HasBit(TRG_IN_TREE));
    EXPECT_EQ(t.y.max, 4.0);
    t.ClearBit(TRG_IN_TREE);
    graph.PushLOP(&t);
    EXPECT_EQ(BoxesIn(graph), 1) << "the bit alone decides";
    t.SetBit(TRG_IN_TREE);
    graph.PushLOP(&t);
    EXPECT_EQ(BoxesIn(graph), 0);
    EXPECT_EQ(graph.LOPStack.GetDepth(), 2) << "the same twice";
}

TEST(QnGeTINGraph, TriangleFlipsWithTheNeighbourWhoseCircleHoldsItsNode) {
    NodeStore node;
    QnGeTINTriangle t;
    QnGeTINTriangle u;
    t.Node[0] = node(0, 0);
    t.Node[1] = u.Node[0] = node(4, 0);
    u.Node[1] = node(5, 5);
    t.Node[2] = u.Node[2] = node(0, 4);
    t.NearTrg[1] = &u;
    u.NearTrg[2] = &t;
    OpenTin graph;
    graph.SetRange(0, 10, 0, 10);
    graph.PushLOP(&t);
    ASSERT_FALSE(u.IsInsideCircle(*t.Node[0]));
    *u.Node[1] = QnGeTINNode(3, 3);
    EXPECT_FALSE(u.IsInsideCircle(*t.Node[0])) << "the circle is that of the old place";
    u.Radius = -1.0;
    ASSERT_TRUE(u.IsInsideCircle(*t.Node[0]));
    t.LOP(graph);
    EXPECT_EQ(TextOf(t), "0,0 4,0 3,3");
    EXPECT_EQ(TextOf(u), "0,0 3,3 0,4");
    ASSERT_EQ(graph.LOPStack.GetDepth(), 2) << "one step alone";
    EXPECT_EQ(graph.LOPStack[0], &t);
    EXPECT_EQ(graph.LOPStack[1], &u) << "the other comes first";
    EXPECT_EQ(u.Radius, -1.0);
    graph.LOP();
    EXPECT_EQ(BoxesIn(graph), 2);
}

// ---- derived classes -------------------------------------------------------------------------------

namespace {

/// A triangle and a node that are larger than the library's own, and counted.
template <int BYTES>
class LargeTriangle : public QnGeTINTriangle {
public:
    static long live;
    static long steps;
    char more[BYTES];

    LargeTriangle() {
        std::fill(more, more + BYTES, 'm');
        ++live;
    }
    ~LargeTriangle() override {
        EXPECT_TRUE(std::all_of(more, more + BYTES, [](char c) { return c == 'm'; }));
        --live;
    }
    void LOP(QnGeTINGraph& graph) override {
        ++steps;
        QnGeTINTriangle::LOP(graph);
    }
};
template <int BYTES>
long LargeTriangle<BYTES>::live = 0;
template <int BYTES>
long LargeTriangle<BYTES>::steps = 0;

template <int BYTES>
class LargeNode : public QnGeTINNode {
public:
    static long live;
    char more[BYTES];

    explicit LargeNode(const QnGePoint& p) : QnGeTINNode(p) {
        std::fill(more, more + BYTES, 'n');
        ++live;
    }
    ~LargeNode() override {
        EXPECT_TRUE(std::all_of(more, more + BYTES, [](char c) { return c == 'n'; }));
        --live;
    }
};
template <int BYTES>
long LargeNode<BYTES>::live = 0;

template <int BYTES>
class LargeTin : public OpenTin {
protected:
    QnGeTINTriangle* NewTriangle() const override { return new LargeTriangle<BYTES>; }
};

/// Of every third place there are two nodes.
template <int BYTES>
void ExpectDerivedClassesMakeTheSameNetwork() {
    SCOPED_TRACE(BYTES);
    const Points points = Scattered(150, 100.0);
    TinPair tin;
    {
        LargeTin<BYTES> graph;
        Points all;
        for (std::size_t i = 0; i < points.size(); ++i) {
            for (std::size_t copy = 0; copy < (i % 3 == 0 ? 2U : 1U); ++copy) {
                all.push_back(points[i]);
                graph.NodeList.Append(new LargeNode<BYTES>(points[i]));
            }
        }
        graph.MakeTIN();
        tin.MakeTIN(all);
        EXPECT_EQ(LargeNode<BYTES>::live, 150) << "merged nodes are gone, as what they are";
        EXPECT_EQ(LargeTriangle<BYTES>::live, graph.TrgList.GetLength());
        EXPECT_GT(LargeTriangle<BYTES>::steps, graph.TrgList.GetLength()) << "each goes over the stack";
        EXPECT_EQ(CompareTin(graph, tin.plain), "");
        EXPECT_EQ(CheckTin(graph), "");
        for (QnGeTINTriangle* t : tree_checks::Elements<QnGeTINTriangle*>(graph.TrgList)) {
            EXPECT_NE(dynamic_cast<LargeTriangle<BYTES>*>(t), nullptr);
        }
    }
    EXPECT_EQ(LargeNode<BYTES>::live, 0);
    EXPECT_EQ(LargeTriangle<BYTES>::live, 0);
}

}  // namespace

TEST(QnGeTINGraph, DerivedNodesAndTrianglesMakeTheSameNetwork) {
    ExpectDerivedClassesMakeTheSameNetwork<1>();
    ExpectDerivedClassesMakeTheSameNetwork<100>();
    ExpectDerivedClassesMakeTheSameNetwork<4000>();
}

TEST(QnGeTINGraph, WhatItOwnsCanBeTakenOffAndDeletedSingly) {
    TinPair tin;
    tin.MakeTIN(Scattered(40, 100.0));
    tin.Verify();
    tin.compare = false;
    tin.rules.links = false;
    while (!tin.graph.TrgList.IsEmpty()) {
        const std::unique_ptr<QnGeTINTriangle> triangle(tin.graph.TrgList.TakeOffHead());
        ASSERT_TRUE(tin.graph.TrgTree.Delete(triangle.get(), false));
    }
    while (!tin.graph.OutEdgeList.IsEmpty()) {
        delete tin.graph.OutEdgeList.TakeOffHead();
    }
    while (!tin.graph.NodeList.IsEmpty()) {
        const QnGeTINNode* const node = tin.graph.NodeList.TakeOffHead();
        delete node;
    }
    EXPECT_TRUE(tin.graph.TrgTree.IsEmptyTree());
}

// ---- copies ----------------------------------------------------------------------------------------

TEST(QnGeTINGraph, GraphThatWasAssignedToStartsAnew) {
    const Points circle = OnCircle(200, 90.0);
    const Points points = Scattered(200, 100.0);
    TinPair tin(-100, 100, -100, 100);
    tin.Insert(circle);  // deep trees, a long hull
    tin.graph = OpenTin();
    tin.plain = PlainTin();
    EXPECT_TRUE(tin.graph.NodeList.IsEmpty());
    EXPECT_TRUE(tin.graph.TrgList.IsEmpty());
    EXPECT_TRUE(tin.graph.OutEdgeList.IsEmpty());
    EXPECT_TRUE(tin.graph.TrgTree.IsEmptyTree());
    tin.SetRange(-100, 100, -100, 100);
    tin.Insert(points);
    tin.Insert(circle);
}

TEST(QnGeTINGraph, CopyDoesNotShareWhatWasDropped) {
    OpenTin graph;
    graph.Dropped.Append(new QnGeTINNode(1, 2));
    const OpenTin copy(graph);
    OpenTin assigned;
    assigned = graph;
    EXPECT_TRUE(copy.Dropped.IsEmpty());
    EXPECT_TRUE(assigned.Dropped.IsEmpty());
    EXPECT_EQ(graph.Dropped.GetLength(), 1);
}

// ---- the ring --------------------------------------------------------------------------------------

TEST(QnGeTINGraph, RingTurnedByACallerIsWalkedFromItsNewHead) {
    for (const int n : {40, 400}) {  // a short hull and a long one
        SCOPED_TRACE(n);
        TinPair tin(-500, 500, -500, 500);
        tin.Insert(OnCircle(n, 100.0));
        int turn = 0;
        for (const QnGePoint& p : OnCircle(24, 120.0)) {
            turn = (turn + 37) % static_cast<int>(tin.graph.OutEdgeList.GetLength());
            tin.graph.OutEdgeList.Rotate(turn, 0);
            std::rotate(tin.plain.OutEdgeList.begin(), tin.plain.OutEdgeList.begin() + turn,
                        tin.plain.OutEdgeList.end());
            ASSERT_TRUE(tin.Insert(p.x + 0.5, p.y));
            ASSERT_EQ(CompareTin(tin.graph, tin.plain), "");
        }
    }
}

// ---- odd tolerances and places ---------------------------------------------------------------------

TEST(QnGeTINGraph, ToleranceIsThatOfTheCall) {
    for (const double tolerance : {0.0, 1e-12, 1e-3, 0.05, 0.4}) {
        SCOPED_TRACE(tolerance);
        const QnPushVar<double> push(g_distZero, tolerance);
        TinPair tin;
        tin.rules.links = false;
        Points points = Scattered(150, 20.0);
        const Points lattice = {{0, 0}, {20, 0}, {20, 20}, {0, 20}, {10, 10}, {5, 10}, {10, 5}, {10, 15}};
        points.insert(points.end(), lattice.begin(), lattice.end());
        points.insert(points.end(), lattice.begin(), lattice.end());
        tin.MakeTIN(points);
        EXPECT_GT(tin.graph.TrgList.GetLength(), 20);
    }
}

TEST(QnGeTINGraph, NodeThatIsNoNumberIsDropped) {
    // The centre row gives the first two nodes; a node that is no number as one of these would hold up all others.
    const double none = std::numeric_limits<double>::quiet_NaN();
    OpenTin graph;
    TinPair tin;
    Points points;
    for (int i = 0; i < 25; ++i) {
        points.emplace_back(i % 5, i / 5);
    }
    for (const QnGePoint& p : points) {
        graph.NodeList.Append(new QnGeTINNode(p));
    }
    graph.NodeList.Append(new QnGeTINNode(none, none));
    graph.MakeTIN();
    tin.MakeTIN(points);
    EXPECT_EQ(TrianglesOf(graph), TrianglesOf(tin.graph));
    EXPECT_EQ(RingOf(graph), RingOf(tin.graph));
    EXPECT_EQ(graph.Dropped.GetLength(), 1);
    EXPECT_EQ(graph.Range.x.max, 4.0);
    EXPECT_EQ(CheckTin(graph), "");
}

TEST(QnGeTINGraph, HugePlacesComeInTheOrderOfTheTreeToo) {
    for (const double size : {1e9, 1e15, 1e100, 1e150}) {
        SCOPED_TRACE(size);
        Points points = Scattered(60, size);
        for (int i = 0; i < 20; ++i) {
            points.push_back(points[static_cast<std::size_t>(3 * i)]);
        }
        for (int i = 0; i < 10; ++i) {
            points.emplace_back(size * i, 1e-3 * i * i);
        }
        TinPair tin;
        tin.rules.links = false;
        tin.MakeTIN(points);
        EXPECT_GE(tin.graph.NodeList.GetLength(), 3);
    }
}
