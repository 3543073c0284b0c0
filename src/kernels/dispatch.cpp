// Which kernels run: chosen once, when the library is loaded, by what processor and system support.

#include "kernels/kernels.h"
#include "kernels/tiles.h"

namespace kernels {

// What each instruction set's sources define.
#define KAV_KERNELS(isa)                                                                            \
  namespace isa {                                                                                   \
  extern const int pairLanes, sides;                                                                \
  void product(const Product& p, double* scratch);                                                  \
  void transpose(const Transposition& t);                                                           \
  void columnMoments(const ColumnRows& rows);                                                       \
  void pairMoments(const PairRows& rows, std::ptrdiff_t a, std::ptrdiff_t b, const PairSums& sums); \
  void backSubstitute(const double* u, std::ptrdiff_t n, double* x);                                \
  }
KAV_KERNELS(sse2)
KAV_KERNELS(avx2)
KAV_KERNELS(avx512)
#undef KAV_KERNELS

namespace {

#define KAV_TABLE(name, isa)                                                                              \
  {                                                                                                       \
    name, isa::product, isa::transpose, isa::columnMoments, isa::pairLanes, isa::pairMoments, isa::sides, \
        isa::backSubstitute                                                                               \
  }
const Table kSse2 = KAV_TABLE("SSE2", sse2);
const Table kAvx2 = KAV_TABLE("AVX2", avx2);
const Table kAvx512 = KAV_TABLE("AVX-512", avx512);
#undef KAV_TABLE

struct Supported {
  Supported() {
    __builtin_cpu_init();
    if (__builtin_cpu_supports("avx2")) tables[count++] = &kAvx2;
    if (__builtin_cpu_supports("avx512f")) tables[count++] = &kAvx512;
  }

  const Table* tables[3] = {&kSse2};
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

}  // namespace kernels
