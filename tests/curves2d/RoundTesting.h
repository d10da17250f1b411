// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <iostream>
#include <memory>
#include <string>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "polylines/QnGeMLine2d.h"
#include "support/ExpectGeo.h"
#include "support/RandomSource.h"

/// What the tests of circles and arcs share: short names, and a second way to compute points and turns.
namespace round_testing {

/// Value put into output arguments beforehand; a call that must leave them alone leaves this.
constexpr double UNTOUCHED = -777.25;

/// Cases of one property.
constexpr int PROPERTY_CASES = 10000;

constexpr double EXACT_PI = 3.14159265358979323846;
constexpr double EXACT_TURN = 2.0 * EXACT_PI;

inline QnGeCircle2d CircleOf(const std::string& text) {
    return *ParseGeoAs<QnGeCircle2d>(text);
}
inline QnGeArc2d ArcOf(const std::string& text) {
    return *ParseGeoAs<QnGeArc2d>(text);
}

inline std::uint32_t HitBits(const QnGeObject& object, double x, double y) {
    return object.HitTest(QnGePoint(x, y)).GetBits();
}

inline QnGePoint PointAt(const QnGeCurve2d& curve, double pa) {
    QnGePoint pt(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_TRUE(curve.GetPtFromPa(pa, pt));
    return pt;
}

inline double PaOf(const QnGeCurve2d& curve, double x, double y) {
    double pa = UNTOUCHED;
    EXPECT_TRUE(curve.GetPaFromPt(QnGePoint(x, y), pa));
    return pa;
}

inline void SplitAt(const QnGeCurve2d& curve, std::initializer_list<double> values, QnGeObjList& out) {
    QnDynArray<double> pas;
    for (const double value : values) {
        pas.Append(value);
    }
    curve.Split(pas, out);
}

/// The vertices of a linearisation, and whether it is closed; null is its own text.
inline std::string ShapeOf(const std::unique_ptr<QnGeMLine2d>& line) {
    if (line == nullptr) {
        return "null";
    }
    return (line->IsClosed() ? "closed " : "open ") + std::to_string(line->GetVertexNum());
}

/// The point of a circle by the plain definition: `pa` counts from +x in the direction of travel.
inline QnGePoint PlainPoint(const QnGePoint& centre, double radius, bool ccw, double pa) {
    const double angle = ccw ? pa : -pa;
    return QnGePoint(centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle), centre.z);
}

/// `angle` less whole turns, in [0, one turn), without any snapping.
inline double PlainTurn(double angle) {
    const double rest = std::fmod(angle, EXACT_TURN);
    return rest < 0.0 ? rest + EXACT_TURN : rest;
}

/// How far two angles are apart, the short way round.
inline double AngleGap(double a, double b) {
    const double gap = PlainTurn(a - b);
    return gap > EXACT_PI ? EXACT_TURN - gap : gap;
}

inline double PlanDistance(const QnGePoint& p, const QnGePoint& q) {
    return std::hypot(p.x - q.x, p.y - q.y);
}

/// Random circles and arcs of ordinary size; the seed is printed once for each source.
class RoundSource : public RandomSource {
public:
    explicit RoundSource(unsigned seed) : RandomSource(seed) { std::cout << "seed " << seed << '\n'; }

    QnGePoint Point(double size) {
        const double x = Double(-size, size);
        const double y = Double(-size, size);
        return QnGePoint(x, y);
    }
    QnGeCircle2d Circle() {
        const QnGePoint centre = Point(20.0);
        const double radius = Double(0.1, 30.0);
        return QnGeCircle2d(centre, radius, Coin());
    }
    QnGeArc2d Arc() {
        const QnGePoint centre = Point(20.0);
        const double radius = Double(0.1, 30.0);
        const double start = Double(0.0, 6.28);
        const double sweep = Double(0.01, 6.27);
        return QnGeArc2d(centre, radius, start, sweep, Coin());
    }
};

}  // namespace round_testing
