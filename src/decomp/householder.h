// Householder reductions of tables in plain memory, several columns at a time. Each cell takes the operations
// of the plain forms in singular_values.cpp and eigen.cpp, in their order. Internal.
#pragma once

#include <cstddef>
#include <vector>

#include "core/elements.h"
#include "decomp/bidiagonal.h"

namespace householder {

inline std::size_t sizeOf(int n) { return static_cast<std::size_t>(n); }

/// X to two diagonals.
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

/// A symmetric table to three diagonals, and the transformations put together.
class Tridiagonalization {
 public:
  /// @param a  n x n, both triangles; becomes the orthogonal table
  Tridiagonalization(const elements::Plain& a, int n);

  /// d of the diagonal; e[k] beside d[k - 1] and d[k].
  std::vector<double> d, e;

 private:
  void reduceRow(int i);
  void updateLeading(int size, const double* w, double* product);
  void accumulate(const std::vector<double>& squares);

  /// Of row i, i cells.
  double* reflector(int i) { return rows_.data() + std::ptrdiff_t{n_} * i; }

  elements::Plain a_;
  int n_;
  std::vector<double> rows_;  ///< reflectors, n cells for each
  const double* pending_ =
      nullptr;  ///< reflector that the leading block still has to take off; null: nothing
  std::vector<double> share_, product_;  ///< what of it, and the same in the making
};

}  // namespace householder
