#include "coefficients_table.h"

#include <cstdio>

void printCoefficients(const Coefficients& c) {
  std::printf("%-10s %16s %16s", "column", "estimate", "standard error");
  if (!c.tolerances.empty()) std::printf(" %10s %12s", "tolerance", "inflation");
  if (!c.certified.empty()) std::printf(" %18s %18s", "certified", "its error");
  std::printf("\n");
  std::string leftOut;
  for (std::size_t k = 0; k <= c.names.size(); ++k) {
    const bool isColumn = k < c.names.size();
    if (isColumn && c.estimates[k] == 0.0 && c.errors[k] == 0.0) {
      leftOut += " " + c.names[k];
      continue;
    }
    std::printf("%-10s %16.9g %16.9g", isColumn ? c.names[k].c_str() : "intercept", c.estimates[k],
                c.errors[k]);
    if (isColumn && !c.tolerances.empty()) std::printf(" %10.6f %12.4f", c.tolerances[k], c.inflations[k]);
    if (!isColumn && !c.tolerances.empty()) std::printf(" %10s %12s", "", "");
    if (!c.certified.empty()) std::printf(" %18.12g %18.12g", c.certified[k], c.certifiedErrors[k]);
    std::printf("\n");
  }
  std::printf("left out:%s\n", leftOut.empty() ? " none" : leftOut.c_str());
}
