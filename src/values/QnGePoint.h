// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

#include "frame/QnGeApi.h"
#include "frame/QnGeTolerance.h"

class QnGePoint;

/// Distance in the plan: z is ignored.
QUARNGEO_API double GetDistance2d(const QnGePoint& a, const QnGePoint& b);

/// Distance in space.
QUARNGEO_API double GetDistance3d(const QnGePoint& a, const QnGePoint& b);

/// A coordinate: three plain doubles that every geometry function takes and gives.
///
/// Z          Third coordinate, or elevation of a plan point: 2d code ignores it and leaves it as it is.
/// Tolerance  Comparisons under g_distZero.
/// Kept odd   The conversion to a pointer makes `p + 1`, `*p` and `if (p)` compile; `<=` and `>=`, which would compare
///            addresses, are deleted.
class QUARNGEO_API QnGePoint {
public:
    double x;
    double y;
    double z;

    constexpr QnGePoint() : x(0.0), y(0.0), z(0.0) {}
    constexpr QnGePoint(double px, double py, double pz = 0.0) : x(px), y(py), z(pz) {}
    /// Reads three values.
    QnGePoint(const double* values) : x(values[0]), y(values[1]), z(values[2]) {}
    QnGePoint(const float* values)
        : x(static_cast<double>(values[0])), y(static_cast<double>(values[1])), z(static_cast<double>(values[2])) {}

    void SetPoint(double px, double py, double pz) {
        x = px;
        y = py;
        z = pz;
    }
    /// z stays.
    void SetPoint(double px, double py) {
        x = px;
        y = py;
    }

    /// A pointer to x; y and z follow it.
    operator double*() { return &x; }
    operator const double*() const { return &x; }
    double& operator[](int i) { return i == 0 ? x : (i == 1 ? y : z); }
    double operator[](int i) const { return i == 0 ? x : (i == 1 ? y : z); }
    double& operator[](long i) { return i == 0 ? x : (i == 1 ? y : z); }
    double operator[](long i) const { return i == 0 ? x : (i == 1 ? y : z); }

    // ---- lengths ---------------------------------------------------------------------------------

    /// Distance from the origin in the plan and in space.
    double Length2d() const { return std::sqrt(x * x + y * y); }
    double Length3d() const { return std::sqrt(x * x + y * y + z * z); }
    double Distance2d(const QnGePoint& p) const { return GetDistance2d(*this, p); }
    double Distance3d(const QnGePoint& p) const { return GetDistance3d(*this, p); }

    // ---- arithmetic, on all three coordinates ------------------------------------------------------

    QnGePoint operator+(const QnGePoint& p) const { return QnGePoint(x + p.x, y + p.y, z + p.z); }
    QnGePoint operator-(const QnGePoint& p) const { return QnGePoint(x - p.x, y - p.y, z - p.z); }
    QnGePoint operator-() const { return QnGePoint(-x, -y, -z); }
    QnGePoint operator*(double f) const { return QnGePoint(x * f, y * f, z * f); }
    QnGePoint operator/(double f) const { return QnGePoint(x / f, y / f, z / f); }

    QnGePoint& operator+=(const QnGePoint& p) {
        x += p.x;
        y += p.y;
        z += p.z;
        return *this;
    }
    QnGePoint& operator-=(const QnGePoint& p) {
        x -= p.x;
        y -= p.y;
        z -= p.z;
        return *this;
    }
    QnGePoint& operator*=(double f) {
        x *= f;
        y *= f;
        z *= f;
        return *this;
    }
    QnGePoint& operator/=(double f) {
        x /= f;
        y /= f;
        z /= f;
        return *this;
    }

    // ---- comparison ------------------------------------------------------------------------------

    bool operator==(const QnGePoint& p) const { return IsZero(GetDistance3d(*this, p), g_distZero); }
    bool operator!=(const QnGePoint& p) const { return !(*this == p); }
    bool Equal2d(const QnGePoint& p) const { return IsZero(GetDistance2d(*this, p), g_distZero); }
    bool Equal3d(const QnGePoint& p) const { return IsZero(GetDistance3d(*this, p), g_distZero); }

    /// The lexicographic order of x, y, z, in which coordinates that differ by no more than g_distZero are equal.
    ///
    /// Laws  `a > b` and `b > a` exclude each other. Being neither is no equivalence: in a row of points a
    ///       little apart, neighbours are neither and the ends are one or the other.
    bool operator>(const QnGePoint& p) const {
        const double gapX = x - p.x;
        if (IsGreater(gapX, g_distZero)) {
            return true;
        }
        if (IsLess(gapX, g_distZero)) {
            return false;
        }
        const double gapY = y - p.y;
        if (IsGreater(gapY, g_distZero)) {
            return true;
        }
        if (IsLess(gapY, g_distZero)) {
            return false;
        }
        return IsGreater(z - p.z, g_distZero);
    }
    bool operator<(const QnGePoint& p) const { return p > *this; }
    bool operator<=(const QnGePoint&) const = delete;
    bool operator>=(const QnGePoint&) const = delete;
};
