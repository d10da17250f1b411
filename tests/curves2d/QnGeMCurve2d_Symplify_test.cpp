// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>

#include "ChainTesting.h"
#include "support/StreamBytes.h"

using namespace chain_testing;

namespace {

void ExpectCompressed(const std::string& chain, const std::string& expected) {
    QnGeMCurve2d compressed = ChainOf(chain);
    compressed.Compress();
    ExpectGeo(compressed, expected);
}

/// `expected` "" is null. The chain itself stays as it is.
void ExpectSimpler(const std::string& chain, const std::string& expected) {
    const QnGeMCurve2d source = ChainOf(chain);
    const StreamBytes before = RecordOf(source);
    const std::unique_ptr<QnGeObject> simpler(source.Symplify());
    EXPECT_EQ(RecordOf(source), before) << chain;
    if (expected.empty()) {
        EXPECT_EQ(simpler, nullptr) << chain << "\n  gives\n" << ToText(simpler.get());
    } else {
        ExpectGeo(simpler.get(), expected);
    }
}

bool CrossesItself(const std::string& chain) {
    return ChainOf(chain).IsSelfCross();
}

}  // namespace

// ---- Compress ----------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Compress, CollinearSegmentsOfOneDirectionMerge) {
    ExpectCompressed("chain seg 0,0 1,0 | seg 1,0 2,0 | seg 2,0 5,0", "chain seg 0,0 5,0");
    ExpectCompressed("chain seg 0,0 1,0 | seg 1,0 2,0 | seg 2,0 2,1 | seg 2,1 2,9", "chain seg 0,0 2,0 | seg 2,0 2,9");
    ExpectCompressed(SQUARE, SQUARE);
    ExpectCompressed(LINE_ARC_LINE, LINE_ARC_LINE);
}

TEST(QnGeMCurve2d_Compress, OppositeDirectionsStay) {
    ExpectCompressed("chain seg 0,0 4,0 | seg 4,0 1,0", "chain seg 0,0 4,0 | seg 4,0 1,0");
    ExpectCompressed("chain seg 0,0 4,0 | seg 4,0 1,0 | seg 1,0 6,0", "chain seg 0,0 4,0 | seg 4,0 1,0 | seg 1,0 6,0");
    ExpectCompressed("chain arc 0,0 r2 from 0 sweep 1 | arc 0,0 r2 from 5.2831853071796 sweep 1 cw",
                     "chain arc 0,0 r2 from 0 sweep 1 | arc 0,0 r2 from 5.2831853071796 sweep 1 cw");
}

TEST(QnGeMCurve2d_Compress, ArcsOfOneCircleMerge) {
    ExpectCompressed(
        "chain arc 0,0 r2 from 0 sweep 1 | arc 0,0 r2 from 1 sweep 1 | seg -0.8322936730942848,1.818594853651363 -5,0",
        "chain arc 0,0 r2 from 0 sweep 2 | seg -0.8322936730942848,1.818594853651363 -5,0");
    ExpectCompressed("chain arc 0,0 r2 from 0 sweep pi | arc 0,0 r2 from pi sweep pi",
                     "chain arc 0,0 r2 from 0 sweep pi | arc 0,0 r2 from pi sweep pi");
}

TEST(QnGeMCurve2d_Compress, EachChildIsCompressedFirst) {
    ExpectCompressed("chain mline 0,0 1,0 2,0 2,2 | seg 2,2 2,5", "chain mline 0,0 2,0 2,2 | seg 2,2 2,5");
}

TEST(QnGeMCurve2d_Compress, AClosedChainMergesOverItsJointToo) {
    ExpectCompressed("chain seg 2,0 4,0 | seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 2,0",
                     "chain seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 4,0");
    ExpectCompressed("chain seg 2,0 3,0 | seg 3,0 4,0 | seg 4,0 2,3 | seg 2,3 0,0 | seg 0,0 1,0 | seg 1,0 2,0",
                     "chain seg 4,0 2,3 | seg 2,3 0,0 | seg 0,0 4,0");
    ExpectCompressed("chain seg 2,0 4,0 | seg 4,0 4,4 | seg 4,4 0,0 | seg 0,0 1.9,0",
                     "chain seg 2,0 4,0 | seg 4,0 4,4 | seg 4,4 0,0 | seg 0,0 1.9,0");
}

TEST(QnGeMCurve2d_Compress, ClosedDownToOneChild) {
    ExpectCompressed("chain arc 0,0 r2 from 0 sweep 2pi | arc 0,0 r2 from 0 sweep 2pi",
                     "chain arc 0,0 r2 from 0 sweep 2pi");
    ExpectCompressed("chain arc 0,0 r2 from 0 sweep 2pi | arc 0,0 r2 from 0 sweep pi | arc 0,0 r2 from pi sweep pi",
                     "chain arc 0,0 r2 from 0 sweep 2pi");
    ExpectCompressed("chain arc 0,0 r2 from 0 sweep 2pi", "chain arc 0,0 r2 from 0 sweep 2pi");
    ExpectCompressed("chain circle 0,0 r2", "chain circle 0,0 r2");
    ExpectCompressed("chain seg 0,0 0,0", "chain seg 0,0 0,0");
}

TEST(QnGeMCurve2d_Compress, TheLastOfAClosedChainTakesTheFirst) {
    // A full turn takes in every arc of its circle, here the first of the chain by the last.
    ExpectCompressed("chain arc 0,0 r2 from 0 sweep pi | seg -2,0 2,0 | arc 0,0 r2 from 0 sweep 2pi",
                     "chain seg -2,0 2,0 | arc 0,0 r2 from 0 sweep 2pi");
}

// ---- Symplify ----------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Symplify, NoChildNoAnswer) {
    ExpectSimpler("chain", "");
}

TEST(QnGeMCurve2d_Symplify, ChildrenWithoutLengthLeaveTheLastPoint) {
    ExpectSimpler("chain seg 1,1 1,1", "point 1,1");
    ExpectSimpler("chain seg 1,1 1,1 | seg 2,2 2,2", "point 2,2");
    ExpectSimpler("chain circle 5,6 r0 | seg 1,1 1,1", "point 1,1");
    ExpectSimpler("chain mline 3,4 3,4", "point 3,4");
}

TEST(QnGeMCurve2d_Symplify, TheOnlyChildThatIsLeftComesOutBare) {
    ExpectSimpler("chain seg 0,0 4,0 | seg 4,0 4,0", "seg 0,0 4,0");
    ExpectSimpler("chain seg 0,0 0,0 | arc 2,0 r2 from pi sweep 1", "arc 2,0 r2 from pi sweep 1");
    ExpectSimpler("chain mline 0,0 0,0 4,4", "seg 0,0 4,4");
}

TEST(QnGeMCurve2d_Symplify, KeptOddASingleChildComesOutUnchanged) {
    ExpectSimpler("chain seg 0,0 4,0", "seg 0,0 4,0");
    ExpectSimpler("chain circle 0,0 r2 cw", "circle 0,0 r2 cw");
    ExpectSimpler("chain mline 0,0 4,0 4,4", "mline 0,0 4,0 4,4");
    ExpectSimpler("chain ray 0,0 1,0", "ray 0,0 1,0");
}

TEST(QnGeMCurve2d_Symplify, SegmentsArcsAndLinesMakeOneLine) {
    ExpectSimpler("chain seg 0,0 4,0 | seg 4,0 4,4", "mline 0,0 4,0 4,4");
    ExpectSimpler("chain seg 0,0 2,0 | seg 2,0 4,0 | seg 4,0 4,4", "mline 0,0 4,0 4,4");
    ExpectSimpler(SQUARE, "mline 0,0 4,0 4,4 0,4 close");
    ExpectSimpler(LINE_ARC_LINE, "pline 0,0 4,0@pi 4,4 0,4");
    ExpectSimpler(STADIUM, "pline 0,0 4,0@pi 4,4 0,4@pi close");
    ExpectSimpler("chain arc 0,0 r2 from 0 sweep pi/2 | arc 0,0 r2 from pi/2 sweep pi/2 | seg -2,0 -4,0",
                  "pline 2,0@pi -2,0 -4,0");
    ExpectSimpler("chain seg 0,0 1,0 | mline 1,0 1,1 2,1 | pline 2,1@1 3,1", "pline 0,0 1,0 1,1 2,1@1 3,1");
    ExpectSimpler("chain seg 0,0 4,0 | seg 4,0 4,0 | seg 4,0 4,4", "mline 0,0 4,0 4,4");
}

TEST(QnGeMCurve2d_Symplify, OtherChainsOnlyIfTheyLoseChildren) {
    ExpectSimpler("chain ray reversed 0,0 -1,0 | seg 0,0 2,0 | seg 2,0 4,0",
                  "chain ray reversed 0,0 -1,0 | seg 0,0 4,0");
    ExpectSimpler("chain ray reversed 0,0 -1,0 | seg 0,0 0,0 | seg 0,0 4,0",
                  "chain ray reversed 0,0 -1,0 | seg 0,0 4,0");
    ExpectSimpler(WITH_RAYS, "");
    ExpectSimpler("chain seg 0,0 4,0 | ray 4,0 0,1", "");
    ExpectSimpler("chain circle 0,0 r2 | circle 5,0 r2", "");
}

TEST(QnGeMCurve2d_Symplify, AChainWithinAChainIsNoPlainPiece) {
    QnGeMCurve2d outer = ChainOf("chain seg 0,0 4,0");
    outer.Append(new QnGeMCurve2d(ChainOf("chain ray 4,0 1,0 | seg 9,0 9,1")));
    EXPECT_EQ(std::unique_ptr<QnGeObject>(outer.Symplify()), nullptr);
    QnGeMCurve2d wrapped = ChainOf("chain");
    wrapped.Append(new QnGeMCurve2d(ChainOf("chain seg 0,0 4,0 | seg 4,0 4,4")));
    ExpectGeo(std::unique_ptr<QnGeObject>(wrapped.Symplify()).get(), "mline 0,0 4,0 4,4");
}

// ---- IsSelfCross -------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_IsSelfCross, ASingleChildAnswersForItself) {
    EXPECT_FALSE(CrossesItself("chain circle 0,0 r2")) << "though it is closed";
    EXPECT_FALSE(CrossesItself("chain arc 0,0 r2 from 0 sweep 2pi"));
    EXPECT_FALSE(CrossesItself("chain mline 0,0 4,0 4,4 close"));
    EXPECT_TRUE(CrossesItself("chain mline 0,0 4,4 4,0 0,4"));
}

TEST(QnGeMCurve2d_IsSelfCross, AmongSeveralAClosedOrCrossingChildIsOne) {
    EXPECT_TRUE(CrossesItself("chain seg 9,9 2,0 | arc 0,0 r2 from 0 sweep 2pi"));
    EXPECT_TRUE(CrossesItself("chain seg 9,9 8,8 | circle 0,0 r2"));
    EXPECT_TRUE(CrossesItself("chain seg -4,0 0,0 | mline 0,0 4,4 4,0 0,4"));
}

TEST(QnGeMCurve2d_IsSelfCross, NeighboursMayMeetOnce) {
    EXPECT_FALSE(CrossesItself(TWO_SEGS));
    EXPECT_FALSE(CrossesItself(SQUARE));
    EXPECT_FALSE(CrossesItself(LINE_ARC_LINE));
    EXPECT_FALSE(CrossesItself(STADIUM));
    EXPECT_FALSE(CrossesItself("chain seg 0,0 4,0 | seg 4,0 4,4 | seg 4,4 0,0"));
    EXPECT_FALSE(CrossesItself("chain mline 0,0 4,0 4,4 | mline 4,4 0,4 0,0"));
}

TEST(QnGeMCurve2d_IsSelfCross, OthersMayNotMeet) {
    EXPECT_TRUE(CrossesItself("chain seg 0,0 4,0 | seg 4,0 4,4 | seg 4,4 2,-4"));
    EXPECT_TRUE(CrossesItself("chain seg 0,0 4,0 | seg 4,0 4,4 | seg 4,4 2,0")) << "the end lies on the first side";
    EXPECT_TRUE(CrossesItself("chain seg 0,0 4,4 | seg 4,4 4,0 | seg 4,0 0,4 | seg 0,4 0,0"));
    EXPECT_TRUE(CrossesItself("chain seg 0,0 4,0 | seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 -1,-1"));
}

TEST(QnGeMCurve2d_IsSelfCross, OverlapsAreCrossings) {
    EXPECT_TRUE(CrossesItself("chain seg 0,0 4,0 | seg 4,0 1,0"));
    EXPECT_TRUE(CrossesItself("chain arc 0,0 r2 from 0 sweep 2 | arc 0,0 r2 from 1 sweep 2"));
    EXPECT_TRUE(CrossesItself("chain seg 0,0 4,0 | seg 4,0 4,4 | seg 3,0 1,0"));
}

TEST(QnGeMCurve2d_IsSelfCross, TwoMayMeetTwiceIfTheyAreAllAndClosed) {
    EXPECT_FALSE(CrossesItself("chain arc 0,0 r2 from 0 sweep pi | arc 0,0 r2 from pi sweep pi"));
    EXPECT_FALSE(CrossesItself("chain arc 0,0 r2 from 0 sweep pi | seg -2,0 2,0"));
    EXPECT_TRUE(CrossesItself("chain arc 0,0 r2 from 0 sweep pi | seg -2,0 5,0"));
    EXPECT_TRUE(CrossesItself("chain arc 0,0 r2 from 0 sweep pi | seg -2,0 5,0 | seg 5,0 5,5"));
    EXPECT_TRUE(CrossesItself("chain arc 0,0 r2 from 0 sweep pi | seg -2,0 3,0 | seg 3,0 2,0"));
    EXPECT_TRUE(CrossesItself("chain mline 0,0 1,1 2,-1 3,1 4,0 | seg 4,0 0,0")) << "more than twice";
}

TEST(QnGeMCurve2d_IsSelfCross, KeptOddAMeetingOfNeighboursNeedNotBeTheirJoint) {
    EXPECT_FALSE(CrossesItself("chain seg 0,0 4,0 | seg 2,-1 2,1"));
    EXPECT_TRUE(CrossesItself("chain seg 0,0 4,0 | seg 9,9 8,9 | seg 2,-1 2,1"));
}
