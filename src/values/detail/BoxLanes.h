// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <limits>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace qn_detail {

/// An axis-parallel box in the float frame of an index: relative to a centre near what is indexed.
struct FloatBox {
    float x0;
    float y0;
    float x1;
    float y1;

    /// Meets nothing finite; the neutral box of With.
    static constexpr FloatBox Empty() {
        constexpr float FAR_OUT = std::numeric_limits<float>::infinity();
        return {FAR_OUT, FAR_OUT, -FAR_OUT, -FAR_OUT};
    }

    /// The box grown by `d` on all sides.
    FloatBox Widened(float d) const { return {x0 - d, y0 - d, x1 + d, y1 + d}; }

    /// The hull of both.
    FloatBox With(const FloatBox& o) const {
        return {std::min(x0, o.x0), std::min(y0, o.y0), std::max(x1, o.x1), std::max(y1, o.y1)};
    }

    /// Touching counts.
    bool Meets(const FloatBox& o) const { return x0 <= o.x1 && x1 >= o.x0 && y0 <= o.y1 && y1 >= o.y0; }
};

/// Eight boxes side by side. An empty lane has its minimum at plus and its maximum at minus infinity and meets nothing.
struct alignas(16) BoxLanes {
    static constexpr int COUNT = 8;

    float x0[COUNT];
    float y0[COUNT];
    float x1[COUNT];
    float y1[COUNT];

    FloatBox GetBox(int lane) const { return {x0[lane], y0[lane], x1[lane], y1[lane]}; }

    void SetBox(int lane, const FloatBox& box) {
        x0[lane] = box.x0;
        y0[lane] = box.y0;
        x1[lane] = box.x1;
        y1[lane] = box.y1;
    }

    /// Makes all lanes empty.
    void Clear() {
        for (int lane = 0; lane < COUNT; ++lane) {
            SetBox(lane, FloatBox::Empty());
        }
    }

    /// The hull of all lanes.
    FloatBox GetHull() const {
        FloatBox hull = FloatBox::Empty();
        for (int lane = 0; lane < COUNT; ++lane) {
            hull = hull.With(GetBox(lane));
        }
        return hull;
    }

    /// Bit k is set if the box in lane k meets `box`; touching counts.
    unsigned GetMeeting(const FloatBox& box) const;
};

#if defined(__SSE2__)

inline unsigned BoxLanes::GetMeeting(const FloatBox& box) const {
    const __m128 qx0 = _mm_set1_ps(box.x0);
    const __m128 qy0 = _mm_set1_ps(box.y0);
    const __m128 qx1 = _mm_set1_ps(box.x1);
    const __m128 qy1 = _mm_set1_ps(box.y1);
    unsigned bits = 0;
    for (int half = 0; half < COUNT; half += 4) {
        const __m128 alongX =
            _mm_and_ps(_mm_cmple_ps(_mm_load_ps(x0 + half), qx1), _mm_cmpge_ps(_mm_load_ps(x1 + half), qx0));
        const __m128 alongY =
            _mm_and_ps(_mm_cmple_ps(_mm_load_ps(y0 + half), qy1), _mm_cmpge_ps(_mm_load_ps(y1 + half), qy0));
        bits |= static_cast<unsigned>(_mm_movemask_ps(_mm_and_ps(alongX, alongY))) << half;
    }
    return bits;
}

#else

inline unsigned BoxLanes::GetMeeting(const FloatBox& box) const {
    unsigned bits = 0;
    for (int lane = 0; lane < COUNT; ++lane) {
        const bool meets = x0[lane] <= box.x1 && x1[lane] >= box.x0 && y0[lane] <= box.y1 && y1[lane] >= box.y0;
        bits |= (meets ? 1U : 0U) << lane;
    }
    return bits;
}

#endif

/// The vertices of eight edges in a row, in the same frame: edge k runs from vertex k to vertex k + 1.
struct alignas(16) BlockVertices {
    static constexpr int COUNT = BoxLanes::COUNT + 1;
    static constexpr int SPACE = 12;

    float x[SPACE];
    float y[SPACE];

    /// Bit k is set if both ends of edge k lie further than `clearance` from a line, on the same side of it. The line
    /// is the one of all points p with the cross product of the unit direction and p equal to `offset`.
    unsigned GetEdgesBeside(float directionX, float directionY, float offset, float clearance) const;
};

#if defined(__SSE2__)

inline unsigned BlockVertices::GetEdgesBeside(float directionX, float directionY, float offset, float clearance) const {
    const __m128 dx = _mm_set1_ps(directionX);
    const __m128 dy = _mm_set1_ps(directionY);
    const __m128 low = _mm_set1_ps(offset - clearance);
    const __m128 high = _mm_set1_ps(offset + clearance);
    unsigned left = 0;
    unsigned right = 0;
    for (int k = 0; k < SPACE; k += 4) {
        const __m128 cross = _mm_sub_ps(_mm_mul_ps(dx, _mm_load_ps(y + k)), _mm_mul_ps(dy, _mm_load_ps(x + k)));
        left |= static_cast<unsigned>(_mm_movemask_ps(_mm_cmpgt_ps(cross, high))) << k;
        right |= static_cast<unsigned>(_mm_movemask_ps(_mm_cmplt_ps(cross, low))) << k;
    }
    return (left & left >> 1) | (right & right >> 1);
}

#else

inline unsigned BlockVertices::GetEdgesBeside(float directionX, float directionY, float offset, float clearance) const {
    unsigned left = 0;
    unsigned right = 0;
    for (int k = 0; k < COUNT; ++k) {
        const float cross = directionX * y[k] - directionY * x[k];
        left |= (cross > offset + clearance ? 1U : 0U) << k;
        right |= (cross < offset - clearance ? 1U : 0U) << k;
    }
    return (left & left >> 1) | (right & right >> 1);
}

#endif

/// Takes the lowest set bit out of `bits` and gives its position.
inline int TakeLowestLane(unsigned& bits) {
    const int lane = __builtin_ctz(bits);
    bits &= bits - 1;
    return lane;
}

}  // namespace qn_detail
