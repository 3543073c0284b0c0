// Every entry, called in every variant that the catalogue and the reference suggest.

#include <gtest/gtest.h>

#include <xmmintrin.h>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "sweep/call.h"

namespace {

using sweep::Call;
using sweep::Shape;
using sweep::Variant;

const char* const kRecorded = KAV_TEST_DATA "/sweep_hashes.txt";

/// Hashes by entry, one for each variant.
using Hashes = std::map<std::string, std::vector<std::uint32_t>>;

Hashes recordedHashes() {
  Hashes hashes;
  std::ifstream file(kRecorded);
  for (std::string line, entry; std::getline(file, line);) {
    std::istringstream words(line);
    words >> entry >> std::hex;
    for (std::uint32_t hash; words >> hash;) hashes[entry].push_back(hash);
  }
  return hashes;
}

void record(const Hashes& hashes) {
  std::ofstream file(kRecorded, std::ios::binary);
  for (const auto& [entry, variants] : hashes) {
    file << entry << std::hex;
    for (const std::uint32_t hash : variants) file << ' ' << hash;
    file << '\n';
  }
}

/// Rounding upward, denormals flushed, all traps unmasked, x87 in single precision: what a host may have set.
class HostileState {
 public:
  HostileState() : sse_(_mm_getcsr()) {
    asm volatile("fnstcw %0" : "=m"(x87_));
    const unsigned short x87 = 0x0B40;
    // Exceptions recorded before are none of the library's.
    asm volatile("fnclex\n\tfldcw %0" : : "m"(x87));
    _mm_setcsr(kSse);
  }
  HostileState(const HostileState&) = delete;
  ~HostileState() {
    _mm_setcsr(sse_);
    asm volatile("fninit\n\tfldcw %0" : : "m"(x87_));
  }

  /// Whether it is still as it was set, but for what has been recorded.
  static bool stands() {
    unsigned short x87 = 0;
    asm volatile("fnstcw %0" : "=m"(x87));
    return (_mm_getcsr() & ~kStatus) == kSse && x87 == 0x0B40;
  }

 private:
  static constexpr unsigned kSse = 0x8000 | 0x4000 | 0x0040;
  static constexpr unsigned kStatus = 0x3F;

  unsigned sse_;
  unsigned short x87_ = 0;
};

}  // namespace

// Hashes were recorded on one build and hold for all. A change that is meant to change results records them
// anew: KAV_RECORD_SWEEP=1 native_tests --gtest_filter=Sweep.*
TEST(Sweep, EveryEntryGivesTheRecordedBitsAndTouchesNothingElse) {
  const bool recording = std::getenv("KAV_RECORD_SWEEP") != nullptr;
  const Hashes recorded = recording ? Hashes() : recordedHashes();
  Hashes hashes;
  for (const CatalogueEntry& entry : catalogue()) {
    const Shape shape(entry);
    const std::vector<Variant> variants = shape.variants();
    const auto expected = recorded.find(entry.name);
    if (!recording) {
      ASSERT_TRUE(expected != recorded.end() && expected->second.size() == variants.size()) << entry.name;
    }
    for (std::size_t v = 0; v < variants.size(); ++v) {
      Call call(shape, variants[v]), hosted(shape, variants[v]);
      call.run();
      bool stands;
      {
        const HostileState state;
        hosted.run();
        stands = HostileState::stands();
      }
      hashes[entry.name].push_back(call.hash());
      std::string fault = call.fault();
      if (!stands) fault += " The host's floating-point state has changed.";
      if (hosted.hash() != call.hash()) fault += " Under another floating-point state other bits come out.";
      if (!recording && call.hash() != expected->second[v]) fault += " Other bits than recorded.";
      EXPECT_EQ(fault, "") << entry.name << ", " << variants[v].name << ":\n" << call.notation();
    }
  }
  if (recording) record(hashes);
}

// A result of one cell that is null is not written, and the others are as they would be; null for any other
// array that the reference does not let be null fails the call.
TEST(Sweep, OnlyTheArraysThatMayBeNullMay) {
  int single = 0, required = 0;
  for (const CatalogueEntry& entry : catalogue()) {
    const Shape shape(entry);
    const Variant ordinary;
    Call whole(shape, ordinary);
    const Call untouched(shape, ordinary);
    whole.run();
    for (std::size_t k = 0; k < entry.parameters.size(); ++k) {
      const CatalogueParameter& p = entry.parameters[k];
      const bool isSingle = p.direction == "out" && shape.meaning(k).find("one cell") != std::string::npos;
      SCOPED_TRACE(entry.name + ", " + p.name);
      EXPECT_TRUE(!isSingle || shape.mayBeNull(k));
      // Workers have answers of their own to row flags that are null.
      const bool areRowFlags = p.type == "VARIANT_BOOL*" && p.direction == "in";
      if (!shape.isArray(k) || areRowFlags || (shape.mayBeNull(k) && !isSingle)) continue;
      if (p.direction != "in" && whole.contents(k) == untouched.contents(k)) continue;
      Variant null;
      null.null = static_cast<int>(k);
      Call call(shape, null);
      call.run();
      EXPECT_EQ(call.result(), isSingle ? whole.result() : call.failure());
      for (std::size_t other = 0; other < entry.parameters.size(); ++other) {
        const Call& expected = isSingle && other != k ? whole : untouched;
        EXPECT_EQ(call.contents(other), expected.contents(other)) << entry.parameters[other].name;
      }
      ++(isSingle ? single : required);
    }
  }
  EXPECT_GE(single, 38);
  EXPECT_GT(required, 400);
}
