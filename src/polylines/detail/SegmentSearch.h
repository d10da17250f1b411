// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "containers/detail/PodArray.h"
#include "curves2d/detail/SearchBox.h"
#include "polylines/detail/SegmentView.h"
#include "values/detail/BoxSearch.h"

namespace qn_detail {

/// Finds the segments of a line that come near a box, so that pairs which cannot meet are never intersected.
///
/// The box of a segment is its search box: segments whose search boxes are apart have no intersection.
///
/// Order  Indexes are listed in ascending order.
class SegmentSearch {
public:
    template <class Line>
    explicit SegmentSearch(const Line& line) : m_boxes(line.GetSegNum()) {
        SegmentView view;
        for (long i = 0; i < m_boxes.GetLength(); ++i) {
            m_boxes[i] = MakeSearchBox(view.Get(line, i));
        }
        Finish();
    }

    long GetCount() const { return m_boxes.GetLength(); }
    const PlanBox& GetBox(long i) const { return m_boxes[i]; }

    /// By how much the box of a part of a segment may reach beyond that of the segment where all is well: more than all
    /// tolerances and roundings of intersecting.
    double GetSlack() const { return m_slack; }

    /// Replaces `found` by the segments from `first` to before `end` whose box meets `box`.
    void Find(const PlanBox& box, long first, long end, PodArray<std::int32_t>& found) const;

private:
    void Finish();

    PodArray<PlanBox> m_boxes;
    double m_slack = 0.0;
    std::unique_ptr<BoxSearch> m_tree;  ///< none over a few boxes
};

}  // namespace qn_detail
