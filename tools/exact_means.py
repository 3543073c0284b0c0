#!/usr/bin/env python3
"""Writes the exact weighted column means of tables in CSV files, for demonstrations and tests to compare with.

    tools/exact_means.py TABLE.csv ...      writes TABLE_means.csv beside each

Every cell is taken as the double that a program reads from it; sums and quotients are exact fractions, rounded once at
the end. An empty cell is missing and left out; a column named "weight" holds the row weights.
"""

import csv
import sys
from fractions import Fraction
from pathlib import Path


def exact_means(path):
    with open(path, newline="") as file:
        rows = list(csv.DictReader(file))
    weights = [Fraction(float(row.get("weight", 1))) for row in rows]
    means = {}
    for column in rows[0]:
        if column != "weight":
            used = [(w, Fraction(float(row[column]))) for w, row in zip(weights, rows) if row[column] and w]
            means[column] = float(sum(w * x for w, x in used) / sum(w for w, _ in used))
    return means


def main():
    for argument in sys.argv[1:]:
        path = Path(argument)
        means = exact_means(path)
        with open(path.with_name(path.stem + "_means.csv"), "w", newline="\n") as file:
            file.write(",".join(means) + "\n" + ",".join(repr(m) for m in means.values()) + "\n")


if __name__ == "__main__":
    main()
