// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"
#include "spatial/detail/TreeSectors.h"

namespace qn_detail {

/// What box trees and point trees of the plan and of space have in common: children by sectors, a list of what lies
/// across their borders, and one item where there is nothing else.
///
/// `Kind` names the tree, its item and its sectors. Items(tree) and One(tree) are the list and the single item, which
/// box and point trees call differently; AppendItem(tree, item) puts an item at the end of the list, PutOne(tree, item)
/// makes it the single one, and MakeChild(tree) is a new node for below the tree.
template <class Kind>
struct SectorTree : Kind::Sectors {
    using Tree = typename Kind::Tree;
    using Item = typename Kind::Item;
    using Sectors = typename Kind::Sectors;

    /// The child that a box or a point belongs to; NO_SECTOR if it stays in the node.
    template <class Place>
    static int SectorOf(const Tree& node, const Place& item) {
        const int sector = Sectors::Of(node, item);
        return sector != NO_SECTOR && Sectors::IsDivisible(node) ? sector : NO_SECTOR;
    }

    /// Forgets range and contents without freeing them.
    static void MakeEmpty(Tree& tree) {
        Kind::Items(tree) = nullptr;
        Kind::One(tree) = nullptr;
        for (Tree*& child : tree.Child) {
            child = nullptr;
        }
    }

    static bool HasChild(const Tree& tree) {
        bool hasChild = false;
        for (const Tree* child : tree.Child) {
            hasChild |= child != nullptr;  // one branch in all
        }
        return hasChild;
    }

    static bool IsEmpty(const Tree& tree) {
        return Kind::Items(tree) == nullptr && Kind::One(tree) == nullptr && !HasChild(tree);
    }

    static void Reset(Tree& tree) {
        delete Kind::Items(tree);
        for (Tree* child : tree.Child) {
            delete child;
        }
        MakeEmpty(tree);
    }

    static Tree& ChildAt(Tree& node, int sector) {
        if (node.Child[sector] == nullptr) {
            node.Child[sector] = Kind::MakeChild(node);
            Sectors::SetRange(*node.Child[sector], Sectors::RangeOf(node, sector));
        }
        return *node.Child[sector];
    }

    /// Goes down to where the item stays. An item that was alone in a leaf follows the newcomer down.
    static void Insert(Tree& tree, Item* item) {
        NoPath path;
        Insert(tree, item, path);
    }

    /// The same; `path.Down(child)` hears of each step down.
    template <class Path>
    static void Insert(Tree& tree, Item* item, Path& path) {
        Tree* node = &tree;
        while (true) {
            const int sector = SectorOf(*node, *item);
            if (sector == NO_SECTOR) {
                Kind::AppendItem(*node, item);
                return;
            }
            if (IsEmpty(*node)) {
                Kind::PutOne(*node, item);
                return;
            }
            Tree& child = ChildAt(*node, sector);
            if (Kind::One(*node) == nullptr) {
                node = &child;
                path.Down(child);
                continue;
            }
            Insert(child, item);
            item = Kind::One(*node);
            Kind::One(*node) = nullptr;
        }
    }

private:
    struct NoPath {
        void Down(Tree&) {}
    };
};

/// Appends to a list that its first item makes.
template <class Item>
void AppendTo(QnList<Item*>*& list, Item* item) {
    if (list == nullptr) {
        list = new QnList<Item*>;
    }
    list->Append(item);
}

/// Names the parts of a point tree.
template <class PointTree, class PointSectors>
struct PointTreeKind {
    using Tree = PointTree;
    using Item = QnGePoint;
    using Sectors = PointSectors;
    static QnList<QnGePoint*>*& Items(Tree& tree) { return tree.PointList; }
    static QnList<QnGePoint*>* Items(const Tree& tree) { return tree.PointList; }
    static QnGePoint*& One(Tree& tree) { return tree.OnePoint; }
    static QnGePoint* One(const Tree& tree) { return tree.OnePoint; }
    static void AppendItem(Tree& tree, QnGePoint* point) { AppendTo(tree.PointList, point); }
    static void PutOne(Tree& tree, QnGePoint* point) { tree.OnePoint = point; }
    static Tree* MakeChild(Tree&) { return new Tree; }
};

/// What point trees do beyond the common.
template <class PointTree, class PointSectors>
struct PointTreeWork : SectorTree<PointTreeKind<PointTree, PointSectors>> {
    static void GetPointInNode(const PointTree& node, QnList<QnGePoint*>& result) {
        if (node.OnePoint != nullptr) {
            result.Append(node.OnePoint);
        }
        if (node.PointList != nullptr) {
            for (QnGePoint* const* point = node.PointList->GetFirst(); point != nullptr;
                 point = node.PointList->GetNext(point)) {
                result.Append(*point);
            }
        }
    }
};

}  // namespace qn_detail
