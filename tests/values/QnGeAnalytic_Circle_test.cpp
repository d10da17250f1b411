// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "ValueTesting.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"
#include "values/QnGeAnalytic.h"

using namespace value_testing;

namespace {

const QnGePoint ORIGIN(0.0, 0.0, 0.0);

/// Code of two circles; the points keep their marks where they are not written.
struct Meeting {
    int code;
    QnGePoint q1, q2;
};

Meeting Meet(const QnGePoint& c1, double r1, const QnGePoint& c2, double r2) {
    Meeting meeting{-9, QnGePoint(UNTOUCHED, UNTOUCHED, UNTOUCHED), QnGePoint(UNTOUCHED, UNTOUCHED, UNTOUCHED)};
    meeting.code = CircleIntersect2d(c1, r1, c2, r2, meeting.q1, meeting.q2);
    return meeting;
}

bool IsUntouched(const QnGePoint& p) {
    return p.x == UNTOUCHED && p.y == UNTOUCHED && p.z == UNTOUCHED;
}

/// Simpson's rule over `steps` (even) intervals.
template <class F>
double Quadrature(F f, double from, double to, int steps) {
    const double h = (to - from) / steps;
    double sum = f(from) + f(to);
    for (int i = 1; i < steps; ++i) {
        sum += (i % 2 == 1 ? 4.0 : 2.0) * f(from + i * h);
    }
    return sum * h / 3.0;
}

struct Circle {
    QnGePoint center;
    double radius;
};

Circle FromAngle(const QnGePoint& p1, const QnGePoint& p2, double angle) {
    Circle circle{QnGePoint(), UNTOUCHED};
    CreateCircle2d(p1, p2, angle, circle.center, circle.radius);
    return circle;
}

Circle FromPoints(const QnGePoint& p1, const QnGePoint& p2, const QnGePoint& p3) {
    Circle circle{QnGePoint(), UNTOUCHED};
    CreateCircle2d(p1, p2, p3, circle.center, circle.radius);
    return circle;
}

}  // namespace

TEST(CircleIntersect2d, ConcentricCircles) {
    EXPECT_EQ(Meet(ORIGIN, 1.0, ORIGIN, 1.0).code, 11);
    EXPECT_EQ(Meet(ORIGIN, 1.0, QnGePoint(1e-6, 0.0), 1.0 + 5e-7).code, 11);
    EXPECT_EQ(Meet(ORIGIN, 1.0, ORIGIN, 2.0).code, 0);
    EXPECT_EQ(Meet(ORIGIN, 1.0, QnGePoint(0.0, 0.0, 50.0), 1.0).code, 11);  // plan only
    EXPECT_TRUE(IsUntouched(Meet(ORIGIN, 1.0, ORIGIN, 1.0).q1));
    const QnPushVar<double> wide(g_distZero, 0.25);
    EXPECT_EQ(Meet(ORIGIN, 1.0, ORIGIN, 1.25).code, 11);
    EXPECT_EQ(Meet(ORIGIN, 1.0, ORIGIN, 1.375).code, 0);
}

TEST(CircleIntersect2d, ApartOrInsideDoNotMeet) {
    for (const Meeting& meeting :
         {Meet(ORIGIN, 1.0, QnGePoint(5.0, 0.0), 1.0), Meet(ORIGIN, 5.0, QnGePoint(1.0, 0.0), 1.0),
          Meet(ORIGIN, 1.0, QnGePoint(1.0, 0.0), 5.0)}) {
        EXPECT_EQ(meeting.code, 0);
        EXPECT_TRUE(IsUntouched(meeting.q1));
        EXPECT_TRUE(IsUntouched(meeting.q2));
    }
}

TEST(CircleIntersect2d, TouchingFromOutside) {
    const Meeting meeting = Meet(QnGePoint(0.0, 0.0, 7.0), 1.0, QnGePoint(2.0, 0.0, 9.0), 1.0);
    EXPECT_EQ(meeting.code, 1);
    EXPECT_TRUE(IsNear(meeting.q1, QnGePoint(1.0, 0.0, 7.0)));
    EXPECT_TRUE(IsUntouched(meeting.q2));
    EXPECT_TRUE(IsNear(Meet(ORIGIN, 1.0, QnGePoint(0.0, 4.0), 3.0).q1, QnGePoint(0.0, 1.0, 0.0)));
}

TEST(CircleIntersect2d, TouchingFromInside) {
    const Meeting inside = Meet(QnGePoint(0.0, 0.0, 7.0), 3.0, QnGePoint(2.0, 0.0), 1.0);
    EXPECT_EQ(inside.code, 1);
    EXPECT_TRUE(IsNear(inside.q1, QnGePoint(3.0, 0.0, 7.0)));
    EXPECT_TRUE(IsUntouched(inside.q2));
    const Meeting around = Meet(QnGePoint(0.0, 0.0, 7.0), 1.0, QnGePoint(2.0, 0.0), 3.0);
    EXPECT_EQ(around.code, 1);
    EXPECT_TRUE(IsNear(around.q1, QnGePoint(-1.0, 0.0, 7.0)));
}

TEST(CircleIntersect2d, TouchingIncludesTheTolerance) {
    const QnPushVar<double> wide(g_distZero, 0.25);
    EXPECT_EQ(Meet(ORIGIN, 1.0, QnGePoint(2.25, 0.0), 1.0).code, 1);
    EXPECT_EQ(Meet(ORIGIN, 1.0, QnGePoint(2.375, 0.0), 1.0).code, 0);
    EXPECT_EQ(Meet(ORIGIN, 1.0, QnGePoint(1.75, 0.0), 1.0).code, 1);
    EXPECT_EQ(Meet(ORIGIN, 1.0, QnGePoint(1.625, 0.0), 1.0).code, 2);
    EXPECT_EQ(Meet(ORIGIN, 3.0, QnGePoint(1.75, 0.0), 1.0).code, 1);
    EXPECT_EQ(Meet(ORIGIN, 3.0, QnGePoint(1.625, 0.0), 1.0).code, 0);
    EXPECT_EQ(Meet(ORIGIN, 3.0, QnGePoint(2.25, 0.0), 1.0).code, 1);
    EXPECT_EQ(Meet(ORIGIN, 3.0, QnGePoint(2.375, 0.0), 1.0).code, 2);
    EXPECT_TRUE(IsNear(Meet(ORIGIN, 3.0, QnGePoint(2.25, 0.0), 1.0).q1, QnGePoint(3.0, 0.0, 0.0)));
    EXPECT_TRUE(IsNear(Meet(ORIGIN, 1.0, QnGePoint(2.25, 0.0), 1.0).q1, QnGePoint(1.0, 0.0, 0.0)));
}

TEST(CircleIntersect2d, TwoPointsTheLeftOneFirst) {
    const Meeting meeting = Meet(QnGePoint(0.0, 0.0, 7.0), 1.0, QnGePoint(1.0, 0.0, 9.0), 1.0);
    EXPECT_EQ(meeting.code, 2);
    EXPECT_TRUE(IsNear(meeting.q1, QnGePoint(0.5, std::sqrt(0.75), 7.0)));
    EXPECT_TRUE(IsNear(meeting.q2, QnGePoint(0.5, -std::sqrt(0.75), 7.0)));
}

TEST(CircleIntersect2d, KeptOddALargerSecondCirclePutsTheRightPointFirst) {
    const Meeting meeting = Meet(QnGePoint(0.0, 0.0, 7.0), 3.0, QnGePoint(5.0, 0.0), 4.0);
    EXPECT_EQ(meeting.code, 2);
    EXPECT_TRUE(IsNear(meeting.q1, QnGePoint(1.8, -2.4, 7.0)));
    EXPECT_TRUE(IsNear(meeting.q2, QnGePoint(1.8, 2.4, 7.0)));
    const Meeting swapped = Meet(QnGePoint(5.0, 0.0), 4.0, ORIGIN, 3.0);
    EXPECT_TRUE(IsNear(swapped.q1, QnGePoint(1.8, -2.4, 0.0)));  // left of the way back
}

TEST(CircleIntersect2d, HugeRadiiGiveNumbers) {
    const Meeting meeting = Meet(ORIGIN, 1e9, QnGePoint(2e9 - 1e-5, 0.0), 1e9);
    EXPECT_EQ(meeting.code, 2);
    EXPECT_TRUE(std::isfinite(meeting.q1.y));
    EXPECT_TRUE(std::isfinite(meeting.q2.y));
    // here rounding puts the cosine above 1
    const Meeting rounded = Meet(ORIGIN, 16216318173.0, QnGePoint(16422943149.999996, 0.0), 206624977.0);
    EXPECT_EQ(rounded.code, 2);
    EXPECT_NEAR(rounded.q1.x, 16216318173.0, 1e-4);
    EXPECT_NEAR(rounded.q1.y, 0.0, 1e-4);
    EXPECT_NEAR(rounded.q2.y, 0.0, 1e-4);
}

TEST(CircleIntersect2d, CodesFollowTheDistanceAndPointsLieOnBoth) {
    Random random(2508);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint c1 = random.PlanPoint(5.0);
        const QnGePoint c2 = random.PlanPoint(5.0);
        const double r1 = random.Real(0.1, 6.0);
        const double r2 = random.Real(0.1, 6.0);
        const double distance = PlanDistance(c1, c2);
        if (std::fabs(distance - r1 - r2) < 1e-4 || std::fabs(distance - std::fabs(r1 - r2)) < 1e-4) {
            continue;
        }
        const Meeting meeting = Meet(c1, r1, c2, r2);
        const bool meets = distance < r1 + r2 && distance > std::fabs(r1 - r2);
        ASSERT_EQ(meeting.code, meets ? 2 : 0);
        if (!meets) {
            continue;
        }
        for (const QnGePoint& q : {meeting.q1, meeting.q2}) {
            ASSERT_NEAR(PlanDistance(q, c1), r1, 1e-8);
            ASSERT_NEAR(PlanDistance(q, c2), r2, 1e-8);
        }
        const double side = (c2.x - c1.x) * (meeting.q1.y - c1.y) - (c2.y - c1.y) * (meeting.q1.x - c1.x);
        ASSERT_EQ(side > 0.0, r1 >= r2);
    }
}

TEST(CreateCircle2d, AQuarterTurnOverAChord) {
    const Circle left = FromAngle(ORIGIN, QnGePoint(2.0, 0.0), EXACT_PI / 2.0);
    EXPECT_NEAR(left.radius, std::sqrt(2.0), 1e-15);
    EXPECT_TRUE(IsNear(left.center, QnGePoint(1.0, 1.0, 0.0)));
    const Circle right = FromAngle(ORIGIN, QnGePoint(2.0, 0.0), -EXACT_PI / 2.0);
    EXPECT_NEAR(right.radius, std::sqrt(2.0), 1e-15);
    EXPECT_TRUE(IsNear(right.center, QnGePoint(1.0, -1.0, 0.0)));
}

TEST(CreateCircle2d, EveryRangeOfAnglesHasItsSide) {
    struct Row {
        double angle;
        double height;  // of the centre over a chord of 2: the cotangent of half the angle
    };
    const Row rows[] = {{0.5 * EXACT_PI, 1.0},   {1.5 * EXACT_PI, -1.0}, {EXACT_PI, 0.0},
                        {-0.5 * EXACT_PI, -1.0}, {-1.5 * EXACT_PI, 1.0}, {-EXACT_PI, 0.0}};
    for (const Row& row : rows) {
        const Circle circle = FromAngle(QnGePoint(0.0, 0.0, 4.0), QnGePoint(2.0, 0.0, 9.0), row.angle);
        EXPECT_TRUE(IsNear(circle.center, QnGePoint(1.0, row.height, 4.0))) << row.angle;
        EXPECT_NEAR(circle.radius, std::hypot(1.0, row.height), 1e-12) << row.angle;
    }
}

TEST(CreateCircle2d, AboutAHalfTurnTheCenterIsTheMidpoint) {
    for (const double angle : {QN_PI, QN_PI - 5e-6, QN_PI + 5e-6, -QN_PI, -QN_PI - 5e-6, -QN_PI + 5e-6}) {
        const Circle circle = FromAngle(ORIGIN, QnGePoint(2.0, 0.0), angle);
        EXPECT_TRUE(IsExactly(circle.center, 1.0, 0.0, 0.0)) << angle;
    }
    EXPECT_GT(FromAngle(ORIGIN, QnGePoint(2.0, 0.0), QN_PI - 2e-5).center.y, 5e-6);
    EXPECT_LT(FromAngle(ORIGIN, QnGePoint(2.0, 0.0), QN_PI + 2e-5).center.y, -5e-6);
    EXPECT_LT(FromAngle(ORIGIN, QnGePoint(2.0, 0.0), -QN_PI + 2e-5).center.y, -5e-6);
    EXPECT_GT(FromAngle(ORIGIN, QnGePoint(2.0, 0.0), -QN_PI - 2e-5).center.y, 5e-6);
}

TEST(CreateCircle2d, KeptOddSmallAnglesHaveTheMidpointAndAHugeRadius) {
    for (const double angle : {1e-5, -1e-5, 1e-6}) {
        const Circle circle = FromAngle(ORIGIN, QnGePoint(2.0, 0.0), angle);
        EXPECT_TRUE(IsExactly(circle.center, 1.0, 0.0, 0.0)) << angle;
        EXPECT_NEAR(circle.radius, 2.0 / std::fabs(angle), 1e-3 / std::fabs(angle)) << angle;
    }
    EXPECT_NEAR(FromAngle(ORIGIN, QnGePoint(2.0, 0.0), 1.1e-5).center.y, 2.0 / 1.1e-5, 1.0);
}

TEST(CreateCircle2d, KeptOddAngleZeroHasAnInfiniteRadius) {
    const Circle circle = FromAngle(ORIGIN, QnGePoint(2.0, 0.0), 0.0);
    EXPECT_TRUE(std::isinf(circle.radius));
    EXPECT_GT(circle.radius, 0.0);
    EXPECT_TRUE(IsExactly(circle.center, 1.0, 0.0, 0.0));
}

TEST(CreateCircle2d, TurningByTheAngleLeadsFromTheFirstPointToTheSecond) {
    Random random(2509);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint p1 = random.Point(9.0);
        const QnGePoint p2 = random.Point(9.0);
        const double angle = (random.Coin() ? 1.0 : -1.0) * random.Real(0.01, 6.27);
        if (std::fabs(std::fabs(angle) - EXACT_PI) < 1e-4) {
            continue;
        }
        const Circle circle = FromAngle(p1, p2, angle);
        const double dx = p1.x - circle.center.x;
        const double dy = p1.y - circle.center.y;
        ASSERT_NEAR(circle.center.x + dx * std::cos(angle) - dy * std::sin(angle), p2.x, 1e-8);
        ASSERT_NEAR(circle.center.y + dx * std::sin(angle) + dy * std::cos(angle), p2.y, 1e-8);
        ASSERT_NEAR(circle.radius, std::hypot(dx, dy), 1e-8);
        ASSERT_EQ(circle.center.z, p1.z);
    }
}

TEST(CreateCircle2d, ThroughThreePoints) {
    const Circle circle = FromPoints(QnGePoint(3.0, 0.0, 9.0), QnGePoint(1.0, 2.0), QnGePoint(-1.0, 0.0));
    EXPECT_TRUE(IsNear(circle.center, QnGePoint(1.0, 0.0, 9.0)));
    EXPECT_NEAR(circle.radius, 2.0, 1e-12);
    Random random(2510);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint p[3] = {random.Point(9.0), random.Point(9.0), random.Point(9.0)};
        const double cross = (p[1].x - p[0].x) * (p[2].y - p[1].y) - (p[1].y - p[0].y) * (p[2].x - p[1].x);
        if (std::fabs(cross) < 1.0 || PlanDistance(p[0], p[1]) < 0.5 || PlanDistance(p[1], p[2]) < 0.5) {
            continue;
        }
        const Circle through = FromPoints(p[0], p[1], p[2]);
        for (const QnGePoint& point : p) {
            ASSERT_NEAR(PlanDistance(point, through.center), through.radius, 1e-9 * (1.0 + through.radius));
        }
        ASSERT_EQ(through.center.z, p[0].z);
    }
}

TEST(CreateCircle2d, KeptOddCollinearPointsTakeTheFirstChordsMidpoint) {
    const Circle circle = FromPoints(QnGePoint(0.0, 0.0, 3.0), QnGePoint(2.0, 0.0), QnGePoint(9.0, 0.0));
    EXPECT_TRUE(IsNear(circle.center, QnGePoint(1.0, 0.0, 3.0)));
    EXPECT_NEAR(circle.radius, 1.0, 1e-15);
    const Circle diametral = FromPoints(ORIGIN, QnGePoint(2.0, 0.0), ORIGIN);
    EXPECT_TRUE(IsNear(diametral.center, QnGePoint(1.0, 0.0, 0.0)));
    EXPECT_NEAR(diametral.radius, 1.0, 1e-15);
}

TEST(LineIntegration2d, IsTheAreaUnderTheLine) {
    EXPECT_EQ(LineIntegration2d(QnGePoint(0.0, 1.0), QnGeVector2d(4.0, 2.0), 0.0, 1.0), 8.0);
    EXPECT_EQ(LineIntegration2d(QnGePoint(0.0, 1.0), QnGeVector2d(4.0, 2.0), 1.0, 0.0), -8.0);
    EXPECT_EQ(LineIntegration2d(QnGePoint(0.0, 1.0), QnGeVector2d(1e-9, 5.0), 0.0, 1.0), 0.0);
    EXPECT_NE(LineIntegration2d(QnGePoint(0.0, 1.0), QnGeVector2d(2e-9, 5.0), 0.0, 1.0), 0.0);
}

TEST(LineIntegration2d, AgreesWithQuadrature) {
    Random random(2511);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint p = random.Point(5.0);
        const QnGeVector2d v(random.PlanPoint(5.0));
        const double t1 = random.Real(-3.0, 3.0);
        const double t2 = random.Real(-3.0, 3.0);
        const auto integrand = [&](double t) { return (p.y + t * v.y) * v.x; };
        ASSERT_NEAR(LineIntegration2d(p, v, t1, t2), Quadrature(integrand, t1, t2, 2), 1e-10);
    }
}

TEST(CircleIntegration2d, AgreesWithQuadrature) {
    Random random(2512);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint center = random.Point(5.0);
        const double radius = random.Real(0.1, 5.0);
        const double a1 = random.Real(-6.3, 6.3);
        const double a2 = random.Real(-6.3, 6.3);
        const auto integrand = [&](double a) { return (center.y + radius * std::sin(a)) * (-radius * std::sin(a)); };
        ASSERT_NEAR(CircleIntegration2d(center, radius, a1, a2), Quadrature(integrand, a1, a2, 200), 1e-3);
    }
}

TEST(CircleIntegration2d, AroundIsMinusTheArea) {
    EXPECT_NEAR(CircleIntegration2d(QnGePoint(3.0, 4.0), 2.0, 0.0, 2.0 * EXACT_PI), -4.0 * EXACT_PI, 1e-13);
    EXPECT_NEAR(CircleIntegration2d(QnGePoint(3.0, 4.0), 2.0, EXACT_PI, 0.0), 2.0 * EXACT_PI + 16.0, 1e-13);
}
