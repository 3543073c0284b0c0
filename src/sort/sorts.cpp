#include "kavoratb1c/sort/sorts.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "access/block.h"
#include "access/results.h"
#include "numerics/scalar.h"
#include "numerics/thresholds.h"
#include "sort/ordering.h"
#include "sort/rows.h"

using namespace kav;

using ordering::RowOrder;

namespace {

/// Rows that both the caller's table and its container have, where columns of it take part.
template <class Container>
int commonRows(const Container* table, int tableRows, int columns) {
  return table == nullptr || columns < 1 ? tableRows : std::min(tableRows, table->nX);
}

/// What both forms of SortQ share: all but the way their data move.
///
/// @param move     moves the rows of the data
/// @param numbers  the data where they are numbers, else null: keys that are their first column move too
template <class Move>
void sortByKeys(const Range& span, const matrix* numbers, matrix* keys, matrix* companion,
                int companionColumns, short descending, short writeKeysBack, Move move) {
  if (span.count() == 0) return;
  const block::Values keyCells(keys, span.end);
  const RowOrder order(keyCells.data() + span.begin, span.count(), descending == kTrue);
  move(order);
  const bool moved = keys == numbers || (keys == companion && companionColumns > 0);
  if (writeKeysBack == kTrue && !moved) rows::permute(keys, 1, span, order);
  rows::permute(companion, companionColumns, span, order);
}

template <class Cell>
void sortCells(Cell* x, const Range& span, short descending) {
  Cell* begin = x + span.begin;
  ordering::sortAscending(begin, span.count());
  if (descending != 0) std::reverse(begin, x + span.end);
}

template <class Cell>
int sortArray(Cell* x, int n, int from, int to, short descending) {
  if (x != nullptr) sortCells(x, Range(n, from, to), descending);
  return 0;
}

/// Cells of a container as a vector has them.
template <class Container>
int vectorSize(const Container& x) {
  return static_cast<int>(std::min<std::int64_t>(addressing::cellCount(x), INT_MAX));
}

/// The 0-based row that order asks for, -1 when it is outside.
int rowAskedFor(double order, int tableRows) {
  const int row = scalar::truncateToInt(order - 1.0);
  return row < tableRows ? std::max(row, -1) : -1;
}

}  // namespace

int SortQ(matrix*& data, int rows, int dataColumns, int from, int to, matrix*& keys, matrix*& companion,
          int companionColumns, short descending, short writeKeysBack) {
  const Range span(commonRows(data, rows, dataColumns), from, to);
  const matrix* numbers = dataColumns > 0 ? data : nullptr;
  sortByKeys(span, numbers, keys, companion, companionColumns, descending, writeKeysBack,
             [&](const RowOrder& order) { rows::permuteWithMissing(data, dataColumns, span, order); });
  return 0;
}

int SortQ(Smatrix*& data, int rows, int dataColumns, int from, int to, matrix* keys, matrix* companion,
          int companionColumns, short descending, short writeKeysBack) {
  const Range span(commonRows(data, rows, dataColumns), from, to);
  sortByKeys(span, nullptr, keys, companion, companionColumns, descending, writeKeysBack,
             [&](const RowOrder& order) { rows::permute(data, dataColumns, span, order); });
  return 0;
}

int SortQMatrixCol(matrix*& table, int rows, int columns, int keyColumn, int from, int to, short descending) {
  if (table == nullptr) return 0;
  const Range span(std::min(rows, table->nX), from, to);
  if (span.count() == 0 || keyColumn < 1 || keyColumn > table->pX) return 0;
  const double* keys = table->values + addressing::linearIndex(span.begin, keyColumn - 1, table->nX);
  const RowOrder order(keys, span.count(), descending == kTrue);
  rows::permute(table, std::min(columns, table->pX), span, order);
  if (keyColumn > columns) rows::permuteColumn(*table, keyColumn - 1, span, order);
  return 0;
}

int SortMatrixSeqQ(matrix*& table, int rows, int columns) {
  if (table == nullptr) return 0;
  const int last = std::min(rows, table->nX);
  int status = SortQMatrixCol(table, last, columns, 1, 1, last, kFalse);
  for (int k = 2; k <= std::min(columns, table->pX); ++k) {
    for (int begin = 1, end; begin <= last; begin = end) {
      end = begin + 1;
      while (end <= last && std::fabs(table->vbget(end, k - 1) - table->vbget(end - 1, k - 1)) <= kZero) {
        ++end;
      }
      if (end - begin > 1) status = SortQMatrixCol(table, last, columns, k, begin, end - 1, kFalse);
    }
  }
  return status;
}

int SortDataBy01(matrix*& data, int rows, int columns, matrix*& key, int, short) {
  matrix* companion = nullptr;
  return SortQ(data, rows, columns, 1, rows, key, companion, 0, kFalse, kTrue);
}

int SortDataBy01(Smatrix*& data, int rows, int columns, matrix*& key, int, short) {
  return SortQ(data, rows, columns, 1, rows, key, nullptr, 0, kFalse, kTrue);
}

int SortQVector(int* x, int n, int from, int to, short descending) {
  return sortArray(x, n, from, to, descending);
}

int SortQVector(double* x, int n, int from, int to, short descending) {
  return sortArray(x, n, from, to, descending);
}

int SortQVector(matrix*& x, int, int from, int to, short descending) {
  if (x == nullptr) return 0;
  const Range span(vectorSize(*x), from, to);
  if (span.count() == 0) return 0;
  block::Target cells(x, span.end);
  sortCells(cells.data(), span, descending);
  cells.store();
  return 0;
}

int SortQVector(Smatrix* x, int, int from, int to, short descending) {
  if (x == nullptr) return 0;
  const Range span(vectorSize(*x), from, to);
  std::sort(x->cells + span.begin, x->cells + span.end);
  if (descending != 0) std::reverse(x->cells + span.begin, x->cells + span.end);
  return 0;
}

void SortApply(const matrix* source, int rows, int columns, const matrix* order, matrix*& out) {
  const block::Values from(source, rows, columns), asked(order, rows);
  results::keep(out, rows, columns);
  block::Target to(out, rows, columns);
  for (int j = 0; j < columns; ++j) {
    const double* column = from.column(j);
    double* result = to.column(j);
    for (int r = 0; r < rows; ++r) {
      const int row = rowAskedFor(asked[r], rows);
      result[r] = row < 0 ? kOutside : column[row];
    }
  }
  to.store();
}

void SortApplyStr(const Smatrix* source, int rows, int columns, const matrix* order, Smatrix*& out) {
  const block::Values asked(order, rows);
  Smatrix::matCheck(out, rows, columns);
  for (int j = 0; j < columns; ++j) {
    for (int r = 0; r < rows; ++r) {
      const int row = rowAskedFor(asked[r], rows);
      out->setElement(r, j, row < 0 || source == nullptr ? std::u16string() : source->getElement(row, j));
    }
  }
}
