// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "spatial/QnGeQuadTree2d.h"
#include "support/TreeChecker.h"
#include "terrain/detail/TreePlace.h"
#include "terrain/detail/TriangleList.h"
#include "terrain/detail/TriangleTree.h"

/// Trees of triangles for tests, with comparisons.
namespace triangle_trees {

using qn_detail::TreePlace;
using qn_detail::TriangleList;
using qn_detail::TriangleTree;
using tree_checks::At;
using Asked = TriangleTree::Asked;
using Box = QnGeExtent2d;
using Boxes = std::vector<Box*>;
using Triangle = QnGeTINTriangle;

/// The list of a cell if it has no nodes; null otherwise.
inline const TriangleList* RowOf(const QnGeQuadTree2d& cell) {
    const auto* const list = dynamic_cast<const TriangleList*>(cell.ExtentList);
    return list != nullptr && list->IsInRow() ? list : nullptr;
}

/// A tree of triangles beside two trees in which the same boxes come and go from the root: the library's own, and the
/// plain form.
class Trees {
public:
    explicit Trees(const Box& range) {
        m_root.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
        m_stated.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
        m_plain.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
    }

    Triangle* Make(const Box& box) {
        m_all.push_back(std::make_unique<Triangle>());
        m_all.back()->SetRange(box.x, box.y);
        return m_all.back().get();
    }
    Triangle* Add(const Box& box) {
        Triangle* const triangle = Make(box);
        Insert(triangle);
        return triangle;
    }

    void Insert(Triangle* triangle) {
        m_tree.Insert(triangle);
        m_stated.Insert(triangle);
        m_plain.Insert(triangle);
        m_in.push_back(triangle);
    }

    /// One that may not be in.
    void Delete(Triangle* triangle) {
        m_tree.Delete(triangle);
        const bool isTaken = m_stated.Delete(triangle, false);
        ASSERT_EQ(isTaken, m_plain.Delete(triangle));
        if (isTaken) {
            m_in.erase(std::find(m_in.begin(), m_in.end(), triangle));
        }
    }

    TriangleTree& GetTree() { return m_tree; }
    QnGeQuadTree2d& GetRoot() { return m_root; }
    const std::vector<Triangle*>& GetIn() const { return m_in; }

    Boxes Find(const QnGePoint& point) {
        return tree_checks::Asked<Box*>([&](QnDynArray<Box*>& found) { m_tree.HitTest(point, found); });
    }

    // ---- comparing: "" or what is wrong ----------------------------------------------------------

    /// Without making a node: rows are read off from the places that triangles know.
    std::string CompareByPlaces() const { return CompareCell(m_root, m_plain, "root"); }
    /// By going through the lists, which makes their nodes.
    std::string CompareByNodes() const {
        const std::string wrong = tree_checks::CompareQuadTree(m_root, m_plain);
        return wrong.empty() ? tree_checks::CompareQuadTree(m_stated, m_plain) : wrong;
    }

    std::string CompareHits(const QnGePoint& point) {
        const Boxes found = Find(point);
        Boxes plain;
        m_plain.HitTest(point.x, point.y, plain);
        const Boxes stated =
            tree_checks::Asked<Box*>([&](QnDynArrayBase<Box*>& result) { m_stated.HitTest(point.x, point.y, result); });
        if (found != plain || stated != plain) {
            return At("hits", found.size(), " instead of ", plain.size(), " or in another order");
        }
        return "";
    }

    /// What triangles know of a search for a point.
    std::string CompareAsked(const QnGePoint& point) const {
        Boxes hits;
        m_plain.HitTest(point.x, point.y, hits);
        for (const Triangle* triangle : m_in) {
            const Asked asked = TriangleTree::IsAsked(*triangle, point);
            const QnGeQuadTree2d& cell = *TreePlace::CellOf(*triangle);
            const bool isInNodes = TreePlace::PlaceOf(*triangle) != TreePlace::NO_PLACE && RowOf(cell) == nullptr;
            const bool isUnsure = isInNodes || !cell.IsInside(point.x, point.y);
            const bool isHit = std::find(hits.begin(), hits.end(), triangle) != hits.end();
            if (asked != (isUnsure ? Asked::UNSURE : (isHit ? Asked::YES : Asked::NO))) {
                return At("asked", static_cast<int>(asked), " for a hit: ", isHit);
            }
        }
        for (auto second = hits.begin(); second != hits.end(); ++second) {
            for (auto first = hits.begin(); first != second; ++first) {
                const auto& a = static_cast<const Triangle&>(**first);
                const auto& b = static_cast<const Triangle&>(**second);
                const bool isKnown =
                    TriangleTree::IsAsked(a, point) == Asked::YES && TriangleTree::IsAsked(b, point) == Asked::YES;
                if (isKnown && (!TriangleTree::IsBefore(a, b) || TriangleTree::IsBefore(b, a))) {
                    return At("asked", "the order of two hits");
                }
            }
        }
        return "";
    }

    /// The start is the single triangle or the last of the list, of the smallest cell round the point that has any.
    std::string CompareNear(const QnGePoint& point) {
        const Box* expected = nullptr;
        long length = 0;
        for (const PlainQuadTree* cell = &m_plain; cell != nullptr; cell = ChildRound(*cell, point)) {
            if (cell->OneExtent != nullptr) {
                expected = cell->OneExtent;
                length = 1;
            } else if (cell->HasList) {
                expected = cell->ExtentList.back();
                length = static_cast<long>(cell->ExtentList.size());
            }
        }
        const qn_detail::WalkStart start = m_tree.GetNear(point);
        if (static_cast<const Box*>(start.triangle) != expected) {
            return At("near", start.triangle != nullptr, " another triangle");
        }
        return start.mostSteps >= length ? "" : At("near", "fewer steps than triangles in the list");
    }

private:
    static const PlainQuadTree* ChildRound(const PlainQuadTree& cell, const QnGePoint& point) {
        const int quarter = tree_checks::QuarterOf(Box(point.x, point.x, point.y, point.y), cell.CenterX, cell.CenterY);
        return quarter < 0 ? nullptr : cell.Child[quarter].get();
    }

    Boxes ListOf(const QnGeQuadTree2d& cell) const {
        const TriangleList* const row = RowOf(cell);
        if (row == nullptr) {
            return tree_checks::Elements<Box*>(cell.ExtentList);
        }
        std::vector<Triangle*> list;
        std::copy_if(m_in.begin(), m_in.end(), std::back_inserter(list), [&cell](const Triangle* t) {
            return TreePlace::CellOf(*t) == &cell && TreePlace::PlaceOf(*t) != TreePlace::NO_PLACE;
        });
        std::sort(list.begin(), list.end(),
                  [](const Triangle* a, const Triangle* b) { return TreePlace::PlaceOf(*a) < TreePlace::PlaceOf(*b); });
        EXPECT_EQ(row->GetLength(), static_cast<long>(list.size()));
        EXPECT_EQ(row->GetLastTriangle(), list.empty() ? nullptr : list.back());
        return Boxes(list.begin(), list.end());
    }

    std::string CompareCell(const QnGeQuadTree2d& cell, const PlainQuadTree& plain, const std::string& where) const {
        std::string wrong = tree_checks::CompareRange(cell, plain, where);
        if (wrong.empty() && (cell.ExtentList != nullptr) != plain.HasList) {
            wrong = At(where, "a list too many or missing");
        }
        if (wrong.empty() && (ListOf(cell) != plain.ExtentList || cell.OneExtent != plain.OneExtent)) {
            wrong = At(where, "other boxes");
        }
        const auto* const one = static_cast<const Triangle*>(cell.OneExtent);
        if (one != nullptr && (TreePlace::CellOf(*one) != &cell || TreePlace::PlaceOf(*one) != TreePlace::NO_PLACE)) {
            wrong = At(where, "the single triangle does not know it");
        }
        for (int i = 0; wrong.empty() && i < 4; ++i) {
            if ((cell.Child[i] != nullptr) != (plain.Child[i] != nullptr)) {
                return At(where, "a child too many or missing");
            }
            if (cell.Child[i] != nullptr) {
                wrong = CompareCell(*cell.Child[i], *plain.Child[i], where + "/" + std::to_string(i));
            }
        }
        return wrong;
    }

    std::vector<std::unique_ptr<Triangle>> m_all;
    std::vector<Triangle*> m_in;  ///< in order of arrival
    QnGeQuadTree2d m_root;
    QnGeQuadTree2d m_stated;
    PlainQuadTree m_plain;
    TriangleTree m_tree{m_root};
};

}  // namespace triangle_trees
