// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>

#include "containers/QnArray.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeTolerance.h"
#include "polylines/detail/SegmentView.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"

namespace qn_detail {

/// Boxes of the segments of a line, to keep pairs apart that cannot meet. They are widened beyond every tolerance that
/// intersection knows, so that leaving out a pair never changes an answer.
class SegmentBoxes {
public:
    template <class Line>
    explicit SegmentBoxes(const Line& line) : m_boxes(line.GetSegNum()) {
        SegmentView view;
        Box all;
        for (long i = 0; i < m_boxes.GetLength(); i++) {
            const QnGeCurve2d& seg = view.Get(line, i);
            QnGeExtent2d extent;
            seg.GetExtent2d(extent);
            Box& box = m_boxes[i];
            box = {extent.x.min, extent.x.max, extent.y.min, extent.y.max, 0.0};
            if (seg.GetClassID() == CLASS_ID_ARC2D) {
                const double radius = static_cast<const QnGeArc2d&>(seg).GetRadius();
                box.slack = g_angleZero * radius + std::sqrt(g_fZero);  // start snap and tangents of tiny circles
            }
            all = i == 0 ? box : Hull(all, box);
        }
        // Rounding of a nearly parallel pair moves its crossing by the second share.
        constexpr double ROUNDING = 1e-15;
        const double size = (all.xMax - all.xMin) + (all.yMax - all.yMin);
        m_gap = 10.0 * g_distZero + 4.0 * (g_fZero + ROUNDING / g_fZero) * size;
        m_isUsable = g_fZero > 0.0 && std::isfinite(m_gap);
    }

    bool MayMeet(long i, long j) const {
        const Box& a = m_boxes[i];
        const Box& b = m_boxes[j];
        const double gap = m_gap + a.slack + b.slack;
        const bool isApart =
            a.xMin - b.xMax > gap || b.xMin - a.xMax > gap || a.yMin - b.yMax > gap || b.yMin - a.yMax > gap;
        return !m_isUsable || !isApart;
    }

private:
    struct Box {
        double xMin = 0.0;
        double xMax = 0.0;
        double yMin = 0.0;
        double yMax = 0.0;
        double slack = 0.0;
    };

    static Box Hull(const Box& a, const Box& b) {
        return {std::min(a.xMin, b.xMin), std::max(a.xMax, b.xMax), std::min(a.yMin, b.yMin), std::max(a.yMax, b.yMax),
                0.0};
    }

    QnArray<Box> m_boxes;
    double m_gap = 0.0;
    bool m_isUsable = false;
};

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
    const SegmentBoxes boxes(line);
    const bool isLens = line.IsClosed() && count == 2;  // its two segments meet at both vertices by nature
    SegmentView viewI;
    SegmentView viewJ;
    for (long i = 0; i < count - 1; i++) {
        const QnGeCurve2d& first = viewI.Get(line, i);
        for (long j = i + 1; j < count; j++) {
            QnGeObjList met;
            if (!boxes.MayMeet(i, j) || !first.IntersectWith(viewJ.Get(line, j), met) || met.IsEmpty()) {
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
