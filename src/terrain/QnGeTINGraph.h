// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "containers/QnPDList.h"
#include "containers/QnQuene.h"
#include "containers/QnStack.h"
#include "frame/QnGeApi.h"
#include "spatial/QnGePtQuadTree2d.h"
#include "spatial/QnGeQuadTree2d.h"
#include "terrain/QnGeTINNode.h"
#include "terrain/QnGeTINOutEdge.h"
#include "terrain/QnGeTINTriangle.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {
class HullIndex;
class TriangleFinder;
class TriangleTree;
}  // namespace qn_detail

/// A triangulated network: nodes go in one by one, and the edges round each are flipped until no node lies within the
/// circle of a triangle (Lawson's incremental Delaunay triangulation).
///
/// Either a caller fills NodeList and calls MakeTIN, once per graph; or it calls SetRange over all nodes to come and
/// inserts them itself.
///
/// Direction  Triangles run counter-clockwise, and so does the ring of hull records.
/// Z          The values of the nodes ride along; all tests are in the plan. Nodes in one place become one with the
///            mean of their values.
/// Tolerance  g_distZero for one place, for on an edge, and for within a circle.
/// Order      TrgList is in the order of making. NodeList after MakeTIN is the order of insertion, coarse cells of the
///            plane first; the given order is lost.
/// Invariant  After each Insert: neighbours point at each other; an edge has a hull record exactly when it has no
///            neighbour; every triangle is in the tree under its true box.
/// Valid      Nodes stay where they are, and triangles with their graph: lists of two graphs are not to be joined.
/// Ownership  Owns the nodes, triangles and hull records of its lists. Copies share all three, as lists of owned
///            pointers do, so that one side must be emptied by TakeOffHead before both die; trees of a copy are empty.
/// Cost       MakeTIN about n log n for n nodes that lie neither on a circle nor on lines; n times the hull's length at
///            the worst.
/// Fails      Three or more nodes on one slanted line and no others: MakeTIN does not return. Nodes about 1e-5 inside a
///            long hull edge can be lost or make slivers that run clockwise.
/// See        docs/algorithms/triangulation.md
class QUARNGEO_API QnGeTINGraph {
protected:
    /// Makes every triangle of this network.
    virtual QnGeTINTriangle* NewTriangle() const;

    QnDListStack<QnGeTINTriangle*> LOPStack;  ///< triangles whose edge 1 is still to be looked at
    QnListQuene<QnGeTINTriangle*> TrgQuene;   ///< unused here
    QnGeQuadTree2d TrgTree;                   ///< boxes of the triangles not on the stack; see TreeChanged
    QnGePtQuadTree2d NodeTree;                ///< has its range from SetRange; holds nothing between calls
    QnGeExtent2d Range;                       ///< of the nodes inserted so far

public:
    QnPDList<QnGeTINNode> NodeList;        ///< before MakeTIN its input; then the nodes of the network
    QnPDList<QnGeTINTriangle> TrgList;     ///< in the order of making
    QnPDList<QnGeTINOutEdge> OutEdgeList;  ///< the hull, a closed ring; may be turned round, not exchanged in part

    // ---- making ----------------------------------------------------------------------------------

    QnGeTINGraph();
    QnGeTINGraph(const QnGeTINGraph& other);
    virtual ~QnGeTINGraph();

    QnGeTINGraph& operator=(const QnGeTINGraph& other);

    // ---- building --------------------------------------------------------------------------------

    /// Sets the range of the trees, widened by ten tolerances on each side. Over all nodes, before the first Insert.
    void SetRange(double xMin, double xMax, double yMin, double yMax);
    /// Puts a node into the network.
    ///
    /// Requires   SetRange over all nodes that will come; without it the work grows with the square of the number.
    /// Ownership  On true the node is the graph's; one that fell on another is deleted.
    /// Fails      False for the third node while all are on one line: it stays the caller's and comes again later.
    /// Kept odd   True also for a node that found no place. It is in no list and goes with the graph.
    bool Insert(QnGeTINNode* node);
    /// Makes the network of the nodes that stand in NodeList. Call it once per graph.
    ///
    /// Fails  Nothing happens if the nodes extend no further than g_distZero in x or in y. Does not return for three
    ///        or more nodes that all lie on one slanted line: the third never finds its place.
    void MakeTIN();

    // ---- the stack, for triangles ----------------------------------------------------------------

    /// Takes a triangle out of the tree and puts it on the stack; its circle must be computed anew.
    ///
    /// Requires  Its box is still that under which it is in the tree, whatever its nodes are by now.
    void PushLOP(QnGeTINTriangle* triangle);
    /// Takes the top triangle off the stack and puts it into the tree under its new box.
    void PopLOP();

protected:
    /// Flips until the stack is empty.
    void LOP();
    /// The length of the run of hull edges from `index` on that face the node. A run that reaches back over the start
    /// of the ring is made to begin there, by turning the ring; `index` is then 0.
    ///
    /// Requires  The edge at `index` faces the node.
    long FindAndRotateEdge(QnGeTINNode* node, long& index);
    /// Where the node lies: 0 within `triangle`, 1 to 3 on its edge of that index less 1, -1 to -3 at its node of that
    /// index less 1. With `triangle` null, 0 is nowhere, or on the line of a hull edge.
    int HitTest(QnGeTINNode* node, QnGeTINTriangle*& triangle);
    /// Splits the triangle or the two triangles that hold the node, without flipping yet. False if none does.
    ///
    /// Ownership  On true the node is the graph's.
    bool InsertInside(QnGeTINNode* node);
    /// Joins the node to the hull edges that face it, or splits the hull edge on which it lies. False if there is none.
    ///
    /// Ownership  On true the node is the graph's.
    bool InsertOutside(QnGeTINNode* node);

    /// Says that TrgTree, the triangles or the ring were changed by other means than the operations here. From then on
    /// all is done from the root of the tree, which answers the same.
    ///
    /// Cost  Each insertion goes through the lists on its way down the tree; they are long in a large network. Reading
    ///       the tree costs the lists that are read the same.
    void TreeChanged();

    QnPDList<QnGeTINNode> Dropped;  ///< nodes that found no place

private:
    void SetTreeRanges(const QnGeExtent2d& range);
    qn_detail::HullIndex* GetHullIndex();
    bool InsertThird(QnGeTINNode* node);
    void Merge(QnGeTINNode& kept, QnGeTINNode* node);
    void SplitTriangle(QnGeTINNode* node, QnGeTINTriangle* triangle);
    void SplitEdge(QnGeTINNode* node, QnGeTINTriangle* triangle, long edge);
    void JoinHullEdges(QnGeTINNode* node, long index);
    bool JoinHullLine(QnGeTINNode* node, long index);
    void SplitHullEdge(QnGeTINNode* node, long index, QnGeTINNode* from, QnGeTINNode* to);
    void DropHullRecord(long index);
    void ReplaceHullEdges(long index, long count, QnGeTINOutEdge* first, QnGeTINOutEdge* second);

    QnPDList<QnGeTINOutEdge> m_goneRecords;           ///< off the ring, but perhaps not off all triangles
    std::unique_ptr<qn_detail::HullIndex> m_hull;     ///< of a long hull
    std::unique_ptr<qn_detail::TriangleTree> m_tree;  ///< works on TrgTree
    std::unique_ptr<qn_detail::TriangleFinder> m_finder;
};
