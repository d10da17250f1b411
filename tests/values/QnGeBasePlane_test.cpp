// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeBasePlane.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeMatrix.h"

using namespace value_testing;

static_assert(std::is_base_of_v<QnGeVector3d, QnGeBasePlane>, "a plane is its normal");
static_assert(!std::is_polymorphic_v<QnGeBasePlane>, "a plain value");
static_assert(std::is_copy_assignable_v<QnGeBasePlane>, "the references do not stand in the way");

namespace {

::testing::AssertionResult IsPlane(const QnGeBasePlane& plane, double a, double b, double c, double d) {
    if (&plane.a != &plane.x || &plane.b != &plane.y || &plane.c != &plane.z) {
        return ::testing::AssertionFailure() << "names another plane's normal";
    }
    if (std::fabs(plane.d - d) > 1e-12) {
        return ::testing::AssertionFailure() << "d is " << plane.d << " instead of " << d;
    }
    return IsNear(plane.GetNormal(), QnGePoint(a, b, c));
}

QnGeBasePlane Plane(double a, double b, double c, double d) {
    QnGeBasePlane plane;
    plane.SetNormal(QnGeVector3d(a, b, c));
    plane.d = d;
    return plane;
}

QnGeBasePlane RandomPlane(Random& random) {
    for (;;) {
        const QnGeVector3d normal(random.Point(3.0));
        if (normal.Length() > 0.2) {
            return QnGeBasePlane(normal, random.Point(9.0));
        }
    }
}

double Value(const QnGeBasePlane& plane, const QnGePoint& p) {
    return (plane.a * p.x + plane.b * p.y + plane.c * p.z + plane.d) / std::hypot(plane.a, plane.b, plane.c);
}

}  // namespace

TEST(QnGeBasePlane, Builds) {
    EXPECT_TRUE(IsPlane(QnGeBasePlane(), 0.0, 0.0, 0.0, 0.0));
    const QnGeBasePlane plane(QnGeVector3d(1.0, 2.0, 3.0), QnGePoint(4.0, 5.0, 6.0));
    EXPECT_TRUE(IsPlane(plane, 1.0, 2.0, 3.0, -32.0));
    EXPECT_EQ(plane.GetD(), -32.0);
}

TEST(QnGeBasePlane, CopiesNameTheirOwnNormal) {
    QnGeBasePlane first = Plane(1.0, 2.0, 3.0, 4.0);
    QnGeBasePlane copy(first);
    QnGeBasePlane assigned;
    assigned = first;
    first.a = 100.0;
    first.d = 100.0;
    EXPECT_TRUE(IsPlane(copy, 1.0, 2.0, 3.0, 4.0));
    EXPECT_TRUE(IsPlane(assigned, 1.0, 2.0, 3.0, 4.0));
    const QnGeBasePlane& self = copy;
    copy = self;
    EXPECT_TRUE(IsPlane(copy, 1.0, 2.0, 3.0, 4.0));
}

TEST(QnGeBasePlane, SetBasePointMovesThePlane) {
    QnGeBasePlane plane;
    plane.SetNormal(QnGeVector3d(0.0, 0.0, 2.0));
    plane.SetBasePoint(QnGePoint(7.0, 8.0, 3.0));
    EXPECT_TRUE(IsPlane(plane, 0.0, 0.0, 2.0, -6.0));
}

TEST(QnGeBasePlane, SamplePointLiesOnTheAxisOfTheLargestCoordinate) {
    EXPECT_TRUE(IsExactly(Plane(0.0, 0.0, 1.0, -5.0).GetSamplePoint(), 0.0, 0.0, 5.0));
    EXPECT_TRUE(IsExactly(Plane(1.0, 1.0, 0.0, -1.0).GetSamplePoint(), 0.0, 1.0, 0.0));  // the tie falls to y
    EXPECT_TRUE(IsExactly(Plane(-4.0, 1.0, 1.0, 8.0).GetSamplePoint(), 2.0, 0.0, 0.0));
    EXPECT_TRUE(IsExactly(Plane(1.0, -4.0, 1.0, 8.0).GetSamplePoint(), 0.0, 2.0, 0.0));
    EXPECT_TRUE(IsExactly(Plane(1.0, 1.0, 1.0, -3.0).GetSamplePoint(), 0.0, 0.0, 3.0));
    EXPECT_TRUE(IsExactly(Plane(2.0, 0.0, 2.0, -4.0).GetSamplePoint(), 0.0, 0.0, 2.0));
    EXPECT_TRUE(IsExactly(Plane(0.0, 2.0, 2.0, -4.0).GetSamplePoint(), 0.0, 0.0, 2.0));
}

TEST(QnGeBasePlane, TransformByTurnsNormalAndPoint) {
    QnGeMatrix matrix;
    matrix.CreateXRotateMatrix(EXACT_PI / 2.0);
    QnGeMatrix move;
    move.CreateMoveMatrix(10.0, 20.0, 30.0);
    matrix.PreMultiBy(move);
    QnGeBasePlane plane = Plane(0.0, 0.0, 1.0, -5.0);
    plane.TransformBy(matrix);
    EXPECT_TRUE(IsPlane(plane, 0.0, -1.0, 0.0, 15.0));  // through (10, 15, 30)
}

TEST(QnGeBasePlane, NormalizeDividesAllFour) {
    QnGeBasePlane plane = Plane(2.0, 3.0, 6.0, 14.0);
    EXPECT_TRUE(plane.Normalize());
    EXPECT_TRUE(IsPlane(plane, 2.0 / 7.0, 3.0 / 7.0, 6.0 / 7.0, 2.0));
    QnGeBasePlane null = Plane(0.0, 0.0, 1e-9, 5.0);
    EXPECT_FALSE(null.Normalize());
    EXPECT_TRUE(IsPlane(null, 0.0, 0.0, 1e-9, 5.0));
}

TEST(QnGeBasePlane, TwoPlanesMeetInALine) {
    QnGeBaseLine3d line;
    EXPECT_EQ(Plane(0.0, 0.0, 2.0, -4.0).IntersectWith(Plane(3.0, 0.0, 0.0, -3.0), line, false), 10);
    EXPECT_NEAR(std::fabs(line.dy), 1.0, 1e-15);
    EXPECT_EQ(line.dx, 0.0);
    EXPECT_EQ(line.dz, 0.0);
    EXPECT_NEAR(line.basePoint.x, 1.0, 1e-15);
    EXPECT_NEAR(line.basePoint.z, 2.0, 1e-15);
}

TEST(QnGeBasePlane, ShortNormalsMeetOnlyWhenNormalized) {
    const QnGeBasePlane x = Plane(1e-5, 0.0, 0.0, -3e-5);
    const QnGeBasePlane y = Plane(0.0, 1e-5, 0.0, -4e-5);
    QnGeBaseLine3d line;
    EXPECT_EQ(x.IntersectWith(y, line, true), 12);  // the raw determinant is 1e-10
    EXPECT_EQ(x.IntersectWith(y, line, false), 10);
    EXPECT_TRUE(IsNear(line.basePoint, QnGePoint(3.0, 4.0, 0.0)));
    const QnGeBaseLine3d across(QnGeVector3d(1e-5, 0.0, 0.0), QnGePoint(1.0, 7.0, 7.0));
    double t = UNTOUCHED;
    QnGePoint p;
    EXPECT_EQ(x.IntersectWith(across, t, true), 0);
    EXPECT_EQ(t, UNTOUCHED);
    EXPECT_EQ(x.IntersectWith(across, p, false), 1);
    EXPECT_TRUE(IsNear(p, QnGePoint(3.0, 7.0, 7.0)));
    EXPECT_TRUE(IsPlane(x, 1e-5, 0.0, 0.0, -3e-5));
}

TEST(QnGeBasePlane, TwoPlanesMeetOnBoth) {
    Random random(2411);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBasePlane a = RandomPlane(random);
        const QnGeBasePlane b = RandomPlane(random);
        if ((a.GetNormal() * b.GetNormal()).Length() < 0.1 * a.Length() * b.Length()) {
            continue;
        }
        QnGeBaseLine3d line;
        ASSERT_EQ(a.IntersectWith(b, line, false), 10);
        ASSERT_NEAR(line.Length(), 1.0, 1e-12);
        for (const double t : {-1.0, 0.0, 2.0}) {
            QnGePoint p;
            line.GetPtFromPa(t, p);
            const double scale = 1e-9 * (1.0 + std::fabs(p.x) + std::fabs(p.y) + std::fabs(p.z));
            ASSERT_NEAR(Value(a, p), 0.0, scale);
            ASSERT_NEAR(Value(b, p), 0.0, scale);
        }
    }
}

TEST(QnGeBasePlane, ParallelPlanesLeaveTheLine) {
    QnGeBaseLine3d line(QnGeVector3d(7.0, 8.0, 9.0), QnGePoint(1.0, 2.0, 3.0));
    EXPECT_EQ(Plane(2.0, 0.0, 0.0, -2.0).IntersectWith(Plane(3.0, 0.0, 0.0, 0.0), line, false), 0);
    EXPECT_EQ(Plane(2.0, 0.0, 0.0, -2.0).IntersectWith(Plane(3.0, 0.0, 0.0, -3.0), line, false), 12);
    EXPECT_TRUE(IsExactly(line.GetVector(), 7.0, 8.0, 9.0));
    EXPECT_TRUE(IsExactly(line.basePoint, 1.0, 2.0, 3.0));
}

TEST(QnGeBasePlane, KeptOddParallelPlanesWithoutAnXPartCoincide) {
    QnGeBaseLine3d line;
    EXPECT_EQ(Plane(0.0, 0.0, 1.0, 0.0).IntersectWith(Plane(0.0, 0.0, 1.0, -5.0), line, false), 12);
    EXPECT_EQ(Plane(0.0, 1.0, 0.0, 0.0).IntersectWith(Plane(0.0, 1.0, 0.0, -5.0), line, true), 12);
}

TEST(QnGeBasePlane, MeetsALineInTheLinesOwnUnits) {
    const QnGeBasePlane plane = Plane(0.0, 0.0, 4.0, -20.0);  // z = 5
    const QnGeBaseLine3d line(QnGeVector3d(0.0, 6.0, 2.0), QnGePoint(1.0, 0.0, 1.0));
    double t = UNTOUCHED;
    EXPECT_EQ(plane.IntersectWith(line, t, false), 1);
    EXPECT_NEAR(t, 2.0, 1e-12);
    QnGePoint p;
    EXPECT_EQ(plane.IntersectWith(line, p, false), 1);
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, 12.0, 5.0)));
    EXPECT_EQ(plane.IntersectWith(line, t, true), 1);
    EXPECT_NEAR(t, 2.0, 1e-12);
}

TEST(QnGeBasePlane, LinesAlongThePlaneLeaveTheOutputs) {
    const QnGeBasePlane plane = Plane(0.0, 0.0, 4.0, -20.0);
    const QnGeBaseLine3d above(QnGeVector3d(1.0, 1.0, 0.0), QnGePoint(0.0, 0.0, 6.0));
    const QnGeBaseLine3d inside(QnGeVector3d(1.0, 1.0, 0.0), QnGePoint(0.0, 0.0, 5.0));
    double t = UNTOUCHED;
    QnGePoint p(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_EQ(plane.IntersectWith(above, t, false), 0);
    EXPECT_EQ(plane.IntersectWith(inside, t, false), 10);
    EXPECT_EQ(plane.IntersectWith(above, p, false), 0);
    EXPECT_EQ(plane.IntersectWith(inside, p, false), 10);
    EXPECT_EQ(t, UNTOUCHED);
    EXPECT_TRUE(IsExactly(p, UNTOUCHED, UNTOUCHED, UNTOUCHED));
}

TEST(QnGeBasePlane, NearestPointIsTheFootAlongTheNormal) {
    QnGePoint q;
    EXPECT_TRUE(Plane(0.0, 0.0, 4.0, -20.0).GetNearestPoint(QnGePoint(1.0, 2.0, 9.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(1.0, 2.0, 5.0)));
    Random random(2412);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeBasePlane plane = RandomPlane(random);
        const QnGePoint p = random.Point(9.0);
        ASSERT_TRUE(plane.GetNearestPoint(p, q));
        ASSERT_NEAR(Value(plane, q), 0.0, 1e-9);
        ASSERT_NEAR(SpaceDistance(p, q), std::fabs(Value(plane, p)), 1e-9);
    }
}

TEST(QnGeBasePlane, WithoutANormalThereIsNoNearestPoint) {
    QnGePoint q(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    EXPECT_FALSE(Plane(0.0, 0.0, 1e-9, 5.0).GetNearestPoint(QnGePoint(1.0, 2.0, 3.0), q));
    EXPECT_TRUE(IsExactly(q, UNTOUCHED, UNTOUCHED, UNTOUCHED));
    EXPECT_TRUE(Plane(0.0, 0.0, 1e-7, -5e-7).GetNearestPoint(QnGePoint(1.0, 2.0, 3.0), q));
    EXPECT_TRUE(IsNear(q, QnGePoint(1.0, 2.0, 5.0), 1e-9));
}

TEST(QnGeBasePlane, HitTestTellsTheSide) {
    const QnGeBasePlane scaled = Plane(0.0, 0.0, 4.0, -20.0);
    EXPECT_EQ(Bits(scaled.HitTest(QnGePoint(9.0, 9.0, 5.0), false)), ON);
    EXPECT_EQ(Bits(scaled.HitTest(QnGePoint(9.0, 9.0, 6.0), false)), OUT);
    EXPECT_EQ(Bits(scaled.HitTest(QnGePoint(9.0, 9.0, 4.0), false)), IN);
    const QnGeBasePlane unit = Plane(0.0, 0.0, 1.0, -5.0);
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(9.0, 9.0, 5.0), true)), ON);
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(9.0, 9.0, 6.0), true)), OUT);
    EXPECT_EQ(Bits(unit.HitTest(QnGePoint(9.0, 9.0, 4.0), true)), IN);
}

TEST(QnGeBasePlane, HitTestIncludesTheTolerance) {
    const QnGeBasePlane ground = Plane(0.0, 0.0, 1.0, 0.0);
    EXPECT_EQ(Bits(ground.HitTest(QnGePoint(0.0, 0.0, 1e-6), true)), ON);
    EXPECT_EQ(Bits(ground.HitTest(QnGePoint(0.0, 0.0, -1e-6), true)), ON);
    EXPECT_EQ(Bits(ground.HitTest(QnGePoint(0.0, 0.0, 1.0000001e-6), true)), OUT);
    EXPECT_EQ(Bits(ground.HitTest(QnGePoint(0.0, 0.0, -1.0000001e-6), true)), IN);
}

TEST(QnGeBasePlane, SamePlaneIsParallelAndThroughTheSamplePoint) {
    const QnGeBasePlane plane = Plane(0.0, 0.0, 4.0, -20.0);
    EXPECT_TRUE(plane.IsSamePlane(Plane(0.0, 0.0, 1.0, -5.0), true, false));
    EXPECT_TRUE(plane.IsSamePlane(Plane(0.0, 0.0, -1.0, 5.0), false, false));
    EXPECT_FALSE(plane.IsSamePlane(Plane(0.0, 0.0, -1.0, 5.0), true, false));
    EXPECT_FALSE(plane.IsSamePlane(Plane(0.0, 0.0, 1.0, -6.0), false, false));
    EXPECT_FALSE(plane.IsSamePlane(Plane(0.0, 1.0, 1.0, -5.0), false, false));
    EXPECT_TRUE(Plane(0.0, 0.0, 1.0, -5.0).IsSamePlane(Plane(0.0, 0.0, 1.0, -5.0), true, true));
}
