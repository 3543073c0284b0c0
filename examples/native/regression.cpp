// A linear regression with certified results, the same with a column too many, and a logistic regression.
//
//     regression FOLDER    with longley.csv, longley_certified.csv and mtcars.csv

#include <kavoratb1c/algebra/covariance.h>
#include <kavoratb1c/decomp/collinearity.h>
#include <kavoratb1c/regression/least_squares.h>
#include <kavoratb1c/regression/newton_raphson.h>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "coefficients_table.h"
#include "csv_table.h"
#include "logistic.h"

namespace {

using Doubles = std::vector<double>;

Doubles cellsOf(const matrix& m) { return {m.values, m.values + static_cast<std::ptrdiff_t>(m.nX) * m.pX}; }

/// Columns of a file side by side.
void fill(matrix& table, const CsvTable& file, const std::vector<std::string>& names) {
  const Doubles cells = file.numbers(names);
  std::copy(cells.begin(), cells.end(), table.values);
}

Coefficients fitted(const matrix& x, const matrix& y, const std::vector<std::string>& names) {
  const int n = x.nX, p = x.pX;
  const matrix weights(n, 1, 1.0);
  matrix b(p + 1, 1, 0.0), se(p + 1, 1, 0.0), predicted(n, 1, 0.0);
  matrix *estimates = &b, *errors = &se, *response = &predicted;
  OLSBasic2(n, p, &x, &y, &weights, 1, kav::kFalse, kav::kFalse, 1e-9, estimates, errors, response);
  Coefficients c;
  c.names = names;
  c.estimates = cellsOf(b);
  c.errors = cellsOf(se);
  return c;
}

/// What each column is worth beside the others.
void addTolerances(Coefficients& c, matrix& x) {
  const int n = x.nX, p = x.pX;
  matrix correlations(p, p, 0.0), selected(1, 1, 1.0), group(p, 1, 1.0), status(p, 1, 0.0),
      tolerances(p, 1, 0.0), inflations(p, 1, 0.0);
  matrix *table = &x, *r = &correlations, *groups = &group;
  M_CovCorr(table, n, p, r, kav::kTrue, nullptr, nullptr, kav::kTrue, kav::kTrue);
  CheckTolerance(r, p, 1, &selected, nullptr, groups, 1e-9, kav::kFalse, kav::kFalse, kav::kFalse, &status,
                 &tolerances, &inflations);
  c.tolerances = cellsOf(tolerances);
  c.inflations = cellsOf(inflations);
}

void printLinear(const std::string& folder) {
  const CsvTable file(folder + "/longley.csv"), certified(folder + "/longley_certified.csv");
  std::vector<std::string> names = {"x1", "x2", "x3", "x4", "x5", "x6"};
  const int n = file.rows(), p = 6;
  matrix x(n, p, 0.0), y(n, 1, 0.0);
  fill(x, file, names);
  fill(y, file, std::vector<std::string>{"y"});
  Coefficients c = fitted(x, y, names);
  addTolerances(c, x);
  c.certified = certified.numbers("estimate");
  c.certifiedErrors = certified.numbers("error");
  std::printf("Least squares: y by x1 .. x6, %d rows\n\n", n);
  printCoefficients(c);

  // The same prices once more, in another unit.
  matrix more(n, p + 1, 0.0);
  fill(more, file, {"x1", "x2", "x3", "x4", "x5", "x6", "x1"});
  for (int i = 0; i < n; ++i) more.setElement(i, p, more.getElement(i, p) / 100.0);
  names.emplace_back("x1/100");
  std::printf("\nThe same with x1 once more, divided by 100\n\n");
  printCoefficients(fitted(more, y, names));
}

void printLogistic(const std::string& folder) {
  const CsvTable file(folder + "/mtcars.csv");
  const LogisticModel model(file, "am", {"wt", "hp"});
  const int p = model.columns;
  const matrix excluded(p, 1, 0.0);
  matrix b(p, 1, 0.0), se(p, 1, 0.0), inverse(p, p, 0.0);
  matrix *parameters = &b, *errors = &se, *inverted = &inverse;
  int steps = 0, status = 0;
  while (status == 0 && steps < 50) {
    const Doubles g = model.gradient(cellsOf(b)), h = model.hessian(cellsOf(b));
    const matrix gradient(p, 1, g.data(), true, 0, 0), hessian(p, p, h.data(), true, 0, 0);
    status = cNewtonRaphson(parameters, p, &excluded, &gradient, &hessian, 1e-10, errors, inverted,
                            kav::kTrue, 5.0);
    ++steps;
  }
  if (status != 1) throw std::runtime_error("the logistic regression did not converge");
  std::printf("\nLogistic regression: am by wt and hp, %d steps\n\n", steps);
  const Doubles estimates = cellsOf(b), deviations = cellsOf(se);
  printCoefficients({{"wt", "hp"},
                     {estimates[1], estimates[2], estimates[0]},
                     {deviations[1], deviations[2], deviations[0]},
                     {},
                     {},
                     {},
                     {}});
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const std::string folder = argc > 1 ? argv[1] : "examples/data";
    printLinear(folder);
    printLogistic(folder);
    return 0;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "regression: %s\n", problem.what());
    return 1;
  }
}
