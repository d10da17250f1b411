// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "support/RandomSource.h"
#include "terrain/QnGeTINTriangle.h"
#include "terrain/detail/StartTable.h"

// Triangles found lately, by their places. Only that what is found was kept nearby is promised.

namespace {

using qn_detail::StartTable;
constexpr double NONE = std::numeric_limits<double>::quiet_NaN();
constexpr double FAR = std::numeric_limits<double>::infinity();

QnGeTINTriangle* Any(int i = 0) {
    static QnGeTINTriangle triangles[4];
    return &triangles[i];
}

}  // namespace

TEST(StartTable, HasNothingBeforeItIsSetUp) {
    StartTable table;
    EXPECT_EQ(table.Get({1, 2}), nullptr);
    table.Keep({1, 2}, Any());
    EXPECT_EQ(table.Get({1, 2}), nullptr);
}

TEST(StartTable, HasNothingBeforeOneIsKept) {
    StartTable table;
    table.Reset({0, 100, 0, 10}, 1000);
    EXPECT_EQ(table.Get({0, 0}), nullptr);
    EXPECT_EQ(table.Get({50, 5}), nullptr);
}

TEST(StartTable, FindsWhatWasKeptInTheSamePlace) {
    StartTable table;
    table.Reset({-100, 100, -10, 10}, 1000);
    for (const QnGePoint& p : {QnGePoint(-100, -10), QnGePoint(0, 0), QnGePoint(99.5, 9.5), QnGePoint(-3.25, 7)}) {
        table.Keep(p, Any());
        EXPECT_EQ(table.Get(p), Any()) << p.x << ',' << p.y;
    }
}

TEST(StartTable, FindsWhatWasKeptInTheSameCell) {
    // A network of few nodes is one cell; its corners are less than two cells apart.
    StartTable table;
    table.Reset({0, 1, 0, 1}, 1);
    table.Keep({0.25, 0.75}, Any());
    EXPECT_EQ(table.Get({0.25, 0.75}), Any());
    EXPECT_EQ(table.Get({0.75, 0.25}), Any());
    EXPECT_EQ(table.Get({0, 0}), Any());
}

TEST(StartTable, NewerTakesThePlaceOfTheOlder) {
    StartTable table;
    table.Reset({0, 100, 0, 10}, 100);
    table.Keep({50, 5}, Any(0));
    table.Keep({50, 5}, Any(1));
    EXPECT_EQ(table.Get({50, 5}), Any(1));
}

TEST(StartTable, ForgetsAllWhenSetUpAnew) {
    StartTable table;
    table.Reset({0, 100, 0, 10}, 100);
    table.Keep({50, 5}, Any());
    table.Reset({0, 100, 0, 10}, 100);
    EXPECT_EQ(table.Get({50, 5}), nullptr);
    table.Reset({1000, 1001, 0, 10}, 200);
    EXPECT_EQ(table.Get({1000.5, 5}), nullptr);
    table.Keep({1000.5, 5}, Any(2));
    EXPECT_EQ(table.Get({1000.5, 5}), Any(2));
}

TEST(StartTable, CanBeExchangedWithAnother) {
    StartTable newer;
    StartTable older;
    newer.Reset({0, 100, 0, 10}, 100);
    newer.Keep({50, 5}, Any());
    std::swap(newer, older);
    EXPECT_EQ(newer.Get({50, 5}), nullptr);
    EXPECT_EQ(older.Get({50, 5}), Any());
}

// A cell is a few nodes of a row wide, and what is found lies two cells away at most. Many rows share the entries.
TEST(StartTable, WhatItFindsWasKeptNearby) {
    constexpr long NODES = 4000;
    constexpr double MOST_NODES = 32.0;
    RandomSource random(BaseSeed());
    for (const double height : {0.0, 1.0, 30.0, 1000.0, 1e6}) {
        constexpr double WIDTH = 1000.0;
        const double spacing = (WIDTH + height) / static_cast<double>(NODES);
        StartTable table;
        table.Reset({0, WIDTH, 0, height}, NODES);
        std::vector<std::unique_ptr<QnGeTINTriangle>> triangles;
        long found = 0;
        for (int i = 0; i < 3 * NODES; ++i) {
            const QnGePoint p(random.Double(0, WIDTH), random.Double(0, height));
            if (random.Coin()) {
                triangles.push_back(std::make_unique<QnGeTINTriangle>());
                triangles.back()->CenterX = p.x;  // where it was kept
                triangles.back()->CenterY = p.y;
                table.Keep(p, triangles.back().get());
                ASSERT_EQ(table.Get(p), triangles.back().get());
            } else if (const QnGeTINTriangle* const t = table.Get(p)) {
                ++found;
                ASSERT_LE(std::fabs(t->CenterX - p.x) + std::fabs(t->CenterY - p.y), MOST_NODES * spacing);
            }
        }
        if (height == 0.0) {
            EXPECT_GT(found, NODES) << "a row is covered soon";
        }
    }
}

TEST(StartTable, FindsAgainAlongARow) {
    StartTable table;
    table.Reset({0, 1000, 0, 0}, 1000);
    for (int i = 0; i < 1000; ++i) {
        table.Keep(QnGePoint(i, 0), Any());
    }
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(table.Get(QnGePoint(i, 0)), Any()) << i;
    }
    table.Reset({0, 0, -500, 500}, 1000);
    for (int i = -500; i < 500; ++i) {
        table.Keep(QnGePoint(0, i), Any(1));
        EXPECT_EQ(table.Get(QnGePoint(0, i)), Any(1)) << i;
    }
}

TEST(StartTable, PlacesBesideTheRangeShareItsFirstCell) {
    StartTable table;
    table.Reset({0, 100, 0, 100}, 1000);
    for (const QnGePoint& p : {QnGePoint(-5, -5), QnGePoint(-1e300, 50), QnGePoint(1e300, 1e300), QnGePoint(50, 1e9)}) {
        table.Keep(p, Any(2));
        EXPECT_EQ(table.Get(p), Any(2)) << p.x << ',' << p.y;
        EXPECT_EQ(table.Get(QnGePoint(0, 50)), nullptr) << "but are too far from all within it";
    }
    table.Keep({0, 0}, Any(3));
    EXPECT_EQ(table.Get({-5, -1e9}), nullptr);
    EXPECT_EQ(table.Get({1e9, 0}), nullptr);
    EXPECT_EQ(table.Get({0, 0}), Any(3));
}

TEST(StartTable, FindsNothingAtPlacesThatAreNoNumbers) {
    StartTable table;
    table.Reset({0, 100, 0, 100}, 1000);
    table.Keep({0, 0}, Any());
    for (const QnGePoint& p :
         {QnGePoint(NONE, NONE), QnGePoint(NONE, 0), QnGePoint(0, NONE), QnGePoint(FAR, 0), QnGePoint(0, -FAR)}) {
        EXPECT_EQ(table.Get(p), nullptr);
        table.Keep(p, Any(1));
        EXPECT_EQ(table.Get(p), nullptr);
    }
}

TEST(StartTable, RangeWithoutExtentFindsNothing) {
    StartTable table;
    table.Reset({5, 5, 7, 7}, 100);
    table.Keep({5, 7}, Any());
    table.Keep({6, 8}, Any());
    EXPECT_EQ(table.Get({5, 7}), nullptr);
    EXPECT_EQ(table.Get({6, 8}), nullptr);
    table.Reset({0, 0, 0, 0}, 0);
    table.Keep({0, 0}, Any());
    EXPECT_EQ(table.Get({1, 1}), nullptr);
}
