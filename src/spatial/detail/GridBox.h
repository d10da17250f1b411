// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>

#include "values/QnGeExtent2d.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace qn_detail {

/// A box in the numbers of a grid over a tree node's range, two bytes a coordinate.
struct GridBox {
    std::int16_t x0;
    std::int16_t y0;
    std::int16_t x1;
    std::int16_t y1;

    static constexpr std::int16_t FARTHEST = 32766;  ///< of boxes; beyond it only the empty box has corners

    /// Meets no box, and is neutral in With.
    static constexpr GridBox Empty() { return {FARTHEST + 1, FARTHEST + 1, -FARTHEST - 1, -FARTHEST - 1}; }

    GridBox With(const GridBox& o) const {
        return {o.x0 < x0 ? o.x0 : x0, o.y0 < y0 ? o.y0 : y0, o.x1 > x1 ? o.x1 : x1, o.y1 > y1 ? o.y1 : y1};
    }
    bool Holds(const GridBox& o) const { return x0 <= o.x0 && y0 <= o.y0 && x1 >= o.x1 && y1 >= o.y1; }
    /// Holds it without touching it from inside.
    bool HoldsInside(const GridBox& o) const { return x0 < o.x0 && y0 < o.y0 && x1 > o.x1 && y1 > o.y1; }
};

/// What is searched for on a grid: the box that all that may be met meets, and the box by which some need no test.
struct GridSearch {
    GridBox wide;
    GridBox exact;  ///< what meets it by more than a touch is surely met
};

/// The grid over a range: it turns coordinates into numbers and keeps their order, so that what meets in the plan meets
/// on the grid. What lies beyond the range gets the numbers of its border.
class Grid {
public:
    Grid() : Grid(QnGeExtent2d()) {}
    explicit Grid(const QnGeExtent2d& range)
        : m_originX(OriginOf(range.x)),
          m_originY(OriginOf(range.y)),
          m_scaleX(ScaleOf(range.x)),
          m_scaleY(ScaleOf(range.y)) {}

    /// What is no box, having a coordinate that is no number, is the empty one: no test of extents lets it through.
    GridBox BoxOf(const QnGeExtent2d& box) const {
        return IsBox(box) ? GridBox{NumberOf(X(box.x.min)), NumberOf(Y(box.y.min)), NumberOf(X(box.x.max)),
                                    NumberOf(Y(box.y.max))}
                          : GridBox::Empty();
    }

    /// For what meets or touches `box` by the tests of extents, under their tolerance.
    ///
    /// Tolerance  The grid keeps the order of coordinates. So a box on the grid misses nothing that was widened by more
    ///            than the tolerance before; and what is less by its number is less.
    GridSearch SearchFor(const QnGeExtent2d& box) const {
        const double x0 = X(box.x.min);
        const double y0 = Y(box.y.min);
        const double x1 = X(box.x.max);
        const double y1 = Y(box.y.max);
        const GridBox wide = {NumberOf(x0 - MarginX(box.x.min)), NumberOf(y0 - MarginY(box.y.min)),
                              NumberOf(x1 + MarginX(box.x.max)), NumberOf(y1 + MarginY(box.y.max))};
        const bool isSure = g_distZero >= 0.0 && IsBox(box);
        return {wide, isSure ? GridBox{NumberOf(x0), NumberOf(y0), NumberOf(x1), NumberOf(y1)} : GridBox::Empty()};
    }

private:
    static constexpr int HALF_BITS = 16;

    static bool IsBox(const QnGeExtent2d& box) {
        return !std::isnan(box.x.min) && !std::isnan(box.x.max) && !std::isnan(box.y.min) && !std::isnan(box.y.max);
    }
    static double OriginOf(const QnGeExtent& range) {
        return std::isfinite(range.GetCenter()) ? range.GetCenter() : 0.0;
    }
    /// The upper half of a float's bits: how many numbers a unit gets matters little, that it stays the same matters.
    static std::uint16_t ScaleOf(const QnGeExtent& range) {
        auto scale = static_cast<float>(2.0 * GridBox::FARTHEST / range.GetLength());
        scale = std::isnormal(scale) && scale > 0.0F ? scale : 1.0F;
        std::uint32_t bits = 0;
        std::memcpy(&bits, &scale, sizeof bits);
        return static_cast<std::uint16_t>(bits >> HALF_BITS);
    }
    static double Scale(std::uint16_t upperHalf) {
        const std::uint32_t bits = static_cast<std::uint32_t>(upperHalf) << HALF_BITS;
        float scale = 0.0F;
        std::memcpy(&scale, &bits, sizeof scale);
        return static_cast<double>(scale);
    }
    static std::int16_t NumberOf(double v) {
        constexpr double MOST = GridBox::FARTHEST;
        const double notAbove = v < MOST ? v : MOST;
        return static_cast<std::int16_t>(notAbove > -MOST ? notAbove : -MOST);
    }
    double X(double x) const { return (x - m_originX) * Scale(m_scaleX); }
    double Y(double y) const { return (y - m_originY) * Scale(m_scaleY); }

    /// Twice the tolerance, and what rounding may take away.
    double MarginX(double x) const { return Margin(x, m_originX) * Scale(m_scaleX); }
    double MarginY(double y) const { return Margin(y, m_originY) * Scale(m_scaleY); }
    static double Margin(double v, double origin) {
        constexpr double ROUNDING = 1e-15;
        return 2.0 * std::fabs(g_distZero) + ROUNDING * (std::fabs(v) + std::fabs(origin));
    }

    double m_originX;
    double m_originY;
    std::uint16_t m_scaleX;
    std::uint16_t m_scaleY;
};

/// Four boxes of a grid side by side.
struct alignas(16) GridQuad {
    static constexpr int COUNT = 4;

    std::int16_t low[2 * COUNT];   ///< x0 of the four, then y0
    std::int16_t high[2 * COUNT];  ///< x1, then y1

    GridBox GetBox(int lane) const { return {low[lane], low[COUNT + lane], high[lane], high[COUNT + lane]}; }
    void SetBox(int lane, const GridBox& box) {
        low[lane] = box.x0;
        low[COUNT + lane] = box.y0;
        high[lane] = box.x1;
        high[COUNT + lane] = box.y1;
    }
    void Clear() {
        for (int lane = 0; lane < COUNT; ++lane) {
            SetBox(lane, GridBox::Empty());
        }
    }

    /// Bit k is set if the box in lane k meets `box`.
    unsigned GetMeeting(const GridBox& box) const;
    /// Bit k is set if it does so by more than a touch.
    unsigned GetOverlapping(const GridBox& box) const;
    /// Bit k is set if it is `box`.
    unsigned GetEqual(const GridBox& box) const;

private:
    static constexpr unsigned ALL = (1U << COUNT) - 1U;
};

#if defined(__SSE2__)

/// The eight numbers of a quad.
inline __m128i LoadNumbers(const std::int16_t* numbers) {
    return _mm_load_si128(reinterpret_cast<const __m128i*>(numbers));
}
/// One number for each x, one for each y.
inline __m128i SpreadNumbers(std::int16_t x, std::int16_t y) {
    return _mm_unpacklo_epi64(_mm_set1_epi16(x), _mm_set1_epi16(y));
}
/// Bits of the four for x, then for y.
inline unsigned BitsOf(__m128i lanes) {
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(lanes, _mm_setzero_si128())));
}

inline unsigned GridQuad::GetMeeting(const GridBox& box) const {
    const unsigned beside = BitsOf(_mm_or_si128(_mm_cmpgt_epi16(LoadNumbers(low), SpreadNumbers(box.x1, box.y1)),
                                                _mm_cmpgt_epi16(SpreadNumbers(box.x0, box.y0), LoadNumbers(high))));
    return ~(beside | beside >> COUNT) & ALL;
}

inline unsigned GridQuad::GetOverlapping(const GridBox& box) const {
    const unsigned within = BitsOf(_mm_and_si128(_mm_cmpgt_epi16(SpreadNumbers(box.x1, box.y1), LoadNumbers(low)),
                                                 _mm_cmpgt_epi16(LoadNumbers(high), SpreadNumbers(box.x0, box.y0))));
    return within & within >> COUNT & ALL;
}

inline unsigned GridQuad::GetEqual(const GridBox& box) const {
    const unsigned same = BitsOf(_mm_and_si128(_mm_cmpeq_epi16(LoadNumbers(low), SpreadNumbers(box.x0, box.y0)),
                                               _mm_cmpeq_epi16(LoadNumbers(high), SpreadNumbers(box.x1, box.y1))));
    return same & same >> COUNT & ALL;
}

#else

inline unsigned GridQuad::GetMeeting(const GridBox& box) const {
    unsigned bits = 0;
    for (int lane = 0; lane < COUNT; ++lane) {
        const GridBox b = GetBox(lane);
        bits |= (b.x0 <= box.x1 && b.x1 >= box.x0 && b.y0 <= box.y1 && b.y1 >= box.y0 ? 1U : 0U) << lane;
    }
    return bits;
}

inline unsigned GridQuad::GetOverlapping(const GridBox& box) const {
    unsigned bits = 0;
    for (int lane = 0; lane < COUNT; ++lane) {
        const GridBox b = GetBox(lane);
        bits |= (b.x0 < box.x1 && b.x1 > box.x0 && b.y0 < box.y1 && b.y1 > box.y0 ? 1U : 0U) << lane;
    }
    return bits;
}

inline unsigned GridQuad::GetEqual(const GridBox& box) const {
    unsigned bits = 0;
    for (int lane = 0; lane < COUNT; ++lane) {
        const GridBox b = GetBox(lane);
        bits |= (b.x0 == box.x0 && b.x1 == box.x1 && b.y0 == box.y0 && b.y1 == box.y1 ? 1U : 0U) << lane;
    }
    return bits;
}

#endif

}  // namespace qn_detail
