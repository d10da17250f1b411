// SPDX-License-Identifier: Apache-2.0
#include "frame/DynCreateGeObject.h"

#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "regions/QnGePolygon2d.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

QnGeObject* DynCreateGeObject(int classId) {
    switch (classId) {
        case CLASS_ID_POINT2D:
            return new QnGePoint2d();
        case CLASS_ID_LINE2D:
            return new QnGeLine2d();
        case CLASS_ID_LINE_RAY2D:
            return new QnGeLineRay2d();
        case CLASS_ID_LINE_SEG2D:
            return new QnGeLineSeg2d();
        case CLASS_ID_CIRCLE2D:
            return new QnGeCircle2d(true);
        case CLASS_ID_ARC2D:
            return new QnGeArc2d();
        case CLASS_ID_MLINE2D:
            return new QnGeMLine2d(0, false);
        case CLASS_ID_POLYLINE2D:
            return new QnGePolyline2d(0, false);
        case CLASS_ID_MCURVE2D:
            return new QnGeMCurve2d();
        case CLASS_ID_POLYGON2D:
            return new QnGePolygon2d(0);
        case CLASS_ID_GENERAL_POLYGON2D:
            return new QnGeGeneralPolygon2d(0);
        case CLASS_ID_GENERAL_REGION2D:
            return new QnGeGeneralRegion2d();
        case CLASS_ID_POINT3D:
            return new QnGePoint3d();
        default:
            return nullptr;
    }
}
