// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <climits>
#include <cstdint>
#include <memory>

#include "containers/QnPDList.h"
#include "containers/detail/PodArray.h"
#include "polylines/detail/OutlineIndex.h"
#include "regions/detail/CrossingSearch.h"
#include "regions/detail/PtFlag.h"

class QnGeMLine2d;
class QnGePolygon2d;

namespace qn_detail {

/// The crossing graph of two straight polygons: union, intersection and difference are walks over it.
///
/// It has a node for every crossing, linked along both outlines. A vertex becomes a node only where a crossing touches
/// it; all others stay what they are, numbers in their outline, and a walk copies them in runs.
///
/// One graph serves one Build and one Trace: the marks of a trace stay in its nodes.
///
/// Ownership  The outlines are looked at and must outlive the graph unchanged.
/// See        CrossingSearch.cpp, CrossingGraph.cpp and CrossingGraph_Trace.cpp for how it works.
class CrossingGraph {
public:
    enum class TraceKind { UNION, INTER };

    CrossingGraph(const QnGeMLine2d& first, const QnGeMLine2d& second);

    /// Finds and links the crossings; whether there was one.
    bool Build();

    /// Appends the rings of the wanted result in the order of the nodes where they start, each a polygon that keeps the
    /// direction of the walk; a ring may have fewer than 3 vertices.
    void Trace(TraceKind kind, QnPDList<QnGePolygon2d>& rings);

    /// The index over the first (0) or the second (1) outline.
    OutlineIndex& GetIndex(int side) { return m_outlines[side]->index; }

    /// Bytes held.
    long GetMemory() const;

    // ---- for who looks into the graph ------------------------------------------------------------

    /// What comes after or before a node along an outline: a node's number, or ~k for the plain vertex k.
    using Link = std::int32_t;
    static constexpr Link NO_LINK = INT_MIN;

    struct Node {
        double pa[2];  ///< parameters on the edges of the first and the second outline, 0 for a vertex
        Link next[2];  ///< along the first and the second outline; NO_LINK if not on it
        Link prev[2];
        std::int32_t vertex[2];  ///< the vertex that the node stands for, or NONE
        std::int32_t free;       ///< place among the free crossings, or NONE
        std::int32_t successor;  ///< the node that took this one's place, or NONE while in use
        std::int32_t walk;       ///< number of the walk that met the node last
        std::uint32_t flags;     ///< PtFlag
    };
    static constexpr std::int32_t NONE = -1;

    struct Place {
        double x;
        double y;
        double z;
    };

    const PodArray<Node>& GetNodes() const { return m_nodes; }

    /// Where each node lies. Apart from the nodes: linking and walking do not look at it.
    const PodArray<Place>& GetPlaces() const { return m_places; }

    /// The nodes where walks may start, in order: those that took the place of vertices of the second outline, of the
    /// first, free crossings as they were found. A node that is a vertex of both stands with the first outline's; one
    /// that is several vertices of an outline is named for each, which starts no walk twice.
    void GetStarts(PodArray<std::int32_t>& starts);

private:
    struct Outline {
        Outline(const QnGeMLine2d& line, const QnGePoint& centre);

        OutlineIndex index;
        bool isClosed;
        PodArray<std::int32_t> nodeOf;     ///< node of each vertex, NONE for a plain one
        PodArray<std::int32_t> metVertex;  ///< vertices whose place a crossing took, in any order and repeated
    };

    void ReserveNodes(long crossingNum);
    std::int32_t AddNode(double x, double y, double z);
    void Enter(const EdgeCrossing& crossing);
    void Insert(std::int32_t node, std::int32_t start, int side);
    void LinkBefore(std::int32_t node, std::int32_t at, int side);
    void LinkAfter(std::int32_t node, std::int32_t at, int side);
    void Unlink(std::int32_t node, int side);
    void Replace(std::int32_t old, std::int32_t node);
    void TakeLinks(std::int32_t old, std::int32_t node, int side);

    Link MakeNode(Link link, int side);
    std::int32_t GetNodeOfVertex(long vertex, int side);
    std::int32_t MakeVertexNode(long vertex, int side);
    Link GetLinkTo(long vertex, int side) const;
    std::int32_t GetCurrent(std::int32_t node) const;
    bool IsLinked(std::int32_t node, int side) const {
        return m_nodes[node].next[side] != NO_LINK || m_nodes[node].prev[side] != NO_LINK;
    }

    struct Walk;
    void TraceFrom(std::int32_t start, int side, Walk& walk, QnPDList<QnGePolygon2d>& rings);
    bool FollowRing(std::int32_t start, int side, Walk& walk);
    Link PassRun(long vertex, int side, Walk& walk) const;
    QnGePolygon2d* MakeRing(const Walk& walk) const;

    std::unique_ptr<Outline> m_outlines[2];
    PodArray<Node> m_nodes;
    PodArray<Place> m_places;
    PodArray<std::int32_t> m_free;           ///< free crossings, as found
    PodArray<std::int32_t> m_droppedVertex;  ///< vertices of the second outline whose node stands with the first's
};

}  // namespace qn_detail
