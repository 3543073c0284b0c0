// What the entries that copy, merge and take apart tables, and turn labels into codes, give a macro, each
// called through the type library with cells put down by hand. Results have just the room they need; the
// cells around them must stay.

#include <gtest/gtest.h>

#include <climits>

#include "windows/any_entry.h"

namespace {

constexpr double kMarker = -1.79769313486231E+308, kUntouched = 9.5;

using Doubles = std::vector<double>;
using Flags = std::vector<VARIANT_BOOL>;
using Texts = std::vector<std::wstring>;
using Arguments = std::vector<macro::Argument>;

class TablesEntries : public testing::Test {
 protected:
  /// What an entry makes of `out`, of the cells before in it when it works in place.
  void gives(const std::wstring& entry, const Arguments& arguments, Doubles expected,
             const Doubles& before = {}, int returned = 0) {
    cells.assign(24, kUntouched);
    std::copy(before.begin(), before.end(), out);
    const VARIANT v = dll().call(entry, arguments);
    EXPECT_EQ(dll().procedure(entry).result == VT_INT ? v.intVal : 0, returned) << plain(entry);
    expected.insert(expected.begin(), 2, kUntouched);
    expected.resize(cells.size(), kUntouched);
    EXPECT_EQ(cells, expected) << plain(entry);
  }
  /// The same of strings, new ones also where they are empty.
  void makes(const std::wstring& entry, macro::Strings& strings, const Arguments& arguments,
             const Texts& expected) {
    dll().call(entry, arguments);
    for (std::size_t k = 0; k < expected.size(); ++k) {
      ASSERT_NE(strings.data()[k], nullptr) << plain(entry) << ", " << k;
      EXPECT_EQ(strings[k], expected[k]) << plain(entry) << ", " << k;
    }
    EXPECT_EQ(strings.data()[expected.size()], nullptr) << plain(entry);
  }

  double* none = nullptr;
  // a is 3 x 3, m 2 x 2, t 2 x 2.
  Doubles a = {1, 2, 3, 4, kMarker, 6, 7, 8, 9}, m = {1, 2, 3, 4}, x = {1, 2}, y = {3, kMarker, 5};
  Doubles held = {10, 11, 12, 13, 14, 15, 16, 17, 18};
  macro::Strings t = {L"a", L"", L"c", L"a longer label \xD83D\xDE00"}, s = {L"s"};

  Doubles cells = Doubles(24, kUntouched);
  double* out = cells.data() + 2;
};

}  // namespace

TEST_F(TablesEntries, BlocksCopiedAndPasted) {
  gives(L"VB_M_CopyBlock", {a, 3, 3, 2, 3, 1, 2, out}, {2, 3, kMarker, 6});
  gives(L"VB_M_CopyBlock", {a, 3, 3, 0, INT_MAX, 3, 9, out}, {7, 8, 9});
  gives(L"VB_M_CopyBlock", {out, 3, 3, 2, 3, 2, 3, out}, {kMarker, 6, 8, 9, kMarker, 6, 7, 8, 9}, a);
  gives(L"VB_M_ExtractMatToMatDbl", {a, 3, 3, 2, 2, out}, {2, kMarker, 8});
  gives(L"VB_M_ExtractMatToMatByColDbl", {a, 3, 3, 2, 2, out}, {4, kMarker, 6});
  gives(L"VB_M_PasteBlock", {m, 2, 2, out, 3, 3, 2, 3}, {10, 11, 12, 13, 14, 15, 16, 1, 2}, held);
  gives(L"VB_M_PasteBlock", {a, 3, 3, out, 2, 2, 0, -1}, {8, 9, 12, 13}, {10, 11, 12, 13});
  gives(L"VB_M_PasteBlock", {out, 2, 2, out, 3, 3, 2, 2}, {1, 2, 3, 4, 1, 2, 7, 3, 4},
        {1, 2, 3, 4, 5, 6, 7, 8, 9});
  gives(L"VB_M_CopyToBigger", {m, 2, 2, out, 3, 2}, {1, 2, 12, 3, 4, 15}, {10, 11, 12, 13, 14, 15});
  gives(L"VB_M_CopyResize", {a, 3, 3, out, 2, 4}, {1, 2, 4, kMarker, 7, 8, 0, 0});
  gives(L"VB_CopyMatrixColToMatrixCol", {a, 3, 2, out, 3, true}, {10, 11, 12, 13, 14, 15, 4, kMarker, 6},
        held);
  gives(L"VB_CopyMatrixColToMatrixCol", {a, 3, 0, out, 1, false}, held, held);
  gives(L"VB_CopyMatrixColToVector", {a, 3, 2, out}, {4, kMarker, 6});
  gives(L"VB_CopyMatrixRowToMatrixRow", {a, 3, 3, 2, out, 2, 1, true}, {2, 11, kMarker, 13, 8, 15},
        {10, 11, 12, 13, 14, 15});
  gives(L"VB_CopyMatrixRowToMatrixRow", {a, 3, 3, 4, out, 3, 1, false}, held, held);
  gives(L"VB_GenerateIndicator", {out, 5, 2, 3}, {0, 1, 1, 0, 0});
}

TEST_F(TablesEntries, RowsAndColumnsRemovedAndMoved) {
  std::vector<int> list = {3, 7, 3, 0};
  Doubles constant = {1, 2, kMarker, kMarker, 3, 3};
  gives(L"VB_M_RemoveRow", {a, 3, 3, 2, out}, {1, 3, 4, 6, 7, 9});
  gives(L"VB_M_RemoveRow", {a, 3, 3, 9, out}, {1, 2, 4, kMarker, 7, 8});
  gives(L"VB_M_RemoveCol", {a, 3, 3, 1, out}, {4, kMarker, 6, 7, 8, 9});
  // What is left is packed at the start.
  gives(L"VB_M_RemoveRows2", {out, 3, 3, 2, 3}, {1, 4, 7, 4, kMarker, 6, 7, 8, 9}, a);
  gives(L"VB_M_RemoveCols2", {out, 3, 3, 0, 1}, {4, kMarker, 6, 7, 8, 9, 7, 8, 9}, a);
  gives(L"VB_M_RemoveRows2", {out, 3, 3, 1, 3}, held, held);
  gives(L"VB_M_RemoveRowsInList", {a, 3, 3, list, 4, out}, {1, 2, 4, kMarker, 7, 8}, {}, 2);
  gives(L"VB_M_MoveRow", {out, 3, 3, 1, 3}, {2, 3, 1, kMarker, 6, 4, 8, 9, 7}, a);
  gives(L"VB_M_MoveRow", {out, 3, 3, 3, 2}, {1, 3, 2, 4, 6, kMarker, 7, 9, 8}, a);
  gives(L"VB_M_IsColConstant", {constant, 2, 3}, {}, {}, 2);
  gives(L"VB_M_IsColConstant", {a, 3, 3}, {}, {}, 0);
}

TEST_F(TablesEntries, TablesAndVectorsMerged) {
  const Doubles merged = {1, 2, 0, 3, 4, 0, 3, kMarker, 5}, joined = {1, 2, 3, kMarker, 5};
  gives(L"VB_HMergeTablesDbl", {m, 2, 2, y, 3, 1, out}, merged);
  gives(L"VB_HMergeTablesDbl2", {out, 2, 2, y, 3, 1}, merged, m);
  gives(L"VB_HMergeTablesDbl2", {out, 2, 1, out, 2, 1}, {1, 2, 1, 2}, m);
  gives(L"VB_HMergeTableVect", {m, 2, 2, y, 3, out}, merged);
  gives(L"VB_HMergeTableVect2", {out, 2, 2, y, 3}, merged, m);
  gives(L"VB_HMergeVectTable", {y, 3, m, 2, 2, out}, {3, kMarker, 5, 1, 2, 0, 3, 4, 0});
  gives(L"VB_HMergeVectors", {x, 2, y, 3, out}, {1, 2, 0, 3, kMarker, 5});
  gives(L"VB_HMergeVectColDbl", {y, 3, m, 2, 2, out}, {3, kMarker, 5, 3, 4, 0});
  gives(L"VB_HMergeVectColDbl", {y, 3, m, 2, 0, out}, {});
  gives(L"VB_VMergeTablesDbl", {y, 1, 3, m, 2, 2, out}, {3, 1, 2, kMarker, 3, 4, 5, 0, 0});
  gives(L"VB_VMergeVectorsDbl", {x, 2, y, 3, out}, joined);
  gives(L"VB_VMergeVectorsDbl2", {out, 2, y, 3}, joined, x);
  Flags f = {-1, 0, 5, 5, 5, 5, 5, 5, 5, 5}, g = {1, 0, 7}, joined1 = f, made(10, 5);
  dll().call(L"VB_HMergeTablesBool", {f, 1, 2, g, 3, 1, made});
  EXPECT_EQ(made, (Flags{-1, 0, 0, 0, 0, 0, -1, 0, -1, 5}));
  dll().call(L"VB_HMergeTablesBool2", {f, 1, 2, g, 3, 1});
  EXPECT_EQ(f, made);
  dll().call(L"VB_VMergeVectorsBool2", {joined1, 2, g, 3});
  EXPECT_EQ(joined1, (Flags{-1, 0, -1, 0, -1, 5, 5, 5, 5, 5}));
}

TEST_F(TablesEntries, StringsCopiedAndMerged) {
  const std::wstring label = L"a longer label \xD83D\xDE00";
  macro::Strings resized(4), extracted(3), column(3), merged(7), rows(6);
  makes(L"VB_M_CopyResizeStr", resized, {t, 2, 2, resized, 1, 3}, {L"a", L"c", L""});
  makes(L"VB_M_ExtractMatToMatStr", extracted, {t, 2, 2, 2, 9, extracted}, {L"", label});
  makes(L"VB_CopyMatrixColToOneColMatStr", column, {t, 2, 2, column}, {L"c", label});
  makes(L"VB_HMergeTablesStr", merged, {t, 2, 2, s, 1, 1, merged}, {L"a", L"", L"c", label, L"s", L""});
  makes(L"VB_VMergeVectorsStr", rows, {t, 3, s, 1, rows}, {L"a", L"", L"c", L"s"});
  // In place, on the new strings of those calls.
  makes(L"VB_HMergeTablesStr2", merged, {merged, 2, 2, s, 1, 1}, {L"a", L"", L"c", label, L"s", L""});
  makes(L"VB_VMergeVectorsStr2", rows, {rows, 4, s, 1}, {L"a", L"", L"c", L"s", L"s"});
}

TEST_F(TablesEntries, LabelsBecomeCodesAndColumns) {
  macro::Strings labels = {L"b", L"a", L"?", L"x", L"", L"x"}, categories = {L"a", L"b", L"x"};
  std::vector<int> counts = {2, 1};
  Flags rows = {0, -1, 0};
  VARIANT_BOOL* const noFlags = nullptr;
  gives(L"VB_M_ReplaceCatByCodes", {labels, 3, 2, counts, categories, out}, {2, 1, kMarker, 1, kMarker, 1});
  gives(L"VB_M_ReplaceStrByCodes", {labels, 3, 2, counts, categories, rows, 5, out},
        {6, kMarker, kMarker, 5, kMarker, 5});
  gives(L"VB_M_ReplaceStrByCodes", {labels, 3, 2, counts, categories, noFlags, 0, out},
        {1, 0, kMarker, 0, kMarker, 0});
  const struct {
    int columns, constraint, leaveFirst;
    Doubles expected;
  } tables[] = {{3, 0, 0, {0, 1, 0, 1, 0, 0, 1, 0, 1}},
                {1, 1, 0, {1, 0, 0}},
                {1, 2, 0, {0, 1, 0}},
                {3, 1, -1, {0, 1, 0, 1, 0, 0, 1, 0, 1}},
                {1, 3, 0, {-1, 1, 0}},
                {2, 1, 0, {1, 0, 0, 0, 0, 0}},
                {2, 0, 0, {0, 1, 0, 1, 0, 0}}};
  for (const auto& table : tables) {
    gives(L"VB_BuildDisjunctiveTable",
          {labels, 3, 2, 3, counts, categories, none, table.columns, out, table.constraint, table.leaveFirst},
          table.expected);
  }
}
