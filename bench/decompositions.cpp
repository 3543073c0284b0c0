// Eigenvalues, singular values, factorizations, elimination and sweeps.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <vector>

#include "data.h"
#include "definitions/cholesky.h"
#include "definitions/collinearity.h"
#include "definitions/eigenvalues.h"
#include "definitions/lu.h"
#include "definitions/singular_values.h"
#include "eigen_decompositions.h"
#include "kavoratb1c/decomp/cholesky.h"
#include "kavoratb1c/decomp/collinearity.h"
#include "kavoratb1c/decomp/eigen.h"
#include "kavoratb1c/decomp/elimination.h"
#include "kavoratb1c/decomp/lu.h"
#include "kavoratb1c/decomp/singular_values.h"
#include "kernels/kernels.h"
#include "peers.h"
#include "plain_forms.h"
#include "ratios.h"

using namespace kav;

namespace {

using definitions::Cells;

std::size_t sizeOf(int n) { return static_cast<std::size_t>(n); }

/// A positive definite table: cross products of random columns, by the number of rows.
std::shared_ptr<Data> positiveDefinite(int n) {
  auto data = std::make_shared<Data>(n, n);
  const Eigen::MatrixXd products = data->mapA().transpose() * data->mapA() / n;
  for (int j = 0; j < n; ++j) {
    for (int i = 0; i < n; ++i) data->a->values[i + std::ptrdiff_t{n} * j] = products(i, j) + (i == j);
  }
  return data;
}

/// Eigen in both forms: f(decompositions, data).
template <class F>
void enterEigen(const std::string& work, const std::string& what, const std::shared_ptr<Data>& data, F f) {
  contest(work, "Eigen " + what + ", SSE2",
          keeping(data, [f](Data& d) { benchmark::DoNotOptimize(f(by_eigen::kAll, d)); }));
  int count;
  kernels::supported(&count);
  if (count < 2) return;
  contest(work, "Eigen " + what + ", AVX2 with fused multiply-add",
          keeping(data, [f](Data& d) { benchmark::DoNotOptimize(f(peers::decompositionsAvx2(), d)); }));
}

void enterEigenvectors(int n) {
  struct Results {
    matrix *values = nullptr, *vectors = nullptr;
    ~Results() {
      delete values;
      delete vectors;
    }
  };
  const auto data = positiveDefinite(n);
  const std::string work = "M_Eigen of " + sizes(n, n);
  contest(work, "library", keeping(data, [results = std::make_shared<Results>()](Data& d) {
            M_Eigen(d.a, results->values, results->vectors, d.n, 0);
          }));
  contest(work, "plain loops",
          keeping(data, [values = std::make_shared<std::vector<double>>(sizeOf(n))](Data& d) {
            definitions::eigenvalues(Cells{d.copyInB()->values, d.n}, d.n, values->data());
          }));
  enterEigen(work, "SelfAdjointEigenSolver", data, [](const peers::Decompositions& by, const Data& d) {
    return by.eigenvectors(d.a->values, d.n);
  });
  peers::enterLapackEigenvectors(work, data->a->values, n);
  peers::enterGslEigenvectors(work, data->a->values, n);
}

void enterSingularVectors(int n, int p) {
  struct Results {
    Results(int rows, int columns) : s(columns + 1, 1), u(rows, columns), v(columns, columns) {}
    matrix s, u, v;
  };
  const auto data = std::make_shared<Data>(n, p);
  const auto results = std::make_shared<Results>(n, p);
  const std::string work = "M_SVDecomp of " + sizes(n, p);
  contest(work, "library", keeping(data, [results](Data& d) {
            constexpr int kBothSides = 21;
            int info;
            M_SVDecomp(d.copyInB(), d.n, d.p, &results->s, &results->u, d.n, &results->v, d.p, kBothSides,
                       info);
          }));
  contest(work, "plain loops", keeping(data, [results](Data& d) {
            const Cells x{d.copyInB()->values, d.n}, u{results->u.values, d.n}, v{results->v.values, d.p};
            definitions::SingularValues<Cells>{d.n, d.p, d.p, x, u, v}.run();
          }));
  enterEigen(work, "BDCSVD", data, [](const peers::Decompositions& by, const Data& d) {
    return by.singularVectors(d.a->values, d.n, d.p);
  });
  peers::enterLapackSingularVectors(work, data->a->values, n, p);
  peers::enterGslSingularVectors(work, data->a->values, n, p);
}

void enterCholesky(int n) {
  const auto data = positiveDefinite(n);
  const std::string work = "M_CholDecomp of " + sizes(n, n);
  contest(work, "library", keeping(data, [](Data& d) { M_CholDecomp(d.a, d.n, d.c); }));
  contest(work, "plain loops", keeping(data, [](Data& d) {
            definitions::cholesky(Cells{d.a->values, d.n}, d.n, Cells{d.b->values, d.n});
          }));
  enterEigen(work, "LLT", data,
             [](const peers::Decompositions& by, const Data& d) { return by.cholesky(d.a->values, d.n); });
  peers::enterLapackCholesky(work, data->a->values, n);
}

void enterLuFactors(int n) {
  const auto data = std::make_shared<Data>(n, n);
  const std::string work = "M_LUDecomp of " + sizes(n, n);
  contest(work, "library", keeping(data, [index = std::make_shared<matrix>(n, 1)](Data& d) {
            matrix *a = d.copyInB(), *rows = index.get();
            double parity;
            short status;
            M_LUDecomp(a, d.n, rows, parity, status);
          }));
  contest(work, "plain loops",
          keeping(data, [index = std::make_shared<std::vector<int>>(sizeOf(n))](Data& d) {
            double parity;
            definitions::luFactors(Cells{d.copyInB()->values, d.n}, d.n, parity,
                                   [&](int j, int row) { (*index)[sizeOf(j)] = row; });
          }));
  enterEigen(work, "PartialPivLU", data,
             [](const peers::Decompositions& by, const Data& d) { return by.luFactors(d.a->values, d.n); });
  peers::enterLapackLuFactors(work, data->a->values, n);
}

void enterDeterminants(int n) {
  const auto data = std::make_shared<Data>(n, n);
  const std::string work = "M_Determinant of " + sizes(n, n);
  contest(work, "library", keeping(data, [](Data& d) {
            short status;
            benchmark::DoNotOptimize(M_Determinant(d.a, d.n, status));
          }));
  contest(work, "plain loops", keeping(data, [](Data& d) {
            benchmark::DoNotOptimize(plain::determinant(d.copyInB()->values, d.n));
          }));
  enterEigen(work, "determinant", data,
             [](const peers::Decompositions& by, const Data& d) { return by.determinant(d.a->values, d.n); });
  peers::enterLapackLuFactors(work, data->a->values, n);
}

void enterElimination(int n) {
  const auto data = std::make_shared<Data>(n, n);
  const auto side = std::make_shared<matrix>(n, 1);
  const auto refilled = [side] {
    std::fill_n(side->values, side->nX, 1.0);
    return side.get();
  };
  const std::string work = "M_Gauss of " + sizes(n, n) + ", one right-hand side";
  contest(work, "library", keeping(data, [refilled](Data& d) { M_Gauss(d.copyInB(), d.n, 1, refilled()); }));
  contest(work, "plain loops", keeping(data, [refilled](Data& d) {
            definitions::eliminate(Cells{d.copyInB()->values, d.n}, d.n, Cells{refilled()->values, d.n}, 1);
          }));
  enterEigen(work, "FullPivLU, inverse", data, [](const peers::Decompositions& by, const Data& d) {
    return by.inverseByFullPivoting(d.a->values, d.n);
  });
  peers::enterLapackInverse(work, data->a->values, n);
}

void enterSweeps(int p) {
  const auto table = positiveDefinite(p);
  // The lower triangle row after row, of a table that need not live on.
  const auto data = std::make_shared<Data>(p * (p + 1) / 2, 1);
  double* cells = data->a->values;
  for (int i = 0; i < p; ++i) {
    for (int j = 0; j <= i; ++j) *cells++ = table->mapA()(i, j);
  }
  const std::string work = "M_Sweep of " + withThousands(p) + " variables, on all";
  contest(work, "library", keeping(data, [p](Data& d) {
            matrix* s = d.copyInB();
            for (int k = 1; k <= p; ++k) M_Sweep(s, p, k);
          }));
  contest(work, "plain loops", keeping(data, [p](Data& d) {
            const definitions::Packed<Cells> s{{d.copyInB()->values, 0}};
            for (int k = 0; k < p; ++k) definitions::sweep(s, p, k);
          }));
  peers::enterLapackPackedInverse(work, data->a->values, p);
}

/// Correlations that fall with the distance of two variables, so that all can be kept.
void enterToleranceChecks(int p) {
  constexpr double kTolerance = 1e-4;
  struct Variables {
    explicit Variables(int count)
        : selection(1, 1, 1.0),
          group(new matrix(count, 1, 1.0)),
          status(count, 1),
          tolerances(count, 1),
          inflations(count, 1) {}
    Variables(const Variables&) = delete;
    ~Variables() { delete group; }
    matrix selection;
    matrix* group;
    matrix status, tolerances, inflations;
  };
  const auto data = std::make_shared<Data>(p, p);
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < p; ++i) data->a->values[i + std::ptrdiff_t{p} * j] = std::pow(0.5, std::abs(i - j));
  }
  const auto variables = std::make_shared<Variables>(p);
  const std::string work = "CheckTolerance of " + withThousands(p) + " variables";
  contest(work, "library", keeping(data, [v = variables](Data& d) {
            CheckTolerance(d.a, d.n, 1, &v->selection, nullptr, v->group, kTolerance, kTrue, kFalse, kFalse,
                           &v->status, &v->tolerances, &v->inflations);
          }));
  contest(work, "plain loops",
          keeping(data, [results = std::make_shared<std::vector<double>>(3 * sizeOf(p))](Data& d) {
            definitions::CollinearityCheck check{d.n};
            check.tolerance = kTolerance;
            definitions::Collinearity(check, Cells{d.a->values, d.n}, *results);
          }));
}

}  // namespace

void enterDecompositions() {
  openTable("Decompositions");
  for (int n : {100, 300, 500}) enterEigenvectors(n);
  enterSingularVectors(300, 100);
  enterSingularVectors(300, 300);
  enterSingularVectors(500, 500);
  for (int n : {100, 500, 1000}) enterCholesky(n);
  for (int n : {100, 500}) enterLuFactors(n);
  for (int n : {100, 500}) enterDeterminants(n);
  for (int n : {100, 300}) enterElimination(n);
  for (int p : {100, 300, 1000}) enterSweeps(p);
  for (int p : {50, 200}) enterToleranceChecks(p);
}
