// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "containers/QnList.h"
#include "values/QnGeExtent3d.h"

/// An index of boxes in space: QnGeQuadTree2d with a third axis. What is said there holds here.
///
/// Children 0 to 3 are the quarters above the middle, in the order of the plan, 4 to 7 those below.
///
/// Kept odd  The lattice on which a growing range moves has the step of the range's x length on all axes.
class QUARNGEO_API QnGeOctree : public QnGeExtent3d {
public:
    double CenterX;  ///< middle of the range
    double CenterY;
    double CenterZ;
    QnList<QnGeExtent3d*>* ExtentList;  ///< boxes that cross a centre plane, in order of arrival; null for none
    QnGeExtent3d* OneExtent;            ///< the box of a leaf
    QnGeOctree* Child[8];               ///< null for none

    QnGeOctree();
    QnGeOctree(const QnGeOctree& other) = default;
    QnGeOctree& operator=(const QnGeOctree& other) = default;
    ~QnGeOctree() override;

    /// Nodes come and go singly and often: they have free lists of their own.
    static void* operator new(std::size_t bytes);
    static void operator delete(void* tree, std::size_t bytes);

    void SetRange(double xMin, double xMax, double yMin, double yMax, double zMin, double zMax);
    bool IsEmptyTree() const;
    void Reset();

    // ---- boxes in and out ------------------------------------------------------------------------

    void Insert(QnGeExtent3d* box);
    void operator+=(QnGeExtent3d* box);
    bool Delete(QnGeExtent3d* box, bool deleteObject);
    /// Takes a box out; the range may shrink. No box leaves but this one, whatever Compress does.
    void operator-=(QnGeExtent3d* box);
    /// As QnGeQuadTree2d does, by the only child of its half.
    ///
    /// Kept odd  With exactly one child above and one below, the one below comes up and the one above is dropped with
    ///           all that is in it.
    void Compress();
    void operator>>(QnGeOctree& target);
    void InsertChild(QnGeOctree* subtree);

    // ---- looking for boxes -----------------------------------------------------------------------

    void HitTest(double x, double y, double z, QnDynArrayBase<QnGeExtent3d*>& result) const;
    void HitTest(const QnGeExtent3d& box, QnDynArrayBase<QnGeExtent3d*>& result) const;
    void GetAllExtent(QnDynArrayBase<QnGeExtent3d*>& result) const;

private:
    using QnGeExtent3d::Inflate;  // would leave the centre behind
};
