// SPDX-License-Identifier: Apache-2.0
// Fewer vertices for the same shape: Symplify, which gives a new object, and Compress, which changes the line.
#include <gtest/gtest.h>

#include <memory>

#include "polylines/PolylineTesting.h"

using namespace polyline_testing;

namespace {

std::unique_ptr<QnGeObject> SimplerThan(const QnGeMLine2d& line) {
    return std::unique_ptr<QnGeObject>(line.Symplify());
}

std::unique_ptr<QnGeMLine2d> Compressed(QnGeMLine2d&& line) {
    line.Compress();
    return std::make_unique<QnGeMLine2d>(line);
}

std::unique_ptr<QnGePolyline2d> Compressed(QnGePolyline2d&& line) {
    line.Compress();
    return std::make_unique<QnGePolyline2d>(line);
}

}  // namespace

TEST(Symplify, MergesSegmentsThatRunOn) {
    ExpectGeo(SimplerThan(Straight("0,0 1,0 2,0")).get(), "mline 0,0 2,0");
    ExpectGeo(SimplerThan(Straight("0,0 1,0 2,0 2,1 2,5")).get(), "mline 0,0 2,0 2,5");
}

TEST(Symplify, AnEmptyLineHasNoSimplerForm) {
    EXPECT_EQ(SimplerThan(QnGeMLine2d()), nullptr);
    EXPECT_EQ(SimplerThan(QnGePolyline2d()), nullptr);
}

TEST(Symplify, ALineWhoseSegmentsAllTurnStays) {
    EXPECT_EQ(SimplerThan(Straight("0,0 1,0 1,1")), nullptr);
    EXPECT_EQ(SimplerThan(Bulged("0,0@1 1,0 2,0")), nullptr);
}

TEST(Symplify, ALineWithoutLengthIsAPoint) {
    ExpectGeo(SimplerThan(Straight("1,2")).get(), "point 1,2");
    ExpectGeo(SimplerThan(Straight("1,2 1,2 1,2 close")).get(), "point 1,2");
}

TEST(Symplify, TheOnlySegmentWithALengthComesOutBare) {
    ExpectGeo(SimplerThan(Straight("0,0 3,4")).get(), "seg 0,0 3,4");
    ExpectGeo(SimplerThan(Straight("0,0 0,0 3,4")).get(), "seg 0,0 3,4");
    const std::unique_ptr<QnGeObject> arc = SimplerThan(Bulged("1,0@pi -1,0"));
    ASSERT_NE(arc, nullptr);
    EXPECT_EQ(arc->GetClassID(), CLASS_ID_ARC2D);
}

TEST(Symplify, DropsSegmentsWithoutALength) {
    ExpectGeo(SimplerThan(Straight("0,0 4,0 4,0 4,4")).get(), "mline 0,0 4,0 4,4");
}

TEST(Symplify, ASegmentThatTurnsBackIsNoContinuation) {
    EXPECT_EQ(SimplerThan(Straight("0,0 4,0 1,0")), nullptr);
}

TEST(Symplify, TheSeamOfAClosedLineMergesToo) {
    ExpectGeo(SimplerThan(Straight("2,0 4,0 4,4 0,4 0,0 close")).get(), "mline 4,0 4,4 0,4 0,0 close");
}

TEST(Symplify, ArcsOfOneCircleMerge) {
    ExpectGeo(SimplerThan(Bulged("2,0@pi/2 0,2@pi/2 -2,0 -4,0")).get(), "pline 2,0@pi -2,0 -4,0");
}

TEST(Symplify, KeptOddALineWhoseEndsCoincideComesOutClosed) {
    ExpectGeo(SimplerThan(Straight("0,0 2,0 4,0 4,4 0,0")).get(), "mline 0,0 4,0 4,4 close");
}

TEST(Symplify, TheLineItselfStays) {
    const QnGeMLine2d line = Straight("0,0 1,0 2,0");
    SimplerThan(line);
    EXPECT_TRUE(HasExactly(line, "0,0 1,0 2,0"));
}

TEST(Compress, MergesSegmentsThatRunOn) {
    EXPECT_TRUE(HasExactly(*Compressed(Straight("0,0 1,0 2,0")), "0,0 2,0"));
    EXPECT_TRUE(HasExactly(*Compressed(Straight("0,0 1,0 1,1")), "0,0 1,0 1,1"));
    EXPECT_TRUE(IsExactly(*Compressed(Bulged("0,0 1,0 2,0")), "0,0 2,0"));
}

TEST(Compress, KeepsArcs) {
    ExpectGeo(Compressed(Bulged("2,0@pi/2 0,2 0,3 0,4")).get(), "pline 2,0@pi/2 0,2 0,4");
}

TEST(Compress, LeavesALineWithoutLength) {
    EXPECT_TRUE(HasExactly(*Compressed(Straight("1,2 1,2")), "1,2 1,2"));
    EXPECT_TRUE(HasExactly(*Compressed(QnGeMLine2d()), ""));
}
