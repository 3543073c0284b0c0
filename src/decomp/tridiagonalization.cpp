#include <algorithm>
#include <cmath>

#include "decomp/householder.h"
#include "decomp/reflectors.h"
#include "kernels/kernels.h"

namespace householder {

namespace {

std::size_t sizeOf(int n) { return static_cast<std::size_t>(n); }

}  // namespace

Tridiagonalization::Tridiagonalization(const elements::Plain& a, int n)
    : d(sizeOf(n)), e(sizeOf(n)), a_(a), n_(n), rows_(sizeOf(n)) {
  for (int i = n - 1; i >= 1; --i) reduceRow(i);
  const std::vector<double> squares = d;
  for (int i = 0; i < n; ++i) d[sizeOf(i)] = a_(i, i);
  accumulate(squares);
}

// Row i, which is column i, takes what it still has to and becomes a reflector. Then one pass over the block
// before it does the same for the others and forms the product with the reflector.
void Tridiagonalization::reduceRow(int i) {
  double* x = a_.column(i);
  for (int k = 0; k <= i && !pendingU_.empty(); ++k) {
    x[k] -= pendingU_[sizeOf(k)] * pendingE_[sizeOf(i)] + pendingE_[sizeOf(k)] * pendingU_[sizeOf(i)];
  }
  double scale = 0.0;
  for (int k = 0; k < i && i > 1; ++k) scale += std::fabs(x[k]);
  if (scale == 0.0) {
    e[sizeOf(i)] = x[i - 1];
    updateLeading(i, nullptr, nullptr);
    pendingU_.clear();
    return;
  }
  std::vector<double>& u = rows_[sizeOf(i)];
  double h = 0.0;
  for (int k = 0; k < i; ++k) {
    u.push_back(x[k] / scale);
    h += u.back() * u.back();
  }
  const double f = u.back(), g = f >= 0.0 ? -scalar::sqr(h) : scalar::sqr(h);
  e[sizeOf(i)] = scale * g;
  h -= f * g;
  u.back() = f - g;
  std::vector<double> product(sizeOf(i));
  updateLeading(i, u.data(), product.data());
  double sum = 0.0;
  for (int j = 0; j < i; ++j) {
    product[sizeOf(j)] /= h;
    sum += product[sizeOf(j)] * u[sizeOf(j)];
  }
  const double half = sum / (h + h);
  for (int j = 0; j < i; ++j) product[sizeOf(j)] -= half * u[sizeOf(j)];
  pendingU_ = u;
  pendingE_ = std::move(product);
  d[sizeOf(i)] = h;
}

/// @param w  null: the block takes what it has to, if anything
void Tridiagonalization::updateLeading(int size, const double* w, double* product) {
  const bool pending = !pendingU_.empty();
  if (w == nullptr && !pending) return;
  const std::vector<double> zeros(w == nullptr ? sizeOf(size) : 0);
  std::vector<double> unused(zeros.size());
  kernels::best().rankTwo({a_.column(0), a_.stride(), size, pending ? pendingU_.data() : nullptr,
                           pending ? pendingE_.data() : nullptr, w == nullptr ? zeros.data() : w,
                           w == nullptr ? unused.data() : product});
}

void Tridiagonalization::accumulate(const std::vector<double>& squares) const {
  std::vector<reflectors::Reflector> order;
  std::vector<int> startsAfter(sizeOf(n_));
  std::vector<std::vector<double>> divided;
  divided.reserve(sizeOf(n_));
  for (int i = 0; i < n_; ++i) {
    const double h = squares[sizeOf(i)];
    if (h != 0.0) {
      const std::vector<double>& u = rows_[sizeOf(i)];
      std::vector<double>& along = divided.emplace_back(u);
      for (double& cell : along) cell /= h;
      order.push_back({0, i, u.data(), along.data(), -1.0});
    }
    startsAfter[sizeOf(i)] = static_cast<int>(order.size());
  }
  reflectors::accumulate(order, startsAfter, std::vector<const double*>(sizeOf(n_), nullptr), n_, a_);
}

}  // namespace householder
