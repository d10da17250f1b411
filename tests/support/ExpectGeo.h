// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "support/TextGeo.h"

/// Expectations on geometry as text (see TextGeo.h). A failure prints what was asked and what came, ready to paste.

/// How far numbers of an expectation may lie from those of a result.
constexpr double GEO_NEAR = 1e-9;

/// `object` is what `expected` says.
inline void ExpectGeo(const QnGeObject* object, const std::string& expected, double tolerance = GEO_NEAR) {
    ASSERT_NE(object, nullptr) << "null instead of " << expected;
    EXPECT_TRUE(IsNearGeo(*object, *ParseGeo(expected), tolerance)) << ToText(object) << "\n  instead of\n" << expected;
}

inline void ExpectGeo(const QnGeObject& object, const std::string& expected, double tolerance = GEO_NEAR) {
    ExpectGeo(&object, expected, tolerance);
}

/// `list` holds what `expected` says, in this order.
inline void ExpectGeoList(const QnGeObjList& list, const std::string& expected, double tolerance = GEO_NEAR) {
    QnGeObjList wanted;
    ParseGeoList(expected, wanted);
    EXPECT_TRUE(IsNearGeo(list, wanted, tolerance)) << '[' << ToText(list) << "]\n  instead of\n[" << expected << ']';
}

inline void ExpectPoint(const QnGePoint& point, const std::string& expected, double tolerance = GEO_NEAR) {
    const QnGePoint wanted = ParsePoint(expected);
    EXPECT_TRUE(std::fabs(point.x - wanted.x) <= tolerance && std::fabs(point.y - wanted.y) <= tolerance &&
                std::fabs(point.z - wanted.z) <= tolerance)
        << PointToText(point) << " instead of " << expected;
}

/// `a` asked for what it shares with `b` appends these objects in this order; an empty text is the answer false.
inline void ExpectIntersect(const std::string& a, const std::string& b, const std::string& expected,
                            double tolerance = GEO_NEAR) {
    const std::unique_ptr<QnGeObject> receiver = ParseGeo(a);
    const std::unique_ptr<QnGeObject> argument = ParseGeo(b);
    QnGeObjList found;
    const bool answer = receiver->IntersectWith(*argument, found);
    EXPECT_EQ(answer, !expected.empty()) << a << "\n  with\n" << b;
    QnGeObjList wanted;
    ParseGeoList(expected, wanted);
    EXPECT_TRUE(IsNearGeo(found, wanted, tolerance))
        << a << "\n  with\n"
        << b << "\n  gives\n[" << ToText(found) << "]\n  instead of\n[" << expected << ']';
}

/// `a` and `b` share nothing, whichever is asked.
inline void ExpectNoIntersect(const std::string& a, const std::string& b) {
    ExpectIntersect(a, b, "");
    ExpectIntersect(b, a, "");
}
