// Principal components of standardized variables: the eigenvalues of their correlations, how many of them
// count, the scores of the rows, and how well the axes show each row.
//
//     principal_components mtcars.csv

#include <kavoratb1c/algebra/covariance.h>
#include <kavoratb1c/algebra/products.h>
#include <kavoratb1c/algebra/standardization.h>
#include <kavoratb1c/decomp/eigen.h>
#include <kavoratb1c/decomp/factors.h>
#include <kavoratb1c/matrix.h>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "components_table.h"
#include "csv_table.h"

namespace {

std::vector<double> cellsOf(const matrix& m) {
  return {m.values, m.values + static_cast<std::ptrdiff_t>(m.nX) * m.pX};
}

Components componentsOf(const CsvTable& file, const std::vector<std::string>& variables) {
  const int n = file.rows(), p = static_cast<int>(variables.size());
  matrix table(n, p, 0.0);
  const std::vector<double> cells = file.numbers(variables);
  std::copy(cells.begin(), cells.end(), table.values);

  matrix correlations(p, p, 0.0), values(p, 1, 0.0), vectors(p, p, 0.0), percentages(p, 1, 0.0),
      scores(n, p, 0.0), cosines(n, p, 0.0);
  // Workers take containers by reference to their pointers, and keep those of the right shape.
  matrix *x = &table, *r = &correlations, *lambda = &values, *z = &vectors, *percent = &percentages,
         *f = &scores, *c = &cosines;
  int kept, axes;
  M_Standardize2(x, n, p, kav::kTrue);
  M_CovCorr(x, n, p, r, kav::kTrue, nullptr, nullptr, kav::kTrue, kav::kTrue);
  if (M_Eigen(r, lambda, z, p, 1) != 0) throw std::runtime_error("an eigenvalue was not found");
  FilterEigen(lambda, p, kav::kTrue, 1e-12, 0.0, 0, 1.0, kept, axes, percent);
  M_ProductAB(x, n, p, z, p, f);
  cComputeCosines(f, n, p, c);
  return {variables,        file.labels("car"), cellsOf(values),  cellsOf(percentages),
          cellsOf(vectors), cellsOf(scores),    cellsOf(cosines), axes};
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const CsvTable cars(argc > 1 ? argv[1] : "examples/data/mtcars.csv");
    printComponents(componentsOf(cars, {"mpg", "disp", "hp", "drat", "wt", "qsec"}));
    return 0;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "principal_components: %s\n", problem.what());
    return 1;
  }
}
