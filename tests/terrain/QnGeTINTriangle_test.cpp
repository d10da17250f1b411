// SPDX-License-Identifier: Apache-2.0
#include "terrain/QnGeTINTriangle.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>
#include <random>

#include "TinTesting.h"
#include "frame/QnGeTolerance.h"
#include "support/RandomSource.h"

namespace {

void SetNodes(QnGeTINTriangle& t, QnGeTINNode* a, QnGeTINNode* b, QnGeTINNode* c) {
    t.Node[0] = a;
    t.Node[1] = b;
    t.Node[2] = c;
}

}  // namespace

TEST(QnGeTINTriangle, IsEmptyAndWithoutCircleAtFirst) {
    const QnGeTINTriangle t;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(t.Node[i], nullptr);
        EXPECT_EQ(t.NearTrg[i], nullptr);
        EXPECT_EQ(t.OutEdge[i], nullptr);
    }
    EXPECT_EQ(t.Radius, -1.0);
    EXPECT_EQ(t.GetBits(), 0U);
    EXPECT_EQ(static_cast<unsigned>(TRG_VISITED), 1U);
    EXPECT_EQ(static_cast<unsigned>(TRG_IN_TREE), 16U);
}

TEST(QnGeTINTriangle, IsTheSameOnlyWithItself) {
    QnGeTINTriangle t;
    QnGeTINTriangle other;
    const QnGeExtent2d* const box = &t;
    EXPECT_TRUE(box->IsSameWith(&t));
    EXPECT_FALSE(box->IsSameWith(&other));
}

TEST(QnGeTINTriangle, NodeIndexIsTwoForStrangers) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(0, 0), node(4, 0), node(0, 4));
    EXPECT_EQ(t.GetNodeIndex(t.Node[0]), 0);
    EXPECT_EQ(t.GetNodeIndex(t.Node[1]), 1);
    EXPECT_EQ(t.GetNodeIndex(t.Node[2]), 2);
    EXPECT_EQ(t.GetNodeIndex(node(0, 0)), 2);
}

TEST(QnGeTINTriangle, RotatingTurnsAllThreeArraysTogether) {
    NodeStore node;
    std::array<QnGeTINNode*, 3> n = {node(0, 0), node(4, 0), node(0, 4)};
    std::array<QnGeTINTriangle, 3> near;
    std::array<QnGeTINOutEdge, 3> out;
    for (std::size_t first = 0; first < 3; ++first) {
        QnGeTINTriangle t;
        for (std::size_t i = 0; i < 3; ++i) {
            t.Node[i] = n[i];
            t.NearTrg[i] = &near[i];
            t.OutEdge[i] = &out[i];
        }
        t.RotateNode(n[first]);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(t.Node[i], n[(i + first) % 3]) << first << ' ' << i;
            EXPECT_EQ(t.NearTrg[i], &near[(i + first) % 3]);
            EXPECT_EQ(t.OutEdge[i], &out[(i + first) % 3]);
        }
    }
    QnGeTINTriangle t;
    SetNodes(t, n[0], n[1], n[2]);
    t.RotateNode(node(0, 0));
    EXPECT_EQ(t.Node[0], n[0]) << "a stranger turns nothing";
    EXPECT_EQ(t.Node[1], n[1]);
    EXPECT_EQ(t.Node[2], n[2]);
}

TEST(QnGeTINTriangle, ReplacingAnUnknownNeighbourOverwritesTheThirdKeptOdd) {
    std::array<QnGeTINTriangle, 5> u;
    for (std::size_t slot = 0; slot < 3; ++slot) {
        QnGeTINTriangle t;
        for (std::size_t i = 0; i < 3; ++i) {
            t.NearTrg[i] = &u[i];
        }
        t.ReplaceNearTrg(&u[slot], &u[3]);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(t.NearTrg[i], i == slot ? &u[3] : &u[i]);
        }
    }
    QnGeTINTriangle t;
    for (std::size_t i = 0; i < 3; ++i) {
        t.NearTrg[i] = &u[i];
    }
    t.ReplaceNearTrg(&u[4], &u[3]);
    EXPECT_EQ(t.NearTrg[0], &u[0]);
    EXPECT_EQ(t.NearTrg[1], &u[1]);
    EXPECT_EQ(t.NearTrg[2], &u[3]);
}

TEST(QnGeTINTriangle, ThirdNodeIsTheFirstThatIsNeither) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(0, 0), node(4, 0), node(0, 4));
    const auto third = [&t](const QnGeTINNode* a, const QnGeTINNode* b) {
        QnGeTINNode* found = nullptr;
        long index = -1;
        t.GetThirdNode(a, b, found, index);
        EXPECT_EQ(found, t.Node[index]);
        return index;
    };
    EXPECT_EQ(third(t.Node[0], t.Node[1]), 2);
    EXPECT_EQ(third(t.Node[1], t.Node[0]), 2);
    EXPECT_EQ(third(t.Node[1], t.Node[2]), 0);
    EXPECT_EQ(third(t.Node[2], t.Node[1]), 0);
    EXPECT_EQ(third(t.Node[2], t.Node[0]), 1);
    EXPECT_EQ(third(t.Node[0], t.Node[2]), 1);
    EXPECT_EQ(third(node(0, 0), node(4, 0)), 0) << "by pointer, not by place";
}

TEST(QnGeTINTriangle, HullRecordStartsAtItsNode) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(0, 0), node(4, 0), node(0, 4));
    for (long i = 0; i < 3; ++i) {
        const std::unique_ptr<QnGeTINOutEdge> made(t.CreateOutEdge(i));
        EXPECT_EQ(t.OutEdge[i], made.get());
        EXPECT_EQ(made->Node, t.Node[i]);
        EXPECT_EQ(made->Triangle, &t);
    }
}

TEST(QnGeTINTriangle, PathTypeTellsTheTurn) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(0, 0), node(4, 0), node(0, 4));
    EXPECT_EQ(t.GetPathType(), 0);
    SetNodes(t, node(0, 0), node(0, 4), node(4, 0));
    EXPECT_EQ(t.GetPathType(), 1);
    SetNodes(t, node(0, 0), node(2, 2), node(5, 5));
    EXPECT_EQ(t.GetPathType(), -1);
}

TEST(QnGeTINTriangle, ExtentIsThatOfTheNodes) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(3, -2), node(7, 1), node(-1, 5));
    t.UpdateExtend();
    EXPECT_EQ(t.x.min, -1.0);
    EXPECT_EQ(t.x.max, 7.0);
    EXPECT_EQ(t.y.min, -2.0);
    EXPECT_EQ(t.y.max, 5.0);
}

// ---- the circle ------------------------------------------------------------------------------------

TEST(QnGeTINTriangle, CircleGoesThroughTheNodes) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(0, 0), node(2, 0), node(0, 2));
    EXPECT_TRUE(t.IsInsideCircle(QnGePoint(1.9, 1.9)));
    EXPECT_EQ(t.CenterX, 1.0);
    EXPECT_EQ(t.CenterY, 1.0);
    EXPECT_EQ(t.Radius, std::sqrt(2.0));
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(2, 2))) << "a fourth node on the circle";
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(2.1, 2.1))) << "outside, yet within the box of the circle";
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(3, 1))) << "to the right";
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(-1, 1))) << "to the left";
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(1, 3))) << "above";
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(1, -1))) << "below";
}

TEST(QnGeTINTriangle, InsideMeansDeeperThanTheTolerance) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(-1, 0), node(0, -1), node(1, 0));
    for (const double angle : {0.3, 1.2, 2.5, 1.5707963267948966, 4.0}) {
        const auto at = [angle](double r) { return QnGePoint(r * std::cos(angle), r * std::sin(angle)); };
        EXPECT_FALSE(t.IsInsideCircle(at(1.0 + 2e-6))) << angle;
        EXPECT_FALSE(t.IsInsideCircle(at(1.0))) << angle;
        EXPECT_FALSE(t.IsInsideCircle(at(1.0 - 0.9e-6))) << angle;
        EXPECT_TRUE(t.IsInsideCircle(at(1.0 - 1.1e-6))) << angle;
    }
}

TEST(QnGeTINTriangle, CircleIsKeptUntilTheRadiusIsReset) {
    NodeStore node;
    QnGeTINTriangle t;
    SetNodes(t, node(0, 0), node(2, 0), node(0, 2));
    EXPECT_TRUE(t.IsInsideCircle(QnGePoint(1, 1)));
    SetNodes(t, node(100, 0), node(102, 0), node(100, 2));
    EXPECT_TRUE(t.IsInsideCircle(QnGePoint(1, 1))) << "the old circle";
    t.Radius = -1.0;
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(1, 1)));
    EXPECT_TRUE(t.IsInsideCircle(QnGePoint(101, 1)));
    t.Radius = 0.0;
    EXPECT_FALSE(t.IsInsideCircle(QnGePoint(101, 1))) << "a radius of 0 counts as computed";
    EXPECT_EQ(t.Radius, 0.0);
}

TEST(QnGeTINTriangle, NodesOnOneLineHaveNothingInsideTheirCircle) {
    NodeStore node;
    const QnGePoint asked[] = {{1, 1}, {0, 0}, {0.5, 0}, {-7, 3}, {2.5, 2.5}, {1e9, 0}};
    for (const auto& nodes : {std::array<QnGeTINNode*, 3>{node(0, 0), node(1, 0), node(2, 0)},
                              std::array<QnGeTINNode*, 3>{node(0, 0), node(0, 1), node(0, 2)},
                              std::array<QnGeTINNode*, 3>{node(0, 0), node(1, 1), node(3, 3)},
                              std::array<QnGeTINNode*, 3>{node(1, 1), node(1, 1), node(3, 3)},
                              std::array<QnGeTINNode*, 3>{node(1, 1), node(3, 3), node(3, 3)},
                              std::array<QnGeTINNode*, 3>{node(1, 1), node(1, 1), node(1, 1)}}) {
        QnGeTINTriangle t;
        SetNodes(t, nodes[0], nodes[1], nodes[2]);
        for (const QnGePoint& p : asked) {
            EXPECT_FALSE(t.IsInsideCircle(p)) << TextOf(t) << " at " << PlaceOf(p);
        }
    }
}

TEST(QnGeTINTriangle, CircleIsAsGoodFarFromTheOrigin) {
    NodeStore node;
    const double x0 = 500000.0;
    const double y0 = 4000000.0;
    RandomSource random(BaseSeed());
    for (int i = 0; i < 1000; ++i) {
        const double turn = random.Double(0.0, QN_TWO_PI);
        const auto corner = [&](double u, double v) {
            return QnGePoint(x0 + u * std::cos(turn) - v * std::sin(turn),
                             y0 + u * std::sin(turn) + v * std::cos(turn));
        };
        QnGeTINTriangle t;
        const QnGePoint a = corner(0, 0);
        const QnGePoint b = corner(10, 0);
        const QnGePoint c = corner(0, 10);
        SetNodes(t, node(a.x, a.y), node(b.x, b.y), node(c.x, c.y));
        EXPECT_FALSE(t.IsInsideCircle(corner(10, 10))) << turn;
        EXPECT_TRUE(t.IsInsideCircle(corner(10 - 2e-6, 10 - 2e-6))) << turn;
    }
}

// ---- flipping --------------------------------------------------------------------------------------

namespace {

/// Two triangles on the diagonal b c, with a neighbour and a hull record on each outer edge; a real one has either.
///
///          c--------d        T = a b c, U = b d c in one of its three turns.
///          | \  U   |
///          | T  \   |
///          a--------b
struct Quadrangle {
    NodeStore node;
    QnGeTINNode* a = node(0, 0);
    QnGeTINNode* b = node(4, 0);
    QnGeTINNode* c = node(0, 4);
    QnGeTINNode* d;
    QnGeTINTriangle t;
    QnGeTINTriangle u;
    QnGeTINTriangle nearAB;
    QnGeTINTriangle nearBD;
    QnGeTINTriangle nearDC;
    QnGeTINTriangle nearCA;
    QnGeTINOutEdge outAB;
    QnGeTINOutEdge outBD;
    QnGeTINOutEdge outDC;
    QnGeTINOutEdge outCA;

    Quadrangle(long turn, double dx, double dy) : d(node(dx, dy)) {
        SetNodes(t, a, b, c);
        t.NearTrg[0] = &nearAB;
        t.NearTrg[1] = &u;
        t.NearTrg[2] = &nearCA;
        t.OutEdge[0] = &outAB;
        t.OutEdge[2] = &outCA;
        SetNodes(u, b, d, c);
        u.NearTrg[0] = &nearBD;
        u.NearTrg[1] = &nearDC;
        u.NearTrg[2] = &t;
        u.OutEdge[0] = &outBD;
        u.OutEdge[1] = &outDC;
        u.RotateNode(u.Node[turn]);
        nearAB.NearTrg[0] = &t;
        nearBD.NearTrg[1] = &u;
        nearDC.NearTrg[0] = &u;
        nearCA.NearTrg[1] = &t;
        outAB.Triangle = outCA.Triangle = &t;
        outBD.Triangle = outDC.Triangle = &u;
    }
};

}  // namespace

TEST(QnGeTINTriangle, SwappingExchangesTheDiagonalAndKeepsTheFirstNode) {
    for (long turn = 0; turn < 3; ++turn) {
        Quadrangle q(turn, 4, 4);
        q.t.SwapDiagonalLine();
        EXPECT_EQ(TextOf(q.t), "0,0 4,0 4,4") << turn;
        EXPECT_EQ(TextOf(q.u), "0,0 4,4 0,4") << turn;
        EXPECT_EQ(q.t.NearTrg[0], &q.nearAB);
        EXPECT_EQ(q.t.NearTrg[1], &q.nearBD);
        EXPECT_EQ(q.t.NearTrg[2], &q.u);
        EXPECT_EQ(q.u.NearTrg[0], &q.t);
        EXPECT_EQ(q.u.NearTrg[1], &q.nearDC);
        EXPECT_EQ(q.u.NearTrg[2], &q.nearCA);
        EXPECT_EQ(q.t.OutEdge[0], &q.outAB);
        EXPECT_EQ(q.t.OutEdge[1], &q.outBD);
        EXPECT_EQ(q.t.OutEdge[2], nullptr);
        EXPECT_EQ(q.u.OutEdge[0], nullptr);
        EXPECT_EQ(q.u.OutEdge[1], &q.outDC);
        EXPECT_EQ(q.u.OutEdge[2], &q.outCA);
        EXPECT_EQ(q.outAB.Triangle, &q.t);
        EXPECT_EQ(q.outBD.Triangle, &q.t) << "taken over";
        EXPECT_EQ(q.outDC.Triangle, &q.u);
        EXPECT_EQ(q.outCA.Triangle, &q.u) << "taken over";
        EXPECT_EQ(q.nearAB.NearTrg[0], &q.t);
        EXPECT_EQ(q.nearBD.NearTrg[1], &q.t);
        EXPECT_EQ(q.nearDC.NearTrg[0], &q.u);
        EXPECT_EQ(q.nearCA.NearTrg[1], &q.u);
    }
}

TEST(QnGeTINTriangle, SwappingOnTheHullDoesNothing) {
    Quadrangle q(0, 4, 4);
    q.t.NearTrg[1] = nullptr;
    q.t.SwapDiagonalLine();
    EXPECT_EQ(TextOf(q.t), "0,0 4,0 0,4");
    EXPECT_EQ(q.t.NearTrg[0], &q.nearAB);
    EXPECT_EQ(q.t.NearTrg[2], &q.nearCA);
    EXPECT_FALSE(q.t.CanSwapDiagonalLine());
}

TEST(QnGeTINTriangle, OnlyAConvexQuadrangleCanBeSwapped) {
    for (long turn = 0; turn < 3; ++turn) {
        EXPECT_TRUE(Quadrangle(turn, 4, 4).t.CanSwapDiagonalLine());
        EXPECT_TRUE(Quadrangle(turn, 9, 9).t.CanSwapDiagonalLine());
        EXPECT_FALSE(Quadrangle(turn, 9, -1).t.CanSwapDiagonalLine()) << "the new diagonal would leave at b";
        EXPECT_FALSE(Quadrangle(turn, -1, 9).t.CanSwapDiagonalLine()) << "the new diagonal would leave at c";
        EXPECT_FALSE(Quadrangle(turn, 8, 0).t.CanSwapDiagonalLine()) << "a, b, d on one line";
    }
}
