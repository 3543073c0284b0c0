#include "plain_forms.h"

#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

#include "definitions/covariance.h"
#include "definitions/elimination.h"
#include "definitions/lu.h"

void plain::covariances(const double* a, const bool* missing, const double* weights, int n, int p,
                        double* c) {
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i <= j; ++i) {
      const double *x = a + std::ptrdiff_t{n} * i, *y = a + std::ptrdiff_t{n} * j;
      const bool *noX = missing + std::ptrdiff_t{n} * i, *noY = missing + std::ptrdiff_t{n} * j;
      definitions::WeightedUpdate sums;
      for (int r = 0; r < n; ++r) {
        if (!noX[r] && !noY[r]) sums.add(x[r], y[r], weights[r]);
      }
      c[i + p * j] = c[j + p * i] = sums.products / (sums.total - 1.0);
    }
  }
}

double plain::determinant(double* cells, int n) {
  const definitions::Cells a{cells, n};
  double parity, logarithms = 0.0;
  if (definitions::luFactors(a, n, parity, [](int, int) {}) != 0) return 0.0;
  for (int i = 0; i < n; ++i) {
    if (a(i, i) < 0.0) parity = -parity;
    logarithms += std::log(std::fabs(a(i, i)));
  }
  return parity * std::exp(logarithms);
}

void plain::leastSquares(const double* x, const double* y, const double* weights, int n, int p,
                         double* fitted) {
  const int q = p + 1;
  std::vector<double> design(x, x + std::ptrdiff_t{n} * p), c(static_cast<std::size_t>(q * q)), packed, means;
  design.insert(design.end(), y, y + n);
  const std::unique_ptr<bool[]> missing(new bool[design.size()]());
  covariances(design.data(), missing.get(), weights, n, q, c.data());
  const auto deviation = [&](int k) { return std::sqrt(c[static_cast<std::size_t>(k + q * k)]); };
  for (int j = 0; j < q; ++j) {
    double sum = 0.0;
    for (int i = 0; i < n; ++i) sum += design[static_cast<std::size_t>(i + n * j)];
    means.push_back(sum / n);
    for (int i = 0; i <= j; ++i) {
      packed.push_back(c[static_cast<std::size_t>(i + q * j)] / (deviation(i) * deviation(j)));
    }
  }
  const definitions::Packed<definitions::Cells> swept{{packed.data(), 0}};
  for (int k = 0; k < p; ++k) definitions::sweep(swept, q, k);
  std::vector<double> slopes;
  double intercept = means.back();
  for (int k = 0; k < p; ++k) {
    slopes.push_back(deviation(p) / deviation(k) * swept(p, k));
    intercept -= slopes.back() * means[static_cast<std::size_t>(k)];
  }
  for (int i = 0; i < n; ++i) {
    fitted[i] = 0.0;
    for (int k = 0; k < p; ++k)
      fitted[i] += slopes[static_cast<std::size_t>(k)] * x[i + std::ptrdiff_t{n} * k];
    fitted[i] += intercept;
  }
}

void plain::fillWithMeans(double* a, bool* missing, const double* weights, int n, int p) {
  for (int j = 0; j < p; ++j) {
    double* x = a + std::ptrdiff_t{n} * j;
    bool* absent = missing + std::ptrdiff_t{n} * j;
    double sum = 0.0, total = 0.0;
    for (int i = 0; i < n; ++i) {
      if (absent[i]) continue;
      sum += weights[i] * x[i];
      total += weights[i];
    }
    for (int i = 0; i < n; ++i) {
      if (!absent[i]) continue;
      x[i] = sum / total;
      absent[i] = false;
    }
  }
}
