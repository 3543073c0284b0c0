#include "kavoratb1c/missing/missing_cells.h"

#include <climits>
#include <cmath>

#include "kavoratb1c/missing/estimates.h"
#include "support/tables.h"

using namespace kav;

namespace {

using Flags = std::vector<short>;
using Texts = std::vector<std::u16string>;

/// check(numbers, texts, n, p) for 4 x 3 cells that are missing in both, and extents about their own.
template <class Check>
void forAllExtents(Check check) {
  const int sizes[] = {INT_MIN, 0, 1, 3, 4, 6};
  Random random(921);
  for (int k = 0; k < 6 * 6 * 12; ++k) {
    SCOPED_TRACE(testing::Message() << sizes[k % 6] << " x " << sizes[k / 6 % 6]);
    const auto a = randomTable(random, 4, 3, k % 5 == 0 ? 6 : 20);
    a->values[random.below(12)] = -HUGE_VAL;
    for (int j = 0; j < 3 && k % 7 == 1; ++j) a->setMissing(k % 4, j, true);
    Smatrix texts(4, 3);
    for (int c = 0; c < 12; ++c) texts.setElement(c, a->getMissing(c) ? u"" : c % 2 == 0 ? u"b" : u"a");
    check(*a, texts, sizes[k % 6], sizes[k / 6 % 6]);
  }
}

/// How many of the first p cells of a row, 0-based, are missing.
int missingOf(const matrix& a, int i, int p) {
  int count = 0;
  for (int j = 0; j < p; ++j) count += a.getMissing(i, j);
  return count;
}

}  // namespace

TEST(MissingCells, CountedFlaggedWeightedAndReplacedAsDefined) {
  forAllExtents([](const matrix& a, const Smatrix& texts, int n, int p) {
    std::vector<int> missing(6, 99), empty = missing, actual = missing, ofTexts = missing, others = missing;
    M_NbMissing(&a, n, p, actual.data());
    M_NbMissing(&texts, n, p, ofTexts.data());
    M_NbNonMissing(&a, n, p, others.data());
    M_NbNonMissing(&a, n, p, nullptr);
    const Flags before = {0, 7, 0, 0, -1, 0, 99};
    Flags any = before, all = before, ofAny = any, ofAll = all, anyText = any, allText = all;
    M_AllMissingRows(&a, n, p, ofAny.data(), nullptr);
    M_AllMissingRows(&a, n, p, nullptr, ofAll.data());
    M_AllMissingRows(&texts, n, p, anyText.data(), allText.data());
    for (int j = 0; j < p; ++j) {
      missing[j] = empty[j] = 0;
      for (int i = 0; i < n; ++i) missing[j] += a.getMissing(i, j) || a.getElement(i, j) < kMissing;
      for (int i = 0; i < n; ++i) empty[j] += texts.getElement(i, j).empty();
      EXPECT_EQ(others[j], std::max(n, 0) - missing[j]);
    }
    for (int i = 0; i < n; ++i) {
      any[i] = asFlag(before[i] != 0 || missingOf(a, i, p) > 0);
      all[i] = asFlag(p > 0 && missingOf(a, i, p) == p);
    }
    EXPECT_TRUE(actual == missing && ofTexts == empty);
    EXPECT_TRUE(ofAny == any && ofAll == all && anyText == any && allText == all);
    for (int pW = -1; pW < 3; ++pW) {
      matrix w(pW == 1 ? 3 : 6, 2, 4.75), weights(w.nX, 2, 4.75);
      w.setMissing(1, 0, true);
      weights.setMissing(1, 0, true);
      M_SetWeightsToZeroForMissing(&a, n, p, &w, pW);
      M_SetWeightsToZeroForMissing(&a, n, p, nullptr, pW);
      for (int k = 0; k < std::max(n, 0) * pW; ++k) {
        if (missingOf(a, k % n, p) > 0) weights.setElement(k % n, k / n, 0.0);
      }
      EXPECT_TRUE(holds(w, w.nX, 2, cellsOf(weights)) && flagsOf(w) == flagsOf(weights)) << pW;
    }
    const auto filled = copyOf(a), expected = copyOf(a);
    Texts replaced = firstOf(texts.cells, 12);
    Smatrix labels(4, 3);
    std::copy_n(texts.cells, 12, labels.cells);
    filled->descValid = expected->descValid = 1;
    for (int k = 0, i = 0, j = 0; k < 6 * 6; ++k, i = k % 6, j = k / 6) {
      if (i >= n || j >= p || !a.getMissing(i, j)) continue;
      expected->setMissing(i, j, false);
      expected->setElement(i, j, 2.385);
      replaced[i + 4 * j] = u"none";
    }
    M_ReplaceMissingByVal(filled.get(), n, p, 2.385);
    M_ReplaceMissingByVal(nullptr, n, p, 2.385);
    M_ReplaceMissingByStr(&labels, n, p, u"none");
    M_ReplaceMissingByStr(nullptr, n, p, u"none");
    EXPECT_TRUE(holds(*filled, 4, 3, cellsOf(*expected)) && flagsOf(*filled) == flagsOf(*expected));
    EXPECT_EQ(filled->descValid, expected->descValid);
    EXPECT_EQ(firstOf(labels.cells, 12), replaced);
  });
}

// The bits of a row's number are its flags, those of k say which arrays there are; results go into one of
// them.
TEST(MissingCells, SummariesOfFlagsThatMayBeNull) {
  for (int k = 0; k < 8 * 9; ++k) {
    const int n = k / 8 - 1, after = std::max(n, 0);
    short given[5][9], *of[3];
    for (int c = 0; c < 5 * 9; ++c) given[c / 9][c % 9] = short(5 * (c % 9 >> c / 9 & 1));
    for (int f = 0; f < 3; ++f) of[f] = (k >> f & 1) != 0 ? given[f] : nullptr;
    short *any = of[2] ? of[2] : given[3], *both = of[1] ? of[1] : given[4];
    int anyCount = 99, bothCount = 99;
    any[after] = both[after] = 99;
    SummarizeMissing(n, nullptr, nullptr, of[0], of[1], of[2]);
    SummarizeMissing(n, &anyCount, any, of[0], of[1], of[2]);
    SummarizeAllMissing(n, of[0], of[1], &bothCount, both);
    SummarizeAllMissing(n, 0, 0, nullptr, nullptr);
    for (int i = 0; i < n; ++i) {
      EXPECT_EQ(any[i], asFlag((i & k & 7) != 0));
      EXPECT_EQ(both[i], asFlag((k & 3) == 3 ? (i & 3) == 3 : (i & k & 3) != 0));
      anyCount += any[i];
      bothCount += both[i];
    }
    EXPECT_TRUE(anyCount == 0 && bothCount == 0 && any[after] == 99 && both[after] == 99) << n;
  }
}

// In front of the cells lie the counts, which a visit to row -1 would change.
TEST(MissingCells, NothingIsVisitedInAContainerWithoutCells) {
  for (const auto& [rows, columns] : {std::pair(-3, 3), {3, -3}, {-3, -3}, {0, 3}}) {
    matrix a(rows, columns, 2.5);
    const std::vector<int> before = firstOf(a.counts, std::max(columns, 0));
    M_ReplaceMissingByVal(&a, 6, 3, 7.0);
    EstimateRowsWithMissingMean(&a, 6, 3, nullptr, nullptr);
    EXPECT_EQ(firstOf(a.counts, std::max(columns, 0)), before) << rows << " x " << columns;
  }
}

// Also where `removed` is not the number of flags.
TEST(MissingCells, RowsThatRemainKeepTheirOrder) {
  const int numbers[] = {INT_MIN, -2, 0, 1, 2, 4, 9, INT_MAX};
  Random random(923);
  forAllExtents([&](const matrix& a, const Smatrix& texts, int n, int p) {
    const Flags given = randomFlags(random, 6);
    const short* flags = random.below(4) == 0 ? nullptr : given.data();
    std::vector<int> rows;
    for (int i = 1; i <= n; ++i) {
      if (flags == nullptr || flags[i - 1] == 0) rows.push_back(i);
    }
    const int most = std::max(n, 0), left = int(rows.size());
    const int removed = random.below(2) == 0 ? most - left : numbers[random.below(8)];
    const int count = removed >= most ? 0 : removed <= 0 ? most : most - removed;
    SCOPED_TRACE(testing::Message() << removed << " instead of " << most - left);
    expectMakes(
        count, p, [&](int i, int j) { return i <= left ? a.vbget(rows[i - 1], j) : kMissing; },
        [&](matrix*& out) { RemoveRowsWithMissing(&a, n, p, removed, flags, out); });
    Smatrix held(count + random.below(2), p), *out = &held;
    std::fill_n(held.cells, addressing::cellCount(held), u"old");
    RemoveRowsWithMissing(&texts, n, p, removed, flags, out);
    const std::unique_ptr<Smatrix> made(out == &held ? nullptr : out);
    EXPECT_TRUE((out == &held) == (held.nX == count) && out->nX == count && out->pX == p);
    for (int k = 0; k < count * std::max(p, 0); ++k) {
      EXPECT_EQ(out->cells[k], k % count < left ? texts.vbget(rows[k % count], k / count + 1) : u"");
    }
  });
}

TEST(MissingCells, FlaggedRowsAreLabelledByTheirNumber) {
  const short flags[] = {0, -1, 7, 0, 0, 0, 0, 0, 0, 0, 0, -1, -1};
  for (const int n : {INT_MIN, 0, 1, 2, 12, 13}) {
    Smatrix labels(6, 2);
    ReplaceMissingObsLabels(&labels, n, nullptr, u"all");
    ReplaceMissingObsLabels(nullptr, n, flags, u"");
    ReplaceMissingObsLabels(&labels, n, flags, u"Obs");
    Texts expected(12);
    if (n >= 2) expected[1] = u"Obs2";
    if (n >= 12) {
      expected[2] = u"Obs3";
      expected[11] = u"Obs12";
    }
    EXPECT_EQ(firstOf(labels.cells, 12), expected);
  }
}
