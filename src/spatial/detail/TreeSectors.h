// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGePoint.h"

namespace qn_detail {

/// Where something lies against the centre of a node along one axis. BAND: across it or within g_distZero of it.
enum class Side { BELOW, BAND, ABOVE };

/// A range is above or below the centre only if it is so as a whole, by more than the tolerance.
inline Side SideOf(double low, double high, double centre) {
    if (IsGreater(low - centre, g_distZero)) {
        return Side::ABOVE;
    }
    return IsLess(high - centre, g_distZero) ? Side::BELOW : Side::BAND;
}
inline Side SideOf(const QnGeExtent& range, double centre) {
    return SideOf(range.min, range.max, centre);
}
inline Side SideOf(double place, double centre) {
    return SideOf(place, place, centre);
}

/// Whether a node's range can be divided on. Cells down to the tolerance catch all that lies within them in their band,
/// so this matters only for what lies outside the range and would go down for ever.
inline bool CanDivide(const QnGeExtent& range, double centre) {
    return IsGreater(range.GetLength() / 2.0, g_distZero) && range.min < centre && centre < range.max;
}

constexpr int NO_SECTOR = -1;
constexpr int QUARTERS = 4;

/// The number of the quarter right above (0), left above (1), left below (2), right below (3).
inline int QuarterOf(Side x, Side y) {
    if (x == Side::BAND || y == Side::BAND) {
        return NO_SECTOR;
    }
    if (x == Side::ABOVE) {
        return y == Side::ABOVE ? 0 : 3;
    }
    return y == Side::ABOVE ? 1 : 2;
}

/// The number of the eighth: quarters 0 to 3 above, 4 to 7 below.
inline int EighthOf(Side x, Side y, Side z) {
    const int quarter = QuarterOf(x, y);
    if (quarter == NO_SECTOR || z == Side::BAND) {
        return NO_SECTOR;
    }
    return z == Side::ABOVE ? quarter : quarter + QUARTERS;
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
        return QuarterOf(SideOf(item.x, node.CenterX), SideOf(item.y, node.CenterY));
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
        return EighthOf(SideOf(item.x, node.CenterX), SideOf(item.y, node.CenterY), SideOf(item.z, node.CenterZ));
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
