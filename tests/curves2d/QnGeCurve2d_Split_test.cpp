// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "CurveTesting.h"
#include "support/ExpectGeo.h"
#include "values/QnGePointArray.h"

using namespace curve_testing;

namespace {

/// The pieces show the parameters they were asked with as x of their ends.
void ExpectSplit(bool closed, std::initializer_list<double> pas, const char* expected, double tolerance = 1e-15) {
    AxisCurve curve;
    curve.closed = closed;
    QnGeObjList pieces;
    curve.Split(Pas(pas), pieces);
    ExpectGeoList(pieces, expected, tolerance);
}

}  // namespace

TEST(QnGeCurve2d_Split, OpenCurve) {
    ExpectSplit(false, {}, "");
    ExpectSplit(false, {0.25}, "seg 0,0 0.25,0; seg 0.25,0 1,0");
    ExpectSplit(false, {0.25, 0.5, 0.75}, "seg 0,0 0.25,0; seg 0.25,0 0.5,0; seg 0.5,0 0.75,0; seg 0.75,0 1,0");
}

TEST(QnGeCurve2d_Split, OpenCurveAtItsEnds) {
    ExpectSplit(false, {0.0, 1.0}, "seg 0,0 1,0");
    ExpectSplit(false, {0.0}, "seg 0,0 1,0");
    ExpectSplit(false, {1.0}, "seg 0,0 1,0");
    ExpectSplit(false, {1e-9, 0.5}, "seg 1e-9,0 0.5,0; seg 0.5,0 1,0");
    ExpectSplit(false, {1.1e-9, 0.5}, "seg 0,0 1.1e-9,0; seg 1.1e-9,0 0.5,0; seg 0.5,0 1,0");
    ExpectSplit(false, {0.5, 0.9999999995}, "seg 0,0 0.5,0; seg 0.5,0 0.9999999995,0");
    ExpectSplit(false, {0.5, 0.999999998}, "seg 0,0 0.5,0; seg 0.5,0 0.999999998,0; seg 0.999999998,0 1,0");
}

TEST(QnGeCurve2d_Split, OpenCurveBeyondItsEnds) {
    ExpectSplit(false, {-0.5, 1.5}, "seg -0.5,0 1.5,0");
    ExpectSplit(false, {-0.5}, "seg -0.5,0 1,0");
    ExpectSplit(false, {1.5}, "seg 0,0 1.5,0");
}

TEST(QnGeCurve2d_Split, RepeatedParametersMakeNoPiece) {
    ExpectSplit(false, {0.5, 0.5}, "seg 0,0 0.5,0; seg 0.5,0 1,0");
    ExpectSplit(false, {0.5, 0.5000000005, 0.75}, "seg 0,0 0.5,0; seg 0.5000000005,0 0.75,0; seg 0.75,0 1,0");
    ExpectSplit(false, {0.5, 0.5000000011}, "seg 0,0 0.5,0; seg 0.5,0 0.5000000011,0; seg 0.5000000011,0 1,0");
    ExpectSplit(true, {0.25, 0.25, 0.5}, "seg 0.25,0 0.5,0; seg 0.5,0 0.25,0");
}

TEST(QnGeCurve2d_Split, ClosedCurveOpensAtOneParameter) {
    ExpectSplit(true, {}, "");
    ExpectSplit(true, {0.3}, "seg 0.3,0 0.3,0");
    ExpectSplit(true, {0.0}, "seg 0,0 0,0");
    ExpectSplit(true, {1.0}, "seg 1,0 1,0");
}

TEST(QnGeCurve2d_Split, ClosedCurveEndsWithThePieceOverTheSeam) {
    ExpectSplit(true, {0.25, 0.75}, "seg 0.25,0 0.75,0; seg 0.75,0 0.25,0");
    ExpectSplit(true, {0.25, 0.5, 0.75}, "seg 0.25,0 0.5,0; seg 0.5,0 0.75,0; seg 0.75,0 0.25,0");
    ExpectSplit(true, {0.0, 0.5}, "seg 0,0 0.5,0; seg 0.5,0 0,0");
    ExpectSplit(true, {0.5, 1.0}, "seg 0.5,0 1,0; seg 1,0 0.5,0");
    ExpectSplit(true, {0.5, 0.5}, "seg 0.5,0 0.5,0");
}

TEST(QnGeCurve2d_Split, ClosedCurveCutAtBothSidesOfTheSeamHasNoPieceOverIt) {
    ExpectSplit(true, {0.0, 1.0}, "seg 0,0 1,0");
    ExpectSplit(true, {0.0, 0.5, 1.0}, "seg 0,0 0.5,0; seg 0.5,0 1,0");
    ExpectSplit(true, {5e-10, 0.9999999995}, "seg 5e-10,0 0.9999999995,0");
}

TEST(QnGeCurve2d_Split, APieceThatDoesNotExistIsAppendedAsNull) {
    BareCurve curve;
    QnGeObjList pieces;
    curve.Split(Pas({0.5}), pieces);
    ASSERT_EQ(pieces.GetLength(), 2);
    EXPECT_EQ(pieces.GetPData(0), nullptr);
    EXPECT_EQ(pieces.GetPData(1), nullptr);
    curve.closed = true;
    curve.Split(Pas({0.5}), pieces);
    EXPECT_EQ(pieces.GetLength(), 3) << "what was there stays";
}

TEST(QnGeCurve2d_Split, AtPointsInAnyOrder) {
    AxisCurve curve;
    curve.scale = 8.0;
    QnGePointArray points;
    points.Append(QnGePoint(6.0, 0.0));
    points.Append(QnGePoint(2.0, 0.0));
    points.Append(QnGePoint(4.0, -1.0));
    QnGeObjList pieces;
    curve.Split(points, pieces);
    ExpectGeoList(pieces, "seg 0,0 2,0; seg 2,0 4,0; seg 4,0 6,0; seg 6,0 8,0");
}

TEST(QnGeCurve2d_Split, APointWithoutParameterCountsAsZero) {
    AxisCurve curve;
    curve.closed = true;
    QnGePointArray points;
    points.Append(QnGePoint(0.5, 0.0));
    points.Append(QnGePoint(0.75, 1.0));
    QnGeObjList pieces;
    curve.Split(points, pieces);
    ExpectGeoList(pieces, "seg 0,0 0.5,0; seg 0.5,0 0,0");
}

TEST(QnGeCurve2d_Split, ReachesTheSegmentsOwnFormThroughPoints) {
    QnGePointArray points;
    points.Append(QnGePoint(3.0, 0.0));
    points.Append(QnGePoint(1.0, 0.0));
    QnGeObjList pieces;
    ParseGeoAs<QnGeLineSeg2d>("seg 0,0 4,0")->Split(points, pieces);
    ExpectGeoList(pieces, "seg 0,0 1,0; seg 1,0 3,0; seg 3,0 4,0");
    pieces.Reset();
    ParseGeoAs<QnGeMLine2d>("mline 0,0 4,0 4,4 0,4 close")->Split(points, pieces);
    ExpectGeoList(pieces, "mline 1,0 3,0; mline 3,0 4,0 4,4 0,4 0,0 1,0");
}
