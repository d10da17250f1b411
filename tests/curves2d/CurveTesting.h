// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGePoint.h"

/// What the tests of curves share: curves with few slots of their own, which show the defaults at work.
namespace curve_testing {

/// Put into outputs beforehand; a call that must leave them alone leaves this.
constexpr double UNTOUCHED = -777.25;

/// Cases of one property.
constexpr int PROPERTY_CASES = 10000;

inline QnDynArray<double> Pas(std::initializer_list<double> values) {
    QnDynArray<double> pas;
    for (const double value : values) {
        pas.Append(value);
    }
    return pas;
}

inline std::uint32_t Bits(const QnBitData& hit) {
    return hit.GetBits();
}

/// Every slot is the default; only the questions below have set answers.
class BareCurve : public QnGeCurve2d {
public:
    bool closed = false;
    bool startExists = true;
    bool endExists = true;

    bool IsClosed() const override { return closed; }
    using QnGeCurve2d::IsFinite;
    bool IsFinite(bool atStart) const override { return atStart ? startExists : endExists; }
};

/// A curve along the x axis whose point at `pa` is (pa * scale, 0), and whose stretches are segments, so that results
/// show the parameters they were asked with.
class AxisCurve : public BareCurve {
public:
    double scale = 1.0;
    double linePrec = 0.0;

    QnGeObject* Clone() const override { return new AxisCurve(*this); }
    using QnGeCurve2d::GetSubCurve;
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override {
        return new QnGeLineSeg2d(QnGePoint(pa1 * scale, 0.0), QnGePoint(pa2 * scale, 0.0));
    }
    bool GetPtFromPa(double pa, QnGePoint& pt) const override {
        pt.SetPoint(pa * scale, 0.0, 0.0);
        return true;
    }
    /// False above the axis.
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override {
        if (pt.y > 0.0) {
            return false;
        }
        pa = pt.x / scale;
        return true;
    }
    bool GetPaFromDist(double dist, double& pa) const override {
        pa = dist / scale;
        return true;
    }
    bool GetDistFromPa(double pa, double& dist) const override {
        dist = pa * scale;
        return true;
    }
    double Length() const override { return scale; }
    double GetMLinePrec() const override { return linePrec; }
};

/// A chain of segments that knows how to be exploded, its parameters and its stretches, and has all else from the
/// defaults. Each segment takes an equal share of 0..1. It is closed if its last point is the first.
class PathCurve : public QnGeCurve2d {
public:
    explicit PathCurve(std::vector<QnGePoint> points) : m_points(std::move(points)) {}

    QnGeObject* Clone() const override { return new PathCurve(*this); }
    bool Explode(QnGeObjList& parts) const override {
        for (std::size_t i = 1; i < m_points.size(); ++i) {
            parts.Append(new QnGeLineSeg2d(m_points[i - 1], m_points[i]));
        }
        return true;
    }
    using QnGeCurve2d::GetSubCurve;
    /// From `pa1` in the direction of travel to `pa2`, over the seam if need be.
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override {
        const long count = SegmentCount();
        const double last = pa2 > pa1 ? pa2 : pa2 + 1.0;
        std::vector<QnGePoint> points{PointAt(pa1)};
        for (long k = 1; k <= 2 * count; ++k) {
            const double corner = static_cast<double>(k) / static_cast<double>(count);
            if (corner > pa1 && corner < last) {
                points.push_back(m_points[static_cast<std::size_t>(k % count)]);
            }
        }
        points.push_back(PointAt(pa2));
        return new PathCurve(points);
    }
    bool GetPtFromPa(double pa, QnGePoint& pt) const override {
        pt = PointAt(pa);
        return true;
    }
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override {
        for (std::size_t i = 1; i < m_points.size(); ++i) {
            const QnGeLineSeg2d seg(m_points[i - 1], m_points[i]);
            double local = 0.0;
            if (seg.HitTest(pt).HasBit(HIT_ON) && seg.GetPaFromPt(pt, local)) {
                pa = (static_cast<double>(i - 1) + local) / static_cast<double>(SegmentCount());
                return true;
            }
        }
        return false;
    }
    void Reverse() override { m_points = std::vector<QnGePoint>(m_points.rbegin(), m_points.rend()); }

    const std::vector<QnGePoint>& Points() const { return m_points; }
    long SegmentCount() const { return static_cast<long>(m_points.size()) - 1; }

private:
    QnGePoint PointAt(double pa) const {
        const double place = pa * static_cast<double>(SegmentCount());
        long i = static_cast<long>(place);
        i = i < 0 ? 0 : (i < SegmentCount() ? i : SegmentCount() - 1);
        const QnGePoint& from = m_points[static_cast<std::size_t>(i)];
        const QnGePoint& to = m_points[static_cast<std::size_t>(i) + 1];
        return from + (to - from) * (place - static_cast<double>(i));
    }

    std::vector<QnGePoint> m_points;
};

/// The square (0,0) to (4,4), counter-clockwise from the origin.
inline PathCurve SquarePath() {
    return PathCurve(
        {QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0), QnGePoint(4.0, 4.0), QnGePoint(0.0, 4.0), QnGePoint(0.0, 0.0)});
}

/// The greatest radius among a curve's arcs, 0 without any.
inline double GreatestRadius(const QnGeCurve2d& curve) {
    if (const auto* const arc = dynamic_cast<const QnGeArc2d*>(&curve)) {
        return arc->GetRadius();
    }
    double radius = 0.0;
    QnGeObjList parts;
    curve.Explode(parts);
    for (long i = 0; i < parts.GetLength(); ++i) {
        radius = std::max(radius, GreatestRadius(static_cast<const QnGeCurve2d&>(*parts.GetAt(i))));
    }
    return radius;
}

}  // namespace curve_testing
