// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "values/QnGePoint.h"

/// Areas of straight outlines and of what they have in common, computed without the library: the reference for the
/// tests of polygon booleans and cuts.
///
/// Everything is done in long double. A set of rings is inside wherever its winding number is not 0, so that an outline
/// and its clockwise holes together are one set.
namespace exact_area {

using Ring = std::vector<QnGePoint>;
using Rings = std::vector<Ring>;
using Real = long double;

/// A point of the plan in long double.
struct Spot {
    Real x = 0;
    Real y = 0;

    Spot(Real px, Real py) : x(px), y(py) {}
    explicit Spot(const QnGePoint& p) : x(static_cast<Real>(p.x)), y(static_cast<Real>(p.y)) {}
};

/// Twice the area of the triangle pqr, above 0 if it turns left.
inline Real Turn(const Spot& p, const Spot& q, const Spot& r) {
    return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x);
}

struct Areas {
    Real a = 0;      ///< area of the first set
    Real b = 0;      ///< area of the second set
    Real inter = 0;  ///< area of what both have

    Real Union() const { return a + b - inter; }
    Real ALessB() const { return a - inter; }
    Real BLessA() const { return b - inter; }
};

// ---- areas by slabs --------------------------------------------------------------------------------

/// An edge that is not vertical, from left to right; `turn` is what it adds to the winding number above it.
struct SlabEdge {
    Real x0, y0, x1, y1;
    int turn;
    int owner;

    Real At(Real x) const { return y0 + (y1 - y0) * (x - x0) / (x1 - x0); }
};

inline void CollectEdges(const Rings& rings, int owner, std::vector<SlabEdge>& edges, std::vector<Real>& breaks) {
    for (const Ring& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Spot p(ring[i]);
            const Spot q(ring[(i + 1) % ring.size()]);
            breaks.push_back(p.x);
            if (p.x < q.x) {
                edges.push_back({p.x, p.y, q.x, q.y, 1, owner});
            } else if (q.x < p.x) {
                edges.push_back({q.x, q.y, p.x, p.y, -1, owner});
            }
        }
    }
}

inline void CollectCrossings(const std::vector<SlabEdge>& edges, std::vector<Real>& breaks) {
    for (std::size_t i = 0; i < edges.size(); ++i) {
        for (std::size_t j = i + 1; j < edges.size(); ++j) {
            const Real left = std::max(edges[i].x0, edges[j].x0);
            const Real right = std::min(edges[i].x1, edges[j].x1);
            if (left >= right) {
                continue;
            }
            const Real gapLeft = edges[i].At(left) - edges[j].At(left);
            const Real gapRight = edges[i].At(right) - edges[j].At(right);
            if ((gapLeft < 0) != (gapRight < 0) && gapLeft != gapRight) {
                breaks.push_back(left + (right - left) * gapLeft / (gapLeft - gapRight));
            }
        }
    }
}

/// Adds what a slab of the given width holds: between two edges that follow each other every set is inside or outside.
inline void AddSlab(std::vector<std::pair<Real, const SlabEdge*>>& cut, Real width, Areas& areas) {
    std::sort(cut.begin(), cut.end());
    int winding[2] = {0, 0};
    for (std::size_t i = 0; i + 1 < cut.size(); ++i) {
        winding[cut[i].second->owner] += cut[i].second->turn;
        const Real piece = width * (cut[i + 1].first - cut[i].first);
        areas.a += winding[0] != 0 ? piece : 0;
        areas.b += winding[1] != 0 ? piece : 0;
        areas.inter += winding[0] != 0 && winding[1] != 0 ? piece : 0;
    }
}

/// The areas of two sets of rings and of their common part.
///
/// The plan is cut into upright slabs at every vertex and crossing. Inside a slab no two edges meet, so every area is
/// its width times the length that the middle of the slab cuts off.
inline Areas Measure(const Rings& a, const Rings& b) {
    std::vector<SlabEdge> edges;
    std::vector<Real> breaks;
    CollectEdges(a, 0, edges, breaks);
    CollectEdges(b, 1, edges, breaks);
    CollectCrossings(edges, breaks);
    std::sort(breaks.begin(), breaks.end());
    breaks.erase(std::unique(breaks.begin(), breaks.end()), breaks.end());

    Areas areas;
    std::vector<std::pair<Real, const SlabEdge*>> cut;
    for (std::size_t k = 0; k + 1 < breaks.size(); ++k) {
        const Real middle = (breaks[k] + breaks[k + 1]) / 2;
        cut.clear();
        for (const SlabEdge& edge : edges) {
            if (edge.x0 < middle && middle < edge.x1) {
                cut.emplace_back(edge.At(middle), &edge);
            }
        }
        AddSlab(cut, breaks[k + 1] - breaks[k], areas);
    }
    return areas;
}

inline Areas Measure(const Ring& a, const Ring& b) {
    return Measure(Rings{a}, Rings{b});
}

// ---- areas at the sides of a line ------------------------------------------------------------------

inline Real SignedArea(const std::vector<Spot>& ring) {
    Real sum = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Spot& p = ring[i];
        const Spot& q = ring[(i + 1) % ring.size()];
        sum += p.x * q.y - q.x * p.y;
    }
    return sum / 2;
}

/// The area of a counter-clockwise ring at the left of the line through `base` along `direction`: clipping by the half
/// plane. Pieces that a concave ring falls into stay joined along the line, which adds no area.
inline Real AreaAtLeft(const Ring& ring, const QnGePoint& base, const QnGePoint& direction) {
    const Spot from(base);
    const Spot along(direction);
    const auto side = [&](const Spot& p) { return along.x * (p.y - from.y) - along.y * (p.x - from.x); };
    std::vector<Spot> clipped;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Spot p(ring[i]);
        const Spot q(ring[(i + 1) % ring.size()]);
        const Real sp = side(p);
        const Real sq = side(q);
        if (sp >= 0) {
            clipped.push_back(p);
        }
        if ((sp > 0 && sq < 0) || (sp < 0 && sq > 0)) {
            const Real t = sp / (sp - sq);
            clipped.emplace_back(p.x + t * (q.x - p.x), p.y + t * (q.y - p.y));
        }
    }
    return SignedArea(clipped);
}

// ---- points ----------------------------------------------------------------------------------------

/// How often the rings run round the point, counter-clockwise counted up. The point must not lie on a ring.
inline int WindingNumber(const Rings& rings, const QnGePoint& point) {
    const Spot at(point);
    int winding = 0;
    for (const Ring& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Spot p(ring[i]);
            const Spot q(ring[(i + 1) % ring.size()]);
            if (p.y <= at.y && q.y > at.y && Turn(p, q, at) > 0) {
                ++winding;
            } else if (p.y > at.y && q.y <= at.y && Turn(p, q, at) < 0) {
                --winding;
            }
        }
    }
    return winding;
}

/// The distance of the point from the nearest ring.
inline double DistanceToRings(const Rings& rings, const QnGePoint& point) {
    const Spot at(point);
    Real best = HUGE_VALL;
    for (const Ring& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Spot p(ring[i]);
            const Spot q(ring[(i + 1) % ring.size()]);
            const Real dx = q.x - p.x;
            const Real dy = q.y - p.y;
            const Real length2 = dx * dx + dy * dy;
            Real t = length2 > 0 ? ((at.x - p.x) * dx + (at.y - p.y) * dy) / length2 : 0;
            t = std::min<Real>(1, std::max<Real>(0, t));
            best = std::min(best, std::hypot(p.x + t * dx - at.x, p.y + t * dy - at.y));
        }
    }
    return static_cast<double>(best);
}

/// Whether the point lies on the ring; exact for small whole numbers and halves.
inline bool IsOnRing(const Ring& ring, const QnGePoint& point) {
    const Spot at(point);
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Spot p(ring[i]);
        const Spot q(ring[(i + 1) % ring.size()]);
        const bool inBox = std::min(p.x, q.x) <= at.x && at.x <= std::max(p.x, q.x) && std::min(p.y, q.y) <= at.y &&
                           at.y <= std::max(p.y, q.y);
        if (inBox && Turn(p, q, at) == 0) {
            return true;
        }
    }
    return false;
}

/// Whether the rings run along each other somewhere; exact for small whole numbers.
inline bool DoShareStretch(const Ring& a, const Ring& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        const QnGePoint& p = a[i];
        const QnGePoint& q = a[(i + 1) % a.size()];
        const auto turn = [&](const QnGePoint& r) { return (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x); };
        const auto along = [&](const QnGePoint& r) { return (q.x - p.x) * (r.x - p.x) + (q.y - p.y) * (r.y - p.y); };
        for (std::size_t j = 0; j < b.size(); ++j) {
            const QnGePoint& r = b[j];
            const QnGePoint& s = b[(j + 1) % b.size()];
            const double first = std::min(along(r), along(s));
            const double last = std::max(along(r), along(s));
            if (turn(r) == 0.0 && turn(s) == 0.0 && std::max(first, 0.0) < std::min(last, along(q))) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace exact_area
