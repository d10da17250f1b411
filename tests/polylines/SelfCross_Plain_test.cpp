// SPDX-License-Identifier: Apache-2.0
// Lines that cross themselves, against the plain forms: the same pieces in the same order, bit for bit.

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <vector>

#include "PolylineTesting.h"
#include "frame/QnGeObjList.h"
#include "frame/QnPushVar.h"
#include "support/reference/PlainSelfCross.h"

using namespace polyline_testing;

namespace {

constexpr int LATTICE_LINES = 20000;
constexpr int FLOAT_LINES = 3000;
constexpr int LONG_LINES = 1000;

std::vector<unsigned char> RecordOf(const QnGeObjList& list) {
    std::vector<unsigned char> bytes;
    for (QnGeObject* const* entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        const std::vector<unsigned char> record = Record(**entry);
        bytes.push_back(static_cast<unsigned char>((*entry)->GetClassID()));
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    return bytes;
}

std::string TextOf(const QnGeObjList& list) {
    return ToText(list);
}

/// Steps of up to `reach` on a lattice of `size` places a side and `height` up; back and forth on one line is frequent.
QnGeMLine2d LatticeLine(RandomSource& random, int count, int size, int reach, bool closed, int height = 0) {
    QnGeMLine2d line(0, closed);
    int x = random.Int(0, size);
    int y = random.Int(0, size);
    for (int i = 0; i < count; ++i) {
        line.AppendVertex(QnGePoint(x, y, random.Int(0, height)));
        const int oldX = x;
        const int oldY = y;
        while (x == oldX && y == oldY) {
            x = std::min(std::max(oldX + random.Int(-reach, reach), 0), size);
            y = std::min(std::max(oldY + random.Int(-reach, reach), 0), size);
        }
    }
    if (closed && line.GetVertexNum() > 1 && line.GetVertex(0) == line.GetVertex(line.GetVertexNum() - 1)) {
        line.DelVertex(line.GetVertexNum() - 1);
    }
    return line;
}

QnGeMLine2d FloatLine(RandomSource& random, int count, double reach, bool closed) {
    QnGeMLine2d line(0, closed);
    QnGePoint p(random.Double(-10.0, 10.0), random.Double(-10.0, 10.0));
    for (int i = 0; i < count; ++i) {
        line.AppendVertex(p);
        p.x += random.Double(-reach, reach);
        p.y += random.Double(-reach, reach);
        p.z = random.Double(-1.0, 1.0);
    }
    return line;
}

/// Turns and moves a line, so that contacts on the lattice become contacts within rounding.
void Turn(RandomSource& random, QnGeMLine2d& line) {
    line.Rotate(random.Double(0.0, 6.0));
    line.Move(random.Double(-1e3, 1e3), random.Double(-1e3, 1e3));
}

/// Round a circle with flat bows on some of the edges, and now and then a vertex a few places ahead of its turn.
QnGePolyline2d NearlySimpleLine(RandomSource& random, int count, bool closed) {
    QnGePolyline2d line(0, closed);
    for (int i = 0; i < count; ++i) {
        const double ahead = random.OneIn(2 * count) ? random.Double(1.0, 5.0) : 0.0;
        const double angle = 2.0 * PI * (i + ahead) / count;
        const double radius = random.Double(9.5, 10.5);
        const bool isArc = random.Coin() && (closed || i + 1 < count);
        line.AppendVertex(QnGePoint(radius * std::cos(angle), radius * std::sin(angle)),
                          isArc ? random.Double(-0.6, 0.6) : 0.0);
    }
    return line;
}

void ExpectSamePieces(const QnGeMLine2d& line, unsigned seed) {
    QnGeObjList plain;
    QnGeObjList found;
    const bool expected = plain_self_cross::Explode(line, plain);
    const bool answer = line.ExplodeSelfcross(found);
    ASSERT_EQ(answer, expected) << "seed " << seed << '\n' << Text(line);
    ASSERT_EQ(RecordOf(found), RecordOf(plain)) << "seed " << seed << '\n'
                                                << Text(line) << "\n  gives\n"
                                                << TextOf(found) << "\n  instead of\n"
                                                << TextOf(plain);
}

bool HasDoubledVertex(const QnGeMLine2d& line) {
    for (long i = 0; i < line.GetSegNum(); ++i) {
        if (GetDistance2d(line.GetVertex(i), line.GetVertex((i + 1) % line.GetVertexNum())) <= g_distZero) {
            return true;
        }
    }
    return false;
}

}  // namespace

TEST(ExplodeSelfcrossPlain, LatticeLines) {
    std::printf("seed %u\n", BaseSeed());
    long crossing = 0;
    long overlaps = 0;
    for (int i = 0; i < LATTICE_LINES; ++i) {
        const unsigned seed = CaseSeed(140, i);
        RandomSource random(seed);
        const int size = random.Int(1, 12);
        const QnGeMLine2d line = LatticeLine(random, random.Int(2, 40), size, random.Int(1, size), random.Coin());
        ASSERT_NO_FATAL_FAILURE(ExpectSamePieces(line, seed));
        QnGeObjList parts;
        crossing += line.ExplodeSelfcross(parts);
        for (QnGeObject* const* entry = parts.GetFirst(); entry != nullptr; entry = parts.GetNext(entry)) {
            if ((*entry)->GetClassID() == CLASS_ID_LINE_SEG2D) {
                ++overlaps;
                continue;
            }
            const auto& piece = static_cast<const QnGeMLine2d&>(**entry);
            ASSERT_FALSE(HasDoubledVertex(piece)) << "seed " << seed << '\n' << Text(line) << '\n' << Text(piece);
            ASSERT_FALSE(piece.IsSelfCross()) << "seed " << seed << '\n' << Text(line) << '\n' << Text(piece);
        }
    }
    EXPECT_GT(crossing, LATTICE_LINES / 2);
    EXPECT_GT(overlaps, LATTICE_LINES / 2);
}

TEST(ExplodeSelfcrossPlain, TurnedLatticeLines) {
    for (int i = 0; i < LATTICE_LINES; ++i) {
        const unsigned seed = CaseSeed(141, i);
        RandomSource random(seed);
        const int size = random.Int(1, 12);
        QnGeMLine2d line = LatticeLine(random, random.Int(2, 40), size, random.Int(1, size), random.Coin(), 2);
        Turn(random, line);
        ASSERT_NO_FATAL_FAILURE(ExpectSamePieces(line, seed));
    }
}

TEST(ExplodeSelfcrossPlain, RandomLines) {
    for (int i = 0; i < FLOAT_LINES; ++i) {
        const unsigned seed = CaseSeed(142, i);
        RandomSource random(seed);
        const double reach = random.Coin() ? 1.0 : 10.0;
        ASSERT_NO_FATAL_FAILURE(ExpectSamePieces(FloatLine(random, random.Int(2, 60), reach, random.Coin()), seed));
    }
}

TEST(ExplodeSelfcrossPlain, LongLatticeLines) {
    for (int i = 0; i < 300; ++i) {
        const unsigned seed = CaseSeed(143, i);
        RandomSource random(seed);
        QnGeMLine2d line =
            LatticeLine(random, random.Int(100, 300), random.Int(5, 60), random.Int(1, 8), random.Coin());
        if (random.Coin()) {
            Turn(random, line);
        }
        ASSERT_NO_FATAL_FAILURE(ExpectSamePieces(line, seed));
    }
}

TEST(ExplodeSelfcrossPlain, CoordinatesOutOfBounds) {
    const double odd[] = {NOT_A_NUMBER, INF, -INF, 1e200, -1e200, 1e30};
    for (int i = 0; i < FLOAT_LINES; ++i) {
        const unsigned seed = CaseSeed(145, i);
        RandomSource random(seed);
        QnGeMLine2d line = LatticeLine(random, random.Int(2, 50), 6, 3, random.Coin());
        for (int times = random.Int(1, 3); times > 0; --times) {
            QnGePoint& vertex = line[random.Long(0, line.GetVertexNum() - 1)];
            (random.Coin() ? vertex.x : vertex.y) = odd[random.Int(0, 5)];
        }
        ASSERT_NO_FATAL_FAILURE(ExpectSamePieces(line, seed));
    }
}

// A segment without a direction meets whatever lies on a line through it, however far.
TEST(ExplodeSelfcrossPlain, DoubledVertices) {
    for (int i = 0; i < FLOAT_LINES; ++i) {
        const unsigned seed = CaseSeed(146, i);
        RandomSource random(seed);
        QnGeMLine2d line = LatticeLine(random, random.Int(2, 50), 6, 6, random.Coin());
        for (int times = random.Int(1, 4); times > 0; --times) {
            const long k = random.Long(0, line.GetVertexNum() - 1);
            const QnGePoint vertex = line.GetVertex(k);
            line.InsertVertex(k, QnGePoint(vertex.x + (random.Coin() ? 4e-10 : 0.0), vertex.y, vertex.z));
        }
        ASSERT_NO_FATAL_FAILURE(ExpectSamePieces(line, seed));
        ASSERT_EQ(line.IsSelfCross(), plain_self_cross::IsSelfCross(line)) << "seed " << seed << '\n' << Text(line);
    }
}

TEST(ExplodeSelfcrossPlain, UnderOtherTolerances) {
    struct {
        double parameter;
        double length;
        double angle;
    } const tolerances[] = {{1e-9, 0.0, 1e-5},   {1e-9, -1e-6, 1e-5}, {1e-9, -0.1, 1e-5},  {1e-6, 1e-3, 1e-5},
                            {1e-3, 0.5, 1e-5},   {0.01, 1e-6, 1e-5},  {0.3, 1e-6, 1e-5},   {0.0, 1e-6, 1e-5},
                            {-1e-9, 1e-6, 1e-5}, {1e-15, 1e-6, 1e-5}, {1e-9, 1e300, 1e-5}, {1e-9, NOT_A_NUMBER, 1e-5},
                            {1e-9, 1e-6, 0.0},   {1e-9, 1e-6, -1e-5}, {1e-9, 1e-6, -0.5},  {1e-9, 1e-6, 0.5}};
    constexpr int CASES = 300;
    for (const auto& tolerance : tolerances) {
        for (int i = 0; i < CASES; ++i) {
            const unsigned seed = CaseSeed(147, i);
            RandomSource random(seed);
            QnGeMLine2d line = LatticeLine(random, random.Int(2, 40), 6, 6, random.Coin());
            QnGePolyline2d bulged = NearlySimpleLine(random, random.Int(3, 40), random.Coin());
            if (random.Coin()) {
                Turn(random, line);
                Turn(random, bulged);
            }
            const QnPushVar<double> parameter(g_fZero, tolerance.parameter);
            const QnPushVar<double> length(g_distZero, tolerance.length);
            const QnPushVar<double> angle(g_angleZero, tolerance.angle);
            ASSERT_NO_FATAL_FAILURE(ExpectSamePieces(line, seed));
            ASSERT_EQ(line.IsSelfCross(), plain_self_cross::IsSelfCross(line)) << "seed " << seed;
            ASSERT_EQ(bulged.IsSelfCross(), plain_self_cross::IsSelfCross(bulged)) << "seed " << seed;
        }
    }
}

TEST(IsSelfCrossPlain, LongLines) {
    long crossing = 0;
    for (int i = 0; i < LONG_LINES; ++i) {
        const unsigned seed = CaseSeed(144, i);
        RandomSource random(seed);
        QnGePolyline2d line = NearlySimpleLine(random, random.Int(20, 120), random.Coin());
        if (random.Coin()) {
            Turn(random, line);
        }
        const bool expected = plain_self_cross::IsSelfCross(line);
        crossing += expected;
        ASSERT_EQ(line.IsSelfCross(), expected) << "seed " << seed << '\n' << Text(line);
        const QnGeMLine2d chords(line);
        ASSERT_EQ(chords.IsSelfCross(), plain_self_cross::IsSelfCross(chords)) << "seed " << seed << '\n'
                                                                               << Text(chords);
    }
    EXPECT_GT(crossing, LONG_LINES / 5);
    EXPECT_LT(crossing, LONG_LINES * 4 / 5);
}
