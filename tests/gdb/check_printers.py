# SPDX-License-Identifier: Apache-2.0
"""Run by gdb on the test program: prints each expression of a file of lines `expression => text`, compares, and tells.

    gdb -batch -nx -x check_printers.py --args PROGRAM     with PRINTERS and EXPECTED in the environment

Addresses are written 0x? in the file. Exit status 0 as expected, 1 not so, 77 where gdb may not run programs.
"""

import os
import re

import gdb

SKIPPED = 77


def quit_with(status, message):
    print(message, flush=True)
    gdb.execute(f"quit {status}")


def run_to_stop():
    for setting in ("debuginfod enabled off", "confirm off", "width 0", "disable-randomization off"):
        gdb.execute(f"set {setting}")
    gdb.execute("break StopHere", to_string=True)
    try:
        gdb.execute("run", to_string=True)
    except gdb.error as error:
        quit_with(SKIPPED, f"gdb cannot run the program: {error}")
    gdb.execute("up", to_string=True)


def printed(expression):
    try:
        text = gdb.execute(f"output {expression}", to_string=True)
    except gdb.error as error:
        text = f"<error: {error}>"
    text = re.sub(r"warning: RTTI symbol not found.*\n", "", text)  # gdb's own, where there is no debug information
    return re.sub(r"\b0x[0-9a-f]{6,}", "0x?", text.strip())


def cases(path):
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            if line.strip() and not line.startswith("#"):
                expression, text = line.rstrip("\n").split(" => ")
                yield expression, text


def check(path):
    failures = total = 0
    for expression, expected in cases(path):
        total += 1
        found = printed(expression)
        if found != expected:
            failures += 1
            print(f"{expression}\n  expected {expected}\n  found    {found}")
    quit_with(1 if failures or not total else 0, f"{total - failures} of {total} as expected")


try:
    gdb.execute(f"source {os.environ['PRINTERS']}")
    run_to_stop()
    check(os.environ["EXPECTED"])
except Exception as failure:  # of which gdb's exit status would tell nothing
    quit_with(1, f"failed: {failure!r}")
