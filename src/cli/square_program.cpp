#include "cli/square_program.h"

#include <ostream>

#include "app/board/random.h"
#include "app/board/runtime_error.h"
#include "cli/arguments.h"
#include "cli/square_format.h"
#include "generate/normal_square.h"
#include "generate/proposal.h"

namespace numorra {
namespace {

void PrintSquare(const SquareRequest& request, std::ostream& out) {
  SystemClock timeOfDay;
  TickingClock seeded(request.Seed.value_or(0));
  Clock& clock = request.Seed ? static_cast<Clock&>(seeded) : timeOfDay;
  ClockSeededRandom random(clock);
  SilentStage stage;
  const CellTable square = NormalSquare(random, stage).Build(request.Size);
  WriteSquare(out, square, request.Size, MagicConstant(request.Size), request.Format);
}

}  // namespace

int RunSquareProgram(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments = ParseArguments(words);
  if (const auto* bad = std::get_if<BadArguments>(&arguments)) {
    err << "numorra-square: " << bad->Message << "\n";
    return 2;
  }
  try {
    if (std::holds_alternative<HelpRequest>(arguments))
      out << kUsage;
    else if (std::holds_alternative<VersionRequest>(arguments))
      out << "numorra-square " NUMORRA_VERSION "\n";
    else
      PrintSquare(std::get<SquareRequest>(arguments), out);
  } catch (const RuntimeError& error) {
    err << "numorra-square: " << error.what() << "\n";
    return 1;
  }
  if (!out.flush()) {
    err << "numorra-square: the output cannot be written\n";
    return 1;
  }
  return 0;
}

}  // namespace numorra
