// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "values/QnGeAnalytic.h"

using namespace value_testing;

namespace {

constexpr int LEFT = 0;
constexpr int RIGHT = 1;
constexpr int STRAIGHT = -1;

QnGePoint MirroredInX(const QnGePoint& p) {
    return QnGePoint(p.x, -p.y, p.z);
}

/// What one point is to one corner: the turns of the two legs to it, and the answer.
struct CornerRow {
    QnGePoint p;
    int fromFirstLeg, fromSecondLeg;
    std::uint32_t answer;
};

void ExpectCorner(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c, const CornerRow& row) {
    SCOPED_TRACE(PointText(row.p));
    EXPECT_EQ(GetPathType(a, b, row.p), row.fromFirstLeg);
    EXPECT_EQ(GetPathType(b, c, row.p), row.fromSecondLeg);
    EXPECT_EQ(Bits(HitTestAtCorner2d(a, b, c, row.p)), row.answer);
}

/// The plain form, which divides in every case.
int TurnByQuotient(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c) {
    const double area = ((c.x - a.x) * (b.y - c.y) - (c.y - a.y) * (b.x - c.x)) / 2.0;
    const double v = area / (std::fabs(a.x - b.x) + std::fabs(a.y - b.y));
    return v < -g_distZero ? LEFT : (v > g_distZero ? RIGHT : STRAIGHT);
}

}  // namespace

TEST(GetPathType, IsThatOfTheQuotientAtEveryTolerance) {
    constexpr double NONE = std::numeric_limits<double>::quiet_NaN();
    constexpr double INF = std::numeric_limits<double>::infinity();
    Random random(77);
    for (const double tolerance : {1e-6, 0.0, 1e-12, 0.37, 1e9}) {
        const QnPushVar<double> push(g_distZero, tolerance);
        for (int i = 0; i < PROPERTY_CASES; ++i) {
            const QnGePoint a = random.PlanPoint(9.0);
            const QnGePoint b = random.PlanPoint(9.0);
            const QnGePoint c = random.PlanPoint(9.0);
            ASSERT_EQ(GetPathType(a, b, c), TurnByQuotient(a, b, c));
            // at the tolerance, and some roundings to both sides of it
            const double leg = std::fabs(a.x - b.x) + std::fabs(a.y - b.y);
            const double length = std::hypot(b.x - a.x, b.y - a.y);
            const double off = 2.0 * tolerance * leg / (length * length) * (1.0 + 1e-16 * std::pow(10.0, i % 6));
            for (const double side : {off, -off}) {
                const QnGePoint near(a.x - side * (b.y - a.y), a.y + side * (b.x - a.x));
                ASSERT_EQ(GetPathType(a, b, near), TurnByQuotient(a, b, near));
            }
        }
        const double odd[] = {0.0, 1.0, -1.0, 1e-200, 1e200, -1e308, INF, -INF, NONE};
        for (const double x1 : odd) {
            for (const double y1 : odd) {
                for (const double x2 : odd) {
                    for (const double y2 : odd) {
                        const QnGePoint a(x1, y1);
                        const QnGePoint b(x2, y2);
                        const QnGePoint c(y1, x2);
                        ASSERT_EQ(GetPathType(a, b, c), TurnByQuotient(a, b, c))
                            << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2 << " at " << tolerance;
                    }
                }
            }
        }
    }
}

TEST(GetPathType, NamesTheTurn) {
    const QnGePoint a(0.0, 0.0);
    const QnGePoint b(1.0, 0.0);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(1.0, 1.0)), LEFT);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(1.0, -1.0)), RIGHT);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(2.0, 0.0)), STRAIGHT);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(2.0, 1e-7)), STRAIGHT);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(-5.0, 0.0)), STRAIGHT);  // straight back as well
    EXPECT_EQ(GetPathType(a, b, a), STRAIGHT);
    EXPECT_EQ(GetPathType(a, b, b), STRAIGHT);
}

TEST(GetPathType, IgnoresZ) {
    EXPECT_EQ(GetPathType(QnGePoint(0.0, 0.0, 9.0), QnGePoint(1.0, 0.0, -9.0), QnGePoint(1.0, 1.0, 50.0)), LEFT);
}

TEST(GetPathType, TheToleranceIsOnHalfTheHeight) {
    const QnGePoint a(0.0, 0.0);
    const QnGePoint b(1.0, 0.0);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(0.0, 2e-6)), STRAIGHT);  // the value is exactly the tolerance
    EXPECT_EQ(GetPathType(a, b, QnGePoint(0.0, -2e-6)), STRAIGHT);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(0.0, 2.0000001e-6)), LEFT);
    EXPECT_EQ(GetPathType(a, b, QnGePoint(0.0, -2.0000001e-6)), RIGHT);
}

TEST(GetPathType, DividesByTheSumOfTheFirstLegsCoordinates) {
    const QnGePoint a(0.0, 0.0);
    const QnGePoint b(3.0, 4.0);  // 7, not 5
    const QnGePoint c =
        QnGePoint(-4.0, 3.0) * 5e-7;  // the area is 6.25e-6, so the value is 8.9e-7; over 5 it would be 1.25e-6
    EXPECT_EQ(GetPathType(a, b, c), STRAIGHT);
    EXPECT_EQ(GetPathType(a, b, c * 1.2), LEFT);
}

TEST(GetPathType, KeptOddEqualFirstPointsAreStraight) {
    const QnGePoint a(3.0, 4.0);
    EXPECT_EQ(GetPathType(a, a, QnGePoint(50.0, -7.0)), STRAIGHT);
    EXPECT_EQ(GetPathType(a, a, a), STRAIGHT);
}

TEST(GetPathType, KeptOddReversalIsNoLaw) {
    const QnGePoint a(0.0, 0.0);
    const QnGePoint b(1000.0, 0.0);
    const QnGePoint c(1001.0, 1e-6);
    EXPECT_EQ(GetPathType(a, b, c), STRAIGHT);
    EXPECT_EQ(GetPathType(c, b, a), RIGHT);
}

TEST(GetPathType, ReversedPathsNeverTurnToTheSameSide) {
    Random random(2514);
    int bothTurn = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const double size = i % 2 == 0 ? 9.0 : 1e-5;  // every other case with legs near the tolerance
        const QnGePoint a = random.PlanPoint(9.0);
        const QnGePoint b = random.PlanPoint(9.0);
        const QnGePoint c = b + random.PlanPoint(size);
        const int there = GetPathType(a, b, c);
        const int back = GetPathType(c, b, a);
        if (there == STRAIGHT || back == STRAIGHT) {
            continue;
        }
        ++bothTurn;
        ASSERT_EQ(back, 1 - there) << PointText(a) << PointText(b) << PointText(c);
    }
    EXPECT_GT(bothTurn, PROPERTY_CASES / 2);
}

TEST(GetPathType, MirroringInTheXAxisExchangesLeftAndRight) {
    Random random(2501);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        // every other case on multiples of half the tolerance, where all answers are near
        const bool fine = i % 2 == 0;
        QnGePoint p[3];
        for (QnGePoint& point : p) {
            point = fine ? QnGePoint(random.Lattice(6, 0.5e-6), random.Lattice(6, 0.5e-6)) : random.PlanPoint(9.0);
        }
        const int turn = GetPathType(p[0], p[1], p[2]);
        const int mirrored = GetPathType(MirroredInX(p[0]), MirroredInX(p[1]), MirroredInX(p[2]));
        const int expected = turn == STRAIGHT ? STRAIGHT : 1 - turn;
        ASSERT_EQ(mirrored, expected) << PointText(p[0]) << PointText(p[1]) << PointText(p[2]);
    }
}

TEST(GetPathType, AgreesWithTheCrossProductAwayFromTheTolerance) {
    Random random(2502);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint a = random.Point(9.0);
        const QnGePoint b = random.Point(9.0);
        const QnGePoint c = random.Point(9.0);
        const double cross = (b.x - a.x) * (c.y - b.y) - (b.y - a.y) * (c.x - b.x);
        if (std::fabs(cross) < 1e-3) {
            continue;
        }
        ASSERT_EQ(GetPathType(a, b, c), cross > 0.0 ? LEFT : RIGHT);
    }
}

TEST(HitTestAtCorner2d, LeftTurn) {
    const QnGePoint a(0.0, 1.0);
    const QnGePoint b(0.0, 0.0);
    const QnGePoint c(1.0, 0.0);
    const CornerRow rows[] = {{QnGePoint(1.0, 1.0), LEFT, LEFT, IN},
                              {QnGePoint(-1.0, -1.0), RIGHT, RIGHT, OUT},
                              {QnGePoint(1.0, -1.0), LEFT, RIGHT, OUT},
                              {QnGePoint(-1.0, 1.0), RIGHT, LEFT, OUT},
                              {QnGePoint(0.0, 0.5), STRAIGHT, LEFT, ON},
                              {QnGePoint(0.5, 0.0), LEFT, STRAIGHT, ON},
                              {QnGePoint(0.0, 0.0), STRAIGHT, STRAIGHT, ON},
                              {QnGePoint(0.0, 7.0), STRAIGHT, LEFT, ON},  // the legs go on for ever
                              {QnGePoint(7.0, 0.0), LEFT, STRAIGHT, ON},
                              {QnGePoint(0.0, -1.0), STRAIGHT, RIGHT, OUT},
                              {QnGePoint(-1.0, 0.0), RIGHT, STRAIGHT, OUT}};
    ASSERT_EQ(GetPathType(a, b, c), LEFT);
    for (const CornerRow& row : rows) {
        ExpectCorner(a, b, c, row);
    }
}

TEST(HitTestAtCorner2d, RightTurn) {
    const QnGePoint a(0.0, -1.0);
    const QnGePoint b(0.0, 0.0);
    const QnGePoint c(1.0, 0.0);
    const CornerRow rows[] = {{QnGePoint(1.0, -1.0), RIGHT, RIGHT, OUT},     {QnGePoint(-1.0, 1.0), LEFT, LEFT, IN},
                              {QnGePoint(-1.0, -1.0), LEFT, RIGHT, IN},      {QnGePoint(1.0, 1.0), RIGHT, LEFT, IN},
                              {QnGePoint(0.0, -0.5), STRAIGHT, RIGHT, ON},   {QnGePoint(0.5, 0.0), RIGHT, STRAIGHT, ON},
                              {QnGePoint(0.0, 0.0), STRAIGHT, STRAIGHT, ON}, {QnGePoint(0.0, 1.0), STRAIGHT, LEFT, IN},
                              {QnGePoint(-1.0, 0.0), LEFT, STRAIGHT, IN}};
    ASSERT_EQ(GetPathType(a, b, c), RIGHT);
    for (const CornerRow& row : rows) {
        ExpectCorner(a, b, c, row);
    }
}

TEST(HitTestAtCorner2d, StraightPathsCountTheFirstLegOnly) {
    const QnGePoint a(-1.0, 0.0);
    const QnGePoint b(0.0, 0.0);
    for (const QnGePoint& c : {QnGePoint(1.0, 0.0), QnGePoint(-5.0, 0.0), QnGePoint(0.0, 0.0)}) {
        EXPECT_EQ(Bits(HitTestAtCorner2d(a, b, c, QnGePoint(5.0, 1.0))), IN);
        EXPECT_EQ(Bits(HitTestAtCorner2d(a, b, c, QnGePoint(5.0, -1.0))), OUT);
        EXPECT_EQ(Bits(HitTestAtCorner2d(a, b, c, QnGePoint(5.0, 0.0))), ON);
    }
}

TEST(HitTestAtCorner2d, IsTheMeetingOrTheJoinOfTwoHalfPlanes) {
    Random random(2503);
    int tested = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint a = random.PlanPoint(9.0);
        const QnGePoint b = random.PlanPoint(9.0);
        const QnGePoint c = random.PlanPoint(9.0);
        const QnGePoint p = random.PlanPoint(9.0);
        const double turn = (b.x - a.x) * (c.y - b.y) - (b.y - a.y) * (c.x - b.x);
        const double first = (b.x - a.x) * (p.y - b.y) - (b.y - a.y) * (p.x - b.x);
        const double second = (c.x - b.x) * (p.y - c.y) - (c.y - b.y) * (p.x - c.x);
        if (std::fabs(turn) < 1e-3 || std::fabs(first) < 1e-3 || std::fabs(second) < 1e-3) {
            continue;
        }
        const bool in = turn > 0.0 ? first > 0.0 && second > 0.0 : first > 0.0 || second > 0.0;
        ASSERT_EQ(Bits(HitTestAtCorner2d(a, b, c, p)), in ? IN : OUT);
        ++tested;
    }
    EXPECT_GT(tested, PROPERTY_CASES / 2);
}

TEST(IsCrossSeg2d, AsksTheCornerAtTheFirstPoint) {
    const QnGePoint corner(0.0, 0.0);
    EXPECT_TRUE(IsCrossSeg2d(corner, QnGePoint(1.0, 1.0), QnGePoint(1.0, 0.0), QnGePoint(0.0, 1.0)));
    EXPECT_FALSE(IsCrossSeg2d(corner, QnGePoint(-1.0, 1.0), QnGePoint(1.0, 0.0), QnGePoint(0.0, 1.0)));
    EXPECT_FALSE(IsCrossSeg2d(corner, QnGePoint(0.5, 0.0), QnGePoint(1.0, 0.0), QnGePoint(0.0, 1.0)));
}

TEST(IsCrossSeg2d, KeptOddSwappingTheSecondSegmentFlipsTheAnswer) {
    const QnGePoint corner(0.0, 0.0);
    EXPECT_FALSE(IsCrossSeg2d(corner, QnGePoint(1.0, 1.0), QnGePoint(0.0, 1.0), QnGePoint(1.0, 0.0)));
    EXPECT_TRUE(IsCrossSeg2d(corner, QnGePoint(-1.0, 1.0), QnGePoint(0.0, 1.0), QnGePoint(1.0, 0.0)));
}

TEST(IsCrossSeg2d, KeptOddTheFirstSegmentMayEndShortOfTheSecond) {
    EXPECT_TRUE(IsCrossSeg2d(QnGePoint(0.0, 0.0), QnGePoint(0.1, 0.1), QnGePoint(1.0, 0.0), QnGePoint(0.0, 1.0)));
}

TEST(IsCrossSeg2d, EqualsTheCornerTest) {
    Random random(2504);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        QnGePoint p[4];
        for (QnGePoint& point : p) {
            point = QnGePoint(random.Int(-2, 2), random.Int(-2, 2));
        }
        ASSERT_EQ(IsCrossSeg2d(p[0], p[1], p[2], p[3]), HitTestAtCorner2d(p[3], p[0], p[2], p[1]).HasBit(HIT_IN));
    }
}
