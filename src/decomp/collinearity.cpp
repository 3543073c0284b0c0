#include "kavoratb1c/decomp/collinearity.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "access/block.h"
#include "decomp/packed.h"
#include "numerics/thresholds.h"

using namespace kav;

namespace {

constexpr int kUsable = 0;
constexpr int kConstant = 50000;
constexpr int kCollinear = 60000;

/// Correlations from which the later variable of a pair is given up at once.
constexpr double kSame = 0.999999999999;

double inflationOf(double tolerance) { return tolerance == 0.0 ? kMissing : 1.0 / tolerance; }

class ToleranceCheck {
 public:
  ToleranceCheck(const matrix* r, int p, double tolerance, short markOthers, short sweepAll)
      : r_(r, p, p),
        p_(p),
        tolerance_(tolerance),
        markOthers_(markOthers),
        sweepAll_(sweepAll),
        status(static_cast<std::size_t>(p), kUsable),
        tolerances(status.size()),
        inflations(status.size()),
        known(status.size(), false) {
    saved_.resize(static_cast<std::size_t>(packed::cellsOf(p + 1)));
    for (int i = 0; i < p; ++i) {
      for (int j = 0; j <= i; ++j) packed::at(saved_.data(), i, j) = r_.column(j)[i];
    }
    work_ = saved_;
  }

  /// Variables without variance, and those that are the same as one before.
  void screen() {
    for (int i = 0; i < p_; ++i) {
      if (std::fabs(r_.column(i)[i]) < kZero) {
        mark(i, kConstant, 0.0);
        continue;
      }
      for (int j = i + 1; j < p_; ++j) {
        if (std::fabs(r_.column(j)[i]) >= kSame) mark(j, kCollinear, 0.0);
      }
    }
  }

  /// Sweeps on the other variables until they leave too little of variable k.
  void test(int k) {
    if (statusOf(k) > 0) return;
    double* s = work_.data();
    work_ = saved_;
    for (int j = 0; j < p_; ++j) packed::at(s, p_, j) = r_.column(k)[j];
    packed::at(s, p_, k) = 1.0;
    packed::at(s, p_, p_) = 1.0;
    for (int j = p_ - 1; j >= 0; --j) {
      if (j == k || !maySweepOn(j)) continue;
      packed::sweep(s, p_ + 1, j);
      const double left = packed::at(s, p_, p_);
      record(k, left);
      if (left < tolerance_) {
        if (sweepAll_ == kFalse) status[static_cast<std::size_t>(k)] = kCollinear;
        return;
      }
    }
  }

 private:
  int statusOf(int k) const { return status[static_cast<std::size_t>(k)]; }

  void mark(int k, int code, double tolerance) {
    status[static_cast<std::size_t>(k)] = code;
    record(k, tolerance);
  }

  void record(int k, double tolerance) {
    const auto at = static_cast<std::size_t>(k);
    tolerances[at] = tolerance;
    inflations[at] = inflationOf(tolerance);
    known[at] = true;
  }

  bool maySweepOn(int j) {
    if ((statusOf(j) != kUsable && sweepAll_ != kTrue) || statusOf(j) == kConstant) return false;
    const double left = packed::toleranceWith(work_.data(), p_, j, tolerance_);
    if (!(left < tolerance_)) return true;
    if (markOthers_ != kTrue) return false;
    // Too little would be left of others, but enough of its own: it is swept on all the same.
    if (!(std::fabs(packed::at(work_.data(), j, j)) < tolerance_)) return true;
    mark(j, kCollinear, left);
    return false;
  }

  const block::Values r_;
  int p_;
  double tolerance_;
  short markOthers_, sweepAll_;
  std::vector<double> saved_, work_;

 public:
  std::vector<int> status;
  std::vector<double> tolerances, inflations;
  std::vector<char> known;  ///< which of those two have been computed
};

}  // namespace

double OLSCheckIfIn(const matrix* swept, int p, int k, double tolerance) {
  if (k < 1 || k > p) return kOutside;
  const block::Values cells(swept, packed::cellsOf(p));
  return packed::toleranceWith(cells.data(), p, k - 1, tolerance);
}

void CheckTolerance(const matrix* r, int p, int groups, const matrix* selection, const matrix*,
                    matrix*& groupOf, double tolerance, short markOthers, short sweepAll, short backwards,
                    matrix* status, matrix* tolerances, matrix* inflations) {
  if (p < 1) return;
  ToleranceCheck check(r, p, tolerance, markOthers, sweepAll);
  check.screen();
  const block::Values group(groupOf, p);
  const std::int64_t cells = selection == nullptr ? 0 : addressing::cellCount(*selection);
  for (int h = static_cast<int>(std::min<std::int64_t>(groups, cells)); h >= 1; --h) {
    if (selection->getElement(h - 1) != 1.0) continue;
    int begin = 0;
    while (begin < p && group[begin] != h) ++begin;
    int end = begin;
    while (end < p && group[end] == h) ++end;
    for (int v = 0; v < end - begin; ++v) check.test(backwards == kTrue ? end - 1 - v : begin + v);
  }
  for (int k = 0; k < p; ++k) {
    const auto at = static_cast<std::size_t>(k);
    if (status != nullptr) status->setElement(k, 0, check.status[at]);
    if (!check.known[at]) continue;
    if (tolerances != nullptr) tolerances->setElement(k, 0, check.tolerances[at]);
    if (inflations != nullptr) inflations->setElement(k, 0, check.inflations[at]);
  }
}
