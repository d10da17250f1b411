// SPDX-License-Identifier: Apache-2.0
// Where a point lies to a closed multi-line or polyline: the crossing rules at vertices, levels, arcs and tangents.

#include <gtest/gtest.h>

#include "RegionTesting.h"
#include "polylines/QnGePolyline2d.h"

using namespace region_testing;

namespace {

/// Every point given as "x,y" has the same answer, whichever way the line runs and wherever it starts.
void ExpectHit(const std::string& text, std::uint32_t expected, const std::vector<std::string>& points) {
    auto line = ParseGeoAs<QnGeMLine2d>(text);
    for (int turn = 0; turn < 2; ++turn) {
        for (const std::string& point : points) {
            EXPECT_EQ(Bits(line->HitTest(ParsePoint(point))), expected) << point << " to " << ToText(*line);
        }
        line->Reverse();
    }
}

const char* const SQUARE = "mline 0,0 4,0 4,4 0,4 close";
/// A disc of two half circles of radius 2 about 2,0.
const char* const DISC = "pline 0,0@pi 4,0@pi close";
/// Two discs side by side, with a bay of two quarter circles above where they meet.
const char* const ROUNDED = "pline 1,0 4,0@pi/2 5,1 5,3@pi/2 4,4 1,4@pi/2 0,3 0,1@pi/2 close";

}  // namespace

// ---- multi-lines -----------------------------------------------------------------------------------

TEST(ClosedLineHitTest, TellsInsideOutsideAndOn) {
    ExpectHit(SQUARE, HIT_IN, {"2,2", "0.001,2", "3.999,3.999"});
    ExpectHit(SQUARE, HIT_OUT, {"-1,2", "5,2", "2,-1", "2,5", "-1,-1"});
    ExpectHit(SQUARE, HIT_ON, {"0,0", "2,0", "4,2", "2,4", "0,1", "4,4"});
}

TEST(ClosedLineHitTest, ALineOnTheLevelOfAnEdge) {
    // On the edge, and left and right of it: beside the edges at the bottom and at the top the line does not pass.
    ExpectHit(SQUARE, HIT_ON, {"1,0", "1,4"});
    ExpectHit(SQUARE, HIT_OUT, {"-1,0", "-1,4", "5,0", "5,4"});
}

TEST(ClosedLineHitTest, AStepIsPassedOnce) {
    // The level of the step at height 2 is crossed on by the line at its right side.
    const char* const step = "mline 0,0 6,0 6,2 3,2 3,4 0,4 close";
    ExpectHit(step, HIT_IN, {"1,2", "2.9,2"});
    ExpectHit(step, HIT_ON, {"4,2", "3,2", "6,2"});
    ExpectHit(step, HIT_OUT, {"-1,2", "7,2"});
    // The same with the step at the left side.
    const char* const mirrored = "mline 0,0 6,0 6,4 3,4 3,2 0,2 close";
    ExpectHit(mirrored, HIT_IN, {"4,2", "3.1,2"});
    ExpectHit(mirrored, HIT_OUT, {"-1,2", "7,2"});
}

TEST(ClosedLineHitTest, APlateauIsPassedNotAtAll) {
    // A notch whose bottom lies on the point's level, and a bump whose top does.
    const char* const notch = "mline 0,0 9,0 9,4 6,4 6,2 3,2 3,4 0,4 close";
    ExpectHit(notch, HIT_IN, {"1,2", "2.9,2", "7,2"});
    ExpectHit(notch, HIT_OUT, {"-1,2", "4,3"});
    const char* const bump = "mline 0,0 2,0 2,2 3,2 3,0 9,0 9,4 0,4 close";
    ExpectHit(bump, HIT_IN, {"1,2", "4,2"});
}

TEST(ClosedLineHitTest, ARunOfVerticesOnTheLevelIsOneStep) {
    const char* const step = "mline 0,0 6,0 6,2 5,2 4,2 3.5,2 3,2 3,4 0,4 close";
    ExpectHit(step, HIT_IN, {"1,2"});
    ExpectHit(step, HIT_ON, {"4.5,2", "5,2"});
    const char* const plateau = "mline 0,0 9,0 9,4 6,4 6,2 5,2 4,2 3,2 3,4 0,4 close";
    ExpectHit(plateau, HIT_IN, {"1,2"});
}

TEST(ClosedLineHitTest, ATipThatTouchesTheRayDoesNotFlipAndOneThatPassesDoes) {
    // Tips from above and from below end on level 2; the right vertex passes through it.
    const char* const tips = "mline 0,0 2,0 3,2 4,0 6,0 8,2 6,4 5,4 4.5,2 4,4 0,4 close";
    ExpectHit(tips, HIT_IN, {"1,2", "3.5,2", "5,2"});
    ExpectHit(tips, HIT_OUT, {"-1,2", "9,2", "3,1", "4.5,3"});
    ExpectHit(tips, HIT_ON, {"3,2", "4.5,2", "8,2", "0,2"});
    ExpectHit("mline 0,0 4,-4 8,0 4,4 close", HIT_IN, {"1,0", "4,0", "7,0"});
    ExpectHit("mline 0,0 4,-4 8,0 4,4 close", HIT_OUT, {"-1,0", "9,0", "-1,4", "-1,-4"});
}

TEST(ClosedLineHitTest, NearAnEdgeIsOnIt) {
    ExpectHit(SQUARE, HIT_ON, {"2,0.0000009", "2,-0.0000009", "4.0000009,2"});
    ExpectHit(SQUARE, HIT_IN, {"2,0.00001"});
    ExpectHit(SQUARE, HIT_OUT, {"2,-0.00001"});
}

TEST(ClosedLineHitTest, CrossingsOfTheLineWithItselfCountByParity) {
    const char* const bow = "mline 0,0 4,4 4,0 0,4 close";
    ExpectHit(bow, HIT_IN, {"0.5,2", "3.5,2"});
    ExpectHit(bow, HIT_OUT, {"2,3", "2,1"});
    ExpectHit(bow, HIT_ON, {"2,2"});
}

TEST(ClosedLineHitTest, AnOpenLineKnowsOnAndNothingElse) {
    ExpectHit("mline 0,0 4,0 4,4 0,4", HIT_ON, {"2,0", "4,4", "0,4"});
    ExpectHit("mline 0,0 4,0 4,4 0,4", 0, {"2,2", "-1,2", "0,2"});
}

TEST(ClosedLineHitTest, ALineAsFlatAsTheToleranceEndsItsWalk) {
    // No vertex leaves the level of the point, so that no vertex decides about the crossing.
    ExpectHit("mline 0,0 1,0.0000005 2,0 close", HIT_OUT, {"-1,0.0000005"});
    ExpectHit("pline 0,0 1,0.0000005 2,0 close", HIT_OUT, {"-1,0.0000005"});
    ExpectHit("mline 0,0 1,0 close", HIT_ON, {"0.5,0"});
}

TEST(ClosedLineHitTest, DegenerateLines) {
    ExpectHit("mline close", HIT_OUT, {"0,0"});
    ExpectHit("mline 1,1 close", HIT_OUT, {"0,0", "0,1"});
    ExpectHit("mline 0,0 2,2 close", HIT_ON, {"1,1", "0,0"});
    ExpectHit("mline 0,0 2,2 close", HIT_OUT, {"0,1", "1,0"});
}

// ---- polylines -------------------------------------------------------------------------------------

TEST(ClosedPolylineHitTest, TellsInsideOutsideAndOn) {
    ExpectHit(DISC, HIT_IN, {"2,0", "2,1.9", "3,1", "0.5,0.5", "1,-1"});
    ExpectHit(DISC, HIT_OUT, {"-1,0", "5,0", "-1,1", "2,2.1", "0.1,1.5"});
    ExpectHit(DISC, HIT_ON, {"0,0", "4,0", "2,2", "2,-2"});
}

TEST(ClosedPolylineHitTest, ARayTangentToAnArcDoesNotFlip) {
    ExpectHit(DISC, HIT_OUT, {"-1,2", "-1,-2"});
    // A bulge of the upper side into the shape: its lowest point lies on the ray.
    const char* const dented = "pline 0,0 9,0 9,5 6,5@-pi 4,5 0,5 close";
    ExpectHit(dented, HIT_OUT, {"-1,5.5", "-1,6"});
    const char* const bayed = "pline 0,0 9,0 9,5 6,5@pi 4,5 0,5 close";
    ExpectHit(bayed, HIT_IN, {"1,4", "5,5.5"});
    ExpectHit(bayed, HIT_OUT, {"-1,6"});
}

TEST(ClosedPolylineHitTest, ATangentInsideTheShapeDoesNotFlip) {
    // A half circle hangs down from the top side; its lowest point is at 5,4.
    const char* const bay = "pline 0,0 9,0 9,5 6,5@-pi 4,5 0,5 close";
    ExpectHit(bay, HIT_IN, {"1,4", "8,4", "1,3"});
    ExpectHit(bay, HIT_ON, {"5,4"});
    ExpectHit(bay, HIT_OUT, {"5,4.5", "5,4.001"});
}

TEST(ClosedPolylineHitTest, JointsOfArcsAndChordsAreCrossedOnce) {
    ExpectHit(ROUNDED, HIT_IN, {"2,1", "2,3", "2.5,2", "0.5,1", "0.5,3"});
    ExpectHit(ROUNDED, HIT_OUT, {"-1,1", "-1,3", "-1,0", "-1,4", "6,1", "6,3"});
    ExpectHit(ROUNDED, HIT_ON, {"0,1", "5,3", "0,2", "2,0", "2,4"});
}

TEST(ClosedPolylineHitTest, AnArcsEndAtTheLevelWithAHorizontalTangent) {
    // A stadium: the arcs start and end with horizontal tangents on the levels of the chords.
    const char* const stadium = "pline 2,0 6,0@pi 6,4 2,4@pi close";
    ExpectHit(stadium, HIT_IN, {"2,2", "0.5,2", "7.5,2", "4,0.001", "4,3.999"});
    ExpectHit(stadium, HIT_OUT, {"-1,0", "-1,4", "-1,2", "9,0"});
    ExpectHit(stadium, HIT_ON, {"0,2", "8,2", "4,0", "4,4"});
}

TEST(ClosedPolylineHitTest, ChordsAreTreatedLikeEdgesOfAMultiLine) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomSource random(CaseSeed(60, i));
        const Ring ring = lattice_polygons::SimplePolygon(random, random.Int(3, 9), 5);
        const QnGeMLine2d straight = MakeOutline(ring);
        const QnGePolyline2d chords(straight);
        const QnGePoint point(0.5 * random.Int(-2, 12), 0.5 * random.Int(-2, 12));
        ASSERT_EQ(Bits(chords.HitTest(point)), Bits(straight.HitTest(point)))
            << "seed " << CaseSeed(60, i) << ", point " << PointToText(point) << '\n'
            << ToText(chords);
    }
}

TEST(ClosedPolylineHitTest, BowedSidesAgreeWithTheirSegments) {
    // A point at a distance from every bow is inside exactly if it is inside the chords. Levels of vertices are left
    // out: an arc's end is known no better than the tolerance of angles at its radius.
    constexpr double SAGITTA = 0.45;
    constexpr double LEVEL = 1e-2;
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomSource random(CaseSeed(61, i));
        const Ring ring = polygon_pairs::Star(random, random.Int(4, 9), 0.0, 0.0, 3.0, 5.0);
        QnGePolyline2d bowed(MakeOutline(ring));
        const QnGePoint point(random.Double(-6.0, 6.0), random.Double(-6.0, 6.0));
        bool clear = exact_area::DistanceToRings({ring}, point) > SAGITTA;
        for (long k = 0; k < bowed.GetVertexNum(); ++k) {
            bowed.SetBulge(k, random.OneIn(3) ? 0.0 : random.Double(0.05, 0.3) * (random.Coin() ? 1.0 : -1.0));
            clear = clear && std::fabs(bowed.GetVertex(k).y - point.y) > LEVEL;
        }
        if (!clear) {
            continue;
        }
        const bool inside = exact_area::WindingNumber({ring}, point) != 0;
        ASSERT_EQ(Bits(bowed.HitTest(point)), inside ? HIT_IN : HIT_OUT)
            << "seed " << CaseSeed(61, i) << ", point " << PointToText(point) << '\n'
            << ToText(bowed);
    }
}

TEST(ClosedPolylineHitTest, KeptOddPointsJustBesideTheLevelOfAnArcsEndAreInside) {
    ExpectHit(ROUNDED, HIT_OUT, {"-3.01,1", "-3.01,1.00001", "-3.01,0.99999"});
    const auto line = ParseGeoAs<QnGeMLine2d>(ROUNDED);
    EXPECT_EQ(Bits(line->HitTest(QnGePoint(-3.01, 1.0000003))), HIT_IN);
    EXPECT_EQ(Bits(line->HitTest(QnGePoint(-3.01, 0.9999997))), HIT_IN);
}

TEST(ClosedPolylineHitTest, KeptOddPointsThatAreNoNumbersAreOnEverySegment) {
    const auto disc = ParseGeoAs<QnGeMLine2d>(DISC);
    const auto square = ParseGeoAs<QnGeMLine2d>(SQUARE);
    for (const QnGePoint& p : {QnGePoint(NOT_A_NUMBER, 1.0), QnGePoint(1.0, NOT_A_NUMBER)}) {
        EXPECT_EQ(Bits(square->HitTest(p)), HIT_ON);
        EXPECT_EQ(Bits(disc->HitTest(p)), HIT_ON);
    }
}

TEST(ClosedPolylineHitTest, InfinitePointsGetAnAnswer) {
    const auto disc = ParseGeoAs<QnGeMLine2d>(DISC);
    const auto square = ParseGeoAs<QnGeMLine2d>(SQUARE);
    for (const double bad : {INF, -INF, 1e300}) {
        for (const QnGePoint& p : {QnGePoint(bad, 1.0), QnGePoint(1.0, bad), QnGePoint(bad, bad)}) {
            EXPECT_FALSE(square->HitTest(p).HasBit(HIT_IN)) << PointToText(p);
            EXPECT_NE(Bits(disc->HitTest(p)), 0U) << PointToText(p);
        }
    }
}
