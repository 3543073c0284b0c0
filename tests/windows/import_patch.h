// Replaces a function that a loaded module imports, until the end of the object's life.
#pragma once

#include <windows.h>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>

class ImportPatch {
 public:
  /// Throws std::runtime_error when the module does not import the function by name.
  ImportPatch(HMODULE module, const char* function, void* replacement) : slot_(find(module, function)) {
    original_ = exchange(replacement);
  }
  ImportPatch(const ImportPatch&) = delete;
  ~ImportPatch() { exchange(original_); }

  void* original() const { return original_; }

 private:
  void* exchange(void* address) {
    DWORD protection;
    VirtualProtect(slot_, sizeof *slot_, PAGE_READWRITE, &protection);
    void* const before = *slot_;
    *slot_ = address;
    VirtualProtect(slot_, sizeof *slot_, protection, &protection);
    return before;
  }

  static void** find(HMODULE module, const char* function) {
    auto* const base = reinterpret_cast<unsigned char*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const auto& directory = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + directory.VirtualAddress);
    for (; dll->Name != 0; ++dll) {
      const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + dll->OriginalFirstThunk);
      auto** slots = reinterpret_cast<void**>(base + dll->FirstThunk);
      for (; names->u1.AddressOfData != 0; ++names, ++slots) {
        if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
        const auto* name = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
        if (std::strcmp(reinterpret_cast<const char*>(name->Name), function) == 0) return slots;
      }
    }
    throw std::runtime_error(std::string("not imported: ") + function);
  }

  void** slot_;
  void* original_;
};
