// SPDX-License-Identifier: Apache-2.0
#include "spatial/detail/TreeFinger.h"

#include "spatial/detail/QuadTreeWork.h"

namespace qn_detail {

namespace {

bool IsWellInside(const QnGeQuadTree2d& node, const QnGeExtent2d& box) {
    return node.IsInside(box);
}
bool IsWellInside(const QnGeQuadTree2d& node, const QnGePoint& point) {
    return node.IsInside(point.x, point.y);
}

}  // namespace

void TreeFinger::Forget() {
    m_path.Shorten(1);
}

template <class Item>
void TreeFinger::ClimbTo(const Item& item) {
    long length = m_path.GetLength();
    while (length > 1 && !IsWellInside(*m_path[length - 1], item)) {
        --length;
    }
    m_path.Shorten(length);
}

template <class Item>
int TreeFinger::Descend(const Item& item) {
    while (true) {
        QnGeQuadTree2d& node = GetNode();
        const int sector = QuadTreeWork::SectorOf(node, item);
        if (sector == NO_SECTOR || node.Child[sector] == nullptr) {
            return sector;
        }
        m_path.Append(node.Child[sector]);
    }
}

void TreeFinger::Insert(QnGeExtent2d* box) {
    ClimbTo(*box);
    Recorder recorder{m_path};
    QuadTreeWork::Insert(GetNode(), box, recorder);
}

bool TreeFinger::Delete(const QnGeExtent2d* box) {
    ClimbTo(*box);
    const int sector = Descend(*box);
    if (QuadTreeWork::TakeHere(GetNode(), sector, box) == nullptr) {
        return false;
    }
    DeleteEmptyNodes();
    return true;
}

void TreeFinger::DeleteEmptyNodes() {
    long length = m_path.GetLength();
    for (; length > 1 && QuadTreeWork::IsEmpty(*m_path[length - 1]); --length) {
        QnGeQuadTree2d* const empty = m_path[length - 1];
        for (QnGeQuadTree2d*& child : m_path[length - 2]->Child) {
            child = child == empty ? nullptr : child;
        }
        delete empty;
    }
    m_path.Shorten(length);
}

/// Makes the path that of a point; answers the single box at its end if that holds it.
QnGeExtent2d* TreeFinger::GoToPoint(const QnGePoint& point) {
    ClimbTo(point);
    const int sector = Descend(point);
    QnGeExtent2d* const one = GetNode().OneExtent;
    return sector != NO_SECTOR && one != nullptr && one->IsInclude(point.x, point.y) ? one : nullptr;
}

void TreeFinger::FindInList(const QnGeQuadTree2d& node, const QnGePoint& point) {
    m_hits.SetLength(0, true);
    OrderedBoxLists::HitPoint(node, point, m_hits);
}

}  // namespace qn_detail
