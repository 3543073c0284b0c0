// What the table entries for products, elements, standardization and covariance give a macro, each called
// through the type library with real numbers.

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "windows/any_entry.h"

namespace {

constexpr double kMarker = -1.79769313486231E+308, kUntouched = 9.5;
constexpr bool kStays = true;

using Doubles = std::vector<double>;
using Flags = std::vector<VARIANT_BOOL>;
using Arguments = std::vector<macro::Argument>;

/// Entries are named without their common prefix, VB_M_.
class AlgebraEntries : public testing::Test {
 protected:
  double call(const std::wstring& name, const Arguments& arguments) {
    entry_ = L"VB_M_" + name;
    const VARIANT result = dll().call(entry_, arguments);
    const VARTYPE type = dll().procedure(entry_).result;
    return type == VT_INT ? result.intVal : type == VT_R8 ? result.dblVal : 0.0;
  }
  void returns(const std::wstring& name, const Arguments& arguments, double expected) {
    EXPECT_EQ(call(name, arguments), expected) << plain(entry_);
  }
  /// The cells behind those expected must be untouched; the marker's neighbours are no markers.
  void expectCells(const Doubles& actual, Doubles expected) const {
    expected.resize(actual.size(), kUntouched);
    for (std::size_t k = 0; k < expected.size(); ++k) {
      EXPECT_DOUBLE_EQ(actual[k], expected[k]) << plain(entry_) << ", cell " << k + 1;
      EXPECT_EQ(actual[k] == kMarker, expected[k] == kMarker) << plain(entry_) << ", cell " << k + 1;
    }
  }
  /// What an entry makes of `out`, of the cells before in it when it works in place.
  void gives(const std::wstring& name, const Arguments& arguments, const Doubles& expected,
             const Doubles& before = {}) {
    out = before;
    out.resize(16, kUntouched);
    returns(name, arguments, 0.0);
    expectCells(out, expected);
  }
  /// The same, and that the first result shows when the first cell of an operand is missing.
  void shows(const std::wstring& name, const Arguments& arguments, const Doubles& expected,
             Doubles& operand) {
    gives(name, arguments, expected);
    const double first = std::exchange(operand.front(), kMarker);
    call(name, arguments);
    EXPECT_FALSE(std::fabs(out[0]) < 1e+300) << plain(entry_) << " with a missing operand: " << out[0];
    operand.front() = first;
  }
  /// Means and variances of the columns, and the roots of these, from the call before.
  void expectStatistics(const Doubles& mean, Doubles variance) {
    expectCells(means, mean);
    expectCells(variances, variance);
    for (double& cell : variance) cell = cell == kMarker ? kMarker : std::sqrt(cell);
    expectCells(stdevs, variance);
    means = stdevs = variances = Doubles(5, kUntouched);
  }
  /// The first two columns of x less a mean, by the root of a variance; the constant becomes 0.0. The
  /// missing cell counts as 0.0 or stays missing.
  static Doubles table(double mean1, double mean2, double variance1, double variance2, bool stays = false) {
    Doubles cells;
    for (const double cell : {2.5, -1.5, 4.0, 7.0}) cells.push_back((cell - mean1) / std::sqrt(variance1));
    for (const double cell : {0.0, 3.5, -6.0, 4.5}) cells.push_back((cell - mean2) / std::sqrt(variance2));
    cells.resize(12, 0.0);
    if (stays) cells[4] = kMarker;
    return cells;
  }

  std::wstring entry_;
  // Operands: a is 2 x 3, b 3 x 2, r 3 x 3, q and the singular s 2 x 2.
  Doubles a = {2.5, -1.25, 0.75, 3.0, -0.5, 1.5}, b = {1.5, 0.25, 3.0, -2.0, 4.5, -0.75};
  Doubles r = {1.25, 3.5, 0.5, -0.5, 0.75, 2.25, 2.0, -1.0, -1.5};
  Doubles q = {4.0, 2.0, 1.0, 1.0}, s = {1.5, 3.0, 0.5, 1.0}, u = {1.5, -0.25}, v = {2.0, -1.5, 0.75};
  // Four rows with a missing cell, the third column constant; weights, row flags.
  Doubles x = {2.5, -1.5, 4.0, 7.0, kMarker, 3.5, -6.0, 4.5, 2.375, 2.375, 2.375, 2.375};
  Doubles w = {1.0, 1.0, 2.0, 4.0}, out = Doubles(16, kUntouched);
  Doubles means = Doubles(5, kUntouched), stdevs = means, variances = means;
  Flags flags = {0, 0, -1, 0}, none = {0, 0, 0, 0}, all = {-1, -1, -1, -1};
};

}  // namespace

TEST_F(AlgebraEntries, Products) {
  Doubles missing = a;
  missing[3] = kMarker;
  shows(L"ProductAB", {a, 2, 3, b, 2, out}, {2.4375, 3.375, -1.25, 14.875}, a);
  gives(L"ProductABMissing", {a, 2, 3, b, 2, out}, {2.4375, 3.375, -1.25, 14.875});
  gives(L"ProductABMissing", {missing, 2, 3, b, 2, out}, {2.4375, kMarker, -1.25, kMarker});
  shows(L"ProductTrAB", {a, 2, 3, q, 2, out}, {7.5, 9, 1, 1.25, 3.75, 1}, a);
  shows(L"ProductATrB", {a, 2, 3, r, 3, out}, {1.75, -0.0625, 9.8125, -3.625, 3.6875, 3.875}, r);
  shows(L"ProductTrAA", {a, 2, 3, out}, {7.8125, -1.875, -3.125, -1.875, 9.5625, 4.125, -3.125, 4.125, 2.5},
        a);
  shows(L"ProductATrA", {a, 2, 3, out}, {7.0625, -1.625, -1.625, 12.8125}, a);
  gives(L"ProductADTrA", {a, 2, 3, r, out}, {7.859375, -1.09375, -1.09375, 5.328125});
  gives(L"ProductTrADA", {a, 2, 3, q, out}, {26.5625, 3.75, -6.875, 3.75, 11.25, 3, -6.875, 3, 3.25});
  gives(L"ProductADiag", {a, 2, 3, r, out}, {3.125, -1.5625, 0.5625, 2.25, 0.75, -2.25});
  gives(L"ProductTrADiag", {a, 2, 3, q, out}, {10, 3, -2, -1.25, 3, 1.5});
  shows(L"ProductABTrA", {a, 2, 3, r, out}, {9.890625, 32.78125, -4.8125, -4.984375}, r);
  shows(L"ProductTrABA", {a, 2, 3, q, out}, {17.1875, 17.8125, 1.25, 9.375, 18, 3.75, -1.875, 1.125, 1}, q);
  gives(L"ProductAinvBTrA", {b, 3, 2, q, out},
        {13.625, -24.3125, 9.375, -20.6875, 38.84375, -12.9375, 11.8125, -19.78125, 9});
  gives(L"ProductAinvBTrA", {b, 3, 2, s, out}, Doubles(9, 0.0));
  gives(L"ProductTrAinvBA", {a, 2, 3, q, out},
        {10.9375, -13.59375, -8.4375, -9.375, 14.90625, 8.4375, -6.875, 9.75, 5.75});
  gives(L"ProductTrAinvBA", {a, 2, 3, s, out}, Doubles(9, 0.0));
  shows(L"ProductBV", {a, 2, 3, v, out}, {3.5, -5.875}, v);
  shows(L"ProductVB", {u, 2, a, 3, out}, {4.0625, 0.375, -1.125}, a);
  gives(L"ProductADiagV", {a, 2, 3, v, out}, {5, -2.5, -1.125, -4.5, -0.375, 1.125});
  gives(L"ProductDiagVA", {u, 2, a, 3, out}, {3.75, 0.3125, 1.125, -0.75, -0.75, -0.375});
  gives(L"ProductDiagV1ADiagV2", {u, 2, a, 3, v, out}, {7.5, 0.625, -1.6875, 1.125, -0.5625, -0.28125});
  shows(L"ProductTrADiagVA", {a, 2, 3, u, out},
        {8.984375, 3.75, -1.40625, 3.75, -1.40625, -1.6875, -1.40625, -1.6875, -0.1875}, u);
  shows(L"ProductADiagVTrA", {a, 2, 3, v, out}, {11.84375, -10.1875, -10.1875, -8.6875}, v);
  shows(L"ProductByElement", {a, 2, 3, b, out}, {3.75, -0.3125, 2.25, -6, -2.25, -1.125}, b);
  gives(L"ProductHorizAB", {a, 2, 3, q, 2, out, 6}, {10, -2.5, 2.5, -1.25, 3, 6, 0.75, 3, -2, 3, -0.5, 1.5});
  gives(L"ProductHorizAB", {a, 2, 3, q, 2, out, 2}, {10, -2.5, 2.5, -1.25});
  int p = 3;
  gives(L"ProductHorizAB2", {out, 2, &p, q, 2}, {10, -2.5, 2.5, -1.25, 3, 6, 0.75, 3, -2, 3, -0.5, 1.5}, a);
  EXPECT_EQ(p, 6);
  Doubles coded = {1, 1, -1, 1, 1, 0, 1, -1}, sums(3, kUntouched);
  p = 1, w = {1.5, 0.5, 2, 4};
  gives(L"ProductDesignAB2", {out, 4, &p, coded, 2, 1, w, sums}, {1, -1, -1, 0, 1, 0, 1, 0}, {1, -1, 1, 0});
  p = 1;
  gives(L"ProductDesignAB2", {out, 4, &p, coded, 2, 3, w, sums},
        {1.0 / 1.5, -0.4, -0.4, 0, 1.0 / 3.5, 0, 1.0 / 3.5, 0}, {1, -1, 1, 0});
  EXPECT_EQ(p, 2);
  EXPECT_EQ(sums, (Doubles{1.5, 3.5, kUntouched}));
}

TEST_F(AlgebraEntries, NumbersOfATable) {
  Doubles y = {0.5, -3, 1.25}, distant = {0, 1.5, 1.5, 0}, similar = {2, 1.5, 1.5, 2};
  Doubles both(4, 0.0), neither = {1, 2, 2, 1};
  returns(L"ProductTrVBV", {v, 3, r}, -0.8125);
  returns(L"ProductTrV1BV2", {v, 3, r, y}, 5.59375);
  returns(L"ProductTrVinvBV", {u, 2, q}, 1.8125);
  returns(L"ProductTrVinvBV", {u, 2, s}, 0.0);
  returns(L"FrobeniusNorm", {a, 2, 3, b}, -3.6875);
  returns(L"Trace", {r, 3}, 0.5);
  returns(L"CheckIfSimOrDissim", {distant, 2, 7}, 0.0);
  returns(L"CheckIfSimOrDissim", {similar, 2, 7}, 1.0);
  returns(L"CheckIfSimOrDissim", {both, 2, 7}, 7.0);
  returns(L"CheckIfSimOrDissim", {neither, 2, 7}, -1.0);
  r[0] = kMarker;
  EXPECT_FALSE(std::fabs(call(L"ProductTrVBV", {v, 3, r})) < 1e+300);
  EXPECT_FALSE(std::fabs(call(L"ProductTrV1BV2", {v, 3, r, y})) < 1e+300);
}

TEST_F(AlgebraEntries, Elements) {
  Doubles m = {kMarker, 3.5, kMarker, kMarker, -2.5, -7.25};
  shows(L"ScalarsA", {a, 2, 3, -1.5, out}, {-3.75, 1.875, -1.125, -4.5, 0.75, -2.25}, a);
  gives(L"ScalarsA2", {out, 2, 3, -1.5}, {-3.75, 1.875, -1.125, -4.5, 0.75, -2.25}, a);
  shows(L"ScalarsTrA", {a, 2, 3, -1.5, out}, {-3.75, -1.125, 0.75, 1.875, -4.5, -2.25}, a);
  gives(L"APlusVal", {a, 2, 3, 1.25, out}, {3.75, 0, 2, 4.25, 0.75, 2.75});
  shows(L"Sums1As2B", {a, 2, 3, b, 2.0, -0.5, out}, {4.25, -2.625, 0, 7, -3.25, 3.375}, b);
  gives(L"Square", {out, 3, 3}, {1.25, 3.5, 0.5, -0.5, 0.5625, 5.0625, 4, 1, 2.25}, r);
  gives(L"Transpose", {m, 2, 3, out}, {kMarker, kMarker, -2.5, 3.5, kMarker, -7.25});
  gives(L"Transpose2", {out, 2, 3}, {kMarker, kMarker, -2.5, 3.5, kMarker, -7.25}, m);
  shows(L"SumByCols", {a, 2, 3, out}, {1.25, 3.75, 1}, a);
  shows(L"SumByRows", {a, 2, 3, out}, {2.75, 3.25}, a);
  shows(L"SquaredRows", {a, 2, 3, out}, {7.0625, 12.8125}, a);
  shows(L"SquaredColumns", {a, 2, 3, out}, {7.8125, 9.5625, 2.5}, a);
  gives(L"Min", {m, 2, 3, out}, {3.5, kMarker, -7.25});
  gives(L"Max", {m, 2, 3, out}, {3.5, kMarker, -2.5});
  gives(L"Inverse1", {q, 2, out, -1.0}, {0.5, -1, -0.5, 2});
  Doubles tiny = {std::exp2(-30.0), 0, 0, 0.5}, max(4, kUntouched);
  gives(L"Inverse1", {tiny, 2, out, 0.0}, {std::exp2(30.0), 0, 0, 2});
  out.assign(4, kUntouched);
  returns(L"Inverse1", {tiny, 2, out, 1.0}, -1.0);
  returns(L"Inverse1", {s, 2, out, 0.0}, -1.0);
  expectCells(out, {});
  Flags ends = {-1, 0, 0, -1};
  gives(L"MinMax", {x, 4, 3, out, max, ends, false}, {-1.5, -6, 2.375});
  expectCells(max, {4, 3.5, 2.375});
  gives(L"MinMax", {m, 2, 3, out, max, ends, true}, {3.5, kMarker, -7.25});
  expectCells(max, {3.5, kMarker, -2.5});
}

TEST_F(AlgebraEntries, CentredReducedStandardized) {
  const double s1 = 37.5, s2 = 67.5, w1 = 523.0 / 8.0, w2 = 4927.0 / 32.0;
  gives(L"Center", {x, 4, 3, out}, table(3.0, 0.5, 1.0, 1.0));
  gives(L"Center2", {out, 4, 3}, table(3.0, 0.5, 1.0, 1.0, kStays), x);
  gives(L"CenterW", {x, 4, 3, w, out}, table(4.625, 1.1875, 1.0, 1.0));
  gives(L"CenterW2", {out, 4, 3, w}, table(4.625, 1.1875, 1.0, 1.0, kStays), x);
  gives(L"Reduce", {x, 4, 3, out, true}, table(0.0, 0.0, s1 / 3.0, s2 / 3.0));
  gives(L"Reduce2", {out, 4, 3, false}, table(0.0, 0.0, s1 / 4.0, s2 / 4.0, kStays), x);
  gives(L"ReduceW", {x, 4, 3, w, out, true}, table(0.0, 0.0, w1 / 6.0, w2 / 6.0));
  gives(L"ReduceW2", {out, 4, 3, w, false}, table(0.0, 0.0, w1 / 8.0, w2 / 8.0, kStays), x);
  gives(L"Standardize2", {out, 4, 3, true}, table(3.0, 0.5, s1 / 3.0, s2 / 3.0, kStays), x);
  gives(L"StandardizeW2", {out, 4, 3, w, true}, table(4.625, 1.1875, w1 / 7.0, w2 / 7.0, kStays), x);
  gives(L"StandardizeW", {x, 4, 3, w, true, false, out}, table(4.625, 1.1875, w1 / 6.0, w2 / 6.0));
  gives(L"Standardize3", {out, 4, 3, means, stdevs, false}, table(3.0, 0.5, s1 / 4.0, s2 / 4.0, kStays), x);
  expectCells(means, {3, 0.5, 2.375});
  expectCells(stdevs, {std::sqrt(s1 / 4.0), std::sqrt(s2 / 4.0), 0});
  w = {1, 1, 9, 2};
  gives(L"Standardize", {x, 4, 3, out, means, stdevs, variances, flags, w, true, true},
        table(3.75, 3.125, 16.75, 4.5625));
  expectStatistics({3.75, 3.125, 2.375}, {16.75, 4.5625, 0});
}

TEST_F(AlgebraEntries, TransformedByKnownNumbers) {
  Doubles known = {1.5, -2.25, 4}, deviations = {2.5, 0.75, 0}, some = {1, 0.5, 2, 0};
  Doubles norms(4, kUntouched);
  Flags cells = {0, 0, -1, 0, 0, 0, 0, 0, 0, 0, 0, 0};
  gives(L"StandardizeKnownMeansStDev", {x, 4, 3, known, out, deviations, variances, flags},
        {0.4, -1.2, 4, 2.2, kMarker, 5.75 / 0.75, -6, 9, 0, 0, 2.375, 0});
  expectCells(variances, {6.25, 0.5625, 0});
  Doubles expected = table(0.0, 0.0, 8.5, 12.25, kStays);
  for (std::size_t k = 8; k < 12; ++k) expected[k] = 1.0 / std::sqrt(2.0);
  gives(L"Normalize", {out, 4, 3, norms, flags, some, false, false}, expected, x);
  expectCells(norms, {std::sqrt(8.5), 3.5, 2.375 * std::sqrt(2.0)});
  expected = table(29.0 / 6.0, 19.0 / 14.0, 193.0 / 12.0, 6399.0 / 196.0, kStays);
  expected[2] = kMarker;
  gives(L"StandardizeByVect", {x, 4, 3, cells, w, true, out}, expected);
  gives(L"StandardizeByVect2", {out, 4, 3, cells, w, true}, expected, x);
  expected = {16.0 / 8.5 - 1.5, -1.5, kMarker, 2.5, kMarker, 38.0 / 10.5 - 1.5, -1.5, 2.5};
  expected.resize(12, -1.5);
  gives(L"RescaleByVect", {x, 4, 3, -1.5, 2.5, cells, out}, expected);
  gives(L"RescaleByVect2", {out, 4, 3, -1.5, 2.5, cells}, expected, x);
  for (const wchar_t* entry : {L"StandardizeMatrix", L"NormalizeMatrix"}) {
    const double d = std::sqrt(37.5 / (entry[0] == L'N' ? 4.0 : 3.0));
    Doubles one = {8.25, -1, kUntouched}, two = {-4.5, kMarker, 2, 7, kUntouched};
    gives(entry, {out, 4, 2, one, 1, two, 2}, {-0.5 / d, -4.5 / d, 1.0 / d, 4.0 / d, 0, 0, 0, 0},
          {2.5, -1.5, 4, 7, 2.375, 2.375, 2.375, 2.375});
    expectCells(one, {5.25 / d, 0});
    expectCells(two, {-7.5 / d, kMarker, 0, 0});
  }
}

TEST_F(AlgebraEntries, MeansAndDeviations) {
  const double v1 = 193.0 / 18.0, v2 = 389.0 / 144.0;
  const Doubles missing(3, kMarker), mean = {29.0 / 6.0, 43.0 / 12.0, 2.375};
  gives(L"MeanStDev", {x, 4, 3, out, stdevs, all, w, true, true, true}, {4.625, 19.0 / 14.0, 2.375});
  expectCells(stdevs, {std::sqrt(523.0 / 56.0), std::sqrt(2133.0 / 84.0), 0});
  gives(L"MeanStDev", {x, 4, 3, out, stdevs, all, w, true, true, false}, missing);
  expectCells(stdevs, missing);
  gives(L"Mean", {x, 4, 3, out, flags, w}, mean);
  gives(L"Mean", {x, 4, 3, out, all, w}, {0, 0, 0});
  gives(L"MeanStDevVar", {x, 4, 3, means, stdevs, variances, all, w, false, true}, {});
  expectStatistics(missing, missing);
  gives(L"MeanStDevVar", {x, 4, 3, means, stdevs, variances, flags, w, false, true}, {});
  expectStatistics(mean, {v1, v2, 0});
  gives(L"MeanStDevVarOneInMat", {x, 4, 2, means, stdevs, variances, all, w, false, true}, {});
  expectStatistics({kMarker}, {kMarker});
  gives(L"MeanStDevVarOneInMat", {x, 4, 2, means, stdevs, variances, flags, w, false, true}, {});
  expectStatistics({43.0 / 12.0}, {v2});
}

TEST_F(AlgebraEntries, CovariancesAndDistances) {
  Doubles other = {2.375, 2.375, 2.375, 2.375, 2.5, -1.5, 4, 7}, weights = {1.5, 0.25, 2};
  Doubles known = {6.25, -2.5, 0, -2.5, 4, 0, 0, 0, 0};
  const double v1 = 523.0 / 56.0, v2 = 2133.0 / 84.0, v12 = 363.0 / 84.0, rho = v12 / std::sqrt(v1 * v2);
  gives(L"CovCorr", {x, 4, 3, out, false, none, w, true, true}, {v1, v12, 0, v12, v2, 0, 0, 0, 0});
  gives(L"CovCorr", {x, 4, 3, out, true, none, w, true, true}, {1, rho, 0, rho, 1, 0, 0, 0, 0});
  gives(L"CovCorr", {x, 4, 3, out, false, all, w, true, true}, Doubles(9, kMarker));
  Arguments both = {x, 4, 3, other, 2, out, none, w, false, false, true, true};
  gives(L"CorrMatMat", both, {0, 0, 0, v1, v12, 0});
  both[8] = true;
  gives(L"CorrMatMat", both, {0, 0, 0, 1, rho, 0});
  both[9] = true;
  gives(L"CorrMatMat", both, {0, 0, 0, 1, rho * rho, 0});
  gives(L"CorrMatFromCovMat", {known, 3, out}, {1, -0.5, 0, -0.5, 1, 0, 0, 0, 0});
  gives(L"EuclidDist2", {a, 2, 3, out, weights, true}, {0, 30.359375, 30.359375, 0});
  gives(L"EuclidDist2", {a, 2, 3, out, weights, false},
        {0, 9.109375, 15.390625, 9.109375, 0, 2.90625, 15.390625, 2.90625, 0});
  gives(L"Symmetrize", {out, 3, 0}, {1.25, 1.5, 1.25, 1.5, 0.75, 0.625, 1.25, 0.625, -1.5}, r);
  gives(L"Symmetrize", {out, 3, 1}, {1.25, -0.5, 2, -0.5, 0.75, -1, 2, -1, -1.5}, r);
  gives(L"Symmetrize", {out, 3, 2}, {1.25, 3.5, 0.5, 3.5, 0.75, 2.25, 0.5, 2.25, -1.5}, r);
  gives(L"TransformSimToDissim", {out, 3}, {0, 1.75, 3.5, 1.75, 0, 2.5, 3.5, 2.5, 0},
        {5, 3.125, 1.25, 3.25, 4.5, 2.125, 1.5, 2, 6});
  const double u1 = 193.0 / 18.0, u2 = 0.16, rest = 1.36 / std::sqrt(u1 * u2);
  for (const bool standardize : {false, true}) {
    Doubles result(10, kUntouched);
    gives(L"CovCorrAndMeanStDevVar",
          {out, 4, 3, result, means, stdevs, variances, true, flags, w, false, true, true, standardize},
          table(29.0 / 6.0, 4.3, standardize ? u1 : 1.0, standardize ? u2 : 1.0, kStays), x);
    expectCells(result, {1, rest, 0, rest, 1, 0, 0, 0, 0});
    expectStatistics({29.0 / 6.0, 4.3, 2.375}, {u1, u2, 0});
  }
}
