# SPDX-License-Identifier: Apache-2.0
"""Shows the values of QuarnGeo in gdb as what they mean.

    (gdb) source tools/gdb/quarn_printers.py
    (gdb) print segment
    $1 = QnGeLineSeg2d (0, 0, 0) to (4, 0, 0)

An object is shown by the class that it really is, whatever the class of the pointer or reference that it is reached by.
`print/r` shows the fields as they are. The program needs debug information (-g) of the classes that are looked at.
"""

import importlib
import os
import sys

import gdb
import gdb.printing


def load(names):
    """Loads the modules beside this file anew, so that sourcing it again takes what has changed."""
    this_file = load.__code__.co_filename  # __file__ can be that of a script that sources this one
    folder = os.path.dirname(os.path.abspath(this_file))
    writes_bytecode = sys.dont_write_bytecode
    sys.dont_write_bytecode = True  # nothing is left in the source tree
    sys.path.insert(0, folder)
    try:
        return [importlib.reload(importlib.import_module(name)) for name in names]
    finally:
        sys.path.remove(folder)
        sys.dont_write_bytecode = writes_bytecode


read, containers, values, objects, networks = load(
    ("quarn_read", "quarn_containers", "quarn_values", "quarn_objects", "quarn_networks")
)


class QuarnPrinters(gdb.printing.PrettyPrinter):
    """Finds the printer of a class: its own, or that of the nearest base that has one."""

    def __init__(self):
        super().__init__("QuarnGeo")
        modules = (containers, values, objects, networks)
        self.known = {name: kind for module in modules for name, kind in module.PRINTERS.items()}
        self.found = {}

    def __call__(self, value):
        try:
            return self.printer(value)
        except gdb.error:
            return None

    def printer(self, value):
        if value.type.strip_typedefs().code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
            value = value.referenced_value()
        kind = self.kind(value.type)
        if kind is None:
            return None
        if issubclass(kind, objects.Object):
            value = read.as_dynamic(value)
            kind = self.kind(value.type)
        return kind(value)

    def kind(self, value_type):
        value_type = read.plain_type(value_type)
        if value_type.code != gdb.TYPE_CODE_STRUCT or value_type.name is None:
            return None
        name = value_type.name
        if name not in self.found:
            kind = self.search(value_type)
            if kind is None and not value_type.fields():
                return None  # only declared so far; a library that is loaded later may define it
            self.found[name] = kind
        return self.found[name]

    def search(self, value_type):
        """Level by level, so that a class is taken for what it is first of all; of one level the objects first."""
        level = [value_type]
        while level:
            kinds = [self.known.get(base.name.partition("<")[0]) for base in level if base.name]
            kinds = [kind for kind in kinds if kind]
            if kinds:
                return next((kind for kind in kinds if issubclass(kind, objects.Object)), kinds[0])
            fields = (field for base in level for field in base.fields() if field.is_base_class)
            level = [read.plain_type(field.type) for field in fields]
        return None


gdb.printing.register_pretty_printer(None, QuarnPrinters(), replace=True)
