// Whether values from a macro are missing.
#pragma once

#include <string>

#include "kavoratb1c/export.h"

/// Whether a number from a macro is the marker: -1 when it is at or below the marker (-infinity too), else 0.
/// NaN gives 0. Not the test on arrival, which flags more.
KAV_API short IsMissingValueDbl(double v);

/// Whether a text is missing: -1 when it is empty, else 0.
KAV_API short IsMissingValueStr(const std::u16string& s);
