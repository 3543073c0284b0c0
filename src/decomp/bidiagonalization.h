// Householder reduction of a matrix in plain memory to bidiagonal form, several columns at a time. Each cell
// takes the operations of the plain form in singular_values.cpp, in their order. Internal.
#pragma once

#include <cstddef>
#include <vector>

#include "decomp/bidiagonal.h"
#include "decomp/sizes.h"
#include "numerics/plain_elements.h"

namespace kav::householder {

/// X reduced to bidiagonal form.
class Bidiagonalization {
 public:
  /// @param x  n x p, overwritten
  Bidiagonalization(const bidiagonal::Job& job, const elements::Plain& x);

  /// The diagonals, 0-based, of job.order() cells and more.
  std::vector<double> s, e;

  /// The vectors to start from, as long as the diagonals are as they were made.
  void generateLeft(const elements::Plain& u) const;
  void generateRight(const elements::Plain& v) const;

 private:
  void reflectColumn(int l);
  void reflectRow(int l);

  /// From column l + 1 on.
  double* rowReflector(int l) { return rows_.data() + std::ptrdiff_t{job_.p} * l; }
  const double* rowReflector(int l) const { return rows_.data() + std::ptrdiff_t{job_.p} * l; }

  bidiagonal::Job job_;
  elements::Plain x_;
  std::vector<double> work_;     ///< of the last row reflection
  std::vector<double> factors_;  ///< what of it each column still has to take; empty: nothing
  std::vector<double> times_;    ///< of the column reflector, for each column
  bool columnReflects_ = false;
  std::vector<double> nextWork_;
  std::vector<double> rows_;  ///< reflectors of rows, job.p cells for each
};

}  // namespace kav::householder
