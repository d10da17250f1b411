// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeExtent3d.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

using namespace value_testing;

static_assert(std::is_base_of_v<QnGeExtent2d, QnGeExtent3d>, "a box in space has a plan box");

namespace {

QnGeExtent RandomRange(Random& random) {
    const double a = random.Lattice(8, 0.125);
    const double b = random.Lattice(8, 0.125);
    return QnGeExtent(std::min(a, b), std::max(a, b));
}

QnGeExtent3d RandomBox(Random& random) {
    const QnGeExtent x = RandomRange(random);
    const QnGeExtent y = RandomRange(random);
    const QnGeExtent z = RandomRange(random);
    return QnGeExtent3d(x, y, z);
}

bool IsRange(const QnGeExtent& range, double min, double max) {
    return range.min == min && range.max == max;
}

}  // namespace

TEST(QnGeExtent3d, Builds) {
    const QnGeExtent3d zero;
    EXPECT_TRUE(IsRange(zero.x, 0.0, 0.0) && IsRange(zero.y, 0.0, 0.0) && IsRange(zero.z, 0.0, 0.0));
    const QnGeExtent3d box(1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
    EXPECT_TRUE(IsRange(box.x, 1.0, 2.0) && IsRange(box.y, 3.0, 4.0) && IsRange(box.z, 5.0, 6.0));
    const QnGeExtent3d same(QnGeExtent(1.0, 2.0), QnGeExtent(3.0, 4.0), QnGeExtent(5.0, 6.0));
    EXPECT_TRUE(box == same);
    QnGeExtent3d set;
    set.SetRange(1.0, 2.0, 3.0, 4.0, 5.0, 6.0);
    EXPECT_TRUE(set == box);
    set.SetRange(QnGeExtent(0.0, 1.0), QnGeExtent(0.0, 2.0), QnGeExtent(0.0, 3.0));
    EXPECT_TRUE(IsRange(set.x, 0.0, 1.0) && IsRange(set.y, 0.0, 2.0) && IsRange(set.z, 0.0, 3.0));
}

TEST(QnGeExtent3d, AccessorsReadTheBox) {
    const QnGeExtent3d box(1.0, 4.0, 10.0, 12.0, 20.0, 25.0);
    EXPECT_EQ(box.GetLength(), 3.0);
    EXPECT_EQ(box.GetHeight(), 2.0);
    EXPECT_EQ(box.GetDepth(), 5.0);
    EXPECT_EQ(box.GetArea(), 6.0);
    EXPECT_EQ(box.GetVolumn(), 30.0);
    EXPECT_TRUE(IsRange(box.GetXExtend(), 1.0, 4.0));
    EXPECT_TRUE(IsRange(box.GetYExtend(), 10.0, 12.0));
    EXPECT_TRUE(IsRange(box.GetZExtend(), 20.0, 25.0));
    EXPECT_TRUE(IsExactly(box.GetMinPoint(), 1.0, 10.0, 20.0));
    EXPECT_TRUE(IsExactly(box.GetMaxPoint(), 4.0, 12.0, 25.0));
}

TEST(QnGeExtent3d, InflateHullAndOverlapOnThreeAxes) {
    QnGeExtent3d box(0.0, 1.0, 0.0, 1.0, 0.0, 1.0);
    box.Inflate(1.0);
    EXPECT_TRUE(IsRange(box.x, -1.0, 2.0) && IsRange(box.y, -1.0, 2.0) && IsRange(box.z, -1.0, 2.0));
    const QnGeExtent3d other(0.0, 5.0, 0.0, 5.0, 0.0, 5.0);
    const QnGeExtent3d hull = box + other;
    EXPECT_TRUE(IsRange(hull.x, -1.0, 5.0) && IsRange(hull.y, -1.0, 5.0) && IsRange(hull.z, -1.0, 5.0));
    const QnGeExtent3d overlap = box & other;
    EXPECT_TRUE(IsRange(overlap.x, 0.0, 2.0) && IsRange(overlap.y, 0.0, 2.0) && IsRange(overlap.z, 0.0, 2.0));
    box += other;
    EXPECT_TRUE(box == hull);
}

TEST(QnGeExtent3d, ValidityNeedsAllAxes) {
    EXPECT_TRUE(QnGeExtent3d(0.0, 1.0, 0.0, 1.0, 0.0, 1.0).IsValid());
    EXPECT_FALSE(QnGeExtent3d(0.0, 1.0, 0.0, 1.0, 1.0, 0.0).IsValid());
    EXPECT_FALSE(QnGeExtent3d(0.0, 1.0, 0.0, 1.0, 0.0, 2e50).IsValid());
}

TEST(QnGeExtent3d, KeptOddABoxThatDiffersInOneAxisIsNeitherEqualNorUnequal) {
    const QnGeExtent3d box(0.0, 1.0, 0.0, 1.0, 0.0, 1.0);
    const QnGeExtent3d higher(0.0, 1.0, 0.0, 1.0, 0.0, 2.0);
    EXPECT_FALSE(box == higher);
    EXPECT_FALSE(box != higher);
    EXPECT_TRUE(box != QnGeExtent3d(0.0, 2.0, 0.0, 2.0, 0.0, 2.0));
}

TEST(QnGeExtent3d, IsSameWithMeansThisVeryObject) {
    const QnGeExtent3d box(0.0, 1.0, 0.0, 1.0, 0.0, 1.0);
    const QnGeExtent3d copy(box);
    EXPECT_TRUE(box.IsSameWith(&box));
    EXPECT_FALSE(box.IsSameWith(&copy));
    const QnGeExtent2d* plan = &box;
    EXPECT_TRUE(box.IsSameWith(plan));
    EXPECT_TRUE(plan->IsSameWith(plan));
}

TEST(QnGeExtent3d, PlanTestsIgnoreZ) {
    const QnGeExtent3d box(0.0, 1.0, 0.0, 1.0, 0.0, 1.0);
    const QnGeExtent3d above(0.0, 1.0, 0.0, 1.0, 50.0, 60.0);
    EXPECT_FALSE(box.IsInsersectWith(above));
    EXPECT_TRUE(box.IsIntersectWith2d(above));
    EXPECT_TRUE(box.IsConnectWith2d(above));
    EXPECT_TRUE(box.IsIntersectWith2d(QnGeExtent2d(1.0, 2.0, 0.0, 1.0)));
    EXPECT_FALSE(box.IsConnectWith2d(QnGeExtent2d(1.0, 2.0, 0.0, 1.0)));
    EXPECT_FALSE(box.IsIntersectWith2d(QnGeExtent2d(2.0, 3.0, 0.0, 1.0)));
}

TEST(QnGeExtent3d, PointsInTheBox) {
    const QnGeExtent3d box(0.0, 2.0, 0.0, 2.0, 0.0, 2.0);
    EXPECT_TRUE(box.IsInclude(1.0, 1.0, 2.0));
    EXPECT_FALSE(box.IsInclude(1.0, 1.0, 2.1));
    EXPECT_FALSE(box.IsInclude(1.0, 2.1, 1.0));
    EXPECT_FALSE(box.IsInclude(-0.1, 1.0, 1.0));
    EXPECT_TRUE(box.IsInside(1.0, 1.0, 1.0));
    EXPECT_FALSE(box.IsInside(1.0, 1.0, 2.0));
}

TEST(QnGeExtent3d, EveryTestIsTheConjunctionOverTheAxes) {
    const QnPushVar<double> tolerance(g_distZero, 0.25);
    Random random(2203);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeExtent3d e = RandomBox(random);
        const QnGeExtent3d o = i % 10 == 0 ? e : RandomBox(random);
        ASSERT_EQ(e > o, e.x > o.x && e.y > o.y && e.z > o.z);
        ASSERT_EQ(e >= o, e.x >= o.x && e.y >= o.y && e.z >= o.z);
        ASSERT_EQ(e < o, e.x < o.x && e.y < o.y && e.z < o.z);
        ASSERT_EQ(e <= o, e.x <= o.x && e.y <= o.y && e.z <= o.z);
        ASSERT_EQ(e == o, e.x == o.x && e.y == o.y && e.z == o.z);
        ASSERT_EQ(e != o, e.x != o.x && e.y != o.y && e.z != o.z);
        ASSERT_EQ(e.IsInclude(o), e.x.IsInclude(o.x) && e.y.IsInclude(o.y) && e.z.IsInclude(o.z));
        ASSERT_EQ(e.IsInside(o), e.x.IsInside(o.x) && e.y.IsInside(o.y) && e.z.IsInside(o.z));
        ASSERT_EQ(e.IsInsersectWith(o),
                  e.x.IsInsersectWith(o.x) && e.y.IsInsersectWith(o.y) && e.z.IsInsersectWith(o.z));
        ASSERT_EQ(e.IsConnectWith(o), e.x.IsConnectWith(o.x) && e.y.IsConnectWith(o.y) && e.z.IsConnectWith(o.z));
        ASSERT_EQ(e.IsIntersectWith2d(o), e.x.IsInsersectWith(o.x) && e.y.IsInsersectWith(o.y));
        ASSERT_EQ(e.IsConnectWith2d(o), e.x.IsConnectWith(o.x) && e.y.IsConnectWith(o.y));
    }
}
