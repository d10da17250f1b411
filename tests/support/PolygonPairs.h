// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "polylines/QnGeMLine2d.h"
#include "support/RandomSource.h"
#include "values/QnGePoint.h"
#include "values/QnGePointArray.h"

/// Random straight outlines for the tests of polygon booleans, and pairs of them with contacts of every kind.
namespace polygon_pairs {

using Ring = std::vector<QnGePoint>;

struct Pair {
    std::string kind;
    Ring a;
    Ring b;
};

inline QnGeMLine2d MakeOutline(const Ring& ring) {
    QnGePointArray points(static_cast<long>(ring.size()));
    for (std::size_t i = 0; i < ring.size(); ++i) {
        points[static_cast<long>(i)] = ring[i];
    }
    return QnGeMLine2d(points, true);
}

inline double SignedArea(const Ring& ring) {
    double sum = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QnGePoint& p = ring[i];
        const QnGePoint& q = ring[(i + 1) % ring.size()];
        sum += p.x * q.y - q.x * p.y;
    }
    return sum / 2.0;
}

inline void MakeCounterClockwise(Ring& ring) {
    if (SignedArea(ring) < 0.0) {
        std::reverse(ring.begin(), ring.end());
    }
}

/// A star-shaped outline: simple, counter-clockwise, in general position.
inline Ring Star(RandomSource& random, int count, double x, double y, double inner, double outer) {
    Ring ring;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * 3.14159265358979 * (i + random.Double(0.05, 0.95)) / count;
        const double radius = random.Double(inner, outer);
        ring.emplace_back(x + radius * std::cos(angle), y + radius * std::sin(angle), random.Double(-1.0, 1.0));
    }
    MakeCounterClockwise(ring);  // three vertices may leave the centre outside and run round it the other way
    return ring;
}

/// The outline of a random polyomino without holes in its first component: unit edges, or runs joined to long ones.
inline Ring Polyomino(RandomSource& random, int width, int height, bool joinStraight) {
    std::vector<std::vector<char>> cell(static_cast<std::size_t>(width) + 2,
                                        std::vector<char>(static_cast<std::size_t>(height) + 2, 0));
    // A histogram over a base row is simple and has no holes.
    for (int x = 1; x <= width; ++x) {
        const int top = random.Int(1, height);
        for (int y = 1; y <= top; ++y) {
            cell[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] = 1;
        }
    }
    Ring ring;
    const auto isSet = [&](int x, int y) {
        return x >= 0 && y >= 0 && x <= width + 1 && y <= height + 1 &&
               cell[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)] != 0;
    };
    // Walk the boundary counter-clockwise from the lower left corner of the lowest cell of column 1.
    int x = 1;
    int y = 1;
    int dx = 1;
    int dy = 0;
    const int startX = x;
    const int startY = y;
    do {
        ring.emplace_back(static_cast<double>(x), static_cast<double>(y));
        // The cells left and right of the step ahead, in corner coordinates.
        const auto leftSet = [&](int ax, int ay) {
            const int cx = dx == 1 ? ax : (dx == -1 ? ax - 1 : (dy == 1 ? ax - 1 : ax));
            const int cy = dx == 1 ? ay : (dx == -1 ? ay - 1 : (dy == 1 ? ay : ay - 1));
            return isSet(cx, cy);
        };
        x += dx;
        y += dy;
        for (int turn = 0; turn < 3; ++turn) {
            // Try right, straight, left of the present direction: the first with the inside at its left and the outside
            // at its right keeps the walk on the boundary.
            const int oldDx = dx;
            const int oldDy = dy;
            if (turn == 0) {
                dx = oldDy;
                dy = -oldDx;
            } else {
                dx = -oldDy;
                dy = oldDx;
            }
            if (leftSet(x, y)) {
                break;
            }
        }
    } while (x != startX || y != startY);
    if (!joinStraight) {
        return ring;
    }
    Ring joined;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const QnGePoint& before = ring[(i + ring.size() - 1) % ring.size()];
        const QnGePoint& here = ring[i];
        const QnGePoint& after = ring[(i + 1) % ring.size()];
        const double turn = (here.x - before.x) * (after.y - here.y) - (here.y - before.y) * (after.x - here.x);
        if (turn != 0.0 || random.OneIn(5)) {
            joined.push_back(here);
        }
    }
    return joined;
}

/// Points of a small lattice in any order: crosses itself as a rule, with many coincident and collinear edges.
inline Ring LatticeWalk(RandomSource& random, int count, int size) {
    Ring ring;
    for (int i = 0; i < count; ++i) {
        ring.emplace_back(random.Int(0, size), random.Int(0, size));
    }
    return ring;
}

/// A comb of `teeth` spikes that stand up from a bar.
inline Ring Comb(int teeth, double x, double y, double pitch, double height, bool pointUp) {
    Ring ring;
    const double s = pointUp ? 1.0 : -1.0;
    ring.emplace_back(x, y - s);
    ring.emplace_back(x + teeth * pitch, y - s);
    for (int i = teeth; i-- > 0;) {
        ring.emplace_back(x + (i + 1) * pitch, y);
        ring.emplace_back(x + (i + 0.5) * pitch, y + s * height);
    }
    ring.emplace_back(x, y);
    MakeCounterClockwise(ring);
    return ring;
}

inline Ring Moved(Ring ring, double dx, double dy) {
    for (QnGePoint& p : ring) {
        p.x += dx;
        p.y += dy;
    }
    return ring;
}

inline Ring Turned(Ring ring, double angle, double scale) {
    for (QnGePoint& p : ring) {
        const double x = p.x;
        p.x = scale * (x * std::cos(angle) - p.y * std::sin(angle));
        p.y = scale * (x * std::sin(angle) + p.y * std::cos(angle));
    }
    return ring;
}

inline Ring Jittered(RandomSource& random, Ring ring, double size) {
    for (QnGePoint& p : ring) {
        p.x += random.Double(-size, size);
        p.y += random.Double(-size, size);
    }
    return ring;
}

inline Ring StartedAt(Ring ring, long first) {
    std::rotate(ring.begin(), ring.begin() + first % static_cast<long>(ring.size()), ring.end());
    return ring;
}

inline Ring WithRepeats(RandomSource& random, const Ring& ring) {
    Ring out;
    for (const QnGePoint& p : ring) {
        out.push_back(p);
        if (random.OneIn(4)) {
            out.push_back(p);
        }
    }
    return out;
}

/// Some vertices of `ring` put onto vertices or edges of `other`.
inline Ring Touching(RandomSource& random, Ring ring, const Ring& other) {
    for (QnGePoint& p : ring) {
        if (random.OneIn(3)) {
            const auto i = static_cast<std::size_t>(random.Long(0, static_cast<long>(other.size()) - 1));
            const QnGePoint& q = other[i];
            const QnGePoint& r = other[(i + 1) % other.size()];
            const double t = random.Coin() ? 0.0 : random.Double(0.0, 1.0);
            p.x = q.x + t * (r.x - q.x);
            p.y = q.y + t * (r.y - q.y);
        }
    }
    return ring;
}

constexpr int KIND_COUNT = 18;

/// A pair of the kind with this number.
inline Pair Make(RandomSource& random, int kind) {
    const int n = random.Int(3, 24);
    const int m = random.Int(3, 24);
    const Ring a = Star(random, n, 0.0, 0.0, 2.0, 5.0);
    const Ring lattice = Polyomino(random, random.Int(1, 5), 4, random.Coin());
    const Ring otherLattice =
        Moved(Polyomino(random, random.Int(1, 5), 4, random.Coin()), random.Int(-3, 3), random.Int(-3, 3));
    const double angle = random.Double(0.0, 6.28);
    switch (kind) {
        case 0:
            return {"general", a, Star(random, m, random.Double(-4.0, 4.0), random.Double(-4.0, 4.0), 1.0, 6.0)};
        case 1:
            return {"polyominoes", lattice, otherLattice};
        case 2:
            return {"lattice walks", LatticeWalk(random, n, 4), LatticeWalk(random, m, 4)};
        case 3:
            return {"equal", a, StartedAt(a, random.Long(0, n - 1))};
        case 4:
            return {"nested", a, Star(random, m, 0.0, 0.0, 0.2, 1.2)};
        case 5: {
            return {"turned polyominoes", Turned(lattice, angle, 1.0), Turned(otherLattice, angle, 1.0)};
        }
        case 6: {
            const double away = random.Coin() ? 1e4 : 1e6;
            return {"turned polyominoes far away", Moved(Turned(lattice, angle, 1.0), away, -away),
                    Moved(Turned(otherLattice, angle, 1.0), away, -away)};
        }
        case 7:
            return {"jittered contacts", Jittered(random, lattice, 1e-9), Jittered(random, otherLattice, 1e-9)};
        case 8:
            return {"contacts jittered about the tolerance", Jittered(random, lattice, 3e-9),
                    Jittered(random, otherLattice, 1e-6)};
        case 9:
            return {"combs", Comb(random.Int(1, 9), 0.0, 0.0, 1.0, 3.0, true),
                    Comb(random.Int(1, 9), random.Double(-1.0, 1.0), 2.0, random.Coin() ? 1.0 : 0.7, 3.0, false)};
        case 10:
            return {"repeated vertices", WithRepeats(random, lattice), WithRepeats(random, otherLattice)};
        case 11:
            return {"touching", a, Touching(random, Star(random, m, 2.0, 1.0, 1.0, 6.0), a)};
        case 12:
            return {"disjoint", a, Star(random, m, 30.0, 0.0, 1.0, 6.0)};
        case 13:
            return {"near-parallel slivers", a, Turned(a, random.Double(-1e-8, 1e-8), 1.0)};
        case 14: {
            const double size = random.Coin() ? 1e-5 : 1e-7;
            return {"tiny", Turned(lattice, angle, size), Turned(otherLattice, angle, size)};
        }
        case 15:
            return {"few vertices", LatticeWalk(random, random.Int(0, 4), 3), LatticeWalk(random, random.Int(0, 4), 3)};
        case 16: {
            Ring spiky = Star(random, 40, 0.0, 0.0, 0.5, 8.0);
            return {"spikes", spiky, Turned(spiky, random.Double(0.0, 1.0), random.Double(0.5, 1.5))};
        }
        default: {
            Ring reversed = a;
            std::reverse(reversed.begin(), reversed.end());
            return {"clockwise operand", reversed, Star(random, m, 1.0, 0.0, 1.0, 6.0)};
        }
    }
}

}  // namespace polygon_pairs
