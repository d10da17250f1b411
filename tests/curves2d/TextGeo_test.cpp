// SPDX-License-Identifier: Apache-2.0
#include "support/TextGeo.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "support/ExpectGeo.h"
#include "values/QnGePoint2d.h"

namespace {

/// The text is the one that the object it says writes.
void ExpectRoundTrip(const std::string& text) {
    EXPECT_EQ(ToText(*ParseGeo(text)), text);
}

std::string MessageOf(const std::string& text) {
    try {
        ParseGeo(text);
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return "no error";
}

}  // namespace

TEST(TextGeo, ReadsTheNumbersOfEachShape) {
    const auto ray = ParseGeoAs<QnGeLineRay2d>("ray reversed 1,2,3 4,5,6");
    EXPECT_TRUE(ray->IsReverseRay());
    EXPECT_EQ(ray->basePoint.z, 3.0);
    EXPECT_EQ(ray->dy, 5.0);
    EXPECT_EQ(ray->dz, 6.0);

    const auto seg = ParseGeoAs<QnGeLineSeg2d>("seg 1,1 4,3");
    EXPECT_EQ(seg->dx, 3.0);
    EXPECT_EQ(seg->dy, 2.0);

    const auto arc = ParseGeoAs<QnGeArc2d>("arc 1,2 r3 from 0.5 sweep pi/2 cw");
    EXPECT_EQ(arc->GetStartAngle(), 0.5);
    EXPECT_EQ(arc->GetCentralAngle(), QN_HALF_PI);
    EXPECT_EQ(arc->GetRadius(), 3.0);
    EXPECT_TRUE(arc->IsClockwise());

    const auto line = ParseGeoAs<QnGePolyline2d>("pline 0,0@1.5 4,0@-0.25 close");
    EXPECT_EQ(line->GetVertexNum(), 2);
    EXPECT_TRUE(line->IsClosed());
    EXPECT_EQ(line->GetBulge(0), 1.5);
    EXPECT_EQ(line->GetBulge(1), -0.25);
}

TEST(TextGeo, PartsAndMultiplesOfPi) {
    EXPECT_EQ(ParsePoint("pi,-pi").x, QN_PI);
    EXPECT_EQ(ParsePoint("pi,-pi").y, -QN_PI);
    EXPECT_EQ(ParsePoint("2pi,3pi/2").x, QN_TWO_PI);
    EXPECT_EQ(ParsePoint("2pi,3pi/2").y, 3.0 * QN_PI / 2.0);
    EXPECT_TRUE(ParseGeoAs<QnGeArc2d>("arc 0,0 r1 from 0 sweep 2pi")->IsClosed());
}

TEST(TextGeo, WritesWhatItReads) {
    for (const char* text : {"point 4,0",
                             "point 4,0,7",
                             "line 0,0 1,0",
                             "ray 0,0 1,0",
                             "ray reversed 0,0,1 1,0.1",
                             "seg 0,0 4,0",
                             "circle 0,0 r2",
                             "circle -1.5,1e-07 r2 cw",
                             "arc 0,0 r2 from 0 sweep 1.57",
                             "arc 0,0 r2 from 0.1 sweep 1.57 cw",
                             "mline",
                             "mline 0,0",
                             "mline 0,0 1,0 1,1 close",
                             "pline 0,0@1.57 4,0",
                             "pline 0,0@-1.57 4,0@2 5,5,5 close",
                             "chain",
                             "chain seg 0,0 4,0 | arc 4,2 r2 from 4.5 sweep 1 | ray 6,2 0,1",
                             "region 0,0 4,0 4,4",
                             "region 0,0 4,0 4,4 | 1,1 1,2 2,2",
                             "general region circle 0,0 r5 | circle 0,0 r1 cw",
                             "general region mline 0,0 4,0 4,4 close"}) {
        ExpectRoundTrip(text);
    }
}

TEST(TextGeo, NumbersComeBackBitForBit) {
    const QnGePoint2d point(0.1 + 0.2, 1.0 / 3.0, -1e300);
    const auto again = ParseGeoAs<QnGePoint2d>(ToText(point));
    EXPECT_EQ(again->x, point.x);
    EXPECT_EQ(again->y, point.y);
    EXPECT_EQ(again->z, point.z);
}

TEST(TextGeo, RegionsByTheirBoundaries) {
    EXPECT_EQ(ParseGeo("region mline 0,0 4,0 4,4")->GetCI(), &QnGePolygon2d::s_classInfo);
    EXPECT_EQ(ParseGeo("region 0,0 4,0 4,4 | 1,1 1,2 2,2")->GetCI(), &QnGeGeneralPolygon2d::s_classInfo);
    EXPECT_EQ(ParseGeo("region 0,0 4,0 4,4 | circle 1,1 r0.1")->GetCI(), &QnGeGeneralRegion2d::s_classInfo);
    EXPECT_EQ(ParseGeo("general region 0,0 4,0 4,4")->GetCI(), &QnGeGeneralRegion2d::s_classInfo);
    EXPECT_TRUE(ParseGeoAs<QnGePolygon2d>("region 0,0 4,0 4,4")->Outline().IsClosed());
}

TEST(TextGeo, Lists) {
    QnGeObjList list;
    ParseGeoList("", list);
    EXPECT_TRUE(list.IsEmpty());
    ParseGeoList("point 1,0; seg 0,0 1,1", list);
    ParseGeoList("point 2,0", list);
    EXPECT_EQ(ToText(list), "point 1,0; seg 0,0 1,1; point 2,0");
    QnGeObjList chains;
    ParseGeoList("chain; chain seg 0,0 1,0 | seg 1,0 2,0; point 1,1", chains);
    EXPECT_EQ(ToText(chains), "chain; chain seg 0,0 1,0 | seg 1,0 2,0; point 1,1");
    list.Append(nullptr);
    EXPECT_EQ(ToText(list), "point 1,0; seg 0,0 1,1; point 2,0; null");
    QnGeObjList broken;
    EXPECT_THROW(ParseGeoList("point 1,0; seg 0,0", broken), std::invalid_argument);
    EXPECT_TRUE(broken.IsEmpty());
}

TEST(TextGeo, ErrorsNameTextAndPosition) {
    EXPECT_EQ(MessageOf("seg 0,0"), "geometry text 'seg 0,0' at 7: expected a number");
    EXPECT_EQ(MessageOf("seg 0,0 4 0"), "geometry text 'seg 0,0 4 0' at 9: expected ',' and y");
    EXPECT_EQ(MessageOf("sag 0,0 4,0"), "geometry text 'sag 0,0 4,0' at 0: expected the word of a shape");
    EXPECT_EQ(MessageOf("point 1,2 x"), "geometry text 'point 1,2 x' at 10: expected the end of the text");
    EXPECT_EQ(MessageOf("circle 0,0 2"), "geometry text 'circle 0,0 2' at 11: expected 'r' and the radius");
    EXPECT_EQ(MessageOf("arc 0,0 r2 sweep 1"), "geometry text 'arc 0,0 r2 sweep 1' at 11: expected 'from'");
    EXPECT_EQ(MessageOf("region point 1,1"), "geometry text 'region point 1,1' at 16: expected a curve as boundary");
    EXPECT_EQ(MessageOf("chain point 1,1"), "geometry text 'chain point 1,1' at 15: expected a curve as child");
    EXPECT_THROW(ParseGeoAs<QnGeArc2d>("point 1,2"), std::invalid_argument);
    EXPECT_THROW(ParsePoint("1"), std::invalid_argument);
}

TEST(TextGeo, NearMeansSameClassSameDirectionNearNumbers) {
    const auto near = [](const char* a, const char* b) { return IsNearGeo(*ParseGeo(a), *ParseGeo(b), 1e-9); };
    EXPECT_TRUE(near("seg 0,0 4,0", "seg 0,1e-10 4,0"));
    EXPECT_FALSE(near("seg 0,0 4,0", "seg 0,1e-8 4,0"));
    EXPECT_FALSE(near("seg 0,0 4,0", "seg 0,0 4,0,1"));
    EXPECT_FALSE(near("seg 0,0 4,0", "seg 4,0 0,0"));
    EXPECT_FALSE(near("circle 0,0 r1", "circle 0,0 r1 cw"));
    EXPECT_FALSE(near("ray 0,0 1,0", "ray reversed 0,0 1,0"));
    EXPECT_FALSE(near("ray 0,0 1,0", "line 0,0 1,0"));
    EXPECT_FALSE(near("mline 0,0 1,0", "mline 0,0 1,0 close"));
    EXPECT_TRUE(near("pline 0,0@1e-12 1,0", "pline 0,0 1,0"));
    EXPECT_TRUE(near("chain seg 0,0 4,0", "chain seg 0,1e-10 4,0"));
    EXPECT_FALSE(near("chain seg 0,0 4,0 | seg 4,0 5,0", "chain seg 4,0 5,0 | seg 0,0 4,0"));
    EXPECT_FALSE(near("chain seg 0,0 4,0", "seg 0,0 4,0"));
    EXPECT_FALSE(near("pline 0,0@0.1 1,0", "pline 0,0 1,0"));
}

TEST(TextGeo, ClassesWithoutTextGiveTheirName) {
    EXPECT_EQ(ToText(QnGeEllipse2d()), "<QnGeEllipse2d>");
    EXPECT_EQ(ToText(nullptr), "null");
}

TEST(TextGeo, ExpectationsHoldForWhatIsThere) {
    ExpectIntersect("seg 0,0 4,0", "seg 2,-1 2,1", "point 2,0");
    ExpectNoIntersect("seg 0,0 4,0", "seg 5,-1 5,1");
    ExpectGeo(QnGeLineSeg2d(QnGePoint(0.0, 0.0), QnGePoint(1.0, 2.0)), "seg 0,0 1,2");
    ExpectPoint(QnGePoint(1.0, 2.0, 3.0), "1,2,3");
}
