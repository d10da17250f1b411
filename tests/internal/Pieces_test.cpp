// SPDX-License-Identifier: Apache-2.0
#include "containers/impl/Pieces.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define IS_PIECE_OF_HEAP 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define IS_PIECE_OF_HEAP 1
#endif
#endif

using qn_detail::GivePiece;
using qn_detail::TakePiece;

namespace {

/// What is written into a piece to see whether another one overlaps it.
void Sign(void* piece, std::size_t bytes, std::size_t number) {
    std::memset(piece, static_cast<int>(number % 251), bytes);
}
bool IsSigned(const void* piece, std::size_t bytes, std::size_t number) {
    const auto* const all = static_cast<const unsigned char*>(piece);
    for (std::size_t i = 0; i < bytes; ++i) {
        if (all[i] != number % 251) {
            return false;
        }
    }
    return true;
}

}  // namespace

TEST(Pieces, ManyPiecesOfManySizesDoNotOverlap) {
    const std::size_t sizes[] = {8, 24, 40, 120, 128, 192, 512, 520};
    constexpr std::size_t COUNT = 40000;  // megabytes of them: large slabs, and several regions
    std::vector<void*> pieces;
    for (std::size_t i = 0; i < COUNT; ++i) {
        const std::size_t bytes = sizes[i % 8];
        pieces.push_back(TakePiece(bytes));
        Sign(pieces.back(), bytes, i);
    }
    for (std::size_t i = 0; i < COUNT; i += 3) {
        GivePiece(pieces[i], sizes[i % 8]);
        pieces[i] = TakePiece(sizes[i % 8]);
        Sign(pieces[i], sizes[i % 8], i);
    }
    for (std::size_t i = 0; i < COUNT; ++i) {
        ASSERT_TRUE(IsSigned(pieces[i], sizes[i % 8], i)) << i;
    }
    for (std::size_t i = 0; i < COUNT; ++i) {
        GivePiece(pieces[i], sizes[i % 8]);
    }
}

#if !defined(IS_PIECE_OF_HEAP)

TEST(Pieces, PieceOfWholeCacheLinesBeginsWithOne) {
    constexpr std::size_t LINE = 64;
    for (const std::size_t bytes : {LINE, 2 * LINE, 3 * LINE}) {
        std::vector<void*> pieces;
        for (int i = 0; i < 5000; ++i) {
            pieces.push_back(TakePiece(bytes));
            ASSERT_EQ(reinterpret_cast<std::uintptr_t>(pieces.back()) % LINE, 0U) << bytes;
        }
        for (void* piece : pieces) {
            GivePiece(piece, bytes);
        }
    }
}

TEST(Pieces, OnceAllAreBackTheyComeAgainInTheSameOrder) {
    constexpr std::size_t BYTES = 456;  // of nothing else
    std::vector<void*> pieces;
    for (int i = 0; i < 10000; ++i) {
        pieces.push_back(TakePiece(BYTES));
    }
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        GivePiece(pieces[i * 7919 % pieces.size()], BYTES);
    }
    for (void* piece : pieces) {
        ASSERT_EQ(TakePiece(BYTES), piece);
    }
    for (void* piece : pieces) {
        GivePiece(piece, BYTES);
    }
}

#endif
