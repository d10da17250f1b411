// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "frame/QnGeTolerance.h"
#include "support/RandomSource.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

/// Places of nodes from which tests make networks.
namespace tin_places {

using Points = std::vector<QnGePoint>;

inline Points Spread(RandomSource& random, int n, double width, double height) {
    Points points;
    for (int i = 0; i < n; ++i) {
        points.emplace_back(random.Double(0, width), random.Double(0, height), i);
    }
    return points;
}

inline Points Grid(int columns, int rows, double step) {
    Points points;
    for (int i = 0; i < columns * rows; ++i) {
        points.emplace_back(step * (i % columns), step * (i / columns), i);
    }
    return points;
}

/// Two level rows with the centre line between them, so that one list holds all triangles.
inline Points Rows(int n, double step, double gap) {
    Points points;
    for (int i = 0; i < n / 2; ++i) {
        points.emplace_back(step * i, 0.0, i);
        points.emplace_back(step * (i + 0.375), gap, -i);
    }
    return points;
}

inline Points Round(int n, double radius) {
    Points points;
    for (int i = 0; i < n; ++i) {
        const double angle = QN_TWO_PI * i / n;
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle), i);
    }
    return points;
}

inline Points Clustered(RandomSource& random, int n) {
    const Points centres = Spread(random, 2 + n / 25, 1000, 1000);
    Points points;
    for (int i = 0; i < n; ++i) {
        const QnGePoint& c = centres[static_cast<std::size_t>(random.Long(0, static_cast<long>(centres.size()) - 1))];
        const double r = std::pow(10.0, random.Double(-2, 1.5));
        points.emplace_back(c.x + random.Double(-r, r), c.y + random.Double(-r, r), i);
    }
    return points;
}

inline Points Turned(Points points, double angle) {
    for (QnGePoint& p : points) {
        p.SetPoint(p.x * std::cos(angle) - p.y * std::sin(angle), p.x * std::sin(angle) + p.y * std::cos(angle));
    }
    return points;
}

inline Points Moved(Points points, double dx, double dy) {
    for (QnGePoint& p : points) {
        p.SetPoint(p.x + dx, p.y + dy);
    }
    return points;
}

inline Points Shuffled(RandomSource& random, Points points) {
    for (std::size_t i = points.size(); i > 1; --i) {
        std::swap(points[i - 1], points[static_cast<std::size_t>(random.Long(0, static_cast<long>(i) - 1))]);
    }
    return points;
}

/// From left to right.
inline Points Sorted(Points points) {
    std::sort(points.begin(), points.end(), [](const QnGePoint& a, const QnGePoint& b) { return a.x < b.x; });
    return points;
}

/// The leftmost, the rightmost, the next to the leftmost and so on: each walk goes over the whole network.
inline Points Alternating(const Points& points) {
    const Points sorted = Sorted(points);
    Points found;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        found.push_back(i % 2 == 0 ? sorted[i / 2] : sorted[sorted.size() - 1 - i / 2]);
    }
    return found;
}

/// From a centre outward, round and round.
inline Points Spiral(int n, double step) {
    Points points;
    for (int i = 0; i < n; ++i) {
        const double radius = step * std::sqrt(i + 1.0);
        points.emplace_back(radius * std::cos(2.4 * i), radius * std::sin(2.4 * i), i);
    }
    return points;
}

/// The same from the outside in.
inline Points Reversed(Points points) {
    std::reverse(points.begin(), points.end());
    return points;
}

inline QnGeExtent2d RangeOf(const Points& points) {
    QnGeExtent2d all(points[0].x, points[0].x, points[0].y, points[0].y);
    for (const QnGePoint& p : points) {
        all += QnGeExtent2d(p.x, p.x, p.y, p.y);
    }
    return all;
}

}  // namespace tin_places
