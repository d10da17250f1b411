// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

namespace qn_detail {

/// A tolerance brought into [1e-18, 0.1], so that neither a tiny nor a huge shape makes it useless. NaN gives 0.1.
inline double ClampTolerance(double tol) {
    constexpr double WIDEST = 0.1;
    constexpr double NARROWEST = 1e-18;
    if (!(tol <= WIDEST)) {
        return WIDEST;
    }
    return tol < NARROWEST ? NARROWEST : tol;
}

/// g_distZero as a share of a curve of this length: the slack of a unit parameter.
inline double UnitPaTolerance(double length) {
    return ClampTolerance(g_distZero / length);
}

/// Whether `x` lies in [0, 1], both ends widened by `tol`.
inline bool IsInUnitRange(double x, double tol) {
    const QnPushVar<double> widened(g_fZero, tol);
    return x >= -g_fZero && x - 1.0 <= g_fZero;
}

}  // namespace qn_detail
