# SPDX-License-Identifier: Apache-2.0
"""Printers of values: points and vectors, ranges, flag words, base shapes, matrices."""

from quarn_read import HIT_FLAGS, Printer, flags, number, point, type_name


def extent(value, order="inverted"):
    low, high = value["min"], value["max"]
    text = f"[{number(low)}, {number(high)}]"
    return text if float(low) <= float(high) else f"{text} {order}"


def box(value):
    return f"{extent(value['x'])} x {extent(value['y'])}"


def bits(value):
    return int(value["m_nBits"])


def carrying_line(value):
    return f"through {point(value['basePoint'])} by {point(value)}"


def circle(value):
    return f"centre {point(value['center'])} radius {number(value['radius'])}"


def ellipse(value):
    radii = f"radii {number(value['majorRadius'])} and {number(value['minorRadius'])}"
    return f"centre {point(value['center'])} {radii} rotation {number(value['rotation'])}"


class Point(Printer):
    """QnGePoint and the vectors."""

    def text(self):
        return point(self.value)


class Extent(Printer):
    def text(self):
        return extent(self.value)


class Interval(Printer):
    def text(self):
        return extent(self.value, "reversed")


class Extent2d(Printer):
    def text(self):
        return box(self.value)


class Extent3d(Printer):
    def text(self):
        return f"{box(self.value)} x {extent(self.value['z'])}"


class BitData(Printer):
    """A word that is nobody's state: mostly the answer of a hit test."""

    def text(self):
        return flags(bits(self.value), HIT_FLAGS)


class GraphRecord(Printer):
    """A node or arc of somebody's own graph, who alone knows the names of its marks."""

    def text(self):
        return f"{type_name(self.value)} {flags(bits(self.value), {})}"


class CurvePa(Printer):
    def text(self):
        return f"pa {number(self.value['pa'])} flags {bits(self.value):#x}"


class CurvePaWithPt(CurvePa):
    def text(self):
        return f"{super().text()} at {point(self.value)}"


class BaseLine(Printer):
    def text(self):
        return carrying_line(self.value)


class BaseCircle(Printer):
    def text(self):
        return circle(self.value)


class BaseEllipse(Printer):
    def text(self):
        return ellipse(self.value)


class BasePlane(Printer):
    def text(self):
        return f"normal {point(self.value)} d {number(self.value['d'])}"


class Matrix(Printer):
    def text(self):
        return "QnGeMatrix"

    def parts(self):
        for row in range(4):
            yield f"[{row}]", " ".join(number(self.value["m"][row][column]) for column in range(4))


class CoordSys(Printer):
    def text(self):
        axes = (f"{name} {point(self.value[name + 'Axis'])}" for name in "xyz")
        return f"origin {point(self.value['origin'])} {' '.join(axes)}"


PRINTERS = {
    "QnGePoint": Point,
    "QnGeExtent": Extent,
    "QnGeInterval": Interval,
    "QnGeExtent2d": Extent2d,
    "QnGeExtent3d": Extent3d,
    "QnBitData": BitData,
    "QnGraphNode": GraphRecord,
    "QnGraphArc": GraphRecord,
    "QnGeCurvePa": CurvePa,
    "QnGeCurvePaWithPt": CurvePaWithPt,
    "QnGeBaseLine2d": BaseLine,
    "QnGeBaseLine3d": BaseLine,
    "QnGeBaseCircle": BaseCircle,
    "QnGeBaseEllipse": BaseEllipse,
    "QnGeBasePlane": BasePlane,
    "QnGeMatrix": Matrix,
    "QnGeCoordSys": CoordSys,
}
