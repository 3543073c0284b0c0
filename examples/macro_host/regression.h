// Regressions through the entries, as the macros beside the examples compute them.
#pragma once

#include <string>

#include "macro_engine.h"

/// Prints them; false when one did not end well.
///
/// @param folder  with longley.csv, longley_certified.csv and mtcars.csv
bool printLogisticRegression(const macro::Module& dll, const std::string& folder);
bool printLinearRegression(const macro::Module& dll, const std::string& folder);
