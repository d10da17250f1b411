// SPDX-License-Identifier: Apache-2.0
// A scene with every kind of object that a stream can make again, written and read back bit for bit.
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "Example.h"
#include "base/QnDynArrayStream.h"
#include "base/QnRxClassInfo.h"
#include "curves2d/QnGeArc2d.h"
#include "curves2d/QnGeCircle2d.h"
#include "curves2d/QnGeLine2d.h"
#include "curves2d/QnGeLineRay2d.h"
#include "curves2d/QnGeLineSeg2d.h"
#include "frame/QnGeClassId.h"
#include "frame/QnGeObjList.h"
#include "polylines/QnGePolyline2d.h"
#include "regions/QnGeGeneralPolygon2d.h"
#include "regions/QnGeGeneralRegion2d.h"
#include "support/DataFiles.h"
#include "support/SvgPicture.h"
#include "values/QnGeMatrix.h"
#include "values/QnGePoint2d.h"
#include "values/QnGePoint3d.h"

namespace {

const QnGePoint REYKJAVIK(2821215.66, 4911736.92, 35.0);
const QnGePoint AKUREYRI(3061971.68, 4989574.62);
const QnGePoint HIGHEST_SUMMIT(3046370.86, 4792890.82, 2110.0);
constexpr double ICON_SIZE = 24.0;
constexpr double SYMBOL_SIZE = 40000.0;

/// A matrix that draws an icon of the 24 by 24 grid in `size` around `centre`.
QnGeMatrix PlaceIcon(const QnGePoint& centre, double size) {
    QnGeMatrix scale;
    scale.CreateScaleMatrix(size / ICON_SIZE, size / ICON_SIZE);
    QnGeMatrix move;
    move.CreateMoveMatrix(centre.x - size / 2.0, centre.y - size / 2.0);
    return move * scale;  // the right one acts first
}

const data_files::ArcPolygon& FindIcon(const std::vector<data_files::ArcShape>& shapes, const std::string& name) {
    for (const data_files::ArcShape& shape : shapes) {
        if (shape.name == name) {
            return shape.polygons[0];
        }
    }
    throw std::runtime_error("no icon has the name " + name);
}

/// Iceland, its glaciers, two symbols and some curves. The list owns all of it.
void MakeScene(const std::string& data, QnGeObjList& scene) {
    const QnGeMLine2d coast = data_files::ReadPolygons(data + "/polygons/iceland.txt")[0].rings[0];
    scene.Append(new QnGePolygon2d(coast, true));
    for (const data_files::Polygon& glacier : data_files::ReadPolygons(data + "/polygons/iceland_glaciers.txt")) {
        auto* polygon = new QnGeGeneralPolygon2d(glacier.rings[0], true);
        scene.Append(polygon);
        for (std::size_t i = 1; i < glacier.rings.size(); ++i) {
            polygon->AppendHole(new QnGeMLine2d(glacier.rings[i]), false);
        }
    }
    const std::vector<data_files::ArcShape> icons = data_files::ReadArcShapes(data + "/arcs/icons_filled.txt");
    const data_files::ArcPolygon& symbol = FindIcon(icons, "filled-clock-hour-4");
    auto* region = new QnGeGeneralRegion2d(symbol.rings[0], true);
    scene.Append(region);
    for (std::size_t i = 1; i < symbol.rings.size(); ++i) {
        region->AppendHole(new QnGePolyline2d(symbol.rings[i]), false);
    }
    region->TransformBy(PlaceIcon(QnGePoint(3170000.0, 4910000.0), SYMBOL_SIZE));
    auto* outline = new QnGePolyline2d(FindIcon(icons, "filled-truck").rings[0]);
    scene.Append(outline);
    outline->TransformBy(PlaceIcon(QnGePoint(2931000.0, 4868000.0), SYMBOL_SIZE));

    scene.Append(coast.GetSubCurve(0.1, 0.35));  // a stretch of coast as an open multi-line
    scene.Append(new QnGeLine2d(REYKJAVIK, AKUREYRI));
    scene.Append(new QnGeLineRay2d(REYKJAVIK, HIGHEST_SUMMIT));
    scene.Append(new QnGeLineSeg2d(AKUREYRI, HIGHEST_SUMMIT));
    scene.Append(new QnGeCircle2d(HIGHEST_SUMMIT, 60000.0, false));
    scene.Append(new QnGeArc2d(REYKJAVIK, 90000.0, -0.5, 2.0));
    scene.Append(new QnGePoint2d(REYKJAVIK));
    scene.Append(new QnGePoint3d(HIGHEST_SUMMIT));
}

const long STREAMED_KINDS[] = {CLASS_ID_POINT2D,           CLASS_ID_LINE2D,           CLASS_ID_LINE_RAY2D,
                               CLASS_ID_LINE_SEG2D,        CLASS_ID_CIRCLE2D,         CLASS_ID_ARC2D,
                               CLASS_ID_MLINE2D,           CLASS_ID_POLYLINE2D,       CLASS_ID_POLYGON2D,
                               CLASS_ID_GENERAL_POLYGON2D, CLASS_ID_GENERAL_REGION2D, CLASS_ID_POINT3D};

bool HasSameBytes(const QnDynArrayStream& a, const QnDynArrayStream& b) {
    return a.GetLength() == b.GetLength() &&
           std::memcmp(a.GetBytes(), b.GetBytes(), static_cast<std::size_t>(a.GetLength())) == 0;
}

/// Checks that the objects of one class are the same in both lists, byte for byte.
void CompareKind(long classId, const QnGeObjList& scene, const QnGeObjList& read) {
    long count = 0;
    long bytes = 0;
    std::string name;
    for (long i = 0; i < scene.GetLength(); ++i) {
        const QnGeObject& original = *scene.GetAt(i);
        const QnGeObject* copy = read.GetAt(i);
        if (original.GetClassID() != classId) {
            continue;
        }
        Require(copy != nullptr && copy->GetCI() == original.GetCI(), "class of object " + std::to_string(i));
        QnDynArrayStream first(1024, 1024);
        QnDynArrayStream second(1024, 1024);
        original.StreamOut(first);
        copy->StreamOut(second);
        Require(HasSameBytes(first, second), "record of object " + std::to_string(i));
        ++count;
        name = original.GetCI()->GetName();
        bytes += first.GetLength();
    }
    Require(count > 0, "the scene has an object of class " + std::to_string(classId));
    std::printf("  %-24s%4ld object%s%9ld bytes  equal\n", name.c_str(), count, count == 1 ? " " : "s", bytes);
}

void Run(const std::string& data, const std::string& out) {
    QnGeObjList scene;
    MakeScene(data, scene);

    QnDynArrayStream stream(4096, 4096);
    scene.StreamOut(stream);
    stream.MoveToFirst();
    QnGeObjList read;
    read.StreamIn(stream);
    std::printf("%ld objects, %ld bytes\n", scene.GetLength(), stream.GetLength());
    Require(read.GetLength() == scene.GetLength(), "number of objects read back");
    for (const long classId : STREAMED_KINDS) {
        CompareKind(classId, scene, read);
    }
    QnDynArrayStream again(4096, 4096);
    read.StreamOut(again);
    Require(HasSameBytes(stream, again), "what was read is written as the same bytes");
    std::printf("written again: the same %ld bytes\n", again.GetLength());

    SvgPicture picture("A scene that went through a stream",
                       "Every kind of object that a stream can make again, drawn from what was read back.");
    picture.Legend(SvgRole::A, "the island")
        .Legend(SvgRole::Result, "glaciers, a symbol")
        .Legend(SvgRole::B, "curves")
        .Legend(SvgRole::Mark, "points");
    picture.ScaleBar(50000.0, "50 km");
    for (long i = 0; i < read.GetLength(); ++i) {
        const QnGeObject& object = *read.GetAt(i);
        const bool isRegion = dynamic_cast<const QnGeRegion2d*>(&object) != nullptr;
        picture.Arrows(object.GetClassID() == CLASS_ID_ARC2D || object.GetClassID() == CLASS_ID_CIRCLE2D);
        picture.Draw(object, isRegion ? (i == 0 ? SvgRole::A : SvgRole::Result) : SvgRole::B);
    }
    picture.Dot(REYKJAVIK, SvgRole::Mark, "Reykjavik").Dot(HIGHEST_SUMMIT, SvgRole::Mark, "highest summit");
    picture.Save(out + "/05_streams.svg");
}

}  // namespace

int main(int argc, char** argv) {
    return RunExample(argc, argv, Run);
}
