#include "cli/study_squares.h"

#include <algorithm>
#include <ostream>

#include "cli/read_squares.h"
#include "study/report.h"
#include "words/say.h"

namespace numorra {

bool StudySquares(const SquareRequest& request, const Streams& streams) {
  bool allFull = true;
  const char* between = "";
  const bool allRead = ReadSquares(request.File, streams, [&](const StoredSquare& square) {
    const auto gap = std::find(square.Cells.begin(), square.Cells.end(), std::nullopt);
    if (gap != square.Cells.end()) {
      const Place place = square.Cells.PlaceOf(static_cast<int>(gap - square.Cells.begin()));
      streams.Err << streams.Program
                  << Say("%1 is empty: only full squares can be studied", NameOf(place)) << "\n";
      allFull = false;
      return;
    }
    const Report report = Study(NumberSquare(
        SquareOf(square.Order(), [&](int cell) { return square.Cells[cell].value_or(0); })));
    if (request.Format == SquareFormat::Json) {
      streams.Out << JsonOf(report);
    } else {
      streams.Out << std::exchange(between, "\n") << TextOf(report);
    }
  });
  return allRead && allFull;
}

}  // namespace numorra
