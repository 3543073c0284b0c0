#include "support/corpus.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

#include "stats/vector_sums.h"
#include "tables/copies.h"

namespace {

using Hashes = std::map<std::string, std::uint64_t>;

constexpr int kRows = 997;
constexpr int kColumns = 7;

Hashes hashesOfCorpus() {
  const std::vector<double> cells = corpusCells(1, kRows * kColumns), weightCells = corpusCells(2, kRows);
  const matrix table(kRows, kColumns, cells.data(), false, 0, 0),
      kept(kRows, kColumns, cells.data(), true, 0, 0);
  const matrix weights(kRows, 1, weightCells.data(), false, 0, 0);
  std::vector<short> exclude(kRows);
  Random random(3);
  for (short& flag : exclude) flag = static_cast<short>(random.below(5) == 0 ? -1 : 0);

  Hashes hashes;
  hashes["construction"] = BitHash().add(table).add(kept).value();
  BitHash sums;
  for (int n = 0; n <= kRows + 3; n += 50) {
    std::vector<short> flags = exclude;
    flags.resize(kRows + 3);
    sums.add(V_Sum(&table, n, flags.data(), &weights)).add(V_Sum2(&kept, n));
    sums.add(V_Mean(&table, n, flags.data(), &weights)).add(V_Mean(&kept, n, flags.data(), &weights));
  }
  hashes["sums"] = sums.value();
  matrix transposed(kColumns, kRows), stacked(kRows * kColumns, 1);
  table.transposeTo(&transposed);
  table.vectorizeTo(&stacked);
  matrix* reversed = nullptr;
  V_Reverse(&kept, kRows * kColumns, reversed);
  hashes["copies"] = BitHash().add(transposed).add(stacked).add(*reversed).value();
  delete reversed;
  return hashes;
}

const char* const kRecorded = KAV_TEST_DATA "/corpus_hashes.txt";

Hashes recordedHashes() {
  Hashes hashes;
  std::ifstream file(kRecorded);
  std::string topic;
  std::uint64_t hash;
  while (file >> topic >> std::hex >> hash) hashes[topic] = hash;
  return hashes;
}

void record(const Hashes& hashes) {
  std::ofstream file(kRecorded, std::ios::binary);
  for (const auto& [topic, hash] : hashes) file << topic << ' ' << std::hex << hash << '\n';
}

}  // namespace

// The hashes were recorded on one build and hold for all. A change that is meant to change bits records them
// anew: KAV_RECORD_CORPUS=1 native_tests --gtest_filter=Corpus.*
TEST(Corpus, GivesTheSameBitsOnEveryBuild) {
  const Hashes hashes = hashesOfCorpus();
  if (std::getenv("KAV_RECORD_CORPUS") != nullptr) record(hashes);
  EXPECT_EQ(hashes, recordedHashes());
}

TEST(Corpus, HashSeesEveryBit) {
  EXPECT_NE(BitHash().add(0.0).value(), BitHash().add(-0.0).value());
  EXPECT_NE(BitHash().add(1.0).add(2.0).value(), BitHash().add(2.0).add(1.0).value());
  EXPECT_EQ(BitHash().add(NAN).value(), BitHash().add(-NAN).value());
}
