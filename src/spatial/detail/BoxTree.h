// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>

#include "spatial/detail/BoxTreeSearch.h"
#include "spatial/detail/PlainBoxLists.h"

namespace qn_detail {

/// What the box trees of the plan and of space do alike.
template <class ABoxTree, class BoxSectors, class BoxLists>
struct BoxTree : BoxTreeSearch<ABoxTree, BoxSectors, BoxLists> {
    using Base = BoxTreeSearch<ABoxTree, BoxSectors, BoxLists>;
    using Tree = ABoxTree;
    using Box = typename BoxSectors::Box;
    using Boxes = BoxResult<Box>;
    using Base::COUNT;
    using Base::GetAllExtent;
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
        if (taken != nullptr && node.ExtentList->IsEmpty()) {
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
            if (!CanDivide(node.x, BoxSectors::CentreOf(node).x)) {
                return false;  // for ever: an endless range, or a subtree turned inside out
            }
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
};

}  // namespace qn_detail
