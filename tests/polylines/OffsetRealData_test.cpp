// SPDX-License-Identifier: Apache-2.0
// Icon shapes of straight pieces and arcs: areas, offsets both ways, and offsets that cross themselves taken apart.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "OffsetTesting.h"
#include "support/DataFiles.h"

using namespace polyline_testing;
using namespace offset_testing;
using data_files::ArcDrawing;
using data_files::ArcPolygon;
using data_files::ArcShape;
using data_files::CsvTable;

namespace {

const std::string ARCS = std::string(QUARN_SOURCE_DIR) + "/examples/data/arcs/";
/// Of a plan of 24 by 24 units; the smallest arcs have a radius of about 0.1.
const double DISTANCES[] = {0.02, -0.02, 0.3, -0.3, 1.5, -1.5, 4.0, -4.0};
/// Step along arcs, in radians.
constexpr double CHORD_STEP = 0.05;

struct NamedRing {
    std::string name;
    QnGePolyline2d line;
};

std::vector<NamedRing> AllRings() {
    std::vector<NamedRing> rings;
    for (const char* file : {"icons_filled.txt", "icons_outline.txt"}) {
        for (const ArcShape& shape : data_files::ReadArcShapes(ARCS + file)) {
            for (const ArcPolygon& polygon : shape.polygons) {
                for (const QnGePolyline2d& ring : polygon.rings) {
                    rings.push_back({shape.name, ring});
                }
            }
        }
    }
    return rings;
}

/// The least gap between two moved carriers; not above 0 where they meet.
double Gap(const Carrier& a, const Carrier& b, double dist) {
    if (!a.isArc && !b.isArc) {
        return 0.0;
    }
    if (a.isArc && b.isArc) {
        const double apart = Norm(Between(a.centre, b.centre));
        const double ra = a.RadiusAfter(dist);
        const double rb = b.RadiusAfter(dist);
        return std::max(apart - (ra + rb), std::fabs(ra - rb) - apart);
    }
    const Carrier& arc = a.isArc ? a : b;
    const Carrier& chord = a.isArc ? b : a;
    return std::fabs(chord.ToTheRight(arc.centre) - dist) - arc.RadiusAfter(dist);
}

enum class Expected { TRUE_ANSWER, FALSE_ANSWER, EITHER };

/// What the carriers say of an offset; either where it hangs on a tolerance.
Expected AnswerFor(const QnGePolyline2d& line, const std::vector<Carrier>& carriers, double dist) {
    bool isClose = false;
    for (const Carrier& carrier : carriers) {
        if (carrier.isArc && carrier.RadiusAfter(dist) <= -1e-7) {
            return Expected::FALSE_ANSWER;
        }
        isClose = isClose || (carrier.isArc && carrier.RadiusAfter(dist) < 1e-7);
    }
    const auto n = static_cast<long>(carriers.size());
    for (long k = line.IsClosed() ? 0 : 1; k < n; ++k) {
        const double gap =
            Gap(carriers[static_cast<std::size_t>((k + n - 1) % n)], carriers[static_cast<std::size_t>(k)], dist);
        if (gap > 2e-6 && !isClose) {
            return Expected::FALSE_ANSWER;
        }
        isClose = isClose || gap > 5e-7;
    }
    return isClose ? Expected::EITHER : Expected::TRUE_ANSWER;
}

/// Whether every corner is one of two chords, or arcs and chords run on there without a turn.
bool HasChordCornersOnly(const QnGePolyline2d& line, const std::vector<Carrier>& carriers, double& turns) {
    const auto n = static_cast<long>(carriers.size());
    turns = 0.0;
    for (long k = 0; k < n; ++k) {
        const bool isArc =
            carriers[static_cast<std::size_t>((k + n - 1) % n)].isArc || carriers[static_cast<std::size_t>(k)].isArc;
        const double turn = CornerTurn(line, carriers, k);
        if (isArc && std::fabs(turn) > 1e-9) {
            return false;
        }
        turns += isArc ? 0.0 : std::tan(0.5 * turn);
    }
    return true;
}

void ExpectAtDistance(const QnGePolyline2d& line, const QnGePolyline2d& moved, const std::vector<Carrier>& carriers,
                      double dist, const std::string& name) {
    for (long k = 0; k < line.GetSegNum(); ++k) {
        const Carrier& carrier = carriers[static_cast<std::size_t>(k)];
        EXPECT_NEAR(carrier.ToTheRight(moved.GetVertex(k)), dist, 3e-6) << name << ' ' << k << ' ' << Text(line);
        EXPECT_NEAR(carrier.ToTheRight(EndOf(moved, k)), dist, 3e-6) << name << ' ' << k << ' ' << Text(line);
    }
}

/// Whether an arc meets a neighbour in another point than their common vertex.
bool MeetsANeighbourTwice(const QnGePolyline2d& line) {
    const long n = line.GetSegNum();
    for (long k = 0; k < n; ++k) {
        const std::unique_ptr<QnGeCurve2d> a(line.GetCurveSeg(k));
        const std::unique_ptr<QnGeCurve2d> b(line.GetCurveSeg((k + 1) % n));
        QnGeObjList met;
        a->IntersectWith(*b, met);
        if (met.GetLength() > 1 && (line.IsArcSeg(k) || line.IsArcSeg((k + 1) % n))) {
            return true;
        }
    }
    return false;
}

/// Takes the moved outline apart as chords; answers whether it crossed itself.
bool ExpectTakenApart(const QnGePolyline2d& moved, const std::string& name) {
    const std::unique_ptr<QnGeMLine2d> chords(moved.MLinearize(CHORD_STEP));
    QnGeObjList parts;
    const bool isTaken = chords->ExplodeSelfcross(parts);
    EXPECT_EQ(isTaken, chords->IsSelfCross()) << name << ' ' << Text(moved);
    if (!isTaken) {
        EXPECT_TRUE(parts.IsEmpty());
        EXPECT_FALSE(RunsThroughItself(*chords, 1e-5)) << name << ' ' << Text(moved);
        return false;
    }
    long segments = 0;
    double length = 0.0;
    double area = 0.0;
    for (const QnGeMLine2d* piece : LinesOf(parts, segments)) {
        EXPECT_FALSE(piece->IsSelfCross()) << name << ' ' << Text(moved) << '\n' << Text(*piece);
        EXPECT_FALSE(RunsThroughItself(*piece, 1e-5)) << name << ' ' << Text(moved) << '\n' << Text(*piece);
        EXPECT_EQ(piece->IsClosed(), moved.IsClosed()) << name;
        length += PlanLength(*piece);
        area += SignedArea(*piece);
    }
    if (segments == 0) {
        EXPECT_NEAR(length, PlanLength(*chords), 1e-5) << name << ' ' << Text(moved);
        EXPECT_NEAR(area, SignedArea(*chords), 1e-4) << name << ' ' << Text(moved);
    }
    return true;
}

}  // namespace

TEST(OffsetRealData, AreasAndLengthsAreExact) {
    const CsvTable table(ARCS + "expected_arcs.csv");
    for (const char* file : {"icons_filled.txt", "icons_outline.txt"}) {
        for (const ArcShape& shape : data_files::ReadArcShapes(ARCS + file)) {
            double area = 0.0;
            double length = 0.0;
            for (const ArcPolygon& polygon : shape.polygons) {
                for (const QnGePolyline2d& ring : polygon.rings) {
                    const double signedArea = SignedArea(ring);
                    ASSERT_NEAR(ring.Area(), std::fabs(signedArea), 1e-9) << shape.name;
                    ASSERT_NEAR(ring.Length(), PlanLength(ring), 1e-9) << shape.name;
                    ASSERT_EQ(ring.IsClockwise(), signedArea < 0.0) << shape.name;
                    area += signedArea;
                    length += ring.Length();
                }
            }
            const std::size_t row = table.Find("shape", shape.name);
            ASSERT_NEAR(area, table.Number(row, "area"), 1e-9 * (1.0 + area)) << shape.name;
            ASSERT_NEAR(length, table.Number(row, "perimeter"), 1e-9 * (1.0 + length)) << shape.name;
        }
    }
}

TEST(OffsetRealData, RingsMoveOutwardAndInward) {
    long moves = 0;
    long refusals = 0;
    long crossings = 0;
    long measured = 0;
    long hidden = 0;
    for (const NamedRing& ring : AllRings()) {
        const QnGePolyline2d& line = ring.line;
        const std::vector<Carrier> carriers = CarriersOf(line);
        for (const double dist : DISTANCES) {
            const std::string name = ring.name + " by " + std::to_string(dist);
            QnGePolyline2d moved = line;
            const bool isMoved = moved.Offset(dist);
            const Expected expected = AnswerFor(line, carriers, dist);
            if (expected != Expected::EITHER) {
                EXPECT_EQ(isMoved, expected == Expected::TRUE_ANSWER) << name << ' ' << Text(line);
            }
            if (!isMoved) {
                ++refusals;
                EXPECT_EQ(Record(moved), Record(line)) << name;
                continue;
            }
            ++moves;
            ExpectAtDistance(line, moved, carriers, dist, name);
            const bool isCrossing = ExpectTakenApart(moved, name);
            crossings += isCrossing;
            if (isCrossing != moved.IsSelfCross()) {
                // An arc that leaves its neighbour nearly along the tangent may meet it again at once: too near for
                // chords.
                ++hidden;
                EXPECT_TRUE(!isCrossing && MeetsANeighbourTwice(moved)) << name << ' ' << Text(moved);
            }
            double turns = 0.0;
            if (isCrossing || HasVanished(line, moved) || !HasChordCornersOnly(line, carriers, turns)) {
                continue;
            }
            ++measured;
            double sweeps = 0.0;
            for (long k = 0; k < line.GetSegNum(); ++k) {
                sweeps += BulgeOf(line, k);
            }
            const double area = SignedArea(line) + dist * PlanLength(line) + dist * dist * (0.5 * sweeps + turns);
            EXPECT_NEAR(SignedArea(moved), area, 1e-9 * (1.0 + std::fabs(area))) << name << ' ' << Text(line);
            EXPECT_NEAR(moved.Area(), std::fabs(area), 1e-9 * (1.0 + std::fabs(area))) << name << ' ' << Text(line);
        }
    }
    std::printf("%ld moved, %ld refused, %ld crossing themselves, %ld measured\n", moves, refusals, crossings,
                measured);
    EXPECT_GT(moves, 1000);
    EXPECT_GT(crossings, 80);
    EXPECT_GT(measured, 300);
    EXPECT_LT(hidden, 10);
}

TEST(OffsetRealData, OpenLinesMoveToBothSides) {
    long moves = 0;
    for (const ArcDrawing& drawing : data_files::ReadArcDrawings(ARCS + "icons_lines.txt")) {
        for (const QnGePolyline2d& line : drawing.curves) {
            const std::vector<Carrier> carriers = CarriersOf(line);
            for (const double dist : DISTANCES) {
                const std::string name = drawing.name + " by " + std::to_string(dist);
                QnGePolyline2d moved = line;
                const bool isMoved = moved.Offset(dist);
                const Expected expected = AnswerFor(line, carriers, dist);
                if (expected != Expected::EITHER) {
                    EXPECT_EQ(isMoved, expected == Expected::TRUE_ANSWER) << name << ' ' << Text(line);
                }
                if (!isMoved) {
                    EXPECT_EQ(Record(moved), Record(line)) << name;
                    continue;
                }
                ++moves;
                ExpectAtDistance(line, moved, carriers, dist, name);
                // The ends stay beside the old ones.
                EXPECT_NEAR(Norm(Between(line.GetVertex(0), moved.GetVertex(0))), std::fabs(dist), 1e-9) << name;
                const long last = line.GetVertexNum() - 1;
                EXPECT_NEAR(Norm(Between(line.GetVertex(last), moved.GetVertex(last))), std::fabs(dist), 1e-9) << name;
            }
        }
    }
    EXPECT_GT(moves, 1000);
}
