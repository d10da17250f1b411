// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "base/QnDynArrayStream.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "regions/QnGePolygon2d.h"
#include "support/ExactArea.h"
#include "support/ExpectGeo.h"
#include "support/LatticePolygons.h"
#include "support/PolygonPairs.h"
#include "support/RandomSource.h"
#include "support/TextGeo.h"

/// What the tests of regions share: regions from text, rings of results, a structure checker, random pairs.
namespace region_testing {

using exact_area::Areas;
using exact_area::Measure;
using polygon_pairs::MakeOutline;
using polygon_pairs::Ring;
using Rings = std::vector<Ring>;

/// Cases of one property.
constexpr int PROPERTY_CASES = 10000;
/// How far areas may be off, as a part of the operands' own.
constexpr double AREA_NEAR = 1e-9;

inline const double INF = std::numeric_limits<double>::infinity();
inline const double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

// ---- objects ---------------------------------------------------------------------------------------

/// "0,0 4,0 4,4" as a polygon; with " | " and a hole it must be asked for as a general one.
inline QnGePolygon2d Polygon(const std::string& ring) {
    return *ParseGeoAs<QnGePolygon2d>("region " + ring);
}
inline QnGeGeneralPolygon2d GeneralPolygon(const std::string& rings) {
    return *ParseGeoAs<QnGeGeneralPolygon2d>("region " + rings);
}
/// "circle 0,0 r5 | mline 0,0 0,1 1,1" as a general region.
inline QnGeGeneralRegion2d GeneralRegion(const std::string& boundaries) {
    return *ParseGeoAs<QnGeGeneralRegion2d>("general region " + boundaries);
}
inline QnGePolygon2d PolygonOf(const Ring& ring) {
    return QnGePolygon2d(MakeOutline(ring), false);
}

inline std::uint32_t Bits(const QnBitData& hit) {
    return hit.GetBits();
}

/// The bytes of a stream record; two objects are equal bit for bit exactly if these are.
inline std::vector<unsigned char> Record(const QnGeObject& object) {
    QnDynArrayStream stream(64, 64);
    object.StreamOut(stream);
    return std::vector<unsigned char>(stream.GetBytes(), stream.GetBytes() + stream.GetLength());
}
inline std::vector<unsigned char> BytesOf(const QnDynArrayStream& stream) {
    return std::vector<unsigned char>(stream.GetBytes(), stream.GetBytes() + stream.GetLength());
}

inline unsigned CaseSeed(int test, int i) {
    return BaseSeed() * 31U + static_cast<unsigned>(test * 1000003 + i);
}

// ---- rings of results ------------------------------------------------------------------------------

inline Ring RingOf(const QnGeMLine2d& line) {
    Ring ring;
    for (long i = 0; i < line.GetVertexNum(); ++i) {
        ring.push_back(line.GetVertex(i));
    }
    return ring;
}

/// The rings of a straight region, the outline first.
inline Rings RingsOf(const QnGeRegion2d& region) {
    Rings rings;
    for (long i = 0; i < region.GetBoundaryNum(); ++i) {
        const auto* const line = dynamic_cast<const QnGeMLine2d*>(region.GetBoundary(i));
        if (line != nullptr) {
            rings.push_back(RingOf(*line));
        }
    }
    return rings;
}

inline const QnGeRegion2d* RegionAt(const QnGeObjList& list, long i) {
    return dynamic_cast<const QnGeRegion2d*>(list.GetPData(i));
}

inline double TotalArea(const QnGeObjList& list) {
    double sum = 0.0;
    for (long i = 0; i < list.GetLength(); ++i) {
        const QnGeRegion2d* const region = RegionAt(list, i);
        sum += region == nullptr ? 0.0 : region->Area();
    }
    return sum;
}

/// How many regions of the list the point is in.
inline int CountAround(const QnGeObjList& list, const QnGePoint& point) {
    int count = 0;
    for (long i = 0; i < list.GetLength(); ++i) {
        const QnGeRegion2d* const region = RegionAt(list, i);
        count += region != nullptr && exact_area::WindingNumber(RingsOf(*region), point) != 0 ? 1 : 0;
    }
    return count;
}

/// Whether two rings are the same, wherever they start.
inline bool IsSameRing(const Ring& a, const Ring& b, double tolerance) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t shift = 0; shift < a.size(); ++shift) {
        bool same = true;
        for (std::size_t i = 0; same && i < a.size(); ++i) {
            const QnGePoint& p = a[(i + shift) % a.size()];
            same = std::hypot(p.x - b[i].x, p.y - b[i].y) <= tolerance && std::fabs(p.z - b[i].z) <= tolerance;
        }
        if (same) {
            return true;
        }
    }
    return a.empty();
}

/// Whether two lists hold the same regions in any order, rings starting anywhere.
inline ::testing::AssertionResult HasRegions(const QnGeObjList& list, const std::string& expected) {
    constexpr double NEAR = 1e-9;
    QnGeObjList wanted;
    ParseGeoList(expected, wanted);
    const auto failure = [&] {
        return ::testing::AssertionFailure() << '[' << ToText(list) << "]\n  instead of\n[" << expected << ']';
    };
    if (list.GetLength() != wanted.GetLength()) {
        return failure();
    }
    std::vector<char> used(static_cast<std::size_t>(list.GetLength()), 0);
    for (long k = 0; k < wanted.GetLength(); ++k) {
        const Rings rings = RingsOf(*RegionAt(wanted, k));
        bool found = false;
        for (long i = 0; !found && i < list.GetLength(); ++i) {
            const QnGeRegion2d* const region = RegionAt(list, i);
            if (region == nullptr || used[static_cast<std::size_t>(i)] != 0 ||
                region->GetClassID() != RegionAt(wanted, k)->GetClassID()) {
                continue;
            }
            const Rings other = RingsOf(*region);
            found = other.size() == rings.size();
            for (std::size_t r = 0; found && r < rings.size(); ++r) {
                found = IsSameRing(rings[r], other[r], NEAR);
            }
            used[static_cast<std::size_t>(i)] = found ? 1 : 0;
        }
        if (!found) {
            return failure();
        }
    }
    return ::testing::AssertionSuccess();
}

inline ::testing::AssertionResult IsRegion(const QnGeRegion2d* region, const std::string& expected) {
    if (region == nullptr) {
        return ::testing::AssertionFailure() << "null instead of " << expected;
    }
    const QnGeObjList list(*region);
    return HasRegions(list, expected);
}

// ---- structure -------------------------------------------------------------------------------------

inline bool DoCross(const QnGePoint& a, const QnGePoint& b, const QnGePoint& c, const QnGePoint& d) {
    using exact_area::Spot;
    using exact_area::Turn;
    const Spot p(a);
    const Spot q(b);
    const Spot r(c);
    const Spot s(d);
    return Turn(p, q, r) * Turn(p, q, s) < 0 && Turn(r, s, p) * Turn(r, s, q) < 0;
}

/// Whether two edges cross each other inside both; touching does not count.
inline bool IsSelfCrossing(const Ring& ring) {
    const std::size_t n = ring.size();
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = i + 2; j < n; ++j) {
            if ((i != 0 || j != n - 1) && DoCross(ring[i], ring[i + 1], ring[j], ring[(j + 1) % n])) {
                return true;
            }
        }
    }
    return false;
}

/// "" if a straight region is built as a result must be, else what is wrong with it. With `general` the operands
/// were in general position, where no ring may cross itself either.
inline std::string CheckRegion(const QnGeRegion2d* region, bool general) {
    if (region == nullptr) {
        return "null region";
    }
    const bool polygon = region->GetClassID() == CLASS_ID_POLYGON2D;
    const bool withHoles = region->GetClassID() == CLASS_ID_GENERAL_POLYGON2D && region->GetHoleNum() > 0;
    if (!polygon && !withHoles) {
        return "neither a polygon nor a general polygon with holes";
    }
    for (long i = 0; i < region->GetBoundaryNum(); ++i) {
        const std::string name = "boundary " + std::to_string(i);
        const auto* const line = dynamic_cast<const QnGeMLine2d*>(region->GetBoundary(i));
        if (line == nullptr) {
            return name + " is no multi-line";
        }
        if (!line->IsClosed()) {
            return name + " is open";
        }
        if (line->GetVertexNum() < 3) {
            return name + " has fewer than 3 vertices";
        }
        if (line->IsClockwise() != (i > 0)) {
            return name + (i > 0 ? " is a counter-clockwise hole" : " is a clockwise outline");
        }
        if (line->GetVertexArray().GetSpaceSize() != line->GetVertexNum()) {
            return name + " holds memory for more than its vertices";
        }
        if (general && IsSelfCrossing(RingOf(*line))) {
            return name + " crosses itself";
        }
    }
    return "";
}

inline std::string CheckRegions(const QnGeObjList& list, bool general) {
    for (long i = 0; i < list.GetLength(); ++i) {
        const std::string trouble = CheckRegion(RegionAt(list, i), general);
        if (!trouble.empty()) {
            return "region " + std::to_string(i) + ": " + trouble;
        }
    }
    return "";
}

// ---- all booleans of a pair ------------------------------------------------------------------------

/// The answers of all booleans of two polygons.
struct Booleans {
    std::unique_ptr<QnGeRegion2d> unite;
    bool doMeet = false;
    QnGeObjList inter;
    QnGeObjList aLessB;
    QnGeObjList bLessA;

    Booleans(const QnGePolygon2d& a, const QnGePolygon2d& b) {
        unite.reset(a.Union(b));
        doMeet = a.Inter(b, inter);
        a.SubtractBy(b, aLessB);
        b.SubtractBy(a, bLessA);
    }
    Booleans(const Ring& a, const Ring& b) : Booleans(PolygonOf(a), PolygonOf(b)) {}

    /// "" if all results are well built.
    std::string Check(bool general) const {
        const std::string trouble[] = {unite == nullptr ? std::string() : CheckRegion(unite.get(), general),
                                       CheckRegions(inter, general), CheckRegions(aLessB, general),
                                       CheckRegions(bLessA, general)};
        const char* const names[] = {"union: ", "intersection: ", "a less b: ", "b less a: "};
        for (int i = 0; i < 4; ++i) {
            if (!trouble[i].empty()) {
                return names[i] + trouble[i];
            }
        }
        return doMeet == (inter.GetLength() > 0) ? "" : "intersection: the answer belies the list";
    }
};

/// The operands as text, ready to paste.
inline std::string PairText(const Ring& a, const Ring& b) {
    return "a " + ToText(PolygonOf(a)) + "\nb " + ToText(PolygonOf(b)) + '\n';
}

/// Whether all vertices of one ring lie on the other without an area in common: the pair that is taken for a
/// nested one.
inline bool DoesFillABay(const Ring& a, const Ring& b, const Areas& areas) {
    const auto allOn = [](const Ring& ring, const Ring& other) {
        for (const QnGePoint& p : ring) {
            if (!exact_area::IsOnRing(other, p)) {
                return false;
            }
        }
        return true;
    };
    return areas.inter < 1e-12L && (allOn(a, b) || allOn(b, a));
}

}  // namespace region_testing
