#include "platform/entropy.h"

#include <random>

namespace kav {

std::int32_t entropy() { return static_cast<std::int32_t>(std::random_device()()); }

}  // namespace kav
