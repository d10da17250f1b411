// SPDX-License-Identifier: Apache-2.0
//
// The search for boxes that meet a box, against the loop over all of them.
#include "values/detail/BoxSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

#include "support/RandomSource.h"

namespace {

using qn_detail::BoxSearch;
using qn_detail::PlanBox;
using qn_detail::PodArray;
using Boxes = std::vector<PlanBox>;
using Indexes = std::vector<std::int32_t>;

constexpr double INF = std::numeric_limits<double>::infinity();
const double NOT_A_NUMBER = std::nan("");

bool IsBounded(const PlanBox& box) {
    return std::isfinite(box.xMin) && std::isfinite(box.xMax) && std::isfinite(box.yMin) && std::isfinite(box.yMax);
}

bool HasNan(const PlanBox& box) {
    return std::isnan(box.xMin) || std::isnan(box.xMax) || std::isnan(box.yMin) || std::isnan(box.yMax);
}

Indexes FindByLoop(const Boxes& boxes, const PlanBox& query, long first, long end) {
    Indexes found;
    for (long i = first; i < end; ++i) {
        const PlanBox& box = boxes[static_cast<std::size_t>(i)];
        const bool meets =
            box.xMin <= query.xMax && query.xMin <= box.xMax && box.yMin <= query.yMax && query.yMin <= box.yMax;
        if (meets || HasNan(query) || !IsBounded(box)) {
            found.push_back(static_cast<std::int32_t>(i));
        }
    }
    return found;
}

Indexes Find(const BoxSearch& search, const PlanBox& query, long first, long end) {
    PodArray<std::int32_t> found;
    search.Find(query, first, end, found);
    return Indexes(found.begin(), found.end());
}

PlanBox BoxAt(double x, double y, double width, double height) {
    return {x, x + width, y, y + height};
}

PlanBox AnyBox(RandomSource& random, int kind, double base) {
    switch (kind) {
        case 0:  // short ones anywhere
            return BoxAt(base + random.Double(0.0, 100.0), random.Double(0.0, 100.0), random.Double(0.0, 3.0),
                         random.Double(0.0, 3.0));
        case 1:  // a lattice: touching counts
            return BoxAt(base + random.Int(0, 20), random.Int(0, 20), random.Int(0, 2), random.Int(0, 2));
        case 2: {  // clusters of very different size
            const double size = std::pow(10.0, random.Double(-12.0, 2.0));
            return BoxAt(base + random.Double(0.0, size), random.Double(0.0, size), random.Double(0.0, size / 10.0),
                         random.Double(0.0, size / 10.0));
        }
        case 3:  // long ones among short ones
            return BoxAt(base + random.Double(0.0, 10.0), random.Double(0.0, 100.0),
                         random.OneIn(10) ? 90.0 : random.Double(0.0, 1.0), random.OneIn(10) ? 90.0 : 0.0);
        case 4:  // points, many of them the same
            return BoxAt(base + random.Int(0, 5), random.Int(0, 5), 0.0, 0.0);
        default: {  // turned inside out, unbounded, no numbers, beyond floats
            const double odd[] = {INF, -INF, NOT_A_NUMBER, 1e300, -1e300, 1e39, 0.0, 1.0, 2.0, 3.0, 4.0, 5.0};
            const auto any = [&] { return odd[random.Int(random.OneIn(8) ? 0 : 6, 11)]; };
            return {any(), any(), any(), any()};
        }
    }
}

TEST(BoxSearch, FindsWhatTheLoopFinds) {
    long listed = 0;
    for (unsigned i = 0; i < 6000; ++i) {
        RandomSource random(BaseSeed() + i);
        const int kind = static_cast<int>(i) % 6;
        const double base = random.OneIn(4) ? 1e9 : 0.0;
        Boxes boxes(static_cast<std::size_t>(random.OneIn(20) ? random.Int(300, 700) : random.Int(0, 80)));
        for (PlanBox& box : boxes) {
            box = AnyBox(random, kind, base);
        }
        const BoxSearch search(boxes.data(), static_cast<long>(boxes.size()));
        const long count = search.GetCount();
        ASSERT_EQ(count, static_cast<long>(boxes.size()));
        for (int k = 0; k < 10; ++k) {
            const PlanBox query = AnyBox(random, random.OneIn(10) ? 5 : kind, base).Widened(random.Coin() ? 0.0 : 1e-6);
            const long at = random.Long(0, count);
            const Indexes all = Find(search, query, 0, count);
            ASSERT_EQ(all, FindByLoop(boxes, query, 0, count)) << "seed " << BaseSeed() + i;
            ASSERT_EQ(Find(search, query, 0, at), FindByLoop(boxes, query, 0, at)) << "seed " << BaseSeed() + i;
            ASSERT_EQ(Find(search, query, at, count), FindByLoop(boxes, query, at, count)) << "seed " << BaseSeed() + i;
            listed += static_cast<long>(all.size());
        }
    }
    EXPECT_GT(listed, 100000);
}

TEST(BoxSearch, OfNothingFindsNothing) {
    const BoxSearch search(nullptr, 0);
    EXPECT_TRUE(Find(search, {-INF, INF, -INF, INF}, 0, 0).empty());
    EXPECT_TRUE(Find(search, {NOT_A_NUMBER, 0.0, 0.0, 0.0}, 0, 0).empty());
}

TEST(BoxSearch, ListsWhatIsUnboundedAlways) {
    const Boxes boxes = {
        {0.0, 1.0, 0.0, 1.0}, {-INF, INF, 5.0, 5.0}, {8.0, 9.0, 8.0, 9.0}, {NOT_A_NUMBER, 0.0, 0.0, 0.0}};
    const BoxSearch search(boxes.data(), 4);
    EXPECT_EQ(Find(search, {20.0, 21.0, 20.0, 21.0}, 0, 4), (Indexes{1, 3}));
    EXPECT_EQ(Find(search, {1.0, 2.0, 1.0, 2.0}, 0, 4), (Indexes{0, 1, 3}));
    EXPECT_EQ(Find(search, {-INF, INF, -INF, INF}, 0, 4), (Indexes{0, 1, 2, 3}));
    EXPECT_EQ(Find(search, {NOT_A_NUMBER, 0.0, 0.0, 0.0}, 1, 3), (Indexes{1, 2}));
}

TEST(BoxSearch, AWidenedQueryReachesAsFarAsItSays) {
    const Boxes boxes = {{0.0, 1.0, 0.0, 1.0}};
    const BoxSearch search(boxes.data(), 1);
    const PlanBox beside = {1.5, 2.0, 0.0, 1.0};
    EXPECT_TRUE(Find(search, beside, 0, 1).empty());
    EXPECT_TRUE(Find(search, beside.Widened(0.49999), 0, 1).empty());
    EXPECT_EQ(Find(search, beside.Widened(0.5), 0, 1), (Indexes{0}));
}

// Floats tell about seven digits: what lies beyond them is left to the doubles.
TEST(BoxSearch, TellsBoxesApartThatFloatsTakeForOne) {
    Boxes boxes;
    for (int i = 0; i < 100; ++i) {
        boxes.push_back(BoxAt(1e6 + i * 1e-9, 0.0, 0.0, 0.0));
    }
    boxes.push_back(BoxAt(-1e6, 0.0, 0.0, 0.0));
    const BoxSearch search(boxes.data(), 101);
    EXPECT_EQ(Find(search, boxes[17], 0, 101), (Indexes{17}));
}

TEST(BoxSearch, ReusesTheCallersList) {
    Boxes boxes;
    for (int i = 0; i < 1000; ++i) {
        boxes.push_back(BoxAt(i, 0.0, 0.5, 1.0));
    }
    const BoxSearch search(boxes.data(), 1000);
    PodArray<std::int32_t> found;
    search.Find({-1.0, 2000.0, 0.0, 1.0}, 0, 1000, found);
    EXPECT_EQ(found.GetLength(), 1000);
    const long memory = found.GetMemory();
    search.Find({2.0, 3.25, 0.0, 1.0}, 0, 1000, found);
    EXPECT_EQ(Indexes(found.begin(), found.end()), (Indexes{2, 3}));
    EXPECT_EQ(found.GetMemory(), memory);
}

TEST(BoxSearch, ListsEachIndexOnceByPlace) {
    for (const int count : {0, 1, 8, 9, 1000}) {
        RandomSource random(BaseSeed());
        Boxes boxes(static_cast<std::size_t>(count));
        for (PlanBox& box : boxes) {
            box = AnyBox(random, random.OneIn(9) ? 5 : 0, 0.0);
        }
        const BoxSearch search(boxes.data(), count);
        PodArray<std::int32_t> listed;
        search.ListByPlace(listed);
        Indexes indexes(listed.begin(), listed.end());
        std::sort(indexes.begin(), indexes.end());
        Indexes all(boxes.size());
        std::iota(all.begin(), all.end(), 0);
        EXPECT_EQ(indexes, all);
    }
}

}  // namespace
