#include "decomp/rotations.h"

#include <algorithm>
#include <utility>

#include "numerics/plain_elements.h"
#include "numerics/scratch.h"

namespace kav::rotations {

Log::Log(const elements::Plain& cells, int rows, int columns)
    : cells_(cells),
      rows_(rows),
      columns_(columns),
      source_(static_cast<std::size_t>(columns)),
      negative_(source_.size()) {
  std::iota(source_.begin(), source_.end(), 0);
}

void Log::swapWithNext(int column) {
  const auto k = static_cast<std::size_t>(column);
  std::swap(source_[k], source_[k + 1]);
  std::swap(negative_[k], negative_[k + 1]);
}

void Log::flush() {
  const double* at = rotations_.data();
  for (kernels::RotationRun& run : runs_) {
    run.rotations = at;
    at += 2 * run.count;
  }
  const kernels::Table& kernel = kernels::best();
  const std::ptrdiff_t lanes = kernel.rotateLanes;
  Scratch<double> panel(static_cast<std::size_t>(lanes * columns_));
  for (int row = 0; row < rows_ && !runs_.empty(); row += kernel.rotateLanes) {
    const int used = std::min(kernel.rotateLanes, rows_ - row);
    for (std::ptrdiff_t j = 0; j < columns_; ++j) {
      std::copy_n(cells_.column(j) + row, used, panel.data() + lanes * j);
      std::fill(panel.data() + lanes * j + used, panel.data() + lanes * (j + 1), 0.0);
    }
    kernel.rotate(panel.data(), runs_.data(), static_cast<std::ptrdiff_t>(runs_.size()));
    for (std::ptrdiff_t j = 0; j < columns_; ++j) {
      std::copy_n(panel.data() + lanes * j, used, cells_.column(j) + row);
    }
  }
  runs_.clear();
  rotations_.clear();
}

void Log::finish() {
  flush();
  // Along each cycle of places; column k of the result comes from column source_[k].
  std::vector<double> first(static_cast<std::size_t>(rows_));
  std::vector<char> done(source_.size());
  for (std::size_t begin = 0; begin < source_.size(); ++begin) {
    if (done[begin] || source_[begin] == static_cast<int>(begin)) continue;
    std::copy_n(cells_.column(static_cast<std::ptrdiff_t>(begin)), rows_, first.data());
    std::size_t to = begin;
    for (; source_[to] != static_cast<int>(begin); to = static_cast<std::size_t>(source_[to])) {
      std::copy_n(cells_.column(source_[to]), rows_, cells_.column(static_cast<std::ptrdiff_t>(to)));
      done[to] = 1;
    }
    std::copy_n(first.data(), rows_, cells_.column(static_cast<std::ptrdiff_t>(to)));
    done[to] = 1;
  }
  for (std::ptrdiff_t j = 0; j < columns_; ++j) {
    if (!negative_[static_cast<std::size_t>(j)]) continue;
    double* column = cells_.column(j);
    for (int i = 0; i < rows_; ++i) column[i] = -1.0 * column[i];
  }
}

}  // namespace kav::rotations
