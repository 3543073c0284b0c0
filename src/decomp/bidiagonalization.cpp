#include "decomp/bidiagonalization.h"

#include <algorithm>

#include "core/addressing.h"
#include "decomp/reflectors.h"
#include "kernels/kernels.h"
#include "numerics/norm.h"

namespace kav::householder {

namespace {

/// Makes x its own reflector.
///
/// @return what the reflection leaves of x
double makeReflector(double* x, int n) {
  double size = scaledNorm(n, [=](int k) { return x[k]; });
  if (size != 0.0) {
    if (x[0] != 0.0) size = scalar::FSign(size, x[0]);
    const double reciprocal = 1.0 / size;
    for (int k = 0; k < n; ++k) x[k] = reciprocal * x[k];
    x[0] = 1.0 + x[0];
  }
  return -size;
}

}  // namespace

Bidiagonalization::Bidiagonalization(const bidiagonal::Job& job, const elements::Plain& x)
    : s(sizeOf(std::max(job.n + 1, job.p))),
      e(sizeOf(job.p + 1)),
      job_(job),
      x_(x),
      work_(sizeOf(job.n)),
      times_(sizeOf(job.p)),
      nextWork_(sizeOf(job.n)),
      rows_(addressing::elementsInMemory<double>(job.p, job.rowSteps())) {
  const int steps = std::max(job.columnSteps(), job.rowSteps());
  for (int l = 0; l < steps; ++l) {
    reflectColumn(l);
    reflectRow(l);
  }
  if (!factors_.empty()) {
    kernels::best().updateColumns({x_.column(steps) + steps, x_.leadingDimension(), job.n - steps,
                                   job.p - steps, factors_.data() + steps, work_.data() + steps, nullptr,
                                   nullptr, nullptr, nullptr});
  }
  const int m = job.order(), columns = job.columnSteps(), rows = job.rowSteps();
  if (columns < job.p) s[sizeOf(columns)] = x_(columns, columns);
  if (job.n < m) s[sizeOf(m - 1)] = 0.0;
  if (rows + 1 < m) e[sizeOf(rows)] = x_(rows, m - 1);
  e[sizeOf(m - 1)] = 0.0;
}

// Column l takes what it still has to, becomes a reflector, and the row beside it follows; the cells below
// wait for reflectRow, which goes through them once for all.
void Bidiagonalization::reflectColumn(int l) {
  double* column = x_.column(l) + l;
  const int length = job_.n - l, others = job_.p - l - 1;
  const bool pending = !factors_.empty();
  for (int i = 0; i < length && pending; ++i) column[i] += factors_[sizeOf(l)] * work_[sizeOf(l + i)];
  columnReflects_ = false;
  if (l < job_.columnSteps()) {
    s[sizeOf(l)] = makeReflector(column, length);
    columnReflects_ = s[sizeOf(l)] != 0.0;
  }
  if (columnReflects_ && others > 0) {
    const double* next = x_.column(l + 1) + l;
    kernels::best().columnSums({next, x_.leadingDimension(), length, others,
                                pending ? factors_.data() + l + 1 : nullptr, work_.data() + l, column,
                                times_.data() + l + 1});
    for (int j = l + 1; j < job_.p; ++j) times_[sizeOf(j)] = -times_[sizeOf(j)] / column[0];
  }
  for (int j = l + 1; j < job_.p; ++j) {
    double& cell = x_.column(j)[l];
    if (pending) cell += factors_[sizeOf(j)] * work_[sizeOf(l)];
    if (columnReflects_) cell += times_[sizeOf(j)] * column[0];
    e[sizeOf(j)] = cell;
  }
}

void Bidiagonalization::reflectRow(int l) {
  const int below = job_.n - l - 1, others = job_.p - l - 1;
  bool reflected = false;
  if (l < job_.rowSteps()) {
    e[sizeOf(l)] = makeReflector(e.data() + l + 1, others);
    std::copy(e.begin() + l + 1, e.begin() + job_.p, rowReflector(l));
    reflected = e[sizeOf(l)] != 0.0 && below > 0;
  }
  std::fill(nextWork_.begin(), nextWork_.end(), 0.0);
  const bool pending = !factors_.empty();
  if (below > 0 && others > 0) {
    kernels::best().updateColumns({x_.column(l + 1) + l + 1, x_.leadingDimension(), below, others,
                                   pending ? factors_.data() + l + 1 : nullptr, work_.data() + l + 1,
                                   columnReflects_ ? times_.data() + l + 1 : nullptr, x_.column(l) + l + 1,
                                   reflected ? e.data() + l + 1 : nullptr, nextWork_.data() + l + 1});
  }
  factors_.clear();
  if (!reflected) return;
  work_.swap(nextWork_);
  factors_.assign(sizeOf(job_.p), 0.0);
  for (int j = l + 1; j < job_.p; ++j) factors_[sizeOf(j)] = -e[sizeOf(j)] / e[sizeOf(l + 1)];
}

void Bidiagonalization::generateLeft(const elements::Plain& u) const {
  std::vector<reflectors::Reflector> order;
  std::vector<int> startsAfter(sizeOf(job_.leftColumns), 0);
  std::vector<const double*> start(startsAfter.size(), nullptr);
  for (int l = job_.columnSteps() - 1; l >= 0; --l) {
    const double* v = x_.column(l) + l;
    const bool reflects = s[sizeOf(l)] != 0.0;
    if (reflects) order.push_back({l, job_.n, v, v, -v[0]});
    startsAfter[sizeOf(l)] = static_cast<int>(order.size());
    if (reflects) start[sizeOf(l)] = v;
  }
  reflectors::accumulate(order, startsAfter, start, job_.n, u);
}

void Bidiagonalization::generateRight(const elements::Plain& v) const {
  std::vector<reflectors::Reflector> order;
  std::vector<int> startsAfter(sizeOf(job_.p), 0);
  const std::vector<const double*> units(startsAfter.size(), nullptr);
  for (int l = job_.p - 1; l >= 0; --l) {
    if (l < job_.rowSteps() && e[sizeOf(l)] != 0.0) {
      const double* row = rowReflector(l);
      order.push_back({l + 1, job_.p, row, row, -row[0]});
    }
    startsAfter[sizeOf(l)] = static_cast<int>(order.size());
  }
  reflectors::accumulate(order, startsAfter, units, job_.p, v);
}

}  // namespace kav::householder
