// SPDX-License-Identifier: Apache-2.0
//
// QnGePolygon2d_Boolean.cpp: union, intersection and difference of straight polygons.
//
// Where the outlines meet, the result is a set of rings, walked through the crossing graph of the two outlines. Where
// they do not meet, or meet without parting, one polygon lies in the other or they are disjoint, and the vertices
// tell which.
//
//     Union       rings of the union walk: the counter-clockwise one is the outline, clockwise ones are holes.
//     Inter       rings of the intersection walk: one polygon each.
//     SubtractBy  the intersection with the complement: the other outline reversed is the outline of all that lies
//                 outside it.
//
// Phases     1  FindRings    builds and walks the graph.
//            2  JoinRings, TakePolygon   turn rings into objects.
//            3  WalkVertices settles containment where there is no ring.
// Why so     A vertex on the other outline decides nothing, hence the walk goes on to the first that is clearly in or
//            out. If all of them are on it, the polygon is taken to be covered by the other one.
// Ownership  All results are new; the operands are read only.
// Order      Results come in the order of the rings, see CrossingGraph_Trace.cpp.
// Kept odd   The last sentence of "Why so" is wrong for a polygon that fills a bay of the other one from outside with
//            all its vertices: Inter gives a copy of it.
// See        docs/algorithms/polygon-booleans.md
#include <memory>

#include "containers/QnPDList.h"
#include "frame/QnGeObjList.h"
#include "polylines/detail/ClosedHitTest.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGePolygon2d.h"
#include "regions/detail/CrossingGraph.h"

namespace {

using qn_detail::CrossingGraph;
using RingList = QnPDList<QnGePolygon2d>;

constexpr long MIN_RING_VERTICES = 3;

void FindRings(CrossingGraph& graph, CrossingGraph::TraceKind kind, RingList& rings) {
    if (graph.Build()) {
        graph.Trace(kind, rings);
    }
}

/// Takes the first ring; null if it encloses nothing.
std::unique_ptr<QnGePolygon2d> TakePolygon(RingList& rings) {
    std::unique_ptr<QnGePolygon2d> ring(rings.TakeOffHead());
    if (ring->Outline().GetVertexNum() < MIN_RING_VERTICES) {
        return nullptr;
    }
    return ring;
}

/// Appends the polygon of each ring. A ring that encloses nothing leaves a null entry.
void AppendPolygons(RingList& rings, QnGeObjList& out) {
    while (!rings.IsEmpty()) {
        out.Append(TakePolygon(rings).release());
    }
}

/// One region of several rings: the only counter-clockwise one is the outline, the others are its holes. Null if there
/// is no such ring or more than one.
std::unique_ptr<QnGeRegion2d> JoinRings(RingList& rings) {
    auto region = std::make_unique<QnGeGeneralPolygon2d>();
    bool hasOutline = false;
    while (!rings.IsEmpty()) {
        const std::unique_ptr<QnGePolygon2d> ring(rings.TakeOffHead());
        if (ring->Outline().IsClockwise()) {
            region->AppendHole(new QnGeMLine2d(ring->Outline()), false);
        } else if (hasOutline) {
            return nullptr;
        } else {
            region->Outline() = ring->Outline();
            hasOutline = true;
        }
    }
    if (!hasOutline) {
        return nullptr;
    }
    return region;
}

/// What the vertices of a polygon say about its place to another outline.
enum class VertexPlace {
    INSIDE,   ///< the first one that is not on the outline is inside
    OUTSIDE,  ///< the first one that is not on the outline is outside
    ALL_ON    ///< all of them are on the outline
};

/// The place of the vertices of `line` to `outline`, over which `index` is the graph's. A walk that goes on past
/// its first vertex is one along the outline, which only the index makes bearable.
VertexPlace WalkVertices(const QnGeMLine2d& line, const QnGeMLine2d& outline, qn_detail::OutlineIndex& index) {
    for (long i = 0; i < line.GetVertexNum(); ++i) {
        const QnGePoint& vertex = line.GetVertex(i);
        const bool useIndex = i > 0 && outline.IsClosed();
        const QnBitData hit =
            useIndex ? qn_detail::ClosedHitTest(outline, vertex).RunWith(index) : outline.HitTest(vertex);
        if (hit.HasBit(HIT_IN)) {
            return VertexPlace::INSIDE;
        }
        if (hit.HasBit(HIT_OUT)) {
            return VertexPlace::OUTSIDE;
        }
    }
    return VertexPlace::ALL_ON;
}

bool IsEmptyPolygon(const QnGePolygon2d& polygon) {
    return polygon.Outline().GetVertexNum() == 0;
}

/// Only the outline is copied, also where the polygon is the outline part of a general polygon.
QnGePolygon2d* CopyOutlinePart(const QnGePolygon2d& polygon) {
    return new QnGePolygon2d(polygon);
}

bool IsClockwiseRing(const QnGePolygon2d* polygon) {
    return polygon != nullptr && polygon->Outline().IsClockwise();
}

void AppendWithHole(const QnGeMLine2d& outline, const QnGeMLine2d& clockwiseHole, QnGeObjList& out) {
    auto region = std::make_unique<QnGeGeneralPolygon2d>(outline, false);
    region->AppendHole(new QnGeMLine2d(clockwiseHole), false);
    out.Append(region.release());
}

}  // namespace

// ---- dispatch ------------------------------------------------------------------------------------
// Union and intersection are symmetric, so a region that knows more than this class does the work.

QnGeRegion2d* QnGePolygon2d::Union(const QnGeRegion2d& other) const {
    if (other.GetCI() == &QnGePolygon2d::s_classInfo) {
        return Union(static_cast<const QnGePolygon2d&>(other));
    }
    return other.Union(*this);
}

bool QnGePolygon2d::Inter(const QnGeRegion2d& other, QnGeObjList& out) const {
    if (other.GetCI() == &QnGePolygon2d::s_classInfo) {
        return Inter(static_cast<const QnGePolygon2d&>(other), out);
    }
    return other.Inter(*this, out);
}

void QnGePolygon2d::SubtractBy(const QnGeRegion2d& other, QnGeObjList& out) const {
    switch (other.GetClassID()) {
        case CLASS_ID_POLYGON2D:
            SubtractBy(static_cast<const QnGePolygon2d&>(other), out);
            break;
        case CLASS_ID_GENERAL_POLYGON2D:
            SubtractBy(static_cast<const QnGeGeneralPolygon2d&>(other), out);
            break;
        default:
            QnGeRegion2d::SubtractBy(other, out);
            break;
    }
}

// ---- polygon with polygon ------------------------------------------------------------------------

QnGeRegion2d* QnGePolygon2d::Union(const QnGePolygon2d& other) const {
    if (IsEmptyPolygon(*this)) {
        return CopyOutlinePart(other);
    }
    if (IsEmptyPolygon(other)) {
        return CopyOutlinePart(*this);
    }
    RingList rings;
    CrossingGraph graph(m_outline, other.m_outline);
    FindRings(graph, CrossingGraph::TraceKind::UNION, rings);
    if (rings.GetLength() == 1) {
        return TakePolygon(rings).release();
    }
    if (rings.GetLength() > 1) {
        return JoinRings(rings).release();
    }
    if (WalkVertices(m_outline, other.m_outline, graph.GetIndex(1)) != VertexPlace::OUTSIDE) {
        return CopyOutlinePart(other);
    }
    if (WalkVertices(other.m_outline, m_outline, graph.GetIndex(0)) != VertexPlace::OUTSIDE) {
        return CopyOutlinePart(*this);
    }
    return nullptr;
}

bool QnGePolygon2d::Inter(const QnGePolygon2d& other, QnGeObjList& out) const {
    if (IsEmptyPolygon(*this) || IsEmptyPolygon(other)) {
        return false;
    }
    RingList rings;
    CrossingGraph graph(m_outline, other.m_outline);
    FindRings(graph, CrossingGraph::TraceKind::INTER, rings);
    if (!rings.IsEmpty()) {
        AppendPolygons(rings, out);
        return true;
    }
    if (WalkVertices(m_outline, other.m_outline, graph.GetIndex(1)) != VertexPlace::OUTSIDE) {
        out.Append(CopyOutlinePart(*this));
        return true;
    }
    if (WalkVertices(other.m_outline, m_outline, graph.GetIndex(0)) != VertexPlace::OUTSIDE) {
        out.Append(CopyOutlinePart(other));
        return true;
    }
    return false;
}

void QnGePolygon2d::SubtractBy(const QnGePolygon2d& other, QnGeObjList& out) const {
    if (IsEmptyPolygon(*this)) {
        return;
    }
    if (IsEmptyPolygon(other)) {
        out.Append(CopyOutlinePart(*this));
        return;
    }
    QnGeMLine2d outside(other.m_outline);  // the outline of all that is not in `other`
    outside.Reverse();
    RingList rings;
    CrossingGraph graph(m_outline, outside);
    FindRings(graph, CrossingGraph::TraceKind::INTER, rings);

    if (rings.GetLength() == 2) {
        std::unique_ptr<QnGePolygon2d> first = TakePolygon(rings);
        std::unique_ptr<QnGePolygon2d> second = TakePolygon(rings);
        if (IsClockwiseRing(first.get()) || IsClockwiseRing(second.get())) {
            // The two only touch, `other` from inside: the walks ran round one and round the other.
            AppendWithHole(m_outline, outside, out);
        } else {
            out.Append(first.release());
            out.Append(second.release());
        }
        return;
    }
    if (!rings.IsEmpty()) {
        AppendPolygons(rings, out);
        return;
    }
    const VertexPlace otherPlace = WalkVertices(outside, m_outline, graph.GetIndex(0));
    if (otherPlace == VertexPlace::INSIDE) {
        AppendWithHole(m_outline, outside, out);
        return;
    }
    const VertexPlace thisPlace = WalkVertices(m_outline, outside, graph.GetIndex(1));
    if (otherPlace == VertexPlace::OUTSIDE && thisPlace == VertexPlace::OUTSIDE) {
        out.Append(CopyOutlinePart(*this));
    }
}

// What lies in a hole of `other` is not taken away by it.
void QnGePolygon2d::SubtractBy(const QnGeGeneralPolygon2d& other, QnGeObjList& out) const {
    SubtractBy(static_cast<const QnGePolygon2d&>(other), out);
    for (long i = 0; i < other.GetHoleNum(); ++i) {
        QnGePolygon2d hole(other.Hole(i), false);
        hole.Outline().Reverse();
        Inter(hole, out);
    }
}
