// What stands between a macro host and an entry's body: no exception leaves, and the body computes with the
// default floating-point state whatever the host has set. Internal.
#pragma once

#include <type_traits>

#include "kavoratb1c/marker.h"
#include "platform/exception_state.h"
#include "platform/floating_point.h"
#include "platform/ole.h"

#if defined(_WIN32)
#define KAV_ENTRY
#else
#define KAV_ENTRY __attribute__((visibility("default")))
#endif

namespace kav {

/// What an entry returns when its body did not: the marker for a number, -1 for a status or count, false, a
/// null string.
template <class Result>
Result failureValue() {
  if constexpr (std::is_same_v<Result, double>) {
    return kMissing;
  } else if constexpr (std::is_same_v<Result, int>) {
    return -1;
  } else if constexpr (std::is_same_v<Result, VARIANT_BOOL>) {
    return kFalse;
  } else {
    static_assert(std::is_void_v<Result> || std::is_same_v<Result, BSTR>);
    return Result();
  }
}

/// Runs an entry's body.
template <class Result, class Body>
Result guarded(const Body& body) noexcept {
  const DefaultFloatingPoint state;
  try {
    return body();
  } catch (...) {
  }
  forgetHandledException();
  return failureValue<Result>();
}

}  // namespace kav
