// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "RoundTesting.h"
#include "values/QnGePoint2d.h"

using namespace round_testing;

namespace {

/// A stretch of one arc's own axis: 0 at its start, its sweep at its end.
struct Stretch {
    double from;
    double to;
};

/// How far along the travel of `arc` its circle's point at `pt` lies behind the start.
double TurnBehindStart(const QnGeArc2d& arc, const QnGePoint& pt) {
    const double angle = std::atan2(pt.y - arc.GetCenter().y, pt.x - arc.GetCenter().x);
    return PlainTurn((arc.IsClockwise() ? -angle : angle) - arc.GetStartAngle());
}

/// Whether the point lies on the arc; `clear` becomes false next to an end.
bool IsOnArc(const QnGeArc2d& arc, const QnGePoint& pt, bool& clear) {
    constexpr double CLEAR = 1e-3;
    const double turn = TurnBehindStart(arc, pt);
    const double sweep = arc.GetCentralAngle();
    if (turn < CLEAR || turn > EXACT_TURN - CLEAR || std::fabs(turn - sweep) < CLEAR) {
        clear = false;
    }
    return turn < sweep;
}

/// The crossings of two circles by the rule of cosines; none also if they nearly touch, and then `clear` is false.
std::vector<QnGePoint> PlainCrossings(const QnGeCircle2d& a, const QnGeCircle2d& b, bool& clear) {
    const double apart = PlanDistance(a.center, b.center);
    const double outer = apart - a.radius - b.radius;
    const double inner = apart - std::fabs(a.radius - b.radius);
    if (std::fabs(outer) < 1e-3 || std::fabs(inner) < 1e-3) {
        clear = false;
        return {};
    }
    if (outer > 0.0 || inner < 0.0) {
        return {};
    }
    const double half =
        std::acos((a.radius * a.radius + apart * apart - b.radius * b.radius) / (2.0 * a.radius * apart));
    const double way = std::atan2(b.center.y - a.center.y, b.center.x - a.center.x);
    return {PlainPoint(a.center, a.radius, true, way + half), PlainPoint(a.center, a.radius, true, way - half)};
}

/// What [0, sweep] shares with [from, from + length] and with its images a whole turn earlier.
std::vector<Stretch> CommonStretches(double sweep, double from, double length) {
    std::vector<Stretch> common;
    for (const double shift : {-EXACT_TURN, 0.0}) {
        const Stretch stretch = {std::max(0.0, from + shift), std::min(sweep, from + shift + length)};
        if (stretch.from < stretch.to) {
            common.push_back(stretch);
        }
    }
    return common;
}

}  // namespace

TEST(ArcIntersectProperties, CrossingsLieOnBothArcsAndNoneIsMissed) {
    RoundSource random(BaseSeed());
    int cases = 0, points = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeArc2d a = random.Arc();
        const QnGeArc2d b = random.Arc();
        bool clear = true;
        std::vector<QnGePoint> expected;
        for (const QnGePoint& pt : PlainCrossings(a.GetCircle(), b.GetCircle(), clear)) {
            const bool onA = IsOnArc(a, pt, clear);
            const bool onB = IsOnArc(b, pt, clear);
            if (onA && onB) {
                expected.push_back(pt);
            }
        }
        if (!clear) {
            continue;
        }
        ++cases;
        QnGeObjList found;
        ASSERT_EQ(a.IntersectWith(b, found), !expected.empty()) << ToText(a) << " with " << ToText(b);
        ASSERT_EQ(found.GetLength(), static_cast<long>(expected.size())) << ToText(a) << " with " << ToText(b);
        for (long i = 0; i < found.GetLength(); ++i) {
            ASSERT_EQ(found.GetPData(i)->GetCI(), &QnGePoint2d::s_classInfo);
            const QnGePoint pt = found.GetPData(i)->GetSamplePoint();
            ASSERT_TRUE(a.HitTest(pt).HasBit(HIT_ON)) << PointToText(pt) << " of " << ToText(a);
            ASSERT_TRUE(b.HitTest(pt).HasBit(HIT_ON)) << PointToText(pt) << " of " << ToText(b);
            const bool known = std::any_of(expected.begin(), expected.end(),
                                           [&pt](const QnGePoint& q) { return PlanDistance(pt, q) < 1e-6; });
            ASSERT_TRUE(known) << PointToText(pt) << " of " << ToText(a) << " with " << ToText(b);
            ++points;
        }
        if (expected.size() == 2) {
            const double gap = PlanDistance(found.GetPData(0)->GetSamplePoint(), found.GetPData(1)->GetSamplePoint());
            ASSERT_GT(gap, 1e-3) << "one point came twice: " << ToText(a) << " with " << ToText(b);
        }
    }
    EXPECT_GT(points, 1000);
}

TEST(ArcIntersectProperties, CircleCrossingsAreThoseOfTheArc) {
    RoundSource random(BaseSeed() + 1);
    int cases = 0, points = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeArc2d arc = random.Arc();
        const QnGeCircle2d circle = random.Circle();
        bool clear = true;
        long expected = 0;
        for (const QnGePoint& pt : PlainCrossings(arc.GetCircle(), circle, clear)) {
            expected += IsOnArc(arc, pt, clear) ? 1 : 0;
        }
        if (!clear) {
            continue;
        }
        ++cases;
        QnGeObjList found;
        ASSERT_EQ(arc.IntersectWith(circle, found), expected > 0) << ToText(arc) << " with " << ToText(circle);
        ASSERT_EQ(circle.IntersectWith(arc, found), expected > 0) << ToText(arc) << " with " << ToText(circle);
        ASSERT_EQ(found.GetLength(), 2 * expected) << ToText(arc) << " with " << ToText(circle);
        points += static_cast<int>(expected);
    }
    EXPECT_GT(points, 1000);
}

TEST(ArcIntersectProperties, OverlapOnOneCircleIsThatOfTheAngleRanges) {
    RoundSource random(BaseSeed());
    constexpr double CLEAR = 1e-3;
    int cases = 0, twoPieces = 0, none = 0;
    while (cases < PROPERTY_CASES) {
        const double radius = std::pow(10.0, random.Double(-2.0, 2.0));
        const QnGePoint centre = random.Point(20.0);
        const QnGeArc2d a(centre, radius, random.Double(0.0, 6.28), random.Double(0.01, 6.27), random.Coin());
        QnGeArc2d b(centre, radius, random.Double(0.0, 6.28), random.Double(0.01, 6.27), !a.IsClockwise());
        const double sweep = a.GetCentralAngle();
        const double from = PlainTurn(b.GetStartAngle() - a.GetStartAngle());
        const double to = from + b.GetCentralAngle();
        const double wrapped = PlainTurn(to);
        if (from < CLEAR || from > EXACT_TURN - CLEAR || std::fabs(from - sweep) < CLEAR || wrapped < CLEAR ||
            wrapped > EXACT_TURN - CLEAR || std::fabs(wrapped - sweep) < CLEAR) {
            continue;
        }
        ++cases;
        const std::vector<Stretch> expected = CommonStretches(sweep, from, b.GetCentralAngle());
        if (random.Coin()) {
            b.Reverse();
        }
        QnGeObjList found;
        ASSERT_EQ(a.IntersectWith(b, found), !expected.empty()) << ToText(a) << " with " << ToText(b);
        ASSERT_EQ(found.GetLength(), static_cast<long>(expected.size())) << ToText(a) << " with " << ToText(b);
        for (long i = 0; i < found.GetLength(); ++i) {
            ASSERT_EQ(found.GetPData(i)->GetCI(), &QnGeArc2d::s_classInfo);
            const auto& piece = static_cast<const QnGeArc2d&>(*found.GetPData(i));
            const Stretch& stretch = expected[static_cast<std::size_t>(i)];
            ASSERT_EQ(piece.IsClockwise(), a.IsClockwise()) << ToText(a) << " with " << ToText(b);
            ASSERT_NEAR(piece.GetCentralAngle(), stretch.to - stretch.from, 3e-5) << ToText(a) << " with " << ToText(b);
            ASSERT_LT(AngleGap(piece.GetStartAngle(), a.GetStartAngle() + stretch.from), 3e-5)
                << ToText(a) << " with " << ToText(b);
        }
        twoPieces += expected.size() == 2 ? 1 : 0;
        none += expected.empty() ? 1 : 0;
    }
    EXPECT_GT(twoPieces, 1000);
    EXPECT_GT(none, 100);
}

TEST(ArcIntersectProperties, LatticeArcsTouchOrOverlapAsTheirRanges) {
    // Starts and ends on twelfths of the turn: touches and equal ends are the rule, not the exception.
    constexpr int PARTS = 12;
    const double part = QN_TWO_PI / PARTS;
    for (const bool clockwise : {false, true}) {
        for (int sweepA = 1; sweepA < PARTS; ++sweepA) {
            for (int startB = 0; startB < PARTS; ++startB) {
                for (int sweepB = 1; sweepB < PARTS; ++sweepB) {
                    const QnGeArc2d a(QnGePoint(3, 4), 5.0, part, sweepA * part, true);
                    QnGeArc2d b(QnGePoint(3, 4), 5.0, startB * part, sweepB * part, true);
                    if (clockwise) {
                        b.Reverse();
                    }
                    // Unit parts that both cover, and lattice points that both have without such a part beside them.
                    const auto inA = [sweepA](int unit) { return (unit + PARTS - 1) % PARTS < sweepA; };
                    const auto inB = [=](int unit) { return (unit + PARTS - startB) % PARTS < sweepB; };
                    const auto endA = [sweepA](int node) { return (node + PARTS - 1) % PARTS <= sweepA; };
                    const auto endB = [=](int node) { return (node + PARTS - startB) % PARTS <= sweepB; };
                    int units = 0, touches = 0;
                    for (int k = 0; k < PARTS; ++k) {
                        const int before = (k + PARTS - 1) % PARTS;
                        units += inA(k) && inB(k) ? 1 : 0;
                        const bool covered = (inA(k) && inB(k)) || (inA(before) && inB(before));
                        touches += !covered && endA(k) && endB(k) ? 1 : 0;
                    }
                    QnGeObjList found;
                    a.IntersectWith(b, found);
                    double length = 0.0;
                    int points = 0;
                    for (long i = 0; i < found.GetLength(); ++i) {
                        const bool isPoint = found.GetPData(i)->GetCI() == &QnGePoint2d::s_classInfo;
                        points += isPoint ? 1 : 0;
                        length += isPoint ? 0.0 : static_cast<const QnGeCurve2d&>(*found.GetPData(i)).Length();
                    }
                    ASSERT_EQ(points, touches) << ToText(a) << " with " << ToText(b);
                    ASSERT_NEAR(length, units * part * 5.0, 1e-6) << ToText(a) << " with " << ToText(b);
                }
            }
        }
    }
}
