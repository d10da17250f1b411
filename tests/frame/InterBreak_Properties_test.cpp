// SPDX-License-Identifier: Apache-2.0
// What holds of the pieces of curves that were broken where they meet, on random curves of all classes with a length.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "frame/CurveSoup.h"
#include "frame/PieceList.h"
#include "frame/QnGeObjList.h"
#include "support/TextGeo.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGePoint2d.h"

namespace {

constexpr double NEAR_AN_END = 1e-5;
constexpr double LENGTH_ERROR = 1e-9;

bool IsAtAnEnd(const QnGeCurve2d& curve, const QnGePoint& pt) {
    QnGePoint start;
    QnGePoint end;
    const bool hasStart = curve.GetStartPoint(start) || curve.IsFinite(true);
    const bool hasEnd = curve.GetEndPoint(end) || curve.IsFinite(false);
    return (hasStart && GetDistance2d(start, pt) < NEAR_AN_END) || (hasEnd && GetDistance2d(end, pt) < NEAR_AN_END);
}

/// "" if what the two share are ends of both; a stretch only where `stretches` are allowed.
std::string CheckPair(const QnGeCurve2d& a, const QnGeCurve2d& b, bool stretches) {
    QnGeObjList hits;
    a.IntersectWith(b, hits);
    for (auto entry = hits.GetFirst(); entry != nullptr; entry = hits.GetNext(entry)) {
        if ((*entry)->GetClassID() != CLASS_ID_POINT2D) {
            const auto& stretch = static_cast<const QnGeCurve2d&>(**entry);
            if (!stretches && stretch.Length() > NEAR_AN_END) {
                return ToText(a) + "\n  and\n" + ToText(b) + "\n  share\n" + ToText(stretch);
            }
            continue;
        }
        const auto& pt = static_cast<const QnGePoint2d&>(**entry);
        if (!IsAtAnEnd(a, pt) || !IsAtAnEnd(b, pt)) {
            return ToText(a) + "\n  and\n" + ToText(b) + "\n  meet in\n" + ToText(pt);
        }
    }
    return "";
}

std::string CheckPieces(const QnGeObjList& pieces, bool stretches) {
    const std::vector<const QnGeCurve2d*> curves = CurvesOf(pieces);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        QnGeExtent2d extent;
        curves[i]->GetExtent2d(extent);
        for (std::size_t j = 0; j < i; ++j) {
            const std::string fault =
                curves[j]->IsExtentInter(extent) ? CheckPair(*curves[i], *curves[j], stretches) : "";
            if (!fault.empty()) {
                return fault;
            }
        }
    }
    return "";
}

/// A curve with a length that does not meet itself.
QnGeCurve2d* AnySimpleCurve(RandomSource& random, CurveSoup& soup) {
    switch (random.Int(0, 7)) {
        case 0:
            return new QnGeCircle2d(soup.Circle());
        case 1:
        case 2:
            return new QnGeArc2d(soup.Arc());
        case 3: {
            auto corner = std::make_unique<QnGeMLine2d>(3, false);
            for (long i = 0; i < 3; ++i) {
                corner->SetVertex(i, soup.Point());
            }
            return corner.release();
        }
        default: {
            const QnGePoint from = soup.Point();
            return new QnGeLineSeg2d(from, soup.Point());
        }
    }
}

/// Segments on a lattice: ends on ends and on insides, overlaps, equal ones.
void AppendLatticeSegments(RandomSource& random, QnGeObjList& list) {
    for (long k = random.Long(2, 9); k > 0; --k) {
        const QnGePoint from(random.Int(0, 5), random.Int(0, 5));
        QnGePoint to(random.Int(0, 5), random.Int(0, 5));
        if (GetDistance2d(from, to) < 0.5) {
            to.x += 1.0;
        }
        list.Append(new QnGeLineSeg2d(from, to));
    }
}

TEST(InterBreakProperties, PiecesMeetOnlyAtEndsAndKeepTheLength) {
    long cuts = 0;
    for (unsigned i = 0; i < 10000; ++i) {
        RandomSource random(BaseSeed() + i);
        CurveSoup soup(random, false);
        QnGeObjList list;
        for (long k = random.Long(2, 7); k > 0; --k) {
            list.Append(AnySimpleCurve(random, soup));
        }
        QnGeObjList pieces;
        list.InterBreakCurve2d(pieces);
        const double length = LengthOf(list);
        ASSERT_NEAR(LengthOf(pieces), length, LENGTH_ERROR * length) << "seed " << BaseSeed() + i << "\n"
                                                                     << ToText(list) << "\n  gives\n"
                                                                     << ToText(pieces);
        ASSERT_EQ(CheckPieces(pieces, false), "") << "seed " << BaseSeed() + i << "\n" << ToText(list);
        cuts += pieces.GetLength() - list.GetLength();
    }
    EXPECT_GT(cuts, 50000);
}

TEST(InterBreakProperties, LatticeSegmentsKeepTheirLengthAndShareWholePieces) {
    for (unsigned i = 0; i < 10000; ++i) {
        RandomSource random(BaseSeed() + i);
        QnGeObjList list;
        AppendLatticeSegments(random, list);
        QnGeObjList pieces;
        list.InterBreakCurve2d(pieces);
        const double length = LengthOf(list);
        ASSERT_NEAR(LengthOf(pieces), length, LENGTH_ERROR * length) << "seed " << BaseSeed() + i;
        ASSERT_EQ(CheckPieces(pieces, true), "") << "seed " << BaseSeed() + i << "\n" << ToText(list);
        // breaking again changes nothing
        QnGeObjList again;
        pieces.InterBreakCurve2d(again);
        ASSERT_TRUE(IsNearGeo(again, pieces, 1e-8)) << "seed " << BaseSeed() + i << "\n" << ToText(list);
    }
}

TEST(InterBreakProperties, TheOtherFormKeepsOverlapsOnce) {
    for (unsigned i = 0; i < 10000; ++i) {
        RandomSource random(BaseSeed() + i);
        QnGeObjList list;
        AppendLatticeSegments(random, list);
        QnGeObjList pieces;
        list.InterBreakCurveEx2d(pieces);
        ASSERT_EQ(CheckPieces(pieces, false), "") << "seed " << BaseSeed() + i << "\n"
                                                  << ToText(list) << "\n  gives\n"
                                                  << ToText(pieces);
        // and leaves nothing out: every piece of the plain form has its twin
        QnGeObjList all;
        list.InterBreakCurve2d(all);
        for (const QnGeCurve2d* piece : CurvesOf(all)) {
            bool isThere = false;
            for (const QnGeCurve2d* kept : CurvesOf(pieces)) {
                isThere = isThere || static_cast<const QnGeLineSeg2d*>(kept)->IsSameSeg(
                                         static_cast<const QnGeLineSeg2d&>(*piece), false);
            }
            ASSERT_TRUE(isThere) << ToText(*piece) << " of seed " << BaseSeed() + i << "\n" << ToText(list);
        }
    }
}

}  // namespace
