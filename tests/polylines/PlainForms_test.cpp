// SPDX-License-Identifier: Apache-2.0
// Questions that go over all segments, against their plain loops: the same answers in the same order.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "HitTestOutlines.h"
#include "PolylineTesting.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "support/reference/PlainSelfCross.h"
#include "values/QnGePointList.h"

using namespace polyline_testing;
using polygon_pairs::Ring;

namespace {

std::vector<std::unique_ptr<QnGeCurve2d>> SegmentsOf(const QnGeMLine2d& line) {
    QnGeObjList parts;
    line.Explode(parts);
    std::vector<std::unique_ptr<QnGeCurve2d>> segments;
    while (!parts.IsEmpty()) {
        segments.emplace_back(static_cast<QnGeCurve2d*>(parts.TakeOffHead()));
    }
    return segments;
}

/// What two lines share: their pieces against each other, the second's pieces being asked.
std::string PlainIntersection(const QnGeMLine2d& a, const QnGeMLine2d& b) {
    QnGeObjList found;
    for (const auto& mine : SegmentsOf(a)) {
        for (const auto& other : SegmentsOf(b)) {
            other->IntersectWith(*mine, found);
        }
    }
    return ToText(found);
}

/// All nearest points of the pieces, each once; distances within the length tolerance of the first best are equal.
std::string PlainClosest(const QnGeMLine2d& line, const QnGePoint& p) {
    QnGePointList all;
    for (const auto& segment : SegmentsOf(line)) {
        segment->GetClosestPoint2d(p, all);
    }
    QnGePointList best;
    double dist = -1.0;
    for (long i = 0; i < all.GetLength(); ++i) {
        const QnGePoint q = all.GetAt(i);
        const double d = GetDistance2d(p, q);
        if (dist < -g_distZero || d - dist < -g_distZero) {
            dist = d;
            best.Reset();
            best.Append(q);
        } else if (!(d - dist > g_distZero)) {
            best.FindOrAppend(q);
        }
    }
    std::string text;
    for (long i = 0; i < best.GetLength(); ++i) {
        text += PointToText(best.GetAt(i)) + ' ';
    }
    return text;
}

/// A random line with contacts of all kinds: straight or bulged, open or closed.
std::unique_ptr<QnGeMLine2d> ContactLine(RandomSource& random, int most) {
    Ring ring = polygon_pairs::LatticeWalk(random, random.Int(0, most), random.Int(2, 9));
    switch (random.Int(0, 5)) {
        case 0:
            ring = polygon_pairs::Star(random, random.Int(3, most), 0.0, 0.0, 1.0, 4.0);
            break;
        case 1:
            ring = polygon_pairs::Jittered(random, ring, 1.5e-6);
            break;
        case 2:
            ring = polygon_pairs::Moved(polygon_pairs::Turned(ring, 0.7, 1.0), 1e6, -1e6);
            break;
        case 3:
            ring = polygon_pairs::Polyomino(random, random.Int(1, 4), 3, random.Coin());
            break;
        default:
            break;
    }
    const bool closed = random.Coin();
    if (random.Coin()) {
        return std::make_unique<QnGeMLine2d>(polygon_pairs::MakeOutline(ring).GetVertexArray(), closed);
    }
    auto line = std::make_unique<QnGePolyline2d>(0, closed);
    constexpr double BULGES[] = {0.0, 0.0, PI, -PI, PI / 2.0, -PI / 2.0, 1.0, -2.5, 1e-5, 1e-4};
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const bool last = !closed && i + 1 == ring.size();
        line->AppendVertex(ring[i], last ? 0.0 : BULGES[random.Int(0, 9)]);
    }
    return line;
}

}  // namespace

TEST(PlainForms, SelfCrossing) {
    std::printf("seed %u\n", BaseSeed());
    long crossing = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(120, i);
        RandomSource random(seed);
        const auto line = ContactLine(random, 9);
        const bool expected = plain_self_cross::IsSelfCross(*line);
        crossing += expected;
        ASSERT_EQ(line->IsSelfCross(), expected) << "seed " << seed << '\n' << Text(*line);
    }
    EXPECT_GT(crossing, 1000);
    EXPECT_LT(crossing, PROPERTY_CASES - 1000);
}

TEST(PlainForms, IntersectionsOfTwoLines) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(121, i);
        RandomSource random(seed);
        const auto a = ContactLine(random, 6);
        const auto b = ContactLine(random, 6);
        QnGeObjList found;
        const bool answer = a->IntersectWith(*b, found);
        ASSERT_EQ(answer, !found.IsEmpty()) << "seed " << seed;
        ASSERT_EQ(ToText(found), PlainIntersection(*a, *b)) << "seed " << seed << '\n' << Text(*a) << '\n' << Text(*b);
    }
}

TEST(PlainForms, ClosestPointsInPlan) {
    std::printf("seed %u\n", BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(122, i);
        RandomSource random(seed);
        const auto line = ContactLine(random, 9);
        const QnGePoint p(random.Int(-2, 20) / 2.0, random.Int(-2, 20) / 2.0);
        QnGePointList found;
        const bool answer = line->GetClosestPoint2d(p, found);
        ASSERT_EQ(answer, !found.IsEmpty()) << "seed " << seed;
        std::string text;
        for (long k = 0; k < found.GetLength(); ++k) {
            text += PointToText(found.GetAt(k)) + ' ';
        }
        ASSERT_EQ(text, PlainClosest(*line, p)) << "seed " << seed << " at " << PointToText(p) << '\n' << Text(*line);
    }
}

TEST(PlainForms, HitTestsOfOpenLines) {
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const unsigned seed = CaseSeed(123, i);
        RandomSource random(seed);
        const auto line = ContactLine(random, 9);
        line->QnGeMLine2d::SetClosed(false);
        const QnGePoint p = random.Coin() || line->GetVertexNum() == 0
                                ? QnGePoint(random.Int(-2, 20) / 2.0, random.Int(-2, 20) / 2.0)
                                : line->GetVertex(random.Long(0, line->GetVertexNum() - 1));
        bool on = false;
        for (const auto& segment : SegmentsOf(*line)) {
            on = on || segment->HitTest(p).HasBit(HIT_ON);
        }
        ASSERT_EQ(Bits(line->HitTest(p)), on ? HIT_ON : 0U) << "seed " << seed << " at " << PointToText(p) << '\n'
                                                            << Text(*line);
    }
}
