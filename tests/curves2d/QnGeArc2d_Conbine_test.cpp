// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

#include "RoundTesting.h"

using namespace round_testing;

namespace {

constexpr bool STRICT = true;
constexpr bool ANY_DIRECTION = false;

/// `arc` takes in `other` and becomes `expected`.
void ExpectJoined(const char* arc, const char* other, bool strict, const char* expected) {
    QnGeArc2d joined = ArcOf(arc);
    const std::unique_ptr<QnGeCurve2d> neighbour = ParseGeoAs<QnGeCurve2d>(other);
    EXPECT_TRUE(joined.Conbine(*neighbour, strict)) << arc << " + " << other;
    ExpectGeo(joined, expected);
    ExpectGeo(*neighbour, other, 0.0);
}

/// `arc` refuses `other` and stays as it was.
void ExpectRefused(const char* arc, const char* other, bool strict) {
    QnGeArc2d kept = ArcOf(arc);
    EXPECT_FALSE(kept.Conbine(*ParseGeoAs<QnGeCurve2d>(other), strict)) << arc << " + " << other;
    ExpectGeo(kept, arc, 0.0);
}

}  // namespace

// ---- what is refused at once -------------------------------------------------------------------------

TEST(ArcConbine, OnlyArcsOfTheSameCircleJoin) {
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "circle 0,0 r2", ANY_DIRECTION);
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "seg 0,0 2,0", ANY_DIRECTION);
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "pline 2,0@1 0,2", ANY_DIRECTION);
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2.1 from 2 sweep 1", ANY_DIRECTION);
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "arc 0.1,0 r2 from 2 sweep 1", ANY_DIRECTION);
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0,9 r2 from 2 sweep 1", STRICT, "arc 0,0 r2 from 1 sweep 2");
}

TEST(ArcConbine, ClosedArcHasEverythingAlready) {
    const char* const closed = "arc 0,0 r2 from 1 sweep 2pi";
    ExpectJoined(closed, "arc 0,0 r2 from 2 sweep 1", STRICT, closed);
    ExpectJoined(closed, "arc 0,0 r2 from 2 sweep 1 cw", STRICT, closed);
    ExpectJoined(closed, "arc 0,0 r2 from 3 sweep 2pi", STRICT, closed);
    ExpectRefused(closed, "arc 0,0 r3 from 2 sweep 1", STRICT);
}

TEST(ArcConbine, ClosedNeighbourIsRefused) {
    ExpectRefused("arc 0,0 r2 from 2 sweep 1", "arc 0,0 r2 from 1 sweep 2pi", ANY_DIRECTION);
}

TEST(ArcConbine, OppositeDirectionJoinsUnlessStrict) {
    // Clockwise from 4.28 the neighbour runs over the geometric angles 2 down to 1.
    const char* const other = "arc 0,0 r2 from 4.2831853071796 sweep 1 cw";
    ExpectRefused("arc 0,0 r2 from 0 sweep 1", other, STRICT);
    ExpectJoined("arc 0,0 r2 from 0 sweep 1", other, ANY_DIRECTION, "arc 0,0 r2 from 0 sweep 2");
    ExpectJoined("arc 0,0 r2 from 0.5 sweep 1", other, ANY_DIRECTION, "arc 0,0 r2 from 0.5 sweep 1.5");
    ExpectJoined("arc 0,0 r2 from 1.5 sweep 1", other, ANY_DIRECTION, "arc 0,0 r2 from 1 sweep 1.5");
    ExpectJoined("arc 0,0 r2 from 1 sweep 1 cw", "arc 0,0 r2 from 4.2831853071796 sweep 1", ANY_DIRECTION,
                 "arc 0,0 r2 from 1 sweep 1 cw");
}

TEST(ArcConbine, NeighbourWithoutASweepIsRefused) {
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 1.5 sweep 0", ANY_DIRECTION);
    // Both ends snap to the start.
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 1 sweep 0.000009", ANY_DIRECTION);
}

// ---- a neighbour behind the start --------------------------------------------------------------------

TEST(ArcConbine, NeighbourAtTheEndProlongs) {
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 2 sweep 1", STRICT, "arc 0,0 r2 from 1 sweep 2");
    ExpectJoined("arc 0,0 r2 from 1 sweep 1 cw", "arc 0,0 r2 from 2 sweep 1 cw", STRICT,
                 "arc 0,0 r2 from 1 sweep 2 cw");
    ExpectJoined("arc 0,0 r2 from 6 sweep 1", "arc 0,0 r2 from 0.7168146928204 sweep 1", STRICT,
                 "arc 0,0 r2 from 6 sweep 2");
}

TEST(ArcConbine, OverlappingNeighbourProlongs) {
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 1.5 sweep 1", STRICT, "arc 0,0 r2 from 1 sweep 1.5");
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 1 sweep 3", STRICT, "arc 0,0 r2 from 1 sweep 3");
}

TEST(ArcConbine, NeighbourWithinChangesNothing) {
    ExpectJoined("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 2 sweep 1", STRICT, "arc 0,0 r2 from 1 sweep 3");
    ExpectJoined("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 1 sweep 3", STRICT, "arc 0,0 r2 from 1 sweep 3");
}

TEST(ArcConbine, NeighbourTooShortToBeValidCountsFromTheParameterToleranceOn) {
    const char* const arc = "arc 0,0 r2 from 1 sweep 1";
    ExpectJoined(arc, "arc 0,0 r2 from 1.5 sweep 0.0000002", STRICT, arc);
    ExpectRefused(arc, "arc 0,0 r2 from 1.5 sweep 0.0000000002", STRICT);
}

TEST(ArcConbine, NeighbourBehindAGapIsRefused) {
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 2.1 sweep 1", ANY_DIRECTION);
    ExpectRefused("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 2.00000001 sweep 1", ANY_DIRECTION);
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 2.0000000005 sweep 1", STRICT,
                 "arc 0,0 r2 from 1 sweep 2.0000000005");
}

TEST(ArcConbine, SweepAboveAFullTurnIsRefused) {
    // No valid arc, but no closed one either: the hull ends beyond the full turn.
    ExpectRefused("arc 0,0 r2 from 1 sweep 6.5", "arc 0,0 r2 from 2 sweep 1", ANY_DIRECTION);
}

// ---- a neighbour that runs over the start ------------------------------------------------------------

TEST(ArcConbine, NeighbourOverTheStartMovesTheStartBack) {
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 0.5 sweep 1", STRICT, "arc 0,0 r2 from 0.5 sweep 1.5");
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 0.5 sweep 0.5", STRICT, "arc 0,0 r2 from 0.5 sweep 1.5");
    ExpectJoined("arc 0,0 r2 from 1 sweep 1 cw", "arc 0,0 r2 from 0.5 sweep 1 cw", STRICT,
                 "arc 0,0 r2 from 0.5 sweep 1.5 cw");
    ExpectJoined("arc 0,0 r2 from 1 sweep 1", "arc 0,0 r2 from 0.5 sweep 2", STRICT, "arc 0,0 r2 from 0.5 sweep 2");
}

TEST(ArcConbine, KeptOddStartIsNotWrapped) {
    ExpectJoined("arc 0,0 r2 from 0.2 sweep 1", "arc 0,0 r2 from 6 sweep 0.6", STRICT,
                 "arc 0,0 r2 from -0.2831853071796 sweep 1.4831853071796");
}

TEST(ArcConbine, JoinThatWouldCloseTheCircleIsRefused) {
    ExpectRefused("arc 0,0 r2 from 0 sweep 4", "arc 0,0 r2 from 4 sweep 2.2831853071796", ANY_DIRECTION);
    ExpectRefused("arc 0,0 r2 from 0 sweep 4", "arc 0,0 r2 from 3 sweep 4", ANY_DIRECTION);
    ExpectRefused("arc 0,0 r2 from 0 sweep 4", "arc 0,0 r2 from 3.9 sweep 2.383179", ANY_DIRECTION);
    ExpectJoined("arc 0,0 r2 from 0 sweep 4", "arc 0,0 r2 from 3.9 sweep 2.38", STRICT, "arc 0,0 r2 from 0 sweep 6.28");
    ExpectJoined("arc 0,0 r2 from 1 sweep 4", "arc 0,0 r2 from 5.01 sweep 2.28", ANY_DIRECTION,
                 "arc 0,0 r2 from -1.2731853071796 sweep 6.2731853071796");
}

TEST(ArcConbine, GapWithinTheAngleToleranceIsRefusedToo) {
    // Over the start, and up to 5e-6 short of this arc's end.
    ExpectRefused("arc 0,0 r2 from 0 sweep 4", "arc 0,0 r2 from 4.000005 sweep 2.7831853071796", ANY_DIRECTION);
    ExpectJoined("arc 0,0 r2 from 0 sweep 4", "arc 0,0 r2 from 4.00002 sweep 2.7831853071796", STRICT,
                 "arc 0,0 r2 from -2.2831653071796 sweep 6.2831653071796");
}

// ---- at random ---------------------------------------------------------------------------------------

TEST(ArcConbine, UnionIsThatOfTheAngleRanges) {
    RoundSource random(BaseSeed());
    constexpr double CLEAR = 1e-3;
    int joins = 0, refusals = 0;
    while (joins + refusals < PROPERTY_CASES) {
        const QnGeArc2d arc(QnGePoint(1, 2), 3.0, random.Double(0.0, 6.28), random.Double(0.01, 6.0), random.Coin());
        const bool sameWay = random.Coin();
        QnGeArc2d other(QnGePoint(1, 2), 3.0, random.Double(0.0, 6.28), random.Double(0.01, 6.0), !arc.IsClockwise());
        // On the axis that starts at this arc's start and runs with it, the other begins at `from`.
        const double sweep = arc.GetCentralAngle();
        const double from = PlainTurn(other.GetStartAngle() - arc.GetStartAngle());
        const double to = from + other.GetCentralAngle();
        if (std::fabs(from - sweep) < CLEAR || std::fabs(to - EXACT_TURN) < CLEAR || from < CLEAR ||
            std::fabs(to - EXACT_TURN - from) < CLEAR) {
            continue;
        }
        const bool meetsAhead = from < sweep;
        const bool meetsBehind = to > EXACT_TURN;
        double first = 0.0, last = sweep;
        if (meetsAhead) {
            last = std::max(last, to);
        } else if (meetsBehind) {
            first = from - EXACT_TURN;
            last = std::max(last, to - EXACT_TURN);
        }
        const bool joinable = meetsAhead != meetsBehind && last - first < EXACT_TURN - CLEAR;
        if (!joinable && meetsAhead != meetsBehind && last - first < EXACT_TURN + CLEAR) {
            continue;
        }
        if (!sameWay) {
            other.Reverse();
        }
        QnGeArc2d joined = arc;
        ASSERT_EQ(joined.Conbine(other, false), joinable) << ToText(arc) << " + " << ToText(other);
        QnGeArc2d strict = arc;
        ASSERT_EQ(strict.Conbine(other, true), joinable && sameWay) << ToText(arc) << " + " << ToText(other);
        ASSERT_EQ(joined.IsClockwise(), arc.IsClockwise());
        if (joinable) {
            ++joins;
            ASSERT_NEAR(joined.GetStartAngle(), arc.GetStartAngle() + first, 1e-8)
                << ToText(arc) << " + " << ToText(other);
            ASSERT_NEAR(joined.GetCentralAngle(), last - first, 1e-8) << ToText(arc) << " + " << ToText(other);
        } else {
            ++refusals;
            ASSERT_EQ(joined.GetCentralAngle(), sweep);
            ASSERT_EQ(joined.GetStartAngle(), arc.GetStartAngle());
        }
    }
    EXPECT_GT(joins, 1000);
    EXPECT_GT(refusals, 1000);
}
