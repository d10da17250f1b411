// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "frame/QnGeObjList.h"
#include "polylines/detail/SegmentSearch.h"

namespace qn_detail {

/// IsSelfCross of multi-lines and polylines: segments overlap, cross twice, or meet without being neighbours.
///
/// Kept odd  Neighbours are those with following indexes, and the first and last of a closed line: where such a pair
///           meets in one point, that point is not asked to be the common vertex.
template <class Line>
bool IsLineSelfCross(const Line& line) {
    const long count = line.GetSegNum();
    if (count < 2) {
        return false;
    }
    const SegmentSearch search(line);
    const bool isLens = line.IsClosed() && count == 2;  // its two segments meet at both vertices by nature
    SegmentView viewI;
    SegmentView viewJ;
    PodArray<std::int32_t> near;
    for (long i = 0; i < count - 1; i++) {
        search.Find(search.GetBox(i), i + 1, count, near);
        const QnGeCurve2d& first = viewI.Get(line, i);
        for (const long j : near) {
            QnGeObjList met;
            if (!first.IntersectWith(viewJ.Get(line, j), met) || met.IsEmpty()) {
                continue;
            }
            if (met.GetAt(0)->GetClassID() != CLASS_ID_POINT2D) {
                return true;
            }
            const bool areNeighbours = j == i + 1 || (line.IsClosed() && i == 0 && j == count - 1);
            const bool isCrossing = met.GetLength() > 1 ? !isLens : !areNeighbours;
            if (isCrossing) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace qn_detail
