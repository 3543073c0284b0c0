#include "decomp/tridiagonalization.h"

#include <algorithm>
#include <cmath>

#include "core/addressing.h"
#include "decomp/reflectors.h"
#include "decomp/sizes.h"
#include "kernels/kernels.h"
#include "numerics/scalar.h"

namespace kav::householder {

Tridiagonalization::Tridiagonalization(const elements::Plain& a, int n)
    : d(sizeOf(n)),
      e(sizeOf(n)),
      a_(a),
      n_(n),
      rows_(addressing::elementsInMemory<double>(n, n)),
      share_(sizeOf(n)),
      product_(sizeOf(n)) {
  for (int i = n - 1; i >= 1; --i) reduceRow(i);
  const std::vector<double> squares = d;
  for (int i = 0; i < n; ++i) d[sizeOf(i)] = a_(i, i);
  accumulate(squares);
}

// Row i, which is column i, takes what it still has to and becomes a reflector. Then one pass over the block
// before it does the same for the others and forms the product with the reflector.
void Tridiagonalization::reduceRow(int i) {
  double* x = a_.column(i);
  for (int k = 0; k <= i && pending_ != nullptr; ++k) {
    x[k] -= pending_[k] * share_[sizeOf(i)] + share_[sizeOf(k)] * pending_[i];
  }
  double scale = 0.0;
  for (int k = 0; k < i && i > 1; ++k) scale += std::fabs(x[k]);
  if (scale == 0.0) {
    e[sizeOf(i)] = x[i - 1];
    std::fill(product_.begin(), product_.end(), 0.0);
    updateLeading(i, reflector(i), product_.data());
    pending_ = nullptr;
    return;
  }
  double* u = reflector(i);
  double h = 0.0;
  for (int k = 0; k < i; ++k) {
    u[k] = x[k] / scale;
    h += u[k] * u[k];
  }
  const double f = u[i - 1], g = f >= 0.0 ? -scalar::sqr(h) : scalar::sqr(h);
  e[sizeOf(i)] = scale * g;
  h -= f * g;
  u[i - 1] = f - g;
  std::fill(product_.begin(), product_.end(), 0.0);
  updateLeading(i, u, product_.data());
  double sum = 0.0;
  for (int j = 0; j < i; ++j) {
    product_[sizeOf(j)] /= h;
    sum += product_[sizeOf(j)] * u[j];
  }
  const double half = sum / (h + h);
  for (int j = 0; j < i; ++j) product_[sizeOf(j)] -= half * u[j];
  pending_ = u;
  share_.swap(product_);
  d[sizeOf(i)] = h;
}

/// Takes off what is pending, if anything, and adds the product with w.
void Tridiagonalization::updateLeading(int size, const double* w, double* product) {
  kernels::best().rankTwo({a_.column(0), a_.leadingDimension(), size, pending_,
                           pending_ == nullptr ? nullptr : share_.data(), w, product});
}

void Tridiagonalization::accumulate(const std::vector<double>& squares) {
  std::vector<reflectors::Reflector> order;
  std::vector<int> startsAfter(sizeOf(n_));
  std::vector<double> divided(rows_.size());
  for (int i = 0; i < n_; ++i) {
    const double h = squares[sizeOf(i)];
    if (h != 0.0) {
      const double* u = reflector(i);
      double* along = divided.data() + std::ptrdiff_t{n_} * i;
      for (int k = 0; k < i; ++k) along[k] = u[k] / h;
      order.push_back({0, i, u, along, -1.0});
    }
    startsAfter[sizeOf(i)] = static_cast<int>(order.size());
  }
  reflectors::accumulate(order, startsAfter, std::vector<const double*>(sizeOf(n_), nullptr), n_, a_);
}

}  // namespace kav::householder
