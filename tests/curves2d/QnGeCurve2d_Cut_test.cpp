// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>

#include "CurveTesting.h"
#include "objects3d/QnGeLineSeg3d.h"
#include "regions/QnGePolygon2d.h"
#include "support/ExpectGeo.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

using namespace curve_testing;

namespace {

struct Pieces {
    QnGeObjList in, out, on;
};

void ExpectCut(const char* knife, const char* object, const char* in, const char* out, const char* on) {
    SCOPED_TRACE(std::string(object) + " cut by " + knife);
    Pieces pieces;
    ParseGeoAs<QnGeCurve2d>(knife)->Cut(*ParseGeo(object), pieces.in, pieces.out, pieces.on);
    ExpectGeoList(pieces.in, in);
    ExpectGeoList(pieces.out, out);
    ExpectGeoList(pieces.on, on);
}

void ExpectNothing(const QnGeCurve2d& knife, const QnGeObject& object) {
    Pieces pieces;
    knife.Cut(object, pieces.in, pieces.out, pieces.on);
    EXPECT_TRUE(pieces.in.IsEmpty());
    EXPECT_TRUE(pieces.out.IsEmpty());
    EXPECT_TRUE(pieces.on.IsEmpty());
}

}  // namespace

TEST(QnGeCurve2d_Cut, SegmentThroughACircle) {
    ExpectCut("circle 0,0 r2", "seg -4,0 4,0", "seg -2,0 2,0", "seg -4,0 -2,0; seg 2,0 4,0", "");
    ExpectCut("circle 0,0 r2 cw", "seg 4,0 -4,0", "seg 2,0 -2,0", "seg 4,0 2,0; seg -2,0 -4,0", "");
    ExpectCut("circle 0,0 r2", "seg 0,0 4,0", "seg 0,0 2,0", "seg 2,0 4,0", "");
}

TEST(QnGeCurve2d_Cut, ObjectThatDoesNotMeetAClosedKnife) {
    ExpectCut("circle 0,0 r2", "seg -1,0 1,0", "seg -1,0 1,0", "", "");
    ExpectCut("circle 0,0 r2", "seg 3,0 4,0", "", "seg 3,0 4,0", "");
    ExpectCut("circle 0,0 r5", "mline 0,0 1,0 1,1 close", "mline 0,0 1,0 1,1 close", "", "");
}

TEST(QnGeCurve2d_Cut, UncutObjectKeepsItsFlags) {
    Pieces pieces;
    auto seg = ParseGeoAs<QnGeLineSeg2d>("seg -1,0 1,0");
    seg->SetBits(0x700);
    ParseGeoAs<QnGeCurve2d>("circle 0,0 r2")->Cut(*seg, pieces.in, pieces.out, pieces.on);
    ASSERT_EQ(pieces.in.GetLength(), 1);
    EXPECT_EQ(pieces.in.GetPData(0)->GetBits(), 0x700U);
    EXPECT_NE(pieces.in.GetPData(0), seg.get());
}

TEST(QnGeCurve2d_Cut, KnivesOfTheLineFamilySortBySide) {
    ExpectCut("line 0,0 1,0", "seg 0,-1 0,1", "seg 0,0 0,1", "seg 0,-1 0,0", "");
    ExpectCut("line 0,0 -1,0", "seg 0,-1 0,1", "seg 0,-1 0,0", "seg 0,0 0,1", "");
    ExpectCut("ray 0,0 1,0", "seg 1,-1 1,1", "seg 1,0 1,1", "seg 1,-1 1,0", "");
    ExpectCut("ray reversed 0,0 1,0", "seg 1,-1 1,1", "seg 1,-1 1,0", "seg 1,0 1,1", "");
    ExpectCut("seg 0,0 2,0", "seg 1,-1 1,1", "seg 1,0 1,1", "seg 1,-1 1,0", "");
    ExpectCut("seg 0,0 2,0", "seg 5,1 5,2", "seg 5,1 5,2", "", "");
    ExpectCut("seg 0,0 2,0", "seg 5,-1 5,-2", "", "seg 5,-1 5,-2", "");
}

TEST(QnGeCurve2d_Cut, PiecesWithoutASideGoToIn) {
    ExpectCut("seg 0,0 2,0", "seg 5,0 6,0", "seg 5,0 6,0", "", "");
    ExpectCut("seg 0,0 4,0", "seg -1,0 5,0", "seg -1,0 0,0; seg 4,0 5,0", "", "seg 0,0 4,0");
    Pieces pieces;
    const PathCurve open({QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0), QnGePoint(4.0, 4.0)});
    open.Cut(*ParseGeo("seg 2,-1 2,1"), pieces.in, pieces.out, pieces.on);
    ExpectGeoList(pieces.in, "seg 2,-1 2,0; seg 2,0 2,1");
    EXPECT_TRUE(pieces.out.IsEmpty());
    EXPECT_TRUE(pieces.on.IsEmpty());
}

TEST(QnGeCurve2d_Cut, WhatLiesOnTheKnifeGoesToOn) {
    ExpectCut("seg 0,0 4,0", "seg 1,0 2,0", "", "", "seg 1,0 2,0");
    ExpectCut("line 0,0 1,0", "seg 2,0 1,0", "", "", "seg 2,0 1,0");
    ExpectCut("circle 0,0 r2", "arc 0,0 r2 from 0 sweep 1", "", "", "arc 0,0 r2 from 0 sweep 1");
}

TEST(QnGeCurve2d_Cut, OverlapWithOneEndCutsThere) {
    ExpectCut("line 0,0 1,0", "ray 3,0 1,0", "", "", "ray 3,0 1,0");
    ExpectCut("ray 3,0 1,0", "line 0,0 1,0", "ray 3,0 -1,0", "", "ray 3,0 1,0");
    ExpectCut("ray 2,0 1,0", "ray reversed 0,0 1,0", "seg 2,0 0,0", "", "ray reversed 2,0 1,0");
    ExpectCut("ray 0,0 1,0", "ray reversed 2,0 1,0", "", "", "ray reversed 2,0 1,0");
}

TEST(QnGeCurve2d_Cut, OverlapWithoutEndsIsOnAsAWhole) {
    ExpectCut("line 0,0 1,0", "line 5,0 -2,0", "", "", "line 5,0 -2,0");
    ExpectCut("circle 0,0 r2", "circle 0,0 r2 cw", "", "", "circle 0,0 r2 cw");
}

TEST(QnGeCurve2d_Cut, PiecesRunAlongTheObject) {
    ExpectCut("mline 0,0 10,0 10,4 8,4 8,2 6,2 6,4 0,4 close", "seg -1,3 11,3", "seg 0,3 6,3; seg 8,3 10,3",
              "seg -1,3 0,3; seg 6,3 8,3; seg 10,3 11,3", "");
    ExpectCut("mline 0,0 10,0 10,4 8,4 8,2 6,2 6,4 0,4 close", "seg 11,3 -1,3", "seg 10,3 8,3; seg 6,3 0,3",
              "seg 11,3 10,3; seg 8,3 6,3; seg 0,3 -1,3", "");
}

TEST(QnGeCurve2d_Cut, ThePieceOverTheSeamOfAClosedObjectComesLast) {
    ExpectCut("line 2,0 0,1", "mline 0,0 4,0 4,4 0,4 close", "mline 2,4 0,4 0,0 2,0", "mline 2,0 4,0 4,4 2,4", "");
    ExpectCut("circle 2,0 r1", "mline 0,0 4,0 4,4 0,4 close", "mline 1,0 3,0", "mline 3,0 4,0 4,4 0,4 0,0 1,0", "");
}

TEST(QnGeCurve2d_Cut, AClosedObjectTouchedOnceIsOpened) {
    ExpectCut("line 0,-1 1,1", "mline 0,-1 1,-1 1,-3 close", "", "mline 0,-1 1,-1 1,-3 0,-1", "");
}

TEST(QnGeCurve2d_Cut, CrossingAtAVertexMakesNoEmptyPiece) {
    ExpectCut("line 4,-1 0,1", "mline 0,0 4,0 8,2", "mline 0,0 4,0", "mline 4,0 8,2", "");
}

TEST(QnGeCurve2d_Cut, ByAChainWithTheDefaultHitTest) {
    Pieces pieces;
    SquarePath().Cut(*ParseGeo("seg -1,0 5,5"), pieces.in, pieces.out, pieces.on);
    ASSERT_EQ(pieces.in.GetLength(), 1);
    ASSERT_EQ(pieces.out.GetLength(), 2);
    // y = 5 (x + 1) / 6: through x = 0 at 5/6, through y = 4 at x = 3.8.
    EXPECT_NEAR(static_cast<const QnGeLineSeg2d*>(pieces.in.GetPData(0))->GetBasePoint().y, 5.0 / 6.0, 1e-12);
    EXPECT_NEAR(static_cast<const QnGeLineSeg2d*>(pieces.in.GetPData(0))->GetEndPoint().x, 3.8, 1e-12);
    EXPECT_TRUE(pieces.on.IsEmpty());
    pieces = Pieces();
    SquarePath().Cut(*ParseGeo("seg 1,0 5,0"), pieces.in, pieces.out, pieces.on);
    ExpectGeoList(pieces.on, "seg 1,0 4,0");
    ExpectGeoList(pieces.out, "seg 4,0 5,0");
    EXPECT_TRUE(pieces.in.IsEmpty());
}

TEST(QnGeCurve2d_Cut, RegionIsCutIntoLeftAndRight) {
    Pieces pieces;
    const auto square = ParseGeoAs<QnGePolygon2d>("region 0,0 4,0 4,4 0,4");
    ParseGeoAs<QnGeCurve2d>("line 1,0 0,1")->Cut(*square, pieces.in, pieces.out, pieces.on);
    ASSERT_EQ(pieces.in.GetLength(), 1);
    ASSERT_EQ(pieces.out.GetLength(), 1);
    EXPECT_DOUBLE_EQ(static_cast<const QnGePolygon2d*>(pieces.in.GetPData(0))->Area(), 4.0);
    EXPECT_DOUBLE_EQ(static_cast<const QnGePolygon2d*>(pieces.out.GetPData(0))->Area(), 12.0);
    EXPECT_TRUE(pieces.on.IsEmpty());
    ExpectNothing(*ParseGeoAs<QnGeCurve2d>("circle 0,0 r1"), *square);
}

TEST(QnGeCurve2d_Cut, PointGoesWhereItLies) {
    ExpectCut("circle 0,0 r2", "point 2,0,5", "", "", "point 2,0,5");
    ExpectCut("circle 0,0 r2", "point 1,0", "point 1,0", "", "");
    ExpectCut("circle 0,0 r2", "point 3,0", "", "point 3,0", "");
    ExpectCut("line 0,0 1,0", "point 3,1", "point 3,1", "", "");
    ExpectCut("line 0,0 1,0", "point 3,-1", "", "point 3,-1", "");
    ExpectCut("ray 0,0 1,0", "point -3,0", "point -3,0", "", "");
}

TEST(QnGeCurve2d_Cut, PointKeepsItsFlags) {
    Pieces pieces;
    QnGePoint2d point(2.0, 0.0, 5.0);
    point.SetBits(0x700);
    ParseGeoAs<QnGeCurve2d>("circle 0,0 r2")->Cut(point, pieces.in, pieces.out, pieces.on);
    ASSERT_EQ(pieces.on.GetLength(), 1);
    EXPECT_EQ(pieces.on.GetPData(0)->GetBits(), 0x700U);
}

TEST(QnGeCurve2d_Cut, OtherObjectsAreLeftOut) {
    const auto knife = ParseGeoAs<QnGeCurve2d>("circle 0,0 r2");
    ExpectNothing(*knife, QnGeLineSeg3d());
    ExpectNothing(*knife, QnGePoint3d(0.0, 0.0, 0.0));
    ExpectNothing(*knife, QnGeObject());
    ExpectNothing(*knife, QnGeObject2d());
}

TEST(QnGeCurve2d_Cut, PiecesThatDoNotExistAreLeftOut) {
    class PiecelessCurve : public PathCurve {
    public:
        using PathCurve::PathCurve;
        QnGeCurve2d* GetSubCurve(double, double) const override { return nullptr; }
    };
    const auto knife = ParseGeoAs<QnGeCurve2d>("circle 0,0 r2");
    ExpectNothing(*knife, PiecelessCurve({QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0)}));
    ExpectNothing(*knife, QnGeCurve2d());  // it is not met and has no clone
}

TEST(QnGeCurve2d_Cut, ACrossingWithoutParameterOnTheObjectCutsAtZero) {
    class ForgetfulCurve : public PathCurve {
    public:
        using PathCurve::PathCurve;
        bool GetPaFromPt(const QnGePoint&, double&) const override { return false; }
    };
    Pieces pieces;
    const ForgetfulCurve object({QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0)});
    ParseGeoAs<QnGeCurve2d>("line 1,-1 0,1")->Cut(object, pieces.in, pieces.out, pieces.on);
    EXPECT_TRUE(pieces.in.IsEmpty());
    ASSERT_EQ(pieces.out.GetLength(), 1) << "one piece, the whole, sorted by its middle";
    EXPECT_EQ(static_cast<const PathCurve*>(pieces.out.GetPData(0))->Length(), 4.0);
    EXPECT_TRUE(pieces.on.IsEmpty());
}

TEST(QnGeCurve2d_Cut, ListsKeepWhatTheyHold) {
    QnGeObjList all;
    all.Append(ParseGeo("point 9,9").release());
    ParseGeoAs<QnGeCurve2d>("circle 0,0 r2")->Cut(*ParseGeo("seg -4,0 4,0"), all, all, all);
    ExpectGeoList(all, "point 9,9; seg -4,0 -2,0; seg -2,0 2,0; seg 2,0 4,0");
}

TEST(QnGeCurve2d_Cut, KnifeAndObjectStayAsTheyWere) {
    Pieces pieces;
    const auto knife = ParseGeo("mline 0,0 4,0 4,4 0,4 close");
    const auto object = ParseGeo("mline -1,2 5,2 5,3 -1,3");
    static_cast<const QnGeCurve2d&>(*knife).Cut(*object, pieces.in, pieces.out, pieces.on);
    EXPECT_EQ(ToText(*knife), "mline 0,0 4,0 4,4 0,4 close");
    EXPECT_EQ(ToText(*object), "mline -1,2 5,2 5,3 -1,3");
    ExpectGeoList(pieces.in, "mline 0,2 4,2; mline 4,3 0,3");
    ExpectGeoList(pieces.out, "mline -1,2 0,2; mline 4,2 5,2 5,3 4,3; mline 0,3 -1,3");
}
