#include "kavoratb1c/algebra/covariance.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "access/results.h"
#include "access/screening.h"
#include "access/taking_part.h"
#include "algebra/column_correlations.h"
#include "algebra/dense.h"
#include "algebra/shared_rows.h"
#include "numerics/moments.h"
#include "numerics/plain_elements.h"
#include "numerics/scalar.h"
#include "numerics/thresholds.h"

using namespace kav;

using moments::Denominator;

namespace {

/// A pair's co-moment by its denominator; the marker without a row.
double covarianceOf(double total, double count, double products, const Denominator& denominator) {
  return count == 0.0 ? kMissing : products / denominator.of(total, count);
}

/// Columns of a table, or of several, and which of their cells are missing.
class Cells {
 public:
  Cells(const matrix* a, int n, int p) : table_(std::in_place, a, n, p), flags_(a, n, p) {}

  /// Columns of n cells without flags.
  Cells(const std::vector<const double*>& columns, int n)
      : columns_(&columns),
        flags_(nullptr, 0, 0),
        none_(std::make_unique<bool[]>(static_cast<std::size_t>(n))) {}

  const double* column(int j) const {
    return columns_ == nullptr ? table_->column(j) : (*columns_)[static_cast<std::size_t>(j)];
  }
  const bool* flags(int j) const { return columns_ == nullptr ? flags_.column(j) : none_.get(); }
  usable::Present present(int j) const { return {column(j), flags(j)}; }

 private:
  std::optional<block::Values> table_;
  const std::vector<const double*>* columns_ = nullptr;
  block::Flags flags_;
  std::unique_ptr<bool[]> none_;
};

/// The rows that take part, in order, with their weights.
struct Rows {
  Rows(int n, const short* rowFlags, const matrix* weights) {
    usable::forEachTakingPart(n, usable::NotExcludedIfGiven(rowFlags), usable::RowWeights(weights, n),
                              [&](int i, double w) {
                                row.push_back(i);
                                weight.push_back(w);
                              });
  }

  std::vector<int> row;
  std::vector<double> weight;
};

double covarianceOf(const Rows& rows, const Cells& tableA, int a, const Cells& tableB, int b,
                    const Denominator& denominator) {
  const usable::Present x = tableA.present(a), y = tableB.present(b);
  moments::PairMoments m;
  for (std::size_t r = 0; r < rows.row.size(); ++r) {
    const int i = rows.row[r];
    if (x(i) && y(i)) m.add(x.x[i], y.x[i], rows.weight[r]);
  }
  return covarianceOf(m.total(), m.count(), m.products(), denominator);
}

/// The upper triangle of a matrix to be computed.
using Triangle = elements::Plain;

/// Columns padded so that every kernel's lanes fit.
std::ptrdiff_t paddedToLanes(int p) {
  return (std::ptrdiff_t{p} + kernels::kMostLanes - 1) / kernels::kMostLanes * kernels::kMostLanes;
}

/// Co-moments of all columns of a table without a missing cell in its rows: their means do not depend on the
/// partner, so deviations are computed once for each column, and all sums are one matrix product.
///
/// @param c  upper triangle of p columns, out
/// @return the sum of the weights
double completeCoMoments(shared_rows::RowBlocks& rows, const Cells& cells, int p, const Triangle& c,
                         double* means) {
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
                              c.column(0),
                              c.leadingDimension(),
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

  /// Of columns a and b, a not above b: sum of weights, rows, sum of products, mean of a.
  double total(int a, int b) const { return at(a, b)[0]; }
  double count(int a, int b) const { return at(a, b)[stride_]; }
  double products(int a, int b) const { return at(a, b)[2 * stride_]; }
  double meanOf(int a) const { return at(a, a)[3 * stride_]; }

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

  const double* at(int a, int b) const { return sums_.data() + 5 * stride_ * a + b; }

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

/// Covariances into the upper triangle, the marker for a pair without a row.
ColumnStatistics covariances(const Cells& cells, int n, int p, const short* rowFlags, const matrix* weights,
                             const Denominator& denominator, const Triangle& c) {
  ColumnStatistics s(p);
  if (isComplete(cells, n, p)) {
    shared_rows::RowBlocks rows(n, rowFlags, weights);
    const double total = completeCoMoments(rows, cells, p, c, s.means.data());
    if (rows.used > 0) {
      std::fill(s.divisors.begin(), s.divisors.end(), denominator.of(total, rows.used));
      for (int b = 0; b < p; ++b) {
        for (int a = 0; a <= b; ++a) c.set(a, b, c(a, b) / s.divisors[0]);
        s.variances[static_cast<std::size_t>(b)] = c(b, b);
      }
      return s;
    }
  }
  const PairwiseCoMoments m(cells, n, p, rowFlags, weights);
  for (int a = 0; a < p; ++a) {
    const auto k = static_cast<std::size_t>(a);
    for (int b = a; b < p; ++b) {
      c.set(a, b, covarianceOf(m.total(a, b), m.count(a, b), m.products(a, b), denominator));
    }
    s.means[k] = m.count(a, a) == 0.0 ? kMissing : m.meanOf(a);
    s.variances[k] = c(a, a);
    s.divisors[k] = denominator.of(m.total(a, a), m.count(a, a));
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
void toCorrelations(const Triangle& c, int p) {
  std::vector<double> variances(static_cast<std::size_t>(p));
  for (int j = 0; j < p; ++j) variances[static_cast<std::size_t>(j)] = c(j, j);
  for (int b = 0; b < p; ++b) {
    for (int a = 0; a <= b; ++a) {
      const auto i = static_cast<std::size_t>(a), j = static_cast<std::size_t>(b);
      c.set(a, b, correlationOf(c(a, b), variances[i], variances[j], a == b));
    }
  }
}

/// Covariances or correlations into a refilled result; cells with the marker come out flagged, holding it.
ColumnStatistics covCorr(const Cells& cells, int n, int p, matrix*& result, short correlation,
                         const short* rowFlags, const matrix* weights, const Denominator& denominator) {
  ColumnStatistics s(p);
  results::refilled(result, p, p, 1, [&](block::Target& target) {
    const Triangle c(target.data(), target.leadingDimension());
    s = covariances(cells, n, p, rowFlags, weights, denominator, c);
    if (correlation != 0) toCorrelations(c, p);
    for (int b = 0; b < p; ++b) {
      for (int a = 0; a < b; ++a) c.set(b, a, c(a, b));
    }
  });
  results::flagMarkers(*result);
  return s;
}

void giveStatistics(const ColumnStatistics& s, int p, matrix*& means, matrix*& stdevs, matrix*& variances) {
  for (matrix** vector : {&means, &stdevs, &variances}) results::refill(*vector, p, 1);
  for (int j = 0; j < p; ++j) {
    const auto k = static_cast<std::size_t>(j);
    const double variance = s.variances[k];
    const bool known = !isMarker(variance) && !(s.divisors[k] <= 0.0);
    results::putOrFlag(means, j, s.means[k]);
    results::putOrFlag(stdevs, j, known ? scalar::sqr(variance) : kMissing);
    results::putOrFlag(variances, j, known ? variance : kMissing);
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
    results::fillInto(a, n, p, [&](int j) {
      return [x = cells.column(j), centre = centres[j], sd = scales[j], standardize](int i) {
        const double d = x[i] - centre;
        if (standardize != kTrue) return d;
        return sd > 0.0 ? d / sd : 0.0;
      };
    });
  }
  return 0;
}

ColumnCorrelations::ColumnCorrelations(const std::vector<const double*>& columns, int n,
                                       const matrix* weights)
    : ColumnCorrelations(static_cast<int>(columns.size())) {
  const auto p = static_cast<int>(columns.size());
  matrix *r = &correlations, *m = &means, *sd = &deviations, *v = &variances;
  const ColumnStatistics s =
      covCorr(Cells(columns, n), n, p, r, kTrue, nullptr, weights, Denominator(kTrue, kTrue));
  giveStatistics(s, p, m, sd, v);
}

void M_CorrMatMat(const matrix* a, int n, int p1, const matrix* b, int p2, matrix*& result,
                  const short* rowFlags, const matrix* weights, short correlation, short determination,
                  short unbiased, short frequencyWeights) {
  const Denominator denominator(unbiased, frequencyWeights);
  results::refilled(result, p1, p2, 1, [&](block::Target& target) {
    const Rows rows(n, rowFlags, weights);
    const Cells left(a, n, p1), right(b, n, p2);
    const auto variancesOf = [&](const Cells& cells, int p) {
      std::vector<double> variances;
      variances.reserve(static_cast<std::size_t>(p));
      for (int j = 0; j < p; ++j) variances.push_back(covarianceOf(rows, cells, j, cells, j, denominator));
      return variances;
    };
    const bool scaled = correlation != 0 || determination != 0;
    const std::vector<double> variancesA = variancesOf(left, scaled ? p1 : 0),
                              variancesB = variancesOf(right, scaled ? p2 : 0);
    for (int j = 0; j < p2; ++j) {
      for (int i = 0; i < p1; ++i) {
        double& cell = target.column(j)[i];
        cell = covarianceOf(rows, left, i, right, j, denominator);
        if (!scaled) continue;
        cell = correlationOf(cell, variancesA[static_cast<std::size_t>(i)],
                             variancesB[static_cast<std::size_t>(j)], false);
        if (determination != 0 && !isMarker(cell)) cell *= cell;
      }
    }
  });
  results::flagMarkers(*result);
}

void M_CorrMatFromCovMat(const matrix* covariances, int p, matrix*& result) {
  results::refilled(result, p, p, 1, [&](block::Target& target) {
    const block::Values cells(covariances, p, p);
    const auto at = [&](int i, int j) { return cells.column(j)[i]; };
    for (int j = 0; j < p; ++j) {
      for (int i = 0; i < p; ++i) target.column(j)[i] = correlationOf(at(i, j), at(i, i), at(j, j), i == j);
    }
  });
  results::flagMarkers(*result);
}

void M_Inertie_W(const matrix* a, int n, int p, const matrix* weights, const matrix* classes,
                 double whichClass, matrix*& result) {
  if (!results::haveCellsOrRefill(result, p, p, n)) return;
  const Rows rows(n, nullptr, weights);
  const block::Values cells(a, n, p), classOf(classes, classes == nullptr ? 0 : n);
  results::refill(result, p, p);
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
  results::into(result, p, p, [&](block::Target& target) {
    dense::multiplySymmetric({kept.values, n, 1}, p, count, target, {factors.data(), 1});
  });
}
