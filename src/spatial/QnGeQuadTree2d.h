// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "containers/QnList.h"
#include "values/QnGeExtent2d.h"

/// An index of boxes in the plan: which of them hold a point, which meet a box.
///
///        child 1 | child 0       A box that lies wholly on one side of both centre lines goes down into that
///      ----------+----------     quarter; one that crosses a centre line, or comes within the tolerance of it,
///        child 2 | child 3       stays in the list of the node. A leaf holds one box.
///
/// The tree is its own root node, and its box is the range that it divides. There is no limit of depth and no capacity
/// of a node: cells halve until a centre line catches the boxes in them. Callers pass objects of classes derived from
/// QnGeExtent2d and cast back what they find.
///
/// Tolerance  g_distZero, for the band about a centre line and for the hits.
/// Ownership  Boxes belong to the caller and must stay where they are with the coordinates they had; Delete(box, true)
///            alone frees one. The tree owns its nodes and lists.
///            Copy and assignment are shallow: both trees then share nodes, of which one may be destroyed, and the
///            former nodes of the target are freed by nobody. Addresses of a list's elements are good until the next
///            insertion into the tree or deletion from it.
/// Valid      A node does not hold OneExtent beside a child. SetRange does not sort anew: set the range of an empty
///            tree.
/// Cost       Insert and Delete go down one path. Long lists carry a hidden index, by which looking for hits and
///            deleting do not walk them.
/// See        QnGeOctree for space, QnGePtQuadTree2d for points
class QUARNGEO_API QnGeQuadTree2d : public QnGeExtent2d {
public:
    double CenterX;  ///< middle of the range
    double CenterY;
    QnList<QnGeExtent2d*>* ExtentList;  ///< boxes that cross a centre line, in order of arrival; null for none
    QnGeExtent2d* OneExtent;            ///< the box of a leaf
    QnGeQuadTree2d* Child[4];           ///< right above, left above, left below, right below; null for none

    /// A tree without range: it takes boxes by `+=`, or by Insert after SetRange.
    QnGeQuadTree2d();
    QnGeQuadTree2d(const QnGeQuadTree2d& other) = default;
    QnGeQuadTree2d& operator=(const QnGeQuadTree2d& other) = default;
    ~QnGeQuadTree2d() override;

    /// Nodes come and go singly and often: they have free lists of their own.
    static void* operator new(std::size_t bytes);
    static void operator delete(void* tree, std::size_t bytes);

    void SetRange(double xMin, double xMax, double yMin, double yMax);
    bool IsEmptyTree() const;
    /// Drops all boxes; the range stays.
    void Reset();

    // ---- boxes in and out ------------------------------------------------------------------------

    /// Puts a box in.
    ///
    /// Requires  The range exceeds the box by more than g_distZero on all sides. A box outside it is kept in some list
    ///           and found only by who asks near the range; one that touches its border can be lost when the tree
    ///           grows.
    /// Order     Two boxes of one leaf go down together, the newer first, and may end in one list in that order.
    void Insert(QnGeExtent2d* box);
    /// Puts a box in; the range grows as is needed. An empty tree takes a new range, a square about the box.
    ///
    /// Order  A tree that is not square is built anew, in the order of GetAllExtent.
    void operator+=(QnGeExtent2d* box);
    /// Takes out the very object `box`, which is freed if `deleteObject` is set. Where it is not there, a box that
    /// calls itself the same by IsSameWith goes in its stead.
    ///
    /// Requires  The coordinates that `box` had when it came in.
    /// Fails     False if it is not there.
    bool Delete(QnGeExtent2d* box, bool deleteObject);
    /// Takes a box out; the range may shrink.
    void operator-=(QnGeExtent2d* box);
    /// Takes away levels above that divide nothing: the range becomes that of the only child, or a square about the
    /// only box.
    void Compress();
    /// Moves range and contents to `target`, whose former nodes are freed by nobody. This tree is empty then.
    void operator>>(QnGeQuadTree2d& target);
    /// Hangs a tree below this one where its middle lies, at the depth where cells have its size.
    ///
    /// Ownership  `subtree` passes to this tree. What stood in its place is deleted; the boxes in that leave the tree.
    /// Fails      Nothing happens, and `subtree` stays the caller's, if its middle is on a centre line.
    void InsertChild(QnGeQuadTree2d* subtree);

    // ---- looking for boxes -----------------------------------------------------------------------

    /// Appends the boxes that hold a point.
    ///
    /// Order     Deepest node first; within a list in order of arrival.
    /// Kept odd  A point within the tolerance of a centre line asks only the list there: a box on one side that touches
    ///           the point by the tolerance is not found.
    void HitTest(double x, double y, QnDynArrayBase<QnGeExtent2d*>& result) const;
    /// Appends the boxes that meet or touch `box`.
    ///
    /// Order     Children 0 to 3, then the node's own.
    /// Kept odd  Lower levels see `box` cut to their cell.
    void HitTest(const QnGeExtent2d& box, QnDynArrayBase<QnGeExtent2d*>& result) const;
    /// Appends all boxes: of a node its list, its single box, then children 0 to 3.
    void GetAllExtent(QnDynArrayBase<QnGeExtent2d*>& result) const;

private:
    using QnGeExtent2d::Inflate;  // would leave the centre behind
};
