// SPDX-License-Identifier: Apache-2.0
//
// BoxOrder.cpp: the boxes that cross a centre line of one tree node, ordered along it.
//
// A node's list holds the boxes that cross its centre lines: intervals along two arms of a cross. Where data lies in a
// strip, or close together, a list has thousands of them. Here they stand in a balanced tree of blocks, ordered by
// where their middles lie along their arm, and each block knows the boxes of what is below it:
//
//      key    arm | middle along the arm | arrival        the order of the blocks
//      box    on the grid over the node's range           what a search looks at, four at a time
//      item   list node, or block below                   in no order within a block
//
// Phases     Add     down by the key to the last block that begins at or before it, widening the boxes on the way;
//                    a full block gives its upper half to a new one beside it.
//            Find    down through all blocks whose box meets the box searched for.
//            Take    down to the blocks where the key can be but for the arrival, which nobody knows beforehand: one
//                    block, unless many boxes have one middle. Boxes on the way shrink again; a block that has become
//                    small joins another beside it.
// Invariant  All keys below a block are at least its key in the block above, but below the next larger key there. The
//            box of a block is the hull of those below.
// Why so     Arrivals number the entries in the order of the list, since lists grow at the end only: sorting what is
//            found by them restores it. An arm is chosen, and a middle taken, from the box on the grid alone: no
//            tolerance takes part, which may differ when the box is taken out.
// Cost       Logarithmic; about 40 bytes a box.
#include "spatial/detail/BoxOrder.h"

#include <algorithm>
#include <cstring>

#include "spatial/detail/BoxHits.h"
#include "spatial/detail/ReadAhead.h"
#include "values/detail/BoxLanes.h"

namespace qn_detail {

namespace {

constexpr int SPACE = 16;  ///< entries of a block
constexpr int HALF = SPACE / 2;
constexpr int FEW = HALF - 1;            ///< a block with no more joins another
constexpr int FEW_TOGETHER = SPACE - 3;  ///< if the two have no more together

/// How far the middle of the grid lies from a range.
int GapToMiddle(int low, int high) {
    return low > 0 ? low : (high < 0 ? -high : 0);
}

/// The key of an entry before its arrival is added.
BoxOrder::Key KeyOf(const GridBox& box) {
    constexpr int LOWEST_SUM = -2 * (GridBox::FARTHEST + 1);
    constexpr int SUM_BITS = 17;
    const bool isOnVertical = GapToMiddle(box.X0(), box.X1()) <= GapToMiddle(box.Y0(), box.Y1());
    const int sum = isOnVertical ? box.Y0() + box.Y1() : box.X0() + box.X1();
    const auto along = static_cast<BoxOrder::Key>(sum - LOWEST_SUM);
    const BoxOrder::Key arm = isOnVertical ? 0 : BoxOrder::Key{1} << SUM_BITS;
    return (arm | along) << BoxOrder::ARRIVAL_BITS;
}

}  // namespace

/// Up to SPACE entries: list nodes at height 0, else blocks of the height below.
struct BoxOrder::Block {
    GridBox boxes[SPACE];
    Key keys[SPACE];
    void* items[SPACE];
    int count = 0;
    int height;

    explicit Block(int atHeight) : height(atHeight) {}

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* block, std::size_t bytes) { GivePiece(block, bytes); }

    Block* GetBlock(int i) const { return static_cast<Block*>(items[i]); }
    BoxNode* GetNode(int i) const { return static_cast<BoxNode*>(items[i]); }

    void Append(Key key, const GridBox& box, void* item) {
        boxes[count] = box;
        keys[count] = key;
        items[count] = item;
        ++count;
    }

    /// The last entry takes the place of entry `i`.
    void Remove(int i) {
        --count;
        boxes[i] = boxes[count];
        keys[i] = keys[count];
        items[i] = items[count];
    }

    GridBox GetHull() const {
        GridBox hull = boxes[0];
        for (int i = 1; i < count; ++i) {
            hull = hull.With(boxes[i]);
        }
        return hull;
    }

    Key GetLowestKey() const {
        Key lowest = keys[0];
        for (int i = 1; i < count; ++i) {
            lowest = keys[i] < lowest ? keys[i] : lowest;
        }
        return lowest;
    }

    /// The entry with the largest key up to `key`, else that with the lowest.
    int FindLastUpTo(Key key) const {
        int last = -1;
        int lowest = 0;
        for (int i = 0; i < count; ++i) {
            if (keys[i] <= key && (last < 0 || keys[i] > keys[last])) {
                last = i;
            }
            lowest = keys[i] < keys[lowest] ? i : lowest;
        }
        return last >= 0 ? last : lowest;
    }

    /// The entry with the lowest key above `key`; -1 if there is none.
    int FindNext(Key key) const {
        int next = -1;
        for (int i = 0; i < count; ++i) {
            if (keys[i] > key && (next < 0 || keys[i] < keys[next])) {
                next = i;
            }
        }
        return next;
    }

    /// Bit i is set if the box of entry i meets what is searched for, by the grid.
    unsigned GetMeeting(const GridSearch& search) const {
        unsigned bits = 0;
        for (int i = 0; i < SPACE; i += GridSearch::COUNT) {
            bits |= search.GetMeeting(boxes + i, boxes + i + GridSearch::PAIR) << i;
        }
        return bits & ((1U << count) - 1U);
    }
    unsigned GetSure(const GridSearch& search) const {
        unsigned bits = 0;
        for (int i = 0; i < SPACE; i += GridSearch::COUNT) {
            bits |= search.GetSure(boxes + i, boxes + i + GridSearch::PAIR) << i;
        }
        return bits;
    }

    Block* Split();
    Block* Enter(Key key, const GridBox& box, void* item);
    Block* Add(Key key, const GridBox& box, void* item);
    void JoinIfSmall(int i);
    void TidyAfterTake(int i, const GridBox& taken);
    BoxNode* Take(Key first, const GridBox& frame, const QnGeExtent2d* box);
    template <class IsHit>
    void Find(const GridSearch& search, IsHit isHit, BoxHits& hits) const;
    static void DeleteAll(Block* block);
};

// ---- adding ----------------------------------------------------------------------------------------

/// Moves the upper half of a full block to a new one.
BoxOrder::Block* BoxOrder::Block::Split() {
    Key sorted[SPACE];
    std::memcpy(sorted, keys, sizeof sorted);
    std::nth_element(sorted, sorted + HALF, sorted + SPACE);
    auto* const upper = new Block(height);
    for (int i = count - 1; i >= 0; --i) {
        if (keys[i] >= sorted[HALF]) {
            upper->Append(keys[i], boxes[i], items[i]);
            Remove(i);
        }
    }
    return upper;
}

/// Makes an entry of this block; answers the new block beside it if that took one.
BoxOrder::Block* BoxOrder::Block::Enter(Key key, const GridBox& box, void* item) {
    if (count < SPACE) {
        Append(key, box, item);
        return nullptr;
    }
    Block* const upper = Split();
    Block* const taker = key < upper->GetLowestKey() ? this : upper;
    taker->Append(key, box, item);
    return upper;
}

/// Enters an item at height 0 below; answers as Enter does.
BoxOrder::Block* BoxOrder::Block::Add(Key key, const GridBox& box, void* item) {
    if (height == 0) {
        return Enter(key, box, item);
    }
    const int i = FindLastUpTo(key);
    keys[i] = key < keys[i] ? key : keys[i];
    Block* const below = GetBlock(i);
    Block* const added = below->Add(key, box, item);
    if (added == nullptr) {
        boxes[i] = boxes[i].With(box);
        return nullptr;
    }
    boxes[i] = below->GetHull();
    return Enter(added->GetLowestKey(), added->GetHull(), added);
}

// ---- taking ----------------------------------------------------------------------------------------

/// Joins the block of entry `i` to a neighbour if both are small.
void BoxOrder::Block::JoinIfSmall(int i) {
    if (GetBlock(i)->count > FEW || count < 2) {
        return;
    }
    int lower = i;
    int upper = FindNext(keys[i]);
    if (upper < 0) {
        lower = FindLastUpTo(keys[i] - 1);
        upper = i;
    }
    Block* const kept = GetBlock(lower);
    Block* const given = GetBlock(upper);
    if (kept->count + given->count > FEW_TOGETHER) {
        return;
    }
    for (int k = 0; k < given->count; ++k) {
        kept->Append(given->keys[k], given->boxes[k], given->items[k]);
    }
    boxes[lower] = boxes[lower].With(boxes[upper]);
    delete given;
    Remove(upper);
}

/// Takes the first entry of a box at height 0; `first` is the lowest key that it can have.
BoxNode* BoxOrder::Block::Take(Key first, const GridBox& frame, const QnGeExtent2d* box) {
    const Key last = first | MOST_ARRIVALS;
    if (height == 0) {
        int found = -1;
        for (int i = 0; i < count; ++i) {
            const bool isInSpan = keys[i] >= first && keys[i] <= last;
            if (isInSpan && (found < 0 || keys[i] < keys[found]) && GetNode(i)->data == box) {
                found = i;
            }
        }
        if (found < 0) {
            return nullptr;
        }
        BoxNode* const node = GetNode(found);
        Remove(found);
        return node;
    }
    for (int i = FindLastUpTo(first); i >= 0 && keys[i] <= last; i = FindNext(keys[i])) {
        BoxNode* const node = GetBlock(i)->Take(first, frame, box);
        if (node != nullptr) {
            TidyAfterTake(i, frame);
            return node;
        }
    }
    return nullptr;
}

/// Brings entry `i` up to date, from below which a box was taken.
void BoxOrder::Block::TidyAfterTake(int i, const GridBox& taken) {
    Block* const below = GetBlock(i);
    if (below->count == 0) {
        delete below;
        Remove(i);
        return;
    }
    if (!boxes[i].HoldsInside(taken)) {
        boxes[i] = below->GetHull();
    }
    JoinIfSmall(i);
}

void BoxOrder::Block::DeleteAll(Block* block) {
    if (block->height > 0) {
        for (int i = 0; i < block->count; ++i) {
            DeleteAll(block->GetBlock(i));
        }
    }
    delete block;
}

// ---- finding ---------------------------------------------------------------------------------------

template <class IsHit>
void BoxOrder::Block::Find(const GridSearch& search, IsHit isHit, BoxHits& hits) const {
    const unsigned meeting = GetMeeting(search);
    if (height > 0) {
        for (unsigned left = meeting; left != 0;) {
            GetBlock(TakeLowestLane(left))->Find(search, isHit, hits);
        }
        return;
    }
    const unsigned sure = GetSure(search);
    for (unsigned left = meeting; left != 0;) {
        ReadAhead(GetNode(TakeLowestLane(left)));
    }
    for (unsigned left = meeting & ~sure; left != 0;) {
        ReadAhead(GetNode(TakeLowestLane(left))->data);
    }
    for (unsigned left = meeting; left != 0;) {
        const int i = TakeLowestLane(left);
        QnGeExtent2d* const box = GetNode(i)->data;
        if ((sure >> i & 1U) != 0 || isHit(*box)) {
            hits.Add(keys[i] & MOST_ARRIVALS, box);
        }
    }
}

// ---- the order -------------------------------------------------------------------------------------

BoxOrder::BoxOrder(const QnGeExtent2d& range) : m_grid(range), m_root(new Block(0)) {}

BoxOrder::~BoxOrder() {
    Block::DeleteAll(m_root);
}

bool BoxOrder::Add(BoxNode* node) {
    if (m_arrivals == MOST_ARRIVALS) {
        return false;
    }
    const GridBox box = m_grid.BoxOf(*node->data);
    Block* const upper = m_root->Add(KeyOf(box) | m_arrivals, box, node);
    if (upper != nullptr) {
        auto* const root = new Block(m_root->height + 1);
        root->Append(m_root->GetLowestKey(), m_root->GetHull(), m_root);
        root->Append(upper->GetLowestKey(), upper->GetHull(), upper);
        m_root = root;
    }
    ++m_arrivals;
    return true;
}

BoxNode* BoxOrder::Take(const QnGeExtent2d* box) {
    const GridBox gridBox = m_grid.BoxOf(*box);
    BoxNode* const node = m_root->Take(KeyOf(gridBox), gridBox, box);
    if (node != nullptr && m_root->height > 0 && m_root->count == 1) {
        Block* const lone = m_root->GetBlock(0);
        delete m_root;
        m_root = lone;
    }
    return node;
}

template <class IsHit>
void BoxOrder::FindAll(const GridSearch& search, IsHit isHit, FoundBoxes<QnGeExtent2d>& result) const {
    BoxHits hits;
    m_root->Find(search, isHit, hits);
    hits.SortByArrival();
    for (const BoxHits::Hit& hit : hits) {
        result.Append(hit.box);
    }
}

void BoxOrder::Find(double x, double y, FoundBoxes<QnGeExtent2d>& result) const {
    FindAll(m_grid.SearchFor(x, x, y, y), HoldsPoint{x, y}, result);
}

void BoxOrder::Find(const QnGeExtent2d& box, FoundBoxes<QnGeExtent2d>& result) const {
    FindAll(m_grid.SearchFor(box), MeetsBox{box}, result);
}

}  // namespace qn_detail
