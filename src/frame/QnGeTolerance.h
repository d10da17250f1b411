// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"

/// Tolerances of the whole library: plain data that a caller may change between calls and that is read at every use.
///
/// Lengths (coincident points, distance to a curve, radii) compare under g_distZero; parameters, determinants, dot and
/// cross products of unit vectors under g_fZero; differences of angles under g_angleZero.
extern QUARNGEO_API double g_fZero;      ///< 1e-9, dimensionless
extern QUARNGEO_API double g_distZero;   ///< 1e-6, model length
extern QUARNGEO_API double g_angleZero;  ///< 1e-5, radians

/// Published for callers; no test of the library reads them.
extern QUARNGEO_API double g_areaZero;    ///< 1e-6
extern QUARNGEO_API double g_volumeZero;  ///< 1e-6

/// The library's own full turn. Every addition, subtraction and wrap of a turn uses this shortened value: angles that
/// one routine wraps and another compares agree only because both do.
constexpr double QN_TWO_PI = 6.2831853071796;

constexpr double QN_PI = 3.141592653589793;
constexpr double QN_HALF_PI = 1.5707963267948966;
constexpr double QN_THREE_HALF_PI = 4.71238898038469;

/// Coordinate that stands for infinity where a line or ray must be given an extent.
constexpr double QN_FAR_LIMIT = 1e+50;

/// The three-way comparison of the library: less, zero, greater; a value exactly at the tolerance is zero.
constexpr bool IsZero(double value, double tol) {
    return value >= -tol && value <= tol;
}
constexpr bool IsGreater(double value, double tol) {
    return value > tol;
}
constexpr bool IsLess(double value, double tol) {
    return value < -tol;
}

/// The angle brought into [0, two pi). What lies within g_angleZero of zero or of a full turn becomes exactly 0.
///
/// Units  Radians.
/// Fails  A non-finite angle gives 0.
QUARNGEO_API double GetStdAngle(double a);

/// The parameter brought into [0, period). What lies within g_fZero of 0 or of a period becomes exactly 0.
///
/// Fails  Without a period (not above g_fZero) `pa` comes back as it is; a non-finite parameter gives 0.
QUARNGEO_API double GetStdPa(double pa, double period);

/// Arc cosine that never fails: 0 for x >= 1, pi for x <= -1. NaN stays NaN.
QUARNGEO_API double iacos(double x);
