#include "peers.h"

#if defined(KAV_ARMADILLO)

#define ARMA_DONT_USE_WRAPPER
#include <armadillo>
#include <memory>

#include "ratios.h"

namespace {

arma::mat tableOf(const double* a, int n, int p) {
  return arma::mat(const_cast<double*>(a), static_cast<arma::uword>(n), static_cast<arma::uword>(p), false,
                   true);
}

}  // namespace

void peers::enterArmadilloStatistics(const std::string& work, const double* a, int n, int p) {
  contest(work, "Armadillo, mean and stddev", [=] {
    const arma::mat table = tableOf(a, n, p);
    const arma::rowvec means = arma::mean(table), deviations = arma::stddev(table);
    benchmark::DoNotOptimize(means(0) + deviations(0));
  });
}

void peers::enterArmadilloStandardization(const std::string& work, const double* a, int n, int p) {
  const auto table = std::make_shared<arma::mat>(a, static_cast<arma::uword>(n), static_cast<arma::uword>(p));
  contest(work, "Armadillo, mean, stddev and division", [table] {
    const arma::rowvec means = arma::mean(*table), deviations = arma::stddev(*table);
    table->each_row() -= means;
    table->each_row() /= deviations;
  });
}

void peers::enterArmadilloCovariance(const std::string& work, const double* a, int n, int p) {
  contest(work, "Armadillo, cov",
          [=] { benchmark::DoNotOptimize(arma::mat(arma::cov(tableOf(a, n, p)))(0)); });
}

void peers::enterArmadilloInverse(const std::string& work, const double* a, int n) {
  contest(work, "Armadillo, LAPACK getrf and getri",
          [=] { benchmark::DoNotOptimize(arma::mat(arma::inv(tableOf(a, n, n)))(0)); });
}

void peers::enterArmadilloLeastSquares(const std::string& work, const double* x, const double* y, int n,
                                       int p) {
  contest(work, "Armadillo, solve", [=] {
    const auto rows = static_cast<arma::uword>(n);
    const arma::mat design = arma::join_rows(tableOf(x, n, p), arma::ones(rows));
    const arma::vec response(const_cast<double*>(y), rows, false, true);
    benchmark::DoNotOptimize(arma::vec(arma::solve(design, response))(0));
  });
}

#else

void peers::enterArmadilloStatistics(const std::string&, const double*, int, int) {}
void peers::enterArmadilloStandardization(const std::string&, const double*, int, int) {}
void peers::enterArmadilloCovariance(const std::string&, const double*, int, int) {}
void peers::enterArmadilloInverse(const std::string&, const double*, int) {}
void peers::enterArmadilloLeastSquares(const std::string&, const double*, const double*, int, int) {}

#endif
