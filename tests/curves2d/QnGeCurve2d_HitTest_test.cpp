// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

#include "CurveTesting.h"
#include "support/ExpectGeo.h"
#include "support/RandomSource.h"

using namespace curve_testing;

namespace {

QnGePoint P(double x, double y) {
    return QnGePoint(x, y);
}

/// The same answer for the curve and for the curve reversed.
void ExpectHit(PathCurve curve, const QnGePoint& pt, std::uint32_t bits) {
    EXPECT_EQ(Bits(curve.HitTest(pt)), bits) << PointToText(pt);
    curve.Reverse();
    EXPECT_EQ(Bits(curve.HitTest(pt)), bits) << PointToText(pt) << " reversed";
}

/// Without stretches of its own.
class UncutCurve : public PathCurve {
public:
    using PathCurve::PathCurve;
    QnGeCurve2d* GetSubCurve(double, double) const override { return nullptr; }
};

/// Answers every hit test with fixed bits and extends to a given curve.
class SidedCurve : public BareCurve {
public:
    std::uint32_t own = 0;
    const char* extension = "";
    QnBitData HitTest(const QnGePoint&) const override { return QnBitData(own); }
    QnGeCurve2d* GetExtendCurve() const override {
        return *extension == '\0' ? nullptr : ParseGeoAs<QnGeCurve2d>(extension).release();
    }
};

std::uint32_t SideBits(const char* curve, const QnGePoint& pt) {
    return Bits(ParseGeoAs<QnGeCurve2d>(curve)->HitTestSide(pt));
}

}  // namespace

TEST(QnGeCurve2d_HitTest, Square) {
    ExpectHit(SquarePath(), P(2.0, 2.0), HIT_IN);
    ExpectHit(SquarePath(), P(0.1, 3.9), HIT_IN);
    ExpectHit(SquarePath(), P(-1.0, 2.0), HIT_OUT);
    ExpectHit(SquarePath(), P(9.0, 2.0), HIT_OUT);
    ExpectHit(SquarePath(), P(2.0, 0.0), HIT_ON);
    ExpectHit(SquarePath(), P(4.0, 3.0), HIT_ON);
    ExpectHit(SquarePath(), P(0.0, 0.0), HIT_ON);
    ExpectHit(SquarePath(), P(4.0, 4.0), HIT_ON);
}

TEST(QnGeCurve2d_HitTest, BelowAndAboveOnTheSameVertical) {
    ExpectHit(SquarePath(), P(2.0, -1.0), HIT_OUT);
    ExpectHit(SquarePath(), P(2.0, 5.0), HIT_OUT);
    ExpectHit(SquarePath(), P(0.0, -1.0), HIT_OUT);
    ExpectHit(SquarePath(), P(0.0, 5.0), HIT_OUT);
}

TEST(QnGeCurve2d_HitTest, OnIsWithinTheDistanceTolerance) {
    ExpectHit(SquarePath(), P(2.0, 0.9e-6), HIT_ON);
    ExpectHit(SquarePath(), P(2.0, 1.1e-6), HIT_IN);
    ExpectHit(SquarePath(), P(2.0, -1.1e-6), HIT_OUT);
}

TEST(QnGeCurve2d_HitTest, VerticalEdgesAndCornersOnTheTestLine) {
    const PathCurve angle({P(0, 0), P(4, 0), P(4, 2), P(2, 2), P(2, 4), P(0, 4), P(0, 0)});
    ExpectHit(angle, P(2.0, 1.0), HIT_IN);
    ExpectHit(angle, P(2.0, 3.0), HIT_ON);
    ExpectHit(angle, P(2.0, 5.0), HIT_OUT);
    ExpectHit(angle, P(2.0, -1.0), HIT_OUT);
    ExpectHit(angle, P(3.0, 3.0), HIT_OUT);
    ExpectHit(angle, P(1.0, 3.0), HIT_IN);
}

TEST(QnGeCurve2d_HitTest, TouchingCornersDoNotCount) {
    // A tooth hangs down to (2,2); below it and beside it is inside.
    const PathCurve tooth({P(0, 0), P(4, 0), P(4, 4), P(3, 4), P(2, 2), P(1, 4), P(0, 4), P(0, 0)});
    ExpectHit(tooth, P(2.0, 1.0), HIT_IN);
    ExpectHit(tooth, P(2.0, 3.0), HIT_OUT);
    ExpectHit(tooth, P(2.0, 2.0), HIT_ON);
    ExpectHit(tooth, P(0.5, 3.0), HIT_IN);
    // A spike hangs down to (2,-1) between two bays.
    const PathCurve spike({P(0, 0), P(1, 1), P(2, -1), P(3, 1), P(4, 0), P(4, 4), P(0, 4), P(0, 0)});
    ExpectHit(spike, P(2.0, 0.0), HIT_IN);
    ExpectHit(spike, P(1.0, 2.0), HIT_IN);
    ExpectHit(spike, P(1.0, 0.5), HIT_OUT);
}

TEST(QnGeCurve2d_HitTest, OpenCurveAnswersOnOrNothing) {
    const PathCurve open({P(0, 0), P(4, 0), P(4, 4)});
    ExpectHit(open, P(2.0, 0.0), HIT_ON);
    ExpectHit(open, P(4.0, 4.0), HIT_ON);
    ExpectHit(open, P(3.0, 1.0), 0);
    ExpectHit(open, P(-1.0, 0.0), 0);
}

TEST(QnGeCurve2d_HitTest, WithoutPiecesEverythingIsOutside) {
    EXPECT_EQ(Bits(QnGeCurve2d().HitTest(P(0.0, 0.0))), HIT_OUT);
    BareCurve open;
    EXPECT_EQ(Bits(open.HitTest(P(0.0, 0.0))), 0U);
}

TEST(QnGeCurve2d_HitTest, WithoutStretchesTheInsideIsNotFound) {
    const UncutCurve square(SquarePath().Points());
    EXPECT_EQ(Bits(square.HitTest(P(2.0, 2.0))), HIT_OUT);
    EXPECT_EQ(Bits(square.HitTest(P(2.0, 0.0))), HIT_ON);
}

TEST(QnGeCurve2d_HitTestSide, ClosedCurveHasItsInsideAtTheLeftOrRight) {
    PathCurve square = SquarePath();
    EXPECT_EQ(Bits(square.HitTestSide(P(2.0, 2.0))), HIT_IN);
    EXPECT_EQ(Bits(square.HitTestSide(P(5.0, 2.0))), HIT_OUT);
    square.Reverse();
    EXPECT_EQ(Bits(square.HitTestSide(P(2.0, 2.0))), HIT_OUT);
    EXPECT_EQ(Bits(square.HitTestSide(P(5.0, 2.0))), HIT_IN);
    EXPECT_EQ(Bits(square.HitTestSide(P(4.0, 2.0))), HIT_ON);
    EXPECT_EQ(SideBits("circle 0,0 r2", P(0.0, 0.0)), HIT_IN);
    EXPECT_EQ(SideBits("circle 0,0 r2 cw", P(0.0, 0.0)), HIT_OUT);
    EXPECT_EQ(SideBits("circle 0,0 r2 cw", P(3.0, 0.0)), HIT_IN);
    EXPECT_EQ(SideBits("circle 0,0 r2 cw", P(2.0, 0.0)), HIT_ON);
    EXPECT_EQ(SideBits("mline 0,0 0,4 4,4 4,0 close", P(2.0, 2.0)), HIT_OUT);
}

TEST(QnGeCurve2d_HitTestSide, SegmentTakesItsSideFromItsLine) {
    EXPECT_EQ(SideBits("seg 0,0 1,0", P(5.0, 1.0)), HIT_IN);
    EXPECT_EQ(SideBits("seg 0,0 1,0", P(5.0, -1.0)), HIT_OUT);
    EXPECT_EQ(SideBits("seg 0,0 1,0", P(5.0, 0.0)), 0U) << "on the extension there is no side";
    EXPECT_EQ(SideBits("seg 0,0 1,0", P(0.5, 0.0)), HIT_ON);
}

TEST(QnGeCurve2d_HitTestSide, ArcTakesItsSideFromItsCircle) {
    EXPECT_EQ(SideBits("arc 0,0 r2 from 0 sweep 1", P(0.0, 0.0)), HIT_IN);
    EXPECT_EQ(SideBits("arc 0,0 r2 from 0 sweep 1", P(3.0, 0.0)), HIT_OUT);
    EXPECT_EQ(SideBits("arc 0,0 r2 from 0 sweep 1 cw", P(0.0, 0.0)), HIT_OUT);
    EXPECT_EQ(SideBits("arc 0,0 r2 from 0 sweep 1 cw", P(3.0, 0.0)), HIT_IN);
    EXPECT_EQ(SideBits("arc 0,0 r2 from 0 sweep 1", P(2.0, 0.0)), HIT_ON);
    EXPECT_EQ(SideBits("arc 0,0 r2 from 0 sweep 1", P(-2.0, 0.0)), 0U);
}

TEST(QnGeCurve2d_HitTestSide, LinesAndRaysAnswerThemselves) {
    EXPECT_EQ(SideBits("line 0,0 1,0", P(5.0, 1.0)), HIT_IN);
    EXPECT_EQ(SideBits("line 0,0 1,0", P(5.0, -1.0)), HIT_OUT);
    EXPECT_EQ(SideBits("ray 0,0 1,0", P(-5.0, 1.0)), HIT_IN);
    EXPECT_EQ(SideBits("ray reversed 0,0 1,0", P(-5.0, 1.0)), HIT_OUT);
    EXPECT_EQ(SideBits("ray 0,0 1,0", P(-5.0, 0.0)), 0U);
}

TEST(QnGeCurve2d_HitTestSide, OpenChainHasNoSide) {
    const PathCurve open({P(0, 0), P(4, 0), P(4, 4)});
    EXPECT_EQ(Bits(open.HitTestSide(P(3.0, 1.0))), 0U);
    EXPECT_EQ(Bits(open.HitTestSide(P(4.0, 1.0))), HIT_ON);
}

TEST(QnGeCurve2d_HitTestSide, TheExtensionSetsOneSideAndClearsTheOther) {
    SidedCurve curve;
    for (const std::uint32_t own :
         {0U, std::uint32_t{HIT_IN}, std::uint32_t{HIT_OUT}, std::uint32_t{HIT_ON}, std::uint32_t{HIT_ON | HIT_OUT}}) {
        const std::uint32_t on = own & HIT_ON;
        curve.own = own;
        curve.extension = "line 0,0 1,0";
        EXPECT_EQ(Bits(curve.HitTestSide(P(0.0, 1.0))), on | HIT_IN);
        EXPECT_EQ(Bits(curve.HitTestSide(P(0.0, -1.0))), on | HIT_OUT);
        EXPECT_EQ(Bits(curve.HitTestSide(P(3.0, 0.0))), own) << "the extension has no side there";
        curve.extension = "";
        EXPECT_EQ(Bits(curve.HitTestSide(P(0.0, 1.0))), own);
    }
    curve.own = HIT_OUT;
    curve.extension = "line 0,0 1,0";
    curve.startExists = curve.endExists = false;
    EXPECT_EQ(Bits(curve.HitTestSide(P(0.0, 1.0))), HIT_OUT) << "an infinite curve is not extended";
}

namespace {

/// A star round the origin; no ray from there meets it twice.
std::vector<QnGePoint> RandomStar(RandomSource& random) {
    const int corners = random.Int(3, 9);
    std::vector<QnGePoint> star;
    for (int i = 0; i < corners; ++i) {
        const double angle = (i + random.Double(0.0, 0.8)) * 2.0 * 3.14159265358979 / corners;
        const double radius = random.Double(0.5, 5.0);
        star.push_back(P(radius * std::cos(angle), radius * std::sin(angle)));
    }
    if (random.Coin()) {
        star = std::vector<QnGePoint>(star.rbegin(), star.rend());
    }
    star.push_back(star.front());
    return star;
}

/// Sum of the angles under which the edges are seen: a full turn from inside.
bool IsInsideByAngles(const std::vector<QnGePoint>& ring, const QnGePoint& pt) {
    double turn = 0.0;
    for (std::size_t i = 1; i < ring.size(); ++i) {
        const double ax = ring[i - 1].x - pt.x;
        const double ay = ring[i - 1].y - pt.y;
        const double bx = ring[i].x - pt.x;
        const double by = ring[i].y - pt.y;
        turn += std::atan2(ax * by - ay * bx, ax * bx + ay * by);
    }
    return std::fabs(turn) > 3.0;
}

double GapToRing(const std::vector<QnGePoint>& ring, const QnGePoint& pt) {
    double gap = 1e300;
    for (std::size_t i = 1; i < ring.size(); ++i) {
        const double dx = ring[i].x - ring[i - 1].x;
        const double dy = ring[i].y - ring[i - 1].y;
        double t = ((pt.x - ring[i - 1].x) * dx + (pt.y - ring[i - 1].y) * dy) / (dx * dx + dy * dy);
        t = t < 0.0 ? 0.0 : (t > 1.0 ? 1.0 : t);
        gap = std::fmin(gap, std::hypot(ring[i - 1].x + t * dx - pt.x, ring[i - 1].y + t * dy - pt.y));
    }
    return gap;
}

}  // namespace

TEST(QnGeCurve2d_HitTest, AgreesWithTheWindingOfRandomStars) {
    RandomSource random(BaseSeed());
    int inside = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const std::vector<QnGePoint> ring = RandomStar(random);
        // Every fourth point lies straight above or below a corner.
        QnGePoint pt = P(random.Double(-5.0, 5.0), random.Double(-5.0, 5.0));
        pt.x = i % 4 == 0 ? ring[1].x : pt.x;
        if (GapToRing(ring, pt) < 1e-4) {
            continue;
        }
        const bool expected = IsInsideByAngles(ring, pt);
        inside += expected ? 1 : 0;
        ASSERT_EQ(Bits(PathCurve(ring).HitTest(pt)), expected ? HIT_IN : HIT_OUT)
            << "seed " << BaseSeed() << " case " << i << ' ' << PointToText(pt) << " in "
            << ToText(*PathCurve(ring).MLinearize(0.0));
    }
    EXPECT_GT(inside, PROPERTY_CASES / 20);
}
