// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "ChainTesting.h"
#include "support/StreamBytes.h"

using namespace chain_testing;

namespace {

void ExpectConnectSeg(const std::string& chain, bool closed, bool insertSeg, bool answer, const std::string& expected) {
    QnGeMCurve2d joined = ChainOf(chain);
    EXPECT_EQ(joined.ConnectSeg(closed, insertSeg), answer) << chain;
    ExpectGeo(joined, expected);
}

void ExpectOffset(const std::string& chain, double dist, const std::string& expected) {
    QnGeMCurve2d moved = ChainOf(chain);
    EXPECT_TRUE(moved.Offset(dist)) << chain;
    ExpectGeo(moved, expected);
}

void ExpectNoOffset(const std::string& chain, double dist) {
    QnGeMCurve2d moved = ChainOf(chain);
    const StreamBytes before = RecordOf(moved);
    EXPECT_FALSE(moved.Offset(dist)) << chain;
    EXPECT_EQ(RecordOf(moved), before) << chain << "\n  became\n" << ToText(moved);
}

void ExpectOffsetSeg(const std::string& chain, long i, double dist, bool answer, const std::string& expected) {
    QnGeMCurve2d moved = ChainOf(chain);
    EXPECT_EQ(moved.OffsetSeg(i, dist), answer) << chain;
    ExpectGeo(moved, expected);
}

constexpr const char* U_SHAPE = "chain seg 0,4 0,0 | seg 0,0 4,0 | seg 4,0 4,4";
constexpr const char* TWO_PARALLELS = "chain seg 0,0 4,0 | seg 6,1 9,1";

}  // namespace

// ---- ConnectSeg --------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_ConnectSeg, NeighboursMeetAtTheCrossingOfTheirCarriers) {
    ExpectConnectSeg("chain seg 0,0 3,0 | seg 4,1 4,5", false, false, true, "chain seg 0,0 4,0 | seg 4,0 4,5");
    ExpectConnectSeg("chain seg 0,0 3,0 | seg 4,1 4,5 | seg 5,6 9,6", false, false, true,
                     "chain seg 0,0 4,0 | seg 4,0 4,6 | seg 4,6 9,6");
    ExpectConnectSeg("chain seg 0,0 3,0 | seg 4,1 4,5 | seg 5,6 9,6", false, true, true,
                     "chain seg 0,0 4,0 | seg 4,0 4,6 | seg 4,6 9,6");
    ExpectConnectSeg("chain arc 0,0 r5 from 0 sweep 1 | seg 0,4 0,1", false, false, true,
                     "chain arc 0,0 r5 from 0 sweep pi/2 | seg 0,5 0,1");
}

TEST(QnGeMCurve2d_ConnectSeg, WhatIsJoinedStays) {
    ExpectConnectSeg(TWO_SEGS, false, false, true, TWO_SEGS);
    ExpectConnectSeg(SQUARE, true, true, true, SQUARE);
    ExpectConnectSeg("chain seg 0,0 4,0", false, false, true, "chain seg 0,0 4,0");
    ExpectConnectSeg("chain", false, false, true, "chain");
    ExpectConnectSeg("chain", true, true, true, "chain");
    ExpectConnectSeg("chain arc 0,0 r2 from 0 sweep 2pi", true, false, true, "chain arc 0,0 r2 from 0 sweep 2pi");
}

TEST(QnGeMCurve2d_ConnectSeg, ClosedTheLastMeetsTheFirst) {
    ExpectConnectSeg("chain seg 1,0 3,0 | seg 4,1 4,3 | seg 3,4 1,4 | seg 0,3 0,1", true, false, true, SQUARE);
    ExpectConnectSeg("chain seg 1,0 3,0 | seg 4,1 4,3 | seg 3,4 1,4 | seg 0,3 0,1", false, false, true,
                     "chain seg 1,0 4,0 | seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,1");
}

TEST(QnGeMCurve2d_ConnectSeg, KeptOddAFailureLeavesWhatWasJoinedBefore) {
    ExpectConnectSeg("chain seg 0,0 3,0 | seg 4,1 4,5 | seg 6,5 6,9", false, false, false,
                     "chain seg 0,0 4,0 | seg 4,0 4,5 | seg 6,5 6,9");
    ExpectConnectSeg(TWO_PARALLELS, false, false, false, TWO_PARALLELS);
    ExpectConnectSeg("chain seg 0,0 4,0 | seg 4,0 4,4", true, false, false, "chain seg 0,0 4,0 | seg 4,0 4,4");
}

TEST(QnGeMCurve2d_ConnectSeg, ASegmentFillsTheGap) {
    ExpectConnectSeg(TWO_PARALLELS, false, true, true, "chain seg 0,0 4,0 | seg 4,0 6,1 | seg 6,1 9,1");
    ExpectConnectSeg("chain seg 0,0 4,0 | seg 4,1 8,1 | seg 8,2 12,2", false, true, true,
                     "chain seg 0,0 4,0 | seg 4,0 4,1 | seg 4,1 8,1 | seg 8,1 8,2 | seg 8,2 12,2");
    ExpectConnectSeg("chain seg 0,0 3,0 | seg 4,1 4,5 | seg 6,5 6,9 | seg 7,10 9,10", false, true, true,
                     "chain seg 0,0 4,0 | seg 4,0 4,5 | seg 4,5 6,5 | seg 6,5 6,10 | seg 6,10 9,10");
    ExpectConnectSeg("chain seg 0,0 4,0 | ray 4,1 1,0", false, true, true,
                     "chain seg 0,0 4,0 | seg 4,0 4,1 | ray 4,1 1,0");
}

TEST(QnGeMCurve2d_ConnectSeg, ASegmentClosesTheChain) {
    ExpectConnectSeg("chain seg 0,0 4,0 | seg 4,0 4,4", true, true, true,
                     "chain seg 0,0 4,0 | seg 4,0 4,4 | seg 4,4 0,0");
    ExpectConnectSeg("chain seg 0,0 4,0 | seg 4,1 0,1", true, true, true,
                     "chain seg 0,0 4,0 | seg 4,0 4,1 | seg 4,1 0,1 | seg 0,1 0,0");
    ExpectConnectSeg("chain arc 0,0 r2 from 0 sweep pi", true, true, true,
                     "chain arc 0,0 r2 from 0 sweep pi | seg -2,0 2,0");
    ExpectConnectSeg("chain seg 0,0 4,0", true, true, true, "chain seg 0,0 4,0 | seg 4,0 0,0");
    ExpectConnectSeg("chain seg 0,0 4,0", true, false, false, "chain seg 0,0 4,0");
}

// ---- Offset ------------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Offset, MovedChildrenAreJoinedAgain) {
    ExpectOffset("chain seg 0,0 4,0 | seg 4,0 4,4", 1.0, "chain seg 0,-1 5,-1 | seg 5,-1 5,4");
    ExpectOffset("chain seg 0,0 4,0 | seg 4,0 4,4", -1.0, "chain seg 0,1 3,1 | seg 3,1 3,4");
    ExpectOffset(LINE_ARC_LINE, 1.0, "chain seg 0,-1 4,-1 | arc 4,2 r3 from 3pi/2 sweep pi | seg 4,5 0,5");
    ExpectOffset("chain seg 0,0 4,0", 1.0, "chain seg 0,-1 4,-1");
    ExpectOffset(WITH_RAYS, 1.0, "chain ray reversed 0,-1 -1,0 | seg 0,-1 4,-1 | ray 4,-1 1,0");
}

TEST(QnGeMCurve2d_Offset, AClosedChainIsJoinedAllRound) {
    ExpectOffset(SQUARE, 1.0, "chain seg -1,-1 5,-1 | seg 5,-1 5,5 | seg 5,5 -1,5 | seg -1,5 -1,-1");
    ExpectOffset(SQUARE, -1.0, "chain seg 1,1 3,1 | seg 3,1 3,3 | seg 3,3 1,3 | seg 1,3 1,1");
    ExpectOffset(STADIUM, -1.0,
                 "chain seg 0,1 4,1 | arc 4,2 r1 from 3pi/2 sweep pi | seg 4,3 0,3 | arc 0,2 r1 from pi/2 sweep pi");
    ExpectOffset("chain arc 0,0 r2 from 1 sweep 2pi", 1.0, "chain arc 0,0 r3 from 1 sweep 2pi");
}

TEST(QnGeMCurve2d_Offset, WhatCannotBeJoinedComesBackUnchanged) {
    ExpectNoOffset("chain seg 0,0 4,0 | seg 4,0 1,0", 1.0);
    ExpectNoOffset("chain seg 9,0 9,4 | seg 9,4 0,4 | seg 0,4 4,4", 1.0);
    ExpectNoOffset("chain seg 0,0 4,0 | ray 4,0 0,1", 1.0);
}

TEST(QnGeMCurve2d_Offset, KeptOddAChildThatCannotMoveDoesNotMatter) {
    ExpectOffset("chain arc 0,0 r1 from 0 sweep pi", -2.0, "chain arc 0,0 r1 from 0 sweep pi");
}

TEST(QnGeMCurve2d_Offset, KeptOddAWholeCircleHasNoEndsToJoin) {
    ExpectNoOffset("chain circle 0,0 r2", 1.0);
}

TEST(QnGeMCurve2d_Offset, AnOffsetCurveLeavesTheChain) {
    const QnGeMCurve2d chain = ChainOf(SQUARE);
    const std::unique_ptr<QnGeCurve2d> moved(chain.GetOffsetCurve(1.0));
    ExpectGeo(moved.get(), "chain seg -1,-1 5,-1 | seg 5,-1 5,5 | seg 5,5 -1,5 | seg -1,5 -1,-1");
    ExpectGeo(chain, SQUARE, 0.0);
    EXPECT_EQ(ChainOf("chain seg 0,0 4,0 | seg 4,0 1,0").GetOffsetCurve(1.0), nullptr);
}

// ---- OffsetSeg ---------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_OffsetSeg, OneChildMovesAndBothNeighboursFollow) {
    ExpectOffsetSeg(U_SHAPE, 1, 1.0, true, "chain seg 0,4 0,-1 | seg 0,-1 4,-1 | seg 4,-1 4,4");
    ExpectOffsetSeg(U_SHAPE, 1, -1.0, true, "chain seg 0,4 0,1 | seg 0,1 4,1 | seg 4,1 4,4");
    ExpectOffsetSeg(
        "chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi | seg 4,4 4,9", 2, 1.0, true,
        "chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep 2.6179938779914944 | seg 5,3.7320508075688774 5,9");
}

TEST(QnGeMCurve2d_OffsetSeg, AtAnEndOneNeighbourFollows) {
    ExpectOffsetSeg(U_SHAPE, 0, 1.0, true, "chain seg -1,4 -1,0 | seg -1,0 4,0 | seg 4,0 4,4");
    ExpectOffsetSeg(U_SHAPE, 2, 1.0, true, "chain seg 0,4 0,0 | seg 0,0 5,0 | seg 5,0 5,4");
}

TEST(QnGeMCurve2d_OffsetSeg, OnAClosedChainTheNeighboursGoRound) {
    ExpectOffsetSeg(SQUARE, 3, 1.0, true, "chain seg -1,0 4,0 | seg 4,0 4,4 | seg 4,4 -1,4 | seg -1,4 -1,0");
    ExpectOffsetSeg(SQUARE, 0, 1.0, true, "chain seg 0,-1 4,-1 | seg 4,-1 4,4 | seg 4,4 0,4 | seg 0,4 0,-1");
}

TEST(QnGeMCurve2d_OffsetSeg, ASingleChildJustMoves) {
    ExpectOffsetSeg("chain seg 0,0 4,0", 0, 1.0, true, "chain seg 0,-1 4,-1");
    ExpectOffsetSeg("chain circle 0,0 r2", 0, 1.0, true, "chain circle 0,0 r3");
    ExpectOffsetSeg("chain ray 0,0 1,0", 0, 1.0, true, "chain ray 0,-1 1,0");
}

TEST(QnGeMCurve2d_OffsetSeg, AChildThatCannotMoveIsARefusal) {
    ExpectOffsetSeg("chain circle 0,0 r2", 0, -2.0, false, "chain circle 0,0 r2");
    ExpectOffsetSeg("chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi", 1, -2.0, false,
                    "chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi");
}

TEST(QnGeMCurve2d_OffsetSeg, AnIndexOutOfRangeIsARefusal) {
    for (const long i : {-1L, 2L, 100L}) {
        ExpectOffsetSeg(TWO_SEGS, i, 1.0, false, TWO_SEGS);
    }
    ExpectOffsetSeg("chain", 0, 1.0, false, "chain");
}

TEST(QnGeMCurve2d_OffsetSeg, KeptOddWhatMovedBeforeAFailureStaysMoved) {
    ExpectOffsetSeg(TWO_SEGS, 0, 1.0, false, "chain seg 0,-1 10,-1 | seg 10,0 11,0");
    ExpectOffsetSeg(TWO_SEGS, 1, 1.0, false, "chain seg 0,0 10,0 | seg 10,-1 11,-1");
    ExpectOffsetSeg("chain seg 0,0 4,0 | ray 4,0 0,1", 0, 1.0, false, "chain seg 0,-1 4,-1 | ray 4,0 0,1");
    ExpectOffsetSeg("chain seg 0,0 4,0 | ray 4,0 0,1", 1, 1.0, false, "chain seg 0,0 4,0 | ray 5,0 0,1");
    // The next child has followed when the one before cannot.
    ExpectOffsetSeg("chain ray reversed 0,0 0,1 | seg 0,0 4,0 | seg 4,0 4,4", 1, 1.0, false,
                    "chain ray reversed 0,0 0,1 | seg 0,-1 4,-1 | seg 4,-1 4,4");
    ExpectOffsetSeg("chain seg -4,0 0,0 | seg 0,0 4,0 | seg 4,0 4,4", 1, 1.0, false,
                    "chain seg -4,0 0,0 | seg 0,-1 4,-1 | seg 4,-1 4,4");
    ExpectOffsetSeg("chain arc 0,0 r2 from 0 sweep pi | arc 0,0 r2 from pi sweep pi", 0, 0.5, false,
                    "chain arc 0,0 r2.5 from 0 sweep pi | arc 0,0 r2 from pi sweep pi");
}
