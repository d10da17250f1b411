// SPDX-License-Identifier: Apache-2.0
// Coordinates, bulges and parameters that are no ordinary numbers: answers may mean nothing, but they come.

#include <gtest/gtest.h>

#include <memory>

#include "PolylineTesting.h"
#include "containers/QnDynArray.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePointList.h"

using namespace polyline_testing;

namespace {

const double ODD_NUMBERS[] = {NOT_A_NUMBER, INF,  -INF, 1e308, -1e308, 1e155, 1e-308, -0.0,
                              5e-324,       1e20, -1e9, 0.0,   1.0,    -2.5,  1e-7,   6.2831853071796};

double OddNumber(RandomSource& random) {
    return ODD_NUMBERS[random.Int(0, 15)];
}

/// A line some of whose numbers are odd.
QnGePolyline2d OddLine(RandomSource& random) {
    QnGePolyline2d line(0, random.Coin());
    const int n = random.Int(0, 7);
    const long share = random.Long(1, 6);
    const auto number = [&] { return random.OneIn(share) ? OddNumber(random) : random.Double(-5.0, 5.0); };
    for (int i = 0; i < n; ++i) {
        const double x = number();
        const double y = number();
        const double z = number();
        double bulge = random.Coin() ? 0.0 : number();
        if (std::fabs(bulge) > 1e3 && std::fabs(bulge) < 1e12) {
            bulge = 7.0;  // so many turns are as many chords, and may well take a day
        }
        line.AppendVertex(QnGePoint(x, y, z), bulge);
    }
    return line;
}

/// Asks all that a line can be asked.
void AskEverything(const QnGeMLine2d& line, RandomSource& random) {
    const double a = random.Coin() ? OddNumber(random) : random.Double(-0.5, 1.5);
    const double b = random.Coin() ? OddNumber(random) : random.Double(-0.5, 1.5);
    const QnGePoint p(random.OneIn(3) ? OddNumber(random) : random.Double(-5.0, 5.0),
                      random.OneIn(3) ? OddNumber(random) : random.Double(-5.0, 5.0));
    line.IsValid();
    line.IsLinear();
    line.IsConcave();
    line.IsPlanear();
    line.GetCenter();
    line.IsClosed();
    line.IsMLinear();
    line.IsClockwise();
    line.IsSelfCross();
    line.Area();
    line.Length();
    line.Integration(a, b);
    line.GetSamplePoint();
    QnGePoint q;
    double value = 0.0;
    line.GetPtFromPa(a, q);
    line.GetPaFromPt(p, value);
    line.GetPaFromDist(a, value);
    line.GetDistFromPa(a, value);
    line.GetPtFromDist(a, q);
    value = a;
    const long index = line.GetSegIndexFromPa(value);
    EXPECT_LT(index, std::max(1L, line.GetSegNum()));
    QnGeBaseLine2d tangent;
    line.GetTangent(a, tangent);
    int sub = 0;
    line.HitTest(p);
    line.SubHitTest(p, sub);
    line.HitTestSide(p);
    QnGeExtent2d box;
    line.GetExtent2d(box);
    QnGePointList points;
    line.GetClosestPoint2d(p, points);
    QnGeObjList parts;
    line.Explode(parts);
    line.IntersectWith(*ParseGeo("seg -3,-3 3,3"), parts);
    line.IsInclude(*ParseGeo("seg -3,-3 3,3"));
    const std::unique_ptr<QnGeCurve2d> piece(line.GetSubCurve(a, b));
    const std::unique_ptr<QnGeMLine2d> chords(line.MLinearize(0.5));
    const std::unique_ptr<QnGeMLine2d> exact(line.PLinearize(0.5));
    QnDynArray<double> pas;
    pas.Append(a);
    pas.Append(b);
    QnGeObjList pieces;
    line.Split(pas, pieces);
    const std::unique_ptr<QnGeObject> clone(line.Clone());
    QnGeMLine2d& copy = static_cast<QnGeMLine2d&>(*clone);
    EXPECT_EQ(Record(copy), Record(line));
    copy.Reverse();
    copy.RemoveDupPoint();
    copy.InsertNode(p, false);
    copy.InsertNode(p, true);
    copy.DelNode(p);
    copy.SetElevation(a);
    QnGeMatrix matrix;
    matrix.CreateZRotateMatrix(1.0);
    copy.TransformBy(matrix);
}

}  // namespace

TEST(BadInput, EveryQuestionIsAnsweredOnLinesOfOddNumbers) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 6000; ++i) {
        const unsigned seed = CaseSeed(110, i);
        RandomSource random(seed);
        const QnGePolyline2d line = OddLine(random);
        SCOPED_TRACE("seed " + std::to_string(seed));
        AskEverything(line, random);
        AskEverything(QnGeMLine2d(line), random);
    }
}

TEST(BadInput, ParametersFarOutsideGiveNoCrash) {
    const QnGePolyline2d line = Bulged("0,0@1 4,0 4,4@-2 0,4 close");
    for (const double pa : ODD_NUMBERS) {
        double local = pa;
        const long i = line.GetSegIndexFromPa(local);
        EXPECT_TRUE(i >= 0 && i < 4) << pa;
        QnGePoint p;
        line.GetPtFromPa(pa, p);
        for (const double other : ODD_NUMBERS) {
            line.Integration(pa, other);
            const std::unique_ptr<QnGeCurve2d> piece(line.GetSubCurve(pa, other));
        }
    }
}

TEST(BadInput, LinearisationStepsThatAreNoNumbers) {
    const QnGePolyline2d line = Bulged("0,0@1 4,0");
    for (const double prec : {NOT_A_NUMBER, INF, -INF, 1e300}) {
        const std::unique_ptr<QnGeMLine2d> chords(line.MLinearize(prec));
        ASSERT_NE(chords, nullptr);
        EXPECT_GE(chords->GetVertexNum(), 2) << prec;
        EXPECT_LE(chords->GetVertexNum(), 11) << prec;
    }
    // The bulge itself may be none: no pieces then, at worst the chord.
    for (const double bulge : {NOT_A_NUMBER, INF, -INF}) {
        QnGePolyline2d odd = Bulged("0,0 4,0");
        odd.SetBulge(0, bulge);
        const std::unique_ptr<QnGeMLine2d> chords(odd.MLinearize(0.1));
        ASSERT_NE(chords, nullptr);
        EXPECT_EQ(chords->GetVertexNum(), 2) << bulge;
    }
}

TEST(BadInput, VertexCountsBelowZeroAreNone) {
    QnGeMLine2d line(-3);
    EXPECT_EQ(line.GetVertexNum(), 0);
    QnGePolyline2d bulged(-3, true);
    EXPECT_EQ(bulged.GetVertexNum(), 0);
    bulged.AppendVertex(QnGePoint(1.0, 1.0), 0.5);
    EXPECT_TRUE(IsExactly(bulged, "1,1@0.5 close"));
}

TEST(BadInput, MissingAndSurplusBulgesOfAConstructor) {
    const QnGePointArray points = Points("0,0 4,0 4,4");
    QnDynArray<double> bulges;
    bulges.Append(1.0);
    EXPECT_TRUE(IsExactly(QnGePolyline2d(points, bulges, true), "0,0@1 4,0 4,4 close"));
    for (int i = 0; i < 9; ++i) {
        bulges.Append(2.0);
    }
    EXPECT_TRUE(IsExactly(QnGePolyline2d(points, bulges, true), "0,0@1 4,0@2 4,4@2 close"));
    QnArray<double> none;
    EXPECT_TRUE(IsExactly(QnGePolyline2d(points, none, false), "0,0 4,0 4,4"));
}
