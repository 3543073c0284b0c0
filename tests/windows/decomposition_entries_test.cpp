// What the entries for factorizations, solvers, singular values and eigenvalues give a macro, each called
// through the type library with numbers worked out by hand.

#include <gtest/gtest.h>

#include <cmath>

#include "windows/any_entry.h"

namespace {

constexpr double kMarker = -1.79769313486231E+308, kUntouched = 9.5;

using Doubles = std::vector<double>;
using Ints = std::vector<int>;
using Flags = std::vector<VARIANT_BOOL>;

class DecompositionEntries : public testing::Test {
 protected:
  struct Filled {
    const Doubles& actual;
    Doubles expected;
  };

  /// Calls an entry with fresh results: the number it returns (0 for none), arrays that it fills, a problem
  /// or a count that it tells. What is not expected must be untouched; neighbours of the marker are none.
  void gives(const std::wstring& entry, const std::vector<macro::Argument>& arguments, double returned,
             const std::vector<Filled>& arrays = {}, int told = 7) {
    out.assign(12, kUntouched), two = three = out;
    problem = 7, count = 7;
    const VARIANT v = dll().call(entry, arguments);
    const VARTYPE type = dll().procedure(entry).result;
    const double whole = type == VT_INT ? v.intVal : type == VT_BOOL ? v.boolVal : 0.0;
    EXPECT_DOUBLE_EQ(type == VT_R8 ? v.dblVal : whole, returned) << plain(entry);
    EXPECT_EQ(count == 7 ? problem : count, told) << plain(entry);
    for (const auto& [actual, expected] : arrays) {
      for (std::size_t k = 0; k < actual.size(); ++k) {
        const double cell = k < expected.size() ? expected[k] : kUntouched;
        EXPECT_DOUBLE_EQ(actual[k], cell) << plain(entry) << ", cell " << k + 1;
        EXPECT_EQ(actual[k] == kMarker, cell == kMarker) << plain(entry) << ", cell " << k + 1;
      }
    }
  }

  Doubles out = Doubles(12, kUntouched), two = out, three = out, zeroRow = {1, 0, 2, 0};
  double parity = 7, *none = nullptr;
  VARIANT_BOOL problem = 7;
  int count = 7, shown = 7;
  Ints constraints = {0, 1, 0};  // the second of three variables left out
};

}  // namespace

TEST_F(DecompositionEntries, TriangularFactors) {
  Doubles a = {4, 99, 2, 5}, indefinite = {1, 99, 2, 1}, lower = {2, 1, 99, 4}, upper = {2, 99, 1, 4};
  Doubles wide = {4, 99, 99, 99, 99, 99, 2, 99, 5}, square = {2, 4, 4, 2}, broken = {2, 1, 99, 0};
  Ints index(3, 7);
  gives(L"VB_M_CholDecomp", {a, 2, out}, 0, {{out, {2, 1, 0, 2}}});
  gives(L"VB_M_CholDecomp", {indefinite, 2, out}, -1, {{out, {1, 2, 0, 0}}});
  gives(L"VB_M_CholDecompCleaned", {wide, 3, constraints, out}, 0, {{out, {2, 0, 1, 0, 0, 0, 0, 0, 2}}});
  wide[8] = 0.5;
  gives(L"VB_M_CholDecompCleaned", {wide, 3, constraints, out}, -1, {{out, Doubles(9, kUntouched)}});
  gives(L"VB_M_LUDecomp", {zeroRow, 2, index, &parity, &problem}, 0, {{zeroRow, {1, 0, 2, 0}}}, -1);
  EXPECT_EQ(index, (Ints{7, 7, 7}));
  EXPECT_EQ(parity, 1.0);
  gives(L"VB_M_LUDecomp", {square, 2, index, &parity, &problem}, 0, {{square, {4, 0.5, 2, 3}}}, 0);
  EXPECT_EQ(index, (Ints{2, 2, 7}));
  EXPECT_EQ(parity, -1.0);
  gives(L"VB_M_InverseTriang", {lower, 2, true, out, 1e-12}, 0, {{out, {0.5, -0.125, kUntouched, 0.25}}});
  gives(L"VB_M_InverseTriang", {upper, 2, false, out, 1e-12}, 0, {{out, {0.5, kUntouched, -0.125, 0.25}}});
  gives(L"VB_M_InverseTriang", {broken, 2, true, out, 1e-12}, -1, {{out, {0.5}}});
}

TEST_F(DecompositionEntries, DeterminantsSignsAndLogarithms) {
  Doubles triangle = {-2, 5, 99, 3}, a = {2, 4, 4, 2}, wide = {2, 99, 4, 99, 99, 99, 4, 99, 2};
  Doubles signs = {1, 0, 2, 3}, x = {1, -5, kMarker, 7, 2, -1}, tens = {100, 0.001, kMarker, 1, 0, -1};
  Flags some = {0, -1}, all = {0, 0};
  gives(L"VB_M_DeterminantTriang", {triangle, 2, &problem}, -6, {}, 0);
  gives(L"VB_M_Determinant", {a, 2, &problem}, -12, {}, 0);
  gives(L"VB_M_Determinant", {zeroRow, 2, &problem}, 0, {}, -1);
  gives(L"VB_M_DeterminantCleaned", {wide, 3, constraints, &problem}, -12, {}, 0);
  wide[0] = wide[6] = triangle[3] = 0;
  gives(L"VB_M_DeterminantCleaned", {wide, 3, constraints, &problem}, 0, {}, -1);
  gives(L"VB_M_DeterminantTriang", {triangle, 2, &problem}, 0, {}, 0);
  gives(L"VB_M_IsPositive", {signs, 2, 2, all, false}, -1);
  gives(L"VB_M_IsPositive", {signs, 2, 2, all, true}, 0);
  gives(L"VB_M_IsPositive", {signs, 2, 2, some, true}, -1);
  gives(L"VB_M_LogMatrix", {x, 2, 3, some}, 0, {{x, {0, -5, kMarker, 7, std::log(2.0), -1}}});
  x = {0, -1};
  gives(L"VB_M_LogMatrix", {x, 2, 1, all}, 0);
  gives(L"VB_M_Log10Matrix", {tens, 2, 3}, 0);
  for (const Doubles& logs : {x, Doubles(tens.end() - 2, tens.end())}) {
    EXPECT_EQ(logs[0], -HUGE_VAL);
    EXPECT_TRUE(std::isnan(logs[1]));
  }
  tens = {100, 0.001, kMarker, 1};
  gives(L"VB_M_Log10Matrix", {tens, 2, 2}, 0, {{tens, {2, -3, kMarker, 0}}});
}

TEST_F(DecompositionEntries, SolversAndInverses) {
  const Doubles inverse = {1, -1, -1, 2};
  Doubles a = {2, 1, 1, 1}, same = a, b = {3, 2, 1, 0}, c = {3, 2}, rest = {3, 5}, packed = {4, 2, 3};
  Doubles deficient = {2, 0, 0, 0}, null = {0}, wide = {2, 99, 1, 99, 99, 99, 1, 99, 1};
  Doubles triangle = {2, 99, 1, 99, 99, 99, 99, 99, 4};
  Ints kept = {0};
  gives(L"VB_M_Gauss", {a, 2, 2, b}, 0, {{a, inverse}, {b, {1, 1, 1, -1}}});
  gives(L"VB_V_Gauss", {same, 2, c}, 0, {{same, inverse}, {c, {1, 1}}});
  // Left half done: rows exchanged, the second one reduced by its pivot 2.
  gives(L"VB_V_Gauss", {zeroRow, 2, rest}, -2, {{zeroRow, {0, 0.5, 0, 0.5}}, {rest, {5, 1.5}}});
  gives(L"VB_M_Sweep", {packed, 2, 1}, 0, {{packed, {-0.25, 0.5, 2}}});
  gives(L"VB_M_InvGeneralized", {deficient, 2, out, 1e-10, &count}, 0, {{out, {0.5, 0, 0, 0}}}, 1);
  gives(L"CleanConstraintsAndInvert", {3, constraints, wide, out}, 0, {{out, {1, 0, -1, 0, 0, 0, -1, 0, 2}}});
  wide[0] = 1;
  gives(L"CleanConstraintsAndInvert", {3, constraints, wide, out}, -1, {{out, {}}});
  gives(L"CleanConstraintsAndInvert", {1, kept, null, out}, 0, {{out, {1e12}}});
  gives(L"CleanConstraintsAndInvertTriang", {3, constraints, triangle, true, out}, 0,
        {{out, {0.5, 0, -0.125, 0, 0, 0, 0, 0, 0.25}}});
  triangle[8] = 1e-13;
  gives(L"CleanConstraintsAndInvertTriang", {3, constraints, triangle, true, out}, -1, {{out, {}}});
  // The third variable is constant, the last one the first again; the first is not tested.
  Doubles r = {1, 0.6, 0, 1, 0.6, 1, 0, 0.6, 0, 0, 0, 0, 1, 0.6, 0, 1};
  Ints selection = {0, 1, 1, 1}, unused(4, 7), groups = {1, 2, 3, 4}, status(5, 7);
  gives(L"VB_CheckTolerance",
        {r, 4, 4, selection, unused, groups, 0.01, false, false, false, status, out, two}, 0,
        {{out, {kUntouched, 0.64, 0, 0}}, {two, {kUntouched, 1.5625, kMarker, kMarker}}});
  EXPECT_EQ(status, (Ints{0, 0, 50000, 60000, 7}));
}

TEST_F(DecompositionEntries, SingularValuesEigenvaluesAndFactors) {
  Doubles x = {1, 0, 0, 3}, a = x, mixed = {2, 1, 1, 2}, endless = {1, HUGE_VAL, 0, 1}, f = {3, 0, 4, 0};
  gives(L"VB_M_SVDecomp", {none, 2, 2, out, two, 2, three, 2, 11, &count}, 0,
        {{out, {}}, {two, {}}, {three, {}}});
  gives(L"VB_M_SVDecomp", {x, 2, 2, out, two, 2, three, 2, 21, &count}, 0,
        {{x, {2, 0, 0, 3}}, {out, {3, 1}}, {two, {0, 1, -1, 0}}, {three, {0, 1, -1, 0}}}, 0);
  gives(L"VB_M_Eigen", {a, out, two, 2, true}, 0, {{out, {3, 1}}, {two, {0, 1, 1, 0}}});
  gives(L"VB_M_Eigen", {a, out, two, 2, false}, 0, {{out, {1, 3}}, {two, {1, 0, 0, 1}}});
  gives(L"VB_M_Eigen", {mixed, out, two, 2, true}, 0, {{out, {3, 1}}});
  for (std::size_t k = 0; k < 4; ++k) EXPECT_DOUBLE_EQ(std::fabs(two[k]), std::sqrt(0.5));
  gives(L"VB_M_Eigen", {endless, out, two, 2, true}, -1);
  gives(L"VB_M_SVDecomp", {a, 2, 2, out, none, 2, none, 2, 0, &count}, 0, {{out, {3, 1}}}, 0);

  Doubles values = {4, 2, 1, 0.5}, last = values, pair = {4, 0};
  Doubles scores = {1, 2, 5, 7}, others = {0.5, 9}, loadings = {12, -3, 1, 1};
  const struct {
    double percentage, kaiser;
    int most, selected;
  } criteria[] = {{0, 0, 0, 3}, {80, 0, 0, 2}, {0, 1, 0, 2}, {0, 0, 1, 1}};
  for (const auto& c : criteria) {
    gives(L"VB_FilterEigen", {values, 4, true, 0.8, c.percentage, c.most, c.kaiser, &count, &shown, out}, 0,
          {{out, {400.0 / 7.0, 200.0 / 7.0, 100.0 / 7.0, 0}}, {values, last}}, 3);
    EXPECT_EQ(shown, c.selected);
  }
  gives(L"VB_FilterEigen", {last, 4, false, 0.8, 0.0, 0, 0.0, &count, &shown, out}, 0, {{last, {4, 2, 1, 0}}},
        4);
  gives(L"ComputeCosines", {f, 2, 2, out}, 0, {{out, {0.36, kUntouched, 0.64}}});
  gives(L"VB_BiplotTransData", {scores, others, loadings, 2, 1, 2, 2, pair, 3.0, 0.5, out, two}, 0,
        {{out, {6, 12, 3, 0, 0, 0}}, {two, {2, -0.5, 0, 0}}});
}
