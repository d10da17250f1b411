// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstdint>

#include "containers/detail/PodArray.h"
#include "values/QnGeExtent2d.h"

namespace qn_detail {

/// What a search in one list found. A few hits, the usual case, need no memory but this object's.
class BoxHits {
public:
    struct Hit {
        std::uint64_t arrival;  ///< in the order of the list
        QnGeExtent2d* box;
    };

    void Add(std::uint64_t arrival, QnGeExtent2d* box) {
        if (m_count < FEW) {
            m_few[m_count] = {arrival, box};
        } else {
            if (m_count == FEW) {
                MoveToMany();
            }
            m_many.Append({arrival, box});
        }
        ++m_count;
    }

    void SortByArrival() {
        if (m_count > 1) {
            std::sort(Begin(), Begin() + m_count, [](const Hit& a, const Hit& b) { return a.arrival < b.arrival; });
        }
    }

    const Hit* begin() const { return m_count <= FEW ? m_few : m_many.begin(); }
    const Hit* end() const { return begin() + m_count; }

private:
    static constexpr long FEW = 32;

    Hit* Begin() { return m_count <= FEW ? m_few : m_many.begin(); }
    void MoveToMany() {
        for (const Hit& hit : m_few) {
            m_many.Append(hit);
        }
    }

    long m_count = 0;
    Hit m_few[FEW];
    PodArray<Hit> m_many;
};

}  // namespace qn_detail
