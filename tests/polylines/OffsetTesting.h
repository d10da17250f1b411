// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "PolylineTesting.h"
#include "frame/QnGeObjList.h"

/// What the tests of offset and self-crossing measure by: areas, lengths, carriers and corners worked out anew from
/// vertices and bulges, without the library's curves.
namespace offset_testing {

using polyline_testing::PI;

struct Vec {
    double x = 0.0;
    double y = 0.0;
};

inline Vec Between(const QnGePoint& from, const QnGePoint& to) {
    return {to.x - from.x, to.y - from.y};
}
inline double Dot(const Vec& a, const Vec& b) {
    return a.x * b.x + a.y * b.y;
}
inline double Cross(const Vec& a, const Vec& b) {
    return a.x * b.y - a.y * b.x;
}
inline double Norm(const Vec& a) {
    return std::hypot(a.x, a.y);
}
/// The signed angle from `a` to `b`, positive to the left.
inline double Turn(const Vec& a, const Vec& b) {
    return std::atan2(Cross(a, b), Dot(a, b));
}
inline Vec Rotated(const Vec& a, double angle) {
    return {a.x * std::cos(angle) - a.y * std::sin(angle), a.x * std::sin(angle) + a.y * std::cos(angle)};
}

inline const QnGePoint& EndOf(const QnGeMLine2d& line, long i) {
    return line.GetVertex((i + 1) % line.GetVertexNum());
}
inline double BulgeOf(const QnGePolyline2d& line, long i) {
    return line.IsArcSeg(i) ? line.GetBulge(i) : 0.0;
}

/// The infinite line or full circle that segment `i` lies on.
struct Carrier {
    bool isArc = false;
    bool isClockwise = false;
    QnGePoint start;
    Vec unit;  ///< along a chord
    QnGePoint centre;
    double radius = 0.0;

    Carrier(const QnGePolyline2d& line, long i) : start(line.GetVertex(i)) {
        const Vec chord = Between(start, EndOf(line, i));
        const double bulge = BulgeOf(line, i);
        isArc = bulge != 0.0;
        isClockwise = bulge < 0.0;
        const double length = Norm(chord);
        unit = {chord.x / length, chord.y / length};
        if (isArc) {
            const double toCentre = 0.5 * length / std::tan(0.5 * bulge);
            radius = 0.5 * length / std::sin(0.5 * std::fabs(bulge));
            centre =
                QnGePoint(start.x + 0.5 * chord.x - toCentre * unit.y, start.y + 0.5 * chord.y + toCentre * unit.x);
        }
    }

    /// How far `p` lies to the right of the travel.
    double ToTheRight(const QnGePoint& p) const {
        if (!isArc) {
            return -Cross(unit, Between(start, p));
        }
        const double outside = Norm(Between(centre, p)) - radius;
        return isClockwise ? -outside : outside;
    }

    double RadiusAfter(double dist) const { return isClockwise ? radius - dist : radius + dist; }

    /// The direction of travel at a point of the carrier.
    Vec Travel(const QnGePoint& p) const {
        if (!isArc) {
            return unit;
        }
        const Vec out = Between(centre, p);
        const double side = isClockwise ? -1.0 : 1.0;
        return {-side * out.y / radius, side * out.x / radius};
    }
};

inline std::vector<Carrier> CarriersOf(const QnGePolyline2d& line) {
    std::vector<Carrier> carriers;
    for (long i = 0; i < line.GetSegNum(); ++i) {
        carriers.emplace_back(line, i);
    }
    return carriers;
}

inline double SignedArea(const QnGePolyline2d& line) {
    double area = 0.0;
    const QnGePoint& origin = line.GetVertex(0);
    for (long i = 0; i < line.GetSegNum(); ++i) {
        area += 0.5 * Cross(Between(origin, line.GetVertex(i)), Between(origin, EndOf(line, i)));
        const double bulge = BulgeOf(line, i);
        if (bulge != 0.0) {
            const double radius = Carrier(line, i).radius;
            area += 0.5 * radius * radius * (bulge - std::sin(bulge));
        }
    }
    return area;
}

inline double PlanLength(const QnGePolyline2d& line) {
    double length = 0.0;
    for (long i = 0; i < line.GetSegNum(); ++i) {
        const double bulge = BulgeOf(line, i);
        length += bulge == 0.0 ? Norm(Between(line.GetVertex(i), EndOf(line, i)))
                               : Carrier(line, i).radius * std::fabs(bulge);
    }
    return length;
}

/// The turn of the travel at vertex `k` of a closed line, positive to the left.
inline double CornerTurn(const QnGePolyline2d& line, const std::vector<Carrier>& carriers, long k) {
    const auto n = static_cast<long>(carriers.size());
    const QnGePoint& p = line.GetVertex(k);
    return Turn(carriers[static_cast<std::size_t>((k + n - 1) % n)].Travel(p),
                carriers[static_cast<std::size_t>(k)].Travel(p));
}

/// The sweep that arc `i` should have between its new ends: its old one with what its ends have moved round the centre,
/// each by less than half a turn. Positive as long as they have not passed each other.
inline double SweepAfter(const QnGePolyline2d& before, const QnGePolyline2d& after, long i) {
    const Carrier carrier(before, i);
    const double side = carrier.isClockwise ? -1.0 : 1.0;
    const double atStart =
        Turn(Between(carrier.centre, before.GetVertex(i)), Between(carrier.centre, after.GetVertex(i)));
    const double atEnd = Turn(Between(carrier.centre, EndOf(before, i)), Between(carrier.centre, EndOf(after, i)));
    return std::fabs(before.GetBulge(i)) + side * (atEnd - atStart);
}

/// Whether a segment has shrunk to less than a share of what it was, or to nothing, or turned round.
inline bool HasVanished(const QnGePolyline2d& before, const QnGePolyline2d& after, double share = 0.0) {
    for (long i = 0; i < before.GetSegNum(); ++i) {
        if (before.IsArcSeg(i)) {
            const double sweep = SweepAfter(before, after, i);
            if (sweep <= std::max(1e-3, share * std::fabs(before.GetBulge(i))) || sweep >= 2.0 * PI - 1e-3) {
                return true;
            }
            continue;
        }
        const Vec was = Between(before.GetVertex(i), EndOf(before, i));
        const Vec is = Between(after.GetVertex(i), EndOf(after, i));
        if (Dot(was, is) <= std::max(1e-12, share * Dot(was, was))) {
            return true;
        }
    }
    return false;
}

/// Whether two segments that are no neighbours run through each other, each more than `margin` to both sides.
inline bool RunsThroughItself(const QnGeMLine2d& line, double margin) {
    const long n = line.GetSegNum();
    const auto sideOf = [&line](long i, const QnGePoint& p) {
        const Vec along = Between(line.GetVertex(i), EndOf(line, i));
        return Cross(along, Between(line.GetVertex(i), p)) / Norm(along);
    };
    const auto divides = [&sideOf, margin](long i, const QnGePoint& p, const QnGePoint& q) {
        const double a = sideOf(i, p);
        const double b = sideOf(i, q);
        return (a > margin && b < -margin) || (a < -margin && b > margin);
    };
    for (long i = 0; i < n; ++i) {
        for (long j = i + 2; j < n; ++j) {
            if (divides(i, line.GetVertex(j), EndOf(line, j)) && divides(j, line.GetVertex(i), EndOf(line, i))) {
                return true;
            }
        }
    }
    return false;
}

/// The pieces that are lines; `segments` counts the others.
inline std::vector<const QnGeMLine2d*> LinesOf(const QnGeObjList& parts, long& segments) {
    std::vector<const QnGeMLine2d*> lines;
    segments = 0;
    for (QnGeObject* const* entry = parts.GetFirst(); entry != nullptr; entry = parts.GetNext(entry)) {
        if ((*entry)->GetClassID() == CLASS_ID_MLINE2D) {
            lines.push_back(static_cast<const QnGeMLine2d*>(*entry));
        } else {
            ++segments;
        }
    }
    return lines;
}

/// Corners of a star round the origin, some of them rounded by arcs that touch both sides; counter-clockwise.
inline QnGePolyline2d RoundedStar(RandomSource& random, int count, double roundShare) {
    std::vector<QnGePoint> corners;
    for (int i = 0; i < count; ++i) {
        const double angle = 2.0 * PI * (i + random.Double(-0.2, 0.2)) / count;
        const double radius = random.Double(4.0, 9.0);
        corners.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    QnGePolyline2d line(0, true);
    const auto n = corners.size();
    for (std::size_t i = 0; i < n; ++i) {
        const QnGePoint& p = corners[i];
        const Vec in = Between(corners[(i + n - 1) % n], p);
        const Vec out = Between(p, corners[(i + 1) % n]);
        const double turn = Turn(in, out);
        if (random.Double(0.0, 1.0) >= roundShare || std::fabs(turn) < 0.05) {
            line.AppendVertex(p);
            continue;
        }
        const double tangent = random.Double(0.1, 0.45) * std::min(Norm(in), Norm(out));
        const double before = tangent / Norm(in);
        const double after = tangent / Norm(out);
        line.AppendVertex(QnGePoint(p.x - before * in.x, p.y - before * in.y), turn);
        line.AppendVertex(QnGePoint(p.x + after * out.x, p.y + after * out.y));
    }
    return line;
}

}  // namespace offset_testing
