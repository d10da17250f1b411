// SPDX-License-Identifier: Apache-2.0
#pragma once

// RankSort.h: how arrays sort.
//
// Every pair of elements is compared once, and each element counts how many of the others come before it. That count
// is the index where it belongs: elements that compare equal keep their order, and the permutation needs one spare
// element.
//
// Phases     1  CountRanks     rank[i] from all comparisons of i with the elements behind it.
//            2  RanksToPlaces  ranks become places; equal ranks are told apart by the old index.
//            3  Permute        follow the cycles of the places, moving each element once.
// Invariant  0 <= rank[i] < n after phase 1; place is a permutation of 0 .. n - 1 after phase 2.
// Why so     A tolerant `>` is not transitive: of three points a little less than a tolerance apart, neighbours are
//            equal and the outer two are not. The ranks are then no permutation, and following them would lose
//            elements. Phase 2 leaves a permutation as it is and repairs anything else.
// Cost       n * n / 2 comparisons. Types with an exact order take std::stable_sort instead, with the same result.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "containers/impl/Ordering.h"

namespace qn_detail {

/// `after(a, b)` tells whether `a`, which stands in front of `b`, belongs behind it.
template <class T, class After>
void CountRanks(const T* data, long n, After after, long* rank) {
    for (long i = 0; i < n; ++i) {
        rank[i] = i;
    }
    for (long i = 0; i < n - 1; ++i) {
        for (long j = i + 1; j < n; ++j) {
            if (after(data[i], data[j])) {
                ++rank[i];
                --rank[j];
            }
        }
    }
}

/// Numbers the elements by (rank, index): a counting sort over the ranks.
inline void RanksToPlaces(const long* rank, long n, long* place) {
    const auto counts = std::make_unique<long[]>(static_cast<std::size_t>(n) + 1);
    long* next = counts.get();  // next[r]: the place for the next element of rank r
    for (long i = 0; i < n; ++i) {
        ++next[rank[i] + 1];
    }
    for (long r = 0; r < n; ++r) {
        next[r + 1] += next[r];
    }
    for (long i = 0; i < n; ++i) {
        place[i] = next[rank[i]]++;
    }
}

/// Moves element i to place[i]. `place` is used up: it ends as 0 .. n - 1.
template <class T>
void Permute(T* data, long n, long* place) {
    for (long start = 0; start < n; ++start) {
        if (place[start] == start) {
            continue;
        }
        T carried = std::move(data[start]);
        long target = place[start];
        place[start] = start;
        while (target != start) {
            std::swap(carried, data[target]);
            const long following = place[target];
            place[target] = target;
            target = following;
        }
        data[start] = std::move(carried);
    }
}

/// Stable sort by rank count. `after(a, b)`: a must come after b.
template <class T, class After>
void RankSort(T* data, long n, After after) {
    if (n < 2) {
        return;
    }
    const auto rank = std::make_unique<long[]>(static_cast<std::size_t>(n));
    const auto place = std::make_unique<long[]>(static_cast<std::size_t>(n));
    CountRanks(data, n, after, rank.get());
    RanksToPlaces(rank.get(), n, place.get());
    Permute(data, n, place.get());
}

/// Sorts by `>` of the elements alone, upward or downward, stable both ways. Without a `>` the order stays.
template <class T>
void SortByGreater(T* data, long n, bool ascending) {
    if constexpr (HasGreater<T>::value) {
        if constexpr (IsExactlyOrdered<T>) {
            if (std::all_of(data, data + n, IsOrderable<T>)) {
                if (ascending) {
                    std::stable_sort(data, data + n, [](const T& x, const T& y) { return y > x; });
                } else {
                    std::stable_sort(data, data + n, [](const T& x, const T& y) { return x > y; });
                }
                return;
            }
        }
        if (ascending) {
            RankSort(data, n, [](const T& x, const T& y) { return x > y; });
        } else {
            RankSort(data, n, [](const T& x, const T& y) { return y > x; });
        }
    } else {
        static_cast<void>(data);
        static_cast<void>(n);
        static_cast<void>(ascending);
    }
}

}  // namespace qn_detail
