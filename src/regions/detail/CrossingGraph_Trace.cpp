// SPDX-License-Identifier: Apache-2.0
//
// CrossingGraph_Trace.cpp: walking the rings of a union or an intersection, part 3 of 3 (after CrossingGraph.cpp).
//
// A walk follows one outline until a node says that it would enter (for a union) or leave (for an intersection) the
// other polygon, and changes over to the other outline there. It ends where it began: the nodes it met are the ring.
//
// Phases     For each node on both outlines, in the order of the graph:
//            1  FollowRing  the pieces of the ring: single nodes and runs of plain vertices
//            2  MakeRing    a polygon of exactly their number of points, filled piece by piece
// Order      Walks start in the order of GetStarts, from the first outline before the second, so that decides the order
//            of the rings and the vertex where each begins.
// Why so     A walk that meets one of its own nodes other than its start goes round for ever and is dropped. Plain
//            vertices need no such mark: the node before their run has it.
#include <algorithm>

#include "polylines/QnGeMLine2d.h"
#include "regions/QnGePolygon2d.h"
#include "regions/detail/CrossingGraph.h"

namespace qn_detail {

namespace {

constexpr std::uint32_t DONE[2] = {PT_DONE_A, PT_DONE_B};

}  // namespace

/// One walk, piece by piece: a node, or a run of `count` plain vertices of one outline.
struct CrossingGraph::Walk {
    struct Piece {
        Link start;          ///< a node's number, or ~k for the plain vertex k
        std::int32_t side;   ///< outline of a run
        std::int32_t count;  ///< points
    };

    std::uint32_t changesOver[2];  ///< mark at which a walk on the first or the second outline changes over
    std::int32_t number = 0;
    long pointNum = 0;
    PodArray<Piece> pieces;

    void Add(Link start, int side, long count) {
        pieces.Append({start, side, static_cast<std::int32_t>(count)});
        pointNum += count;
    }
};

void CrossingGraph::Trace(TraceKind kind, QnPDList<QnGePolygon2d>& rings) {
    const bool isUnion = kind == TraceKind::UNION;
    Walk walk;
    walk.changesOver[0] = isUnion ? PT_A_ENTERS : PT_A_LEAVES;
    walk.changesOver[1] = isUnion ? PT_B_ENTERS : PT_B_LEAVES;

    PodArray<std::int32_t> starts;
    GetStarts(starts);
    for (const std::int32_t start : starts) {
        if (m_nodes[start].next[0] == NO_LINK || m_nodes[start].next[1] == NO_LINK) {
            continue;
        }
        for (int side = 0; side < 2; ++side) {
            const std::uint32_t flags = m_nodes[start].flags;
            if ((flags & walk.changesOver[1 - side]) != 0 && (flags & DONE[side]) == 0) {
                TraceFrom(start, side, walk, rings);
            }
        }
    }
}

void CrossingGraph::TraceFrom(std::int32_t start, int side, Walk& walk, QnPDList<QnGePolygon2d>& rings) {
    ++walk.number;
    walk.pointNum = 0;
    walk.pieces.Clear();
    if (FollowRing(start, side, walk)) {
        rings.Append(MakeRing(walk));
    }
}

// True if the walk came back to its start.
bool CrossingGraph::FollowRing(std::int32_t start, int side, Walk& walk) {
    m_nodes[start].flags |= DONE[side];
    walk.Add(start, side, 1);
    Link at = m_nodes[start].next[side];
    while (at != start) {
        if (at == NO_LINK) {
            return false;  // an open outline ends here
        }
        if (at < 0) {
            at = PassRun(~at, side, walk);
            continue;
        }
        Node& node = m_nodes[at];
        if (node.walk == walk.number) {
            return false;
        }
        node.walk = walk.number;
        walk.Add(at, side, 1);
        if ((node.flags & walk.changesOver[side]) != 0) {
            side = 1 - side;
        }
        node.flags |= DONE[side];
        at = node.next[side];
    }
    return true;
}

// Goes along plain vertices from `vertex` on, and gives the node after them.
CrossingGraph::Link CrossingGraph::PassRun(long vertex, int side, Walk& walk) const {
    const PodArray<std::int32_t>& nodeOf = m_outlines[side]->nodeOf;
    const long vertexNum = nodeOf.GetLength();
    long end = vertex;
    while (end < vertexNum && nodeOf[end] == NONE) {
        ++end;
    }
    walk.Add(~static_cast<Link>(vertex), side, end - vertex);
    if (end < vertexNum) {
        return GetCurrent(nodeOf[end]);
    }
    return m_outlines[side]->isClosed ? GetLinkTo(0, side) : NO_LINK;
}

QnGePolygon2d* CrossingGraph::MakeRing(const Walk& walk) const {
    auto* const ring = new QnGePolygon2d(walk.pointNum);
    QnGePoint* out = &ring->Outline()[0];
    for (const Walk::Piece& piece : walk.pieces) {
        if (piece.start >= 0) {
            const Place& place = m_places[piece.start];
            *out++ = QnGePoint(place.x, place.y, place.z);
        } else {
            const QnGePoint* const from = &m_outlines[piece.side]->index.GetVertex(~piece.start);
            out = std::copy(from, from + piece.count, out);
        }
    }
    return ring;
}

}  // namespace qn_detail
