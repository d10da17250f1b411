// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <string>
#include <utility>

#include "RegionTesting.h"

/// Pairs of simple counter-clockwise polygons on which the booleans must be exact: in general position, on
/// lattices with contacts of every kind, turned and moved.
namespace region_testing {

struct SimplePair {
    std::string kind;
    bool general = false;        ///< in general position: no vertex on an edge, no two edges on one line
    bool fillsABay = false;      ///< the one pair that the intersection takes for nested ones
    bool sharesStretch = false;  ///< the outlines run along each other somewhere
    Ring a;
    Ring b;
    Areas areas;

    /// Area errors are measured against this.
    double Size() const { return static_cast<double>(areas.a + areas.b); }
};

constexpr int SIMPLE_KIND_COUNT = 9;

inline Ring RandomLatticePolygon(RandomSource& random, int size) {
    const Ring ring = lattice_polygons::SimplePolygon(random, random.Int(3, 10), size);
    return random.Coin() ? lattice_polygons::WithStraightVertices(random, ring) : ring;
}

inline SimplePair LatticePair(RandomSource& random) {
    const int size = random.Int(2, 6);
    SimplePair pair;
    pair.kind = "lattice";
    pair.a = RandomLatticePolygon(random, size);
    pair.b = RandomLatticePolygon(random, size);
    return pair;
}

inline SimplePair CellPair(RandomSource& random) {
    using namespace lattice_polygons;
    const int size = random.Int(2, 6);
    const int keep = random.Int(0, 3);
    SimplePair pair;
    pair.kind = "cells";
    pair.a = Joined(random, OutlineOf(GrowCells(random, random.Int(1, 18), size)), keep);
    pair.b = Joined(random, OutlineOf(GrowCells(random, random.Int(1, 18), size)), keep);
    return pair;
}

/// Some stretches of `ring` as they stand, the rest drawn to the inside or outside: shares edges in general position.
inline Ring Bent(RandomSource& random, Ring ring) {
    for (QnGePoint& p : ring) {
        if (random.OneIn(3)) {
            const double scale = random.Double(0.8, 1.25);
            p.x *= scale;
            p.y *= scale;
        }
    }
    return ring;
}

inline SimplePair MakeSimplePair(RandomSource& random, int kind) {
    using namespace polygon_pairs;
    SimplePair pair;
    const int n = random.Int(3, 20);
    const int m = random.Int(3, 20);
    switch (kind) {
        case 0:
            pair.kind = "stars";
            pair.general = true;
            pair.a = Star(random, n, 0.0, 0.0, 2.0, 5.0);
            pair.b = Star(random, m, random.Double(-4.0, 4.0), random.Double(-4.0, 4.0), 1.0, 6.0);
            break;
        case 1:
            pair = LatticePair(random);
            break;
        case 2:
            pair = CellPair(random);
            break;
        case 3:
            pair.kind = "nested";
            pair.general = true;
            pair.a = Star(random, n + 5, 0.0, 0.0, 3.0, 5.0);
            pair.b = Star(random, m, 0.0, 0.0, 0.2, 1.2);
            break;
        case 4:
            pair.kind = "equal";
            pair.a = random.Coin() ? Star(random, n, 0.0, 0.0, 2.0, 5.0) : RandomLatticePolygon(random, 5);
            pair.b = StartedAt(pair.a, random.Long(0, 50));
            break;
        case 5:
            pair.kind = "combs";
            pair.a = Comb(random.Int(1, 7), 0.0, 0.0, 1.0, 3.0, true);
            pair.b = Comb(random.Int(1, 7), 0.5 * random.Int(-2, 2), 2.0, random.Coin() ? 1.0 : 0.75, 3.0, false);
            break;
        case 6:
            pair.kind = "shared stretches";
            pair.a = Star(random, n + 5, 0.0, 0.0, 3.0, 5.0);
            pair.b = Bent(random, pair.a);
            break;
        case 7:
            pair.kind = "apart";
            pair.general = true;
            pair.a = Star(random, n, 0.0, 0.0, 2.0, 5.0);
            pair.b = Star(random, m, 20.0, 1.0, 2.0, 5.0);
            break;
        default: {
            pair = random.Coin() ? LatticePair(random) : CellPair(random);
            break;
        }
    }
    pair.areas = Measure(pair.a, pair.b);
    pair.fillsABay = DoesFillABay(pair.a, pair.b, pair.areas);
    pair.sharesStretch = exact_area::DoShareStretch(pair.a, pair.b);
    if (kind == SIMPLE_KIND_COUNT - 1) {
        const double angle = random.Double(0.0, 6.28);
        const double away = random.Coin() ? 0.0 : 1000.0;
        pair.kind += " turned";
        pair.a = Moved(Turned(pair.a, angle, 1.0), away, -away);
        pair.b = Moved(Turned(pair.b, angle, 1.0), away, -away);
    }
    return pair;
}

/// Runs `check` on many pairs of all kinds until it reports trouble.
template <class Check>
void ForManyPairs(int test, int cases, Check check) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < cases; ++i) {
        const unsigned seed = CaseSeed(test, i);
        RandomSource random(seed);
        const SimplePair pair = MakeSimplePair(random, i % SIMPLE_KIND_COUNT);
        SCOPED_TRACE(pair.kind + ", seed " + std::to_string(seed) + '\n' + PairText(pair.a, pair.b));
        check(pair, random);
        if (::testing::Test::HasFailure()) {
            return;
        }
    }
}

}  // namespace region_testing
