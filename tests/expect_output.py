#!/usr/bin/env python3
"""Runs a program and compares what it prints with a file: the whole, or a part that begins where the file does.

    expect_output.py FILE PROGRAM [ARGUMENT ...]
"""

import difflib
import subprocess
import sys

expected = open(sys.argv[1], encoding="utf-8").read().splitlines()
run = subprocess.run(sys.argv[2:], capture_output=True, text=True, check=False)
printed = run.stdout.splitlines()
begin = printed.index(expected[0]) if expected[0] in printed else 0
if run.returncode != 0 or printed[begin:begin + len(expected)] != expected:
    print("\n".join(difflib.unified_diff(expected, printed[begin:], sys.argv[1], "printed", lineterm="")))
    sys.exit(f"exit code {run.returncode}, {run.stderr}")
