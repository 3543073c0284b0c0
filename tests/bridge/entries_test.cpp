// What holds for every entry: which arrays may be null, and results that lie in arrays that are read.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "manual/generated/prototypes.h"
#include "support/any_call.h"
#include "support/bits.h"

namespace {

using Key = std::pair<std::string, std::string>;

/// What the reference says that the array of a parameter holds, by entry and parameter.
std::map<Key, std::string> meanings() {
  std::map<Key, std::string> found;
  for (const auto& page : std::filesystem::directory_iterator(KAV_DOCS "/reference")) {
    std::ifstream file(page.path());
    for (std::string line, entry; std::getline(file, line);) {
      if (line.rfind("### ", 0) == 0) entry = line.substr(4);
      // | `name` | how it is passed | what it holds |
      if (line.rfind("| `", 0) != 0) continue;
      const std::size_t end = line.find('`', 3), second = line.find('|', end),
                        third = line.find('|', second + 1);
      found[{entry, line.substr(3, end - 3)}] = line.substr(third + 1);
    }
  }
  return found;
}

bool contains(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

/// Entries whose worker has an answer of its own to flags that are null.
bool isRowFlags(const CatalogueParameter& p) { return p.type == "VARIANT_BOOL*" && p.direction == "in"; }

}  // namespace

// A result of one cell that is null is not written, and the others are as they would be; null for any other
// array that the reference does not let be null fails the call.
TEST(Entries, OnlyTheArraysThatMayBeNullMay) {
  const std::map<Key, std::string> meaning = meanings();
  int single = 0, required = 0;
  for (const CatalogueEntry& entry : catalogue()) {
    AnyCall whole(entry);
    const AnyCall untouched(entry);
    const std::string result = whole.run();
    for (std::size_t k = 0; k < entry.parameters.size(); ++k) {
      const CatalogueParameter& p = entry.parameters[k];
      if (!whole.isArray(k) || isRowFlags(p)) continue;
      SCOPED_TRACE(entry.name + ", " + p.name);
      const std::string& holds = meaning.at({entry.name, p.name});
      const bool isSingle = p.direction == "out" && contains(holds, "one cell");
      if (contains(holds, "`nothing`") != isSingle && !isSingle) continue;
      EXPECT_EQ(contains(holds, "may be `nothing`"), isSingle);
      if (p.direction != "in" && whole.contents(k) == untouched.contents(k)) continue;
      if (contains(holds, "ignored")) continue;
      AnyCall call(entry);
      EXPECT_EQ(call.run(static_cast<int>(k)), isSingle ? result : call.failure());
      for (std::size_t other = 0; other < entry.parameters.size(); ++other) {
        const AnyCall& expected = isSingle && other != k ? whole : untouched;
        EXPECT_EQ(call.contents(other), expected.contents(other)) << entry.parameters[other].name;
      }
      ++(isSingle ? single : required);
    }
  }
  EXPECT_GE(single, 38);
  EXPECT_GT(required, 300);
}

// Large enough that a worker may be given the macro's array itself, in place of a copy.
TEST(Entries, ResultsMayLieInArraysThatAreRead) {
  constexpr int n = 10;
  std::vector<double> table, transposed, twice, stacked, other;
  for (int k = 0; k < n * n; ++k) {
    table.push_back(2.385 + k);
    transposed.push_back(2.385 + (k % n * n + k / n));
    other.push_back(-7.25 * k);
  }
  std::vector<double> a = table;
  EXPECT_EQ(VB_M_Transpose(a.data(), n, n, a.data()), 0);
  EXPECT_TRUE(bits::equal(a, transposed));
  a = table;
  EXPECT_EQ(VB_M_Transpose2(a.data(), n, n), 0);
  EXPECT_TRUE(bits::equal(a, transposed));

  // Side by side: the second operand lies where the result begins.
  twice = other;
  twice.insert(twice.end(), table.begin(), table.end());
  a = table;
  a.resize(2 * n * n);
  VB_HMergeTablesDbl(other.data(), n, n, a.data(), n, n, a.data());
  EXPECT_TRUE(bits::equal(a, twice));

  // Below each other, onto the second operand.
  for (int j = 0; j < n; ++j) {
    stacked.insert(stacked.end(), other.begin() + j * n, other.begin() + (j + 1) * n);
    stacked.insert(stacked.end(), table.begin() + j * n, table.begin() + (j + 1) * n);
  }
  a = table;
  a.resize(2 * n * n);
  VB_VMergeTablesDbl(other.data(), n, n, a.data(), n, n, a.data());
  EXPECT_TRUE(bits::equal(a, stacked));

  // A block that is moved by one cell within its array.
  a = table;
  VB_V_DuplicateDbl(a.data(), n * n - 1, a.data() + 1);
  EXPECT_TRUE(bits::equal(std::vector<double>(a.begin() + 1, a.end()),
                          std::vector<double>(table.begin(), table.end() - 1)));
  a = table;
  VB_M_CopyBlock(a.data(), n, n, 1, n, 1, n - 1, a.data() + n);
  EXPECT_TRUE(bits::equal(std::vector<double>(a.begin() + n, a.end()),
                          std::vector<double>(table.begin(), table.end() - n)));
}
