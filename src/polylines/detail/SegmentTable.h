// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "containers/detail/PodArray.h"
#include "curves2d/detail/SegmentOnLine.h"
#include "polylines/detail/SegmentView.h"
#include "values/detail/BoxSearch.h"

namespace qn_detail {

/// The segments of many straight curves in one row, with an index over all of them: where curves meet, and where on a
/// curve a point lies, is then asked of the segments that are near.
///
/// Order      That of the curves, and along each.
/// Ownership  The curves are looked at and must outlive the table unchanged.
/// Cost       About 170 bytes a segment.
class SegmentTable {
public:
    /// The segments of one curve: from `first` to before `end`.
    struct Range {
        std::int32_t first;
        std::int32_t end;
        PlanBox hull;  ///< of the boxes in which they may meet others
    };

    /// Whether the table takes the curve: it is exactly a segment or a multi-line, of the segments that it counts.
    static bool IsStraight(const QnGeCurve2d& curve);

    /// Requires  IsStraight, and no index yet.
    Range Append(const QnGeCurve2d& curve);

    /// Makes the index over all that has been appended.
    void MakeSearch();

    const SegmentOnLine& operator[](long k) const { return m_entries[k].onLine; }

    /// A segment as the object that the explosion of its curve gives. It lives as long as the view keeps it.
    const QnGeLineSeg2d& GetSegment(long k, SegmentView& view) const;

    /// Replaces `found` by the segments of a range that a segment anywhere in the other range may meet, and by those
    /// that one segment may meet.
    void FindNearRange(const Range& range, const Range& other, PodArray<std::int32_t>& found) const;
    void FindNear(const Range& range, long k, PodArray<std::int32_t>& found) const;

    /// GetPaFromPt of the curve with this range, false included.
    bool GetPaFromPt(const Range& range, const QnGePoint& pt, double& pa);

private:
    struct Entry {
        const QnGeCurve2d* curve;
        std::int32_t place;  ///< in its multi-line; -1 for a curve that is the segment itself
        SegmentOnLine onLine;
    };

    void AppendSegment(const QnGeCurve2d& curve, long place);
    void Find(const Range& range, const PlanBox& box, PodArray<std::int32_t>& found) const;

    PodArray<Entry> m_entries;
    PodArray<PlanBox> m_boxes;
    std::unique_ptr<BoxSearch> m_search;
    PodArray<std::int32_t> m_near;
    SegmentView m_view;
};

}  // namespace qn_detail
