// SPDX-License-Identifier: Apache-2.0
// The hit test of closed lines against its plain form: the same answer on every input, however it was found.

#include <gtest/gtest.h>

#include <string>

#include "HitTestOutlines.h"
#include "PolylineTesting.h"
#include "frame/QnPushVar.h"
#include "support/reference/PlainHitTest.h"

using namespace polyline_testing;
using hit_test_outlines::Offset;
using hit_test_outlines::Outline;
using hit_test_outlines::Probe;
using polygon_pairs::MakeOutline;
using polygon_pairs::Pair;
using polygon_pairs::Ring;

namespace {

/// Answers of the two forms at some points of one outline.
void ExpectPlainAnswers(const QnGeMLine2d& line, const Ring& ring, RandomSource& random, int points) {
    for (int k = 0; k < points; ++k) {
        const QnGePoint p = Probe(random, ring);
        ASSERT_EQ(Bits(line.HitTest(p)), Bits(plain_hit_test::HitTestMLine(line, p))) << "at " << PointToText(p) << "\n"
                                                                                      << Text(line);
    }
}

void RunKinds(int test, int cases, int points) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < cases; ++i) {
        const unsigned seed = CaseSeed(test, i);
        RandomSource random(seed);
        const Pair pair = Outline(random, i % hit_test_outlines::KIND_COUNT);
        SCOPED_TRACE(pair.kind + ", seed " + std::to_string(seed));
        ExpectPlainAnswers(MakeOutline(pair.a), pair.a, random, points);
        if (::testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

/// A polyline over a ring; about half of its segments are arcs if `bulged`.
QnGePolyline2d BulgedOutline(RandomSource& random, const Ring& ring) {
    constexpr double NICE[] = {PI, -PI, PI / 2.0, -PI / 2.0, 1.5 * PI, 1e-4, -1e-4, 1e-5, 2e-5, 6.2};
    QnGePolyline2d line(0, true);
    for (const QnGePoint& p : ring) {
        double bulge = 0.0;
        if (random.Coin()) {
            bulge = random.Coin() ? NICE[random.Int(0, 9)] : random.Double(-3.0, 3.0);
        }
        line.AppendVertex(p, bulge);
    }
    return line;
}

}  // namespace

TEST(PlainHitTest, GivesTheSameAnswerOnOutlinesOfEveryKind) {
    RunKinds(1, 2400, 25);
}

TEST(PlainHitTest, GivesTheSameAnswerUnderOtherTolerances) {
    constexpr double PARAMETER[] = {1e-12, 1e-6, 1e-3, 1e-9, 0.0, -1e-9, 1e-9};
    constexpr double LENGTH[] = {1e-9, 1e-3, 0.1, 1.0, 1e-6, 1e-6, 0.0};
    for (int k = 0; k < 7; ++k) {
        SCOPED_TRACE("tolerances " + std::to_string(k));
        const QnPushVar<double> parameter(g_fZero, PARAMETER[k]);
        const QnPushVar<double> length(g_distZero, LENGTH[k]);
        RunKinds(10 + k, 240, 10);
    }
}

TEST(PlainHitTest, GivesTheSameAnswerOnLargeOutlines) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 6; ++i) {
        const unsigned seed = CaseSeed(20, i);
        RandomSource random(seed);
        SCOPED_TRACE("seed " + std::to_string(seed));
        Ring ring = polygon_pairs::Star(random, 5000 + i, 0.0, 0.0, 3.0, 5.0);
        if (i % 2 == 1) {
            ring = polygon_pairs::Jittered(random, ring, 1e-6);
        }
        ExpectPlainAnswers(MakeOutline(ring), ring, random, 60);
    }
}

TEST(PlainHitTest, GivesTheSameAnswerWhereOneEdgeTowersOverTheRest) {
    // Nearly all vertices lie about the level of the points, so that a look at a few of them tells nothing of the
    // height of the whole.
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 400; ++i) {
        const unsigned seed = CaseSeed(21, i);
        RandomSource random(seed);
        SCOPED_TRACE("seed " + std::to_string(seed));
        Ring ring = hit_test_outlines::Ribbon(random, random.Int(4, 60));
        const auto tall = static_cast<std::size_t>(random.Long(0, static_cast<long>(ring.size()) - 1));
        ring[tall].y = std::pow(10.0, random.Double(0.0, 12.0)) * (random.Coin() ? 1.0 : -1.0);
        ExpectPlainAnswers(MakeOutline(ring), ring, random, 25);
    }
}

TEST(PlainHitTest, GivesTheSameAnswerOnHugeAndTinyCoordinates) {
    // Up to where the square of a length is still a number.
    constexpr double SIZES[] = {1e-158, 1e-12, 1e-6, 5.0, 1e30, 1e140};
    constexpr double ODD[] = {1e150, -1e150, 1e100, 1e30, -1e20, -1e9, 1e-7, 5e-324, -0.0, 1e-160};
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 4000; ++i) {
        const unsigned seed = CaseSeed(25, i);
        RandomSource random(seed);
        SCOPED_TRACE("seed " + std::to_string(seed));
        const double size = SIZES[i % 6];
        const long share = random.Long(1, 6);
        const auto number = [&] { return random.OneIn(share) ? ODD[random.Int(0, 9)] : random.Double(-size, size); };
        Ring ring;
        const int n = random.Int(1, 8);
        for (int k = 0; k < n; ++k) {
            const double x = number();
            ring.emplace_back(x, number());
        }
        ExpectPlainAnswers(MakeOutline(ring), ring, random, 10);
    }
}

TEST(PlainHitTest, GivesTheSameAnswerWithRepeatedVertices) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 800; ++i) {
        const unsigned seed = CaseSeed(22, i);
        RandomSource random(seed);
        SCOPED_TRACE("seed " + std::to_string(seed));
        Ring ring = polygon_pairs::WithRepeats(random, polygon_pairs::LatticeWalk(random, random.Int(1, 20), 4));
        if (random.Coin()) {
            ring = polygon_pairs::Jittered(random, ring, random.Coin() ? 1e-9 : 1e-10);
        }
        ExpectPlainAnswers(MakeOutline(ring), ring, random, 25);
    }
}

TEST(PlainHitTest, GivesTheSameAnswerForFullTurnsOfPointsRoundOneVertex) {
    // Points in rings of a tolerance or so about each vertex and each foot on an edge.
    RandomSource random(CaseSeed(23, 0));
    const Ring ring = polygon_pairs::Turned(polygon_pairs::Polyomino(random, 4, 3, false), 0.3, 1.0);
    const QnGeMLine2d line = MakeOutline(ring);
    for (const QnGePoint& v : ring) {
        for (int k = 0; k < 360; ++k) {
            for (const double r : {1e-12, 1e-9, 1e-7, 9.999999e-7, 1e-6, 1.000001e-6, 1e-5}) {
                const QnGePoint p(v.x + r * std::cos(k * PI / 180.0), v.y + r * std::sin(k * PI / 180.0));
                ASSERT_EQ(Bits(line.HitTest(p)), Bits(plain_hit_test::HitTestMLine(line, p)))
                    << "at " << PointToText(p) << "\n"
                    << Text(line);
            }
        }
    }
}

TEST(PlainHitTest, GivesTheSameAnswerOnBulgedOutlines) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 1500; ++i) {
        const unsigned seed = CaseSeed(24, i);
        RandomSource random(seed);
        const Pair pair = Outline(random, i % hit_test_outlines::KIND_COUNT);
        const QnGePolyline2d line = BulgedOutline(random, pair.a);
        SCOPED_TRACE(pair.kind + ", seed " + std::to_string(seed));
        for (int k = 0; k < 15; ++k) {
            QnGePoint p = Probe(random, pair.a);
            if (line.GetSegNum() > 0 && random.Coin()) {
                // On the level of an arc's centre or of its lowest or highest point.
                QnGeArc2d arc;
                line.GetSegment(random.Long(0, line.GetSegNum() - 1), arc);
                p.y = arc.GetCenter().y + random.Int(-1, 1) * arc.GetRadius() + Offset(random);
            }
            ASSERT_EQ(Bits(line.HitTest(p)), Bits(plain_hit_test::HitTestPolyline(line, p)))
                << "at " << PointToText(p) << "\n"
                << Text(line);
        }
    }
}
