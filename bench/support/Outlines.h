// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "polylines/QnGeMLine2d.h"
#include "values/QnGePoint.h"

/// The two kinds of outlines that every boolean is measured on.
enum class OutlineKind {
    SMOOTH,  ///< a circle with ten waves: two of them cross about 20 times, however many vertices they have
    TOOTHED  ///< a gear, low and high vertices in turn: two of n vertices cross about n times
};

constexpr OutlineKind OUTLINE_KINDS[] = {OutlineKind::SMOOTH, OutlineKind::TOOTHED};

/// Mean radius of all outlines, which have the origin at or near their centre.
constexpr double OUTLINE_RADIUS = 1000.0;

/// Two outlines of equally many vertices, counter-clockwise, closed, in general position to each other.
struct OutlinePair {
    std::vector<QnGePoint> first;
    std::vector<QnGePoint> second;
};

const char* GetName(OutlineKind kind);

/// Requires  `n` at least 3, even for the toothed kind.
std::vector<QnGePoint> MakeOutline(OutlineKind kind, long n);
OutlinePair MakeOutlinePair(OutlineKind kind, long n);

/// `count` points spread evenly over the square round an outline; the same ones on every call.
std::vector<QnGePoint> MakeHitPoints(long count);

QnGeMLine2d MakeClosedLine(const std::vector<QnGePoint>& vertices);
