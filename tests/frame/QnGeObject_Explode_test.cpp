// SPDX-License-Identifier: Apache-2.0
// What a class gets for overriding Explode alone: extents, hits, inclusion, intersection, parts.
#include <gtest/gtest.h>

#include <memory>

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/Bundle.h"
#include "polylines/QnGeMLine2d.h"
#include "support/ExpectGeo.h"
#include "values/QnGeCoordSys.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

namespace {

constexpr double UNTOUCHED = -777.25;

const QnGeExtent2d SOME_BOX(UNTOUCHED, UNTOUCHED, UNTOUCHED, UNTOUCHED);

/// Two segments at a corner and a point away from them.
const char* const CORNER = "seg 0,0 4,0; seg 4,0 4,3; point -2,5";

void ExpectBox(const QnGeExtent2d& box, double xMin, double xMax, double yMin, double yMax) {
    EXPECT_EQ(box.x.min, xMin);
    EXPECT_EQ(box.x.max, xMax);
    EXPECT_EQ(box.y.min, yMin);
    EXPECT_EQ(box.y.max, yMax);
}

/// Has a coordinate system of its own, moved and turned by a quarter.
class Framed : public QnGeObject {
public:
    bool GetEcs(QnGeCoordSys& ecs) const override {
        ecs.Set(QnGePoint(10.0, 20.0, 30.0), QnGeVector3d(0.0, 1.0, 0.0), QnGeVector3d(-1.0, 0.0, 0.0),
                QnGeVector3d(0.0, 0.0, 1.0));
        return true;
    }
};

}  // namespace

TEST(ExplodeAlone, ExtentIsTheHullOfTheParts) {
    const PlaneBundle bundle(CORNER);
    QnGeExtent2d box;
    EXPECT_TRUE(bundle.GetExtent2d(box));
    ExpectBox(box, -2.0, 4.0, 0.0, 5.0);
}

TEST(ExplodeAlone, ExtentInSpaceIsTheHullOfThePartsAtTheRoot) {
    const RootBundle bundle("point 1,2,3; point -1,5,-4");
    QnGeExtent3d box;
    EXPECT_TRUE(bundle.GetExtent3d(box));
    ExpectBox(box, -1.0, 1.0, 2.0, 5.0);
    EXPECT_EQ(box.z.min, -4.0);
    EXPECT_EQ(box.z.max, 3.0);
}

TEST(ExplodeAlone, ExtentInSpaceOfAPlanarObjectIsAtItsElevation) {
    const PlaneBundle bundle("point 1,2,3; point -1,5,-4");
    QnGeExtent3d box;
    EXPECT_TRUE(bundle.GetExtent3d(box));
    ExpectBox(box, -1.0, 1.0, 2.0, 5.0);
    EXPECT_EQ(box.z.min, 0.0);
    EXPECT_EQ(box.z.max, 0.0);
}

TEST(ExplodeAlone, OnePartWithoutExtentSpoilsIt) {
    const PlaneBundle bundle("point 1,2; line 0,0 1,0");
    QnGeExtent2d box(SOME_BOX);
    EXPECT_FALSE(bundle.GetExtent2d(box));
    QnGeExtent3d space;
    EXPECT_FALSE(bundle.GetExtent3d(space));
}

TEST(ExplodeAlone, WithoutPartsThereIsNoExtent) {
    QnGeExtent2d box(SOME_BOX);
    EXPECT_FALSE(PlaneBundle("").GetExtent2d(box));
    ExpectBox(box, UNTOUCHED, UNTOUCHED, UNTOUCHED, UNTOUCHED);
}

TEST(ExplodeAlone, HitTestIsExactlyOnWhereAPartIsHit) {
    const PlaneBundle bundle(CORNER);
    EXPECT_TRUE(bundle.HitTest(QnGePoint(2.0, 0.0)) == HIT_ON);
    EXPECT_TRUE(bundle.HitTest(QnGePoint(4.0, 3.0)) == HIT_ON);
    EXPECT_TRUE(bundle.HitTest(QnGePoint(-2.0, 5.0)) == HIT_ON);
}

TEST(ExplodeAlone, HitTestKnowsNoSides) {
    const PlaneBundle bundle(CORNER);
    EXPECT_TRUE(bundle.HitTest(QnGePoint(2.0, 1.0)) == 0);
    const PlaneBundle ring("mline 0,0 4,0 4,4 0,4 close");
    EXPECT_TRUE(ring.HitTest(QnGePoint(2.0, 2.0)) == 0) << "inside of a part";
}

TEST(ExplodeAlone, HitTestOnARegionWithMoreBitsIsStillExactlyOn) {
    const PlaneBundle bundle("region 0,0 4,0 4,4 0,4");
    EXPECT_TRUE(bundle.HitTest(QnGePoint(0.0, 2.0)) == HIT_ON) << "the region itself answers 9 there";
    EXPECT_TRUE(bundle.HitTest(QnGePoint(2.0, 2.0)) == HIT_ON);
    EXPECT_TRUE(bundle.HitTest(QnGePoint(9.0, 2.0)) == 0);
}

TEST(ExplodeAlone, SubHitTestIsHitTestWithIndexZero) {
    const PlaneBundle bundle(CORNER);
    int index = 7;
    EXPECT_TRUE(bundle.SubHitTest(QnGePoint(4.0, 1.0), index) == HIT_ON);
    EXPECT_EQ(index, 0);
    index = 7;
    EXPECT_TRUE(bundle.SubHitTest(QnGePoint(9.0, 9.0), index) == 0);
    EXPECT_EQ(index, 0);
}

TEST(ExplodeAlone, PlanarObjectsIncludeThePointsThatHitThem) {
    const PlaneBundle bundle(CORNER);
    EXPECT_TRUE(bundle.IsInclude(QnGePoint2d(3.0, 0.0)));
    EXPECT_FALSE(bundle.IsInclude(QnGePoint2d(3.0, 1.0)));
}

TEST(ExplodeAlone, IncludesWhateverExplodesIntoIncludedParts) {
    const PlaneBundle bundle(CORNER);
    EXPECT_TRUE(bundle.IsInclude(PlaneBundle("point 1,0; point 4,2; point -2,5")));
    EXPECT_FALSE(bundle.IsInclude(PlaneBundle("point 1,0; point 4,2; point -2,6")));
}

TEST(ExplodeAlone, InclusionAsksTheMostDerivedClassAboutEachPart) {
    class IncludesSegments : public QnGeObject {
    public:
        bool IsInclude(const QnGeObject& other) const override {
            return other.IsClassOf(&QnGeLineSeg2d::s_classInfo) || QnGeObject::IsInclude(other);
        }
    };
    const IncludesSegments object;
    EXPECT_TRUE(object.IsInclude(*ParseGeo("mline 0,0 1,0 1,1")));
    EXPECT_FALSE(object.IsInclude(*ParseGeo("circle 0,0 r1")));
}

TEST(ExplodeAlone, KeptOddAtTheRootEvenAHitPointIsNotIncluded) {
    const RootBundle bundle(CORNER);
    EXPECT_TRUE(bundle.HitTest(QnGePoint(3.0, 0.0)) == HIT_ON);
    EXPECT_FALSE(bundle.IsInclude(QnGePoint2d(3.0, 0.0))) << "the point does not explode";
}

TEST(ExplodeAlone, KeptOddAnArgumentThatExplodesIntoNothingIsIncludedInEverything) {
    EXPECT_TRUE(PlaneBundle("").IsInclude(PlaneBundle("")));
    EXPECT_TRUE(QnGeObject().IsInclude(PlaneBundle("")));
    const QnGeMLine2d oneVertex(1, false);
    EXPECT_TRUE(PlaneBundle(CORNER).IsInclude(oneVertex));
}

TEST(ExplodeAlone, APlanarObjectIncludesNoPointOfSpaceAndTheOtherWayRound) {
    EXPECT_FALSE(PlaneBundle(CORNER).IsInclude(QnGePoint3d(3.0, 0.0, 0.0)));
    SpaceBundle space("");
    space.Add(new QnGePoint3d(1.0, 2.0, 3.0));
    EXPECT_TRUE(space.IsInclude(QnGePoint3d(1.0, 2.0, 3.0)));
    EXPECT_FALSE(space.IsInclude(QnGePoint3d(1.0, 2.0, 4.0)));
    EXPECT_FALSE(space.IsInclude(QnGePoint2d(1.0, 2.0, 3.0)));
}

TEST(ExplodeAlone, IntersectionGathersWhatThePartsFindInTheirOrder) {
    const PlaneBundle bundle("seg 0,0 4,0; point 3,1; seg 2,-2 2,2; seg 8,8 9,9");
    QnGeObjList found;
    EXPECT_TRUE(bundle.IntersectWith(*ParseGeo("line 1,-1 1,1"), found));
    ExpectGeoList(found, "point 2,0; point 3,1; point 2,0");
}

TEST(ExplodeAlone, IntersectionAppendsBehindWhatTheListHeld) {
    const PlaneBundle bundle("seg 0,0 4,0");
    QnGeObjList found;
    ParseGeoList("circle 0,0 r1", found);
    EXPECT_TRUE(bundle.IntersectWith(*ParseGeo("seg 1,-1 1,1"), found));
    ExpectGeoList(found, "circle 0,0 r1; point 1,0");
}

TEST(ExplodeAlone, IntersectionWithoutResultIsFalseAndLeavesTheList) {
    const PlaneBundle bundle("seg 0,0 4,0; point 1,0");
    QnGeObjList found;
    ParseGeoList("circle 0,0 r1", found);
    EXPECT_FALSE(bundle.IntersectWith(*ParseGeo("seg 0,5 1,5"), found));
    ExpectGeoList(found, "circle 0,0 r1");
}

TEST(ExplodeAlone, ABundleMayBeTheArgumentOfAPrimitive) {
    const PlaneBundle bundle("seg 0,0 4,0; point 1,0");
    QnGeObjList found;
    EXPECT_TRUE(ParseGeo("seg 1,-1 1,1")->IntersectWith(bundle, found));
    EXPECT_EQ(found.GetLength(), 2);
}

TEST(ExplodeAlone, FullExplodeGivesTheSmallestPartsAtomsFirst) {
    const PlaneBundle bundle("mline 0,0 1,0 1,1; point 5,5");
    QnGeObjList parts;
    ParseGeoList("circle 0,0 r1", parts);
    bundle.FullExplode(parts);
    ExpectGeoList(parts, "circle 0,0 r1; point 5,5; seg 0,0 1,0; seg 1,0 1,1");
}

TEST(ExplodeAlone, ExtentTestAsksTheBoxOfTheParts) {
    const PlaneBundle bundle(CORNER);
    EXPECT_TRUE(bundle.IsExtentInter(QnGeExtent2d(4.0, 9.0, 5.0, 9.0))) << "boxes touch";
    EXPECT_FALSE(bundle.IsExtentInter(QnGeExtent2d(4.1, 9.0, 0.0, 9.0)));
    EXPECT_TRUE(bundle.IsExtentInter(QnGeExtent3d(0.0, 1.0, 0.0, 1.0, -1.0, 1.0)));
    EXPECT_FALSE(bundle.IsExtentInter(QnGeExtent3d(0.0, 1.0, 0.0, 1.0, 1.0, 2.0)));
}

TEST(WithoutParts, EverythingFailsInItsWay) {
    const Atom<QnGeObject2d> atom;
    QnGeObjList list;
    EXPECT_FALSE(atom.Explode(list));
    EXPECT_TRUE(atom.HitTest(QnGePoint()) == 0);
    QnGeExtent2d box(SOME_BOX);
    EXPECT_FALSE(atom.GetExtent2d(box));
    ExpectBox(box, UNTOUCHED, UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_FALSE(atom.IntersectWith(*ParseGeo("seg 0,0 1,0"), list));
    EXPECT_FALSE(atom.IsInclude(*ParseGeo("seg 0,0 1,0")));
    EXPECT_TRUE(list.IsEmpty());
}

TEST(WithoutParts, ExtentTestsCannotExcludeIt) {
    const Atom<QnGeObject> atom;
    EXPECT_TRUE(atom.IsExtentInter(QnGeExtent2d(0.0, 1.0, 0.0, 1.0)));
    EXPECT_TRUE(atom.IsExtentInter(QnGeExtent3d(0.0, 1.0, 0.0, 1.0, 0.0, 1.0)));
}

TEST(WithoutParts, FullExplodeGivesOneClone) {
    Atom<QnGeObject> atom;
    atom.SetBits(6);
    QnGeObjList parts;
    atom.FullExplode(parts);
    ASSERT_EQ(parts.GetLength(), 1);
    EXPECT_TRUE(*parts.GetPData(0) == atom);
    EXPECT_NE(parts.GetPData(0), &atom);
}

TEST(WithoutParts, FullExplodeOfAnObjectWithoutCloneGivesNothing) {
    QnGeObjList parts;
    QnGeObject2d().FullExplode(parts);
    EXPECT_TRUE(parts.IsEmpty());
}

TEST(EntityFrame, TransToWcsAppliesTheInverseOfTheOwnSystem) {
    QnGePoint2d point(10.0, 21.0, 30.0);
    Framed().TransToWcs(&point);
    ExpectPoint(point, "1,0,0");
}

TEST(EntityFrame, TransToEcsAppliesTheOwnSystem) {
    QnGePoint2d point(1.0, 0.0, 0.0);
    Framed().TransToEcs(&point);
    ExpectPoint(point, "10,21,30");
}

TEST(EntityFrame, TheTwoAreInverse) {
    QnGePoint2d point(3.0, -4.0, 5.0);
    Framed().TransToEcs(&point);
    Framed().TransToWcs(&point);
    ExpectPoint(point, "3,-4,5");
}

TEST(EntityFrame, WithoutAnOwnSystemNothingHappens) {
    QnGePoint2d point(3.0, -4.0, 5.0);
    QnGeObject().TransToWcs(&point);
    QnGeObject().TransToEcs(&point);
    ExpectPoint(point, "3,-4,5", 0.0);
}

TEST(QnGeObject_Explode, TheDefaultsPassOverPartsThatAreNull) {
    PlaneBundle bundle("seg 0,0 4,0");
    bundle.Add(nullptr);
    bundle.Add(new QnGeLineSeg2d(QnGePoint(4.0, 0.0), QnGePoint(4.0, 3.0)));
    bundle.Add(nullptr);

    EXPECT_EQ(bundle.HitTest(QnGePoint(4.0, 2.0)), HIT_ON);
    EXPECT_EQ(bundle.HitTest(QnGePoint(9.0, 2.0)), QnBitData());
    EXPECT_TRUE(bundle.IsInclude(QnGePoint2d(4.0, 1.0)));
    EXPECT_TRUE(QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0)).IsInclude(PlaneBundle("seg 1,0 2,0")));

    QnGeObjList met;
    EXPECT_TRUE(bundle.IntersectWith(QnGeLineSeg2d(QnGePoint(3.0, 1.0), QnGePoint(5.0, 1.0)), met));
    EXPECT_EQ(met.GetLength(), 1);

    QnGePoint nearest;
    EXPECT_TRUE(bundle.GetClosestPoint2d(QnGePoint(6.0, 2.0), nearest));
    EXPECT_EQ(nearest, QnGePoint(4.0, 2.0));
    EXPECT_TRUE(bundle.GetClosestPoint(QnGePoint(6.0, 2.0), nearest));
    EXPECT_EQ(nearest, QnGePoint(4.0, 2.0));

    QnGeExtent2d box(SOME_BOX);
    EXPECT_TRUE(bundle.GetExtent2d(box));
    ExpectBox(box, 0.0, 4.0, 0.0, 3.0);
    QnGeExtent3d space;
    EXPECT_TRUE(bundle.GetExtent3d(space));
    ExpectBox(space, 0.0, 4.0, 0.0, 3.0);
}

TEST(QnGeObject_Explode, PartsThatAreAllNullGiveNoExtent) {
    PlaneBundle bundle("");
    bundle.Add(nullptr);
    QnGeExtent2d box(SOME_BOX);
    EXPECT_FALSE(bundle.GetExtent2d(box));
}
