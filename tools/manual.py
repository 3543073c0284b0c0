"""The manual for macro authors, docs/reference/: what of it comes from the catalogue, and what it must not lack.

A page holds the sections of one family of entries, `### NAME` each. Derived is the head of a section - declaration
and the first two columns of its table of parameters; everything else is written by hand and kept. An entry without
a section gets one at the end of its family's page: the page of the file in src/bridge that holds its body.
"""

import re
from pathlib import Path

LINK = re.compile(r"\]\(([^)#:\s]*)(?:#([\w-]+))?\)")
HEADING = re.compile(r"^### (\w+)$", re.M)
ROW = re.compile(r"^\| `(\w+)` \| [^|]* \|(.*)\|$", re.M)
TYPES = {"double": "Double", "int": "Long", "VARIANT_BOOL": "Boolean", "BSTR": "String"}
PASSED = {"in": "read", "out": "filled", "in, out": "read and rewritten"}
TABLE_HEAD = "| parameter | passed | holds |\n|---|---|---|\n"


def declaration(entry):
    """As the macro editor shows it."""
    def declare(p):
        return f"{'' if p.by_reference else 'ByVal '}{p.name} As {TYPES[p.type]}"

    kind = "Sub" if entry.result == "void" else "Function"
    result = "" if entry.result == "void" else f" As {TYPES[entry.result]}"
    lines, line = [], f"{kind} {entry.name}("
    for k, p in enumerate(entry.parameters):
        last = k == len(entry.parameters) - 1
        part = declare(p) + (")" + result if last else ", ")
        if len(line) + len(part) > 108:
            lines.append(line + "_")
            line = "    "
        line += part
    return "\n".join(lines + [line])


def passed(parameter):
    if not parameter.by_reference:
        return TYPES[parameter.type]
    return f"{TYPES[parameter.type]} array, {PASSED[parameter.direction]}"


def head(entry, meanings):
    rows = "".join(f"| `{p.name}` | {passed(p)} | {meanings.get(p.name, '')} |\n" for p in entry.parameters)
    return f"### {entry.name}\n\n```vb\n{declaration(entry)}\n```\n\n{TABLE_HEAD}{rows}"


def sections(text):
    """Text before the first section, and (name, text) of each."""
    found = list(HEADING.finditer(text))
    ends = [match.start() for match in found[1:]] + [len(text)]
    intro = text[:found[0].start()] if found else text
    return intro, [(match[1], text[match.start():end]) for match, end in zip(found, ends)]


def by_hand(section):
    """The meanings of parameters and the text below the derived head."""
    start = section.find(TABLE_HEAD)
    if start < 0:
        return {}, "\n" + section.split("\n", 1)[-1].lstrip("\n")
    end = re.compile(r"^(?!\|)", re.M).search(section, start).start()
    meanings = {name: meaning.strip() for name, meaning in ROW.findall(section[start:end])}
    return meanings, section[end:]


def families(bridge):
    """Entry name: the page of the file that holds its body."""
    pages = {}
    for source in sorted(bridge.glob("*_entries.cpp")):
        for name in re.findall(r"\bentries::(\w+)\(", source.read_text()):
            pages[name] = source.stem.removesuffix("_entries") + ".md"
    return pages


def pages(entries, folder, bridge):
    """Path: text of every page as it ought to be."""
    by_name = {entry.name: entry for entry in entries}
    texts = {path: path.read_text(encoding="ascii") for path in sorted(folder.glob("*.md")) if path.name != "index.md"}
    result, placed = {}, set()
    for path, text in texts.items():
        intro, parts = sections(text)
        out = [intro]
        for name, section in parts:
            if name not in by_name or name in placed:
                raise SystemExit(f"{path.name}: {name} is no entry, or has two sections")
            placed.add(name)
            meanings, text_below = by_hand(section)
            out.append(head(by_name[name], meanings) + text_below)
        result[path] = "".join(out)
    family = families(bridge)
    for entry in entries:
        if entry.name in placed:
            continue
        if entry.name not in family:
            raise SystemExit(f"{entry.name}: src/bridge/*_entries.cpp has no body for it")
        path = folder / family[entry.name]
        before = result.get(path, f"# {path.stem}\n")
        result[path] = before.rstrip("\n") + f"\n\n{head(entry, {})}\n{entry.help}\n"
    return result


def index(entries, texts, derived):
    """One line for every entry, with a link to its section."""
    where = {name: path.name for path, text in texts.items() for name in HEADING.findall(text)}
    titles = {path.name: text.split("\n", 1)[0].removeprefix("# ") for path, text in texts.items()}
    lines = [
        "# Reference of the macro entries", "", f"<!-- {derived} -->", "",
        f"{len(entries)} entries. The [conventions](../conventions.md) are the rules that all of them share: arrays,",
        "missing values, flags, weights, options, failure values. The notation of the examples is explained at the",
        "end of the page.", "",
        *(f"- [{title}]({name})" for name, title in titles.items()),
    ]
    group = None
    for e in entries:
        if e.group != group:
            group = e.group
            lines += ["", f"## {group}", "", "| entry | |", "|---|---|"]
        link = f"[{e.name}]({where[e.name]}#{e.name.lower()})" if e.name in where else e.name
        lines.append(f"| {link} | {e.help} |")
    return "\n".join(lines) + "\n" + EXAMPLES


EXAMPLES = """
## The examples

A test compares every number in the examples with the DLL's result. They use a short notation instead of macro code:

```example
price = {12.5, missing, 11, 14.25}
excluded = {False, False, False, False}
quantity = {3, 1, 2, 4}
VB_V_Mean(price, 4, excluded, quantity) -> 12.9444
VB_V_MinMax(price, 4, lowest, highest, excluded)
lowest -> 11
highest -> 14.25
```

An assignment fills an array: commas separate the cells of a row, semicolons the rows, as in a worksheet's array
constants. After a call, `->` shows the value it returns; the lines below it show what the arrays then hold.
`missing` is the marker -1.79769313486231E+308, and `nothing` a null pointer, which some parameters allow. Numbers
with decimals are rounded to the digits shown; numbers without decimals are exact. In a macro, the first call above
reads `VB_V_Mean(price(1), 4, excluded(1), quantity(1))`, and tables are arrays `(1 To n, 1 To p)`.
"""


# An array's size stands first in what it holds: names of parameters, numbers, + - * / ( ) max min sum, and x between
# rows and columns, as in "(n - 1) x p", "one cell" or "at most n / 2 cells".
TOKEN = re.compile(r"\s*(?:(\d+|max|min|sum|[A-Za-z_]\w*)|([-+*/(),.]))")
OPERATORS = {"x": "*", ".": "*"}


def size(meaning, names):
    """The cells that an array needs, or has at most, as an expression; None for an array that is ignored."""
    text = meaning.replace("`", "").removeprefix("at most ")
    if text.startswith("is ignored"):
        return None
    if text.startswith("one cell"):
        return "1"
    tokens, at, best, depth, wants_operand = [], 0, None, 0, True
    while match := TOKEN.match(text, at):
        token = match[1] or match[2]
        is_operand = bool(match[1]) and token != "x"
        if token == "x" and wants_operand or is_operand and not (token.isdigit() or token in names or token in
                                                                  ("max", "min", "sum")):
            break
        if is_operand != wants_operand and token not in "()":
            break
        depth += (token == "(") - (token == ")")
        if depth < 0:
            break
        tokens.append(OPERATORS.get(token, token))
        at = match.end()
        # A name after which a parenthesis opens is a function; what follows an operand is an operator.
        wants_operand = token not in (")",) and not (is_operand and token not in ("max", "min", "sum"))
        if depth == 0 and not wants_operand:
            best = " ".join(tokens)
    return best or ""


def sizes(entries, texts):
    """For every array of every entry, by its position: the size as an expression."""
    by_name = {name: by_hand(section)[0] for text in texts.values() for name, section in sections(text)[1]}
    for entry in entries:
        names = {p.name for p in entry.parameters}
        for position, parameter in enumerate(entry.parameters):
            if parameter.by_reference:
                yield entry, position, size(by_name[entry.name][parameter.name], names)


def faults(entries, texts):
    """What a page lacks: the meaning of a parameter, the size of an array, or a worked example."""
    for entry, position, cells in sizes(entries, texts):
        if cells == "":
            yield f"{entry.name}: how many cells {entry.parameters[position].name} has does not stand first"
    for path, text in texts.items():
        for name, section in sections(text)[1]:
            meanings, text_below = by_hand(section)
            lacking = [parameter for parameter, meaning in meanings.items() if not meaning]
            if lacking:
                yield f"{path.name}: {name} does not say what {', '.join(lacking)} hold"
            if "```example\n" not in text_below:
                yield f"{path.name}: {name} has no example"


def anchors(text):
    """The headings of a page as links name them."""
    headings = re.findall(r"^#+ (.+)$", text, re.M)
    return {re.sub(r"[^\w -]", "", heading).strip().lower().replace(" ", "-") for heading in headings}


def dead_links(folder):
    """Links of the pages below a folder that lead nowhere."""
    for path in sorted(folder.rglob("*.md")):
        for target, anchor in LINK.findall(path.read_text()):
            to = (path.parent / target).resolve() if target else path
            if not to.exists() or (anchor and anchor not in anchors(to.read_text())):
                yield f"{path.name}: no {target}{'#' + anchor if anchor else ''}"
