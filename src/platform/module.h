// The library as a loaded module. Internal.
#pragma once

/// Keeps the module in its host from now on, whatever the host releases. The runtime keeps thread-local
/// storage for exceptions that is never given back: a host that unloads and reloads the module after a failed
/// call would lose an index each time, of little more than a thousand that a process has. Nothing where there
/// is no such limit.
void keepModuleLoaded() noexcept;
