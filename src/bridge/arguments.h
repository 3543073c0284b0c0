// Adaptors between the plain arrays of a macro and the containers of a worker. They live as long as one call
// and convert, nothing else. Internal.
//
// On the way in a required array that is null although it should have cells ends the call with the entry's
// failure value; an Optional one becomes a null container. On the way out nothing is written until the worker
// has returned and everything that can still fail has been done: store() first lets every result reserve()
// what it needs, then write(). A worker that cannot fail once it writes may work InPlaceUnlessRead. Row flags
// are handed to the worker as they are and need no adaptor.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>

#include "core/addressing.h"
#include "core/local_matrix.h"
#include "kavoratb1c/Smatrix.h"
#include "kavoratb1c/matrix.h"
#include "platform/ole_strings.h"

namespace kav::bridge {

/// How the doubles of an input array become cells.
enum class Cells {
  FlagMissing,  ///< missing ones flagged, their value 0.0
  KeepAll       ///< as they stand, markers included
};

/// A null array where there should be cells. Never leaves the guard.
class NullArray : public std::invalid_argument {
 public:
  NullArray() : std::invalid_argument("null array") {}
};

template <class Element>
Element* required(Element* array, int n, int p) {
  if (array == nullptr && addressing::cellCount(n, p) > 0) throw NullArray();
  return array;
}

/// One column, 1-based, of a macro's table of n rows.
template <class Element>
Element* columnOf(Element* array, int n, int column) {
  return array == nullptr ? nullptr : array + static_cast<std::ptrdiff_t>(std::max(n, 0)) * (column - 1);
}

/// A table of doubles, read only.
class InTable {
 public:
  InTable(const double* array, int n, int p, Cells cells = Cells::FlagMissing)
      : table_(n, p, required(array, n, p), cells == Cells::KeepAll) {}

  operator const matrix*() const { return &table_; }

  /// Whether the worker reads any of the given cells of a macro's array.
  bool reads(const double* array, std::int64_t cells) const {
    const std::less<> before;
    return before(array, table_.values + addressing::cellCount(table_)) &&
           before(table_.values, array + cells);
  }

 private:
  LocalMatrix table_;
};

/// Lets a worker write to the macro's array itself, unless it reads one of these operands from there. For
/// workers that do nothing that can fail once they write to their only result, of which they write every
/// cell, or rewrite some: of a table that is no more work than a copy, fresh memory and the copy would be
/// most of the cost.
class InPlaceUnlessRead {
 public:
  constexpr InPlaceUnlessRead() : operands_{nullptr, nullptr} {}
  explicit InPlaceUnlessRead(const InTable& a) : operands_{&a, nullptr} {}
  InPlaceUnlessRead(const InTable& a, const InTable& b) : operands_{&a, &b} {}

  bool readFrom(const double* array, std::int64_t cells) const {
    return std::any_of(operands_, operands_ + 2,
                       [=](const InTable* a) { return a != nullptr && a->reads(array, cells); });
  }

 private:
  const InTable* operands_[2];
};

/// A vector of doubles, read only.
class InVector : public InTable {
 public:
  InVector(const double* array, int n, Cells cells = Cells::FlagMissing) : InTable(array, n, 1, cells) {}
};

/// A vector of doubles that the macro may leave out; the worker then sees a null container.
class OptionalVector {
 public:
  OptionalVector(const double* array, int n, Cells cells = Cells::FlagMissing) {
    if (array != nullptr) vector_.emplace(array, n, cells);
  }

  operator const matrix*() const { return vector_ ? static_cast<const matrix*>(*vector_) : nullptr; }

 private:
  std::optional<InVector> vector_;
};

/// A table of integers or of flags that is data, read only; never a missing cell.
template <class Element>
class InIntegers {
 public:
  InIntegers(const Element* array, int n, int p = 1) : table_(n, p, required(array, n, p)) {}

  operator const matrix*() const { return &table_; }

 private:
  LocalMatrix table_;
};

using InInts = InIntegers<int>;
using InFlags = InIntegers<VARIANT_BOOL>;

/// OLE strings as Smatrix takes them.
inline const unsigned short* const* addressOfCharacters(const BSTR* array) {
  return reinterpret_cast<const unsigned short* const*>(array);
}

/// A table of strings, read only.
class InText {
 public:
  InText(BSTR* array, int n, int p = 1) : table_(n, p, addressOfCharacters(required(array, n, p)), 0, 0) {}

  operator const Smatrix*() const { return &table_; }

 private:
  Smatrix table_;
};

/// A result that goes to an array of doubles (flagged cells as the marker), integers (truncated) or flags (-1
/// for anything but 0.0). What goes back is the container that the worker leaves behind, also when it has put
/// another one in place of the one it was given.
template <class Element>
class OutArray {
 public:
  /// For results whose shape the worker finds: it sees a null container.
  explicit OutArray(Element* array) : array_(array) {}

  /// The worker sees a container of that shape.
  OutArray(Element* array, int n, int p) : array_(array), given_(std::in_place, n, p), result_(&*given_) {}

  /// The same; it may be the array itself.
  OutArray(Element* array, int n, int p, const InPlaceUnlessRead& operands) : array_(array) {
    if (operands.readFrom(array, addressing::cellCount(n, p))) {
      given_.emplace(n, p);
    } else {
      given_.emplace(n, p, required(array, n, p), InPlace());
    }
    result_ = &*given_;
  }

  OutArray(const OutArray&) = delete;
  ~OutArray() {
    if (!given_ || result_ != &*given_) delete result_;
  }

  operator matrix*&() { return result_; }

  void reserve() const {
    if (result_ != nullptr) required(array_, result_->nX, result_->pX);
  }
  void write() const noexcept {
    if (result_ != nullptr && !isArray(result_->values)) result_->copyMatTo(array_);
  }

 protected:
  /// What the array holds matters.
  struct Rewritten {};
  OutArray(Element* array, int n, int p, const InPlaceUnlessRead& operands, Cells cells, Rewritten)
      : array_(array) {
    const bool keepAll = cells == Cells::KeepAll;
    if (operands.readFrom(array, addressing::cellCount(n, p))) {
      given_.emplace(n, p, required(array, n, p), keepAll);
    } else {
      given_.emplace(n, p, required(array, n, p), InPlace(), keepAll);
    }
    result_ = &*given_;
  }
  OutArray(Element* array, int n, int p, Cells cells)
      : array_(array),
        given_(std::in_place, n, p, required(array, n, p), cells == Cells::KeepAll),
        result_(&*given_) {}

 private:
  bool isArray(const void* cells) const { return cells == array_; }

  Element* array_;
  std::optional<LocalTarget> given_;
  matrix* result_ = nullptr;
};

using OutTable = OutArray<double>;
using OutInts = OutArray<int>;
using OutFlags = OutArray<VARIANT_BOOL>;

/// An array that the worker rewrites in place.
template <class Element>
class InOutArray : public OutArray<Element> {
 public:
  InOutArray(Element* array, int n, int p, Cells cells = Cells::FlagMissing)
      : OutArray<Element>(array, n, p, cells) {}

  /// The worker may see the array itself.
  InOutArray(Element* array, int n, int p, const InPlaceUnlessRead& operands, Cells cells = Cells::KeepAll)
      : OutArray<Element>(array, n, p, operands, cells, typename OutArray<Element>::Rewritten()) {}
};

using InOutTable = InOutArray<double>;
using InOutInts = InOutArray<int>;
using InOutFlags = InOutArray<VARIANT_BOOL>;

/// A result that goes to an array of strings: a new OLE string in every slot, former ones not freed.
class OutText {
 public:
  explicit OutText(BSTR* array) : OutText(array, nullptr) {}
  OutText(const OutText&) = delete;
  ~OutText() { delete result_; }

  operator Smatrix*&() { return result_; }

  void reserve() {
    if (result_ == nullptr) return;
    required(array_, result_->nX, result_->pX);
    strings_.make(result_->cells, static_cast<std::size_t>(addressing::cellCount(*result_)));
  }
  void write() noexcept { strings_.handOverTo(array_); }

 protected:
  OutText(BSTR* array, Smatrix* result) : array_(array), result_(result) {}

  BSTR* array_;
  Smatrix* result_;

 private:
  NewStrings strings_;
};

/// An array of strings that the worker rewrites in place.
class InOutText : public OutText {
 public:
  InOutText(BSTR* array, int n, int p = 1)
      : OutText(array, new Smatrix(n, p, addressOfCharacters(required(array, n, p)), 0, 0)),
        given_(result_) {}
  ~InOutText() {
    if (result_ != given_) delete given_;
  }

 private:
  Smatrix* given_;
};

/// A result of one cell, which the macro may leave out: null is not written.
template <class T>
class OutScalar {
 public:
  explicit OutScalar(T* cell) : cell_(cell) {}
  OutScalar(const OutScalar&) = delete;

  operator T*() { return &value_; }
  operator T&() { return value_; }

  void reserve() const {}
  void write() const noexcept {
    if (cell_ != nullptr) *cell_ = value_;
  }

 protected:
  OutScalar(T* cell, T value) : cell_(cell), value_(value) {}

 private:
  T* cell_;
  T value_{};
};

using OutDouble = OutScalar<double>;
using OutInt = OutScalar<int>;
using OutFlag = OutScalar<VARIANT_BOOL>;

/// One integer that the worker reads and rewrites; required.
class InOutInt : public OutScalar<int> {
 public:
  explicit InOutInt(int* cell) : OutScalar<int>(cell, *required(cell, 1, 1)) {}
};

/// Writes the results of a call to the macro's arrays: all of them, or none when one of them cannot be.
template <class... Results>
void store(Results&... results) {
  (results.reserve(), ...);
  (results.write(), ...);
}

}  // namespace kav::bridge
