// Least squares.

#include <memory>
#include <string>

#include "data.h"
#include "kavoratb1c/algebra/covariance.h"
#include "kavoratb1c/regression/least_squares.h"
#include "peers.h"
#include "plain_forms.h"
#include "ratios.h"

using namespace kav;

namespace {

/// A response that the table explains but for noise.
std::shared_ptr<matrix> responseOf(const Data& d) {
  auto y = std::make_shared<matrix>(d.n, 1);
  for (int i = 0; i < d.n; ++i) {
    double sum = 2.385 + 0.1 * d.b->values[i];
    for (int j = 0; j < d.p; ++j) sum += (j + 1.0) * d.a->values[i + std::ptrdiff_t{d.n} * j];
    y->values[i] = sum;
  }
  return y;
}

void enterRegressions(int n, int p) {
  const auto data = std::make_shared<Data>(n, p);
  const auto y = responseOf(*data), weights = std::make_shared<matrix>(n, 1, 1.0);
  const std::string work = "OLSBasic2 of " + withThousands(n) + " x " + std::to_string(p);
  contest(work, "library", keeping(data, [=](Data& d) {
            matrix *b = nullptr, *se = nullptr, *fitted = nullptr;
            OLSBasic2(d.n, d.p, d.a, y.get(), weights.get(), 1, kFalse, kFalse, 1e-9, b, se, fitted);
            for (const matrix* m : {b, se, fitted}) delete m;
          }));
  contest(work, "its M_CovCorr alone", keeping(data, [=](Data& d) {
            M_CovCorr(d.a, d.n, d.p, d.c, kTrue, nullptr, weights.get(), kTrue, kTrue);
          }));
  contest(work, "plain loops", keeping(data, [=](Data& d) {
            d.result.resize(d.n, 1);
            plain::leastSquares(d.a->values, y->values, weights->values, d.n, d.p, d.result.data());
          }));
  peers::enterArmadilloLeastSquares(work, data->a->values, y->values, n, p);
  peers::enterLapackLeastSquares(work, data->a->values, y->values, n, p);
}

}  // namespace

void enterRegressions() {
  openTable("Regressions");
  enterRegressions(200, 100);
  enterRegressions(1000000, 10);
}
