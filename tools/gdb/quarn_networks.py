# SPDX-License-Identifier: Apache-2.0
"""Printers of spatial trees and of triangulated networks."""

from quarn_read import (
    TRIANGLE_FLAGS,
    Printer,
    address,
    at,
    count,
    dynamic_name,
    flags,
    is_null,
    number,
    point,
    point_at,
    pointed,
    type_name,
)
from quarn_values import bits, box, extent


# ---- spatial trees ---------------------------------------------------------------------------------


class Tree(Printer):
    """A node of a tree: its range, its list, its single entry and its children."""

    contents = ("ExtentList", "OneExtent")

    def range_text(self):
        return box(self.value)

    def children_there(self):
        low, high = self.value["Child"].type.range()
        for index in range(low, high + 1):
            child = self.value["Child"][index]
            if not is_null(child):
                yield index, child

    def text(self):
        children = count(sum(1 for _ in self.children_there()), "child", "children")
        return f"{type_name(self.value)} {self.range_text()}, {children}"

    def parts(self):
        list_name, entry_name = self.contents
        if not is_null(self.value[list_name]):
            # As the list that it is to callers: the tree's own class of lists need not have debug information.
            yield list_name, at(self.value[list_name])
        if not is_null(self.value[entry_name]):
            yield entry_name, pointed(self.value[entry_name])
        for index, child in self.children_there():
            yield f"child {index}", pointed(child)


class PointTree(Tree):
    contents = ("PointList", "OnePoint")


class Octree(Tree):
    def range_text(self):
        return f"{box(self.value)} x {extent(self.value['z'])}"


class PointOctree(Octree):
    contents = PointTree.contents


# ---- triangulated networks -------------------------------------------------------------------------


class Node(Printer):
    def text(self):
        text = f"node {point(self.value)}"
        values = int(self.value["count"])
        return text if values == 1 else f"{text} mean of {values}"


class OutEdge(Printer):
    def text(self):
        return f"hull edge from {point_at(self.value['Node'])} of triangle {address(self.value['Triangle'])}"


class Triangle(Printer):
    """Neighbours are shown by address: following them would show the whole network."""

    def text(self):
        nodes = " ".join(point_at(self.value["Node"][index]) for index in range(3))
        word = bits(self.value)
        return f"triangle {nodes} flags {flags(word, TRIANGLE_FLAGS)}" if word else f"triangle {nodes}"

    def parts(self):
        for index in range(3):
            yield f"edge {index}", self.edge(index)
        radius = float(self.value["Radius"])
        middle = f"({number(self.value['CenterX'])}, {number(self.value['CenterY'])})"
        yield "circle", "not computed" if radius < 0 else f"centre {middle} radius {number(radius)}"
        yield "box", box(self.value)

    def edge(self, index):
        sides = (("hull", self.value["OutEdge"][index]), ("triangle", self.value["NearTrg"][index]))
        there = [f"{name} {address(pointer)}" for name, pointer in sides if not is_null(pointer)]
        return " and ".join(there) or "nothing beyond"


class Network(Printer):
    lists = ("NodeList", "TrgList", "OutEdgeList")

    def text(self):
        nodes, triangles, edges = (int(self.value[name]["m_nLength"]) for name in self.lists)
        parts = (
            count(nodes, "node", "nodes"),
            count(triangles, "triangle", "triangles"),
            count(edges, "hull edge", "hull edges"),
        )
        return f"{dynamic_name(self.value) or type_name(self.value)} of {', '.join(parts)}"

    def parts(self):
        for name in self.lists:
            yield name, self.value[name]


PRINTERS = {
    "QnGeQuadTree2d": Tree,
    "QnGePtQuadTree2d": PointTree,
    "QnGeOctree": Octree,
    "QnGePtOctree": PointOctree,
    "QnGeTINNode": Node,
    "QnGeTINOutEdge": OutEdge,
    "QnGeTINTriangle": Triangle,
    "QnGeTINGraph": Network,
}
