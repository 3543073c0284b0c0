// The stand-in for OLE strings where there is no OLE: bytes counted in front of the characters, as there.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "platform/ole.h"

namespace kav {

namespace {

// Large enough to keep what malloc aligns aligned.
constexpr std::size_t kLengthField = alignof(std::max_align_t);

char* blockOf(BSTR text) { return reinterpret_cast<char*>(text) - kLengthField; }

}  // namespace

BSTR SysAllocString(const OLECHAR* text) {
  if (text == nullptr) return nullptr;
  const std::size_t length = std::char_traits<OLECHAR>::length(text);
  const std::size_t bytes = length * sizeof(OLECHAR);
  auto* block = static_cast<char*>(std::malloc(kLengthField + bytes + sizeof(OLECHAR)));
  if (block == nullptr) return nullptr;
  const auto counted = static_cast<std::uint32_t>(bytes);
  std::memcpy(block, &counted, sizeof counted);
  std::memcpy(block + kLengthField, text, bytes + sizeof(OLECHAR));
  return reinterpret_cast<BSTR>(block + kLengthField);
}

void SysFreeString(BSTR text) {
  if (text != nullptr) std::free(blockOf(text));
}

unsigned SysStringByteLen(BSTR text) {
  if (text == nullptr) return 0;
  std::uint32_t counted = 0;
  std::memcpy(&counted, blockOf(text), sizeof counted);
  return counted;
}

}  // namespace kav
