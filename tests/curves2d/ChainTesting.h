// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "CurveTesting.h"
#include "curves2d/QnGeMCurve2d.h"
#include "support/ExpectGeo.h"

/// What the tests of chains share: chains from text, and the ones that most tests look at.
namespace chain_testing {

using curve_testing::UNTOUCHED;

constexpr double EXACT_PI = 3.14159265358979323846;

/// Children of different length with the same share of the parameter.
constexpr const char* TWO_SEGS = "chain seg 0,0 10,0 | seg 10,0 11,0";
constexpr const char* SQUARE = "chain seg 0,0 4,0 | seg 4,0 4,4 | seg 4,4 0,4 | seg 0,4 0,0";
/// Open: a side, a half circle to the right, the side back.
constexpr const char* LINE_ARC_LINE = "chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi | seg 4,4 0,4";
/// The same closed by a second half circle; its box is -2,0 to 6,4.
constexpr const char* STADIUM =
    "chain seg 0,0 4,0 | arc 4,2 r2 from 3pi/2 sweep pi | seg 4,4 0,4 | arc 0,2 r2 from pi/2 sweep pi";
/// The x axis in three children.
constexpr const char* WITH_RAYS = "chain ray reversed 0,0 -1,0 | seg 0,0 4,0 | ray 4,0 1,0";

inline QnGeMCurve2d ChainOf(const std::string& text) {
    return *ParseGeoAs<QnGeMCurve2d>(text);
}

inline std::uint32_t HitBits(const std::string& chain, double x, double y) {
    return ChainOf(chain).HitTest(QnGePoint(x, y)).GetBits();
}

}  // namespace chain_testing
