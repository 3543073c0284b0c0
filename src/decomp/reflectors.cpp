#include "decomp/reflectors.h"

#include <algorithm>

#include "kernels/kernels.h"
#include "numerics/plain_elements.h"
#include "numerics/scratch.h"

namespace kav::reflectors {

namespace {

/// Some columns of the table, a lane each: row after row.
class Panel {
 public:
  explicit Panel(int rows)
      : kernel_(kernels::best()),
        lanes_(kernel_.reflectLanes),
        cells_(static_cast<std::size_t>(lanes_) * static_cast<std::size_t>(rows)),
        sums_(static_cast<std::size_t>(lanes_)),
        times_(sums_.size()) {}

  int lanes() const { return static_cast<int>(lanes_); }
  double& at(std::ptrdiff_t row, std::ptrdiff_t lane) { return cells_[lanes_ * row + lane]; }
  void clear() { std::fill_n(cells_.data(), cells_.size(), 0.0); }

  /// Reflections begin .. end-1. While a row takes one, it is added to the sum for the next.
  void apply(const std::vector<Reflector>& order, std::size_t begin, std::size_t end) {
    if (begin >= end) return;
    clearSums();
    sum(order[begin], order[begin].first, order[begin].end);
    for (std::size_t k = begin; k < end; ++k) {
      const Reflector& now = order[k];
      for (std::ptrdiff_t lane = 0; lane < lanes_; ++lane) times_[lane] = sums_[lane] / now.divisor;
      if (k + 1 == end) {
        kernel_.reflect({row(now.first), now.end - now.first, times_.data(), now.along, nullptr, nullptr});
        return;
      }
      const Reflector& next = order[k + 1];
      clearSums();
      sum(next, next.first, now.first);
      kernel_.reflect({row(now.first), now.end - now.first, times_.data(), now.along,
                       next.v + (now.first - next.first), sums_.data()});
      sum(next, now.end, next.end);
    }
  }

 private:
  double* row(std::ptrdiff_t k) { return cells_.data() + lanes_ * k; }

  void clearSums() { std::fill_n(sums_.data(), sums_.size(), 0.0); }

  /// Goes on with the sums over some rows of a reflector's.
  void sum(const Reflector& r, int first, int end) {
    if (first >= end) return;
    kernel_.reflect({row(first), end - first, nullptr, nullptr, r.v + (first - r.first), sums_.data()});
  }

  const kernels::Table& kernel_;
  std::ptrdiff_t lanes_;
  Scratch<double> cells_, sums_, times_;
};

}  // namespace

void accumulate(const std::vector<Reflector>& order, const std::vector<int>& startsAfter,
                const std::vector<const double*>& start, int rows, const elements::Plain& target) {
  Panel panel(rows);
  const auto columns = static_cast<int>(startsAfter.size());
  for (int first = 0; first < columns; first += panel.lanes()) {
    const int used = std::min(panel.lanes(), columns - first);
    panel.clear();
    // What a lane holds before its column starts is of no use, and goes along.
    const int* starts = startsAfter.data() + first;
    const auto startOf = [=](int lane) { return static_cast<std::size_t>(starts[lane]); };
    const bool lastFirst = startOf(used - 1) < startOf(0);
    std::size_t done = std::min(startOf(0), startOf(used - 1));
    for (int k = 0; k < used; ++k) {
      const int lane = lastFirst ? used - 1 - k : k;
      const std::size_t from = startOf(lane);
      panel.apply(order, done, from);
      done = from;
      const int column = first + lane;
      const double* cells = start[static_cast<std::size_t>(column)];
      for (int i = 0; i < rows; ++i) {
        const double less = i < column || cells == nullptr ? 0.0 : -1.0 * cells[i - column];
        panel.at(i, lane) = i == column ? 1.0 + less : less;
      }
    }
    panel.apply(order, done, order.size());
    for (int lane = 0; lane < used; ++lane) {
      double* column = target.column(first + lane);
      for (int i = 0; i < rows; ++i) column[i] = panel.at(i, lane);
    }
  }
}

}  // namespace kav::reflectors
