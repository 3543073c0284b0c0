#include "kavoratb1c/tables/merges.h"

#include "support/tables.h"

using namespace kav;

namespace {

/// A cell as text: the empty string for what is outside, and another for what nothing lies on.
std::u16string textOf(double x, const char16_t* uncovered = u"") {
  const std::string text = bits::text(x);
  return x == kOutside ? u"" : bits::of(x) == 0 ? uncovered : std::u16string(text.begin(), text.end());
}

template <class Cell, class Run>
void expectStrings(int rows, int columns, Cell cell, Run run) {
  for (const bool reused : {false, true}) {
    Smatrix held(rows + !reused, columns), *c = &held;
    std::fill_n(held.cells, addressing::cellCount(held), u"kept");
    run(c);
    const std::unique_ptr<Smatrix> made(c == &held ? nullptr : c);
    ASSERT_TRUE((c == &held) == reused && c->nX == rows && c->pX == columns);
    for (int k = 0; k < addressing::cellCount(*c); ++k) {
      EXPECT_EQ(c->getElement(k), textOf(cell(k % rows + 1, k / rows + 1), reused ? u"kept" : u""));
    }
  }
}

}  // namespace

TEST(Merges, EqualTheirDefinitionForAllExtents) {
  Random random(901);
  const auto first = randomTable(random, 3, 2, 8), second = randomTable(random, 2, 3, 8);
  const matrix none(0, 0);
  first->values[1] = kOutside;
  second->values[0] = kMissing;
  first->missing[4] = second->missing[1] = true;
  Smatrix labels(3, 2), others(2, 3);
  for (int k = 0; k < 6; ++k) {
    for (matrix* m : {first.get(), second.get()}) m->values[k] += m->values[k] == 0.0 ? 2.5 : 0.0;
    labels.setElement(k, textOf(first->values[k]));
    others.setElement(k, textOf(second->values[k]));
  }
  const int extents[] = {-2, 0, 1, 3, 4};
  for (int k = 0; k < 5 * 5 * 5 * 5; ++k) {
    const int n1 = extents[k % 5], n2 = extents[k / 5 % 5], p1 = extents[k / 25 % 5], p2 = extents[k / 125];
    SCOPED_TRACE(testing::Message() << n1 << " x " << p1 << ", " << n2 << " x " << p2);
    const bool nullA = p1 == 4, nullB = n2 == 4;
    const matrix *a = nullA ? nullptr : first.get(), *b = nullB ? nullptr : second.get();
    const Smatrix *s = nullA ? nullptr : &labels, *t = nullB ? nullptr : &others;
    const int left = std::max(p1, 0), upper = std::max(n1, 0), rows = std::max(upper, n2),
              columns = left + std::max(p2, 0), all = upper + std::max(n2, 0);
    const auto beside = [&](int i, int j) {
      if (i > (j <= left ? n1 : n2)) return 0.0;
      return j <= left ? (nullA ? none : *first).vbget(i, j) : (nullB ? none : *second).vbget(i, j - left);
    };
    const auto below = [&](int i, int j) {
      if (j > (i <= upper ? p1 : p2)) return 0.0;
      return i <= upper ? (nullA ? none : *first).vbget(i, j) : (nullB ? none : *second).vbget(i - upper, j);
    };
    const auto besides = [&](auto run) { expectMakes(rows, columns, beside, run); };
    besides([&](matrix*& c) { HMergeTables(a, n1, p1, b, n2, p2, c); });
    expectStrings(rows, columns, beside, [&](Smatrix*& c) { HMergeTables(s, n1, p1, t, n2, p2, c); });
    expectMakes(all, std::max(left, p2), below, [&](matrix*& c) { VMergeTables(a, n1, p1, b, n2, p2, c); });
    if (p1 == 1) besides([&](matrix*& c) { HMergeVectTable(a, n1, b, n2, p2, c); });
    if (p2 != 1) continue;
    besides([&](matrix*& c) { HMergeTableVect(a, n1, p1, b, n2, c); });
    const bool joins = p1 == 1;
    for (int form = 0; form < 1 + joins && !nullA; ++form) {
      // In place; where the shape stays, so does a flagged cell.
      const auto held = copyOf(*first);
      matrix* own = held.get();
      form == 0 ? HMergeTableVect2(own, n1, p1, b, n2) : VMergeVectors2(own, n1, b, n2);
      const std::unique_ptr<matrix> made(own == held.get() ? nullptr : own);
      const int height = form == 0 ? rows : all, width = form == 0 ? columns : 1;
      EXPECT_EQ(made == nullptr, height == 3 && width == 2);
      const auto expected = made ? std::make_unique<matrix>(height, width, 0.0) : copyOf(*first);
      byDefinition(*expected, height, width,
                   [&](int i, int j) { return form == 0 ? beside(i, j) : below(i, j); });
      EXPECT_TRUE(holds(*own, height, width, cellsOf(*expected)));
    }
    if (!joins) continue;
    besides([&](matrix*& c) { HMergeVectors(a, n1, b, n2, c); });
    expectMakes(all, 1, below, [&](matrix*& c) { VMergeVectors(a, n1, b, n2, c); });
    expectStrings(all, 1, below, [&](Smatrix*& c) { VMergeVectors(s, n1, t, n2, c); });
    expectMakes(
        rows, 2,
        [&](int i, int j) { return j == 2 && i <= n2 && !nullB ? second->vbget(i, 3) : beside(i, j); },
        [&](matrix*& c) { HMergeVectCol(a, n1, b, n2, 3, c); });
  }
}
