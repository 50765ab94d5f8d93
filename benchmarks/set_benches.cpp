#include "app/ports/build_stage.h"
#include "benches.h"
#include "print/page_printer.h"
#include "print/worksheet.h"
#include "publish/play_page.h"
#include "puzzle/puzzle_set.h"
#include "toolkit/pdf_file.h"

namespace numorra::bench {
namespace {

std::vector<MadePuzzle> MakeSet(int count) {
  TickingClock time(7);
  ClockSeededRandom random(time);
  SilentStage stage;
  PuzzleSet set({{5}, {{Grade::Medium, count}}}, random, stage);
  std::vector<MadePuzzle> puzzles;
  while (auto made = set.Next())
    puzzles.push_back(std::move(*made));
  return puzzles;
}

void Make(benchmark::State& state, int count) {
  for (auto _ : state)
    benchmark::DoNotOptimize(MakeSet(count));
}

void WriteSheets(benchmark::State& state, int count) {
  const auto puzzles = MakeSet(count);
  for (auto _ : state) {
    const Worksheet sheet(puzzles, {6});
    benchmark::DoNotOptimize(PdfOf([&](QPdfWriter& writer) {
      PaintPages(
          writer, writer.resolution(),
          {"", sheet.Pages(), QPageLayout::Portrait, [&](QPainter& painter, QSizeF size, int page) {
             sheet.PaintPage(painter, size, page);
           }});
    }));
  }
}

void WritePage(benchmark::State& state, int count) {
  SilentStage stage;
  const auto puzzles = MakeSet(count);
  for (auto _ : state)
    benchmark::DoNotOptimize(PlayPage("Magic squares", puzzles, stage));
}

struct Measured {
  const char* Name;
  void (*Measure)(benchmark::State& state, int count);
};

constexpr Measured kWork[] = {
    {"making medium puzzles of order 5", Make},
    {"writing them as worksheets, in PDF", WriteSheets},
    {"writing them as a page to play on", WritePage},
};

}  // namespace

std::vector<std::string> RegisterSetBenches() {
  std::vector<std::string> names;
  for (const auto& [name, measure] : kWork) {
    for (const int count : kSetSizes)
      benchmark::RegisterBenchmark(At(name, count).c_str(), measure, count);
    names.emplace_back(name);
  }
  return names;
}

}  // namespace numorra::bench
