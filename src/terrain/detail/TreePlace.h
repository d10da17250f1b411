// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "terrain/QnGeTINTriangle.h"

namespace qn_detail {

/// Where a triangle stands in the tree of its network.
struct TreePlace {
    using Cell = QnGeQuadTree2d;
    static constexpr std::uint32_t NO_PLACE = 0xFFFFFFFFU;

    /// Null if it is not in the tree.
    static Cell* CellOf(const QnGeTINTriangle& triangle) { return triangle.m_cell.value; }
    /// In the row of the cell's list; NO_PLACE for the single box of a leaf.
    static std::uint32_t PlaceOf(const QnGeTINTriangle& triangle) { return triangle.m_place.value; }

    static void SetCell(QnGeTINTriangle& triangle, Cell* cell) { triangle.m_cell.value = cell; }
    static void SetPlace(QnGeTINTriangle& triangle, std::uint32_t place) { triangle.m_place.value = place; }
};

}  // namespace qn_detail
