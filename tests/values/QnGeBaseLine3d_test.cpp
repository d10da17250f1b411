// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBaseLine3d.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeMatrix.h"

using namespace value_testing;

static_assert(std::is_base_of_v<QnGeVector3d, QnGeBaseLine3d>, "a line is its direction");
static_assert(!std::is_polymorphic_v<QnGeBaseLine3d>, "a plain value");
static_assert(std::is_copy_assignable_v<QnGeBaseLine3d>, "the references do not stand in the way");

namespace {

::testing::AssertionResult IsLine(const QnGeBaseLine3d& line, const QnGePoint& base, const QnGePoint& direction) {
    if (&line.dx != &line.x || &line.dy != &line.y || &line.dz != &line.z) {
        return ::testing::AssertionFailure() << "names another line's vector";
    }
    const ::testing::AssertionResult sameBase = IsNear(line.GetBasePoint(), base);
    return sameBase ? IsNear(line.GetVector(), direction) : sameBase;
}

QnGeBaseLine3d Along(double dx, double dy, double dz, const QnGePoint& base = QnGePoint()) {
    return QnGeBaseLine3d(QnGeVector3d(dx, dy, dz), base);
}

QnGeBaseLine3d RandomLine(Random& random) {
    for (;;) {
        const QnGeVector3d direction(random.Point(5.0));
        if (direction.Length() > 0.2) {
            return QnGeBaseLine3d(direction, random.Point(10.0));
        }
    }
}

}  // namespace

TEST(QnGeBaseLine3d, Builds) {
    EXPECT_TRUE(IsLine(QnGeBaseLine3d(), QnGePoint(), QnGePoint()));
    EXPECT_FALSE(QnGeBaseLine3d().IsValid());
    EXPECT_TRUE(Along(0.0, 0.0, 1.0).IsValid());
    EXPECT_TRUE(
        IsLine(Along(1.0, 2.0, 3.0, QnGePoint(4.0, 5.0, 6.0)), QnGePoint(4.0, 5.0, 6.0), QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(IsLine(QnGeBaseLine3d(QnGePoint(1.0, 2.0, 3.0), QnGePoint(5.0, 7.0, 9.0)), QnGePoint(1.0, 2.0, 3.0),
                       QnGePoint(4.0, 5.0, 6.0)));
}

TEST(QnGeBaseLine3d, CopiesNameTheirOwnVector) {
    QnGeBaseLine3d first = Along(1.0, 2.0, 3.0, QnGePoint(4.0, 5.0, 6.0));
    QnGeBaseLine3d copy(first);
    QnGeBaseLine3d assigned;
    assigned = first;
    first.dz = 100.0;
    EXPECT_TRUE(IsLine(copy, QnGePoint(4.0, 5.0, 6.0), QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(IsLine(assigned, QnGePoint(4.0, 5.0, 6.0), QnGePoint(1.0, 2.0, 3.0)));
    const QnGeBaseLine3d& self = copy;
    copy = self;
    EXPECT_TRUE(IsLine(copy, QnGePoint(4.0, 5.0, 6.0), QnGePoint(1.0, 2.0, 3.0)));
}

TEST(QnGeBaseLine3d, SettersReplaceTheParts) {
    QnGeBaseLine3d line;
    line.SetVector(QnGeVector3d(1.0, 2.0, 3.0));
    line.SetBasePoint(QnGePoint(4.0, 5.0, 6.0));
    EXPECT_TRUE(IsLine(line, QnGePoint(4.0, 5.0, 6.0), QnGePoint(1.0, 2.0, 3.0)));
    line.SetPoint(QnGePoint(1.0, 1.0, 1.0), QnGePoint(2.0, 3.0, 4.0));
    EXPECT_TRUE(IsLine(line, QnGePoint(1.0, 1.0, 1.0), QnGePoint(1.0, 2.0, 3.0)));
    line.SetPoint(QnGePoint(9.0, 9.0, 9.0), line.basePoint);
    EXPECT_TRUE(IsLine(line, QnGePoint(9.0, 9.0, 9.0), QnGePoint(-8.0, -8.0, -8.0)));
    line.SetPoint(line, QnGePoint(1.0, 1.0, 1.0));  // the direction as a point
    EXPECT_TRUE(IsLine(line, QnGePoint(-8.0, -8.0, -8.0), QnGePoint(9.0, 9.0, 9.0)));
}

TEST(QnGeBaseLine3d, TransformByTurnsTheDirectionAndMovesTheBase) {
    QnGeMatrix matrix;
    matrix.CreateScaleMatrix(2.0, 3.0, 4.0);
    QnGeMatrix move;
    move.CreateMoveMatrix(10.0, 20.0, 30.0);
    matrix.PreMultiBy(move);
    QnGeBaseLine3d line = Along(1.0, 1.0, 1.0, QnGePoint(1.0, 1.0, 1.0));
    line.TransformBy(matrix);
    EXPECT_TRUE(IsLine(line, QnGePoint(12.0, 23.0, 34.0), QnGePoint(2.0, 3.0, 4.0)));
}

TEST(QnGeBaseLine3d, ParameterComesFromTheLargestCoordinate) {
    const QnGePoint p(2.0, 30.0, 400.0);
    struct Row {
        QnGePoint direction;
        double expected;
    };
    const Row rows[] = {{QnGePoint(4.0, 1.0, 1.0), 0.5},   {QnGePoint(-4.0, 1.0, 1.0), -0.5},
                        {QnGePoint(1.0, 4.0, 2.0), 7.5},   {QnGePoint(1.0, 2.0, 4.0), 100.0},
                        {QnGePoint(1.0, 1.0, 1.0), 400.0},   // all equal: z
                        {QnGePoint(2.0, 2.0, 1.0), 15.0},    // x and y tie: y
                        {QnGePoint(2.0, 1.0, 2.0), 200.0},   // x and z tie: z
                        {QnGePoint(1.0, 2.0, 2.0), 200.0}};  // y and z tie: z
    for (const Row& row : rows) {
        const QnGeBaseLine3d line{QnGeVector3d(row.direction), QnGePoint()};
        double t = UNTOUCHED;
        EXPECT_TRUE(line.GetPaFromPt(p, t));
        EXPECT_EQ(t, row.expected) << PointText(row.direction);
    }
}

TEST(QnGeBaseLine3d, DistanceCountsLengthInSpace) {
    const QnGeBaseLine3d line = Along(3.0, 4.0, 12.0);
    double d = UNTOUCHED;
    EXPECT_TRUE(line.GetDistFromPa(2.0, d));
    EXPECT_EQ(d, 26.0);
    double t = UNTOUCHED;
    EXPECT_TRUE(line.GetPaFromDist(-13.0, t));
    EXPECT_EQ(t, -1.0);
}

TEST(QnGeBaseLine3d, ParametersAndDistancesInvert) {
    Random random(2404);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseLine3d line = RandomLine(random);
        const double t = random.Real(-5.0, 5.0);
        QnGePoint p;
        double back = UNTOUCHED;
        ASSERT_TRUE(line.GetPtFromPa(t, p));
        ASSERT_TRUE(line.GetPaFromPt(p, back));
        ASSERT_NEAR(back, t, 1e-11);
        double d = UNTOUCHED;
        ASSERT_TRUE(line.GetDistFromPa(t, d));
        ASSERT_NEAR(std::fabs(d), SpaceDistance(p, line.basePoint), 1e-11);
        ASSERT_TRUE(line.GetPaFromDist(d, back));
        ASSERT_NEAR(back, t, 1e-12);
    }
}

TEST(QnGeBaseLine3d, IntersectionParametersCountInEachLinesOwnUnits) {
    const QnGeBaseLine3d a = Along(2.0, 0.0, 0.0, QnGePoint(0.0, 0.0, 5.0));
    const QnGeBaseLine3d b = Along(0.0, 0.0, 10.0, QnGePoint(1.0, 0.0, 0.0));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(a.IntersectWith(b, t1, t2, false), 1);
    EXPECT_NEAR(t1, 0.5, 1e-12);
    EXPECT_NEAR(t2, 0.5, 1e-12);
    double t = UNTOUCHED;
    EXPECT_EQ(a.IntersectWith(b, t, false), 1);
    EXPECT_NEAR(t, 0.5, 1e-12);
    QnGePoint p;
    EXPECT_EQ(a.IntersectWith(b, p, false), 1);
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 0.0, 5.0)));
}

TEST(QnGeBaseLine3d, ShortVectorsMeetOnlyWhenNormalized) {
    const QnGeBaseLine3d x = Along(1e-5, 0.0, 0.0, QnGePoint(0.0, 1.0, 0.0));
    const QnGeBaseLine3d y = Along(0.0, 1e-5, 0.0, QnGePoint(1.0, 0.0, 0.0));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    EXPECT_EQ(x.IntersectWith(y, t1, t2, true), 0);  // the raw determinant is 1e-10
    EXPECT_EQ(t1, UNTOUCHED);
    EXPECT_EQ(x.IntersectWith(y, t1, t2, false), 1);
    EXPECT_NEAR(t1, 1e5, 1e-6);
    EXPECT_NEAR(t2, 1e5, 1e-6);
    const QnGeBaseLine3d unit = Along(0.0, 0.0, 1.0, QnGePoint(0.0, 1.0, -4.0));
    EXPECT_EQ(unit.IntersectWith(Along(1.0, 0.0, 0.0, QnGePoint(7.0, 1.0, 0.0)), t1, t2, true), 1);
    EXPECT_NEAR(t1, 4.0, 1e-12);
    EXPECT_NEAR(t2, -7.0, 1e-12);
}

TEST(QnGeBaseLine3d, SkewParallelAndEqualLinesLeaveTheOutputs) {
    const QnGeBaseLine3d x = Along(1.0, 0.0, 0.0);
    const QnGeBaseLine3d skew = Along(0.0, 1.0, 0.0, QnGePoint(3.0, 5.0, 2.0));
    const QnGeBaseLine3d parallel = Along(-3.0, 0.0, 0.0, QnGePoint(3.0, 5.0, 2.0));
    const QnGeBaseLine3d same = Along(-3.0, 0.0, 0.0, QnGePoint(7.0, 0.0, 0.0));
    double t1 = UNTOUCHED;
    double t2 = UNTOUCHED;
    QnGePoint p(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_EQ(x.IntersectWith(skew, t1, t2, false), 0);
    EXPECT_EQ(x.IntersectWith(parallel, t1, t2, false), 0);
    EXPECT_EQ(x.IntersectWith(same, t1, t2, false), 10);
    EXPECT_EQ(x.IntersectWith(skew, p, false), 0);
    EXPECT_EQ(x.IntersectWith(same, p, false), 10);
    EXPECT_EQ(t1, UNTOUCHED);
    EXPECT_EQ(t2, UNTOUCHED);
    EXPECT_TRUE(IsExactly(p, UNTOUCHED, UNTOUCHED, UNTOUCHED));
}

TEST(QnGeBaseLine3d, IntersectionsLieOnBothLines) {
    Random random(2405);
    int met = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseLine3d a = RandomLine(random);
        const QnGePoint common = a.basePoint + a.GetVector() * random.Real(-3.0, 3.0);
        const QnGeVector3d direction(random.Point(3.0));
        const QnGeBaseLine3d b(direction, common - direction * random.Real(-3.0, 3.0));
        if (direction.Length() < 0.3 || (a.GetVector() * direction).Length() < 0.1 * a.Length() * direction.Length()) {
            continue;
        }
        if (SpaceDistance(a.basePoint, b.basePoint) < 0.1) {
            continue;
        }
        double t1 = UNTOUCHED;
        double t2 = UNTOUCHED;
        ASSERT_EQ(a.IntersectWith(b, t1, t2, false), 1);
        QnGePoint onA;
        QnGePoint onB;
        a.GetPtFromPa(t1, onA);
        b.GetPtFromPa(t2, onB);
        ASSERT_TRUE(IsNear(onA, common, 1e-6));
        ASSERT_TRUE(IsNear(onB, common, 1e-6));
        ++met;
    }
    EXPECT_GT(met, PROPERTY_CASES / 2);
}

TEST(QnGeBaseLine3d, NearestPointIsTheFoot) {
    Random random(2406);
    QnGePoint q;
    EXPECT_TRUE(Along(0.0, 0.0, 2.0, QnGePoint(1.0, 1.0, 0.0)).GetNearestPoint(QnGePoint(5.0, 6.0, 7.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(1.0, 1.0, 7.0)));
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBaseLine3d line = RandomLine(random);
        const QnGePoint p = random.Point(10.0);
        ASSERT_TRUE(line.GetNearestPoint(p, q));
        ASSERT_NEAR(line.GetVector() & (q - p), 0.0, 1e-9);
        ASSERT_NEAR((line.GetVector() * (q - line.basePoint)).Length(), 0.0, 1e-9);
    }
}

TEST(QnGeBaseLine3d, AnInvalidDirectionStillHasAFootWhileItCanBeNormalized) {
    const QnGeBaseLine3d line(QnGeVector3d(1e-7, 0.0, 0.0), QnGePoint(1.0, 0.0, 0.0));
    QnGePoint q;
    EXPECT_FALSE(line.IsValid());
    EXPECT_TRUE(line.GetNearestPoint(QnGePoint(7.0, 5.0, 0.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(7.0, 0.0, 0.0), 1e-7));
}

TEST(QnGeBaseLine3d, NearestPointWithoutDirectionIsTheBase) {
    const QnGeBaseLine3d null(QnGeVector3d(), QnGePoint(1.0, 2.0, 3.0));
    QnGePoint q;
    EXPECT_FALSE(null.GetNearestPoint(QnGePoint(7.0, 8.0, 9.0), q));
    EXPECT_TRUE(IsExactly(q, 1.0, 2.0, 3.0));
}

TEST(QnGeBaseLine3d, KeptOddHitTestWithoutDirectionIsOnEverywhere) {
    const QnGeBaseLine3d null(QnGeVector3d(), QnGePoint(1.0, 2.0, 3.0));
    EXPECT_EQ(Bits(null.HitTest(QnGePoint(50.0, 60.0, 70.0), false)), ON);
}

TEST(QnGeBaseLine3d, HitTestIsByTheDistanceInSpace) {
    const QnGeBaseLine3d line = Along(2.0, 0.0, 0.0);
    for (const bool normalized : {false, true}) {
        EXPECT_EQ(Bits(line.HitTest(QnGePoint(-50.0, 0.0, 0.0), normalized)), ON);
        EXPECT_EQ(Bits(line.HitTest(QnGePoint(0.0, 0.0, 1e-6), normalized)), ON);
        EXPECT_FALSE(line.HitTest(QnGePoint(0.0, 0.0, 1.0000001e-6), normalized).HasBit(HIT_ON));
        EXPECT_FALSE(line.HitTest(QnGePoint(1.0, 0.0, 1.0), normalized).HasBit(HIT_ON));
    }
}

TEST(QnGeBaseLine3d, KeptOddHitTestWidensFarFromTheBase) {
    const QnGeBaseLine3d line = Along(2.0, 0.0, 0.0);
    for (const bool normalized : {false, true}) {
        const QnGeBaseLine3d tested = normalized ? Along(1.0, 0.0, 0.0) : line;
        EXPECT_EQ(Bits(tested.HitTest(QnGePoint(1000.0, 0.0, 5e-4), normalized)), ON);
        EXPECT_EQ(Bits(tested.HitTest(QnGePoint(-1000.0, 5e-4, 0.0), normalized)), ON);
        EXPECT_EQ(Bits(tested.HitTest(QnGePoint(1000.0, 0.0, 2e-3), normalized)), 0U);
        EXPECT_EQ(Bits(tested.HitTest(QnGePoint(1.0, 0.0, 1e-5), normalized)), 0U);
    }
}

TEST(QnGeBaseLine3d, SameLineIsParallelAndThroughTheBase) {
    const QnGeBaseLine3d line = Along(2.0, 0.0, 0.0);
    EXPECT_TRUE(line.IsSameLine(Along(5.0, 0.0, 0.0, QnGePoint(9.0, 0.0, 0.0)), true, false));
    EXPECT_TRUE(line.IsSameLine(Along(-5.0, 0.0, 0.0, QnGePoint(9.0, 0.0, 0.0)), false, false));
    EXPECT_FALSE(line.IsSameLine(Along(-5.0, 0.0, 0.0, QnGePoint(9.0, 0.0, 0.0)), true, false));
    EXPECT_FALSE(line.IsSameLine(Along(5.0, 0.0, 0.0, QnGePoint(9.0, 0.0, 1.0)), false, false));
    EXPECT_FALSE(line.IsSameLine(Along(5.0, 0.0, 1.0, QnGePoint(9.0, 0.0, 0.0)), false, false));
    const QnGeBaseLine3d unit = Along(0.0, 0.6, 0.8);
    EXPECT_TRUE(unit.IsSameLine(Along(0.0, 0.6, 0.8, QnGePoint(0.0, 3.0, 4.0)), true, true));
    EXPECT_TRUE(unit.IsSameLine(Along(0.0, -0.6, -0.8, QnGePoint(0.0, 3.0, 4.0)), false, true));
    EXPECT_FALSE(unit.IsSameLine(Along(0.0, -0.6, -0.8, QnGePoint(0.0, 3.0, 4.0)), true, true));
    EXPECT_FALSE(unit.IsSameLine(Along(0.0, 0.6, 0.8, QnGePoint(1.0, 3.0, 4.0)), true, true));
}

TEST(QnGeBaseLine3d, InOnePlaneUnlessSkew) {
    const QnGeBaseLine3d x = Along(1.0, 0.0, 0.0);
    EXPECT_TRUE(x.IsInSamePlane(Along(0.0, 3.0, 0.0, QnGePoint(5.0, 7.0, 0.0))));
    EXPECT_TRUE(x.IsInSamePlane(Along(4.0, 0.0, 0.0, QnGePoint(5.0, 7.0, 9.0))));
    EXPECT_TRUE(x.IsInSamePlane(Along(4.0, 0.0, 0.0, QnGePoint(5.0, 0.0, 0.0))));
    EXPECT_FALSE(x.IsInSamePlane(Along(0.0, 3.0, 0.0, QnGePoint(5.0, 7.0, 2.0))));
}
