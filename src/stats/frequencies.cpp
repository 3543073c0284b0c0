#include "kavoratb1c/stats/frequencies.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "access/results.h"
#include "access/texts.h"
#include "access/usable.h"
#include "numerics/scalar.h"
#include "stats/label_totals.h"

using namespace kav;

using texts::labelAt;

namespace {

/// The sum of the weights of the cells that equals(i) lets through.
template <class Equals>
double frequency(int n, const matrix* w, Equals equals) {
  const block::Values weights(w, n);
  double sum = 0.0;
  for (int i = 0; i < n; ++i) {
    if (equals(i)) sum += weights[i];
  }
  return sum;
}

std::unordered_set<std::u16string_view> distinctLabels(const Smatrix* labels, int n) {
  std::unordered_set<std::u16string_view> seen;
  for (int i = 0; i < n; ++i) seen.insert(labelAt(labels, i));
  return seen;
}

std::u16string numbered(std::u16string_view label, int number) {
  const std::string digits = std::to_string(number);
  std::u16string text(label);
  text += u'-';
  text.append(digits.begin(), digits.end());
  return text;
}

}  // namespace

double V_Freq(const matrix* x, int n, const matrix* w, double value, double epsilon) {
  const block::Values cells(x, n);
  return frequency(n, w, [&](int i) { return std::fabs(cells[i] - value) < epsilon; });
}

int V_FreqLng(const matrix* x, int n, const matrix* w, int value) {
  const block::Values cells(x, n);
  return scalar::truncateToInt(frequency(n, w, [&](int i) { return cells[i] == value; }));
}

double V_FreqStr(const Smatrix* labels, int n, const matrix* w, const std::u16string& value) {
  return frequency(n, w, [&](int i) { return labelAt(labels, i) == value; });
}

std::u16string V_Mode(const Smatrix* labels, int n, const short* exclude, const matrix* w) {
  const block::Values weights(w, n);
  LabelTotals totals;
  usable::forEach(n, usable::NotExcludedIfGiven(exclude),
                  [&](int i) { totals.add(labelAt(labels, i), weights[i]); });
  return std::u16string(totals.mode().text);
}

int V_NbDistinct(const Smatrix* labels, int n) { return static_cast<int>(distinctLabels(labels, n).size()); }

void V_ExtractDistinct(const Smatrix* labels, int n, Smatrix*& out, int* count) {
  const std::unordered_set<std::u16string_view> distinct = distinctLabels(labels, n);
  std::vector<std::u16string> copies(distinct.begin(), distinct.end());
  std::sort(copies.begin(), copies.end());
  const auto size = static_cast<int>(copies.size());
  Smatrix::matCheck(out, size, 1);
  std::move(copies.begin(), copies.end(), out->cells);
  results::give(count, size);
}

void V_ReplaceDoubles(Smatrix* labels, int n) {
  if (labels == nullptr) return;
  const auto size =
      static_cast<int>(std::clamp<std::int64_t>(addressing::cellCount(*labels), 0, std::max(n, 0)));
  const std::vector<std::u16string> before(labels->cells, labels->cells + size);
  std::unordered_set<std::u16string> taken(before.begin(), before.end());
  std::unordered_map<std::u16string_view, int> occurrences;
  for (int i = 0; i < size; ++i) {
    const std::u16string& label = before[static_cast<std::size_t>(i)];
    int& number = occurrences[label];
    ++number;
    if (label.empty() || number == 1) continue;
    std::u16string unique = numbered(label, number);
    while (!taken.insert(unique).second) unique = numbered(label, ++number);
    labels->cells[i] = std::move(unique);
  }
}
