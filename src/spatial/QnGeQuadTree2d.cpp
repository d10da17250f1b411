// SPDX-License-Identifier: Apache-2.0
#include "spatial/QnGeQuadTree2d.h"

#include "spatial/detail/QuadTreeWork.h"

namespace {

using Work = qn_detail::QuadTreeWork;

/// The only child of a node; null if it has none or several.
QnGeQuadTree2d* LoneChild(const QnGeQuadTree2d& node) {
    QnGeQuadTree2d* lone = nullptr;
    for (QnGeQuadTree2d* child : node.Child) {
        if (child != nullptr && lone != nullptr) {
            return nullptr;
        }
        lone = child != nullptr ? child : lone;
    }
    return lone;
}

}  // namespace

void* QnGeQuadTree2d::operator new(std::size_t bytes) {
    return qn_detail::TakePiece(qn_detail::InWholeLines(bytes));
}

void QnGeQuadTree2d::operator delete(void* tree, std::size_t bytes) {
    qn_detail::GivePiece(tree, qn_detail::InWholeLines(bytes));
}

QnGeQuadTree2d::QnGeQuadTree2d() : CenterX(0.0), CenterY(0.0) {
    Work::MakeEmpty(*this);
}

QnGeQuadTree2d::~QnGeQuadTree2d() {
    Work::Reset(*this);
}

void QnGeQuadTree2d::SetRange(double xMin, double xMax, double yMin, double yMax) {
    QnGeExtent2d::SetRange(xMin, xMax, yMin, yMax);
    CenterX = x.GetCenter();
    CenterY = y.GetCenter();
}

bool QnGeQuadTree2d::IsEmptyTree() const {
    return Work::IsEmpty(*this);
}

void QnGeQuadTree2d::Reset() {
    Work::Reset(*this);
}

void QnGeQuadTree2d::Insert(QnGeExtent2d* box) {
    Work::Insert(*this, box);
}

void QnGeQuadTree2d::operator+=(QnGeExtent2d* box) {
    Work::Append(*this, box);
}

bool QnGeQuadTree2d::Delete(QnGeExtent2d* box, bool deleteObject) {
    QnGeExtent2d* const taken = Work::Take(*this, box);
    if (deleteObject) {
        delete taken;
    }
    return taken != nullptr;
}

void QnGeQuadTree2d::operator-=(QnGeExtent2d* box) {
    if (Delete(box, false)) {
        Compress();
    }
}

void QnGeQuadTree2d::Compress() {
    while (ExtentList == nullptr && OneExtent == nullptr) {
        QnGeQuadTree2d* const child = LoneChild(*this);
        if (child == nullptr) {
            return;
        }
        Work::PullUp(*this, child);
    }
    if (ExtentList == nullptr) {
        Work::ShrinkToOne(*this);
    }
}

void QnGeQuadTree2d::operator>>(QnGeQuadTree2d& target) {
    Work::MoveTo(*this, target);
}

void QnGeQuadTree2d::InsertChild(QnGeQuadTree2d* subtree) {
    Work::InsertChild(*this, subtree);
}

void QnGeQuadTree2d::HitTest(double px, double py, QnDynArrayBase<QnGeExtent2d*>& result) const {
    qn_detail::SearchInto(
        result, [&](qn_detail::BoxResult<QnGeExtent2d>& found) { Work::HitPoint(*this, QnGePoint(px, py), found); });
}

void QnGeQuadTree2d::HitTest(const QnGeExtent2d& box, QnDynArrayBase<QnGeExtent2d*>& result) const {
    qn_detail::SearchInto(result, [&](qn_detail::BoxResult<QnGeExtent2d>& found) { Work::HitBox(*this, box, found); });
}

void QnGeQuadTree2d::GetAllExtent(QnDynArrayBase<QnGeExtent2d*>& result) const {
    qn_detail::SearchInto(result, [&](qn_detail::BoxResult<QnGeExtent2d>& found) { Work::GetAllExtent(*this, found); });
}
