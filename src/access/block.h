// Access to the leading n x p block of a matrix, or the first n cells of a vector, at full speed and with the
// element accessors' rules: a read outside the container is -1.0, a write into a flagged cell is dropped, a
// write makes the cached statistics stale. A worker asks for its operands once and then loops over plain
// memory. Internal.
//
// Cell (i, j) of a block is at i + leadingDimension() * j. Where the block lies inside the container it is
// the container's own memory; otherwise it is a padded copy. A null container has no cells, so every read of
// it is outside.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

#include "access/screening.h"
#include "core/addressing.h"
#include "kavoratb1c/matrix.h"

namespace kav::block {

/// Whether cell (n - 1, p - 1), and with it the whole block, lies inside the container.
inline bool liesInside(const matrix* m, int n, int p) {
  return m != nullptr && addressing::isInside(*m, addressing::linearIndex(n - 1, p - 1, m->nX));
}

/// The cells of one array of a container, with a value for those outside.
///
/// @tparam T  double for values, bool for flags
template <class T>
class Reader {
 public:
  Reader(const Reader&) = delete;

  std::ptrdiff_t leadingDimension() const { return leadingDimension_; }
  const T* data() const { return cells_; }
  const T* column(std::ptrdiff_t j) const { return cells_ + leadingDimension_ * j; }

 protected:
  /// @param array  the container's array; looked at only inside the container
  Reader(const matrix* m, const T* array, int n, int p, T outside) {
    if (addressing::cellCount(n, p) == 0) return;
    if (m != nullptr && liesInside(m, n, p)) {
      cells_ = array;
      leadingDimension_ = m->nX;
    } else {
      pad(m, array, n, p, outside);
    }
  }

  const T* cells_ = nullptr;

 private:
  void pad(const matrix* m, const T* array, int n, int p, T outside) {
    const std::size_t count = addressing::elementsInMemory<T>(n, p);
    padded_ = std::make_unique_for_overwrite<T[]>(count);
    std::fill_n(padded_.get(), count, outside);
    const std::int64_t cells = m == nullptr ? 0 : addressing::cellCount(*m);
    for (int j = 0; j < p && cells > 0; ++j) {
      const std::int64_t begin = addressing::linearIndex(0, j, m->nX);
      const std::int64_t present = std::clamp<std::int64_t>(cells - begin, 0, n);
      std::copy_n(array + std::min(begin, cells), present, padded_.get() + addressing::linearIndex(0, j, n));
    }
    cells_ = padded_.get();
    leadingDimension_ = n;
  }

  std::ptrdiff_t leadingDimension_ = 0;
  std::unique_ptr<T[]> padded_;
};

/// The values of a block, as getElement reads them.
class Values : public Reader<double> {
 public:
  Values(const matrix* m, int n, int p = 1) : Reader(m, m == nullptr ? nullptr : m->values, n, p, kOutside) {}

  double operator[](std::ptrdiff_t k) const { return cells_[k]; }
};

/// The missing flags of a block, clear outside the container. Unlike getMissing they do not know the marker.
class Flags : public Reader<bool> {
 public:
  Flags(const matrix* m, int n, int p = 1) : Reader(m, m == nullptr ? nullptr : m->missing, n, p, false) {}

  bool operator[](std::ptrdiff_t k) const { return cells_[k]; }
};

/// Copies a block to memory of its own, column-major.
inline void copyTo(const Values& from, int n, int p, double* to) {
  for (int j = 0; j < p && n > 0; ++j) std::copy_n(from.column(j), n, to + std::ptrdiff_t{n} * j);
}

/// Whether writes to a block are plain: it lies inside the container, its columns do not overlap, and no cell
/// of it is flagged.
inline bool isPlain(const matrix* m, int n, int p) {
  if (!liesInside(m, n, p) || (n > m->nX && p != 1)) return false;
  for (int j = 0; j < p; ++j) {
    if (screening::anyFlagged(m->missing + addressing::linearIndex(0, j, m->nX), n)) return false;
  }
  return true;
}

/// A block to be written, as setElement writes it, once store() is called.
///
/// Where a cell is flagged or outside, or where n exceeds the container's rows so that columns overlap,
/// writes go to a buffer and from there through the element rule, column by column. The buffer starts with
/// what the block holds, so cells that are not written stay. Of cells that overlap the last in that order
/// counts, written or not.
class Target {
 public:
  /// @param knownPlain  true when writes to the block are known to be plain
  Target(matrix* m, int n, int p = 1, bool knownPlain = false) : container_(m), n_(n), p_(p) {
    if (addressing::cellCount(n, p) == 0) return;
    if (knownPlain || isPlain(m, n, p)) {
      data_ = m->values;
      leadingDimension_ = m->nX;
    } else {
      const Values before(m, n, p);
      buffer_.resize(addressing::elementsInMemory<double>(n, p));
      for (int j = 0; j < p; ++j) {
        std::copy_n(before.data() + before.leadingDimension() * j, n, buffer_.data() + std::ptrdiff_t{n} * j);
      }
      data_ = buffer_.data();
      leadingDimension_ = n;
    }
  }

  Target(const Target&) = delete;

  double* data() { return data_; }
  double* column(std::ptrdiff_t j) { return data_ + leadingDimension_ * j; }
  std::ptrdiff_t leadingDimension() const { return leadingDimension_; }
  double& operator[](std::ptrdiff_t k) { return data_[k]; }

  /// Puts the block into the container.
  void store() {
    if (data_ == nullptr || container_ == nullptr) return;
    if (buffer_.empty()) {
      container_->descValid = 0;
      return;
    }
    for (int j = 0; j < p_; ++j) {
      for (int i = 0; i < n_; ++i) {
        container_->setElement(i, j, buffer_[static_cast<std::size_t>(i + std::ptrdiff_t{n_} * j)]);
      }
    }
  }

 private:
  matrix* container_;
  int n_;
  int p_;
  double* data_ = nullptr;
  std::ptrdiff_t leadingDimension_ = 0;
  std::vector<double> buffer_;
};

}  // namespace kav::block
