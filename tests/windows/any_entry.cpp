#include "windows/any_entry.h"

#include <algorithm>
#include <cstring>

namespace {

template <class T>
std::string bytesOf(const T& x) {
  return std::string(reinterpret_cast<const char*>(&x), sizeof x);
}

template <class T>
void append(std::vector<unsigned char>& bytes, const std::deque<std::vector<T>>& arrays) {
  for (const std::vector<T>& array : arrays) {
    const auto* begin = reinterpret_cast<const unsigned char*>(array.data());
    bytes.insert(bytes.end(), begin, begin + array.size() * sizeof(T));
  }
}

std::string charactersOf(BSTR text) {
  if (text == nullptr) return "(null)";
  return std::string(reinterpret_cast<const char*>(text), SysStringByteLen(text)) + ";";
}

}  // namespace

const macro::Module& dll() {
  static const macro::Module module(L"KAVORATB1C.dll");
  return module;
}

const std::vector<macro::Procedure>& entries() { return dll().procedures(); }

std::string plain(std::wstring_view name) { return std::string(name.begin(), name.end()); }

AnyArguments::AnyArguments(const macro::Procedure& procedure, Extent extent)
    : rows_(extent == Extent::Small ? 3 : 120),
      cells_(extent == Extent::Small ? 64 : 1024),
      missing_(extent == Extent::Large) {
  for (const macro::Parameter& parameter : procedure.parameters) add(parameter);
}

AnyArguments::~AnyArguments() {
  // Slots that an entry overwrote hold new strings; those it started with are freed as well.
  for (BSTR text : owned_) SysFreeString(text);
  for (std::vector<BSTR>& array : strings_) {
    for (std::size_t k = 0; k < array.size(); ++k) {
      if (std::find(owned_.begin(), owned_.end(), array[k]) == owned_.end()) SysFreeString(array[k]);
    }
  }
}

void AnyArguments::add(const macro::Parameter& parameter) {
  const auto seed = static_cast<int>(arguments_.size());
  switch (parameter.type) {
    case VT_R8:
      if (!parameter.byReference) {
        arguments_.emplace_back(0.385);
        break;
      }
      // It may be a table of rows x rows.
      doubles_.emplace_back(cells_ + static_cast<std::size_t>(rows_ * rows_));
      for (std::size_t k = 0; k < doubles_.back().size(); ++k) {
        doubles_.back()[k] = 2.385 + 0.75 * seed + static_cast<double>((k * 7) % 11) * 0.618;
      }
      if (missing_) doubles_.back()[5] = -1.79769313486231E+308;
      arguments_.emplace_back(doubles_.back());
      break;
    case VT_INT:
      if (!parameter.byReference) {
        arguments_.emplace_back(sized_ ? 3 : rows_);
        sized_ = true;
        break;
      }
      ints_.emplace_back(cells_);
      for (std::size_t k = 0; k < cells_; ++k) ints_.back()[k] = static_cast<int>((k * 7 + 3) % 11);
      arguments_.emplace_back(ints_.back());
      break;
    case VT_BOOL:
      if (!parameter.byReference) {
        arguments_.emplace_back(true);
        break;
      }
      flags_.emplace_back(cells_);
      for (std::size_t k = 0; k < cells_; ++k) flags_.back()[k] = k % 3 == 1 ? VARIANT_TRUE : VARIANT_FALSE;
      arguments_.emplace_back(flags_.back());
      break;
    case VT_BSTR:
      if (!parameter.byReference) {
        owned_.push_back(SysAllocString(L"label"));
        arguments_.emplace_back(owned_.back());
        break;
      }
      strings_.emplace_back(cells_);
      for (std::size_t k = 0; k < cells_; ++k) {
        // Longer than what a string object holds without an allocation of its own.
        const std::wstring text = L"a label of some length " + std::to_wstring((k * 5) % 7);
        owned_.push_back(SysAllocString(text.c_str()));
        strings_.back()[k] = owned_.back();
      }
      arguments_.emplace_back(strings_.back().data());
      break;
    default:
      throw macro::Error("a type that the catalogue does not know", DISP_E_BADVARTYPE);
  }
}

std::vector<std::uint32_t> AnyArguments::stackWords() const {
  std::vector<std::uint32_t> words;
  for (const macro::Argument& argument : arguments_) {
    const VARIANTARG& value = argument.variant();
    if (value.vt == VT_R8) {
      std::uint32_t halves[2];
      std::memcpy(halves, &value.dblVal, sizeof halves);
      words.insert(words.end(), {halves[0], halves[1]});
    } else if (value.vt == VT_BOOL) {
      words.push_back(static_cast<std::uint32_t>(value.boolVal));
    } else {
      words.push_back(value.ulVal);
    }
  }
  return words;
}

std::vector<unsigned char> AnyArguments::arrayBytes() const {
  std::vector<unsigned char> bytes;
  append(bytes, doubles_);
  append(bytes, ints_);
  append(bytes, flags_);
  append(bytes, strings_);
  return bytes;
}

std::string AnyArguments::arrayText() const {
  std::vector<unsigned char> bytes;
  append(bytes, doubles_);
  append(bytes, ints_);
  append(bytes, flags_);
  std::string text(bytes.begin(), bytes.end());
  for (const std::vector<BSTR>& array : strings_) {
    for (BSTR s : array) text += charactersOf(s);
  }
  return text;
}

std::string resultText(const macro::Procedure& procedure, const VARIANT& result) {
  switch (procedure.result) {
    case VT_R8:
      return bytesOf(result.dblVal);
    case VT_INT:
      return bytesOf(result.intVal);
    case VT_BOOL:
      return bytesOf(result.boolVal);
    case VT_BSTR:
      return charactersOf(result.bstrVal);
    default:
      return "";
  }
}
