// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"
#include "frame/QnGeTolerance.h"

/// A range of curve parameters. `max` below `min` makes it reversed: it runs over the seam of a closed curve.
///
/// Tolerance  g_fZero.
/// Valid      length > g_fZero.
class QUARNGEO_API QnGeInterval {
public:
    double min;
    double max;

    QnGeInterval() : min(0.0), max(0.0) {}
    QnGeInterval(double from, double to) : min(from), max(to) {}
    QnGeInterval(const QnGeInterval&) = default;
    QnGeInterval& operator=(const QnGeInterval&) = default;
    virtual ~QnGeInterval() = default;

    double Length() const { return max - min; }
    bool IsValid() const { return IsGreater(Length(), g_fZero); }
    bool IsEmpty() const { return IsZero(Length(), g_fZero); }
    bool IsReverse() const { return IsLess(Length(), g_fZero); }

    bool operator==(const QnGeInterval& o) const {
        return IsZero(min - o.min, g_fZero) && IsZero(max - o.max, g_fZero);
    }
    /// Order  By start only.
    bool operator>(const QnGeInterval& o) const { return IsGreater(min - o.min, g_fZero); }
    bool operator<(const QnGeInterval& o) const { return IsGreater(o.min - min, g_fZero); }

    /// The hull. Compares exactly.
    QnGeInterval operator+(const QnGeInterval& o) const {
        return QnGeInterval(o.min < min ? o.min : min, o.max > max ? o.max : max);
    }
    QnGeInterval& operator+=(const QnGeInterval& o) { return *this = *this + o; }
    /// The overlap; reversed if there is none. Compares exactly.
    QnGeInterval operator&(const QnGeInterval& o) const {
        return QnGeInterval(o.min > min ? o.min : min, o.max < max ? o.max : max);
    }
    QnGeInterval& operator&=(const QnGeInterval& o) { return *this = *this & o; }

    /// Kept odd  The sense is inverted: true if the two have no overlap of any length, false if they truly overlap.
    bool IsIntersectWith(const QnGeInterval& o) const;

    /// Becomes the hull of both if they overlap or touch.
    ///
    /// Fails  False, unchanged, if there is a gap.
    bool Conbine(const QnGeInterval& o);

    /// What is left of `o` and right of it, without any test: a side that does not exist comes out reversed.
    void SubtractBy(const QnGeInterval& o, QnGeInterval& left, QnGeInterval& right) const;

    /// The parts before and after `pa`, without any test.
    void Split(double pa, QnGeInterval& left, QnGeInterval& right) const;

    /// Breaks a reversed interval at the seam: `first` from the seam at 0, `second` up to the seam at `period`.
    ///
    /// Kept odd  A `second` that starts beyond the period starts at 0 instead, and so is the whole period.
    void Validate(double period, QnGeInterval& first, QnGeInterval& second) const;
};
