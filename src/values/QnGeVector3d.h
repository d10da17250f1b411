// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGePoint.h"

/// A direction in space. The assigning operators are those of the point.
///
/// Valid  length > g_distZero.
///
/// The `normalized` argument of the relations means that the caller vouches for two unit vectors; when it is false they
/// work on normalised copies. A null vector stays null there, and so is parallel and vertical to everything.
class QUARNGEO_API QnGeVector3d : public QnGePoint {
public:
    // ---- making ----------------------------------------------------------------------------------

    constexpr QnGeVector3d() = default;
    constexpr QnGeVector3d(double vx, double vy, double vz) : QnGePoint(vx, vy, vz) {}
    /// Implicit, so that a point may be passed where a vector is taken.
    constexpr QnGeVector3d(const QnGePoint& v) : QnGePoint(v) {}
    /// From `a` to `b`.
    QnGeVector3d(const QnGePoint& a, const QnGePoint& b) : QnGePoint(b.x - a.x, b.y - a.y, b.z - a.z) {}
    /// Reads three values.
    QnGeVector3d(const double* values) : QnGePoint(values) {}
    QnGeVector3d(const float* values) : QnGePoint(values) {}

    // ---- the vector itself -----------------------------------------------------------------------

    void Reverse() {
        x = -x;
        y = -y;
        z = -z;
    }
    double Length() const { return std::sqrt(x * x + y * y + z * z); }
    /// A length not above g_fZero is left alone.
    void SetLength(double length) {
        const double present = Length();
        if (IsGreater(present, g_fZero)) {
            const double factor = length / present;
            x *= factor;
            y *= factor;
            z *= factor;
        }
    }
    /// Tolerance  g_fZero, so that a vector may fail IsValid and still be normalised.
    /// Fails      False, and the vector as it was, if the length is not above the tolerance.
    bool Normalize() {
        const double present = Length();
        if (!IsGreater(present, g_fZero)) {
            return false;
        }
        x /= present;
        y /= present;
        z /= present;
        return true;
    }

    bool IsValid() const { return IsGreater(Length(), g_distZero); }
    bool IsNullVector() const { return IsZero(Length(), g_distZero); }
    bool IsNormalized() const { return IsZero(Length() - 1.0, g_distZero); }

    /// A unit vector perpendicular to this one, by the arbitrary-axis rule: level, unless this one is nearly upright.
    ///
    /// Fails  False, `out` as it was, for a null vector. `out` may be this.
    bool GetVertVector(QnGeVector3d& out) const;

    // ---- arithmetic ------------------------------------------------------------------------------

    QnGeVector3d operator-() const { return QnGeVector3d(-x, -y, -z); }
    QnGeVector3d operator+(const QnGePoint& v) const { return QnGeVector3d(x + v.x, y + v.y, z + v.z); }
    QnGeVector3d operator-(const QnGePoint& v) const { return QnGeVector3d(x - v.x, y - v.y, z - v.z); }
    QnGeVector3d operator*(double f) const { return QnGeVector3d(x * f, y * f, z * f); }
    QnGeVector3d operator/(double f) const { return QnGeVector3d(x / f, y / f, z / f); }

    /// Cross product.
    QnGeVector3d operator*(const QnGePoint& v) const {
        return QnGeVector3d(y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x);
    }
    /// Dot product.
    double operator&(const QnGePoint& v) const { return x * v.x + y * v.y + z * v.z; }

    // ---- relations -------------------------------------------------------------------------------

    /// Tolerance  g_distZero on the length of the cross product of unit vectors, not g_fZero as in the plan.
    bool IsParallelWith(const QnGePoint& v, bool normalized) const;
    /// Tolerance  g_fZero on the dot product of unit vectors.
    bool IsVertWith(const QnGePoint& v, bool normalized) const;
    /// Kept odd  Merely less than a quarter turn apart. For a true match ask IsParallelWith as well.
    bool IsSameDirection(const QnGePoint& v, bool normalized) const;
    /// Kept odd  Merely more than a quarter turn apart.
    bool IsReverseDirection(const QnGePoint& v, bool normalized) const;
    /// Units  Radians, 0 to pi.
    double GetAngleWith(const QnGePoint& v, bool normalized) const;
};
