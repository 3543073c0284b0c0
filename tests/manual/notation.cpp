#include "manual/notation.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <sstream>

#include "kavoratb1c/marker.h"

using namespace kav;

namespace manual {

namespace {

const std::map<std::string, double> kConstants = {{"missing", kMissing},
                                                  {"NaN", std::numeric_limits<double>::quiet_NaN()},
                                                  {"Infinity", std::numeric_limits<double>::infinity()},
                                                  {"True", kTrue},
                                                  {"False", kFalse}};

class Reader {
 public:
  explicit Reader(const std::string& text) : text_(text) {}

  Statement statement() {
    Statement result;
    result.name = word();
    if (accept("(")) {
      while (!accept(")")) {
        result.arguments.push_back(expression());
        if (peek() != ')') expect(",");
      }
      result.kind = Statement::Kind::Call;
      result.hasValue = accept("->");
      if (result.hasValue) result.value = expression();
    } else {
      result.kind = accept("->") ? Statement::Kind::Comparison : Statement::Kind::Assignment;
      if (result.kind == Statement::Kind::Assignment) expect("=");
      result.value = expression();
    }
    if (peek() != '\0') throw Fault("cannot read '" + text_.substr(at_) + "'");
    return result;
  }

 private:
  char peek() {
    while (at_ < text_.size() && std::isspace(static_cast<unsigned char>(text_[at_]))) ++at_;
    return at_ < text_.size() ? text_[at_] : '\0';
  }

  bool accept(const std::string& token) {
    peek();
    if (text_.compare(at_, token.size(), token) != 0) return false;
    at_ += token.size();
    return true;
  }

  void expect(const std::string& token) {
    if (!accept(token)) throw Fault("expected '" + token + "' before '" + text_.substr(at_) + "'");
  }

  std::string word() {
    peek();
    const std::size_t begin = at_;
    while (at_ < text_.size() && (std::isalnum(static_cast<unsigned char>(text_[at_])) || text_[at_] == '_'))
      ++at_;
    if (begin == at_) throw Fault("expected a name or a number before '" + text_.substr(at_) + "'");
    return text_.substr(begin, at_ - begin);
  }

  /// Whether a name or a constant follows.
  bool isWordNext() { return std::isalpha(static_cast<unsigned char>(peek())) != 0; }

  Expression expression() {
    if (peek() == '{') return {Expression::Kind::Array, {}, table()};
    if (!isWordNext()) return {Expression::Kind::Scalar, {}, {cell()}};
    const std::string name = word();
    if (name == "nothing") return {Expression::Kind::Null};
    const auto constant = kConstants.find(name);
    if (constant == kConstants.end()) return {Expression::Kind::Name, name};
    return {Expression::Kind::Scalar, {}, {{false, constant->second}}};
  }

  std::vector<Cell> table() {
    expect("{");
    std::vector<std::vector<Cell>> rows(1);
    while (!accept("}")) {
      rows.back().push_back(cell());
      if (accept(";")) {
        rows.emplace_back();
      } else if (peek() != '}') {
        expect(",");
      }
    }
    std::vector<Cell> cells;
    for (std::size_t j = 0; j < rows[0].size(); ++j) {
      for (const std::vector<Cell>& row : rows) {
        if (row.size() != rows[0].size()) throw Fault("rows of different lengths");
        cells.push_back(row[j]);
      }
    }
    return cells;
  }

  Cell cell() {
    if (accept("\"")) return text();
    if (!isWordNext()) return number();
    const std::string name = word();
    const auto constant = kConstants.find(name);
    if (constant == kConstants.end()) throw Fault("no number: " + name);
    return {false, constant->second};
  }

  Cell text() {
    const std::size_t begin = at_, end = text_.find('"', at_);
    if (end == std::string::npos) throw Fault("a text without end");
    at_ = end + 1;
    const std::string characters = text_.substr(begin, end - begin);
    return {true, 0.0, 0.0, std::u16string(characters.begin(), characters.end())};
  }

  /// With half a unit of the last decimal as its tolerance.
  Cell number() {
    peek();
    const char* const begin = text_.c_str() + at_;
    char* end = nullptr;
    Cell result;
    result.number = std::strtod(begin, &end);
    const std::string digits(begin, static_cast<const char*>(end));
    if (digits.empty()) throw Fault("no number before '" + text_.substr(at_) + "'");
    at_ += digits.size();
    const std::size_t exponentAt = std::min(digits.find_first_of("eE"), digits.size());
    const std::size_t point = std::min(digits.find('.'), exponentAt);
    if (point == digits.size()) return result;
    const auto decimals = static_cast<int>(std::max(exponentAt, point + 1) - point - 1);
    const int exponent = exponentAt < digits.size() ? std::stoi(digits.substr(exponentAt + 1)) : 0;
    result.tolerance = 0.5000001 * std::pow(10.0, exponent - decimals);
    return result;
  }

  const std::string& text_;
  std::size_t at_ = 0;
};

/// A statement goes on while brackets are open.
bool isComplete(const std::string& text) {
  int open = 0;
  bool inText = false;
  for (char c : text) {
    if (c == '"') inText = !inText;
    if (!inText) open += (c == '(' || c == '{') - (c == ')' || c == '}');
  }
  return open == 0;
}

}  // namespace

std::vector<std::vector<Statement>> readExamples(const std::string& text) {
  std::vector<std::vector<Statement>> blocks;
  std::istringstream lines(text);
  std::string line, pending;
  bool inside = false;
  int first = 0;
  for (int number = 1; std::getline(lines, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!inside) {
      inside = line == "```example";
      if (inside) blocks.emplace_back();
      continue;
    }
    if (line == "```") {
      if (!pending.empty()) throw Fault("line " + std::to_string(first) + ": an open bracket");
      inside = false;
      continue;
    }
    if (pending.empty()) {
      if (line.find_first_not_of(' ') == std::string::npos) continue;
      first = number;
    }
    pending += line + " ";
    if (!isComplete(pending)) continue;
    try {
      blocks.back().push_back(Reader(pending).statement());
    } catch (const Fault& fault) {
      throw Fault("line " + std::to_string(first) + ": " + fault.what());
    }
    blocks.back().back().line = first;
    pending.clear();
  }
  if (inside) throw Fault("the last example has no end");
  return blocks;
}

}  // namespace manual
