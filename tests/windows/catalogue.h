// The catalogue of entries as the tests expect to find it in the DLL.
#pragma once

#include <string>
#include <vector>

struct CatalogueParameter {
  std::string name;
  std::string type;       ///< as in C++, "double*"
  std::string direction;  ///< "in", "out" or "in, out"
};

struct CatalogueEntry {
  int ordinal;
  std::string name;
  std::string result;
  std::vector<CatalogueParameter> parameters;
};

inline const std::vector<CatalogueEntry>& catalogue() {
  static const std::vector<CatalogueEntry> entries = {
#include "windows/generated/catalogue.inc"
  };
  return entries;
}
