// A logistic regression for Newton's method: the probabilities of a 0/1 response, and what their likelihood
// asks for.
#pragma once

#include <vector>

/// Tables lie column after column; the first column of the design holds ones.
struct LogisticModel {
  std::vector<double> design, response;
  int rows = 0, columns = 0;

  std::vector<double> probabilities(const std::vector<double>& parameters) const;

  /// First and second derivatives of the log likelihood.
  std::vector<double> gradient(const std::vector<double>& parameters) const;
  std::vector<double> hessian(const std::vector<double>& parameters) const;
};
