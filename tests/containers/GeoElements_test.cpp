// SPDX-License-Identifier: Apache-2.0
// Points and geometric objects as elements: an equality with a tolerance, an order that is none, and objects whose
// equality and order look at different things.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "QuarnGeo.h"
#include "containers/GroupedList.h"
#include "support/ContainerCheckers.h"

namespace {

/// The x coordinates, as whole numbers of a tenth of the tolerance.
template <class Points>
std::string Tenths(const Points& points) {
    std::string text;
    for (const QnGePoint* p = points.GetFirst(); p != nullptr; p = points.GetNext(p)) {
        text += (text.empty() ? "" : " ") + std::to_string(std::lround(p->x / (0.1 * g_distZero)));
    }
    return text;
}

QnGePoint AtTenths(double tenths, double z = 0.0) {
    return QnGePoint(tenths * 0.1 * g_distZero, 0.0, z);
}

/// Ids and flag words of the objects in their order.
template <class Owner>
std::string Classes(const Owner& owner) {
    std::string text;
    for (QnGeObject* const* p = owner.GetFirst(); p != nullptr; p = owner.GetNext(p)) {
        text += text.empty() ? "" : " ";
        text += *p == nullptr ? "-" : std::to_string((*p)->GetClassID()) + ":" + std::to_string((*p)->GetBits());
    }
    return text;
}

QnGeObject* Flagged(QnGeObject* object, unsigned bits) {
    object->SetBits(bits);
    return object;
}

}  // namespace

template <class Points>
class PointSequence : public ::testing::Test {};

using PointSequences = ::testing::Types<QnGePointArray, QnGePointList, QnDynArray<QnGePoint>, QnList<QnGePoint>,
                                        QnDList<QnGePoint>, GroupedList<QnGePoint, 2>>;

struct PointSequenceNames {
    template <class Points>
    static std::string GetName(int i) {
        static const char* const names[] = {"QnGePointArray", "QnGePointList", "QnDynArray",
                                            "QnList",         "QnDList",       "QnXList"};
        return names[i];
    }
};
TYPED_TEST_SUITE(PointSequence, PointSequences, PointSequenceNames);

TYPED_TEST(PointSequence, EqualPointsAreNoFurtherApartThanTheToleranceInSpace) {
    TypeParam points;
    points.Append(AtTenths(0.0));
    points.Append(AtTenths(50.0));
    EXPECT_EQ(points.Find(AtTenths(59.0)), 1);
    EXPECT_EQ(points.Find(AtTenths(61.0)), -1);
    EXPECT_EQ(points.Find(AtTenths(50.0, 2.0 * g_distZero)), -1) << "above it, and so another point";
    EXPECT_TRUE(points.FindTo(AtTenths(42.0)));
    EXPECT_EQ(points.GetCur(), 1);
    EXPECT_EQ(points.FindOrAppend(AtTenths(-9.0)), 0);
    EXPECT_EQ(points.FindOrAppend(AtTenths(-11.0)), 2);
    EXPECT_EQ(points.FindDel(AtTenths(-5.0)), 2) << "both are within the tolerance";
    EXPECT_EQ(Tenths(points), "50");
}

TYPED_TEST(PointSequence, SortIntoRefusesAPointThatIsThereWithinTheTolerance) {
    TypeParam points;
    for (const double tenths : {300.0, 100.0, 200.0}) {
        EXPECT_TRUE(points.SortInto(AtTenths(tenths), false));
    }
    EXPECT_FALSE(points.SortInto(AtTenths(209.0), false));
    EXPECT_EQ(points.GetCur(), 1) << "on the point that is there";
    EXPECT_EQ(Tenths(points), "100 200 300");
    EXPECT_TRUE(points.SortInto(AtTenths(211.0), false));
    EXPECT_TRUE(points.SortInto(AtTenths(209.0), true));
    EXPECT_EQ(Tenths(points), "100 200 211 209 300") << "behind all that are not greater";
    EXPECT_EQ(points.BFind(AtTenths(305.0)), 4);
    EXPECT_EQ(points.BFind(AtTenths(250.0)), -1);
}

TYPED_TEST(PointSequence, ComparisonOfSequencesTakesTheTolerance) {
    TypeParam points;
    points.Append(AtTenths(10.0));
    TypeParam others;
    others.Append(AtTenths(19.0));
    EXPECT_TRUE(points == others);
    others[0] = AtTenths(21.0);
    EXPECT_TRUE(points != others);
}

TEST(PointArray, SortOfAChainOfNeighboursLosesNone) {
    // Neighbours are neither before nor after each other, the ends are: all three get the same rank.
    QnGePointArray points;
    QnArray<QnGePoint> exact;
    for (const double tenths : {20.0, 12.0, 5.0}) {
        points.Append(AtTenths(tenths));
        exact.Append(AtTenths(tenths));
    }
    points.Sort(true);
    EXPECT_EQ(Tenths(points), "20 12 5");
    exact.Sort(true);
    for (long i = 0; i < 3; ++i) {
        EXPECT_EQ(exact[i].x, points.GetAt(i).x);
    }
}

template <class Owner>
class ObjectSequence : public ::testing::Test {};

using ObjectSequences =
    ::testing::Types<QnPDList<QnGeObject>, QnGeObjList, GroupedPList<QnGeObject, 2>, QnDynPArray<QnGeObject>>;

struct ObjectSequenceNames {
    template <class Owner>
    static std::string GetName(int i) {
        static const char* const names[] = {"QnPDList", "QnGeObjList", "QnPXList", "QnDynPArray"};
        return names[i];
    }
};
TYPED_TEST_SUITE(ObjectSequence, ObjectSequences, ObjectSequenceNames);

TYPED_TEST(ObjectSequence, SortedOperationsGoByTheClassIdAndNotByTheFlagWord) {
    TypeParam owner;
    EXPECT_TRUE(owner.SortInto(Flagged(new QnGeLineSeg2d, 1), true));
    EXPECT_TRUE(owner.SortInto(new QnGeArc2d, true));
    EXPECT_TRUE(owner.SortInto(new QnGeMLine2d(0, false), true));
    EXPECT_TRUE(owner.SortInto(new QnGePoint2d, true));
    EXPECT_TRUE(owner.SortInto(new QnGeLineSeg2d, true));
    EXPECT_EQ(Classes(owner), "102:0 113:1 113:0 115:0 116:0") << "not past the arc, whose flags are equal";
    const auto refused = std::make_unique<QnGeLineSeg2d>();
    refused->SetBits(7);
    EXPECT_FALSE(owner.SortInto(refused.get(), false)) << "a segment is there, whatever its flags";
    EXPECT_EQ(owner.BFindData(QnGeArc2d(), 0, -1), 3);
    EXPECT_EQ(owner.BFindData(QnGeCircle2d(), 0, -1), -1);
    EXPECT_FALSE(owner.BFindDataTo(QnGeCircle2d(), 0, -1));
    EXPECT_EQ(owner.GetCur(), 3);
}

TYPED_TEST(ObjectSequence, KeptOddObjectsAreFoundByTheFlagWordAlone) {
    TypeParam owner;
    owner.Append(Flagged(new QnGeLineSeg2d, 1));
    owner.Append(nullptr);
    owner.Append(Flagged(new QnGeArc2d, 2));
    owner.Append(Flagged(new QnGePoint2d, 1));
    QnGeCircle2d wanted;
    wanted.SetBits(2);
    EXPECT_EQ(owner.FindData(wanted), 2);
    wanted.SetBits(1);
    QnListQuene<long> hits;
    EXPECT_EQ(owner.FindData(wanted, hits), 2);
    EXPECT_EQ(owner.FindDataDel(wanted), 2);
    EXPECT_EQ(Classes(owner), "- 115:2");
}
