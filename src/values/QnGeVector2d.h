// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGePoint.h"

/// A direction in the plan.
///
/// Z      Carried along but no part of lengths, products and angles. The operators give vectors with z = 0; SetLength
///        and Normalize scale z with the plan part, so that a sloped direction keeps its slope.
/// Valid  length > g_distZero.
///
/// The `normalized` argument of the relations means that the caller vouches for two unit vectors; when it is false they
/// work on normalised copies. A null vector stays null there, and so is parallel and vertical to everything.
class QUARNGEO_API QnGeVector2d : public QnGePoint {
public:
    // ---- making ----------------------------------------------------------------------------------

    constexpr QnGeVector2d() = default;
    constexpr QnGeVector2d(double vx, double vy) : QnGePoint(vx, vy, 0.0) {}
    /// All three coordinates of the point. Implicit, so that a point may be passed where a vector is taken.
    constexpr QnGeVector2d(const QnGePoint& v) : QnGePoint(v) {}
    /// From `a` to `b`, on all three coordinates.
    QnGeVector2d(const QnGePoint& a, const QnGePoint& b) : QnGePoint(b.x - a.x, b.y - a.y, b.z - a.z) {}
    /// Reads two values.
    QnGeVector2d(const double* values) : QnGePoint(values[0], values[1], 0.0) {}
    QnGeVector2d(const float* values)
        : QnGePoint(static_cast<double>(values[0]), static_cast<double>(values[1]), 0.0) {}

    /// The unit vector at angle `a` from the x axis; z stays.
    void CreateFromAngle(double a);

    // ---- the vector itself -----------------------------------------------------------------------

    /// Negates x and y; z stays.
    void Reverse() {
        x = -x;
        y = -y;
    }
    /// Length in the plan.
    double Length() const { return std::sqrt(x * x + y * y); }
    /// Scales all coordinates, z too, so that the plan length is `length`. A length not above g_fZero is left alone.
    void SetLength(double length) {
        const double present = Length();
        if (IsGreater(present, g_fZero)) {
            const double factor = length / present;
            x *= factor;
            y *= factor;
            z *= factor;
        }
    }
    /// Divides all coordinates, z too, by the plan length.
    ///
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

    /// Angle from the x axis, counter-clockwise; 0 for a null vector.
    ///
    /// Units     Radians, 0 to two pi.
    /// Kept odd  A direction a hair below the x axis gives two pi itself: there is no wrap.
    double GetAngle() const;

    /// The vector turned by a quarter turn counter-clockwise (left) or clockwise (right), with z = 0. `out` may be
    /// this.
    void GetLeftVertVector(QnGeVector2d& out) const { out = QnGeVector2d(-y, x); }
    void GetRightVertVector(QnGeVector2d& out) const { out = QnGeVector2d(y, -x); }

    // ---- arithmetic: new vectors have z = 0, the assigning forms leave z ---------------------------

    QnGeVector2d operator-() const { return QnGeVector2d(-x, -y); }
    QnGeVector2d operator+(const QnGePoint& v) const { return QnGeVector2d(x + v.x, y + v.y); }
    QnGeVector2d operator-(const QnGePoint& v) const { return QnGeVector2d(x - v.x, y - v.y); }
    QnGeVector2d operator*(double f) const { return QnGeVector2d(x * f, y * f); }
    QnGeVector2d operator/(double f) const { return QnGeVector2d(x / f, y / f); }

    QnGeVector2d& operator+=(const QnGePoint& v) {
        x += v.x;
        y += v.y;
        return *this;
    }
    QnGeVector2d& operator-=(const QnGePoint& v) {
        x -= v.x;
        y -= v.y;
        return *this;
    }
    QnGeVector2d& operator*=(double f) {
        x *= f;
        y *= f;
        return *this;
    }
    QnGeVector2d& operator/=(double f) {
        x /= f;
        y /= f;
        return *this;
    }

    /// Dot product in the plan.
    double operator&(const QnGePoint& v) const { return x * v.x + y * v.y; }
    /// Cross product in the plan, positive if `v` lies counter-clockwise of this.
    double operator*(const QnGePoint& v) const { return x * v.y - y * v.x; }

    // ---- relations -------------------------------------------------------------------------------

    /// Tolerance  g_fZero on the cross product of unit vectors; opposite vectors are parallel.
    bool IsParallelWith(const QnGePoint& v, bool normalized) const;
    /// Tolerance  g_fZero on the dot product of unit vectors.
    bool IsVertWith(const QnGePoint& v, bool normalized) const;
    /// Kept odd  Merely less than a quarter turn apart. For a true match ask IsParallelWith as well.
    bool IsSameDirection(const QnGePoint& v, bool normalized) const;
    /// Kept odd  Merely more than a quarter turn apart.
    bool IsReverseDirection(const QnGePoint& v, bool normalized) const;
    /// `v` lies counter-clockwise of this.
    bool IsVectorAtLeft(const QnGePoint& v, bool normalized) const;
    /// `v` lies clockwise of this.
    bool IsVectorAtRight(const QnGePoint& v, bool normalized) const;

    /// The clockwise turn from this vector to `v`.
    ///
    /// Units     Radians, 0 to two pi.
    /// Kept odd  A turn of a few 1e-9 to the left gives two pi itself: there is no wrap.
    double GetAngleWith(const QnGePoint& v, bool normalized) const;
};
