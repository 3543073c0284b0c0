// The variables that an exclusion vector keeps, and tables cut down to them. Internal.
#pragma once

#include <vector>

#include "access/block.h"
#include "access/results.h"

namespace kav::kept {

/// 0-based, in ascending order: those whose cell is 0.0.
inline std::vector<int> variables(const matrix* excluded, int n) {
  const block::Values cells(excluded, n);
  std::vector<int> kept;
  for (int i = 0; i < n; ++i) {
    if (cells[i] == 0.0) kept.push_back(i);
  }
  return kept;
}

/// The kept rows and columns of a, in the leading block of a size x size table of 0.0.
inline void extract(const matrix* a, int n, const std::vector<int>& kept, matrix& small) {
  const block::Values cells(a, n, n);
  for (std::size_t j = 0; j < kept.size(); ++j) {
    double* column = small.values + std::ptrdiff_t{small.nX} * static_cast<std::ptrdiff_t>(j);
    for (std::size_t i = 0; i < kept.size(); ++i) column[i] = cells.column(kept[j])[kept[i]];
  }
}

/// The other way, into a refilled n x n result.
inline void scatter(const matrix& small, const std::vector<int>& kept, int n, matrix*& result) {
  results::refill(result, n, n);
  for (std::size_t j = 0; j < kept.size(); ++j) {
    for (std::size_t i = 0; i < kept.size(); ++i) {
      result->setElement(kept[i], kept[j], small.getElement(static_cast<int>(i), static_cast<int>(j)));
    }
  }
}

}  // namespace kav::kept
