// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGePtOctree.h"

#include "spatial/detail/SectorTree.h"

namespace {

using Work = qn_detail::PointTreeWork<QnGePtOctree, qn_detail::SpaceSectors<QnGePtOctree>>;

}  // namespace

void* QnGePtOctree::operator new(std::size_t bytes) {
    return qn_detail::TakePiece(bytes);
}

void QnGePtOctree::operator delete(void* tree, std::size_t bytes) {
    qn_detail::GivePiece(tree, bytes);
}

QnGePtOctree::QnGePtOctree() : CenterX(0.0), CenterY(0.0), CenterZ(0.0) {
    Work::MakeEmpty(*this);
}

QnGePtOctree::~QnGePtOctree() {
    Work::Reset(*this);
}

void QnGePtOctree::SetRange(double xMin, double xMax, double yMin, double yMax, double zMin, double zMax) {
    QnGeExtent3d::SetRange(xMin, xMax, yMin, yMax, zMin, zMax);
    CenterX = x.GetCenter();
    CenterY = y.GetCenter();
    CenterZ = z.GetCenter();
}

bool QnGePtOctree::IsEmptyTree() const {
    return Work::IsEmpty(*this);
}

void QnGePtOctree::Reset() {
    Work::Reset(*this);
}

void QnGePtOctree::Insert(QnGePoint* point) {
    Work::Insert(*this, point);
}

void QnGePtOctree::GetPointInNode(QnList<QnGePoint*>& result) const {
    Work::GetPointInNode(*this, result);
}
