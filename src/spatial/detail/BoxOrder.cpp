// SPDX-License-Identifier: Apache-2.0
//
// BoxOrder.cpp: the boxes that cross a centre line of one tree node, ordered along it.
//
// A node's list holds the boxes that cross its centre lines: intervals along two arms of a cross. Where data lies in a
// strip, or close together, a list has thousands of them. Here they stand in a balanced tree of blocks, ordered by
// where their middles lie along their arm, and each block knows the boxes of what is below it:
//
//      key    arm | middle along the arm | arrival        the order of the blocks
//      box    float box relative to the node's centre     what a search looks at, eight at a time
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
//            found by them restores it. An arm is chosen, and a middle taken, from the float box alone: no tolerance
//            takes part, which may differ when the box is taken out.
// Tolerance  Rounding to float keeps the order of numbers. So a search that widens its box by twice the tolerance, and
//            by the rounding of doubles, before rounding it too, misses nothing. Who searches tests what is found.
// Cost       Logarithmic; about 50 bytes a box.
#include "spatial/detail/BoxOrder.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace qn_detail {

namespace {

constexpr int SPACE = 2 * BoxLanes::COUNT;  ///< entries of a block
constexpr int HALF = SPACE / 2;
constexpr int FEW = SPACE / 4;               ///< a block with no more joins another
constexpr int FEW_TOGETHER = 3 * SPACE / 4;  ///< if the two have no more together
constexpr double FARTHEST = 3e38;            ///< coordinates beyond are taken for this
constexpr double ROUNDING = 1e-15;           ///< of a difference of doubles, in parts of their sizes

float ToFloat(double v) {
    return static_cast<float>(v > FARTHEST ? FARTHEST : (v < -FARTHEST ? -FARTHEST : v));
}

/// A number that orders as the float does.
std::uint32_t OrderOf(float v) {
    if (std::isnan(v)) {
        return 0;
    }
    std::uint32_t bits = 0;
    std::memcpy(&bits, &v, sizeof bits);
    constexpr std::uint32_t SIGN = 0x80000000U;
    return (bits & SIGN) != 0 ? ~bits : bits | SIGN;
}

/// How far zero lies from a range.
float GapToZero(float low, float high) {
    return low > 0.0F ? low : (high < 0.0F ? -high : 0.0F);
}

/// The key of an entry before its arrival is added.
BoxOrder::Key KeyOf(const FloatBox& box) {
    const bool isOnVertical = GapToZero(box.x0, box.x1) <= GapToZero(box.y0, box.y1);
    const float middle = isOnVertical ? box.y0 + box.y1 : box.x0 + box.x1;
    const BoxOrder::Key along = OrderOf(middle);
    const BoxOrder::Key arm = isOnVertical ? 0 : BoxOrder::Key{1} << 32;
    return (arm | along) << BoxOrder::ARRIVAL_BITS;
}

bool IsOnRim(const FloatBox& inner, const FloatBox& hull) {
    return !(inner.x0 > hull.x0 && inner.y0 > hull.y0 && inner.x1 < hull.x1 && inner.y1 < hull.y1);
}

}  // namespace

/// Up to SPACE entries: list nodes at height 0, else blocks of the height below.
struct BoxOrder::Block {
    BoxLanes lanes[2];
    Key keys[SPACE];
    void* items[SPACE];
    int count = 0;
    int height;

    explicit Block(int atHeight) : height(atHeight) {}

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* block, std::size_t bytes) { GivePiece(block, bytes); }

    FloatBox GetBox(int i) const { return lanes[i / BoxLanes::COUNT].GetBox(i % BoxLanes::COUNT); }
    void SetBox(int i, const FloatBox& box) { lanes[i / BoxLanes::COUNT].SetBox(i % BoxLanes::COUNT, box); }
    Block* GetBlock(int i) const { return static_cast<Block*>(items[i]); }
    BoxNode* GetNode(int i) const { return static_cast<BoxNode*>(items[i]); }

    void Append(Key key, const FloatBox& box, void* item) {
        SetBox(count, box);
        keys[count] = key;
        items[count] = item;
        ++count;
    }

    /// The last entry takes the place of entry `i`.
    void Remove(int i) {
        --count;
        SetBox(i, GetBox(count));
        keys[i] = keys[count];
        items[i] = items[count];
    }

    FloatBox GetHull() const {
        FloatBox hull = GetBox(0);
        for (int i = 1; i < count; ++i) {
            hull = hull.With(GetBox(i));
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

    unsigned GetMeeting(const FloatBox& box) const {
        const unsigned bits = lanes[0].GetMeeting(box) | lanes[1].GetMeeting(box) << BoxLanes::COUNT;
        return bits & ((1U << count) - 1U);
    }

    Block* Split();
    Block* Enter(Key key, const FloatBox& box, void* item);
    Block* Add(Key key, const FloatBox& box, void* item);
    void JoinIfSmall(int i);
    void TidyAfterTake(int i, const FloatBox& taken);
    BoxNode* Take(Key first, const FloatBox& frame, const QnGeExtent2d* box);
    template <class IsHit>
    void Find(const FloatBox& box, IsHit isHit, BoxHits& hits) const;
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
            upper->Append(keys[i], GetBox(i), items[i]);
            Remove(i);
        }
    }
    return upper;
}

/// Makes an entry of this block; answers the new block beside it if that took one.
BoxOrder::Block* BoxOrder::Block::Enter(Key key, const FloatBox& box, void* item) {
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
BoxOrder::Block* BoxOrder::Block::Add(Key key, const FloatBox& box, void* item) {
    if (height == 0) {
        return Enter(key, box, item);
    }
    const int i = FindLastUpTo(key);
    keys[i] = key < keys[i] ? key : keys[i];
    Block* const below = GetBlock(i);
    Block* const added = below->Add(key, box, item);
    if (added == nullptr) {
        SetBox(i, GetBox(i).With(box));
        return nullptr;
    }
    SetBox(i, below->GetHull());
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
        kept->Append(given->keys[k], given->GetBox(k), given->items[k]);
    }
    SetBox(lower, GetBox(lower).With(GetBox(upper)));
    delete given;
    Remove(upper);
}

/// Takes the first entry of a box at height 0; `first` is the lowest key that it can have.
BoxNode* BoxOrder::Block::Take(Key first, const FloatBox& frame, const QnGeExtent2d* box) {
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
void BoxOrder::Block::TidyAfterTake(int i, const FloatBox& taken) {
    Block* const below = GetBlock(i);
    if (below->count == 0) {
        delete below;
        Remove(i);
        return;
    }
    if (IsOnRim(taken, GetBox(i))) {
        SetBox(i, below->GetHull());
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
void BoxOrder::Block::Find(const FloatBox& box, IsHit isHit, BoxHits& hits) const {
    unsigned meeting = GetMeeting(box);
    while (meeting != 0) {
        const int i = TakeLowestLane(meeting);
        if (height > 0) {
            GetBlock(i)->Find(box, isHit, hits);
        } else if (isHit(*GetNode(i)->data)) {
            hits.Add(keys[i] & MOST_ARRIVALS, GetNode(i)->data);
        }
    }
}

// ---- the order -------------------------------------------------------------------------------------

BoxOrder::BoxOrder(double centreX, double centreY)
    : m_centreX(std::isfinite(centreX) ? centreX : 0.0),
      m_centreY(std::isfinite(centreY) ? centreY : 0.0),
      m_root(new Block(0)) {}

BoxOrder::~BoxOrder() {
    Block::DeleteAll(m_root);
}

/// The box relative to the centre. One that is no box meets nothing, and neither does its stand-in.
FloatBox BoxOrder::FrameOf(const QnGeExtent2d& box) const {
    const FloatBox frame = {ToFloat(box.x.min - m_centreX), ToFloat(box.y.min - m_centreY),
                            ToFloat(box.x.max - m_centreX), ToFloat(box.y.max - m_centreY)};
    const bool isBox = !std::isnan(frame.x0) && !std::isnan(frame.y0) && !std::isnan(frame.x1) && !std::isnan(frame.y1);
    return isBox ? frame : FloatBox::Empty();
}

/// The box with which to search: no smaller than what the tests of extents let through.
FloatBox BoxOrder::SearchBox(const QnGeExtent2d& box) const {
    const auto margin = [](double v, double centre) {
        return 2.0 * g_distZero + ROUNDING * (std::fabs(v) + std::fabs(centre));
    };
    return {ToFloat(box.x.min - m_centreX - margin(box.x.min, m_centreX)),
            ToFloat(box.y.min - m_centreY - margin(box.y.min, m_centreY)),
            ToFloat(box.x.max - m_centreX + margin(box.x.max, m_centreX)),
            ToFloat(box.y.max - m_centreY + margin(box.y.max, m_centreY))};
}

void BoxOrder::Add(BoxNode* node) {
    const FloatBox box = FrameOf(*node->data);
    Block* const upper = m_root->Add(KeyOf(box) | m_arrivals, box, node);
    if (upper != nullptr) {
        auto* const root = new Block(m_root->height + 1);
        root->Append(m_root->GetLowestKey(), m_root->GetHull(), m_root);
        root->Append(upper->GetLowestKey(), upper->GetHull(), upper);
        m_root = root;
    }
    ++m_arrivals;
    ++m_length;
}

BoxNode* BoxOrder::Take(const QnGeExtent2d* box) {
    const FloatBox frame = FrameOf(*box);
    BoxNode* const node = m_root->Take(KeyOf(frame), frame, box);
    if (node == nullptr) {
        return nullptr;
    }
    if (m_root->height > 0 && m_root->count == 1) {
        Block* const lone = m_root->GetBlock(0);
        delete m_root;
        m_root = lone;
    }
    --m_length;
    return node;
}

void BoxOrder::Find(double x, double y, BoxHits& hits) const {
    m_root->Find(
        SearchBox(QnGeExtent2d(x, x, y, y)), [x, y](const QnGeExtent2d& box) { return box.IsInclude(x, y); }, hits);
    hits.SortByArrival();
}

void BoxOrder::Find(const QnGeExtent2d& searched, BoxHits& hits) const {
    m_root->Find(
        SearchBox(searched), [&searched](const QnGeExtent2d& box) { return box.IsInsersectWith(searched); }, hits);
    hits.SortByArrival();
}

bool BoxOrder::IsAllIn(const QnGeExtent2d& box) const {
    const FloatBox search = SearchBox(box);
    const FloatBox hull = m_root->GetHull();
    return search.x0 <= hull.x0 && search.y0 <= hull.y0 && search.x1 >= hull.x1 && search.y1 >= hull.y1;
}

}  // namespace qn_detail
