#include "kavoratb1c/regression/newton_raphson.h"

#include <climits>
#include <cmath>

#include "support/data.h"
#include "support/tables.h"

namespace {

using Doubles = std::vector<double>;

/// Parameters and all that a step works on; results that it has not written hold 4.75.
struct Step {
  Step(const Doubles& start, const Doubles& slopes, const Doubles& curvatures)
      : p(static_cast<int>(start.size())),
        parameters(p, 1, start.data(), true, 0, 0),
        gradient(p, 1, slopes.data(), true, 0, 0),
        hessian(p, p, curvatures.data(), true, 0, 0) {}

  int take(double tolerance, short limited = 0, double largest = 1.0) {
    matrix *b = &parameters, *se = &errors, *h = &inverse;
    return cNewtonRaphson(b, p, &excluded, &gradient, &hessian, tolerance, se, h, limited, largest);
  }

  void expect(const Doubles& b, const Doubles& se, const Doubles& inverted) const {
    EXPECT_TRUE(bits::equal(cellsOf(parameters), b));
    EXPECT_TRUE(bits::equal(cellsOf(errors), se));
    EXPECT_TRUE(bits::equal(cellsOf(inverse), inverted));
  }

  int p;
  matrix parameters, gradient, hessian, excluded{p, 1, 0.0}, errors{p, 1, 4.75}, inverse{p, p, 4.75};
};

}  // namespace

TEST(NewtonRaphson, OneParameter) {
  const struct {
    double tolerance;
    short limited;
    double largest, after;
    int status;
  } steps[] = {{0.1, 0, 0.25, 0.5, 0}, {0.1, -1, 0.25, 0.75, 0}, {0.5, 0, 1.0, 0.5, 1},
               {0.1, 1, 0.25, 0.5, 0}, {0.1, -1, 0.5, 0.5, 0},   {0.25, -1, 0.25, 0.75, 1},
               {0.1, -1, 0.0, 1.0, 1}, {0.49, 0, 1.0, 0.5, 0}};
  for (const auto& s : steps) {
    Step step({1.0}, {2.0}, {4.0});
    EXPECT_EQ(step.take(s.tolerance, s.limited, s.largest), s.status);
    step.expect({s.after}, {0.5}, {0.25});
  }
}

TEST(NewtonRaphson, ExcludedParametersAndSingularHessians) {
  // Without the second variable the inverse is (1 -1 / -1 2), the step (1, -1).
  const Doubles inverse = {1.0, 0.0, -1.0, 0.0, 0.0, 0.0, -1.0, 0.0, 2.0};
  Step step({5.0, 6.0, 7.0}, {1.0, 1e9, 0.0}, {2.0, 9.0, 1.0, 9.0, 9.0, 9.0, 1.0, 9.0, 1.0});
  step.excluded.setElement(1, 2.0);
  EXPECT_EQ(step.take(1.0), 1);
  step.expect({4.0, 6.0, 8.0}, {1.0, 4.75, std::sqrt(2.0)}, inverse);
  EXPECT_EQ(step.take(0.25, -1, 0.5), 0);
  step.expect({3.5, 6.0, 8.5}, {1.0, 4.75, std::sqrt(2.0)}, inverse);
  step.hessian.setElement(0, 1.0);
  EXPECT_EQ(step.take(9.0), -1);
  step.p = INT_MIN;
  EXPECT_EQ(step.take(9.0), 1);
  step.expect({3.5, 6.0, 8.5}, {1.0, 4.75, std::sqrt(2.0)}, inverse);
  matrix *b = &step.parameters, *errors = nullptr, *inverted = nullptr;
  EXPECT_EQ(cNewtonRaphson(b, 3, b, b, b, 0.0, errors, inverted, 0, 1.0), 1);  // all excluded
  const std::unique_ptr<matrix> first(errors), second(inverted);
  EXPECT_EQ(first->nX * 10 + first->pX, 31);
  EXPECT_TRUE(holds(*second, 3, 3, Doubles(9, 0.0)));
}

// Automatic gear by weight and, or not, power; expected values were computed elsewhere, their file tells how.
TEST(NewtonRaphson, DrivesALogisticRegressionToConvergence) {
  const data::Table car("reference/mtcars.csv");
  int compared = 0;
  for (const auto& expected : data::rowsOf("reference/regression_computed.csv", "logistic")) {
    Step step(Doubles(3), Doubles(3), Doubles(9));
    step.excluded.setElement(2, expected.size() == 3);
    int status = 0;
    for (int round = 0; round < 60 && status == 0; ++round) {
      matrix *g = &step.gradient, *h = &step.hessian;
      matrix::matCheck(g, 3, 1, 0.0);
      matrix::matCheck(h, 3, 3, 0.0);
      for (int i = 1; i <= car.n; ++i) {
        const double x[] = {1.0, car(i, 7), car(i, 5)};
        const double* b = step.parameters.values;
        const double mean = 1.0 / (1.0 + std::exp(-x[0] * b[0] - x[1] * b[1] - x[2] * b[2]));
        for (int j = 0; j < 3; ++j) g->values[j] += x[j] * (mean - car(i, 10));
        for (int k = 0; k < 9; ++k) h->values[k] += x[k % 3] * x[k / 3] * mean * (1.0 - mean);
      }
      status = step.take(1e-11, -1, 4.0);
    }
    EXPECT_EQ(status, 1);
    const bool deviations = expected[0].find("errors") != std::string::npos;
    for (std::size_t k = 1; k < expected.size(); ++k, ++compared) {
      const double value = std::stod(expected[k]);
      EXPECT_NEAR((deviations ? step.errors : step.parameters).values[k - 1], value,
                  1e-10 * std::fabs(value));
    }
  }
  EXPECT_EQ(compared, 10);
}
