// A pair of tables, as the benchmarks of the algebra and the decompositions use them.
#pragma once

#include <Eigen/Core>
#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "kavoratb1c/matrix.h"
#include "support/random.h"

using Table = Eigen::Map<const Eigen::MatrixXd>;

/// Two tables of random cells, and room for results.
struct Data {
  Data(int rows, int columns) : n(rows), p(columns), a(new matrix(n, p)), b(new matrix(n, p)), c(nullptr) {
    Random random(41);
    for (std::ptrdiff_t k = 0; k < cells(); ++k) {
      a->values[k] = random.uniform(-4.0, 4.0);
      b->values[k] = random.uniform(-4.0, 4.0);
    }
  }
  Data(const Data&) = delete;
  ~Data() {
    delete a;
    delete b;
    delete c;
  }

  std::ptrdiff_t cells() const { return std::ptrdiff_t{n} * p; }
  Table mapA() const { return {a->values, n, p}; }
  Table mapB() const { return {b->values, n, p}; }

  /// For what works in place: b with the cells of a.
  matrix* copyInB() const {
    std::copy_n(a->values, cells(), b->values);
    return b;
  }

  int n, p;
  matrix *a, *b, *c;
  Eigen::MatrixXd result;
};

/// Does f on tables that live as long as the contest.
template <class F>
std::function<void()> keeping(std::shared_ptr<Data> data, F f) {
  return [data = std::move(data), f] { f(*data); };
}

inline std::string sizes(int n, int p) { return std::to_string(n) + " x " + std::to_string(p); }
