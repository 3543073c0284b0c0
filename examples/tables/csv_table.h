// Tables read from CSV files, as a spreadsheet hands them to a macro: numbers and labels, empty cells
// missing.
#pragma once

#include <string>
#include <vector>

/// What a spreadsheet hands to a macro for an empty cell.
inline constexpr double kEmptyCell = -1.79769313486231E+308;

class CsvTable {
 public:
  /// The first line holds the names. Throws std::runtime_error.
  explicit CsvTable(const std::string& path);

  int rows() const { return static_cast<int>(columns_.front().size()); }
  const std::vector<std::string>& names() const { return names_; }

  /// Throws std::out_of_range when there is no such column.
  const std::vector<std::string>& labels(const std::string& name) const;
  std::vector<double> numbers(const std::string& name) const;

  /// Columns one after the other: a table as macros hand it over.
  std::vector<double> numbers(const std::vector<std::string>& names) const;

 private:
  std::vector<std::string> names_;
  std::vector<std::vector<std::string>> columns_;
};
