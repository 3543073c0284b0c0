#include "support/corpus.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

#include "kavoratb1c/algebra/covariance.h"
#include "kavoratb1c/algebra/logarithms.h"
#include "kavoratb1c/algebra/products.h"
#include "kavoratb1c/algebra/standardization.h"
#include "kavoratb1c/decomp/cholesky.h"
#include "kavoratb1c/decomp/eigen.h"
#include "kavoratb1c/decomp/elimination.h"
#include "kavoratb1c/decomp/lu.h"
#include "kavoratb1c/decomp/singular_values.h"
#include "kavoratb1c/missing/estimates.h"
#include "kavoratb1c/missing/nearest_neighbours.h"
#include "kavoratb1c/sort/sorts.h"
#include "kavoratb1c/stats/other_means.h"
#include "kavoratb1c/stats/quantiles.h"
#include "kavoratb1c/stats/ranks.h"
#include "kavoratb1c/stats/vector_extremes.h"
#include "kavoratb1c/stats/vector_moments.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "kavoratb1c/stats/vector_transforms.h"
#include "kavoratb1c/tables/copies.h"
#include "support/tables.h"

using namespace kav;

namespace {

using Hashes = std::map<std::string, std::uint64_t>;

constexpr int kRows = 997;
constexpr int kColumns = 7;

/// Statistics of cells with missing ones, exclusions and weights: each in its own order of operations.
std::uint64_t hashOfStatistics(const matrix& x, const matrix& kept, const matrix& w, const short* exclude) {
  BitHash hash;
  for (int n = 1; n <= kRows; n += 83) {
    for (int options = 0; options < 4; ++options) {
      const short unbiased = asFlag(options % 2 != 0), biasIsOne = asFlag(options / 2 != 0);
      double results[6];
      V_MeanVarSkewPKurtP(&x, n, &results[0], &results[1], &results[2], &results[3], &results[4], &results[5],
                          exclude, &w, unbiased, biasIsOne);
      for (double result : results) hash.add(result);
      V_MeanStdev(&x, n, &results[0], &results[1], exclude, &w, unbiased, biasIsOne);
      hash.add(results[0]).add(results[1]).add(V_Var(&x, n, exclude, &w, unbiased, biasIsOne));
      hash.add(CorrelPearson(&x, &w, n, exclude, &w, unbiased, biasIsOne));
    }
    const matrix positive(n, 1, 2.385);
    for (int i = 0; i < n; ++i) positive.values[i] = std::fabs(kept.values[i % 40]) + 1e-3;
    double gmean, gsd;
    V_GMeanGSD(&positive, n, exclude, &w, &gmean, &gsd);
    hash.add(gmean).add(gsd).add(V_HarmonicMean(&positive, n, exclude, &w));
    hash.add(V_Min(&kept, n, exclude)).add(V_Max(&kept, n, exclude));
    for (double p : {0.0, 0.1, 0.385, 0.5, 1.0}) {
      hash.add(V_Quantile(&kept, n, p)).add(V_QuantileMW(&x, n, exclude, &w, p));
    }
  }
  return hash.value();
}

std::uint64_t hashOfSorts(const matrix& kept) {
  BitHash hash;
  for (int n : {10, 300, kRows}) {
    matrix held(n, &kept), others(n, &kept), *keys = &held, *data = &others, *companion = nullptr;
    Made<matrix> ranks;
    V_GetRanks(keys, n * kColumns, ranks);
    SortQ(data, n, kColumns, 1, n, keys, companion, 0, kTrue, kTrue);
    hash.add(*data).add(*keys).add(*ranks);
    SortMatrixSeqQ(data, n, kColumns);
    SortQVector(keys, 0, 1, n * kColumns, kFalse);
    hash.add(*data).add(*keys);
    V_NormToVal(keys, n, 2.385);
    hash.add(*keys);
  }
  return hash.value();
}

/// Products, inverse and covariances, with whatever kernels the processor runs.
std::uint64_t hashOfAlgebra(const matrix& table, const matrix& kept, const matrix& w, const short* exclude) {
  BitHash hash;
  constexpr int kSize = 70;
  matrix square(kSize, kSize);
  for (int k = 0; k < kSize * kSize; ++k) {
    const double x = kept.values[k];
    square.values[k] = std::fabs(x) < 1e6 ? x : 0.385;
  }
  Made<matrix> product, covariance, pairwise, means, stdevs;
  matrix inverse(kSize, kSize);
  stdevs.held = new matrix(kSize, 1);  // without a container they are left out
  short singular = kFalse;
  M_ProductAB(&square, kSize, kSize, &square, kSize, product);
  hash.add(*product).add(square.inverse1(&inverse, singular, -1.0)).add(inverse);
  M_CovCorr(&table, kRows, kColumns, pairwise, kTrue, exclude, &w, kTrue, kFalse);
  hash.add(*pairwise);
  M_CovCorr(&square, kSize, 9, covariance, kFalse, nullptr, nullptr, kTrue, kFalse);
  M_MeanStDev(&square, kSize, kSize, means, stdevs, nullptr, nullptr, kTrue, kTrue, kFalse);
  hash.add(*covariance).add(*means).add(*stdevs);
  return hash.value();
}

/// Factors, solutions, singular values and eigenvalues of tables that blocks of every kernel have to be cut
/// from.
std::uint64_t hashOfDecompositions(const matrix& kept) {
  BitHash hash;
  for (int n : {7, 33, 70}) {
    matrix wide(n, n + 6), square(n, n), packed(n * (n + 1) / 2, 1);
    for (int k = 0; k < n * (n + 6); ++k) {
      const double x = kept.values[k];
      wide.values[k] = std::fabs(x) < 1e6 ? x : 0.385;
    }
    Made<matrix> gram, l, values, vectors, index;
    M_ProductATrA(&wide, n, n + 6, gram);
    for (int i = 0, k = 0; i < n; ++i) {
      for (int j = 0; j <= i; ++j) packed.values[k++] = gram->getElement(i, j);
    }
    hash.add(M_CholDecomp(gram, n, l)).add(*l);
    hash.add(M_Eigen(gram, values, vectors, n, 1)).add(*values).add(*vectors);
    for (int k = 1; k <= n; ++k) hash.add(M_Sweep(&packed, n, k));
    hash.add(packed);
    matrix s(n + 6, 1, 0.0), u(n, n, 0.0), v(n + 6, n + 6, 0.0), right(n, 2, 2.385);
    std::copy_n(wide.values, n * n, square.values);
    short status;
    int info;
    hash.add(M_Determinant(&square, n, status)).add(status);
    matrix *factors = gram, *lu = &square;
    double parity;
    hash.add(M_Gauss(factors, n, 2, &right)).add(*factors).add(right);
    M_LUDecomp(lu, n, index, parity, status);
    hash.add(square).add(*index).add(parity).add(status);
    M_SVDecomp(&wide, n, n + 6, &s, &u, n, &v, n + 6, 21, info);
    hash.add(info).add(s).add(u).add(v).add(wide);
    M_Log10Matrix(&s, n, 1);
    hash.add(s);
  }
  return hash.value();
}

/// Estimates of missing cells; of labels that differ in their lengths.
std::uint64_t hashOfMissing(const matrix& table, const matrix& kept, const matrix& w, const short* exclude) {
  BitHash hash;
  const auto means = copyOf(table), numbers = copyOf(table), others = copyOf(kept);
  Smatrix labels(kRows, 3), modes(kRows, 3);
  Random random(4);
  for (int k = 0; k < 3 * kRows; ++k) labels.cells[k].assign(std::max(random.below(40) - 9, 0), u'x');
  EstimateRowsWithMissingMean(means.get(), kRows, kColumns, exclude, &w);
  EstimateRowsWithMissingModePred(&labels, kRows, &modes, kRows, 3, exclude, &w);
  EstimateRowsWithMissingNN(numbers.get(), kRows, 5, exclude, others.get(), 3, &labels, 3, &w);
  for (const Smatrix* texts : {&modes, &labels}) {
    for (int k = 0; k < 3 * kRows; ++k) hash.add(static_cast<double>(texts->cells[k].size()));
  }
  return hash.add(*means).add(*numbers).add(*others).value();
}

Hashes hashesOfCorpus() {
  const std::vector<double> cells = corpusCells(1, kRows * kColumns), weightCells = corpusCells(2, kRows);
  const matrix table(kRows, kColumns, cells.data(), false, 0, 0),
      kept(kRows, kColumns, cells.data(), true, 0, 0);
  const matrix weights(kRows, 1, weightCells.data(), false, 0, 0);
  std::vector<short> exclude(kRows);
  Random random(3);
  for (short& flag : exclude) flag = static_cast<short>(random.below(5) == 0 ? -1 : 0);

  Hashes hashes;
  hashes["construction"] = BitHash().add(table).add(kept).value();
  BitHash sums;
  for (int n = 0; n <= kRows + 3; n += 50) {
    std::vector<short> flags = exclude;
    flags.resize(kRows + 3);
    sums.add(V_Sum(&table, n, flags.data(), &weights)).add(V_Sum2(&kept, n));
    sums.add(V_Mean(&table, n, flags.data(), &weights)).add(V_Mean(&kept, n, flags.data(), &weights));
  }
  hashes["sums"] = sums.value();
  hashes["algebra"] = hashOfAlgebra(table, kept, weights, exclude.data());
  hashes["decompositions"] = hashOfDecompositions(kept);
  hashes["statistics"] = hashOfStatistics(table, kept, weights, exclude.data());
  hashes["missing"] = hashOfMissing(table, kept, weights, exclude.data());
  hashes["sorts"] = hashOfSorts(kept);
  matrix transposed(kColumns, kRows), stacked(kRows * kColumns, 1);
  table.transposeTo(&transposed);
  table.vectorizeTo(&stacked);
  Made<matrix> reversed;
  V_Reverse(&kept, kRows * kColumns, reversed);
  hashes["copies"] = BitHash().add(transposed).add(stacked).add(*reversed).value();
  return hashes;
}

const char* const kRecorded = KAV_TEST_DATA "/corpus_hashes.txt";

Hashes recordedHashes() {
  Hashes hashes;
  std::ifstream file(kRecorded);
  std::string topic;
  std::uint64_t hash;
  while (file >> topic >> std::hex >> hash) hashes[topic] = hash;
  return hashes;
}

void record(const Hashes& hashes) {
  std::ofstream file(kRecorded, std::ios::binary);
  for (const auto& [topic, hash] : hashes) file << topic << ' ' << std::hex << hash << '\n';
}

}  // namespace

// The hashes were recorded on one build and hold for all. A change that is meant to change bits records them
// anew: KAV_RECORD_CORPUS=1 native_tests --gtest_filter=Corpus.*
TEST(Corpus, GivesTheSameBitsOnEveryBuild) {
  const Hashes hashes = hashesOfCorpus();
  if (std::getenv("KAV_RECORD_CORPUS") != nullptr) record(hashes);
  EXPECT_EQ(hashes, recordedHashes());
}

TEST(Corpus, HashSeesEveryBit) {
  EXPECT_NE(BitHash().add(0.0).value(), BitHash().add(-0.0).value());
  EXPECT_NE(BitHash().add(1.0).add(2.0).value(), BitHash().add(2.0).add(1.0).value());
  EXPECT_EQ(BitHash().add(NAN).value(), BitHash().add(-NAN).value());
}
