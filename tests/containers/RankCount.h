// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

/// The plain rank count: what the array sorts must equal whichever way they get there. Elements take the places of the
/// order (rank, original index), which for ranks without repeats is the permutation itself.
///
/// `mustFollow(a, b)` says that a, standing before b, has to come after it.
template <class T, class MustFollow>
std::vector<T> SortedByRankCount(const std::vector<T>& items, MustFollow mustFollow) {
    const std::size_t n = items.size();
    std::vector<long> rank(n);
    std::vector<std::size_t> order(n);
    for (std::size_t i = 0; i < n; ++i) {
        rank[i] = static_cast<long>(i);
        order[i] = i;
    }
    for (std::size_t i = 0; i + 1 < n; ++i) {
        for (std::size_t j = i + 1; j < n; ++j) {
            if (mustFollow(items[i], items[j])) {
                ++rank[i];
                --rank[j];
            }
        }
    }
    std::stable_sort(order.begin(), order.end(), [&rank](std::size_t a, std::size_t b) { return rank[a] < rank[b]; });
    std::vector<T> sorted;
    for (const std::size_t i : order) {
        sorted.push_back(items[i]);
    }
    return sorted;
}

/// Two values closer than the width are neither before nor after each other; such an order is not transitive.
struct TolerantValue {
    static constexpr double WIDTH = 1e-6;
    double x = 0.0;
    int tag = 0;
    bool operator>(const TolerantValue& other) const { return x - other.x > WIDTH; }
    bool operator<(const TolerantValue& other) const { return other > *this; }
    bool operator==(const TolerantValue& other) const { return !(*this > other) && !(*this < other); }
};
