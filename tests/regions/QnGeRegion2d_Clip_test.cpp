// SPDX-License-Identifier: Apache-2.0
// Objects sorted against a region, and the questions that rest on it: inclusion, intersection, subtraction of a list.

#include <gtest/gtest.h>

#include "BoundaryRegion.h"
#include "RegionTesting.h"
#include "curves2d/QnGeLineSeg2d.h"

using namespace region_testing;

namespace {

/// A square of side 10 with a hole from 4,4 to 6,6.
const char* const HOLED = "0,0 10,0 10,10 0,10 | 4,4 4,6 6,6 6,4";

void ExpectClip(const QnGeRegion2d& region, const std::string& object, const std::string& in, const std::string& out,
                const std::string& on) {
    QnGeObjList inside;
    QnGeObjList outside;
    QnGeObjList along;
    const auto given = ParseGeo(object);
    const auto before = Record(*given);
    region.Clip(*given, inside, outside, along);
    SCOPED_TRACE(object);
    ExpectGeoList(inside, in);
    ExpectGeoList(outside, out);
    ExpectGeoList(along, on);
    EXPECT_EQ(Record(*given), before);
}

bool DoesInclude(const QnGeRegion2d& region, const std::string& object) {
    return region.IsInclude(*ParseGeo(object));
}

}  // namespace

// ---- clipping --------------------------------------------------------------------------------------

TEST(QnGeRegion2dClip, SortsPiecesIntoInsideOutsideAndAlong) {
    const QnGePolygon2d square = Polygon("0,0 10,0 10,10 0,10");
    ExpectClip(square, "seg -2,5 12,5", "seg 0,5 10,5", "seg -2,5 0,5; seg 10,5 12,5", "");
    ExpectClip(square, "seg 1,1 2,2", "seg 1,1 2,2", "", "");
    ExpectClip(square, "seg -2,-2 -1,5", "", "seg -2,-2 -1,5", "");
    ExpectClip(square, "seg -2,0 5,0", "", "seg -2,0 0,0", "seg 0,0 5,0");
    ExpectClip(square, "seg 2,0 5,0", "", "", "seg 2,0 5,0");
}

TEST(QnGeRegion2dClip, WhatIsInAHoleIsOutside) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    // The pieces outside the outline come before those in a hole.
    ExpectClip(holed, "seg -2,5 12,5", "seg 0,5 4,5; seg 6,5 10,5", "seg -2,5 0,5; seg 10,5 12,5; seg 4,5 6,5", "");
    ExpectClip(holed, "seg 4.5,4.5 5,5", "", "seg 4.5,4.5 5,5", "");
    ExpectClip(holed, "seg 1,6 9,6", "seg 1,6 4,6; seg 6,6 9,6", "", "seg 4,6 6,6");
}

TEST(QnGeRegion2dClip, EachHoleTakesItsShare) {
    const QnGeGeneralPolygon2d region = GeneralPolygon("0,0 10,0 10,10 0,10 | 1,4 1,6 2,6 2,4 | 5,4 5,6 6,6 6,4");
    ExpectClip(region, "seg 0,5 10,5", "seg 0,5 1,5; seg 2,5 5,5; seg 6,5 10,5", "seg 1,5 2,5; seg 5,5 6,5", "");
}

TEST(QnGeRegion2dClip, StopsWhenNothingIsInsideTheOutline) {
    ExpectClip(GeneralPolygon(HOLED), "seg -9,5 -1,5", "", "seg -9,5 -1,5", "");
    ExpectClip(GeneralPolygon(HOLED), "seg 0,0 0,10", "", "", "seg 0,0 0,10");
}

TEST(QnGeRegion2dClip, SortsPoints) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    ExpectClip(holed, "point 1,1", "point 1,1", "", "");
    ExpectClip(holed, "point 11,1", "", "point 11,1", "");
    ExpectClip(holed, "point 10,1", "", "", "point 10,1");
    ExpectClip(holed, "point 5,5", "", "point 5,5", "");
    ExpectClip(holed, "point 4,5", "", "", "point 4,5");
}

TEST(QnGeRegion2dClip, WithoutOutlineOnlyTheHolesCut) {
    ExpectClip(BoundaryRegion("null; mline 4,4 4,6 6,6 6,4 close"), "seg 0,5 10,5", "seg 0,5 4,5; seg 6,5 10,5",
               "seg 4,5 6,5", "");
    ExpectClip(QnGeGeneralRegion2d(), "seg 0,5 10,5", "seg 0,5 10,5", "", "");
    ExpectClip(QnGeGeneralRegion2d(), "point 0,5", "point 0,5", "", "");
}

TEST(QnGeRegion2dClip, MissingHolesAreSkipped) {
    ExpectClip(BoundaryRegion("mline 0,0 10,0 10,10 0,10 close; null; mline 4,4 4,6 6,6 6,4 close"), "seg 0,5 10,5",
               "seg 0,5 4,5; seg 6,5 10,5", "seg 4,5 6,5", "");
}

TEST(QnGeRegion2dClip, CurvedBoundariesCutToo) {
    ExpectClip(BoundaryRegion("circle 0,0 r5; circle 0,0 r2 cw"), "seg -9,0 9,0", "seg -5,0 -2,0; seg 2,0 5,0",
               "seg -9,0 -5,0; seg 5,0 9,0; seg -2,0 2,0", "");
}

TEST(QnGeRegion2dClip, TheListsMayBeOne) {
    QnGeObjList all;
    GeneralPolygon(HOLED).Clip(*ParseGeo("seg -2,5 12,5"), all, all, all);
    ASSERT_EQ(all.GetLength(), 5);
    ExpectGeoList(all, "seg -2,5 0,5; seg 10,5 12,5; seg 4,5 6,5; seg 0,5 4,5; seg 6,5 10,5");
}

TEST(QnGeRegion2dClip, AppendsBehindWhatTheListsHold) {
    QnGeObjList in;
    QnGeObjList out;
    QnGeObjList on;
    ParseGeoList("point 7,7", in);
    ParseGeoList("point 8,8", out);
    GeneralPolygon(HOLED).Clip(*ParseGeo("seg -2,1 5,1"), in, out, on);
    ExpectGeoList(in, "point 7,7; seg 0,1 5,1");
    ExpectGeoList(out, "point 8,8; seg -2,1 0,1");
}

TEST(QnGeRegion2dClip, RandomSegmentsFallIntoTheirShares) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        RandomSource random(CaseSeed(80, i));
        QnGeGeneralPolygon2d region(MakeOutline(polygon_pairs::Star(random, random.Int(5, 12), 0.0, 0.0, 3.0, 5.0)),
                                    true);
        QnGeMLine2d hole = MakeOutline(polygon_pairs::Star(random, random.Int(5, 9), 0.0, 0.0, 0.5, 1.5));
        hole.Reverse();
        region.AppendHole(new QnGeMLine2d(hole), false);
        const QnGeLineSeg2d segment(QnGePoint(random.Double(-6.0, 6.0), random.Double(-6.0, 6.0)),
                                    QnGePoint(random.Double(-6.0, 6.0), random.Double(-6.0, 6.0)));
        QnGeObjList in;
        QnGeObjList out;
        QnGeObjList on;
        region.Clip(segment, in, out, on);
        const Rings rings = RingsOf(region);
        double length = 0.0;
        SCOPED_TRACE("seed " + std::to_string(CaseSeed(80, i)) + '\n' + ToText(region) + '\n' + ToText(segment));
        for (const QnGeObjList* const list : {&in, &out}) {
            for (long k = 0; k < list->GetLength(); ++k) {
                const auto& piece = dynamic_cast<const QnGeLineSeg2d&>(*list->GetPData(k));
                length += piece.Length();
                const QnGePoint middle = piece.GetMidPoint();
                if (exact_area::DistanceToRings(rings, middle) > 1e-6) {
                    EXPECT_EQ(exact_area::WindingNumber(rings, middle), list == &in ? 1 : 0);
                }
            }
        }
        // Only a tiny piece, cut off at a corner, has its middle so near the boundary that it counts as on it.
        for (long k = 0; k < on.GetLength(); ++k) {
            const auto& piece = dynamic_cast<const QnGeLineSeg2d&>(*on.GetPData(k));
            length += piece.Length();
            EXPECT_LE(exact_area::DistanceToRings(rings, piece.GetMidPoint()), 1.001e-6);
        }
        EXPECT_NEAR(length, segment.Length(), 1e-9);
        EXPECT_EQ(region.IsInclude(segment), out.GetLength() == 0);
        if (HasFailure()) {
            return;
        }
    }
}

// ---- inclusion -------------------------------------------------------------------------------------

TEST(QnGeRegion2dIsInclude, LooksForPiecesOutside) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    EXPECT_TRUE(DoesInclude(holed, "seg 1,1 9,1"));
    EXPECT_TRUE(DoesInclude(holed, "seg 0,0 10,0"));
    EXPECT_TRUE(DoesInclude(holed, "seg 4,4 4,6"));
    EXPECT_FALSE(DoesInclude(holed, "seg 1,5 9,5"));
    EXPECT_FALSE(DoesInclude(holed, "seg 9,9 11,9"));
    EXPECT_FALSE(DoesInclude(holed, "seg 19,9 11,9"));
    EXPECT_TRUE(DoesInclude(holed, "point 1,1"));
    EXPECT_TRUE(DoesInclude(holed, "point 0,0"));
    EXPECT_TRUE(DoesInclude(holed, "point 6,6"));
    EXPECT_FALSE(DoesInclude(holed, "point 5,5"));
    EXPECT_FALSE(DoesInclude(holed, "point -1,5"));
    EXPECT_TRUE(DoesInclude(holed, "circle 2,2 r1"));
    EXPECT_FALSE(DoesInclude(holed, "circle 2,2 r3"));
    EXPECT_TRUE(DoesInclude(holed, "mline 1,1 9,1 9,9 1,9 close"));
}

TEST(QnGeRegion2dIsInclude, OfAPolygonAsksWhetherSomethingRemains) {
    const QnGePolygon2d square = Polygon("0,0 10,0 10,10 0,10");
    EXPECT_TRUE(DoesInclude(square, "region 1,1 2,1 2,2"));
    EXPECT_TRUE(DoesInclude(square, "region 0,0 10,0 10,10 0,10"));
    EXPECT_TRUE(DoesInclude(square, "region 0,0 5,0 5,5"));
    EXPECT_FALSE(DoesInclude(square, "region 1,1 12,1 2,2"));
    EXPECT_FALSE(DoesInclude(square, "region 21,1 22,1 22,2"));
    EXPECT_FALSE(DoesInclude(square, "region -1,-1 11,-1 11,11 -1,11"));
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    EXPECT_TRUE(DoesInclude(holed, "region 1,1 2,1 2,2"));
    EXPECT_FALSE(DoesInclude(holed, "region 4.5,4.5 5,4.5 5,5"));
    EXPECT_FALSE(DoesInclude(holed, "region 3,3 5,3 5,5 3,5"));
}

TEST(QnGeRegion2dIsInclude, TheWholePlaneIncludesWhatLiesInThePlan) {
    const QnGeGeneralRegion2d plane;
    EXPECT_TRUE(DoesInclude(plane, "point 1e9,0"));
    EXPECT_TRUE(DoesInclude(plane, "seg 0,0 1e9,0"));
    EXPECT_TRUE(DoesInclude(plane, "line 0,0 1,0"));
}

// ---- intersection ----------------------------------------------------------------------------------

TEST(QnGeRegion2dIntersectWith, GivesThePiecesInsideAndAlong) {
    const std::string holed = std::string("region ") + HOLED;
    ExpectIntersect(holed, "seg -2,5 12,5", "seg 0,5 4,5; seg 6,5 10,5");
    ExpectIntersect(holed, "seg 2,0 5,0", "seg 2,0 5,0");
    ExpectIntersect(holed, "point 1,1", "point 1,1");
    ExpectIntersect(holed, "point 4,4", "point 4,4");
    ExpectIntersect(holed, "point 5,5", "");
    ExpectIntersect(holed, "seg 4.5,4.5 5,5", "");
    ExpectIntersect(holed, "seg -5,0 -1,0", "");
}

TEST(QnGeRegion2dIntersectWith, OfTwoPolygonsIsTheirCommonArea) {
    ExpectIntersect("region 0,0 2,0 2,2 0,2", "region 1,1 3,1 3,3 1,3", "region 2,1 2,2 1,2 1,1");
    ExpectIntersect("region 0,0 2,0 2,2 0,2", "region 9,1 10,1 10,3", "");
}

// ---- less a list of regions ------------------------------------------------------------------------

TEST(QnGeRegion2dSubtractList, WithoutRegionsGivesAClone) {
    const QnGeGeneralPolygon2d holed = GeneralPolygon(HOLED);
    QnGeObjList regions;
    QnGeObjList rest;
    holed.SubtractBy(regions, rest);
    ExpectGeoList(rest, std::string("region ") + HOLED, 0.0);
    regions.Append(nullptr);
    regions.Append(nullptr);
    rest.Reset();
    holed.SubtractBy(regions, rest);
    ExpectGeoList(rest, std::string("region ") + HOLED, 0.0);
}

TEST(QnGeRegion2dSubtractList, TakesAwayOneAfterTheOther) {
    QnGeObjList regions;
    QnGeObjList rest;
    ParseGeoList("region 1,-1 2,-1 2,5 1,5; region -1,1 5,1 5,2 -1,2", regions);
    regions.Insert(1, nullptr);
    Polygon("0,0 4,0 4,4 0,4").SubtractBy(regions, rest);
    EXPECT_TRUE(HasRegions(rest,
                           "region 0,0 1,0 1,1 0,1; region 2,0 4,0 4,1 2,1; region 0,2 1,2 1,4 0,4; "
                           "region 2,2 4,2 4,4 2,4"));
    EXPECT_EQ(regions.GetLength(), 3);
}

TEST(QnGeRegion2dSubtractList, OneRegionIsThePlainDifference) {
    QnGeObjList regions;
    QnGeObjList rest;
    ParseGeoList("region 1,1 3,1 3,3 1,3", regions);
    Polygon("0,0 2,0 2,2 0,2").SubtractBy(regions, rest);
    ExpectGeoList(rest, "region 2,1 1,1 1,2 0,2 0,0 2,0");
}

TEST(QnGeRegion2dSubtractList, EndsWithNothingAsSoonAsNothingIsLeft) {
    for (const char* const list : {"region -1,-1 5,-1 5,5 -1,5; region 8,8 9,8 9,9",
                                   "region -1,-1 2,-1 2,5 -1,5; region 2,-1 5,-1 5,5 2,5; region 8,8 9,8 9,9"}) {
        QnGeObjList regions;
        QnGeObjList rest;
        ParseGeoList(list, regions);
        ParseGeoList("point 7,7", rest);
        Polygon("0,0 4,0 4,4 0,4").SubtractBy(regions, rest);
        ExpectGeoList(rest, "point 7,7");
    }
}

TEST(QnGeRegion2dSubtractList, AreasAddUpForRandomBars) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < 2000; ++i) {
        using namespace lattice_polygons;
        RandomSource random(CaseSeed(81, i));
        Cells rest = GrowCells(random, 20, 6);
        const QnGePolygon2d polygon = PolygonOf(OutlineOf(rest));
        QnGeObjList bars;
        const int count = random.Int(1, 3);
        for (int k = 0; k < count; ++k) {
            // Bars of one column each, beyond the shape at both ends, so that no piece becomes a ring.
            const int column = random.Int(0, 5);
            bars.Append(new QnGePolygon2d(
                PolygonOf({{1.0 * column, -1.0}, {column + 1.0, -1.0}, {column + 1.0, 9.0}, {1.0 * column, 9.0}})));
            for (int y = 0; y < 6; ++y) {
                rest.erase({column, y});
            }
        }
        QnGeObjList out;
        polygon.SubtractBy(bars, out);
        ASSERT_NEAR(TotalArea(out), static_cast<double>(rest.size()), 1e-9) << "seed " << CaseSeed(81, i) << '\n'
                                                                            << ToText(polygon) << '\n'
                                                                            << ToText(bars);
    }
}
