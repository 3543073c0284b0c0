#!/usr/bin/env python3
"""Checks macro code against the declarations: every entry it calls is declared, with as many arguments. All files have
the line ends that macro editors want.

    check_macros.py DECLARATIONS.bas MACRO.bas ...
"""

import re
import sys


def arguments(text, begin):
    """Counts the arguments of a call that begin at that place, in parentheses or to the end of the line."""
    depth, count, quoted = 0, 1, False
    closing = text[begin] == "("
    for c in text[begin + closing:]:
        quoted ^= c == '"'
        if quoted:
            continue
        if c == "\n" or (c == ")" and depth == 0):
            break
        depth += (c == "(") - (c == ")")
        count += c == "," and depth == 0
    return count


declared = {}
for line in open(sys.argv[1], encoding="utf-8"):
    match = re.search(r"Declare PtrSafe (?:Function|Sub) (\w+) Lib \S+ \((.*?)\)(?: As \w+)?$", line)
    if match:
        declared[match[1]] = match[2].count(",") + 1
problems = []
calls = 0
for path in sys.argv[2:]:
    text = re.sub(r"(?m)'.*$", "", open(path, encoding="utf-8").read())
    for match in re.finditer(r"\b(VB_(?!Name)\w+|ComputeCosines|CleanConstraints\w+|RunOLS\w+|NewtonRaphson)[ (]", text):
        calls += 1
        wanted, given = declared.get(match[1]), arguments(text, match.end() - 1)
        if wanted != given:
            problems.append(f"{path}: {match[1]} called with {given} arguments, declared with {wanted}")
for path in sys.argv[1:]:
    content = open(path, "rb").read()
    if content.count(b"\n") != content.count(b"\r\n"):
        problems.append(f"{path}: lines do not end with carriage return and line feed")
if problems or not declared or not calls:
    sys.exit("\n".join(problems) or "nothing to check")
