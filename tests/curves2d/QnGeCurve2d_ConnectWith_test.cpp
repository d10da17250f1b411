// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "EndTesting.h"

using namespace end_testing;

namespace {

/// `first.ConnectWith(next)` answers `wanted` and leaves the two as the last texts say.
void ExpectConnectWith(const char* first, const char* next, bool wanted, const char* firstAfter,
                       const char* nextAfter) {
    const auto a = ParseGeoAs<QnGeCurve2d>(first);
    const auto b = ParseGeoAs<QnGeCurve2d>(next);
    EXPECT_EQ(a->ConnectWith(*b), wanted) << first << "\n  with\n" << next;
    EXPECT_EQ(a->IsConnectWith(*b), wanted) << first << "\n  with\n" << next;
    ExpectGeo(*a, firstAfter);
    ExpectGeo(*b, nextAfter);
}

void ExpectJoined(const char* first, const char* second, bool atStartA, bool atStartB, const char* firstAfter,
                  const char* secondAfter) {
    const auto a = ParseGeoAs<QnGeCurve2d>(first);
    const auto b = ParseGeoAs<QnGeCurve2d>(second);
    EXPECT_TRUE(ConnectCurveSeg(a.get(), b.get(), atStartA, atStartB)) << first << "\n  with\n" << second;
    ExpectGeo(*a, firstAfter);
    ExpectGeo(*b, secondAfter);
}

/// ConnectCurveSeg answers false and neither curve changes by a bit.
void ExpectNotJoined(const char* first, const char* second, bool atStartA, bool atStartB) {
    const auto a = ParseGeoAs<QnGeCurve2d>(first);
    const auto b = ParseGeoAs<QnGeCurve2d>(second);
    const StreamBytes beforeA = RecordOf(*a);
    const StreamBytes beforeB = RecordOf(*b);
    EXPECT_FALSE(ConnectCurveSeg(a.get(), b.get(), atStartA, atStartB)) << ToText(*a) << "\n  with\n" << ToText(*b);
    EXPECT_EQ(RecordOf(*a), beforeA) << first << "\n  became\n" << ToText(*a);
    EXPECT_EQ(RecordOf(*b), beforeB) << second << "\n  became\n" << ToText(*b);
}

/// The same curve run through the other way.
std::string Reversed(const char* curve) {
    const auto reversed = ParseGeoAs<QnGeCurve2d>(curve);
    reversed->Reverse();
    return ToText(*reversed);
}

}  // namespace

// ---- ConnectWith -------------------------------------------------------------------------------------

TEST(QnGeCurve2d_ConnectWith, BothEndsMoveToTheCrossingOfTheCarriers) {
    ExpectConnectWith("seg 0,0 3,0", "seg 5,1 5,9", true, "seg 0,0 5,0", "seg 5,0 5,9");
    ExpectConnectWith("seg 0,0 7,0", "seg 5,-1 5,9", true, "seg 0,0 5,0", "seg 5,0 5,9");
    ExpectConnectWith("arc 0,0 r2 from 0 sweep 2", "seg -1,0 -5,0", true, "arc 0,0 r2 from 0 sweep pi",
                      "seg -2,0 -5,0");
    ExpectConnectWith("seg -5,2 -1,2", "arc 0,0 r2 from 1 sweep 1 cw", true, "seg -5,2 0,2",
                      "arc 0,0 r2 from 3pi/2 sweep 3.570796326794897 cw");
    ExpectConnectWith("pline 0,0 1,0 3,0", "seg 5,1 5,9", true, "pline 0,0 1,0 3,0 5,0", "seg 5,0 5,9");
    ExpectConnectWith("pline 0,0 3,0", "pline 5,1 5,9", true, "pline 0,0 3,0 5,0", "pline 5,0 5,1 5,9");
}

TEST(QnGeCurve2d_ConnectWith, WhatIsConnectedStaysAsItIs) {
    ExpectConnectWith("seg 0,0 4,0", "seg 4,0 4,4", true, "seg 0,0 4,0", "seg 4,0 4,4");
    ExpectConnectWith("seg 0,0 4,0", "seg 4.0000009,0 4,4", true, "seg 0,0 4,0", "seg 4.0000009,0 4,4");
    ExpectConnectWith("ray reversed 4,0 1,0", "ray 4,0 0,1", true, "ray reversed 4,0 1,0", "ray 4,0 0,1");
}

TEST(QnGeCurve2d_ConnectWith, WithoutAnExtensionCurveNothingMoves) {
    ExpectConnectWith("ray reversed 4,0 1,0", "seg 5,1 5,9", false, "ray reversed 4,0 1,0", "seg 5,1 5,9");
    ExpectConnectWith("seg 0,0 3,0", "ray 5,1 0,1", false, "seg 0,0 3,0", "ray 5,1 0,1");
}

TEST(QnGeCurve2d_ConnectWith, ParallelsStayApart) {
    ExpectConnectWith("seg 0,0 4,0", "seg 4,1 8,1", false, "seg 0,0 4,0", "seg 4,1 8,1");
    ExpectConnectWith("arc 0,0 r2 from 0 sweep 1", "arc 0,0 r3 from 1 sweep 1", false, "arc 0,0 r2 from 0 sweep 1",
                      "arc 0,0 r3 from 1 sweep 1");
}

TEST(QnGeCurve2d_ConnectWith, KeptOddOneEndMayHaveMovedWhenTheAnswerIsFalse) {
    ExpectConnectWith("seg 0,0 3,0", "circle 6,0 r1", false, "seg 0,0 5,0", "circle 6,0 r1");
    ExpectConnectWith("seg 0,0 3,0", "mline 5,1 5,9", false, "seg 0,0 5,0", "mline 5,1 5,9");
}

// ---- ConnectCurveSeg ---------------------------------------------------------------------------------

TEST(ConnectCurveSeg, EachPairOfEnds) {
    ExpectJoined("seg 0,0 3,0", "seg 5,1 5,9", END, START, "seg 0,0 5,0", "seg 5,0 5,9");
    ExpectJoined("seg 0,0 3,0", "seg 5,9 5,1", END, END, "seg 0,0 5,0", "seg 5,9 5,0");
    ExpectJoined("seg 3,0 0,0", "seg 5,1 5,9", START, START, "seg 5,0 0,0", "seg 5,0 5,9");
    ExpectJoined("seg 3,0 0,0", "seg 5,9 5,1", START, END, "seg 5,0 0,0", "seg 5,9 5,0");
}

TEST(ConnectCurveSeg, EndsThatMeetAlreadyStay) {
    ExpectJoined("seg 0,0 4,0", "seg 4,0 4,4", END, START, "seg 0,0 4,0", "seg 4,0 4,4");
    ExpectJoined("seg 0,0 4,0", "seg 4,0.0000009 4,4", END, START, "seg 0,0 4,0", "seg 4,0.0000009 4,4");
    ExpectJoined("seg 0,0 4,0", "seg 5,5 4,0", END, END, "seg 0,0 4,0", "seg 5,5 4,0");
    ExpectJoined("seg 0,0 4,0", "seg 0,0 5,5", START, START, "seg 0,0 4,0", "seg 0,0 5,5");
    ExpectJoined("ray 0,0 1,0", "seg -5,0 0,0", START, END, "ray 0,0 1,0", "seg -5,0 0,0");
}

TEST(ConnectCurveSeg, WithoutAnExtensionCurve) {
    ExpectNotJoined("ray 0,0 1,0", "seg -5,1 -5,5", START, START);
    ExpectNotJoined("seg -5,1 -5,5", "ray 0,0 1,0", START, START);
    ExpectNotJoined("ray 0,0 1,0", "ray 0,5 1,0", START, START);
}

TEST(ConnectCurveSeg, ParallelsStayApart) {
    ExpectNotJoined("seg 0,0 4,0", "seg 4,1 8,1", END, START);
    ExpectNotJoined("seg 0,0 4,0", "seg 5,0 8,0", END, START);
    ExpectNotJoined("arc 0,0 r2 from 0 sweep 1", "arc 0,0 r3 from 1 sweep 1", END, START);
}

TEST(ConnectCurveSeg, WhereOnlyOneCanComeNeitherMoves) {
    ExpectNotJoined("seg 0,0 3,0", "mline 5,1 5,9", END, START);
    ExpectNotJoined("mline 5,1 5,9", "seg 0,0 3,0", START, END);
    // The crossing lies behind the start that stays.
    ExpectNotJoined("seg 0,0 4,0", "seg -2,-3 -2,-1", END, END);
}

TEST(ConnectCurveSeg, NoMemberMayTurnRound) {
    // The arc would run on to seven sixths of a half turn: more than a quarter turn past its end.
    const char* const quarter = "arc 0,0 r2 from 0 sweep pi/2";
    const char* const beyond = "seg -2.232050807568877,-0.5 -3.732050807568877,1";
    ExpectNotJoined(quarter, beyond, END, START);
    ExpectNotJoined(beyond, quarter, START, END);
    ExpectNotJoined(Reversed(quarter).c_str(), beyond, START, START);
    ExpectNotJoined(beyond, Reversed(quarter).c_str(), START, START);
}

TEST(ConnectCurveSeg, LessThanAQuarterTurnIsNoTurningRound) {
    ExpectJoined("arc 0,0 r2 from 0 sweep pi/2", "seg -1.732050807568877,2 -1.732050807568877,5", END, START,
                 "arc 0,0 r2 from 0 sweep 2.617993877991494", "seg -1.732050807568877,1 -1.732050807568877,5");
}

TEST(ConnectCurveSeg, NoMemberMayGrowMoreThanFivefold) {
    ExpectJoined("seg 0,0 1,0", "seg 5,1 5,9", END, START, "seg 0,0 5,0", "seg 5,0 5,9");
    ExpectNotJoined("seg 0,0 1,0", "seg 5.000001,1 5.000001,9", END, START);
    ExpectNotJoined("seg 0,0 1,0", "seg 6,1 6,9", END, START);
    ExpectJoined("seg 0,0 10,0", "seg 12,4 12,5", END, START, "seg 0,0 12,0", "seg 12,0 12,5");
    ExpectNotJoined("seg 0,0 10,0", "seg 12,4.000001 12,5", END, START);
    ExpectNotJoined("seg 0,0 10,0", "seg 12,5 12,6", END, START);
}

TEST(ConnectCurveSeg, ArcsAndPolylines) {
    ExpectJoined("arc 0,0 r5 from 0 sweep 1", "seg 0,4 0,1", END, START, "arc 0,0 r5 from 0 sweep pi/2", "seg 0,5 0,1");
    ExpectJoined("pline 0,0 1,0 3,0", "seg 5,1 5,9", END, START, "pline 0,0 1,0 3,0 5,0", "seg 5,0 5,9");
    ExpectJoined("arc 0,0 r5 from 2 sweep 1", "arc 6,0 r5 from pi sweep 1 cw", START, END,
                 "arc 0,0 r5 from 0.9272952180016 sweep 2.0727047819984",
                 "arc 6,0 r5 from pi sweep 0.9272952180016 cw");
}
