// SPDX-License-Identifier: Apache-2.0
// The roots by themselves: state, the answer of every slot, order, clones through the record, moving.
#include "frame/QnGeObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <type_traits>

#include "base/QnDynArrayStream.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeObject2d.h"
#include "frame/QnGeObject3d.h"
#include "frame/QnGeTolerance.h"
#include "support/ExpectGeo.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeBasePlane.h"
#include "values/QnGeCoordSys.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

static_assert(!std::is_abstract_v<QnGeObject> && !std::is_abstract_v<QnGeObject2d> && !std::is_abstract_v<QnGeObject3d>,
              "every slot has a body");
static_assert(std::is_base_of_v<QnRxRunTimeClass, QnGeObject> && std::is_base_of_v<QnBitData, QnGeObject>);
static_assert(sizeof(QnGeObject2d) == sizeof(QnGeObject) && sizeof(QnGeObject3d) == sizeof(QnGeObject), "no fields");

namespace {

/// What all three roots answer alike.
void ExpectRootDefaults(QnGeObject& object) {
    EXPECT_EQ(object.GetBits(), 0U);
    EXPECT_FALSE(object.IsValid());
    EXPECT_EQ(object.Clone(), nullptr);
    QnGeObject other;
    other.SetBits(5);
    EXPECT_FALSE(object.CopyFrom(&other));
    EXPECT_FALSE(object.CopyFrom(nullptr));
    EXPECT_EQ(object.GetBits(), 0U);
    object.TransformBy(QnGeMatrix());
    QnGeObjList parts;
    EXPECT_FALSE(object.Explode(parts));
    EXPECT_TRUE(parts.IsEmpty());
    QnGeCoordSys ecs;
    EXPECT_FALSE(object.GetEcs(ecs));
    ExpectPoint(object.GetSamplePoint(), "0,0", 0.0);
    EXPECT_EQ(object.Symplify(), nullptr);
    EXPECT_EQ(object.CloneNew(), nullptr);
}

}  // namespace

TEST(QnGeObject, AnswersEverySlotByDefault) {
    QnGeObject object;
    ExpectRootDefaults(object);
}

TEST(QnGeObject2d, AnswersEverySlotByDefault) {
    QnGeObject2d object;
    ExpectRootDefaults(object);
    object.SetElevation(5.0);
    EXPECT_EQ(object.GetElevation(), 0.0);
    EXPECT_EQ(object.ConvertTo3d(), nullptr);
}

TEST(QnGeObject3d, AnswersEverySlotByDefault) {
    QnGeObject3d object;
    ExpectRootDefaults(object);
    EXPECT_EQ(object.ConvertTo2d(), nullptr);
    QnGeBasePlane plane;
    EXPECT_FALSE(object.GetPlane(plane));
}

TEST(QnGeObject, CopiesTakeTheFlagWord) {
    QnGeObject first;
    first.SetBits(0x80000005U);
    const QnGeObject copy(first);
    EXPECT_EQ(copy.GetBits(), 0x80000005U);
    QnGeObject assigned;
    assigned = first;
    EXPECT_EQ(assigned.GetBits(), 0x80000005U);
}

TEST(QnGeObject, RecordIsTheFlagWordWithAll32Bits) {
    QnGeObject object;
    object.SetBits(0x80000005U);
    QnDynArrayStream stream(4, 4);
    object.StreamOut(stream);
    EXPECT_EQ(stream.GetLength(), 4);
    stream.MoveToFirst();
    QnGeObject read;
    read.StreamIn(stream);
    EXPECT_EQ(read.GetBits(), 0x80000005U);
}

TEST(QnGeObject, KeptOddEqualityIsThatOfTheFlagWordsWhateverTheShapes) {
    QnGeLineSeg2d a(QnGePoint(0.0, 0.0), QnGePoint(1.0, 0.0));
    const QnGeLineSeg2d b(QnGePoint(5.0, 5.0), QnGePoint(9.0, 7.0));
    const QnGeArc2d arc;
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a == arc);
    a.SetBits(1);
    EXPECT_TRUE(a != b);
    EXPECT_FALSE(a == arc);
}

TEST(QnGeObject, OrderIsThatOfTheClassIds) {
    const QnGeLine2d line(QnGePoint(100.0, 0.0), QnGePoint(200.0, 0.0));
    const QnGeArc2d arc;
    const QnGeLine2d other;
    EXPECT_TRUE(line < arc);
    EXPECT_FALSE(line > arc);
    EXPECT_TRUE(arc > line);
    EXPECT_FALSE(arc < line);
    EXPECT_FALSE(line < other);
    EXPECT_FALSE(line > other);
    EXPECT_TRUE(QnGeObject() < QnGeObject2d());
    EXPECT_TRUE(QnGeObject3d() > arc);
}

TEST(QnGeObject, CloneNewRebuildsTheClassOfTheRecord) {
    QnGeLineSeg2d seg(QnGePoint(1.0, 2.0, 3.0), QnGePoint(4.0, 5.0, 6.0));
    seg.SetBits(0x12345U);
    const std::unique_ptr<QnGeObject> clone(seg.CloneNew());
    ASSERT_NE(clone, nullptr);
    EXPECT_EQ(clone->GetCI(), &QnGeLineSeg2d::s_classInfo);
    EXPECT_EQ(clone->GetBits(), 0x12345U);
    ExpectGeo(clone.get(), "seg 1,2,3 4,5,6", 0.0);
}

TEST(QnGeObject, CloneNewOfAnEllipseIsNull) {
    EXPECT_EQ(QnGeEllipse2d().CloneNew(), nullptr);
}

TEST(QnGeObject, CloneNewTurnsAClassWithoutRecordIntoItsBase) {
    class Special : public QnGePoint2d {
    public:
        QnGeObject* Clone() const override { return new Special(*this); }
    };
    Special special;
    special.SetPoint(4.0, 5.0, 6.0);
    const std::unique_ptr<QnGeObject> clone(special.CloneNew());
    ExpectGeo(clone.get(), "point 4,5,6", 0.0);
    EXPECT_EQ(dynamic_cast<Special*>(clone.get()), nullptr);
}

TEST(QnGeObject2d, MovesInPlanAndKeepsZ) {
    QnGePoint2d point(1.0, 2.0, 3.0);
    point.Move(10.0, 20.0);
    ExpectPoint(point, "11,22,3");
}

TEST(QnGeObject2d, ScalesAboutTheOriginOrAboutABase) {
    QnGePoint2d point(1.0, 2.0, 3.0);
    point.Scale(2.0, 3.0);
    ExpectPoint(point, "2,6,3");
    point.Scale(2.0, 0.5, QnGePoint(1.0, 4.0));
    ExpectPoint(point, "3,5,3");
}

TEST(QnGeObject2d, TurnsCounterClockwiseAboutTheOriginOrAboutABase) {
    QnGePoint2d point(1.0, 0.0, 3.0);
    point.Rotate(QN_HALF_PI);
    ExpectPoint(point, "0,1,3");
    point.Rotate(QN_HALF_PI, QnGePoint(0.0, 3.0));
    ExpectPoint(point, "2,3,3");
}

TEST(QnGeObject3d, MovesAndScalesInSpace) {
    QnGePoint3d point(1.0, 2.0, 3.0);
    point.Move(10.0, 20.0, 30.0);
    ExpectPoint(point, "11,22,33");
    point.Scale(2.0, 3.0, 0.5);
    ExpectPoint(point, "22,66,16.5");
    point.Scale(2.0, 0.5, 2.0, QnGePoint(20.0, 60.0, 16.0));
    ExpectPoint(point, "24,63,17");
}

TEST(QnGeObject3d, TurnsAboutTheAxes) {
    QnGePoint3d point(1.0, 2.0, 3.0);
    point.RotateX(QN_HALF_PI);
    ExpectPoint(point, "1,-3,2");
    point = QnGePoint(1.0, 2.0, 3.0);
    point.RotateY(QN_HALF_PI);
    ExpectPoint(point, "3,2,-1");
    point = QnGePoint(1.0, 2.0, 3.0);
    point.RotateZ(QN_HALF_PI);
    ExpectPoint(point, "-2,1,3");
}

TEST(QnGeObject3d, TurnsAboutAnAxisInSpace) {
    QnGePoint3d point(6.0, 5.0, 3.0);
    point.Rotate(QN_HALF_PI, QnGeBaseLine3d(QnGeVector3d(0.0, 0.0, 2.0), QnGePoint(5.0, 5.0, 0.0)));
    ExpectPoint(point, "5,6,3");
}

TEST(QnGeObject2d, ExtentInSpaceStandsAtTheElevation) {
    QnGeLineSeg2d seg(QnGePoint(0.0, 0.0, 7.0), QnGePoint(4.0, 2.0, 9.0));
    QnGeExtent3d box;
    EXPECT_TRUE(seg.GetExtent3d(box));
    EXPECT_EQ(box.x.max, 4.0);
    EXPECT_EQ(box.y.max, 2.0);
    EXPECT_EQ(box.z.min, 7.0);
    EXPECT_EQ(box.z.max, 7.0);
}
