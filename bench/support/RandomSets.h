// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

/// A line through its vertices, open.
using VertexLine = std::vector<QnGePoint>;

/// `count` segments of random direction in a square, so short that each crosses about one other at any count. The same
/// ones on every call.
std::vector<VertexLine> MakeRandomSegments(long count);

/// The kinds of point sets that triangulations are measured on.
enum class PointKind {
    UNIFORM,
    GRID,      ///< square, every cell cocircular; the count is rounded down to a square number
    CLUSTERS,  ///< around a hundred centres, dense in the middle of each
    TWO_ROWS,  ///< two level rows with random places in each
    CIRCLE     ///< convex: every point lies on the hull when it arrives
};

const char* GetName(PointKind kind);

/// No two points at the same place.
std::vector<QnGePoint> MakePoints(PointKind kind, long count);

/// The side of the square in which the boxes and queries below lie.
constexpr double BOX_WORLD = 100000.0;

/// `count` boxes of random place and shape, their mean side about two thirds of the mean distance of their centres.
std::vector<QnGeExtent2d> MakeBoxes(long count);

/// Windows that each meet about a hundred of `boxCount` boxes.
std::vector<QnGeExtent2d> MakeWindows(long count, long boxCount);

/// Points in the square of the boxes.
std::vector<QnGePoint> MakeBoxPoints(long count);
