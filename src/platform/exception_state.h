// What the C++ runtime remembers about the exceptions of a thread. Internal.
#pragma once

namespace kav {

/// What the runtime keeps for a thread, as the C++ ABI has it (Itanium C++ ABI: Exception Handling, 2.2.2).
/// A test compares it with the toolchain's own.
struct ExceptionState {
  void* caughtExceptions;       ///< the exceptions being handled, the innermost first
  unsigned uncaughtExceptions;  ///< those thrown and not yet caught
};

/// To be called where an exception of this library has been handled: gives back what was kept for this
/// thread. Does nothing where the runtime keeps it itself.
void forgetHandledException() noexcept;

}  // namespace kav
