// Memory runs out inside an entry: each allocation in turn fails, alone or with all that follow. The entry
// returns its failure value, the caller's arrays are as before, and nothing is lost.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "windows/any_entry.h"
#include "windows/import_patch.h"

namespace {

/// What the DLL allocates, counted and made to fail.
struct Allocator {
  int made = 0;            ///< allocations asked for since the last start
  int failFrom = INT_MAX;  ///< the first that fails, from 1
  int failTo = INT_MAX;    ///< the last that fails
  int alive = 0;           ///< blocks and strings allocated and not freed

  bool fails() {
    ++made;
    return made >= failFrom && made <= failTo;
  }

  void start(int from, int to) {
    made = 0;
    failFrom = from;
    failTo = to;
  }
};

Allocator allocator;

void* countedMalloc(std::size_t bytes) {
  if (allocator.fails()) return nullptr;
  ++allocator.alive;
  return std::malloc(bytes);
}

void* countedCalloc(std::size_t count, std::size_t bytes) {
  if (allocator.fails()) return nullptr;
  ++allocator.alive;
  return std::calloc(count, bytes);
}

void countedFree(void* block) {
  allocator.alive -= block != nullptr;
  std::free(block);
}

BSTR WINAPI countedAllocString(const OLECHAR* text) {
  if (allocator.fails()) return nullptr;
  ++allocator.alive;
  return SysAllocString(text);
}

void WINAPI countedFreeString(BSTR text) {
  allocator.alive -= text != nullptr;
  SysFreeString(text);
}

/// The DLL's allocations go through the counted ones while this lives.
class CountedAllocations {
 public:
  CountedAllocations()
      : malloc_(module(), "malloc", reinterpret_cast<void*>(&countedMalloc)),
        calloc_(module(), "calloc", reinterpret_cast<void*>(&countedCalloc)),
        free_(module(), "free", reinterpret_cast<void*>(&countedFree)),
        allocString_(module(), "SysAllocString", reinterpret_cast<void*>(&countedAllocString)),
        freeString_(module(), "SysFreeString", reinterpret_cast<void*>(&countedFreeString)) {}

 private:
  static HMODULE module() { return GetModuleHandleW(L"KAVORATB1C.dll"); }

  ImportPatch malloc_, calloc_, free_, allocString_, freeString_;
};

std::string failureText(const macro::Procedure& procedure) {
  VARIANT failed{};
  if (procedure.result == VT_R8) failed.dblVal = -1.79769313486231E+308;
  if (procedure.result == VT_INT) failed.intVal = -1;
  return resultText(procedure, failed);
}

/// Determinants tell a failure by a result and a status of their own, tested below.
bool tellsItself(const macro::Procedure& procedure, const VARIANT& result) {
  return procedure.name.starts_with(L"VB_M_Determinant") && result.dblVal == 1.79769313486231E+308;
}

/// Calls an entry while the allocations from `first` to `last` fail. It must do its whole work all the same,
/// as a sort does that can go without its buffer, or tell its failure and leave everything as it was.
///
/// @param failed  set when it told its failure
/// @return how many allocations it asked for
int callWithFailures(const macro::Procedure& procedure, Extent extent, int first, int last,
                     const std::string& success, bool& failed) {
  const AnyArguments arguments(procedure, extent);
  const std::vector<unsigned char> before = arguments.arrayBytes();
  const int alive = allocator.alive;
  allocator.start(first, last);
  const VARIANT result = dll().call(procedure, arguments.list());
  const int made = allocator.made;
  allocator.start(INT_MAX, INT_MAX);
  if (made < first || resultText(procedure, result) + arguments.arrayText() == success) {
    EXPECT_EQ(resultText(procedure, result) + arguments.arrayText(), success);
  } else {
    if (!tellsItself(procedure, result)) {
      EXPECT_EQ(resultText(procedure, result), failureText(procedure));
      EXPECT_EQ(arguments.arrayBytes(), before);
    }
    EXPECT_EQ(allocator.alive, alive);
    failed = true;
  }
  return made;
}

/// The runtime sorts its tables with the first exception and keeps that memory until the module is unloaded.
void failOnce() { EXPECT_EQ(dll().integer(L"VB_V_SetToValue", {static_cast<double*>(nullptr), 1, 1.5}), -1); }

}  // namespace

TEST(AllocationFailure, LeavesTheFailureValueAndTheArraysAsTheyWere) {
  failOnce();
  std::size_t failing = 0;
  for (const macro::Procedure& procedure : entries()) {
    bool failed = false;
    for (const Extent extent : {Extent::Small, Extent::Large}) {
      const AnyArguments arguments(procedure, extent);
      const VARIANT result = dll().call(procedure, arguments.list());
      const std::string success = resultText(procedure, result) + arguments.arrayText();

      const CountedAllocations counted;
      for (const bool alone : {true, false}) {
        // Every one of the first, then some: tables of strings ask for a thousand.
        for (int k = 1;; k += 1 + k / 24) {
          SCOPED_TRACE(plain(procedure.name) + ", allocation " + std::to_string(k) +
                       (alone ? " alone" : " and all after"));
          if (callWithFailures(procedure, extent, k, alone ? k : INT_MAX, success, failed) < k) break;
        }
      }
    }
    failing += failed ? 1 : 0;
  }
  // Arrays of which nothing is missing serve as they stand, so not every entry needs memory.
  EXPECT_GT(failing, entries().size() / 2);
}

TEST(AllocationFailure, DeterminantsTellItByTheirStatus) {
  failOnce();
  std::vector<double> cells = {2.385, 1.25, -0.5, 4.0};
  const std::vector<double> before = cells;
  VARIANT_BOOL problem = 5;
  const CountedAllocations counted;
  allocator.start(1, INT_MAX);
  const double determinant = dll().number(L"VB_M_Determinant", {cells, 2, &problem});
  allocator.start(INT_MAX, INT_MAX);
  EXPECT_EQ(determinant, 1.79769313486231E+308);
  EXPECT_EQ(problem, VARIANT_TRUE);
  EXPECT_EQ(cells, before);
}

TEST(AllocationFailure, SizesThatNoMemoryHoldsFailTheSameWay) {
  std::vector<double> cells = {2.385, 1.25}, out = {7.5};
  dll().call(L"VB_M_DuplicateDbl", {cells, INT_MAX, INT_MAX, out});
  EXPECT_EQ(out[0], 7.5);
  macro::Strings slots(1);
  dll().call(L"VB_M_DuplicateStr", {slots, INT_MAX, INT_MAX, slots});
  EXPECT_EQ(slots.data()[0], nullptr);
#if defined(__i386__)
  EXPECT_EQ(dll().number(L"VB_V_Sum2Dbl", {cells, INT_MAX}), -1.79769313486231E+308);
  EXPECT_EQ(dll().integer(L"VB_V_SetToValue", {out, INT_MAX, 1.0}), -1);
  EXPECT_EQ(out[0], 7.5);
#endif
}
