// SPDX-License-Identifier: Apache-2.0
// Names that a class inherits, called on objects of the class itself. Most of the test is that it compiles: a class
// with two bases, or one that overrides one overload of a name, must not hide or blur what its users call.
#include <gtest/gtest.h>

#include <memory>

#include "QuarnGeo.h"
#include "support/ExpectGeo.h"

namespace {

const QnGePoint ORIGIN;
const QnGePoint AWAY(1.0, 2.0, 3.0);

/// Takes over a result that the caller owns.
template <class T>
std::unique_ptr<T> Own(T* object) {
    return std::unique_ptr<T>(object);
}

/// What every object answers, whichever bases its class has.
template <class T>
void CallObjectNames() {
    T object;
    const T& same = object;
    const QnGeArc2d arc;
    object.SetBits(3);
    QnGeObjList list;
    QnGePointList points;
    QnGePoint point;
    QnGeExtent2d box;
    QnGeExtent3d space;
    QnGeCoordSys ecs;
    int index = 0;
    QnDynArrayStream stream(16, 16);
    same.GetCI();
    same.GetClassID();
    EXPECT_TRUE(same.IsClassOf(&T::s_classInfo));
    EXPECT_EQ(&T::GetStaticCI(), &T::s_classInfo);
    same.IsValid();
    Own(same.Clone());
    Own(same.CloneNew());
    object.CopyFrom(nullptr);
    object.TransformBy(QnGeMatrix());
    same.Explode(list);
    same.FullExplode(list);
    same.IntersectWith(arc, list);
    same.IsInclude(arc);
    same.HitTest(AWAY);
    same.SubHitTest(AWAY, index);
    same.GetExtent2d(box);
    same.GetExtent3d(space);
    same.IsExtentInter(box);
    same.IsExtentInter(space);
    same.GetEcs(ecs);
    same.GetSamplePoint();
    same.GetClosestPoint(AWAY, points);
    same.GetClosestPoint2d(AWAY, points);
    same.GetClosestPoint(AWAY, point);
    same.GetClosestPoint2d(AWAY, point);
    same.StreamOut(stream);
    stream.MoveToFirst();
    object.StreamIn(stream);
    Own(same.Symplify());
    QnGePoint2d target;
    same.TransToWcs(&target);
    same.TransToEcs(&target);
    EXPECT_EQ(same.GetBits(), 3U);
    EXPECT_TRUE(same.HasBit(1));
}

/// Equality of flags and order of ids, unqualified, of two objects of one class and of two classes.
template <class T>
void CompareObjects() {
    T a;
    T b;
    const QnGePoint3d other;
    b.SetBits(1);
    EXPECT_TRUE(a == a);
    EXPECT_FALSE(a == b);
    EXPECT_TRUE(a != b);
    EXPECT_FALSE(a < b);
    EXPECT_FALSE(a > b);
    EXPECT_TRUE(a == static_cast<const QnBitData&>(other));
    EXPECT_EQ(a < static_cast<const QnGeObject&>(other), a.GetClassID() < 1002);
    EXPECT_EQ(a > static_cast<const QnGeObject&>(other), a.GetClassID() > 1002);
}

template <class T>
void CallPlanarNames() {
    T object;
    const T& same = object;
    object.SetElevation(0.0);
    same.GetElevation();
    Own(same.ConvertTo3d());
    object.Move(0.0, 0.0);
    object.Move(0, 0);
    object.Scale(1.0, 1.0);
    object.Scale(1.0, 1.0, ORIGIN);
    object.Rotate(0.0);
    object.Rotate(0.0, ORIGIN);
    same.GetDistance(AWAY);
}

template <class T>
void CallSpaceNames() {
    T object;
    const T& same = object;
    QnGeBasePlane plane;
    Own(same.ConvertTo2d());
    same.GetPlane(plane);
    object.Move(0.0, 0.0, 0.0);
    object.Scale(1.0, 1.0, 1.0);
    object.Scale(1.0, 1.0, 1.0, ORIGIN);
    object.RotateX(0.0);
    object.RotateY(0.0);
    object.RotateZ(0.0);
    object.Rotate(0.0, QnGeBaseLine3d(QnGeVector3d(0.0, 0.0, 1.0), ORIGIN));
    same.GetDistance(AWAY);
}

template <class T>
void CallCurveReading() {
    const T curve;
    QnGePoint point;
    QnGePointArray pointArray;
    QnDynArray<double> pas;
    QnGeBaseLine2d tangent;
    QnGeObjList a;
    double number = 0.0;
    curve.IsFinite();
    curve.IsFinite(true);
    curve.IsInfinite();
    curve.IsCurveSeg();
    curve.IsIncludePa(0.5);
    Own(curve.GetSubCurve(0.0, 1.0));
    Own(curve.GetSubCurve(ORIGIN, AWAY));
    curve.Split(pas, a);
    curve.Split(pointArray, a);
    curve.GetStartPoint(point);
    curve.GetEndPoint(point);
    curve.GetMidPoint(point);
    curve.GetPtFromPa(0.5, point);
    curve.GetPaFromPt(AWAY, number);
    curve.GetPaFromDist(0.5, number);
    curve.GetDistFromPa(0.5, number);
    curve.GetPtFromDist(0.5, point);
    curve.GetDistFromPt(AWAY, number);
    curve.IsClosed();
    curve.IsMLinear();
    curve.GetPeriod();
    curve.IsSelfCross();
    curve.IsClockwise();
    curve.GetTangent(0.5, tangent);
    curve.GetTangentFromPt(AWAY, tangent);
    curve.Integration(0.0, 1.0);
    curve.TotalIntegration();
    curve.Area();
    curve.Length();
    Own(curve.MLinearize(0.5));
    Own(curve.PLinearize(0.5));
    Own(curve.MLinearizeByDist(0.5, false));
    curve.GetMLinePrec();
    Own(curve.GetExtendCurve());
    Own(curve.GetOffsetCurve(0.5));
    curve.HitTestSide(AWAY);
}

template <class T>
void CallCurveWithOthers() {
    T curve;
    QnGeLineSeg2d seg(ORIGIN, AWAY);
    const QnGeObjList none;
    QnGeObjList a;
    curve.Cut(seg, a, a, a);
    curve.IsConnectWith(seg);
    curve.ConnectWith(seg);
    curve.Extend(none, true, true);
    curve.Extend(static_cast<const QnGeObject&>(seg), true, true);
    curve.Trim(none, true);
    curve.Trim(static_cast<const QnGeObject&>(seg), true);
    curve.Connect(none, true, 0);
    curve.Connect(static_cast<const QnGeObject&>(seg), true, 0);
    curve.Conbine(seg, true);
    curve.Reverse();
    curve.Compress();
    curve.Offset(0.5);
    EXPECT_EQ(T::ETR_DONE, 4);
}

template <class T>
void CallCurveNames() {
    CallObjectNames<T>();
    CompareObjects<T>();
    CallPlanarNames<T>();
    CallCurveReading<T>();
    CallCurveWithOthers<T>();
}

template <class T>
void CallRegionNames() {
    CallObjectNames<T>();
    CompareObjects<T>();
    CallPlanarNames<T>();
    T region;
    const T& same = region;
    const QnGePolygon2d polygon;
    const QnGeRegion2d& other = polygon;
    QnGeObjList list;
    same.SubtractBy(other, list);
    same.SubtractBy(QnGeObjList(), list);
    same.GetBoundary(0);
    same.GetBoundaryNum();
    same.Inter(other, list);
    Own(same.Union(other));
    same.CutBy(QnGeLine2d(ORIGIN, AWAY), list, list);
    same.IsOutlineExist();
    same.GetHoleNum();
    same.IsHoleExist();
    same.IsClosed();
    same.IsEntirePlane();
    same.IsAllowBoundaryInter();
    region.SetAllowBoundaryInter(true);
    same.IsMayBoundaryInter();
    same.IsBoundaryInter();
    same.Area();
    region.Normalize();
    region.Offset(0.5);
    Own(same.MLinearize(0.5));
    same.Clip(QnGeLineSeg2d(ORIGIN, AWAY), list, list, list);
}

}  // namespace

TEST(InheritedNames, LineFamily) {
    CallCurveNames<QnGeLine2d>();
    CallCurveNames<QnGeLineRay2d>();
    CallCurveNames<QnGeLineSeg2d>();
}

TEST(InheritedNames, RoundCurves) {
    CallCurveNames<QnGeCircle2d>();
    CallCurveNames<QnGeArc2d>();
    CallCurveNames<QnGeEllipse2d>();
    CallCurveNames<QnGeEArc2d>();
    CallCurveNames<QnGeSpline2d>();
}

TEST(InheritedNames, CompoundCurves) {
    CallCurveNames<QnGeMLine2d>();
    CallCurveNames<QnGePolyline2d>();
    CallCurveNames<QnGeMCurve2d>();
    CallCurveNames<QnGeCurve2d>();
}

TEST(InheritedNames, Regions) {
    CallRegionNames<QnGeRegion2d>();
    CallRegionNames<QnGePolygon2d>();
    CallRegionNames<QnGeGeneralPolygon2d>();
    CallRegionNames<QnGeGeneralRegion2d>();
}

TEST(InheritedNames, PointsAndRoots) {
    CallObjectNames<QnGePoint2d>();
    CallPlanarNames<QnGePoint2d>();
    CallObjectNames<QnGePoint3d>();
    CallSpaceNames<QnGePoint3d>();
    CallObjectNames<QnGeObject2d>();
    CallPlanarNames<QnGeObject2d>();
    CallObjectNames<QnGeObject3d>();
    CallSpaceNames<QnGeObject3d>();
    CallSpaceNames<QnGeCurve3d>();
    CallSpaceNames<QnGePlane3d>();
    CallSpaceNames<QnGeSolid3d>();
}

TEST(InheritedNames, PointObjectsCompareTheirPlacesAndNotTheirFlags) {
    QnGePoint2d a(1.0, 2.0, 3.0);
    const QnGePoint2d b(1.0, 2.0, 9.0);
    a.SetBits(1);
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    EXPECT_FALSE(a < b);
    const QnGePoint3d c(1.0, 2.0, 3.0);
    const QnGePoint3d d(1.0, 2.0, 9.0);
    EXPECT_TRUE(c != d);
    EXPECT_TRUE(c < d);
    EXPECT_TRUE(d > c);
}

TEST(InheritedNames, ALineIsLessThanAnArc) {
    const QnGeLine2d line;
    const QnGeArc2d arc;
    EXPECT_TRUE(line < arc);
    EXPECT_TRUE(arc > line);
    EXPECT_TRUE(line == arc);
    EXPECT_FALSE(line != arc);
}

TEST(InheritedNames, LengthOfALineIsTheCurvesAndNotTheVectors) {
    const QnGeLine2d line(ORIGIN, QnGePoint(3.0, 4.0));
    EXPECT_EQ(line.Length(), 0.0);
    EXPECT_EQ(QnGeLineRay2d(ORIGIN, QnGePoint(3.0, 4.0)).Length(), 0.0);
    EXPECT_EQ(QnGeLineSeg2d(ORIGIN, QnGePoint(3.0, 4.0)).Length(), 5.0);
    EXPECT_EQ(line.QnGeVector2d::Length(), 5.0);
}

TEST(InheritedNames, FormsOfTheBaseLineStayInReachOnLines) {
    const QnGeLine2d line(ORIGIN, QnGePoint(4.0, 0.0));
    const QnGeLineSeg2d seg(QnGePoint(1.0, -1.0), QnGePoint(1.0, 1.0));
    double t = 0.0;
    double s = 0.0;
    EXPECT_EQ(line.IntersectWith(seg, t, s, false), 1);
    EXPECT_EQ(t, 0.25);
    EXPECT_EQ(s, 0.5);
    EXPECT_TRUE(seg.HitTest(QnGePoint(1.0, 9.0), false) == HIT_ON) << "the carrier has no ends";
    EXPECT_FALSE(seg.HitTest(QnGePoint(1.0, 9.0)) == HIT_ON);
}

TEST(InheritedNames, EndsOfSegmentsAndArcsComeInBothForms) {
    const QnGeLineSeg2d seg(ORIGIN, QnGePoint(4.0, 0.0));
    QnGePoint point;
    EXPECT_TRUE(seg.GetEndPoint(point));
    ExpectPoint(point, "4,0");
    ExpectPoint(seg.GetEndPoint(), "4,0");
    EXPECT_TRUE(seg.GetMidPoint(point));
    ExpectPoint(point, "2,0");
    ExpectPoint(seg.GetMidPoint(), "2,0");
    const QnGeArc2d arc(ORIGIN, 2.0, 0.0, QN_PI);
    EXPECT_TRUE(arc.GetStartPoint(point));
    ExpectPoint(point, "2,0");
    ExpectPoint(arc.GetStartPoint(), "2,0");
    ExpectPoint(arc.GetEndPoint(), "-2,0");
    EXPECT_TRUE(arc.GetMidPoint(point));
    ExpectPoint(point, "0,2");
    ExpectPoint(arc.GetMidPoint(), "0,2");
}

TEST(InheritedNames, ParametersOfAnEllipseAreTheCurvesAndNotTheBases) {
    QnGeEllipse2d ellipse;
    ellipse.majorRadius = 2.0;
    ellipse.minorRadius = 1.0;
    QnGePoint point(7.0, 7.0);
    double pa = 7.0;
    EXPECT_FALSE(ellipse.GetPtFromPa(0.0, point));
    EXPECT_FALSE(ellipse.GetPaFromPt(ORIGIN, pa));
    ExpectPoint(point, "7,7", 0.0);
    EXPECT_EQ(pa, 7.0);
    EXPECT_TRUE(ellipse.HitTest(ORIGIN) == HIT_OUT);
}

TEST(InheritedNames, SegmentsSubtractSegmentsAndLists) {
    const QnGeLineSeg2d seg(ORIGIN, QnGePoint(4.0, 0.0));
    const QnGeLineSeg2d cutter(QnGePoint(1.0, 0.0), QnGePoint(2.0, 0.0));
    QnGeObjList pieces;
    EXPECT_TRUE(seg.SubtractBy(cutter, pieces));
    QnGeObjList cutters(cutter);
    QnGeObjList more;
    seg.SubtractBy(cutters, more);
    EXPECT_EQ(ToText(pieces), ToText(more));
}

TEST(InheritedNames, TypedBooleansStandBesideTheVirtualOnes) {
    const auto a = ParseGeoAs<QnGePolygon2d>("region 0,0 4,0 4,4 0,4");
    const auto b = ParseGeoAs<QnGePolygon2d>("region 2,2 6,2 6,6 2,6");
    const QnGeGeneralPolygon2d general(*b);
    QnGeObjList list;
    const QnGeRegion2d& region = *b;
    EXPECT_NE(Own(a->Union(*b)), nullptr);
    EXPECT_NE(Own(a->Union(region)), nullptr);
    EXPECT_TRUE(a->Inter(*b, list));
    EXPECT_TRUE(a->Inter(region, list));
    a->SubtractBy(*b, list);
    a->SubtractBy(region, list);
    a->SubtractBy(general, list);
    general.SubtractBy(*a, list);
    general.SubtractBy(general, list);
    general.Inter(*a, list);
    general.Inter(general, list);
    Own(general.Union(*a));
    Own(general.Union(general));
    EXPECT_EQ(general.Outline().GetVertexNum(), 4);
}

TEST(InheritedNames, AChainIsACurveAndAListOfCurves) {
    QnGeMCurve2d chain;
    QnGeMCurve2d other(QnGeLineSeg2d(ORIGIN, AWAY));
    chain.Append(new QnGeLineSeg2d(ORIGIN, QnGePoint(1.0, 0.0)));
    chain.Append(new QnGeLineSeg2d(QnGePoint(1.0, 0.0), QnGePoint(2.0, 0.0)));
    EXPECT_EQ(chain.GetLength(), 2);
    EXPECT_FALSE(chain.IsEmpty());
    chain.MoveToFirst();
    EXPECT_EQ(chain.GetCurPData(), chain[0]);
    EXPECT_EQ(chain(1), chain.GetPData(1));
    chain.Move(1, 2);
    chain.Move(1.0, 2.0);
    chain.Rotate(0.5);
    chain.Rotate(0.5, ORIGIN);
    chain.Reverse();
    EXPECT_FALSE(chain.Conbine(QnGeLineSeg2d(ORIGIN, AWAY), true));
    EXPECT_TRUE(chain == other) << "flag words";
    EXPECT_FALSE(chain < other);
    EXPECT_EQ(chain.List().Conbine(other.List(), 0), 3);
    EXPECT_TRUE(other.List().IsEmpty());
    chain.List().Rotate(1, 0);
    EXPECT_EQ(chain.List().GetAt(0)->Length(), 1.0);
    const QnGeMCurve2d& same = chain;
    EXPECT_EQ(same.List().GetLength(), 3);
}
