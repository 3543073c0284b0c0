#include "kavoratb1c/regression/least_squares.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <new>
#include <vector>

#include "access/block.h"
#include "access/results.h"
#include "algebra/column_correlations.h"
#include "algebra/dense.h"
#include "decomp/packed.h"
#include "kavoratb1c/algebra/standardization.h"
#include "kavoratb1c/stats/vector_sums.h"
#include "numerics/scalar.h"
#include "numerics/thresholds.h"
#include "regression/design.h"

using namespace kav;

namespace {

/// Rows whose fitted values are built side by side: they stay in the first-level cache.
constexpr int kRowsAtOnce = 1024;

/// Explanatory columns of a design. Throws std::bad_alloc where a table cannot have them and the response.
int designColumns(int p, int degree, short interactions) {
  std::int64_t columns = std::int64_t{p} * degree;
  if (degree > 1 && interactions == kTrue) columns += std::int64_t{p} * (p - 1) / 2;
  if (columns >= std::numeric_limits<int>::max()) throw std::bad_alloc();
  packed::cellsOf(static_cast<int>(columns) + 1);
  return static_cast<int>(columns);
}

/// Powers and products of the columns of x.
std::unique_ptr<matrix> expanded(const matrix* x, int n, int p, int degree, int columns) {
  auto design = std::make_unique<matrix>(n, columns);
  block::copyTo(block::Values(x, n, p), n, p, design->values);
  const auto column = [&](int j) { return design->values + std::ptrdiff_t{n} * j; };
  const auto multiply = [&](int to, int left, int right) {
    for (int i = 0; i < n; ++i) column(to)[i] = column(left)[i] * column(right)[i];
  };
  for (int j = p; j < p * degree; ++j) multiply(j, j - p, j % p);
  int product = p * degree;
  for (int i = 0; i < p && product < columns; ++i) {
    for (int j = i + 1; j < p; ++j) multiply(product++, i, j);
  }
  return design;
}

/// The columns of a design and, last, the response.
std::vector<const double*> columnsOf(const block::Values& x, int q, const block::Values& y) {
  std::vector<const double*> columns;
  columns.reserve(static_cast<std::size_t>(q) + 1);
  for (int j = 0; j < q; ++j) columns.push_back(x.column(j));
  columns.push_back(y.data());
  return columns;
}

/// The correlations of a design, the response last, and what leads back from them.
struct Standardized {
  Standardized(const block::Values& x, int n, int q, const block::Values& y, const matrix* weights,
               bool throughOrigin)
      : total(V_Sum2(weights, n)),
        variables(q + 1),
        of(throughOrigin ? ColumnCorrelations(variables)
                         : ColumnCorrelations(columnsOf(x, q, y), n, weights)) {
    if (!throughOrigin) return;
    matrix design(n, variables);
    block::copyTo(x, n, q, design.values);
    std::copy_n(y.data(), n, design.values + std::ptrdiff_t{n} * q);
    matrix *m = &of.means, *sd = &of.deviations, *v = &of.variances;
    M_MeanStDevVar(&design, n, variables, m, sd, v, nullptr, weights, kTrue, kTrue);
    aboutOrigin(design, weights);
  }

  /// Standard deviations, and all that follows from them, need a sum of weights above 1.
  bool isKnown() const { return total > 1.0; }

  double total;
  int variables;
  ColumnCorrelations of;

 private:
  /// Products about 0, but standard deviations about the means: this is meant.
  void aboutOrigin(const matrix& design, const matrix* weights) {
    const int n = design.nX;
    const block::Values rowWeights(weights, n);
    results::into(&of.correlations, variables, variables, [&](block::Target& target) {
      dense::multiplySymmetric({design.values, n, 1}, variables, n, target, dense::vectorScale(rowWeights));
      for (int b = 0; b < variables; ++b) {
        for (int a = 0; a < variables; ++a) {
          const double scale = of.deviations.values[a] * of.deviations.values[b];
          double& cell = target.column(b)[a];
          cell = scale <= kEpsilon ? 0.0 : cell / (total - 1.0) / scale;
        }
      }
    });
  }
};

class Fit {
 public:
  Fit(Standardized& design, int n, double tolerance)
      : design_(design), q_(design.variables - 1), freedom_(n - q_ - 1.0) {
    swept_.resize(static_cast<std::size_t>(packed::cellsOf(design.variables)));
    for (int i = 0; i <= q_; ++i) {
      for (int j = 0; j <= i; ++j) packed::at(swept_.data(), i, j) = design.of.correlations.getElement(i, j);
    }
    for (int k = 0; k < q_; ++k) {
      const bool enters = packed::toleranceWith(swept_.data(), q_, k, tolerance) > tolerance;
      if (!enters || !(packed::at(swept_.data(), k, k) > 0.0)) {
        design.of.deviations.values[k] = 0.0;
      } else {
        packed::sweep(swept_.data(), design.variables, k);
      }
    }
  }

  bool isKept(int k) const { return std::fabs(deviation(k)) > kZero; }

  double slope(int k) const { return isKept(k) ? deviation(q_) / deviation(k) * swept(q_, k) : 0.0; }

  double error(int k) const {
    return isKept(k)
               ? deviation(q_) / deviation(k) * scalar::sqr(std::fabs(swept(q_, q_) * swept(k, k)) / freedom_)
               : 0.0;
  }

  double intercept() const {
    double b = mean(q_);
    for (int k = 0; k < q_; ++k) {
      if (isKept(k)) b -= slope(k) * mean(k);
    }
    return b;
  }

  double errorOfIntercept() const {
    const double w = design_.total, y = deviation(q_);
    double variance = y * y * swept(q_, q_) * (w - 1.0) / (w * freedom_);
    for (int i = 0; i < q_; ++i) {
      if (!isKept(i)) continue;
      const double own = mean(i) * error(i);
      variance += own * own;
      for (int j = 0; j < i; ++j) {
        const double scale = deviation(i) * deviation(j);
        if (!isKept(j) || !(std::fabs(scale) > kEpsilon)) continue;
        const double covariance = -(y * y / scale) * swept(q_, q_) * swept(i, j) / freedom_;
        variance += 2.0 * mean(i) * mean(j) * covariance;
      }
    }
    return scalar::sqr(variance);
  }

  /// Without a degree of freedom there are no standard errors.
  bool hasErrors() const { return freedom_ > 0.0; }

 private:
  double mean(int k) const { return design_.of.means.values[k]; }
  double deviation(int k) const { return design_.of.deviations.values[k]; }
  double swept(int i, int j) const { return packed::at(swept_.data(), i, j); }

  Standardized& design_;
  int q_;
  double freedom_;
  std::vector<double> swept_;
};

/// The design times the coefficients, the last of which belongs to no column.
void fit(const block::Values& design, int n, const matrix& coefficients, matrix* fitted) {
  const int q = coefficients.nX - 1;
  results::into(fitted, n, 1, [&](block::Target& target) {
    for (std::ptrdiff_t begin = 0; begin < n; begin += kRowsAtOnce) {
      const std::ptrdiff_t end = std::min(begin + kRowsAtOnce, std::ptrdiff_t{n});
      std::fill(target.data() + begin, target.data() + end, 0.0);
      for (int k = 0; k < q; ++k) {
        const double* column = design.column(k);
        const double b = coefficients.values[k];
        // What has been left out shows nowhere, not even as 0.0 times infinity.
        if (b == 0.0) continue;
        for (std::ptrdiff_t i = begin; i < end; ++i) target[i] += b * column[i];
      }
      for (std::ptrdiff_t i = begin; i < end; ++i) target[i] += coefficients.values[q];
    }
  });
}

}  // namespace

void OLSBasic2(int n, int p, const matrix* x, const matrix* y, const matrix* weights, int degree,
               short interactions, short throughOrigin, double tolerance, matrix*& coefficients,
               matrix*& errors, matrix*& fitted) {
  if (!hasDesign(n, p, degree)) return;
  const int q = designColumns(p, degree, interactions);
  const std::unique_ptr<matrix> powers = degree == 1 ? nullptr : expanded(x, n, p, degree, q);
  const matrix* explanatory = degree == 1 ? x : powers.get();
  const block::Values cells(explanatory, n, q);
  Standardized design(cells, n, q, block::Values(y, n), weights, throughOrigin != 0);
  results::refill(coefficients, q + 1, 1);
  results::refill(errors, q + 1, 1);
  results::refill(fitted, n, 1);
  if (!design.isKnown()) {
    for (matrix* unknown : {coefficients, errors, fitted}) {
      for (int k = 0; k < unknown->nX; ++k) unknown->setElement(k, kMissing);
    }
    return;
  }
  const Fit model(design, n, tolerance);
  const bool hasIntercept = throughOrigin == 0;
  matrix slopes(q + 1, 1, 0.0);
  for (int k = 0; k < q; ++k) {
    slopes.values[k] = model.slope(k);
    if (model.isKept(k)) errors->setElement(k, model.hasErrors() ? model.error(k) : kMissing);
  }
  if (hasIntercept) {
    slopes.values[q] = model.intercept();
    errors->setElement(q, model.hasErrors() ? model.errorOfIntercept() : kMissing);
  }
  for (int k = 0; k <= q; ++k) coefficients->setElement(k, slopes.values[k]);
  fit(cells, n, slopes, fitted);
}

void OLSBasic(int n, int p, const matrix* x, const matrix* y, const matrix* weights, int degree,
              short interactions, short throughOrigin, double tolerance, matrix*& coefficients,
              matrix*& fitted) {
  if (!hasDesign(n, p, degree)) return;
  matrix unused(designColumns(p, degree, interactions) + 1, 1);
  matrix* errors = &unused;
  OLSBasic2(n, p, x, y, weights, degree, interactions, throughOrigin, tolerance, coefficients, errors,
            fitted);
}
