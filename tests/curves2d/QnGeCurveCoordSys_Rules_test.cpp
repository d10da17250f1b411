// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include "ChainTesting.h"
#include "curves2d/QnGeCurveCoordSys.h"
#include "polylines/QnGeMLine2d.h"

using namespace chain_testing;

static_assert(std::has_virtual_destructor_v<QnGeCurveCoordSys>);
static_assert(std::is_copy_constructible_v<QnGeCurveCoordSys> && std::is_copy_assignable_v<QnGeCurveCoordSys>);
static_assert(!std::is_convertible_v<const QnGeCurve2d&, QnGeCurveCoordSys>, "made on purpose only");

TEST(QnGeCurveCoordSys_Rules, AnElevationStartsWhereAWholeCircleHasItsPointAtZero) {
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0,5 10,0,5");
    const auto circle = ParseGeoAs<QnGeCurve2d>("circle 3,4,6 r2");
    const std::unique_ptr<QnGeMLine2d> rect(QnGeCurveCoordSys(*seg).CreateElevRect(*circle, 2.0));
    ExpectGeo(rect.get(), "mline 5,1 17.566370614359172,1 17.566370614359172,3 5,3 close");
}

TEST(QnGeCurveCoordSys_Rules, TheRectangleIsFlatWhateverTheHeights) {
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0,5 10,0,9");
    const std::unique_ptr<QnGeMLine2d> rect(QnGeCurveCoordSys(*seg).CreateElevRect(1.0));
    ASSERT_EQ(rect->GetVertexNum(), 4);
    EXPECT_TRUE(rect->IsClosed());
    for (long i = 0; i < 4; ++i) {
        EXPECT_EQ(rect->GetVertex(i).z, 0.0) << i;
    }
}

TEST(QnGeCurveCoordSys_Rules, AlongAnEmptyChainAllIsZero) {
    const QnGeMCurve2d empty;
    const QnGeCurveCoordSys system(empty);
    ExpectPoint(system.CcsToWcs(QnGePoint(3, 2, 1)), "0,0,2");
    ExpectPoint(system.WcsToCcs(QnGePoint(3, 2, 1)), "0,1,0");
    const std::unique_ptr<QnGeMLine2d> rect(system.CreateElevRect(2.0));
    ExpectGeo(rect.get(), "mline 0,0 0,0 0,2 0,2 close");
}

TEST(QnGeCurveCoordSys_Rules, TheFarthestVertexCountsFromThePlaceOnTheCurve) {
    // Both walls of the outer corridor are as near to the corner; its own corner is the place.
    const auto corner = ParseGeoAs<QnGeCurve2d>("pline 0,0 10,0 10,10");
    const QnGeCurveCoordSys system(*corner);
    ExpectPoint(system.CcsToWcs(QnGePoint(10, 0, 2)), "12,-2");
    ExpectPoint(system.CcsToWcs(QnGePoint(10, 3, -2)), "8,2,3");
}

TEST(QnGeCurveCoordSys_Rules, APointWithinToleranceOfTheCurveIsOnIt) {
    const auto seg = ParseGeoAs<QnGeCurve2d>("seg 0,0 10,0");
    const QnGePoint along = QnGeCurveCoordSys(*seg).WcsToCcs(QnGePoint(-5e-7, 0.0));
    EXPECT_EQ(along.x, -5e-7) << "its own parameter, not that of the end";
    EXPECT_EQ(QnGeCurveCoordSys(*seg).WcsToCcs(QnGePoint(-5e-6, 0.0)).x, 0.0);
}
