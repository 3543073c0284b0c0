#include "kavoratb1c/checks/qualitative.h"

#include <algorithm>
#include <vector>

#include "access/results.h"
#include "access/taking_part.h"
#include "access/texts.h"
#include "access/usable.h"
#include "stats/label_totals.h"
#include "tables/category_lists.h"

using namespace kav;

namespace {

void giveNumbers(matrix*& to, const std::vector<double>& numbers) {
  results::refilled(to, static_cast<int>(numbers.size()), 1, 1,
                    [&](block::Target& target) { std::copy(numbers.begin(), numbers.end(), target.data()); });
}

void giveTexts(Smatrix*& to, const std::vector<std::u16string_view>& texts) {
  Smatrix::matCheck(to, static_cast<int>(texts.size()), 1);
  std::copy(texts.begin(), texts.end(), to->cells);
}

}  // namespace

void M_InfoQuali(const Smatrix* labels, int n, int p, Smatrix*& modes, matrix*& modeFrequencies, int* total,
                 matrix*& counts, Smatrix*& categories, matrix*& frequencies, const short* flags,
                 const matrix* w, short sorted) {
  const usable::RowWeights weights(w, n);
  std::vector<std::u16string_view> modeOf, list;
  std::vector<double> modeWeights, sizes, listWeights;
  for (int j = 0; j < p; ++j) {
    LabelTotals totals;
    usable::forEach(n, usable::NotExcludedIfGiven(flags),
                    [&](int i) { totals.add(texts::cell(labels, i, j), weights[i]); });
    const LabelTotals::Label mode = totals.mode();
    modeOf.push_back(mode.text);
    modeWeights.push_back(mode.total);
    sizes.push_back(static_cast<double>(totals.labels().size()));
    for (const LabelTotals::Label& label : sorted == kTrue ? totals.sorted() : totals.labels()) {
      list.push_back(label.text);
      listWeights.push_back(label.total);
    }
  }
  giveTexts(modes, modeOf);
  giveNumbers(modeFrequencies, modeWeights);
  giveNumbers(counts, sizes);
  giveTexts(categories, list);
  giveNumbers(frequencies, listWeights);
  results::give(total, static_cast<int>(list.size()));
}

void M_InfoQualiValid(const Smatrix* labels, int n, int p, int columns, int total, const int* counts,
                      const Smatrix* categories, matrix*& frequencies, short* problem, const short* flags,
                      const matrix* w) {
  const usable::RowWeights weights(w, n);
  std::vector<double> found(static_cast<std::size_t>(std::max(total, 0)));
  bool unknown = false;
  const auto countColumn = [&](int j, const categories::Categories& known) {
    usable::forEach(n, usable::NotExcludedIfGiven(flags), [&](int i) {
      const std::u16string_view label = texts::cell(labels, i, j);
      if (label.empty()) return;
      const int position = known.positionOf(label);
      const std::int64_t at = known.begin() + position;
      if (position == categories::kUnknown || at >= total) {
        unknown = true;
      } else {
        found[static_cast<std::size_t>(at)] += weights[i];
      }
    });
  };
  const int described = std::clamp(columns, 0, std::max(p, 0));
  categories::forEachColumn(described, counts, categories,
                            [&](int j, int, const categories::Categories& known) { countColumn(j, known); });
  const categories::Categories none(nullptr, 0, 0);
  for (int j = described; j < p; ++j) countColumn(j, none);
  giveNumbers(frequencies, found);
  results::give(problem, asFlag(unknown));
}
