// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "containers/detail/PodArray.h"
#include "polylines/detail/OutlineIndex.h"

namespace qn_detail {

/// A pair of edges that meet: edge `edge[0]` of the first outline at `pa[0]`, edge `edge[1]` of the second at `pa[1]`.
struct EdgeCrossing {
    std::int32_t edge[2];
    double pa[2];         ///< parameters on the two edges, a little outside [0, 1] where the tolerance lets them
    std::uint32_t flags;  ///< PtFlag marks of the crossing
};

/// Finds where the edges of two straight outlines meet, in the order of a double loop over their edges.
///
/// See  CrossingSearch.cpp
class CrossingSearch {
public:
    CrossingSearch(OutlineIndex& first, OutlineIndex& second);

    /// Appends all pairs that count: by edge of the first outline ascending, then by edge of the second.
    void Run(PodArray<EdgeCrossing>& crossings);

private:
    void TestAllPairs();
    void SearchGroup(long group);
    void SearchBlock(long block, const FloatBox& box);
    void Descend(int level, long group, const FloatBox& box);
    unsigned GetEdgesBeside(long i, long block);
    void TestPair(long i, long j);

    FloatBox GetBlockBox(long block) const;
    FloatBox GetGroupBox(long group) const;
    double GetSpan() const;
    double GetMargin(double span) const;
    std::uint32_t GetFlags(long i, long j, double paA, double paB, double det);
    std::uint32_t GetFlagsOfOne(OutlineIndex& own, long edge, double pa, const EdgeDirection& across,
                                bool crossesToRight, std::uint32_t leaves, std::uint32_t enters);

    OutlineIndex& m_first;
    OutlineIndex& m_second;
    const double m_fZero;  ///< g_fZero, which cannot change while an operation runs
    double m_slack;        ///< share of an edge by which the quick test lets a parameter stray
    float m_margin = 0.0F;
    float m_clearance = 0.0F;
    PodArray<std::int32_t> m_near;       ///< blocks of the second outline near the group at hand, ascending
    PodArray<std::int32_t> m_candidate;  ///< of these, the ones near the block at hand
    PodArray<EdgeCrossing>* m_found = nullptr;
};

}  // namespace qn_detail
