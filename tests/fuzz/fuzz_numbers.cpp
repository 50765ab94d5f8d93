#include "app/board/numbers.h"
#include "app/board/runtime_error.h"
#include "fuzz/check.h"
#include "generate/proposal.h"

using namespace numorra;

/// Str writes what Val reads, so that it reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = TextOf(data, size);
  NormalTotalText(text);
  try {
    const double value = Val(text);
    Check(Val(Str(value)) == value);
    Check(Val(Decimal(value)) == value);
    Check(StrictVal(Str(value)) == value);
    ToInt32(value);
    ToInt16(value);
  } catch (const RuntimeError& error) {
    Check(error.Kind() == Fault::Overflow);
  }
  try {
    Check(StrictVal(text) == Val(text));
  } catch (const RuntimeError&) {
  }
  return 0;
}
