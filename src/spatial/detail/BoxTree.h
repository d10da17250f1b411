// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

#include "containers/QnList.h"
#include "spatial/detail/FoundBoxes.h"
#include "spatial/detail/PlainBoxLists.h"
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

/// What the box trees of the plan and of space do alike.
template <class ABoxTree, class BoxSectors, class BoxLists>
struct BoxTree : SectorTree<BoxTreeKind<ABoxTree, BoxSectors, BoxLists>> {
    using Base = SectorTree<BoxTreeKind<ABoxTree, BoxSectors, BoxLists>>;
    using Tree = ABoxTree;
    using Box = typename BoxSectors::Box;
    using Boxes = BoxResult<Box>;
    using Found = FoundBoxes<Box>;
    using Base::COUNT;
    using Base::Insert;
    using Base::IsEmpty;
    using Base::Reset;
    using Base::SectorOf;

    // ---- taking out ------------------------------------------------------------------------------

    /// Takes the very object `box` out and answers it; null if it is not there. Nodes above that are left with nothing
    /// go too.
    static Box* Take(Tree& root, const Box* box) {
        Tree* node = &root;
        Tree** emptied = nullptr;  // the topmost child on the way below which there is nothing else
        int sector = SectorOf(*node, *box);
        while (sector != NO_SECTOR && node->Child[sector] != nullptr) {
            if (emptied == nullptr || !HasNothingBut(*node, sector)) {
                emptied = &node->Child[sector];
            }
            node = node->Child[sector];
            sector = SectorOf(*node, *box);
        }
        Box* const taken = TakeHere(*node, sector, box);
        if (taken != nullptr && emptied != nullptr && IsEmpty(*node)) {
            delete *emptied;
            *emptied = nullptr;
        }
        return taken;
    }

    /// Whether a node has one child and nothing else.
    static bool HasNothingBut(const Tree& node, int sector) {
        bool isAlone = node.ExtentList == nullptr && node.OneExtent == nullptr;
        for (int i = 0; i < COUNT && isAlone; ++i) {
            isAlone = i == sector || node.Child[i] == nullptr;
        }
        return isAlone;
    }

    /// The same in the node where the way down by sectors ends.
    static Box* TakeHere(Tree& node, int sector, const Box* box) {
        return sector == NO_SECTOR ? TakeFromList(node, box) : TakeOne(node, box);
    }

    static Box* TakeFromList(Tree& node, const Box* box) {
        if (node.ExtentList == nullptr) {
            return nullptr;
        }
        Box* const taken = BoxLists::Take(node, box);
        if (node.ExtentList->IsEmpty()) {
            delete node.ExtentList;
            node.ExtentList = nullptr;
        }
        return taken;
    }

    static Box* TakeOne(Tree& node, const Box* box) {
        Box* const one = node.OneExtent;
        if (one == nullptr || !one->IsSameWith(box)) {
            return nullptr;
        }
        node.OneExtent = nullptr;
        return one;
    }

    // ---- levels above ----------------------------------------------------------------------------

    static void MoveTo(Tree& tree, Tree& target) {
        if (&tree == &target) {
            return;
        }
        BoxSectors::SetRange(target, tree);
        target.ExtentList = tree.ExtentList;
        target.OneExtent = tree.OneExtent;
        for (int i = 0; i < COUNT; ++i) {
            target.Child[i] = tree.Child[i];
        }
        Base::MakeEmpty(tree);
    }

    /// Puts the contents of a child in the place of the node's own.
    static void PullUp(Tree& node, Tree* child) {
        MoveTo(*child, node);
        delete child;
    }

    /// The range shrinks to a square about the only box.
    static void ShrinkToOne(Tree& tree) {
        Box* const one = tree.OneExtent;
        Reset(tree);
        Append(tree, one);
    }

    /// Hangs `subtree` where its middle and its size belong; false if its middle is on a centre line on the way.
    static bool InsertChild(Tree& node, Tree* subtree) {
        const int sector = BoxSectors::Of(node, BoxSectors::MiddleOf(*subtree));
        if (sector == NO_SECTOR) {
            return false;
        }
        if (IsGreater(node.GetLength() / 2.0 - subtree->GetLength(), g_distZero)) {
            const bool isNew = node.Child[sector] == nullptr;
            if (!InsertChild(Base::ChildAt(node, sector), subtree)) {
                if (isNew) {
                    delete node.Child[sector];
                    node.Child[sector] = nullptr;
                }
                return false;
            }
        } else if (node.Child[sector] != subtree) {
            delete node.Child[sector];
            node.Child[sector] = subtree;
        }
        if (node.OneExtent != nullptr) {  // no longer alone
            Box* const one = node.OneExtent;
            node.OneExtent = nullptr;
            Insert(node, one);
        }
        return true;
    }

    // ---- growing ---------------------------------------------------------------------------------

    /// operator+=
    static void Append(Tree& tree, Box* box) {
        if (IsEmpty(tree)) {
            BoxSectors::SetRange(tree, RangeFor(*box, BoxSectors::MiddleOf(*box), 1.0, nullptr));
        } else if (!tree.IsInside(*box)) {
            Grow(tree, *box);
        }
        Insert(tree, box);
    }

    /// The range about `middle`, of half side `half` doubled as often as it takes, that holds `box` inside and includes
    /// `inner`. Without end where a coordinate is; all boxes then stay in the list of the root.
    static Box RangeFor(const Box& box, const QnGePoint& middle, double half, const Box* inner) {
        Box range = BoxSectors::BoxAbout(middle, half);
        while (std::isfinite(half) && !(range.IsInside(box) && (inner == nullptr || range.IsInclude(*inner)))) {
            half *= 2.0;
            range = BoxSectors::BoxAbout(middle, half);
        }
        return range;
    }

    /// Makes the range hold `box`.
    static void Grow(Tree& tree, const Box& box) {
        const Box old = tree;
        const double step = old.GetLength();
        const bool isSquare = !IsGreater(BoxSectors::LongestButX(old) - step, g_distZero);
        const bool hasStep = IsGreater(step, 2.0 * g_distZero) && std::isfinite(step);
        QnGePoint middle = BoxSectors::MiddleOf(old + box);
        if (hasStep) {
            middle = OnLattice(tree, middle, step);
        }
        if (isSquare && hasStep) {
            const Box range = RangeFor(box, middle, step, nullptr);
            if (range.IsInclude(old) && GrowBy(tree, range)) {
                return;
            }
        }
        if (!std::isfinite(step)) {
            return;  // the root's list has everything, and takes this too
        }
        Boxes boxes;
        GetAllExtent(tree, boxes);
        Reset(tree);
        BoxSectors::SetRange(tree, RangeFor(box, middle, step > 1.0 ? step : 1.0, &old));
        for (Box* const* entry = boxes.GetFirst(); entry != nullptr; entry = boxes.GetNext(entry)) {
            Insert(tree, *entry);
        }
    }

    /// The corner of the lattice of old ranges next to `middle`, on the side of the tree.
    static QnGePoint OnLattice(const Tree& tree, const QnGePoint& middle, double step) {
        const QnGePoint centre = BoxSectors::CentreOf(tree);
        const QnGePoint low = tree.GetMinPoint();
        const QnGePoint high = tree.GetMaxPoint();
        QnGePoint corner = middle;
        for (int axis = 0; axis < 3; ++axis) {
            const double anchor = centre[axis] < middle[axis] ? high[axis] : low[axis];
            corner[axis] = std::trunc((middle[axis] - anchor) / step) * step + anchor;
        }
        return corner;
    }

    /// Takes `range` and hangs what was here below. False, with everything as it was, if it has no place there.
    static bool GrowBy(Tree& tree, const Box& range) {
        Tree* const former = new Tree;
        MoveTo(tree, *former);
        BoxSectors::SetRange(tree, range);
        if (InsertChild(tree, former)) {
            return true;
        }
        Reset(tree);
        PullUp(tree, former);
        return false;
    }

    // ---- looking ---------------------------------------------------------------------------------

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
