// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "RoundTesting.h"
#include "curves2d/QnGeEllipse2d.h"
#include "values/QnGePoint2d.h"

using namespace round_testing;

namespace {

bool Includes(const char* curve, const char* other) {
    return ParseGeo(curve)->IsInclude(*ParseGeo(other));
}

/// A full circle that includes everything of one's own kind that lies on it.
const char* const CIRCLE = "circle 1,2 r3";

}  // namespace

// ---- circle ------------------------------------------------------------------------------------------

TEST(IncludeCircle, NeverALineRayOrSegment) {
    for (const char* text : {"line 4,2 0,1", "ray 4,2 0,1", "ray reversed 4,2 0,1", "seg 4,2 1,5"}) {
        EXPECT_FALSE(Includes(CIRCLE, text)) << text;
    }
    EXPECT_FALSE(Includes(CIRCLE, "seg 4,2 4,2")) << "not even a segment that is one point of it";
}

TEST(IncludeCircle, TheSameCircleOfEitherDirection) {
    EXPECT_TRUE(Includes(CIRCLE, "circle 1,2 r3"));
    EXPECT_TRUE(Includes(CIRCLE, "circle 1,2 r3 cw"));
    EXPECT_TRUE(Includes(CIRCLE, "circle 1,2 r3.0000005"));
    EXPECT_FALSE(Includes(CIRCLE, "circle 1,2 r3.000002"));
    EXPECT_FALSE(Includes(CIRCLE, "circle 1,2 r2"));
    EXPECT_FALSE(Includes(CIRCLE, "circle 1.1,2 r3"));
}

TEST(IncludeCircle, EveryArcOnIt) {
    EXPECT_TRUE(Includes(CIRCLE, "arc 1,2 r3 from 1 sweep 2"));
    EXPECT_TRUE(Includes("circle 1,2 r3 cw", "arc 1,2 r3 from 6 sweep 2"));
    EXPECT_TRUE(Includes(CIRCLE, "arc 1,2 r3 from 5 sweep 2pi cw"));
    EXPECT_FALSE(Includes(CIRCLE, "arc 1,2 r2 from 1 sweep 2"));
    EXPECT_FALSE(Includes(CIRCLE, "arc 1,2.1 r3 from 1 sweep 2"));
}

TEST(IncludeCircle, PointsOnIt) {
    EXPECT_TRUE(Includes(CIRCLE, "point 4,2"));
    EXPECT_TRUE(Includes(CIRCLE, "point 1,5.0000009"));
    EXPECT_FALSE(Includes(CIRCLE, "point 1,5.000002"));
    EXPECT_FALSE(Includes(CIRCLE, "point 1,2")) << "inside is not on it";
}

TEST(IncludeCircle, CompoundCurvesByTheirPieces) {
    EXPECT_TRUE(Includes("circle 0,0 r2", "pline 2,0@pi -2,0@pi close"));
    EXPECT_TRUE(Includes("circle 0,0 r2", "pline 2,0@pi/2 0,2@-pi/2 2,0"));
    EXPECT_FALSE(Includes("circle 0,0 r2", "pline 2,0@pi -2,0 2,0"));
    EXPECT_FALSE(Includes("circle 0,0 r2", "mline 2,0 0,2"));
    EXPECT_FALSE(Includes("circle 0,0 r2", "region 2,0 0,2 -2,0"));
    EXPECT_FALSE(Includes("circle 0,0 r2", "region circle 0,0 r2")) << "a region is never on a curve";
    EXPECT_FALSE(ParseGeo("circle 0,0 r2")->IsInclude(QnGeEllipse2d()));
}

TEST(IncludeCircle, LineFamilyNeverIncludesACircleOrAnArc) {
    for (const char* line : {"line 0,0 1,0", "ray 0,0 1,0", "ray reversed 0,0 1,0", "seg 0,0 9,0"}) {
        EXPECT_FALSE(Includes(line, "circle 1,0 r1")) << line;
        EXPECT_FALSE(Includes(line, "circle 1,0 r0")) << line;
        EXPECT_FALSE(Includes(line, "arc 1,0 r1 from 0 sweep 1")) << line;
        EXPECT_FALSE(Includes(line, "arc 1,0 r0 from 0 sweep 1")) << line;
    }
}

// ---- arc ---------------------------------------------------------------------------------------------

TEST(IncludeArc, NeverALineRayOrSegment) {
    for (const char* text : {"line 2,0 0,1", "ray 2,0 0,1", "ray reversed 2,0 0,1", "seg 2,0 0,2", "seg 2,0 2,0"}) {
        EXPECT_FALSE(Includes("arc 0,0 r2 from 0 sweep 2", text)) << text;
    }
}

TEST(IncludeArc, TheCircleOnlyIfClosed) {
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 2pi", "circle 0,0 r2"));
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 2pi", "circle 0,0 r2 cw"));
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 6.283176", "circle 0,0 r2"));
    EXPECT_FALSE(Includes("arc 0,0 r2 from 1 sweep 6.28317", "circle 0,0 r2"));
    EXPECT_FALSE(Includes("arc 0,0 r2 from 1 sweep 6", "circle 0,0 r2"));
    EXPECT_FALSE(Includes("arc 0,0 r2 from 1 sweep 2pi", "circle 0,0 r3"));
}

TEST(IncludeArc, APieceOfItOfTheSameDirection) {
    const char* const arc = "arc 0,0 r2 from 1 sweep 3";
    EXPECT_TRUE(Includes(arc, "arc 0,0 r2 from 1 sweep 3"));
    EXPECT_TRUE(Includes(arc, "arc 0,0 r2 from 1 sweep 1"));
    EXPECT_TRUE(Includes(arc, "arc 0,0 r2 from 3 sweep 1"));
    EXPECT_TRUE(Includes(arc, "arc 0,0 r2 from 2 sweep 1"));
    EXPECT_FALSE(Includes(arc, "arc 0,0 r2 from 0.5 sweep 1")) << "hangs over the start";
    EXPECT_FALSE(Includes(arc, "arc 0,0 r2 from 3.5 sweep 1")) << "hangs over the end";
    EXPECT_FALSE(Includes(arc, "arc 0,0 r2 from 4.5 sweep 1")) << "lies beside";
    EXPECT_FALSE(Includes(arc, "arc 0,0 r2 from 0.5 sweep 4")) << "is the longer one";
    EXPECT_FALSE(Includes(arc, "arc 0,0 r3 from 2 sweep 1")) << "lies on another circle";
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 3 cw", "arc 0,0 r2 from 2 sweep 1 cw"));
    EXPECT_TRUE(Includes("arc 0,0 r2 from 6 sweep 3", "arc 0,0 r2 from 0.5 sweep 1")) << "over the +x direction";
}

TEST(IncludeArc, APieceOfTheOppositeDirection) {
    // Clockwise from 2 pi - 3 the arc runs over the angles 3 down to 2.
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 3.2831853071796 sweep 1 cw"));
    EXPECT_FALSE(Includes("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 1 sweep 1 cw"));
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 3 cw", "arc 0,0 r2 from 3.2831853071796 sweep 1"));
    EXPECT_FALSE(Includes("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 1.7831853071796 sweep 1 cw"));
}

TEST(IncludeArc, SlackAtBothEndsAddsUpWithinTheAngleTolerance) {
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 1 sweep 3.000009"));
    EXPECT_FALSE(Includes("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 1 sweep 3.00002"));
    EXPECT_TRUE(Includes("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 0.999992 sweep 2"));
    EXPECT_FALSE(Includes("arc 0,0 r2 from 1 sweep 3", "arc 0,0 r2 from 0.99998 sweep 2"));
}

TEST(IncludeArc, KeptOddClosedArcDoesNotIncludeAnArcOverItsSeam) {
    const char* const closed = "arc 0,0 r2 from 1 sweep 2pi";
    EXPECT_TRUE(Includes(closed, "arc 0,0 r2 from 2 sweep 3"));
    EXPECT_FALSE(Includes(closed, "arc 0,0 r2 from 0.5 sweep 1"));
    EXPECT_TRUE(Includes("circle 0,0 r2", "arc 0,0 r2 from 0.5 sweep 1"));
}

TEST(IncludeArc, PointsOnIt) {
    const char* const arc = "arc 0,0 r2 from 0 sweep pi";
    EXPECT_TRUE(Includes(arc, "point 0,2"));
    EXPECT_TRUE(Includes(arc, "point 2,0"));
    EXPECT_TRUE(Includes(arc, "point -2,0"));
    EXPECT_FALSE(Includes(arc, "point 0,-2")) << "on the circle beside the arc";
    EXPECT_FALSE(Includes(arc, "point 0,0"));
}

TEST(IncludeArc, CompoundCurvesByTheirPieces) {
    const char* const arc = "arc 0,0 r2 from 0 sweep pi";
    EXPECT_TRUE(Includes(arc, "pline 2,0@pi/2 0,2@pi/2 -2,0"));
    EXPECT_FALSE(Includes(arc, "pline 2,0@pi -2,0@pi close"));
    EXPECT_FALSE(Includes(arc, "mline 2,0 -2,0"));
    EXPECT_FALSE(Includes(arc, "region 2,0 0,2 -2,0"));
    EXPECT_FALSE(ParseGeo(arc)->IsInclude(QnGeEllipse2d()));
}

// ---- at random ---------------------------------------------------------------------------------------

TEST(IncludeArc, IsContainmentOfAngleRangesAwayFromTheSeam) {
    RoundSource random(BaseSeed());
    constexpr double CLEAR = 1e-3;
    int cases = 0, included = 0;
    while (cases < PROPERTY_CASES) {
        const QnGeArc2d arc(QnGePoint(1, 2), 3.0, random.Double(0.0, 6.28), random.Double(0.01, 6.2), random.Coin());
        QnGeArc2d other(QnGePoint(1, 2), 3.0, random.Double(0.0, 6.28), random.Double(0.01, 6.2), !arc.IsClockwise());
        if (random.Coin()) {
            // A sub-range, as chance makes too few of them.
            other.SetStartAngle(arc.GetStartAngle() + random.Double(0.0, arc.GetCentralAngle()));
            other.SetCentralAngle(random.Double(0.0, 1.2) * arc.GetCentralAngle() / 2.0);
        }
        const double sweep = arc.GetCentralAngle();
        const double from = PlainTurn(other.GetStartAngle() - arc.GetStartAngle());
        const double to = from + other.GetCentralAngle();
        if (from < CLEAR || from > EXACT_TURN - CLEAR || std::fabs(to - sweep) < CLEAR ||
            other.GetCentralAngle() < CLEAR) {
            continue;
        }
        ++cases;
        const bool expected = to < sweep;
        included += expected ? 1 : 0;
        if (random.Coin()) {
            other.Reverse();
        }
        ASSERT_EQ(arc.IsInclude(other), expected) << ToText(arc) << " of " << ToText(other);
    }
    EXPECT_GT(included, 1000);
}
