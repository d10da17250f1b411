// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePoint.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

using namespace value_testing;

namespace {

template <class A, class B, class = void>
struct HasLessEqual : std::false_type {};
template <class A, class B>
struct HasLessEqual<A, B, std::void_t<decltype(std::declval<const A&>() <= std::declval<const B&>())>>
    : std::true_type {};

template <class A, class B, class = void>
struct HasGreaterEqual : std::false_type {};
template <class A, class B>
struct HasGreaterEqual<A, B, std::void_t<decltype(std::declval<const A&>() >= std::declval<const B&>())>>
    : std::true_type {};

static_assert(!HasLessEqual<QnGePoint, QnGePoint>::value, "it would compare addresses");
static_assert(!HasGreaterEqual<QnGePoint, QnGePoint>::value, "it would compare addresses");

static_assert(!std::is_polymorphic_v<QnGePoint>, "a point is three numbers");
static_assert(sizeof(QnGePoint) == 3 * sizeof(double), "a point is three numbers");
static_assert(std::is_convertible_v<QnGePoint&, double*>, "points go where arrays of doubles are asked for");
static_assert(std::is_convertible_v<const QnGePoint&, const double*>, "also as constants");
static_assert(!std::is_convertible_v<const QnGePoint&, double*>, "but not writable then");
static_assert(std::is_constructible_v<QnGePoint, const float*>, "from single precision");
static_assert(!std::is_constructible_v<QnGePoint, double>, "one number is no point");
static_assert(std::is_same_v<decltype(QnGePoint() - QnGePoint()), QnGePoint>, "a difference stays a point");
static_assert(std::is_same_v<decltype(QnGePoint() * 2.0), QnGePoint>, "a multiple stays a point");

/// The lexicographic order by its definition.
bool ReferenceGreater(const QnGePoint& p, const QnGePoint& q, double tol) {
    if (p.x - q.x > tol) {
        return true;
    }
    if (p.x - q.x < -tol) {
        return false;
    }
    if (p.y - q.y > tol) {
        return true;
    }
    if (p.y - q.y < -tol) {
        return false;
    }
    return p.z - q.z > tol;
}

}  // namespace

TEST(QnGePoint, DefaultIsTheOrigin) {
    EXPECT_TRUE(IsExactly(QnGePoint(), 0.0, 0.0, 0.0));
}

TEST(QnGePoint, BuildsFromCoordinates) {
    EXPECT_TRUE(IsExactly(QnGePoint(1.0, 2.0, 3.0), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(QnGePoint(1.0, 2.0), 1.0, 2.0, 0.0));
}

TEST(QnGePoint, BuildsFromThreeNumbersInMemory) {
    const double doubles[3] = {1.5, 2.5, 3.5};
    const float floats[3] = {4.5F, 5.5F, 6.5F};
    EXPECT_TRUE(IsExactly(QnGePoint(doubles), 1.5, 2.5, 3.5));
    EXPECT_TRUE(IsExactly(QnGePoint(floats), 4.5, 5.5, 6.5));
}

TEST(QnGePoint, SetPointWithTwoNumbersKeepsZ) {
    QnGePoint p(1.0, 2.0, 3.0);
    p.SetPoint(7.0, 8.0);
    EXPECT_TRUE(IsExactly(p, 7.0, 8.0, 3.0));
    p.SetPoint(4.0, 5.0, 6.0);
    EXPECT_TRUE(IsExactly(p, 4.0, 5.0, 6.0));
}

TEST(QnGePoint, CoordinatesLieInOrder) {
    QnGePoint p(1.0, 2.0, 3.0);
    double* first = p;
    EXPECT_EQ(first, &p.x);
    EXPECT_EQ(&p.y, &p.x + 1);
    EXPECT_EQ(&p.z, &p.x + 2);
}

TEST(QnGePoint, IndexesByIntAndLong) {
    QnGePoint p(1.0, 2.0, 3.0);
    const QnGePoint& constant = p;
    EXPECT_EQ(p[0], 1.0);
    EXPECT_EQ(p[1L], 2.0);
    EXPECT_EQ(constant[2], 3.0);
    EXPECT_EQ(constant[2L], 3.0);
    p[1] = 9.0;
    p[2L] = 8.0;
    EXPECT_TRUE(IsExactly(p, 1.0, 9.0, 8.0));
}

TEST(QnGePoint, MeasuresFromTheOrigin) {
    EXPECT_EQ(QnGePoint(3.0, 4.0, 12.0).Length2d(), 5.0);
    EXPECT_EQ(QnGePoint(3.0, 4.0, 12.0).Length3d(), 13.0);
}

TEST(QnGePoint, PlanDistanceIgnoresZ) {
    const QnGePoint p(1.0, 1.0, 1.0);
    const QnGePoint q(4.0, 5.0, 13.0);
    EXPECT_EQ(p.Distance2d(q), 5.0);
    EXPECT_EQ(p.Distance3d(q), 13.0);
    EXPECT_EQ(GetDistance2d(p, q), 5.0);
    EXPECT_EQ(GetDistance3d(p, q), 13.0);
}

TEST(QnGePoint, PointsThatDifferOnlyInZAreEqualInPlanAlone) {
    const QnGePoint p(1.0, 2.0, 0.0);
    const QnGePoint q(1.0, 2.0, 5.0);
    EXPECT_EQ(GetDistance2d(p, q), 0.0);
    EXPECT_TRUE(p.Equal2d(q));
    EXPECT_FALSE(p.Equal3d(q));
    EXPECT_FALSE(p == q);
    EXPECT_TRUE(p != q);
}

TEST(QnGePoint, ArithmeticWorksOnAllCoordinates) {
    const QnGePoint p(1.0, 2.0, 3.0);
    const QnGePoint q(10.0, 20.0, 40.0);
    EXPECT_TRUE(IsExactly(p + q, 11.0, 22.0, 43.0));
    EXPECT_TRUE(IsExactly(q - p, 9.0, 18.0, 37.0));
    EXPECT_TRUE(IsExactly(-p, -1.0, -2.0, -3.0));
    EXPECT_TRUE(IsExactly(p * 4.0, 4.0, 8.0, 12.0));
    EXPECT_TRUE(IsExactly(q / 4.0, 2.5, 5.0, 10.0));
}

TEST(QnGePoint, AssigningFormsWorkOnAllCoordinates) {
    QnGePoint p(1.0, 2.0, 3.0);
    p += QnGePoint(1.0, 1.0, 1.0);
    EXPECT_TRUE(IsExactly(p, 2.0, 3.0, 4.0));
    p -= QnGePoint(4.0, 4.0, 4.0);
    EXPECT_TRUE(IsExactly(p, -2.0, -1.0, 0.0));
    p *= 3.0;
    EXPECT_TRUE(IsExactly(p, -6.0, -3.0, 0.0));
    p /= 2.0;
    EXPECT_TRUE(IsExactly(p, -3.0, -1.5, 0.0));
}

TEST(QnGePoint, EqualityIncludesTheTolerance) {
    const QnGePoint origin;
    EXPECT_TRUE(origin == QnGePoint(1e-6, 0.0, 0.0));
    EXPECT_TRUE(origin == QnGePoint(0.0, 0.0, -1e-6));
    EXPECT_TRUE(origin.Equal2d(QnGePoint(0.0, -1e-6, 50.0)));
    EXPECT_FALSE(origin == QnGePoint(1.0000001e-6, 0.0, 0.0));
    EXPECT_FALSE(origin.Equal3d(QnGePoint(0.0, 0.0, 1.0000001e-6)));
    EXPECT_FALSE(origin.Equal2d(QnGePoint(0.0, 1.0000001e-6, 0.0)));
}

TEST(QnGePoint, EqualityIsByDistanceAndNotByCoordinate) {
    const QnGePoint diagonal(8e-7, 8e-7, 0.0);  // each coordinate is inside, the distance is not
    EXPECT_FALSE(QnGePoint() == diagonal);
}

TEST(QnGePoint, ReadsTheToleranceAtEachUse) {
    const QnPushVar<double> wide(g_distZero, 0.5);
    EXPECT_TRUE(QnGePoint() == QnGePoint(0.5, 0.0, 0.0));
    EXPECT_FALSE(QnGePoint(0.5, 0.0, 0.0) > QnGePoint());
    EXPECT_TRUE(QnGePoint(0.75, 0.0, 0.0) > QnGePoint());
}

TEST(QnGePoint, PointsWithinTheToleranceAreEqualAndUnordered) {
    const QnGePoint p(1.0, 1.0, 0.0);
    const QnGePoint q(1.0 + 5e-7, 1.0, 0.0);
    EXPECT_TRUE(p == q);
    EXPECT_FALSE(p > q);
    EXPECT_FALSE(q > p);
    EXPECT_FALSE(p < q);
    EXPECT_FALSE(q < p);
}

TEST(QnGePoint, OrderGoesByXFirst) {
    const QnGePoint p(2e-6, -5.0, -5.0);
    const QnGePoint q(0.0, 5.0, 5.0);
    EXPECT_FALSE(p == q);
    EXPECT_TRUE(p > q);
    EXPECT_FALSE(q > p);
    EXPECT_TRUE(q < p);
}

TEST(QnGePoint, OrderGoesByYThenZWhereXIsZeroUnderTheTolerance) {
    EXPECT_TRUE(QnGePoint(0.0, 2e-6, -9.0) > QnGePoint(1e-6, 0.0, 9.0));
    EXPECT_FALSE(QnGePoint(1e-6, 0.0, 9.0) > QnGePoint(0.0, 2e-6, -9.0));
    EXPECT_TRUE(QnGePoint(0.0, 0.0, 2e-6) > QnGePoint(1e-6, 1e-6, 0.0));
    EXPECT_FALSE(QnGePoint(0.0, 0.0, 1e-6) > QnGePoint(0.0, 0.0, 0.0));
}

TEST(QnGePoint, OrderEqualsItsDefinition) {
    const QnPushVar<double> wide(g_distZero, 0.25);
    Random random(2101);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint p(random.Lattice(4, 0.125), random.Lattice(4, 0.125), random.Lattice(4, 0.125));
        const QnGePoint q(random.Lattice(4, 0.125), random.Lattice(4, 0.125), random.Lattice(4, 0.125));
        ASSERT_EQ(p > q, ReferenceGreater(p, q, 0.25)) << PointText(p) << PointText(q);
        ASSERT_EQ(p<q, q> p);
        ASSERT_FALSE(p > q && q > p);
        ASSERT_EQ(p == q, SpaceDistance(p, q) <= 0.25) << PointText(p) << PointText(q);
        ASSERT_EQ(p.Equal2d(q), PlanDistance(p, q) <= 0.25) << PointText(p) << PointText(q);
        ASSERT_NE(p == q, p != q);
    }
}
