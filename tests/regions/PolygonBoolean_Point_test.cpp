// SPDX-License-Identifier: Apache-2.0
// A point away from all outlines is in the result of a boolean exactly if it should be.

#include <gtest/gtest.h>

#include "RandomPolygonPairs.h"

using namespace region_testing;

namespace {

constexpr int POINTS_A_PAIR = 6;
/// A sampled point must be this far from every outline.
constexpr double CLEARANCE = 1e-4;

/// A point near the pair that lies on neither outline; false if none was found.
bool SamplePoint(const SimplePair& pair, RandomSource& random, QnGePoint& point) {
    const Rings rings{pair.a, pair.b};
    const Ring& ring = random.Coin() ? pair.a : pair.b;
    const auto last = static_cast<long>(ring.size()) - 1;
    for (int attempt = 0; attempt < 20; ++attempt) {
        const QnGePoint& p = ring[static_cast<std::size_t>(random.Long(0, last))];
        const QnGePoint& q = ring[static_cast<std::size_t>(random.Long(0, last))];
        const double t = random.Double(-0.1, 1.1);
        point = QnGePoint(p.x + t * (q.x - p.x) + random.Double(-0.5, 0.5),
                          p.y + t * (q.y - p.y) + random.Double(-0.5, 0.5));
        if (exact_area::DistanceToRings(rings, point) > CLEARANCE) {
            return true;
        }
    }
    return false;
}

void ExpectMembership(const SimplePair& pair, const Booleans& result, const QnGePoint& point) {
    SCOPED_TRACE("point " + PointToText(point));
    const bool inA = exact_area::WindingNumber({pair.a}, point) != 0;
    const bool inB = exact_area::WindingNumber({pair.b}, point) != 0;
    if (result.unite != nullptr) {
        EXPECT_EQ(exact_area::WindingNumber(RingsOf(*result.unite), point), inA || inB ? 1 : 0) << "union";
        const bool isIn = Bits(result.unite->HitTest(point)) == HIT_ON;
        EXPECT_EQ(isIn, inA || inB) << "hit test of the union";
    } else {
        EXPECT_FALSE(inA && inB) << "union";
    }
    if (!pair.fillsABay) {
        EXPECT_EQ(CountAround(result.inter, point), inA && inB ? 1 : 0) << "intersection";
    }
    EXPECT_EQ(CountAround(result.aLessB, point), inA && !inB ? 1 : 0) << "a less b";
    EXPECT_EQ(CountAround(result.bLessA, point), inB && !inA ? 1 : 0) << "b less a";
}

}  // namespace

TEST(PolygonBooleanPoint, IsInTheResultExactlyIfItShouldBe) {
    ForManyPairs(20, PROPERTY_CASES, [](const SimplePair& pair, RandomSource& random) {
        const Booleans result(pair.a, pair.b);
        for (int k = 0; k < POINTS_A_PAIR; ++k) {
            QnGePoint point;
            if (SamplePoint(pair, random, point)) {
                ExpectMembership(pair, result, point);
            }
        }
    });
}

TEST(PolygonBooleanPoint, HitTestOfAPolygonIsTheWindingNumbers) {
    ForManyPairs(21, PROPERTY_CASES, [](const SimplePair& pair, RandomSource& random) {
        const QnGePolygon2d polygon = PolygonOf(pair.a);
        for (int k = 0; k < POINTS_A_PAIR; ++k) {
            QnGePoint point;
            if (SamplePoint(pair, random, point)) {
                const bool inside = exact_area::WindingNumber({pair.a}, point) != 0;
                EXPECT_EQ(Bits(polygon.HitTest(point)), inside ? HIT_ON : 0U) << PointToText(point);
            }
        }
    });
}

TEST(PolygonBooleanPoint, HitTestOnLatticeLevelsIsExact) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomSource random(CaseSeed(22, i));
        const int size = random.Int(2, 7);
        const Ring ring = RandomLatticePolygon(random, size);
        const QnGePolygon2d polygon = PolygonOf(ring);
        for (int k = 0; k < 20; ++k) {
            const QnGePoint point(0.5 * random.Int(-2, 2 * size + 2), 0.5 * random.Int(-2, 2 * size + 2));
            const bool on = exact_area::IsOnRing(ring, point);
            const bool in = !on && exact_area::WindingNumber({ring}, point) != 0;
            ASSERT_EQ(Bits(polygon.HitTest(point)), on ? HIT_ON | HIT_BOUNDARY : (in ? HIT_ON : 0U))
                << "seed " << CaseSeed(22, i) << ", point " << PointToText(point) << '\n'
                << ToText(polygon);
            ASSERT_EQ(Bits(polygon.Outline().HitTest(point)), on ? HIT_ON : (in ? HIT_IN : HIT_OUT));
        }
    }
}
