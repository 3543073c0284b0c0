#include "sort/rows.h"

#include <algorithm>
#include <vector>

#include "access/block.h"
#include "access/screening.h"
#include "numerics/scratch.h"

namespace kav::rows {

using ordering::RowOrder;

namespace {

void gather(const double* before, const int* rows, int count, double* values) {
  for (int k = 0; k < count; ++k) values[k] = before[rows[k]];
}

/// One column by the element rule.
///
/// @param before  scratch, in this and the next
void move(double* values, const bool* flags, const int* rows, Scratch<double>& before) {
  std::copy_n(values, before.size(), before.data());
  const auto count = static_cast<int>(before.size());
  if (!screening::anyFlagged(flags, count)) {
    gather(before.data(), rows, count, values);
    return;
  }
  for (int k = 0; k < count; ++k) {
    if (!flags[k]) values[k] = before[rows[k]];
  }
}

/// One column of which some cells are missing.
void moveWithMissing(double* values, bool* flags, const int* rows, Scratch<double>& before) {
  Scratch<bool> missing(before.size());
  std::copy_n(flags, before.size(), missing.data());
  std::copy_n(values, before.size(), before.data());
  for (int k = 0; k < static_cast<int>(before.size()); ++k) {
    flags[k] = isMissing(before[rows[k]], missing[rows[k]]);
    if (!flags[k]) values[k] = before[rows[k]];
  }
}

void flagMarkers(const double* values, bool* flags, int count) {
  for (int k = 0; k < count; ++k) flags[k] = isMissing(values[k], flags[k]);
}

/// Rows beyond the table read -1.0, or run on into the next column: where rows share a cell the last one
/// written counts.
void permuteBeyond(matrix* table, int columns, const Range& span, const RowOrder& order) {
  const block::Values cells(table, span.end, columns);
  std::vector<double> before(addressing::elementsInMemory<double>(span.end, columns));
  block::copyTo(cells, span.end, columns, before.data());
  for (int k = 0; k < span.count(); ++k) {
    const double* from = before.data() + span.begin + order[k];
    for (int j = 0; j < columns; ++j, from += span.end) table->setElement(span.begin + k, j, *from);
  }
}

}  // namespace

void permute(matrix* table, int columns, const Range& span, const RowOrder& order) {
  if (table == nullptr || span.count() == 0 || columns < 1) return;
  if (addressing::isInside(*table, span.begin)) table->descValid = 0;
  if (order.isInPlace()) return;
  if (span.end > table->nX) {
    permuteBeyond(table, columns, span, order);
    return;
  }
  Scratch<double> before(static_cast<std::size_t>(span.count()));
  for (int j = 0; j < std::min(columns, table->pX); ++j) {
    const std::int64_t begin = addressing::linearIndex(span.begin, j, table->nX);
    move(table->values + begin, table->missing + begin, order.rows(), before);
  }
}

void permuteColumn(matrix& table, int column, const Range& span, const RowOrder& order) {
  table.descValid = 0;
  if (order.isInPlace()) return;
  const std::int64_t begin = addressing::linearIndex(span.begin, column, table.nX);
  Scratch<double> before(static_cast<std::size_t>(span.count()));
  move(table.values + begin, table.missing + begin, order.rows(), before);
}

void permuteWithMissing(matrix* table, int columns, const Range& span, const RowOrder& order) {
  if (table == nullptr || span.count() == 0) return;
  Scratch<double> before(static_cast<std::size_t>(span.count()));
  for (int j = 0; j < std::min(columns, table->pX); ++j) {
    table->descValid = 0;
    const std::int64_t begin = addressing::linearIndex(span.begin, j, table->nX);
    double* values = table->values + begin;
    bool* flags = table->missing + begin;
    const bool complete = !screening::anyMissing(values, flags, span.count());
    if (order.isInPlace()) {
      if (!complete) flagMarkers(values, flags, span.count());
    } else if (complete) {
      std::copy_n(values, span.count(), before.data());
      gather(before.data(), order.rows(), span.count(), values);
    } else {
      moveWithMissing(values, flags, order.rows(), before);
    }
  }
}

void permute(Smatrix* table, int columns, const Range& span, const RowOrder& order) {
  if (table == nullptr || order.isInPlace()) return;
  std::vector<std::u16string> before(static_cast<std::size_t>(span.count()));
  for (int j = 0; j < std::min(columns, table->pX); ++j) {
    std::u16string* cells = table->cells + addressing::linearIndex(span.begin, j, table->nX);
    std::move(cells, cells + span.count(), before.begin());
    for (int k = 0; k < span.count(); ++k) cells[k] = std::move(before[static_cast<std::size_t>(order[k])]);
  }
}

}  // namespace kav::rows
