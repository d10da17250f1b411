// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"
#include "frame/QnGeApi.h"
#include "values/QnGePoint.h"

class QnGePtQuadTree2d;

/// Nodes of a point tree that lie in one ring about its middle, each with the part of the ring where it is.
///
///      2 1 0      Directions: even for the corners of the ring, odd for its sides; -1 for the root.
///      3   7
///      4 5 6
///
/// Ownership  Of nothing: the nodes are the tree's.
class QUARNGEO_API QnGePointQuadTreeLayer2d : public QnList<QnGePtQuadTree2d*> {
public:
    QnList<int> Direction;  ///< one for each node, in step with the nodes

    QnGePointQuadTreeLayer2d() = default;
    QnGePointQuadTreeLayer2d(const QnGePointQuadTreeLayer2d& other) = default;
    QnGePointQuadTreeLayer2d& operator=(const QnGePointQuadTreeLayer2d& other) = default;
    ~QnGePointQuadTreeLayer2d() override = default;

    void Append(QnGePtQuadTree2d* node, int direction);

    /// Appends the points of the nodes themselves, node after node.
    void GetPoint(QnList<QnGePoint*>& result) const;

    /// Appends the children of all nodes: those on the outer border to `near`, the others to `far`.
    void ExplodeTo(QnGePointQuadTreeLayer2d& near, QnGePointQuadTreeLayer2d& far) const;

private:
    using QnList<QnGePtQuadTree2d*>::Append;  // would leave the directions behind
};
