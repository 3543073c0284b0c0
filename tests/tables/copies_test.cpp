#include "kavoratb1c/tables/copies.h"

#include <climits>
#include <memory>
#include <vector>

#include "kavoratb1c/tables/fills.h"
#include "support/bits.h"

using namespace kav;

namespace {

/// A result that workers prepare; owns what it ends with.
template <class Container>
struct Result {
  Container* container = nullptr;
  ~Result() { delete container; }
};

std::vector<double> cellsOf(const matrix& m) {
  return std::vector<double>(m.values, m.values + std::ptrdiff_t{m.nX} * m.pX);
}

const double kCells[] = {2.385, kMissing, -0.0, 4.25, 1e-310, -7.5};

}  // namespace

TEST(Copies, KeepValuesAsTheyStandAndTakeNoFlags) {
  const matrix kept(3, 2, kCells, true, 0, 0), flagged(3, 2, kCells, false, 0, 0);
  Result<matrix> copy;
  M_Duplicate(&kept, 3, 2, copy.container);
  EXPECT_TRUE(bits::equal(cellsOf(*copy.container), {2.385, kMissing, -0.0, 4.25, 1e-310, -7.5}));
  matrix* const reused = copy.container;
  M_Duplicate(&flagged, 3, 2, copy.container);
  EXPECT_EQ(copy.container, reused);
  EXPECT_EQ(copy.container->getElement(1), 0.0);
  EXPECT_FALSE(copy.container->getMissing(1));
}

TEST(Copies, TakeTheLeadingBlock) {
  const matrix a(3, 2, kCells, true, 0, 0);
  Result<matrix> part, larger, vector;
  M_Duplicate(&a, 2, 2, part.container);
  EXPECT_TRUE(bits::equal(cellsOf(*part.container), {2.385, kMissing, 4.25, 1e-310}));
  M_Duplicate(&a, 1, 3, larger.container);
  EXPECT_TRUE(bits::equal(cellsOf(*larger.container), {2.385, 4.25, -1.0}));
  // A vector runs through the columns.
  V_Duplicate(&a, 5, vector.container);
  EXPECT_TRUE(bits::equal(cellsOf(*vector.container), {2.385, kMissing, -0.0, 4.25, 1e-310}));
}

TEST(Copies, FlaggedResultCellsAreNotWritten) {
  const matrix a(2, 2, 3.5);
  Result<matrix> copy;
  copy.container = new matrix(2, 2, 1.0);
  copy.container->setMissing(0, 1, true);
  M_Duplicate(&a, 2, 2, copy.container);
  EXPECT_TRUE(bits::equal(cellsOf(*copy.container), {3.5, 3.5, 0.0, 3.5}));
}

TEST(Copies, ReverseRunsThroughTheWholeVector) {
  const matrix v(3, 1, kCells, true, 0, 0);
  Result<matrix> all, some, past;
  V_Reverse(&v, 3, all.container);
  EXPECT_TRUE(bits::equal(cellsOf(*all.container), {-0.0, kMissing, 2.385}));
  V_Reverse(&v, 1, some.container);
  EXPECT_TRUE(bits::equal(cellsOf(*some.container), {2.385}));
  V_Reverse(&v, 4, past.container);
  EXPECT_TRUE(bits::equal(cellsOf(*past.container), {-1.0, -0.0, kMissing, 2.385}));
}

TEST(Copies, StringsAreCopiedWithWhatIsOutsideEmpty) {
  Smatrix a(2, 2);
  a.setElement(0, u"north");
  a.setElement(3, u"a label longer than the string object itself");
  Result<Smatrix> copy, vector;
  M_Duplicate(&a, 2, 3, copy.container);
  EXPECT_EQ(copy.container->getElement(0, 0), u"north");
  EXPECT_EQ(copy.container->getElement(1, 1), a.getElement(3));
  EXPECT_EQ(copy.container->getElement(1, 2), u"");
  V_Duplicate(&a, 4, vector.container);
  EXPECT_EQ(vector.container->getElement(3), a.getElement(3));
  V_SetToValueStr(vector.container, 4, u"east");
  EXPECT_EQ(vector.container->getElement(0), u"east");
  EXPECT_EQ(vector.container->getElement(3), u"east");
}

TEST(Copies, SizesBelowOneMeanNoCells) {
  const matrix a(2, 2, 3.5);
  for (int n : {0, -1, INT_MIN}) {
    Result<matrix> table, vector, reversed, filled;
    Result<Smatrix> texts;
    M_Duplicate(&a, n, 2, table.container);
    V_Duplicate(&a, n, vector.container);
    V_Reverse(&a, n, reversed.container);
    EXPECT_EQ(V_SetToValue(filled.container, n, 1.5), 0);
    V_SetToValueStr(texts.container, n, u"x");
    EXPECT_EQ(table.container->getElement(0), -1.0);
    EXPECT_EQ(vector.container->getElement(0), -1.0);
    EXPECT_EQ(reversed.container->getElement(0), -1.0);
    EXPECT_EQ(filled.container->getElement(0), -1.0);
    EXPECT_EQ(texts.container->getElement(0), u"");
  }
}

TEST(Copies, CountedAndShortenedVectors) {
  const matrix v(6, 1, kCells, true, 0, 0);
  Result<matrix> vector;
  EXPECT_EQ(V_Set1toN(vector.container, 3), 0);
  EXPECT_TRUE(bits::equal(cellsOf(*vector.container), {1.0, 2.0, 3.0}));
  V_RemoveVal(&v, 4, 1, vector.container);
  EXPECT_TRUE(bits::equal(cellsOf(*vector.container), {kMissing, -0.0, 4.25}));
  V_RemoveVal(&v, 4, INT_MIN, vector.container);
  EXPECT_TRUE(bits::equal(cellsOf(*vector.container), {2.385, kMissing, -0.0}));
}
