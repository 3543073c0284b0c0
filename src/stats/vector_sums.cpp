#include "kavoratb1c/stats/vector_sums.h"

#include <algorithm>
#include <cmath>

#include "access/screening.h"
#include "access/texts.h"
#include "access/usable.h"
#include "numerics/moments.h"
#include "numerics/range.h"
#include "stats/weighted_mean.h"

using namespace kav;

namespace {

double square(double x) { return x * x; }

/// The sum of term(i) over the cells that a rule uses.
template <class Rule, class Term>
double sumOf(int n, Rule rule, Term term) {
  double sum = 0.0;
  usable::forEach(n, rule, [&](int i) { sum += term(i); });
  return sum;
}

template <class Rule>
double weightedSumOf(const block::Values& x, int n, const matrix* w, Rule rule) {
  if (w == nullptr) return sumOf(n, rule, [&](int i) { return x[i]; });
  const block::Values weights(w, n);
  return sumOf(n, rule, [&](int i) { return x[i] * weights[i]; });
}

template <class Transform>
double meanOf(const matrix* x, int n, const short* exclude, const matrix* w, Transform transform) {
  if (!usable::given(n, exclude, w)) return kMissing;
  const usable::Cells cells(x, n);
  const block::Values weights(w, n);
  return weightedMean(
      n, usable::PresentAndWeighted(cells, exclude, weights), [&](int i) { return transform(cells[i]); },
      [&](int i) { return weights[i]; });
}

/// Calls visit(x[i]) for the cells whose criterion cell equals value, both present.
template <class Visit>
void forEachWhere(const matrix* x, int n, const matrix* criterion, double value, Visit visit) {
  const usable::Cells cells(x, n);
  const usable::Cells criteria(criterion, n);
  const usable::Present present(cells);
  const usable::Present decided(criteria);
  for (int i = 0; i < n; ++i) {
    if (present(i) && decided(i) && criteria[i] == value) visit(cells[i]);
  }
}

}  // namespace

double V_Sum(const matrix* x, int n, const short* exclude, const matrix* w) {
  const block::Values cells(x, n);
  return exclude == nullptr ? weightedSumOf(cells, n, w, usable::Every{})
                            : weightedSumOf(cells, n, w, usable::NotExcluded{exclude});
}

double V_Sum2(const matrix* x, int n) { return V_Sum(x, n, nullptr, nullptr); }

double V_SumFromTo(const matrix* x, int n, int from, int to) {
  const Range range(n, from, to);
  const block::Values cells(x, range.end);
  double sum = 0.0;
  for (int i = range.begin; i < range.end; ++i) sum += cells[i];
  return sum;
}

double V_SumSq(const matrix* x, int n) {
  const usable::Cells cells(x, n);
  return sumOf(n, usable::Present(cells), [&](int i) { return square(cells[i]); });
}

double V_SumSqW(const matrix* x, int n, const matrix* w) {
  const usable::Cells cells(x, n);
  const block::Values weights(w, n);
  return sumOf(n, usable::Present(cells), [&](int i) { return weights[i] * square(cells[i]); });
}

double V_DiffSq(const matrix* x, int n, const matrix* y) {
  const block::Values a(x, n), b(y, n);
  return sumOf(n, usable::Every{}, [&](int i) { return square(a[i] - b[i]); });
}

double V_ProductTrV1V2(const matrix* x, int n, const matrix* y) {
  const block::Values a(x, n), b(y, n);
  return sumOf(n, usable::Every{}, [&](int i) { return a[i] * b[i]; });
}

double V_Mean(const matrix* x, int n, const short* exclude, const matrix* w) {
  return meanOf(x, n, exclude, w, [](double cell) { return cell; });
}

double V_MeanAbs(const matrix* x, int n, const short* exclude, const matrix* w) {
  return meanOf(x, n, exclude, w, [](double cell) { return std::fabs(cell); });
}

double V_NbIf(const matrix* x, int n, double value) {
  const usable::Cells cells(x, n);
  return sumOf(n, usable::Present(cells), [&](int i) { return cells[i] == value ? 1.0 : 0.0; });
}

double V_SumIf(const matrix* x, int n, const matrix* criterion, double value) {
  if (n < 1) return kMissing;
  double sum = 0.0;
  forEachWhere(x, n, criterion, value, [&](double cell) { sum += cell; });
  return sum;
}

double V_MeanIf(const matrix* x, int n, const matrix* criterion, double value) {
  double sum = 0.0;
  double count = 0.0;
  forEachWhere(x, n, criterion, value, [&](double cell) {
    sum += cell;
    count += 1.0;
  });
  return count == 0.0 ? kMissing : sum / count;
}

double V_VarIf(const matrix* x, int n, const matrix* criterion, double value, short biased) {
  moments::Moments m;
  forEachWhere(x, n, criterion, value, [&](double cell) { m.add(cell, 1.0); });
  const short unbiased = biased == kTrue ? kFalse : kTrue;
  const double divisor = moments::Denominator(unbiased, kTrue).of(m.total(), m.count());
  return divisor <= 0.0 ? kMissing : m.squares() / divisor;
}

int V_NbMissing(const matrix* x, int n) {
  const usable::Cells cells(x, n);
  return screening::countMissing(cells.values(), cells.flags(), n);
}

int V_NbMissing(const Smatrix* x, int n) {
  int missing = 0;
  for (int i = 0; i < n; ++i) missing += texts::labelAt(x, i).empty() ? 1 : 0;
  return missing;
}

int V_NbNonMissing(const matrix* x, int n) { return n < 1 ? n : n - V_NbMissing(x, n); }

int V_NbTrue(const matrix* x, int n) { return V_NbTrueFromTo(x, n, 1, n); }

int V_NbTrueFromTo(const matrix* x, int n, int from, int to) {
  const Range range(n, from, to);
  const block::Values cells(x, range.end);
  int count = 0;
  for (int i = range.begin; i < range.end; ++i) count += cells[i] != 0.0 ? 1 : 0;
  return count;
}
