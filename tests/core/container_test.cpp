// What both containers have in common: sources, addressing, sizes, matCheck.

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <new>

#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/matrix.h"

namespace {

struct Numbers {
  using Table = matrix;
  static constexpr double kOutsideCell = -1.0;
  static constexpr double kBlank = 0.0;
  static double cell(int k) { return 2.385 + k; }
  static const double* cellsOf(const matrix& m) { return m.values; }
  static void matCheck(matrix*& target, int rows, int columns) {
    matrix::matCheck(target, rows, columns, kBlank);
  }
  /// From an array of given cells.
  static std::unique_ptr<matrix> make(int rows, int columns, int given, int srcRows, int srcCols) {
    const auto a = std::make_unique<double[]>(static_cast<std::size_t>(given));
    for (int k = 0; k < given; ++k) a[static_cast<std::size_t>(k)] = cell(k);
    return std::make_unique<matrix>(rows, columns, a.get(), false, srcRows, srcCols);
  }
};

struct Strings {
  using Table = Smatrix;
  static constexpr const char16_t* kOutsideCell = u"";
  static constexpr const char16_t* kBlank = u"";
  static std::u16string cell(int k) {
    return std::u16string(static_cast<std::size_t>(k) % 20 + 1, u'\u4e2d');
  }
  static const std::u16string* cellsOf(const Smatrix& m) { return m.cells; }
  static void matCheck(Smatrix*& target, int rows, int columns) { Smatrix::matCheck(target, rows, columns); }
  static std::unique_ptr<Smatrix> make(int rows, int columns, int given, int srcRows, int srcCols) {
    std::vector<std::u16string> texts;
    for (int k = 0; k < given; ++k) texts.push_back(cell(k));
    const auto a = std::make_unique<const unsigned short*[]>(texts.size());
    for (std::size_t k = 0; k < texts.size(); ++k)
      a[k] = reinterpret_cast<const unsigned short*>(texts[k].c_str());
    return std::make_unique<Smatrix>(rows, columns, a.get(), srcRows, srcCols);
  }
};

template <class T>
class Container : public testing::Test {};
using Kinds = testing::Types<Numbers, Strings>;
TYPED_TEST_SUITE(Container, Kinds, );

TYPED_TEST(Container, ReadsAsManyCellsAsTheSourceHasAndTheTableHolds) {
  constexpr int kSizes[][3] = {{0, 0, 6}, {2, 0, 4}, {0, 1, 3},  {2, 2, 4},   {5, 1, 5},
                               {1, 9, 6}, {7, 5, 6}, {-4, 2, 0}, {-4, -2, 0}, {INT_MAX, INT_MAX, 6}};
  for (const auto& [srcRows, srcCols, read] : kSizes) {
    const auto m = TypeParam::make(3, 2, read, srcRows, srcCols);
    for (int k = 0; k < 6; ++k) {
      EXPECT_EQ(m->getElement(k), k < read ? TypeParam::cell(k) : TypeParam::kBlank)
          << srcRows << " x " << srcCols << ", cell " << k;
    }
  }
}

TYPED_TEST(Container, LooksAtTheLinearIndexOnly) {
  const auto cell = TypeParam::cell;
  const auto m = TypeParam::make(2, 3, 6, 0, 0);
  EXPECT_EQ(m->getElement(4), cell(4));
  EXPECT_EQ(m->getElement(1, 2), cell(5));
  EXPECT_EQ(m->getElement(2, 0), cell(2));
  EXPECT_EQ(m->getElement(5, -1), cell(3));
  EXPECT_EQ(m->vbget(1, 1), cell(0));
  EXPECT_EQ(m->vbget(2, 3), cell(5));
  EXPECT_EQ(m->vbget(0, 2), cell(1));
  EXPECT_EQ(m->setElement(3, cell(10)), 0.0);
  EXPECT_EQ(m->setElement(2, 0, cell(11)), 0.0);
  EXPECT_EQ(m->vbset(0, 2, cell(12)), 0.0);
  EXPECT_EQ(m->vbset(2, 3, cell(13)), 0.0);
  const int now[] = {0, 12, 11, 10, 4, 13};
  for (int k = 0; k < 6; ++k) EXPECT_EQ(TypeParam::cellsOf(*m)[k], cell(now[k])) << k;
}

// The first five lie on a cell where index arithmetic is done in 32 bits, counting from 0 or from 1.
TYPED_TEST(Container, ReadsAFixedCellAndWritesNothingOutside) {
  const auto m = TypeParam::make(65536, 1, 65536, 0, 0);
  const auto x = TypeParam::cell(77);
  for (const auto& [i, j] : {std::pair{0, 65536},
                             {1, 65537},
                             {3, INT_MIN},
                             {3, INT_MIN + 1},
                             {INT_MIN, -32766},
                             {0, 1},
                             {-1, 0},
                             {INT_MAX, 0},
                             {INT_MIN, INT_MIN},
                             {INT_MAX, INT_MAX}}) {
    SCOPED_TRACE(testing::Message() << i << ", " << j);
    EXPECT_EQ(m->getElement(i, j), TypeParam::kOutsideCell);
    EXPECT_EQ(m->vbget(i, j), TypeParam::kOutsideCell);
    EXPECT_EQ(m->setElement(i, j, x), -1.0);
    EXPECT_EQ(m->vbset(i, j, x), -1.0);
  }
  for (const int k : {-1, 65536, INT_MIN, INT_MAX}) {
    EXPECT_EQ(m->getElement(k), TypeParam::kOutsideCell) << k;
    EXPECT_EQ(m->setElement(k, x), -1.0) << k;
  }
  for (int k = 0; k < 65536; ++k) ASSERT_EQ(TypeParam::cellsOf(*m)[k], TypeParam::cell(k)) << k;
}

TYPED_TEST(Container, HasNoCellsWhereASizeIsBelow1) {
  for (const auto& [rows, columns] :
       {std::pair{0, 0}, {0, 3}, {3, 0}, {-2, 3}, {3, -2}, {-5, -7}, {INT_MIN, INT_MIN}}) {
    const auto m = TypeParam::make(rows, columns, 0, 0, 0);
    EXPECT_EQ(m->getNbrLines(), rows);
    EXPECT_EQ(m->getNbrCols(), columns);
    EXPECT_EQ(m->getElement(0), TypeParam::kOutsideCell);
    EXPECT_EQ(m->setElement(0, 0, TypeParam::cell(0)), -1.0);
  }
}

TYPED_TEST(Container, OfASizeThatNoMemoryHoldsThrows) {
#if defined(_WIN32) && defined(__i386__)
  GTEST_SKIP() << "exceptions do not cross modules that each have the 32-bit runtime linked in";
#endif
  using Table = typename TypeParam::Table;
  EXPECT_THROW(Table(INT_MAX, INT_MAX), std::bad_alloc);
  EXPECT_THROW(TypeParam::make(INT_MAX / 3, INT_MAX, 1, 1, 1), std::bad_alloc);
  Table fitting(2, 2);
  Table* target = &fitting;
  EXPECT_THROW(TypeParam::matCheck(target, INT_MAX, INT_MAX / 2), std::bad_alloc);
  EXPECT_EQ(target, &fitting);
}

TYPED_TEST(Container, IsMadeAnewByMatCheckWhereTheTargetDoesNotFit) {
  using Table = typename TypeParam::Table;
  const auto other = TypeParam::make(2, 3, 6, 0, 0);
  const auto larger = TypeParam::make(4, 2, 8, 0, 0);
  auto* const neverSet = reinterpret_cast<Table*>(static_cast<std::uintptr_t>(0xCCCCCCCCCCCCCCCCu));
  for (Table* before : {static_cast<Table*>(nullptr), neverSet, other.get(), larger.get()}) {
    Table* target = before;
    TypeParam::matCheck(target, 3, 2);
    ASSERT_NE(target, before);
    const std::unique_ptr<Table> made(target);
    EXPECT_EQ(made->nX, 3);
    EXPECT_EQ(made->pX, 2);
    for (int k = 0; k < 6; ++k) EXPECT_EQ(made->getElement(k), TypeParam::kBlank) << k;
  }
  for (int k = 0; k < 6; ++k) EXPECT_EQ(other->getElement(k), TypeParam::cell(k)) << k;
}

}  // namespace
