// What the entries for missing cells, estimates, samples and checks give a macro, each called through the
// type library with numbers worked out by hand.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "windows/any_entry.h"

namespace {

constexpr double kMarker = -1.79769313486231E+308, kUntouched = 9.5;

using Doubles = std::vector<double>;

class MissingEntries : public testing::Test {
 protected:
  /// What an entry, named without VB_, returns and leaves in x, n, f and t, up to the last cell it touched;
  /// '*' is missing. All are as before then.
  std::wstring after(const std::wstring& name, const std::vector<macro::Argument>& arguments) {
    const VARIANT v = dll().call(L"VB_" + name, arguments);
    const VARTYPE type = dll().procedure(L"VB_" + name).result;
    std::wostringstream text;
    if (type != VT_VOID) text << (type == VT_INT ? v.intVal : v.boolVal);
    tell(text, L" x", x, kUntouched), tell(text, L" n", n, 77), tell(text, L" f", f, VARIANT_BOOL{5});
    tell(text, L" t", t, BSTR{});
    return text.str();
  }
  void gives(const wchar_t* name, const std::vector<macro::Argument>& arguments, const wchar_t* expected) {
    EXPECT_EQ(after(name, arguments), expected) << plain(name);
  }
  template <class T, std::size_t count>
  static void tell(std::wostream& text, const wchar_t* name, T (&cells)[count], T untouched) {
    std::size_t end = count;
    while (end > 0 && cells[end - 1] == untouched) --end;
    for (std::size_t k = 0; k < end; ++k) {
      text << (k == 0 ? name : L"") << L' ';
      if constexpr (std::is_same_v<T, BSTR>) {
        text << (cells[k] == nullptr ? L"null" : cells[k]);
        SysFreeString(cells[k]);
      } else {
        cells[k] == kMarker ? text << L'*' : text << cells[k];
      }
      cells[k] = untouched;
    }
  }
  // Arrays that an entry rewrites.
  double* with(const Doubles& cells) { return std::copy(cells.begin(), cells.end(), x), x; }
  BSTR* texts(const std::vector<const wchar_t*>& cells) {
    return std::transform(cells.begin(), cells.end(), t, SysAllocString), t;
  }

  double x[9], *noWeights = nullptr;
  int n[6], *noNext = nullptr, seed = 11;
  VARIANT_BOOL f[7], *none = nullptr;
  BSTR t[6] = {};
  // a is 3 x 3, s 3 x 2.
  Doubles a = {1, kMarker, 3, kMarker, kMarker, 6, 7, kMarker, 9}, w = {1, 1, 2}, d = {1, 0, 0, 1};
  macro::Strings s = {L"a", L"", L"b", L"", L"", L"b"}, r = {L"p", L"q", L"p", L"r"}, own = {L"q", L"z"};
  std::vector<VARIANT_BOOL> second = {0, -1, 0}, first = {1, 0, 0};

  MissingEntries() { std::fill_n(x, 9, kUntouched), std::fill_n(n, 6, 77), std::fill_n(f, 7, 5); }
};

}  // namespace

TEST_F(MissingEntries, MissingCells) {
  std::fill_n(f, 3, 0);
  gives(L"M_AllMissingRows", {a, 3, 3, f, f + 4}, L" f -1 -1 0 5 0 -1 0");
  gives(L"M_AllMissingRowsStr", {s, 3, 2, none, f}, L" f 0 -1 0");
  gives(L"IsMissingValueDbl", {kMarker}, L"-1");
  gives(L"IsMissingValueStr", {s.data()[1]}, L"-1");
  gives(L"InitVectorToFalse", {f, 2}, L"0 f 0 0");
  gives(L"M_NbMissing", {a, 3, 3, n}, L" n 1 2 1");
  gives(L"M_NbNonMissing", {a, 3, 3, n}, L" n 2 1 2");
  gives(L"M_NbMissingStr", {s, 3, 2, n}, L" n 1 2");
  gives(L"SummarizeMissing", {3, n, f, second, none, first}, L" n 2 f -1 -1 0");
  gives(L"SummarizeAllMissing", {3, none, second, n, f}, L" n 1 f 0 -1 0");
  gives(L"RemoveRowsWithMissing", {a, 3, 3, 1, second, x}, L" x 1 3 * 6 7 9");
  gives(L"RemoveRowsWithMissingStr", {s, 3, 2, 1, second, t}, L" t a b  b");
  gives(L"M_ReplaceMissingByVal", {with({1, kMarker, 3, 4}), 2, 2, 7.0}, L" x 1 7 3 4");
  gives(L"M_ReplaceMissingByStr", {texts({L"", L"b"}), 2, 1, own.data()[1]}, L" t z b");
  gives(L"M_SetWeightsToZeroForMissing", {a, 3, 1, with({1, 2, 3, 4, 5, 6}), 2}, L" x 1 0 3 4 0 6");
  gives(L"ReplaceMissingObsLabels", {texts({L"", L"b", L"c"}), 3, second, own.data()[1]}, L" t  z2 c");
}

TEST_F(MissingEntries, EstimatesOfMissingCells) {
  Doubles one = {0, 10}, two = {5, 7};
  gives(L"EstimateRowsWithMissingMean", {with({1, kMarker, 4}), 3, 1, none, w}, L" x 1 3 4");
  gives(L"EstimateRowsWithMissingMeanPred", {a, 3, with({kMarker, 2}), 2, 1, first, noWeights}, L" x 3 2");
  gives(L"EstimateRowsWithMissingMode", {texts({L"p", L"q", L""}), 3, 1, second, w}, L" t p q p");
  gives(L"EstimateRowsWithMissingModePred", {s, 3, texts({L"", L"c"}), 1, 2, none, w}, L" t b c");
  // The third row is 0.2 and 0.8 from the others, then the only one 0.9 and 0.1.
  double* const table1 = with({0, 10, 2, 5, 7, kMarker});
  gives(L"EstimateRowsWithMissingNN", {table1, 3, 1, none, x + 3, 1, texts({L"p", L"q", L""}), 1, noWeights},
        L" x 0 10 2 5 7 5 t p q p");
  gives(L"EstimateRowsWithMissingNNPred",
        {one, 2, with({9, kMarker}), 1, 1, none, two, x + 1, 1, r, texts({L""}), 1, w}, L" x 9 7 t q");
}

TEST_F(MissingEntries, Samples) {
  Doubles chosen = {4, 4, kMarker, 1};
  gives(L"M_SamplingSystematicCentered", {r, 4, 1, 2, t, x}, L" x 1 3 t p p");
  gives(L"M_SampleUserDefined", {r, 4, 1, t, chosen}, L" t r r  p");
  gives(L"M_SamplingWithReplacement", {r, 1, 1, 2, t, x, &seed, true, noNext}, L" x 1 1 t p p");
  gives(L"M_SamplingSystematicRdStart", {r, 2, 1, 3, t, x, &seed, true, noNext}, L" x 1 2 * t p q ");
  gives(L"M_SamplingRandomStratified", {r, 2, 1, 2, t, x, &seed, true, noNext}, L" x 1 2 t p q");
  gives(L"GenerateRandomIndicator", {x, 3, 7, &seed, true, noNext}, L" x 1 1 1");
  EXPECT_EQ(seed, 11);
  for (const wchar_t* scheme : {L"WithReplacement", L"SystematicRdStart", L"RandomStratified"}) {
    const std::wstring entry = std::wstring(L"M_Sampling") + scheme;
    const std::wstring drawn = after(entry, {r, 4, 1, 3, t, x, &seed, false, n});
    EXPECT_EQ(after(entry, {r, 4, 1, 3, t, x, &seed, true, n}), drawn);
  }
  const std::wstring drawn = after(L"GenerateRandomIndicator", {x, 8, 4, &seed, false, n});
  EXPECT_EQ(after(L"GenerateRandomIndicator", {x, 8, 4, &seed, true, n}), drawn);
}

TEST_F(MissingEntries, Checks) {
  Doubles symmetric = {1, 2, 2, 5}, sums = {1, 1, 1, -1}, covariances = {4, 1, 1, 9};
  std::vector<int> counts = {2};
  gives(L"M_IsSymmetric", {symmetric, 2}, L"-1");
  gives(L"M_IsDiagConstant", {symmetric, 2}, L"0");
  gives(L"M_IsTriangular", {with({1, 2, 0, kMarker}), 2, true}, L"1 x 1 2 2 *");
  gives(L"M_IsDisjTable", {d, 2, 2, none, n}, L"-1 n 1");
  gives(L"M_IsIn01", {d, 2, 2}, L"-1");
  gives(L"M_IsLong", {a, 3, 3}, L"0");
  gives(L"M_InfoQuali", {r, 3, 1, t, x, n, n + 1, t + 1, x + 1, none, w, false}, L" x 3 3 1 n 2 2 t p p q");
  gives(L"M_InfoQualiValid", {r, 3, 1, 1, 2, counts, own, x, f, none, w}, L" x 1 0 f -1");
  gives(L"ComputeNewVar", {sums, 2, 2, covariances, x, x + 2}, L" x 15 11 15 -5 -5 11");
}
