#include "cli/study_squares.h"

#include <ostream>

#include "cli/read_squares.h"
#include "study/report.h"

namespace numorra {

bool StudySquares(const SquareRequest& request, const Streams& streams) {
  bool allFull = true;
  const char* between = "";
  const bool allRead = ReadSquares(request.File, streams, [&](const StoredSquare& square) {
    std::vector<double> numbers;
    for (const auto& cell : square.Cells) {
      if (!cell) {
        streams.Err << kProgramName << NameOf(PlaceAt(numbers.size(), square.Order))
                    << " is empty: only full squares can be studied\n";
        allFull = false;
        return;
      }
      numbers.push_back(*cell);
    }
    const Report report = Study(NumberSquare(square.Order, std::move(numbers)));
    if (request.Format == SquareFormat::Json) {
      streams.Out << JsonOf(report);
    } else {
      streams.Out << std::exchange(between, "\n") << TextOf(report);
    }
  });
  return allRead && allFull;
}

}  // namespace numorra
