// Arguments of entries, made from cells and looked at again after a call.
#pragma once

#include <string>
#include <vector>

#include "manual/calls.h"
#include "manual/notation.h"

namespace manual {

using Cells = std::vector<Cell>;

/// What no entry gives: fills results before a call, and stands behind every array.
template <class T>
constexpr T kUntouched = std::is_same_v<T, double> ? T(7.25e77)
                         : std::is_same_v<T, int>  ? T(77777777)
                                                   : T(77);

/// A number, a text or an array, as it is handed to an entry.
class Argument {
 public:
  /// @param type  as in C++, "double*"
  Argument(const std::string& type, const Cells& cells);
  Argument(const Argument&) = delete;
  ~Argument();

  Actual actual() const { return actual_; }

  Cells cells() const;

  /// Bytes of numbers, characters of texts and whether they are new.
  std::string contents() const;

  bool wasWritten() const { return contents() != before_; }

  /// Whether cells behind an array were written.
  bool wasOverrun() const;

 private:
  std::size_t size_;
  std::vector<double> doubles_;
  std::vector<int> ints_;
  std::vector<VARIANT_BOOL> flags_;
  std::vector<BSTR> texts_, given_;
  Actual actual_;
  std::string before_;
};

/// Null for an array or a text. Throws Fault for a number.
Actual nullOf(const std::string& type);

std::u16string textAt(BSTR text);

}  // namespace manual
