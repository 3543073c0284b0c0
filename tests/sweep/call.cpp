#include "sweep/call.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <sstream>

#include "kavoratb1c/marker.h"
#include "platform/ole_strings.h"
#include "support/corpus.h"

using namespace kav;

namespace sweep {

namespace {

/// Cells in front of an array and behind it that no entry may touch.
constexpr std::size_t kGuard = 16;
constexpr double kGuardNumber = 7.25e77;
constexpr int kGuardInt = 77777777;
constexpr VARIANT_BOOL kGuardFlag = 77;

/// Sizes of further arrays exceed those of the first ones by this, where they are to differ.
constexpr int kMore = 2;

/// The values of an entry's parameters, as the sizes of its arrays depend on them.
class Values {
 public:
  using Lookup = std::function<long long(const std::string&, bool sum)>;

  explicit Values(Lookup lookup) : lookup_(std::move(lookup)) {}

  long long operator()(const char* name) const { return lookup_(name, false); }
  long long sum(const char* name) const { return lookup_(name, true); }

 private:
  Lookup lookup_;
};

struct ArraySize {
  int ordinal;
  std::size_t parameter;
  long long (*cells)(const Values&);
};

const ArraySize kSizes[] = {
#include "sweep/generated/sizes.inc"
};

template <class Visit>
void forEachSize(const CatalogueEntry& entry, Visit visit) {
  for (const ArraySize& size : kSizes) {
    if (size.ordinal == entry.ordinal) visit(size);
  }
}

bool contains(const std::string& text, const char* part) { return text.find(part) != std::string::npos; }

bool startsWith(const std::string& text, const char* part) { return text.rfind(part, 0) == 0; }

/// Whether a size counts columns rather than rows.
bool countsColumns(const std::string& name) {
  return name[0] == 'p' || name[0] == 'm' || contains(name, "Col") || name == "iop1" || name == "iNbEigen" ||
         name == "nCat" || name == "NbFactors";
}

using Key = std::pair<std::string, std::string>;

/// What the reference says that the array of a parameter holds, by entry and parameter.
const std::map<Key, std::string>& reference() {
  static const std::map<Key, std::string> meanings = [] {
    std::map<Key, std::string> found;
    for (const auto& page : std::filesystem::directory_iterator(KAV_DOCS "/reference")) {
      std::ifstream file(page.path());
      for (std::string line, entry; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (startsWith(line, "### ")) entry = line.substr(4);
        // | `name` | how it is passed | what it holds |
        if (!startsWith(line, "| `")) continue;
        const std::size_t end = line.find('`', 3), second = line.find('|', end),
                          third = line.find('|', second + 1);
        found[{entry, line.substr(3, end - 3)}] = line.substr(third + 1);
      }
    }
    return found;
  }();
  return meanings;
}

/// A number between 0 and 1 for a cell, the same on every build.
double fraction(std::size_t a, std::size_t b) {
  std::uint64_t x = (a + 1) * 0x9E3779B97F4A7C15u + (b + 1) * 0xBF58476D1CE4E5B9u;
  x ^= x >> 31;
  x *= 0x94D049BB133111EBu;
  x ^= x >> 29;
  return static_cast<double>(x >> 11) * 0x1p-53;
}

/// Sevenths, so that some cells are equal and sums of them are rounded.
double among(double fraction) { return std::floor(24.0 * fraction) / 7.0 - 1.5; }

const double kAmongCells = among(0.43);

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

std::string written(double x) {
  if (isMarker(x)) return "missing";
  std::ostringstream text;
  text.precision(17);
  text << x;
  return text.str();
}

}  // namespace

Shape::Shape(const CatalogueEntry& entry) : entry_(&entry) {
  forEachSize(entry, [&](const ArraySize& size) {
    size.cells(Values([&](const std::string& name, bool) {
      ++sizes_[name];
      return 1LL;
    }));
  });
  for (const CatalogueParameter& p : entry.parameters) {
    const auto found = reference().find({entry.name, p.name});
    meanings_.push_back(found == reference().end() ? "" : found->second);
    mayBeNull_.push_back(contains(meanings_.back(), "`nothing`"));
  }
}

std::vector<Variant> Shape::variants() const {
  std::vector<Variant> all;
  for (const int rows : {10, 0, 1, 2, 3, 15, 16, 17, 33}) {
    Variant v{std::to_string(rows) + " rows"};
    v.rows = rows;
    all.push_back(v);
  }
  for (const int columns : {0, 1, 9}) {
    Variant v{std::to_string(columns) + " columns"};
    v.columns = columns;
    all.push_back(v);
  }
  Variant unequal{"unequal sizes"}, excluded{"rows excluded"};
  unequal.unequal = true;
  excluded.excluded = true;
  all.push_back(unequal);
  all.push_back(excluded);
  for (const auto& [cells, name] : {std::pair(Cells::General, "not symmetric"),
                                    {Cells::Binary, "zeros and ones"},
                                    {Cells::Constant, "all equal"},
                                    {Cells::Ascending, "ascending"}}) {
    Variant v{name};
    v.cells = cells;
    all.push_back(v);
  }
  for (std::size_t k = 0; k < entry_->parameters.size(); ++k) {
    const CatalogueParameter& p = entry_->parameters[k];
    const auto place = static_cast<int>(k);
    // Without a given seed a sample is another one at every call.
    const bool isOption = p.type == "VARIANT_BOOL" && p.name != "iSeedInit";
    if (isOption || (p.type == "int" && !isSize(p.name))) {
      for (const short value : {short{-1}, short{0}, short{1}, short{2}, short{3}}) {
        if (isOption && (value == -1 || value == 3)) continue;
        Variant v{p.name + " = " + std::to_string(value)};
        v.option = place;
        v.optionValue = value;
        all.push_back(v);
      }
    }
    if (isArray(k) && mayBeNull(k)) {
      Variant v{p.name + " = nothing"};
      v.null = place;
      all.push_back(v);
    }
    if (p.direction == "out") continue;
    const std::pair<Special, const char*> specials[] = {
        {Special::Marker, "missing"}, {Special::ArrivesMissing, "-1.75e306"},
        {Special::NotANumber, "NaN"}, {Special::Infinity, "infinity"},
        {Special::Zero, "0"},         {Special::Negative, "-2.385"},
        {Special::Empty, "empty"}};
    for (const auto& [cell, name] : specials) {
      const char* const type = cell == Special::Empty ? "BSTR" : "double";
      if (p.type != type && p.type != std::string(type) + "*") continue;
      Variant v{p.name + " with " + name};
      v.special = place;
      v.cell = cell;
      all.push_back(v);
    }
  }
  return all;
}

Call::Call(const Shape& shape, const Variant& variant) : shape_(shape), variant_(variant) {
  setScalars();
  const CatalogueEntry& entry = shape.entry();
  arrays_.resize(entry.parameters.size());
  forEachSize(entry, [&](const ArraySize& size) {
    const long long cells = size.cells(Values([&](const std::string& name, bool sum) {
      const long long value = valueOf(name);
      // A sum over the numbers of categories, which are 2 each.
      return sum ? 2 * std::max(valueOf("p"), 0LL) : std::max(value, 0LL);
    }));
    arrays_[size.parameter].count = static_cast<std::size_t>(std::max(cells, 0LL));
  });
  for (std::size_t k = 0; k < entry.parameters.size(); ++k) fill(k);
}

Call::~Call() {
  // Slots that an entry overwrote hold new strings; those it started with are freed as well.
  for (const Array& array : arrays_) {
    for (BSTR text : array.texts) {
      if (!isOwn(text)) SysFreeString(text);
    }
  }
  for (BSTR text : own_) SysFreeString(text);
  if (const auto* text = std::get_if<BSTR>(&result_)) SysFreeString(*text);
}

bool Call::isOwn(BSTR text) const { return std::find(own_.begin(), own_.end(), text) != own_.end(); }

long long Call::valueOf(const std::string& name) const {
  const auto found = scalars_.find(name);
  return found == scalars_.end() ? 0 : found->second;
}

void Call::setScalars() {
  int rows = variant_.rows, columns = variant_.columns;
  for (const CatalogueParameter& p : shape_.entry().parameters) {
    const std::string& name = p.name;
    if (p.type != "int" && !(p.type == "int*" && shape_.isSize(name))) continue;
    long long value = 2;
    if (name == "NbCatTotal" || name == "pMaxCat") {
      value = 2LL * columns;
    } else if (name == "NbMissing") {
      value = variant_.excluded ? rows / 3 : 1;
    } else if (name == "SampleSize" || name == "nOut") {
      value = rows / 2;
    } else if (name == "job") {
      value = 21;
    } else if (contains(name, "iCol") || contains(name, "IDCol") || contains(name, "ColID") ||
               name == "col" || name == "iPolyDegree") {
      value = 2;
    } else if (shape_.isSize(name) && countsColumns(name)) {
      value = columns;
      columns += variant_.unequal ? kMore : 0;
    } else if (shape_.isSize(name) || name == "n") {
      value = rows;
      rows += variant_.unequal ? kMore : 0;
    } else if (contains(name, "End") || contains(name, "To") || contains(name, "Upper")) {
      value = variant_.rows - 1;
    } else if (name == "p") {
      value = 1LL * columns * columns;
    }
    scalars_[name] = value;
  }
}

double Call::number(std::size_t parameter, std::size_t k) const {
  const bool isSpecial = static_cast<int>(parameter) == variant_.special && k == arrays_[parameter].count / 2;
  switch (isSpecial ? variant_.cell : Special::None) {
    case Special::Marker:
      return kMissing;
    case Special::ArrivesMissing:
      return -1.75e306;
    case Special::NotANumber:
      return std::numeric_limits<double>::quiet_NaN();
    case Special::Infinity:
      return std::numeric_limits<double>::infinity();
    case Special::Zero:
      return 0.0;
    case Special::Negative:
      return -2.385;
    default:
      return cell(parameter, k);
  }
}

double Call::cell(std::size_t parameter, std::size_t k) const {
  const CatalogueParameter& p = shape_.entry().parameters[parameter];
  if (p.type == "double") return contains(p.name, "Eps") || contains(p.name, "ol") ? 1e-9 : kAmongCells;
  const auto place = static_cast<double>(k);
  const std::size_t count = arrays_[parameter].count;
  if (p.name == "iSortVect" || p.name == "idx") return static_cast<double>(count - k);
  if (variant_.cells == Cells::Binary) return fraction(parameter, k) < 0.4 ? 1.0 : 0.0;
  if (variant_.cells == Cells::Constant) return kAmongCells;
  if (variant_.cells == Cells::Ascending) return 0.385 + place * place / 7.0;
  if (p.name == "w")
    return variant_.excluded && k % 4 == 3 ? 0.0 : 0.5 + 0.3 * static_cast<double>(k * 3 % 5);
  const auto order = static_cast<std::size_t>(std::lround(std::sqrt(static_cast<double>(count))));
  if (variant_.cells == Cells::General || order < 2 || order * order != count)
    return among(fraction(parameter, k));
  // Symmetric and dominated by its diagonal.
  const std::size_t i = k % order, j = k / order;
  if (i == j) return 4.0 * static_cast<double>(order) + fraction(parameter, k);
  return among(fraction(parameter, std::min(i, j) * order + std::max(i, j)));
}

int Call::integer(const std::string& name, std::size_t k) const {
  if (shape_.isSize(name) && name != "NbCat") return static_cast<int>(valueOf(name));
  if (name == "NbCat") return 2;
  if (name == "ioSeed") return 12345;
  if (contains(name, "Constraints")) return k % 3 == 1 ? 1 : 0;
  if (contains(name, "FactActive")) return 1;
  if (contains(name, "FactSubParents")) return 1 + static_cast<int>(k / 2);
  return static_cast<int>(k * 7 + 3) % 11;
}

void Call::fill(std::size_t parameter) {
  const CatalogueParameter& p = shape_.entry().parameters[parameter];
  Array& array = arrays_[parameter];
  const auto place = static_cast<int>(parameter);
  const auto guarded = [&](auto& cells, auto guard, auto cell) {
    cells.assign(array.count + 2 * kGuard, guard);
    for (std::size_t k = 0; k < array.count; ++k) cells[kGuard + k] = cell(k);
    arguments_.emplace_back(place == variant_.null ? nullptr : cells.data() + kGuard);
  };
  const auto newText = [&](const std::u16string& text) {
    own_.push_back(newString(text));
    return own_.back();
  };
  if (p.type == "double") {
    arguments_.emplace_back(number(parameter, 0));
  } else if (p.type == "int") {
    const auto value = static_cast<int>(valueOf(p.name));
    arguments_.emplace_back(place == variant_.option ? variant_.optionValue : value);
  } else if (p.type == "VARIANT_BOOL") {
    arguments_.emplace_back(place == variant_.option ? variant_.optionValue : kTrue);
  } else if (p.type == "BSTR") {
    arguments_.emplace_back(newText(place == variant_.special ? u"" : u"b"));
  } else if (p.type == "double*") {
    guarded(array.numbers, kGuardNumber, [&](std::size_t k) { return number(parameter, k); });
  } else if (p.type == "int*") {
    guarded(array.ints, kGuardInt, [&](std::size_t k) { return integer(p.name, k); });
  } else if (p.type == "VARIANT_BOOL*") {
    guarded(array.flags, kGuardFlag, [&](std::size_t k) {
      return asFlag(p.direction == "in" ? variant_.excluded && k % 3 == 1 : k % 2 == 0);
    });
  } else {
    guarded(array.texts, newText(u"guard"), [&](std::size_t k) {
      const bool empty = place == variant_.special && k == array.count / 2;
      const std::size_t kind = p.name == "Cat" ? k : static_cast<std::size_t>(4.0 * fraction(parameter, k));
      return newText(empty ? u"" : std::u16string(1, static_cast<char16_t>(u'a' + kind % 26)));
    });
  }
  array.before = contents(parameter);
}

void Call::run() { result_ = manual::call(shape_.entry(), arguments_); }

std::string Call::result() const { return textOf(result_); }

std::string Call::failure() const {
  const std::string& type = shape_.entry().result;
  if (type == "double") return textOf(kMissing);
  if (type == "int") return textOf(-1);
  if (type == "VARIANT_BOOL") return textOf(VARIANT_BOOL{kFalse});
  return type == "BSTR" ? "(null)" : "";
}

std::string Call::contents(std::size_t parameter) const {
  const Array& array = arrays_[parameter];
  std::string text = bytesOf(array.numbers.data(), array.numbers.size()) +
                     bytesOf(array.ints.data(), array.ints.size()) +
                     bytesOf(array.flags.data(), array.flags.size());
  for (BSTR slot : array.texts) text += charactersOf(slot) + (isOwn(slot) ? ";" : "!");
  return text;
}

std::uint32_t Call::hash() const {
  BitHash hash;
  const auto addText = [&](const std::string& text) {
    for (const char c : text) hash.add(static_cast<double>(c));
  };
  if (const auto* x = std::get_if<double>(&result_)) {
    hash.add(*x);
  } else {
    addText(result());
  }
  for (std::size_t k = 0; k < arrays_.size(); ++k) {
    if (shape_.entry().parameters[k].direction == "in") continue;
    for (const double x : arrays_[k].numbers) hash.add(x);
    if (arrays_[k].numbers.empty()) addText(contents(k));
  }
  return static_cast<std::uint32_t>(hash.value() >> 40);
}

std::string Call::fault() const {
  for (std::size_t k = 0; k < arrays_.size(); ++k) {
    const CatalogueParameter& p = shape_.entry().parameters[k];
    const Array& array = arrays_[k];
    if (p.direction == "in" && contents(k) != array.before) return p.name + " is only read, but has changed";
    for (std::size_t i = 0; i < 2 * kGuard; ++i) {
      const std::size_t at = i < kGuard ? i : array.count + i;
      const bool overrun = (!array.numbers.empty() && array.numbers[at] != kGuardNumber) ||
                           (!array.ints.empty() && array.ints[at] != kGuardInt) ||
                           (!array.flags.empty() && array.flags[at] != kGuardFlag) ||
                           (!array.texts.empty() && !isOwn(array.texts[at]));
      if (overrun) return p.name + " was written outside its " + std::to_string(array.count) + " cells";
    }
  }
  return "";
}

std::string Call::notation() const {
  std::ostringstream text;
  const CatalogueEntry& entry = shape_.entry();
  const Call before(shape_, variant_);
  std::string call = entry.name + "(";
  for (std::size_t k = 0; k < entry.parameters.size(); ++k) {
    const CatalogueParameter& p = entry.parameters[k];
    const Array& array = before.arrays_[k];
    call += k == 0 ? "" : ", ";
    if (const auto* x = std::get_if<double>(&arguments_[k])) call += written(*x);
    if (const auto* x = std::get_if<int>(&arguments_[k])) call += std::to_string(*x);
    if (const auto* x = std::get_if<VARIANT_BOOL>(&arguments_[k])) call += std::to_string(*x);
    if (p.type == "BSTR") call += "\"b\"";
    if (!shape_.isArray(k)) continue;
    const bool isNull = static_cast<int>(k) == variant_.null;
    call += isNull ? "nothing" : p.name;
    if (isNull) continue;
    text << p.name << " = {";
    for (std::size_t i = 0; i < array.count; ++i) {
      const std::size_t at = kGuard + i;
      text << (i == 0 ? "" : ", ");
      if (!array.numbers.empty()) text << written(array.numbers[at]);
      if (!array.ints.empty()) text << array.ints[at];
      if (!array.flags.empty()) text << (array.flags[at] == 0 ? "False" : "True");
      if (!array.texts.empty()) text << '"' << std::string(1, charactersOf(array.texts[at])[0]) << '"';
    }
    text << "}\n";
  }
  text << call << ")\n";
  return text.str();
}

}  // namespace sweep
