// Co-moments of one column with several others, each pair over the rows where both are present. Compiled once
// for each instruction set, as product.cpp is.

#include "kernels/isa/functions.h"

namespace kav::kernels::KAV_ISA {

namespace {

inline Vector where(Bits mask, Vector x) {
  return reinterpret_cast<Vector>(mask & reinterpret_cast<Bits>(x));
}

}  // namespace

void pairMoments(const PairRows& rows, std::ptrdiff_t a, std::ptrdiff_t b, const PairSums& sums) {
  Vector total[kPairVectors], count[kPairVectors], products[kPairVectors], meanA[kPairVectors],
      meanB[kPairVectors];
  for (Index v = 0; v < kPairVectors; ++v) {
    const Index at = b + v * kLanes;
    total[v] = load(sums.total + at);
    count[v] = load(sums.count + at);
    products[v] = load(sums.products + at);
    meanA[v] = load(sums.meanA + at);
    meanB[v] = load(sums.meanB + at);
  }
  const Vector one = spread(1.0);
  for (Index r = 0; r < rows.count; ++r) {
    const Index row = rows.stride * rows.rows[r];
    const double weight = rows.weights[r];
    const Vector w = spread(weight), x = spread(rows.x[row + a]);
    const bool squareIsItself = weight * weight == weight;
    for (Index v = 0; v < kPairVectors; ++v) {
      const Index at = row + b + v * kLanes;
      const Bits present = *reinterpret_cast<const Bits*>(rows.present + at);
      total[v] += where(present, w);
      count[v] += where(present, one);
      const Vector ofMean = w / total[v];
      const Vector quotient = squareIsItself ? ofMean : (w * w) / total[v];
      // In the first row of a pair exactly 0.0.
      const Vector ofSquare = where(~reinterpret_cast<Bits>(total[v] == w), w - quotient);
      const Vector dA = x - meanA[v], dB = load(rows.x + at) - meanB[v];
      products[v] += where(present, ofSquare * dB * dA);
      meanA[v] += where(present, ofMean * dA);
      meanB[v] += where(present, ofMean * dB);
    }
  }
  for (Index v = 0; v < kPairVectors; ++v) {
    const Index at = b + v * kLanes;
    store(sums.total + at, total[v]);
    store(sums.count + at, count[v]);
    store(sums.products + at, products[v]);
    store(sums.meanA + at, meanA[v]);
    store(sums.meanB + at, meanB[v]);
  }
}

}  // namespace kav::kernels::KAV_ISA
