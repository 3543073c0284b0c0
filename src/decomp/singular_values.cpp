
#include "kavoratb1c/decomp/singular_values.h"

#include <algorithm>
#include <limits>
#include <new>
#include <vector>

#include "access/block.h"
#include "decomp/bidiagonal.h"
#include "decomp/bidiagonalization.h"
#include "decomp/rotations.h"
#include "kavoratb1c/decomp/column_kernels.h"
#include "numerics/plain_elements.h"

using namespace kav;

using bidiagonal::Job;

namespace {

/// The decomposition by column kernels, as it is defined.
class ByKernels {
 public:
  ByKernels(const Job& job, matrix* x, matrix* u, matrix* v)
      : job_(job),
        x_(x),
        u_(u),
        v_(v),
        s_(std::max(job.n + 1, job.p), 1),
        e_(job.p + 1, 1),
        work_(std::max(job.n, 1), 1) {}

  int run() {
    reduce();
    if (job_.left) generateLeft();
    if (job_.right) generateRight();
    return bidiagonal::QrSteps(job_, s_.values - 1, e_.values - 1, *this).run();
  }

  double value(int k) const { return s_.values[k]; }

  void rotateLeft(int j, int k, double c, double s) { drot(job_.n, u_, 1, u_, 1, c, s, j, k); }
  void rotateRight(int j, int k, double c, double s) { drot(job_.p, v_, 1, v_, 1, c, s, j, k); }
  void negateRight(int j) { dscal(job_.p, -1.0, v_, 1, 1, j, 0); }
  void swapLeft(int j) { M_SwapVectors(job_.n, u_, 1, u_, 1, j, j + 1); }
  void swapRight(int j) { M_SwapVectors(job_.p, v_, 1, v_, 1, j, j + 1); }

 private:
  void reduce() {
    const int steps = std::max(job_.columnSteps(), job_.rowSteps());
    for (int l = 1; l <= steps; ++l) {
      if (l <= job_.columnSteps()) reflectorOfColumn(l);
      for (int j = l + 1; j <= job_.p; ++j) {
        if (l <= job_.columnSteps() && s_.vbget(l, 1) != 0.0) reflect(x_, l, l, j, job_.n);
        e_.vbset(j, 1, get(x_, l, j));
      }
      if (job_.left && l <= job_.columnSteps()) {
        for (int i = l; i <= job_.n; ++i) put(u_, i, l, get(x_, i, l));
      }
      if (l <= job_.rowSteps()) {
        reflectRows(l);
        if (job_.right) {
          for (int i = l + 1; i <= job_.p; ++i) put(v_, i, l, e_.vbget(i, 1));
        }
      }
    }
    const int m = job_.order();
    if (job_.columnSteps() < job_.p) {
      s_.vbset(job_.columnSteps() + 1, 1, get(x_, job_.columnSteps() + 1, job_.columnSteps() + 1));
    }
    if (job_.n < m) s_.vbset(m, 1, 0.0);
    if (job_.rowSteps() + 1 < m) e_.vbset(job_.rowSteps() + 1, 1, get(x_, job_.rowSteps() + 1, m));
    e_.vbset(m, 1, 0.0);
  }

  /// Column l of x becomes its reflector, s(l) what stays of it.
  void reflectorOfColumn(int l) {
    const int length = job_.n - l + 1;
    double s = DNRM2(length, x_, 1, l, l, 0);
    if (s != 0.0) {
      if (get(x_, l, l) != 0.0) s = scalar::FSign(s, get(x_, l, l));
      dscal(length, 1.0 / s, x_, 1, l, l, 0);
      put(x_, l, l, 1.0 + get(x_, l, l));
    }
    s_.vbset(l, 1, -s);
  }

  /// Column j of m by the reflector in column l from row `first` on.
  void reflect(matrix* m, int first, int l, int j, int rows) {
    const int length = rows - first + 1;
    const double t = -ddot(length, m, 1, m, 1, first, l, first, j, 0) / get(m, first, l);
    daxpy(length, t, m, 1, m, 1, first, l, first, j);
  }

  /// Row l becomes its reflector, in e, and reflects the rows below.
  void reflectRows(int l) {
    const int length = job_.p - l;
    double e = DNRM2(length, &e_, 1, l + 1, 1, 0);
    if (e != 0.0) {
      if (e_.vbget(l + 1, 1) != 0.0) e = scalar::FSign(e, e_.vbget(l + 1, 1));
      dscal(length, 1.0 / e, &e_, 1, l + 1, 1, 0);
      e_.vbset(l + 1, 1, 1.0 + e_.vbget(l + 1, 1));
    }
    e_.vbset(l, 1, -e);
    if (l + 1 > job_.n || e == 0.0) return;
    const int rows = job_.n - l;
    for (int i = l + 1; i <= job_.n; ++i) work_.vbset(i, 1, 0.0);
    for (int j = l + 1; j <= job_.p; ++j) daxpy(rows, e_.vbget(j, 1), x_, 1, &work_, 1, l + 1, j, l + 1, 1);
    for (int j = l + 1; j <= job_.p; ++j) {
      daxpy(rows, -e_.vbget(j, 1) / e_.vbget(l + 1, 1), &work_, 1, x_, 1, l + 1, 1, l + 1, j);
    }
  }

  void generateLeft() {
    for (int j = job_.columnSteps() + 1; j <= job_.leftColumns; ++j) unitColumn(u_, job_.n, j);
    for (int l = job_.columnSteps(); l >= 1; --l) {
      if (s_.vbget(l, 1) == 0.0) {
        unitColumn(u_, job_.n, l);
        continue;
      }
      for (int j = l + 1; j <= job_.leftColumns; ++j) reflect(u_, l, l, j, job_.n);
      dscal(job_.n - l + 1, -1.0, u_, 1, l, l, 0);
      put(u_, l, l, 1.0 + get(u_, l, l));
      for (int i = 1; i < l; ++i) put(u_, i, l, 0.0);
    }
  }

  void generateRight() {
    for (int l = job_.p; l >= 1; --l) {
      if (l <= job_.rowSteps() && e_.vbget(l, 1) != 0.0) {
        for (int j = l + 1; j <= job_.p; ++j) reflect(v_, l + 1, l, j, job_.p);
      }
      unitColumn(v_, job_.p, l);
    }
  }

  static void unitColumn(matrix* m, int rows, int j) {
    for (int i = 1; i <= rows; ++i) put(m, i, j, 0.0);
    put(m, j, j, 1.0);
  }

  static double get(const matrix* m, int i, int j) { return m == nullptr ? kOutside : m->vbget(i, j); }
  static void put(matrix* m, int i, int j, double x) {
    if (m != nullptr) m->vbset(i, j, x);
  }

  const Job& job_;
  matrix *x_, *u_, *v_;
  matrix s_, e_, work_;
};

/// The same on plain memory: many columns at a time, rotations kept and applied to many rows at once.
class ByBlocks {
 public:
  ByBlocks(const Job& job, const elements::Plain& x, const elements::Plain& u, const elements::Plain& v)
      : job_(job),
        reduced_(job, x),
        left_(u, job.n, job.left ? job.leftColumns : 0),
        right_(v, job.p, job.right ? job.p : 0) {
    if (job.left) reduced_.generateLeft(u);
    if (job.right) reduced_.generateRight(v);
  }

  int run() {
    const int status = bidiagonal::QrSteps(job_, reduced_.s.data() - 1, reduced_.e.data() - 1, *this).run();
    left_.finish();
    right_.finish();
    return status;
  }

  double value(int k) const { return reduced_.s[static_cast<std::size_t>(k)]; }

  /// Whether a rotation met a left vector outside, as only values that are not finite make happen: then
  /// nothing that has been computed is of use.
  bool leftTable() const { return leftTable_; }

  void rotateLeft(int j, int k, double c, double s) {
    leftTable_ = leftTable_ || std::max(j, k) > job_.leftColumns;
    if (!leftTable_) left_.rotate(j - 1, k - 1, c, s);
  }
  void rotateRight(int j, int k, double c, double s) { right_.rotate(j - 1, k - 1, c, s); }
  void negateRight(int j) { right_.negate(j - 1); }
  void swapLeft(int j) { left_.swapWithNext(j - 1); }
  void swapRight(int j) { right_.swapWithNext(j - 1); }

 private:
  const Job& job_;
  householder::Bidiagonalization reduced_;
  rotations::Log left_, right_;
  bool leftTable_ = false;
};

/// Sizes from which blocks pay.
constexpr int kFew = 4;

bool blocksPay(const Job& job, const matrix* x, const matrix* u, const matrix* v) {
  const auto share = [](const matrix* a, const matrix* b) {
    return a != nullptr && b != nullptr && a->values == b->values;
  };
  if (share(x, u) || share(x, v) || share(u, v)) return false;
  return std::min(job.n, job.p) >= kFew && block::isPlain(x, job.n, job.p) &&
         (!job.left || block::isPlain(u, job.n, job.leftColumns)) &&
         (!job.right || block::isPlain(v, job.p, job.p));
}

elements::Plain plainCells(matrix* m) {
  return m == nullptr ? elements::Plain(nullptr, 0) : elements::Plain(m->values, m->nX);
}

template <class Decomposition>
int decompose(Decomposition& decomposition, const Job& job, matrix* s) {
  const int info = decomposition.run();
  for (int k = 0; k < job.order() && s != nullptr; ++k) s->setElement(k, decomposition.value(k));
  return info;
}

}  // namespace

void M_SVDecomp(matrix* x, int n, int p, matrix* s, matrix* u, int, matrix* v, int, int job, int& info) {
  info = 0;
  if (n < 1 || p < 1) return;
  if (std::max(n, p) == std::numeric_limits<int>::max()) throw std::bad_alloc();
  const Job work(n, p, job);
  if (blocksPay(work, x, u, v)) {
    std::vector<double> before(addressing::elementsInMemory<double>(n, p));
    block::copyTo(block::Values(x, n, p), n, p, before.data());
    ByBlocks decomposition(work, plainCells(x), plainCells(u), plainCells(v));
    info = decompose(decomposition, work, s);
    for (matrix* m : {x, u, v}) {
      if (m != nullptr) m->descValid = 0;
    }
    if (!decomposition.leftTable()) return;
    for (int j = 0; j < p; ++j)
      std::copy_n(before.data() + std::ptrdiff_t{n} * j, n, plainCells(x).column(j));
  }
  ByKernels decomposition(work, x, u, v);
  info = decompose(decomposition, work, s);
}
