// SPDX-License-Identifier: Apache-2.0
// The curve integral of multi-lines and polylines, and what comes from it: area and direction.

#include <gtest/gtest.h>

#include "PolylineTesting.h"
#include "polylines/QnGePolyline2d.h"

using namespace polyline_testing;

namespace {

/// The integral of y dx over points of the line, by the trapezium rule with steps within each segment.
double SampledIntegral(const QnGePolyline2d& line, double from, double to) {
    constexpr int STEPS = 20000;
    double sum = 0.0;
    QnGePoint before;
    line.GetPtFromPa(from, before);
    for (int k = 1; k <= STEPS; ++k) {
        QnGePoint p;
        line.GetPtFromPa(from + (to - from) * k / STEPS, p);
        sum += (p.x - before.x) * (p.y + before.y) / 2.0;
        before = p;
    }
    return sum;
}

/// Area of the polygon of the vertices plus, for each bulge, the signed area between chord and arc.
double SignedArea(const QnGePolyline2d& line) {
    double area = 0.0;
    const long n = line.GetVertexNum();
    for (long i = 0; i < n; ++i) {
        const QnGePoint& p = line.GetVertex(i);
        const QnGePoint& q = line.GetVertex((i + 1) % n);
        area += (p.x * q.y - q.x * p.y) / 2.0;
        const double b = line.GetBulge(i);
        if (line.IsArcSeg(i)) {
            const double chord = std::hypot(q.x - p.x, q.y - p.y);
            const double radius = chord / (2.0 * std::sin(std::fabs(b) / 2.0));
            area += (b > 0.0 ? 1.0 : -1.0) * radius * radius / 2.0 * (std::fabs(b) - std::sin(std::fabs(b)));
        }
    }
    return area;
}

}  // namespace

TEST(Integration, OfNearlyEqualParametersIsZero) {
    const QnGeMLine2d line = Straight("0,5 4,5 4,9 close");
    EXPECT_EQ(line.Integration(0.1, 0.1), 0.0);
    EXPECT_EQ(line.Integration(0.1, 0.1 + 1e-9), 0.0);
    EXPECT_NE(line.Integration(0.1, 0.1 + 3e-9), 0.0);
    EXPECT_EQ(Bulged("0,5@1 4,5").Integration(0.3, 0.3), 0.0);
}

TEST(Integration, WithinOneSegment) {
    const QnGeMLine2d line = Straight("0,5 4,5 4,9");
    EXPECT_NEAR(line.Integration(0.0, 0.25), 10.0, 1e-12);
    EXPECT_NEAR(line.Integration(0.1, 0.4), 0.6 * 4.0 * 5.0, 1e-12);
    EXPECT_NEAR(line.Integration(0.6, 0.9), 0.0, 1e-12);
    EXPECT_NEAR(Straight("0,0 2,2").Integration(0.0, 1.0), 2.0, 1e-12);
}

TEST(Integration, OverSeveralSegments) {
    const QnGeMLine2d line = Straight("0,1 1,1 2,3 3,3 4,0");
    EXPECT_NEAR(line.Integration(0.0, 1.0), 1.0 + 2.0 + 3.0 + 1.5, 1e-12);
    EXPECT_NEAR(line.Integration(0.125, 0.875), 0.5 + 2.0 + 3.0 + (3.0 + 1.5) / 2.0 * 0.5, 1e-12);
    EXPECT_NEAR(line.Integration(0.2, 0.3), 0.2 + 0.2 * (1.0 + 1.4) / 2.0, 1e-12);
}

TEST(Integration, BackwardsIsTheNegative) {
    const QnGePolyline2d line = Bulged("0,1@1 1,1@-1 2,3 3,3@2 4,0 close");
    for (const double a : {0.0, 0.13, 0.4, 0.77}) {
        for (const double b : {0.05, 0.4, 0.55, 1.0}) {
            EXPECT_EQ(line.Integration(b, a), -line.Integration(a, b)) << a << ' ' << b;
        }
    }
}

TEST(Integration, OnArcs) {
    // The upper half of a circle of radius 2 about (0, 1), run from right to left.
    const QnGePolyline2d line = Bulged("2,1@pi -2,1");
    EXPECT_NEAR(line.Integration(0.0, 1.0), -(4.0 + 2.0 * PI), 1e-9);
    EXPECT_NEAR(line.Integration(0.0, 0.5), -(2.0 + PI), 1e-9);
    EXPECT_NEAR(Bulged("2,1@-pi -2,1").Integration(0.0, 1.0), -(4.0 - 2.0 * PI), 1e-9);
}

TEST(Integration, AgreesWithSampledPoints) {
    for (int i = 0; i < 40; ++i) {
        RandomSource random(CaseSeed(50, i));
        const QnGePolyline2d line = ConvexBulged(random, random.Int(2, 7), random.Coin());
        const double a = random.Double(0.001, 0.5);
        const double b = random.Double(a, 0.999);
        ASSERT_NEAR(line.Integration(a, b), SampledIntegral(line, a, b), 1e-3) << Text(line) << ' ' << a << ' ' << b;
    }
}

TEST(Integration, IsAdditive) {
    for (int i = 0; i < 2000; ++i) {
        RandomSource random(CaseSeed(51, i));
        const QnGePolyline2d line = RandomPolyline(random, random.Int(2, 9), random.Coin(), 0.5);
        const double a = random.Double(0.0, 1.0);
        const double b = random.Double(0.0, 1.0);
        const double c = random.Double(0.0, 1.0);
        const double direct = line.Integration(a, c);
        ASSERT_NEAR(line.Integration(a, b) + line.Integration(b, c), direct, 1e-6 * (1.0 + std::fabs(direct)))
            << Text(line) << ' ' << a << ' ' << b << ' ' << c;
    }
}

TEST(Integration, WithoutASegmentIsZero) {
    EXPECT_EQ(QnGeMLine2d().Integration(0.0, 1.0), 0.0);
    EXPECT_EQ(Straight("3,4").Integration(0.0, 1.0), 0.0);
    EXPECT_EQ(QnGePolyline2d().Integration(0.0, 1.0), 0.0);
    EXPECT_EQ(QnGeMLine2d().TotalIntegration(), 0.0);
}

TEST(Area, OfClosedLinesIsPositiveWhateverTheDirection) {
    EXPECT_EQ(Straight("0,0 4,0 4,3 close").Area(), 6.0);
    EXPECT_EQ(Straight("0,0 4,3 4,0 close").Area(), 6.0);
    EXPECT_EQ(Straight("0,0 4,0 4,3").Area(), 0.0);
    EXPECT_EQ(QnGeMLine2d(0, true).Area(), 0.0);
    EXPECT_EQ(Straight("1,1 close").Area(), 0.0);
    EXPECT_EQ(Straight("1,1 5,5 close").Area(), 0.0);
    EXPECT_NEAR(Bulged("2,0@pi -2,0@pi close").Area(), 4.0 * PI, 1e-9);
    EXPECT_NEAR(Bulged("2,0@pi -2,0 close").Area(), 2.0 * PI, 1e-9);
    EXPECT_NEAR(Bulged("2,0@-pi -2,0 close").Area(), 2.0 * PI, 1e-9);
    EXPECT_EQ(Bulged("2,0@pi -2,0").Area(), 0.0);
}

TEST(Area, OfALensIsThatOfItsTwoSegmentsOfACircle) {
    // Two quarter arcs of radius 2 over one chord.
    const QnGePolyline2d lens = Bulged("2,0@pi/2 0,2@pi/2 close");
    EXPECT_NEAR(lens.Area(), 2.0 * (PI - 2.0), 1e-9);
    // The chord side bulged inwards takes the same away as the other adds.
    const QnGePolyline2d crescent = Bulged("2,0@pi/2 0,2@-pi/2 close");
    EXPECT_NEAR(crescent.Area(), 0.0, 1e-9);
}

TEST(Area, KeptOddATinyBulgeCountsAsItsChord) {
    QnGePolyline2d line = Bulged("0,0 1000,0 1000,1000 0,1000 close");
    line.SetBulge(0, g_angleZero);
    EXPECT_EQ(line.Area(), 1e6);
    EXPECT_EQ(line.Length(), 4000.0);
    line.SetBulge(0, 2.0 * g_angleZero);
    EXPECT_GT(line.Area(), 1e6);
}

TEST(Area, OfBulgedShapesFollowsTheClosedFormula) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(52, i);
        RandomSource random(seed);
        QnGePolyline2d line = RandomPolyline(random, random.Int(2, 9), true, 0.5);
        const double expected = SignedArea(line);
        const double tol = 1e-6 * (1.0 + std::fabs(expected));
        ASSERT_NEAR(line.Area(), std::fabs(expected), tol) << "seed " << seed << '\n' << Text(line);
        ASSERT_NEAR(line.TotalIntegration(), -expected, tol);
        ASSERT_NEAR(line.Integration(0.0, 1.0), -expected, tol);
        if (std::fabs(expected) > 1e-3) {
            ASSERT_EQ(line.IsClockwise(), expected < 0.0) << "seed " << seed << '\n' << Text(line);
            line.Reverse();
            ASSERT_EQ(line.IsClockwise(), expected > 0.0) << "seed " << seed << '\n' << Text(line);
        }
    }
}

TEST(Area, ClockwiseIsAPositiveIntegral) {
    EXPECT_FALSE(Straight("0,0 4,0 4,4 close").IsClockwise());
    EXPECT_TRUE(Straight("0,0 4,4 4,0 close").IsClockwise());
    EXPECT_FALSE(Straight("0,0 4,0 close").IsClockwise());
    // Of an open line it is the sign of the integral and no more.
    EXPECT_TRUE(Straight("0,1 4,1").IsClockwise());
    EXPECT_FALSE(Straight("4,1 0,1").IsClockwise());
    EXPECT_FALSE(QnGeMLine2d().IsClockwise());
}

TEST(Length, IsTheSumOfTheSegmentsInPlan) {
    EXPECT_EQ(QnGeMLine2d().Length(), 0.0);
    EXPECT_EQ(Straight("1,1").Length(), 0.0);
    EXPECT_EQ(Straight("0,0 3,4,100").Length(), 5.0);
    EXPECT_EQ(Straight("0,0 3,4 close").Length(), 10.0);
    EXPECT_EQ(Straight("0,0 3,0 0,0 3,0").Length(), 9.0);
    EXPECT_NEAR(Bulged("2,0@pi -2,0 close").Length(), 2.0 * PI + 4.0, 1e-9);
    EXPECT_NEAR(Bulged("2,0@-pi -2,0@pi 2,0").Length(), 4.0 * PI, 1e-9);
    EXPECT_EQ(QnGePolyline2d().Length(), 0.0);
}
