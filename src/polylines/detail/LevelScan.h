// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "values/QnGePoint.h"

namespace qn_detail {

/// Where a vertex lies to a horizontal band.
enum class BandSide { BELOW, INSIDE, ABOVE };

/// A pass over the vertices of an outline that finds the edges that come near a level.
///
/// An edge whose two ends lie beyond the band on the same side is passed over, several at a time. The scan notes the
/// lowest and the highest vertex that it sees, the level included.
class LevelScan {
public:
    /// The band reaches `half` to both sides of `level`.
    LevelScan(const QnGePoint* vertices, long count, double level, double half)
        : m_vertices(vertices),
          m_count(count),
          m_low(level - half),
          m_high(level + half),
          m_lowest(level),
          m_highest(level) {}

    BandSide GetSide(long i) const {
        const double y = m_vertices[i].y;
        return y > m_high ? BandSide::ABOVE : (y < m_low ? BandSide::BELOW : BandSide::INSIDE);
    }

    /// The first vertex from `i` on that is not on `side` of the band, or the count. `side` is not INSIDE.
    long SkipRun(long i, BandSide side) { return side == BandSide::ABOVE ? SkipAbove(i) : SkipBelow(i); }

    /// Takes a vertex into account that no run passed over.
    void Note(long i) {
        m_lowest = std::min(m_lowest, m_vertices[i].y);
        m_highest = std::max(m_highest, m_vertices[i].y);
    }

    double GetLowest() const { return m_lowest; }
    double GetHighest() const { return m_highest; }

private:
    static constexpr long STEP = 4;

    long SkipAbove(long i);
    long SkipBelow(long i);

    const QnGePoint* m_vertices;
    long m_count;
    double m_low;
    double m_high;
    double m_lowest;
    double m_highest;
};

#if defined(__SSE2__)

inline __m128d LoadLevels(const QnGePoint* p) {
    return _mm_loadh_pd(_mm_load_sd(&p[0].y), &p[1].y);
}

inline double LargerOf(__m128d pair) {
    return std::max(_mm_cvtsd_f64(pair), _mm_cvtsd_f64(_mm_unpackhi_pd(pair, pair)));
}

inline double SmallerOf(__m128d pair) {
    return std::min(_mm_cvtsd_f64(pair), _mm_cvtsd_f64(_mm_unpackhi_pd(pair, pair)));
}

inline long LevelScan::SkipAbove(long i) {
    const __m128d bound = _mm_set1_pd(m_high);
    __m128d highest = _mm_set1_pd(m_highest);
    for (; i + STEP <= m_count; i += STEP) {
        const __m128d a = LoadLevels(m_vertices + i);
        const __m128d b = LoadLevels(m_vertices + i + 2);
        if (_mm_movemask_pd(_mm_and_pd(_mm_cmpgt_pd(a, bound), _mm_cmpgt_pd(b, bound))) != 3) {
            break;
        }
        highest = _mm_max_pd(highest, _mm_max_pd(a, b));
    }
    m_highest = LargerOf(highest);
    for (; i < m_count && m_vertices[i].y > m_high; ++i) {
        m_highest = std::max(m_highest, m_vertices[i].y);
    }
    return i;
}

inline long LevelScan::SkipBelow(long i) {
    const __m128d bound = _mm_set1_pd(m_low);
    __m128d lowest = _mm_set1_pd(m_lowest);
    for (; i + STEP <= m_count; i += STEP) {
        const __m128d a = LoadLevels(m_vertices + i);
        const __m128d b = LoadLevels(m_vertices + i + 2);
        if (_mm_movemask_pd(_mm_and_pd(_mm_cmplt_pd(a, bound), _mm_cmplt_pd(b, bound))) != 3) {
            break;
        }
        lowest = _mm_min_pd(lowest, _mm_min_pd(a, b));
    }
    m_lowest = SmallerOf(lowest);
    for (; i < m_count && m_vertices[i].y < m_low; ++i) {
        m_lowest = std::min(m_lowest, m_vertices[i].y);
    }
    return i;
}

#else

inline long LevelScan::SkipAbove(long i) {
    for (; i < m_count && m_vertices[i].y > m_high; ++i) {
        m_highest = std::max(m_highest, m_vertices[i].y);
    }
    return i;
}

inline long LevelScan::SkipBelow(long i) {
    for (; i < m_count && m_vertices[i].y < m_low; ++i) {
        m_lowest = std::min(m_lowest, m_vertices[i].y);
    }
    return i;
}

#endif

}  // namespace qn_detail
