// SPDX-License-Identifier: Apache-2.0
// Chains on random input: what they answer follows from their children, and stretches keep length and ends.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <vector>

#include "ChainTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeTolerance.h"
#include "polylines/QnGePolyline2d.h"
#include "support/RandomSource.h"
#include "support/StreamBytes.h"
#include "values/QnGeBaseLine2d.h"

using namespace chain_testing;
using curve_testing::PROPERTY_CASES;

namespace {

constexpr double NEAR = 1e-8;

/// Chains whose children follow each other, with corners at least 1 apart.
class ChainSource : public RandomSource {
public:
    explicit ChainSource(unsigned seed) : RandomSource(seed) { std::cout << "seed " << seed << '\n'; }

    QnGeMCurve2d Chain(long count) {
        QnGeMCurve2d chain;
        m_at = QnGePoint(Double(-20, 20), Double(-20, 20), 0.0);
        const QnGePoint first = m_at;
        for (long i = 0; i < count; ++i) {
            chain.Append(Child());
        }
        if (OneIn(3) && GetDistance2d(first, m_at) > 1.0) {
            chain.Append(Coin() ? static_cast<QnGeCurve2d*>(new QnGeLineSeg2d(m_at, first))
                                : new QnGeArc2d(m_at, first, Bulge()));
        }
        return chain;
    }
    /// The same with some children cut into pieces that run on.
    QnGeMCurve2d ChainInPieces(long count) {
        const QnGeMCurve2d whole = Chain(count);
        QnGeMCurve2d chain;
        for (long i = 0; i < whole.GetSegNum(); ++i) {
            const QnGeCurve2d& child = *whole.GetPData(i);
            const double cut = OneIn(2) ? Double(0.2, 0.8) : 1.0;
            chain.Append(child.GetSubCurve(0.0, cut));
            if (cut < 1.0) {
                chain.Append(child.GetSubCurve(cut, 1.0));
            }
        }
        return chain;
    }
    /// Children apart from each other.
    QnGeMCurve2d Loose(long count) {
        QnGeMCurve2d chain;
        for (long i = 0; i < count; ++i) {
            m_at = QnGePoint(Double(-20, 20), Double(-20, 20), 0.0);
            chain.Append(OneIn(5) ? Child() : Piece());
        }
        return chain;
    }
    double Bulge() { return Double(0.2, 4.0) * (Coin() ? 1.0 : -1.0); }

private:
    QnGePoint Next() {
        const double angle = Double(0.0, 6.28);
        const double step = Double(1.0, 9.0);
        return QnGePoint(m_at.x + step * std::cos(angle), m_at.y + step * std::sin(angle), 0.0);
    }
    QnGeCurve2d* Piece() {
        const QnGePoint from = m_at;
        m_at = Next();
        if (Coin()) {
            return new QnGeLineSeg2d(from, m_at);
        }
        return new QnGeArc2d(from, m_at, Bulge());
    }
    QnGeCurve2d* Child() {
        if (!OneIn(4)) {
            return Piece();
        }
        auto line = std::make_unique<QnGePolyline2d>();
        line->AppendVertex(m_at);
        for (long k = Long(1, 3); k > 0; --k) {
            m_at = Next();
            line->AppendVertex(m_at);
        }
        if (Coin()) {
            return new QnGeMLine2d(line->GetVertexArray(), false);
        }
        for (long k = 0; k + 1 < line->GetVertexNum(); ++k) {
            line->SetBulge(k, Coin() ? Bulge() : 0.0);
        }
        return line.release();
    }

    QnGePoint m_at;
};

std::string Where(int i, const QnGeMCurve2d& chain) {
    return "seed " + std::to_string(BaseSeed()) + " case " + std::to_string(i) + '\n' + ToText(chain);
}

double Gap(const QnGePoint& p, const QnGePoint& q) {
    return std::hypot(p.x - q.x, p.y - q.y);
}

QnGePoint PointAt(const QnGeCurve2d& curve, double pa) {
    QnGePoint pt;
    curve.GetPtFromPa(pa, pt);
    return pt;
}
QnGePoint StartOf(const QnGeCurve2d& curve) {
    QnGePoint pt(UNTOUCHED, UNTOUCHED);
    curve.GetStartPoint(pt);
    return pt;
}
QnGePoint EndOf(const QnGeCurve2d& curve) {
    QnGePoint pt(UNTOUCHED, UNTOUCHED);
    curve.GetEndPoint(pt);
    return pt;
}

/// How far an end of a new arc may be off: angles up to g_angleZero from a full turn are taken for it, at the start
/// and once more at the sweep.
double EndSlack(const QnGeCurve2d& curve) {
    return NEAR + 2.0 * g_angleZero * curve_testing::GreatestRadius(curve);
}

/// The widest gap between neighbours, the last and the first of a closed chain among them.
double WidestGap(const QnGeMCurve2d& chain) {
    double widest = chain.IsClosed() ? Gap(EndOf(chain), StartOf(chain)) : 0.0;
    for (long i = 0; i + 1 < chain.GetSegNum(); ++i) {
        widest = std::max(widest, Gap(EndOf(*chain.GetPData(i)), StartOf(*chain.GetPData(i + 1))));
    }
    return widest;
}

/// The number of equal shares a child's own parameter has.
long Shares(const QnGeCurve2d& child) {
    const auto* const line = dynamic_cast<const QnGeMLine2d*>(&child);
    return line != nullptr ? line->GetSegNum() : 1;
}

/// A place on a chain, well inside a segment of a child.
struct Place {
    long child = 0;
    double local = 0.0;
    double pa = 0.0;
};

Place RandomPlace(RandomSource& random, const QnGeMCurve2d& chain) {
    Place place;
    place.child = random.Long(0, chain.GetSegNum() - 1);
    const long shares = Shares(*chain.GetPData(place.child));
    place.local =
        (static_cast<double>(random.Long(0, shares - 1)) + random.Double(0.01, 0.99)) / static_cast<double>(shares);
    place.pa = (static_cast<double>(place.child) + place.local) / static_cast<double>(chain.GetSegNum());
    return place;
}

double LengthBefore(const QnGeMCurve2d& chain, long child) {
    double length = 0.0;
    for (long i = 0; i < child; ++i) {
        length += chain.GetPData(i)->Length();
    }
    return length;
}

/// Index of the first child that a point lies on.
long FirstHit(const QnGeMCurve2d& chain, const QnGePoint& pt) {
    for (long i = 0; i < chain.GetSegNum(); ++i) {
        if (chain.GetPData(i)->HitTest(pt).HasBit(HIT_ON)) {
            return i;
        }
    }
    return -1;
}

double SumOfLengths(const QnGeObjList& pieces) {
    double length = 0.0;
    for (long i = 0; i < pieces.GetLength(); ++i) {
        length += static_cast<const QnGeCurve2d&>(*pieces.GetAt(i)).Length();
    }
    return length;
}

/// Whether each child's end is the next one's start, and the last's the first's if asked.
bool IsJoined(const QnGeMCurve2d& chain, bool closed) {
    for (long i = 0; i + 1 < chain.GetSegNum(); ++i) {
        if (!chain.GetPData(i)->IsConnectWith(*chain.GetPData(i + 1))) {
            return false;
        }
    }
    return !closed || chain.GetPData(chain.GetSegNum() - 1)->IsConnectWith(*chain.GetPData(0));
}

}  // namespace

TEST(ChainProperties, PointsAndTangentsAreTheChildrens) {
    ChainSource random(BaseSeed());
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(1, 6));
        const Place place = RandomPlace(random, chain);
        const QnGeCurve2d& child = *chain.GetPData(place.child);
        double local = place.pa;
        ASSERT_EQ(chain.GetSegIndexFromPa(local), place.child) << Where(i, chain);
        ASSERT_NEAR(local, place.local, 1e-12) << Where(i, chain);
        ASSERT_LT(Gap(PointAt(chain, place.pa), PointAt(child, place.local)), NEAR) << Where(i, chain);
        QnGeBaseLine2d own;
        QnGeBaseLine2d childs;
        chain.GetTangent(place.pa, own);
        child.GetTangent(place.local, childs);
        ASSERT_LT(Gap(QnGePoint(own.dx, own.dy), QnGePoint(childs.dx, childs.dy)), NEAR) << Where(i, chain);
    }
}

TEST(ChainProperties, ParametersOfPointsAreTheFirstHitChilds) {
    ChainSource random(BaseSeed() + 1U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(1, 6));
        const QnGePoint pt = PointAt(chain, RandomPlace(random, chain).pa);
        const long first = FirstHit(chain, pt);
        double local = UNTOUCHED;
        double pa = UNTOUCHED;
        ASSERT_GE(first, 0) << Where(i, chain);
        ASSERT_TRUE(chain.GetPData(first)->GetPaFromPt(pt, local)) << Where(i, chain);
        ASSERT_TRUE(chain.GetPaFromPt(pt, pa)) << Where(i, chain);
        ASSERT_NEAR(pa, (static_cast<double>(first) + local) / static_cast<double>(chain.GetSegNum()), 1e-12)
            << Where(i, chain);
        ASSERT_LT(Gap(PointAt(chain, pa), pt), 2e-6) << Where(i, chain);
    }
}

TEST(ChainProperties, DistancesAreTheChildrensAfterTheEarlierOnes) {
    ChainSource random(BaseSeed() + 2U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(1, 6));
        const Place place = RandomPlace(random, chain);
        double onChild = 0.0;
        double dist = UNTOUCHED;
        double pa = UNTOUCHED;
        ASSERT_TRUE(chain.GetPData(place.child)->GetDistFromPa(place.local, onChild)) << Where(i, chain);
        ASSERT_TRUE(chain.GetDistFromPa(place.pa, dist)) << Where(i, chain);
        ASSERT_NEAR(dist, LengthBefore(chain, place.child) + onChild, NEAR) << Where(i, chain);
        ASSERT_TRUE(chain.GetPaFromDist(dist, pa)) << Where(i, chain);
        ASSERT_NEAR(pa, place.pa, 1e-7) << Where(i, chain);
    }
}

TEST(ChainProperties, AStretchIsAsLongAsItsEndsAreApart) {
    ChainSource random(BaseSeed() + 3U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(2, 6));
        const Place from = RandomPlace(random, chain);
        const Place to = RandomPlace(random, chain);
        if (from.child == to.child && std::fabs(from.local - to.local) < 0.001) {
            continue;  // an arc this short has no sweep of its own
        }
        double distFrom = 0.0;
        double distTo = 0.0;
        chain.GetDistFromPa(from.pa, distFrom);
        chain.GetDistFromPa(to.pa, distTo);
        const double expected = distTo - distFrom + (from.pa > to.pa ? chain.Length() : 0.0);
        const std::unique_ptr<QnGeCurve2d> stretch(chain.GetSubCurve(from.pa, to.pa));
        ASSERT_NE(stretch, nullptr) << Where(i, chain);
        ASSERT_NEAR(stretch->Length(), expected, 1e-7) << from.pa << " to " << to.pa << ' ' << Where(i, chain);
        ASSERT_LT(Gap(StartOf(*stretch), PointAt(chain, from.pa)), EndSlack(chain)) << Where(i, chain);
        ASSERT_LT(Gap(EndOf(*stretch), PointAt(chain, to.pa)), EndSlack(chain)) << Where(i, chain);
    }
}

TEST(ChainProperties, OpenedAnywhereItIsAsLongAsBefore) {
    ChainSource random(BaseSeed() + 4U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(2, 6));
        const Place place = RandomPlace(random, chain);
        const std::unique_ptr<QnGeCurve2d> whole(chain.GetSubCurve(place.pa, place.pa));
        ASSERT_NE(whole, nullptr) << Where(i, chain);
        ASSERT_NEAR(whole->Length(), chain.Length(), 1e-7) << Where(i, chain);
        ASSERT_LT(Gap(StartOf(*whole), PointAt(chain, place.pa)), EndSlack(chain)) << Where(i, chain);
        ASSERT_LT(Gap(EndOf(*whole), PointAt(chain, place.pa)), EndSlack(chain)) << Where(i, chain);
    }
}

TEST(ChainProperties, ThePiecesOfASplitFollowEachOtherAndAddUp) {
    ChainSource random(BaseSeed() + 5U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(2, 6));
        std::vector<double> cuts;
        for (long k = random.Long(1, 5); k > 0; --k) {
            cuts.push_back(RandomPlace(random, chain).pa);
        }
        std::sort(cuts.begin(), cuts.end());
        QnDynArray<double> pas;
        for (const double cut : cuts) {
            pas.Append(cut);
        }
        QnGeObjList pieces;
        chain.Split(pas, pieces);
        const long expected = static_cast<long>(cuts.size()) + (chain.IsClosed() ? 0 : 1);
        ASSERT_EQ(pieces.GetLength(), expected) << Where(i, chain);
        ASSERT_NEAR(SumOfLengths(pieces), chain.Length(), 4.0 * EndSlack(chain)) << Where(i, chain);
        for (long k = 0; k + 1 < pieces.GetLength(); ++k) {
            const auto& piece = static_cast<const QnGeCurve2d&>(*pieces.GetAt(k));
            const auto& next = static_cast<const QnGeCurve2d&>(*pieces.GetAt(k + 1));
            ASSERT_LT(Gap(EndOf(piece), StartOf(next)), 2.0 * EndSlack(chain)) << Where(i, chain);
        }
    }
}

TEST(ChainProperties, ReverseExchangesTheEndsAndRunsBack) {
    ChainSource random(BaseSeed() + 6U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(1, 6));
        QnGeMCurve2d turned(chain);
        turned.Reverse();
        ASSERT_LT(Gap(StartOf(turned), EndOf(chain)), EndSlack(chain)) << Where(i, chain);
        ASSERT_LT(Gap(EndOf(turned), StartOf(chain)), EndSlack(chain)) << Where(i, chain);
        const double pa = RandomPlace(random, chain).pa;
        ASSERT_LT(Gap(PointAt(turned, 1.0 - pa), PointAt(chain, pa)), EndSlack(chain)) << pa << ' ' << Where(i, chain);
        ASSERT_NEAR(turned.Length(), chain.Length(), NEAR) << Where(i, chain);
        ASSERT_NEAR(turned.TotalIntegration(), -chain.TotalIntegration(), 1e-6 + 100.0 * EndSlack(chain))
            << Where(i, chain);
        turned.Reverse();
        ASSERT_TRUE(IsNearGeo(turned, chain, 2.0 * g_angleZero)) << ToText(turned) << '\n' << Where(i, chain);
    }
}

TEST(ChainProperties, IntegralsAddUpOverAnyCut) {
    ChainSource random(BaseSeed() + 7U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(1, 6));
        const double a = RandomPlace(random, chain).pa;
        const double b = RandomPlace(random, chain).pa;
        const double whole = chain.Integration(0.0, 1.0);
        ASSERT_NEAR(whole, chain.TotalIntegration(), 1e-6) << Where(i, chain);
        ASSERT_NEAR(chain.Integration(0.0, a) + chain.Integration(a, b) + chain.Integration(b, 1.0), whole, 1e-6)
            << a << ' ' << b << ' ' << Where(i, chain);
    }
}

TEST(ChainProperties, CompressAndSymplifyKeepTheShape) {
    ChainSource random(BaseSeed() + 8U);
    long merged = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.ChainInPieces(random.Long(1, 4));
        if (WidestGap(chain) > NEAR) {
            continue;  // an arc began or ended within the angle that is none
        }
        QnGeMCurve2d compressed(chain);
        compressed.Compress();
        ASSERT_LE(compressed.GetSegNum(), chain.GetSegNum()) << Where(i, chain);
        ASSERT_NEAR(compressed.Length(), chain.Length(), 1e-6) << Where(i, chain);
        ASSERT_TRUE(compressed.IsValid()) << Where(i, chain);
        ASSERT_EQ(compressed.IsClosed(), chain.IsClosed()) << Where(i, chain);
        merged += chain.GetSegNum() - compressed.GetSegNum();
        const std::unique_ptr<QnGeObject> simpler(chain.Symplify());
        ASSERT_NE(simpler, nullptr) << Where(i, chain);
        const auto* const curve = dynamic_cast<const QnGeCurve2d*>(simpler.get());
        ASSERT_NE(curve, nullptr) << Where(i, chain);
        ASSERT_NEAR(curve->Length(), chain.Length(), 1e-6) << Where(i, chain);
        // As a polyline an arc within g_angleZero of a half circle is centred on its chord.
        ASSERT_NEAR(curve->TotalIntegration(), chain.TotalIntegration(), 50.0 * EndSlack(chain)) << Where(i, chain);
    }
    EXPECT_GT(merged, PROPERTY_CASES / 2);
}

TEST(ChainProperties, StreamsComeBackBitForBit) {
    ChainSource random(BaseSeed() + 9U);
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d chain = random.Chain(random.Long(0, 6));
        QnDynArrayStream stream(256, 256);
        chain.StreamOut(stream);
        stream.MoveToFirst();
        QnGeMCurve2d read;
        read.StreamIn(stream);
        ASSERT_EQ(RecordOf(read), RecordOf(chain)) << Where(i, chain);
    }
}

TEST(ChainProperties, JoinedWithSegmentsNothingStaysApart) {
    ChainSource random(BaseSeed() + 10U);
    long inserted = 0;
    long moved = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const bool closed = random.Coin();
        const QnGeMCurve2d before = random.Loose(random.Long(2, 5));
        QnGeMCurve2d chain(before);
        ASSERT_TRUE(chain.ConnectSeg(closed, true)) << Where(i, before);
        ASSERT_TRUE(IsJoined(chain, closed)) << ToText(chain) << '\n' << Where(i, before);
        inserted += chain.GetSegNum() - before.GetSegNum();
        QnGeMCurve2d strict(before);
        if (strict.ConnectSeg(closed, false)) {
            ASSERT_TRUE(IsJoined(strict, closed)) << ToText(strict) << '\n' << Where(i, before);
            ASSERT_EQ(strict.GetSegNum(), before.GetSegNum()) << Where(i, before);
            ++moved;
        }
    }
    EXPECT_GT(inserted, PROPERTY_CASES / 2);
    EXPECT_GT(moved, PROPERTY_CASES / 1000);
}

TEST(ChainProperties, AnOffsetJoinsAllOrChangesNothing) {
    ChainSource random(BaseSeed() + 11U);
    long done = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const QnGeMCurve2d before = random.Chain(random.Long(1, 5));
        const bool closed = before.IsClosed();
        QnGeMCurve2d chain(before);
        if (chain.Offset(random.Double(-1.0, 1.0))) {
            ASSERT_TRUE(IsJoined(chain, closed)) << ToText(chain) << '\n' << Where(i, before);
            ASSERT_EQ(chain.GetSegNum(), before.GetSegNum()) << Where(i, before);
            ++done;
        } else {
            ASSERT_EQ(RecordOf(chain), RecordOf(before)) << ToText(chain) << '\n' << Where(i, before);
        }
    }
    EXPECT_GT(done, PROPERTY_CASES / 10);
}
