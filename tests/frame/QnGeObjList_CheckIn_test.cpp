// SPDX-License-Identifier: Apache-2.0
// Lists that are kept free of objects which another one covers.
#include <gtest/gtest.h>

#include <memory>

#include "curves2d/QnGeLineSeg2d.h"
#include "frame/ProbeObject.h"
#include "support/ContainerCheckers.h"
#include "support/ExpectGeo.h"

TEST(CheckIn, AppendsWhatNothingCovers) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "ab");
    EXPECT_TRUE(list.CheckIn(new ProbeObject('c')));
    EXPECT_EQ(Names(list), "abc");
    EXPECT_EQ(list.GetCur(), 2) << "the cursor is on the new element";
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
}

TEST(CheckIn, RefusesWhatAnElementCoversAndLeavesItToTheCaller) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "a");
    list.Append(new ProbeObject('b', "x"));
    Fill(list, "c");
    const auto object = std::make_unique<ProbeObject>('x');
    EXPECT_FALSE(list.CheckIn(object.get()));
    EXPECT_EQ(Names(list), "abc");
    EXPECT_EQ(list.GetCur(), 1) << "the cursor is on the covering element";
}

TEST(CheckIn, DeletesWhatTheNewObjectCovers) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "abcd");
    EXPECT_TRUE(list.CheckIn(new ProbeObject('x', "acd")));
    EXPECT_EQ(Names(list), "bx");
    EXPECT_EQ(scope.Count(), 2);
    EXPECT_EQ(list.GetCur(), 1);
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
}

TEST(CheckIn, WhatWasDroppedBeforeTheCoveringElementStaysDropped) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "ab");
    list.Append(new ProbeObject('c', "x"));
    Fill(list, "d");
    const auto object = std::make_unique<ProbeObject>('x', "ad");
    EXPECT_FALSE(list.CheckIn(object.get()));
    EXPECT_EQ(Names(list), "bcd") << "a was deleted, d was never reached";
    EXPECT_EQ(list.GetCur(), 1);
}

TEST(CheckIn, OfMutualCoverTheFirstStays) {
    const LiveScope scope;
    QnGeObjList list;
    list.Append(new ProbeObject('a', "x"));
    const auto object = std::make_unique<ProbeObject>('x', "a");
    EXPECT_FALSE(list.CheckIn(object.get()));
    EXPECT_EQ(Names(list), "a");
}

TEST(CheckIn, NullIsRefused) {
    QnGeObjList list;
    EXPECT_FALSE(list.CheckIn(static_cast<QnGeObject*>(nullptr)));
    EXPECT_TRUE(list.IsEmpty());
}

TEST(CheckIn, PassesOverEmptyEntries) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, ".a.");
    EXPECT_TRUE(list.CheckIn(new ProbeObject('x', "a")));
    EXPECT_EQ(Names(list), "..x");
}

TEST(CheckIn, ShorterSegmentOnALongerOneIsRefusedAndTheOtherWayRoundReplaced) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; seg 0,5 1,5", list);
    const std::unique_ptr<QnGeObject> part = ParseGeo("seg 1,0 2,0");
    EXPECT_FALSE(list.CheckIn(part.get()));
    EXPECT_TRUE(list.CheckIn(ParseGeo("seg -1,0 9,0").release()));
    ExpectGeoList(list, "seg 0,5 1,5; seg -1,0 9,0");
}

TEST(CheckIn, AnEqualObjectIsRefused) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0", list);
    const std::unique_ptr<QnGeObject> same = ParseGeo("seg 0,0 4,0");
    EXPECT_FALSE(list.CheckIn(same.get()));
    EXPECT_EQ(list.GetLength(), 1);
}

TEST(CheckInList, TakesWhatPassesAndLeavesTheRefused) {
    const LiveScope scope;
    QnGeObjList list;
    list.Append(new ProbeObject('a', "xz"));
    Fill(list, "b");
    QnGeObjList objects;
    Fill(objects, "xyzw");
    list.CheckIn(objects);
    EXPECT_EQ(Names(list), "abyw");
    EXPECT_EQ(Names(objects), "xz");
    EXPECT_EQ(scope.Count(), 6);
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
    EXPECT_EQ(CheckList<QnGeObject*>(objects), "");
}

TEST(CheckInList, ComparesAlsoWithWhatItHasJustTaken) {
    const LiveScope scope;
    QnGeObjList list;
    QnGeObjList objects;
    objects.Append(new ProbeObject('a', "b"));
    Fill(objects, "b");
    objects.Append(new ProbeObject('c', "a"));
    list.CheckIn(objects);
    EXPECT_EQ(Names(list), "c") << "b is refused, then c replaces a";
    EXPECT_EQ(Names(objects), "b");
    EXPECT_EQ(scope.Count(), 2);
}

TEST(CheckInList, OfNothingDoesNothing) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "a");
    QnGeObjList none;
    list.CheckIn(none);
    EXPECT_EQ(Names(list), "a");
}

TEST(CheckInList, OfTheListItselfDoesNothing) {
    const LiveScope scope;
    QnGeObjList list;
    list.Append(new ProbeObject('a', "ab"));
    list.Append(new ProbeObject('b', "ab"));
    list.CheckIn(list);
    EXPECT_EQ(Names(list), "ab");
}

TEST(RemoveSubObj, KeepsTheMaximalObjectsInTheirOrder) {
    const LiveScope scope;
    QnGeObjList list;
    Fill(list, "ab");
    list.Append(new ProbeObject('c', "a"));
    Fill(list, "d");
    list.Append(new ProbeObject('e', "f"));
    Fill(list, "f");
    list.RemoveSubObj();
    EXPECT_EQ(Names(list), "bcde");
    EXPECT_EQ(scope.Count(), 4);
    EXPECT_EQ(CheckList<QnGeObject*>(list), "");
}

TEST(RemoveSubObj, OfTwoEqualObjectsKeepsTheFirst) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; seg 0,0 4,0", list);
    const QnGeObject* const first = list.GetPData(0);
    list.RemoveSubObj();
    ASSERT_EQ(list.GetLength(), 1);
    EXPECT_EQ(list.GetPData(0), first);
}

TEST(RemoveSubObj, OfAnEmptyListDoesNothing) {
    QnGeObjList list;
    list.RemoveSubObj();
    EXPECT_TRUE(list.IsEmpty());
}

TEST(RemoveDup, KeptOddDoesNothing) {
    QnGeObjList list;
    ParseGeoList("seg 0,0 4,0; seg 0,0 4,0", list);
    list.MoveTo(1);
    list.RemoveDup();
    ExpectGeoList(list, "seg 0,0 4,0; seg 0,0 4,0");
    EXPECT_EQ(list.GetCur(), 1);
}

TEST(CheckInList, LeavesEmptyEntriesWhereTheyAre) {
    QnGeObjList list;
    QnGeObjList offered;
    offered.Append(nullptr);
    offered.Append(new QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(1.0, 0.0)));
    offered.Append(nullptr);
    list.CheckIn(offered);
    EXPECT_EQ(list.GetLength(), 1);
    EXPECT_EQ(offered.GetLength(), 2);
    EXPECT_EQ(offered.GetDataNum(), 0);
}

TEST(RemoveSubObj, DropsEmptyEntries) {
    QnGeObjList list;
    list.Append(nullptr);
    list.Append(new QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(1.0, 0.0)));
    list.RemoveSubObj();
    EXPECT_EQ(list.GetLength(), 1);
    EXPECT_EQ(list.GetDataNum(), 1);
}
