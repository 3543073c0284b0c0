// The main job, as a macro would do it: reads tables from CSV files and prints rows, missing cells, weighted
// sum and weighted mean of every column, the mean beside the exact one.
//
//     macro_host TABLE.csv ...
//
// An empty cell is missing. A column named "weight" holds the row weights. The exact means are read from
// TABLE_means.csv.

#include <cmath>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "macro_engine.h"

namespace {

/// What a spreadsheet hands to a macro for an empty cell.
constexpr double kEmptyCell = -1.79769313486231E+308;

struct Table {
  std::vector<std::string> names;
  std::vector<std::vector<double>> columns;

  std::size_t rows() const { return columns.empty() ? 0 : columns.front().size(); }
};

std::vector<std::string> fields(const std::string& line) {
  std::vector<std::string> parts(1);
  for (char c : line) {
    if (c == ',') {
      parts.emplace_back();
    } else if (c != '\r') {
      parts.back().push_back(c);
    }
  }
  return parts;
}

Table read(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  if (!std::getline(file, line)) throw std::runtime_error("cannot read " + path);
  Table table;
  table.names = fields(line);
  table.columns.resize(table.names.size());
  while (std::getline(file, line)) {
    const std::vector<std::string> cells = fields(line);
    if (cells.size() != table.names.size()) throw std::runtime_error("uneven rows in " + path);
    for (std::size_t j = 0; j < cells.size(); ++j) {
      table.columns[j].push_back(cells[j].empty() ? kEmptyCell : std::stod(cells[j]));
    }
  }
  return table;
}

std::vector<double> weightsOf(Table& table) {
  if (table.names.back() != "weight") return std::vector<double>(table.rows(), 1.0);
  std::vector<double> weights = std::move(table.columns.back());
  table.names.pop_back();
  table.columns.pop_back();
  return weights;
}

int missingCells(const macro::Module& dll, const std::vector<double>& column) {
  int count = 0;
  for (double cell : column) count += dll.boolean(L"VB_IsMissingValueDbl", {cell}) != VARIANT_FALSE;
  return count;
}

/// Whether a mean agrees with the exact one to the last few digits.
bool agrees(double mean, double exact) { return std::fabs(mean - exact) <= 1e-14 * std::fabs(exact); }

/// Prints one table; true when all means agree with the exact ones.
bool describe(const macro::Module& dll, const std::string& path) {
  Table table = read(path);
  const Table exact = read(path.substr(0, path.rfind('.')) + "_means.csv");
  std::vector<double> weights = weightsOf(table);
  std::vector<VARIANT_BOOL> excluded(table.rows());
  const int rows = static_cast<int>(table.rows());
  dll.integer(L"VB_InitVectorToFalse", {excluded, rows});

  std::printf("\n%s\n\n", path.c_str());
  std::printf("%-8s %5s %8s %18s %22s %22s\n", "column", "rows", "missing", "weighted sum", "weighted mean",
              "exact mean");
  bool all = true;
  for (std::size_t j = 0; j < table.columns.size(); ++j) {
    std::vector<double>& column = table.columns[j];
    const double sum = dll.number(L"VB_V_Sum", {column, rows, excluded, weights});
    const double mean = dll.number(L"VB_V_Mean", {column, rows, excluded, weights});
    const double expected = exact.columns.at(j).at(0);
    all = all && agrees(mean, expected);
    std::printf("%-8s %5d %8d %18.10g %22.15g %22.15g%s\n", table.names[j].c_str(), rows,
                missingCells(dll, column), sum, mean, expected, agrees(mean, expected) ? "" : "  differs");
  }
  return all;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const macro::Module dll(L"KAVORATB1C.dll");
    std::printf("KAVORATB1C.dll: %d functions in its type library\n",
                static_cast<int>(dll.procedures().size()));
    bool all = true;
    for (int k = 1; k < argc; ++k) all = describe(dll, argv[k]) && all;
    std::printf("\n%s\n",
                all ? "All means agree with the exact ones." : "Some means differ from the exact ones.");
    return all ? 0 : 1;
  } catch (const std::exception& problem) {
    std::fprintf(stderr, "macro_host: %s\n", problem.what());
    return 2;
  }
}
