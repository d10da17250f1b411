// SPDX-License-Identifier: Apache-2.0
// Curves of many pieces against their plain forms: the same results in the same order, bit for bit.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "QuarnGeo.h"
#include "support/RandomSource.h"
#include "support/StreamBytes.h"
#include "support/TextGeo.h"
#include "support/reference/PlainPieces.h"

namespace {

constexpr unsigned CASES = 10000;

StreamBytes BytesOf(const QnGeObjList& list) {
    StreamBytes bytes;
    for (auto entry = list.GetFirst(); entry != nullptr; entry = list.GetNext(entry)) {
        if (*entry == nullptr) {
            bytes.push_back(0);
            continue;
        }
        const StreamBytes record = RecordOf(**entry);
        bytes.push_back(static_cast<unsigned char>((*entry)->GetClassID()));
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    return bytes;
}

/// Long curves that wander about, so that most of their pieces are far from each other. On a `lattice` they overlap,
/// touch and stand still.
class Wanderer {
public:
    Wanderer(RandomSource& random, bool lattice) : m_random(random), m_lattice(lattice) {
        m_at = QnGePoint(Coordinate(), Coordinate());
    }

    std::unique_ptr<QnGeCurve2d> Long(long pieceNum) {
        switch (m_random.Int(0, 3)) {
            case 0:
                return Straight(pieceNum);
            case 1:
                return Bulged(pieceNum);
            default:
                return Chain(pieceNum);
        }
    }

    std::unique_ptr<QnGeMLine2d> Straight(long segNum) {
        auto line = std::make_unique<QnGeMLine2d>(segNum + 1, m_random.OneIn(3));
        for (long i = 0; i <= segNum; ++i) {
            line->SetVertex(i, m_at);
            m_at = Next();
        }
        return line;
    }

    std::unique_ptr<QnGePolyline2d> Bulged(long segNum) {
        auto line = std::make_unique<QnGePolyline2d>(*Straight(segNum));
        for (long i = 0; i <= segNum; ++i) {
            if (m_random.Coin()) {
                line->SetBulge(i, Bulge());
            }
        }
        return line;
    }

    std::unique_ptr<QnGeMCurve2d> Chain(long pieceNum) {
        auto chain = std::make_unique<QnGeMCurve2d>();
        for (long left = pieceNum; left > 0;) {
            const long part = std::min(left, m_random.Long(1, 6));
            chain->Append(Child(part).release());
            left -= part;
        }
        return chain;
    }

private:
    double Coordinate() { return m_lattice ? m_random.Int(0, 12) : m_random.Double(0.0, 12.0); }
    double Step() { return m_lattice ? m_random.Int(-2, 2) : m_random.Double(-2.0, 2.0); }
    double Bulge() { return m_lattice ? m_random.Int(-2, 2) * QN_HALF_PI : m_random.Double(-3.0, 3.0); }
    QnGePoint Next() { return QnGePoint(m_at.x + Step(), m_at.y + Step(), m_random.OneIn(5) ? Step() : 0.0); }

    std::unique_ptr<QnGeCurve2d> Child(long pieceNum) {
        const QnGePoint from = m_at;
        switch (m_random.Int(0, 9)) {
            case 0:
                return Straight(pieceNum);
            case 1:
                return Bulged(pieceNum);
            case 2:
                return pieceNum > 2 ? std::unique_ptr<QnGeCurve2d>(Chain(pieceNum - 1)) : Rare();
            case 3:
            case 4:
            case 5:
                m_at = Next();
                return std::make_unique<QnGeArc2d>(from, m_at, m_random.Coin() ? 1.5 : -2.0);
            default:
                m_at = Next();
                return std::make_unique<QnGeLineSeg2d>(from, m_at);
        }
    }

    std::unique_ptr<QnGeCurve2d> Rare() {
        switch (m_random.Int(0, 5)) {
            case 0:
                return std::make_unique<QnGeLine2d>(m_at, Next());
            case 1:
            case 2: {
                auto ray = std::make_unique<QnGeLineRay2d>(m_at, Next());
                ray->SetReverseRay(m_random.Coin());
                return ray;
            }
            case 3:
                return std::make_unique<QnGeSpline2d>();
            case 4:
                return std::make_unique<QnGeEllipse2d>();
            default:
                return std::make_unique<QnGeCircle2d>(m_at, m_lattice ? 1.0 : m_random.Double(0.1, 2.0));
        }
    }

    RandomSource& m_random;
    bool m_lattice;
    QnGePoint m_at;
};

std::vector<double> SortedPas(RandomSource& random) {
    std::vector<double> pas;
    for (long k = random.Long(0, 8); k > 0; --k) {
        pas.push_back(random.OneIn(3) ? static_cast<double>(random.Long(0, 12)) / 12.0 : random.Double(-0.1, 1.1));
        if (random.OneIn(6)) {
            pas.push_back(pas.back());
        }
    }
    std::sort(pas.begin(), pas.end());
    return pas;
}

}  // namespace

TEST(PiecesAgreement, LongCurvesIntersectLikeAllTheirPairs) {
    long met = 0;
    for (unsigned c = 0; c < CASES; ++c) {
        RandomSource random(BaseSeed() + c);
        const bool lattice = random.Coin();
        const std::unique_ptr<QnGeCurve2d> a = Wanderer(random, lattice).Long(random.Long(1, 60));
        const std::unique_ptr<QnGeCurve2d> b = Wanderer(random, lattice).Long(random.Long(10, 60));
        QnGeObjList plain;
        QnGeObjList found;
        plain_pieces::Intersect(*a, *b, plain);
        const bool any = a->IntersectWith(*b, found);
        EXPECT_EQ(any, !plain.IsEmpty());
        ASSERT_TRUE(BytesOf(found) == BytesOf(plain)) << "seed " << BaseSeed() + c << "\n"
                                                      << ToText(*a) << "\n"
                                                      << ToText(*b);
        met += found.GetLength();
    }
    EXPECT_GT(met, static_cast<long>(CASES)) << "the curves hardly meet";
}

TEST(PiecesAgreement, AChainCrossesItselfLikeAllItsPairs) {
    unsigned crossing = 0;
    for (unsigned c = 0; c < CASES; ++c) {
        RandomSource random(BaseSeed() + c);
        const std::unique_ptr<QnGeMCurve2d> chain = Wanderer(random, random.Coin()).Chain(random.Long(1, 12));
        const bool crosses = chain->IsSelfCross();
        ASSERT_EQ(crosses, plain_pieces::IsSelfCross(*chain)) << "seed " << BaseSeed() + c << "\n" << ToText(*chain);
        crossing += crosses ? 1U : 0U;
    }
    EXPECT_GT(crossing, CASES / 10);
    EXPECT_LT(crossing, CASES - CASES / 10);
}

TEST(PiecesAgreement, SplitGivesTheStretchesOneByOne) {
    for (unsigned c = 0; c < CASES; ++c) {
        RandomSource random(BaseSeed() + c);
        const std::unique_ptr<QnGeCurve2d> curve = Wanderer(random, random.Coin()).Long(random.Long(0, 12));
        const std::vector<double> pas = SortedPas(random);
        QnDynArray<double> given;
        for (const double pa : pas) {
            given.Append(pa);
        }
        QnGeObjList plain;
        QnGeObjList pieces;
        plain_pieces::Split(*curve, pas, plain);
        curve->Split(given, pieces);
        ASSERT_TRUE(BytesOf(pieces) == BytesOf(plain)) << "seed " << BaseSeed() + c << "\n" << ToText(*curve);
    }
}

TEST(PiecesAgreement, AnyStretchIsThatOfThePlainForm) {
    for (unsigned c = 0; c < CASES; ++c) {
        RandomSource random(BaseSeed() + c);
        const std::unique_ptr<QnGeCurve2d> curve = Wanderer(random, random.Coin()).Long(random.Long(0, 12));
        const double pa1 = random.Double(-0.2, 1.2);
        const double pa2 = random.OneIn(5) ? pa1 : random.Double(-0.2, 1.2);
        QnGeObjList plain;
        QnGeObjList stretch;
        plain.Append(plain_pieces::SubCurve(*curve, pa1, pa2));
        stretch.Append(curve->GetSubCurve(pa1, pa2));
        ASSERT_TRUE(BytesOf(stretch) == BytesOf(plain)) << "seed " << BaseSeed() + c << "\n" << ToText(*curve);
    }
}

TEST(PiecesAgreement, WhatIsAskedOfAChainIsAskedOfItsPieces) {
    for (unsigned c = 0; c < CASES; ++c) {
        RandomSource random(BaseSeed() + c);
        const std::unique_ptr<QnGeMCurve2d> chain = Wanderer(random, random.Coin()).Chain(random.Long(1, 8));
        QnGeObjList pieces;
        chain->Explode(pieces);
        double length = 0.0;
        double total = 0.0;
        bool straight = true;
        for (long i = 0; i < pieces.GetLength(); ++i) {
            const auto& piece = static_cast<const QnGeCurve2d&>(*pieces.GetAt(i));
            length += piece.Length();
            total += piece.TotalIntegration();
            straight = straight && piece.IsMLinear();
        }
        ASSERT_EQ(chain->Length(), length) << "seed " << BaseSeed() + c;
        ASSERT_EQ(chain->TotalIntegration(), total) << "seed " << BaseSeed() + c;
        ASSERT_EQ(chain->IsMLinear(), straight) << "seed " << BaseSeed() + c;
        QnGeExtent2d own;
        QnGeExtent2d hull;
        ASSERT_EQ(chain->GetExtent2d(own), pieces.GetExtent2d(hull)) << "seed " << BaseSeed() + c;
        ASSERT_TRUE(own == hull) << "seed " << BaseSeed() + c;
    }
}

TEST(PiecesAgreement, TheCursorOverAChainSurvivesEveryQuestion) {
    const auto chain = ParseGeoAs<QnGeMCurve2d>("chain seg 0,0 4,0 | seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,0");
    chain->MoveTo(2);
    const QnGeMCurve2d& asked = *chain;
    double number = 0.0;
    QnGePoint point;
    QnGeObjList found;
    asked.GetPtFromPa(0.9, point);
    asked.GetPaFromPt(QnGePoint(0.0, 1.0), number);
    asked.GetPaFromDist(15.0, number);
    asked.GetDistFromPa(0.9, number);
    asked.Integration(0.1, 0.9);
    asked.HitTest(QnGePoint(1.0, 1.0));
    asked.IsSelfCross();
    asked.IsValid();
    asked.IntersectWith(asked, found);
    const std::unique_ptr<QnGeCurve2d> stretch(asked.GetSubCurve(0.9, 0.1));
    const std::unique_ptr<QnGeObject> simpler(asked.Symplify());
    const QnGeMCurve2d copy(asked);
    EXPECT_EQ(chain->GetCur(), 2);
    EXPECT_EQ(ToText(*chain->GetCurData()), "seg 4,4 0,4");
}
