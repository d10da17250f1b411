// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "TinTesting.h"
#include "frame/QnGeTolerance.h"
#include "support/RandomSource.h"

// The library's network against the plain one, made of the same nodes: the same triangles with the same node at index
// 0, the same order of all lists, the same tree down to the order in its lists. Whatever makes the library fast must
// not show.

namespace {

using Points = std::vector<QnGePoint>;

struct Kind {
    const char* name;
    std::function<Points(RandomSource&, int)> make;
    TinRules rules;
};

Points Uniform(RandomSource& random, int n, double width, double height) {
    Points points;
    for (int i = 0; i < n; ++i) {
        points.emplace_back(random.Double(0, width), random.Double(0, height), random.Double(-5, 5));
    }
    return points;
}

Points Grid(RandomSource& random, int n, double step, double jitter) {
    Points points;
    const int columns = std::max(2, static_cast<int>(std::sqrt(n)) + random.Int(-1, 3));
    for (int i = 0; i < std::max(n, columns + 1); ++i) {
        points.emplace_back(step * (i % columns) + jitter * random.Double(-1, 1),
                            step * (i / columns) + jitter * random.Double(-1, 1), i % 7);
    }
    return points;
}

Points Turned(Points points, double angle) {
    for (QnGePoint& p : points) {
        p.SetPoint(p.x * std::cos(angle) - p.y * std::sin(angle), p.x * std::sin(angle) + p.y * std::cos(angle));
    }
    return points;
}

Points Moved(Points points, double dx, double dy) {
    for (QnGePoint& p : points) {
        p.SetPoint(p.x + dx, p.y + dy);
    }
    return points;
}

Points Clusters(RandomSource& random, int n) {
    Points points;
    const Points centres = Uniform(random, 1 + n / 25, 1000, 1000);
    for (int i = 0; i < n; ++i) {
        const QnGePoint& c = centres[static_cast<std::size_t>(random.Int(0, static_cast<int>(centres.size()) - 1))];
        const double r = std::pow(10.0, random.Double(-3, 1.5));
        points.emplace_back(c.x + random.Double(-r, r), c.y + random.Double(-r, r), i);
    }
    return points;
}

Points TwoRows(RandomSource& random, int n, double gap) {
    Points points;
    for (int i = 0; i < n; ++i) {
        points.emplace_back(random.Coin() ? i / 2 : random.Double(0, n), i % 2 == 0 ? 0.0 : gap, i);
    }
    points.emplace_back(0.5, gap);
    points.emplace_back(0.25, 0.0);
    return points;
}

Points Circle(RandomSource& random, int n, double radius) {
    Points points;
    for (int i = 0; i < n; ++i) {
        const double angle = random.OneIn(10) ? random.Double(0, QN_TWO_PI) : QN_TWO_PI * i / n;
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle), i);
    }
    return points;
}

/// Every place is one of `base`, moved by a few tolerances or not at all.
Points Near(RandomSource& random, int n, Points base, double far) {
    Points points = base;
    while (static_cast<int>(points.size()) < n) {
        const QnGePoint& p = base[static_cast<std::size_t>(random.Int(0, static_cast<int>(base.size()) - 1))];
        points.emplace_back(p.x + random.Int(-3, 3) * far, p.y + random.Int(-3, 3) * far, random.Int(0, 9));
    }
    return points;
}

Points Lattice(RandomSource& random, int n) {
    Points points;
    const int side = std::max(2, static_cast<int>(1.3 * std::sqrt(n)));
    for (int i = 0; i < n; ++i) {
        points.emplace_back(random.Int(0, side), random.Int(0, side), random.Int(0, 9));
    }
    points.emplace_back(0, 0);
    points.emplace_back(side, 1);
    points.emplace_back(1, side);
    return points;
}

Points Strip(RandomSource& random, int n) {
    Points points;
    for (int i = 0; i < n; ++i) {
        points.emplace_back(random.Double(0, 1000), 0.5 + 0.001 * random.Int(-5, 5), i);
    }
    points.emplace_back(500, 10);
    return points;
}

/// Nodes in grid places and on the lines between them.
Points OnLines(RandomSource& random, int n) {
    Points points = {{0, 0}, {64, 0}, {0, 64}, {64, 64}};
    while (static_cast<int>(points.size()) < n) {
        const double at = random.Int(0, 64);
        const double line = 8.0 * random.Int(0, 8);
        if (random.Coin()) {
            points.emplace_back(at, line, at);
        } else {
            points.emplace_back(line, at, at);
        }
    }
    return points;
}

/// Nodes near the tolerance apart, or on a circle or a line but for rounding: some circles and slivers are not right.
const TinRules COARSE = {true, false, false, true};
/// Nodes about the tolerance apart, or hardly inside a long hull edge: triangles may come to overlap, and links to lead
/// astray.
const TinRules BROKEN = {false, false, false, false};

std::vector<Kind> Kinds() {
    const auto angle = [](RandomSource& r) { return r.Double(0, QN_TWO_PI); };
    return {
        {"uniform", [](RandomSource& r, int n) { return Uniform(r, n, 1000, 1000); }, {}},
        {"uniform, small", [](RandomSource& r, int n) { return Uniform(r, n, 0.1, 0.1); }, COARSE},
        {"uniform, long", [](RandomSource& r, int n) { return Uniform(r, n, 10000, 3); }, {}},
        {"grid", [](RandomSource& r, int n) { return Grid(r, n, 1.0, 0.0); }, {}},
        {"grid of tens", [](RandomSource& r, int n) { return Grid(r, n, 10.0, 0.0); }, {}},
        {"jittered grid", [](RandomSource& r, int n) { return Grid(r, n, 1.0, 0.3); }, {}},
        {"hardly jittered grid", [](RandomSource& r, int n) { return Grid(r, n, 1.0, 1e-6); }, BROKEN},
        {"turned grid", [angle](RandomSource& r, int n) { return Turned(Grid(r, n, 1.0, 0.0), angle(r)); }, COARSE},
        {"turned grid of tens", [angle](RandomSource& r, int n) { return Turned(Grid(r, n, 10.0, 0.0), angle(r)); },
         COARSE},
        {"grid turned by an eighth",
         [](RandomSource& r, int n) { return Turned(Grid(r, n, 10.0, 0.0), QN_HALF_PI / 2.0); }, COARSE},
        {"clusters", [](RandomSource& r, int n) { return Clusters(r, n); }, COARSE},
        {"two rows", [](RandomSource& r, int n) { return TwoRows(r, n, 1.0); }, {}},
        {"two rows far apart", [](RandomSource& r, int n) { return TwoRows(r, n, 300.0); }, {}},
        {"turned rows", [angle](RandomSource& r, int n) { return Turned(TwoRows(r, n, 1.0), angle(r)); }, COARSE},
        {"circle", [](RandomSource& r, int n) { return Circle(r, n, 100.0); }, COARSE},
        {"large circle", [](RandomSource& r, int n) { return Circle(r, n, 1e5); }, COARSE},
        {"near duplicates",
         [](RandomSource& r, int n) { return Near(r, n, Uniform(r, 4 + n / 4, 10, 10), 1.1e-7); },
         {}},
        {"nodes by the tolerance apart",
         [](RandomSource& r, int n) { return Near(r, n, Uniform(r, 4 + n / 4, 10, 10), 4e-7); }, BROKEN},
        {"duplicates", [](RandomSource& r, int n) { return Near(r, n, Uniform(r, 4 + n / 4, 10, 10), 0.0); }, {}},
        {"grid with near duplicates", [](RandomSource& r, int n) { return Near(r, n, Grid(r, 4 + n / 4, 1, 0), 7e-7); },
         BROKEN},
        {"lattice points", [](RandomSource& r, int n) { return Lattice(r, n); }, {}},
        {"strip", [](RandomSource& r, int n) { return Strip(r, n); }, COARSE},
        {"on lines", [](RandomSource& r, int n) { return OnLines(r, n); }, {}},
        {"uniform at 5e5", [](RandomSource& r, int n) { return Moved(Uniform(r, n, 1000, 1000), 5e5, 5e5); }, {}},
        {"uniform at 4e6", [](RandomSource& r, int n) { return Moved(Uniform(r, n, 100, 100), 5e5, 4e6); }, COARSE},
        {"grid at 4e6", [](RandomSource& r, int n) { return Moved(Grid(r, n, 10, 0), 5e5, 4e6); }, {}},
        {"turned grid at 4e6",
         [angle](RandomSource& r, int n) { return Moved(Turned(Grid(r, n, 10, 0), angle(r)), 5e5, 4e6); }, COARSE},
        {"circle at 4e6", [](RandomSource& r, int n) { return Moved(Circle(r, n, 500), 5e5, 4e6); }, COARSE},
        {"lattice at 5e5", [](RandomSource& r, int n) { return Moved(Lattice(r, n), -5e5, 5e5); }, {}},
        {"along the hull",
         [](RandomSource& r, int n) {
             Points points = {{0, 0}, {1000, 0}, {1000, 1000}, {0, 1000}};
             for (int i = 0; i < n; ++i) {
                 points.emplace_back(r.Double(0, 1000), std::pow(10.0, r.Double(-7, 0)), i);
             }
             return points;
         },
         BROKEN},
    };
}

Points Shuffled(RandomSource& random, Points points) {
    if (random.Coin()) {
        for (std::size_t i = points.size(); i > 1; --i) {
            std::swap(points[i - 1], points[static_cast<std::size_t>(random.Long(0, static_cast<long>(i) - 1))]);
        }
    }
    return points;
}

/// Nodes on the sides of a regular polygon, its corners among them.
Points OnSides(RandomSource& random, int n, int corners, double radius) {
    const Points at = [&] {
        Points found;
        for (int i = 0; i <= corners; ++i) {
            const double angle = QN_TWO_PI * (i % corners) / corners;
            found.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
        }
        return found;
    }();
    Points points;
    for (int i = 0; i < n; ++i) {
        const std::size_t side = static_cast<std::size_t>(i % corners);
        const double t = i < corners ? 0.0 : random.Double(0, 1);
        points.emplace_back(at[side].x + t * (at[side + 1].x - at[side].x),
                            at[side].y + t * (at[side + 1].y - at[side].y), i);
    }
    return points;
}

/// The border of a square, each place an integer: hull records by hundreds on one line.
Points SquareBorder(RandomSource& random, int n) {
    const int side = std::max(2, n / 4);
    Points points;
    for (int i = 0; i < 4 * side; ++i) {
        const int at = i % side;
        const int which = i / side;
        points.emplace_back(which == 0 ? at : (which == 1 ? side : (which == 2 ? side - at : 0)),
                            which == 0 ? 0 : (which == 1 ? at : (which == 2 ? side : side - at)), random.Int(0, 9));
    }
    return points;
}

/// A circle whose radius wavers by a few tolerances, or in earnest, with nodes far outside now and then.
Points Wavering(RandomSource& random, int n, double radius, double by) {
    Points points;
    for (int i = 0; i < n; ++i) {
        const double angle = QN_TWO_PI * i / n;
        const double r = radius + by * random.Int(-3, 3) + (random.OneIn(400) ? radius * random.Double(0, 1) : 0.0);
        points.emplace_back(r * std::cos(angle), r * std::sin(angle), i);
    }
    return points;
}

/// Networks whose hull is long for a long while, so that whatever shortens the walk round it is in use.
std::vector<Kind> HullKinds() {
    return {
        {"circle", [](RandomSource& r, int n) { return Shuffled(r, Circle(r, n, 100.0)); }, COARSE},
        {"small circle", [](RandomSource& r, int n) { return Shuffled(r, Circle(r, n, 0.05)); }, BROKEN},
        {"huge circle", [](RandomSource& r, int n) { return Shuffled(r, Circle(r, n, 1e6)); }, COARSE},
        {"circle far off", [](RandomSource& r, int n) { return Shuffled(r, Moved(Circle(r, n, 500), 5e5, 4e6)); },
         COARSE},
        {"circle by tolerances", [](RandomSource& r, int n) { return Shuffled(r, Wavering(r, n, 100, 1e-6)); }, BROKEN},
        {"wavering circle", [](RandomSource& r, int n) { return Shuffled(r, Wavering(r, n, 100, 0.01)); }, BROKEN},
        {"sides of a square", [](RandomSource& r, int n) { return Shuffled(r, OnSides(r, n, 4, 100)); }, BROKEN},
        {"sides of a polygon", [](RandomSource& r, int n) { return Shuffled(r, OnSides(r, n, 50, 1000)); }, BROKEN},
        {"border of a square", [](RandomSource& r, int n) { return Shuffled(r, SquareBorder(r, n)); }, {}},
        {"parabola",
         [](RandomSource& r, int n) {
             Points points;
             for (int i = 0; i < n; ++i) {
                 const double at = i - n / 2.0;
                 points.emplace_back(at, 0.001 * at * at, i);
             }
             return Shuffled(r, points);
         },
         COARSE},
        {"two rows", [](RandomSource& r, int n) { return Shuffled(r, TwoRows(r, n, 10.0)); }, {}},
        {"circle twice",
         [](RandomSource& r, int n) {
             Points points = Circle(r, n / 2, 100.0);
             const Points again = points;
             points.insert(points.end(), again.begin(), again.end());
             return Shuffled(r, points);
         },
         COARSE},
    };
}

/// All on one line, so that MakeTIN would not return, or hardly off it.
bool IsOnALine(const Points& points) {
    double longest = 0.0;
    const QnGePoint* a = &points[0];
    const QnGePoint* b = &points[0];
    for (const QnGePoint& p : points) {
        if (GetDistance2d(p, *a) > longest) {
            longest = GetDistance2d(p, *a);
            b = &p;
        }
    }
    for (const QnGePoint& p : points) {
        if (std::fabs(static_cast<double>(tin_checks::Cross(*a, *b, p))) > 1e-5 * (longest + 1.0)) {
            return false;
        }
    }
    return true;
}

/// Both ways of building: of a whole list, and node by node in the given order.
void ExpectSame(const Points& points, const Kind& kind, bool single, const std::string& label) {
    TinPair tin;
    tin.rules = kind.rules;
    if (single) {
        QnGeExtent2d all(points[0].x, points[0].x, points[0].y, points[0].y);
        for (const QnGePoint& p : points) {
            all += QnGeExtent2d(p.x, p.x, p.y, p.y);
        }
        tin.SetRange(all.x.min, all.x.max, all.y.min, all.y.max);
        tin.Insert(points);
    } else {
        tin.MakeTIN(points);
    }
    const std::string different = CompareTin(tin.graph, tin.plain);
    const std::string wrong = CheckTin(tin.graph, kind.rules);
    EXPECT_EQ(different, "") << label;
    EXPECT_EQ(wrong, "") << label;
    if (points.size() <= 40 && (!different.empty() || !wrong.empty())) {
        std::cout << label << ": " << TextOf(points) << '\n';
    }
}

void RunKinds(const std::vector<Kind>& kinds, int runs, int first, int last) {
    unsigned seed = BaseSeed() + static_cast<unsigned>(last);
    for (const Kind& kind : kinds) {
        for (int run = 0; run < runs && !testing::Test::HasFailure(); ++run) {
            ++seed;
            RandomSource random(seed);
            const int n = random.Int(first, last);
            const Points points = kind.make(random, n);
            if (IsOnALine(points)) {
                continue;
            }
            const std::string label =
                std::string(kind.name) + ", " + std::to_string(n) + " nodes, seed " + std::to_string(seed);
            ExpectSame(points, kind, run % 2 == 0, label);
        }
        if (testing::Test::HasFailure()) {
            return;
        }
    }
}

}  // namespace

TEST(TinAgainstPlain, FewNodes) {
    RunKinds(Kinds(), 150, 3, 12);
}

TEST(TinAgainstPlain, SomeNodes) {
    RunKinds(Kinds(), 50, 13, 60);
}

TEST(TinAgainstPlain, HundredsOfNodes) {
    RunKinds(Kinds(), 8, 100, 500);
}

TEST(TinAgainstPlain, ThousandsOfNodes) {
    RunKinds(Kinds(), 1, 2000, 3000);
}

TEST(TinAgainstPlain, LongHulls) {
    RunKinds(HullKinds(), 4, 300, 1500);
}
