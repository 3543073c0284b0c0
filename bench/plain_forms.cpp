#include "plain_forms.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace {

/// A table, column after column.
struct Cells {
  double& operator()(int i, int j) const { return x[i + std::ptrdiff_t{rows} * j]; }
  double* column(int j) const { return x + std::ptrdiff_t{rows} * j; }

  double* x;
  int rows;
};

struct ConstCells {
  double operator()(int i, int j) const { return x[i + std::ptrdiff_t{rows} * j]; }

  const double* x;
  int rows;
};

std::size_t sizeOf(int n) { return static_cast<std::size_t>(n); }

}  // namespace

void plain::covariances(const double* a, const bool* missing, const double* weights, int n, int p,
                        double* c) {
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i <= j; ++i) {
      const double *x = a + std::ptrdiff_t{n} * i, *y = a + std::ptrdiff_t{n} * j;
      const bool *noX = missing + std::ptrdiff_t{n} * i, *noY = missing + std::ptrdiff_t{n} * j;
      double total = 0.0, meanX = 0.0, meanY = 0.0, products = 0.0;
      for (int r = 0; r < n; ++r) {
        if (noX[r] || noY[r]) continue;
        const double w = weights[r], dX = x[r] - meanX, dY = y[r] - meanY;
        total += w;
        products += (w - w * w / total) * dY * dX;
        meanX += w / total * dX;
        meanY += w / total * dY;
      }
      c[i + p * j] = c[j + p * i] = products / (total - 1.0);
    }
  }
}

bool plain::luFactors(double* cells, int n, int* index, double& parity) {
  const Cells a{cells, n};
  std::vector<double> scales(sizeOf(n));
  parity = 1.0;
  for (int i = 0; i < n; ++i) {
    double most = 0.0;
    for (int j = 0; j < n; ++j) most = std::max(most, std::fabs(a(i, j)));
    if (most == 0.0) return false;
    scales[sizeOf(i)] = 1.0 / most;
  }
  for (int j = 0; j < n; ++j) {
    int pivot = j;
    double most = 0.0;
    for (int i = 0; i < n; ++i) {
      double sum = a(i, j);
      for (int k = 0; k < std::min(i, j); ++k) sum -= a(i, k) * a(k, j);
      a(i, j) = sum;
      if (i >= j && scales[sizeOf(i)] * std::fabs(sum) >= most) {
        most = scales[sizeOf(i)] * std::fabs(sum);
        pivot = i;
      }
    }
    if (pivot != j) {
      for (int k = 0; k < n; ++k) std::swap(a(pivot, k), a(j, k));
      scales[sizeOf(pivot)] = scales[sizeOf(j)];
      parity = -parity;
    }
    index[j] = pivot;
    if (a(j, j) == 0.0) return false;
    const double reciprocal = 1.0 / a(j, j);
    for (int i = j + 1; i < n; ++i) a(i, j) *= reciprocal;
  }
  return true;
}

bool plain::invert(double* cells, int n, double* inverse) {
  const Cells a{cells, n};
  std::vector<int> index(sizeOf(n));
  double parity;
  if (!luFactors(cells, n, index.data(), parity)) return false;
  for (int c = 0; c < n; ++c) {
    double* x = inverse + std::ptrdiff_t{n} * c;
    for (int i = 0; i < n; ++i) x[i] = i == c ? 1.0 : 0.0;
    for (int i = 0; i < n; ++i) std::swap(x[i], x[index[sizeOf(i)]]);
    for (int i = 0; i < n; ++i) {
      for (int k = 0; k < i; ++k) x[i] -= a(i, k) * x[k];
    }
    for (int i = n - 1; i >= 0; --i) {
      for (int k = i + 1; k < n; ++k) x[i] -= a(i, k) * x[k];
      x[i] /= a(i, i);
    }
  }
  return true;
}

double plain::determinant(double* a, int n) {
  std::vector<int> index(sizeOf(n));
  double parity, logarithms = 0.0;
  if (!luFactors(a, n, index.data(), parity)) return 0.0;
  for (int i = 0; i < n; ++i) {
    const double x = Cells{a, n}(i, i);
    if (x < 0.0) parity = -parity;
    logarithms += std::log(std::fabs(x));
  }
  return parity * std::exp(logarithms);
}

bool plain::cholesky(const double* cells, int n, double* factor) {
  const ConstCells a{cells, n};
  const Cells l{factor, n};
  for (int i = 0; i < n; ++i) {
    for (int j = i; j < n; ++j) {
      double sum = a(i, j);
      for (int k = i - 1; k >= 0; --k) sum -= l(i, k) * l(j, k);
      if (i == j && sum <= 0.0) return false;
      l(j, i) = i == j ? std::sqrt(sum) : sum / l(i, i);
    }
  }
  return true;
}

bool plain::eliminate(double* cells, int n, double* sides, int m) {
  const Cells a{cells, n}, b{sides, n};
  std::vector<bool> used(sizeOf(n));
  std::vector<std::pair<int, int>> pivots;
  for (int pass = 0; pass < n; ++pass) {
    int row = 0, c = 0;
    double most = 0.0;
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) {
        if (used[sizeOf(i)] || used[sizeOf(j)] || !(std::fabs(a(i, j)) >= most)) continue;
        most = std::fabs(a(i, j));
        row = i;
        c = j;
      }
    }
    if (most == 0.0) return false;
    used[sizeOf(c)] = true;
    pivots.emplace_back(row, c);
    for (int j = 0; j < n; ++j) std::swap(a(row, j), a(c, j));
    for (int j = 0; j < m; ++j) std::swap(b(row, j), b(c, j));
    const double reciprocal = 1.0 / a(c, c);
    a(c, c) = 1.0;
    for (int j = 0; j < n; ++j) a(c, j) *= reciprocal;
    for (int j = 0; j < m; ++j) b(c, j) *= reciprocal;
    for (int i = 0; i < n; ++i) {
      if (i == c) continue;
      const double factor = a(i, c);
      a(i, c) = 0.0;
      for (int j = 0; j < n; ++j) a(i, j) -= a(c, j) * factor;
      for (int j = 0; j < m; ++j) b(i, j) -= b(c, j) * factor;
    }
  }
  for (; !pivots.empty(); pivots.pop_back()) {
    for (int i = 0; i < n; ++i) std::swap(a(i, pivots.back().first), a(i, pivots.back().second));
  }
  return true;
}

namespace {

double hypotenuse(double a, double b) {
  const double x = std::max(std::fabs(a), std::fabs(b)), y = std::min(std::fabs(a), std::fabs(b));
  return x == 0.0 ? 0.0 : x * std::sqrt(1.0 + (y / x) * (y / x));
}

/// Householder reduction to a tridiagonal table, d its diagonal, e[1 ..] beside it.
void reduce(const Cells& z, int n, double* d, double* e) {
  for (int i = n - 1; i > 0; --i) {
    double scale = 0.0, h = 0.0;
    for (int k = 0; k < i && i > 1; ++k) scale += std::fabs(z(i, k));
    d[i] = 0.0;
    e[i] = z(i, i - 1);
    if (scale == 0.0) continue;
    for (int k = 0; k < i; ++k) {
      z(i, k) /= scale;
      h += z(i, k) * z(i, k);
    }
    const double f = z(i, i - 1), g = f >= 0.0 ? -std::sqrt(h) : std::sqrt(h);
    e[i] = scale * g;
    h -= f * g;
    z(i, i - 1) = f - g;
    double product = 0.0;
    for (int j = 0; j < i; ++j) {
      z(j, i) = z(i, j) / h;
      double sum = 0.0;
      for (int k = 0; k <= j; ++k) sum += z(j, k) * z(i, k);
      for (int k = j + 1; k < i; ++k) sum += z(k, j) * z(i, k);
      e[j] = sum / h;
      product += e[j] * z(i, j);
    }
    const double half = product / (h + h);
    for (int j = 0; j < i; ++j) {
      e[j] -= half * z(i, j);
      for (int k = 0; k <= j; ++k) z(j, k) -= z(i, j) * e[k] + e[j] * z(i, k);
    }
    d[i] = h;
  }
  d[0] = e[0] = 0.0;
  for (int i = 0; i < n; ++i) {
    for (int j = 0; j < i && d[i] != 0.0; ++j) {
      double sum = 0.0;
      for (int k = 0; k < i; ++k) sum += z(i, k) * z(k, j);
      for (int k = 0; k < i; ++k) z(k, j) -= sum * z(k, i);
    }
    d[i] = z(i, i);
    z(i, i) = 1.0;
    for (int j = 0; j < i; ++j) z(j, i) = z(i, j) = 0.0;
  }
}

}  // namespace

bool plain::eigenvectors(double* cells, int n, double* d) {
  constexpr int kMostSteps = 28;
  const Cells z{cells, n};
  std::vector<double> beside(sizeOf(n) + 1);
  reduce(z, n, d, beside.data());
  double* e = beside.data() + 1;
  for (int l = 0; l < n; ++l) {
    for (int steps = 0;; ++steps) {
      int m = l;
      for (; m + 1 < n; ++m) {
        const double neighbours = std::fabs(d[m]) + std::fabs(d[m + 1]);
        if (std::fabs(e[m]) + neighbours == neighbours) break;
      }
      if (m == l) break;
      if (steps == kMostSteps) return false;
      double g = (d[l + 1] - d[l]) / (2.0 * e[l]);
      g = d[m] - d[l] + e[l] / (g + std::copysign(hypotenuse(g, 1.0), g));
      double s = 1.0, c = 1.0, p = 0.0;
      int i = m - 1;
      for (; i >= l; --i) {
        const double f = s * e[i], b = c * e[i];
        const double r = e[i + 1] = hypotenuse(f, g);
        if (r == 0.0) break;
        s = f / r;
        c = g / r;
        g = d[i + 1] - p;
        const double t = (d[i] - g) * s + 2.0 * c * b;
        p = s * t;
        d[i + 1] = g + p;
        g = c * t - b;
        for (int k = 0; k < n; ++k) {
          const double x = z(k, i), y = z(k, i + 1);
          z(k, i + 1) = s * x + c * y;
          z(k, i) = c * x - s * y;
        }
      }
      if (i >= l) {
        d[i + 1] -= p;
      } else {
        d[l] -= p;
        e[l] = g;
      }
      e[m] = 0.0;
    }
  }
  return true;
}

namespace {

double norm(const double* x, int n) {
  double scale = 0.0, squares = 1.0;
  for (int k = 0; k < n; ++k) {
    const double size = std::fabs(x[k]);
    if (size == 0.0) continue;
    const double ratio = size > scale ? scale / size : size / scale;
    squares = size > scale ? 1.0 + squares * ratio * ratio : squares + ratio * ratio;
    scale = std::max(scale, size);
  }
  return scale * std::sqrt(squares);
}

/// x becomes a reflector.
/// @return what stays of it
double reflector(double* x, int n) {
  double size = norm(x, n);
  if (size == 0.0) return 0.0;
  size = std::copysign(size, x[0]);
  const double factor = 1.0 / size;
  for (int k = 0; k < n; ++k) x[k] *= factor;
  x[0] += 1.0;
  return -size;
}

void reflect(const double* by, double* x, int n) {
  double sum = 0.0;
  for (int k = 0; k < n; ++k) sum += by[k] * x[k];
  const double factor = -sum / by[0];
  for (int k = 0; k < n; ++k) x[k] += factor * by[k];
}

void unit(double* x, int n, int j) {
  std::fill_n(x, n, 0.0);
  x[j] = 1.0;
}

void rotate(double* x, double* y, int n, double c, double s) {
  for (int k = 0; k < n; ++k) {
    const double a = x[k], b = y[k];
    x[k] = c * a + s * b;
    y[k] = c * b - s * a;
  }
}

/// The rotation that takes (a, b) to (r, 0); a becomes r.
void findRotation(double& a, double b, double& c, double& s) {
  const double scale = std::fabs(a) + std::fabs(b);
  c = 1.0;
  s = 0.0;
  if (scale == 0.0) return;
  const double x = a / scale, y = b / scale;
  const double r = std::copysign(scale * std::sqrt(x * x + y * y), std::fabs(a) > std::fabs(b) ? a : b);
  c = a / r;
  s = b / r;
  a = r;
}

/// x becomes bidiagonal, u and v what takes it there.
void reduce(const Cells& x, int n, int p, double* s, double* e, const Cells& u, const Cells& v) {
  const int columnSteps = std::min(n - 1, p), rowSteps = p - 2;
  std::vector<double> work(sizeOf(n));
  for (int l = 0; l < std::max(columnSteps, rowSteps); ++l) {
    if (l < columnSteps) s[l] = reflector(x.column(l) + l, n - l);
    for (int j = l + 1; j < p; ++j) {
      if (l < columnSteps && s[l] != 0.0) reflect(x.column(l) + l, x.column(j) + l, n - l);
      e[j] = x(l, j);
    }
    if (l < columnSteps) std::copy_n(x.column(l) + l, n - l, u.column(l) + l);
    if (l >= rowSteps) continue;
    e[l] = reflector(e + l + 1, p - l - 1);
    if (e[l] != 0.0) {
      std::fill(work.begin(), work.end(), 0.0);
      for (int j = l + 1; j < p; ++j) {
        for (int i = l + 1; i < n; ++i) work[sizeOf(i)] += e[j] * x(i, j);
      }
      for (int j = l + 1; j < p; ++j) {
        const double factor = -e[j] / e[l + 1];
        for (int i = l + 1; i < n; ++i) x(i, j) += factor * work[sizeOf(i)];
      }
    }
    std::copy(e + l + 1, e + p, v.column(l) + l + 1);
  }
  if (columnSteps < p) s[columnSteps] = x(columnSteps, columnSteps);
  e[rowSteps] = x(rowSteps, p - 1);
  e[p - 1] = 0.0;

  for (int j = columnSteps; j < p; ++j) unit(u.column(j), n, j);
  for (int l = columnSteps - 1; l >= 0; --l) {
    double* column = u.column(l);
    if (s[l] == 0.0) {
      unit(column, n, l);
      continue;
    }
    for (int j = l + 1; j < p; ++j) reflect(column + l, u.column(j) + l, n - l);
    for (int i = 0; i < n; ++i) column[i] = i < l ? 0.0 : -column[i];
    column[l] += 1.0;
  }
  for (int l = p - 1; l >= 0; --l) {
    for (int j = l + 1; j < p && l < rowSteps && e[l] != 0.0; ++j) {
      reflect(v.column(l) + l + 1, v.column(j) + l + 1, p - l - 1);
    }
    unit(v.column(l), p, l);
  }
}

/// The shift of a step on values first .. m - 1: where its rotations start.
std::pair<double, double> shifted(const double* s, const double* e, int first, int m) {
  double scale = 0.0;
  for (double x : {s[m - 1], s[m - 2], e[m - 2], s[first], e[first]}) scale = std::max(scale, std::fabs(x));
  const double sm = s[m - 1] / scale, before = s[m - 2] / scale, em = e[m - 2] / scale;
  const double sl = s[first] / scale, el = e[first] / scale;
  const double b = ((before + sm) * (before - sm) + em * em) / 2.0, c = sm * em * (sm * em);
  double shift = 0.0;
  if (b != 0.0 || c != 0.0) shift = c / (b + std::copysign(std::sqrt(b * b + c), b));
  return {(sl + sm) * (sl - sm) + shift, sl * el};
}

bool negligible(double x, double neighbours) {
  return std::fabs(neighbours + std::fabs(x) - neighbours) < std::numeric_limits<double>::epsilon();
}

}  // namespace

bool plain::singularVectors(double* cells, int n, int p, double* s, double* left, double* right) {
  constexpr int kMostSteps = 30;
  const Cells u{left, n}, v{right, p};
  std::vector<double> beside(sizeOf(p));
  double* e = beside.data();
  reduce({cells, n}, n, p, s, e, u, v);
  double cosine, sine;
  for (int m = p, steps = 0; m > 0;) {
    if (steps == kMostSteps) return false;
    int l = m - 2;
    while (l >= 0 && !negligible(e[l], std::fabs(s[l]) + std::fabs(s[l + 1]))) --l;
    if (l >= 0) e[l] = 0.0;
    const int first = l + 1;
    if (first == m - 1) {
      if (s[first] < 0.0) {
        s[first] = -s[first];
        for (int i = 0; i < p; ++i) v(i, first) = -v(i, first);
      }
      for (int k = first; k + 1 < p && s[k] < s[k + 1]; ++k) {
        std::swap(s[k], s[k + 1]);
        std::swap_ranges(u.column(k), u.column(k) + n, u.column(k + 1));
        std::swap_ranges(v.column(k), v.column(k) + p, v.column(k + 1));
      }
      --m;
      steps = 0;
      continue;
    }
    int zero = m - 1;
    while (zero >= first && !negligible(s[zero], (zero < m - 1 ? std::fabs(e[zero]) : 0.0) +
                                                     (zero > first ? std::fabs(e[zero - 1]) : 0.0))) {
      --zero;
    }
    if (zero >= first) s[zero] = 0.0;
    if (zero == m - 1) {
      double f = std::exchange(e[m - 2], 0.0);
      for (int k = m - 2; k >= first; --k) {
        findRotation(s[k], f, cosine, sine);
        if (k > first) {
          f = -sine * e[k - 1];
          e[k - 1] *= cosine;
        }
        rotate(v.column(k), v.column(m - 1), p, cosine, sine);
      }
    } else if (zero >= first) {
      double f = std::exchange(e[zero], 0.0);
      for (int k = zero + 1; k < m; ++k) {
        findRotation(s[k], f, cosine, sine);
        f = -sine * e[k];
        e[k] *= cosine;
        rotate(u.column(k), u.column(zero), n, cosine, sine);
      }
    } else {
      auto [f, g] = shifted(s, e, first, m);
      for (int k = first; k < m - 1; ++k) {
        findRotation(f, g, cosine, sine);
        if (k > first) e[k - 1] = f;
        f = cosine * s[k] + sine * e[k];
        e[k] = cosine * e[k] - sine * s[k];
        g = sine * s[k + 1];
        s[k + 1] *= cosine;
        rotate(v.column(k), v.column(k + 1), p, cosine, sine);
        findRotation(f, g, cosine, sine);
        s[k] = f;
        f = cosine * e[k] + sine * s[k + 1];
        s[k + 1] = cosine * s[k + 1] - sine * e[k];
        g = sine * e[k + 1];
        e[k + 1] *= cosine;
        rotate(u.column(k), u.column(k + 1), n, cosine, sine);
      }
      e[m - 2] = f;
      ++steps;
    }
  }
  return true;
}

namespace {

constexpr double kSmall = 1e-12;

double& packedAt(double* s, int i, int j) {
  const std::ptrdiff_t row = std::max(i, j), column = std::min(i, j);
  return s[row * (row + 1) / 2 + column];
}

/// Whether variable j can be swept on beside those that have been.
bool maySweepOn(double* s, int p, int j, double tolerance) {
  const double d = packedAt(s, j, j);
  if (!(d > 0.0) || d < tolerance) return false;
  for (int k = 0; k < p; ++k) {
    const double own = packedAt(s, k, k), shared = packedAt(s, k, j);
    if (k != j && own < 0.0 && 1.0 / (std::fabs(own) + shared * shared / d) < tolerance) return false;
  }
  return true;
}

}  // namespace

void plain::sweep(double* s, int q, int k) {
  const double d = packedAt(s, k, k), sign = d < 0.0 ? -1.0 : 1.0;
  packedAt(s, k, k) = -1.0 / d;
  for (int i = 0; i < q; ++i) {
    if (i == k) continue;
    const double a = packedAt(s, i, k);
    packedAt(s, i, k) = a / std::fabs(d);
    for (int j = 0; j <= i; ++j) {
      if (j == k) continue;
      const double x = packedAt(s, i, j) - a * packedAt(s, j, k) * sign;
      packedAt(s, i, j) = std::fabs(x) < kSmall ? 0.0 : x;
    }
  }
}

void plain::tolerances(const double* cells, int p, double tolerance, double* left) {
  const ConstCells r{cells, p};
  std::vector<double> packed(sizeOf(p + 1) * sizeOf(p + 2) / 2);
  double* s = packed.data();
  for (int k = 0; k < p; ++k) {
    for (int i = 0; i < p; ++i) {
      for (int j = 0; j <= i; ++j) packedAt(s, i, j) = r(i, j);
    }
    for (int j = 0; j < p; ++j) packedAt(s, p, j) = r(j, k);
    packedAt(s, p, k) = packedAt(s, p, p) = 1.0;
    for (int j = p - 1; j >= 0; --j) {
      if (j == k || !maySweepOn(s, p, j, tolerance)) continue;
      sweep(s, p + 1, j);
      left[k] = packedAt(s, p, p);
      if (left[k] < tolerance) break;
    }
  }
}

void plain::leastSquares(const double* x, const double* y, const double* weights, int n, int p,
                         double* fitted) {
  const int q = p + 1;
  const std::unique_ptr<bool[]> missing(new bool[static_cast<std::size_t>(n * q)]());
  std::vector<double> design(x, x + std::ptrdiff_t{n} * p), c(static_cast<std::size_t>(q * q)), packed, means;
  design.insert(design.end(), y, y + n);
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
  for (int k = 0; k < p; ++k) sweep(packed.data(), q, k);
  std::vector<double> slopes;
  double intercept = means.back();
  for (int k = 0; k < p; ++k) {
    slopes.push_back(deviation(p) / deviation(k) * packedAt(packed.data(), p, k));
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

void plain::fillFromNearest(double* numbers, bool* missing, int n, int p, std::u16string* labels,
                            int labelColumns) {
  constexpr double kFar = std::numeric_limits<double>::infinity();
  const auto at = [n](int i, int j) { return i + std::ptrdiff_t{n} * j; };
  const auto absent = [&](int i, int j) { return j < p ? missing[at(i, j)] : labels[at(i, j - p)].empty(); };
  std::vector<double> ranges;
  for (int j = 0; j < p; ++j) {
    double least = kFar, most = -kFar;
    for (int i = 0; i < n; ++i) {
      if (missing[at(i, j)]) continue;
      least = std::min(least, numbers[at(i, j)]);
      most = std::max(most, numbers[at(i, j)]);
    }
    ranges.push_back(least < most ? most - least : 0.0);
  }
  const auto distance = [&](int i, int k) {
    double sum = 0.0;
    for (int j = 0; j < p; ++j) {
      const double x = numbers[at(i, j)], y = numbers[at(k, j)], range = ranges[sizeOf(j)];
      if (missing[at(i, j)] || missing[at(k, j)]) {
        sum += 1.0;
      } else if (range == 0.0) {
        sum += x == y ? 0.0 : 1.0;
      } else {
        const double d = (x - y) / range;
        sum += std::isnan(d) ? 1.0 : d * d;
      }
    }
    for (int j = 0; j < labelColumns; ++j) {
      const std::u16string &x = labels[at(i, j)], &y = labels[at(k, j)];
      sum += x.empty() || y.empty() || x != y ? 1.0 : 0.0;
    }
    return sum;
  };

  struct Wanted {
    int row, column;
    double distance;
    int donor;
  };
  // Filled at the end: what is filled teaches nothing.
  std::vector<Wanted> all;
  for (int i = 0; i < n; ++i) {
    const std::size_t first = all.size();
    for (int j = 0; j < p + labelColumns; ++j) {
      if (absent(i, j)) all.push_back({i, j, kFar, -1});
    }
    if (all.size() == first) continue;
    for (int k = 0; k < n; ++k) {
      const double d = distance(i, k);
      for (std::size_t c = first; c < all.size(); ++c) {
        if (!(d < all[c].distance) || absent(k, all[c].column)) continue;
        all[c].distance = d;
        all[c].donor = k;
      }
    }
  }
  for (const Wanted& cell : all) {
    if (cell.donor < 0) continue;
    if (cell.column < p) {
      numbers[at(cell.row, cell.column)] = numbers[at(cell.donor, cell.column)];
      missing[at(cell.row, cell.column)] = false;
    } else {
      labels[at(cell.row, cell.column - p)] = labels[at(cell.donor, cell.column - p)];
    }
  }
}
