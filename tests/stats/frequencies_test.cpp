#include "kavoratb1c/stats/frequencies.h"

#include "core/contents.h"

using namespace kav;

namespace {

using Strings = std::vector<std::u16string>;

struct Labels : Smatrix {
  Labels(const Strings& s) : Smatrix(static_cast<int>(s.size()), 1) { std::copy(s.begin(), s.end(), cells); }
};

Strings stringsOf(const Smatrix& labels) { return Strings(labels.cells, labels.cells + labels.nX); }

}  // namespace

TEST(Frequencies, OfNumbersNearAndEqual) {
  const double cells[] = {1.0, 1.05, 2.0, kMissing, std::nan("")},
               weights[] = {1.5, 2.25, -0.75, 0.625, 77.0};
  const matrix x(5, 1, cells, true, 0, 0), w(5, 1, weights, true, 0, 0), ones(3, 1, 1.0);
  // 1.05 - 1 is above 0.05.
  EXPECT_EQ(V_Freq(&x, 3, &ones, 1.0, 0.05), 1.0);
  EXPECT_EQ(V_Freq(&x, 3, &ones, 1.0, 0.1), 2.0);
  EXPECT_EQ(V_Freq(&x, 5, &w, 2.0, HUGE_VAL), 1.5 + 2.25 - 0.75 + 0.625);
  EXPECT_EQ(V_Freq(&x, 2, nullptr, 1.0, 0.1), -2.0);
  EXPECT_EQ(V_FreqLng(&x, 5, &w, 1), 1);
  EXPECT_EQ(V_FreqLng(&x, 5, &w, 2), 0);
}

TEST(Frequencies, ModeIsTheHeaviestLabelAndOfSeveralTheFirst) {
  const short none[4] = {}, second[] = {0, -1, 0, 0}, all[] = {-1, 1, 2, -1};
  const Labels labels({u"pear", u"fig", u"", u"pear"});
  const auto mode = [&](std::vector<double> weights, const short* exclude) {
    const matrix w(4, 1, weights.data(), true, 0, 0);
    return V_Mode(&labels, 4, exclude, &w);
  };
  EXPECT_EQ(mode({1.5, 2.0, 9.0, 0.75}, none), u"pear");
  EXPECT_EQ(mode({1.5, 2.25, 9.0, 0.75}, nullptr), u"fig");
  EXPECT_EQ(mode({1.5, 2.385, 9.0, 0.75}, second), u"pear");
  EXPECT_EQ(mode({-3.0, -2.385, 9.0, 0.5}, none), u"fig");
  EXPECT_EQ(mode({1.5, std::nan(""), 9.0, -7.0}, none), u"pear");
  EXPECT_EQ(mode({1.5, 2.385, 9.0, 0.75}, all), u"");
}

TEST(Frequencies, LabelsAreComparedCodeByCode) {
  // Both clefs begin with the same surrogate; the ligature has a higher code but a lower code point.
  const Labels labels({u"\uFB01", u"\U0001D122", u"b", u"\U0001D11E", u"", u"b", u"\xD834", u"B"});
  const double weights[] = {0.5, 1.25, 2.375, 4.0, 8.0, 16.0, 32.0, 64.0};
  const matrix w(8, 1, weights, true, 0, 0);
  EXPECT_EQ(V_FreqStr(&labels, 8, &w, u"b"), 18.375);
  EXPECT_EQ(V_FreqStr(&labels, 9, &w, u""), 8.0 - 1.0);
  Made<Smatrix> distinct;
  V_ExtractDistinct(&labels, 8, distinct, nullptr);
  EXPECT_EQ(stringsOf(*distinct),
            (Strings{u"", u"B", u"b", u"\xD834", u"\U0001D11E", u"\U0001D122", u"\uFB01"}));
  EXPECT_EQ(V_NbDistinct(&labels, 8), 7);
}

TEST(Frequencies, DoublesGetTheNextFreeNumber) {
  const Strings cases[][2] = {{{u"a", u"a-2", u"a", u"a"}, {u"a", u"a-2", u"a-3", u"a-4"}},
                              {{u"a", u"a", u"a", u"a-3"}, {u"a", u"a-2", u"a-4", u"a-3"}},
                              {{u"a-2", u"a", u"a", u"a-2"}, {u"a-2", u"a", u"a-3", u"a-2-2"}},
                              {{u"", u"a", u"", u"a", u"a"}, {u"", u"a", u"", u"a-2", u"a"}}};
  for (const auto& [before, after] : cases) {
    Labels labels(before);
    V_ReplaceDoubles(&labels, 4);
    EXPECT_EQ(stringsOf(labels), after);
  }
}
