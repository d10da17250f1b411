// SPDX-License-Identifier: Apache-2.0
// The stream form of object lists, and what reading makes of streams that are not in order.
#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeEllipse2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeObject3d.h"
#include "support/ContainerCheckers.h"
#include "support/ExpectGeo.h"
#include "support/StreamBytes.h"
#include "values/QnGePoint2d.h"

namespace {

/// The longs that a stream begins with.
std::vector<long> Longs(QnDynArrayStream& stream, int count) {
    std::vector<long> values;
    stream.MoveToFirst();
    for (int i = 0; i < count; ++i) {
        long value = 0;
        stream >> value;
        values.push_back(value);
    }
    return values;
}

void WritePoint(QnDynArrayStream& stream, double x) {
    stream << 102L << 0L << x << 0.0 << 0.0;
}

}  // namespace

TEST(ListStream, ComesBackInOrderWithTheSameClassesAndCoordinates) {
    QnGeObjList list;
    ParseGeoList("point 1,2,3; seg 0,0 4,5,6; circle 1,1 r2 cw; mline 0,0 1,0 close; region 0,0 4,0 4,4", list);
    list.GetPData(0)->SetBits(0x80000000U);
    QnDynArrayStream stream(8, 8);
    list.StreamOut(stream);
    stream.MoveToFirst();
    QnGeObjList read;
    read.StreamIn(stream);
    EXPECT_EQ(ToText(read), ToText(list));
    EXPECT_EQ(read.GetPData(0)->GetBits(), 0x80000000U);
    EXPECT_EQ(CheckList<QnGeObject*>(read), "");
    QnDynArrayStream again(8, 8);
    read.StreamOut(again);
    EXPECT_EQ(BytesOf(again), BytesOf(stream));
}

TEST(ListStream, BeginsWithTheCountAndHasAnIdBeforeEachRecord) {
    QnGeObjList list;
    list.Append(new QnGePoint2d(1.0, 2.0, 3.0));
    list.GetPData(0)->SetBits(7);
    list.Append(new QnGePoint2d());
    QnDynArrayStream stream(8, 8);
    list.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + 2 * (4 + 4 + 24));
    EXPECT_EQ(Longs(stream, 3), (std::vector<long>{2, 102, 7}));
    double x = 0.0;
    stream >> x;
    EXPECT_EQ(x, 1.0);
}

TEST(ListStream, OfAnEmptyListIsTheCount) {
    QnDynArrayStream stream(8, 8);
    QnGeObjList().StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4);
    EXPECT_EQ(Longs(stream, 1), (std::vector<long>{0}));
}

TEST(ListStream, ReadingDeletesWhatTheListHeld) {
    QnDynArrayStream stream(8, 8);
    QnGeObjList().StreamOut(stream);
    stream.MoveToFirst();
    QnGeObjList list;
    ParseGeoList("point 1,2; seg 0,0 1,0", list);
    list.StreamIn(stream);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(ListStream, ReadingLeavesTheStreamBehindTheList) {
    QnGeObjList list;
    ParseGeoList("point 1,2", list);
    QnDynArrayStream stream(8, 8);
    list.StreamOut(stream);
    stream << 4711L;
    stream.MoveToFirst();
    QnGeObjList read;
    read.StreamIn(stream);
    long behind = 0;
    stream >> behind;
    EXPECT_EQ(behind, 4711);
}

TEST(ListStream, EmptyEntriesAreWrittenAsIdZeroWithoutRecord) {
    QnGeObjList list;
    list.Append(nullptr);
    list.Append(new QnGePoint2d(1.0, 2.0));
    list.Append(nullptr);
    QnDynArrayStream stream(8, 8);
    list.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + 4 + 32 + 4);
    EXPECT_EQ(Longs(stream, 3), (std::vector<long>{3, 0, 102}));
}

TEST(ListStream, ReadingSkipsIdZeroAndStaysInStep) {
    QnGeObjList list;
    list.Append(nullptr);
    list.Append(new QnGePoint2d(1.0, 2.0));
    list.Append(nullptr);
    list.Append(new QnGePoint2d(3.0, 4.0));
    QnDynArrayStream stream(8, 8);
    list.StreamOut(stream);
    stream.MoveToFirst();
    QnGeObjList read;
    read.StreamIn(stream);
    ExpectGeoList(read, "point 1,2; point 3,4");
}

TEST(ListStream, ReadingWithGapsKeepsTheirPlaces) {
    QnGeObjList list;
    list.Append(nullptr);
    list.Append(new QnGePoint2d(1.0, 2.0));
    list.Append(nullptr);
    QnDynArrayStream stream(8, 8);
    list.StreamOut(stream);
    stream.MoveToFirst();
    QnGeObjList read;
    ParseGeoList("seg 0,0 1,0", read);
    read.StreamInWithGaps(stream);
    ASSERT_EQ(read.GetLength(), 3);
    EXPECT_EQ(read.GetPData(0), nullptr);
    ExpectGeo(read.GetPData(1), "point 1,2");
    EXPECT_EQ(read.GetPData(2), nullptr);
}

TEST(ListStream, KeptOddTheRecordOfAClassWithoutFactoryIsReadAsTheNextEntries) {
    QnGeObjList list;
    list.Append(new QnGeEllipse2d());
    list.GetPData(0)->SetBits(102);
    list.Append(new QnGePoint2d(1.0, 2.0));
    QnDynArrayStream stream(8, 8);
    list.StreamOut(stream);
    stream.MoveToFirst();
    QnGeObjList read;
    read.StreamIn(stream);
    // The ellipse's id makes nothing; its flag word is then taken for an id, and the next id for that object's flags.
    ASSERT_EQ(read.GetLength(), 1);
    EXPECT_EQ(read.GetPData(0)->GetClassID(), 102);
    EXPECT_EQ(read.GetPData(0)->GetBits(), 102U);
}

TEST(ListStream, UnknownIdsAreSkipped) {
    QnDynArrayStream stream(8, 8);
    stream << 4L << 4711L << -1L;
    WritePoint(stream, 1.0);
    WritePoint(stream, 2.0);
    stream.MoveToFirst();
    QnGeObjList read;
    read.StreamIn(stream);
    ExpectGeoList(read, "point 1,0; point 2,0");
}

TEST(ListStream, ANegativeCountReadsNothing) {
    for (const long count : {-1L, -2147483647L}) {
        QnDynArrayStream stream(8, 8);
        stream << count;
        WritePoint(stream, 1.0);
        stream.MoveToFirst();
        QnGeObjList read;
        ParseGeoList("point 1,2", read);
        read.StreamIn(stream);
        EXPECT_TRUE(read.IsEmpty());
        stream.MoveToFirst();
        read.StreamInWithGaps(stream);
        EXPECT_TRUE(read.IsEmpty());
    }
}

TEST(ListStream, ATruncatedStreamGivesWhatIsThere) {
    QnGeObjList list;
    ParseGeoList("point 1,2; seg 0,0 4,0; mline 0,0 1,0 2,2", list);
    const StreamBytes bytes = RecordOf(list);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        QnDynArrayStream cut(8, 8);
        FillStream(cut, bytes, length);
        QnGeObjList read;
        read.StreamIn(cut);
        EXPECT_LE(read.GetLength(), list.GetLength()) << length;
        EXPECT_EQ(CheckList<QnGeObject*>(read), "");
    }
}

TEST(ListStream, AnEmptyStreamGivesAnEmptyList) {
    QnDynArrayStream stream(8, 8);
    QnGeObjList read;
    ParseGeoList("point 1,2", read);
    read.StreamIn(stream);
    EXPECT_TRUE(read.IsEmpty());
}
