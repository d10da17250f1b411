// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGeGeneralPolygon2d.h"

#include <gtest/gtest.h>

#include "RegionTesting.h"
#include "curves2d/QnGeLine2d.h"

using namespace region_testing;

namespace {

const char* const HOLED = "0,0 9,0 9,9 0,9 | 1,1 1,2 2,2 2,1 | 5,5 5,7 7,7 7,5";

QnGeMLine2d* NewLine(const std::string& text) {
    return ParseGeoAs<QnGeMLine2d>("mline " + text).release();
}

/// Offers a hole with a check; what is refused is deleted, which the leak check of the test program watches.
bool Offer(QnGeGeneralPolygon2d& region, const std::string& hole) {
    return region.AppendHole(NewLine(hole), true);
}

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

TEST(QnGeGeneralPolygon2d, OfACountHasThatManyVerticesAndNoHole) {
    const QnGeGeneralPolygon2d none;
    EXPECT_TRUE(none.IsClosed());
    EXPECT_EQ(none.GetBoundaryNum(), 1);
    const QnGeGeneralPolygon2d four(4);
    EXPECT_EQ(four.Outline().GetVertexNum(), 4);
    EXPECT_EQ(four.GetClassID(), CLASS_ID_GENERAL_POLYGON2D);
}

TEST(QnGeGeneralPolygon2d, OfALineIsThatOutline) {
    const auto clockwise = ParseGeoAs<QnGeMLine2d>("mline 0,0 0,2 2,2 2,0 close");
    EXPECT_TRUE(QnGeGeneralPolygon2d(*clockwise, false).Outline().IsClockwise());
    EXPECT_FALSE(QnGeGeneralPolygon2d(*clockwise, true).Outline().IsClockwise());
}

TEST(QnGeGeneralPolygon2d, OfAPolygonTakesOutlineAndFlagsAndNoHoles) {
    QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    holed.SetBit(0x4000);
    const QnGeGeneralPolygon2d bare(static_cast<const QnGePolygon2d&>(holed));
    EXPECT_EQ(bare.GetBoundaryNum(), 1);
    EXPECT_TRUE(bare.HasBit(0x4000));
    EXPECT_EQ(bare.Outline().GetVertexNum(), 4);
}

TEST(QnGeGeneralPolygon2d, CopiesAreDeep) {
    QnGeGeneralPolygon2d original = GeneralPolygon(HOLED);
    original.SetAllowBoundaryInter(false);
    const auto before = Record(original);
    const QnGeGeneralPolygon2d copy(original);
    QnGeGeneralPolygon2d assigned = GeneralPolygon("0,0 1,0 1,1 | 3,3 4,4 5,3 | 3,3 4,4 5,3 | 3,3 4,4 5,3");
    assigned = original;
    const QnGeGeneralPolygon2d& self = assigned;
    assigned = self;
    const std::unique_ptr<QnGeObject> clone(original.Clone());
    const std::unique_ptr<QnGeObject> cloneNew(original.CloneNew());
    original.Hole(0)[0] = QnGePoint(50.0, 50.0);
    original.ClearHole();
    EXPECT_EQ(Record(copy), before);
    EXPECT_EQ(Record(assigned), before);
    EXPECT_EQ(Record(*clone), before);
    EXPECT_EQ(Record(*cloneNew), before);
    EXPECT_EQ(clone->GetClassID(), CLASS_ID_GENERAL_POLYGON2D);
}

// ---- holes -----------------------------------------------------------------------------------------

TEST(QnGeGeneralPolygon2d, HoleIsTheNextBoundary) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    EXPECT_EQ(holed.GetBoundaryNum(), 3);
    EXPECT_EQ(holed.GetHoleNum(), 2);
    EXPECT_EQ(holed.GetBoundary(0), &holed.Outline());
    EXPECT_EQ(&holed.Hole(0), holed.GetBoundary(1));
    EXPECT_EQ(&holed.Hole(1), holed.GetBoundary(2));
    ExpectPoint(holed.Hole(1).GetVertex(0), "5,5");
    EXPECT_EQ(holed.GetBoundary(3), nullptr);
}

TEST(QnGeGeneralPolygon2d, DeletesHolesOneByOneOrAll) {
    QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    holed.DelHole(0);
    ExpectGeo(holed, "region 0,0 9,0 9,9 0,9 | 5,5 5,7 7,7 7,5");
    holed.ClearHole();
    EXPECT_EQ(holed.GetBoundaryNum(), 1);
    holed.ClearHole();
    EXPECT_EQ(holed.GetBoundaryNum(), 1);
}

TEST(QnGeGeneralPolygon2d, FetchHandsAHoleOver) {
    QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    const std::unique_ptr<QnGeMLine2d> hole(holed.FetchHole(0));
    ExpectGeo(hole.get(), "mline 1,1 1,2 2,2 2,1 close");
    EXPECT_EQ(holed.GetHoleNum(), 1);
    EXPECT_EQ(holed.FetchHole(7), nullptr);
    EXPECT_EQ(holed.FetchHole(-1), nullptr);
    EXPECT_EQ(holed.GetHoleNum(), 1);
}

TEST(QnGeGeneralPolygon2dAppendHole, WithoutCheckTakesAnyLineAsItIs) {
    QnGeGeneralPolygon2d region(Polygon("0,0 9,0 9,9 0,9"));
    EXPECT_TRUE(region.AppendHole(NewLine("1,1 2,1 2,2 close"), false));
    EXPECT_TRUE(region.AppendHole(NewLine("20,1 30,1 30,2"), false));
    ExpectGeo(&region.Hole(0), "mline 1,1 2,1 2,2 close");
    ExpectGeo(&region.Hole(1), "mline 20,1 30,1 30,2");
}

TEST(QnGeGeneralPolygon2dAppendHole, RefusesNull) {
    QnGeGeneralPolygon2d region(Polygon("0,0 9,0 9,9 0,9"));
    EXPECT_FALSE(region.AppendHole(nullptr, false));
    EXPECT_FALSE(region.AppendHole(nullptr, true));
    EXPECT_EQ(region.GetHoleNum(), 0);
}

TEST(QnGeGeneralPolygon2dAppendHole, WithCheckStoresHolesClockwise) {
    QnGeGeneralPolygon2d region(Polygon("0,0 9,0 9,9 0,9"));
    EXPECT_TRUE(Offer(region, "1,1 2,1 2,2 1,2 close"));
    EXPECT_TRUE(Offer(region, "5,5 5,7 7,7 7,5 close"));
    ExpectGeo(region, "region 0,0 9,0 9,9 0,9 | 1,1 1,2 2,2 2,1 | 5,5 5,7 7,7 7,5");
    EXPECT_TRUE(region.IsValid());
}

TEST(QnGeGeneralPolygon2dAppendHole, WithCheckRefusesAndDeletesWhatSticksOut) {
    QnGeGeneralPolygon2d region(Polygon("0,0 9,0 9,9 0,9"));
    EXPECT_FALSE(Offer(region, "8,1 12,1 12,2 8,2 close"));
    EXPECT_FALSE(Offer(region, "18,1 22,1 22,2 18,2 close"));
    EXPECT_FALSE(Offer(region, "-1,-1 10,-1 10,10 -1,10 close"));
    EXPECT_FALSE(Offer(region, "8,1 8,2 12,2 12,1 close"));
    EXPECT_EQ(region.GetHoleNum(), 0);
}

TEST(QnGeGeneralPolygon2dAppendHole, WithCheckTheOrderOfOfferingCounts) {
    QnGeGeneralPolygon2d outerFirst(Polygon("0,0 9,0 9,9 0,9"));
    EXPECT_TRUE(Offer(outerFirst, "1,1 5,1 5,5 1,5 close"));
    EXPECT_FALSE(Offer(outerFirst, "2,2 3,2 3,3 2,3 close")) << "in the earlier hole";
    EXPECT_FALSE(Offer(outerFirst, "4,4 6,4 6,6 4,6 close")) << "overlaps the earlier hole";
    EXPECT_EQ(outerFirst.GetHoleNum(), 1);
    QnGeGeneralPolygon2d innerFirst(Polygon("0,0 9,0 9,9 0,9"));
    EXPECT_TRUE(Offer(innerFirst, "2,2 3,2 3,3 2,3 close"));
    EXPECT_FALSE(Offer(innerFirst, "1,1 5,1 5,5 1,5 close")) << "contains the earlier hole";
}

TEST(QnGeGeneralPolygon2dAppendHole, WithTheFlagBoundariesMustNotMeet) {
    QnGeGeneralPolygon2d region(Polygon("0,0 9,0 9,9 0,9"));
    region.SetAllowBoundaryInter(false);
    EXPECT_FALSE(Offer(region, "0,4 1,2 1,6 close"));
    EXPECT_TRUE(Offer(region, "2,2 4,2 4,4 2,4 close"));
    EXPECT_FALSE(Offer(region, "4,4 6,4 6,6 close"));
    EXPECT_EQ(region.GetHoleNum(), 1);
    region.SetAllowBoundaryInter(true);
    EXPECT_TRUE(Offer(region, "0,4 1,2 1,6 close"));
    EXPECT_EQ(region.GetHoleNum(), 2);
}

TEST(QnGeGeneralPolygon2dAppendHole, WithCheckAnOpenLineIsReversedOnce) {
    QnGeGeneralPolygon2d region(Polygon("0,0 9,0 9,9 0,9"));
    EXPECT_TRUE(Offer(region, "1,1 2,1 2,2"));
    ExpectGeo(&region.Hole(0), "mline 2,2 2,1 1,1");
}

// ---- stream ----------------------------------------------------------------------------------------

TEST(QnGeGeneralPolygon2dStream, RecordIsThePolygonsThenTheHoles) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon("0,0 9,0 9,9 | 2,1 3,2 3,1");
    QnDynArrayStream expected(64, 64);
    expected << 0L << 0x10L << 3L;
    expected << 0.0 << 0.0 << 0.0 << 9.0 << 0.0 << 0.0 << 9.0 << 9.0 << 0.0;
    expected << 1L << 0x10L << 3L;
    expected << 2.0 << 1.0 << 0.0 << 3.0 << 2.0 << 0.0 << 3.0 << 1.0 << 0.0;
    EXPECT_EQ(Record(holed), BytesOf(expected));
}

TEST(QnGeGeneralPolygon2dStream, ReadingReplacesHoles) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    QnDynArrayStream stream(64, 64);
    holed.StreamOut(stream);
    stream.MoveToFirst();
    QnGeGeneralPolygon2d read = GeneralPolygon("0,0 1,0 1,1 | 3,3 4,4 5,3 | 3,3 4,4 5,3 | 3,3 4,4 5,3");
    read.StreamIn(stream);
    EXPECT_EQ(Record(read), Record(holed));
}

TEST(QnGeGeneralPolygon2dStream, TruncatedAndBadCountsEnd) {
    for (const long count : {-1L, 0L, 3L}) {
        QnDynArrayStream stream(64, 64);
        QnGePolygon2d(Polygon("0,0 9,0 9,9")).StreamOut(stream);
        stream << count;
        stream.MoveToFirst();
        QnGeGeneralPolygon2d read;
        read.StreamIn(stream);
        EXPECT_EQ(read.Outline().GetVertexNum(), 3);
        EXPECT_EQ(read.GetHoleNum(), count < 0 ? 0 : count);
    }
    QnDynArrayStream empty(64, 64);
    QnGeGeneralPolygon2d read = GeneralPolygon(HOLED);
    read.StreamIn(empty);
    EXPECT_EQ(read.GetHoleNum(), 0);
}

// ---- operations ------------------------------------------------------------------------------------

TEST(QnGeGeneralPolygon2d, WithoutHolesExplodesIntoAPlainPolygon) {
    QnGeObjList parts;
    EXPECT_TRUE(QnGeGeneralPolygon2d(Polygon("0,0 4,0 4,4 2,1")).Explode(parts));
    ExpectGeoList(parts, "region 0,0 4,0 4,4 2,1");
    EXPECT_EQ(parts.GetPData(0)->GetCI(), &QnGePolygon2d::s_classInfo);
    EXPECT_FALSE(GeneralPolygon(HOLED).Explode(parts));
    EXPECT_EQ(parts.GetLength(), 1);
}

TEST(QnGeGeneralPolygon2d, WithoutHolesBooleansAreThoseOfPolygons) {
    const QnGeGeneralPolygon2d a(Polygon("0,0 2,0 2,2 0,2"));
    const QnGeGeneralPolygon2d b(Polygon("1,1 3,1 3,3 1,3"));
    const QnGePolygon2d plain = Polygon("1,1 3,1 3,3 1,3");
    const char* const united = "region 2,1 3,1 3,3 1,3 1,2 0,2 0,0 2,0";
    EXPECT_TRUE(IsRegion(std::unique_ptr<QnGeRegion2d>(a.Union(b)).get(), united));
    EXPECT_TRUE(IsRegion(std::unique_ptr<QnGeRegion2d>(a.Union(plain)).get(), united));
    EXPECT_TRUE(IsRegion(std::unique_ptr<QnGeRegion2d>(a.Union(static_cast<const QnGeRegion2d&>(b))).get(), united));
    QnGeObjList list;
    EXPECT_TRUE(a.Inter(b, list));
    EXPECT_TRUE(a.Inter(plain, list));
    EXPECT_TRUE(a.Inter(static_cast<const QnGeRegion2d&>(plain), list));
    EXPECT_EQ(list.GetLength(), 3);
    EXPECT_DOUBLE_EQ(TotalArea(list), 3.0);
    list.Reset();
    a.SubtractBy(b, list);
    a.SubtractBy(plain, list);
    a.SubtractBy(static_cast<const QnGeRegion2d&>(plain), list);
    EXPECT_EQ(list.GetLength(), 3);
    EXPECT_DOUBLE_EQ(TotalArea(list), 9.0);
}

TEST(QnGeGeneralPolygon2d, WithHolesBooleansFail) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    const QnGePolygon2d plain = Polygon("0,0 3,0 3,3 0,3");
    const QnGeGeneralPolygon2d general(plain);
    const QnGeRegion2d& region = plain;
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(holed.Union(plain)), nullptr);
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(holed.Union(general)), nullptr);
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(holed.Union(region)), nullptr);
    EXPECT_EQ(std::unique_ptr<QnGeRegion2d>(general.Union(holed)), nullptr);
    QnGeObjList list;
    EXPECT_FALSE(holed.Inter(plain, list));
    EXPECT_FALSE(holed.Inter(general, list));
    EXPECT_FALSE(holed.Inter(region, list));
    EXPECT_FALSE(general.Inter(holed, list));
    holed.SubtractBy(plain, list);
    holed.SubtractBy(general, list);
    holed.SubtractBy(region, list);
    EXPECT_EQ(list.GetLength(), 0);
}

TEST(QnGeGeneralPolygon2d, WithoutHolesIsCutLikeAPolygon) {
    const QnGeGeneralPolygon2d square(Polygon("0,0 4,0 4,4 0,4"));
    const QnGeLine2d line(QnGeVector2d(0.0, 1.0), QnGePoint(1.0, 0.0));
    for (int quick = 0; quick < 2; ++quick) {
        QnGeObjList left;
        QnGeObjList right;
        if (quick == 0) {
            square.CutBy(line, left, right);
        } else {
            square.QuickCutBy(line, left, right);
        }
        EXPECT_TRUE(HasRegions(left, "region 0,0 1,0 1,4 0,4"));
        EXPECT_TRUE(HasRegions(right, "region 1,0 4,0 4,4 1,4"));
    }
}

TEST(QnGeGeneralPolygon2d, WithHolesIsNotCut) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    const QnGeLine2d line(QnGeVector2d(0.0, 1.0), QnGePoint(1.0, 0.0));
    QnGeObjList list;
    holed.CutBy(line, list, list);
    holed.QuickCutBy(line, list, list);
    holed.CutBy(*ParseGeoAs<QnGeCurve2d>("circle 0,0 r3"), list, list);
    EXPECT_EQ(list.GetLength(), 0);
}
