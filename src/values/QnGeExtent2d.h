// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGeExtent.h"
#include "values/QnGePoint.h"

/// A box in the plan: a range on each axis. A test on boxes is true when it is true of both ranges.
///
/// Tolerance  As QnGeExtent.
class QUARNGEO_API QnGeExtent2d {
public:
    QnGeExtent x;
    QnGeExtent y;

    QnGeExtent2d() = default;
    QnGeExtent2d(double xmin, double xmax, double ymin, double ymax) : x(xmin, xmax), y(ymin, ymax) {}
    QnGeExtent2d(const QnGeExtent& rangeX, const QnGeExtent& rangeY) : x(rangeX), y(rangeY) {}
    QnGeExtent2d(const QnGeExtent2d&) = default;
    QnGeExtent2d& operator=(const QnGeExtent2d&) = default;

    /// Whether `other` is this very object; an equal copy is not.
    virtual bool IsSameWith(const QnGeExtent2d* other) const;
    virtual ~QnGeExtent2d() = default;

    void SetRange(double xmin, double xmax, double ymin, double ymax) {
        x.SetRange(xmin, xmax);
        y.SetRange(ymin, ymax);
    }
    void SetRange(const QnGeExtent& rangeX, const QnGeExtent& rangeY) {
        x = rangeX;
        y = rangeY;
    }
    QnGeExtent GetXExtend() const { return x; }
    QnGeExtent GetYExtend() const { return y; }
    /// Length along x.
    double GetLength() const { return x.GetLength(); }
    /// Length along y.
    double GetHeight() const { return y.GetLength(); }
    double GetArea() const { return GetLength() * GetHeight(); }
    /// Z  0.
    QnGePoint GetMinPoint() const { return QnGePoint(x.min, y.min); }
    QnGePoint GetMaxPoint() const { return QnGePoint(x.max, y.max); }

    void Inflate(double d) {
        x.Inflate(d);
        y.Inflate(d);
    }
    /// The hull.
    QnGeExtent2d operator+(const QnGeExtent2d& o) const { return QnGeExtent2d(x + o.x, y + o.y); }
    QnGeExtent2d& operator+=(const QnGeExtent2d& o) {
        x += o.x;
        y += o.y;
        return *this;
    }
    /// The overlap; inverted on an axis without one.
    QnGeExtent2d operator&(const QnGeExtent2d& o) const { return QnGeExtent2d(x & o.x, y & o.y); }

    bool IsValid() const { return x.IsValid() && y.IsValid(); }
    bool operator==(const QnGeExtent2d& o) const { return x == o.x && y == o.y; }
    /// Kept odd  Both axes must differ: boxes that differ on one axis only are neither equal nor unequal.
    bool operator!=(const QnGeExtent2d& o) const { return x != o.x && y != o.y; }
    bool operator>(const QnGeExtent2d& o) const { return x > o.x && y > o.y; }
    bool operator>=(const QnGeExtent2d& o) const { return x >= o.x && y >= o.y; }
    bool operator<(const QnGeExtent2d& o) const { return o > *this; }
    bool operator<=(const QnGeExtent2d& o) const { return o >= *this; }

    bool IsInclude(double px, double py) const { return x.IsInclude(px) && y.IsInclude(py); }
    bool IsInclude(const QnGeExtent2d& o) const { return x.IsInclude(o.x) && y.IsInclude(o.y); }
    bool IsInside(double px, double py) const { return x.IsInside(px) && y.IsInside(py); }
    /// `o` lies strictly within this.
    bool IsInside(const QnGeExtent2d& o) const { return x.IsInside(o.x) && y.IsInside(o.y); }
    /// Overlap or touch.
    bool IsInsersectWith(const QnGeExtent2d& o) const { return x.IsInsersectWith(o.x) && y.IsInsersectWith(o.y); }
    /// A true overlap.
    ///
    /// Kept odd  Touching does not count here and does in IsInsersectWith.
    bool IsConnectWith(const QnGeExtent2d& o) const { return x.IsConnectWith(o.x) && y.IsConnectWith(o.y); }
};
