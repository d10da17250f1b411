// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <map>
#include <numeric>
#include <set>
#include <utility>
#include <vector>

#include "support/PolygonPairs.h"

/// Simple outlines on a small lattice of whole numbers: two of them share edges, parts of edges and vertices as
/// often as not, and everything about them can be decided exactly.
namespace lattice_polygons {

using polygon_pairs::Ring;

// ---- simple polygons -------------------------------------------------------------------------------

/// The sign of the turn from pq to pr; exact on a lattice.
inline int Turn(const QnGePoint& p, const QnGePoint& q, const QnGePoint& r) {
    const double cross = (q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x);
    return (cross > 0.0) - (cross < 0.0);
}

inline bool IsBetween(const QnGePoint& p, const QnGePoint& a, const QnGePoint& b) {
    return std::min(a.x, b.x) <= p.x && p.x <= std::max(a.x, b.x) && std::min(a.y, b.y) <= p.y &&
           p.y <= std::max(a.y, b.y);
}

/// Whether two segments have a point in common.
inline bool DoMeet(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c, const QnGePoint& d) {
    const int abc = Turn(a, b, c);
    const int abd = Turn(a, b, d);
    const int cda = Turn(c, d, a);
    const int cdb = Turn(c, d, b);
    if (abc != abd && cda != cdb) {
        return true;
    }
    return (abc == 0 && IsBetween(c, a, b)) || (abd == 0 && IsBetween(d, a, b)) || (cda == 0 && IsBetween(a, c, d)) ||
           (cdb == 0 && IsBetween(b, c, d));
}

/// Whether no two edges meet but neighbours at their common vertex. Straight vertices are allowed, turning back is not.
inline bool IsSimple(const Ring& ring) {
    const std::size_t n = ring.size();
    if (n < 3) {
        return false;
    }
    for (std::size_t i = 0; i < n; ++i) {
        const QnGePoint& a = ring[i];
        const QnGePoint& b = ring[(i + 1) % n];
        const QnGePoint& c = ring[(i + 2) % n];
        const bool foldsBack = Turn(a, b, c) == 0 && (b.x - a.x) * (c.x - b.x) + (b.y - a.y) * (c.y - b.y) <= 0.0;
        if (foldsBack) {
            return false;
        }
        for (std::size_t j = i + 2; j < n; ++j) {
            if (i == 0 && j == n - 1) {
                continue;
            }
            if (DoMeet(a, b, ring[j], ring[(j + 1) % n])) {
                return false;
            }
        }
    }
    return true;
}

/// Uncrosses the edges of a ring by turning stretches of it round, as far as that goes in a few rounds.
inline void Uncross(Ring& ring) {
    constexpr int ROUNDS = 40;
    const std::size_t n = ring.size();
    for (int round = 0; round < ROUNDS; ++round) {
        bool changed = false;
        for (std::size_t i = 0; i + 2 < n; ++i) {
            for (std::size_t j = i + 2; j < n; ++j) {
                if (i == 0 && j == n - 1) {
                    continue;
                }
                if (DoMeet(ring[i], ring[i + 1], ring[j], ring[(j + 1) % n])) {
                    std::reverse(ring.begin() + static_cast<long>(i) + 1, ring.begin() + static_cast<long>(j) + 1);
                    changed = true;
                }
            }
        }
        if (!changed) {
            return;
        }
    }
}

/// A simple counter-clockwise polygon of at most `count` vertices on the lattice 0..size.
inline Ring SimplePolygon(RandomSource& random, int count, int size) {
    for (;;) {
        std::set<std::pair<int, int>> taken;
        Ring ring;
        for (int i = 0; i < count; ++i) {
            const std::pair<int, int> at(random.Int(0, size), random.Int(0, size));
            if (taken.insert(at).second) {
                ring.emplace_back(at.first, at.second);
            }
        }
        if (ring.size() < 3) {
            continue;
        }
        Uncross(ring);
        if (IsSimple(ring)) {
            polygon_pairs::MakeCounterClockwise(ring);
            return ring;
        }
    }
}

/// Puts some of the lattice points that lie inside edges into the ring as vertices.
inline Ring WithStraightVertices(RandomSource& random, const Ring& ring) {
    Ring out;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QnGePoint& p = ring[i];
        const QnGePoint& q = ring[(i + 1) % ring.size()];
        out.push_back(p);
        const int dx = static_cast<int>(q.x - p.x);
        const int dy = static_cast<int>(q.y - p.y);
        const int steps = std::gcd(dx, dy);
        for (int k = 1; k < steps; ++k) {
            if (random.OneIn(4)) {
                out.emplace_back(p.x + k * dx / steps, p.y + k * dy / steps);
            }
        }
    }
    return out;
}

// ---- cell shapes -----------------------------------------------------------------------------------

using Cell = std::pair<int, int>;
using Cells = std::set<Cell>;

/// The one outline of the cells, unit edges, counter-clockwise; empty if they have a hole or touch at a corner only.
inline Ring OutlineOf(const Cells& cells) {
    std::map<Cell, Cell> next;
    const auto add = [&next](Cell from, Cell to) { return next.emplace(from, to).second; };
    for (const Cell& c : cells) {
        const int x = c.first;
        const int y = c.second;
        bool plain = true;
        plain = plain && (cells.count({x, y - 1}) != 0 || add({x, y}, {x + 1, y}));
        plain = plain && (cells.count({x + 1, y}) != 0 || add({x + 1, y}, {x + 1, y + 1}));
        plain = plain && (cells.count({x, y + 1}) != 0 || add({x + 1, y + 1}, {x, y + 1}));
        plain = plain && (cells.count({x - 1, y}) != 0 || add({x, y + 1}, {x, y}));
        if (!plain) {
            return {};
        }
    }
    Ring ring;
    const Cell start = next.begin()->first;
    Cell at = start;
    do {
        ring.emplace_back(at.first, at.second);
        at = next[at];
    } while (at != start);
    return ring.size() == next.size() ? ring : Ring();
}

/// A shape of at most `count` unit cells, grown at random in a square of `size` cells; its outline is one simple ring.
inline Cells GrowCells(RandomSource& random, int count, int size) {
    Cells cells{{random.Int(0, size - 1), random.Int(0, size - 1)}};
    constexpr int STEPS[4][2] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    for (int attempt = 0; attempt < 3 * count && static_cast<int>(cells.size()) < count; ++attempt) {
        auto from = cells.begin();
        std::advance(from, random.Long(0, static_cast<long>(cells.size()) - 1));
        const int* const step = STEPS[random.Int(0, 3)];
        const Cell added(from->first + step[0], from->second + step[1]);
        const bool inside = added.first >= 0 && added.second >= 0 && added.first < size && added.second < size;
        if (!inside || !cells.insert(added).second) {
            continue;
        }
        if (OutlineOf(cells).empty()) {
            cells.erase(added);
        }
    }
    return cells;
}

inline int CountCommon(const Cells& a, const Cells& b) {
    int common = 0;
    for (const Cell& cell : a) {
        common += static_cast<int>(b.count(cell));
    }
    return common;
}

/// Drops vertices in the middle of straight runs, all of them or, with `keep` above 0, all but one in `keep`.
inline Ring Joined(RandomSource& random, const Ring& ring, int keep) {
    Ring out;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QnGePoint& before = ring[(i + ring.size() - 1) % ring.size()];
        const QnGePoint& after = ring[(i + 1) % ring.size()];
        if (Turn(before, ring[i], after) != 0 || (keep > 0 && random.OneIn(keep))) {
            out.push_back(ring[i]);
        }
    }
    return out;
}

}  // namespace lattice_polygons
