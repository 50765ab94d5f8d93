#include "app/play/board_text.h"
#include "fuzz/check.h"
#include "support/stand_ins.h"

using namespace numorra;

/// Every text is refused with one message, or shown as a board whose text gives the same board.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ScriptedDialogs dialogs;
  Board board;
  PlainBoxes boxes;
  const std::string text = TextOf(data, size);
  const auto block = ParseBlock(text);
  try {
    const bool pasted = PasteBoard(board, boxes, dialogs, text);
    Check(pasted == block.has_value() && dialogs.Take().size() == (pasted ? 0 : 1));
  } catch (const RuntimeError& error) {
    Check(block && error.Kind() == Fault::Overflow);
  }
  Check(!board.Shown() || ParseBlock(BoardText(board)) == block);
  return 0;
}
