// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeTolerance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <memory>
#include <random>

#include "frame/QnPushVar.h"
#include "regions/QnGePolygon2d.h"

namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

double Above(double value) {
    return std::nextafter(value, INF);
}

/// The definition of the angle wrap, one recursion per turn. The library's form must give the same bits.
double WrapAngleByRecursion(double a) {
    if (a > 1e-5) {
        const double t = a - 6.2831853071796;
        if (t < -1e-5) {
            return a;
        }
        if (t <= 1e-5) {
            return 0.0;
        }
        return WrapAngleByRecursion(t);
    }
    if (a < -1e-5) {
        return WrapAngleByRecursion(a + 6.2831853071796);
    }
    return 0.0;
}

double WrapPaByRecursion(double pa, double period) {
    if (!(1e-9 < period)) {
        return pa;
    }
    if (pa > 1e-9) {
        const double t = pa - period;
        if (t < -1e-9) {
            return pa;
        }
        if (t <= 1e-9) {
            return 0.0;
        }
        return WrapPaByRecursion(t, period);
    }
    if (pa < -1e-9) {
        return WrapPaByRecursion(pa + period, period);
    }
    return 0.0;
}

std::mt19937_64 SeededEngine(unsigned long long defaultSeed) {
    const char* chosen = std::getenv("QUARN_TEST_SEED");
    const unsigned long long seed = chosen == nullptr ? defaultSeed : std::strtoull(chosen, nullptr, 10);
    std::cout << "seed " << seed << '\n';
    return std::mt19937_64(seed);
}

}  // namespace

TEST(QnGeTolerance, GlobalsHaveTheirInitialValues) {
    EXPECT_EQ(g_fZero, 1e-9);
    EXPECT_EQ(g_distZero, 1e-6);
    EXPECT_EQ(g_angleZero, 1e-5);
    EXPECT_EQ(g_areaZero, 1e-6);
    EXPECT_EQ(g_volumeZero, 1e-6);
}

TEST(QnGeTolerance, GlobalsAreWritable) {
    for (double* global : {&g_fZero, &g_distZero, &g_angleZero, &g_areaZero, &g_volumeZero}) {
        const QnPushVar<double> change(*global, 0.5);
        EXPECT_EQ(*global, 0.5);
    }
}

TEST(QnGeTolerance, ConstantsAreTheStatedLiterals) {
    EXPECT_EQ(QN_TWO_PI, 6.2831853071796);
    EXPECT_EQ(QN_PI, 3.141592653589793);
    EXPECT_EQ(QN_HALF_PI, 1.5707963267948966);
    EXPECT_EQ(QN_THREE_HALF_PI, 4.71238898038469);
    EXPECT_EQ(QN_FAR_LIMIT, 1e50);
}

TEST(QnGeTolerance, KeptOddTwoPiIsNotTwicePi) {
    EXPECT_NE(QN_TWO_PI, 2.0 * QN_PI);
    EXPECT_NEAR(QN_TWO_PI, 2.0 * QN_PI, 1e-13);
}

TEST(QnGeTolerance, ZeroIncludesBothEnds) {
    EXPECT_TRUE(IsZero(0.0, 0.25));
    EXPECT_TRUE(IsZero(0.25, 0.25));
    EXPECT_TRUE(IsZero(-0.25, 0.25));
    EXPECT_FALSE(IsZero(Above(0.25), 0.25));
    EXPECT_FALSE(IsZero(-Above(0.25), 0.25));
    EXPECT_FALSE(IsZero(NOT_A_NUMBER, 0.25));
}

TEST(QnGeTolerance, GreaterAndLessExcludeTheEnds) {
    EXPECT_FALSE(IsGreater(0.25, 0.25));
    EXPECT_TRUE(IsGreater(Above(0.25), 0.25));
    EXPECT_FALSE(IsLess(-0.25, 0.25));
    EXPECT_TRUE(IsLess(-Above(0.25), 0.25));
    EXPECT_FALSE(IsGreater(NOT_A_NUMBER, 0.25));
    EXPECT_FALSE(IsLess(NOT_A_NUMBER, 0.25));
}

TEST(QnGeTolerance, EveryNumberIsLessZeroOrGreater) {
    for (const double value : {-1.0, -0.2500001, -0.25, -0.1, 0.0, 0.1, 0.25, 0.2500001, 1.0}) {
        const int answers = int(IsLess(value, 0.25)) + int(IsZero(value, 0.25)) + int(IsGreater(value, 0.25));
        EXPECT_EQ(answers, 1) << value;
    }
}

TEST(GetStdAngle, SnapsToZeroNearZero) {
    EXPECT_EQ(GetStdAngle(0.0), 0.0);
    EXPECT_EQ(GetStdAngle(-1e-6), 0.0);
    EXPECT_EQ(GetStdAngle(1e-5), 0.0);
    EXPECT_EQ(GetStdAngle(-1e-5), 0.0);
    EXPECT_FALSE(std::signbit(GetStdAngle(-0.0)));
}

TEST(GetStdAngle, KeepsWhatIsJustBeyondTheTolerance) {
    EXPECT_EQ(GetStdAngle(Above(1e-5)), Above(1e-5));
    EXPECT_EQ(GetStdAngle(-2e-5), -2e-5 + QN_TWO_PI);
}

TEST(GetStdAngle, SnapsToZeroNearAFullTurn) {
    EXPECT_EQ(GetStdAngle(6.2831853071796), 0.0);
    EXPECT_EQ(GetStdAngle(6.28318), 0.0);
    EXPECT_EQ(GetStdAngle(6.28319), 0.0);
    EXPECT_EQ(GetStdAngle(2.0 * QN_TWO_PI), 0.0);
    EXPECT_EQ(GetStdAngle(-QN_TWO_PI), 0.0);
}

TEST(GetStdAngle, LeavesAnglesInsideTheTurnUnchanged) {
    EXPECT_EQ(GetStdAngle(6.28), 6.28);
    EXPECT_EQ(GetStdAngle(3.0), 3.0);
    EXPECT_EQ(GetStdAngle(0.001), 0.001);
}

TEST(GetStdAngle, WrapsByWholeTurns) {
    EXPECT_EQ(GetStdAngle(7.0), 7.0 - QN_TWO_PI);
    EXPECT_EQ(GetStdAngle(-1.0), -1.0 + QN_TWO_PI);
    EXPECT_EQ(GetStdAngle(14.0), 14.0 - QN_TWO_PI - QN_TWO_PI);
}

TEST(GetStdAngle, NonFiniteGivesZero) {
    EXPECT_EQ(GetStdAngle(INF), 0.0);
    EXPECT_EQ(GetStdAngle(-INF), 0.0);
    EXPECT_EQ(GetStdAngle(NOT_A_NUMBER), 0.0);
}

TEST(GetStdAngle, HugeAnglesComeBackInsideTheTurn) {
    for (const double a : {1e8, -1e8, 1e15, -1e15, 1e300, -1e300}) {
        const double wrapped = GetStdAngle(a);
        EXPECT_GE(wrapped, 0.0) << a;
        EXPECT_LT(wrapped, QN_TWO_PI) << a;
    }
}

TEST(GetStdAngle, ReadsTheToleranceAtEachCall) {
    const QnPushVar<double> wide(g_angleZero, 0.5);
    EXPECT_EQ(GetStdAngle(0.5), 0.0);
    EXPECT_EQ(GetStdAngle(6.0), 0.0);
    EXPECT_EQ(GetStdAngle(0.6), 0.6);
}

TEST(GetStdAngle, EqualsTheLiteralRecursionBitForBit) {
    std::mt19937_64 engine = SeededEngine(1101);
    std::uniform_real_distribution<double> anyAngle(-2000.0, 2000.0);
    std::uniform_real_distribution<double> jitter(-3e-5, 3e-5);
    std::uniform_int_distribution<int> turns(-300, 300);
    for (int i = 0; i < 20000; ++i) {
        const double a = i % 2 == 0 ? anyAngle(engine) : turns(engine) * QN_TWO_PI + jitter(engine);
        const double wrapped = GetStdAngle(a);
        ASSERT_EQ(wrapped, WrapAngleByRecursion(a)) << a;
        ASSERT_GE(wrapped, 0.0);
        ASSERT_LT(wrapped, QN_TWO_PI);
        ASSERT_EQ(GetStdAngle(wrapped), wrapped) << a;
    }
}

TEST(GetStdPa, WorksUnderTheParameterTolerance) {
    EXPECT_EQ(GetStdPa(-1e-6, 10.0), 10.0 - 1e-6);
    EXPECT_EQ(GetStdPa(1e-9, 10.0), 0.0);
    EXPECT_EQ(GetStdPa(-1e-9, 10.0), 0.0);
    EXPECT_EQ(GetStdPa(Above(1e-9), 10.0), Above(1e-9));
    EXPECT_EQ(GetStdPa(10.0 - 1e-10, 10.0), 0.0);
    EXPECT_EQ(GetStdPa(10.0 + 1e-10, 10.0), 0.0);
}

TEST(GetStdPa, WholePeriodsGiveZero) {
    EXPECT_EQ(GetStdPa(5.0, 5.0), 0.0);
    EXPECT_EQ(GetStdPa(10.0, 5.0), 0.0);
    EXPECT_EQ(GetStdPa(-5.0, 5.0), 0.0);
}

TEST(GetStdPa, WithoutAPeriodTheParameterComesBack) {
    EXPECT_EQ(GetStdPa(7.0, 0.0), 7.0);
    EXPECT_EQ(GetStdPa(-7.0, 1e-9), -7.0);
    EXPECT_EQ(GetStdPa(7.0, -3.0), 7.0);
    EXPECT_EQ(GetStdPa(7.0, NOT_A_NUMBER), 7.0);
}

TEST(GetStdPa, NonFiniteGivesZeroUnderAPeriod) {
    EXPECT_EQ(GetStdPa(INF, 5.0), 0.0);
    EXPECT_EQ(GetStdPa(-INF, 5.0), 0.0);
    EXPECT_EQ(GetStdPa(NOT_A_NUMBER, 5.0), 0.0);
}

TEST(GetStdPa, HugeParametersComeBackInsideThePeriod) {
    for (const double pa : {1e12, -1e12, 1e300, -1e300}) {
        const double wrapped = GetStdPa(pa, 0.75);
        EXPECT_GE(wrapped, 0.0) << pa;
        EXPECT_LT(wrapped, 0.75) << pa;
    }
}

TEST(GetStdPa, EqualsTheLiteralRecursionBitForBit) {
    std::mt19937_64 engine = SeededEngine(1102);
    std::uniform_real_distribution<double> anyPeriod(0.1, 20.0);
    std::uniform_real_distribution<double> anyPa(-500.0, 500.0);
    std::uniform_real_distribution<double> jitter(-3e-9, 3e-9);
    std::uniform_int_distribution<int> turns(-30, 30);
    for (int i = 0; i < 20000; ++i) {
        const double period = anyPeriod(engine);
        const double pa = i % 2 == 0 ? anyPa(engine) : turns(engine) * period + jitter(engine);
        ASSERT_EQ(GetStdPa(pa, period), WrapPaByRecursion(pa, period)) << pa << " in " << period;
    }
}

TEST(Iacos, ClampsBeyondTheUnitRange) {
    EXPECT_EQ(iacos(1.0), 0.0);
    EXPECT_EQ(iacos(1.0000001), 0.0);
    EXPECT_EQ(iacos(INF), 0.0);
    EXPECT_EQ(iacos(-1.0), QN_PI);
    EXPECT_EQ(iacos(-2.0), QN_PI);
    EXPECT_EQ(iacos(-INF), QN_PI);
}

TEST(Iacos, IsTheArcCosineInside) {
    EXPECT_EQ(iacos(0.0), QN_HALF_PI);
    EXPECT_NEAR(iacos(0.5), QN_PI / 3.0, 1e-15);
    EXPECT_NEAR(iacos(-0.5), 2.0 * QN_PI / 3.0, 1e-15);
}

TEST(Iacos, NanReachesTheArcCosine) {
    EXPECT_TRUE(std::isnan(iacos(NOT_A_NUMBER)));
}

TEST(GetStdPa, AnInfinitePeriodEnds) {
    EXPECT_EQ(GetStdPa(5.0, INF), 5.0);
    EXPECT_EQ(GetStdPa(-5.0, INF), 0.0);
}

// Published for callers: nothing in the library looks at them.
TEST(Tolerances, KeptOddAreaAndVolumeAreInert) {
    const QnPushVar<double> area(g_areaZero, 1e9);
    const QnPushVar<double> volume(g_volumeZero, 1e9);
    QnGePolygon2d a(4);
    QnGePolygon2d b(4);
    const QnGePoint square[] = {{0.0, 0.0}, {2.0, 0.0}, {2.0, 2.0}, {0.0, 2.0}};
    for (long i = 0; i < 4; ++i) {
        a.Outline()[i] = square[i];
        b.Outline()[i] = square[i] + QnGePoint(1.0, 1.0);
    }
    EXPECT_TRUE(a.IsValid());
    EXPECT_EQ(a.Area(), 4.0);
    EXPECT_EQ(a.HitTest(QnGePoint(1.0, 1.0)), HIT_ON);
    const std::unique_ptr<QnGeRegion2d> both(a.Union(b));
    ASSERT_NE(both, nullptr);
    EXPECT_EQ(both->Area(), 7.0);
}
