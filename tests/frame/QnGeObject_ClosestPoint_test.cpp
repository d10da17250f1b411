// SPDX-License-Identifier: Apache-2.0
// Closest points by the defaults: which of the parts' closest points are kept.
#include <gtest/gtest.h>

#include <string>

#include "frame/Bundle.h"
#include "support/ExpectGeo.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"
#include "values/QnGePointList.h"

namespace {

const QnGePoint ORIGIN;

std::string PointsToText(const QnGePointList& points) {
    std::string text;
    for (const QnGePoint* p = points.GetFirst(); p != nullptr; p = points.GetNext(p)) {
        text += (text.empty() ? "" : "; ") + PointToText(*p);
    }
    return text;
}

std::string ClosestInPlan(const QnGeObject& object, const QnGePoint& from = ORIGIN) {
    QnGePointList found;
    const bool answer = object.GetClosestPoint2d(from, found);
    EXPECT_EQ(answer, !found.IsEmpty());
    return PointsToText(found);
}

std::string ClosestInSpace(const QnGeObject& object, const QnGePoint& from = ORIGIN) {
    QnGePointList found;
    const bool answer = object.GetClosestPoint(from, found);
    EXPECT_EQ(answer, !found.IsEmpty());
    return PointsToText(found);
}

SpaceBundle PointsOfSpace(const QnGePoint& a, const QnGePoint& b) {
    SpaceBundle bundle("");
    bundle.Add(new QnGePoint3d(a));
    bundle.Add(new QnGePoint3d(b));
    return bundle;
}

}  // namespace

TEST(ClosestPoint, IsTheNearestAmongTheParts) {
    const PlaneBundle bundle("point 3,0; point 0,2; point -5,0");
    EXPECT_EQ(ClosestInPlan(bundle), "0,2");
    EXPECT_EQ(ClosestInSpace(bundle), "0,2");
    EXPECT_EQ(ClosestInPlan(bundle, QnGePoint(-9.0, 0.0)), "-5,0");
}

TEST(ClosestPoint, EquallyNearPointsOfTwoPartsComeBothOnceEach) {
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 2,0; point 0,2; point 2,0; point 0,2; point 9,9")), "2,0; 0,2");
}

TEST(ClosestPoint, APointSharedByPartsComesOnce) {
    EXPECT_EQ(ClosestInPlan(PlaneBundle("seg 1,1 5,1; seg 1,1 1,5")), "1,1");
}

TEST(ClosestPoint, EquallyNearPointsCloserThanTheToleranceComeOnce) {
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 2,0; point 2,0.0000005")), "2,0");
}

TEST(ClosestPoint, TiesDoNotDriftUpwards) {
    // Each is within the tolerance of the one before it, the last not of the first.
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 2,0; point 0,2.0000008; point -2.0000016,0")), "2,0; 0,2.0000008");
}

TEST(ClosestPoint, TiesDoNotDriftDownwards) {
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 2.0000016,0; point 0,2.0000008; point -2,0")), "-2,0");
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 2.0000008,0; point 0,2; point -2.0000016,0")),
              "2.0000008,0; 0,2; -2.0000016,0")
        << "the first distance stays the measure";
}

TEST(ClosestPoint, ANearerPointDropsAllBeforeIt) {
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 5,0; point 0,5; point 1,0; point 0,1")), "1,0; 0,1");
}

TEST(ClosestPoint, AtDistanceZeroItIsThePointItself) {
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 0,0; point 3,0")), "0,0");
}

TEST(ClosestPoint, KeptOddPointsAboveEachOtherBothStayInThePlanForm) {
    EXPECT_EQ(ClosestInPlan(PlaneBundle("point 3,0; point 3,0,5; point 3,0,5")), "3,0; 3,0,5");
    EXPECT_EQ(ClosestInPlan(RootBundle("point 3,0; point 3,0,5")), "3,0; 3,0,5");
}

TEST(ClosestPoint, OfAPlanarObjectIsTheOneInPlanAlsoWhenAskedInSpace) {
    EXPECT_EQ(ClosestInSpace(PlaneBundle("point 3,0,0; point 1,0,50")), "1,0,50");
}

TEST(ClosestPoint, AtTheRootThePlanAndTheSpaceFormsDiffer) {
    const RootBundle bundle("point 3,0,0; point 1,0,50");
    EXPECT_EQ(ClosestInPlan(bundle), "1,0,50");
    EXPECT_EQ(ClosestInSpace(bundle), "3,0");
}

TEST(ClosestPoint, OfAnObjectInSpaceIsTheOneInSpaceAlsoWhenAskedInPlan) {
    const SpaceBundle bundle = PointsOfSpace(QnGePoint(3.0, 0.0, 0.0), QnGePoint(1.0, 0.0, 50.0));
    EXPECT_EQ(ClosestInSpace(bundle), "3,0");
    EXPECT_EQ(ClosestInPlan(bundle), "3,0");
}

TEST(ClosestPoint, ResultsGoBehindWhatTheListHeld) {
    QnGePointList found;
    found.Append(QnGePoint(2.0, 0.0));
    EXPECT_TRUE(PlaneBundle("point 2,0; point 0,2").GetClosestPoint2d(ORIGIN, found));
    EXPECT_EQ(PointsToText(found), "2,0; 2,0; 0,2") << "what is there already is not looked at";
}

TEST(ClosestPoint, WithoutPartsItIsFalseAndNothingChanges) {
    QnGePointList found;
    found.Append(QnGePoint(2.0, 0.0));
    EXPECT_FALSE(PlaneBundle("").GetClosestPoint2d(ORIGIN, found));
    EXPECT_FALSE(RootBundle("").GetClosestPoint(ORIGIN, found));
    EXPECT_FALSE(Atom<QnGeObject>().GetClosestPoint2d(ORIGIN, found));
    EXPECT_FALSE(Atom<QnGeObject3d>().GetClosestPoint(ORIGIN, found));
    EXPECT_EQ(PointsToText(found), "2,0");
}

TEST(ClosestPoint, PointFormGivesTheFirstOfTheList) {
    const RootBundle bundle("point 0,2; point 2,0");
    QnGePoint found(7.0, 7.0, 7.0);
    EXPECT_TRUE(bundle.GetClosestPoint(ORIGIN, found));
    EXPECT_EQ(PointToText(found), "0,2");
    found = QnGePoint(7.0, 7.0, 7.0);
    EXPECT_TRUE(bundle.GetClosestPoint2d(ORIGIN, found));
    EXPECT_EQ(PointToText(found), "0,2");
}

TEST(ClosestPoint, PointFormLeavesTheResultWhereThereIsNone) {
    QnGePoint found(7.0, 8.0, 9.0);
    EXPECT_FALSE(RootBundle("").GetClosestPoint(ORIGIN, found));
    EXPECT_FALSE(PlaneBundle("").GetClosestPoint2d(ORIGIN, found));
    EXPECT_EQ(PointToText(found), "7,8,9");
}

TEST(ClosestPoint, PointFormTakesAnEmptyListForNo) {
    class Boaster : public QnGeObject {
    public:
        using QnGeObject::GetClosestPoint;
        using QnGeObject::GetClosestPoint2d;
        bool GetClosestPoint(const QnGePoint&, QnGePointList&) const override { return true; }
        bool GetClosestPoint2d(const QnGePoint&, QnGePointList&) const override { return true; }
    };
    QnGePoint found(7.0, 8.0, 9.0);
    EXPECT_FALSE(Boaster().GetClosestPoint(ORIGIN, found));
    EXPECT_FALSE(Boaster().GetClosestPoint2d(ORIGIN, found));
    EXPECT_EQ(PointToText(found), "7,8,9");
}

TEST(ClosestPoint, DistanceOfAPlanarObjectIsInPlan) {
    EXPECT_EQ(PlaneBundle("point 3,4,50; point 9,9").GetDistance(ORIGIN), 5.0);
}

TEST(ClosestPoint, DistanceOfAnObjectInSpaceIsInSpace) {
    EXPECT_EQ(PointsOfSpace(QnGePoint(2.0, 3.0, 6.0), QnGePoint(9.0, 9.0, 9.0)).GetDistance(ORIGIN), 7.0);
}

TEST(ClosestPoint, KeptOddWithoutAClosestPointTheDistanceIsThatToTheSamplePoint) {
    EXPECT_EQ(QnGeObject2d().GetDistance(QnGePoint(3.0, 4.0, 12.0)), 5.0);
    EXPECT_EQ(QnGeObject3d().GetDistance(QnGePoint(3.0, 4.0, 12.0)), 13.0);
}
