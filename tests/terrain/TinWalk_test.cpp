// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "TinPlaces.h"
#include "TinTesting.h"
#include "frame/QnPushVar.h"
#include "support/RandomSource.h"
#include "support/TinSearch.h"

// A network finds the triangle of a node by walking from neighbour to neighbour where it can. Whatever node it is asked
// for, it answers as a search in the tree of its triangles alone.

namespace {

using namespace tin_places;
using Extents = std::vector<QnGeExtent2d>;

// ---- nodes to ask for ------------------------------------------------------------------------------

/// Distances about the tolerance and about what is clear of it.
double Little(RandomSource& random) {
    constexpr double STEPS[] = {0.0, 1e-7, 1e-6, 3e-6, 1e-5};
    const double step = STEPS[random.Int(0, 4)] * (random.Coin() ? 1 : random.Int(1, 100));
    return random.Coin() ? step : -step;
}

QnGePoint Beside(const QnGePoint& a, const QnGePoint& b, double t, double left) {
    const double length = GetDistance2d(a, b);
    const double dx = length > 0.0 ? (b.x - a.x) / length : 1.0;
    const double dy = length > 0.0 ? (b.y - a.y) / length : 0.0;
    return QnGePoint(a.x + t * (b.x - a.x) - left * dy, a.y + t * (b.y - a.y) + left * dx);
}

/// Nodes in all positions to a network that may matter.
class Asker {
public:
    Asker(const TinPair& tin, RandomSource& random)
        : m_random(random),
          m_triangles(tree_checks::Elements<QnGeTINTriangle*>(tin.graph.TrgList)),
          m_ring(tree_checks::Elements<QnGeTINOutEdge*>(tin.graph.OutEdgeList)),
          m_range(tin.graph.Range),
          m_root(tin.plain.TrgTree) {}

    QnGePoint Next() {
        const QnGeTINTriangle& t = *m_triangles[Index(m_triangles.size())];
        const int i = m_random.Int(0, 2);
        const QnGePoint& a = *t.Node[i];
        const QnGePoint& b = *t.Node[(i + 1) % 3];
        switch (m_random.Int(0, 7)) {
            case 0:
                return Within(t);
            case 1:
                return Beside(a, b, m_random.Coin() ? m_random.Double(0, 1) : 0.5, Little(m_random));
            case 2:
                return QnGePoint(a.x + Little(m_random), a.y + Little(m_random));
            case 3:
                return BesideHull(m_random.Double(-0.5, 1.5), Little(m_random));
            case 4:
                return BesideHull(m_random.Double(0, 1), -m_range.GetLength() * std::pow(10, m_random.Double(-8, 0)));
            case 5:
                return Anywhere(m_random.Coin() ? 1.5 : 1000.0);
            case 6:
                return OnCentreLine();
            default:
                return WhereEdgeMeetsCentreLine(a, b);
        }
    }

private:
    std::size_t Index(std::size_t length) {
        return static_cast<std::size_t>(m_random.Long(0, static_cast<long>(length) - 1));
    }

    QnGePoint Within(const QnGeTINTriangle& t) {
        const double u = m_random.Double(0, 1);
        const double v = m_random.Double(0, 1 - u);
        return QnGePoint(t.Node[0]->x + u * (t.Node[1]->x - t.Node[0]->x) + v * (t.Node[2]->x - t.Node[0]->x),
                         t.Node[0]->y + u * (t.Node[1]->y - t.Node[0]->y) + v * (t.Node[2]->y - t.Node[0]->y));
    }

    QnGePoint BesideHull(double t, double left) {
        const std::size_t i = Index(m_ring.size());
        return Beside(*m_ring[i]->Node, *m_ring[(i + 1) % m_ring.size()]->Node, t, left);
    }

    QnGePoint Anywhere(double times) {
        const double x = (m_range.x.min + m_range.x.max) / 2 + m_random.Double(-0.5, 0.5) * times * m_range.GetLength();
        const double y = (m_range.y.min + m_range.y.max) / 2 + m_random.Double(-0.5, 0.5) * times * m_range.GetHeight();
        return QnGePoint(x, y);
    }

    const PlainQuadTree& AnyCell() {
        const PlainQuadTree* cell = &m_root;
        while (!m_random.OneIn(4)) {
            const PlainQuadTree* const child = cell->Child[m_random.Int(0, 3)].get();
            cell = child != nullptr ? child : cell;
        }
        return *cell;
    }

    QnGePoint OnCentreLine() {
        const PlainQuadTree& cell = AnyCell();
        const double x = m_random.Double(cell.Range.x.min, cell.Range.x.max);
        const double y = m_random.Double(cell.Range.y.min, cell.Range.y.max);
        switch (m_random.Int(0, 2)) {
            case 0:
                return QnGePoint(cell.CenterX + Little(m_random), y);
            case 1:
                return QnGePoint(x, cell.CenterY + Little(m_random));
            default:
                return QnGePoint(cell.CenterX + Little(m_random), cell.CenterY + Little(m_random));
        }
    }

    QnGePoint WhereEdgeMeetsCentreLine(const QnGePoint& a, const QnGePoint& b) {
        const PlainQuadTree& cell = AnyCell();
        const double t = m_random.Coin() ? (cell.CenterX - a.x) / (b.x - a.x) : (cell.CenterY - a.y) / (b.y - a.y);
        return Beside(a, b, t > 0.0 && t < 1.0 ? t : 0.75, Little(m_random));
    }

    RandomSource& m_random;
    std::vector<QnGeTINTriangle*> m_triangles;
    std::vector<QnGeTINOutEdge*> m_ring;
    QnGeExtent2d m_range;
    const PlainQuadTree& m_root;
};

// ---- asking ----------------------------------------------------------------------------------------

/// The numbers of a network's triangles and of the plain one's.
class Numbers {
public:
    explicit Numbers(const TinPair& tin) {
        m_numbers.emplace(nullptr, -1);
        for (const QnGeTINTriangle* t : tree_checks::Elements<QnGeTINTriangle*>(tin.graph.TrgList)) {
            m_numbers.emplace(t, static_cast<long>(m_numbers.size()) - 1);
        }
        for (std::size_t i = 0; i < tin.plain.TrgList.size(); ++i) {
            m_numbers.emplace(tin.plain.TrgList[i].get(), static_cast<long>(i));
        }
    }
    std::string TextOf(const void* triangle, int place) const {
        return "triangle " + std::to_string(m_numbers.at(triangle)) + ", place " + std::to_string(place);
    }

private:
    std::unordered_map<const void*, long> m_numbers;
};

std::string Found(TinPair& tin, const Numbers& numbers, const QnGePoint& p) {
    QnGeTINNode node(p);
    QnGeTINTriangle* triangle = nullptr;
    const int place = tin.graph.HitTest(&node, triangle);
    return numbers.TextOf(triangle, place);
}

std::string FoundByPlain(const TinPair& tin, const Numbers& numbers, const QnGePoint& p) {
    const PlainNode node(p.x, p.y, p.z);
    PlainTrg* triangle = nullptr;
    const int place = tin.plain.HitTest(node, triangle);
    return numbers.TextOf(triangle, place);
}

std::string FoundByTree(TinPair& tin, const Numbers& numbers, const QnGePoint& p) {
    const TinPlace found = SearchTree(tin.graph.TrgTree, QnGeTINNode(p));
    return numbers.TextOf(found.triangle, found.place);
}

/// First against the plain network alone, for to look into the lists of the tree changes what they are made of.
void ExpectAnswersOfTheTree(TinPair& tin, unsigned seed, int number) {
    RandomSource random(seed);
    const Numbers numbers(tin);
    Asker asker(tin, random);
    Points asked;
    for (int i = 0; i < number; ++i) {
        asked.push_back(asker.Next());
        ASSERT_EQ(Found(tin, numbers, asked.back()), FoundByPlain(tin, numbers, asked.back()))
            << "at " << TextOf(Points{asked.back()}) << " seed " << seed;
    }
    for (const QnGePoint& p : asked) {
        ASSERT_EQ(FoundByTree(tin, numbers, p), FoundByPlain(tin, numbers, p))
            << "at " << TextOf(Points{p}) << " seed " << seed;
        ASSERT_EQ(Found(tin, numbers, p), FoundByPlain(tin, numbers, p))
            << "with list nodes, at " << TextOf(Points{p}) << " seed " << seed;
    }
}

void Build(TinPair& tin, const Points& points) {
    const QnGeExtent2d all = RangeOf(points);
    tin.SetRange(all.x.min, all.x.max, all.y.min, all.y.max);
    tin.Insert(points);
}

/// Both ways of building, small and larger.
void ExpectAnswersOfTheTree(const char* name, const Points& points, bool isWhole = false) {
    SCOPED_TRACE(name);
    for (const bool isMade : {false, true}) {
        TinPair tin;
        tin.rules.links = isWhole;
        if (isMade) {
            tin.MakeTIN(points);
        } else {
            Build(tin, points);
        }
        ExpectAnswersOfTheTree(tin, BaseSeed() + static_cast<unsigned>(points.size()), 1500);
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

}  // namespace

// ---- networks of many kinds ------------------------------------------------------------------------

TEST(TinWalk, AnswersAsTheTreeDoes) {
    RandomSource random(BaseSeed());
    for (const int n : {4, 12, 60, 400}) {
        SCOPED_TRACE(n);
        const int side = static_cast<int>(std::sqrt(n));
        ExpectAnswersOfTheTree("spread", Spread(random, n, 1000, 1000), true);
        ExpectAnswersOfTheTree("spread in a strip", Spread(random, n, 10000, 3));
        ExpectAnswersOfTheTree("grid", Shuffled(random, Grid(side, side, 1.0)), true);
        ExpectAnswersOfTheTree("grid of tens", Grid(side, side, 10.0), true);
        ExpectAnswersOfTheTree("turned grid", Shuffled(random, Turned(Grid(side, side, 1.0), 0.3)));
        ExpectAnswersOfTheTree("grid turned by an eighth", Shuffled(random, Turned(Grid(side, side, 8), QN_PI / 4)));
        ExpectAnswersOfTheTree("rows", Shuffled(random, Rows(n, 1.0, 1.0)), true);
        ExpectAnswersOfTheTree("rows far apart", Shuffled(random, Rows(n, 1.0, 300.0)), true);
        ExpectAnswersOfTheTree("turned rows", Shuffled(random, Turned(Rows(n, 1.0, 2.0), 1.1)));
        ExpectAnswersOfTheTree("round", Shuffled(random, Round(n, 100.0)));
        ExpectAnswersOfTheTree("clusters", Clustered(random, n));
        ExpectAnswersOfTheTree("spiral", Spiral(n, 3.0));
    }
}

TEST(TinWalk, AnswersAsTheTreeAtAllSizesAndFarOff) {
    RandomSource random(BaseSeed());
    const Points spread = Spread(random, 150, 1.0, 1.0);
    for (const double size : {1e-5, 1e-4, 1e-3, 0.1, 1e6, 1e9, 1e12, 1e100}) {
        Points scaled;
        for (const QnGePoint& p : spread) {
            scaled.emplace_back(size * p.x, size * p.y, p.z);
        }
        SCOPED_TRACE(size);
        ExpectAnswersOfTheTree("spread", scaled);
    }
    for (const double far : {1e4, 5e5, 4e6, 1e9}) {
        SCOPED_TRACE(far);
        ExpectAnswersOfTheTree("spread", Moved(Spread(random, 150, 100, 100), far, far / 3));
        ExpectAnswersOfTheTree("grid", Moved(Shuffled(random, Grid(12, 12, 10)), -far, far));
        ExpectAnswersOfTheTree("turned grid", Moved(Shuffled(random, Turned(Grid(12, 12, 10), 0.7)), far, -far));
        ExpectAnswersOfTheTree("round", Moved(Round(150, 500), far, far));
    }
}

// Two nodes nearer than a walk can tell; nodes hardly inside a long hull edge, with slivers that run clockwise; and
// nodes on the straight sides of the hull but for a few tolerances, so that it turns to the right.
TEST(TinWalk, AnswersAsTheTreeWhereNothingIsSureAboutTheTriangles) {
    RandomSource random(BaseSeed());
    for (int run = 0; run < 12; ++run) {
        SCOPED_TRACE(run);
        Points nearTogether = Spread(random, 60, 10, 10);
        Points alongHull = {{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}};
        Points wavering = {{500, 500}};
        for (int i = 0; i < 30; ++i) {
            const QnGePoint& p = nearTogether[static_cast<std::size_t>(i)];
            nearTogether.emplace_back(p.x + random.Int(-5, 5) * 7e-7, p.y + random.Int(-5, 5) * 7e-7);
            alongHull.emplace_back(random.Double(0, 1000), std::pow(10.0, random.Double(-7, 0)));
            wavering.emplace_back(random.Double(0, 1000), random.Int(-3, 3) * 5e-7);
            wavering.emplace_back(1000 + random.Int(-3, 3) * 1e-6, random.Double(0, 1000));
        }
        ExpectAnswersOfTheTree("near together", Shuffled(random, nearTogether));
        ExpectAnswersOfTheTree("along the hull", alongHull);
        ExpectAnswersOfTheTree("wavering hull", Shuffled(random, wavering));
    }
}

// The node at the tip is joined to both ends of an edge a tenth of a tolerance long, over 1000 units.
TEST(TinWalk, AnswersAsTheTreeNextToNeedles) {
    for (const double width : {2e-6, 3.9e-6, 4.1e-6, 1e-5, 1e-4, 1e-2}) {
        SCOPED_TRACE(width);
        ExpectAnswersOfTheTree("needle", {{0, 0}, {0, width}, {1000, 0}, {1000, 1000}, {-10, 500}});
        ExpectAnswersOfTheTree("needles", {{0, 0}, {0, width}, {1000, 5}, {1000, 5 + width}, {500, 10}, {500, -10}});
    }
}

TEST(TinWalk, AnswersAsTheTreeAfterFarJumpsInALargeNetwork) {
    RandomSource random(BaseSeed());
    TinPair spread;
    Build(spread, Alternating(Spread(random, 6000, 1000, 1000)));
    ExpectAnswersOfTheTree(spread, BaseSeed(), 3000);
    TinPair rows;
    Build(rows, Shuffled(random, Rows(3000, 1.0, 2.0)));
    ExpectAnswersOfTheTree(rows, BaseSeed(), 3000);
}

TEST(TinWalk, AnswersAsTheTreeWithoutARange) {
    RandomSource random(BaseSeed());
    TinPair tin;
    tin.rules.treeCells = false;
    tin.Insert(Moved(Spread(random, 200, 100, 100), -50, -50));
    ExpectAnswersOfTheTree(tin, BaseSeed(), 1500);
}

// ---- which of two triangles ------------------------------------------------------------------------

TEST(TinWalk, NodeOnAnEdgeGoesToTheTriangleThatTheTreeHasFirst) {
    // Both boxes touch the centre lines of the range, so both triangles are in the list of its root.
    TinPair tin(-20, 20, -20, 20);
    tin.Insert({{0, 0}, {10, 0}, {5, 8}, {5, -8}});
    ASSERT_EQ(TrianglesOf(tin.graph), "5,8 0,0 10,0 | 5,-8 10,0 0,0");
    QnGeTINTriangle* const upper = tin.graph.TrgList.GetAt(0);
    QnGeTINTriangle* const lower = tin.graph.TrgList.GetAt(1);
    const auto expect = [&tin](double x, double y, const QnGeTINTriangle* triangle, int place) {
        QnGeTINNode node(x, y);
        QnGeTINTriangle* found = nullptr;
        EXPECT_EQ(tin.graph.HitTest(&node, found), place) << x << ',' << y;
        EXPECT_EQ(found, triangle) << x << ',' << y;
    };
    expect(4, 0, upper, 2);
    expect(4, 1e-7, upper, 2);
    expect(4, -1e-7, upper, 2);
    expect(4, 1.0, upper, 0);
    expect(4, -1.0, lower, 0);
    expect(0, 0, nullptr, 0);  // of the edges of `upper` that meet there, one of the hull is asked first
    expect(10, 0, upper, -3);
    tin.graph.PushLOP(upper);
    tin.graph.PopLOP();  // now it is the last in the list
    expect(4, 0, lower, 2);
    expect(4, 1e-7, lower, 2);
    expect(4, -1e-7, lower, 2);
    expect(4, 1.0, upper, 0);
    expect(4, -1.0, lower, 0);
    tin.plain.PushLOP(tin.plain.TrgList[0].get());
    tin.plain.PopLOP();
}

TEST(TinWalk, SmallerCellComesFirstAtAnEdge) {
    // The right triangle lies within the right upper quarter of the range, the left one crosses its centre line.
    TinPair tin(0, 100, 0, 100);
    tin.Insert({{60, 60}, {60, 90}, {80, 75}, {20, 75}});
    const Numbers numbers(tin);
    ASSERT_EQ(tin.graph.TrgList.GetLength(), 2);
    const std::string right = Found(tin, numbers, QnGePoint(65, 75));
    const std::string onEdge = Found(tin, numbers, QnGePoint(60, 75));
    EXPECT_EQ(right.substr(0, right.find(',')), onEdge.substr(0, onEdge.find(',')));
    EXPECT_EQ(right, FoundByPlain(tin, numbers, QnGePoint(65, 75)));
    EXPECT_EQ(onEdge, FoundByPlain(tin, numbers, QnGePoint(60, 75)));
}

// ---- when the tree must be asked -------------------------------------------------------------------

TEST(TinWalk, TriangleOnTheStackIsNotFound) {
    TinPair tin(0, 10, 0, 10);
    tin.Insert({{0, 0}, {10, 0}, {0, 10}, {10, 10}, {3, 4}});
    const Numbers numbers(tin);
    for (std::size_t i = 0; i < tin.plain.TrgList.size(); ++i) {
        QnGeTINTriangle* const t = tin.graph.TrgList.GetAt(static_cast<long>(i));
        const QnGePoint middle((t->Node[0]->x + t->Node[1]->x + t->Node[2]->x) / 3,
                               (t->Node[0]->y + t->Node[1]->y + t->Node[2]->y) / 3);
        const std::string itself = numbers.TextOf(t, 0);
        EXPECT_EQ(Found(tin, numbers, middle), itself);
        tin.graph.PushLOP(t);
        tin.plain.PushLOP(tin.plain.TrgList[i].get());
        EXPECT_EQ(Found(tin, numbers, middle), "triangle -1, place 0");
        ExpectAnswersOfTheTree(tin, BaseSeed(), 200);
        tin.graph.PopLOP();
        tin.plain.PopLOP();
        EXPECT_EQ(Found(tin, numbers, middle), itself);
    }
}

TEST(TinWalk, AnswersUnderTheToleranceOfTheCall) {
    RandomSource random(BaseSeed());
    TinPair tin;
    Build(tin, Spread(random, 150, 100, 100));
    const Numbers numbers(tin);
    Asker asker(tin, random);
    for (int i = 0; i < 4000; ++i) {
        constexpr double TOLERANCES[] = {1e-6, 1e-3, 1e-9, 0.0, 0.5};
        const QnPushVar<double> push(g_distZero, TOLERANCES[i % 5]);
        const QnGePoint p = asker.Next();
        ASSERT_EQ(Found(tin, numbers, p), FoundByPlain(tin, numbers, p)) << g_distZero << " at " << TextOf(Points{p});
    }
}

TEST(TinWalk, AnswersAsTheTreeAfterItWasChanged) {
    RandomSource random(BaseSeed());
    const Points points = Spread(random, 200, 100, 100);
    TinPair tin;
    Build(tin, points);
    tin.graph.TreeChanged();
    ExpectAnswersOfTheTree(tin, BaseSeed(), 1000);
    // A triangle that a caller has taken out is in nobody's way.
    QnGeTINTriangle* const taken = tin.graph.TrgList.GetAt(7);
    ASSERT_TRUE(tin.graph.TrgTree.Delete(taken, false));
    tin.plain.TrgTree.Delete(tin.plain.TrgList[7].get());
    ExpectAnswersOfTheTree(tin, BaseSeed(), 1000);
    tin.graph.TrgTree.Insert(taken);
    tin.plain.TrgTree.Insert(tin.plain.TrgList[7].get());
    ExpectAnswersOfTheTree(tin, BaseSeed(), 1000);
}

TEST(TinWalk, CopyFindsNothingInItsEmptyTree) {
    RandomSource random(BaseSeed());
    TinPair tin;
    Build(tin, Spread(random, 100, 100, 100));
    const Numbers numbers(tin);
    OpenTin copy(tin.graph);
    OpenTin assigned;
    assigned = tin.graph;
    Asker asker(tin, random);
    for (int i = 0; i < 500; ++i) {
        QnGeTINNode node(asker.Next());
        for (OpenTin* graph : {&copy, &assigned}) {
            QnGeTINTriangle* triangle = tin.graph.TrgList.GetAt(0);
            ASSERT_EQ(graph->HitTest(&node, triangle), 0);
            ASSERT_EQ(triangle, nullptr);
        }
        ASSERT_EQ(Found(tin, numbers, node), FoundByPlain(tin, numbers, node)) << TextOf(Points{node});
    }
    for (OpenTin* graph : {&copy, &assigned}) {
        while (graph->NodeList.TakeOffHead() != nullptr) {}
        while (graph->TrgList.TakeOffHead() != nullptr) {}
        while (graph->OutEdgeList.TakeOffHead() != nullptr) {}
    }
}
