// Weights counted up by label: modes and frequencies of labels, once for everybody. Internal.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kav {

/// The labels met so far, each with its total weight. The labels' characters stay where they are.
class LabelTotals {
 public:
  struct Label {
    std::u16string_view text;
    double total;
  };

  /// An empty label is a missing one and does not count.
  void add(std::u16string_view text, double weight) {
    if (text.empty()) return;
    const auto [found, isNew] = positions_.try_emplace(text, labels_.size());
    if (isNew) labels_.push_back({text, 0.0});
    labels_[found->second].total += weight;
  }

  /// In the order in which they were met first.
  const std::vector<Label>& labels() const { return labels_; }

  std::vector<Label> sorted() const {
    std::vector<Label> result = labels_;
    std::sort(result.begin(), result.end(), [](const Label& a, const Label& b) { return a.text < b.text; });
    return result;
  }

  /// The label with the largest total, of several the first in string order; a total that is not a number is
  /// the least. An empty text when there is none.
  Label mode() const {
    const auto rank = [](const Label& label) {
      return std::isnan(label.total) ? -std::numeric_limits<double>::infinity() : label.total;
    };
    const auto precedes = [&](const Label& a, const Label& b) {
      return rank(a) > rank(b) || (rank(a) == rank(b) && a.text < b.text);
    };
    const auto first = std::min_element(labels_.begin(), labels_.end(), precedes);
    return first == labels_.end() ? Label{{}, 0.0} : *first;
  }

 private:
  std::unordered_map<std::u16string_view, std::size_t> positions_;
  std::vector<Label> labels_;
};

}  // namespace kav
