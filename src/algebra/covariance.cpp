#include "algebra/covariance.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "algebra/column_correlations.h"
#include "algebra/dense.h"
#include "algebra/result_blocks.h"
#include "algebra/shared_rows.h"
#include "core/moments.h"
#include "core/screening.h"
#include "core/thresholds.h"
#include "platform/scalar.h"
#include "stats/usable.h"

using moments::Denominator;

namespace {

/// A pair's co-moment and what its denominator needs.
struct CoMoment {
  double total = 0.0;
  double count = 0.0;
  double products = 0.0;
  double meanA = 0.0;

  /// The marker without a row.
  double over(const Denominator& denominator) const {
    return count == 0.0 ? kMissing : products / denominator.of(total, count);
  }
};

/// Columns of a table, or of several, and which of their cells are missing.
class Cells {
 public:
  Cells(const matrix* a, int n, int p) : table_(std::in_place, a, n, p), flags_(a, n, p) {}

  /// Columns of n cells without flags.
  Cells(const std::vector<const double*>& columns, int n)
      : columns_(&columns), flags_(nullptr, 0, 0), none_(static_cast<std::size_t>(n)) {}

  const double* column(int j) const {
    return columns_ == nullptr ? table_->column(j) : (*columns_)[static_cast<std::size_t>(j)];
  }
  usable::Present present(int j) const { return {column(j), flagsOf(j)}; }
  const bool* flags(int j) const { return reinterpret_cast<const bool*>(flagsOf(j)); }

 private:
  const char* flagsOf(int j) const { return columns_ == nullptr ? flags_.column(j) : none_.data(); }

  std::optional<block::Values> table_;
  const std::vector<const double*>* columns_ = nullptr;
  block::Flags flags_;
  std::vector<char> none_;
};

/// The rows that may take part, in order, with their weights.
struct Rows {
  Rows(int n, const short* rowFlags, const matrix* weights) {
    const block::Values w(weights, weights == nullptr ? 0 : n);
    usable::forEach(n, usable::NotExcludedIfGiven(rowFlags), [&](int i) {
      const double own = weights == nullptr ? 1.0 : w[i];
      if (own == 0.0) return;
      row.push_back(i);
      weight.push_back(own);
    });
  }

  std::vector<int> row;
  std::vector<double> weight;
};

CoMoment coMoment(const Rows& rows, const Cells& tableA, int a, const Cells& tableB, int b) {
  const double* x = tableA.column(a);
  const double* y = tableB.column(b);
  const usable::Present presentA = tableA.present(a), presentB = tableB.present(b);
  CoMoment m;
  double meanB = 0.0;
  for (std::size_t r = 0; r < rows.row.size(); ++r) {
    const int i = rows.row[r];
    if (!presentA(i) || !presentB(i)) continue;
    const double w = rows.weight[r];
    m.total += w;
    m.count += 1.0;
    const moments::Share share(w, m.total);
    const double dA = x[i] - m.meanA;
    const double dB = y[i] - meanB;
    m.products += share.ofSquare * dB * dA;
    m.meanA += share.ofMean * dA;
    meanB += share.ofMean * dB;
  }
  return m;
}

/// Columns padded so that every kernel's lanes fit.
std::ptrdiff_t paddedToLanes(int p) {
  return (std::ptrdiff_t{p} + kernels::kMostLanes - 1) / kernels::kMostLanes * kernels::kMostLanes;
}

/// Covariances of all columns of a table without a missing cell in its rows: their means do not depend on the
/// partner, so deviations are computed once for each column, and all sums are one product of tables.
///
/// @return the sum of the weights
double completeCoMoments(shared_rows::RowBlocks& rows, const Cells& cells, int p, double* c, double* means) {
  const std::ptrdiff_t stride = paddedToLanes(p);
  Scratch<double> deviations(static_cast<std::size_t>(stride * shared_rows::kBlock + kernels::kMostLanes)),
      weighted(deviations.size());
  kernels::Product product = {{deviations.data(), 1, stride},
                              {weighted.data(), stride, 1},
                              nullptr,
                              0,
                              p,
                              p,
                              shared_rows::kBlock,
                              c,
                              p,
                              true,
                              false,
                              true};
  shared_rows::Columns columns(p);
  while (rows.next()) {
    columns.add(rows, [&](int j) { return cells.column(j); }, {deviations.data(), weighted.data(), stride});
    product.depth = rows.count();
    kernels::best().product(product, nullptr);
    product.continued = true;
  }
  for (int j = 0; j < p; ++j) means[j] = columns.mean(j);
  return rows.total();
}

/// Co-moments of all pairs of columns, each over the rows that the two share, several pairs side by side.
class PairwiseCoMoments {
 public:
  PairwiseCoMoments(const Cells& cells, int n, int p, const short* rowFlags, const matrix* weights)
      : p_(p),
        stride_(paddedToLanes(p) + kernels::kMostLanes),
        sums_(static_cast<std::size_t>(5 * stride_ * p)),
        x_(static_cast<std::size_t>(stride_ * shared_rows::kBlock)),
        present_(x_.size()) {
    shared_rows::RowBlocks rows(n, rowFlags, weights);
    while (rows.next()) add(rows, cells);
  }

  CoMoment operator()(int a, int b) const {
    const double* sums = sums_.data() + 5 * stride_ * a + b;
    return {sums[0], sums[stride_], sums[2 * stride_], sums[3 * stride_]};
  }

 private:
  void add(const shared_rows::RowBlocks& rows, const Cells& cells) {
    for (int j = 0; j < p_; ++j) {
      const usable::Present present = cells.present(j);
      for (int r = 0; r < rows.count(); ++r) {
        const int i = rows.rows()[r];
        const std::uint64_t there = present(i) ? ~std::uint64_t{0} : 0;
        const auto at = static_cast<std::size_t>(stride_ * r + j);
        present_[at] = there;
        x_[at] = there != 0 ? present.x[i] : 0.0;
      }
    }
    const kernels::Table& kernel = kernels::best();
    int present[shared_rows::kBlock];
    double weights[shared_rows::kBlock];
    for (int a = 0; a < p_; ++a) {
      int count = 0;
      for (int r = 0; r < rows.count(); ++r) {
        if (present_[static_cast<std::size_t>(stride_ * r + a)] == 0) continue;
        present[count] = r;
        weights[count++] = rows.weights()[r];
      }
      double* sums = sums_.data() + 5 * stride_ * a;
      const kernels::PairRows pairs = {x_.data(), present_.data(), stride_, present, weights, count};
      for (int b = a / kFewLanes * kFewLanes; b < p_; b += kernel.pairLanes) {
        kernel.pairMoments(
            pairs, a, b, {sums, sums + stride_, sums + 2 * stride_, sums + 3 * stride_, sums + 4 * stride_});
      }
    }
  }

  /// Partners begin with a multiple of these, few of them before the column itself.
  static constexpr int kFewLanes = 4;

  int p_;
  std::ptrdiff_t stride_;
  std::vector<double> sums_, x_;
  std::vector<std::uint64_t> present_;
};

bool isComplete(const Cells& cells, int n, int p) {
  for (int j = 0; j < p; ++j) {
    if (screening::anyMissing(cells.column(j), cells.flags(j), n)) return false;
  }
  return true;
}

/// Means, variances and their divisors, of each column over its own rows; the marker without a row.
struct ColumnStatistics {
  explicit ColumnStatistics(int p) : means(sizeOf(p)), variances(sizeOf(p)), divisors(sizeOf(p)) {}

  static std::size_t sizeOf(int p) { return static_cast<std::size_t>(std::max(p, 0)); }

  std::vector<double> means, variances, divisors;
};

/// Covariances of the upper triangle, the marker for a pair without a row.
ColumnStatistics covariances(const Cells& cells, int n, int p, const short* rowFlags, const matrix* weights,
                             const Denominator& denominator, double* c) {
  ColumnStatistics s(p);
  if (isComplete(cells, n, p)) {
    shared_rows::RowBlocks rows(n, rowFlags, weights);
    const double total = completeCoMoments(rows, cells, p, c, s.means.data());
    if (rows.used > 0) {
      std::fill(s.divisors.begin(), s.divisors.end(), denominator.of(total, rows.used));
      for (int b = 0; b < p; ++b) {
        for (int i = 0; i <= b; ++i) c[i + std::ptrdiff_t{p} * b] /= s.divisors[0];
        s.variances[static_cast<std::size_t>(b)] = c[b + std::ptrdiff_t{p} * b];
      }
      return s;
    }
  }
  const PairwiseCoMoments coMoments(cells, n, p, rowFlags, weights);
  for (int i = 0; i < p; ++i) {
    const auto k = static_cast<std::size_t>(i);
    for (int b = i; b < p; ++b) {
      const CoMoment m = coMoments(i, b);
      c[i + std::ptrdiff_t{p} * b] = m.over(denominator);
      if (i != b) continue;
      s.means[k] = m.count == 0.0 ? kMissing : m.meanA;
      s.variances[k] = m.over(denominator);
      s.divisors[k] = denominator.of(m.total, m.count);
    }
  }
  return s;
}

/// The rule of correlations; the marker goes through.
double correlationOf(double covariance, double varianceA, double varianceB, bool diagonal) {
  if (isMarker(covariance) || isMarker(varianceA) || isMarker(varianceB)) return kMissing;
  const double product = varianceA * varianceB;
  if (std::fabs(product) - kZero <= 0.0) return 0.0;
  return diagonal ? 1.0 : covariance / scalar::sqr(product);
}

/// Upper triangle of covariances to correlations.
void toCorrelations(double* c, int p) {
  std::vector<double> variances(static_cast<std::size_t>(p));
  for (int j = 0; j < p; ++j) variances[static_cast<std::size_t>(j)] = c[j + std::ptrdiff_t{p} * j];
  for (int b = 0; b < p; ++b) {
    for (int a = 0; a <= b; ++a) {
      double& cell = c[a + std::ptrdiff_t{p} * b];
      const auto i = static_cast<std::size_t>(a), j = static_cast<std::size_t>(b);
      cell = correlationOf(cell, variances[i], variances[j], a == b);
    }
  }
}

/// Puts a p x q table into a prepared result; cells with the marker come out flagged, holding it.
void storeFlagging(const double* c, int p, int q, matrix* target) {
  result::copyInto(target, p, q, c);
  for (int b = 0; b < q; ++b) {
    for (int a = 0; a < p; ++a) {
      if (isMarker(c[a + std::ptrdiff_t{p} * b])) target->setMissing(a, b, true);
    }
  }
}

/// Covariances or correlations into a prepared result.
ColumnStatistics covCorr(const Cells& cells, int n, int p, matrix*& target, short correlation,
                         const short* rowFlags, const matrix* weights, const Denominator& denominator) {
  matrix::matCheck(target, p, p, 0.0);
  if (p < 1) return ColumnStatistics(0);
  std::vector<double> c(addressing::elementsInMemory<double>(p, p));
  ColumnStatistics s = covariances(cells, n, p, rowFlags, weights, denominator, c.data());
  if (correlation != 0) toCorrelations(c.data(), p);
  for (int b = 0; b < p; ++b) {
    for (int i = 0; i < b; ++i) {
      c[static_cast<std::size_t>(b + std::ptrdiff_t{p} * i)] =
          c[static_cast<std::size_t>(i + std::ptrdiff_t{p} * b)];
    }
  }
  storeFlagging(c.data(), p, p, target);
  return s;
}

void put(matrix* vector, int j, double x) {
  if (isMarker(x)) {
    vector->setMissing(j, true);
  } else {
    vector->setElement(j, x);
  }
}

void giveStatistics(const ColumnStatistics& s, int p, matrix*& means, matrix*& stdevs, matrix*& variances) {
  for (matrix** vector : {&means, &stdevs, &variances}) matrix::matCheck(*vector, p, 1, 0.0);
  for (int j = 0; j < p; ++j) {
    const auto k = static_cast<std::size_t>(j);
    const double variance = s.variances[k];
    const bool known = !isMarker(variance) && !(s.divisors[k] <= 0.0);
    put(means, j, s.means[k]);
    put(stdevs, j, known ? scalar::sqr(variance) : kMissing);
    put(variances, j, known ? variance : kMissing);
  }
}

}  // namespace

int M_CovCorr(const matrix* a, int n, int p, matrix*& result, short correlation, const short* rowFlags,
              const matrix* weights, short unbiased, short frequencyWeights) {
  covCorr(Cells(a, n, p), n, p, result, correlation, rowFlags, weights,
          Denominator(unbiased, frequencyWeights));
  return 0;
}

int M_CovCorrAndMeanStDevVar(matrix*& a, int n, int p, matrix*& result, matrix*& means, matrix*& stdevs,
                             matrix*& variances, short correlation, const short* rowFlags,
                             const matrix* weights, short unbiased, short frequencyWeights, short centre,
                             short standardize) {
  const ColumnStatistics s = covCorr(Cells(a, n, p), n, p, result, correlation, rowFlags, weights,
                                     Denominator(unbiased, frequencyWeights));
  giveStatistics(s, p, means, stdevs, variances);
  if (centre == kTrue || standardize == kTrue) {
    const block::Values cells(a, n, p), centres(means, p), scales(stdevs, p);
    result::fillInto(a, n, p, [&](int j) {
      return [x = cells.column(j), centre = centres[j], sd = scales[j], standardize](int i) {
        const double d = x[i] - centre;
        if (standardize != kTrue) return d;
        return sd > 0.0 ? d / sd : 0.0;
      };
    });
  }
  return 0;
}

void correlationsOfColumns(const std::vector<const double*>& columns, int n, const matrix* weights,
                           matrix*& correlations, matrix*& means, matrix*& stdevs, matrix*& variances) {
  const auto p = static_cast<int>(columns.size());
  const ColumnStatistics s =
      covCorr(Cells(columns, n), n, p, correlations, kTrue, nullptr, weights, Denominator(kTrue, kTrue));
  giveStatistics(s, p, means, stdevs, variances);
}

void M_CorrMatMat(const matrix* a, int n, int p1, const matrix* b, int p2, matrix*& result,
                  const short* rowFlags, const matrix* weights, short correlation, short determination,
                  short unbiased, short frequencyWeights) {
  matrix::matCheck(result, p1, p2, 0.0);
  if (!result::hasCells(p1, p2)) return;
  const Denominator denominator(unbiased, frequencyWeights);
  const Rows rows(n, rowFlags, weights);
  const Cells left(a, n, p1), right(b, n, p2);
  const auto variancesOf = [&](const Cells& cells, int p) {
    std::vector<double> variances(static_cast<std::size_t>(p));
    for (int j = 0; j < p; ++j) {
      variances[static_cast<std::size_t>(j)] = coMoment(rows, cells, j, cells, j).over(denominator);
    }
    return variances;
  };
  const bool scaled = correlation != 0 || determination != 0;
  const std::vector<double> variancesA = variancesOf(left, scaled ? p1 : 0),
                            variancesB = variancesOf(right, scaled ? p2 : 0);
  std::vector<double> c(addressing::elementsInMemory<double>(p1, p2));
  for (int j = 0; j < p2; ++j) {
    for (int i = 0; i < p1; ++i) {
      double& cell = c[static_cast<std::size_t>(i + std::ptrdiff_t{p1} * j)];
      cell = coMoment(rows, left, i, right, j).over(denominator);
      if (!scaled) continue;
      cell = correlationOf(cell, variancesA[static_cast<std::size_t>(i)],
                           variancesB[static_cast<std::size_t>(j)], false);
      if (determination != 0 && !isMarker(cell)) cell *= cell;
    }
  }
  storeFlagging(c.data(), p1, p2, result);
}

void M_CorrMatFromCovMat(const matrix* covariances, int p, matrix*& result) {
  const block::Values cells(covariances, p, p);
  matrix::matCheck(result, p, p, 0.0);
  if (p < 1) return;
  const auto at = [&](int i, int j) { return cells.column(j)[i]; };
  std::vector<double> c;
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < p; ++i) c.push_back(correlationOf(at(i, j), at(i, i), at(j, j), i == j));
  }
  storeFlagging(c.data(), p, p, result);
}

void M_Inertie_W(const matrix* a, int n, int p, const matrix* weights, const matrix* classes,
                 double whichClass, matrix*& result) {
  if (!result::hasCellsOrIsPrepared(result, p, p, n)) return;
  const Rows rows(n, nullptr, weights);
  const block::Values cells(a, n, p), classOf(classes, classes == nullptr ? 0 : n);
  matrix::matCheck(result, p, p, 0.0);
  std::vector<double> factors;
  matrix kept(n, p);
  int count = 0;
  for (std::size_t r = 0; r < rows.row.size(); ++r) {
    const int i = rows.row[r];
    if (classes != nullptr && whichClass != -1.0 && classOf[i] != whichClass) continue;
    for (int j = 0; j < p; ++j) kept.values[count + std::ptrdiff_t{n} * j] = cells.column(j)[i];
    factors.push_back(rows.weight[r]);
    ++count;
  }
  if (count == 0) return;
  result::into(result, p, p, [&](block::Target& target) {
    dense::multiplySymmetric({kept.values, n, 1}, p, count, target, {factors.data(), 1});
  });
}

void M_EuclidDist2(const matrix* a, int n, int p, matrix*& distances, const matrix* weights, short byRows) {
  const int size = byRows != 0 ? n : p;
  const int depth = byRows != 0 ? p : n;
  if (!result::hasCellsOrIsPrepared(distances, size, size, depth)) return;
  const block::Values cells(a, n, p), w(weights, weights == nullptr ? 0 : depth);
  const std::ptrdiff_t along = byRows != 0 ? 1 : cells.stride(), across = byRows != 0 ? cells.stride() : 1;
  matrix::matCheck(distances, size, size, 0.0);
  result::into(distances, size, size, [&](block::Target& target) {
    for (int j = 0; j < size; ++j) {
      for (int i = 0; i <= j; ++i) {
        double sum = 0.0;
        for (int k = 0; k < depth; ++k) {
          const double d = cells[along * i + across * k] - cells[along * j + across * k];
          sum += (weights == nullptr ? 1.0 : w[k]) * (d * d);
        }
        target.column(j)[i] = target.column(i)[j] = sum;
      }
    }
  });
}

void M_TransformSimToDissim(matrix*& s, int p) {
  if (s == nullptr) return;
  const Cells cells(s, p, p);
  std::vector<double> d(addressing::elementsInMemory<double>(p, p));
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < j; ++i) {
      d[static_cast<std::size_t>(i + std::ptrdiff_t{p} * j)] =
          d[static_cast<std::size_t>(j + std::ptrdiff_t{p} * i)] =
              cells.present(i)(i) && cells.present(j)(i) ? cells.column(i)[i] - cells.column(j)[i] : kMissing;
    }
  }
  result::copyInto(s, p, p, d.data());
}

int M_CheckIfSimOrDissim(const matrix* t, int n, int apriori) {
  const Cells cells(t, n, n);
  const auto at = [&](int i, int j) { return cells.column(j)[i]; };
  if (n >= 1 && !isComplete(cells, n, n)) return -1;
  bool dissimilarities = true;
  bool similarities = true;
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) {
      dissimilarities = dissimilarities && (i == j ? at(i, j) == 0.0 : at(i, j) >= 0.0);
      similarities = similarities && at(i, j) <= at(i, i) && at(i, j) <= at(j, j);
    }
  }
  if (dissimilarities && similarities) return apriori;
  if (dissimilarities) return 0;
  return similarities ? 1 : -1;
}

void M_Symmetrize(matrix* t, int n, int type) {
  if (t == nullptr || type < 0 || type > 2 || n < 1) return;
  result::into(t, n, n, [&](block::Target& cells) {
    for (int j = 0; j < n; ++j) {
      for (int i = 0; i < j; ++i) {
        double& upper = cells.column(j)[i];
        double& lower = cells.column(i)[j];
        const bool missing = isMarker(upper) || isMarker(lower);
        if (type == 0) upper = lower = missing ? kMissing : (upper + lower) / 2.0;
        if (type == 1) lower = upper;
        if (type == 2) upper = lower;
      }
    }
  });
}
