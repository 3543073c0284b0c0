// A column with weights, flags and containers, as the benchmarks of vectors use it.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <vector>

#include "kavoratb1c/matrix.h"

struct Column {
  explicit Column(int rows) : n(rows), x(static_cast<std::size_t>(rows)), w(x.size()), exclude(x.size()) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      x[i] = 2.385 + static_cast<double>((i * 7919) % 1000);
      w[i] = 0.5 + static_cast<double>(i % 3);
    }
    cells = std::make_unique<matrix>(n, 1, x.data(), false, 0, 0);
    weights = std::make_unique<matrix>(n, 1, w.data(), false, 0, 0);
  }

  int n;
  std::vector<double> x, w;
  std::vector<short> exclude;
  std::unique_ptr<matrix> cells, weights;
};

/// Does f on a column that lives as long as the contest.
template <class F>
std::function<void()> keeping(std::shared_ptr<Column> column, F f) {
  return [column = std::move(column), f] { benchmark::DoNotOptimize(f(*column)); };
}
