// Missing cells filled and samples drawn through the entries.
#pragma once

#include <string>

#include "macro_engine.h"

/// Prints rows with missing cells before and after each estimate; false when a cell is still missing then.
///
/// @param folder  with airquality.csv
bool printEstimates(const macro::Module& dll, const std::string& folder);

/// Prints a sample drawn twice from one seed, and the next one; false when the first two differ.
///
/// @param folder  with mtcars.csv
bool printSamples(const macro::Module& dll, const std::string& folder);
