// SPDX-License-Identifier: Apache-2.0
//
// BoxList.cpp: the list of one tree node's boxes, kept so that little memory is touched.
//
// What a tree does is mostly waiting for memory: a list node here, the box that it points to there. So the nodes of a
// list of some length stand in a row, in groups of four with their boxes on a grid over the tree node's range in front:
//
//      | boxes of 0..3 on the grid | node 0 | node 1 | node 2 | node 3 |   | boxes of 4..7 | node 4 | ...
//
// A search reads the boxes on the grid, then the nodes of those it meets. Most of them are surely met by what the grid
// says; only for the others the boxes themselves are read. A long list has a BoxOrder and its nodes singly.
//
// States     in a row   for up to MOST_IN_ROW boxes
//            ordered    for more
//            loose      what every other list is, and one of fewer than FEWEST_IN_ROW boxes, which saves memory
// Phases     An insertion of the tree arranges a loose list; a search leaves the nodes where they are, for a caller may
//            be going through them. What a caller does to the list by its public
//            operations loosens it first, so that nodes are single objects when they are passed on or deleted.
// Invariant  The order of places in a row is the order of the list. A place whose box was taken stays empty until the
//            row moves; the last place in use is never empty.
// Cost       32 bytes a place, which holds the list node too.
#include "spatial/detail/BoxList.h"

#include <cstddef>
#include <new>

#include "values/detail/BoxLanes.h"

namespace qn_detail {

BoxList::~BoxList() {
    DropOrder();
    if (IsInRow()) {
        FreeRow();
        m_pHead->next = m_pHead->previous = m_pHead;  // no node is left to the destructor of lists
    }
}

// ---- the row ---------------------------------------------------------------------------------------

/// How many places a row of so many boxes gets, with some to spare.
int BoxList::SpaceFor(long length) {
    constexpr long SPARE = 8;  // one place for so many boxes
    constexpr long SHORT = 16;
    const long step = length <= SHORT ? 2 : GridQuad::COUNT;
    return static_cast<int>((length + length / SPARE + step - 1) / step * step);
}

std::size_t BoxList::BytesOf(int space) {
    const auto groups = static_cast<std::size_t>(space / GridQuad::COUNT);
    const auto rest = static_cast<std::size_t>(space % GridQuad::COUNT);
    return groups * sizeof(Group) + (rest > 0 ? sizeof(GridQuad) + rest * sizeof(BoxNode) : 0);
}

/// A row of empty places.
BoxList::Group* BoxList::MakeRow(int space) {
    auto* const row = static_cast<Group*>(TakePiece(BytesOf(space)));
    for (int place = 0; place < space; ++place) {
        Group& group = row[place / GridQuad::COUNT];
        if (place % GridQuad::COUNT == 0) {
            group.quad.Clear();
        }
        ::new (static_cast<void*>(&group.nodes[place % GridQuad::COUNT])) BoxNode;
    }
    return row;
}

int BoxList::PlaceOf(const BoxNode* node) const {
    const std::ptrdiff_t offset = reinterpret_cast<const char*>(node) - reinterpret_cast<const char*>(m_row);
    const auto group = static_cast<int>(offset / static_cast<std::ptrdiff_t>(sizeof(Group)));
    return group * GridQuad::COUNT + static_cast<int>(node - m_row[group].nodes);
}

BoxNode* BoxList::NodeInRow(int place) const {
    return &m_row[place / GridQuad::COUNT].nodes[place % GridQuad::COUNT];
}

/// Moves a node of the list to a place, with all links to it.
void BoxList::PutInRow(int place, const GridBox& box, BoxNode* node) {
    m_row[place / GridQuad::COUNT].quad.SetBox(place % GridQuad::COUNT, box);
    BoxNode* const moved = NodeInRow(place);
    *moved = *node;
    moved->previous->next = moved;
    Next(moved)->previous = moved;
    m_pCurrent = m_pCurrent == node ? moved : m_pCurrent;
}

/// Moves all nodes, in their order, to a new row.
void BoxList::MoveRow(int space) {
    Group* const formerRow = m_row;
    const int formerSpace = m_space;
    const int formerEnd = m_end;
    m_row = MakeRow(space);
    m_space = static_cast<short>(space);
    m_end = 0;
    for (int place = 0; place < formerEnd; ++place) {
        Group& from = formerRow[place / GridQuad::COUNT];
        const int lane = place % GridQuad::COUNT;
        if (from.nodes[lane].data != nullptr) {
            PutInRow(m_end++, from.quad.GetBox(lane), &from.nodes[lane]);
        }
    }
    m_pTail = m_pHead->previous;
    DropHint();
    GivePiece(formerRow, BytesOf(formerSpace));
}

void BoxList::FreeRow() {
    GivePiece(m_row, BytesOf(m_space));
    m_row = nullptr;
    m_space = m_end = 0;
}

/// The first node with this very box, if the box has the coordinates with which it came.
BoxNode* BoxList::FindInRow(const Box* box) const {
    const GridBox gridBox = BoxOf(*box);
    for (int first = 0; first < m_end; first += GridQuad::COUNT) {
        Group& group = m_row[first / GridQuad::COUNT];
        for (unsigned equal = group.quad.GetEqual(gridBox); equal != 0;) {
            const int lane = TakeLowestLane(equal);
            if (first + lane < m_end && group.nodes[lane].data == box) {
                return &group.nodes[lane];
            }
        }
    }
    return nullptr;
}

/// Gives up the place of a node that is no more in the list.
void BoxList::LeavePlace(const BoxNode* node) {
    constexpr int SPARED = 6;  // a row moves to spare one place of so many
    const int place = PlaceOf(node);
    m_row[place / GridQuad::COUNT].quad.SetBox(place % GridQuad::COUNT, GridBox::Empty());
    NodeInRow(place)->data = nullptr;
    while (m_end > 0 && NodeInRow(m_end - 1)->data == nullptr) {
        --m_end;
    }
    if (m_nLength + 1 < FEWEST_IN_ROW) {
        Loosen();
    } else if (SPARED * SpaceFor(m_nLength) < m_space * (SPARED - 1)) {
        MoveRow(SpaceFor(m_nLength));
    }
}

// ---- the states ------------------------------------------------------------------------------------

/// Puts a loose list in a row or in order.
void BoxList::Arrange(const Box& range) {
    if (IsInRow() || IsOrdered() || m_nLength < FEWEST_IN_ROW) {
        return;
    }
    if (m_nLength > MOST_IN_ROW) {
        m_order = new BoxOrder(range);
        m_space = IS_ORDERED;
        for (BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
            m_order->Add(node);
        }
        return;
    }
    static_cast<Grid&>(*this) = Grid(range);
    const int space = SpaceFor(m_nLength);
    m_row = MakeRow(space);
    m_space = static_cast<short>(space);
    for (BoxNode* node = Next(m_pHead); node != m_pHead;) {
        BoxNode* const following = Next(node);
        PutInRow(m_end++, BoxOf(*node->data), node);
        delete node;
        node = following;
    }
    m_pTail = m_pHead->previous;
    DropHint();
}

void BoxList::DropOrder() {
    if (IsOrdered()) {
        delete m_order;
        m_row = nullptr;
        m_space = 0;
    }
}

/// Makes all nodes single objects.
void BoxList::Loosen() {
    DropOrder();
    if (!IsInRow()) {
        return;
    }
    for (int place = 0; place < m_end; ++place) {
        BoxNode* const node = NodeInRow(place);
        if (node->data != nullptr) {
            auto* const single = new BoxNode(*node);
            single->previous->next = single;
            Next(single)->previous = single;
            m_pCurrent = m_pCurrent == node ? single : m_pCurrent;
        }
    }
    m_pTail = m_pHead->previous;
    DropHint();
    FreeRow();
}

// ---- for the tree ----------------------------------------------------------------------------------

void BoxList::Add(Box* box, const Box& range) {
    ReadAhead(m_pHead);
    ReadAhead(m_pTail);
    Arrange(range);
    if (IsInRow() && m_nLength < MOST_IN_ROW) {
        AddToRow(box);
    } else {
        AddSingly(box, range);
    }
}

void BoxList::AddToRow(Box* box) {
    if (m_end == m_space) {
        MoveRow(SpaceFor(m_nLength + 1));
    }
    BoxNode* const node = NodeInRow(m_end);
    m_row[m_end / GridQuad::COUNT].quad.SetBox(m_end % GridQuad::COUNT, BoxOf(*box));
    node->data = box;
    ++m_end;
    LinkAtEnd(node);
}

void BoxList::AddSingly(Box* box, const Box& range) {
    if (IsInRow()) {
        Loosen();
    }
    auto* const node = new BoxNode(box);
    LinkAtEnd(node);
    if (IsOrdered() && !m_order->Add(node)) {
        DropOrder();
    }
    Arrange(range);
}

/// With the cursor on it, as appending leaves it.
void BoxList::LinkAtEnd(BoxNode* node) {
    LinkBefore(node, m_pHead);
    m_pTail = m_pCurrent = node;
    m_nCur = m_nLength++;
}

QnGeExtent2d* BoxList::Take(const Box* box) {
    BoxNode* node = nullptr;
    if (IsInRow()) {
        node = FindInRow(box);
    } else if (IsOrdered()) {
        node = m_order->Take(box);
    }
    if (node == nullptr) {
        node = FindAnywhere(box);
        if (node == nullptr) {
            return nullptr;
        }
        DropOrder();  // it holds the node at other coordinates
    }
    Box* const taken = node->data;
    --m_nLength;
    GoOut();
    DropHint();
    Unlink(node);
    if (IsInRow()) {
        LeavePlace(node);
    } else {
        delete node;
        if (m_nLength < FEWEST_IN_ORDER) {
            DropOrder();
        }
    }
    m_pTail = m_pHead->previous;
    return taken;
}

/// The node of the very object; where there is none, of the first that says it is the same.
BoxNode* BoxList::FindAnywhere(const Box* box) const {
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

template <class IsHit>
void BoxList::FindInRow(const Box& box, IsHit isHit, BoxResult<Box>& result) const {
    struct Met {
        Box* box;
        bool isSure;
    };
    Met met[MOST_IN_ROW];
    int count = 0;
    const GridSearch search = SearchFor(box);
    for (int group = 0; group * GridQuad::COUNT < m_end; ++group) {
        const GridQuad& quad = m_row[group].quad;
        unsigned meeting = quad.GetMeeting(search.wide);
        const unsigned sure = quad.GetOverlapping(search.exact);
        while (meeting != 0) {
            const int lane = TakeLowestLane(meeting);
            met[count] = {m_row[group].nodes[lane].data, (sure >> lane & 1U) != 0};
            if (!met[count].isSure) {
                ReadAhead(met[count].box);
            }
            ++count;
        }
    }
    for (int i = 0; i < count; ++i) {
        if (met[i].isSure || isHit(*met[i].box)) {
            AppendTo(result, met[i].box);
        }
    }
}

/// A short list is gone through from its tail, which is at hand, to ask for its boxes before they are looked at.
template <class IsHit>
void BoxList::FindLoose(IsHit isHit, BoxResult<Box>& result) const {
    if (m_nLength >= FEWEST_IN_ROW) {
        for (const BoxNode* node = Next(m_pHead); node != m_pHead; node = Next(node)) {
            if (isHit(*node->data)) {
                AppendTo(result, node->data);
            }
        }
        return;
    }
    Box* boxes[FEWEST_IN_ROW] = {};
    const BoxNode* node = m_pTail;
    for (long i = m_nLength - 1; i >= 0; --i) {
        boxes[i] = node->data;
        ReadAhead(boxes[i]);
        node = node->previous;
    }
    for (long i = 0; i < m_nLength; ++i) {
        if (isHit(*boxes[i])) {
            AppendTo(result, boxes[i]);
        }
    }
}

void BoxList::Find(double x, double y, BoxResult<Box>& result) const {
    if (IsOrdered()) {
        m_order->Find(x, y, result);
    } else if (!IsInRow()) {
        FindLoose(HoldsPoint{x, y}, result);
    } else {
        FindInRow(QnGeExtent2d(x, x, y, y), HoldsPoint{x, y}, result);
    }
}

void BoxList::Find(const Box& box, BoxResult<Box>& result) const {
    if (IsOrdered()) {
        m_order->Find(box, result);
    } else if (!IsInRow()) {
        FindLoose(MeetsBox{box}, result);
    } else {
        FindInRow(box, MeetsBox{box}, result);
    }
}

// ---- operations of lists ---------------------------------------------------------------------------

void BoxList::ReAllocate(long length) {
    Loosen();
    Base::ReAllocate(length);
}

void BoxList::SetLength(long length, bool keep) {
    Loosen();
    Base::SetLength(length, keep);
}

void BoxList::Reset() {
    Loosen();
    Base::Reset();
}

QnGeExtent2d*& BoxList::GetCurData() {
    Loosen();
    return Base::GetCurData();
}

void BoxList::SetCurData(Box* const& value) {
    Box* const box = value;  // may be an element, which moves now
    Loosen();
    Base::SetCurData(box);
}

/// Conbine goes to the first element that it takes from a list before it takes it.
void BoxList::MoveTo(long index) {
    Loosen();
    Base::MoveTo(index);
}

/// Exchanging elements gets them so and writes them.
QnGeExtent2d* const& BoxList::GetAt(long index) const {
    const_cast<BoxList*>(this)->Loosen();
    return Base::GetAt(index);
}

QnGeExtent2d*& BoxList::operator[](long index) {
    Loosen();
    return Base::operator[](index);
}

void BoxList::DelCur() {
    Loosen();
    Base::DelCur();
}

void BoxList::Sort(int (*compare)(Box* const&, Box* const&)) {
    Loosen();
    Base::Sort(compare);
}

void BoxList::Sort(bool ascending) {
    Loosen();
    Base::Sort(ascending);
}

bool BoxList::Move(long from, long to) {
    Loosen();
    return Base::Move(from, to);
}

void BoxList::Insert(long index, Box* const& value) {
    Box* const box = value;
    Base::Insert(index, box);
}

void BoxList::InsertHead(Box* const& value) {
    Box* const box = value;
    Base::InsertHead(box);
}

void BoxList::InsertAfterCur(Box* const& value) {
    Box* const box = value;  // may be an element, which moves now
    Loosen();
    Base::InsertAfterCur(box);
}

void BoxList::DetachAfterCur() {
    Loosen();
    Base::DetachAfterCur();
}

long BoxList::Conbine(Base& other, long first) {
    Loosen();
    return Base::Conbine(other, first);
}

void BoxList::ReverseList() {
    Loosen();
    Base::ReverseList();
}

void BoxList::Rotate(long from, long to) {
    Loosen();
    Base::Rotate(from, to);
}

}  // namespace qn_detail
