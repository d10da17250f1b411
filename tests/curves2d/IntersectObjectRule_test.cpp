// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "CurveTesting.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeSpline2d.h"
#include "objects3d/QnGeLine3d.h"
#include "objects3d/QnGeLineRay3d.h"
#include "objects3d/QnGeLineSeg3d.h"
#include "objects3d/QnGeMLine3d.h"
#include "objects3d/QnGePlane3d.h"
#include "support/ExpectGeo.h"
#include "values/QnGePoint3d.h"

using namespace curve_testing;

namespace {

void ExpectSharesNothing(const QnGeObject& a, const QnGeObject& b) {
    QnGeObjList found;
    EXPECT_FALSE(a.IntersectWith(b, found)) << ToText(a) << " with " << ToText(b);
    EXPECT_FALSE(b.IntersectWith(a, found)) << ToText(b) << " with " << ToText(a);
    EXPECT_TRUE(found.IsEmpty());
}

/// Its parts are found with a given answer of Explode.
class LooseParts : public QnGeObject2d {
public:
    explicit LooseParts(bool answer) : m_answer(answer) {}
    bool Explode(QnGeObjList& parts) const override {
        ParseGeoList("seg 0,0 4,0; seg 4,0 4,4", parts);
        return m_answer;
    }

private:
    bool m_answer;
};

const char* const FAMILY[] = {"line 0,0 1,0", "ray 0,0 1,0", "ray reversed 0,0 1,0", "seg -1,0 1,0"};
const char* const PRIMITIVES[] = {"line 0,0 1,0", "ray 0,0 1,0",   "ray reversed 0,0 1,0",
                                  "seg -1,0 1,0", "circle 0,0 r1", "arc 0,0 r1 from 0 sweep 3"};

}  // namespace

TEST(IntersectObjectRule, AVertexIsMetTwice) {
    ExpectIntersect("mline 0,0 2,0 4,2", "line 2,-1 0,1", "point 2,0; point 2,0");
    ExpectIntersect("line 2,-1 0,1", "mline 0,0 2,0 4,2", "point 2,0; point 2,0");
    ExpectIntersect("seg 2,-1 2,1", "mline 0,0 2,0 4,2", "point 2,0; point 2,0");
    ExpectIntersect("ray 2,-1 0,1", "mline 0,0 2,0 4,2", "point 2,0; point 2,0");
}

TEST(IntersectObjectRule, ResultsComeInTheOrderOfTheSegments) {
    ExpectIntersect("mline 0,0 4,0 4,4 0,4 close", "line 5,2 -1,0", "point 4,2; point 0,2");
    ExpectIntersect("line 5,2 -1,0", "mline 0,0 4,0 4,4 0,4 close", "point 4,2; point 0,2");
    ExpectIntersect("seg -1,0 2,0", "mline 0,0 4,0 4,4 0,4 close", "seg 0,0 2,0; point 0,0");
    ExpectNoIntersect("seg 1,1 3,3", "mline 0,0 4,0 4,4 0,4 close");
}

TEST(IntersectObjectRule, TheSegmentsOfTheArgumentAskTheReceiver) {
    // The multi-line's segment is the one that is asked: the overlap runs as it does.
    ExpectIntersect("mline 4,0 0,0", "seg 1,0 2,0", "seg 2,0 1,0");
    ExpectIntersect("seg 1,0 2,0", "mline 4,0 0,0", "seg 2,0 1,0");
}

TEST(IntersectObjectRule, TwoCompoundsPairFirstMajor) {
    ExpectIntersect("mline 0,1 9,1 9,2 0,2", "mline 3,0 3,5 6,5 6,0", "point 3,1; point 6,1; point 3,2; point 6,2");
    ExpectIntersect("mline 3,0 3,5 6,5 6,0", "mline 0,1 9,1 9,2 0,2", "point 3,1; point 3,2; point 6,1; point 6,2");
}

TEST(IntersectObjectRule, OverlapsOfTwoCompoundsRunAsTheSecond) {
    ExpectIntersect("mline 0,0 4,0", "mline 3,0 1,0", "seg 3,0 1,0");
    ExpectIntersect("mline 3,0 1,0", "mline 0,0 4,0", "seg 1,0 3,0");
}

TEST(IntersectObjectRule, AnyObjectWithPartsTakesPart) {
    for (const bool answer : {true, false}) {
        const LooseParts object(answer);
        QnGeObjList found;
        EXPECT_TRUE(object.IntersectWith(*ParseGeo("line 0,1 3,-1"), found)) << "what was appended counts";
        EXPECT_TRUE(ParseGeo("seg 2,2 9,2")->IntersectWith(object, found));
        ExpectGeoList(found, "point 3,0; point 4,2");
    }
}

TEST(IntersectObjectRule, WithoutPartsNothingIsFound) {
    for (const char* text : PRIMITIVES) {
        ExpectSharesNothing(*ParseGeo(text), QnGeEllipse2d());
        ExpectSharesNothing(*ParseGeo(text), QnGeSpline2d());
        ExpectSharesNothing(*ParseGeo(text), QnGeCurve2d());
        ExpectSharesNothing(*ParseGeo(text), QnGeObject2d());
        ExpectSharesNothing(*ParseGeo(text), *ParseGeo("mline"));
    }
    ExpectSharesNothing(QnGeEllipse2d(), QnGeEllipse2d());
}

TEST(IntersectObjectRule, APointOnACurveComesBack) {
    for (const char* text : PRIMITIVES) {
        ExpectIntersect(text, "point 1,0,7", "point 1,0,7");
        ExpectIntersect("point 1,0,7", text, "point 1,0,7");
        ExpectNoIntersect(text, "point 0.5,0.1");
    }
    ExpectNoIntersect("seg 0,0 1,0", "point 2,0");
    ExpectNoIntersect("ray 0,0 1,0", "point -2,0");
}

TEST(IntersectObjectRule, PlaneAndSpaceDoNotHandThePairToEachOtherForEver) {
    std::vector<std::unique_ptr<QnGeObject>> spatial;
    spatial.push_back(std::make_unique<QnGeLine3d>());
    spatial.push_back(std::make_unique<QnGeLineRay3d>());
    spatial.push_back(std::make_unique<QnGeLineSeg3d>());
    spatial.push_back(std::make_unique<QnGePlane3d>());
    spatial.push_back(std::make_unique<QnGeMLine3d>());
    for (const auto& object : spatial) {
        for (const char* text : PRIMITIVES) {
            ExpectSharesNothing(*ParseGeo(text), *object);
        }
        ExpectSharesNothing(*ParseGeo("mline 0,0 4,0 4,4"), *object);
    }
}

TEST(IntersectObjectRule, APointInSpaceIsTestedInThePlan) {
    for (const char* text : FAMILY) {
        QnGeObjList found;
        EXPECT_TRUE(ParseGeo(text)->IntersectWith(QnGePoint3d(0.5, 0.0, 7.0), found)) << text;
        EXPECT_FALSE(ParseGeo(text)->IntersectWith(QnGePoint3d(0.5, 1.0, 7.0), found)) << text;
        ASSERT_EQ(found.GetLength(), 1);
        EXPECT_EQ(found.GetPData(0)->GetClassID(), 1002);
    }
}

TEST(IntersectObjectRule, LineFamilyWithCircleGoesThroughTheCircle) {
    ExpectIntersect("line -5,0 1,0", "circle 0,0 r2", "point -2,0; point 2,0");
    ExpectIntersect("ray 0,0 1,0", "circle 0,0 r2", "point 2,0");
    ExpectIntersect("ray reversed 0,0 1,0", "circle 0,0 r2", "point 2,0");
    ExpectIntersect("seg 5,0 -1,0", "circle 0,0 r2", "point 2,0");
    ExpectIntersect("line 0,-5 0,1", "arc 0,0 r2 from 0 sweep pi", "point 0,2");
}
