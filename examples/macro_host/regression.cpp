#include "regression.h"

#include <cstdio>
#include <vector>

#include "coefficients_table.h"
#include "csv_table.h"
#include "logistic.h"

namespace {

using Doubles = std::vector<double>;

}  // namespace

bool printLinearRegression(const macro::Module& dll, const std::string& folder) {
  const CsvTable file(folder + "/longley.csv"), certified(folder + "/longley_certified.csv");
  Coefficients c;
  c.names = {"x1", "x2", "x3", "x4", "x5", "x6"};
  const int rows = file.rows(), columns = static_cast<int>(c.names.size());
  const auto n = static_cast<std::size_t>(rows), p = c.names.size();
  Doubles x = file.numbers(c.names), y = file.numbers("y"), weights(n, 1.0), fitted(n), correlations(p * p);
  std::vector<VARIANT_BOOL> excluded(n);
  std::vector<int> selected = {1}, groups(p, 1), status(p);
  c.estimates.resize(p + 1);
  c.errors.resize(p + 1);
  c.tolerances.resize(p);
  c.inflations.resize(p);
  if (dll.integer(L"RunOLSBasic2", {rows, columns, x, y, weights, 1, false, false, 1e-9, c.estimates,
                                    c.errors, fitted}) != 0) {
    return false;
  }
  dll.integer(L"VB_M_CovCorr", {x, rows, columns, correlations, true, excluded, weights, true, true});
  dll.call(L"VB_CheckTolerance", {correlations, columns, 1, selected, groups, groups, 1e-9, false, false,
                                  false, status, c.tolerances, c.inflations});
  c.certified = certified.numbers("estimate");
  c.certifiedErrors = certified.numbers("error");
  std::printf("Least squares: y by x1 .. x6, %d rows\n\n", rows);
  printCoefficients(c);
  return true;
}

bool printLogisticRegression(const macro::Module& dll, const std::string& folder) {
  const CsvTable file(folder + "/mtcars.csv");
  const LogisticModel model(file, "am", {"wt", "hp"});
  Doubles b(3), errors(3), inverse(9);
  std::vector<int> constraints(3);
  int steps = 0, status = 0;
  while (status == 0 && steps < 50) {
    Doubles gradient = model.gradient(b), hessian = model.hessian(b);
    status = dll.integer(L"NewtonRaphson",
                         {b, 3, constraints, gradient, hessian, 1e-10, errors, inverse, true, 5.0});
    ++steps;
  }
  std::printf("Logistic regression: am by wt and hp, %d steps\n\n", steps);
  printCoefficients({{"wt", "hp"}, {b[1], b[2], b[0]}, {errors[1], errors[2], errors[0]}, {}, {}, {}, {}});
  return status == 1;
}
