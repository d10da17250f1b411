// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <utility>

#include "ChainTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeSpline2d.h"
#include "frame/DynCreateGeObject.h"
#include "support/StreamBytes.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePointList.h"

using namespace chain_testing;

namespace {

bool Includes(const char* chain, const char* other) {
    return ChainOf(chain).IsInclude(*ParseGeo(other));
}

std::string ClosestTo(const char* chain, const QnGePoint& pt) {
    QnGePointList points;
    EXPECT_TRUE(ChainOf(chain).GetClosestPoint2d(pt, points));
    return points.GetLength() == 1 ? PointToText(points.GetAt(0)) : std::to_string(points.GetLength()) + " points";
}

}  // namespace

// ---- making ------------------------------------------------------------------------------------------

TEST(QnGeMCurve2d, MadeEmptyOrOfOneClone) {
    EXPECT_EQ(QnGeMCurve2d().GetSegNum(), 0);
    auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0 4,0");
    const QnGeMCurve2d chain(*seg);
    EXPECT_NE(chain.GetPData(0), seg.get());
    seg.reset();
    ExpectGeo(chain, "chain seg 0,0 4,0");
    EXPECT_EQ(QnGeMCurve2d(QnGeSpline2d()).GetSegNum(), 0) << "no clone, no child";
}

TEST(QnGeMCurve2d, CopiesCloneTheChildren) {
    QnGeMCurve2d chain = ChainOf(TWO_SEGS);
    chain.SetBit(0x400);
    chain.Append(new QnGeSpline2d());
    const QnGeMCurve2d copy(chain);
    QnGeMCurve2d assigned = ChainOf("chain seg 7,7 8,8");
    assigned = chain;
    const std::unique_ptr<QnGeObject> clone(chain.Clone());
    for (const QnGeObject* twin : {static_cast<const QnGeObject*>(&copy), static_cast<const QnGeObject*>(&assigned),
                                   static_cast<const QnGeObject*>(clone.get())}) {
        ASSERT_EQ(twin->GetCI(), &QnGeMCurve2d::s_classInfo);
        ExpectGeo(*twin, TWO_SEGS, 0.0);
        EXPECT_EQ(twin->GetBits(), 0x400U);
        EXPECT_NE(static_cast<const QnGeMCurve2d*>(twin)->GetPData(0), chain.GetPData(0));
    }
}

TEST(QnGeMCurve2d, AssignmentToItselfChangesNothing) {
    QnGeMCurve2d chain = ChainOf(TWO_SEGS);
    QnGeMCurve2d& same = chain;
    chain = same;
    ExpectGeo(chain, TWO_SEGS, 0.0);
    chain = QnGeMCurve2d();
    EXPECT_EQ(chain.GetSegNum(), 0);
}

TEST(QnGeMCurve2d, ClassNumberMakesAnEmptyChain) {
    const std::unique_ptr<QnGeObject> made(DynCreateGeObject(118));
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetCI(), &QnGeMCurve2d::s_classInfo);
    EXPECT_EQ(made->GetClassID(), 118);
}

TEST(QnGeMCurve2d, KeptOddCopyFromRefusesEverything) {
    QnGeMCurve2d chain = ChainOf(TWO_SEGS);
    for (const char* text : {TWO_SEGS, "seg 0,0 4,0", "mline 0,0 4,0"}) {
        EXPECT_FALSE(chain.CopyFrom(ParseGeo(text).get())) << text;
    }
    ExpectGeo(chain, TWO_SEGS, 0.0);
}

// ---- validity, ends ----------------------------------------------------------------------------------

TEST(QnGeMCurve2d, IsValidNeedsValidConnectedChildren) {
    EXPECT_TRUE(ChainOf(TWO_SEGS).IsValid());
    EXPECT_TRUE(ChainOf(SQUARE).IsValid());
    EXPECT_TRUE(ChainOf(WITH_RAYS).IsValid());
    EXPECT_TRUE(ChainOf("chain seg 0,0 4,0 | seg 4.0000009,0 4,4").IsValid());
    EXPECT_FALSE(ChainOf("chain seg 0,0 4,0 | seg 4.0000011,0 4,4").IsValid());
    EXPECT_FALSE(ChainOf("chain seg 0,0 4,0 | seg 4,4 4,0").IsValid());
    EXPECT_FALSE(ChainOf("chain seg 0,0 4,0 | seg 4,0 4,0").IsValid());
    EXPECT_FALSE(QnGeMCurve2d().IsValid());
    QnGeMCurve2d withNull = ChainOf(TWO_SEGS);
    withNull.Append(nullptr);
    EXPECT_FALSE(withNull.IsValid());
    QnGeMCurve2d nullFirst;
    nullFirst.Append(nullptr);
    EXPECT_FALSE(nullFirst.IsValid());
}

TEST(QnGeMCurve2d, FiniteAsTheOuterChildrenAre) {
    EXPECT_TRUE(ChainOf(TWO_SEGS).IsFinite(true));
    EXPECT_TRUE(ChainOf(TWO_SEGS).IsFinite(false));
    EXPECT_FALSE(ChainOf(WITH_RAYS).IsFinite(true));
    EXPECT_FALSE(ChainOf(WITH_RAYS).IsFinite(false));
    EXPECT_TRUE(ChainOf(WITH_RAYS).IsInfinite());
    EXPECT_TRUE(ChainOf("chain seg 0,0 4,0 | ray 4,0 1,0").IsFinite(true));
    EXPECT_FALSE(ChainOf("chain seg 0,0 4,0 | ray 4,0 1,0").IsFinite(false));
    EXPECT_FALSE(ChainOf("chain seg 0,0 4,0 | ray 4,0 1,0").IsFinite());
    EXPECT_TRUE(ChainOf("chain circle 0,0 r2").IsFinite()) << "closed, though without ends";
}

TEST(QnGeMCurve2d, ClosedWhereItsEndsCoincideOrItsOnlyChildIs) {
    EXPECT_TRUE(ChainOf(SQUARE).IsClosed());
    EXPECT_EQ(ChainOf(SQUARE).GetPeriod(), 1.0);
    EXPECT_FALSE(ChainOf(TWO_SEGS).IsClosed());
    EXPECT_EQ(ChainOf(TWO_SEGS).GetPeriod(), 0.0);
    EXPECT_TRUE(ChainOf("chain seg 0,0 4,0 | seg 4,0 0,0.0000009").IsClosed());
    EXPECT_FALSE(ChainOf("chain seg 0,0 4,0 | seg 4,0 0,0.0000011").IsClosed());
    EXPECT_TRUE(ChainOf("chain circle 0,0 r2").IsClosed());
    EXPECT_TRUE(ChainOf("chain arc 0,0 r2 from 0 sweep 2pi").IsClosed());
    EXPECT_TRUE(ChainOf("chain mline 0,0 4,0 4,4 close").IsClosed());
    EXPECT_FALSE(ChainOf("chain line 0,0 1,0").IsClosed());
    EXPECT_FALSE(ChainOf(WITH_RAYS).IsClosed());
    EXPECT_FALSE(ChainOf("chain ray 0,0 1,0").IsClosed());
    EXPECT_FALSE(ChainOf("chain circle 0,0 r2 | circle 0,0 r2").IsClosed()) << "two children without ends";
}

TEST(QnGeMCurve2d, EndsAreThoseOfTheOuterChildren) {
    QnGePoint pt;
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetStartPoint(pt));
    ExpectPoint(pt, "0,0");
    EXPECT_TRUE(ChainOf(TWO_SEGS).GetEndPoint(pt));
    ExpectPoint(pt, "11,0");
    EXPECT_FALSE(ChainOf(WITH_RAYS).GetStartPoint(pt));
    EXPECT_FALSE(ChainOf(WITH_RAYS).GetEndPoint(pt));
    EXPECT_FALSE(ChainOf("chain circle 5,0 r2").GetStartPoint(pt));
    ExpectPoint(pt, "7,0");
}

// ---- what runs through the children ------------------------------------------------------------------

TEST(QnGeMCurve2d, ExplodeAppendsClonesInOrder) {
    const QnGeMCurve2d chain = ChainOf(TWO_SEGS);
    QnGeObjList parts;
    ParseGeoList("point 9,9", parts);
    EXPECT_TRUE(chain.Explode(parts));
    ExpectGeoList(parts, "point 9,9; seg 0,0 10,0; seg 10,0 11,0", 0.0);
    EXPECT_NE(static_cast<QnGeObject*>(parts.GetPData(1)), static_cast<QnGeObject*>(chain.GetPData(0)));
}

TEST(QnGeMCurve2d, SampleAndElevationAreTheFirstChilds) {
    QnGeMCurve2d chain = ChainOf("chain seg 0,0,3 10,0,3 | seg 10,0,7 11,0,7");
    ExpectPoint(chain.GetSamplePoint(), "5,0,3");
    EXPECT_EQ(chain.GetElevation(), 3.0);
    chain.SetElevation(5.0);
    ExpectGeo(chain, "chain seg 0,0,5 10,0,5 | seg 10,0,5 11,0,5", 0.0);
    ExpectPoint(ChainOf("chain mline 0,0 4,0 4,4 | seg 4,4 0,4").GetSamplePoint(), "2,0");
}

TEST(QnGeMCurve2d, TransformMovesEveryChild) {
    QnGeMCurve2d chain = ChainOf(LINE_ARC_LINE);
    chain.Move(1.0, 2.0);
    ExpectGeo(chain, "chain seg 1,2 5,2 | arc 5,4 r2 from 3pi/2 sweep pi | seg 5,6 1,6");
    QnGeMatrix mirror;
    mirror.CreateMirrorMatrix(QnGeBaseLine2d(QnGeVector2d(1, 0), QnGePoint(0, 0)));
    QnGeMCurve2d mirrored = ChainOf("chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi");
    mirrored.TransformBy(mirror);
    EXPECT_TRUE(mirrored.IsValid());
    QnGePoint middle;
    mirrored.GetPtFromPa(0.75, middle);
    ExpectPoint(middle, "6,-2");
}

TEST(QnGeMCurve2d, ReverseTurnsOrderAndChildren) {
    QnGeMCurve2d chain = ChainOf(LINE_ARC_LINE);
    chain.Reverse();
    ExpectGeo(chain, "chain seg 0,4 4,4 | arc 4,2 r2 from 3pi/2 sweep pi cw | seg 4,0 0,0");
    EXPECT_EQ(chain.GetCurPData(), chain.GetPData(0)) << "the cursor is on the first child";
    QnGePoint start;
    QnGePoint end;
    EXPECT_TRUE(chain.GetStartPoint(start));
    EXPECT_TRUE(chain.GetEndPoint(end));
    ExpectPoint(start, "0,4");
    ExpectPoint(end, "0,0");
    chain.Reverse();
    ExpectGeo(chain, LINE_ARC_LINE);
}

TEST(QnGeMCurve2d, ReverseOfRays) {
    QnGeMCurve2d chain = ChainOf("chain seg 0,0 4,0 | ray 4,0 1,0");
    chain.Reverse();
    ExpectGeo(chain, "chain ray reversed 4,0 1,0 | seg 4,0 0,0");
    EXPECT_TRUE(chain.IsValid());
}

TEST(QnGeMCurve2d, MeasuresAddUp) {
    EXPECT_DOUBLE_EQ(ChainOf(TWO_SEGS).Length(), 11.0);
    EXPECT_NEAR(ChainOf(LINE_ARC_LINE).Length(), 8.0 + 2.0 * EXACT_PI, 1e-12);
    EXPECT_EQ(ChainOf(TWO_SEGS).Area(), 0.0);
    EXPECT_DOUBLE_EQ(ChainOf(SQUARE).Area(), 16.0);
    EXPECT_FALSE(ChainOf(SQUARE).IsClockwise());
    EXPECT_NEAR(ChainOf(STADIUM).Area(), 16.0 + 4.0 * EXACT_PI, 1e-9);
    QnGeMCurve2d turned = ChainOf(STADIUM);
    turned.Reverse();
    EXPECT_TRUE(turned.IsClockwise());
    EXPECT_NEAR(turned.Area(), 16.0 + 4.0 * EXACT_PI, 1e-9);
    EXPECT_TRUE(ChainOf(SQUARE).IsMLinear());
    EXPECT_FALSE(ChainOf(STADIUM).IsMLinear());
}

TEST(QnGeMCurve2d, ExtentAndClosestPointAreThoseOfTheChildren) {
    QnGeExtent2d box;
    EXPECT_TRUE(ChainOf(STADIUM).GetExtent2d(box));
    EXPECT_NEAR(box.x.min, -2.0, 1e-12);
    EXPECT_NEAR(box.x.max, 6.0, 1e-12);
    EXPECT_NEAR(box.y.min, 0.0, 1e-12);
    EXPECT_NEAR(box.y.max, 4.0, 1e-12);
    EXPECT_EQ(ClosestTo(TWO_SEGS, QnGePoint(10.5, 3)), "10.5,0");
    EXPECT_EQ(ClosestTo(TWO_SEGS, QnGePoint(10, 3)), "10,0") << "once, though both children have it";
    EXPECT_EQ(ClosestTo(SQUARE, QnGePoint(2, 2)), "4 points");
}

TEST(QnGeMCurve2d, MeetsOthersChildByChild) {
    ExpectIntersect(TWO_SEGS, "line 10.5,0 0,1", "point 10.5,0");
    ExpectIntersect(TWO_SEGS, "line 10,0 0,1", "point 10,0; point 10,0");
    ExpectIntersect("seg 10,-1 10,1", TWO_SEGS, "point 10,0; point 10,0");
    ExpectIntersect(SQUARE, "line 2,0 0,1", "point 2,0; point 2,4");
    ExpectIntersect(TWO_SEGS, "seg 9,0 20,0", "seg 9,0 10,0; seg 10,0 11,0");
    ExpectIntersect("chain seg 0,0 4,0 | seg 4,0 4,4", "chain seg 1,1 1,-1 | seg 1,-1 3,1", "point 1,0; point 2,0");
    ExpectIntersect("chain seg 0,0 4,0", "chain seg 3,0 1,0", "seg 3,0 1,0");
    ExpectNoIntersect(TWO_SEGS, "seg 12,-1 12,1");
}

TEST(QnGeMCurve2d, HitTestIsTheCurvesDefault) {
    EXPECT_EQ(HitBits(TWO_SEGS, 10, 0), HIT_ON);
    EXPECT_EQ(HitBits(TWO_SEGS, 5, 0), HIT_ON);
    EXPECT_EQ(HitBits(TWO_SEGS, 5, 1), 0U) << "an open chain has no sides";
    EXPECT_EQ(HitBits(STADIUM, 2, 2), HIT_IN);
    EXPECT_EQ(HitBits(STADIUM, 5.5, 2), HIT_IN);
    EXPECT_EQ(HitBits(STADIUM, 6.5, 2), HIT_OUT);
    EXPECT_EQ(HitBits(STADIUM, 6, 2), HIT_ON);
    EXPECT_EQ(HitBits("chain circle 0,0 r2", 5, 5), HIT_OUT);
}

TEST(QnGeMCurve2d, IncludesSegmentsAcrossChildren) {
    EXPECT_TRUE(Includes(TWO_SEGS, "seg 2,0 3,0"));
    EXPECT_TRUE(Includes(TWO_SEGS, "seg 9,0 10.5,0"));
    EXPECT_TRUE(Includes(TWO_SEGS, "seg 11,0 0,0")) << "whatever the direction";
    EXPECT_FALSE(Includes(TWO_SEGS, "seg 9,0 12,0"));
    EXPECT_FALSE(Includes(TWO_SEGS, "seg 9,0 9,1"));
    EXPECT_FALSE(Includes("chain seg 0,0 4,0 | seg 5,0 9,0", "seg 3,0 6,0"));
    EXPECT_TRUE(Includes("chain mline 0,0 4,0 8,0 | seg 8,0 8,8", "seg 1,0 7,0")) << "children are taken apart";
}

TEST(QnGeMCurve2d, NeverIncludesLinesRaysCirclesAndArcs) {
    EXPECT_FALSE(Includes("chain line 0,0 1,0", "line 0,0 1,0"));
    EXPECT_FALSE(Includes("chain ray 0,0 1,0", "ray 0,0 1,0"));
    EXPECT_FALSE(Includes("chain circle 0,0 r2", "circle 0,0 r2"));
    EXPECT_FALSE(Includes("chain arc 0,0 r2 from 0 sweep 1", "arc 0,0 r2 from 0 sweep 1"));
}

TEST(QnGeMCurve2d, IncludesOtherObjectsByTheirPieces) {
    EXPECT_TRUE(Includes(TWO_SEGS, "point 10,0"));
    EXPECT_FALSE(Includes(TWO_SEGS, "point 10,1"));
    EXPECT_TRUE(Includes(TWO_SEGS, "mline 2,0 5,0 10.5,0"));
    EXPECT_FALSE(Includes(TWO_SEGS, "mline 2,0 5,0 5,1"));
    EXPECT_TRUE(Includes(SQUARE, "chain seg 4,0 4,4 | seg 4,4 0,4"));
    EXPECT_FALSE(Includes(SQUARE, "region 0,0 4,0 4,4 0,4"));
    EXPECT_FALSE(Includes(LINE_ARC_LINE, LINE_ARC_LINE)) << "the arc is none of its own";
}

TEST(QnGeMCurve2d, ExtensionIsTheChainBetweenTwoRays) {
    const std::unique_ptr<QnGeCurve2d> open(ChainOf(TWO_SEGS).GetExtendCurve());
    ExpectGeo(open.get(), "chain ray reversed 0,0 -1,0 | chain seg 0,0 10,0 | seg 10,0 11,0 | ray 11,0 1,0");
    const std::unique_ptr<QnGeCurve2d> half(ChainOf("chain seg 0,0 4,0 | ray 4,0 1,0").GetExtendCurve());
    ExpectGeo(half.get(), "chain ray reversed 0,0 -1,0 | chain seg 0,0 4,0 | ray 4,0 1,0");
    const std::unique_ptr<QnGeCurve2d> closed(ChainOf(SQUARE).GetExtendCurve());
    ExpectGeo(closed.get(), SQUARE);
    const std::unique_ptr<QnGeCurve2d> infinite(ChainOf(WITH_RAYS).GetExtendCurve());
    ExpectGeo(infinite.get(), WITH_RAYS);
    const std::unique_ptr<QnGeCurve2d> bent(ParseGeoAs<QnGeCurve2d>("pline 0,0@pi 2,0")->GetExtendCurve());
    ExpectGeo(bent.get(), "chain ray reversed 0,0 0,1 | pline 0,0@pi 2,0 | ray 2,0 0,1");
}

// ---- stream ------------------------------------------------------------------------------------------

TEST(QnGeMCurve2d, StreamHoldsFlagsCountAndEachChildWithItsClassNumber) {
    QnGeMCurve2d chain = ChainOf("chain seg 1,2 4,6 | circle 5,5 r2 cw");
    chain.SetBit(0x400);
    QnDynArrayStream expected(64, 64);
    expected << 0x400L << 2L << 113L;
    ParseGeo("seg 1,2 4,6")->StreamOut(expected);
    expected << 114L;
    ParseGeo("circle 5,5 r2 cw")->StreamOut(expected);
    EXPECT_EQ(RecordOf(chain), BytesOf(expected));
}

TEST(QnGeMCurve2d, StreamRoundTripReplacesTheChildren) {
    const QnGeMCurve2d chain = ChainOf(STADIUM);
    QnDynArrayStream stream(64, 64);
    chain.StreamOut(stream);
    stream.MoveToFirst();
    QnGeMCurve2d read = ChainOf("chain seg 7,7 8,8");
    read.SetBit(0x800);
    read.StreamIn(stream);
    ExpectGeo(read, STADIUM, 0.0);
    EXPECT_EQ(RecordOf(read), RecordOf(chain));
    QnGeMCurve2d nested;
    nested.Append(new QnGeMCurve2d(chain));
    QnDynArrayStream second(64, 64);
    nested.StreamOut(second);
    second.MoveToFirst();
    QnGeMCurve2d readNested;
    readNested.StreamIn(second);
    EXPECT_EQ(RecordOf(readNested), RecordOf(nested));
}

TEST(QnGeMCurve2d, StreamInKeepsCurvesOnly) {
    QnGeObjList mixed;
    ParseGeoList("point 1,1; seg 0,0 4,0; region 0,0 1,0 1,1; seg 4,0 4,4", mixed);
    QnDynArrayStream stream(64, 64);
    stream << 0L;
    mixed.StreamOut(stream);
    stream.MoveToFirst();
    QnGeMCurve2d chain;
    chain.StreamIn(stream);
    ExpectGeo(chain, "chain seg 0,0 4,0 | seg 4,0 4,4", 0.0);
}

// ---- no children -------------------------------------------------------------------------------------

TEST(QnGeMCurve2d, WithoutChildrenEveryQuestionHasAnAnswer) {
    const QnGeMCurve2d chain;
    QnGePoint pt(UNTOUCHED, UNTOUCHED, UNTOUCHED);
    double value = UNTOUCHED;
    EXPECT_FALSE(chain.IsFinite(true));
    EXPECT_FALSE(chain.IsFinite(false));
    EXPECT_FALSE(chain.IsFinite());
    EXPECT_FALSE(chain.IsClosed());
    EXPECT_FALSE(chain.GetStartPoint(pt));
    EXPECT_FALSE(chain.GetEndPoint(pt));
    EXPECT_EQ(pt.x, UNTOUCHED);
    EXPECT_EQ(chain.GetSegIndexFromPa(value), -1);
    EXPECT_EQ(value, UNTOUCHED);
    for (const double pa : {0.0, 0.5, 1.0}) {
        EXPECT_FALSE(chain.GetPtFromPa(pa, pt));
        EXPECT_FALSE(chain.GetDistFromPa(pa, value));
    }
    EXPECT_FALSE(chain.GetPaFromPt(QnGePoint(0, 0), value));
    EXPECT_FALSE(chain.GetPaFromDist(0.0, value));
    QnGeBaseLine2d tangent(QnGeVector2d(5, 6), QnGePoint(7, 8));
    chain.GetTangent(0.5, tangent);
    EXPECT_EQ(tangent.dx, 5.0);
    EXPECT_EQ(chain.Integration(0.0, 1.0), 0.0);
    EXPECT_EQ(chain.GetSubCurve(0.0, 1.0), nullptr);
    ExpectPoint(chain.GetSamplePoint(), "0,0", 0.0);
    EXPECT_EQ(chain.GetElevation(), 0.0);
    EXPECT_EQ(chain.Length(), 0.0);
    EXPECT_EQ(chain.Area(), 0.0);
    EXPECT_FALSE(chain.IsClockwise());
    EXPECT_FALSE(chain.IsSelfCross());
    EXPECT_EQ(chain.Symplify(), nullptr);
    EXPECT_EQ(chain.MLinearize(0.1), nullptr);
    EXPECT_EQ(chain.PLinearize(0.0), nullptr);
    EXPECT_EQ(chain.HitTest(QnGePoint(0, 0)).GetBits(), 0U);
    EXPECT_EQ(RecordOf(chain).size(), 8U);
    QnGeExtent2d box;
    EXPECT_FALSE(chain.GetExtent2d(box));
    QnGeObjList parts;
    EXPECT_TRUE(chain.Explode(parts));
    EXPECT_FALSE(chain.IntersectWith(*ParseGeo("line 0,0 1,0"), parts));
    EXPECT_TRUE(parts.IsEmpty());
    EXPECT_TRUE(ParseGeo("seg 0,0 1,0")->IsInclude(chain)) << "nothing to be off the segment";
}

TEST(QnGeMCurve2d, WithoutChildrenNothingChanges) {
    QnGeMCurve2d chain;
    chain.Compress();
    chain.Reverse();
    chain.SetElevation(3.0);
    chain.Move(1.0, 1.0);
    EXPECT_TRUE(chain.ConnectSeg(false, false));
    EXPECT_TRUE(chain.ConnectSeg(true, true));
    EXPECT_FALSE(chain.OffsetSeg(0, 1.0));
    EXPECT_EQ(chain.GetSegNum(), 0);
}

// ---- the caller's cursor -----------------------------------------------------------------------------

TEST(QnGeMCurve2d, QuestionsLeaveTheCallersCursorAlone) {
    QnGeMCurve2d chain = ChainOf(STADIUM);
    chain.MoveTo(2);
    const QnGeMCurve2d& asked = chain;
    QnGePoint pt;
    double value = 0.0;
    QnGeBaseLine2d tangent;
    QnGeObjList list;
    QnGePointList points;
    QnGeExtent2d box;
    asked.GetPtFromPa(0.1, pt);
    asked.GetPaFromPt(QnGePoint(6, 2), value);
    asked.GetPaFromDist(15.0, value);
    asked.GetDistFromPa(0.9, value);
    asked.GetTangent(0.9, tangent);
    asked.Integration(0.1, 0.9);
    asked.Length();
    asked.HitTest(QnGePoint(1, 1));
    asked.GetExtent2d(box);
    asked.GetClosestPoint2d(QnGePoint(1, 1), points);
    asked.Explode(list);
    asked.IntersectWith(*ParseGeo("line 2,0 0,1"), list);
    asked.IsInclude(*ParseGeo("seg 1,0 2,0"));
    asked.IsValid();
    asked.IsClosed();
    asked.IsSelfCross();
    RecordOf(asked);
    for (const double first : {0.1, 0.9}) {
        const std::unique_ptr<QnGeCurve2d> piece(asked.GetSubCurve(first, 0.6));
    }
    asked.Split(curve_testing::Pas({0.2, 0.7}), list);
    const std::unique_ptr<QnGeMLine2d> chords(asked.MLinearize(0.1));
    const std::unique_ptr<QnGeMLine2d> exact(asked.PLinearize(0.0));
    const std::unique_ptr<QnGeMLine2d> steps(asked.MLinearizeByDist(1.0, false));
    const std::unique_ptr<QnGeObject> simple(asked.Symplify());
    const std::unique_ptr<QnGeObject> clone(asked.Clone());
    EXPECT_EQ(chain.GetCur(), 2);
    EXPECT_EQ(chain.GetCurPData(), chain.GetPData(2));
    ExpectGeo(chain, STADIUM, 0.0);
}
