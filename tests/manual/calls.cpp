#include "manual/calls.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "manual/generated/prototypes.h"

namespace manual {

namespace {

using Function = void (*)();
using Caller = Result (*)(Function, const Actual*);

/// Calls a function of a known type; there are fewer types than entries.
template <class R, class... P>
struct Typed {
  template <std::size_t... k>
  static Result callWith(Function function, const Actual* arguments, std::index_sequence<k...>) {
    const auto entry = reinterpret_cast<R(KAV_MACRO_CALL*)(P...)>(function);
    if constexpr (std::is_void_v<R>) {
      entry(std::get<P>(arguments[k])...);
      return {};
    } else {
      return entry(std::get<P>(arguments[k])...);
    }
  }
  static Result call(Function function, const Actual* arguments) {
    return callWith(function, arguments, std::index_sequence_for<P...>());
  }
};

struct Entry {
  template <class R, class... P>
  Entry(R(KAV_MACRO_CALL* entry)(P...))
      : function(reinterpret_cast<Function>(entry)), caller(&Typed<R, P...>::call) {}

  Function function;
  Caller caller;
};

/// In the order of the catalogue.
const Entry kEntries[] = {
#include "manual/generated/entries.inc"
};

}  // namespace

const CatalogueEntry* find(const std::string& name) {
  const auto found = std::find_if(catalogue().begin(), catalogue().end(),
                                  [&](const CatalogueEntry& entry) { return entry.name == name; });
  return found == catalogue().end() ? nullptr : &*found;
}

Result call(const CatalogueEntry& entry, const std::vector<Actual>& arguments) {
  const Entry& exported = kEntries[entry.ordinal - 1];
  return exported.caller(exported.function, arguments.data());
}

}  // namespace manual
