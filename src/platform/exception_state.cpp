// The runtime's own version of this state is allocated with the first exception of a thread and ends the
// process when that fails - which is when the first exception is thrown because memory is out. It also takes
// a thread-local index that is never given back, so that a host could load and unload the library only about
// a thousand times. Exceptions of this library begin and end inside one call, so a place in a fixed table
// does.

#include "platform/exception_state.h"

#if defined(_WIN32)

#include <cxxabi.h>
#include <windows.h>

#include <atomic>
#include <cstdlib>

struct __cxxabiv1::__cxa_eh_globals : kav::ExceptionState {};

namespace __gnu_cxx {
/// Releases the runtime's memory reserve. Part of the runtime, for leak checkers; no header declares it.
void __freeres();
}  // namespace __gnu_cxx

namespace {

/// Made before all other static objects, so that it ends after them.
struct Reserve {
  ~Reserve() { __gnu_cxx::__freeres(); }
};

__attribute__((init_priority(101))) Reserve reserve;

struct Place {
  std::atomic<DWORD> thread;  ///< 0 while free; no thread has the identifier 0
  abi::__cxa_eh_globals state;
};

/// More than the threads that can be failing at one time.
Place places[4096];

Place* placeOf(DWORD thread) {
  for (Place& place : places) {
    if (place.thread.load(std::memory_order_relaxed) == thread) return &place;
  }
  return nullptr;
}

Place* takePlace(DWORD thread) {
  for (Place& place : places) {
    DWORD nobody = 0;
    if (place.thread.compare_exchange_strong(nobody, thread)) return &place;
  }
  return nullptr;
}

}  // namespace

namespace __cxxabiv1 {

// The linker takes these two before the runtime's.

extern "C" __cxa_eh_globals* __cxa_get_globals() noexcept {
  const DWORD thread = GetCurrentThreadId();
  Place* place = placeOf(thread);
  if (place == nullptr) place = takePlace(thread);
  if (place == nullptr) std::abort();
  return &place->state;
}

extern "C" __cxa_eh_globals* __cxa_get_globals_fast() noexcept { return __cxa_get_globals(); }

}  // namespace __cxxabiv1

void kav::forgetHandledException() noexcept {
  Place* const place = placeOf(GetCurrentThreadId());
  if (place == nullptr || place->state.caughtExceptions != nullptr || place->state.uncaughtExceptions != 0)
    return;
  place->thread.store(0);
}

/// A native caller may have caught an exception of a worker in a module of its own, where that is possible;
/// then the place of the thread is free only once the thread ends.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
  if (reason != DLL_THREAD_DETACH) return TRUE;
  if (Place* const place = placeOf(GetCurrentThreadId())) {
    place->state = {};
    place->thread.store(0);
  }
  return TRUE;
}

#if defined(__i386__)

// The compiler's startup code looks for a shared unwinder in the process and, when another library has loaded
// one, hands it this module's unwind tables; the unwinder that is linked in here would then find none, and
// the first exception would end the host. This import slot, which the linker takes before the system's, makes
// the search come out empty. Nothing else in the module asks for modules.
namespace {
HMODULE WINAPI findNoModule(LPCSTR) { return nullptr; }
}  // namespace

extern "C" {
extern HMODULE(WINAPI* moduleSearchSlot)(LPCSTR) __asm__("__imp__GetModuleHandleA@4");
HMODULE(WINAPI* moduleSearchSlot)(LPCSTR) = &findNoModule;
}

#endif

#else

void kav::forgetHandledException() noexcept {}

#endif
