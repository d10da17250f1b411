// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <typeinfo>

#include "containers/QnList.h"
#include "spatial/detail/BoxOrder.h"
#include "spatial/detail/BoxResult.h"
#include "spatial/detail/GridBox.h"
#include "spatial/detail/ReadAhead.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

/// The list that a quad tree makes for a tree node's boxes: a plain list to everyone else, in which the tree finds
/// boxes without going from node to node and from there to boxes all over the memory.
///
/// See  BoxList.cpp for how it is kept
class BoxList final : public QnList<QnGeExtent2d*>, private Grid {
    using Base = QnList<QnGeExtent2d*>;
    using Box = QnGeExtent2d;

public:
    BoxList() : m_row(nullptr) {}
    ~BoxList() override;
    BoxList(const BoxList&) = delete;
    BoxList& operator=(const BoxList&) = delete;

    /// The list as a BoxList; null if a caller made it.
    static BoxList* From(Base* list) {
        return &typeid(*list) == &typeid(BoxList) ? static_cast<BoxList*>(list) : nullptr;
    }

    // ---- for the tree: `range` is that of the tree node ------------------------------------------

    /// Appends a box.
    void Add(Box* box, const Box& range);
    /// Takes the element out that is the same as `box` and answers it; null if there is none.
    Box* Take(const Box* box);
    /// Appends the boxes that hold a point, or meet a box, in order.
    void Find(double x, double y, BoxResult<Box>& result) const;
    void Find(const Box& box, BoxResult<Box>& result) const;

    /// Asks for what a search will read first.
    void ReadNodesAhead() const {
        constexpr int ENOUGH = 4;
        for (int group = 0; group * GridQuad::COUNT < m_end && group < ENOUGH; ++group) {
            ReadAhead(m_row + group);
        }
        if (m_space == 0) {
            ReadAhead(m_pTail);
        }
    }

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* list, std::size_t bytes) { GivePiece(list, bytes); }

    // ---- operations of lists: all that write, or go where writing starts --------------------------
protected:
    void ReAllocate(long length) override;

public:
    void SetLength(long length, bool keep) override;
    void Reset() override;
    Box*& GetCurData() override;
    void SetCurData(Box* const& value) override;
    void MoveTo(long index) override;
    Box* const& GetAt(long index) const override;
    Box*& operator[](long index) override;
    void Insert(long index, Box* const& value) override;
    void InsertHead(Box* const& value) override;
    void DelCur() override;
    void Sort(int (*compare)(Box* const&, Box* const&)) override;
    void Sort(bool ascending) override;
    bool Move(long from, long to) override;
    void InsertAfterCur(Box* const& value) override;
    void DetachAfterCur() override;
    long Conbine(Base& other, long first) override;
    void ReverseList() override;
    void Rotate(long from, long to) override;

    using Base::operator[];

private:
    static constexpr int MOST_IN_ROW = 96;      ///< a longer list is ordered
    static constexpr int FEWEST_IN_ROW = 9;     ///< a shorter one stays loose
    static constexpr int FEWEST_IN_ORDER = 48;  ///< a shorter one goes back into a row

    /// Four places of a row: boxes on the grid, and the list nodes themselves. The last group of a row may end early.
    struct Group {
        GridQuad quad;
        BoxNode nodes[GridQuad::COUNT];  ///< without a box where the place is empty
    };

    static constexpr short IS_ORDERED = -1;
    bool IsInRow() const { return m_space > 0; }
    bool IsOrdered() const { return m_space == IS_ORDERED; }

    static int SpaceFor(long length);
    static std::size_t BytesOf(int space);
    static Group* MakeRow(int space);
    int PlaceOf(const BoxNode* node) const;
    BoxNode* NodeInRow(int place) const;
    void PutInRow(int place, const GridBox& box, BoxNode* node);
    void MoveRow(int space);
    void FreeRow();
    BoxNode* FindInRow(const Box* box) const;
    template <class IsHit>
    void FindInRow(const Box& box, IsHit isHit, BoxResult<Box>& result) const;
    template <class IsHit>
    void FindLoose(IsHit isHit, BoxResult<Box>& result) const;
    void LeavePlace(const BoxNode* node);

    void Arrange(const Box& range);
    void Loosen();
    void DropOrder();
    void AddToRow(Box* box);
    void AddSingly(Box* box, const Box& range);
    void LinkAtEnd(BoxNode* node);
    BoxNode* FindAnywhere(const Box* box) const;

    // The grid is that of the row, and a base so that these two take what it leaves of its last eight bytes: lists come
    // by the hundred thousand.
    short m_space = 0;  ///< places of the row, 0 if there is none; or IS_ORDERED
    short m_end = 0;    ///< behind the last place in use
    union {
        Group* m_row;
        BoxOrder* m_order;
    };
};

}  // namespace qn_detail
