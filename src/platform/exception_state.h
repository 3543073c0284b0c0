// What the C++ runtime remembers about the exceptions of a thread. Internal.
#pragma once

/// To be called where an exception of this library has been handled: gives back what was kept for this
/// thread. Does nothing where the runtime keeps it itself.
void forgetHandledException() noexcept;
