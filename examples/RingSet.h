// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "frame/QnGeObjList.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "regions/QnGePolygon2d.h"
#include "support/DataFiles.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeMatrix.h"

// Polygons with holes and of many parts, put together from rings: with +1 for an outline and -1 for a hole, a set
// of points is the sum of its signed rings. So the booleans of plain polygons are enough to measure any of them.

/// One ring as a polygon, counter-clockwise whether it bounds a part or a hole.
struct SignedRing {
    QnGePolygon2d polygon;
    QnGeExtent2d box;
    double sign;
};

using RingSet = std::vector<SignedRing>;

inline RingSet ReadRings(const std::string& path, double dx, double dy) {
    QnGeMatrix move;
    move.CreateMoveMatrix(dx, dy);
    RingSet rings;
    for (const data_files::Polygon& polygon : data_files::ReadPolygons(path)) {
        for (const QnGeMLine2d& ring : polygon.rings) {
            const bool isOutline = &ring == &polygon.rings.front();
            rings.push_back({QnGePolygon2d(ring, true), QnGeExtent2d(), isOutline ? 1.0 : -1.0});
            rings.back().polygon.TransformBy(move);
            rings.back().polygon.GetExtent2d(rings.back().box);
        }
    }
    return rings;
}

inline double AreaOf(const RingSet& rings) {
    double area = 0.0;
    for (const SignedRing& ring : rings) {
        area += ring.sign * ring.polygon.Area();
    }
    return area;
}

inline double AreaOf(const QnGeObjList& regions) {
    double area = 0.0;
    for (long i = 0; i < regions.GetLength(); ++i) {
        area += static_cast<const QnGeRegion2d*>(regions.GetAt(i))->Area();
    }
    return area;
}

/// The box of a set without its specks: of the rings that make up at least a thousandth of it.
inline QnGeExtent2d MainBox(const RingSet& rings) {
    constexpr double SPECK = 1e-3;
    const double least = SPECK * AreaOf(rings);
    QnGeExtent2d box;
    bool isFirst = true;
    for (const SignedRing& ring : rings) {
        if (ring.polygon.Area() >= least) {
            box = isFirst ? ring.box : box + ring.box;
            isFirst = false;
        }
    }
    return box;
}

/// The area that two sets have in common. The intersections of their rings are appended to `pieces`.
///
///     area(A and B) = sum over all pairs of rings of sign * sign * area(ring of A and ring of B)
inline double CommonArea(const RingSet& a, const RingSet& b, QnGeObjList& pieces) {
    double area = 0.0;
    for (const SignedRing& ringA : a) {
        for (const SignedRing& ringB : b) {
            if (!ringA.box.IsInsersectWith(ringB.box)) {
                continue;
            }
            QnGeObjList common;
            ringA.polygon.Inter(ringB.polygon, common);
            area += ringA.sign * ringB.sign * AreaOf(common);
            pieces.Conbine(common, 0);
        }
    }
    return area;
}

/// The outlines of a set as one region to draw.
inline QnGeGeneralRegion2d Drawing(const RingSet& rings) {
    QnGeObjList outlines;
    for (const SignedRing& ring : rings) {
        outlines.Append(ring.polygon.Outline().Clone());
    }
    return QnGeGeneralRegion2d(outlines, false);
}

/// The same for intersections of rings. Filled by the even-odd rule they may lie over each other: what the two
/// sets have in common is exactly what an odd number of them covers.
inline QnGeGeneralRegion2d Drawing(const QnGeObjList& pieces) {
    QnGeObjList outlines;
    for (long i = 0; i < pieces.GetLength(); ++i) {
        outlines.Append(static_cast<const QnGePolygon2d*>(pieces.GetAt(i))->Outline().Clone());
    }
    return QnGeGeneralRegion2d(outlines, false);
}
