#include "kavoratb1c/tables/positions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <utility>

namespace {

void expectPosition(void (*find)(int, int, int*, int*), int position, int n, int i, int j) {
  int row = -7, column = -7;
  find(position, n, &row, &column);
  EXPECT_EQ(std::pair(row, column), std::pair(i, j)) << position << " of " << n;
}

}  // namespace

TEST(Positions, AreWherePackingPutsThem) {
  for (int n = -1; n <= 12; ++n) {
    int packed = 0, strict = 0, whole = 0;
    for (int i = 1; i <= n; ++i) {
      for (int j = 1; j <= i; ++j) expectPosition(V_GetPositionInMatNNp1o2, ++packed, n, i, j);
      for (int j = 1; j < i; ++j) expectPosition(V_GetPositionInMatNNm1o2, ++strict, n, i, j);
      for (int j = 1; j <= n; ++j) expectPosition(V_GetPositionInMatNN, ++whole, n, j, i);
    }
    for (const int outside : {0, INT_MIN, whole + 1}) {
      expectPosition(V_GetPositionInMatNNp1o2, std::min(outside, packed + 1), n, 0, 0);
      expectPosition(V_GetPositionInMatNNm1o2, std::min(outside, strict + 1), n, 0, 0);
      expectPosition(V_GetPositionInMatNN, outside, n, 0, 0);
    }
  }
  // INT_MAX = 46341 * 46340 + 41707 = 65535 * 65536 / 2 + 32767.
  expectPosition(V_GetPositionInMatNN, INT_MAX, 46341, 41707, 46341);
  expectPosition(V_GetPositionInMatNN, 46340 * 46340 + 1, 46340, 0, 0);
  expectPosition(V_GetPositionInMatNNp1o2, INT_MAX, INT_MAX, 65536, 32767);
  expectPosition(V_GetPositionInMatNNm1o2, INT_MAX - 32767, INT_MAX, 65536, 65535);
}
