// A logistic regression for Newton's method: the probabilities of a 0/1 response, and what their likelihood
// asks for.
#pragma once

#include <string>
#include <vector>

#include "csv_table.h"

/// Tables are column-major; the first column of the design holds ones.
struct LogisticModel {
  /// A column of zeros and ones by others.
  LogisticModel(const CsvTable& file, const std::string& responseName, const std::vector<std::string>& names);

  std::vector<double> design, response;
  int rows, columns;

  std::vector<double> probabilities(const std::vector<double>& parameters) const;

  /// First and second derivatives of the log likelihood.
  std::vector<double> gradient(const std::vector<double>& parameters) const;
  std::vector<double> hessian(const std::vector<double>& parameters) const;
};
