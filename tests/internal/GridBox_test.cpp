// SPDX-License-Identifier: Apache-2.0
#include "spatial/detail/GridBox.h"

#include <gtest/gtest.h>

#include <limits>

#include "frame/QnPushVar.h"
#include "support/RandomSource.h"

// What the grid says of boxes, against the tests of extents: what they meet it meets, and what it is sure of they meet.

namespace {

using qn_detail::Grid;
using qn_detail::GridBox;
using qn_detail::GridSearch;

/// A coordinate in the range, on one of few places, far out, near another by the tolerance, or none at all.
double RandomPlace(RandomSource& random, const QnGeExtent& range) {
    constexpr double INF = std::numeric_limits<double>::infinity();
    constexpr double ODD[] = {INF, -INF, 1e308, -1e308, std::numeric_limits<double>::quiet_NaN()};
    const double place = range.min + range.GetLength() * 0.125 * random.Int(-1, 9);
    switch (random.Int(0, 3)) {
        case 0:
            return random.Double(range.min, range.max);
        case 1:
            return place + g_distZero * 0.5 * random.Int(-3, 3);
        case 2:
            return random.OneIn(10) ? ODD[random.Int(0, 4)] : place;
        default:
            return place;
    }
}

QnGeExtent2d RandomBox(RandomSource& random, const QnGeExtent2d& range) {
    return QnGeExtent2d(RandomPlace(random, range.x), RandomPlace(random, range.x), RandomPlace(random, range.y),
                        RandomPlace(random, range.y));
}

}  // namespace

TEST(GridBox, GridMeetsAllThatTheBoxesMeetAndIsSureOfNoMore) {
    const QnGeExtent2d ranges[] = {
        {-8, 8, -8, 8}, {5e5, 5e5 + 1, 4e6, 4e6 + 1e-3}, {0, 0, 0, 1e300}, {-1e9, 3, 0, 1e-5}};
    int surely = 0;
    int surelyNot = 0;
    for (const QnGeExtent2d& range : ranges) {
        const Grid grid(range);
        RandomSource random(BaseSeed());
        for (int run = 0; run < 50000; ++run) {
            const QnPushVar<double> tolerance(g_distZero, random.OneIn(4) ? random.Double(-0.1, 0.5) : 1e-6);
            QnGeExtent2d boxes[GridSearch::COUNT];
            GridBox onGrid[GridSearch::COUNT];
            for (int k = 0; k < GridSearch::COUNT; ++k) {
                boxes[k] = RandomBox(random, range);
                onGrid[k] = grid.BoxOf(boxes[k]);
            }
            const QnGeExtent2d searched = RandomBox(random, range);
            const GridSearch search = grid.SearchFor(searched);
            const unsigned meeting = search.GetMeeting(onGrid, onGrid + GridSearch::PAIR);
            const unsigned sure = search.GetSure(onGrid, onGrid + GridSearch::PAIR);
            for (int k = 0; k < GridSearch::COUNT; ++k) {
                const bool isMet = boxes[k].IsInsersectWith(searched);
                ASSERT_TRUE(!isMet || (meeting >> k & 1U) != 0) << "run " << run;
                ASSERT_TRUE(isMet || ((meeting & sure) >> k & 1U) == 0) << "run " << run;
                surely += static_cast<int>((meeting & sure) >> k & 1U);
                surelyNot += static_cast<int>(~meeting >> k & 1U);
            }
        }
    }
    EXPECT_GT(surely, 10000);
    EXPECT_GT(surelyNot, 10000);
}

TEST(GridBox, EmptyBoxIsMetByNothingAndNeutralInHulls) {
    const Grid grid(QnGeExtent2d(-1, 1, -1, 1));
    const GridBox empties[GridSearch::COUNT] = {GridBox::Empty(), GridBox::Empty(), GridBox::Empty(), GridBox::Empty()};
    const GridSearch search = grid.SearchFor(QnGeExtent2d(-1e300, 1e300, -1e300, 1e300));
    EXPECT_EQ(search.GetMeeting(empties, empties + GridSearch::PAIR), 0U);
    EXPECT_EQ(search.GetSure(empties, empties + GridSearch::PAIR), 0U);
    const GridBox box = GridBox::Of(-5, 2, 7, 11);
    const GridBox hull = box.With(GridBox::Empty());
    EXPECT_EQ(hull.X0(), -5);
    EXPECT_EQ(hull.Y0(), 2);
    EXPECT_EQ(hull.X1(), 7);
    EXPECT_EQ(hull.Y1(), 11);
}

TEST(GridBox, HullHoldsBothAndHoldingInsideMeansWithoutTouching) {
    const GridBox hull = GridBox::Of(0, 0, 4, 4).With(GridBox::Of(2, -3, 9, 1));
    EXPECT_EQ(hull.X0(), 0);
    EXPECT_EQ(hull.Y0(), -3);
    EXPECT_EQ(hull.X1(), 9);
    EXPECT_EQ(hull.Y1(), 4);
    EXPECT_TRUE(hull.HoldsInside(GridBox::Of(1, -2, 8, 3)));
    EXPECT_FALSE(hull.HoldsInside(GridBox::Of(0, -2, 8, 3)));
    EXPECT_FALSE(hull.HoldsInside(GridBox::Of(1, -3, 8, 3)));
    EXPECT_FALSE(hull.HoldsInside(GridBox::Of(1, -2, 9, 3)));
    EXPECT_FALSE(hull.HoldsInside(GridBox::Of(1, -2, 8, 4)));
}
