# SPDX-License-Identifier: Apache-2.0
"""How the printers read: numbers and points as text, flag words by name, objects by the class they really are.

A debugger looks at objects before their constructors ran and after somebody wrote over them. So nothing here and
nothing in the printers trusts what it reads: Printer turns every failure into text, and whoever follows a pointer asks
for one object, which is there or not.
"""

import re

import gdb

# One bit has several names; the class whose word it is decides.
LINE_FLAGS = {16: "OBJ_CLOSED"}
REGION_FLAGS = {16: "OBJ_NO_BOUNDARY_INTER"}
CIRCLE_FLAGS = {32: "OBJ_CLOCKWISE"}
HIT_FLAGS = {1: "HIT_ON", 2: "HIT_IN", 4: "HIT_OUT", 8: "HIT_BOUNDARY", 16: "HIT_HOLE", 32: "OBJ_CLOCKWISE"}
TRIANGLE_FLAGS = {1: "TRG_VISITED", 16: "TRG_IN_TREE"}
RING_FLAGS = {1: "PT_RING_TAKEN"}


class Printer:
    """What all printers are: text() on the first line, parts() below it, and neither ever raises."""

    def __init__(self, value):
        self.value = value

    def text(self):
        return ""

    def parts(self):
        return ()

    def to_string(self):
        try:
            return self.text()
        except Exception as error:  # whatever it is, the debugger's user is better served by the rest
            return unreadable(error)

    def children(self):
        try:
            yield from self.parts()
        except Exception as error:
            yield "...", unreadable(error)


def unreadable(error):
    return f"<cannot be read: {error}>"


# ---- values as text --------------------------------------------------------------------------------


def number(value):
    """The shortest text that reads back as the same double."""
    text = repr(float(value))
    return text[:-2] if text.endswith(".0") else text


def coordinates(x, y, z):
    return f"({number(x)}, {number(y)}, {number(z)})"


def point(value):
    """Of anything that has x, y and z as its own or a base's."""
    return coordinates(value["x"], value["y"], value["z"])


def point_at(pointer):
    if is_null(pointer):
        return "null"
    try:
        return point(at(pointer))
    except gdb.error:
        return f"<no point at {address(pointer)}>"


def flags(word, names):
    """`0x11 HIT_ON | HIT_HOLE`; bits without a name follow as a number."""
    known = [name for bit, name in names.items() if word & bit]
    rest = word & ~sum(names)
    if rest and known:
        known.append(f"{rest:#x}")
    return f"{word:#x} {' | '.join(known)}".rstrip()


def count(number_of, one, many):
    return f"{number_of} {one if number_of == 1 else many}"


# ---- pointers --------------------------------------------------------------------------------------


def is_null(pointer):
    return int(pointer) == 0


def address(pointer):
    return f"{int(pointer):#x}"


def at(pointer):
    """What a pointer points to, by its type. By way of an array: plain dereferencing warns of each object whose real
    class has no debug information, in the midst of the output."""
    return pointer.cast(pointer.type.strip_typedefs().target().array(0).pointer()).dereference()[0]


def pointed(pointer):
    """What a pointer points to, as the class that it really is; text where there is nothing that can be read."""
    if is_null(pointer):
        return "null"
    try:
        target = as_dynamic(at(pointer))
        target.fetch_lazy()
        return target
    except gdb.error:
        return f"<nothing readable at {address(pointer)}>"


# ---- classes ---------------------------------------------------------------------------------------


def plain_type(value_type):
    return value_type.strip_typedefs().unqualified()


def type_name(value):
    return plain_type(value.type).name


def find_base(value_type, prefix):
    """The type itself or the base whose name begins so; None if there is none."""
    value_type = plain_type(value_type)
    if value_type.name.startswith(prefix):
        return value_type
    bases = (find_base(field.type, prefix) for field in value_type.fields() if field.is_base_class)
    return next(filter(None, bases), None)


def has_virtual_table(value_type):
    fields = value_type.strip_typedefs().fields()
    return any(f.name and f.name.startswith("_vptr") or f.is_base_class and has_virtual_table(f.type) for f in fields)


def dynamic_name(value):
    """The class that an object says it is by its virtual table; None where that is none.

    The symbol tells it without the debug information of that class, of which the debugger's own way complains.
    """
    if value.address is None or not has_virtual_table(value.type):
        return None
    try:
        table = value.address.cast(gdb.lookup_type("void").pointer().pointer()).dereference()
        symbol = gdb.execute(f"info symbol {int(table):#x}", to_string=True)
    except gdb.error:
        return None
    match = re.match(r"vtable for (.+?) \+ \d+( in section .*)?$", symbol.strip())
    return match.group(1) if match else None


def as_dynamic(value):
    """The whole object that a value is, or is a base of; the value itself where its class is not known."""
    if value.type.strip_typedefs().code != gdb.TYPE_CODE_STRUCT:
        return value
    name = dynamic_name(value)
    if name is None or name == type_name(value):
        return value
    try:
        target = gdb.lookup_type(name)
        return at(value.address.cast(target.pointer()))
    except gdb.error:
        return value
