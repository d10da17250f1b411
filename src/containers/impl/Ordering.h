// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <type_traits>
#include <utility>

namespace qn_detail {

/// Whether two `T` can be compared with `>`. Sort(bool) is virtual and thus compiled for every element type, also for
/// those that have no order; it asks here first and leaves such sequences as they are.
template <class T, class = void>
struct HasGreater : std::false_type {};

template <class T>
struct HasGreater<T, std::void_t<decltype(static_cast<bool>(std::declval<const T&>() > std::declval<const T&>()))>>
    : std::true_type {};

/// Types whose `>` is a strict weak order, so that every stable sort gives the same sequence. Floating point types are
/// only as long as no value is NaN.
template <class T>
inline constexpr bool IsExactlyOrdered = std::is_arithmetic_v<T> || std::is_pointer_v<T>;

/// False for a NaN, which breaks the order of its type.
template <class T>
inline bool IsOrderable(const T& value) {
    if constexpr (std::is_floating_point_v<T>) {
        return !(value != value);
    } else {
        return true;
    }
}

}  // namespace qn_detail
