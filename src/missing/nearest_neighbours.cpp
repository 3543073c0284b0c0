#include "kavoratb1c/missing/nearest_neighbours.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "access/taking_part.h"
#include "access/texts.h"
#include "access/usable.h"
#include "kernels/kernels.h"
#include "missing/cells_to_fill.h"

using namespace kav;

namespace {

constexpr double kAbsent = std::numeric_limits<double>::quiet_NaN();
constexpr double kFar = std::numeric_limits<double>::infinity();

/// Rows of donors that stay in the cache while all rows that want cells are compared with them.
constexpr int kDonorsAtOnce = 256;

/// Three tables side by side, of which the first two hold numbers.
struct Tables {
  const matrix* numbers[2];
  const Smatrix* labels;
  int n;
};

/// How many columns each of them has.
struct Widths {
  int numbers[2];
  int labels;

  int allNumbers() const { return numbers[0] + numbers[1]; }
  int all() const { return addressing::together(addressing::together(numbers[0], numbers[1]), labels); }

  /// Which table of numbers a column belongs to, and which column of it that is.
  int tableOf(int j) const { return j < numbers[0] ? 0 : 1; }
  int columnIn(int j) const { return j < numbers[0] ? j : j - numbers[0]; }
};

/// Labels numbered, so that they are compared as numbers.
class Codes {
 public:
  double of(std::u16string_view label) {
    if (label.empty()) return kAbsent;
    return codes_.try_emplace(label, static_cast<double>(codes_.size())).first->second;
  }

 private:
  std::unordered_map<std::u16string_view, double> codes_;
};

/// put(row, cell) for a column of the three tables: numbers as they stand, labels as codes, NaN where a cell
/// is missing.
template <class Put>
void readColumn(const Tables& tables, const Widths& widths, int j, Codes& codes, Put put) {
  if (j >= widths.allNumbers()) {
    for (int i = 0; i < tables.n; ++i) {
      put(i, codes.of(texts::cell(tables.labels, i, j - widths.allNumbers())));
    }
    return;
  }
  const matrix* m = tables.numbers[widths.tableOf(j)];
  const int column = widths.columnIn(j);
  const block::Values values(m, tables.n, column + 1);
  const block::Flags flags(m, tables.n, column + 1);
  const usable::Present present(values.column(column), flags.column(column));
  for (int i = 0; i < tables.n; ++i) put(i, present(i) ? present.x[i] : kAbsent);
}

/// The rows that are learned from, column-major.
struct Donors {
  std::vector<int> rows;
  std::ptrdiff_t stride;       ///< rows, filled up to whole groups of lanes by ones without cells
  std::vector<double> cells;   ///< cell (k, j) at k + stride j
  std::vector<double> ranges;  ///< of the columns; 0.0 for labels
  std::vector<char> columns;   ///< whether a column has a cell to give

  double at(std::ptrdiff_t k, int j) const { return cells[static_cast<std::size_t>(k + stride * j)]; }
  bool has(std::ptrdiff_t k, int j) const { return at(k, j) == at(k, j); }
};

Donors readDonors(const Tables& learned, const Widths& widths, const short* flags, const matrix* w, int lanes,
                  Codes& codes) {
  Donors donors;
  const usable::RowWeights weights(w, learned.n);
  std::vector<int> place(static_cast<std::size_t>(std::max(learned.n, 0)), -1);
  usable::forEach(learned.n, usable::NotExcludedIfGiven(flags), [&](int i) {
    if (!(weights[i] > 0.0)) return;
    place[static_cast<std::size_t>(i)] = static_cast<int>(donors.rows.size());
    donors.rows.push_back(i);
  });
  const auto count = static_cast<std::ptrdiff_t>(donors.rows.size());
  donors.stride = (count + lanes - 1) / lanes * lanes;
  donors.cells.assign(addressing::elementsInMemory<double>(donors.stride, widths.all()), kAbsent);
  for (int j = 0; j < widths.all(); ++j) {
    double* column = donors.cells.data() + donors.stride * j;
    double least = kFar, most = -kFar;
    bool any = false;
    readColumn(learned, widths, j, codes, [&](int i, double cell) {
      const int k = place[static_cast<std::size_t>(i)];
      if (k < 0) return;
      column[k] = cell;
      any = any || cell == cell;
      least = cell < least ? cell : least;
      most = cell > most ? cell : most;
    });
    donors.ranges.push_back(j < widths.allNumbers() && least < most ? most - least : 0.0);
    donors.columns.push_back(any);
  }
  return donors;
}

/// A missing cell, and the best donor so far.
struct Wanted {
  int column;
  double distance = 0.0;
  std::ptrdiff_t donor = -1;
};

/// A row that wants cells.
struct Recipient {
  int row;
  std::size_t firstWanted, wanted;  ///< of the list of all wanted cells
};

/// The rows that want cells: their cells row after row, and what they want.
struct Recipients {
  std::vector<Recipient> rows;
  std::vector<double> cells;
  std::vector<Wanted> wanted;
};

/// The missing cells that a donor can fill.
template <class Visit>
void forEachWanted(const Tables& tables, const Widths& widths, const Donors& donors, Visit visit) {
  for (int j = 0; j < widths.all(); ++j) {
    if (!donors.columns[static_cast<std::size_t>(j)]) continue;
    const auto report = [&](int i, std::int64_t) { visit(i, j); };
    if (j < widths.allNumbers()) {
      missing::forEachInColumn(tables.numbers[widths.tableOf(j)], tables.n, widths.columnIn(j), report);
    } else {
      missing::forEachInColumn(tables.labels, tables.n, j - widths.allNumbers(), report);
    }
  }
}

Recipients readRecipients(const Tables& tables, const Widths& widths, const Donors& donors, Codes& codes) {
  std::vector<int> missing(static_cast<std::size_t>(std::max(tables.n, 0)));
  forEachWanted(tables, widths, donors, [&](int i, int) { ++missing[static_cast<std::size_t>(i)]; });
  Recipients recipients;
  std::vector<int> place(missing.size(), -1);
  std::size_t wanted = 0;
  for (int i = 0; i < tables.n; ++i) {
    const int count = missing[static_cast<std::size_t>(i)];
    if (count == 0) continue;
    place[static_cast<std::size_t>(i)] = static_cast<int>(recipients.rows.size());
    recipients.rows.push_back({i, wanted, 0});
    wanted += static_cast<std::size_t>(count);
  }
  recipients.wanted.resize(wanted);
  forEachWanted(tables, widths, donors, [&](int i, int j) {
    Recipient& r = recipients.rows[static_cast<std::size_t>(place[static_cast<std::size_t>(i)])];
    recipients.wanted[r.firstWanted + r.wanted++].column = j;
  });
  const int columns = widths.all();
  recipients.cells.resize(recipients.rows.size() * static_cast<std::size_t>(columns));
  for (int j = 0; j < columns; ++j) {
    readColumn(tables, widths, j, codes, [&](int i, double cell) {
      const std::ptrdiff_t k = place[static_cast<std::size_t>(i)];
      if (k >= 0) recipients.cells[static_cast<std::size_t>(k * columns + j)] = cell;
    });
  }
  return recipients;
}

/// The distance from which on a donor can win no cell; NaN while there is a cell without donor.
double boundOf(const Recipient& r, const Recipients& all) {
  double bound = 0.0;
  for (std::size_t c = r.firstWanted; c < r.firstWanted + r.wanted; ++c) {
    if (all.wanted[c].donor < 0) return kAbsent;
    bound = std::max(bound, all.wanted[c].distance);
  }
  return bound;
}

/// Compares a row with donors begin .. end-1, whole groups of lanes.
void compare(const Donors& donors, std::ptrdiff_t begin, std::ptrdiff_t end, std::size_t recipient,
             Recipients& recipients) {
  const kernels::Table& kernel = kernels::best();
  const Recipient& r = recipients.rows[recipient];
  const auto columns = static_cast<std::ptrdiff_t>(donors.ranges.size());
  double squared[kernels::kMostLanes];
  kernels::Distances run{nullptr,
                         donors.stride,
                         columns,
                         recipients.cells.data() + static_cast<std::ptrdiff_t>(recipient) * columns,
                         donors.ranges.data(),
                         boundOf(r, recipients),
                         squared};
  for (std::ptrdiff_t k = begin; k < end; k += kernel.distanceLanes) {
    run.rows = donors.cells.data() + k;
    if (!kernel.distances(run)) continue;
    for (int lane = 0; lane < kernel.distanceLanes; ++lane) {
      if (squared[lane] >= run.bound) continue;
      for (std::size_t c = r.firstWanted; c < r.firstWanted + r.wanted; ++c) {
        Wanted& cell = recipients.wanted[c];
        const bool isNearer = cell.donor < 0 || squared[lane] < cell.distance;
        if (!isNearer || !donors.has(k + lane, cell.column)) continue;
        cell.distance = squared[lane];
        cell.donor = k + lane;
      }
      run.bound = boundOf(r, recipients);
    }
  }
}

void findDonors(const Donors& donors, Recipients& recipients) {
  for (std::ptrdiff_t begin = 0; begin < donors.stride; begin += kDonorsAtOnce) {
    const std::ptrdiff_t end = std::min<std::ptrdiff_t>(begin + kDonorsAtOnce, donors.stride);
    for (std::size_t k = 0; k < recipients.rows.size(); ++k) compare(donors, begin, end, k, recipients);
  }
}

void fillCells(const Recipients& recipients, const Donors& donors, const Widths& widths,
               const Smatrix* learnedLabels, const std::array<matrix*, 2>& numbers, Smatrix* labels) {
  for (const Recipient& r : recipients.rows) {
    for (std::size_t c = r.firstWanted; c < r.firstWanted + r.wanted; ++c) {
      const Wanted& cell = recipients.wanted[c];
      if (cell.donor < 0) continue;
      if (cell.column < widths.allNumbers()) {
        matrix& table = *numbers[static_cast<std::size_t>(widths.tableOf(cell.column))];
        missing::fill(table, addressing::linearIndex(r.row, widths.columnIn(cell.column), table.nX),
                      donors.at(cell.donor, cell.column));
      } else {
        const int column = cell.column - widths.allNumbers();
        const int donor = donors.rows[static_cast<std::size_t>(cell.donor)];
        missing::fill(*labels, addressing::linearIndex(r.row, column, labels->nX),
                      texts::cell(learnedLabels, donor, column));
      }
    }
  }
}

}  // namespace

void EstimateRowsWithMissingNN(matrix* table1, int n, int p1, const short* flags, matrix* table2, int p2,
                               Smatrix* table3, int p3, const matrix* w) {
  EstimateRowsWithMissingNNPred(table1, n, table1, n, p1, flags, table2, table2, p2, table3, table3, p3, w);
}

void EstimateRowsWithMissingNNPred(const matrix* learned1, int m, matrix* table1, int n, int p1,
                                   const short* flags, const matrix* learned2, matrix* table2, int p2,
                                   const Smatrix* learned3, Smatrix* table3, int p3, const matrix* w) {
  if (n < 1) return;
  const Widths widths{{std::max(p1, 0), std::max(p2, 0)}, std::max(p3, 0)};
  const Tables learned{{learned1, learned2}, learned3, m};
  Codes codes;
  const Donors donors = readDonors(learned, widths, flags, w, kernels::best().distanceLanes, codes);
  Recipients recipients = readRecipients({{table1, table2}, table3, n}, widths, donors, codes);
  findDonors(donors, recipients);
  fillCells(recipients, donors, widths, learned3, {table1, table2}, table3);
}
