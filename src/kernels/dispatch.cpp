// Which kernels run: chosen once, when the library is loaded, by what processor and system support.

#include "kernels/kernels.h"
#include "kernels/tiles.h"

namespace kav::kernels {

namespace sse2 {
extern const Table table;
}
namespace avx2 {
extern const Table table;
}
namespace avx512 {
extern const Table table;
}

namespace {

struct Supported {
  Supported() {
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx2")) tables[count++] = &avx2::table;
    if (__builtin_cpu_supports("avx512f")) tables[count++] = &avx512::table;
  }

  const Table* tables[3] = {&sse2::table};
  int count = 1;
};

const Supported kSupported;

// Where vectors of 512 bits run as two halves they lose to those of 256 bits by a quarter.
const Table& choose() {
  const int last = kSupported.count - 1;
  return *kSupported.tables[last == 2 && !__builtin_cpu_is("intel") ? 1 : last];
}

const Table& kBest = choose();

}  // namespace

std::size_t productScratch(const Product& p) {
  if (isSmall(p) || p.sideBySide) return 0;
  const std::ptrdiff_t depth = p.depth < kBlockDepth ? p.depth : kBlockDepth;
  // Each cell of b twice, as the plainest kernel wants it, and its columns filled up to whole tiles.
  const std::ptrdiff_t columns = (p.columns < kBlockColumns ? p.columns : kBlockColumns) + kMostTileColumns;
  return static_cast<std::size_t>(depth * (kBlockRows + 2 * columns));
}

const Table* const* supported(int* count) {
  *count = kSupported.count;
  return kSupported.tables;
}

const Table& best() { return kBest; }

}  // namespace kav::kernels
