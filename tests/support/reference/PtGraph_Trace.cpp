// SPDX-License-Identifier: Apache-2.0
//
// PtGraph_Trace.cpp: the crossing graph of two straight polygons A and B, part 2 of 2 (after PtGraph_Build.cpp): the
// walks that give the rings of a union or an intersection.
//
// A walk follows one outline to a node where it would get to the wrong side of the other, and goes on along the other
// one from there:
//
//        +-------+             Union: leave an outline where it enters the other polygon, and so stay outside.
//        | A   +-*-----+       Intersection: leave it where it leaves the other polygon, and so stay inside.
//        |     | |     |
//        +-----*-+   B |       At the nodes (*) the union walk comes from A, changes to B, comes from B, changes to A.
//              +-------+
//
// Phases     1  Trace   tries every node of both outlines as a start: onto A where B would go wrong, then onto B where
//                       A would go wrong.
//            2  Walk    from a start round to it. A walk that meets one of its own nodes before is dropped.
// Invariant  A node is left along each outline at most once by all starts together: PT_DONE_A, PT_DONE_B.
// Order      Rings in the order of their start nodes in the list. Vertex 0 of a ring is its start node.
// Ownership  The rings are new and belong to the caller's list.
// Cost       Linear in the lengths of the walks.
// See        docs/algorithms/polygon-booleans.md
#include <memory>

#include "polylines/QnGeMLine2d.h"
#include "support/reference/PtGraph.h"

namespace qn_detail {

namespace {

/// The nodes at which a walk of one kind changes over.
struct Switches {
    std::uint32_t fromA;  ///< coming along A, go on along B
    std::uint32_t fromB;  ///< coming along B, go on along A
};

constexpr Switches UNION_SWITCHES = {PT_A_ENTERS, PT_B_ENTERS};
constexpr Switches INTER_SWITCHES = {PT_A_LEAVES, PT_B_LEAVES};

/// Leaves the node along one of the outlines; null at the end of an open one.
PtNode* Leave(PtNode* node, bool alongA) {
    node->SetBit(alongA ? PT_DONE_A : PT_DONE_B);
    return alongA ? node->nextA : node->nextB;
}

/// Walks from `start` round to it and collects the points; false if the walk does not come back.
bool Walk(PtNode* start, bool alongA, const Switches& switches, long walkNumber, QnGeMLine2d& ring) {
    ring.AppendVertex(*start);
    for (PtNode* node = Leave(start, alongA); node != start; node = Leave(node, alongA)) {
        if (node == nullptr || node->walk == walkNumber) {
            return false;
        }
        node->walk = walkNumber;
        ring.AppendVertex(*node);
        const bool isSwitch = node->HasBit(alongA ? switches.fromA : switches.fromB);
        if (isSwitch) {
            alongA = !alongA;
        }
    }
    return true;
}

}  // namespace

void PtGraph::Trace(TraceKind kind, QnPDList<QnGeMLine2d>& rings) {
    const Switches& switches = kind == TraceKind::UNION ? UNION_SWITCHES : INTER_SWITCHES;
    long walkNumber = 0;
    const auto traceFrom = [&](PtNode* start, bool alongA) {
        auto ring = std::make_unique<QnGeMLine2d>(0, true);
        if (Walk(start, alongA, switches, ++walkNumber, *ring)) {
            rings.Append(ring.release());
        }
    };
    for (PtNode* const* entry = GetFirst(); entry != nullptr; entry = GetNext(entry)) {
        PtNode* node = *entry;
        if (node->nextA == nullptr || node->nextB == nullptr) {
            continue;
        }
        if (node->HasBit(switches.fromB) && !node->HasBit(PT_DONE_A)) {
            traceFrom(node, true);
        }
        if (node->HasBit(switches.fromA) && !node->HasBit(PT_DONE_B)) {
            traceFrom(node, false);
        }
    }
}

}  // namespace qn_detail
