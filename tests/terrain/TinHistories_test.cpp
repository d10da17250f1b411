// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "TinHistory.h"
#include "TinTesting.h"
#include "frame/QnPushVar.h"
#include "support/RandomSource.h"

// Networks that are built in adverse orders, or are meddled with half way, against the plain one with the same history.

using namespace tin_places;

// ---- orders ----------------------------------------------------------------------------------------

TEST(TinHistories, OrderOfTheNodesMakesNoDifferenceToThePlainForm) {
    ForEachOrder(BaseSeed(), 100);
    ForEachOrder(BaseSeed() + 1, 700);
}

TEST(TinHistories, FarJumpsOverALargeNetwork) {
    RandomSource random(BaseSeed());
    ExpectSame("spread", Spread(random, 8000, 1000, 1000));
    ExpectSame("between corners", Alternating(Spread(random, 5000, 1000, 1000)));
}

TEST(TinHistories, RowsInOneList) {
    RandomSource random(BaseSeed());
    const Points rows = Rows(3000, 1.0, 2.0);
    ExpectSame("random", Shuffled(random, rows));
    ExpectSame("sorted", rows);
    ExpectSame("alternating", Alternating(rows));
    ExpectSame("turned", Shuffled(random, Turned(rows, 0.5)));
}

// Nodes on nodes are searched for in the list, which gets an index by that; nodes beyond the end of the rows are not,
// and so many changes without a search take the index away.
TEST(TinHistories, RowsWithSearchesForNodesAtNodesBetween) {
    RandomSource random(BaseSeed());
    const Points rows = Rows(3000, 1.0, 2.0);
    Points points(rows.begin(), rows.begin() + 150);
    const auto searchAgain = [&](int number, double off) {
        const long known = static_cast<long>(points.size()) - 1;
        for (int i = 0; i < number; ++i) {
            const QnGePoint p = points[static_cast<std::size_t>(random.Long(0, known))];
            points.emplace_back(p.x + off * random.Int(-2, 2), p.y, i);
        }
    };
    searchAgain(12, 0.0);
    points.insert(points.end(), rows.begin() + 150, rows.begin() + 1000);
    searchAgain(30, 3e-7);
    points.insert(points.end(), rows.begin() + 1000, rows.end());
    searchAgain(500, 0.0);
    searchAgain(20, 4e-7);
    ExpectSame("rows", points);
}

TEST(TinHistories, RowsOfWhichAlmostAllNodesAreDuplicates) {
    RandomSource random(BaseSeed());
    const Points rows = Rows(400, 1.0, 2.0);
    Points points = rows;  // three on one line at the beginning would be one node too few
    for (int i = 1; i < 8; ++i) {
        const Points shuffled = Shuffled(random, rows);
        points.insert(points.end(), shuffled.begin(), shuffled.end());
    }
    TinPair tin(0, 200, 0, 2);
    tin.Insert(points);
    EXPECT_EQ(tin.graph.NodeList.GetLength(), 400);
    for (const QnGeTINNode* node : tree_checks::Elements<QnGeTINNode*>(tin.graph.NodeList)) {
        ASSERT_EQ(node->count, 8);
    }
}

// ---- meddling half way -----------------------------------------------------------------------------

TEST(TinHistories, GoesOnAfterTheTreeWasSaidToHaveChanged) {
    ForEachOrder(BaseSeed() + 2, 250, [](TinPair& tin) { tin.graph.TreeChanged(); });
}

TEST(TinHistories, GoesOnUnderAnotherTolerance) {
    RandomSource random(BaseSeed() + 3);
    for (const double tolerance : {1e-9, 1e-7, 1e-4, 0.01}) {
        SCOPED_TRACE(tolerance);
        for (const NamedPlaces& network : Networks(random, 250)) {
            const Points some = Shuffled(random, network.points);
            const QnGeExtent2d all = RangeOf(some);
            const auto middle = some.begin() + static_cast<std::ptrdiff_t>(some.size() / 3);
            for (const bool isBack : {false, true}) {
                SCOPED_TRACE(network.name);
                TinPair tin(all.x.min, all.x.max, all.y.min, all.y.max);
                tin.rules.links = false;
                tin.Insert(Points(some.begin(), middle));
                {
                    const QnPushVar<double> push(g_distZero, tolerance);
                    tin.Insert(Points(middle, isBack ? middle + 40 : some.end()));
                }
                tin.Insert(isBack ? Points(middle + 40, some.end()) : Points(some.begin(), middle));
            }
        }
    }
}

TEST(TinHistories, GoesOnAfterTheRangeWasSetAnew) {
    RandomSource random(BaseSeed() + 9);
    for (const NamedPlaces& network : Networks(random, 200)) {
        const QnGeExtent2d all = RangeOf(network.points);
        ExpectSame(network.name, Shuffled(random, network.points), [&all](TinPair& tin) {
            tin.SetRange(all.x.min - 1, all.x.max + 2, all.y.min - 3, all.y.max + 0.5);
        });
    }
}

TEST(TinHistories, TriangleThatGoesOverTheStackByHandIsTheLastInItsList) {
    ForEachOrder(BaseSeed() + 10, 250, [](TinPair& tin) {
        for (long i = 0; i < tin.graph.TrgList.GetLength(); i += 3) {
            tin.graph.PushLOP(tin.graph.TrgList.GetAt(i));
            tin.graph.PopLOP();
            tin.plain.PushLOP(tin.plain.TrgList[static_cast<std::size_t>(i)].get());
            tin.plain.PopLOP();
        }
    });
}

// ---- the line of a hull edge -----------------------------------------------------------------------

TEST(TinHistories, NodeOnAStraightHullOfAThousandEdgesSplitsTheOneUnderIt) {
    RandomSource random(BaseSeed() + 11);
    Points row = {{0, 0}, {1000, 0}, {500, 800}};
    for (int i = 1; i < 1000; ++i) {
        row.emplace_back(i, 0, i);
    }
    std::swap(row[5], row[700]);
    TinPair tin(0, 1000, 0, 800);
    tin.Insert(row);
    ASSERT_EQ(tin.graph.OutEdgeList.GetLength(), 1002);
    for (const double x : {437.5, 0.25, 999.75, 436.5, 500.125}) {
        ASSERT_TRUE(tin.Insert(x, 0.0));
        const std::string ring = RingOf(tin.graph) + ' ' + RingOf(tin.graph);
        const std::string before = PlaceOf(QnGePoint(std::floor(x), 0));
        EXPECT_NE(ring.find(before + ' ' + PlaceOf(QnGePoint(x, 0)) + ' '), std::string::npos) << x;
    }
    EXPECT_EQ(tin.graph.OutEdgeList.GetLength(), 1007);
    // At nodes: no new edges, and the mean of the values there.
    const long nodes = tin.graph.NodeList.GetLength();
    for (const double off : {0.0, 5e-7, -5e-7, 9e-7}) {
        for (const int x : {0, 1, 333, 999, 1000}) {
            ASSERT_TRUE(tin.Insert(x + off, 0.0, 7.0));
            ASSERT_TRUE(tin.Insert(x, off, 7.0));
        }
    }
    EXPECT_EQ(tin.graph.NodeList.GetLength(), nodes);
    EXPECT_EQ(tin.graph.OutEdgeList.GetLength(), 1007);
}

TEST(TinHistories, NodesAboutTheEndsOfAHullEdge) {
    struct Edge {
        QnGePoint a, b, apex;
    };
    const std::vector<Edge> edges = {
        {{0, 0}, {10, 0}, {5, 8}},
        {{0, 0}, {6, 8}, {-8, 6}},
        {{0, 0}, {2e-5, 0}, {1e-5, 5}},
        {{0, 0}, {3e-6, 4e-6}, {-8, 6}},
        {{5e5, 4e6}, {5e5 + 300, 4e6 - 400}, {5e5 + 500, 4e6}},
        {{-2, 7}, {-2, -7}, {3, 1}},
    };
    for (std::size_t e = 0; e < edges.size(); ++e) {
        const Edge& edge = edges[e];
        const double length = GetDistance2d(edge.a, edge.b);
        const double ux = (edge.b.x - edge.a.x) / length;
        const double uy = (edge.b.y - edge.a.y) / length;
        for (int along = -28; along <= 28; ++along) {
            for (int across = -16; across <= 16; ++across) {
                const double s = along * 2.5e-7;
                const double t = across * 2.5e-7;
                const QnGePoint& end = (along + across) % 2 == 0 ? edge.a : edge.b;
                TinPair tin(end.x - 1000, end.x + 1000, end.y - 1000, end.y + 1000);
                tin.rules.links = false;
                tin.Insert({edge.a, edge.b, edge.apex});
                tin.Insert(end.x + s * ux - t * uy, end.y + s * uy + t * ux, 3.0);
                ASSERT_EQ(CompareTin(tin.graph, tin.plain), "") << "edge " << e << ' ' << along << ',' << across;
            }
        }
    }
}

// The same on a hull of many edges, where blocks of them are passed over.
TEST(TinHistories, NodesAboutTheNodesOfALongHull) {
    for (unsigned seed = BaseSeed(); seed < BaseSeed() + 6; ++seed) {
        RandomSource random(seed);
        const bool isRound = seed % 2 == 0;
        Points points = isRound ? Round(400, 100.0) : Rows(400, 1.0, 2.0);
        if (seed % 3 == 0) {
            points = Turned(points, 0.3);
        }
        TinPair tin(-500, 500, -500, 500);
        tin.rules.links = false;
        tin.Insert(Shuffled(random, points));
        for (int i = 0; i < 400; ++i) {
            const QnGePoint& p = points[static_cast<std::size_t>(random.Int(0, 399))];
            tin.Insert(p.x + random.Int(-24, 24) * 2.5e-7, p.y + random.Int(-24, 24) * 2.5e-7, i);
        }
        ASSERT_EQ(CompareTin(tin.graph, tin.plain), "") << "seed " << seed;
    }
}
