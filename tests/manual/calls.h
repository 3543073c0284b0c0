// Calling any entry by its name with arguments found at run time.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "platform/ole.h"

#if defined(_WIN32) && defined(__i386__)
#define KAV_MACRO_CALL __stdcall
#else
#define KAV_MACRO_CALL
#endif

namespace manual {

using Actual = std::variant<double, int, VARIANT_BOOL, BSTR, double*, int*, VARIANT_BOOL*, BSTR*>;
using Result = std::variant<std::monostate, double, int, VARIANT_BOOL, BSTR>;

struct Parameter {
  std::string name;
  std::string type;  ///< "double", "int", "VARIANT_BOOL", "BSTR", with "*" for an array
  bool written;
};

struct Entry {
  std::vector<Parameter> parameters;
  std::function<Result(const std::vector<Actual>&)> call;
};

template <class R, class... P, std::size_t... k>
Result callWith(R(KAV_MACRO_CALL* entry)(P...), const std::vector<Actual>& actuals,
                std::index_sequence<k...>) {
  if constexpr (std::is_void_v<R>) {
    entry(std::get<P>(actuals[k])...);
    return {};
  } else {
    return entry(std::get<P>(actuals[k])...);
  }
}

template <class R, class... P>
Entry entryOf(R(KAV_MACRO_CALL* entry)(P...), std::vector<Parameter> parameters) {
  return {std::move(parameters), [entry](const std::vector<Actual>& actuals) {
            return callWith(entry, actuals, std::index_sequence_for<P...>());
          }};
}

/// Every entry.
const std::map<std::string, Entry>& entries();

}  // namespace manual
