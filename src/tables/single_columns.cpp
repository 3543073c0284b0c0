#include "tables/single_columns.h"

#include <algorithm>

#include "algebra/result_blocks.h"
#include "core/block.h"
#include "core/range.h"
#include "tables/texts.h"

namespace {

double cellOf(const matrix* a, int i, int j) { return a == nullptr ? kOutside : a->getElement(i, j); }

}  // namespace

void CopyMatrixColToMatrixCol(const matrix* a, int n, int column, matrix* b, int toColumn) {
  if (b == nullptr || column < 1 || toColumn < 1) return;
  for (int i = 0; i < n; ++i) b->setElement(i, toColumn - 1, cellOf(a, i, column - 1));
}

void CopyMatrixColToVector(const matrix* a, int n, int column, matrix*& x) {
  result::prepared(x, n, 1, 1, [&](block::Target& target) {
    for (int i = 0; i < n; ++i) target[i] = column < 1 ? 0.0 : cellOf(a, i, column - 1);
  });
}

void CopyMatrixColToOneColMat(const Smatrix* a, int n, int column, Smatrix*& x) {
  Smatrix::matCheck(x, n, 1);
  texts::fill(*x,
              [&](int i, int) { return column < 1 ? std::u16string_view() : texts::cell(a, i, column - 1); });
}

void CopyMatrixRowToMatrixRow(const matrix* a, int n, int p, int row, matrix* b, int n2, int toRow) {
  if (b == nullptr || row < 1 || row > n || toRow < 1 || toRow > n2) return;
  for (int j = 0; j < p; ++j) b->setElement(toRow - 1, j, cellOf(a, row - 1, j));
}

void GenerateIndicator(matrix*& x, int n, int from, int to) {
  const Range ones(n, from, to);
  result::prepared(x, n, 1, 1, [&](block::Target& target) {
    std::fill_n(target.data(), n, 0.0);
    std::fill(target.data() + ones.begin, target.data() + ones.end, 1.0);
  });
}
