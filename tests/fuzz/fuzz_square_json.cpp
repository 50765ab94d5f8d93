#include "files/square_json.h"
#include "fuzz/check.h"

using namespace numorra;

/// Every file is refused with one sentence, or is a square whose JSON reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = TextOf(data, size);
  const auto read = ReadSquareJson(text);
  const auto* square = std::get_if<StoredSquare>(&read);
  if (!square) {
    Check(!std::get<Unreadable>(read).Why.empty());
    return 0;
  }
  const auto again = ReadSquareJson(JsonOf(*square));
  Check(std::get_if<StoredSquare>(&again) && std::get<StoredSquare>(again).Cells == square->Cells &&
        std::get<StoredSquare>(again).Givens == square->Givens &&
        std::get<StoredSquare>(again).Noted == square->Noted);
  return 0;
}
