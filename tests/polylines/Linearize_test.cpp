// SPDX-License-Identifier: Apache-2.0
// Chords for arcs, copies, and points by distance.

#include <gtest/gtest.h>

#include <memory>

#include "PolylineTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "frame/QnPushVar.h"
#include "polylines/QnGePolyline2d.h"

using namespace polyline_testing;

namespace {

using LineOwner = std::unique_ptr<QnGeMLine2d>;

long ChordsOf(double bulge, double prec) {
    QnGePolyline2d line = Bulged("0,0 4,0");
    line.SetBulge(0, bulge);
    const LineOwner chords(line.MLinearize(prec));
    return chords->GetSegNum();
}

}  // namespace

TEST(Linearize, AMultiLineIsCopied) {
    const QnGeMLine2d line = Straight("0,0,1 4,0,2 4,4,3 close");
    for (const double prec : {0.0, 0.1, -1.0, 100.0}) {
        const LineOwner chords(line.MLinearize(prec));
        EXPECT_EQ(chords->GetCI(), &QnGeMLine2d::s_classInfo);
        EXPECT_TRUE(HasExactly(*chords, "0,0,1 4,0,2 4,4,3 close"));
        const LineOwner exact(line.PLinearize(prec));
        EXPECT_TRUE(HasExactly(*exact, "0,0,1 4,0,2 4,4,3 close"));
    }
    const LineOwner nothing(QnGeMLine2d().MLinearize(0.0));
    EXPECT_EQ(nothing->GetVertexNum(), 0);
}

TEST(Linearize, APolylineIsItsOwnExactForm) {
    QnGePolyline2d line = Bulged("0,0@1 4,0@-2 4,4@0.5 close");
    line.SetBulge(1, 1e-7);
    const LineOwner exact(line.PLinearize(0.3));
    ASSERT_EQ(exact->GetCI(), &QnGePolyline2d::s_classInfo);
    EXPECT_EQ(Record(*exact), Record(line));
}

TEST(Linearize, TinyBulgesAreKeptInTheExactFormAndAreChordsOtherwise) {
    QnGePolyline2d line = Bulged("0,0 4,0 4,4");
    line.SetBulge(0, g_angleZero);
    line.SetBulge(1, -g_angleZero / 2.0);
    EXPECT_TRUE(line.IsMLinear());
    const LineOwner exact(line.PLinearize(0.0));
    EXPECT_EQ(static_cast<const QnGePolyline2d&>(*exact).GetBulge(0), g_angleZero);
    const LineOwner chords(line.MLinearize(0.0));
    EXPECT_TRUE(HasExactly(*chords, "0,0 4,0 4,4"));
}

TEST(Linearize, TheStepOfAnArcIsAnAngle) {
    EXPECT_EQ(ChordsOf(PI, 1.0), 4);
    EXPECT_EQ(ChordsOf(-PI, 1.0), 4);
    EXPECT_EQ(ChordsOf(PI, PI), 1);
    EXPECT_EQ(ChordsOf(PI, PI / 2.0), 2);
    EXPECT_EQ(ChordsOf(PI, 10.0), 1);
    EXPECT_EQ(ChordsOf(1.0, 0.25), 4);
    EXPECT_EQ(ChordsOf(1.0, 0.249), 5);
    EXPECT_EQ(ChordsOf(1.0, 0.2500001), 4);
    EXPECT_EQ(ChordsOf(0.001, 0.1), 1);
    EXPECT_EQ(ChordsOf(1e-4, 1e3), 1);  // rounds to no piece at all, which leaves the chord
}

TEST(Linearize, WithoutAStepTheOneOfCirclesCounts) {
    EXPECT_EQ(ChordsOf(PI, 0.0), 32);
    EXPECT_EQ(ChordsOf(PI, -5.0), 32);
    EXPECT_EQ(ChordsOf(PI, 9e-10), 32);
    EXPECT_EQ(ChordsOf(1.0, 0.0), 10);
    const QnPushVar<double> step(QnGeCircle2d::s_dMLinePreci, 0.5);
    EXPECT_EQ(ChordsOf(PI, 0.0), 7);
    EXPECT_EQ(ChordsOf(PI, 1.0), 4);
}

TEST(Linearize, ChordsHaveTheirVerticesOnTheArc) {
    const QnGePolyline2d line = Bulged("2,0,7@pi -2,0,9 -4,0,5");
    const LineOwner chords(line.MLinearize(PI / 4.0));
    ASSERT_EQ(chords->GetCI(), &QnGeMLine2d::s_classInfo);
    const double r = std::sqrt(2.0);
    ASSERT_EQ(chords->GetVertexNum(), 6);
    EXPECT_TRUE(IsNear(chords->GetVertex(0), QnGePoint(2.0, 0.0, 7.0)));
    EXPECT_TRUE(IsNear(chords->GetVertex(1), QnGePoint(r, r, 7.0)));  // the arc's own height, that of its start
    EXPECT_TRUE(IsNear(chords->GetVertex(2), QnGePoint(0.0, 2.0, 7.0)));
    EXPECT_TRUE(IsNear(chords->GetVertex(3), QnGePoint(-r, r, 7.0)));
    EXPECT_TRUE(IsNear(chords->GetVertex(4), QnGePoint(-2.0, 0.0, 9.0)));
    EXPECT_TRUE(IsNear(chords->GetVertex(5), QnGePoint(-4.0, 0.0, 5.0)));
}

TEST(Linearize, ClosedPolylinesKeepTheFlagAndRepeatNoVertex) {
    const LineOwner circle(Bulged("2,0@pi -2,0@pi close").MLinearize(PI / 2.0));
    ExpectGeo(circle.get(), "mline 2,0 0,2 -2,0 0,-2 close");
    const LineOwner mixed(Bulged("0,0 4,0@pi 4,4 0,4 close").MLinearize(PI / 2.0));
    ExpectGeo(mixed.get(), "mline 0,0 4,0 6,2 4,4 0,4 close");
    const LineOwner clockwise(Bulged("0,0 4,0@-pi 4,4 0,4 close").MLinearize(PI / 2.0));
    ExpectGeo(clockwise.get(), "mline 0,0 4,0 2,2 4,4 0,4 close");
    const LineOwner open(Bulged("0,0@pi 4,0").MLinearize(PI / 2.0));
    ExpectGeo(open.get(), "mline 0,0 2,-2 4,0");
}

TEST(Linearize, OfPolylinesWithoutASegment) {
    const LineOwner nothing(QnGePolyline2d().MLinearize(0.0));
    EXPECT_EQ(nothing->GetVertexNum(), 0);
    const LineOwner one(Bulged("3,4,5").MLinearize(0.0));
    EXPECT_TRUE(HasExactly(*one, "3,4,5"));
}

TEST(Linearize, ByDistanceEverySegmentStartsAnew) {
    const QnGeMLine2d line = Straight("0,0 1,0 1,1");
    const LineOwner pieces(line.MLinearizeByDist(0.3, false));
    ExpectGeo(pieces.get(), "mline 0,0 0.3,0 0.6,0 0.9,0 1,0 1,0.3 1,0.6 1,0.9 1,1");
    const LineOwner exact(line.MLinearizeByDist(0.5, false));
    ExpectGeo(exact.get(), "mline 0,0 0.5,0 1,0 1,0.5 1,1");
    const LineOwner coarse(line.MLinearizeByDist(7.0, false));
    ExpectGeo(coarse.get(), "mline 0,0 1,0 1,1");
}

TEST(Linearize, ByDistanceUprightSegmentsMayBeLeftWhole) {
    const QnGeMLine2d line = Straight("0,0 1,0 1,1 0,1 close");
    const LineOwner pieces(line.MLinearizeByDist(0.5, true));
    ExpectGeo(pieces.get(), "mline 0,0 0.5,0 1,0 1,1 0.5,1 0,1 close");
    const LineOwner all(line.MLinearizeByDist(0.5, false));
    ExpectGeo(all.get(), "mline 0,0 0.5,0 1,0 1,0.5 1,1 0.5,1 0,1 0,0.5 close");
}

TEST(Linearize, ByDistanceOnArcsTheStepRunsAlongThem) {
    const QnGePolyline2d line = Bulged("2,0@pi -2,0 -4,0");
    const LineOwner pieces(line.MLinearizeByDist(PI, false));
    ExpectGeo(pieces.get(), "mline 2,0 0,2 -2,0 -4,0", 1e-6);
    const LineOwner circle(Bulged("2,0@pi -2,0@pi close").MLinearizeByDist(PI, false));
    ExpectGeo(circle.get(), "mline 2,0 0,2 -2,0 0,-2 close", 1e-6);
}

TEST(Linearize, ByDistanceWithoutASegment) {
    const LineOwner one(Straight("3,4").MLinearizeByDist(1.0, false));
    EXPECT_TRUE(HasExactly(*one, "3,4"));
}

TEST(Linearize, ByDistanceASegmentWithoutALinearFormContributesNothing) {
    const double far = 1e200;  // the square of its length is no number
    QnGeMLine2d line = Straight("0,0 1,0 1,1 2,1");
    line.SetVertex(2, QnGePoint(far, 0.0));
    const LineOwner pieces(line.MLinearizeByDist(0.5, false));
    ASSERT_EQ(pieces->GetVertexNum(), 3);
    EXPECT_TRUE(HasExactly(*pieces, "0,0 0.5,0 2,1"));
}

TEST(Linearize, ChordsApproachTheLength) {
    for (int i = 0; i < 300; ++i) {
        const unsigned seed = CaseSeed(60, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RandomPolyline(random, random.Int(2, 8), random.Coin(), 0.6);
        const LineOwner chords(line.MLinearize(0.01));
        ASSERT_EQ(chords->IsClosed(), line.IsClosed());
        const double length = line.Length();
        ASSERT_LE(chords->Length(), length * (1.0 + 1e-9)) << "seed " << seed << '\n' << Text(line);
        ASSERT_NEAR(chords->Length(), length, 1e-4 * length) << "seed " << seed << '\n' << Text(line);
        for (long k = 0; k < chords->GetVertexNum(); k += 7) {
            ASSERT_TRUE(line.HitTest(chords->GetVertex(k)).HasBit(HIT_ON)) << "seed " << seed << '\n' << Text(line);
        }
    }
}
