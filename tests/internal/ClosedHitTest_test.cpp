// SPDX-License-Identifier: Apache-2.0
//
// The hit test of closed lines through an index over their edges against the pass over all vertices.
#include "polylines/detail/ClosedHitTest.h"

#include <gtest/gtest.h>

#include <cmath>

#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "polylines/detail/OutlineIndex.h"
#include "support/PolygonPairs.h"

namespace {

using polygon_pairs::MakeOutline;
using polygon_pairs::Ring;
using qn_detail::ClosedHitTest;
using qn_detail::OutlineIndex;

const QnGePoint& AnyVertex(RandomSource& random, const Ring& ring) {
    return ring[static_cast<std::size_t>(random.Long(0, static_cast<long>(ring.size()) - 1))];
}

/// A point anywhere, on a vertex, on an edge, or a hair off the level of a vertex or off an edge.
QnGePoint AnyPoint(RandomSource& random, const Ring& ring) {
    const double hair = std::pow(10.0, random.Double(-13.0, -4.0)) * (random.Coin() ? 1.0 : -1.0);
    const QnGePoint& a = AnyVertex(random, ring);
    const QnGePoint& b = AnyVertex(random, ring);
    switch (random.Int(0, 5)) {
        case 0:
            return QnGePoint(random.Double(-7.0, 7.0), random.Double(-7.0, 7.0));
        case 1:
            return a;
        case 2:
            return QnGePoint(b.x + random.Double(-2.0, 2.0), a.y);
        case 3:
            return QnGePoint(b.x + (random.Coin() ? random.Double(-9.0, 9.0) : 0.0), a.y + hair);
        case 4: {
            const auto i = static_cast<std::size_t>(random.Long(0, static_cast<long>(ring.size()) - 1));
            const QnGePoint& from = ring[i];
            const QnGePoint& to = ring[(i + 1) % ring.size()];
            const double t = random.Double(-0.2, 1.2);
            return QnGePoint(from.x + t * (to.x - from.x) + (random.Coin() ? hair : 0.0), from.y + t * (to.y - from.y));
        }
        default:
            return QnGePoint((a.x + b.x) / 2.0, (a.y + b.y) / 2.0);
    }
}

TEST(ClosedHitTest, AnIndexChangesNoAnswer) {
    long on = 0;
    long in = 0;
    for (unsigned i = 0; i < 4000; ++i) {
        RandomSource random(BaseSeed() + i);
        const polygon_pairs::Pair pair = polygon_pairs::Make(random, static_cast<int>(i) % polygon_pairs::KIND_COUNT);
        if (pair.a.empty()) {
            continue;
        }
        const QnGeMLine2d line = MakeOutline(pair.a);
        OutlineIndex index(line, random.Coin() ? pair.a[0] : QnGePoint());
        for (int k = 0; k < 10; ++k) {
            const QnGePoint point = AnyPoint(random, pair.a);
            const QnBitData plain = ClosedHitTest(line, point).Run();
            const QnBitData indexed = ClosedHitTest(line, point).RunWith(index);
            ASSERT_EQ(plain.GetBits(), indexed.GetBits())
                << pair.kind << ", seed " << BaseSeed() + i << ", point " << point.x << ", " << point.y;
            on += plain == HIT_ON ? 1 : 0;
            in += plain == HIT_IN ? 1 : 0;
        }
    }
    EXPECT_GT(on, 5000);
    EXPECT_GT(in, 2000);
}

TEST(ClosedHitTest, AnIndexOverCoordinatesThatAreNoNumbersChangesNoAnswer) {
    const double bad[] = {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300, 1e31};
    for (unsigned i = 0; i < 2000; ++i) {
        RandomSource random(BaseSeed() + i);
        Ring ring = polygon_pairs::Star(random, random.Int(3, 30), 0.0, 0.0, 1.0, 5.0);
        QnGePoint point = AnyPoint(random, ring);
        QnGePoint& spoilt = random.Coin() ? point : ring[static_cast<std::size_t>(random.Int(0, 2))];
        (random.Coin() ? spoilt.x : spoilt.y) = bad[random.Int(0, 4)];
        const QnGeMLine2d line = MakeOutline(ring);
        OutlineIndex index(line, ring[0]);
        ASSERT_EQ(ClosedHitTest(line, point).Run().GetBits(), ClosedHitTest(line, point).RunWith(index).GetBits());
    }
}

TEST(ClosedHitTest, AnIndexUnderOtherTolerancesChangesNoAnswer) {
    struct {
        double parameter;
        double length;
    } const tolerances[] = {{-1e-9, 1e-6}, {0.0, 1e-6},  {1e-300, 1e-6}, {1e-60, 1e-6}, {1e-40, 1e-6}, {1e-12, 1e-9},
                            {1e-6, 1e-3},  {1e-3, 1e-1}, {1e-9, 1e30},   {1e-9, 1e39},  {1e-9, 1e300}, {1e-9, 0.0}};
    for (const auto& tolerance : tolerances) {
        const QnPushVar<double> parameter(g_fZero, tolerance.parameter);
        const QnPushVar<double> length(g_distZero, tolerance.length);
        for (unsigned i = 0; i < 300; ++i) {
            RandomSource random(BaseSeed() + i);
            const polygon_pairs::Pair pair =
                polygon_pairs::Make(random, static_cast<int>(i) % polygon_pairs::KIND_COUNT);
            if (pair.a.empty()) {
                continue;
            }
            const QnGeMLine2d line = MakeOutline(pair.a);
            OutlineIndex index(line, pair.a[0]);
            for (int k = 0; k < 10; ++k) {
                const QnGePoint point = AnyPoint(random, pair.a);
                ASSERT_EQ(ClosedHitTest(line, point).Run().GetBits(),
                          ClosedHitTest(line, point).RunWith(index).GetBits())
                    << pair.kind << ", tolerances " << tolerance.parameter << " and " << tolerance.length << ", seed "
                    << BaseSeed() + i << ", point " << point.x << ", " << point.y;
            }
        }
    }
}

// Where three vertices say nothing of the height of the edges, the pass is made again.
TEST(ClosedHitTest, ATallEdgeAmongFlatOnesIsSeen) {
    Ring ring = {{0.0, 0.0}, {1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}, {3.0, 1e9}, {2.0, 1e9}, {0.0, 0.0}};
    const QnGeMLine2d line = MakeOutline(ring);
    OutlineIndex index(line, ring[0]);
    for (const double y : {-1.0, 1e-7, 1.0, 1e3, 5e8, 1e9 - 1.0, 1e9 + 1.0}) {
        for (const double x : {-1.0, 1.0, 2.9999, 3.0001}) {
            const QnGePoint point(x, y);
            EXPECT_EQ(ClosedHitTest(line, point).Run().GetBits(), ClosedHitTest(line, point).RunWith(index).GetBits());
        }
    }
    EXPECT_EQ(ClosedHitTest(line, QnGePoint(2.9, 1e3)).Run(), HIT_IN);
    EXPECT_EQ(ClosedHitTest(line, QnGePoint(3.1, 1e3)).Run(), HIT_OUT);
}

}  // namespace
