#include <gtest/gtest.h>

#include <limits>

#include "bridge/generated/entries.h"
#include "kavoratb1c/marker.h"
#include "numerics/scalar.h"

using namespace kav;

extern "C" {
double VB_V_Sum2Dbl(double* iVector, int n);
int VB_V_SetToValue(double* oVector, int n, double iValue);
VARIANT_BOOL VB_V_IsConstantBool(VARIANT_BOOL* iVect, int n);
void VB_V_DuplicateDbl(double* iVect, int n, double* oVect);
}

#if !defined(_WIN32)
// On Windows the tests of the DLL go through its type library.

TEST(Guard, FailedCallsReturnTheFailureValueAndWriteNothing) {
  double cell = 2.385;
  EXPECT_EQ(VB_V_Sum2Dbl(nullptr, 1), kMissing);
  EXPECT_EQ(VB_V_SetToValue(nullptr, 1, 1.5), -1);
  EXPECT_EQ(VB_V_IsConstantBool(nullptr, 2), 0);
  VB_V_DuplicateDbl(&cell, 1, nullptr);
  VB_V_DuplicateDbl(nullptr, 1, &cell);
  EXPECT_EQ(cell, 2.385);
}

TEST(Guard, EntriesWork) {
  double cells[] = {2.385, 1.25}, copy[2] = {};
  EXPECT_EQ(VB_V_Sum2Dbl(cells, 2), 3.635);
  VB_V_DuplicateDbl(cells, 2, copy);
  EXPECT_EQ(copy[1], 1.25);
}

#endif

TEST(Scalar, TruncationIsDefinedForEveryDouble) {
  constexpr int lowest = std::numeric_limits<int>::min();
  EXPECT_EQ(scalar::truncateToInt(2.999), 2);
  EXPECT_EQ(scalar::truncateToInt(-2.999), -2);
  EXPECT_EQ(scalar::truncateToInt(2147483647.9), 2147483647);
  EXPECT_EQ(scalar::truncateToInt(-2147483648.9), lowest);
  EXPECT_EQ(scalar::truncateToInt(2147483648.0), lowest);
  EXPECT_EQ(scalar::truncateToInt(-1e300), lowest);
  EXPECT_EQ(scalar::truncateToInt(std::numeric_limits<double>::quiet_NaN()), lowest);
}
