// SPDX-License-Identifier: Apache-2.0
//
// CrossingGraph.cpp: linking the crossings of two straight outlines into one graph, part 2 of 3 (CrossingSearch.cpp
// before it, CrossingGraph_Trace.cpp after it).
//
// Each outline is a ring of its vertices. A crossing is threaded into both rings; where it falls on a vertex it takes
// the vertex's place, so that a corner on a corner becomes one node on both rings:
//
//         A:  a0 ---> x ---> a1            prev[0] <- x -> next[0]   along A
//                     |                    prev[1] <- x -> next[1]   along B
//         B:  b3 ---> x ---> b4
//
// Phases     1  CrossingSearch  the pairs of edges that meet
//            2  Enter           one node per pair, threaded into the first ring, then into the second
// Invariant  After each Enter, nodes[n.next[s]].prev[s] == n and nodes[n.prev[s]].next[s] == n wherever those
//            links lead to nodes. A link to a plain vertex leads to the vertex right after or before the node's
//            own, and a node inside an edge has nodes on both sides.
// Why so     Nearly all vertices of a long outline never meet a crossing. They need no node, no links and no marks: a
//            walk enters a run of them only through the node before it, so that node's marks speak for the run.
// Order      Crossings are entered in the order of the search. Of several pairs that meet at one corner the last one's
//            point stays.
// Ownership  Nodes stand in one block and are named by number. A node that was replaced keeps its place and names its
//            successor, for the positions that still lead to it.
#include "regions/detail/CrossingGraph.h"

#include <algorithm>

#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"

namespace qn_detail {

namespace {

using Graph = CrossingGraph;

constexpr Graph::Node UNLINKED = {{0.0, 0.0},
                                  {Graph::NO_LINK, Graph::NO_LINK},
                                  {Graph::NO_LINK, Graph::NO_LINK},
                                  {Graph::NONE, Graph::NONE},
                                  Graph::NONE,
                                  Graph::NONE,
                                  0,
                                  0};

}  // namespace

CrossingGraph::Outline::Outline(const QnGeMLine2d& line, const QnGePoint& centre)
    : index(line, centre), isClosed(line.IsClosed()), nodeOf(line.GetVertexNum()) {
    std::fill(nodeOf.begin(), nodeOf.end(), NONE);
}

CrossingGraph::CrossingGraph(const QnGeMLine2d& first, const QnGeMLine2d& second) {
    const QnGePoint centre = first.GetVertexNum() > 0 ? first.GetVertex(0) : QnGePoint();
    m_outlines[0] = std::make_unique<Outline>(first, centre);
    m_outlines[1] = std::make_unique<Outline>(second, centre);
}

bool CrossingGraph::Build() {
    PodArray<EdgeCrossing> crossings;
    CrossingSearch(GetIndex(0), GetIndex(1)).Run(crossings);
    ReserveNodes(crossings.GetLength());
    for (const EdgeCrossing& crossing : crossings) {
        Enter(crossing);
    }
    return !crossings.IsEmpty();
}

// A crossing brings its own node and makes nodes of the ends of its two edges at most.
void CrossingGraph::ReserveNodes(long crossingNum) {
    constexpr long EDGE_ENDS = 4;
    const long vertexNum = GetIndex(0).GetVertexNum() + GetIndex(1).GetVertexNum();
    const long nodeNum = crossingNum + std::min(EDGE_ENDS * crossingNum, vertexNum);
    m_nodes.SetSpace(nodeNum);
    m_places.SetSpace(nodeNum);
    m_free.SetSpace(crossingNum);
}

// A node without links. It is written where it stands: a copy of a record just written waits for the writing.
std::int32_t CrossingGraph::AddNode(double x, double y, double z) {
    Place& place = m_places.AppendUnset();
    place.x = x;
    place.y = y;
    place.z = z;
    m_nodes.AppendUnset() = UNLINKED;
    return static_cast<std::int32_t>(m_nodes.GetLength() - 1);
}

void CrossingGraph::Enter(const EdgeCrossing& crossing) {
    const QnGePoint& start = GetIndex(0).GetVertex(crossing.edge[0]);
    const QnGePoint& end = GetIndex(0).GetEdgeEnd(crossing.edge[0]);
    const double paA = crossing.pa[0];
    const std::int32_t node = AddNode(start.x + paA * (end.x - start.x), start.y + paA * (end.y - start.y),
                                      start.z + paA * (end.z - start.z));
    m_nodes[node].flags = crossing.flags;
    long vertex[2];
    double pa[2];
    for (int side = 0; side < 2; ++side) {
        const bool isAtEnd = IsZero(crossing.pa[side] - 1.0, g_fZero);
        vertex[side] = isAtEnd ? GetIndex(side).GetVertexAfter(crossing.edge[side]) : crossing.edge[side];
        pa[side] = isAtEnd ? 0.0 : crossing.pa[side];
        m_nodes[node].pa[side] = pa[side];
    }
    for (int side = 0; side < 2; ++side) {
        Insert(node, GetNodeOfVertex(vertex[side], side), side);
    }
    if (pa[0] > g_fZero && pa[1] > g_fZero) {
        if (m_nodes[node].free == NONE) {
            m_nodes[node].free = static_cast<std::int32_t>(m_free.Append(node));
        }
    } else if (IsZero(pa[0], g_fZero) && IsZero(pa[1], g_fZero)) {
        m_droppedVertex.Append(static_cast<std::int32_t>(vertex[1]));
    }
}

// Threads `node` into a ring by its parameter, from the vertex node `start` of its edge onward.
void CrossingGraph::Insert(std::int32_t node, std::int32_t start, int side) {
    std::int32_t at = start;
    while (at != node) {
        const double ahead = m_nodes[node].pa[side] - m_nodes[at].pa[side];
        if (IsZero(ahead, g_fZero)) {
            Replace(at, node);
            return;
        }
        if (IsLess(ahead, g_fZero)) {
            LinkBefore(node, at, side);
            return;
        }
        const Link next = m_nodes[at].next[side];
        const bool edgeEnds = next < 0 || next == start || IsZero(m_nodes[next].pa[side], g_fZero);
        if (edgeEnds) {
            LinkAfter(node, at, side);
            return;
        }
        at = next;
    }
}

void CrossingGraph::LinkBefore(std::int32_t node, std::int32_t at, int side) {
    if (IsLinked(node, side)) {
        return;
    }
    const Link before = MakeNode(m_nodes[at].prev[side], side);
    m_nodes[node].prev[side] = before;
    m_nodes[node].next[side] = at;
    m_nodes[at].prev[side] = node;
    if (before != NO_LINK) {
        m_nodes[before].next[side] = node;
    }
}

void CrossingGraph::LinkAfter(std::int32_t node, std::int32_t at, int side) {
    if (IsLinked(node, side)) {
        return;
    }
    const Link after = MakeNode(m_nodes[at].next[side], side);
    m_nodes[node].next[side] = after;
    m_nodes[node].prev[side] = at;
    m_nodes[at].next[side] = node;
    if (after != NO_LINK) {
        m_nodes[after].prev[side] = node;
    }
}

void CrossingGraph::Unlink(std::int32_t node, int side) {
    const Link before = MakeNode(m_nodes[node].prev[side], side);
    const Link after = MakeNode(m_nodes[node].next[side], side);
    if (before != NO_LINK) {
        m_nodes[before].next[side] = after;
    }
    if (after != NO_LINK) {
        m_nodes[after].prev[side] = before;
    }
    m_nodes[node].next[side] = NO_LINK;
    m_nodes[node].prev[side] = NO_LINK;
}

// `node` takes over the flags, the links on both rings and the positions of `old`, and keeps its own parameters.
void CrossingGraph::Replace(std::int32_t old, std::int32_t node) {
    for (int side = 0; side < 2; ++side) {
        if (IsLinked(old, side)) {
            if (IsLinked(node, side)) {
                Unlink(node, side);
            }
            TakeLinks(old, node, side);
        }
        const std::int32_t vertex = m_nodes[old].vertex[side];
        if (vertex != NONE) {
            m_nodes[node].vertex[side] = vertex;
            m_outlines[side]->nodeOf[vertex] = node;
            m_outlines[side]->metVertex.Append(vertex);
        }
    }
    Node& gone = m_nodes[old];
    Node& here = m_nodes[node];
    here.flags |= gone.flags;
    if (gone.free != NONE) {
        here.free = gone.free;
        m_free[gone.free] = node;
    }
    gone.successor = node;
}

// A plain neighbour finds its way by the vertex number and needs no new link.
void CrossingGraph::TakeLinks(std::int32_t old, std::int32_t node, int side) {
    Node& gone = m_nodes[old];
    Node& here = m_nodes[node];
    here.next[side] = gone.next[side] == old ? node : gone.next[side];
    here.prev[side] = gone.prev[side] == old ? node : gone.prev[side];
    if (here.next[side] >= 0) {
        m_nodes[here.next[side]].prev[side] = node;
    }
    if (here.prev[side] >= 0) {
        m_nodes[here.prev[side]].next[side] = node;
    }
    gone.next[side] = NO_LINK;
    gone.prev[side] = NO_LINK;
}

// The link itself, or that of a node made from the plain vertex it leads to.
CrossingGraph::Link CrossingGraph::MakeNode(Link link, int side) {
    return link >= 0 || link == NO_LINK ? link : GetNodeOfVertex(~link, side);
}

std::int32_t CrossingGraph::GetNodeOfVertex(long vertex, int side) {
    const std::int32_t node = m_outlines[side]->nodeOf[vertex];
    return node == NONE ? MakeVertexNode(vertex, side) : GetCurrent(node);
}

std::int32_t CrossingGraph::MakeVertexNode(long vertex, int side) {
    const QnGePoint& point = GetIndex(side).GetVertex(vertex);
    const std::int32_t node = AddNode(point.x, point.y, point.z);
    Node& fresh = m_nodes[node];
    fresh.vertex[side] = static_cast<std::int32_t>(vertex);
    const long last = GetIndex(side).GetVertexNum() - 1;
    if (m_outlines[side]->isClosed || vertex != last) {
        const Link next = GetLinkTo(vertex == last ? 0 : vertex + 1, side);
        fresh.next[side] = next;
        if (next >= 0) {
            m_nodes[next].prev[side] = node;
        }
    }
    if (m_outlines[side]->isClosed || vertex != 0) {
        const Link prev = GetLinkTo(vertex == 0 ? last : vertex - 1, side);
        fresh.prev[side] = prev;
        if (prev >= 0) {
            m_nodes[prev].next[side] = node;
        }
    }
    m_outlines[side]->nodeOf[vertex] = node;
    return node;
}

CrossingGraph::Link CrossingGraph::GetLinkTo(long vertex, int side) const {
    const std::int32_t node = m_outlines[side]->nodeOf[vertex];
    return node == NONE ? ~static_cast<Link>(vertex) : GetCurrent(node);
}

std::int32_t CrossingGraph::GetCurrent(std::int32_t node) const {
    while (m_nodes[node].successor != NONE) {
        node = m_nodes[node].successor;
    }
    return node;
}

void CrossingGraph::GetStarts(PodArray<std::int32_t>& starts) {
    std::sort(m_droppedVertex.begin(), m_droppedVertex.end());
    for (int side = 1; side >= 0; --side) {
        PodArray<std::int32_t>& met = m_outlines[side]->metVertex;
        std::sort(met.begin(), met.end());
        std::int32_t last = NONE;
        for (const std::int32_t vertex : met) {
            const bool stands =
                side == 0 || !std::binary_search(m_droppedVertex.begin(), m_droppedVertex.end(), vertex);
            if (vertex != last && stands) {
                starts.Append(GetCurrent(m_outlines[side]->nodeOf[vertex]));
            }
            last = vertex;
        }
    }
    for (const std::int32_t node : m_free) {
        starts.Append(GetCurrent(node));
    }
}

long CrossingGraph::GetMemory() const {
    long bytes = m_nodes.GetMemory() + m_places.GetMemory() + m_free.GetMemory() + m_droppedVertex.GetMemory();
    for (const std::unique_ptr<Outline>& outline : m_outlines) {
        bytes += outline->index.GetMemory() + outline->nodeOf.GetMemory();
    }
    return bytes;
}

}  // namespace qn_detail
