// The type library inside the DLL says what the catalogue says.

#include <gtest/gtest.h>

#include <map>

#include "support/catalogue.h"
#include "windows/any_entry.h"

namespace {

std::string typeName(VARTYPE type, bool byReference) {
  static const std::map<VARTYPE, std::string> names = {
      {VT_R8, "double"}, {VT_INT, "int"}, {VT_BOOL, "VARIANT_BOOL"}, {VT_BSTR, "BSTR"}, {VT_VOID, "void"}};
  const auto found = names.find(type);
  return (found == names.end() ? "type " + std::to_string(type) : found->second) + (byReference ? "*" : "");
}

std::string directionName(const macro::Parameter& parameter) {
  return parameter.in && parameter.out ? "in, out" : parameter.in ? "in" : parameter.out ? "out" : "none";
}

std::string signatureOf(const macro::Procedure& procedure) {
  std::string text = typeName(procedure.result, false) + " " + plain(procedure.name) + "(";
  for (const macro::Parameter& p : procedure.parameters) {
    text += "[" + directionName(p) + "] " + typeName(p.type, p.byReference) + " " + plain(p.name) + ";";
  }
  return text + ") @" + std::to_string(procedure.ordinal);
}

std::string signatureOf(const CatalogueEntry& entry) {
  std::string text = entry.result + " " + entry.name + "(";
  for (const CatalogueParameter& p : entry.parameters)
    text += "[" + p.direction + "] " + p.type + " " + p.name + ";";
  return text + ") @" + std::to_string(entry.ordinal);
}

}  // namespace

TEST(TypeLibrary, DeclaresTheCatalogueEntryByEntry) {
  const std::vector<macro::Procedure>& declared = dll().procedures();
  ASSERT_EQ(declared.size(), 297u);
  ASSERT_EQ(catalogue().size(), declared.size());
  for (std::size_t k = 0; k < declared.size(); ++k) {
    EXPECT_EQ(signatureOf(declared[k]), signatureOf(catalogue()[k]));
    EXPECT_GT(declared[k].help.size(), 10u) << "help string of " << catalogue()[k].name;
  }
}

TEST(TypeLibrary, ReachesEveryEntry) {
  const HMODULE module = LoadLibraryW(L"KAVORATB1C.dll");
  ASSERT_NE(module, nullptr);
  for (const CatalogueEntry& entry : catalogue()) {
    void* const address = dll().address(dll().procedure(std::wstring(entry.name.begin(), entry.name.end())));
    ASSERT_NE(address, nullptr) << entry.name;
    EXPECT_EQ(reinterpret_cast<void*>(GetProcAddress(module, entry.name.c_str())), address) << entry.name;
    EXPECT_EQ(reinterpret_cast<void*>(
                  GetProcAddress(module, reinterpret_cast<LPCSTR>(static_cast<ULONG_PTR>(entry.ordinal)))),
              address)
        << entry.name;
  }
  FreeLibrary(module);
}
