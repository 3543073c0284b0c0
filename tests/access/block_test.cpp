// Fast access to a leading block against the element members, over many shapes.

#include "access/block.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <limits>
#include <new>
#include <set>

#include "core/contents.h"
#include "support/random.h"

using namespace kav;

namespace {

/// Random cells, special values among them, about one in rarity flagged (0: none).
void fill(matrix& m, Random& random, int rarity) {
  const double special[] = {std::numeric_limits<double>::quiet_NaN(),
                            -std::numeric_limits<double>::infinity(), -0.0, kOutside};
  for (int k = 0; k < addressing::cellCount(m); ++k) {
    m.values[k] = random.below(7) == 0 ? special[random.below(4)] : random.uniform(-9.0, 9.0);
    m.setMissing(k, rarity > 0 && random.below(rarity) == 0);
  }
  m.descValid = 1;
}

/// Calls check with containers of many shapes and extents around and beyond their edges, until one fails.
void forManyShapes(const std::function<testing::AssertionResult(matrix&, int n, int p, Random&)>& check) {
  Random random(2385);
  for (const int rows : {-1, 0, 1, 2, 3, 5, 16}) {
    for (const int columns : {-1, 0, 1, 2, 3, 4, 7}) {
      const int cells = static_cast<int>(addressing::cellCount(rows, columns));
      for (const int n : std::set{-1, 0, 1, 2, 3, rows - 1, rows, rows + 1, 2 * rows + 1, cells, cells + 1}) {
        for (const int p : std::set{-1, 0, 1, 2, 3, columns - 1, columns, columns + 1, columns + 3}) {
          for (const int rarity : {0, 30, 2}) {
            matrix m(rows, columns);
            fill(m, random, rarity);
            ASSERT_TRUE(check(m, n, p, random)) << " in " << n << " x " << p << " of " << rows << " x "
                                                << columns << ", one flag in " << rarity;
          }
        }
      }
    }
  }
}

/// f(i, j) over a block, column after column.
template <class F>
std::vector<double> collect(int n, int p, F f) {
  std::vector<double> cells;
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < n; ++i) cells.push_back(f(i, j));
  }
  return cells;
}

TEST(BlockValues, AreWhatGetElementReads) {
  forManyShapes([](matrix& m, int n, int p, Random&) {
    const block::Values values(&m, n, p);
    return bits::equal(collect(n, p, [&](int i, int j) { return values[i + values.leadingDimension() * j]; }),
                       collect(n, p, [&](int i, int j) { return m.getElement(i, j); }));
  });
}

TEST(BlockFlags, AreWhatGetMissingReads) {
  forManyShapes([](matrix& m, int n, int p, Random&) {
    const block::Flags flags(&m, n, p);
    return bits::equal(collect(n, p, [&](int i, int j) { return flags[i + flags.leadingDimension() * j]; }),
                       collect(n, p, [&](int i, int j) { return m.getMissing(i, j); }));
  });
  const matrix marker(2, 1, kMissing);
  EXPECT_TRUE(marker.getMissing(1));
  EXPECT_FALSE(block::Flags(&marker, 2)[1]);
}

/// Writes random values into the block of m through a Target, in descending order, and into a copy of m
/// through setElement, column after column; everywhere or, with some, only into the first cell and about half
/// of the others. Tells whether the two end alike.
testing::AssertionResult writesAlike(matrix& m, int n, int p, Random& random, bool some) {
  matrix twin(m.nX, &m);
  twin.descValid = m.descValid;
  block::Target target(&m, n, p);
  struct Write {
    int i, j;
    double x;
  };
  std::vector<Write> writes;
  for (int j = 0; j < p; ++j) {
    for (int i = 0; i < n; ++i) {
      if (!some || i + j == 0 || random.below(2) == 0) writes.push_back({i, j, random.uniform(-9.0, 9.0)});
    }
  }
  for (const Write& w : writes) twin.setElement(w.i, w.j, w.x);
  std::reverse(writes.begin(), writes.end());
  for (const Write& w : writes) target[w.i + target.leadingDimension() * w.j] = w.x;
  target.store();
  if (m.descValid != twin.descValid) return testing::AssertionFailure() << "descValid " << m.descValid;
  if (flagsOf(m) != flagsOf(twin)) return testing::AssertionFailure() << "flags changed";
  return bits::equal(cellsOf(m), cellsOf(twin));
}

TEST(BlockTarget, StoresAWholeBlockAsSetElementDoes) {
  forManyShapes([](matrix& m, int n, int p, Random& random) { return writesAlike(m, n, p, random, false); });
}

TEST(BlockTarget, KeepsCellsThatAreNotWritten) {
  forManyShapes([](matrix& m, int n, int p, Random& random) {
    const bool overlap = n > m.nX && p > 1;  // of columns: there only a whole block has one meaning
    return writesAlike(m, n, p, random, !overlap);
  });
}

TEST(BlockTarget, IsTheContainersMemoryUnlessACellInsideIsFlagged) {
  for (int flagged = -1; flagged < 12; ++flagged) {
    matrix m(4, 3, 2.385);
    m.setMissing(flagged, true);
    m.descValid = 1;
    block::Target target(&m, 3, 2);
    const bool direct = flagged < 0 || flagged % 4 == 3 || flagged >= 8;
    EXPECT_EQ(target.data() == m.values, direct) << flagged;
    target[0] = 6.1;
    EXPECT_EQ(m.values[0], direct ? 6.1 : 2.385) << flagged;
    EXPECT_EQ(m.descValid, 1) << flagged;
    EXPECT_EQ(target.leadingDimension(), direct ? 4 : 3) << flagged;
  }
}

TEST(BlockValues, AreTheContainersMemoryAsFarAsTheLastLinearIndexIsInside) {
  const matrix m(4, 3, 2.385);
  for (const auto& [n, p] : {std::pair{4, 3}, {2, 2}, {12, 1}, {7, 2}}) {
    EXPECT_EQ(block::Values(&m, n, p).data(), m.values) << n << " x " << p;
  }
  EXPECT_NE(block::Values(&m, 5, 3).data(), m.values);
  EXPECT_NE(block::Values(&m, 13).data(), m.values);
}

TEST(Block, OfANullContainerIsOutside) {
  const block::Values values(nullptr, 2, 3);
  const block::Flags flags(nullptr, 2, 3);
  block::Target target(nullptr, 2, 3);
  for (int k = 0; k < 6; ++k) {
    EXPECT_EQ(values[k], -1.0);
    EXPECT_FALSE(flags[k]);
    target[k] = 2.385 + k;
    EXPECT_EQ(target[k], 2.385 + k);
  }
  target.store();
}

TEST(Block, SizesThatNoMemoryHoldsAreRefused) {
  matrix m(2, 2, 2.385);
  // Products that 32 bits would cut to 0, to a little, and that 64 bits hold only just.
  const int sizes[][2] = {{INT_MAX, INT_MAX}, {INT_MAX, INT_MAX - 1}};
  for (const auto& [n, p] : sizes) {
    EXPECT_THROW(block::Values(&m, n, p), std::bad_alloc) << n << " x " << p;
    EXPECT_THROW(block::Target(&m, n, p), std::bad_alloc) << n << " x " << p;
  }
  if constexpr (sizeof(void*) == 4) {
    EXPECT_THROW(block::Values(&m, 65536, 65536), std::bad_alloc);
    EXPECT_THROW(block::Target(&m, 65537, 65536), std::bad_alloc);
  }
}

}  // namespace
