#include "support/any_call.h"

#include "kavoratb1c/marker.h"

using namespace kav;

namespace {

template <class T>
std::string bytesOf(T x) {
  return std::string(reinterpret_cast<const char*>(&x), sizeof x);
}

std::string textOf(const manual::Result& result) {
  if (const auto* x = std::get_if<double>(&result)) return bytesOf(*x);
  if (const auto* x = std::get_if<int>(&result)) return bytesOf(*x);
  if (const auto* x = std::get_if<VARIANT_BOOL>(&result)) return bytesOf(*x);
  const auto* text = std::get_if<BSTR>(&result);
  if (text == nullptr) return "";
  return *text == nullptr ? "(null)"
                          : std::string(reinterpret_cast<const char*>(*text), SysStringByteLen(*text));
}

/// Cell k of an array, or a number.
manual::Cell cellOf(const std::string& type, std::size_t seed, std::size_t k) {
  manual::Cell cell;
  if (type == "double") cell.number = 0.385;
  if (type == "int") cell.number = 3.0;
  if (type == "VARIANT_BOOL") cell.number = kTrue;
  if (type == "double*") {
    cell.number = 2.385 + 0.75 * static_cast<double>(seed) + static_cast<double>(k * 7 % 11) * 0.618;
  }
  if (type == "int*") cell.number = static_cast<double>((k * 7 + 3) % 11);
  if (type == "VARIANT_BOOL*") cell.number = asFlag(k % 3 == 1);
  cell.isText = type.rfind("BSTR", 0) == 0;
  if (cell.isText) cell.text = u"label " + std::u16string(k * 5 % 7, u'x');
  return cell;
}

}  // namespace

AnyCall::AnyCall(const CatalogueEntry& entry) : entry_(entry) {
  for (const CatalogueParameter& parameter : entry.parameters) {
    manual::Cells cells;
    while (cells.size() < (parameter.type.back() == '*' ? kCells : 1)) {
      cells.push_back(cellOf(parameter.type, arguments_.size(), cells.size()));
    }
    arguments_.emplace_back(parameter.type, cells);
  }
}

std::string AnyCall::run(int nullParameter) {
  std::vector<manual::Actual> actuals;
  for (const manual::Argument& argument : arguments_) actuals.push_back(argument.actual());
  if (nullParameter >= 0) {
    const auto k = static_cast<std::size_t>(nullParameter);
    actuals[k] = manual::nullOf(entry_.parameters[k].type);
  }
  const manual::Result result = manual::call(entry_, actuals);
  const std::string text = textOf(result);
  if (const auto* made = std::get_if<BSTR>(&result)) SysFreeString(*made);
  return text;
}

std::string AnyCall::failure() const {
  if (entry_.result == "double") return textOf(kMissing);
  if (entry_.result == "int") return textOf(-1);
  if (entry_.result == "VARIANT_BOOL") return textOf(VARIANT_BOOL{kFalse});
  return entry_.result == "BSTR" ? "(null)" : "";
}
