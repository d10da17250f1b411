// SPDX-License-Identifier: Apache-2.0
#include "regions/QnGePolygon2d.h"

#include <gtest/gtest.h>

#include "RegionTesting.h"
#include "polylines/QnGePolyline2d.h"

using namespace region_testing;

namespace {

QnGeMLine2d Line(const std::string& text) {
    return *ParseGeoAs<QnGeMLine2d>("mline " + text);
}

}  // namespace

// ---- making ----------------------------------------------------------------------------------------

TEST(QnGePolygon2d, OfACountHasThatManyVerticesAndIsClosed) {
    const QnGePolygon2d none;
    EXPECT_EQ(none.Outline().GetVertexNum(), 0);
    EXPECT_TRUE(none.IsClosed());
    const QnGePolygon2d four(4);
    EXPECT_EQ(four.Outline().GetVertexNum(), 4);
    EXPECT_TRUE(four.IsClosed());
    ExpectPoint(four.Outline().GetVertex(3), "0,0,0", 0.0);
}

TEST(QnGePolygon2d, CopiesTheOutlineAsItIsUnlessAskedToNormalize) {
    const QnGeMLine2d clockwise = Line("0,0 0,2 2,2 2,0 close");
    ExpectGeo(QnGePolygon2d(clockwise, false), "region 0,0 0,2 2,2 2,0", 0.0);
    ExpectGeo(QnGePolygon2d(clockwise, true), "region 0,0 2,0 2,2 0,2", 0.0);
    const QnGeMLine2d right = Line("0,0 2,0 2,2 close");
    ExpectGeo(QnGePolygon2d(right, true), "region 0,0 2,0 2,2", 0.0);
    ExpectGeo(clockwise, "mline 0,0 0,2 2,2 2,0 close", 0.0);
}

TEST(QnGePolygon2d, OfAnOpenLineIsOpen) {
    const QnGePolygon2d open(Line("0,0 2,0 2,2"), false);
    EXPECT_FALSE(open.IsClosed());
    EXPECT_FALSE(open.IsValid());
    EXPECT_EQ(open.Area(), 0.0);
}

TEST(QnGePolygon2d, OfALineWithFlagsKeepsThemInTheOutline) {
    QnGeMLine2d line = Line("0,0 2,0 2,2 close");
    line.SetBit(0x4000);
    const QnGePolygon2d polygon(line, false);
    EXPECT_TRUE(polygon.Outline().HasBit(0x4000 | OBJ_CLOSED));
    EXPECT_EQ(polygon.GetBits(), 0U);
}

TEST(QnGePolygon2d, OfAPolylineHasChords) {
    const auto bowed = ParseGeoAs<QnGePolyline2d>("pline 0,0@1 2,0@0.5 2,2 close");
    const QnGePolygon2d polygon(*bowed, false);
    EXPECT_EQ(polygon.GetBoundary(0)->GetClassID(), CLASS_ID_MLINE2D);
    ExpectGeo(polygon, "region 0,0 2,0 2,2", 0.0);
    EXPECT_DOUBLE_EQ(polygon.Area(), 2.0);
}

TEST(QnGePolygon2d, CopiesShareNothing) {
    QnGePolygon2d original = Polygon("0,0,1 2,0,2 2,2,3");
    original.SetBit(0x4000);
    const QnGePolygon2d copy(original);
    QnGePolygon2d assigned(7);
    assigned = original;
    const QnGePolygon2d& self = assigned;
    assigned = self;
    original.Outline()[0] = QnGePoint(9.0, 9.0);
    for (const QnGePolygon2d* const other : {&copy, &self}) {
        ExpectGeo(*other, "region 0,0,1 2,0,2 2,2,3", 0.0);
        EXPECT_TRUE(other->HasBit(0x4000));
        EXPECT_EQ(other->Outline().GetVertexArray().GetSpaceSize(), 3);
    }
}

TEST(QnGePolygon2d, ClonesKeepClassFlagsAndPoints) {
    QnGePolygon2d original = Polygon("0,0,1 2,0,2 2,2,3");
    original.SetAllowBoundaryInter(false);
    const std::unique_ptr<QnGeObject> clones[] = {std::unique_ptr<QnGeObject>(original.Clone()),
                                                  std::unique_ptr<QnGeObject>(original.CloneNew())};
    for (const auto& clone : clones) {
        ASSERT_NE(clone, nullptr);
        EXPECT_EQ(clone->GetCI(), &QnGePolygon2d::s_classInfo);
        EXPECT_EQ(Record(*clone), Record(original));
    }
}

// ---- boundaries and questions ----------------------------------------------------------------------

TEST(QnGePolygon2d, KeptOddEveryBoundaryIsTheOutline) {
    const QnGePolygon2d polygon = Polygon("0,0 2,0 2,2");
    EXPECT_EQ(polygon.GetBoundaryNum(), 1);
    for (const long i : {0L, 1L, 7L, -1L}) {
        EXPECT_EQ(polygon.GetBoundary(i), &polygon.Outline());
    }
}

TEST(QnGePolygon2d, TheOutlineMayBeChangedThroughTheBoundary) {
    QnGePolygon2d polygon = Polygon("0,0 2,0 2,2");
    polygon.GetBoundary(0)->AppendVertex(QnGePoint(0.0, 2.0));
    EXPECT_DOUBLE_EQ(polygon.Area(), 4.0);
    polygon.Outline().Reverse();
    EXPECT_FALSE(polygon.IsValid());
}

TEST(QnGePolygon2d, IsConcaveWhereItsOutlineTurnsBothWays) {
    EXPECT_FALSE(Polygon("0,0 2,0 2,2 0,2").IsConcave());
    EXPECT_FALSE(Polygon("0,0 2,0 2,2").IsConcave());
    EXPECT_TRUE(Polygon("0,0 4,0 4,4 2,1").IsConcave());
}

TEST(QnGePolygon2d, CenterIsTheMeanOfTheVertices) {
    ExpectPoint(Polygon("0,0,1 4,0,2 4,4,3 0,4,4").Center(), "2,2,2.5");
    ExpectPoint(Polygon("0,0 1,0 2,0 9,0 9,3").Center(), "4.2,0.6");
}

TEST(QnGePolygon2d, HasNoConvexPieces) {
    QnGeObjList parts;
    EXPECT_FALSE(Polygon("0,0 4,0 4,4 2,1").Explode(parts));
    EXPECT_FALSE(Polygon("0,0 4,0 4,4").Explode(parts));
    EXPECT_EQ(parts.GetLength(), 0);
    // It is its own single part.
    Polygon("0,0 4,0 4,4").FullExplode(parts);
    ExpectGeoList(parts, "region 0,0 4,0 4,4");
}

// ---- stream ----------------------------------------------------------------------------------------

TEST(QnGePolygon2dStream, RecordIsTheFlagsAndTheOutlinesOwnRecord) {
    QnGePolygon2d polygon = Polygon("0,0,1 2,0,2 2,2,3");
    polygon.SetAllowBoundaryInter(false);
    QnDynArrayStream expected(64, 64);
    expected << 0x10L;        // the polygon's word: boundaries must not meet
    expected << 0x10L << 3L;  // the outline's word: closed; the number of vertices
    expected << 0.0 << 0.0 << 1.0 << 2.0 << 0.0 << 2.0 << 2.0 << 2.0 << 3.0;
    EXPECT_EQ(Record(polygon), BytesOf(expected));
    polygon.SetAllowBoundaryInter(true);
    EXPECT_NE(Record(polygon), BytesOf(expected));
}

TEST(QnGePolygon2dStream, ReadsBackWhatItWrote) {
    QnGePolygon2d polygon = Polygon("0.1,0.2,0.3 1e300,-1e-300 2,2");
    polygon.SetBit(0x4000);
    polygon.Outline().SetBit(0x8000);
    QnDynArrayStream stream(64, 64);
    polygon.StreamOut(stream);
    stream << 77L;
    stream.MoveToFirst();
    QnGePolygon2d read = Polygon("7,7 8,8 9,7 6,6 5,5");
    read.StreamIn(stream);
    EXPECT_EQ(Record(read), Record(polygon));
    long next = 0;
    stream >> next;
    EXPECT_EQ(next, 77);
    EXPECT_EQ(read.Outline().GetVertexArray().GetSpaceSize(), 3);
}

TEST(QnGePolygon2dStream, ATruncatedRecordIsReadAsFarAsItGoes) {
    const QnGePolygon2d polygon = Polygon("1,2,3 4,5,6 7,8,9");
    const std::vector<unsigned char> record = Record(polygon);
    for (std::size_t length = 0; length < record.size(); length += 4) {
        QnDynArrayStream stream(64, 64);
        for (std::size_t i = 0; i < length; i += 4) {
            // Little-endian pieces of four bytes, so that any place can be cut at.
            const auto piece = static_cast<std::uint32_t>(record[i] | record[i + 1] << 8 | record[i + 2] << 16) |
                               static_cast<std::uint32_t>(record[i + 3]) << 24;
            stream << static_cast<long>(static_cast<std::int32_t>(piece));
        }
        stream.MoveToFirst();
        QnGePolygon2d read;
        read.StreamIn(stream);
        EXPECT_EQ(read.Outline().GetVertexNum(), length >= 12 ? 3 : 0);
        EXPECT_FALSE(length < 12 && read.IsValid());
    }
}

TEST(QnGePolygon2dStream, ANegativeCountReadsNoVertex) {
    QnDynArrayStream stream(64, 64);
    stream << 0L << 0x10L << -5L << 1.0 << 2.0 << 3.0;
    stream.MoveToFirst();
    QnGePolygon2d read;
    read.StreamIn(stream);
    EXPECT_EQ(read.Outline().GetVertexNum(), 0);
}
