// SPDX-License-Identifier: Apache-2.0
#include "protocol/Samples.h"

#include <limits>

#include "QuarnGeo.h"
#include "support/TextGeo.h"

namespace protocol {
namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

QnGeObject* Parsed(const char* text) {
    QnGeObject* const object = ParseGeo(text).release();
    object->SetBit(0x40000000U);  // a bit that no class uses travels along
    return object;
}

const QnGePoint& BadPoint() {
    static const QnGePoint point(NOT_A_NUMBER, INF, -INF);
    return point;
}

QnGeEllipse2d* MakeEllipse() {
    auto* const ellipse = new QnGeEllipse2d(false);
    ellipse->majorRadius = 2.0;
    ellipse->minorRadius = 1.0;
    ellipse->center = QnGePoint(3.0, 4.0, 5.0);
    return ellipse;
}

QnGePolyline2d* BadPolyline() {
    auto* const line = new QnGePolyline2d(3, true);
    line->SetVertex(0, BadPoint());
    line->SetVertex(2, QnGePoint(1.0, NOT_A_NUMBER));
    line->SetBulge(0, NOT_A_NUMBER);
    line->SetBulge(1, INF);
    return line;
}

const QnGeMLine2d& BadOutline() {
    static const std::unique_ptr<QnGeMLine2d> line(BadPolyline());
    return *line;
}

QnGeObject* BadChain() {
    auto* const chain = new QnGeMCurve2d();
    chain->Append(new QnGeLineSeg2d(BadPoint(), BadPoint()));
    chain->Append(new QnGeMLine2d());
    chain->Append(new QnGeArc2d(BadPoint(), NOT_A_NUMBER, INF, NOT_A_NUMBER));
    chain->Append(new QnGeMCurve2d());
    return chain;
}

QnGeGeneralPolygon2d* BadGeneralPolygon() {
    auto* const polygon = new QnGeGeneralPolygon2d(4);
    polygon->Outline().SetVertex(1, BadPoint());
    polygon->AppendHole(new QnGeMLine2d(2, true), false);
    return polygon;
}

QnGeObject* RegionOfCircleOnly() {
    return new QnGeGeneralRegion2d(QnGeCircle2d(BadPoint(), INF), false);
}

QnGeObject* PlaneWithHole() {
    auto* const region = new QnGeGeneralRegion2d();
    region->AppendHole(new QnGeCircle2d(QnGePoint(5.0, 5.0), 2.0, false), false);
    return region;
}

}  // namespace

const std::vector<Sample>& AllSamples() {
    static const std::vector<Sample> samples = {
        {"Point2d", true, []() -> QnGeObject* { return Parsed("point 1,2,3"); }},
        {"Point2dNew", true, []() -> QnGeObject* { return new QnGePoint2d(); }},
        {"Point2dBad", false, []() -> QnGeObject* { return new QnGePoint2d(BadPoint()); }},
        {"Line", true, []() -> QnGeObject* { return Parsed("line 1,2,3 4,-5,6"); }},
        {"LineNew", false, []() -> QnGeObject* { return new QnGeLine2d(); }},
        {"LineBad", false, []() -> QnGeObject* { return new QnGeLine2d(QnGePoint(), BadPoint()); }},
        {"Ray", true, []() -> QnGeObject* { return Parsed("ray 1,2 4,-5"); }},
        {"RayReversed", true, []() -> QnGeObject* { return Parsed("ray reversed 1,2 4,-5"); }},
        {"RayNew", false, []() -> QnGeObject* { return new QnGeLineRay2d(); }},
        {"RayBad", false, []() -> QnGeObject* { return new QnGeLineRay2d(BadPoint(), QnGePoint(INF, INF)); }},
        {"Seg", true, []() -> QnGeObject* { return Parsed("seg 1,2,3 4,-5,3"); }},
        {"SegFlat", true, []() -> QnGeObject* { return Parsed("seg 0,0 4,0"); }},
        {"SegNew", false, []() -> QnGeObject* { return new QnGeLineSeg2d(); }},
        {"SegNotANumber", false, []() -> QnGeObject* { return new QnGeLineSeg2d(BadPoint(), BadPoint()); }},
        {"SegInfinite", false, []() -> QnGeObject* { return new QnGeLineSeg2d(QnGePoint(), QnGePoint(INF, 0.0)); }},
        {"Circle", true, []() -> QnGeObject* { return Parsed("circle 1,2,3 r4"); }},
        {"CircleClockwise", true, []() -> QnGeObject* { return Parsed("circle 1,2 r4 cw"); }},
        {"CircleNew", false, []() -> QnGeObject* { return new QnGeCircle2d(); }},
        {"CircleInfinite", false, []() -> QnGeObject* { return new QnGeCircle2d(QnGePoint(), INF); }},
        {"CircleBad", false, []() -> QnGeObject* { return new QnGeCircle2d(BadPoint(), NOT_A_NUMBER); }},
        {"Arc", true, []() -> QnGeObject* { return Parsed("arc 1,2,3 r4 from 1 sweep 2"); }},
        {"ArcClockwise", true, []() -> QnGeObject* { return Parsed("arc 1,2 r4 from 3 sweep 5 cw"); }},
        {"ArcFull", true, []() -> QnGeObject* { return Parsed("arc 1,2 r4 from 1 sweep 2pi"); }},
        {"ArcNew", false, []() -> QnGeObject* { return new QnGeArc2d(); }},
        {"ArcBad", false, []() -> QnGeObject* { return new QnGeArc2d(BadPoint(), NOT_A_NUMBER, INF, NOT_A_NUMBER); }},
        {"ArcInfinite", false, []() -> QnGeObject* { return new QnGeArc2d(QnGePoint(), INF, 0.0, INF); }},
        {"MLine", true, []() -> QnGeObject* { return Parsed("mline 0,0,1 4,0,2 4,3,3 -1,-1,-1"); }},
        {"MLineClosed", true, []() -> QnGeObject* { return Parsed("mline 0,0 4,0 4,3 close"); }},
        {"MLineNew", false, []() -> QnGeObject* { return new QnGeMLine2d(); }},
        {"MLineOneVertex", false, []() -> QnGeObject* { return new QnGeMLine2d(1, true); }},
        {"MLineTwoEqual", false, []() -> QnGeObject* { return new QnGeMLine2d(2, true); }},
        {"MLineBad", false, []() -> QnGeObject* { return new QnGeMLine2d(BadOutline()); }},
        {"Polyline", true, []() -> QnGeObject* { return Parsed("pline 0,0,1@1.5 4,0,2 4,3,3@-2 -1,-1,-1"); }},
        {"PolylineClosed", true, []() -> QnGeObject* { return Parsed("pline 0,0@1 4,0 4,3@-0.5 close"); }},
        {"PolylineNew", false, []() -> QnGeObject* { return new QnGePolyline2d(); }},
        {"PolylineOneVertex", false, []() -> QnGeObject* { return new QnGePolyline2d(1, false); }},
        {"PolylineBad", false, []() -> QnGeObject* { return BadPolyline(); }},
        {"Chain", true, []() -> QnGeObject* { return Parsed("chain seg 0,0 4,0 | arc 4,1 r1 from 3pi/2 sweep pi/2"); }},
        {"ChainClosed", true,
         []() -> QnGeObject* { return Parsed("chain seg 0,0 4,0 | pline 4,0@pi 0,2,0 | mline 0,2 -1,1 0,0"); }},
        {"ChainToInfinity", true,
         []() -> QnGeObject* { return Parsed("chain ray reversed 0,0 -1,0 | seg 0,0 4,0 | ray 4,0 1,1"); }},
        {"ChainOfOneCircle", true, []() -> QnGeObject* { return Parsed("chain circle 1,2 r4 cw"); }},
        {"ChainBad", false, []() -> QnGeObject* { return BadChain(); }},
        {"ChainNew", false, []() -> QnGeObject* { return new QnGeMCurve2d(); }},
        {"Ellipse", true, []() -> QnGeObject* { return MakeEllipse(); }},
        {"EllipseNew", false, []() -> QnGeObject* { return new QnGeEllipse2d(); }},
        {"EArcNew", false, []() -> QnGeObject* { return new QnGeEArc2d(); }},
        {"SplineNew", false, []() -> QnGeObject* { return new QnGeSpline2d(); }},
        {"Polygon", true, []() -> QnGeObject* { return Parsed("region 0,0,1 4,0,2 4,3,3"); }},
        {"PolygonNew", false, []() -> QnGeObject* { return new QnGePolygon2d(); }},
        {"PolygonOneVertex", false, []() -> QnGeObject* { return new QnGePolygon2d(1); }},
        {"PolygonBad", false, []() -> QnGeObject* { return new QnGePolygon2d(BadOutline(), true); }},
        {"GeneralPolygon", true,
         []() -> QnGeObject* { return Parsed("region 0,0 9,0 9,9 0,9 | 1,1 1,2 2,2 | 5,5 5,6 6,6"); }},
        {"GeneralPolygonNew", false, []() -> QnGeObject* { return new QnGeGeneralPolygon2d(); }},
        {"GeneralPolygonBad", false, []() -> QnGeObject* { return BadGeneralPolygon(); }},
        {"GeneralRegion", true,
         []() -> QnGeObject* { return Parsed("region circle 0,0 r5 | mline 0,0 0,1 1,1 close"); }},
        {"GeneralRegionNew", true, []() -> QnGeObject* { return new QnGeGeneralRegion2d(); }},
        {"GeneralRegionPlaneWithHole", true, []() -> QnGeObject* { return PlaneWithHole(); }},
        {"GeneralRegionBad", false, []() -> QnGeObject* { return RegionOfCircleOnly(); }},
        {"Point3d", true, []() -> QnGeObject* { return new QnGePoint3d(1.0, 2.0, 3.0); }},
        {"Point3dBad", false, []() -> QnGeObject* { return new QnGePoint3d(BadPoint()); }},
        {"Line3dNew", false, []() -> QnGeObject* { return new QnGeLine3d(); }},
        {"LineRay3dNew", false, []() -> QnGeObject* { return new QnGeLineRay3d(); }},
        {"LineSeg3dNew", false, []() -> QnGeObject* { return new QnGeLineSeg3d(); }},
        {"MLine3dNew", false, []() -> QnGeObject* { return new QnGeMLine3d(); }},
        {"MCurve3dNew", false, []() -> QnGeObject* { return new QnGeMCurve3d(); }},
        {"Polyline3dNew", false, []() -> QnGeObject* { return new QnGePolyline3d(); }},
        {"PlaneCurve3dNew", false, []() -> QnGeObject* { return new QnGePlaneCurve3d(); }},
        {"Plane3dNew", false, []() -> QnGeObject* { return new QnGePlane3d(); }},
        {"Face3dNew", false, []() -> QnGeObject* { return new QnGeFace3d(); }},
        {"Solid3dNew", false, []() -> QnGeObject* { return new QnGeSolid3d(); }},
        {"RootNew", false, []() -> QnGeObject* { return new QnGeObject(); }},
        {"Root2dNew", false, []() -> QnGeObject* { return new QnGeObject2d(); }},
        {"Root3dNew", false, []() -> QnGeObject* { return new QnGeObject3d(); }},
        {"CurveNew", false, []() -> QnGeObject* { return new QnGeCurve2d(); }},
        {"Curve3dNew", false, []() -> QnGeObject* { return new QnGeCurve3d(); }},
        {"RegionNew", false, []() -> QnGeObject* { return new QnGeRegion2d(); }},
    };
    return samples;
}

}  // namespace protocol
