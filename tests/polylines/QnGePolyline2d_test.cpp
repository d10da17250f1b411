// SPDX-License-Identifier: Apache-2.0
// Making, copying and streaming of polylines.

#include "polylines/QnGePolyline2d.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "PolylineTesting.h"
#include "containers/QnArray.h"
#include "containers/QnDList.h"
#include "containers/QnDynArray.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeSpline2d.h"
#include "frame/DynCreateGeObject.h"
#include "values/QnGePointList.h"

using namespace polyline_testing;

static_assert(std::is_base_of_v<QnGeMLine2d, QnGePolyline2d>, "a multi-line");
static_assert(!std::is_convertible_v<long, QnGePolyline2d>, "a number is no line");
static_assert(std::is_copy_constructible_v<QnGePolyline2d> && std::is_copy_assignable_v<QnGePolyline2d>, "a value");
static_assert(std::is_constructible_v<QnGePolyline2d, QnGePointArray, QnDynArray<double>, bool>,
              "a point array and growing bulges name one constructor");
static_assert(std::is_constructible_v<QnGePolyline2d, QnDynArray<QnGePoint>, QnArray<double>, bool>,
              "and so do growing points and a plain array of bulges");
static_assert(std::is_constructible_v<QnGePolyline2d, QnGePointList, QnDList<double>, bool>, "and lists of both");

namespace {

template <class Bulges>
Bulges BulgesOf(std::initializer_list<double> values) {
    Bulges bulges;
    for (const double value : values) {
        bulges.Append(value);
    }
    return bulges;
}

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

TEST(QnGePolyline2d, OfACountHasNoBulges) {
    EXPECT_EQ(QnGePolyline2d().GetVertexNum(), 0);
    EXPECT_FALSE(QnGePolyline2d().IsClosed());
    EXPECT_TRUE(IsExactly(QnGePolyline2d(3), "0,0 0,0 0,0"));
    EXPECT_TRUE(IsExactly(QnGePolyline2d(2, true), "0,0 0,0 close"));
}

TEST(QnGePolyline2d, OfAMultiLineHasItsBulgesIfThatIsAPolyline) {
    const QnGeMLine2d straight = Straight("0,0 1,0 1,1 close");
    EXPECT_TRUE(IsExactly(QnGePolyline2d(straight), "0,0 1,0 1,1 close"));
    const QnGePolyline2d bulged = Bulged("0,0@1 1,0@-2 1,1@3 close");
    const QnGeMLine2d& seen = bulged;
    EXPECT_TRUE(IsExactly(QnGePolyline2d(seen), "0,0@1 1,0@-2 1,1@3 close"));
    EXPECT_TRUE(IsExactly(QnGePolyline2d(bulged), "0,0@1 1,0@-2 1,1@3 close"));
}

TEST(QnGePolyline2d, IsMadeOfPointsAndBulgesOfAnyKind) {
    const QnGePointArray points = Points("0,0 4,0 4,4");
    const auto plain = BulgesOf<QnArray<double>>({0.5, -0.25, 0.125});
    const auto growing = BulgesOf<QnDynArray<double>>({0.5, -0.25, 0.125});
    const auto listed = BulgesOf<QnDList<double>>({0.5, -0.25, 0.125});
    const char* const expected = "0,0@0.5 4,0@-0.25 4,4@0.125 close";
    EXPECT_TRUE(IsExactly(QnGePolyline2d(points, plain, true), expected));
    EXPECT_TRUE(IsExactly(QnGePolyline2d(points, growing, true), expected));
    EXPECT_TRUE(IsExactly(QnGePolyline2d(points, listed, true), expected));
    const QnGePointList list(points);
    EXPECT_TRUE(IsExactly(QnGePolyline2d(list, listed, true), expected));
    EXPECT_TRUE(IsExactly(QnGePolyline2d(list, growing, true), expected));
    EXPECT_TRUE(IsExactly(QnGePolyline2d(points, false), "0,0 4,0 4,4"));
    EXPECT_TRUE(IsExactly(QnGePolyline2d(list, true), "0,0 4,0 4,4 close"));
}

TEST(QnGePolyline2d, OfAnArcIsOneSegmentWithTheSignedSweep) {
    const QnGeArc2d left(QnGePoint(0.0, 0.0, 7.0), 2.0, 0.0, PI / 2.0, true);
    const QnGePolyline2d a(left);
    ExpectGeo(a, "pline 2,0,7@pi/2 0,2,7");
    EXPECT_EQ(a.GetBulge(0), PI / 2.0);
    EXPECT_EQ(a.GetBulge(1), 0.0);
    const QnGeArc2d right(QnGePoint(0.0, 0.0), 2.0, 0.0, PI / 2.0, false);
    ExpectGeo(QnGePolyline2d(right), "pline 2,0@-pi/2 0,-2");
}

TEST(QnGePolyline2d, OfACircleIsTwoHalves) {
    const QnGePolyline2d left(QnGeCircle2d(QnGePoint(1.0, 1.0, 3.0), 2.0, true));
    ExpectGeo(left, "pline 3,1,3@pi -1,1,3@pi close");
    EXPECT_NEAR(left.Area(), 4.0 * PI, 1e-9);
    EXPECT_FALSE(left.IsClockwise());
    const QnGePolyline2d right(QnGeCircle2d(QnGePoint(1.0, 1.0), 2.0, false));
    ExpectGeo(right, "pline 3,1@-pi -1,1@-pi close");
    EXPECT_TRUE(right.IsClockwise());
}

TEST(QnGePolyline2d, CopiesShareNothing) {
    const QnGePolyline2d line = Bulged("0,0@1 1,0@2 1,1@3 close");
    QnGePolyline2d copy(line);
    copy.SetBulge(0, 9.0);
    copy.SetVertex(1, QnGePoint(7.0, 7.0));
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1@3 close"));
    const std::unique_ptr<QnGeObject> clone(line.Clone());
    EXPECT_EQ(clone->GetCI(), &QnGePolyline2d::s_classInfo);
    EXPECT_EQ(Record(*clone), Record(line));
}

TEST(QnGePolyline2d, AssignmentOfAPolylineTakesItsBulges) {
    QnGePolyline2d line = Bulged("5,5@4 6,6@5");
    line = Bulged("0,0@1 1,0@2 1,1@3 close");
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1@3 close"));
    const QnGePolyline2d& same = line;
    line = same;
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1@3 close"));
    const QnGeMLine2d straight = Straight("2,2 3,3");
    line = straight;
    EXPECT_TRUE(IsExactly(line, "2,2 3,3"));
    const QnGePolyline2d bulged = Bulged("0,0@1 1,0");
    const QnGeMLine2d& seen = bulged;
    line = seen;
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0"));
}

TEST(QnGePolyline2d, AssignmentOfPointsClearsTheBulges) {
    QnGePolyline2d line = Bulged("0,0@1 1,0@2 1,1@3 close");
    line = Points("5,5 6,6 7,7");
    EXPECT_TRUE(IsExactly(line, "5,5 6,6 7,7 close"));
    line.SetBulge(1, 2.0);
    QnGePointList list;
    list.Append(QnGePoint(1.0, 2.0));
    const QnDynArrayBase<QnGePoint>& sequence = list;
    line = sequence;
    EXPECT_TRUE(IsExactly(line, "1,2 close"));
    line = Bulged("0,0@1 1,0@2 1,1@3");
    QnGeMLine2d& base = line;
    base = Points("0,0 9,9 8,8 7,7");
    EXPECT_TRUE(IsExactly(line, "0,0 9,9 8,8 7,7"));
}

TEST(QnGePolyline2d, HasItsRecord) {
    EXPECT_EQ(QnGePolyline2d().GetClassID(), 117);
    EXPECT_EQ(QnGePolyline2d::s_classInfo.GetParent(), &QnGeMLine2d::s_classInfo);
    EXPECT_STREQ(QnGePolyline2d::s_classInfo.GetName(), "QnGePolyline2d");
}

// ---- copying from others ---------------------------------------------------------------------------

TEST(QnGePolyline2d, CopyFromTakesLinesWithTheirBulgesOrNone) {
    QnGePolyline2d line = Bulged("9,9@1 8,8@2 7,7@3 close");
    const QnGePolyline2d bulged = Bulged("0,0@1 1,0@2 1,1");
    EXPECT_TRUE(line.CopyFrom(&bulged));
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1"));
    const QnGeMLine2d straight = Straight("0,0 1,0 1,1 close");
    EXPECT_TRUE(line.CopyFrom(&straight));
    EXPECT_TRUE(IsExactly(line, "0,0 1,0 1,1 close"));
    line = Bulged("9,9@1 8,8@2 7,7@3");
    const QnGeLineSeg2d segment(QnGePoint(1.0, 2.0, 3.0), QnGePoint(4.0, 6.0, 8.0));
    EXPECT_TRUE(line.CopyFrom(&segment));
    EXPECT_TRUE(IsExactly(line, "1,2,3 4,6,8"));
}

TEST(QnGePolyline2d, CopyFromTurnsOtherCurvesIntoPolylines) {
    QnGePolyline2d line;
    EXPECT_TRUE(line.CopyFrom(ParseGeo("circle 0,0 r2").get()));
    ExpectGeo(line, "pline 2,0@pi -2,0@pi close");
    EXPECT_TRUE(line.CopyFrom(ParseGeo("arc 0,0 r2 from 0 sweep pi/2").get()));
    ExpectGeo(line, "pline 2,0@pi/2 0,2");
    // A curve that knows nothing of itself is linearised to a closed line of two untouched points.
    const QnGeSpline2d spline;
    EXPECT_TRUE(line.CopyFrom(&spline));
    EXPECT_TRUE(IsExactly(line, "0,0 0,0 close"));
}

TEST(QnGePolyline2d, CopyFromRefusesWhatHasNoPolyline) {
    QnGePolyline2d line = Bulged("0,0@1 1,0");
    EXPECT_FALSE(line.CopyFrom(nullptr));
    for (const char* other :
         {"point 1,2", "line 0,0 1,0", "ray 0,0 1,0", "ray reversed 0,0 1,0", "region 0,0 1,0 1,1"}) {
        SCOPED_TRACE(other);
        EXPECT_FALSE(line.CopyFrom(ParseGeo(other).get()));
        EXPECT_TRUE(IsExactly(line, "0,0@1 1,0"));
    }
    const QnGeEllipse2d ellipse;
    EXPECT_FALSE(line.CopyFrom(&ellipse));
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0"));
}

TEST(QnGePolyline2d, CopyFromOfEveryClassThatCanBeMade) {
    for (int id = 100; id <= 1600; ++id) {
        const std::unique_ptr<QnGeObject> other(DynCreateGeObject(id));
        if (other == nullptr) {
            continue;
        }
        if (id == CLASS_ID_MCURVE2D) {
            continue;  // what a chain is linearised to is its own business
        }
        const bool accepted = id >= CLASS_ID_LINE_SEG2D && id <= CLASS_ID_POLYLINE2D;
        QnGePolyline2d line = Bulged("0,0@1 1,0");
        EXPECT_EQ(line.CopyFrom(other.get()), accepted) << id;
        EXPECT_EQ(IsExactly(line, "0,0@1 1,0"), !accepted) << id;
    }
}

// ---- bulges ----------------------------------------------------------------------------------------

TEST(QnGePolyline2d, BulgesAreReachedByIndex) {
    QnGePolyline2d line = Bulged("0,0@1 1,0@2 1,1");
    EXPECT_EQ(line.GetBulge(1), 2.0);
    line.SetBulge(1, 5.0);
    line(0) = 7.0;
    const QnGePolyline2d& read = line;
    EXPECT_EQ(read(0), 7.0);
    EXPECT_EQ(read(1), 5.0);
}

TEST(QnGePolyline2d, AnArcIsWhatLiesStrictlyOutsideTheAngleTolerance) {
    QnGePolyline2d line = Bulged("0,0 1,0");
    const double tol = g_angleZero;
    for (const double chord : {0.0, tol, -tol, 0.5e-5}) {
        line.SetBulge(0, chord);
        EXPECT_FALSE(line.IsArcSeg(0)) << chord;
        EXPECT_FALSE(line.IsArcExist()) << chord;
        EXPECT_TRUE(line.IsMLinear()) << chord;
    }
    for (const double arc : {std::nextafter(tol, 1.0), std::nextafter(-tol, -1.0), 1.0, -6.0}) {
        line.SetBulge(0, arc);
        EXPECT_TRUE(line.IsArcSeg(0)) << arc;
        EXPECT_TRUE(line.IsArcExist()) << arc;
        EXPECT_FALSE(line.IsMLinear()) << arc;
    }
}

TEST(QnGePolyline2d, OnlySegmentsCountAsArcs) {
    QnGePolyline2d line = Bulged("0,0 1,0 1,1");
    line.SetBulge(2, 1.0);  // the place behind the last segment of an open line
    EXPECT_FALSE(line.IsArcExist());
    EXPECT_TRUE(line.IsMLinear());
    line.QnGeMLine2d::SetClosed(true);
    EXPECT_TRUE(line.IsArcExist());
    EXPECT_FALSE(QnGePolyline2d().IsArcExist());
    EXPECT_TRUE(QnGePolyline2d().IsMLinear());
}

TEST(QnGePolyline2d, ClosingAndOpeningWriteTheLastBulgeOnAChangeOnly) {
    QnGePolyline2d line = Bulged("0,0@1 1,0@2 1,1");
    line.SetClosed(true, 0.5);
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1@0.5 close"));
    line.SetClosed(true, 0.75);
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1@0.5 close"));
    line.SetClosed(false, 0.75);
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1"));
    line.SetBulge(2, 4.0);
    line.SetClosed(false);
    EXPECT_EQ(line.GetBulge(2), 4.0);
    line.SetClosed(true);
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1 close"));
    QnGePolyline2d empty;
    empty.SetClosed(true, 1.0);
    EXPECT_TRUE(empty.IsClosed());
    empty.SetClosed(false);
    EXPECT_FALSE(empty.IsClosed());
}

TEST(QnGePolyline2d, KeptOddThroughAMultiLineOnlyTheFlagChanges) {
    QnGePolyline2d line = Bulged("0,0@1 1,0@2 1,1@3 close");
    QnGeMLine2d& base = line;
    base.SetClosed(false);
    EXPECT_FALSE(line.IsClosed());
    EXPECT_EQ(line.GetBulge(2), 3.0);
    base.SetClosed(true);
    EXPECT_TRUE(IsExactly(line, "0,0@1 1,0@2 1,1@3 close"));
}

// ---- streams ---------------------------------------------------------------------------------------

TEST(QnGePolyline2d, StreamRecordAppendsOneBulgePerVertex) {
    QnGePolyline2d line = Bulged("1,2,3@0.5 4,5,6");
    line.SetBulge(1, 0.25);  // the trailing one of an open line is written too
    QnDynArrayStream stream(8, 8);
    line.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + 4 + 2 * 24 + 2 * 8);
    stream.MoveToFirst();
    long word = 0;
    double value = 0.0;
    stream >> word >> word;
    EXPECT_EQ(word, 2);
    for (const double expected : {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 0.5, 0.25}) {
        stream >> value;
        EXPECT_EQ(value, expected);
    }
}

TEST(QnGePolyline2d, StreamRoundTripIsExactToTheBit) {
    QnGePolyline2d line(0, true);
    line.AppendVertex(QnGePoint(-0.0, 1.0 / 3.0, NOT_A_NUMBER), -0.0);
    line.AppendVertex(QnGePoint(INF, 0.1, 0.2), std::numeric_limits<double>::denorm_min());
    line.AppendVertex(QnGePoint(1.0, 2.0, 3.0), NOT_A_NUMBER);
    QnDynArrayStream stream(8, 8);
    line.StreamOut(stream);
    stream.MoveToFirst();
    QnGePolyline2d back = Bulged("1,1@1 2,2@2 3,3@3 4,4@4 5,5@5");
    back.StreamIn(stream);
    EXPECT_EQ(Record(back), Record(line));
    const std::unique_ptr<QnGeObject> rebuilt(line.CloneNew());
    EXPECT_EQ(rebuilt->GetClassID(), 117);
    EXPECT_EQ(Record(*rebuilt), Record(line));
}

TEST(QnGePolyline2d, TruncatedStreamsGiveZeroBulges) {
    const QnGePolyline2d line = Bulged("1,2@0.5 3,4@0.25 5,6@0.125 close");
    for (long bulges = 0; bulges <= 3; ++bulges) {
        QnDynArrayStream stream(8, 8);
        line.QnGeMLine2d::StreamOut(stream);
        for (long i = 0; i < bulges; ++i) {
            stream << line.GetBulge(i);
        }
        stream.MoveToFirst();
        QnGePolyline2d back = Bulged("9,9@9 9,9@9 9,9@9 9,9@9");
        back.StreamIn(stream);
        ASSERT_EQ(back.GetVertexNum(), 3);
        for (long i = 0; i < 3; ++i) {
            EXPECT_EQ(back.GetBulge(i), i < bulges ? line.GetBulge(i) : 0.0);
        }
    }
    QnDynArrayStream nothing(8, 8);
    QnGePolyline2d back = Bulged("9,9@9 9,9@9");
    back.StreamIn(nothing);
    EXPECT_EQ(back.GetVertexNum(), 0);
    EXPECT_FALSE(back.IsClosed());
}

TEST(QnGePolyline2d, VerticesTakeExactlyTheirOwnSpace) {
    const QnGePolyline2d line(1000, true);
    EXPECT_EQ(line.GetVertexArray().GetSpaceSize(), 1000);
    EXPECT_EQ(QnGePolyline2d(line).GetVertexArray().GetSpaceSize(), 1000);
    QnGePolyline2d other;
    other.SetVertexNum(77, false);
    EXPECT_EQ(other.GetVertexArray().GetSpaceSize(), 77);
}
