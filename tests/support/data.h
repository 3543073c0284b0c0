// The data files of the tests.
#pragma once

#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "kavoratb1c/matrix.h"

namespace data {

/// The fields of a file's lines that begin with a name, or of all.
inline std::vector<std::vector<std::string>> rowsOf(const std::string& file, const std::string& name = "") {
  std::vector<std::vector<std::string>> rows;
  std::ifstream in(KAV_TEST_DATA "/" + file);
  for (std::string line, field; std::getline(in, line);) {
    if (line.compare(0, name.size(), name) != 0) continue;
    rows.emplace_back();
    for (std::istringstream fields(line); std::getline(fields, field, ',');) rows.back().push_back(field);
  }
  return rows;
}

/// The cells below a file's headings, column after column, the marker where there is no number.
struct Table {
  explicit Table(const std::string& file) {
    const auto lines = rowsOf(file);
    n = static_cast<int>(lines.size()) - 1;
    for (std::size_t j = 0; j < lines[0].size(); ++j) {
      for (int i = 1; i <= n; ++i) {
        const auto& line = lines[static_cast<std::size_t>(i)];
        char* end = nullptr;
        const char* field = j < line.size() ? line[j].c_str() : "";
        const double x = std::strtod(field, &end);
        cells.push_back(end == field ? kav::kMissing : x);
      }
    }
  }

  /// A cell, 1-based.
  double operator()(int i, int j) const { return column(j)[i - 1]; }
  const double* column(int j) const { return cells.data() + std::ptrdiff_t{n} * (j - 1); }

  int n;
  std::vector<double> cells;
};

}  // namespace data
