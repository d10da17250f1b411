// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "CurveTesting.h"
#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "support/ExpectGeo.h"
#include "support/StreamBytes.h"
#include "values/QnGePoint2d.h"

/// What the tests of Extend, Trim and Connect share: the same call on text, with the promise that a refused move leaves
/// the curve bit for bit as it was.
namespace end_testing {

using EndResult = QnGeCurve2d::ExtendTrimResult;

constexpr bool START = true;
constexpr bool END = false;
constexpr bool NEAREST = true;
constexpr bool FARTHEST = false;

/// The curve of a text after a call that answers `wanted`; `expected` says what it is then, "" that nothing changed.
template <class Move>
void ExpectMoved(const std::string& curve, EndResult wanted, const std::string& expected, Move move) {
    const std::unique_ptr<QnGeCurve2d> moved = ParseGeoAs<QnGeCurve2d>(curve);
    const StreamBytes before = RecordOf(*moved);
    EXPECT_EQ(move(*moved), wanted) << curve << "\n  became\n" << ToText(*moved);
    EXPECT_EQ(wanted == QnGeCurve2d::ETR_DONE, !expected.empty()) << "the test contradicts itself";
    if (wanted == QnGeCurve2d::ETR_DONE) {
        ExpectGeo(*moved, expected);
    } else {
        EXPECT_EQ(RecordOf(*moved), before) << curve << "\n  became\n" << ToText(*moved);
    }
}

/// Objects of a text that outlive the calls they are given to.
class Objects : public QnGeObjList {
public:
    explicit Objects(const std::string& text) { ParseGeoList(text, *this); }
};

/// The list form with `objs`, and the single form too if it is one object: both give the same.
inline void ExpectExtend(const std::string& curve, const std::string& objs, bool atStart, bool nearest,
                         EndResult wanted, const std::string& expected = "") {
    const Objects list(objs);
    ExpectMoved(curve, wanted, expected, [&](QnGeCurve2d& moved) { return moved.Extend(list, atStart, nearest); });
    if (list.GetLength() == 1) {
        ExpectMoved(curve, wanted, expected,
                    [&](QnGeCurve2d& moved) { return moved.Extend(*list.GetPData(0), atStart, nearest); });
    }
}

inline void ExpectTrim(const std::string& curve, const std::string& objs, bool atStart, EndResult wanted,
                       const std::string& expected = "") {
    const Objects list(objs);
    ExpectMoved(curve, wanted, expected, [&](QnGeCurve2d& moved) { return moved.Trim(list, atStart); });
    if (list.GetLength() == 1) {
        ExpectMoved(curve, wanted, expected,
                    [&](QnGeCurve2d& moved) { return moved.Trim(*list.GetPData(0), atStart); });
    }
}

inline void ExpectConnectList(const std::string& curve, const std::string& objs, bool atStart, int pickMode,
                              EndResult wanted, const std::string& expected = "") {
    const Objects list(objs);
    ExpectMoved(curve, wanted, expected, [&](QnGeCurve2d& moved) { return moved.Connect(list, atStart, pickMode); });
}

inline void ExpectConnectOne(const std::string& curve, const std::string& obj, bool atStart, int pickMode,
                             EndResult wanted, const std::string& expected = "") {
    const std::unique_ptr<QnGeObject> one = ParseGeo(obj);
    ExpectMoved(curve, wanted, expected, [&](QnGeCurve2d& moved) { return moved.Connect(*one, atStart, pickMode); });
}

/// The same from both forms.
inline void ExpectConnect(const std::string& curve, const std::string& obj, bool atStart, int pickMode,
                          EndResult wanted, const std::string& expected = "") {
    ExpectConnectOne(curve, obj, atStart, pickMode, wanted, expected);
    ExpectConnectList(curve, obj, atStart, pickMode, wanted, expected);
}

/// A unit step along the x axis whose ends exist or not as the test likes, with an extension given as text ("" is
/// none), and which notes what it is asked to become.
class NotingCurve : public curve_testing::AxisCurve {
public:
    std::string extension = "line 0,0 1,0";
    bool accepts = true;
    std::string taken;

    NotingCurve(bool hasStart, bool hasEnd) {
        startExists = hasStart;
        endExists = hasEnd;
    }

    bool CopyFrom(const QnGeObject* other) override {
        taken = ToText(*other);
        return accepts;
    }
    QnGeCurve2d* GetExtendCurve() const override {
        return extension.empty() ? nullptr : ParseGeoAs<QnGeCurve2d>(extension).release();
    }
};

inline void ExpectTaken(const NotingCurve& curve, const std::string& expected) {
    ASSERT_NE(curve.taken, "");
    ExpectGeo(*ParseGeo(curve.taken), expected);
}

/// Meets every line at the points of its text, and answers what it is told to.
class FixedHits : public QnGeObject2d {
public:
    FixedHits(bool answer, const std::string& hits) : m_answer(answer), m_hits(hits) {}

    bool IntersectWith(const QnGeObject& other, QnGeObjList& out) const override {
        static_cast<void>(other);
        ParseGeoList(m_hits, out);
        return m_answer;
    }

private:
    bool m_answer;
    std::string m_hits;
};

}  // namespace end_testing
