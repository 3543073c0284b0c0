// Numbers that cannot be foreseen, from the system. Internal.
#pragma once

#include <cstdint>

namespace kav {

/// 32 bits of the system's entropy. Throws what std::random_device throws.
std::int32_t entropy();

}  // namespace kav
