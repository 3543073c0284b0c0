// The worked examples of the manual, run: the notation is told at the end of docs/reference/index.md.
#pragma once

#include <set>
#include <string>
#include <vector>

namespace manual {

/// What the examples of one page showed.
struct Outcome {
  std::vector<std::string> faults;  ///< line, what is written there, what the library gives
  std::set<std::string> shown;      ///< entries of which a result was compared
};

/// Runs the blocks ```example of a text, each with variables of its own.
Outcome runExamples(const std::string& text);

}  // namespace manual
