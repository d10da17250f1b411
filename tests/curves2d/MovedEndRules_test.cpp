// SPDX-License-Identifier: Apache-2.0
// Rules of Extend, Trim, Connect and of joining two ends that no curve of the library shows by itself, and the order
// in which two curves are moved.
#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

#include "EndTesting.h"

using namespace end_testing;

namespace {

constexpr EndResult FAILED = QnGeCurve2d::ETR_FAILED;
constexpr EndResult NO_INTERSECTION = QnGeCurve2d::ETR_NO_INTERSECTION;
constexpr EndResult NO_VALID_POINT = QnGeCurve2d::ETR_NO_VALID_POINT;
constexpr EndResult DONE = QnGeCurve2d::ETR_DONE;

constexpr int LAST_FROM_STAYING = 0;
constexpr int FIRST_FROM_STAYING = 1;
constexpr int CLOSEST_TO_MOVING = 2;

/// The x axis, met by everything at the points it is told, and its own extension. Which stretch it is asked for it
/// notes in `asked`, of which `stretches` says whether there is one.
class ProbeCurve : public curve_testing::AxisCurve {
public:
    struct Stretch {
        double from = curve_testing::UNTOUCHED;
        double to = curve_testing::UNTOUCHED;
    };

    std::vector<QnGePoint> met;
    bool stretches = true;
    double startAt = 0.0;
    double endAt = 1.0;
    std::shared_ptr<Stretch> asked = std::make_shared<Stretch>();

    explicit ProbeCurve(std::vector<QnGePoint> points) : met(std::move(points)) {}

    QnGeObject* Clone() const override { return new ProbeCurve(*this); }
    bool CopyFrom(const QnGeObject* other) override { return other != nullptr; }
    bool IntersectWith(const QnGeObject& other, QnGeObjList& out) const override {
        static_cast<void>(other);
        for (const QnGePoint& pt : met) {
            out.Append(new QnGePoint2d(pt));
        }
        return !met.empty();
    }
    bool GetStartPoint(QnGePoint& pt) const override {
        pt.SetPoint(startAt, 0.0, 0.0);
        return startExists;
    }
    bool GetEndPoint(QnGePoint& pt) const override {
        pt.SetPoint(endAt, 0.0, 0.0);
        return endExists;
    }
    double GetPeriod() const override { return closed ? 1.0 : 0.0; }
    QnGeCurve2d* GetExtendCurve() const override { return new ProbeCurve(*this); }
    using QnGeCurve2d::GetSubCurve;
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override {
        asked->from = pa1;
        asked->to = pa2;
        return stretches ? AxisCurve::GetSubCurve(pa1, pa2) : nullptr;
    }
};

/// Meeting points on the axis.
ProbeCurve MetAt(const std::vector<double>& places) {
    std::vector<QnGePoint> points;
    points.reserve(places.size());
    for (const double x : places) {
        points.emplace_back(x, 0.0);
    }
    return ProbeCurve(points);
}

/// The same on a closed curve of period 1 between 0.2 and 0.6.
ProbeCurve MetAroundAt(const std::vector<double>& places) {
    ProbeCurve curve = MetAt(places);
    curve.closed = true;
    curve.startAt = 0.2;
    curve.endAt = 0.6;
    return curve;
}

const QnGePoint2d ANYTHING;

Objects OneObject() {
    return Objects("point 0,0");
}

}  // namespace

// ---- what yields no curve ----------------------------------------------------------------------------

TEST(MovedEndRules, WithoutAStretchThereIsNoNewCurve) {
    ProbeCurve curve = MetAt({0.5, 3.0});
    curve.stretches = false;
    EXPECT_EQ(curve.Extend(ANYTHING, END, NEAREST), FAILED);
    EXPECT_EQ(curve.Extend(OneObject(), END, NEAREST), FAILED);
    EXPECT_EQ(curve.Connect(ANYTHING, END, CLOSEST_TO_MOVING), FAILED);
    EXPECT_EQ(curve.Connect(OneObject(), START, FIRST_FROM_STAYING), FAILED);
    EXPECT_EQ(curve.Trim(ANYTHING, END), FAILED);
    EXPECT_EQ(curve.Trim(OneObject(), START), FAILED);
}

TEST(MovedEndRules, TwoPiecesThatAreMissingAreNotTwoPieces) {
    ProbeCurve curve = MetAt({0.5});
    curve.stretches = false;
    curve.startExists = false;
    curve.endAt = 0.25;
    EXPECT_EQ(curve.Extend(ANYTHING, END, NEAREST), FAILED);
    EXPECT_EQ(curve.Connect(ANYTHING, END, CLOSEST_TO_MOVING), FAILED);
    EXPECT_EQ(curve.Trim(ANYTHING, END), NO_VALID_POINT);
}

TEST(MovedEndRules, APointWithoutAParameterIsNoPlace) {
    ProbeCurve above({QnGePoint(3.0, 1.0)});
    EXPECT_EQ(above.Extend(ANYTHING, END, NEAREST), NO_VALID_POINT);
    EXPECT_EQ(above.Connect(ANYTHING, END, CLOSEST_TO_MOVING), NO_VALID_POINT);
    EXPECT_EQ(above.Connect(OneObject(), END, CLOSEST_TO_MOVING), NO_VALID_POINT);
    EXPECT_EQ(above.Trim(ANYTHING, END), NO_VALID_POINT);
    ProbeCurve both({QnGePoint(0.1, 1.0), QnGePoint(0.5, 0.0)});
    EXPECT_EQ(both.Trim(ANYTHING, END), DONE);
    EXPECT_EQ(both.asked->to, 0.5);
}

TEST(MovedEndRules, TrimsListFormLooksAtTheHitsAndItsSingleFormAtTheAnswer) {
    const FixedHits hitsDenied(false, "point 3,0");
    const FixedHits hitsMissing(true, "");
    QnGeObjList denied;
    denied.Append(new FixedHits(hitsDenied));
    QnGeObjList missing;
    missing.Append(new FixedHits(hitsMissing));
    const char* const seg = "seg 0,0 9,0";
    ExpectMoved(seg, NO_INTERSECTION, "", [&](QnGeCurve2d& c) { return c.Trim(hitsDenied, END); });
    ExpectMoved(seg, DONE, "seg 0,0 3,0", [&](QnGeCurve2d& c) { return c.Trim(denied, END); });
    ExpectMoved(seg, NO_VALID_POINT, "", [&](QnGeCurve2d& c) { return c.Trim(hitsMissing, END); });
    ExpectMoved(seg, NO_INTERSECTION, "", [&](QnGeCurve2d& c) { return c.Trim(missing, END); });
}

// ---- equally good places -----------------------------------------------------------------------------

TEST(MovedEndRules, OnAClosedCurveTheLowestOfEquallyFarPlaces) {
    // Within g_fZero of the staying end the way round is nothing.
    ProbeCurve atStart = MetAroundAt({0.2, 0.2 - 5e-10, 0.2 + 5e-10});
    for (const bool nearest : {NEAREST, FARTHEST}) {
        EXPECT_EQ(atStart.Extend(ANYTHING, END, nearest), DONE);
        EXPECT_EQ(atStart.asked->from, 0.2);
        EXPECT_EQ(atStart.asked->to, 0.2 - 5e-10);
    }
    ProbeCurve atEnd = MetAroundAt({0.6 + 5e-10, 0.6, 0.6 - 5e-10});
    for (const bool nearest : {NEAREST, FARTHEST}) {
        EXPECT_EQ(atEnd.Extend(ANYTHING, START, nearest), DONE);
        EXPECT_EQ(atEnd.asked->from, 0.6 - 5e-10);
        EXPECT_EQ(atEnd.asked->to, 0.6);
    }
}

TEST(MovedEndRules, OnAClosedCurveConnectTakesTheLowestOfEquallyClosePlaces) {
    ProbeCurve atEnd = MetAroundAt({0.6 + 5e-10, 0.6, 0.6 - 5e-10});
    EXPECT_EQ(atEnd.Connect(ANYTHING, END, CLOSEST_TO_MOVING), DONE);
    EXPECT_EQ(atEnd.asked->to, 0.6 - 5e-10);
    EXPECT_EQ(atEnd.Connect(OneObject(), END, FIRST_FROM_STAYING), DONE) << "the one place that the object offers";
    EXPECT_EQ(atEnd.asked->to, 0.6 - 5e-10);
    ProbeCurve farAtStart = MetAroundAt({0.2 + 5e-10, 0.2 - 5e-10});
    EXPECT_EQ(farAtStart.Connect(ANYTHING, START, CLOSEST_TO_MOVING), DONE);
    EXPECT_EQ(farAtStart.asked->from, 0.2 - 5e-10);
}

TEST(MovedEndRules, OnAClosedCurveTheSideOfTheEndsDoesNotMatter) {
    ProbeCurve curve = MetAroundAt({0.1, 0.9});
    EXPECT_EQ(curve.Extend(ANYTHING, END, NEAREST), DONE);
    EXPECT_EQ(curve.asked->to, 0.9);
    EXPECT_EQ(curve.Extend(ANYTHING, END, FARTHEST), DONE);
    EXPECT_EQ(curve.asked->to, 0.1);
    EXPECT_EQ(curve.Connect(ANYTHING, START, CLOSEST_TO_MOVING), DONE);
    EXPECT_EQ(curve.asked->from, 0.1);
    EXPECT_EQ(curve.Connect(ANYTHING, START, LAST_FROM_STAYING), DONE);
    EXPECT_EQ(curve.asked->from, 0.9);
}

// ---- where the staying end is missing ----------------------------------------------------------------

TEST(MovedEndRules, WithoutAStayingEndNothingIsDegenerate) {
    ExpectConnect("line 0,0 1,0", "line 0,0 0,1", END, CLOSEST_TO_MOVING, DONE, "line 0,0 -1,0");
    ExpectConnect("line 0,0 1,0", "line 1,0 0,1", START, FIRST_FROM_STAYING, DONE, "line 1,0 1,0");
    ExpectTrim("line 0,0 1,0", "line 0,0 0,1", END, DONE, "line 0,0 -1,0");
    ExpectTrim("line 0,0 1,0", "line 1,0 0,1", START, DONE, "line 1,0 1,0");
}

TEST(MovedEndRules, ACurveIsNoObjectForItself) {
    ExpectExtend("seg 0,0 1,0", "seg 0,0 1,0", END, NEAREST, NO_VALID_POINT);
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0 1,0");
    EXPECT_EQ(seg->Extend(*seg, END, NEAREST), NO_VALID_POINT);
    EXPECT_EQ(seg->Trim(*seg, END), NO_VALID_POINT);
    EXPECT_EQ(seg->Connect(*seg, END, CLOSEST_TO_MOVING), NO_VALID_POINT);
    ExpectGeo(*seg, "seg 0,0 1,0", 0.0);
}

// ---- two curves --------------------------------------------------------------------------------------

// The bent line is cut back to (2,0), and the segment goes to (4,7) on what carried the bent line before; what carries
// it afterwards would have met the segment at (2,0) only.
TEST(MovedEndRules, TheNextCurveMovesToTheExtensionFromBefore) {
    const auto bent = ParseGeoAs<QnGeCurve2d>("pline 0,0 4,0 4,4");
    const auto next = ParseGeoAs<QnGeCurve2d>("seg 5,10.5 6,14");
    EXPECT_FALSE(bent->ConnectWith(*next));
    ExpectGeo(*bent, "pline 0,0 2,0");
    ExpectGeo(*next, "seg 4,7 6,14");
}

TEST(MovedEndRules, AJointIsMadeOnTheExtensionsFromBefore) {
    const auto bent = ParseGeoAs<QnGeCurve2d>("pline 0,0 4,0 4,4");
    const auto next = ParseGeoAs<QnGeCurve2d>("seg 5,10.5 6,14");
    EXPECT_FALSE(ConnectCurveSeg(bent.get(), next.get(), false, true));
    ExpectGeo(*bent, "pline 0,0 4,0 4,4", 0.0);
    ExpectGeo(*next, "seg 5,10.5 6,14", 0.0);
}

TEST(MovedEndRules, AClosingGapOfTheSameCurveIsNoJoint) {
    const auto arc = ParseGeoAs<QnGeCurve2d>("arc 0,0 r2 from 0 sweep pi");
    EXPECT_FALSE(ConnectCurveSeg(arc.get(), arc.get(), false, true));
    ExpectGeo(*arc, "arc 0,0 r2 from 0 sweep pi", 0.0);
}
