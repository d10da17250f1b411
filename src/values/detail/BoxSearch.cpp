// SPDX-License-Identifier: Apache-2.0
//
// BoxSearch.cpp: a packed tree over boxes that stay.
//
// Phases     1  OrderByPlace   halves the boxes by their centres until eight or fewer are left
//            2  MakeLevels     the boxes in that order as floats, eight to a node; then the hulls of nodes, eight to a
//                              node, up to a single one
// Why so     The way from a double to a float relative to the centre is monotone: where doubles meet, floats meet. So
//            the tree needs no margin for rounding, and the doubles decide in the end.
//            A half always has a multiple of 8^k boxes, 8^k being the most that one child of the node holds: so each
//            node of the tree holds boxes of one half only.
#include "values/detail/BoxSearch.h"

#include <algorithm>
#include <cmath>

namespace qn_detail {

namespace {

constexpr int LANES = BoxLanes::COUNT;

constexpr double FLOAT_LIMIT = 1e38;

// Monotone for all that is a number. The answer is finite: it meets no empty lane.
float ToFloat(double v) {
    return static_cast<float>(std::min(std::max(v, -FLOAT_LIMIT), FLOAT_LIMIT));
}

struct Centre {
    double x;
    double y;
    std::int32_t index;
};

// Of many centres a sample tells well enough.
bool IsWide(const Centre* centres, long count) {
    constexpr long SAMPLE = 256;
    const long step = count / SAMPLE + 1;
    double x0 = centres->x;
    double x1 = x0;
    double y0 = centres->y;
    double y1 = y0;
    for (long i = step; i < count; i += step) {
        x0 = std::min(x0, centres[i].x);
        x1 = std::max(x1, centres[i].x);
        y0 = std::min(y0, centres[i].y);
        y1 = std::max(y1, centres[i].y);
    }
    return x1 - x0 > y1 - y0;
}

void OrderByPlace(Centre* centres, long count) {
    while (count > LANES) {
        long perChild = LANES;
        while (perChild * LANES < count) {
            perChild *= LANES;
        }
        const long children = (count - 1) / perChild + 1;
        const long half = children / 2 * perChild;
        const auto middle = centres + half;
        if (IsWide(centres, count)) {
            std::nth_element(centres, middle, centres + count,
                             [](const Centre& a, const Centre& b) { return a.x < b.x; });
        } else {
            std::nth_element(centres, middle, centres + count,
                             [](const Centre& a, const Centre& b) { return a.y < b.y; });
        }
        OrderByPlace(centres, half);
        centres += half;
        count -= half;
    }
}

}  // namespace

bool PlanBox::IsBounded() const {
    return std::isfinite(xMin) && std::isfinite(xMax) && std::isfinite(yMin) && std::isfinite(yMax);
}

bool PlanBox::HasNoNumber() const {
    return std::isnan(xMin) || std::isnan(xMax) || std::isnan(yMin) || std::isnan(yMax);
}

BoxSearch::BoxSearch(const PlanBox* boxes, long count) : m_count(count) {
    PodArray<Centre> centres;
    centres.SetSpace(count);
    for (long i = 0; i < count; ++i) {
        const PlanBox& box = boxes[i];
        const auto index = static_cast<std::int32_t>(i);
        if (box.IsBounded()) {
            centres.Append({0.5 * box.xMin + 0.5 * box.xMax, 0.5 * box.yMin + 0.5 * box.yMax, index});
        } else {
            m_alwaysFound.Append(index);
        }
    }
    if (centres.IsEmpty()) {
        return;
    }
    OrderByPlace(centres.begin(), centres.GetLength());
    m_boxes = PodArray<PlanBox>(centres.GetLength());
    m_index = PodArray<std::int32_t>(centres.GetLength());
    for (long place = 0; place < centres.GetLength(); ++place) {
        m_index[place] = centres[place].index;
        m_boxes[place] = boxes[centres[place].index];
    }
    SetCentre();
    MakeLevels();
}

// Halves before they are added: the sum of two bounds may be out of range.
void BoxSearch::SetCentre() {
    PlanBox hull = m_boxes[0];
    for (const PlanBox& box : m_boxes) {
        hull.xMin = std::min(hull.xMin, box.xMin);
        hull.xMax = std::max(hull.xMax, box.xMax);
        hull.yMin = std::min(hull.yMin, box.yMin);
        hull.yMax = std::max(hull.yMax, box.yMax);
    }
    m_centreX = 0.5 * hull.xMin + 0.5 * hull.xMax;
    m_centreY = 0.5 * hull.yMin + 0.5 * hull.yMax;
}

FloatBox BoxSearch::GetFrameBox(const PlanBox& box) const {
    return {ToFloat(box.xMin - m_centreX), ToFloat(box.yMin - m_centreY), ToFloat(box.xMax - m_centreX),
            ToFloat(box.yMax - m_centreY)};
}

void BoxSearch::MakeLevels() {
    long groups = 0;
    for (long boxes = m_boxes.GetLength(), more = 1; more != 0; boxes = (boxes - 1) / LANES + 1) {
        m_levelStart[m_levelNum++] = groups;
        groups += (boxes - 1) / LANES + 1;
        more = boxes > LANES ? 1 : 0;
    }
    m_lanes = PodArray<BoxLanes>(groups);

    long boxes = m_boxes.GetLength();
    for (int level = 0; level < m_levelNum; ++level) {
        BoxLanes* const lanes = &m_lanes[m_levelStart[level]];
        lanes[(boxes - 1) / LANES].Clear();
        for (long i = 0; i < boxes; ++i) {
            const FloatBox box = level == 0 ? GetFrameBox(m_boxes[i]) : m_lanes[m_levelStart[level - 1] + i].GetHull();
            lanes[i / LANES].SetBox(static_cast<int>(i % LANES), box);
        }
        boxes = (boxes - 1) / LANES + 1;
    }
}

void BoxSearch::Find(const PlanBox& query, long first, long end, PodArray<std::int32_t>& found) const {
    found.Clear();
    if (query.HasNoNumber()) {
        for (long i = first; i < end; ++i) {
            found.Append(static_cast<std::int32_t>(i));
        }
        return;
    }
    for (const std::int32_t index : m_alwaysFound) {
        if (index >= first && index < end) {
            found.Append(index);
        }
    }
    if (m_levelNum > 0 && first < end) {
        const Query search = {query, GetFrameBox(query), first, end, found};
        Descend(m_levelNum - 1, 0, search);
    }
    std::sort(found.begin(), found.end());
}

void BoxSearch::ListByPlace(PodArray<std::int32_t>& indexes) const {
    indexes.Clear();
    indexes.SetSpace(m_count);
    for (const std::int32_t index : m_index) {
        indexes.Append(index);
    }
    for (const std::int32_t index : m_alwaysFound) {
        indexes.Append(index);
    }
}

void BoxSearch::Descend(int level, long group, const Query& query) const {
    unsigned lanes = m_lanes[m_levelStart[level] + group].GetMeeting(query.frameBox);
    while (lanes != 0) {
        const long child = group * LANES + TakeLowestLane(lanes);
        if (level > 0) {
            Descend(level - 1, child, query);
            continue;
        }
        const std::int32_t index = m_index[child];
        if (index >= query.first && index < query.end && m_boxes[child].Meets(query.box)) {
            query.found.Append(index);
        }
    }
}

}  // namespace qn_detail
