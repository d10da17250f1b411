# SPDX-License-Identifier: Apache-2.0
"""Printers of arrays, lists, stacks, queues and free chains: the length, the cursor and the elements.

The element at the cursor is marked in its index: [1 cursor]. Pointers as elements are shown by what they point to.
"""

import gdb

from quarn_read import RING_FLAGS, Printer, at, count, find_base, flags, is_null, number, point, pointed, type_name

MOST_COUNTED = 100000  # nodes of a free chain, which knows no length


def element(value):
    if value.type.strip_typedefs().code == gdb.TYPE_CODE_PTR:
        target = value.type.strip_typedefs().target().strip_typedefs()
        if target.code == gdb.TYPE_CODE_STRUCT:
            return pointed(value)
    value.fetch_lazy()
    return value


def name_of(index, cursor=None):
    return f"[{index} cursor]" if index == cursor else f"[{index}]"


def array_elements(data, length, cursor=None):
    for index in range(length):
        yield name_of(index, cursor), element(at(data + index))


class Array(Printer):
    """QnArray and Qn2dArray: a block without cursor."""

    def text(self):
        length = int(self.value["m_nLength"])
        return f"{type_name(self.value)} of length {length}" + ("" if length >= 0 else ", corrupt")

    def parts(self):
        return array_elements(self.value["m_pData"], int(self.value["m_nLength"]))


class Sequence(Printer):
    """What arrays and lists with a cursor have in common."""

    def length(self):
        return int(self.value["m_nLength"])

    def cursor(self):
        return int(self.value["m_nCur"])

    def text(self):
        where = self.cursor() if 0 <= self.cursor() < self.length() else "out"
        text = f"{type_name(self.value)} of length {self.length()}, cursor {where}"
        try:
            state = self.state()
        except gdb.error:
            state = "corrupt"
        return f"{text}, {state}" if state else text

    def state(self):
        """What else there is to say."""
        return "corrupt" if self.length() < 0 else ""


class DynArray(Sequence):
    """QnDynArray and all that derive from it."""

    def state(self):
        is_possible = 0 <= self.length() <= int(self.value["m_nSpace"])
        return "" if is_possible else f"corrupt: space for {int(self.value['m_nSpace'])}"

    def parts(self):
        length = min(self.length(), int(self.value["m_nSpace"]))
        return array_elements(self.value["m_pData"], length, self.cursor())


class List(Sequence):
    """QnList and all that derive from it. Lists of spatial trees can have a length and no nodes yet."""

    def head(self):
        return int(self.value["m_pHead"])

    def data_type(self):
        return find_base(self.value.type, "QnList<").template_argument(0)

    def next(self, node):
        """The address of the node behind that at `node`.

        By layout, as the type of the nodes is often only declared: the element comes first, then the link.
        """
        pointer_type = gdb.lookup_type("void").pointer()
        size = pointer_type.sizeof
        offset = -(-self.data_type().sizeof // size) * size
        return int(gdb.Value(node + offset).cast(pointer_type.pointer()).dereference())

    def data(self, node):
        return at(gdb.Value(node).cast(self.data_type().pointer()))

    def has_nodes(self):
        return self.next(self.head()) != self.head()

    def state(self):
        if super().state():
            return super().state()
        return "no nodes yet" if self.length() > 0 and not self.has_nodes() else ""

    def parts(self):
        length = self.length()
        if length <= 0 or not self.has_nodes():
            return
        node = self.next(self.head())
        for index in range(length):
            if node in (0, self.head()):
                yield "...", f"<the chain ends after {count(index, 'node', 'nodes')}>"
                return
            yield name_of(index, self.cursor()), element(self.data(node))
            node = self.next(node)
        if node != self.head():
            yield "...", f"<the chain goes on at {node:#x}>"


class IntervalList(List):
    def state(self):
        period = f"period {number(self.value['period'])}"
        return f"{super().state()}, {period}" if super().state() else period


class Stack(List):
    """QnDListStack: the cursor of its list is the top; above it stands what GoBack left."""

    def __init__(self, value):
        super().__init__(value["m_list"])
        self.stack = value

    def text(self):
        text = f"{type_name(self.stack)} of depth {self.cursor() + 1}"
        above = int(self.stack["m_nTopLimit"]) - self.cursor() - 1
        return f"{text}, {above} to go ahead to" if above > 0 else text

    def parts(self):
        for name, value in super().parts():
            yield name.replace("cursor", "top"), value


class Queue(List):
    def __init__(self, value):
        super().__init__(value["m_list"])
        self.queue = value

    def text(self):
        return f"{type_name(self.queue)} of length {self.length()}"

    def parts(self):
        for index, (name, value) in enumerate(super().parts()):
            yield (name_of(index) if name.startswith("[") else name), value


class FreeChain(Printer):
    """QnFreeList, QnFreeDList and the rings of points, from the node at hand on."""

    def nodes(self):
        yield self.value
        node = self.value["next"]
        for _ in range(MOST_COUNTED):
            if is_null(node) or int(node) == int(self.value.address or 0):
                return
            yield at(node)
            node = node["next"]

    def text(self):
        nodes = 0
        last = self.value
        try:
            for node in self.nodes():
                last = node
                last.fetch_lazy()
                nodes += 1
        except gdb.error:
            return f"{type_name(self.value)}, {count(nodes, 'node', 'nodes')}, then nothing readable"
        kind = "chain" if is_null(last["next"]) else "ring"
        if nodes > MOST_COUNTED:
            kind, nodes = "chain", f"more than {MOST_COUNTED}"
        return f"{type_name(self.value)}, {kind} of {count(nodes, 'node', 'nodes')}"

    def parts(self):
        for index, node in enumerate(self.nodes()):
            yield name_of(index), element(node["data"])


class FlaggedRing(FreeChain):
    """Ring points that have a flag word each."""

    def parts(self):
        node_pointer = self.value.type.unqualified().pointer()
        for index, node in enumerate(self.nodes()):
            node = at(node.address.cast(node_pointer))
            yield name_of(index), f"{point(node['data'])} {flags(int(node['m_nBits']), RING_FLAGS)}"


PRINTERS = {
    "QnArray": Array,
    "QnDynArray": DynArray,
    "QnList": List,
    "QnGeIntervalList": IntervalList,
    "QnDListStack": Stack,
    "QnListQuene": Queue,
    "QnFreeList": FreeChain,
    "QnGePtFreeList1": FlaggedRing,
}
