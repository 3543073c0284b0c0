#include "manual/arguments.h"

#include <algorithm>

#include "platform/ole_strings.h"

namespace manual {

namespace {

/// Cells behind every array: a call with a wrong shape must not harm the test.
constexpr std::size_t kGuard = 1000;

template <class T>
T* fill(std::vector<T>& array, const Cells& cells) {
  for (const Cell& cell : cells) array.push_back(static_cast<T>(cell.number));
  array.resize(cells.size() + kGuard, kUntouched<T>);
  return array.data();
}

template <class T>
bool isOverrun(const std::vector<T>& array, std::size_t size, T untouched) {
  return std::any_of(array.begin() + static_cast<std::ptrdiff_t>(std::min(size, array.size())), array.end(),
                     [=](T x) { return x != untouched; });
}

}  // namespace

Argument::Argument(const std::string& type, const Cells& cells) : size_(cells.size()) {
  if (type == "double") actual_ = cells[0].number;
  if (type == "int") actual_ = static_cast<int>(cells[0].number);
  if (type == "VARIANT_BOOL") actual_ = static_cast<VARIANT_BOOL>(cells[0].number);
  if (type == "double*") actual_ = fill(doubles_, cells);
  if (type == "int*") actual_ = fill(ints_, cells);
  if (type == "VARIANT_BOOL*") actual_ = fill(flags_, cells);
  if (type.rfind("BSTR", 0) == 0) {
    for (const Cell& cell : cells) given_.push_back(newString(cell.text));
    texts_ = given_;
    texts_.resize(size_ + kGuard);
    actual_ = type == "BSTR" ? Actual(texts_[0]) : Actual(texts_.data());
  }
  before_ = contents();
}

Argument::~Argument() {
  for (std::size_t k = 0; k < texts_.size(); ++k) {
    if (k >= size_ || texts_[k] != given_[k]) SysFreeString(texts_[k]);
  }
  for (BSTR text : given_) SysFreeString(text);
}

Cells Argument::cells() const {
  Cells result(size_);
  for (std::size_t k = 0; k < size_; ++k) {
    Cell& cell = result[k];
    if (!doubles_.empty()) cell.number = doubles_[k];
    if (!ints_.empty()) cell.number = ints_[k];
    if (!flags_.empty()) cell.number = flags_[k];
    cell.isText = !texts_.empty();
    if (cell.isText) cell.text = textAt(texts_[k]);
  }
  return result;
}

std::string Argument::contents() const {
  std::string result;
  const auto append = [&](const auto& array) {
    result.append(reinterpret_cast<const char*>(array.data()),
                  std::min(size_, array.size()) * sizeof(array[0]));
  };
  append(doubles_);
  append(ints_);
  append(flags_);
  for (std::size_t k = 0; k < size_ && !texts_.empty(); ++k) {
    const auto* characters = reinterpret_cast<const char*>(texts_[k]);
    result += characters == nullptr ? "(null)" : std::string(characters, SysStringByteLen(texts_[k]));
    result += texts_[k] == given_[k] ? ';' : '!';
  }
  return result;
}

bool Argument::wasOverrun() const {
  return isOverrun(doubles_, size_, kUntouched<double>) || isOverrun(ints_, size_, kUntouched<int>) ||
         isOverrun(flags_, size_, kUntouched<VARIANT_BOOL>) || isOverrun(texts_, size_, BSTR{nullptr});
}

Actual nullOf(const std::string& type) {
  if (type == "double*") return static_cast<double*>(nullptr);
  if (type == "int*") return static_cast<int*>(nullptr);
  if (type == "VARIANT_BOOL*") return static_cast<VARIANT_BOOL*>(nullptr);
  if (type == "BSTR*") return static_cast<BSTR*>(nullptr);
  if (type == "BSTR") return static_cast<BSTR>(nullptr);
  throw Fault("nothing is for arrays and texts");
}

std::u16string textAt(BSTR text) {
  const auto* characters = reinterpret_cast<const char16_t*>(text);
  return characters == nullptr ? std::u16string()
                               : std::u16string(characters, SysStringByteLen(text) / sizeof(char16_t));
}

}  // namespace manual
