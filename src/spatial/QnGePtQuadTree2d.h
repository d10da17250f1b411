// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "containers/QnList.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint.h"

/// Points under the cells of QnGeQuadTree2d, to be read back in an order that spreads them over the area.
///
/// Tolerance  g_distZero, for the band about a centre line. Points that lie closer together are not merged.
/// Ownership  As QnGeQuadTree2d: points are the caller's, nodes and lists the tree's, copies shallow.
/// Valid      A node does not hold OnePoint beside a child.
class QUARNGEO_API QnGePtQuadTree2d : public QnGeExtent2d {
public:
    double CenterX;  ///< middle of the range
    double CenterY;
    QnGePtQuadTree2d* Child[4];     ///< right above, left above, left below, right below; null for none
    QnList<QnGePoint*>* PointList;  ///< points on a centre line, in order of arrival; null for none
    QnGePoint* OnePoint;            ///< the point of a leaf

    QnGePtQuadTree2d();
    QnGePtQuadTree2d(const QnGePtQuadTree2d& other) = default;
    QnGePtQuadTree2d& operator=(const QnGePtQuadTree2d& other) = default;
    ~QnGePtQuadTree2d() override;

    /// Nodes come and go singly and often: they have free lists of their own.
    static void* operator new(std::size_t bytes);
    static void operator delete(void* tree, std::size_t bytes);

    /// Requires  An empty tree; the range must hold all points to come.
    void SetRange(double xMin, double xMax, double yMin, double yMax);
    bool IsEmptyTree() const;
    /// Drops all points; the range stays.
    void Reset();

    void Insert(QnGePoint* point);

    /// Appends OnePoint, then PointList; does not go down.
    void GetPointInNode(QnList<QnGePoint*>& result) const;

    /// Appends all points, each once.
    ///
    /// Order  `order` 1: level by level, in each the nodes in the order of their parents, then of their quarters.
    ///        0: in rings from the border inward, where each ring is taken down to its leaves first.
    ///        Any other: the same rings, taken level by level.
    void GetAllPoint(QnList<QnGePoint*>& result, int order) const;

private:
    using QnGeExtent2d::Inflate;  // would leave the centre behind
};
