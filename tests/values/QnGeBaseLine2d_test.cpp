// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseLine2d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>
#include <utility>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBaseCircle.h"
#include "values/QnGeMatrix.h"

using namespace value_testing;

static_assert(std::is_base_of_v<QnGeVector2d, QnGeBaseLine2d>, "a line is its direction");
static_assert(!std::is_polymorphic_v<QnGeBaseLine2d>, "a plain value");
static_assert(std::is_copy_assignable_v<QnGeBaseLine2d>, "the references do not stand in the way");
static_assert(std::is_same_v<decltype(std::declval<const QnGeBaseLine2d&>().GetBasePoint()), const QnGePoint&>,
              "no copy");
static_assert(std::is_same_v<decltype(std::declval<const QnGeBaseLine2d&>().GetVector()), const QnGeVector2d&>,
              "no copy");

namespace {

bool NamesItsOwnVector(const QnGeBaseLine2d& line) {
    return &line.dx == &line.x && &line.dy == &line.y && &line.dz == &line.z;
}

::testing::AssertionResult IsLine(const QnGeBaseLine2d& line, const QnGePoint& base, const QnGePoint& direction) {
    if (!NamesItsOwnVector(line)) {
        return ::testing::AssertionFailure() << "names another line's vector";
    }
    const ::testing::AssertionResult sameBase = IsNear(line.GetBasePoint(), base);
    return sameBase ? IsNear(line.GetVector(), direction) : sameBase;
}

QnGeBaseLine2d FromTo(double x1, double y1, double x2, double y2) {
    return QnGeBaseLine2d(QnGePoint(x1, y1), QnGePoint(x2, y2));
}

QnGeBaseLine2d RandomLine(Random& random) {
    for (;;) {
        const QnGeVector2d direction(random.Point(5.0));
        if (direction.Length() > 0.1) {
            return QnGeBaseLine2d(direction, random.Point(10.0));
        }
    }
}

const QnGeBaseLine2d TWO_ALONG_X = FromTo(0.0, 0.0, 2.0, 0.0);

}  // namespace

TEST(QnGeBaseLine2d, DefaultIsANullDirectionAtTheOrigin) {
    const QnGeBaseLine2d line;
    EXPECT_TRUE(IsLine(line, QnGePoint(), QnGePoint()));
    EXPECT_FALSE(line.IsValid());
}

TEST(QnGeBaseLine2d, TheStaticTypesTellTheConstructorsApart) {
    EXPECT_TRUE(IsLine(QnGeBaseLine2d(QnGeVector2d(1.0, 2.0), QnGePoint(3.0, 4.0, 5.0)), QnGePoint(3.0, 4.0, 5.0),
                       QnGePoint(1.0, 2.0, 0.0)));
    EXPECT_TRUE(IsLine(QnGeBaseLine2d(QnGePoint(1.0, 2.0, 3.0), QnGePoint(5.0, 7.0, 9.0)), QnGePoint(1.0, 2.0, 3.0),
                       QnGePoint(4.0, 5.0, 6.0)));
    // two vectors mean direction and base
    EXPECT_TRUE(IsLine(QnGeBaseLine2d(QnGeVector2d(1.0, 2.0), QnGeVector2d(3.0, 4.0)), QnGePoint(3.0, 4.0),
                       QnGePoint(1.0, 2.0)));
}

TEST(QnGeBaseLine2d, CopiesNameTheirOwnVector) {
    QnGeBaseLine2d first = FromTo(1.0, 2.0, 4.0, 6.0);
    QnGeBaseLine2d copy(first);
    QnGeBaseLine2d assigned;
    assigned = first;
    first.dx = 100.0;
    first.basePoint.x = 100.0;
    EXPECT_TRUE(IsLine(copy, QnGePoint(1.0, 2.0), QnGePoint(3.0, 4.0)));
    EXPECT_TRUE(IsLine(assigned, QnGePoint(1.0, 2.0), QnGePoint(3.0, 4.0)));
    assigned.dy = -5.0;
    EXPECT_EQ(assigned.y, -5.0);
    EXPECT_EQ(first.y, 4.0);
    const QnGeBaseLine2d& self = copy;
    copy = self;
    EXPECT_TRUE(IsLine(copy, QnGePoint(1.0, 2.0), QnGePoint(3.0, 4.0)));
}

TEST(QnGeBaseLine2d, SettersReplaceTheParts) {
    QnGeBaseLine2d line;
    line.SetVector(QnGeVector2d(1.0, 2.0));
    line.SetBasePoint(QnGePoint(3.0, 4.0, 5.0));
    EXPECT_TRUE(IsLine(line, QnGePoint(3.0, 4.0, 5.0), QnGePoint(1.0, 2.0)));
    line.SetPoint(QnGePoint(1.0, 1.0, 1.0), QnGePoint(2.0, 3.0, 4.0));
    EXPECT_TRUE(IsLine(line, QnGePoint(1.0, 1.0, 1.0), QnGePoint(1.0, 2.0, 3.0)));
    line.SetPoint(QnGePoint(9.0, 9.0, 9.0), line.basePoint);
    EXPECT_TRUE(IsLine(line, QnGePoint(9.0, 9.0, 9.0), QnGePoint(-8.0, -8.0, -8.0)));
    line.SetPoint(line, QnGePoint(1.0, 1.0, 1.0));  // the direction as a point
    EXPECT_TRUE(IsLine(line, QnGePoint(-8.0, -8.0, -8.0), QnGePoint(9.0, 9.0, 9.0)));
}

TEST(QnGeBaseLine2d, IsValidWithADirectionAboveTheTolerance) {
    EXPECT_TRUE(QnGeBaseLine2d(QnGeVector2d(1.0000001e-6, 0.0), QnGePoint()).IsValid());
    EXPECT_FALSE(QnGeBaseLine2d(QnGeVector2d(1e-6, 0.0), QnGePoint()).IsValid());
}

TEST(QnGeBaseLine2d, TransformByKeepsTheDirectionsZ) {
    QnGeMatrix matrix;
    matrix.CreateScaleMatrix(2.0, 3.0, 4.0);
    QnGeMatrix move;
    move.CreateMoveMatrix(10.0, 20.0, 30.0);
    matrix.PreMultiBy(move);
    QnGeBaseLine2d line(QnGeVector2d(QnGePoint(1.0, 1.0, 5.0)), QnGePoint(1.0, 1.0, 1.0));
    line.TransformBy(matrix);
    EXPECT_TRUE(IsLine(line, QnGePoint(12.0, 23.0, 34.0), QnGePoint(2.0, 3.0, 5.0)));
}

TEST(QnGeBaseLine2d, ParameterComesFromTheLargerCoordinate) {
    double t = UNTOUCHED;
    EXPECT_TRUE(TWO_ALONG_X.GetPaFromPt(QnGePoint(1.0, 5.0), t));
    EXPECT_EQ(t, 0.5);
    EXPECT_TRUE(FromTo(1.0, 1.0, 2.0, 5.0).GetPaFromPt(QnGePoint(99.0, 3.0), t));
    EXPECT_EQ(t, 0.5);
    EXPECT_TRUE(FromTo(1.0, 1.0, -4.0, 5.0).GetPaFromPt(QnGePoint(-4.0, 99.0), t));
    EXPECT_EQ(t, 1.0);
}

TEST(QnGeBaseLine2d, ParameterComesFromYOnATie) {
    double t = UNTOUCHED;
    EXPECT_TRUE(FromTo(0.0, 0.0, 1.0, 1.0).GetPaFromPt(QnGePoint(5.0, 2.0), t));
    EXPECT_EQ(t, 2.0);
    EXPECT_TRUE(FromTo(0.0, 0.0, 1.0, -1.0).GetPaFromPt(QnGePoint(5.0, 2.0), t));
    EXPECT_EQ(t, -2.0);
}

TEST(QnGeBaseLine2d, PointsCarryAllCoordinates) {
    const QnGeBaseLine2d line(QnGePoint(0.0, 0.0, 1.0), QnGePoint(2.0, 4.0, 9.0));
    QnGePoint p;
    EXPECT_TRUE(line.GetPtFromPa(0.25, p));
    EXPECT_TRUE(IsExactly(p, 0.5, 1.0, 3.0));
    EXPECT_TRUE(line.GetPtFromPa(-1.0, p));
    EXPECT_TRUE(IsExactly(p, -2.0, -4.0, -7.0));
}

TEST(QnGeBaseLine2d, DistanceCountsPlanLength) {
    double d = UNTOUCHED;
    EXPECT_TRUE(TWO_ALONG_X.GetDistFromPa(0.5, d));
    EXPECT_EQ(d, 1.0);
    const QnGeBaseLine2d steep(QnGePoint(), QnGePoint(3.0, 4.0, 12.0));
    EXPECT_TRUE(steep.GetDistFromPa(-2.0, d));
    EXPECT_EQ(d, -10.0);
    double t = UNTOUCHED;
    EXPECT_TRUE(steep.GetPaFromDist(10.0, t));
    EXPECT_EQ(t, 2.0);
}

TEST(QnGeBaseLine2d, ParametersAndDistancesInvert) {
    Random random(2401);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseLine2d line = RandomLine(random);
        const double t = random.Real(-5.0, 5.0);
        QnGePoint p;
        double back = UNTOUCHED;
        ASSERT_TRUE(line.GetPtFromPa(t, p));
        ASSERT_TRUE(line.GetPaFromPt(p, back));
        ASSERT_NEAR(back, t, 1e-12);
        double d = UNTOUCHED;
        ASSERT_TRUE(line.GetDistFromPa(t, d));
        ASSERT_NEAR(std::fabs(d), PlanDistance(p, line.basePoint), 1e-11);
        ASSERT_TRUE(line.GetPaFromDist(d, back));
        ASSERT_NEAR(back, t, 1e-12);
    }
}

TEST(QnGeBaseLine2d, IntegrationIsTheAreaUnderTheLine) {
    EXPECT_NEAR(FromTo(0.0, 1.0, 4.0, 3.0).Integration(0.0, 1.0), 8.0, 1e-12);   // a trapezoid, 4 wide
    EXPECT_NEAR(FromTo(4.0, 3.0, 0.0, 1.0).Integration(0.0, 1.0), -8.0, 1e-12);  // backward
    EXPECT_NEAR(FromTo(0.0, 1.0, 4.0, 3.0).Integration(0.0, 0.5), 3.0, 1e-12);
    EXPECT_EQ(FromTo(1.0, 0.0, 1.0, 9.0).Integration(0.0, 1.0), 0.0);
}

TEST(QnGeBaseLine2d, OffsetGoesToTheRight) {
    QnGeBaseLine2d line(QnGeVector2d(1.0, 0.0), QnGePoint(0.0, 0.0, 3.0));
    line.Offset(1.0);
    EXPECT_TRUE(IsLine(line, QnGePoint(0.0, -1.0, 3.0), QnGePoint(1.0, 0.0)));
    line.Offset(-3.0);
    EXPECT_TRUE(IsLine(line, QnGePoint(0.0, 2.0, 3.0), QnGePoint(1.0, 0.0)));
    QnGeBaseLine2d up(QnGeVector2d(0.0, 5.0), QnGePoint(1.0, 0.0));
    up.Offset(2.0);
    EXPECT_TRUE(IsLine(up, QnGePoint(3.0, 0.0), QnGePoint(0.0, 5.0)));
}

TEST(QnGeBaseLine2d, IntersectionParametersCountInEachLinesOwnUnits) {
    const QnGeBaseLine2d across(QnGeVector2d(0.0, 4.0), QnGePoint(1.0, -2.0, 9.0));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(TWO_ALONG_X.IntersectWith(across, t1, t2, false), 1);
    EXPECT_NEAR(t1, 0.5, 1e-15);
    EXPECT_NEAR(t2, 0.5, 1e-15);
    double t = UNTOUCHED;
    EXPECT_EQ(TWO_ALONG_X.IntersectWith(across, t, false), 1);
    EXPECT_NEAR(t, 0.5, 1e-15);
    t1 = t2 = UNTOUCHED;
    EXPECT_EQ(TWO_ALONG_X.IntersectWith(across, t1, t2, true), 1);  // plain vectors solve as well
    EXPECT_NEAR(t1, 0.5, 1e-15);
    EXPECT_NEAR(t2, 0.5, 1e-15);
}

TEST(QnGeBaseLine2d, IntersectionPointLiesOnThisLine) {
    const QnGeBaseLine2d rising(QnGePoint(0.0, 0.0, 0.0), QnGePoint(2.0, 0.0, 8.0));
    const QnGeBaseLine2d across(QnGeVector2d(0.0, 4.0), QnGePoint(1.0, -2.0, 9.0));
    QnGePoint p(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_EQ(rising.IntersectWith(across, p, false), 1);
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 0.0, 4.0)));
}

TEST(QnGeBaseLine2d, ParallelAndEqualLinesLeaveTheOutputs) {
    const QnGeBaseLine2d apart(QnGeVector2d(-7.0, 0.0), QnGePoint(5.0, 1.0));
    const QnGeBaseLine2d same(QnGeVector2d(-7.0, 0.0), QnGePoint(5.0, 0.0));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    QnGePoint p(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    for (const bool normalized : {false, true}) {
        EXPECT_EQ(TWO_ALONG_X.IntersectWith(apart, t1, t2, normalized), 0);
        EXPECT_EQ(TWO_ALONG_X.IntersectWith(same, t1, t2, normalized), 10);
        EXPECT_EQ(TWO_ALONG_X.IntersectWith(apart, t1, normalized), 0);
        EXPECT_EQ(TWO_ALONG_X.IntersectWith(same, t1, normalized), 10);
        EXPECT_EQ(TWO_ALONG_X.IntersectWith(apart, p, normalized), 0);
        EXPECT_EQ(TWO_ALONG_X.IntersectWith(same, p, normalized), 10);
    }
    EXPECT_EQ(t1, UNTOUCHED);
    EXPECT_EQ(t2, UNTOUCHED);
    EXPECT_TRUE(IsExactly(p, UNTOUCHED, UNTOUCHED, UNTOUCHED));
}

TEST(QnGeBaseLine2d, ShortVectorsMeetOnlyWhenNormalized) {
    const QnGeBaseLine2d x(QnGeVector2d(1e-5, 0.0), QnGePoint());
    const QnGeBaseLine2d y(QnGeVector2d(0.0, 1e-5), QnGePoint());
    double t = UNTOUCHED;
    EXPECT_EQ(x.IntersectWith(y, t, true), 10);  // the raw determinant is 1e-10
    EXPECT_EQ(x.IntersectWith(y, t, false), 1);
}

TEST(QnGeBaseLine2d, IntersectionsLieOnBothLines) {
    Random random(2402);
    int met = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseLine2d a = RandomLine(random);
        const QnGeBaseLine2d b = RandomLine(random);
        const double sine = (a.dx * b.dy - a.dy * b.dx) / (std::hypot(a.dx, a.dy) * std::hypot(b.dx, b.dy));
        if (std::fabs(sine) < 1e-3) {
            continue;
        }
        double t1 = UNTOUCHED;
        double t2 = UNTOUCHED;
        QnGePoint p;
        ASSERT_EQ(a.IntersectWith(b, t1, t2, false), 1);
        ASSERT_EQ(a.IntersectWith(b, p, false), 1);
        QnGePoint onA;
        QnGePoint onB;
        a.GetPtFromPa(t1, onA);
        b.GetPtFromPa(t2, onB);
        ASSERT_NEAR(PlanDistance(onA, onB), 0.0, 1e-8);
        ASSERT_TRUE(IsNear(p, onA, 1e-8));
        ++met;
    }
    EXPECT_GT(met, PROPERTY_CASES / 2);
}

TEST(QnGeBaseLine2d, MeetsACircleInItsOwnUnits) {
    const QnGeBaseLine2d line(QnGeVector2d(2.0, 0.0), QnGePoint(-2.0, 0.0));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(line.IntersectWith(QnGeBaseCircle(QnGePoint(), 1.0), t1, t2, false), 2);
    EXPECT_NEAR(t1, 0.5, 1e-15);
    EXPECT_NEAR(t2, 1.5, 1e-15);
    const QnGeBaseLine2d unit(QnGeVector2d(1.0, 0.0), QnGePoint(-2.0, 0.0));
    EXPECT_EQ(unit.IntersectWith(QnGeBaseCircle(QnGePoint(), 1.0), t1, t2, true), 2);
    EXPECT_NEAR(t1, 1.0, 1e-15);
    EXPECT_NEAR(t2, 3.0, 1e-15);
}

TEST(QnGeBaseLine2d, TouchesOrMissesACircle) {
    const QnGeBaseLine2d line(QnGeVector2d(2.0, 0.0), QnGePoint(-2.0, 1.0));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(line.IntersectWith(QnGeBaseCircle(QnGePoint(), 0.5), t1, t2, false), 0);
    EXPECT_EQ(t1, UNTOUCHED);
    EXPECT_EQ(line.IntersectWith(QnGeBaseCircle(QnGePoint(), 1.0), t1, t2, false), 1);
    EXPECT_NEAR(t1, 1.0, 1e-15);
    EXPECT_EQ(t2, UNTOUCHED);
}

TEST(QnGeBaseLine2d, NearestPointIsTheFoot) {
    QnGePoint q;
    EXPECT_TRUE(TWO_ALONG_X.GetNearestPoint(QnGePoint(7.0, 5.0, 3.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(7.0, 0.0, 0.0)));
    const QnGeBaseLine2d rising(QnGePoint(0.0, 0.0, 0.0), QnGePoint(2.0, 0.0, 8.0));
    EXPECT_TRUE(rising.GetNearestPoint(QnGePoint(1.0, -5.0, 3.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(1.0, 0.0, 4.0)));
    const QnGeBaseLine2d shortVector(QnGeVector2d(1e-5, 0.0), QnGePoint());
    EXPECT_TRUE(shortVector.GetNearestPoint(QnGePoint(7.0, 5.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(7.0, 0.0, 0.0), 1e-9));
    Random random(2403);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseLine2d line = RandomLine(random);
        const QnGePoint p = random.PlanPoint(10.0);
        ASSERT_TRUE(line.GetNearestPoint(p, q));
        ASSERT_NEAR((q.x - p.x) * line.dx + (q.y - p.y) * line.dy, 0.0, 1e-9);
        ASSERT_NEAR((q.x - line.basePoint.x) * line.dy - (q.y - line.basePoint.y) * line.dx, 0.0, 1e-9);
    }
}

TEST(QnGeBaseLine2d, AnInvalidDirectionStillHasAFootWhileItCanBeNormalized) {
    const QnGeBaseLine2d line(QnGeVector2d(1e-7, 0.0), QnGePoint(1.0, 0.0, 0.0));
    QnGePoint q;
    EXPECT_FALSE(line.IsValid());
    EXPECT_TRUE(line.GetNearestPoint(QnGePoint(7.0, 5.0, 0.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(7.0, 0.0, 0.0), 1e-7));
}

TEST(QnGeBaseLine2d, NearestPointWithoutDirectionIsTheBase) {
    const QnGeBaseLine2d null(QnGeVector2d(), QnGePoint(1.0, 2.0, 3.0));
    QnGePoint q;
    EXPECT_FALSE(null.GetNearestPoint(QnGePoint(7.0, 8.0), q));
    EXPECT_TRUE(IsExactly(q, 1.0, 2.0, 3.0));
    EXPECT_EQ(Bits(null.HitTest(QnGePoint(1.0, 2.0), false)), ON);
}

TEST(QnGeBaseLine2d, HitTestTellsTheSide) {
    for (const bool normalized : {false, true}) {
        EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(1.0, 1.0), normalized)), IN);
        EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(1.0, -1.0), normalized)), OUT);
        EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(-50.0, 0.0, 9.0), normalized)), ON);
        EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(-50.0, 1e-3), normalized)), IN);
    }
}

TEST(QnGeBaseLine2d, HitTestTellsTheSideWithoutTolerance) {
    const QnGeBaseLine2d unit(QnGeVector2d(1.0, 0.0), QnGePoint());
    for (const bool normalized : {false, true}) {
        // seen from the base the point is far less than a tolerance off the direction
        EXPECT_EQ(Bits(unit.HitTest(QnGePoint(1e6, 1e-5), normalized)), IN);
        EXPECT_EQ(Bits(unit.HitTest(QnGePoint(1e6, -1e-5), normalized)), OUT);
    }
}

TEST(QnGeBaseLine2d, HitTestIncludesTheTolerance) {
    EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(0.0, 1e-6), false)), ON);
    EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(0.0, -1e-6), false)), ON);
    EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(0.0, 1.0000001e-6), false)), IN);
    EXPECT_EQ(Bits(TWO_ALONG_X.HitTest(QnGePoint(0.0, -1.0000001e-6), false)), OUT);
}

TEST(QnGeBaseLine2d, KeptOddHitTestWithoutDirectionIsOnEverywhere) {
    const QnGeBaseLine2d null(QnGeVector2d(), QnGePoint(1.0, 2.0));
    EXPECT_EQ(Bits(null.HitTest(QnGePoint(50.0, 60.0), false)), ON);
}

TEST(QnGeBaseLine2d, SameLineIsParallelAndThroughTheBase) {
    for (const bool normalized : {false, true}) {
        EXPECT_TRUE(TWO_ALONG_X.IsSameLine(FromTo(9.0, 0.0, 10.0, 0.0), true, normalized));
        EXPECT_TRUE(TWO_ALONG_X.IsSameLine(FromTo(10.0, 0.0, 9.0, 0.0), false, normalized));
        EXPECT_FALSE(TWO_ALONG_X.IsSameLine(FromTo(10.0, 0.0, 9.0, 0.0), true, normalized));
        EXPECT_FALSE(TWO_ALONG_X.IsSameLine(FromTo(9.0, 1.0, 10.0, 1.0), false, normalized));
        EXPECT_FALSE(TWO_ALONG_X.IsSameLine(FromTo(1.0, 0.0, 2.0, 1.0), false, normalized));
    }
}
