#include <vector>

#include "kernels/kernels.h"
#include "support/bits.h"
#include "support/corpus.h"

// Every offset of the target within a line of the cache, strides that keep it and strides that do not, and
// extents around whole tiles; cells between the target's columns and around it are nobody's.
TEST(TransposeKernels, EqualTheirDefinitionBitForBit) {
  Random random(43);
  int count;
  const kernels::Table* const* tables = kernels::supported(&count);
  for (int round = 0; round < 300; ++round) {
    const int rows = random.below(40), columns = random.below(40), offset = random.below(9);
    const int fromStride = rows + random.below(3);
    const int stride = random.below(2) == 0 ? (columns + 7) / 8 * 8 : columns + random.below(3);
    const std::vector<double> from = corpusCells(random.bits(), fromStride * columns + 1);
    const double factor = round % 3 == 0 ? 1.0 : random.uniform(-2.0, 2.0);
    const std::vector<double> before(static_cast<std::size_t>(stride * rows + 16), 2.385);
    std::vector<double> expected = before;
    for (int i = 0; i < rows; ++i) {
      for (int j = 0; j < columns; ++j) {
        expected[static_cast<std::size_t>(offset + j + stride * i)] =
            factor * from[static_cast<std::size_t>(i + fromStride * j)];
      }
    }
    for (int t = 0; t < count; ++t) {
      SCOPED_TRACE(std::string(tables[t]->name) + ", " + std::to_string(rows) + " x " +
                   std::to_string(columns));
      std::vector<double> to = before;
      tables[t]->transpose({from.data(), fromStride, rows, columns, factor, to.data() + offset, stride});
      for (std::size_t k = 0; k < to.size(); ++k) ASSERT_TRUE(bits::equal(to[k], expected[k])) << "at " << k;
    }
  }
}
