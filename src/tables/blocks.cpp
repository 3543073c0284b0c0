#include "kavoratb1c/tables/blocks.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "access/block.h"
#include "access/results.h"
#include "access/texts.h"
#include "numerics/range.h"

using namespace kav;

namespace {

/// Rows and columns of a table, cut to it.
struct Part {
  Part(int n, int p, int rowFrom, int rowTo, int columnFrom, int columnTo)
      : rows(n, rowFrom, rowTo), columns(p, columnFrom, columnTo) {}

  Range rows, columns;
};

void copy(const matrix* a, int n, int p, const Part& part, matrix*& out) {
  const block::Values cells(a, n, p);
  results::refilled(out, part.rows.count(), part.columns.count(), 1, [&](block::Target& target) {
    for (int j = 0; j < part.columns.count(); ++j) {
      std::copy_n(cells.column(part.columns.begin + j) + part.rows.begin, part.rows.count(),
                  target.column(j));
    }
  });
}

/// Rows in the order given.
void copyRows(const matrix* a, int n, int p, const std::vector<int>& rows, matrix*& out) {
  const block::Values cells(a, n, p);
  const auto count = static_cast<int>(rows.size());
  results::refilled(out, count, p, 1, [&](block::Target& target) {
    for (int j = 0; j < p; ++j) {
      const double* column = cells.column(j);
      double* to = target.column(j);
      for (int i = 0; i < count; ++i) to[i] = column[rows[static_cast<std::size_t>(i)]];
    }
  });
}

/// A table without some of its rows and columns.
void copyOutside(const matrix* a, int n, int p, const Part& left, matrix*& out) {
  const block::Values cells(a, n, p);
  const int rows = std::max(n, 0) - left.rows.count(), columns = std::max(p, 0) - left.columns.count();
  results::refilled(out, rows, columns, 1, [&](block::Target& target) {
    for (int j = 0; j < columns; ++j) {
      const double* column = cells.column(j < left.columns.begin ? j : j + left.columns.count());
      double* rest = std::copy_n(column, left.rows.begin, target.column(j));
      std::copy_n(column + left.rows.end, rows - left.rows.begin, rest);
    }
  });
}

/// The position, or the last one where there is none like it.
int orLast(int position, int n) { return position >= 1 && position <= n ? position : n; }

void removeInPlace(matrix*& a, int n, int p, const Part& left) {
  if (a == nullptr || n < 1 || p < 1) return;
  matrix* rest = nullptr;
  copyOutside(a, n, p, left, rest);
  const std::unique_ptr<matrix> owner(rest);
  results::replace(a, *rest);
}

/// Rows above a row, columns left of a column; below 0 for positions before the table.
std::ptrdiff_t above(int position) { return static_cast<std::ptrdiff_t>(position) - 1; }

/// A part of nothing: no column, or no row.
constexpr int kNone = 0;

}  // namespace

void M_CopyBlock(const matrix* a, int n, int p, int rowFrom, int rowTo, int columnFrom, int columnTo,
                 matrix*& out) {
  copy(a, n, p, Part(n, p, rowFrom, rowTo, columnFrom, columnTo), out);
}

void M_ExtractMatToMat(const matrix* a, int n, int p, int rowFrom, int rowTo, matrix*& out) {
  copy(a, n, p, Part(n, p, rowFrom, rowTo, 1, p), out);
}

void M_ExtractMatToMat(const Smatrix* a, int n, int p, int rowFrom, int rowTo, Smatrix*& out) {
  const Range rows(n, rowFrom, rowTo);
  Smatrix::matCheck(out, rows.count(), p);
  texts::fill(*out, [&](int i, int j) { return texts::cell(a, rows.begin + i, j); });
}

void M_ExtractMatToMatByCol(const matrix* a, int n, int p, int columnFrom, int columnTo, matrix*& out) {
  copy(a, n, p, Part(n, p, 1, n, columnFrom, columnTo), out);
}

void M_PasteBlock(const matrix* a, int n, int p, matrix* to, int n2, int p2, int row, int column) {
  if (!results::haveCells(n, p, n2, p2)) return;
  const auto last = [](int first, int extent, int room) {
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{first} + extent - 1, room));
  };
  const Part part(n2, p2, row, last(row, n, n2), column, last(column, p, p2));
  if (part.rows.count() < 1 || part.columns.count() < 1) return;
  const block::Values cells(a, n, p);
  block::Target target(to, n2, p2);
  for (int j = part.columns.begin; j < part.columns.end; ++j) {
    std::copy_n(cells.column(j - above(column)) + (part.rows.begin - above(row)), part.rows.count(),
                target.column(j) + part.rows.begin);
  }
  target.store();
}

void M_CopyToBigger(const matrix* a, int n, int p, matrix* to, int n2, int p2) {
  M_PasteBlock(a, n, p, to, n2, p2, 1, 1);
}

void M_CopyResize(const matrix* a, int n, int p, matrix*& out, int n2, int p2) {
  const int rows = std::clamp(n2, 0, std::max(n, 0)), columns = std::clamp(p2, 0, std::max(p, 0));
  const block::Values cells(a, n, p);
  results::refilled(out, n2, p2, 1, [&](block::Target& target) {
    for (int j = 0; j < p2; ++j) {
      const int copied = j < columns ? rows : 0;
      if (copied > 0) std::copy_n(cells.column(j), copied, target.column(j));
      std::fill_n(target.column(j) + copied, n2 - copied, 0.0);
    }
  });
}

void M_CopyResize(const Smatrix* a, int n, int p, Smatrix*& out, int n2, int p2) {
  Smatrix::matCheck(out, n2, p2);
  texts::fill(*out,
              [&](int i, int j) { return i < n && j < p ? texts::cell(a, i, j) : std::u16string_view(); });
}

void M_RemoveRow(const matrix* a, int n, int p, int row, matrix*& out) {
  copyOutside(a, n, p, Part(n, p, orLast(row, n), orLast(row, n), 1, kNone), out);
}

void M_RemoveCol(const matrix* a, int n, int p, int column, matrix*& out) {
  copyOutside(a, n, p, Part(n, p, 1, kNone, orLast(column, p), orLast(column, p)), out);
}

void M_RemoveRows2(matrix*& a, int n, int p, int from, int to) {
  removeInPlace(a, n, p, Part(n, p, from, to, 1, kNone));
}

void M_RemoveCols2(matrix*& a, int n, int p, int from, int to) {
  removeInPlace(a, n, p, Part(n, p, 1, kNone, from, to));
}

int M_RemoveRowsInList(const matrix* a, int n, int p, const int* list, int listed, matrix*& out) {
  std::vector<char> removed(static_cast<std::size_t>(std::max(n, 0)));
  for (int k = 0; k < listed && list != nullptr; ++k) {
    if (list[k] >= 1 && list[k] <= n) removed[static_cast<std::size_t>(list[k] - 1)] = 1;
  }
  std::vector<int> rows;
  for (int i = 0; i < n; ++i) {
    if (!removed[static_cast<std::size_t>(i)]) rows.push_back(i);
  }
  copyRows(a, n, p, rows, out);
  return static_cast<int>(rows.size());
}

void M_MoveRow(matrix* a, int n, int p, int row, int newPosition) {
  if (a == nullptr || p < 1 || row < 1 || row > n || newPosition < 1 || newPosition > n) return;
  block::Target cells(a, n, p);
  for (int j = 0; j < p; ++j) {
    double* column = cells.column(j);
    if (row < newPosition) {
      std::rotate(column + row - 1, column + row, column + newPosition);
    } else {
      std::rotate(column + newPosition - 1, column + row - 1, column + row);
    }
  }
  cells.store();
}
