// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "CurveTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "frame/QnPushVar.h"
#include "support/ExpectGeo.h"

using namespace curve_testing;

namespace {

long VertexCount(const QnGeCurve2d& curve, double prec) {
    const std::unique_ptr<QnGeMLine2d> line(curve.MLinearize(prec));
    return line == nullptr ? -1 : line->GetVertexNum();
}

/// Its end lies elsewhere than Pa 1 says.
class HookedCurve : public AxisCurve {
public:
    bool GetEndPoint(QnGePoint& pt) const override {
        pt.SetPoint(7.0, 7.0, 7.0);
        return true;
    }
    QnGeObject* Clone() const override { return new HookedCurve(*this); }
};

/// Notes the step it was linearised with.
class NotingCurve : public AxisCurve {
public:
    mutable double prec = UNTOUCHED;
    QnGeMLine2d* MLinearize(double step) const override {
        prec = step;
        return nullptr;
    }
};

std::unique_ptr<QnGeMLine2d> ByDist(const QnGeCurve2d& curve, double step) {
    return std::unique_ptr<QnGeMLine2d>(curve.MLinearizeByDist(step, true));
}

}  // namespace

TEST(QnGeCurve2d_Linearize, StepCountIsRoundedUp) {
    const AxisCurve open;
    EXPECT_EQ(VertexCount(open, 0.25), 5);
    EXPECT_EQ(VertexCount(open, 0.3), 5);
    EXPECT_EQ(VertexCount(open, 0.5), 3);
    EXPECT_EQ(VertexCount(open, 0.49), 4);
    EXPECT_EQ(VertexCount(open, 0.4999999), 3) << "less than a millionth of a step too many is no step";
    EXPECT_EQ(VertexCount(open, 1.0), 2);
    EXPECT_EQ(VertexCount(open, 2.0), 2);
    EXPECT_EQ(VertexCount(open, 1e8), 2) << "at least one step";
    EXPECT_EQ(VertexCount(open, std::numeric_limits<double>::infinity()), 2);
}

TEST(QnGeCurve2d_Linearize, ClosedCurveHasAtLeastTwoStepsAndNoEndVertex) {
    AxisCurve closed;
    closed.closed = true;
    EXPECT_EQ(VertexCount(closed, 0.25), 4);
    EXPECT_EQ(VertexCount(closed, 0.5), 2);
    EXPECT_EQ(VertexCount(closed, 1.0), 2);
    EXPECT_EQ(VertexCount(closed, 1e8), 2);
    const std::unique_ptr<QnGeMLine2d> line(closed.MLinearize(0.25));
    ExpectGeo(line.get(), "mline 0,0 0.25,0 0.5,0 0.75,0 close");
}

TEST(QnGeCurve2d_Linearize, TinyAndNegativeStepsAreTheCurvesOwn) {
    AxisCurve curve;
    curve.linePrec = 0.25;
    EXPECT_EQ(VertexCount(curve, 0.0), 5);
    EXPECT_EQ(VertexCount(curve, 9e-10), 5);
    EXPECT_EQ(VertexCount(curve, -3.0), 5);
}

TEST(QnGeCurve2d_Linearize, AnUnusableStepOfItsOwnMakesOneStep) {
    AxisCurve curve;
    for (const double prec : {0.0, -0.0, -1.0, -1e-300, 1e-300, std::numeric_limits<double>::quiet_NaN(),
                              -std::numeric_limits<double>::infinity(), 1e-10}) {
        curve.linePrec = prec;
        curve.closed = false;
        EXPECT_EQ(VertexCount(curve, 0.0), 2) << prec;
        curve.closed = true;
        EXPECT_EQ(VertexCount(curve, 0.0), 2) << prec;
    }
}

TEST(QnGeCurve2d_Linearize, ParametersGrowByRepeatedAddition) {
    const AxisCurve curve;
    const std::unique_ptr<QnGeMLine2d> line(curve.MLinearize(0.1));
    ASSERT_EQ(line->GetVertexNum(), 11);
    double sum = 0.0;
    for (long i = 0; i < 10; ++i) {
        EXPECT_EQ(line->GetVertex(i).x, sum);
        sum += 0.1;
    }
    EXPECT_NE(sum, 1.0) << "the sum misses the end";
    EXPECT_EQ(line->GetVertex(10).x, 1.0) << "which is the end all the same";
}

TEST(QnGeCurve2d_Linearize, LastVertexIsTheEndPoint) {
    const HookedCurve curve;
    const std::unique_ptr<QnGeMLine2d> line(curve.MLinearize(0.5));
    ExpectGeo(line.get(), "mline 0,0 0.5,0 7,7,7");
    HookedCurve closed;
    closed.closed = true;
    const std::unique_ptr<QnGeMLine2d> ring(closed.MLinearize(0.5));
    ExpectGeo(ring.get(), "mline 0,0 0.5,0 close");
}

TEST(QnGeCurve2d_Linearize, NothingWithoutBothEnds) {
    AxisCurve curve;
    curve.endExists = false;
    EXPECT_EQ(VertexCount(curve, 0.25), -1);
    curve.endExists = true;
    curve.startExists = false;
    EXPECT_EQ(VertexCount(curve, 0.25), -1);
    curve.closed = true;
    EXPECT_EQ(VertexCount(curve, 0.25), -1) << "closed is not enough";
}

TEST(QnGeCurve2d_Linearize, PLinearizeIsMLinearizeByDefault) {
    const NotingCurve curve;
    EXPECT_EQ(curve.PLinearize(0.125), nullptr);
    EXPECT_EQ(curve.prec, 0.125);
}

TEST(QnGeCurve2d_Linearize, ZeroStepOfCircles) {
    const QnPushVar<double> step(QnGeCircle2d::s_dMLinePreci, QnGeCircle2d::s_dMLinePreci);
    QnGeCircle2d::SetMLinePreci(0.0);
    const auto arc = ParseGeoAs<QnGeArc2d>("arc 0,0 r2 from 0 sweep pi/2");
    const std::unique_ptr<QnGeMLine2d> chord(arc->MLinearize(0.0));
    ExpectGeo(chord.get(), "mline 2,0 0,2");
    const auto closedArc = ParseGeoAs<QnGeArc2d>("arc 0,0 r2 from 0 sweep 2pi");
    const std::unique_ptr<QnGeMLine2d> chords(closedArc->MLinearize(0.0));
    ExpectGeo(chords.get(), "mline 2,0 -2,0 close");
    EXPECT_EQ(VertexCount(*ParseGeoAs<QnGeCurve2d>("circle 0,0 r2"), 0.0), -1);
}

TEST(QnGeCurve2d_Linearize, ByDistanceStepsUpToTheEnd) {
    AxisCurve curve;
    curve.scale = 10.0;
    ExpectGeo(ByDist(curve, 3.0).get(), "mline 0,0 3,0 6,0 9,0 10,0");
    ExpectGeo(ByDist(curve, 5.0).get(), "mline 0,0 5,0 10,0");
    ExpectGeo(ByDist(curve, 4.9999999).get(), "mline 0,0 4.9999999,0 10,0");
    ExpectGeo(ByDist(curve, 4.999999).get(), "mline 0,0 4.999999,0 9.999998,0 10,0");
    ExpectGeo(ByDist(curve, 25.0).get(), "mline 0,0 10,0");
}

TEST(QnGeCurve2d_Linearize, ByDistanceOfAClosedCurveHasNoEndVertex) {
    AxisCurve curve;
    curve.scale = 10.0;
    curve.closed = true;
    ExpectGeo(ByDist(curve, 4.0).get(), "mline 0,0 4,0 8,0 close");
    curve.startExists = curve.endExists = false;
    ExpectGeo(ByDist(curve, 4.0).get(), "mline 0,0 4,0 8,0 close");
    ExpectGeo(ByDist(QnGeCurve2d(), 1.0).get(), "mline 0,0 close");
}

TEST(QnGeCurve2d_Linearize, ByDistanceNeedsALength) {
    AxisCurve curve;
    curve.endExists = false;
    EXPECT_EQ(ByDist(curve, 0.25), nullptr);
    curve.startExists = false;
    EXPECT_EQ(ByDist(curve, 0.25), nullptr);
}

TEST(QnGeCurve2d_Linearize, ByDistanceNeedsALengthThatEnds) {
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ByDist(QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(infinite, 0.0)), 1.0), nullptr);
    EXPECT_EQ(ByDist(QnGeCircle2d(QnGePoint(0.0, 0.0), infinite), 1.0), nullptr);
}

TEST(QnGeCurve2d_Linearize, ByDistanceOfAnArc) {
    const auto arc = ParseGeoAs<QnGeArc2d>("arc 0,0 r2 from 0 sweep pi");
    ExpectGeo(ByDist(*arc, QN_PI).get(), "mline 2,0 0,2 -2,0");
}
