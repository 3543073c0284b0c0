// Copies between a matrix and plain arrays, other containers, rows and columns.

#include <gmock/gmock.h>

#include <climits>
#include <limits>

#include "core/contents.h"

using namespace kav;

namespace {

using testing::ElementsAre;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

/// Cells first, first + 1 and so on, those in flagged flagged, statistics valid.
struct Table : matrix {
  Table(int rows, int columns, double first, std::initializer_list<int> flagged = {})
      : matrix(rows, columns) {
    for (int k = 0; k < rows * columns; ++k) values[k] = first + k;
    for (const int k : flagged) setMissing(k, true);
    descValid = 1;
  }
};

TEST(MatrixMatCheck, RefillsATargetThatFits) {
  const double a[] = {kMissing, 3.1, 2.2, 0.4, 5.5, 6.6};
  matrix m(3, 2, a, false, 0, 0);
  m.normalized = m.descValid = 1;
  matrix* target = &m;
  matrix::matCheck(target, 3, 2, 2.385);
  ASSERT_EQ(target, &m);
  EXPECT_TRUE(holds(m, 3, 2, std::vector<double>(6, 2.385)));
  EXPECT_EQ(flagsOf(m), "100000");
  EXPECT_THAT((std::vector{m.counts[0], m.normalized, m.descValid}), ElementsAre(2, 1, 1));
  EXPECT_EQ(m.weightcorr[0], 1.0);
}

TEST(MatrixCopyMatTo, WritesFlaggedCellsAsTheMarkerOrRawWithTheSizes) {
  const double a[] = {2.385, kMissing, -0.0, kInfinity, 0.2, 3.9};
  matrix m(3, 2, a, false, 0, 0);
  m.values[0] = kNan;
  m.setMissing(5, true);
  std::vector<double> out(7, 6.1);
  m.copyMatTo(out.data());
  EXPECT_TRUE(bits::equal(out, {kNan, kMissing, -0.0, kInfinity, 0.2, kMissing, 6.1}));
  int rows = 0;
  int columns = 0;
  m.copyMatTo(out.data(), &rows, &columns);
  EXPECT_TRUE(bits::equal(out, {kNan, 0.0, -0.0, kInfinity, 0.2, 3.9, 6.1}));
  EXPECT_EQ(rows, 3);
  EXPECT_EQ(columns, 2);
}

TEST(MatrixCopyMatTo, TruncatesTowardZeroAndGivesTheLowestIntegerOutOfRange) {
  const std::vector<double> a{2.9,           -2.9,           -0.5, 2147483647.9, 2147483648.0, -2147483648.9,
                              -2147483649.0, 4294967297.385, kNan, kInfinity,    -kInfinity,   kMissing};
  std::vector<int> out(13, 77);
  matrix(4, 3, a.data(), true, 0, 0).copyMatTo(out.data());
  EXPECT_THAT(out, ElementsAre(2, -2, 0, INT_MAX, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN,
                               INT_MIN, INT_MIN, 77));
}

TEST(MatrixCopyMatTo, WritesBooleansThatAreFalseForZeroOnly) {
  const double a[] = {0.0, 2.5, -0.0, kNan, 5e-324, -kInfinity, kMissing};
  std::vector<short> out(8, 77);
  matrix(7, 1, a, true, 0, 0).copyMatTo(out.data());
  EXPECT_THAT(out, ElementsAre(0, -1, 0, -1, -1, -1, -1, 77));
  matrix(7, 1, a, false, 0, 0).copyMatTo(out.data());
  EXPECT_THAT(out, ElementsAre(0, -1, 0, 0, -1, 0, 0, 77));
}

TEST(MatrixCopyMatTo, WritesNothingToNull) {
  const matrix m(2, 3, 2.385);
  m.copyMatTo(static_cast<double*>(nullptr));
  m.copyMatTo(static_cast<int*>(nullptr));
  m.copyMatTo(static_cast<short*>(nullptr));
  m.copyMatTo(static_cast<matrix*>(nullptr));
  int rows = 0;
  int columns = 0;
  m.copyMatTo(nullptr, &rows, &columns);
  EXPECT_EQ(rows * 10 + columns, 23);
}

TEST(MatrixCopyMatTo, GivesAContainerTheShapeAndSparesItsFlaggedCells) {
  const Table source(2, 3, 0.385, {0});
  Table dest(4, 2, 101.25, {3});
  dest.sumOfWeights = 9.5;
  source.copyMatTo(&dest);
  EXPECT_TRUE(holds(dest, 2, 3, {0.385, 1.385, 2.385, 104.25, 4.385, 5.385}));
  EXPECT_EQ(flagsOf(dest), "000100");
  EXPECT_EQ(dest.descValid, 0);
  EXPECT_EQ(dest.values[6], 107.25);
  EXPECT_EQ(dest.sumOfWeights, 9.5);
  Table(4, 2, 0.385).copyMatTo(&dest);  // as large as dest was built
  EXPECT_TRUE(holds(dest, 4, 2, {0.385, 1.385, 2.385, 104.25, 4.385, 5.385, 6.385, 7.385}));
}

TEST(MatrixShape, StaysWhereADestinationHasTooFewCells) {
  const Table source(3, 2, 0.385);
  Table dest(5, 1, 101.25);
  source.copyMatTo(&dest);
  source.vectorizeTo(&dest);
  source.transposeTo(&dest);
  EXPECT_TRUE(holds(dest, 5, 1, {101.25, 102.25, 103.25, 104.25, 105.25}));
  EXPECT_EQ(dest.descValid, 1);
}

TEST(MatrixShape, BringsNoStatisticsForColumnsAndNoWeightsForRowsThatWereNotBuilt) {
  const Table source(1, 6, 0.385);
  Table wide(6, 1, 101.25);
  wide.normalized = 1;
  wide.normu[0] = 7.4;
  source.copyMatTo(&wide);
  EXPECT_THAT((std::vector{wide.getNorMu(0), wide.getNorMu(1), wide.getNorSigma(5), wide.getWeightcorr(0),
                           wide.getWeightcorr(1)}),
              ElementsAre(7.4, -1.0, -1.0, 5.0, -1.0));
  const matrix copy(1, &wide);
  EXPECT_TRUE(holds(copy, 1, 6, cellsOf(source)));
  EXPECT_THAT(firstOf(copy.counts, 6), ElementsAre(6, 1, 1, 1, 1, 1));

  Table tall(1, 6, 101.25);
  source.transposeTo(&tall);
  const double w[] = {2.5, 0.25, 0.75, 4.5, 1.5, 0.5};
  tall.weighting(w);
  EXPECT_EQ(tall.weights[0], 2.5);
  EXPECT_EQ(firstOf(tall.normu, 6), std::vector<double>(6, 0.0));
  EXPECT_TRUE(holds(tall, 6, 1, cellsOf(source)));
}

TEST(MatrixCopyCol, WritesByTheElementRule) {
  const Table source(3, 2, 0.385, {4});
  Table m(3, 3, 101.25, {6});
  m.copyCol(&source, 1, 2);
  EXPECT_TRUE(holds(m, 3, 3, {101.25, 102.25, 103.25, 104.25, 105.25, 106.25, 107.25, 4.385, 5.385}));
  EXPECT_EQ(m.descValid, 0);
  m.copyCol(&m, 2, 0);
  EXPECT_TRUE(holds(m, 3, 3, {107.25, 4.385, 5.385, 104.25, 105.25, 106.25, 107.25, 4.385, 5.385}));
}

TEST(MatrixCopyCol, RunsOnIntoTheNextColumnAndStopsAtTheLast) {
  const Table source(3, 1, 0.385);
  Table m(2, 2, 101.25);
  m.copyCol(&source, 0, 0);
  EXPECT_TRUE(holds(m, 2, 2, {0.385, 1.385, 2.385, 104.25}));
  m.copyCol(&source, 0, 1);
  EXPECT_TRUE(holds(m, 2, 2, {0.385, 1.385, 0.385, 1.385}));
}

TEST(MatrixCopyLine, WritesByTheElementRuleAsFarAsThereAreColumns) {
  const Table source(2, 3, 0.385);
  Table m(3, 2, 101.25, {2});
  m.copyLine(&source, 1, 2);
  EXPECT_TRUE(holds(m, 3, 2, {101.25, 102.25, 103.25, 104.25, 105.25, 3.385}));
  EXPECT_EQ(m.descValid, 0);
  m.copyLine(&m, 2, 0);
  EXPECT_TRUE(holds(m, 3, 2, {103.25, 102.25, 103.25, 3.385, 105.25, 3.385}));
}

TEST(MatrixTransferLine, SwapsRowsSparingFlaggedCellsOnEitherSide) {
  Table source(2, 4, 0.385, {3, 5});
  Table m(3, 4, 101.25, {8, 11});
  m.transferLineFrom(&source, 1, 2);
  EXPECT_TRUE(holds(source, 2, 4, {0.385, 103.25, 2.385, 3.385, 4.385, 5.385, 6.385, 112.25}));
  EXPECT_TRUE(
      holds(m, 3, 4,
            {101.25, 102.25, 1.385, 104.25, 105.25, 3.385, 107.25, 108.25, 109.25, 110.25, 111.25, 112.25}));
  EXPECT_EQ(source.descValid + m.descValid, 0);
}

TEST(MatrixTransferLine, SwapsWithinOneTable) {
  Table m(3, 2, 0.385);
  m.transferLineFrom(&m, 0, 2);
  m.transferLineFrom(&m, 1, 1);
  EXPECT_TRUE(holds(m, 3, 2, {2.385, 1.385, 0.385, 5.385, 4.385, 3.385}));
}

TEST(MatrixTransferLine, HandsOutMinusOneForColumnsItLacks) {
  Table wide(2, 3, 0.385);
  Table narrow(2, 1, 101.25);
  narrow.transferLineFrom(&wide, 0, 1);
  EXPECT_TRUE(holds(wide, 2, 3, {102.25, 1.385, -1.0, 3.385, -1.0, 5.385}));
  EXPECT_TRUE(holds(narrow, 2, 1, {101.25, 0.385}));
}

TEST(MatrixRowsAndColumns, ChangeNothingOutside) {
  Table source(5, 3, 0.385);
  Table m(3, 2, 101.25);
  for (const auto& [from, to] : {std::pair{-1, 0}, {0, -1}, {3, 0}, {0, 2}, {INT_MIN, 1}, {1, INT_MAX}}) {
    m.copyCol(&source, from, to);
  }
  for (const auto& [from, to] : {std::pair{-1, 0}, {0, -1}, {5, 0}, {0, 3}, {INT_MAX, 1}, {1, INT_MIN}}) {
    m.copyLine(&source, from, to);
    m.transferLineFrom(&source, from, to);
  }
  EXPECT_TRUE(holds(source, 5, 3, cellsOf(Table(5, 3, 0.385))));
  EXPECT_TRUE(holds(m, 3, 2, cellsOf(Table(3, 2, 101.25))));
  EXPECT_EQ(source.descValid + m.descValid, 2);
}

TEST(MatrixVectorize, StacksTheColumns) {
  const Table source(3, 2, 0.385);
  Table dest(2, 3, 101.25, {4});
  source.vectorizeTo(&dest);
  EXPECT_TRUE(holds(dest, 6, 1, {0.385, 1.385, 2.385, 3.385, 105.25, 5.385}));
  EXPECT_EQ(dest.descValid, 0);
}

TEST(MatrixTranspose, ExchangesRowsAndColumns) {
  const Table source(3, 2, 0.385);
  Table fitting(2, 3, 101.25, {5});
  Table sameTotal(6, 1, 101.25, {5});
  Table larger(4, 5, 101.25, {5});
  for (matrix* dest : std::initializer_list<matrix*>{&fitting, &sameTotal, &larger}) {
    source.transposeTo(dest);
    EXPECT_TRUE(holds(*dest, 2, 3, {0.385, 3.385, 1.385, 4.385, 2.385, 106.25}));
    EXPECT_EQ(dest->descValid, 0);
  }
}

TEST(MatrixTranspose, WorksOntoItsOwnArrays) {
  Table itself(3, 2, 0.385);
  itself.transposeTo(&itself);
  EXPECT_TRUE(holds(itself, 2, 3, {0.385, 3.385, 1.385, 4.385, 2.385, 5.385}));

  const Table source(3, 2, 0.385, {1});
  matrix dest(1, 1, 6.1);
  const Sharing sharing(dest, source);
  source.transposeTo(&dest);
  EXPECT_EQ(source.nX, 3);
  EXPECT_TRUE(holds(dest, 2, 3, {0.385, 1.385, 1.385, 4.385, 2.385, 5.385}));
}

}  // namespace
