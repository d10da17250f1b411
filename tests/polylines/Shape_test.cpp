// SPDX-License-Identifier: Apache-2.0
// What multi-lines and polylines say about their shape: validity, straightness, extents, pieces, transformations.

#include <gtest/gtest.h>

#include <memory>

#include "PolylineTesting.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeMatrix.h"

using namespace polyline_testing;

namespace {

std::string Pieces(const QnGeObject& object, bool answer = true) {
    QnGeObjList parts;
    EXPECT_EQ(object.Explode(parts), answer);
    return ToText(parts);
}

}  // namespace

// ---- validity --------------------------------------------------------------------------------------

TEST(Shape, AValidLineHasNeighboursApartInSpace) {
    EXPECT_FALSE(QnGeMLine2d().IsValid());
    EXPECT_FALSE(Straight("0,0").IsValid());
    EXPECT_TRUE(Straight("0,0 1,0").IsValid());
    EXPECT_TRUE(Straight("0,0 0,0,1").IsValid());
    EXPECT_FALSE(Straight("0,0 0,0").IsValid());
    EXPECT_FALSE(Straight("0,0 1e-6,0").IsValid());
    EXPECT_TRUE(Straight("0,0 1.1e-6,0").IsValid());
    EXPECT_FALSE(Straight("0,0 1,0 1,0 2,0").IsValid());
    EXPECT_TRUE(Straight("0,0 1,0 0,0 1,0").IsValid());
}

TEST(Shape, AValidClosedLineHasItsSeamApartToo) {
    EXPECT_TRUE(Straight("0,0 1,0 0,0").IsValid());
    EXPECT_FALSE(Straight("0,0 1,0 0,0 close").IsValid());
    EXPECT_FALSE(Straight("0,0 1,0 0,1e-7 close").IsValid());
    EXPECT_TRUE(Straight("0,0 1,0 1,1 close").IsValid());
    EXPECT_TRUE(Straight("0,0 1,0 close").IsValid());
}

TEST(Shape, KeptOddBulgesMayExceedAFullTurnForwardsButNotBackwards) {
    QnGePolyline2d line = Bulged("0,0 1,0");
    EXPECT_TRUE(line.IsValid());
    for (const double bulge : {0.0, 1.0, -1.0, 6.28, -6.28, QN_TWO_PI, QN_TWO_PI + 0.9e-5, -QN_TWO_PI + 1.1e-5}) {
        line.SetBulge(0, bulge);
        EXPECT_TRUE(line.IsValid()) << bulge;
    }
    for (const double bulge : {QN_TWO_PI + 1.1e-5, -QN_TWO_PI, -QN_TWO_PI + 0.9e-5, -QN_TWO_PI - 1e-6, 10.0, -10.0}) {
        line.SetBulge(0, bulge);
        EXPECT_FALSE(line.IsValid()) << bulge;
    }
    line = Bulged("0,0 1,0 1,1@10 close");
    EXPECT_FALSE(line.IsValid());
    EXPECT_FALSE(Bulged("0,0@1 0,0@1 close").IsValid());
    EXPECT_FALSE(Bulged("0,0@1").IsValid());
    EXPECT_FALSE(QnGePolyline2d().IsValid());
    EXPECT_TRUE(Bulged("2,0@pi -2,0@pi close").IsValid());
}

// ---- straight, concave, level ----------------------------------------------------------------------

TEST(Shape, LinearIsWhatLiesOnOneLineInPlan) {
    EXPECT_TRUE(QnGeMLine2d().IsLinear());
    EXPECT_TRUE(Straight("5,5").IsLinear());
    EXPECT_TRUE(Straight("5,5 9,1").IsLinear());
    EXPECT_TRUE(Straight("0,0 1,1 2,2 -3,-3").IsLinear());
    EXPECT_TRUE(Straight("0,0,5 1,1,-5 2,2,7").IsLinear());
    EXPECT_FALSE(Straight("0,0 1,1 2,2.1").IsLinear());
    EXPECT_TRUE(Straight("0,0 0,0 5e-7,0 1e-6,0").IsLinear());
    // The reference is the first vertex that is away from vertex 0.
    EXPECT_FALSE(Straight("0,0 0,1e-7 4,0 4,1").IsLinear());
    EXPECT_TRUE(Straight("0,0 0,1e-7 4,0 8,0").IsLinear());
}

TEST(Shape, KeptOddStraightnessIsMeasuredByAnAreaNotADistance) {
    // The same bend counts or not depending on how long the legs are.
    EXPECT_TRUE(Straight("0,0 1e-3,0 0,1e-7").IsLinear());
    EXPECT_FALSE(Straight("0,0 1e6,0 2e6,1e-7").IsLinear());
    EXPECT_TRUE(Straight("0,0 1,0 1,1e-9").IsLinear());
    EXPECT_FALSE(Straight("0,0 1,0 1,1.1e-9").IsLinear());
}

TEST(Shape, ConcaveIsWhatTurnsBothWays) {
    EXPECT_FALSE(QnGeMLine2d().IsConcave());
    EXPECT_FALSE(Straight("0,0 4,0 0,4 close").IsConcave());
    EXPECT_FALSE(Straight("0,0 4,0 4,4 0,4 close").IsConcave());
    EXPECT_FALSE(Straight("0,0 0,4 4,4 4,0 close").IsConcave());
    EXPECT_FALSE(Straight("0,0 2,0 4,0 4,4 2,4 0,4 close").IsConcave());
    EXPECT_TRUE(Straight("0,0 4,0 1,1 0,4 close").IsConcave());
    EXPECT_TRUE(Straight("0,0 0,4 1,1 4,0 close").IsConcave());
    EXPECT_TRUE(Straight("0,0 4,4 4,0 0,4 close").IsConcave());
    // The turn at vertex 0 counts, and open lines are walked as closed ones.
    EXPECT_TRUE(Straight("1,1 4,0 4,4 0,4 close").IsConcave() == Straight("1,1 4,0 4,4 0,4").IsConcave());
    EXPECT_TRUE(Straight("1,1 0,4 0,0 4,0 close").IsConcave());
    EXPECT_FALSE(Straight("0,0 1,0 2,0 3,0").IsConcave());
    // Cross products of up to g_fZero are no turns.
    EXPECT_FALSE(Straight("0,0 0.5,-1e-10 1,0 1,1 0,1 close").IsConcave());
    EXPECT_FALSE(Straight("0,0 0.5,9e-10 1,0 1,1 0,1 close").IsConcave());
    EXPECT_TRUE(Straight("0,0 0.5,3e-9 1,0 1,1 0,1 close").IsConcave());
}

TEST(Shape, PlanearIsWhatKeepsTheHeightOfItsFirstVertex) {
    EXPECT_TRUE(QnGeMLine2d().IsPlanear());
    EXPECT_TRUE(Straight("0,0,5").IsPlanear());
    EXPECT_TRUE(Straight("0,0,5 1,0,5 1,1,5").IsPlanear());
    EXPECT_TRUE(Straight("0,0 1,0,1e-6 1,1,-1e-6").IsPlanear());
    EXPECT_FALSE(Straight("0,0 1,0,1.1e-6").IsPlanear());
    EXPECT_FALSE(Straight("0,0 1,0 1,1,-2e-6").IsPlanear());
}

TEST(Shape, CenterIsTheMeanOfTheVertices) {
    EXPECT_TRUE(IsNear(QnGeMLine2d().GetCenter(), QnGePoint(0.0, 0.0, 0.0)));
    EXPECT_TRUE(IsNear(Straight("1,2,3").GetCenter(), QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(IsNear(Straight("0,0 3,0,3 0,6,6 close").GetCenter(), QnGePoint(1.0, 2.0, 3.0)));
    EXPECT_TRUE(IsNear(Bulged("0,0@3 4,0@3 close").GetCenter(), QnGePoint(2.0, 0.0, 0.0)));
}

// ---- pieces ----------------------------------------------------------------------------------------

TEST(Shape, AMultiLineExplodesIntoItsSegments) {
    EXPECT_EQ(Pieces(QnGeMLine2d(), false), "");
    EXPECT_EQ(Pieces(QnGeMLine2d(0, true), false), "");
    EXPECT_EQ(Pieces(Straight("1,1")), "");
    EXPECT_EQ(Pieces(Straight("0,0 1,0,5 1,1")), "seg 0,0 1,0,5; seg 1,0,5 1,1");
    EXPECT_EQ(Pieces(Straight("0,0 1,0 1,1 close")), "seg 0,0 1,0; seg 1,0 1,1; seg 1,1 0,0");
}

TEST(Shape, PiecesThatCoverEachOtherAllStay) {
    EXPECT_EQ(Pieces(Straight("0,0 1,0 close")), "seg 0,0 1,0; seg 1,0 0,0");
    QnGeObjList parts;
    ParseGeoList("seg 0,0 1,0; point 9,9", parts);
    EXPECT_TRUE(Straight("0,0 1,0 0,0 1,0").Explode(parts));
    ExpectGeoList(parts, "seg 0,0 1,0; point 9,9; seg 0,0 1,0; seg 1,0 0,0; seg 0,0 1,0");
}

TEST(Shape, APolylineExplodesIntoArcsAndSegments) {
    EXPECT_EQ(Pieces(QnGePolyline2d()), "");
    EXPECT_EQ(Pieces(Bulged("1,1@1")), "");
    QnGeObjList parts;
    EXPECT_TRUE(Bulged("2,0@pi -2,0 0,-4 close").Explode(parts));
    ExpectGeoList(parts, "arc 0,0 r2 from 0 sweep pi; seg -2,0 0,-4; seg 0,-4 2,0");
}

// ---- extents ---------------------------------------------------------------------------------------

TEST(Shape, ExtentOfAMultiLineIsThatOfItsVertices) {
    QnGeExtent2d box(1.0, 2.0, 3.0, 4.0);
    EXPECT_FALSE(QnGeMLine2d().GetExtent2d(box));
    EXPECT_TRUE(Straight("3,4,7").GetExtent2d(box));
    EXPECT_EQ(box.x.min, 3.0);
    EXPECT_EQ(box.y.max, 4.0);
    EXPECT_TRUE(Straight("0,5 -2,1 4,-3 close").GetExtent2d(box));
    EXPECT_EQ(box.x.min, -2.0);
    EXPECT_EQ(box.x.max, 4.0);
    EXPECT_EQ(box.y.min, -3.0);
    EXPECT_EQ(box.y.max, 5.0);
    QnGeExtent3d space;
    EXPECT_TRUE(Straight("0,5,8 -2,1,9").GetExtent3d(space));
    EXPECT_EQ(space.z.min, 8.0);
    EXPECT_EQ(space.z.max, 8.0);
}

TEST(Shape, ExtentOfAPolylineHoldsTheBowsOfItsArcs) {
    QnGeExtent2d box;
    EXPECT_FALSE(QnGePolyline2d().GetExtent2d(box));
    EXPECT_TRUE(Bulged("0,0@pi 4,0").GetExtent2d(box));
    EXPECT_NEAR(box.x.min, 0.0, 1e-9);
    EXPECT_NEAR(box.x.max, 4.0, 1e-9);
    EXPECT_NEAR(box.y.min, -2.0, 1e-9);
    EXPECT_NEAR(box.y.max, 0.0, 1e-9);
    EXPECT_TRUE(Bulged("2,0@pi -2,0@pi close").GetExtent2d(box));
    EXPECT_NEAR(box.x.min, -2.0, 1e-9);
    EXPECT_NEAR(box.y.max, 2.0, 1e-9);
}

// ---- elevation, sample, transformation -------------------------------------------------------------

TEST(Shape, ElevationIsThatOfTheFirstVertexAndSetOnAll) {
    EXPECT_EQ(QnGeMLine2d().GetElevation(), 0.0);
    QnGeMLine2d line = Straight("0,0,3 1,0,5");
    EXPECT_EQ(line.GetElevation(), 3.0);
    line.SetElevation(7.0);
    EXPECT_TRUE(HasExactly(line, "0,0,7 1,0,7"));
    QnGePolyline2d bulged = Bulged("0,0,3@1 1,0,5");
    bulged.SetElevation(-1.0);
    EXPECT_TRUE(IsExactly(bulged, "0,0,-1@1 1,0,-1"));
    QnGeMLine2d empty;
    empty.SetElevation(4.0);
    EXPECT_EQ(empty.GetElevation(), 0.0);
}

TEST(Shape, TheSamplePointIsTheMiddleOfTheFirstSegment) {
    EXPECT_TRUE(IsNear(Straight("0,0 4,0,2 9,9 5,5").GetSamplePoint(), QnGePoint(2.0, 0.0, 1.0)));
    EXPECT_TRUE(IsNear(Straight("0,0 4,0 4,4 close").GetSamplePoint(), QnGePoint(2.0, 0.0)));
    EXPECT_TRUE(IsNear(Bulged("2,0@pi -2,0 -9,9").GetSamplePoint(), QnGePoint(0.0, 2.0)));
    EXPECT_TRUE(IsNear(Bulged("0,0 4,0").GetSamplePoint(), QnGePoint(2.0, 0.0)));
}

TEST(Shape, WithoutASegmentTheSamplePointIsTheVertexOrTheOrigin) {
    EXPECT_TRUE(IsNear(Straight("3,4,5").GetSamplePoint(), QnGePoint(3.0, 4.0, 5.0)));
    EXPECT_TRUE(IsNear(Bulged("3,4,5@1 close").GetSamplePoint(), QnGePoint(3.0, 4.0, 5.0)));
    EXPECT_TRUE(IsNear(QnGeMLine2d().GetSamplePoint(), QnGePoint(0.0, 0.0, 0.0)));
    EXPECT_TRUE(IsNear(QnGePolyline2d().GetSamplePoint(), QnGePoint(0.0, 0.0, 0.0)));
}

TEST(Shape, TransformationMovesVerticesAndAMirrorTurnsBulges) {
    QnGeMLine2d line = Straight("0,0,1 1,0,2");
    QnGeMatrix move;
    move.CreateMoveMatrix(1.0, 2.0, 3.0);
    line.TransformBy(move);
    EXPECT_TRUE(HasExactly(line, "1,2,4 2,2,5"));

    QnGePolyline2d bulged = Bulged("0,0@1 1,0@-2 1,1@0.5 close");
    bulged.TransformBy(move);
    EXPECT_TRUE(IsExactly(bulged, "1,2,3@1 2,2,3@-2 2,3,3@0.5 close"));
    QnGeMatrix mirror;
    mirror.CreateScaleMatrix(-1.0, 1.0);
    bulged.TransformBy(mirror);
    EXPECT_TRUE(IsExactly(bulged, "-1,2,3@-1 -2,2,3@2 -2,3,3@-0.5 close"));
    bulged.Rotate(PI);
    EXPECT_EQ(bulged.GetBulge(0), -1.0);
    EXPECT_TRUE(IsNear(bulged.GetVertex(0), QnGePoint(1.0, -2.0, 3.0)));
}

TEST(Shape, KeptOddAnUnevenScaleLeavesArcsRound) {
    QnGePolyline2d line = Bulged("2,0@pi -2,0");
    line.Scale(3.0, 1.0);
    ExpectGeo(line, "pline 6,0@pi -6,0");
    EXPECT_NEAR(line.Length(), 6.0 * PI, 1e-9);
}

TEST(Shape, AMirroredPolylineIsTheMirrorImageOfItsPoints) {
    for (int i = 0; i < 200; ++i) {
        RandomSource random(CaseSeed(40, i));
        const QnGePolyline2d line = ConvexBulged(random, random.Int(2, 8), random.Coin());
        QnGePolyline2d mirrored(line);
        mirrored.Scale(1.0, -1.0);
        for (double pa = 0.05; pa < 1.0; pa += 0.1) {
            QnGePoint p;
            QnGePoint q;
            line.GetPtFromPa(pa, p);
            mirrored.GetPtFromPa(pa, q);
            ASSERT_TRUE(IsNear(q, QnGePoint(p.x, -p.y, p.z), 1e-8)) << Text(line);
        }
    }
}

// ---- closedness, kinds -----------------------------------------------------------------------------

TEST(Shape, ClosedIsTheFlagAndNotThePlaceOfTheEnds) {
    EXPECT_FALSE(Straight("0,0 1,0 0,0").IsClosed());
    EXPECT_TRUE(Straight("0,0 1,0 1,1 close").IsClosed());
    EXPECT_EQ(Straight("0,0 1,0").GetPeriod(), 0.0);
    EXPECT_EQ(Straight("0,0 1,0 close").GetPeriod(), 1.0);
    EXPECT_EQ(Bulged("0,0@1 1,0 close").GetPeriod(), 1.0);
}

TEST(Shape, LinesHaveTwoEndsAndALength) {
    for (const char* vertices : {"0,0 1,0", "0,0 1,0 1,1 close"}) {
        const QnGeMLine2d line = Straight(vertices);
        EXPECT_TRUE(line.IsFinite(true));
        EXPECT_TRUE(line.IsFinite(false));
        EXPECT_TRUE(line.IsFinite());
        EXPECT_TRUE(line.IsCurveSeg());
        EXPECT_FALSE(line.IsInfinite());
        EXPECT_TRUE(line.IsMLinear());
    }
}
