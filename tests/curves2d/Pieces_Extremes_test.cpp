// SPDX-License-Identifier: Apache-2.0
// Curves of many pieces against their plain forms where leaving out far pairs is hardest to get right: with tolerances
// that a caller has set, far from the origin and very small, with degenerate pieces, and with classes of a caller's.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "QuarnGeo.h"
#include "support/RandomSource.h"
#include "support/StreamBytes.h"
#include "support/TextGeo.h"
#include "support/reference/PlainPieces.h"

namespace {

constexpr double FIELD = 1000.0;

struct Setting {
    const char* name;
    double fZero;
    double distZero;
    double angleZero;
    double scale;
    double offset;
};

void PrintTo(const Setting& setting, std::ostream* out) {
    *out << setting.name;
}

StreamBytes BytesOf(const QnGeObjList& list) {
    StreamBytes bytes;
    for (long i = 0; i < list.GetLength(); ++i) {
        const StreamBytes record = RecordOf(*list.GetAt(i));
        bytes.push_back(static_cast<unsigned char>(list.GetAt(i)->GetClassID()));
        bytes.insert(bytes.end(), record.begin(), record.end());
    }
    return bytes;
}

/// Short pieces strewn over a wide field. Many lie on one slanted line or on one circle and yet far from each other, so
/// that only rounding tells whether they meet; some are degenerate.
class Strewer {
public:
    Strewer(RandomSource& random, const Setting& setting) : m_random(random), m_setting(setting) {}

    std::unique_ptr<QnGeMCurve2d> Chain(long count) {
        auto chain = std::make_unique<QnGeMCurve2d>();
        for (long i = 0; i < count; ++i) {
            chain->Append(Piece().release());
        }
        return chain;
    }

private:
    double Place() { return m_random.Double(0.0, FIELD); }
    double Scaled(double v) const { return v * m_setting.scale + m_setting.offset; }
    QnGePoint Point(double x, double y) const { return QnGePoint(Scaled(x), Scaled(y)); }

    std::unique_ptr<QnGeCurve2d> Piece() {
        switch (m_random.Int(0, 6)) {
            case 0:
            case 1:
                return OnTheLine();
            case 2:
                return NearlyOnTheLine();
            case 3:
            case 4:
                return OnTheCircle();
            case 5:
                return SmallRound();
            default:
                return AnySegment();
        }
    }

    std::unique_ptr<QnGeCurve2d> OnTheLine() {
        const double from = Place();
        const double to = from + m_random.Double(-10.0, 10.0);
        return std::make_unique<QnGeLineSeg2d>(Point(from, 0.3 * from), Point(to, 0.3 * to));
    }

    std::unique_ptr<QnGeCurve2d> NearlyOnTheLine() {
        const double from = Place();
        const double to = from + m_random.Double(-10.0, 10.0);
        const double off = std::pow(10.0, m_random.Double(-14.0, -2.0));
        return std::make_unique<QnGeLineSeg2d>(Point(from, 0.3 * from), Point(to, 0.3 * to + off));
    }

    std::unique_ptr<QnGeCurve2d> OnTheCircle() {
        const double sweep = m_random.OneIn(6) ? 0.0 : m_random.Double(1e-6, 0.3);
        return std::make_unique<QnGeArc2d>(Point(500.0, 500.0), 400.0 * m_setting.scale,
                                           m_random.Double(0.0, QN_TWO_PI), sweep, m_random.Coin());
    }

    std::unique_ptr<QnGeCurve2d> SmallRound() {
        const QnGePoint centre = Point(Place(), Place());
        const double radius = m_random.Double(m_random.OneIn(8) ? -5.0 : 0.0, 5.0) * m_setting.scale;
        if (m_random.Coin()) {
            return std::make_unique<QnGeCircle2d>(centre, radius, m_random.Coin());
        }
        return std::make_unique<QnGeArc2d>(centre, radius, m_random.Double(0.0, QN_TWO_PI),
                                           m_random.Double(-0.1, QN_TWO_PI), m_random.Coin());
    }

    std::unique_ptr<QnGeCurve2d> AnySegment() {
        const double x = Place();
        const double y = Place();
        const double longest = m_random.OneIn(4) ? FIELD : 10.0;
        const QnGePoint from = Point(x, y);
        if (m_random.OneIn(10)) {
            return std::make_unique<QnGeLineSeg2d>(from, from);
        }
        return std::make_unique<QnGeLineSeg2d>(
            from, Point(x + m_random.Double(-longest, longest), y + m_random.Double(-longest, longest)));
    }

    RandomSource& m_random;
    const Setting& m_setting;
};

class PiecesExtremes : public ::testing::TestWithParam<Setting> {
protected:
    QnPushVar<double> m_fZero{g_fZero, GetParam().fZero};
    QnPushVar<double> m_distZero{g_distZero, GetParam().distZero};
    QnPushVar<double> m_angleZero{g_angleZero, GetParam().angleZero};
};

const Setting SETTINGS[] = {
    {"Usual", 1e-9, 1e-6, 1e-5, 1.0, 0.0},
    {"WideParameters", 0.1, 1e-6, 1e-5, 1.0, 0.0},
    {"VeryWideParameters", 0.9, 1e-6, 1e-5, 1.0, 0.0},
    {"WideDistances", 1e-9, 5.0, 1e-5, 1.0, 0.0},
    {"WideAngles", 1e-9, 1e-6, 0.5, 1.0, 0.0},
    {"AllWide", 1e-3, 1e-2, 1e-2, 1.0, 0.0},
    {"NarrowParameters", 1e-13, 1e-6, 1e-5, 1.0, 0.0},
    {"ParametersBelowRounding", 1e-17, 1e-6, 1e-5, 1.0, 0.0},
    {"NoDistance", 1e-9, 0.0, 1e-5, 1.0, 0.0},
    {"NoAngle", 1e-9, 1e-6, 0.0, 1.0, 0.0},
    {"NoParameter", 0.0, 1e-6, 1e-5, 1.0, 0.0},
    {"NothingAtAll", 0.0, 0.0, 0.0, 1.0, 0.0},
    {"NegativeDistance", 1e-9, -1e-3, 1e-5, 1.0, 0.0},
    {"NegativeAngle", 1e-9, 1e-6, -0.1, 1.0, 0.0},
    {"Tiny", 1e-9, 1e-6, 1e-5, 1e-7, 0.0},
    {"Huge", 1e-9, 1e-6, 1e-5, 1e7, 0.0},
    {"HugeWithoutTolerance", 1e-9, 0.0, 0.0, 1e9, 0.0},
    {"Far", 1e-9, 1e-6, 1e-5, 1.0, 1e8},
    {"VeryFar", 1e-9, 1e-6, 1e-5, 1.0, 1e13},
};

constexpr unsigned CASES = 600;

}  // namespace

TEST_P(PiecesExtremes, LongCurvesIntersectLikeAllTheirPairs) {
    for (unsigned c = 0; c < CASES; ++c) {
        RandomSource random(BaseSeed() + c);
        Strewer strewer(random, GetParam());
        const std::unique_ptr<QnGeMCurve2d> a = strewer.Chain(33);
        const std::unique_ptr<QnGeMCurve2d> b = strewer.Chain(33);
        QnGeObjList plain;
        QnGeObjList found;
        plain_pieces::Intersect(*a, *b, plain);
        a->IntersectWith(*b, found);
        ASSERT_EQ(found.GetLength(), plain.GetLength()) << "seed " << BaseSeed() + c;
        ASSERT_TRUE(BytesOf(found) == BytesOf(plain)) << "seed " << BaseSeed() + c;
    }
}

TEST_P(PiecesExtremes, AChainCrossesItselfLikeAllItsPairs) {
    for (unsigned c = 0; c < 10 * CASES; ++c) {
        RandomSource random(BaseSeed() + c);
        const std::unique_ptr<QnGeMCurve2d> chain = Strewer(random, GetParam()).Chain(random.Long(1, 6));
        ASSERT_EQ(chain->IsSelfCross(), plain_pieces::IsSelfCross(*chain)) << "seed " << BaseSeed() + c;
    }
}

INSTANTIATE_TEST_SUITE_P(Settings, PiecesExtremes, ::testing::ValuesIn(SETTINGS),
                         [](const auto& setting) { return std::string(setting.param.name); });

// ---- degenerate pieces -------------------------------------------------------------------------------

// What is cut off an arc within g_angleZero of its end has no sweep left, and shares all of any arc of its circle.
TEST(PiecesDegenerate, AnArcWithoutSweepMeetsTheFarSideOfItsCircle) {
    QnGeMCurve2d arcs;
    QnGeMCurve2d ends;
    for (long i = 0; i < 40; ++i) {
        const QnGePoint centre(10.0 * static_cast<double>(i), 0.0);
        arcs.Append(new QnGeArc2d(centre, 2.0, 0.0, 1.0, true));
        ends.Append(new QnGeArc2d(centre, 2.0, 3.0, 0.0, true));
    }
    QnGeObjList plain;
    QnGeObjList found;
    plain_pieces::Intersect(ends, arcs, plain);
    EXPECT_EQ(plain.GetLength(), 40);
    ends.IntersectWith(arcs, found);
    EXPECT_TRUE(BytesOf(found) == BytesOf(plain));
}

// ---- classes of a caller's ---------------------------------------------------------------------------

namespace {

/// A multi-line, by its record, that explodes into something else: a single segment from start to end.
class Shortcut : public QnGeMLine2d {
public:
    using QnGeMLine2d::QnGeMLine2d;
    bool Explode(QnGeObjList& parts) const override {
        parts.Append(new QnGeLineSeg2d(GetVertex(0), GetVertex(GetVertexNum() - 1)));
        return true;
    }
};

Shortcut MakeShortcut() {
    Shortcut line(3, false);
    line.SetVertex(0, QnGePoint(0.0, 0.0));
    line.SetVertex(1, QnGePoint(0.0, 4.0));
    line.SetVertex(2, QnGePoint(3.0, 4.0));
    return line;
}

}  // namespace

TEST(PiecesOfACaller, ADerivedLineIsAskedForItsPieces) {
    const Shortcut line = MakeShortcut();
    EXPECT_EQ(line.Length(), 5.0);
    EXPECT_TRUE(line.IntersectWith(*ParseGeo("seg 1,0 1,2"), *std::make_unique<QnGeObjList>()));
    EXPECT_FALSE(line.IntersectWith(*ParseGeo("seg -1,3 1,3"), *std::make_unique<QnGeObjList>()));
}

// The clone of a class that has none of its own is of the class it comes from.
TEST(PiecesOfACaller, InAChainItsCloneIsThePiece) {
    QnGeMCurve2d chain;
    chain.Append(new Shortcut(MakeShortcut()));
    QnGeObjList pieces;
    chain.Explode(pieces);
    EXPECT_EQ(chain.Length(), static_cast<const QnGeCurve2d&>(*pieces.GetAt(0)).Length());
    EXPECT_EQ(chain.Length(), 7.0);
}

// ---- missing children --------------------------------------------------------------------------------

TEST(PiecesOfAChain, MissingChildrenAreNoPieces) {
    RandomSource random(BaseSeed());
    const std::unique_ptr<QnGeMCurve2d> whole = Strewer(random, SETTINGS[0]).Chain(40);
    const std::unique_ptr<QnGeMCurve2d> other = Strewer(random, SETTINGS[0]).Chain(40);
    QnGeMCurve2d holed;
    for (long i = 0; i < whole->GetSegNum(); ++i) {
        if (i % 7 == 3) {
            holed.Append(nullptr);
        }
        holed.Append(static_cast<QnGeCurve2d*>(whole->GetAt(i)->Clone()));
    }
    QnGeObjList expected;
    QnGeObjList asFirst;
    QnGeObjList expectedBack;
    QnGeObjList asSecond;
    whole->IntersectWith(*other, expected);
    holed.IntersectWith(*other, asFirst);
    EXPECT_TRUE(BytesOf(asFirst) == BytesOf(expected));
    other->IntersectWith(*whole, expectedBack);
    other->IntersectWith(holed, asSecond);
    EXPECT_TRUE(BytesOf(asSecond) == BytesOf(expectedBack));
    EXPECT_EQ(holed.Length(), whole->Length());
    EXPECT_EQ(holed.TotalIntegration(), whole->TotalIntegration());
    EXPECT_FALSE(holed.IsValid());
}

TEST(PiecesOfAChain, AMissingChildHasItsShareOfTheParameter) {
    QnGeMCurve2d chain;
    chain.Append(new QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(4.0, 0.0)));
    chain.Append(nullptr);
    chain.Append(new QnGeLineSeg2d(QnGePoint(4.0, 0.0), QnGePoint(4.0, 4.0)));
    double pa = 0.0;
    EXPECT_TRUE(chain.GetPaFromPt(QnGePoint(4.0, 2.0), pa));
    EXPECT_DOUBLE_EQ(pa, 2.5 / 3.0);
    QnGePoint pt(7.0, 7.0);
    EXPECT_FALSE(chain.GetPtFromPa(0.5, pt));
    EXPECT_EQ(ToText(*std::unique_ptr<QnGeCurve2d>(chain.GetSubCurve(0.0, 1.0))), "chain seg 0,0 4,0 | seg 4,0 4,4");
    EXPECT_TRUE(chain.IsSelfCross()) << "neighbours are those with following indexes";
    chain.Reverse();
    EXPECT_EQ(chain.GetPData(1), nullptr);
    EXPECT_EQ(ToText(*std::unique_ptr<QnGeObject>(chain.Clone())), "chain seg 4,4 4,0 | seg 4,0 0,0");
    chain.Compress();
    EXPECT_EQ(chain.GetSegNum(), 3);
}
