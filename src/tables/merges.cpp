#include "kavoratb1c/tables/merges.h"

#include <algorithm>
#include <memory>

#include "access/block.h"
#include "access/results.h"
#include "access/texts.h"

using namespace kav;

namespace {

int atLeast0(int extent) { return std::max(extent, 0); }

/// A block and the place, 0-based, where it goes.
template <class Container>
struct Piece {
  Piece(const Container* of, int n, int p, int toRow, int toColumn)
      : table(of),
        rows(p < 1 ? 0 : atLeast0(n)),
        columns(n < 1 ? 0 : atLeast0(p)),
        row(toRow),
        column(toColumn) {}

  /// Its rows of a column of the result.
  int rowsIn(int j) const { return j >= column && j - column < columns ? rows : 0; }

  const Container* table;
  int rows, columns, row, column;
};

void assemble(matrix*& c, int rows, int columns, const Piece<matrix>& first, const Piece<matrix>& second) {
  const block::Values firstCells(first.table, first.rows, first.columns),
      secondCells(second.table, second.rows, second.columns);
  results::refilled(c, rows, columns, 1, [&](block::Target& target) {
    const auto place = [&](const Piece<matrix>& piece, const block::Values& cells, int j, double* to) {
      if (piece.rowsIn(j) > 0) std::copy_n(cells.column(j - piece.column), piece.rows, to + piece.row);
    };
    for (int j = 0; j < columns; ++j) {
      double* to = target.column(j);
      if (first.rowsIn(j) + second.rowsIn(j) < rows) std::fill_n(to, rows, 0.0);
      place(first, firstCells, j, to);
      place(second, secondCells, j, to);
    }
  });
}

void assemble(Smatrix*& c, int rows, int columns, const Piece<Smatrix>& first, const Piece<Smatrix>& second) {
  Smatrix::matCheck(c, rows, columns);
  for (const Piece<Smatrix>* piece : {&first, &second}) {
    for (int j = 0; j < piece->columns; ++j) {
      std::u16string* to = c->cells + addressing::linearIndex(piece->row, piece->column + j, c->nX);
      for (int i = 0; i < piece->rows; ++i) to[i] = texts::cell(piece->table, i, j);
    }
  }
}

template <class Container>
void sideBySide(const Container* a, int n1, int p1, const Container* b, int n2, int p2, Container*& c) {
  const int left = atLeast0(p1);
  assemble(c, std::max(atLeast0(n1), atLeast0(n2)), addressing::together(p1, p2),
           Piece<Container>(a, n1, p1, 0, 0), Piece<Container>(b, n2, p2, 0, left));
}

template <class Container>
void below(const Container* a, int n1, int p1, const Container* b, int n2, int p2, Container*& c) {
  const int upper = atLeast0(n1);
  assemble(c, addressing::together(n1, n2), std::max(atLeast0(p1), atLeast0(p2)),
           Piece<Container>(a, n1, p1, 0, 0), Piece<Container>(b, n2, p2, upper, 0));
}

/// merge(merged) in place of a.
template <class Merge>
void inPlace(matrix*& a, Merge merge) {
  matrix* merged = nullptr;
  merge(merged);
  const std::unique_ptr<matrix> owner(merged);
  results::replace(a, *merged);
}

}  // namespace

void HMergeTables(const matrix* a, int n1, int p1, const matrix* b, int n2, int p2, matrix*& c) {
  sideBySide(a, n1, p1, b, n2, p2, c);
}

void HMergeTables(const Smatrix* a, int n1, int p1, const Smatrix* b, int n2, int p2, Smatrix*& c) {
  sideBySide(a, n1, p1, b, n2, p2, c);
}

void VMergeTables(const matrix* a, int n1, int p1, const matrix* b, int n2, int p2, matrix*& c) {
  below(a, n1, p1, b, n2, p2, c);
}

void HMergeVectors(const matrix* x, int n1, const matrix* y, int n2, matrix*& c) {
  HMergeTables(x, n1, 1, y, n2, 1, c);
}

void HMergeTableVect(const matrix* a, int n, int p, const matrix* x, int n1, matrix*& c) {
  HMergeTables(a, n, p, x, n1, 1, c);
}

void HMergeTableVect2(matrix*& a, int n, int p, const matrix* x, int n1) {
  inPlace(a, [&](matrix*& merged) { HMergeTableVect(a, n, p, x, n1, merged); });
}

void HMergeVectTable(const matrix* x, int n1, const matrix* a, int n, int p, matrix*& c) {
  HMergeTables(x, n1, 1, a, n, p, c);
}

void HMergeVectCol(const matrix* x, int n1, const matrix* a, int n, int column, matrix*& c) {
  matrix own(atLeast0(n), 1, 0.0);
  for (int i = 0; i < n && column >= 1; ++i) {
    own.values[i] = a == nullptr ? kOutside : a->getElement(i, column - 1);
  }
  HMergeVectors(x, n1, &own, n, c);
}

void VMergeVectors(const matrix* x, int n1, const matrix* y, int n2, matrix*& z) {
  VMergeTables(x, n1, 1, y, n2, 1, z);
}

void VMergeVectors(const Smatrix* x, int n1, const Smatrix* y, int n2, Smatrix*& z) {
  below(x, n1, 1, y, n2, 1, z);
}

void VMergeVectors2(matrix*& x, int n1, const matrix* y, int n2) {
  inPlace(x, [&](matrix*& merged) { VMergeVectors(x, n1, y, n2, merged); });
}
