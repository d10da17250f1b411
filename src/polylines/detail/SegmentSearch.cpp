// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/SegmentSearch.h"

#include <algorithm>
#include <cmath>

#include "frame/QnGeTolerance.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

namespace {

/// Up to here looking at every box costs less than a tree does.
constexpr long FEW_BOXES = 24;

PlanBox Hull(const PlanBox& a, const PlanBox& b) {
    return {std::min(a.xMin, b.xMin), std::max(a.xMax, b.xMax), std::min(a.yMin, b.yMin), std::max(a.yMax, b.yMax)};
}

}  // namespace

PlanBox SegmentSearch::MakeBox(const QnGeCurve2d& segment) {
    QnGeExtent2d extent;
    segment.GetExtent2d(extent);
    const PlanBox box = {extent.x.min, extent.x.max, extent.y.min, extent.y.max};
    m_hull = m_hasHull ? Hull(m_hull, box) : box;
    m_hasHull = true;
    if (segment.GetClassID() != CLASS_ID_ARC2D) {
        return box;
    }
    const double radius = static_cast<const QnGeArc2d&>(segment).GetRadius();
    return box.Widened(g_angleZero * radius + std::sqrt(g_fZero));  // start snap and tangents of tiny circles
}

void SegmentSearch::Finish() {
    // Rounding of a nearly parallel pair moves its crossing by the second share.
    constexpr double ROUNDING = 1e-15;
    const double size = (m_hull.xMax - m_hull.xMin) + (m_hull.yMax - m_hull.yMin);
    m_gap = 10.0 * g_distZero + 4.0 * (g_fZero + ROUNDING / g_fZero) * size;
    m_isUsable = g_fZero > 0.0 && std::isfinite(m_gap);
    if (m_isUsable && m_boxes.GetLength() > FEW_BOXES) {
        m_tree = std::make_unique<BoxSearch>(m_boxes.begin(), m_boxes.GetLength());
    }
}

void SegmentSearch::Find(const PlanBox& box, long first, long end, PodArray<std::int32_t>& found) const {
    if (m_tree != nullptr) {
        m_tree->Find(box, first, end, found);
        return;
    }
    found.Clear();
    for (long i = first; i < end; ++i) {
        const bool isNear = !m_isUsable || m_boxes[i].Meets(box) || m_boxes[i].HasNoNumber() || box.HasNoNumber();
        if (isNear) {
            found.Append(static_cast<std::int32_t>(i));
        }
    }
}

}  // namespace qn_detail
