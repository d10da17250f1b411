// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>

#include "spatial/detail/BoxList.h"
#include "spatial/detail/NodelessList.h"

class QnGeTINTriangle;

namespace qn_detail {

/// The list of one cell of a network's tree: triangles in order of arrival in a row of places, and each knows its own.
///
///      | t | t |   | t |   |   | t | t |   spare   |
///
/// A place whose triangle was taken stays empty until the row is tidied, which gives all triangles new places.
///
/// It is searched seldom. But where all triangles of a network are in one list, and the searches are many, going
/// through it would be most of the work; so it gets an index when it has been gone through a few times, and loses it
/// when many times its length of changes pass without a search.
///
/// Invariant  In the row or, once somebody else has worked on the list, in nodes; then the places mean nothing and all
///            goes through the nodes.
class TriangleList final : public NodelessList {
public:
    using Place = std::uint32_t;

    TriangleList() {}  // leaves the places unset
    ~TriangleList() override;

    bool IsInRow() const { return !m_hasNodes; }
    /// Appends a triangle and enters its place. The cursor is on it, as appending leaves it.
    void Add(QnGeTINTriangle* triangle, const QnGeExtent2d& range);
    /// Takes a triangle out that is here; the cursor is out then.
    void Remove(QnGeTINTriangle* triangle);
    /// Appends the boxes that hold a point; `range` is that of the cell.
    void Find(const QnGePoint& point, const QnGeExtent2d& range, QnDynArray<QnGeExtent2d*>& result);
    /// The last triangle; null if there is none.
    QnGeTINTriangle* GetLastTriangle() const;

    static void* operator new(std::size_t bytes) { return TakePiece(bytes); }
    static void operator delete(void* list, std::size_t bytes) { GivePiece(list, bytes); }

protected:
    void MakeNodes() override;

private:
    struct Index {
        BoxList boxes;
        long changes = 0;  ///< since the last search
    };

    void Tidy();
    void FreeRow();
    bool CountChange();
    void MakeIndex(const QnGeExtent2d& range);

    static constexpr Place IN_OBJECT = 3;

    QnGeTINTriangle* m_first[IN_OBJECT];  ///< the row of most lists
    QnGeTINTriangle** m_row = m_first;
    Place m_space = IN_OBJECT;
    Place m_end = 0;  ///< behind the last place in use
    std::unique_ptr<Index> m_index;
    std::uint32_t m_searches = 0;  ///< without an index
    bool m_hasNodes = false;
};

}  // namespace qn_detail
