// SPDX-License-Identifier: Apache-2.0
// Making, copying, ownership and the typed cursors of object lists.
#include "frame/QnGeObjList.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/ProbeObject.h"
#include "objects3d/QnGeCurve3d.h"
#include "objects3d/QnGeFace3d.h"
#include "objects3d/QnGeSolid3d.h"
#include "regions/QnGePolygon2d.h"
#include "support/ContainerCheckers.h"
#include "support/ExpectGeo.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

static_assert(!std::is_convertible_v<const QnGeObject&, QnGeObjList>, "no object is cloned by being passed");
static_assert(std::is_constructible_v<QnGeObjList, const QnGeObject&>);
static_assert(!std::is_base_of_v<QnGeObject, QnGeObjList>, "a list of objects is no object");

TEST(QnGeObjList, IsEmptyWhenNew) {
    QnGeObjList list;
    EXPECT_EQ(list.GetLength(), 0);
    EXPECT_TRUE(list.IsOut());
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
}

TEST(QnGeObjList, OfOneObjectHoldsAClone) {
    const LiveScope scope;
    const ProbeObject probe('a');
    const QnGeObjList list(probe);
    EXPECT_EQ(Names(list), "a");
    EXPECT_NE(list.GetPData(0), &probe);
    EXPECT_EQ(scope.Count(), 2);
}

TEST(QnGeObjList, OwnsItsObjects) {
    const LiveScope scope;
    {
        QnGeObjList list;
        Fill(list, "abc");
        EXPECT_EQ(scope.Count(), 3);
    }
    EXPECT_EQ(scope.Count(), 0);
}

TEST(QnGeObjList, CopyClonesAndOutlivesTheFirst) {
    const LiveScope scope;
    auto first = std::make_unique<QnGeObjList>();
    Fill(*first, "ab.c");
    QnGeObjList copy(*first);
    EXPECT_EQ(scope.Count(), 6);
    EXPECT_NE(copy.GetPData(0), first->GetPData(0));
    first.reset();
    EXPECT_EQ(Names(copy), "ab.c");
    EXPECT_EQ(scope.Count(), 3);
    EXPECT_EQ(CheckList<QnGeObject*>(copy), "");
}

TEST(QnGeObjList, CopyKeepsThePlaceOfAnObjectThatCannotBeCloned) {
    const LiveScope scope;
    QnGeObjList first;
    Fill(first, "abc");
    static_cast<ProbeObject*>(first.GetPData(1))->Seal();
    const QnGeObjList copy(first);
    EXPECT_EQ(Names(copy), "a.c");
}

TEST(QnGeObjList, AssignmentDeletesTheOldObjectsAndClones) {
    const LiveScope scope;
    QnGeObjList first;
    Fill(first, "ab");
    QnGeObjList second;
    Fill(second, "xyz.");
    second = first;
    EXPECT_EQ(Names(second), "ab");
    EXPECT_EQ(Names(first), "ab");
    EXPECT_NE(second.GetPData(0), first.GetPData(0));
    EXPECT_EQ(scope.Count(), 4);
}

TEST(QnGeObjList, AssignmentToItselfChangesNothing) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "ab");
    const QnGeObject* const head = list.GetPData(0);
    const QnGeObjList& same = list;
    list = same;
    EXPECT_EQ(Names(list), "ab");
    EXPECT_EQ(list.GetPData(0), head);
}

TEST(QnGeObjList, ConbineMovesTheObjectsOver) {
    const LiveScope scope;
    QnGeObjList results;
    Fill(results, "a");
    {
        QnGeObjList local;
        Fill(local, "bc");
        EXPECT_EQ(results.Conbine(local, 0), 3);
        EXPECT_TRUE(local.IsEmpty());
    }
    EXPECT_EQ(Names(results), "abc");
    EXPECT_EQ(CheckList<QnGeObject*>(results), "");
}

TEST(QnGeObjList, TakeOffHandsTheObjectOut) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "abc");
    const std::unique_ptr<QnGeObject> taken(list.TakeOff(1));
    EXPECT_EQ(static_cast<const ProbeObject*>(taken.get())->Name(), 'b');
    EXPECT_EQ(Names(list), "ac");
}

TEST(QnGeObjList, TypedCursorsGiveTheObjectAtTheCursor) {
    QnGeObjList list;
    list.Append(new QnGeLineSeg2d(QnGePoint(), QnGePoint(1.0, 0.0)));
    list.Append(new QnGePolygon2d(0));
    list.Append(new QnGePoint3d());
    list.Append(new QnGeCurve3d());
    list.Append(new QnGeFace3d());
    list.Append(new QnGeSolid3d());
    list.MoveTo(0);
    EXPECT_EQ(&list.GetCurCurve2D(), list.GetPData(0));
    EXPECT_EQ(&list.GetCurCurveSeg2D(), list.GetPData(0));
    EXPECT_EQ(&list.GetCurObject2D(), list.GetPData(0));
    EXPECT_EQ(list.GetCurCurve2D().Length(), 1.0);
    list.MoveTo(1);
    EXPECT_EQ(&list.GetCurRegion2D(), list.GetPData(1));
    list.MoveTo(2);
    EXPECT_EQ(&list.GetCurObject3D(), list.GetPData(2));
    list.MoveTo(3);
    EXPECT_EQ(&list.GetCurCurve3D(), list.GetPData(3));
    list.MoveTo(4);
    EXPECT_EQ(&list.GetCurFace3D(), list.GetPData(4));
    list.MoveTo(5);
    EXPECT_EQ(&list.GetCurSolid(), list.GetPData(5));
}

TEST(QnGeObjList, KeptOddObjectsAreFoundByTheirFlagWords) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 1,0; point 5,5", list);
    EXPECT_EQ(list.FindData(*ParseGeo("circle 9,9 r4"), 0, -1), 0);
}

TEST(QnGeObjList, SortsByClassIdAndKeepsTheOrderWithinAClass) {
    QnGeObjList list;
    ParseGeoList("circle 0,0 r1; seg 9,9 1,0; point 5,5; seg 0,0 1,0; line 0,0 1,0", list);
    list.Sort(true);
    ExpectGeoList(list, "point 5,5; line 0,0 1,0; seg 9,9 1,0; seg 0,0 1,0; circle 0,0 r1");
}
