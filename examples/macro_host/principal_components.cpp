#include "principal_components.h"

#include <cstdio>

#include "components_table.h"

bool printPrincipalComponents(const macro::Module& dll, const CsvTable& table, const std::string& labels,
                              const std::vector<std::string>& variables) {
  const int rows = table.rows(), columns = static_cast<int>(variables.size());
  const std::size_t n = table.labels(labels).size(), p = variables.size();
  std::vector<double> x = table.numbers(variables), correlations(p * p), weights(n, 1.0);
  std::vector<VARIANT_BOOL> excluded(n);
  Components c = {variables,
                  table.labels(labels),
                  std::vector<double>(p),
                  std::vector<double>(p),
                  std::vector<double>(p * p),
                  std::vector<double>(n * p),
                  std::vector<double>(n * p)};
  int kept;
  dll.call(L"VB_M_Standardize2", {x, rows, columns, true});
  dll.integer(L"VB_M_CovCorr", {x, rows, columns, correlations, true, excluded, weights, true, true});
  if (dll.integer(L"VB_M_Eigen", {correlations, c.eigenvalues, c.vectors, columns, true}) != 0) return false;
  dll.call(L"VB_FilterEigen",
           {c.eigenvalues, columns, true, 1e-12, 0.0, 0, 1.0, &kept, &c.axes, c.percentages});
  dll.integer(L"VB_M_ProductAB", {x, rows, columns, c.vectors, columns, c.scores});
  dll.call(L"ComputeCosines", {c.scores, rows, columns, c.cosines});
  printComponents(c);
  return true;
}
