#!/usr/bin/env python3
"""Derives from src/bridge/KAVORATB1C.idl everything that tells of entries.

    tools/catalogue.py write                    writes the derived files
    tools/catalogue.py check                    fails when a committed derived file differs or the manual lacks
                                                something
    tools/catalogue.py natives OBJECT ...       gives new native exports their ordinals
                                                (objects of a 32-bit Windows build)
    tools/catalogue.py exports DLL              fails when the DLL's exports are not exactly those listed
    tools/catalogue.py stamp TYPELIB            takes the build time out of a compiled type library
"""

import re
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field
from pathlib import Path
from textwrap import TextWrapper

import manual

ROOT = Path(__file__).resolve().parent.parent
BRIDGE = ROOT / "src" / "bridge"
IDL = BRIDGE / "KAVORATB1C.idl"
NATIVES = BRIDGE / "native_exports.txt"
GENERATED = BRIDGE / "generated"
REFERENCE = ROOT / "docs" / "reference"

FIRST_NATIVE_ORDINAL = 1001
DERIVED = "Derived from KAVORATB1C.idl by tools/catalogue.py; do not edit."


@dataclass
class Parameter:
    direction: str  # "in", "out" or "in, out"
    type: str  # "double", "int", "VARIANT_BOOL" or "BSTR"
    by_reference: bool
    name: str

    def cpp(self):
        return f"{self.type}{'*' if self.by_reference else ''} {self.name}"

    def stack_bytes(self):
        return 8 if self.type == "double" and not self.by_reference else 4


@dataclass
class Entry:
    ordinal: int
    name: str
    result: str
    help: str
    group: str
    parameters: list = field(default_factory=list)

    def prototype(self):
        return f"{self.result} {self.name}({', '.join(p.cpp() for p in self.parameters)})"

    def decorated(self):
        return f"{self.name}@{sum(p.stack_bytes() for p in self.parameters)}"


# ---- reading ----

TYPES = r"double|int|VARIANT_BOOL|BSTR"
TOKENS = re.compile(
    r"// ==== (?P<group>.+?) ====|"
    r'\[entry\((?P<ordinal>\d+)\),\s*helpstring\(\s*"(?P<help>[^"\\]+)"\)\]\s*'
    rf"(?P<result>void|{TYPES}) __stdcall (?P<name>\w+)\((?P<parameters>[^)]*)\);"
)
PARAMETER = re.compile(rf"\s*\[(in|out|in, out)\] ({TYPES})(\*?) (\w+)\s*(?:,|$)")


def read_parameters(text, entry):
    parameters, at = [], 0
    while at < len(text):
        match = PARAMETER.match(text, at)
        if not match:
            sys.exit(f"{entry}: cannot read parameters at '{text[at:at + 40]}'")
        parameters.append(Parameter(match[1], match[2], match[3] == "*", match[4]))
        at = match.end()
    return parameters


def read_names(path):
    lines = (line.split("#")[0].strip() for line in path.read_text().splitlines())
    return [line for line in lines if line]


def read_catalogue():
    text = IDL.read_text(encoding="ascii")
    entries, group = [], None
    for match in TOKENS.finditer(text):
        if match["group"]:
            group = match["group"]
            continue
        name = match["name"]
        entry = Entry(int(match["ordinal"]), name, match["result"], match["help"], group)
        entry.parameters = read_parameters(match["parameters"], name)
        entries.append(entry)
    if len(entries) != text.count("[entry("):
        sys.exit("some entries of the catalogue cannot be read")
    for position, entry in enumerate(entries, 1):
        if entry.ordinal != position:
            sys.exit(f"{entry.name}: ordinal {entry.ordinal} at position {position}")
    return entries


def read_natives():
    """Native export names with their ordinals; the name is the compiler's, without the 32-bit underscore."""
    natives = [line.split() for line in read_names(NATIVES)] if NATIVES.exists() else []
    return [(int(ordinal), name) for ordinal, name in natives]


def wrap(text, width, prefix=""):
    """Lines of a text, broken at blanks only."""
    return TextWrapper(width, initial_indent=prefix, subsequent_indent=prefix, break_on_hyphens=False,
                       break_long_words=False).wrap(text)


# ---- C++ ----


def signature(start, parameters, end):
    """One declaration, broken after its opening parenthesis where it is too long."""
    line = f"{start}({', '.join(parameters)}){end}"
    if len(line) <= 110:
        return line
    body = wrap(", ".join(p.replace(" ", "~") for p in parameters), 104)
    return f"{start}(\n" + "\n".join("    " + part.replace("~", " ") for part in body) + f"){end}"


def entries_header(entries):
    prototypes = "\n\n".join(
        "\n".join(wrap(e.help, 106, "/// "))
        + "\n"
        + signature(f"{e.result} {e.name}", [p.cpp() for p in e.parameters], ";")
        for e in entries
    )
    return f"""// The bodies behind the macro entries. {DERIVED}
// A body is defined under its qualified name, so one that differs from the catalogue does not compile.
#pragma once

#include "platform/ole.h"

namespace kav::entries {{

{prototypes}

}}  // namespace kav::entries
"""


def thunks(entries):
    def thunk(e):
        call = f"entries::{e.name}({', '.join(p.name for p in e.parameters)})"
        head = signature(f"KAV_ENTRY {e.result} KAV_CALL {e.name}", [p.cpp() for p in e.parameters], " noexcept {")
        return f"{head}\n  return guarded<{e.result}>([&] {{ return {call}; }});\n}}"

    bodies = "\n\n".join(thunk(e) for e in entries)
    return f"""// What the DLL exports to macros: each body behind its calling convention and its guard.
// {DERIVED}

#include "bridge/generated/entries.h"
#include "bridge/guard.h"
#include "platform/calling.h"

using namespace kav;

extern "C" {{

{bodies}

}}  // extern "C"
"""


# ---- export lists ----


def windows_exports(entries, natives, entry_name):
    lines = [f"; {DERIVED}", "EXPORTS"]
    lines += [f"  {entry_name(e)} @{e.ordinal}" for e in entries]
    lines += [f"  {name} @{ordinal}" for ordinal, name in natives]
    return "\n".join(lines) + "\n"


def linux_exports(entries, natives):
    names = [e.name for e in entries] + [name for _, name in natives]
    return f"/* {DERIVED} */\n{{\n  global:\n" + "".join(f"    {n};\n" for n in names) + "  local:\n    *;\n};\n"


def tests_table(entries):
    def row(e):
        parameters = "".join(f"[{p.direction}] {p.type}{'*' if p.by_reference else ''} {p.name};" for p in e.parameters)
        return f'    {{{e.ordinal}, "{e.name}", "{e.result}",\n     "{parameters}"}},'

    return f"// {DERIVED}\n// clang-format off\n" + "\n".join(row(e) for e in entries) + "\n"


def test_prototypes(entries):
    lines = "\n".join(f"{e.result} KAV_MACRO_CALL {e.name}({', '.join(p.cpp() for p in e.parameters)});"
                      for e in entries)
    return f"""// The entries as a program calls them. {DERIVED}
// clang-format off
#pragma once

#include "platform/ole.h"

#if defined(_WIN32) && defined(__i386__)
#define KAV_MACRO_CALL __stdcall
#else
#define KAV_MACRO_CALL
#endif

using namespace kav;

extern "C" {{
{lines}
}}
"""


def test_calls(entries):
    return f"// {DERIVED}\n// clang-format off\n" + "".join(f"    {{&{e.name}}},\n" for e in entries)


def test_sizes(entries, pages):
    """How many cells each array of each entry has, as the reference says: C++ over the values of the parameters."""
    def expression(cells):
        text = re.sub(r"sum \( (\w+) \)", r'v.sum("\1")', cells)
        text = re.sub(r'(?<!["\w.])(?!max\b|min\b|v\b)([A-Za-z_]\w*)(?!["\w])', r'v("\1")', text)
        text = re.sub(r"\b(max|min) \(", r"std::\1(", text)
        return re.sub(r'(?<![\w"])(\d+)', r"\1LL", text)

    return f"// {DERIVED}\n// clang-format off\n" + "".join(
        f"    {{{e.ordinal}, {position}, [](const Values& v) {{ return {expression(cells)}; }}}},\n"
        if 'v("' in expression(cells) or "v.sum" in expression(cells) else
        f"    {{{e.ordinal}, {position}, [](const Values&) {{ return {expression(cells)}; }}}},\n"
        for e, position, cells in manual.sizes(entries, pages) if cells)


# ---- for macro authors ----

BASIC_TYPES = {"double": "Double", "int": "Long", "VARIANT_BOOL": "Boolean"}
BASIC_KEYWORDS = {"line"}


def basic_declaration(entry, pointer, safe):
    def declare(p):
        name = f"[{p.name}]" if p.name.lower() in BASIC_KEYWORDS else p.name
        if p.type == "BSTR":
            return f"ByVal {name} As {pointer}"
        return f"{'ByRef' if p.by_reference else 'ByVal'} {name} As {BASIC_TYPES[p.type]}"

    kind, result = "Function", ""
    if entry.result == "void":
        kind = "Sub"
    else:
        result = f" As {pointer if entry.result == 'BSTR' else BASIC_TYPES[entry.result]}"
    head = f'Public Declare {safe}{kind} {entry.name} Lib "KAVORATB1C.dll" ('
    return head + ", ".join(declare(p) for p in entry.parameters) + ")" + result


def basic_module(entries):
    def declarations(pointer, safe):
        return "\n".join("  " + basic_declaration(e, pointer, safe) for e in entries)

    return f"""Attribute VB_Name = "KAVORATB1C"
' Declarations for hosts that do not read the DLL's type library.
' {DERIVED}
'
' Arrays: pass the first element, iVector(1). Tables are column-major.
' Strings: Declare statements would convert them, so they go as pointers: StrPtr(s) for one string,
' VarPtr(labels(1)) for an array. A string result is turned into a string by TakeString.
' String arrays that receive results must be fresh: what a slot held is not freed.
' Flags and weights that an entry lets be null cannot be left out here; pass flags of False and weights of 1.
Option Explicit

#If VBA7 Then
{declarations("LongPtr", "PtrSafe ")}

  Private Declare PtrSafe Function SysReAllocString Lib "oleaut32" (ByVal target As LongPtr, ByVal source As LongPtr) As Long
  Private Declare PtrSafe Sub SysFreeString Lib "oleaut32" (ByVal text As LongPtr)

  Public Function TakeString(ByVal result As LongPtr) As String
#Else
{declarations("Long", "")}

  Private Declare Function SysReAllocString Lib "oleaut32" (ByVal target As Long, ByVal source As Long) As Long
  Private Declare Sub SysFreeString Lib "oleaut32" (ByVal text As Long)

  Public Function TakeString(ByVal result As Long) As String
#End If
    If result <> 0 Then
      SysReAllocString VarPtr(TakeString), result
      SysFreeString result
    End If
  End Function
"""


def derived_files():
    entries, natives = read_catalogue(), read_natives()
    pages = manual.pages(entries, REFERENCE, BRIDGE)
    return {
        GENERATED / "entries.h": entries_header(entries),
        GENERATED / "thunks.cpp": thunks(entries),
        # The plain name stands for the compiler's, which tells the size of the arguments: a wrong size does not link.
        GENERATED / "KAVORATB1C.win32.def": windows_exports(entries, natives, lambda e: f"{e.name} = {e.decorated()}"),
        # What the import library for 32-bit callers is made from.
        GENERATED / "KAVORATB1C.win32-callers.def": windows_exports(entries, natives, Entry.decorated),
        GENERATED / "KAVORATB1C.win64.def": windows_exports(entries, natives, lambda e: e.name),
        GENERATED / "KAVORATB1C.map": linux_exports(entries, natives),
        ROOT / "tests" / "support" / "generated" / "catalogue.inc": tests_table(entries),
        ROOT / "tests" / "manual" / "generated" / "prototypes.h": test_prototypes(entries),
        ROOT / "tests" / "manual" / "generated" / "entries.inc": test_calls(entries),
        ROOT / "tests" / "sweep" / "generated" / "sizes.inc": test_sizes(entries, pages),
        ROOT / "docs" / "KAVORATB1C.bas": basic_module(entries),
        REFERENCE / "index.md": manual.index(entries, pages, DERIVED),
        **pages,
    }


# ---- commands ----


def write():
    for path, text in derived_files().items():
        path.parent.mkdir(parents=True, exist_ok=True)
        # Macro editors refuse other line ends.
        path.write_text(text, encoding="ascii", newline="\r\n" if path.suffix == ".bas" else "\n")


def check():
    entries = read_catalogue()
    lacking = [*manual.faults(entries, manual.pages(entries, REFERENCE, BRIDGE)), *manual.dead_links(REFERENCE.parent)]
    if lacking:
        sys.exit("\n".join(lacking))
    stale = [p for p, text in derived_files().items() if not p.exists() or p.read_text() != text]
    if stale:
        names = ", ".join(str(p.relative_to(ROOT)) for p in stale)
        sys.exit(f"not as the catalogue has them: {names}; run tools/catalogue.py write")
    print("catalogue: derived files are up to date")


def plain_names(names):
    """What the compiler's names stand for."""
    demangled = subprocess.run(["c++filt"], input="\n".join(names), text=True, capture_output=True, check=True)
    return demangled.stdout.splitlines()


def give_ordinals(objects):
    """What the objects mark for export and has no ordinal yet gets the next ones; ordinals given once stay."""
    if not objects:
        sys.exit("no objects given: build the target KAVORATB1C of the preset win32 first")
    marked = set()
    with tempfile.NamedTemporaryFile() as section:
        for path in objects:
            subprocess.run(["objcopy", "-O", "binary", "--only-section=.drectve", path, section.name], check=True)
            marked |= set(re.findall(r'-export:"?_?(_Z\w+)', Path(section.name).read_bytes().decode()))
    natives = read_natives()
    gone = [name for _, name in natives if name not in marked]
    if gone:
        sys.exit(f"{len(gone)} exported before and no longer there: " + ", ".join(gone[:5]))
    new = sorted(marked - {name for _, name in natives})
    last = max((ordinal for ordinal, _ in natives), default=FIRST_NATIVE_ORDINAL - 1)
    natives += list(enumerate(new, last + 1))
    plain = plain_names([name for _, name in natives])
    header = ("# What native C++ programs link against, with its ordinal in the Windows DLLs. Ordinals given once stay.\n"
              "# New lines come from tools/catalogue.py natives.\n")
    NATIVES.write_text(header + "".join(f"{o} {n}  # {p}\n" for (o, n), p in zip(natives, plain)))
    print(f"native exports: {len(new)} new, {len(natives)} in all")


def check_exports(dll):
    """The export table as objdump prints it, against entries and native exports."""
    dump = subprocess.run(["objdump", "-p", dll], capture_output=True, text=True, check=True).stdout
    table = dump[dump.index("[Ordinal/Name Pointer] Table"):]
    base = int(re.search(r"Ordinal Base\s+(\d+)", dump)[1])
    rows = re.findall(r"^\s*\[\s*(\d+)\]\s+(?:\+base\[\s*\d+\]\s+\w+\s+)?(\S+)$", table, re.M)
    found = {(base + int(ordinal), name) for ordinal, name in rows}
    listed = {(e.ordinal, e.name) for e in read_catalogue()} | set(read_natives())
    if found != listed:
        extra, lacking = sorted(found - listed), sorted(listed - found)
        sys.exit(f"{dll}: exports that are not listed: {extra[:5]}; listed and not exported: {lacking[:5]}")
    print(f"exports of {Path(dll).name}: {len(found)}, as listed")


# The type-library compiler leaves its version with the build time as text, and behind it the time as an integer.
BUILD_TIME = re.compile(rb"(Created by WIDL version \S+ at )[^\n]{24}(\nW*\x13\x00)[\s\S]{4}")


def take_stamp_out(path):
    """Fixes the build time, so that the same sources always give the same bytes."""
    library = Path(path).read_bytes()
    stamped, count = BUILD_TIME.subn(rb"\1Thu Jan  1 00:00:00 1970\2\0\0\0\0", library)
    if count != 1:
        sys.exit(f"{path}: no build time where it is expected")
    Path(path).write_bytes(stamped)


def main():
    commands = {"write": write, "check": check, "natives": lambda: give_ordinals(sys.argv[2:]),
                "exports": lambda: check_exports(sys.argv[2]), "stamp": lambda: take_stamp_out(sys.argv[2])}
    if len(sys.argv) < 2 or sys.argv[1] not in commands:
        sys.exit(__doc__)
    commands[sys.argv[1]]()


if __name__ == "__main__":
    main()
