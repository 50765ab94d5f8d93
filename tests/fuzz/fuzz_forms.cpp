#include "files/formats.h"
#include "fuzz/check.h"

using namespace numorra;

/// Every text is refused, or read as a square that is read again from whatever form it is written
/// in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = TextOf(data, size);
  const auto read = ReadSquare(text);
  const auto* square = std::get_if<StoredSquare>(&read);
  if (!square) return 0;
  for (const Format& format : kFormats) {
    const std::string written = format.Write(*square, text.substr(0, 20));
    if (!format.Read) continue;
    const auto again = format.Read(format.Id == SquareFormat::Text ? TextOf(*square) : written, 1);
    if (format.Id == SquareFormat::Text && square->Total) continue;  // its line is for blocks
    Check(std::get_if<StoredSquare>(&again) &&
          std::get<StoredSquare>(again).Cells == square->Cells);
  }
  return 0;
}
