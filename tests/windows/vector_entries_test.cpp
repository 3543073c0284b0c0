// What the vector and sorting entries give a macro, each called through the type library with real numbers.

#include <gtest/gtest.h>

#include <cmath>

#include "windows/any_entry.h"

namespace {

constexpr double kMarker = -1.79769313486231E+308;

using Doubles = std::vector<double>;
using Ints = std::vector<int>;
using Flags = std::vector<VARIANT_BOOL>;

/// A column with a missing cell, an excluded row and weights.
struct Column {
  int n = 6;
  Doubles x = {2.5, kMarker, 4.0, 1.5, 99.0, 4.0};
  Doubles w = {1.0, 5.0, 2.0, 1.0, 7.0, 4.0};
  Flags excluded = {0, 0, 0, 0, -1, 0};
  double one = 0.0, two = 0.0;
  int count = -7;
};

/// Cells up to n; the one after them must be untouched.
template <class T>
void expectCells(const std::vector<T>& actual, std::vector<T> expected) {
  ASSERT_GE(actual.size(), expected.size());
  EXPECT_EQ(std::vector<T>(actual.begin(), actual.begin() + static_cast<std::ptrdiff_t>(expected.size())),
            expected);
}

std::vector<std::wstring> cellsOf(const macro::Strings& strings, std::size_t n) {
  std::vector<std::wstring> cells;
  for (std::size_t k = 0; k < n; ++k) cells.emplace_back(strings[k]);
  return cells;
}

}  // namespace

TEST(VectorEntries, NumbersOfAColumn) {
  Column c;
  Doubles y = {2.0, 1.0, 3.0, 2.5, 1.0, 5.0}, group = {1.0, 1.0, 2.0, 1.0, 2.0, 2.0};
  const struct {
    const wchar_t* entry;
    std::vector<macro::Argument> arguments;
    double expected;
  } calls[] = {
      {L"VB_V_Sum", {c.x, c.n, c.excluded, c.w}, 28.0},
      {L"VB_V_Mean", {c.x, c.n, c.excluded, c.w}, 3.5},
      {L"VB_V_MeanAbs", {c.x, c.n, c.excluded, c.w}, 3.5},
      {L"VB_V_Var", {c.x, c.n, c.excluded, c.w, true, true}, 6.5 / 7.0},
      {L"VB_V_Stdev", {c.x, c.n, c.excluded, c.w, false, false}, std::sqrt(6.5 / 8.0)},
      {L"VB_V_SumFromTo", {c.x, c.n, 2, 4}, 5.5},
      {L"VB_V_SumSq", {c.x, 4}, 24.5},
      {L"VB_V_SumSqW", {c.x, 4, c.w}, 40.5},
      {L"VB_V_DiffSq", {y, 3, group}, 2.0},
      {L"VB_V_ProductTrV1V2", {y, 3, group}, 9.0},
      {L"VB_V_NbIf", {c.x, c.n, 4.0}, 2.0},
      {L"VB_V_SumIf", {y, c.n, group, 1.0}, 5.5},
      {L"VB_V_MeanIf", {y, c.n, group, 2.0}, 3.0},
      {L"VB_V_VarIf", {y, c.n, group, 2.0, false}, 4.0},
      {L"VB_V_HarmonicMean", {y, 3, c.excluded, c.w}, 8.0 / (0.5 + 5.0 + 2.0 / 3.0)},
      {L"VB_V_MeanAbsDev", {y, 3, 2.0, c.excluded, c.w}, 7.0 / 8.0},
      {L"VB_V_MedianAbsDev", {c.x, c.n, 4.0, c.excluded, c.w}, 0.0},
      {L"VB_V_Min", {c.x, c.n, c.excluded}, 1.5},
      {L"VB_V_Max", {c.x, c.n, c.excluded}, 4.0},
      {L"VB_V_MaxAndMaxPos", {c.x, 4, &c.count}, 4.0},
      {L"VB_V_MinAndMinPos", {c.x, 4, &c.count}, 1.5},
      {L"VB_V_Quantile", {y, 5, 0.25}, 1.0},
      {L"VB_V_QuantileW", {y, 5, c.w, 0.75}, 1.5},
      {L"VB_V_QuantileM", {c.x, c.n, c.excluded, 0.5}, 3.25},
      {L"VB_V_QuantileMW", {c.x, c.n, c.excluded, c.w, 0.125}, 2.0},
      {L"VB_V_Freq", {y, 5, c.w, 1.1, 0.2}, 12.0},
      {L"VB_V_TimeIntervalSize", {y, 6, true}, 0.5},
      {L"VB_CorrelPearson", {y, y, c.n, c.excluded, c.w, true, true}, 1.0},
      {L"VB_MAPE", {y, group, 3, c.w, 1}, 100.0 * (0.5 + 0.0 + 2.0 * (1.0 / 3.0)) / 8.0},
      {L"VB_MPE", {y, group, 2, c.w, 1}, 100.0 * 0.5 / 6.0},
      {L"VB_MAE", {y, group, 3, c.w, 2}, 2.0 / 7.0},
      {L"VB_RMSE", {y, 3, 2, group, 2}, std::sqrt((1.5 * 1.5 + 1.0 + 9.0) / 2.0)},
  };
  for (const auto& call : calls) {
    EXPECT_DOUBLE_EQ(dll().number(call.entry, call.arguments), call.expected) << plain(call.entry);
  }
}

TEST(VectorEntries, CountsAndTests) {
  Column c;
  Ints k = {4, -2, 9, 4};
  Flags flags = {-1, 0, -1, -1};
  Doubles zeroOne = {0.0, 1.0, 1.0}, table = {1.0, 2.0, 0.5, 2.5}, bounds = {3.0, 4.0};
  macro::Strings labels = {L"b", L"", L"a", L"b"};
  const struct {
    const wchar_t* entry;
    std::vector<macro::Argument> arguments;
    int expected;
  } counts[] = {
      {L"VB_V_MaxInt", {k, 4, c.excluded}, 9}, {L"VB_V_SumFromToLng", {k, 4, 2, 3}, 7},
      {L"VB_V_FreqLng", {k, 4, c.w, 4}, 2},    {L"VB_V_NbMissing", {c.x, c.n}, 1},
      {L"VB_V_NbNonMissing", {c.x, c.n}, 5},   {L"VB_V_NbMissingStr", {labels, 4}, 1},
      {L"VB_V_NbTrue", {flags, 4}, 3},         {L"VB_V_NbTrueFromTo", {flags, 4, 2, 9}, 2},
      {L"VB_V_NbDistinct", {c.x, c.n}, 5},
  };
  for (const auto& call : counts) {
    EXPECT_EQ(dll().integer(call.entry, call.arguments), call.expected) << plain(call.entry);
  }
  const struct {
    const wchar_t* entry;
    std::vector<macro::Argument> arguments;
    bool expected;
  } tests[] = {
      {L"VB_V_IsPositive", {zeroOne, 3, true}, false},
      {L"VB_V_IsWeights", {c.w, c.n}, true},
      {L"VB_V_IsCWeights", {c.x, 1}, false},
      {L"VB_V_IsIndicator", {zeroOne, 3}, true},
      {L"VB_V_Is01", {c.w, c.n}, false},
      {L"VB_V_IsConstant", {c.x, c.n}, false},
      {L"VB_V_IsSorted", {zeroOne, 3, false}, true},
      {L"VB_V_IsInInterval", {c.x, 4, 1.5, 4.0, false, true}, true},
      {L"VB_V_V1inferiorV2", {zeroOne, 2, bounds}, true},
      {L"VB_V_V1GreaterThanMatCols", {bounds, 2, table, 2}, true},
  };
  for (const auto& call : tests) {
    EXPECT_EQ(dll().boolean(call.entry, call.arguments), call.expected ? VARIANT_TRUE : VARIANT_FALSE)
        << plain(call.entry);
  }
  EXPECT_EQ(dll().number(L"VB_V_FreqStr", {labels, 4, c.w, labels.data()[0]}), 2.0);
  EXPECT_EQ(dll().text(L"VB_V_Mode", {labels, 4, c.excluded, c.w}), L"a");
  Flags missing(5, 5);
  dll().call(L"VB_V_GetMissingDbl", {c.x, 3, flags, missing});
  EXPECT_EQ(missing, (Flags{-1, -1, -1, 5, 5}));
  dll().call(L"VB_V_GetMissingStr", {labels, 4, c.excluded, missing});
  EXPECT_EQ(missing, (Flags{0, -1, 0, 0, 5}));
}

TEST(VectorEntries, SeveralResults) {
  Column c;
  double results[6] = {};
  dll().call(L"VB_V_MinMax", {c.x, c.n, &results[0], &results[1], c.excluded});
  EXPECT_EQ(results[0], 1.5);
  EXPECT_EQ(results[1], 4.0);
  dll().call(L"VB_V_MeanVar", {c.x, c.n, &results[0], &results[1], c.excluded, c.w, true, true});
  EXPECT_EQ(results[0], 3.5);
  EXPECT_DOUBLE_EQ(results[1], 6.5 / 7.0);
  dll().call(L"VB_V_MeanStdev", {c.x, c.n, &results[0], &results[1], c.excluded, c.w, false, false});
  EXPECT_DOUBLE_EQ(results[1], std::sqrt(6.5 / 8.0));
  Doubles powers = {1.0, 2.0, 4.0, 8.0, 0.0, 16.0}, ones(6, 1.0);
  dll().call(L"VB_V_GMeanGSD", {powers, c.n, c.excluded, ones, &results[0], &results[1]});
  EXPECT_DOUBLE_EQ(results[0], 4.0);
  EXPECT_DOUBLE_EQ(results[1], std::exp2(std::sqrt(2.5)));
  dll().call(L"VB_V_MeanVarSkewPKurtP", {powers, 4, &results[0], &results[1], &results[2], &results[3],
                                         &results[4], &results[5], c.excluded, ones, false, true});
  EXPECT_DOUBLE_EQ(results[0], 3.75);
  EXPECT_DOUBLE_EQ(results[1], 115.0 / 16.0);
  for (int which = 0; which < 3; ++which) {
    const wchar_t* const entries[] = {L"VB_V_GetPositionInMatNNp1o2", L"VB_V_GetPositionInMatNNm1o2",
                                      L"VB_V_GetPositionInMatNN"};
    int row = 0, column = 0;
    dll().call(entries[which], {5, 4, &row, &column});
    EXPECT_EQ(row * 10 + column, (Ints{32, 42, 12})[static_cast<std::size_t>(which)]);
  }
}

TEST(VectorEntries, ArraysInAndOut) {
  Column c;
  Doubles out(8, 9.5), a = {3.0, 4.0, 9.5}, b = {2.0, 0.5, 9.5};
  dll().call(L"VB_V_PlusVal", {c.x, c.n, 1.0, c.excluded});
  expectCells(c.x, {3.5, kMarker, 5.0, 2.5, kMarker, 5.0});
  dll().call(L"VB_V_Norm", {a, 2});
  EXPECT_DOUBLE_EQ(a[1], 0.8);
  dll().call(L"VB_V_NormToVal", {a, 2, 5.0});
  EXPECT_DOUBLE_EQ(a[0], 3.0);
  a = {3.0, 4.0, 9.5};
  dll().call(L"VB_V_NormW", {a, 2, c.w});
  EXPECT_DOUBLE_EQ(a[0], 3.0 / std::sqrt(9.0 + 5.0 * 16.0));
  a = {3.0, 4.0, 9.5};
  dll().call(L"VB_V_NormToValW", {a, 2, std::sqrt(89.0), c.w});
  EXPECT_DOUBLE_EQ(a[1], 4.0);
  a = {3.0, 5.0, 9.5};
  dll().call(L"VB_V_Standardize", {a, 2, c.excluded, b, false, out});
  EXPECT_DOUBLE_EQ(out[0], -0.5);
  EXPECT_DOUBLE_EQ(out[1], 2.0);
  dll().call(L"VB_V_Standardize2", {a, 2, c.excluded, b, false});
  EXPECT_DOUBLE_EQ(a[1], 2.0);
  dll().call(L"VB_V_Rescale", {c.x, c.n, 1.0, 2.0, c.excluded, out});
  expectCells(out, {1.4, kMarker, 2.0, 1.0, kMarker, 2.0, 9.5});
  dll().call(L"VB_V_Rescale2", {c.x, 4, 0.0, 10.0, c.excluded});
  expectCells(c.x, {4.0, kMarker, 10.0, 0.0, kMarker, 5.0});
  dll().call(L"VB_V_ReplaceVal", {c.x, 3, kMarker, 7.0, out});
  expectCells(out, {4.0, 7.0, 10.0, 1.0});
  dll().call(L"VB_V_ReplaceVal2", {out, 3, 4.0, kMarker});
  expectCells(out, {kMarker, 7.0, 10.0, 1.0});
  a = {3.0, 4.0, 9.5}, out.assign(8, 9.5);
  dll().call(L"VB_V_ProductV1V2", {a, 2, b, out});
  expectCells(out, {6.0, 2.0, 9.5});
  dll().call(L"VB_V_ProductV1TrV2", {a, 2, b, out});
  expectCells(out, {6.0, 8.0, 1.5, 2.0, 9.5});
  dll().call(L"VB_V_ProductHorizV1V2", {a, 2, b, 2, out, 4});
  expectCells(out, {6.0, 1.5, 8.0, 2.0, 9.5});
  dll().call(L"VB_V_ProductV1V22", {a, 2, b});
  expectCells(a, {6.0, 2.0, 9.5});
  c.count = 2, out = {1.0, -1.0, 9.5, 9.5, 9.5};
  dll().call(L"VB_V_ProductHorizV1V22", {out, &c.count, b, 2});
  EXPECT_EQ(c.count, 4);
  expectCells(out, {2.0, 0.5, -2.0, -0.5, 9.5});
  dll().call(L"VB_V_ReverseDbl", {b, 2, out});
  expectCells(out, {0.5, 2.0, -2.0});
  dll().call(L"VB_V_RemoveVal", {b, 3, 2, out});
  expectCells(out, {2.0, 9.5, -2.0});
  dll().call(L"VB_V_Set1toNDbl", {out, 2});
  expectCells(out, {1.0, 2.0, -2.0});
  Ints k(3, 7);
  dll().call(L"VB_V_Set1toNLng", {k, 2});
  EXPECT_EQ(k, (Ints{1, 2, 7}));
}

TEST(VectorEntries, RanksAndDistinctValues) {
  Doubles x = {20.0, 10.0, 20.0, kMarker}, w = {3.0, 1.0, 1.0, 2.0}, ranks(5, 9.5), sizes(2, 9.5);
  Ints whole(5, 7);
  int count = -7;
  dll().call(L"VB_V_GetRanksDbl", {x, 4, ranks});
  EXPECT_EQ(ranks, (Doubles{3.0, 2.0, 3.0, 1.0, 9.5}));
  dll().call(L"VB_V_GetRanksLng", {x, 4, whole});
  EXPECT_EQ(whole, (Ints{3, 2, 3, 1, 7}));
  dll().call(L"VB_V_GetRanksTiesDbl", {x, 4, w, ranks, &count, sizes});
  // The first of the tied enters with the smallest value's weight, 2.
  EXPECT_EQ(ranks, (Doubles{10.0 / 3.0, 2.0, 10.0 / 3.0, 1.0, 9.5}));
  EXPECT_EQ(count, 1);
  EXPECT_EQ(sizes, (Doubles{2.0, 9.5}));
  dll().call(L"VB_V_GetRanksTiesIntDbl", {x, 4, w, ranks, &count, sizes});
  EXPECT_EQ(ranks, (Doubles{3.0, 2.0, 3.0, 1.0, 9.5}));
  dll().call(L"VB_V_ExtractDistinct", {x, 4, ranks, &count});
  EXPECT_EQ(count, 3);
  expectCells(ranks, {kMarker, 10.0, 20.0, 1.0});
  macro::Strings labels = {L"a", L"a", L"a-2", L"a"};
  dll().call(L"VB_V_ReplaceDoubles", {labels, 4});
  EXPECT_EQ(cellsOf(labels, 4), (std::vector<std::wstring>{L"a", L"a-3", L"a-2", L"a-4"}));
}

TEST(SortingEntries, SortRowsByKeys) {
  const Doubles keys = {2.0, 1.0, kMarker, 1.0};
  Doubles key = keys, data = {1.0, kMarker, 3.0, 4.0, 9.5}, companion = {10.0, 20.0, 30.0, 40.0, 9.5};
  EXPECT_EQ(dll().integer(L"VB_SortQDbl", {data, 4, 0, 1, 4, key, companion, 1, true, true}), 0);
  EXPECT_EQ(key, (Doubles{2.0, 1.0, 1.0, kMarker}));
  EXPECT_EQ(data, (Doubles{1.0, kMarker, 4.0, 3.0, 9.5}));
  EXPECT_EQ(companion, (Doubles{10.0, 20.0, 40.0, 30.0, 9.5}));
  // One array as data and as keys: unless keys are to be sorted too, the data stand.
  EXPECT_EQ(dll().integer(L"VB_SortQDbl", {companion, 4, 1, 1, 4, companion, data, 1, true, false}), 0);
  EXPECT_EQ(companion, (Doubles{40.0, 30.0, 20.0, 10.0, 9.5}));
  Ints keyInts = {3, 1, 2}, dataInts = {1, 2, 3, 4, 5, 6}, more = {7, 8, 9};
  EXPECT_EQ(dll().integer(L"VB_SortQLng", {dataInts, 3, 2, 2, 3, keyInts, more, 1, true, false}), 0);
  EXPECT_EQ(dataInts, (Ints{1, 3, 2, 4, 6, 5}));
  EXPECT_EQ(keyInts, (Ints{3, 1, 2}));
  macro::Strings texts = {L"x", L"y", L"z", L"v"};
  key = keys;
  EXPECT_EQ(dll().integer(L"VB_SortQStr", {texts, 4, 0, 1, 4, key, companion, 0, false, true}), 0);
  EXPECT_EQ(cellsOf(texts, 4), (std::vector<std::wstring>{L"z", L"y", L"v", L"x"}));
  Flags flags = {-1, 0, 1, 0};
  key = keys;
  EXPECT_EQ(dll().integer(L"VB_SortQBool", {flags, 4, 1, 1, 4, key, companion, 1, false, false}), 0);
  EXPECT_EQ(flags, (Flags{-1, 0, 0, -1}));
}

TEST(SortingEntries, SortTablesAndVectors) {
  Doubles table = {1.0, 2.0, 2.0, 5.0, 5.0, 1.0, 2.0, 1.0, 3.0};
  Doubles copy = table;
  EXPECT_EQ(dll().integer(L"VB_SortQMatrixCol", {copy, 3, 3, 3, 1, 3, true}), 0);
  EXPECT_EQ(copy, (Doubles{2.0, 1.0, 2.0, 1.0, 5.0, 5.0, 3.0, 2.0, 1.0}));
  dll().call(L"VB_SortMatrixSeqQDbl", {table, 3, 3});
  EXPECT_EQ(table, (Doubles{1.0, 2.0, 2.0, 5.0, 1.0, 5.0, 2.0, 3.0, 1.0}));
  Ints ints = {1, 2, 5, 5, 2, 1};
  dll().call(L"VB_SortMatrixSeqQLng", {ints, 2, 3});
  EXPECT_EQ(ints, (Ints{2, 1, 5, 5, 1, 2}));
  Doubles numbers = {2.0, kMarker, 7.0, 3.0};
  EXPECT_EQ(dll().integer(L"VB_SortQVectorDbl", {numbers, 4, 1, 3, true}), 0);
  EXPECT_EQ(numbers, (Doubles{7.0, 2.0, kMarker, 3.0}));
  EXPECT_EQ(dll().integer(L"VB_SortQVectorLng", {ints, 6, 1, 6, false}), 0);
  EXPECT_EQ(ints, (Ints{1, 1, 2, 2, 5, 5}));
  macro::Strings texts = {L"\xD83D\xDE00", L"", L"\xFFFD", L"a"};
  EXPECT_EQ(dll().integer(L"VB_SortQVectorStr", {texts, 4, 1, 4, false}), 0);
  EXPECT_EQ(cellsOf(texts, 4), (std::vector<std::wstring>{L"", L"a", L"\xD83D\xDE00", L"\xFFFD"}));

  Doubles key = {1.0, 0.0, 1.0}, data = {1.0, 2.0, 3.0};
  EXPECT_EQ(dll().integer(L"VB_SortDataBy01", {data, 3, 1, key, 0, false}), 0);
  EXPECT_EQ(data, (Doubles{2.0, 1.0, 3.0}));
  EXPECT_EQ(key, (Doubles{0.0, 1.0, 1.0}));
  Flags flags = {-1, 0, -1};
  key = {1.0, 0.0, 0.0};
  EXPECT_EQ(dll().integer(L"VB_SortDataBy01Bool", {flags, 3, 1, key, 0, false}), 0);
  EXPECT_EQ(flags, (Flags{0, -1, -1}));
  key = {1.0, 0.0, 0.0};
  EXPECT_EQ(dll().integer(L"VB_SortDataBy01Str", {texts, 3, 1, key, 0, false}), 0);
  EXPECT_EQ(cellsOf(texts, 3), (std::vector<std::wstring>{L"a", L"\xD83D\xDE00", L""}));

  Doubles order = {3.0, 1.0, 4.0}, out(4, 9.5);
  dll().call(L"VB_SortApply", {data, 3, 1, order, out});
  EXPECT_EQ(out, (Doubles{3.0, 2.0, -1.0, 9.5}));
  macro::Strings moved(3);
  dll().call(L"VB_SortApplyStr", {texts, 3, 1, order, moved});
  EXPECT_EQ(cellsOf(moved, 3), (std::vector<std::wstring>{L"", L"a", L""}));
}
