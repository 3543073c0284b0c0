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

const std::vector<CatalogueEntry>& catalogue();
