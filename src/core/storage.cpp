#include "core/storage.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace storage {

namespace {

constexpr std::size_t kPerRow = sizeof(double);
constexpr std::size_t kPerColumn = 5 * sizeof(double) + sizeof(int);
constexpr std::size_t kPerCell = sizeof(double) + sizeof(bool);

/// Bytes of a block. No block is larger than half the address space, so pointer differences inside it are
/// defined.
std::size_t blockSize(const Sizes& sizes) {
  constexpr std::uint64_t limit = std::numeric_limits<std::ptrdiff_t>::max();
  const auto cells = static_cast<std::uint64_t>(sizes.cells());
  if (cells > limit / (2 * kPerCell)) throw std::bad_alloc();
  const std::uint64_t bytes = kSizesField + cells * kPerCell +
                              static_cast<std::uint64_t>(sizes.rows) * kPerRow +
                              static_cast<std::uint64_t>(sizes.columns) * kPerColumn;
  if (bytes > limit) throw std::bad_alloc();
  return static_cast<std::size_t>(bytes);
}

template <class T>
T* take(char*& at, std::int64_t count) {
  T* array = reinterpret_cast<T*>(at);
  at += static_cast<std::ptrdiff_t>(count) * static_cast<std::ptrdiff_t>(sizeof(T));
  return array;
}

}  // namespace

void allocate(matrix& m, matrix::Room room) {
  Sizes sizes{std::max(m.nX, 0), std::max(m.pX, 0), false};
  const std::size_t bytes = blockSize(sizes);
  sizes.borrowed = bytes <= room.bytes;
  auto* block = static_cast<char*>(sizes.borrowed ? room.memory : std::malloc(bytes));
  if (block == nullptr) throw std::bad_alloc();
  new (block) Sizes(sizes);

  char* at = block + kSizesField;
  m.values = take<double>(at, sizes.cells());
  m.weights = take<double>(at, sizes.rows);
  char* const zeroed = at;
  m.normu = take<double>(at, sizes.columns);
  m.norsigma = take<double>(at, sizes.columns);
  m.descmu = take<double>(at, sizes.columns);
  m.descsigma = take<double>(at, sizes.columns);
  m.weightcorr = take<double>(at, sizes.columns);
  m.counts = take<int>(at, sizes.columns);
  m.missing = take<bool>(at, sizes.cells());
  std::memset(zeroed, 0, static_cast<std::size_t>(block + bytes - zeroed));
}

void release(matrix& m) noexcept {
  if (!builtSizes(m).borrowed) std::free(reinterpret_cast<char*>(m.values) - kSizesField);
}

}  // namespace storage
