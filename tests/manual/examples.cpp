#include "manual/examples.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <map>
#include <sstream>

#include "kavoratb1c/marker.h"
#include "manual/arguments.h"

using namespace kav;

namespace manual {

namespace {

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
    } else if (cells[k].number == kUntouched<double> || cells[k].number == kUntouched<int>) {
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
      for (Cell& cell : cells) cell = Cell{cell.isText, kUntouched<double>, 0.0, {}};
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
    std::deque<Argument> passed;
    std::vector<Actual> actuals;
    std::map<std::size_t, const Argument*> arrays;
    for (std::size_t k = 0; k < s.arguments.size(); ++k) {
      const std::string& type = entry.parameters[k].type;
      if (s.arguments[k].kind == Expression::Kind::Null) {
        actuals.push_back(nullOf(type));
        continue;
      }
      passed.emplace_back(type, cellsFor(entry.parameters[k], s.arguments[k]));
      actuals.push_back(passed.back().actual());
      if (type.back() == '*') arrays[k] = &passed.back();
    }
    const Result result = manual::call(entry, actuals);
    for (const auto& [k, array] : arrays) {
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

  Cells cellsFor(const CatalogueParameter& parameter, const Expression& e) const {
    const bool isFresh =
        e.kind == Expression::Kind::Name && parameter.direction != "in" && variables_.count(e.name) == 0;
    const Cells cells = isFresh ? fresh(e.name) : value(e);
    const bool isText = parameter.type == "BSTR", isNumber = !isText && parameter.type.back() != '*';
    if (isNumber && (cells.size() != 1 || cells[0].isText)) throw Fault(parameter.name + " is one number");
    return cells;
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
