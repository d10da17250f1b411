// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeLineSeg2d.h"

#include <gtest/gtest.h>

#include <memory>

#include "CurveTesting.h"
#include "base/QnDynArrayStream.h"
#include "support/ExpectGeo.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGePointList.h"

using namespace curve_testing;

namespace {

QnGeLineSeg2d Seg(double x1, double y1, double x2, double y2) {
    return QnGeLineSeg2d(QnGePoint(x1, y1), QnGePoint(x2, y2));
}

void ExpectNearest(const QnGeLineSeg2d& seg, const QnGePoint& from, const char* expected) {
    QnGePointList nearest;
    EXPECT_TRUE(seg.GetClosestPoint2d(from, nearest));
    ASSERT_EQ(nearest.GetLength(), 1);
    ExpectPoint(nearest.GetAt(0), expected);
}

std::unique_ptr<QnGeMLine2d> ByDist(const QnGeLineSeg2d& seg, double step, bool skipVertical) {
    return std::unique_ptr<QnGeMLine2d>(seg.MLinearizeByDist(step, skipVertical));
}

}  // namespace

TEST(QnGeLineSeg2d, FourWaysToMakeOne) {
    ExpectGeo(QnGeLineSeg2d(), "seg 0,0 0,0");
    ExpectGeo(QnGeLineSeg2d(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0)), "seg 1,2 4,6");
    ExpectGeo(QnGeLineSeg2d(QnGePoint(1.0, 2.0, 5.0), QnGePoint(4.0, 6.0, 7.0)), "seg 1,2,5 4,6,7");
    ExpectGeo(QnGeLineSeg2d(QnGeBaseLine2d(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0))), "seg 1,2 4,6");
}

TEST(QnGeLineSeg2d, EndsAndMiddle) {
    const QnGeLineSeg2d seg(QnGePoint(1.0, 2.0, 3.0), QnGePoint(5.0, 8.0, 9.0));
    QnGePoint pt;
    EXPECT_TRUE(seg.GetStartPoint(pt));
    ExpectPoint(pt, "1,2,3");
    EXPECT_TRUE(seg.GetEndPoint(pt));
    ExpectPoint(pt, "5,8,9");
    ExpectPoint(seg.GetEndPoint(), "5,8,9");
    ExpectPoint(seg.GetMidPoint(), "3,5,6");
    EXPECT_TRUE(seg.GetMidPoint(pt));
    ExpectPoint(pt, "3,5,6");
    ExpectPoint(seg.GetSamplePoint(), "3,5,6");
}

TEST(QnGeLineSeg2d, KeptOddSettingTheStartMovesTheEndAlong) {
    QnGeLineSeg2d seg = Seg(0.0, 0.0, 4.0, 1.0);
    seg.SetStartPoint(QnGePoint(10.0, 20.0, 3.0));
    ExpectGeo(seg, "seg 10,20,3 14,21,3");
    seg.SetEndPoint(QnGePoint(11.0, 22.0, 5.0));
    ExpectGeo(seg, "seg 10,20,3 11,22,5");
}

TEST(QnGeLineSeg2d, Questions) {
    const QnGeLineSeg2d seg = Seg(0.0, 0.0, 3.0, 4.0);
    EXPECT_TRUE(seg.IsValid());
    EXPECT_TRUE(seg.IsFinite(true));
    EXPECT_TRUE(seg.IsFinite(false));
    EXPECT_TRUE(seg.IsFinite());
    EXPECT_FALSE(seg.IsInfinite());
    EXPECT_TRUE(seg.IsCurveSeg());
    EXPECT_FALSE(seg.IsClosed());
    EXPECT_FALSE(seg.IsSelfCross());
    EXPECT_TRUE(seg.IsMLinear());
    EXPECT_EQ(seg.GetPeriod(), 0.0);
    EXPECT_DOUBLE_EQ(seg.Length(), 5.0);
    EXPECT_EQ(seg.Area(), 0.0);
    EXPECT_EQ(seg.ConvertTo3d(), nullptr);
    EXPECT_DOUBLE_EQ(QnGeLineSeg2d(QnGePoint(0.0, 0.0, 0.0), QnGePoint(3.0, 4.0, 99.0)).Length(), 5.0) << "in plan";
}

TEST(QnGeLineSeg2d, ParameterIsNotClipped) {
    const QnGeLineSeg2d seg = Seg(0.0, 0.0, 2.0, 0.0);
    QnGePoint pt;
    double value = 0.0;
    EXPECT_TRUE(seg.GetPtFromPa(1.5, pt));
    ExpectPoint(pt, "3,0");
    EXPECT_FALSE(seg.IsIncludePa(1.5));
    EXPECT_TRUE(seg.GetPaFromPt(QnGePoint(-1.0, 5.0), value));
    EXPECT_DOUBLE_EQ(value, -0.5);
    EXPECT_TRUE(seg.GetDistFromPa(-0.5, value));
    EXPECT_DOUBLE_EQ(value, -1.0);
    EXPECT_TRUE(seg.GetPaFromDist(3.0, value));
    EXPECT_DOUBLE_EQ(value, 1.5);
}

TEST(QnGeLineSeg2d, ExtentIsTheBoxOfItsEnds) {
    const QnGeLineSeg2d seg(QnGePoint(4.0, -1.0, 7.0), QnGePoint(1.0, 3.0, 9.0));
    QnGeExtent2d extent;
    EXPECT_TRUE(seg.GetExtent2d(extent));
    EXPECT_EQ(extent.x.min, 1.0);
    EXPECT_EQ(extent.x.max, 4.0);
    EXPECT_EQ(extent.y.min, -1.0);
    EXPECT_EQ(extent.y.max, 3.0);
    QnGeExtent3d space;
    EXPECT_TRUE(seg.GetExtent3d(space));
    EXPECT_EQ(space.z.min, 7.0) << "the elevation, at both ends";
    EXPECT_EQ(space.z.max, 7.0);
}

TEST(QnGeLineSeg2d, SymplifiesToAPointWhereItHasNoLength) {
    const QnGeLineSeg2d dot(QnGePoint(1.0, 2.0, 3.0), QnGePoint(1.0, 2.0, 3.0));
    EXPECT_FALSE(dot.IsValid());
    const std::unique_ptr<QnGeObject> point(dot.Symplify());
    ExpectGeo(point.get(), "point 1,2,3");
    const std::unique_ptr<QnGeObject> tiny(Seg(1.0, 2.0, 1.0, 2.0 + 0.9e-6).Symplify());
    ExpectGeo(tiny.get(), "point 1,2");
    EXPECT_EQ(Seg(1.0, 2.0, 1.0, 2.0 + 1.1e-6).Symplify(), nullptr);
    EXPECT_EQ(Seg(0.0, 0.0, 3.0, 4.0).Symplify(), nullptr);
}

TEST(QnGeLineSeg2d, ReverseExchangesTheEnds) {
    QnGeLineSeg2d seg = Seg(1.0, 2.0, 5.0, 8.0);
    seg.Reverse();
    ExpectGeo(seg, "seg 5,8 1,2");
    seg.Reverse();
    ExpectGeo(seg, "seg 1,2 5,8");
}

TEST(QnGeLineSeg2d, KeptOddReverseKeepsTheRise) {
    QnGeLineSeg2d seg(QnGePoint(0.0, 0.0, 0.0), QnGePoint(2.0, 0.0, 1.0));
    seg.Reverse();
    ExpectGeo(seg, "seg 2,0,1 0,0,2");
}

TEST(QnGeLineSeg2d, OffsetTangentIntegration) {
    QnGeLineSeg2d seg = Seg(1.0, 2.0, 4.0, 6.0);
    EXPECT_DOUBLE_EQ(seg.Integration(0.0, 1.0), 12.0);
    EXPECT_DOUBLE_EQ(seg.TotalIntegration(), 12.0);
    EXPECT_TRUE(seg.IsClockwise());
    QnGeBaseLine2d tangent;
    seg.GetTangent(1.0, tangent);
    EXPECT_DOUBLE_EQ(tangent.dx, 0.6);
    ExpectPoint(tangent.basePoint, "1,2");
    EXPECT_TRUE(seg.Offset(5.0));
    ExpectGeo(seg, "seg 5,-1 8,3");
}

TEST(QnGeLineSeg2d, ExtendsToItsLineWithTheSameParameter) {
    const QnGeLineSeg2d seg(QnGePoint(1.0, 2.0, 3.0), QnGePoint(4.0, 6.0, 8.0));
    const std::unique_ptr<QnGeCurve2d> line(seg.GetExtendCurve());
    ExpectGeo(line.get(), "line 1,2,3 3,4,5");
}

TEST(QnGeLineSeg2d, ElevationTransformClone) {
    QnGeLineSeg2d seg(QnGePoint(1.0, 2.0, 3.0), QnGePoint(4.0, 6.0, 8.0));
    EXPECT_EQ(seg.GetElevation(), 3.0);
    seg.SetElevation(7.0);
    ExpectGeo(seg, "seg 1,2,7 4,6,7");
    seg.Rotate(QN_HALF_PI);
    ExpectGeo(seg, "seg -2,1,7 -6,4,7");
    seg.SetBits(0x100);
    const std::unique_ptr<QnGeObject> clone(seg.Clone());
    ExpectGeo(clone.get(), "seg -2,1,7 -6,4,7");
    EXPECT_EQ(clone->GetBits(), 0x100U);
}

TEST(QnGeLineSeg2d, CopiesFromSegmentsOnly) {
    QnGeLineSeg2d seg = Seg(0.0, 0.0, 1.0, 0.0);
    for (const char* text : {"line 5,5 1,0", "ray 5,5 1,0", "circle 0,0 r1", "mline 5,5 6,6"}) {
        EXPECT_FALSE(seg.CopyFrom(ParseGeo(text).get())) << text;
    }
    EXPECT_FALSE(seg.CopyFrom(nullptr));
    ExpectGeo(seg, "seg 0,0 1,0");
    const auto source = ParseGeo("seg 5,5 6,7,8");
    source->SetBits(0x100);
    EXPECT_TRUE(seg.CopyFrom(source.get()));
    ExpectGeo(seg, "seg 5,5 6,7,8");
    EXPECT_EQ(seg.GetBits(), 0x100U);
}

TEST(QnGeLineSeg2d, StreamRecordIsTheLines) {
    QnGeLineSeg2d seg(QnGePoint(1.0, 2.0, 3.0), QnGePoint(5.0, 7.0, 9.0));
    seg.SetBits(0x100);
    QnDynArrayStream stream(64, 64);
    seg.StreamOut(stream);
    stream.MoveToFirst();
    QnGeLineSeg2d again;
    again.StreamIn(stream);
    ExpectGeo(again, "seg 1,2,3 5,7,9", 0.0);
    EXPECT_EQ(again.GetBits(), 0x100U);
    stream.MoveToFirst();
    QnGeLine2d line;
    line.StreamIn(stream);
    ExpectGeo(line, "line 1,2,3 4,5,6", 0.0);
}

TEST(QnGeLineSeg2d, HitTest) {
    const QnGeLineSeg2d seg = Seg(0.0, 0.0, 4.0, 0.0);
    for (const double x : {-9.0, 0.0, 2.0, 4.0, 9.0}) {
        EXPECT_EQ(Bits(seg.HitTest(QnGePoint(x, 1.0))), HIT_IN) << x;
        EXPECT_EQ(Bits(seg.HitTest(QnGePoint(x, -1.0))), HIT_OUT) << x;
    }
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(0.0, 0.0))), HIT_ON);
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(2.0, 0.0))), HIT_ON);
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(4.0, 0.0))), HIT_ON);
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(5.0, 0.0))), 0U) << "on the line beyond the end: nothing";
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(-1.0, 0.0))), 0U);
}

TEST(QnGeLineSeg2d, HitTestReachesPastTheEndsByTheDistanceTolerance) {
    const QnGeLineSeg2d seg = Seg(0.0, 0.0, 4.0, 0.0);
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(-0.9e-6, 0.0))), HIT_ON);
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(-1.1e-6, 0.0))), 0U);
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(4.0 + 0.9e-6, 0.0))), HIT_ON);
    EXPECT_EQ(Bits(seg.HitTest(QnGePoint(4.0 + 1.1e-6, 0.0))), 0U);
    const QnGeLineSeg2d endless = Seg(0.0, 0.0, 1e5, 0.0);
    EXPECT_EQ(Bits(endless.HitTest(QnGePoint(-5e-5, 0.0))), HIT_ON) << "by parameter, g_fZero of a long segment";
    EXPECT_EQ(Bits(endless.HitTest(QnGePoint(1e5 + 5e-5, 0.0))), HIT_ON);
    EXPECT_EQ(Bits(endless.HitTest(QnGePoint(-2e-4, 0.0))), 0U);
    EXPECT_EQ(Bits(endless.HitTest(QnGePoint(1e5 + 2e-4, 0.0))), 0U);
}

TEST(QnGeLineSeg2d, NearestPointIsTheFootOrTheNearerEnd) {
    const QnGeLineSeg2d seg = Seg(0.0, 0.0, 4.0, 0.0);
    ExpectNearest(seg, QnGePoint(1.0, 5.0), "1,0");
    ExpectNearest(seg, QnGePoint(-3.0, 5.0), "0,0");
    ExpectNearest(seg, QnGePoint(7.0, 5.0), "4,0");
    ExpectNearest(seg, QnGePoint(7.0, 0.0), "4,0");
    ExpectNearest(Seg(2.0, 3.0, 2.0, 3.0), QnGePoint(9.0, 9.0), "2,3");
    EXPECT_DOUBLE_EQ(seg.GetDistance(QnGePoint(7.0, 4.0)), 5.0);
}

TEST(QnGeLineSeg2d, ASegmentWithoutLengthIsOnAtItsPlace) {
    EXPECT_EQ(Bits(Seg(2.0, 3.0, 2.0, 3.0).HitTest(QnGePoint(2.0, 3.0))), HIT_ON);
}

TEST(QnGeLineSeg2d, LinearisedToItsEnds) {
    const QnGeLineSeg2d seg(QnGePoint(1.0, 2.0, 3.0), QnGePoint(4.0, 6.0, 8.0));
    for (const double prec : {0.0, 0.01, -5.0}) {
        const std::unique_ptr<QnGeMLine2d> line(seg.MLinearize(prec));
        ExpectGeo(line.get(), "mline 1,2,3 4,6,8");
        const std::unique_ptr<QnGeMLine2d> polyline(seg.PLinearize(prec));
        ExpectGeo(polyline.get(), "mline 1,2,3 4,6,8");
    }
}

TEST(QnGeLineSeg2d, ByDistanceAnUprightSegmentMayBeSkipped) {
    ExpectGeo(ByDist(Seg(0.0, 0.0, 4.0, 0.0), 1.5, true).get(), "mline 0,0 1.5,0 3,0 4,0");
    ExpectGeo(ByDist(Seg(0.0, 0.0, 4.0, 0.0), 1.5, false).get(), "mline 0,0 1.5,0 3,0 4,0");
    ExpectGeo(ByDist(Seg(1.0, 0.0, 1.0, 4.0), 1.5, true).get(), "mline 1,0 1,4");
    ExpectGeo(ByDist(Seg(1.0, 0.0, 1.0, 4.0), 1.5, false).get(), "mline 1,0 1,1.5 1,3 1,4");
    EXPECT_EQ(ByDist(Seg(1.0, 0.0, 1.0 + 0.9e-6, 4.0), 1.5, true)->GetVertexNum(), 2);
    EXPECT_EQ(ByDist(Seg(1.0, 0.0, 1.0 + 1.1e-6, 4.0), 1.5, true)->GetVertexNum(), 4);
}
