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
      if (cell) numbers.push_back(*cell);
    }
    if (numbers.size() < square.Cells.size()) {
      streams.Err << kProgramName << "a square with gaps cannot be studied\n";
      allFull = false;
      return;
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
