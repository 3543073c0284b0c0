// The DLL as a module of Windows: what it imports, its resources and flags, loading and unloading it.

#include <gtest/gtest.h>
// Needs windows.h before it.
#include <windows.h>

#include <set>
#include <string>

#include "windows/any_entry.h"

namespace {

const wchar_t* const kCopy = L"KAVORATB1C_cycles.dll";

/// A copy under another name, so that it is unloaded when this test releases it, whatever other tests hold.
class ModuleCopy {
 public:
  ModuleCopy() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(GetModuleHandleW(L"KAVORATB1C.dll"), path, MAX_PATH);
    CopyFileW(path, kCopy, FALSE);
  }
  ~ModuleCopy() { DeleteFileW(kCopy); }
};

int freeThreadLocalIndices() {
  std::vector<DWORD> taken;
  for (DWORD index; (index = TlsAlloc()) != TLS_OUT_OF_INDEXES;) taken.push_back(index);
  for (DWORD index : taken) TlsFree(index);
  return static_cast<int>(taken.size());
}

/// Memory that the process has committed for itself.
std::size_t privateBytes() {
  std::size_t bytes = 0;
  MEMORY_BASIC_INFORMATION region;
  for (const char* at = nullptr; VirtualQuery(at, &region, sizeof region) != 0;
       at = static_cast<const char*>(region.BaseAddress) + region.RegionSize) {
    if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) bytes += region.RegionSize;
  }
  return bytes;
}

using Sum = double(__stdcall*)(double*, int);
using Duplicate = void(__stdcall*)(double*, int, int, double*);

template <class Function>
Function exported(HMODULE module, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

/// One life of the module: it works, and it fails as told when asked for what no memory holds.
void cycle(bool failToo) {
  const HMODULE module = LoadLibraryW(kCopy);
  ASSERT_NE(module, nullptr);
  double cells[] = {2.385, 1.25};
  EXPECT_EQ(exported<Sum>(module, "VB_V_Sum2Dbl")(cells, 2), 3.635);
  if (failToo) {
    exported<Duplicate>(module, "VB_M_DuplicateDbl")(cells, INT_MAX, INT_MAX, cells);
    EXPECT_EQ(cells[0], 2.385);
  }
  FreeLibrary(module);
}

const IMAGE_NT_HEADERS* headersOf(HMODULE module) {
  const auto* base = reinterpret_cast<const unsigned char*>(module);
  return reinterpret_cast<const IMAGE_NT_HEADERS*>(base +
                                                   reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
}

}  // namespace

TEST(Module, ImportsOnlyTheSystem) {
  ASSERT_FALSE(entries().empty());
  const HMODULE module = GetModuleHandleW(L"KAVORATB1C.dll");
  const auto* base = reinterpret_cast<const unsigned char*>(module);
  const auto& directory = headersOf(module)->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  std::set<std::string> imported;
  for (const auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
       dll->Name != 0; ++dll) {
    imported.insert(reinterpret_cast<const char*>(base + dll->Name));
  }
  EXPECT_EQ(imported, (std::set<std::string>{"KERNEL32.dll", "OLEAUT32.dll", "msvcrt.dll"}));
}

TEST(Module, CanLieAnywhereAndRunsNoData) {
  ASSERT_FALSE(entries().empty());
  const IMAGE_NT_HEADERS* headers = headersOf(GetModuleHandleW(L"KAVORATB1C.dll"));
  const WORD wanted = IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE | IMAGE_DLLCHARACTERISTICS_NX_COMPAT;
  EXPECT_EQ(headers->OptionalHeader.DllCharacteristics & wanted, wanted);
  EXPECT_EQ(headers->FileHeader.TimeDateStamp, 0u);
}

TEST(Module, TellsItsVersion) {
  ASSERT_FALSE(entries().empty());
  DWORD unused;
  const DWORD size = GetFileVersionInfoSizeW(L"KAVORATB1C.dll", &unused);
  ASSERT_GT(size, 0u);
  std::vector<unsigned char> info(size);
  ASSERT_TRUE(GetFileVersionInfoW(L"KAVORATB1C.dll", 0, size, info.data()));
  void* text = nullptr;
  UINT length = 0;
  ASSERT_TRUE(VerQueryValueW(info.data(), L"\\StringFileInfo\\040904B0\\ProductName", &text, &length));
  EXPECT_STREQ(static_cast<const wchar_t*>(text), L"KAVORATB1C");
}

TEST(Module, GivesEverythingBackWhenUnloaded) {
  ASSERT_FALSE(entries().empty());
  const ModuleCopy copy;
  for (const bool failToo : {false, true}) {
    cycle(failToo);
    const int indices = freeThreadLocalIndices();
    const std::size_t bytes = privateBytes();
    for (int k = 0; k < 2000; ++k) {
      cycle(failToo);
      ASSERT_EQ(GetModuleHandleW(kCopy), nullptr) << "not unloaded in cycle " << k;
    }
    EXPECT_EQ(freeThreadLocalIndices(), indices);
    EXPECT_LT(privateBytes(), bytes + (4u << 20));
  }
}

#if defined(__i386__)

TEST(Module, FailsAsToldBesideASharedUnwinder) {
  ASSERT_FALSE(entries().empty());
  const HMODULE unwinder = LoadLibraryW(L"libgcc_s_dw2-1.dll");
  ASSERT_NE(unwinder, nullptr);
  const ModuleCopy copy;
  cycle(true);
  FreeLibrary(unwinder);
}

#endif
