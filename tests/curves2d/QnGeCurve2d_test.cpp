// SPDX-License-Identifier: Apache-2.0
#include "curves2d/QnGeCurve2d.h"

#include <gtest/gtest.h>

#include <memory>

#include "CurveTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeEArc2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/QnGeSpline2d.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGePolygon2d.h"
#include "support/ExpectGeo.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

using namespace curve_testing;

namespace {

/// Without Explode it is integrated over its own parameter; it notes the range it was asked for.
class IntegratedCurve : public BareCurve {
public:
    double value = 0.0;
    mutable double from = UNTOUCHED;
    mutable double to = UNTOUCHED;

    double Integration(double pa1, double pa2) const override {
        from = pa1;
        to = pa2;
        return value;
    }
    void GetTangent(double pa, QnGeBaseLine2d& tangent) const override { tangent.basePoint.SetPoint(pa, 0.0, 0.0); }
};

/// A chain of any two curves.
class PairCurve : public BareCurve {
public:
    PairCurve(const char* first, const char* second) : m_first(first), m_second(second) {}
    bool Explode(QnGeObjList& parts) const override {
        parts.Append(ParseGeo(m_first).release());
        parts.Append(ParseGeo(m_second).release());
        return true;
    }

private:
    const char* m_first;
    const char* m_second;
};

/// It can be copied and moved aside.
class MovableCurve : public AxisCurve {
public:
    bool movable = true;
    QnGeObject* Clone() const override { return new MovableCurve(*this); }
    bool Offset(double dist) override {
        scale += dist;
        return movable;
    }
};

/// A region of no parts at all.
class EmptyRegion : public QnGeRegion2d {
public:
    bool Explode(QnGeObjList&) const override { return true; }
};

void ExpectRecord(const QnRxClassInfo& info, long id, const QnRxClassInfo& parent) {
    EXPECT_EQ(info.GetClassID(), id);
    EXPECT_EQ(info.GetParent(), &parent);
}

}  // namespace

TEST(QnGeCurve2d, ClassRecords) {
    ExpectRecord(QnGeCurve2d::s_classInfo, 110, QnGeObject2d::s_classInfo);
    ExpectRecord(QnGeLine2d::s_classInfo, 111, QnGeCurve2d::s_classInfo);
    ExpectRecord(QnGeLineRay2d::s_classInfo, 112, QnGeLine2d::s_classInfo);
    ExpectRecord(QnGeLineSeg2d::s_classInfo, 113, QnGeLine2d::s_classInfo);
    ExpectRecord(QnGeCircle2d::s_classInfo, 114, QnGeCurve2d::s_classInfo);
    ExpectRecord(QnGeArc2d::s_classInfo, 115, QnGeCurve2d::s_classInfo);
    ExpectRecord(QnGeMLine2d::s_classInfo, 116, QnGeCurve2d::s_classInfo);
    ExpectRecord(QnGePolyline2d::s_classInfo, 117, QnGeMLine2d::s_classInfo);
    ExpectRecord(QnGeMCurve2d::s_classInfo, 118, QnGeCurve2d::s_classInfo);
    ExpectRecord(QnGeEllipse2d::s_classInfo, 119, QnGeCurve2d::s_classInfo);
    ExpectRecord(QnGeEArc2d::s_classInfo, 120, QnGeCurve2d::s_classInfo);
    ExpectRecord(QnGeSpline2d::s_classInfo, 121, QnGeCurve2d::s_classInfo);
}

TEST(QnGeCurve2d, BareObjectProtocol) {
    QnGeCurve2d curve;
    EXPECT_EQ(curve.GetClassID(), 110);
    EXPECT_FALSE(curve.IsValid());
    EXPECT_EQ(curve.Clone(), nullptr);
    EXPECT_FALSE(curve.CopyFrom(&curve));
    EXPECT_EQ(std::unique_ptr<QnGeObject>(curve.Symplify()), nullptr);
    EXPECT_EQ(curve.ConvertTo3d(), nullptr);
    EXPECT_EQ(curve.GetElevation(), 0.0);
    ExpectPoint(curve.GetSamplePoint(), "0,0");

    QnGeExtent2d extent(1.0, 2.0, 3.0, 4.0);
    EXPECT_FALSE(curve.GetExtent2d(extent));
    EXPECT_EQ(extent.x.min, 1.0);
    QnGePointList nearest;
    EXPECT_FALSE(curve.GetClosestPoint2d(QnGePoint(1.0, 1.0), nearest));
    EXPECT_TRUE(nearest.IsEmpty());
    QnGeObjList parts;
    EXPECT_FALSE(curve.Explode(parts));
    EXPECT_FALSE(curve.IntersectWith(*ParseGeo("line 0,0 1,0"), parts));
    EXPECT_TRUE(parts.IsEmpty());
}

TEST(QnGeCurve2d, BareParameters) {
    const QnGeCurve2d curve;
    QnGePoint pt(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    double value = UNTOUCHED;
    EXPECT_EQ(curve.GetSubCurve(0.0, 1.0), nullptr);
    EXPECT_FALSE(curve.GetPtFromPa(0.5, pt));
    EXPECT_FALSE(curve.GetPaFromPt(QnGePoint(), value));
    EXPECT_FALSE(curve.GetPaFromDist(1.0, value));
    EXPECT_FALSE(curve.GetDistFromPa(1.0, value));
    EXPECT_FALSE(curve.GetPtFromDist(1.0, pt));
    EXPECT_FALSE(curve.GetDistFromPt(QnGePoint(), value));
    EXPECT_FALSE(curve.GetMidPoint(pt));
    EXPECT_EQ(pt.x, UNTOUCHED);
    EXPECT_EQ(pt.z, UNTOUCHED);
    EXPECT_EQ(value, UNTOUCHED);
}

TEST(QnGeCurve2d, BareShape) {
    QnGeCurve2d curve;
    EXPECT_TRUE(curve.IsFinite(true));
    EXPECT_TRUE(curve.IsFinite(false));
    EXPECT_FALSE(curve.IsMLinear());
    EXPECT_EQ(curve.GetPeriod(), 1.0);
    EXPECT_FALSE(curve.IsSelfCross());
    EXPECT_FALSE(curve.IsClockwise());
    EXPECT_EQ(curve.Integration(0.0, 1.0), 0.0);
    EXPECT_EQ(curve.TotalIntegration(), 0.0);
    EXPECT_EQ(curve.Area(), 0.0);
    EXPECT_EQ(curve.Length(), 0.0);
    EXPECT_EQ(curve.GetMLinePrec(), 0.0);
    EXPECT_EQ(curve.GetExtendCurve(), nullptr) << "closed, but without a clone";
    EXPECT_EQ(curve.GetOffsetCurve(1.0), nullptr);
    curve.Reverse();
    curve.Compress();
    EXPECT_FALSE(curve.Conbine(*ParseGeoAs<QnGeLineSeg2d>("seg 0,0 1,0"), false));
    EXPECT_FALSE(curve.Offset(1.0));
    QnGeBaseLine2d tangent(QnGeVector2d(1.0, 2.0), QnGePoint(3.0, 4.0));
    curve.GetTangent(0.5, tangent);
    EXPECT_EQ(tangent.dx, 1.0);
    EXPECT_EQ(tangent.basePoint.y, 4.0);
}

TEST(QnGeCurve2d, KeptOddACurveWithoutPointsIsClosed) {
    const QnGeCurve2d curve;
    EXPECT_TRUE(curve.IsClosed());
    EXPECT_TRUE(QnGeSpline2d().IsClosed());
}

TEST(QnGeCurve2d, SplineIsItsDefaultsOnly) {
    const QnGeSpline2d spline;
    QnGePoint pt;
    EXPECT_FALSE(spline.GetPtFromPa(0.5, pt));
    EXPECT_EQ(spline.Length(), 0.0);
    const std::unique_ptr<QnGeMLine2d> line(spline.MLinearize(0.0));
    ExpectGeo(line.get(), "mline 0,0 0,0 close");
}

TEST(QnGeCurve2d, EndPointsAreWrittenAndTellWhetherTheyExist) {
    AxisCurve curve;
    curve.scale = 3.0;
    QnGePoint pt;
    EXPECT_TRUE(curve.GetStartPoint(pt));
    ExpectPoint(pt, "0,0");
    EXPECT_TRUE(curve.GetEndPoint(pt));
    ExpectPoint(pt, "3,0");
    curve.startExists = false;
    curve.endExists = false;
    EXPECT_FALSE(curve.GetStartPoint(pt));
    ExpectPoint(pt, "0,0");
    EXPECT_FALSE(curve.GetEndPoint(pt));
    ExpectPoint(pt, "3,0");
}

TEST(QnGeCurve2d, PointsAndDistancesGoThroughTheParameter) {
    AxisCurve curve;
    curve.scale = 8.0;
    QnGePoint pt;
    double dist = UNTOUCHED;
    EXPECT_TRUE(curve.GetPtFromDist(2.0, pt));
    ExpectPoint(pt, "2,0");
    EXPECT_TRUE(curve.GetDistFromPt(QnGePoint(6.0, 0.0), dist));
    EXPECT_EQ(dist, 6.0);
    dist = UNTOUCHED;
    EXPECT_FALSE(curve.GetDistFromPt(QnGePoint(6.0, 1.0), dist));
    EXPECT_EQ(dist, UNTOUCHED);
    EXPECT_TRUE(curve.GetMidPoint(pt));
    ExpectPoint(pt, "4,0");
    ExpectPoint(curve.GetSamplePoint(), "4,0");
}

TEST(QnGeCurve2d, ThreeQuestionsAboutItsEnds) {
    struct Case {
        bool closed, start, end, isSeg, isFinite, isInfinite;
    };
    for (const Case& c : {Case{false, true, true, true, true, false}, Case{false, true, false, false, false, false},
                          Case{false, false, true, false, false, false}, Case{false, false, false, false, false, true},
                          Case{true, false, false, false, true, false}, Case{true, true, true, true, true, false}}) {
        BareCurve curve;
        curve.closed = c.closed;
        curve.startExists = c.start;
        curve.endExists = c.end;
        EXPECT_EQ(curve.IsCurveSeg(), c.isSeg);
        EXPECT_EQ(curve.IsFinite(), c.isFinite);
        EXPECT_EQ(curve.IsInfinite(), c.isInfinite);
    }
}

TEST(QnGeCurve2d, IsIncludePaLooksAtTheEndsThatExist) {
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0 4,0");
    EXPECT_TRUE(seg->IsIncludePa(0.0));
    EXPECT_TRUE(seg->IsIncludePa(-g_fZero));
    EXPECT_FALSE(seg->IsIncludePa(-1.1e-9));
    EXPECT_TRUE(seg->IsIncludePa(1.0000000005));
    EXPECT_FALSE(seg->IsIncludePa(1.00001));
    EXPECT_FALSE(seg->IsIncludePa(1.5));
    const auto line = ParseGeoAs<QnGeCurve2d>("line 0,0 4,0");
    EXPECT_TRUE(line->IsIncludePa(1.0000000005));
    EXPECT_TRUE(line->IsIncludePa(1.00001));
    EXPECT_TRUE(line->IsIncludePa(-7.0));
    const auto ray = ParseGeoAs<QnGeCurve2d>("ray 0,0 4,0");
    EXPECT_TRUE(ray->IsIncludePa(7.0));
    EXPECT_FALSE(ray->IsIncludePa(-7.0));
    const auto reversed = ParseGeoAs<QnGeCurve2d>("ray reversed 0,0 4,0");
    EXPECT_FALSE(reversed->IsIncludePa(7.0));
    EXPECT_TRUE(reversed->IsIncludePa(-7.0));
}

TEST(QnGeCurve2d, PeriodIsOneWhereClosed) {
    BareCurve curve;
    EXPECT_EQ(curve.GetPeriod(), 0.0);
    curve.closed = true;
    EXPECT_EQ(curve.GetPeriod(), 1.0);
    EXPECT_EQ(ParseGeoAs<QnGeCurve2d>("arc 0,0 r2 from 0 sweep 1")->GetPeriod(), 0.0);
    EXPECT_EQ(ParseGeoAs<QnGeCurve2d>("arc 0,0 r2 from 0 sweep 2pi")->GetPeriod(), 1.0);
    EXPECT_EQ(ParseGeoAs<QnGeCurve2d>("circle 0,0 r2")->GetPeriod(), 6.2831853071796);
}

TEST(QnGeCurve2d, ClosedMeansEndsMeetInThePlan) {
    const auto gap = [](double size, double rise) {
        return PathCurve({QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0), QnGePoint(0.0, size, rise)});
    };
    EXPECT_TRUE(gap(0.0, 0.0).IsClosed());
    EXPECT_TRUE(gap(0.9e-6, 0.0).IsClosed());
    EXPECT_FALSE(gap(1.1e-6, 0.0).IsClosed());
    EXPECT_TRUE(gap(0.0, 5.0).IsClosed()) << "height plays no part";
}

TEST(QnGeCurve2d, TotalIntegrationWithoutPiecesIsOverTheUnitRange) {
    IntegratedCurve curve;
    curve.value = 2.5;
    EXPECT_EQ(curve.TotalIntegration(), 2.5);
    EXPECT_EQ(curve.from, 0.0);
    EXPECT_EQ(curve.to, 1.0);
    EXPECT_TRUE(curve.IsClockwise());
    EXPECT_EQ(curve.Area(), 0.0) << "open";
    curve.closed = true;
    EXPECT_EQ(curve.Area(), 2.5);
    curve.value = -2.5;
    EXPECT_EQ(curve.Area(), 2.5);
    EXPECT_FALSE(curve.IsClockwise());
    curve.value = 0.0;
    EXPECT_FALSE(curve.IsClockwise()) << "no integral, no direction";
}

TEST(QnGeCurve2d, PiecesGiveLengthAreaAndDirection) {
    PathCurve square = SquarePath();
    EXPECT_DOUBLE_EQ(square.Length(), 16.0);
    EXPECT_DOUBLE_EQ(square.TotalIntegration(), -16.0) << "minus the area if counter-clockwise";
    EXPECT_DOUBLE_EQ(square.Area(), 16.0);
    EXPECT_FALSE(square.IsClockwise());
    square.Reverse();
    EXPECT_DOUBLE_EQ(square.TotalIntegration(), 16.0);
    EXPECT_DOUBLE_EQ(square.Area(), 16.0);
    EXPECT_TRUE(square.IsClockwise());

    const PathCurve open({QnGePoint(0.0, 0.0), QnGePoint(3.0, 4.0), QnGePoint(3.0, 6.0)});
    EXPECT_DOUBLE_EQ(open.Length(), 7.0);
    EXPECT_EQ(open.Area(), 0.0);
    EXPECT_DOUBLE_EQ(open.TotalIntegration(), 6.0);
    EXPECT_TRUE(open.IsClockwise()) << "the sign of the integral, without meaning for the shape";

    QnGeExtent2d extent;
    EXPECT_TRUE(open.GetExtent2d(extent));
    EXPECT_EQ(extent.x.max, 3.0);
    EXPECT_EQ(extent.y.max, 6.0);
}

TEST(QnGeCurve2d, MLinearMeansAllPiecesAre) {
    EXPECT_TRUE(SquarePath().IsMLinear());
    EXPECT_TRUE(PairCurve("seg 0,0 1,0", "ray 1,0 1,1").IsMLinear());
    EXPECT_FALSE(PairCurve("seg 0,0 1,0", "arc 1,1 r1 from 3pi/2 sweep pi").IsMLinear());
    EXPECT_FALSE(PairCurve("circle 0,0 r1", "seg 0,0 1,0").IsMLinear());
    EXPECT_FALSE(BareCurve().IsMLinear());
}

TEST(QnGeCurve2d, TangentOfAPointWithoutParameterIsThatAtZero) {
    const IntegratedCurve curve;
    QnGeBaseLine2d tangent(QnGeVector2d(1.0, 0.0), QnGePoint(UNTOUCHED, UNTOUCHED));
    curve.GetTangentFromPt(QnGePoint(9.0, 9.0), tangent);
    EXPECT_EQ(tangent.basePoint.x, 0.0);
    ParseGeoAs<QnGeCurve2d>("seg 1,1 4,5")->GetTangentFromPt(QnGePoint(4.0, 5.0), tangent);
    EXPECT_DOUBLE_EQ(tangent.dx, 0.6);
    EXPECT_DOUBLE_EQ(tangent.dy, 0.8);
}

TEST(QnGeCurve2d, SubCurveBetweenPoints) {
    AxisCurve curve;
    curve.scale = 8.0;
    const std::unique_ptr<QnGeCurve2d> piece(curve.GetSubCurve(QnGePoint(6.0, 0.0), QnGePoint(2.0, 0.0)));
    ExpectGeo(piece.get(), "seg 6,0 2,0");
    const std::unique_ptr<QnGeCurve2d> missed(curve.GetSubCurve(QnGePoint(6.0, 1.0), QnGePoint(2.0, 0.0)));
    ExpectGeo(missed.get(), "seg 0,0 2,0");
}

TEST(QnGeCurve2d, OffsetCurveIsACopyMoved) {
    MovableCurve curve;
    curve.scale = 8.0;
    const std::unique_ptr<QnGeCurve2d> moved(curve.GetOffsetCurve(2.0));
    ASSERT_NE(moved, nullptr);
    EXPECT_EQ(moved->Length(), 10.0);
    EXPECT_EQ(curve.Length(), 8.0);
    curve.movable = false;
    EXPECT_EQ(curve.GetOffsetCurve(2.0), nullptr);
}

TEST(QnGeCurve2d, IncludesPointsAndWhatIsMadeOfThem) {
    const PathCurve square = SquarePath();
    EXPECT_TRUE(square.IsInclude(*ParseGeo("point 2,0")));
    EXPECT_TRUE(square.IsInclude(*ParseGeo("point 4,4,9")));
    EXPECT_FALSE(square.IsInclude(*ParseGeo("point 2,2"))) << "inside is not on";
    EXPECT_FALSE(square.IsInclude(*ParseGeo("seg 1,0 2,0"))) << "a segment has no parts to ask for";
    EXPECT_FALSE(square.IsInclude(*ParseGeo("mline 1,0 2,0 3,0")));
    EXPECT_TRUE(square.IsInclude(*ParseGeo("mline 9,9"))) << "no parts: none is off the curve";
    EXPECT_FALSE(square.IsInclude(*ParseGeo("region 0,0 4,0 4,4 0,4"))) << "never a region";
    EXPECT_FALSE(square.IsInclude(EmptyRegion()));
    EXPECT_FALSE(BareCurve().IsInclude(*ParseGeo("point 0,0")));
}

TEST(QnGeCurve2d, ClosestPointsOfAChain) {
    const PathCurve square = SquarePath();
    QnGePointList nearest;
    EXPECT_TRUE(square.GetClosestPoint2d(QnGePoint(2.0, 2.0), nearest));
    ASSERT_EQ(nearest.GetLength(), 4) << "one on each side";
    ExpectPoint(nearest.GetAt(0), "2,0");
    ExpectPoint(nearest.GetAt(1), "4,2");
    ExpectPoint(nearest.GetAt(2), "2,4");
    ExpectPoint(nearest.GetAt(3), "0,2");
    nearest.Reset();
    EXPECT_TRUE(square.GetClosestPoint2d(QnGePoint(-1.0, -1.0), nearest));
    ASSERT_EQ(nearest.GetLength(), 1) << "a common corner comes once";
    ExpectPoint(nearest.GetAt(0), "0,0");
}

TEST(QnGeCurve2d, ResultCodesOfExtending) {
    EXPECT_EQ(QnGeCurve2d::ETR_FAILED, 0);
    EXPECT_EQ(QnGeCurve2d::ETR_NO_INTERSECTION, 1);
    EXPECT_EQ(QnGeCurve2d::ETR_NO_VALID_POINT, 2);
    EXPECT_EQ(QnGeCurve2d::ETR_DEGENERATE, 3);
    EXPECT_EQ(QnGeCurve2d::ETR_DONE, 4);
}

TEST(QnGeCurve2d, ExtendsToACloneWhereNothingIsBeyondTheEnds) {
    const PathCurve square = SquarePath();
    const std::unique_ptr<QnGeCurve2d> same(square.GetExtendCurve());
    ASSERT_NE(same, nullptr);
    EXPECT_EQ(same->Area(), 16.0);
    AxisCurve infinite;
    infinite.startExists = infinite.endExists = false;
    const std::unique_ptr<QnGeCurve2d> copy(infinite.GetExtendCurve());
    EXPECT_NE(dynamic_cast<AxisCurve*>(copy.get()), nullptr);
}

TEST(QnGeCurve2d, ExtendsAnOpenCurveByARayAtEachEnd) {
    const auto corner = ParseGeoAs<QnGeCurve2d>("mline 0,0,1 2,0,1 2,2,1");
    const std::unique_ptr<QnGeCurve2d> extended(corner->GetExtendCurve());
    ASSERT_NE(extended, nullptr);
    EXPECT_TRUE(extended->IsInfinite());
    QnGeObjList parts;
    EXPECT_TRUE(extended->Explode(parts));
    ExpectGeoList(parts, "ray reversed 0,0,1 -1,0; mline 0,0,1 2,0,1 2,2,1; ray 2,2,1 0,1");
}

TEST(QnGeCurve2d, ExtendsOnlyTheEndThatExists) {
    AxisCurve curve;
    for (const bool startExists : {true, false}) {
        curve.startExists = startExists;
        curve.endExists = !startExists;
        const std::unique_ptr<QnGeCurve2d> extended(curve.GetExtendCurve());
        ASSERT_NE(extended, nullptr);
        QnGeObjList parts;
        EXPECT_TRUE(extended->Explode(parts));
        ASSERT_EQ(parts.GetLength(), 2);
        EXPECT_EQ(parts.GetAt(startExists ? 0 : 1)->GetCI(), &QnGeLineRay2d::s_classInfo);
        EXPECT_TRUE(extended->IsInfinite());
    }
}

namespace {

/// A line of a caller's own that has pieces, though its class record is the line's.
class DashedLine : public QnGeLine2d {
public:
    bool Explode(QnGeObjList& parts) const override {
        parts.Append(new QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(3.0, 0.0)));
        parts.Append(new QnGeLineSeg2d(QnGePoint(5.0, 0.0), QnGePoint(9.0, 0.0)));
        return true;
    }
};

}  // namespace

TEST(QnGeCurve2d, ACallersSubclassOfAPrimitiveIsAskedForItsPieces) {
    EXPECT_DOUBLE_EQ(DashedLine().QnGeCurve2d::Length(), 7.0);
}
