#include "core/storage.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace storage {

namespace {

constexpr std::size_t kPerColumn = 5 * sizeof(double) + sizeof(int);

/// Bytes of arrays added up. Throws std::bad_alloc beyond half the address space, so that pointer differences
/// inside a block are defined.
class Bytes {
 public:
  explicit Bytes(std::size_t bytes) : bytes_(bytes) {}

  Bytes& add(std::int64_t count, std::size_t size) {
    if (static_cast<std::uint64_t>(count) > (kLimit - bytes_) / size) throw std::bad_alloc();
    bytes_ += static_cast<std::size_t>(count) * size;
    return *this;
  }

  std::size_t get() const { return bytes_; }

 private:
  static constexpr std::size_t kLimit = std::numeric_limits<std::ptrdiff_t>::max();

  std::size_t bytes_;
};

/// Row weights with what keeps the values behind them aligned.
std::int64_t paddedRows(const Sizes& sizes) { return std::int64_t{sizes.rows} + sizes.rows % 2; }

template <class T>
T* take(char*& at, std::int64_t count) {
  T* array = reinterpret_cast<T*>(at);
  at += static_cast<std::ptrdiff_t>(count) * static_cast<std::ptrdiff_t>(sizeof(T));
  return array;
}

}  // namespace

void allocate(matrix& m, matrix::Room room, double* values) {
  const bool own = values == nullptr;
  const std::int64_t cells = addressing::cellCount(m);
  Sizes sizes{own ? std::max(m.nX, 0) : 0, std::max(m.pX, 0), false};
  const std::size_t bytes = Bytes(kSizesField)
                                .add(paddedRows(sizes), sizeof(double))
                                .add(own ? cells : 0, sizeof(double))
                                .add(sizes.columns, kPerColumn)
                                .add(cells, sizeof(bool))
                                .get();
  sizes.borrowed = bytes <= room.bytes;
  auto* block = static_cast<char*>(sizes.borrowed ? room.memory : std::malloc(bytes));
  if (block == nullptr) throw std::bad_alloc();
  new (block) Sizes(sizes);

  char* at = block + kSizesField;
  m.weights = take<double>(at, paddedRows(sizes));
  m.values = own ? take<double>(at, cells) : values;
  char* const zeroed = at;
  m.normu = take<double>(at, sizes.columns);
  m.norsigma = take<double>(at, sizes.columns);
  m.descmu = take<double>(at, sizes.columns);
  m.descsigma = take<double>(at, sizes.columns);
  m.weightcorr = take<double>(at, sizes.columns);
  m.counts = take<int>(at, sizes.columns);
  m.missing = take<bool>(at, cells);
  std::memset(zeroed, 0, static_cast<std::size_t>(block + bytes - zeroed));
}

void release(matrix& m) noexcept {
  if (!builtSizes(m).borrowed) std::free(reinterpret_cast<char*>(m.weights) - kSizesField);
}

}  // namespace storage
