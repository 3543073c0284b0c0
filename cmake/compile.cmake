# How everything here is compiled: the same arithmetic on every build, strict about warnings.

add_library(kav_compile INTERFACE)

target_include_directories(kav_compile INTERFACE ${PROJECT_SOURCE_DIR}/include)

target_compile_options(kav_compile INTERFACE
  -Wall -Wextra -Wconversion -Wshadow
  # Doubles are computed in SSE2 registers, never fused, never in excess precision: the bits of a result do not depend
  # on the build.
  -msse2 -mfpmath=sse -ffp-contract=off
  # No path of the building machine in the products.
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
  $<$<BOOL:${KAV_STRICT}>:-Werror>)

if(KAV_SANITIZE)
  target_compile_options(kav_compile INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all)
  target_link_options(kav_compile INTERFACE -fsanitize=address,undefined)
endif()

if(KAV_COVERAGE)
  target_compile_options(kav_compile INTERFACE --coverage)
  target_link_options(kav_compile INTERFACE --coverage)
endif()

if(WIN32)
  # The runtime is linked in: KERNEL32, msvcrt and OLEAUT32 are all that is imported.
  target_link_options(kav_compile INTERFACE -static -Wl,--no-insert-timestamp)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Hosts give a 4-byte aligned stack.
    target_compile_options(kav_compile INTERFACE -mincoming-stack-boundary=2)
  endif()
endif()
