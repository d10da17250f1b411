// SPDX-License-Identifier: Apache-2.0
// Lines with fewer vertices: what Symplify_test.cpp leaves open, and that nothing of the shape is lost.
#include <gtest/gtest.h>

#include <cmath>
#include <iostream>
#include <memory>

#include "curves2d/QnGeArc2d.h"
#include "polylines/PolylineTesting.h"
#include "support/StreamBytes.h"

using namespace polyline_testing;

namespace {

/// `expected` "" is null. The line itself stays.
void ExpectSimpler(const std::string& text, const std::string& expected) {
    const auto line = ParseGeoAs<QnGeMLine2d>(text);
    const StreamBytes before = RecordOf(*line);
    const std::unique_ptr<QnGeObject> simpler(line->Symplify());
    EXPECT_EQ(RecordOf(*line), before) << text;
    if (expected.empty()) {
        EXPECT_EQ(simpler, nullptr) << text << "\n  gives\n" << ToText(simpler.get());
    } else {
        ExpectGeo(simpler.get(), expected);
    }
}

void ExpectCompressed(const std::string& text, const std::string& expected) {
    const auto line = ParseGeoAs<QnGeMLine2d>(text);
    line->Compress();
    ExpectGeo(line.get(), expected);
}

/// Steps on a lattice: many run on, turn back, stand still or come back to the start.
QnGePolyline2d LatticeLine(RandomSource& random, bool bulged) {
    QnGePolyline2d line(0, random.OneIn(3));
    QnGePoint at(0.0, 0.0, 0.0);
    const long count = random.Long(1, 9);
    for (long i = 0; i < count; ++i) {
        line.AppendVertex(at, bulged && random.OneIn(3) ? 0.5 * PI * random.Int(-2, 2) : 0.0);
        at.x += random.Int(-1, 1);
        at.y += random.OneIn(3) ? random.Int(-1, 1) : 0;
    }
    if (!line.IsClosed()) {
        line.SetBulge(line.GetVertexNum() - 1, 0.0);
    }
    return line;
}

/// Length and integral of the segments that have a length.
struct Measure {
    double length = 0.0;
    double integral = 0.0;
    long valid = 0;
};

Measure MeasureOf(const QnGeMLine2d& line) {
    Measure measure;
    for (long i = 0; i < line.GetSegNum(); ++i) {
        const std::unique_ptr<QnGeCurve2d> seg(line.GetCurveSeg(i));
        if (seg->IsValid()) {
            measure.length += seg->Length();
            measure.integral += seg->TotalIntegration();
            ++measure.valid;
        }
    }
    return measure;
}

}  // namespace

TEST(QnGeMLine2d_Symplify, OneVertexOrNoSegmentWithALengthIsThePointAtVertexZero) {
    ExpectSimpler("mline 3,4,5", "point 3,4,5");
    ExpectSimpler("mline 3,4 3,4", "point 3,4");
    ExpectSimpler("pline 3,4@1 3,4 close", "point 3,4");
    ExpectSimpler("mline", "");
    ExpectSimpler("mline close", "");
}

TEST(QnGeMLine2d_Symplify, OneSegmentComesOutItself) {
    ExpectSimpler("mline 0,0 4,0", "seg 0,0 4,0");
    ExpectSimpler("mline 0,0 4,0 4,0", "seg 0,0 4,0");
    ExpectSimpler("pline 2,0@pi -2,0", "arc 0,0 r2 from 0 sweep pi");
    ExpectSimpler("pline 2,0 -2,0", "seg 2,0 -2,0");
}

TEST(QnGeMLine2d_Symplify, SeveralThatMergeIntoOneAreStillALine) {
    ExpectSimpler("mline 0,0 1,0 4,0", "mline 0,0 4,0");
    ExpectSimpler("pline 2,0@pi/2 0,2@pi/2 -2,0", "pline 2,0@pi -2,0");
}

TEST(QnGeMLine2d_Symplify, ALineThatOnlyStoodStillLosesTheStop) {
    ExpectSimpler("mline 0,0 4,0 4,0 4,4", "mline 0,0 4,0 4,4");
    ExpectSimpler("pline 0,0 4,0 4,0@1 4,4", "pline 0,0 4,0@1 4,4");
}

TEST(QnGeMLine2d_Symplify, ATurnBackIsNoContinuation) {
    ExpectSimpler("mline 0,0 4,0 1,0", "");
    ExpectSimpler("mline 0,0 4,0 close", "");
    ExpectSimpler("mline 0,0 4,0 1,0 6,0", "");
}

TEST(QnGeMLine2d_Symplify, AFullCircleKeepsTwoArcs) {
    ExpectSimpler("pline 2,0@pi -2,0@pi close", "");
    ExpectSimpler("pline 2,0@pi/2 0,2@pi/2 -2,0@pi close", "pline 2,0@pi -2,0@pi close");
}

TEST(QnGeMLine2d_Compress, InPlaceAndClosedByWhereItsEndsLie) {
    ExpectCompressed("mline 0,0 1,0 4,0", "mline 0,0 4,0");
    ExpectCompressed("mline 0,0 2,0 4,0 4,4 0,0", "mline 0,0 4,0 4,4 close");
    ExpectCompressed("mline 2,0 4,0 4,4 0,4 0,0 close", "mline 4,0 4,4 0,4 0,0 close");
    ExpectCompressed("mline 0,0 4,0 4,0 4,4", "mline 0,0 4,0 4,4");
    ExpectCompressed("pline 2,0@pi/2 0,2@pi/2 -2,0@pi close", "pline 2,0@pi -2,0@pi close");
}

TEST(QnGeMLine2d_Compress, APolylineStaysOneWhereAllIsStraight) {
    ExpectCompressed("pline 0,0 1,0 4,0 4,4", "pline 0,0 4,0 4,4");
}

TEST(QnGeMLine2d_Compress, WithoutASegmentNothingChanges) {
    ExpectCompressed("mline", "mline");
    ExpectCompressed("mline 3,4", "mline 3,4");
    ExpectCompressed("mline 3,4 3,4 close", "mline 3,4 3,4 close");
    ExpectCompressed("pline 3,4 3,4", "pline 3,4 3,4");
}

TEST(QnGeMLine2d_Symplify, NothingOfTheShapeIsLost) {
    std::cout << "seed " << BaseSeed() << '\n';
    RandomSource random(BaseSeed());
    long simpler = 0;
    for (int i = 0; i < PROPERTY_CASES; ++i) {
        const bool bulged = random.Coin();
        const QnGePolyline2d source = LatticeLine(random, bulged);
        const QnGeMLine2d straight(source);
        const QnGeMLine2d& line = bulged ? source : straight;
        const Measure before = MeasureOf(line);
        const std::string told =
            "seed " + std::to_string(BaseSeed()) + " case " + std::to_string(i) + '\n' + Text(line);
        const std::unique_ptr<QnGeObject> result(line.Symplify());
        if (before.valid == 0) {
            ASSERT_NE(result, nullptr) << told;
            ASSERT_EQ(result->GetClassID(), CLASS_ID_POINT2D) << told;
            continue;
        }
        const std::unique_ptr<QnGeObject> clone(line.Clone());
        auto& compressed = static_cast<QnGeMLine2d&>(*clone);
        compressed.Compress();
        const Measure after = MeasureOf(compressed);
        ASSERT_NEAR(after.length, before.length, 1e-9) << told << '\n' << Text(compressed);
        ASSERT_NEAR(after.integral, before.integral, 1e-9) << told << '\n' << Text(compressed);
        ASSERT_EQ(compressed.GetSegNum(), after.valid) << told << '\n' << Text(compressed);
        ASSERT_EQ(compressed.GetCI(), line.GetCI()) << told;
        if (result == nullptr) {
            ASSERT_EQ(after.valid, line.GetSegNum()) << told;
            continue;
        }
        ++simpler;
        const auto* const curve = dynamic_cast<const QnGeCurve2d*>(result.get());
        ASSERT_NE(curve, nullptr) << told;
        ASSERT_NEAR(curve->Length(), before.length, 1e-9) << told << '\n' << ToText(*result);
        ASSERT_NEAR(curve->TotalIntegration(), before.integral, 1e-9) << told << '\n' << ToText(*result);
    }
    EXPECT_GT(simpler, PROPERTY_CASES / 4);
}
