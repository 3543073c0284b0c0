// One cell at a time, for methods that go on from cells they have written: by the element rule where that may
// show, else in plain memory. Both have the same interface, so that a method is written once. Internal.
#pragma once

#include <cstddef>

#include "core/block.h"

namespace elements {

/// Cells of a container by the element rule; a null container has none.
class Checked {
 public:
  explicit Checked(matrix* m) : m_(m) {}

  double operator()(int i, int j) const { return m_ == nullptr ? kOutside : m_->getElement(i, j); }
  void set(int i, int j, double x) const {
    if (m_ != nullptr) m_->setElement(i, j, x);
  }

 private:
  matrix* m_;
};

/// Cells in plain memory, column after column.
class Plain {
 public:
  Plain(double* cells, std::ptrdiff_t stride) : cells_(cells), stride_(stride) {}

  double operator()(int i, int j) const { return cells_[i + stride_ * j]; }
  void set(int i, int j, double x) const { cells_[i + stride_ * j] = x; }

  double* column(std::ptrdiff_t j) const { return cells_ + stride_ * j; }
  std::ptrdiff_t stride() const { return stride_; }

 private:
  double* cells_;
  std::ptrdiff_t stride_;
};

}  // namespace elements
