// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"
#include "spatial/detail/FoundBoxes.h"
#include "spatial/detail/ReadAhead.h"
#include "spatial/detail/SectorTree.h"

namespace qn_detail {

/// Names the parts of a box tree.
template <class ABoxTree, class BoxSectors, class BoxLists>
struct BoxTreeKind {
    using Tree = ABoxTree;
    using Item = typename BoxSectors::Box;
    using Sectors = BoxSectors;
    static QnList<Item*>*& Items(Tree& tree) { return tree.ExtentList; }
    static QnList<Item*>* Items(const Tree& tree) { return tree.ExtentList; }
    static Item*& One(Tree& tree) { return tree.OneExtent; }
    static Item* One(const Tree& tree) { return tree.OneExtent; }
    static void AppendItem(Tree& tree, Item* item) { BoxLists::Append(tree, item); }
    static void PutOne(Tree& tree, Item* item) { tree.OneExtent = item; }
    static Tree* MakeChild(Tree&) { return new Tree; }
};

/// How the box trees of the plan and of space are searched.
template <class ABoxTree, class BoxSectors, class BoxLists>
struct BoxTreeSearch : SectorTree<BoxTreeKind<ABoxTree, BoxSectors, BoxLists>> {
    using Base = SectorTree<BoxTreeKind<ABoxTree, BoxSectors, BoxLists>>;
    using Tree = ABoxTree;
    using Box = typename BoxSectors::Box;
    using Boxes = BoxResult<Box>;
    using Found = FoundBoxes<Box>;
    using Base::COUNT;
    using Base::SectorOf;

    static void HitPoint(const Tree& tree, const QnGePoint& at, Boxes& result) {
        Found found(result);
        HitPoint(tree, at, found);
    }
    static void HitBox(const Tree& tree, const Box& box, Boxes& result) {
        Found found(result);
        HitBox(tree, box, found);
    }
    static void GetAllExtent(const Tree& tree, Boxes& result) {
        Found found(result);
        GetAllExtent(tree, found);
    }

    /// Appends the boxes that hold a point: deepest node first.
    static void HitPoint(const Tree& node, const QnGePoint& at, Found& result) {
        if (node.ExtentList != nullptr) {
            BoxLists::ReadAhead(node);
        }
        const int sector = SectorOf(node, at);
        if (sector != NO_SECTOR) {
            if (node.Child[sector] != nullptr) {
                HitPoint(*node.Child[sector], at, result);
            } else if (node.OneExtent != nullptr && BoxSectors::Holds(*node.OneExtent, at)) {
                result.Append(node.OneExtent);
            }
        }
        if (node.ExtentList != nullptr) {
            BoxLists::HitPoint(node, at, result);
        }
    }

    /// Appends the boxes that meet `box`, which is cut to the children's cells on the way down.
    static void HitBox(const Tree& node, const Box& box, Found& result) {
        if (Base::HasChild(node)) {
            const int sector = SectorOf(node, box);
            if (sector == NO_SECTOR) {
                HitBoxInChildren(node, box, result);
            } else if (node.Child[sector] != nullptr) {
                HitBox(*node.Child[sector], box, result);
            }
        }
        if (node.OneExtent != nullptr && node.OneExtent->IsInsersectWith(box)) {
            result.Append(node.OneExtent);
        }
        if (node.ExtentList != nullptr) {
            BoxLists::HitBox(node, box, result);
        }
    }

    /// Asks the memory for all children, then for what those have that are met, before it goes down.
    static void HitBoxInChildren(const Tree& node, const Box& box, Found& result) {
        for (const Tree* child : node.Child) {
            if (child != nullptr) {
                qn_detail::ReadAhead(child);
            }
        }
        bool isMet[COUNT];
        Box cut;
        for (int i = 0; i < COUNT; ++i) {
            const Tree* const child = node.Child[i];
            isMet[i] = child != nullptr && BoxSectors::Cut(box, *child, cut);
            if (isMet[i]) {
                ReadBoxesAhead(*child);
            }
        }
        for (int i = 0; i < COUNT; ++i) {
            if (isMet[i]) {
                BoxSectors::Cut(box, *node.Child[i], cut);
                HitBox(*node.Child[i], cut, result);
            }
        }
    }

    static void ReadBoxesAhead(const Tree& node) {
        if (node.OneExtent != nullptr) {
            qn_detail::ReadAhead(node.OneExtent);
        }
        if (node.ExtentList != nullptr) {
            BoxLists::ReadAhead(node);
        }
    }

    static void GetAllExtent(const Tree& node, Found& result) {
        if (node.ExtentList != nullptr) {
            const QnList<Box*>& list = *node.ExtentList;
            for (Box* const* entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
                result.Append(*entry);
            }
        }
        if (node.OneExtent != nullptr) {
            result.Append(node.OneExtent);
        }
        for (const Tree* child : node.Child) {
            if (child != nullptr) {
                GetAllExtent(*child, result);
            }
        }
    }
};

}  // namespace qn_detail
