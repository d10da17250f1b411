// SPDX-License-Identifier: Apache-2.0
#include "values/QnGePoint2d.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <memory>
#include <type_traits>

#include "ValueTesting.h"
#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "regions/QnGePolygon2d.h"
#include "regions/QnGeRegion2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint3d.h"
#include "values/QnGePointList.h"

using namespace value_testing;

namespace {

static_assert(std::is_base_of_v<QnGeObject2d, QnGePoint2d>, "an object of the plan");
static_assert(std::is_base_of_v<QnGePoint, QnGePoint2d>, "and a point");
static_assert(std::is_constructible_v<QnGePoint2d, double, double>, "z may be left out");
static_assert(std::is_constructible_v<QnGePoint2d, const float*>, "from single precision");

/// Two points in one object, known by its parts only.
class PairOfPoints : public QnGeObject2d {
public:
    PairOfPoints(const QnGePoint& first, const QnGePoint& second) : m_first(first), m_second(second) {}
    bool Explode(QnGeObjList& parts) const override {
        parts.Append(new QnGePoint2d(m_first));
        parts.Append(new QnGePoint2d(m_second));
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
        parts.Append(new QnGePoint2d(m_point));
        return true;
    }

private:
    QnGePoint m_point;
};

/// Answers every hit test with one fixed code.
class FixedHit : public QnGeObject2d {
public:
    explicit FixedHit(std::uint32_t code) : m_code(code) {}
    QnBitData HitTest(const QnGePoint&) const override { return QnBitData(m_code); }

private:
    std::uint32_t m_code;
};

class NamedPoint : public QnGePoint2d {
public:
    using QnGePoint2d::QnGePoint2d;
};

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

}  // namespace

TEST(QnGePoint2d, Builds) {
    const double doubles[3] = {1.5, 2.5, 3.5};
    const float floats[3] = {4.5F, 5.5F, 6.5F};
    EXPECT_TRUE(IsExactly(QnGePoint2d(), 0.0, 0.0, 0.0));
    EXPECT_TRUE(IsExactly(QnGePoint2d(1.0, 2.0), 1.0, 2.0, 0.0));
    EXPECT_TRUE(IsExactly(QnGePoint2d(1.0, 2.0, 3.0), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(QnGePoint2d(doubles), 1.5, 2.5, 3.5));
    EXPECT_TRUE(IsExactly(QnGePoint2d(floats), 4.5, 5.5, 6.5));
    EXPECT_TRUE(IsExactly(QnGePoint2d(QnGePoint(7.0, 8.0, 9.0)), 7.0, 8.0, 9.0));
    EXPECT_EQ(QnGePoint2d(1.0, 2.0).GetBits(), 0U);
}

TEST(QnGePoint2d, CopiesTakeTheFlags) {
    QnGePoint2d p(1.0, 2.0, 3.0);
    p.SetBits(0x40);
    const QnGePoint2d copy(p);
    EXPECT_TRUE(IsExactly(copy, 1.0, 2.0, 3.0));
    EXPECT_EQ(copy.GetBits(), 0x40U);
    QnGePoint2d assigned;
    assigned = p;
    EXPECT_TRUE(IsExactly(assigned, 1.0, 2.0, 3.0));
    EXPECT_EQ(assigned.GetBits(), 0x40U);
}

TEST(QnGePoint2d, AssigningAPlainPointKeepsTheFlags) {
    QnGePoint2d p(1.0, 2.0, 3.0);
    p.SetBits(0x40);
    p = QnGePoint(7.0, 8.0, 9.0);
    EXPECT_TRUE(IsExactly(p, 7.0, 8.0, 9.0));
    EXPECT_EQ(p.GetBits(), 0x40U);
}

TEST(QnGePoint2d, HasItsRecord) {
    EXPECT_EQ(QnGePoint2d().GetClassID(), 102);
    EXPECT_EQ(QnGePoint2d().GetCI(), &QnGePoint2d::s_classInfo);
    EXPECT_TRUE(QnGePoint2d().IsClassOf(&QnGeObject2d::s_classInfo));
}

TEST(QnGePoint2d, IsAlwaysValid) {
    EXPECT_TRUE(QnGePoint2d().IsValid());
    EXPECT_TRUE(QnGePoint2d(std::numeric_limits<double>::quiet_NaN(), 0.0).IsValid());
}

TEST(QnGePoint2d, ComparesInThePlan) {
    const QnGePoint2d p(1.0, 2.0, 3.0);
    EXPECT_TRUE(p == QnGePoint(1.0, 2.0, 50.0));
    EXPECT_FALSE(p != QnGePoint(1.0, 2.0, 50.0));
    EXPECT_TRUE(p == QnGePoint(1.0 + 5e-7, 2.0, 0.0));
    EXPECT_TRUE(p != QnGePoint(1.0 + 2e-6, 2.0, 3.0));
    EXPECT_EQ(p.Distance(QnGePoint(4.0, 6.0, 50.0)), 5.0);
}

TEST(QnGePoint2d, ComparesCoordinatesAndNotFlags) {
    QnGePoint2d p(1.0, 2.0);
    QnGePoint2d q(1.0, 2.0);
    q.SetBits(7);
    EXPECT_TRUE(p == q);
    EXPECT_TRUE(p != QnGePoint2d(5.0, 5.0));
}

TEST(QnGePoint2d, OrderGoesByXThenYOnly) {
    const QnGePoint2d p(1.0, 2.0, 0.0);
    EXPECT_TRUE(p > QnGePoint(0.9, 99.0, 99.0));
    EXPECT_FALSE(p > QnGePoint(1.1, 0.0, 0.0));
    EXPECT_TRUE(p > QnGePoint(1.0 + 5e-7, 1.9, 0.0));
    EXPECT_FALSE(p > QnGePoint(1.0 - 5e-7, 2.1, 0.0));
    EXPECT_TRUE(p < QnGePoint(1.0, 2.1, 0.0));
    EXPECT_TRUE(p > QnGePoint(1.0 - 2e-6, 99.0, 0.0));
    EXPECT_FALSE(p > QnGePoint(1.0, 2.0 - 5e-7, 0.0));
    EXPECT_TRUE(p > QnGePoint(1.0, 2.0 - 2e-6, 0.0));
    EXPECT_FALSE(p > QnGePoint(1.0, 2.0, -99.0));
    EXPECT_FALSE(p < QnGePoint(1.0, 2.0, 99.0));
}

TEST(QnGePoint2d, CloneIsANewEqualPoint) {
    QnGePoint2d p(1.0, 2.0, 3.0);
    p.SetBits(0x55);
    const std::unique_ptr<QnGeObject> clone(p.Clone());
    ASSERT_NE(clone, nullptr);
    ASSERT_EQ(clone->GetCI(), &QnGePoint2d::s_classInfo);
    EXPECT_NE(clone.get(), static_cast<QnGeObject*>(&p));
    EXPECT_TRUE(IsExactly(static_cast<QnGePoint2d&>(*clone), 1.0, 2.0, 3.0));
    EXPECT_EQ(clone->GetBits(), 0x55U);
}

TEST(QnGePoint2d, CopyFromTakesFlagsAndCoordinates) {
    QnGePoint2d source(1.0, 2.0, 3.0);
    source.SetBits(0x55);
    QnGePoint2d target;
    EXPECT_TRUE(target.CopyFrom(&source));
    EXPECT_TRUE(IsExactly(target, 1.0, 2.0, 3.0));
    EXPECT_EQ(target.GetBits(), 0x55U);
}

TEST(QnGePoint2d, CopyFromTakesDerivedClasses) {
    const NamedPoint source(1.0, 2.0, 3.0);
    QnGePoint2d target;
    EXPECT_TRUE(target.CopyFrom(&source));
    EXPECT_TRUE(IsExactly(target, 1.0, 2.0, 3.0));
}

TEST(QnGePoint2d, CopyFromRefusesOtherClassesAndNull) {
    QnGePoint2d target(1.0, 2.0, 3.0);
    target.SetBits(0x11);
    const QnGePoint3d other(7.0, 8.0, 9.0);
    EXPECT_FALSE(target.CopyFrom(&other));
    EXPECT_FALSE(target.CopyFrom(nullptr));
    EXPECT_TRUE(IsExactly(target, 1.0, 2.0, 3.0));
    EXPECT_EQ(target.GetBits(), 0x11U);
}

TEST(QnGePoint2d, TransformsAsAPoint) {
    QnGeMatrix move;
    move.CreateMoveMatrix(10.0, 20.0, 30.0);
    QnGePoint2d p(1.0, 2.0, 3.0);
    p.TransformBy(move);
    EXPECT_TRUE(IsExactly(p, 11.0, 22.0, 33.0));
}

TEST(QnGePoint2d, HitTestIsOnOrNothing) {
    const QnGePoint2d p(0.0, 0.0, 3.0);
    EXPECT_EQ(Bits(p.HitTest(QnGePoint(0.0, 0.0, -50.0))), ON);
    EXPECT_EQ(Bits(p.HitTest(QnGePoint(1e-6, 0.0, 0.0))), ON);
    EXPECT_EQ(Bits(p.HitTest(QnGePoint(1.0000001e-6, 0.0, 3.0))), 0U);
    int subIndex = 9;
    EXPECT_EQ(Bits(p.SubHitTest(QnGePoint(0.0, 0.0, 0.0), subIndex)), ON);
    EXPECT_EQ(subIndex, 0);
}

TEST(QnGePoint2d, ExtentIsTheDegenerateBox) {
    const QnGePoint2d p(1.0, 2.0, 3.0);
    QnGeExtent2d plan;
    ASSERT_TRUE(p.GetExtent2d(plan));
    EXPECT_EQ(plan.x.min, 1.0);
    EXPECT_EQ(plan.x.max, 1.0);
    EXPECT_EQ(plan.y.min, 2.0);
    EXPECT_EQ(plan.y.max, 2.0);
    QnGeExtent3d space;
    ASSERT_TRUE(p.GetExtent3d(space));
    EXPECT_EQ(space.x.min, 1.0);
    EXPECT_EQ(space.x.max, 1.0);
    EXPECT_EQ(space.y.min, 2.0);
    EXPECT_EQ(space.y.max, 2.0);
    EXPECT_EQ(space.z.min, 3.0);
    EXPECT_EQ(space.z.max, 3.0);
}

TEST(QnGePoint2d, MeetsExtentsThatHoldIt) {
    EXPECT_TRUE(QnGePoint2d(1.0, 1.0).IsExtentInter(QnGeExtent2d(0.0, 1.0, 0.0, 1.0)));
    EXPECT_FALSE(QnGePoint2d(2.0, 1.0).IsExtentInter(QnGeExtent2d(0.0, 1.0, 0.0, 1.0)));
}

TEST(QnGePoint2d, SamplePointAndElevation) {
    QnGePoint2d p(1.0, 2.0, 3.0);
    EXPECT_TRUE(IsExactly(p.GetSamplePoint(), 1.0, 2.0, 3.0));
    EXPECT_EQ(p.GetElevation(), 3.0);
    p.SetElevation(8.0);
    EXPECT_EQ(p.GetElevation(), 8.0);
    EXPECT_TRUE(IsExactly(p, 1.0, 2.0, 8.0));
}

TEST(QnGePoint2d, IsItsOwnClosestPoint) {
    const QnGePoint2d p(1.0, 2.0, 3.0);
    QnGePointList list;
    list.Append(QnGePoint(9.0, 9.0, 9.0));
    EXPECT_TRUE(p.GetClosestPoint2d(QnGePoint(50.0, 0.0, 0.0), list));
    EXPECT_TRUE(p.GetClosestPoint(QnGePoint(50.0, 0.0, 0.0), list));
    ASSERT_EQ(list.GetLength(), 3);
    EXPECT_TRUE(IsExactly(list.GetAt(0), 9.0, 9.0, 9.0));
    EXPECT_TRUE(IsExactly(list.GetAt(1), 1.0, 2.0, 3.0));
    EXPECT_TRUE(IsExactly(list.GetAt(2), 1.0, 2.0, 3.0));
    QnGePoint nearest;
    EXPECT_TRUE(p.GetClosestPoint2d(QnGePoint(), nearest));
    EXPECT_TRUE(IsExactly(nearest, 1.0, 2.0, 3.0));
    EXPECT_TRUE(p.GetClosestPoint(QnGePoint(), nearest));
    EXPECT_EQ(p.GetDistance(QnGePoint(4.0, 6.0, 100.0)), 5.0);
}

TEST(QnGePoint2d, ConvertsToAPointInSpaceWithoutFlags) {
    QnGePoint2d p(1.0, 2.0, 3.0);
    p.SetBits(0x55);
    const std::unique_ptr<QnGeObject3d> converted(p.ConvertTo3d());
    ASSERT_NE(converted, nullptr);
    ASSERT_EQ(converted->GetCI(), &QnGePoint3d::s_classInfo);
    EXPECT_TRUE(IsExactly(static_cast<QnGePoint3d&>(*converted), 1.0, 2.0, 3.0));
    EXPECT_EQ(converted->GetBits(), 0U);
}

TEST(QnGePoint2d, MeetsAPointAtTheSamePlace) {
    QnGePoint2d p(1.0, 2.0, 3.0);
    p.SetBits(0x8);
    QnGeObjList result;
    EXPECT_FALSE(p.IntersectWith(QnGePoint2d(1.0, 2.1), result));
    EXPECT_EQ(result.GetLength(), 0);
    EXPECT_TRUE(p.IntersectWith(QnGePoint2d(1.0 + 5e-7, 2.0, 99.0), result));
    ASSERT_EQ(result.GetLength(), 1);
    const QnGeObject& hit = *result.GetAt(0);
    ASSERT_EQ(hit.GetCI(), &QnGePoint2d::s_classInfo);
    EXPECT_TRUE(IsExactly(static_cast<const QnGePoint2d&>(hit), 1.0, 2.0, 3.0));  // this point, not the other
}

TEST(QnGePoint2d, MeetsWhateverSaysItIsOn) {
    const QnGePoint2d p(1.0, 0.0, 3.0);
    QnGeObjList result;
    EXPECT_TRUE(p.IntersectWith(FixedHit(HIT_ON), result));
    EXPECT_TRUE(p.IntersectWith(FixedHit(9), result));  // a region's outline: the on bit among others
    EXPECT_FALSE(p.IntersectWith(FixedHit(HIT_IN), result));
    EXPECT_FALSE(p.IntersectWith(FixedHit(0), result));
    ASSERT_EQ(result.GetLength(), 2);
    EXPECT_TRUE(IsExactly(static_cast<const QnGePoint2d&>(*result.GetAt(1)), 1.0, 0.0, 3.0));
}

TEST(QnGePoint2d, MeetsASegmentThatPassesThrough) {
    const QnGeLineSeg2d segment(QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0));
    QnGeObjList result;
    EXPECT_TRUE(QnGePoint2d(1.0, 0.0).IntersectWith(segment, result));
    EXPECT_FALSE(QnGePoint2d(1.0, 1.0).IntersectWith(segment, result));
    EXPECT_EQ(result.GetLength(), 1);
}

TEST(QnGePoint2d, IncludesPointsAtItsPlace) {
    const QnGePoint2d p(1.0, 2.0, 3.0);
    EXPECT_TRUE(p.IsInclude(QnGePoint2d(1.0, 2.0, -5.0)));
    EXPECT_TRUE(p.IsInclude(QnGePoint2d(1.0 + 5e-7, 2.0)));
    EXPECT_FALSE(p.IsInclude(QnGePoint2d(1.0 + 2e-6, 2.0)));
}

TEST(QnGePoint2d, IncludesNoCurveAndNoRegion) {
    const QnGePoint2d p(1.0, 2.0);
    const QnGeLineSeg2d nullSegment(QnGePoint(1.0, 2.0), QnGePoint(1.0, 2.0));
    EXPECT_FALSE(p.IsInclude(nullSegment));
    EXPECT_FALSE(p.IsInclude(QnGePolygon2d()));
    EXPECT_FALSE(p.IsInclude(FallsIntoAPoint<QnGeCurve2d>(p)));  // their parts are not asked
    EXPECT_FALSE(p.IsInclude(FallsIntoAPoint<QnGeRegion2d>(p)));
    EXPECT_TRUE(p.IsInclude(FallsIntoAPoint<QnGeObject2d>(p)));
}

TEST(QnGePoint2d, IncludesOtherObjectsThroughTheirParts) {
    const QnGePoint2d p(1.0, 2.0);
    EXPECT_TRUE(p.IsInclude(PairOfPoints(QnGePoint(1.0, 2.0), QnGePoint(1.0, 2.0, 7.0))));
    EXPECT_FALSE(p.IsInclude(PairOfPoints(QnGePoint(1.0, 2.0), QnGePoint(1.0, 3.0))));
    EXPECT_FALSE(p.IsInclude(FixedHit(HIT_ON)));  // no parts
}

TEST(QnGePoint2d, DoesNotExplodeNorSimplify) {
    const QnGePoint2d p(1.0, 2.0);
    QnGeObjList parts;
    EXPECT_FALSE(p.Explode(parts));
    EXPECT_EQ(parts.GetLength(), 0);
    EXPECT_EQ(p.Symplify(), nullptr);
}

TEST(QnGePoint2d, StreamsFlagsAndCoordinates) {
    QnGePoint2d p(1.5, -2.5, 3.5);
    p.SetBits(0x12345678);
    QnDynArrayStream stream(16, 16);
    p.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4 + 3 * 8);
    stream.MoveToFirst();
    long flags = 0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    stream >> flags >> x >> y >> z;
    EXPECT_EQ(flags, 0x12345678L);
    EXPECT_TRUE(IsExactly(QnGePoint(x, y, z), 1.5, -2.5, 3.5));
}

TEST(QnGePoint2d, StreamRoundTripIsBitForBit) {
    using Limits = std::numeric_limits<double>;
    const double numbers[] = {-0.0,      Limits::denorm_min(), Limits::max(), -Limits::infinity(),
                              0.1 + 0.2, Limits::quiet_NaN(),  1e-300,        3.0};
    for (const double number : numbers) {
        QnGePoint2d p(number, -number, number);
        p.SetBits(0x80000001U);
        QnDynArrayStream stream(1024, 1024);
        p.StreamOut(stream);
        stream.MoveToFirst();
        QnGePoint2d read(7.0, 7.0, 7.0);
        read.StreamIn(stream);
        EXPECT_TRUE(SameBits(read.x, p.x)) << number;
        EXPECT_TRUE(SameBits(read.y, p.y)) << number;
        EXPECT_TRUE(SameBits(read.z, p.z)) << number;
        EXPECT_EQ(read.GetBits(), 0x80000001U);
    }
}

TEST(QnGePoint2d, ATruncatedStreamGivesZeros) {
    QnDynArrayStream stream(64, 64);
    stream << 5L << 1.0;
    stream.MoveToFirst();
    QnGePoint2d read(7.0, 7.0, 7.0);
    read.StreamIn(stream);
    EXPECT_EQ(read.GetBits(), 5U);
    EXPECT_TRUE(IsExactly(read, 1.0, 0.0, 0.0));
}
