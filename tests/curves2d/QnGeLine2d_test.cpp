// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeLine2d.h"

#include <gtest/gtest.h>

#include <memory>

#include "CurveTesting.h"
#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/DynCreateGeObject.h"
#include "support/ExpectGeo.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePointList.h"

using namespace curve_testing;

namespace {

/// Base (1,2), vector (3,4): the parameter counts in steps of 5.
QnGeLine2d SlopingLine() {
    return QnGeLine2d(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0));
}

void ExpectNearest(const char* curve, const char* from, const char* expected) {
    QnGePointList nearest;
    EXPECT_TRUE(ParseGeoAs<QnGeCurve2d>(curve)->GetClosestPoint2d(ParsePoint(from), nearest));
    ASSERT_EQ(nearest.GetLength(), 1);
    ExpectPoint(nearest.GetAt(0), expected);
}

std::uint32_t HitBits(const char* curve, double x, double y) {
    return Bits(ParseGeoAs<QnGeCurve2d>(curve)->HitTest(QnGePoint(x, y)));
}

}  // namespace

TEST(QnGeLine2d, FourWaysToMakeOne) {
    ExpectGeo(QnGeLine2d(), "line 0,0 0,0");
    ExpectGeo(QnGeLine2d(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0, 5.0)), "line 1,2,5 3,4");
    ExpectGeo(QnGeLine2d(QnGePoint(1.0, 2.0, 5.0), QnGePoint(4.0, 6.0, 7.0)), "line 1,2,5 3,4,2");
    ExpectGeo(QnGeLine2d(QnGeBaseLine2d(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0))), "line 1,2 3,4");
    const QnGeLine2d copy(SlopingLine());
    ExpectGeo(copy, "line 1,2 3,4");
    ExpectPoint(copy.GetBaseLine().basePoint, "1,2");
}

TEST(QnGeLine2d, CopiesShareNothing) {
    QnGeLine2d line = SlopingLine();
    line.SetBits(0x100);
    QnGeLine2d copy(line);
    QnGeLine2d assigned;
    assigned = line;
    line.dx = 9.0;
    EXPECT_EQ(copy.dx, 3.0);
    EXPECT_EQ(assigned.dx, 3.0);
    EXPECT_EQ(copy.GetBits(), 0x100U);
    EXPECT_EQ(assigned.GetBits(), 0x100U);
    EXPECT_EQ(&copy.dx, &copy.x) << "the second name is the copy's own";
}

TEST(QnGeLine2d, ValidWithADirection) {
    EXPECT_TRUE(SlopingLine().IsValid());
    EXPECT_FALSE(QnGeLine2d().IsValid());
    EXPECT_TRUE(QnGeLine2d(QnGeVector2d(1.1e-6, 0.0), QnGePoint()).IsValid());
    EXPECT_FALSE(QnGeLine2d(QnGeVector2d(0.9e-6, 0.0), QnGePoint()).IsValid());
}

TEST(QnGeLine2d, HasNoEndsAndNoMeasures) {
    const QnGeLine2d line = SlopingLine();
    EXPECT_FALSE(line.IsFinite(true));
    EXPECT_FALSE(line.IsFinite(false));
    EXPECT_FALSE(line.IsFinite());
    EXPECT_TRUE(line.IsInfinite());
    EXPECT_FALSE(line.IsCurveSeg());
    EXPECT_FALSE(line.IsClosed());
    EXPECT_FALSE(line.IsSelfCross());
    EXPECT_TRUE(line.IsMLinear());
    EXPECT_EQ(line.GetPeriod(), 0.0);
    EXPECT_EQ(line.Length(), 0.0);
    EXPECT_EQ(line.Area(), 0.0);
    QnGeExtent2d extent(1.0, 2.0, 3.0, 4.0);
    EXPECT_FALSE(line.GetExtent2d(extent));
    EXPECT_EQ(extent.y.max, 4.0);
    EXPECT_EQ(line.Symplify(), nullptr);
    EXPECT_EQ(QnGeLine2d().Symplify(), nullptr);
    EXPECT_EQ(line.MLinearize(0.1), nullptr);
    EXPECT_EQ(line.PLinearize(0.1), nullptr);
    EXPECT_EQ(line.MLinearizeByDist(0.1, true), nullptr);
    EXPECT_EQ(line.MLinearizeByDist(0.1, false), nullptr);
}

TEST(QnGeLine2d, EndPointsAreWrittenAndRefused) {
    QnGePoint pt;
    EXPECT_FALSE(SlopingLine().GetStartPoint(pt));
    ExpectPoint(pt, "1,2");
    EXPECT_FALSE(SlopingLine().GetEndPoint(pt));
    ExpectPoint(pt, "4,6");
    ExpectPoint(SlopingLine().GetSamplePoint(), "2.5,4");
}

TEST(QnGeLine2d, ParameterCountsInVectors) {
    const QnGeLine2d line(QnGePoint(1.0, 2.0, 0.0), QnGePoint(4.0, 6.0, 1.0));
    QnGePoint pt;
    double value = 0.0;
    EXPECT_TRUE(line.GetPtFromPa(-2.0, pt));
    ExpectPoint(pt, "-5,-6,-2");
    EXPECT_TRUE(line.GetPaFromPt(QnGePoint(100.0, 10.0), value));
    EXPECT_DOUBLE_EQ(value, 2.0) << "by the longer coordinate, not projected";
    EXPECT_TRUE(line.GetDistFromPa(-2.0, value));
    EXPECT_DOUBLE_EQ(value, -10.0);
    EXPECT_TRUE(line.GetPaFromDist(-10.0, value));
    EXPECT_DOUBLE_EQ(value, -2.0);
    EXPECT_TRUE(line.GetPtFromDist(5.0, pt));
    ExpectPoint(pt, "4,6,1");
    EXPECT_TRUE(line.GetDistFromPt(QnGePoint(7.0, 10.0), value));
    EXPECT_DOUBLE_EQ(value, 10.0);
}

TEST(QnGeLine2d, ReverseTurnsTheVectorInThePlan) {
    QnGeLine2d line(QnGePoint(1.0, 2.0, 0.0), QnGePoint(4.0, 6.0, 1.0));
    line.Reverse();
    ExpectGeo(line, "line 1,2 -3,-4,1");
}

TEST(QnGeLine2d, OffsetGoesToTheRight) {
    QnGeLine2d line = SlopingLine();
    EXPECT_TRUE(line.Offset(5.0));
    ExpectGeo(line, "line 5,-1 3,4");
    EXPECT_TRUE(line.Offset(-10.0));
    ExpectGeo(line, "line -3,5 3,4");
    const std::unique_ptr<QnGeCurve2d> moved(SlopingLine().GetOffsetCurve(5.0));
    ExpectGeo(moved.get(), "line 5,-1 3,4");
}

TEST(QnGeLine2d, TangentIsTheLineWithUnitVector) {
    QnGeBaseLine2d tangent;
    SlopingLine().GetTangent(7.0, tangent);
    EXPECT_DOUBLE_EQ(tangent.dx, 0.6);
    EXPECT_DOUBLE_EQ(tangent.dy, 0.8);
    ExpectPoint(tangent.basePoint, "1,2");
}

TEST(QnGeLine2d, IntegrationIsTheTrapezoidBelow) {
    EXPECT_DOUBLE_EQ(SlopingLine().Integration(0.0, 1.0), 12.0);
    EXPECT_DOUBLE_EQ(SlopingLine().Integration(1.0, 0.0), -12.0);
    EXPECT_DOUBLE_EQ(SlopingLine().Integration(0.0, 2.0), 36.0);
    EXPECT_DOUBLE_EQ(SlopingLine().TotalIntegration(), 12.0);
    EXPECT_EQ(ParseGeoAs<QnGeCurve2d>("line 3,2 0,1")->Integration(0.0, 5.0), 0.0);
}

TEST(QnGeLine2d, ExtendsToItself) {
    const std::unique_ptr<QnGeCurve2d> same(SlopingLine().GetExtendCurve());
    ExpectGeo(same.get(), "line 1,2 3,4");
}

TEST(QnGeLine2d, DoesNotMerge) {
    QnGeLine2d line = SlopingLine();
    EXPECT_FALSE(line.Conbine(SlopingLine(), false));
    line.Compress();
    ExpectGeo(line, "line 1,2 3,4");
}

TEST(QnGeLine2d, ElevationLaysItFlat) {
    QnGeLine2d line(QnGePoint(1.0, 2.0, 3.0), QnGePoint(4.0, 6.0, 8.0));
    EXPECT_EQ(line.GetElevation(), 3.0);
    line.SetElevation(7.0);
    ExpectGeo(line, "line 1,2,7 3,4");
    EXPECT_EQ(line.GetElevation(), 7.0);
}

TEST(QnGeLine2d, Transforms) {
    QnGeLine2d line = SlopingLine();
    line.Move(10.0, 20.0);
    ExpectGeo(line, "line 11,22 3,4");
    line = SlopingLine();
    line.Rotate(QN_HALF_PI);
    ExpectGeo(line, "line -2,1 -4,3");
    line = SlopingLine();
    line.Scale(2.0, 3.0);
    ExpectGeo(line, "line 2,6 6,12");
}

TEST(QnGeLine2d, HasNoTwinInSpace) {
    EXPECT_EQ(SlopingLine().ConvertTo3d(), nullptr);
}

TEST(QnGeLine2d, CloneKeepsClassAndFlags) {
    QnGeLine2d line = SlopingLine();
    line.SetBits(0x100);
    const std::unique_ptr<QnGeObject> clone(line.Clone());
    ExpectGeo(clone.get(), "line 1,2 3,4");
    EXPECT_EQ(clone->GetBits(), 0x100U);
}

TEST(QnGeLine2d, CopiesFromTheWholeFamily) {
    for (const char* text : {"line 1,2,3 4,5,6", "ray 1,2,3 4,5,6", "ray reversed 1,2,3 4,5,6", "seg 1,2,3 5,7,9"}) {
        const auto source = ParseGeo(text);
        source->SetBits(0x100);
        QnGeLine2d line;
        EXPECT_TRUE(line.CopyFrom(source.get())) << text;
        ExpectGeo(line, "line 1,2,3 4,5,6");
        EXPECT_EQ(line.GetBits(), 0x100U);
    }
}

TEST(QnGeLine2d, RefusesToCopyFromOthers) {
    QnGeLine2d line = SlopingLine();
    for (const char* text : {"circle 1,1 r1", "arc 1,1 r1 from 0 sweep 1", "point 1,1", "mline 0,0 1,1"}) {
        EXPECT_FALSE(line.CopyFrom(ParseGeo(text).get())) << text;
    }
    EXPECT_FALSE(line.CopyFrom(nullptr));
    ExpectGeo(line, "line 1,2 3,4");
}

TEST(QnGeLine2d, StreamRecord) {
    QnGeLine2d line(QnGePoint(1.0, 2.0, 3.0), QnGePoint(5.0, 7.0, 9.0));
    line.SetBits(0x100);
    QnDynArrayStream stream(64, 64);
    line.StreamOut(stream);
    stream.MoveToFirst();
    long flags = 0;
    stream >> flags;
    EXPECT_EQ(flags, 0x100);
    for (const double expected : {1.0, 2.0, 3.0, 4.0, 5.0, 6.0}) {
        double value = 0.0;
        stream >> value;
        EXPECT_EQ(value, expected);
    }
    stream.MoveToFirst();
    QnGeLine2d again;
    again.StreamIn(stream);
    ExpectGeo(again, "line 1,2,3 4,5,6", 0.0);
    EXPECT_EQ(again.GetBits(), 0x100U);
}

TEST(QnGeLine2d, FactoryMakesTheFamily) {
    for (const int id : {111, 112, 113}) {
        const std::unique_ptr<QnGeObject> object(DynCreateGeObject(id));
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(object->GetClassID(), id);
        EXPECT_TRUE(object->IsClassOf(&QnGeLine2d::s_classInfo));
        EXPECT_FALSE(object->IsValid());
    }
}

TEST(QnGeLine2d, ComparesAsAnObject) {
    QnGeLine2d line = SlopingLine();
    const QnGeLine2d other(QnGeVector2d(1.0, 0.0), QnGePoint(9.0, 9.0));
    EXPECT_TRUE(line == other) << "flag words only";
    line.SetBits(1);
    EXPECT_TRUE(line != other);
    EXPECT_TRUE(line < QnGeArc2d()) << "by class id";
    EXPECT_TRUE(QnGeLineSeg2d() > line);
}

TEST(QnGeLine2d, TheBaseLinesFormsAreInReach) {
    const auto seg = ParseGeoAs<QnGeLineSeg2d>("seg 0,0 4,0");
    const auto cutter = ParseGeoAs<QnGeLineSeg2d>("seg 9,-1 9,0");
    double t = 0.0;
    double s = 0.0;
    EXPECT_EQ(cutter->IntersectWith(*seg, t, s, false), 1);
    EXPECT_DOUBLE_EQ(t, 1.0);
    EXPECT_DOUBLE_EQ(s, 2.25);
    EXPECT_EQ(Bits(cutter->HitTest(QnGePoint(9.0, 50.0), false)), HIT_ON) << "the carrier's answer";
    EXPECT_EQ(Bits(cutter->HitTest(QnGePoint(9.0, 50.0))), 0U);
}

TEST(QnGeLine2d, SubCurveIsTheSegmentBetween) {
    const auto expectSub = [](const char* curve, double pa1, double pa2, const char* expected) {
        const std::unique_ptr<QnGeCurve2d> piece(ParseGeoAs<QnGeCurve2d>(curve)->GetSubCurve(pa1, pa2));
        ExpectGeo(piece.get(), expected);
    };
    expectSub("line 1,2 3,4", 0.0, 2.0, "seg 1,2 7,10");
    expectSub("line 1,2 3,4", 2.0, 0.0, "seg 7,10 1,2");
    expectSub("line 1,2 3,4", 1.0, 1.0, "seg 4,6 4,6");
    expectSub("ray 1,2 3,4", -1.0, 1.0, "seg -2,-2 4,6");
    expectSub("ray reversed 1,2 3,4", 0.0, 1.0, "seg 4,6 1,2");
    expectSub("seg 0,0,0 4,0,2", 0.25, 2.0, "seg 1,0,0.5 8,0,4");
    const std::unique_ptr<QnGeCurve2d> byPoints(SlopingLine().GetSubCurve(QnGePoint(4.0, 6.0), QnGePoint(1.0, 2.0)));
    ExpectGeo(byPoints.get(), "seg 4,6 1,2");
}

TEST(QnGeLine2d, HitTestTellsTheSide) {
    EXPECT_EQ(HitBits("line 0,0 2,0", 1.0, 0.0), HIT_ON);
    EXPECT_EQ(HitBits("line 0,0 2,0", -99.0, 0.0), HIT_ON);
    EXPECT_EQ(HitBits("line 0,0 2,0", 1.0, 1.0), HIT_IN);
    EXPECT_EQ(HitBits("line 0,0 2,0", 1.0, -1.0), HIT_OUT);
    EXPECT_EQ(HitBits("line 0,0 -2,0", 1.0, 1.0), HIT_OUT);
    EXPECT_EQ(HitBits("line 0,0 2,0", 1.0, 0.9e-6), HIT_ON);
    EXPECT_EQ(HitBits("line 0,0 2,0", 1.0, 1.1e-6), HIT_IN);
}

TEST(QnGeLine2d, NearestPointIsTheFoot) {
    ExpectNearest("line 0,0 2,0", "3,4", "3,0");
    ExpectNearest("line 0,0 1,1", "2,0", "1,1");
    QnGePoint nearest;
    EXPECT_TRUE(SlopingLine().GetClosestPoint2d(QnGePoint(5.0, -1.0), nearest));
    ExpectPoint(nearest, "1,2");
    EXPECT_DOUBLE_EQ(SlopingLine().GetDistance(QnGePoint(5.0, -1.0)), 5.0);
}

TEST(QnGeLine2d, WithoutDirectionItIsItsBase) {
    ExpectNearest("line 3,4 0,0", "0,0", "3,4");
    EXPECT_EQ(HitBits("line 3,4 0,0", 3.0, 4.0), HIT_ON);
}
