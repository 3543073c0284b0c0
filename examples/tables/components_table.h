// A principal component analysis, printed.
#pragma once

#include <string>
#include <vector>

/// Tables are column-major; `axes` of the components are shown.
struct Components {
  std::vector<std::string> variables, rows;
  std::vector<double> eigenvalues, percentages;  ///< one for each variable
  std::vector<double> vectors;                   ///< variables x variables, a column for each component
  std::vector<double> scores, cosines;           ///< rows x variables
  int axes = 0;
};

void printComponents(const Components& c);
