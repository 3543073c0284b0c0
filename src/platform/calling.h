// The calling convention of the macro entries. Internal.
#pragma once

#if defined(_WIN32) && defined(__i386__)
// The callee removes its arguments, and a macro host's stack is aligned to 4 bytes only: the entry aligns it
// for everything below.
#define KAV_CALL __stdcall __attribute__((force_align_arg_pointer))
#else
#define KAV_CALL
#endif
