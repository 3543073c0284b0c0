#include "kavoratb1c/tables/positions.h"

#include <cmath>
#include <cstdint>

#include "access/results.h"
#include "core/addressing.h"

using namespace kav;

using results::give;

namespace {

/// Largest i with i (i - 1) / 2 < position: the row of a position in packed triangular storage.
int triangleRow(int position) {
  auto row = static_cast<std::int64_t>((1.0 + std::sqrt(8.0 * position - 7.0)) / 2.0);
  while (row * (row - 1) / 2 >= position) --row;
  while (row * (row + 1) / 2 < position) ++row;
  return static_cast<int>(row);
}

/// @param rows   of the triangle
/// @param shift  what is added to its rows: 1 where the diagonal is not stored
void trianglePosition(int position, int rows, int shift, int* row, int* column) {
  const std::int64_t cells = rows < 1 ? 0 : std::int64_t{rows} * (rows + std::int64_t{1}) / 2;
  const bool exists = position >= 1 && position <= cells;
  const std::int64_t i = exists ? triangleRow(position) : 0;
  give(row, exists ? static_cast<int>(i) + shift : 0);
  give(column, exists ? static_cast<int>(position - i * (i - 1) / 2) : 0);
}

}  // namespace

void V_GetPositionInMatNNp1o2(int position, int n, int* row, int* column) {
  trianglePosition(position, n, 0, row, column);
}

void V_GetPositionInMatNNm1o2(int position, int n, int* row, int* column) {
  trianglePosition(position, n < 1 ? 0 : n - 1, 1, row, column);
}

void V_GetPositionInMatNN(int position, int n, int* row, int* column) {
  const bool exists = position >= 1 && position <= addressing::cellCount(n, n);
  give(row, exists ? (position - 1) % n + 1 : 0);
  give(column, exists ? (position - 1) / n + 1 : 0);
}
