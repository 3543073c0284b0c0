#include "manual/examples.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <map>
#include <sstream>

#include "kavoratb1c/marker.h"
#include "manual/calls.h"
#include "manual/notation.h"

using namespace kav;

namespace manual {

namespace {

using Cells = std::vector<Cell>;

/// Cells behind every array: an example with a wrong shape must not harm the test.
constexpr std::size_t kGuard = 1000;

/// What no entry gives: fills results before a call, and stands behind every array.
template <class T>
T untouched() {
  if constexpr (std::is_same_v<T, double>) {
    return 7.25e77;
  } else if constexpr (std::is_same_v<T, VARIANT_BOOL>) {
    return 77;
  } else {
    return 77777777;
  }
}

BSTR newText(const std::u16string& text) {
  return SysAllocString(reinterpret_cast<const OLECHAR*>(text.c_str()));
}

std::u16string textAt(BSTR text) {
  const auto* characters = reinterpret_cast<const char16_t*>(text);
  return characters == nullptr ? std::u16string()
                               : std::u16string(characters, SysStringByteLen(text) / sizeof(char16_t));
}

/// An array as it is handed to an entry.
class Array {
 public:
  Array(const std::string& type, const Cells& cells) : size_(cells.size()) {
    if (type == "double*") {
      address_ = fill(doubles_, cells);
    } else if (type == "int*") {
      address_ = fill(ints_, cells);
    } else if (type == "VARIANT_BOOL*") {
      address_ = fill(flags_, cells);
    } else {
      for (const Cell& cell : cells) given_.push_back(newText(cell.text));
      texts_ = given_;
      texts_.resize(size_ + kGuard);
      address_ = texts_.data();
    }
    before_ = bytes();
  }
  Array(const Array&) = delete;
  ~Array() {
    for (std::size_t k = 0; k < texts_.size(); ++k) {
      if (k >= given_.size() || texts_[k] != given_[k]) SysFreeString(texts_[k]);
    }
    for (BSTR text : given_) SysFreeString(text);
  }

  Actual address() const { return address_; }

  Cells cells() const {
    Cells result(size_);
    for (std::size_t k = 0; k < size_; ++k) {
      if (!doubles_.empty()) result[k].number = doubles_[k];
      if (!ints_.empty()) result[k].number = ints_[k];
      if (!flags_.empty()) result[k].number = flags_[k];
      if (!texts_.empty()) {
        result[k].isText = true;
        result[k].text = textAt(texts_[k]);
      }
    }
    return result;
  }

  bool wasWritten() const { return bytes() != before_; }

  bool wasOverrun() const {
    return isOverrun(doubles_) || isOverrun(ints_) || isOverrun(flags_) ||
           std::any_of(texts_.begin() + (texts_.empty() ? 0 : end()), texts_.end(),
                       [](BSTR text) { return text != nullptr; });
  }

 private:
  template <class T>
  static T* fill(std::vector<T>& array, const Cells& cells) {
    for (const Cell& cell : cells) array.push_back(static_cast<T>(cell.number));
    array.resize(cells.size() + kGuard, untouched<T>());
    return array.data();
  }

  std::ptrdiff_t end() const { return static_cast<std::ptrdiff_t>(size_); }

  template <class T>
  bool isOverrun(const std::vector<T>& array) const {
    return std::any_of(array.begin() + (array.empty() ? 0 : end()), array.end(),
                       [](T x) { return x != untouched<T>(); });
  }

  std::string bytes() const {
    std::string result;
    const auto append = [&](const auto& array) {
      result.append(reinterpret_cast<const char*>(array.data()), array.size() * sizeof(array[0]));
    };
    append(doubles_);
    append(ints_);
    append(flags_);
    append(texts_);
    return result;
  }

  std::size_t size_;
  std::vector<double> doubles_;
  std::vector<int> ints_;
  std::vector<VARIANT_BOOL> flags_;
  std::vector<BSTR> texts_, given_;
  Actual address_;
  std::string before_;
};

std::string plain(const std::u16string& text) { return std::string(text.begin(), text.end()); }

std::string shown(const Cells& cells) {
  std::ostringstream out;
  out.precision(15);
  for (std::size_t k = 0; k < cells.size(); ++k) {
    out << (k > 0 ? ", " : "");
    if (cells[k].isText) {
      out << '"' << plain(cells[k].text) << '"';
    } else if (isMarker(cells[k].number)) {
      out << "missing";
    } else if (cells[k].number == untouched<double>() || cells[k].number == untouched<int>()) {
      out << "(not written)";
    } else {
      out << cells[k].number;
    }
  }
  return out.str();
}

bool agree(const Cell& written, const Cell& given) {
  if (written.isText != given.isText) return false;
  if (written.isText) return written.text == given.text;
  if (std::isnan(written.number)) return std::isnan(given.number);
  if (written.tolerance == 0.0) return written.number == given.number;
  return std::fabs(written.number - given.number) <= written.tolerance;
}

void compare(const Cells& written, const Cells& given) {
  bool same = written.size() == given.size();
  for (std::size_t k = 0; same && k < written.size(); ++k) same = agree(written[k], given[k]);
  if (!same) throw Fault("column after column, it is " + shown(given));
}

/// The variables of one block, and what follows its present statement.
class Block {
 public:
  explicit Block(const std::vector<Statement>& statements) : statements_(statements) {}

  void run(Outcome& outcome) {
    for (at_ = 0; at_ < statements_.size(); ++at_) {
      const Statement& s = statements_[at_];
      try {
        switch (s.kind) {
          case Statement::Kind::Assignment:
            variables_[s.name] = value(s.value);
            break;
          case Statement::Kind::Comparison:
            compareVariable(s, outcome);
            break;
          case Statement::Kind::Call:
            call(s, outcome);
        }
      } catch (const Fault& fault) {
        outcome.faults.push_back("line " + std::to_string(s.line) + ": " + s.name + ": " + fault.what());
      }
    }
  }

 private:
  Cells value(const Expression& e) const {
    if (e.kind == Expression::Kind::Null) throw Fault("nothing is for arguments");
    if (e.kind != Expression::Kind::Name) return e.cells;
    const auto found = variables_.find(e.name);
    if (found == variables_.end()) throw Fault(e.name + " has no value");
    return found->second;
  }

  void compareVariable(const Statement& s, Outcome& outcome) const {
    const auto writer = writers_.find(s.name);
    if (writer == writers_.end()) throw Fault("no call wrote it");
    compare(value(s.value), variables_.at(s.name));
    outcome.shown.insert(writer->second);
  }

  /// An array that only receives results is as large as what it is compared with later.
  Cells fresh(const std::string& name) const {
    for (std::size_t k = at_ + 1; k < statements_.size(); ++k) {
      const Statement& s = statements_[k];
      if (s.kind != Statement::Kind::Comparison || s.name != name) continue;
      Cells cells = value(s.value);
      for (Cell& cell : cells) cell = Cell{cell.isText, untouched<double>(), 0.0, {}};
      return cells;
    }
    throw Fault(name + " has neither a value nor is it compared below");
  }

  void call(const Statement& s, Outcome& outcome) {
    const CatalogueEntry* found = find(s.name);
    if (found == nullptr) throw Fault("no such entry");
    const CatalogueEntry& entry = *found;
    if (entry.parameters.size() != s.arguments.size()) {
      throw Fault(std::to_string(s.arguments.size()) + " arguments for " +
                  std::to_string(entry.parameters.size()));
    }
    std::deque<Array> arrays;
    std::vector<Actual> actuals;
    std::map<std::size_t, const Array*> passed;
    for (std::size_t k = 0; k < s.arguments.size(); ++k) {
      actuals.push_back(actual(entry.parameters[k], s.arguments[k], arrays));
      if (entry.parameters[k].type.back() == '*' && s.arguments[k].kind != Expression::Kind::Null) {
        passed[k] = &arrays.back();
      }
    }
    const Result result = manual::call(entry, actuals);
    for (const auto& [k, array] : passed) {
      const CatalogueParameter& parameter = entry.parameters[k];
      const bool isWritten = parameter.direction != "in";
      if (array->wasOverrun()) throw Fault("writes beyond the end of " + parameter.name);
      if (!isWritten && array->wasWritten()) throw Fault("writes to " + parameter.name);
      if (!isWritten || s.arguments[k].kind != Expression::Kind::Name) continue;
      variables_[s.arguments[k].name] = array->cells();
      writers_[s.arguments[k].name] = s.name;
    }
    const Cells given = resultCells(result);
    if (!s.hasValue) return;
    compare(value(s.value), given);
    outcome.shown.insert(s.name);
  }

  Actual actual(const CatalogueParameter& parameter, const Expression& e, std::deque<Array>& arrays) const {
    const bool isArray = parameter.type.back() == '*';
    if (e.kind == Expression::Kind::Null) return null(parameter.type);
    const bool isFresh =
        e.kind == Expression::Kind::Name && parameter.direction != "in" && variables_.count(e.name) == 0;
    const Cells cells = isFresh ? fresh(e.name) : value(e);
    if (isArray || parameter.type == "BSTR") {
      arrays.emplace_back(isArray ? parameter.type : "BSTR*", cells);
      return isArray ? arrays.back().address() : *std::get<BSTR*>(arrays.back().address());
    }
    if (cells.size() != 1 || cells[0].isText) throw Fault(parameter.name + " is one number");
    if (parameter.type == "double") return cells[0].number;
    if (parameter.type == "int") return static_cast<int>(cells[0].number);
    return static_cast<VARIANT_BOOL>(cells[0].number);
  }

  static Actual null(const std::string& type) {
    if (type == "double*") return static_cast<double*>(nullptr);
    if (type == "int*") return static_cast<int*>(nullptr);
    if (type == "VARIANT_BOOL*") return static_cast<VARIANT_BOOL*>(nullptr);
    if (type == "BSTR*") return static_cast<BSTR*>(nullptr);
    if (type == "BSTR") return static_cast<BSTR>(nullptr);
    throw Fault("nothing is for arrays and texts");
  }

  static Cells resultCells(const Result& result) {
    Cell cell;
    if (const auto* number = std::get_if<double>(&result)) cell.number = *number;
    if (const auto* integer = std::get_if<int>(&result)) cell.number = *integer;
    if (const auto* flag = std::get_if<VARIANT_BOOL>(&result)) cell.number = *flag;
    if (const auto* text = std::get_if<BSTR>(&result)) {
      cell.isText = true;
      cell.text = textAt(*text);
      SysFreeString(*text);
    }
    return std::holds_alternative<std::monostate>(result) ? Cells() : Cells{cell};
  }

  const std::vector<Statement>& statements_;
  std::size_t at_ = 0;
  std::map<std::string, Cells> variables_;
  std::map<std::string, std::string> writers_;
};

}  // namespace

Outcome runExamples(const std::string& text) {
  Outcome outcome;
  try {
    for (const std::vector<Statement>& statements : readExamples(text)) Block(statements).run(outcome);
  } catch (const Fault& fault) {
    outcome.faults.emplace_back(fault.what());
  }
  return outcome;
}

}  // namespace manual
