// SPDX-License-Identifier: Apache-2.0
//
// BoxList.cpp: the list of one tree node's boxes, kept so that little memory is touched.
//
// What a tree does is mostly waiting for memory: a list node here, the box that it points to there. So a list has no
// nodes, as long as nobody but the tree works on it. Its boxes stand in a row of pairs, each box on a grid over the
// tree node's range beside the pointer to it:
//
//      | 0 on the grid | 1 on the grid | 0 | 1 |   | 2 on the grid | 3 on the grid | 2 | 3 |   ...
//
// A search reads the boxes on the grid. Most of those it meets are surely met by what the grid says; only for the
// others the boxes themselves are read. Most lists have one box or two: their row is in the list object. A long list
// has a BoxOrder, and nodes.
//
// States     in a row   for up to MOST_IN_ROW boxes
//            ordered    for more
//            loose      what every other list is: nodes, and nothing beside them
// Phases     An insertion of the tree arranges a loose list; a search leaves the elements where they are, for a caller
//            may be going through them. What a caller does to the list by its public operations loosens it first; only
//            going through it does not. The row that was left stays until the tree works on the list again: a caller
//            may hold an element of it, and goes on from there to the nodes.
// Invariant  The order of the row is that of the list, without gaps. Behind it stand empty boxes. In a row the ring of
//            nodes is empty, and the cursor is its index alone.
// Cost       16 bytes a place.
#include "spatial/detail/BoxList.h"

#include <cstddef>
#include <cstdint>
#include <new>

#include "values/detail/BoxLanes.h"

namespace qn_detail {

BoxList::~BoxList() {
    DropOrder();
    FreeRow();
}

// ---- the row ---------------------------------------------------------------------------------------

/// How many places a row of so many boxes gets, with some to spare.
int BoxList::SpaceFor(long length) {
    constexpr long SHORT = 16;
    constexpr long SPARE = 8;  // one place for so many boxes of a row that is not short
    constexpr long STEP = 4;   // a cache line
    if (length <= IN_OBJECT) {
        return IN_OBJECT;
    }
    const long enough = length + (length > SHORT ? length / SPARE : 0);
    const long space = (enough + STEP - 1) / STEP * STEP;
    return static_cast<int>(space < MOST_IN_ROW ? space : MOST_IN_ROW);
}

std::size_t BoxList::BytesOf(int space) {
    return static_cast<std::size_t>(space / GridSearch::PAIR) * sizeof(Pair);
}

QnGeExtent2d* const* BoxList::ElementAt(long place) const {
    return &GetRow()[place / GridSearch::PAIR].data[place % GridSearch::PAIR];
}

bool BoxList::IsOfRow(Box* const* element) const {
    const auto begin = reinterpret_cast<std::uintptr_t>(GetRow());
    const auto address = reinterpret_cast<std::uintptr_t>(element);
    return m_space > 0 && address >= begin && address - begin < BytesOf(m_space);
}

/// Of an element of the row.
long BoxList::PlaceOf(Box* const* element) const {
    const std::ptrdiff_t offset = reinterpret_cast<const char*>(element) - reinterpret_cast<const char*>(GetRow());
    const long pair = static_cast<long>(offset / static_cast<std::ptrdiff_t>(sizeof(Pair)));
    return pair * GridSearch::PAIR + static_cast<long>(element - GetRow()[pair].data);
}

/// What an element of a row that was left has become; any other is what it was.
QnGeExtent2d* const* BoxList::ElementNow(Box* const* element) const {
    if (!IsOfRow(element)) {
        return element;
    }
    const long place = PlaceOf(element);
    return &GetRow()[place / GridSearch::PAIR].nodes[place % GridSearch::PAIR]->data;
}

/// The place of the very object; where it is not, of the first that says it is the same; -1 if there is none.
long BoxList::FindPlace(const Box* box) const {
    for (long place = 0; place < m_nLength; ++place) {
        if (*ElementAt(place) == box) {
            return place;
        }
    }
    for (long place = 0; place < m_nLength; ++place) {
        if ((*ElementAt(place))->IsSameWith(box)) {
            return place;
        }
    }
    return -1;
}

/// Makes a row of empty places.
void BoxList::MakeRow(int space) {
    m_state = State::IN_ROW;
    m_space = static_cast<short>(space);
    if (space > IN_OBJECT) {
        m_row = static_cast<Pair*>(TakePiece(BytesOf(space)));
    }
    Pair* const row = GetRow();
    for (int place = 0; place < space; place += GridSearch::PAIR) {
        ::new (static_cast<void*>(row + place / GridSearch::PAIR))
            Pair{{{GridBox::Empty(), GridBox::Empty()}}, {nullptr, nullptr}};
    }
}

void BoxList::FreeRow() {
    if (m_space > IN_OBJECT) {
        GivePiece(m_row, BytesOf(m_space));
    }
    m_space = 0;
}

/// Moves the boxes to a row with so many places.
void BoxList::MoveRow(int space) {
    const Pair inObject = m_pair;
    const int formerSpace = m_space;
    const Pair* const former = formerSpace == IN_OBJECT ? &inObject : m_row;
    MakeRow(space);
    Pair* const row = GetRow();
    for (long place = 0; place < m_nLength; place += GridSearch::PAIR) {
        row[place / GridSearch::PAIR] = former[place / GridSearch::PAIR];
    }
    if (formerSpace > IN_OBJECT) {
        GivePiece(const_cast<Pair*>(former), BytesOf(formerSpace));
    }
}

void BoxList::PutInRow(long place, const GridBox& box, Box* data) {
    Pair& pair = GetRow()[place / GridSearch::PAIR];
    pair.boxes[place % GridSearch::PAIR] = box;
    pair.data[place % GridSearch::PAIR] = data;
}

/// Those behind move up.
QnGeExtent2d* BoxList::TakeFromRow(long place) {
    Pair* const row = GetRow();
    Box* const taken = *ElementAt(place);
    m_nCur = place - 1;
    for (; place + 1 < m_nLength; ++place) {
        const Pair& from = row[(place + 1) / GridSearch::PAIR];
        PutInRow(place, from.boxes[(place + 1) % GridSearch::PAIR], from.data[(place + 1) % GridSearch::PAIR]);
    }
    PutInRow(place, GridBox::Empty(), nullptr);
    --m_nLength;
    if (2 * SpaceFor(m_nLength + 1) <= m_space) {
        MoveRow(SpaceFor(m_nLength + 1));
    }
    return taken;
}

// ---- the states ------------------------------------------------------------------------------------

/// Puts a loose list that is not too long in a row.
void BoxList::Arrange(const Grid& grid) {
    static_cast<Grid&>(*this) = grid;
    FreeRow();
    MakeRow(SpaceFor(m_nLength));
    long place = 0;
    for (BoxNode* node = Next(m_pHead); node != m_pHead; ++place) {
        BoxNode* const following = Next(node);
        PutInRow(place, BoxOf(*node->data), node->data);
        delete node;
        node = following;
    }
    m_pHead->next = m_pHead->previous = m_pTail = m_pHead;
    DropHint();
}

/// Puts a loose list in order.
void BoxList::Order(const Box& range) {
    FreeRow();
    m_order = new BoxOrder(range);
    m_state = State::ORDERED;
    for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        m_order->Add(node);
    }
}

void BoxList::DropOrder() {
    if (IsOrdered()) {
        delete m_order;
        m_state = State::LOOSE;
    }
}

/// Makes all elements nodes, which nothing else looks at.
void BoxList::MakeNodes() {
    DropOrder();
    if (!IsInRow()) {
        return;
    }
    m_pCurrent = m_pHead;
    Pair* const row = GetRow();
    for (long place = 0; place < m_nLength; ++place) {
        auto* const node = new BoxNode(*ElementAt(place));
        LinkBefore(node, m_pHead);
        row[place / GridSearch::PAIR].nodes[place % GridSearch::PAIR] = node;
        m_pCurrent = place == m_nCur ? node : m_pCurrent;
    }
    m_pTail = m_pHead->previous;
    m_state = State::LOOSE;
}

// ---- for the tree ----------------------------------------------------------------------------------

/// With the cursor on it, as appending leaves it.
void BoxList::Add(Box* box, const Box& range) {
    if (m_nLength >= MOST_IN_ROW && !IsOrdered()) {
        MakeNodes();
        Order(range);
    } else if (m_state == State::LOOSE) {
        Arrange(Grid(range));
    }
    if (IsOrdered()) {
        AddToOrder(box);
        return;
    }
    if (m_nLength == m_space) {
        MoveRow(SpaceFor(m_nLength + 1));
    }
    PutInRow(m_nLength, BoxOf(*box), box);
    m_nCur = m_nLength++;
}

void BoxList::AddToOrder(Box* box) {
    auto* const node = new BoxNode(box);
    LinkBefore(node, m_pHead);
    m_pTail = m_pCurrent = node;
    m_nCur = m_nLength++;
    if (!m_order->Add(node)) {
        DropOrder();
    }
}

QnGeExtent2d* BoxList::Take(const Box* box) {
    if (IsInRow()) {
        const long place = FindPlace(box);
        return place >= 0 ? TakeFromRow(place) : nullptr;
    }
    BoxNode* node = IsOrdered() ? m_order->Take(box) : nullptr;
    if (node == nullptr) {
        node = FindNode(box);
        if (node == nullptr) {
            return nullptr;
        }
        DropOrder();  // it holds the node at other coordinates
    }
    return TakeNode(node);
}

/// The index of a node. Of an ordered list, which is not gone through, only if the cursor is on it; 0 otherwise.
long BoxList::IndexOf(const BoxNode* node) const {
    long index = 0;
    if (IsOrdered()) {
        return m_pCurrent == node ? m_nCur : 0;
    }
    for (const BoxNode* at = Next(m_pHead); at != node; at = Next(at)) {
        ++index;
    }
    return index;
}

/// The cursor steps back from it, as when a list deletes what the cursor is on.
QnGeExtent2d* BoxList::TakeNode(BoxNode* node) {
    Box* const taken = node->data;
    m_nCur = IndexOf(node) - 1;
    m_pCurrent = m_nCur >= 0 ? node->previous : m_pHead;
    --m_nLength;
    DropHint();
    Unlink(node);
    delete node;
    m_pTail = m_pHead->previous;
    if (IsOrdered() && m_nLength < FEWEST_IN_ORDER) {
        const Grid grid = m_order->GetGrid();
        DropOrder();
        Arrange(grid);
    }
    return taken;
}

/// The node of the very object; where there is none, of the first that says it is the same.
BoxNode* BoxList::FindNode(const Box* box) const {
    for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (node->data == box) {
            return node;
        }
    }
    for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (node->data->IsSameWith(box)) {
            return node;
        }
    }
    return nullptr;
}

/// That a box itself is asked is rare.
template <class IsHit>
void BoxList::FindInRow(const GridSearch& search, IsHit isHit, FoundBoxes<Box>& result) const {
    static_assert(MOST_IN_ROW + GridSearch::COUNT <= FoundBoxes<Box>::MOST_AT_ONCE, "a row has room, and what follows");
    Box** const room = result.GetRoom(m_nLength + GridSearch::COUNT);
    long count = 0;
    const Pair* const row = GetRow();
    const long toNext = m_space == IN_OBJECT ? 0 : 1;  // one pair is looked at as if it were two
    for (const Pair* pair = row; pair < row + (m_nLength + 1) / GridSearch::PAIR;
         pair += GridSearch::COUNT / GridSearch::PAIR) {
        const Pair* const next = pair + toNext;
        unsigned meeting = search.GetMeeting(pair->boxes, next->boxes);
        if (meeting == 0 && m_space > IN_OBJECT) {
            continue;
        }
        for (unsigned unsure = meeting & ~search.GetSure(pair->boxes, next->boxes); unsure != 0;) {
            const int lane = TakeLowestLane(unsure);
            const Pair* const of = lane < GridSearch::PAIR ? pair : next;
            meeting &= isHit(*of->data[lane % GridSearch::PAIR]) ? ~0U : ~(1U << lane);
        }
        room[count] = pair->data[0];
        count += static_cast<long>(meeting & 1U);
        room[count] = pair->data[1];
        count += static_cast<long>(meeting >> 1U & 1U);
        room[count] = next->data[0];
        count += static_cast<long>(meeting >> 2U & 1U) & toNext;
        room[count] = next->data[1];
        count += static_cast<long>(meeting >> 3U) & toNext;
    }
    result.Take(count);
}

template <class IsHit>
void BoxList::FindInNodes(IsHit isHit, FoundBoxes<Box>& result) const {
    for (const BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
        if (isHit(*node->data)) {
            result.Append(node->data);
        }
    }
}

void BoxList::Find(double x, double y, FoundBoxes<Box>& result) const {
    if (IsOrdered()) {
        m_order->Find(x, y, result);
    } else if (!IsInRow()) {
        FindInNodes(HoldsPoint{x, y}, result);
    } else {
        FindInRow(SearchFor(x, x, y, y), HoldsPoint{x, y}, result);
    }
}

void BoxList::Find(const Box& box, FoundBoxes<Box>& result) const {
    if (IsOrdered()) {
        m_order->Find(box, result);
    } else if (!IsInRow()) {
        FindInNodes(MeetsBox{box}, result);
    } else {
        FindInRow(SearchFor(box), MeetsBox{box}, result);
    }
}

// ---- operations of lists that only go through it ---------------------------------------------------

QnGeExtent2d* const* BoxList::GetFirst() const {
    if (!IsInRow()) {
        return Base::GetFirst();
    }
    return m_nLength > 0 ? ElementAt(0) : nullptr;
}

QnGeExtent2d* const* BoxList::GetLast() const {
    if (!IsInRow()) {
        return Base::GetLast();
    }
    return m_nLength > 0 ? ElementAt(m_nLength - 1) : nullptr;
}

QnGeExtent2d* const* BoxList::GetNext(Box* const* element) const {
    if (!IsInRow() || element == nullptr) {
        return Base::GetNext(ElementNow(element));
    }
    const long place = PlaceOf(element) + 1;
    return place < m_nLength ? ElementAt(place) : nullptr;
}

QnGeExtent2d* const* BoxList::GetPre(Box* const* element) const {
    if (!IsInRow() || element == nullptr) {
        return Base::GetPre(ElementNow(element));
    }
    const long place = PlaceOf(element) - 1;
    return place >= 0 ? ElementAt(place) : nullptr;
}

void BoxList::MoveToFirst() {
    if (!IsInRow()) {
        Base::MoveToFirst();
        return;
    }
    m_nCur = m_nLength > 0 ? 0 : -1;
}

void BoxList::MoveToLast() {
    if (!IsInRow()) {
        Base::MoveToLast();
        return;
    }
    m_nCur = m_nLength - 1;
}

void BoxList::MoveToNext() {
    if (!IsInRow()) {
        Base::MoveToNext();
        return;
    }
    m_nCur = m_nCur + 1 < m_nLength ? m_nCur + 1 : -1;
}

void BoxList::MoveToPre() {
    if (!IsInRow()) {
        Base::MoveToPre();
        return;
    }
    m_nCur = m_nCur < 0 ? m_nLength - 1 : m_nCur - 1;
}

}  // namespace qn_detail
