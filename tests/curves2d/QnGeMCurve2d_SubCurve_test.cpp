// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>

#include "ChainTesting.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeSpline2d.h"

using namespace chain_testing;

namespace {

void ExpectPiece(const std::string& chain, double pa1, double pa2, const std::string& expected) {
    const std::unique_ptr<QnGeCurve2d> piece(ChainOf(chain).GetSubCurve(pa1, pa2));
    ExpectGeo(piece.get(), expected);
}

void ExpectPieces(const std::string& chain, std::initializer_list<double> pas, const std::string& expected) {
    QnGeObjList pieces;
    ChainOf(chain).Split(curve_testing::Pas(pas), pieces);
    ExpectGeoList(pieces, expected);
}

}  // namespace

// ---- forward -----------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_SubCurve, OverAJointAChainWithinAChildABareCurve) {
    ExpectPiece(TWO_SEGS, 0.25, 0.75, "chain seg 5,0 10,0 | seg 10,0 10.5,0");
    ExpectPiece(TWO_SEGS, 0.1, 0.2, "seg 2,0 4,0");
    ExpectPiece(TWO_SEGS, 0.6, 0.9, "seg 10.2,0 10.8,0");
    ExpectPiece(TWO_SEGS, 0.0, 1.0, TWO_SEGS);
}

TEST(QnGeMCurve2d_SubCurve, WholeChildrenBetweenAreClones) {
    ExpectPiece(LINE_ARC_LINE, 1.0 / 6.0, 5.0 / 6.0,
                "chain seg 2,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi | seg 4,4 2,4");
    ExpectPiece(LINE_ARC_LINE, 0.5, 5.0 / 6.0, "chain arc 4,2 r2 from 0 sweep pi/2 | seg 4,4 2,4");
}

TEST(QnGeMCurve2d_SubCurve, AtAJointNoPieceOfNothing) {
    ExpectPiece(TWO_SEGS, 0.0, 0.5, "seg 0,0 10,0");
    ExpectPiece(TWO_SEGS, 0.5, 1.0, "seg 10,0 11,0");
    ExpectPiece(SQUARE, 0.25, 0.75, "chain seg 4,0 4,4 | seg 4,4 0,4");
    ExpectPiece(TWO_SEGS, 0.5 - 4e-10, 1.0, "seg 10,0 11,0");
    ExpectPiece(TWO_SEGS, 0.0, 0.5 + 4e-10, "seg 0,0 10,0");
}

TEST(QnGeMCurve2d_SubCurve, BeyondTheEndsTheOuterChildrenGoOn) {
    ExpectPiece(WITH_RAYS, -1.0 / 3.0, 4.0 / 3.0, "chain seg -2,0 0,0 | seg 0,0 4,0 | seg 4,0 6,0");
    ExpectPiece(WITH_RAYS, -1.0, -1.0 / 3.0, "seg -4,0 -2,0");
    ExpectPiece(WITH_RAYS, 1.0, 4.0 / 3.0, "seg 5,0 6,0");
    ExpectPiece(TWO_SEGS, 0.5, 2.0, "seg 10,0 13,0");
}

// ---- the whole chain opened --------------------------------------------------------------------------

TEST(QnGeMCurve2d_SubCurve, EqualParametersOpenAClosedChainThere) {
    ExpectPiece(SQUARE, 0.25, 0.25, "chain seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 4,0");
    ExpectPiece(SQUARE, 0.375, 0.375, "chain seg 4,2 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 4,0 | seg 4,0 4,2");
    ExpectPiece(SQUARE, 0.375, 0.375 + 5e-10,
                "chain seg 4,2 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 4,0 | seg 4,0 4,2");
    ExpectPiece(SQUARE, 0.0, 0.0, SQUARE);
    ExpectPiece(SQUARE, 0.0, 1.0, SQUARE);
    ExpectPiece(SQUARE, 1.0, 1.0, SQUARE);
    ExpectPiece(SQUARE, 1.0, 0.0, SQUARE);
}

TEST(QnGeMCurve2d_SubCurve, KeptOddEqualParametersOnAnOpenChainJumpOverItsEnds) {
    ExpectPiece(TWO_SEGS, 0.25, 0.25, "chain seg 5,0 10,0 | seg 10,0 11,0 | seg 0,0 5,0");
    ExpectPiece(TWO_SEGS, 0.0, 0.0, TWO_SEGS);
    ExpectPiece(TWO_SEGS, 1.0, 1.0, TWO_SEGS);
}

// ---- over the end ------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_SubCurve, OverTheClosingJoint) {
    ExpectPiece(SQUARE, 0.75, 0.25, "chain seg 0,4 0,0 | seg 0,0 4,0");
    ExpectPiece(SQUARE, 0.875, 0.375, "chain seg 0,2 0,0 | seg 0,0 4,0 | seg 4,0 4,2");
    ExpectPiece(SQUARE, 0.5, 0.375, "chain seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 4,0 | seg 4,0 4,2");
    ExpectPiece(SQUARE, 0.1875, 0.0625, "chain seg 3,0 4,0 | seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 1,0");
    ExpectPiece(STADIUM, 0.875, 0.125, "chain arc 0,2 r2 from pi sweep pi/2 | seg 0,0 2,0");
}

TEST(QnGeMCurve2d_SubCurve, OneIsZeroOnAClosedChain) {
    ExpectPiece(SQUARE, 0.75, 1.0, "seg 0,4 0,0");
    ExpectPiece(SQUARE, 0.875, 1.0 + 5e-10, "seg 0,2 0,0");
    ExpectPiece(SQUARE, 1.0, 0.25, "seg 0,0 4,0");
    ExpectPiece(SQUARE, 1.0 - 5e-10, 0.375, "chain seg 0,0 4,0 | seg 4,0 4,2");
}

TEST(QnGeMCurve2d_SubCurve, KeptOddAnOpenChainWrapsToo) {
    ExpectPiece(TWO_SEGS, 0.75, 0.25, "chain seg 10.5,0 11,0 | seg 0,0 5,0");
    ExpectPiece(TWO_SEGS, 1.0, 0.25, "seg 0,0 5,0");
    ExpectPiece(TWO_SEGS, 0.75, 0.0, "seg 10.5,0 11,0");
    ExpectPiece(TWO_SEGS, 0.2, 0.1, "chain seg 4,0 10,0 | seg 10,0 11,0 | seg 0,0 2,0");
}

TEST(QnGeMCurve2d_SubCurve, AStretchOfNothingIsAChainWithoutChildren) {
    ExpectPiece(TWO_SEGS, 1.0, 0.0, "chain");
}

// ---- one child, no child -----------------------------------------------------------------------------

TEST(QnGeMCurve2d_SubCurve, ASingleChildGetsTheParametersAsTheyAre) {
    ExpectPiece("chain circle 0,0 r2", 1.0, 2.0, "arc 0,0 r2 from 1 sweep 1");
    ExpectPiece("chain circle 0,0 r2", 1.0, 1.0, "arc 0,0 r2 from 1 sweep 2pi");
    ExpectPiece("chain seg 0,0 4,0", 2.0, 3.0, "seg 8,0 12,0");
    ExpectPiece("chain seg 0,0 4,0", 0.75, 0.25, "seg 3,0 1,0");
    ExpectPiece("chain mline 0,0 4,0 4,4 0,4 close", 0.75, 0.25, "mline 0,4 0,0 4,0");
}

TEST(QnGeMCurve2d_SubCurve, MissingPiecesAreLeftOut) {
    QnGeMCurve2d chain = ChainOf("chain seg 0,0 4,0");
    chain.Append(new QnGeSpline2d());
    chain.Append(ParseGeoAs<QnGeCurve2d>("seg 4,0 4,4").release());
    ExpectGeo(std::unique_ptr<QnGeCurve2d>(chain.GetSubCurve(1.0 / 6.0, 5.0 / 6.0)).get(),
              "chain seg 2,0 4,0 | seg 4,0 4,2");
    ExpectGeo(std::unique_ptr<QnGeCurve2d>(chain.GetSubCurve(0.5, 5.0 / 6.0)).get(), "seg 4,0 4,2");
    ExpectGeo(std::unique_ptr<QnGeCurve2d>(chain.GetSubCurve(0.4, 0.6)).get(), "chain");
}

TEST(QnGeMCurve2d_SubCurve, BetweenTwoPoints) {
    const QnGeMCurve2d chain = ChainOf(TWO_SEGS);
    const std::unique_ptr<QnGeCurve2d> piece(chain.GetSubCurve(QnGePoint(5, 0), QnGePoint(10.5, 0)));
    ExpectGeo(piece.get(), "chain seg 5,0 10,0 | seg 10,0 10.5,0");
}

TEST(QnGeMCurve2d_SubCurve, ChildrenKeepHeightAndFlags) {
    QnGeMCurve2d chain = ChainOf("chain seg 0,0,1 4,0,3 | seg 4,0,3 8,0,3 | seg 8,0,3 9,0,3");
    chain.GetPData(1)->SetBit(0x400);
    const std::unique_ptr<QnGeCurve2d> piece(chain.GetSubCurve(1.0 / 6.0, 5.0 / 6.0));
    ExpectGeo(piece.get(), "chain seg 2,0,2 4,0,3 | seg 4,0,3 8,0,3 | seg 8,0,3 8.5,0,3");
    EXPECT_EQ(static_cast<const QnGeMCurve2d&>(*piece).GetPData(1)->GetBits(), 0x400U);
}

// ---- Split -------------------------------------------------------------------------------------------

TEST(QnGeMCurve2d_Split, AnOpenChainFromEndToEnd) {
    ExpectPieces(TWO_SEGS, {}, "");
    ExpectPieces(TWO_SEGS, {0.25, 0.75}, "seg 0,0 5,0; chain seg 5,0 10,0 | seg 10,0 10.5,0; seg 10.5,0 11,0");
    ExpectPieces(TWO_SEGS, {0.5}, "seg 0,0 10,0; seg 10,0 11,0");
    ExpectPieces(TWO_SEGS, {0.25, 0.25}, "seg 0,0 5,0; chain seg 5,0 10,0 | seg 10,0 11,0");
    ExpectPieces(TWO_SEGS, {0.0, 1.0}, TWO_SEGS);
    ExpectPieces(TWO_SEGS, {0.1, 0.2, 0.3},
                 "seg 0,0 2,0; seg 2,0 4,0; seg 4,0 6,0; chain seg 6,0 10,0 | seg 10,0 11,0");
}

TEST(QnGeMCurve2d_Split, AClosedChainWithThePieceOverTheSeamLast) {
    ExpectPieces(SQUARE, {0.375}, "chain seg 4,2 4,4 | seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 4,0 | seg 4,0 4,2");
    ExpectPieces(SQUARE, {0.25, 0.5}, "seg 4,0 4,4; chain seg 4,4 0,4 | seg 0,4 0,0 | seg 0,0 4,0");
    ExpectPieces(SQUARE, {0.0, 0.5}, "chain seg 0,0 4,0 | seg 4,0 4,4; chain seg 4,4 0,4 | seg 0,4 0,0");
    ExpectPieces(SQUARE, {0.0, 0.5, 1.0}, "chain seg 0,0 4,0 | seg 4,0 4,4; chain seg 4,4 0,4 | seg 0,4 0,0");
    ExpectPieces(SQUARE, {0.125, 0.875},
                 "chain seg 2,0 4,0 | seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,2; "
                 "chain seg 0,2 0,0 | seg 0,0 2,0");
}

TEST(QnGeMCurve2d_Split, KeptOddAChainWithRaysIsCutBetweenZeroAndOneOnly) {
    ExpectPieces(WITH_RAYS, {0.5}, "chain seg -1,0 0,0 | seg 0,0 2,0; chain seg 2,0 4,0 | seg 4,0 5,0");
}

TEST(QnGeMCurve2d_Split, CutsOthersAndIsCut) {
    QnGeObjList in;
    QnGeObjList out;
    QnGeObjList on;
    ParseGeoAs<QnGeCurve2d>("line 5,0 0,1")->Cut(ChainOf(TWO_SEGS), in, out, on);
    ExpectGeoList(in, "seg 0,0 5,0");
    ExpectGeoList(out, "chain seg 5,0 10,0 | seg 10,0 11,0");
    EXPECT_TRUE(on.IsEmpty());
    ChainOf(SQUARE).Cut(*ParseGeo("seg 2,2 8,2"), in, out, on);
    ExpectGeoList(in, "seg 0,0 5,0; seg 2,2 4,2");
    ExpectGeoList(out, "chain seg 5,0 10,0 | seg 10,0 11,0; seg 4,2 8,2");
}
