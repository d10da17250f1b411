// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>

namespace qn_detail {

/// Asks for an object that will be read soon, so that it comes while something else is done. Null does no harm.
template <class T>
void ReadAhead(const T* object) {
    const auto address = reinterpret_cast<std::uintptr_t>(object);
    __builtin_prefetch(reinterpret_cast<const void*>(address));
    constexpr std::size_t CACHE_LINE = 64;
    if (sizeof(T) > CACHE_LINE / 2) {
        __builtin_prefetch(reinterpret_cast<const void*>(address + sizeof(T) - 1));
    }
}

}  // namespace qn_detail
