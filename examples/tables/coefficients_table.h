// The coefficients of a regression, printed.
#pragma once

#include <string>
#include <vector>

struct Coefficients {
  std::vector<std::string> names;  ///< of the columns; the intercept stands behind them
  std::vector<double> estimates, errors;
  std::vector<double> tolerances, inflations;      ///< one for each column, or empty
  std::vector<double> certified, certifiedErrors;  ///< beside the others, or empty
};

/// Columns with an estimate and an error of 0.0 have been left out: they are named below the table.
void printCoefficients(const Coefficients& c);
