// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <cstddef>
#include <functional>
#include <vector>

#include "TinPlaces.h"
#include "TinTesting.h"
#include "support/RandomSource.h"

// Networks that are built in adverse orders, with something done to them half way.
namespace tin_places {

/// The first half of the nodes, then what happens half way, then the rest. The pair compares at its end.
inline void ExpectSame(const char* name, const Points& points, const std::function<void(TinPair&)>& halfWay = nullptr) {
    SCOPED_TRACE(name);
    TinPair tin;
    tin.rules.links = false;
    const QnGeExtent2d all = RangeOf(points);
    tin.SetRange(all.x.min, all.x.max, all.y.min, all.y.max);
    const auto middle = points.begin() + static_cast<std::ptrdiff_t>(points.size() / 2);
    tin.Insert(Points(points.begin(), middle));
    if (halfWay) {
        halfWay(tin);
    }
    tin.Insert(Points(middle, points.end()));
}

struct NamedPlaces {
    const char* name;
    Points points;
};

inline std::vector<NamedPlaces> Networks(RandomSource& random, int n) {
    const int side = static_cast<int>(std::sqrt(n));
    Points twice = Spread(random, n / 2, 100, 100);
    const Points again = twice;
    twice.insert(twice.end(), again.begin(), again.end());
    return {
        {"spread", Spread(random, n, 1000, 1000)},
        {"grid", Grid(side, side, 10.0)},
        {"turned grid", Turned(Grid(side, side, 10.0), 0.4)},
        {"rows", Rows(n, 1.0, 2.0)},
        {"turned rows", Turned(Rows(n, 1.0, 2.0), 0.9)},
        {"round", Round(n, 300.0)},
        {"clusters", Clustered(random, n)},
        {"strip", Spread(random, n, 5000, 2)},
        {"every node twice", twice},
        {"far off", Moved(Spread(random, n, 1000, 1000), 5e5, 4e6)},
        {"small", Spread(random, n, 0.01, 0.01)},
        {"huge", Spread(random, n, 1e9, 1e9)},
    };
}

inline void ForEachOrder(unsigned seed, int n, const std::function<void(TinPair&)>& halfWay = nullptr) {
    RandomSource random(seed);
    for (const NamedPlaces& network : Networks(random, n)) {
        SCOPED_TRACE(network.name);
        ExpectSame("random", Shuffled(random, network.points), halfWay);
        ExpectSame("sorted", Sorted(network.points), halfWay);
        ExpectSame("alternating", Alternating(network.points), halfWay);
        if (testing::Test::HasFailure()) {
            return;
        }
    }
    ExpectSame("spiral", Spiral(n, 5.0), halfWay);
    ExpectSame("spiral inward", Reversed(Spiral(n, 5.0)), halfWay);
}

}  // namespace tin_places
