// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "QuarnBase.h"

// Containers: arrays and lists behind one interface with a built-in cursor, for values, owned and borrowed pointers.
#include "containers/Qn2dArray.h"
#include "containers/QnArray.h"
#include "containers/QnDList.h"
#include "containers/QnDynArray.h"
#include "containers/QnDynPArray.h"
#include "containers/QnFreeList.h"
#include "containers/QnGraphContainers.h"
#include "containers/QnList.h"
#include "containers/QnPDList.h"
#include "containers/QnPXList.h"
#include "containers/QnQuene.h"
#include "containers/QnStack.h"
#include "containers/QnXList.h"

// Object frame: tolerances, the root of all objects, the list in which results travel.
#include "frame/DynCreateGeObject.h"
#include "frame/QnGeClassId.h"
#include "frame/QnGeObjList.h"
#include "frame/QnGeObject.h"
#include "frame/QnGeObject2d.h"
#include "frame/QnGeObject3d.h"
#include "frame/QnGeTolerance.h"
#include "frame/QnPushVar.h"

// Values: points and vectors, ranges, matrices, analytic shapes and the functions that intersect them.
#include "values/QnGeAnalytic.h"
#include "values/QnGeBaseCircle.h"
#include "values/QnGeBaseEllipse.h"
#include "values/QnGeBaseLine2d.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeBasePlane.h"
#include "values/QnGeCoordSys.h"
#include "values/QnGeExtent.h"
#include "values/QnGeExtent2d.h"
#include "values/QnGeExtent3d.h"
#include "values/QnGeInterval.h"
#include "values/QnGeIntervalList.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"
#include "values/QnGePointArray.h"
#include "values/QnGePointList.h"
#include "values/QnGeVector2d.h"
#include "values/QnGeVector3d.h"

// Planar curves: one protocol of parameters, lengths, hits and crossings, and the classes that answer it.
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeCurve2d.h"
#include "curves2d/QnGeCurveCoordSys.h"
#include "curves2d/QnGeCurvePa.h"
#include "curves2d/QnGeCurvePaWithPt.h"
#include "curves2d/QnGeEArc2d.h"
#include "curves2d/QnGeEllipse2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "curves2d/QnGeMCurve2d.h"
#include "curves2d/QnGeSpline2d.h"

// Polylines: straight segments, and segments bulged to arcs.
#include "polylines/QnGeMLine2d.h"
#include "polylines/QnGePolyline2d.h"

// Spatial indexes: trees over boxes and points of the plan and of space.
#include "spatial/QnGeOctree.h"
#include "spatial/QnGePointQuadTreeLayer2d.h"
#include "spatial/QnGePtOctree.h"
#include "spatial/QnGePtQuadTree2d.h"
#include "spatial/QnGeQuadTree2d.h"

// Regions: polygons and areas with holes, and their booleans.
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "regions/QnGePolygon2d.h"
#include "regions/QnGePtFreeList.h"
#include "regions/QnGeRegion2d.h"

// Objects in space: their places in the class tree.
#include "objects3d/QnGeCurve3d.h"
#include "objects3d/QnGeFace3d.h"
#include "objects3d/QnGeLine3d.h"
#include "objects3d/QnGeLineRay3d.h"
#include "objects3d/QnGeLineSeg3d.h"
#include "objects3d/QnGeMCurve3d.h"
#include "objects3d/QnGeMLine3d.h"
#include "objects3d/QnGePlane3d.h"
#include "objects3d/QnGePlaneCurve3d.h"
#include "objects3d/QnGePolyline3d.h"
#include "objects3d/QnGeSolid3d.h"

// Terrain: points with values become a network of triangles.
#include "terrain/QnGeTINGraph.h"
#include "terrain/QnGeTINNode.h"
#include "terrain/QnGeTINOutEdge.h"
#include "terrain/QnGeTINTriangle.h"
