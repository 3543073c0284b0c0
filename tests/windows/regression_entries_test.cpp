// What the regression entries give a macro, each called through the type library with numbers worked out by
// hand. Results have just the room they need; the cells around them must stay.

#include <gtest/gtest.h>

#include <cmath>

#include "windows/any_entry.h"

namespace {

constexpr double kMarker = -1.79769313486231E+308, kUntouched = 9.5;

using Doubles = std::vector<double>;

class RegressionEntries : public testing::Test {
 protected:
  /// The cells from the second one on; the marker's neighbours are no markers.
  static void expectCells(const Doubles& actual, Doubles expected, const char* what) {
    expected.insert(expected.begin(), kUntouched);
    expected.resize(actual.size(), kUntouched);
    for (std::size_t k = 0; k < actual.size(); ++k) {
      const bool exact = expected[k] == kUntouched || expected[k] == kMarker;
      EXPECT_NEAR(actual[k], expected[k], exact ? 0.0 : 1e-12) << what << ", " << k;
    }
  }

  /// Both entries' results of one regression; null errors are not compared.
  void fits(int n, int degree, bool origin, int status, const Doubles& coefficients, const Doubles* errors,
            const Doubles& fitted) {
    const int p = n < 1 ? 1 : static_cast<int>(x.size()) / n;
    for (const wchar_t* entry : {L"RunOLSBasic", L"RunOLSBasic2"}) {
      Doubles b(12, kUntouched), se = b, line = b;
      std::vector<macro::Argument> arguments = {n, p, x, y, w, degree, true, origin, 1e-10, b.data() + 1};
      if (entry[11] == L'2') arguments.emplace_back(se.data() + 1);
      arguments.emplace_back(line.data() + 1);
      EXPECT_EQ(dll().integer(entry, arguments), status);
      expectCells(b, coefficients, "coefficients"), expectCells(line, fitted, "fitted");
      if (entry[11] == L'2' && errors != nullptr) expectCells(se, *errors, "errors");
    }
  }

  Doubles x = {1, 2, 3, 4}, y = {2, 4, 5, 7}, w = {1, 1, 1, 1, 0};
};

}  // namespace

TEST_F(RegressionEntries, LeastSquares) {
  const Doubles line = {2.1, 3.7, 5.3, 6.9}, none, unknown = {kMarker, kMarker};
  // Sums about the means 2.5 and 4.5: 5 of squares, 8 of products; 0.2 of squared residuals.
  const Doubles errors = {std::sqrt(0.02), std::sqrt(0.15)}, wider = {std::sqrt(0.04), 0, std::sqrt(0.3)};
  fits(4, 1, false, 0, {1.6, 0.5}, &errors, line);
  x.insert(x.end(), 4, 7.0);
  fits(4, 1, false, 0, {1.6, 0, 0.5}, &wider, line);
  // A row of missing cells without weight is a row all the same.
  const Doubles fifth = {std::sqrt(0.2 / 15.0), std::sqrt(0.1)};
  x = {1, 2, 3, 4, kMarker}, y = {2, 4, 5, 7, kMarker};
  fits(5, 1, false, 0, {1.6, 0.5}, &fifth, {2.1, 3.7, 5.3, 6.9, 0.5});
  // Sums about 0: 14 of squares, 31 of products, 5 / 14 of squared residuals over one degree of freedom.
  const Doubles origin = {std::sqrt(5.0) / 14.0, 0};
  x = {1, 2, 3}, y = {2, 4, 7};
  fits(3, 1, true, 0, {31.0 / 14.0, 0}, &origin, {31.0 / 14.0, 31.0 / 7.0, 93.0 / 14.0});
  x = {1, 2}, y = {3, 5};
  fits(2, 1, false, 0, {2, 1}, &unknown, {3, 5});
  for (const int degree : {0, -2}) fits(2, degree, false, -1, {}, &none, {});
  fits(0, 1, false, -1, {}, &none, {});
  // 2 - x + x^2 with weights, then 1 + 2 x1 x2.
  x = {0, 1, 2, 3, 4}, y = {2, 2, 4, 8, 14}, w = {1, 2, 1, 3, 1};
  fits(5, 2, false, 0, {-1, 1, 2}, nullptr, y);
  x = {0, 1, 2, 0, 1, 2, 0, 2, 0, 0, 0, 1, 1, 1, 2, 2}, y = {1, 1, 1, 1, 3, 5, 1, 9}, w = Doubles(8, 1.0);
  fits(8, 2, false, 0, {0, 0, 0, 0, 2, 1}, nullptr, y);
}

TEST_F(RegressionEntries, NewtonSteps) {
  struct {
    Doubles start, gradient, hessian;
    std::vector<int> excluded;
    double tolerance;
    bool limited;
    int status;
    Doubles after, errors, inverse;
  } steps[] = {
      {{1}, {2}, {4}, {0}, 0.5, false, 1, {0.5}, {0.5}, {0.25}},
      {{1}, {2}, {4}, {0}, 0.1, true, 0, {0.75}, {0.5}, {0.25}},
      {{5, 6}, {1, 2}, {4, 99, 99, 99}, {0, 1}, 0.25, false, 1, {4.75, 6}, {0.5}, {0.25, 0, 0, 0}},
      {{5, 6}, {1, 0}, {2, 1, 1, 1}, {0, 0}, 0.1, false, 0, {4, 7}, {1, std::sqrt(2.0)}, {1, -1, -1, 2}},
      {{5, 6}, {1, 2}, {1, 2, 2, 4}, {0, 0}, 9.0, false, -1, {5, 6}, {}, {}},
  };
  for (auto& s : steps) {
    Doubles b(6, kUntouched), se = b, inverse = b;
    std::copy(s.start.begin(), s.start.end(), b.begin() + 1);
    const auto p = static_cast<int>(s.start.size());
    EXPECT_EQ(
        dll().integer(L"NewtonRaphson", {b.data() + 1, p, s.excluded, s.gradient, s.hessian, s.tolerance,
                                         se.data() + 1, inverse.data() + 1, s.limited, 0.25}),
        s.status);
    expectCells(b, s.after, "b"), expectCells(se, s.errors, "se"), expectCells(inverse, s.inverse, "inverse");
  }
}
