// SPDX-License-Identifier: Apache-2.0
// Which values turn into which others by themselves. Points turn into pointers and pointers into truth values, so a
// constructor too many that is implicit makes senseless calls compile.
#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "ValueTesting.h"
#include "containers/QnArray.h"
#include "containers/QnDynArray.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeBasePlane.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"
#include "values/QnGePointArray.h"
#include "values/QnGePointList.h"
#include "values/QnGeVector2d.h"
#include "values/QnGeVector3d.h"

using namespace value_testing;

namespace {

/// `To` can be made of `From`, but only by name.
template <class From, class To>
constexpr bool IsMadeByNameOnly = std::is_constructible_v<To, From> && !std::is_convertible_v<From, To>;

static_assert(IsMadeByNameOnly<const QnGeBaseLine2d&, QnGeLine2d>, "a carrier is no curve");
static_assert(IsMadeByNameOnly<const QnGeBaseLine2d&, QnGeLineRay2d>, "a carrier is no curve");
static_assert(IsMadeByNameOnly<const QnGeBaseLine2d&, QnGeLineSeg2d>, "a carrier is no curve");
static_assert(IsMadeByNameOnly<const QnGeCircle2d&, QnGeArc2d>, "a circle is no arc");
static_assert(IsMadeByNameOnly<const QnGeLineSeg2d&, QnGeMCurve2d>, "a curve is no chain");
static_assert(IsMadeByNameOnly<bool, QnGeCircle2d>, "a truth value is no circle");
static_assert(IsMadeByNameOnly<bool, QnGeEllipse2d>, "a truth value is no ellipse");
static_assert(!std::is_convertible_v<QnGePoint&, QnGeCircle2d>, "nor is a point");
static_assert(!std::is_convertible_v<QnGePoint&, QnGeEllipse2d>, "nor is a point");
static_assert(IsMadeByNameOnly<long, QnGePointList>, "a number is no list");
static_assert(IsMadeByNameOnly<long, QnGePointArray>, "a number is no array");
static_assert(std::is_convertible_v<const QnDynArrayBase<QnGePoint>&, QnGePointList>, "any row of points is one");
static_assert(std::is_convertible_v<const QnDynArrayBase<QnGePoint>&, QnGePointArray>, "any row of points is one");
static_assert(std::is_convertible_v<const QnGePoint&, QnGePoint2d>, "a point is a point");
static_assert(std::is_convertible_v<const QnGePoint&, QnGePoint3d>, "a point is a point");

template <class T, class = void>
struct HasLessEqual : std::false_type {};
template <class T>
struct HasLessEqual<T, std::void_t<decltype(std::declval<const T&>() <= std::declval<const T&>())>> : std::true_type {};

template <class T, class = void>
struct HasGreaterEqual : std::false_type {};
template <class T>
struct HasGreaterEqual<T, std::void_t<decltype(std::declval<const T&>() >= std::declval<const T&>())>>
    : std::true_type {};

template <class... Ts>
constexpr bool NoneComparesAddresses = !(HasLessEqual<Ts>::value || ...) && !(HasGreaterEqual<Ts>::value || ...);

static_assert(NoneComparesAddresses<QnGeVector2d, QnGeVector3d, QnGePoint2d, QnGePoint3d>, "<= would take pointers");
static_assert(NoneComparesAddresses<QnGeBaseLine2d, QnGeBaseLine3d, QnGeBasePlane>, "<= would take pointers");
static_assert(NoneComparesAddresses<QnGeLine2d, QnGeLineRay2d, QnGeLineSeg2d>, "<= would take pointers");

template <class T>
void ExpectIndexing(T value) {
    const T& same = value;
    value[0] = 1.0;
    value[1L] = 2.0;
    value[2] = 3.0;
    EXPECT_EQ(same[0L], 1.0);
    EXPECT_EQ(same[1], 2.0);
    EXPECT_EQ(same[2L], 3.0);
    const double* first = same;
    EXPECT_EQ(first, &value.x);
}

bool NamesItsOwn(const QnGeBaseLine2d& line) {
    return &line.dx == &line.x && &line.dy == &line.y && &line.dz == &line.z;
}
bool NamesItsOwn(const QnGeBaseLine3d& line) {
    return &line.dx == &line.x && &line.dy == &line.y && &line.dz == &line.z;
}
bool NamesItsOwn(const QnGeBasePlane& plane) {
    return &plane.a == &plane.x && &plane.b == &plane.y && &plane.c == &plane.z;
}

/// Grows an array of values past its first block, then takes one out of the middle, so that all of them move.
template <class T>
void ExpectArraysKeepNames() {
    QnDynArray<T> array(0, 2);
    for (int i = 0; i < 20; ++i) {
        T value;
        value.x = i;
        array.Append(value);
    }
    array.MoveTo(5);
    array.DelCur();
    ASSERT_EQ(array.GetLength(), 19);
    for (long i = 0; i < 19; ++i) {
        EXPECT_TRUE(NamesItsOwn(array.GetAt(i))) << i;
        EXPECT_EQ(array.GetAt(i).x, static_cast<double>(i < 5 ? i : i + 1));
    }
    const QnArray<T> copy(array);
    ASSERT_EQ(copy.GetLength(), 19);
    EXPECT_TRUE(NamesItsOwn(copy[18]));
    EXPECT_EQ(copy[18].x, 19.0);
}

/// A line by a vector or by two points: whichever types the arguments have.
template <class Line>
void ExpectConstructorsByStaticType() {
    const QnGePoint p1(1.0, 2.0);
    const QnGePoint p2(5.0, 5.0);
    const Line byVector(QnGeVector2d(p1, p2), p1);
    EXPECT_TRUE(IsExactly(byVector.GetVector(), 4.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(byVector.GetBasePoint(), 1.0, 2.0, 0.0));
    const Line byPoints(p1, p2);
    EXPECT_TRUE(IsExactly(byPoints.GetVector(), 4.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(byPoints.GetBasePoint(), 1.0, 2.0, 0.0));
    const Line byDifference(p2 - p1, p1);  // a difference of points is a point
    EXPECT_TRUE(IsExactly(byDifference.GetBasePoint(), 4.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(byDifference.GetVector(), -3.0, -1.0, 0.0));
    const Line byVectors(QnGeVector2d(4.0, 3.0), QnGeVector2d(1.0, 2.0));
    EXPECT_TRUE(IsExactly(byVectors.GetVector(), 4.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(byVectors.GetBasePoint(), 1.0, 2.0, 0.0));
    const Line byObjects(QnGePoint2d(1.0, 2.0), QnGePoint2d(5.0, 5.0));
    EXPECT_TRUE(IsExactly(byObjects.GetVector(), 4.0, 3.0, 0.0));
}

template <class Line>
void ExpectCopiesNameTheirOwn() {
    Line first(QnGePoint(1.0, 2.0), QnGePoint(5.0, 5.0));
    const Line copy(first);
    Line assigned;
    assigned = first;
    first.dx = 100.0;
    first.basePoint.y = 100.0;
    EXPECT_TRUE(NamesItsOwn(copy));
    EXPECT_TRUE(NamesItsOwn(assigned));
    EXPECT_TRUE(IsExactly(copy.GetVector(), 4.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(assigned.GetVector(), 4.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(assigned.GetBasePoint(), 1.0, 2.0, 0.0));
}

}  // namespace

TEST(ValueConversions, EveryPointIndexesByIntAndLong) {
    ExpectIndexing(QnGePoint());
    ExpectIndexing(QnGeVector2d());
    ExpectIndexing(QnGeVector3d());
    ExpectIndexing(QnGePoint2d());
    ExpectIndexing(QnGePoint3d());
}

TEST(ValueConversions, StaticTypesTellTheConstructorsOfLinesApart) {
    ExpectConstructorsByStaticType<QnGeBaseLine2d>();
    ExpectConstructorsByStaticType<QnGeLine2d>();
    ExpectConstructorsByStaticType<QnGeLineRay2d>();
    ExpectConstructorsByStaticType<QnGeLineSeg2d>();
}

TEST(ValueConversions, CopiedCurvesNameTheirOwnVector) {
    ExpectCopiesNameTheirOwn<QnGeLine2d>();
    ExpectCopiesNameTheirOwn<QnGeLineRay2d>();
    ExpectCopiesNameTheirOwn<QnGeLineSeg2d>();
}

TEST(ValueConversions, ArraysOfLinesAndPlanesMoveThemByAssignment) {
    ExpectArraysKeepNames<QnGeBaseLine2d>();
    ExpectArraysKeepNames<QnGeBaseLine3d>();
    ExpectArraysKeepNames<QnGeBasePlane>();
}

TEST(ValueConversions, BaseFormsStayInReachOnCurves) {
    const QnGeCircle2d circle(QnGePoint(), 1.0);
    const QnGeLine2d line(QnGePoint(-4.0, 0.0), QnGePoint(-2.0, 0.0));
    QnGePoint q1;
    QnGePoint q2;
    EXPECT_EQ(circle.IntersectWith(line, q1, q2, false), 2);
    EXPECT_TRUE(IsNear(q1, QnGePoint(-1.0, 0.0)));
    EXPECT_TRUE(IsNear(q2, QnGePoint(1.0, 0.0)));
    EXPECT_EQ(circle.IntersectWith(QnGeBaseCircle(QnGePoint(2.0, 0.0), 1.0), q1, q2), 1);
    EXPECT_TRUE(IsNear(q1, QnGePoint(1.0, 0.0)));
    EXPECT_TRUE(circle.QnGeBaseCircle::operator==(QnGeBaseCircle(QnGePoint(), 1.0)));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(line.IntersectWith(static_cast<const QnGeBaseCircle&>(circle), t1, t2, false), 2);
    EXPECT_NEAR(t1, 1.5, 1e-15);
    EXPECT_NEAR(t2, 2.5, 1e-15);
    EXPECT_EQ(line.IntersectWith(QnGeLineSeg2d(QnGePoint(0.0, 1.0), QnGePoint(0.0, 2.0)), q1, false), 1);
    EXPECT_TRUE(IsNear(q1, QnGePoint(0.0, 0.0)));
}

TEST(ValueConversions, PointsPassWhereVectorsAreAskedFor) {
    const QnGePoint2d object(0.0, 3.0);
    const QnGeVector2d plan = object;
    const QnGeVector3d space = QnGePoint(1.0, 2.0, 3.0);
    EXPECT_TRUE(IsExactly(plan, 0.0, 3.0, 0.0));
    EXPECT_TRUE(IsExactly(space, 1.0, 2.0, 3.0));
    EXPECT_TRUE(QnGeVector2d(0.0, 9.0).IsParallelWith(object, false));
    EXPECT_TRUE(IsExactly(space * 2.0, 2.0, 4.0, 6.0));  // the cross product does not hide the multiple
    EXPECT_TRUE(IsExactly(space * object, -9.0, 0.0, 3.0));
}
