// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

namespace qn_detail {

constexpr std::size_t CACHE_LINE = 64;

/// A size, rounded up such that an object of it in a piece touches as few cache lines as it can.
constexpr std::size_t InWholeLines(std::size_t bytes) {
    return (bytes + CACHE_LINE - 1) / CACHE_LINE * CACHE_LINE;
}

/// Asks for memory that will be read soon, so that it comes while something else is done. Null does no harm, but takes
/// longer than asking whether it is.
inline void ReadAhead(const void* memory, std::size_t bytes) {
    const auto address = reinterpret_cast<std::uintptr_t>(memory);
    __builtin_prefetch(reinterpret_cast<const void*>(address));
    if (bytes > CACHE_LINE / 2) {
        __builtin_prefetch(reinterpret_cast<const void*>(address + bytes - 1));
    }
}

template <class T>
void ReadAhead(const T* object) {
    ReadAhead(object, sizeof(T));
}

}  // namespace qn_detail
