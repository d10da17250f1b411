// SPDX-License-Identifier: Apache-2.0
#include "containers/Qn2dArray.h"

#include <gtest/gtest.h>

#include "support/LiveObject.h"

namespace {

template <class T>
void ExpectShape(const Qn2dArray<T>& grid, long rows, long columns) {
    ASSERT_EQ(grid.GetLength(), rows);
    for (long row = 0; row < rows; ++row) {
        EXPECT_EQ(grid[row].GetLength(), columns) << "row " << row;
    }
}

}  // namespace

TEST(Qn2dArray, DefaultHasNoRows) {
    const Qn2dArray<int> grid;
    ExpectShape(grid, 0, 0);
}

TEST(Qn2dArray, FirstIndexIsTheRowSecondTheColumn) {
    Qn2dArray<int> grid(2, 3);
    ExpectShape(grid, 2, 3);
    for (long row = 0; row < 2; ++row) {
        for (long column = 0; column < 3; ++column) {
            EXPECT_EQ(grid[row][column], 0);
            grid[row][column] = static_cast<int>(10 * row + column);
        }
    }
    EXPECT_EQ(grid[1][2], 12);
    EXPECT_EQ(grid[0][2], 2);
    EXPECT_EQ(grid[1].GetDataBuffer()[0], 10) << "a row is one block";
}

TEST(Qn2dArray, ReAllocateShapesRowsAndColumns) {
    Qn2dArray<int> grid(2, 3);
    grid[1][2] = 7;
    grid.ReAllocate(3, 4, true);
    ExpectShape(grid, 3, 4);
    EXPECT_EQ(grid[1][2], 7);
    EXPECT_EQ(grid[1][3], 0);
    EXPECT_EQ(grid[2][0], 0);
    grid.ReAllocate(2, 3, true);
    ExpectShape(grid, 2, 3);
    EXPECT_EQ(grid[1][2], 7);
    grid.ReAllocate(4, 5, false);
    ExpectShape(grid, 4, 5);
    EXPECT_EQ(grid[1][2], 0);
    grid.ReAllocate(0, 0, false);
    ExpectShape(grid, 0, 0);
}

TEST(Qn2dArray, SetAllFillsEveryRow) {
    Qn2dArray<double> grid(3, 2);
    grid.SetAll(1.5);
    for (long row = 0; row < 3; ++row) {
        EXPECT_EQ(grid[row][0], 1.5);
        EXPECT_EQ(grid[row][1], 1.5);
    }
}

TEST(Qn2dArray, CopiesAreDeepAndFreeEveryElementOnce) {
    LiveScope scope;
    {
        Qn2dArray<LiveObject> grid(3, 4);
        EXPECT_EQ(scope.Count(), 12);
        grid[2][3].key = 5;
        Qn2dArray<LiveObject> copy(grid);
        EXPECT_EQ(scope.Count(), 24);
        copy[2][3].key = 6;
        EXPECT_EQ(grid[2][3].key, 5);
        Qn2dArray<LiveObject> assigned;
        assigned = copy;
        EXPECT_EQ(assigned[2][3].key, 6);
        assigned.ReAllocate(1, 1, true);
        EXPECT_EQ(scope.Count(), 25);
        const Qn2dArray<LiveObject>& same = grid;
        grid = same;
        EXPECT_EQ(grid[2][3].key, 5);
    }
}
