#include "components_table.h"

#include <cstdio>

namespace {

/// The shown columns of a table, with names in front of its rows.
void printColumns(const std::vector<std::string>& names, const std::vector<double>& cells, int axes) {
  for (std::size_t i = 0; i < names.size(); ++i) {
    std::printf("%-20s", names[i].c_str());
    for (int k = 0; k < axes; ++k) {
      std::printf(" %9.5f", cells[i + names.size() * static_cast<std::size_t>(k)]);
    }
    std::printf("\n");
  }
}

}  // namespace

void printComponents(const Components& c) {
  std::printf("%-10s %12s %9s %11s\n", "component", "eigenvalue", "percent", "cumulative");
  double sum = 0.0;
  for (std::size_t k = 0; k < c.eigenvalues.size(); ++k) {
    sum += c.percentages[k];
    std::printf("%-10d %12.6f %9.3f %11.3f\n", static_cast<int>(k) + 1, c.eigenvalues[k], c.percentages[k],
                sum);
  }
  std::printf("\n%d components with an eigenvalue above 1; their vectors\n\n", c.axes);
  printColumns(c.variables, c.vectors, c.axes);
  std::printf("\nscores\n\n");
  printColumns(c.rows, c.scores, c.axes);
  std::printf("\nsquared cosines\n\n");
  printColumns(c.rows, c.cosines, c.axes);
}
