#include "support/catalogue.h"

#include <sstream>

namespace {

/// Texts alone: as objects the entries would take a compiler minutes.
struct Row {
  int ordinal;
  const char *name, *result;
  const char* parameters;  ///< "[in] double* iVector;[in] int n;"
};

constexpr Row kRows[] = {
#include "support/generated/catalogue.inc"
};

std::vector<CatalogueParameter> read(const std::string& text) {
  std::vector<CatalogueParameter> parameters;
  std::istringstream parts(text);
  std::string part;
  while (std::getline(parts, part, ';')) {
    const std::size_t close = part.find(']'), name = part.rfind(' ') + 1;
    parameters.push_back(
        {part.substr(name), part.substr(close + 2, name - close - 3), part.substr(1, close - 1)});
  }
  return parameters;
}

}  // namespace

const std::vector<CatalogueEntry>& catalogue() {
  static const std::vector<CatalogueEntry> entries = [] {
    std::vector<CatalogueEntry> all;
    for (const Row& row : kRows) all.push_back({row.ordinal, row.name, row.result, read(row.parameters)});
    return all;
  }();
  return entries;
}
