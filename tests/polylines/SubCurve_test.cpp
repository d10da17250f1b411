// SPDX-License-Identifier: Apache-2.0
// Pieces of multi-lines and polylines between two parameters, and cutting at several.

#include <gtest/gtest.h>

#include <memory>

#include "PolylineTesting.h"
#include "containers/QnDynArray.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"

using namespace polyline_testing;

namespace {

void ExpectSub(const QnGeCurve2d& line, double a, double b, const char* expected) {
    SCOPED_TRACE(Text(line) + " from " + std::to_string(a) + " to " + std::to_string(b));
    const std::unique_ptr<QnGeCurve2d> sub(line.GetSubCurve(a, b));
    ExpectGeo(sub.get(), expected);
}

void ExpectSplit(const QnGeCurve2d& line, std::initializer_list<double> pas, const char* expected) {
    QnDynArray<double> array;
    for (const double pa : pas) {
        array.Append(pa);
    }
    QnGeObjList pieces;
    line.Split(array, pieces);
    ExpectGeoList(pieces, expected);
}

}  // namespace

// ---- multi-lines -----------------------------------------------------------------------------------

TEST(SubCurve, ForwardsOnAMultiLine) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4 0,4 0,0,8");
    ExpectSub(line, 0.0, 1.0, "mline 0,0 4,0 4,4 0,4 0,0,8");
    ExpectSub(line, 0.125, 0.625, "mline 2,0 4,0 4,4 2,4");
    ExpectSub(line, 0.0625, 0.1875, "mline 1,0 3,0");
    ExpectSub(line, 0.25, 0.75, "mline 4,0 4,4 0,4");
    ExpectSub(line, 0.25, 0.375, "mline 4,0 4,2");
    ExpectSub(line, 0.125, 0.25, "mline 2,0 4,0");
    ExpectSub(line, 0.75, 0.875, "mline 0,4 0,2,4");
}

TEST(SubCurve, BackwardsRunsOverTheEndAndOnFromTheStart) {
    const QnGeMLine2d closed = Straight("0,0 4,0 4,4 0,4 close");
    ExpectSub(closed, 0.875, 0.125, "mline 0,2 0,0 2,0");
    ExpectSub(closed, 0.625, 0.375, "mline 2,4 0,4 0,0 4,0 4,2");
    ExpectSub(closed, 0.75, 0.25, "mline 0,4 0,0 4,0");
}

TEST(SubCurve, KeptOddBackwardsOnAnOpenLineJumps) {
    const QnGeMLine2d open = Straight("0,0 1,0 2,0 3,0 4,0");
    ExpectSub(open, 0.75, 0.25, "mline 3,0 4,0 0,0 1,0");
    ExpectSub(open, 0.875, 0.125, "mline 3.5,0 4,0 0,0 0.5,0");
}

TEST(SubCurve, EqualParametersGiveTheWholeTurn) {
    const QnGeMLine2d closed = Straight("0,0 4,0 4,4 0,4 close");
    ExpectSub(closed, 0.0, 1.0, "mline 0,0 4,0 4,4 0,4 0,0");
    ExpectSub(closed, 0.0, 0.0, "mline 0,0 4,0 4,4 0,4 0,0");
    ExpectSub(closed, 1.0, 1.0, "mline 0,0 4,0 4,4 0,4 0,0");
    ExpectSub(closed, 0.375, 0.375, "mline 4,2 4,4 0,4 0,0 4,0 4,2");
    ExpectSub(closed, 0.25, 0.25, "mline 4,0 4,4 0,4 0,0 4,0");
    ExpectSub(closed, 0.5, 0.5 + 5e-10, "mline 4,4 0,4 0,0 4,0 4,4");
}

TEST(SubCurve, OnAClosedLineOneCountsAsZero) {
    const QnGeMLine2d closed = Straight("0,0 4,0 4,4 0,4 close");
    ExpectSub(closed, 0.75, 1.0, "mline 0,4 0,0");
    ExpectSub(closed, 0.75, 1.0 + 5e-10, "mline 0,4 0,0");
    ExpectSub(closed, 1.0, 0.25, "mline 0,0 4,0");
    ExpectSub(Straight("0,0 4,0 4,4"), 0.5, 1.0, "mline 4,0 4,4");
}

TEST(SubCurve, IsOpenAndCarriesNoOtherFlag) {
    const QnGeMLine2d closed = Straight("0,0 4,0 4,4 0,4 close");
    const std::unique_ptr<QnGeCurve2d> sub(closed.GetSubCurve(0.1, 0.2));
    EXPECT_FALSE(sub->IsClosed());
    EXPECT_EQ(sub->GetCI(), &QnGeMLine2d::s_classInfo);
    const QnGePolyline2d bulged = Bulged("2,0@pi -2,0@pi close");
    const std::unique_ptr<QnGeCurve2d> bow(bulged.GetSubCurve(0.1, 0.2));
    EXPECT_FALSE(bow->IsClosed());
    EXPECT_EQ(bow->GetCI(), &QnGePolyline2d::s_classInfo);
}

TEST(SubCurve, OfALineWithoutASegmentIsNull) {
    EXPECT_EQ(QnGeMLine2d().GetSubCurve(0.0, 1.0), nullptr);
    EXPECT_EQ(QnGeMLine2d(0, true).GetSubCurve(0.5, 0.5), nullptr);
    EXPECT_EQ(Straight("1,1").GetSubCurve(0.0, 1.0), nullptr);
    EXPECT_EQ(QnGePolyline2d().GetSubCurve(0.7, 0.2), nullptr);
    EXPECT_EQ(Bulged("1,1 close").GetSubCurve(0.0, 1.0), nullptr);
}

// ---- polylines -------------------------------------------------------------------------------------

TEST(SubCurve, OnOneArcTakesTheShareOfTheBulge) {
    const QnGePolyline2d line = Bulged("2,0@pi -2,0@pi close");
    ExpectSub(line, 0.125, 0.375,
              "pline 1.4142135623730951,1.4142135623730951@pi/2 -1.4142135623730951,1.4142135623730951");
    ExpectSub(line, 0.0, 0.25, "pline 2,0@pi/2 0,2");
    ExpectSub(line, 0.25, 0.5, "pline 0,2@pi/2 -2,0");
    ExpectSub(line, 0.5, 0.75, "pline -2,0@pi/2 0,-2");
}

TEST(SubCurve, OverSeveralArcsEachKeepsItsBulgeAndTheEndsTheirShares) {
    const QnGePolyline2d line = Bulged("0,0@pi 4,0 8,0@-pi 8,4@pi/2 4,8");
    ExpectSub(line, 0.0, 1.0, "pline 0,0@pi 4,0 8,0@-pi 8,4@pi/2 4,8");
    ExpectSub(line, 0.125, 0.625, "pline 2,-2@pi/2 4,0 8,0@-pi/2 6,2");
    ExpectSub(line, 0.25, 0.5, "pline 4,0 8,0");
    ExpectSub(line, 0.375, 0.75, "pline 6,0 8,0@-pi 8,4");
    ExpectSub(line, 0.125, 0.25, "pline 2,-2@pi/2 4,0");
}

TEST(SubCurve, BackwardsOnAPolylineRunsOverTheSeam) {
    const QnGePolyline2d closed = Bulged("2,0@pi -2,0@pi close");
    ExpectSub(closed, 0.75, 0.25, "pline 0,-2@pi/2 2,0@pi/2 0,2");
    ExpectSub(closed, 0.5, 0.25, "pline -2,0@pi 2,0@pi/2 0,2");
    ExpectSub(closed, 0.75, 1.0, "pline 0,-2@pi/2 2,0");
    ExpectSub(closed, 0.25, 0.125, "pline 0,2@pi/2 -2,0@pi 2,0@pi/4 1.4142135623730951,1.4142135623730951");
}

TEST(SubCurve, KeptOddBackwardsOnAnOpenPolylineJumpsWithTheLastBulge) {
    QnGePolyline2d open = Bulged("2,0@pi -2,0 -4,0");
    ExpectSub(open, 0.75, 0.25, "pline -3,0 -4,0 2,0@pi/2 0,2");
    open.SetBulge(2, 1.0);
    ExpectSub(open, 0.75, 0.25, "pline -3,0 -4,0@1 2,0@pi/2 0,2");
}

TEST(SubCurve, TheWholeTurnOfAPolyline) {
    const QnGePolyline2d closed = Bulged("2,0@pi -2,0@pi close");
    ExpectSub(closed, 0.0, 1.0, "pline 2,0@pi -2,0@pi 2,0");
    ExpectSub(closed, 0.25, 0.25, "pline 0,2@pi/2 -2,0@pi 2,0@pi/2 0,2");
    ExpectSub(closed, 0.5, 0.5, "pline -2,0@pi 2,0@pi -2,0");
    const QnGePolyline2d mixed = Bulged("0,0 4,0@pi 4,4 0,4 close");
    ExpectSub(mixed, 0.375, 0.375, "pline 6,2@pi/2 4,4 0,4 0,0 4,0@pi/2 6,2");
}

TEST(SubCurve, HeightsOfTheEnds) {
    ExpectSub(Straight("0,0,10 4,0,20 4,4,0"), 0.125, 0.75, "mline 1,0,12.5 4,0,20 4,2,10");
    ExpectSub(Bulged("0,0,10 4,0,20@pi 4,4,0"), 0.125, 0.25, "pline 1,0,12.5 2,0,15");
    // A point on an arc has the height of the arc, which is that of its first vertex.
    ExpectSub(Bulged("0,0,10 4,0,20@pi 4,4,0"), 0.25, 0.75, "pline 2,0,15 4,0,20@pi/2 6,2,20");
}

TEST(SubCurve, BetweenPoints) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4");
    const std::unique_ptr<QnGeCurve2d> sub(line.GetSubCurve(QnGePoint(1.0, 0.0), QnGePoint(4.0, 2.0)));
    ExpectGeo(sub.get(), "mline 1,0 4,0 4,2");
}

TEST(SubCurve, HasTheLengthBetweenItsDistances) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(70, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RandomPolyline(random, random.Int(2, 9), true, 0.5);
        const QnGeMLine2d chords(line);
        const double a = InnerPa(random, line);
        const double b = random.OneIn(10) ? a : InnerPa(random, line);
        for (const QnGeMLine2d* curve : {static_cast<const QnGeMLine2d*>(&line), &chords}) {
            double from = 0.0;
            double to = 0.0;
            ASSERT_TRUE(curve->GetDistFromPa(a, from));
            ASSERT_TRUE(curve->GetDistFromPa(b, to));
            const double expected = to > from ? to - from : curve->Length() - from + to;
            const std::unique_ptr<QnGeCurve2d> sub(curve->GetSubCurve(a, b));
            ASSERT_NEAR(sub->Length(), expected, 1e-6 * (1.0 + curve->Length()))
                << "seed " << seed << " from " << a << " to " << b << '\n'
                << Text(*curve);
            QnGePoint p;
            QnGePoint q;
            curve->GetPtFromPa(a, p);
            sub->GetStartPoint(q);
            ASSERT_LT(GetDistance2d(p, q), 1e-8) << "seed " << seed;
            curve->GetPtFromPa(b, p);
            sub->GetEndPoint(q);
            ASSERT_LT(GetDistance2d(p, q), 1e-8) << "seed " << seed;
        }
    }
}

// ---- splitting -------------------------------------------------------------------------------------

TEST(Split, OfAnOpenLine) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4");
    ExpectSplit(line, {}, "");
    ExpectSplit(line, {0.25}, "mline 0,0 2,0; mline 2,0 4,0 4,4");
    ExpectSplit(line, {0.0, 1.0}, "mline 0,0 4,0 4,4");
    ExpectSplit(line, {0.25, 0.25, 0.75}, "mline 0,0 2,0; mline 2,0 4,0 4,2; mline 4,2 4,4");
    ExpectSplit(line, {0.5}, "mline 0,0 4,0; mline 4,0 4,4");
}

TEST(Split, OfAClosedLine) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4 0,4 close");
    ExpectSplit(line, {0.125}, "mline 2,0 4,0 4,4 0,4 0,0 2,0");
    ExpectSplit(line, {0.125, 0.625}, "mline 2,0 4,0 4,4 2,4; mline 2,4 0,4 0,0 2,0");
    ExpectSplit(line, {0.0, 0.5}, "mline 0,0 4,0 4,4; mline 4,4 0,4 0,0");
    ExpectSplit(Bulged("2,0@pi -2,0@pi close"), {0.25, 0.75},
                "pline 0,2@pi/2 -2,0@pi/2 0,-2; pline 0,-2@pi/2 2,0@pi/2 0,2");
}

TEST(Split, AtPointsInAnyOrder) {
    const QnGeMLine2d line = Straight("0,0 4,0 4,4");
    QnGeObjList pieces;
    line.Split(Points("4,2 1,0"), pieces);
    ExpectGeoList(pieces, "mline 0,0 1,0; mline 1,0 4,0 4,2; mline 4,2 4,4");
}

TEST(Split, PiecesAddUpToTheWhole) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(71, i);
        RandomSource random(seed);
        const QnGePolyline2d line = RandomPolyline(random, random.Int(2, 9), random.Coin(), 0.5);
        QnDynArray<double> pas;
        std::vector<double> sorted;
        const int count = random.Int(1, 6);
        for (int k = 0; k < count; ++k) {
            sorted.push_back(random.OneIn(6) ? random.Int(0, 4) / 4.0 : random.Double(0.0, 1.0));
        }
        std::sort(sorted.begin(), sorted.end());
        for (const double pa : sorted) {
            pas.Append(pa);
        }
        QnGeObjList pieces;
        line.Split(pas, pieces);
        double sum = 0.0;
        QnGePoint before;
        bool first = true;
        for (pieces.MoveToFirst(); !pieces.IsOut(); pieces.MoveToNext()) {
            const QnGeCurve2d& piece = pieces.GetCurCurve2D();
            sum += piece.Length();
            QnGePoint start;
            piece.GetStartPoint(start);
            if (!first) {
                ASSERT_LT(GetDistance2d(start, before), 1e-8) << "seed " << seed << '\n' << Text(line);
            }
            piece.GetEndPoint(before);
            first = false;
        }
        ASSERT_NEAR(sum, line.Length(), 1e-6 * (1.0 + line.Length())) << "seed " << seed << '\n' << Text(line);
    }
}
