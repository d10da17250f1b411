// SPDX-License-Identifier: Apache-2.0
//
// Pieces.cpp: free lists of small objects that are made and deleted by the million, one by one.
//
// Nodes of lists and trees and the triangles of a network come and go singly. A piece that comes back is pushed on the
// free list of its size and is the next to be taken, most likely still in the cache; where the list is empty, pieces
// are cut off a slab one after the other, so that what is made together lies together. When the last piece of a size is
// back, its slabs are cut anew from the first on: a list of pieces in the order in which a large structure was deleted
// would scatter the next one all over them.
//
// Large slabs stand side by side in regions that the system may map as one page each: a structure of many megabytes is
// read all over, and would wait for the addresses of its small pages about as long as for what stands there.
//
// Invariant  A piece is a multiple of GRAIN long and lies at a multiple of the largest power of two up to CACHE_LINE
//            that divides its length. So one of a whole number of cache lines touches no more of them.
// Why so     The library runs one call at a time, so the lists need no lock.
// Ownership  Slabs stay until the program ends: what was freed serves whatever comes next of that size.
// Cost       A few instructions to take or give, no bytes beside the piece.
#include "containers/impl/Pieces.h"

#include <cstdint>
#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

#if defined(__SANITIZE_ADDRESS__)
#define QN_PIECES_FROM_HEAP 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QN_PIECES_FROM_HEAP 1
#endif
#endif

namespace qn_detail {

#if defined(QN_PIECES_FROM_HEAP)

// Under a sanitizer each object is a block of its own, so that it sees what is read after it was freed.
void* TakePiece(std::size_t bytes) {
    return ::operator new(bytes);
}

void GivePiece(void* piece, std::size_t bytes) noexcept {
    static_cast<void>(bytes);
    ::operator delete(piece);
}

#else

namespace {

constexpr std::size_t GRAIN = 8;
constexpr std::size_t MOST_BYTES = 512;  ///< larger objects come from the heap, which can make them of others
constexpr std::size_t FIRST_SLAB = 4096;
constexpr std::size_t LARGEST_SLAB = std::size_t{1} << 18;
constexpr std::size_t CACHE_LINE = 64;
constexpr std::size_t AHEAD = 1024;  ///< bytes by which fresh memory is asked for in time
constexpr std::size_t REGION = std::size_t{1} << 21;
constexpr std::size_t FEWEST_LARGE = 8;  ///< large slabs before the first region: small programs need none
static_assert(REGION % LARGEST_SLAB == 0, "regions are cut up without rest");

struct Free {
    Free* next;
};

/// The head of a slab; pieces follow it.
struct alignas(CACHE_LINE) Slab {
    Slab* next;
    std::size_t bytes;
};

/// The pieces of one length.
struct Shelf {
    Free* free;        ///< given back
    char* cut;         ///< where the next is cut off
    char* end;         ///< of the slab that is cut
    Slab* slab;        ///< the slab that is cut
    Slab* first;       ///< of all slabs
    std::size_t used;  ///< pieces that are out
};

Shelf g_shelves[MOST_BYTES / GRAIN + 1] = {};

/// The region that is cut up.
struct Region {
    char* cut;
    char* end;
    std::size_t largeSlabs;  ///< made so far, in regions or not
};

Region g_region = {};

void* AllocateAligned(std::size_t bytes, std::size_t alignment) {
    return ::operator new (bytes, std::align_val_t{alignment});
}

void MakeRegion() {
    g_region.cut = static_cast<char*>(AllocateAligned(REGION, REGION));
    g_region.end = g_region.cut + REGION;
#if defined(MADV_HUGEPAGE)
    static_cast<void>(madvise(g_region.cut, REGION, MADV_HUGEPAGE));  // a hint: small pages serve as well
#endif
}

void* TakeLargeSlab() {
    if (g_region.largeSlabs++ < FEWEST_LARGE) {
        return AllocateAligned(LARGEST_SLAB, CACHE_LINE);
    }
    if (g_region.cut == g_region.end) {
        MakeRegion();
    }
    void* const slab = g_region.cut;
    g_region.cut += LARGEST_SLAB;
    return slab;
}

/// Cuts `slab` from its beginning.
void Cut(Shelf& shelf, Slab* slab) {
    shelf.slab = slab;
    shelf.cut = reinterpret_cast<char*>(slab + 1);
    shelf.end = reinterpret_cast<char*>(slab) + slab->bytes;
}

Slab* MakeSlab(std::size_t before) {
    const std::size_t doubled = before == 0 ? FIRST_SLAB : 2 * before;
    const std::size_t bytes = doubled > LARGEST_SLAB ? LARGEST_SLAB : doubled;
    return new (bytes == LARGEST_SLAB ? TakeLargeSlab() : AllocateAligned(bytes, CACHE_LINE)) Slab{nullptr, bytes};
}

void* CutPiece(Shelf& shelf, std::size_t length) {
    while (static_cast<std::size_t>(shelf.end - shelf.cut) < length) {
        if (shelf.slab == nullptr) {
            shelf.first = MakeSlab(0);
            Cut(shelf, shelf.first);
            continue;
        }
        if (shelf.slab->next == nullptr) {
            shelf.slab->next = MakeSlab(shelf.slab->bytes);
        }
        Cut(shelf, shelf.slab->next);
    }
    void* const piece = shelf.cut;
    shelf.cut += length;
    // What comes next is written as soon as it is cut: it should be at hand by then.
    const std::uintptr_t next = reinterpret_cast<std::uintptr_t>(shelf.cut) + AHEAD;  // perhaps beyond the slab
    for (std::size_t at = 0; at < length; at += CACHE_LINE) {
        __builtin_prefetch(reinterpret_cast<const void*>(next + at), 1);
    }
    return piece;
}

}  // namespace

void* TakePiece(std::size_t bytes) {
    if (bytes > MOST_BYTES) {
        return ::operator new(bytes);
    }
    const std::size_t grains = (bytes + GRAIN - 1) / GRAIN;
    Shelf& shelf = g_shelves[grains];
    ++shelf.used;
    Free* const piece = shelf.free;
    if (piece == nullptr) {
        return CutPiece(shelf, grains * GRAIN);
    }
    shelf.free = piece->next;
    return piece;
}

void GivePiece(void* piece, std::size_t bytes) noexcept {
    if (piece == nullptr) {
        return;
    }
    if (bytes > MOST_BYTES) {
        ::operator delete(piece);
        return;
    }
    Shelf& shelf = g_shelves[(bytes + GRAIN - 1) / GRAIN];
    if (--shelf.used == 0) {
        shelf.free = nullptr;  // all are back: begin anew, in order
        Cut(shelf, shelf.first);
        return;
    }
    auto* const given = static_cast<Free*>(piece);
    given->next = shelf.free;
    shelf.free = given;
}

#endif

}  // namespace qn_detail
