// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <cstdint>

#include "values/QnGeExtent2d.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace qn_detail {

/// A box in the numbers of a grid over a tree node's range, two bytes a side: left, lower, minus right, minus upper. So
/// a box within another has no side less than the other's, and a test of two boxes compares all four in one way.
struct GridBox {
    static constexpr int SIDES = 4;
    static constexpr std::int16_t FARTHEST = 32766;  ///< of boxes; beyond it only the empty box has corners

    std::int16_t sides[SIDES];

    static GridBox Of(std::int16_t x0, std::int16_t y0, std::int16_t x1, std::int16_t y1) {
        return {{x0, y0, Minus(x1), Minus(y1)}};
    }
    /// Meets no box, and is neutral in With.
    static constexpr GridBox Empty() { return {{FARTHEST + 1, FARTHEST + 1, FARTHEST + 1, FARTHEST + 1}}; }

    int X0() const { return sides[0]; }
    int Y0() const { return sides[1]; }
    int X1() const { return -sides[2]; }
    int Y1() const { return -sides[3]; }

    /// What no side of a box that meets this one is above.
    GridBox Limits() const { return {{Minus(sides[2]), Minus(sides[3]), Minus(sides[0]), Minus(sides[1])}}; }

    GridBox With(const GridBox& o) const {
        GridBox hull = *this;
        for (int i = 0; i < SIDES; ++i) {
            hull.sides[i] = o.sides[i] < sides[i] ? o.sides[i] : sides[i];
        }
        return hull;
    }
    bool IsWithin(const GridBox& limits) const {
        return sides[0] <= limits.sides[0] && sides[1] <= limits.sides[1] && sides[2] <= limits.sides[2] &&
               sides[3] <= limits.sides[3];
    }
    bool IsBelow(const GridBox& limits) const {
        return sides[0] < limits.sides[0] && sides[1] < limits.sides[1] && sides[2] < limits.sides[2] &&
               sides[3] < limits.sides[3];
    }
    /// Holds it without touching it from inside.
    bool HoldsInside(const GridBox& o) const { return IsBelow(o); }

private:
    static std::int16_t Minus(std::int16_t side) { return static_cast<std::int16_t>(-side); }
};

/// What is searched for on a grid, as limits of the sides of boxes. It looks at four boxes at a time, two here and two
/// there: bit k of an answer is of box k.
class GridSearch {
public:
    static constexpr int COUNT = 4;
    static constexpr int PAIR = 2;

#if defined(__SSE2__)
    using Limits = __m128i;  ///< those of one box, twice
#else
    using Limits = GridBox;
#endif

    /// What has a side above `wide` is surely not met; what has all sides below `exact` surely is.
    GridSearch(const Limits& wide, const Limits& exact) : m_wide(wide), m_exact(exact) {}

    unsigned GetMeeting(const GridBox* two, const GridBox* two2) const;
    unsigned GetSure(const GridBox* two, const GridBox* two2) const;

private:
    Limits m_wide;
    Limits m_exact;
};

#if defined(__SSE2__)

inline __m128i LoadTwo(const GridBox* two) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(two));
}
/// Bit k is set if all numbers of box k equal `bits`, each 0 or all ones.
inline unsigned GetUniform(__m128i two, __m128i two2, __m128i bits) {
    const __m128i four = _mm_packs_epi16(two, two2);
    return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(_mm_cmpeq_epi32(four, bits))));
}

inline unsigned GridSearch::GetMeeting(const GridBox* two, const GridBox* two2) const {
    return GetUniform(_mm_cmpgt_epi16(LoadTwo(two), m_wide), _mm_cmpgt_epi16(LoadTwo(two2), m_wide),
                      _mm_setzero_si128());
}

inline unsigned GridSearch::GetSure(const GridBox* two, const GridBox* two2) const {
    return GetUniform(_mm_cmpgt_epi16(m_exact, LoadTwo(two)), _mm_cmpgt_epi16(m_exact, LoadTwo(two2)),
                      _mm_set1_epi32(-1));
}

#else

inline unsigned GridSearch::GetMeeting(const GridBox* two, const GridBox* two2) const {
    return (two[0].IsWithin(m_wide) ? 1U : 0U) | (two[1].IsWithin(m_wide) ? 2U : 0U) |
           (two2[0].IsWithin(m_wide) ? 4U : 0U) | (two2[1].IsWithin(m_wide) ? 8U : 0U);
}

inline unsigned GridSearch::GetSure(const GridBox* two, const GridBox* two2) const {
    return (two[0].IsBelow(m_exact) ? 1U : 0U) | (two[1].IsBelow(m_exact) ? 2U : 0U) |
           (two2[0].IsBelow(m_exact) ? 4U : 0U) | (two2[1].IsBelow(m_exact) ? 8U : 0U);
}

#endif

/// The grid over a range: it turns coordinates into numbers and keeps their order, so that what meets in the plan meets
/// on the grid. What lies beyond the range gets the numbers of its border.
class Grid {
public:
    Grid() : Grid(QnGeExtent2d()) {}
    explicit Grid(const QnGeExtent2d& range)
        : m_origin{OriginOf(range.x), OriginOf(range.y)}, m_scale{ScaleOf(range.x), ScaleOf(range.y)} {}

    /// What is no box, having a coordinate that is no number, is the empty one: no test of extents lets it through.
    GridBox BoxOf(const QnGeExtent2d& box) const {
        return IsBox(box) ? GridBox::Of(NumberOf(X(box.x.min)), NumberOf(Y(box.y.min)), NumberOf(X(box.x.max)),
                                        NumberOf(Y(box.y.max)))
                          : GridBox::Empty();
    }

    /// For what meets or touches a box by the tests of extents, under their tolerance.
    ///
    /// Tolerance  The grid keeps the order of coordinates, and so does all rounding. So what was widened by twice the
    ///            tolerance before misses nothing on the grid; and what is less by its number is less.
    GridSearch SearchFor(double xMin, double xMax, double yMin, double yMax) const;
    GridSearch SearchFor(const QnGeExtent2d& box) const {
        return SearchFor(box.x.min, box.x.max, box.y.min, box.y.max);
    }

private:
    static bool IsBox(const QnGeExtent2d& box) {
        return !std::isnan(box.x.min) && !std::isnan(box.x.max) && !std::isnan(box.y.min) && !std::isnan(box.y.max);
    }
    static double OriginOf(const QnGeExtent& range) {
        return std::isfinite(range.GetCenter()) ? range.GetCenter() : 0.0;
    }
    static float ScaleOf(const QnGeExtent& range) {
        const auto scale = static_cast<float>(2.0 * GridBox::FARTHEST / range.GetLength());
        return std::isnormal(scale) && scale > 0.0F ? scale : 1.0F;
    }
    static std::int16_t NumberOf(double v) {
        constexpr double MOST = GridBox::FARTHEST;
        const double notAbove = v < MOST ? v : MOST;
        return static_cast<std::int16_t>(notAbove > -MOST ? notAbove : -MOST);
    }
    double X(double x) const { return (x - m_origin[0]) * static_cast<double>(m_scale[0]); }
    double Y(double y) const { return (y - m_origin[1]) * static_cast<double>(m_scale[1]); }

    double m_origin[2];  ///< x, then y
    float m_scale[2];    ///< numbers to a unit: how many matters little, that they stay the same does
};

#if defined(__SSE2__)

inline GridSearch Grid::SearchFor(double xMin, double xMax, double yMin, double yMax) const {
    const __m128d origin = _mm_loadu_pd(m_origin);
    const __m128d scale = _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(m_scale))));
    const __m128d most = _mm_set1_pd(GridBox::FARTHEST);
    const __m128d least = _mm_set1_pd(-GridBox::FARTHEST);
    const __m128d sign = _mm_set1_pd(-0.0);
    const auto numberOf = [&](__m128d v) { return _mm_mul_pd(_mm_sub_pd(v, origin), scale); };
    const auto limitsOf = [&](__m128d low, __m128d high) {
        const __m128d up = _mm_max_pd(_mm_min_pd(numberOf(high), most), least);
        const __m128d down = _mm_max_pd(_mm_min_pd(_mm_xor_pd(numberOf(low), sign), most), least);
        return _mm_unpacklo_epi64(_mm_cvttpd_epi32(up), _mm_cvttpd_epi32(down));
    };
    const __m128d low = _mm_set_pd(yMin, xMin);
    const __m128d high = _mm_set_pd(yMax, xMax);
    const __m128d wider = _mm_set1_pd(2.0 * std::fabs(g_distZero));
    const __m128i limits =
        _mm_packs_epi32(limitsOf(_mm_sub_pd(low, wider), _mm_add_pd(high, wider)), limitsOf(low, high));
    const bool isSure = g_distZero >= 0.0 && _mm_movemask_pd(_mm_cmpunord_pd(low, high)) == 0;
    const __m128i none = _mm_set1_epi16(-GridBox::FARTHEST - 1);
    return GridSearch(_mm_unpacklo_epi64(limits, limits), isSure ? _mm_unpackhi_epi64(limits, limits) : none);
}

#else

inline GridSearch Grid::SearchFor(double xMin, double xMax, double yMin, double yMax) const {
    const double wider = 2.0 * std::fabs(g_distZero);
    const QnGeExtent2d box(xMin, xMax, yMin, yMax);
    const GridBox wide = GridBox::Of(NumberOf(X(xMin - wider)), NumberOf(Y(yMin - wider)), NumberOf(X(xMax + wider)),
                                     NumberOf(Y(yMax + wider)));
    const GridBox exact = g_distZero >= 0.0 ? BoxOf(box) : GridBox::Empty();
    return GridSearch(wide.Limits(), exact.Limits());
}

#endif

}  // namespace qn_detail
