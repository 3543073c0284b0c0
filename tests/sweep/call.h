// A call of any entry, with arguments made from what the catalogue and the reference say of its parameters:
// types, directions, and how many cells each array has.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "manual/calls.h"

namespace sweep {

/// A number or a text that an array holds in one place, or that is passed by itself.
enum class Special { None, Marker, ArrivesMissing, NotANumber, Infinity, Zero, Negative, Empty };

/// What the cells of arrays are, but for special ones.
enum class Cells { Any, General, Binary, Constant, Ascending };

/// What differs from the ordinary arguments of an entry. Parameters are named by their position, 0-based.
struct Variant {
  std::string name;
  int rows = 10;
  int columns = 3;
  bool unequal = false;  ///< further sizes are larger than the first of their kind
  int option = -1;       ///< the option, or integer that is no size, that is given optionValue
  short optionValue = 0;
  int null = -1;  ///< the array that is null
  int special = -1;
  Special cell = Special::None;  ///< what `special` is, or holds in its middle
  bool excluded = false;         ///< flags leave rows out, and some weights are 0.0
  Cells cells = Cells::Any;      ///< Any: square matrices are symmetric and dominated by their diagonal
};

/// Everything that can be told about an entry without calling it.
class Shape {
 public:
  explicit Shape(const CatalogueEntry& entry);

  const CatalogueEntry& entry() const { return *entry_; }
  bool isArray(std::size_t parameter) const { return entry_->parameters[parameter].type.back() == '*'; }

  /// Whether a parameter is a size: the cells of an array depend on it.
  bool isSize(const std::string& name) const { return sizes_.count(name) > 0; }

  /// Whether the reference lets the array be null.
  bool mayBeNull(std::size_t parameter) const { return mayBeNull_[parameter]; }

  /// What the reference says that the array holds.
  const std::string& meaning(std::size_t parameter) const { return meanings_[parameter]; }

  /// The variants worth calling the entry with.
  std::vector<Variant> variants() const;

 private:
  const CatalogueEntry* entry_;
  std::map<std::string, int> sizes_;  ///< how many arrays depend on it
  std::vector<char> mayBeNull_;
  std::vector<std::string> meanings_;
};

class Call {
 public:
  Call(const Shape& shape, const Variant& variant);
  Call(const Call&) = delete;
  ~Call();

  /// Calls the entry.
  void run();

  /// The result and every array that is not only read: their bits, any NaN equal to any other.
  std::uint32_t hash() const;

  /// The result's bytes; a string's characters. What it is when the call fails.
  std::string result() const;
  std::string failure() const;

  /// What an array holds: bytes, or characters and whether the string is a new one.
  std::string contents(std::size_t parameter) const;

  /// What the call did that no entry may do; empty when nothing.
  std::string fault() const;

  /// In the notation of the reference's examples.
  std::string notation() const;

 private:
  struct Array {
    std::size_t count = 0;  ///< cells that the entry is told of
    std::vector<double> numbers;
    std::vector<int> ints;
    std::vector<kav::VARIANT_BOOL> flags;
    std::vector<kav::BSTR> texts;
    std::string before;
  };

  long long valueOf(const std::string& name) const;
  void setScalars();
  void fill(std::size_t parameter);
  double number(std::size_t parameter, std::size_t k) const;
  double cell(std::size_t parameter, std::size_t k) const;
  int integer(const std::string& name, std::size_t k) const;
  bool isOwn(kav::BSTR text) const;

  const Shape& shape_;
  const Variant& variant_;
  std::map<std::string, long long> scalars_;
  std::deque<Array> arrays_;
  std::vector<manual::Actual> arguments_;
  std::vector<kav::BSTR> own_;
  manual::Result result_;
};

}  // namespace sweep
