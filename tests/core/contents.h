// What a container holds, for comparisons, and containers that share their arrays for a while.
#pragma once

#include <string>
#include <tuple>
#include <vector>

#include "core/addressing.h"
#include "kavoratb1c/matrix.h"
#include "support/bits.h"

using namespace kav;

template <class T>
std::vector<T> firstOf(const T* array, std::int64_t count) {
  return std::vector<T>(array, array + count);
}

inline std::vector<double> cellsOf(const matrix& m) { return firstOf(m.values, addressing::cellCount(m)); }

/// '1' for every flagged cell, '0' for the others.
inline std::string flagsOf(const matrix& m) {
  std::string flags;
  for (std::int64_t k = 0; k < addressing::cellCount(m); ++k) flags += m.missing[k] ? '1' : '0';
  return flags;
}

/// Whether m has the shape and, bit for bit, the cells.
inline testing::AssertionResult holds(const matrix& m, int rows, int columns,
                                      const std::vector<double>& cells) {
  if (m.nX != rows || m.pX != columns) return testing::AssertionFailure() << m.nX << " x " << m.pX;
  return bits::equal(cellsOf(m), cells);
}

inline auto arraysOf(matrix& m) {
  return std::tie(m.values, m.missing, m.weights, m.counts, m.weightcorr, m.descmu, m.descsigma, m.normu,
                  m.norsigma);
}

/// A result that a worker makes or makes anew; owns what it ends with.
template <class Container>
struct Made {
  Made() = default;
  Made(const Made&) = delete;
  ~Made() { delete held; }

  operator Container*&() { return held; }
  Container& operator*() const { return *held; }
  Container* operator->() const { return held; }

  Container* held = nullptr;
};

/// Assigns source to target and, in the end, gives target back the arrays that it held, so that both can be
/// destroyed and nothing leaks.
class Sharing {
 public:
  Sharing(matrix& target, const matrix& source) : target_(target), held_(arraysOf(target)) {
    target = source;
  }
  Sharing(const Sharing&) = delete;
  ~Sharing() { arraysOf(target_) = held_; }

 private:
  matrix& target_;
  std::tuple<double*, bool*, double*, int*, double*, double*, double*, double*, double*> held_;
};
