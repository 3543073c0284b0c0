#include "kavoratb1c/algebra/similarities.h"

#include <algorithm>
#include <vector>

#include "access/results.h"
#include "access/screening.h"
#include "access/taking_part.h"

using namespace kav;

namespace {

/// A square matrix with its flags.
class Table {
 public:
  Table(const matrix* m, int n, int p) : n_(n), values_(m, n, p), flags_(m, n, p) {}

  double operator()(int i, int j) const { return values_.column(j)[i]; }
  bool isPresent(int i, int j) const { return !isMissing((*this)(i, j), flags_.column(j)[i]); }
  bool isComplete() const {
    for (int j = 0; j < n_; ++j) {
      if (screening::anyMissing(values_.column(j), flags_.column(j), n_)) return false;
    }
    return true;
  }

 private:
  int n_;
  block::Values values_;
  block::Flags flags_;
};

}  // namespace

void M_EuclidDist2(const matrix* a, int n, int p, matrix*& distances, const matrix* weights, short byRows) {
  const int size = byRows != 0 ? n : p;
  const int depth = byRows != 0 ? p : n;
  if (!results::haveCellsOrRefill(distances, size, size, depth)) return;
  const block::Values cells(a, n, p);
  const usable::RowWeights w(weights, depth);
  const std::ptrdiff_t leading = cells.leadingDimension();
  const std::ptrdiff_t along = byRows != 0 ? 1 : leading, across = byRows != 0 ? leading : 1;
  results::refilled(distances, size, size, depth, [&](block::Target& target) {
    for (int j = 0; j < size; ++j) {
      for (int i = 0; i <= j; ++i) {
        double sum = 0.0;
        for (int k = 0; k < depth; ++k) {
          const double d = cells[along * i + across * k] - cells[along * j + across * k];
          sum += w[k] * (d * d);
        }
        target.column(j)[i] = target.column(i)[j] = sum;
      }
    }
  });
}

void M_TransformSimToDissim(matrix*& s, int p) {
  if (s == nullptr) return;
  const Table cells(s, p, p);
  std::vector<double> d(addressing::elementsInMemory<double>(p, p));
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < j; ++i) {
      d[static_cast<std::size_t>(i + std::ptrdiff_t{p} * j)] =
          d[static_cast<std::size_t>(j + std::ptrdiff_t{p} * i)] =
              cells.isPresent(i, i) && cells.isPresent(i, j) ? cells(i, i) - cells(i, j) : kMissing;
    }
  }
  results::copyInto(s, p, p, d.data());
}

int M_CheckIfSimOrDissim(const matrix* t, int n, int apriori) {
  const Table cells(t, n, n);
  if (!cells.isComplete()) return -1;
  bool dissimilarities = true;
  bool similarities = true;
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) {
      dissimilarities = dissimilarities && (i == j ? cells(i, j) == 0.0 : cells(i, j) >= 0.0);
      similarities = similarities && cells(i, j) <= cells(i, i) && cells(i, j) <= cells(j, j);
    }
  }
  if (dissimilarities && similarities) return apriori;
  if (dissimilarities) return 0;
  return similarities ? 1 : -1;
}

void M_Symmetrize(matrix* t, int n, int type) {
  if (t == nullptr || type < 0 || type > 2 || n < 1) return;
  results::into(t, n, n, [&](block::Target& cells) {
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
