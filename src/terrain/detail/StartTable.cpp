// SPDX-License-Identifier: Apache-2.0
#include "terrain/detail/StartTable.h"

#include <cmath>
#include <cstdint>

namespace qn_detail {

namespace {

constexpr long NODES_TO_CELL = 2;
constexpr long ENTRIES_TO_CELL = 2;

/// The cell along one axis; what lies far beside the range, or is no number, is in cell 0.
std::uint64_t CellOf(double offset, double scale, long most) {
    const double at = offset * scale;
    return at > 0.0 && at < static_cast<double>(most) ? static_cast<std::uint64_t>(at) : 0;
}

}  // namespace

void StartTable::Reset(const QnGeExtent2d& range, long nodeNum) {
    long cellNum = 1;
    while (cellNum < nodeNum / NODES_TO_CELL) {
        cellNum *= 2;
    }
    m_entries.Clear();
    m_entryNum = ENTRIES_TO_CELL * cellNum;
    m_x = range.x.min;
    m_y = range.y.min;
    m_scale = static_cast<double>(cellNum) / (range.GetLength() + range.GetHeight());
}

long StartTable::IndexOf(const QnGePoint& place) const {
    constexpr std::uint64_t ROW = 0x9E3779B97F4A7C15ULL;  // odd, without a pattern: rows share few entries
    const std::uint64_t column = CellOf(place.x - m_x, m_scale, m_entryNum);
    const std::uint64_t row = CellOf(place.y - m_y, m_scale, m_entryNum);
    return static_cast<long>((column + row * ROW) & static_cast<std::uint64_t>(m_entryNum - 1));
}

void StartTable::Keep(const QnGePoint& place, QnGeTINTriangle* triangle) {
    if (m_entryNum == 0) {
        return;
    }
    if (m_entries.IsEmpty()) {
        m_entries = PodArray<Entry>(m_entryNum);
        for (Entry& entry : m_entries) {
            entry = {0.0, 0.0, nullptr};
        }
    }
    m_entries[IndexOf(place)] = {place.x, place.y, triangle};
}

QnGeTINTriangle* StartTable::Get(const QnGePoint& place) const {
    if (m_entries.IsEmpty()) {
        return nullptr;
    }
    constexpr double NEAR = 2.0;  // in cells
    const Entry& entry = m_entries[IndexOf(place)];
    const double distance = std::fabs(entry.x - place.x) + std::fabs(entry.y - place.y);
    return distance * m_scale < NEAR ? entry.triangle : nullptr;
}

}  // namespace qn_detail
