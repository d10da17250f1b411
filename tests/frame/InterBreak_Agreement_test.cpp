// SPDX-License-Identifier: Apache-2.0
// Breaking a list's curves where they meet against the plain form: the same pieces in the same order, bit for bit.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>

#include "frame/CurveSoup.h"
#include "frame/QnGeObjList.h"
#include "frame/QnPushVar.h"
#include "support/StreamBytes.h"
#include "support/TextGeo.h"
#include "support/reference/PlainInterBreak.h"

namespace {

void ExpectSamePieces(const QnGeObjList& list, const std::string& what) {
    const StreamBytes before = RecordOf(list);
    QnGeObjList plain;
    QnGeObjList fast;
    plain_inter_break::Break(list, plain);
    list.InterBreakCurve2d(fast);
    ASSERT_EQ(RecordOf(fast), RecordOf(plain)) << what << "\n[" << ToText(list) << "]\n  gives\n[" << ToText(fast)
                                               << "]\n  instead of\n[" << ToText(plain) << ']';
    QnGeObjList plainOnce;
    QnGeObjList fastOnce;
    plain_inter_break::BreakEx(list, plainOnce);
    list.InterBreakCurveEx2d(fastOnce);
    ASSERT_EQ(RecordOf(fastOnce), RecordOf(plainOnce))
        << what << ", overlaps once\n[" << ToText(list) << "]\n  gives\n[" << ToText(fastOnce) << "]\n  instead of\n["
        << ToText(plainOnce) << ']';
    EXPECT_EQ(RecordOf(list), before) << what << ": the members stay";
}

TEST(InterBreakAgreement, OfObjectsOfAllClasses) {
    for (unsigned i = 0; i < 10000; ++i) {
        RandomSource random(BaseSeed() + i);
        CurveSoup soup(random, random.Coin());
        QnGeObjList list;
        for (long k = random.Long(0, 8); k > 0; --k) {
            list.Append(soup.Any());
        }
        ExpectSamePieces(list, "seed " + std::to_string(BaseSeed() + i));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

/// A walk over a lattice or anywhere, sometimes back and forth, in place, or through what is no number.
QnGeMLine2d AnyWalk(RandomSource& random, bool lattice) {
    const long most = random.OneIn(20) ? 200 : 12;
    QnGeMLine2d walk(random.Long(0, most), random.OneIn(4));
    QnGePoint at(random.Int(0, 8), random.Int(0, 8));
    for (long i = 0; i < walk.GetVertexNum(); ++i) {
        at.x += lattice ? random.Int(-1, 1) : random.Double(-1.0, 1.0);
        at.y += lattice ? random.Int(-1, 1) : random.Double(-1.0, 1.0);
        const bool isSpoilt = random.OneIn(400);
        walk.SetVertex(i, isSpoilt ? QnGePoint(random.Coin() ? std::nan("") : HUGE_VAL, at.y) : at);
    }
    return walk;
}

TEST(InterBreakAgreement, OfMultiLinesAndSegments) {
    for (unsigned i = 0; i < 4000; ++i) {
        RandomSource random(BaseSeed() + i);
        const bool lattice = random.Coin();
        CurveSoup soup(random, lattice);
        QnGeObjList list;
        for (long k = random.Long(2, 8); k > 0; --k) {
            if (random.OneIn(3)) {
                list.Append(random.OneIn(5) ? soup.Any() : new QnGeLineSeg2d(soup.Segment()));
            } else {
                list.Append(new QnGeMLine2d(AnyWalk(random, lattice)));
            }
        }
        ExpectSamePieces(list, "seed " + std::to_string(BaseSeed() + i));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(InterBreakAgreement, OfManySegments) {
    for (unsigned i = 0; i < 300; ++i) {
        RandomSource random(BaseSeed() + i);
        CurveSoup soup(random, i % 3 == 0);
        QnGeObjList list;
        for (long k = random.Long(20, 60); k > 0; --k) {
            list.Append(new QnGeLineSeg2d(soup.Segment()));
        }
        if (random.OneIn(4)) {
            list.Append(soup.Any());
        }
        ExpectSamePieces(list, "seed " + std::to_string(BaseSeed() + i));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

// Distances about the tolerances: ends a hair off other segments, nearly parallel pairs, far from the origin.
TEST(InterBreakAgreement, OfSegmentsAboutTheTolerances) {
    for (unsigned i = 0; i < 3000; ++i) {
        RandomSource random(BaseSeed() + i);
        const double base = random.OneIn(3) ? 1e6 : 0.0;
        const auto coordinate = [&] {
            const double hair = random.Int(-3, 3) * 0.5 * (random.Coin() ? 1e-6 : 1e-9);
            return base + random.Int(0, 3) + hair;
        };
        QnGeObjList list;
        for (long k = random.Long(2, 10); k > 0; --k) {
            const QnGePoint from(coordinate(), coordinate());
            list.Append(new QnGeLineSeg2d(from, QnGePoint(coordinate(), coordinate())));
        }
        ExpectSamePieces(list, "seed " + std::to_string(BaseSeed() + i));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(InterBreakAgreement, OfCoordinatesThatAreNoNumbers) {
    const double odd[] = {std::nan(""), HUGE_VAL, -HUGE_VAL, 1e300, -1e300, 1e60, -0.0};
    for (unsigned i = 0; i < 2000; ++i) {
        RandomSource random(BaseSeed() + i);
        const auto coordinate = [&] { return random.OneIn(12) ? odd[random.Int(0, 6)] : random.Int(0, 4); };
        QnGeObjList list;
        for (long k = random.Long(2, 8); k > 0; --k) {
            const QnGePoint from(coordinate(), coordinate());
            list.Append(new QnGeLineSeg2d(from, QnGePoint(coordinate(), coordinate())));
        }
        ExpectSamePieces(list, "seed " + std::to_string(BaseSeed() + i));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

// So far off that distances are out of range: a segment may then say of any point that it lies there.
TEST(InterBreakAgreement, OfMultiLinesOutOfRange) {
    const double odd[] = {std::nan(""), 1e199, 1e200, -3e160};
    for (unsigned i = 0; i < 600; ++i) {
        RandomSource random(BaseSeed() + i);
        CurveSoup soup(random, random.Coin());
        QnGeObjList list;
        for (long k = random.Long(2, 14); k > 0; --k) {
            auto line = std::make_unique<QnGeMLine2d>(0, random.Coin());
            QnGePoint at;
            for (long n = random.Long(0, 9); n > 0; --n) {
                at = random.OneIn(3) ? at : soup.Point();
                if (random.OneIn(10)) {
                    (random.Coin() ? at.x : at.y) = odd[random.Int(0, 3)];
                }
                line->AppendVertex(at);
            }
            list.Append(line.release());
        }
        ExpectSamePieces(list, "seed " + std::to_string(BaseSeed() + i));
        if (testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(InterBreakAgreement, UnderOtherTolerances) {
    struct {
        double parameter;
        double length;
    } const tolerances[] = {{1e-9, 0.0}, {1e-9, -1e-6}, {1e-6, 1e-3}, {1e-3, 0.5}, {1e-9, 1e300}, {0.0, 1e-6}};
    for (const auto& tolerance : tolerances) {
        for (unsigned i = 0; i < 300; ++i) {
            RandomSource random(BaseSeed() + i);
            CurveSoup soup(random, random.Coin());
            QnGeObjList list;
            for (long k = random.Long(2, 8); k > 0; --k) {
                if (random.OneIn(4)) {
                    list.Append(new QnGeArc2d(soup.Arc()));
                } else if (random.OneIn(3)) {
                    list.Append(new QnGeMLine2d(AnyWalk(random, random.Coin())));
                } else {
                    list.Append(new QnGeLineSeg2d(soup.Segment()));
                }
            }
            const QnPushVar<double> parameter(g_fZero, tolerance.parameter);
            const QnPushVar<double> length(g_distZero, tolerance.length);
            ExpectSamePieces(list, "seed " + std::to_string(BaseSeed() + i));
            if (testing::Test::HasFatalFailure()) {
                return;
            }
        }
    }
}

}  // namespace
