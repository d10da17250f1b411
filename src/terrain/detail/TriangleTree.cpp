// SPDX-License-Identifier: Apache-2.0
#include "terrain/detail/TriangleTree.h"

#include "spatial/detail/BoxTree.h"
#include "terrain/detail/TreePlace.h"
#include "terrain/detail/TriangleList.h"

namespace qn_detail {

namespace {

using Tree = QnGeQuadTree2d;
using Sectors = PlanSectors<Tree>;
using PlainWork = BoxTree<Tree, Sectors, PlainBoxLists<Tree, Sectors>>;

TriangleList& ListOf(Tree& cell) {
    return static_cast<TriangleList&>(*cell.ExtentList);
}

}  // namespace

/// A cell that knows the one above it.
class TriangleTree::Cell final : public Tree {
public:
    explicit Cell(Tree& parent) : m_parent(parent) {}
    Tree& GetParent() const { return m_parent; }

private:
    Tree& m_parent;
};

/// A tree of boxes that enters in each triangle where it stands.
struct TriangleTree::Kind {
    using Tree = QnGeQuadTree2d;
    using Item = QnGeExtent2d;
    using Sectors = PlanSectors<Tree>;

    static QnList<Item*>*& Items(Tree& cell) { return cell.ExtentList; }
    static QnList<Item*>* Items(const Tree& cell) { return cell.ExtentList; }
    static Item*& One(Tree& cell) { return cell.OneExtent; }
    static Item* One(const Tree& cell) { return cell.OneExtent; }
    static Tree* MakeChild(Tree& cell) { return new Cell(cell); }

    static void AppendItem(Tree& cell, Item* item) {
        if (cell.ExtentList == nullptr) {
            cell.ExtentList = new TriangleList;
        }
        auto* const triangle = static_cast<QnGeTINTriangle*>(item);
        ListOf(cell).Add(triangle, cell);
        TreePlace::SetCell(*triangle, &cell);
    }

    static void PutOne(Tree& cell, Item* item) {
        auto* const triangle = static_cast<QnGeTINTriangle*>(item);
        cell.OneExtent = item;
        TreePlace::SetCell(*triangle, &cell);
        TreePlace::SetPlace(*triangle, TreePlace::NO_PLACE);
    }
};

struct TriangleTree::Work : SectorTree<Kind> {};

/// Follows an insertion down.
struct TriangleTree::Steps {
    Tree*& last;
    void Down(Tree& cell) { last = &cell; }
};

QnGeQuadTree2d& TriangleTree::ParentOf(Tree& cell) {
    return static_cast<Cell&>(cell).GetParent();
}

namespace {

bool IsWellInside(const Tree& cell, const QnGeExtent2d& box) {
    return cell.IsInside(box);
}
bool IsWellInside(const Tree& cell, const QnGePoint& point) {
    return cell.IsInside(point.x, point.y);
}

}  // namespace

/// Goes up until what is asked for lies well inside the cell, or to the root.
template <class Item>
void TriangleTree::ClimbTo(const Item& item) {
    while (m_last != &m_root && !IsWellInside(*m_last, item)) {
        m_last = &ParentOf(*m_last);
    }
}

void TriangleTree::Insert(QnGeTINTriangle* triangle) {
    if (Work::IsEmpty(m_root)) {
        m_tolerance = g_distZero;
    }
    m_isPlain = m_isPlain || g_distZero != m_tolerance || TreePlace::CellOf(*triangle) != nullptr;
    if (m_isPlain) {
        PlainWork::Insert(m_root, triangle);
        return;
    }
    ClimbTo(*triangle);
    Steps steps{m_last};
    Work::Insert(*m_last, triangle, steps);
}

void TriangleTree::Delete(QnGeTINTriangle* triangle) {
    if (Work::IsEmpty(m_root)) {
        return;
    }
    m_isPlain = m_isPlain || g_distZero != m_tolerance;
    if (m_isPlain) {
        PlainWork::Take(m_root, triangle);
        return;
    }
    Tree* cell = TreePlace::CellOf(*triangle);
    if (cell == nullptr) {
        return;
    }
    if (TreePlace::PlaceOf(*triangle) == TreePlace::NO_PLACE) {
        cell->OneExtent = nullptr;
    } else {
        ListOf(*cell).Remove(triangle);
        if (cell->ExtentList->IsEmpty()) {
            delete &ListOf(*cell);
            cell->ExtentList = nullptr;
        }
    }
    TreePlace::SetCell(*triangle, nullptr);
    while (cell != &m_root && Work::IsEmpty(*cell)) {
        Tree& parent = ParentOf(*cell);
        for (Tree*& child : parent.Child) {
            child = child == cell ? nullptr : child;
        }
        delete cell;
        cell = &parent;
    }
    m_last = cell;
}

WalkStart TriangleTree::GetNear(const QnGePoint& point) {
    if (m_isPlain) {
        return {};
    }
    ClimbTo(point);
    int sector = NO_SECTOR;
    while ((sector = Sectors::Of(*m_last, point)) != NO_SECTOR && m_last->Child[sector] != nullptr) {
        m_last = m_last->Child[sector];
    }
    constexpr long FEW_STEPS = 256;
    for (Tree* cell = m_last;; cell = &ParentOf(*cell)) {
        if (cell->OneExtent != nullptr) {
            return {static_cast<QnGeTINTriangle*>(cell->OneExtent), FEW_STEPS};
        }
        if (cell->ExtentList != nullptr) {
            return {ListOf(*cell).GetLastTriangle(), FEW_STEPS + cell->ExtentList->GetLength()};
        }
        if (cell == &m_root) {
            return {};
        }
    }
}

void TriangleTree::HitTest(const QnGePoint& point, QnDynArray<QnGeExtent2d*>& result) {
    if (m_isPlain) {
        PlainWork::HitPoint(m_root, point, result);
    } else {
        HitTestFrom(m_root, point, result);
    }
}

void TriangleTree::HitTestFrom(Tree& cell, const QnGePoint& point, QnDynArray<QnGeExtent2d*>& result) {
    const int sector = Work::SectorOf(cell, point);
    if (sector != NO_SECTOR && cell.Child[sector] != nullptr) {
        HitTestFrom(*cell.Child[sector], point, result);
    } else if (sector != NO_SECTOR && cell.OneExtent != nullptr && Sectors::Holds(*cell.OneExtent, point)) {
        AppendTo(result, cell.OneExtent);
    }
    if (cell.ExtentList != nullptr) {
        ListOf(cell).Find(point, cell, result);
    }
}

bool TriangleTree::IsIn(const QnGeTINTriangle& triangle) {
    return TreePlace::CellOf(triangle) != nullptr;
}

TriangleTree::Asked TriangleTree::IsAsked(const QnGeTINTriangle& triangle, const QnGePoint& point) {
    Tree* const cell = TreePlace::CellOf(triangle);
    if (cell == nullptr || !cell->IsInside(point.x, point.y)) {
        return Asked::UNSURE;
    }
    const bool isSingle = cell->OneExtent == &triangle;
    if (!isSingle && !ListOf(*cell).IsInRow()) {
        return Asked::UNSURE;
    }
    const bool isReached = !isSingle || Work::SectorOf(*cell, point) != NO_SECTOR;
    return isReached && triangle.IsInclude(point.x, point.y) ? Asked::YES : Asked::NO;
}

bool TriangleTree::IsBefore(const QnGeTINTriangle& a, const QnGeTINTriangle& b) {
    const Tree* const cellA = TreePlace::CellOf(a);
    const Tree* const cellB = TreePlace::CellOf(b);
    if (cellA != cellB) {
        return cellA->GetLength() < cellB->GetLength();
    }
    if (TreePlace::PlaceOf(a) == TreePlace::NO_PLACE || TreePlace::PlaceOf(b) == TreePlace::NO_PLACE) {
        return TreePlace::PlaceOf(a) == TreePlace::NO_PLACE;
    }
    return TreePlace::PlaceOf(a) < TreePlace::PlaceOf(b);
}

}  // namespace qn_detail
