// SPDX-License-Identifier: Apache-2.0
#include "frame/DynCreateGeObject.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <set>

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "frame/QnGeClassId.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "support/ExpectGeo.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

namespace {

template <class T>
std::unique_ptr<T> Made(long id) {
    std::unique_ptr<QnGeObject> object(DynCreateGeObject(static_cast<int>(id)));
    EXPECT_NE(object, nullptr) << id;
    if (object == nullptr) {
        return nullptr;
    }
    EXPECT_EQ(object->GetCI(), &T::s_classInfo) << id;
    EXPECT_EQ(object->GetClassID(), id);
    EXPECT_EQ(object->GetBits() & ~static_cast<unsigned>(OBJ_CLOSED), 0U) << id;
    return std::unique_ptr<T>(dynamic_cast<T*>(object.release()));
}

/// Ids that make an object.
const std::set<int> MAKING_IDS = {102, 111, 112, 113, 114, 115, 116, 117, 118, 301, 302, 303, 1002};

}  // namespace

TEST(DynCreateGeObject, MakesTheClassesOfTheTableAndNothingElse) {
    for (int id = -10; id < 3000; ++id) {
        const std::unique_ptr<QnGeObject> object(DynCreateGeObject(id));
        EXPECT_EQ(object != nullptr, MAKING_IDS.count(id) == 1) << id;
        if (object != nullptr) {
            EXPECT_EQ(object->GetClassID(), id);
        }
    }
    EXPECT_EQ(DynCreateGeObject(std::numeric_limits<int>::min()), nullptr);
    EXPECT_EQ(DynCreateGeObject(std::numeric_limits<int>::max()), nullptr);
}

TEST(DynCreateGeObject, ShellsHaveRecordsAndNoFactory) {
    for (const long id : {CLASS_ID_ELLIPSE2D, CLASS_ID_EARC2D, CLASS_ID_SPLINE2D, CLASS_ID_PLANE3D,
                          CLASS_ID_PLANE_CURVE3D, CLASS_ID_FACE3D, CLASS_ID_SOLID3D}) {
        EXPECT_EQ(DynCreateGeObject(static_cast<int>(id)), nullptr) << id;
    }
}

TEST(DynCreateGeObject, RootsAreNeverMade) {
    for (const long id : {CLASS_ID_OBJECT, CLASS_ID_OBJECT2D, CLASS_ID_CURVE2D, CLASS_ID_REGION2D, CLASS_ID_OBJECT3D,
                          CLASS_ID_CURVE3D}) {
        EXPECT_EQ(DynCreateGeObject(static_cast<int>(id)), nullptr) << id;
    }
}

TEST(DynCreateGeObject, PointsStandAtTheOrigin) {
    ExpectGeo(Made<QnGePoint2d>(CLASS_ID_POINT2D).get(), "point 0,0", 0.0);
    ExpectPoint(*Made<QnGePoint3d>(CLASS_ID_POINT3D), "0,0,0", 0.0);
}

TEST(DynCreateGeObject, LinesAreNullVectorsAtTheOrigin) {
    ExpectGeo(Made<QnGeLine2d>(CLASS_ID_LINE2D).get(), "line 0,0 0,0", 0.0);
    ExpectGeo(Made<QnGeLineRay2d>(CLASS_ID_LINE_RAY2D).get(), "ray 0,0 0,0", 0.0);
    const std::unique_ptr<QnGeLineSeg2d> seg = Made<QnGeLineSeg2d>(CLASS_ID_LINE_SEG2D);
    ExpectGeo(seg.get(), "seg 0,0 0,0", 0.0);
    EXPECT_TRUE(seg->IsClassOf(&QnGeLine2d::s_classInfo));
    EXPECT_FALSE(seg->IsClassOf(&QnGeLineRay2d::s_classInfo));
}

TEST(DynCreateGeObject, CirclesAndArcsRunCounterClockwise) {
    EXPECT_FALSE(Made<QnGeCircle2d>(CLASS_ID_CIRCLE2D)->IsClockwise());
    EXPECT_FALSE(Made<QnGeArc2d>(CLASS_ID_ARC2D)->GetCircle().IsClockwise());
}

TEST(DynCreateGeObject, MultiLinesAreEmptyAndOpen) {
    const std::unique_ptr<QnGeMLine2d> line = Made<QnGeMLine2d>(CLASS_ID_MLINE2D);
    EXPECT_EQ(line->GetVertexNum(), 0);
    EXPECT_FALSE(line->IsClosed());
    const std::unique_ptr<QnGePolyline2d> polyline = Made<QnGePolyline2d>(CLASS_ID_POLYLINE2D);
    EXPECT_EQ(polyline->GetVertexNum(), 0);
    EXPECT_FALSE(polyline->IsClosed());
}

TEST(DynCreateGeObject, AChainHasNoChildren) {
    EXPECT_EQ(Made<QnGeMCurve2d>(CLASS_ID_MCURVE2D)->GetSegNum(), 0);
}

TEST(DynCreateGeObject, PolygonsAreEmptyAndClosed) {
    const std::unique_ptr<QnGePolygon2d> polygon = Made<QnGePolygon2d>(CLASS_ID_POLYGON2D);
    EXPECT_EQ(polygon->Outline().GetVertexNum(), 0);
    EXPECT_TRUE(polygon->Outline().IsClosed());
    const std::unique_ptr<QnGeGeneralPolygon2d> general = Made<QnGeGeneralPolygon2d>(CLASS_ID_GENERAL_POLYGON2D);
    EXPECT_EQ(general->Outline().GetVertexNum(), 0);
    EXPECT_TRUE(general->Outline().IsClosed());
    EXPECT_EQ(general->GetHoleNum(), 0);
}

TEST(DynCreateGeObject, AGeneralRegionIsTheWholePlane) {
    const std::unique_ptr<QnGeGeneralRegion2d> region = Made<QnGeGeneralRegion2d>(CLASS_ID_GENERAL_REGION2D);
    EXPECT_EQ(region->GetBoundaryNum(), 1);
    EXPECT_EQ(region->GetBoundary(0), nullptr);
    EXPECT_TRUE(region->IsEntirePlane());
}
