#include "csv_table.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace {

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

}  // namespace

CsvTable::CsvTable(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  if (!std::getline(file, line)) throw std::runtime_error("cannot read " + path);
  names_ = fields(line);
  columns_.resize(names_.size());
  while (std::getline(file, line)) {
    const std::vector<std::string> cells = fields(line);
    if (cells.size() != names_.size()) throw std::runtime_error("uneven rows in " + path);
    for (std::size_t j = 0; j < cells.size(); ++j) columns_[j].push_back(cells[j]);
  }
}

const std::vector<std::string>& CsvTable::labels(const std::string& name) const {
  const auto found = std::find(names_.begin(), names_.end(), name);
  return columns_.at(static_cast<std::size_t>(found - names_.begin()));
}

std::vector<double> CsvTable::numbers(const std::string& name) const {
  std::vector<double> column;
  for (const std::string& cell : labels(name)) column.push_back(cell.empty() ? kEmptyCell : std::stod(cell));
  return column;
}

std::vector<double> CsvTable::numbers(const std::vector<std::string>& names) const {
  std::vector<double> cells;
  for (const std::string& name : names) {
    const std::vector<double> column = numbers(name);
    cells.insert(cells.end(), column.begin(), column.end());
  }
  return cells;
}
