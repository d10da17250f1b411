// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGeOctree.h"

#include "spatial/detail/BoxTree.h"

namespace {

using Sectors = qn_detail::SpaceSectors<QnGeOctree>;
using Work = qn_detail::BoxTree<QnGeOctree, Sectors, qn_detail::PlainBoxLists<QnGeOctree, Sectors>>;

/// The children of one half of a node: above (0) or below (1).
struct Half {
    int count = 0;
    QnGeOctree* last = nullptr;

    Half(const QnGeOctree& node, int half) {
        for (int i = half * qn_detail::QUARTERS; i < (half + 1) * qn_detail::QUARTERS; ++i) {
            if (node.Child[i] != nullptr) {
                ++count;
                last = node.Child[i];
            }
        }
    }
};

/// Takes levels away from above while a node has nothing but one child; with `mayDrop` also while it has one in each
/// half, of which the one above is dropped.
void CompressTree(QnGeOctree& tree, bool mayDrop) {
    while (tree.ExtentList == nullptr && tree.OneExtent == nullptr) {
        const Half above(tree, 0);
        const Half below(tree, 1);
        const bool isOneInEach = above.count == 1 && below.count == 1;
        if (above.count + below.count != 1 && !(isOneInEach && mayDrop)) {
            return;
        }
        if (isOneInEach) {
            delete above.last;
        }
        Work::PullUp(tree, below.count == 1 ? below.last : above.last);
    }
    if (tree.ExtentList == nullptr) {
        Work::ShrinkToOne(tree);
    }
}

}  // namespace

void* QnGeOctree::operator new(std::size_t bytes) {
    return qn_detail::TakePiece(bytes);
}

void QnGeOctree::operator delete(void* tree, std::size_t bytes) {
    qn_detail::GivePiece(tree, bytes);
}

QnGeOctree::QnGeOctree() : CenterX(0.0), CenterY(0.0), CenterZ(0.0) {
    Work::MakeEmpty(*this);
}

QnGeOctree::~QnGeOctree() {
    Work::Reset(*this);
}

void QnGeOctree::SetRange(double xMin, double xMax, double yMin, double yMax, double zMin, double zMax) {
    QnGeExtent3d::SetRange(xMin, xMax, yMin, yMax, zMin, zMax);
    CenterX = x.GetCenter();
    CenterY = y.GetCenter();
    CenterZ = z.GetCenter();
}

bool QnGeOctree::IsEmptyTree() const {
    return Work::IsEmpty(*this);
}

void QnGeOctree::Reset() {
    Work::Reset(*this);
}

void QnGeOctree::Insert(QnGeExtent3d* box) {
    Work::Insert(*this, box);
}

void QnGeOctree::operator+=(QnGeExtent3d* box) {
    Work::Append(*this, box);
}

bool QnGeOctree::Delete(QnGeExtent3d* box, bool deleteObject) {
    QnGeExtent3d* const taken = Work::Take(*this, box);
    if (deleteObject) {
        delete taken;
    }
    return taken != nullptr;
}

void QnGeOctree::operator-=(QnGeExtent3d* box) {
    if (Delete(box, false)) {
        CompressTree(*this, false);
    }
}

void QnGeOctree::Compress() {
    CompressTree(*this, true);
}

void QnGeOctree::operator>>(QnGeOctree& target) {
    Work::MoveTo(*this, target);
}

void QnGeOctree::InsertChild(QnGeOctree* subtree) {
    Work::InsertChild(*this, subtree);
}

void QnGeOctree::HitTest(double px, double py, double pz, QnDynArrayBase<QnGeExtent3d*>& result) const {
    qn_detail::SearchInto(result, [&](qn_detail::BoxResult<QnGeExtent3d>& found) {
        Work::HitPoint(*this, QnGePoint(px, py, pz), found);
    });
}

void QnGeOctree::HitTest(const QnGeExtent3d& box, QnDynArrayBase<QnGeExtent3d*>& result) const {
    qn_detail::SearchInto(result, [&](qn_detail::BoxResult<QnGeExtent3d>& found) { Work::HitBox(*this, box, found); });
}

void QnGeOctree::GetAllExtent(QnDynArrayBase<QnGeExtent3d*>& result) const {
    qn_detail::SearchInto(result, [&](qn_detail::BoxResult<QnGeExtent3d>& found) { Work::GetAllExtent(*this, found); });
}
