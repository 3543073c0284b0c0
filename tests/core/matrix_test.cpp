#include "kavoratb1c/matrix.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <climits>
#include <limits>

#include "core/contents.h"

using namespace kav;

namespace {

using testing::ElementsAre;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kThreshold = -1.7E+306;
const double kAboveThreshold = std::nextafter(kThreshold, 0.0);
const std::vector<double> kAroundThresholds{kMissing,
                                            std::nextafter(kMissing, -kInfinity),
                                            std::nextafter(kMissing, 0.0),
                                            -kInfinity,
                                            kNan,
                                            kThreshold,
                                            std::nextafter(kThreshold, -kInfinity),
                                            kAboveThreshold,
                                            kInfinity,
                                            -0.0};

/// What constructors promise of the fields, given the flags.
void expectFresh(const matrix& m, int rows, int columns) {
  EXPECT_EQ(m.getNbrLines(), rows);
  EXPECT_EQ(m.getNbrCols(), columns);
  EXPECT_THAT((std::vector{m.normalized, m.descValid, int{m.descMode}}), ElementsAre(0, 0, 0));
  const int n = std::max(rows, 0);
  EXPECT_EQ(m.sumOfWeights, n);
  EXPECT_EQ(firstOf(m.weights, n), std::vector<double>(static_cast<std::size_t>(n), 1.0));
  for (int j = 0; j < columns; ++j) {
    const bool* column = m.missing + std::ptrdiff_t{n} * j;
    const auto present = std::count(column, column + n, false);
    EXPECT_EQ(m.counts[j], present) << j;
    EXPECT_EQ(m.weightcorr[j], static_cast<double>(present) - 1.0) << j;
  }
}

void expectNew(const matrix& m, int rows, int columns, const std::vector<double>& cells) {
  expectFresh(m, rows, columns);
  EXPECT_TRUE(holds(m, rows, columns, cells));
  EXPECT_EQ(flagsOf(m), std::string(cells.size(), '0'));
}

TEST(MatrixConstruction, FillsCellsAndFieldsInEveryForm) {
  const matrix unset(4, 3);
  expectNew(unset, 4, 3, cellsOf(unset));
  expectNew(matrix(2, 3, -1931), 2, 3, std::vector<double>(6, -1931.0));
  expectNew(matrix(3, 2, 2.385), 3, 2, std::vector<double>(6, 2.385));
  const int ints[] = {INT_MIN, INT_MAX, -173, 0, 4096, 58};
  expectNew(matrix(2, 3, ints), 2, 3, {-2147483648.0, 2147483647.0, -173.0, 0.0, 4096.0, 58.0});
  const short shorts[] = {SHRT_MIN, -1, SHRT_MAX};
  expectNew(matrix(1, 3, shorts), 1, 3, {-32768.0, -1.0, 32767.0});
  const std::vector<double> zeros(4, 0.0);
  expectNew(matrix(2, 2, static_cast<const int*>(nullptr)), 2, 2, zeros);
  expectNew(matrix(2, 2, static_cast<const short*>(nullptr)), 2, 2, zeros);
  expectNew(matrix(2, 2, nullptr, false, 0, 0), 2, 2, zeros);
  expectNew(matrix(2, 2, nullptr, true, 3, 3), 2, 2, zeros);
}

TEST(MatrixConstruction, FlagsWhatArrivesAtOrBelowTheThresholdUnlessAllIsKept) {
  EXPECT_TRUE(bits::equal(kMissing, -1.79769313486231E+308));
  const matrix m(5, 2, kAroundThresholds.data(), false, 0, 0);
  EXPECT_EQ(flagsOf(m), "1111111000");
  EXPECT_TRUE(holds(m, 5, 2, {0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, kAboveThreshold, kInfinity, -0.0}));
  expectFresh(m, 5, 2);

  const matrix kept(5, 2, kAroundThresholds.data(), true, 0, 0);
  expectNew(kept, 5, 2, kAroundThresholds);
  for (int k = 0; k < 10; ++k) EXPECT_EQ(kept.getMissing(k), k == 0) << k;
}

TEST(MatrixConstruction, FindsASingleMissingCellWhereverItIs) {
  const double missing[] = {kMissing, kNan, -kInfinity};
  for (const int rows : {1, 2, 5, 57, 171, 342}) {
    for (std::size_t k = 0; k < static_cast<std::size_t>(rows) * 3; ++k) {
      SCOPED_TRACE(testing::Message() << "cell " << k << " of " << rows << " x 3");
      std::vector<double> cells(static_cast<std::size_t>(rows) * 3, 2.385);
      cells[k] = missing[k % 3];
      std::vector<double> a(k / 3 % 2, 0.0);  // for sources at an odd address, too
      a.insert(a.end(), cells.begin(), cells.end());
      const matrix m(rows, 3, a.data() + k / 3 % 2, false, 0, 0);
      expectFresh(m, rows, 3);
      cells[k] = 0.0;
      EXPECT_TRUE(holds(m, rows, 3, cells));
      EXPECT_EQ(flagsOf(m), std::string(k, '0') + '1' + std::string(cells.size() - k - 1, '0'));
    }
  }
}

TEST(MatrixConstruction, CountsByItsOwnColumnsWhateverTheSourcesRows) {
  const double a[] = {5.25, 0.17, kMissing, 8.03};
  const matrix m(3, 3, a, false, 2, 2);
  EXPECT_EQ(flagsOf(m), "001000000");
  expectFresh(m, 3, 3);
  expectNew(matrix(3, 3, a, true, 2, 2), 3, 3, {5.25, 0.17, kMissing, 8.03, 0.0, 0.0, 0.0, 0.0, 0.0});
}

TEST(MatrixConstruction, KeepsTheFieldsInOrderWhereASizeIsBelow1) {
  for (const auto& [rows, columns] :
       {std::pair{0, 0}, {0, 3}, {3, 0}, {-2, 3}, {3, -2}, {INT_MIN, INT_MIN}}) {
    const matrix m(rows, columns, 2.385);
    expectFresh(m, rows, columns);
    expectFresh(matrix(rows, &m), rows, columns);
    double untouched = 9.81;
    m.copyMatTo(&untouched);
    EXPECT_EQ(untouched, 9.81);
  }
}

TEST(MatrixCopyConstruction, TakesCellsInLinearOrderAndFlagsTheExactMarker) {
  matrix src(5, 2, kAroundThresholds.data(), true, 0, 0);
  src.setMissing(8, true);
  std::vector<double> cells = kAroundThresholds;
  cells.insert(cells.end(), 4, -1.0);
  const matrix more(7, &src);
  EXPECT_TRUE(holds(more, 7, 2, cells));
  EXPECT_EQ(flagsOf(more), "10000000100000");
  const matrix fewer(3, &src);
  cells.resize(6);
  EXPECT_TRUE(holds(fewer, 3, 2, cells));
  EXPECT_EQ(flagsOf(fewer), "100000");
  EXPECT_THAT(firstOf(fewer.counts, 2), ElementsAre(5, 5));
}

TEST(MatrixCopyConstruction, CopiesCountsWeightsAndNormalization) {
  const double a[] = {kMissing, 3.1, 2.2, kMissing, kMissing, 0.7};
  matrix src(3, 2, a, false, 0, 0);
  const double w[] = {0.25, 1.75, 3.5};
  src.weighting(w);
  src.descValid = 1;
  src.normu[1] = 2.385;
  src.norsigma[1] = 0.61;
  for (const int normalized : {0, 1}) {
    src.normalized = normalized;
    const matrix fewer(2, &src);
    const matrix more(5, &src);
    EXPECT_THAT(firstOf(fewer.weights, 2), ElementsAre(0.25, 1.75));
    EXPECT_THAT(firstOf(more.weights, 5), ElementsAre(0.25, 1.75, 3.5, 1.0, 1.0));
    for (const matrix* m : {&fewer, &more}) {
      EXPECT_THAT(firstOf(m->counts, 2), ElementsAre(2, 1));
      EXPECT_THAT(firstOf(m->weightcorr, 2), ElementsAre(1.0, 0.0));
      EXPECT_EQ(m->sumOfWeights, 5.5);
      EXPECT_EQ(m->normalized, normalized);
      EXPECT_EQ(m->getNorMu(1), normalized == 1 ? 2.385 : -1.0);
      EXPECT_EQ(m->getNorSigma(1), normalized == 1 ? 0.61 : -1.0);
      EXPECT_EQ(m->descValid, 0);
    }
  }
}

TEST(MatrixAccess, FlagsByLinearIndexInsideOnly) {
  matrix m(2, 3, kMissing);
  m.descValid = 1;
  EXPECT_TRUE(m.getMissing(0));
  for (int k = 0; k < 6; ++k) m.values[k] = std::nextafter(kMissing, k % 2 == 0 ? 0.0 : -kInfinity);
  m.setMissing(5, -2, true);
  m.setMissing(4, true);
  for (const int k : {-1, 6, INT_MIN, INT_MAX}) {
    m.setMissing(k, true);
    EXPECT_FALSE(m.getMissing(k)) << k;
    EXPECT_FALSE(m.getMissing(k, k)) << k;
    EXPECT_EQ(m.setElement(k, 6.1), -1.0) << k;
  }
  m.setMissing(3, INT_MIN, true);  // lies on a cell where index arithmetic is done in 32 bits
  EXPECT_EQ(flagsOf(m), "010010");
  for (int k = 0; k < 6; ++k) EXPECT_EQ(m.getMissing(k), k == 1 || k == 4) << k;
  EXPECT_TRUE(m.getMissing(-1, 1));
  EXPECT_THAT(firstOf(m.counts, 3), ElementsAre(2, 2, 2));
  EXPECT_THAT(firstOf(m.weightcorr, 3), ElementsAre(1.0, 1.0, 1.0));
  EXPECT_EQ(m.descValid, 1);
}

TEST(MatrixAccess, DropsWritesIntoFlaggedCellsAndStillMakesStatisticsStale) {
  matrix m(2, 2, 2.385);
  m.setMissing(2, true);
  const auto write = [&m](int form, double x) {
    m.descValid = 1;
    return form == 0 ? m.setElement(2, x) : form == 1 ? m.setElement(0, 1, x) : m.vbset(1, 2, x);
  };
  for (const bool flagged : {true, false}) {
    m.setMissing(0, 1, flagged);
    for (const int form : {0, 1, 2}) {
      EXPECT_EQ(write(form, 6.1 + form), 0.0);
      EXPECT_EQ(m.descValid, 0);
      EXPECT_EQ(m.getElement(2), flagged ? 2.385 : 6.1 + form);
    }
  }
}

TEST(MatrixAssignment, SharesTheArraysAndCopiesEveryField) {
  matrix source(2, 2, 3.1);
  source.normalized = source.descValid = 1;
  source.descMode = -1;
  source.sumOfWeights = 2.385;
  matrix target(5, 1, 6.1);
  const Sharing sharing(target, source);
  EXPECT_EQ(arraysOf(target), arraysOf(source));
  EXPECT_THAT((std::vector{target.nX, target.pX, target.normalized, target.descValid, int{target.descMode}}),
              ElementsAre(2, 2, 1, 1, -1));
  EXPECT_EQ(target.sumOfWeights, 2.385);
}

TEST(MatrixWeights, AddUpInRowOrder) {
  matrix m(4, 2, 2.385);
  const double w[] = {1e16, 1.0, -1e16, 2.385};
  m.weighting(w);
  m.weighting(nullptr);
  EXPECT_THAT(firstOf(m.weights, 4), ElementsAre(1e16, 1.0, -1e16, 2.385));
  EXPECT_EQ(m.sumOfWeights, 2.385);
  EXPECT_THAT(firstOf(m.weightcorr, 2), ElementsAre(3.0, 3.0));
}

TEST(MatrixStatistics, AreReadWhileValidAndInside) {
  matrix m(1, 2, 2.385);
  m.normu[1] = 7.4;
  m.norsigma[1] = 0.31;
  for (const int state : {0, 2, 1}) {
    m.normalized = state;
    EXPECT_EQ(m.getNorMu(1), state == 1 ? 7.4 : -1.0) << state;
    EXPECT_EQ(m.getNorSigma(1), state == 1 ? 0.31 : -1.0) << state;
  }
  for (const int j : {-1, 2, INT_MIN, INT_MAX}) {
    EXPECT_EQ(m.getNorMu(j), -1.0) << j;
    EXPECT_EQ(m.getNorSigma(j), -1.0) << j;
    EXPECT_EQ(m.getWeightcorr(j), -1.0) << j;
  }
  m.weightcorr[0] = 4e-310;
  EXPECT_EQ(m.getWeightcorr(0), 4e-310);
  EXPECT_EQ(m.getWeightcorr(1), 1.0);  // one row: the denominator itself is 0.0
  EXPECT_EQ(m.weightcorr[1], 0.0);
}

}  // namespace
