// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCurveCoordSys.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "ChainTesting.h"
#include "curves2d/QnGeSpline2d.h"
#include "polylines/QnGeMLine2d.h"
#include "support/RandomSource.h"
#include "values/QnGePointList.h"

using namespace chain_testing;

namespace {

void ExpectWorld(const std::string& curve, const std::string& inCurve, const std::string& expected) {
    const auto along = ParseGeoAs<QnGeCurve2d>(curve);
    ExpectPoint(QnGeCurveCoordSys(*along).CcsToWcs(ParsePoint(inCurve)), expected);
}

void ExpectAlong(const std::string& curve, const std::string& inWorld, const std::string& expected) {
    const auto along = ParseGeoAs<QnGeCurve2d>(curve);
    ExpectPoint(QnGeCurveCoordSys(*along).WcsToCcs(ParsePoint(inWorld)), expected);
}

constexpr const char* CORNER = "chain seg 0,0 10,0 | seg 10,0 10,10";

/// The x axis, with nearest points that the test sets, and stretches that bulge, are straight or are missing.
class TwoNearest : public curve_testing::AxisCurve {
public:
    std::string nearest;
    std::string stretch;
    mutable double askedFrom = UNTOUCHED;
    mutable double askedTo = UNTOUCHED;

    bool GetClosestPoint2d(const QnGePoint& pt, QnGePointList& points) const override {
        static_cast<void>(pt);
        const QnGeMLine2d vertices = *ParseGeoAs<QnGeMLine2d>("mline " + nearest);
        for (long i = 0; i < vertices.GetVertexNum(); ++i) {
            points.Append(vertices.GetVertex(i));
        }
        return vertices.GetVertexNum() > 0;
    }
    using QnGeCurve2d::GetSubCurve;
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override {
        askedFrom = pa1;
        askedTo = pa2;
        return stretch.empty() ? nullptr : ParseGeoAs<QnGeCurve2d>(stretch).release();
    }
};

TwoNearest MakeTwoNearest(const std::string& nearest, const std::string& stretch) {
    TwoNearest curve;
    curve.nearest = nearest;
    curve.stretch = stretch;
    return curve;
}

}  // namespace

// ---- from the curve to the world ---------------------------------------------------------------------

TEST(QnGeCurveCoordSys, DistanceAlongHeightAboveOffsetToTheRight) {
    ExpectWorld("seg 1,0,5 11,0,5", "3,2", "4,0,7");
    ExpectWorld("seg 1,0,5 11,0,5", "3,2,1", "4,-1,7");
    ExpectWorld("seg 1,0,5 11,0,5", "3,-2,-1", "4,1,3");
    ExpectWorld("seg 1,0,5 11,0,5", "13,0", "14,0,5");
    ExpectWorld("arc 0,0,5 r2 from 0 sweep pi", "3.141592653589793,1,1", "0,3,6");
    ExpectWorld("arc 0,0,5 r2 from 0 sweep pi", "3.141592653589793,1,-1", "0,1,6");
    ExpectWorld("circle 0,0 r2 cw", "3.141592653589793,0,1", "0,-1");
}

TEST(QnGeCurveCoordSys, NoOffsetUnderTheTolerance) {
    ExpectWorld("seg 0,0 10,0", "3,0,0.000001", "3,0");
    ExpectWorld("seg 0,0 10,0", "3,0,0.000002", "3,-0.000002");
}

TEST(QnGeCurveCoordSys, WhereTheCurveCannotBeOffsetThePlaceOnIt) {
    ExpectWorld("circle 0,0 r1", "1.5707963267948966,4,-2", "0,1,4");
    ExpectWorld("chain seg 0,0 4,0 | seg 4,0 1,0", "1,0,1", "1,0");
}

TEST(QnGeCurveCoordSys, TheEndsOfAPolylineCount) {
    ExpectWorld("pline 1,0 11,0", "0,2", "1,0,2");
    ExpectWorld("pline 1,0 11,0", "10,2", "11,0,2");
}

TEST(QnGeCurveCoordSys, WithoutAPlaceItIsTheOrigin) {
    ExpectWorld(TWO_SEGS, "50,2", "0,0,2");
    const QnGeSpline2d spline;
    ExpectPoint(QnGeCurveCoordSys(spline).CcsToWcs(QnGePoint(3, 2, 1)), "0,0,2");
}

TEST(QnGeCurveCoordSys, OutsideACornerTheOffsetsCorner) {
    ExpectWorld(CORNER, "10,0,1", "11,-1");
    ExpectWorld(CORNER, "10,0,-1", "9,1");
    ExpectWorld(CORNER, "4,0,1", "4,-1");
}

// ---- from the world to the curve ---------------------------------------------------------------------

TEST(QnGeCurveCoordSys, OnTheCurveTheDistance) {
    ExpectAlong("seg 1,0,5 11,0,5", "4,0,7", "3,2");
    ExpectAlong(CORNER, "10,3,7", "13,7");
    ExpectAlong(LINE_ARC_LINE, "6,2", "7.141592653589793,0");
}

TEST(QnGeCurveCoordSys, OffTheCurveThatOfTheNearestPoint) {
    ExpectAlong("seg 1,0,5 11,0,5", "4,3,7", "3,2");
    ExpectAlong("seg 1,0,5 11,0,5", "-4,3,4", "0,-1");
    ExpectAlong("arc 0,0 r2 from 0 sweep pi", "0,7", "3.141592653589793,0");
}

TEST(QnGeCurveCoordSys, InsideACornerTheCorner) {
    ExpectAlong(CORNER, "8,2,1", "10,1");
    ExpectAlong(CORNER, "8,1", "8,0");
}

TEST(QnGeCurveCoordSys, WithoutANearestPointOrADistanceItIsZeroAlong) {
    ExpectAlong("circle 3,4 r2", "3,4,6", "0,6");
    const QnGeSpline2d spline;
    ExpectPoint(QnGeCurveCoordSys(spline).WcsToCcs(QnGePoint(3, 2, 1)), "0,1");
}

TEST(QnGeCurveCoordSys, OfTwoNearestPointsTheFarthestVertexBetween) {
    const TwoNearest bulging = MakeTwoNearest("2,0 8,0", "mline 2,0 3,0 6,0 7,0 8,0");
    ExpectPoint(QnGeCurveCoordSys(bulging).WcsToCcs(QnGePoint(4, 5)), "7,0");
    EXPECT_EQ(bulging.askedFrom, 2.0);
    EXPECT_EQ(bulging.askedTo, 8.0);
}

TEST(QnGeCurveCoordSys, TheLowerParameterComesFirst) {
    const TwoNearest bulging = MakeTwoNearest("8,0 2,0 5,0", "mline 2,0 3,0 8,0");
    ExpectPoint(QnGeCurveCoordSys(bulging).WcsToCcs(QnGePoint(4, 5)), "3,0");
    EXPECT_EQ(bulging.askedFrom, 2.0) << "of three, the first two";
    EXPECT_EQ(bulging.askedTo, 8.0);
}

TEST(QnGeCurveCoordSys, EquallyFarTheFirstVertexBetween) {
    const TwoNearest bulging = MakeTwoNearest("2,0 8,0", "mline 2,0 3,0 7,0 8,0");
    ExpectPoint(QnGeCurveCoordSys(bulging).WcsToCcs(QnGePoint(5, 5)), "3,0");
}

TEST(QnGeCurveCoordSys, OfTwoNearestPointsTheFirstWhereNothingIsBetween) {
    ExpectPoint(QnGeCurveCoordSys(MakeTwoNearest("2,0 8,0", "")).WcsToCcs(QnGePoint(4, 5)), "2,0");
    ExpectPoint(QnGeCurveCoordSys(MakeTwoNearest("2,0 8,0", "ray 2,0 1,0")).WcsToCcs(QnGePoint(4, 5)), "2,0");
    ExpectPoint(QnGeCurveCoordSys(MakeTwoNearest("8,0 2,0", "seg 2,0 8,0")).WcsToCcs(QnGePoint(4, 5)), "8,0");
    const TwoNearest together = MakeTwoNearest("2,0 2.0000000005,0", "mline 2,0 3,0 8,0");
    ExpectPoint(QnGeCurveCoordSys(together).WcsToCcs(QnGePoint(4, 5)), "2,0");
    EXPECT_EQ(together.askedFrom, UNTOUCHED);
}

// ---- there and back ----------------------------------------------------------------------------------

TEST(QnGeCurveCoordSys, ThereAndBackOnAStraightCurve) {
    RandomSource random(BaseSeed());
    for (int i = 0; i < curve_testing::PROPERTY_CASES; ++i) {
        const QnGePoint from(random.Double(-50, 50), random.Double(-50, 50), random.Double(-5, 5));
        const QnGePoint to(from.x + random.Double(1, 50), from.y + random.Double(-50, 50), from.z);
        const QnGeLineSeg2d seg(from, to);
        const QnGeCurveCoordSys system(seg);
        const QnGePoint p(random.Double(0, seg.Length()), random.Double(-9, 9), random.Double(-9, 9));
        const QnGePoint back = system.WcsToCcs(system.CcsToWcs(p));
        ASSERT_NEAR(back.x, p.x, 1e-9) << "seed " << BaseSeed() << " case " << i;
        ASSERT_NEAR(back.y, p.y, 1e-9) << "seed " << BaseSeed() << " case " << i;
        ASSERT_EQ(back.z, 0.0) << "the side is not measured";
    }
}

TEST(QnGeCurveCoordSys, CopiesLookAtTheSameCurve) {
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0 10,0");
    const auto other = ParseGeoAs<QnGeCurve2d>("seg 0,5 10,5");
    const QnGeCurveCoordSys system(*seg);
    const QnGeCurveCoordSys copy(system);
    QnGeCurveCoordSys assigned(*other);
    assigned = system;
    ExpectPoint(copy.CcsToWcs(QnGePoint(3, 0)), "3,0");
    ExpectPoint(assigned.CcsToWcs(QnGePoint(3, 0)), "3,0");
}

// ---- elevation rectangles ----------------------------------------------------------------------------

TEST(QnGeCurveCoordSys, ElevationOfTheWholeCurve) {
    const auto chain = ParseGeoAs<QnGeCurve2d>(TWO_SEGS);
    const std::unique_ptr<QnGeMLine2d> rect(QnGeCurveCoordSys(*chain).CreateElevRect(3.0));
    ExpectGeo(rect.get(), "mline 0,0 11,0 11,3 0,3 close");
    const std::unique_ptr<QnGeMLine2d> below(QnGeCurveCoordSys(*chain).CreateElevRect(-3.0));
    ExpectGeo(below.get(), "mline 0,0 11,0 11,-3 0,-3 close");
}

TEST(QnGeCurveCoordSys, ElevationOfAnotherCurveFromItsStart) {
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0,5 10,0,5");
    const auto other = ParseGeoAs<QnGeCurve2d>("seg 2,3,7 5,7,7");
    const std::unique_ptr<QnGeMLine2d> rect(QnGeCurveCoordSys(*seg).CreateElevRect(*other, 3.0));
    ExpectGeo(rect.get(), "mline 2,2 7,2 7,5 2,5 close");
}
