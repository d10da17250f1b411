// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDynArray.h"
#include "spatial/QnGeQuadTree2d.h"

class QnGeTINTriangle;

namespace qn_detail {

/// Where to begin a walk to a point.
struct WalkStart {
    QnGeTINTriangle* triangle = nullptr;  ///< null: nowhere
    long mostSteps = 0;                   ///< as long as it is worth walking instead of searching the tree
};

/// Works on the tree of a network's triangles. Each triangle remembers where it stands, so that taking it out is no
/// search, and putting one in starts where the tree was touched last.
///
/// The tree becomes the same, and its lists have the same order, as by the stated operations from its root.
///
/// Requires   The range of the tree was set by SetRange while it was empty, and stays: then each bound of a cell is the
///            centre of a cell above it, and a box well inside a cell would come to it from the root as well. Otherwise
///            GoPlain.
/// Ownership  The tree is the graph's and must outlive this.
/// Laws       Nobody else changes the tree without GoPlain.
/// Cost       Between neighbours less than one step up and down each.
class TriangleTree {
public:
    explicit TriangleTree(QnGeQuadTree2d& root) : m_root(root), m_last(&root) {}

    /// From now on all is done from the root and by going through lists, whatever others have done to the tree. It
    /// comes to this by itself when the tolerance changes.
    void GoPlain() { m_isPlain = true; }

    /// Puts a triangle in under its present box. One that is in already, as can happen in a network that has come
    /// apart, is then in twice, and all goes plain.
    void Insert(QnGeTINTriangle* triangle);
    /// Takes a triangle out; nothing happens if it is not in.
    void Delete(QnGeTINTriangle* triangle);

    /// Appends the boxes that hold a point, as the tree itself does.
    void HitTest(const QnGePoint& point, QnDynArray<QnGeExtent2d*>& result);
    /// From the smallest cell round a point that has triangles of its own; nowhere if all is plain.
    WalkStart GetNear(const QnGePoint& point);

    static bool IsIn(const QnGeTINTriangle& triangle);

    enum class Asked { NO, YES, UNSURE };
    /// Whether a search for a point comes to the triangle and finds its box to hold it.
    static Asked IsAsked(const QnGeTINTriangle& triangle, const QnGePoint& point);
    /// Whether a search that comes to both comes to `a` first.
    static bool IsBefore(const QnGeTINTriangle& a, const QnGeTINTriangle& b);

private:
    class Cell;
    struct Kind;
    struct Work;
    struct Steps;

    template <class Item>
    void ClimbTo(const Item& item);
    void HitTestFrom(QnGeQuadTree2d& cell, const QnGePoint& point, QnDynArray<QnGeExtent2d*>& result);
    static QnGeQuadTree2d& ParentOf(QnGeQuadTree2d& cell);

    QnGeQuadTree2d& m_root;
    QnGeQuadTree2d* m_last;  ///< the cell touched last
    bool m_isPlain = false;
    double m_tolerance = 0.0;  ///< under which the triangles went in: another one finds other ways down
};

}  // namespace qn_detail
