// Calling whatever entry there is with arguments that fit its declared types: tests that hold for every entry
// need no list of their own.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <vector>

#include "macro_engine.h"

/// The DLL under test.
const macro::Module& dll();

/// The entries, as its type library declares them.
const std::vector<macro::Procedure>& entries();

/// A plain name, for messages.
std::string plain(std::wstring_view name);

/// How large the arrays of a call are.
enum class Extent {
  Small,  ///< sizes of 3: what an entry wraps fits into its adaptors
  Large   ///< 120 rows, a missing cell in every array of doubles: arrays are copied to memory of their own
};

/// Arguments for one call of an entry, and the arrays behind them. The first size is the extent's, the others
/// are 3; numbers differ from cell to cell, options are on.
class AnyArguments {
 public:
  explicit AnyArguments(const macro::Procedure& procedure, Extent extent = Extent::Small);
  AnyArguments(const AnyArguments&) = delete;
  ~AnyArguments();

  const std::vector<macro::Argument>& list() const { return arguments_; }

  /// The arguments as a 32-bit caller pushes them, first argument first.
  std::vector<std::uint32_t> stackWords() const;

  /// Every byte of every array: numbers, flags, addresses of strings.
  std::vector<unsigned char> arrayBytes() const;

  /// The same with strings by their characters, for comparing results of two calls.
  std::string arrayText() const;

 private:
  void add(const macro::Parameter& parameter);

  int rows_;
  std::size_t cells_;
  bool sized_ = false;
  bool missing_;
  std::vector<macro::Argument> arguments_;
  std::deque<std::vector<double>> doubles_;
  std::deque<std::vector<int>> ints_;
  std::deque<std::vector<VARIANT_BOOL>> flags_;
  std::deque<std::vector<BSTR>> strings_;
  std::vector<BSTR> owned_;
};

/// A result's bits, a string's characters; empty for an entry without result.
std::string resultText(const macro::Procedure& procedure, const VARIANT& result);
