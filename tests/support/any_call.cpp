#include "support/any_call.h"

#include <algorithm>

#include "kavoratb1c/marker.h"
#include "platform/ole_strings.h"

using namespace kav;

namespace {

template <class T>
std::string bytesOf(const T* cells, std::size_t count) {
  return std::string(reinterpret_cast<const char*>(cells), count * sizeof(T));
}

std::string charactersOf(BSTR text) {
  return text == nullptr ? "(null)"
                         : std::string(reinterpret_cast<const char*>(text), SysStringByteLen(text));
}

std::string textOf(const manual::Result& result) {
  if (const auto* text = std::get_if<BSTR>(&result)) return charactersOf(*text);
  if (const auto* x = std::get_if<double>(&result)) return bytesOf(x, 1);
  if (const auto* x = std::get_if<int>(&result)) return bytesOf(x, 1);
  if (const auto* x = std::get_if<VARIANT_BOOL>(&result)) return bytesOf(x, 1);
  return "";
}

manual::Actual nullOf(const std::string& type) {
  if (type == "double*") return static_cast<double*>(nullptr);
  if (type == "int*") return static_cast<int*>(nullptr);
  if (type == "VARIANT_BOOL*") return static_cast<VARIANT_BOOL*>(nullptr);
  return static_cast<BSTR*>(nullptr);
}

}  // namespace

AnyCall::AnyCall(const CatalogueEntry& entry) : entry_(entry) {
  for (const CatalogueParameter& parameter : entry.parameters) {
    const auto seed = static_cast<double>(arrays_.size());
    Array& array = arrays_.emplace_back();
    if (parameter.type == "double") {
      arguments_.emplace_back(0.385);
    } else if (parameter.type == "int") {
      arguments_.emplace_back(3);
    } else if (parameter.type == "VARIANT_BOOL") {
      arguments_.emplace_back(VARIANT_BOOL{kTrue});
    } else if (parameter.type == "BSTR") {
      owned_.push_back(newString(u"label"));
      arguments_.emplace_back(owned_.back());
    } else if (parameter.type == "double*") {
      for (std::size_t k = 0; k < kCells; ++k) {
        array.numbers.push_back(2.385 + 0.75 * seed + static_cast<double>(k * 7 % 11) * 0.618);
      }
      arguments_.emplace_back(array.numbers.data());
    } else if (parameter.type == "int*") {
      for (std::size_t k = 0; k < kCells; ++k) array.ints.push_back(static_cast<int>((k * 7 + 3) % 11));
      arguments_.emplace_back(array.ints.data());
    } else if (parameter.type == "VARIANT_BOOL*") {
      for (std::size_t k = 0; k < kCells; ++k) array.flags.push_back(asFlag(k % 3 == 1));
      arguments_.emplace_back(array.flags.data());
    } else {
      for (std::size_t k = 0; k < kCells; ++k) {
        owned_.push_back(newString(u"label " + std::u16string(k * 5 % 7, u'x')));
        array.texts.push_back(owned_.back());
      }
      arguments_.emplace_back(array.texts.data());
    }
  }
}

AnyCall::~AnyCall() {
  // Slots that an entry overwrote hold new strings; those it started with are freed as well.
  for (BSTR text : owned_) SysFreeString(text);
  for (const Array& array : arrays_) {
    for (BSTR text : array.texts) {
      if (std::find(owned_.begin(), owned_.end(), text) == owned_.end()) SysFreeString(text);
    }
  }
}

std::string AnyCall::run(int nullParameter) {
  std::vector<manual::Actual> arguments = arguments_;
  if (nullParameter >= 0) {
    const auto k = static_cast<std::size_t>(nullParameter);
    arguments[k] = nullOf(entry_.parameters[k].type);
  }
  const manual::Result result = manual::call(entry_, arguments);
  const std::string text = textOf(result);
  if (const auto* made = std::get_if<BSTR>(&result)) SysFreeString(*made);
  return text;
}

std::string AnyCall::contents(std::size_t parameter) const {
  const Array& array = arrays_[parameter];
  std::string text = bytesOf(array.numbers.data(), array.numbers.size()) +
                     bytesOf(array.ints.data(), array.ints.size()) +
                     bytesOf(array.flags.data(), array.flags.size());
  for (BSTR slot : array.texts) {
    const bool isNew = std::find(owned_.begin(), owned_.end(), slot) == owned_.end();
    text += charactersOf(slot) + (isNew ? "!" : ";");
  }
  return text;
}

std::string AnyCall::failure() const {
  if (entry_.result == "double") return textOf(kMissing);
  if (entry_.result == "int") return textOf(-1);
  if (entry_.result == "VARIANT_BOOL") return textOf(VARIANT_BOOL{kFalse});
  return entry_.result == "BSTR" ? "(null)" : "";
}
