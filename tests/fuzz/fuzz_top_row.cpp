#include "fuzz/check.h"
#include "generate/top_row_square.h"
#include "support/boards.h"
#include "support/stand_ins.h"

using namespace numorra;

/// Every text is refused or gives four numbers in range; small ones give a square with them on top.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto top = ParseTopRow(TextOf(data, size));
  if (!top) return 0;
  for (const int number : *top)
    Check(number >= 0 && number <= 9999);
  SeededRandom random(size);
  NotingStage stage;
  stage.YieldsLeft = 200;  // a proof of "none" may take long
  try {
    const auto found = FindTopRowSquare(*top, random, stage);
    if (!found) return 0;
    const slow::Rows rows = RowsOf(found->Square, 4);
    Check(slow::WhyNotMagic(rows, found->Total).empty());
    for (std::size_t c = 0; c < 4; ++c)
      Check(rows[0][c] == (*top)[c]);
  } catch (const Superseded&) {
  }
  return 0;
}
