// Tests whether single values passed by a macro are missing.
#pragma once

#include <string>

#include "kavoratb1c/export.h"

/// -1 when the number is at or below the marker (-infinity too), else 0; NaN gives 0. A macro array is tested
/// more widely: its cells are flagged at or below -1.7e+306, and for NaN.
KAV_API short IsMissingValueDbl(double v);

/// -1 when the string is empty, else 0.
KAV_API short IsMissingValueStr(const std::u16string& s);
