// What the entries give a macro, called through the type library.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "windows/any_entry.h"

namespace {

constexpr double kMarker = -1.79769313486231E+308;
const double kInfinity = std::numeric_limits<double>::infinity();

}  // namespace

TEST(Entries, SumAndMeanOfAColumn) {
  std::vector<double> x = {1.0, 2.0, 3.0}, w = {1.0, 1.0, 2.0};
  std::vector<VARIANT_BOOL> flags = {0, -1, 0};
  EXPECT_EQ(dll().number(L"VB_V_Sum", {x, 3, flags, w}), 7.0);
  EXPECT_EQ(dll().number(L"VB_V_Mean", {x, 3, flags, w}), 7.0 / 3.0);
}

TEST(Entries, MissingCellsCountAsZeroInSumsAndNotInMeans) {
  std::vector<double> x = {2.385, kMarker, 1.25, -kInfinity}, w = {1.0, 4.0, 0.5, 2.0};
  std::vector<VARIANT_BOOL> flags(4);
  EXPECT_EQ(dll().number(L"VB_V_Sum", {x, 4, flags, w}), 3.01);
  EXPECT_EQ(dll().number(L"VB_V_Sum2Dbl", {x, 4}), 3.635);
  EXPECT_EQ(dll().number(L"VB_V_Mean", {x, 4, flags, w}), 3.01 / 1.5);
}

TEST(Entries, NullFlagsAndWeightsWhereTheSumAllowsThem) {
  std::vector<double> x = {2.385, 1.25}, w = {2.0, 4.0};
  std::vector<VARIANT_BOOL> flags(2);
  VARIANT_BOOL* const noFlags = nullptr;
  double* const none = nullptr;
  EXPECT_EQ(dll().number(L"VB_V_Sum", {x, 2, noFlags, none}), 3.635);
  EXPECT_EQ(dll().number(L"VB_V_Sum", {x, 2, noFlags, w}), 9.77);
  // Elsewhere a null array is a failed call.
  EXPECT_EQ(dll().number(L"VB_V_Mean", {x, 2, noFlags, w}), kMarker);
  EXPECT_EQ(dll().number(L"VB_V_Mean", {x, 2, flags, none}), kMarker);
  EXPECT_EQ(dll().number(L"VB_V_Sum2Dbl", {none, 2}), kMarker);
}

TEST(Entries, EmptyVectors) {
  double* const none = nullptr;
  VARIANT_BOOL* const noFlags = nullptr;
  for (int n : {0, -1, INT_MIN}) {
    EXPECT_EQ(dll().number(L"VB_V_Sum", {none, n, noFlags, none}), 0.0);
    EXPECT_TRUE(std::isnan(dll().number(L"VB_V_Mean", {none, n, noFlags, none})));
    EXPECT_EQ(dll().integer(L"VB_V_SetToValue", {none, n, 1.0}), 0);
    EXPECT_EQ(dll().boolean(L"VB_V_IsConstantBool", {noFlags, n}), VARIANT_TRUE);
  }
}

TEST(Entries, IntegersAreSummedAndTruncated) {
  std::vector<int> a = {7, -3, 12};
  EXPECT_EQ(dll().integer(L"VB_V_Sum2Lng", {a, 3}), 16);
  std::vector<int> large = {INT_MAX, INT_MAX};
  EXPECT_EQ(dll().integer(L"VB_V_Sum2Lng", {large, 2}), INT_MIN);
}

TEST(Entries, MissingValuesOfMacros) {
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueDbl", {kMarker}), VARIANT_TRUE);
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueDbl", {-kInfinity}), VARIANT_TRUE);
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueDbl", {-1.7E+306}), VARIANT_FALSE);
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueDbl", {std::nan("")}), VARIANT_FALSE);
  macro::Strings texts = {L"", L" ", std::wstring_view(L"\0x", 2)};
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueStr", {texts.data()[0]}), VARIANT_TRUE);
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueStr", {texts.data()[1]}), VARIANT_FALSE);
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueStr", {texts.data()[2]}), VARIANT_TRUE);
  EXPECT_EQ(dll().boolean(L"VB_IsMissingValueStr", {BSTR{nullptr}}), VARIANT_TRUE);
}

TEST(Entries, FilledArraysStopAtTheirEnd) {
  std::vector<double> x = {9.5, 9.5, 9.5};
  std::vector<int> k = {9, 9, 9};
  std::vector<VARIANT_BOOL> flags = {-1, -1, -1};
  EXPECT_EQ(dll().integer(L"VB_V_SetToValue", {x, 2, kMarker}), 0);
  EXPECT_EQ(dll().integer(L"VB_V_SetToValueLng", {k, 2, -7}), 0);
  EXPECT_EQ(dll().integer(L"VB_InitVectorToFalse", {flags, 2}), 0);
  EXPECT_EQ(x, (std::vector<double>{kMarker, kMarker, 9.5}));
  EXPECT_EQ(k, (std::vector<int>{-7, -7, 9}));
  EXPECT_EQ(flags, (std::vector<VARIANT_BOOL>{0, 0, -1}));
}

TEST(Entries, CopiesKeepNumbersAsTheyStand) {
  std::vector<double> a = {2.385, kMarker, -0.0, -kInfinity, 1e-320, kInfinity}, copy(7, 9.5);
  dll().call(L"VB_M_DuplicateDbl", {a, 2, 3, copy});
  EXPECT_EQ(std::vector<double>(copy.begin(), copy.begin() + 6), a);
  EXPECT_TRUE(std::signbit(copy[2]));
  EXPECT_EQ(copy[6], 9.5);
  dll().call(L"VB_V_DuplicateDbl", {a, 2, copy});
  std::vector<int> k = {INT_MIN, 5, INT_MAX}, kCopy(3);
  dll().call(L"VB_V_DuplicateLng", {k, 3, kCopy});
  EXPECT_EQ(kCopy, k);
}

TEST(Entries, CopiesOfStringsAreNewStrings) {
  macro::Strings a = {L"north", L"", std::wstring_view(L"so\0uth", 6), L"\xD83D\xDE00 east"}, copy(4);
  SysFreeString(a.data()[1]);
  a.data()[1] = nullptr;
  dll().call(L"VB_M_DuplicateStr", {a, 2, 2, copy});
  EXPECT_EQ(copy[0], L"north");
  EXPECT_EQ(copy[1], L"");
  EXPECT_NE(copy.data()[1], nullptr);
  EXPECT_EQ(copy[2], L"so");
  EXPECT_EQ(copy[3], L"\xD83D\xDE00 east");
  EXPECT_NE(copy.data()[0], a.data()[0]);

  macro::Strings filled(3);
  dll().call(L"VB_V_SetToValueStr", {filled, 2, a.data()[0]});
  EXPECT_EQ(filled[1], L"north");
  EXPECT_EQ(filled.data()[2], nullptr);
  macro::Strings again(2);
  dll().call(L"VB_V_DuplicateStr", {filled, 2, again});
  EXPECT_EQ(again[1], L"north");
}

TEST(Entries, FlagsAreReversedAndCompared) {
  std::vector<VARIANT_BOOL> flags = {1, 0, -1}, reversed = {5, 5, 5};
  dll().call(L"VB_V_ReverseBool", {flags, 3, reversed});
  EXPECT_EQ(reversed, (std::vector<VARIANT_BOOL>{-1, 0, -1}));
  EXPECT_EQ(dll().boolean(L"VB_V_IsConstantBool", {flags, 3}), VARIANT_FALSE);
  std::vector<VARIANT_BOOL> same = {-1, -1};
  EXPECT_EQ(dll().boolean(L"VB_V_IsConstantBool", {same, 2}), VARIANT_TRUE);
}
