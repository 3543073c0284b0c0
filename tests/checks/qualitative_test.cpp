#include "kavoratb1c/checks/qualitative.h"

#include <map>

#include "support/tables.h"

using namespace kav;

using Texts = std::vector<std::u16string>;

TEST(Qualitative, SummariesAndFrequenciesAreAsDefined) {
  Random random(1);
  for (int round = 0; round < 1500; ++round) {
    // Counts of all columns may be more or fewer than the list, which may have repeated and empty strings.
    const int n = random.below(8), p = random.below(4), total = random.below(8) - 1;
    const int columns = random.below(5), most = round / 4 % 4, sorted = round % 3 - 1;
    const int sizes[] = {random.below(6) - 1, random.below(4), random.below(4) - 2, random.below(40), 1};
    SCOPED_TRACE(testing::Message() << n << " x " << p << ", round " << round);
    Smatrix table(n + random.below(2), p), known(std::max(total, 0) + random.below(3), 1);
    const char16_t* const texts[] = {u"", u"b", u"a", u"bb", u"aa", u"\xFF21"};
    for (int k = 0; k < table.nX * p; ++k) table.cells[k] = texts[random.below(5)];
    for (int k = 0; k < known.nX; ++k) known.cells[k] = texts[random.below(6)];
    const auto flags = randomFlags(random, n);
    const short* const exclude = round % 4 == 0 ? nullptr : flags.data();
    // Halves and zeros, so that weights tie; zeros alone; or none.
    const auto w = most == 3 ? nullptr : std::make_unique<matrix>(n, 1, 0.0);
    for (int i = 0; i < n && w; ++i) w->setElement(i, random.below(most + 1) / 2.0);
    Texts modes, list;
    std::vector<double> heaviest, counts, weights, found(std::size_t(std::max(total, 0)));
    short problem = 0, told = 7;
    for (int j = 1, begin = 0, end = 0; j <= p; ++j, begin = end) {
      std::map<std::u16string, double> of;
      Texts order;
      end += j > columns ? 0 : std::max(sizes[j - 1], 0);
      for (int i = 1; i <= n; ++i) {
        const auto text = table.vbget(i, j);
        if (text.empty() || (exclude != nullptr && exclude[i - 1] != 0)) continue;
        if (!of.contains(text)) order.push_back(text);
        const double weight = w ? w->vbget(i, 1) : 1.0;
        of[text] += weight;
        int k = begin;
        while (k < std::min(end, total) && known.cells[k] != text) ++k;
        k < std::min(end, total) ? found[std::size_t(k)] += weight : problem = kTrue;
      }
      if (sorted == kTrue) std::sort(order.begin(), order.end());
      const auto lighter = [](const auto& a, const auto& b) { return a.second < b.second; };
      const auto mode = std::max_element(of.begin(), of.end(), lighter);
      modes.push_back(mode == of.end() ? u"" : mode->first);
      heaviest.push_back(mode == of.end() ? 0.0 : mode->second);
      counts.push_back(double(of.size()));
      for (const auto& text : order) {
        list.push_back(text);
        weights.push_back(of[text]);
      }
    }
    Made<Smatrix> modesIs, listIs;
    Made<matrix> foundIs, heaviestIs, countsIs, weightsIs;
    int length = 77;
    M_InfoQualiValid(&table, n, p, columns, total, sizes, &known, foundIs, round % 5 == 0 ? nullptr : &told,
                     exclude, w.get());
    EXPECT_EQ(told, round % 5 == 0 ? 7 : problem);
    M_InfoQuali(&table, n, p, modesIs, heaviestIs, round % 5 == 1 ? nullptr : &length, countsIs, listIs,
                weightsIs, exclude, w.get(), short(sorted));
    EXPECT_EQ(length, round % 5 == 1 ? 77 : int(list.size()));
    EXPECT_TRUE(firstOf(modesIs->cells, modesIs->nX) == modes && firstOf(listIs->cells, listIs->nX) == list);
    EXPECT_TRUE(holds(*foundIs, int(found.size()), 1, found) && holds(*heaviestIs, p, 1, heaviest));
    EXPECT_TRUE(holds(*countsIs, p, 1, counts) && holds(*weightsIs, int(list.size()), 1, weights));
  }
}

TEST(Qualitative, ManyKindsTakeNoLonger) {
  const int n = 100000;
  Smatrix table(n, 1);
  Made<Smatrix> modes, list;
  for (int i = 0; i < n; ++i) table.cells[i] = {char16_t(400 - i % 250), char16_t(400 + i / 250 % 200)};
  Made<matrix> heaviest, counts, weights;
  M_InfoQuali(&table, n, 1, modes, heaviest, nullptr, counts, list, weights, nullptr, nullptr, kTrue);
  EXPECT_TRUE(holds(*weights, n / 2, 1, std::vector<double>(n / 2, 2.0)));
  EXPECT_EQ(std::adjacent_find(list->cells, list->cells + n / 2, std::greater_equal<>()),
            list->cells + n / 2);
  EXPECT_TRUE(holds(*heaviest, 1, 1, {2.0}) && modes->cells[0] == table.cells[249]);
}
