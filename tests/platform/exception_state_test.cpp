#include "platform/exception_state.h"

#include <gtest/gtest.h>

#include <cxxabi.h>

namespace {

const kav::ExceptionState& stateOfThisThread() {
  return *reinterpret_cast<const kav::ExceptionState*>(abi::__cxa_get_globals());
}

/// Notes what is uncaught while an exception passes.
struct Unwound {
  ~Unwound() { uncaught = stateOfThisThread().uncaughtExceptions; }
  unsigned& uncaught;
};

}  // namespace

// On Windows the library keeps this state in the runtime's place: see docs/internals.md.
TEST(ExceptionState, HasTheLayoutOfTheToolchainsRuntime) {
  const kav::ExceptionState& state = stateOfThisThread();
  unsigned uncaught = 77;
  const void *outer = nullptr, *inner = nullptr;
  EXPECT_TRUE(state.caughtExceptions == nullptr && state.uncaughtExceptions == 0);
  try {
    const Unwound unwound{uncaught};
    throw 1;
  } catch (int) {
    outer = state.caughtExceptions;
    try {
      throw 2;
    } catch (int) {
      inner = state.caughtExceptions;
    }
    EXPECT_EQ(state.caughtExceptions, outer);
    EXPECT_EQ(state.uncaughtExceptions, 0u);
  }
  EXPECT_EQ(uncaught, 1u);
  EXPECT_TRUE(outer != nullptr && inner != nullptr && inner != outer);
  EXPECT_TRUE(state.caughtExceptions == nullptr && state.uncaughtExceptions == 0);
}
