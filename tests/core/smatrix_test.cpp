#include <gmock/gmock.h>

#include <vector>

#include "kavoratb1c/Smatrix.h"
#include "platform/ole.h"

using namespace kav;

namespace {

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

TEST(SmatrixMatCheck, KeepsWhatFits) {
  Smatrix m(2, 2);
  m.setElement(3, u"kept");
  Smatrix* target = &m;
  Smatrix::matCheck(target, 2, 2);
  EXPECT_EQ(target, &m);
  EXPECT_THAT(textsOf(m), ElementsAre(u"", u"", u"", u"kept"));
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
