// Strings and booleans of OLE Automation: the real ones on Windows, a stand-in with the same contract
// elsewhere. Internal.
#pragma once

#if defined(_WIN32)

#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// Needs windows.h before it.
#include <oleauto.h>

namespace kav {

using ::BSTR;
using ::OLECHAR;
using ::VARIANT_BOOL;

using ::SysAllocString;
using ::SysFreeString;
using ::SysStringByteLen;

}  // namespace kav

#else

namespace kav {

using VARIANT_BOOL = short;
using OLECHAR = char16_t;
using BSTR = OLECHAR*;

/// A new string of the characters before the first zero; null for null or when memory is out.
BSTR SysAllocString(const OLECHAR* text);

/// Releases a string; null is ignored.
void SysFreeString(BSTR text);

/// Bytes of the characters, the closing zero not included; 0 for null.
unsigned SysStringByteLen(BSTR text);

}  // namespace kav

#endif
