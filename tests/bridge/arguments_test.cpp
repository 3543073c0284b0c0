// The adaptors for every kind of argument, without an entry around them.

#include "bridge/arguments.h"

#include <climits>
#include <cmath>
#include <string>
#include <vector>

#include "support/bits.h"

using namespace kav;

using namespace bridge;

namespace {

/// OLE strings of a macro; owns them.
class MacroStrings {
 public:
  explicit MacroStrings(const std::vector<std::u16string>& texts) {
    for (const std::u16string& text : texts) slots_.push_back(newString(text));
  }
  ~MacroStrings() {
    for (BSTR slot : slots_) SysFreeString(slot);
  }

  BSTR* data() { return slots_.data(); }
  std::u16string operator[](std::size_t k) const { return textOf(slots_[k]); }

 private:
  std::vector<BSTR> slots_;
};

const double kArray[] = {2.385, kMissing, -1.7E+306, 4.5};

}  // namespace

TEST(Arguments, DoublesAreFlaggedOrKept) {
  const InTable flagged(kArray, 2, 2), kept(kArray, 2, 2, Cells::KeepAll);
  const matrix* const f = flagged;
  const matrix* const k = kept;
  EXPECT_TRUE(f->missing[1] && f->missing[2]);
  EXPECT_EQ(f->values[2], 0.0);
  EXPECT_FALSE(k->missing[1]);
  EXPECT_EQ(k->values[2], -1.7E+306);
  EXPECT_EQ(f->getNbrCols(), 2);
  EXPECT_EQ(static_cast<const matrix*>(InVector(kArray, 4))->getNbrLines(), 4);
}

// Large arrays may serve in place of a copy; a worker sees no difference.
TEST(Arguments, LargeArraysAreSeenAsSmallOnes) {
  for (const int n : {63, 64, 65, 66, 129, 1000, 5001}) {
    for (const int hole : {-1, 0, n / 2, n - 1}) {
      SCOPED_TRACE("n = " + std::to_string(n) + ", missing " + std::to_string(hole));
      std::vector<double> array(static_cast<std::size_t>(n));
      for (int k = 0; k < n; ++k) array[static_cast<std::size_t>(k)] = 2.385 + k;
      if (hole >= 0) array[static_cast<std::size_t>(hole)] = hole == 0 ? std::nan("") : kMissing;
      const std::vector<double> before = array;
      for (const Cells cells : {Cells::FlagMissing, Cells::KeepAll}) {
        const InVector seen(array.data(), n, cells);
        const matrix* const m = seen;
        const matrix expected(n, 1, array.data(), cells == Cells::KeepAll, 0, 0);
        for (int k = -1; k <= n; ++k) {
          ASSERT_TRUE(bits::equal(m->getElement(k), expected.getElement(k))) << k;
          ASSERT_EQ(m->getMissing(k), expected.getMissing(k)) << k;
        }
        EXPECT_EQ(m->counts[0], expected.counts[0]);
        EXPECT_EQ(m->getWeightcorr(0), expected.getWeightcorr(0));
        EXPECT_EQ(m->sumOfWeights, expected.sumOfWeights);
      }
      EXPECT_TRUE(bits::equal(array, before));
    }
  }
}

TEST(Arguments, IntegersAndFlagsAreNeverMissing) {
  const int ints[] = {INT_MIN, INT_MAX};
  const VARIANT_BOOL flags[] = {-1, 0};
  const InInts a(ints, 1, 2);
  const InFlags b(flags, 2);
  EXPECT_EQ(static_cast<const matrix*>(a)->getElement(0), -2147483648.0);
  EXPECT_EQ(static_cast<const matrix*>(b)->getElement(0), -1.0);
  EXPECT_FALSE(static_cast<const matrix*>(a)->getMissing(0));
}

TEST(Arguments, NullArraysAreRefusedUnlessOptionalOrEmpty) {
  EXPECT_THROW(InTable(nullptr, 1, 1), NullArray);
  EXPECT_THROW(InInts(nullptr, 2), NullArray);
  EXPECT_THROW(InText(nullptr, 1), NullArray);
  EXPECT_THROW(InOutTable(nullptr, 1, 1), NullArray);
  EXPECT_NO_THROW(InTable(nullptr, 0, 5));
  EXPECT_NO_THROW(InText(nullptr, -3));
  const OptionalVector absent(nullptr, 3), present(kArray, 3);
  EXPECT_EQ(static_cast<const matrix*>(absent), nullptr);
  EXPECT_EQ(static_cast<const matrix*>(present)->getElement(0), 2.385);
}

TEST(Arguments, ResultsOfEveryKindReachTheirArrays) {
  double numbers[] = {9.5, 9.5, 9.5};
  int ints[] = {9, 9, 9};
  VARIANT_BOOL flags[] = {9, 9, 9};
  OutTable table(numbers);
  OutInts truncated(ints);
  OutFlags booleans(flags);
  for (matrix** result :
       {&static_cast<matrix*&>(table), &static_cast<matrix*&>(truncated), &static_cast<matrix*&>(booleans)}) {
    matrix::matCheck(*result, 2, 1, -2.75);
    (*result)->setMissing(1, true);
  }
  store(table, truncated, booleans);
  EXPECT_TRUE(bits::equal({numbers, numbers + 3}, {-2.75, kMissing, 9.5}));
  EXPECT_EQ(std::vector<int>(ints, ints + 3), (std::vector<int>{-2, -2, 9}));
  EXPECT_EQ(std::vector<short>(flags, flags + 3), (std::vector<short>{-1, -1, 9}));
}

TEST(Arguments, NothingIsWrittenUnlessAllResultsCanBe) {
  double numbers[] = {9.5};
  OutTable first(numbers), second(nullptr);
  matrix::matCheck(first, 1, 1, 2.385);
  matrix::matCheck(second, 1, 1, 2.385);
  EXPECT_THROW(store(first, second), NullArray);
  EXPECT_EQ(numbers[0], 9.5);
  // A worker that made no result leaves the array as it is.
  OutTable none(numbers);
  store(none);
  EXPECT_EQ(numbers[0], 9.5);
}

TEST(Arguments, TablesRewrittenInPlaceComeBackWithMarkers) {
  double numbers[] = {2.385, kMissing, 4.5};
  InOutTable table(numbers, 3, 1);
  static_cast<matrix*&>(table)->setElement(0, 1.25);
  static_cast<matrix*&>(table)->setMissing(2, true);
  store(table);
  EXPECT_TRUE(bits::equal({numbers, numbers + 3}, {1.25, kMissing, kMissing}));

  // The worker may put another container in its place.
  int ints[] = {1, 2, 3, 4};
  InOutInts inOut(ints, 2, 1);
  matrix::matCheck(inOut, 4, 1, 7.0);
  store(inOut);
  EXPECT_EQ(std::vector<int>(ints, ints + 4), (std::vector<int>{7, 7, 7, 7}));
}

TEST(Arguments, StringsGoInAsTextAndComeOutNew) {
  MacroStrings labels({u"north", u""});
  InOutText table(labels.data(), 2);
  Smatrix*& cells = table;
  EXPECT_EQ(cells->getElement(0), u"north");
  cells->setElement(1, u"\xD83D\xDE00 south");
  BSTR before[] = {labels.data()[0], labels.data()[1]};
  store(table);
  EXPECT_NE(labels.data()[0], before[0]);
  EXPECT_EQ(labels[1], u"\xD83D\xDE00 south");
  for (BSTR slot : before) SysFreeString(slot);

  BSTR slots[] = {nullptr, nullptr};
  OutText result(slots);
  Smatrix::matCheck(result, 1, 1);
  store(result);
  EXPECT_NE(slots[0], nullptr);
  EXPECT_EQ(SysStringByteLen(slots[0]), 0u);
  EXPECT_EQ(slots[1], nullptr);
  SysFreeString(slots[0]);
}

TEST(Arguments, TextStopsAtTheFirstZero) {
  EXPECT_EQ(textOf(nullptr), u"");
  const BSTR made = newString(std::u16string(u"ab\0cd", 5));
  EXPECT_EQ(SysStringByteLen(made), 4u);
  EXPECT_EQ(textOf(made), u"ab");
  SysFreeString(made);
}
