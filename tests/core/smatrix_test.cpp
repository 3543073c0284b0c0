#include "core/Smatrix.h"

#include <gmock/gmock.h>

#include <climits>
#include <memory>
#include <vector>

#include "platform/ole.h"

namespace {

using testing::Each;
using testing::ElementsAre;

const unsigned short* pointer(const char16_t* text) { return reinterpret_cast<const unsigned short*>(text); }

std::vector<std::u16string> textsOf(const Smatrix& m) {
  return std::vector<std::u16string>(m.cells, m.cells + m.nX * m.pX);
}

TEST(SmatrixConstruction, TakesStringsUpToTheirEndAndNullForEmpty) {
  const unsigned short* src[] = {pointer(u"a"), nullptr, pointer(u"c\u00e9\u4e2d\xd83d\xde00"),
                                 pointer(u"d\0hidden")};
  EXPECT_THAT(textsOf(Smatrix(2, 2, src, 0, 0)), ElementsAre(u"a", u"", u"c\u00e9\u4e2d\xd83d\xde00", u"d"));
  EXPECT_THAT(textsOf(Smatrix(3, 1)), ElementsAre(u"", u"", u""));
  EXPECT_THAT(textsOf(Smatrix(2, 1, nullptr, 0, 0)), ElementsAre(u"", u""));
}

TEST(SmatrixConstruction, ReadsAsManyStringsAsTheSourceHasAndTheTableHolds) {
  struct Case {
    int srcRows, srcCols;
    std::size_t read;
  };
  for (const Case& c : {Case{0, 0, 6}, Case{2, 0, 4}, Case{0, 1, 3}, Case{5, 1, 5}, Case{7, 5, 6},
                        Case{INT_MAX, INT_MAX, 6}, Case{-4, -2, 0}}) {
    const std::vector<const unsigned short*> src(c.read, pointer(u"given"));
    std::vector<std::u16string> texts(c.read, u"given");
    texts.resize(6);
    const unsigned short* none = nullptr;
    EXPECT_EQ(textsOf(Smatrix(3, 2, src.empty() ? &none : src.data(), c.srcRows, c.srcCols)), texts)
        << c.srcRows << " x " << c.srcCols;
  }
}

TEST(SmatrixConstruction, MakesNoCellsOfSizesBelow1) {
  const unsigned short* src[] = {pointer(u"given")};
  for (const auto& [rows, columns] : {std::pair{0, 3}, {3, 0}, {-2, 3}, {-5, -7}, {INT_MIN, INT_MIN}}) {
    Smatrix m(rows, columns, src, 0, 0);
    EXPECT_EQ(m.getNbrLines(), rows);
    EXPECT_EQ(m.getNbrCols(), columns);
    EXPECT_EQ(m.getElement(0), u"");
    EXPECT_EQ(m.setElement(0, u"x"), -1.0);
    unsigned short* slot = nullptr;
    m.copyMatTo(&slot);
    EXPECT_EQ(slot, nullptr);
  }
}

TEST(SmatrixAccess, LooksAtTheLinearIndexOnly) {
  Smatrix m(2, 3);
  EXPECT_EQ(m.setElement(4, u"k4"), 0.0);
  EXPECT_EQ(m.setElement(2, 0, u"k2"), 0.0);
  EXPECT_EQ(m.vbset(0, 2, u"k1"), 0.0);
  EXPECT_EQ(m.vbset(2, 3, u"k5"), 0.0);
  EXPECT_THAT(textsOf(m), ElementsAre(u"", u"k1", u"k2", u"", u"k4", u"k5"));
  EXPECT_EQ(m.getElement(4), u"k4");
  EXPECT_EQ(m.getElement(4, -1), u"k2");
  EXPECT_EQ(m.getElement(1, 2), u"k5");
  EXPECT_EQ(m.vbget(2, 1), u"k1");
  EXPECT_EQ(m.vbget(3, 1), u"k2");
}

// The first four lie on a cell where index arithmetic is done in 32 bits, counting from 0 or from 1.
TEST(SmatrixAccess, ReadsEmptyAndWritesNothingOutside) {
  Smatrix m(65536, 1);
  for (int k = 0; k < 65536; ++k) m.setElement(k, u"kept");
  for (const auto& [i, j] : {std::pair{0, 65536},
                             {1, 65537},
                             {3, INT_MIN},
                             {3, INT_MIN + 1},
                             {0, 1},
                             {-1, 0},
                             {INT_MIN, INT_MIN},
                             {INT_MAX, INT_MAX}}) {
    SCOPED_TRACE(testing::Message() << i << ", " << j);
    EXPECT_EQ(m.getElement(i, j), u"");
    EXPECT_EQ(m.vbget(i, j), u"");
    EXPECT_EQ(m.setElement(i, j, u"x"), -1.0);
    EXPECT_EQ(m.vbset(i, j, u"x"), -1.0);
  }
  for (const int k : {-1, 65536, INT_MIN, INT_MAX}) {
    EXPECT_EQ(m.getElement(k), u"") << k;
    EXPECT_EQ(m.setElement(k, u"x"), -1.0) << k;
  }
  EXPECT_THAT(textsOf(m), Each(std::u16string(u"kept")));
}

TEST(SmatrixAssignment, SharesTheStrings) {
  Smatrix source(2, 1);
  Smatrix target(3, 3);
  std::u16string* const held = target.cells;
  target = source;
  EXPECT_EQ(target.cells, source.cells);
  EXPECT_EQ(target.nX, 2);
  EXPECT_EQ(target.pX, 1);
  target.cells = held;  // for the destructor
}

TEST(SmatrixMatCheck, KeepsWhatFitsAndMakesATableOfEmptyStringsOtherwise) {
  Smatrix m(2, 3);
  for (int k = 0; k < 6; ++k) m.setElement(k, u"kept");
  Smatrix* target = &m;
  Smatrix::matCheck(target, 2, 3);
  EXPECT_EQ(target, &m);
  auto* const neverSet = reinterpret_cast<Smatrix*>(static_cast<std::uintptr_t>(0xCCCCCCCCCCCCCCCCu));
  for (Smatrix* before : {static_cast<Smatrix*>(nullptr), neverSet, &m}) {
    target = before;
    Smatrix::matCheck(target, 3, 2);
    ASSERT_NE(target, before);
    const std::unique_ptr<Smatrix> made(target);
    EXPECT_EQ(made->nX, 3);
    EXPECT_EQ(made->pX, 2);
    EXPECT_THAT(textsOf(*made), Each(std::u16string()));
  }
  EXPECT_THAT(textsOf(m), Each(std::u16string(u"kept")));
}

TEST(SmatrixCopyMatTo, MakesANewStringForEveryCell) {
  using namespace std::string_literals;
  Smatrix m(2, 2);
  m.setElement(0, u"first");
  m.setElement(2, u"\u00e9\u4e2d");
  m.setElement(3, u"cut\0off"s);
  EXPECT_EQ(m.getElement(3), u"cut\0off"s);
  unsigned short old[] = {'o', 'l', 'd', 0};
  std::vector<unsigned short*> out(5, old);
  m.copyMatTo(out.data());
  EXPECT_EQ(out.back(), old);
  out.pop_back();
  std::vector<std::u16string> texts;
  for (unsigned short* slot : out) {
    ASSERT_NE(slot, old);
    const auto text = reinterpret_cast<BSTR>(slot);
    texts.emplace_back(reinterpret_cast<const char16_t*>(slot), SysStringByteLen(text) / sizeof(OLECHAR));
    SysFreeString(text);
  }
  EXPECT_THAT(texts, ElementsAre(u"first", u"", u"\u00e9\u4e2d", u"cut"));
  m.copyMatTo(nullptr);
}

}  // namespace
