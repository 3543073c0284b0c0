#include "macro_engine.h"

#include <algorithm>
#include <cstdio>

namespace macro {

namespace {

std::string withCode(const std::string& what, HRESULT code) {
  char hex[16];
  std::snprintf(hex, sizeof hex, "0x%08lX", static_cast<unsigned long>(code));
  return what + " (" + hex + ")";
}

void check(HRESULT code, const std::string& what) {
  if (FAILED(code)) throw Error(what, code);
}

std::string narrow(std::wstring_view text) {
  std::string plain;
  for (wchar_t c : text) plain.push_back(c < 128 ? static_cast<char>(c) : '?');
  return plain;
}

std::wstring taken(BSTR text) {
  const std::wstring copy = text == nullptr ? L"" : std::wstring(text, SysStringLen(text));
  SysFreeString(text);
  return copy;
}

Parameter parameterOf(const ELEMDESC& element, BSTR name) {
  const TYPEDESC& type = element.tdesc;
  const bool byReference = type.vt == VT_PTR;
  const USHORT flags = element.paramdesc.wParamFlags;
  return {taken(name), byReference ? type.lptdesc->vt : type.vt, byReference, (flags & PARAMFLAG_FIN) != 0,
          (flags & PARAMFLAG_FOUT) != 0};
}

}  // namespace

Error::Error(const std::string& what, HRESULT code) : std::runtime_error(withCode(what, code)) {}

Strings::Strings(std::initializer_list<std::wstring_view> texts) {
  for (std::wstring_view text : texts) {
    slots_.push_back(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
  }
}

Strings::Strings(const std::vector<std::string>& texts) {
  for (const std::string& text : texts) {
    slots_.push_back(SysAllocString(std::wstring(text.begin(), text.end()).c_str()));
  }
}

Strings::~Strings() { std::for_each(slots_.begin(), slots_.end(), SysFreeString); }

std::wstring Strings::operator[](std::size_t k) const {
  return slots_[k] == nullptr ? L"" : std::wstring(slots_[k], SysStringLen(slots_[k]));
}

Module::Module(const std::wstring& dll) {
  check(LoadTypeLibEx(dll.c_str(), REGKIND_NONE, &library_), "no type library in " + narrow(dll));
  const UINT count = library_->GetTypeInfoCount();
  for (UINT k = 0; k < count && module_ == nullptr; ++k) {
    TYPEKIND kind;
    if (SUCCEEDED(library_->GetTypeInfoType(k, &kind)) && kind == TKIND_MODULE) {
      check(library_->GetTypeInfo(k, &module_), "cannot read the module");
    }
  }
  if (module_ == nullptr) throw Error("the type library has no module", TYPE_E_ELEMENTNOTFOUND);
  readProcedures();
}

Module::~Module() {
  if (module_ != nullptr) module_->Release();
  if (library_ != nullptr) library_->Release();
}

void Module::readProcedures() {
  TYPEATTR* attributes = nullptr;
  check(module_->GetTypeAttr(&attributes), "cannot read the module");
  const UINT count = attributes->cFuncs;
  module_->ReleaseTypeAttr(attributes);
  for (UINT k = 0; k < count; ++k) {
    FUNCDESC* function = nullptr;
    check(module_->GetFuncDesc(k, &function), "cannot read a function");
    std::vector<BSTR> names(static_cast<std::size_t>(function->cParams) + 1);
    UINT named = 0;
    check(module_->GetNames(function->memid, names.data(), static_cast<UINT>(names.size()), &named),
          "cannot read names");
    BSTR help = nullptr;
    module_->GetDocumentation(function->memid, nullptr, &help, nullptr, nullptr);
    WORD ordinal = 0;
    module_->GetDllEntry(function->memid, function->invkind, nullptr, nullptr, &ordinal);
    Procedure procedure{
        taken(names[0]), function->memid, ordinal, function->elemdescFunc.tdesc.vt, taken(help), {}};
    for (UINT p = 1; p < named; ++p) {
      procedure.parameters.push_back(parameterOf(function->lprgelemdescParam[p - 1], names[p]));
    }
    module_->ReleaseFuncDesc(function);
    procedures_.push_back(std::move(procedure));
  }
}

const Procedure& Module::procedure(std::wstring_view name) const {
  const auto found = std::find_if(procedures_.begin(), procedures_.end(),
                                  [&](const Procedure& p) { return p.name == name; });
  if (found == procedures_.end()) throw Error("no function " + narrow(name), TYPE_E_ELEMENTNOTFOUND);
  return *found;
}

void* Module::address(const Procedure& procedure) const {
  void* address = nullptr;
  return SUCCEEDED(module_->AddressOfMember(procedure.member, INVOKE_FUNC, &address)) ? address : nullptr;
}

VARIANT Module::call(std::wstring_view name, const std::vector<Argument>& arguments) const {
  return call(procedure(name), arguments);
}

VARIANT Module::call(const Procedure& procedure, const std::vector<Argument>& arguments) const {
  void* const function = address(procedure);
  if (function == nullptr) throw Error("not exported: " + narrow(procedure.name), TYPE_E_DLLFUNCTIONNOTFOUND);
  if (arguments.size() != procedure.parameters.size()) {
    throw Error("wrong number of arguments for " + narrow(procedure.name), DISP_E_BADPARAMCOUNT);
  }
  std::vector<VARTYPE> types;
  std::vector<VARIANTARG*> values;
  for (std::size_t k = 0; k < arguments.size(); ++k) {
    const Parameter& parameter = procedure.parameters[k];
    const VARIANTARG& value = arguments[k].variant();
    const auto expected = static_cast<VARTYPE>(parameter.type | (parameter.byReference ? VT_BYREF : 0));
    if (value.vt != expected) {
      throw Error("wrong type for " + narrow(procedure.name) + ", " + narrow(parameter.name),
                  DISP_E_TYPEMISMATCH);
    }
    types.push_back(value.vt);
    values.push_back(const_cast<VARIANTARG*>(&value));
  }
  VARIANT result;
  VariantInit(&result);
  check(DispCallFunc(nullptr, reinterpret_cast<ULONG_PTR>(function), CC_STDCALL, procedure.result,
                     static_cast<UINT>(values.size()), types.data(), values.data(), &result),
        "cannot call " + narrow(procedure.name));
  return result;
}

}  // namespace macro
