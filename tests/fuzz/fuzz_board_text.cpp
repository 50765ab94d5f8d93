#include "app/play/board_text.h"
#include "fuzz/check.h"
#include "support/stand_ins.h"

using namespace numorra;

/// Every text is refused with one message, or shown as a board whose text gives the same board.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  struct : Dialogs {
    void Tell(const std::string&) override { ++Told; }
    bool Ask(const std::string&) override { return false; }
    std::optional<std::string> AskText(const std::string&, const std::string&) override {
      return std::nullopt;
    }
    int Told = 0;
  } dialogs;
  Board board;
  PlainBoxes boxes;
  const std::string text = TextOf(data, size);
  const auto block = ParseBlock(text);
  try {
    const bool pasted = PasteBoard(board, boxes, dialogs, text);
    Check(pasted == block.has_value() && dialogs.Told == (pasted ? 0 : 1));
  } catch (const RuntimeError& error) {
    Check(block && error.Kind() == Fault::Overflow);
  }
  Check(!board.Shown() || ParseBlock(BoardText(board)) == block);
  return 0;
}
