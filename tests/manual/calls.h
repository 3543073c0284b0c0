// Calling any entry by its name with arguments found at run time.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "platform/ole.h"
#include "support/catalogue.h"

using namespace kav;

namespace manual {

using Actual = std::variant<double, int, VARIANT_BOOL, BSTR, double*, int*, VARIANT_BOOL*, BSTR*>;
using Result = std::variant<std::monostate, double, int, VARIANT_BOOL, BSTR>;

/// Null when there is none of that name.
const CatalogueEntry* find(const std::string& name);

/// The arguments must be of the declared types.
Result call(const CatalogueEntry& entry, const std::vector<Actual>& arguments);

}  // namespace manual
