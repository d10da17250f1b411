// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeTolerance.h"

#include <cmath>

double g_fZero = 1e-9;
double g_distZero = 1e-6;
double g_angleZero = 1e-5;
double g_areaZero = 1e-6;
double g_volumeZero = 1e-6;

namespace {

// Beyond this many periods the step-by-step wrap would take long, and the argument no longer resolves the tolerance.
constexpr double MOST_STEPS = 1e6;

// One period is taken off or put on at a time: a remainder operation would give other last bits, and results of
// different routines are compared with each other.
double WrapStepwise(double value, double period, double tol) {
    if (!std::isfinite(value)) {
        return 0.0;
    }
    if (std::fabs(value) > MOST_STEPS * period) {
        value = std::fmod(value, period);
    }
    while (true) {
        if (IsGreater(value, tol)) {
            const double rest = value - period;
            if (IsLess(rest, tol)) {
                return value;
            }
            if (IsZero(rest, tol)) {
                return 0.0;
            }
            value = rest;
        } else if (IsLess(value, tol)) {
            value = value + period;
        } else {
            return 0.0;
        }
    }
}

}  // namespace

double GetStdAngle(double a) {
    return WrapStepwise(a, QN_TWO_PI, g_angleZero);
}

double GetStdPa(double pa, double period) {
    if (!(g_fZero < period)) {
        return pa;
    }
    return WrapStepwise(pa, period, g_fZero);
}

double iacos(double x) {
    if (x >= 1.0) {
        return 0.0;
    }
    if (x <= -1.0) {
        return QN_PI;
    }
    return std::acos(x);
}
