// SPDX-License-Identifier: Apache-2.0
// Making, copying, streaming of multi-lines, and how much memory their vertices take.

#include "polylines/QnGeMLine2d.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "PolylineTesting.h"
#include "containers/QnDList.h"
#include "containers/QnDynArray.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/DynCreateGeObject.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

using namespace polyline_testing;

static_assert(std::is_base_of_v<QnGeCurve2d, QnGeMLine2d>, "a curve");
static_assert(!std::is_convertible_v<long, QnGeMLine2d>, "a number is no line");
static_assert(std::is_constructible_v<QnGeMLine2d, long, bool>, "count and flag");
static_assert(!std::is_constructible_v<QnGeMLine2d, QnGePointArray>, "the closed flag is never guessed");
static_assert(std::is_copy_constructible_v<QnGeMLine2d> && std::is_copy_assignable_v<QnGeMLine2d>, "a value");
static_assert(std::has_virtual_destructor_v<QnGeMLine2d>, "deleted through its bases");

namespace {

/// The line as an object that its base class returns.
std::unique_ptr<QnGeObject> CloneOf(const QnGeObject& object) {
    return std::unique_ptr<QnGeObject>(object.Clone());
}

/// Fills `target` from a record that may be cut anywhere: four bytes at a time, as whole numbers.
void ReadRecord(QnGeObject& target, const std::vector<unsigned char>& bytes) {
    QnDynArrayStream stream(64, 64);
    for (std::size_t at = 0; at + 4 <= bytes.size(); at += 4) {
        std::int32_t value = 0;
        std::memcpy(&value, &bytes[at], 4);
        stream << static_cast<long>(value);
    }
    stream.MoveToFirst();
    target.StreamIn(stream);
}

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

TEST(QnGeMLine2d, ByDefaultIsOpenAndEmpty) {
    const QnGeMLine2d line;
    EXPECT_EQ(line.GetVertexNum(), 0);
    EXPECT_EQ(line.GetSegNum(), 0);
    EXPECT_FALSE(line.IsClosed());
    EXPECT_EQ(line.GetBits(), 0U);
    EXPECT_EQ(QnGeMLine2d(0, false).GetVertexNum(), 0);
    EXPECT_TRUE(QnGeMLine2d(0, true).IsClosed());
}

TEST(QnGeMLine2d, OfACountHasThatManyVerticesAtTheOrigin) {
    EXPECT_TRUE(HasExactly(QnGeMLine2d(3), "0,0 0,0 0,0"));
    EXPECT_TRUE(HasExactly(QnGeMLine2d(2, true), "0,0 0,0 close"));
}

TEST(QnGeMLine2d, IsMadeOfAnySequenceOfPoints) {
    const QnGePointArray array = Points("1,2,3 4,5,6");
    EXPECT_TRUE(HasExactly(QnGeMLine2d(array, true), "1,2,3 4,5,6 close"));
    EXPECT_TRUE(HasExactly(QnGeMLine2d(array, false), "1,2,3 4,5,6"));
    QnDynArray<QnGePoint> plain;
    plain.Append(QnGePoint(1.0, 2.0, 3.0));
    EXPECT_TRUE(HasExactly(QnGeMLine2d(plain, false), "1,2,3"));
    QnGePointList list;
    list.Append(QnGePoint(1.0, 2.0));
    list.Append(QnGePoint(3.0, 4.0));
    EXPECT_TRUE(HasExactly(QnGeMLine2d(list, true), "1,2 3,4 close"));
    QnDList<QnGePoint> plainList;
    plainList.Append(QnGePoint(7.0, 8.0));
    EXPECT_TRUE(HasExactly(QnGeMLine2d(plainList, false), "7,8"));
}

TEST(QnGeMLine2d, CopiesShareNothing) {
    const QnGeMLine2d line = Straight("0,0 1,0,5 1,1 close");
    QnGeMLine2d copy(line);
    EXPECT_TRUE(HasExactly(copy, "0,0 1,0,5 1,1 close"));
    copy.SetVertex(0, QnGePoint(9.0, 9.0));
    copy.SetClosed(false);
    EXPECT_TRUE(HasExactly(line, "0,0 1,0,5 1,1 close"));
    const std::unique_ptr<QnGeObject> clone = CloneOf(line);
    EXPECT_EQ(clone->GetCI(), &QnGeMLine2d::s_classInfo);
    EXPECT_EQ(Record(*clone), Record(line));
}

TEST(QnGeMLine2d, AssignmentTakesFlagsAndPoints) {
    QnGeMLine2d line = Straight("5,5 6,6 7,7 8,8");
    line = Straight("0,0 1,0 close");
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 close"));
    const QnGeMLine2d& same = line;
    line = same;
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 close"));
}

TEST(QnGeMLine2d, AssignmentOfPointsLeavesTheFlags) {
    QnGeMLine2d line = Straight("5,5 6,6 7,7 close");
    line = Points("0,0 1,0");
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 close"));
    QnGePointList list;
    list.Append(QnGePoint(3.0, 4.0, 5.0));
    const QnDynArrayBase<QnGePoint>& sequence = list;
    line = sequence;
    EXPECT_TRUE(HasExactly(line, "3,4,5 close"));
    line = QnGePointArray();
    EXPECT_EQ(line.GetVertexNum(), 0);
}

TEST(QnGeMLine2d, AssignmentOfItsOwnPointsChangesNothing) {
    QnGeMLine2d line = Straight("0,0 1,0 2,1");
    line = line.GetVertexArray();
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 2,1"));
}

TEST(QnGeMLine2d, HasItsRecord) {
    const QnGeMLine2d line;
    EXPECT_EQ(line.GetClassID(), 116);
    EXPECT_EQ(line.GetCI(), &QnGeMLine2d::s_classInfo);
    EXPECT_EQ(QnGeMLine2d::s_classInfo.GetParent(), &QnGeCurve2d::s_classInfo);
    EXPECT_STREQ(QnGeMLine2d::s_classInfo.GetName(), "QnGeMLine2d");
}

// ---- copying from others ---------------------------------------------------------------------------

TEST(QnGeMLine2d, CopyFromTakesMultiLinesAndSegments) {
    QnGeMLine2d line = Straight("9,9 8,8 7,7");
    const QnGeMLine2d other = Straight("0,0 1,0 1,1,4 close");
    EXPECT_TRUE(line.CopyFrom(&other));
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 1,1,4 close"));
    const QnGePolyline2d bulged = Bulged("0,0@1 1,0@2 1,1");
    EXPECT_TRUE(line.CopyFrom(&bulged));
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 1,1"));
    EXPECT_EQ(line.GetClassID(), 116);
    const QnGeLineSeg2d segment(QnGePoint(1.0, 2.0, 3.0), QnGePoint(4.0, 6.0, 8.0));
    EXPECT_TRUE(line.CopyFrom(&segment));
    EXPECT_TRUE(HasExactly(line, "1,2,3 4,6,8"));
    EXPECT_TRUE(line.CopyFrom(&line));
    EXPECT_TRUE(HasExactly(line, "1,2,3 4,6,8"));
}

TEST(QnGeMLine2d, CopyFromRefusesAllOtherClassesAndNull) {
    QnGeMLine2d line = Straight("0,0 1,0");
    EXPECT_FALSE(line.CopyFrom(nullptr));
    for (const char* other : {"point 1,2", "line 0,0 1,0", "ray 0,0 1,0", "circle 0,0 r1", "arc 0,0 r1 from 0 sweep 1",
                              "region 0,0 1,0 1,1"}) {
        SCOPED_TRACE(other);
        EXPECT_FALSE(line.CopyFrom(ParseGeo(other).get()));
        EXPECT_TRUE(HasExactly(line, "0,0 1,0"));
    }
}

TEST(QnGeMLine2d, CopyFromOfEveryClassThatCanBeMade) {
    for (int id = 100; id <= 1600; ++id) {
        const std::unique_ptr<QnGeObject> other(DynCreateGeObject(id));
        if (other == nullptr) {
            continue;
        }
        const bool accepted = id == CLASS_ID_LINE_SEG2D || id == CLASS_ID_MLINE2D || id == CLASS_ID_POLYLINE2D;
        QnGeMLine2d line = Straight("0,0 1,0");
        EXPECT_EQ(line.CopyFrom(other.get()), accepted) << id;
        EXPECT_EQ(HasExactly(line, "0,0 1,0"), !accepted) << id;
    }
}

// ---- streams ---------------------------------------------------------------------------------------

TEST(QnGeMLine2d, StreamRecordIsFlagsCountAndPoints) {
    const QnGeMLine2d line = Straight("1,2,3 4,5,6 close");
    QnDynArrayStream stream(8, 8);
    line.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + 4 + 2 * 24);
    stream.MoveToFirst();
    long flags = 0;
    long count = 0;
    stream >> flags >> count;
    EXPECT_EQ(flags, static_cast<long>(OBJ_CLOSED));
    EXPECT_EQ(count, 2);
    for (double expected = 1.0; expected < 7.0; expected += 1.0) {
        double value = 0.0;
        stream >> value;
        EXPECT_EQ(value, expected);
    }
}

TEST(QnGeMLine2d, StreamRoundTripIsExactToTheBit) {
    QnGeMLine2d line(0, true);
    line.AppendVertex(QnGePoint(-0.0, 1.0 / 3.0, std::numeric_limits<double>::denorm_min()));
    line.AppendVertex(QnGePoint(NOT_A_NUMBER, INF, -INF));
    line.AppendVertex(QnGePoint(1e308, -1e-308, 4.0));
    line.SetBit(0x80000000U);
    QnDynArrayStream stream(8, 8);
    line.StreamOut(stream);
    stream.MoveToFirst();
    QnGeMLine2d back = Straight("1,1 2,2 3,3 4,4 5,5");
    back.StreamIn(stream);
    EXPECT_EQ(Record(back), Record(line));
    EXPECT_EQ(back.GetBits(), line.GetBits());
    EXPECT_EQ(back.GetVertexNum(), 3);
    const std::unique_ptr<QnGeObject> rebuilt(line.CloneNew());
    EXPECT_EQ(Record(*rebuilt), Record(line));
}

TEST(QnGeMLine2d, StreamRoundTripOfAnEmptyLine) {
    QnGeMLine2d back = Straight("1,1 2,2 close");
    ReadRecord(back, Record(QnGeMLine2d()));
    EXPECT_EQ(back.GetVertexNum(), 0);
    EXPECT_FALSE(back.IsClosed());
}

TEST(QnGeMLine2d, TruncatedStreamsGiveZeros) {
    const std::vector<unsigned char> whole = Record(Straight("1,2,3 4,5,6 7,8,9 close"));
    for (std::size_t length = 0; length <= whole.size(); length += 4) {
        QnGeMLine2d line = Straight("9,9 9,9");
        ReadRecord(line,
                   std::vector<unsigned char>(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)));
        EXPECT_EQ(line.GetVertexNum(), length < 8 ? 0 : 3) << length;
        if (length >= 8 && length < whole.size()) {
            EXPECT_EQ(line.GetVertex(2).z, 0.0);
        }
    }
}

TEST(QnGeMLine2d, ANegativeCountInAStreamIsNoVertex) {
    QnDynArrayStream stream(8, 8);
    stream << 0L << -5L << 1.0 << 2.0 << 3.0;
    stream.MoveToFirst();
    QnGeMLine2d line = Straight("9,9 9,9");
    line.StreamIn(stream);
    EXPECT_EQ(line.GetVertexNum(), 0);
}

// ---- memory ----------------------------------------------------------------------------------------

TEST(QnGeMLine2d, VerticesTakeExactlyTheirOwnSpace) {
    const long n = 1000;
    const QnGeMLine2d line(n, true);
    EXPECT_EQ(line.GetVertexArray().GetSpaceSize(), n);
    EXPECT_EQ(QnGeMLine2d(line).GetVertexArray().GetSpaceSize(), n);
    EXPECT_EQ(QnGeMLine2d(line.GetVertexArray(), true).GetVertexArray().GetSpaceSize(), n);
    const QnDynArrayBase<QnGePoint>& sequence = line.GetVertexArray();
    EXPECT_EQ(QnGeMLine2d(sequence, true).GetVertexArray().GetSpaceSize(), n);
    const std::unique_ptr<QnGeObject> clone(line.Clone());
    EXPECT_EQ(static_cast<const QnGeMLine2d&>(*clone).GetVertexArray().GetSpaceSize(), n);
    QnGeMLine2d other(5);
    other = line;
    EXPECT_EQ(other.GetVertexArray().GetSpaceSize(), n);
    other = QnGePointArray(7);
    EXPECT_EQ(other.GetVertexArray().GetSpaceSize(), 7);
    other.SetVertexNum(n, true);
    EXPECT_EQ(other.GetVertexArray().GetSpaceSize(), n);
    other.SetVertexNum(3, true);
    EXPECT_EQ(other.GetVertexArray().GetSpaceSize(), 3);
    QnDynArrayStream stream(64, 64);
    line.StreamOut(stream);
    stream.MoveToFirst();
    QnGeMLine2d read(4);
    read.StreamIn(stream);
    EXPECT_EQ(read.GetVertexArray().GetSpaceSize(), n);
}

TEST(QnGeMLine2d, VerticesStandInOneBlock) {
    QnGeMLine2d line = Straight("1,2 3,4 5,6");
    const QnGePoint* const first = &line[0];
    EXPECT_EQ(&line[2], first + 2);
    EXPECT_EQ(first[1].x, 3.0);
}
