// SPDX-License-Identifier: Apache-2.0
// Every operation of every class, called for nothing but to come back.
#include <limits>
#include <memory>

#include "QuarnGeo.h"
#include "protocol/Samples.h"

namespace protocol {
namespace {

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

const double NUMBERS[] = {0.0, 0.5, 1.0, -1.0, 3.0, 1e-12, 1e300, -1e300, INF, -INF, NOT_A_NUMBER};
const QnGePoint POINTS[] = {QnGePoint(),
                            QnGePoint(1.0, 2.0, 3.0),
                            QnGePoint(4.0, 0.0),
                            QnGePoint(1e300, -1e300, 1e300),
                            QnGePoint(INF, -INF),
                            QnGePoint(NOT_A_NUMBER, 1.0),
                            QnGePoint(1.0, NOT_A_NUMBER, INF)};

/// Takes a result that the caller owns.
void Drop(QnGeObject* object) {
    delete object;
}

std::unique_ptr<QnGeObject> CopyOf(const QnGeObject& object) {
    return std::unique_ptr<QnGeObject>(object.Clone());
}

void CallReading(const QnGeObject& object) {
    object.IsValid();
    Drop(object.Clone());
    Drop(object.CloneNew());
    Drop(object.Symplify());
    QnGeObjList list;
    object.Explode(list);
    object.FullExplode(list);
    QnGeExtent2d box;
    QnGeExtent3d space;
    object.GetExtent2d(box);
    object.GetExtent3d(space);
    object.IsExtentInter(box);
    object.IsExtentInter(space);
    QnGeCoordSys ecs;
    object.GetEcs(ecs);
    object.GetSamplePoint();
    object.IsClassOf(nullptr);
    for (const QnGePoint& point : POINTS) {
        object.HitTest(point);
        int index = 0;
        object.SubHitTest(point, index);
        QnGePointList points;
        object.GetClosestPoint(point, points);
        object.GetClosestPoint2d(point, points);
        QnGePoint found;
        object.GetClosestPoint(point, found);
        object.GetClosestPoint2d(point, found);
        QnGePoint2d target(point);
        object.TransToWcs(&target);
        object.TransToEcs(&target);
    }
    QnDynArrayStream stream(16, 16);
    object.StreamOut(stream);
}

void CallParameters(const QnGeCurve2d& curve) {
    for (const double a : NUMBERS) {
        QnGePoint point;
        double number = 0.0;
        QnGeBaseLine2d tangent;
        curve.GetPtFromPa(a, point);
        curve.GetPtFromDist(a, point);
        curve.GetPaFromDist(a, number);
        curve.GetDistFromPa(a, number);
        curve.GetTangent(a, tangent);
        curve.IsIncludePa(a);
        Drop(curve.GetOffsetCurve(a));
        for (const double b : NUMBERS) {
            curve.Integration(a, b);
            Drop(curve.GetSubCurve(a, b));
            QnDynArray<double> pas;
            pas.Append(a);
            pas.Append(b);
            QnGeObjList pieces;
            curve.Split(pas, pieces);
        }
    }
}

void CallPoints(const QnGeCurve2d& curve) {
    QnGePointArray all;
    for (const QnGePoint& point : POINTS) {
        all.Append(point);
        double number = 0.0;
        QnGeBaseLine2d tangent;
        curve.GetPaFromPt(point, number);
        curve.GetDistFromPt(point, number);
        curve.GetTangentFromPt(point, tangent);
        curve.HitTestSide(point);
        Drop(curve.GetSubCurve(point, POINTS[1]));
    }
    QnGeObjList pieces;
    curve.Split(all, pieces);
    curve.Split(QnGePointArray(), pieces);
    QnGePoint point;
    curve.GetStartPoint(point);
    curve.GetEndPoint(point);
    curve.GetMidPoint(point);
}

void CallCurve(const QnGeCurve2d& curve) {
    CallParameters(curve);
    CallPoints(curve);
    curve.IsFinite(true);
    curve.IsFinite(false);
    curve.IsFinite();
    curve.IsInfinite();
    curve.IsCurveSeg();
    curve.IsClosed();
    curve.IsMLinear();
    curve.GetPeriod();
    curve.IsSelfCross();
    curve.IsClockwise();
    curve.Area();
    curve.Length();
    curve.TotalIntegration();
    curve.GetMLinePrec();
    Drop(curve.GetExtendCurve());
    Drop(curve.ConvertTo3d());
    for (const double prec : {0.0, 0.3, -1.0, INF, NOT_A_NUMBER}) {
        Drop(curve.MLinearize(prec));
        Drop(curve.PLinearize(prec));
    }
    for (const double step : {0.7, INF, NOT_A_NUMBER}) {
        if (step < INF && curve.Length() > 1e6 && curve.Length() < INF) {
            continue;  // as many vertices as steps: too many to keep
        }
        Drop(curve.MLinearizeByDist(step, true));
        Drop(curve.MLinearizeByDist(step, false));
    }
}

void CallRegion(const QnGeRegion2d& region) {
    region.GetBoundary(0);
    region.GetBoundaryNum();
    region.IsOutlineExist();
    region.GetHoleNum();
    region.IsHoleExist();
    region.IsClosed();
    region.IsEntirePlane();
    region.IsAllowBoundaryInter();
    region.IsMayBoundaryInter();
    region.IsBoundaryInter();
    region.Area();
    Drop(region.MLinearize(0.3));
    QnGeObjList out;
    region.SubtractBy(QnGeObjList(), out);
}

void CallMultiLine(QnGeMLine2d& line) {
    line.GetCenter();
    line.IsPlanear();
    line.IsLinear();
    line.IsConcave();
    for (const double a : NUMBERS) {
        double pa = a;
        line.GetSegIndexFromPa(pa);
    }
    line.RemoveDupPoint();
    line.InsertNode(POINTS[1], true);
    line.InsertNode(POINTS[5], false);
    line.DelNode(POINTS[1]);
    line.AppendVertex(POINTS[4], INF);
    line.InsertVertex(0, POINTS[5], NOT_A_NUMBER);
    line.DelVertex(0);
    line.SetAllocUnit(3);
    line.SetVertexNum(2, true);
}

/// Operations that change the object, each on a copy of its own.
void CallChanging(const QnGeObject& object) {
    const auto with = [&object](auto change) {
        const std::unique_ptr<QnGeObject> copy = CopyOf(object);
        if (copy != nullptr) {
            change(*copy);
            CallReading(*copy);
        }
    };
    with([](QnGeObject& copy) { copy.CopyFrom(nullptr); });
    for (const double a : {0.0, 2.0, -3.0, INF, NOT_A_NUMBER}) {
        with([a](QnGeObject& copy) {
            QnGeMatrix matrix;
            matrix.CreateScaleMatrix(a, 2.0, 1.0);
            copy.TransformBy(matrix);
        });
        with([a](QnGeObject& copy) {
            if (auto* const planar = dynamic_cast<QnGeObject2d*>(&copy)) {
                planar->Move(a, 1.0);
                planar->Rotate(a);
                planar->SetElevation(a);
                planar->GetElevation();
                planar->GetDistance(POINTS[1]);
            }
        });
        with([a](QnGeObject& copy) {
            if (auto* const curve = dynamic_cast<QnGeCurve2d*>(&copy)) {
                curve->Offset(a);
                curve->Reverse();
                curve->Compress();
            }
        });
        with([a](QnGeObject& copy) {
            if (auto* const region = dynamic_cast<QnGeRegion2d*>(&copy)) {
                region->Offset(a);
                region->Normalize();
            }
        });
    }
    with([](QnGeObject& copy) {
        if (auto* const line = dynamic_cast<QnGeMLine2d*>(&copy)) {
            CallMultiLine(*line);
        }
    });
}

}  // namespace

void CallEverything(QnGeObject& object) {
    CallReading(object);
    if (const auto* const curve = dynamic_cast<const QnGeCurve2d*>(&object)) {
        CallCurve(*curve);
    }
    if (const auto* const region = dynamic_cast<const QnGeRegion2d*>(&object)) {
        CallRegion(*region);
    }
    CallChanging(object);
    object.CopyFrom(nullptr);
}

void CallWith(const QnGeObject& object, const QnGeObject& partner) {
    QnGeObjList found;
    object.IntersectWith(partner, found);
    object.IsInclude(partner);
    QnGeObjList in;
    QnGeObjList out;
    QnGeObjList on;
    const auto* const curve = dynamic_cast<const QnGeCurve2d*>(&object);
    const auto* const otherCurve = dynamic_cast<const QnGeCurve2d*>(&partner);
    if (curve != nullptr) {
        curve->Cut(partner, in, out, on);
    }
    if (curve != nullptr && otherCurve != nullptr) {
        const std::unique_ptr<QnGeObject> copy = CopyOf(object);
        if (auto* const changed = dynamic_cast<QnGeCurve2d*>(copy.get())) {
            changed->Conbine(*otherCurve, true);
            changed->Conbine(*otherCurve, false);
            changed->Extend(partner, true, true);
            changed->Trim(partner, false);
            changed->Connect(partner, true, 0);
        }
        curve->IsConnectWith(*otherCurve);
    }
    const auto* const region = dynamic_cast<const QnGeRegion2d*>(&object);
    if (region == nullptr) {
        return;
    }
    region->Clip(partner, in, out, on);
    if (otherCurve != nullptr) {
        region->CutBy(*otherCurve, in, out);
    }
    if (const auto* const otherRegion = dynamic_cast<const QnGeRegion2d*>(&partner)) {
        region->Inter(*otherRegion, found);
        region->SubtractBy(*otherRegion, found);
        Drop(region->Union(*otherRegion));
    }
}

}  // namespace protocol
