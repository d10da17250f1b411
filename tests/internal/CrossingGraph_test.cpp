// SPDX-License-Identifier: Apache-2.0
//
// The crossing graph against its plain form: the double loop over all edges, one node for every vertex, lists of nodes.
// Nodes, their order, their marks and the rings must be equal bit for bit.
#include "regions/detail/CrossingGraph.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <sstream>

#include "frame/QnPushVar.h"
#include "regions/QnGePolygon2d.h"
#include "support/PolygonPairs.h"
#include "support/reference/PtGraph.h"

namespace {

using polygon_pairs::MakeOutline;
using polygon_pairs::Ring;
using qn_detail::CrossingGraph;
using qn_detail::PtGraph;
using qn_detail::PtNode;

std::string ToText(const Ring& ring) {
    std::ostringstream text;
    text.precision(17);
    text << "mline";
    for (const QnGePoint& p : ring) {
        text << ' ' << p.x << ',' << p.y << ',' << p.z;
    }
    text << " close\n";
    return text.str();
}

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// "" if the two lists hold the same rings, vertex by vertex.
std::string CompareRings(const QnPDList<QnGeMLine2d>& expected, const QnPDList<QnGePolygon2d>& found) {
    if (expected.GetLength() != found.GetLength()) {
        return "ring counts " + std::to_string(expected.GetLength()) + " and " + std::to_string(found.GetLength());
    }
    for (long k = 0; k < expected.GetLength(); ++k) {
        const QnGeMLine2d& e = *expected.GetAt(k);
        const QnGeMLine2d& f = found.GetAt(k)->Outline();
        if (e.GetVertexNum() != f.GetVertexNum() || !f.IsClosed()) {
            return "ring " + std::to_string(k) + " has " + std::to_string(e.GetVertexNum()) + " and " +
                   std::to_string(f.GetVertexNum()) + " vertices";
        }
        for (long i = 0; i < e.GetVertexNum(); ++i) {
            const QnGePoint& p = e.GetVertex(i);
            const QnGePoint& q = f.GetVertex(i);
            if (!SameBits(p.x, q.x) || !SameBits(p.y, q.y) || !SameBits(p.z, q.z)) {
                return "ring " + std::to_string(k) + " differs at vertex " + std::to_string(i);
            }
        }
    }
    return "";
}

/// "" if the nodes on both outlines are the same in the same order, with the same point, parameters and marks. Nodes on
/// one outline only can start no walk and may be left plain.
std::string CompareNodes(const PtGraph& expected, CrossingGraph& found) {
    qn_detail::PodArray<std::int32_t> order;
    found.GetStarts(order);
    std::set<std::int32_t> seen;
    long at = 0;
    const auto nextShared = [&]() -> std::int32_t {
        for (; at < order.GetLength(); ++at) {
            const CrossingGraph::Node& node = found.GetNodes()[order[at]];
            const bool isOnBoth = node.next[0] != CrossingGraph::NO_LINK && node.next[1] != CrossingGraph::NO_LINK;
            if (isOnBoth && seen.insert(order[at]).second) {
                return order[at++];
            }
        }
        return CrossingGraph::NONE;
    };
    long count = 0;
    for (PtNode* const* entry = expected.GetFirst(); entry != nullptr; entry = expected.GetNext(entry)) {
        const PtNode& e = **entry;
        if (e.nextA == nullptr || e.nextB == nullptr) {
            continue;
        }
        const std::int32_t number = nextShared();
        if (number == CrossingGraph::NONE) {
            return "node " + std::to_string(count) + " is missing";
        }
        const CrossingGraph::Node& f = found.GetNodes()[number];
        const CrossingGraph::Place& place = found.GetPlaces()[number];
        const bool samePlace = SameBits(e.x, place.x) && SameBits(e.y, place.y) && SameBits(e.z, place.z);
        if (!samePlace || !SameBits(e.paA, f.pa[0]) || !SameBits(e.paB, f.pa[1]) || e.GetBits() != f.flags) {
            return "node " + std::to_string(count) + " differs";
        }
        ++count;
    }
    return nextShared() == CrossingGraph::NONE ? "" : "a node too many";
}

std::string Compare(const Ring& a, const Ring& b, bool closed) {
    QnGeMLine2d first = MakeOutline(a);
    QnGeMLine2d second = MakeOutline(b);
    first.SetClosed(closed);
    second.SetClosed(closed);
    for (int kind = 0; kind < 2; ++kind) {
        PtGraph plain;
        CrossingGraph fast(first, second);
        const bool plainFound = plain.Build(first, second);
        const bool fastFound = fast.Build();
        if (plainFound != fastFound) {
            return "found differs";
        }
        std::string difference = CompareNodes(plain, fast);
        if (!difference.empty()) {
            return "after building: " + difference;
        }
        QnPDList<QnGeMLine2d> plainRings;
        QnPDList<QnGePolygon2d> fastRings;
        plain.Trace(kind == 0 ? PtGraph::TraceKind::UNION : PtGraph::TraceKind::INTER, plainRings);
        fast.Trace(kind == 0 ? CrossingGraph::TraceKind::UNION : CrossingGraph::TraceKind::INTER, fastRings);
        difference = CompareRings(plainRings, fastRings);
        if (difference.empty()) {
            difference = CompareNodes(plain, fast);
        }
        if (!difference.empty()) {
            return (kind == 0 ? "union: " : "intersection: ") + difference;
        }
    }
    return "";
}

class CrossingGraphOfKind : public testing::TestWithParam<int> {};

TEST_P(CrossingGraphOfKind, EqualsThePlainGraph) {
    constexpr int CASES = 2500;
    for (int i = 0; i < CASES; ++i) {
        const unsigned seed = BaseSeed() + static_cast<unsigned>(1000 * i + GetParam());
        RandomSource random(seed);
        const polygon_pairs::Pair pair = polygon_pairs::Make(random, GetParam());
        const std::string difference = Compare(pair.a, pair.b, true);
        ASSERT_EQ(difference, "") << pair.kind << ", seed " << seed << '\n' << ToText(pair.a) << ToText(pair.b);
    }
}

INSTANTIATE_TEST_SUITE_P(All, CrossingGraphOfKind, testing::Range(0, polygon_pairs::KIND_COUNT));

TEST(CrossingGraph, EqualsThePlainGraphOnLargerOutlines) {
    for (unsigned i = 0; i < 12; ++i) {
        RandomSource random(BaseSeed() + i);
        const int n = random.Int(200, 1500);
        const Ring a = polygon_pairs::Star(random, n, 0.0, 0.0, 4.0, 5.0);
        const Ring b = i % 3 == 0
                           ? polygon_pairs::Moved(a, 0.25, 0.125)
                           : polygon_pairs::Star(random, random.Int(3, 900), i % 2 == 0 ? 3.0 : 0.1, 0.0, 4.0, 5.2);
        ASSERT_EQ(Compare(a, b, true), "") << "seed " << BaseSeed() + i;
    }
}

TEST(CrossingGraph, EqualsThePlainGraphOnOpenOutlines) {
    for (unsigned i = 0; i < 2000; ++i) {
        RandomSource random(BaseSeed() + i);
        const polygon_pairs::Pair pair = polygon_pairs::Make(random, random.Int(0, polygon_pairs::KIND_COUNT - 1));
        ASSERT_EQ(Compare(pair.a, pair.b, false), "") << pair.kind << '\n' << ToText(pair.a) << ToText(pair.b);
    }
}

TEST(CrossingGraph, EqualsThePlainGraphUnderOtherTolerances) {
    for (const double tolerance : {0.0, 1e-300, 1e-60, 1e-40, 1e-12, 1e-6, 1e-3}) {
        const QnPushVar<double> push(g_fZero, tolerance);
        for (unsigned i = 0; i < 500; ++i) {
            RandomSource random(BaseSeed() + i);
            const polygon_pairs::Pair pair = polygon_pairs::Make(random, random.Int(0, polygon_pairs::KIND_COUNT - 1));
            ASSERT_EQ(Compare(pair.a, pair.b, true), "") << pair.kind << ", g_fZero " << tolerance << '\n'
                                                         << ToText(pair.a) << ToText(pair.b);
        }
    }
}

TEST(CrossingGraph, EqualsThePlainGraphOnCoordinatesThatAreNoNumbers) {
    const double bad[] = {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300, 1e31};
    for (unsigned i = 0; i < 500; ++i) {
        RandomSource random(BaseSeed() + i);
        polygon_pairs::Pair pair = polygon_pairs::Make(random, random.Int(0, polygon_pairs::KIND_COUNT - 1));
        Ring& ring = random.Coin() ? pair.a : pair.b;
        if (!ring.empty()) {
            QnGePoint& point = ring[static_cast<std::size_t>(random.Long(0, static_cast<long>(ring.size()) - 1))];
            (random.Coin() ? point.x : point.y) = bad[random.Int(0, 4)];
        }
        ASSERT_EQ(Compare(pair.a, pair.b, true), "") << pair.kind << '\n' << ToText(pair.a) << ToText(pair.b);
    }
}

TEST(CrossingGraph, EqualsThePlainGraphUnderHugeTolerancesOfLength) {
    for (const double tolerance : {1e3, 1e30, 1e39, 1e300, HUGE_VAL}) {
        const QnPushVar<double> push(g_distZero, tolerance);
        for (unsigned i = 0; i < 200; ++i) {
            RandomSource random(BaseSeed() + i);
            const polygon_pairs::Pair pair = polygon_pairs::Make(random, random.Int(0, polygon_pairs::KIND_COUNT - 1));
            ASSERT_EQ(Compare(pair.a, pair.b, true), "") << pair.kind << ", g_distZero " << tolerance << '\n'
                                                         << ToText(pair.a) << ToText(pair.b);
        }
    }
}

// A long outline must not cost more than stated: 400 bytes a vertex and crossing.
TEST(CrossingGraph, MemoryStaysWithinItsBound) {
    RandomSource random(BaseSeed());
    const Ring a = polygon_pairs::Star(random, 4000, 0.0, 0.0, 4.0, 5.0);
    const Ring b = polygon_pairs::Star(random, 4000, 0.05, 0.02, 4.0, 5.0);
    const QnGeMLine2d first = MakeOutline(a);
    const QnGeMLine2d second = MakeOutline(b);
    CrossingGraph graph(first, second);
    ASSERT_TRUE(graph.Build());
    const auto crossings = graph.GetNodes().GetLength();
    EXPECT_LT(graph.GetMemory(), 400 * (8000 + crossings));
}

}  // namespace
