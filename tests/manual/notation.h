// Reading the notation of the examples.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace manual {

struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// One cell: a number (also a flag) or a text.
struct Cell {
  bool isText = false;
  double number = 0.0;
  double tolerance = 0.0;  ///< half a unit of the last decimal shown, 0.0 without decimals
  std::u16string text = {};
};

struct Expression {
  enum class Kind { Name, Null, Scalar, Array };

  Kind kind = Kind::Scalar;
  std::string name = {};
  std::vector<Cell> cells = {};  ///< column after column
};

struct Statement {
  enum class Kind { Assignment, Comparison, Call };

  int line = 0;  ///< of the text, 1-based
  Kind kind = Kind::Call;
  std::string name = {};  ///< of the variable or the entry
  std::vector<Expression> arguments = {};
  bool hasValue = false;  ///< a call whose result is compared
  Expression value = {};
};

/// The statements of each block ```example. Throws Fault.
std::vector<std::vector<Statement>> readExamples(const std::string& text);

}  // namespace manual
