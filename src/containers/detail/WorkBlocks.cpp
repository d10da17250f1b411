// SPDX-License-Identifier: Apache-2.0
//
// WorkBlocks.cpp: memory in which algorithms work, kept from one call to the next.
//
// A large block that is freed goes back to the system, and the next call pays for its pages anew: on long outlines that
// takes longer than the work itself. So a few large blocks are kept for whoever comes next.
//
// Invariant  At most MOST_BLOCKS blocks of together at most MOST_BYTES are kept, all of at least SMALLEST bytes.
// Why so     The library runs one call at a time, so nobody else can be at the shelf.
// Ownership  The shelf frees what it keeps when the library goes.
#include "containers/detail/WorkBlocks.h"

#include <new>

namespace qn_detail {

namespace {

constexpr std::size_t SMALLEST = std::size_t{1} << 16;
constexpr std::size_t MOST_BYTES = std::size_t{64} << 20;
constexpr std::size_t MOST_WASTE = 4;  ///< a kept block serves requests down to this fraction of its size
constexpr int MOST_BLOCKS = 32;

class Shelf {
public:
    Shelf() = default;
    Shelf(const Shelf&) = delete;
    Shelf& operator=(const Shelf&) = delete;
    ~Shelf() {
        for (int i = 0; i < m_count; ++i) {
            ::operator delete(m_blocks[i].memory);
        }
    }

    /// The smallest kept block that fits; null if there is none.
    void* Take(std::size_t& bytes) {
        int best = -1;
        for (int i = 0; i < m_count; ++i) {
            const bool fits = m_blocks[i].bytes >= bytes && m_blocks[i].bytes / MOST_WASTE <= bytes;
            if (fits && (best < 0 || m_blocks[i].bytes < m_blocks[best].bytes)) {
                best = i;
            }
        }
        if (best < 0) {
            return nullptr;
        }
        const Block taken = m_blocks[best];
        m_blocks[best] = m_blocks[--m_count];
        m_bytes -= taken.bytes;
        bytes = taken.bytes;
        return taken.memory;
    }

    /// False where the shelf is full; the block then stays the caller's.
    bool Give(void* memory, std::size_t bytes) {
        if (m_count == MOST_BLOCKS || m_bytes + bytes > MOST_BYTES) {
            return false;
        }
        m_blocks[m_count++] = {memory, bytes};
        m_bytes += bytes;
        return true;
    }

private:
    struct Block {
        void* memory;
        std::size_t bytes;
    };

    Block m_blocks[MOST_BLOCKS] = {};
    int m_count = 0;
    std::size_t m_bytes = 0;
};

Shelf& GetShelf() {
    static Shelf shelf;
    return shelf;
}

}  // namespace

void* TakeWorkBlock(std::size_t& bytes) {
    if (bytes >= SMALLEST) {
        void* const kept = GetShelf().Take(bytes);
        if (kept != nullptr) {
            return kept;
        }
    }
    return ::operator new(bytes);
}

void GiveWorkBlock(void* block, std::size_t bytes) {
    if (bytes < SMALLEST || !GetShelf().Give(block, bytes)) {
        ::operator delete(block);
    }
}

}  // namespace qn_detail
