// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "spatial/QnGeQuadTree2d.h"
#include "spatial/detail/BoxList.h"
#include "spatial/detail/BoxTree.h"

namespace qn_detail {

/// How the quad tree works on its lists: by the order that its own lists keep beside their elements. A list that a
/// caller has put in a node is gone through.
struct OrderedBoxLists {
    using Tree = QnGeQuadTree2d;
    using Box = QnGeExtent2d;
    using Found = FoundBoxes<Box>;
    using Plain = PlainBoxLists<Tree, PlanSectors<Tree>>;

    static void Append(Tree& node, Box* box) {
        if (node.ExtentList == nullptr) {
            node.ExtentList = new BoxList;
        }
        BoxList* const list = BoxList::From(node.ExtentList);
        if (list != nullptr) {
            list->Add(box, node);
        } else {
            Plain::Append(node, box);
        }
    }

    static Box* Take(Tree& node, const Box* box) {
        BoxList* const list = BoxList::From(node.ExtentList);
        return list != nullptr ? list->Take(box) : Plain::Take(node, box);
    }

    static void ReadAhead(const Tree& node) { qn_detail::ReadAhead(node.ExtentList, sizeof(BoxList)); }

    static void HitPoint(const Tree& node, const QnGePoint& at, Found& result) {
        BoxList* const list = BoxList::From(node.ExtentList);
        if (list != nullptr) {
            list->Find(at.x, at.y, result);
        } else {
            Plain::HitPoint(node, at, result);
        }
    }

    static void HitBox(const Tree& node, const Box& box, Found& result) {
        BoxList* const list = BoxList::From(node.ExtentList);
        if (list != nullptr) {
            list->Find(box, result);
        } else {
            Plain::HitBox(node, box, result);
        }
    }
};

using QuadTreeWork = BoxTree<QnGeQuadTree2d, PlanSectors<QnGeQuadTree2d>, OrderedBoxLists>;

}  // namespace qn_detail
