// The main job, as a macro would do it on real data: sums and means beside the exact ones, a descriptive
// table of weighted data with missing cells, the mode of labels, ranks with ties, a table sorted by a key,
// correlations with missing cells, a standardized table, an inverse checked by its product, principal
// components, a logistic regression, a linear one beside its certified values, missing cells before and after
// each estimate, a sample drawn twice from one seed.
//
//     macro_host FOLDER    with the folder of the CSV files; a column named "weight" holds row weights

#include <cmath>
#include <cstdio>
#include <numeric>
#include <string>
#include <vector>

#include "csv_table.h"
#include "macro_engine.h"
#include "missing_data.h"
#include "principal_components.h"
#include "regression.h"

namespace {

using Doubles = std::vector<double>;
using Flags = std::vector<VARIANT_BOOL>;

std::vector<std::string> variables(const CsvTable& table) {
  std::vector<std::string> names = table.names();
  std::erase(names, "weight");
  return names;
}

Doubles weightsOf(const CsvTable& table) {
  const bool weighted = table.names().back() == "weight";
  return weighted ? table.numbers("weight") : Doubles(static_cast<std::size_t>(table.rows()), 1.0);
}

/// Whether a mean agrees with the exact one to the last few digits.
bool agrees(double mean, double exact) { return std::fabs(mean - exact) <= 1e-14 * std::fabs(exact); }

/// Prints sums and means of a table; true when all means agree with those of NAME_means.csv.
bool printMeans(const macro::Module& dll, const std::string& path) {
  const CsvTable table(path), exact(path.substr(0, path.rfind('.')) + "_means.csv");
  Doubles weights = weightsOf(table);
  Flags excluded(weights.size());
  const int rows = table.rows();
  dll.integer(L"VB_InitVectorToFalse", {excluded, rows});

  std::printf("\nSums and means: %s\n\n", path.c_str());
  std::printf("%-8s %5s %8s %18s %22s %22s\n", "column", "rows", "missing", "weighted sum", "weighted mean",
              "exact mean");
  bool all = true;
  for (const std::string& name : variables(table)) {
    Doubles column = table.numbers(name);
    const double sum = dll.number(L"VB_V_Sum", {column, rows, excluded, weights});
    const double mean = dll.number(L"VB_V_Mean", {column, rows, excluded, weights});
    const double expected = exact.numbers(name).front();
    all = all && agrees(mean, expected);
    std::printf("%-8s %5d %8d %18.10g %22.15g %22.15g%s\n", name.c_str(), rows,
                dll.integer(L"VB_V_NbMissing", {column, rows}), sum, mean, expected,
                agrees(mean, expected) ? "" : "  differs");
  }
  return all;
}

void printMoments(const macro::Module& dll, const std::string& path) {
  const CsvTable table(path);
  Doubles weights = weightsOf(table);
  const int rows = table.rows();
  std::printf("\nWeighted deviations and shape, W the sum of the weights, c the cells used: %s\n\n",
              path.c_str());
  std::printf("%-8s %5s %8s %13s %13s %13s %13s %9s %9s\n", "column", "used", "missing", "mean", "sd (W)",
              "sd (W-1)", "sd (W-W/c)", "skewness", "kurtosis");
  for (const std::string& name : variables(table)) {
    Doubles column = table.numbers(name);
    Flags none(weights.size()), missing(weights.size());
    double mean, biased, frequency, unbiased, var, skewP, kurtP, skew, kurt;
    dll.call(L"VB_V_MeanStdev", {column, rows, &mean, &biased, none, weights, false, false});
    dll.call(L"VB_V_MeanStdev", {column, rows, &mean, &frequency, none, weights, true, true});
    dll.call(L"VB_V_MeanStdev", {column, rows, &mean, &unbiased, none, weights, true, false});
    // Shapes do not look for missing cells, so those are excluded first.
    dll.call(L"VB_V_GetMissingDbl", {column, rows, none, missing});
    dll.call(L"VB_V_MeanVarSkewPKurtP",
             {column, rows, &mean, &var, &skewP, &kurtP, &skew, &kurt, missing, weights, true, false});
    std::printf("%-8s %5d %8d %13.6f %13.6f %13.6f %13.6f %9.4f %9.4f\n", name.c_str(),
                dll.integer(L"VB_V_NbNonMissing", {column, rows}),
                dll.integer(L"VB_V_NbTrue", {missing, rows}), mean, biased, frequency, unbiased, skew, kurt);
  }
}

void printQuartiles(const macro::Module& dll, const std::string& path) {
  const CsvTable table(path);
  Doubles weights = weightsOf(table);
  const int rows = table.rows();
  std::printf("\nRange and quartiles, unweighted and weighted: %s\n\n", path.c_str());
  std::printf("%-8s %11s %11s %11s %11s %11s %11s %11s %11s\n", "column", "min", "max", "Q1", "median", "Q3",
              "Q1, w", "median, w", "Q3, w");
  for (const std::string& name : variables(table)) {
    Doubles column = table.numbers(name);
    Flags none(weights.size()), missing(weights.size());
    double min, max;
    dll.call(L"VB_V_GetMissingDbl", {column, rows, none, missing});
    dll.call(L"VB_V_MinMax", {column, rows, &min, &max, missing});
    std::printf("%-8s %11.1f %11.1f", name.c_str(), min, max);
    for (double p : {0.25, 0.5, 0.75}) {
      std::printf(" %11.2f", dll.number(L"VB_V_QuantileM", {column, rows, none, p}));
    }
    for (double p : {0.25, 0.5, 0.75}) {
      std::printf(" %11.2f", dll.number(L"VB_V_QuantileMW", {column, rows, none, weights, p}));
    }
    std::printf("\n");
  }
}

/// The label with the largest weight.
void printModes(const macro::Module& dll, const std::string& path) {
  const CsvTable table(path);
  macro::Strings tension(table.labels("tension"));
  const int rows = table.rows();
  Doubles breaks = table.numbers("breaks");
  Flags none(breaks.size());
  macro::Strings mode = {dll.text(L"VB_V_Mode", {tension, rows, none, breaks})};
  std::printf("\nMode: %s\n\ntension with the most breaks: %ls, %g of %g\n", path.c_str(), mode.data()[0],
              dll.number(L"VB_V_FreqStr", {tension, rows, breaks, mode.data()[0]}),
              dll.number(L"VB_V_Sum2Dbl", {breaks, rows}));
}

/// A table sorted by miles per gallon, with ranks that ties share.
void printSorted(const macro::Module& dll, const std::string& path) {
  const CsvTable table(path);
  const int rows = table.rows();
  Doubles key = table.numbers("mpg"), order(key.size()), ones(key.size(), 1.0), ranks(key.size()),
          sizes(key.size());
  int ties = 0;
  dll.call(L"VB_V_Set1toNDbl", {order, rows});
  dll.call(L"VB_V_GetRanksTiesDbl", {key, rows, ones, ranks, &ties, sizes});
  Doubles data = table.numbers("hp");
  for (const double weight : table.numbers("wt")) data.push_back(weight);
  data.insert(data.end(), ranks.begin(), ranks.end());
  dll.integer(L"VB_SortQDbl", {data, rows, 3, 1, rows, key, order, 1, true, true});

  std::printf("\nSorted by mpg, descending: %s, %d rows, %d groups of ties\n\n", path.c_str(), rows, ties);
  std::printf("%-20s %6s %6s %7s %6s\n", "car", "mpg", "hp", "wt", "rank");
  for (std::size_t i = 0; i < 12; ++i) {
    const auto n = static_cast<std::size_t>(rows);
    std::printf("%-20s %6.1f %6.0f %7.3f %6.1f\n",
                table.labels("car")[static_cast<std::size_t>(order[i]) - 1].c_str(), key[i], data[i],
                data[n + i], data[2 * n + i]);
  }
}

/// A p x p table, names in front of its rows.
void printSquare(const std::vector<std::string>& names, const Doubles& cells) {
  const std::size_t p = names.size();
  for (std::size_t i = 0; i < p; ++i) {
    std::printf("%-8s", names[i].c_str());
    for (std::size_t j = 0; j < p; ++j) std::printf(" %10.6f", cells[i + p * j]);
    std::printf("\n");
  }
}

/// Correlations over the pairs of cells that are there.
void printCorrelations(const macro::Module& dll, const std::string& path) {
  const CsvTable table(path);
  const std::vector<std::string> names = variables(table);
  const int rows = table.rows(), columns = static_cast<int>(names.size());
  Doubles cells = table.numbers(names), weights = weightsOf(table), correlations(names.size() * names.size());
  Flags none(weights.size());
  dll.integer(L"VB_M_CovCorr", {cells, rows, columns, correlations, true, none, weights, true, false});
  std::printf("\nWeighted correlations, each pair over its own rows: %s\n\n", path.c_str());
  printSquare(names, correlations);
}

/// A standardized table, and the inverse of its correlations; true when both multiply to the unit matrix.
bool printStandardized(const macro::Module& dll, const std::string& path) {
  const CsvTable table(path);
  const std::vector<std::string> names = {"mpg", "hp", "wt", "qsec"};
  const int rows = table.rows(), columns = static_cast<int>(names.size());
  Doubles cells = table.numbers(names), means(4), deviations(4), correlations(16), inverse(16), product(16);
  dll.call(L"VB_M_Standardize3", {cells, rows, columns, means, deviations, true});
  std::printf("\nStandardized: %s, first rows\n\n", path.c_str());
  for (std::size_t i = 0; i < 5; ++i) {
    std::printf("%-20s", table.labels("car")[i].c_str());
    for (std::size_t j = 0; j < names.size(); ++j) {
      std::printf(" %9.5f", cells[i + static_cast<std::size_t>(rows) * j]);
    }
    std::printf("\n");
  }
  dll.call(L"VB_M_ProductTrAA", {cells, rows, columns, correlations});
  dll.call(L"VB_M_ScalarsA2", {correlations, columns, columns, 1.0 / (rows - 1)});
  const int status = dll.integer(L"VB_M_Inverse1", {correlations, columns, inverse, 1e-12});
  dll.integer(L"VB_M_ProductAB", {correlations, columns, columns, inverse, columns, product});
  std::printf("\nInverse of their correlations\n\n");
  printSquare(names, inverse);
  double worst = 0.0;
  for (std::size_t k = 0; k < product.size(); ++k) {
    worst = std::fmax(worst, std::fabs(product[k] - (k % 5 == 0 ? 1.0 : 0.0)));
  }
  std::printf("\nCorrelations times inverse differ from the unit matrix by %s\n",
              worst < 1e-14 ? "less than 1e-14" : "more");
  return status == 0 && worst < 1e-14;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const std::string folder = argc > 1 ? argv[1] : "examples/data";
    const macro::Module dll(L"KAVORATB1C.dll");
    std::printf("KAVORATB1C.dll: %d functions in its type library\n",
                static_cast<int>(dll.procedures().size()));
    const bool complete = printMeans(dll, folder + "/longley.csv");
    const bool missing = printMeans(dll, folder + "/longley_missing.csv");
    printMoments(dll, folder + "/longley_missing.csv");
    printQuartiles(dll, folder + "/longley_missing.csv");
    printModes(dll, folder + "/warpbreaks.csv");
    printSorted(dll, folder + "/mtcars.csv");
    printCorrelations(dll, folder + "/longley_missing.csv");
    const bool inverted = printStandardized(dll, folder + "/mtcars.csv");
    std::printf("\nPrincipal components: %s/mtcars.csv\n\n", folder.c_str());
    const bool found = printPrincipalComponents(dll, CsvTable(folder + "/mtcars.csv"), "car",
                                                {"mpg", "disp", "hp", "drat", "wt", "qsec"});
    std::printf("\n");
    const bool converged = printLogisticRegression(dll, folder);
    std::printf("\n");
    const bool regressed = printLinearRegression(dll, folder);
    std::printf("\n");
    const bool filled = printEstimates(dll, folder);
    std::printf("\n");
    const bool repeated = printSamples(dll, folder);
    std::printf("\n%s\n", complete && missing ? "All means agree with the exact ones."
                                              : "Some means differ from the exact ones.");
    return complete && missing && inverted && found && converged && regressed && filled && repeated ? 0 : 1;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "macro_host: %s\n", problem.what());
    return 2;
  }
}
