// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Outlines.h"

/// How often the two outlines cross, counted without the library.
///
/// Requires  General position: no vertex of one on the other.
/// Cost      A sweep along x: n log n and the pairs of edges whose x ranges overlap near the sweep.
long CountCrossings(const OutlinePair& pair);

/// Whether the count is what the kind promises: 20 for smooth outlines, n for toothed ones, a tenth up or down.
bool IsExpectedCount(OutlineKind kind, long n, long crossings);
