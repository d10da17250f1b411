// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cmath>
#include <cstdint>

#include "values/QnGeExtent2d.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace qn_detail {

/// A box in the numbers of a grid over a tree node's range: two bytes a coordinate, eight boxes a cache line.
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

/// The grid over a range: it turns coordinates into numbers and keeps their order, so that what meets in the plan meets
/// on the grid. What lies beyond the range gets the numbers of its border.
class Grid {
public:
    explicit Grid(const QnGeExtent2d& range)
        : m_originX(OriginOf(range.x)),
          m_originY(OriginOf(range.y)),
          m_scaleX(ScaleOf(range.x)),
          m_scaleY(ScaleOf(range.y)) {}

    /// What is no box, having a coordinate that is no number, is the empty one: no test of extents lets it through.
    GridBox BoxOf(const QnGeExtent2d& box) const {
        const bool isBox =
            !std::isnan(box.x.min) && !std::isnan(box.x.max) && !std::isnan(box.y.min) && !std::isnan(box.y.max);
        return isBox ? GridBox{X(box.x.min), Y(box.y.min), X(box.x.max), Y(box.y.max)} : GridBox::Empty();
    }

    /// The box that meets on the grid whatever the tests of extents, under their tolerance, let meet `box`.
    GridBox SearchBoxOf(const QnGeExtent2d& box) const {
        return {X(box.x.min - Margin(box.x.min, m_originX)), Y(box.y.min - Margin(box.y.min, m_originY)),
                X(box.x.max + Margin(box.x.max, m_originX)), Y(box.y.max + Margin(box.y.max, m_originY))};
    }

private:
    /// Twice the tolerance, and what rounding may take away.
    static double Margin(double v, double origin) {
        constexpr double ROUNDING = 1e-15;
        return 2.0 * g_distZero + ROUNDING * (std::fabs(v) + std::fabs(origin));
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
        return v >= MOST ? GridBox::FARTHEST : (v > -MOST ? static_cast<std::int16_t>(v) : -GridBox::FARTHEST);
    }
    std::int16_t X(double x) const { return NumberOf((x - m_originX) * static_cast<double>(m_scaleX)); }
    std::int16_t Y(double y) const { return NumberOf((y - m_originY) * static_cast<double>(m_scaleY)); }

    double m_originX;
    double m_originY;
    float m_scaleX;
    float m_scaleY;
};

/// Eight boxes of a grid side by side.
struct alignas(16) GridLanes {
    static constexpr int COUNT = 8;

    std::int16_t x0[COUNT];
    std::int16_t y0[COUNT];
    std::int16_t x1[COUNT];
    std::int16_t y1[COUNT];

    GridBox GetBox(int lane) const { return {x0[lane], y0[lane], x1[lane], y1[lane]}; }
    void SetBox(int lane, const GridBox& box) {
        x0[lane] = box.x0;
        y0[lane] = box.y0;
        x1[lane] = box.x1;
        y1[lane] = box.y1;
    }
    void Clear() {
        for (int lane = 0; lane < COUNT; ++lane) {
            SetBox(lane, GridBox::Empty());
        }
    }

    /// Bit k is set if the box in lane k meets `box`.
    unsigned GetMeeting(const GridBox& box) const;
    /// Bit k is set if the box in lane k is `box`.
    unsigned GetEqual(const GridBox& box) const;
};

#if defined(__SSE2__)

inline __m128i LoadNumbers(const std::int16_t* numbers) {
    return _mm_load_si128(reinterpret_cast<const __m128i*>(numbers));
}
inline unsigned BitsOf(__m128i lanes) {
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(lanes, _mm_setzero_si128())));
}

inline unsigned GridLanes::GetMeeting(const GridBox& box) const {
    const __m128i besideX = _mm_or_si128(_mm_cmpgt_epi16(LoadNumbers(x0), _mm_set1_epi16(box.x1)),
                                         _mm_cmplt_epi16(LoadNumbers(x1), _mm_set1_epi16(box.x0)));
    const __m128i besideY = _mm_or_si128(_mm_cmpgt_epi16(LoadNumbers(y0), _mm_set1_epi16(box.y1)),
                                         _mm_cmplt_epi16(LoadNumbers(y1), _mm_set1_epi16(box.y0)));
    constexpr unsigned ALL = (1U << COUNT) - 1U;
    return ~BitsOf(_mm_or_si128(besideX, besideY)) & ALL;
}

inline unsigned GridLanes::GetEqual(const GridBox& box) const {
    const __m128i sameX = _mm_and_si128(_mm_cmpeq_epi16(LoadNumbers(x0), _mm_set1_epi16(box.x0)),
                                        _mm_cmpeq_epi16(LoadNumbers(x1), _mm_set1_epi16(box.x1)));
    const __m128i sameY = _mm_and_si128(_mm_cmpeq_epi16(LoadNumbers(y0), _mm_set1_epi16(box.y0)),
                                        _mm_cmpeq_epi16(LoadNumbers(y1), _mm_set1_epi16(box.y1)));
    return BitsOf(_mm_and_si128(sameX, sameY));
}

#else

inline unsigned GridLanes::GetMeeting(const GridBox& box) const {
    unsigned bits = 0;
    for (int lane = 0; lane < COUNT; ++lane) {
        const bool meets = x0[lane] <= box.x1 && x1[lane] >= box.x0 && y0[lane] <= box.y1 && y1[lane] >= box.y0;
        bits |= (meets ? 1U : 0U) << lane;
    }
    return bits;
}

inline unsigned GridLanes::GetEqual(const GridBox& box) const {
    unsigned bits = 0;
    for (int lane = 0; lane < COUNT; ++lane) {
        const bool isSame = x0[lane] == box.x0 && x1[lane] == box.x1 && y0[lane] == box.y0 && y1[lane] == box.y1;
        bits |= (isSame ? 1U : 0U) << lane;
    }
    return bits;
}

#endif

}  // namespace qn_detail
