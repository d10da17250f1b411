// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGeExtent2d.h"

/// A box in space. A test on boxes is true when it is true of all three ranges.
///
/// Tolerance  As QnGeExtent.
class QUARNGEO_API QnGeExtent3d : public QnGeExtent2d {
public:
    QnGeExtent z;

    QnGeExtent3d() = default;
    QnGeExtent3d(double xmin, double xmax, double ymin, double ymax, double zmin, double zmax)
        : QnGeExtent2d(xmin, xmax, ymin, ymax), z(zmin, zmax) {}
    QnGeExtent3d(const QnGeExtent& rangeX, const QnGeExtent& rangeY, const QnGeExtent& rangeZ)
        : QnGeExtent2d(rangeX, rangeY), z(rangeZ) {}

    using QnGeExtent2d::IsSameWith;
    /// Whether `other` is this very object; an equal copy is not.
    virtual bool IsSameWith(const QnGeExtent3d* other) const;

    void SetRange(double xmin, double xmax, double ymin, double ymax, double zmin, double zmax) {
        QnGeExtent2d::SetRange(xmin, xmax, ymin, ymax);
        z.SetRange(zmin, zmax);
    }
    void SetRange(const QnGeExtent& rangeX, const QnGeExtent& rangeY, const QnGeExtent& rangeZ) {
        QnGeExtent2d::SetRange(rangeX, rangeY);
        z = rangeZ;
    }
    QnGeExtent GetZExtend() const { return z; }
    /// Length along z.
    double GetDepth() const { return z.GetLength(); }
    double GetVolumn() const { return GetLength() * GetHeight() * GetDepth(); }
    QnGePoint GetMinPoint() const { return QnGePoint(x.min, y.min, z.min); }
    QnGePoint GetMaxPoint() const { return QnGePoint(x.max, y.max, z.max); }

    void Inflate(double d) {
        QnGeExtent2d::Inflate(d);
        z.Inflate(d);
    }
    /// The hull.
    QnGeExtent3d operator+(const QnGeExtent3d& o) const { return QnGeExtent3d(x + o.x, y + o.y, z + o.z); }
    QnGeExtent3d& operator+=(const QnGeExtent3d& o) {
        QnGeExtent2d::operator+=(o);
        z += o.z;
        return *this;
    }
    /// The overlap; inverted on an axis without one.
    QnGeExtent3d operator&(const QnGeExtent3d& o) const { return QnGeExtent3d(x & o.x, y & o.y, z & o.z); }

    bool IsValid() const { return QnGeExtent2d::IsValid() && z.IsValid(); }
    bool operator==(const QnGeExtent3d& o) const { return QnGeExtent2d::operator==(o) && z == o.z; }
    /// Kept odd  All axes must differ: boxes that differ on one axis only are neither equal nor unequal.
    bool operator!=(const QnGeExtent3d& o) const { return QnGeExtent2d::operator!=(o) && z != o.z; }
    bool operator>(const QnGeExtent3d& o) const { return QnGeExtent2d::operator>(o) && z > o.z; }
    bool operator>=(const QnGeExtent3d& o) const { return QnGeExtent2d::operator>=(o) && z >= o.z; }
    bool operator<(const QnGeExtent3d& o) const { return o > *this; }
    bool operator<=(const QnGeExtent3d& o) const { return o >= *this; }

    bool IsInclude(double px, double py, double pz) const { return QnGeExtent2d::IsInclude(px, py) && z.IsInclude(pz); }
    bool IsInclude(const QnGeExtent3d& o) const { return QnGeExtent2d::IsInclude(o) && z.IsInclude(o.z); }
    bool IsInside(double px, double py, double pz) const { return QnGeExtent2d::IsInside(px, py) && z.IsInside(pz); }
    /// `o` lies strictly within this.
    bool IsInside(const QnGeExtent3d& o) const { return QnGeExtent2d::IsInside(o) && z.IsInside(o.z); }
    /// Overlap or touch.
    bool IsInsersectWith(const QnGeExtent3d& o) const {
        return QnGeExtent2d::IsInsersectWith(o) && z.IsInsersectWith(o.z);
    }
    /// A true overlap.
    ///
    /// Kept odd  Touching does not count here and does in IsInsersectWith.
    bool IsConnectWith(const QnGeExtent3d& o) const { return QnGeExtent2d::IsConnectWith(o) && z.IsConnectWith(o.z); }

    /// The plan part alone.
    bool IsIntersectWith2d(const QnGeExtent2d& o) const { return QnGeExtent2d::IsInsersectWith(o); }
    bool IsConnectWith2d(const QnGeExtent2d& o) const { return QnGeExtent2d::IsConnectWith(o); }
};
