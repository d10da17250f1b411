// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "containers/QnList.h"
#include "spatial/detail/FoundBoxes.h"
#include "spatial/detail/ReadAhead.h"
#include "spatial/detail/SectorTree.h"

namespace qn_detail {

/// How a tree works on its lists: by going through them.
template <class Tree, class Sectors>
struct PlainBoxLists {
    using Box = typename Sectors::Box;

    static void Append(Tree& node, Box* box) { AppendTo(node.ExtentList, box); }

    /// Takes the first entry out that is the same as `box` and answers it; null if there is none.
    static Box* Take(Tree& node, const Box* box) {
        QnList<Box*>& list = *node.ExtentList;
        for (list.MoveToFirst(); !list.IsOut(); list.MoveToNext()) {
            Box* const entry = list.GetCurData();
            if (entry->IsSameWith(box)) {
                list.DelCur();
                return entry;
            }
        }
        return nullptr;
    }

    static void ReadAhead(const Tree& node) { qn_detail::ReadAhead(node.ExtentList); }
    static void HitPoint(const Tree& node, const QnGePoint& at, FoundBoxes<Box>& result) {
        AppendHits(
            *node.ExtentList, [&at](const Box& box) { return Sectors::Holds(box, at); }, result);
    }
    static void HitBox(const Tree& node, const Box& searched, FoundBoxes<Box>& result) {
        AppendHits(
            *node.ExtentList, [&searched](const Box& box) { return box.IsInsersectWith(searched); }, result);
    }

private:
    template <class IsHit>
    static void AppendHits(const QnList<Box*>& list, IsHit isHit, FoundBoxes<Box>& result) {
        for (Box* const* entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
            if (isHit(**entry)) {
                result.Append(*entry);
            }
        }
    }
};

}  // namespace qn_detail
