#include "results.h"

#include <algorithm>
#include <cmath>

namespace numorra::bench {

Figure FigureOf(std::vector<double> values) {
  if (values.empty()) return {};
  std::sort(values.begin(), values.end());
  const auto at = [&](double share) {
    return values[static_cast<std::size_t>(
        std::lround(share * static_cast<double>(values.size() - 1)))];
  };
  return {at(0.5), (at(0.75) - at(0.25)) / at(0.5)};
}

double FitExponent(const std::map<int, double>& times) {
  double sumX = 0, sumY = 0, sumXX = 0, sumXY = 0;
  for (const auto& [n, time] : times) {
    const double x = std::log(n);
    const double y = std::log(time);
    sumX += x;
    sumY += y;
    sumXX += x * x;
    sumXY += x * y;
  }
  const auto count = static_cast<double>(times.size());
  return (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
}

void Results::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type == Run::RT_Iteration && !run.error_occurred) {
      seconds_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                     static_cast<double>(run.iterations));
    }
  }
}

Figure Results::Of(const std::string& name) const {
  const auto found = seconds_.find(name);
  return found == seconds_.end() ? Figure{} : FigureOf(found->second);
}

std::string At(const std::string& name, int n) {
  return name + "@" + std::to_string(n);
}

}  // namespace numorra::bench
