// The calling convention of every entry, seen from a stack that is watched: bytes removed, stack
// pointer, saved registers, and stacks that are aligned to 4 bytes only.

#include <gtest/gtest.h>

#include <bit>

#include "windows/any_entry.h"

#if defined(__i386__)

namespace {

struct Watch {
  std::uint32_t stackAtCall;  ///< stack pointer with the arguments pushed
  std::uint32_t stackAtReturn;
  std::uint32_t registersKept;  ///< 1 when ebx, esi and edi came back unchanged
};

}  // namespace

// Calls function with the words on a stack that is `misalignment` bytes off a 16-byte boundary once they are
// pushed.
extern "C" std::uint64_t callWatched(void* function, const std::uint32_t* words, std::size_t count,
                                     std::uint32_t misalignment, Watch* watch);
asm(R"(
.globl _callWatched
_callWatched:
  pushl %ebp
  movl  %esp, %ebp
  pushl %ebx
  pushl %esi
  pushl %edi
  movl  12(%ebp), %esi
  movl  16(%ebp), %ecx
  leal  0(,%ecx,4), %eax
  andl  $-16, %esp
  subl  $16, %esp
  subl  20(%ebp), %esp
  andl  $12, %eax
  addl  %eax, %esp
1:testl %ecx, %ecx
  jz    2f
  decl  %ecx
  pushl (%esi,%ecx,4)
  jmp   1b
2:movl  24(%ebp), %ebx
  movl  %esp, (%ebx)
  movl  $0x5EED0001, %esi
  movl  $0x5EED0002, %edi
  call  *8(%ebp)
  movl  24(%ebp), %ecx
  movl  %esp, 4(%ecx)
  cmpl  %ebx, %ecx
  jne   3f
  cmpl  $0x5EED0001, %esi
  jne   3f
  cmpl  $0x5EED0002, %edi
  jne   3f
  movl  $1, 8(%ecx)
3:leal  -12(%ebp), %esp
  popl  %edi
  popl  %esi
  popl  %ebx
  popl  %ebp
  ret
)");

namespace {

/// The same function seen as one that returns a double.
double callWatchedForDouble(void* function, const std::vector<std::uint32_t>& words,
                            std::uint32_t misalignment, Watch* watch) {
  using Call = double (*)(void*, const std::uint32_t*, std::size_t, std::uint32_t, Watch*);
  return reinterpret_cast<Call>(reinterpret_cast<void*>(&callWatched))(function, words.data(), words.size(),
                                                                       misalignment, watch);
}

/// Result bits of a watched call.
std::uint64_t callEntry(const macro::Procedure& procedure, const AnyArguments& arguments,
                        std::uint32_t misalignment, Watch* watch) {
  const std::vector<std::uint32_t> words = arguments.stackWords();
  void* const function = dll().address(procedure);
  if (procedure.result == VT_R8) {
    return std::bit_cast<std::uint64_t>(callWatchedForDouble(function, words, misalignment, watch));
  }
  const std::uint64_t result = callWatched(function, words.data(), words.size(), misalignment, watch);
  return procedure.result == VT_BOOL   ? result & 0xFFFF
         : procedure.result == VT_VOID ? 0
                                       : result & 0xFFFFFFFF;
}

}  // namespace

TEST(Calling, EveryEntryRemovesItsArgumentsAndWorksOnAnyStack) {
  for (const macro::Procedure& procedure : entries()) {
    std::uint64_t expected = 0;
    std::string expectedArrays;
    for (std::uint32_t misalignment : {0u, 4u, 8u, 12u}) {
      SCOPED_TRACE(plain(procedure.name) + ", stack off by " + std::to_string(misalignment));
      const AnyArguments arguments(procedure, Extent::Large);
      Watch watch{};
      const std::uint64_t result = callEntry(procedure, arguments, misalignment, &watch);
      EXPECT_EQ(watch.stackAtCall % 16, (16 - misalignment) % 16);
      EXPECT_EQ(watch.stackAtReturn - watch.stackAtCall, arguments.stackWords().size() * 4);
      EXPECT_EQ(watch.registersKept, 1u);
      if (misalignment == 0) {
        expected = result;
        expectedArrays = arguments.arrayText();
      }
      if (procedure.result != VT_BSTR) {
        EXPECT_EQ(result, expected);
      }
      EXPECT_EQ(arguments.arrayText(), expectedArrays);
    }
  }
}

#endif
