// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGeGeneralRegion2d.h"

#include <gtest/gtest.h>

#include "BoundaryRegion.h"
#include "RegionTesting.h"
#include "curves2d/QnGeCircle2d.h"

using namespace region_testing;

namespace {

QnGeCurve2d* NewCurve(const std::string& text) {
    return ParseGeoAs<QnGeCurve2d>(text).release();
}

const char* const RING = "general region circle 0,0 r5 | circle 0,0 r2 cw";

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

TEST(QnGeGeneralRegion2d, IsByDefaultTheWholePlane) {
    const QnGeGeneralRegion2d plane;
    EXPECT_EQ(plane.GetBoundaryNum(), 1);
    EXPECT_EQ(plane.GetBoundary(0), nullptr);
    EXPECT_TRUE(plane.IsEntirePlane());
    EXPECT_EQ(Bits(plane.HitTest(QnGePoint(1e9, -1e9))), 1U);
    EXPECT_TRUE(plane.IsValid());
}

TEST(QnGeGeneralRegion2d, TakesACurveOverOrClonesIt) {
    QnGeCurve2d* const circle = NewCurve("circle 0,0 r2 cw");
    const QnGeGeneralRegion2d owner(circle, false);
    EXPECT_EQ(owner.GetBoundary(0), circle);
    EXPECT_TRUE(circle->IsClockwise());
    const QnGeGeneralRegion2d clone(*circle, true);
    EXPECT_NE(clone.GetBoundary(0), circle);
    ExpectGeo(clone, "general region circle 0,0 r2");
    ExpectGeo(owner, "general region circle 0,0 r2 cw");
    const QnGeGeneralRegion2d normalized(NewCurve("mline 0,0 0,2 2,2 close"), true);
    ExpectGeo(normalized, "general region mline 0,0 2,2 0,2 close");
    EXPECT_TRUE(QnGeGeneralRegion2d(static_cast<QnGeCurve2d*>(nullptr), true).IsEntirePlane());
}

TEST(QnGeGeneralRegion2d, OfAListMovesAllCurvesIn) {
    QnGeObjList curves;
    ParseGeoList("circle 0,0 r5 cw; circle 0,0 r2; mline 3,0 4,0 4,1", curves);
    const QnGeGeneralRegion2d region(curves, true);
    EXPECT_EQ(curves.GetLength(), 0);
    ExpectGeo(region, "general region circle 0,0 r5 | circle 0,0 r2 cw | mline 3,0 4,0 4,1");
    ParseGeoList("circle 0,0 r5 cw; circle 0,0 r2", curves);
    ExpectGeo(QnGeGeneralRegion2d(curves, false), "general region circle 0,0 r5 cw | circle 0,0 r2");
}

TEST(QnGeGeneralRegion2d, OfAListKeepsAMissingOutline) {
    QnGeObjList curves;
    curves.Append(nullptr);
    curves.Append(NewCurve("circle 0,0 r2 cw"));
    const QnGeGeneralRegion2d region(curves, true);
    EXPECT_EQ(region.GetBoundaryNum(), 2);
    EXPECT_EQ(region.GetBoundary(0), nullptr);
    QnGeObjList none;
    EXPECT_TRUE(QnGeGeneralRegion2d(none, true).IsEntirePlane());
    EXPECT_EQ(QnGeGeneralRegion2d(none, true).GetBoundaryNum(), 1);
}

TEST(QnGeGeneralRegion2d, OfAnyRegionClonesTheBoundaries) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon("0,0 9,0 9,9 | 3,1 4,2 4,1");
    const QnGeGeneralRegion2d region(holed);
    ExpectGeo(region, "general region mline 0,0 9,0 9,9 close | mline 3,1 4,2 4,1 close");
    EXPECT_NE(region.GetBoundary(0), holed.GetBoundary(0));
    const QnGeGeneralRegion2d gaps(BoundaryRegion("null; circle 0,0 r1; null"));
    EXPECT_EQ(gaps.GetBoundaryNum(), 3);
    EXPECT_EQ(gaps.GetBoundary(0), nullptr);
    EXPECT_EQ(QnGeGeneralRegion2d(BoundaryRegion("")).GetBoundaryNum(), 1);
}

TEST(QnGeGeneralRegion2d, CopiesAreDeep) {
    QnGeGeneralRegion2d original = *ParseGeoAs<QnGeGeneralRegion2d>(RING);
    original.SetBit(0x4000);
    const auto before = Record(original);
    const QnGeGeneralRegion2d copy(original);
    QnGeGeneralRegion2d assigned = GeneralRegion("circle 0,0 r9 | circle 0,0 r1 | circle 2,0 r1");
    assigned = original;
    const QnGeGeneralRegion2d& self = assigned;
    assigned = self;
    const std::unique_ptr<QnGeObject> clone(original.Clone());
    const std::unique_ptr<QnGeObject> cloneNew(original.CloneNew());
    original.Reset();
    EXPECT_EQ(Record(copy), before);
    EXPECT_EQ(Record(assigned), before);
    EXPECT_EQ(Record(*clone), before);
    EXPECT_EQ(Record(*cloneNew), before);
    EXPECT_EQ(clone->GetClassID(), CLASS_ID_GENERAL_REGION2D);
}

TEST(QnGeGeneralRegion2d, TheWholePlaneIsCopiedClonedAndStreamed) {
    const QnGeGeneralRegion2d plane;
    const QnGeGeneralRegion2d copy(plane);
    QnGeGeneralRegion2d assigned = GeneralRegion("circle 0,0 r9");
    assigned = plane;
    const std::unique_ptr<QnGeObject> clone(plane.Clone());
    const std::unique_ptr<QnGeObject> cloneNew(plane.CloneNew());
    EXPECT_TRUE(copy.IsEntirePlane());
    EXPECT_TRUE(assigned.IsEntirePlane());
    for (const QnGeObject* const object : {clone.get(), cloneNew.get()}) {
        ASSERT_NE(object, nullptr);
        EXPECT_EQ(static_cast<const QnGeGeneralRegion2d*>(object)->GetBoundaryNum(), 1);
    }
}

// ---- boundaries ------------------------------------------------------------------------------------

TEST(QnGeGeneralRegion2d, SetOutlineReplacesTheOneBefore) {
    QnGeGeneralRegion2d region = *ParseGeoAs<QnGeGeneralRegion2d>(RING);
    region.SetOutline(NewCurve("circle 0,0 r7 cw"), true);
    ExpectGeo(region, "general region circle 0,0 r7 | circle 0,0 r2 cw");
    region.SetOutline(NewCurve("circle 0,0 r8 cw"), false);
    ExpectGeo(region, "general region circle 0,0 r8 cw | circle 0,0 r2 cw");
    region.SetOutline(nullptr, true);
    EXPECT_FALSE(region.IsOutlineExist());
    EXPECT_EQ(region.GetBoundaryNum(), 2);
    region.SetOutline(NewCurve("mline 0,0 0,1 1,1"), true);
    ExpectGeo(region.GetBoundary(0), "mline 0,0 0,1 1,1");
}

TEST(QnGeGeneralRegion2d, HolesAreDeletedFetchedAndCleared) {
    QnGeGeneralRegion2d region =
        GeneralRegion("circle 0,0 r9 | circle 0,0 r1 cw | circle 4,0 r1 cw | circle -4,0 r1 cw");
    region.DelHole(1);
    ExpectGeo(region, "general region circle 0,0 r9 | circle 0,0 r1 cw | circle -4,0 r1 cw");
    const std::unique_ptr<QnGeCurve2d> hole(region.FetchHole(0));
    ExpectGeo(hole.get(), "circle 0,0 r1 cw");
    EXPECT_EQ(region.GetHoleNum(), 1);
    EXPECT_EQ(region.FetchHole(5), nullptr);
    EXPECT_EQ(region.FetchHole(-1), nullptr);
    region.ClearHole();
    ExpectGeo(region, "general region circle 0,0 r9");
    region.Reset();
    EXPECT_TRUE(region.IsEntirePlane());
    EXPECT_EQ(region.GetBoundaryNum(), 1);
}

TEST(QnGeGeneralRegion2dAppendHole, RefusesNull) {
    QnGeGeneralRegion2d region = GeneralRegion("circle 0,0 r9");
    EXPECT_FALSE(region.AppendHole(nullptr, false));
    EXPECT_FALSE(region.AppendHole(nullptr, true));
    EXPECT_EQ(region.GetHoleNum(), 0);
}

TEST(QnGeGeneralRegion2dAppendHole, WithoutCheckTakesClosedCurvesAsTheyAre) {
    QnGeGeneralRegion2d region = GeneralRegion("circle 0,0 r9");
    EXPECT_TRUE(region.AppendHole(NewCurve("circle 0,0 r1"), false));
    EXPECT_TRUE(region.AppendHole(NewCurve("circle 50,0 r1 cw"), false));
    ExpectGeo(region, "general region circle 0,0 r9 | circle 0,0 r1 | circle 50,0 r1 cw");
}

TEST(QnGeGeneralRegion2dAppendHole, KeptOddWithoutCheckAnOpenCurveIsReversed) {
    QnGeGeneralRegion2d region = GeneralRegion("circle 0,0 r9");
    EXPECT_TRUE(region.AppendHole(NewCurve("mline 1,1 2,1 2,2"), false));
    ExpectGeo(region.GetBoundary(1), "mline 2,2 2,1 1,1");
}

TEST(QnGeGeneralRegion2dAppendHole, WithCheckStoresHolesClockwise) {
    QnGeGeneralRegion2d region = GeneralRegion("mline 0,0 9,0 9,9 0,9 close");
    EXPECT_TRUE(region.AppendHole(NewCurve("mline 1,1 2,1 2,2 1,2 close"), true));
    EXPECT_TRUE(region.AppendHole(NewCurve("mline 5,5 5,6 6,6 6,5 close"), true));
    ExpectGeo(region.GetBoundary(1), "mline 1,1 1,2 2,2 2,1 close");
    ExpectGeo(region.GetBoundary(2), "mline 5,5 5,6 6,6 6,5 close");
}

TEST(QnGeGeneralRegion2dAppendHole, WithTheFlagBoundariesMustNotMeet) {
    QnGeGeneralRegion2d region = GeneralRegion("circle 0,0 r9");
    region.SetAllowBoundaryInter(false);
    EXPECT_FALSE(region.AppendHole(NewCurve("circle 8.5,0 r1"), true));
    EXPECT_FALSE(region.AppendHole(NewCurve("circle 8,0 r1"), true));
    EXPECT_EQ(region.GetHoleNum(), 0);
}

// The inclusion of one region in another asks what remains of it, and regions of this class answer that with nothing.
TEST(QnGeGeneralRegion2dAppendHole, WithCheckAHoleMustLieInTheRegion) {
    QnGeGeneralRegion2d region = GeneralRegion("mline 0,0 9,0 9,9 0,9 close");
    EXPECT_FALSE(region.AppendHole(NewCurve("mline 18,1 22,1 22,2 18,2 close"), true));
    EXPECT_FALSE(region.AppendHole(NewCurve("mline 8,1 10,1 10,2 8,2 close"), true));
    EXPECT_FALSE(region.AppendHole(NewCurve("circle 8,8 r2"), true));
    EXPECT_FALSE(region.AppendHole(NewCurve("circle 4,4 r20"), true));
    EXPECT_EQ(region.GetHoleNum(), 0);

    EXPECT_TRUE(region.AppendHole(NewCurve("mline 1,1 2,1 2,2 1,2 close"), true));
    EXPECT_TRUE(region.AppendHole(NewCurve("circle 5,5 r2"), true));
    EXPECT_EQ(region.GetHoleNum(), 2);
    EXPECT_TRUE(region.IsValid());
}

TEST(QnGeGeneralRegion2dAppendHole, WithCheckAHoleMustNotCoverAnother) {
    QnGeGeneralRegion2d region = GeneralRegion("mline 0,0 9,0 9,9 0,9 close");
    EXPECT_TRUE(region.AppendHole(NewCurve("circle 5,5 r1"), true));
    EXPECT_FALSE(region.AppendHole(NewCurve("circle 5,5 r2"), true));
    EXPECT_FALSE(region.AppendHole(NewCurve("circle 5,5 r0.5"), true));
    EXPECT_EQ(region.GetHoleNum(), 1);
}

TEST(QnGeGeneralRegion2d, IncludesWhatLiesInItAndOutOfItsHoles) {
    const QnGeGeneralRegion2d ring = GeneralRegion("circle 0,0 r5 | circle 0,0 r2 cw");
    EXPECT_TRUE(ring.IsInclude(GeneralRegion("circle 3.5,0 r1")));
    EXPECT_TRUE(ring.IsInclude(GeneralRegion("circle 0,0 r5 | circle 0,0 r2 cw")));
    EXPECT_TRUE(ring.IsInclude(GeneralRegion("circle 0,0 r4 | circle 0,0 r3 cw")));
    EXPECT_FALSE(ring.IsInclude(GeneralRegion("circle 0,0 r4")));
    EXPECT_FALSE(ring.IsInclude(GeneralRegion("circle 0,0 r1")));
    EXPECT_FALSE(ring.IsInclude(GeneralRegion("circle 4,0 r2")));
    EXPECT_FALSE(ring.IsInclude(GeneralRegion("circle 50,0 r2")));
    EXPECT_FALSE(ring.IsInclude(QnGeGeneralRegion2d()));
    EXPECT_TRUE(QnGeGeneralRegion2d().IsInclude(ring));
    EXPECT_TRUE(QnGeGeneralRegion2d().IsInclude(QnGeGeneralRegion2d()));
}

// ---- stream ----------------------------------------------------------------------------------------

TEST(QnGeGeneralRegion2dStream, RecordIsTheFlagsAndAnObjectList) {
    QnGeGeneralRegion2d region = GeneralRegion("mline 0,0 9,0 9,9 close | circle 1,2 r3 cw");
    region.SetAllowBoundaryInter(false);
    QnDynArrayStream expected(64, 64);
    expected << 0x10L << 2L;
    expected << 116L;
    region.GetBoundary(0)->StreamOut(expected);
    expected << 114L;
    region.GetBoundary(1)->StreamOut(expected);
    EXPECT_EQ(Record(region), BytesOf(expected));
}

TEST(QnGeGeneralRegion2dStream, AMissingOutlineIsAnIdOfZeroWithoutRecord) {
    QnDynArrayStream plane(64, 64);
    plane << 0L << 1L << 0L;
    EXPECT_EQ(Record(QnGeGeneralRegion2d()), BytesOf(plane));

    QnGeGeneralRegion2d region;
    region.AppendHole(NewCurve("circle 1,2 r3 cw"), false);
    QnDynArrayStream expected(64, 64);
    expected << 0L << 2L << 0L << 114L;
    region.GetBoundary(1)->StreamOut(expected);
    EXPECT_EQ(Record(region), BytesOf(expected));

    expected << 77L;
    expected.MoveToFirst();
    QnGeGeneralRegion2d read = GeneralRegion("circle 0,0 r9 | circle 0,0 r1");
    read.StreamIn(expected);
    EXPECT_EQ(read.GetBoundary(0), nullptr);
    EXPECT_EQ(Record(read), Record(region));
    long next = 0;
    expected >> next;
    EXPECT_EQ(next, 77);
}

TEST(QnGeGeneralRegion2dStream, AnOutlineIsThereAfterAnyStream) {
    const auto read = [](const std::vector<long>& numbers) {
        QnDynArrayStream stream(64, 64);
        for (const long number : numbers) {
            stream << number;
        }
        stream.MoveToFirst();
        QnGeGeneralRegion2d region = GeneralRegion("circle 0,0 r9 | circle 0,0 r1");
        region.StreamIn(stream);
        return region;
    };
    EXPECT_TRUE(read({}).IsEntirePlane());
    EXPECT_EQ(read({}).GetBoundaryNum(), 1);
    EXPECT_EQ(read({0, 0}).GetBoundaryNum(), 1);
    EXPECT_EQ(read({0, -3}).GetBoundaryNum(), 1);
    EXPECT_FALSE(read({0, 1, 9999}).IsOutlineExist()) << "an unknown class";
    EXPECT_FALSE(read({0, 1, 110}).IsOutlineExist()) << "a class without factory";
    EXPECT_FALSE(read({0, 2}).IsOutlineExist()) << "truncated before the first";
    EXPECT_GE(read({0, 3}).GetBoundaryNum(), 1);
    EXPECT_TRUE(read({0, 1, 116}).IsOutlineExist()) << "truncated in the first";
}

TEST(QnGeGeneralRegion2dStream, ObjectsThatAreNoCurvesDoNoHarm) {
    for (const long id : {102L, 301L, 303L, 1002L}) {
        QnDynArrayStream stream(64, 64);
        stream << 0L << 2L << id << 0L << 0L << 0L << 0L << 0L << 0L << 0L;
        stream.MoveToFirst();
        QnGeGeneralRegion2d region;
        region.StreamIn(stream);
        EXPECT_FALSE(region.IsClosed()) << id;
        EXPECT_EQ(region.Area(), 0.0) << id;
        static_cast<void>(region.HitTest(QnGePoint(1.0, 1.0)));
        static_cast<void>(region.IsValid());
    }
}

TEST(QnGeGeneralRegion2dStream, ReadsBackWhatItWrote) {
    const char* const texts[] = {RING, "general region line 0,0 1,0", "general region pline 0,0@pi 4,0@-1 5,5 close"};
    for (const char* const text : texts) {
        const auto region = ParseGeoAs<QnGeGeneralRegion2d>(text);
        QnDynArrayStream stream(64, 64);
        region->StreamOut(stream);
        stream.MoveToFirst();
        QnGeGeneralRegion2d read;
        read.StreamIn(stream);
        EXPECT_EQ(Record(read), Record(*region));
        ExpectGeo(read, text, 0.0);
    }
}
