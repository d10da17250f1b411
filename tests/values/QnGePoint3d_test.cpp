// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePoint3d.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>

#include "ValueTesting.h"
#include "base/QnDynArrayStream.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "objects3d/QnGeCurve3d.h"
#include "objects3d/QnGeLine3d.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

using namespace value_testing;

namespace {

static_assert(std::is_base_of_v<QnGeObject3d, QnGePoint3d>, "an object in space");
static_assert(std::is_base_of_v<QnGePoint, QnGePoint3d>, "and a point");

/// Two points in one object, known by its parts only.
class PairOfPoints : public QnGeObject3d {
public:
    PairOfPoints(const QnGePoint& first, const QnGePoint& second) : m_first(first), m_second(second) {}
    bool Explode(QnGeObjList& parts) const override {
        parts.Append(new QnGePoint3d(m_first));
        parts.Append(new QnGePoint3d(m_second));
        return true;
    }

private:
    QnGePoint m_first, m_second;
};

/// A curve or region (`Base`) that falls into one point.
template <class Base>
class FallsIntoAPoint : public Base {
public:
    explicit FallsIntoAPoint(const QnGePoint& point) : m_point(point) {}
    bool Explode(QnGeObjList& parts) const override {
        parts.Append(new QnGePoint3d(m_point));
        return true;
    }

private:
    QnGePoint m_point;
};

/// Answers every hit test with one fixed code.
class FixedHit : public QnGeObject3d {
public:
    explicit FixedHit(std::uint32_t code) : m_code(code) {}
    QnBitData HitTest(const QnGePoint&) const override { return QnBitData(m_code); }

private:
    std::uint32_t m_code;
};

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

}  // namespace

TEST(QnGePoint3d, Builds) {
    const double doubles[3] = {1.5, 2.5, 3.5};
    const float floats[3] = {4.5F, 5.5F, 6.5F};
    EXPECT_TRUE(IsExactly(QnGePoint3d(), 0.0, 0.0, 0.0));
    EXPECT_TRUE(IsExactly(QnGePoint3d(1.0, 2.0, 3.0), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(QnGePoint3d(doubles), 1.5, 2.5, 3.5));
    EXPECT_TRUE(IsExactly(QnGePoint3d(floats), 4.5, 5.5, 6.5));
    EXPECT_TRUE(IsExactly(QnGePoint3d(QnGePoint(7.0, 8.0, 9.0)), 7.0, 8.0, 9.0));
}

TEST(QnGePoint3d, CopiesTakeTheFlagsAndPlainPointsKeepThem) {
    QnGePoint3d p(1.0, 2.0, 3.0);
    p.SetBits(0x40);
    const QnGePoint3d copy(p);
    EXPECT_EQ(copy.GetBits(), 0x40U);
    p = QnGePoint(7.0, 8.0, 9.0);
    EXPECT_TRUE(IsExactly(p, 7.0, 8.0, 9.0));
    EXPECT_EQ(p.GetBits(), 0x40U);
    p = QnGePoint3d(1.0, 1.0, 1.0);
    EXPECT_EQ(p.GetBits(), 0U);
}

TEST(QnGePoint3d, HasItsRecord) {
    EXPECT_EQ(QnGePoint3d().GetClassID(), 1002);
    EXPECT_TRUE(QnGePoint3d().IsClassOf(&QnGeObject3d::s_classInfo));
    EXPECT_TRUE(QnGePoint3d().IsValid());
}

TEST(QnGePoint3d, ComparesInSpace) {
    const QnGePoint3d p(1.0, 2.0, 3.0);
    EXPECT_TRUE(p == QnGePoint(1.0, 2.0, 3.0 + 5e-7));
    EXPECT_FALSE(p == QnGePoint(1.0, 2.0, 3.0 + 2e-6));
    EXPECT_TRUE(p != QnGePoint(1.0, 2.0, 50.0));
    EXPECT_EQ(p.Distance(QnGePoint(4.0, 6.0, 15.0)), 13.0);
}

TEST(QnGePoint3d, OrderGoesByXThenYThenZ) {
    const QnGePoint3d p(1.0, 2.0, 3.0);
    EXPECT_TRUE(p > QnGePoint(0.9, 99.0, 99.0));
    EXPECT_TRUE(p > QnGePoint(1.0, 1.9, 99.0));
    EXPECT_TRUE(p > QnGePoint(1.0, 2.0, 2.9));
    EXPECT_TRUE(p < QnGePoint(1.0, 2.0, 3.1));
    EXPECT_FALSE(p > QnGePoint(1.0, 2.0, 3.0 - 5e-7));
    EXPECT_FALSE(p > QnGePoint(1.0 - 5e-7, 2.1, 0.0));
    EXPECT_FALSE(p > QnGePoint(1.0, 2.0 - 5e-7, 3.1));
}

TEST(QnGePoint3d, CloneIsANewEqualPoint) {
    QnGePoint3d p(1.0, 2.0, 3.0);
    p.SetBits(0x55);
    const std::unique_ptr<QnGeObject> clone(p.Clone());
    ASSERT_NE(clone, nullptr);
    ASSERT_EQ(clone->GetCI(), &QnGePoint3d::s_classInfo);
    EXPECT_TRUE(IsExactly(static_cast<QnGePoint3d&>(*clone), 1.0, 2.0, 3.0));
    EXPECT_EQ(clone->GetBits(), 0x55U);
}

TEST(QnGePoint3d, CopyFromTakesOnlyItsOwnKind) {
    QnGePoint3d source(1.0, 2.0, 3.0);
    source.SetBits(0x55);
    QnGePoint3d target;
    EXPECT_TRUE(target.CopyFrom(&source));
    EXPECT_TRUE(IsExactly(target, 1.0, 2.0, 3.0));
    EXPECT_EQ(target.GetBits(), 0x55U);
    const QnGePoint2d other(7.0, 8.0, 9.0);
    EXPECT_FALSE(target.CopyFrom(&other));
    EXPECT_FALSE(target.CopyFrom(nullptr));
    EXPECT_TRUE(IsExactly(target, 1.0, 2.0, 3.0));
    EXPECT_EQ(target.GetBits(), 0x55U);
}

TEST(QnGePoint3d, TransformsAsAPoint) {
    QnGeMatrix turn;
    turn.CreateXRotateMatrix(EXACT_PI / 2.0);
    QnGePoint3d p(1.0, 2.0, 3.0);
    p.TransformBy(turn);
    EXPECT_TRUE(IsNear(p, QnGePoint(1.0, -3.0, 2.0)));
}

TEST(QnGePoint3d, HitTestIsByTheDistanceInSpace) {
    const QnGePoint3d p;
    EXPECT_EQ(Bits(p.HitTest(QnGePoint(0.0, 0.0, 1e-6))), ON);
    EXPECT_EQ(Bits(p.HitTest(QnGePoint(0.0, 0.0, 1.0000001e-6))), 0U);
}

TEST(QnGePoint3d, ExtentIsTheDegenerateBox) {
    const QnGePoint3d p(1.0, 2.0, 3.0);
    QnGeExtent3d space;
    ASSERT_TRUE(p.GetExtent3d(space));
    EXPECT_EQ(space.x.min, 1.0);
    EXPECT_EQ(space.x.max, 1.0);
    EXPECT_EQ(space.y.min, 2.0);
    EXPECT_EQ(space.y.max, 2.0);
    EXPECT_EQ(space.z.min, 3.0);
    EXPECT_EQ(space.z.max, 3.0);
    QnGeExtent2d plan;
    ASSERT_TRUE(p.GetExtent2d(plan));
    EXPECT_EQ(plan.x.min, 1.0);
    EXPECT_EQ(plan.x.max, 1.0);
    EXPECT_EQ(plan.y.min, 2.0);
    EXPECT_EQ(plan.y.max, 2.0);
}

TEST(QnGePoint3d, IsItsOwnClosestPoint) {
    const QnGePoint3d p(1.0, 2.0, 3.0);
    QnGePointList list;
    EXPECT_TRUE(p.GetClosestPoint(QnGePoint(50.0, 0.0, 0.0), list));
    EXPECT_TRUE(p.GetClosestPoint2d(QnGePoint(50.0, 0.0, 0.0), list));
    ASSERT_EQ(list.GetLength(), 2);
    EXPECT_TRUE(IsExactly(list.GetAt(0), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(list.GetAt(1), 1.0, 2.0, 3.0));
    QnGePoint nearest;
    EXPECT_TRUE(p.GetClosestPoint(QnGePoint(), nearest));
    EXPECT_TRUE(IsExactly(nearest, 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(p.GetSamplePoint(), 1.0, 2.0, 3.0));
    EXPECT_EQ(p.GetDistance(QnGePoint(4.0, 6.0, 15.0)), 13.0);
}

TEST(QnGePoint3d, ConvertsToAPlanPointThatKeepsZ) {
    QnGePoint3d p(1.0, 2.0, 3.0);
    p.SetBits(0x55);
    const std::unique_ptr<QnGeObject2d> converted(p.ConvertTo2d());
    ASSERT_NE(converted, nullptr);
    ASSERT_EQ(converted->GetCI(), &QnGePoint2d::s_classInfo);
    EXPECT_TRUE(IsExactly(static_cast<QnGePoint2d&>(*converted), 1.0, 2.0, 3.0));
    EXPECT_EQ(converted->GetBits(), 0U);
}

TEST(QnGePoint3d, MeetsAPointAtTheSamePlaceInSpace) {
    const QnGePoint3d p(1.0, 2.0, 3.0);
    QnGeObjList result;
    EXPECT_FALSE(p.IntersectWith(QnGePoint3d(1.0, 2.0, 3.1), result));
    EXPECT_TRUE(p.IntersectWith(QnGePoint3d(1.0, 2.0, 3.0 + 5e-7), result));
    ASSERT_EQ(result.GetLength(), 1);
    ASSERT_EQ(result.GetAt(0)->GetCI(), &QnGePoint3d::s_classInfo);
    EXPECT_TRUE(IsExactly(static_cast<const QnGePoint3d&>(*result.GetAt(0)), 1.0, 2.0, 3.0));
}

TEST(QnGePoint3d, MeetsWhateverSaysItIsOn) {
    const QnGePoint3d p(1.0, 2.0, 3.0);
    QnGeObjList result;
    EXPECT_TRUE(p.IntersectWith(FixedHit(HIT_ON), result));
    EXPECT_FALSE(p.IntersectWith(FixedHit(HIT_OUT), result));
    EXPECT_TRUE(p.IntersectWith(QnGePoint2d(1.0, 2.0, 99.0), result));  // the plan point hit-tests in the plan
    ASSERT_EQ(result.GetLength(), 2);
    EXPECT_EQ(result.GetAt(1)->GetCI(), &QnGePoint3d::s_classInfo);
}

TEST(QnGePoint3d, IncludesPointsAtItsPlaceAndNoCurve) {
    const QnGePoint3d p(1.0, 2.0, 3.0);
    EXPECT_TRUE(p.IsInclude(QnGePoint3d(1.0, 2.0, 3.0)));
    EXPECT_FALSE(p.IsInclude(QnGePoint3d(1.0, 2.0, 4.0)));
    EXPECT_FALSE(p.IsInclude(QnGeLine3d()));
    EXPECT_FALSE(p.IsInclude(FallsIntoAPoint<QnGeCurve3d>(p)));  // their parts are not asked
    EXPECT_FALSE(p.IsInclude(FallsIntoAPoint<QnGeRegion2d>(p)));
    EXPECT_TRUE(p.IsInclude(FallsIntoAPoint<QnGeObject3d>(p)));
    EXPECT_TRUE(p.IsInclude(PairOfPoints(QnGePoint(1.0, 2.0, 3.0), QnGePoint(1.0, 2.0, 3.0))));
    EXPECT_FALSE(p.IsInclude(PairOfPoints(QnGePoint(1.0, 2.0, 3.0), QnGePoint(1.0, 2.0, 9.0))));
}

TEST(QnGePoint3d, StreamsFlagsAndCoordinates) {
    QnGePoint3d p(1.5, -2.5, 3.5);
    p.SetBits(9);
    QnDynArrayStream stream(16, 16);
    p.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + 3 * 8);
    stream.MoveToFirst();
    long flags = 0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    stream >> flags >> x >> y >> z;
    EXPECT_EQ(flags, 9L);
    EXPECT_TRUE(IsExactly(QnGePoint(x, y, z), 1.5, -2.5, 3.5));
}

TEST(QnGePoint3d, StreamRoundTripIsBitForBit) {
    Random random(2105);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        QnGePoint3d p(random.Point(1e9));
        p.SetBits(static_cast<std::uint32_t>(random.Int(0, 0x7fffffff)) * 2U);
        QnDynArrayStream stream(64, 64);
        p.StreamOut(stream);
        stream.MoveToFirst();
        QnGePoint3d read;
        read.StreamIn(stream);
        ASSERT_TRUE(SameBits(read.x, p.x) && SameBits(read.y, p.y) && SameBits(read.z, p.z)) << PointText(p);
        ASSERT_EQ(read.GetBits(), p.GetBits());
    }
}
