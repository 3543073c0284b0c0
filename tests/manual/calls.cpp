#include "manual/calls.h"

#include "manual/generated/prototypes.h"

const std::map<std::string, manual::Entry>& manual::entries() {
  static const std::map<std::string, Entry> all = {
#include "manual/generated/entries.inc"
  };
  return all;
}
