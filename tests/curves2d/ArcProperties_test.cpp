// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "RoundTesting.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePointList.h"

using namespace round_testing;

namespace {

/// The integral of y dx along an angle range, as the sum of Gauss-Legendre rules of three points on short steps.
double QuadratureOfYDx(const QnGePoint& centre, double radius, double from, double to) {
    constexpr int STEPS = 24;
    const double node = std::sqrt(0.6);
    const double offsets[] = {-node, 0.0, node};
    const double weights[] = {5.0 / 9.0, 8.0 / 9.0, 5.0 / 9.0};
    const double half = (to - from) / STEPS / 2.0;
    double sum = 0.0;
    for (int step = 0; step < STEPS; ++step) {
        const double middle = from + (2.0 * step + 1.0) * half;
        for (int i = 0; i < 3; ++i) {
            const double angle = middle + offsets[i] * half;
            sum += weights[i] * half * (centre.y + radius * std::sin(angle)) * (-radius * std::sin(angle));
        }
    }
    return sum;
}

/// The point of an arc by the plain definition.
QnGePoint PlainArcPoint(const QnGeArc2d& arc, double pa) {
    return PlainPoint(arc.GetCenter(), arc.GetRadius(), !arc.IsClockwise(),
                      arc.GetStartAngle() + pa * arc.GetCentralAngle());
}

/// A turn, a move and an even scale, on demand with a mirror.
QnGeMatrix RandomSimilarity(RoundSource& random, bool mirrored) {
    QnGeMatrix matrix;
    QnGeMatrix step;
    step.CreateZRotateMatrix(random.Double(-7.0, 7.0));
    matrix.PreMultiBy(step);
    const double factor = random.Double(0.2, 3.0);
    step.InitIdentity();
    step.CreateScaleMatrix(mirrored ? -factor : factor, factor);
    matrix.PreMultiBy(step);
    step.InitIdentity();
    step.CreateMoveMatrix(random.Double(-50.0, 50.0), random.Double(-50.0, 50.0));
    matrix.PreMultiBy(step);
    return matrix;
}

}  // namespace

// ---- parameters and distances ------------------------------------------------------------------------

TEST(CircleProperties, PointsAreThePlainOnesAndParametersComeBack) {
    RoundSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeCircle2d circle = random.Circle();
        const double pa = random.Double(1e-4, 6.283);
        QnGePoint pt;
        ASSERT_TRUE(circle.GetPtFromPa(pa, pt));
        ASSERT_LT(PlanDistance(pt, PlainPoint(circle.center, circle.radius, !circle.IsClockwise(), pa)), 1e-9);
        double back = UNTOUCHED;
        ASSERT_TRUE(circle.GetPaFromPt(pt, back));
        // The arc cosine behind the angle is soft next to the x axis.
        ASSERT_LT(AngleGap(back, pa), 1e-7) << ToText(circle) << " at " << pa;
        double distance = UNTOUCHED;
        ASSERT_TRUE(circle.GetDistFromPa(pa, distance));
        ASSERT_NEAR(distance, pa * circle.radius, 1e-9);
        ASSERT_TRUE(circle.GetPaFromDist(distance, back));
        ASSERT_NEAR(back, pa, 1e-12);
    }
}

TEST(ArcProperties, PointsAreThePlainOnesAndParametersComeBack) {
    RoundSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeArc2d arc = random.Arc();
        const double pa = random.Double(0.01, 1.0);
        QnGePoint pt;
        ASSERT_TRUE(arc.GetPtFromPa(pa, pt));
        ASSERT_LT(PlanDistance(pt, PlainArcPoint(arc, pa)), 1e-9) << ToText(arc) << " at " << pa;
        double back = UNTOUCHED;
        ASSERT_TRUE(arc.GetPaFromPt(pt, back));
        ASSERT_NEAR(back * arc.GetCentralAngle(), pa * arc.GetCentralAngle(), 1e-5) << ToText(arc) << " at " << pa;
        QnGePoint again;
        ASSERT_TRUE(arc.GetPtFromPa(back, again));
        ASSERT_LT(PlanDistance(pt, again), 1e-5 * arc.GetRadius()) << ToText(arc) << " at " << pa;
        ASSERT_EQ(arc.HitTest(pt).GetBits(), HIT_ON) << ToText(arc) << " at " << pa;
    }
}

TEST(ArcProperties, DistanceAndParameterAreInverse) {
    RoundSource random(BaseSeed());
    int cases = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeArc2d arc = random.Arc();
        const double pa = random.Double(0.01, 1.0);
        double distance = UNTOUCHED, back = UNTOUCHED;
        ASSERT_TRUE(arc.GetDistFromPa(pa, distance));
        ASSERT_TRUE(arc.GetPaFromDist(distance, back));
        const double turn = pa * arc.GetCentralAngle();
        if (turn < 1e-4) {
            continue;
        }
        ++cases;
        ASSERT_NEAR(distance, turn * arc.GetRadius(), 1e-9) << ToText(arc) << " at " << pa;
        ASSERT_NEAR(back, pa, 1e-9) << ToText(arc) << " at " << pa;
    }
}

// ---- integrals, tangents -----------------------------------------------------------------------------

TEST(ArcProperties, IntegrationAgreesWithQuadrature) {
    RoundSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeArc2d arc = random.Arc();
        const double first = random.Double(0.0, 1.0), second = random.Double(0.0, 1.0);
        const double sign = arc.IsClockwise() ? -1.0 : 1.0;
        const double from = sign * (arc.GetStartAngle() + first * arc.GetCentralAngle());
        const double to = sign * (arc.GetStartAngle() + second * arc.GetCentralAngle());
        const double expected = QuadratureOfYDx(arc.GetCenter(), arc.GetRadius(), from, to);
        ASSERT_NEAR(arc.Integration(first, second), expected, 1e-4) << ToText(arc) << ' ' << first << ' ' << second;
        const double onCircle = arc.GetCircle().Integration(arc.GetStartAngle(), arc.GetStartAngle() + 1.0);
        const double quadrature = QuadratureOfYDx(arc.GetCenter(), arc.GetRadius(), sign * arc.GetStartAngle(),
                                                  sign * (arc.GetStartAngle() + 1));
        ASSERT_NEAR(onCircle, quadrature, 1e-4) << ToText(arc);
    }
}

TEST(ArcProperties, TangentIsTheDirectionOfTheNextStep) {
    RoundSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeArc2d arc = random.Arc();
        const double pa = random.Double(0.0, 1.0);
        constexpr double STEP = 1e-4;
        const double turn = STEP / arc.GetCentralAngle();
        const QnGePoint before = PlainArcPoint(arc, pa - turn), after = PlainArcPoint(arc, pa + turn);
        const double chord = PlanDistance(before, after);
        QnGeBaseLine2d tangent;
        arc.GetTangent(pa, tangent);
        ASSERT_LT(PlanDistance(tangent.basePoint, PlainArcPoint(arc, pa)), 1e-9);
        ASSERT_NEAR(tangent.dx, (after.x - before.x) / chord, 1e-6) << ToText(arc) << " at " << pa;
        ASSERT_NEAR(tangent.dy, (after.y - before.y) / chord, 1e-6) << ToText(arc) << " at " << pa;
    }
}

// ---- reversing and transforming ----------------------------------------------------------------------

TEST(ArcProperties, ReverseExchangesTheEndsAndTwiceIsNothing) {
    RoundSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeArc2d arc = random.Arc();
        QnGeArc2d turned = arc;
        turned.Reverse();
        ASSERT_NE(turned.IsClockwise(), arc.IsClockwise());
        ASSERT_EQ(turned.GetCentralAngle(), arc.GetCentralAngle());
        // A start within the angle tolerance of +x snaps to it.
        const double near = 1.1e-5 * arc.GetRadius() + 1e-9;
        const double pa = random.Double(0.0, 1.0);
        ASSERT_LT(PlanDistance(PlainArcPoint(turned, pa), PlainArcPoint(arc, 1.0 - pa)), near) << ToText(arc);
        turned.Reverse();
        ASSERT_LT(AngleGap(turned.GetStartAngle(), arc.GetStartAngle()), 2.1e-5) << ToText(arc);
        ASSERT_EQ(turned.IsClockwise(), arc.IsClockwise());
    }
}

TEST(ArcProperties, TransformMovesEveryPointOfTheArc) {
    RoundSource random(BaseSeed());
    int cases = 0;
    while (cases < PROPERTY_CASES) {
        QnGeArc2d arc = random.Arc();
        if (random.OneIn(5)) {
            arc.SetCentralAngle(QN_TWO_PI);
        } else if (arc.GetCentralAngle() < 0.1) {
            continue;
        }
        ++cases;
        const bool mirrored = random.Coin();
        const QnGeMatrix matrix = RandomSimilarity(random, mirrored);
        QnGeArc2d moved = arc;
        moved.TransformBy(matrix);
        ASSERT_EQ(moved.IsClockwise(), arc.IsClockwise() != mirrored) << ToText(arc);
        ASSERT_NEAR(moved.GetCentralAngle(), arc.GetCentralAngle(), 1e-5) << ToText(arc);
        for (const double pa : {0.0, 0.2, 0.5, 0.7, 1.0}) {
            QnGePoint expected = PlainArcPoint(arc, pa);
            matrix.Transform(expected);
            ASSERT_LT(PlanDistance(PlainArcPoint(moved, pa), expected), 2e-5 * moved.GetRadius() + 1e-6)
                << ToText(arc) << " at " << pa << " becomes " << ToText(moved);
        }
    }
}

TEST(CircleProperties, TransformMovesEveryPointOfTheCircle) {
    RoundSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeCircle2d circle = random.Circle();
        const bool mirrored = random.Coin();
        const QnGeMatrix matrix = RandomSimilarity(random, mirrored);
        QnGeCircle2d moved = circle;
        moved.TransformBy(matrix);
        ASSERT_EQ(moved.IsClockwise(), circle.IsClockwise() != mirrored);
        QnGePoint pt = PlainPoint(circle.center, circle.radius, true, random.Double(0.0, 6.28));
        matrix.Transform(pt);
        ASSERT_NEAR(PlanDistance(pt, moved.center), moved.radius, 1e-9) << ToText(circle);
        ASSERT_EQ(moved.HitTest(pt).GetBits(), HIT_ON);
    }
}

// ---- extents and closest points ----------------------------------------------------------------------

TEST(ArcProperties, ExtentIsThatOfTheEndsAndTheExtremesOnTheArc) {
    RoundSource random(BaseSeed());
    int cases = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeArc2d arc = random.Arc();
        const double sign = arc.IsClockwise() ? -1.0 : 1.0;
        std::vector<QnGePoint> corners = {PlainArcPoint(arc, 0.0), PlainArcPoint(arc, 1.0)};
        bool clear = true;
        for (int quarter = 0; quarter < 4; ++quarter) {
            const double angle = quarter * EXACT_PI / 2.0;
            const double ahead = PlainTurn(sign * angle - arc.GetStartAngle());
            clear = clear && std::fabs(ahead - arc.GetCentralAngle()) > 1e-4 && ahead < EXACT_TURN - 1e-4;
            if (ahead < arc.GetCentralAngle()) {
                corners.push_back(PlainPoint(arc.GetCenter(), arc.GetRadius(), true, angle));
            }
        }
        if (!clear) {
            continue;
        }
        ++cases;
        QnGeExtent2d box;
        ASSERT_TRUE(arc.GetExtent2d(box));
        const auto byX = [](const QnGePoint& p, const QnGePoint& q) { return p.x < q.x; };
        const auto byY = [](const QnGePoint& p, const QnGePoint& q) { return p.y < q.y; };
        const auto [left, right] = std::minmax_element(corners.begin(), corners.end(), byX);
        const auto [bottom, top] = std::minmax_element(corners.begin(), corners.end(), byY);
        ASSERT_NEAR(box.x.min, left->x, 1e-9) << ToText(arc);
        ASSERT_NEAR(box.x.max, right->x, 1e-9) << ToText(arc);
        ASSERT_NEAR(box.y.min, bottom->y, 1e-9) << ToText(arc);
        ASSERT_NEAR(box.y.max, top->y, 1e-9) << ToText(arc);
        for (int i = 0; i <= 8; ++i) {
            const QnGePoint pt = PlainArcPoint(arc, i / 8.0);
            ASSERT_TRUE(box.IsInclude(pt.x, pt.y)) << ToText(arc) << " holds " << PointToText(pt);
        }
    }
}

TEST(ArcProperties, ClosestPointIsAsNearAsAnySample) {
    RoundSource random(BaseSeed());
    int cases = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeArc2d arc = random.Arc();
        const QnGePoint pt = random.Point(60.0);
        if (PlanDistance(pt, arc.GetCenter()) < 1e-2) {
            continue;
        }
        ++cases;
        QnGePointList points;
        ASSERT_TRUE(arc.GetClosestPoint2d(pt, points));
        ASSERT_EQ(points.GetLength(), 1);
        const QnGePoint closest = points.GetAt(0);
        ASSERT_EQ(arc.HitTest(closest).GetBits(), HIT_ON) << ToText(arc) << " from " << PointToText(pt);
        const double nearest = PlanDistance(pt, closest);
        for (int sample = 0; sample <= 32; ++sample) {
            ASSERT_LE(nearest, PlanDistance(pt, PlainArcPoint(arc, sample / 32.0)) + 1e-6)
                << ToText(arc) << " from " << PointToText(pt);
        }
    }
}

TEST(ArcProperties, HitTestTellsTheAnglesOfTheArc) {
    RoundSource random(BaseSeed());
    int on = 0;
    int cases = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeArc2d arc = random.Arc();
        const double turn = random.Double(1e-3, 6.28);
        if (std::fabs(turn - arc.GetCentralAngle()) < 1e-3) {
            continue;
        }
        ++cases;
        const QnGePoint pt =
            PlainPoint(arc.GetCenter(), arc.GetRadius(), !arc.IsClockwise(), arc.GetStartAngle() + turn);
        const bool expected = turn < arc.GetCentralAngle();
        on += expected ? 1 : 0;
        ASSERT_EQ(arc.HitTest(pt).GetBits(), expected ? static_cast<std::uint32_t>(HIT_ON) : 0U) << ToText(arc);
    }
    EXPECT_GT(on, 1000);
}

// ---- pieces ------------------------------------------------------------------------------------------

TEST(ArcProperties, PiecesOfASplitAddUp) {
    RoundSource random(BaseSeed());
    int cases = 0;
    while (cases < PROPERTY_CASES) {
        QnGeArc2d arc = random.Arc();
        const bool closed = random.OneIn(3);
        if (closed) {
            arc.SetCentralAngle(QN_TWO_PI);
        }
        double cuts[] = {random.Double(0.01, 0.99), random.Double(0.01, 0.99), random.Double(0.01, 0.99)};
        std::sort(cuts, cuts + 3);
        const double least = 1e-3 / arc.GetCentralAngle();
        if (cuts[1] - cuts[0] < least || cuts[2] - cuts[1] < least || cuts[0] < least || cuts[2] > 1.0 - least) {
            continue;
        }
        ++cases;
        QnGeObjList pieces;
        SplitAt(arc, {cuts[0], cuts[1], cuts[2]}, pieces);
        ASSERT_EQ(pieces.GetLength(), closed ? 3 : 4) << ToText(arc);
        double length = 0.0, integral = 0.0;
        QnGePoint end;
        for (long k = 0; k < pieces.GetLength(); ++k) {
            const auto& piece = static_cast<const QnGeArc2d&>(*pieces.GetPData(k));
            length += piece.Length();
            integral += piece.TotalIntegration();
            ASSERT_TRUE(k == 0 || PlanDistance(end, piece.GetStartPoint()) < 1e-3) << ToText(arc);
            end = piece.GetEndPoint();
        }
        // A piece that starts at +x within the angle tolerance snaps to it.
        const double near = 2e-5 * arc.GetRadius() * (2.0 + std::fabs(arc.GetCenter().y) + arc.GetRadius());
        ASSERT_NEAR(length, arc.Length(), 1e-8) << ToText(arc);
        ASSERT_NEAR(integral, arc.TotalIntegration(), near) << ToText(arc);
    }
}
