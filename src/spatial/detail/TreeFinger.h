// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnDynArray.h"
#include "containers/detail/PodArray.h"
#include "spatial/QnGeQuadTree2d.h"

namespace qn_detail {

/// A place in a quad tree of boxes, from which the next insertion, deletion or search starts instead of from the root.
///
/// Where what comes next lies near what came last, this saves most of the way down. The tree becomes the same, and the
/// answers have the same order, as by the tree's own operations.
///
///     TreeFinger finger(tree);                      // after tree.SetRange
///     finger.Insert(box);                           // tree.Insert(box)
///     finger.Delete(box);                           // tree.Delete(box, false)
///     finger.VisitHits(x, y, [](QnGeExtent2d* box) { return Holds(box); });
///                                                   // tree.HitTest(x, y, hits), up to the first hit that is accepted
///
/// Requires   The range of the tree was set by SetRange and did not grow by `+=`: then each bound of a cell is the
///            centre of a cell above it, and a box well inside a cell would come to it from the root as well.
/// Ownership  The tree is the caller's and must outlive the finger.
/// Laws       After any change of the tree by other means than this finger: Forget.
/// Fails      Delete answers false if the box is not in the tree.
/// Cost       The way up and down between neighbours: less than one step each, when boxes come in spatial order.
class TreeFinger {
public:
    explicit TreeFinger(QnGeQuadTree2d& tree) { m_path.Append(&tree); }

    /// Goes back to the root.
    void Forget();

    void Insert(QnGeExtent2d* box);
    bool Delete(const QnGeExtent2d* box);

    /// Calls `visit(box)` for the boxes that hold a point, in the order in which HitTest appends them, until it answers
    /// true; whether it did. Lists above are not looked into then.
    ///
    /// Requires  `visit` leaves the tree alone.
    template <class Visit>
    bool VisitHits(double x, double y, Visit visit);

private:
    /// Of the path: for SectorTree::Insert.
    struct Recorder {
        PodArray<QnGeQuadTree2d*>& path;
        void Down(QnGeQuadTree2d& child) { path.Append(&child); }
    };

    QnGeQuadTree2d& GetNode() { return *m_path[m_path.GetLength() - 1]; }
    /// Goes up until what is asked for lies well inside the node, or to the root.
    template <class Item>
    void ClimbTo(const Item& item);
    /// Goes down as far as there are nodes; answers the sector at the last.
    template <class Item>
    int Descend(const Item& item);
    void DeleteEmptyNodes();
    QnGeExtent2d* GoToPoint(const QnGePoint& point);
    void FindInList(const QnGeQuadTree2d& node, const QnGePoint& point);

    PodArray<QnGeQuadTree2d*> m_path;  ///< from the root to the node touched last
    QnDynArray<QnGeExtent2d*> m_hits;
};

template <class Visit>
bool TreeFinger::VisitHits(double x, double y, Visit visit) {
    const QnGePoint point(x, y);
    QnGeExtent2d* const one = GoToPoint(point);
    if (one != nullptr && visit(one)) {
        return true;
    }
    for (long i = m_path.GetLength() - 1; i >= 0; --i) {
        if (m_path[i]->ExtentList == nullptr) {
            continue;
        }
        FindInList(*m_path[i], point);
        for (QnGeExtent2d* const* hit = m_hits.GetFirst(); hit != nullptr; hit = m_hits.GetNext(hit)) {
            if (visit(*hit)) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace qn_detail
