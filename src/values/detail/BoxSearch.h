// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "containers/detail/PodArray.h"
#include "values/detail/BoxLanes.h"

namespace qn_detail {

/// An axis-parallel box in the plan.
struct PlanBox {
    double xMin;
    double xMax;
    double yMin;
    double yMax;

    /// The box grown by `d` on all sides.
    PlanBox Widened(double d) const { return {xMin - d, xMax + d, yMin - d, yMax + d}; }

    /// Touching counts.
    bool Meets(const PlanBox& o) const { return xMin <= o.xMax && xMax >= o.xMin && yMin <= o.yMax && yMax >= o.yMin; }

    /// No bound is infinite or no number.
    bool IsBounded() const;
    bool HasNoNumber() const;
};

/// Finds the boxes that meet a box, among many boxes that stay.
///
///     level 2        [ box of eight blocks ]          ...        one lane per 64 boxes
///     level 1   [ box of a block | ... ] [ ...                   one lane per 8 boxes
///     level 0   [ box ... box ] [ box ... box ] ...              one lane per box
///
/// The boxes are put into an order in which neighbours lie close together, by halving them again and again across the
/// longer side of their centres' hull; the tree over that order has eight children to a node. Halving by rank keeps its
/// shape on clustered boxes, and a long box spoils only the nodes above its own place.
///
/// Who searches with a tolerance widens the box he searches with, or all boxes beforehand, or both.
///
/// Order      Indexes are listed in ascending order.
/// Tolerance  None: a box is listed exactly if its doubles meet those of the query, touching included. A box that is
///            unbounded or has a bound that is no number is listed always; a query with a bound that is no number lists
///            all. Infinite queries are welcome.
/// Ownership  The boxes are copied.
/// Cost       n log n to make, 52 bytes a box; a query neither allocates nor changes the search.
class BoxSearch {
public:
    BoxSearch(const PlanBox* boxes, long count);

    long GetCount() const { return m_count; }

    /// Replaces `found` by the indexes from `first` to before `end` whose box meets `query`: 0 and i for those before
    /// i, i + 1 and GetCount() for those after it.
    void Find(const PlanBox& query, long first, long end, PodArray<std::int32_t>& found) const;

    /// Replaces `indexes` by all of them in an order in which neighbours lie close together: who asks for every box in
    /// turn finds more of the tree in the cache.
    void ListByPlace(PodArray<std::int32_t>& indexes) const;

    BoxSearch(const BoxSearch&) = delete;
    BoxSearch& operator=(const BoxSearch&) = delete;

private:
    static constexpr int MAX_LEVELS = 12;

    struct Query {
        PlanBox box;
        FloatBox frameBox;
        long first;
        long end;
        PodArray<std::int32_t>& found;
    };

    FloatBox GetFrameBox(const PlanBox& box) const;
    void SetCentre();
    void MakeLevels();
    void Descend(int level, long group, const Query& query) const;

    long m_count;
    double m_centreX = 0.0;
    double m_centreY = 0.0;
    PodArray<PlanBox> m_boxes;             ///< the bounded boxes in the order of the tree
    PodArray<std::int32_t> m_index;        ///< and what they were given as
    PodArray<std::int32_t> m_alwaysFound;  ///< the others, ascending

    int m_levelNum = 0;
    long m_levelStart[MAX_LEVELS] = {};
    PodArray<BoxLanes> m_lanes;
};

}  // namespace qn_detail
