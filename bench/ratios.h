// Contestants at the same work, run in turn in one process, and tables of their medians and ratios.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

/// Works that are new from here on go to this table; the library's entries, VB_..., always go to "Entries".
/// tools/bench_tables.py finds the tables of README.md by these names.
void openTable(const std::string& name);

/// Adds a contestant. The first one of a work is this library's; the others are compared with it.
///
/// @param work        what is done, "V_Sum of 1,000,000 rows"
/// @param contestant  who does it, "library", "plain loop", "Eigen"
/// @param once        does it once
/// @param pieces      the time shown is that of one of so many equal pieces of the work
void contest(const std::string& work, const std::string& contestant, std::function<void()> once,
             double pieces = 1.0);

/// 1000000 as "1,000,000", for names of works.
std::string withThousands(int n);

/// Runs all contestants, repetitions in random order, and prints the tables. Who takes more than a second is
/// given three repetitions at most.
int runContests(int argc, char** argv);
