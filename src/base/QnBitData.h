// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>

#include "base/QnBaseApi.h"

/// One 32-bit flag word: the state flags of an object, the marks of a graph record, or the answer of a hit test.
///
/// Kept odd  Equality is that of the word and nothing else, and everything that derives from this class inherits it.
class QUARNBASE_API QnBitData {
public:
    QnBitData() : m_nBits(0) {}
    QnBitData(std::uint32_t bits) : m_nBits(bits) {}  // implicit, so that `hit == HIT_ON` reads as it should
    QnBitData(const QnBitData&) = default;
    QnBitData& operator=(const QnBitData&) = default;
    virtual ~QnBitData();

    bool operator==(const QnBitData& other) const { return m_nBits == other.m_nBits; }
    bool operator!=(const QnBitData& other) const { return m_nBits != other.m_nBits; }

    std::uint32_t GetBits() const { return m_nBits; }
    void SetBits(std::uint32_t bits) { m_nBits = bits; }

    /// True if all bits of `mask` are set.
    bool HasBit(std::uint32_t mask) const { return (m_nBits & mask) == mask; }
    void SetBit(std::uint32_t mask, bool on = true) { m_nBits = on ? (m_nBits | mask) : (m_nBits & ~mask); }
    void ClearBit(std::uint32_t mask) { m_nBits &= ~mask; }

    std::uint32_t m_nBits;
};

/// Bits of a hit test. A word of 0 is an answer too: not on the object, and no side to report.
///
/// A curve answers with the first three. A region answers 0 outside, 1 inside, 9 on its outline, 16 in a hole and 25 on
/// a hole's boundary.
enum : std::uint32_t {
    HIT_ON = 1,        ///< curve: on it; region: belongs to it
    HIT_IN = 2,        ///< curve: to its left, or inside a closed one
    HIT_OUT = 4,       ///< curve: to its right, or outside a closed one
    HIT_BOUNDARY = 8,  ///< region: on a boundary, always with HIT_ON
    HIT_HOLE = 16      ///< region: in a hole or on its boundary
};

/// Bits of an object's state. Two classes use the same bit, for what is their own in each.
enum : std::uint32_t {
    OBJ_CLOSED = 0x10,             ///< multi-lines: the last vertex joins the first
    OBJ_NO_BOUNDARY_INTER = 0x10,  ///< regions: boundaries must not meet
    OBJ_CLOCKWISE = 0x20           ///< circles: direction of travel
};
