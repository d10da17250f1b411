// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>

#include "RoundTesting.h"
#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeEArc2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeSpline2d.h"
#include "frame/DynCreateGeObject.h"
#include "polylines/QnGeMLine2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

using namespace round_testing;

namespace {

QnGeEllipse2d EllipseOf(double major, double minor, bool ccw = true) {
    QnGeEllipse2d ellipse(ccw);
    ellipse.SetCenter(QnGePoint(1, 2, 3));
    ellipse.SetMajorRadius(major);
    ellipse.SetMinorRadius(minor);
    ellipse.SetRotation(0.5);
    return ellipse;
}

/// What the three classes have in common: every question has the default answer of a curve without pieces.
void ExpectNoGeometry(QnGeCurve2d& curve) {
    QnGePoint pt(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    double value = UNTOUCHED;
    EXPECT_FALSE(curve.GetPtFromPa(0.5, pt));
    EXPECT_FALSE(curve.GetPtFromDist(0.5, pt));
    EXPECT_FALSE(curve.GetMidPoint(pt));
    EXPECT_FALSE(curve.GetPaFromPt(QnGePoint(3, 2), value));
    EXPECT_FALSE(curve.GetPaFromDist(1.0, value));
    EXPECT_FALSE(curve.GetDistFromPa(0.5, value));
    EXPECT_FALSE(curve.GetDistFromPt(QnGePoint(3, 2), value));
    EXPECT_EQ(pt.x, UNTOUCHED);
    EXPECT_EQ(value, UNTOUCHED);
    EXPECT_EQ(curve.GetSubCurve(0.0, 0.5), nullptr);
    QnGeObjList parts;
    EXPECT_FALSE(curve.Explode(parts));
    EXPECT_TRUE(parts.IsEmpty());
    EXPECT_EQ(curve.Length(), 0.0);
    EXPECT_EQ(curve.Area(), 0.0);
    EXPECT_EQ(curve.Integration(0.0, 1.0), 0.0);
    EXPECT_EQ(curve.TotalIntegration(), 0.0);
    QnGeExtent2d box(70, 71, 72, 73);
    EXPECT_FALSE(curve.GetExtent2d(box));
    EXPECT_FALSE(curve.IsMLinear());
    EXPECT_FALSE(curve.IsSelfCross());
    EXPECT_TRUE(curve.IsClosed());
    EXPECT_EQ(curve.GetMLinePrec(), 0.0);
    EXPECT_FALSE(curve.Conbine(curve, false));
    EXPECT_FALSE(curve.Offset(1.0));
    EXPECT_EQ(curve.GetOffsetCurve(1.0), nullptr);
    EXPECT_EQ(curve.Symplify(), nullptr);
    EXPECT_EQ(curve.ConvertTo3d(), nullptr);
    EXPECT_EQ(curve.CloneNew(), nullptr);
    ExpectPoint(curve.GetSamplePoint(), "0,0", 0.0);
    QnGePointList points;
    EXPECT_FALSE(curve.GetClosestPoint2d(QnGePoint(9, 9), points));
    QnGeBaseLine2d tangent(QnGeVector2d(5, 6), QnGePoint(7, 8));
    curve.GetTangent(0.5, tangent);
    EXPECT_EQ(tangent.dx, 5.0);
    EXPECT_EQ(tangent.basePoint.y, 8.0);
}

/// No pair finds anything, whichever of the two is asked.
void ExpectMeetsNothing(const QnGeObject& shell) {
    for (const char* text : {"line -9,2 1,0", "ray -9,2 1,0", "seg -9,2 9,2", "circle 1,2 r2",
                             "arc 1,2 r2 from 0 sweep 3", "mline -9,2 9,2 9,9", "pline -9,2@1 9,2", "point 3,2"}) {
        const std::unique_ptr<QnGeObject> other = ParseGeo(text);
        QnGeObjList found;
        EXPECT_FALSE(shell.IntersectWith(*other, found)) << text;
        EXPECT_FALSE(other->IntersectWith(shell, found)) << text;
        EXPECT_TRUE(found.IsEmpty()) << text;
        EXPECT_FALSE(shell.IsInclude(*other)) << text;
        EXPECT_FALSE(other->IsInclude(shell)) << text;
    }
    QnGeObjList found;
    EXPECT_FALSE(shell.IntersectWith(shell, found));
    EXPECT_FALSE(shell.IsInclude(*ParseGeo("region 0,0 1,0 1,1")));
}

/// The closed curve that nothing meets has an outside only.
void ExpectOutsideEverywhere(const QnGeCurve2d& curve) {
    for (const QnGePoint& pt : {QnGePoint(1, 2), QnGePoint(3, 2), QnGePoint(0, 0), QnGePoint(50, 50)}) {
        EXPECT_EQ(curve.HitTest(pt).GetBits(), HIT_OUT) << PointToText(pt);
    }
}

/// The record is the flag word alone.
long StreamedFlags(const QnGeObject& object) {
    QnDynArrayStream stream(16, 16);
    object.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4);
    stream.MoveToFirst();
    long flags = -1;
    stream >> flags;
    return flags;
}

void ReadFlags(QnGeObject& object, long flags) {
    QnDynArrayStream stream(16, 16);
    stream << flags;
    stream.MoveToFirst();
    object.StreamIn(stream);
}

}  // namespace

// ---- ellipse -----------------------------------------------------------------------------------------

TEST(QnGeEllipse2d, DefaultIsAllZeroAndCounterClockwise) {
    const QnGeEllipse2d ellipse;
    EXPECT_EQ(ellipse.GetMajorRadius(), 0.0);
    EXPECT_EQ(ellipse.GetMinorRadius(), 0.0);
    EXPECT_EQ(ellipse.GetRotation(), 0.0);
    ExpectPoint(ellipse.GetCenter(), "0,0", 0.0);
    EXPECT_FALSE(ellipse.IsClockwise());
    EXPECT_FALSE(ellipse.IsValid());
    EXPECT_EQ(QnGeEllipse2d(false).GetBits(), static_cast<std::uint32_t>(OBJ_CLOCKWISE));
}

TEST(QnGeEllipse2d, IsValidNeedsBothSemiAxes) {
    EXPECT_TRUE(EllipseOf(2.0, 1.0).IsValid());
    EXPECT_FALSE(EllipseOf(2.0, 1e-6).IsValid());
    EXPECT_FALSE(EllipseOf(1e-6, 1.0).IsValid());
    EXPECT_TRUE(EllipseOf(2e-6, 2e-6).IsValid());
}

TEST(QnGeEllipse2d, HoldsAShapeButAnswersNoQuestionAboutIt) {
    QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    ExpectNoGeometry(ellipse);
    ExpectMeetsNothing(ellipse);
    ExpectOutsideEverywhere(ellipse);
    EXPECT_EQ(ellipse.GetPeriod(), 6.2831853071796);
}

TEST(QnGeEllipse2d, PointFromParameterIsFalseAlthoughTheShapeHasOne) {
    const QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    QnGePoint pt(UNTOUCHED, 0, 0);
    EXPECT_FALSE(ellipse.GetPtFromPa(0.0, pt));
    EXPECT_EQ(pt.x, UNTOUCHED);
    EXPECT_TRUE(ellipse.QnGeBaseEllipse::GetPtFromPa(0.0, pt));
    EXPECT_EQ(ellipse.QnGeBaseEllipse::HitTest(QnGePoint(1, 2)).GetBits(), HIT_IN);
}

TEST(QnGeEllipse2d, IsClosedWithoutEnds) {
    const QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    EXPECT_FALSE(ellipse.IsFinite(true));
    EXPECT_FALSE(ellipse.IsFinite(false));
    EXPECT_TRUE(ellipse.IsFinite());
    EXPECT_FALSE(ellipse.IsCurveSeg());
    EXPECT_FALSE(ellipse.IsInfinite());
    QnGePoint pt;
    EXPECT_FALSE(ellipse.GetStartPoint(pt));
    EXPECT_FALSE(ellipse.GetEndPoint(pt));
    EXPECT_EQ(ellipse.MLinearize(0.1), nullptr);
    EXPECT_EQ(ellipse.PLinearize(0.1), nullptr);
    const std::unique_ptr<QnGeMLine2d> byDistance(ellipse.MLinearizeByDist(0.1, false));
    ExpectGeo(byDistance.get(), "mline 0,0 close");
}

TEST(QnGeEllipse2d, ReverseTogglesTheDirection) {
    QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    EXPECT_EQ(ellipse.HitTestSide(QnGePoint(1, 2)).GetBits(), HIT_OUT);
    ellipse.Reverse();
    EXPECT_TRUE(ellipse.IsClockwise());
    EXPECT_EQ(ellipse.GetBits(), static_cast<std::uint32_t>(OBJ_CLOCKWISE));
    EXPECT_EQ(ellipse.HitTestSide(QnGePoint(1, 2)).GetBits(), HIT_IN);
    ellipse.Reverse();
    EXPECT_FALSE(ellipse.IsClockwise());
}

TEST(QnGeEllipse2d, CloneAndExtendCurveAreCopiesOfTheShape) {
    const QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0, false);
    const std::unique_ptr<QnGeObject> clone(ellipse.Clone());
    const std::unique_ptr<QnGeCurve2d> extended(ellipse.GetExtendCurve());
    for (const QnGeObject* copy : {clone.get(), static_cast<QnGeObject*>(extended.get())}) {
        ASSERT_NE(copy, nullptr);
        ASSERT_EQ(copy->GetCI(), &QnGeEllipse2d::s_classInfo);
        const auto& twin = static_cast<const QnGeEllipse2d&>(*copy);
        EXPECT_TRUE(twin.QnGeBaseEllipse::operator==(ellipse));
        EXPECT_EQ(twin.GetRotation(), 0.5);
        EXPECT_EQ(twin.GetElevation(), 3.0);
        EXPECT_TRUE(twin.IsClockwise());
    }
}

TEST(QnGeEllipse2d, AssignmentCopiesFlagsAndShape) {
    QnGeEllipse2d ellipse;
    ellipse = EllipseOf(2.0, 1.0, false);
    EXPECT_TRUE(ellipse.IsClockwise());
    EXPECT_EQ(ellipse.GetMajorRadius(), 2.0);
    EXPECT_EQ(ellipse.GetMinorRadius(), 1.0);
    EXPECT_FALSE(ellipse.CopyFrom(&ellipse)) << "the protocol's copy is not for ellipses";
}

TEST(QnGeEllipse2d, ElevationIsTheCentresHeight) {
    QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    ellipse.SetElevation(8.0);
    EXPECT_EQ(ellipse.GetElevation(), 8.0);
    ExpectPoint(ellipse.GetCenter(), "1,2,8", 0.0);
}

TEST(QnGeEllipse2d, TransformLeavesItWhereItIs) {
    QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    ellipse.Move(5.0, 5.0);
    ExpectPoint(ellipse.GetCenter(), "1,2,3", 0.0);
}

TEST(QnGeEllipse2d, KeptOddStreamHoldsTheFlagsOnly) {
    EXPECT_EQ(StreamedFlags(EllipseOf(2.0, 1.0, false)), 0x20);
    QnGeEllipse2d read = EllipseOf(7.0, 6.0);
    ReadFlags(read, 0x20);
    EXPECT_TRUE(read.IsClockwise());
    EXPECT_EQ(read.GetMajorRadius(), 7.0);
}

TEST(QnGeEllipse2d, SplitAppendsTheMissingSubCurves) {
    QnGeObjList pieces;
    SplitAt(EllipseOf(2.0, 1.0), {0.25}, pieces);
    ASSERT_EQ(pieces.GetLength(), 1);
    EXPECT_TRUE(pieces.IsEmptyData(0));
    SplitAt(EllipseOf(2.0, 1.0), {}, pieces);
    EXPECT_EQ(pieces.GetLength(), 1);
}

// ---- elliptic arc ------------------------------------------------------------------------------------

TEST(QnGeEArc2d, HoldsItsFieldsAndAnswersWithTheDefaults) {
    QnGeEArc2d arc;
    EXPECT_FALSE(arc.ellipse.IsClockwise());
    EXPECT_EQ(arc.startAngle, 0.0);
    EXPECT_EQ(arc.centralAngle, 0.0);
    arc.ellipse = EllipseOf(2.0, 1.0);
    arc.startAngle = 0.5;
    arc.centralAngle = 1.5;
    EXPECT_FALSE(arc.IsValid());
    EXPECT_EQ(arc.Clone(), nullptr);
    ExpectNoGeometry(arc);
    ExpectMeetsNothing(arc);
    ExpectOutsideEverywhere(arc);
    EXPECT_EQ(arc.GetPeriod(), 1.0);
    EXPECT_EQ(arc.GetElevation(), 0.0);
    EXPECT_FALSE(arc.IsClockwise());
    EXPECT_EQ(StreamedFlags(arc), 0);
}

TEST(QnGeEArc2d, CopiesTakeTheFields) {
    QnGeEArc2d arc;
    arc.SetBit(0x400);
    arc.ellipse = EllipseOf(2.0, 1.0, false);
    arc.startAngle = 0.5;
    arc.centralAngle = 1.5;
    const QnGeEArc2d copy(arc);
    QnGeEArc2d assigned;
    assigned = arc;
    for (const QnGeEArc2d* twin : {&copy, static_cast<const QnGeEArc2d*>(&assigned)}) {
        EXPECT_EQ(twin->GetBits(), 0x400U);
        EXPECT_EQ(twin->ellipse.GetMajorRadius(), 2.0);
        EXPECT_TRUE(twin->ellipse.IsClockwise());
        EXPECT_EQ(twin->startAngle, 0.5);
        EXPECT_EQ(twin->centralAngle, 1.5);
    }
}

// ---- spline ------------------------------------------------------------------------------------------

TEST(QnGeSpline2d, IsItsDefaultBehaviourOnly) {
    QnGeSpline2d spline;
    EXPECT_FALSE(spline.IsValid());
    EXPECT_EQ(spline.Clone(), nullptr);
    EXPECT_EQ(spline.GetExtendCurve(), nullptr) << "closed, so a clone, and there is none";
    ExpectNoGeometry(spline);
    ExpectMeetsNothing(spline);
    ExpectOutsideEverywhere(spline);
    EXPECT_EQ(spline.GetPeriod(), 1.0);
    spline.SetBit(0x400);
    spline.Reverse();
    EXPECT_EQ(StreamedFlags(spline), 0x400);
    QnGeSpline2d read;
    ReadFlags(read, 0x400);
    EXPECT_EQ(read.GetBits(), 0x400U);
}

TEST(QnGeSpline2d, KeptOddReadsAsClosedAndLinearisesToTwoUntouchedPoints) {
    const QnGeSpline2d spline;
    EXPECT_TRUE(spline.IsClosed());
    for (const double prec : {0.0, 0.9, 5.0}) {
        const std::unique_ptr<QnGeMLine2d> line(spline.MLinearize(prec));
        ExpectGeo(line.get(), "mline 0,0 0,0 close");
    }
    const std::unique_ptr<QnGeMLine2d> line(spline.PLinearize(0.0));
    ExpectGeo(line.get(), "mline 0,0 0,0 close");
}

TEST(QnGeSpline2d, EndsExistWithoutBeingWritten) {
    const QnGeSpline2d spline;
    QnGePoint pt(UNTOUCHED, 0, 0);
    EXPECT_TRUE(spline.IsCurveSeg());
    EXPECT_TRUE(spline.GetStartPoint(pt));
    EXPECT_TRUE(spline.GetEndPoint(pt));
    EXPECT_EQ(pt.x, UNTOUCHED);
}

// ---- what all three have -----------------------------------------------------------------------------

TEST(EllipseShells, NoEndMoves) {
    QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    QnGeEArc2d arc;
    QnGeSpline2d spline;
    const std::unique_ptr<QnGeObject> wall = ParseGeo("line 1,0 0,1");
    const std::unique_ptr<QnGeObject> seg = ParseGeo("seg 5,5 6,6");
    auto& next = static_cast<QnGeCurve2d&>(*seg);
    for (const bool atStart : {true, false}) {
        EXPECT_EQ(ellipse.Extend(*wall, atStart, true), QnGeCurve2d::ETR_FAILED) << "it has no ends";
        EXPECT_EQ(ellipse.Connect(*wall, atStart, 2), QnGeCurve2d::ETR_NO_INTERSECTION);
        for (QnGeCurve2d* shell : {static_cast<QnGeCurve2d*>(&arc), static_cast<QnGeCurve2d*>(&spline)}) {
            EXPECT_EQ(shell->Extend(*wall, atStart, true), QnGeCurve2d::ETR_FAILED) << "it has no extension";
            EXPECT_EQ(shell->Connect(*wall, atStart, 2), QnGeCurve2d::ETR_FAILED);
        }
    }
    for (QnGeCurve2d* shell :
         {static_cast<QnGeCurve2d*>(&ellipse), static_cast<QnGeCurve2d*>(&arc), static_cast<QnGeCurve2d*>(&spline)}) {
        EXPECT_EQ(shell->Trim(*wall, false), QnGeCurve2d::ETR_NO_INTERSECTION);
        EXPECT_FALSE(shell->ConnectWith(next));
        EXPECT_FALSE(ConnectCurveSeg(shell, &next, false, true));
        shell->Compress();
    }
    ExpectGeo(*seg, "seg 5,5 6,6", 0.0);
}

TEST(EllipseShells, NoneIsMetByAnExtendedEnd) {
    const QnGeEllipse2d ellipse = EllipseOf(2.0, 1.0);
    const std::unique_ptr<QnGeObject> seg = ParseGeo("seg -9,2 -8,2");
    auto& curve = static_cast<QnGeCurve2d&>(*seg);
    EXPECT_EQ(curve.Extend(ellipse, false, true), QnGeCurve2d::ETR_NO_INTERSECTION);
    EXPECT_EQ(curve.Trim(ellipse, false), QnGeCurve2d::ETR_NO_INTERSECTION);
    EXPECT_EQ(curve.Connect(ellipse, false, 2), QnGeCurve2d::ETR_NO_INTERSECTION);
}

TEST(EllipseShells, AsAKnifeAllIsOutside) {
    for (const bool spline : {false, true}) {
        const std::unique_ptr<QnGeCurve2d> knife(spline ? static_cast<QnGeCurve2d*>(new QnGeSpline2d())
                                                        : new QnGeEllipse2d(EllipseOf(2.0, 1.0)));
        QnGeObjList in;
        QnGeObjList out;
        QnGeObjList on;
        knife->Cut(*ParseGeo("seg -9,2 9,2"), in, out, on);
        EXPECT_TRUE(in.IsEmpty() && on.IsEmpty());
        ExpectGeoList(out, "seg -9,2 9,2");
    }
}

TEST(EllipseShells, CutByAKnifeAnEllipseGoesWhereTheOriginIs) {
    const std::unique_ptr<QnGeObject> knife = ParseGeo("line 1,0 0,1");
    QnGeObjList in;
    QnGeObjList out;
    QnGeObjList on;
    static_cast<QnGeCurve2d&>(*knife).Cut(EllipseOf(2.0, 1.0), in, out, on);
    ASSERT_EQ(in.GetLength(), 1);
    EXPECT_EQ(in.GetAt(0)->GetCI(), &QnGeEllipse2d::s_classInfo);
    static_cast<QnGeCurve2d&>(*knife).Cut(QnGeSpline2d(), in, out, on);
    EXPECT_EQ(in.GetLength(), 1) << "what has no clone is left out";
    EXPECT_TRUE(out.IsEmpty() && on.IsEmpty());
}

TEST(EllipseShells, TheTwoWithDefaultEndsAreTheOriginAsALine) {
    const QnGeEArc2d arc;
    const QnGeSpline2d spline;
    for (const QnGeCurve2d* shell : {static_cast<const QnGeCurve2d*>(&arc), static_cast<const QnGeCurve2d*>(&spline)}) {
        EXPECT_TRUE(shell->IsFinite());
        EXPECT_TRUE(shell->IsFinite(true) && shell->IsFinite(false));
        EXPECT_FALSE(shell->IsInfinite());
        EXPECT_EQ(shell->GetExtendCurve(), nullptr);
        ExpectGeo(std::unique_ptr<QnGeMLine2d>(shell->MLinearize(0.0)).get(), "mline 0,0 0,0 close");
        ExpectGeo(std::unique_ptr<QnGeMLine2d>(shell->PLinearize(0.0)).get(), "mline 0,0 0,0 close");
        ExpectGeo(std::unique_ptr<QnGeMLine2d>(shell->MLinearizeByDist(1.0, true)).get(), "mline 0,0 close");
        EXPECT_TRUE(shell->IsConnectWith(*ParseGeoAs<QnGeCurve2d>("seg 0,0 1,0")));
    }
}

TEST(EllipseShells, HaveRecordsButNoFactory) {
    struct Row {
        long id;
        const QnRxClassInfo* info;
        const char* name;
    };
    const Row rows[] = {{119, &QnGeEllipse2d::s_classInfo, "QnGeEllipse2d"},
                        {120, &QnGeEArc2d::s_classInfo, "QnGeEArc2d"},
                        {121, &QnGeSpline2d::s_classInfo, "QnGeSpline2d"}};
    for (const Row& row : rows) {
        EXPECT_EQ(row.info->GetClassID(), row.id);
        EXPECT_STREQ(row.info->GetName(), row.name);
        EXPECT_EQ(row.info->GetParent(), &QnGeCurve2d::s_classInfo);
        EXPECT_EQ(DynCreateGeObject(static_cast<int>(row.id)), nullptr);
    }
}
