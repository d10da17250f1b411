// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "containers/QnList.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGePoint.h"

/// Points under the cells of QnGeOctree: it stores them and gives back those of one node.
///
/// See  QnGePtQuadTree2d, of which it is the form in space
class QUARNGEO_API QnGePtOctree : public QnGeExtent3d {
public:
    double CenterX;  ///< middle of the range
    double CenterY;
    double CenterZ;
    QnGePtOctree* Child[8];         ///< numbered as in QnGeOctree; null for none
    QnList<QnGePoint*>* PointList;  ///< points on a centre plane, in order of arrival; null for none
    QnGePoint* OnePoint;            ///< the point of a leaf

    QnGePtOctree();
    QnGePtOctree(const QnGePtOctree& other) = default;
    QnGePtOctree& operator=(const QnGePtOctree& other) = default;
    ~QnGePtOctree() override;

    /// Nodes come and go singly and often: they have free lists of their own.
    static void* operator new(std::size_t bytes);
    static void operator delete(void* tree, std::size_t bytes);

    void SetRange(double xMin, double xMax, double yMin, double yMax, double zMin, double zMax);
    bool IsEmptyTree() const;
    void Reset();
    void Insert(QnGePoint* point);
    /// Appends OnePoint, then PointList; does not go down.
    void GetPointInNode(QnList<QnGePoint*>& result) const;

private:
    using QnGeExtent3d::Inflate;  // would leave the centre behind
};
