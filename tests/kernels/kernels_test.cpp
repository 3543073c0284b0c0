#include "kernels/kernels.h"

#include "definitions/nearest_neighbours.h"
#include "support/corpus.h"
#include "support/tables.h"

using namespace kav;

namespace {

using definitions::WeightedUpdate;

using Cells = std::vector<double>;
using kernels::Product, kernels::View;

/// Calls check(table) for every instruction set that runs here.
template <class Check>
void forEachTable(Check check) {
  int count;
  const kernels::Table* const* tables = kernels::supported(&count);
  for (int t = 0; t < count; ++t) {
    SCOPED_TRACE(tables[t]->name);
    check(*tables[t]);
  }
}

/// The product as it is defined, cell by cell.
Cells byDefinition(const Product& p, Cells c) {
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

TEST(Kernels, ProductsEqualTheirDefinitionBitForBit) {
  Random random(41);
  const int sizes[] = {0, 1, 2, 3, 5, 6, 7, 8, 11, 12, 13, 15, 16, 17, 31, 33, 48, 65};
  for (int round = 0; round < 500; ++round) {
    const auto pick = [&] { return sizes[random.below(static_cast<int>(std::size(sizes)))]; };
    const auto coin = [&] { return random.below(2) == 0; };
    const int rows = round % 50 == 7 ? 211 : pick(), columns = round % 50 == 17 ? 487 : pick();
    const int depth = round % 20 == 3 ? 530 : pick(), stride = rows + random.below(3);
    SCOPED_TRACE(testing::Message() << rows << " x " << columns << " x " << depth);
    // Misaligned starts, either direction of storage, and numbers of every size.
    const Cells a = corpusCells(random.bits(), (rows + 1) * (depth + 1) + 1);
    const Cells b = corpusCells(random.bits(), (columns + 1) * (depth + 1) + 1);
    const Cells scale = corpusCells(random.bits(), 2 * depth + 1);
    Cells before = corpusCells(random.bits(), stride * columns + 1);
    for (double& cell : before) cell = std::isfinite(cell) && std::fabs(cell) < 1e300 ? cell : 0.5;
    const View left = coin() ? View{a.data() + 1, 1, rows + 1} : View{a.data(), depth + 1, 1};
    const View right = coin() ? View{b.data(), 1, depth + 1} : View{b.data() + 1, columns + 1, 1};
    const double* factors = coin() ? nullptr : scale.data();
    Product run{left, right, factors, 2, rows, columns, depth, nullptr, stride, coin(), coin()};
    const Cells expected = byDefinition(run, before);
    forEachTable([&](const kernels::Table& kernel) {
      Cells actual = before;
      run.c = actual.data();
      // The cells behind the scratch memory are nobody's.
      Cells scratch(kernels::productScratch(run) + 8, 2.385);
      kernel.product(run, scratch.data());
      EXPECT_EQ(Cells(scratch.end() - 8, scratch.end()), Cells(8, 2.385));
      for (int i = 0; run.upperOnly && i < rows; ++i) {
        for (int j = 0; j < std::min(i, columns); ++j) {
          const auto k = static_cast<std::size_t>(i + j * stride);
          actual[k] = expected[k];  // need not be computed
        }
      }
      EXPECT_TRUE(bits::equal(actual, expected));
    });
  }
}

// Every offset of the target within a line of the cache, strides that keep it and strides that do not, and
// extents around whole tiles; cells between the target's columns and around it are nobody's.
TEST(Kernels, TranspositionsEqualTheirDefinitionBitForBit) {
  Random random(43);
  for (int round = 0; round < 300; ++round) {
    const int rows = random.below(40), columns = random.below(40), offset = random.below(9);
    SCOPED_TRACE(testing::Message() << rows << " x " << columns);
    const int fromStride = rows + random.below(3);
    const int stride = random.below(2) == 0 ? (columns + 7) / 8 * 8 : columns + random.below(3);
    const Cells from = corpusCells(random.bits(), fromStride * columns + 1);
    const double factor = round % 3 == 0 ? 1.0 : random.uniform(-2.0, 2.0);
    const Cells before(static_cast<std::size_t>(stride * rows + 16), 2.385);
    Cells expected = before;
    for (int k = 0; k < rows * columns; ++k) {
      const int i = k % rows, j = k / rows;
      expected[static_cast<std::size_t>(offset + j + stride * i)] =
          factor * from[static_cast<std::size_t>(i + fromStride * j)];
    }
    forEachTable([&](const kernels::Table& kernel) {
      Cells to = before;
      kernel.transpose({from.data(), fromStride, rows, columns, factor, to.data() + offset, stride});
      EXPECT_TRUE(bits::equal(to, expected));
    });
  }
}

// Rows in two calls, the second going on with the sums of the first; other columns' sums are nobody's.
TEST(Kernels, CoMomentsOfPairsEqualTheirDefinitionBitForBit) {
  Random random(44);
  for (int round = 0; round < 200; ++round) {
    forEachTable([&](const kernels::Table& kernel) {
      const int lanes = kernel.pairLanes, stride = 2 * lanes + random.below(3), n = random.below(40);
      const int a = random.below(stride), b = random.below(lanes + 1);
      const auto size = static_cast<std::size_t>(stride);
      Cells x = corpusCells(random.bits(), stride * n), weights, sums(5 * size, 0.0);
      std::vector<std::uint64_t> present;
      for (double& cell : x) {
        present.push_back(cell > kMissing && random.below(4) > 0 ? ~std::uint64_t{0} : 0);
        if (present.back() == 0) cell = 0.0;
      }
      std::vector<int> rows;
      std::vector<WeightedUpdate> expected(size);
      for (int r = 0; r < n; ++r) {
        const auto at = [&](int j) { return static_cast<std::size_t>(j + stride * r); };
        if (present[at(a)] == 0) continue;
        rows.push_back(r);
        const int scale = round % 3 == 2 ? 60 * random.below(3) : 0;
        weights.push_back(round % 3 == 0 ? 1.0 : std::ldexp(random.uniform(0.1, 4.0), scale));
        for (int j = b; j < b + lanes; ++j) {
          if (present[at(j)] == 0) continue;
          expected[static_cast<std::size_t>(j)].add(x[at(a)], x[at(j)], weights.back());
        }
      }
      double* s = sums.data();
      const auto goOn = [&](std::size_t from, std::size_t to) {
        kernel.pairMoments({x.data(), present.data(), stride, rows.data() + from, weights.data() + from,
                            static_cast<std::ptrdiff_t>(to - from)},
                           a, b, {s, s + size, s + 2 * size, s + 3 * size, s + 4 * size});
      };
      goOn(0, rows.size() / 2);
      goOn(rows.size() / 2, rows.size());
      for (std::size_t j = 0; j < size; ++j) {
        const WeightedUpdate& e = expected[j];
        const Cells own = {s[j], s[size + j], s[2 * size + j], s[3 * size + j], s[4 * size + j]};
        EXPECT_TRUE(bits::equal(own, {e.total, e.count, e.products, e.meanA, e.meanB})) << j << " of " << b;
      }
    });
  }
}

// Left of the diagonal there is no number; the cells behind the last row are nobody's.
TEST(Kernels, BackSubstitutionsEqualTheirDefinitionBitForBit) {
  Random random(45);
  for (int n = 0; n < 40; ++n) {
    forEachTable([&](const kernels::Table& kernel) {
      const auto sides = static_cast<std::size_t>(kernel.sides), size = static_cast<std::size_t>(n);
      Cells u(size * size + 1, std::nan("")), x = corpusCells(random.bits(), n * kernel.sides + 8);
      for (std::size_t i = 0; i < size; ++i) {
        for (std::size_t k = i; k < size; ++k) u[size * i + k] = random.uniform(k == i ? 0.5 : -2.0, 2.0);
      }
      if (n % 8 == 7) u[(size + 1) * (size / 2)] = 0.0;
      Cells expected = x;
      for (std::size_t cell = size * sides; cell-- > 0;) {
        const std::size_t i = cell / sides;
        for (std::size_t k = i + 1; k < size; ++k) {
          expected[cell] -= u[size * i + k] * expected[cell + sides * (k - i)];
        }
        expected[cell] /= u[(size + 1) * i];
      }
      kernel.backSubstitute(u.data(), n, x.data());
      EXPECT_TRUE(bits::equal(x, expected)) << n;
    });
  }
}

// Cells that are often equal; bounds are distances themselves or close to them.
TEST(Kernels, DistancesEqualTheirDefinitionBitForBit) {
  Random random(46);
  for (int round = 0; round < 1300; ++round) {
    forEachTable([&](const kernels::Table& kernel) {
      const int columns = 1 + round % 13, lanes = kernel.distanceLanes, stride = lanes + random.below(3);
      const double few[] = {0.0, -1.0, std::nan(""), 0.3, 7.0, HUGE_VAL};
      const auto cell = [&] { return random.below(20) < round % 13 ? few[2] : random.below(4) / 0.7; };
      Cells rows, row, ranges, expected(lanes + 1, 0.0), squared(lanes + 1, 0.0);
      for (int k = 0; k < stride * columns; ++k) rows.push_back(cell());
      for (int j = 0; j < columns; ++j) {
        row.push_back(cell());
        ranges.push_back(few[random.below(6)]);
      }
      for (int k = 0; k < lanes * columns; ++k) {
        const int lane = k % lanes, j = k / lanes;
        const double d = definitions::difference(row[j], rows[lane + stride * j], ranges[j]);
        expected[lane] += d * d;
      }
      const double least = *std::min_element(expected.begin(), expected.end() - 1);
      const double bounds[] = {least, std::nextafter(least, 1e9), expected[0], HUGE_VAL, 0.0, least / 2.0,
                               few[2]};
      const double bound = bounds[random.below(7)];
      const bool known =
          kernel.distances({&rows[0], stride, columns, &row[0], &ranges[0], bound, &squared[0]});
      EXPECT_EQ(known, !(least >= bound)) << columns;
      EXPECT_TRUE(bits::equal(known ? squared : expected, expected)) << columns;
    });
  }
}
