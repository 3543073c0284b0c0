// Strings between C++ and OLE. Internal.
#pragma once

#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include "platform/ole.h"

namespace kav {

/// The characters before the first zero; a null string is the empty string.
inline std::u16string textOf(const OLECHAR* text) {
  std::u16string characters;
  if (text != nullptr) {
    for (; *text != 0; ++text) characters.push_back(static_cast<char16_t>(*text));
  }
  return characters;
}

/// A new OLE string of the characters before the first zero; the receiver owns it. Throws std::bad_alloc.
inline BSTR newString(const std::u16string& text) {
  const BSTR made = SysAllocString(reinterpret_cast<const OLECHAR*>(text.c_str()));
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

/// New OLE strings, released again unless they are handed over: all or none reach the caller's slots.
class NewStrings {
 public:
  NewStrings() = default;
  NewStrings(const NewStrings&) = delete;
  ~NewStrings() {
    for (BSTR made : strings_) SysFreeString(made);
  }

  /// Throws std::bad_alloc.
  void make(const std::u16string* texts, std::size_t count) {
    strings_.reserve(count);
    for (std::size_t k = 0; k < count; ++k) strings_.push_back(newString(texts[k]));
  }

  /// Puts a string into every slot; what the slots held is overwritten without being freed.
  template <class Slot>
  void handOverTo(Slot* slots) noexcept {
    for (BSTR made : strings_) *slots++ = reinterpret_cast<Slot>(made);
    strings_.clear();
  }

 private:
  std::vector<BSTR> strings_;
};

}  // namespace kav
