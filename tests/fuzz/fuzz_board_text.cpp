#include "app/play/board_text.h"
#include "files/square_text.h"
#include "fuzz/check.h"
#include "support/stand_ins.h"

using namespace numorra;

/// Every text is refused with one message, or shown as a board whose text gives the same board.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ScriptedDialogs dialogs;
  Board board;
  PlainBoxes boxes;
  SeededRandom random(1);
  const std::string text = TextOf(data, size);
  const auto read = ReadSquareText(text);
  const auto* square = std::get_if<StoredSquare>(&read);
  const bool pasted = PasteBoard({board, boxes, dialogs, random}, text);
  Check(pasted == (square != nullptr) && dialogs.Take().size() == (pasted ? 0 : 1));
  if (!pasted) return 0;
  for (const std::string& again : {BoardText(board), CsvOf(*square)}) {
    const auto reread = ReadSquareText(again);
    Check(std::get_if<StoredSquare>(&reread) && std::get<StoredSquare>(reread) == *square);
  }
  return 0;
}
