// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGePoint.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace qn_detail {

/// The ends of what a tree takes along one axis.
inline double LowOf(const QnGeExtent& range) {
    return range.min;
}
inline double HighOf(const QnGeExtent& range) {
    return range.max;
}
inline double LowOf(double place) {
    return place;
}
inline double HighOf(double place) {
    return place;
}

/// Whether a node's range can be divided on. Cells down to the tolerance catch all that lies within them in their band,
/// so this matters only for what lies outside the range and would go down for ever.
inline bool CanDivide(const QnGeExtent& range, double centre) {
    return IsGreater(range.GetLength() / 2.0, g_distZero) && range.min < centre && centre < range.max;
}

constexpr int NO_SECTOR = -1;
constexpr int QUARTERS = 4;

/// Whether a point lies above another by more than the tolerance: bit 0 along x, bit 1 along y.
inline unsigned GetAbove(double x, double y, double otherX, double otherY) {
#if defined(__SSE2__)
    const __m128d gap = _mm_sub_pd(_mm_set_pd(y, x), _mm_set_pd(otherY, otherX));
    return static_cast<unsigned>(_mm_movemask_pd(_mm_cmpgt_pd(gap, _mm_set1_pd(g_distZero))));
#else
    return (IsGreater(x - otherX, g_distZero) ? 1U : 0U) | (IsGreater(y - otherY, g_distZero) ? 2U : 0U);
#endif
}

/// The number of the quarter right above the centre (0), left above (1), left below (2), right below (3). A box is
/// above or below the centre along an axis only if it is so as a whole, by more than the tolerance.
///
/// Cost  One branch: on the way down nobody can foresee more than that it goes on.
template <class Item>
int QuarterOf(const Item& item, double centreX, double centreY) {
    constexpr unsigned BOTH = 3;
    const unsigned above = GetAbove(LowOf(item.x), LowOf(item.y), centreX, centreY);
    const unsigned below = GetAbove(centreX, centreY, HighOf(item.x), HighOf(item.y));
    if ((above | below) != BOTH) {
        return NO_SECTOR;
    }
    const unsigned isAboveInX = above & 1U;
    const unsigned isAboveInY = above >> 1U;
    return static_cast<int>(2U ^ isAboveInX ^ 3U * isAboveInY);
}

/// The number of the eighth: quarters 0 to 3 above, 4 to 7 below.
template <class Item>
int EighthOf(const Item& item, double centreX, double centreY, double centreZ) {
    const int quarter = QuarterOf(item, centreX, centreY);
    if (quarter == NO_SECTOR || IsGreater(LowOf(item.z) - centreZ, g_distZero)) {
        return quarter;
    }
    return IsLess(HighOf(item.z) - centreZ, g_distZero) ? quarter + QUARTERS : NO_SECTOR;
}

/// The half of a range that a sector takes.
inline QnGeExtent HalfOf(const QnGeExtent& range, double centre, bool isUpper) {
    return isUpper ? QnGeExtent(centre, range.max) : QnGeExtent(range.min, centre);
}
inline QnGeExtent HalfInX(const QnGeExtent2d& range, double centre, int sector) {
    const int quarter = sector % QUARTERS;
    return HalfOf(range.x, centre, quarter == 0 || quarter == 3);
}
inline QnGeExtent HalfInY(const QnGeExtent2d& range, double centre, int sector) {
    return HalfOf(range.y, centre, sector % QUARTERS < 2);
}

inline QnGeExtent RangeAbout(double centre, double half) {
    return QnGeExtent(centre - half, centre + half);
}

/// As operator& of ranges.
inline void CutRange(const QnGeExtent& range, const QnGeExtent& by, QnGeExtent& cut) {
    cut.min = by.min > range.min ? by.min : range.min;
    cut.max = by.max < range.max ? by.max : range.max;
}

/// How a tree of the plan divides its nodes.
template <class Tree>
struct PlanSectors {
    using Box = QnGeExtent2d;
    static constexpr int COUNT = QUARTERS;

    static bool IsDivisible(const Tree& node) {
        return CanDivide(node.x, node.CenterX) && CanDivide(node.y, node.CenterY);
    }
    /// The child that a box or a point belongs to, whether or not the node can be divided; NO_SECTOR if it stays here.
    template <class Item>
    static int Of(const Tree& node, const Item& item) {
        return QuarterOf(item, node.CenterX, node.CenterY);
    }
    static Box RangeOf(const Tree& node, int sector) {
        return Box(HalfInX(node, node.CenterX, sector), HalfInY(node, node.CenterY, sector));
    }
    static void SetRange(Tree& node, const Box& range) {
        node.SetRange(range.x.min, range.x.max, range.y.min, range.y.max);
    }
    static QnGePoint CentreOf(const Tree& node) { return QnGePoint(node.CenterX, node.CenterY); }
    static QnGePoint MiddleOf(const Box& box) { return QnGePoint(box.x.GetCenter(), box.y.GetCenter()); }
    static Box BoxAbout(const QnGePoint& middle, double half) {
        return Box(RangeAbout(middle.x, half), RangeAbout(middle.y, half));
    }
    static double LongestButX(const Box& box) { return box.GetHeight(); }
    static bool Holds(const Box& box, const QnGePoint& p) { return box.IsInclude(p.x, p.y); }
    /// Makes `cut` the overlap of a box with a cell; false if there is none.
    static bool Cut(const Box& box, const Tree& cell, Box& cut) {
        CutRange(box.x, cell.x, cut.x);
        CutRange(box.y, cell.y, cut.y);
        return cut.IsValid();
    }
};

/// How a tree of space divides its nodes.
template <class Tree>
struct SpaceSectors {
    using Box = QnGeExtent3d;
    static constexpr int COUNT = 2 * QUARTERS;

    static bool IsDivisible(const Tree& node) {
        return CanDivide(node.x, node.CenterX) && CanDivide(node.y, node.CenterY) && CanDivide(node.z, node.CenterZ);
    }
    template <class Item>
    static int Of(const Tree& node, const Item& item) {
        return EighthOf(item, node.CenterX, node.CenterY, node.CenterZ);
    }
    static Box RangeOf(const Tree& node, int sector) {
        return Box(HalfInX(node, node.CenterX, sector), HalfInY(node, node.CenterY, sector),
                   HalfOf(node.z, node.CenterZ, sector < QUARTERS));
    }
    static void SetRange(Tree& node, const Box& range) {
        node.SetRange(range.x.min, range.x.max, range.y.min, range.y.max, range.z.min, range.z.max);
    }
    static QnGePoint CentreOf(const Tree& node) { return QnGePoint(node.CenterX, node.CenterY, node.CenterZ); }
    static QnGePoint MiddleOf(const Box& box) {
        return QnGePoint(box.x.GetCenter(), box.y.GetCenter(), box.z.GetCenter());
    }
    static Box BoxAbout(const QnGePoint& middle, double half) {
        return Box(RangeAbout(middle.x, half), RangeAbout(middle.y, half), RangeAbout(middle.z, half));
    }
    static double LongestButX(const Box& box) {
        return box.GetHeight() > box.GetDepth() ? box.GetHeight() : box.GetDepth();
    }
    static bool Holds(const Box& box, const QnGePoint& p) { return box.IsInclude(p.x, p.y, p.z); }
    static bool Cut(const Box& box, const Tree& cell, Box& cut) {
        CutRange(box.x, cell.x, cut.x);
        CutRange(box.y, cell.y, cut.y);
        CutRange(box.z, cell.z, cut.z);
        return cut.IsValid();
    }
};

}  // namespace qn_detail
