// SPDX-License-Identifier: Apache-2.0
// The hit test against the winding number: inside is where the boundary goes round an odd number of times.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "HitTestOutlines.h"
#include "PolylineTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "polylines/QnGePolyline2d.h"

using namespace polyline_testing;
using polygon_pairs::MakeOutline;
using polygon_pairs::Ring;

namespace {

/// How often the outline goes round `p` counter-clockwise, by the sum of the angles that its edges span.
long Winding(const QnGeMLine2d& line, const QnGePoint& p) {
    double sum = 0.0;
    const long n = line.GetVertexNum();
    for (long i = 0; i < n; ++i) {
        const QnGePoint& a = line.GetVertex(i);
        const QnGePoint& b = line.GetVertex((i + 1) % n);
        const double ax = a.x - p.x;
        const double ay = a.y - p.y;
        const double bx = b.x - p.x;
        const double by = b.y - p.y;
        sum += std::atan2(ax * by - ay * bx, ax * bx + ay * by);
    }
    return std::lround(sum / (2.0 * PI));
}

double DistanceToBoundary(const QnGeMLine2d& line, const QnGePoint& p) {
    double best = INF;
    const long n = line.GetVertexNum();
    for (long i = 0; i < n; ++i) {
        const QnGePoint& a = line.GetVertex(i);
        const QnGePoint& b = line.GetVertex((i + 1) % n);
        const double dx = b.x - a.x;
        const double dy = b.y - a.y;
        const double squared = dx * dx + dy * dy;
        double t = squared > 0.0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / squared : 0.0;
        t = std::min(1.0, std::max(0.0, t));
        best = std::min(best, std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy));
    }
    return best;
}

/// The answer where `p` is clear of the boundary by `clear`; 0 where it is neither on it nor clear of it.
std::uint32_t Expected(const QnGeMLine2d& line, const QnGePoint& p, double clear) {
    const double distance = DistanceToBoundary(line, p);
    if (distance < 1e-7) {
        return HIT_ON;
    }
    if (distance < clear) {
        return 0U;
    }
    return Winding(line, p) % 2 != 0 ? HIT_IN : HIT_OUT;
}

/// Whether a vertex lies so near to the level of `p` that the answer may be a wanted oddity, unless it is right on it.
bool NearLevel(const QnGeMLine2d& line, const QnGePoint& p, double near = 1e-5) {
    for (long i = 0; i < line.GetVertexNum(); ++i) {
        const double gap = std::fabs(line.GetVertex(i).y - p.y);
        if (gap != 0.0 && gap < near) {
            return true;
        }
    }
    return false;
}

struct Tally {
    long on = 0;
    long in = 0;
    long out = 0;
    void Count(std::uint32_t answer) {
        on += answer == HIT_ON;
        in += answer == HIT_IN;
        out += answer == HIT_OUT;
    }
};

}  // namespace

TEST(HitTestWinding, RandomSimpleOutlines) {
    std::printf("seed %u\n", BaseSeed());
    Tally tally;
    for (int i = 0; i < 600; ++i) {
        const unsigned seed = CaseSeed(90, i);
        RandomSource random(seed);
        const Ring ring = polygon_pairs::Star(random, random.Int(3, 60), 1.0, -2.0, 1.0, 5.0);
        QnGeMLine2d line = MakeOutline(ring);
        if (random.Coin()) {
            line.Reverse();
        }
        for (int k = 0; k < 20; ++k) {
            const QnGePoint p(random.Double(-5.0, 7.0), random.Double(-8.0, 4.0));
            const std::uint32_t expected = Expected(line, p, 2e-6);
            if (expected == 0U || NearLevel(line, p)) {
                continue;
            }
            tally.Count(expected);
            ASSERT_EQ(Bits(line.HitTest(p)), expected) << "seed " << seed << " at " << PointToText(p) << '\n'
                                                       << Text(line);
        }
    }
    EXPECT_GT(tally.in, 2000);
    EXPECT_GT(tally.out, 2000);
    EXPECT_GT(tally.in + tally.out, 10000);
}

TEST(HitTestWinding, RandomSelfCrossingOutlines) {
    std::printf("seed %u\n", BaseSeed());
    Tally tally;
    for (int i = 0; i < 600; ++i) {
        const unsigned seed = CaseSeed(91, i);
        RandomSource random(seed);
        const QnGeMLine2d line(RandomPolyline(random, random.Int(3, 30), true, 0.0));
        for (int k = 0; k < 20; ++k) {
            const QnGePoint p(random.Double(-11.0, 11.0), random.Double(-11.0, 11.0));
            const std::uint32_t expected = Expected(line, p, 2e-6);
            if (expected == 0U || NearLevel(line, p)) {
                continue;
            }
            tally.Count(expected);
            ASSERT_EQ(Bits(line.HitTest(p)), expected) << "seed " << seed << " at " << PointToText(p) << '\n'
                                                       << Text(line);
        }
    }
    EXPECT_GT(tally.in, 2000);
    EXPECT_GT(tally.in + tally.out, 10000);
}

TEST(HitTestWinding, LatticeOutlinesAtPointsOnTheLevelsOfTheirVertices) {
    std::printf("seed %u\n", BaseSeed());
    Tally tally;
    for (int i = 0; i < 2500; ++i) {
        const unsigned seed = CaseSeed(92, i);
        RandomSource random(seed);
        const int size = random.Int(2, 8);
        Ring ring;
        switch (random.Int(0, 2)) {
            case 0:
                ring = polygon_pairs::LatticeWalk(random, random.Int(3, 25), size);
                break;
            case 1:
                ring = polygon_pairs::Polyomino(random, size, 5, random.Coin());
                break;
            default:
                ring = hit_test_outlines::Stairs(random, random.Int(3, 40));
                break;
        }
        const auto same = [](const QnGePoint& a, const QnGePoint& b) { return a.x == b.x && a.y == b.y; };
        ring.erase(std::unique(ring.begin(), ring.end(), same), ring.end());
        while (ring.size() > 1 && same(ring.front(), ring.back())) {
            ring.pop_back();
        }
        const QnGeMLine2d line = MakeOutline(ring);
        for (int k = 0; k < 20; ++k) {
            const double x = random.Int(-2, 18) / 2.0;
            const double y = random.Int(-2, 18) / 2.0;
            const QnGePoint p(x, y);
            const std::uint32_t expected = Expected(line, p, 1e-5);
            tally.Count(expected);
            ASSERT_EQ(Bits(line.HitTest(p)), expected) << "seed " << seed << " at " << PointToText(p) << '\n'
                                                       << Text(line);
        }
    }
    EXPECT_GT(tally.in, 2000);
    EXPECT_GT(tally.on, 2000);
    EXPECT_GT(tally.in + tally.out + tally.on, 20000);
}

TEST(HitTestWinding, LatticeOutlinesSayTheSameFarAwayAndInAnyScale) {
    for (int i = 0; i < 400; ++i) {
        const unsigned seed = CaseSeed(93, i);
        RandomSource random(seed);
        const Ring ring = polygon_pairs::LatticeWalk(random, random.Int(3, 20), 6);
        const QnGeMLine2d line = MakeOutline(ring);
        const double scale = random.Coin() ? 1024.0 : 1.0 / 64.0;
        const double away = random.Coin() ? 0.0 : 1048576.0;
        QnGeMLine2d other(line);
        for (long k = 0; k < other.GetVertexNum(); ++k) {
            other[k].x = other[k].x * scale + away;
            other[k].y = other[k].y * scale - away;
        }
        for (int k = 0; k < 20; ++k) {
            const QnGePoint p(random.Int(-2, 14) / 2.0, random.Int(-2, 14) / 2.0);
            const QnGePoint q(p.x * scale + away, p.y * scale - away);
            ASSERT_EQ(Bits(other.HitTest(q)), Bits(line.HitTest(p))) << "seed " << seed << " at " << PointToText(p);
        }
    }
}

TEST(HitTestWinding, BulgedOutlinesAgainstFineChords) {
    std::printf("seed %u\n", BaseSeed());
    Tally tally;
    for (int i = 0; i < 800; ++i) {
        const unsigned seed = CaseSeed(94, i);
        RandomSource random(seed);
        const QnGePolyline2d line = random.Coin() ? ConvexBulged(random, random.Int(2, 12), true)
                                                  : RandomPolyline(random, random.Int(2, 8), true, 0.6);
        const std::unique_ptr<QnGeMLine2d> chords(line.MLinearize(0.02));
        double widest = 0.0;
        for (long k = 0; k < line.GetSegNum(); ++k) {
            QnGeArc2d arc;
            if (line.IsArcSeg(k)) {
                line.GetSegment(k, arc);
                widest = std::max(widest, arc.GetRadius());
            }
        }
        const double sag = widest * 0.02 * 0.02 / 8.0;
        for (int k = 0; k < 24; ++k) {
            const QnGePoint p(random.Double(-12.0, 12.0), random.Double(-12.0, 12.0));
            // An arc reaches back before its start by up to g_angleZero.
            const double reach = 2e-6 + 1.1 * g_angleZero * widest;
            if (DistanceToBoundary(*chords, p) <= 1.1 * sag + reach || NearLevel(line, p, reach)) {
                continue;
            }
            const std::uint32_t expected = Winding(*chords, p) % 2 != 0 ? HIT_IN : HIT_OUT;
            tally.Count(expected);
            ASSERT_EQ(Bits(line.HitTest(p)), expected) << "seed " << seed << " at " << PointToText(p) << '\n'
                                                       << Text(line);
        }
    }
    EXPECT_GT(tally.in, 2000);
    EXPECT_GT(tally.in + tally.out, 10000);
}

TEST(HitTestWinding, BulgedLatticeOutlinesOnEveryLevelThatMatters) {
    // Half and quarter circles over lattice edges, at points on the levels of vertices, centres and outermost points.
    std::printf("seed %u\n", BaseSeed());
    Tally tally;
    for (int i = 0; i < 700; ++i) {
        const unsigned seed = CaseSeed(95, i);
        RandomSource random(seed);
        const Ring ring = polygon_pairs::Polyomino(random, random.Int(1, 4), 4, random.Coin());
        QnGePolyline2d line(0, true);
        for (const QnGePoint& p : ring) {
            constexpr double BULGES[] = {0.0, 0.0, PI, -PI, PI / 2.0, -PI / 2.0};
            line.AppendVertex(QnGePoint(4.0 * p.x, 4.0 * p.y), BULGES[random.Int(0, 5)]);
        }
        const std::unique_ptr<QnGeMLine2d> chords(line.MLinearize(0.02));
        for (int k = 0; k < 20; ++k) {
            const QnGePoint p(random.Double(-4.0, 26.0), random.Int(-4, 26));
            if (DistanceToBoundary(*chords, p) < 2e-3) {
                continue;
            }
            const std::uint32_t expected = Winding(*chords, p) % 2 != 0 ? HIT_IN : HIT_OUT;
            tally.Count(expected);
            ASSERT_EQ(Bits(line.HitTest(p)), expected) << "seed " << seed << " at " << PointToText(p) << '\n'
                                                       << Text(line);
        }
    }
    EXPECT_GT(tally.in, 1000);
    EXPECT_GT(tally.in + tally.out, 10000);
}

TEST(HitTestWinding, PointsOnTheBoundaryAreOn) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(96, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RandomPolyline(random, random.Int(2, 9), random.Coin(), 0.5);
        const double pa = random.OneIn(8) ? random.Int(0, 8) / 8.0 : random.Double(0.0, 1.0);
        QnGePoint p;
        line.GetPtFromPa(pa, p);
        ASSERT_TRUE(line.HitTest(p).HasBit(HIT_ON)) << "seed " << seed << " at " << pa << '\n' << Text(line);
        const QnGeMLine2d chords(line);
        chords.GetPtFromPa(pa, p);
        ASSERT_EQ(Bits(chords.HitTest(p)), HIT_ON) << "seed " << seed << " at " << pa << '\n' << Text(line);
    }
}
