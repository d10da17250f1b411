// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <vector>

#include "CurveTesting.h"
#include "curves2d/QnGeLineRay2d.h"
#include "support/ExpectGeo.h"
#include "support/RandomSource.h"
#include "values/QnGePoint2d.h"

using namespace curve_testing;

namespace {

/// What to print with a failure.
std::string Where(int i) {
    return "seed " + std::to_string(BaseSeed()) + " case " + std::to_string(i) + ' ';
}

QnGePoint RandomPoint(RandomSource& random, double size) {
    const double x = random.Double(-size, size);
    const double y = random.Double(-size, size);
    return QnGePoint(x, y, random.Double(-size, size));
}

QnGePoint LatticePoint(RandomSource& random, int size) {
    const int x = random.Int(-size, size);
    return QnGePoint(x, random.Int(-size, size));
}

QnGePoint OtherLatticePoint(RandomSource& random, int size, const QnGePoint& unlike) {
    QnGePoint point = LatticePoint(random, size);
    while (point.x == unlike.x && point.y == unlike.y) {
        point = LatticePoint(random, size);
    }
    return point;
}

/// A line, ray of either direction or segment through two points.
std::unique_ptr<QnGeLine2d> MakeOfKind(int kind, const QnGePoint& from, const QnGePoint& to) {
    if (kind == 0) {
        return std::make_unique<QnGeLine2d>(from, to);
    }
    if (kind == 1) {
        return std::make_unique<QnGeLineSeg2d>(from, to);
    }
    auto ray = std::make_unique<QnGeLineRay2d>(from, to);
    ray->SetReverseRay(kind == 3);
    return ray;
}

double Distance(const QnGePoint& a, const QnGePoint& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// Exact orientation of lattice points: twice the signed area.
std::int64_t Cross(const QnGePoint& o, const QnGePoint& a, const QnGePoint& b) {
    const auto whole = [](double v) { return static_cast<std::int64_t>(std::llround(v)); };
    return whole(a.x - o.x) * whole(b.y - o.y) - whole(a.y - o.y) * whole(b.x - o.x);
}

/// What two lattice segments share, found with whole numbers.
struct Shared {
    int ends = 0;  ///< 0 nothing, 1 a point, 2 a stretch
    QnGePoint first, second;
};

Shared SharedOnOneLine(const QnGeLineSeg2d& a, const QnGeLineSeg2d& b) {
    const QnGePoint a1 = a.basePoint;
    const bool byX = a.dx != 0.0;
    const auto along = [byX](const QnGePoint& p) { return byX ? p.x : p.y; };
    const QnGePoint aEnd = a.GetEndPoint();
    const bool rising = along(aEnd) > along(a1);
    QnGePoint aLow = rising ? a1 : aEnd;
    QnGePoint aHigh = rising ? aEnd : a1;
    QnGePoint bLow = b.basePoint;
    QnGePoint bHigh = b.GetEndPoint();
    if (along(bLow) > along(bHigh)) {
        std::swap(bLow, bHigh);
    }
    Shared shared;
    shared.first = along(aLow) > along(bLow) ? aLow : bLow;
    shared.second = along(aHigh) < along(bHigh) ? aHigh : bHigh;
    const double length = along(shared.second) - along(shared.first);
    shared.ends = length < 0.0 ? 0 : (length == 0.0 ? 1 : 2);
    if (!rising) {
        std::swap(shared.first, shared.second);
    }
    return shared;
}

Shared FindShared(const QnGeLineSeg2d& a, const QnGeLineSeg2d& b) {
    const QnGePoint p = a.basePoint;
    const QnGePoint q = a.GetEndPoint();
    const QnGePoint r = b.basePoint;
    const QnGePoint s = b.GetEndPoint();
    const std::int64_t sideR = Cross(p, q, r);
    const std::int64_t sideS = Cross(p, q, s);
    const std::int64_t sideP = Cross(r, s, p);
    const std::int64_t sideQ = Cross(r, s, q);
    if (sideR == 0 && sideS == 0) {
        return SharedOnOneLine(a, b);
    }
    Shared shared;
    const auto split = [](std::int64_t u, std::int64_t v) { return (u <= 0 && v >= 0) || (u >= 0 && v <= 0); };
    if (sideR != sideS && split(sideR, sideS) && split(sideP, sideQ)) {
        const double t = static_cast<double>(sideP) / static_cast<double>(sideP - sideQ);
        shared.ends = 1;
        shared.first = QnGePoint(p.x + t * (q.x - p.x), p.y + t * (q.y - p.y));
    }
    return shared;
}

/// Does the result list say what `shared` says?
bool Agrees(const QnGeObjList& found, const Shared& shared) {
    if (shared.ends == 0) {
        return found.IsEmpty();
    }
    if (found.GetLength() != 1) {
        return false;
    }
    if (shared.ends == 1) {
        const auto* const point = dynamic_cast<const QnGePoint2d*>(found.GetPData(0));
        return point != nullptr && Distance(*point, shared.first) < 1e-9;
    }
    const auto* const seg = dynamic_cast<const QnGeLineSeg2d*>(found.GetPData(0));
    return seg != nullptr && Distance(seg->basePoint, shared.first) < 1e-9 &&
           Distance(seg->GetEndPoint(), shared.second) < 1e-9;
}

/// Whether two results of the line family are the same points of the plane.
bool IsSamePointSet(const QnGeObject& a, const QnGeObject& b) {
    if (a.GetCI() != b.GetCI()) {
        return false;
    }
    if (const auto* const p = dynamic_cast<const QnGePoint2d*>(&a)) {
        return Distance(*p, static_cast<const QnGePoint2d&>(b)) < 1e-9;
    }
    const auto& la = static_cast<const QnGeLine2d&>(a);
    const auto& lb = static_cast<const QnGeLine2d&>(b);
    const QnGePoint aEnd = la.basePoint + la.GetVector();
    const QnGePoint bEnd = lb.basePoint + lb.GetVector();
    if (dynamic_cast<const QnGeLineSeg2d*>(&a) != nullptr) {
        return (Distance(la.basePoint, lb.basePoint) < 1e-9 && Distance(aEnd, bEnd) < 1e-9) ||
               (Distance(la.basePoint, bEnd) < 1e-9 && Distance(aEnd, lb.basePoint) < 1e-9);
    }
    const double cross = la.dx * lb.dy - la.dy * lb.dx;
    const double gap = la.dx * (lb.basePoint.y - la.basePoint.y) - la.dy * (lb.basePoint.x - la.basePoint.x);
    const bool sameCarrier = std::fabs(cross) < 1e-9 && std::fabs(gap) < 1e-9;
    if (dynamic_cast<const QnGeLineRay2d*>(&a) == nullptr) {
        return sameCarrier;
    }
    return sameCarrier && la.dx * lb.dx + la.dy * lb.dy > 0.0 && Distance(la.basePoint, lb.basePoint) < 1e-9;
}

}  // namespace

TEST(LineFamilyProperties, ParameterOfThePointAtAParameter) {
    RandomSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint from = RandomPoint(random, 100.0);
        const QnGePoint to = RandomPoint(random, 100.0);
        if (Distance(from, to) < 0.1) {
            continue;
        }
        const auto curve = MakeOfKind(i % 4, from, to);
        const double pa = random.Double(-5.0, 5.0);
        QnGePoint pt;
        double back = UNTOUCHED;
        ASSERT_TRUE(curve->GetPtFromPa(pa, pt));
        ASSERT_TRUE(curve->GetPaFromPt(pt, back));
        ASSERT_NEAR(back, pa, 1e-10) << Where(i) << ToText(*curve);
        const double t = i % 4 == 3 ? 1.0 - pa : pa;
        ASSERT_NEAR(pt.x, from.x + t * (to.x - from.x), 1e-10) << Where(i) << ToText(*curve);
        ASSERT_NEAR(pt.z, from.z + t * (to.z - from.z), 1e-10) << Where(i) << ToText(*curve);
    }
}

TEST(LineFamilyProperties, DistanceAndParameterAreInverse) {
    RandomSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint from = RandomPoint(random, 100.0);
        const QnGePoint to = RandomPoint(random, 100.0);
        const double length = Distance(from, to);
        if (length < 0.1) {
            continue;
        }
        const auto curve = MakeOfKind(i % 4, from, to);
        const double dist = random.Double(-300.0, 300.0);
        double pa = UNTOUCHED;
        double back = UNTOUCHED;
        ASSERT_TRUE(curve->GetPaFromDist(dist, pa));
        ASSERT_TRUE(curve->GetDistFromPa(pa, back));
        ASSERT_NEAR(pa, dist / length, 1e-9) << Where(i) << ToText(*curve);
        ASSERT_NEAR(back, dist, 1e-9) << Where(i) << ToText(*curve);
        QnGePoint pt;
        ASSERT_TRUE(curve->GetPtFromDist(dist, pt));
        ASSERT_TRUE(curve->GetDistFromPt(pt, back));
        ASSERT_NEAR(back, dist, 1e-8) << Where(i) << ToText(*curve);
    }
}

TEST(LineFamilyProperties, LatticeSegmentsShareWhatWholeNumbersSay) {
    RandomSource random(BaseSeed());
    long counts[3] = {0, 0, 0};
    for (int i = 0; i < 3 * PROPERTY_CASES; ++i) {
        const int size = i % 2 == 0 ? 2 : 20;
        const QnGePoint a1 = LatticePoint(random, size);
        const QnGeLineSeg2d a(a1, OtherLatticePoint(random, size, a1));
        const QnGePoint b1 = LatticePoint(random, size);
        const QnGeLineSeg2d b(b1, OtherLatticePoint(random, size, b1));
        const Shared shared = FindShared(a, b);
        ++counts[shared.ends];
        QnGeObjList found;
        ASSERT_EQ(a.IntersectWith(b, found), shared.ends > 0) << Where(i) << ToText(a) << " with " << ToText(b);
        ASSERT_TRUE(Agrees(found, shared))
            << Where(i) << ToText(a) << " with " << ToText(b) << " gives " << ToText(found);
    }
    for (const long count : counts) {
        EXPECT_GT(count, 100) << "nothing, points and stretches all occur";
    }
}

TEST(LineFamilyProperties, SegmentsAnywhereMeetWhereTheirCarriersDo) {
    RandomSource random(BaseSeed());
    int met = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeLineSeg2d a(RandomPoint(random, 10.0), RandomPoint(random, 10.0));
        const QnGeLineSeg2d b(RandomPoint(random, 10.0), RandomPoint(random, 10.0));
        const double det = a.dx * b.dy - a.dy * b.dx;
        const double wx = b.basePoint.x - a.basePoint.x;
        const double wy = b.basePoint.y - a.basePoint.y;
        const double t = (wx * b.dy - wy * b.dx) / det;
        const double s = (wx * a.dy - wy * a.dx) / det;
        const auto nearEnd = [](double v) { return std::fabs(v) < 1e-6 || std::fabs(v - 1.0) < 1e-6; };
        if (std::fabs(det) < 1e-3 || nearEnd(t) || nearEnd(s)) {
            continue;
        }
        const bool expected = t > 0.0 && t < 1.0 && s > 0.0 && s < 1.0;
        QnGeObjList found;
        ASSERT_EQ(a.IntersectWith(b, found), expected) << Where(i) << ToText(a) << " with " << ToText(b);
        if (expected) {
            ++met;
            ASSERT_EQ(found.GetLength(), 1);
            const auto* const point = dynamic_cast<const QnGePoint2d*>(found.GetPData(0));
            ASSERT_NE(point, nullptr);
            ASSERT_NEAR(point->x, a.basePoint.x + t * a.dx, 1e-8) << Where(i) << ToText(a) << " with " << ToText(b);
            ASSERT_NEAR(point->z, a.basePoint.z + t * a.dz, 1e-8) << Where(i) << ToText(a) << " with " << ToText(b);
        }
    }
    EXPECT_GT(met, PROPERTY_CASES / 10);
}

TEST(LineFamilyProperties, TheReceiverDoesNotMatterForThePointSet) {
    RandomSource random(BaseSeed());
    constexpr int FORWARD_KINDS = 3;  // a reversed ray as argument is mirrored
    int shared = 0;
    for (int i = 0; i < 3 * PROPERTY_CASES; ++i) {
        const QnGePoint a1 = LatticePoint(random, 3);
        const auto a = MakeOfKind(i % FORWARD_KINDS, a1, OtherLatticePoint(random, 3, a1));
        const QnGePoint b1 = LatticePoint(random, 3);
        const auto b = MakeOfKind(i / FORWARD_KINDS % FORWARD_KINDS, b1, OtherLatticePoint(random, 3, b1));
        QnGeObjList ab;
        QnGeObjList ba;
        ASSERT_EQ(a->IntersectWith(*b, ab), b->IntersectWith(*a, ba))
            << Where(i) << ToText(*a) << " and " << ToText(*b);
        ASSERT_EQ(ab.GetLength(), ba.GetLength()) << Where(i) << ToText(*a) << " and " << ToText(*b);
        for (long k = 0; k < ab.GetLength(); ++k) {
            ++shared;
            ASSERT_TRUE(IsSamePointSet(*ab.GetPData(k), *ba.GetPData(k)))
                << Where(i) << ToText(*a) << " and " << ToText(*b) << ": " << ToText(ab) << " against " << ToText(ba);
        }
    }
    EXPECT_GT(shared, PROPERTY_CASES);
}

TEST(LineFamilyProperties, PiecesOfASegmentAddUp) {
    RandomSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeLineSeg2d seg(RandomPoint(random, 100.0), RandomPoint(random, 100.0));
        std::vector<double> cuts(static_cast<std::size_t>(random.Int(1, 8)));
        for (double& cut : cuts) {
            cut = random.Coin() ? random.Double(0.0, 1.0) : 0.125 * random.Int(0, 8);
        }
        std::sort(cuts.begin(), cuts.end());
        QnDynArray<double> pas;
        for (const double cut : cuts) {
            pas.Append(cut);
        }
        QnGeObjList pieces;
        seg.Split(pas, pieces);
        double sum = 0.0;
        QnGePoint last = seg.basePoint;
        for (long k = 0; k < pieces.GetLength(); ++k) {
            const auto& piece = static_cast<const QnGeLineSeg2d&>(*pieces.GetPData(k));
            ASSERT_LT(Distance(piece.basePoint, last), 1e-6) << Where(i) << ToText(pieces);
            last = piece.GetEndPoint();
            sum += piece.Length();
        }
        ASSERT_LT(Distance(last, seg.GetEndPoint()), 1e-6) << Where(i) << ToText(pieces);
        ASSERT_NEAR(sum, seg.Length(), 1e-6) << Where(i) << ToText(seg);
    }
}

TEST(LineFamilyProperties, PiecesOfAChainAddUp) {
    RandomSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        std::vector<QnGePoint> points(static_cast<std::size_t>(random.Int(3, 6)));
        for (QnGePoint& point : points) {
            point = LatticePoint(random, 9);
        }
        const bool closed = random.Coin();
        if (closed) {
            points.push_back(points.front());
        } else if (Distance(points.front(), points.back()) == 0.0) {
            points.back().x += 1.0;
        }
        const PathCurve path(points);
        const double first = random.Double(0.01, 0.4);
        const double second = random.Double(0.5, 0.99);
        QnGeObjList pieces;
        path.Split(Pas({first, second}), pieces);
        ASSERT_EQ(pieces.GetLength(), closed ? 2 : 3) << Where(i);
        double sum = 0.0;
        for (long k = 0; k < pieces.GetLength(); ++k) {
            sum += static_cast<const QnGeCurve2d&>(*pieces.GetPData(k)).Length();
        }
        ASSERT_NEAR(sum, path.Length(), 1e-9) << Where(i);
    }
}

TEST(LineFamilyProperties, SubtractingLeavesWhatNoCutterCovers) {
    RandomSource random(BaseSeed());
    constexpr int CELLS = 20;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGePoint base = LatticePoint(random, 50);
        const QnGePoint step = OtherLatticePoint(random, 5, QnGePoint());
        const auto at = [&](int k) { return base + step * k; };
        const QnGeLineSeg2d seg = random.Coin() ? QnGeLineSeg2d(at(0), at(CELLS)) : QnGeLineSeg2d(at(CELLS), at(0));
        std::vector<bool> covered(CELLS, false);
        QnGeObjList cutters;
        for (int n = random.Int(1, 6); n > 0; --n) {
            const int from = random.Int(-5, CELLS + 5);
            int to = random.Int(-5, CELLS + 5);
            to += to == from ? 1 : 0;
            cutters.Append(new QnGeLineSeg2d(at(from), at(to)));
            for (int k = std::max(0, std::min(from, to)); k < std::min(CELLS, std::max(from, to)); ++k) {
                covered[static_cast<std::size_t>(k)] = true;
            }
        }
        cutters.Append(new QnGeLineSeg2d(base, base + QnGePoint(-step.y, step.x)));  // stands upright on it
        QnGeObjList rest;
        seg.SubtractBy(cutters, rest);
        double left = 0.0;
        for (long k = 0; k < rest.GetLength(); ++k) {
            left += static_cast<const QnGeLineSeg2d&>(*rest.GetPData(k)).Length();
        }
        const double cell = std::hypot(step.x, step.y);
        const double expected = cell * static_cast<double>(std::count(covered.begin(), covered.end(), false));
        ASSERT_NEAR(left, expected, 1e-7) << Where(i) << ToText(seg) << " less " << ToText(cutters);
    }
}
