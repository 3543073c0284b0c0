// Cells in plain memory, column-major. Internal.
#pragma once

#include <cstddef>

namespace kav::elements {

class Plain {
 public:
  Plain(double* cells, std::ptrdiff_t leadingDimension)
      : cells_(cells), leadingDimension_(leadingDimension) {}

  double operator()(int i, int j) const { return cells_[i + leadingDimension_ * j]; }
  void set(int i, int j, double x) const { cells_[i + leadingDimension_ * j] = x; }

  double* column(std::ptrdiff_t j) const { return cells_ + leadingDimension_ * j; }
  std::ptrdiff_t leadingDimension() const { return leadingDimension_; }

 private:
  double* cells_;
  std::ptrdiff_t leadingDimension_;
};

}  // namespace kav::elements
