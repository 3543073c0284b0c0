// Back substitution for several right-hand sides. Compiled once for each instruction set, as product.cpp is.

#include "kernels/isa/vectors.h"
#include "kernels/kernels.h"

namespace kernels::KAV_ISA {

namespace {

/// Enough sums beside each other to hide the latency of a subtraction.
constexpr int kVectors = KAV_VECTOR_BYTES == 16 && sizeof(void*) == 8 ? 8 : 4;

}  // namespace

extern const int sides;
const int sides = static_cast<int>(kVectors * kLanes);

void backSubstitute(const double* u, std::ptrdiff_t n, double* x) {
  for (std::ptrdiff_t i = n - 1; i >= 0; --i) {
    const double* factors = u + n * i;
    Vector* row = reinterpret_cast<Vector*>(x + sides * i);
    Vector sums[kVectors];
    for (int v = 0; v < kVectors; ++v) sums[v] = row[v];
    for (std::ptrdiff_t k = i + 1; k < n; ++k) {
      const Vector* known = reinterpret_cast<const Vector*>(x + sides * k);
      for (int v = 0; v < kVectors; ++v) sums[v] -= known[v] * factors[k];
    }
    for (int v = 0; v < kVectors; ++v) row[v] = sums[v] / factors[i];
  }
}

}  // namespace kernels::KAV_ISA
