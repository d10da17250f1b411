// SPDX-License-Identifier: Apache-2.0
//
// PtGraph_Build.cpp: the crossing graph of two straight polygons A and B, part 1 of 2 (then PtGraph_Trace.cpp).
//
// Union, intersection and difference of polygons are walks over one graph. It has a node for every vertex and every
// crossing, linked along A, along B, or along both. A node with both kinds of links is where the outlines meet and
// where a walk may change over from one to the other:
//
//                  prevB
//                    |
//     prevA ---------*---------> nextA        Here A goes into B (PT_A_ENTERS) and B comes out of A
//                    |                        (PT_B_LEAVES): the inside is at the left of each outline.
//                    v
//                  nextB
//
// Phases     1  MakeVertices  one node per vertex of each outline, linked both ways, parameter 0.
//            2  CrossEdges    each edge of A with each edge of B, A outermost, both in vertex order.
//            3  Classify      what a pair that meets says about entering and leaving, for A and for B.
//            4  Insert        the node of the meeting into the chain of A, then into that of B, by its parameter.
//                             A node that stands there already is replaced: the new one takes its flags, links and
//                             entries.
//            5  CleanUp       each node gets exactly one entry: B's vertices, then A's, then the free crossings.
// Invariant  After each phase n->nextA->prevA == n and n->nextB->prevB == n for every node in use, and the parameters
//            rise along each edge.
// Why so     A corner is met by up to four pairs of edges. Each of them looks at its own pair only and adds its flags
//            to the node, so no rule has to know the whole corner. Where the meeting is at the end of an edge of B, the
//            flags of A are left to B's next edge, which has the same place as its start, and the other way round.
//
//            Which of the points of such pairs becomes the node's point has no deeper reason: the last one stays.
// Order      Walks start in list order, so the order of phase 5 decides the order of the rings and where they start.
// Tolerance  g_fZero, for parameters as well as for the cross products of unit vectors.
// Ownership  PtGraph owns all nodes: those with an entry as its elements, the replaced ones in m_unlisted, from where
//            they lead on to the node that replaced them. PtNode owns nothing. The polygons are read only.
// Cost       All pairs of edges. An insertion is linear in the crossings of its edge.
// Kept odd   Parallel edges never meet, so coincident ones meet only through the edges at their ends. Clockwise
//            outlines are not turned: they act as the outlines of their complement.
// See        docs/algorithms/polygon-booleans.md
#include "containers/QnDynArray.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGeMLine2d.h"
#include "support/reference/PtGraph.h"
#include "values/QnGeBaseLine2d.h"

namespace qn_detail {

namespace {

constexpr int LINES_CROSS = 1;

/// Names the half of a node that belongs to one of the polygons.
struct ChainKind {
    PtNode* PtNode::*next;
    PtNode* PtNode::*prev;
    double PtNode::*pa;
    PtNode::Position PtNode::*slot;
    std::uint32_t leaves;
    std::uint32_t enters;
};

constexpr ChainKind CHAIN_A = {&PtNode::nextA, &PtNode::prevA, &PtNode::paA, &PtNode::slotA, PT_A_LEAVES, PT_A_ENTERS};
constexpr ChainKind CHAIN_B = {&PtNode::nextB, &PtNode::prevB, &PtNode::paB, &PtNode::slotB, PT_B_LEAVES, PT_B_ENTERS};

/// NaN is on no edge.
bool IsOnEdge(double pa) {
    return pa >= -g_fZero && pa - 1.0 <= g_fZero;
}
bool IsAtStart(double pa) {
    return IsZero(pa, g_fZero);
}
bool IsAtEnd(double pa) {
    return IsZero(pa - 1.0, g_fZero);
}
bool IsInside(double pa) {
    return IsGreater(pa, g_fZero) && IsLess(pa - 1.0, g_fZero);
}

/// The node that stands for `node` now.
PtNode* InUse(PtNode* node) {
    while (node->replacedBy != nullptr) {
        node = node->replacedBy;
    }
    return node;
}

// ---- chains --------------------------------------------------------------------------------------

bool IsLinked(const PtNode& node, const ChainKind& kind) {
    return node.*kind.next != nullptr || node.*kind.prev != nullptr;
}

/// `next` may be null: an open line ends there.
void Connect(PtNode* prev, PtNode* next, const ChainKind& kind) {
    if (prev != nullptr) {
        prev->*kind.next = next;
    }
    if (next != nullptr) {
        next->*kind.prev = prev;
    }
}

/// A node that is in the chain already, by rounding at another place, stays where it is.
void LinkBetween(PtNode* prev, PtNode* node, PtNode* next, const ChainKind& kind) {
    if (IsLinked(*node, kind)) {
        return;
    }
    Connect(prev, node, kind);
    Connect(node, next, kind);
}

void Unlink(PtNode* node, const ChainKind& kind) {
    if (node->*kind.next != node) {
        Connect(node->*kind.prev, node->*kind.next, kind);
    }
    node->*kind.next = nullptr;
    node->*kind.prev = nullptr;
}

/// `node` takes over the links that `old` has in one chain.
void TakeLinks(PtNode* node, PtNode* old, const ChainKind& kind) {
    if (!IsLinked(*old, kind)) {
        return;
    }
    if (IsLinked(*node, kind)) {
        Unlink(node, kind);
    }
    PtNode* prev = old->*kind.prev;
    PtNode* next = old->*kind.next;
    Connect(prev == old ? node : prev, node, kind);
    Connect(node, next == old ? node : next, kind);
    old->*kind.next = nullptr;
    old->*kind.prev = nullptr;
}

void TakeEntry(PtNode* node, PtNode* old, PtNode::Position PtNode::*slot) {
    if (old->*slot != nullptr) {
        *(old->*slot) = node;
        node->*slot = old->*slot;
        old->*slot = nullptr;
    }
}

/// `node` takes the place of `old` on both polygons; its own point and parameters stay.
void Replace(PtNode* old, PtNode* node) {
    node->SetBit(old->GetBits());
    TakeLinks(node, old, CHAIN_A);
    TakeLinks(node, old, CHAIN_B);
    TakeEntry(node, old, &PtNode::slotA);
    TakeEntry(node, old, &PtNode::slotB);
    TakeEntry(node, old, &PtNode::slotX);
    old->replacedBy = node;
}

/// Puts `node` into a chain by its parameter, starting at the vertex node at the start of its edge.
void Insert(PtNode* node, PtNode* start, const ChainKind& kind) {
    PtNode* current = start;
    while (current != node) {
        const double delta = node->*kind.pa - current->*kind.pa;
        if (IsZero(delta, g_fZero)) {
            Replace(current, node);
            return;
        }
        if (IsLess(delta, g_fZero)) {
            LinkBetween(current->*kind.prev, node, current, kind);
            return;
        }
        PtNode* next = current->*kind.next;
        const bool isEdgeEnd = next == nullptr || next == start || IsAtStart(next->*kind.pa);
        if (isEdgeEnd) {
            LinkBetween(current, node, next, kind);
            return;
        }
        current = next;
    }
}

// ---- outlines ------------------------------------------------------------------------------------

/// One of the two polygons while the graph is built: its edges, its vertex nodes and the entries of these.
struct Outline {
    explicit Outline(const QnGeMLine2d& line, const ChainKind& chainKind) : kind(chainKind) {
        vertexNum = line.GetVertexNum();
        edgeNum = line.GetSegNum();
        MakeEdges(line);
        MakeVertices(line);
    }

    /// The edge that starts at vertex `i`; of an open line also the one that would close it.
    const QnGeBaseLine2d& Edge(long i) const { return edges.GetAt(i); }
    const QnGeBaseLine2d& EdgeBefore(long i) const { return edges.GetAt((i + vertexNum - 1) % vertexNum); }
    const QnGeBaseLine2d& EdgeAfter(long i) const { return edges.GetAt((i + 1) % vertexNum); }
    long VertexAfter(long i) const { return (i + 1) % vertexNum; }
    PtNode* VertexNode(long i) const { return InUse(*entries.GetAt(i)); }

    const ChainKind& kind;
    long vertexNum = 0;
    long edgeNum = 0;
    QnDynArray<QnGeBaseLine2d> edges;
    PtGraph nodes;                         // one entry for each vertex
    QnDynArray<PtNode::Position> entries;  // the entry of vertex i in `nodes`
    QnDynArray<PtNode*> made;              // the node made for vertex i, in use or replaced

private:
    void MakeEdges(const QnGeMLine2d& line) {
        edges.SetLength(vertexNum, false);
        for (long i = 0; i < vertexNum; ++i) {
            line.GetSegment(i, edges[i]);
        }
    }

    void MakeVertices(const QnGeMLine2d& line) {
        entries.SetLength(vertexNum, false);
        made.SetLength(vertexNum, false);
        PtNode* prev = nullptr;
        for (long i = 0; i < vertexNum; ++i) {
            PtNode* node = new PtNode(line.GetVertex(i));
            made[i] = node;
            nodes.Append(node);
            entries[i] = &nodes.GetCurData();
            node->*kind.slot = entries[i];
            Connect(prev, node, kind);
            prev = node;
        }
        if (vertexNum > 0 && line.IsClosed()) {
            Connect(prev, VertexNode(0), kind);
        }
    }
};

/// What the meeting of edge `i` of `own` at `pa` with the edge `other` says about `own`: whether it leaves the other
/// polygon there or enters it; 0 where it runs along the other edge and so does not decide.
///
/// Requires   `crossesToRight`: edge `i` leads from the left of `other` to its right.
/// Invariant  The inside of a polygon is at the left of its edges. Of the other polygon only the one edge is looked at.
std::uint32_t Classify(const Outline& own, long i, double pa, const QnGeBaseLine2d& other, bool crossesToRight) {
    const std::uint32_t leaves = own.kind.leaves;
    const std::uint32_t enters = own.kind.enters;
    if (IsInside(pa)) {
        return crossesToRight ? leaves : enters;
    }
    const bool isStartCorner = IsAtStart(pa);
    const QnGeBaseLine2d& in = isStartCorner ? own.EdgeBefore(i) : own.Edge(i);
    const QnGeBaseLine2d& out = isStartCorner ? own.Edge(i) : own.EdgeAfter(i);
    if (isStartCorner) {
        if (in.IsParallelWith(other, false) && in.IsReverseDirection(other, false)) {
            return 0;
        }
    } else if (out.IsParallelWith(other, false) && out.IsSameDirection(other, false)) {
        return 0;
    }
    const bool turnsRight = in.IsVectorAtRight(out, false);
    const bool otherGoesLeft = (isStartCorner ? in : out).IsVectorAtLeft(other, false);
    if (turnsRight) {
        return !otherGoesLeft && !crossesToRight ? enters : leaves;
    }
    return otherGoesLeft && crossesToRight ? leaves : enters;
}

}  // namespace

// ---- building ------------------------------------------------------------------------------------

class PtGraphBuilder {
public:
    PtGraphBuilder(PtGraph& graph, const QnGeMLine2d& first, const QnGeMLine2d& second)
        : m_graph(graph), m_a(first, CHAIN_A), m_b(second, CHAIN_B) {}

    /// Whether a pair of edges meets.
    bool CrossEdges();
    void CleanUp();

private:
    bool CrossPair(long i, long j);
    void AddNode(PtNode* node, long i, long j);
    void KeepUnlisted();

    PtGraph& m_graph;
    Outline m_a;
    Outline m_b;
    QnDList<PtNode*> m_met;  // the nodes of all pairs that meet, in use or replaced
};

bool PtGraphBuilder::CrossEdges() {
    bool found = false;
    for (long i = 0; i < m_a.edgeNum; ++i) {
        for (long j = 0; j < m_b.edgeNum; ++j) {
            const bool isMeeting = CrossPair(i, j);
            found = found || isMeeting;
        }
    }
    return found;
}

bool PtGraphBuilder::CrossPair(long i, long j) {
    const QnGeBaseLine2d& edgeA = m_a.Edge(i);
    const QnGeBaseLine2d& edgeB = m_b.Edge(j);
    double paA = 0.0;
    double paB = 0.0;
    if (edgeA.IntersectWith(edgeB, paA, paB, false) != LINES_CROSS || !IsOnEdge(paA) || !IsOnEdge(paB)) {
        return false;
    }
    QnGePoint point;
    edgeA.GetPtFromPa(paA, point);
    PtNode* node = new PtNode(point);
    m_met.Append(node);
    const bool crossesToRight = edgeA.IsVectorAtLeft(edgeB, false);
    if (!IsAtEnd(paB)) {
        node->SetBit(Classify(m_a, i, paA, edgeB, crossesToRight));
    }
    if (!IsAtEnd(paA)) {
        node->SetBit(Classify(m_b, j, paB, edgeA, !crossesToRight));
    }
    node->paA = paA;
    node->paB = paB;
    AddNode(node, i, j);
    return true;
}

/// Gives the node of edges `i` and `j` its place. The end of an edge counts as the start of the next one.
void PtGraphBuilder::AddNode(PtNode* node, long i, long j) {
    if (IsAtEnd(node->paA)) {
        i = m_a.VertexAfter(i);
        node->paA = 0.0;
    }
    if (IsAtEnd(node->paB)) {
        j = m_b.VertexAfter(j);
        node->paB = 0.0;
    }
    Insert(node, m_a.VertexNode(i), CHAIN_A);
    Insert(node, m_b.VertexNode(j), CHAIN_B);

    if (IsGreater(node->paA, g_fZero) && IsGreater(node->paB, g_fZero)) {
        if (node->slotX == nullptr) {
            m_graph.Append(node);
            node->slotX = &m_graph.GetCurData();
        }
    } else if (IsAtStart(node->paA) && IsAtStart(node->paB)) {
        m_b.nodes.m_marked.Append(m_b.entries.GetAt(j));  // a vertex of both stays where A lists it
    }
}

void PtGraphBuilder::CleanUp() {
    m_b.nodes.CleanUp();
    m_a.nodes.CleanUp();
    m_graph.CleanUp();
    KeepUnlisted();
    m_a.nodes.Conbine(m_graph, 0);
    m_b.nodes.Conbine(m_a.nodes, 0);
    m_graph.Conbine(m_b.nodes, 0);
}

/// Nodes without an entry: replaced ones and, by rounding only, nodes that stand in a chain without having one.
void PtGraphBuilder::KeepUnlisted() {
    const auto keep = [this](PtNode* node) {
        if (!node->isListed) {
            m_graph.m_unlisted.Append(node);
        }
    };
    for (PtNode* const* node = m_a.made.GetFirst(); node != nullptr; node = m_a.made.GetNext(node)) {
        keep(*node);
    }
    for (PtNode* const* node = m_b.made.GetFirst(); node != nullptr; node = m_b.made.GetNext(node)) {
        keep(*node);
    }
    for (PtNode* const* node = m_met.GetFirst(); node != nullptr; node = m_met.GetNext(node)) {
        keep(*node);
    }
}

void PtGraph::CleanUp() {
    for (const PtNode::Position* entry = m_marked.GetFirst(); entry != nullptr; entry = m_marked.GetNext(entry)) {
        **entry = nullptr;
    }
    for (MoveToFirst(); !IsOut(); MoveToNext()) {
        PtNode* node = GetCurData() != nullptr ? InUse(GetCurData()) : nullptr;
        if (node != nullptr && !node->isListed) {
            node->isListed = true;
            SetCurData(node);
        } else {
            SetCurData(nullptr);
            DelCur();
        }
    }
}

bool PtGraph::Build(const QnGeMLine2d& first, const QnGeMLine2d& second) {
    PtGraphBuilder builder(*this, first, second);
    const bool found = builder.CrossEdges();
    builder.CleanUp();
    return found;
}

}  // namespace qn_detail
