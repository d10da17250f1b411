// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/SegmentSearch.h"

#include <algorithm>
#include <cmath>

#include "frame/QnGeTolerance.h"

namespace qn_detail {

namespace {

/// Up to here looking at every box costs less than a tree does.
constexpr long FEW_BOXES = 24;

}  // namespace

// Any slack is right, since what does not keep to it is found out. So boxes without bounds, which hold everything
// anyway, need none.
void SegmentSearch::Finish() {
    constexpr double ROUNDING = 1e-15;
    constexpr double SAFETY = 4.0;
    double size = 0.0;
    double far = 0.0;
    for (const PlanBox& box : m_boxes) {
        if (box.IsBounded()) {
            size = std::max({size, box.xMax - box.xMin, box.yMax - box.yMin});
            far = std::max({far, -box.xMin, box.xMax, -box.yMin, box.yMax});
        }
    }
    const double slack = 10.0 * g_distZero + SAFETY * (g_fZero + ROUNDING / g_fZero) * size + SAFETY * ROUNDING * far;
    m_slack = std::isfinite(slack) && slack > 0.0 ? slack : 0.0;
    if (m_boxes.GetLength() > FEW_BOXES) {
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
        if (m_boxes[i].Meets(box)) {
            found.Append(static_cast<std::int32_t>(i));
        }
    }
}

}  // namespace qn_detail
