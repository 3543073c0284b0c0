// Products of blocks by the kernels, for workers. Internal.
#pragma once

#include "access/block.h"
#include "kernels/kernels.h"
#include "numerics/scratch.h"

namespace kav::dense {

using kernels::View;

inline View viewOf(const block::Values& cells) { return {cells.data(), 1, cells.leadingDimension()}; }

/// Factors between a and b of a product, one for each term.
struct Scale {
  const double* cells = nullptr;
  std::ptrdiff_t stride = 0;
};

inline Scale vectorScale(const block::Values& v) { return {v.data(), 1}; }

/// c = a . b, or a . diag(scale) . b: rows x columns sums of depth terms each, added in ascending order.
inline void multiply(const View& a, const View& b, int rows, int columns, int depth, double* c,
                     std::ptrdiff_t stride, const Scale& scale = {}, bool upperOnly = false) {
  const kernels::Product product = {a,     b, scale.cells, scale.stride, rows, columns,
                                    depth, c, stride,      upperOnly,    false};
  Scratch<double> scratch(kernels::productScratch(product));
  kernels::best().product(product, scratch.data());
}

inline void multiply(const View& a, const View& b, int rows, int columns, int depth, block::Target& c,
                     const Scale& scale = {}) {
  multiply(a, b, rows, columns, depth, c.data(), c.leadingDimension(), scale);
}

/// a . a', or a . diag(scale) . a': the upper triangle computed, the lower one its mirror.
inline void multiplySymmetric(const View& a, int size, int depth, block::Target& c, const Scale& scale = {}) {
  multiply(a, a.transposed(), size, size, depth, c.data(), c.leadingDimension(), scale, true);
  for (int j = 0; j < size; ++j) {
    for (int i = j + 1; i < size; ++i) c.column(j)[i] = c.column(i)[j];
  }
}

}  // namespace kav::dense
