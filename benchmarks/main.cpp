#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <span>

#include <QApplication>

#include "benches.h"

/// Runs every measurement and prints one table. Each figure is a ratio of two medians of this run,
/// with the runs of both interleaved at random; the spread beside it is the larger of the two.
namespace {

using namespace numorra::bench;

constexpr int kProbeRuns = 9;

struct Ratio {
  double Value;
  double Spread;
};

Ratio Between(Figure figure, Figure base) {
  return {figure.Median / base.Median, std::max(figure.Spread, base.Spread)};
}

void PrintLine(const char* what, Ratio ratio, const char* goal) {
  std::printf("%-52s %8.2f  +-%3.0f %%   %s\n", what, ratio.Value, 100 * ratio.Spread, goal);
}

/// Work at several sizes: a line for each name with the ratios to the yardstick of each size, and
/// the exponent by which its time grows.
void PrintGrowing(const Results& results, const std::vector<std::string>& names,
                  std::span<const int> sizes, const std::function<std::string(int)>& yardstick) {
  for (const std::string& name : names) {
    std::printf("%-36s", name.c_str());
    double spread = 0;
    std::map<int, double> times;
    for (const int size : sizes) {
      const Figure figure = results.Of(At(name, size));
      const Ratio ratio = Between(figure, results.Of(yardstick(size)));
      times[size] = figure.Median;
      spread = std::max(spread, ratio.Spread);
      std::printf("%7.2f", ratio.Value);
    }
    std::printf("  +-%3.0f %%  n^%.2f\n", 100 * spread, FitExponent(times));
  }
}

void PrintHead(const char* title, const char* sizeName, std::span<const int> sizes,
               const char* growthGoal) {
  std::printf("\n%s\n%-36s", title, sizeName);
  for (const int size : sizes)
    std::printf("%7d", size);
  std::printf("   spread  growth (goal: at most %s)\n", growthGoal);
}

void PrintRoads(const Results& results, const std::vector<Road>& roads) {
  std::printf("\nWithout a window, against %s of order 50\n", kRepaint);
  for (const auto& [name, goal] : roads) {
    const Ratio ratio = Between(results.Of(name), results.Of(At(kRepaint, 50)));
    std::printf("%-52s %8.4f  +-%3.0f %%   goal: at most %g\n", name, ratio.Value,
                100 * ratio.Spread, goal);
  }
}

double Growth(const Results& results, const char* name) {
  std::map<int, double> times;
  for (const int order : kOrders)
    times[order] = results.Of(At(name, order)).Median;
  return FitExponent(times);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  if (argc == 3 && std::strcmp(argv[1], "--probe") == 0) return RunProbeChild(argv[2]);
  if (argc == 2 && std::strcmp(argv[1], "--variety") == 0) {
    PrintVariety();
    PrintFreshVariety();
    return 0;
  }
  if (argc == 2 && std::strcmp(argv[1], "--filling") == 0) {
    PrintFilling();
    return 0;
  }
  if (argc == 2 && std::strcmp(argv[1], "--counting") == 0) {
    PrintCounting();
    return 0;
  }
  const QApplication application(argc, argv);

  std::vector<std::string> flags = {argv[0], "--benchmark_repetitions=9",
                                    "--benchmark_min_time=0.02",
                                    "--benchmark_enable_random_interleaving=true"};
  flags.insert(flags.end(), argv + 1, argv + argc);
  std::vector<char*> words;
  words.reserve(flags.size());
  for (std::string& flag : flags)
    words.push_back(flag.data());
  int count = static_cast<int>(words.size());
  benchmark::Initialize(&count, words.data());

  RegisterGeneratorBenches();
  const auto roads = RegisterRoadBenches();
  const auto sets = RegisterSetBenches();
  const auto names = RegisterWindowBenches();
  Results results;
  benchmark::RunSpecifiedBenchmarks(&results);

  PrintHead(
      "From the click to the painted board, against a full repaint of the window with that board "
      "(goal: at most 1.25)",
      "order n", kOrders, "2.1");
  PrintGrowing(results, names, kOrders, [](int order) { return At(kRepaint, order); });
  PrintRoads(results, roads);
  PrintHead("Sets of puzzles, against a full repaint of the window of order 50", "n puzzles",
            kSetSizes, "1.1");
  PrintGrowing(results, sets, kSetSizes, [](int) { return At(kRepaint, 50); });
  if (argc > 1) return 0;  // a selection: skip the whole processes
  std::printf("\n");
  PrintLine("the toolkit's table view / our board, order 50",
            Between(results.Of(At(kTableRepaint, 50)), results.Of(At(kBoardRepaint, 50))),
            "goal: at least 3");
  const Figure octave = OctaveSeconds();
  if (octave.Median > 0) {
    PrintLine("Octave's magic / normal generator, orders 3 to 50",
              Between(octave, results.Of(kAllNormal)), "goal: at least 15");
  } else {
    std::printf("%-52s not installed\n", "Octave's magic / normal generator, orders 3 to 50");
  }
  PrintLine("variable generator / its patterns' arithmetic, 50",
            Between(results.Of(At(kVariable, 50)), results.Of(At(kArithmetic, 50))),
            "goal: at most 5");
  std::printf("%-52s %8.2f\n", "growth of the normal generator, n^",
              Growth(results, "normal generator"));
  std::printf("%-52s %8.2f\n", "growth of the variable generator, n^", Growth(results, kVariable));
  auto probes = RunProbes(argv[0], kProbeRuns);
  for (const char* kind : {"bare", "word"}) {
    const std::string other =
        kind == std::string("bare") ? " / a bare window's" : " / a window's with a word in it";
    PrintLine(("start to first paint" + other).c_str(),
              Between(probes["ours"].Seconds, probes[kind].Seconds), "goal: at most 1.3");
    PrintLine(("peak memory, order 50" + other).c_str(),
              Between(probes["ours"].Kilobytes, probes[kind].Kilobytes), "goal: at most 1.25");
  }
  PrintLine("start to first paint, in German / in English",
            Between(probes["german"].Seconds, probes["ours"].Seconds), "");
  return 0;
}
