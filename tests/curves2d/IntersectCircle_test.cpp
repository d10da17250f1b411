// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "RoundTesting.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "support/ExpectGeo.h"

using namespace round_testing;

namespace {

/// Both sides are asked: a pair has one answer, which the circle gives.
void ExpectPair(const std::string& circle, const std::string& other, const std::string& expected) {
    ExpectIntersect(circle, other, expected);
    ExpectIntersect(other, circle, expected);
}

}  // namespace

// ---- circle and line ---------------------------------------------------------------------------------

TEST(IntersectCircle, LineThroughItMeetsTwiceInTheOrderOfTheLine) {
    ExpectPair("circle 1,2 r2", "line -9,2 1,0", "point -1,2; point 3,2");
    ExpectPair("circle 1,2 r2", "line -9,2 -3,0", "point 3,2; point -1,2");
    ExpectPair("circle 1,2 r2 cw", "line 1,0 0,5", "point 1,0; point 1,4");
    ExpectPair("circle 0,0 r5", "line 3,0 0,0.5", "point 3,-4; point 3,4");
}

TEST(IntersectCircle, LineBesideItMeetsNothing) {
    ExpectPair("circle 1,2 r2", "line 0,5 1,0", "");
    ExpectPair("circle 1,2 r2", "line 0,4.00001 1,0", "");
}

TEST(IntersectCircle, TangentLineMeetsOnceAtTheFoot) {
    ExpectPair("circle 1,2 r2", "line -9,4 1,0", "point 1,4");
    ExpectPair("circle 1,2 r2", "line -9,4.0000009 1,0", "point 1,4.0000009");
    ExpectPair("circle 1,2 r2", "line -9,3.9999995 7,0", "point 1,3.9999995");
    ExpectPair("circle 1,2 r2", "line 3,-5 0,3", "point 3,2");
}

TEST(IntersectCircle, SecantClearOfTheToleranceMeetsTwice) {
    // 2e-6 inside: half the chord is sqrt(2 * 2 * 2e-6 - (2e-6)^2).
    QnGeObjList found;
    EXPECT_TRUE(ParseGeo("circle 0,0 r2")->IntersectWith(*ParseGeo("line -9,1.999998 1,0"), found));
    ExpectGeoList(found, "point -0.0028284264,1.999998; point 0.0028284264,1.999998", 1e-8);
}

TEST(IntersectCircle, HeightOfAPointIsThatOfTheLine) {
    ExpectPair("circle 1,2,50 r2", "line -9,2,0 1,0,1", "point -1,2,8; point 3,2,12");
}

TEST(IntersectCircle, KeptOddTinyCircleTouchesALineBesideIt) {
    // The discriminant of a line 3e-5 off a circle of radius 1e-5 is within g_fZero of 0: a touch, at the foot.
    ExpectPair("circle 0,0 r0.00001", "line -1,0.00003 1,0", "point 0,0.00003");
    ExpectPair("circle 0,0 r0.00001", "line -1,0 1,0", "point 0,0");
    ExpectPair("circle 0,0 r0.00001", "line -1,0.00004 1,0", "");
}

// ---- circle and ray ----------------------------------------------------------------------------------

TEST(IntersectCircle, RayMeetsWhatLiesAheadOfItsBase) {
    ExpectPair("circle 0,0 r2", "ray -9,0 1,0", "point -2,0; point 2,0");
    ExpectPair("circle 0,0 r2", "ray 0,0 3,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "ray 0,0 -3,0", "point -2,0");
    ExpectPair("circle 0,0 r2", "ray 5,0 1,0", "");
    ExpectPair("circle 0,0 r2", "ray 0,5 1,0", "");
}

TEST(IntersectCircle, RayFromTheCircleMeetsItsBase) {
    ExpectPair("circle 0,0 r2", "ray -2,0 1,0", "point -2,0; point 2,0");
    ExpectPair("circle 0,0 r2", "ray 2,0 1,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "ray 2.0000000005,0 1,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "ray 2.00000001,0 1,0", "");
}

TEST(IntersectCircle, TangentRayMeetsOnceIfTheFootLiesAhead) {
    ExpectPair("circle 0,0 r2", "ray -5,2 1,0", "point 0,2");
    ExpectPair("circle 0,0 r2", "ray 5,2 1,0", "");
    ExpectPair("circle 0,0 r2", "ray 0,2 1,0", "point 0,2");
}

TEST(IntersectCircle, ReversedRayAsReceiverIsItsForwardTwin) {
    ExpectIntersect("ray reversed -9,0 1,0", "circle 0,0 r2", "point -2,0; point 2,0");
    ExpectIntersect("ray reversed 0,0 3,0", "circle 0,0 r2", "point 2,0");
    ExpectIntersect("ray reversed 5,0 1,0", "circle 0,0 r2", "");
}

TEST(IntersectCircle, KeptOddReversedRayHandedToACircleIsMirrored) {
    // The hit at t = 2 of the ray from (0,0) comes back at 1 - t = -1 vectors.
    ExpectIntersect("circle 0,0 r2", "ray reversed 0,0 1,0", "point -1,0");
    ExpectIntersect("circle 0,0 r2", "ray reversed -9,0 1,0", "point -15,0; point -19,0");
    ExpectIntersect("circle 0,0 r2", "ray reversed 0,0 4,0", "point 2,0");
    ExpectIntersect("circle 0,0 r2", "ray reversed 5,0 1,0", "");
    ExpectIntersect("circle 0,0 r2", "ray reversed -5,2 1,0", "point -9,2");
}

// ---- circle and segment ------------------------------------------------------------------------------

TEST(IntersectCircle, SegmentMeetsBetweenItsEnds) {
    ExpectPair("circle 0,0 r2", "seg -9,0 9,0", "point -2,0; point 2,0");
    ExpectPair("circle 0,0 r2", "seg 9,0 -9,0", "point 2,0; point -2,0");
    ExpectPair("circle 0,0 r2", "seg -9,0 0,0", "point -2,0");
    ExpectPair("circle 0,0 r2", "seg 0,0 9,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "seg -1,0 1,0", "");
    ExpectPair("circle 0,0 r2", "seg 3,0 9,0", "");
    ExpectPair("circle 0,0 r2", "seg -9,0 -3,0", "");
    ExpectPair("circle 0,0 r2", "seg -9,3 9,3", "");
}

TEST(IntersectCircle, SegmentThatEndsOnTheCircleMeetsItThere) {
    ExpectPair("circle 0,0 r2", "seg 0,0 2,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "seg 2,0 0,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "seg -2,0 2,0", "point -2,0; point 2,0");
    // The range is that of the parameter: on a segment of length 1 lengths and parameters are the same.
    ExpectPair("circle 0,0 r2", "seg 0.9999999995,0 1.9999999995,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "seg 2.0000000005,0 3.0000000005,0", "point 2,0");
    ExpectPair("circle 0,0 r2", "seg 2.00000001,0 3.00000001,0", "");
    ExpectPair("circle 0,0 r2", "seg 0.99999999,0 1.99999999,0", "");
}

TEST(IntersectCircle, TangentSegmentMeetsOnce) {
    ExpectPair("circle 0,0 r2", "seg -5,2 5,2", "point 0,2");
    ExpectPair("circle 0,0 r2", "seg 1,2 5,2", "");
    ExpectPair("circle 0,0 r2", "seg 0,2 5,2", "point 0,2");
}

// ---- circle and circle -------------------------------------------------------------------------------

TEST(IntersectCircle, CirclesThatCrossMeetTwice) {
    // Centres 6 apart, radii 5: at half the distance, 4 up and down. The first point is left of the way from the
    // receiver to the other.
    ExpectIntersect("circle 0,0 r5", "circle 6,0 r5", "point 3,4; point 3,-4");
    ExpectIntersect("circle 6,0 r5 cw", "circle 0,0 r5", "point 3,-4; point 3,4");
    ExpectIntersect("circle 0,0,7 r5", "circle 6,0,9 r5", "point 3,4,7; point 3,-4,7");
}

TEST(IntersectCircle, CirclesOfDifferentSizeMeetFromTheLargerOne) {
    // 9 + 16 = 25: right angle at the crossing, 3.2 along from the centre of radius 4 and 2.4 across.
    ExpectIntersect("circle 0,0 r4", "circle 5,0 r3", "point 3.2,2.4; point 3.2,-2.4");
    ExpectIntersect("circle 5,0 r3", "circle 0,0 r4", "point 3.2,2.4; point 3.2,-2.4");
}

TEST(IntersectCircle, CirclesThatTouchMeetOnce) {
    ExpectPair("circle 0,0 r2", "circle 3,0 r1", "point 2,0");
    ExpectPair("circle 0,0 r3", "circle 2,0 r1", "point 3,0");
    ExpectPair("circle 0,0 r3", "circle -2,0 r1 cw", "point -3,0");
    ExpectIntersect("circle 0,0 r2", "circle 3.0000009,0 r1", "point 2,0");
}

TEST(IntersectCircle, CirclesApartOrWithinEachOtherMeetNothing) {
    ExpectPair("circle 0,0 r2", "circle 3.000002,0 r1", "");
    ExpectPair("circle 0,0 r2", "circle 9,0 r1", "");
    ExpectPair("circle 0,0 r5", "circle 1,0 r2", "");
    ExpectPair("circle 0,0 r5", "circle 0,0 r4", "");
    ExpectPair("circle 0,0 r3", "circle 1.999998,0 r1", "");
}

TEST(IntersectCircle, EqualCirclesShareACopyOfTheReceiver) {
    ExpectIntersect("circle 0,0,1 r2", "circle 0,0,9 r2 cw", "circle 0,0,1 r2");
    ExpectIntersect("circle 0,0,9 r2 cw", "circle 0,0,1 r2", "circle 0,0,9 r2 cw");
    ExpectIntersect("circle 0,0 r2", "circle 0.0000005,0 r2.0000005", "circle 0,0 r2");
    QnGeCircle2d marked = CircleOf("circle 0,0 r2");
    marked.SetBit(0x400);
    QnGeObjList found;
    EXPECT_TRUE(marked.IntersectWith(CircleOf("circle 0,0 r2"), found));
    ASSERT_EQ(found.GetLength(), 1);
    EXPECT_EQ(found.GetPData(0)->GetBits(), 0x400U);
    EXPECT_NE(found.GetPData(0), &marked);
}

// ---- circle and the rest -----------------------------------------------------------------------------

TEST(IntersectCircle, OtherObjectsAreHandedTheCircle) {
    ExpectIntersect("circle 0,0 r5", "point 3,4", "point 3,4");
    ExpectIntersect("circle 0,0 r5", "point 3,3", "");
    ExpectIntersect("circle 0,0 r2", "mline -5,0 5,0 5,5 0,5 0,0", "point -2,0; point 2,0; point 0,2");
    ExpectIntersect("circle 0,0 r5", "pline 6,-5@-pi 6,5", "point 3,-4; point 3,4", 1e-8);
    ExpectIntersect("circle 0,0 r5", "mline 5,5 6,6", "");
}

TEST(IntersectCircle, VertexOnTheCircleComesTwice) {
    ExpectIntersect("circle 0,0 r2", "mline 0,0 2,0 4,1", "point 2,0; point 2,0");
}

TEST(IntersectCircle, ResultsGoToTheTailOfTheList) {
    QnGeObjList found;
    ParseGeoList("point 9,9", found);
    const QnGeCircle2d circle = CircleOf("circle 0,0 r2");
    EXPECT_TRUE(circle.IntersectWith(*ParseGeo("line 0,0 1,0"), found));
    EXPECT_FALSE(circle.IntersectWith(*ParseGeo("line 0,7 1,0"), found)) << "false though the list is not empty";
    EXPECT_FALSE(circle.IntersectWith(*ParseGeo("ray 7,0 1,0"), found));
    EXPECT_FALSE(circle.IntersectWith(*ParseGeo("seg 7,0 8,0"), found));
    EXPECT_FALSE(circle.IntersectWith(*ParseGeo("circle 7,0 r1"), found));
    EXPECT_TRUE(circle.IntersectWith(circle, found));
    ExpectGeoList(found, "point 9,9; point -2,0; point 2,0; circle 0,0 r2");
}

// ---- at random ---------------------------------------------------------------------------------------

TEST(IntersectCircle, CrossingsLieOnBothCirclesAndNoneIsMissed) {
    RoundSource random(BaseSeed());
    constexpr double CLEAR = 1e-3;
    int cases = 0, crossing = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeCircle2d a = random.Circle();
        const QnGeCircle2d b = random.Circle();
        const double apart = PlanDistance(a.center, b.center);
        const double outer = apart - a.radius - b.radius;
        const double inner = apart - std::fabs(a.radius - b.radius);
        if (std::fabs(outer) < CLEAR || std::fabs(inner) < CLEAR) {
            continue;
        }
        ++cases;
        QnGeObjList found;
        const bool meets = outer < 0.0 && inner > 0.0;
        ASSERT_EQ(a.IntersectWith(b, found), meets) << ToText(a) << " with " << ToText(b);
        ASSERT_EQ(found.GetLength(), meets ? 2 : 0) << ToText(a) << " with " << ToText(b);
        if (!meets) {
            continue;
        }
        ++crossing;
        // The angle at a's centre between the way to b and the way to a crossing, by the rule of cosines.
        const double half =
            std::acos((a.radius * a.radius + apart * apart - b.radius * b.radius) / (2.0 * a.radius * apart));
        const double way = std::atan2(b.center.y - a.center.y, b.center.x - a.center.x);
        const QnGePoint left = PlainPoint(a.center, a.radius, true, way + half);
        const QnGePoint right = PlainPoint(a.center, a.radius, true, way - half);
        const QnGePoint first = found.GetPData(0)->GetSamplePoint();
        const QnGePoint second = found.GetPData(1)->GetSamplePoint();
        for (const QnGePoint& pt : {first, second}) {
            ASSERT_TRUE(a.HitTest(pt).HasBit(HIT_ON)) << PointToText(pt) << " of " << ToText(a);
            ASSERT_TRUE(b.HitTest(pt).HasBit(HIT_ON)) << PointToText(pt) << " of " << ToText(b);
        }
        // A smaller receiver has the two the other way round.
        const bool leftFirst = a.radius >= b.radius;
        ASSERT_LT(PlanDistance(first, leftFirst ? left : right), 1e-7) << ToText(a) << " with " << ToText(b);
        ASSERT_LT(PlanDistance(second, leftFirst ? right : left), 1e-7) << ToText(a) << " with " << ToText(b);
    }
    EXPECT_GT(crossing, 1000);
}

TEST(IntersectCircle, SegmentCrossingsAreThoseOfTheQuadraticEquation) {
    RoundSource random(BaseSeed() + 1);
    int cases = 0, hits = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeCircle2d circle = random.Circle();
        const QnGePoint from = random.Point(40.0);
        const QnGePoint to = random.Point(40.0);
        const double dx = to.x - from.x, dy = to.y - from.y;
        const double ex = from.x - circle.center.x, ey = from.y - circle.center.y;
        const double qa = dx * dx + dy * dy;
        const double qb = ex * dx + ey * dy;
        const double qc = ex * ex + ey * ey - circle.radius * circle.radius;
        const double root = qb * qb - qa * qc;
        const double offset = std::fabs(ex * dy - ey * dx) / std::sqrt(qa) - circle.radius;
        if (qa < 1.0 || std::fabs(offset) < 1e-3) {
            continue;
        }
        double expected[2];
        long count = 0;
        bool clear = true;
        for (const double sign : {-1.0, 1.0}) {
            const double t = root > 0.0 ? (-qb + sign * std::sqrt(root)) / qa : -1.0;
            clear = clear && std::fabs(t) > 1e-6 && std::fabs(t - 1.0) > 1e-6;
            if (t > 0.0 && t < 1.0) {
                expected[count++] = t;
            }
        }
        if (!clear) {
            continue;
        }
        ++cases;
        QnGeObjList found;
        const QnGeLineSeg2d segment(from, to);
        ASSERT_EQ(circle.IntersectWith(segment, found), count > 0) << ToText(circle) << " with " << ToText(segment);
        ASSERT_EQ(found.GetLength(), count) << ToText(circle) << " with " << ToText(segment);
        for (long i = 0; i < count; ++i) {
            const QnGePoint pt(from.x + expected[i] * dx, from.y + expected[i] * dy);
            ASSERT_LT(PlanDistance(found.GetPData(i)->GetSamplePoint(), pt), 1e-7)
                << ToText(circle) << " with " << ToText(segment);
            ++hits;
        }
    }
    EXPECT_GT(hits, 1000);
}
