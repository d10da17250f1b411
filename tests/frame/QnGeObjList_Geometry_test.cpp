// SPDX-License-Identifier: Apache-2.0
// Whole-list operations: parts, conversions, extents, transformation, intersection, cutting.
#include <gtest/gtest.h>

#include <string>

#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeEArc2d.h"
#include "frame/Bundle.h"
#include "frame/ProbeObject.h"
#include "polylines/QnGeMLine2d.h"
#include "support/ContainerCheckers.h"
#include "support/ExpectGeo.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

namespace {

constexpr double UNTOUCHED = -777.25;

/// The classes of the entries in order, `-` for an empty one.
std::string Classes(const QnGeObjList& list) {
    std::string text;
    for (QnGeObject* const* p = list.GetFirst(); p != nullptr; p = list.GetNext(p)) {
        text += (text.empty() ? "" : " ") + (*p == nullptr ? "-" : std::to_string((*p)->GetClassID()));
    }
    return text;
}

/// An object that says it exploded, or that it did not, and leaves a part in either case.
class Sloppy : public QnGeObject {
public:
    explicit Sloppy(bool answer) : m_answer(answer) {}
    QnGeObject* Clone() const override { return new Sloppy(*this); }
    bool Explode(QnGeObjList& parts) const override {
        parts.Append(new QnGePoint2d(1.0, 2.0));
        return m_answer;
    }

private:
    bool m_answer;
};

}  // namespace

TEST(ListFullExplode, PartsGoBehindWhatIsWholeAlready) {
    QnGeObjList list;
    ParseGeoList("mline 0,0 1,0 1,1; point 5,5; mline 2,0 3,0; circle 0,0 r1", list);
    list.FullExplode();
    ExpectGeoList(list, "point 5,5; circle 0,0 r1; seg 0,0 1,0; seg 1,0 1,1; seg 2,0 3,0");
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
}

TEST(ListFullExplode, GoesDownToWhatDoesNotExplode) {
    QnGeObjList list;
    list.Append(ParseGeo("point 9,9").release());
    list.Append(new PlaneBundle("mline 0,0 1,0 1,1; point 5,5"));
    list.FullExplode();
    ExpectGeoList(list, "point 9,9; point 5,5; seg 0,0 1,0; seg 1,0 1,1");
}

TEST(ListFullExplode, AnObjectThatExplodesIntoNothingDisappears) {
    QnGeObjList list;
    list.Append(new QnGeMLine2d(1, false));
    list.Append(new QnGeMLine2d(0, false));
    list.FullExplode();
    EXPECT_EQ(Classes(list), "116") << "without a vertex there is no explosion";
}

TEST(ListFullExplode, WhatAFailedExplosionLeftIsForgotten) {
    QnGeObjList list;
    list.Append(new Sloppy(false));
    list.Append(new Sloppy(true));
    list.FullExplode();
    EXPECT_EQ(Classes(list), "100 102");
}

TEST(ListFullExplode, EmptyEntriesAndListsAreLeftAlone) {
    QnGeObjList list;
    list.FullExplode();
    EXPECT_TRUE(list.IsEmpty());
    list.Append(nullptr);
    ParseGeoList("mline 0,0 1,0", list);
    list.FullExplode();
    EXPECT_EQ(Classes(list), "- 113");
}

TEST(ListConvert, ToSpaceReplacesPlanarObjectsOnly) {
    QnGeObjList list;
    list.Append(new QnGePoint2d(1.0, 2.0, 3.0));
    list.Append(new QnGePoint3d(4.0, 5.0, 6.0));
    list.ConvertTo3d();
    EXPECT_EQ(Classes(list), "1002 1002");
    ExpectPoint(*static_cast<const QnGePoint3d*>(list.GetPData(0)), "1,2,3", 0.0);
}

TEST(ListConvert, KeptOddToSpaceKeepsThePlaceOfWhatHasNoForm) {
    const LiveScope scope;
    QnGeObjList list;
    list.Append(new ProbeObject('a'));
    list.Append(new QnGePoint2d());
    list.Append(new ProbeObject('b'));
    list.Append(nullptr);
    list.ConvertTo3d();
    EXPECT_EQ(Classes(list), "- 1002 - -");
    EXPECT_EQ(scope.Count(), 0);
}

TEST(ListConvert, KeptOddToThePlanDropsThePlaceOfWhatHasNoForm) {
    QnGeObjList list;
    list.Append(new QnGeObject3d());
    list.Append(new QnGePoint3d(4.0, 5.0, 6.0));
    list.Append(new QnGeObject3d());
    list.Append(new QnGeObject3d());
    ParseGeoList("seg 0,0 1,0", list);
    list.Append(new QnGeObject3d());
    list.ConvertTo2d();
    EXPECT_EQ(Classes(list), "102 113");
    ExpectGeo(list.GetPData(0), "point 4,5,6", 0.0);
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
}

TEST(ListConvert, ToThePlanKeepsEmptyEntries) {
    QnGeObjList list;
    list.Append(nullptr);
    list.Append(new QnGePoint3d());
    list.ConvertTo2d();
    EXPECT_EQ(Classes(list), "- 102");
}

TEST(ListReverse, TurnsEachCurveInItsPlace) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; circle 0,0 r1; mline 0,0 1,0 1,1", list);
    list.Append(nullptr);
    list.ReverseCurve2D();
    delete list.TakeOffTail();
    ExpectGeoList(list, "seg 4,0 0,0; circle 0,0 r1 cw; mline 1,1 1,0 0,0");
}

TEST(ListTransform, MovesEachObject) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; point 1,1", list);
    list.Append(nullptr);
    QnGeMatrix matrix;
    matrix.CreateMoveMatrix(10.0, 20.0);
    list.TransformBy(matrix);
    EXPECT_EQ(list.TakeOffTail(), nullptr);
    ExpectGeoList(list, "seg 10,20 14,20; point 11,21");
}

TEST(ListExtent, IsTheHullOfTheObjects) {
    QnGeObjList list;
    ParseGeoList("seg 0,1 4,0; point -2,3,8; circle 5,5 r1", list);
    QnGeExtent2d box;
    EXPECT_TRUE(list.GetExtent2d(box));
    EXPECT_EQ(box.x.min, -2.0);
    EXPECT_EQ(box.x.max, 6.0);
    EXPECT_EQ(box.y.min, 0.0);
    EXPECT_EQ(box.y.max, 6.0);
    QnGeExtent3d space;
    EXPECT_TRUE(list.GetExtent3d(space));
    EXPECT_EQ(space.x.min, -2.0);
    EXPECT_EQ(space.z.min, 0.0);
    EXPECT_EQ(space.z.max, 8.0);
}

TEST(ListExtent, OfTheFirstObjectReplacesWhatWasThere) {
    QnGeObjList list;
    ParseGeoList("point 1,2", list);
    QnGeExtent2d box(-100.0, 100.0, -100.0, 100.0);
    EXPECT_TRUE(list.GetExtent2d(box));
    EXPECT_EQ(box.x.min, 1.0);
    EXPECT_EQ(box.x.max, 1.0);
}

TEST(ListExtent, OfAnEmptyListIsFalse) {
    QnGeObjList list;
    QnGeExtent2d box(UNTOUCHED, UNTOUCHED, UNTOUCHED, UNTOUCHED);
    QnGeExtent3d space;
    EXPECT_FALSE(list.GetExtent2d(box));
    EXPECT_FALSE(list.GetExtent3d(space));
    EXPECT_EQ(box.x.min, UNTOUCHED);
    list.Append(nullptr);
    EXPECT_FALSE(list.GetExtent2d(box)) << "only empty entries";
    EXPECT_FALSE(list.GetExtent3d(space));
    EXPECT_EQ(box.x.min, UNTOUCHED);
}

TEST(ListExtent, EmptyEntriesCountAsAbsent) {
    QnGeObjList list;
    list.Append(nullptr);
    ParseGeoList("point 1,2", list);
    list.Append(nullptr);
    ParseGeoList("point 3,1", list);
    QnGeExtent2d box;
    EXPECT_TRUE(list.GetExtent2d(box));
    EXPECT_EQ(box.x.min, 1.0);
    EXPECT_EQ(box.x.max, 3.0);
    EXPECT_EQ(box.y.min, 1.0);
}

TEST(ListExtent, OneObjectWithoutExtentSpoilsItAndLeavesWhatWasMerged) {
    QnGeObjList list;
    ParseGeoList("point 1,2; point 3,4; line 0,0 1,0; point 9,9", list);
    QnGeExtent2d box;
    EXPECT_FALSE(list.GetExtent2d(box));
    EXPECT_EQ(box.x.min, 1.0);
    EXPECT_EQ(box.x.max, 3.0);
    QnGeExtent3d space;
    EXPECT_FALSE(list.GetExtent3d(space));
    EXPECT_EQ(space.y.max, 4.0);
}

TEST(ListExtent, OfOneLineIsWhateverTheLineAnswers) {
    QnGeObjList list;
    ParseGeoList("line 0,0 1,0", list);
    QnGeExtent2d ofList;
    QnGeExtent2d ofLine;
    EXPECT_EQ(list.GetExtent2d(ofList), list.GetPData(0)->GetExtent2d(ofLine));
}

TEST(ListIntersect, TheOtherObjectIsTheReceiver) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; seg 1,0 9,0", list);
    QnGeObjList found;
    const auto other = ParseGeo("seg 6,0 2,0");
    list.IntersectWith(*other, found);
    QnGeObjList expected;
    other->IntersectWith(*list.GetPData(0), expected);
    other->IntersectWith(*list.GetPData(1), expected);
    EXPECT_EQ(ToText(found), ToText(expected));
    EXPECT_EQ(found.GetLength(), 2);
}

TEST(ListIntersect, ResultsPileUpInTheOrderOfTheElements) {
    QnGeObjList list;
    ParseGeoList("seg 3,-1 3,1; seg 7,7 8,8; seg 1,-1 1,1; seg 3,-1 3,1", list);
    list.InsertHead(nullptr);
    QnGeObjList found;
    ParseGeoList("point 0,9", found);
    list.IntersectWith(*ParseGeo("seg 0,0 4,0"), found);
    ExpectGeoList(found, "point 0,9; point 3,0; point 1,0; point 3,0");
}

TEST(ListCutBy, EachElementIsCutByTheCurveAsTheKnife) {
    QnGeObjList list;
    ParseGeoList("seg 0,-1 0,1; seg 0,5 1,5; seg 0,-5 1,-5; seg 2,0 3,0; point 8,8", list);
    list.Append(nullptr);
    const auto knife = ParseGeoAs<QnGeCurve2d>("line 0,0 1,0");
    QnGeObjList in;
    QnGeObjList out;
    QnGeObjList on;
    list.CutBy(*knife, in, out, on);
    ExpectGeoList(in, "seg 0,0 0,1; seg 0,5 1,5; point 8,8");
    ExpectGeoList(out, "seg 0,-1 0,0; seg 0,-5 1,-5");
    EXPECT_EQ(on.GetLength(), 1);
    EXPECT_EQ(list.GetLength(), 6) << "what is cut stays";
}

TEST(ListCutBy, PiecesGoBehindWhatTheListsHeld) {
    QnGeObjList list;
    ParseGeoList("seg 0,-1 0,1", list);
    QnGeObjList all;
    ParseGeoList("point 7,7", all);
    list.CutBy(*ParseGeoAs<QnGeCurve2d>("line 0,0 1,0"), all, all, all);
    ExpectGeoList(all, "point 7,7; seg 0,-1 0,0; seg 0,0 0,1");
}

TEST(ListCutBy, TheListItselfMayTakeThePieces) {
    QnGeObjList list;
    ParseGeoList("seg 0,-1 0,1; seg 0,5 1,5", list);
    QnGeObjList out;
    QnGeObjList on;
    list.CutBy(*ParseGeoAs<QnGeCurve2d>("line 0,0 1,0"), list, out, on);
    ExpectGeoList(list, "seg 0,-1 0,1; seg 0,5 1,5; seg 0,0 0,1; seg 0,5 1,5");
    ExpectGeoList(out, "seg 0,-1 0,0");
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
}
