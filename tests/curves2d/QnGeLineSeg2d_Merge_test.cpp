// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>

#include "CurveTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "support/ExpectGeo.h"

using namespace curve_testing;

namespace {

void ExpectConbine(const char* seg, const char* other, bool strictDirection, const char* expected) {
    SCOPED_TRACE(std::string(seg) + " with " + other);
    const auto merged = ParseGeoAs<QnGeLineSeg2d>(seg);
    EXPECT_TRUE(merged->Conbine(*ParseGeoAs<QnGeCurve2d>(other), strictDirection));
    ExpectGeo(*merged, expected);
}

void ExpectNoConbine(const char* seg, const char* other, bool strictDirection) {
    SCOPED_TRACE(std::string(seg) + " with " + other);
    const auto same = ParseGeoAs<QnGeLineSeg2d>(seg);
    EXPECT_FALSE(same->Conbine(*ParseGeoAs<QnGeCurve2d>(other), strictDirection));
    ExpectGeo(*same, seg, 0.0);
}

bool IsSame(const char* a, const char* b, bool sameDirection) {
    return ParseGeoAs<QnGeLineSeg2d>(a)->IsSameSeg(*ParseGeoAs<QnGeLineSeg2d>(b), sameDirection);
}

void ExpectSubtract(const char* seg, const char* other, const char* expected) {
    SCOPED_TRACE(std::string(seg) + " less " + other);
    QnGeObjList rest;
    EXPECT_TRUE(ParseGeoAs<QnGeLineSeg2d>(seg)->SubtractBy(*ParseGeoAs<QnGeLineSeg2d>(other), rest));
    ExpectGeoList(rest, expected);
}

void ExpectNoSubtract(const char* seg, const char* other) {
    SCOPED_TRACE(std::string(seg) + " less " + other);
    QnGeObjList rest;
    rest.Append(ParseGeo("point 9,9").release());
    EXPECT_FALSE(ParseGeoAs<QnGeLineSeg2d>(seg)->SubtractBy(*ParseGeoAs<QnGeLineSeg2d>(other), rest));
    ExpectGeoList(rest, "point 9,9");
}

void ExpectSubtractAll(const char* seg, const char* cutters, const char* expected) {
    SCOPED_TRACE(std::string(seg) + " less all of " + cutters);
    QnGeObjList list;
    ParseGeoList(cutters, list);
    QnGeObjList rest;
    ParseGeoAs<QnGeLineSeg2d>(seg)->SubtractBy(list, rest);
    ExpectGeoList(rest, expected);
}

}  // namespace

TEST(QnGeLineSeg2d_Conbine, TouchingSegmentsMerge) {
    ExpectConbine("seg 0,0 1,0", "seg 1,0 2,0", true, "seg 0,0 2,0");
    ExpectConbine("seg 1,0 2,0", "seg 0,0 1,0", true, "seg 0,0 2,0");
    ExpectConbine("seg 0,0 1,0", "seg 1.0000000005,0 2,0", true, "seg 0,0 2,0");
}

TEST(QnGeLineSeg2d_Conbine, OverlapsMerge) {
    ExpectConbine("seg 0,0 4,0", "seg 1,0 6,0", true, "seg 0,0 6,0");
    ExpectConbine("seg 0,0 4,0", "seg -2,0 6,0", true, "seg -2,0 6,0");
    ExpectConbine("seg 0,0 4,0", "seg 1,0 2,0", true, "seg 0,0 4,0");
    ExpectConbine("seg 0,0 3,3", "seg 2,2 5,5", true, "seg 0,0 5,5");
}

TEST(QnGeLineSeg2d_Conbine, OppositeDirectionsMergeUnlessRefused) {
    ExpectConbine("seg 0,0 1,0", "seg 2,0 1,0", false, "seg 0,0 2,0");
    ExpectConbine("seg 1,0 0,0", "seg 1,0 2,0", false, "seg 2,0 0,0");
    ExpectNoConbine("seg 0,0 1,0", "seg 2,0 1,0", true);
    ExpectNoConbine("seg 0,0 1,0", "seg 3,0 2,0", true);
}

TEST(QnGeLineSeg2d_Conbine, GapsAndOtherLinesDoNotMerge) {
    ExpectNoConbine("seg 0,0 1,0", "seg 3,0 2,0", false);
    ExpectNoConbine("seg 0,0 1,0", "seg 1.00000001,0 2,0", false);
    ExpectNoConbine("seg 0,0 1,0", "seg 1,0 2,1", false);
    ExpectNoConbine("seg 0,0 1,0", "seg 0,1 1,1", false);
}

TEST(QnGeLineSeg2d_Conbine, OnlySegmentsMerge) {
    ExpectNoConbine("seg 0,0 1,0", "line 0,0 1,0", false);
    ExpectNoConbine("seg 0,0 1,0", "ray 0,0 1,0", false);
    ExpectNoConbine("seg 0,0 1,0", "mline 0,0 1,0", false);
    ExpectNoConbine("seg 0,0 1,0", "arc 0,0 r1 from 0 sweep 1", false);
}

TEST(QnGeLineSeg2d_Conbine, HeightFollowsThisSegment) {
    ExpectConbine("seg 0,0,0 1,0,1", "seg 1,0,7 2,0,7", true, "seg 0,0,0 2,0,2");
}

TEST(QnGeLineSeg2d_IsSameSeg, InOneDirectionOrEither) {
    EXPECT_TRUE(IsSame("seg 0,0 4,1", "seg 0,0 4,1", true));
    EXPECT_TRUE(IsSame("seg 0,0 4,1", "seg 0,0 4,1", false));
    EXPECT_TRUE(IsSame("seg 0,0 4,1", "seg 4,1 0,0", false));
    EXPECT_FALSE(IsSame("seg 0,0 4,1", "seg 4,1 0,0", true));
    EXPECT_FALSE(IsSame("seg 0,0 4,1", "seg 0,0 4,2", false));
    EXPECT_FALSE(IsSame("seg 0,0 4,1", "seg 4,1 8,2", false));
    EXPECT_FALSE(IsSame("seg 0,0 4,1", "seg 1,0 5,1", false));
    EXPECT_TRUE(IsSame("seg 0,0,0 4,1,0", "seg 0,0,5 4,1,9", true)) << "in plan";
}

TEST(QnGeLineSeg2d_IsSameSeg, WithinTheDistanceTolerance) {
    EXPECT_TRUE(IsSame("seg 0,0 4,0", "seg 0,0.9e-6 4,0.9e-6", true));
    EXPECT_FALSE(IsSame("seg 0,0 4,0", "seg 0,1.1e-6 4,1.1e-6", true));
    EXPECT_TRUE(IsSame("seg 0,0 4,0", "seg 4.0000009,0 0.0000009,0", false));
    EXPECT_FALSE(IsSame("seg 0,0 4,0", "seg 4.0000011,0 0.0000011,0", false));
}

TEST(QnGeLineSeg2d_SubtractBy, OneSegment) {
    ExpectSubtract("seg 0,0 4,0", "seg 1,0 2,0", "seg 0,0 1,0; seg 2,0 4,0");
    ExpectSubtract("seg 0,0 4,0", "seg 2,0 1,0", "seg 0,0 1,0; seg 2,0 4,0");
    ExpectSubtract("seg 4,0 0,0", "seg 1,0 2,0", "seg 4,0 2,0; seg 1,0 0,0");
    ExpectSubtract("seg 0,0 4,0", "seg -1,0 2,0", "seg 2,0 4,0");
    ExpectSubtract("seg 0,0 4,0", "seg 2,0 9,0", "seg 0,0 2,0");
    ExpectSubtract("seg 0,0 4,0", "seg 0,0 2,0", "seg 2,0 4,0");
}

TEST(QnGeLineSeg2d_SubtractBy, NothingRemainsOfACoveredSegment) {
    ExpectSubtract("seg 0,0 4,0", "seg 0,0 4,0", "");
    ExpectSubtract("seg 0,0 4,0", "seg 5,0 -1,0", "");
}

TEST(QnGeLineSeg2d_SubtractBy, WithoutACommonStretchTheAnswerIsFalse) {
    ExpectNoSubtract("seg 0,0 4,0", "seg 5,0 6,0");
    ExpectNoSubtract("seg 0,0 4,0", "seg 4,0 6,0");
    ExpectNoSubtract("seg 0,0 4,0", "seg 1,-1 1,1");
    ExpectNoSubtract("seg 0,0 4,0", "seg 0,1 4,1");
}

TEST(QnGeLineSeg2d_SubtractBy, ManySegments) {
    ExpectSubtractAll("seg 0,0 9,0", "seg 1,0 2,0; seg 4,0 5,0", "seg 0,0 1,0; seg 2,0 4,0; seg 5,0 9,0");
    ExpectSubtractAll("seg 0,0 9,0", "", "seg 0,0 9,0");
    ExpectSubtractAll("seg 0,0 9,0", "seg 20,0 30,0", "seg 0,0 9,0");
    ExpectSubtractAll("seg 0,0 9,0", "seg 0,0 5,0; seg 5,0 9,0", "");
    ExpectSubtractAll("seg 0,0 9,0", "seg 0,0 5,0; seg 4,0 9,0; seg 1,0 2,0", "");
}

TEST(QnGeLineSeg2d_SubtractBy, PiecesStandInTheOrderOfTheirMaking) {
    // The first cutter leaves 0-4 and 5-9; the second cuts 0-4, whose rest goes behind 5-9.
    ExpectSubtractAll("seg 0,0 9,0", "seg 4,0 5,0; seg 1,0 2,0", "seg 5,0 9,0; seg 0,0 1,0; seg 2,0 4,0");
    // A cutter over both pieces cuts them in their order.
    ExpectSubtractAll("seg 0,0 9,0", "seg 4,0 5,0; seg 3,0 6,0", "seg 0,0 3,0; seg 6,0 9,0");
}

TEST(QnGeLineSeg2d_SubtractBy, OtherClassesInTheListAreSkipped) {
    ExpectSubtractAll("seg 0,0 9,0", "line 0,0 1,0; ray 3,0 1,0; mline 1,0 2,0; seg 4,0 5,0; point 1,0",
                      "seg 0,0 4,0; seg 5,0 9,0");
    QnGeObjList cutters;
    cutters.Append(nullptr);
    QnGeObjList rest;
    ParseGeoAs<QnGeLineSeg2d>("seg 0,0 9,0")->SubtractBy(cutters, rest);
    ExpectGeoList(rest, "seg 0,0 9,0");
}

TEST(QnGeLineSeg2d_SubtractBy, ResultsGoBehindWhatIsThere) {
    QnGeObjList cutters;
    ParseGeoList("seg 4,0 5,0", cutters);
    QnGeObjList rest;
    ParseGeoList("point 9,9", rest);
    ParseGeoAs<QnGeLineSeg2d>("seg 0,0 9,0")->SubtractBy(cutters, rest);
    ExpectGeoList(rest, "point 9,9; seg 0,0 4,0; seg 5,0 9,0");
}
