// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "RoundTesting.h"
#include "frame/QnPushVar.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGePointArray.h"

using namespace round_testing;

namespace {

std::string PiecesOf(const char* circle, std::initializer_list<double> pas) {
    QnGeObjList pieces;
    SplitAt(CircleOf(circle), pas, pieces);
    return ToText(pieces);
}

void ExpectPieces(const char* circle, std::initializer_list<double> pas, const char* expected) {
    QnGeObjList pieces;
    SplitAt(CircleOf(circle), pas, pieces);
    ExpectGeoList(pieces, expected);
}

std::unique_ptr<QnGeMLine2d> Chords(const char* circle, double prec) {
    return std::unique_ptr<QnGeMLine2d>(CircleOf(circle).MLinearize(prec));
}

}  // namespace

// ---- sub-curves --------------------------------------------------------------------------------------

TEST(QnGeCircle2d, SubCurveRunsWithTheTravel) {
    const auto piece = [](const char* circle, double pa1, double pa2, const char* expected) {
        ExpectGeo(std::unique_ptr<QnGeCurve2d>(CircleOf(circle).GetSubCurve(pa1, pa2)).get(), expected);
    };
    piece("circle 1,2,3 r4", 0.5, 2.0, "arc 1,2,3 r4 from 0.5 sweep 1.5");
    piece("circle 1,2,3 r4 cw", 0.5, 2.0, "arc 1,2,3 r4 from 0.5 sweep 1.5 cw");
    piece("circle 1,2 r4", 3.0 * EXACT_PI / 2.0, EXACT_PI / 2.0, "arc 1,2 r4 from 3pi/2 sweep pi");
    piece("circle 1,2 r4", 7.0, 8.0, "arc 1,2 r4 from 0.7168146928204 sweep 1");
    piece("circle 1,2 r4", -1.0, 1.0, "arc 1,2 r4 from 5.2831853071796 sweep 2");
}

TEST(QnGeCircle2d, SubCurveOfEqualParametersIsTheWholeCircleOpenedThere) {
    const QnGeCircle2d circle = CircleOf("circle 1,2 r4 cw");
    const std::unique_ptr<QnGeCurve2d> opened(circle.GetSubCurve(2.0, 2.0));
    ExpectGeo(opened.get(), "arc 1,2 r4 from 2 sweep 2pi cw", 0.0);
    EXPECT_TRUE(opened->IsClosed());
    EXPECT_TRUE(opened->IsValid());
    EXPECT_EQ(opened->GetPeriod(), 1.0);
    const std::unique_ptr<QnGeCurve2d> nearly(circle.GetSubCurve(2.0, 2.000009));
    ExpectGeo(nearly.get(), "arc 1,2 r4 from 2 sweep 2pi cw", 0.0);
    const std::unique_ptr<QnGeCurve2d> turned(circle.GetSubCurve(0.0, 6.2831853071796));
    ExpectGeo(turned.get(), "arc 1,2 r4 from 0 sweep 2pi cw", 0.0);
    const std::unique_ptr<QnGeCurve2d> sliver(circle.GetSubCurve(2.0, 2.00002));
    ExpectGeo(sliver.get(), "arc 1,2 r4 from 2 sweep 0.00002 cw");
}

TEST(QnGeCircle2d, SubCurveBetweenPoints) {
    const QnGeCircle2d circle = CircleOf("circle 0,0 r2");
    const std::unique_ptr<QnGeCurve2d> piece(circle.GetSubCurve(QnGePoint(0, 2), QnGePoint(-2, 0)));
    ExpectGeo(piece.get(), "arc 0,0 r2 from pi/2 sweep pi/2");
    // The centre has no parameter and counts as 0.
    const std::unique_ptr<QnGeCurve2d> fromCentre(circle.GetSubCurve(QnGePoint(0, 0), QnGePoint(-2, 0)));
    ExpectGeo(fromCentre.get(), "arc 0,0 r2 from 0 sweep pi");
}

// ---- splitting ---------------------------------------------------------------------------------------

TEST(QnGeCircle2d, SplitAtNothingGivesNothing) {
    EXPECT_EQ(PiecesOf("circle 0,0 r2", {}), "");
}

TEST(QnGeCircle2d, SplitAtOneParameterOpensTheCircle) {
    ExpectPieces("circle 0,0 r2", {1.5}, "arc 0,0 r2 from 1.5 sweep 2pi");
    ExpectPieces("circle 0,0 r2 cw", {0.0}, "arc 0,0 r2 from 0 sweep 2pi cw");
}

TEST(QnGeCircle2d, SplitPutsThePieceOverPlusXLast) {
    ExpectPieces("circle 0,0 r2", {1.0, 3.0, 4.0},
                 "arc 0,0 r2 from 1 sweep 2; arc 0,0 r2 from 3 sweep 1; arc 0,0 r2 from 4 sweep 3.2831853071796");
    ExpectPieces("circle 0,0 r2 cw", {0.0, 3.0},
                 "arc 0,0 r2 from 0 sweep 3 cw; arc 0,0 r2 from 3 sweep 3.2831853071796 cw");
    ExpectPieces("circle 0,0 r2", {1.0, 6.2831853071796},
                 "arc 0,0 r2 from 1 sweep 5.2831853071796; arc 0,0 r2 from 0 sweep 1");
}

TEST(QnGeCircle2d, SplitFromZeroToTheFullTurnHasNoWrapPiece) {
    ExpectPieces("circle 0,0 r2", {0.0, 2.0, 6.2831853071796},
                 "arc 0,0 r2 from 0 sweep 2; arc 0,0 r2 from 2 sweep 4.2831853071796");
    ExpectPieces("circle 0,0 r2", {9e-6, 6.28318}, "arc 0,0 r2 from 0 sweep 6.283171");
    ExpectPieces("circle 0,0 r2", {0.0, 6.2831853071796}, "arc 0,0 r2 from 0 sweep 2pi");
}

TEST(QnGeCircle2d, SplitTakesParametersWithinTheAngleToleranceAsOne) {
    ExpectPieces("circle 0,0 r2", {1.0, 1.0}, "arc 0,0 r2 from 1 sweep 2pi");
    ExpectPieces("circle 0,0 r2", {1.0, 1.000009, 3.0},
                 "arc 0,0 r2 from 1.000009 sweep 1.999991; arc 0,0 r2 from 3 sweep 4.2831853071796");
    ExpectPieces("circle 0,0 r2", {1.0, 1.00002},
                 "arc 0,0 r2 from 1 sweep 0.00002; arc 0,0 r2 from 1.00002 sweep 6.2831653071796");
}

TEST(QnGeCircle2d, SplitAtPointsSortsThem) {
    QnGePointArray points;
    points.Append(QnGePoint(-2, 0));
    points.Append(QnGePoint(0, 2));
    QnGeObjList pieces;
    CircleOf("circle 0,0 r2").Split(points, pieces);
    ExpectGeoList(pieces, "arc 0,0 r2 from pi/2 sweep pi/2; arc 0,0 r2 from pi sweep 3pi/2");
}

// ---- linearising -------------------------------------------------------------------------------------

TEST(QnGeCircle2d, MLinearizeTakesTheStepInRadians) {
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 0.0)), "closed 63");
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 0.1)), "closed 63");
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 2.0)), "closed 4");
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 3.15)), "closed 2");
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1000", 2.0)), "closed 4") << "the radius plays no part";
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 7.0)), "null");
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 6.2831853071796)), "null");
}

TEST(QnGeCircle2d, MLinearizeTakesTheDefaultForAStepBelowTheParameterTolerance) {
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 9e-10)), "closed 63");
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", -2.0)), "closed 63");
}

TEST(QnGeCircle2d, MLinearizeGoesAroundWithTheTravel) {
    ExpectGeo(Chords("circle 1,2,3 r2", 1.6).get(), "mline 3,2,3 1,4,3 -1,2,3 1,0,3 close");
    ExpectGeo(Chords("circle 1,2,3 r2 cw", 1.6).get(), "mline 3,2,3 1,0,3 -1,2,3 1,4,3 close");
}

TEST(QnGeCircle2d, LinearisationStepIsSharedData) {
    EXPECT_EQ(QnGeCircle2d::s_dMLinePreci, 0.1);
    const QnPushVar<double> keep(QnGeCircle2d::s_dMLinePreci, 0.1);
    QnGeCircle2d::SetMLinePreci(0.5);
    EXPECT_EQ(QnGeCircle2d::s_dMLinePreci, 0.5);
    EXPECT_EQ(CircleOf("circle 0,0 r9").GetMLinePrec(), 0.5);
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 0.0)), "closed 13");
    QnGeCircle2d::SetMLinePreci(0.0);
    EXPECT_EQ(ShapeOf(Chords("circle 0,0 r1", 0.0)), "null") << "a step of nothing gives no number of chords";
}

TEST(QnGeCircle2d, PLinearizeIsTwoHalfCirclesWhateverTheStep) {
    const QnGeCircle2d ccw = CircleOf("circle 1,2,3 r4");
    const QnGeCircle2d cw = CircleOf("circle 1,2,3 r4 cw");
    for (const double prec : {0.0, 0.01, 50.0}) {
        const std::unique_ptr<QnGeMLine2d> line(ccw.PLinearize(prec));
        ExpectGeo(line.get(), "pline 5,2,3@pi -3,2,3@pi close");
        EXPECT_NEAR(line->Area(), 16.0 * EXACT_PI, 1e-9);
    }
    const std::unique_ptr<QnGeMLine2d> line(cw.PLinearize(0.0));
    ExpectGeo(line.get(), "pline 5,2,3@-pi -3,2,3@-pi close");
}

TEST(QnGeCircle2d, MLinearizeByDistIsClosedWithoutARepeatedEnd) {
    const QnGeCircle2d circle = CircleOf("circle 0,0 r2 cw");
    const std::unique_ptr<QnGeMLine2d> line(circle.MLinearizeByDist(2.0, false));
    ASSERT_EQ(ShapeOf(line), "closed 7");
    for (long i = 0; i < 7; ++i) {
        const QnGePoint expected = PlainPoint(QnGePoint(), 2.0, false, static_cast<double>(i));
        EXPECT_LT(PlanDistance(line->GetVertex(i), expected), 1e-9) << i;
    }
    const std::unique_ptr<QnGeMLine2d> quarters(circle.MLinearizeByDist(circle.Length() / 4.0, true));
    EXPECT_EQ(ShapeOf(quarters), "closed 4") << "the last step ends at the start and is left out";
    const std::unique_ptr<QnGeMLine2d> oneStep(circle.MLinearizeByDist(100.0, false));
    EXPECT_EQ(ShapeOf(oneStep), "closed 1");
}

TEST(QnGeCircle2d, ExtendCurveIsACopy) {
    const QnGeCircle2d circle = CircleOf("circle 1,2,3 r4 cw");
    const std::unique_ptr<QnGeCurve2d> extended(circle.GetExtendCurve());
    EXPECT_NE(extended.get(), &circle);
    ExpectGeo(extended.get(), "circle 1,2,3 r4 cw", 0.0);
}
