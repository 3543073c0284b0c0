// A call of any entry, with arguments that fit its declared types: tests that hold for every entry need no
// list of their own.
#pragma once

#include <deque>
#include <string>

#include "manual/arguments.h"

/// One call: sizes are 3, options on, numbers differ from cell to cell, arrays have room for 3 x 3 x 3 cells.
class AnyCall {
 public:
  explicit AnyCall(const CatalogueEntry& entry);

  /// Calls the entry.
  ///
  /// @param nullParameter  the parameter, 0-based, that null is passed for; -1 for none
  /// @return the result's bits; a string's characters
  std::string run(int nullParameter = -1);

  /// What the array of a parameter holds: bytes, or characters and where a slot is new; empty for others.
  std::string contents(std::size_t parameter) const { return arguments_[parameter].contents(); }

  bool isArray(std::size_t parameter) const { return entry_.parameters[parameter].type.back() == '*'; }

  /// As run() gives it for a call that fails.
  std::string failure() const;

 private:
  static constexpr std::size_t kCells = 27;

  const CatalogueEntry& entry_;
  std::deque<manual::Argument> arguments_;
};
