// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "containers/detail/PodArray.h"
#include "polylines/detail/SegmentView.h"
#include "values/detail/BoxSearch.h"

namespace qn_detail {

/// Finds the segments of a line that come near a box, so that pairs which cannot meet are never intersected.
///
/// A box that is widened by GetGap() meets the box of every segment that an intersection could find something with:
/// the gap is wider than all tolerances of intersecting, and arcs bring their own share with their boxes.
///
/// Order  Indexes are listed in ascending order.
/// Fails  Where the tolerances or coordinates do not allow a gap, every segment counts as near.
class SegmentSearch {
public:
    template <class Line>
    explicit SegmentSearch(const Line& line) : m_boxes(line.GetSegNum()) {
        SegmentView view;
        for (long i = 0; i < m_boxes.GetLength(); ++i) {
            m_boxes[i] = MakeBox(view.Get(line, i));
        }
        Finish();
    }

    long GetCount() const { return m_boxes.GetLength(); }
    double GetGap() const { return m_gap; }
    bool IsUsable() const { return m_isUsable; }
    const PlanBox& GetBox(long i) const { return m_boxes[i]; }

    /// Replaces `found` by the segments from `first` to before `end` whose box meets `box`.
    void Find(const PlanBox& box, long first, long end, PodArray<std::int32_t>& found) const;

private:
    PlanBox MakeBox(const QnGeCurve2d& segment);
    void Finish();

    PodArray<PlanBox> m_boxes;
    PlanBox m_hull = {};
    bool m_hasHull = false;
    double m_gap = 0.0;
    bool m_isUsable = false;
    std::unique_ptr<BoxSearch> m_tree;  ///< none over a few boxes
};

}  // namespace qn_detail
