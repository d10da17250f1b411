# SPDX-License-Identifier: Apache-2.0
"""Printers of the object classes, by the class that an object really is."""

from quarn_containers import List
from quarn_read import (
    CIRCLE_FLAGS,
    LINE_FLAGS,
    REGION_FLAGS,
    Printer,
    coordinates,
    count,
    dynamic_name,
    flags,
    number,
    point,
    type_name,
)
from quarn_values import bits, carrying_line, circle, ellipse


class Object(Printer):
    """QnGeObject: the class, what describe() says, and the flags if there are any."""

    flag_names = {}

    def describe(self):
        return ""

    def text(self):
        word = bits(self.value)
        state = f"flags {flags(word, self.flag_names)}" if word else ""
        return " ".join(filter(None, (dynamic_name(self.value) or type_name(self.value), self.describe(), state)))


class PointObject(Object):
    def describe(self):
        return point(self.value)


# ---- curves ----------------------------------------------------------------------------------------


class Line(Object):
    def describe(self):
        return carrying_line(self.value)


class Ray(Object):
    def describe(self):
        text = f"from {point(self.value['basePoint'])} by {point(self.value)}"
        return f"{text} reversed" if self.value["m_reverse"] else text


class Segment(Object):
    def describe(self):
        base = self.value["basePoint"]
        end = coordinates(*(float(base[axis]) + float(self.value[axis]) for axis in "xyz"))
        return f"{point(base)} to {end}"


class Circle(Object):
    flag_names = CIRCLE_FLAGS

    def describe(self):
        return circle(self.value)


def sweep(value, start, central):
    return f"start {number(value[start])} sweep {number(value[central])}"


class Arc(Object):
    """The direction is in the circle's flag word."""

    def describe(self):
        carrier = self.value["m_circle"]
        text = f"{circle(carrier)} {sweep(self.value, 'm_startAngle', 'm_centralAngle')}"
        word = bits(carrier)
        return f"{text} circle {flags(word, CIRCLE_FLAGS)}" if word else text


class Ellipse(Object):
    def describe(self):
        return ellipse(self.value)


class EllipticArc(Object):
    def describe(self):
        return f"{ellipse(self.value['ellipse'])} {sweep(self.value, 'startAngle', 'centralAngle')}"


def vertex_number(line):
    return int(line["m_vertices"]["m_nLength"])


def vertices(line, bulges=None):
    points = line["m_vertices"]
    for index in range(min(int(points["m_nLength"]), int(points["m_nSpace"]))):
        text = point(points["m_pData"][index])
        if bulges is not None and index < int(bulges["m_nLength"]):
            bulge = float(bulges["m_pData"][index])
            text = f"{text} bulge {number(bulge)}" if bulge != 0.0 else text
        yield f"[{index}]", text


class MultiLine(Object):
    flag_names = LINE_FLAGS

    def describe(self):
        return f"of {count(vertex_number(self.value), 'vertex', 'vertices')}"

    def parts(self):
        return vertices(self.value)


class Polyline(MultiLine):
    def describe(self):
        bulges = int(self.value["m_bulges"]["m_nLength"])
        text = super().describe()
        return text if bulges == vertex_number(self.value) else f"{text} and {count(bulges, 'bulge', 'bulges')}"

    def parts(self):
        return vertices(self.value, self.value["m_bulges"])


class Chain(Object):
    """QnGeMCurve2d, which is the list of its curves."""

    def describe(self):
        curves = List(self.value)
        where = curves.cursor() if 0 <= curves.cursor() < curves.length() else "out"
        return f"of {count(curves.length(), 'curve', 'curves')}, cursor {where}"

    def parts(self):
        return List(self.value).parts()


# ---- regions ---------------------------------------------------------------------------------------


class Polygon(Object):
    flag_names = REGION_FLAGS

    def describe(self):
        return f"of {count(vertex_number(self.value['m_outline']), 'vertex', 'vertices')}"

    def parts(self):
        return vertices(self.value["m_outline"])


class PolygonWithHoles(Polygon):
    def describe(self):
        holes = int(self.value["m_holes"]["m_nLength"])
        return f"{super().describe()} and {count(holes, 'hole', 'holes')}"

    def parts(self):
        yield "outline", self.value["m_outline"]
        for index, (_, hole) in enumerate(List(self.value["m_holes"]).parts()):
            yield f"hole {index}", hole


class GeneralRegion(Object):
    """Boundary 0 is the outline and may be null."""

    flag_names = REGION_FLAGS

    def describe(self):
        holes = max(int(self.value["m_boundaries"]["m_nLength"]) - 1, 0)
        return f"with {count(holes, 'hole', 'holes')}"

    def parts(self):
        for index, (_, boundary) in enumerate(List(self.value["m_boundaries"]).parts()):
            yield (f"hole {index - 1}" if index else "outline"), boundary


PRINTERS = {
    "QnGeObject": Object,
    "QnGePoint2d": PointObject,
    "QnGePoint3d": PointObject,
    "QnGeLine2d": Line,
    "QnGeLineRay2d": Ray,
    "QnGeLineSeg2d": Segment,
    "QnGeCircle2d": Circle,
    "QnGeArc2d": Arc,
    "QnGeEllipse2d": Ellipse,
    "QnGeEArc2d": EllipticArc,
    "QnGeMLine2d": MultiLine,
    "QnGePolyline2d": Polyline,
    "QnGeMCurve2d": Chain,
    "QnGePolygon2d": Polygon,
    "QnGeGeneralPolygon2d": PolygonWithHoles,
    "QnGeGeneralRegion2d": GeneralRegion,
}
