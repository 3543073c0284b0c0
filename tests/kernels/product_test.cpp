#include "kernels/kernels.h"

#include <vector>

#include "support/bits.h"
#include "support/corpus.h"

namespace {

using Cells = std::vector<double>;

/// The product as it is defined, cell by cell.
Cells byDefinition(const kernels::Product& p, Cells c) {
  for (std::ptrdiff_t i = 0; i < p.rows; ++i) {
    for (std::ptrdiff_t j = 0; j < p.columns; ++j) {
      double& sum = c[static_cast<std::size_t>(i + j * p.stride)];
      if (!p.continued) sum = 0.0;
      for (std::ptrdiff_t k = 0; k < p.depth; ++k) {
        const double a = p.a.cells[i * p.a.row + k * p.a.column];
        const double factor = p.scale == nullptr ? a : a * p.scale[k * p.scaleStride];
        sum += factor * p.b.cells[k * p.b.row + j * p.b.column];
      }
    }
  }
  return c;
}

}  // namespace

TEST(ProductKernels, EqualTheirDefinitionBitForBit) {
  Random random(41);
  const int sizes[] = {0, 1, 2, 3, 5, 6, 7, 8, 11, 12, 13, 15, 16, 17, 31, 33, 48, 65};
  int count;
  const kernels::Table* const* tables = kernels::supported(&count);
  for (int round = 0; round < 500; ++round) {
    const auto pick = [&] { return sizes[random.below(static_cast<int>(std::size(sizes)))]; };
    const int rows = round % 50 == 7 ? 211 : pick(), columns = round % 50 == 17 ? 487 : pick();
    const int depth = round % 20 == 3 ? 530 : pick(), stride = rows + random.below(3);
    // Misaligned starts, either direction of storage, and numbers of every size.
    const Cells a = corpusCells(random.bits(), (rows + 1) * (depth + 1) + 1);
    const Cells b = corpusCells(random.bits(), (columns + 1) * (depth + 1) + 1);
    const Cells scale = corpusCells(random.bits(), 2 * depth + 1);
    Cells before = corpusCells(random.bits(), stride * columns + 1);
    for (double& cell : before) cell = std::isfinite(cell) && std::fabs(cell) < 1e300 ? cell : 0.5;
    const kernels::View alongRows = {a.data() + 1, 1, rows + 1}, alongDepth = {a.data(), depth + 1, 1};
    const kernels::View bAlongDepth = {b.data(), 1, depth + 1},
                        bAlongColumns = {b.data() + 1, columns + 1, 1};
    const kernels::Product product = {random.below(2) == 0 ? alongRows : alongDepth,
                                      random.below(2) == 0 ? bAlongDepth : bAlongColumns,
                                      random.below(2) == 0 ? nullptr : scale.data(),
                                      2,
                                      rows,
                                      columns,
                                      depth,
                                      nullptr,
                                      stride,
                                      random.below(2) == 0,
                                      random.below(2) == 0};
    const Cells expected = byDefinition(product, before);
    for (int t = 0; t < count; ++t) {
      SCOPED_TRACE(std::string(tables[t]->name) + ", " + std::to_string(rows) + " x " +
                   std::to_string(columns) + " x " + std::to_string(depth));
      Cells actual = before;
      kernels::Product run = product;
      run.c = actual.data();
      // The cells behind the scratch memory are nobody's.
      Cells scratch(kernels::productScratch(run) + 8, 2.385);
      tables[t]->product(run, scratch.data());
      EXPECT_EQ(Cells(scratch.end() - 8, scratch.end()), Cells(8, 2.385));
      for (int j = 0; j < columns; ++j) {
        for (int i = 0; i < stride; ++i) {
          const auto k = static_cast<std::size_t>(i + j * stride);
          const bool needed = i >= rows || !run.upperOnly || i <= j;
          ASSERT_TRUE(!needed || bits::equal(actual[k], expected[k])) << "at " << i << ", " << j;
        }
      }
    }
  }
}
