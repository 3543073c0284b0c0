// Contestants at the same work, run in turn in one process, and a table of their medians and ratios.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

/// Adds a contestant. The first one of a work is this library's; the others are compared with it.
///
/// @param work        what is done, "V_Sum of 1,000,000 rows"
/// @param contestant  who does it, "library", "plain loop", "Eigen"
/// @param once        does it once
void contest(const std::string& work, const std::string& contestant, std::function<void()> once);

/// Runs all contestants, repetitions in random order, and prints the table.
int runContests(int argc, char** argv);
