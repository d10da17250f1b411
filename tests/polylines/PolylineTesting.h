// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "base/QnBitData.h"
#include "base/QnDynArrayStream.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "support/ExpectGeo.h"
#include "support/RandomSource.h"
#include "support/TextGeo.h"
#include "values/QnGePoint.h"

/// What the tests of multi-lines and polylines share: lines from text, exact comparisons, random shapes.
namespace polyline_testing {

constexpr double PI = 3.14159265358979323846;
/// Value put into output arguments beforehand; a call that must leave them alone leaves this.
constexpr double UNTOUCHED = -777.25;
/// Cases of one property.
constexpr int PROPERTY_CASES = 10000;

inline const double INF = std::numeric_limits<double>::infinity();
inline const double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

/// "0,0 4,0 close" as a multi-line; `Bulged` reads "0,0@pi 4,0 close" as a polyline.
inline QnGeMLine2d Straight(const std::string& vertices) {
    return *ParseGeoAs<QnGeMLine2d>("mline " + vertices);
}
inline QnGePolyline2d Bulged(const std::string& vertices) {
    return *ParseGeoAs<QnGePolyline2d>("pline " + vertices);
}

inline std::uint32_t Bits(const QnBitData& hit) {
    return hit.GetBits();
}

inline std::string Text(const QnGeObject& object) {
    return ToText(object);
}

/// Seed of one case, printed by the trace of a failure.
inline unsigned CaseSeed(int test, int i) {
    return BaseSeed() * 31U + static_cast<unsigned>(test * 1000003 + i);
}

/// The bytes of a stream record; two objects are equal bit for bit exactly if these are.
inline std::vector<unsigned char> Record(const QnGeObject& object) {
    QnDynArrayStream stream(64, 64);
    object.StreamOut(stream);
    return std::vector<unsigned char>(stream.GetBytes(), stream.GetBytes() + stream.GetLength());
}

/// Exact vertex comparison: same count and the same three numbers, tolerance none.
inline ::testing::AssertionResult HasExactly(const QnGeMLine2d& line, const std::string& vertices) {
    const QnGeMLine2d expected = Straight(vertices);
    bool same = line.GetVertexNum() == expected.GetVertexNum() && line.IsClosed() == expected.IsClosed();
    for (long i = 0; same && i < line.GetVertexNum(); ++i) {
        const QnGePoint& p = line.GetVertex(i);
        const QnGePoint& q = expected.GetVertex(i);
        same = p.x == q.x && p.y == q.y && p.z == q.z;
    }
    if (same) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << Text(line) << "\n  instead of\n" << Text(expected);
}

/// The same with bulges.
inline ::testing::AssertionResult IsExactly(const QnGePolyline2d& line, const std::string& vertices) {
    const QnGePolyline2d expected = Bulged(vertices);
    bool same = line.GetVertexNum() == expected.GetVertexNum() && line.IsClosed() == expected.IsClosed();
    for (long i = 0; same && i < line.GetVertexNum(); ++i) {
        const QnGePoint& p = line.GetVertex(i);
        const QnGePoint& q = expected.GetVertex(i);
        same = p.x == q.x && p.y == q.y && p.z == q.z && line.GetBulge(i) == expected.GetBulge(i);
    }
    if (same) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << Text(line) << "\n  instead of\n" << Text(expected);
}

inline ::testing::AssertionResult IsNear(const QnGePoint& actual, const QnGePoint& expected, double tol = 1e-9) {
    const bool near = std::fabs(actual.x - expected.x) <= tol && std::fabs(actual.y - expected.y) <= tol &&
                      std::fabs(actual.z - expected.z) <= tol;
    if (near) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << PointToText(actual) << " instead of " << PointToText(expected);
}

inline QnGePointArray Points(const std::string& vertices) {
    return Straight(vertices).GetVertexArray();
}

/// Random vertices in a square of half side `size`, z too; neighbours are apart for all practical purposes.
inline QnGePolyline2d RandomPolyline(RandomSource& random, int count, bool closed, double bulgeShare,
                                     double size = 10.0) {
    QnGePolyline2d line(0, closed);
    for (int i = 0; i < count; ++i) {
        const double x = random.Double(-size, size);
        const double y = random.Double(-size, size);
        const double z = random.Double(-size, size);
        const bool bulged = random.Double(0.0, 1.0) < bulgeShare;
        double bulge = bulged ? random.Double(0.1, 4.0) * (random.Coin() ? 1.0 : -1.0) : 0.0;
        if (!closed && i == count - 1) {
            bulge = 0.0;
        }
        line.AppendVertex(QnGePoint(x, y, z), bulge);
    }
    return line;
}

/// A parameter that is not within a hundredth of a segment's width of a vertex: near one, arcs take angles of up to
/// g_angleZero for none.
inline double InnerPa(RandomSource& random, const QnGeMLine2d& line) {
    const double segment = static_cast<double>(random.Long(0, line.GetSegNum() - 1));
    return (segment + random.Double(0.01, 0.99)) / static_cast<double>(line.GetSegNum());
}

/// Moderate bulges, so that the arcs stay near their chords and parameters are well conditioned.
inline QnGePolyline2d ConvexBulged(RandomSource& random, int count, bool closed) {
    QnGePolyline2d line(0, closed);
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * PI * (i + random.Double(-0.2, 0.2)) / count;
        const double radius = random.Double(4.0, 6.0);
        const double bulge = random.Coin() ? random.Double(0.1, 0.6) * (random.Coin() ? 1.0 : -1.0) : 0.0;
        const QnGePoint p(radius * std::cos(angle), radius * std::sin(angle), random.Double(-2.0, 2.0));
        line.AppendVertex(p, !closed && i == count - 1 ? 0.0 : bulge);
    }
    return line;
}

}  // namespace polyline_testing
