// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeLineRay2d.h"

#include <gtest/gtest.h>

#include <memory>

#include "CurveTesting.h"
#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "support/ExpectGeo.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePointList.h"

using namespace curve_testing;

namespace {

/// Base (1,1), vector (2,0).
QnGeLineRay2d ForwardRay() {
    return QnGeLineRay2d(QnGeVector2d(2.0, 0.0), QnGePoint(1.0, 1.0));
}
QnGeLineRay2d ReversedRay() {
    QnGeLineRay2d ray = ForwardRay();
    ray.SetReverseRay(true);
    return ray;
}

void ExpectNearest(const QnGeLineRay2d& ray, const QnGePoint& from, const char* expected) {
    QnGePointList nearest;
    EXPECT_TRUE(ray.GetClosestPoint2d(from, nearest));
    ASSERT_EQ(nearest.GetLength(), 1);
    ExpectPoint(nearest.GetAt(0), expected);
}

bool IsSame(const char* a, const char* b) {
    return ParseGeoAs<QnGeLineRay2d>(a)->IsSameRay(*ParseGeoAs<QnGeLineRay2d>(b));
}

}  // namespace

TEST(QnGeLineRay2d, AllWaysToMakeOneGiveAForwardRay) {
    ExpectGeo(QnGeLineRay2d(), "ray 0,0 0,0");
    ExpectGeo(QnGeLineRay2d(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0)), "ray 1,2 3,4");
    ExpectGeo(QnGeLineRay2d(QnGePoint(1.0, 2.0, 5.0), QnGePoint(4.0, 6.0, 7.0)), "ray 1,2,5 3,4,2");
    ExpectGeo(QnGeLineRay2d(QnGeBaseLine2d(QnGeVector2d(3.0, 4.0), QnGePoint(1.0, 2.0))), "ray 1,2 3,4");
    ExpectGeo(QnGeLineRay2d(ReversedRay()), "ray reversed 1,1 2,0");
}

TEST(QnGeLineRay2d, ReversingFlipsTheFlagOnly) {
    QnGeLineRay2d ray(QnGeVector2d(1.0, 0.0), QnGePoint(1.0, 1.0));
    EXPECT_EQ(Bits(ray.HitTest(QnGePoint(5.0, 2.0))), HIT_IN);
    ray.Reverse();
    ExpectGeo(ray, "ray reversed 1,1 1,0");
    EXPECT_TRUE(ray.IsReverseRay());
    QnGePoint pt(UNTOUCHED, UNTOUCHED);
    EXPECT_FALSE(ray.GetStartPoint(pt));
    EXPECT_EQ(pt.x, UNTOUCHED);
    EXPECT_TRUE(ray.GetEndPoint(pt));
    ExpectPoint(pt, "1,1");
    EXPECT_TRUE(ray.GetPtFromPa(1.0, pt));
    ExpectPoint(pt, "1,1");
    EXPECT_TRUE(ray.GetPtFromPa(0.0, pt));
    ExpectPoint(pt, "2,1");
    EXPECT_EQ(Bits(ray.HitTest(QnGePoint(5.0, 2.0))), HIT_OUT);
    ray.Reverse();
    ExpectGeo(ray, "ray 1,1 1,0");
}

TEST(QnGeLineRay2d, OneEndExists) {
    EXPECT_TRUE(ForwardRay().IsFinite(true));
    EXPECT_FALSE(ForwardRay().IsFinite(false));
    EXPECT_FALSE(ReversedRay().IsFinite(true));
    EXPECT_TRUE(ReversedRay().IsFinite(false));
    QnGePoint pt(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_FALSE(ForwardRay().GetEndPoint(pt));
    EXPECT_EQ(pt.x, UNTOUCHED);
    EXPECT_TRUE(ForwardRay().GetStartPoint(pt));
    ExpectPoint(pt, "1,1");
}

TEST(QnGeLineRay2d, WhatForwardAndReversedShare) {
    for (const QnGeLineRay2d& ray : {ForwardRay(), ReversedRay()}) {
        EXPECT_TRUE(ray.IsValid());
        EXPECT_FALSE(ray.IsFinite()) << "neither finite";
        EXPECT_FALSE(ray.IsInfinite()) << "nor infinite";
        EXPECT_FALSE(ray.IsCurveSeg());
        EXPECT_FALSE(ray.IsClosed());
        EXPECT_FALSE(ray.IsSelfCross());
        EXPECT_TRUE(ray.IsMLinear());
        EXPECT_EQ(ray.GetPeriod(), 0.0);
        EXPECT_EQ(ray.Length(), 0.0);
        EXPECT_EQ(ray.Area(), 0.0);
        QnGeExtent2d extent;
        EXPECT_FALSE(ray.GetExtent2d(extent));
        EXPECT_EQ(ray.Symplify(), nullptr);
        EXPECT_EQ(ray.MLinearize(0.1), nullptr);
        EXPECT_EQ(ray.PLinearize(0.1), nullptr);
        EXPECT_EQ(ray.MLinearizeByDist(0.1, true), nullptr);
        EXPECT_EQ(ray.ConvertTo3d(), nullptr);
        ExpectPoint(ray.GetSamplePoint(), "2,1");
        EXPECT_EQ(ray.GetElevation(), 0.0);
    }
    EXPECT_FALSE(QnGeLineRay2d().IsValid());
    EXPECT_EQ(QnGeLineRay2d().Symplify(), nullptr);
}

TEST(QnGeLineRay2d, KeptOddNeverExtends) {
    EXPECT_EQ(ForwardRay().GetExtendCurve(), nullptr);
    EXPECT_EQ(ReversedRay().GetExtendCurve(), nullptr);
}

TEST(QnGeLineRay2d, DoesNotMerge) {
    QnGeLineRay2d ray = ForwardRay();
    EXPECT_FALSE(ray.Conbine(ForwardRay(), false));
    ExpectGeo(ray, "ray 1,1 2,0");
}

TEST(QnGeLineRay2d, ForwardParameterIsTheLines) {
    const QnGeLineRay2d ray = ForwardRay();
    QnGePoint pt;
    double value = 0.0;
    EXPECT_TRUE(ray.GetPtFromPa(-3.0, pt));
    ExpectPoint(pt, "-5,1");
    EXPECT_TRUE(ray.GetPaFromPt(QnGePoint(4.0, 9.0), value));
    EXPECT_DOUBLE_EQ(value, 1.5);
    EXPECT_TRUE(ray.GetDistFromPa(1.5, value));
    EXPECT_DOUBLE_EQ(value, 3.0);
    EXPECT_TRUE(ray.GetPaFromDist(-3.0, value));
    EXPECT_DOUBLE_EQ(value, -1.5);
}

TEST(QnGeLineRay2d, ReversedParameterIsOneMinusTheLines) {
    const QnGeLineRay2d ray = ReversedRay();
    QnGePoint pt;
    double value = 0.0;
    EXPECT_TRUE(ray.GetPtFromPa(-3.0, pt));
    ExpectPoint(pt, "9,1");
    EXPECT_TRUE(ray.GetPaFromPt(QnGePoint(9.0, 5.0), value));
    EXPECT_DOUBLE_EQ(value, -3.0);
    EXPECT_TRUE(ray.GetDistFromPa(0.25, value));
    EXPECT_DOUBLE_EQ(value, 0.5) << "from Pa 0, one vector out, towards the base";
    EXPECT_TRUE(ray.GetDistFromPa(1.0, value));
    EXPECT_DOUBLE_EQ(value, 2.0);
    EXPECT_TRUE(ray.GetPaFromDist(0.5, value));
    EXPECT_DOUBLE_EQ(value, 0.25);
    EXPECT_TRUE(ray.GetPtFromDist(0.5, pt));
    ExpectPoint(pt, "2.5,1");
    EXPECT_TRUE(ray.GetDistFromPt(QnGePoint(2.5, 1.0), value));
    EXPECT_DOUBLE_EQ(value, 0.5);
}

TEST(QnGeLineRay2d, PointsCarryTheirHeight) {
    QnGeLineRay2d ray(QnGePoint(0.0, 0.0, 1.0), QnGePoint(2.0, 0.0, 2.0));
    QnGePoint pt;
    ray.GetPtFromPa(2.0, pt);
    ExpectPoint(pt, "4,0,3");
    ray.Reverse();
    ray.GetPtFromPa(-1.0, pt);
    ExpectPoint(pt, "4,0,3");
}

TEST(QnGeLineRay2d, OffsetGoesToTheRightOfTravel) {
    QnGeLineRay2d forward = ForwardRay();
    EXPECT_TRUE(forward.Offset(1.0));
    ExpectGeo(forward, "ray 1,0 2,0");
    QnGeLineRay2d reversed = ReversedRay();
    EXPECT_TRUE(reversed.Offset(1.0));
    ExpectGeo(reversed, "ray reversed 1,2 2,0");
}

TEST(QnGeLineRay2d, TangentRunsWithTheTravel) {
    QnGeBaseLine2d tangent;
    ForwardRay().GetTangent(5.0, tangent);
    EXPECT_DOUBLE_EQ(tangent.dx, 1.0);
    ReversedRay().GetTangent(5.0, tangent);
    EXPECT_DOUBLE_EQ(tangent.dx, -1.0);
    EXPECT_EQ(tangent.dy, 0.0);
    ExpectPoint(tangent.basePoint, "1,1");
}

TEST(QnGeLineRay2d, KeptOddReversedIntegrationExchangesItsLimits) {
    QnGeLineRay2d ray(QnGeVector2d(2.0, 3.0), QnGePoint(0.0, 1.0));
    EXPECT_DOUBLE_EQ(ray.Integration(0.0, 1.0), 5.0);
    EXPECT_DOUBLE_EQ(ray.Integration(0.5, 1.0), 3.25);
    ray.Reverse();
    EXPECT_DOUBLE_EQ(ray.Integration(0.0, 1.0), 5.0) << "the travel is against it, the sign is not";
    EXPECT_DOUBLE_EQ(ray.Integration(0.0, 0.5), 3.25);
}

TEST(QnGeLineRay2d, Transforms) {
    QnGeLineRay2d ray = ReversedRay();
    ray.Rotate(QN_HALF_PI);
    ExpectGeo(ray, "ray reversed -1,1 0,2");
    ray.SetElevation(4.0);
    ExpectGeo(ray, "ray reversed -1,1,4 0,2");
    EXPECT_EQ(ray.GetElevation(), 4.0);
}

TEST(QnGeLineRay2d, CopiesFromRaysOnly) {
    QnGeLineRay2d ray = ForwardRay();
    for (const char* text : {"line 5,5 1,0", "seg 5,5 6,5", "circle 0,0 r1"}) {
        EXPECT_FALSE(ray.CopyFrom(ParseGeo(text).get())) << text;
    }
    EXPECT_FALSE(ray.CopyFrom(nullptr));
    ExpectGeo(ray, "ray 1,1 2,0");
    const auto source = ParseGeo("ray reversed 5,5 1,2");
    source->SetBits(0x100);
    EXPECT_TRUE(ray.CopyFrom(source.get()));
    ExpectGeo(ray, "ray reversed 5,5 1,2");
    EXPECT_EQ(ray.GetBits(), 0x100U);
}

TEST(QnGeLineRay2d, CloneAndStreamKeepTheDirection) {
    QnGeLineRay2d ray = ReversedRay();
    ray.SetBits(0x100);
    const std::unique_ptr<QnGeObject> clone(ray.Clone());
    ExpectGeo(clone.get(), "ray reversed 1,1 2,0");
    EXPECT_EQ(clone->GetBits(), 0x100U);

    QnDynArrayStream stream(64, 64);
    ray.StreamOut(stream);
    stream.MoveToFirst();
    long flags = 0;
    double value = 0.0;
    bool reverse = false;
    stream >> flags;
    for (int i = 0; i < 6; ++i) {
        stream >> value;
    }
    stream >> reverse;
    EXPECT_TRUE(reverse) << "the last field";
    stream.MoveToFirst();
    QnGeLineRay2d again;
    again.StreamIn(stream);
    ExpectGeo(again, "ray reversed 1,1 2,0", 0.0);
    EXPECT_EQ(again.GetBits(), 0x100U);
}

TEST(QnGeLineRay2d, BehindTheBaseThereIsNothing) {
    const QnGeLineRay2d ray = ForwardRay();
    EXPECT_EQ(Bits(ray.HitTest(QnGePoint(0.0, 1.0))), 0U) << "at t = -0.5";
    EXPECT_FALSE(ray.IsInclude(*ParseGeo("point 0,1")));
    ExpectNearest(ray, QnGePoint(0.0, 1.0), "1,1");
    EXPECT_EQ(Bits(ReversedRay().HitTest(QnGePoint(0.0, 1.0))), 0U);
    EXPECT_EQ(Bits(ray.HitTest(QnGePoint(1.0, 1.0))), HIT_ON);
    EXPECT_EQ(Bits(ray.HitTest(QnGePoint(99.0, 1.0))), HIT_ON);
    EXPECT_EQ(Bits(ray.HitTest(QnGePoint(1.0 - 0.9e-6, 1.0))), HIT_ON);
    EXPECT_EQ(Bits(ray.HitTest(QnGePoint(1.0 - 1.1e-6, 1.0))), 0U);
}

TEST(QnGeLineRay2d, BesideItsLineThereIsASideEverywhere) {
    for (const double x : {-9.0, 1.0, 9.0}) {
        EXPECT_EQ(Bits(ForwardRay().HitTest(QnGePoint(x, 2.0))), HIT_IN);
        EXPECT_EQ(Bits(ForwardRay().HitTest(QnGePoint(x, 0.0))), HIT_OUT);
        EXPECT_EQ(Bits(ReversedRay().HitTest(QnGePoint(x, 2.0))), HIT_OUT);
        EXPECT_EQ(Bits(ReversedRay().HitTest(QnGePoint(x, 0.0))), HIT_IN);
    }
    EXPECT_EQ(Bits(ReversedRay().HitTest(QnGePoint(9.0, 1.0))), HIT_ON);
}

TEST(QnGeLineRay2d, NearestPointIsTheFootOrTheBase) {
    for (const QnGeLineRay2d& ray : {ForwardRay(), ReversedRay()}) {
        ExpectNearest(ray, QnGePoint(5.0, 4.0), "5,1");
        ExpectNearest(ray, QnGePoint(-5.0, 4.0), "1,1");
        ExpectNearest(ray, QnGePoint(1.0, 4.0), "1,1");
    }
}

TEST(QnGeLineRay2d, SameRayWhateverTheScaleAndTheFlag) {
    EXPECT_TRUE(IsSame("ray 0,0 1,0", "ray 0,0 7,0"));
    EXPECT_TRUE(IsSame("ray 0,0 1,0", "ray reversed 0,0 1,0"));
    EXPECT_TRUE(IsSame("ray 0,0 1,0", "ray 0,0.9e-6 1,0"));
    EXPECT_TRUE(IsSame("ray 0,0 1,0", "ray 0,0,5 1,0"));
    EXPECT_FALSE(IsSame("ray 0,0 1,0", "ray 0,1.1e-6 1,0"));
    EXPECT_FALSE(IsSame("ray 0,0 1,0", "ray 0,0 -1,0"));
    EXPECT_FALSE(IsSame("ray 0,0 1,0", "ray 0,0 1,0.001"));
    EXPECT_FALSE(IsSame("ray 0,0 1,0", "ray 1,0 1,0"));
}
