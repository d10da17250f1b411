// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace qn_detail {

/// A computed number of steps cut to whole ones.
///
/// Fails  What is no 32-bit number, infinity and NaN included, gives the most negative one, which every caller
///        takes for "too few". So a step of 0 ends there instead of in an undefined conversion.
inline long StepCount(double count) {
    constexpr double BELOW_ALL = -2147483649.0;
    constexpr double ABOVE_ALL = 2147483648.0;
    constexpr long TOO_FEW = -2147483647L - 1;
    if (!(count > BELOW_ALL && count < ABOVE_ALL)) {
        return TOO_FEW;
    }
    return static_cast<long>(count);
}

/// The number of steps of length `step` that cover `range`, rounded up but for a millionth of a step.
inline long StepsOver(double range, double step) {
    constexpr double ALMOST_ONE = 0.999999;
    return StepCount(range / step + ALMOST_ONE);
}

/// A step below this is no step, and the class's own is taken.
constexpr double SMALLEST_STEP = 1e-09;

}  // namespace qn_detail
