#include "core/storage.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace kav::storage {

namespace {

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

/// Four-byte counts with what keeps the doubles behind them aligned as the allocator aligns.
std::int64_t paddedCounts(int columns) { return (std::int64_t{columns} + 3) / 4 * 4; }

/// Row weights, likewise.
std::int64_t paddedWeights(int rows) { return (std::int64_t{rows} + 1) / 2 * 2; }

template <class T>
T* take(char*& at, std::int64_t count) {
  T* array = reinterpret_cast<T*>(at);
  at += static_cast<std::ptrdiff_t>(count) * static_cast<std::ptrdiff_t>(sizeof(T));
  return array;
}

void allocate(matrix& m, Room room, double* values) {
  const bool own = values == nullptr;
  const std::int64_t cells = addressing::cellCount(m);
  const int columns = std::max(m.pX, 0);
  const int weightedRows = own || columns > 1 ? std::max(m.nX, 0) : 0;
  const std::size_t bytes = Bytes(kSizesField)
                                .add(paddedCounts(columns), sizeof(int))
                                .add(paddedWeights(weightedRows), sizeof(double))
                                .add(own ? cells : 0, sizeof(double))
                                .add(columns, 5 * sizeof(double))
                                .add(cells, sizeof(bool))
                                .get();
  const bool borrowed = bytes <= room.bytes;
  auto* block = static_cast<char*>(borrowed ? room.memory : std::malloc(bytes));
  if (block == nullptr) throw std::bad_alloc();
  new (block) Sizes{weightedRows, columns, own, borrowed};

  char* at = block + kSizesField;
  m.counts = take<int>(at, paddedCounts(columns));
  m.weights = take<double>(at, paddedWeights(weightedRows));
  m.values = own ? take<double>(at, cells) : values;
  char* const zeroed = at;
  m.normu = take<double>(at, columns);
  m.norsigma = take<double>(at, columns);
  m.descmu = take<double>(at, columns);
  m.descsigma = take<double>(at, columns);
  m.weightcorr = take<double>(at, columns);
  m.missing = take<bool>(at, cells);
  std::memset(zeroed, 0, static_cast<std::size_t>(block + bytes - zeroed));
  if (weightedRows == 0) m.weights = nullptr;
}

/// What all containers without rows and columns share: they have nothing to write to.
const SizesField kEmpty = {{0, 0, true, true}};

void shareEmpty(matrix& m) {
  auto* end = reinterpret_cast<char*>(const_cast<SizesField*>(&kEmpty)) + kSizesField;
  m.counts = reinterpret_cast<int*>(end);
  m.missing = reinterpret_cast<bool*>(end);
  m.weights = nullptr;
  m.values = m.normu = m.norsigma = m.descmu = m.descsigma = m.weightcorr = reinterpret_cast<double*>(end);
}

}  // namespace

void build(matrix& m, Room room, int rows, int columns, double* values) {
  m.nX = rows;
  m.pX = columns;
  m.normalized = m.descValid = 0;
  m.descMode = 0;
  m.sumOfWeights = std::max(rows, 0);
  if (rows < 1 && columns < 1 && values == nullptr) {
    shareEmpty(m);
    return;
  }
  allocate(m, room, values);
  const Sizes& built = builtSizes(m);
  std::fill_n(m.weights, built.rows, 1.0);
  std::fill_n(m.counts, built.columns, std::max(rows, 0));
  std::fill_n(m.weightcorr, built.columns, std::max(rows, 0) - 1.0);
}

void release(matrix& m) noexcept {
  if (!builtSizes(m).borrowed) std::free(reinterpret_cast<char*>(m.counts) - kSizesField);
}

}  // namespace kav::storage
