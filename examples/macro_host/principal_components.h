// Principal components through the entries, as the macro beside the examples computes them.
#pragma once

#include <string>
#include <vector>

#include "csv_table.h"
#include "macro_engine.h"

/// Prints them; true when all eigenvalues were found.
///
/// @param labels  the column that names the rows
bool printPrincipalComponents(const macro::Module& dll, const CsvTable& table, const std::string& labels,
                              const std::vector<std::string>& variables);
