// Many calls leave nothing behind.
#include <gtest/gtest.h>

#include <algorithm>

#include "interface_calls.h"
#include "mock_host.h"
#include "report.h"

namespace quorvex::windows {
namespace {

struct Holdings {
  DWORD handles = 0;
  SIZE_T bytes = 0;
};

// Handles are given out again once they are free, and the lowest come first.
DWORD Next_Handle() {
  HANDLE const next = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
  ::CloseHandle(next);
  return static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(next) / 4);
}

SIZE_T Busy_Bytes(HANDLE heap) {
  SIZE_T bytes = 0;
  PROCESS_HEAP_ENTRY entry{};
  ::HeapLock(heap);
  while (::HeapWalk(heap, &entry) != 0)
    if ((entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0) bytes += entry.cbData;
  ::HeapUnlock(heap);
  return bytes;
}

Holdings Held_Now() {
  HANDLE heaps[64];
  const DWORD count = std::min<DWORD>(::GetProcessHeaps(64, heaps), 64);
  Holdings held;
  held.handles = Next_Handle();
  for (DWORD i = 0; i < count; ++i) held.bytes += Busy_Bytes(heaps[i]);
  return held;
}

// As VariantClear does on Windows: wine's clears a record, but keeps its memory.
void Destroy(Outcome outcome) {
  ASSERT_EQ(outcome.result->vt, VT_RECORD);
  const VARIANT record = outcome.result.release();
  record.pRecInfo->RecordDestroy(record.pvRecord);
  record.pRecInfo->Release();
}

// A method of each shape, and ways in which a call fails.
void Call_Each_Once(IDispatch& object, IDispatch& other, const VARIANT& range) {
  static const VARIANT text = Text("-1234567.8901234567890123");
  static const VARIANT seven = Text("7");
  static const VARIANT word = Text("abc");
  static const VARIANT table = Table(2, 2, {Number(1), text, Number(3), word});
  static const VARIANT digits = Number(5);
  for (IDispatch* one : {&object, &other}) {
    Call_Late(*one, "qvxADD", {text, Number(1), Omitted(), Truth(true)});
    Call_Late(*one, "qvxSUM2", {text, table, range, Number(7)});
    Call_Late(*one, "qvxSORT", {table});
    Call_Late(*one, "qvxISGREATER", {text, Number(2)});
    // A number: wine forgets to free a text in such a field of a record.
    Destroy(Call_Late(*one, "Restrictionator", {Number(2)}, {{"format_decimal_place", digits}}));
    Destroy(Call_Late(*one, "myInverse5", {seven, digits}));
    Call_Late(*one, "qvxABS", {range});
    Call_Late(*one, "Min", {word, Number(1)});
    Call_Late(*one, "qvxABS", {});
    Call_Late(*one, "qvxNOTHING", {});
  }
}

TEST(Endurance, AHundredThousandCallsLeaveNothing) {
  const auto object = Make_Object();
  ASSERT_TRUE(object);
  const auto methods = Described_Interface(*object.get());
  const Mock_Pointer range = Make_Mock({{"", [](auto&) { return Number(2.5); }}});
  const auto rounds = [&](int count) {
    for (int i = 0; i < count; ++i) {
      const auto other = i % 10 == 0 ? Make_Object() : object;
      Call_Each_Once(*object.get(), *other.get(), Object(range));
    }
  };
  rounds(500);
  const Holdings before = Held_Now();
  rounds(5000);
  const Holdings after = Held_Now();
  Report("100000 calls: " + std::to_string(before.handles) + " as the next handle before and " +
         std::to_string(after.handles) + " after, " + std::to_string(before.bytes / 1024) +
         " KB of memory and " + std::to_string(after.bytes / 1024));
  EXPECT_LE(after.handles, before.handles + 2);
  EXPECT_LE(after.bytes, before.bytes + (std::size_t{1} << 20));
}

}  // namespace
}  // namespace quorvex::windows
