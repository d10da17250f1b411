// SPDX-License-Identifier: Apache-2.0
// The areas of polygon booleans on random pairs, against slabs and counted cells, and against each other.

#include <gtest/gtest.h>

#include "RandomPolygonPairs.h"

using namespace region_testing;

namespace {

double AreaOf(const std::unique_ptr<QnGeRegion2d>& region) {
    return region == nullptr ? 0.0 : region->Area();
}

}  // namespace

TEST(PolygonBooleanArea, ReferenceCountsCells) {
    ForManyPairs(0, 1000, [](const SimplePair&, RandomSource& random) {
        using namespace lattice_polygons;
        const Cells a = GrowCells(random, 12, 5);
        const Cells b = GrowCells(random, 12, 5);
        const Areas areas = Measure(OutlineOf(a), OutlineOf(b));
        EXPECT_NEAR(static_cast<double>(areas.a), static_cast<double>(a.size()), 1e-12);
        EXPECT_NEAR(static_cast<double>(areas.inter), CountCommon(a, b), 1e-12);
    });
}

TEST(PolygonBooleanArea, IntersectionIsExact) {
    ForManyPairs(1, PROPERTY_CASES, [](const SimplePair& pair, RandomSource&) {
        QnGeObjList pieces;
        const bool doMeet = PolygonOf(pair.a).Inter(PolygonOf(pair.b), pieces);
        if (!pair.fillsABay) {
            EXPECT_NEAR(TotalArea(pieces), static_cast<double>(pair.areas.inter), AREA_NEAR * pair.Size());
            EXPECT_EQ(doMeet, pair.areas.inter > 1e-12L);
        }
    });
}

TEST(PolygonBooleanArea, UnionIsExactAndNullOnlyForOutlinesThatStayApart) {
    ForManyPairs(2, PROPERTY_CASES, [](const SimplePair& pair, RandomSource&) {
        const std::unique_ptr<QnGeRegion2d> unite(PolygonOf(pair.a).Union(PolygonOf(pair.b)));
        if (unite == nullptr) {
            EXPECT_LT(pair.areas.inter, 1e-12L);
            EXPECT_FALSE(pair.sharesStretch);
        } else {
            EXPECT_NEAR(unite->Area(), static_cast<double>(pair.areas.Union()), AREA_NEAR * pair.Size());
        }
    });
}

TEST(PolygonBooleanArea, DifferencesAreExact) {
    ForManyPairs(3, PROPERTY_CASES, [](const SimplePair& pair, RandomSource&) {
        QnGeObjList rest;
        PolygonOf(pair.a).SubtractBy(PolygonOf(pair.b), rest);
        EXPECT_NEAR(TotalArea(rest), static_cast<double>(pair.areas.ALessB()), AREA_NEAR * pair.Size());
    });
}

TEST(PolygonBooleanArea, CellShapesAreCounted) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        using namespace lattice_polygons;
        RandomSource random(CaseSeed(4, i));
        const int size = random.Int(2, 7);
        const Cells a = GrowCells(random, random.Int(1, 25), size);
        const Cells b = GrowCells(random, random.Int(1, 25), size);
        const Ring ringA = OutlineOf(a);
        const Ring ringB = Joined(random, OutlineOf(b), random.Int(0, 2));
        const int common = CountCommon(a, b);
        const int all = static_cast<int>(a.size() + b.size());
        const Booleans result(ringA, ringB);
        SCOPED_TRACE("seed " + std::to_string(CaseSeed(4, i)) + '\n' + PairText(ringA, ringB));
        if (!DoesFillABay(ringA, ringB, Measure(ringA, ringB))) {
            EXPECT_NEAR(TotalArea(result.inter), common, 1e-9);
        }
        EXPECT_NEAR(TotalArea(result.aLessB), static_cast<int>(a.size()) - common, 1e-9);
        EXPECT_NEAR(TotalArea(result.bLessA), static_cast<int>(b.size()) - common, 1e-9);
        if (result.unite != nullptr) {
            EXPECT_NEAR(result.unite->Area(), all - common, 1e-9);
        } else {
            EXPECT_EQ(common, 0);
        }
        if (HasFailure()) {
            return;
        }
    }
}

TEST(PolygonBooleanArea, NeighbouringCellShapesUnite) {
    std::printf("seed %u\n", BaseSeed());
    int cases = 0;
    for (int i = 0; cases < PROPERTY_CASES; ++i) {
        using namespace lattice_polygons;
        RandomSource random(CaseSeed(5, i));
        // The left half of a shape and the right half, cut apart at a column: they share edges and no area.
        const Cells whole = GrowCells(random, random.Int(2, 25), 6);
        const int column = random.Int(1, 5);
        Cells left;
        Cells right;
        for (const Cell& cell : whole) {
            (cell.first < column ? left : right).insert(cell);
        }
        if (left.empty() || right.empty()) {
            continue;
        }
        const Ring a = Joined(random, OutlineOf(left), random.Int(0, 2));
        const Ring b = Joined(random, OutlineOf(right), random.Int(0, 2));
        // A half that falls apart has no single outline.
        if (a.empty() || b.empty()) {
            continue;
        }
        ++cases;
        SCOPED_TRACE("seed " + std::to_string(CaseSeed(5, i)) + '\n' + PairText(a, b));
        const Booleans result(a, b);
        ASSERT_NE(result.unite, nullptr);
        EXPECT_NEAR(result.unite->Area(), static_cast<double>(whole.size()), 1e-9);
        EXPECT_EQ(result.unite->GetBoundaryNum(), 1);
        EXPECT_NEAR(TotalArea(result.aLessB), static_cast<double>(left.size()), 1e-9);
        EXPECT_EQ(result.Check(false), "");
        if (HasFailure()) {
            return;
        }
    }
}

TEST(PolygonBooleanArea, UnionAndIntersectionMakeTheSum) {
    ForManyPairs(6, PROPERTY_CASES, [](const SimplePair& pair, RandomSource&) {
        const QnGePolygon2d a = PolygonOf(pair.a);
        const QnGePolygon2d b = PolygonOf(pair.b);
        const std::unique_ptr<QnGeRegion2d> unite(a.Union(b));
        QnGeObjList inter;
        a.Inter(b, inter);
        if (unite != nullptr && !pair.fillsABay) {
            EXPECT_NEAR(AreaOf(unite) + TotalArea(inter), a.Area() + b.Area(), AREA_NEAR * pair.Size());
        } else if (!pair.fillsABay) {
            EXPECT_EQ(inter.GetLength(), 0);
        }
    });
}

TEST(PolygonBooleanArea, DifferenceAndIntersectionPartitionTheFirst) {
    ForManyPairs(7, PROPERTY_CASES, [](const SimplePair& pair, RandomSource&) {
        const QnGePolygon2d a = PolygonOf(pair.a);
        const QnGePolygon2d b = PolygonOf(pair.b);
        QnGeObjList inter;
        QnGeObjList rest;
        a.Inter(b, inter);
        a.SubtractBy(b, rest);
        if (!pair.fillsABay) {
            EXPECT_NEAR(TotalArea(inter) + TotalArea(rest), a.Area(), AREA_NEAR * pair.Size());
        }
    });
}

TEST(PolygonBooleanArea, OperandsMayChangePlaces) {
    ForManyPairs(8, PROPERTY_CASES, [](const SimplePair& pair, RandomSource&) {
        const Booleans one(pair.a, pair.b);
        const Booleans other(pair.b, pair.a);
        EXPECT_EQ(one.unite == nullptr, other.unite == nullptr);
        EXPECT_NEAR(AreaOf(one.unite), AreaOf(other.unite), AREA_NEAR * pair.Size());
        EXPECT_NEAR(TotalArea(one.inter), TotalArea(other.inter), AREA_NEAR * pair.Size());
        EXPECT_NEAR(TotalArea(one.aLessB), TotalArea(other.bLessA), AREA_NEAR * pair.Size());
    });
}

TEST(PolygonBooleanArea, ResultsAreWellBuilt) {
    ForManyPairs(9, PROPERTY_CASES, [](const SimplePair& pair, RandomSource&) {
        EXPECT_EQ(Booleans(pair.a, pair.b).Check(pair.general), "");
    });
}

TEST(PolygonBooleanArea, OperandsStayAsTheyAre) {
    ForManyPairs(10, 2000, [](const SimplePair& pair, RandomSource&) {
        const QnGePolygon2d a = PolygonOf(pair.a);
        const QnGePolygon2d b = PolygonOf(pair.b);
        const auto before = std::make_pair(Record(a), Record(b));
        const Booleans result(a, b);
        EXPECT_EQ(before, std::make_pair(Record(a), Record(b)));
    });
}
