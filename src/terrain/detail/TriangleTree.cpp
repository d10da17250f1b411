// SPDX-License-Identifier: Apache-2.0
#include "terrain/detail/TriangleTree.h"

#include <memory>

#include "containers/QnList.h"
#include "spatial/detail/BoxOrder.h"
#include "spatial/detail/BoxTree.h"
#include "terrain/QnGeTINTriangle.h"

namespace qn_detail {

namespace {

using Tree = QnGeQuadTree2d;
using Sectors = PlanSectors<Tree>;

/// The list of a cell: one that an entry leaves at once.
///
/// It is searched seldom. But where all triangles of a network are in one list, and the searches are many, going
/// through it would be most of the work; so it gets an index once that has cost a few times its length, and loses it
/// when more changes than that pass without a search.
class TriangleList final : public QnList<QnGeExtent2d*> {
public:
    /// Appends a box, with the cursor on it as appending leaves it.
    BoxNode* Add(QnGeExtent2d* box) {
        auto* const entry = new BoxNode(box);
        LinkBefore(entry, m_pHead);
        m_pTail = m_pCurrent = entry;
        m_nCur = m_nLength++;
        ++m_arrivals;
        if (m_index != nullptr && (IsIdle() || !m_index->order.Add(entry))) {
            m_index.reset();
        }
        return entry;
    }

    /// Takes an entry out; the cursor is out then.
    void Remove(BoxNode* entry) {
        if (m_index != nullptr && (IsIdle() || m_index->order.Take(entry->data) != entry)) {
            m_index.reset();
        }
        --m_nLength;
        GoOut();
        DropHint();
        Unlink(entry);
        delete entry;
        m_pTail = m_pHead->previous;
    }

    /// Appends the boxes that hold a point; `range` is that of the cell.
    void Find(const QnGePoint& point, const QnGeExtent2d& range, BoxResult<QnGeExtent2d>& result) {
        if (m_index == nullptr && m_nLength > SHORT && ++m_searches > FEW) {
            MakeIndex(range);
        }
        if (m_index != nullptr) {
            m_index->changes = 0;
            m_index->order.Find(point.x, point.y, result);
            return;
        }
        const HoldsPoint isHit{point.x, point.y};
        for (const BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
            if (isHit(*node->data)) {
                AppendTo(result, node->data);
            }
        }
    }

    std::uint32_t GetArrivals() const { return m_arrivals; }

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* list, std::size_t bytes) { GivePiece(list, bytes); }

private:
    static constexpr long SHORT = 128;
    static constexpr std::uint32_t FEW = 8;

    struct Index {
        BoxOrder order;
        long changes = 0;  ///< since the last search

        explicit Index(const QnGeExtent2d& range) : order(range) {}
    };

    bool IsIdle() { return ++m_index->changes > FEW * m_nLength; }
    void MakeIndex(const QnGeExtent2d& range) {
        m_searches = 0;
        m_index = std::make_unique<Index>(range);
        for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
            m_index->order.Add(node);
        }
    }

    std::uint32_t m_arrivals = 0;
    std::uint32_t m_searches = 0;  ///< without an index
    std::unique_ptr<Index> m_index;
};

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
        auto* const list = static_cast<TriangleList*>(cell.ExtentList);
        auto* const triangle = static_cast<QnGeTINTriangle*>(item);
        triangle->m_arrival = list->GetArrivals();
        triangle->m_place.cell = &cell;
        triangle->m_place.entry = list->Add(item);
    }

    static void PutOne(Tree& cell, Item* item) {
        auto* const triangle = static_cast<QnGeTINTriangle*>(item);
        cell.OneExtent = item;
        triangle->m_place.cell = &cell;
        triangle->m_place.entry = nullptr;
    }
};

struct TriangleTree::Work : SectorTree<Kind> {};

using PlainWork = BoxTree<Tree, Sectors, PlainBoxLists<Tree, Sectors>>;

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
    m_isPlain = m_isPlain || triangle->m_place.cell != nullptr;
    if (m_isPlain) {
        PlainWork::Insert(m_root, triangle);
        return;
    }
    ClimbTo(*triangle);
    Steps steps{m_last};
    Work::Insert(*m_last, triangle, steps);
}

void TriangleTree::Delete(QnGeTINTriangle* triangle) {
    if (m_isPlain) {
        PlainWork::Take(m_root, triangle);
        return;
    }
    Tree* cell = triangle->m_place.cell;
    if (cell == nullptr) {
        return;
    }
    if (triangle->m_place.entry == nullptr) {
        cell->OneExtent = nullptr;
    } else {
        auto* const list = static_cast<TriangleList*>(cell->ExtentList);
        list->Remove(triangle->m_place.entry);
        if (list->IsEmpty()) {
            delete list;
            cell->ExtentList = nullptr;
        }
    }
    triangle->m_place.cell = nullptr;
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
    constexpr long FEW_STEPS = 64;
    for (Tree* cell = m_last;; cell = &ParentOf(*cell)) {
        if (cell->OneExtent != nullptr) {
            return {static_cast<QnGeTINTriangle*>(cell->OneExtent), FEW_STEPS};
        }
        if (const QnList<QnGeExtent2d*>* const list = cell->ExtentList) {
            return {static_cast<QnGeTINTriangle*>(*list->GetLast()), FEW_STEPS + list->GetLength()};
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
        static_cast<TriangleList*>(cell.ExtentList)->Find(point, cell, result);
    }
}

bool TriangleTree::IsIn(const QnGeTINTriangle& triangle) {
    return triangle.m_place.cell != nullptr;
}

TriangleTree::Asked TriangleTree::IsAsked(const QnGeTINTriangle& triangle, const QnGePoint& point) {
    const Tree* const cell = triangle.m_place.cell;
    if (cell == nullptr || !cell->IsInside(point.x, point.y)) {
        return Asked::UNSURE;
    }
    const bool isReached = triangle.m_place.entry != nullptr || Work::SectorOf(*cell, point) != NO_SECTOR;
    return isReached && triangle.IsInclude(point.x, point.y) ? Asked::YES : Asked::NO;
}

bool TriangleTree::IsBefore(const QnGeTINTriangle& a, const QnGeTINTriangle& b) {
    const auto& placeA = a.m_place;
    const auto& placeB = b.m_place;
    if (placeA.cell != placeB.cell) {
        return placeA.cell->GetLength() < placeB.cell->GetLength();
    }
    if (placeA.entry == nullptr || placeB.entry == nullptr) {
        return placeA.entry == nullptr;
    }
    return a.m_arrival < b.m_arrival;
}

}  // namespace qn_detail
