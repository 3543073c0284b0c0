#include "kavoratb1c/tables/blocks.h"

#include <climits>
#include <cmath>

#include "kavoratb1c/tables/single_columns.h"
#include "support/tables.h"

using namespace kav;

namespace {

using C = matrix*&;

/// The positions 1 .. n that lie in a range, or those that do not.
std::vector<int> within(int n, int from, int to, bool inside = true) {
  std::vector<int> taken;
  for (int k = 1; k <= n; ++k) {
    if ((k >= from && k <= to) == inside) taken.push_back(k);
  }
  return taken;
}

matrix* pick(const matrix& a, const std::vector<int>& rows, const std::vector<int>& columns) {
  auto* made = new matrix(static_cast<int>(rows.size()), static_cast<int>(columns.size()), 0.0);
  byDefinition(*made, made->nX, made->pX, [&](int i, int j) {
    return a.vbget(rows[static_cast<std::size_t>(i - 1)], columns[static_cast<std::size_t>(j - 1)]);
  });
  return made;
}

/// Whether run puts those cells in place of a table's; its flagged cells stay where it keeps its shape.
template <class Run>
void expectBecomes(const matrix& a, const matrix& expected, Run run) {
  const auto held = copyOf(a), written = copyOf(a);
  matrix* own = held.get();
  run(own);
  const std::unique_ptr<matrix> made(own == held.get() ? nullptr : own);
  byDefinition(*written, a.nX, a.pX, [&](int i, int j) { return expected.vbget(i, j); });
  EXPECT_EQ(made == nullptr, a.nX == expected.nX && a.pX == expected.pX);
  EXPECT_TRUE(holds(*own, expected.nX, expected.pX, cellsOf(made ? expected : *written)));
}

/// check(a, n, p, from, to) for a 4 x 3 table with flags and markers, extents below, of and above its own.
template <class Check>
void forAllRanges(Check check) {
  const int positions[] = {INT_MIN, -1, 0, 1, 2, 3, 4, 6, INT_MAX}, sizes[] = {-1, 0, 1, 3, 4, 6};
  Random random(911);
  const auto a = randomTable(random, 4, 3, 8);
  a->values[5] = kMissing;
  a->missing[6] = true;
  for (int k = 0; k < 6 * 6 * 9 * 9; ++k) {
    const int n = sizes[k % 6], p = sizes[k / 6 % 6], from = positions[k / 36 % 9], to = positions[k / 324];
    SCOPED_TRACE(testing::Message() << n << " x " << p << ", " << from << " to " << to);
    check(*a, n, p, from, to);
  }
}

}  // namespace

TEST(Blocks, CopiedAndRemovedEqualTheirDefinition) {
  forAllRanges([](const matrix& a, int n, int p, int from, int to) {
    const auto rows = within(n, 1, n), columns = within(p, 1, p), some = within(n, from, to);
    const int row = to >= 1 && to <= n ? to : n, column = to >= 1 && to <= p ? to : p;
    const matrix none(0, 0), *t = from == 6 ? nullptr : &a, &cells = from == 6 ? none : a;
    const auto picks = [&](const auto& i, const auto& j, auto run) {
      const std::unique_ptr<matrix> expected(pick(cells, i, j));
      expectMakes(
          expected->nX, expected->pX, [&](int k, int l) { return expected->vbget(k, l); }, run);
    };
    const auto leaves = [&](const auto& i, const auto& j, auto run) {
      const std::unique_ptr<matrix> expected(pick(a, i, j));
      expectBecomes(a, n > 0 && p > 0 ? *expected : a, run);
    };
    picks(some, within(p, 2, to), [&](C c) { M_CopyBlock(t, n, p, from, to, 2, to, c); });
    picks(some, columns, [&](C c) { M_ExtractMatToMat(t, n, p, from, to, c); });
    picks(rows, within(p, from, to), [&](C c) { M_ExtractMatToMatByCol(t, n, p, from, to, c); });
    picks(within(n, row, row, false), columns, [&](C c) { M_RemoveRow(t, n, p, to, c); });
    picks(rows, within(p, column, column, false), [&](C c) { M_RemoveCol(t, n, p, to, c); });
    leaves(within(n, from, to, false), columns, [&](C own) { M_RemoveRows2(own, n, p, from, to); });
    leaves(rows, within(p, from, to, false), [&](C own) { M_RemoveCols2(own, n, p, from, to); });
    const int list[] = {4, from, to, from, INT_MAX};
    std::vector<int> left;
    for (const int i : rows) {
      if (std::find(list, list + 5, i) == list + 5) left.push_back(i);
    }
    const auto unlisted = [&](C c) { return M_RemoveRowsInList(t, n, p, list, 5, c); };
    if (p >= 0) picks(left, columns, [&](C c) { EXPECT_EQ(unlisted(c), int(left.size())); });
    const auto resized = [&](int i, int j) { return i <= n && j <= p ? cells.vbget(i, j) : 0.0; };
    for (const int q : {-1, 2, 5}) {
      expectMakes(5 - q, q, resized, [&](C c) { M_CopyResize(t, n, p, c, 5 - q, q); });
    }
    const auto copied = [&](int i, int) { return cells.vbget(i, from); };
    if (from >= 1) expectMakes(n, 1, copied, [&](C x) { CopyMatrixColToVector(t, n, from, x); });
  });
}

TEST(Blocks, PastedAndMovedEqualTheirDefinition) {
  Random random(912);
  const auto b = randomTable(random, 4, 4, 8);
  forAllRanges([&](const matrix& a, int n, int p, int from, int to) {
    // In a table of fewer or more rows and columns than its container.
    const int n2 = 4 - (from == 1), p2 = 4 + (to == 1) - (to == 2);
    const int row = from, column = to;
    const auto pasted = copyOf(*b), single = copyOf(*b), line = copyOf(*b);
    for (int k = 0; k < std::max(n, 0) * std::max(p, 0); ++k) {
      const std::int64_t i = std::int64_t{row} + k % n, j = std::int64_t{column} + k / n;
      if (i < 1 || i > n2 || j < 1 || j > p2) continue;
      pasted->vbset(int(i), int(j), a.vbget(k % n + 1, k / n + 1));
    }
    for (int i = 1; i <= n && from >= 1 && to >= 1; ++i) single->vbset(i, to, a.vbget(i, from));
    for (int j = 1; j <= p && from >= 1 && from <= n && to >= 1 && to <= 3; ++j) {
      line->vbset(to, j, a.vbget(from, j));
    }
    expectBecomes(*b, *pasted, [&](C own) { M_PasteBlock(&a, n, p, own, n2, p2, row, column); });
    if (row == 1 && column == 1) {
      expectBecomes(*b, *pasted, [&](C own) { M_CopyToBigger(&a, n, p, own, n2, p2); });
    }
    expectBecomes(*b, *single, [&](C own) { CopyMatrixColToMatrixCol(&a, n, from, own, to); });
    expectBecomes(*b, *line, [&](C own) { CopyMatrixRowToMatrixRow(&a, n, p, from, own, 3, to); });
    auto order = within(n, 1, n);
    if (from >= 1 && to >= 1 && from <= n && to <= n) {
      order.erase(order.begin() + from - 1);
      order.insert(order.begin() + to - 1, from);
    }
    const std::unique_ptr<matrix> rows(pick(a, order, within(p, 1, p))), moved = copyOf(a);
    byDefinition(*moved, n, p, [&](int i, int j) { return rows->vbget(i, j); });
    if (n <= 4) expectBecomes(a, *moved, [&](C own) { M_MoveRow(own, n, p, from, to); });
  });
}

TEST(Blocks, StringsThatAreNotThereAreEmpty) {
  const std::u16string label = u"a label longer than a string object holds";
  Smatrix labels(2, 2), held(1, 3), *out = &held, *resized = nullptr, *x = nullptr;
  labels.setElement(1, label);
  labels.setElement(2, u"b");
  held.setElement(2, u"old");
  M_ExtractMatToMat(&labels, 3, 3, 2, 2, out);
  M_CopyResize(&labels, 2, 2, resized, 1, 3);
  CopyMatrixColToOneColMat(&labels, 3, 2, x);
  const std::unique_ptr<Smatrix> first(resized), second(x);
  using Texts = std::vector<std::u16string>;
  EXPECT_EQ(firstOf(held.cells, 3), (Texts{label, u"", u""}));
  EXPECT_EQ(firstOf(resized->cells, 3), (Texts{u"", u"b", u""}));
  EXPECT_EQ(firstOf(x->cells, 3), (Texts{u"b", u"", u""}));
}
