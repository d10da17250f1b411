// SPDX-License-Identifier: Apache-2.0
#include "polylines/detail/SegmentTable.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <typeinfo>

#include "curves2d/detail/EvenShares.h"
#include "curves2d/detail/SearchBox.h"
#include "frame/QnGeTolerance.h"

namespace qn_detail {

namespace {

constexpr double ENDLESS = std::numeric_limits<double>::infinity();
constexpr PlanBox PLANE = {-ENDLESS, ENDLESS, -ENDLESS, ENDLESS};

}  // namespace

// A closed line of a single vertex explodes into a segment that it does not count.
bool SegmentTable::IsStraight(const QnGeCurve2d& curve) {
    if (typeid(curve) == typeid(QnGeMLine2d)) {
        const auto& line = static_cast<const QnGeMLine2d&>(curve);
        return GetPieceNum(line) == line.GetSegNum();
    }
    return typeid(curve) == typeid(QnGeLineSeg2d);
}

SegmentTable::Range SegmentTable::Append(const QnGeCurve2d& curve) {
    const auto first = static_cast<std::int32_t>(m_entries.GetLength());
    if (typeid(curve) == typeid(QnGeLineSeg2d)) {
        AppendSegment(curve, -1);
    } else {
        const long count = GetPieceNum(static_cast<const QnGeMLine2d&>(curve));
        for (long place = 0; place < count; ++place) {
            AppendSegment(curve, place);
        }
    }
    const auto end = static_cast<std::int32_t>(m_entries.GetLength());
    PlanBox hull = {ENDLESS, -ENDLESS, ENDLESS, -ENDLESS};
    for (std::int32_t k = first; k < end; ++k) {
        const PlanBox& box = m_boxes[k];
        hull = {std::min(hull.xMin, box.xMin), std::max(hull.xMax, box.xMax), std::min(hull.yMin, box.yMin),
                std::max(hull.yMax, box.yMax)};
    }
    return {first, end, hull};
}

void SegmentTable::AppendSegment(const QnGeCurve2d& curve, long place) {
    const long k = m_entries.Append({&curve, static_cast<std::int32_t>(place), SegmentOnLine()});
    const QnGeLineSeg2d& segment = GetSegment(k, m_view);
    m_entries[k].onLine = SegmentOnLine(segment);
    m_boxes.Append(MakeSearchBox(segment));
}

void SegmentTable::MakeSearch() {
    m_search = std::make_unique<BoxSearch>(m_boxes.begin(), m_boxes.GetLength());
}

const QnGeLineSeg2d& SegmentTable::GetSegment(long k, SegmentView& view) const {
    const Entry& entry = m_entries[k];
    if (entry.place < 0) {
        return static_cast<const QnGeLineSeg2d&>(*entry.curve);
    }
    return view.Get(static_cast<const QnGeMLine2d&>(*entry.curve), entry.place);
}

// A few boxes are looked at faster than an index.
void SegmentTable::Find(const Range& range, const PlanBox& box, PodArray<std::int32_t>& found) const {
    constexpr std::int32_t FEW = 128;
    if (range.end - range.first > FEW || !box.IsBounded()) {
        m_search->Find(box, range.first, range.end, found);
        return;
    }
    found.Clear();
    for (std::int32_t k = range.first; k < range.end; ++k) {
        if (m_boxes[k].Meets(box)) {
            found.Append(k);
        }
    }
}

void SegmentTable::FindNearRange(const Range& range, const Range& other, PodArray<std::int32_t>& found) const {
    Find(range, other.hull, found);
}

void SegmentTable::FindNear(const Range& range, long k, PodArray<std::int32_t>& found) const {
    Find(range, m_boxes[k], found);
}

// The first segment on which the point lies says where, as the plain walk has it. Of a point whose distance is out of
// range any segment may say that it lies there.
bool SegmentTable::GetPaFromPt(const Range& range, const QnGePoint& pt, double& pa) {
    if (range.first < range.end && m_entries[range.first].place < 0) {
        pa = m_entries[range.first].onLine.GetPa(pt.x, pt.y);
        return true;
    }
    const bool isWithinReach = std::fabs(pt.x) < QN_FAR_LIMIT && std::fabs(pt.y) < QN_FAR_LIMIT;
    Find(range, isWithinReach ? PlanBox{pt.x, pt.x, pt.y, pt.y} : PLANE, m_near);
    for (const std::int32_t k : m_near) {
        const QnGeLineSeg2d& segment = GetSegment(k, m_view);
        if (segment.HitTest(pt).HasBit(HIT_ON)) {
            double local = 0.0;
            segment.GetPaFromPt(pt, local);
            pa = PaOfPart(m_entries[k].place, local, range.end - range.first);
            return true;
        }
    }
    return false;
}

}  // namespace qn_detail
