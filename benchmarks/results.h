#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace numorra::bench {

/// The orders that are measured.
inline constexpr int kOrders[] = {5, 10, 20, 30, 49, 50};

/// The numbers of puzzles of the sets that are measured.
inline constexpr int kSetSizes[] = {1, 10, 50, 200};

/// A figure over several runs: its median, and its interquartile range as a share of the median.
struct Figure {
  double Median = 0;
  double Spread = 0;
};

Figure FigureOf(std::vector<double> values);

/// The exponent k of the power n^k that best fits the times for n, by least squares on the
/// logarithms.
double FitExponent(const std::map<int, double>& times);

/// Collects the time of every run, in seconds, by the benchmark's name.
class Results : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;

  Figure Of(const std::string& name) const;

 private:
  std::map<std::string, std::vector<double>> seconds_;
};

/// "NAME@N", the name under which a benchmark of one order, or of one number of puzzles, is
/// registered.
std::string At(const std::string& name, int n);

}  // namespace numorra::bench
