#include "kavoratb1c/missing/missing_values.h"

#include "kavoratb1c/marker.h"

using namespace kav;

short IsMissingValueDbl(double v) { return asFlag(v <= kMissing); }

short IsMissingValueStr(const std::u16string& s) { return asFlag(s.empty()); }
