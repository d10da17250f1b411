// SPDX-License-Identifier: Apache-2.0
// One of everything that the gdb printers show. The debugger stops at StopHere and goes up to main.
#include <cstring>

#include "QuarnGeo.h"

namespace {

__attribute__((noinline)) void StopHere() {
    asm volatile("");  // not to be left out
}

template <class... T>
void Keep(const T&...) {}  // what nobody else uses

/// Memory in which an object was to be: an object that was never made, or over which somebody wrote.
template <class T>
struct Garbage {
    alignas(T) unsigned char bytes[sizeof(T)];

    explicit Garbage(int filling) { std::memset(bytes, filling, sizeof(T)); }
    T& Get() { return *reinterpret_cast<T*>(bytes); }
};

/// A sequence of 1 and 2 whose length somebody wrote over.
template <class Sequence>
struct WrongLength : Sequence {
    explicit WrongLength(long length) {
        *this << 1 << 2;
        this->m_nLength = length;
    }
    ~WrongLength() override { this->m_nLength = 2; }
};

/// As callers derive: a class of which the printers have not heard.
class Kerb : public QnGeLineSeg2d {
public:
    using QnGeLineSeg2d::QnGeLineSeg2d;
    int stones = 7;
};

template <class... Object>
void Append(QnGeObjList& list, Object*... objects) {
    (static_cast<QnDynArrayBase<QnGeObject*>&>(list).Append(objects), ...);
}

QnGeMLine2d MakeTriangleLine(double size) {
    QnGeMLine2d line(0, true);
    line.AppendVertex(QnGePoint(0, 0));
    line.AppendVertex(QnGePoint(size, 0));
    line.AppendVertex(QnGePoint(0, size));
    return line;
}

}  // namespace

int main() {
    // ---- values ----------------------------------------------------------------------------------
    QnGePoint point(1, -2.5, 0.1);
    QnGeVector2d vector(3, 4);
    QnGePoint2d pointObject(1, 2, 3);
    QnGeExtent extent(-1, 2);
    QnGeExtent invertedExtent(2, -1);
    QnGeExtent2d box(QnGeExtent(0, 4), QnGeExtent(0, 3));
    QnGeExtent3d box3(QnGeExtent(0, 4), QnGeExtent(0, 3), QnGeExtent(-1, 1));
    QnGeInterval interval(0.25, 0.5);
    QnGeInterval reversed(0.75, 0.25);
    QnBitData onHole(HIT_ON | HIT_BOUNDARY | HIT_HOLE);
    QnBitData noHit;
    QnBitData unknownBits(HIT_IN | 0x400);
    QnGeBaseLine2d baseLine(QnGePoint(1, 1), QnGePoint(3, 1));
    QnGeBaseCircle baseCircle(QnGePoint(1, 2), 3);
    QnGeCurvePa curvePa(0.5, 3);
    QnGeMatrix matrix;
    QnGeCoordSys world;

    // ---- containers ------------------------------------------------------------------------------
    QnDynArray<double> numbers;
    numbers << 1.0 << 2.5 << 3.0;
    numbers.MoveTo(1);
    QnDynArray<double> noNumbers;
    QnArray<long> block(2);
    block[0] = 4;
    block[1] = 5;
    Qn2dArray<long> table(2, 1);
    QnPDList<QnGePoint> ownedPoints;
    ownedPoints.Append(new QnGePoint(1, 1));
    ownedPoints.Append(nullptr);
    QnDList<long> list;
    list << 10 << 20 << 30;
    list.MoveToLast();
    QnDList<long> listOut(list);
    QnXList<long> indexed;
    indexed << 7;
    QnGePointArray points;
    points.Append(QnGePoint(5, 6));
    QnGeIntervalList intervals(1);
    intervals.Append(QnGeInterval(0, 0.5));
    QnDListStack<long> stack;
    stack.Push(1);
    stack.Push(2);
    stack.Push(3);
    stack.GoBack();
    QnListQuene<long> queue;
    queue.EnQuene(8);
    queue.EnQuene(9);
    QnGePtFreeList1 ring(QnGePoint(0, 0));
    QnGePtFreeList1 ringEnd(QnGePoint(1, 0));
    ring.SetNext(&ringEnd);
    ringEnd.SetNext(&ring);
    ringEnd.SetBit(QnGePtFreeList1::PT_RING_TAKEN);

    // ---- objects ---------------------------------------------------------------------------------
    QnGeLine2d line(QnGePoint(0, 0), QnGePoint(1, 0));
    QnGeLineRay2d ray(QnGePoint(1, 1), QnGePoint(2, 3));
    QnGeLineSeg2d segment(QnGePoint(1, 1), QnGePoint(5, 1));
    QnGeCircle2d circle(QnGePoint(1, 2), 3, false);
    QnGeArc2d arc(QnGePoint(0, 0), 2, 0.5, 1.5, false);
    QnGeMLine2d multiLine(MakeTriangleLine(4));
    QnGePolyline2d polyline(0, false);
    polyline.AppendVertex(QnGePoint(0, 0), 1.5);
    polyline.AppendVertex(QnGePoint(4, 0));
    QnGeMCurve2d chain;
    chain.List().Append(new QnGeLineSeg2d(QnGePoint(0, 0), QnGePoint(1, 0)));
    chain.List().Append(new QnGeArc2d(QnGePoint(1, 1), 1, 4.5, 1.5));
    QnGePolygon2d polygon(MakeTriangleLine(4), false);
    QnGeGeneralPolygon2d holed(MakeTriangleLine(4), false);
    holed.AppendHole(new QnGeMLine2d(2), false);
    QnGeGeneralRegion2d region(circle, false);
    region.AppendHole(new QnGeCircle2d(QnGePoint(1, 2), 1), false);
    region.SetBit(OBJ_NO_BOUNDARY_INTER);
    QnGeGeneralRegion2d plane;
    QnGeLine3d shell;
    Kerb kerb(QnGePoint(0, 0), QnGePoint(0, 9));
    QnGeCurve2d& curve = segment;
    const QnGeObject* object = &arc;
    const QnPDList<QnGeCurve2d>* curves = &chain;
    QnGeObjList objects;
    Append(objects, new QnGePoint2d(1, 2), static_cast<QnGeObject*>(nullptr), segment.Clone());
    objects.MoveToFirst();

    // ---- trees and networks ----------------------------------------------------------------------
    QnGeExtent2d crossing(QnGeExtent(3, 5), QnGeExtent(3, 5));
    QnGeExtent2d corner(QnGeExtent(6.5, 7), QnGeExtent(6.5, 7));
    QnGeQuadTree2d tree;
    tree.SetRange(0, 8, 0, 8);
    tree.Insert(&crossing);
    tree.Insert(&corner);
    QnGeQuadTree2d readTree;
    readTree.SetRange(0, 8, 0, 8);
    readTree.Insert(&crossing);
    readTree.Insert(&corner);
    readTree.ExtentList->MoveTo(0);  // makes the nodes
    QnGePoint onCentre(4, 1, 7);
    QnGePtQuadTree2d pointTree;
    pointTree.SetRange(0, 8, 0, 8);
    pointTree.Insert(&onCentre);
    QnGeTINNode mean(1, 2, 3);
    mean.AppendValue(5);
    QnGeTINGraph network;
    network.NodeList.Append(new QnGeTINNode(0, 0, 10));
    network.NodeList.Append(new QnGeTINNode(4, 0, 20));
    network.NodeList.Append(new QnGeTINNode(0, 3, 30));
    network.MakeTIN();
    QnGeTINTriangle triangle;
    triangle.SetBits(TRG_VISITED | TRG_IN_TREE);
    QnGeTINNode corners[] = {QnGeTINNode(0, 0), QnGeTINNode(4, 0), QnGeTINNode(0, 3)};
    QnGeTINTriangle roundTriangle;
    for (int i = 0; i < 3; ++i) {
        roundTriangle.Node[i] = &corners[i];
    }
    roundTriangle.UpdateExtend();
    roundTriangle.IsInsideCircle(QnGePoint(1, 1));  // computes the circle

    // ---- what is not what it should be -----------------------------------------------------------
    Garbage<QnDynArray<double>> wildArray(0xA5);
    Garbage<QnDList<long>> wildList(0xA5);
    Garbage<QnDList<long>> longWildList(0x11);
    Garbage<QnDList<long>> zeroList(0);
    Garbage<QnDynArray<double>> longWildArray(0x11);
    WrongLength<QnDynArray<long>> wrongArray(99);
    WrongLength<QnList<long>> wrongList(3);
    WrongLength<QnList<long>> shortList(1);
    Garbage<QnGePolyline2d> wildPolyline(0xA5);
    Garbage<QnGePolyline2d> zeroPolyline(0);
    Garbage<QnGeMCurve2d> wildChain(0xA5);
    Garbage<QnGeTINTriangle> wildTriangle(0xA5);
    Garbage<QnGePtFreeList> wildRing(0xA5);
    QnGeObject* nowhere = reinterpret_cast<QnGeObject*>(16);
    QnDynArray<QnGeObject*> nowhereObjects;
    nowhereObjects << nowhere << &segment;

    StopHere();
    Keep(point, vector, curve, object, curves, shell);
    ringEnd.ClearNext();  // both stand on the stack: neither owns the other
    ring.ClearNext();
    return 0;
}
