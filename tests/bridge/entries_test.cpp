// Results that lie in arrays that are read.

#include <gtest/gtest.h>

#include <vector>

#include "manual/generated/prototypes.h"
#include "support/bits.h"

// Large enough that a worker may be given the macro's array itself, in place of a copy.
TEST(Entries, ResultsMayLieInArraysThatAreRead) {
  constexpr int n = 10;
  std::vector<double> table, transposed, twice, stacked, other;
  for (int k = 0; k < n * n; ++k) {
    table.push_back(2.385 + k);
    transposed.push_back(2.385 + (k % n * n + k / n));
    other.push_back(-7.25 * k);
  }
  std::vector<double> a = table;
  EXPECT_EQ(VB_M_Transpose(a.data(), n, n, a.data()), 0);
  EXPECT_TRUE(bits::equal(a, transposed));
  a = table;
  EXPECT_EQ(VB_M_Transpose2(a.data(), n, n), 0);
  EXPECT_TRUE(bits::equal(a, transposed));

  // Side by side: the second operand lies where the result begins.
  twice = other;
  twice.insert(twice.end(), table.begin(), table.end());
  a = table;
  a.resize(2 * n * n);
  VB_HMergeTablesDbl(other.data(), n, n, a.data(), n, n, a.data());
  EXPECT_TRUE(bits::equal(a, twice));

  // Below each other, onto the second operand.
  for (int j = 0; j < n; ++j) {
    stacked.insert(stacked.end(), other.begin() + j * n, other.begin() + (j + 1) * n);
    stacked.insert(stacked.end(), table.begin() + j * n, table.begin() + (j + 1) * n);
  }
  a = table;
  a.resize(2 * n * n);
  VB_VMergeTablesDbl(other.data(), n, n, a.data(), n, n, a.data());
  EXPECT_TRUE(bits::equal(a, stacked));

  // A block that is moved by one cell within its array.
  a = table;
  VB_V_DuplicateDbl(a.data(), n * n - 1, a.data() + 1);
  EXPECT_TRUE(bits::equal(std::vector<double>(a.begin() + 1, a.end()),
                          std::vector<double>(table.begin(), table.end() - 1)));
  a = table;
  VB_M_CopyBlock(a.data(), n, n, 1, n, 1, n - 1, a.data() + n);
  EXPECT_TRUE(bits::equal(std::vector<double>(a.begin() + n, a.end()),
                          std::vector<double>(table.begin(), table.end() - n)));
}
