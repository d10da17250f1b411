// SPDX-License-Identifier: Apache-2.0
// The inside of a closed curve step by step: crossings, parameters and integrals are set, so that each branch is met.
#include <gtest/gtest.h>

#include <string>

#include "CurveTesting.h"
#include "support/ExpectGeo.h"

using namespace curve_testing;

namespace {

/// A stretch of which nothing is known but its integral.
class StretchCurve : public BareCurve {
public:
    explicit StretchCurve(double integral) : m_integral(integral) {}
    double Integration(double, double) const override { return m_integral; }

private:
    double m_integral;
};

/// A closed curve that meets every line in `hits`, has the height of a point for its parameter, and notes between which
/// parameters its stretch was asked for.
class StagedCurve : public QnGeCurve2d {
public:
    StagedCurve(const char* hits, double whole, double stretch) : m_hits(hits), m_whole(whole), m_stretch(stretch) {}

    double highest = 1e300;  ///< above this no point has a parameter
    mutable double from = UNTOUCHED;
    mutable double to = UNTOUCHED;

    bool IsClosed() const override { return true; }
    bool IntersectWith(const QnGeObject&, QnGeObjList& out) const override {
        ParseGeoList(m_hits, out);
        return !out.IsEmpty();
    }
    bool GetPaFromPt(const QnGePoint& pt, double& pa) const override {
        if (pt.y > highest) {
            return false;
        }
        pa = pt.y;
        return true;
    }
    double Integration(double, double) const override { return m_whole; }
    using QnGeCurve2d::GetSubCurve;
    QnGeCurve2d* GetSubCurve(double pa1, double pa2) const override {
        from = pa1;
        to = pa2;
        return new StretchCurve(m_stretch);
    }

private:
    const char* m_hits;
    double m_whole;
    double m_stretch;
};

/// The answer for the point (0,10).
std::uint32_t AnswerOf(const StagedCurve& curve) {
    return Bits(curve.HitTest(QnGePoint(0.0, 10.0)));
}

/// The two loops of a crossing below and one above the point.
std::uint32_t AnswerOfLoops(double stretch, double rest) {
    return AnswerOf(StagedCurve("point 0,8; point 0,13", stretch + rest, stretch));
}

void ExpectChord(const char* hits, double from, double to) {
    const StagedCurve curve(hits, -5.0, -2.0);
    EXPECT_EQ(AnswerOf(curve), HIT_IN) << hits;
    EXPECT_DOUBLE_EQ(curve.from, from) << hits;
    EXPECT_DOUBLE_EQ(curve.to, to) << hits;
}

void ExpectNoChord(const char* hits, std::uint32_t answer) {
    const StagedCurve curve(hits, -5.0, -2.0);
    EXPECT_EQ(AnswerOf(curve), answer) << hits;
    EXPECT_EQ(curve.from, UNTOUCHED) << "no stretch is asked for: " << hits;
}

}  // namespace

TEST(ChordRule, BothLoopsTurnTheSameWayInside) {
    EXPECT_EQ(AnswerOfLoops(-2.0, -3.0), HIT_IN);
    EXPECT_EQ(AnswerOfLoops(2.0, 3.0), HIT_IN);
    EXPECT_EQ(AnswerOfLoops(-2.0, 3.0), HIT_OUT);
    EXPECT_EQ(AnswerOfLoops(2.0, -3.0), HIT_OUT);
    EXPECT_EQ(AnswerOfLoops(-2.0, -1e-12), HIT_IN) << "the signs are exact";
}

TEST(ChordRule, ALoopWithoutAreaIsOutside) {
    EXPECT_EQ(AnswerOfLoops(0.0, -3.0), HIT_OUT);
    EXPECT_EQ(AnswerOfLoops(0.0, 3.0), HIT_OUT);
    EXPECT_EQ(AnswerOfLoops(-2.0, 0.0), HIT_OUT);
    EXPECT_EQ(AnswerOfLoops(2.0, 0.0), HIT_OUT);
}

TEST(ChordRule, TheChordReachesFromTheNextCrossingBelowToTheNextAbove) {
    ExpectChord("point 0,8; point 0,13", 8.0, 13.0);
    ExpectChord("point 0,13; point 0,8", 8.0, 13.0);
    ExpectChord("point 0,40; point 0,11; point 0,-3; point 0,9; point 0,20", 9.0, 11.0);
    ExpectChord("point 0,8; point 0,8; point 0,13; point 0,13", 8.0, 13.0);
    ExpectChord("point 3,8; point 5,13", 8.0, 13.0);
}

TEST(ChordRule, AnOverlapCountsByItsSamplePoint) {
    ExpectChord("seg 0,2 0,4; seg 0,12 0,16", 3.0, 14.0);
    ExpectChord("seg 0,2 0,4; point 0,13; circle 0,30 r0", 3.0, 13.0);
}

TEST(ChordRule, ACrossingAtTheVeryHeightCountsAsBelow) {
    // Beside the point, so that the crossing itself is not hit.
    ExpectChord("point 1,10; point 0,13", 10.0, 13.0);
    ExpectNoChord("point 0,8; point 1,10", HIT_OUT);
}

TEST(ChordRule, CrossingsOnOneSideOnlyAreOutside) {
    ExpectNoChord("", HIT_OUT);
    ExpectNoChord("point 0,11; point 0,13", HIT_OUT);
    ExpectNoChord("point 0,8; point 0,9", HIT_OUT);
    ExpectNoChord("point 0,11", HIT_OUT);
    ExpectNoChord("point 0,8", HIT_OUT);
}

TEST(ChordRule, ACrossingThatHasThePointSettlesIt) {
    ExpectNoChord("point 0,10", HIT_ON);
    ExpectNoChord("point 0,8; point 0,13; point 0,10.0000009", HIT_ON);
    ExpectNoChord("point 0,8; seg 0,9 0,12", HIT_ON);
    ExpectChord("point 0,8; point 0,10.0000011", 8.0, 10.0000011);
}

TEST(ChordRule, ACrossingWithoutParameterCountsAsZero) {
    StagedCurve curve("point 0,8; point 0,13", -5.0, -2.0);
    curve.highest = 9.0;
    EXPECT_EQ(AnswerOf(curve), HIT_IN);
    EXPECT_DOUBLE_EQ(curve.from, 8.0);
    EXPECT_EQ(curve.to, 0.0);
}

TEST(ChordRule, TheHeightOfThePointInSpacePlaysNoPart) {
    const StagedCurve curve("point 0,8; point 0,13", -5.0, -2.0);
    EXPECT_EQ(Bits(curve.HitTest(QnGePoint(0.0, 10.0, 77.0))), HIT_IN);
}
