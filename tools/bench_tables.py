#!/usr/bin/env python3
"""Writes what the benchmarks printed into the tables of bench/README.md.

    tools/bench_tables.py [--partial] README TABLES_64 TABLES_32

Each table stands between <!-- table: NAME --> and <!-- end of table -->; what is around stays. A contestant that only
one of the runs has gets empty cells for the other. With --partial works that were not run keep their rows.
"""

import re
import sys
from pathlib import Path

BITS = ("64-bit", "32-bit")
PLACE = re.compile(r"(<!-- table: ([^\n]*) -->\n)(.*?)(<!-- end of table -->)", re.DOTALL)
GROWING = re.compile(r"(.*) of ([\d,]+) rows")
HEADER = "| work | contestant | 64-bit | ratio | 32-bit, Wine | ratio |\n|---|---|---|---|---|---|\n"


class Table:
    """Medians and ratios: of each work, of each contestant, of each run."""

    def __init__(self):
        self.works = {}

    def put(self, work, contestant, bits, median, ratio):
        if median not in ("", "-"):
            self.works.setdefault(work, {}).setdefault(contestant, {})[bits] = (median, ratio)

    def update(self, other):
        """Works of the other table replace this one's of the same name."""
        self.works.update(other.works)


def cells_of(line):
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


def rows_of(lines):
    """Cells of the rows below each header line."""
    inside = False
    for line in lines:
        if not line.startswith("|"):
            inside = False
        elif line.startswith("|---"):
            inside = True
        elif inside:
            yield cells_of(line)


def read_printed(text, bits, tables):
    for section in re.split(r"^## ", text.replace("\r", ""), flags=re.MULTILINE)[1:]:
        name, *lines = section.splitlines()
        table = tables.setdefault(name.strip(), Table())
        work = ""
        for first, contestant, median, ratio in rows_of(lines):
            if first:
                work = first
                if contestant != "library":
                    sys.exit(f"error: nothing to compare with, the library was not run: {work}")
            table.put(work, contestant, bits, median, ratio)


def is_growth(name):
    return name.startswith("Growth")


def read_written(name, text):
    """The other way round from below."""
    table = Table()
    lines = text.strip().splitlines()
    work = ""
    for row in rows_of(lines):
        if is_growth(name):
            functions = [cell.replace("`", "").removesuffix(" " + BITS[0]) for cell in cells_of(lines[0])[1::2]]
            for k, function in enumerate(functions):
                for bits, median in zip(BITS, row[1 + 2 * k:]):
                    table.put(f"{function} of {row[0]} rows", "library", bits, median, "")
        else:
            work = row[0].replace("`", "") or work
            table.put(work, row[1], BITS[0], row[2], row[3])
            table.put(work, row[1], BITS[1], row[4], row[5])
    return table


def as_code(work):
    """The name of what the library exports stands first and looks like no word."""
    return re.sub(r"^(\w*[A-Z_\d]\w*)", r"`\1`", work)


def line_of(cells):
    return "|" + "|".join(f" {cell} " for cell in cells) + "|\n"


def written(name, table):
    if is_growth(name):
        return written_growth(table)
    text = HEADER
    for work, contestants in table.works.items():
        title = as_code(work)
        for contestant, runs in contestants.items():
            figures = [figure for bits in BITS for figure in runs.get(bits, ("", ""))]
            text += line_of([title, contestant, *figures])
            title = ""
    return text


def written_growth(table):
    """A row for each size, two columns for each function."""
    medians, functions, sizes = {}, {}, {}
    for work, contestants in table.works.items():
        function, size = GROWING.fullmatch(work).groups()
        functions[function] = sizes[size] = True
        for bits, (median, _) in contestants["library"].items():
            medians[function, size, bits] = median
    text = line_of(["rows", *(cell for f in functions for cell in (f"{as_code(f)} {BITS[0]}", BITS[1]))])
    text += "|---" * (1 + 2 * len(functions)) + "|\n"
    for size in sizes:
        text += line_of([size, *(medians.get((f, size, bits), "-") for f in functions for bits in BITS)])
    return text


def main(arguments):
    partial = arguments[:1] == ["--partial"]
    if len(arguments) != 3 + partial:
        sys.exit(__doc__)
    readme, *printed = map(Path, arguments[partial:])
    tables = {}
    for path, bits in zip(printed, BITS):
        read_printed(path.read_text(), bits, tables)
    places = {name for _, name, _, _ in PLACE.findall(readme.read_text())}
    if homeless := tables.keys() - places:
        sys.exit(f"error: {readme} has no place for: {', '.join(sorted(homeless))}")
    if not partial and (empty := places - tables.keys()):
        sys.exit(f"error: nothing was measured for: {', '.join(sorted(empty))}")

    def replace(place):
        begin, name, before, end = place.groups()
        if name not in tables:
            return place.group()
        table = read_written(name, before) if partial else Table()
        table.update(tables[name])
        return begin + "\n" + written(name, table) + "\n" + end

    readme.write_text(PLACE.sub(replace, readme.read_text()))


if __name__ == "__main__":
    main(sys.argv[1:])
