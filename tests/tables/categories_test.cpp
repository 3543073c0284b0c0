#include "kavoratb1c/tables/categories.h"

#include <climits>

#include "support/tables.h"

using namespace kav;

namespace {

std::unique_ptr<Smatrix> strings(int rows, int columns, const std::vector<std::u16string>& texts) {
  auto s = std::make_unique<Smatrix>(rows, columns);
  std::copy(texts.begin(), texts.end(), s->cells);
  return s;
}

/// The position, 1-based, of a label among the categories of a column, 0 for an unknown one.
int positionOf(const std::u16string& label, const std::vector<int>& counts, const Smatrix& all, int column) {
  std::int64_t before = 0;
  for (int j = 0; j < column; ++j) before += std::max(counts[std::size_t(j)], 0);
  for (int k = 0; k < counts[std::size_t(column)] && before + k < all.nX && !label.empty(); ++k) {
    if (all.cells[before + k] == label) return k + 1;
  }
  return 0;
}

}  // namespace

TEST(Categories, CodesAndIndicatorsEqualTheirDefinition) {
  // Repeated and empty categories, labels that only another column knows, others unknown or empty.
  const auto labels = strings(5, 3,
                              {u"a", u"b", u"", u"b", u"south", u"b", u"a", u"south", u"a", u"no",
                               u"a longer label", u"south", u"a", u"", u"a longer label"});
  const auto all =
      strings(9, 1, {u"a", u"", u"b", u"a", u"south", u"b", u"south", u"south", u"a longer label"});
  const short flags[] = {0, -1, 0, 1, 0, 0, 0};
  const std::vector<int> lists[] = {{4, 2, 3}, {3, 3, 3}, {9, 0, 2}, {-1, 4, 5}, {3, 1, 40}, {3, INT_MAX, 2}};
  for (int round = 0; round < 6 * 7 * 4 * 6 * 2; ++round) {
    // Seven rows are more than there are labels.
    const auto& counts = lists[round % 6];
    const int n = round / 6 % 7 + (round / 6 % 7 == 4) * 3, p = round / 42 % 4,
              constraint = round / 168 % 6 - 1;
    const int sign = round % 4 < 2 ? 1 : -1, leaveFirst = round / 1008 * sign, first = round % 5 * 300000000;
    const bool dropsFirst = constraint == 1 && leaveFirst == 0, drops = dropsFirst || constraint / 2 == 1;
    SCOPED_TRACE(testing::Message() << n << " x " << p << ", round " << round);
    const short* const rows = round < 1008 ? nullptr : flags;
    const auto code = [&](int i, int j) {
      const int found = positionOf(labels->vbget(i, j), counts, *all, j - 1);
      return found == 0 ? kMissing : double(found);
    };
    const auto flagged = [&](int i, int j) {
      const double known = code(i, j) + (first - 1.0);
      return code(i, j) == kMissing || (rows != nullptr && rows[i - 1] != 0) ? kMissing : known;
    };
    const auto indicator = [&](int i, int column) {
      std::int64_t k = column;
      for (int j = 1; j <= p; ++j) {
        const int count = std::max(counts[std::size_t(j - 1)], 0);
        const bool keepsAll = count == 1 && leaveFirst != 0;
        const int width = std::max(count - (drops && !keepsAll), 0);
        if (k <= width)
          return code(i, j) == double(k + dropsFirst)     ? 1.0
                 : constraint == 3 && code(i, j) == count ? -1.0
                                                          : 0.0;
        k -= width;
      }
      return 0.0;
    };
    const Smatrix *l = labels.get(), *c = all.get();
    const int *of = counts.data(), columns = round % 13;
    expectMakes(n, p, code, [&](matrix*& made) { M_ReplaceCatByCodes(l, n, p, of, c, made); });
    expectMakes(n, p, flagged,
                [&](matrix*& made) { M_ReplaceStrByCodes(l, n, p, of, c, rows, first, made); });
    expectMakes(n, columns, indicator, [&](matrix*& made) {
      BuildDisjunctiveTable(l, n, p, of, c, columns, made, constraint, leaveFirst);
    });
  }
}

TEST(Categories, AThousandOfThemAndNone) {
  std::vector<std::u16string> texts;
  for (int k = 0; k < 1000; ++k)
    texts.push_back(std::u16string(std::size_t(1 + k % 40), char16_t(0x100 + k)));
  const auto categories = strings(1000, 1, texts), labels = strings(1000, 1, {texts.rbegin(), texts.rend()});
  const int count = 1000;
  matrix *codes = nullptr, *unknown = nullptr;
  M_ReplaceCatByCodes(labels.get(), 1000, 1, &count, categories.get(), codes);
  M_ReplaceCatByCodes(labels.get(), 1, 1, &count, nullptr, unknown);
  const std::unique_ptr<matrix> first(codes), second(unknown);
  for (int i = 1; i <= 1000; ++i) EXPECT_EQ(codes->vbget(i, 1), 1001.0 - i);
  EXPECT_TRUE(holds(*unknown, 1, 1, {kMissing}));
}
