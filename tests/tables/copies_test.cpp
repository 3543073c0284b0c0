#include "kavoratb1c/tables/copies.h"

#include <climits>

#include "kavoratb1c/tables/fills.h"
#include "support/tables.h"

using namespace kav;

namespace {

std::vector<std::u16string> textsOf(const Smatrix& s) { return firstOf(s.cells, addressing::cellCount(s)); }

}  // namespace

TEST(Copies, EqualTheirDefinitionForAllExtents) {
  Random random(921);
  const auto a = randomTable(random, 3, 2, 8);
  const matrix flagged(3, 2, a->values, false, 0,
                       0);  // a marker is a cell of 0.0 there, and has no flag in a copy
  for (const matrix* m : {static_cast<const matrix*>(a.get()), &flagged}) {
    for (const int n : {INT_MIN, -1, 0, 1, 2, 3, 4, 6, 7}) {
      SCOPED_TRACE(n);
      const auto cell = [&](int i, int j) { return m->vbget(i, j); };
      for (const int p : {-1, 0, 1, 2, 3}) {
        expectMakes(n, p, cell, [&](matrix*& out) { M_Duplicate(m, n, p, out); });
      }
      // A vector runs through the columns.
      expectMakes(n, 1, cell, [&](matrix*& out) { V_Duplicate(m, n, out); });
      const auto reversed = [&](int i, int) { return m->vbget(n + 1 - i, 1); };
      expectMakes(n, 1, reversed, [&](matrix*& out) { V_Reverse(m, n, out); });
      for (const int removed : {INT_MIN, 0, 1, 2, n, INT_MAX}) {
        const auto kept = [&](int i, int) { return m->vbget(removed >= 1 && i >= removed ? i + 1 : i, 1); };
        expectMakes(std::max(n, 1) - 1, 1, kept, [&](matrix*& out) { V_RemoveVal(m, n, removed, out); });
      }
    }
  }
}

TEST(Copies, StringsAreCopiedWithWhatIsOutsideEmpty) {
  Smatrix a(2, 2), *copy = nullptr, *vector = nullptr, *none = nullptr;
  a.setElement(0, u"north");
  a.setElement(3, u"a label longer than the string object itself");
  M_Duplicate(&a, 2, 3, copy);
  V_Duplicate(&a, 4, vector);
  M_Duplicate(&a, INT_MIN, 2, none);
  const std::unique_ptr<Smatrix> first(copy), second(vector), third(none);
  auto expected = textsOf(a);
  EXPECT_EQ(textsOf(*vector), expected);
  expected.resize(6);
  EXPECT_EQ(textsOf(*copy), expected);
  EXPECT_EQ(addressing::cellCount(*none), 0);
}
