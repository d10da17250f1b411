// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

#include "frame/QnGeTolerance.h"
#include "values/QnGeAnalytic.h"
#include "values/QnGePoint.h"

namespace qn_detail {

/// GetPathType, for inner loops.
///
/// Why so  The stated test is area / leg against the tolerance. The quotient matters only where the area is within
///         rounding of tolerance times leg, so elsewhere a product decides. Without a leg nothing does, and the
///         quotient of nothing by nothing passes neither test.
inline int PathTypeOf(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c) {
    constexpr double SURE = 1.0 + 1e-13;
    const double area = ((c.x - a.x) * (b.y - c.y) - (c.y - a.y) * (b.x - c.x)) / 2.0;
    const double leg = std::fabs(a.x - b.x) + std::fabs(a.y - b.y);
    const double sure = g_distZero * leg * SURE;
    if (area < -sure) {
        return PATH_LEFT;
    }
    if (area > sure) {
        return PATH_RIGHT;
    }
    const double v = area / leg;
    if (IsLess(v, g_distZero)) {
        return PATH_LEFT;
    }
    if (IsGreater(v, g_distZero)) {
        return PATH_RIGHT;
    }
    return PATH_STRAIGHT;
}

}  // namespace qn_detail
