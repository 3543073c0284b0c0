// A macro engine in small: calls a DLL's functions as a spreadsheet's macros do, knowing nothing of them but
// what the DLL's type library tells.
#pragma once

#include <windows.h>
// Needs windows.h before it.
#include <oleauto.h>

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace macro {

/// What went wrong, with the code that the system gave.
class Error : public std::runtime_error {
 public:
  Error(const std::string& what, HRESULT code);
};

struct Parameter {
  std::wstring name;
  VARTYPE type;  ///< VT_R8, VT_INT, VT_BOOL or VT_BSTR
  bool byReference;
  bool in;
  bool out;
};

/// One function of the type library's module.
struct Procedure {
  std::wstring name;
  MEMBERID member;
  WORD ordinal;
  VARTYPE result;  ///< as for parameters, or VT_VOID
  std::wstring help;
  std::vector<Parameter> parameters;
};

/// An array of macro strings; owns them.
class Strings {
 public:
  explicit Strings(std::size_t count) : slots_(count, nullptr) {}
  Strings(std::initializer_list<std::wstring_view> texts);
  explicit Strings(const std::vector<std::string>& texts);
  Strings(const Strings&) = delete;
  ~Strings();

  BSTR* data() { return slots_.data(); }
  std::wstring operator[](std::size_t k) const;

 private:
  std::vector<BSTR> slots_;
};

/// An argument as a macro passes it: scalars by value, arrays as the address of their first element.
class Argument {
 public:
  Argument(double x) { value_.vt = VT_R8, value_.dblVal = x; }
  Argument(int n) { value_.vt = VT_INT, value_.intVal = n; }
  Argument(bool b) { value_.vt = VT_BOOL, value_.boolVal = b ? VARIANT_TRUE : VARIANT_FALSE; }
  Argument(BSTR s) { value_.vt = VT_BSTR, value_.bstrVal = s; }
  Argument(std::vector<double>& a) : Argument(a.data()) {}
  Argument(std::vector<int>& a) : Argument(a.data()) {}
  Argument(std::vector<VARIANT_BOOL>& a) : Argument(a.data()) {}
  Argument(Strings& a) : Argument(a.data()) {}

  // The address itself, where there may be none.
  Argument(double* a) { value_.vt = VT_BYREF | VT_R8, value_.pdblVal = a; }
  Argument(int* a) { value_.vt = VT_BYREF | VT_INT, value_.pintVal = a; }
  Argument(VARIANT_BOOL* a) { value_.vt = VT_BYREF | VT_BOOL, value_.pboolVal = a; }
  Argument(BSTR* a) { value_.vt = VT_BYREF | VT_BSTR, value_.pbstrVal = a; }

  const VARIANTARG& variant() const { return value_; }

 private:
  VARIANTARG value_{};
};

/// A DLL with a type library.
class Module {
 public:
  /// Reads the type library; the DLL itself is loaded with the first call. Throws Error.
  explicit Module(const std::wstring& dll);
  Module(const Module&) = delete;
  ~Module();

  const std::vector<Procedure>& procedures() const { return procedures_; }

  /// Throws Error when there is none of that name.
  const Procedure& procedure(std::wstring_view name) const;

  /// The address of a function, null when the DLL does not export it.
  void* address(const Procedure& procedure) const;

  /// Calls a function by name. Throws Error when it cannot be called with these arguments.
  VARIANT call(std::wstring_view name, const std::vector<Argument>& arguments) const;
  VARIANT call(const Procedure& procedure, const std::vector<Argument>& arguments) const;

  double number(std::wstring_view name, const std::vector<Argument>& arguments) const {
    return call(name, arguments).dblVal;
  }
  int integer(std::wstring_view name, const std::vector<Argument>& arguments) const {
    return call(name, arguments).intVal;
  }
  VARIANT_BOOL boolean(std::wstring_view name, const std::vector<Argument>& arguments) const {
    return call(name, arguments).boolVal;
  }
  std::wstring text(std::wstring_view name, const std::vector<Argument>& arguments) const {
    const VARIANT result = call(name, arguments);
    const std::wstring copy(result.bstrVal, SysStringLen(result.bstrVal));
    SysFreeString(result.bstrVal);
    return copy;
  }

 private:
  void readProcedures();

  ITypeLib* library_ = nullptr;
  ITypeInfo* module_ = nullptr;
  std::vector<Procedure> procedures_;
};

}  // namespace macro
