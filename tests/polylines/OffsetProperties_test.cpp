// SPDX-License-Identifier: Apache-2.0
// Laws of offset and of taking crossings apart, over random shapes; measured without the library's curves.

#include <gtest/gtest.h>

#include <string>

#include "OffsetTesting.h"

using namespace polyline_testing;
using namespace offset_testing;

namespace {

std::string About(unsigned seed, double dist, const QnGeMLine2d& line) {
    return "seed " + std::to_string(seed) + ", distance " + std::to_string(dist) + '\n' + Text(line);
}

QnGeMLine2d RandomLine(RandomSource& random, int count, bool closed) {
    return QnGeMLine2d(RandomPolyline(random, count, closed, 0.0));
}

/// A shape whose corners turn neither hardly nor nearly back, so that carriers meet at a fair angle.
bool HasFairCorners(const QnGePolyline2d& line) {
    const std::vector<Carrier> carriers = CarriersOf(line);
    for (long k = line.IsClosed() ? 0 : 1; k < line.GetSegNum(); ++k) {
        const double turn = std::fabs(CornerTurn(line, carriers, k));
        if (turn < 0.35 || turn > PI - 0.35) {
            return false;
        }
    }
    return true;
}

double GreatestMove(const QnGePolyline2d& a, const QnGePolyline2d& b) {
    double greatest = 0.0;
    for (long k = 0; k < a.GetVertexNum(); ++k) {
        greatest = std::max(greatest, Norm(Between(a.GetVertex(k), b.GetVertex(k))));
    }
    return greatest;
}

double GreatestSweepChange(const QnGePolyline2d& a, const QnGePolyline2d& b) {
    double greatest = 0.0;
    for (long k = 0; k < a.GetVertexNum(); ++k) {
        greatest = std::max(greatest, std::fabs(a.GetBulge(k) - b.GetBulge(k)));
    }
    return greatest;
}

/// The other point in which the carriers of `p` meet, moved ones: its mirror image in the axis of both.
bool OtherMeeting(const Carrier& a, const Carrier& b, const QnGePoint& p, QnGePoint& other) {
    if (!a.isArc && !b.isArc) {
        return false;
    }
    const QnGePoint& centre = a.isArc ? a.centre : b.centre;
    Vec axis = a.isArc && b.isArc ? Between(a.centre, b.centre) : Rotated(a.isArc ? b.unit : a.unit, 0.5 * PI);
    const double length = Norm(axis);
    if (length < 1e-3) {
        return false;
    }
    axis = {axis.x / length, axis.y / length};
    const double beside = Cross(axis, Between(centre, p));
    other = QnGePoint(p.x + 2.0 * beside * axis.y, p.y - 2.0 * beside * axis.x);
    return true;
}

/// Where segment `k` would start if it alone were moved.
QnGePoint MovedStart(const QnGePolyline2d& line, const Carrier& carrier, long k, double dist) {
    const QnGePoint& p = line.GetVertex(k);
    const Vec travel = carrier.Travel(p);
    return QnGePoint(p.x + dist * travel.y, p.y - dist * travel.x);
}

}  // namespace

// ---- offset ----------------------------------------------------------------------------------------

TEST(OffsetLaws, ThereAndBackGivesALineBack) {
    std::printf("seed %u\n", BaseSeed());
    int done = 0;
    for (int i = 0; done < PROPERTY_CASES; ++i) {
        ASSERT_LT(i, 20 * PROPERTY_CASES);
        const unsigned seed = CaseSeed(300, i);
        RandomSource random(seed);
        const QnGeMLine2d line = RandomLine(random, random.Int(2, 10), random.Coin());
        const double dist = random.Double(0.001, 2.0) * (random.Coin() ? 1.0 : -1.0);
        QnGeMLine2d moved = line;
        if (!moved.Offset(dist) || HasVanished(line, moved)) {
            continue;
        }
        ++done;
        // Sharp corners go far out, and what is far is known less well.
        const double far = GreatestMove(line, moved);
        ASSERT_TRUE(moved.Offset(-dist)) << About(seed, dist, line);
        ASSERT_LE(GreatestMove(line, moved), 1e-12 * (10.0 + far) * (10.0 + far)) << About(seed, dist, line);
    }
}

TEST(OffsetLaws, ThereAndBackGivesAPolylineBack) {
    int done = 0;
    long arcs = 0;
    for (int i = 0; done < PROPERTY_CASES; ++i) {
        ASSERT_LT(i, 50 * PROPERTY_CASES);
        const unsigned seed = CaseSeed(301, i);
        RandomSource random(seed);
        const QnGePolyline2d line = ConvexBulged(random, random.Int(3, 6), random.Coin());
        const double dist = random.Double(0.001, 0.1) * (random.Coin() ? 1.0 : -1.0);
        if (!HasFairCorners(line)) {
            continue;
        }
        QnGePolyline2d moved = line;
        ASSERT_TRUE(moved.Offset(dist)) << About(seed, dist, line);
        if (HasVanished(line, moved, 0.1)) {
            continue;
        }
        ++done;
        arcs += line.IsArcExist();
        ASSERT_LE(GreatestMove(line, moved), 7.0 * std::fabs(dist)) << About(seed, dist, line);
        ASSERT_TRUE(moved.Offset(-dist)) << About(seed, dist, line);
        ASSERT_LE(GreatestMove(line, moved), 1e-9) << About(seed, dist, line) << '\n' << Text(moved);
        ASSERT_LE(GreatestSweepChange(line, moved), 1e-9) << About(seed, dist, line) << '\n' << Text(moved);
    }
    EXPECT_GT(arcs, PROPERTY_CASES / 2);
}

TEST(OffsetLaws, ThereAndBackKeepsRoundedCorners) {
    int done = 0;
    for (int i = 0; done < PROPERTY_CASES; ++i) {
        ASSERT_LT(i, 20 * PROPERTY_CASES);
        const unsigned seed = CaseSeed(302, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RoundedStar(random, random.Int(3, 8), random.Double(0.2, 1.0));
        const double dist = random.Double(0.001, 0.5) * (random.Coin() ? 1.0 : -1.0);
        QnGePolyline2d moved = line;
        if (!moved.Offset(dist) || HasVanished(line, moved)) {
            continue;
        }
        ++done;
        const double far = GreatestMove(line, moved);
        ASSERT_TRUE(moved.Offset(-dist)) << About(seed, dist, line);
        ASSERT_LE(GreatestMove(line, moved), 1e-11 * (10.0 + far) * (10.0 + far)) << About(seed, dist, line);
        ASSERT_LE(GreatestSweepChange(line, moved), 1e-7) << About(seed, dist, line) << '\n' << Text(moved);
    }
}

TEST(OffsetLaws, EverySegmentLiesAtTheDistanceFromItsCarrier) {
    int done = 0;
    long arcs = 0;
    for (int i = 0; done < PROPERTY_CASES; ++i) {
        ASSERT_LT(i, 20 * PROPERTY_CASES);
        const unsigned seed = CaseSeed(303, i);
        RandomSource random(seed);
        const double share = random.OneIn(3) ? 0.0 : 0.6;
        const QnGePolyline2d line = RandomPolyline(random, random.Int(2, 10), random.Coin(), share);
        const double dist = random.Double(0.001, 1.0) * (random.Coin() ? 1.0 : -1.0);
        QnGePolyline2d moved = line;
        const std::vector<unsigned char> before = Record(line);
        if (!moved.Offset(dist)) {
            ASSERT_EQ(Record(moved), before) << About(seed, dist, line);
            continue;
        }
        ++done;
        const std::vector<Carrier> carriers = CarriersOf(line);
        for (long k = 0; k < line.GetSegNum(); ++k) {
            const Carrier& carrier = carriers[static_cast<std::size_t>(k)];
            // The ends only: between them a segment can be any way round. Corners may lie far out, and where carriers
            // touch they are right within the tolerance of touching.
            const double tolerance = 3e-6 + 1e-12 * Norm(Between(line.GetVertex(k), moved.GetVertex(k)));
            ASSERT_NEAR(carrier.ToTheRight(moved.GetVertex(k)), dist, tolerance) << k << ' ' << About(seed, dist, line);
            ASSERT_NEAR(carrier.ToTheRight(EndOf(moved, k)), dist, tolerance) << k << ' ' << About(seed, dist, line);
            if (!carrier.isArc || !moved.IsArcSeg(k)) {
                continue;
            }
            ++arcs;
            const double sweep = std::fmod(SweepAfter(line, moved, k) + 4.0 * PI, 2.0 * PI);
            ASSERT_NEAR(std::fabs(moved.GetBulge(k)), sweep, 1e-5) << k << ' ' << About(seed, dist, line);
            ASSERT_EQ(moved.GetBulge(k) < 0.0, carrier.isClockwise) << k << ' ' << About(seed, dist, line);
        }
    }
    EXPECT_GT(arcs, PROPERTY_CASES);
}

TEST(OffsetLaws, OfTwoMeetingPointsTheNearerIsTheCorner) {
    long compared = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(304, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RandomPolyline(random, random.Int(3, 8), random.Coin(), 0.7);
        const double dist = random.Double(0.001, 1.0) * (random.Coin() ? 1.0 : -1.0);
        QnGePolyline2d moved = line;
        if (!moved.Offset(dist)) {
            continue;
        }
        const std::vector<Carrier> carriers = CarriersOf(line);
        const long n = line.GetSegNum();
        for (long k = line.IsClosed() ? 0 : 1; k < n; ++k) {
            const Carrier& a = carriers[static_cast<std::size_t>((k + n - 1) % n)];
            const Carrier& b = carriers[static_cast<std::size_t>(k)];
            const QnGePoint& corner = moved.GetVertex(k);
            QnGePoint other;
            if (!OtherMeeting(a, b, corner, other) || Norm(Between(corner, other)) < 0.01) {
                continue;
            }
            ++compared;
            const QnGePoint start = MovedStart(line, b, k, dist);
            ASSERT_LE(Norm(Between(start, corner)), Norm(Between(start, other)) + 1e-6)
                << k << ' ' << About(seed, dist, line);
        }
    }
    EXPECT_GT(compared, PROPERTY_CASES);
}

TEST(OffsetLaws, TheAreaGrowsByLengthTurnsAndCorners) {
    int done = 0;
    for (int i = 0; done < PROPERTY_CASES; ++i) {
        ASSERT_LT(i, 20 * PROPERTY_CASES);
        const unsigned seed = CaseSeed(305, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RoundedStar(random, random.Int(3, 8), random.Double(0.0, 1.0));
        const double dist = random.Double(-1.0, 1.0);
        const std::vector<Carrier> carriers = CarriersOf(line);
        bool survives = true;
        double turns = 0.0;
        double sweeps = 0.0;
        for (long k = 0; k < line.GetSegNum(); ++k) {
            const Carrier& carrier = carriers[static_cast<std::size_t>(k)];
            survives = survives && (!carrier.isArc || carrier.RadiusAfter(dist) > 1e-6);
            turns += std::tan(0.5 * CornerTurn(line, carriers, k));
            sweeps += BulgeOf(line, k);
        }
        QnGePolyline2d moved = line;
        ASSERT_EQ(moved.Offset(dist), survives) << About(seed, dist, line);
        if (!survives || HasVanished(line, moved)) {
            continue;
        }
        ++done;
        const double area = SignedArea(line) + dist * PlanLength(line) + dist * dist * (0.5 * sweeps + turns);
        const double length = PlanLength(line) + dist * (sweeps + 2.0 * turns);
        ASSERT_NEAR(SignedArea(moved), area, 1e-9 * (1.0 + std::fabs(area))) << About(seed, dist, line);
        ASSERT_NEAR(PlanLength(moved), length, 1e-9 * (1.0 + length)) << About(seed, dist, line);
        // Area() signs nothing.
        ASSERT_NEAR(moved.Area(), std::fabs(area), 1e-8 * (1.0 + std::fabs(area))) << About(seed, dist, line);
    }
}

TEST(OffsetLaws, AMovedSegmentMovesAlongItsNeighbours) {
    int done = 0;
    for (int i = 0; done < PROPERTY_CASES; ++i) {
        ASSERT_LT(i, 20 * PROPERTY_CASES);
        const unsigned seed = CaseSeed(306, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RandomPolyline(random, random.Int(2, 8), random.Coin(), random.Coin() ? 0.0 : 0.6);
        const double dist = random.Double(0.001, 1.0) * (random.Coin() ? 1.0 : -1.0);
        const long n = line.GetSegNum();
        const long at = random.Long(0, n - 1);
        QnGePolyline2d moved = line;
        if (!moved.OffsetSeg(at, dist)) {
            ASSERT_EQ(Record(moved), Record(line)) << About(seed, dist, line);
            continue;
        }
        ++done;
        const std::vector<Carrier> carriers = CarriersOf(line);
        for (long k = 0; k < n; ++k) {
            const Carrier& carrier = carriers[static_cast<std::size_t>(k)];
            const double right = k == at ? dist : 0.0;
            const double tolerance = 3e-6 + 1e-12 * Norm(Between(line.GetVertex(k), moved.GetVertex(k)));
            ASSERT_NEAR(carrier.ToTheRight(moved.GetVertex(k)), right, tolerance)
                << k << " of " << at << ' ' << About(seed, dist, line);
            ASSERT_NEAR(carrier.ToTheRight(EndOf(moved, k)), right, tolerance)
                << k << " of " << at << ' ' << About(seed, dist, line);
        }
        for (long k = 0; k < line.GetVertexNum(); ++k) {
            if (k != at && k != (at + 1) % line.GetVertexNum()) {
                ASSERT_TRUE(IsNear(moved.GetVertex(k), line.GetVertex(k), 0.0)) << About(seed, dist, line);
            }
        }
    }
}

// ---- crossings taken apart -------------------------------------------------------------------------

TEST(ExplodeSelfcrossLaws, PiecesAreFreeOfCrossingsAndTheirLengthsAndAreasAddUp) {
    long crossing = 0;
    long pieces = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(310, i);
        RandomSource random(seed);
        const QnGeMLine2d line = RandomLine(random, random.Int(3, 16), random.Coin());
        QnGeObjList parts;
        const bool isTaken = line.ExplodeSelfcross(parts);
        ASSERT_EQ(isTaken, !parts.IsEmpty());
        if (!isTaken) {
            ASSERT_FALSE(RunsThroughItself(line, 1e-5)) << About(seed, 0.0, line);
            continue;
        }
        ++crossing;
        long segments = 0;
        double length = 0.0;
        double area = 0.0;
        long open = 0;
        for (const QnGeMLine2d* piece : LinesOf(parts, segments)) {
            ASSERT_FALSE(RunsThroughItself(*piece, 1e-5)) << About(seed, 0.0, line) << '\n' << Text(*piece);
            ASSERT_GE(piece->GetVertexNum(), 2) << About(seed, 0.0, line);
            length += PlanLength(*piece);
            area += piece->IsClosed() ? SignedArea(*piece) : 0.0;
            open += !piece->IsClosed();
            ++pieces;
        }
        ASSERT_EQ(segments, 0) << About(seed, 0.0, line);
        ASSERT_NEAR(length, PlanLength(line), 1e-9 * length + 1e-5) << About(seed, 0.0, line);
        ASSERT_EQ(open, line.IsClosed() ? 0 : 1) << About(seed, 0.0, line);
        if (line.IsClosed()) {
            ASSERT_NEAR(area, SignedArea(line), 1e-4) << About(seed, 0.0, line);
        }
    }
    EXPECT_GT(crossing, PROPERTY_CASES / 2);
    EXPECT_GT(pieces, 3 * PROPERTY_CASES);
}

TEST(ExplodeSelfcrossLaws, WithoutOverlapsLengthsOnTheLatticeAddUp) {
    constexpr int LATTICE_LINES = 20000;
    long crossing = 0;
    for (int i = 0; i < LATTICE_LINES; ++i) {
        const unsigned seed = CaseSeed(311, i);
        RandomSource random(seed);
        const int size = random.Int(3, 15);
        QnGeMLine2d line(0, random.Coin());
        for (int left = random.Int(3, 20); left > 0; --left) {
            line.AppendVertex(QnGePoint(random.Int(0, size), random.Int(0, size)));
        }
        if (!line.RemoveDupPoint()) {
            continue;
        }
        QnGeObjList parts;
        if (!line.ExplodeSelfcross(parts)) {
            ASSERT_FALSE(RunsThroughItself(line, 1e-5)) << About(seed, 0.0, line);
            continue;
        }
        ++crossing;
        long segments = 0;
        double length = 0.0;
        for (const QnGeMLine2d* piece : LinesOf(parts, segments)) {
            ASSERT_FALSE(RunsThroughItself(*piece, 1e-5)) << About(seed, 0.0, line) << '\n' << Text(*piece);
            length += PlanLength(*piece);
        }
        ASSERT_EQ(segments % 2, 0) << About(seed, 0.0, line);
        if (segments == 0) {
            ASSERT_NEAR(length, PlanLength(line), 1e-5) << About(seed, 0.0, line);
        }
    }
    EXPECT_GT(crossing, LATTICE_LINES / 2);
}
