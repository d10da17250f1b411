// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "frame/QnPushVar.h"
#include "support/RandomSource.h"
#include "support/TinSearch.h"
#include "terrain/detail/TriangleFinder.h"

// The finder by itself, over triangles put together by hand: what it is sure of, what it leaves to the tree, and that
// whatever it is sure of is the tree's answer.

namespace {

using namespace qn_detail;

/// Triangles with their tree, hull and finder.
class Field {
public:
    explicit Field(double size = 50.0) { m_root.SetRange(-size, size, -size, size); }

    long AddNode(double x, double y) {
        m_nodes.push_back(std::make_unique<QnGeTINNode>(x, y));
        const QnGeExtent2d box(x, x, y, y);
        m_range = m_nodes.size() == 1 ? box : m_range + box;
        return static_cast<long>(m_nodes.size()) - 1;
    }
    void AddNodes(std::initializer_list<QnGePoint> points) {
        for (const QnGePoint& p : points) {
            AddNode(p.x, p.y);
        }
    }

    void AddTriangle(long a, long b, long c) {
        m_triangles.push_back(std::make_unique<QnGeTINTriangle>());
        QnGeTINTriangle* const t = m_triangles.back().get();
        const long nodes[3] = {a, b, c};
        for (int i = 0; i < 3; ++i) {
            t->Node[i] = Node(nodes[i]);
        }
        t->UpdateExtend();
        for (const auto& other : m_triangles) {
            Join(*t, *other);
        }
    }

    /// Puts triangles into the tree, in this order, and tells the finder of them and of the hull.
    void Finish(std::initializer_list<long> order, std::initializer_list<long> hull) {
        for (const long i : order) {
            m_tree.Insert(At(i));
            m_finder.LearnTriangle(*At(i));
        }
        for (const long i : hull) {
            m_ring.Append(new QnGeTINOutEdge{Node(i), At(0)});
        }
        for (auto entry = m_ring.GetFirst(); entry != nullptr; entry = m_ring.GetNext(entry)) {
            m_finder.LearnHull(m_ring, entry);
        }
    }

    /// Tells the finder of a triangle that lies within some other network.
    void LearnStray(const std::vector<QnGePoint>& points) {
        std::vector<QnGeTINNode> nodes(points.begin(), points.end());
        QnGeTINTriangle t;
        for (std::size_t i = 0; i < 3; ++i) {
            t.Node[i] = &nodes[i];
            t.NearTrg[i] = At(0);
        }
        t.UpdateExtend();
        m_finder.LearnTriangle(t);
    }

    QnGeTINNode* Node(long i) { return m_nodes[static_cast<std::size_t>(i)].get(); }
    QnGeTINTriangle* At(long i) { return m_triangles[static_cast<std::size_t>(i)].get(); }
    TriangleTree& GetTree() { return m_tree; }
    TriangleFinder& GetFinder() { return m_finder; }

    /// `unsure`, `nowhere`, or the number of the triangle and the place; of what is sure also that the tree says so.
    std::string Find(double x, double y, long mostSteps = 100) {
        TriangleHit hit;
        const QnGeTINNode node(x, y);
        if (!m_finder.Find(node, {m_triangles.empty() ? nullptr : At(0), mostSteps}, m_range, hit)) {
            return "unsure";
        }
        const TinPlace byTree = AskTree(node);
        EXPECT_EQ(hit.triangle, byTree.triangle) << x << ',' << y;
        EXPECT_EQ(hit.place, byTree.place) << x << ',' << y;
        return Text(hit.triangle, hit.place);
    }

    /// The candidates in the tree's order, without work on its lists.
    TinPlace AskTree(const QnGeTINNode& node) {
        QnDynArray<QnGeExtent2d*> boxes;
        m_tree.HitTest(node, boxes);
        for (long i = 0; i < boxes.GetLength(); ++i) {
            TinPlace found;
            if (EndsSearch(node, static_cast<QnGeTINTriangle*>(boxes.GetAt(i)), found)) {
                return found;
            }
        }
        return {};
    }

private:
    std::string Text(const QnGeTINTriangle* t, int place) {
        for (std::size_t i = 0; i < m_triangles.size(); ++i) {
            if (m_triangles[i].get() == t) {
                return std::to_string(i) + " place " + std::to_string(place);
            }
        }
        return "nowhere";
    }

    static void Join(QnGeTINTriangle& t, QnGeTINTriangle& u) {
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j) {
                if (t.Node[i] == u.Node[(j + 1) % 3] && t.Node[(i + 1) % 3] == u.Node[j]) {
                    t.NearTrg[i] = &u;
                    u.NearTrg[j] = &t;
                }
            }
        }
    }

    std::vector<std::unique_ptr<QnGeTINNode>> m_nodes;
    std::vector<std::unique_ptr<QnGeTINTriangle>> m_triangles;
    QnGeQuadTree2d m_root;
    TriangleTree m_tree{m_root};
    TriangleFinder m_finder;
    qn_detail::HullRing m_ring;
    QnGeExtent2d m_range;
};

/// Two triangles beside the edge from (0, 0) to (10, 0): 0 above it, where it is edge 0, and 1 below, where it is too.
/// The box of each meets the centre lines of the tree.
void MakeKite(Field& field, bool isUpperFirst = true) {
    field.AddNodes({{0, 0}, {10, 0}, {5, 8}, {5, -8}});
    field.AddTriangle(0, 1, 2);
    field.AddTriangle(1, 0, 3);
    if (isUpperFirst) {
        field.Finish({0, 1}, {0, 3, 1, 2});
    } else {
        field.Finish({1, 0}, {0, 3, 1, 2});
    }
}

/// A row of squares along the x axis, each in two triangles.
void MakeRow(Field& field, long squares) {
    for (long i = 0; i <= squares; ++i) {
        field.AddNode(static_cast<double>(i), -1);
        field.AddNode(static_cast<double>(i), 1);
    }
    for (long i = 0; i < squares; ++i) {
        field.AddTriangle(2 * i, 2 * i + 2, 2 * i + 1);
        field.AddTriangle(2 * i + 2, 2 * i + 3, 2 * i + 1);
    }
}

}  // namespace

// ---- what is sure ----------------------------------------------------------------------------------

TEST(TriangleFinder, IsSureOfANodeClearOfAllEdges) {
    Field field;
    MakeKite(field);
    EXPECT_EQ(field.Find(5, 3), "0 place 0");
    EXPECT_EQ(field.Find(5, -3), "1 place 0");
    EXPECT_EQ(field.Find(2, 0.01), "0 place 0");
    EXPECT_EQ(field.Find(2, -0.01), "1 place 0");
}

TEST(TriangleFinder, IsSureThatANodeBeyondTheHullIsNowhere) {
    Field field;
    MakeKite(field);
    EXPECT_EQ(field.Find(0, 5), "nowhere");
    EXPECT_EQ(field.Find(40, -40), "nowhere");
    EXPECT_EQ(field.Find(1e6, 1e9), "nowhere");
    EXPECT_EQ(field.Find(5, 8.1), "nowhere");
}

TEST(TriangleFinder, IsSureThatANodeOnAHullEdgeIsNowhere) {
    Field field;
    field.AddNodes({{0, 0}, {10, 0}, {0, 10}, {10, 10}});
    field.AddTriangle(0, 1, 2);
    field.AddTriangle(1, 3, 2);
    field.Finish({0, 1}, {0, 1, 3, 2});
    EXPECT_EQ(field.Find(5, 0), "nowhere");
    EXPECT_EQ(field.Find(3, 1e-7), "nowhere");
    EXPECT_EQ(field.Find(3, -1e-7), "nowhere");
    EXPECT_EQ(field.Find(10, 5), "nowhere");
    EXPECT_EQ(field.Find(5, 5), "0 place 2") << "the diagonal is no hull edge";
}

TEST(TriangleFinder, GivesANodeOnAnEdgeToTheTriangleThatCameFirst) {
    for (const bool isUpperFirst : {true, false}) {
        Field field;
        MakeKite(field, isUpperFirst);
        const std::string first = isUpperFirst ? "0 place 1" : "1 place 1";
        EXPECT_EQ(field.Find(4, 0), first);
        EXPECT_EQ(field.Find(4, 1e-7), first);
        EXPECT_EQ(field.Find(4, -1e-7), first);
        // A turn is an area by the distance from the edge's start: near the start of one, the other alone has it.
        EXPECT_EQ(field.Find(9, 5e-7), "0 place 1");
        EXPECT_EQ(field.Find(1, -5e-7), "1 place 1");
    }
}

TEST(TriangleFinder, GivesANodeOnAnEdgeToTheTriangleOfTheDeeperCell) {
    for (const bool isDeeperFirst : {true, false}) {
        Field field;
        field.AddNodes({{10, 10}, {20, 15}, {10, 20}, {-5, 15}});
        field.AddTriangle(0, 1, 2);  // in the right upper quarter
        field.AddTriangle(0, 2, 3);  // on the centre line of the root
        field.AddNode(10, -30);
        field.AddTriangle(0, 4, 1);
        if (isDeeperFirst) {
            field.Finish({0, 1, 2}, {3, 4, 1, 2});
        } else {
            field.Finish({2, 1, 0}, {3, 4, 1, 2});
        }
        EXPECT_EQ(field.Find(10, 15), "0 place 3");
        EXPECT_EQ(field.Find(10 + 1e-7, 14), "0 place 3");
        EXPECT_EQ(field.Find(10 - 1e-7, 14), "0 place 3");
    }
}

TEST(TriangleFinder, WalksAsFarAsItIsTold) {
    constexpr long SQUARES = 40;
    Field field;
    MakeRow(field, SQUARES);
    for (long i = 0; i < 2 * SQUARES; ++i) {
        field.GetTree().Insert(field.At(i));
        field.GetFinder().LearnTriangle(*field.At(i));
    }
    EXPECT_EQ(field.Find(0.25, 0), "0 place 0");
    EXPECT_EQ(field.Find(30.25, 0), "60 place 0");
    EXPECT_EQ(field.Find(30.25, 0, 61), "60 place 0") << "the first is a step too";
    EXPECT_EQ(field.Find(30.25, 0, 60), "unsure");
    EXPECT_EQ(field.Find(0.25, 0, 1), "0 place 0");
    EXPECT_EQ(field.Find(0.25, 0, 0), "unsure");
}

// ---- what is left to the tree ----------------------------------------------------------------------

TEST(TriangleFinder, IsUnsureWithoutAStart) {
    TriangleFinder finder;
    TriangleHit hit;
    EXPECT_FALSE(finder.Find({1, 1}, {}, {0, 1, 0, 1}, hit));
    EXPECT_FALSE(finder.Find({1, 1}, {nullptr, 100}, {0, 1, 0, 1}, hit));
}

TEST(TriangleFinder, IsUnsureBeforeItHasLearnedAnything) {
    Field field;
    field.AddNodes({{0, 0}, {10, 0}, {5, 8}});
    field.AddTriangle(0, 1, 2);
    field.GetTree().Insert(field.At(0));
    EXPECT_EQ(field.Find(5, 3), "unsure");
}

TEST(TriangleFinder, IsUnsureAtNodes) {
    Field field;
    MakeKite(field);
    for (const double by : {0.0, 1e-7, 1e-6, 3e-6, 1e-5}) {
        EXPECT_EQ(field.Find(by, 0), "unsure") << by;
        EXPECT_EQ(field.Find(10 - by, 0), "unsure") << by;
    }
}

TEST(TriangleFinder, IsUnsureForGoodAfterAnEdgeOfEightTolerances) {
    for (const double length : {7.9e-6, 8.1e-6}) {
        Field field;
        MakeKite(field);
        field.LearnStray({{20, 0}, {30, 0}, {20, length}});
        EXPECT_EQ(field.Find(5, 3), length < 8e-6 ? "unsure" : "0 place 0");
    }
}

TEST(TriangleFinder, IsUnsureForGoodAfterATriangleThatRunsClockwiseOrIsFlat) {
    for (const double y : {-1.0, -1e-9, 0.0, 1e-13}) {
        Field field;
        MakeKite(field);
        EXPECT_EQ(field.Find(5, 3), "0 place 0");
        field.LearnStray({{20, 0}, {30, 0}, {25, y}});
        EXPECT_EQ(field.Find(5, 3), "unsure") << y;
    }
}

// On the line of a hull edge of 1e-4 can mean a good part of a unit beside it, ten units away.
TEST(TriangleFinder, ShortHullEdgeOfALongTriangleKeepsNodesAwayFromAllEdges) {
    Field field;
    field.AddNodes({{0, 0}, {10, 0}, {5, 8}, {20, 0}, {20, 1e-4}});
    field.AddTriangle(0, 1, 2);
    field.AddTriangle(1, 3, 4);
    field.AddTriangle(1, 4, 2);
    field.Finish({0, 1, 2}, {0, 1, 3, 4, 2});
    EXPECT_EQ(field.Find(5, 3), "0 place 0");
    EXPECT_EQ(field.Find(5, 1), "unsure");
    EXPECT_EQ(field.Find(5, -3), "nowhere");
}

TEST(TriangleFinder, IsUnsureForGoodAfterAHullThatTurnsBack) {
    Field field;
    field.AddNodes({{0, 0}, {10, 0}, {5, 8}, {4, 0}});
    field.AddTriangle(0, 1, 2);
    field.Finish({0}, {0, 1, 3, 2});  // from (10, 0) back to (4, 0) on the same line
    EXPECT_EQ(field.Find(5, 3), "unsure");
}

TEST(TriangleFinder, HullThatTurnsRightByLittleKeepsNodesAwayFromEdges) {
    for (const bool isToTheRight : {false, true}) {
        Field field;
        field.AddNodes({{0, 0}, {5, isToTheRight ? 1e-5 : -1e-5}, {10, 0}, {5, 8}});
        field.AddTriangle(0, 1, 3);
        field.AddTriangle(1, 2, 3);
        field.Finish({0, 1}, {0, 1, 2, 3});
        EXPECT_EQ(field.Find(4, 3), "0 place 0");
        EXPECT_EQ(field.Find(2, 1e-3), isToTheRight ? "unsure" : "0 place 0");
        EXPECT_EQ(field.Find(5, -3), "nowhere");
    }
}

TEST(TriangleFinder, IsUnsureUnderAnotherTolerance) {
    Field field;
    MakeKite(field);
    for (const double tolerance : {1e-9, 1e-3, 0.0, -1e-6, std::numeric_limits<double>::quiet_NaN()}) {
        const QnPushVar<double> push(g_distZero, tolerance);
        EXPECT_EQ(field.Find(5, 3), "unsure") << tolerance;
    }
    EXPECT_EQ(field.Find(5, 3), "0 place 0");
    {
        const QnPushVar<double> push(g_distZero, 1e-3);
        field.GetFinder().LearnTriangle(*field.At(0));
        EXPECT_EQ(field.Find(5, 3), "unsure") << "learned under two";
    }
    EXPECT_EQ(field.Find(5, 3), "unsure");
}

TEST(TriangleFinder, IsUnsureWhereTheTriangleIsNotInTheTree) {
    Field field;
    MakeKite(field);
    field.GetTree().Delete(field.At(1));
    EXPECT_EQ(field.Find(5, -3), "unsure");
    EXPECT_EQ(field.Find(4, 0), "unsure");
    EXPECT_EQ(field.Find(5, 3), "0 place 0");
}

TEST(TriangleFinder, IsUnsureAtPlacesThatAreNoNumbers) {
    Field field;
    MakeKite(field);
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(field.Find(none, none), "unsure");
    EXPECT_EQ(field.Find(none, 1), "unsure");
    EXPECT_EQ(field.Find(5, none), "unsure");
}

// ---- long rows -------------------------------------------------------------------------------------

// So many steps that the finder keeps where it came to, and begins the next walk there.
TEST(TriangleFinder, AnswersTheSameFromKeptStarts) {
    constexpr long SQUARES = 600;
    Field field(1000.0);
    MakeRow(field, SQUARES);
    for (long i = 0; i < 2 * SQUARES; ++i) {
        field.GetTree().Insert(field.At(i));
        field.GetFinder().LearnTriangle(*field.At(i));
    }
    field.GetFinder().LearnSize(qn_detail::HullRing(), {0, SQUARES, -1, 1}, 2 * SQUARES + 2);
    RandomSource random(BaseSeed());
    for (int i = 0; i < 2000; ++i) {
        const long square = random.Long(0, SQUARES - 1);
        const double x = static_cast<double>(square);
        EXPECT_EQ(field.Find(x + 0.25, 0, 5000), std::to_string(2 * square) + " place 0");
        EXPECT_EQ(field.Find(x + 0.75, 0, 5000), std::to_string(2 * square + 1) + " place 0");
        EXPECT_EQ(field.Find(x + 0.5, 3, 5000), "nowhere");
        EXPECT_EQ(field.Find(x + 0.5, 0, 5000), std::to_string(2 * square) + " place 2");
    }
}

TEST(TriangleFinder, WhateverItIsSureOfIsTheAnswerOfTheTree) {
    for (const bool isUpperFirst : {true, false}) {
        Field field;
        MakeKite(field, isUpperFirst);
        RandomSource random(BaseSeed());
        long sure = 0;
        constexpr int NUMBER = 20000;
        for (int i = 0; i < NUMBER; ++i) {
            const double by = std::pow(10.0, random.Double(-8, 1));
            const long node = random.Long(0, 3);
            const double t = random.Double(-0.5, 1.5);
            const QnGePoint& a = *field.Node(node);
            const QnGePoint& b = *field.Node((node + 1) % 4);
            const double x = a.x + t * (b.x - a.x) + random.Double(-by, by);
            const double y = a.y + t * (b.y - a.y) + random.Double(-by, by);
            sure += field.Find(x, y) != "unsure" ? 1 : 0;
        }
        EXPECT_GT(sure, NUMBER / 2);
    }
}
