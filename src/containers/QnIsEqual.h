// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <type_traits>

#include "frame/QnGeTolerance.h"

/// Whether two elements of a sequence are the same one for searching and for comparing sequences.
///
/// Tolerance  g_fZero on floating point values, both ends inclusive; every other type answers by its own `operator==`.
/// Kept odd   NaN and equal infinities are not equal to themselves.
template <class T>
inline bool QnIsEqual(const T& a, const T& b) {
    if constexpr (std::is_floating_point_v<T>) {
        return IsZero(static_cast<double>(a - b), g_fZero);
    } else {
        return a == b;
    }
}
