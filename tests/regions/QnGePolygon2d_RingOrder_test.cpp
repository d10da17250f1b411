// SPDX-License-Identifier: Apache-2.0
// In which order the rings of a boolean come, and what two rings of a difference say about each other.

#include <gtest/gtest.h>

#include "RegionTesting.h"

using namespace region_testing;

namespace {

QnGeObjList Subtract(const std::string& a, const std::string& b) {
    QnGeObjList rest;
    Polygon(a).SubtractBy(Polygon(b), rest);
    return rest;
}

}  // namespace

TEST(QnGePolygon2dRingOrder, VerticesOfTheSecondComeBeforeThoseOfTheFirstAndThenCrossings) {
    // A comb over a bar. Its left tooth crosses the bar inside edges, the middle one ends on the bar's lower side, the
    // right one passes a vertex of the bar. By the edges of the bar alone the left tooth would come first.
    const QnGePolygon2d bar = Polygon("0,0 12,0 12,1 8,1 4,1 0,1");
    const QnGePolygon2d comb = Polygon("0,3 0,2 1,2 1,-1 2,-1 2,2 5,2 5,0 6,0 6,2 8,2 8,-1 9,-1 9,2 11,2 11,3");
    QnGeObjList teeth;
    EXPECT_TRUE(bar.Inter(comb, teeth));
    ExpectGeoList(teeth, "region 6,0 6,1 5,1 5,0; region 8,1 8,0 9,0 9,1; region 1,0 2,0 2,1 1,1");
    // The other way round the bar is the second.
    teeth.Reset();
    EXPECT_TRUE(comb.Inter(bar, teeth));
    ASSERT_EQ(teeth.GetLength(), 3);
    EXPECT_TRUE(IsRegion(RegionAt(teeth, 0), "region 8,1 8,0 9,0 9,1"));
    EXPECT_TRUE(IsRegion(RegionAt(teeth, 1), "region 6,0 6,1 5,1 5,0"));
    EXPECT_TRUE(IsRegion(RegionAt(teeth, 2), "region 1,0 2,0 2,1 1,1"));
}

TEST(QnGePolygon2dRingOrder, AVertexOfBothStandsWithTheFirst) {
    // One ring starts at the corner 0,0 that both have as their first vertex, the other one at 7,6, where a later
    // vertex of the second lies on an edge of the first.
    const QnGePolygon2d block = Polygon("0,0 12,0 12,6 0,6");
    const QnGePolygon2d claw = Polygon("0,0 5,3 -1,4 -1,7 7,7 7,6 7,4 8,4 8,7 9,7 9,8 -2,8 -2,-1");
    QnGeObjList pieces;
    EXPECT_TRUE(block.Inter(claw, pieces));
    ExpectGeoList(pieces, "region 7,6 7,4 8,4 8,6; region 0,0 5,3 0,3.8333333333333333");
}

// ---- two rings of a difference ---------------------------------------------------------------------

TEST(QnGePolygon2dSubtract, OfTwoRingsAClockwiseSecondOneIsAHole) {
    // The subtrahend touches the outline from inside at one of its vertices.
    ExpectGeoList(Subtract("1,4 0,3 1,0 2,0 3,3", "2,1 3,3 1,3"), "region 1,4 0,3 1,0 2,0 3,3 | 2,1 1,3 3,3", 0.0);
    ExpectGeoList(Subtract("4,3 0,4 0,1 1,0 4,2", "3,3 0,3 2,1"), "region 4,3 0,4 0,1 1,0 4,2 | 3,3 2,1 0,3", 0.0);
}

TEST(QnGePolygon2dSubtract, KeptOddOfTwoRingsOfAClockwiseOperandEitherMakesTheOtherAHole) {
    // A clockwise clamp is all that lies outside of it. Less the bar that closes it there remain the room between
    // the two and all that lies outside both, which runs clockwise. The start of the clamp decides which of them
    // comes first.
    for (const char* const clamp : {"0,3 3,3 3,2 1,2 1,1 3,1 3,0 0,0", "3,2 1,2 1,1 3,1 3,0 0,0 0,3 3,3"}) {
        ExpectGeoList(Subtract(clamp, "2,-1 2.5,-1 2.5,4 2,4"),
                      std::string("region ") + clamp + " | 2,-1 2,4 2.5,4 2.5,-1", 0.0);
    }
}
