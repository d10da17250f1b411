// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "spatial/detail/BoxResult.h"

namespace qn_detail {

/// Room for boxes that a search finds, which pass to an array when it is full and in the end.
///
/// Whether a box is found can seldom be foreseen, and to wait for each answer costs more than all else. So one can
/// write all candidates into the room, each over the former if that was none:
///
///     Box** const room = found.GetRoom(candidates);
///     room[count] = candidate;
///     count += isFound ? 1 : 0;  // no branch
///     found.Take(count);
template <class Box>
class FoundBoxes {
public:
    static constexpr long MOST_AT_ONCE = 128;

    explicit FoundBoxes(BoxResult<Box>& array) : m_array(array) {}
    ~FoundBoxes() { PassOn(); }
    FoundBoxes(const FoundBoxes&) = delete;
    FoundBoxes& operator=(const FoundBoxes&) = delete;

    void Append(Box* box) {
        *GetRoom(1) = box;
        Take(1);
    }
    /// Room for `count` boxes behind those found, up to MOST_AT_ONCE.
    Box** GetRoom(long count) {
        if (m_count + count > SPACE) {
            PassOn();
        }
        return m_boxes + m_count;
    }
    /// The first `count` in the room are found.
    void Take(long count) { m_count += count; }

private:
    static constexpr long SPACE = 4 * MOST_AT_ONCE;

    void PassOn() {
        for (long i = 0; i < m_count; ++i) {
            AppendTo(m_array, m_boxes[i]);
        }
        m_count = 0;
    }

    BoxResult<Box>& m_array;
    long m_count = 0;
    Box* m_boxes[SPACE];
};

}  // namespace qn_detail
