// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <typeinfo>

#include "containers/QnList.h"
#include "spatial/detail/BoxOrder.h"
#include "spatial/detail/FoundBoxes.h"
#include "spatial/detail/GridBox.h"
#include "spatial/detail/NodelessList.h"
#include "spatial/detail/ReadAhead.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

/// The list that a quad tree makes for a tree node's boxes: a plain list to everyone else, in which the tree finds
/// boxes without going from node to node and from there to boxes all over the memory.
///
/// See  BoxList.cpp for how it is kept
class BoxList final : public NodelessList, private Grid {
    using Base = QnList<QnGeExtent2d*>;
    using Box = QnGeExtent2d;

public:
    BoxList() = default;
    ~BoxList() override;

    /// The list as a BoxList; null if a caller made it.
    static BoxList* From(Base* list) {
        return &typeid(*list) == &typeid(BoxList) ? static_cast<BoxList*>(list) : nullptr;
    }

    // ---- for the tree: `range` is that of the tree node ------------------------------------------

    /// Appends a box.
    void Add(Box* box, const Box& range);
    /// Takes the element out that is the same as `box` and answers it; null if there is none. The cursor is on the one
    /// before it, or out where a long list is not gone through.
    Box* Take(const Box* box);
    /// Appends the boxes that hold a point, or meet a box, in order.
    void Find(double x, double y, FoundBoxes<Box>& result) const;
    void Find(const Box& box, FoundBoxes<Box>& result) const;
    void Find(double x, double y, BoxResult<Box>& result) const {
        FoundBoxes<Box> found(result);
        Find(x, y, found);
    }

    static void* operator new(std::size_t bytes) { return TakePiece(InWholeLines(bytes)); }
    static void operator delete(void* list, std::size_t bytes) { GivePiece(list, InWholeLines(bytes)); }

    // ---- operations of lists that only go through it, by which a row stays ------------------------
    void MoveToFirst() override;
    void MoveToNext() override;
    void MoveToPre() override;
    void MoveToLast() override;
    Box* const* GetFirst() const override;
    Box* const* GetNext(Box* const* element) const override;
    Box* const* GetPre(Box* const* element) const override;
    Box* const* GetLast() const override;

protected:
    void MakeNodes() override;

private:
    static constexpr long MOST_IN_ROW = 96;      ///< a longer list is ordered
    static constexpr long FEWEST_IN_ORDER = 48;  ///< a shorter one goes back into a row

    enum class State : short { LOOSE, IN_ROW, ORDERED };

    /// Two places of a row.
    struct Pair {
        union {
            GridBox boxes[GridSearch::PAIR];
            BoxNode* nodes[GridSearch::PAIR];  ///< what the elements of a row that was left have become
        };
        Box* data[GridSearch::PAIR];
    };

    static constexpr int IN_OBJECT = GridSearch::PAIR;
    bool IsInRow() const { return m_state == State::IN_ROW; }
    bool IsOrdered() const { return m_state == State::ORDERED; }

    static int SpaceFor(long length);
    static std::size_t BytesOf(int space);
    const Pair* GetRow() const { return m_space == IN_OBJECT ? &m_pair : m_row; }
    Pair* GetRow() { return m_space == IN_OBJECT ? &m_pair : m_row; }
    Box* const* ElementAt(long place) const;
    bool IsOfRow(Box* const* element) const;
    long PlaceOf(Box* const* element) const;
    Box* const* ElementNow(Box* const* element) const;
    long FindPlace(const Box* box) const;
    void MakeRow(int space);
    void MoveRow(int space);
    void FreeRow();
    void PutInRow(long place, const GridBox& box, Box* data);
    Box* TakeFromRow(long place);
    long IndexOf(const BoxNode* node) const;
    Box* TakeNode(BoxNode* node);

    void Arrange(const Grid& grid);
    void Order(const Box& range);
    void DropOrder();
    void AddToOrder(Box* box);
    BoxNode* FindNode(const Box* box) const;
    template <class IsHit>
    void FindInRow(const GridSearch& search, IsHit isHit, FoundBoxes<Box>& result) const;
    template <class IsHit>
    void FindInNodes(IsHit isHit, FoundBoxes<Box>& result) const;

    // The grid is that of the row.
    State m_state = State::LOOSE;
    short m_space = 0;  ///< places of the row, or of that which was left; 0 if there is none
    union {
        Pair m_pair;  ///< the row if it has no more places
        Pair* m_row = nullptr;
        BoxOrder* m_order;
    };
};

}  // namespace qn_detail
