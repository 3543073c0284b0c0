// Hosts that have changed the floating-point control state get the same bits, and their state back.

#include <gtest/gtest.h>

#include <xmmintrin.h>
#include <cmath>

#include "windows/any_entry.h"

namespace {

struct ControlState {
  unsigned sse;
  unsigned short x87;

  static ControlState current() {
    ControlState state{_mm_getcsr(), 0};
    asm volatile("fnstcw %0" : "=m"(state.x87));
    state.sse &= ~0x3Fu;
    return state;
  }

  void set() const {
    asm volatile("fnclex\n\tfldcw %0" : : "m"(x87));
    _mm_setcsr(sse);
  }

  bool operator==(const ControlState&) const = default;
};

constexpr ControlState kDefault{0x1F80, 0x037F};

struct Host {
  const char* name;
  ControlState state;
};

constexpr Host kHosts[] = {
    {"traps unmasked", {0x0000, 0x0340}},
    {"denormals flushed", {0x9FC0, 0x037F}},
    {"rounding toward zero, x87 in single precision", {0x7F80, 0x0C7F}},
    {"x87 in double precision", {0x1F80, 0x027F}},
};

/// What a call gives, and the control state after it.
struct Outcome {
  std::string result;
  std::string arrays;
  ControlState after;
};

Outcome callAs(const ControlState& host, const macro::Procedure& procedure) {
  const AnyArguments arguments(procedure, Extent::Large);
  // Nothing that computes may stand between the two changes of state: the tests' own code is compiled for the
  // default.
  host.set();
  const VARIANT result = dll().call(procedure, arguments.list());
  const ControlState after = ControlState::current();
  kDefault.set();
  return {resultText(procedure, result), arguments.arrayText(), after};
}

}  // namespace

TEST(FloatingPoint, EveryEntryGivesTheSameBitsToEveryHost) {
  ASSERT_EQ(ControlState::current(), kDefault);
  for (const macro::Procedure& procedure : entries()) {
    const Outcome expected = callAs(kDefault, procedure);
    for (const Host& host : kHosts) {
      SCOPED_TRACE(plain(procedure.name) + ", " + host.name);
      const Outcome outcome = callAs(host.state, procedure);
      EXPECT_EQ(outcome.result, expected.result);
      EXPECT_EQ(outcome.arrays, expected.arrays);
      EXPECT_EQ(outcome.after, host.state);
    }
  }
}

TEST(FloatingPoint, InvalidOperationsDoNotTrapInTheHost) {
  std::vector<double> cells = {1.5}, weights = {0.0};
  std::vector<VARIANT_BOOL> flags = {VARIANT_FALSE};
  const std::vector<macro::Argument> noUsableRow = {cells, 1, flags, weights};
  ControlState{0x0000, 0x0340}.set();
  const VARIANT mean = dll().call(L"VB_V_Mean", noUsableRow);
  kDefault.set();
  EXPECT_TRUE(std::isnan(mean.dblVal));
}

TEST(FloatingPoint, DenormalsCountForHostsThatFlushThem) {
  std::vector<double> cells = {4.94065645841246544e-324, 0.0};
  const std::vector<macro::Argument> arguments = {cells, 2};
  ControlState{0x9FC0, 0x037F}.set();
  const VARIANT sum = dll().call(L"VB_V_Sum2Dbl", arguments);
  kDefault.set();
  EXPECT_EQ(sum.dblVal, cells[0]);
}
