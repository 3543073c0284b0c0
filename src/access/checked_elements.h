// One cell at a time by the element rule, for methods that continue from cells they have written. It has the
// interface of elements::Plain, so that a method is written once. Internal.
#pragma once

#include "kavoratb1c/matrix.h"

namespace kav::elements {

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

}  // namespace kav::elements
