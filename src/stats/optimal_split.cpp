#include "kavoratb1c/stats/optimal_split.h"

#include <vector>

#include "access/results.h"
#include "access/usable.h"
#include "numerics/moments.h"
#include "numerics/range.h"

using namespace kav;

namespace {

/// A group that grows cell by cell.
class Group {
 public:
  Group(const matrix* x, const matrix* w, int n)
      : cells_(x, n), weights_(w, n), present_(cells_), weighted_(weights_) {}

  /// Calls visit(i, diameter) after each cell i from begin to end, forward or backward.
  template <class Visit>
  void grow(int begin, int end, Visit visit) const {
    moments::Moments m;
    const int step = begin < end ? 1 : -1;
    for (int i = begin; i != end; i += step) {
      if (present_(i) && weighted_(i)) m.add(cells_[i], weights_[i]);
      visit(i, m.squares());
    }
  }

 private:
  usable::Cells cells_;
  block::Values weights_;
  usable::Present present_;
  usable::Weighted weighted_;
};

}  // namespace

double V_FischerDist(const matrix* x, int n, const matrix* w, int from, int to) {
  if (!usable::given(n, w)) return kMissing;
  const Range range(n, from, to);
  double diameter = 0.0;
  Group(x, w, range.end).grow(range.begin, range.end, [&](int, double d) { diameter = d; });
  return diameter;
}

int V_FischerBisec(const matrix* x, int n, const matrix* w, int from, int to, double* within) {
  const Range range(n, from, to);
  const int size = w == nullptr ? 0 : range.count();
  int best = 0;
  double least = kMissing;
  if (size >= 2) {
    const Group group(x, w, range.end);
    std::vector<double> behind(static_cast<std::size_t>(size));
    group.grow(range.end - 1, range.begin - 1,
               [&](int i, double d) { behind[static_cast<std::size_t>(i - range.begin)] = d; });
    group.grow(range.begin, range.end - 1, [&](int i, double d) {
      const double sum = d + behind[static_cast<std::size_t>(i + 1 - range.begin)];
      if (best != 0 && !(sum < least)) return;
      best = i + 1;
      least = sum;
    });
  }
  results::give(within, least);
  return best;
}
