// Access to the leading n x p block of a matrix, or the first n cells of a vector, at full speed and with the
// element accessors' rules: a read outside the container is -1.0, a write into a flagged cell is dropped, a
// write makes the cached statistics stale. A worker asks for its operands once and then loops over plain
// memory. Internal.
//
// Cell (i, j) of a block is at i + stride() * j. Where the block lies inside the container it is the
// container's own memory; otherwise it is a padded copy. A null container has no cells, so every read of it
// is outside.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "core/addressing.h"
#include "core/matrix.h"
#include "core/screening.h"

namespace block {

/// Whether cell (n - 1, p - 1), and with it the whole block, lies inside the container.
inline bool liesInside(const matrix* m, int n, int p) {
  return m != nullptr && addressing::isInside(*m, addressing::linearIndex(n - 1, p - 1, m->nX));
}

/// The cells of one array of a container, with a value for those outside.
///
/// @tparam T      double for values, char for flags (no vector of bool: kernels want addresses)
template <class T>
class Reader {
 public:
  Reader(const Reader&) = delete;

  std::ptrdiff_t stride() const { return stride_; }
  const T* data() const { return cells_; }
  const T* column(std::ptrdiff_t j) const { return cells_ + stride_ * j; }

 protected:
  /// @param array  the container's array; looked at only inside the container
  Reader(const matrix* m, const T* array, int n, int p, T outside) {
    if (addressing::cellCount(n, p) == 0) return;
    if (m != nullptr && liesInside(m, n, p)) {
      cells_ = array;
      stride_ = m->nX;
    } else {
      pad(m, array, n, p, outside);
    }
  }

  const T* cells_ = nullptr;

 private:
  void pad(const matrix* m, const T* array, int n, int p, T outside) {
    padded_.assign(addressing::elementsInMemory<T>(n, p), outside);
    const std::int64_t cells = m == nullptr ? 0 : addressing::cellCount(*m);
    for (int j = 0; j < p && cells > 0; ++j) {
      const std::int64_t begin = addressing::linearIndex(0, j, m->nX);
      const std::int64_t present = std::clamp<std::int64_t>(cells - begin, 0, n);
      std::copy_n(array + std::min(begin, cells), present, padded_.data() + addressing::linearIndex(0, j, n));
    }
    cells_ = padded_.data();
    stride_ = n;
  }

  std::ptrdiff_t stride_ = 0;
  std::vector<T> padded_;
};

/// The values of a block, as getElement reads them.
class Values : public Reader<double> {
 public:
  Values(const matrix* m, int n, int p = 1) : Reader(m, m == nullptr ? nullptr : m->values, n, p, kOutside) {}

  double operator[](std::ptrdiff_t k) const { return cells_[k]; }
};

/// The missing flags of a block, clear outside the container. Unlike getMissing they do not know the marker.
class Flags : public Reader<char> {
  static_assert(sizeof(bool) == sizeof(char));

 public:
  Flags(const matrix* m, int n, int p = 1)
      : Reader(m, m == nullptr ? nullptr : reinterpret_cast<const char*>(m->missing), n, p, 0) {}

  bool operator[](std::ptrdiff_t k) const { return cells_[k] != 0; }
};

/// Copies a block to memory of its own, column after column.
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
/// writes go to a buffer and from there through the element rule, column after column. The buffer starts with
/// what the block holds, so cells that are not written stay. Of cells that overlap the last in that order
/// counts, written or not.
class Target {
 public:
  Target(matrix* m, int n, int p = 1) : container_(m), n_(n), p_(p) {
    if (addressing::cellCount(n, p) == 0) return;
    if (isPlain(m, n, p)) {
      data_ = m->values;
      stride_ = m->nX;
    } else {
      const Values before(m, n, p);
      buffer_.resize(addressing::elementsInMemory<double>(n, p));
      for (int j = 0; j < p; ++j) {
        std::copy_n(before.data() + before.stride() * j, n, buffer_.data() + std::ptrdiff_t{n} * j);
      }
      data_ = buffer_.data();
      stride_ = n;
    }
  }

  Target(const Target&) = delete;

  double* data() { return data_; }
  double* column(std::ptrdiff_t j) { return data_ + stride_ * j; }
  std::ptrdiff_t stride() const { return stride_; }
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
  std::ptrdiff_t stride_ = 0;
  std::vector<double> buffer_;
};

}  // namespace block
