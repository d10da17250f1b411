// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <string>

#include "PolylineTesting.h"
#include "support/PolygonPairs.h"

/// Outlines and points that make trouble for a hit test: vertices on the ray, edges nearly along it, tall and tiny
/// edges beside each other, points a few tolerances away from all of them.
namespace hit_test_outlines {

using polygon_pairs::Ring;

/// Edges that climb by very different amounts, some by far less than a tolerance, some by 1e6.
inline Ring Skyline(RandomSource& random, int count) {
    constexpr double RISES[] = {0.0, 1e-12, 1e-9, 1e-7, 5e-7, 1e-6, 2e-6, 1e-3, 1.0, 100.0, 1e6};
    Ring ring;
    double y = 0.0;
    for (int i = 0; i < count; ++i) {
        const double rise = RISES[random.Int(0, 10)];
        y = random.OneIn(3) ? 0.0 : y + (random.Coin() ? rise : -rise);
        ring.emplace_back(random.OneIn(4) ? random.Double(-20.0, 20.0) : static_cast<double>(i), y);
    }
    return ring;
}

/// A line that hardly leaves its level, of a height about the length tolerance.
inline Ring Ribbon(RandomSource& random, int count) {
    const double height = std::pow(10.0, random.Double(-8.0, -4.0));
    Ring ring;
    for (int i = 0; i < count; ++i) {
        ring.emplace_back(random.Double(-5.0, 5.0), random.OneIn(3) ? 0.0 : random.Double(-height, height));
    }
    return ring;
}

/// Long runs of vertices on a few levels, as stairs and battlements have.
inline Ring Stairs(RandomSource& random, int count) {
    Ring ring;
    double x = 0.0;
    double y = 0.0;
    for (int i = 0; i < count; ++i) {
        if (random.Coin()) {
            x += random.Int(-2, 3);
        } else {
            y += random.Int(-1, 1);
        }
        ring.emplace_back(x, y);
    }
    return ring;
}

constexpr int KIND_COUNT = polygon_pairs::KIND_COUNT + 6;

inline polygon_pairs::Pair Outline(RandomSource& random, int kind) {
    const int count = random.OneIn(20) ? random.Int(100, 400) : random.Int(3, 40);
    switch (kind - polygon_pairs::KIND_COUNT) {
        case 0:
            return {"skyline", Skyline(random, count), {}};
        case 1:
            return {"ribbon", Ribbon(random, count), {}};
        case 2:
            return {"stairs", Stairs(random, count), {}};
        case 3:
            return {"lattice walk", polygon_pairs::LatticeWalk(random, count, 6), {}};
        case 4: {
            const double away = std::pow(10.0, random.Int(3, 9));
            Ring ring = polygon_pairs::Jittered(random, polygon_pairs::LatticeWalk(random, count, 9), 2e-6);
            return {"far away", polygon_pairs::Moved(ring, away, -away), {}};
        }
        case 5: {
            const double scale = std::pow(10.0, random.Int(-9, 9));
            return {"scaled star",
                    polygon_pairs::Turned(polygon_pairs::Star(random, count, 0.0, 0.0, 1.0, 3.0), 0.1, scale),
                    {}};
        }
        default:
            return polygon_pairs::Make(random, kind);
    }
}

/// A small distance of either sign, or none.
inline double Offset(RandomSource& random) {
    constexpr double SIZES[] = {0.0,  1e-12,  1e-11, 1e-10,   1e-9, 1e-8, 1e-7,
                                3e-7, 9.9e-7, 1e-6,  1.01e-6, 2e-6, 3e-6, 1e-5};
    const double size = SIZES[random.Int(0, 13)] * (random.Coin() ? 1.0 : random.Double(0.5, 1.5));
    return random.Coin() ? size : -size;
}

/// A point in or about the outline: anywhere, on the level of a vertex, near an edge or near a vertex.
inline QnGePoint Probe(RandomSource& random, const Ring& ring) {
    if (ring.empty()) {
        return QnGePoint(random.Double(-1.0, 1.0), random.Double(-1.0, 1.0));
    }
    double xmin = ring[0].x;
    double xmax = ring[0].x;
    double ymin = ring[0].y;
    double ymax = ring[0].y;
    for (const QnGePoint& q : ring) {
        xmin = std::min(xmin, q.x);
        xmax = std::max(xmax, q.x);
        ymin = std::min(ymin, q.y);
        ymax = std::max(ymax, q.y);
    }
    const double marginX = 0.1 * (xmax - xmin) + 1e-6;
    const double marginY = 0.1 * (ymax - ymin) + 1e-6;
    const double x = random.Double(xmin - marginX, xmax + marginX);
    const double y = random.Double(ymin - marginY, ymax + marginY);
    const auto i = static_cast<std::size_t>(random.Long(0, static_cast<long>(ring.size()) - 1));
    const QnGePoint& v = ring[i];
    const QnGePoint& w = ring[(i + 1) % ring.size()];
    switch (random.Int(0, 5)) {
        case 0:
            return QnGePoint(x, y);
        case 1:
        case 2:
            return QnGePoint(x, v.y + Offset(random));
        case 3: {
            const double t = random.Double(-0.1, 1.1);
            return QnGePoint(v.x + t * (w.x - v.x) + Offset(random), v.y + t * (w.y - v.y) + Offset(random));
        }
        case 4:
            return QnGePoint(v.x + Offset(random), v.y + Offset(random));
        default:
            return QnGePoint(random.Int(-1, 10), random.Int(-1, 10));
    }
}

}  // namespace hit_test_outlines
