// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeApi.h"
#include "frame/QnGeTolerance.h"

/// A range of coordinates.
///
/// Tolerance  g_distZero in all tests; operator== alone takes g_fZero.
/// Valid      Not inverted, and within the far limits.
class QUARNGEO_API QnGeExtent {
public:
    double min;
    double max;

    QnGeExtent() : min(0.0), max(0.0) {}
    QnGeExtent(double low, double high) : min(low), max(high) {}
    QnGeExtent(const QnGeExtent&) = default;
    QnGeExtent& operator=(const QnGeExtent&) = default;
    virtual ~QnGeExtent() = default;

    void SetRange(double low, double high) {
        min = low;
        max = high;
    }
    double GetMin() const { return min; }
    double GetMax() const { return max; }
    double GetCenter() const { return (min + max) / 2.0; }
    double GetLength() const { return max - min; }

    void Inflate(double d) {
        min -= d;
        max += d;
    }
    /// The hull. Compares exactly.
    QnGeExtent operator+(const QnGeExtent& o) const {
        return QnGeExtent(o.min < min ? o.min : min, o.max > max ? o.max : max);
    }
    QnGeExtent& operator+=(const QnGeExtent& o) {
        SetRange(o.min < min ? o.min : min, o.max > max ? o.max : max);
        return *this;
    }
    /// The overlap; inverted if there is none. Compares exactly.
    QnGeExtent operator&(const QnGeExtent& o) const {
        return QnGeExtent(o.min > min ? o.min : min, o.max < max ? o.max : max);
    }

    bool IsValid() const { return max - min >= -g_distZero && min > -QN_FAR_LIMIT && max < QN_FAR_LIMIT; }

    /// Tolerance  g_fZero: ranges that every other test takes for one may be unequal.
    bool operator==(const QnGeExtent& o) const { return IsZero(min - o.min, g_fZero) && IsZero(max - o.max, g_fZero); }
    bool operator!=(const QnGeExtent& o) const { return !(*this == o); }

    /// This lies wholly above `o` (below, for `<`); with `=` touching and overlapping by the tolerance count too.
    bool operator>(const QnGeExtent& o) const { return IsGreater(min - o.max, g_distZero); }
    bool operator>=(const QnGeExtent& o) const { return min - o.max >= -g_distZero; }
    bool operator<(const QnGeExtent& o) const { return IsGreater(o.min - max, g_distZero); }
    bool operator<=(const QnGeExtent& o) const { return o.min - max >= -g_distZero; }

    /// Touching counts.
    bool IsInclude(double v) const { return v - min >= -g_distZero && v - max <= g_distZero; }
    bool IsInclude(const QnGeExtent& o) const { return min - o.min <= g_distZero && max - o.max >= -g_distZero; }
    /// Strictly inside.
    bool IsInside(double v) const { return IsGreater(v - min, g_distZero) && IsLess(v - max, g_distZero); }
    /// `o` lies strictly within this.
    bool IsInside(const QnGeExtent& o) const {
        return IsLess(min - o.min, g_distZero) && IsGreater(max - o.max, g_distZero);
    }

    /// Overlap or touch.
    bool IsInsersectWith(const QnGeExtent& o) const { return min - o.max <= g_distZero && o.min - max <= g_distZero; }
    /// A true overlap.
    ///
    /// Kept odd  Touching does not count here and does in IsInsersectWith, the reverse of what the names suggest.
    bool IsConnectWith(const QnGeExtent& o) const {
        return IsLess(min - o.max, g_distZero) && IsLess(o.min - max, g_distZero);
    }
};
