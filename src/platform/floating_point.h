// The floating-point control state of the calling host, and the one the library computes with. Internal.
#pragma once

#include <xmmintrin.h>

namespace kav {

/// Gives the processor its default floating-point control state - no traps, round to nearest, denormals kept,
/// x87 in full precision for the runtime's own functions - and puts the host's back at the end. Hosts do
/// change it: some run with traps unmasked or denormals flushed, and a thread of Windows starts with x87 in
/// double precision.
class DefaultFloatingPoint {
 public:
  DefaultFloatingPoint() noexcept : sse_(_mm_getcsr()) {
    asm volatile("fnstcw %0" : "=m"(x87Control_));
    if (sseChanged()) _mm_setcsr(kSseDefault);
    if (x87Traps()) {
      // Keeps the status as well as the control word: exceptions recorded in the call must not trap in the
      // host later.
      asm volatile("fnstenv %0\n\tfldcw %1" : "=m"(x87_) : "m"(kX87Default));
    } else if (x87Changed()) {
      asm volatile("fldcw %0" : : "m"(kX87Default));
    }
  }

  DefaultFloatingPoint(const DefaultFloatingPoint&) = delete;

  ~DefaultFloatingPoint() {
    if (sseChanged()) _mm_setcsr(sse_);
    if (x87Traps()) {
      asm volatile("fldenv %0"
                   :
                   : "m"(x87_)
                   : "st", "st(1)", "st(2)", "st(3)", "st(4)", "st(5)", "st(6)", "st(7)");
    } else if (x87Changed()) {
      asm volatile("fldcw %0" : : "m"(x87Control_));
    }
  }

 private:
  static constexpr unsigned kSseDefault = 0x1F80;
  static constexpr unsigned kSseStatus = 0x3F;
  static constexpr unsigned short kX87Default = 0x037F;
  static constexpr unsigned short kX87Masks = 0x3F;

  /// As fnstenv writes it in 32-bit protected mode and in 64-bit mode.
  struct X87Environment {
    unsigned words[7];
  };

  bool sseChanged() const noexcept { return (sse_ & ~kSseStatus) != kSseDefault; }
  bool x87Changed() const noexcept { return x87Control_ != kX87Default; }
  bool x87Traps() const noexcept { return (x87Control_ & kX87Masks) != kX87Masks; }

  unsigned sse_;
  unsigned short x87Control_;
  X87Environment x87_;
};

}  // namespace kav
