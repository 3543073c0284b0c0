// The tables that definitions work on: cells by row and column, 0-based, in plain memory or in a container.
#pragma once

#include <algorithm>
#include <cstddef>

#include "kavoratb1c/matrix.h"

namespace definitions {

/// In plain memory, column after column.
struct Cells {
  double& operator()(int i, int j) const { return first[i + std::ptrdiff_t{rows} * j]; }

  double* first;
  int rows;
};

/// A cell of a container by the rule for elements: outside it reads -1, flagged it keeps what it holds.
class Element {
 public:
  Element(matrix& m, int i, int j) : m_(m), i_(i), j_(j) {}

  operator double() const { return m_.getElement(i_, j_); }
  void operator=(double x) const { m_.setElement(i_, j_, x); }
  void operator+=(double x) const { *this = *this + x; }
  void operator-=(double x) const { *this = *this - x; }
  void operator*=(double x) const { *this = *this * x; }
  void operator/=(double x) const { *this = *this / x; }

 private:
  matrix& m_;
  int i_, j_;
};

struct Elements {
  Element operator()(int i, int j) const { return {m, i, j}; }

  matrix& m;
};

/// A container that is only read.
inline Elements elementsOf(const matrix& m) { return {const_cast<matrix&>(m)}; }

/// Either triangle of a symmetric table whose lower one is stored row after row.
template <class Table>
struct Packed {
  decltype(auto) operator()(int i, int j) const {
    const int row = std::max(i, j);
    return cells(row * (row + 1) / 2 + std::min(i, j), 0);
  }

  Table cells;
};

template <class Table>
void exchange(const Table& a, int i, int j, int k, int l) {
  const double cell = a(i, j), other = a(k, l);
  a(i, j) = other;
  a(k, l) = cell;
}

}  // namespace definitions
