#include "missing_data.h"

#include <cstdio>
#include <numeric>
#include <vector>

#include "csv_table.h"

namespace {

using Doubles = std::vector<double>;
using Flags = std::vector<VARIANT_BOOL>;

/// Four measurements and the month of each day.
struct Days {
  explicit Days(const CsvTable& file)
      : cells(file.numbers({"ozone", "solar", "wind", "temp"})), months(file.labels("month")) {}
  ~Days() {
    for (BSTR label : former) SysFreeString(label);
  }

  /// For an entry that rewrites the labels: it frees none of them.
  macro::Strings& rewritten() {
    const auto n = cells.size() / 4;
    former.insert(former.end(), months.data(), months.data() + n);
    return months;
  }

  Doubles cells;
  macro::Strings months;
  std::vector<BSTR> former;
};

void printDay(const char* what, const Days& days, std::size_t row) {
  const std::size_t n = days.cells.size() / 4;
  std::printf("%-22s", what);
  for (std::size_t j = 0; j < 4; ++j) {
    const double cell = days.cells[row + n * j];
    if (cell == kEmptyCell) {
      std::printf(" %9s", ".");
    } else {
      std::printf(" %9.2f", cell);
    }
  }
  const std::wstring month = days.months[row];
  std::printf("  %ls\n", month.empty() ? L"." : month.c_str());
}

}  // namespace

bool printEstimates(const macro::Module& dll, const std::string& folder) {
  const CsvTable file(folder + "/airquality.csv");
  const int rows = file.rows();
  const auto n = static_cast<std::size_t>(rows);
  Days given(file), byMean(file), byNeighbour(file);
  Flags none(n), missing(n), allMissing(n), missingLabels(n), incomplete(n);
  Doubles weights(n, 1.0);
  double* const noTable = nullptr;
  int count = 0;
  dll.call(L"VB_M_AllMissingRows", {given.cells, rows, 4, missing, allMissing});
  dll.call(L"VB_V_GetMissingStr", {given.months, rows, none, missingLabels});
  dll.call(L"VB_SummarizeMissing", {rows, &count, incomplete, missing, missingLabels, none});

  dll.call(L"VB_EstimateRowsWithMissingMean", {byMean.cells, rows, 4, none, weights});
  dll.call(L"VB_EstimateRowsWithMissingMode", {byMean.rewritten(), rows, 1, none, weights});
  dll.call(L"VB_EstimateRowsWithMissingNN",
           {byNeighbour.cells, rows, 4, none, noTable, 0, byNeighbour.rewritten(), 1, weights});

  std::printf("Missing cells: %s/airquality.csv, %d of %d rows have some\n\n", folder.c_str(), count, rows);
  std::printf("%-22s %9s %9s %9s %9s  %s\n", "", "ozone", "solar", "wind", "temp", "month");
  int shown = 0;
  for (std::size_t i = 0; i < n && shown < 5; ++i) {
    if (incomplete[i] == VARIANT_FALSE) continue;
    printDay(("row " + std::to_string(i + 1)).c_str(), given, i);
    printDay("  mean and mode", byMean, i);
    printDay("  nearest neighbour", byNeighbour, i);
    ++shown;
  }
  int cells = 0;
  for (Days* filled : {&byMean, &byNeighbour}) {
    std::vector<int> left(4);
    dll.call(L"VB_M_NbMissing", {filled->cells, rows, 4, left});
    cells +=
        std::accumulate(left.begin(), left.end(), dll.integer(L"VB_V_NbMissingStr", {filled->months, rows}));
  }
  return cells == 0;
}

bool printSamples(const macro::Module& dll, const std::string& folder) {
  const CsvTable file(folder + "/mtcars.csv");
  macro::Strings cars(file.labels("car"));
  constexpr int kSize = 5;
  int seed = 2026;
  bool same = true;
  Doubles first;
  std::printf("One car from each fifth of %s/mtcars.csv\n\n", folder.c_str());
  for (const char* what : {"seed 2026", "again", "next seed"}) {
    macro::Strings sample(kSize);
    Doubles positions(kSize);
    int after = 0;
    dll.call(L"VB_M_SamplingRandomStratified",
             {cars, file.rows(), 1, kSize, sample, positions, &seed, true, &after});
    std::printf("%-10s", what);
    for (std::size_t k = 0; k < kSize; ++k) std::printf("  %ls", sample[k].c_str());
    std::printf("\n");
    if (first.empty()) {
      first = positions;
    } else if (seed == 2026) {
      same = positions == first;
      seed = after;
    }
  }
  return same;
}
