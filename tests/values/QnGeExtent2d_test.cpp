// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeExtent2d.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <type_traits>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

using namespace value_testing;

static_assert(std::is_polymorphic_v<QnGeExtent2d>, "IsSameWith is virtual");
static_assert(std::has_virtual_destructor_v<QnGeExtent2d>, "deleted through its base");

namespace {

QnGeExtent2d RandomBox(Random& random) {
    const double a = random.Lattice(10, 0.125);
    const double b = random.Lattice(10, 0.125);
    const double c = random.Lattice(10, 0.125);
    const double d = random.Lattice(10, 0.125);
    return QnGeExtent2d(std::min(a, b), std::max(a, b), std::min(c, d), std::max(c, d));
}

void ExpectBox(const QnGeExtent2d& box, double xmin, double xmax, double ymin, double ymax) {
    EXPECT_EQ(box.x.min, xmin);
    EXPECT_EQ(box.x.max, xmax);
    EXPECT_EQ(box.y.min, ymin);
    EXPECT_EQ(box.y.max, ymax);
}

}  // namespace

TEST(QnGeExtent2d, Builds) {
    ExpectBox(QnGeExtent2d(), 0.0, 0.0, 0.0, 0.0);
    ExpectBox(QnGeExtent2d(1.0, 2.0, 3.0, 4.0), 1.0, 2.0, 3.0, 4.0);
    ExpectBox(QnGeExtent2d(QnGeExtent(1.0, 2.0), QnGeExtent(3.0, 4.0)), 1.0, 2.0, 3.0, 4.0);
}

TEST(QnGeExtent2d, SetRangeInBothForms) {
    QnGeExtent2d box;
    box.SetRange(1.0, 2.0, 3.0, 4.0);
    ExpectBox(box, 1.0, 2.0, 3.0, 4.0);
    box.SetRange(QnGeExtent(5.0, 6.0), QnGeExtent(7.0, 8.0));
    ExpectBox(box, 5.0, 6.0, 7.0, 8.0);
}

TEST(QnGeExtent2d, AccessorsReadTheBox) {
    const QnGeExtent2d box(1.0, 4.0, 10.0, 12.0);
    EXPECT_EQ(box.GetXExtend().GetMin(), 1.0);
    EXPECT_EQ(box.GetXExtend().GetMax(), 4.0);
    EXPECT_EQ(box.GetYExtend().GetMin(), 10.0);
    EXPECT_EQ(box.GetYExtend().GetMax(), 12.0);
    EXPECT_EQ(box.GetLength(), 3.0);
    EXPECT_EQ(box.GetHeight(), 2.0);
    EXPECT_EQ(box.GetArea(), 6.0);
    EXPECT_TRUE(IsExactly(box.GetMinPoint(), 1.0, 10.0, 0.0));
    EXPECT_TRUE(IsExactly(box.GetMaxPoint(), 4.0, 12.0, 0.0));
}

TEST(QnGeExtent2d, InflateHullAndOverlapPerAxis) {
    QnGeExtent2d box(0.0, 2.0, 0.0, 3.0);
    box.Inflate(0.5);
    ExpectBox(box, -0.5, 2.5, -0.5, 3.5);
    const QnGeExtent2d other(1.0, 9.0, -9.0, 1.0);
    ExpectBox(box + other, -0.5, 9.0, -9.0, 3.5);
    ExpectBox(box & other, 1.0, 2.5, -0.5, 1.0);
    box += other;
    ExpectBox(box, -0.5, 9.0, -9.0, 3.5);
}

TEST(QnGeExtent2d, ValidityNeedsBothAxes) {
    EXPECT_TRUE(QnGeExtent2d(0.0, 1.0, 0.0, 1.0).IsValid());
    EXPECT_FALSE(QnGeExtent2d(1.0, 0.0, 0.0, 1.0).IsValid());
    EXPECT_FALSE(QnGeExtent2d(0.0, 1.0, 0.0, 2e50).IsValid());
}

TEST(QnGeExtent2d, EqualityNeedsBothAxes) {
    const QnGeExtent2d box(0.0, 1.0, 0.0, 1.0);
    EXPECT_TRUE(box == QnGeExtent2d(0.0, 1.0, 0.0, 1.0 + 5e-10));
    EXPECT_FALSE(box == QnGeExtent2d(0.0, 1.0, 0.0, 1.0 + 1e-7));
}

TEST(QnGeExtent2d, KeptOddABoxThatDiffersInOneAxisIsNeitherEqualNorUnequal) {
    const QnGeExtent2d box(0.0, 1.0, 0.0, 1.0);
    const QnGeExtent2d wider(0.0, 5.0, 0.0, 1.0);
    EXPECT_FALSE(box == wider);
    EXPECT_FALSE(box != wider);
    EXPECT_TRUE(box != QnGeExtent2d(0.0, 5.0, 0.0, 5.0));
}

TEST(QnGeExtent2d, IsSameWithMeansThisVeryObject) {
    const QnGeExtent2d box(0.0, 1.0, 0.0, 1.0);
    const QnGeExtent2d copy(box);
    EXPECT_TRUE(box.IsSameWith(&box));
    EXPECT_FALSE(box.IsSameWith(&copy));
    EXPECT_FALSE(box.IsSameWith(nullptr));
}

TEST(QnGeExtent2d, TouchingBoxesMeetWithoutOverlap) {
    const QnGeExtent2d box(0.0, 1.0, 0.0, 1.0);
    const QnGeExtent2d beside(1.0, 2.0, 0.0, 1.0);
    const QnGeExtent2d corner(1.0, 2.0, 1.0, 2.0);
    EXPECT_TRUE(box.IsInsersectWith(beside));
    EXPECT_FALSE(box.IsConnectWith(beside));
    EXPECT_TRUE(box.IsInsersectWith(corner));
    EXPECT_FALSE(box.IsInsersectWith(QnGeExtent2d(1.1, 2.0, 0.0, 1.0)));
}

TEST(QnGeExtent2d, PointsOnTheEdgeAreIncludedAndNotInside) {
    const QnGeExtent2d box(0.0, 2.0, 0.0, 2.0);
    EXPECT_TRUE(box.IsInclude(0.0, 1.0));
    EXPECT_FALSE(box.IsInside(0.0, 1.0));
    EXPECT_TRUE(box.IsInclude(2.0 + 9e-7, 2.0));
    EXPECT_FALSE(box.IsInclude(2.1, 1.0));
    EXPECT_FALSE(box.IsInclude(1.0, 2.1));
    EXPECT_TRUE(box.IsInside(1.0, 1.0));
}

TEST(QnGeExtent2d, EveryTestIsTheConjunctionOverTheAxes) {
    const QnPushVar<double> tolerance(g_distZero, 0.25);
    Random random(2202);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeExtent2d e = RandomBox(random);
        const QnGeExtent2d o = i % 10 == 0 ? e : RandomBox(random);
        ASSERT_EQ(e > o, e.x.min - o.x.max > 0.25 && e.y.min - o.y.max > 0.25);
        ASSERT_EQ(e >= o, e.x.min - o.x.max >= -0.25 && e.y.min - o.y.max >= -0.25);
        ASSERT_EQ(e<o, o.x.min - e.x.max> 0.25 && o.y.min - e.y.max > 0.25);
        ASSERT_EQ(e <= o, o.x.min - e.x.max >= -0.25 && o.y.min - e.y.max >= -0.25);
        ASSERT_EQ(e.IsInclude(o), e.x.min - o.x.min <= 0.25 && e.x.max - o.x.max >= -0.25 &&
                                      e.y.min - o.y.min <= 0.25 && e.y.max - o.y.max >= -0.25);
        ASSERT_EQ(e.IsInside(o), e.x.min - o.x.min < -0.25 && e.x.max - o.x.max > 0.25 && e.y.min - o.y.min < -0.25 &&
                                     e.y.max - o.y.max > 0.25);
        ASSERT_EQ(e.IsInsersectWith(o), e.x.min - o.x.max <= 0.25 && o.x.min - e.x.max <= 0.25 &&
                                            e.y.min - o.y.max <= 0.25 && o.y.min - e.y.max <= 0.25);
        ASSERT_EQ(e.IsConnectWith(o), e.x.min - o.x.max < -0.25 && o.x.min - e.x.max < -0.25 &&
                                          e.y.min - o.y.max < -0.25 && o.y.min - e.y.max < -0.25);
        const double x = random.Lattice(12, 0.125);
        const double y = random.Lattice(12, 0.125);
        ASSERT_EQ(e.IsInclude(x, y),
                  x - e.x.min >= -0.25 && x - e.x.max <= 0.25 && y - e.y.min >= -0.25 && y - e.y.max <= 0.25);
        ASSERT_EQ(e.IsInside(x, y),
                  x - e.x.min > 0.25 && x - e.x.max < -0.25 && y - e.y.min > 0.25 && y - e.y.max < -0.25);
        const bool sameX = e.x.min == o.x.min && e.x.max == o.x.max;
        const bool sameY = e.y.min == o.y.min && e.y.max == o.y.max;
        ASSERT_EQ(e == o, sameX && sameY);
        ASSERT_EQ(e != o, !sameX && !sameY);
    }
}
