// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <limits>
#include <random>
#include <string>

#include "base/QnBitData.h"
#include "values/QnGePoint.h"

/// What the tests of the value classes share: seeded numbers, near comparisons, a mark for untouched outputs.
namespace value_testing {

/// Value put into output arguments beforehand; a call that must leave them alone leaves this.
constexpr double UNTOUCHED = -777.25;

/// Cases of one property; what a property leaves out as degenerate is always less than half of them.
constexpr int PROPERTY_CASES = 20000;

constexpr double EXACT_PI = 3.14159265358979323846;

/// Random numbers with a printed seed. QUARN_TEST_SEED in the environment replaces the default one.
class Random {
public:
    explicit Random(std::uint64_t defaultSeed) : m_engine(PickSeed(defaultSeed)) {}

    double Real(double low, double high) { return std::uniform_real_distribution<double>(low, high)(m_engine); }
    int Int(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_engine); }
    bool Coin() { return Int(0, 1) == 1; }
    QnGePoint Point(double size) {
        const double x = Real(-size, size);
        const double y = Real(-size, size);
        const double z = Real(-size, size);
        return QnGePoint(x, y, z);
    }
    QnGePoint PlanPoint(double size) {
        const double x = Real(-size, size);
        const double y = Real(-size, size);
        return QnGePoint(x, y, 0.0);
    }
    /// A multiple of `step` in [-count * step, count * step].
    double Lattice(int count, double step) { return Int(-count, count) * step; }

private:
    static std::uint64_t PickSeed(std::uint64_t defaultSeed) {
        const char* chosen = std::getenv("QUARN_TEST_SEED");
        const std::uint64_t seed = chosen == nullptr ? defaultSeed : std::strtoull(chosen, nullptr, 10);
        std::cout << "seed " << seed << '\n';
        return seed;
    }
    std::mt19937_64 m_engine;
};

inline std::string PointText(const QnGePoint& p) {
    return "(" + ::testing::PrintToString(p.x) + ", " + ::testing::PrintToString(p.y) + ", " +
           ::testing::PrintToString(p.z) + ")";
}

/// All three coordinates within `tol`.
inline ::testing::AssertionResult IsNear(const QnGePoint& actual, const QnGePoint& expected, double tol = 1e-12) {
    const bool near = std::fabs(actual.x - expected.x) <= tol && std::fabs(actual.y - expected.y) <= tol &&
                      std::fabs(actual.z - expected.z) <= tol;
    if (near) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << PointText(actual) << " instead of " << PointText(expected);
}

/// All three coordinates equal without tolerance.
inline ::testing::AssertionResult IsExactly(const QnGePoint& actual, double x, double y, double z) {
    if (actual.x == x && actual.y == y && actual.z == z) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << PointText(actual) << " instead of " << PointText(QnGePoint(x, y, z));
}

inline double Above(double value) {
    return std::nextafter(value, std::numeric_limits<double>::infinity());
}
inline double Below(double value) {
    return std::nextafter(value, -std::numeric_limits<double>::infinity());
}

inline double PlanDistance(const QnGePoint& p, const QnGePoint& q) {
    return std::hypot(p.x - q.x, p.y - q.y);
}
inline double SpaceDistance(const QnGePoint& p, const QnGePoint& q) {
    return std::hypot(p.x - q.x, p.y - q.y, p.z - q.z);
}

constexpr std::uint32_t ON = HIT_ON;
constexpr std::uint32_t IN = HIT_IN;
constexpr std::uint32_t OUT = HIT_OUT;

inline std::uint32_t Bits(const QnBitData& hit) {
    return hit.GetBits();
}

}  // namespace value_testing
